// What the port manager knows about an interface without asking for it.
#include <switch_platform/port_manager.h>

#include "simulator/local/if_index_layout.h"

int32_t pm_is_ether_channel(uint32_t if_index) {
  return switch_sim::is_interface(if_index) &&
                 switch_sim::interface_type(if_index) == switch_sim::InterfaceType::port_channel &&
                 switch_sim::slot_bits(if_index) == switch_sim::kEthernetChannel
             ? 1
             : 0;
}

int32_t pm_is_bundle_port_type(uint8_t if_type) {
  return if_type == static_cast<uint8_t>(switch_sim::InterfaceType::port_channel) ? 1 : 0;
}

// Speeds and modes are shown as the numbers they are.
uint32_t pm_cli_dump_port_speed(uint32_t speed) {
  return speed;
}

uint32_t pm_cli_dump_port_mode(uint32_t mode) {
  return mode;
}
