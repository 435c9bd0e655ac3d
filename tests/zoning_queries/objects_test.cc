// Zone sets, zones and aliases: one by its id, or all of a VSAN.
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/zoning_queries/entries.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

// What the three kinds of objects have in common: their functions, lines and entries.
struct ZoneSets {
  using Entry = zs_zone_set_entry_;
  using Record = zs_cim_zone_set_;
  static constexpr auto get = zs_cim_get_zone_set;
  static constexpr auto by_ids = zs_cim_get_zone_set_by_ids;
  static constexpr auto by_instance_id = zs_cim_get_zone_set_by_instance_id;
  static constexpr auto all_active = zs_cim_get_all_active_zone_sets;
  static constexpr auto all_non_active = zs_cim_get_all_non_active_zone_sets;
  static constexpr auto raw = zs_cim_get_cmi_zone_set;
  static constexpr auto convert = zs_cim_convert_cmi_zone_set_to_cim_zone_set;
  static constexpr auto read = read_zone_set;
  static constexpr auto read_all = read_all_zone_sets;
  static constexpr size_t kStride = 1344;
  static Bytes entry(uint32_t vsan, uint32_t id, std::string_view name) {
    return zone_set_entry(vsan, id, name, {1, 2});
  }
};

struct Zones {
  using Entry = zs_zone_entry_;
  using Record = zs_cim_zone_;
  static constexpr auto get = zs_cim_get_zone;
  static constexpr auto by_ids = zs_cim_get_zone_by_ids;
  static constexpr auto by_instance_id = zs_cim_get_zone_by_instance_id;
  static constexpr auto all_active = zs_cim_get_all_active_zones;
  static constexpr auto all_non_active = zs_cim_get_all_non_active_zones;
  static constexpr auto raw = zs_cim_get_cmi_zone;
  static constexpr auto convert = zs_cim_convert_cmi_zone_to_cim_zone;
  static constexpr auto read = read_zone;
  static constexpr auto read_all = read_all_zones;
  static constexpr size_t kStride = 872;
  static Bytes entry(uint32_t vsan, uint32_t id, std::string_view name) {
    return zone_entry(vsan, id, name, {.members = {1}, .aliases = {2}});
  }
};

struct Aliases {
  using Entry = zs_alias_entry_;
  using Record = zs_cim_alias_;
  static constexpr auto get = zs_cim_get_zone_alias;
  static constexpr auto by_ids = zs_cim_get_zone_alias_by_ids;
  static constexpr auto by_instance_id = zs_cim_get_zone_alias_by_instance_id;
  static constexpr auto all_active = zs_cim_get_all_active_zone_aliases;
  static constexpr auto all_non_active = zs_cim_get_all_non_active_zone_aliases;
  static constexpr auto raw = zs_cim_get_cmi_zone_alias;
  static constexpr auto convert = zs_cim_convert_cmi_zone_alias_to_cim_zone_alias;
  static constexpr auto read = read_alias;
  static constexpr auto read_all = read_all_aliases;
  static constexpr size_t kStride = 344;
  static Bytes entry(uint32_t vsan, uint32_t id, std::string_view name) {
    return alias_entry(vsan, id, name, {1});
  }
};

// Runs the test for each of the three kinds.
template <class Test>
void for_each_kind(Test test) {
  {
    SCOPED_TRACE("zone sets");
    test(ZoneSets());
  }
  {
    SCOPED_TRACE("zones");
    test(Zones());
  }
  {
    SCOPED_TRACE("aliases");
    test(Aliases());
  }
}

template <class Record>
void expect_object(const Record& record, const char* instance_id, const char* name, uint32_t vsan,
                   uint8_t active) {
  EXPECT_STREQ(record.instance_id, instance_id);
  EXPECT_STREQ(record.name, name);
  EXPECT_EQ(record.vsan_id, vsan);
  EXPECT_EQ(record.active, active);
  EXPECT_EQ(record.next, nullptr);
}

class ZoningObjects : public testing::Test {
 protected:
  TraceStack trace_stack_;
  HeapLedger ledger_;
  StdioCapture printed_;
};

TEST_F(ZoningObjects, OneIsReadByItsId) {
  for_each_kind([](auto kind) {
    Script script;
    // The record tells the VSAN that was asked for, not the entry's.
    script.expect(kind.read(5, 1, 12)).gives({kind.entry(77, 12, "alpha")});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = -7;
    EXPECT_EQ(kind.get(kQueue, 12, 5, 1, &count, &records), 0);
    ASSERT_EQ(count, 1);
    expect_object(records[0], "5_12_1", "alpha", 5, 1);
    free(records);
  });
}

TEST_F(ZoningObjects, TheIdOfTheRecordIsTheEntrys) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read(5, 0, 12)).gives({kind.entry(5, 13, "alpha")});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 12, 5, 0, &count, &records), 0);
    ASSERT_EQ(count, 1);
    EXPECT_STREQ(records[0].instance_id, "5_13_0");
    free(records);
  });
}

TEST_F(ZoningObjects, AllOfAVsanAreReadWithIdZero) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(4094, 0))
        .gives({kind.entry(1, 3, "first"), kind.entry(2, 8000, "second")});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 0, 4094, 0, &count, &records), 0);
    ASSERT_EQ(count, 2);
    expect_object(records[0], "4094_3_0", "first", 4094, 0);
    expect_object(records[1], "4094_8000_0", "second", 4094, 0);
    free(records);
  });
}

TEST_F(ZoningObjects, MoreThanTheAnnouncedNumberAreTaken) {
  for_each_kind([](auto kind) {
    Script script;
    std::vector<Bytes> entries;
    {
      HeapLedger::Pause pause;
      for (uint32_t id = 1; id <= 33; ++id)
        entries.push_back(kind.entry(1, id, "many"));
    }
    script.expect(kind.read_all(1, 1)).gives(entries);
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 0, 1, 1, &count, &records), 0);
    ASSERT_EQ(count, 33);
    EXPECT_STREQ(records[32].instance_id, "1_33_1");
    free(records);
    HeapLedger::Pause pause;
    entries = {};
  });
}

TEST_F(ZoningObjects, AVsanWithoutAnyGivesCountZeroAndNoArray) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(1, 1)).gives_nothing();
    script.expect(kind.read_all(1, 1)).returns(0).count(0);
    script.expect(kind.read_all(1, 1)).returns(0).count(-1);
    script.expect(kind.read_all(1, 1)).returns(0);  // the count stays 32, without a reply
    for (int i = 0; i < 4; ++i) {
      typename decltype(kind)::Record unused{};
      auto* records = &unused;
      int32_t count = -7;
      EXPECT_EQ(kind.get(kQueue, 0, 1, 1, &count, &records), 0);
      EXPECT_EQ(count, 0);
      EXPECT_EQ(records, nullptr);
    }
  });
}

TEST_F(ZoningObjects, TheZoneServersResultIsPassedOnWithoutAllocating) {
  for_each_kind([this](auto kind) {
    Script script;
    script.expect(kind.read(5, 1, 12)).fails(0x40200011);
    script.expect(kind.read_all(5, 1)).fails(-3);
    script.expect(kind.read(5, 1, 12)).fails_with_reply(17, kind.entry(5, 12, "alpha")).count(1);
    for (int32_t expected : {0x40200011, -3, 17}) {
      typename decltype(kind)::Record unused{};
      auto* records = &unused;
      int32_t count = -7;
      const size_t before = ledger_.allocations(Heap::c);
      EXPECT_EQ(kind.get(kQueue, expected == -3 ? 0 : 12, 5, 1, &count, &records), expected);
      EXPECT_EQ(ledger_.allocations(Heap::c), before);
      EXPECT_EQ(count, 0);
      EXPECT_EQ(records, nullptr);
    }
  });
}

TEST_F(ZoningObjects, TheActiveFlagGoesThroughUnchanged) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read(5, 3, 12)).gives({kind.entry(5, 12, "alpha")});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 12, 5, 3, &count, &records), 0);
    ASSERT_EQ(count, 1);
    expect_object(records[0], "5_12_3", "alpha", 5, 3);
    free(records);
  });
}

TEST_F(ZoningObjects, ByIdsIsTheSameWithoutTheCount) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read(5, 0, 12)).gives({kind.entry(5, 12, "alpha")});
    script.expect(kind.read(5, 0, 12)).fails(4);
    typename decltype(kind)::Record* records = nullptr;
    EXPECT_EQ(kind.by_ids(kQueue, 12, 5, 0, &records), 0);
    ASSERT_NE(records, nullptr);
    expect_object(records[0], "5_12_0", "alpha", 5, 0);
    free(records);
    EXPECT_EQ(kind.by_ids(kQueue, 12, 5, 0, &records), 4);
    EXPECT_EQ(records, nullptr);
  });
}

TEST_F(ZoningObjects, AnInstanceIdLeadsToItsDatabase) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read(5, 1, 12)).gives({kind.entry(5, 12, "in the active")});
    script.expect(kind.read(5, 0, 12)).gives({kind.entry(5, 12, "in the full")});
    script.expect(kind.read(5, 0, 12)).fails(9);
    typename decltype(kind)::Record* records = nullptr;
    EXPECT_EQ(kind.by_instance_id(kQueue, "5_12_1", &records), 0);
    ASSERT_NE(records, nullptr);
    expect_object(records[0], "5_12_1", "in the active", 5, 1);
    free(records);
    EXPECT_EQ(kind.by_instance_id(kQueue, "5_12_0", &records), 0);
    ASSERT_NE(records, nullptr);
    expect_object(records[0], "5_12_0", "in the full", 5, 0);
    free(records);
    EXPECT_EQ(kind.by_instance_id(kQueue, "5_12_0", &records), 9);
    EXPECT_EQ(records, nullptr);
  });
}

TEST_F(ZoningObjects, AnInstanceIdThatCannotBeReadAsksNobody) {
  for_each_kind([](auto kind) {
    Script script;
    for (const char* text : {"", "5", "5_12", "__", static_cast<const char*>(nullptr)}) {
      typename decltype(kind)::Record unused{};
      auto* records = &unused;
      EXPECT_EQ(kind.by_instance_id(kQueue, text, &records), -1);
      EXPECT_EQ(records, nullptr);
    }
    EXPECT_EQ(script.calls(), 0u);
  });
}

TEST_F(ZoningObjects, AllActiveAndAllNonActiveReadTheirDatabase) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(7, 1)).gives({kind.entry(7, 1, "active")});
    script.expect(kind.read_all(7, 0)).gives({kind.entry(7, 2, "full")});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.all_active(kQueue, 7, &count, &records), 0);
    ASSERT_EQ(count, 1);
    expect_object(records[0], "7_1_1", "active", 7, 1);
    free(records);
    EXPECT_EQ(kind.all_non_active(kQueue, 7, &count, &records), 0);
    ASSERT_EQ(count, 1);
    expect_object(records[0], "7_2_0", "full", 7, 0);
    free(records);
  });
}

TEST_F(ZoningObjects, AllActiveAndAllNonActivePassTheResultOn) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(7, 1)).fails(21);
    script.expect(kind.read_all(7, 0)).fails(22);
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 5;
    EXPECT_EQ(kind.all_active(kQueue, 7, &count, &records), 21);
    EXPECT_EQ(kind.all_non_active(kQueue, 7, &count, &records), 22);
    EXPECT_EQ(count, 0);
  });
}

TEST_F(ZoningObjects, TheEntryPointsWithoutArgumentsDoNothing) {
  Script script;
  EXPECT_EQ(zs_cim_get_all_zone_sets(), 0);
  EXPECT_EQ(zs_cim_get_all_zones(), 0);
  EXPECT_EQ(zs_cim_get_all_zone_aliases(), 0);
  EXPECT_EQ(script.calls(), 0u);
  EXPECT_EQ(printed_.out(), "");
}

TEST_F(ZoningObjects, AFailingAllocationIsAFailureAndFreesTheReply) {
  for_each_kind([](auto kind) {
    for_every_failing_allocation([&](FailingAllocation& failing) {
      Script script;
      script.expect(kind.read(5, 1, 12)).gives({kind.entry(5, 12, "alpha")});
      typename decltype(kind)::Record* records = nullptr;
      int32_t count = 3;
      const int32_t result =
          failing.attempt([&] { return kind.get(kQueue, 12, 5, 1, &count, &records); });
      EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
      EXPECT_EQ(count, failing.was_hit() ? 0 : 1);
      free(records);
    });
  });
}

TEST_F(ZoningObjects, EntriesThatTheReplyDoesNotHoldWholeAreNotCounted) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read(1, 1, 3)).gives({kind.entry(1, 3, "first")}).cut_to(kind.kStride - 1);
    script.expect(kind.read_all(1, 1))
        .gives({kind.entry(1, 3, "first"), kind.entry(1, 4, "second")})
        .cut_to(2 * kind.kStride - 1);
    script.expect(kind.read_all(1, 1)).gives({kind.entry(1, 3, "first")}).count(0x7fffffff);
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = -7;
    EXPECT_EQ(kind.get(kQueue, 3, 1, 1, &count, &records), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(records, nullptr);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(kind.get(kQueue, 0, 1, 1, &count, &records), 0);
      ASSERT_EQ(count, 1);
      EXPECT_STREQ(records[0].name, "first");
      free(records);
    }
  });
}

TEST_F(ZoningObjects, WithoutAPlaceForTheResultNobodyIsAsked) {
  for_each_kind([](auto kind) {
    Script script;
    typename decltype(kind)::Record* records = nullptr;
    typename decltype(kind)::Entry* entries = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 1, 1, 1, nullptr, &records), -1);
    EXPECT_EQ(kind.get(kQueue, 1, 1, 1, &count, nullptr), -1);
    EXPECT_EQ(kind.by_ids(kQueue, 1, 1, 1, nullptr), -1);
    EXPECT_EQ(kind.by_instance_id(kQueue, "1_1_1", nullptr), -1);
    EXPECT_EQ(kind.all_active(kQueue, 1, nullptr, &records), -1);
    EXPECT_EQ(kind.all_active(kQueue, 1, &count, nullptr), -1);
    EXPECT_EQ(kind.all_non_active(kQueue, 1, nullptr, &records), -1);
    EXPECT_EQ(kind.all_non_active(kQueue, 1, &count, nullptr), -1);
    EXPECT_EQ(kind.raw(kQueue, 1, 1, 1, nullptr, &entries), -1);
    EXPECT_EQ(kind.raw(kQueue, 1, 1, 1, &count, nullptr), -1);
    EXPECT_EQ(script.calls(), 0u);
  });
}

TEST_F(ZoningObjects, ANameOfTheWholeFieldIsCopiedWhole) {
  for_each_kind([](auto kind) {
    const char* name = "a23456789b23456789c23456789d23456789e23456789f23456789g23456789h2345678";
    static_assert(sizeof zs_cim_zone_::name == 68);
    Script script;
    script.expect(kind.read(1, 1, 3)).gives({kind.entry(1, 3, std::string_view(name, 68))});
    typename decltype(kind)::Record* records = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.get(kQueue, 3, 1, 1, &count, &records), 0);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(memcmp(records[0].name, name, 68), 0);
    EXPECT_EQ(records[0].vsan_id, 1u);
    free(records);
  });
}

// ---- What only zones have

TEST_F(ZoningObjects, AZoneIsReadOnlyByBitZeroOfItsAttributes) {
  Script script;
  script.expect(read_all_zones(1, 1))
      .gives({zone_entry(1, 1, "a", {}, 0), zone_entry(1, 2, "b", {}, 1),
              zone_entry(1, 3, "c", {}, 0xfffffffe), zone_entry(1, 4, "d", {}, 0x00000103)});
  zs_cim_zone_* zones = nullptr;
  int32_t count = 0;
  EXPECT_EQ(zs_cim_get_zone(kQueue, 0, 1, 1, &count, &zones), 0);
  ASSERT_EQ(count, 4);
  EXPECT_EQ(zones[0].read_only, 0);
  EXPECT_EQ(zones[1].read_only, 1);
  EXPECT_EQ(zones[2].read_only, 0);
  EXPECT_EQ(zones[3].read_only, 1);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(zones[i].zero_360, 0);
    EXPECT_EQ(zones[i].zero_362, 0);
  }
  free(zones);
}

TEST_F(ZoningObjects, TheActiveFlagOfAnAliasLiesWhereAZoneHasReadOnly) {
  Script script;
  script.expect(read_zone(1, 1, 3)).gives({zone_entry(1, 3, "a")});
  script.expect(read_alias(1, 1, 3)).gives({alias_entry(1, 3, "b")});
  zs_cim_zone_* zone = nullptr;
  zs_cim_alias_* alias = nullptr;
  EXPECT_EQ(zs_cim_get_zone_by_ids(kQueue, 3, 1, 1, &zone), 0);
  EXPECT_EQ(zs_cim_get_zone_alias_by_ids(kQueue, 3, 1, 1, &alias), 0);
  const auto* zone_bytes = reinterpret_cast<const uint8_t*>(zone);
  const auto* alias_bytes = reinterpret_cast<const uint8_t*>(alias);
  EXPECT_EQ(Bytes(zone_bytes + 364, zone_bytes + 366), hex("00 01"));
  EXPECT_EQ(Bytes(alias_bytes + 364, alias_bytes + 366), hex("01 00"));
  free(zone);
  free(alias);
}

// ---- The zone server's own entries

TEST_F(ZoningObjects, RawEntriesAreTheZoneServers) {
  for_each_kind([](auto kind) {
    const Bytes first = kind.entry(8, 3, "first");
    const Bytes second = kind.entry(9, 4, "second");
    Script script;
    script.expect(kind.read(5, 1, 3)).gives({first});
    script.expect(kind.read_all(5, 0)).gives({first, second});
    typename decltype(kind)::Entry* entries = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.raw(kQueue, 3, 5, 1, &count, &entries), 0);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(bytes_of(entries[0]), first);
    free(entries);
    EXPECT_EQ(kind.raw(kQueue, 0, 5, 0, &count, &entries), 0);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(bytes_of(entries[0]), first);
    EXPECT_EQ(bytes_of(entries[1]), second);
    free(entries);
  });
}

TEST_F(ZoningObjects, ARawReadPassesTheResultOnAndGivesNothing) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(5, 0)).fails(0x40200011);
    script.expect(kind.read_all(5, 0)).fails_with_reply(8, kind.entry(5, 3, "first")).count(1);
    for (int32_t expected : {0x40200011, 8}) {
      typename decltype(kind)::Entry unused{};
      auto* entries = &unused;
      int32_t count = -7;
      EXPECT_EQ(kind.raw(kQueue, 0, 5, 0, &count, &entries), expected);
      EXPECT_EQ(count, 0);
      EXPECT_EQ(entries, nullptr);
    }
  });
}

TEST_F(ZoningObjects, ARawReadCountsWhatTheReplyHolds) {
  for_each_kind([](auto kind) {
    Script script;
    script.expect(kind.read_all(5, 0)).gives({kind.entry(5, 3, "first")}).count(2);
    typename decltype(kind)::Entry* entries = nullptr;
    int32_t count = 0;
    EXPECT_EQ(kind.raw(kQueue, 0, 5, 0, &count, &entries), 0);
    EXPECT_EQ(count, 1);
    free(entries);
  });
}

TEST_F(ZoningObjects, TheRawReadOfZonesTracesTheirNumber) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone_entry(5, 3, "a"), zone_entry(5, 4, "b")});
  zs_zone_entry_* zones = nullptr;
  int32_t count = 0;
  EXPECT_EQ(zs_cim_get_cmi_zone(kQueue, 0, 5, 0, &count, &zones), 0);
  EXPECT_EQ(printed_.out(), " num_entries in zs_cim_get_cmi_zone 2 \n");
  free(zones);
}

TEST_F(ZoningObjects, TheRawReadsOfZoneSetsAndAliasesTraceNothing) {
  Script script;
  script.expect(read_all_zone_sets(5, 0)).gives_nothing();
  script.expect(read_all_aliases(5, 0)).gives_nothing();
  zs_zone_set_entry_* zone_sets = nullptr;
  zs_alias_entry_* aliases = nullptr;
  int32_t count = 0;
  EXPECT_EQ(zs_cim_get_cmi_zone_set(kQueue, 0, 5, 0, &count, &zone_sets), 0);
  EXPECT_EQ(zs_cim_get_cmi_zone_alias(kQueue, 0, 5, 0, &count, &aliases), 0);
  EXPECT_EQ(printed_.out(), "");
}

TEST_F(ZoningObjects, ConvertedEntriesKeepTheVsanOfEach) {
  for_each_kind([](auto kind) {
    Script script;
    const Bytes entries = joined({kind.entry(8, 3, "first"), kind.entry(9, 4, "second")});
    typename decltype(kind)::Record* records = nullptr;
    EXPECT_EQ(kind.convert(reinterpret_cast<const typename decltype(kind)::Entry*>(entries.data()),
                           &records, 1, 2),
              0);
    ASSERT_NE(records, nullptr);
    expect_object(records[0], "8_3_1", "first", 8, 1);
    expect_object(records[1], "9_4_1", "second", 9, 1);
    free(records);
    EXPECT_EQ(script.calls(), 0u);
  });
}

TEST_F(ZoningObjects, AConvertedZoneIsReadOnlyByItsAttributes) {
  const Bytes entry = zone_entry(8, 3, "first", {}, 1);
  zs_cim_zone_* zones = nullptr;
  EXPECT_EQ(zs_cim_convert_cmi_zone_to_cim_zone(
                reinterpret_cast<const zs_zone_entry_*>(entry.data()), &zones, 0, 1),
            0);
  ASSERT_NE(zones, nullptr);
  EXPECT_EQ(zones[0].read_only, 1);
  free(zones);
}

TEST_F(ZoningObjects, NoEntriesConvertToNoArray) {
  for_each_kind([](auto kind) {
    for (int32_t count : {0, -1, INT32_MIN}) {
      typename decltype(kind)::Record unused{};
      auto* records = &unused;
      EXPECT_EQ(kind.convert(nullptr, &records, 1, count), 0);
      EXPECT_EQ(records, nullptr);
    }
  });
}

TEST_F(ZoningObjects, AConversionWithoutMemoryIsAFailure) {
  for_each_kind([this](auto kind) {
    const Bytes entry = kind.entry(8, 3, "first");
    typename decltype(kind)::Record unused{};
    auto* records = &unused;
    ledger_.fail_nth(1, Heap::c);
    EXPECT_EQ(kind.convert(reinterpret_cast<const typename decltype(kind)::Entry*>(entry.data()),
                           &records, 1, 1),
              -1);
    EXPECT_TRUE(ledger_.failure_was_hit());
    EXPECT_EQ(records, nullptr);
  });
}

TEST_F(ZoningObjects, AConversionWithoutEntriesOrAPlaceForTheArrayIsAFailure) {
  for_each_kind([](auto kind) {
    const Bytes entry = kind.entry(8, 3, "first");
    typename decltype(kind)::Record* records = nullptr;
    EXPECT_EQ(kind.convert(nullptr, &records, 1, 1), -1);
    EXPECT_EQ(kind.convert(reinterpret_cast<const typename decltype(kind)::Entry*>(entry.data()),
                           nullptr, 1, 1),
              -1);
  });
}

}  // namespace
