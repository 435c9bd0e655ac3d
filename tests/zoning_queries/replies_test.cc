// Replies of every length and of many contents, for every query: nothing is read behind a reply,
// nothing is left behind, and no more is handed out than the reply holds.
#include <cim_utils/collections.h>
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/zoning_queries/chains.h"
#include "tests/zoning_queries/entries.h"
#include "tests/zoning_queries/traces_aside.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

constexpr size_t kZoneSetSize = 1344;
constexpr size_t kZoneSize = 872;
constexpr size_t kAliasSize = 344;
constexpr size_t kMemberSize = 24;

class ZoningReplies : public testing::Test {
 protected:
  // The number of entries that is told with the reply of that pattern: the true one, or another.
  static int32_t announced(unsigned number) {
    return number % 3 == 0 ? 2 : static_cast<int32_t>(number * 0x01010101U);
  }

  const TracesAside aside_;
  HeapLedger ledger_;
};

// Every length from 0 to an entry and 8 bytes more; of those that hold no entry, whose contents
// nobody looks at, with a few of the patterns only.
template <class Entry, class Record>
void sweep_objects(size_t size,
                   int32_t (*get)(int32_t, uint32_t, uint32_t, int32_t, int32_t*, Record**),
                   int32_t (*get_raw)(int32_t, uint32_t, uint32_t, int32_t, int32_t*, Entry**),
                   int32_t (*announced)(unsigned)) {
  Bytes reply;
  int32_t told = 0;
  ZoneReadResponder zone_server([&](const ZoneReadRequest&) {
    const HeapLedger::Pause pause;
    return ZoneReadResponse{0, told, reply};
  });
  for (unsigned number = 0; number < kPatterns; ++number) {
    const Bytes whole = pattern(number, size + 8);
    told = announced(number);
    for (size_t length = number < 4 ? 0 : size - 1; length <= size + 8; ++length) {
      reply.assign(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length));
      const int32_t held = told > 0 && length >= size ? 1 : 0;
      Record* records = nullptr;
      Entry* entries = nullptr;
      int32_t count = -7;
      ASSERT_EQ(get(kQueue, number % 2, 5, 1, &count, &records), 0);
      ASSERT_EQ(count, held) << number << ", " << length;
      ASSERT_EQ(records != nullptr, held != 0);
      if (held != 0) {
        ASSERT_EQ(Bytes(records->name, records->name + 68),
                  Bytes(whole.begin() + 16, whole.begin() + 84));
      }
      free(records);
      ASSERT_EQ(get_raw(kQueue, number % 2, 5, 1, &count, &entries), 0);
      ASSERT_EQ(count, held) << number << ", " << length;
      free(entries);
    }
  }
}

TEST_F(ZoningReplies, OfZoneSetsAreReadAsFarAsTheyGo) {
  sweep_objects(kZoneSetSize, zs_cim_get_zone_set, zs_cim_get_cmi_zone_set, announced);
}

TEST_F(ZoningReplies, OfZonesAreReadAsFarAsTheyGo) {
  sweep_objects(kZoneSize, zs_cim_get_zone, zs_cim_get_cmi_zone, announced);
}

TEST_F(ZoningReplies, OfAliasesAreReadAsFarAsTheyGo) {
  sweep_objects(kAliasSize, zs_cim_get_zone_alias, zs_cim_get_cmi_zone_alias, announced);
}

// ---- Queries of more than one reply

size_t size_of_entry(const std::string& function) {
  if (function.find("zone_set") != std::string::npos) return kZoneSetSize;
  if (function.find("alias") != std::string::npos) return kAliasSize;
  if (function.find("member") != std::string::npos) return kMemberSize + 256;
  return kZoneSize;
}

// Answers every request with the patterns in turn, each a byte too short, whole, and one and a half
// entries long in turn. Their bit sets hold up to 2,048 objects.
class AnyReplies {
 public:
  explicit AnyReplies(unsigned first) : number_(first) {}
  ZoneReadResponse operator()(const ZoneReadRequest& request) {
    const HeapLedger::Pause pause;
    const size_t size = size_of_entry(request.function);
    const size_t lengths[] = {size, size - 1, size + size / 2};
    ++number_;
    Bytes reply = pattern(number_ % kPatterns, lengths[number_ % 3]);
    // A member of a type that there is, mostly.
    if (request.function == "zs_cmi_get_member" && number_ % 8 != 0) {
      constexpr uint8_t kTypes[] = {1, 2, 3, 4, 225, 227, 228, 230, 232, 233, 234, 235, 243};
      reply.at(20) = kTypes[number_ % sizeof kTypes];
    }
    return {number_ % 50 == 49 ? 17 : 0, number_ % 5 == 0 ? INT32_MAX : 1, reply};
  }

 private:
  unsigned number_;
};

template <class Query>
void sweep(Query query) {
  for (unsigned first = 0; first < 6; ++first) {
    ZoneReadResponder zone_server{AnyReplies(first)};
    query();
    EXPECT_GE(zone_server.calls(), 1u);
  }
}

template <class Record>
void sweep_chain(int32_t (*query)(int32_t, const char*, Record**), const char* id) {
  sweep([=] {
    Chain<Record> chain;
    const int32_t result = query(kQueue, id, chain.out());
    EXPECT_TRUE(result == 0 || result == -1) << result;
    if (result == -1) {
      EXPECT_EQ(chain.head(), nullptr);
    }
  });
}

TEST_F(ZoningReplies, OfChildrenMayHoldAnything) {
  sweep_chain(zs_cim_get_zone_set_zones_by_instance_id, "5_12_1");
  sweep_chain(zs_cim_get_zone_zone_aliases_by_instance_id, "5_12_1");
  sweep_chain(zs_cim_get_zone_zone_members_by_instance_id, "5_12_1");
  sweep_chain(zs_cim_get_zone_alias_zone_members_by_instance_id, "5_12_1");
}

TEST_F(ZoningReplies, OfParentsMayHoldAnything) {
  sweep_chain(zs_cim_get_zone_zone_set_parents_by_instance_id, "5_2048_1");
  sweep_chain(zs_cim_get_zone_alias_zone_parents_by_instance_id, "5_2048_1");
  for (const auto query : {zs_cim_get_zone_member_zone_parents_by_instance_id,
                           zs_cim_get_zone_member_zone_alias_parents_by_instance_id}) {
    sweep([query] {
      GSList* list = nullptr;
      EXPECT_EQ(query(kQueue, "5^3^0a0b01^1", &list), 0);
      cim_g_slist_destroy(list, nullptr);
    });
  }
}

TEST_F(ZoningReplies, OfAllMembersMayHoldAnything) {
  sweep([] {
    Chain<zs_cim_zone_member_> chain;
    int32_t count = -7;
    EXPECT_EQ(zs_cim_get_all_zone_members(kQueue, 5, 1, &count, chain.out()), 0);
    EXPECT_EQ(count, chain.length());
  });
  sweep([] {
    Chain<zs_cim_zone_member_> found;
    const int32_t result =
        zs_cim_get_zone_member_by_instance_id(kQueue, "5^3^0a0b01^1", found.out());
    EXPECT_EQ(found.length(), result == 0 ? 1 : 0);
  });
}

}  // namespace
