// Members: added to zones and aliases, and removed from them.
#include <cim_utils/formats.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "common/c_heap.h"
#include "common/list_builder.h"
#include "zoning/member_values.h"
#include "zoning/trace.h"
#include "zoning/zone_server.h"

namespace cim_utils {
namespace {

// The zone's or alias's own kinds, and a third for an alias that goes into a zone.
constexpr int32_t kAliasIntoZone = 22;

// A member as it is sent. The zone server reads as many bytes as the type asks for, so that there
// is room for them whatever the caller's length says; what the caller did not give is zero.
class MemberBuffer {
 public:
  explicit MemberBuffer(int32_t value_length)
      : bytes_(allocate<uint8_t>(sizeof(zs_member_change_) +
                                 std::max(static_cast<size_t>(value_length), sizeof(Ipv6Value)))) {}
  bool allocated() const { return bytes_ != nullptr; }
  const uint8_t* get() const { return bytes_.get(); }
  const uint8_t* value() const { return bytes_.get() + sizeof(zs_member_change_); }

  void fill(zs_member_type type, const void* value, size_t length) {
    zs_member_change_ head{};
    // An interface given with its switch's WWN is kept as that interface's port WWN.
    head.type =
        static_cast<uint8_t>(type == ZS_MEMBER_INTERFACE_WWN ? ZS_MEMBER_LOCAL_INTERFACE : type);
    head.length_code = length_code(type);
    std::memcpy(bytes_.get(), &head, sizeof head);
    std::memcpy(bytes_.get() + sizeof head, value,
                type == ZS_MEMBER_IPV6 ? sizeof(Ipv6Value) : length);
  }

 private:
  // Not the length of the value: the zone server expects 8 for all but these.
  static uint8_t length_code(zs_member_type type) {
    switch (type) {
      case ZS_MEMBER_DOMAIN_PORT:
      case ZS_MEMBER_FCID:
        return 4;
      case ZS_MEMBER_IPV6:
        return 24;
      default:
        return 8;
    }
  }

  CHeap<uint8_t> bytes_;
};

void trace_value(zs_member_type type, const uint8_t* value) {
  switch (type) {
    case ZS_MEMBER_PORT_WWN:
    case ZS_MEMBER_INTERFACE_WWN:
    case ZS_MEMBER_NODE_WWN:
    case ZS_MEMBER_LOCAL_INTERFACE:
    case ZS_MEMBER_DOMAIN_INTERFACE: {
      char text[CIM_WWN_TEXT_ROOM];
      cim_sprintf_wwn_uint_array(text, value);
      std::printf("wwn_str is %s \n", text);
      break;
    }
    case ZS_MEMBER_IPV6: {
      char text[CIM_IPV6_TEXT_ROOM];
      cim_sprintf_ipv6_addr_with_prefix(text, value);
      std::printf(" ipv6_addr is %s \n", text);
      break;
    }
    default:
      break;
  }
}

int32_t send(int32_t kind, int32_t q, int32_t operation, uint32_t vsan_id, const char* parent,
             const MemberBuffer& member, const void* value) {
  zs_context_ context{};
  switch (kind) {
    case ZS_OBJECT_ZONE:
      std::printf("Zone ");
      return zs_cmi_add_zone_member(q, operation, vsan_id, parent, -1, member.get(), nullptr,
                                    nullptr, &context);
    case ZS_OBJECT_ALIAS:
      std::printf("Zone Alias ");
      return zs_cmi_add_alias_member(q, operation, vsan_id, parent, -1, member.get(), kEmptyText,
                                     kEmptyText, &context);
    case kAliasIntoZone:
      return zs_cmi_add_alias_to_zone(q, operation, vsan_id, parent,
                                      static_cast<const char*>(value), kEmptyText, kEmptyText,
                                      &context);
    default:
      return -1;
  }
}

// A member of the full database, as its instance id tells it.
struct Member {
  const char* instance_id;
  uint32_t vsan_id = 0;
  uint8_t zs_type = 0;
  uint8_t value[ZS_CIM_VALUE_ROOM] = {};
  int32_t value_length = 0;
  uint8_t active = 0;
};

// Removes the member from every parent, the last one first. `failure` is the format of the line
// about a parent that keeps it.
template <typename Entry>
void remove_from(int32_t q, const Member& member, zs_object_kind kind, OwnedList& parents,
                 const char* failure) {
  parents.head = reversed(parents.head);
  for (const GSList* node = parents.head; node != nullptr; node = node->next) {
    Entry entry;
    std::memcpy(&entry, node->data, sizeof entry);
    int32_t error = 0;
    if (zs_cim_add_zoning_member(q, 0, member.vsan_id, kFullDatabase, kind, entry.object_id,
                                 static_cast<zs_member_type>(member.zs_type), member.value,
                                 member.value_length, &error) != 0) {
      std::printf(failure, member.instance_id, static_cast<int>(entry.object_id), error);
    }
  }
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t zs_cim_add_zoning_member(int32_t q, int32_t operation, uint32_t vsan_id, int32_t active,
                                 zs_object_kind parent_kind, uint32_t parent_id,
                                 zs_member_type member_type, const void* value,
                                 int32_t value_length, int32_t* error) {
  if (value == nullptr || value_length < 0) return fail_with(error, -1);
  MemberBuffer buffer(value_length);
  if (!buffer.allocated()) return fail_with(error, -1);
  const int traced_byte = value_length > 2 ? static_cast<const uint8_t*>(value)[2] : 0;
  std::printf("\t add/remove zoning member %d -- %d -- %d -- %d\n", static_cast<int>(parent_id),
              static_cast<int>(member_type), traced_byte, value_length);

  int32_t kind = parent_kind;
  ObjectName parent;
  int32_t result = find_name(q, vsan_id, active, kind, parent_id, &parent);
  std::printf("\t\t result (zs_cmi_get_name_for_id) %d\n", result);
  if (result != 0) return fail_with(error, result);

  if (member_type == ZS_MEMBER_ALIAS) {
    std::printf("Alias name is %s \n", static_cast<const char*>(value));
    kind = kAliasIntoZone;
  } else {
    buffer.fill(member_type, value, static_cast<size_t>(value_length));
    trace_value(member_type, buffer.value());
    if (member_type == ZS_MEMBER_IPV6) trace_place();
  }
  std::printf("\t\t Zone Name in zs_cmi_add_zone_member %s\n", parent.text);
  result = send(kind, q, operation, vsan_id, parent.text, buffer, value);
  std::printf("\t\t result %d\n", result);
  return result == 0 ? 0 : fail_with(error, result);
}

int32_t zs_cim_remove_zone_member_from_all_parents(int32_t q, const char* member_instance_id) {
  if (member_instance_id == nullptr) return -1;
  std::printf("removing all zone member %s\n", member_instance_id);
  Member member{member_instance_id};
  if (zs_cim_get_fields_from_member_instance_id(member_instance_id, &member.vsan_id,
                                                &member.zs_type, member.value, &member.value_length,
                                                &member.active, 0) != 0 ||
      member.active != 0) {
    std::printf("Invalid Zone member %s\n", member_instance_id);
    return -1;
  }

  OwnedList zones;
  if (zs_cim_get_zone_member_zone_parents(q, member.vsan_id, kFullDatabase, member_instance_id,
                                          &zones.head) != 0) {
    return -1;
  }
  remove_from<zs_zone_entry_>(q, member, ZS_OBJECT_ZONE, zones,
                              "Fail to remove zone member %s from zone %d, Error:%d\n");
  OwnedList aliases;
  if (zs_cim_get_zone_member_zone_alias_parents(q, member.vsan_id, kFullDatabase,
                                                member_instance_id, &aliases.head) != 0) {
    return -1;
  }
  remove_from<zs_alias_entry_>(q, member, ZS_OBJECT_ALIAS, aliases,
                               "Fail to remove zone member %s from zone alias  %d, Error:%d\n");
  return 0;
}
