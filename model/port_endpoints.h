// Where ports speak Fibre Channel, and which ports belong to one node. Null records and texts make
// nothing.
#pragma once

#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_port_manager.h>

#include "model/builder.h"

namespace cim_utils::model {

// The endpoint at one end of a link between switches: the end that advertised it, or the far end.
// Asks the domain manager for the switch of that end, once.
Ref endpoint_reference(Builder& b, const char* cls, const char* ns, int32_t queue,
                       const fspfLinkEntry* link, bool local);
Object endpoint_instance(Builder& b, const char* cls, const char* ns, int32_t queue,
                         const fspfLinkEntry* link, bool local, const char** properties);

// The endpoint of a port of the own switch. Asks no service.
Ref endpoint_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port);
Object endpoint_instance(Builder& b, const char* cls, const char* ns, const pm_port_info_* port,
                         const char** properties);

// The endpoint at one end of an attachment: the switch's, or the device's. Asks no service.
Ref endpoint_reference(Builder& b, const char* cls, const char* ns,
                       const ns_api_register_req_* entry, bool fabric_side);
Object endpoint_instance(Builder& b, const char* cls, const char* ns,
                         const ns_api_register_req_* entry, bool fabric_side,
                         const char** properties);

// The ports of one node, by a text or by the node's WWN. Asks no service.
Ref port_group_reference(Builder& b, const char* cls, const char* ns, const char* key);
Ref port_group_reference(Builder& b, const char* cls, const char* ns, const wwn_* wwn);
Object port_group_instance(Builder& b, const char* cls, const char* ns, const char* key,
                           const char** properties);
Object port_group_instance(Builder& b, const char* cls, const char* ns, const wwn_* wwn,
                           const char** properties);

}  // namespace cim_utils::model
