// Children and parents: the zones of a zone set, the aliases and members of a zone, the members of
// an alias, and the reverse.
#include <cim_utils/collections.h>
#include <cim_utils/session.h>
#include <cim_utils/zoning_identifiers.h>
#include <cim_utils/zoning_queries.h>
#include <strings.h>

#include "common/c_heap.h"
#include "common/list_builder.h"
#include "zoning/chain.h"
#include "zoning/zone_server_entries.h"
#include "zoning/zone_server_reads.h"

namespace cim_utils {
namespace {

// What a generic instance id names. Parts that its text lacks are 0.
struct GenericId {
  int32_t vsan = 0;
  int32_t id = 0;
  int32_t active = 0;

  uint32_t vsan_id() const { return static_cast<uint32_t>(vsan); }
};

int32_t parse(const char* instance_id, GenericId* object) {
  return zs_cim_get_fields_from_generic_instance_id(instance_id, &object->vsan, &object->id,
                                                    &object->active);
}

// Reads the object that has children: null when there is none.
template <typename Entry>
const Entry* read_parent(int32_t q, const char* instance_id, GenericId* parent,
                         Entries<Entry>* entries) {
  if (instance_id == nullptr) return nullptr;
  // An id that cannot be parsed reads what was understood of it, deliberately.
  parse(instance_id, parent);
  const int32_t result =
      read_raw(q, static_cast<uint32_t>(parent->id), parent->vsan_id(), parent->active, entries);
  return result == 0 && entries->count > 0 ? entries->list.get() : nullptr;
}

// Links the children whose ids the bit set holds. One that cannot be read is passed over.
template <typename Record, size_t size, typename ReadChild>
void link_children(const uint8_t (&bits)[size], Record** head, ReadChild read_child) {
  ChainBuilder<Record> chain(head);
  for_each_object(bits, [&](uint32_t id) {
    Record* child = nullptr;
    if (read_child(id, &child) == 0 && child != nullptr) chain.append(child);
    return true;
  });
}

template <typename Entry, size_t size>
int32_t link_members(int32_t q, const char* instance_id, uint8_t (Entry::*bits)[size],
                     zs_member_parent_kind kind, zs_cim_zone_member_** head) {
  if (head == nullptr) return -1;
  *head = nullptr;
  GenericId parent;
  Entries<Entry> entries;
  const Entry* const entry = read_parent(q, instance_id, &parent, &entries);
  if (entry == nullptr) return -1;
  link_children(entry->*bits, head, [&](uint32_t id, zs_cim_zone_member_** member) {
    int32_t count = 0;
    return zs_cim_get_zone_member(q, id, parent.vsan_id(), parent.active, kind,
                                  static_cast<uint32_t>(parent.id), &count, member);
  });
  return 0;
}

// Links the records of the entries whose bit set holds the child. Without memory for one the
// result is -1 and there is no chain.
template <typename Entry, typename Record, size_t size>
int32_t link_parents(int32_t q, const char* instance_id, uint8_t (Entry::*bits)[size],
                     int32_t (*convert)(const Entry*, Record**, int32_t, int32_t), Record** head) {
  if (head == nullptr) return -1;
  ChainBuilder<Record> chain(head);
  GenericId child;
  if (parse(instance_id, &child) != 0) return -1;
  Entries<Entry> entries;
  if (read_raw(q, 0, child.vsan_id(), child.active, &entries) != 0) return -1;
  for (const Entry& entry : entries) {
    if (!holds_object(entry.*bits, child.id)) continue;
    Record* parent = nullptr;
    if (convert(&entry, &parent, child.active, 1) != 0) {
      free_chain(*head);
      *head = nullptr;
      return -1;
    }
    chain.append(parent);
  }
  return 0;
}

// ---- Parents of members

// Moves the elements of a list to the end of the caller's.
void move_elements(OwnedList* from, GSList** list) {
  ListBuilder there(list);
  for (const GSList* node = from->head; node != nullptr; node = node->next)
    there.append(node->data);
  g_slist_free(from->head);
  from->head = nullptr;
}

// The parents of which kind are searched, and for which member.
struct MemberSearch {
  int32_t q;
  uint32_t vsan;
  int32_t active;
  const char* instance_id;
  zs_member_parent_kind kind;
};

// Whether one of the parent's members has the instance id; upper and lower case are the same.
template <size_t size>
bool holds_member(const MemberSearch& search, uint32_t parent_id, const uint8_t (&members)[size]) {
  bool found = false;
  for_each_object(members, [&](uint32_t member_id) {
    zs_cim_zone_member_* member = nullptr;
    int32_t count = 0;
    if (zs_cim_get_zone_member(search.q, member_id, search.vsan, search.active, search.kind,
                               parent_id, &count, &member) != 0)
      return true;
    const CHeap<zs_cim_zone_member_> owned(member);
    for (int32_t i = 0; i < count && !found; ++i)
      found = strcasecmp(owned[i].instance_id, search.instance_id) == 0;
    return !found;
  });
  return found;
}

// Appends copies of the entries of all parents that hold the member, each once. -1 when memory
// runs out; a database that cannot be read has none.
template <typename Entry>
int32_t collect_parents(const MemberSearch& search, GSList** list) {
  Entries<Entry> parents;
  if (read_raw(search.q, 0, search.vsan, search.active, &parents) != 0) return 0;
  ListBuilder copies(list);
  for (const Entry& parent : parents) {
    if (holds_member(search, parent.object_id, parent.members) &&
        !copies.append_copy(&parent, sizeof parent))
      return -1;
  }
  return 0;
}

template <typename Entry>
int32_t get_raw_parents(const MemberSearch& search, GSList** list) {
  if (search.instance_id == nullptr || list == nullptr) return -1;
  OwnedList parents;
  if (collect_parents<Entry>(search, &parents.head) != 0) return -1;
  move_elements(&parents, list);
  return 0;
}

template <typename Entry, typename Record>
int32_t get_parent_records(int32_t q, const char* instance_id, zs_member_parent_kind kind,
                           int32_t (*convert)(const Entry*, Record**, int32_t, int32_t),
                           GSList** list) {
  if (list == nullptr) return -1;
  MemberSearch search{q, 0, 0, instance_id, kind};
  uint8_t type = 0;
  uint8_t value[ZS_CIM_VALUE_ROOM] = {};
  int32_t length = 0;
  uint8_t active = 0;
  if (zs_cim_get_fields_from_member_instance_id(instance_id, &search.vsan, &type, value, &length,
                                                &active, 0) != 0)
    return -1;
  search.active = active;
  OwnedList parents;
  if (collect_parents<Entry>(search, &parents.head) != 0) return -1;
  // The last parent comes first, deliberately.
  parents.head = reversed(parents.head);
  for (GSList* node = parents.head; node != nullptr; node = node->next) {
    Record* record = nullptr;
    if (convert(static_cast<const Entry*>(node->data), &record, search.active, 1) != 0) return -1;
    std::free(node->data);
    node->data = record;
  }
  move_elements(&parents, list);
  return 0;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

// ---- Children

int32_t zs_cim_get_zone_set_zones_by_instance_id(int32_t q, const char* instance_id,
                                                 zs_cim_zone_** head) {
  z_gdb_check();
  if (head == nullptr) return -1;
  *head = nullptr;
  GenericId parent;
  Entries<zs_zone_set_entry_> entries;
  const zs_zone_set_entry_* const zone_set = read_parent(q, instance_id, &parent, &entries);
  if (zone_set == nullptr) return -1;
  bool has_zones = false;
  link_children(zone_set->zones, head, [&](uint32_t id, zs_cim_zone_** zone) {
    has_zones = true;
    return zs_cim_get_zone_by_ids(q, id, parent.vsan_id(), parent.active, zone);
  });
  // Only here are no children a failure, deliberately.
  return has_zones ? 0 : -1;
}

int32_t zs_cim_get_zone_zone_aliases_by_instance_id(int32_t q, const char* instance_id,
                                                    zs_cim_alias_** head) {
  if (head == nullptr) return -1;
  *head = nullptr;
  GenericId parent;
  Entries<zs_zone_entry_> entries;
  const zs_zone_entry_* const zone = read_parent(q, instance_id, &parent, &entries);
  if (zone == nullptr) return -1;
  link_children(zone->aliases, head, [&](uint32_t id, zs_cim_alias_** alias) {
    return zs_cim_get_zone_alias_by_ids(q, id, parent.vsan_id(), parent.active, alias);
  });
  return 0;
}

int32_t zs_cim_get_zone_zone_members_by_instance_id(int32_t q, const char* instance_id,
                                                    zs_cim_zone_member_** head) {
  return link_members(q, instance_id, &zs_zone_entry_::members, ZS_MEMBER_PARENT_ZONE, head);
}

int32_t zs_cim_get_zone_alias_zone_members_by_instance_id(int32_t q, const char* instance_id,
                                                          zs_cim_zone_member_** head) {
  return link_members(q, instance_id, &zs_alias_entry_::members, ZS_MEMBER_PARENT_ALIAS, head);
}

// ---- Parents of zones and aliases

int32_t zs_cim_get_zone_zone_set_parents_by_instance_id(int32_t q, const char* instance_id,
                                                        zs_cim_zone_set_** head) {
  return link_parents(q, instance_id, &zs_zone_set_entry_::zones,
                      zs_cim_convert_cmi_zone_set_to_cim_zone_set, head);
}

int32_t zs_cim_get_zone_alias_zone_parents_by_instance_id(int32_t q, const char* instance_id,
                                                          zs_cim_zone_** head) {
  return link_parents(q, instance_id, &zs_zone_entry_::aliases, zs_cim_convert_cmi_zone_to_cim_zone,
                      head);
}

// ---- Parents of members

int32_t zs_cim_get_zone_member_zone_parents(int32_t q, uint32_t vsan_id, int32_t active,
                                            const char* member_instance_id, GSList** list) {
  return get_raw_parents<zs_zone_entry_>(
      {q, vsan_id, active, member_instance_id, ZS_MEMBER_PARENT_ZONE}, list);
}

int32_t zs_cim_get_zone_member_zone_alias_parents(int32_t q, uint32_t vsan_id, int32_t active,
                                                  const char* member_instance_id, GSList** list) {
  return get_raw_parents<zs_alias_entry_>(
      {q, vsan_id, active, member_instance_id, ZS_MEMBER_PARENT_ALIAS}, list);
}

int32_t zs_cim_get_zone_member_zone_parents_by_instance_id(int32_t q,
                                                           const char* member_instance_id,
                                                           GSList** list) {
  return get_parent_records(q, member_instance_id, ZS_MEMBER_PARENT_ZONE,
                            zs_cim_convert_cmi_zone_to_cim_zone, list);
}

int32_t zs_cim_get_zone_member_zone_alias_parents_by_instance_id(int32_t q,
                                                                 const char* member_instance_id,
                                                                 GSList** list) {
  return get_parent_records(q, member_instance_id, ZS_MEMBER_PARENT_ALIAS,
                            zs_cim_convert_cmi_zone_alias_to_cim_zone_alias, list);
}
