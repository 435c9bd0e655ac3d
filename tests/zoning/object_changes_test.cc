// Zone sets, zones and aliases: created, deleted, put into each other, activated, distributed; and
// the default policy.
#include <cim_utils/zoning_changes.h>

#include <cstdlib>
#include <cstring>

#include "tests/support/double_zone_server.h"
#include "tests/zoning/zoning_fixture.h"

using namespace test_support;

namespace {

constexpr int32_t kUntouched = 4711;

// The zone server's entries of one object in VSAN 5.
Record zone_set_entry(uint32_t id, const char* name) {
  return Record(1344).host32(0, 5).host32(4, id).text(16, name);
}
Record zone_entry(uint32_t id, const char* name) {
  return Record(872).host32(0, 5).host32(4, id).text(16, name);
}
Record alias_entry(uint32_t id, const char* name) {
  return Record(344).host32(0, 5).host32(4, id).text(16, name);
}

// A result and the error that came with it.
struct Outcome {
  int32_t result;
  int32_t error;
  bool operator==(const Outcome&) const = default;
  friend void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << outcome.result << ", error " << outcome.error;
  }
};

const Outcome kDone = {0, kUntouched};

template <class Change, class... Arguments>
Outcome outcome_of(Change change, Arguments... arguments) {
  Outcome outcome{0, kUntouched};
  outcome.result = change(kQueue, arguments..., &outcome.error);
  return outcome;
}

// ---- Creation and deletion

class ZoningObjects : public zoning_test::ZoningFixture {
 protected:
  Outcome create(int32_t operation, zs_object_kind kind, const char* name) {
    record_ = this;  // what is null afterwards was made so
    return outcome_of(zs_cim_create_zoning_object, operation, 5u, kind, name, &record_);
  }
  Outcome create_by_id(int32_t operation, zs_object_kind kind, uint32_t id) {
    record_ = this;
    return outcome_of(zs_cim_create_zoning_object_with_id, operation, 5u, kind, id, &record_);
  }
  template <class Record>
  const Record& created() {
    return *static_cast<const Record*>(record_);
  }
  void* record_ = nullptr;
};

TEST_F(ZoningObjects, ANewZoneIsCreatedAndReadBackFromTheFullDatabase) {
  Script script;
  script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0);
  script.expect(query_id_for_name(5, 0, "zone-a")).gives(17);
  script.expect(read_zone(5, 0, 17)).gives({zone_entry(17, "zone-a").host32(604, 1)});
  EXPECT_EQ(create(1, ZS_OBJECT_ZONE, "zone-a"), kDone);
  ASSERT_NE(record_, nullptr);
  EXPECT_STREQ(created<zs_cim_zone_>().instance_id, "5_17_0");
  EXPECT_STREQ(created<zs_cim_zone_>().name, "zone-a");
  EXPECT_EQ(created<zs_cim_zone_>().vsan_id, 5u);
  EXPECT_EQ(created<zs_cim_zone_>().read_only, 1);
  EXPECT_EQ(created<zs_cim_zone_>().active, 0);
  EXPECT_EQ(created<zs_cim_zone_>().next, nullptr);
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, ANewZoneSetIsCreatedAndReadBack) {
  Script script;
  script.expect(create_zoning_object(1, 5, 1, "set-a")).returns(0);
  script.expect(query_id_for_name(5, 1, "set-a")).gives(3);
  script.expect(read_zone_set(5, 0, 3)).gives({zone_set_entry(3, "set-a")});
  EXPECT_EQ(create(1, ZS_OBJECT_ZONE_SET, "set-a"), kDone);
  ASSERT_NE(record_, nullptr);
  EXPECT_STREQ(created<zs_cim_zone_set_>().instance_id, "5_3_0");
  EXPECT_STREQ(created<zs_cim_zone_set_>().name, "set-a");
  EXPECT_EQ(created<zs_cim_zone_set_>().active, 0);
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, ANewAliasIsCreatedAndReadBack) {
  Script script;
  script.expect(create_zoning_object(1, 5, 2, "alias-a")).returns(0);
  script.expect(query_id_for_name(5, 2, "alias-a")).gives(9);
  script.expect(read_alias(5, 0, 9)).gives({alias_entry(9, "alias-a")});
  EXPECT_EQ(create(1, ZS_OBJECT_ALIAS, "alias-a"), kDone);
  ASSERT_NE(record_, nullptr);
  EXPECT_STREQ(created<zs_cim_alias_>().instance_id, "5_9_0");
  EXPECT_STREQ(created<zs_cim_alias_>().name, "alias-a");
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, AnyOperationButZeroIsPassedOnAndReadsBack) {
  Script script;
  script.expect(create_zoning_object(-7, 5, 1, "set-a")).returns(0);
  script.expect(query_id_for_name(5, 1, "set-a")).gives(3);
  script.expect(read_zone_set(5, 0, 3)).gives({zone_set_entry(3, "set-a")});
  EXPECT_EQ(create(-7, ZS_OBJECT_ZONE_SET, "set-a"), kDone);
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, ADeletionEndsWithTheZoneServersStep) {
  Script script;
  script.expect(create_zoning_object(0, 5, 1, "set-a")).returns(0);
  EXPECT_EQ(create(0, ZS_OBJECT_ZONE_SET, "set-a"), kDone);
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, ADeletionNeedsNoPlaceForARecord) {
  Script script;
  script.expect(create_zoning_object(0, 5, 1, "set-a")).returns(0);
  script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
  script.expect(create_zoning_object(0, 5, 2, "alias-a")).returns(0x40200016);
  EXPECT_EQ(outcome_of(zs_cim_create_zoning_object, 0, 5u, ZS_OBJECT_ZONE_SET, "set-a", nullptr),
            kDone);
  EXPECT_EQ(outcome_of(zs_cim_create_zoning_object_with_id, 0, 5u, ZS_OBJECT_ALIAS, 9u, nullptr),
            (Outcome{-1, 0x40200016}));
}

// Every call gets zeros, also where the one in front of it wrote into its own.
TEST_F(ZoningObjects, EveryCallOfACreationHasAContextOfZeros) {
  Script script;
  script.expect(create_zoning_object(1, 5, 1, "set-a")).uses_its_context().returns(0);
  script.expect(query_id_for_name(5, 1, "set-a")).gives(3);
  script.expect(read_zone_set(5, 0, 3)).gives({zone_set_entry(3, "set-a")});
  EXPECT_EQ(create(1, ZS_OBJECT_ZONE_SET, "set-a"), kDone);
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, ARefusedCreationTellsTheZoneServersResult) {
  Script script;
  script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0x40200011);
  script.expect(create_zoning_object(0, 5, 0, "zone-a")).returns(0x40200012);
  EXPECT_EQ(create(1, ZS_OBJECT_ZONE, "zone-a"), (Outcome{-1, 0x40200011}));
  EXPECT_EQ(record_, nullptr);
  EXPECT_EQ(create(0, ZS_OBJECT_ZONE, "zone-a"), (Outcome{-1, 0x40200012}));
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, ANewObjectWhoseIdIsNotFoundStaysCreatedButIsAFailure) {
  Script script;
  script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0);
  script.expect(query_id_for_name(5, 0, "zone-a")).fails(0x40200013);
  EXPECT_EQ(create(1, ZS_OBJECT_ZONE, "zone-a"), (Outcome{-1, 0x40200013}));
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, ANewObjectThatIsNotReadBackStaysCreatedButIsAFailure) {
  Script script;
  for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ZONE_SET, ZS_OBJECT_ALIAS}) {
    script.expect(create_zoning_object(1, 5, kind, "a")).returns(0);
    script.expect(query_id_for_name(5, kind, "a")).gives(17);
    if (kind == ZS_OBJECT_ZONE) script.expect(read_zone(5, 0, 17)).fails(0x40200014);
    if (kind == ZS_OBJECT_ZONE_SET) script.expect(read_zone_set(5, 0, 17)).fails(0x40200014);
    if (kind == ZS_OBJECT_ALIAS) script.expect(read_alias(5, 0, 17)).fails(0x40200014);
    EXPECT_EQ(create(1, kind, "a"), (Outcome{-1, 0x40200014})) << kind;
    EXPECT_EQ(record_, nullptr);
  }
}

TEST_F(ZoningObjects, ANewObjectThatIsGoneWhenItIsReadBackIsAFailure) {
  Script script;
  for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ZONE_SET, ZS_OBJECT_ALIAS}) {
    script.expect(create_zoning_object(1, 5, kind, "a")).returns(0);
    script.expect(query_id_for_name(5, kind, "a")).gives(17);
    if (kind == ZS_OBJECT_ZONE) script.expect(read_zone(5, 0, 17)).gives_nothing();
    if (kind == ZS_OBJECT_ZONE_SET) script.expect(read_zone_set(5, 0, 17)).gives_nothing();
    if (kind == ZS_OBJECT_ALIAS) script.expect(read_alias(5, 0, 17)).gives_nothing();
    EXPECT_EQ(create(1, kind, "a"), (Outcome{-1, -1})) << kind;
    EXPECT_EQ(record_, nullptr);
  }
}

TEST_F(ZoningObjects, AnObjectOfAnotherKindIsSentButCannotBeReadBack) {
  Script script;
  script.expect(create_zoning_object(1, 5, 3, "a")).returns(0);
  script.expect(query_id_for_name(5, 3, "a")).gives(17);
  EXPECT_EQ(create(1, static_cast<zs_object_kind>(3), "a"), (Outcome{-1, -1}));
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, AnObjectIsDeletedByItsId) {
  Script script;
  script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
  script.expect(create_zoning_object(0, 5, 2, "alias-a")).returns(0);
  EXPECT_EQ(create_by_id(0, ZS_OBJECT_ALIAS, 9), kDone);
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, AnObjectIsCreatedAgainByItsId) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0);
  script.expect(query_id_for_name(5, 0, "zone-a")).gives(17);
  script.expect(read_zone(5, 0, 17)).gives({zone_entry(17, "zone-a")});
  EXPECT_EQ(create_by_id(1, ZS_OBJECT_ZONE, 17), kDone);
  ASSERT_NE(record_, nullptr);
  ledger_.release_by_caller(record_);
}

TEST_F(ZoningObjects, AnUnknownIdChangesNothing) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).fails(0x40200015);
  EXPECT_EQ(create_by_id(0, ZS_OBJECT_ZONE, 17), (Outcome{-1, 0x40200015}));
  EXPECT_EQ(record_, nullptr);
}

TEST_F(ZoningObjects, ARefusedDeletionByIdTellsTheZoneServersResult) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(create_zoning_object(0, 5, 0, "zone-a")).returns(0x40200016);
  EXPECT_EQ(create_by_id(0, ZS_OBJECT_ZONE, 17), (Outcome{-1, 0x40200016}));
}

TEST_F(ZoningObjects, TheLongestNameIsPassedOnWhole) {
  const std::string name(67, 'n');
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives(name.c_str());
  script.expect(create_zoning_object(0, 5, 0, name.c_str())).returns(0);
  EXPECT_EQ(create_by_id(0, ZS_OBJECT_ZONE, 17), kDone);
}

TEST_F(ZoningObjects, NullArgumentsAskNothing) {
  int32_t error = kUntouched;
  void* record = nullptr;
  EXPECT_EQ(zs_cim_create_zoning_object(kQueue, 1, 5, ZS_OBJECT_ZONE, nullptr, &record, &error),
            -1);
  EXPECT_EQ(error, -1);
  error = kUntouched;
  EXPECT_EQ(zs_cim_create_zoning_object(kQueue, 1, 5, ZS_OBJECT_ZONE, "a", nullptr, &error), -1);
  EXPECT_EQ(error, -1);
  error = kUntouched;
  EXPECT_EQ(zs_cim_create_zoning_object_with_id(kQueue, 1, 5, ZS_OBJECT_ZONE, 1, nullptr, &error),
            -1);
  EXPECT_EQ(error, -1);
}

TEST_F(ZoningObjects, NobodyNeedsToWantTheError) {
  Script script;
  script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0x40200011);
  void* record = nullptr;
  EXPECT_EQ(zs_cim_create_zoning_object(kQueue, 1, 5, ZS_OBJECT_ZONE, "zone-a", &record, nullptr),
            -1);
}

TEST_F(ZoningObjects, EveryFailingCallOfACreationByIdIsAFailure) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    Script script;
    script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
    script.expect(create_zoning_object(1, 5, 0, "zone-a")).returns(0);
    script.expect(query_id_for_name(5, 0, "zone-a")).gives(17);
    script.expect(read_zone(5, 0, 17)).gives({zone_entry(17, "zone-a")});
    void* record = nullptr;
    int32_t error = kUntouched;
    const int32_t result =
        zs_cim_create_zoning_object_with_id(kQueue, 1, 5, ZS_OBJECT_ZONE, 17, &record, &error);
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
    EXPECT_EQ(error, failing.was_hit() ? -1 : kUntouched);
    EXPECT_EQ(record == nullptr, failing.was_hit());
    std::free(record);
  });
  EXPECT_EQ(rounds, 5u);
}

TEST_F(ZoningObjects, EveryFailingAllocationOfACreationIsAFailure) {
  for (const zs_object_kind kind : {ZS_OBJECT_ZONE, ZS_OBJECT_ZONE_SET, ZS_OBJECT_ALIAS}) {
    const size_t rounds = for_every_failing_allocation([kind](FailingAllocation& failing) {
      Script script;
      script.expect(create_zoning_object(1, 5, kind, "a")).returns(0);
      script.expect(query_id_for_name(5, kind, "a")).gives(17);
      if (kind == ZS_OBJECT_ZONE) script.expect(read_zone(5, 0, 17)).gives({zone_entry(17, "a")});
      if (kind == ZS_OBJECT_ZONE_SET) {
        script.expect(read_zone_set(5, 0, 17)).gives({zone_set_entry(17, "a")});
      }
      if (kind == ZS_OBJECT_ALIAS)
        script.expect(read_alias(5, 0, 17)).gives({alias_entry(17, "a")});
      void* record = nullptr;
      int32_t error = kUntouched;
      const int32_t result = failing.attempt(
          [&] { return zs_cim_create_zoning_object(kQueue, 1, 5, kind, "a", &record, &error); });
      EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
      EXPECT_EQ(error, failing.was_hit() ? -1 : kUntouched);
      EXPECT_EQ(record == nullptr, failing.was_hit());
      std::free(record);
    });
    EXPECT_GE(rounds, 2u);
  }
}

// ---- Relations

class ZoningRelations : public zoning_test::ZoningFixture {};

TEST_F(ZoningRelations, AZoneGoesIntoAZoneSetByTheirNames) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_zone_to_zone_set(1, 5, "set-a", "zone-a")).returns(0);
  EXPECT_EQ(outcome_of(zs_cim_add_zone_to_zone_set, 1, 5u, 3u, 17u), kDone);
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoningRelations, AZoneIsTakenOutOfAZoneSet) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_zone_to_zone_set(0, 5, "set-a", "zone-a")).returns(0);
  EXPECT_EQ(outcome_of(zs_cim_add_zone_to_zone_set, 0, 5u, 3u, 17u), kDone);
}

TEST_F(ZoningRelations, AZoneSetOrZoneWithoutANameChangesNothing) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).fails(0x40200021);
  EXPECT_EQ(outcome_of(zs_cim_add_zone_to_zone_set, 1, 5u, 3u, 17u), (Outcome{-1, 0x40200021}));
  script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
  script.expect(query_name_for_id(5, 0, 17)).fails(0x40200022);
  EXPECT_EQ(outcome_of(zs_cim_add_zone_to_zone_set, 1, 5u, 3u, 17u), (Outcome{-1, 0x40200022}));
}

TEST_F(ZoningRelations, ARefusedZoneTellsTheZoneServersResult) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_zone_to_zone_set(1, 5, "set-a", "zone-a")).returns(0x40200023);
  EXPECT_EQ(outcome_of(zs_cim_add_zone_to_zone_set, 1, 5u, 3u, 17u), (Outcome{-1, 0x40200023}));
}

TEST_F(ZoningRelations, AnAliasGoesIntoAZoneByTheirNames) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
  script.expect(add_alias_to_zone(1, 5, "zone-a", "alias-a")).returns(0);
  EXPECT_EQ(outcome_of(zs_cim_add_alias_to_zone, 1, 5u, 17u, 9u), kDone);
}

TEST_F(ZoningRelations, AnAliasIsTakenOutOfAZone) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
  script.expect(add_alias_to_zone(0, 5, "zone-a", "alias-a")).returns(0);
  EXPECT_EQ(outcome_of(zs_cim_add_alias_to_zone, 0, 5u, 17u, 9u), kDone);
}

TEST_F(ZoningRelations, AZoneOrAliasWithoutANameChangesNothing) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).fails(0x40200024);
  EXPECT_EQ(outcome_of(zs_cim_add_alias_to_zone, 1, 5u, 17u, 9u), (Outcome{-1, 0x40200024}));
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(query_name_for_id(5, 2, 9)).fails(0x40200025);
  EXPECT_EQ(outcome_of(zs_cim_add_alias_to_zone, 1, 5u, 17u, 9u), (Outcome{-1, 0x40200025}));
}

TEST_F(ZoningRelations, ARefusedAliasTellsTheZoneServersResult) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
  script.expect(add_alias_to_zone(1, 5, "zone-a", "alias-a")).returns(0x40200026);
  EXPECT_EQ(outcome_of(zs_cim_add_alias_to_zone, 1, 5u, 17u, 9u), (Outcome{-1, 0x40200026}));
}

TEST_F(ZoningRelations, EveryFailingCallIsAFailure) {
  EXPECT_EQ(for_every_failing_exchange([](FailingExchange& failing) {
              Script script;
              script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
              script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
              script.expect(add_zone_to_zone_set(1, 5, "set-a", "zone-a")).returns(0);
              const Outcome outcome = outcome_of(zs_cim_add_zone_to_zone_set, 1, 5u, 3u, 17u);
              EXPECT_EQ(outcome, failing.was_hit() ? (Outcome{-1, -1}) : kDone);
            }),
            4u);
  EXPECT_EQ(for_every_failing_exchange([](FailingExchange& failing) {
              Script script;
              script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
              script.expect(query_name_for_id(5, 2, 9)).gives("alias-a");
              script.expect(add_alias_to_zone(1, 5, "zone-a", "alias-a")).returns(0);
              const Outcome outcome = outcome_of(zs_cim_add_alias_to_zone, 1, 5u, 17u, 9u);
              EXPECT_EQ(outcome, failing.was_hit() ? (Outcome{-1, -1}) : kDone);
            }),
            4u);
}

// ---- Activation

class ZoneSetActivation : public zoning_test::ZoningFixture {
 protected:
  static Outcome activate(int32_t active, int32_t operation) {
    return outcome_of(zs_cim_activate_zone_set, 5u, active, 3u, &operation);
  }
};

TEST_F(ZoneSetActivation, GoesByTheNameInTheDatabaseThatTheFlagNames) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
  script.expect(activate_zone_set(1, 5, "set-a")).returns(0);
  script.expect(query_name_for_id(5, 1, 3).active(1)).gives("set-b");
  script.expect(activate_zone_set(0, 5, "set-b")).returns(0);
  EXPECT_EQ(activate(0, 1), kDone);
  EXPECT_EQ(activate(1, 0), kDone);
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneSetActivation, TwoOtherResultsAreSuccessesToo) {
  Script script;
  for (const int32_t result : {0x40200038, 0x40200039}) {
    script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
    script.expect(activate_zone_set(1, 5, "set-a")).returns(result);
    EXPECT_EQ(activate(0, 1), kDone) << result;
  }
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneSetActivation, AnyOtherResultIsStoredAndSaid) {
  Script script;
  for (const int32_t result : {0x40200037, 0x4020003a, 1, -1, 0x40200079}) {
    script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
    script.expect(activate_zone_set(1, 5, "set-a")).returns(result);
    EXPECT_EQ(activate(0, 1), (Outcome{-1, result}));
    EXPECT_EQ(printed(), "zs_cim_activate_zone_set : Error Code Set and Returned\n");
  }
}

TEST_F(ZoneSetActivation, AnUnknownZoneSetIsErrorOneAndSaidTwice) {
  Script script;
  script.expect(query_name_for_id(5, 1, 3)).fails(0x40200015);
  EXPECT_EQ(activate(0, 1), (Outcome{-1, 1}));
  EXPECT_EQ(printed(), "Invalid Zone Setzs_cim_activate_zone_set : Invalid Zone Set\n");
}

TEST_F(ZoneSetActivation, WithoutAnOperationNothingIsAsked) {
  EXPECT_EQ(outcome_of(zs_cim_activate_zone_set, 5u, 0, 3u, nullptr), (Outcome{-1, -1}));
}

TEST_F(ZoneSetActivation, EveryFailingCallIsAFailure) {
  EXPECT_EQ(for_every_failing_exchange([](FailingExchange& failing) {
              Script script;
              script.expect(query_name_for_id(5, 1, 3)).gives("set-a");
              script.expect(activate_zone_set(1, 5, "set-a")).returns(0);
              const Outcome outcome = activate(0, 1);
              EXPECT_EQ(outcome.result, failing.was_hit() ? -1 : 0);
            }),
            3u);
}

// ---- Distribution

class ZoneSetDistribution : public zoning_test::ZoningFixture {
 protected:
  static Outcome distribute() { return outcome_of(zs_cim_distribute_zone_set, 5u); }
};

TEST_F(ZoneSetDistribution, AnAcceptedOneLeavesTheErrorAlone) {
  Script script;
  script.expect(distribute_zone_set(5)).returns(0x40200079);
  EXPECT_EQ(distribute(), (Outcome{0, kUntouched}));
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneSetDistribution, ZeroIsASuccessThatIsStored) {
  Script script;
  script.expect(distribute_zone_set(5)).returns(0);
  EXPECT_EQ(distribute(), (Outcome{0, 0}));
}

TEST_F(ZoneSetDistribution, OneResultIs145AndTracedWithItsText) {
  Script script;
  script.text_for("syserr2str", 0x40200091, "no such thing");
  script.expect(distribute_zone_set(5)).returns(0x40200091);
  EXPECT_EQ(distribute(), (Outcome{145, 0x40200091}));
  EXPECT_EQ(printed(), "no such thing\n");
}

TEST_F(ZoneSetDistribution, OfAnyOtherResultTheLow16BitsAreReturned) {
  Script script;
  script.expect(distribute_zone_set(5)).returns(0x40200078);
  script.expect(distribute_zone_set(5)).returns(0x4020ffff);
  script.expect(distribute_zone_set(5)).returns(0x40210000);
  script.expect(distribute_zone_set(5)).returns(-1);
  EXPECT_EQ(distribute(), (Outcome{0x78, 0x40200078}));
  EXPECT_EQ(distribute(), (Outcome{0xffff, 0x4020ffff}));
  EXPECT_EQ(distribute(), (Outcome{0, 0x40210000}));
  EXPECT_EQ(distribute(), (Outcome{0xffff, -1}));
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneSetDistribution, NobodyNeedsToWantTheError) {
  Script script;
  script.expect(distribute_zone_set(5)).returns(0x40200078);
  EXPECT_EQ(zs_cim_distribute_zone_set(kQueue, 5, nullptr), 0x78);
}

// ---- Default policy

class DefaultZoningState : public zoning_test::ZoningFixture {};

TEST_F(DefaultZoningState, IsTwoForPolicyOneAndThreeForAnyOther) {
  const Bytes policies = hex("11 22 33 44");
  for (const auto& [policy, state] :
       {std::pair(1u, 2), std::pair(0u, 3), std::pair(2u, 3), std::pair(0xffffffffu, 3)}) {
    Script script;
    script.expect(query_policies(5)).gives(policies);
    script.expect(read_policy(policies)).gives(policy);
    EXPECT_EQ(zs_cim_get_default_zoning_state(kQueue, 5), state) << policy;
  }
  EXPECT_EQ(printed(), "");
}

TEST_F(DefaultZoningState, IsZeroWithoutPolicies) {
  Script script;
  script.expect(query_policies(5)).fails(0x40200015);
  script.expect(query_policies(5)).gives_nothing();
  script.expect(query_policies(5)).fails_with_block(0x40200015, hex("11 22 33 44"));
  EXPECT_EQ(zs_cim_get_default_zoning_state(kQueue, 5), 0);
  EXPECT_EQ(zs_cim_get_default_zoning_state(kQueue, 5), 0);
  EXPECT_EQ(zs_cim_get_default_zoning_state(kQueue, 5), 0);
}

}  // namespace
