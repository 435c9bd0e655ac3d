// Decimal numbers in instance ids.
#ifndef ZONING_DECIMAL_H
#define ZONING_DECIMAL_H

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace cim_utils {

// The number at the start of the text, 0 where there is none; beyond 32 bits the nearest.
inline int32_t decimal(const char* text) {
  return static_cast<int32_t>(
      std::clamp<long>(std::strtol(text, nullptr, 10), INT32_MIN, INT32_MAX));
}

}  // namespace cim_utils

#endif  // ZONING_DECIMAL_H
