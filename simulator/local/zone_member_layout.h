// The member types of the zone server and the bytes of their packed values.
#ifndef SIMULATOR_LOCAL_ZONE_MEMBER_LAYOUT_H
#define SIMULATOR_LOCAL_ZONE_MEMBER_LAYOUT_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace switch_sim::zone_member {

// In an entry of the zone server.
inline constexpr size_t kTypeOffset = 20;
inline constexpr size_t kValueOffset = 24;

struct Layout {
  uint8_t type;
  uint16_t width;         // bytes of the packed value
  bool is_text;           // NUL-terminated within the width
  uint8_t lun_offset;     // of 8 bytes in the value; 0: none
  uint8_t host_words[2];  // offsets of numbers that a caller sees in host order; 255: none
};

inline constexpr uint8_t kNoWord = 255;

inline constexpr uint8_t kPortWwn = 1;
inline constexpr uint8_t kDomainPort = 2;
inline constexpr uint8_t kFcId = 3;
inline constexpr uint8_t kSymbolic = 4;
inline constexpr uint8_t kInterfaceOfSwitch = 109;
inline constexpr uint8_t kPortWwnLun = 225;
inline constexpr uint8_t kFcIdLun = 227;
inline constexpr uint8_t kText228 = 228;
inline constexpr uint8_t kFabricPortWwn = 229;
inline constexpr uint8_t kSymbolicNodeName = 230;
inline constexpr uint8_t kInterface = 231;
inline constexpr uint8_t kIpv4 = 232;
inline constexpr uint8_t kDomainInterface = 233;
inline constexpr uint8_t kIpv6 = 234;
inline constexpr uint8_t kDeviceAlias = 235;
inline constexpr uint8_t kWwnLun241 = 241;
inline constexpr uint8_t kFcIdLun243 = 243;

inline constexpr std::array<Layout, 17> kLayouts = {{
    {kPortWwn, 8, false, 0, {kNoWord, kNoWord}},
    {kDomainPort, 4, false, 0, {kNoWord, kNoWord}},
    {kFcId, 4, false, 0, {kNoWord, kNoWord}},
    {kSymbolic, 64, true, 0, {kNoWord, kNoWord}},
    {kInterfaceOfSwitch, 8, false, 0, {kNoWord, kNoWord}},
    {kPortWwnLun, 16, false, 8, {kNoWord, kNoWord}},
    {kFcIdLun, 12, false, 4, {kNoWord, kNoWord}},
    {kText228, 256, true, 0, {kNoWord, kNoWord}},
    {kFabricPortWwn, 8, false, 0, {kNoWord, kNoWord}},
    {kSymbolicNodeName, 256, true, 0, {kNoWord, kNoWord}},
    {kInterface, 8, false, 0, {kNoWord, kNoWord}},
    {kIpv4, 8, false, 0, {0, 4}},
    {kDomainInterface, 12, false, 0, {kNoWord, kNoWord}},
    {kIpv6, 24, false, 0, {0, 20}},
    {kDeviceAlias, 256, true, 0, {kNoWord, kNoWord}},
    {kWwnLun241, 16, false, 8, {kNoWord, kNoWord}},
    {kFcIdLun243, 12, false, 4, {kNoWord, kNoWord}},
}};

// Null for a type that the zone server does not know.
constexpr const Layout* layout_of(uint8_t type) {
  for (const Layout& layout : kLayouts) {
    if (layout.type == type) return &layout;
  }
  return nullptr;
}

}  // namespace switch_sim::zone_member

#endif  // SIMULATOR_LOCAL_ZONE_MEMBER_LAYOUT_H
