// Reads of the zone server's databases, each written once.
//
// `active` is 1 for the active database and 0 for the full one, and is passed on as it is. Id 0
// reads all objects of the VSAN. Result: 0, or the zone server's own; without success there are no
// entries.
#ifndef ZONING_ZONE_SERVER_READS_H
#define ZONING_ZONE_SERVER_READS_H

#include <cstdint>

#include <switch_platform/records_zone_server.h>

#include "zoning/zone_server_entries.h"

namespace cim_utils {

// The flag of each database.
inline constexpr int32_t kActive = 1;
inline constexpr int32_t kNotActive = 0;

int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_zone_set_entry_>* entries);
int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_zone_entry_>* entries);
int32_t read_entries(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                     Entries<zs_alias_entry_>* entries);

// The same for what looks at the entries themselves; the number of zones is traced.
int32_t read_raw(int32_t q, uint32_t id, uint32_t vsan, int32_t active,
                 Entries<zs_zone_entry_>* entries);
template <typename Entry>
int32_t read_raw(int32_t q, uint32_t id, uint32_t vsan, int32_t active, Entries<Entry>* entries) {
  return read_entries(q, id, vsan, active, entries);
}

}  // namespace cim_utils

#endif  // ZONING_ZONE_SERVER_READS_H
