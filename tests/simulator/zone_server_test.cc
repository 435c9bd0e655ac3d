#include <switch_platform/bitset.h>
#include <switch_platform/zone_server.h>

#include <array>
#include <atomic>
#include <thread>

#include "simulator/transport/zone_server_messages.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::ZoneDatabase;
using switch_sim::ZoningKind;

// Results, as numbers of the interface.
constexpr int32_t kNoSuchVsan = 0x40200001;
constexpr int32_t kNoSuchObject = 0x40200002;
constexpr int32_t kNoSuchMember = 0x40200003;
constexpr int32_t kObjectExists = 0x40200004;
constexpr int32_t kMemberExists = 0x40200005;
constexpr int32_t kBadName = 0x40200006;
constexpr int32_t kBadKind = 0x40200007;
constexpr int32_t kBadMember = 0x40200008;
constexpr int32_t kZoneSetEmpty = 0x40200009;
constexpr int32_t kTooManyZoneSets = 0x40200011;
constexpr int32_t kTooManyZones = 0x40200012;
constexpr int32_t kTooManyAliases = 0x40200013;
constexpr int32_t kTooManyMembers = 0x40200014;
constexpr int32_t kTooManyMembersOfParent = 0x40200015;
constexpr int32_t kAlreadyActive = 0x40200038;
constexpr int32_t kNotActive = 0x40200039;
constexpr int32_t kAlreadyDistributed = 0x40200079;
constexpr int32_t kNothingToDistribute = 0x40200091;

constexpr int32_t kZone = 0, kZoneSet = 1, kAlias = 2;
constexpr int32_t kParentAlias = 0, kParentZone = 1;
constexpr int32_t kFull = 0, kActive = 1;

// A number as it lies in memory.
std::string host(uint32_t value) {
  uint8_t bytes[4];
  memcpy(bytes, &value, sizeof bytes);
  char text[9];
  snprintf(text, sizeof text, "%02x%02x%02x%02x", bytes[0], bytes[1], bytes[2], bytes[3]);
  return text;
}

std::vector<uint8_t> from_hex(std::string_view hex) {
  return Pattern(hex.size() / 2).at(0, hex).bytes();
}

std::vector<uint8_t> slice(const std::vector<uint8_t>& bytes, size_t offset, size_t size) {
  if (bytes.size() < offset + size) return {};
  const auto first = bytes.begin() + static_cast<long>(offset);
  return {first, first + static_cast<long>(size)};
}

class ZoneServer : public SimulatorTest {
 protected:
  struct Entries {
    int32_t status = 0;
    int32_t count = 0;
    std::vector<uint8_t> bytes;
  };

  // Takes what a read handed out, of entries of a size.
  static Entries taken(int32_t status, int32_t count, void* reply, size_t size) {
    Entries entries{status, count, {}};
    const auto* bytes = static_cast<const uint8_t*>(reply);
    if (reply != nullptr) entries.bytes.assign(bytes, bytes + static_cast<size_t>(count) * size);
    EXPECT_EQ(count == 0, reply == nullptr);
    free(reply);
    return entries;
  }

  Entries zone(uint32_t id, int32_t active = kFull, uint32_t vsan = 1, int32_t exact = 1) {
    int32_t count = 1;
    void* reply = &count;
    const int32_t status = zs_cmi_get_zone(q, exact, vsan, context, 0, active, id, &count, &reply);
    return taken(status, count, reply, 872);
  }

  Entries zone_set(uint32_t id, int32_t active = kFull) {
    int32_t count = 1;
    void* reply = &count;
    const int32_t status = zs_cmi_get_zone_set(q, 1, 1, context, 0, active, id, &count, &reply);
    return taken(status, count, reply, 1344);
  }

  Entries alias(uint32_t id, int32_t active = kFull) {
    int32_t count = 1;
    void* reply = &count;
    const int32_t status = zs_cmi_get_alias(q, 1, 1, context, 0, active, id, &count, &reply);
    return taken(status, count, reply, 344);
  }

  Entries all_zones(int32_t active = kFull, uint32_t vsan = 1) {
    int32_t count = 32;
    void* reply = &count;
    const int32_t status =
        zs_cmi_get_all_zones_in_vsan(q, vsan, context, 0, active, &count, &reply);
    return taken(status, count, reply, 872);
  }

  // One member; the size of what is read follows from its type.
  Entries member(int32_t kind, uint32_t parent, uint32_t id, size_t size = 32,
                 int32_t active = kFull, int32_t exact = 1) {
    int32_t count = 1;
    void* reply = &count;
    const int32_t status =
        zs_cmi_get_member(q, exact, 1, context, 0, active, kind, parent, id, &count, &reply, 0);
    return taken(status, count, reply, size);
  }

  int32_t create(int32_t kind, const char* name, uint32_t vsan = 1) {
    return zs_cmi_create_zoning_object(q, 1, vsan, kind, -1, name, "", "", context);
  }

  int32_t destroy(int32_t kind, const char* name, uint32_t vsan = 1) {
    return zs_cmi_create_zoning_object(q, 0, vsan, kind, -1, name, "", "", context);
  }

  int32_t zone_in_set(int32_t what, const char* set, const char* name, uint32_t vsan = 1) {
    return zs_cmi_add_zone_to_zone_set(q, what, vsan, set, name, "", "", context);
  }

  int32_t alias_in_zone(int32_t what, const char* name, const char* alias_name, uint32_t vsan = 1) {
    return zs_cmi_add_alias_to_zone(q, what, vsan, name, alias_name, "", "", context);
  }

  // A buffer of type, length code 8 and value, as a caller makes it.
  static std::vector<uint8_t> buffer(uint8_t type, std::string_view hex, size_t room = 0) {
    std::vector<uint8_t> value = from_hex(hex);
    value.resize(std::max(room, value.size()));
    value.insert(value.begin(), {type, 0, 8, 0});
    return value;
  }

  int32_t zone_member(int32_t what, const char* name, const std::vector<uint8_t>& buffer,
                      uint32_t vsan = 1) {
    return zs_cmi_add_zone_member(q, what, vsan, name, -1, buffer.data(), nullptr, nullptr,
                                  context);
  }

  int32_t alias_member(int32_t what, const char* name, const std::vector<uint8_t>& buffer) {
    return zs_cmi_add_alias_member(q, what, 1, name, -1, buffer.data(), "", "", context);
  }

  int32_t activate(int32_t what, const char* name, uint32_t vsan = 1) {
    return zs_cmi_activate_zone_set(q, what, vsan, name, "", "", context);
  }

  int32_t distribute(uint32_t vsan = 1) {
    return zs_cmi_zoneset_distribute(q, vsan, "", "", context);
  }

  uint32_t id_of(int32_t kind, const char* name, int32_t active = kFull) {
    uint32_t id = 0;
    zs_cmi_get_id_for_name(q, 1, context, 0, active, kind, name, &id);
    return id;
  }

  std::string name_of(int32_t kind, uint32_t id, int32_t active = kFull) {
    char name[256] = "";
    zs_cmi_get_name_for_id(q, 1, context, 0, active, kind, id, name);
    return name;
  }

  // Installs a fabric whose VSAN 1 has another full database.
  template <typename Fill>
  void with_database(Fill fill) {
    auto fabric = control::fabric();
    ZoneDatabase database;
    fill(database);
    fabric.vsans[0].zoning.change().full.change() = database;
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }

  static const switch_sim::Zoning& zoning_of(const switch_sim::Fabric& fabric) {
    return *fabric.vsans[0].zoning;
  }

  uint8_t context[132] = {};
};

Pattern first_zone() {
  return Pattern(872)
      .at(0, host(1))
      .at(4, host(1))
      .text(16, "host_a_arrays")
      .at(84, "0000080001")    // of 2048 bits: member 1
      .at(344, "0000080001");  // of 2048 bits: alias 1
}

TEST_F(ZoneServer, AZoneIsFoundById) {
  const Entries entries = zone(1);
  EXPECT_EQ(0, entries.status);
  EXPECT_EQ(1, entries.count);
  EXPECT_EQ(first_zone().bytes(), entries.bytes);
}

TEST_F(ZoneServer, AZoneSetIsFoundById) {
  EXPECT_EQ(Pattern(1344)
                .at(0, host(1))
                .at(4, host(1))
                .text(16, "production")
                .at(84, "00001f4003")  // of 8000 bits: zones 1 and 2
                .bytes(),
            zone_set(1).bytes);
}

TEST_F(ZoneServer, AnAliasIsFoundById) {
  EXPECT_EQ(
      Pattern(344).at(0, host(1)).at(4, host(1)).text(16, "arrays").at(84, "0000080003").bytes(),
      alias(1).bytes);
}

TEST_F(ZoneServer, AMemberIsFoundByParentAndId) {
  EXPECT_EQ(
      Pattern(32).at(0, host(1)).at(4, host(1)).at(20, "01").at(24, "2100001122334401").bytes(),
      member(kParentZone, 1, 1).bytes);
  EXPECT_EQ(
      Pattern(32).at(0, host(1)).at(4, host(2)).at(20, "01").at(24, "2100001122334421").bytes(),
      member(kParentAlias, 1, 2).bytes);
}

TEST_F(ZoneServer, TheActiveDatabaseIsReadInTheSameWay) {
  EXPECT_EQ(first_zone().bytes(), zone(1, kActive).bytes);
  EXPECT_EQ(1, zone_set(1, kActive).count);
  EXPECT_EQ(1, alias(1, kActive).count);
  EXPECT_EQ(1, member(kParentZone, 2, 1, 32, kActive).count);
}

TEST_F(ZoneServer, WhatIsNotThereIsRefusedAndNothingHandedOut) {
  EXPECT_EQ(kNoSuchObject, zone(3).status);
  EXPECT_EQ(0, zone(3).count);
  EXPECT_EQ(kNoSuchObject, zone(0).status);
  EXPECT_EQ(kNoSuchObject, zone(0xFFFFFFFF).status);
  EXPECT_EQ(kNoSuchVsan, zone(1, kFull, 9).status);
  EXPECT_EQ(kBadValue, zone(1, 2).status);
  EXPECT_EQ(kNoSuchObject, zone_set(2).status);
  EXPECT_EQ(kNoSuchObject, alias(2).status);
  EXPECT_EQ(kNoSuchObject, member(kParentZone, 3, 1).status);
  EXPECT_EQ(kNoSuchMember, member(kParentZone, 1, 2).status);
  EXPECT_EQ(kNoSuchMember, member(kParentZone, 1, 0).status);
  EXPECT_EQ(kBadKind, member(2, 1, 1).status);
  EXPECT_EQ(kBadKind, member(-1, 1, 1).status);
  EXPECT_EQ(kNoSuchVsan, all_zones(kFull, 9).status);
}

TEST_F(ZoneServer, ANotExactReadGoesToTheNextId) {
  EXPECT_EQ(first_zone().bytes(), zone(0, kFull, 1, 0).bytes);
  EXPECT_EQ(0x02, zone(1, kFull, 1, 0).bytes.at(host(2) == "02000000" ? 4 : 7));
  EXPECT_EQ(kNoSuchObject, zone(2, kFull, 1, 0).status);
  EXPECT_EQ(1, member(kParentAlias, 1, 1, 32, kFull, 0).count);
  EXPECT_EQ(kNoSuchMember, member(kParentAlias, 1, 2, 32, kFull, 0).status);
}

TEST_F(ZoneServer, AllObjectsOfAVsanComeTogetherByRisingIds) {
  const Entries zones = all_zones();
  ASSERT_EQ(2, zones.count);
  EXPECT_STREQ("host_a_arrays", reinterpret_cast<const char*>(zones.bytes.data() + 16));
  EXPECT_STREQ("backup", reinterpret_cast<const char*>(zones.bytes.data() + 872 + 16));
  int32_t count = 32;
  void* reply = nullptr;
  EXPECT_EQ(0, zs_cmi_get_all_zone_sets_in_vsan(q, 1, context, 0, 0, &count, &reply));
  EXPECT_EQ(1, count);
  free(reply);
  EXPECT_EQ(0, zs_cmi_get_all_aliases_in_vsan(q, 1, context, 0, 0, &count, &reply));
  EXPECT_EQ(1, count);
  free(reply);
}

TEST_F(ZoneServer, AVsanWithoutZoningHasNoEntries) {
  EXPECT_EQ(0, all_zones(kFull, 2).status);
  EXPECT_EQ(0, all_zones(kFull, 2).count);
}

TEST_F(ZoneServer, MoreObjectsComeThanTheCallerThoughtOf) {
  for (int i = 0; i < 40; ++i)
    ASSERT_EQ(0, create(kZone, ("z" + std::to_string(i)).c_str()));
  EXPECT_EQ(42, all_zones().count);
}

TEST_F(ZoneServer, NumbersAreBigEndianBetweenClientAndService) {
  control::keep_log(true);
  zone(2);
  const auto log = control::log();
  const auto as_bytes = [](const switch_sim::Bytes& bytes) {
    const auto* data = reinterpret_cast<const uint8_t*>(bytes.data());
    return std::vector<uint8_t>(data, data + bytes.size());
  };
  ASSERT_EQ(1U, log.size());
  EXPECT_EQ(0x10101U, log[0].request.opcode);
  EXPECT_EQ(1U, log[0].request.operation);
  EXPECT_EQ(from_hex("00000001000000000000000000000002"), as_bytes(log[0].request.body));
  EXPECT_EQ(from_hex("0000000100000002"), slice(as_bytes(*log[0].outcome->reply), 0, 8));
}

TEST_F(ZoneServer, TheAttributesOfAZoneAreTold) {
  with_database([](ZoneDatabase& database) {
    database.create(ZoningKind::zone, "z");
    database.set_attributes(1, 0x80000001);
  });
  EXPECT_EQ(Pattern(872)
                .at(0, host(1))
                .at(4, host(1))
                .text(16, "z")
                .at(84, "00000800")
                .at(344, "00000800")
                .at(604, host(0x80000001))
                .bytes(),
            zone(1).bytes);
}

TEST_F(ZoneServer, NamesAndIdsAreLookedUp) {
  EXPECT_EQ(2U, id_of(kZone, "backup"));
  EXPECT_EQ(1U, id_of(kZoneSet, "production"));
  EXPECT_EQ(1U, id_of(kAlias, "arrays", kActive));
  EXPECT_EQ("backup", name_of(kZone, 2));
  EXPECT_EQ("production", name_of(kZoneSet, 1, kActive));
  EXPECT_EQ("arrays", name_of(kAlias, 1));
}

TEST_F(ZoneServer, AFailedLookUpStoresNothing) {
  uint32_t id = 77;
  EXPECT_EQ(kNoSuchObject, zs_cmi_get_id_for_name(q, 1, context, 0, 0, kZone, "arrays", &id));
  EXPECT_EQ(kNoSuchObject, zs_cmi_get_id_for_name(q, 1, context, 0, 0, kZone, nullptr, &id));
  EXPECT_EQ(kNoSuchVsan, zs_cmi_get_id_for_name(q, 9, context, 0, 0, kZone, "arrays", &id));
  EXPECT_EQ(kBadKind, zs_cmi_get_id_for_name(q, 1, context, 0, 0, 3, "arrays", &id));
  EXPECT_EQ(kBadValue, zs_cmi_get_id_for_name(q, 1, context, 0, 0, kZone, "arrays", nullptr));
  EXPECT_EQ(77U, id);
  char name[256] = "kept";
  EXPECT_EQ(kNoSuchObject, zs_cmi_get_name_for_id(q, 1, context, 0, 0, kZone, 3, name));
  EXPECT_EQ(kNoSuchVsan, zs_cmi_get_name_for_id(q, 9, context, 0, 0, kZone, 1, name));
  EXPECT_EQ(kBadKind, zs_cmi_get_name_for_id(q, 1, context, 0, 0, -1, 1, name));
  EXPECT_EQ(kBadValue, zs_cmi_get_name_for_id(q, 1, context, 0, 0, kZone, 1, nullptr));
  EXPECT_STREQ("kept", name);
}

TEST_F(ZoneServer, ACreatedObjectHasTheLowestFreeId) {
  EXPECT_EQ(0, create(kZone, "third"));
  EXPECT_EQ(3U, id_of(kZone, "third"));
  EXPECT_EQ(0, destroy(kZone, "host_a_arrays"));
  EXPECT_EQ(0, create(kZone, "fourth"));
  EXPECT_EQ(1U, id_of(kZone, "fourth"));
  EXPECT_EQ(0, create(kZoneSet, "test"));
  EXPECT_EQ(2U, id_of(kZoneSet, "test"));
  EXPECT_EQ(0, create(kAlias, "array2"));
  EXPECT_EQ(2U, id_of(kAlias, "array2"));
}

TEST_F(ZoneServer, AChangeOfTheFullDatabaseLeavesTheActiveOneAlone) {
  EXPECT_EQ(0, create(kZone, "third"));
  EXPECT_EQ(0, destroy(kZone, "host_a_arrays"));
  EXPECT_EQ(2, all_zones(kActive).count);
  EXPECT_EQ(first_zone().bytes(), zone(1, kActive).bytes);
}

TEST_F(ZoneServer, ANameIsUniqueAmongTheObjectsOfAKind) {
  EXPECT_EQ(kObjectExists, create(kZone, "host_a_arrays"));
  EXPECT_EQ(kObjectExists, create(kZoneSet, "production"));
  EXPECT_EQ(kObjectExists, create(kAlias, "arrays"));
  EXPECT_EQ(0, create(kZone, "arrays"));
  EXPECT_EQ(0, create(kZone, "HOST_A_arrays"));
  EXPECT_EQ(0, create(kZone, "host_a_arrays", 2));
}

TEST_F(ZoneServer, AWrongNameIsRefused) {
  for (const char* name : {"", "1zone", "_zone", "a b", "a.b", "zo\u00f6ne", "a\n"}) {
    EXPECT_EQ(kBadName, create(kZone, name)) << name;
  }
  EXPECT_EQ(kBadName, create(kZone, nullptr));
  EXPECT_EQ(kBadName, create(kZone, std::string(65, 'z').c_str()));
  EXPECT_EQ(0, create(kZone, std::string(64, 'z').c_str()));
  EXPECT_EQ(0, create(kZone, "Z9$-^_z"));
  EXPECT_EQ(std::string(64, 'z'), name_of(kZone, 3));
}

TEST_F(ZoneServer, AWrongKindOrVsanIsRefused) {
  EXPECT_EQ(kBadKind, create(3, "z"));
  EXPECT_EQ(kBadKind, create(-1, "z"));
  EXPECT_EQ(kNoSuchVsan, create(kZone, "z", 9));
  EXPECT_EQ(kNoSuchObject, destroy(kZone, "z"));
  EXPECT_EQ(kNoSuchVsan, destroy(kZone, "host_a_arrays", 9));
}

TEST_F(ZoneServer, ADeletedZoneLeavesItsZoneSets) {
  EXPECT_EQ(0, destroy(kZone, "host_a_arrays"));
  EXPECT_EQ(kNoSuchObject, zone(1).status);
  EXPECT_EQ(from_hex("00001f4002000000"), slice(zone_set(1).bytes, 84, 8));
}

TEST_F(ZoneServer, ADeletedAliasLeavesItsZones) {
  EXPECT_EQ(0, destroy(kAlias, "arrays"));
  for (const uint32_t id : {1U, 2U})
    EXPECT_EQ(0, zone(id).bytes.at(348)) << id;
  EXPECT_EQ(1, zone(1, kActive).bytes.at(348));
}

TEST_F(ZoneServer, ADeletedZoneSetLeavesItsZones) {
  EXPECT_EQ(0, destroy(kZoneSet, "production"));
  EXPECT_EQ(2, all_zones().count);
  EXPECT_EQ(1, zone_set(1, kActive).count);
}

TEST_F(ZoneServer, AZoneIsPutIntoAZoneSetAndTakenOut) {
  ASSERT_EQ(0, create(kZoneSet, "test"));
  EXPECT_EQ(0, zone_in_set(1, "test", "backup"));
  EXPECT_EQ(0x02, zone_set(2).bytes.at(88));
  EXPECT_EQ(kMemberExists, zone_in_set(1, "test", "backup"));
  EXPECT_EQ(0, zone_in_set(0, "test", "backup"));
  EXPECT_EQ(0x00, zone_set(2).bytes.at(88));
  EXPECT_EQ(kNoSuchMember, zone_in_set(0, "test", "backup"));
  EXPECT_EQ(kNoSuchObject, zone_in_set(1, "test", "none"));
  EXPECT_EQ(kNoSuchObject, zone_in_set(1, "none", "backup"));
  EXPECT_EQ(kNoSuchObject, zone_in_set(1, nullptr, nullptr));
  EXPECT_EQ(kNoSuchVsan, zone_in_set(1, "test", "backup", 9));
}

TEST_F(ZoneServer, AnAliasIsPutIntoAZoneAndTakenOut) {
  ASSERT_EQ(0, create(kZone, "third"));
  EXPECT_EQ(0, alias_in_zone(7, "third", "arrays"));
  EXPECT_EQ(0x01, zone(3).bytes.at(348));
  EXPECT_EQ(kMemberExists, alias_in_zone(1, "third", "arrays"));
  EXPECT_EQ(0, alias_in_zone(0, "third", "arrays"));
  EXPECT_EQ(0x00, zone(3).bytes.at(348));
  EXPECT_EQ(kNoSuchMember, alias_in_zone(0, "third", "arrays"));
  EXPECT_EQ(kNoSuchObject, alias_in_zone(1, "none", "arrays"));
  EXPECT_EQ(kNoSuchObject, alias_in_zone(1, "third", "none"));
  EXPECT_EQ(kNoSuchObject, alias_in_zone(1, "arrays", "arrays"));  // the first is a zone
  EXPECT_EQ(kNoSuchVsan, alias_in_zone(1, "third", "arrays", 9));
}

struct MemberCase {
  int type;
  std::string value;  // hexadecimal, as it lies in memory
  int32_t length;     // that a reader is told
  int lun;            // offset in the value, -1: none
  size_t width;       // of the value in an entry
  const char* text;   // in a fabric file
};

void PrintTo(const MemberCase& of, std::ostream* out) {
  *out << of.type;
}

class ZoneServerMember : public ZoneServer, public testing::WithParamInterface<MemberCase> {};

TEST_P(ZoneServerMember, IsAddedReadAndRemoved) {
  const auto& [type, value, length, lun, width, text] = GetParam();
  const auto sent = buffer(static_cast<uint8_t>(type), value, 24);
  ASSERT_EQ(0, zone_member(1, "host_a_arrays", sent));
  EXPECT_EQ(kMemberExists, zone_member(1, "host_a_arrays", sent));
  ASSERT_EQ(0, alias_member(1, "arrays", sent));

  const Entries entry = member(kParentZone, 1, 2, 24 + width);
  auto expected = Pattern(24 + width).at(0, host(1)).at(4, host(2)).bytes();
  expected[20] = static_cast<uint8_t>(type);
  const auto bytes = from_hex(value);
  std::copy(bytes.begin(), bytes.end(), expected.begin() + 24);
  EXPECT_EQ(expected, entry.bytes);
  EXPECT_EQ(24 + width, member(kParentAlias, 1, 3, 24 + width).bytes.size());

  uint8_t parsed_type = 0;
  int32_t parsed_length = 0;
  const void* parsed_value = nullptr;
  const void* parsed_lun = nullptr;
  EXPECT_EQ(0, zs_api_parse_member(entry.bytes.data(), &parsed_type, &parsed_length, &parsed_value,
                                   &parsed_lun));
  EXPECT_EQ(type, parsed_type);
  EXPECT_EQ(length, parsed_length);
  EXPECT_EQ(entry.bytes.data() + 24, parsed_value);
  EXPECT_EQ(lun < 0 ? nullptr : entry.bytes.data() + 24 + lun, parsed_lun);

  EXPECT_NE(std::string::npos, control::fabric_text().find(text)) << text;
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, control::install_text(control::fabric_text(), "written"));
  EXPECT_EQ(kept, control::fabric());

  EXPECT_EQ(0, zone_member(0, "host_a_arrays", sent));
  EXPECT_EQ(kNoSuchMember, zone_member(0, "host_a_arrays", sent));
  EXPECT_EQ(0, alias_member(0, "arrays", sent));
  EXPECT_EQ(kNoSuchMember, member(kParentZone, 1, 2).status);
}

INSTANTIATE_TEST_SUITE_P(
    Types, ZoneServerMember,
    testing::Values(
        MemberCase{1, "2100001b32010203", 8, -1, 8,
                   R"("type": "port-wwn", "value": "21:00:00:1b:32:01:02:03")"},
        MemberCase{2, "61000005", 4, -1, 4, R"("type": "domain-port", "value": "97:5")"},
        MemberCase{3, "00610203", 4, -1, 4, R"("type": "fc-id", "value": "0x610203")"},
        MemberCase{4, "746170652031", 7, -1, 64, R"("type": "symbolic-name", "value": "tape 1")"},
        MemberCase{109, "2001000dec0a1b2c", 8, -1, 8,
                   R"("type": 109, "value": "20:01:00:0d:ec:0a:1b:2c")"},
        MemberCase{225, "2100001b320102030001000000000000", 16, 8, 16,
                   R"("value": "21:00:00:1b:32:01:02:03/00:01:00:00:00:00:00:00")"},
        MemberCase{227, "006102030001000000000000", 12, 4, 12,
                   R"("type": "fc-id-lun", "value": "0x610203/00:01:00:00:00:00:00:00")"},
        MemberCase{228, "69716e2e61", 6, -1, 256, R"("type": 228, "value": "iqn.a")"},
        MemberCase{229, "2005000dec0a1b2c", 8, -1, 8,
                   R"("type": "fabric-port-wwn", "value": "20:05:00:0d:ec:0a:1b:2c")"},
        MemberCase{230, "69716e2e62", 6, -1, 256,
                   R"("type": "symbolic-node-name", "value": "iqn.b")"},
        MemberCase{231, "2006000dec0a1b2c", 8, -1, 8,
                   R"("type": "interface", "value": "20:06:00:0d:ec:0a:1b:2c")"},
        MemberCase{232, host(0xC0000201) + host(0xFFFFFF00), 8, -1, 8,
                   R"("type": "ipv4", "value": "192.0.2.1/255.255.255.0")"},
        MemberCase{233, "2001ffffffffffff61000000", 12, -1, 12,
                   R"("type": "domain-interface", "value": "20:01:ff:ff:ff:ff:ff:ff/97")"},
        MemberCase{234, host(2) + "20010db8000000000000000000000001" + host(128), 24, -1, 24,
                   R"("type": "ipv6", "value": "2001:db8::1/128")"},
        MemberCase{235, "64696b31", 5, -1, 256, R"("type": "device-alias", "value": "dik1")"},
        MemberCase{241, "2100001b320102030002000000000000", 16, 8, 16,
                   R"("type": 241, "value": "21:00:00:1b:32:01:02:03/00:02:00:00:00:00:00:00")"},
        MemberCase{243, "006102030002000000000000", 12, 4, 12,
                   R"("type": 243, "value": "0x610203/00:02:00:00:00:00:00:00")"}));

TEST_F(ZoneServer, AValueThatItsTypeCannotHaveIsRefused) {
  const std::vector<std::vector<uint8_t>> wrong = {
      buffer(5, "", 64),
      buffer(0, "", 64),
      buffer(2, "61010005"),
      buffer(3, "01610203"),
      buffer(4, "", 64),
      buffer(4, "610a62", 64),
      buffer(4, "61ff62", 64),
      buffer(227, "016102030001000000000000"),
      buffer(243, "016102030001000000000000"),
      buffer(233, "2001ffffffffffff61000001"),
      buffer(234, host(1) + "20010db8000000000000000000000001" + host(128)),
      buffer(234, host(2) + "20010db8000000000000000000000001" + host(129)),
  };
  for (const auto& value : wrong) {
    EXPECT_EQ(kBadMember, zone_member(1, "host_a_arrays", value)) << int{value[0]};
    EXPECT_EQ(kBadMember, alias_member(1, "arrays", value)) << int{value[0]};
  }
  EXPECT_EQ(kBadMember, zs_cmi_add_zone_member(q, 1, 1, "host_a_arrays", -1, nullptr, nullptr,
                                               nullptr, context));
}

TEST_F(ZoneServer, ATextHasRoomForItsNul) {
  const auto of_length = [](uint8_t type, size_t length) {
    std::vector<uint8_t> value(4 + 300);
    value[0] = type;
    std::fill_n(value.begin() + 4, length, 'x');
    return value;
  };
  EXPECT_EQ(0, zone_member(1, "host_a_arrays", of_length(4, 63)));
  EXPECT_EQ(kBadMember, zone_member(1, "host_a_arrays", of_length(4, 64)));
  EXPECT_EQ(0, zone_member(1, "host_a_arrays", of_length(230, 255)));
  EXPECT_EQ(kBadMember, zone_member(1, "host_a_arrays", of_length(230, 256)));
  EXPECT_EQ(0, member(kParentZone, 1, 3, 280).bytes.at(279));
}

TEST_F(ZoneServer, AMemberOfAnUnknownParentIsRefused) {
  const auto value = buffer(1, "2100001b32010203");
  EXPECT_EQ(kNoSuchObject, zone_member(1, "none", value));
  EXPECT_EQ(kNoSuchObject, zone_member(1, nullptr, value));
  EXPECT_EQ(kNoSuchObject, alias_member(1, "host_a_arrays", value));
  EXPECT_EQ(kNoSuchVsan, zone_member(1, "host_a_arrays", value, 9));
}

TEST_F(ZoneServer, AFreedMemberIdIsGivenAgain) {
  const auto first = buffer(1, "2100001b32010201"), second = buffer(1, "2100001b32010202");
  ASSERT_EQ(0, zone_member(1, "host_a_arrays", first));
  ASSERT_EQ(0, zone_member(1, "host_a_arrays", second));
  EXPECT_EQ(0x07, zone(1).bytes.at(88));
  ASSERT_EQ(0, zone_member(0, "host_a_arrays", first));
  EXPECT_EQ(0x05, zone(1).bytes.at(88));
  ASSERT_EQ(0, zone_member(1, "host_a_arrays", buffer(3, "00610203")));
  EXPECT_EQ(3, member(kParentZone, 1, 2, 28).bytes.at(20));
}

TEST_F(ZoneServer, AParentHoldsAtMost2048Members) {
  const auto value = [](unsigned number) {
    char text[9];
    snprintf(text, sizeof text, "%08x", number);
    return buffer(3, text);
  };
  for (unsigned i = 1; i <= 2047; ++i)
    ASSERT_EQ(0, zone_member(1, "host_a_arrays", value(i)));
  EXPECT_EQ(kTooManyMembersOfParent, zone_member(1, "host_a_arrays", value(5000)));
  EXPECT_EQ(0xFF, zone(1).bytes.at(84 + 4 + 255));
  EXPECT_EQ(0, zone_member(0, "host_a_arrays", value(7)));
  EXPECT_EQ(0, zone_member(1, "host_a_arrays", value(5000)));
}

TEST_F(ZoneServer, AVsanHoldsAtMost20000Members) {
  with_database([](ZoneDatabase& database) {
    for (unsigned i = 0; i < 20000; ++i) {
      if (i % 2000 == 0) database.create(ZoningKind::zone, "z" + std::to_string(i));
      const std::string fc_id{'\0', static_cast<char>(i >> 16), static_cast<char>(i >> 8),
                              static_cast<char>(i)};
      ASSERT_EQ(0, database.add_member(ZoningKind::zone, i / 2000 + 1, {0, 3, fc_id}));
    }
  });
  EXPECT_EQ(kTooManyMembers, zone_member(1, "z0", buffer(1, "2100001b32010203")));
  EXPECT_EQ(0, destroy(kZone, "z2000"));
  EXPECT_EQ(0, zone_member(1, "z0", buffer(1, "2100001b32010203")));
}

TEST_F(ZoneServer, AVsanHoldsAtMost1000ZoneSets8000ZonesAnd2048Aliases) {
  with_database([](ZoneDatabase& database) {
    for (unsigned i = 1; i <= 8000; ++i) {
      const std::string name = "n" + std::to_string(i);
      ASSERT_EQ(0, database.create(ZoningKind::zone, name));
      if (i <= 1000) {
        ASSERT_EQ(0, database.create(ZoningKind::zone_set, name));
      }
      if (i <= 2048) {
        ASSERT_EQ(0, database.create(ZoningKind::alias, name));
      }
    }
  });
  EXPECT_EQ(kTooManyZones, create(kZone, "more"));
  EXPECT_EQ(kTooManyZoneSets, create(kZoneSet, "more"));
  EXPECT_EQ(kTooManyAliases, create(kAlias, "more"));
  EXPECT_EQ(kObjectExists, create(kZone, "n1"));
  EXPECT_EQ(0, destroy(kZone, "n4711"));
  EXPECT_EQ(0, create(kZone, "more"));
  EXPECT_EQ(4711U, id_of(kZone, "more"));
}

TEST_F(ZoneServer, AZoneSetOf8000ZonesIsWalkedByItsBitSet) {
  ASSERT_EQ(std::nullopt, control::install_generated("switches=1,vsans=1,zones=8000"));
  const Entries set = zone_set(1, kActive);
  ASSERT_EQ(1344U, set.bytes.size());
  int32_t count = 0, last = -1;
  for (int32_t bit = bitset_first_bit(set.bytes.data() + 84); bit != -1;
       bit = bitset_next_bit(set.bytes.data() + 84, bit)) {
    ++count;
    last = bit;
  }
  EXPECT_EQ(8000, count);
  EXPECT_EQ(7999, last);
}

TEST_F(ZoneServer, AnActivatedZoneSetReplacesTheActiveOne) {
  ASSERT_EQ(0, create(kZoneSet, "test"));
  ASSERT_EQ(0, create(kZone, "third"));
  ASSERT_EQ(0, zone_in_set(1, "test", "third"));
  EXPECT_EQ(0, activate(1, "test"));
  EXPECT_EQ("test", name_of(kZoneSet, 2, kActive));
  EXPECT_EQ("", name_of(kZoneSet, 1, kActive));
  EXPECT_EQ(1, all_zones(kActive).count);
  EXPECT_EQ("third", name_of(kZone, 3, kActive));
  EXPECT_EQ(kNoSuchObject, alias(1, kActive).status);  // no active zone has it
}

TEST_F(ZoneServer, AnActiveZoneSetIsActivatedAgainOnlyWhenItChanged) {
  EXPECT_EQ(kAlreadyActive, activate(1, "production"));
  ASSERT_EQ(0, zone_member(1, "host_a_arrays", buffer(3, "00610203")));
  EXPECT_EQ(kNoSuchMember, member(kParentZone, 1, 2, 28, kActive).status);
  EXPECT_EQ(0, activate(1, "production"));
  EXPECT_EQ(1, member(kParentZone, 1, 2, 28, kActive).count);
  EXPECT_EQ(kAlreadyActive, activate(1, "production"));
}

TEST_F(ZoneServer, AChangeOutsideTheActiveZoneSetDoesNotCountForIt) {
  ASSERT_EQ(0, create(kZone, "third"));
  ASSERT_EQ(0, create(kAlias, "array2"));
  EXPECT_EQ(kAlreadyActive, activate(1, "production"));
}

TEST_F(ZoneServer, ADeactivatedZoneSetLeavesNothingActive) {
  EXPECT_EQ(0, activate(0, "production"));
  EXPECT_EQ(0, all_zones(kActive).count);
  EXPECT_EQ(kNoSuchObject, zone_set(1, kActive).status);
  EXPECT_EQ(kNotActive, activate(0, "production"));
  EXPECT_EQ(0, activate(1, "production"));
}

TEST_F(ZoneServer, AnActiveZoneSetThatWasDeletedCanStillBeDeactivated) {
  ASSERT_EQ(0, destroy(kZoneSet, "production"));
  EXPECT_EQ(kNoSuchObject, activate(1, "production"));
  EXPECT_EQ(0, activate(0, "production"));
  EXPECT_EQ(kNoSuchObject, activate(0, "production"));
}

TEST_F(ZoneServer, WhatCannotBeActivatedIsToldAndChangesNothing) {
  ASSERT_EQ(0, create(kZoneSet, "empty"));
  EXPECT_EQ(kZoneSetEmpty, activate(1, "empty"));
  EXPECT_EQ(kNoSuchObject, activate(1, "none"));
  EXPECT_EQ(kNoSuchObject, activate(1, nullptr));
  EXPECT_EQ(kNoSuchVsan, activate(1, "production", 9));
  EXPECT_EQ(kNotActive, activate(0, "empty"));
  EXPECT_EQ(2, all_zones(kActive).count);
}

TEST_F(ZoneServer, ASuspendedVsanIsEditedButNotActivatedOrDistributed) {
  auto fabric = control::fabric();
  fabric.vsans[0].state = switch_sim::VsanState::suspended;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(0, create(kZone, "third"));
  EXPECT_EQ(kNotRunning, activate(1, "production"));
  EXPECT_EQ(kNotRunning, distribute());
}

TEST_F(ZoneServer, EveryOtherSwitchGetsTheDistributedDatabase) {
  EXPECT_EQ(0, distribute());
  const auto fabric = control::fabric();
  const auto& zoning = zoning_of(fabric);
  ASSERT_EQ(2U, zoning.distributed.size());
  EXPECT_EQ(fabric.switches[1].wwn, zoning.distributed[0].switch_wwn);
  EXPECT_EQ(fabric.switches[2].wwn, zoning.distributed[1].switch_wwn);
  EXPECT_EQ(zoning.full, zoning.distributed[0].database);
  EXPECT_EQ(zoning.full, zoning.distributed[1].database);
}

TEST_F(ZoneServer, ADistributedDatabaseIsDistributedAgainOnlyWhenItChanged) {
  EXPECT_EQ(0, distribute());
  EXPECT_EQ(kAlreadyDistributed, distribute());
  ASSERT_EQ(0, create(kZone, "third"));
  EXPECT_EQ(2U, zoning_of(control::fabric()).distributed[0].database->zones().size());
  EXPECT_EQ(0, distribute());
  EXPECT_EQ(3U, zoning_of(control::fabric()).distributed[0].database->zones().size());
  EXPECT_EQ(kAlreadyDistributed, distribute());
}

TEST_F(ZoneServer, ASwitchThatDoesNotRunGetsTheDatabaseLater) {
  auto fabric = control::fabric();
  fabric.vsans[0].domains[1].enabled = false;
  fabric.vsans[0].domains[1].domain_id = 0;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(0, distribute());
  EXPECT_EQ(kAlreadyDistributed, distribute());
  fabric = control::fabric();
  ASSERT_EQ(1U, zoning_of(fabric).distributed.size());
  fabric.vsans[0].domains[1].enabled = true;
  fabric.vsans[0].domains[1].domain_id = 98;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(0, distribute());
  EXPECT_EQ(2U, zoning_of(control::fabric()).distributed.size());
}

TEST_F(ZoneServer, WithoutAnyOtherSwitchEverythingIsDistributed) {
  ASSERT_EQ(std::nullopt, control::install_generated("switches=1,vsans=1,zones=2"));
  EXPECT_EQ(kAlreadyDistributed, distribute());
}

TEST_F(ZoneServer, AVsanWithoutZoneSetsHasNothingToDistribute) {
  EXPECT_EQ(kNothingToDistribute, distribute(2));
  EXPECT_EQ(kNoSuchVsan, distribute(9));
  EXPECT_STREQ("No zone set to distribute", syserr2str(kNothingToDistribute));
}

TEST_F(ZoneServer, TheDefaultPolicyIsRead) {
  void* policies = nullptr;
  ASSERT_EQ(0, zs_cmi_get_all_policies(q, 1, 1, context, 0, &policies));
  EXPECT_EQ(0U, zs_cmi_get_policy(policies, 0, 0, 0));
  free(policies);
  auto fabric = control::fabric();
  fabric.vsans[0].zoning.change().default_policy = switch_sim::DefaultZonePolicy::permit;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  ASSERT_EQ(0, zs_cmi_get_all_policies(q, 1, 1, context, 0, &policies));
  EXPECT_EQ(1U, zs_cmi_get_policy(policies, 0, 0, 0));
  free(policies);
  EXPECT_EQ(kNoSuchVsan, zs_cmi_get_all_policies(q, 1, 9, context, 0, &policies));
  EXPECT_EQ(nullptr, policies);
  EXPECT_EQ(kBadValue, zs_cmi_get_all_policies(q, 1, 1, context, 0, nullptr));
  EXPECT_EQ(0U, zs_cmi_get_policy(nullptr, 0, 0, 0));
}

TEST_F(ZoneServer, ARefusedChangeLeavesTheFabricAsItWas) {
  const auto before = control::fabric();
  create(kZone, "host_a_arrays");
  zone_in_set(1, "production", "host_a_arrays");
  zone_member(1, "host_a_arrays", buffer(1, "2100001122334401"));
  activate(1, "production");
  distribute(2);
  EXPECT_EQ(before, control::fabric());
}

TEST_F(ZoneServer, AnUnboundQueueCannotAsk) {
  mts_unbind(q, 0);
  errno = 0;
  EXPECT_EQ(-1, zone(1).status);
  EXPECT_EQ(EBADF, errno);
  EXPECT_EQ(-1, create(kZone, "z"));
  EXPECT_EQ(-1, activate(1, "production"));
}

TEST_F(ZoneServer, AReadWithoutRoomForItsResultIsRefused) {
  int32_t count = 7;
  void* reply = nullptr;
  EXPECT_EQ(kBadValue, zs_cmi_get_zone(q, 1, 1, context, 0, 0, 1, &count, nullptr));
  EXPECT_EQ(kBadValue, zs_cmi_get_zone(q, 1, 1, context, 0, 0, 1, nullptr, &reply));
  EXPECT_EQ(kBadValue, zs_cmi_get_all_zones_in_vsan(q, 1, context, 0, 0, nullptr, nullptr));
  EXPECT_EQ(kBadValue, zs_cmi_get_member(q, 1, 1, context, 0, 0, 1, 1, 1, &count, nullptr, 0));
  EXPECT_EQ(0, count);
}

// A reply that is cut, or missing, is a failure of the read, and nothing is handed out.
TEST_F(ZoneServer, AShortReplyIsRefused) {
  const auto cut_to = [](switch_sim::Fault::Kind kind, int32_t length) {
    control::set_faults(
        {{.service = switch_sim::Service::zone_server, .kind = kind, .value = length}});
  };
  using Kind = switch_sim::Fault::Kind;
  cut_to(Kind::short_reply, 871);
  EXPECT_EQ(kBadLength, zone(1).status);
  EXPECT_EQ(kBadLength, all_zones().status);
  cut_to(Kind::short_reply, 1343);
  EXPECT_EQ(kBadLength, zone_set(1).status);
  cut_to(Kind::short_reply, 343);
  EXPECT_EQ(kBadLength, alias(1).status);
  for (const int32_t length : {0, 20, 23, 24, 31}) {
    cut_to(Kind::short_reply, length);
    EXPECT_EQ(kBadLength, member(kParentZone, 1, 1).status) << length;
  }
  uint32_t id = 77;
  char name[256] = "kept";
  void* policies = nullptr;
  cut_to(Kind::short_reply, 3);
  EXPECT_EQ(kBadLength, zs_cmi_get_id_for_name(q, 1, context, 0, 0, kZone, "host_a_arrays", &id));
  EXPECT_EQ(kBadLength, zs_cmi_get_all_policies(q, 1, 1, context, 0, &policies));
  cut_to(Kind::short_reply, 0);
  EXPECT_EQ(kBadLength, zone(1).status);
  EXPECT_EQ(kBadLength, zs_cmi_get_name_for_id(q, 1, context, 0, 0, kZone, 1, name));
  cut_to(Kind::without_reply, 0);
  EXPECT_EQ(kBadLength, zone(1).status);
  EXPECT_EQ(kBadLength, all_zones().status);
  EXPECT_EQ(kBadLength, member(kParentZone, 1, 1).status);
  EXPECT_EQ(77U, id);
  EXPECT_STREQ("kept", name);
}

// A recording may hold any bytes.
TEST_F(ZoneServer, ADamagedEntryIsNotHandedOut) {
  const auto replay = [](const char* request, size_t size, size_t offset) {
    std::string body(2 * size, '0');
    body.replace(2 * offset, 8, "7fffffff");
    ASSERT_EQ(std::nullopt,
              control::replay(std::string("request token=1 service=272 ") + request +
                              "\nreply token=1 status=0 errno=0 after_ms=0 body=" + body + "\n"));
  };
  const char* zone_request = "opcode=65793 operation=1 body=00000001000000000000000000000001";
  replay(zone_request, 872, 84);
  EXPECT_EQ(kBadValue, zone(1).status);
  replay(zone_request, 872, 344);
  EXPECT_EQ(kBadValue, zone(1).status);
  replay("opcode=65793 operation=1 body=00000001000000000000000100000001", 1344, 84);
  EXPECT_EQ(kBadValue, zone_set(1).status);
  const char* member_request =
      "opcode=65795 operation=1 body=0000000100000000000000010000000100000001";
  replay(member_request, 32, 20);  // type 127
  EXPECT_EQ(kBadLength, member(kParentZone, 1, 1).status);
  control::replay("");
}

// Requests that no client function makes.
TEST_F(ZoneServer, ARequestOfAnotherLengthOrOperationIsRefused) {
  for (uint32_t opcode = switch_sim::kZoningObject; opcode <= switch_sim::kZoningPolicy; ++opcode) {
    expect_refused(call(272, opcode, 1, from_hex("000001")), kBadLength);
    expect_refused(call(272, opcode, 3, from_hex("00000001")), kBadOperation);
  }
  for (uint32_t opcode = switch_sim::kChangeZoningObject; opcode <= switch_sim::kDistributeZoning;
       ++opcode) {
    expect_refused(call(272, opcode, 3, from_hex("000001")), kBadLength);
    expect_refused(call(272, opcode, 1, from_hex("00000001")), kBadOperation);
  }
  // A text that is longer than the request, and a value of a type above 255.
  expect_refused(
      call(272, switch_sim::kChangeZoningObject, 3, from_hex("000000010000000100000000ffffffff61")),
      kBadLength);
  expect_refused(call(272, switch_sim::kChangeZoneMember, 3,
                      from_hex("0000000100000001000000000000000161000001010000000161")),
                 kBadMember);
  expect_refused(call(272, 0x10199, 1, from_hex("00000001")), kUnknownOpcode);
}

TEST_F(ZoneServer, EightClientsMake1600ZonesAtOnce) {
  std::atomic<int> failed = 0;
  std::vector<std::thread> clients;
  for (int client = 0; client < 8; ++client) {
    clients.emplace_back([&failed, client] {
      const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
      const int32_t queue = mts_bind(1, -1, &opts, "client");
      uint8_t zeros[132] = {};
      for (int i = 0; i < 200; ++i) {
        const std::string name = "c" + std::to_string(client) + "_" + std::to_string(i);
        if (zs_cmi_create_zoning_object(queue, 1, 2, 0, -1, name.c_str(), "", "", zeros) != 0) {
          ++failed;
        }
      }
      mts_unbind(queue, 0);
    });
  }
  for (std::thread& client : clients)
    client.join();
  EXPECT_EQ(0, failed);
  EXPECT_EQ(1600, all_zones(kFull, 2).count);
}

TEST_F(ZoneServer, AReaderSeesTheOldZoneSetOrTheNewOne) {
  for (const std::string set : {"a", "b"}) {
    ASSERT_EQ(0, create(kZoneSet, set.c_str()));
    for (int i = 0; i < 20; ++i) {
      const std::string name = set + std::to_string(i);
      ASSERT_EQ(0, create(kZone, name.c_str()));
      ASSERT_EQ(0, zone_in_set(1, set.c_str(), name.c_str()));
    }
  }
  ASSERT_EQ(0, activate(1, "a"));
  std::atomic<bool> done = false;
  std::atomic<int> reads = 0, mixed = 0;
  std::thread reader([&] {
    do {
      const Entries zones = all_zones(kActive);
      for (int32_t i = 0; i < zones.count; ++i) {
        if (zones.bytes[static_cast<size_t>(i) * 872 + 16] != zones.bytes[16]) ++mixed;
      }
      if (zones.count != 20) ++mixed;
      ++reads;
    } while (!done);
  });
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  const int32_t queue = mts_bind(1, -1, &opts, "writer");
  for (int i = 1; i <= 300; ++i) {
    EXPECT_EQ(0, zs_cmi_activate_zone_set(queue, 1, 1, i % 2 != 0 ? "b" : "a", "", "", context));
  }
  done = true;
  reader.join();
  mts_unbind(queue, 0);
  EXPECT_EQ(0, mixed);
  EXPECT_GT(reads, 0);
}

}  // namespace
}  // namespace simulator_test
