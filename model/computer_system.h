// Switches, the VSANs that they are part of, and what the own switch can do and is set to.
#pragma once

#include <cim_utils/fabric_configuration.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#include "model/builder.h"

namespace cim_utils::model {

// A switch by the text of its WWN, its WWN, its interconnect element, or its entry in the domain
// manager's list. Null texts and records make nothing. Asks no service.
Ref switch_reference(Builder& b, const char* cls, const char* ns, const char* wwn_text);
Ref switch_reference(Builder& b, const char* cls, const char* ns, const wwn_* wwn);
Ref switch_reference(Builder& b, const char* cls, const char* ns, const fcs_cim_ie_* element);
Ref switch_reference(Builder& b, const char* cls, const char* ns,
                     const mts_dm_sw_dom_list_info_* entry);

// The switch with all that the agent tells about it; `remote` not zero for another switch than the
// own one. Asks the domain manager for VSAN 1; for another switch also the fabric distribution
// service for its address and the fabric configuration server for its name.
Object switch_instance(Builder& b, const char* cls, const char* ns, const char* wwn_text,
                       uint8_t remote, const char** properties);
Object switch_instance(Builder& b, const char* cls, const char* ns, const wwn_* wwn, uint8_t remote,
                       const char** properties);

// The switch as the fabric configuration server sees it. Asks the switch identity service whether
// it is the own one.
Object switch_instance(Builder& b, const char* cls, const char* ns, const fcs_cim_ie_* element,
                       const char** properties);

// The switch as the domain manager lists it. Asks the VSAN manager for VSAN 1.
Object switch_instance(Builder& b, const char* cls, const char* ns,
                       const mts_dm_sw_dom_list_info_* entry, const char** properties);

// A switch, by its interconnect element, in a VSAN. An end whose record is null is left out.
Ref component_reference(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                        const mts_dm_sw_conf_* conf, const fcs_cim_ie_* element);
Object component_instance(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                          const mts_dm_sw_conf_* conf, const fcs_cim_ie_* element);

// What the own switch can do. Asks the switch identity service, whose answer is the key.
Ref switch_capabilities_reference(Builder& b, const char* cls, const char* ns);
Object switch_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                    const char** properties);

// How the own switch is set in VSAN 1. The same key; the instance asks the domain manager too.
Ref switch_settings_reference(Builder& b, const char* cls, const char* ns);
Object switch_settings_instance(Builder& b, const char* cls, const char* ns,
                                const char** properties);

}  // namespace cim_utils::model
