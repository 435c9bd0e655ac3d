// A VSAN of the largest size: what it costs to read.
#include <cim_utils/collections.h>
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/double_zone_server.h"
#include "tests/zoning_queries/chains.h"
#include "tests/zoning_queries/entries.h"
#include "tests/zoning_queries/traces_aside.h"
#include "zoning/chain.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

constexpr uint32_t kZones = 8000;
constexpr uint32_t kAliases = 2048;
// Two in each zone, 16,000, and up to two in each alias, 4,000: 20,000.
constexpr uint32_t kMembersPerZone = 2;
constexpr uint32_t kAliasMembers = 4000;

uint32_t members_of_alias(uint32_t id) {
  return id <= kAliasMembers - kAliases ? 2 : 1;
}

std::vector<uint32_t> up_to(uint32_t last) {
  std::vector<uint32_t> ids;
  for (uint32_t id = 1; id <= last; ++id)
    ids.push_back(id);
  return ids;
}

Bytes zone(uint32_t id) {
  return zone_entry(1, id, "zone", {.members = up_to(kMembersPerZone), .aliases = {2048}});
}
Bytes alias(uint32_t id) {
  return alias_entry(1, id, "alias", up_to(members_of_alias(id)));
}
// One zone set that holds all zones.
Bytes zone_set() {
  return zone_set_entry(1, 1, "all", up_to(kZones));
}

template <class Entry>
Bytes each(uint32_t n, Entry entry) {
  Bytes all;
  for (uint32_t id = 1; id <= n; ++id) {
    const Bytes one = entry(id);
    all.insert(all.end(), one.begin(), one.end());
  }
  return all;
}

// No two members are the same: kind, parent and number are in their WWNs.
Bytes member(const ZoneReadRequest& request) {
  return member_entry(1, Record(8)
                             .be16(0, static_cast<uint16_t>(request.parent_kind))
                             .be16(2, static_cast<uint16_t>(request.parent_id))
                             .be32(4, request.member_id));
}

ZoneReadResponse answer(const ZoneReadRequest& request) {
  static const Bytes zones = each(kZones, zone);
  static const Bytes aliases = each(kAliases, alias);
  if (request.function == "zs_cmi_get_member") return {0, 1, member(request)};
  if (request.function == "zs_cmi_get_zone") return {0, 1, zone(request.id)};
  if (request.function == "zs_cmi_get_alias") return {0, 1, alias(request.id)};
  if (request.function == "zs_cmi_get_all_zones_in_vsan")
    return {0, static_cast<int32_t>(kZones), zones};
  if (request.function == "zs_cmi_get_all_aliases_in_vsan")
    return {0, static_cast<int32_t>(kAliases), aliases};
  return {0, 1, zone_set()};
}

class LargestVsan : public testing::Test {
 protected:
  const TracesAside aside_;
  ZoneReadResponder zone_server_{answer};
  int32_t count_ = 0;
};

TEST_F(LargestVsan, GivesAllZoneSetsZonesAndAliasesInOneExchangeEach) {
  zs_cim_zone_set_* zone_sets = nullptr;
  zs_cim_zone_* zones = nullptr;
  zs_cim_alias_* aliases = nullptr;
  EXPECT_EQ(zs_cim_get_all_active_zone_sets(kQueue, 1, &count_, &zone_sets), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(zs_cim_get_all_active_zones(kQueue, 1, &count_, &zones), 0);
  EXPECT_EQ(count_, 8000);
  EXPECT_STREQ(zones[7999].instance_id, "1_8000_1");
  EXPECT_EQ(zs_cim_get_all_active_zone_aliases(kQueue, 1, &count_, &aliases), 0);
  EXPECT_EQ(count_, 2048);
  EXPECT_STREQ(aliases[2047].instance_id, "1_2048_1");
  EXPECT_EQ(zone_server_.calls(), 3u);
  free(zone_sets);
  free(zones);
  free(aliases);
}

TEST_F(LargestVsan, GivesAllMembersInOneExchangeEachAndTwoForTheirParents) {
  Chain<zs_cim_zone_member_> members;
  EXPECT_EQ(zs_cim_get_all_active_zone_members(kQueue, 1, &count_, members.out()), 0);
  EXPECT_EQ(count_, 20000);
  EXPECT_EQ(members.length(), 20000);
  EXPECT_EQ(zone_server_.calls("zs_cmi_get_all_zones_in_vsan"), 1u);
  EXPECT_EQ(zone_server_.calls("zs_cmi_get_all_aliases_in_vsan"), 1u);
  EXPECT_EQ(zone_server_.calls("zs_cmi_get_member"), 20000u);
  EXPECT_EQ(zone_server_.calls(), 20002u);
}

TEST_F(LargestVsan, FindsAMemberOfTheActiveDatabaseWithTheSameExchanges) {
  zs_cim_zone_member_* member = nullptr;
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "1^2^00011F4000000002^1", &member), 0);
  EXPECT_EQ(zone_server_.calls(), 20002u);
  free(member);
}

TEST_F(LargestVsan, GivesTheZonesOfAZoneSetInOneExchangeEach) {
  Chain<zs_cim_zone_> zones;
  EXPECT_EQ(zs_cim_get_zone_set_zones_by_instance_id(kQueue, "1_1_1", zones.out()), 0);
  EXPECT_EQ(zones.length(), 8000);
  EXPECT_EQ(zone_server_.calls("zs_cmi_get_zone_set"), 1u);
  EXPECT_EQ(zone_server_.calls("zs_cmi_get_zone"), 8000u);
  EXPECT_EQ(zone_server_.calls(), 8001u);
}

TEST_F(LargestVsan, GivesTheChildrenOfAZoneInOneExchangeEach) {
  Chain<zs_cim_zone_member_> members;
  EXPECT_EQ(zs_cim_get_zone_zone_members_by_instance_id(kQueue, "1_8000_1", members.out()), 0);
  EXPECT_EQ(members.length(), 2);
  EXPECT_EQ(zone_server_.calls(), 3u);
  Chain<zs_cim_alias_> aliases;
  EXPECT_EQ(zs_cim_get_zone_zone_aliases_by_instance_id(kQueue, "1_8000_1", aliases.out()), 0);
  EXPECT_EQ(aliases.ids(), "1_2048_1");
  EXPECT_EQ(zone_server_.calls(), 5u);
}

TEST_F(LargestVsan, GivesTheParentsOfAZoneOrAnAliasInOneExchange) {
  Chain<zs_cim_zone_set_> zone_sets;
  EXPECT_EQ(zs_cim_get_zone_zone_set_parents_by_instance_id(kQueue, "1_8000_1", zone_sets.out()),
            0);
  EXPECT_EQ(zone_sets.ids(), "1_1_1");
  EXPECT_EQ(zone_server_.calls(), 1u);
  Chain<zs_cim_zone_> zones;
  EXPECT_EQ(zs_cim_get_zone_alias_zone_parents_by_instance_id(kQueue, "1_2048_1", zones.out()), 0);
  EXPECT_EQ(zones.length(), 8000);
  EXPECT_EQ(zone_server_.calls(), 2u);
}

TEST_F(LargestVsan, GivesTheParentsOfAMemberInOneExchangePerMemberUpToTheMatch) {
  GSList* zones = nullptr;
  // The second member of the last zone.
  EXPECT_EQ(
      zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, "1^2^00011F4000000002^1", &zones),
      0);
  EXPECT_EQ(cim_g_slist_length(zones), 1u);
  EXPECT_EQ(zone_server_.calls(), 16001u);
  cim_g_slist_destroy(zones, nullptr);
}

// ---- Growth

// A VSAN of n zones that all have the one member: every chain and list grows to n.
uint32_t zones_in_vsan;
ZoneReadResponse answer_alike(const ZoneReadRequest& request) {
  if (request.function == "zs_cmi_get_member")
    return {0, 1, member_entry(1, hex("10 00 00 00 c9 00 00 01"))};
  if (request.function == "zs_cmi_get_all_zones_in_vsan")
    return {0, static_cast<int32_t>(zones_in_vsan), each(zones_in_vsan, [](uint32_t id) {
              return zone_entry(1, id, "zone", {.members = {1}, .aliases = {1}});
            })};
  return {};
}

TEST(ZoningGrowth, ParentsOfAMemberAreInTheListOnceEachFromTheLastToTheFirst) {
  const TracesAside aside;
  const ZoneReadResponder zone_server(answer_alike);
  zones_in_vsan = kZones;
  GSList* zones = nullptr;
  EXPECT_EQ(
      zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, "1^2^10000000C9000001^1", &zones),
      0);
  uint32_t id = kZones;
  for (const GSList* node = zones; node != nullptr; node = node->next, --id) {
    EXPECT_STREQ(static_cast<const zs_cim_zone_*>(node->data)->instance_id,
                 ("1_" + std::to_string(id) + "_1").c_str());
  }
  EXPECT_EQ(id, 0u);
  cim_g_slist_destroy(zones, nullptr);
}

TEST(ZoningGrowth, AChainOfAMillionIsBuiltWithoutWalkingIt) {
  struct Link {
    Link* next;
  };
  constexpr int kLinks = 1000000;
  Chain<Link> links;
  cim_utils::ChainBuilder<Link> chain(links.out());
  for (int i = 0; i < kLinks; ++i)
    chain.append(static_cast<Link*>(malloc(sizeof(Link))));
  EXPECT_EQ(links.length(), kLinks);
}

}  // namespace
