// Every zoning query against a zone server that answers whatever the input says: failures with and
// without replies, untrue counts, entries with any ids, bit sets and member types.
#include <cim_utils/collections.h>
#include <cim_utils/zoning_queries.h>

#include <cstring>

#include <switch_platform/zone_server.h>

#include "fuzz/fuzzed_services.h"

namespace {

constexpr int32_t kQueue = 7;
constexpr uint32_t kVsan = 5;

// The largest entry and a half of it.
constexpr size_t kLargestReply = 2016;

int32_t answer(int32_t* count, void** reply) {
  if (input.empty() || --exchanges_left < 0) return -1;
  const uint8_t what = input.byte();
  if ((what & 1) != 0) *count = static_cast<int32_t>(input.word()) - 0x100;
  if ((what & 2) != 0) {
    const size_t size = 1 + input.word() % kLargestReply;
    *reply = std::malloc(size);
    input.fill(*reply, size);
  }
  return (what & 0x1c) == 0x1c ? static_cast<int8_t>(input.byte()) : 0;
}

template <typename Record>
void free_chain(Record* head) {
  while (head != nullptr) {
    Record* const next = head->next;
    std::free(head);
    head = next;
  }
}

// Runs a query that gives a chain.
template <typename Record>
void run(int32_t (*query)(int32_t, const char*, Record**), const char* id) {
  Record* head = nullptr;
  query(kQueue, id, &head);
  free_chain(head);
}

template <typename Record>
void run_all(int32_t (*query)(int32_t, uint32_t, uint32_t, int32_t, int32_t*, Record**)) {
  Record* records = nullptr;
  int32_t count = 0;
  query(kQueue, input.byte() & 1, kVsan, 1, &count, &records);
  // What is counted can be read.
  volatile uint8_t last = 0;
  for (int32_t i = 0; i < count; ++i)
    last = reinterpret_cast<const uint8_t*>(&records[i])[sizeof(Record) - 1];
  (void)last;
  std::free(records);
}

void run_list(int32_t (*query)(int32_t, const char*, GSList**), const char* id) {
  GSList* list = nullptr;
  query(kQueue, id, &list);
  cim_g_slist_destroy(list, nullptr);
}

}  // namespace

extern "C" {

int32_t zs_cmi_get_zone_set(int32_t, int32_t, uint32_t, void*, int32_t, int32_t, uint32_t,
                            int32_t* count, void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_zone(int32_t, int32_t, uint32_t, void*, int32_t, int32_t, uint32_t,
                        int32_t* count, void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_alias(int32_t, int32_t, uint32_t, void*, int32_t, int32_t, uint32_t,
                         int32_t* count, void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_all_zone_sets_in_vsan(int32_t, uint32_t, void*, int32_t, int32_t, int32_t* count,
                                         void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_all_zones_in_vsan(int32_t, uint32_t, void*, int32_t, int32_t, int32_t* count,
                                     void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_all_aliases_in_vsan(int32_t, uint32_t, void*, int32_t, int32_t, int32_t* count,
                                       void** reply) {
  return answer(count, reply);
}
int32_t zs_cmi_get_member(int32_t, int32_t, uint32_t, void*, int32_t, int32_t, int32_t, uint32_t,
                          uint32_t, int32_t* count, void** reply, int32_t) {
  return answer(count, reply);
}

// Any type and length; the value behind the header, the LUN where it is or nowhere.
int32_t zs_api_parse_member(const void* entry, uint8_t* type, int32_t* length, const void** value,
                            const void** lun) {
  const auto* const bytes = static_cast<const uint8_t*>(entry);
  const uint8_t what = input.byte();
  *type = (what & 1) != 0 ? input.byte() : bytes[20];
  *length = static_cast<int32_t>(input.word()) - 0x100;
  *value = (what & 2) != 0 ? nullptr : bytes + 24;
  *lun = (what & 4) != 0 ? nullptr : bytes + 32;
  return (what & 0x38) == 0x38 ? -1 : 0;
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  start_run(data, size);
  static constexpr const char* kObjects[] = {"5_1_1", "5_2_0", "5_0_1", "5_12", "", "5_-1_1"};
  const char* const object = kObjects[input.byte() % 6];
  static constexpr const char* kMembers[] = {"5^2^10000000C9000011^1", "5^12^a^0", "^", "5^5^^1"};
  const char* const member = kMembers[input.byte() % 4];

  run_all(zs_cim_get_zone_set);
  run_all(zs_cim_get_zone);
  run_all(zs_cim_get_zone_alias);
  run_all(zs_cim_get_cmi_zone_set);
  run_all(zs_cim_get_cmi_zone);
  run_all(zs_cim_get_cmi_zone_alias);

  zs_cim_zone_member_* members = nullptr;
  int32_t count = 0;
  zs_cim_get_zone_member(kQueue, 1, kVsan, 1, ZS_MEMBER_PARENT_ZONE, 1, &count, &members);
  std::free(members);
  zs_cim_get_all_zone_members(kQueue, kVsan, 1, &count, &members);
  free_chain(members);

  run(zs_cim_get_zone_set_zones_by_instance_id, object);
  run(zs_cim_get_zone_zone_aliases_by_instance_id, object);
  run(zs_cim_get_zone_zone_members_by_instance_id, object);
  run(zs_cim_get_zone_alias_zone_members_by_instance_id, object);
  run(zs_cim_get_zone_zone_set_parents_by_instance_id, object);
  run(zs_cim_get_zone_alias_zone_parents_by_instance_id, object);
  run(zs_cim_get_zone_member_by_instance_id, member);
  run_list(zs_cim_get_zone_member_zone_parents_by_instance_id, member);
  run_list(zs_cim_get_zone_member_zone_alias_parents_by_instance_id, member);
  return 0;
}

}  // extern "C"
