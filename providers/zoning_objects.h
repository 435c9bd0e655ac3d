// VEXOR_ZoneSet, VEXOR_Zone and VEXOR_ZoneAlias: what has a name in the zoning of a VSAN.
//
// Each VSAN has a full database, which is edited, and an active one; an object of either is an
// instance of its own. Lists hold those of the active database in front of those of the full one.
#pragma once

#include <cim_utils/zoning_records.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "providers/class.h"
#include "providers/vsan.h"

namespace vexor::providers {

// ---- names ----

// What an instance id tells.
struct ZoningId {
  uint32_t vsan;
  uint32_t object;
  bool active;
};

// Result: none for a text that no zoning object has as its instance id. Asks nobody.
std::optional<ZoningId> read_zoning_id(const char* instance_id);

inline constexpr char kZoneSetClass[] = "VEXOR_ZoneSet";
inline constexpr char kZoneClass[] = "VEXOR_Zone";
inline constexpr char kZoneAliasClass[] = "VEXOR_ZoneAlias";
inline constexpr char kZoneMemberClass[] = "VEXOR_ZoneMemberSettingData";

// The kind of object that a path names; none for another class.
std::optional<zs_object_kind> zoning_kind(const ObjectName& name);

// What kinds of objects are called in messages: "zone set", "zone", "zone alias".
const char* word_of(zs_object_kind kind);

// ---- what the library hands out ----

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};

// The records of an array, which is freed.
template <class Record>
std::vector<Record> take_array(Record* array, int32_t count) {
  const std::unique_ptr<Record, FreeBlock> owner(array);
  if (array == nullptr || count <= 0) return {};
  return {array, array + count};
}

// The records of a chain, which is freed.
template <class Record>
std::vector<Record> take_chain(Record* head) {
  struct FreeChain {
    void operator()(Record* record) const {
      while (record != nullptr) {
        Record* const next = record->next;
        std::free(record);
        record = next;
      }
    }
  };
  const std::unique_ptr<Record, FreeChain> owner(head);
  std::vector<Record> records;
  for (const Record* record = head; record != nullptr; record = record->next) {
    records.push_back(*record);
    records.back().next = nullptr;
  }
  return records;
}

// Throws Failure unless the result is 0 or says that there is nothing.
// Result: whether it is 0.
bool check_read(int32_t result, const char* what, uint32_t vsan);

// ---- objects of one kind ----

// For Record: zs_cim_zone_set_, zs_cim_zone_ or zs_cim_alias_.

// Those of one database, in one exchange.
template <class Record>
std::vector<Record> zoning_objects_in(int32_t q, uint32_t vsan, bool active);
// The one with the id, in one exchange; none when there is none.
template <class Record>
std::vector<Record> zoning_object(int32_t q, const ZoningId& id);

// Those of both databases of every VSAN.
template <class Record>
std::vector<Record> all_zoning_objects(int32_t q) {
  std::vector<Record> all;
  for (const uint32_t vsan : vsan_numbers(q))
    for (const bool active : {true, false})
      for (const Record& record : zoning_objects_in<Record>(q, vsan, active))
        all.push_back(record);
  return all;
}

// By "InstanceID".
template <class Record>
std::vector<Record> zoning_objects_named(int32_t q, const ObjectName& name) {
  const auto id = read_zoning_id(name.text("InstanceID"));
  return id ? zoning_object<Record>(q, *id) : std::vector<Record>{};
}

// The class is that of the record, whatever the target says.
CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_zone_set_& zone_set);
CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_zone_& zone);
CMPIObjectPath* zoning_reference(const Target& target, const zs_cim_alias_& alias);
CMPIInstance* zoning_instance(const Target& target, const zs_cim_zone_set_& zone_set);
CMPIInstance* zoning_instance(const Target& target, const zs_cim_zone_& zone);
CMPIInstance* zoning_instance(const Target& target, const zs_cim_alias_& alias);

// Throws Failure unless it is in the full database: the active one is changed by activation only.
void check_editable(bool active, const char* word, const char* instance_id);

// Also out of whatever holds it.
void delete_zoning_object(int32_t q, zs_object_kind kind, const char* instance_id);

template <class Record>
constexpr zs_object_kind kind_of_record() {
  if constexpr (std::is_same_v<Record, zs_cim_zone_set_>) return ZS_OBJECT_ZONE_SET;
  if constexpr (std::is_same_v<Record, zs_cim_zone_>) return ZS_OBJECT_ZONE;
  if constexpr (std::is_same_v<Record, zs_cim_alias_>) return ZS_OBJECT_ALIAS;
}

template <class Record>
void delete_zoning_record(int32_t q, const Record& record) {
  delete_zoning_object(q, kind_of_record<Record>(), record.instance_id);
}

// ---- objects of any kind, as ends of associations ----

using ZoningObject = std::variant<zs_cim_zone_set_, zs_cim_zone_, zs_cim_alias_>;

const char* instance_id_of(const ZoningObject& object);
CMPIObjectPath* zoning_reference(const Target& target, const ZoningObject& object);
CMPIInstance* zoning_instance(const Target& target, const ZoningObject& object);

// Of the kind, by its id; null when there is none.
std::shared_ptr<const ZoningObject> read_zoning_object(int32_t q, zs_object_kind kind,
                                                       const ZoningId& id);

}  // namespace vexor::providers
