#include "model/zoning_classes.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/vsan.h>
#include <cim_utils/zoning_changes.h>

#include <cstdio>

#include "model/association.h"
#include "model/switch_classes.h"

namespace cim_utils::model {
namespace {

constexpr char kZoneSet[] = "VEXOR_ZoneSet";
constexpr char kZone[] = "VEXOR_Zone";
constexpr char kZoneAlias[] = "VEXOR_ZoneAlias";
constexpr char kZoneMember[] = "VEXOR_ZoneMemberSettingData";
constexpr char kZoneService[] = "VEXOR_ZoneService";
constexpr char kVsan[] = "VEXOR_Vsan";
constexpr char kConnectivityCollection[] = "VEXOR_ConnectivityCollection";

// A text that may fill its field.
template <size_t size>
struct BoundedText {
  explicit BoundedText(const char (&field)[size]) {
    std::snprintf(text, sizeof text, "%.*s", static_cast<int>(size), field);
  }
  char text[size + 1];
};

// "Active" is true for 1 alone.
bool is_active(uint8_t flag) {
  return flag == 1;
}

// A zoning object's path; a path that cannot be made is said and returned as it came.
Ref instance_id_reference(Builder& b, const char* cls, const char* ns, const char* instance_id) {
  if (instance_id == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::say_and_as_it_came);
  if (out == nullptr) return ref;
  out->text("InstanceID", instance_id);
  return b.close_path(out);
}

}  // namespace

Ref zone_set_reference(Builder& b, const char* cls, const char* ns, const char* instance_id) {
  std::printf("Entry  -zone_set_fill_reference \n ");
  return instance_id_reference(b, cls, ns, instance_id);
}

Object zone_set_instance(Builder& b, const char* cls, const char* ns,
                         const zs_cim_zone_set_* zone_set, const char** properties) {
  if (zone_set == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  std::printf("Entry  -zone_set_build_instance\n ");
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  const InstanceId id(zone_set);
  out->text("InstanceID", id.get());
  out->text("ElementName", BoundedText(zone_set->name).text);
  out->boolean("Active", is_active(zone_set->active));
  if (b.instances_have_paths()) out->path(zone_set_reference(b, cls, ns, id.get()));
  return b.close_instance(out);
}

Ref zone_reference(Builder& b, const char* cls, const char* ns, const char* instance_id) {
  return instance_id_reference(b, cls, ns, instance_id);
}

Object zone_instance(Builder& b, const char* cls, const char* ns, const zs_cim_zone_* zone,
                     const char** properties) {
  if (zone == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  const InstanceId id(zone);
  out->text("InstanceID", id.get());
  out->text("ElementName", BoundedText(zone->name).text);
  out->boolean("Active", is_active(zone->active));
  out->sint32("ProtocolType", zone->zero_362);
  std::printf("readonly in utils %d \n", zone->read_only);
  out->sint32("ReadOnly", zone->read_only);
  out->uint16("ZoneType", zone->zero_360);
  if (b.instances_have_paths()) out->path(zone_reference(b, cls, ns, id.get()));
  return b.close_instance(out);
}

Ref zone_alias_reference(Builder& b, const char* cls, const char* ns, const char* instance_id) {
  return instance_id_reference(b, cls, ns, instance_id);
}

Object zone_alias_instance(Builder& b, const char* cls, const char* ns, const zs_cim_alias_* alias,
                           const char** properties) {
  if (alias == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  const InstanceId id(alias);
  const BoundedText name(alias->name);
  out->text("InstanceID", id.get());
  out->text("ElementName", name.text);
  out->text("CollectionAlias", name.text);
  out->boolean("Active", is_active(alias->active));
  if (b.instances_have_paths()) out->path(zone_alias_reference(b, cls, ns, id.get()));
  return b.close_instance(out);
}

Ref zone_member_reference(Builder& b, const char* cls, const char* ns, const char* instance_id) {
  return instance_id_reference(b, cls, ns, instance_id);
}

Object zone_member_instance(Builder& b, const char* cls, const char* ns,
                            const zs_cim_zone_member_* member, const char** properties) {
  if (member == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  const InstanceId id(member);
  const BoundedText member_id(member->member_id);
  std::printf("Instance ID is %s \n", id.get());
  out->text("InstanceID", id.get());
  std::printf("Member ID is %s \n", member_id.text);
  out->text("ConnectivityMemberID", member_id.text);
  out->uint16("ConnectivityMemberType", member->member_type);
  if (b.instances_have_paths()) out->path(zone_member_reference(b, cls, ns, id.get()));
  return b.close_instance(out);
}

namespace {

// The keys of a zone service.
struct ZoneServiceName {
  // The system is named by the key text of the VSAN's WWN form, also where the VSAN itself is named
  // by its number, deliberately.
  ZoneServiceName(int32_t q, int vsan) {
    std::snprintf(name, sizeof name, "%d", vsan);
    std::snprintf(system_name, sizeof system_name, "%d", vsan);
    const auto number = static_cast<uint32_t>(vsan);
    vsanNewEntry_t entry{};
    entry.vsan_index = number;
    if (vsan_cim_get_vsanEntry(q, 1, &entry) != 0) return;
    mts_dm_sw_conf_ conf{};
    if (dm_cim_get_dmEntry(q, number, 1, &conf) != 0) return;
    vsan_cim_get_vsan_key(system_name, number, &conf);
  }

  void write(ObjectWriter& out, const char* cls) const {
    out.text("Name", name);
    out.text("SystemName", system_name);
    out.text("SystemCreationClassName", kVsan);
    out.text("CreationClassName", cls);
  }

  char name[12];
  char system_name[32];
};

}  // namespace

Ref zone_service_reference(Builder& b, const char* cls, const char* ns, int vsan) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::say_and_as_it_came);
  if (out == nullptr) return ref;
  ZoneServiceName(b.queue(), vsan).write(*out, cls);
  return b.close_path(out);
}

Object zone_service_instance(Builder& b, const char* cls, const char* ns, int vsan) {
  const KeyNames keys(b, {"Name", "SystemName", "SystemCreationClassName", "CreationClassName"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  ZoneServiceName(b.queue(), vsan).write(*out, cls);
  out->uint16("SessionState", 4);
  out->uint16("RequestedSessionState", 2);
  out->uint16("defaultZoningState", static_cast<uint16_t>(zs_cim_get_default_zoning_state(
                                        b.queue(), static_cast<uint32_t>(vsan))));
  constexpr uint16_t kOk[] = {2};
  out->uint16s("OperationalStatus", kOk);
  if (b.instances_have_paths()) out->path(zone_service_reference(b, cls, ns, vsan));
  return b.close_instance(out);
}

Ref zone_capabilities_reference(Builder& b, const char* cls, const char* ns,
                                const char* instance_id) {
  return instance_id_reference(b, cls, ns, instance_id);
}

Object zone_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                  const char* instance_id) {
  if (instance_id == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  out->text("InstanceID", instance_id);
  out->uint32("ZoneNameMaxLen", 64);
  out->uint16("ZoneNameFormat", 3);
  constexpr uint16_t kMemberTypes[] = {2};
  out->uint16s("SupportedConnectivityMemberTypes", kMemberTypes);
  out->uint32("MaxNumZoneSets", 1000);
  out->uint32("MaxNumZone", 8000);
  out->uint32("MaxNumZoneMembers", 20000);
  out->uint32("MaxNumZoneAliases", 2048);
  out->uint32("MaxNumZonesPerZoneSet", 8000);
  if (b.instances_have_paths()) out->path(zone_capabilities_reference(b, cls, ns, instance_id));
  return b.close_instance(out);
}

namespace {

Ends zone_set_zone_ends(Builder& b, const char* ns, const char* zone_set_id, const char* zone_id) {
  const Ref zone_set = zone_set_reference(b, kZoneSet, ns, zone_set_id);
  return {"Collection", zone_set, "Member", zone_reference(b, kZone, ns, zone_id)};
}

Ends zone_zone_alias_ends(Builder& b, const char* ns, const zs_cim_zone_* zone,
                          const zs_cim_alias_* alias) {
  const Ref collection = zone_reference(b, kZone, ns, InstanceId(zone).get());
  return {"Collection", collection, "Member",
          zone_alias_reference(b, kZoneAlias, ns, InstanceId(alias).get())};
}

Ends zone_zone_member_ends(Builder& b, const char* ns, const zs_cim_zone_* zone,
                           const zs_cim_zone_member_* member) {
  const Ref element = zone_reference(b, kZone, ns, InstanceId(zone).get());
  return {"ManagedElement", element, "SettingData",
          zone_member_reference(b, kZoneMember, ns, InstanceId(member).get())};
}

Ends zone_alias_zone_member_ends(Builder& b, const char* ns, const zs_cim_alias_* alias,
                                 const zs_cim_zone_member_* member) {
  const Ref element = zone_alias_reference(b, kZoneAlias, ns, InstanceId(alias).get());
  return {"ManagedElement", element, "SettingData",
          zone_member_reference(b, kZoneMember, ns, InstanceId(member).get())};
}

Ref host_reference(Builder& b, const char* ns, VsanRecords vsan) {
  return vsan_reference(b, kVsan, ns, vsan.entry, vsan.conf);
}

Ends hosted_collection_ends(Builder& b, const char* ns, VsanRecords vsan, int number) {
  const Ref host = host_reference(b, ns, vsan);
  return {"Antecedent", host, "Dependent",
          connectivity_collection_reference(b, kConnectivityCollection, ns, number)};
}

Ends hosted_zone_set_ends(Builder& b, const char* ns, VsanRecords vsan,
                          const zs_cim_zone_set_* zone_set) {
  const Ref host = host_reference(b, ns, vsan);
  return {"Antecedent", host, "Dependent",
          zone_set_reference(b, kZoneSet, ns, InstanceId(zone_set).get())};
}

Ends hosted_zone_ends(Builder& b, const char* ns, VsanRecords vsan, const zs_cim_zone_* zone) {
  const Ref host = host_reference(b, ns, vsan);
  return {"Antecedent", host, "Dependent", zone_reference(b, kZone, ns, InstanceId(zone).get())};
}

Ends hosted_zone_alias_ends(Builder& b, const char* ns, VsanRecords vsan,
                            const zs_cim_alias_* alias) {
  const Ref host = host_reference(b, ns, vsan);
  return {"Antecedent", host, "Dependent",
          zone_alias_reference(b, kZoneAlias, ns, InstanceId(alias).get())};
}

Ends hosted_service_ends(Builder& b, const char* ns, VsanRecords vsan) {
  const Ref host = host_reference(b, ns, vsan);
  if (vsan.entry == nullptr) return {"Antecedent", host, "Dependent", {}};
  return {"Antecedent", host, "Dependent",
          zone_service_reference(b, kZoneService, ns, static_cast<int>(vsan.entry->vsan_index))};
}

}  // namespace

Ref zone_set_zone_reference(Builder& b, const char* cls, const char* ns, const char* zone_set_id,
                            const char* zone_id) {
  return association_reference(b, cls, ns, zone_set_zone_ends(b, ns, zone_set_id, zone_id));
}

Object zone_set_zone_instance(Builder& b, const char* cls, const char* ns, const char* zone_set_id,
                              const char* zone_id) {
  return association_instance(b, cls, ns,
                              [&] { return zone_set_zone_ends(b, ns, zone_set_id, zone_id); });
}

Ref zone_zone_alias_reference(Builder& b, const char* cls, const char* ns, const zs_cim_zone_* zone,
                              const zs_cim_alias_* alias) {
  return association_reference(b, cls, ns, zone_zone_alias_ends(b, ns, zone, alias));
}

Object zone_zone_alias_instance(Builder& b, const char* cls, const char* ns,
                                const zs_cim_zone_* zone, const zs_cim_alias_* alias) {
  return association_instance(b, cls, ns, [&] { return zone_zone_alias_ends(b, ns, zone, alias); });
}

Ref zone_zone_member_reference(Builder& b, const char* cls, const char* ns,
                               const zs_cim_zone_* zone, const zs_cim_zone_member_* member) {
  return association_reference(b, cls, ns, zone_zone_member_ends(b, ns, zone, member));
}

Object zone_zone_member_instance(Builder& b, const char* cls, const char* ns,
                                 const zs_cim_zone_* zone, const zs_cim_zone_member_* member) {
  return association_instance(b, cls, ns,
                              [&] { return zone_zone_member_ends(b, ns, zone, member); });
}

Ref zone_alias_zone_member_reference(Builder& b, const char* cls, const char* ns,
                                     const zs_cim_alias_* alias,
                                     const zs_cim_zone_member_* member) {
  return association_reference(b, cls, ns, zone_alias_zone_member_ends(b, ns, alias, member));
}

Object zone_alias_zone_member_instance(Builder& b, const char* cls, const char* ns,
                                       const zs_cim_alias_* alias,
                                       const zs_cim_zone_member_* member) {
  return association_instance(b, cls, ns,
                              [&] { return zone_alias_zone_member_ends(b, ns, alias, member); });
}

Ref hosted_collection_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                int number) {
  return association_reference(b, cls, ns, hosted_collection_ends(b, ns, vsan, number));
}

Object hosted_collection_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                  int number) {
  return association_instance(b, cls, ns,
                              [&] { return hosted_collection_ends(b, ns, vsan, number); });
}

Ref hosted_zone_set_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                              const zs_cim_zone_set_* zone_set) {
  return association_reference(b, cls, ns, hosted_zone_set_ends(b, ns, vsan, zone_set));
}

Object hosted_zone_set_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                const zs_cim_zone_set_* zone_set) {
  const Object instance =
      association_instance(b, cls, ns, [&] { return hosted_zone_set_ends(b, ns, vsan, zone_set); });
  if (instance.object != nullptr)
    std::printf("hosted_collection_build_instance_zset() - instance end \n ");
  return instance;
}

Ref hosted_zone_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                          const zs_cim_zone_* zone) {
  return association_reference(b, cls, ns, hosted_zone_ends(b, ns, vsan, zone));
}

Object hosted_zone_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                            const zs_cim_zone_* zone) {
  return association_instance(b, cls, ns, [&] { return hosted_zone_ends(b, ns, vsan, zone); });
}

Ref hosted_zone_alias_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                const zs_cim_alias_* alias) {
  return association_reference(b, cls, ns, hosted_zone_alias_ends(b, ns, vsan, alias));
}

Object hosted_zone_alias_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                  const zs_cim_alias_* alias) {
  return association_instance(b, cls, ns,
                              [&] { return hosted_zone_alias_ends(b, ns, vsan, alias); });
}

Ref hosted_service_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan) {
  return association_reference(b, cls, ns, hosted_service_ends(b, ns, vsan));
}

Object hosted_service_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan) {
  return association_instance(b, cls, ns, [&] { return hosted_service_ends(b, ns, vsan); });
}

}  // namespace cim_utils::model
