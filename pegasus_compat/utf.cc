#include "pegasus_compat/utf.h"

#include <Pegasus/Common/Exception.h>

#include <cstdint>

namespace Pegasus {
inline namespace vexor_compat {
namespace {

constexpr uint32_t kReplacement = 0xFFFD;

// The length of the sequence that starts with this byte, or 0 if none does.
size_t sequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

unsigned char byteAt(const char* text, size_t i) {
  return static_cast<unsigned char>(text[i]);
}

// The character of a complete sequence of this length.
uint32_t decode(const char* text, size_t length) {
  if (length == 1) return byteAt(text, 0);
  uint32_t character = byteAt(text, 0) & (0xFFU >> (length + 1));
  for (size_t i = 1; i < length; ++i)
    character = (character << 6) | (byteAt(text, i) & 0x3FU);
  return character;
}

bool isSurrogate(uint32_t code) {
  return code >= 0xD800 && code < 0xE000;
}

// The length of the valid sequence at text, at most n bytes; 0 if there is none.
size_t validSequence(const char* text, size_t n) {
  const size_t length = sequenceLength(byteAt(text, 0));
  if (length == 0 || length > n) return 0;
  for (size_t i = 1; i < length; ++i) {
    if ((byteAt(text, i) & 0xC0) != 0x80) return 0;
  }
  const uint32_t character = decode(text, length);
  if (length == 3 && (character < 0x800 || isSurrogate(character))) return 0;
  if (length == 4 && (character < 0x10000 || character > 0x10FFFF)) return 0;
  return length;
}

size_t encode(uint32_t character, char* out) {
  if (character < 0x80) {
    if (out != nullptr) out[0] = static_cast<char>(character);
    return 1;
  }
  const size_t length = character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
  if (out != nullptr) {
    for (size_t i = length - 1; i > 0; --i) {
      out[i] = static_cast<char>(0x80 | (character & 0x3F));
      character >>= 6;
    }
    out[0] = static_cast<char>((0xF00U >> length & 0xF0U) | character);
  }
  return length;
}

}  // namespace

size_t utf16Length(const char* text, size_t n) {
  unsigned char seen = 0;
  for (size_t i = 0; i < n; ++i)
    seen |= byteAt(text, i);
  if (seen < 0x80) return n;  // nearly every text
  size_t units = 0;
  for (size_t i = 0; i < n;) {
    const size_t length = validSequence(text + i, n - i);
    if (length == 0) {
      throw Exception(String("invalid UTF-8 at byte ") + std::to_string(i).c_str());
    }
    units += length == 4 ? 2 : 1;
    i += length;
  }
  return units;
}

void toUtf16(const char* text, size_t n, Char16* out) {
  for (size_t i = 0; i < n;) {
    if (byteAt(text, i) < 0x80) {
      *out++ = byteAt(text, i++);
      continue;
    }
    const size_t length = sequenceLength(byteAt(text, i));
    const uint32_t character = decode(text + i, length);
    if (character < 0x10000) {
      *out++ = static_cast<Uint16>(character);
    } else {
      *out++ = static_cast<Uint16>(0xD800 + ((character - 0x10000) >> 10));
      *out++ = static_cast<Uint16>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    i += length;
  }
}

size_t toUtf8(const Char16* text, size_t n, char* out) {
  size_t bytes = 0;
  for (size_t i = 0; i < n; ++i) {
    uint32_t character = text[i];
    if (isSurrogate(character)) {
      const bool pair =
          character < 0xDC00 && i + 1 < n && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
      if (pair) {
        character = 0x10000 + ((character - 0xD800) << 10) + (text[i + 1] - 0xDC00U);
        ++i;
      } else {
        character = kReplacement;
      }
    }
    bytes += encode(character, out == nullptr ? nullptr : out + bytes);
  }
  return bytes;
}

}  // namespace vexor_compat
}  // namespace Pegasus
