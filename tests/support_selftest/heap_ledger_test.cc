#include "tests/support/heap_ledger.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "tests/support/bytes.h"

namespace test_support {
namespace {

// Out of the optimizer's sight, which may leave out allocations.
template <class Pointer>
Pointer seen(Pointer p) {
  asm volatile("" : "+r"(p) : : "memory");
  return p;
}

TEST(HeapLedger, CountsCAndCppAllocations) {
  HeapLedger ledger;
  void* a = seen(malloc(10));
  a = seen(realloc(a, 20));
  void* b = seen(calloc(2, 3));
  char* c = seen(strdup("text"));
  char* d = seen(strndup("text", 2));
  auto* e = seen(new int(1));
  auto* f = seen(new char[3]);
  EXPECT_EQ(ledger.allocations(Heap::c), 5u);
  EXPECT_EQ(ledger.allocations(Heap::cpp), 2u);
  EXPECT_EQ(ledger.allocations(), 7u);
  EXPECT_EQ(ledger.outstanding(), 6u);
  EXPECT_EQ(ledger.outstanding_bytes(), 20u + 6 + 5 + 3 + sizeof(int) + 3);
  EXPECT_STREQ(d, "te");
  free(a);
  free(b);
  free(c);
  free(d);
  delete e;
  delete[] f;
  EXPECT_EQ(ledger.outstanding(), 0u);
}

TEST(HeapLedger, ABlockLeftOverFailsTheTestWithItsSizeAndMaker) {
  void* left = nullptr;
  EXPECT_NONFATAL_FAILURE(
      {
        HeapLedger ledger;
        left = seen(malloc(123));
      },
      "not freed: 123 bytes, made with malloc as allocation 1");
  free(left);
}

TEST(HeapLedger, ABlockMadeByNewIsWatchedToo) {
  static std::string* left;
  EXPECT_NONFATAL_FAILURE(
      {
        HeapLedger ledger;
        left = seen(new std::string());
      },
      "bytes, made with new as allocation 1");
  delete left;
}

TEST(HeapLedger, ABlockGivenOutIsNamedByItsCall) {
  void* left = nullptr;
  const Bytes block = zeros(9);
  EXPECT_NONFATAL_FAILURE(
      {
        HeapLedger ledger;
        left = give_out(block, "some_call 5", 99);
        EXPECT_EQ(ledger.allocations(), 0u);
      },
      "not freed: 9 bytes, given out by the double for some_call 5");
  free(left);
}

TEST(HeapLedger, BlocksOfTheOwnerAreKnownWithoutALedger) {
  void* block = give_out(zeros(9), "some_call", 98);
  EXPECT_EQ(live_blocks_of(98), 1u);
  free(block);
  EXPECT_EQ(live_blocks_of(98), 0u);
  EXPECT_TRUE(not_given_back(98).empty());
}

TEST(HeapLedger, ASecondFreeFailsTheTestAndHarmsNothing) {
  HeapLedger ledger;
  void* block = seen(malloc(7));
  void* again = seen(block);
  free(block);
  EXPECT_NONFATAL_FAILURE(free(again), "a block is freed a second time: 7 bytes");
}

TEST(HeapLedger, FreeOfAForeignAddressFailsTheTest) {
  HeapLedger ledger;
  int local = 0;
  void* address = seen(static_cast<void*>(&local));
  EXPECT_NONFATAL_FAILURE(free(address), "free of an address that is no block");
}

TEST(HeapLedger, ABlockGoingBackByTheWrongFunctionFailsTheTest) {
  HeapLedger ledger;
  void* block = seen(static_cast<void*>(new int(3)));
  EXPECT_NONFATAL_FAILURE(free(block), "a block goes back with free: 4 bytes, made with new");
}

#if !defined(__SANITIZE_ADDRESS__)
TEST(HeapLedger, WritingIntoAFreedBlockFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        HeapLedger ledger;
        char* block = seen(static_cast<char*>(malloc(8)));
        char* again = seen(block);
        free(block);
        *again = 'x';
      },
      "written after it was freed: 8 bytes");
}
#endif

TEST(HeapLedger, TheNthAllocationFailsOnce) {
  HeapLedger ledger;
  ledger.fail_nth(2);
  void* first = seen(malloc(1));
  errno = 0;
  void* second = seen(malloc(1));
  EXPECT_EQ(second, nullptr);
  EXPECT_EQ(errno, ENOMEM);
  EXPECT_TRUE(ledger.failure_was_hit());
  void* third = seen(malloc(1));
  EXPECT_NE(first, nullptr);
  EXPECT_NE(third, nullptr);
  free(first);
  free(third);
}

TEST(HeapLedger, EveryFormOfAllocationCanFail) {
  HeapLedger ledger;
  ledger.fail_nth(1);
  EXPECT_EQ(seen(calloc(1, 1)), nullptr);
  ledger.fail_nth(1);
  EXPECT_EQ(seen(strdup("a")), nullptr);
  ledger.fail_nth(1);
  EXPECT_EQ(seen(strndup("a", 1)), nullptr);
  ledger.fail_nth(1);
  EXPECT_THROW(seen(new int), std::bad_alloc);
  ledger.fail_nth(1);
  EXPECT_THROW(seen(new int[2]), std::bad_alloc);
  ledger.fail_nth(1);
  EXPECT_EQ(seen(new (std::nothrow) int), nullptr);
  ledger.fail_nth(1);
  EXPECT_EQ(seen(new (std::nothrow) int[2]), nullptr);
  ledger.fail_nth(1);
  struct alignas(64) Wide {
    char bytes[64];
  };
  EXPECT_THROW(seen(new Wide), std::bad_alloc);
  ledger.fail_none();
  delete seen(new Wide);
}

TEST(HeapLedger, AFailedReallocLeavesTheBlock) {
  HeapLedger ledger;
  auto* block = seen(static_cast<char*>(malloc(2)));
  auto* kept = seen(block);
  block[0] = 'k';
  ledger.fail_nth(1);
  EXPECT_EQ(seen(realloc(block, 100)), nullptr);
  EXPECT_EQ(*kept, 'k');
  free(kept);
}

TEST(HeapLedger, ReallocMovesTheContentAndFreesForSizeZero) {
  HeapLedger ledger;
  auto* block = seen(static_cast<char*>(malloc(2)));
  memcpy(block, "ab", 2);
  block = seen(static_cast<char*>(realloc(block, 4)));
  EXPECT_EQ(memcmp(block, "ab", 2), 0);
  block = seen(static_cast<char*>(realloc(block, 1)));
  EXPECT_EQ(*block, 'a');
  EXPECT_EQ(seen(realloc(block, 0)), nullptr);
}

TEST(HeapLedger, OnlyTheAllocationsMeantAreMadeToFail) {
  HeapLedger ledger;
  ledger.fail_nth(1, Heap::c);
  delete seen(new int);
  EXPECT_FALSE(ledger.failure_was_hit());
  EXPECT_EQ(seen(malloc(1)), nullptr);
  ledger.fail_nth(1, Heap::cpp);
  free(seen(malloc(1)));
  EXPECT_THROW(seen(new int), std::bad_alloc);
}

TEST(HeapLedger, CallocRefusesASizeThatOverflows) {
  HeapLedger ledger;
  volatile size_t huge = static_cast<size_t>(-1) / 2;
  EXPECT_EQ(seen(calloc(huge, 4)), nullptr);
}

TEST(HeapLedger, PauseHidesTheTestsOwnAllocations) {
  void* kept = nullptr;
  {
    HeapLedger ledger;
    ledger.fail_nth(1);
    {
      HeapLedger::Pause pause;
      kept = seen(malloc(5));
    }
    EXPECT_NE(kept, nullptr);
    EXPECT_EQ(ledger.allocations(), 0u);
    ledger.fail_none();
  }
  free(kept);
}

TEST(HeapLedger, WhatIsGivenOutNeverFailsAndHasToBeFreed) {
  HeapLedger ledger;
  ledger.fail_nth(1);
  void* given = nullptr;
  {
    HeapLedger::GivingOut service;
    given = seen(malloc(5));
  }
  EXPECT_NE(given, nullptr);
  EXPECT_EQ(ledger.allocations(), 0u);
  EXPECT_EQ(ledger.outstanding(), 1u);
  ledger.fail_none();
  free(given);
  EXPECT_EQ(ledger.outstanding(), 0u);
}

TEST(HeapLedger, WhatAServiceMakesForItselfIsNotSeen) {
  int* kept = nullptr;
  {
    HeapLedger ledger;
    HeapLedger::GivingOut service;
    kept = seen(new int(1));
    EXPECT_EQ(ledger.outstanding(), 0u);
  }
  delete kept;
}

TEST(HeapLedger, ABlockFromBeforeTheLedgerMayBeFreedUnderIt) {
  void* block = seen(malloc(5));
  HeapLedger ledger;
  free(block);
}

TEST(HeapLedger, ReleaseByCallerWantsALiveBlock) {
  HeapLedger ledger;
  void* block = seen(malloc(5));
  ledger.release_by_caller(block);
  EXPECT_NONFATAL_FAILURE(ledger.release_by_caller(block), "no live block");
}

TEST(HeapLedger, AnInnerLedgerSeesOnlyItsOwnBlocks) {
  HeapLedger outer;
  void* block = seen(malloc(5));
  {
    HeapLedger inner;
    EXPECT_EQ(inner.outstanding(), 0u);
  }
  EXPECT_EQ(outer.outstanding(), 1u);
  free(block);
}

TEST(HeapLedger, UsableSizeIsTheSizeAskedFor) {
  void* block = seen(malloc(13));
  EXPECT_EQ(malloc_usable_size(block), 13u);
  void* given = give_out(zeros(5), "call", 97);
  EXPECT_EQ(malloc_usable_size(given), 5u);
  EXPECT_EQ(malloc_usable_size(nullptr), 0u);
  free(block);
  free(given);
}

TEST(HeapLedger, FreeKeepsErrno) {
  HeapLedger ledger;
  void* block = seen(malloc(1));
  errno = 77;
  free(block);
  EXPECT_EQ(errno, 77);
}

TEST(HeapLedger, ManyBlocksAreKept) {
  HeapLedger ledger;
  std::vector<void*> blocks;
  blocks.reserve(20000);
  for (int i = 0; i < 20000; ++i)
    blocks.push_back(malloc(16));
  EXPECT_EQ(ledger.outstanding(), 20001u);
  for (void* block : blocks)
    free(block);
}

size_t resident_bytes() {
  long total = 0;
  long resident = 0;
  FILE* file = fopen("/proc/self/statm", "r");
  if (file == nullptr) return 0;
  if (fscanf(file, "%ld %ld", &total, &resident) != 2) resident = 0;
  fclose(file);
  return static_cast<size_t>(resident) * 4096;
}

TEST(HeapLedger, FreedBlocksAreNotKeptWithoutEnd) {
  HeapLedger ledger;
  size_t before = resident_bytes();
  for (int i = 0; i < 30000; ++i)
    free(seen(malloc(30000)));
  EXPECT_LT(resident_bytes() - before, size_t{400} << 20);  // of 900 MB that were freed
}

// Two C blocks and a string; cleans up after itself on every path.
int careful_operation() {
  void* first = seen(malloc(10));
  if (first == nullptr) return -1;
  void* second = seen(malloc(10));
  int result = -1;
  if (second != nullptr) {
    try {
      std::string text(100, 'x');
      seen(text.data());
      result = 0;
    } catch (const std::bad_alloc&) {
      result = -2;
    }
  }
  free(second);
  free(first);
  return result;
}

TEST(ForEveryFailingAllocation, RunsOnceForEachAllocationAndOnceWithout) {
  std::vector<int> results;
  results.reserve(10);
  size_t rounds = for_every_failing_allocation([&](FailingAllocation& failing) {
    int result = failing.attempt(careful_operation);
    EXPECT_EQ(result == 0, !failing.was_hit());
    results.push_back(result);
  });
  EXPECT_EQ(rounds, 4u);
  EXPECT_EQ(results, (std::vector<int>{-1, -1, -2, 0}));
}

TEST(ForEveryFailingAllocation, TakesAnOperationAlone) {
  EXPECT_EQ(for_every_failing_allocation([] { careful_operation(); }), 4u);
}

TEST(ForEveryFailingAllocation, FailsOnlyTheAllocationsMeant) {
  EXPECT_EQ(for_every_failing_allocation([] { careful_operation(); }, Heap::c), 3u);
}

// Forgets the first block when the second fails.
void* lost_block;
void careless_operation() {
  void* first = seen(malloc(10));
  if (first == nullptr) return;
  void* second = seen(malloc(11));
  if (second == nullptr) {
    lost_block = first;
    return;
  }
  free(second);
  free(first);
}

TEST(ForEveryFailingAllocation, FindsALeakOnAFailurePath) {
  EXPECT_NONFATAL_FAILURE(for_every_failing_allocation(careless_operation), "not freed: 10 bytes");
  free(lost_block);
}

TEST(ForEveryFailingAllocation, WantsTheOperationToBeAttempted) {
  EXPECT_NONFATAL_FAILURE(for_every_failing_allocation([](FailingAllocation&) {}),
                          "not run through attempt()");
}

}  // namespace
}  // namespace test_support
