#include <cim_utils/vsan.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

constexpr uint32_t kEndOfTable = 0x40330005;

// An entry as the VSAN manager writes it at byte 520 of its message, every field its own value.
Bytes entry_message(uint32_t vsan) {
  return Record(2632)
      .be32(520, vsan)
      .be32(524, 0x01020304)
      .be32(528, 2)
      .be32(532, 0x05060708)
      .put(536, hex("a1 a2 a3 a4"))
      .be32(540, 0x090a0b0c)
      .be32(544, 1)
      .be32(548, 0x0d0e0f10)
      .be32(552, 3)
      .text(556, "VSAN name")
      .byte(684, 0x77)
      .byte(2627, 0x78);
}

Bytes request_for(uint32_t vsan) {
  return Record(2632).be32(520, vsan);
}

vsanNewEntry_t entry_asking_for(uint32_t vsan) {
  vsanNewEntry_t entry{};
  entry.vsan_index = vsan;
  return entry;
}

class VsanAdaptor : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(VsanAdaptor, GetAsksForTheVsanAndGivesItsEntryInHostOrder) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(10))).replies(entry_message(10));
  vsanNewEntry_t entry = entry_asking_for(10);
  ASSERT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.vsan_index, 10u);
  EXPECT_EQ(entry.word_4, 0x01020304u);
  EXPECT_EQ(entry.admin_state, 2u);
  EXPECT_EQ(entry.word_12, 0x05060708u);
  EXPECT_EQ(bytes_of(entry.raw_16), hex("a1 a2 a3 a4"));
  EXPECT_EQ(entry.word_20, 0x090a0b0cu);
  EXPECT_EQ(entry.load_balancing_type, 1u);
  EXPECT_EQ(entry.word_28, 0x0d0e0f10u);
  EXPECT_EQ(entry.oper_state, 3u);
  EXPECT_STREQ(entry.name, "VSAN name");
  EXPECT_EQ(entry.rest[0], 0x77);
  EXPECT_EQ(entry.rest[1943], 0x78);
}

TEST_F(VsanAdaptor, OnlyExactOneIsAGet) {
  for (const int32_t exact : {0, 2, -1}) {
    Script script;
    script.expect(get_next(149).sap(15).sends(request_for(1))).replies(entry_message(2));
    vsanNewEntry_t entry = entry_asking_for(1);
    EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, exact, &entry), 0);
    EXPECT_EQ(entry.vsan_index, 2u);
  }
}

TEST_F(VsanAdaptor, TheRequestCarriesTheWholeEntryInWireOrder) {
  Script script;
  script.expect(get(149).sap(15).sends(entry_message(0x0a0b))).replies(entry_message(0x0a0b));
  vsanNewEntry_t entry{};
  entry.vsan_index = 0x0a0b;
  entry.word_4 = 0x01020304;
  entry.admin_state = 2;
  entry.word_12 = 0x05060708;
  std::memcpy(entry.raw_16, hex("a1 a2 a3 a4").data(), 4);
  entry.word_20 = 0x090a0b0c;
  entry.load_balancing_type = 1;
  entry.word_28 = 0x0d0e0f10;
  entry.oper_state = 3;
  std::strcpy(entry.name, "VSAN name");
  entry.rest[0] = 0x77;
  entry.rest[1943] = 0x78;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
}

TEST_F(VsanAdaptor, ANullEntryIsRefusedWithoutAnExchange) {
  Script script;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(VsanAdaptor, AStatusIsPassedOnAndTheEntryIsBackInHostOrder) {
  Script script;
  script.expect(get(149).sap(15).any_request()).status(kEndOfTable);
  script.expect(get(149).sap(15).any_request()).times_out();
  vsanNewEntry_t entry = entry_asking_for(0x0102);
  entry.oper_state = 1;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0x40330005);
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), -1);
  EXPECT_EQ(entry.vsan_index, 0x0102u);
  EXPECT_EQ(entry.oper_state, 1u);
}

TEST_F(VsanAdaptor, AFailureThatHandsOutAReplyFreesIt) {
  Script script;
  script.expect(get(149).sap(15).any_request()).status_with_reply(kEndOfTable, entry_message(99));
  vsanNewEntry_t entry = entry_asking_for(3);
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0x40330005);
  EXPECT_EQ(entry.vsan_index, 3u);
}

TEST_F(VsanAdaptor, SuccessWithoutAReplyIsSuccessWithTheEntryUnchanged) {
  Script script;
  script.expect(get(149).sap(15).any_request()).ok_without_reply();
  vsanNewEntry_t entry = entry_asking_for(5);
  entry.load_balancing_type = 2;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.vsan_index, 5u);
  EXPECT_EQ(entry.load_balancing_type, 2u);
}

TEST_F(VsanAdaptor, AReplyOneByteShortOfTheEntryCountsAsNone) {
  for (const bool told : {true, false}) {
    Script script;
    auto line = script.expect(get(149).sap(15).any_request());
    line.replies(entry_message(9)).cut_to(2627);
    if (!told) line.length_left_alone();
    vsanNewEntry_t entry = entry_asking_for(5);
    EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
    EXPECT_EQ(entry.vsan_index, 5u);
  }
}

TEST_F(VsanAdaptor, AReplyWithoutTheTrailerIsEnough) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(entry_message(9)).cut_to(2628);
  vsanNewEntry_t entry = entry_asking_for(9);
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.rest[1943], 0x78);
}

TEST_F(VsanAdaptor, EveryReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(2632, [] {
    vsanNewEntry_t entry{};
    vsan_cim_get_vsanEntry(kQueue, 1, &entry);
  });
}

TEST_F(VsanAdaptor, ANewEntryStartsAtVsanZero) {
  Script script;
  script.expect(get_next(149).sap(15).sends(request_for(0))).replies(entry_message(1));
  vsanNewEntry_t* entry = nullptr;
  ASSERT_EQ(vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 0, &entry), 0);
  EXPECT_EQ(entry->vsan_index, 1u);
  ledger_.release_by_caller(entry);
}

TEST_F(VsanAdaptor, AnExactReadIntoANewEntryAsksForVsanZero) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(0))).status(kEndOfTable);
  vsanNewEntry_t* entry = nullptr;
  EXPECT_EQ(vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 1, &entry), -1);
}

TEST_F(VsanAdaptor, AFailedReadIntoANewEntryGivesNoEntry) {
  Script script;
  script.expect(get_next(149).sap(15).any_request()).status(kEndOfTable);
  vsanNewEntry_t some{};
  vsanNewEntry_t* entry = &some;
  EXPECT_EQ(vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 0, &entry), -1);
  EXPECT_EQ(entry, nullptr);
  EXPECT_EQ(vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 0, nullptr), -1);
}

TEST_F(VsanAdaptor, ANewEntryWithoutMemoryAsksNothing) {
  Script script;
  ledger_.fail_nth(1, Heap::c);
  vsanNewEntry_t* entry = nullptr;
  EXPECT_EQ(vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 0, &entry), -1);
  EXPECT_EQ(entry, nullptr);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(VsanAdaptor, TheTwoCountsAreAskedByOpcode) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 01 02"));
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03"));
  script.expect(get(128).sap(15).no_request().length(4)).replies(hex("00 00 00 04"));
  int32_t count = 0;
  EXPECT_EQ(vsan_cim_get_vsan_num(kQueue, &count, 1), 0);
  EXPECT_EQ(count, 258);
  EXPECT_EQ(vsan_cim_get_vsan_num(kQueue, &count, 7), 0);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(vsan_cim_get_vsan_num(kQueue, &count, 0), 0);
  EXPECT_EQ(count, 4);
}

TEST_F(VsanAdaptor, ACountThatCannotBeReadLeavesTheCallersNumber) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).status(17);
  script.expect(get(125).sap(15).no_request().length(4)).ok_without_reply();
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03")).cut_to(3);
  script.expect(get(125).sap(15).no_request().length(4))
      .replies(hex("00 00 00 03"))
      .cut_to(3)
      .length_left_alone();
  script.expect(get(125).sap(15).no_request().length(4)).status_with_reply(17, hex("00 00 00 03"));
  int32_t count = 42;
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(vsan_cim_get_vsan_num(kQueue, &count, 1), -1) << i;
  EXPECT_EQ(count, 42);
  EXPECT_EQ(vsan_cim_get_vsan_num(kQueue, nullptr, 1), -1);
}

TEST_F(VsanAdaptor, EveryCountReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(4, [] {
    int32_t count = 0;
    vsan_cim_get_vsan_num(kQueue, &count, 1);
  });
}

TEST_F(VsanAdaptor, AllEntriesAreReadOneAfterAnother) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03"));
  script.expect(get_next(149).sap(15).sends(request_for(0))).replies(entry_message(1));
  script.expect(get_next(149).sap(15).sends(request_for(1))).replies(entry_message(7));
  script.expect(get_next(149).sap(15).sends(request_for(7))).replies(entry_message(4094));
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(list[0].vsan_index, 1u);
  EXPECT_EQ(list[1].vsan_index, 7u);
  EXPECT_EQ(list[2].vsan_index, 4094u);
  EXPECT_STREQ(list[2].name, "VSAN name");
  ledger_.release_by_caller(list);
}

TEST_F(VsanAdaptor, AFailedReadEndsTheListEarlyAndSaysSo) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03"));
  script.expect(get_next(149).sap(15).sends(request_for(0))).replies(entry_message(1));
  script.expect(get_next(149).sap(15).sends(request_for(1))).status(kEndOfTable);
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(out_.out(), "vsan_cim_get_all_vsan only get 1 vsans of total 3 vsans\n");
  EXPECT_EQ(out_.err().rfind("vsan cim get vsan error: ", 0), 0u);
  ledger_.release_by_caller(list);
}

TEST_F(VsanAdaptor, AnEntryReadWithoutAReplyIsListedAsItWasAsked) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03"));
  script.expect(get_next(149).sap(15).sends(request_for(0))).replies(entry_message(6));
  script.expect(get_next(149).sap(15).sends(request_for(6))).ok_without_reply();
  script.expect(get_next(149).sap(15).sends(request_for(6))).replies(entry_message(8));
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(list[1].vsan_index, 6u);
  EXPECT_EQ(list[2].vsan_index, 8u);
  ledger_.release_by_caller(list);
}

TEST_F(VsanAdaptor, NoVsansIsAnEmptyListThatFreeTakes) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 00"));
  int32_t count = 5;
  vsanNewEntry_t* list = nullptr;
  ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
  EXPECT_EQ(count, 0);
  ledger_.release_by_caller(list);
}

TEST_F(VsanAdaptor, AnUnreadableCountGivesNoList) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).status(17);
  int32_t count = 5;
  vsanNewEntry_t some{};
  vsanNewEntry_t* list = &some;
  EXPECT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), -1);
  EXPECT_EQ(list, nullptr);
}

TEST_F(VsanAdaptor, AListNeedsAPlaceForItselfAndItsCount) {
  Script script;
  int32_t count = 5;
  vsanNewEntry_t* list = nullptr;
  EXPECT_EQ(vsan_cim_get_all_vsanEntry(kQueue, nullptr, &list), -1);
  EXPECT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, nullptr), -1);
  EXPECT_EQ(count, 5);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(VsanAdaptor, ANegativeCountGivesNoList) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("ff ff ff ff"));
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  EXPECT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), -1);
  EXPECT_EQ(list, nullptr);
}

TEST_F(VsanAdaptor, ACountThatNoSwitchHasIsTakenAs4096) {
  HeapLedger::Pause pause;
  Responder responder([](const Request& request) {
    if (request.opcode == 125) return Response::with(hex("7f ff ff ff"));
    return Response::with(entry_message(request.be32(520) + 1));
  });
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
  EXPECT_EQ(count, 4096);
  EXPECT_EQ(responder.calls(149), 4096u);
  std::free(list);
}

TEST_F(VsanAdaptor, AListWithoutMemoryIsAFailureAfterTheCount) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 03"));
  ledger_.fail_nth(1, Heap::c);
  int32_t count = 0;
  vsanNewEntry_t* list = nullptr;
  EXPECT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), -1);
  EXPECT_EQ(list, nullptr);
}

TEST_F(VsanAdaptor, AListAllocatesOneBlockWhateverItsLength) {
  for (const uint32_t vsans : {1u, 100u, 4094u}) {
    size_t allocations = 0;
    {
      HeapLedger::Pause pause;
      Responder responder([vsans](const Request& request) {
        HeapLedger::Pause inner;
        if (request.opcode == 125) return Response::with(Record(4).be32(0, vsans));
        return Response::with(entry_message(request.be32(520) + 1));
      });
      int32_t count = 0;
      vsanNewEntry_t* list = nullptr;
      HeapLedger counted;
      ASSERT_EQ(vsan_cim_get_all_vsanEntry(kQueue, &count, &list), 0);
      allocations = counted.allocations(Heap::c);
      EXPECT_EQ(count, static_cast<int32_t>(vsans));
      EXPECT_EQ(responder.calls(), 1u + vsans);
      std::free(list);
    }
    EXPECT_LE(allocations, 1u) << vsans;
  }
}

TEST_F(VsanAdaptor, ActivatingWritesOneAndLeavesTheRestAsRead) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(10))).replies(entry_message(10));
  Bytes change = Record(2632)
                     .be32(520, 10)
                     .be32(524, 0x01020304)
                     .be32(528, 1)
                     .be32(532, 0x05060708)
                     .put(536, hex("a1 a2 a3 a4"))
                     .be32(540, 0x090a0b0c)
                     .be32(544, 1)
                     .be32(548, 0x0d0e0f10)
                     .be32(552, 3)
                     .text(556, "VSAN name")
                     .byte(684, 0x77)
                     .byte(2627, 0x78);
  script.expect(set(149).sap(15).sends(change)).returns(0);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 2), 0);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(VsanAdaptor, SuspendingWritesTwo) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(3))).replies(Record(2632).be32(520, 3));
  script.expect(set(149).sap(15).sends(Record(2632).be32(520, 3).be32(528, 2))).returns(0);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 3, 3), 0);
}

TEST_F(VsanAdaptor, TheVsanAskedForIsTheOneChanged) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(3))).replies(Record(2632).be32(520, 77));
  script.expect(set(149).sap(15).sends(Record(2632).be32(520, 3).be32(528, 2))).returns(0);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 3, 3), 0);
}

TEST_F(VsanAdaptor, AnotherStateIsRefusedWithoutAMessageOrAnExchange) {
  Script script;
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 1), -1);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 4), -1);
  EXPECT_EQ(script.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(VsanAdaptor, AVsanThatCannotBeReadIsNotChanged) {
  Script script;
  script.expect(get(149).sap(15).any_request()).status(kEndOfTable);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 2), -1);
  EXPECT_NE(out_.out(), "");
}

TEST_F(VsanAdaptor, AVsanReadWithoutAReplyIsChangedAsItWasAsked) {
  Script script;
  script.expect(get(149).sap(15).sends(request_for(3))).ok_without_reply();
  script.expect(set(149).sap(15).sends(Record(2632).be32(520, 3).be32(528, 1))).returns(0);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 3, 2), 0);
}

TEST_F(VsanAdaptor, AChangeThatTimesOutIsPassedOnAndSaid) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(entry_message(10));
  script.expect(set(149).sap(15).any_request().length(2632)).times_out();
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 2), -1);
  EXPECT_EQ(out_.out(), "set Vsan State -  FAIL ret code is -1\n");
}

TEST_F(VsanAdaptor, ARefusedChangeIsPassedOnAndSaid) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(entry_message(10));
  script.expect(set(149).sap(15).any_request().length(2632)).status(17);
  EXPECT_EQ(vsan_cim_set_VsanEntry(kQueue, 10, 2), 17);
  EXPECT_EQ(out_.out(), "set Vsan State -  FAIL ret code is 17\n");
}

TEST(VsanIndex, GoesFromOneTo4096) {
  EXPECT_EQ(vsan_cim_check_vsan_index(0), -1);
  EXPECT_EQ(vsan_cim_check_vsan_index(1), 0);
  EXPECT_EQ(vsan_cim_check_vsan_index(4096), 0);
  EXPECT_EQ(vsan_cim_check_vsan_index(4097), -1);
}

mts_dm_sw_conf_ configuration(uint8_t enabled) {
  mts_dm_sw_conf_ conf{};
  conf.enabled = enabled;
  conf.vsan_wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
  conf.alternate_wwn = {{0x20, 0x0b, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2e}};
  return conf;
}

TEST_F(VsanAdaptor, TheKeyIsTheDomainManagersWwnWhereItRuns) {
  const mts_dm_sw_conf_ conf = configuration(5);
  char key[17];
  EXPECT_EQ(vsan_cim_get_vsan_key(key, 10, &conf), 0);
  EXPECT_STREQ(key, "200A000DEC0A1B2D");
  EXPECT_EQ(out_.out(), " vsan 10 dm enabled is 5\n vsan wwn is  200A000DEC0A1B2D \n");
}

TEST_F(VsanAdaptor, TheKeyIsTheAlternateWwnWhereTheDomainManagerDoesNotRun) {
  const mts_dm_sw_conf_ conf = configuration(0);
  char key[17];
  EXPECT_EQ(vsan_cim_get_vsan_key(key, 11, &conf), 0);
  EXPECT_STREQ(key, "200B000DEC0A1B2E");
  EXPECT_EQ(out_.out(), " vsan 11 dm enabled is 0\n vsan wwn is  200B000DEC0A1B2E \n");
}

TEST_F(VsanAdaptor, TheAdminDomainKeyIsTheSameTextWithoutTraces) {
  char key[17];
  mts_dm_sw_conf_ conf = configuration(1);
  EXPECT_EQ(vsan_cim_get_vsan_admindomain_key(key, &conf), 0);
  EXPECT_STREQ(key, "200A000DEC0A1B2D");
  conf = configuration(0);
  EXPECT_EQ(vsan_cim_get_vsan_admindomain_key(key, &conf), 0);
  EXPECT_STREQ(key, "200B000DEC0A1B2E");
  EXPECT_EQ(out_.out(), "");
}

TEST_F(VsanAdaptor, AKeyOfNoRecordIsAFailure) {
  char key[17] = "before";
  EXPECT_EQ(vsan_cim_get_vsan_key(key, 10, nullptr), -1);
  EXPECT_EQ(vsan_cim_get_vsan_admindomain_key(key, nullptr), -1);
  EXPECT_STREQ(key, "before");
}

struct KeyFields {
  uint32_t vsan = 0;
  char wwn[24] = {};
};

KeyFields fields_of(const char* key) {
  KeyFields fields;
  EXPECT_EQ(vsan_cim_get_vsan_key_fields(key, &fields.vsan, fields.wwn), 0);
  return fields;
}

TEST_F(VsanAdaptor, AKeyWithAColonGivesItsDecimalNumberAndZeros) {
  const KeyFields fields = fields_of("0000000000000000:12");
  EXPECT_EQ(fields.vsan, 12u);
  EXPECT_STREQ(fields.wwn, "0000000000000000");
  EXPECT_EQ(out_.out(), "else : Vsan_index is 12\n Vsan Index is 12\n");
}

TEST_F(VsanAdaptor, TheColonFormWritesNoTerminator) {
  KeyFields fields;
  std::memset(fields.wwn, 'x', sizeof fields.wwn);
  vsan_cim_get_vsan_key_fields("0000000000000000:12", &fields.vsan, fields.wwn);
  EXPECT_EQ(std::string(fields.wwn, 18), "0000000000000000xx");
}

TEST_F(VsanAdaptor, OnlyFourDigitsBehindTheColonCount) {
  EXPECT_EQ(fields_of("0000000000000000:123456").vsan, 1234u);
}

TEST_F(VsanAdaptor, BehindTheColonWhatIsNoNumberIsZero) {
  EXPECT_EQ(fields_of("0000000000000000:abc").vsan, 0u);
  EXPECT_EQ(fields_of("0000000000000000:").vsan, 0u);
  EXPECT_EQ(fields_of("::9").vsan, 0u);
}

TEST_F(VsanAdaptor, AWwnKeyCarriesTheNumberInItsCharactersOneToThree) {
  const KeyFields fields = fields_of("2005000DEC0A1B2C");
  EXPECT_EQ(fields.vsan, 5u);
  EXPECT_STREQ(fields.wwn, "2005000DEC0A1B2C");
  EXPECT_EQ(fields_of("2FFE000DEC0A1B2C").vsan, 4094u);
}

TEST_F(VsanAdaptor, AShortKeyIsReadAsFarAsItGoes) {
  EXPECT_EQ(fields_of("2").vsan, 0u);
  EXPECT_EQ(fields_of("").vsan, 0u);
  EXPECT_EQ(fields_of("21").vsan, 1u);
}

TEST_F(VsanAdaptor, ALongKeyGivesItsFirstSixteenCharacters) {
  const std::string key(300, '7');
  const KeyFields fields = fields_of(key.c_str());
  EXPECT_STREQ(fields.wwn, "7777777777777777");
  EXPECT_EQ(fields.vsan, 0x777u);
}

TEST_F(VsanAdaptor, AColonBehindThe127thCharacterIsNotSeen) {
  const std::string key = std::string(127, '1') + ":5";
  EXPECT_EQ(fields_of(key.c_str()).vsan, 0x111u);
}

TEST_F(VsanAdaptor, KeyFieldsRefuseNullArguments) {
  KeyFields fields;
  EXPECT_EQ(vsan_cim_get_vsan_key_fields(nullptr, &fields.vsan, fields.wwn), -1);
  EXPECT_EQ(vsan_cim_get_vsan_key_fields("1", nullptr, fields.wwn), -1);
  EXPECT_EQ(vsan_cim_get_vsan_key_fields("1", &fields.vsan, nullptr), -1);
}

TEST_F(VsanAdaptor, ThreeHexDigitsMakeANumberWithEveryTrace) {
  uint32_t value = 0;
  EXPECT_EQ(get_vsan_value('0', '1', 'F', &value), 0);
  EXPECT_EQ(value, 0x01fu);
  EXPECT_EQ(out_.out(),
            " High bit is 0, mid bit is 1, low bit is F"
            " Int value is 0, result is 0 \n"
            " Int value is 1, result is 1 \n"
            " Int value is 15, result is 31 \n"
            " Result is 31 \n"
            "vsan_index_p 31\n");
}

TEST_F(VsanAdaptor, ACharacterThatIsNoDigitIsSkippedWithoutAShift) {
  uint32_t value = 0;
  get_vsan_value('1', 'G', '3', &value);
  EXPECT_EQ(value, 0x13u);
}

TEST_F(VsanAdaptor, LowerCaseDigitsAreSkipped) {
  uint32_t value = 0;
  get_vsan_value('1', 'g', '3', &value);
  EXPECT_EQ(value, 0x13u);
  get_vsan_value('a', 'b', 'c', &value);
  EXPECT_EQ(value, 0u);
  get_vsan_value('a', '2', 'B', &value);
  EXPECT_EQ(value, 0x2bu);
  EXPECT_EQ(get_vsan_value('1', '2', '3', nullptr), 0);
}

TEST(HexMapTable, HoldsTheSixteenUpperCaseDigitsInOrder) {
  const char digits[] = "0123456789ABCDEF";
  for (uint32_t i = 0; i < 16; ++i) {
    EXPECT_EQ(HexMap[i].code, static_cast<uint32_t>(digits[i]));
    EXPECT_EQ(HexMap[i].value, i);
  }
  EXPECT_EQ(sizeof HexMap, 16u * 8u);
}

}  // namespace
