#include "providers/zoning_associations.h"

#include <cim_utils/cmpi_switch.h>
#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/vsan.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_queries.h>
#include <strings.h>

#include <cstring>

#include "providers/lock.h"
#include "providers/zoning_changes.h"
#include "providers/zoning_results.h"
#include "providers/zoning_service.h"

namespace vexor::providers {
namespace {

constexpr char kConnectivityCollectionClass[] = "VEXOR_ConnectivityCollection";

using Shared = std::shared_ptr<const ZoningObject>;

Shared shared(const ZoningObject& object) {
  return std::make_shared<const ZoningObject>(object);
}

// The object that a walk starts from.
struct Start {
  zs_object_kind kind;
  ZoningId id;
  const char* instance_id;
};

std::optional<Start> start_of(const ObjectName& object) {
  const auto kind = zoning_kind(object);
  const char* instance_id = object.text("InstanceID");
  const auto id = read_zoning_id(instance_id);
  if (!kind || !id) return std::nullopt;
  return Start{*kind, *id, instance_id};
}

template <class Record>
std::vector<ZoningObject> as_objects(const std::vector<Record>& records) {
  return {records.begin(), records.end()};
}

// The library gives the same answer for an object without children, one that is not there and one
// that cannot be read: the last is an error.
void check_children(int32_t q, int32_t result, const Start& from) {
  check_memory();
  if (result == 0) return;
  const Shared object = read_zoning_object(q, from.kind, from.id);
  // A zone set without zones is such a failure, too.
  if (object != nullptr && from.kind != ZS_OBJECT_ZONE_SET)
    throw Failure(CMPI_RC_ERR_FAILED, "what %s %.64s holds cannot be read", word_of(from.kind),
                  from.instance_id);
}

// The zones of a zone set, the aliases of a zone.
std::vector<ZoningObject> children(int32_t q, const Start& from) {
  if (from.kind == ZS_OBJECT_ZONE_SET) {
    zs_cim_zone_* chain = nullptr;
    const int32_t result = zs_cim_get_zone_set_zones_by_instance_id(q, from.instance_id, &chain);
    const auto zones = take_chain(chain);
    check_children(q, result, from);
    return as_objects(zones);
  }
  zs_cim_alias_* chain = nullptr;
  const int32_t result = zs_cim_get_zone_zone_aliases_by_instance_id(q, from.instance_id, &chain);
  const auto aliases = take_chain(chain);
  check_children(q, result, from);
  return as_objects(aliases);
}

// The zone sets of a zone, the zones of an alias.
std::vector<ZoningObject> parents(int32_t q, const Start& from) {
  if (from.kind == ZS_OBJECT_ZONE) {
    zs_cim_zone_set_* chain = nullptr;
    const int32_t result =
        zs_cim_get_zone_zone_set_parents_by_instance_id(q, from.instance_id, &chain);
    const auto zone_sets = take_chain(chain);
    check_children(q, result, from);
    return as_objects(zone_sets);
  }
  zs_cim_zone_* chain = nullptr;
  const int32_t result =
      zs_cim_get_zone_alias_zone_parents_by_instance_id(q, from.instance_id, &chain);
  const auto zones = take_chain(chain);
  check_children(q, result, from);
  return as_objects(zones);
}

std::vector<ZoneMembership> memberships_below(int32_t q, const Start& from, const Shared& object) {
  std::vector<ZoneMembership> found;
  for (const ZoningObject& child : children(q, from))
    found.push_back({object, shared(child)});
  return found;
}

template <class Record>
void add_memberships(int32_t q, uint32_t vsan, bool active, std::vector<ZoneMembership>& found) {
  for (const Record& record : zoning_objects_in<Record>(q, vsan, active)) {
    const auto id = read_zoning_id(record.instance_id);
    if (!id) continue;
    const Start from{kind_of_record<Record>(), *id, record.instance_id};
    for (const ZoneMembership& each : memberships_below(q, from, shared(record)))
      found.push_back(each);
  }
}

template <class Record>
void add_elements(int32_t q, uint32_t vsan, bool active, std::vector<ZoneElement>& found) {
  for (const Record& record : zoning_objects_in<Record>(q, vsan, active)) {
    const Shared element = shared(record);
    for (const auto& member : members_of(q, kind_of_record<Record>(), record.instance_id))
      found.push_back({element, member});
  }
}

template <class Record>
void add_hosted(int32_t q, const std::shared_ptr<const VsanRecord>& vsan, bool active,
                std::vector<HostedZoning>& found) {
  for (const Record& record : zoning_objects_in<Record>(q, vsan->entry.vsan_index, active))
    found.push_back({vsan, record});
}

void add_hosted(int32_t q, const VsanRecord& record, std::vector<HostedZoning>& found) {
  const auto vsan = std::make_shared<const VsanRecord>(record);
  for (const bool active : {true, false}) {
    add_hosted<zs_cim_zone_set_>(q, vsan, active, found);
    add_hosted<zs_cim_zone_>(q, vsan, active, found);
    add_hosted<zs_cim_alias_>(q, vsan, active, found);
  }
}

// Spares the reading of zoning where a name stands for no VSAN and all of them are to be compared.
bool may_have_name(const VsanRecord& vsan, const ObjectName& name) {
  const char* wanted = name.text("Name");
  if (wanted == nullptr || std::strchr(wanted, ':') != nullptr) return wanted != nullptr;
  char text[ZS_CIM_INSTANCE_ID_ROOM] = {};
  return vsan_cim_get_vsan_admindomain_key(text, configuration(vsan)) == 0 &&
         std::strcmp(text, wanted) == 0;
}

void check_made(ZoneServiceResult result, const char* what) {
  if (result != ZoneServiceResult::success)
    throw Failure(cim_status(result), "%s (return value %u)", what, static_cast<unsigned>(result));
}

// A reference that a new association needs.
ObjectName end_of(const NewValues& values, const char* role) {
  const auto object = values.reference(role);
  if (!object) throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "\"%s\" is missing", role);
  return *object;
}

// The VSAN in which an association is to be made.
uint32_t vsan_of(const ObjectName& object) {
  const auto named = named_object(object);
  if (!named)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "a %s with these keys is no zoning object",
                  object.class_name().c_str());
  check_editable(named->id.active, word_of(named->kind), object.text("InstanceID"));
  return named->id.vsan;
}

bool is(const ZoningObject& object, zs_object_kind kind) {
  switch (kind) {
    case ZS_OBJECT_ZONE_SET:
      return std::holds_alternative<zs_cim_zone_set_>(object);
    case ZS_OBJECT_ZONE:
      return std::holds_alternative<zs_cim_zone_>(object);
    default:
      return std::holds_alternative<zs_cim_alias_>(object);
  }
}

}  // namespace

// ---- VEXOR_ZoneMemberOfCollection ----

std::vector<ZoneMembership> zone_memberships(int32_t q) {
  std::vector<ZoneMembership> found;
  for (const uint32_t vsan : vsan_numbers(q))
    for (const bool active : {true, false}) {
      add_memberships<zs_cim_zone_set_>(q, vsan, active, found);
      add_memberships<zs_cim_zone_>(q, vsan, active, found);
    }
  return found;
}

std::vector<ZoneMembership> zone_memberships_named(int32_t q, const ObjectName& name) {
  const ObjectName* collection = name.reference("Collection");
  return collection != nullptr ? zone_memberships_of(q, "Collection", *collection)
                               : std::vector<ZoneMembership>{};
}

std::vector<ZoneMembership> zone_memberships_of(int32_t q, const char* role,
                                                const ObjectName& object) {
  const auto from = start_of(object);
  if (!from) return {};
  const Shared start = shared(only_name(from->kind, from->instance_id));
  if (same_name(role, "Collection"))
    return from->kind == ZS_OBJECT_ALIAS ? std::vector<ZoneMembership>{}
                                         : memberships_below(q, *from, start);
  std::vector<ZoneMembership> found;
  if (from->kind == ZS_OBJECT_ZONE_SET) return found;
  for (const ZoningObject& parent : parents(q, *from))
    found.push_back({shared(parent), start});
  return found;
}

CMPIObjectPath* zone_membership_reference(const Target& target, const ZoneMembership& membership) {
  const ZoningObject& collection = *membership.collection;
  const ZoningObject& member = *membership.member;
  if (is(collection, ZS_OBJECT_ZONE_SET))
    return zmoc_fill_reference_zoneSetZone(target.class_name, target.name_space,
                                           instance_id_of(collection), instance_id_of(member),
                                           target.broker);
  return zmoc_fill_reference(target.class_name, target.name_space,
                             &std::get<zs_cim_zone_>(collection), &std::get<zs_cim_alias_>(member),
                             target.broker);
}

CMPIInstance* zone_membership_instance(const Target& target, const ZoneMembership& membership) {
  const ZoningObject& collection = *membership.collection;
  const ZoningObject& member = *membership.member;
  if (is(collection, ZS_OBJECT_ZONE_SET))
    return zmoc_build_instance_zoneSetZone(target.class_name, target.name_space,
                                           instance_id_of(collection), instance_id_of(member),
                                           target.broker);
  return zmoc_build_instance(target.class_name, target.name_space,
                             &std::get<zs_cim_zone_>(collection), &std::get<zs_cim_alias_>(member),
                             target.broker);
}

ZoneMembership create_zone_membership(int32_t q, const NewValues& values) {
  const ObjectName collection = end_of(values, "Collection");
  const ObjectName member = end_of(values, "Member");
  const uint32_t vsan = vsan_of(collection);
  const bool of_zone_set = zoning_kind(collection) == ZS_OBJECT_ZONE_SET;
  check_made(
      of_zone_set ? add_zone(q, vsan, collection, member) : add_alias(q, vsan, collection, member),
      of_zone_set ? "the zone is not added to the zone set"
                  : "the zone alias is not added to the zone");
  return {shared(only_name(collection)), shared(only_name(member))};
}

void delete_zone_membership(int32_t q, const ZoneMembership& membership) {
  const char* collection = instance_id_of(*membership.collection);
  const char* member = instance_id_of(*membership.member);
  const auto parent = read_zoning_id(collection);
  const auto child = read_zoning_id(member);
  if (!parent || !child) throw Failure(CMPI_RC_ERR_FAILED, "the ends cannot be read");
  const bool of_zone_set = is(*membership.collection, ZS_OBJECT_ZONE_SET);
  check_editable(parent->active, of_zone_set ? "zone set" : "zone", collection);
  int32_t error = 0;
  const int32_t status =
      of_zone_set
          ? zs_cim_add_zone_to_zone_set(q, 0, parent->vsan, parent->object, child->object, &error)
          : zs_cim_add_alias_to_zone(q, 0, parent->vsan, parent->object, child->object, &error);
  if (status != 0)
    throw Failure(cim_status(error), "the zone server does not take %.64s out of %.64s (status %d)",
                  member, collection, error);
}

// ---- VEXOR_ZoneElementSettingData ----

std::vector<ZoneElement> zone_elements(int32_t q) {
  std::vector<ZoneElement> found;
  for (const uint32_t vsan : vsan_numbers(q))
    for (const bool active : {true, false}) {
      add_elements<zs_cim_zone_>(q, vsan, active, found);
      add_elements<zs_cim_alias_>(q, vsan, active, found);
    }
  return found;
}

std::vector<ZoneElement> zone_elements_named(int32_t q, const ObjectName& name) {
  const ObjectName* element = name.reference("ManagedElement");
  const ObjectName* setting = name.reference("SettingData");
  const char* wanted = setting != nullptr ? setting->text("InstanceID") : nullptr;
  if (element == nullptr || !read_member_id(wanted)) return {};
  std::vector<ZoneElement> found;
  for (ZoneElement& each : zone_elements_of(q, "ManagedElement", *element)) {
    if (strcasecmp(each.member.instance_id, wanted) != 0) continue;
    // Spelled as the client does.
    std::snprintf(each.member.instance_id, sizeof each.member.instance_id, "%s", wanted);
    found.push_back(each);
  }
  return found;
}

std::vector<ZoneElement> zone_elements_of(int32_t q, const char* role, const ObjectName& object) {
  std::vector<ZoneElement> found;
  if (same_name(role, "SettingData")) {
    const char* instance_id = object.text("InstanceID");
    if (!read_member_id(instance_id)) return found;
    for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ALIAS})
      for (const ZoningObject& parent : parents_of_member(q, kind, instance_id))
        found.push_back({shared(parent), only_name_of_member(instance_id)});
    return found;
  }
  const auto from = start_of(object);
  if (!from || from->kind == ZS_OBJECT_ZONE_SET) return found;
  const Shared element = shared(only_name(from->kind, from->instance_id));
  for (const auto& member : members_of(q, from->kind, from->instance_id))
    found.push_back({element, member});
  return found;
}

CMPIObjectPath* zone_element_reference(const Target& target, const ZoneElement& element) {
  if (const auto* zone = std::get_if<zs_cim_zone_>(element.element.get()))
    return esd_fill_reference_zoneZoneMember(target.class_name, target.name_space, zone,
                                             &element.member, target.broker);
  return esd_fill_reference_zoneAliasZoneMember(target.class_name, target.name_space,
                                                &std::get<zs_cim_alias_>(*element.element),
                                                &element.member, target.broker);
}

CMPIInstance* zone_element_instance(const Target& target, const ZoneElement& element) {
  if (const auto* zone = std::get_if<zs_cim_zone_>(element.element.get()))
    return esd_build_instance_zoneZoneMember(target.class_name, target.name_space, zone,
                                             &element.member, target.broker);
  return esd_build_instance_zoneAliasZoneMember(target.class_name, target.name_space,
                                                &std::get<zs_cim_alias_>(*element.element),
                                                &element.member, target.broker);
}

ZoneElement create_zone_element(int32_t q, const NewValues& values) {
  const ObjectName element = end_of(values, "ManagedElement");
  const ObjectName member = end_of(values, "SettingData");
  check_made(add_member(q, vsan_of(element), element, member), "the zone member is not added");
  return {shared(only_name(element)), only_name_of_member(member.text("InstanceID"))};
}

void delete_zone_element(int32_t q, const ZoneElement& element) {
  const char* instance_id = instance_id_of(*element.element);
  const bool of_zone = is(*element.element, ZS_OBJECT_ZONE);
  const zs_object_kind kind = of_zone ? ZS_OBJECT_ZONE : ZS_OBJECT_ALIAS;
  const auto id = read_zoning_id(instance_id);
  if (!id) throw Failure(CMPI_RC_ERR_FAILED, "the ends cannot be read");
  check_editable(id->active, word_of(kind), instance_id);
  const int32_t result = remove_member_from(q, kind, *id, element.member.instance_id);
  if (result != 0)
    throw Failure(cim_status(result),
                  "the zone server does not take %.160s out of %s %.64s (status %d)",
                  element.member.instance_id, word_of(kind), instance_id, result);
}

// ---- VEXOR_ZoneHostedCollection ----

std::vector<HostedZoning> hosted_zoning(int32_t q) {
  std::vector<HostedZoning> found;
  for (const VsanRecord& vsan : all_vsans(q))
    add_hosted(q, vsan, found);
  return found;
}

std::vector<HostedZoning> hosted_zoning_named(int32_t q, const ObjectName& name) {
  const ObjectName* object = name.reference("Dependent");
  return object != nullptr ? hosted_zoning_of(q, "Dependent", *object)
                           : std::vector<HostedZoning>{};
}

std::vector<HostedZoning> hosted_zoning_of(int32_t q, const char* role, const ObjectName& object) {
  std::vector<HostedZoning> found;
  if (same_name(role, "Antecedent")) {
    for (const VsanRecord& vsan : vsans_named(q, object))
      if (may_have_name(vsan, object)) add_hosted(q, vsan, found);
    return found;
  }
  const auto from = start_of(object);
  if (!from) return found;
  const Shared record = read_zoning_object(q, from->kind, from->id);
  VsanRecord vsan;
  if (record != nullptr && read_vsan(q, from->id.vsan, vsan))
    found.push_back({std::make_shared<const VsanRecord>(vsan), *record});
  return found;
}

CMPIObjectPath* hosted_zoning_reference(const Target& target, const HostedZoning& hosted) {
  const vsanNewEntry_t* entry = &hosted.vsan->entry;
  const mts_dm_sw_conf_* conf = configuration(*hosted.vsan);
  if (const auto* zone_set = std::get_if<zs_cim_zone_set_>(&hosted.object))
    return hosted_collection_fill_reference_zset(target.class_name, target.name_space, entry, conf,
                                                 zone_set, target.broker);
  if (const auto* zone = std::get_if<zs_cim_zone_>(&hosted.object))
    return hosted_collection_fill_reference_zone(target.class_name, target.name_space, entry, conf,
                                                 zone, target.broker);
  return hosted_collection_fill_reference_zalias(target.class_name, target.name_space, entry, conf,
                                                 &std::get<zs_cim_alias_>(hosted.object),
                                                 target.broker);
}

CMPIInstance* hosted_zoning_instance(const Target& target, const HostedZoning& hosted) {
  const vsanNewEntry_t* entry = &hosted.vsan->entry;
  const mts_dm_sw_conf_* conf = configuration(*hosted.vsan);
  if (const auto* zone_set = std::get_if<zs_cim_zone_set_>(&hosted.object))
    return hosted_collection_build_instance_zset(target.class_name, target.name_space, entry, conf,
                                                 zone_set, target.broker);
  if (const auto* zone = std::get_if<zs_cim_zone_>(&hosted.object))
    return hosted_collection_build_instance_zone(target.class_name, target.name_space, entry, conf,
                                                 zone, target.broker);
  return hosted_collection_build_instance_zalias(target.class_name, target.name_space, entry, conf,
                                                 &std::get<zs_cim_alias_>(hosted.object),
                                                 target.broker);
}

// ---- VEXOR_HostedCollection ----

std::vector<VsanRecord> hosted_collections_named(int32_t q, const ObjectName& name) {
  const ObjectName* collection = name.reference("Dependent");
  return collection != nullptr ? hosted_collections_of(q, "Dependent", *collection)
                               : std::vector<VsanRecord>{};
}

std::vector<VsanRecord> hosted_collections_of(int32_t q, const char* role,
                                              const ObjectName& object) {
  if (same_name(role, "Antecedent")) return vsans_named(q, object);
  const uint32_t number = read_vsan_number(object.text("InstanceID"));
  VsanRecord vsan;
  if (number == 0 || !same_name(object.class_name().c_str(), kConnectivityCollectionClass) ||
      !read_vsan(q, number, vsan))
    return {};
  return {vsan};
}

CMPIObjectPath* hosted_collection_reference(const Target& target, const VsanRecord& vsan) {
  return hosted_collection_fill_reference(target.class_name, target.name_space, &vsan.entry,
                                          configuration(vsan),
                                          static_cast<int>(vsan.entry.vsan_index), target.broker);
}

CMPIInstance* hosted_collection_instance(const Target& target, const VsanRecord& vsan) {
  return hosted_collection_build_instance(target.class_name, target.name_space, &vsan.entry,
                                          configuration(vsan),
                                          static_cast<int>(vsan.entry.vsan_index), target.broker);
}

CMPIObjectPath* collection_of_vsan_reference(const Target& target, const VsanRecord& vsan) {
  return connectivity_collection_fill_reference(kConnectivityCollectionClass, target.name_space,
                                                static_cast<int>(vsan.entry.vsan_index),
                                                target.broker);
}

CMPIInstance* collection_of_vsan_instance(const Target& target, const VsanRecord& vsan) {
  return connectivity_collection_build_instance(kConnectivityCollectionClass, target.name_space,
                                                static_cast<int>(vsan.entry.vsan_index),
                                                target.broker);
}

}  // namespace vexor::providers
