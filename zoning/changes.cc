// Zone sets, zones and aliases: created, deleted, put into each other, activated, distributed.
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_queries.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <switch_platform/mts.h>

#include "common/c_heap.h"
#include "zoning/zone_server.h"

namespace cim_utils {
namespace {

// Results of the zone server that are not failures.
constexpr int32_t kActivationAccepted = 0x40200038;
constexpr int32_t kActivationAcceptedToo = 0x40200039;
constexpr int32_t kDistributionAccepted = 0x40200079;
// The one failure of a distribution that has a result of its own.
constexpr int32_t kDistributionRefused = 0x40200091;
constexpr int32_t kDistributionRefusedResult = 145;

// The error of an activation whose zone set has no name.
constexpr int32_t kUnknownZoneSet = 1;

// The policy of a VSAN, and its CIM states.
constexpr uint32_t kPermit = 1;
constexpr int32_t kStateUnknown = 0;
constexpr int32_t kStatePermit = 2;
constexpr int32_t kStateDeny = 3;

// Hands the one record of an array on; an array of none is a failure.
template <typename Record>
int32_t hand_out(int32_t result, int32_t count, Record* array, void** record) {
  CHeap<Record> owned(array);
  if (result != 0) return result;
  if (count < 1 || array == nullptr) return -1;
  *record = owned.release();
  return 0;
}

// Reads an object of the full database as an array of one record of its kind. Result: 0, -1, or the
// zone server's.
int32_t read_object(int32_t q, uint32_t vsan_id, zs_object_kind kind, uint32_t id, void** record) {
  int32_t count = 0;
  switch (kind) {
    case ZS_OBJECT_ZONE: {
      zs_cim_zone_* zone = nullptr;
      const int32_t result = zs_cim_get_zone(q, id, vsan_id, kFullDatabase, &count, &zone);
      return hand_out(result, count, zone, record);
    }
    case ZS_OBJECT_ZONE_SET: {
      zs_cim_zone_set_* zone_set = nullptr;
      const int32_t result = zs_cim_get_zone_set(q, id, vsan_id, kFullDatabase, &count, &zone_set);
      return hand_out(result, count, zone_set, record);
    }
    case ZS_OBJECT_ALIAS: {
      zs_cim_alias_* alias = nullptr;
      const int32_t result = zs_cim_get_zone_alias(q, id, vsan_id, kFullDatabase, &count, &alias);
      return hand_out(result, count, alias, record);
    }
  }
  return -1;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t zs_cim_create_zoning_object(int32_t q, int32_t operation, uint32_t vsan_id,
                                    zs_object_kind kind, const char* name, void** record,
                                    int32_t* error) {
  if (name == nullptr || (record == nullptr && operation != 0)) return fail_with(error, -1);
  if (record != nullptr) *record = nullptr;
  zs_context_ context{};
  int32_t result = zs_cmi_create_zoning_object(q, operation, vsan_id, kind, -1, name, kEmptyText,
                                               kEmptyText, &context);
  if (result != 0) return fail_with(error, result);
  if (operation == 0) return 0;

  uint32_t id = 0;
  context = {};  // the zone server may have written there
  result = zs_cmi_get_id_for_name(q, vsan_id, &context, 0, kFullDatabase, kind, name, &id);
  if (result != 0) return fail_with(error, result);
  // Should this fail, the object stays: others may use it from now on.
  result = read_object(q, vsan_id, kind, id, record);
  return result == 0 ? 0 : fail_with(error, result);
}

int32_t zs_cim_create_zoning_object_with_id(int32_t q, int32_t operation, uint32_t vsan_id,
                                            zs_object_kind kind, uint32_t id, void** record,
                                            int32_t* error) {
  if (record == nullptr && operation != 0) return fail_with(error, -1);
  if (record != nullptr) *record = nullptr;
  ObjectName name;
  const int32_t result = find_name(q, vsan_id, kFullDatabase, kind, id, &name);
  if (result != 0) return fail_with(error, result);
  return zs_cim_create_zoning_object(q, operation, vsan_id, kind, name.text, record, error);
}

int32_t zs_cim_add_zone_to_zone_set(int32_t q, int32_t operation, uint32_t vsan_id,
                                    uint32_t zone_set_id, uint32_t zone_id, int32_t* error) {
  ObjectName zone_set;
  int32_t result = find_name(q, vsan_id, kFullDatabase, ZS_OBJECT_ZONE_SET, zone_set_id, &zone_set);
  if (result != 0) return fail_with(error, result);
  ObjectName zone;
  result = find_name(q, vsan_id, kFullDatabase, ZS_OBJECT_ZONE, zone_id, &zone);
  if (result != 0) return fail_with(error, result);
  zs_context_ context{};
  result = zs_cmi_add_zone_to_zone_set(q, operation, vsan_id, zone_set.text, zone.text, kEmptyText,
                                       kEmptyText, &context);
  return result == 0 ? 0 : fail_with(error, result);
}

int32_t zs_cim_add_alias_to_zone(int32_t q, int32_t operation, uint32_t vsan_id, uint32_t zone_id,
                                 uint32_t alias_id, int32_t* error) {
  ObjectName zone;
  int32_t result = find_name(q, vsan_id, kFullDatabase, ZS_OBJECT_ZONE, zone_id, &zone);
  if (result != 0) return fail_with(error, result);
  ObjectName alias;
  result = find_name(q, vsan_id, kFullDatabase, ZS_OBJECT_ALIAS, alias_id, &alias);
  if (result != 0) return fail_with(error, result);
  zs_context_ context{};
  result = zs_cmi_add_alias_to_zone(q, operation, vsan_id, zone.text, alias.text, kEmptyText,
                                    kEmptyText, &context);
  return result == 0 ? 0 : fail_with(error, result);
}

int32_t zs_cim_activate_zone_set(int32_t q, uint32_t vsan_id, int32_t active, uint32_t zone_set_id,
                                 const int32_t* operation, int32_t* error) {
  if (operation == nullptr) return fail_with(error, -1);
  ObjectName name;
  if (find_name(q, vsan_id, active, ZS_OBJECT_ZONE_SET, zone_set_id, &name) != 0) {
    std::fwrite("Invalid Zone Set", 1, 16, stdout);
    std::puts("zs_cim_activate_zone_set : Invalid Zone Set");
    return fail_with(error, kUnknownZoneSet);
  }
  zs_context_ context{};
  const int32_t result =
      zs_cmi_activate_zone_set(q, *operation, vsan_id, name.text, kEmptyText, kEmptyText, &context);
  if (result == 0 || result == kActivationAccepted || result == kActivationAcceptedToo) return 0;
  std::puts("zs_cim_activate_zone_set : Error Code Set and Returned");
  return fail_with(error, result);
}

int32_t zs_cim_distribute_zone_set(int32_t q, uint32_t vsan_id, int32_t* error) {
  zs_context_ context{};
  const int32_t result = zs_cmi_zoneset_distribute(q, vsan_id, kEmptyText, kEmptyText, &context);
  if (result == kDistributionAccepted) return 0;
  if (error != nullptr) *error = result;
  if (result != kDistributionRefused) return result & 0xFFFF;
  std::printf("%s\n", syserr2str(result));
  return kDistributionRefusedResult;
}

int32_t zs_cim_get_default_zoning_state(int32_t q, uint32_t vsan_id) {
  zs_context_ context{};
  void* reply = nullptr;
  const int32_t result = zs_cmi_get_all_policies(q, 1, vsan_id, &context, 0, &reply);
  const std::unique_ptr<void, Free> policies(reply);
  if (result != 0 || policies == nullptr) return kStateUnknown;
  return zs_cmi_get_policy(policies.get(), 0, 0, 0) == kPermit ? kStatePermit : kStateDeny;
}
