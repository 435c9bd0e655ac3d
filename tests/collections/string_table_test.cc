#include <cim_utils/collections.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/support/heap_ledger.h"

namespace {

using test_support::HeapLedger;

char* heap_text(const char* text) {
  char* const copy = static_cast<char*>(std::malloc(std::strlen(text) + 1));
  std::strcpy(copy, text);
  return copy;
}

const char* value_of(GHashTable* table, const char* key) {
  return static_cast<const char*>(g_hash_table_lookup(table, key));
}

void count_entry(gpointer, gpointer, gpointer count) {
  ++*static_cast<int*>(count);
}

int entries_of(GHashTable* table) {
  int count = 0;
  g_hash_table_foreach(table, count_entry, &count);
  return count;
}

TEST(StringTable, IsEmptyWhenNew) {
  GHashTable* const table = cim_g_hash_table_new();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(entries_of(table), 0);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, FindsAValueByTheTextOfItsKey) {
  GHashTable* const table = cim_g_hash_table_new();
  EXPECT_EQ(cim_g_hash_table_insert(table, "2000000DEC0A1B2C", heap_text("switch")), 0);
  EXPECT_EQ(cim_g_hash_table_insert(table, "2000000DEC0A1B2D", heap_text("other")), 0);
  const std::string equal_text = "2000000DEC0A1B2C";
  EXPECT_STREQ(value_of(table, equal_text.c_str()), "switch");
  EXPECT_STREQ(value_of(table, "2000000DEC0A1B2D"), "other");
  EXPECT_EQ(value_of(table, "2000000DEC0A1B2E"), nullptr);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, KeepsACopyOfTheKey) {
  GHashTable* const table = cim_g_hash_table_new();
  char key[] = "fc1/1";
  cim_g_hash_table_insert(table, key, heap_text("value"));
  std::strcpy(key, "xxxxx");
  EXPECT_STREQ(value_of(table, "fc1/1"), "value");
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, ReplacesAndFreesTheValueOfAKeyThatItHolds) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  cim_g_hash_table_insert(table, "key", heap_text("first"));
  cim_g_hash_table_insert(table, "key", heap_text("second"));
  // The key and the second value.
  EXPECT_EQ(ledger.outstanding(), 2U);
  EXPECT_EQ(entries_of(table), 1);
  EXPECT_STREQ(value_of(table, "key"), "second");
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, KeepsItsOwnKeyWhenAValueIsReplaced) {
  GHashTable* const table = cim_g_hash_table_new();
  cim_g_hash_table_insert(table, "key", heap_text("first"));
  char callers_key[] = "key";
  cim_g_hash_table_insert(table, callers_key, heap_text("second"));
  std::strcpy(callers_key, "xxx");
  EXPECT_STREQ(value_of(table, "key"), "second");
  EXPECT_EQ(value_of(table, "xxx"), nullptr);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, KeepsAValueThatReplacesItself) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  char* const value = heap_text("value");
  cim_g_hash_table_insert(table, "key", value);
  cim_g_hash_table_insert(table, "key", value);
  EXPECT_STREQ(value_of(table, "key"), "value");
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, ReplacesANullValueWithoutLosingAKey) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  cim_g_hash_table_insert(table, "key", nullptr);
  cim_g_hash_table_insert(table, "key", heap_text("value"));
  EXPECT_EQ(entries_of(table), 1);
  EXPECT_STREQ(value_of(table, "key"), "value");
  EXPECT_EQ(ledger.outstanding(), 2U);
  cim_g_hash_table_insert(table, "key", nullptr);
  EXPECT_EQ(ledger.outstanding(), 1U);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, FreesKeysAndValuesWithFlagOne) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  cim_g_hash_table_insert(table, "a", heap_text("1"));
  cim_g_hash_table_insert(table, "b", heap_text("2"));
  cim_g_hash_table_destroy(table, 1);
  EXPECT_EQ(ledger.outstanding(), 0U);
}

TEST(StringTable, FreesKeysOnlyWithFlagTwo) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  char* const value = heap_text("1");
  cim_g_hash_table_insert(table, "a", value);
  cim_g_hash_table_destroy(table, 2);
  EXPECT_EQ(ledger.outstanding(), 1U);
  EXPECT_STREQ(value, "1");
  std::free(value);
}

TEST(StringTable, FreesKeysOnlyWithAnyFlagButOne) {
  for (const int flag : {0, 3, 129, 255}) {
    const HeapLedger ledger;
    GHashTable* const table = cim_g_hash_table_new();
    char* const value = heap_text("1");
    cim_g_hash_table_insert(table, "a", value);
    cim_g_hash_table_destroy(table, static_cast<uint8_t>(flag));
    EXPECT_EQ(ledger.outstanding(), 1U) << flag;
    std::free(value);
  }
}

TEST(StringTable, HoldsManyEntries) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  for (int i = 0; i < 5000; ++i) {
    char key[16];
    std::snprintf(key, sizeof key, "key %d", i);
    cim_g_hash_table_insert(table, key, heap_text(key));
  }
  EXPECT_EQ(entries_of(table), 5000);
  EXPECT_STREQ(value_of(table, "key 4321"), "key 4321");
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, IsUnchangedWhenAKeyCannotBeCopied) {
  HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  char* const value = heap_text("value");
  ledger.fail_nth(1);
  EXPECT_EQ(cim_g_hash_table_insert(table, "key", value), -1);
  EXPECT_TRUE(ledger.failure_was_hit());
  EXPECT_EQ(entries_of(table), 0);
  // The value is still the caller's, who may try again.
  EXPECT_EQ(cim_g_hash_table_insert(table, "key", value), 0);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, NeedsNoMemoryToReplaceAValue) {
  GHashTable* const table = cim_g_hash_table_new();
  cim_g_hash_table_insert(table, "key", heap_text("first"));
  char* const second = heap_text("second");
  {
    const HeapLedger ledger;
    EXPECT_EQ(cim_g_hash_table_insert(table, "key", second), 0);
    EXPECT_EQ(ledger.allocations(), 0U);
  }
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, FailsOnANullTableOrKeyAndLeavesTheValueToTheCaller) {
  const HeapLedger ledger;
  GHashTable* const table = cim_g_hash_table_new();
  char* const value = heap_text("value");
  EXPECT_EQ(cim_g_hash_table_insert(nullptr, "key", value), -1);
  EXPECT_EQ(cim_g_hash_table_insert(table, nullptr, value), -1);
  EXPECT_EQ(entries_of(table), 0);
  EXPECT_STREQ(value, "value");
  std::free(value);
  cim_g_hash_table_destroy(table, 1);
}

TEST(StringTable, OfNullIsDestroyedByDoingNothing) {
  const HeapLedger ledger;
  cim_g_hash_table_destroy(nullptr, 1);
  EXPECT_EQ(ledger.allocations(), 0U);
}

TEST(EntryCallback, FreesTheKeyAndWithFlagOneTheValue) {
  const HeapLedger ledger;
  uint8_t flag = 1;
  cim_hashtable_key_value_free_func(heap_text("key"), heap_text("value"), &flag);
  EXPECT_EQ(ledger.outstanding(), 0U);
}

TEST(EntryCallback, FreesTheKeyAloneWithAnotherFlagOrNone) {
  const HeapLedger ledger;
  char* const value = heap_text("value");
  uint8_t flag = 2;
  cim_hashtable_key_value_free_func(heap_text("key"), value, &flag);
  cim_hashtable_key_value_free_func(heap_text("key"), value, nullptr);
  EXPECT_EQ(ledger.outstanding(), 1U);
  std::free(value);
}

TEST(EntryCallback, LooksAtOneByteOfTheFlag) {
  const HeapLedger ledger;
  uint8_t flags[4] = {1, 0xFF, 0xFF, 0xFF};
  cim_hashtable_key_value_free_func(heap_text("key"), heap_text("value"), flags);
  EXPECT_EQ(ledger.outstanding(), 0U);
}

}  // namespace
