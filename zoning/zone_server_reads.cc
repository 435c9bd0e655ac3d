#include "zoning/zone_server_reads.h"

#include <cstddef>
#include <cstdio>

#include <switch_platform/zone_server.h>

namespace cim_utils {
namespace {

// What goes in as the number of entries; the zone server gives as many as there are.
constexpr int32_t kOneObject = 1;
constexpr int32_t kAllObjects = 32;

template <typename Entry, typename ReadOne, typename ReadAll>
int32_t read_with(ReadOne read_one, ReadAll read_all, int32_t q, uint32_t id, uint32_t vsan,
                  int32_t active, Entries<Entry>* entries) {
  zs_context_ context = {};
  int32_t count = id != 0 ? kOneObject : kAllObjects;
  void* reply = nullptr;
  const int32_t result = id != 0 ? read_one(q, 1, vsan, &context, 0, active, id, &count, &reply)
                                 : read_all(q, vsan, &context, 0, active, &count, &reply);
  entries->list.reset(static_cast<Entry*>(reply));
  entries->count = result == 0 ? whole_entries(reply, count, sizeof(Entry)) : 0;
  if (result != 0) entries->list.reset();
  return result;
}

}  // namespace

// The zone server's functions are called and their addresses never taken: a process that only
// loads the library need not have them.
int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_zone_set_entry_>* entries) {
  return read_with([](auto... arguments) { return zs_cmi_get_zone_set(arguments...); },
                   [](auto... arguments) { return zs_cmi_get_all_zone_sets_in_vsan(arguments...); },
                   q, id, vsan, active, entries);
}

int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_zone_entry_>* entries) {
  return read_with([](auto... arguments) { return zs_cmi_get_zone(arguments...); },
                   [](auto... arguments) { return zs_cmi_get_all_zones_in_vsan(arguments...); }, q,
                   id, vsan, active, entries);
}

int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_alias_entry_>* entries) {
  return read_with([](auto... arguments) { return zs_cmi_get_alias(arguments...); },
                   [](auto... arguments) { return zs_cmi_get_all_aliases_in_vsan(arguments...); },
                   q, id, vsan, active, entries);
}

int32_t read_raw(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                 Entries<zs_zone_entry_>* entries) {
  const int32_t result = read_entries(q, id, vsan, active, entries);
  std::printf(" num_entries in zs_cim_get_cmi_zone %d \n", entries->count);
  return result;
}

}  // namespace cim_utils
