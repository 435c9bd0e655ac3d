// Reads the part of a fabric file about line cards, interfaces, links and devices.
#include <map>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/port_file.h"
#include "simulator/fabric/port_words.h"

namespace switch_sim {
namespace {

const json::Array* find_list(const ObjectReader& object, const char* key, const char* what) {
  const Value* value = object.find(key);
  return value != nullptr ? &expect<json::Array>(*value, what) : nullptr;
}

// Where a key of an element stands; the element itself when it is left out.
Position position_of(const Value& element, std::string_view key) {
  if (const auto* object = std::get_if<json::Object>(&element.data)) {
    for (const json::Member& member : *object) {
      if (member.key == key) return member.value.position;
    }
  }
  return element.position;
}

[[noreturn]] void tell(const ElementProblem& problem, const Value& element) {
  throw Problem{position_of(element, problem.key), problem.message};
}

std::array<uint8_t, 4> read_ipv4(const ObjectReader& object) {
  const Value* value = object.find("address");
  std::array<uint8_t, 4> address{};
  if (value == nullptr) return address;
  const auto parsed = parse_address(expect<std::string>(*value, "a text"));
  if (!parsed || parsed->family != IpAddress::Family::ipv4) {
    throw Problem{value->position, "expected an IPv4 address"};
  }
  std::copy_n(parsed->bytes.begin(), address.size(), address.begin());
  return address;
}

Wwn read_wwn(const Value& value) {
  const auto wwn = parse_wwn(expect<std::string>(value, "a WWN"));
  if (!wwn) throw Problem{value.position, "expected a WWN such as \"21:00:00:11:22:33:44:55\""};
  return *wwn;
}

uint32_t read_interface_name(const Value& value) {
  const auto& name = expect<std::string>(value, "the name of an interface");
  const auto if_index = parse_interface_name(name);
  if (!if_index) throw Problem{value.position, quote(name) + " is not the name of an interface"};
  return *if_index;
}

Module read_module(const Value& value) {
  const ObjectReader object(value, "a module", {"slot", "kind", "state", "ports"});
  Module made;
  made.slot = read_number<uint32_t>(object.at("slot"), 1, kLargestModuleSlot);
  object.at("kind");
  made.kind = read_word(object, "kind", kModuleKindWords, made.kind);
  made.state = read_word(object, "state", kModuleStateWords, made.state);
  made.ports = read_number<uint32_t>(object, "ports", 0, kMostFcPorts, 0);
  return made;
}

// The keys that an interface may have, by its type.
std::vector<std::string_view> keys_of(uint32_t if_index) {
  switch (static_cast<InterfaceType>(type_bits(if_index))) {
    case InterfaceType::fibre_channel:
      return {"name", "alias", "admin_state", "vsan", "mode", "speed", "optics", "counters"};
    case InterfaceType::ethernet:
    case InterfaceType::management:
      return {"name", "alias", "admin_state", "cable", "mtu", "address"};
    case InterfaceType::port_channel:
      if (is_ethernet_channel(if_index)) {
        return {"name", "alias", "admin_state", "mtu", "address", "members"};
      }
      return {"name", "alias", "admin_state", "vsan", "mode", "members"};
    case InterfaceType::fcip:
      return {"name", "admin_state", "vsan", "mode", "ethernet"};
    case InterfaceType::iscsi:
      return {"name", "admin_state", "vsan"};
    default:
      return {"name"};
  }
}

PortMode read_mode(const ObjectReader& object) {
  // The words stand in an order of their own, counted from 1.
  const auto place = read_word(object, "mode", kAdminModeWords, size_t{1});
  return kAdminModes.at(place - 1);
}

std::vector<uint32_t> read_members(const ObjectReader& object) {
  std::vector<uint32_t> members;
  if (const auto* list = find_list(object, "members", "a list of interfaces")) {
    for (const Value& member : *list)
      members.push_back(read_interface_name(member));
  }
  return members;
}

Interface read_interface(const Value& value) {
  const ObjectReader any(value, "an interface",
                         {"name", "alias", "admin_state", "vsan", "mode", "speed", "optics",
                          "counters", "cable", "mtu", "address", "ethernet", "members"});
  Interface made;
  made.if_index = read_interface_name(any.at("name"));
  const ObjectReader object(value, "this interface", keys_of(made.if_index));
  if (const Value* alias = object.find("alias")) made.alias = expect<std::string>(*alias, "a text");
  made.admin_state = read_word(object, "admin_state", kAdminStateWords, made.admin_state);
  made.vsan = read_number<uint32_t>(object, "vsan", 1, kLargestVsan, made.vsan);
  made.mode = read_mode(object);
  made.speed = read_number<uint32_t>(object, "speed", 0, 2000, made.speed);
  made.optics = read_word(object, "optics", kOpticsWords, made.optics);
  made.counters = read_word(object, "counters", kCounterWords, made.counters);
  made.cable = read_flag(object, "cable", made.cable);
  made.mtu = read_number<uint16_t>(object, "mtu", 576, 9216, made.mtu);
  made.address = read_ipv4(object);
  if (made.if_index >> 24 == static_cast<uint32_t>(InterfaceType::fcip)) {
    made.ethernet = read_interface_name(object.at("ethernet"));
  }
  made.members = read_members(object);
  return made;
}

std::pair<uint8_t, uint8_t> read_fc_id(const Value& value) {
  const auto& text = expect<std::string>(value, "area and port of an FC ID");
  const bool digits =
      text.size() == 4 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
  if (!digits) {
    throw Problem{value.position, "expected area and port as four hexadecimal digits"};
  }
  const unsigned long number = std::stoul(text, nullptr, 16);
  return {static_cast<uint8_t>(number >> 8), static_cast<uint8_t>(number)};
}

LinkEnd read_end(const Value& value, const SwitchReference& reference) {
  const ObjectReader object(value, "an end of a link", {"switch", "interface"});
  return {reference(object.at("switch")), read_interface_name(object.at("interface"))};
}

void read_trunk(const Value& value, Link& link) {
  link.trunking = true;
  if (const auto* word = std::get_if<std::string>(&value.data); word && *word == "all") return;
  const auto& list = expect<json::Array>(value, "\"all\" or a list of VSAN numbers");
  if (list.empty()) throw Problem{value.position, "a trunk carries at least one VSAN"};
  for (const Value& vsan : list)
    link.vsans.push_back(read_number<uint32_t>(vsan, 1, kLargestVsan));
}

Link read_link(const Value& value, const SwitchReference& reference) {
  const ObjectReader object(value, "a link", {"ends", "trunk"});
  const auto& ends = expect<json::Array>(object.at("ends"), "the two ends of a link");
  if (ends.size() != 2) throw Problem{object.position_of("ends"), "a link has two ends"};
  Link made;
  made.ends = {read_end(ends[0], reference), read_end(ends[1], reference)};
  if (const Value* trunk = object.find("trunk")) read_trunk(*trunk, made);
  return made;
}

Device read_device(const Value& value, const SwitchReference& reference) {
  const ObjectReader object(value, "a device",
                            {"name", "port_wwn", "node_wwn", "kind", "switch", "interface", "fc_id",
                             "fc4_types", "address", "registered_twice"});
  Device made;
  if (const Value* name = object.find("name")) made.name = expect<std::string>(*name, "a text");
  made.port_wwn = read_wwn(object.at("port_wwn"));
  made.node_wwn = read_wwn(object.at("node_wwn"));
  made.kind = read_word(object, "kind", kDeviceKindWords, made.kind);
  made.attached_to = {reference(object.at("switch")), read_interface_name(object.at("interface"))};
  std::tie(made.area, made.port) = read_fc_id(object.at("fc_id"));
  if (const auto* types = find_list(object, "fc4_types", "a list of FC-4 types")) {
    for (const Value& type : *types)
      made.fc4_types.push_back(read_number<uint8_t>(type, 0, 255));
  }
  made.address = read_ipv4(object);
  made.registered_twice = read_flag(object, "registered_twice", false);
  return made;
}

}  // namespace

void read_ports(const ObjectReader& object, Switch& element) {
  if (const auto* list = find_list(object, "modules", "a list of modules")) {
    for (const Value& value : *list)
      element.modules.push_back(read_module(value));
    if (const auto problem = problem_of_modules(element)) tell(*problem, (*list)[problem->element]);
  }
  std::sort(element.modules.begin(), element.modules.end(),
            [](const Module& left, const Module& right) { return left.slot < right.slot; });

  std::map<uint32_t, const Value*> values;
  if (const auto* list = find_list(object, "interfaces", "a list of interfaces")) {
    for (const Value& value : *list) {
      element.interfaces.push_back(read_interface(value));
      const uint32_t if_index = element.interfaces.back().if_index;
      if (!values.emplace(if_index, &value).second) {
        throw Problem{position_of(value, "name"), "the interface is there already"};
      }
    }
  }
  std::sort(
      element.interfaces.begin(), element.interfaces.end(),
      [](const Interface& left, const Interface& right) { return left.if_index < right.if_index; });
  if (const auto problem = problem_of_interfaces(element)) {
    tell(*problem, *values.at(element.interfaces[problem->element].if_index));
  }
  for (Interface& interface : element.interfaces)
    std::sort(interface.members.begin(), interface.members.end());
  add_missing_ports(element);
}

void read_links_and_devices(const ObjectReader& object, const SwitchReference& reference,
                            Fabric& fabric) {
  if (const auto* list = find_list(object, "links", "a list of links")) {
    for (const Value& value : *list)
      fabric.links.push_back(read_link(value, reference));
    if (const auto problem = problem_of_links(fabric)) tell(*problem, (*list)[problem->element]);
  }
  if (const auto* list = find_list(object, "devices", "a list of devices")) {
    for (const Value& value : *list)
      fabric.devices.push_back(read_device(value, reference));
    if (const auto problem = problem_of_devices(fabric)) tell(*problem, (*list)[problem->element]);
  }
  fabric.counter_seed = read_number<uint64_t>(object, "counter_seed", 0, INT64_MAX, uint64_t{1});
}

}  // namespace switch_sim
