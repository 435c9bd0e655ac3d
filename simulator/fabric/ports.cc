#include "simulator/fabric/ports.h"

#include <switch_platform/if_index.h>
#include <switch_platform/port_manager.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "simulator/fabric/fabric.h"
#include "simulator/fabric/json.h"

namespace switch_sim {
namespace {

constexpr Wwn kNoWwn{};

InterfaceType type_of(uint32_t if_index) {
  return static_cast<InterfaceType>(type_bits(if_index));
}

bool has_ports(ModuleKind kind) {
  return kind == ModuleKind::fibre_channel || kind == ModuleKind::ip_storage;
}

bool is_port_of_module(InterfaceType type) {
  return type == InterfaceType::fibre_channel || type == InterfaceType::ethernet;
}

InterfaceType port_type(ModuleKind kind) {
  return kind == ModuleKind::fibre_channel ? InterfaceType::fibre_channel : InterfaceType::ethernet;
}

bool lower_index(const Interface& interface, uint32_t if_index) {
  return interface.if_index < if_index;
}

template <typename List>
auto* find_in(List& interfaces, uint32_t if_index) {
  const auto found = std::lower_bound(interfaces.begin(), interfaces.end(), if_index, lower_index);
  return found != interfaces.end() && found->if_index == if_index ? &*found : nullptr;
}

const char* problem_of(const Module& module) {
  if (module.slot < 1 || module.slot > kLargestModuleSlot) return "a slot lies between 1 and 31";
  switch (module.kind) {
    case ModuleKind::supervisor:
      return module.ports != 0 ? "a supervisor has no ports" : nullptr;
    case ModuleKind::crossbar:
    case ModuleKind::services:
      return module.ports != 0 ? "such a module has no ports" : nullptr;
    case ModuleKind::fibre_channel:
      return module.ports < 1 || module.ports > kMostFcPorts
                 ? "a Fibre Channel module has 1 to 63 ports"
                 : nullptr;
    case ModuleKind::ip_storage:
      return module.ports < 1 || module.ports > kMostEthernetPorts
                 ? "an IP storage module has 1 to 16 ports"
                 : nullptr;
  }
  return "no such kind of module";
}

bool may_be_configured(const Interface& interface) {
  const uint32_t unit = unit_bits(interface.if_index);
  if (!is_interface(interface.if_index)) return false;
  switch (type_of(interface.if_index)) {
    case InterfaceType::fibre_channel:
    case InterfaceType::ethernet:
    case InterfaceType::fcip:
    case InterfaceType::iscsi:
      return true;
    case InterfaceType::port_channel:
      return unit <= kLargestChannelNumber;
    case InterfaceType::management:
      return unit == 1;
    default:
      return false;
  }
}

bool is_admin_mode(const Interface& interface) {
  const PortMode mode = interface.mode;
  const bool expansion = mode == PortMode::automatic || mode == PortMode::e;
  switch (type_of(interface.if_index)) {
    case InterfaceType::fibre_channel:
      return expansion || mode == PortMode::np || mode == PortMode::sd || mode == PortMode::f ||
             mode == PortMode::fl || mode == PortMode::fx || mode == PortMode::tl;
    case InterfaceType::port_channel:
    case InterfaceType::fcip:
      return expansion;
    default:
      return mode == PortMode::automatic;
  }
}

// What is wrong with one interface as such: the key and the text, or null.
std::pair<const char*, const char*> problem_of_values(const Interface& interface) {
  if (!may_be_configured(interface)) return {"name", "no interface of a fabric"};
  if (interface.alias.size() > kLongestAlias) return {"alias", "an alias has at most 81 bytes"};
  if (!interface.alias.empty() && !is_name(interface.alias)) {
    return {"alias", "an alias is UTF-8 of one line"};
  }
  if (interface.vsan < 1 || interface.vsan > kLargestVsan) {
    return {"vsan", "a VSAN number lies between 1 and 4094"};
  }
  if (!is_admin_mode(interface)) return {"mode", "the interface cannot have this mode"};
  if (interface.speed != 0 && interface.speed != 1000 && interface.speed != 2000) {
    return {"speed", "a speed is 0, 1000 or 2000"};
  }
  return {};
}

// What is wrong with the places that an interface names in its switch.
std::pair<const char*, const char*> problem_of_places(const Switch& element,
                                                      const Interface& interface) {
  const uint32_t if_index = interface.if_index;
  const InterfaceType type = type_of(if_index);
  if (is_of_another_maker(element.wwn) && type != InterfaceType::fibre_channel) {
    return {"name", "another maker's switch has FC ports only"};
  }
  if ((is_port_of_module(type) || type == InterfaceType::management) &&
      module_of(element, if_index) == nullptr) {
    return {"name", "no module has this port"};
  }
  if (type == InterfaceType::iscsi && module_of(element, if_index) == nullptr) {
    return {"name", "there is no Ethernet port with this slot and number"};
  }
  if (type == InterfaceType::fcip && (type_of(interface.ethernet) != InterfaceType::ethernet ||
                                      module_of(element, interface.ethernet) == nullptr)) {
    return {"ethernet", "the switch has no such Ethernet port"};
  }
  const InterfaceType member =
      is_ethernet_channel(if_index) ? InterfaceType::ethernet : InterfaceType::fibre_channel;
  if (interface.members.size() > kMostChannelMembers) {
    return {"members", "a channel has at most 16 members"};
  }
  for (const uint32_t port : interface.members) {
    if (type_of(port) != member || module_of(element, port) == nullptr) {
      return {"members", "the switch has no such port for the channel"};
    }
  }
  return {};
}

// Channel number and port may each be used once.
std::optional<ElementProblem> problem_of_channels(const Switch& element) {
  std::set<uint32_t> numbers, members;
  for (size_t i = 0; i < element.interfaces.size(); ++i) {
    const Interface& interface = element.interfaces[i];
    if (type_of(interface.if_index) != InterfaceType::port_channel) continue;
    if (!numbers.insert(unit_bits(interface.if_index)).second) {
      return ElementProblem{i, "name", "another channel has this number"};
    }
    for (const uint32_t port : interface.members) {
      if (!members.insert(port).second) {
        return ElementProblem{i, "members", interface_name(port) + " is a member already"};
      }
    }
  }
  return std::nullopt;
}

const Interface* find_end(const Fabric& fabric, const LinkEnd& end) {
  const Switch* owner = find_switch(fabric, end.switch_wwn);
  return owner != nullptr ? find_interface(*owner, end.if_index) : nullptr;
}

using Channels = std::set<LinkEnd>;

// The ports that are members of a channel.
Channels members_of_channels(const Fabric& fabric) {
  Channels members;
  for (const Switch& element : fabric.switches) {
    for (const Interface& interface : element.interfaces) {
      for (const uint32_t port : interface.members)
        members.insert({element.wwn, port});
    }
  }
  return members;
}

bool may_link(uint32_t if_index) {
  const InterfaceType type = type_of(if_index);
  return type == InterfaceType::fibre_channel || type == InterfaceType::fcip ||
         is_fc_channel(if_index);
}

const char* problem_of_end(const Fabric& fabric, const LinkEnd& end, const Channels& members) {
  if (find_switch(fabric, end.switch_wwn) == nullptr) return "no such switch";
  if (find_end(fabric, end) == nullptr) return "the switch has no such interface";
  if (members.contains(end)) return "the port is a member of a channel";
  return nullptr;
}

const char* problem_of_link_end(const Fabric& fabric, const LinkEnd& end, const Channels& members,
                                std::set<LinkEnd>& used) {
  if (const char* problem = problem_of_end(fabric, end, members)) return problem;
  if (!may_link(end.if_index)) {
    return "a link joins FC ports, port channels or FCIP interfaces";
  }
  return used.insert(end).second ? nullptr : "the interface has a link already";
}

std::pair<const char*, const char*> problem_of_link(const Fabric& fabric, const Link& link,
                                                    const Channels& members,
                                                    std::set<LinkEnd>& used) {
  for (const LinkEnd& end : link.ends) {
    if (const char* problem = problem_of_link_end(fabric, end, members, used)) {
      return {"ends", problem};
    }
  }
  if (link.ends[0].switch_wwn == link.ends[1].switch_wwn) {
    return {"ends", "the ends of a link lie on two switches"};
  }
  if (type_bits(link.ends[0].if_index) != type_bits(link.ends[1].if_index)) {
    return {"ends", "the ends of a link are of one kind"};
  }
  if (find_end(fabric, link.ends[0])->members.size() !=
      find_end(fabric, link.ends[1])->members.size()) {
    return {"ends", "linked port channels have the same number of members"};
  }
  const bool is_mixed = std::any_of(link.ends.begin(), link.ends.end(), [](const LinkEnd& end) {
    return is_of_another_maker(end.switch_wwn);
  });
  if (link.trunking && is_mixed) return {"trunk", "another maker's switch does not trunk"};
  if (!link.trunking && !link.vsans.empty()) return {"trunk", "only a trunking link has VSANs"};
  for (const uint32_t vsan : link.vsans) {
    if (vsan < 1 || vsan > kLargestVsan) return {"trunk", "a VSAN number lies between 1 and 4094"};
  }
  return {};
}

// What is known of the devices that were tested already.
struct SeenDevices {
  std::set<Wwn> wwns;
  std::map<LinkEnd, std::pair<DeviceKind, size_t>> attached;
  std::map<std::pair<Wwn, uint32_t>, std::set<std::pair<uint8_t, uint8_t>>> addresses;
};

std::pair<const char*, const char*> problem_of_device(const Fabric& fabric, const Device& device,
                                                      const Channels& members,
                                                      const std::set<LinkEnd>& linked,
                                                      SeenDevices& seen) {
  if (device.name.size() > kLongestSystemName || (!device.name.empty() && !is_name(device.name))) {
    return {"name", "a device name is UTF-8 of one line and at most 255 bytes"};
  }
  if (device.port_wwn == kNoWwn) return {"port_wwn", "a WWN is not all zeros"};
  if (device.node_wwn == kNoWwn) return {"node_wwn", "a WWN is not all zeros"};
  if (!seen.wwns.insert(device.port_wwn).second) {
    return {"port_wwn", "another device has this port WWN"};
  }
  const LinkEnd& end = device.attached_to;
  if (const char* problem = problem_of_end(fabric, end, members)) return {"interface", problem};
  const InterfaceType type = type_of(end.if_index);
  if (type != InterfaceType::fibre_channel && type != InterfaceType::iscsi) {
    return {"interface", "a device is attached to an FC port or an iSCSI interface"};
  }
  if (linked.contains(end)) return {"interface", "the port has a link to a switch"};
  auto& [kind, count] = seen.attached.try_emplace(end, device.kind, 0).first->second;
  ++count;
  if (type == InterfaceType::fibre_channel) {
    if (kind != device.kind) return {"kind", "an N_Port and NL_Ports do not share a port"};
    if (kind == DeviceKind::n_port && count > 1) {
      return {"interface", "another N_Port is attached to the port"};
    }
    if (count > kMostLoopDevices) return {"interface", "a loop has at most 126 devices"};
  } else if (device.kind != DeviceKind::n_port) {
    return {"kind", "an iSCSI initiator is an N_Port"};
  }
  auto& used = seen.addresses[{end.switch_wwn, find_end(fabric, end)->vsan}];
  if (!used.emplace(device.area, device.port).second) {
    return {"fc_id", "another device of the switch has this FC ID in the VSAN"};
  }
  return {};
}

template <typename List, typename Test>
std::optional<ElementProblem> first_problem(const List& list, Test test) {
  for (size_t i = 0; i < list.size(); ++i) {
    const auto [key, message] = test(list[i]);
    if (message != nullptr) return ElementProblem{i, key, message};
  }
  return std::nullopt;
}

std::string name_of(const Fabric& fabric, const LinkEnd& end) {
  const Switch* owner = find_switch(fabric, end.switch_wwn);
  return (owner != nullptr ? owner->name : to_text(end.switch_wwn)) + " " +
         interface_name(end.if_index);
}

std::optional<std::string> problem_of_ports(const Switch& element) {
  const std::string where = "switch " + to_text(element.wwn) + ", ";
  if (const auto problem = problem_of_modules(element)) {
    return where + "slot " + std::to_string(element.modules[problem->element].slot) + ": " +
           problem->message;
  }
  Switch complete;
  complete.modules = element.modules;
  add_missing_ports(complete);
  for (const Interface& port : complete.interfaces) {
    if (find_interface(element, port.if_index) == nullptr) {
      return where + interface_name(port.if_index) + ": the port of the module is missing";
    }
  }
  if (const auto problem = problem_of_chassis(element)) {
    return where + "chassis: " + problem->message;
  }
  if (const auto problem = problem_of_interfaces(element)) {
    return where + interface_name(element.interfaces[problem->element].if_index) + ": " +
           problem->message;
  }
  return std::nullopt;
}

}  // namespace

void add_missing_ports(Switch& element) {
  const size_t known = element.interfaces.size();
  const auto add = [&](uint32_t if_index) {
    const auto end = element.interfaces.begin() + static_cast<std::ptrdiff_t>(known);
    const auto found = std::lower_bound(element.interfaces.begin(), end, if_index, lower_index);
    if (found != end && found->if_index == if_index) return;
    element.interfaces.emplace_back().if_index = if_index;
  };
  for (const Module& module : element.modules) {
    if (!has_ports(module.kind)) continue;
    for (uint32_t unit = 1; unit <= module.ports; ++unit)
      add(make_if_index(port_type(module.kind), module.slot, unit));
  }
  std::sort(
      element.interfaces.begin(), element.interfaces.end(),
      [](const Interface& left, const Interface& right) { return left.if_index < right.if_index; });
}

const Module* find_module(const Switch& element, uint32_t slot) {
  const auto found =
      std::lower_bound(element.modules.begin(), element.modules.end(), slot,
                       [](const Module& module, uint32_t wanted) { return module.slot < wanted; });
  return found != element.modules.end() && found->slot == slot ? &*found : nullptr;
}

const Interface* find_interface(const Switch& element, uint32_t if_index) {
  return find_in(element.interfaces, if_index);
}

Interface* find_interface(Switch& element, uint32_t if_index) {
  return find_in(element.interfaces, if_index);
}

const Interface* next_interface(const Switch& element, uint32_t after) {
  const auto found = std::upper_bound(
      element.interfaces.begin(), element.interfaces.end(), after,
      [](uint32_t if_index, const Interface& interface) { return if_index < interface.if_index; });
  return found != element.interfaces.end() ? &*found : nullptr;
}

const Module* module_of(const Switch& element, uint32_t if_index) {
  const InterfaceType type = type_of(if_index);
  if (type == InterfaceType::management) {
    const auto found =
        std::find_if(element.modules.begin(), element.modules.end(),
                     [](const Module& module) { return module.kind == ModuleKind::supervisor; });
    return found != element.modules.end() ? &*found : nullptr;
  }
  if (!is_port_of_module(type) && type != InterfaceType::iscsi) return nullptr;
  const Module* module = find_module(element, slot_bits(if_index));
  if (module == nullptr || !has_ports(module->kind)) return nullptr;
  const InterfaceType wanted = type == InterfaceType::iscsi ? InterfaceType::ethernet : type;
  const uint32_t unit = unit_bits(if_index);
  return port_type(module->kind) == wanted && unit >= 1 && unit <= module->ports ? module : nullptr;
}

const Interface* channel_of(const Switch& element, uint32_t if_index) {
  const uint32_t start = make_if_index(InterfaceType::port_channel, 0, 0);
  for (const Interface* channel = next_interface(element, start);
       channel != nullptr && type_of(channel->if_index) == InterfaceType::port_channel;
       channel = next_interface(element, channel->if_index)) {
    if (std::binary_search(channel->members.begin(), channel->members.end(), if_index)) {
      return channel;
    }
  }
  return nullptr;
}

bool is_ethernet_channel(uint32_t if_index) {
  return pm_is_ether_channel(if_index) != 0;
}

bool is_fc_channel(uint32_t if_index) {
  return type_of(if_index) == InterfaceType::port_channel && !is_ethernet_channel(if_index);
}

bool is_ethernet_like(uint32_t if_index) {
  const InterfaceType type = type_of(if_index);
  return type == InterfaceType::ethernet || type == InterfaceType::management ||
         is_ethernet_channel(if_index);
}

std::string interface_name(uint32_t if_index) {
  char text[64] = "";
  sprintf_if_index(text, if_index);
  return text;
}

std::optional<uint32_t> parse_interface_name(const std::string& name) {
  uint32_t if_index = 0;
  if (name.find('\0') != std::string::npos || if_db_str2ifindex(name.c_str(), &if_index) != 0) {
    return std::nullopt;
  }
  return if_index;
}

uint32_t port_number(uint32_t if_index) {
  return (slot_bits(if_index) - 1U) * (kMostFcPorts + 1) + unit_bits(if_index);
}

Wwn port_wwn(const Wwn& switch_wwn, uint32_t if_index) {
  Wwn wwn = switch_wwn;
  if (is_of_another_maker(switch_wwn)) {
    wwn.bytes[0] = 0x20;
    wwn.bytes[1] = static_cast<uint8_t>(port_number(if_index));
    return wwn;
  }
  const uint32_t slot = slot_bits(if_index);
  const uint32_t unit = unit_bits(if_index);
  switch (type_of(if_index)) {
    case InterfaceType::port_channel:
      wwn.bytes[0] |= 0x04;
      wwn.bytes[1] = static_cast<uint8_t>(unit + 1);
      break;
    case InterfaceType::fcip:  // bit 3, which no physical port has, and the number
      wwn.bytes[0] = static_cast<uint8_t>(wwn.bytes[0] | 0x08 | unit >> 8);
      wwn.bytes[1] = static_cast<uint8_t>(unit);
      break;
    case InterfaceType::iscsi:  // the port in the upper four bits of the six
      wwn.bytes[0] = static_cast<uint8_t>(wwn.bytes[0] | slot >> 2);
      wwn.bytes[1] = static_cast<uint8_t>(slot << 6 | (unit - 1) << 2 | 1);
      break;
    default:
      wwn.bytes[0] = static_cast<uint8_t>(wwn.bytes[0] | slot >> 2);
      wwn.bytes[1] = static_cast<uint8_t>(slot << 6 | unit);
      break;
  }
  return wwn;
}

// The management port has the address that the switch WWN was made from; the others have locally
// administered ones.
Wwn mac_address(const Wwn& switch_wwn, uint32_t if_index) {
  const auto& wwn = switch_wwn.bytes;
  if (type_of(if_index) == InterfaceType::management) {
    return {{wwn[2], wwn[3], wwn[4], wwn[5], wwn[6], wwn[7]}};
  }
  const uint32_t slot = is_ethernet_channel(if_index) ? 0xFF : slot_bits(if_index);
  return {{0x02, static_cast<uint8_t>(slot), static_cast<uint8_t>(unit_bits(if_index)), wwn[5],
           wwn[6], wwn[7]}};
}

std::optional<ElementProblem> problem_of_modules(const Switch& element) {
  std::set<uint32_t> slots;
  for (size_t i = 0; i < element.modules.size(); ++i) {
    const Module& module = element.modules[i];
    if (const char* problem = problem_of(module)) return ElementProblem{i, "ports", problem};
    if (is_of_another_maker(element.wwn) &&
        (module.kind != ModuleKind::fibre_channel || module.slot > kMostSlotsOfOtherMakers)) {
      return ElementProblem{i, "slot",
                            "another maker's switch has Fibre Channel modules in slots 1 to 4"};
    }
    if (!slots.insert(module.slot).second) {
      return ElementProblem{i, "slot", "another module is in this slot"};
    }
  }
  return std::nullopt;
}

std::optional<ElementProblem> problem_of_interfaces(const Switch& element) {
  for (size_t i = 1; i < element.interfaces.size(); ++i) {
    if (element.interfaces[i].if_index == element.interfaces[i - 1].if_index) {
      return ElementProblem{i, "name", "the interface is there already"};
    }
  }
  auto problem = first_problem(element.interfaces, problem_of_values);
  if (!problem) {
    problem = first_problem(element.interfaces, [&](const Interface& interface) {
      return problem_of_places(element, interface);
    });
  }
  return problem ? problem : problem_of_channels(element);
}

std::optional<ElementProblem> problem_of_links(const Fabric& fabric) {
  const Channels members = members_of_channels(fabric);
  std::set<LinkEnd> used;
  return first_problem(
      fabric.links, [&](const Link& link) { return problem_of_link(fabric, link, members, used); });
}

std::optional<ElementProblem> problem_of_devices(const Fabric& fabric) {
  const Channels members = members_of_channels(fabric);
  std::set<LinkEnd> linked;
  for (const Link& link : fabric.links)
    linked.insert(link.ends.begin(), link.ends.end());
  SeenDevices seen;
  return first_problem(fabric.devices, [&](const Device& device) {
    return problem_of_device(fabric, device, members, linked, seen);
  });
}

std::optional<std::string> problem_of_ports(const Fabric& fabric) {
  for (const Switch& element : fabric.switches) {
    if (auto problem = problem_of_ports(element)) return problem;
  }
  if (fabric.counter_seed > INT64_MAX) return "the seed of the counters is too large";
  if (const auto problem = problem_of_links(fabric)) {
    const Link& link = fabric.links[problem->element];
    return "link of " + name_of(fabric, link.ends[0]) + " and " + name_of(fabric, link.ends[1]) +
           ": " + problem->message;
  }
  if (const auto problem = problem_of_devices(fabric)) {
    return "device " + to_text(fabric.devices[problem->element].port_wwn) + ": " + problem->message;
  }
  return std::nullopt;
}

void sort_ports(Fabric& fabric) {
  const auto rising = [](auto& list, auto key_of) {
    std::stable_sort(list.begin(), list.end(), [&](const auto& left, const auto& right) {
      return key_of(left) < key_of(right);
    });
  };
  const auto same = [](auto value) { return value; };
  for (Switch& element : fabric.switches) {
    rising(element.modules, [](const Module& module) { return module.slot; });
    rising(element.interfaces, [](const Interface& interface) { return interface.if_index; });
    for (Interface& interface : element.interfaces)
      rising(interface.members, same);
  }
  for (Link& link : fabric.links) {
    rising(link.ends, [](const LinkEnd& end) { return end; });
    rising(link.vsans, same);
  }
  rising(fabric.links, [](const Link& link) { return link.ends[0]; });
  for (Device& device : fabric.devices)
    rising(device.fc4_types, same);
  rising(fabric.devices, [](const Device& device) { return device.port_wwn; });
}

}  // namespace switch_sim
