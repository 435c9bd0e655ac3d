#include "providers/linked_object.h"

#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/system.h>
#include <cim_utils/wwn_rules.h>

#include <cstring>

#include "providers/queue.h"
#include "providers/switch_settings.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

const char* class_of(const PhysicalSwitch&) {
  return "VEXOR_PhysicalComputerSystem";
}
const char* class_of(const SwitchPart&) {
  return "VEXOR_LogicalComputerSystem";
}
const char* class_of(const OwnPort& port) {
  return kind_of(port.info->if_index) == PortKind::ethernet ? "VEXOR_EthernetPort" : "VEXOR_FCPort";
}
const char* class_of(const LinkEnd&) {
  return "VEXOR_FCPort";
}
const char* class_of(const Attachment&) {
  return "VEXOR_FCPort";
}
const char* class_of(const Endpoint&) {
  return "VEXOR_ProtocolEndPoint";
}
const char* class_of(const Module&) {
  return "VEXOR_LogicalModule";
}
const char* class_of(const PhysicalPort&) {
  return "VEXOR_PhysicalElement";
}
const char* class_of(const Chassis&) {
  return "VEXOR_PhysicalPackage";
}
const char* class_of(const Product&) {
  return "VEXOR_Product";
}
const char* class_of(const SwitchCapabilities&) {
  return "VEXOR_FCSwitchCapabilities";
}
const char* class_of(const SwitchSettings&) {
  return "VEXOR_FCSwitchSettings";
}
const char* class_of(const PortCapabilities&) {
  return "VEXOR_FCPortCapabilities";
}
const char* class_of(const PortSettings&) {
  return "VEXOR_FCPortSettings";
}
const char* class_of(const Node&) {
  return "VEXOR_LogicalPortGroup";
}
const char* class_of(const ConnectivityCollection&) {
  return "VEXOR_ConnectivityCollection";
}
const char* class_of(const ServiceOfZones&) {
  return "VEXOR_ZoneService";
}
const char* class_of(const CapabilitiesOfZones&) {
  return "VEXOR_ZoneCapabilities";
}
const char* class_of(const RemoteAccessPoint&) {
  return "VEXOR_RemoteServiceAccessPoint";
}

// ---- paths ----

CMPIObjectPath* path_of(const Target& to, const PhysicalSwitch& device) {
  return physical_switch_reference(to, device);
}
CMPIObjectPath* path_of(const Target& to, const SwitchPart& part) {
  return switch_fill_reference_str(to.class_name, to.name_space, text_of(part.wwn).c_str(),
                                   to.broker);
}
CMPIObjectPath* path_of(const Target& to, const OwnPort& port) {
  return own_port_reference(to, port);
}
CMPIObjectPath* path_of(const Target& to, const LinkEnd& end) {
  return link_end_reference(to, end);
}
CMPIObjectPath* path_of(const Target& to, const Attachment& side) {
  return attachment_reference(to, side);
}
CMPIObjectPath* path_of(const Target& to, const Endpoint& endpoint) {
  return endpoint_reference(to, endpoint.port);
}
CMPIObjectPath* path_of(const Target& to, const Module& module) {
  return module_reference(to, module);
}
CMPIObjectPath* path_of(const Target& to, const PhysicalPort& port) {
  return physical_port_reference(to, port);
}
CMPIObjectPath* path_of(const Target& to, const Chassis& chassis) {
  return chassis_reference(to, chassis);
}
CMPIObjectPath* path_of(const Target& to, const Product& product) {
  return product_reference(to, product);
}
CMPIObjectPath* path_of(const Target& to, const SwitchCapabilities&) {
  return switch_capabilities_reference(to, OwnSwitch{});
}
CMPIObjectPath* path_of(const Target& to, const SwitchSettings&) {
  return switch_settings_reference(to, OwnSwitch{});
}
CMPIObjectPath* path_of(const Target& to, const PortCapabilities& capabilities) {
  return port_capabilities_reference(to, capabilities.port);
}
CMPIObjectPath* path_of(const Target& to, const PortSettings& settings) {
  return port_settings_reference(to, settings.port);
}
CMPIObjectPath* path_of(const Target& to, const Node& node) {
  return node_reference(to, node);
}
CMPIObjectPath* path_of(const Target& to, const ConnectivityCollection& collection) {
  return connectivity_collection_reference(to, collection);
}
CMPIObjectPath* path_of(const Target& to, const ServiceOfZones& service) {
  return zone_service_fill_reference(to.class_name, to.name_space, static_cast<int>(service.vsan),
                                     to.broker);
}
CMPIObjectPath* path_of(const Target& to, const CapabilitiesOfZones& capabilities) {
  return zone_cap_fill_reference(to.class_name, to.name_space,
                                 std::to_string(capabilities.vsan).c_str(), to.broker);
}
CMPIObjectPath* path_of(const Target& to, const RemoteAccessPoint& remote) {
  return rsap_fill_reference(to.class_name, to.name_space, remote.name.c_str(),
                             remote.system.c_str(), to.broker);
}

// ---- instances ----

CMPIInstance* made_of(const Target& to, const PhysicalSwitch& device) {
  return physical_switch_instance(to, device);
}
CMPIInstance* made_of(const Target& to, const SwitchPart& part) {
  fcs_cim_ie_ element{};
  if (fcs_cim_get_ie_entry(queue::handle(), 1, wwn_cim_get_vsan_index_from_wwn_str(part.wwn.bytes),
                           &part.wwn, &element) != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the fabric configuration server does not tell of switch %s",
                  text_of(part.wwn).c_str());
  return logical_switch_instance(to, element);
}
CMPIInstance* made_of(const Target& to, const OwnPort& port) {
  return own_port_instance(to, port);
}
CMPIInstance* made_of(const Target& to, const LinkEnd& end) {
  return link_end_instance(to, end);
}
CMPIInstance* made_of(const Target& to, const Attachment& side) {
  return attachment_instance(to, side);
}
CMPIInstance* made_of(const Target& to, const Endpoint& endpoint) {
  return endpoint_instance(to, endpoint.port);
}
CMPIInstance* made_of(const Target& to, const Module& module) {
  return module_instance(to, module);
}
CMPIInstance* made_of(const Target& to, const PhysicalPort& port) {
  return physical_port_instance(to, port);
}
CMPIInstance* made_of(const Target& to, const Chassis& chassis) {
  return chassis_instance(to, chassis);
}
CMPIInstance* made_of(const Target& to, const Product& product) {
  return product_instance(to, product);
}
CMPIInstance* made_of(const Target& to, const SwitchCapabilities&) {
  return switch_capabilities_instance(to, OwnSwitch{});
}
CMPIInstance* made_of(const Target& to, const SwitchSettings&) {
  return switch_settings_instance(to, OwnSwitch{});
}
CMPIInstance* made_of(const Target& to, const PortCapabilities& capabilities) {
  return port_capabilities_instance(to, capabilities.port);
}
CMPIInstance* made_of(const Target& to, const PortSettings& settings) {
  return port_settings_instance(to, settings.port);
}
CMPIInstance* made_of(const Target& to, const Node& node) {
  return node_instance(to, node);
}
CMPIInstance* made_of(const Target& to, const ConnectivityCollection& collection) {
  return connectivity_collection_instance(to, collection);
}
CMPIInstance* made_of(const Target& to, const ServiceOfZones& service) {
  return zone_service_build_instance(to.class_name, to.name_space, static_cast<int>(service.vsan),
                                     to.broker);
}
CMPIInstance* made_of(const Target& to, const CapabilitiesOfZones& capabilities) {
  return zone_cap_build_instance(to.class_name, to.name_space,
                                 std::to_string(capabilities.vsan).c_str(), to.broker);
}
CMPIInstance* made_of(const Target& to, const RemoteAccessPoint& remote) {
  return rsap_build_instance(to.class_name, to.name_space, remote.name.c_str(),
                             remote.system.c_str(), to.broker);
}

template <class Object>
Target with_class_of(const Object& object, Target target) {
  target.class_name = class_of(object);
  return target;
}

}  // namespace

CMPIObjectPath* linked_reference(const Target& target, const LinkedObject& object) {
  return std::visit(
      [&](const auto& of_kind) { return path_of(with_class_of(of_kind, target), of_kind); },
      object);
}

CMPIInstance* linked_instance(const Target& target, const LinkedObject& object) {
  return std::visit(
      [&](const auto& of_kind) { return made_of(with_class_of(of_kind, target), of_kind); },
      object);
}

std::vector<OwnPort> own_ports_like(int32_t q, const ObjectName& object) {
  const bool ethernet = same_name(object.class_name().c_str(), "VEXOR_EthernetPort");
  if (!ethernet && !same_name(object.class_name().c_str(), "VEXOR_FCPort")) return {};
  return own_ports_named(q, ethernet ? PortKind::ethernet : PortKind::fibre_channel, object);
}

std::vector<Port> ports_like(int32_t q, const ObjectName& object) {
  if (same_name(object.class_name().c_str(), "VEXOR_FCPort")) return ports_named(q, object);
  const std::vector<OwnPort> own = own_ports_like(q, object);
  return {own.begin(), own.end()};
}

std::vector<OwnPort> all_own_ports(int32_t q) {
  std::vector<OwnPort> found = own_ports(q, PortKind::fibre_channel);
  const std::vector<OwnPort> ethernet = own_ports(q, PortKind::ethernet);
  found.insert(found.end(), ethernet.begin(), ethernet.end());
  return found;
}

wwn_ own_switch_wwn(int32_t q) {
  wwn_ wwn{};
  if (system_cim_get_switch_wwn(q, &wwn) != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the switch identity service does not tell the switch's WWN");
  return wwn;
}

bool Switches::has(uint32_t vsan, const wwn_& wwn) {
  const auto [known, is_new] = known_.try_emplace({vsan, number_of(wwn)}, false);
  if (!is_new) return known->second;
  const auto is_told = [&](const wwn_& of) {
    fcs_cim_ie_ element{};
    return fcs_cim_get_ie_entry(q_, 1, vsan, &of, &element) == 0;
  };
  wwn_ shown = wwn;
  if (wwn_cim_get_vsan_index_from_wwn_str(wwn.bytes) == 0)
    wwn_cim_get_vsan_wwn_from_switch_unique_wwn(vsan, &shown, &wwn);
  known->second = is_told(shown) || (!same_wwn(shown, wwn) && is_told(wwn));
  return known->second;
}

PhysicalSwitch switch_with_wwn(const wwn_& wwn, const wwn_& own) {
  PhysicalSwitch made{{}, !same_wwn(wwn, own)};
  std::memcpy(made.wwn, text_of(wwn).c_str(), sizeof made.wwn);
  return made;
}

wwn_ device_wwn_of(const wwn_& shown) {
  wwn_ wwn = shown;
  wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&wwn, &shown);
  return wwn;
}

LinkedObject switch_in_vsan(const wwn_& shown, const wwn_& own) {
  const bool has_part =
      wwn_cim_isVexorWwn(&shown) != 0 && wwn_cim_get_vsan_index_from_wwn_str(shown.bytes) > 0;
  if (has_part) return SwitchPart{shown};
  return switch_with_wwn(shown, own);
}

}  // namespace vexor::providers
