#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

TEST(StringArray, HoldsTextsOfTheSizeAndATerminator) {
  HeapLedger ledger;
  char** array = malloc_char_array(2, 25);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(ledger.allocations(Heap::c), 3u);
  std::strcpy(array[0], "123456789012345678901234");
  EXPECT_STREQ(array[1], "");
  EXPECT_EQ(array[2], nullptr);
  free_char_array(array);
}

TEST(StringArray, OfNoTextsHoldsTheTerminatorOnly) {
  HeapLedger ledger;
  char** array = malloc_char_array(0, 25);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array[0], nullptr);
  EXPECT_EQ(ledger.allocations(Heap::c), 1u);
  free_char_array(array);
}

TEST(StringArray, OfANegativeNumberIsNone) {
  HeapLedger ledger;
  EXPECT_EQ(malloc_char_array(-1, 25), nullptr);
  EXPECT_EQ(ledger.allocations(), 0u);
}

TEST(StringArray, EveryFailingAllocationReleasesWhatWasMade) {
  const size_t rounds = for_every_failing_allocation([](FailingAllocation& round) {
    char** array = round.attempt([] { return malloc_char_array(3, 25); });
    EXPECT_EQ(array == nullptr, round.was_hit());
    free_char_array(array);
  });
  EXPECT_EQ(rounds, 5u);
}

TEST(StringArray, FreeingNoneIsAccepted) {
  free_char_array(nullptr);
}

TEST(StringArray, IsPrintedWithItsIndexes) {
  char** array = malloc_char_array(2, 25);
  std::strcpy(array[0], "Name");
  std::strcpy(array[1], "CreationClassName");
  StdioCapture out;
  print_char_array(array);
  EXPECT_EQ(out.out(), "Property [ 0 ] = Name \nProperty [ 1 ] = CreationClassName \n");
  free_char_array(array);
}

TEST(StringArray, NoneIsPrintedAsSuch) {
  StdioCapture out;
  print_char_array(nullptr);
  EXPECT_EQ(out.out(), "PropertyList is Null");
}

}  // namespace
