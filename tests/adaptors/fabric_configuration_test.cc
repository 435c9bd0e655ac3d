#include <cim_utils/collections.h>
#include <cim_utils/fabric_configuration.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

// The maker's WWN of switch n in VSAN v, and the one it has everywhere.
Bytes in_vsan(uint8_t vsan, uint8_t n) {
  return Bytes{0x20, vsan, 0x00, 0x0d, 0xec, 0x0a, 0x1b, static_cast<uint8_t>(n + 1)};
}
Bytes everywhere(uint8_t n) {
  return Bytes{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, n};
}

Bytes element_data(uint32_t vsan, const Bytes& wwn) {
  return Record(16).be32(0, 20).be32(4, vsan).put(8, wwn);
}

Bytes element_reply(uint32_t vsan, const Bytes& wwn) {
  return Record(32)
      .be32(0, vsan)
      .put(4, wwn)
      .be32(12, 0x01020304)
      .be32(16, 0x63)
      .put(20, hex("f1 f2 f3 f4"))
      .put(24, hex("a1 a2 a3 a4"))
      .put(28, hex("b1 b2 b3 b4"));
}

Exchange element(uint32_t vsan, const Bytes& wwn) {
  return get(1402).sap(20).sends(element_data(vsan, wwn)).last(0);
}

Exchange giel(uint32_t vsan) {
  return get(1401).sap(20).sends(Record(8).be32(0, vsan));
}

Bytes giel_reply(std::initializer_list<Bytes> wwns) {
  Bytes reply = Record(4).be32(0, static_cast<uint32_t>(wwns.size()));
  for (const Bytes& wwn : wwns)
    reply = joined({reply, wwn, hex("00 00 01 00")});
  return reply;
}

// The walk asks with the entry that it got last.
Exchange next_vsan(uint32_t after, uint32_t its_state) {
  return get_next(149).sap(15).sends(Record(2632).be32(520, after).be32(552, its_state));
}

Bytes vsan_reply(uint32_t vsan, uint32_t oper_state) {
  return Record(2632).be32(520, vsan).be32(552, oper_state);
}

class FabricConfiguration : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  fcs_cim_ie_ ie_{};
};

TEST_F(FabricConfiguration, OneExchangeSendsSelectorAndDataAndGivesTheWholeReply) {
  Script script;
  script.expect(get_next(1402).sap(20).sends(hex("00 00 00 14 de ad be ef 01")).last(0))
      .replies(hex("01 02 03 04 05"));
  uint8_t out[6] = {0, 0, 0, 0, 0, 0x77};
  EXPECT_EQ(fcs_get_data(kQueue, 20, 2, hex("de ad be ef 01").data(), 5, out), 0);
  EXPECT_EQ(Bytes(out, out + 6), hex("01 02 03 04 05 77"));
}

TEST_F(FabricConfiguration, OneExchangeSendsOneByteOfDataOrNone) {
  Script script;
  script.expect(get(1402).sap(20).sends(hex("01 02 03 04 aa")).last(0)).replies(hex("05"));
  script.expect(get(1402).sap(20).sends(hex("01 02 03 04")).last(0)).replies(hex("06"));
  uint8_t out = 0;
  EXPECT_EQ(fcs_get_data(kQueue, 0x01020304, 1, hex("aa").data(), 1, &out), 0);
  EXPECT_EQ(out, 5);
  EXPECT_EQ(fcs_get_data(kQueue, 0x01020304, 1, nullptr, 0, &out), 0);
  EXPECT_EQ(out, 6);
  script.expect(get(1402).sap(20).sends(hex("01 02 03 04")).last(0)).replies(hex("07"));
  EXPECT_EQ(fcs_get_data(kQueue, 0x01020304, 1, nullptr, 0, nullptr), 0);
}

TEST_F(FabricConfiguration, OneExchangeGivesNoByteBeyondTheReportedLength) {
  // The length still says 9, that of the request: nothing else is reported for the reply.
  Script script;
  script.expect(get_next(1402).sap(20).sends(hex("00 00 00 14 de ad be ef 01")).last(0))
      .replies(hex("01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10"))
      .length_left_alone();
  Bytes out(16, 0x77);
  EXPECT_EQ(fcs_get_data(kQueue, 20, 2, hex("de ad be ef 01").data(), 5, out.data()), 0);
  EXPECT_EQ(out, hex("01 02 03 04 05 06 07 08 09 77 77 77 77 77 77 77"));
}

TEST_F(FabricConfiguration, OneExchangeReadsNoByteBehindTheReply) {
  Script script;
  script.expect(get_next(1402).sap(20).sends(hex("00 00 00 14 de ad be ef 01")).last(0))
      .replies(hex("01 02 03"))
      .length_left_alone();
  Bytes out(9, 0x77);
  EXPECT_EQ(fcs_get_data(kQueue, 20, 2, hex("de ad be ef 01").data(), 5, out.data()), 0);
  EXPECT_EQ(out, hex("01 02 03 77 77 77 77 77 77"));
}

TEST_F(FabricConfiguration, AFailedExchangeIsAFailure) {
  Script script;
  script.expect(get(1402).sap(20).any_request().length(4).last(0)).status(17);
  script.expect(get(1402).sap(20).any_request().length(4).last(0)).ok_without_reply();
  script.expect(get(1402).sap(20).any_request().length(4).last(0)).times_out();
  script.expect(get(1402).sap(20).any_request().length(4).last(0)).status_with_reply(3, hex("01"));
  uint8_t out[4] = {};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(fcs_get_data(kQueue, 20, 1, nullptr, 0, out), -1);
  EXPECT_EQ(Bytes(out, out + 4), zeros(4));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(FabricConfiguration, BadDataIsAFailureWithoutAnExchange) {
  Script script;
  uint8_t out[4] = {};
  EXPECT_EQ(fcs_get_data(kQueue, 20, 1, out, -1, out), -1);
  EXPECT_EQ(fcs_get_data(kQueue, 20, 1, out, 0x7ffffffc, out), -1);
  EXPECT_EQ(fcs_get_data(kQueue, 20, 1, nullptr, 4, out), -1);
  ledger_.fail_nth(1, Heap::c);
  EXPECT_EQ(fcs_get_data(kQueue, 20, 1, out, 4, out), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(FabricConfiguration, AnElementIsReadByItsWwn) {
  Script script;
  script.expect(element(5, in_vsan(5, 0x2c))).replies(element_reply(5, in_vsan(5, 0x2c)));
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 5, in_vsan(5, 0x2c).data(), &ie_), 0);
  EXPECT_EQ(ie_.vsan, 5u);
  EXPECT_EQ(bytes_of(ie_.wwn), in_vsan(5, 0x2c));
  EXPECT_EQ(ie_.attribute_3, 0x01020304u);
  EXPECT_EQ(ie_.domain, 0x63u);
  EXPECT_EQ(bytes_of(ie_.attribute_5), hex("a1 a2 a3 a4"));
  EXPECT_EQ(bytes_of(ie_.attribute_6), hex("b1 b2 b3 b4"));
  EXPECT_EQ(sizeof ie_, 28u);
}

TEST_F(FabricConfiguration, AnElementIsReadWhenNoLengthIsReported) {
  Script script;
  script.expect(element(5, in_vsan(5, 1)))
      .replies(element_reply(5, in_vsan(5, 1)))
      .length_left_alone();
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 5, in_vsan(5, 1).data(), &ie_), 0);
  EXPECT_EQ(bytes_of(ie_.attribute_6), hex("b1 b2 b3 b4"));
}

TEST_F(FabricConfiguration, AnExactLookUpNeedsAVsanOf1To4094AndAWwn) {
  Script script;
  const Bytes wwn = in_vsan(1, 1);
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 0, wwn.data(), &ie_), -1);
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 4095, wwn.data(), &ie_), -1);
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 1, nullptr, &ie_), -1);
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 1, wwn.data(), nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
  script.expect(element(4094, wwn)).replies(element_reply(4094, wwn));
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 4094, wwn.data(), &ie_), 0);
}

TEST_F(FabricConfiguration, TheNextElementMayStartWithoutAWwnAndInAnyVsan) {
  Script script;
  script.expect(get_next(1402).sap(20).sends(element_data(4095, zeros(8))).last(0))
      .replies(element_reply(4095, in_vsan(1, 1)));
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 0, 4095, nullptr, &ie_), 0);
}

TEST_F(FabricConfiguration, ANextElementOfAnotherVsanIsNone) {
  Script script;
  script.expect(get_next(1402).sap(20).any_request().length(16).last(0))
      .replies(element_reply(6, in_vsan(6, 1)));
  EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 0, 5, in_vsan(5, 9).data(), &ie_), -1);
  EXPECT_EQ(ie_.vsan, 0u);
}

TEST_F(FabricConfiguration, EveryWayToGetNoElementIsAFailure) {
  Script script;
  const Bytes wwn = in_vsan(5, 1);
  script.expect(element(5, wwn)).status(17);
  script.expect(element(5, wwn)).ok_without_reply();
  script.expect(element(5, wwn)).times_out();
  script.expect(element(5, wwn)).replies(element_reply(5, wwn)).cut_to(31);
  script.expect(element(5, wwn)).replies(element_reply(5, wwn)).cut_to(31).length_left_alone();
  script.expect(element(5, wwn)).status_with_reply(17, element_reply(5, wwn));
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 5, wwn.data(), &ie_), -1) << i;
  EXPECT_EQ(bytes_of(ie_), zeros(28));
}

TEST_F(FabricConfiguration, EveryElementReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  const Bytes wwn = in_vsan(5, 1);
  sweep_replies(32, [&wwn] {
    fcs_cim_ie_ ie{};
    fcs_cim_get_ie_entry_with_wwn_hex(kQueue, 1, 5, wwn.data(), &ie);
  });
}

TEST_F(FabricConfiguration, TheWwnFormRefusesANullWwnAlsoForTheNext) {
  Script script;
  wwn_ wwn;
  std::memcpy(&wwn, in_vsan(5, 1).data(), sizeof wwn);
  EXPECT_EQ(fcs_cim_get_ie_entry(kQueue, 0, 5, nullptr, &ie_), -1);
  EXPECT_EQ(fcs_cim_get_ie_entry(kQueue, 1, 5, &wwn, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
  script.expect(element(5, in_vsan(5, 1))).replies(element_reply(5, in_vsan(5, 1)));
  EXPECT_EQ(fcs_cim_get_ie_entry(kQueue, 1, 5, &wwn, &ie_), 0);
}

TEST_F(FabricConfiguration, TheSearchTriesEveryVsanThatIsUp) {
  Script script;
  const Bytes wwn = in_vsan(3, 1);
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 2));
  script.expect(next_vsan(1, 2)).replies(vsan_reply(2, 1));
  script.expect(element(2, wwn)).status(17);
  script.expect(next_vsan(2, 1)).replies(vsan_reply(3, 1));
  script.expect(element(3, wwn)).replies(element_reply(3, wwn));
  EXPECT_EQ(fcs_cim_search_ie_entry_with_wwn_hex(kQueue, wwn.data()), 0);
}

TEST_F(FabricConfiguration, TheSearchFailsAtTheEndOfTheVsans) {
  Script script;
  const Bytes wwn = in_vsan(3, 1);
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 1));
  script.expect(element(1, wwn)).status(17);
  script.expect(next_vsan(1, 1)).status(17);
  EXPECT_EQ(fcs_cim_search_ie_entry_with_wwn_hex(kQueue, wwn.data()), -1);
}

TEST_F(FabricConfiguration, AWalkStopsWhenTheServiceDoesNotMoveForward) {
  Script script;
  const Bytes wwn = in_vsan(3, 1);
  script.expect(next_vsan(0, 0)).replies(vsan_reply(4, 2));
  script.expect(next_vsan(4, 2)).replies(vsan_reply(4, 1));
  EXPECT_EQ(fcs_cim_search_ie_entry_with_wwn_hex(kQueue, wwn.data()), -1);
  script.expect(next_vsan(0, 0)).ok_without_reply();
  EXPECT_EQ(fcs_cim_search_ie_entry_with_wwn_hex(kQueue, wwn.data()), -1);
}

GSList* list_of(const Bytes& wwn, int32_t expected) {
  GSList* list = nullptr;
  EXPECT_EQ(fcs_cim_get_ie_list_with_wwn_hex(kQueue, wwn.data(), &list), expected);
  return list;
}

TEST_F(FabricConfiguration, AVsanWwnIsLookedUpInItsVsanOnly) {
  Script script;
  script.expect(element(5, in_vsan(5, 1))).replies(element_reply(5, in_vsan(5, 1)));
  GSList* list = list_of(in_vsan(5, 1), 0);
  EXPECT_EQ(cim_g_slist_length(list), 1u);
  cim_g_slist_destroy(list, nullptr);
  script.expect(element(5, in_vsan(5, 1))).status(17);
  EXPECT_EQ(list_of(in_vsan(5, 1), -1), nullptr);
}

TEST_F(FabricConfiguration, ASwitchWwnIsLookedUpAsTheWwnOfEachVsanWhateverItsState) {
  Script script;
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 2));
  script.expect(element(1, in_vsan(1, 0x2c))).replies(element_reply(1, in_vsan(1, 0x2c)));
  script.expect(next_vsan(1, 2)).replies(vsan_reply(2, 1));
  script.expect(element(2, in_vsan(2, 0x2c))).status(17);
  script.expect(next_vsan(2, 1)).replies(vsan_reply(3, 1));
  script.expect(element(3, in_vsan(3, 0x2c))).replies(element_reply(3, in_vsan(3, 0x2c)));
  script.expect(next_vsan(3, 1)).status(17);
  GSList* list = list_of(everywhere(0x2c), 0);
  ASSERT_EQ(cim_g_slist_length(list), 2u);
  EXPECT_EQ(static_cast<fcs_cim_ie_*>(cim_g_slist_nth_data(list, 0))->vsan, 1u);
  EXPECT_EQ(static_cast<fcs_cim_ie_*>(cim_g_slist_nth_data(list, 1))->vsan, 3u);
  cim_g_slist_destroy(list, nullptr);
}

TEST_F(FabricConfiguration, AnotherMakersWwnIsLookedUpAsItIs) {
  Script script;
  const Bytes wwn = hex("10 05 00 60 69 0a 1b 2c");
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 1));
  script.expect(element(1, wwn)).replies(element_reply(1, wwn));
  script.expect(next_vsan(1, 1)).status(17);
  GSList* list = list_of(wwn, 0);
  EXPECT_EQ(cim_g_slist_length(list), 1u);
  cim_g_slist_destroy(list, nullptr);
}

TEST_F(FabricConfiguration, AnElementListRefusesNullArguments) {
  GSList* list = nullptr;
  EXPECT_EQ(fcs_cim_get_ie_list_with_wwn_hex(kQueue, nullptr, &list), -1);
  EXPECT_EQ(fcs_cim_get_ie_list_with_wwn_hex(kQueue, in_vsan(1, 1).data(), nullptr), -1);
}

std::vector<uint32_t> vsans_of(GSList* list) {
  std::vector<uint32_t> vsans;
  for (guint i = 0; i < cim_g_slist_length(list); ++i)
    vsans.push_back(static_cast<fcs_cim_ie_*>(cim_g_slist_nth_data(list, i))->vsan);
  return vsans;
}

TEST_F(FabricConfiguration, EveryFailingAllocationOfAnElementListLosesNothing) {
  Responder responder([](const Request& request) {
    HeapLedger::Pause inner;
    if (request.opcode == 149) {
      return request.be32(520) < 3 ? Response::with(vsan_reply(request.be32(520) + 1, 1))
                                   : Response::failed(17);
    }
    return Response::with(element_reply(request.be32(4), in_vsan(1, 1)));
  });
  size_t rounds = for_every_failing_allocation(
      [](FailingAllocation& round) {
        GSList* list = nullptr;
        const Bytes wwn = everywhere(0x2c);
        const int32_t result = round.attempt(
            [&] { return fcs_cim_get_ie_list_with_wwn_hex(kQueue, wwn.data(), &list); });
        EXPECT_EQ(result, list != nullptr ? 0 : -1);
        EXPECT_TRUE(round.was_hit() || cim_g_slist_length(list) == 3);
        cim_g_slist_destroy(list, nullptr);
      },
      Heap::c);
  EXPECT_GT(rounds, 6u);
  // And every failing exchange: a walk that ends there, or an element less.
  const std::vector<uint32_t> left[] = {{}, {2, 3}, {1}, {1, 3}, {1, 2}, {1, 2}, {1, 2, 3}};
  size_t n = 0;
  for (const std::vector<uint32_t>& vsans : left) {
    responder.fail_nth_exchange(++n, 17);
    GSList* list = nullptr;
    EXPECT_EQ(fcs_cim_get_ie_list_with_wwn_hex(kQueue, everywhere(0x2c).data(), &list),
              vsans.empty() ? -1 : 0)
        << n;
    EXPECT_EQ(vsans_of(list), vsans) << n;
    cim_g_slist_destroy(list, nullptr);
  }
}

TEST_F(FabricConfiguration, TheListOfAVsanHoldsTheElementsThatCount) {
  Script script;
  Bytes reply = Record(4 + 36)
                    .be32(0, 3)
                    .put(4, in_vsan(5, 1))
                    .put(12, hex("a1 a2 01 a4"))
                    .put(16, in_vsan(5, 2))
                    .put(24, hex("ff ff 00 ff"))
                    .put(28, in_vsan(5, 3))
                    .put(36, hex("00 00 80 00"));
  script.expect(giel(5)).replies(reply);
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 0;
  ASSERT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), 0);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(bytes_of(entries[0].wwn), in_vsan(5, 1));
  EXPECT_EQ(bytes_of(entries[0].flags), hex("a1 a2 01 a4"));
  EXPECT_EQ(bytes_of(entries[1].wwn), in_vsan(5, 3));
  ledger_.release_by_caller(entries);
}

TEST_F(FabricConfiguration, AnAnnouncedCountIsClampedToWhatTheReplyHolds) {
  for (const bool told : {true, false}) {
    Script script;
    Bytes reply = giel_reply({in_vsan(5, 1), in_vsan(5, 2)});
    reply[0] = 0x7f;
    auto line = script.expect(giel(5));
    line.replies(reply).cut_to(27);
    if (!told) line.length_left_alone();
    fcs_giel_entry_* entries = nullptr;
    int32_t count = 0;
    ASSERT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), 0);
    EXPECT_EQ(count, 1);
    ledger_.release_by_caller(entries);
  }
}

TEST_F(FabricConfiguration, ANegativeStatusOfTheListIsReportedByTheSystem) {
  Script script;
  script.expect(giel(5)).times_out();
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 9;
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), -1);
  EXPECT_EQ(out_.err().rfind("fcs cim get ies in vsan error\n: ", 0), 0u);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(count, 9);
}

TEST_F(FabricConfiguration, APositiveStatusOfTheListIsPrintedByItsText) {
  Script script;
  script.text_for("syserr2str", 17, "seventeen");
  script.expect(giel(5)).status_with_reply(17, giel_reply({in_vsan(5, 1)}));
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 9;
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), -1);
  EXPECT_EQ(out_.out(), "Error: seventeen\n");
  EXPECT_EQ(out_.err(), "");
}

TEST_F(FabricConfiguration, NoListIsASilentFailure) {
  Script script;
  script.expect(giel(5)).ok_without_reply();
  script.expect(giel(5)).replies(giel_reply({})).cut_to(3);
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 9;
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), -1);
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, nullptr, &count), -1);
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, nullptr), -1);
}

TEST_F(FabricConfiguration, AListWithoutMemoryIsAFailure) {
  Script script;
  script.expect(giel(5)).replies(giel_reply({in_vsan(5, 1)}));
  ledger_.fail_nth(1, Heap::c);
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 9;
  EXPECT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), -1);
  EXPECT_EQ(entries, nullptr);
  EXPECT_EQ(count, 9);
}

TEST_F(FabricConfiguration, EveryListReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(40, [] {
    fcs_giel_entry_* entries = nullptr;
    int32_t count = 0;
    if (fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count) == 0) std::free(entries);
  });
}

TEST_F(FabricConfiguration, AnElementThatCannotBeReadIsLeftOut) {
  Script script;
  script.expect(giel(5)).replies(giel_reply({in_vsan(5, 1), in_vsan(5, 0x0e), in_vsan(5, 3)}));
  script.expect(element(5, in_vsan(5, 1))).replies(element_reply(5, in_vsan(5, 1)));
  script.expect(element(5, in_vsan(5, 0x0e))).status(17);
  script.expect(element(5, in_vsan(5, 3))).replies(element_reply(5, in_vsan(5, 3)));
  int32_t count = 0;
  fcs_cim_ie_* elements = nullptr;
  ASSERT_EQ(fcs_cim_get_ie_entries_in_vsan(kQueue, 5, &count, &elements), 0);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(bytes_of(elements[0].wwn), in_vsan(5, 1));
  EXPECT_EQ(bytes_of(elements[1].wwn), in_vsan(5, 3));
  // Byte 7 of the WWN, 0x0f, padded.
  EXPECT_EQ(out_.out(), "\tfcs get ie entry fail for  F\n");
  ledger_.release_by_caller(elements);
}

TEST_F(FabricConfiguration, AVsanWithoutElementsHasNoRecords) {
  Script script;
  script.expect(giel(5)).replies(giel_reply({}));
  int32_t count = 9;
  fcs_cim_ie_* elements = &ie_;
  EXPECT_EQ(fcs_cim_get_ie_entries_in_vsan(kQueue, 5, &count, &elements), 0);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(elements, nullptr);
}

TEST_F(FabricConfiguration, AnUnreadableListSaysSo) {
  Script script;
  script.expect(giel(5)).ok_without_reply();
  int32_t count = 9;
  fcs_cim_ie_* elements = nullptr;
  EXPECT_EQ(fcs_cim_get_ie_entries_in_vsan(kQueue, 5, &count, &elements), -1);
  EXPECT_EQ(out_.out(), "fcs get giel_reply error");
  EXPECT_EQ(fcs_cim_get_ie_entries_in_vsan(kQueue, 5, nullptr, &elements), -1);
  EXPECT_EQ(fcs_cim_get_ie_entries_in_vsan(kQueue, 5, &count, nullptr), -1);
}

TEST_F(FabricConfiguration, EveryFailingAllocationOfTheRecordsLosesNothing) {
  Responder responder([](const Request& request) {
    HeapLedger::Pause inner;
    if (request.opcode == 1401) return Response::with(giel_reply({in_vsan(5, 1), in_vsan(5, 2)}));
    return Response::with(element_reply(5, in_vsan(5, 1)));
  });
  // What is left when there is no memory for the list, the records, one request each, or none.
  const struct {
    int32_t result;
    int32_t count;
    const char* printed;
  } left[] = {{-1, 9, "fcs get giel_reply error"},
              {-1, 0, ""},
              {0, 1, "\tfcs get ie entry fail for  2\n"},
              {0, 1, "\tfcs get ie entry fail for  3\n"},
              {0, 2, ""}};
  size_t round_number = 0;
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        ASSERT_LT(round_number, std::size(left));
        const auto& expected = left[round_number++];
        int32_t count = 9;
        fcs_cim_ie_* elements = nullptr;
        out_.clear();
        EXPECT_EQ(round.attempt(
                      [&] { return fcs_cim_get_ie_entries_in_vsan(kQueue, 5, &count, &elements); }),
                  expected.result)
            << round_number;
        EXPECT_EQ(count, expected.count) << round_number;
        EXPECT_EQ(out_.out(), expected.printed) << round_number;
        EXPECT_EQ(elements != nullptr, expected.result == 0) << round_number;
        std::free(elements);
      },
      Heap::c);
  EXPECT_EQ(rounds, 5u);
}

// The texts of a list, which is destroyed.
std::vector<std::string> texts_of(GSList* list) {
  HeapLedger::Pause pause;
  std::vector<std::string> texts;
  for (guint i = 0; i < cim_g_slist_length(list); ++i)
    texts.emplace_back(static_cast<const char*>(cim_g_slist_nth_data(list, i)));
  cim_g_slist_destroy(list, nullptr);
  return texts;
}

std::vector<std::string> physical_switches(int32_t expected) {
  GSList* list = nullptr;
  EXPECT_EQ(fcs_cim_get_physical_switch_wwn_lists(kQueue, &list), expected);
  return texts_of(list);
}

TEST_F(FabricConfiguration, ASwitchInThreeVsansIsOnePhysicalSwitch) {
  Script script;
  for (uint8_t vsan = 1; vsan <= 3; ++vsan) {
    script.expect(next_vsan(vsan - 1u, vsan > 1 ? 1 : 0)).replies(vsan_reply(vsan, 1));
    script.expect(giel(vsan)).replies(giel_reply({in_vsan(vsan, 0x2c), in_vsan(vsan, 0x3c)}));
    script.expect(element(vsan, in_vsan(vsan, 0x2c)))
        .replies(element_reply(vsan, in_vsan(vsan, 0x2c)));
    script.expect(element(vsan, in_vsan(vsan, 0x3c)))
        .replies(element_reply(vsan, in_vsan(vsan, 0x3c)));
  }
  script.expect(next_vsan(3, 1)).status(17);
  EXPECT_EQ(physical_switches(0),
            (std::vector<std::string>{"2000000DEC0A1B2C", "2000000DEC0A1B3C"}));
}

TEST_F(FabricConfiguration, AnotherMakersSwitchIsListedByItsOwnWwn) {
  Script script;
  const Bytes wwn = hex("10 05 00 60 69 0a 1b 2c");
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 1));
  script.expect(giel(1)).replies(giel_reply({wwn}));
  script.expect(element(1, wwn)).replies(element_reply(1, wwn));
  script.expect(next_vsan(1, 1)).status(17);
  EXPECT_EQ(physical_switches(0), std::vector<std::string>{"10050060690A1B2C"});
}

TEST_F(FabricConfiguration, WithNoVsanUpTheLocalSwitchIsTheOnlyPhysicalOne) {
  Script script;
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 2));
  script.expect(next_vsan(1, 2)).replies(vsan_reply(2, 3));
  script.expect(next_vsan(2, 3)).status(17);
  script.expect(get(1282).sap(46).no_request().length(0)).replies(everywhere(0x2c));
  EXPECT_EQ(physical_switches(0), std::vector<std::string>{"2000000DEC0A1B2C"});
}

TEST_F(FabricConfiguration, AVsanWhoseElementsCannotBeReadIsSkipped) {
  Script script;
  script.expect(next_vsan(0, 0)).replies(vsan_reply(1, 1));
  script.expect(giel(1)).status(17);
  script.expect(next_vsan(1, 1)).replies(vsan_reply(2, 1));
  script.expect(giel(2)).replies(giel_reply({in_vsan(2, 0x2c)}));
  script.expect(element(2, in_vsan(2, 0x2c))).replies(element_reply(2, in_vsan(2, 0x2c)));
  script.expect(next_vsan(2, 1)).status(17);
  EXPECT_EQ(physical_switches(0), std::vector<std::string>{"2000000DEC0A1B2C"});
}

TEST_F(FabricConfiguration, WithoutElementsAndALocalWwnThereIsNoPhysicalSwitch) {
  Script script;
  script.expect(next_vsan(0, 0)).status(17);
  script.expect(get(1282).sap(46).no_request().length(0)).status(17);
  EXPECT_TRUE(physical_switches(-1).empty());
  EXPECT_EQ(fcs_cim_get_physical_switch_wwn_lists(kQueue, nullptr), -1);
}

TEST_F(FabricConfiguration, EveryFailingAllocationAndExchangeOfThePhysicalListLosesNothing) {
  Responder responder([](const Request& request) {
    HeapLedger::Pause inner;
    if (request.opcode == 149) {
      return request.be32(520) < 3 ? Response::with(vsan_reply(request.be32(520) + 1, 1))
                                   : Response::failed(17);
    }
    if (request.opcode == 1401) {
      const auto vsan = static_cast<uint8_t>(request.be32(0));
      return Response::with(giel_reply({in_vsan(vsan, 1), in_vsan(vsan, 2)}));
    }
    if (request.opcode == 1282) return Response::with(everywhere(1));
    return Response::with(
        element_reply(request.be32(4), Bytes(request.body->begin() + 8, request.body->end())));
  });
  const std::vector<std::string> both = {"2000000DEC0A1B01", "2000000DEC0A1B02"};
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        GSList* list = nullptr;
        const int32_t result =
            round.attempt([&] { return fcs_cim_get_physical_switch_wwn_lists(kQueue, &list); });
        EXPECT_EQ(result, list != nullptr ? 0 : -1);
        EXPECT_TRUE(round.was_hit() || cim_g_slist_length(list) == 2);
        cim_g_slist_destroy(list, nullptr);
      },
      Heap::c);
  EXPECT_GT(rounds, 10u);
  // Without the first VSAN only the local switch is known; without the first element of VSAN 1 its
  // switch is found in VSAN 2, behind the other one.
  for (size_t n = 1; n <= 13; ++n) {
    std::vector<std::string> expected = both;
    if (n == 1) expected = {"2000000DEC0A1B01"};
    if (n == 3) expected = {"2000000DEC0A1B02", "2000000DEC0A1B01"};
    responder.fail_nth_exchange(n, 17);
    EXPECT_EQ(physical_switches(0), expected) << n;
  }
}

TEST(ElementType, IsReplacedAndTheOldOneReturned) {
  const struct {
    uint32_t in;
    uint32_t out;
  } rows[] = {{1, 3}, {2, 4}, {3, 5}, {0, 1}, {4, 1}, {0xffffffff, 1}};
  for (const auto& row : rows) {
    uint32_t type = row.in;
    EXPECT_EQ(fcs_map_ie_type(&type), row.in);
    EXPECT_EQ(type, row.out);
  }
  EXPECT_EQ(fcs_map_ie_type(nullptr), 0u);
}

TEST(ElementRecord, ConvertsWordsZeroThreeAndFour) {
  fcs_cim_ie_ ie{};
  const Bytes before = hex(
      "01 02 03 04  11 12 13 14 15 16 17 18  21 22 23 24  31 32 33 34  41 42 43 44  51 52 53 54");
  const Bytes after = hex(
      "04 03 02 01  11 12 13 14 15 16 17 18  24 23 22 21  34 33 32 31  41 42 43 44  51 52 53 54");
  std::memcpy(&ie, before.data(), sizeof ie);
  fcs_cim_ie_entry_hton(&ie);
  EXPECT_EQ(bytes_of(ie), after);
  fcs_cim_ie_entry_ntoh(&ie);
  EXPECT_EQ(bytes_of(ie), before);
  fcs_cim_ie_entry_hton(nullptr);
  fcs_cim_ie_entry_ntoh(nullptr);
}

TEST(ListEntry, ConversionSetsTheFlagsToZero) {
  const Bytes before = hex("01 02 03 04 05 06 07 08 09 0a 0b 0c");
  const Bytes after = hex("01 02 03 04 05 06 07 08 00 00 00 00");
  fcs_giel_entry_ entry;
  std::memcpy(&entry, before.data(), sizeof entry);
  fcs_cim_giel_hton(&entry);
  EXPECT_EQ(bytes_of(entry), after);
  std::memcpy(&entry, before.data(), sizeof entry);
  fcs_cim_giel_ntoh(&entry);
  EXPECT_EQ(bytes_of(entry), after);
  fcs_cim_giel_hton(nullptr);
  fcs_cim_giel_ntoh(nullptr);
}

TEST(TraceText, OfAWwnIsItsLastBytePadded) {
  char text[4] = "xxx";
  sprint_wwn(text, hex("20 00 00 0d ec 0a 1b 0f").data());
  EXPECT_STREQ(text, " F");
  sprint_wwn(text, hex("20 00 00 0d ec 0a 1b 2c").data());
  EXPECT_STREQ(text, "2C");
  sprint_wwn(nullptr, nullptr);
}

// A bit set of 64 bits, one of them set.
Bytes bit_set(int bit) {
  return Record(260).be32(0, 64).byte(4 + static_cast<size_t>(bit) / 8,
                                      static_cast<uint8_t>(1 << (bit % 8)));
}

TEST(BitSetLength, IsOneMoreThanTheBytesTouchedUnlessTheLastBitEndsAByte) {
  const struct {
    int last;
    int32_t length;
  } rows[] = {{0, 2}, {7, 1}, {8, 3}, {15, 2}, {16, 4}, {63, 8}};
  for (const auto& row : rows)
    EXPECT_EQ(fcs_trim_trailing_blanks(bit_set(row.last).data()), row.length) << row.last;
}

TEST(BitSetLength, CountsToTheLastBitSet) {
  const Bytes bits = Record(260).be32(0, 64).byte(4, 0xff).byte(6, 0x81);
  EXPECT_EQ(fcs_trim_trailing_blanks(bits.data()), 3);  // bit 23 ends a byte
}

TEST(BitSetLength, IsZeroWithoutABit) {
  const uint8_t none[64] = {};
  EXPECT_EQ(fcs_trim_trailing_blanks(none), 0);
  EXPECT_EQ(fcs_trim_trailing_blanks(nullptr), 0);
}

}  // namespace
