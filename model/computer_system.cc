#include "model/computer_system.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/formats.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>
#include <cim_utils/wwn_rules.h>
#include <strings.h>
#include <unistd.h>

#include <cstdio>

#include "model/association.h"
#include "model/port_texts.h"
#include "model/switch_classes.h"

namespace cim_utils::model {
namespace {

constexpr uint16_t kEnabled = 2;
constexpr uint16_t kNotApplicable = 5;
constexpr uint16_t kDedicatedToOther = 2;
constexpr uint16_t kDedicatedToSwitching = 5;

// A switch that is described by its WWN text alone carries this number for its domain, whatever
// its domain is: in the start trace, in "OtherIdentifyingInfo", and in the query for its name.
// Deliberate: clients know every switch with the text "0".
constexpr uint8_t kUnknownDomain = 0;

bool is_physical(const char* cls) {
  return cls != nullptr && strcasecmp(cls, kPhysicalSwitchClass) == 0;
}

void write_text_array(ObjectWriter& out, const char* name, const char* value) {
  out.texts(name, {&value, 1});
}

void write_domain(ObjectWriter& out, int domain) {
  char text[12];
  std::snprintf(text, sizeof text, "%d", domain);
  write_text_array(out, "OtherIdentifyingInfo", text);
}

void write_dedicated(ObjectWriter& out, const char* cls) {
  const uint16_t value = is_physical(cls) ? kDedicatedToOther : kDedicatedToSwitching;
  out.uint16s("Dedicated", {&value, 1});
}

void write_dedicated_description(ObjectWriter& out, const char* cls) {
  write_text_array(out, "OtherDedicatedDescriptions",
                   is_physical(cls) ? "Not Dedicated" : "Dedicated");
}

void write_address(ObjectWriter& out, const char* address) {
  std::printf("IP Address %s\n", address);
  out.text("IPAddress", address);
}

void write_local_switch(ObjectWriter& out) {
  constexpr size_t kLongestName = 100;
  char host[kLongestName + 1] = {};
  gethostname(host, kLongestName);
  out.text("ElementName", host);
  out.boolean("PrimarySwitch", true);
  char address[256] = {};
  if (getIpAddress(address) == 0) write_address(out, address);
  out.uint16("EnabledState", kEnabled);
}

void write_remote_switch(ObjectWriter& out, int32_t queue, const char* wwn_text) {
  out.boolean("PrimarySwitch", false);
  // The query succeeds without a matching peer too, and then writes nothing.
  char address[48] = {};
  if (get_kfs_peer_ip(queue, wwn_text, address) == 0 && address[0] != '\0')
    write_address(out, address);
  char name[257] = {};
  get_remote_switchname(kUnknownDomain, name);
  if (name[0] != '\0') out.text("ElementName", name);
  out.uint16("EnabledState", kNotApplicable);
}

// What the record builders write first.
void write_identity(ObjectWriter& out, const char* cls, const char* wwn_text) {
  out.text("Name", wwn_text);
  out.text("NameFormat", "WWN");
  out.text("CreationClassName", cls);
  out.text("ElementName", wwn_text);
}

// What the record builders write behind "EnabledState". The second status, 0, is deliberate:
// clients read two of these instances and one of those made from a text.
void write_record_state(ObjectWriter& out, const char* cls, int domain) {
  write_domain(out, domain);
  write_text_array(out, "IdentifyingDescriptions", "DomainID");
  constexpr uint16_t kStatus[] = {2, 0};
  out.uint16s("OperationalStatus", kStatus);
  write_dedicated(out, cls);
}

// A switch shows a WWN of its own in each VSAN where it is a part of its own; only the maker's
// WWNs tell.
const char* class_of_part(const fcs_cim_ie_* element) {
  const bool in_vsan = element != nullptr && wwn_cim_isVexorWwn(&element->wwn) != 0 &&
                       wwn_cim_get_vsan_index_from_wwn_str(element->wwn.bytes) > 0;
  return in_vsan ? kLogicalSwitchClass : kPhysicalSwitchClass;
}

Ref own_switch_reference(Builder& b, const char* cls, const char* ns) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("InstanceID", CSgetName(b.queue()));
  return b.close_path(out);
}

uint16_t principal_priority(uint8_t configured) {
  switch (configured) {
    case 1:
      return 2;
    case 254:
      return 3;
    default:
      return 4;
  }
}

}  // namespace

Ref switch_reference(Builder& b, const char* cls, const char* ns, const char* wwn_text) {
  if (wwn_text == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::as_it_came);
  if (out == nullptr) return ref;
  out->text("Name", wwn_text);
  out->text("CreationClassName", cls);
  return b.close_path(out);
}

Ref switch_reference(Builder& b, const char* cls, const char* ns, const wwn_* wwn) {
  if (wwn == nullptr) return {};
  return switch_reference(b, cls, ns, WwnText(*wwn).text);
}

Ref switch_reference(Builder& b, const char* cls, const char* ns, const fcs_cim_ie_* element) {
  if (element == nullptr) return {};
  return switch_reference(b, cls, ns, WwnText(element->wwn).text);
}

Ref switch_reference(Builder& b, const char* cls, const char* ns,
                     const mts_dm_sw_dom_list_info_* entry) {
  if (entry == nullptr) return {};
  return switch_reference(b, cls, ns, WwnText(entry->switch_wwn).text);
}

Object switch_instance(Builder& b, const char* cls, const char* ns, const char* wwn_text,
                       uint8_t remote, const char** properties) {
  if (wwn_text == nullptr) return {};
  const KeyNames keys(b, {"Name", "CreationClassName"});
  if (!keys) return {};
  std::printf("providerutil:switch_build_instance_str() Start - dom id is %d, wwn_str is %s\n ",
              kUnknownDomain, wwn_text);
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, properties);
  if (out == nullptr) return {};

  out->text("PermanentAddress", wwn_text);
  out->text("Name", wwn_text);
  out->text("NameFormat", "WWN");
  out->text("CreationClassName", cls);
  mts_dm_sw_conf_ conf{};
  if (dm_cim_get_dmEntry(b.queue(), 1, 1, &conf) == 0) {
    if (remote == 0) {
      write_local_switch(*out);
    } else {
      write_remote_switch(*out, b.queue(), wwn_text);
    }
    write_domain(*out, kUnknownDomain);
  }
  write_text_array(*out, "IdentifyingDescriptions", "DomainID");
  constexpr uint16_t kOk[] = {2};
  out->uint16s("OperationalStatus", kOk);
  write_dedicated(*out, cls);
  write_dedicated_description(*out, cls);
  out->text("Caption", "VexorQRX Switch");
  out->text("Description", "VexorQRX Switch");
  out->text("Vendor", "Vexor Systems");
  if (b.instances_have_paths()) out->path(switch_reference(b, cls, ns, wwn_text));
  return b.close_instance(out);
}

Object switch_instance(Builder& b, const char* cls, const char* ns, const wwn_* wwn, uint8_t remote,
                       const char** properties) {
  if (wwn == nullptr) return {};
  return switch_instance(b, cls, ns, WwnText(*wwn).text, remote, properties);
}

Object switch_instance(Builder& b, const char* cls, const char* ns, const fcs_cim_ie_* element,
                       const char** properties) {
  if (element == nullptr) return {};
  const KeyNames keys(b, {"Name", "CreationClassName"});
  if (!keys) return {};
  std::printf("providerutil:switch_build_instance_ie() Start\n ");
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};

  write_identity(*out, cls, WwnText(element->wwn).text);
  const bool local = dm_cim_is_local_switch_wwn(b.queue(), &element->wwn) == 1;
  out->uint16("EnabledState", local ? kEnabled : kNotApplicable);
  write_record_state(*out, cls, static_cast<int>(element->domain));
  write_dedicated_description(*out, cls);
  if (b.instances_have_paths()) out->path(switch_reference(b, cls, ns, element));
  return b.close_instance(out);
}

Object switch_instance(Builder& b, const char* cls, const char* ns,
                       const mts_dm_sw_dom_list_info_* entry, const char** properties) {
  if (entry == nullptr) return {};
  const KeyNames keys(b, {"Name", "CreationClassName"});
  if (!keys) return {};
  std::printf("providerutil:switch_build_instance_dm() Start\n ");
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};

  write_identity(*out, cls, WwnText(entry->switch_wwn).text);
  vsanNewEntry_t vsan{};
  vsan.vsan_index = 1;
  if (vsan_cim_get_vsanEntry(b.queue(), 1, &vsan) == 0) out->uint16("EnabledState", kEnabled);
  write_record_state(*out, cls, entry->domain_id);
  if (b.instances_have_paths()) out->path(switch_reference(b, cls, ns, entry));
  return b.close_instance(out);
}

namespace {

Ends component_ends(Builder& b, const char* ns, const vsanNewEntry_t* vsan,
                    const mts_dm_sw_conf_* conf, const fcs_cim_ie_* element) {
  const Ref group = vsan_reference(b, "VEXOR_Vsan", ns, vsan, conf);
  return {"GroupComponent", group, "PartComponent",
          switch_reference(b, class_of_part(element), ns, element)};
}

}  // namespace

Ref component_reference(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                        const mts_dm_sw_conf_* conf, const fcs_cim_ie_* element) {
  return association_reference(b, cls, ns, component_ends(b, ns, vsan, conf, element));
}

Object component_instance(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                          const mts_dm_sw_conf_* conf, const fcs_cim_ie_* element) {
  return association_instance(b, cls, ns,
                              [&] { return component_ends(b, ns, vsan, conf, element); });
}

Ref switch_capabilities_reference(Builder& b, const char* cls, const char* ns) {
  return own_switch_reference(b, cls, ns);
}

Object switch_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                    const char** properties) {
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};

  out->text("InstanceID", CSgetName(b.queue()));
  out->text("ElementName", "FC Switch Capabilities");
  out->boolean("ElementNameEditSupported", true);
  out->uint16("MaxElementNameLen", 32);
  constexpr uint16_t kStates[] = {2, 3, 11};
  out->uint16s("RequestedStatesSupported", kStates);
  out->boolean("DomainIDLockedSupported", true);
  out->boolean("DomainIDConfigureable", true);
  out->uint8("MinDomainID", 1);
  out->uint8("MaxDomainID", 239);
  constexpr uint16_t kPriorities[] = {2, 3, 4};
  out->uint16s("PrincipalPrioritiesSupported", kPriorities);
  if (b.instances_have_paths()) out->path(switch_capabilities_reference(b, cls, ns));
  return b.close_instance(out);
}

Ref switch_settings_reference(Builder& b, const char* cls, const char* ns) {
  return own_switch_reference(b, cls, ns);
}

Object switch_settings_instance(Builder& b, const char* cls, const char* ns,
                                const char** properties) {
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};

  out->text("InstanceID", CSgetName(b.queue()));
  out->text("ElementName", "FC Switch Settings");
  mts_dm_sw_conf_ conf{};
  if (dm_cim_get_dmEntry(b.queue(), 1, 1, &conf) == 0) {
    std::printf("switch settings: domain id type %d, domain id %d, priority %d\n", conf.config_type,
                conf.config_domain, conf.config_priority);
    out->uint8("PreferredDomainID", conf.config_domain);
    out->boolean("DomainIDLocked", conf.config_type == 1);
    out->uint16("PrincipalPriority", principal_priority(conf.config_priority));
  }
  if (b.instances_have_paths()) out->path(switch_settings_reference(b, cls, ns));
  return b.close_instance(out);
}

}  // namespace cim_utils::model
