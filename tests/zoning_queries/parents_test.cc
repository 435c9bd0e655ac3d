// Zone sets of a zone, zones of an alias, zones and aliases of a member.
#include <cim_utils/collections.h>
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

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

class Parents : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture printed_;
};

// ---- Zone sets of a zone

class ZoneSetsOfAZone : public Parents {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_zone_set_parents_by_instance_id(kQueue, instance_id, zone_sets_.out());
  }
  Chain<zs_cim_zone_set_> zone_sets_;
};

TEST_F(ZoneSetsOfAZone, AreThoseWhoseSetHoldsIt) {
  Script script;
  script.expect(read_all_zone_sets(5, 1))
      .gives({zone_set_entry(8, 1, "with", {9, 12}), zone_set_entry(8, 2, "without", {11, 13}),
              zone_set_entry(8, 3, "with too", {12}), zone_set_entry(8, 4, "empty")});
  EXPECT_EQ(get("5_12_1"), 0);
  // Their VSAN is that of the entries.
  EXPECT_EQ(zone_sets_.ids(), "8_1_1 8_3_1");
  ASSERT_NE(zone_sets_.head(), nullptr);
  EXPECT_STREQ(zone_sets_.head()->name, "with");
  EXPECT_EQ(zone_sets_.head()->vsan_id, 8u);
  EXPECT_EQ(zone_sets_.head()->active, 1);
}

TEST_F(ZoneSetsOfAZone, AreReadFromItsDatabase) {
  Script script;
  script.expect(read_all_zone_sets(5, 0)).gives({zone_set_entry(5, 1, "with", {12})});
  EXPECT_EQ(get("5_12_0"), 0);
  EXPECT_EQ(zone_sets_.ids(), "5_1_0");
}

TEST_F(ZoneSetsOfAZone, AreNoneWhereNoSetHoldsIt) {
  Script script;
  script.expect(read_all_zone_sets(5, 1)).gives({zone_set_entry(5, 1, "without", {1})});
  script.expect(read_all_zone_sets(5, 1)).gives_nothing();
  // No object has id 0 or a negative one, and bits behind a set's end are none.
  script.expect(read_all_zone_sets(5, 1)).gives({zone_set_entry(5, 1, "set", {1})});
  script.expect(read_all_zone_sets(5, 1)).gives({zone_set_entry(5, 1, "set", {1})});
  script.expect(read_all_zone_sets(5, 1)).gives({zone_set_entry(5, 1, "set", {1})});
  for (const char* id : {"5_12_1", "5_12_1", "5_0_1", "5_-7_1", "5_2147483647_1"}) {
    EXPECT_EQ(get(id), 0);
    EXPECT_EQ(zone_sets_.head(), nullptr);
  }
}

TEST_F(ZoneSetsOfAZone, FailWhenTheZoneServerDoes) {
  Script script;
  script.expect(read_all_zone_sets(5, 1)).fails(7);
  script.expect(read_all_zone_sets(5, 1)).fails_with_reply(7, zone_set_entry(5, 1, "s", {12}));
  for (int i = 0; i < 2; ++i) {
    zs_cim_zone_set_ unused{};
    *zone_sets_.out() = &unused;
    EXPECT_EQ(get("5_12_1"), -1);
    EXPECT_EQ(zone_sets_.head(), nullptr);
  }
}

TEST_F(ZoneSetsOfAZone, OfAnIdThatCannotBeReadAskNobody) {
  Script script;
  for (const char* id : {"", "5", "5_12", static_cast<const char*>(nullptr)})
    EXPECT_EQ(get(id), -1);
  EXPECT_EQ(zs_cim_get_zone_zone_set_parents_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ZoneSetsOfAZone, EveryFailingAllocationFailsWithoutAChain) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    Script script;
    script.expect(read_all_zone_sets(5, 1))
        .gives({zone_set_entry(5, 1, "a", {12}), zone_set_entry(5, 2, "b", {12})});
    const int32_t result = failing.attempt([&] { return get("5_12_1"); });
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
    EXPECT_EQ(zone_sets_.length(), failing.was_hit() ? 0 : 2);
    zone_sets_.release();
  });
}

// ---- Zones of an alias

class ZonesOfAnAlias : public Parents {
 protected:
  int32_t get(const char* instance_id) {
    return zs_cim_get_zone_alias_zone_parents_by_instance_id(kQueue, instance_id, zones_.out());
  }
  Chain<zs_cim_zone_> zones_;
};

TEST_F(ZonesOfAnAlias, AreThoseWhoseAliasesHoldIt) {
  Script script;
  script.expect(read_all_zones(5, 1))
      .gives({zone_entry(8, 1, "with", {.members = {}, .aliases = {12}}, 1),
              zone_entry(8, 2, "as member", {.members = {12}, .aliases = {11}}),
              zone_entry(8, 3, "with too", {.members = {1}, .aliases = {2048, 12}})});
  EXPECT_EQ(get("5_12_1"), 0);
  EXPECT_EQ(zones_.ids(), "8_1_1 8_3_1");
  ASSERT_NE(zones_.head(), nullptr);
  EXPECT_EQ(zones_.head()->read_only, 1);
  EXPECT_EQ(zones_.head()->next->read_only, 0);
}

TEST_F(ZonesOfAnAlias, FailWhenTheZoneServerDoes) {
  Script script;
  script.expect(read_all_zones(5, 0)).fails(7);
  zs_cim_zone_ unused{};
  *zones_.out() = &unused;
  EXPECT_EQ(get("5_12_0"), -1);
  EXPECT_EQ(zones_.head(), nullptr);
}

TEST_F(ZonesOfAnAlias, OfAnIdThatCannotBeReadAskNobody) {
  Script script;
  for (const char* id : {"", "5_12", static_cast<const char*>(nullptr)})
    EXPECT_EQ(get(id), -1);
  EXPECT_EQ(zs_cim_get_zone_alias_zone_parents_by_instance_id(kQueue, "5_12_1", nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ZonesOfAnAlias, EveryFailingAllocationFailsWithoutAChain) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    Script script;
    script.expect(read_all_zones(5, 1))
        .gives({zone_entry(5, 1, "a", {.members = {}, .aliases = {12}}),
                zone_entry(5, 2, "b", {.members = {}, .aliases = {12}})});
    const int32_t result = failing.attempt([&] { return get("5_12_1"); });
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
    EXPECT_EQ(zones_.length(), failing.was_hit() ? 0 : 2);
    zones_.release();
  });
}

// ---- Zones and aliases of a member

constexpr const char* kWanted = "5^3^0a0b01^1";

Bytes fcid(uint8_t last_byte) {
  return {0x00, 0x0a, 0x0b, last_byte};
}

void expect_fcid(Script& script, int32_t active, int32_t kind, uint32_t parent, uint32_t member,
                 uint8_t last_byte) {
  const Bytes entry = member_entry(3, fcid(last_byte));
  script.expect(read_member(5, active, kind, parent, member)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(3, fcid(last_byte));
}

class ParentsOfAMember : public Parents {
 protected:
  ~ParentsOfAMember() override { cim_g_slist_destroy(list_, nullptr); }
  void release() {
    cim_g_slist_destroy(list_, nullptr);
    list_ = nullptr;
  }
  Bytes element(uint32_t n, size_t size) {
    const auto* data = static_cast<const uint8_t*>(cim_g_slist_nth_data(list_, n));
    EXPECT_EQ(live_block_size(data, 0), size);
    return data == nullptr ? Bytes() : Bytes(data, data + size);
  }
  template <class Record>
  std::string ids() {
    std::string all;
    for (const GSList* node = list_; node != nullptr; node = node->next)
      all += (node == list_ ? "" : " ") +
             std::string(static_cast<const Record*>(node->data)->instance_id);
    return all;
  }
  GSList* list_ = nullptr;
};

TEST_F(ParentsOfAMember, RawZonesAreWholeCopiesOfThoseThatHoldIt) {
  const Bytes first = zone_entry(5, 3, "first", {.members = {1}, .aliases = {4}}, 3);
  const Bytes second = zone_entry(5, 4, "second", {.members = {1}});
  const Bytes third = zone_entry(5, 5, "third", {.members = {1, 2}});
  Script script;
  script.expect(read_all_zones(5, 1)).gives({first, second, third});
  expect_fcid(script, 1, kInZone, 3, 1, 0x01);
  expect_fcid(script, 1, kInZone, 4, 1, 0x02);
  expect_fcid(script, 1, kInZone, 5, 1, 0x02);
  expect_fcid(script, 1, kInZone, 5, 2, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, &list_), 0);
  ASSERT_EQ(cim_g_slist_length(list_), 2u);
  EXPECT_EQ(element(0, 872), first);
  EXPECT_EQ(element(1, 872), third);
}

TEST_F(ParentsOfAMember, AZoneIsListedOnceAndNotReadFurther) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "zone", {.members = {1, 2, 3}})});
  expect_fcid(script, 1, kInZone, 3, 1, 0x02);
  expect_fcid(script, 1, kInZone, 3, 2, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, &list_), 0);
  EXPECT_EQ(cim_g_slist_length(list_), 1u);
}

TEST_F(ParentsOfAMember, RawAliasesAreWholeCopiesOfThoseThatHoldIt) {
  const Bytes first = alias_entry(5, 3, "first", {1});
  const Bytes second = alias_entry(5, 4, "second", {1});
  Script script;
  script.expect(read_all_aliases(5, 1)).gives({first, second});
  expect_fcid(script, 1, kInAlias, 3, 1, 0x02);
  expect_fcid(script, 1, kInAlias, 4, 1, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents(kQueue, 5, 1, kWanted, &list_), 0);
  ASSERT_EQ(cim_g_slist_length(list_), 1u);
  EXPECT_EQ(element(0, 344), second);
}

TEST_F(ParentsOfAMember, AreFoundInAnyCaseOfTheLetters) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "zone", {.members = {1}})});
  expect_fcid(script, 1, kInZone, 3, 1, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, "5^3^0A0B01^1", &list_), 0);
  EXPECT_EQ(cim_g_slist_length(list_), 1u);
}

TEST_F(ParentsOfAMember, AreSearchedInTheDatabaseThatTheCallerNames) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone_entry(5, 3, "zone", {.members = {1}})});
  // The instance id of a member of the full database ends in 0.
  expect_fcid(script, 0, kInZone, 3, 1, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 0, kWanted, &list_), 0);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(ParentsOfAMember, AreAppendedToTheCallersList) {
  list_ = cim_g_slist_append_str(list_, "before");
  const Bytes entry = zone_entry(5, 3, "zone", {.members = {1}});
  Script script;
  script.expect(read_all_zones(5, 1)).gives({entry});
  expect_fcid(script, 1, kInZone, 3, 1, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, &list_), 0);
  ASSERT_EQ(cim_g_slist_length(list_), 2u);
  EXPECT_STREQ(static_cast<const char*>(cim_g_slist_nth_data(list_, 0)), "before");
  EXPECT_EQ(element(1, 872), entry);
}

TEST_F(ParentsOfAMember, AreNoneWithoutZonesOrWhereTheyCannotBeRead) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives_nothing();
  script.expect(read_all_zones(5, 1)).fails(7);
  script.expect(read_all_zones(5, 1)).fails_with_reply(7, zone_entry(5, 3, "zone")).count(1);
  script.expect(read_all_aliases(5, 1)).gives_nothing();
  script.expect(read_all_aliases(5, 1)).fails(7);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, &list_), 0);
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents(kQueue, 5, 1, kWanted, &list_), 0);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(ParentsOfAMember, AreFoundThoughOtherMembersCannotBeRead) {
  Script script;
  script.expect(read_all_zones(5, 1)).gives({zone_entry(5, 3, "zone", {.members = {1, 2, 3}})});
  script.expect(read_member(5, 1, kInZone, 3, 1)).fails(7);
  script.expect(read_member(5, 1, kInZone, 3, 2)).gives_nothing();
  expect_fcid(script, 1, kInZone, 3, 3, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, &list_), 0);
  EXPECT_EQ(cim_g_slist_length(list_), 1u);
}

TEST_F(ParentsOfAMember, WithoutAnIdOrAListAskNobody) {
  Script script;
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, nullptr, &list_), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents(kQueue, 5, 1, kWanted, nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents(kQueue, 5, 1, nullptr, &list_), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents(kQueue, 5, 1, kWanted, nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, nullptr, &list_), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, kWanted, nullptr), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, nullptr, &list_), -1);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, kWanted, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

// A zone server whose zones or aliases 3, 4 and 5 each have the member as their only one.
ZoneReadResponse three_parents(const ZoneReadRequest& request) {
  if (request.function == "zs_cmi_get_all_zones_in_vsan")
    return {
        0, 3,
        joined({zone_entry(8, 3, "a", {.members = {1}}), zone_entry(8, 4, "b", {.members = {1}}, 1),
                zone_entry(8, 5, "c", {.members = {1}})})};
  if (request.function == "zs_cmi_get_all_aliases_in_vsan")
    return {0, 3,
            joined({alias_entry(8, 3, "a", {1}), alias_entry(8, 4, "b", {1}),
                    alias_entry(8, 5, "c", {1})})};
  return {0, 1, member_entry(3, fcid(0x01))};
}

TEST_F(ParentsOfAMember, WithoutMemoryForACopyFail) {
  for (auto get :
       {zs_cim_get_zone_member_zone_parents, zs_cim_get_zone_member_zone_alias_parents}) {
    for_every_failing_allocation([&](FailingAllocation& failing) {
      ZoneReadResponder zone_server(three_parents);
      const int32_t result = failing.attempt([&] { return get(kQueue, 5, 1, kWanted, &list_); });
      // The record of a member, which is then left out, and the copy of its parent take turns.
      const bool member = failing.n() % 2 == 1;
      EXPECT_EQ(result, failing.was_hit() && !member ? -1 : 0) << failing.n();
      EXPECT_EQ(cim_g_slist_length(list_), result != 0 ? 0u : failing.was_hit() ? 2u : 3u);
      release();
    });
  }
}

TEST_F(ParentsOfAMember, ZoneRecordsComeLastFirst) {
  ZoneReadResponder zone_server(three_parents);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, kWanted, &list_), 0);
  // The VSAN is that of the entries.
  EXPECT_EQ(ids<zs_cim_zone_>(), "8_5_1 8_4_1 8_3_1");
  const auto* middle = static_cast<const zs_cim_zone_*>(cim_g_slist_nth_data(list_, 1));
  EXPECT_STREQ(middle->name, "b");
  EXPECT_EQ(middle->read_only, 1);
  EXPECT_EQ(middle->active, 1);
  EXPECT_EQ(middle->next, nullptr);
}

TEST_F(ParentsOfAMember, AliasRecordsComeLastFirst) {
  ZoneReadResponder zone_server(three_parents);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, kWanted, &list_), 0);
  EXPECT_EQ(ids<zs_cim_alias_>(), "8_5_1 8_4_1 8_3_1");
}

TEST_F(ParentsOfAMember, RecordsAreSearchedInTheVsanAndDatabaseOfTheId) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone_entry(5, 3, "zone", {.members = {1}})});
  expect_fcid(script, 0, kInZone, 3, 1, 0x01);
  script.expect(read_all_aliases(5, 0)).gives({alias_entry(5, 3, "alias", {1})});
  expect_fcid(script, 0, kInAlias, 3, 1, 0x01);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, "5^3^0a0b01^0", &list_), 0);
  EXPECT_EQ(ids<zs_cim_zone_>(), "5_3_0");
  release();
  EXPECT_EQ(
      zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, "5^3^0a0b01^0", &list_), 0);
  EXPECT_EQ(ids<zs_cim_alias_>(), "5_3_0");
}

TEST_F(ParentsOfAMember, RecordsAreAppendedToTheCallersList) {
  list_ = cim_g_slist_append_str(list_, "before");
  ZoneReadResponder zone_server(three_parents);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, kWanted, &list_), 0);
  EXPECT_EQ(cim_g_slist_length(list_), 4u);
  EXPECT_STREQ(static_cast<const char*>(cim_g_slist_nth_data(list_, 0)), "before");
  EXPECT_STREQ(static_cast<const zs_cim_zone_*>(cim_g_slist_nth_data(list_, 1))->instance_id,
               "8_5_1");
}

TEST_F(ParentsOfAMember, RecordsOfAnIdThatCannotBeReadAskNobody) {
  Script script;
  // A value that cannot be packed fails as well.
  for (const char* id :
       {"", "5^3", "5^3^0a0b01", "5^101^2041000DEC0A1B2C_0001020304050A0B^1", "5^4^0:5^1"}) {
    EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, id, &list_), -1);
    EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, id, &list_), -1);
  }
  EXPECT_EQ(list_, nullptr);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ParentsOfAMember, RecordsAreNoneWhereTheDatabaseCannotBeRead) {
  Script script;
  script.expect(read_all_zones(5, 1)).fails(7);
  script.expect(read_all_aliases(5, 1)).fails(7);
  EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, kWanted, &list_), 0);
  EXPECT_EQ(zs_cim_get_zone_member_zone_alias_parents_by_instance_id(kQueue, kWanted, &list_), 0);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(ParentsOfAMember, RecordsWithoutMemoryFailAndLeaveTheListAsItWas) {
  for (auto get : {zs_cim_get_zone_member_zone_parents_by_instance_id,
                   zs_cim_get_zone_member_zone_alias_parents_by_instance_id}) {
    for_every_failing_allocation([&](FailingAllocation& failing) {
      ZoneReadResponder zone_server(three_parents);
      const int32_t result = failing.attempt([&] { return get(kQueue, kWanted, &list_); });
      // The record of a member and the copy of its parent take turns; then the three records.
      const bool member = failing.n() <= 6 && failing.n() % 2 == 1;
      EXPECT_EQ(result, failing.was_hit() && !member ? -1 : 0) << failing.n();
      EXPECT_EQ(cim_g_slist_length(list_), result != 0 ? 0u : failing.was_hit() ? 2u : 3u);
      release();
    });
  }
}

TEST_F(ParentsOfAMember, EveryFailingExchangeLeavesOutOne) {
  for_every_failing_exchange([this](FailingExchange& failing) {
    Script script;
    script.expect(read_all_zones(5, 1))
        .gives({zone_entry(5, 3, "a", {.members = {1}}), zone_entry(5, 4, "b", {.members = {1}})});
    expect_fcid(script, 1, kInZone, 3, 1, 0x01);
    expect_fcid(script, 1, kInZone, 4, 1, 0x01);
    EXPECT_EQ(zs_cim_get_zone_member_zone_parents_by_instance_id(kQueue, kWanted, &list_), 0);
    const char* const expected[] = {"", "5_4_1", "5_4_1", "5_3_1", "5_3_1", "5_4_1 5_3_1"};
    ASSERT_LE(failing.n(), 6u);
    EXPECT_EQ(ids<zs_cim_zone_>(), expected[failing.n() - 1]);
    release();
  });
}

}  // namespace
