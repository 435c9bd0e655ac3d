#include "providers/class_table.h"
#include "providers/zoning_associations.h"
#include "providers/zoning_members.h"
#include "providers/zoning_objects.h"
#include "providers/zoning_service.h"

// Zone sets, zones, aliases, members, zone services, and what ties them together.
namespace vexor::providers {
namespace {

constexpr char kVsanClass[] = "VEXOR_Vsan";
constexpr KeyNames kInstanceId = {"InstanceID"};

constexpr RecordClass<zs_cim_zone_set_> kZoneSet{{
    .name = kZoneSetClass,
    .keys = kInstanceId,
    .list = all_zoning_objects<zs_cim_zone_set_>,
    .reference = zoning_reference,
    .instance = zoning_instance,
    .find = zoning_objects_named<zs_cim_zone_set_>,
    .remove = delete_zoning_record<zs_cim_zone_set_>,
}};

constexpr RecordClass<zs_cim_zone_> kZone{{
    .name = kZoneClass,
    .keys = kInstanceId,
    .list = all_zoning_objects<zs_cim_zone_>,
    .reference = zoning_reference,
    .instance = zoning_instance,
    .find = zoning_objects_named<zs_cim_zone_>,
    .remove = delete_zoning_record<zs_cim_zone_>,
}};

constexpr RecordClass<zs_cim_alias_> kZoneAlias{{
    .name = kZoneAliasClass,
    .keys = kInstanceId,
    .list = all_zoning_objects<zs_cim_alias_>,
    .reference = zoning_reference,
    .instance = zoning_instance,
    .find = zoning_objects_named<zs_cim_alias_>,
    .remove = delete_zoning_record<zs_cim_alias_>,
}};

constexpr RecordClass<zs_cim_zone_member_> kZoneMemberSettingData{{
    .name = kZoneMemberClass,
    .keys = kInstanceId,
    .list = all_zone_members,
    .reference = zone_member_reference,
    .instance = zone_member_instance,
    .find = zone_members_named,
    .remove = delete_zone_member,
}};

constexpr RecordClass<ZoneService> kZoneService{{
    .name = kZoneServiceClass,
    .keys = {"SystemCreationClassName", "SystemName", "CreationClassName", "Name"},
    .list = zone_services,
    .reference = zone_service_reference,
    .instance = zone_service_instance,
    .find = zone_services_named,
    .methods = kZoneServiceMethods,
}};

constexpr RecordClass<ZoneService> kZoneCapabilities{{
    .name = kZoneCapabilitiesClass,
    .keys = kInstanceId,
    .list = zone_services,
    .reference = zone_capabilities_reference,
    .instance = zone_capabilities_instance,
    .find = zone_capabilities_named,
}};

constexpr const char* kAlsoZones[] = {kZoneClass, nullptr};
constexpr const char* kAlsoAliases[] = {kZoneAliasClass, nullptr};
constexpr const char* kAlsoZonesAndAliases[] = {kZoneClass, kZoneAliasClass, nullptr};

constexpr RecordClass<ZoneMembership> kZoneMemberOfCollection{{
    .name = "VEXOR_ZoneMemberOfCollection",
    .keys = {"Collection", "Member"},
    .list = zone_memberships,
    .reference = zone_membership_reference,
    .instance = zone_membership_instance,
    .find = zone_memberships_named,
    .ends = {{
        {{.role = "Collection", .class_name = kZoneSetClass, .more_classes = kAlsoZones},
         [](const Target& to, const ZoneMembership& m) {
           return zoning_reference(to, *m.collection);
         },
         [](const Target& to, const ZoneMembership& m) {
           return zoning_instance(to, *m.collection);
         }},
        {{.role = "Member", .class_name = kZoneClass, .more_classes = kAlsoAliases},
         [](const Target& to, const ZoneMembership& m) { return zoning_reference(to, *m.member); },
         [](const Target& to, const ZoneMembership& m) { return zoning_instance(to, *m.member); }},
    }},
    .related = zone_memberships_of,
    .create = create_zone_membership,
    .remove = delete_zone_membership,
}};

constexpr RecordClass<ZoneElement> kZoneElementSettingData{{
    .name = "VEXOR_ZoneElementSettingData",
    .keys = {"ManagedElement", "SettingData"},
    .list = zone_elements,
    .reference = zone_element_reference,
    .instance = zone_element_instance,
    .find = zone_elements_named,
    .ends = {{
        {{.role = "ManagedElement", .class_name = kZoneClass, .more_classes = kAlsoAliases},
         [](const Target& to, const ZoneElement& e) { return zoning_reference(to, *e.element); },
         [](const Target& to, const ZoneElement& e) { return zoning_instance(to, *e.element); }},
        {{.role = "SettingData", .class_name = kZoneMemberClass},
         [](const Target& to, const ZoneElement& e) { return zone_member_reference(to, e.member); },
         [](const Target& to, const ZoneElement& e) { return zone_member_instance(to, e.member); }},
    }},
    .related = zone_elements_of,
    .create = create_zone_element,
    .remove = delete_zone_element,
}};

constexpr RecordClass<HostedZoning> kZoneHostedCollection{{
    .name = "VEXOR_ZoneHostedCollection",
    .keys = {"Antecedent", "Dependent"},
    .list = hosted_zoning,
    .reference = hosted_zoning_reference,
    .instance = hosted_zoning_instance,
    .find = hosted_zoning_named,
    .ends = {{
        {{.role = "Antecedent", .class_name = kVsanClass},
         [](const Target& to, const HostedZoning& h) { return vsan_reference(to, *h.vsan); },
         [](const Target& to, const HostedZoning& h) { return vsan_instance(to, *h.vsan); }},
        {{.role = "Dependent", .class_name = kZoneSetClass, .more_classes = kAlsoZonesAndAliases},
         [](const Target& to, const HostedZoning& h) { return zoning_reference(to, h.object); },
         [](const Target& to, const HostedZoning& h) { return zoning_instance(to, h.object); }},
    }},
    .related = hosted_zoning_of,
}};

constexpr RecordClass<VsanRecord> kHostedCollection{{
    .name = "VEXOR_HostedCollection",
    .keys = {"Antecedent", "Dependent"},
    .list = all_vsans,
    .reference = hosted_collection_reference,
    .instance = hosted_collection_instance,
    .find = hosted_collections_named,
    .ends = {{
        {{.role = "Antecedent", .class_name = kVsanClass}, vsan_reference, vsan_instance},
        {{.role = "Dependent", .class_name = "VEXOR_ConnectivityCollection"},
         collection_of_vsan_reference,
         collection_of_vsan_instance},
    }},
    .related = hosted_collections_of,
}};

constexpr RecordClass<VsanRecord> kHostedService{{
    .name = "VEXOR_HostedService",
    .keys = {"Antecedent", "Dependent"},
    .list = all_vsans,
    .reference = hosted_service_reference,
    .instance = hosted_service_instance,
    .find = hosted_services_named,
    .ends = {{
        {{.role = "Antecedent", .class_name = kVsanClass}, vsan_reference, vsan_instance},
        {{.role = "Dependent", .class_name = kZoneServiceClass},
         service_of_vsan_reference,
         service_of_vsan_instance},
    }},
    .related = hosted_services_of,
}};

constexpr const Class* kClasses[] = {
    &kHostedCollection,
    &kHostedService,
    &kZone,
    &kZoneAlias,
    &kZoneCapabilities,
    &kZoneElementSettingData,
    &kZoneHostedCollection,
    &kZoneMemberOfCollection,
    &kZoneMemberSettingData,
    &kZoneService,
    &kZoneSet,
};

}  // namespace

ClassTable zoning_classes() {
  return kClasses;
}

}  // namespace vexor::providers
