// The layout of packed member values that are more than an array of bytes.
#ifndef ZONING_MEMBER_VALUES_H
#define ZONING_MEMBER_VALUES_H

#include <cstdint>

namespace cim_utils {

// An IPv6 member. The words are in host order.
struct Ipv6Value {
  uint32_t family;
  uint8_t address[16];
  uint32_t prefix_length;
};
static_assert(sizeof(Ipv6Value) == 24);

inline constexpr uint32_t kIpv6Family = 2;
inline constexpr uint32_t kWholeIpv6Address = 128;

}  // namespace cim_utils

#endif  // ZONING_MEMBER_VALUES_H
