#include "providers/zoning_members.h"

#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/collections.h>
#include <cim_utils/vsan.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>
#include <strings.h>
#include <switch_platform/records_zone_server.h>
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
  static int32_t parents(int32_t q, const MemberId& id, const char* member, GSList** list) {
    return zs_cim_get_zone_member_zone_parents(q, id.vsan, id.active ? 1 : 0, member, list);
  }
  static int32_t convert(const zs_zone_entry_* entry, Record** record, bool active) {
    return zs_cim_convert_cmi_zone_to_cim_zone(entry, record, active ? 1 : 0, 1);
  }
};

template <>
struct ParentAccess<zs_alias_entry_> {
  using Record = zs_cim_alias_;
  static int32_t parents(int32_t q, const MemberId& id, const char* member, GSList** list) {
    return zs_cim_get_zone_member_zone_alias_parents(q, id.vsan, id.active ? 1 : 0, member, list);
  }
  static int32_t convert(const zs_alias_entry_* entry, Record** record, bool active) {
    return zs_cim_convert_cmi_zone_alias_to_cim_zone_alias(entry, record, active ? 1 : 0, 1);
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

// The types that are shown with a CIM type, the one that it is read back as first.
std::vector<zs_member_type> types_shown_as(uint16_t cim_type) {
  switch (cim_type) {
    case ZS_CIM_MEMBER_PORT_WWN:
      return {ZS_MEMBER_PORT_WWN};
    case ZS_CIM_MEMBER_FCID:
      return {ZS_MEMBER_FCID};
    case ZS_CIM_MEMBER_DOMAIN_PORT:
      return {ZS_MEMBER_DOMAIN_PORT};
    case ZS_CIM_MEMBER_ALIAS:
      return {ZS_MEMBER_ALIAS};
    case ZS_CIM_MEMBER_LOCAL_INTERFACE:
      return {ZS_MEMBER_LOCAL_INTERFACE};
    case ZS_CIM_MEMBER_NODE_WWN:
      return {ZS_MEMBER_NODE_WWN};
    case ZS_CIM_MEMBER_IPV4:
      return {ZS_MEMBER_IPV4};
    case ZS_CIM_MEMBER_IPV6:
      return {ZS_MEMBER_IPV6};
    case ZS_CIM_MEMBER_DOMAIN_INTERFACE:
      return {ZS_MEMBER_DOMAIN_INTERFACE};
    case ZS_CIM_MEMBER_SYMBOLIC_NAME:
      return {ZS_MEMBER_SYMBOLIC_NAME, ZS_MEMBER_TEXT};
    case ZS_CIM_MEMBER_UNSIZED_TEXT:
      return {ZS_MEMBER_UNSIZED_TEXT};
    case ZS_CIM_MEMBER_WWN_LUN:
      return {ZS_MEMBER_WWN_LUN, ZS_MEMBER_WWN_LUN_2};
    case ZS_CIM_MEMBER_FCID_LUN:
      return {ZS_MEMBER_FCID_LUN, ZS_MEMBER_FCID_LUN_2};
    default:
      return {};
  }
}

// The text of the value inside an instance id: between the second circumflex and the last.
std::string key_text(const char* instance_id) {
  const std::string_view text = instance_id;
  const size_t second = text.find('^', text.find('^') + 1);
  return std::string(text.substr(second + 1, text.rfind('^') - second - 1));
}

bool read_byte(std::string_view text, uint8_t& byte) {
  const auto [stopped, error] = std::from_chars(text.data(), text.data() + text.size(), byte);
  return error == std::errc{} && stopped == text.data() + text.size();
}

// The library's reader takes no domain and no port 0, which the zone server may hold.
bool pack_domain_port(const std::string& text, PackedMember& member) {
  const size_t colon = text.find(':');
  return colon != std::string::npos && read_byte(text.substr(0, colon), member.value[0]) &&
         read_byte(text.substr(colon + 1), member.value[3]);
}

// Written "fc1/5: 7", read "fc1/5;7".
bool pack_domain_interface(const std::string& text, PackedMember& member) {
  const size_t colon = text.rfind(':');
  if (colon == std::string::npos) return false;
  const size_t domain = text.find_first_not_of(' ', colon + 1);
  if (domain == std::string::npos) return false;
  const std::string reference = text.substr(0, colon) + ";" + text.substr(domain);
  return get_member_value_from_cim_member_type_value(reference.c_str(), member.type,
                                                     member.value.data()) == 0;
}

// Read without the length of the prefix, which stands behind a slash unless it is 128.
bool pack_ipv6(const std::string& text, PackedMember& member) {
  const size_t slash = text.find('/');
  if (get_member_value_from_cim_member_type_value(text.substr(0, slash).c_str(), member.type,
                                                  member.value.data()) != 0)
    return false;
  uint8_t prefix = 0;
  if (slash == std::string::npos) return true;
  if (!read_byte(text.substr(slash + 1), prefix)) return false;
  const uint32_t word = prefix;
  std::memcpy(member.value.data() + 20, &word, sizeof word);
  return true;
}

bool pack(const zs_cim_zone_member_& record, PackedMember& member) {
  if (is_text(member.type)) {
    // The key holds the first 63 characters only.
    const size_t size = strnlen(record.member_id, sizeof record.member_id - 1);
    std::memcpy(member.value.data(), record.member_id, size);
    member.length = static_cast<int32_t>(size) + 1;
    return size > 0;
  }
  member.length = get_member_value_length(member.type);
  const std::string text = key_text(record.instance_id);
  switch (member.type) {
    case ZS_MEMBER_DOMAIN_PORT:
      return pack_domain_port(text, member);
    case ZS_MEMBER_DOMAIN_INTERFACE:
      return pack_domain_interface(text, member);
    case ZS_MEMBER_IPV6:
      return pack_ipv6(text, member);
    case ZS_MEMBER_LOCAL_INTERFACE:  // written as a WWN, though read as an interface's name
      return get_member_value_from_cim_member_type_value(text.c_str(), ZS_MEMBER_PORT_WWN,
                                                         member.value.data()) == 0;
    default:
      return get_member_value_from_cim_member_type_value(text.c_str(), member.type,
                                                         member.value.data()) == 0;
  }
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

int32_t remove_record(int32_t q, zs_object_kind kind, const ZoningId& parent,
                      const zs_cim_zone_member_& record) {
  int32_t result = ZS_BAD_MEMBER;
  for (const PackedMember& form : packed_forms(record)) {
    result = remove_packed(q, kind, parent, form);
    if (result != ZS_NO_SUCH_MEMBER) return result;
  }
  return result;
}

// ---- removal everywhere ----

// A member in a zone or an alias, in the forms in which the zone server may keep it.
struct Holding {
  zs_object_kind kind;
  ZoningId parent;
  std::vector<PackedMember> forms;
};

// One that was taken out.
struct Taken {
  zs_object_kind kind;
  ZoningId parent;
  PackedMember form;
};

std::vector<Holding> holdings(int32_t q, const char* member) {
  std::vector<Holding> found;
  for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ALIAS})
    for (const ZoningObject& parent : parents_of_member(q, kind, member)) {
      const auto id = read_zoning_id(instance_id_of(parent));
      if (!id)
        throw Failure(CMPI_RC_ERR_FAILED, "what holds zone member %.200s has no name", member);
      // Long texts may share an instance id.
      for (const zs_cim_zone_member_& record : members_of(q, kind, instance_id_of(parent)))
        if (strcasecmp(record.instance_id, member) == 0)
          found.push_back({kind, *id, packed_forms(record)});
    }
  return found;
}

// `taken` has room for one more. A removal whose answer is missing may have been made.
int32_t take_out(int32_t q, const Holding& holding, std::vector<Taken>& taken) {
  int32_t result = ZS_BAD_MEMBER;
  for (const PackedMember& form : holding.forms) {
    result = remove_packed(q, holding.kind, holding.parent, form);
    if (result <= 0) taken.push_back({holding.kind, holding.parent, form});
    if (result != ZS_NO_SUCH_MEMBER) break;
  }
  return result;
}

// Result: the zone server's first refusal.
int32_t take_out_everywhere(int32_t q, const char* member, std::vector<Taken>& taken) {
  constexpr int kMostRounds = 3;
  // The library leaves out holders that it cannot read: it is done when there are none any more.
  for (int round = 0; round < kMostRounds; ++round) {
    const std::vector<Holding> all = holdings(q, member);
    if (all.empty()) return 0;
    taken.reserve(taken.size() + all.size());
    for (const Holding& holding : all) {
      const int32_t result = take_out(q, holding, taken);
      // Somebody else may have been faster.
      if (result != 0 && !is_not_there(result)) return result;
    }
  }
  return ZS_MEMBER_EXISTS;
}

void put_back(int32_t q, const std::vector<Taken>& taken) {
  int32_t error = 0;
  for (const Taken& each : taken)
    zs_cim_add_zoning_member(q, 1, each.parent.vsan, 0, each.kind, each.parent.object,
                             each.form.type, each.form.value.data(), each.form.length, &error);
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
      (active != "0" && active != "1") || vsan_cim_check_vsan_index(vsan) != 0)
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
  std::vector<Taken> taken;
  int32_t result = 0;
  try {
    result = take_out_everywhere(q, member.instance_id, taken);
  } catch (...) {
    put_back(q, taken);
    throw;
  }
  if (result != 0) put_back(q, taken);
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

std::vector<PackedMember> packed_forms(const zs_cim_zone_member_& member) {
  std::vector<PackedMember> forms;
  for (const zs_member_type type : types_shown_as(member.member_type)) {
    PackedMember form{type, 0, {}};
    if (pack(member, form)) forms.push_back(form);
  }
  return forms;
}

int32_t remove_member_from(int32_t q, zs_object_kind kind, const ZoningId& parent,
                           const char* member_instance_id) {
  char parent_id[ZS_CIM_INSTANCE_ID_ROOM];
  zs_cim_get_generic_instance_id(static_cast<int32_t>(parent.vsan),
                                 static_cast<int32_t>(parent.object), parent.active ? 1 : 0,
                                 parent_id);
  // Long texts may share an instance id.
  int32_t result = ZS_NO_SUCH_MEMBER;
  for (const zs_cim_zone_member_& member : members_of(q, kind, parent_id)) {
    if (strcasecmp(member.instance_id, member_instance_id) != 0) continue;
    const int32_t removed = remove_record(q, kind, parent, member);
    if (result == ZS_NO_SUCH_MEMBER || result == 0) result = removed;
  }
  return result;
}

}  // namespace vexor::providers
