#include "model/connectivity.h"

#include <cim_utils/wwn_rules.h>

#include "model/port_texts.h"

namespace cim_utils::model {

SwitchOfLink::SwitchOfLink(const mts_dm_sw_dom_list_info_& entry)
    : wwn(entry.switch_wwn),
      not_maker(wwn_cim_isVexorWwn(&wwn) != 0 ? 0 : 1),
      cls(not_maker != 0 ? kPhysicalSwitchClass : kLogicalSwitchClass) {}

AttachedSwitch::AttachedSwitch(const ns_api_register_req_& entry) {
  switch_text(name, 0, entry.fabric_port_wwn, "unknown system");
}

namespace {

void write_keys(ObjectWriter& out, const char* cls, const char* name, const char* system_name) {
  out.text("SystemCreationClassName", kPhysicalSwitchClass);
  out.text("CreationClassName", cls);
  out.text("SystemName", system_name);
  out.text("Name", name);
}

}  // namespace

Ref remote_access_point_reference(Builder& b, const char* cls, const char* ns, const char* name,
                                  const char* system_name) {
  if (name == nullptr || system_name == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  write_keys(*out, cls, name, system_name);
  return b.close_path(out);
}

Object remote_access_point_instance(Builder& b, const char* cls, const char* ns, const char* name,
                                    const char* system_name) {
  if (name == nullptr || system_name == nullptr) return {};
  const KeyNames keys(b, {"SystemCreationClassName", "CreationClassName", "SystemName", "Name"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  write_keys(*out, cls, name, system_name);
  if (b.instances_have_paths())
    out->path(remote_access_point_reference(b, cls, ns, name, system_name));
  return b.close_instance(out);
}

}  // namespace cim_utils::model
