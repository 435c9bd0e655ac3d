// Ports: those of the own switch, those at the ends of the fabric's links and those that devices
// are attached with; and what the own ports can do and are set to. Null records make nothing.
#pragma once

#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_port_manager.h>

#include "model/builder.h"

namespace cim_utils::model {

// A port of the own switch. One that is an Ethernet port is of class VEXOR_EthernetPort, whatever
// class is asked for. The reference asks no service; the instance asks the VSAN manager for the
// port's VSAN and the port manager for its optics, and for a link to another switch the domain
// manager and FSPF for the port at the other end.
Ref port_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port);
Object port_instance(Builder& b, const char* cls, const char* ns, const pm_port_info_* port,
                     const char** properties);

// Which port a link between switches tells of, and how it is seen.
struct LinkPort {
  const fspfLinkEntry* link;
  const uint8_t* switch_wwn;  // 8 bytes
  bool physical;              // as part of the switch itself, else of its part in a VSAN
  bool local;                 // the port at the end that advertised the link, else at the far end
};

// A port at one end of a link, on the switch with the given WWN. Asks no service.
Ref port_reference(Builder& b, const char* cls, const char* ns, const LinkPort& port);
Object port_instance(Builder& b, const char* cls, const char* ns, const LinkPort& port,
                     const char** properties);

// Which port of an attachment a name-server entry tells of, and how it is seen.
struct AttachedPort {
  const ns_api_register_req_* entry;
  bool physical;     // as part of a switch itself, else within the VSAN
  bool fabric_side;  // the switch's port, else the device's
};

// A port at one end of an attachment. Asks no service.
Ref port_reference(Builder& b, const char* cls, const char* ns, const AttachedPort& port);
Object port_instance(Builder& b, const char* cls, const char* ns, const AttachedPort& port,
                     const char** properties);

// What a port of the own switch can be set to, and what it is set to. Asks no service.
Ref port_capabilities_reference(Builder& b, const char* cls, const char* ns,
                                const pm_port_info_* port);
Object port_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                  const pm_port_info_* port, const char** properties);
Ref port_settings_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port);
Object port_settings_instance(Builder& b, const char* cls, const char* ns,
                              const pm_port_info_* port, const char** properties);

}  // namespace cim_utils::model
