#include "simulator/fabric/zoning.h"

#include <switch_platform/zone_server_results.h>

#include <utility>

#include "simulator/fabric/json.h"
#include "simulator/local/zone_member_layout.h"

namespace switch_sim {
namespace {

bool is_letter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool is_name_character(char character) {
  return is_letter(character) || (character >= '0' && character <= '9') || character == '$' ||
         character == '-' || character == '^' || character == '_';
}

bool is_control(char character) {
  return static_cast<uint8_t>(character) < 0x20 || character == 0x7F;
}

bool is_zero(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

bool is_member_text(std::string_view text, size_t width) {
  return !text.empty() && text.size() < width && json::is_utf8(text) &&
         std::none_of(text.begin(), text.end(), is_control);
}

// Address family 2, then 16 bytes of address, then the length of the prefix.
bool is_ipv6(std::string_view value) {
  using namespace std::string_view_literals;
  return value.substr(0, 4) == "\0\0\0\2"sv && is_zero(value.substr(20, 3)) &&
         static_cast<uint8_t>(value[23]) <= 128;
}

void insert_sorted(std::vector<uint32_t>& ids, uint32_t id) {
  ids.insert(std::lower_bound(ids.begin(), ids.end(), id), id);
}

bool contains(const std::vector<uint32_t>& ids, uint32_t id) {
  return std::binary_search(ids.begin(), ids.end(), id);
}

void erase_sorted(std::vector<uint32_t>& ids, uint32_t id) {
  ids.erase(std::lower_bound(ids.begin(), ids.end(), id));
}

bool is_same(const ZoneMember& one, const ZoneMember& other) {
  return one.type == other.type && one.value == other.value;
}

// The place of a member id, or of the lowest free one when `id` is 0; null where it is in use.
std::vector<ZoneMember>::const_iterator place_for(const std::vector<ZoneMember>& members,
                                                  uint32_t& id) {
  if (id != 0) {
    return std::lower_bound(
        members.begin(), members.end(), id,
        [](const ZoneMember& member, uint32_t wanted) { return member.id < wanted; });
  }
  // Ids rise from 1, so that up to the first gap a member's id tells its place.
  size_t low = 0;
  for (size_t high = members.size(); low < high;) {
    const size_t middle = low + (high - low) / 2;
    if (members[middle].id == middle + 1) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  id = static_cast<uint32_t>(low + 1);
  return members.begin() + static_cast<std::ptrdiff_t>(low);
}

template <typename Object>
int32_t create_in(ObjectTable<Object>& table, std::string name, uint32_t id, uint32_t most,
                  int32_t too_many) {
  if (!is_zoning_name(name)) return ZS_BAD_NAME;
  if (table.id_of(name) != 0) return ZS_OBJECT_EXISTS;
  if (id == 0) id = table.free_id();
  if (id > most) return too_many;
  if (table.find(id) != nullptr) return ZS_OBJECT_EXISTS;
  Object made;
  made.name = std::move(name);
  table.insert(id, std::move(made));
  return 0;
}

}  // namespace

bool is_zoning_name(std::string_view name) {
  return !name.empty() && name.size() <= kLongestZoningName && is_letter(name.front()) &&
         std::all_of(name.begin(), name.end(), is_name_character);
}

bool is_member_value(uint8_t type, std::string_view value) {
  const auto* layout = zone_member::layout_of(type);
  if (layout == nullptr) return false;
  if (layout->is_text) return is_member_text(value, layout->width);
  if (value.size() != layout->width) return false;
  switch (type) {
    case zone_member::kDomainPort:
      return is_zero(value.substr(1, 2));
    case zone_member::kFcId:
    case zone_member::kFcIdLun:
    case zone_member::kFcIdLun243:
      return value[0] == 0;
    case zone_member::kDomainInterface:
      return is_zero(value.substr(9));
    case zone_member::kIpv6:
      return is_ipv6(value);
    default:
      return true;
  }
}

uint32_t ZoneDatabase::id_of(ZoningKind kind, std::string_view name) const {
  switch (kind) {
    case ZoningKind::zone:
      return zones_.id_of(name);
    case ZoningKind::zone_set:
      return zone_sets_.id_of(name);
    default:
      return aliases_.id_of(name);
  }
}

uint32_t ZoneDatabase::next_id(ZoningKind kind, uint32_t after) const {
  switch (kind) {
    case ZoningKind::zone:
      return zones_.next_id(after);
    case ZoningKind::zone_set:
      return zone_sets_.next_id(after);
    default:
      return aliases_.next_id(after);
  }
}

const std::string* ZoneDatabase::name_of(ZoningKind kind, uint32_t id) const {
  const auto name = [](const auto* object) { return object != nullptr ? &object->name : nullptr; };
  switch (kind) {
    case ZoningKind::zone:
      return name(zones_.find(id));
    case ZoningKind::zone_set:
      return name(zone_sets_.find(id));
    default:
      return name(aliases_.find(id));
  }
}

const std::vector<ZoneMember>* ZoneDatabase::members_of(ZoningKind kind, uint32_t id) const {
  if (kind == ZoningKind::zone) {
    const Zone* zone = zones_.find(id);
    return zone != nullptr ? &zone->members : nullptr;
  }
  const ZoneAlias* alias = kind == ZoningKind::alias ? aliases_.find(id) : nullptr;
  return alias != nullptr ? &alias->members : nullptr;
}

int32_t ZoneDatabase::create(ZoningKind kind, std::string name, uint32_t id) {
  switch (kind) {
    case ZoningKind::zone:
      return create_in(zones_, std::move(name), id, kMostZones, ZS_TOO_MANY_ZONES);
    case ZoningKind::zone_set:
      return create_in(zone_sets_, std::move(name), id, kMostZoneSets, ZS_TOO_MANY_ZONE_SETS);
    default:
      return create_in(aliases_, std::move(name), id, kMostAliases, ZS_TOO_MANY_ALIASES);
  }
}

void ZoneDatabase::remove(ZoningKind kind, uint32_t id) {
  if (const auto* members = members_of(kind, id)) members_ -= members->size();
  switch (kind) {
    case ZoningKind::zone:
      for (uint32_t parent = zone_sets_.next_id(0); parent != 0;
           parent = zone_sets_.next_id(parent)) {
        if (contains(zone_sets_.find(parent)->zones, id)) remove_zone(parent, id);
      }
      zones_.erase(id);
      return;
    case ZoningKind::zone_set:
      zone_sets_.erase(id);
      return;
    default:
      for (uint32_t parent = zones_.next_id(0); parent != 0; parent = zones_.next_id(parent)) {
        if (contains(zones_.find(parent)->aliases, id)) remove_alias(parent, id);
      }
      aliases_.erase(id);
  }
}

int32_t ZoneDatabase::add_zone(uint32_t zone_set, uint32_t zone) {
  if (contains(zone_sets_.find(zone_set)->zones, zone)) return ZS_MEMBER_EXISTS;
  insert_sorted(zone_sets_.change(zone_set).zones, zone);
  return 0;
}

int32_t ZoneDatabase::remove_zone(uint32_t zone_set, uint32_t zone) {
  if (!contains(zone_sets_.find(zone_set)->zones, zone)) return ZS_NO_SUCH_MEMBER;
  erase_sorted(zone_sets_.change(zone_set).zones, zone);
  return 0;
}

int32_t ZoneDatabase::add_alias(uint32_t zone, uint32_t alias) {
  if (contains(zones_.find(zone)->aliases, alias)) return ZS_MEMBER_EXISTS;
  insert_sorted(zones_.change(zone).aliases, alias);
  return 0;
}

int32_t ZoneDatabase::remove_alias(uint32_t zone, uint32_t alias) {
  if (!contains(zones_.find(zone)->aliases, alias)) return ZS_NO_SUCH_MEMBER;
  erase_sorted(zones_.change(zone).aliases, alias);
  return 0;
}

std::vector<ZoneMember>& ZoneDatabase::members_to_change(ZoningKind kind, uint32_t parent) {
  return kind == ZoningKind::zone ? zones_.change(parent).members : aliases_.change(parent).members;
}

int32_t ZoneDatabase::add_member(ZoningKind kind, uint32_t parent, ZoneMember member) {
  if (!is_member_value(member.type, member.value)) return ZS_BAD_MEMBER;
  const std::vector<ZoneMember>& present = *members_of(kind, parent);
  if (std::any_of(present.begin(), present.end(),
                  [&](const ZoneMember& other) { return is_same(other, member); })) {
    return ZS_MEMBER_EXISTS;
  }
  const auto place = place_for(present, member.id);
  if (member.id > kMostMembersOfParent) return ZS_TOO_MANY_MEMBERS_OF_PARENT;
  if (place != present.end() && place->id == member.id) return ZS_MEMBER_EXISTS;
  if (members_ == kMostMembers) return ZS_TOO_MANY_MEMBERS;
  const auto offset = place - present.begin();
  auto& members = members_to_change(kind, parent);
  members.insert(members.begin() + offset, std::move(member));
  ++members_;
  return 0;
}

int32_t ZoneDatabase::remove_member(ZoningKind kind, uint32_t parent, const ZoneMember& member) {
  const std::vector<ZoneMember>& present = *members_of(kind, parent);
  const auto found = std::find_if(present.begin(), present.end(), [&](const ZoneMember& candidate) {
    return is_same(candidate, member);
  });
  if (found == present.end()) return ZS_NO_SUCH_MEMBER;
  const auto offset = found - present.begin();
  auto& members = members_to_change(kind, parent);
  members.erase(members.begin() + offset);
  --members_;
  return 0;
}

ZoneDatabase ZoneDatabase::excerpt(uint32_t zone_set) const {
  const std::vector<uint32_t>& zones = zone_sets_.find(zone_set)->zones;
  std::vector<bool> has_alias(kMostAliases + 1);
  ZoneDatabase taken;
  for (const uint32_t zone : zones) {
    taken.members_ += zones_.find(zone)->members.size();
    for (const uint32_t alias : zones_.find(zone)->aliases) {
      if (!has_alias[alias]) taken.members_ += aliases_.find(alias)->members.size();
      has_alias[alias] = true;
    }
  }
  taken.zone_sets_ = zone_sets_.subset([&](uint32_t id) { return id == zone_set; });
  taken.zones_ = zones_.subset([&](uint32_t id) { return contains(zones, id); });
  taken.aliases_ = aliases_.subset([&](uint32_t id) { return has_alias[id]; });
  return taken;
}

}  // namespace switch_sim
