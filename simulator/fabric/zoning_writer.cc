// Writes the zoning of a VSAN: one line per zone set, zone and alias.
#include "simulator/fabric/fabric_words.h"
#include "simulator/fabric/zoning_file.h"

namespace switch_sim {
namespace {

// The members of an object in braces, each list of them with its own indentation.
class ObjectWriter {
 public:
  ObjectWriter(std::string& text, size_t indent) : text_(text), indent_(indent, ' ') {
    text_ += "{";
  }

  void open(const char* key) {
    text_ += (first_ ? "\n" : ",\n") + indent_ + "  \"" + key + "\": ";
    first_ = false;
  }

  void close() { text_ += "\n" + indent_ + "}"; }

  // One line per element; nothing for an empty list.
  template <typename List, typename Write>
  void list(const char* key, const List& elements, Write write) {
    if (elements.empty()) return;
    open(key);
    const char* separator = "[\n";
    for (const auto& element : elements) {
      text_ += separator + indent_ + "    ";
      write(element);
      separator = ",\n";
    }
    text_ += "\n" + indent_ + "  ]";
  }

 private:
  std::string& text_;
  std::string indent_;
  bool first_ = true;
};

// A list within a line; nothing for an empty one.
template <typename List, typename Write>
void append_list(std::string& text, const char* key, const List& elements, Write write) {
  if (elements.empty()) return;
  text += std::string(", \"") + key + "\": [";
  const char* separator = "";
  for (const auto& element : elements) {
    text += separator;
    write(element);
    separator = ", ";
  }
  text += "]";
}

std::vector<uint32_t> ids_of(const ZoneDatabase& database, ZoningKind kind) {
  std::vector<uint32_t> ids;
  for (uint32_t id = database.next_id(kind, 0); id != 0; id = database.next_id(kind, id))
    ids.push_back(id);
  return ids;
}

std::string type_text(uint8_t type) {
  for (const ZoneMemberWord& known : kZoneMemberWords) {
    if (known.type == type) return quote(known.word);
  }
  return std::to_string(type);
}

// Two zoning texts of a large VSAN are megabytes: everything is appended to one.
class DatabaseWriter {
 public:
  DatabaseWriter(std::string& text, const ZoneDatabase& database)
      : text_(text), database_(database) {}

  void write(ObjectWriter& object) {
    object.list("zone_sets", ids_of(database_, ZoningKind::zone_set),
                [&](uint32_t id) { write_zone_set(id); });
    object.list("zones", ids_of(database_, ZoningKind::zone), [&](uint32_t id) { write_zone(id); });
    object.list("aliases", ids_of(database_, ZoningKind::alias),
                [&](uint32_t id) { write_alias(id); });
  }

 private:
  void start(ZoningKind kind, uint32_t id) {
    text_ += "{\"id\": " + std::to_string(id);
    text_ += ", \"name\": " + quote(*database_.name_of(kind, id));
  }

  void append_names(const char* key, ZoningKind kind, const std::vector<uint32_t>& ids) {
    append_list(text_, key, ids,
                [&](uint32_t id) { text_ += quote(*database_.name_of(kind, id)); });
  }

  void append_members(const std::vector<ZoneMember>& members) {
    append_list(text_, "members", members, [&](const ZoneMember& member) {
      text_ += "{\"id\": " + std::to_string(member.id) + ", \"type\": " + type_text(member.type);
      text_ += ", \"value\": " + quote(member_value_text(member.type, member.value)) + "}";
    });
  }

  void write_zone_set(uint32_t id) {
    start(ZoningKind::zone_set, id);
    append_names("zones", ZoningKind::zone, database_.zone_sets().find(id)->zones);
    text_ += "}";
  }

  void write_zone(uint32_t id) {
    const Zone& zone = *database_.zones().find(id);
    start(ZoningKind::zone, id);
    if (zone.attributes != 0) text_ += ", \"attributes\": " + std::to_string(zone.attributes);
    append_members(zone.members);
    append_names("aliases", ZoningKind::alias, zone.aliases);
    text_ += "}";
  }

  void write_alias(uint32_t id) {
    start(ZoningKind::alias, id);
    append_members(database_.aliases().find(id)->members);
    text_ += "}";
  }

  std::string& text_;
  const ZoneDatabase& database_;
};

void write_database(std::string& text, size_t indent, const ZoneDatabase& database) {
  ObjectWriter object(text, indent);
  DatabaseWriter(text, database).write(object);
  object.close();
}

// The name alone where the active zone set is as it stands in the full database.
void write_active(std::string& text, const Zoning& zoning) {
  const ZoneSet& active = *zoning.active->zone_sets().find(zoning.active->zone_sets().next_id(0));
  const uint32_t id = zoning.full->id_of(ZoningKind::zone_set, active.name);
  if (id != 0 && zoning.full->excerpt(id) == *zoning.active) {
    text += quote(active.name);
  } else {
    write_database(text, 8, *zoning.active);
  }
}

// Switches that hold equal databases stand together.
std::vector<std::vector<const DistributedZoning*>> groups_of(
    const std::vector<DistributedZoning>& distributed) {
  std::vector<std::vector<const DistributedZoning*>> groups;
  for (const DistributedZoning& held : distributed) {
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& candidate) {
      return candidate.front()->database == held.database;
    });
    if (group == groups.end()) {
      groups.push_back({&held});
    } else {
      group->push_back(&held);
    }
  }
  return groups;
}

void write_group(std::string& text, const std::vector<const DistributedZoning*>& group,
                 const Zoning& zoning) {
  text += "{\"to\": [";
  const char* separator = "";
  for (const DistributedZoning* held : group) {
    text += separator + quote(to_text(held->switch_wwn));
    separator = ", ";
  }
  text += "]";
  if (group.front()->database != zoning.full) {
    text += ", \"database\": ";
    write_database(text, 10, *group.front()->database);
  }
  text += "}";
}

}  // namespace

std::string zoning_text(const Zoning& zoning) {
  if (zoning == Zoning()) return "";
  std::string text = ",\n      \"zoning\": ";
  ObjectWriter object(text, 6);
  object.open("default_policy");
  text += quote(kZonePolicyWords.at(static_cast<size_t>(zoning.default_policy)));
  DatabaseWriter(text, *zoning.full).write(object);
  if (zoning.active->zone_sets().size() != 0) {
    object.open("active");
    write_active(text, zoning);
  }
  object.list("distributed", groups_of(zoning.distributed),
              [&](const auto& group) { write_group(text, group, zoning); });
  object.close();
  return text;
}

}  // namespace switch_sim
