// The zoning of a VSAN in a fabric file, and generated zoning.
#include <set>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/generator.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

using switch_sim::Fabric;
using switch_sim::FabricError;
using switch_sim::parse_fabric;
using switch_sim::ZoneMember;
using switch_sim::Zoning;
using switch_sim::ZoningKind;

// What is of interest starts in line 6.
std::string with_zoning(const std::string& members) {
  return R"({"version": 1, "local_switch": "a", "switches": [
{"name": "a", "wwn": "20:00:00:00:00:00:00:01"}, {"name": "b", "wwn": "20:00:00:00:00:00:00:02"},
{"name": "c", "wwn": "20:00:00:00:00:00:00:03"}, {"name": "d", "wwn": "20:00:00:00:00:00:00:04"}],
"vsans": [{"number": 1, "domains": [{"switch": "a", "domain_id": 1}, {"switch": "b", "domain_id": 2},
{"switch": "c", "domain_id": 3}], "zoning": {
)" + members +
         "}}]}";
}

std::string with_members(const std::string& members) {
  return with_zoning("\"zones\": [{\"name\": \"z\", \"members\": [\n" + members + "]}]");
}

std::string error_of(const std::string& text) {
  const auto read = parse_fabric(text, "f");
  const auto* error = std::get_if<FabricError>(&read);
  return error != nullptr ? error->message : "no error";
}

Fabric fabric_of(const std::string& text) {
  auto read = parse_fabric(text, "f");
  if (const auto* error = std::get_if<FabricError>(&read)) {
    ADD_FAILURE() << error->message;
    return {};
  }
  return std::get<Fabric>(read);
}

Zoning zoning_of(const std::string& members) {
  const Fabric fabric = fabric_of(with_zoning(members));
  return fabric.vsans.empty() ? Zoning() : *fabric.vsans[0].zoning;
}

// The zoning of a fabric as it is written, from its line on to the end of the VSAN.
std::string written(const Fabric& fabric) {
  const std::string text = switch_sim::write_fabric(fabric);
  const size_t start = text.find("      \"zoning\"");
  if (start == std::string::npos) return "";
  return text.substr(start, text.rfind("    }\n  ]\n}\n") - start);
}

TEST(ZoningFile, AVsanWithoutZoningIsWrittenWithoutIt) {
  EXPECT_EQ(Zoning(), zoning_of(""));
  EXPECT_EQ("", written(fabric_of(with_zoning(""))));
  EXPECT_EQ("", written(fabric_of(with_zoning(R"("zones": [], "distributed": [])"))));
}

TEST(ZoningFile, EverythingIsReadAndWrittenInItsOneForm) {
  const std::string text = R"(      "zoning": {
        "default_policy": "permit",
        "zone_sets": [
          {"id": 7, "name": "empty"},
          {"id": 1000, "name": "s", "zones": ["y", "z"]}
        ],
        "zones": [
          {"id": 3, "name": "y", "attributes": 4294967295},
          {"id": 8000, "name": "z", "members": [{"id": 2, "type": "fc-id", "value": "0x010203"}, {"id": 2048, "type": 109, "value": "21:00:00:00:00:00:00:01"}], "aliases": ["a1", "a2"]}
        ],
        "aliases": [
          {"id": 1, "name": "a1"},
          {"id": 2048, "name": "a2", "members": [{"id": 1, "type": "symbolic-name", "value": "tape \"1\""}]}
        ],
        "active": {
          "zone_sets": [
            {"id": 1, "name": "s", "zones": ["z"]}
          ],
          "zones": [
            {"id": 1, "name": "z"}
          ]
        },
        "distributed": [
          {"to": ["20:00:00:00:00:00:00:02"], "database": {
            "zones": [
              {"id": 1, "name": "old"}
            ]
          }},
          {"to": ["20:00:00:00:00:00:00:03"]}
        ]
      }
)";
  // The text stands in a fabric file as it is, but for the name of the key.
  const Fabric fabric =
      fabric_of(with_zoning(text.substr(text.find('\n'), text.rfind('}') - text.find('\n'))));
  EXPECT_EQ(text, written(fabric));
  const Zoning& zoning = *fabric.vsans.at(0).zoning;
  EXPECT_EQ(switch_sim::DefaultZonePolicy::permit, zoning.default_policy);
  EXPECT_EQ((std::vector<uint32_t>{3, 8000}), zoning.full->zone_sets().find(1000)->zones);
  EXPECT_EQ(0xFFFFFFFF, zoning.full->zones().find(3)->attributes);
  EXPECT_EQ((std::vector<uint32_t>{1, 2048}), zoning.full->zones().find(8000)->aliases);
  EXPECT_EQ((ZoneMember{2, 3, std::string("\0\1\2\3", 4)}),
            zoning.full->zones().find(8000)->members.at(0));
  EXPECT_EQ("tape \"1\"", zoning.full->aliases().find(2048)->members.at(0).value);
  EXPECT_EQ(3U, zoning.full->members());
  EXPECT_EQ("z", zoning.active->zones().find(1)->name);
  EXPECT_EQ(2U, zoning.distributed.size());
  EXPECT_EQ(1U, zoning.distributed[0].database->id_of(ZoningKind::zone, "old"));
  EXPECT_EQ(zoning.full, zoning.distributed[1].database);
}

TEST(ZoningFile, AnIdThatIsLeftOutFollowsTheOneBefore) {
  const Zoning zoning = zoning_of(R"("zones": [{"name": "a"}, {"name": "b", "id": 10,
    "members": [{"type": "fc-id", "value": "0x000001"},
                {"type": "fc-id", "value": "0x000002", "id": 5},
                {"type": "fc-id", "value": "0x000003"}]}, {"name": "c"}])");
  EXPECT_EQ(1U, zoning.full->id_of(ZoningKind::zone, "a"));
  EXPECT_EQ(11U, zoning.full->id_of(ZoningKind::zone, "c"));
  const auto& members = zoning.full->zones().find(10)->members;
  EXPECT_EQ((std::vector<uint32_t>{1, 5, 6}),
            (std::vector<uint32_t>{members[0].id, members[1].id, members[2].id}));
}

TEST(ZoningFile, WhatIsNamedMayStandBehind) {
  const Zoning zoning = zoning_of(R"("active": "s", "zone_sets": [{"name": "s", "zones": ["z"]}],
    "zones": [{"name": "z", "aliases": ["a"]}], "aliases": [{"name": "a"}])");
  EXPECT_EQ(zoning.full, zoning.active);
}

TEST(ZoningFile, AnActiveZoneSetIsANameAsLongAsItIsAsItStandsInTheFullDatabase) {
  Fabric fabric = fabric_of(with_zoning(R"("zone_sets": [{"name": "s", "zones": ["z"]}],
    "zones": [{"name": "y"}, {"name": "z"}], "active": "s")"));
  Zoning& zoning = fabric.vsans[0].zoning.change();
  EXPECT_EQ(nullptr, zoning.active->zones().find(1));
  EXPECT_NE(std::string::npos, written(fabric).find("        \"active\": \"s\"\n"));
  zoning.full.change().remove(ZoningKind::zone, 1);
  EXPECT_NE(std::string::npos, written(fabric).find("        \"active\": \"s\"\n"));
  zoning.full.change().remove(ZoningKind::zone, 2);
  EXPECT_EQ(std::string::npos, written(fabric).find("\"active\": \"s\""));
  EXPECT_EQ(fabric, fabric_of(switch_sim::write_fabric(fabric)));
}

TEST(ZoningFile, ASwitchIsNamedByNameOrWwn) {
  const Zoning zoning = zoning_of(R"("distributed": [{"to": ["c", "20:00:00:00:00:00:00:02"]}])");
  ASSERT_EQ(2U, zoning.distributed.size());
  EXPECT_EQ(2, zoning.distributed[0].switch_wwn.bytes[7]);  // sorted
}

struct WrongZoning {
  std::string text;
  const char* error;
};

void PrintTo(const WrongZoning& file, std::ostream* out) {
  *out << file.error;
}

class WrongZoningFile : public testing::TestWithParam<WrongZoning> {};

TEST_P(WrongZoningFile, IsToldWithItsPosition) {
  EXPECT_EQ(GetParam().error, error_of(GetParam().text));
}

constexpr const char* kWrongName =
    "f:6:20: a zoning name has 1 to 64 characters: a letter, then letters, digits, \"$\", \"-\", "
    "\"^\" and \"_\"";

INSTANTIATE_TEST_SUITE_P(
    Objects, WrongZoningFile,
    testing::Values(
        WrongZoning{with_zoning(R"("zone": [])"),
                    "f:6:1: unknown key \"zone\" (did you mean \"zones\"?)"},
        WrongZoning{with_zoning(R"("default_policy": "denny")"),
                    "f:6:19: expected \"deny\" or \"permit\" (did you mean \"deny\"?)"},
        WrongZoning{with_zoning(R"("zones": 1)"), "f:6:10: expected a list of zones"},
        WrongZoning{with_zoning(R"("zones": [1])"), "f:6:11: expected a zone"},
        WrongZoning{with_zoning(R"("zones": [{}])"), "f:6:11: a zone lacks \"name\""},
        WrongZoning{with_zoning(R"("zones": [{"name": 1}])"), "f:6:20: expected a text"},
        WrongZoning{with_zoning(R"("zones": [{"name": ""}])"), kWrongName},
        WrongZoning{with_zoning(R"("zones": [{"name": "1z"}])"), kWrongName},
        WrongZoning{with_zoning(R"("zones": [{"name": "a b"}])"), kWrongName},
        WrongZoning{with_zoning(R"("zones": [{"name": ")" + std::string(65, 'z') + "\"}]"),
                    kWrongName},
        WrongZoning{with_zoning(R"("zones": [{"name": "z"}, {"name": "z"}])"),
                    "f:6:35: another zone has this name"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "id": 4}, {"name": "y", "id": 4}])"),
                    "f:6:55: another zone has this id"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "id": 8001}])"),
                    "f:6:31: expected a whole number from 1 to 8000"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "id": 0}])"),
                    "f:6:31: expected a whole number from 1 to 8000"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "id": 8000}, {"name": "y"}])"),
                    "f:6:38: no id is left behind 8000"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "attributes": -1}])"),
                    "f:6:39: expected a whole number from 0 to 4294967295"},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "aliases": ["a"]}])"),
                    "f:6:37: no zone alias \"a\""},
        WrongZoning{with_zoning(R"("zones": [{"name": "z", "aliases": [1]}])"),
                    "f:6:37: expected a name"},
        WrongZoning{with_zoning("\"aliases\": [{\"name\": \"a\"}],\n"
                                R"("zones": [{"name": "z", "aliases": ["a", "a"]}])"),
                    "f:7:42: the zone already holds this alias"},
        WrongZoning{with_zoning(R"("aliases": [{"name": "a", "id": 2049}])"),
                    "f:6:33: expected a whole number from 1 to 2048"},
        WrongZoning{with_zoning(R"("aliases": [{"name": "a", "zones": []}])"),
                    "f:6:27: unknown key \"zones\""},
        WrongZoning{with_zoning(R"("zone_sets": [{"name": "s", "id": 1001}])"),
                    "f:6:35: expected a whole number from 1 to 1000"},
        WrongZoning{with_zoning(R"("zone_sets": [{"name": "s", "zones": ["z"]}])"),
                    "f:6:39: no zone \"z\""},
        WrongZoning{with_zoning("\"zones\": [{\"name\": \"z\"}],\n"
                                R"("zone_sets": [{"name": "s", "zones": ["z", "z"]}])"),
                    "f:7:44: the zone set already holds this zone"}));

INSTANTIATE_TEST_SUITE_P(
    Members, WrongZoningFile,
    testing::Values(
        WrongZoning{with_members("7"), "f:7:1: expected a zone member"},
        WrongZoning{with_members(R"({"value": "x"})"), "f:7:1: a zone member lacks \"type\""},
        WrongZoning{with_members(R"({"type": 1})"), "f:7:1: a zone member lacks \"value\""},
        WrongZoning{with_members(R"({"type": 5, "value": "x"})"), "f:7:10: no such member type"},
        WrongZoning{with_members(R"({"type": 256, "value": "x"})"),
                    "f:7:10: expected a whole number from 0 to 255"},
        WrongZoning{with_members(R"({"type": "fcid", "value": "x"})"),
                    "f:7:10: no member type \"fcid\" (did you mean \"fc-id\"?)"},
        WrongZoning{with_members(R"({"type": true, "value": "x"})"),
                    "f:7:10: expected a member type"},
        WrongZoning{with_members(R"({"type": "port-wwn", "value": 1})"), "f:7:31: expected a text"},
        WrongZoning{with_members(R"({"type": "port-wwn", "value": "21:00"})"),
                    "f:7:31: expected a WWN such as \"21:00:00:e0:8b:05:05:04\""},
        WrongZoning{with_members(R"({"type": "fc-id", "value": "610005"})"),
                    "f:7:28: expected an FC ID such as \"0x610005\""},
        WrongZoning{with_members(R"({"type": "fc-id", "value": "0x61000g"})"),
                    "f:7:28: expected an FC ID such as \"0x610005\""},
        WrongZoning{with_members(R"({"type": "domain-port", "value": "97:256"})"),
                    "f:7:34: expected a domain ID and a port such as \"97:5\""},
        WrongZoning{with_members(R"({"type": "domain-port", "value": "97"})"),
                    "f:7:34: expected a domain ID and a port such as \"97:5\""},
        WrongZoning{with_members(R"({"type": "port-wwn-lun", "value": "21:00:00:e0:8b:05:05:04"})"),
                    "f:7:35: expected a WWN and a LUN such as "
                    "\"21:00:00:e0:8b:05:05:04/00:01:00:00:00:00:00:00\""},
        WrongZoning{with_members(R"({"type": "fc-id-lun", "value": "0x610005/1"})"),
                    "f:7:32: expected an FC ID and a LUN such as "
                    "\"0x610005/00:01:00:00:00:00:00:00\""},
        WrongZoning{with_members(R"({"type": "ipv4", "value": "192.0.2.0/24"})"),
                    "f:7:27: expected an IPv4 address and mask such as "
                    "\"192.0.2.0/255.255.255.0\""},
        WrongZoning{with_members(R"({"type": "ipv4", "value": "192.0.2.0/::1"})"),
                    "f:7:27: expected an IPv4 address and mask such as "
                    "\"192.0.2.0/255.255.255.0\""},
        WrongZoning{with_members(R"({"type": "ipv6", "value": "2001:db8::1/129"})"),
                    "f:7:27: expected an IPv6 address and prefix length such as "
                    "\"2001:db8::1/128\""},
        WrongZoning{with_members(R"({"type": "ipv6", "value": "192.0.2.1/32"})"),
                    "f:7:27: expected an IPv6 address and prefix length such as "
                    "\"2001:db8::1/128\""},
        WrongZoning{
            with_members(R"({"type": "domain-interface", "value": "20:01:ff:ff:ff:ff:ff:ff/x"})"),
            "f:7:39: expected an interface key and a domain ID such as "
            "\"20:01:ff:ff:ff:ff:ff:ff/97\""},
        WrongZoning{
            with_members(R"({"type": "symbolic-name", "value": ")" + std::string(64, 'x') + "\"}"),
            "f:7:36: expected 1 to 63 bytes of text in one line"},
        WrongZoning{with_members(R"({"type": "device-alias", "value": "a\nb"})"),
                    "f:7:35: expected 1 to 255 bytes of text in one line"},
        WrongZoning{with_members(R"({"type": "device-alias", "value": ""})"),
                    "f:7:35: expected 1 to 255 bytes of text in one line"},
        WrongZoning{with_members(R"({"id": 2049, "type": "fc-id", "value": "0x610005"})"),
                    "f:7:8: expected a whole number from 1 to 2048"},
        WrongZoning{with_members("{\"type\": \"fc-id\", \"value\": \"0x610005\"},\n"
                                 "{\"type\": \"fc-id\", \"value\": \"0x610005\"}"),
                    "f:8:1: another member has this id, or this type and value"},
        WrongZoning{with_members("{\"type\": \"fc-id\", \"value\": \"0x610005\"},\n"
                                 "{\"id\": 1, \"type\": \"fc-id\", \"value\": \"0x610006\"}"),
                    "f:8:1: another member has this id, or this type and value"}));

INSTANTIATE_TEST_SUITE_P(
    Databases, WrongZoningFile,
    testing::Values(
        WrongZoning{with_zoning(R"("active": "s")"), "f:6:11: no zone set \"s\""},
        WrongZoning{with_zoning(R"("active": 1)"),
                    "f:6:11: expected the name of a zone set or the active database"},
        WrongZoning{with_zoning(R"("active": {})"), "f:6:11: an active database has one zone set"},
        WrongZoning{
            with_zoning(R"("active": {"zone_sets": [{"name": "s"}], "zones": [{"name": "z"}]})"),
            "f:6:11: an active database holds only what its zone set needs"},
        WrongZoning{with_zoning(R"("distributed": [{}])"),
                    "f:6:17: a distributed database lacks \"to\""},
        WrongZoning{with_zoning(R"("distributed": [{"to": "b"}])"),
                    "f:6:24: expected a list of switches"},
        WrongZoning{with_zoning(R"("distributed": [{"to": ["e"]}])"),
                    "f:6:25: no switch \"e\" (did you mean \"a\"?)"},
        WrongZoning{with_zoning(R"("distributed": [{"to": ["a"]}])"),
                    "f:6:25: expected another switch of the VSAN"},
        WrongZoning{with_zoning(R"("distributed": [{"to": ["d"]}])"),
                    "f:6:25: expected another switch of the VSAN"},
        WrongZoning{with_zoning(R"("distributed": [{"to": ["b"]}, {"to": ["c", "b"]}])"),
                    "f:6:45: the switch already holds a database"},
        WrongZoning{with_zoning(R"("distributed": [{"to": ["b"], "database": {"active": "s"}}])"),
                    "f:6:44: unknown key \"active\""}));

TEST(ZoningFile, A20001stMemberIsRefusedWhereItStands) {
  std::string zones;
  for (int zone = 0; zone < 11; ++zone) {
    zones += std::string(zone != 0 ? ",\n" : "") + "{\"name\": \"z" + std::to_string(zone) +
             "\", \"members\": [";
    for (int i = 0; i < (zone < 10 ? 2000 : 1); ++i) {
      char value[16];
      snprintf(value, sizeof value, "0x%06x", i);
      zones += std::string(i != 0 ? ", " : "") + R"({"type": 3, "value": ")" + value + "\"}";
    }
    zones += "]}";
  }
  EXPECT_EQ("f:17:29: the zones and aliases of a VSAN have at most 20000 members",
            error_of(with_zoning("\"zones\": [\n" + zones + "]")));
}

TEST(ZoningFile, AFabricBuiltByAProgramMayNotGiveADatabaseToAnyone) {
  Fabric fabric = switch_sim::default_fabric();
  auto& distributed = fabric.vsans[0].zoning.change().distributed;
  distributed = {{fabric.local_switch, {}}};
  EXPECT_EQ("VSAN 1, zoning: 20:00:00:0d:ec:0a:1b:2c is no other switch of the VSAN",
            switch_sim::problem_of(fabric));
  distributed = {{fabric.switches[1].wwn, {}}, {fabric.switches[1].wwn, {}}};
  EXPECT_EQ("VSAN 1, zoning: 20:00:00:0d:ec:0a:1b:5e holds two databases",
            switch_sim::problem_of(fabric));
  distributed = {{fabric.switches[2].wwn, {}}, {fabric.switches[1].wwn, {}}};
  switch_sim::sort(fabric);
  EXPECT_EQ(std::nullopt, switch_sim::problem_of(fabric));
  auto& active = fabric.vsans[0].zoning.change().active.change();
  active.create(ZoningKind::zone_set, "second");
  EXPECT_EQ("VSAN 1, zoning: two zone sets are active", switch_sim::problem_of(fabric));
}

// A copy of a fabric shares its zoning; a change of one copy is not seen in the other.
TEST(ZoningFile, CopiesAreIndependent) {
  const Fabric original = switch_sim::default_fabric();
  Fabric copy = original;
  EXPECT_EQ(&*original.vsans[0].zoning, &*copy.vsans[0].zoning);
  copy.vsans[0].zoning.change().full.change().remove(ZoningKind::zone, 1);
  EXPECT_EQ(switch_sim::default_fabric(), original);
  EXPECT_NE(original, copy);
  EXPECT_EQ(&*original.vsans[0].zoning->active, &*copy.vsans[0].zoning->active);
}

Fabric generated(const std::string& description) {
  auto made = switch_sim::generate_fabric(description);
  if (const auto* error = std::get_if<FabricError>(&made)) {
    ADD_FAILURE() << error->message;
    return {};
  }
  return std::get<Fabric>(std::move(made));
}

TEST(GeneratedZoning, TheLargestDatabaseIsWrittenAndReadBack) {
  const Fabric fabric = generated("switches=2,vsans=1,zones=8000,members=20000,aliases=2048");
  const Zoning& zoning = *fabric.vsans.at(0).zoning;
  EXPECT_EQ(8000U, zoning.full->zones().size());
  EXPECT_EQ(2048U, zoning.full->aliases().size());
  EXPECT_EQ(20000U, zoning.full->members());
  EXPECT_EQ(zoning.full, zoning.active);
  EXPECT_EQ(std::nullopt, switch_sim::problem_of(fabric));
  EXPECT_EQ(fabric, fabric_of(switch_sim::write_fabric(fabric)));
}

TEST(GeneratedZoning, TheNumbersAreOfEachVsanAndTheSameEachTime) {
  const char* description = "vsans=3,zones=5,members=40,aliases=2,seed=9";
  const Fabric fabric = generated(description);
  for (const auto& vsan : fabric.vsans) {
    EXPECT_EQ(5U, vsan.zoning->full->zones().size());
    EXPECT_EQ(2U, vsan.zoning->full->aliases().size());
    EXPECT_EQ(40U, vsan.zoning->full->members());
    EXPECT_EQ("zoneset-1", *vsan.zoning->active->name_of(ZoningKind::zone_set, 1));
  }
  EXPECT_EQ(switch_sim::write_fabric(fabric), switch_sim::write_fabric(generated(description)));
}

TEST(GeneratedZoning, ChangesNothingElseOfAFabric) {
  Fabric fabric = generated("vsans=3,zones=5,members=40,aliases=2,seed=9");
  for (auto& vsan : fabric.vsans)
    vsan.zoning = {};
  EXPECT_EQ(generated("vsans=3,seed=9"), fabric);
}

TEST(GeneratedZoning, AMemberMayBeInSeveralZones) {
  const Fabric fabric = generated("vsans=1,zones=50,members=400");
  std::multiset<std::string> values;
  for (uint32_t id = 1; id <= 50; ++id) {
    for (const ZoneMember& member : fabric.vsans[0].zoning->full->zones().find(id)->members)
      values.insert(member.value);
  }
  EXPECT_EQ(400U, values.size());
  EXPECT_LT((std::set<std::string>(values.begin(), values.end()).size()), 400U);
}

TEST(GeneratedZoning, WhatNoDatabaseHoldsIsTold) {
  const auto error = [](const char* description) {
    const auto made = switch_sim::generate_fabric(description);
    const auto* problem = std::get_if<FabricError>(&made);
    return problem != nullptr ? problem->message : "no error";
  };
  EXPECT_EQ("zones: expected a whole number from 0 to 8000, found \"8001\"", error("zones=8001"));
  EXPECT_EQ("aliases: expected a whole number from 0 to 2048, found \"2049\"",
            error("aliases=2049"));
  EXPECT_EQ("members: expected a whole number from 0 to 20000, found \"20001\"",
            error("members=20001"));
  EXPECT_EQ("members: expected at most 2048 for each zone and alias, found \"1\"",
            error("members=1"));
  EXPECT_EQ("members: expected at most 2048 for each zone and alias, found \"4097\"",
            error("members=4097,zones=1,aliases=1"));
  EXPECT_EQ("zones, members and aliases of all VSANs: expected at most 2000000",
            error("zones=8000,vsans=300"));
}

}  // namespace
}  // namespace simulator_test
