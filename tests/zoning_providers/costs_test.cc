// What a VSAN with all the zones, members and aliases that there may be costs.
#include "tests/zoning_providers/zoning_fixture.h"

namespace {

using namespace zoning_provider_tests;

constexpr uint32_t kZones = 8000;
constexpr uint32_t kAliases = 2048;
constexpr uint32_t kZoneMembers = 17952;  // three in the first 1,952 zones, two in the others
constexpr uint32_t kMembers = kZoneMembers + kAliases;

uint32_t members_of_zone(uint32_t zone) {
  return zone <= 1952 ? 3 : 2;
}

// Every zone is in the one zone set and holds one alias; every alias has one member. All members
// are different.
Bytes full_zone(uint32_t id) {
  ZoneChildren children{{1, 2}, {(id - 1) % kAliases + 1}};
  if (members_of_zone(id) == 3) children.members.push_back(3);
  return zone_entry(1, id, "zone-" + std::to_string(id), children);
}

Bytes full_alias(uint32_t id) {
  return alias_entry(1, id, "alias-" + std::to_string(id), {1});
}

Bytes full_zone_set() {
  std::vector<uint32_t> zones(kZones);
  for (uint32_t i = 0; i < kZones; ++i)
    zones[i] = i + 1;
  return zone_set_entry(1, 1, "all", zones);
}

ZoneReadResponse many(uint32_t count, Bytes (*entry)(uint32_t)) {
  Bytes all;
  for (uint32_t id = 1; id <= count; ++id) {
    const Bytes one = entry(id);
    all.insert(all.end(), one.begin(), one.end());
  }
  return {0, static_cast<int32_t>(count), all};
}

// The active database is empty.
ZoneReadResponse answer(const ZoneReadRequest& request) {
  const HeapLedger::Pause pause;
  static const ZoneReadResponse zones = many(kZones, full_zone);
  static const ZoneReadResponse aliases = many(kAliases, full_alias);
  static const Bytes zone_set = full_zone_set();
  if (request.active != 0) return {0, 0, std::nullopt};
  if (request.function == "zs_cmi_get_all_zones_in_vsan") return zones;
  if (request.function == "zs_cmi_get_all_aliases_in_vsan") return aliases;
  if (request.function == "zs_cmi_get_all_zone_sets_in_vsan" ||
      request.function == "zs_cmi_get_zone_set")
    return {0, 1, zone_set};
  if (request.function == "zs_cmi_get_zone") return {0, 1, full_zone(request.id)};
  if (request.function == "zs_cmi_get_alias") return {0, 1, full_alias(request.id)};
  const Bytes wwn = Record(8)
                        .byte(0, static_cast<uint8_t>(0x10 + request.parent_kind))
                        .be32(2, request.parent_id)
                        .be16(6, static_cast<uint16_t>(request.member_id));
  return {0, 1, member_entry(1, wwn)};
}

class ZoningCosts : public ZoningFixture {
 protected:
  // Names and instances, and the exchanges with the zone server for each.
  void expect_cost(const char* class_name, size_t objects, size_t exchanges) {
    const size_t before = zone_server_.calls();
    EXPECT_EQ(names(class_name).returned.paths.size(), objects) << class_name;
    EXPECT_EQ(zone_server_.calls() - before, exchanges) << class_name;
  }
  template <class Walk>
  void expect_walk(size_t objects, size_t exchanges, Walk walk) {
    const size_t before = zone_server_.calls();
    const provider_tests::Outcome answer = walk();
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
    EXPECT_EQ(answer.returned.paths.size(), objects);
    EXPECT_EQ(zone_server_.calls() - before, exchanges);
  }

  ZoneReadResponder zone_server_{answer};
};

TEST_F(ZoningCosts, ZoneSetsZonesAndAliasesAreReadInOneExchangePerDatabase) {
  expect_cost("VEXOR_ZoneSet", 1, 2);
  expect_cost("VEXOR_Zone", kZones, 2);
  expect_cost("VEXOR_ZoneAlias", kAliases, 2);
}

TEST_F(ZoningCosts, InstancesOfZonesCostNoMore) {
  EXPECT_EQ(enumerate("VEXOR_Zone").returned.instances.size(), kZones);
  EXPECT_EQ(zone_server_.calls(), 2u);
  // The count of the VSANs, and the VSAN.
  EXPECT_EQ(one_vsan_.calls(), 2u);
}

TEST_F(ZoningCosts, MembersAreReadInOneExchangeEachAndTwoPerDatabase) {
  expect_cost("VEXOR_ZoneMemberSettingData", kMembers, (kMembers + 2) + 2);
}

TEST_F(ZoningCosts, MembershipsCostAReadOfEachParentAndOfEachChild) {
  const size_t of_zone_sets = 1 + 1 + kZones;
  const size_t of_zones = 1 + kZones + kZones;
  expect_cost("VEXOR_ZoneMemberOfCollection", kZones + kZones, of_zone_sets + of_zones + 2);
}

TEST_F(ZoningCosts, SettingsCostAReadOfEachParentAndOfEachMember) {
  const size_t of_zones = 1 + kZones + kZoneMembers;
  const size_t of_aliases = 1 + kAliases + kAliases;
  expect_cost("VEXOR_ZoneElementSettingData", kMembers, of_zones + of_aliases + 2);
}

TEST_F(ZoningCosts, HostedZoningCostsThreeExchangesPerDatabase) {
  expect_cost("VEXOR_ZoneHostedCollection", 1 + kZones + kAliases, 6);
}

TEST_F(ZoningCosts, AnObjectIsGotInOneExchange) {
  EXPECT_EQ(get(zone("1_4711_0")).code, CMPI_RC_OK);
  EXPECT_EQ(zone_server_.calls(), 1u);
  EXPECT_EQ(get(alias("1_47_0")).code, CMPI_RC_OK);
  EXPECT_EQ(zone_server_.calls(), 2u);
  EXPECT_EQ(get(zone_set("1_1_0")).code, CMPI_RC_OK);
  EXPECT_EQ(zone_server_.calls(), 3u);
}

TEST_F(ZoningCosts, WalksReadWhatStandsAtTheOtherEnd) {
  const Filter membership{.association = "VEXOR_ZoneMemberOfCollection"};
  const Filter setting{.association = "VEXOR_ZoneElementSettingData"};
  // The zones of a zone set: it, and each of them.
  expect_walk(kZones, 1 + kZones, [&] { return associator_names(zone_set("1_1_0"), membership); });
  // A zone's aliases: it, and its alias; its zone sets: all of them at once.
  expect_walk(2, 2 + 1, [&] { return associator_names(zone("1_1_0"), membership); });
  // The zones of an alias, all at once: 8000 zones hold 2048 aliases.
  expect_walk(4, 1, [&] { return associator_names(alias("1_1_0"), membership); });
  expect_walk(3, 1 + 3, [&] { return associator_names(zone("1_1_0"), setting); });
  expect_walk(2, 1 + 2, [&] { return associator_names(zone("1_8000_0"), setting); });
  expect_walk(1, 1 + 1, [&] { return associator_names(alias("1_9_0"), setting); });
}

TEST_F(ZoningCosts, WhatHoldsAMemberIsFoundByReadingEachOnce) {
  // In zone 1 the first of three is it: the others are not read.
  expect_walk(1, (1 + kZoneMembers - 2) + (1 + kAliases),
              [&] { return associator_names(member("1^2^1100000000010001^0"), {}); });
}

TEST_F(ZoningCosts, TheVsanOfAZoneCostsTheZone) {
  expect_walk(1, 1, [&] {
    return associator_names(zone("1_4711_0"), {.association = "VEXOR_ZoneHostedCollection"});
  });
}

}  // namespace
