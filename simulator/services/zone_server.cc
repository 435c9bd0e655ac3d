// The zone server: reads of the full and the active database of each VSAN.
#include <switch_platform/zone_server_results.h>

#include "simulator/local/platform_status.h"
#include "simulator/local/zone_member_layout.h"
#include "simulator/services/services.h"
#include "simulator/services/zone_server_requests.h"

namespace switch_sim::services {
namespace {

// What a read is about; null with the status that refuses it.
struct Source {
  const ZoneDatabase* database = nullptr;
  int32_t status = 0;
};

Source database_of(const Fabric& fabric, uint32_t number, uint32_t active) {
  if (active > 1) return {nullptr, status::kBadValue};
  const Vsan* vsan = find_vsan(fabric, number);
  if (vsan == nullptr) return {nullptr, ZS_NO_SUCH_VSAN};
  return {active != 0 ? &*vsan->zoning->active : &*vsan->zoning->full};
}

size_t entry_size(ZoningKind kind) {
  switch (kind) {
    case ZoningKind::zone:
      return kZoneEntrySize;
    case ZoningKind::zone_set:
      return kZoneSetEntrySize;
    default:
      return kAliasEntrySize;
  }
}

// Appends entries to one reply.
class EntryWriter {
 public:
  EntryWriter(const ZoneDatabase& database, uint32_t vsan, ZoningKind kind, size_t count)
      : database_(database), vsan_(vsan), kind_(kind), writer_(count * entry_size(kind)) {}

  void append(uint32_t id) {
    writer_.be32(at_, vsan_).be32(at_ + 4, id);
    writer_.text(at_ + kZoningNameOffset, kZoningNameWidth, *database_.name_of(kind_, id));
    switch (kind_) {
      case ZoningKind::zone:
        append_zone(*database_.zones().find(id));
        break;
      case ZoningKind::zone_set:
        append_ids(kFirstBitSetOffset, kBitsOfZones, database_.zone_sets().find(id)->zones);
        break;
      default:
        append_members(database_.aliases().find(id)->members);
    }
    at_ += entry_size(kind_);
  }

  Bytes take() && { return std::move(writer_).take(); }

 private:
  void append_zone(const Zone& zone) {
    append_members(zone.members);
    append_ids(kSecondBitSetOffset, kBitsOfAliases, zone.aliases);
    writer_.be32(at_ + kZoneAttributesOffset, zone.attributes);
  }

  void append_members(const std::vector<ZoneMember>& members) {
    std::vector<uint32_t> ids;
    ids.reserve(members.size());
    for (const ZoneMember& member : members)
      ids.push_back(member.id);
    append_ids(kFirstBitSetOffset, kBitsOfMembers, ids);
  }

  // Ids rise, so that the byte of the bits so far is written again until the next byte starts.
  void append_ids(size_t offset, uint32_t bits, const std::vector<uint32_t>& ids) {
    writer_.be32(at_ + offset, bits);
    uint32_t byte = 0, place = 0;
    for (const uint32_t id : ids) {
      if ((id - 1) / 8 != place) byte = 0;
      place = (id - 1) / 8;
      byte |= 1U << ((id - 1) % 8);
      writer_.u8(at_ + offset + 4 + place, byte);
    }
  }

  const ZoneDatabase& database_;
  uint32_t vsan_;
  ZoningKind kind_;
  size_t at_ = 0;
  ReplyWriter writer_;
};

size_t count_of(const ZoneDatabase& database, ZoningKind kind) {
  switch (kind) {
    case ZoningKind::zone:
      return database.zones().size();
    case ZoningKind::zone_set:
      return database.zone_sets().size();
    default:
      return database.aliases().size();
  }
}

const ZoneMember* find_member(const std::vector<ZoneMember>& members, uint32_t id, bool exact) {
  const auto found = std::lower_bound(
      members.begin(), members.end(), exact ? id : id + 1,
      [](const ZoneMember& member, uint32_t wanted) { return member.id < wanted; });
  if (found == members.end() || (exact && found->id != id)) return nullptr;
  return &*found;
}

Bytes write_member(uint32_t vsan, const ZoneMember& member) {
  ReplyWriter writer(kMemberEntrySize + zone_member::layout_of(member.type)->width);
  writer.be32(0, vsan).be32(4, member.id).u8(zone_member::kTypeOffset, member.type);
  writer.raw(zone_member::kValueOffset, reinterpret_cast<const uint8_t*>(member.value.data()),
             member.value.size());
  return std::move(writer).take();
}

bool is_read(const Request& request) {
  return request.operation == kGet || request.operation == kGetNext;
}

}  // namespace

uint32_t ZoningRequest::word() {
  if (failed_ || size_ - at_ < 4) {
    failed_ = true;
    return 0;
  }
  at_ += 4;
  return reader_.be32(at_ - 4);
}

std::string ZoningRequest::text() {
  const uint32_t length = word();
  if (failed_ || size_ - at_ < length) {
    failed_ = true;
    return "";
  }
  std::string value;
  for (const size_t end = at_ + length; at_ < end; ++at_)
    value += static_cast<char>(reader_.u8(at_));
  return value;
}

std::optional<ZoningKind> zoning_kind(uint32_t word) {
  if (word > static_cast<uint32_t>(ZoningKind::alias)) return std::nullopt;
  return static_cast<ZoningKind>(word);
}

Outcome zoning_object(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (!is_read(request)) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t vsan = body.word(), active = body.word();
  const auto kind = zoning_kind(body.word());
  const uint32_t wanted = body.word();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind) return refuse(ZS_BAD_KIND);
  const auto [database, problem] = database_of(fabric, vsan, active);
  if (database == nullptr) return refuse(problem);
  const uint32_t id = request.operation == kGet ? wanted : database->next_id(*kind, wanted);
  if (database->name_of(*kind, id) == nullptr) return refuse(ZS_NO_SUCH_OBJECT);
  EntryWriter writer(*database, vsan, *kind, 1);
  writer.append(id);
  return reply(std::move(writer).take());
}

Outcome zoning_objects(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t vsan = body.word(), active = body.word();
  const auto kind = zoning_kind(body.word());
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind) return refuse(ZS_BAD_KIND);
  const auto [database, problem] = database_of(fabric, vsan, active);
  if (database == nullptr) return refuse(problem);
  EntryWriter writer(*database, vsan, *kind, count_of(*database, *kind));
  for (uint32_t id = database->next_id(*kind, 0); id != 0; id = database->next_id(*kind, id))
    writer.append(id);
  return reply(std::move(writer).take());
}

Outcome zone_member(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (!is_read(request)) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t vsan = body.word(), active = body.word(), parent_kind = body.word();
  const uint32_t parent = body.word(), id = body.word();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (parent_kind > kParentIsZone) return refuse(ZS_BAD_KIND);
  const auto [database, problem] = database_of(fabric, vsan, active);
  if (database == nullptr) return refuse(problem);
  const auto kind = parent_kind == kParentIsZone ? ZoningKind::zone : ZoningKind::alias;
  const auto* members = database->members_of(kind, parent);
  if (members == nullptr) return refuse(ZS_NO_SUCH_OBJECT);
  const ZoneMember* member = find_member(*members, id, request.operation == kGet);
  if (member == nullptr) return refuse(ZS_NO_SUCH_MEMBER);
  return reply(write_member(vsan, *member));
}

Outcome zoning_id_of_name(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t vsan = body.word(), active = body.word();
  const auto kind = zoning_kind(body.word());
  const std::string name = body.text();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind) return refuse(ZS_BAD_KIND);
  const auto [database, problem] = database_of(fabric, vsan, active);
  if (database == nullptr) return refuse(problem);
  const uint32_t id = database->id_of(*kind, name);
  if (id == 0) return refuse(ZS_NO_SUCH_OBJECT);
  ReplyWriter writer(4);
  writer.be32(0, id);
  return reply(std::move(writer).take());
}

Outcome zoning_name_of_id(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t vsan = body.word(), active = body.word();
  const auto kind = zoning_kind(body.word());
  const uint32_t id = body.word();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind) return refuse(ZS_BAD_KIND);
  const auto [database, problem] = database_of(fabric, vsan, active);
  if (database == nullptr) return refuse(problem);
  const std::string* name = database->name_of(*kind, id);
  if (name == nullptr) return refuse(ZS_NO_SUCH_OBJECT);
  ReplyWriter writer(name->size());
  writer.raw(0, reinterpret_cast<const uint8_t*>(name->data()), name->size());
  return reply(std::move(writer).take());
}

Outcome zoning_policy(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const Vsan* vsan = find_vsan(fabric, body.word());
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  ReplyWriter writer(4);
  writer.be32(0, static_cast<uint32_t>(vsan->zoning->default_policy));
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
