// The services of the switch: each answers a request from the fabric, and a set changes it.
#ifndef SIMULATOR_SERVICES_SERVICES_H
#define SIMULATOR_SERVICES_SERVICES_H

#include "simulator/fabric/fabric.h"
#include "simulator/transport/message.h"

namespace switch_sim {

// The outcome of a request, found by service and opcode. A refused request leaves the fabric as it
// was.
Outcome answer(const Request& request, Fabric& fabric, VirtualTime now);

namespace services {

inline Outcome refuse(int32_t status) {
  Outcome outcome;
  outcome.status = status;
  return outcome;
}

inline Outcome reply(Bytes bytes) {
  Outcome outcome;
  outcome.reply = std::move(bytes);
  return outcome;
}

// vsan_manager.cc
Outcome vsan_entry(const Request& request, Fabric& fabric, VirtualTime now);
Outcome count_vsans(const Request& request, Fabric& fabric, VirtualTime now);
Outcome count_active_vsans(const Request& request, Fabric& fabric, VirtualTime now);

// domain_manager.cc
Outcome domain_configuration(const Request& request, Fabric& fabric, VirtualTime now);
Outcome domain_database(const Request& request, Fabric& fabric, VirtualTime now);
Outcome local_domain_ids(const Request& request, Fabric& fabric, VirtualTime now);

// fabric_configuration.cc
Outcome interconnect_elements(const Request& request, Fabric& fabric, VirtualTime now);
Outcome fabric_configuration_data(const Request& request, Fabric& fabric, VirtualTime now);
Outcome switch_addresses(const Request& request, Fabric& fabric, VirtualTime now);

// port_manager.cc
Outcome port_configuration(const Request& request, Fabric& fabric, VirtualTime now);
Outcome transceiver(const Request& request, Fabric& fabric, VirtualTime now);
Outcome port_counters(const Request& request, Fabric& fabric, VirtualTime now);
Outcome port_channel_entry(const Request& request, Fabric& fabric, VirtualTime now);

// port_attributes.cc
Outcome set_port_attribute(const Request& request, Fabric& fabric, VirtualTime now);

// ip_interfaces.cc
Outcome interface_address(const Request& request, Fabric& fabric, VirtualTime now);
Outcome fcip_of_ethernet(const Request& request, Fabric& fabric, VirtualTime now);
Outcome ethernet_of_fcip(const Request& request, Fabric& fabric, VirtualTime now);

// fspf.cc
Outcome link_state_record(const Request& request, Fabric& fabric, VirtualTime now);

// name_server.cc
Outcome registered_devices(const Request& request, Fabric& fabric, VirtualTime now);
Outcome fc4_devices(const Request& request, Fabric& fabric, VirtualTime now);

// fabric_distribution.cc
Outcome discover_peers(const Request& request, Fabric& fabric, VirtualTime now);

// platform_manager.cc
Outcome module_table(const Request& request, Fabric& fabric, VirtualTime now);
Outcome physical_entity_table(const Request& request, Fabric& fabric, VirtualTime now);
Outcome entity_of_slot(const Request& request, Fabric& fabric, VirtualTime now);
Outcome slot_of_entity(const Request& request, Fabric& fabric, VirtualTime now);
Outcome serial_prom(const Request& request, Fabric& fabric, VirtualTime now);
Outcome chassis_id(const Request& request, Fabric& fabric, VirtualTime now);

// switch_identity.cc, system_name.cc, system_information.cc
Outcome switch_identity(const Request& request, Fabric& fabric, VirtualTime now);
Outcome set_system_name(const Request& request, Fabric& fabric, VirtualTime now);
Outcome system_information(const Request& request, Fabric& fabric, VirtualTime now);
Outcome software_version(const Request& request, Fabric& fabric, VirtualTime now);

// zone_server.cc, zone_server_changes.cc
Outcome zoning_object(const Request& request, Fabric& fabric, VirtualTime now);
Outcome zoning_objects(const Request& request, Fabric& fabric, VirtualTime now);
Outcome zone_member(const Request& request, Fabric& fabric, VirtualTime now);
Outcome zoning_id_of_name(const Request& request, Fabric& fabric, VirtualTime now);
Outcome zoning_name_of_id(const Request& request, Fabric& fabric, VirtualTime now);
Outcome zoning_policy(const Request& request, Fabric& fabric, VirtualTime now);
Outcome change_zoning_object(const Request& request, Fabric& fabric, VirtualTime now);
Outcome change_zone_of_zone_set(const Request& request, Fabric& fabric, VirtualTime now);
Outcome change_alias_of_zone(const Request& request, Fabric& fabric, VirtualTime now);
Outcome change_zone_member(const Request& request, Fabric& fabric, VirtualTime now);
Outcome activate_zone_set(const Request& request, Fabric& fabric, VirtualTime now);
Outcome distribute_zoning(const Request& request, Fabric& fabric, VirtualTime now);

}  // namespace services
}  // namespace switch_sim

#endif  // SIMULATOR_SERVICES_SERVICES_H
