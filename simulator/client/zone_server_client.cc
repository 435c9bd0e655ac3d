// The zone server's client functions. Entries come in host order from here on; a bit set keeps the
// big-endian number of bits that it starts with everywhere.
#include <switch_platform/zone_server.h>
#include <switch_platform/zone_server_results.h>

#include <cstring>
#include <string_view>

#include "simulator/client/payload_reader.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"
#include "simulator/local/zone_member_layout.h"
#include "simulator/transport/zone_server_messages.h"

using switch_sim::be32_at;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Outcome;
using switch_sim::Platform;

namespace status = switch_sim::status;
namespace zone_member = switch_sim::zone_member;

namespace {

// Of the bit sets in an entry.
constexpr uint32_t kMostBitsOfZones = (1260 - 4) * 8;
constexpr uint32_t kMostBits = (260 - 4) * 8;

constexpr uint32_t kZoneSets = 1;
constexpr uint32_t kAliases = 2;
constexpr uint32_t kZones = 0;

class Body {
 public:
  Body& word(uint32_t value) {
    for (const int shift : {24, 16, 8, 0})
      bytes_.push_back(static_cast<std::byte>(value >> shift));
    return *this;
  }

  Body& text(std::string_view value) {
    word(static_cast<uint32_t>(value.size()));
    for (const char character : value)
      bytes_.push_back(static_cast<std::byte>(character));
    return *this;
  }

  // A missing name is none that the service takes.
  Body& name(const char* value) { return text(value != nullptr ? value : ""); }

  const Bytes& bytes() const { return bytes_; }

 private:
  Bytes bytes_;
};

Outcome ask(Platform& platform, int32_t q, uint32_t opcode, uint32_t operation, const Body& body) {
  Outcome outcome =
      platform.exchange(q, {switch_sim::Service::zone_server, opcode, operation, body.bytes()});
  if (outcome.error_number != 0) errno = outcome.error_number;
  return outcome;
}

uint32_t what_of(int32_t operation) {
  return operation != 0 ? 1 : 0;
}

void to_host(Bytes& bytes, size_t offset) {
  const uint32_t value = be32_at(bytes, offset);
  memcpy(bytes.data() + offset, &value, sizeof value);
}

bool has_bits(const Bytes& bytes, size_t offset, uint32_t most) {
  return be32_at(bytes, offset) <= most;
}

// The entries of a reply: their size by kind, their bit sets inside them.
struct EntryFormat {
  uint32_t kind;
  size_t size;
  uint32_t most_bits;  // of the first bit set
};

constexpr EntryFormat kZoneSetFormat = {kZoneSets, switch_sim::kZoneSetEntrySize, kMostBitsOfZones};
constexpr EntryFormat kZoneFormat = {kZones, switch_sim::kZoneEntrySize, kMostBits};
constexpr EntryFormat kAliasFormat = {kAliases, switch_sim::kAliasEntrySize, kMostBits};

// False when an entry is damaged.
bool entries_to_host(Bytes& bytes, const EntryFormat& format) {
  for (size_t at = 0; at < bytes.size(); at += format.size) {
    if (!has_bits(bytes, at + switch_sim::kFirstBitSetOffset, format.most_bits)) return false;
    to_host(bytes, at);
    to_host(bytes, at + 4);
    if (format.kind != kZones) continue;
    if (!has_bits(bytes, at + switch_sim::kSecondBitSetOffset, kMostBits)) return false;
    to_host(bytes, at + switch_sim::kZoneAttributesOffset);
  }
  return true;
}

// Hands out the entries of a reply. `expected` is their number, or nothing for any.
int32_t hand_out_entries(Platform& platform, Outcome outcome, const EntryFormat& format,
                         std::optional<size_t> expected, int32_t* count, void** reply) {
  if (outcome.status != 0) return outcome.status;
  if (!outcome.reply || outcome.reply->size() % format.size != 0) return status::kBadLength;
  const size_t number = outcome.reply->size() / format.size;
  if (expected && number != *expected) return status::kBadLength;
  if (!entries_to_host(*outcome.reply, format)) return status::kBadValue;
  *reply = platform.hand_out(*outcome.reply);
  *count = static_cast<int32_t>(number);
  return status::kOk;
}

// Empties what a read hands out; false when there is no room for it.
bool starts_empty(int32_t* count, void** reply) {
  if (count != nullptr) *count = 0;
  if (reply != nullptr) *reply = nullptr;
  return count != nullptr && reply != nullptr;
}

uint32_t read_operation(int32_t exact) {
  return exact != 0 ? switch_sim::kGet : switch_sim::kGetNext;
}

int32_t get_object(int32_t q, int32_t exact, uint32_t vsan, int32_t active, uint32_t id,
                   const EntryFormat& format, int32_t* count, void** reply) {
  if (!starts_empty(count, reply)) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(static_cast<uint32_t>(active)).word(format.kind).word(id);
    return hand_out_entries(
        platform, ask(platform, q, switch_sim::kZoningObject, read_operation(exact), body), format,
        1, count, reply);
  });
}

int32_t get_all(int32_t q, uint32_t vsan, int32_t active, const EntryFormat& format, int32_t* count,
                void** reply) {
  if (!starts_empty(count, reply)) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(static_cast<uint32_t>(active)).word(format.kind);
    return hand_out_entries(platform,
                            ask(platform, q, switch_sim::kZoningObjects, switch_sim::kGet, body),
                            format, std::nullopt, count, reply);
  });
}

// False when the entry is damaged.
bool member_to_host(Bytes& entry) {
  if (entry.size() < switch_sim::kMemberEntrySize) return false;
  const auto type = std::to_integer<uint8_t>(entry[zone_member::kTypeOffset]);
  const auto* layout = zone_member::layout_of(type);
  if (layout == nullptr || entry.size() != zone_member::kValueOffset + layout->width) return false;
  to_host(entry, 0);
  to_host(entry, 4);
  for (const uint8_t word : layout->host_words) {
    if (word != zone_member::kNoWord) to_host(entry, zone_member::kValueOffset + word);
  }
  return true;
}

void append_word(std::string& value, const uint8_t* bytes) {
  uint32_t word = 0;
  memcpy(&word, bytes, sizeof word);
  for (const int shift : {24, 16, 8, 0})
    value += static_cast<char>(word >> shift);
}

// The value of a caller's member buffer: the type tells its width, since the buffer's own length
// code does not (it is 8 for most types).
std::string packed_value(const uint8_t* bytes, const zone_member::Layout& layout) {
  const auto* value = reinterpret_cast<const char*>(bytes);
  if (layout.is_text) return {value, strnlen(value, layout.width)};
  std::string packed(value, layout.width);
  for (const uint8_t word : layout.host_words) {
    if (word == zone_member::kNoWord) continue;
    std::string big_endian;
    append_word(big_endian, bytes + word);
    packed.replace(word, big_endian.size(), big_endian);
  }
  return packed;
}

int32_t change_member(int32_t q, int32_t operation, uint32_t vsan, uint32_t kind,
                      const char* parent, const void* member) {
  const auto* buffer = static_cast<const uint8_t*>(member);
  const auto* layout = buffer != nullptr ? zone_member::layout_of(buffer[0]) : nullptr;
  if (layout == nullptr) return ZS_BAD_MEMBER;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(what_of(operation)).word(kind).name(parent);
    body.word(buffer[0]).text(packed_value(buffer + 4, *layout));
    return ask(platform, q, switch_sim::kChangeZoneMember, switch_sim::kSet, body).status;
  });
}

}  // namespace

int32_t zs_cmi_get_zone_set(int32_t q, int32_t exact, uint32_t vsan, void* /*context*/,
                            int32_t /*zero*/, int32_t active, uint32_t id, int32_t* count,
                            void** reply) {
  return get_object(q, exact, vsan, active, id, kZoneSetFormat, count, reply);
}

int32_t zs_cmi_get_zone(int32_t q, int32_t exact, uint32_t vsan, void* /*context*/,
                        int32_t /*zero*/, int32_t active, uint32_t id, int32_t* count,
                        void** reply) {
  return get_object(q, exact, vsan, active, id, kZoneFormat, count, reply);
}

int32_t zs_cmi_get_alias(int32_t q, int32_t exact, uint32_t vsan, void* /*context*/,
                         int32_t /*zero*/, int32_t active, uint32_t id, int32_t* count,
                         void** reply) {
  return get_object(q, exact, vsan, active, id, kAliasFormat, count, reply);
}

int32_t zs_cmi_get_all_zone_sets_in_vsan(int32_t q, uint32_t vsan, void* /*context*/,
                                         int32_t /*zero*/, int32_t active, int32_t* count,
                                         void** reply) {
  return get_all(q, vsan, active, kZoneSetFormat, count, reply);
}

int32_t zs_cmi_get_all_zones_in_vsan(int32_t q, uint32_t vsan, void* /*context*/, int32_t /*zero*/,
                                     int32_t active, int32_t* count, void** reply) {
  return get_all(q, vsan, active, kZoneFormat, count, reply);
}

int32_t zs_cmi_get_all_aliases_in_vsan(int32_t q, uint32_t vsan, void* /*context*/,
                                       int32_t /*zero*/, int32_t active, int32_t* count,
                                       void** reply) {
  return get_all(q, vsan, active, kAliasFormat, count, reply);
}

int32_t zs_cmi_get_member(int32_t q, int32_t exact, uint32_t vsan, void* /*context*/,
                          int32_t /*zero*/, int32_t active, int32_t parent_kind, uint32_t parent_id,
                          uint32_t member_id, int32_t* count, void** reply, int32_t /*zero2*/) {
  if (!starts_empty(count, reply)) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(static_cast<uint32_t>(active)).word(static_cast<uint32_t>(parent_kind));
    body.word(parent_id).word(member_id);
    Outcome outcome = ask(platform, q, switch_sim::kZoneMember, read_operation(exact), body);
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || !member_to_host(*outcome.reply)) return status::kBadLength;
    *reply = platform.hand_out(*outcome.reply);
    *count = 1;
    return status::kOk;
  });
}

int32_t zs_cmi_create_zoning_object(int32_t q, int32_t operation, uint32_t vsan, int32_t kind,
                                    int32_t /*minus1*/, const char* name, const char* /*empty1*/,
                                    const char* /*empty2*/, void* /*context*/) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(what_of(operation)).word(static_cast<uint32_t>(kind)).name(name);
    return ask(platform, q, switch_sim::kChangeZoningObject, switch_sim::kSet, body).status;
  });
}

int32_t zs_cmi_get_id_for_name(int32_t q, uint32_t vsan, void* /*context*/, int32_t /*zero*/,
                               int32_t active, int32_t kind, const char* name, uint32_t* id) {
  if (id == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(static_cast<uint32_t>(active)).word(static_cast<uint32_t>(kind));
    const Outcome outcome =
        ask(platform, q, switch_sim::kZoningIdOfName, switch_sim::kGet, body.name(name));
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->size() != 4) return status::kBadLength;
    *id = be32_at(*outcome.reply, 0);
    return status::kOk;
  });
}

// The buffer takes at least 65 bytes, the longest name with its NUL.
int32_t zs_cmi_get_name_for_id(int32_t q, uint32_t vsan, void* /*context*/, int32_t /*zero*/,
                               int32_t active, int32_t kind, uint32_t id, char* name) {
  if (name == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(static_cast<uint32_t>(active)).word(static_cast<uint32_t>(kind)).word(id);
    const Outcome outcome = ask(platform, q, switch_sim::kZoningNameOfId, switch_sim::kGet, body);
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->empty() ||
        outcome.reply->size() >= switch_sim::kZoningNameWidth) {
      return status::kBadLength;
    }
    memcpy(name, outcome.reply->data(), outcome.reply->size());
    name[outcome.reply->size()] = '\0';
    return status::kOk;
  });
}

int32_t zs_cmi_add_zone_to_zone_set(int32_t q, int32_t operation, uint32_t vsan,
                                    const char* zone_set, const char* zone, const char* /*empty1*/,
                                    const char* /*empty2*/, void* /*context*/) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(what_of(operation)).name(zone_set).name(zone);
    return ask(platform, q, switch_sim::kChangeZoneOfZoneSet, switch_sim::kSet, body).status;
  });
}

int32_t zs_cmi_add_alias_to_zone(int32_t q, int32_t operation, uint32_t vsan, const char* zone,
                                 const char* alias, const char* /*empty1*/, const char* /*empty2*/,
                                 void* /*context*/) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(what_of(operation)).name(zone).name(alias);
    return ask(platform, q, switch_sim::kChangeAliasOfZone, switch_sim::kSet, body).status;
  });
}

// The member: its type at 0, its value from 4 on, with numbers in host order.
int32_t zs_cmi_add_zone_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                               int32_t /*minus1*/, const void* member, const char* /*null1*/,
                               const char* /*null2*/, void* /*context*/) {
  return change_member(q, operation, vsan, kZones, parent, member);
}

int32_t zs_cmi_add_alias_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                                int32_t /*minus1*/, const void* member, const char* /*empty1*/,
                                const char* /*empty2*/, void* /*context*/) {
  return change_member(q, operation, vsan, kAliases, parent, member);
}

int32_t zs_cmi_activate_zone_set(int32_t q, int32_t operation, uint32_t vsan, const char* name,
                                 const char* /*empty1*/, const char* /*empty2*/,
                                 void* /*context*/) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan).word(what_of(operation)).name(name);
    return ask(platform, q, switch_sim::kActivateZoneSet, switch_sim::kSet, body).status;
  });
}

int32_t zs_cmi_zoneset_distribute(int32_t q, uint32_t vsan, const char* /*empty1*/,
                                  const char* /*empty2*/, void* /*context*/) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan);
    return ask(platform, q, switch_sim::kDistributeZoning, switch_sim::kSet, body).status;
  });
}

// The policies: a block that only zs_cmi_get_policy looks into, one number in host order.
int32_t zs_cmi_get_all_policies(int32_t q, int32_t /*one*/, uint32_t vsan, void* /*context*/,
                                int32_t /*zero*/, void** policies) {
  if (policies == nullptr) return status::kBadValue;
  *policies = nullptr;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Body body;
    body.word(vsan);
    Outcome outcome = ask(platform, q, switch_sim::kZoningPolicy, switch_sim::kGet, body);
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->size() != 4) return status::kBadLength;
    to_host(*outcome.reply, 0);
    *policies = platform.hand_out(*outcome.reply);
    return status::kOk;
  });
}

uint32_t zs_cmi_get_policy(const void* policies, int32_t /*a*/, int32_t /*b*/, int32_t /*c*/) {
  uint32_t value = 0;
  if (policies != nullptr) memcpy(&value, policies, sizeof value);
  return value;
}
