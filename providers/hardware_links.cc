#include "providers/hardware_links.h"

#include <cim_utils/wwn_rules.h>

#include <unordered_map>

#include "providers/wwn.h"
#include "providers/zoning_service.h"

namespace vexor::providers {
namespace {

bool is_class(const ObjectName& object, const char* name) {
  return same_name(object.class_name().c_str(), name);
}

PhysicalSwitch own_switch(int32_t q) {
  const wwn_ own = own_switch_wwn(q);
  return switch_with_wwn(own, own);
}

bool names_switch(const ObjectName& object, const PhysicalSwitch& device) {
  const char* name = object.text("Name");
  return name != nullptr && std::strcmp(name, device.wwn) == 0;
}

// ---- modules and ports ----

// Copied, since the record is packed.
uint32_t number_of(const Module& module) {
  return module.row.module_number;
}

std::unordered_map<uint32_t, Module> modules_by_number(int32_t q) {
  std::unordered_map<uint32_t, Module> found;
  for (const Module& module : modules(q))
    found.emplace(number_of(module), module);
  return found;
}

void add_module_port(const std::unordered_map<uint32_t, Module>& modules, const OwnPort& port,
                     std::vector<LinkedPair>& found) {
  uint32_t number = 0;
  if (!module_number_of(port.info->if_index, number)) return;
  const auto module = modules.find(number);
  if (module != modules.end()) found.push_back({module->second, port});
}

// ---- systems of ports ----

// The switch that a port's WWN tells, in a VSAN or (0) as a device. Result: false without one.
bool switch_of_port(uint32_t vsan, const wwn_& port_wwn, wwn_& wwn) {
  wwn = {};
  return wwn_cim_get_switch_wwn_from_port_wwn(vsan, &wwn, &port_wwn) == 0;
}

void add_device_of(const LinkEnd& end, Switches& switches, std::vector<LinkedPair>& found) {
  const wwn_& own = switches.own();
  const wwn_ device = device_wwn_of(end.switch_wwn);
  const bool is_own_device = end.physical && same_wwn(device, own);
  if (!is_own_device && !switches.has(end.link.word_0, end.switch_wwn)) return;
  if (end.physical) {
    found.push_back({switch_with_wwn(device, own), end});
  } else {
    found.push_back({switch_in_vsan(end.switch_wwn, own), end});
  }
}

// Ports of devices belong to no switch, and those of a switch that the configuration server does
// not tell of to none that there is an object of.
void add_device_of(const Attachment& side, Switches& switches, std::vector<LinkedPair>& found) {
  const wwn_& own = switches.own();
  const uint32_t vsan = side.entry->vsan_index;
  const wwn_ port_wwn = side.entry->fabric_port_wwn;
  wwn_ device, shown;
  if (!side.fabric_side || !switch_of_port(0, port_wwn, device) ||
      !switch_of_port(vsan, port_wwn, shown))
    return;
  if (!side.physical) {
    if (switches.has(vsan, shown)) found.push_back({switch_in_vsan(shown, own), side});
  } else if (same_wwn(device, own) || switches.has(vsan, device)) {
    found.push_back({switch_with_wwn(device, own), side});
  }
}

void add_device_of(const OwnPort& port, Switches& switches, std::vector<LinkedPair>& found) {
  found.push_back({switch_with_wwn(switches.own(), switches.own()), port});
}

void add_devices_of_own_switch(int32_t q, Switches& switches, std::vector<LinkedPair>& found) {
  for (const Module& module : modules(q))
    found.push_back({switch_with_wwn(switches.own(), switches.own()), module});
  for (const OwnPort& port : all_own_ports(q))
    add_device_of(port, switches, found);
}

void add_devices_of_links(int32_t q, Switches& switches, std::vector<LinkedPair>& found) {
  const std::vector<uint32_t> vsans = running_vsans(q);
  for (const LinkEnd& end : link_ends(q, vsans))
    add_device_of(end, switches, found);
  for (const Attachment& side : attachments(registrations(q, vsans)))
    add_device_of(side, switches, found);
}

// ---- parts of switches ----

void add_part(const fcs_cim_ie_& element, const wwn_& own, std::vector<LinkedPair>& found) {
  const wwn_ shown = element.wwn;
  found.push_back({switch_with_wwn(device_wwn_of(shown), own), SwitchPart{shown}});
}

// ---- VSANs ----

void add_zone_capabilities(uint32_t vsan, std::vector<LinkedPair>& found) {
  found.push_back({ServiceOfZones{vsan}, CapabilitiesOfZones{vsan}});
}

}  // namespace

// ---- product and chassis ----

std::vector<LinkedPair> product_parts(int32_t) {
  return {{Product{}, Chassis{}}};
}

std::vector<LinkedPair> product_parts_of(int32_t q, int, const ObjectName&) {
  return product_parts(q);
}

std::vector<LinkedPair> switch_packages(int32_t q) {
  return {{Chassis{}, own_switch(q)}};
}

std::vector<LinkedPair> switch_packages_of(int32_t q, int, const ObjectName&) {
  return switch_packages(q);
}

// ---- what is made of what ----

std::vector<LinkedPair> realized(int32_t q) {
  std::vector<LinkedPair> found;
  for (const Module& module : modules(q))
    found.push_back({Chassis{}, module});
  for (const OwnPort& port : all_own_ports(q))
    found.push_back({PhysicalPort{port}, port});
  return found;
}

std::vector<LinkedPair> realized_of(int32_t q, int, const ObjectName& object) {
  std::vector<LinkedPair> found;
  const bool of_chassis = is_class(object, "VEXOR_PhysicalPackage");
  if (of_chassis || is_class(object, "VEXOR_LogicalModule")) {
    for (const Module& module : of_chassis ? modules(q) : modules_named(q, object))
      found.push_back({Chassis{}, module});
    return found;
  }
  for (const PhysicalPort& side : physical_ports_named(q, object))
    found.push_back({side, side.port});
  for (const OwnPort& port : own_ports_like(q, object))
    found.push_back({PhysicalPort{port}, port});
  return found;
}

std::vector<LinkedPair> module_ports(int32_t q) {
  std::vector<LinkedPair> found;
  const auto modules = modules_by_number(q);
  for (const OwnPort& port : all_own_ports(q))
    add_module_port(modules, port, found);
  return found;
}

std::vector<LinkedPair> module_ports_of(int32_t q, int end, const ObjectName& object) {
  std::vector<LinkedPair> found;
  if (end == 0) {
    std::unordered_map<uint32_t, Module> named;
    for (const Module& module : modules_named(q, object))
      named.emplace(number_of(module), module);
    if (named.empty() || named.begin()->second.row.num_ports == 0) return found;
    for (const OwnPort& port : all_own_ports(q))
      add_module_port(named, port, found);
    return found;
  }
  const std::vector<OwnPort> ports = own_ports_like(q, object);
  uint32_t number = 0;
  if (ports.empty() || !module_number_of(ports[0].info->if_index, number)) return found;
  add_module_port(modules_by_number(q), ports[0], found);
  return found;
}

// ---- systems and their devices ----

std::vector<LinkedPair> system_devices(int32_t q) {
  std::vector<LinkedPair> found;
  Switches switches(q);
  add_devices_of_own_switch(q, switches, found);
  add_devices_of_links(q, switches, found);
  return found;
}

std::vector<LinkedPair> system_devices_of(int32_t q, int end, const ObjectName& object) {
  std::vector<LinkedPair> found;
  Switches switches(q);
  const PhysicalSwitch own = switch_with_wwn(switches.own(), switches.own());
  if (end == 0) {
    if (names_switch(object, own)) add_devices_of_own_switch(q, switches, found);
    add_devices_of_links(q, switches, found);
    return found;
  }
  if (is_class(object, "VEXOR_LogicalModule")) {
    for (const Module& module : modules_named(q, object))
      found.push_back({own, module});
    return found;
  }
  for (const Port& port : ports_like(q, object))
    std::visit([&](const auto& form) { add_device_of(form, switches, found); }, port);
  return found;
}

std::vector<LinkedPair> hosted_parts(int32_t q) {
  std::vector<LinkedPair> found;
  const wwn_ own = own_switch_wwn(q);
  for (const fcs_cim_ie_& element : logical_switches(q))
    add_part(element, own, found);
  return found;
}

std::vector<LinkedPair> hosted_parts_of(int32_t q, int end, const ObjectName& object) {
  if (end == 0) return hosted_parts(q);
  std::vector<LinkedPair> found;
  const wwn_ own = own_switch_wwn(q);
  for (const fcs_cim_ie_& element : logical_switches_named(q, object))
    add_part(element, own, found);
  return found;
}

// ---- capabilities and settings ----

std::vector<LinkedPair> element_capabilities(int32_t q) {
  std::vector<LinkedPair> found = {{own_switch(q), SwitchCapabilities{}}};
  for (const OwnPort& port : own_ports(q, PortKind::fibre_channel))
    found.push_back({port, PortCapabilities{port}});
  for (const ZoneService& service : zone_services(q))
    add_zone_capabilities(service.vsan, found);
  return found;
}

std::vector<LinkedPair> element_capabilities_of(int32_t q, int, const ObjectName& object) {
  std::vector<LinkedPair> found;
  if (is_class(object, "VEXOR_FCPort")) {
    for (const OwnPort& port : own_ports_like(q, object))
      found.push_back({port, PortCapabilities{port}});
  } else if (is_class(object, "VEXOR_FCPortCapabilities")) {
    for (const OwnPort& port : own_ports_with_id(q, object))
      found.push_back({port, PortCapabilities{port}});
  } else if (is_class(object, kZoneServiceClass)) {
    for (const ZoneService& service : zone_services_named(q, object))
      add_zone_capabilities(service.vsan, found);
  } else if (is_class(object, kZoneCapabilitiesClass)) {
    for (const ZoneService& service : zone_capabilities_named(q, object))
      add_zone_capabilities(service.vsan, found);
  } else if (is_class(object, "VEXOR_PhysicalComputerSystem") ||
             is_class(object, "VEXOR_FCSwitchCapabilities")) {
    found.push_back({own_switch(q), SwitchCapabilities{}});
  }
  return found;
}

std::vector<LinkedPair> element_settings(int32_t q) {
  std::vector<LinkedPair> found = {{own_switch(q), SwitchSettings{}}};
  for (const OwnPort& port : own_ports(q, PortKind::fibre_channel))
    found.push_back({port, PortSettings{port}});
  return found;
}

std::vector<LinkedPair> element_settings_of(int32_t q, int, const ObjectName& object) {
  std::vector<LinkedPair> found;
  if (is_class(object, "VEXOR_FCPort")) {
    for (const OwnPort& port : own_ports_like(q, object))
      found.push_back({port, PortSettings{port}});
  } else if (is_class(object, "VEXOR_FCPortSettings")) {
    for (const OwnPort& port : own_ports_with_id(q, object))
      found.push_back({port, PortSettings{port}});
  } else if (is_class(object, "VEXOR_PhysicalComputerSystem") ||
             is_class(object, "VEXOR_FCSwitchSettings")) {
    found.push_back({own_switch(q), SwitchSettings{}});
  }
  return found;
}

}  // namespace vexor::providers
