// Line cards, interfaces, inter-switch links and attached devices: the part of the fabric that the
// port manager, the name server and FSPF answer from.
#ifndef SIMULATOR_FABRIC_PORTS_H
#define SIMULATOR_FABRIC_PORTS_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulator/fabric/wwn.h"
#include "simulator/local/if_index_layout.h"

namespace switch_sim {

struct Fabric;
struct Switch;

// A port WWN has five bits for the slot and six for the port; an iSCSI port has four of them.
inline constexpr uint32_t kLargestModuleSlot = 31;
inline constexpr uint32_t kMostFcPorts = 63;
inline constexpr uint32_t kMostSlotsOfOtherMakers = 4;
inline constexpr uint32_t kMostEthernetPorts = 16;
inline constexpr uint32_t kLargestChannelNumber = 254;
inline constexpr size_t kMostChannelMembers = 16;
inline constexpr size_t kLongestAlias = 81;
inline constexpr size_t kMostLoopDevices = 126;

enum class ModuleKind : uint8_t {
  supervisor = 1,
  fibre_channel = 2,
  ip_storage = 3,
  crossbar = 4,
  services = 5,
};

enum class ModuleState : uint8_t { ok = 1, powered_down = 2, failed = 3, starting = 4 };

// What sits in a slot. A Fibre Channel or IP storage module has ports 0 to ports - 1, all of which
// are interfaces of the switch; the others have none of their own.
struct Module {
  uint32_t slot = 0;
  ModuleKind kind = ModuleKind::fibre_channel;
  ModuleState state = ModuleState::ok;
  uint32_t ports = 0;
  friend bool operator==(const Module&, const Module&) = default;
};

enum class AdminState : uint8_t { up = 1, down = 2 };

// Configured and operational modes, as the port manager numbers them.
enum class PortMode : uint32_t {
  automatic = 1,
  np = 2,  // towards a switch, as a device
  e = 4,
  te = 8,   // an E_Port that carries several VSANs; operational only
  sd = 16,  // copies the traffic of other ports
  f = 32,
  fl = 64,
  fx = 96,  // F or FL; configured only
  tl = 128,
};

enum class Optics : uint8_t { none = 1, supported = 2, unsupported = 3 };

// How an interface's counters grow; see counters.h.
enum class CounterProfile : uint8_t { idle = 1, steady = 2, error_storm = 3 };

struct Interface {
  uint32_t if_index = 0;  // of the platform; tells type, slot, port and number
  std::string alias;
  AdminState admin_state = AdminState::up;
  uint32_t vsan = 1;                               // FC port, FC port channel, FCIP, iSCSI
  PortMode mode = PortMode::automatic;             // FC port, FC port channel, FCIP; configured
  uint32_t speed = 0;                              // FC port; configured, in Mb/s; 0: automatic
  Optics optics = Optics::supported;               // FC port
  CounterProfile counters = CounterProfile::idle;  // FC port
  bool cable = false;                // Ethernet, management: something is at the other end
  uint16_t mtu = 1500;               // Ethernet, management, Ethernet channel
  std::array<uint8_t, 4> address{};  // IPv4, of the same; zeros: none
  uint32_t ethernet = 0;             // FCIP: the Ethernet port that it uses
  std::vector<uint32_t> members;     // channels; ports of the kind of the channel, rising
  friend bool operator==(const Interface&, const Interface&) = default;
};

struct LinkEnd {
  Wwn switch_wwn;
  uint32_t if_index = 0;
  friend bool operator==(const LinkEnd&, const LinkEnd&) = default;
  friend bool operator<(const LinkEnd& left, const LinkEnd& right) {
    return left.switch_wwn != right.switch_wwn ? left.switch_wwn < right.switch_wwn
                                               : left.if_index < right.if_index;
  }
};

// A cable between two switches: FC ports, FC port channels (member by member, in their order), or
// FCIP interfaces.
struct Link {
  std::array<LinkEnd, 2> ends;  // rising
  bool trunking = false;        // false: carries the VSAN of its ports
  std::vector<uint32_t> vsans;  // of a trunking link, rising; empty: all
  friend bool operator==(const Link&, const Link&) = default;
};

enum class DeviceKind : uint8_t { n_port = 1, nl_port = 2 };

// A port of a device, logged into the switch port that it is attached to. One behind an iSCSI
// interface is an iSCSI initiator.
struct Device {
  std::string name;
  Wwn port_wwn;
  Wwn node_wwn;
  DeviceKind kind = DeviceKind::n_port;
  LinkEnd attached_to;  // an FC port or iSCSI interface
  uint8_t area = 0;     // of its FC ID; the domain is that of the switch in the VSAN of the port
  uint8_t port = 0;
  std::vector<uint8_t> fc4_types;    // rising
  std::array<uint8_t, 4> address{};  // IPv4 of the node; zeros: none
  bool registered_twice = false;     // the name server lists it twice
  friend bool operator==(const Device&, const Device&) = default;
};

// Adds the ports of the modules that are not there yet, as they come.
void add_missing_ports(Switch& element);

// Look-ups in a sorted switch; null when there is none.
const Module* find_module(const Switch& element, uint32_t slot);
const Interface* find_interface(const Switch& element, uint32_t if_index);
const Interface* next_interface(const Switch& element, uint32_t after);  // the lowest above
Interface* find_interface(Switch& element, uint32_t if_index);

// The module that an FC, Ethernet, iSCSI or management port belongs to; null when there is none.
// The management port belongs to the first supervisor.
const Module* module_of(const Switch& element, uint32_t if_index);

// The channel that a port is a member of, or null.
const Interface* channel_of(const Switch& element, uint32_t if_index);

bool is_ethernet_channel(uint32_t if_index);
bool is_fc_channel(uint32_t if_index);
bool is_ethernet_like(uint32_t if_index);  // has a MAC and an IPv4 address

// "fc1/2", "port-channel 1", "mgmt0".
std::string interface_name(uint32_t if_index);
std::optional<uint32_t> parse_interface_name(const std::string& name);

// The number of a port of another maker's switch, which has no slots: 1 to 255.
uint32_t port_number(uint32_t if_index);

// The WWN of an FC-like interface: the switch WWN with slot and port, or the number of the channel
// or FCIP interface, in its first bytes. A port of another maker's switch has its number there.
Wwn port_wwn(const Wwn& switch_wwn, uint32_t if_index);

// The MAC address of an Ethernet-like interface, followed by two zeros.
Wwn mac_address(const Wwn& switch_wwn, uint32_t if_index);

// What is wrong with one element of a list, and which key of the fabric file it is about.
struct ElementProblem {
  size_t element;
  const char* key;
  std::string message;
};

// What a list breaks of the rules of the model, or nothing. Switches and their interfaces must be
// sorted; links and devices may stand in any order.
std::optional<ElementProblem> problem_of_modules(const Switch& element);
std::optional<ElementProblem> problem_of_interfaces(const Switch& element);
std::optional<ElementProblem> problem_of_links(const Fabric& fabric);
std::optional<ElementProblem> problem_of_devices(const Fabric& fabric);

// All of the above, with the names of the elements.
std::optional<std::string> problem_of_ports(const Fabric& fabric);

// Brings all lists of this part into order.
void sort_ports(Fabric& fabric);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_PORTS_H
