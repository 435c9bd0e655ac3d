#include "providers/port_attachments.h"

#include <cim_utils/cmpi_ports.h>
#include <cim_utils/name_server.h>

#include <unordered_set>

#include "providers/port_blocks.h"
#include "providers/port_links.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

constexpr size_t kWwnRoom = 17;

// The entries of an array, which all of them keep.
void add_registrations(ns_api_register_req_* entries, int32_t count,
                       std::vector<Registration>& found) {
  const std::shared_ptr<const ns_api_register_req_> owner(entries, FreeCBlock());
  for (int32_t i = 0; entries != nullptr && i < count; ++i)
    found.emplace_back(owner, entries + i);
}

bool is_fabric_side(int32_t code) {
  return code == NS_CIM_FABRIC_SIDE || code == NS_CIM_ISCSI_FABRIC_SIDE;
}

// Of the switch that the library names beside an attachment.
std::string system_of(const Attachment& side) {
  wwn_ wwn{};
  const uint32_t vsan = side.physical ? 0 : side.entry->vsan_index;
  const wwn_ port_wwn = side.entry->port_wwn;
  return wwn_cim_get_switch_wwn_from_port_wwn(vsan, &wwn, &port_wwn) == 0 ? text_of(wwn) : "";
}

// What tells two ports of attachments apart.
std::string identity(const Attachment& side) {
  char name[CIM_NS_LINK_NAME_ROOM] = {};
  if (side.physical) {
    ns_cim_get_physical_link_name(side.entry.get(), name, side.fabric_side ? 1 : 0);
  } else {
    ns_cim_get_link_name(side.entry.get(), name, side.fabric_side ? 1 : 0);
  }
  return system_of(side) + " " + name;
}

std::string endpoint_identity(const Attachment& side) {
  char name[CIM_NS_LINK_NAME_ROOM] = {};
  ns_cim_get_pe_link_name(side.entry.get(), name, side.fabric_side ? 1 : 0);
  return name;
}

template <class Identity>
void add_once(const Attachment& side, Identity identity, std::unordered_set<std::string>& listed,
              std::vector<Attachment>& found) {
  if (listed.insert(identity(side)).second) found.push_back(side);
}

// One side of each, each once.
std::vector<Attachment> sides(const std::vector<Registration>& entries, bool fabric_side,
                              bool physical) {
  std::vector<Attachment> found;
  std::unordered_set<std::string> listed;
  for (const Registration& entry : entries)
    add_once({entry, fabric_side, physical}, identity, listed, found);
  return found;
}

// What is registered with the WWN of a device's port, or at a switch port, in a VSAN.
std::vector<Registration> registered(int32_t q, uint32_t vsan, const wwn_& wwn, bool fabric_side) {
  int32_t count = 0;
  ns_api_register_req_* entries = nullptr;
  if (fabric_side) {
    ns_cim_get_fxport_entries_with_wwn_byte_array(q, vsan, wwn.bytes, &count, &entries);
  } else {
    ns_cim_get_node_or_nxport_with_wwn_byte_array(q, vsan, wwn.bytes, 0, &count, &entries);
  }
  std::vector<Registration> found;
  add_registrations(entries, count, found);
  return found;
}

// The same in every VSAN, by the code of a link name.
std::vector<Registration> registered_anywhere(int32_t q, const wwn_& wwn, int32_t code) {
  GSList* list = nullptr;
  ns_cim_get_all_name_server_entries_with_wwn(q, wwn.bytes, code, 0, 0, &list);
  const GListOwner owner(list);
  std::vector<Registration> found;
  for (const GSList* node = list; node != nullptr; node = node->next)
    found.push_back(std::make_shared<const ns_api_register_req_>(
        *static_cast<const ns_api_register_req_*>(node->data)));
  return found;
}

}  // namespace

std::vector<Registration> registrations(int32_t q, const std::vector<uint32_t>& vsans) {
  std::vector<Registration> found;
  for (const uint32_t vsan : vsans) {
    int32_t count = 0;
    ns_api_register_req_* entries = nullptr;
    ns_cim_get_all_nodes_or_ports_in_vsan(q, vsan, 0, &count, &entries);
    add_registrations(entries, count, found);
  }
  return found;
}

std::vector<Attachment> attachments(const std::vector<Registration>& entries) {
  std::vector<Attachment> found;
  std::unordered_set<std::string> listed;
  for (const Registration& entry : entries)
    for (const bool fabric_side : {true, false})
      for (const bool physical : {false, true})
        add_once({entry, fabric_side, physical}, identity, listed, found);
  return found;
}

std::vector<Attachment> attachments_named(int32_t q, const char* device_id) {
  int32_t code = 0;
  int32_t vsan = 0;
  char text[kWwnRoom] = {};
  wwn_ wwn;
  if (ns_cim_get_fields_from_physical_name(device_id, &code, text) == 0 && read_wwn(text, wwn))
    return sides(registered_anywhere(q, wwn, code), is_fabric_side(code), true);
  if (ns_cim_get_fields_from_name(device_id, &code, &vsan, text) == 0 && read_wwn(text, wwn))
    return sides(registered(q, static_cast<uint32_t>(vsan), wwn, is_fabric_side(code)),
                 is_fabric_side(code), false);
  return {};
}

CMPIObjectPath* attachment_reference(const Target& target, const Attachment& side) {
  return fcport_fill_reference_ns(target.class_name, target.name_space, side.entry.get(),
                                  side.physical, side.fabric_side, target.broker);
}

CMPIInstance* attachment_instance(const Target& target, const Attachment& side) {
  return fcport_build_instance_ns(target.class_name, target.name_space, side.entry.get(),
                                  side.physical, side.fabric_side, target.properties,
                                  target.broker);
}

// ---- endpoints ----

std::vector<Attachment> attachment_endpoints(const std::vector<Registration>& entries) {
  std::vector<Attachment> found;
  std::unordered_set<std::string> listed;
  for (const Registration& entry : entries)
    for (const bool fabric_side : {true, false})
      add_once({entry, fabric_side, false}, endpoint_identity, listed, found);
  return found;
}

std::vector<Attachment> attachment_endpoints_named(int32_t q, const char* name) {
  int32_t code = 0;
  int32_t vsan = 0;
  char text[kWwnRoom] = {};
  wwn_ wwn;
  if (ns_cim_get_fields_from_name(name, &code, &vsan, text) != 0 || !read_wwn(text, wwn)) return {};
  // The device's WWN stands in the names of both sides.
  const std::vector<Registration> entries = registered(q, static_cast<uint32_t>(vsan), wwn, false);
  if (entries.empty()) return {};
  return {Attachment{entries.front(), is_fabric_side(code), false}};
}

CMPIObjectPath* attachment_endpoint_reference(const Target& target, const Attachment& side) {
  return pe_fill_reference_ns(target.class_name, target.name_space, side.entry.get(),
                              side.fabric_side, target.broker);
}

CMPIInstance* attachment_endpoint_instance(const Target& target, const Attachment& side) {
  return pe_build_instance_ns(target.class_name, target.name_space, side.entry.get(),
                              side.fabric_side, target.properties, target.broker);
}

// ---- VEXOR_LogicalPortGroup ----

std::vector<Node> nodes(int32_t q) {
  std::vector<Node> found;
  std::unordered_set<uint64_t> listed;
  for (const Registration& entry : registrations(q, running_vsans(q)))
    if (listed.insert(number_of(entry->node_wwn)).second) found.push_back({entry->node_wwn});
  return found;
}

std::vector<Node> nodes_named(int32_t q, const ObjectName& name) {
  wwn_ wwn;
  if (!read_wwn(name.text("InstanceID"), wwn)) return {};
  if (registered_anywhere(q, wwn, NS_CIM_NODE).empty()) return {};
  return {Node{wwn}};
}

CMPIObjectPath* node_reference(const Target& target, const Node& node) {
  return logical_port_group_fill_reference(target.class_name, target.name_space, &node.wwn,
                                           target.broker);
}

CMPIInstance* node_instance(const Target& target, const Node& node) {
  return logical_port_group_build_instance(target.class_name, target.name_space, &node.wwn,
                                           target.properties, target.broker);
}

}  // namespace vexor::providers
