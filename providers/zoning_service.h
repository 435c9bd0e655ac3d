// VEXOR_ZoneService, which changes the zoning of a VSAN; VEXOR_ZoneCapabilities, what it can do;
// and VEXOR_HostedService, which ties it to its VSAN.
#pragma once

#include <cstdint>
#include <vector>

#include "providers/class.h"
#include "providers/vsan.h"

namespace vexor::providers {

// The zone service of a VSAN, and its capabilities, whose "InstanceID" is the VSAN's number.
struct ZoneService {
  uint32_t vsan;
};

inline constexpr char kZoneServiceClass[] = "VEXOR_ZoneService";
inline constexpr char kZoneCapabilitiesClass[] = "VEXOR_ZoneCapabilities";

// One for each VSAN.
std::vector<ZoneService> zone_services(int32_t q);
// By "Name", with one exchange.
std::vector<ZoneService> zone_services_named(int32_t q, const ObjectName& name);
CMPIObjectPath* zone_service_reference(const Target& target, const ZoneService& service);
CMPIInstance* zone_service_instance(const Target& target, const ZoneService& service);

// By "InstanceID", with one exchange.
std::vector<ZoneService> zone_capabilities_named(int32_t q, const ObjectName& name);
CMPIObjectPath* zone_capabilities_reference(const Target& target, const ZoneService& service);
CMPIInstance* zone_capabilities_instance(const Target& target, const ZoneService& service);

// VEXOR_HostedService.
std::vector<VsanRecord> hosted_services_named(int32_t q, const ObjectName& name);
std::vector<VsanRecord> hosted_services_of(int32_t q, const char* role, const ObjectName& object);
CMPIObjectPath* hosted_service_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* hosted_service_instance(const Target& target, const VsanRecord& vsan);
CMPIObjectPath* service_of_vsan_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* service_of_vsan_instance(const Target& target, const VsanRecord& vsan);

// The methods of CIM_ZoneService, and DistributeZoneSet. Objects that a client gives must be of the
// service's VSAN, and those that are changed of its full database. The zone server has no sessions.
extern const RecordClass<ZoneService>::Method kZoneServiceMethods[10];

}  // namespace vexor::providers
