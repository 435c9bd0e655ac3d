// WWNs as the keys of CIM objects show them.
#pragma once

#include <cim_utils/formats.h>
#include <cim_utils/wwn_rules.h>
#include <switch_platform/types.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace vexor::providers {

inline std::string text_of(const wwn_& wwn) {
  char text[CIM_WWN_TEXT_ROOM] = {};
  cim_sprintf_wwn(text, &wwn);
  return text;
}

inline bool same_wwn(const wwn_& a, const wwn_& b) {
  return std::memcmp(a.bytes, b.bytes, sizeof a.bytes) == 0;
}

// As a number, for tables.
inline uint64_t number_of(const wwn_& wwn) {
  uint64_t number = 0;
  for (const uint8_t byte : wwn.bytes)
    number = number << 8 | byte;
  return number;
}

// A WWN as the library writes it. Result: false for any other text, null among them.
inline bool read_wwn(const char* text, wwn_& wwn) {
  wwn = {};
  return text != nullptr && std::strlen(text) == CIM_WWN_TEXT_ROOM - 1 &&
         wwn_cim_get_hex_from_str_wwn(text, &wwn) == 0 && text_of(wwn) == text;
}

}  // namespace vexor::providers
