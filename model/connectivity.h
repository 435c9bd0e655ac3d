// What ties switches, ports and endpoints together needs to know of its records.
#pragma once

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_name_server.h>

#include "model/builder.h"

namespace cim_utils::model {

// How the switch at the end of a link is seen: one of the maker as its part in the VSAN, another as
// a device.
struct SwitchOfLink {
  explicit SwitchOfLink(const mts_dm_sw_dom_list_info_& entry);
  wwn_ wwn;
  uint8_t not_maker;
  const char* cls;
};

// The WWN, as text, of the switch that a device is attached to; a fixed text where its fabric port
// WWN tells none.
struct AttachedSwitch {
  explicit AttachedSwitch(const ns_api_register_req_& entry);
  char name[17];
};

// A service access point of another system.
Ref remote_access_point_reference(Builder& b, const char* cls, const char* ns, const char* name,
                                  const char* system_name);
Object remote_access_point_instance(Builder& b, const char* cls, const char* ns, const char* name,
                                    const char* system_name);

}  // namespace cim_utils::model
