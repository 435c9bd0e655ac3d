// What every change passes to the zone server, and the look-up of names that most begin with.
#ifndef ZONING_ZONE_SERVER_H
#define ZONING_ZONE_SERVER_H

#include <cim_utils/zoning_records.h>

#include <cstdint>

#include <switch_platform/records_zone_server.h>
#include <switch_platform/zone_server.h>

namespace cim_utils {

inline constexpr char kEmptyText[] = "";
inline constexpr int32_t kFullDatabase = 0;

// Ends a change: stores the code where somebody wants it. Result: -1.
inline int32_t fail_with(int32_t* error, int32_t code) {
  if (error != nullptr) *error = code;
  return -1;
}

// The name of an object. Larger than any name of the zone server, and zeroed.
struct ObjectName {
  char text[256] = {};
};

// Looks up the name of the object of that kind and id in the database that `active` names. Result:
// 0 or the zone server's.
inline int32_t find_name(int32_t q, uint32_t vsan_id, int32_t active, int32_t kind, uint32_t id,
                         ObjectName* name) {
  zs_context_ context{};
  const int32_t result =
      zs_cmi_get_name_for_id(q, vsan_id, &context, 0, active, kind, id, name->text);
  name->text[sizeof name->text - 1] = '\0';
  return result;
}

}  // namespace cim_utils

#endif  // ZONING_ZONE_SERVER_H
