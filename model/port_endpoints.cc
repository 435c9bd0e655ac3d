#include "model/port_endpoints.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/fspf.h>
#include <cim_utils/name_server.h>

#include <algorithm>

#include "model/port_texts.h"

namespace cim_utils::model {
namespace {

constexpr uint16_t kFibreChannel = 56;
constexpr char kNoName[] = "none";
constexpr char kNoSwitch[] = "";

// The two keys of an endpoint that its record tells; empty until they are written.
struct EndpointKeys {
  char name[std::max<size_t>(CIM_FSPF_LINK_NAME_ROOM, CIM_NS_LINK_NAME_ROOM)] = {};
  char system_name[CIM_WWN_TEXT_ROOM] = {};
};

// A link name counts when it was written: that of an interface whose type is not known is none.
void name_unless(EndpointKeys& keys, bool failed) {
  if (failed || keys.name[0] == '\0') std::snprintf(keys.name, sizeof keys.name, "%s", kNoName);
}

EndpointKeys keys_of(int32_t queue, const fspfLinkEntry& link, bool local) {
  EndpointKeys keys;
  name_unless(keys, fspf_cim_get_link_name(&link, keys.name, local ? 1 : 0) != 0);
  const uint32_t domain = local ? link.domain : link.remote_domain;
  wwn_ wwn;
  // The first word of a link is the only place where FSPF tells its VSAN.
  if (dm_cim_get_switch_wwn_by_domain_id(queue, link.word_0, static_cast<uint8_t>(domain), &wwn) ==
      0)
    cim_sprintf_wwn(keys.system_name, &wwn);
  return keys;
}

EndpointKeys keys_of(const pm_port_info_& port) {
  EndpointKeys keys;
  cim_sprintf_wwn(keys.name, &port.wwn);
  switch_text(keys.system_name, 0, port.wwn, kNoSwitch);
  return keys;
}

EndpointKeys keys_of(const ns_api_register_req_& entry, bool fabric_side) {
  EndpointKeys keys;
  name_unless(keys, ns_cim_get_pe_link_name(&entry, keys.name, fabric_side ? 1 : 0) != 0);
  // The switch that the device's port WWN tells, which is rarely one: deliberately not the fabric
  // port's.
  switch_text(keys.system_name, entry.vsan_index, entry.port_wwn, kNoSwitch);
  return keys;
}

void write_keys(ObjectWriter& out, const char* cls, const EndpointKeys& keys) {
  out.text("Name", keys.name);
  out.text("SystemName", keys.system_name);
  out.text("SystemCreationClassName", kLogicalSwitchClass);
  out.text("CreationClassName", cls);
}

// The record is looked at, and a service asked, once there is a path to write to.
template <class KeysOfRecord>
Ref reference_of(Builder& b, const char* cls, const char* ns, KeysOfRecord keys) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  write_keys(*out, cls, keys());
  return b.close_path(out);
}

template <class KeysOfRecord>
Object instance_of(Builder& b, const char* cls, const char* ns, const char** properties,
                   KeysOfRecord keys_of_record) {
  const KeyNames names(b, {"Name", "SystemName", "SystemCreationClassName", "CreationClassName"});
  if (!names) return {};
  ObjectWriter* out = b.open_instance(cls, ns, names, Filter::applied, properties);
  if (out == nullptr) return {};
  const EndpointKeys keys = keys_of_record();
  write_keys(*out, cls, keys);
  out->uint16("ProtocolIFType", kFibreChannel);
  if (b.instances_have_paths()) out->path(reference_of(b, cls, ns, [&keys] { return keys; }));
  return b.close_instance(out);
}

}  // namespace

Ref endpoint_reference(Builder& b, const char* cls, const char* ns, int32_t queue,
                       const fspfLinkEntry* link, bool local) {
  if (link == nullptr) return {};
  return reference_of(b, cls, ns, [=] { return keys_of(queue, *link, local); });
}

Object endpoint_instance(Builder& b, const char* cls, const char* ns, int32_t queue,
                         const fspfLinkEntry* link, bool local, const char** properties) {
  if (link == nullptr) return {};
  return instance_of(b, cls, ns, properties, [=] { return keys_of(queue, *link, local); });
}

Ref endpoint_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port) {
  if (port == nullptr) return {};
  return reference_of(b, cls, ns, [=] { return keys_of(*port); });
}

Object endpoint_instance(Builder& b, const char* cls, const char* ns, const pm_port_info_* port,
                         const char** properties) {
  if (port == nullptr) return {};
  return instance_of(b, cls, ns, properties, [=] { return keys_of(*port); });
}

Ref endpoint_reference(Builder& b, const char* cls, const char* ns,
                       const ns_api_register_req_* entry, bool fabric_side) {
  if (entry == nullptr) return {};
  return reference_of(b, cls, ns, [=] { return keys_of(*entry, fabric_side); });
}

Object endpoint_instance(Builder& b, const char* cls, const char* ns,
                         const ns_api_register_req_* entry, bool fabric_side,
                         const char** properties) {
  if (entry == nullptr) return {};
  return instance_of(b, cls, ns, properties, [=] { return keys_of(*entry, fabric_side); });
}

Ref port_group_reference(Builder& b, const char* cls, const char* ns, const char* key) {
  if (key == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("InstanceID", key);
  return b.close_path(out);
}

Ref port_group_reference(Builder& b, const char* cls, const char* ns, const wwn_* wwn) {
  if (wwn == nullptr) return {};
  return port_group_reference(b, cls, ns, WwnText(*wwn).text);
}

Object port_group_instance(Builder& b, const char* cls, const char* ns, const char* key,
                           const char** properties) {
  if (key == nullptr) return {};
  const KeyNames names(b, {"InstanceID"});
  if (!names) return {};
  ObjectWriter* out = b.open_instance(cls, ns, names, Filter::applied, properties);
  if (out == nullptr) return {};
  out->text("InstanceID", key);
  out->text("ElementName", key);
  if (b.instances_have_paths()) out->path(port_group_reference(b, cls, ns, key));
  return b.close_instance(out);
}

Object port_group_instance(Builder& b, const char* cls, const char* ns, const wwn_* wwn,
                           const char** properties) {
  if (wwn == nullptr) return {};
  return port_group_instance(b, cls, ns, WwnText(*wwn).text, properties);
}

}  // namespace cim_utils::model
