// Building and taking apart interface indexes.
#include <arpa/inet.h>
#include <switch_platform/if_index.h>

#include <algorithm>
#include <array>

#include "simulator/local/if_index_layout.h"

namespace switch_sim {
namespace {

// In the order of a walk over all interfaces.
constexpr std::array kWalkedTypes = {
    InterfaceType::fibre_channel, InterfaceType::ethernet, InterfaceType::port_channel,
    InterfaceType::management,    InterfaceType::in_band,  InterfaceType::fcip,
    InterfaceType::iscsi,         InterfaceType::vsan,
};

bool has_slot_and_port(InterfaceType type) {
  return type == InterfaceType::fibre_channel || type == InterfaceType::ethernet ||
         type == InterfaceType::iscsi || type == InterfaceType::management ||
         type == InterfaceType::in_band || type == InterfaceType::internal;
}

int32_t make_port(uint32_t* if_index, InterfaceType type, uint32_t slot, uint32_t port) {
  if (if_index == nullptr || slot > kLargestSlot || port > kLargestPort) return -1;
  *if_index = make_if_index(type, slot, port + 1);
  return 0;
}

}  // namespace

std::optional<InterfaceType> interface_type(uint32_t if_index) {
  const auto type = static_cast<InterfaceType>(type_bits(if_index));
  const bool known =
      type == InterfaceType::internal ||
      std::find(kWalkedTypes.begin(), kWalkedTypes.end(), type) != kWalkedTypes.end();
  return known ? std::optional(type) : std::nullopt;
}

bool is_interface(uint32_t if_index) {
  const auto type = interface_type(if_index);
  if (!type) return false;
  const uint32_t slot = slot_bits(if_index);
  const uint32_t unit = unit_bits(if_index);
  if (unit == 0) return false;
  switch (*type) {
    case InterfaceType::fibre_channel:
    case InterfaceType::ethernet:
    case InterfaceType::iscsi:
      return unit <= kLargestPort + 1;
    case InterfaceType::management:
    case InterfaceType::in_band:
    case InterfaceType::internal:
      return slot == 0 && unit <= kLargestPort + 1;
    case InterfaceType::port_channel:
      return slot <= kEthernetChannel && unit <= kLargestChannel;
    case InterfaceType::fcip:
      return slot == 0 && unit <= kLargestFcip;
    case InterfaceType::vsan:
      return slot == 0 && unit <= kLargestVsanInterface;
  }
  return false;
}

}  // namespace switch_sim

using switch_sim::InterfaceType;

// The type is told for the start of a walk too, which is no interface yet.
int32_t if_index_get_type(uint32_t if_index, uint8_t* type) {
  const auto found = switch_sim::interface_type(if_index);
  if (!found || type == nullptr) return -1;
  *type = static_cast<uint8_t>(*found);
  return 0;
}

int32_t if_index_get_slot(uint32_t if_index, uint8_t* slot) {
  const auto type = switch_sim::interface_type(if_index);
  if (slot == nullptr || !type || !switch_sim::has_slot_and_port(*type) ||
      !switch_sim::is_interface(if_index)) {
    return -1;
  }
  *slot = static_cast<uint8_t>(switch_sim::slot_bits(if_index));
  return 0;
}

int32_t if_index_get_port(uint32_t if_index, uint8_t* port) {
  const auto type = switch_sim::interface_type(if_index);
  if (port == nullptr || !type || !switch_sim::has_slot_and_port(*type) ||
      !switch_sim::is_interface(if_index)) {
    return -1;
  }
  *port = static_cast<uint8_t>(switch_sim::unit_bits(if_index) - 1);
  return 0;
}

int32_t if_index_get_next_type(uint8_t* type) {
  if (type == nullptr) return -1;
  for (const InterfaceType next : switch_sim::kWalkedTypes) {
    if (static_cast<uint8_t>(next) > *type) {
      *type = static_cast<uint8_t>(next);
      return 0;
    }
  }
  return -1;
}

uint32_t if_index_get_if_index_all_for_type(uint8_t type) {
  return switch_sim::make_if_index(static_cast<InterfaceType>(type), 0, 0);
}

int32_t if_index_phy_fc_port_init(uint32_t* if_index, uint32_t slot, uint32_t port) {
  return switch_sim::make_port(if_index, InterfaceType::fibre_channel, slot, port);
}

int32_t if_index_iscsi_port_init(uint32_t* if_index, uint32_t slot, uint32_t port) {
  return switch_sim::make_port(if_index, InterfaceType::iscsi, slot, port);
}

int32_t if_index_port_channel_init(uint32_t* if_index, uint32_t channel) {
  if (if_index == nullptr || channel == 0 || channel > switch_sim::kLargestChannel) return -1;
  *if_index = switch_sim::make_if_index(InterfaceType::port_channel, 0, channel);
  return 0;
}

int32_t if_index_port_channel_get_channel_num(uint32_t if_index, uint32_t* channel) {
  if (channel == nullptr || !switch_sim::is_interface(if_index) ||
      switch_sim::interface_type(if_index) != InterfaceType::port_channel) {
    return -1;
  }
  *channel = switch_sim::unit_bits(if_index);
  return 0;
}

uint32_t hton_if_index(uint32_t if_index) {
  return htonl(if_index);
}

uint32_t ntoh_if_index(uint32_t if_index) {
  return ntohl(if_index);
}
