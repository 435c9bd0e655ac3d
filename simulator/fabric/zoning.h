// The zoning of a VSAN, as a value: the full (editable) database, the active one, and what the
// other switches hold.
//
// Databases share what they have in common: a copy of one, of the zoning or of a whole fabric costs
// no more than the tables of ids, and a zone that is the same in both databases exists once.
#ifndef SIMULATOR_FABRIC_ZONING_H
#define SIMULATOR_FABRIC_ZONING_H

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fabric/shared.h"
#include "simulator/fabric/wwn.h"

namespace switch_sim {

// Of one VSAN. Ids count from 1 and are at most the number of objects that there may be.
inline constexpr uint32_t kMostZoneSets = 1000;
inline constexpr uint32_t kMostZones = 8000;
inline constexpr uint32_t kMostAliases = 2048;
inline constexpr uint32_t kMostMembers = 20000;         // of all zones and aliases
inline constexpr uint32_t kMostMembersOfParent = 2048;  // of one zone or alias
inline constexpr size_t kLongestZoningName = 64;

enum class ZoningKind : uint32_t { zone = 0, zone_set = 1, alias = 2 };

inline constexpr uint32_t kReadOnlyZone = 1;  // bit of Zone::attributes: members may only read

struct ZoneMember {
  uint32_t id = 0;  // in its parent
  uint8_t type = 0;
  std::string value;  // packed, numbers big-endian; texts without their NUL
  friend bool operator==(const ZoneMember&, const ZoneMember&) = default;
};

struct ZoneAlias {
  std::string name;
  std::vector<ZoneMember> members;  // by id, rising
  friend bool operator==(const ZoneAlias&, const ZoneAlias&) = default;
};

struct Zone {
  std::string name;
  uint32_t attributes = 0;
  std::vector<ZoneMember> members;  // by id, rising
  std::vector<uint32_t> aliases;    // ids, rising
  friend bool operator==(const Zone&, const Zone&) = default;
};

struct ZoneSet {
  std::string name;
  std::vector<uint32_t> zones;  // ids, rising
  friend bool operator==(const ZoneSet&, const ZoneSet&) = default;
};

// Objects with an id and a name, each only once.
template <typename Object>
class ObjectTable {
 public:
  size_t size() const { return by_name_.size(); }

  const Object* find(uint32_t id) const {
    return id >= 1 && id <= slots_.size() ? slots_[id - 1].get() : nullptr;
  }

  // 0: none has the name.
  uint32_t id_of(std::string_view name) const {
    const auto found = place_of(name);
    return found != by_name_.end() && name_of(*found) == name ? *found : 0;
  }

  // The lowest id above `after`; 0: none.
  uint32_t next_id(uint32_t after) const {
    for (size_t i = after; i < slots_.size(); ++i) {
      if (slots_[i] != nullptr) return static_cast<uint32_t>(i + 1);
    }
    return 0;
  }

  // The lowest id that no object has.
  uint32_t free_id() const {
    if (by_name_.size() == slots_.size()) return static_cast<uint32_t>(slots_.size() + 1);
    return static_cast<uint32_t>(std::find(slots_.begin(), slots_.end(), nullptr) - slots_.begin() +
                                 1);
  }

  // Neither the id nor the name may be in use.
  void insert(uint32_t id, Object object) {
    const auto place = place_of(object.name) - by_name_.begin();
    if (id > slots_.size()) slots_.resize(id);
    slots_[id - 1] = std::make_shared<Object>(std::move(object));
    by_name_.insert(by_name_.begin() + place, id);
  }

  void erase(uint32_t id) {
    by_name_.erase(place_of(name_of(id)));
    slots_[id - 1] = nullptr;
    drop_free_end();
  }

  // For a change of an object that there is; its name stays.
  Object& change(uint32_t id) { return unshare(slots_[id - 1]); }

  // The objects whose id `keep` says true for, with the same ids.
  template <typename Keep>
  ObjectTable subset(Keep keep) const {
    ObjectTable kept;
    std::copy_if(by_name_.begin(), by_name_.end(), std::back_inserter(kept.by_name_), keep);
    kept.slots_.resize(slots_.size());
    for (const uint32_t id : kept.by_name_)
      kept.slots_[id - 1] = slots_[id - 1];
    kept.drop_free_end();
    return kept;
  }

  friend bool operator==(const ObjectTable& left, const ObjectTable& right) {
    return std::equal(left.slots_.begin(), left.slots_.end(), right.slots_.begin(),
                      right.slots_.end(), [](const Slot& one, const Slot& other) {
                        return one == other ||
                               (one != nullptr && other != nullptr && *one == *other);
                      });
  }

 private:
  using Slot = std::shared_ptr<Object>;

  const std::string& name_of(uint32_t id) const { return slots_[id - 1]->name; }

  std::vector<uint32_t>::const_iterator place_of(std::string_view name) const {
    return std::lower_bound(
        by_name_.begin(), by_name_.end(), name,
        [&](uint32_t id, std::string_view wanted) { return name_of(id) < wanted; });
  }

  void drop_free_end() {
    while (!slots_.empty() && slots_.back() == nullptr)
      slots_.pop_back();
  }

  std::vector<Slot> slots_;        // by id - 1; null: free. The last is not free.
  std::vector<uint32_t> by_name_;  // ids in the order of the names
};

// Zone sets, zones and aliases. Whatever is done to it, a database keeps the limits above, names
// are unique among the objects of a kind, and what objects name as theirs is there.
//
// Changes name objects by ids, which must be there, and return 0 or a result of the zone server
// (<switch_platform/zone_server_results.h>); a database that refused a change is as it was.
class ZoneDatabase {
 public:
  const ObjectTable<ZoneSet>& zone_sets() const { return zone_sets_; }
  const ObjectTable<Zone>& zones() const { return zones_; }
  const ObjectTable<ZoneAlias>& aliases() const { return aliases_; }
  size_t members() const { return members_; }  // of all zones and aliases

  // 0: none.
  uint32_t id_of(ZoningKind kind, std::string_view name) const;
  uint32_t next_id(ZoningKind kind, uint32_t after) const;

  // Null: none.
  const std::string* name_of(ZoningKind kind, uint32_t id) const;
  const std::vector<ZoneMember>* members_of(ZoningKind kind, uint32_t id) const;

  // With id 0 the object gets the lowest free id.
  int32_t create(ZoningKind kind, std::string name, uint32_t id = 0);

  // Also out of the zone sets or zones that hold it.
  void remove(ZoningKind kind, uint32_t id);

  int32_t add_zone(uint32_t zone_set, uint32_t zone);
  int32_t remove_zone(uint32_t zone_set, uint32_t zone);
  int32_t add_alias(uint32_t zone, uint32_t alias);
  int32_t remove_alias(uint32_t zone, uint32_t alias);

  // To and from a zone or an alias. With id 0 the member gets the lowest free id of its parent; for
  // a removal it does not count.
  int32_t add_member(ZoningKind kind, uint32_t parent, ZoneMember member);
  int32_t remove_member(ZoningKind kind, uint32_t parent, const ZoneMember& member);

  void set_attributes(uint32_t zone, uint32_t attributes) {
    zones_.change(zone).attributes = attributes;
  }

  // One zone set with its zones and their aliases: what becomes active with it.
  ZoneDatabase excerpt(uint32_t zone_set) const;

  friend bool operator==(const ZoneDatabase& left, const ZoneDatabase& right) {
    return left.zone_sets_ == right.zone_sets_ && left.zones_ == right.zones_ &&
           left.aliases_ == right.aliases_;
  }

 private:
  std::vector<ZoneMember>& members_to_change(ZoningKind kind, uint32_t parent);

  ObjectTable<ZoneSet> zone_sets_;
  ObjectTable<Zone> zones_;
  ObjectTable<ZoneAlias> aliases_;
  size_t members_ = 0;
};

// What holds between ports that no active zone has as members.
enum class DefaultZonePolicy : uint32_t { deny = 0, permit = 1 };

// The full database as another switch holds it.
struct DistributedZoning {
  Wwn switch_wwn;
  Shared<ZoneDatabase> database;
  friend bool operator==(const DistributedZoning&, const DistributedZoning&) = default;
};

struct Zoning {
  DefaultZonePolicy default_policy = DefaultZonePolicy::deny;
  Shared<ZoneDatabase> full;                   // of the local switch
  Shared<ZoneDatabase> active;                 // of the whole VSAN: one zone set, or nothing at all
  std::vector<DistributedZoning> distributed;  // by switch WWN, rising
  friend bool operator==(const Zoning&, const Zoning&) = default;
};

// True for what may be the name of a zone set, zone or alias: a letter, then letters, digits, "$",
// "-", "^" and "_".
bool is_zoning_name(std::string_view name);

// True for a type and a packed value that a member may have.
bool is_member_value(uint8_t type, std::string_view value);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_ZONING_H
