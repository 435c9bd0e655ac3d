#include "schema/utf8.h"

#include <array>
#include <cstdio>

namespace cim::schema {

CodePoint first_code_point(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  std::size_t length = 0;
  char32_t value = 0;
  char32_t least = 0;
  if ((lead & 0xE0U) == 0xC0) {
    length = 2, value = lead & 0x1FU, least = 0x80;
  } else if ((lead & 0xF0U) == 0xE0) {
    length = 3, value = lead & 0x0FU, least = 0x800;
  } else if ((lead & 0xF8U) == 0xF0) {
    length = 4, value = lead & 0x07U, least = 0x10000;
  } else {
    return {};
  }
  if (text.size() < length) return {};
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return {};
    value = (value << 6U) | (byte(i) & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < least || surrogate || value > 0x10FFFF) return {};
  return {value, length};
}

void append_utf8(std::string& out, char32_t code_point) {
  const auto put = [&](char32_t bits) { out.push_back(static_cast<char>(bits)); };
  const auto tail = [&](unsigned shift) { put(0x80U | ((code_point >> shift) & 0x3FU)); };
  if (code_point < 0x80) {
    put(code_point);
  } else if (code_point < 0x800) {
    put(0xC0U | (code_point >> 6U));
    tail(0);
  } else if (code_point < 0x10000) {
    put(0xE0U | (code_point >> 12U));
    tail(6);
    tail(0);
  } else {
    put(0xF0U | (code_point >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

std::string code_point_name(char32_t code_point) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(code_point));
  return text.data();
}

}  // namespace cim::schema
