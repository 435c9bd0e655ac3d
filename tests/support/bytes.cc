#include "tests/support/bytes.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace test_support {
namespace {

int digit_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  throw std::invalid_argument(std::string("hex: not a hexadecimal digit: '") + c + "'");
}

std::string dump_line(std::span<const uint8_t> bytes, size_t offset) {
  char text[16];
  snprintf(text, sizeof text, "%6zu:", offset);
  std::string line = text;
  std::string characters;
  for (size_t i = offset; i < std::min(offset + 16, bytes.size()); ++i) {
    snprintf(text, sizeof text, " %02x", bytes[i]);
    line += text;
    characters += std::isprint(bytes[i]) ? static_cast<char>(bytes[i]) : '.';
  }
  line.resize(7 + 16 * 3, ' ');
  return line + "  " + characters + "\n";
}

}  // namespace

Bytes hex(std::string_view text) {
  Bytes bytes;
  int high = -1;
  for (char c : text) {
    if (std::isspace(static_cast<unsigned char>(c))) continue;
    int value = digit_value(c);
    if (high < 0) {
      high = value;
    } else {
      bytes.push_back(static_cast<uint8_t>(high << 4 | value));
      high = -1;
    }
  }
  if (high >= 0) throw std::invalid_argument("hex: an odd number of digits");
  return bytes;
}

Bytes zeros(size_t n) {
  return Bytes(n);
}

Record& Record::put(size_t offset, std::span<const uint8_t> value) {
  if (offset > bytes_.size() || value.size() > bytes_.size() - offset) {
    throw std::out_of_range("Record: " + std::to_string(value.size()) + " bytes at offset " +
                            std::to_string(offset) + " do not fit into " +
                            std::to_string(bytes_.size()));
  }
  std::copy(value.begin(), value.end(), bytes_.begin() + static_cast<ptrdiff_t>(offset));
  return *this;
}

Record& Record::byte(size_t offset, uint8_t value) {
  return put(offset, {&value, 1});
}

Record& Record::be16(size_t offset, uint16_t value) {
  const uint8_t bytes[] = {static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)};
  return put(offset, bytes);
}

Record& Record::be32(size_t offset, uint32_t value) {
  const uint8_t bytes[] = {static_cast<uint8_t>(value >> 24), static_cast<uint8_t>(value >> 16),
                           static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)};
  return put(offset, bytes);
}

Record& Record::be64(size_t offset, uint64_t value) {
  be32(offset, static_cast<uint32_t>(value >> 32));
  return be32(offset + 4, static_cast<uint32_t>(value));
}

Record& Record::host16(size_t offset, uint16_t value) {
  return put(offset, bytes_of(value));
}
Record& Record::host32(size_t offset, uint32_t value) {
  return put(offset, bytes_of(value));
}
Record& Record::host64(size_t offset, uint64_t value) {
  return put(offset, bytes_of(value));
}

Record& Record::text(size_t offset, std::string_view value) {
  return put(offset, {reinterpret_cast<const uint8_t*>(value.data()), value.size()});
}

Bytes joined(std::initializer_list<Bytes> pieces) {
  Bytes all;
  for (const Bytes& piece : pieces)
    all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

std::string hexdump(std::span<const uint8_t> bytes, size_t max_bytes) {
  std::string text;
  size_t end = std::min(bytes.size(), max_bytes);
  for (size_t offset = 0; offset < end; offset += 16)
    text += dump_line(bytes.first(end), offset);
  if (end < bytes.size()) {
    text += "        ... " + std::to_string(bytes.size() - end) + " more bytes\n";
  }
  return text;
}

std::string difference(std::span<const uint8_t> expected, std::span<const uint8_t> actual) {
  auto [at_expected, at_actual] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  if (at_expected == expected.end() && at_actual == actual.end()) return "";
  auto offset = static_cast<size_t>(at_expected - expected.begin());
  std::string text = "first difference at offset " + std::to_string(offset) + " (" +
                     std::to_string(expected.size()) + " bytes expected, " +
                     std::to_string(actual.size()) + " found)\n";
  size_t first = offset / 16 * 16 - (offset >= 16 ? 16 : 0);
  auto around = [first](std::span<const uint8_t> bytes) {
    std::string lines;
    for (size_t o = first; o < std::min(first + 48, bytes.size()); o += 16) {
      lines += dump_line(bytes, o);
    }
    return lines.empty() ? std::string("        (nothing)\n") : lines;
  };
  return text + "  expected\n" + around(expected) + "  found\n" + around(actual);
}

Bytes pattern(unsigned number, size_t size) {
  Bytes bytes(size);
  if (number == 0) return bytes;
  uint64_t state = 0x9e3779b97f4a7c15u * number;
  for (size_t i = 0; i < size; ++i) {
    if (number == 1) {
      bytes[i] = 0xff;
    } else if (number == 2) {
      bytes[i] = static_cast<uint8_t>(i);
    } else if (number == 3) {
      bytes[i] = static_cast<uint8_t>('A' + i % 26);
    } else {
      state = state * 6364136223846793005u + 1442695040888963407u;
      bytes[i] = static_cast<uint8_t>(std::rotr(state, static_cast<int>(state >> 59)) >> 32);
    }
  }
  return bytes;
}

}  // namespace test_support
