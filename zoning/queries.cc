// Zone sets, zones and aliases, one by its id or all of a VSAN, as records.
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>

#include <cstdio>
#include <cstring>

#include "common/c_heap.h"
#include "zoning/zone_server_entries.h"
#include "zoning/zone_server_reads.h"

namespace cim_utils {
namespace {

constexpr uint32_t kAll = 0;

void fill_own_fields(const zs_zone_set_entry_&, zs_cim_zone_set_*) {}
void fill_own_fields(const zs_alias_entry_&, zs_cim_alias_*) {}
void fill_own_fields(const zs_zone_entry_& entry, zs_cim_zone_* zone) {
  zone->read_only = static_cast<uint8_t>(is_zone_readonly(entry.attributes));
  std::printf("zone %s read-only %d\n", zone->instance_id, zone->read_only);
}

template <typename Entry, typename Record>
void fill(const Entry& entry, uint32_t vsan_id, int32_t active, Record* record) {
  zs_cim_get_generic_instance_id(static_cast<int32_t>(vsan_id),
                                 static_cast<int32_t>(entry.object_id), active,
                                 record->instance_id);
  static_assert(sizeof record->name == sizeof entry.name);
  std::memcpy(record->name, entry.name, sizeof record->name);
  record->vsan_id = vsan_id;
  record->active = static_cast<uint8_t>(active);
  fill_own_fields(entry, record);
}

// Zeroed records for the entries; null for none. -1 when memory runs out.
template <typename Record>
int32_t make_records(int32_t count, CHeap<Record>* records) {
  if (count <= 0) return 0;
  *records = allocate<Record>(static_cast<size_t>(count));
  return *records != nullptr ? 0 : -1;
}

template <typename Entry, typename Record>
int32_t get(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active, int32_t* count,
            Record** array) {
  if (count == nullptr || array == nullptr) return -1;
  *count = 0;
  *array = nullptr;
  Entries<Entry> entries;
  const int32_t result = read_entries(q, id, vsan_id, active, &entries);
  if (result != 0) return result;
  CHeap<Record> records;
  if (make_records(entries.count, &records) != 0) return -1;
  for (int32_t i = 0; i < entries.count; ++i)
    fill(entries.list[i], vsan_id, active, &records[i]);
  *count = entries.count;
  *array = records.release();
  return 0;
}

template <typename Entry, typename Record>
int32_t get_by_instance_id(int32_t q, const char* instance_id, Record** array) {
  if (array == nullptr) return -1;
  *array = nullptr;
  int32_t vsan = 0;
  int32_t id = 0;
  int32_t active = 0;
  if (zs_cim_get_fields_from_generic_instance_id(instance_id, &vsan, &id, &active) != 0) return -1;
  int32_t count = 0;
  return get<Entry>(q, static_cast<uint32_t>(id), static_cast<uint32_t>(vsan), active, &count,
                    array);
}

// As the callers of the raw readers get it: the block, and the number of entries in it.
template <typename Entry>
int32_t get_raw(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active, int32_t* count,
                Entry** reply) {
  if (count == nullptr || reply == nullptr) return -1;
  Entries<Entry> entries;
  const int32_t result = read_raw(q, id, vsan_id, active, &entries);
  *count = entries.count;
  *reply = entries.list.release();
  return result;
}

template <typename Entry, typename Record>
int32_t convert(const Entry* entries, Record** array, int32_t active, int32_t count) {
  if (array == nullptr) return -1;
  *array = nullptr;
  if (entries == nullptr && count > 0) return -1;
  CHeap<Record> records;
  if (make_records(count, &records) != 0) return -1;
  for (int32_t i = 0; i < count; ++i)
    fill(entries[i], entries[i].vsan_id, active, &records[i]);
  *array = records.release();
  return 0;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

// ---- Zone sets

int32_t zs_cim_get_zone_set(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                            int32_t* count, zs_cim_zone_set_** array) {
  return get<zs_zone_set_entry_>(q, id, vsan_id, active, count, array);
}

int32_t zs_cim_get_zone_set_by_ids(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                                   zs_cim_zone_set_** array) {
  int32_t count = 0;
  return zs_cim_get_zone_set(q, id, vsan_id, active, &count, array);
}

int32_t zs_cim_get_zone_set_by_instance_id(int32_t q, const char* instance_id,
                                           zs_cim_zone_set_** array) {
  return get_by_instance_id<zs_zone_set_entry_>(q, instance_id, array);
}

int32_t zs_cim_get_all_active_zone_sets(int32_t q, uint32_t vsan_id, int32_t* count,
                                        zs_cim_zone_set_** array) {
  return zs_cim_get_zone_set(q, kAll, vsan_id, kActive, count, array);
}

int32_t zs_cim_get_all_non_active_zone_sets(int32_t q, uint32_t vsan_id, int32_t* count,
                                            zs_cim_zone_set_** array) {
  return zs_cim_get_zone_set(q, kAll, vsan_id, kNotActive, count, array);
}

int32_t zs_cim_get_all_zone_sets(void) {
  return 0;
}

int32_t zs_cim_get_cmi_zone_set(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                                int32_t* count, zs_zone_set_entry_** entries) {
  return get_raw(q, id, vsan_id, active, count, entries);
}

int32_t zs_cim_convert_cmi_zone_set_to_cim_zone_set(const zs_zone_set_entry_* entries,
                                                    zs_cim_zone_set_** array, int32_t active,
                                                    int32_t count) {
  return convert(entries, array, active, count);
}

// ---- Zones

int32_t zs_cim_get_zone(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active, int32_t* count,
                        zs_cim_zone_** array) {
  return get<zs_zone_entry_>(q, id, vsan_id, active, count, array);
}

int32_t zs_cim_get_zone_by_ids(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                               zs_cim_zone_** array) {
  int32_t count = 0;
  return zs_cim_get_zone(q, id, vsan_id, active, &count, array);
}

int32_t zs_cim_get_zone_by_instance_id(int32_t q, const char* instance_id, zs_cim_zone_** array) {
  return get_by_instance_id<zs_zone_entry_>(q, instance_id, array);
}

int32_t zs_cim_get_all_active_zones(int32_t q, uint32_t vsan_id, int32_t* count,
                                    zs_cim_zone_** array) {
  return zs_cim_get_zone(q, kAll, vsan_id, kActive, count, array);
}

int32_t zs_cim_get_all_non_active_zones(int32_t q, uint32_t vsan_id, int32_t* count,
                                        zs_cim_zone_** array) {
  return zs_cim_get_zone(q, kAll, vsan_id, kNotActive, count, array);
}

int32_t zs_cim_get_all_zones(void) {
  return 0;
}

int32_t zs_cim_get_cmi_zone(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                            int32_t* count, zs_zone_entry_** entries) {
  return get_raw(q, id, vsan_id, active, count, entries);
}

int32_t zs_cim_convert_cmi_zone_to_cim_zone(const zs_zone_entry_* entries, zs_cim_zone_** array,
                                            int32_t active, int32_t count) {
  return convert(entries, array, active, count);
}

// ---- Aliases

int32_t zs_cim_get_zone_alias(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                              int32_t* count, zs_cim_alias_** array) {
  return get<zs_alias_entry_>(q, id, vsan_id, active, count, array);
}

int32_t zs_cim_get_zone_alias_by_ids(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                                     zs_cim_alias_** array) {
  int32_t count = 0;
  return zs_cim_get_zone_alias(q, id, vsan_id, active, &count, array);
}

int32_t zs_cim_get_zone_alias_by_instance_id(int32_t q, const char* instance_id,
                                             zs_cim_alias_** array) {
  return get_by_instance_id<zs_alias_entry_>(q, instance_id, array);
}

int32_t zs_cim_get_all_active_zone_aliases(int32_t q, uint32_t vsan_id, int32_t* count,
                                           zs_cim_alias_** array) {
  return zs_cim_get_zone_alias(q, kAll, vsan_id, kActive, count, array);
}

int32_t zs_cim_get_all_non_active_zone_aliases(int32_t q, uint32_t vsan_id, int32_t* count,
                                               zs_cim_alias_** array) {
  return zs_cim_get_zone_alias(q, kAll, vsan_id, kNotActive, count, array);
}

int32_t zs_cim_get_all_zone_aliases(void) {
  return 0;
}

int32_t zs_cim_get_cmi_zone_alias(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                                  int32_t* count, zs_alias_entry_** entries) {
  return get_raw(q, id, vsan_id, active, count, entries);
}

int32_t zs_cim_convert_cmi_zone_alias_to_cim_zone_alias(const zs_alias_entry_* entries,
                                                        zs_cim_alias_** array, int32_t active,
                                                        int32_t count) {
  return convert(entries, array, active, count);
}
