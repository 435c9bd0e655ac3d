#include "providers/zoning_service.h"

#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/vsan.h>
#include <cim_utils/zoning_changes.h>

#include <string>

#include "providers/zoning_changes.h"
#include "providers/zoning_members.h"
#include "providers/zoning_objects.h"
#include "providers/zoning_results.h"

namespace vexor::providers {
namespace {

using Result = ZoneServiceResult;

// Results from here on are the zone server's own: the low 15 bits are its.
constexpr uint32_t kVendorResult = 0x8000;
// What the library makes of "there is nothing to distribute".
constexpr int32_t kNothingToDistribute = 145;

std::vector<ZoneService> service_of(int32_t q, uint32_t vsan) {
  vsanNewEntry_t entry{};
  if (vsan == 0 || !read_vsan_entry(q, vsan, entry)) return {};
  return {ZoneService{vsan}};
}

uint32_t value(Result result) {
  return static_cast<uint32_t>(result);
}

// ---- methods ----

uint32_t create(int32_t q, const ZoneService& service, const Arguments& arguments,
                zs_object_kind kind, const char* name_argument, const char* object_argument) {
  std::string name;
  if (!arguments.text(name_argument, name)) return value(Result::invalid_parameter);
  std::optional<ZoningObject> made;
  const Result result = create_zoning_object(q, service.vsan, kind, name, made);
  if (made) arguments.give_back(object_argument, zoning_reference(arguments.target(""), *made));
  return value(result);
}

uint32_t create_zone_set(int32_t q, const ZoneService& service, const Arguments& arguments) {
  return create(q, service, arguments, ZS_OBJECT_ZONE_SET, "ZoneSetName", "ZoneSet");
}

// The zone server keeps no types of zones: a zone is for all protocols.
Result check_zone_type(const Arguments& arguments) {
  std::string type, subtype;
  const bool has_type = arguments.text("ZoneType", type);
  const bool has_subtype = arguments.text("ZoneSubType", subtype);
  if (has_type && type != "2" && type != "3") return Result::invalid_parameter;
  if (has_subtype && subtype != "2" && subtype != "3" && subtype != "4")
    return Result::invalid_parameter;
  return type == "3" || has_subtype ? Result::not_supported : Result::success;
}

uint32_t create_zone(int32_t q, const ZoneService& service, const Arguments& arguments) {
  const Result allowed = check_zone_type(arguments);
  if (allowed != Result::success) return value(allowed);
  return create(q, service, arguments, ZS_OBJECT_ZONE, "ZoneName", "Zone");
}

uint32_t create_zone_alias(int32_t q, const ZoneService& service, const Arguments& arguments) {
  return create(q, service, arguments, ZS_OBJECT_ALIAS, "CollectionAlias", "ZoneAlias");
}

uint32_t create_zone_member(int32_t q, const ZoneService& service, const Arguments& arguments) {
  std::string type, id;
  if (!arguments.text("ConnectivityMemberType", type) ||
      !arguments.text("ConnectivityMemberID", id))
    return value(Result::invalid_parameter);
  std::string instance_id;
  const Result result = create_member(q, service.vsan, type, id,
                                      arguments.reference("SystemSpecificCollection"), instance_id);
  if (!instance_id.empty())
    arguments.give_back("ZoneMembershipSettingData",
                        zone_member_reference(arguments.target(kZoneMemberClass),
                                              only_name_of_member(instance_id.c_str())));
  return value(result);
}

uint32_t add_zone_to_set(int32_t q, const ZoneService& service, const Arguments& arguments) {
  return value(
      add_zone(q, service.vsan, arguments.reference("ZoneSet"), arguments.reference("Zone")));
}

uint32_t add_alias_to_zone(int32_t q, const ZoneService& service, const Arguments& arguments) {
  return value(
      add_alias(q, service.vsan, arguments.reference("Zone"), arguments.reference("ZoneAlias")));
}

uint32_t add_zone_member(int32_t q, const ZoneService& service, const Arguments& arguments) {
  return value(add_member(q, service.vsan, arguments.reference("SystemSpecificCollection"),
                          arguments.reference("ZoneMembershipSettingData")));
}

uint32_t activate(int32_t q, const ZoneService& service, const Arguments& arguments) {
  std::string on;
  if (!arguments.text("Activate", on) || (on != "true" && on != "false"))
    return value(Result::invalid_parameter);
  return value(activate_zone_set(q, service.vsan, arguments.reference("ZoneSet"), on == "true"));
}

uint32_t session_control(int32_t, const ZoneService&, const Arguments&) {
  return value(Result::not_supported);
}

uint32_t distribute(int32_t q, const ZoneService& service, const Arguments&) {
  int32_t error = 0;
  const int32_t status = zs_cim_distribute_zone_set(q, service.vsan, &error);
  if (status == kNothingToDistribute) return kVendorResult + kNothingToDistribute;
  // The status holds the low half of the zone server's result only.
  return value(zone_service_result(error));
}

}  // namespace

std::vector<ZoneService> zone_services(int32_t q) {
  std::vector<ZoneService> services;
  for (const uint32_t vsan : vsan_numbers(q))
    services.push_back({vsan});
  return services;
}

std::vector<ZoneService> zone_services_named(int32_t q, const ObjectName& name) {
  return service_of(q, read_vsan_number(name.text("Name")));
}

CMPIObjectPath* zone_service_reference(const Target& target, const ZoneService& service) {
  return zone_service_fill_reference(kZoneServiceClass, target.name_space,
                                     static_cast<int>(service.vsan), target.broker);
}

CMPIInstance* zone_service_instance(const Target& target, const ZoneService& service) {
  return zone_service_build_instance(kZoneServiceClass, target.name_space,
                                     static_cast<int>(service.vsan), target.broker);
}

std::vector<ZoneService> zone_capabilities_named(int32_t q, const ObjectName& name) {
  return service_of(q, read_vsan_number(name.text("InstanceID")));
}

CMPIObjectPath* zone_capabilities_reference(const Target& target, const ZoneService& service) {
  return zone_cap_fill_reference(kZoneCapabilitiesClass, target.name_space,
                                 std::to_string(service.vsan).c_str(), target.broker);
}

CMPIInstance* zone_capabilities_instance(const Target& target, const ZoneService& service) {
  return zone_cap_build_instance(kZoneCapabilitiesClass, target.name_space,
                                 std::to_string(service.vsan).c_str(), target.broker);
}

std::vector<VsanRecord> hosted_services_named(int32_t q, const ObjectName& name) {
  const ObjectName* service = name.reference("Dependent");
  return service != nullptr ? hosted_services_of(q, "Dependent", *service)
                            : std::vector<VsanRecord>{};
}

std::vector<VsanRecord> hosted_services_of(int32_t q, const char* role, const ObjectName& object) {
  if (same_name(role, "Antecedent")) return vsans_named(q, object);
  const uint32_t number = read_vsan_number(object.text("Name"));
  VsanRecord vsan;
  if (number == 0 || !read_vsan(q, number, vsan)) return {};
  return {vsan};
}

CMPIObjectPath* hosted_service_reference(const Target& target, const VsanRecord& vsan) {
  return hosted_service_fill_reference(target.class_name, target.name_space, &vsan.entry,
                                       configuration(vsan), target.broker);
}

CMPIInstance* hosted_service_instance(const Target& target, const VsanRecord& vsan) {
  return hosted_service_build_instance(target.class_name, target.name_space, &vsan.entry,
                                       configuration(vsan), target.broker);
}

CMPIObjectPath* service_of_vsan_reference(const Target& target, const VsanRecord& vsan) {
  return zone_service_reference(target, {vsan.entry.vsan_index});
}

CMPIInstance* service_of_vsan_instance(const Target& target, const VsanRecord& vsan) {
  return zone_service_instance(target, {vsan.entry.vsan_index});
}

constexpr RecordClass<ZoneService>::Method kZoneServiceMethods[10] = {
    {"CreateZoneSet", create_zone_set},
    {"CreateZone", create_zone},
    {"CreateZoneAlias", create_zone_alias},
    {"CreateZoneMembershipSettingData", create_zone_member},
    {"AddZone", add_zone_to_set},
    {"AddZoneAlias", add_alias_to_zone},
    {"AddZoneMembershipSettingData", add_zone_member},
    {"ActivateZoneSet", activate},
    {"SessionControl", session_control},
    {"DistributeZoneSet", distribute},
};

}  // namespace vexor::providers
