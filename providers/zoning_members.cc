#include "providers/zoning_members.h"

#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/collections.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>
#include <malloc.h>
#include <strings.h>
#include <switch_platform/bitset.h>
#include <switch_platform/records_zone_server.h>
#include <switch_platform/zone_server.h>
#include <switch_platform/zone_server_results.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>

#include "providers/zoning_results.h"

namespace vexor::providers {
namespace {

struct FreeList {
  void operator()(GSList* list) const { cim_g_slist_destroy(list, nullptr); }
};

// ---- parents ----

template <class Entry>
struct ParentAccess;

template <>
struct ParentAccess<zs_zone_entry_> {
  using Record = zs_cim_zone_;
  static constexpr zs_object_kind kKind = ZS_OBJECT_ZONE;
  static constexpr zs_member_parent_kind kParentKind = ZS_MEMBER_PARENT_ZONE;
  static int32_t parents(int32_t q, const MemberId& id, const char* member, GSList** list) {
    return zs_cim_get_zone_member_zone_parents(q, id.vsan, id.active ? 1 : 0, member, list);
  }
  static int32_t convert(const zs_zone_entry_* entry, Record** record, bool active) {
    return zs_cim_convert_cmi_zone_to_cim_zone(entry, record, active ? 1 : 0, 1);
  }
  static int32_t read(int32_t q, const ZoningId& id, int32_t* count, zs_zone_entry_** entry) {
    return zs_cim_get_cmi_zone(q, id.object, id.vsan, id.active ? 1 : 0, count, entry);
  }
};

template <>
struct ParentAccess<zs_alias_entry_> {
  using Record = zs_cim_alias_;
  static constexpr zs_object_kind kKind = ZS_OBJECT_ALIAS;
  static constexpr zs_member_parent_kind kParentKind = ZS_MEMBER_PARENT_ALIAS;
  static int32_t parents(int32_t q, const MemberId& id, const char* member, GSList** list) {
    return zs_cim_get_zone_member_zone_alias_parents(q, id.vsan, id.active ? 1 : 0, member, list);
  }
  static int32_t convert(const zs_alias_entry_* entry, Record** record, bool active) {
    return zs_cim_convert_cmi_zone_alias_to_cim_zone_alias(entry, record, active ? 1 : 0, 1);
  }
  static int32_t read(int32_t q, const ZoningId& id, int32_t* count, zs_alias_entry_** entry) {
    return zs_cim_get_cmi_zone_alias(q, id.object, id.vsan, id.active ? 1 : 0, count, entry);
  }
};

// Copies of the zone server's entries that hold the member.
template <class Entry>
std::vector<Entry> parent_entries(int32_t q, const MemberId& id, const char* member) {
  GSList* list = nullptr;
  const int32_t result = ParentAccess<Entry>::parents(q, id, member, &list);
  const std::unique_ptr<GSList, FreeList> owner(list);
  if (result != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "what holds zone member %.200s cannot be read", member);
  std::vector<Entry> entries;
  for (const GSList* node = list; node != nullptr; node = node->next) {
    Entry entry;
    std::memcpy(&entry, node->data, sizeof entry);
    entries.push_back(entry);
  }
  return entries;
}

template <class Entry>
std::vector<ZoningObject> parents(int32_t q, const MemberId& id, const char* member) {
  using Record = typename ParentAccess<Entry>::Record;
  std::vector<ZoningObject> objects;
  for (const Entry& entry : parent_entries<Entry>(q, id, member)) {
    Record* array = nullptr;
    const int32_t result = ParentAccess<Entry>::convert(&entry, &array, id.active);
    const std::vector<Record> records = take_array(array, 1);
    if (result != 0 || records.empty())
      throw Failure(CMPI_RC_ERR_FAILED, "there is not enough memory");
    objects.emplace_back(records[0]);
  }
  return objects;
}

// ---- packed members ----

bool is_text(zs_member_type type) {
  return type == ZS_MEMBER_ALIAS || type == ZS_MEMBER_TEXT || type == ZS_MEMBER_SYMBOLIC_NAME ||
         type == ZS_MEMBER_UNSIZED_TEXT;
}

// Takes a reply of zs_cmi_get_member apart. Result: none for one that holds no whole member.
std::optional<PackedMember> unpack(const uint8_t* reply, size_t size) {
  if (reply == nullptr || size <= sizeof(zs_member_entry_)) return std::nullopt;
  zs_member_entry_ head;
  std::memcpy(&head, reply, sizeof head);
  PackedMember member{static_cast<zs_member_type>(head.type), 0, {}};
  const size_t available = std::min(size - sizeof head, member.value.size() - 1);
  std::copy_n(reply + sizeof head, available, member.value.begin());
  member.length =
      is_text(member.type)
          ? static_cast<int32_t>(std::strlen(reinterpret_cast<const char*>(member.value.data()))) +
                1
          : get_member_value_length(member.type);
  if (member.length < 0 ||
      (!is_text(member.type) && static_cast<size_t>(member.length) > available))
    return std::nullopt;
  if (is_text(member.type))
    std::fill(member.value.begin() + member.length, member.value.end(), uint8_t{0});
  return member;
}

std::optional<PackedMember> read_member(int32_t q, const ZoningId& parent,
                                        zs_member_parent_kind kind, uint32_t number) {
  zs_context_ context{};
  int32_t count = 1;
  void* reply = nullptr;
  const int32_t result = zs_cmi_get_member(q, 1, parent.vsan, &context, 0, parent.active ? 1 : 0,
                                           kind, parent.object, number, &count, &reply, 0);
  const std::unique_ptr<void, FreeBlock> owner(reply);
  if (result != 0 || count < 1) return std::nullopt;
  return unpack(static_cast<const uint8_t*>(reply), malloc_usable_size(reply));
}

bool has_name(const PackedMember& member, const ZoningId& parent, const char* instance_id) {
  char own[ZS_CIM_INSTANCE_ID_ROOM] = {};
  return zs_cim_get_member_instance_id(parent.vsan, member.type, member.value.data(),
                                       parent.active ? 1 : 0, own) == 0 &&
         strcasecmp(own, instance_id) == 0;
}

// Those of one zone or alias with that name. Long texts may share one.
template <class Entry>
std::vector<PackedMember> packed_members(int32_t q, const ZoningId& parent, const Entry& entry,
                                         const char* member) {
  std::vector<PackedMember> found;
  for (int32_t bit = bitset_next_bit(entry.members, -1); bit >= 0;
       bit = bitset_next_bit(entry.members, bit)) {
    const auto each =
        read_member(q, parent, ParentAccess<Entry>::kParentKind, static_cast<uint32_t>(bit) + 1);
    if (each && has_name(*each, parent, member)) found.push_back(*each);
  }
  return found;
}

template <class Entry>
std::optional<PackedMember> first_packed_member(int32_t q, const MemberId& id, const char* member) {
  for (const Entry& entry : parent_entries<Entry>(q, id, member)) {
    const auto found = packed_members(q, {id.vsan, entry.object_id, id.active}, entry, member);
    if (!found.empty()) return found[0];
  }
  return std::nullopt;
}

int32_t remove_packed(int32_t q, zs_object_kind kind, const ZoningId& parent,
                      const PackedMember& member) {
  // The library would take the alias's name for that of a zone.
  if (member.type == ZS_MEMBER_ALIAS && kind == ZS_OBJECT_ALIAS) return ZS_BAD_MEMBER;
  int32_t error = 0;
  const int32_t result =
      zs_cim_add_zoning_member(q, 0, parent.vsan, 0, kind, parent.object, member.type,
                               member.value.data(), member.length, &error);
  if (result == 0) return 0;
  return error != 0 ? error : -1;
}

// Result: 0, or the first that the zone server refused with.
template <class Entry>
int32_t remove_from_entry(int32_t q, const ZoningId& parent, const Entry& entry,
                          const char* member) {
  const auto found = packed_members(q, parent, entry, member);
  int32_t result = found.empty() ? ZS_NO_SUCH_MEMBER : 0;
  for (const PackedMember& each : found) {
    const int32_t removed = remove_packed(q, ParentAccess<Entry>::kKind, parent, each);
    if (result == 0) result = removed;
  }
  return result;
}

template <class Entry>
int32_t remove_from_object(int32_t q, const ZoningId& parent, const char* member) {
  int32_t count = 0;
  Entry* array = nullptr;
  const int32_t result = ParentAccess<Entry>::read(q, parent, &count, &array);
  const std::vector<Entry> entries = take_array(array, count);
  if (result != 0) return result;
  if (entries.empty()) return ZS_NO_SUCH_OBJECT;
  return remove_from_entry(q, parent, entries[0], member);
}

// Goes on where one is refused. Result: the first refusal.
template <class Entry>
int32_t remove_from_all(int32_t q, const MemberId& id, const char* member) {
  int32_t result = 0;
  for (const Entry& entry : parent_entries<Entry>(q, id, member)) {
    const int32_t removed =
        remove_from_entry(q, {id.vsan, entry.object_id, id.active}, entry, member);
    if (result == 0 && removed != ZS_NO_SUCH_MEMBER) result = removed;
  }
  return result;
}

// ---- records ----

// The zone server's members that no name can be made for are left out.
std::vector<zs_cim_zone_member_> take_members(zs_cim_zone_member_* chain) {
  std::vector<zs_cim_zone_member_> members = take_chain(chain);
  std::erase_if(members,
                [](const zs_cim_zone_member_& member) { return member.instance_id[0] == '\0'; });
  return members;
}

std::optional<zs_cim_zone_member_> with_name(const std::vector<zs_cim_zone_member_>& members,
                                             const char* instance_id) {
  for (const zs_cim_zone_member_& member : members)
    if (strcasecmp(member.instance_id, instance_id) == 0) return member;
  return std::nullopt;
}

std::optional<zs_cim_zone_member_> find_member(int32_t q, const char* instance_id) {
  for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ALIAS}) {
    const std::vector<ZoningObject> holders = parents_of_member(q, kind, instance_id);
    if (holders.empty()) continue;
    return with_name(members_of(q, kind, instance_id_of(holders[0])), instance_id);
  }
  return std::nullopt;
}

}  // namespace

std::optional<MemberId> read_member_id(const char* instance_id) {
  if (instance_id == nullptr) return std::nullopt;
  const std::string_view text = instance_id;
  const size_t first = text.find('^');
  const size_t last = text.rfind('^');
  if (text.size() >= ZS_CIM_INSTANCE_ID_ROOM || std::count(text.begin(), text.end(), '^') < 3)
    return std::nullopt;
  const std::string_view active = text.substr(last + 1);
  uint32_t vsan = 0;
  const auto [stopped, error] = std::from_chars(text.data(), text.data() + first, vsan);
  if (error != std::errc{} || stopped != text.data() + first || text.front() == '0' ||
      (active != "0" && active != "1"))
    return std::nullopt;
  return MemberId{vsan, active == "1"};
}

std::vector<zs_cim_zone_member_> all_zone_members(int32_t q) {
  std::vector<zs_cim_zone_member_> all;
  for (const uint32_t vsan : vsan_numbers(q))
    for (const int32_t active : {1, 0}) {
      int32_t count = 0;
      zs_cim_zone_member_* chain = nullptr;
      const int32_t result = zs_cim_get_all_zone_members(q, vsan, active, &count, &chain);
      const std::vector<zs_cim_zone_member_> members = take_members(chain);
      if (check_read(result, "the zone members", vsan))
        all.insert(all.end(), members.begin(), members.end());
    }
  return all;
}

std::vector<zs_cim_zone_member_> zone_members_named(int32_t q, const ObjectName& name) {
  const char* instance_id = name.text("InstanceID");
  if (!read_member_id(instance_id)) return {};
  auto member = find_member(q, instance_id);
  if (!member) return {};
  // Spelled as the client does.
  std::snprintf(member->instance_id, sizeof member->instance_id, "%s", instance_id);
  return {*member};
}

CMPIObjectPath* zone_member_reference(const Target& target, const zs_cim_zone_member_& member) {
  return zone_member_fill_reference(kZoneMemberClass, target.name_space, member.instance_id,
                                    target.broker);
}

CMPIInstance* zone_member_instance(const Target& target, const zs_cim_zone_member_& member) {
  return zone_member_build_instance(kZoneMemberClass, target.name_space, &member, target.properties,
                                    target.broker);
}

void delete_zone_member(int32_t q, const zs_cim_zone_member_& member) {
  const auto id = read_member_id(member.instance_id);
  if (!id) throw Failure(CMPI_RC_ERR_FAILED, "%.200s is no zone member", member.instance_id);
  check_editable(id->active, "zone member", member.instance_id);
  const int32_t from_zones = remove_from_all<zs_zone_entry_>(q, *id, member.instance_id);
  const int32_t from_aliases = remove_from_all<zs_alias_entry_>(q, *id, member.instance_id);
  const int32_t result = from_zones != 0 ? from_zones : from_aliases;
  if (result != 0)
    throw Failure(cim_status(result),
                  "the zone server does not remove zone member %.200s everywhere (status %d)",
                  member.instance_id, result);
}

std::vector<zs_cim_zone_member_> members_of(int32_t q, zs_object_kind kind,
                                            const char* instance_id) {
  const auto id = read_zoning_id(instance_id);
  if (!id) return {};
  zs_cim_zone_member_* chain = nullptr;
  const int32_t result =
      kind == ZS_OBJECT_ZONE
          ? zs_cim_get_zone_zone_members_by_instance_id(q, instance_id, &chain)
          : zs_cim_get_zone_alias_zone_members_by_instance_id(q, instance_id, &chain);
  std::vector<zs_cim_zone_member_> members = take_members(chain);
  // The library does not tell why there are none.
  if (result != 0 && read_zoning_object(q, kind, *id) != nullptr)
    throw Failure(CMPI_RC_ERR_FAILED, "the members of %s %.64s cannot be read", word_of(kind),
                  instance_id);
  return members;
}

std::vector<ZoningObject> parents_of_member(int32_t q, zs_object_kind kind,
                                            const char* member_instance_id) {
  const auto id = read_member_id(member_instance_id);
  if (!id) return {};
  return kind == ZS_OBJECT_ZONE ? parents<zs_zone_entry_>(q, *id, member_instance_id)
                                : parents<zs_alias_entry_>(q, *id, member_instance_id);
}

std::optional<PackedMember> packed_member(int32_t q, const char* member_instance_id) {
  const auto id = read_member_id(member_instance_id);
  if (!id) return std::nullopt;
  const auto in_zone = first_packed_member<zs_zone_entry_>(q, *id, member_instance_id);
  return in_zone ? in_zone : first_packed_member<zs_alias_entry_>(q, *id, member_instance_id);
}

int32_t remove_member_from(int32_t q, zs_object_kind kind, const ZoningId& parent,
                           const char* member_instance_id) {
  return kind == ZS_OBJECT_ZONE
             ? remove_from_object<zs_zone_entry_>(q, parent, member_instance_id)
             : remove_from_object<zs_alias_entry_>(q, parent, member_instance_id);
}

}  // namespace vexor::providers
