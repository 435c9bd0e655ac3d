// All members of a VSAN, and one of them by its instance id.
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/zoning_queries/chains.h"
#include "tests/zoning_queries/entries.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

constexpr int32_t kInAlias = 0;
constexpr int32_t kInZone = 1;

// The WWN of host n.
Bytes wwn(uint8_t n) {
  return Bytes{0x10, 0x00, 0x00, 0x00, 0xc9, 0x00, 0x00, n};
}

// Expects the read of a member with that WWN.
void expect_wwn(Script& script, int32_t active, int32_t kind, uint32_t parent, uint32_t member,
                uint8_t n) {
  const Bytes entry = member_entry(1, wwn(n));
  script.expect(read_member(5, active, kind, parent, member)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(1, wwn(n));
}

class AllZoneMembers : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture printed_;
  Chain<zs_cim_zone_member_> chain_;
  int32_t count_ = -7;
};

TEST_F(AllZoneMembers, AreThoseOfTheZonesThenThoseOfTheAliases) {
  Script script;
  script.expect(read_all_zones(5, 1))
      .gives({zone_entry(5, 3, "a", {.members = {1, 9}, .aliases = {2}}), zone_entry(5, 4, "b"),
              zone_entry(5, 2000, "c", {.members = {2048}})});
  expect_wwn(script, 1, kInZone, 3, 1, 0x11);
  expect_wwn(script, 1, kInZone, 3, 9, 0x12);
  expect_wwn(script, 1, kInZone, 2000, 2048, 0x13);
  script.expect(read_all_aliases(5, 1)).gives({alias_entry(5, 2, "x", {7})});
  expect_wwn(script, 1, kInAlias, 2, 7, 0x14);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 4);
  EXPECT_EQ(chain_.ids(),
            "5^2^10000000C9000011^1 5^2^10000000C9000012^1 5^2^10000000C9000013^1 "
            "5^2^10000000C9000014^1");
}

TEST_F(AllZoneMembers, TheVsanOfAMemberIsTheOneAskedForWhateverTheEntriesTell) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone_entry(77, 3, "a", {.members = {1}})});
  expect_wwn(script, 0, kInZone, 3, 1, 0x11);
  script.expect(read_all_aliases(5, 0)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 0, &count_, chain_.out()), 0);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000011^0");
}

TEST_F(AllZoneMembers, OneInTwoZonesAndAnAliasIsReturnedOnce) {
  Script script;
  script.expect(read_all_zones(5, 1))
      .gives({zone_entry(5, 3, "a", {.members = {1}}), zone_entry(5, 4, "b", {.members = {6}})});
  expect_wwn(script, 1, kInZone, 3, 1, 0x11);
  expect_wwn(script, 1, kInZone, 4, 6, 0x11);
  script.expect(read_all_aliases(5, 1)).gives({alias_entry(5, 2, "x", {2})});
  expect_wwn(script, 1, kInAlias, 2, 2, 0x11);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000011^1");
}

TEST_F(AllZoneMembers, OfDifferentTypesAreTwoThoughTheirTextsAreAlike) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1, 2}})});
  for (uint8_t type : {1, 229}) {
    const Bytes entry = member_entry(type, wwn(0x11));
    script.expect(read_member(5, 1, kInZone, 3, type == 1 ? 1 : 2)).gives({entry});
    script.expect(parse_member(head_of(entry))).as(type, wwn(0x11));
  }
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000011^1 5^7^10000000C9000011^1");
}

TEST_F(AllZoneMembers, WhoseDisplayTextsAreAlikeAreOneWithTheInstanceIdOfTheFirst) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1, 2}})});
  // Both are shown as text of CIM type 12; their instance ids have more of it than is shown.
  const Bytes first = member_entry(228, Record(256).text(0, "iqn.first"));
  script.expect(read_member(5, 1, kInZone, 3, 1)).gives({first});
  script.expect(parse_member(head_of(first))).as(228, terminated("iqn.first")).length(3);
  const Bytes second = member_entry(230, Record(256).text(0, "iqn.second"));
  script.expect(read_member(5, 1, kInZone, 3, 2)).gives({second});
  script.expect(parse_member(head_of(second))).as(230, terminated("iqn.second")).length(3);
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(chain_.ids(), "5^12^iqn.first^1");
}

TEST_F(AllZoneMembers, ThatCannotBeReadAreLeftOut) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1, 2, 3}})});
  script.expect(read_member(5, 1, kInZone, 3, 1)).fails(4);
  script.expect(read_member(5, 1, kInZone, 3, 2)).gives_nothing();
  expect_wwn(script, 1, kInZone, 3, 3, 0x13);
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000013^1");
}

TEST_F(AllZoneMembers, OfZerosAreReturnedOnceAndCounted) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1, 2}})});
  script.expect(read_member(5, 1, kInZone, 3, 1)).gives({member_entry(109, wwn(1))});
  script.expect(read_member(5, 1, kInZone, 3, 2)).gives({member_entry(99, wwn(2))});
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_STREQ(chain_.head()->instance_id, "");
  EXPECT_EQ(chain_.head()->next, nullptr);
}

TEST_F(AllZoneMembers, OfAVsanWithoutAnyAreNone) {
  Script script;
  zs_cim_zone_member_ unused{};
  *chain_.out() = &unused;
  script.expect(read_all_zones(5, 1)).gives_nothing();
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(chain_.head(), nullptr);
}

TEST_F(AllZoneMembers, OfTheAliasesAreReadThoughTheZonesCannot) {
  Script script;
  script.expect(read_all_zones(5, 1)).fails_with_reply(4, zone_entry(5, 3, "a"));
  script.expect(read_all_aliases(5, 1)).gives({alias_entry(5, 2, "x", {2})});
  expect_wwn(script, 1, kInAlias, 2, 2, 0x11);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
}

TEST_F(AllZoneMembers, OfTheZonesStayThoughTheAliasesCannotBeRead) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  expect_wwn(script, 1, kInZone, 3, 1, 0x11);
  script.expect(read_all_aliases(5, 1)).fails(4);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
}

TEST_F(AllZoneMembers, OfAliasesAreTracedWithFunctionAndLine) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  expect_wwn(script, 1, kInZone, 3, 1, 0x11);
  script.expect(read_all_aliases(5, 1)).gives({alias_entry(5, 2, "x", {2})});
  expect_wwn(script, 1, kInAlias, 2, 2, 0x12);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
  const std::string out = printed_.out();
  EXPECT_TRUE(out.starts_with(" num_entries in zs_cim_get_cmi_zone 1 \n")) << out;
  const size_t first = out.find("Function ");
  EXPECT_GT(first, out.find("10000000C9000012"));
  EXPECT_NE(first, std::string::npos);
  EXPECT_EQ(out.find("Function ", first + 1), std::string::npos);
}

TEST_F(AllZoneMembers, ActiveAndNonActiveReadTheirDatabase) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  expect_wwn(script, 1, kInZone, 3, 1, 0x11);
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_active_zone_members(kQueue, 5, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000011^1");
  chain_.release();

  script.expect(read_all_zones(5, 0)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  expect_wwn(script, 0, kInZone, 3, 1, 0x12);
  script.expect(read_all_aliases(5, 0)).gives_nothing();
  EXPECT_EQ(zs_cim_get_all_non_active_zone_members(kQueue, 5, &count_, chain_.out()), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000012^0");
}

TEST_F(AllZoneMembers, WithoutAPlaceForTheResultNobodyIsAsked) {
  Script script;
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, nullptr, chain_.out()), -1);
  EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, nullptr), -1);
  EXPECT_EQ(zs_cim_get_all_active_zone_members(kQueue, 5, nullptr, chain_.out()), -1);
  EXPECT_EQ(zs_cim_get_all_active_zone_members(kQueue, 5, &count_, nullptr), -1);
  EXPECT_EQ(zs_cim_get_all_non_active_zone_members(kQueue, 5, nullptr, chain_.out()), -1);
  EXPECT_EQ(zs_cim_get_all_non_active_zone_members(kQueue, 5, &count_, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

// Two zones with two members each, one of them shared, and an alias with one of its own.
void expect_small_vsan(Script& script, int32_t active) {
  script.expect(read_all_zones(5, active))
      .gives(
          {zone_entry(5, 3, "a", {.members = {1, 2}}), zone_entry(5, 4, "b", {.members = {1, 2}})});
  expect_wwn(script, active, kInZone, 3, 1, 0x11);
  expect_wwn(script, active, kInZone, 3, 2, 0x12);
  expect_wwn(script, active, kInZone, 4, 1, 0x11);
  expect_wwn(script, active, kInZone, 4, 2, 0x13);
  script.expect(read_all_aliases(5, active)).gives({alias_entry(5, 2, "x", {1})});
  expect_wwn(script, active, kInAlias, 2, 1, 0x14);
}

TEST_F(AllZoneMembers, AFailingExchangeNeverFailsTheCall) {
  for_every_failing_exchange([this](FailingExchange& failing) {
    Script script;
    expect_small_vsan(script, 1);
    EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()), 0);
    EXPECT_EQ(count_, chain_.length());
    // Zones; four members and what takes them apart, the first and the third alike; aliases; the
    // fifth member.
    const int expected[] = {1, 4, 4, 3, 3, 4, 4, 3, 3, 3, 3, 3, 4};
    ASSERT_LE(failing.n(), 13u);
    EXPECT_EQ(count_, expected[failing.n() - 1]) << failing.n();
    chain_.release();
  });
}

TEST_F(AllZoneMembers, AFailingAllocationNeverFailsTheCall) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    ZoneReadResponder zone_server([](const ZoneReadRequest& request) {
      if (request.function == "zs_cmi_get_all_zones_in_vsan")
        return ZoneReadResponse{0, 1, zone_entry(5, 3, "a", {.members = {1, 2}})};
      if (request.function == "zs_cmi_get_all_aliases_in_vsan")
        return ZoneReadResponse{0, 1, alias_entry(5, 2, "x", {1})};
      return ZoneReadResponse{
          0, 1, member_entry(1, wwn(static_cast<uint8_t>(request.parent_id + request.member_id)))};
    });
    const int32_t result = failing.attempt(
        [&] { return zs_cim_get_all_zone_members(kQueue, 5, 1, &count_, chain_.out()); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(count_, chain_.length());
    // WWNs 4, 5 and 3.
    EXPECT_EQ(count_, failing.was_hit() ? 2 : 3);
    chain_.release();
  });
}

// ---- One by its instance id

class ZoneMemberByInstanceId : public AllZoneMembers {
 protected:
  // A database with one zone that has one member.
  static void expect_one(Script& script, int32_t active, uint8_t n) {
    script.expect(read_all_zones(5, active)).gives({zone_entry(5, 3, "a", {.members = {1}})});
    expect_wwn(script, active, kInZone, 3, 1, n);
    script.expect(read_all_aliases(5, active)).gives_nothing();
  }
  static void expect_none(Script& script, int32_t active) {
    script.expect(read_all_zones(5, active)).gives_nothing();
    script.expect(read_all_aliases(5, active)).gives_nothing();
  }
  bool was_printed(const char* text) const {
    return printed_.out().find(text) != std::string::npos;
  }
};

TEST_F(ZoneMemberByInstanceId, IsFoundInTheActiveDatabaseFirst) {
  Script script;
  expect_one(script, 1, 0x11);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^1", chain_.out()),
            0);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_STREQ(chain_.head()->instance_id, "5^2^10000000C9000011^1");
  EXPECT_EQ(chain_.head()->member_type, 2);
  EXPECT_STREQ(chain_.head()->member_id, "10000000C9000011");
  EXPECT_EQ(chain_.head()->next, nullptr);
  EXPECT_TRUE(was_printed(" value of found in active zone  is 0 \n "));
  EXPECT_FALSE(was_printed("non active"));
  EXPECT_FALSE(was_printed("(zmp_na)"));
}

TEST_F(ZoneMemberByInstanceId, OfTheFullDatabaseOnlyIsFoundAfterTheActiveSearch) {
  Script script;
  expect_none(script, 1);
  expect_one(script, 0, 0x11);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^0", chain_.out()),
            0);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_STREQ(chain_.head()->instance_id, "5^2^10000000C9000011^0");
  EXPECT_STREQ(chain_.head()->member_id, "10000000C9000011");
  const std::string out = printed_.out();
  const size_t active = out.find(" value of found in active zone  is -1 \n ");
  const size_t record = out.find(
      "(zmp_na)->instance_id 5^2^10000000C9000011^0  instance_id 5^2^10000000C9000011^0 \n"
      "(zmp_na)->member_id 10000000C9000011  \n"
      " value of found in non active zone is 0 \n ");
  EXPECT_NE(active, std::string::npos);
  EXPECT_NE(record, std::string::npos);
  EXPECT_LT(active, record);
}

TEST_F(ZoneMemberByInstanceId, IsSearchedInBothDatabasesWhateverTheIdSays) {
  Script script;
  // The active database has the WWN, but under an id that ends in 1.
  expect_one(script, 1, 0x11);
  expect_none(script, 0);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^0", chain_.out()),
            -1);
}

TEST_F(ZoneMemberByInstanceId, InAnotherCaseOfItsLettersMatchesAndKeepsTheCallersSpelling) {
  Script script;
  expect_one(script, 1, 0x11);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000c9000011^1", chain_.out()),
            0);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_STREQ(chain_.head()->instance_id, "5^2^10000000c9000011^1");
  EXPECT_STREQ(chain_.head()->member_id, "10000000C9000011");
}

TEST_F(ZoneMemberByInstanceId, IsOneRecordThoughMoreMembersFollow) {
  Script script;
  expect_small_vsan(script, 1);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000012^1", chain_.out()),
            0);
  EXPECT_EQ(chain_.ids(), "5^2^10000000C9000012^1");
}

TEST_F(ZoneMemberByInstanceId, NotFoundInEitherDatabaseIsAFailure) {
  Script script;
  expect_one(script, 1, 0x12);
  expect_one(script, 0, 0x13);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^1", chain_.out()),
            -1);
  EXPECT_EQ(chain_.head(), nullptr);
  EXPECT_TRUE(was_printed(" value of found in active zone  is -1 \n "));
  EXPECT_TRUE(was_printed(" value of found in non active zone is -1 \n "));
}

TEST_F(ZoneMemberByInstanceId, IsNotFoundWhereTheZoneServerFails) {
  Script script;
  for (int32_t active : {1, 0}) {
    script.expect(read_all_zones(5, active)).fails(4);
    script.expect(read_all_aliases(5, active)).fails(4);
  }
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^1", chain_.out()),
            -1);
  EXPECT_EQ(chain_.head(), nullptr);
}

TEST_F(ZoneMemberByInstanceId, ThatCannotBeReadAsksNobody) {
  Script script;
  zs_cim_zone_member_ unused{};
  // CIM types 101 and 102 are shown but not read back.
  for (const char* text : {"", "5", "5^2", "5^2^10000000C9000011", "5^77^a^1",
                           "5^101^2041000DEC0A1B2C_0001020304050A0B^1", "5^102^a^1"}) {
    *chain_.out() = &unused;
    EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, text, chain_.out()), -1);
    EXPECT_EQ(chain_.head(), nullptr);
  }
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, nullptr, chain_.out()), -1);
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^1", nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ZoneMemberByInstanceId, HasTheTypeOfItsId) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  const Bytes entry = member_entry(228, Record(256).text(0, "iqn.a"));
  script.expect(read_member(5, 1, kInZone, 3, 1)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(228, terminated("iqn.a"));
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, "5^12^IQN.A^1", chain_.out()), 0);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_EQ(chain_.head()->member_type, 12);
  EXPECT_STREQ(chain_.head()->member_id, "iqn.a");
}

TEST_F(ZoneMemberByInstanceId, ALongDisplayTextIsCutTo127Characters) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "a", {.members = {1}})});
  const Bytes entry = member_entry(230, Bytes(256, 'x'));
  script.expect(read_member(5, 1, kInZone, 3, 1)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(230, Bytes(256, 'x'));
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  const std::string id = "5^12^" + std::string(63, 'x') + "^1";
  EXPECT_EQ(zs_cim_get_zone_member_by_instance_id(kQueue, id.c_str(), chain_.out()), 0);
  ASSERT_NE(chain_.head(), nullptr);
  EXPECT_EQ(chain_.head()->member_id, std::string(127, 'x'));
}

TEST_F(ZoneMemberByInstanceId, EveryFailingExchangeEndsInFoundOrNotFound) {
  for_every_failing_exchange([this](FailingExchange& failing) {
    Script script;
    expect_one(script, 1, 0x12);
    expect_one(script, 0, 0x11);
    const int32_t result =
        zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^0", chain_.out());
    // The calls: zones, member, its parts, aliases; for either database.
    const bool needed = failing.n() >= 5 && failing.n() <= 7;
    EXPECT_EQ(result, failing.was_hit() && needed ? -1 : 0) << failing.n();
    EXPECT_EQ(chain_.length(), result == 0 ? 1 : 0);
    chain_.release();
  });
}

TEST_F(ZoneMemberByInstanceId, EveryFailingAllocationLeavesNothingBehind) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    ZoneReadResponder zone_server([](const ZoneReadRequest& request) {
      if (request.function == "zs_cmi_get_all_zones_in_vsan" && request.active == 0)
        return ZoneReadResponse{0, 1, zone_entry(5, 3, "a", {.members = {1}})};
      if (request.function == "zs_cmi_get_member")
        return ZoneReadResponse{0, 1, member_entry(1, wwn(0x11))};
      return ZoneReadResponse{};
    });
    const int32_t result = failing.attempt([&] {
      return zs_cim_get_zone_member_by_instance_id(kQueue, "5^2^10000000C9000011^0", chain_.out());
    });
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
    EXPECT_EQ(chain_.length(), result == 0 ? 1 : 0);
    chain_.release();
  });
}

}  // namespace
