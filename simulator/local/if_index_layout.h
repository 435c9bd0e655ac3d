// How an interface index is made up, so that type, slot, port and channel are functions of it:
//
//   bits 31..24  type (InterfaceType)
//   bits 23..16  slot, for types that sit in one; 1 for an Ethernet port channel; else 0
//   bits 15..0   unit: port + 1 for FC, Ethernet, management, in-band and iSCSI ports;
//                the interface's own number (from 1) for channels, FCIP and VSAN interfaces
//
// A unit is never 0 in an index of an interface: slot 0 with unit 0 is the place before the first
// interface of a type, where a get-next walk over the type starts. Every index is above 256.
#ifndef SIMULATOR_LOCAL_IF_INDEX_LAYOUT_H
#define SIMULATOR_LOCAL_IF_INDEX_LAYOUT_H

#include <cstdint>
#include <optional>

namespace switch_sim {

enum class InterfaceType : uint8_t {
  fibre_channel = 1,
  ethernet = 2,
  port_channel = 4,
  management = 5,
  in_band = 6,
  fcip = 10,
  iscsi = 11,
  vsan = 14,
  internal = 16,  // inside the switch: never configured, never part of a walk
};

inline constexpr uint32_t kLargestSlot = 255;
inline constexpr uint32_t kLargestPort = 254;
inline constexpr uint32_t kLargestChannel = 256;
inline constexpr uint32_t kLargestFcip = 2047;
inline constexpr uint32_t kLargestVsanInterface = 4094;
inline constexpr uint32_t kEthernetChannel = 1;  // in the slot bits of a port channel

constexpr uint32_t make_if_index(InterfaceType type, uint32_t slot, uint32_t unit) {
  return static_cast<uint32_t>(type) << 24 | slot << 16 | unit;
}
constexpr uint8_t type_bits(uint32_t if_index) {
  return static_cast<uint8_t>(if_index >> 24);
}
constexpr uint32_t slot_bits(uint32_t if_index) {
  return if_index >> 16 & 0xFF;
}
constexpr uint32_t unit_bits(uint32_t if_index) {
  return if_index & 0xFFFF;
}

// The type, when it is one of InterfaceType.
std::optional<InterfaceType> interface_type(uint32_t if_index);

// True when slot and unit lie in the ranges of the type.
bool is_interface(uint32_t if_index);

}  // namespace switch_sim

#endif  // SIMULATOR_LOCAL_IF_INDEX_LAYOUT_H
