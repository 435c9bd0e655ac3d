// Reads the zoning of a VSAN.
#include <switch_platform/zone_server_results.h>

#include "simulator/fabric/fabric_words.h"
#include "simulator/fabric/zoning_file.h"
#include "simulator/local/zone_member_layout.h"

namespace switch_sim {
namespace {

const json::Array& list_in(const ObjectReader& object, const char* key, const char* what) {
  static const json::Array nothing;
  const Value* value = object.find(key);
  return value != nullptr ? expect<json::Array>(*value, what) : nothing;
}

// What reading says about each kind.
struct Kind {
  ZoningKind kind;
  const char* object;  // "a zone"
  const char* noun;
  uint32_t most;
};

constexpr Kind kZoneSetKind = {ZoningKind::zone_set, "a zone set", "zone set", kMostZoneSets};
constexpr Kind kZoneKind = {ZoningKind::zone, "a zone", "zone", kMostZones};
constexpr Kind kAliasKind = {ZoningKind::alias, "a zone alias", "zone alias", kMostAliases};

// The id of an object; one that is left out follows the one before it.
uint32_t read_id(const Value& value, const ObjectReader& object, uint32_t previous, uint32_t most) {
  if (const Value* id = object.find("id")) return read_number<uint32_t>(*id, 1, most);
  if (previous == most) {
    throw Problem{value.position, "no id is left behind " + std::to_string(most)};
  }
  return previous + 1;
}

class DatabaseReader {
 public:
  explicit DatabaseReader(ZoneDatabase& database) : database_(database) {}

  // Aliases before the zones that name them, zones before the zone sets.
  void read(const ObjectReader& object) {
    uint32_t id = 0;
    for (const Value& value : list_in(object, "aliases", "a list of zone aliases"))
      id = read_alias(value, id);
    id = 0;
    for (const Value& value : list_in(object, "zones", "a list of zones"))
      id = read_zone(value, id);
    id = 0;
    for (const Value& value : list_in(object, "zone_sets", "a list of zone sets"))
      id = read_zone_set(value, id);
  }

 private:
  uint32_t read_alias(const Value& value, uint32_t previous) {
    const ObjectReader object(value, "a zone alias", {"id", "name", "members"});
    const uint32_t id = create(kAliasKind, value, object, previous);
    read_members(ZoningKind::alias, id, object);
    return id;
  }

  uint32_t read_zone(const Value& value, uint32_t previous) {
    const ObjectReader object(value, "a zone", {"id", "name", "attributes", "members", "aliases"});
    const uint32_t id = create(kZoneKind, value, object, previous);
    database_.set_attributes(id, read_number<uint32_t>(object, "attributes", 0, UINT32_MAX, 0));
    read_members(ZoningKind::zone, id, object);
    for (const Value& name : list_in(object, "aliases", "a list of names")) {
      if (database_.add_alias(id, read_reference(kAliasKind, name)) != 0) {
        throw Problem{name.position, "the zone already holds this alias"};
      }
    }
    return id;
  }

  uint32_t read_zone_set(const Value& value, uint32_t previous) {
    const ObjectReader object(value, "a zone set", {"id", "name", "zones"});
    const uint32_t id = create(kZoneSetKind, value, object, previous);
    for (const Value& name : list_in(object, "zones", "a list of names")) {
      if (database_.add_zone(id, read_reference(kZoneKind, name)) != 0) {
        throw Problem{name.position, "the zone set already holds this zone"};
      }
    }
    return id;
  }

  uint32_t create(const Kind& kind, const Value& value, const ObjectReader& object,
                  uint32_t previous) {
    const uint32_t id = read_id(value, object, previous, kind.most);
    const auto& name = expect<std::string>(object.at("name"), "a text");
    const std::string another = std::string("another ") + kind.noun + " has this ";
    if (!is_zoning_name(name)) {
      throw Problem{object.position_of("name"),
                    "a zoning name has 1 to 64 characters: a letter, then letters, digits, "
                    "\"$\", \"-\", \"^\" and \"_\""};
    }
    if (database_.id_of(kind.kind, name) != 0) {
      throw Problem{object.position_of("name"), another + "name"};
    }
    if (database_.name_of(kind.kind, id) != nullptr) {
      throw Problem{object.position_of("id"), another + "id"};
    }
    database_.create(kind.kind, name, id);
    return id;
  }

  uint32_t read_reference(const Kind& kind, const Value& value) const {
    const auto& name = expect<std::string>(value, "a name");
    const uint32_t id = database_.id_of(kind.kind, name);
    if (id == 0) throw Problem{value.position, std::string("no ") + kind.noun + " " + quote(name)};
    return id;
  }

  void read_members(ZoningKind kind, uint32_t parent, const ObjectReader& object) {
    uint32_t id = 0;
    for (const Value& value : list_in(object, "members", "a list of zone members"))
      id = read_member(kind, parent, value, id);
  }

  uint32_t read_member(ZoningKind kind, uint32_t parent, const Value& value, uint32_t previous) {
    const ObjectReader object(value, "a zone member", {"id", "type", "value"});
    ZoneMember member;
    member.id = read_id(value, object, previous, kMostMembersOfParent);
    member.type = read_type(object.at("type"));
    const auto packed =
        parse_member_value(member.type, expect<std::string>(object.at("value"), "a text"));
    if (!packed) {
      throw Problem{object.position_of("value"),
                    std::string("expected ") + member_value_form(member.type)};
    }
    member.value = *packed;
    const uint32_t id = member.id;
    const int32_t result = database_.add_member(kind, parent, std::move(member));
    if (result == ZS_TOO_MANY_MEMBERS) {
      throw Problem{value.position, "the zones and aliases of a VSAN have at most " +
                                        std::to_string(kMostMembers) + " members"};
    }
    if (result != 0) {
      throw Problem{value.position, "another member has this id, or this type and value"};
    }
    return id;
  }

  static uint8_t read_type(const Value& value) {
    if (std::holds_alternative<json::Number>(value.data)) {
      const auto type = read_number<uint8_t>(value, 0, UINT8_MAX);
      if (zone_member::layout_of(type) != nullptr) return type;
      throw Problem{value.position, "no such member type"};
    }
    const auto& text = expect<std::string>(value, "a member type");
    std::vector<std::string_view> words;
    for (const ZoneMemberWord& known : kZoneMemberWords) {
      if (known.word == text) return known.type;
      words.push_back(known.word);
    }
    throw Problem{value.position, "no member type " + quote(text) + suggestion(text, words)};
  }

  ZoneDatabase& database_;
};

class ZoningReader {
 public:
  ZoningReader(const SwitchReference& reference, const Wwn& local_switch, const Vsan& vsan,
               Zoning& zoning)
      : reference_(reference), local_switch_(local_switch), vsan_(vsan), zoning_(zoning) {}

  void read(const Value& value) {
    const ObjectReader object(
        value, "the zoning",
        {"default_policy", "zone_sets", "zones", "aliases", "active", "distributed"});
    // The words stand in the order of a policy's number plus one.
    const auto word = read_word(object, "default_policy", kZonePolicyWords, uint32_t{1});
    zoning_.default_policy = static_cast<DefaultZonePolicy>(word - 1);
    DatabaseReader(zoning_.full.change()).read(object);
    if (const Value* active = object.find("active")) read_active(*active);
    for (const Value& held : list_in(object, "distributed", "a list of distributed databases"))
      read_distributed(held);
  }

 private:
  static void read_database(const Value& value, const char* what, ZoneDatabase& database) {
    const ObjectReader object(value, what, {"zone_sets", "zones", "aliases"});
    DatabaseReader(database).read(object);
  }

  // The name of a zone set of the full database, which is active as it stands there; or a database.
  void read_active(const Value& value) {
    ZoneDatabase& active = zoning_.active.change();
    if (const auto* name = std::get_if<std::string>(&value.data)) {
      const uint32_t id = zoning_.full->id_of(ZoningKind::zone_set, *name);
      if (id == 0) throw Problem{value.position, "no zone set " + quote(*name)};
      active = zoning_.full->excerpt(id);
      return;
    }
    read_database(value, "the name of a zone set or the active database", active);
    if (active.zone_sets().size() != 1) {
      throw Problem{value.position, "an active database has one zone set"};
    }
    if (active.excerpt(active.zone_sets().next_id(0)) != active) {
      throw Problem{value.position, "an active database holds only what its zone set needs"};
    }
  }

  void read_distributed(const Value& value) {
    const ObjectReader object(value, "a distributed database", {"to", "database"});
    DistributedZoning held;
    held.database = zoning_.full;
    if (const Value* database = object.find("database")) {
      held.database = {};
      read_database(*database, "a database", held.database.change());
    }
    for (const Value& name : expect<json::Array>(object.at("to"), "a list of switches")) {
      held.switch_wwn = reference_(name);
      if (held.switch_wwn == local_switch_ || !is_in_vsan(held.switch_wwn)) {
        throw Problem{name.position, "expected another switch of the VSAN"};
      }
      const auto holds_already = [&](const DistributedZoning& other) {
        return other.switch_wwn == held.switch_wwn;
      };
      if (std::any_of(zoning_.distributed.begin(), zoning_.distributed.end(), holds_already)) {
        throw Problem{name.position, "the switch already holds a database"};
      }
      zoning_.distributed.push_back(held);
    }
  }

  bool is_in_vsan(const Wwn& wwn) const {
    return std::any_of(vsan_.domains.begin(), vsan_.domains.end(),
                       [&](const DomainManager& domain) { return domain.switch_wwn == wwn; });
  }

  const SwitchReference& reference_;
  const Wwn& local_switch_;
  const Vsan& vsan_;
  Zoning& zoning_;
};

}  // namespace

void read_zoning(const ObjectReader& object, const SwitchReference& reference,
                 const Wwn& local_switch, Vsan& vsan) {
  const Value* value = object.find("zoning");
  if (value != nullptr) {
    ZoningReader(reference, local_switch, vsan, vsan.zoning.change()).read(*value);
  }
}

}  // namespace switch_sim
