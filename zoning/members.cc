// Members of zones and aliases as records.
#include <cim_utils/formats.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>
#include <strings.h>

#include <cstdio>
#include <cstring>

#include <switch_platform/records_zone_server.h>
#include <switch_platform/zone_server.h>

#include "common/c_heap.h"
#include "common/seen_texts.h"
#include "zoning/chain.h"
#include "zoning/member_entries.h"
#include "zoning/trace.h"
#include "zoning/zone_server_entries.h"
#include "zoning/zone_server_reads.h"

namespace cim_utils {
namespace {

void put_text(const void* text, int32_t told_length, zs_cim_zone_member_* member) {
  const auto* const characters = static_cast<const char*>(text);
  std::memcpy(member->member_id, characters, strnlen(characters, shown_length(told_length)));
}

// Fills in type and display text of a zeroed record. False for a type that is not shown.
bool show(const ParsedMember& parsed, zs_cim_zone_member_* member) {
  uint32_t cim_type = 0;
  if (get_cim_member_type_from_member_type(parsed.type, &cim_type) != 0) return false;
  const uint8_t* const value = parsed.value.data();
  wwn_ wwn;
  std::memcpy(&wwn, value, sizeof wwn);
  char* const text = member->member_id;
  switch (cim_type) {
    case ZS_CIM_MEMBER_PORT_WWN:
    case ZS_CIM_MEMBER_NODE_WWN:
    case ZS_CIM_MEMBER_LOCAL_INTERFACE:
      cim_sprintf_wwn(text, &wwn);
      break;
    case ZS_CIM_MEMBER_DOMAIN_PORT:
      zs_cim_sprintf_dom_port(text, value);
      break;
    case ZS_CIM_MEMBER_FCID:
      cim_sprintf_fcid(text, value);
      break;
    case ZS_CIM_MEMBER_WWN_LUN:
      cim_sprintf_wwn_lun(text, &wwn, parsed.lun.data());
      break;
    case ZS_CIM_MEMBER_FCID_LUN:
      cim_sprintf_fcid_lun(text, value, parsed.lun.data());
      break;
    case ZS_CIM_MEMBER_IPV4:
      zs_cim_sprintf_ip_with_mask(text, value);
      break;
    case ZS_CIM_MEMBER_DOMAIN_INTERFACE:
      zs_cim_sprintf_dom_interface(text, value);
      break;
    case ZS_CIM_MEMBER_IPV6: {
      char address[CIM_IPV6_TEXT_ROOM] = {};
      cim_sprintf_ipv6_addr_with_prefix(address, value);
      std::printf(" ipv6_addr is %s \n", address);
      // Cut at the length of the packed value, deliberately: long addresses are not shown whole.
      put_text(address, parsed.length, member);
      break;
    }
    case ZS_CIM_MEMBER_ALIAS:
    case ZS_CIM_MEMBER_SYMBOLIC_NAME:
    case ZS_CIM_MEMBER_UNSIZED_TEXT:
      put_text(value, parsed.length, member);
      break;
    default:
      return false;
  }
  member->member_type = static_cast<uint16_t>(cim_type);
  return true;
}

// Turns entry i into a zeroed record. A member without an instance id leaves it zeroed. False when
// the platform's parser finds a type that is not shown.
bool fill(const MemberEntries& entries, int32_t i, uint32_t vsan_id, int32_t active,
          zs_cim_zone_member_* member) {
  const MemberValue value = entries.value(i);
  if (zs_cim_get_member_instance_id(vsan_id, entries.type(i), value.data(), active,
                                    member->instance_id) != 0) {
    trace_place();
    *member = {};
    return true;
  }
  return show(entries.parse(i), member);
}

// The members of a VSAN as a chain, each once.
class DistinctMembers {
 public:
  DistinctMembers(int32_t q, uint32_t vsan_id, int32_t active, int32_t* count,
                  zs_cim_zone_member_** head)
      : q_(q), vsan_id_(vsan_id), active_(active), count_(count), chain_(head) {
    *count = 0;
  }

  // Adds those of all zones or aliases.
  template <typename Entry>
  void add_from_all(zs_member_parent_kind kind) {
    Entries<Entry> parents;
    if (read_raw(q_, 0, vsan_id_, active_, &parents) != 0) return;
    for (const Entry& parent : parents) {
      for_each_object(parent.members, [&](uint32_t member_id) {
        add(kind, parent.object_id, member_id);
        return true;
      });
    }
  }

 private:
  void add(zs_member_parent_kind kind, uint32_t parent_id, uint32_t member_id) {
    int32_t count = 0;
    zs_cim_zone_member_* read = nullptr;
    if (zs_cim_get_zone_member(q_, member_id, vsan_id_, active_, kind, parent_id, &count, &read) !=
        0)
      return;
    CHeap<zs_cim_zone_member_> member(read);
    if (kind == ZS_MEMBER_PARENT_ALIAS) trace_place();
    if (member == nullptr || !is_new(*read)) return;
    chain_.append(member.release());
    ++*count_;
  }

  // Members are the same when type and display text are.
  bool is_new(const zs_cim_zone_member_& member) {
    char key[ZS_CIM_INSTANCE_ID_ROOM] = {};
    return zs_cim_get_member_instance_id_with_cim_member(
               vsan_id_, static_cast<zs_cim_member_type>(member.member_type), member.member_id,
               active_, key) == 0 &&
           seen_.first_time(key);
  }

  int32_t q_;
  uint32_t vsan_id_;
  int32_t active_;
  int32_t* count_;
  ChainBuilder<zs_cim_zone_member_> chain_;
  SeenTexts seen_;
};

// What is kept of the display text of a member that was searched.
constexpr size_t kKeptText = 127;

// Searches a chain for the instance id, in any case of its letters, and frees the chain. `passed`
// sees each record up to the match.
template <typename Passed>
bool find_in(zs_cim_zone_member_* chain, const char* instance_id, char (&text)[kKeptText + 1],
             Passed passed) {
  bool found = false;
  for (const zs_cim_zone_member_* member = chain; member != nullptr && !found;
       member = member->next) {
    passed(*member);
    found = strcasecmp(member->instance_id, instance_id) == 0;
    if (found) std::memcpy(text, member->member_id, strnlen(member->member_id, kKeptText));
  }
  free_chain(chain);
  return found;
}

bool find_active(int32_t q, uint32_t vsan_id, const char* instance_id,
                 char (&text)[kKeptText + 1]) {
  int32_t count = 0;
  zs_cim_zone_member_* chain = nullptr;
  zs_cim_get_all_active_zone_members(q, vsan_id, &count, &chain);
  const bool found = find_in(chain, instance_id, text, [](const zs_cim_zone_member_&) {});
  std::printf(" value of found in active zone  is %d \n ", found ? 0 : -1);
  return found;
}

bool find_non_active(int32_t q, uint32_t vsan_id, const char* instance_id,
                     char (&text)[kKeptText + 1]) {
  int32_t count = 0;
  zs_cim_zone_member_* chain = nullptr;
  zs_cim_get_all_non_active_zone_members(q, vsan_id, &count, &chain);
  const bool found = find_in(chain, instance_id, text, [&](const zs_cim_zone_member_& member) {
    std::printf("(zmp_na)->instance_id %s  instance_id %s \n", member.instance_id, instance_id);
    std::printf("(zmp_na)->member_id %s  \n", member.member_id);
  });
  std::printf(" value of found in non active zone is %d \n ", found ? 0 : -1);
  return found;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t zs_cim_get_zone_member(int32_t q, uint32_t member_id, uint32_t vsan_id, int32_t active,
                               zs_member_parent_kind parent_kind, uint32_t parent_id,
                               int32_t* count, zs_cim_zone_member_** members) {
  if (member_id == 0) return 0;
  if (count == nullptr || members == nullptr) return -1;
  *count = 0;
  *members = nullptr;
  zs_context_ context = {};
  int32_t announced = 1;
  void* reply = nullptr;
  const int32_t result = zs_cmi_get_member(q, 1, vsan_id, &context, 0, active, parent_kind,
                                           parent_id, member_id, &announced, &reply, 0);
  const MemberEntries entries(CHeap<uint8_t>(static_cast<uint8_t*>(reply)), announced);
  if (result != 0) return -1;
  if (entries.count() == 0) return 0;
  auto records = allocate<zs_cim_zone_member_>(static_cast<size_t>(entries.count()));
  if (records == nullptr) return -1;
  for (int32_t i = 0; i < entries.count(); ++i) {
    if (!fill(entries, i, vsan_id, active, &records[i])) return -1;
  }
  *count = entries.count();
  *members = records.release();
  return 0;
}

int32_t zs_cim_get_all_zone_members(int32_t q, uint32_t vsan_id, int32_t active, int32_t* count,
                                    zs_cim_zone_member_** members) {
  if (count == nullptr || members == nullptr) return -1;
  DistinctMembers distinct(q, vsan_id, active, count, members);
  distinct.add_from_all<zs_zone_entry_>(ZS_MEMBER_PARENT_ZONE);
  distinct.add_from_all<zs_alias_entry_>(ZS_MEMBER_PARENT_ALIAS);
  return 0;
}

int32_t zs_cim_get_all_active_zone_members(int32_t q, uint32_t vsan_id, int32_t* count,
                                           zs_cim_zone_member_** members) {
  return zs_cim_get_all_zone_members(q, vsan_id, kActive, count, members);
}

int32_t zs_cim_get_all_non_active_zone_members(int32_t q, uint32_t vsan_id, int32_t* count,
                                               zs_cim_zone_member_** members) {
  return zs_cim_get_all_zone_members(q, vsan_id, kNotActive, count, members);
}

int32_t zs_cim_get_zone_member_by_instance_id(int32_t q, const char* instance_id,
                                              zs_cim_zone_member_** member) {
  if (instance_id == nullptr || member == nullptr) return -1;
  *member = nullptr;
  auto found = allocate<zs_cim_zone_member_>();
  if (found == nullptr) return -1;
  uint32_t vsan_id = 0;
  uint8_t type = 0;
  char unused[ZS_CIM_VALUE_ROOM] = {};
  int32_t length = 0;
  uint8_t active = 0;
  if (zs_cim_get_fields_from_member_instance_id(instance_id, &vsan_id, &type, unused, &length,
                                                &active, 1) != 0)
    return -1;
  // Both databases are searched, whatever the id says. One that cannot be read has no members.
  char text[kKeptText + 1] = {};
  if (!find_active(q, vsan_id, instance_id, text) &&
      !find_non_active(q, vsan_id, instance_id, text))
    return -1;
  uint32_t cim_type = 0;
  get_cim_member_type_from_member_type(static_cast<zs_member_type>(type), &cim_type);
  std::memcpy(found[0].instance_id, instance_id,
              strnlen(instance_id, sizeof found[0].instance_id - 1));
  std::memcpy(found[0].member_id, text, sizeof text);
  found[0].member_type = static_cast<uint16_t>(cim_type);
  *member = found.release();
  return 0;
}
