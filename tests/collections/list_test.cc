#include <cim_utils/collections.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "common/list_builder.h"
#include "tests/support/heap_ledger.h"

namespace {

// The longest list that g_slist_append was given, which it walks from end to end.
guint longest_walk = 0;

}  // namespace

extern "C" GSList* __real_g_slist_append(GSList* list, gpointer data);
extern "C" GSList* __wrap_g_slist_append(GSList* list, gpointer data) {
  longest_walk = std::max(longest_walk, g_slist_length(list));
  return __real_g_slist_append(list, data);
}

namespace {

using cim_utils::ListBuilder;
using test_support::HeapLedger;

char* heap_text(const char* text) {
  char* const copy = static_cast<char*>(std::malloc(std::strlen(text) + 1));
  std::strcpy(copy, text);
  return copy;
}

std::vector<std::string> texts_of(GSList* list) {
  std::vector<std::string> texts;
  for (; list != nullptr; list = list->next)
    texts.emplace_back(static_cast<char*>(list->data));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(List, IsNullWhenEmpty) {
  EXPECT_EQ(cim_g_slist_new(), nullptr);
  EXPECT_EQ(cim_g_slist_alloc(), nullptr);
}

TEST(List, GrowsAtTheEnd) {
  GSList* list = cim_g_slist_new();
  list = cim_g_slist_append(list, heap_text("one"));
  GSList* const head = list;
  list = cim_g_slist_append(list, heap_text("two"));
  list = cim_g_slist_append(list, heap_text("three"));
  EXPECT_EQ(list, head);
  EXPECT_EQ(texts_of(list), (Texts{"one", "two", "three"}));
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, GrowsInFront) {
  GSList* list = cim_g_slist_prepend(nullptr, heap_text("one"));
  list = cim_g_slist_prepend(list, heap_text("two"));
  EXPECT_EQ(texts_of(list), (Texts{"two", "one"}));
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, TakesOverTheBlockItself) {
  char* const block = heap_text("one");
  GSList* const list = cim_g_slist_append(nullptr, block);
  EXPECT_EQ(cim_g_slist_nth_data(list, 0), block);
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, HasALength) {
  EXPECT_EQ(cim_g_slist_length(nullptr), 0U);
  GSList* list = cim_g_slist_append_str(nullptr, "one");
  EXPECT_EQ(cim_g_slist_length(list), 1U);
  list = cim_g_slist_append_str(list, "two");
  EXPECT_EQ(cim_g_slist_length(list), 2U);
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, CountsItsElementsFromZero) {
  GSList* list = cim_g_slist_append_str(nullptr, "one");
  list = cim_g_slist_append_str(list, "two");
  EXPECT_STREQ(static_cast<char*>(cim_g_slist_nth_data(list, 0)), "one");
  EXPECT_STREQ(static_cast<char*>(cim_g_slist_nth_data(list, 1)), "two");
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, HasNullDataPastItsEnd) {
  GSList* const list = cim_g_slist_append_str(nullptr, "one");
  EXPECT_EQ(cim_g_slist_nth_data(list, 1), nullptr);
  EXPECT_EQ(cim_g_slist_nth_data(list, 0xFFFFFFFF), nullptr);
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, HasNullDataWhenEmpty) {
  EXPECT_EQ(cim_g_slist_nth_data(nullptr, 0), nullptr);
}

TEST(List, CopiesATextThatIsAppended) {
  char text[] = "fc1/1";
  GSList* const list = cim_g_slist_append_str(nullptr, text);
  std::strcpy(text, "xxxxx");
  EXPECT_EQ(texts_of(list), Texts{"fc1/1"});
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, CopiesAnEmptyText) {
  const HeapLedger ledger;
  GSList* const list = cim_g_slist_append_str(nullptr, "");
  EXPECT_EQ(ledger.outstanding_bytes(), 1U);
  EXPECT_EQ(texts_of(list), Texts{""});
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, IsUnchangedWhenATextCannotBeCopied) {
  HeapLedger ledger;
  GSList* const list = cim_g_slist_append_str(nullptr, "one");
  ledger.fail_nth(1);
  EXPECT_EQ(cim_g_slist_append_str(list, "two"), list);
  EXPECT_TRUE(ledger.failure_was_hit());
  EXPECT_EQ(texts_of(list), Texts{"one"});
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, StaysEmptyWhenItsFirstTextCannotBeCopied) {
  HeapLedger ledger;
  ledger.fail_nth(1);
  EXPECT_EQ(cim_g_slist_append_str(nullptr, "one"), nullptr);
  EXPECT_TRUE(ledger.failure_was_hit());
}

TEST(List, IsUnchangedByANullText) {
  GSList* const list = cim_g_slist_append_str(nullptr, "one");
  EXPECT_EQ(cim_g_slist_append_str(list, nullptr), list);
  EXPECT_EQ(cim_g_slist_length(list), 1U);
  EXPECT_EQ(cim_g_slist_append_str(nullptr, nullptr), nullptr);
  cim_g_slist_destroy(list, nullptr);
}

TEST(List, FreesTheDataOfEveryElementWhenDestroyed) {
  const HeapLedger ledger;
  GSList* list = cim_g_slist_append(nullptr, heap_text("one"));
  list = cim_g_slist_append_str(list, "two");
  list = cim_g_slist_prepend(list, heap_text("three"));
  list = cim_g_slist_append(list, nullptr);
  EXPECT_EQ(ledger.outstanding(), 3U);
  cim_g_slist_destroy(list, nullptr);
  EXPECT_EQ(ledger.outstanding(), 0U);
}

TEST(List, IsDestroyedAlikeWhateverTheSecondArgument) {
  const HeapLedger ledger;
  int ignored = 0;
  cim_g_slist_destroy(cim_g_slist_append_str(nullptr, "one"), &ignored);
  EXPECT_EQ(ledger.outstanding(), 0U);
  EXPECT_EQ(ignored, 0);
}

TEST(List, IsDestroyedByDoingNothingWhenEmpty) {
  const HeapLedger ledger;
  cim_g_slist_destroy(nullptr, nullptr);
  EXPECT_EQ(ledger.allocations(), 0U);
}

TEST(ElementCallback, FreesTheData) {
  const HeapLedger ledger;
  int ignored = 0;
  cim_slist_value_free_func(heap_text("one"), &ignored);
  cim_slist_value_free_func(nullptr, nullptr);
  EXPECT_EQ(ledger.outstanding(), 0U);
}

// ---- The builder of longer lists

TEST(ListBuilder, AppendsInOrder) {
  const HeapLedger ledger;
  GSList* list = nullptr;
  ListBuilder builder(&list);
  builder.append(heap_text("one"));
  EXPECT_TRUE(builder.append_text("two"));
  EXPECT_TRUE(builder.append_copy("three", 6));
  builder.append(heap_text("four"));
  EXPECT_EQ(texts_of(list), (Texts{"one", "two", "three", "four"}));
  cim_g_slist_destroy(list, nullptr);
}

TEST(ListBuilder, StartsWithAnyKindOfElement) {
  GSList* texts = nullptr;
  EXPECT_TRUE(ListBuilder(&texts).append_text("one"));
  EXPECT_EQ(texts_of(texts), Texts{"one"});
  cim_g_slist_destroy(texts, nullptr);
  GSList* records = nullptr;
  EXPECT_TRUE(ListBuilder(&records).append_copy("one", 4));
  EXPECT_EQ(texts_of(records), Texts{"one"});
  cim_g_slist_destroy(records, nullptr);
}

TEST(ListBuilder, ContinuesAListThatHasElements) {
  GSList* list = cim_g_slist_append_str(nullptr, "one");
  list = cim_g_slist_append_str(list, "two");
  GSList* const head = list;
  ListBuilder builder(&list);
  EXPECT_TRUE(builder.append_text("three"));
  EXPECT_TRUE(builder.append_text("four"));
  EXPECT_EQ(list, head);
  EXPECT_EQ(texts_of(list), (Texts{"one", "two", "three", "four"}));
  cim_g_slist_destroy(list, nullptr);
}

TEST(ListBuilder, LeavesTheListAloneWhenNothingIsAppended) {
  GSList* empty = nullptr;
  { const ListBuilder builder(&empty); }
  EXPECT_EQ(empty, nullptr);
}

TEST(ListBuilder, CopiesExactlyTheRecord) {
  const HeapLedger ledger;
  const uint8_t record[28] = {1, 2, 3};
  GSList* list = nullptr;
  EXPECT_TRUE(ListBuilder(&list).append_copy(record, sizeof record));
  EXPECT_EQ(ledger.outstanding_bytes(), 28U);
  EXPECT_NE(list->data, record);
  EXPECT_EQ(std::memcmp(list->data, record, sizeof record), 0);
  cim_g_slist_destroy(list, nullptr);
}

TEST(ListBuilder, AppendsInConstantTime) {
  GSList* list = nullptr;
  ListBuilder builder(&list);
  longest_walk = 0;
  for (int i = 0; i < 1000; ++i) {
    builder.append(heap_text("one"));
    ASSERT_TRUE(builder.append_text("two"));
    ASSERT_TRUE(builder.append_copy("three", 6));
  }
  EXPECT_EQ(longest_walk, 1U);
  EXPECT_EQ(cim_g_slist_length(list), 3000U);
  cim_g_slist_destroy(list, nullptr);
}

TEST(ListBuilder, IsUnchangedWhenACopyFails) {
  for (const bool start_empty : {true, false}) {
    HeapLedger ledger;
    GSList* list = start_empty ? nullptr : cim_g_slist_append_str(nullptr, "zero");
    ListBuilder builder(&list);
    ledger.fail_nth(1);
    EXPECT_FALSE(builder.append_text("one"));
    EXPECT_TRUE(ledger.failure_was_hit());
    ledger.fail_nth(1);
    EXPECT_FALSE(builder.append_copy("two", 4));
    EXPECT_TRUE(ledger.failure_was_hit());
    EXPECT_TRUE(builder.append_text("three"));
    EXPECT_EQ(texts_of(list), start_empty ? Texts{"three"} : (Texts{"zero", "three"}));
    cim_g_slist_destroy(list, nullptr);
  }
}

TEST(ListBuilder, RefusesANullText) {
  GSList* list = nullptr;
  ListBuilder builder(&list);
  EXPECT_FALSE(builder.append_text(nullptr));
  EXPECT_EQ(list, nullptr);
}

}  // namespace
