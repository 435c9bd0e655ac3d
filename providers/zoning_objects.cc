#include "providers/zoning_objects.h"

#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/vsan.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>

#include <cstring>

#include "providers/lock.h"
#include "providers/zoning_results.h"

namespace vexor::providers {

// ---- names ----

std::optional<ZoningId> read_zoning_id(const char* instance_id) {
  if (instance_id == nullptr || std::strlen(instance_id) >= ZS_CIM_INSTANCE_ID_ROOM)
    return std::nullopt;
  int32_t vsan = 0, object = 0, active = 0;
  if (zs_cim_get_fields_from_generic_instance_id(instance_id, &vsan, &object, &active) != 0)
    return std::nullopt;
  // The library reads any number out of any text; only what it writes is a name.
  char written[ZS_CIM_INSTANCE_ID_ROOM];
  zs_cim_get_generic_instance_id(vsan, object, active, written);
  const bool valid = std::strcmp(written, instance_id) == 0 && object > 0 &&
                     (active == 0 || active == 1) &&
                     vsan_cim_check_vsan_index(static_cast<uint32_t>(vsan)) == 0;
  if (!valid) return std::nullopt;
  return ZoningId{static_cast<uint32_t>(vsan), static_cast<uint32_t>(object), active == 1};
}

std::optional<zs_object_kind> zoning_kind(const ObjectName& name) {
  const char* cls = name.class_name().c_str();
  if (same_name(cls, kZoneSetClass)) return ZS_OBJECT_ZONE_SET;
  if (same_name(cls, kZoneClass)) return ZS_OBJECT_ZONE;
  if (same_name(cls, kZoneAliasClass)) return ZS_OBJECT_ALIAS;
  return std::nullopt;
}

const char* word_of(zs_object_kind kind) {
  switch (kind) {
    case ZS_OBJECT_ZONE_SET:
      return "zone set";
    case ZS_OBJECT_ZONE:
      return "zone";
    default:
      return "zone alias";
  }
}

// ---- what the library hands out ----

bool check_read(int32_t result, const char* what, uint32_t vsan) {
  check_memory();
  if (result == 0) return true;
  if (is_not_there(result)) return false;
  throw Failure(CMPI_RC_ERR_FAILED, "the zone server does not give %s of VSAN %u (status %d)", what,
                vsan, result);
}

// ---- objects of one kind ----

namespace {

// Id 0: all of the VSAN.
int32_t read(int32_t q, uint32_t id, uint32_t vsan, bool active, int32_t* count,
             zs_cim_zone_set_** records) {
  return zs_cim_get_zone_set(q, id, vsan, active ? 1 : 0, count, records);
}
int32_t read(int32_t q, uint32_t id, uint32_t vsan, bool active, int32_t* count,
             zs_cim_zone_** records) {
  return zs_cim_get_zone(q, id, vsan, active ? 1 : 0, count, records);
}
int32_t read(int32_t q, uint32_t id, uint32_t vsan, bool active, int32_t* count,
             zs_cim_alias_** records) {
  return zs_cim_get_zone_alias(q, id, vsan, active ? 1 : 0, count, records);
}

template <class Record>
constexpr const char* kPlural = "";
template <>
constexpr const char* kPlural<zs_cim_zone_set_> = "the zone sets";
template <>
constexpr const char* kPlural<zs_cim_zone_> = "the zones";
template <>
constexpr const char* kPlural<zs_cim_alias_> = "the zone aliases";

template <class Record>
std::vector<Record> read_records(int32_t q, uint32_t id, uint32_t vsan, bool active) {
  int32_t count = 0;
  Record* array = nullptr;
  const int32_t result = read(q, id, vsan, active, &count, &array);
  std::vector<Record> records = take_array(array, count);
  if (!check_read(result, kPlural<Record>, vsan)) return {};
  return records;
}

}  // namespace

template <class Record>
std::vector<Record> zoning_objects_in(int32_t q, uint32_t vsan, bool active) {
  return read_records<Record>(q, 0, vsan, active);
}
template std::vector<zs_cim_zone_set_> zoning_objects_in(int32_t, uint32_t, bool);
template std::vector<zs_cim_zone_> zoning_objects_in(int32_t, uint32_t, bool);
template std::vector<zs_cim_alias_> zoning_objects_in(int32_t, uint32_t, bool);

template <class Record>
std::vector<Record> zoning_object(int32_t q, const ZoningId& id) {
  return read_records<Record>(q, id.object, id.vsan, id.active);
}
template std::vector<zs_cim_zone_set_> zoning_object(int32_t, const ZoningId&);
template std::vector<zs_cim_zone_> zoning_object(int32_t, const ZoningId&);
template std::vector<zs_cim_alias_> zoning_object(int32_t, const ZoningId&);

CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_zone_set_& zone_set) {
  return zone_set_fill_reference(kZoneSetClass, target.name_space, zone_set.instance_id,
                                 target.broker);
}

CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_zone_& zone) {
  return zone_fill_reference(kZoneClass, target.name_space, zone.instance_id, target.broker);
}

CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_alias_& alias) {
  return zone_alias_fill_reference(kZoneAliasClass, target.name_space, alias.instance_id,
                                   target.broker);
}

CMPIInstance* zoning_instance(const Target& target, const zs_cim_zone_set_& zone_set) {
  return zone_set_build_instance(kZoneSetClass, target.name_space, &zone_set, target.properties,
                                 target.broker);
}

CMPIInstance* zoning_instance(const Target& target, const zs_cim_zone_& zone) {
  return zone_build_instance(kZoneClass, target.name_space, &zone, target.properties,
                             target.broker);
}

CMPIInstance* zoning_instance(const Target& target, const zs_cim_alias_& alias) {
  return zone_alias_build_instance(kZoneAliasClass, target.name_space, &alias, target.properties,
                                   target.broker);
}

void check_editable(bool active, const char* word, const char* instance_id) {
  if (active)
    throw Failure(CMPI_RC_ERR_NOT_SUPPORTED,
                  "%s %.64s is in the active database, which changes with the activation of a zone "
                  "set only",
                  word, instance_id);
}

void delete_zoning_object(int32_t q, zs_object_kind kind, const char* instance_id) {
  const auto id = read_zoning_id(instance_id);
  if (!id) throw Failure(CMPI_RC_ERR_FAILED, "%.64s is no %s", instance_id, word_of(kind));
  check_editable(id->active, word_of(kind), instance_id);
  void* record = nullptr;  // a deletion gives none
  int32_t error = 0;
  if (zs_cim_create_zoning_object_with_id(q, 0, id->vsan, kind, id->object, &record, &error) != 0)
    throw Failure(cim_status(error), "the zone server does not delete %s %.64s (status %d)",
                  word_of(kind), instance_id, error);
}

// ---- objects of any kind ----

const char* instance_id_of(const ZoningObject& object) {
  return std::visit([](const auto& record) -> const char* { return record.instance_id; }, object);
}

CMPIObjectPath* zoning_reference(const Target& target, const ZoningObject& object) {
  return std::visit([&](const auto& record) { return zoning_reference(target, record); }, object);
}

CMPIInstance* zoning_instance(const Target& target, const ZoningObject& object) {
  return std::visit([&](const auto& record) { return zoning_instance(target, record); }, object);
}

namespace {

template <class Record>
std::shared_ptr<const ZoningObject> read_object(int32_t q, const ZoningId& id) {
  const std::vector<Record> found = zoning_object<Record>(q, id);
  return found.empty() ? nullptr : std::make_shared<const ZoningObject>(found[0]);
}

}  // namespace

std::shared_ptr<const ZoningObject> read_zoning_object(int32_t q, zs_object_kind kind,
                                                       const ZoningId& id) {
  switch (kind) {
    case ZS_OBJECT_ZONE_SET:
      return read_object<zs_cim_zone_set_>(q, id);
    case ZS_OBJECT_ZONE:
      return read_object<zs_cim_zone_>(q, id);
    default:
      return read_object<zs_cim_alias_>(q, id);
  }
}

}  // namespace vexor::providers
