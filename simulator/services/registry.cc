// Which service answers which opcode.
#include <algorithm>
#include <array>

#include "simulator/local/platform_status.h"
#include "simulator/services/services.h"
#include "simulator/transport/hardware_messages.h"
#include "simulator/transport/port_messages.h"
#include "simulator/transport/zone_server_messages.h"

namespace switch_sim {
namespace {

using ServiceFunction = Outcome (*)(const Request&, Fabric&, VirtualTime);

struct Row {
  Service service;
  uint32_t opcode;
  ServiceFunction answer;
};

constexpr std::array kRows = {
    Row{Service::vsan_manager, 149, services::vsan_entry},
    Row{Service::vsan_manager, 125, services::count_vsans},
    Row{Service::vsan_manager, 128, services::count_active_vsans},
    Row{Service::domain_manager, 264, services::domain_configuration},
    Row{Service::domain_manager, 267, services::domain_database},
    Row{Service::domain_manager, kLocalDomainIds, services::local_domain_ids},
    Row{Service::fabric_configuration, 1401, services::interconnect_elements},
    Row{Service::fabric_configuration, 1402, services::fabric_configuration_data},
    Row{Service::fabric_configuration, kSwitchAddresses, services::switch_addresses},
    Row{Service::port_manager, kPortConfiguration, services::port_configuration},
    Row{Service::port_manager, kPortAttribute, services::set_port_attribute},
    Row{Service::port_manager, kTransceiver, services::transceiver},
    Row{Service::port_manager, kPortCounters, services::port_counters},
    Row{Service::port_manager, kPortChannelEntry, services::port_channel_entry},
    Row{kIpConfiguration, kInterfaceAddress, services::interface_address},
    Row{kIpStorage, kFcipOfEthernet, services::fcip_of_ethernet},
    Row{kIpStorage, kEthernetOfFcip, services::ethernet_of_fcip},
    Row{Service::fspf, kLinkStateRecord, services::link_state_record},
    Row{kNameServer, kDeviceWithPortName, services::registered_devices},
    Row{kNameServer, kDevicesWithNodeName, services::registered_devices},
    Row{kNameServer, kDevicesBehindFabricPort, services::registered_devices},
    Row{kNameServer, kDevicesOfPortType, services::registered_devices},
    Row{kNameServer, kFc4Devices, services::fc4_devices},
    Row{Service::fabric_distribution, kDiscoverPeers, services::discover_peers},
    Row{Service::platform_manager, kPhysicalEntity, services::physical_entity_table},
    Row{Service::platform_manager, kModule, services::module_table},
    Row{Service::platform_manager, kEntityOfSlot, services::entity_of_slot},
    Row{Service::platform_manager, kSlotOfEntity, services::slot_of_entity},
    Row{Service::platform_manager, kSerialProm, services::serial_prom},
    Row{Service::platform_manager, kChassisId, services::chassis_id},
    Row{Service::switch_identity, 1282, services::switch_identity},
    Row{Service::system_name, 878, services::set_system_name},
    Row{Service::system_information, 1812, services::system_information},
    Row{Service::system_information, kSoftwareVersion, services::software_version},
    Row{Service::zone_server, kZoningObject, services::zoning_object},
    Row{Service::zone_server, kZoningObjects, services::zoning_objects},
    Row{Service::zone_server, kZoneMember, services::zone_member},
    Row{Service::zone_server, kZoningIdOfName, services::zoning_id_of_name},
    Row{Service::zone_server, kZoningNameOfId, services::zoning_name_of_id},
    Row{Service::zone_server, kZoningPolicy, services::zoning_policy},
    Row{Service::zone_server, kChangeZoningObject, services::change_zoning_object},
    Row{Service::zone_server, kChangeZoneOfZoneSet, services::change_zone_of_zone_set},
    Row{Service::zone_server, kChangeAliasOfZone, services::change_alias_of_zone},
    Row{Service::zone_server, kChangeZoneMember, services::change_zone_member},
    Row{Service::zone_server, kActivateZoneSet, services::activate_zone_set},
    Row{Service::zone_server, kDistributeZoning, services::distribute_zoning},
};

bool is_answered(Service service) {
  return std::any_of(kRows.begin(), kRows.end(),
                     [&](const Row& row) { return row.service == service; });
}

}  // namespace

Outcome answer(const Request& request, Fabric& fabric, VirtualTime now) {
  const auto row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& candidate) {
    return candidate.service == request.service && candidate.opcode == request.opcode;
  });
  if (row != kRows.end()) return row->answer(request, fabric, now);
  return services::refuse(is_answered(request.service) ? status::kUnknownOpcode
                                                       : status::kServiceNotAvailable);
}

}  // namespace switch_sim
