// Zones of a zone set, aliases and members of a zone, members of an alias.
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/zoning_queries/chains.h"
#include "tests/zoning_queries/entries.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

constexpr int32_t kInAlias = 0;
constexpr int32_t kInZone = 1;

const Bytes kFcid = hex("00 0a 0b 0c");

void expect_fcid(Script& script, uint32_t vsan, int32_t active, int32_t kind, uint32_t parent,
                 uint32_t member, uint8_t last_byte) {
  const Bytes fcid = {0x00, 0x0a, 0x0b, last_byte};
  const Bytes entry = member_entry(3, fcid);
  script.expect(read_member(vsan, active, kind, parent, member)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(3, fcid);
}

class Children : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture printed_;
};

class ZonesOfAZoneSet : public Children {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_set_zones_by_instance_id(kQueue, instance_id, zones_.out());
  }
  Chain<zs_cim_zone_> zones_;
};

TEST_F(ZonesOfAZoneSet, AreChainedInTheOrderOfTheirIds) {
  Script script;
  script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set", {2048, 1, 9})});
  script.expect(read_zone(5, 1, 1)).gives({zone_entry(5, 1, "one")});
  script.expect(read_zone(5, 1, 9)).gives({zone_entry(5, 9, "nine", {}, 1)});
  script.expect(read_zone(5, 1, 2048)).gives({zone_entry(5, 2048, "last")});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(zones_.ids(), "5_1_1 5_9_1 5_2048_1");
  ASSERT_NE(zones_.head(), nullptr);
  EXPECT_STREQ(zones_.head()->name, "one");
  EXPECT_EQ(zones_.head()->next->read_only, 1);
}

TEST_F(ZonesOfAZoneSet, ComeFromTheDatabaseThatTheIdNames) {
  Script script;
  script.expect(read_zone_set(5, 0, 12)).gives({zone_set_entry(5, 12, "set", {1})});
  script.expect(read_zone(5, 0, 1)).gives({zone_entry(5, 1, "one")});
  EXPECT_EQ(get("5_12_0"), 0);
  EXPECT_EQ(zones_.ids(), "5_1_0");
}

TEST_F(ZonesOfAZoneSet, OfOneWithoutZonesAreAFailure) {
  Script script;
  script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set")});
  zs_cim_zone_ unused{};
  *zones_.out() = &unused;
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(zones_.head(), nullptr);
}

TEST_F(ZonesOfAZoneSet, ThatCannotBeReadAreLeftOut) {
  Script script;
  script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set", {1, 2, 3, 4})});
  script.expect(read_zone(5, 1, 1)).fails(7);
  script.expect(read_zone(5, 1, 2)).gives({zone_entry(5, 2, "two")});
  script.expect(read_zone(5, 1, 3)).gives_nothing();
  script.expect(read_zone(5, 1, 4)).gives({zone_entry(5, 4, "four")});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(zones_.ids(), "5_2_1 5_4_1");
}

TEST_F(ZonesOfAZoneSet, OfWhichNoneCanBeReadAreAnEmptyChain) {
  Script script;
  script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set", {1})});
  script.expect(read_zone(5, 1, 1)).fails(7);
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(zones_.head(), nullptr);
}

TEST_F(ZonesOfAZoneSet, OfOneThatCannotBeReadAreAFailure) {
  Script script;
  script.expect(read_zone_set(5, 1, 12)).fails(7);
  script.expect(read_zone_set(5, 1, 12))
      .fails_with_reply(7, zone_set_entry(5, 12, "set", {1}))
      .count(1);
  script.expect(read_zone_set(5, 1, 12)).gives_nothing();
  script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "s", {1})}).cut_to(1343);
  for (int i = 0; i < 4; ++i) {
    zs_cim_zone_ unused{};
    *zones_.out() = &unused;
    EXPECT_EQ(get("5_12_1"), -1);
    EXPECT_EQ(zones_.head(), nullptr);
  }
}

TEST_F(ZonesOfAZoneSet, OfAnUnreadableIdAreThoseOfWhatWasUnderstood) {
  Script script;
  // Without the database it is the full one.
  script.expect(read_zone_set(5, 0, 12)).gives({zone_set_entry(5, 12, "set", {1})});
  script.expect(read_zone(5, 0, 1)).gives({zone_entry(5, 1, "one")});
  EXPECT_EQ(get("5_12"), 0);
  EXPECT_EQ(zones_.ids(), "5_1_0");
  zones_.release();
  // Without an id all are read, and the first counts.
  script.expect(read_all_zone_sets(5, 0))
      .gives({zone_set_entry(5, 12, "set", {3}), zone_set_entry(5, 13, "other", {4})});
  script.expect(read_zone(5, 0, 3)).gives({zone_entry(5, 3, "three")});
  EXPECT_EQ(get("5"), 0);
  EXPECT_EQ(zones_.ids(), "5_3_0");
  zones_.release();
  // Without anything the zone server has the last word.
  script.expect(read_all_zone_sets(0, 0)).fails(2);
  EXPECT_EQ(get(""), -1);
}

TEST_F(ZonesOfAZoneSet, WithoutAnIdOrAPlaceForThemAskNobody) {
  Script script;
  EXPECT_EQ(get(nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_set_zones_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ZonesOfAZoneSet, RunTheZoneDebugHookFirst) {
  OsDouble os;
  os.marker_file_exists("/etc/cim_debug_zone");
  Script script;
  script.expect(read_zone_set(5, 1, 12)).fails(7);
  EXPECT_EQ(get("5_12_1"), -1);
  ASSERT_EQ(os.signals().size(), 1u);
}

TEST_F(ZonesOfAZoneSet, BitsBehindTheRoomOfTheSetAreNone) {
  Script script;
  Bytes entry = zone_set_entry(5, 12, "set", {1});
  std::fill(entry.begin() + 84, entry.begin() + 88, 0xff);  // 4,294,967,295 bits
  script.expect(read_zone_set(5, 1, 12)).gives({entry});
  script.expect(read_zone(5, 1, 1)).gives({zone_entry(5, 1, "one")});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(zones_.ids(), "5_1_1");
}

TEST_F(ZonesOfAZoneSet, EveryFailingExchangeLeavesOutOneOrFails) {
  for_every_failing_exchange([this](FailingExchange& failing) {
    Script script;
    script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set", {1, 2})});
    script.expect(read_zone(5, 1, 1)).gives({zone_entry(5, 1, "one")});
    script.expect(read_zone(5, 1, 2)).gives({zone_entry(5, 2, "two")});
    const char* const expected[] = {"", "5_2_1", "5_1_1", "5_1_1 5_2_1"};
    EXPECT_EQ(get("5_12_1"), failing.n() == 1 ? -1 : 0);
    ASSERT_LE(failing.n(), 4u);
    EXPECT_EQ(zones_.ids(), expected[failing.n() - 1]);
    zones_.release();
  });
}

TEST_F(ZonesOfAZoneSet, EveryFailingAllocationLeavesOutOne) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    Script script;
    script.expect(read_zone_set(5, 1, 12)).gives({zone_set_entry(5, 12, "set", {1, 2})});
    script.expect(read_zone(5, 1, 1)).gives({zone_entry(5, 1, "one")});
    script.expect(read_zone(5, 1, 2)).gives({zone_entry(5, 2, "two")});
    const char* const expected[] = {"5_2_1", "5_1_1", "5_1_1 5_2_1"};
    EXPECT_EQ(failing.attempt([&] { return get("5_12_1"); }), 0);
    ASSERT_LE(failing.n(), 3u);
    EXPECT_EQ(zones_.ids(), expected[failing.n() - 1]);
    zones_.release();
  });
}

class AliasesOfAZone : public Children {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_zone_aliases_by_instance_id(kQueue, instance_id, aliases_.out());
  }
  Chain<zs_cim_alias_> aliases_;
};

TEST_F(AliasesOfAZone, AreChainedInTheOrderOfTheirIds) {
  Script script;
  script.expect(read_zone(5, 1, 12))
      .gives({zone_entry(5, 12, "zone", {.members = {5}, .aliases = {2048, 3}})});
  script.expect(read_alias(5, 1, 3)).gives({alias_entry(5, 3, "three")});
  script.expect(read_alias(5, 1, 2048)).gives({alias_entry(5, 2048, "last")});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(aliases_.ids(), "5_3_1 5_2048_1");
  ASSERT_NE(aliases_.head(), nullptr);
  EXPECT_STREQ(aliases_.head()->name, "three");
}

TEST_F(AliasesOfAZone, WithoutAnyAreAnEmptyChain) {
  Script script;
  script.expect(read_zone(5, 0, 12)).gives({zone_entry(5, 12, "zone", {.members = {5}})});
  zs_cim_alias_ unused{};
  *aliases_.out() = &unused;
  EXPECT_EQ(get("5_12_0"), 0);
  EXPECT_EQ(aliases_.head(), nullptr);
}

TEST_F(AliasesOfAZone, ThatCannotBeReadAreLeftOut) {
  Script script;
  script.expect(read_zone(5, 1, 12)).gives({zone_entry(5, 12, "zone", {.aliases = {1, 2}})});
  script.expect(read_alias(5, 1, 1)).fails(7);
  script.expect(read_alias(5, 1, 2)).gives({alias_entry(5, 2, "two")});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(aliases_.ids(), "5_2_1");
}

TEST_F(AliasesOfAZone, OfOneThatCannotBeReadAreAFailure) {
  Script script;
  script.expect(read_zone(5, 1, 12)).fails(7);
  script.expect(read_zone(5, 1, 12)).gives_nothing();
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get(nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_zone_aliases_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(aliases_.head(), nullptr);
}

TEST_F(AliasesOfAZone, EveryFailingAllocationLeavesOutOne) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    Script script;
    script.expect(read_zone(5, 1, 12)).gives({zone_entry(5, 12, "zone", {.aliases = {1, 2}})});
    script.expect(read_alias(5, 1, 1)).gives({alias_entry(5, 1, "one")});
    script.expect(read_alias(5, 1, 2)).gives({alias_entry(5, 2, "two")});
    EXPECT_EQ(failing.attempt([&] { return get("5_12_1"); }), 0);
    EXPECT_EQ(aliases_.length(), failing.was_hit() ? 1 : 2);
    aliases_.release();
  });
}

class MembersOfAZone : public Children {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_zone_members_by_instance_id(kQueue, instance_id, members_.out());
  }
  Chain<zs_cim_zone_member_> members_;
};

TEST_F(MembersOfAZone, AreChainedInTheOrderOfTheirIds) {
  Script script;
  script.expect(read_zone(5, 1, 12))
      .gives({zone_entry(5, 12, "zone", {.members = {7, 2}, .aliases = {1}})});
  expect_fcid(script, 5, 1, kInZone, 12, 2, 0x02);
  expect_fcid(script, 5, 1, kInZone, 12, 7, 0x07);
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(members_.ids(), "5^3^0a0b02^1 5^3^0a0b07^1");
}

TEST_F(MembersOfAZone, WithoutAnyAreAnEmptyChain) {
  Script script;
  script.expect(read_zone(5, 1, 12)).gives({zone_entry(5, 12, "zone", {.aliases = {1}})});
  zs_cim_zone_member_ unused{};
  *members_.out() = &unused;
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(members_.head(), nullptr);
}

TEST_F(MembersOfAZone, ThatAreAlikeAreBothReturned) {
  Script script;
  script.expect(read_zone(5, 1, 12)).gives({zone_entry(5, 12, "zone", {.members = {1, 2}})});
  expect_fcid(script, 5, 1, kInZone, 12, 1, 0x02);
  expect_fcid(script, 5, 1, kInZone, 12, 2, 0x02);
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(members_.length(), 2);
}

TEST_F(MembersOfAZone, ThatCannotBeReadAreLeftOut) {
  Script script;
  script.expect(read_zone(5, 1, 12)).gives({zone_entry(5, 12, "zone", {.members = {1, 2, 3, 4}})});
  script.expect(read_member(5, 1, kInZone, 12, 1)).fails(7);
  expect_fcid(script, 5, 1, kInZone, 12, 2, 0x02);
  script.expect(read_member(5, 1, kInZone, 12, 3)).gives_nothing();
  const Bytes entry = member_entry(3, kFcid);
  script.expect(read_member(5, 1, kInZone, 12, 4)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(99, kFcid);
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(members_.ids(), "5^3^0a0b02^1");
}

TEST_F(MembersOfAZone, OfAnIdWithoutTheObjectHaveParentZero) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone_entry(5, 12, "zone", {.members = {1}})});
  script.expect(read_member(5, 0, kInZone, 0, 1)).fails(7);
  EXPECT_EQ(get("5"), 0);
  EXPECT_EQ(members_.head(), nullptr);
}

TEST_F(MembersOfAZone, OfOneThatCannotBeReadAreAFailure) {
  Script script;
  script.expect(read_zone(5, 1, 12)).fails(7);
  script.expect(read_zone(5, 1, 12)).gives_nothing();
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get(nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_zone_members_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(members_.head(), nullptr);
}

TEST_F(MembersOfAZone, EveryFailingAllocationLeavesOutOne) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    ZoneReadResponder zone_server([](const ZoneReadRequest& request) {
      if (request.function == "zs_cmi_get_zone")
        return ZoneReadResponse{0, 1, zone_entry(5, 12, "zone", {.members = {1, 2}})};
      return ZoneReadResponse{0, 1, member_entry(3, kFcid)};
    });
    EXPECT_EQ(failing.attempt([&] { return get("5_12_1"); }), 0);
    EXPECT_EQ(members_.length(), failing.was_hit() ? 1 : 2);
    members_.release();
  });
}

class MembersOfAnAlias : public Children {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_alias_zone_members_by_instance_id(kQueue, instance_id, members_.out());
  }
  Chain<zs_cim_zone_member_> members_;
};

TEST_F(MembersOfAnAlias, AreReadWithTheKindOfAliases) {
  Script script;
  script.expect(read_alias(5, 0, 2048)).gives({alias_entry(5, 2048, "alias", {7, 2})});
  expect_fcid(script, 5, 0, kInAlias, 2048, 2, 0x02);
  expect_fcid(script, 5, 0, kInAlias, 2048, 7, 0x07);
  EXPECT_EQ(get("5_2048_0"), 0);
  EXPECT_EQ(members_.ids(), "5^3^0a0b02^0 5^3^0a0b07^0");
}

TEST_F(MembersOfAnAlias, WithoutAnyAreAnEmptyChain) {
  Script script;
  script.expect(read_alias(5, 0, 2)).gives({alias_entry(5, 2, "alias")});
  EXPECT_EQ(get("5_2_0"), 0);
  EXPECT_EQ(members_.head(), nullptr);
}

TEST_F(MembersOfAnAlias, OfOneThatCannotBeReadAreAFailure) {
  Script script;
  script.expect(read_alias(5, 1, 12)).fails(7);
  script.expect(read_alias(5, 1, 12)).gives_nothing();
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get("5_12_1"), -1);
  EXPECT_EQ(get(nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_alias_zone_members_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(members_.head(), nullptr);
}

TEST_F(MembersOfAnAlias, EveryFailingExchangeLeavesOutOneOrFails) {
  for_every_failing_exchange([this](FailingExchange& failing) {
    Script script;
    script.expect(read_alias(5, 1, 12)).gives({alias_entry(5, 12, "alias", {1, 2})});
    expect_fcid(script, 5, 1, kInAlias, 12, 1, 0x01);
    expect_fcid(script, 5, 1, kInAlias, 12, 2, 0x02);
    EXPECT_EQ(get("5_12_1"), failing.n() == 1 ? -1 : 0);
    // The reads and what takes their entries apart, one after the other.
    const char* const expected[] = {"",
                                    "5^3^0a0b02^1",
                                    "5^3^0a0b02^1",
                                    "5^3^0a0b01^1",
                                    "5^3^0a0b01^1",
                                    "5^3^0a0b01^1 5^3^0a0b02^1"};
    ASSERT_LE(failing.n(), 6u);
    EXPECT_EQ(members_.ids(), expected[failing.n() - 1]);
    members_.release();
  });
}

}  // namespace
