#include <cim_utils/collections.h>
#include <cim_utils/fspf.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "tests/adaptors/reply_sweep.h"
#include "tests/links/link_doubles.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

using Words = std::vector<uint32_t>;

Exchange lsr_of(uint32_t vsan, uint32_t domain) {
  return get(53).sap(29).sends(Record(36).be32(0, vsan).be32(4, domain).be32(8, 1));
}

// A link of the switch with the domain, on the wire.
Bytes link(uint32_t domain, uint32_t if_index, uint32_t remote_if_index = 2) {
  return Record(36).be32(4, domain).be32(16, 0x77).be32(20, if_index).be32(24, remote_if_index);
}

Bytes lsr_reply(uint32_t announced, const std::vector<Bytes>& links) {
  Bytes reply = Record(36).be32(28, announced);
  for (const Bytes& one : links)
    reply = joined({reply, one});
  return reply;
}

Bytes lsr_reply(const std::vector<Bytes>& links) {
  return lsr_reply(static_cast<uint32_t>(links.size()), links);
}

Words words_of(const void* record, size_t count = 9) {
  Words words(count);
  std::memcpy(words.data(), record, count * sizeof(uint32_t));
  return words;
}

// The interface indexes of this end, link by link.
Words if_indexes(const fspfLinkEntry* links, size_t count) {
  Words found;
  for (size_t i = 0; i < count; ++i)
    found.push_back(links[i].if_index);
  return found;
}

const fspfLinkEntry* links_behind(const fspf_lsr_* lsr) {
  return reinterpret_cast<const fspfLinkEntry*>(lsr + 1);
}

class Fspf : public testing::Test {
 protected:
  // The links' this-end interfaces of an LSR with these links.
  Words read(const std::vector<Bytes>& links) {
    Script script;
    script.expect(lsr_of(5, 0x63)).replies(lsr_reply(links));
    fspf_lsr_* lsr = nullptr;
    EXPECT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
    if (lsr == nullptr) return {};
    Words found = if_indexes(links_behind(lsr), lsr->link_count);
    ledger_.release_by_caller(lsr);
    return found;
  }

  HeapLedger ledger_;
  StdioCapture out_;
  InterfaceIndexes indexes_;
};

TEST_F(Fspf, AnLsrIsAHeaderAndLinksInHostOrder) {
  Script script;
  Bytes reply = Record(72)
                    .be32(0, 0xa0000000)
                    .be32(4, 0xa1)
                    .be32(8, 0xa2)
                    .be32(12, 0xa3)
                    .be32(16, 0xa4)
                    .be32(20, 0xa5)
                    .be32(24, 0xa60000)
                    .be32(28, 1)
                    .put(32, hex("01 02 03 04"))
                    .be32(36, 0x01020304)
                    .be32(40, 0x63)
                    .be32(44, 0x02)
                    .be32(48, 0x03)
                    .be32(52, 0x64)
                    .be32(56, 5)
                    .be32(60, 6)
                    .be32(64, 0x07)
                    .be32(68, 0x08090a0b);
  script.expect(lsr_of(5, 0x63)).replies(reply);
  fspf_lsr_* lsr = nullptr;
  ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
  EXPECT_EQ(words_of(lsr, 8), (Words{0xa0000000, 0xa1, 0xa2, 0xa3, 0xa4, 0xa5, 0xa60000, 1}));
  // Word 8 travels unconverted.
  EXPECT_EQ(bytes_of(lsr->word_8), hex("01 02 03 04"));
  EXPECT_EQ(words_of(lsr + 1), (Words{0x01020304, 0x63, 2, 3, 0x64, 5, 6, 7, 0x08090a0b}));
  EXPECT_EQ(out_.out() + out_.err(), "");
  ledger_.release_by_caller(lsr);
}

TEST_F(Fspf, TheFourthArgumentIsNotRead) {
  Script script;
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({}));
  fspf_lsr_* lsr = nullptr;
  ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 99, &lsr), 0);
  EXPECT_EQ(lsr->link_count, 0u);
  ledger_.release_by_caller(lsr);
}

TEST_F(Fspf, AnIndexAbove256IsReplacedByThePlatforms) {
  Script script;
  indexes_.converts(300, 0x01000005).converts(257, 0x04000001);
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 300, 257)}));
  fspf_lsr_* lsr = nullptr;
  ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
  EXPECT_EQ(links_behind(lsr)->if_index, 0x01000005u);
  EXPECT_EQ(links_behind(lsr)->remote_if_index, 0x04000001u);
  ledger_.release_by_caller(lsr);
  // The type is that of the platform's index.
  EXPECT_EQ(indexes_.take_calls(),
            (std::vector<std::string>{"convert 300", "convert 257", "type 16777221"}));
}

TEST_F(Fspf, AnIndexThatIsNotConvertedIsKept) {
  EXPECT_EQ(read({link(0x63, 300)}), Words{300});
  EXPECT_EQ(indexes_.take_calls(), (std::vector<std::string>{"convert 300", "type 300"}));
}

TEST_F(Fspf, AnIndexUpTo256IsKeptUnasked) {
  indexes_.converts(256, 1).converts(2, 1);
  EXPECT_EQ(read({link(0x63, 256)}), Words{256});
  EXPECT_EQ(indexes_.take_calls(), std::vector<std::string>{"type 256"});
}

TEST_F(Fspf, AnIndexWithTheTopBitSetIsNegativeAndKept) {
  indexes_.converts(0x80000001, 1);
  EXPECT_EQ(read({link(0x63, 0x80000001)}), Words{0x80000001});
}

TEST_F(Fspf, AConversionIsToldInNetworkOrder) {
  indexes_.converts(0x00080801, 0x01010001);
  EXPECT_EQ(read({link(0x63, 0x00080801)}), Words{0x01010001});
}

TEST_F(Fspf, ALinkOfAnInternalInterfaceIsDropped) {
  indexes_.type(11, 1).type(12, 16).type(14, 16);
  // The type of 13 cannot be told.
  EXPECT_EQ(read({link(0x63, 11), link(0x63, 12), link(0x63, 13), link(0x63, 14)}),
            (Words{11, 13}));
}

TEST_F(Fspf, AnInternalInterfaceOfTheFarEndDoesNotMatter) {
  indexes_.type(11, 1).type(12, 16);
  EXPECT_EQ(read({link(0x63, 11, 12)}), Words{11});
}

TEST_F(Fspf, TheTypeLookedAtIsThatOfTheConvertedIndex) {
  indexes_.converts(300, 0x10000001).type(0x10000001, 16).type(300, 1);
  EXPECT_EQ(read({link(0x63, 300), link(0x63, 7)}), Words{7});
}

TEST_F(Fspf, EveryWayToGetNoLsrIsReported) {
  Script script;
  script.expect(lsr_of(5, 0x63)).status(17);
  script.expect(lsr_of(5, 0x63)).ok_without_reply();
  script.expect(lsr_of(5, 0x63)).times_out();
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({})).cut_to(35);
  script.expect(lsr_of(5, 0x63)).status_with_reply(3, lsr_reply({link(0x63, 1)}));
  for (int i = 0; i < 5; ++i) {
    fspf_lsr_ old{};
    fspf_lsr_* lsr = &old;
    EXPECT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), -1) << i;
    EXPECT_EQ(lsr, nullptr) << i;
  }
  EXPECT_EQ(out_.out(), "");
  const std::string err = out_.err();
  size_t lines = 0;
  for (size_t at = 0; (at = err.find("get fspf lsr error: ", at)) != std::string::npos; ++at)
    ++lines;
  EXPECT_EQ(lines, 5u) << err;
}

TEST_F(Fspf, AnAnnouncedCountIsClampedToWhatTheReplyHolds) {
  for (const bool told : {true, false}) {
    Script script;
    auto line = script.expect(lsr_of(5, 0x63));
    line.replies(lsr_reply(0xffffffff, {link(0x63, 1), link(0x63, 2), link(0x63, 3)}))
        .cut_to(36 + 36 + 35);
    if (!told) line.length_left_alone();
    fspf_lsr_* lsr = nullptr;
    ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
    EXPECT_EQ(lsr->link_count, 1u);
    ledger_.release_by_caller(lsr);
  }
}

TEST_F(Fspf, LinksBehindTheAnnouncedCountAreNone) {
  Script script;
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply(1, {link(0x63, 1), link(0x63, 2)}));
  fspf_lsr_* lsr = nullptr;
  ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
  EXPECT_EQ(lsr->link_count, 1u);
  ledger_.release_by_caller(lsr);
}

TEST_F(Fspf, AReplyWhoseLengthIsLeftAloneIsReadWhole) {
  Script script;
  script.expect(lsr_of(5, 0x63))
      .replies(lsr_reply({link(0x63, 1), link(0x63, 2)}))
      .length_left_alone();
  fspf_lsr_* lsr = nullptr;
  ASSERT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr), 0);
  EXPECT_EQ(lsr->link_count, 2u);
  ledger_.release_by_caller(lsr);
}

TEST_F(Fspf, EveryReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(72, [this] {
    fspf_lsr_* lsr = nullptr;
    fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, &lsr);
    std::free(lsr);
    indexes_.take_calls();
  });
}

TEST_F(Fspf, NoPlaceForTheResultIsAFailureWithoutAnExchange) {
  Script script;
  int32_t count = 9;
  fspfLinkEntry* links = nullptr;
  GSList* list = nullptr;
  const wwn_ wwn{};
  EXPECT_EQ(fspf_cim_get_fspfLSR(kQueue, 5, 0x63, 1, nullptr), -1);
  EXPECT_EQ(fspf_cim_get_fspfLink(kQueue, 5, 0x63, 1, nullptr), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 1, nullptr, &links), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 1, &count, nullptr), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_vsan(kQueue, 5, nullptr, 0, &links), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_vsan(kQueue, 5, &count, 0, nullptr), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(kQueue, nullptr, 1, &list), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(kQueue, wwn.bytes, 1, nullptr), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_pwwn(kQueue, nullptr, &list), -1);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_pwwn(kQueue, &wwn, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(Fspf, OfTwoLinksOfOneInterfaceTheLaterOneIsFound) {
  Script script;
  script.expect(lsr_of(5, 0x63))
      .replies(lsr_reply({link(0x63, 7, 1), link(0x63, 7, 2), link(0x63, 8, 3)}));
  fspfLinkEntry found{};
  ASSERT_EQ(fspf_cim_get_fspfLink(kQueue, 5, 0x63, 7, &found), 0);
  EXPECT_EQ(words_of(&found), (Words{0, 0x63, 0, 0, 0x77, 7, 2, 0, 0}));
}

TEST_F(Fspf, AnInterfaceWithoutALinkLeavesTheResult) {
  Script script;
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 8)}));
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({}));
  script.expect(lsr_of(5, 0x63)).status(17);
  fspfLinkEntry found{};
  found.word_0 = 0x55;
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(fspf_cim_get_fspfLink(kQueue, 5, 0x63, 7, &found), -1) << i;
  EXPECT_EQ(words_of(&found), (Words{0x55, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(Fspf, ASwitchsLinksAreAnArray) {
  Script script;
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 7, 1), link(0x63, 8, 2)}));
  int32_t count = 0;
  fspfLinkEntry* links = nullptr;
  ASSERT_EQ(fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 0x63, &count, &links), 0);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(words_of(&links[0]), (Words{0, 0x63, 0, 0, 0x77, 7, 1, 0, 0}));
  EXPECT_EQ(words_of(&links[1]), (Words{0, 0x63, 0, 0, 0x77, 8, 2, 0, 0}));
  ledger_.release_by_caller(links);
}

TEST_F(Fspf, ASwitchWithoutLinksHasNone) {
  Script script;
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({}));
  int32_t count = 9;
  fspfLinkEntry* links = nullptr;
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 0x63, &count, &links), 0);
  EXPECT_EQ(count, 0);
  ledger_.release_by_caller(links);
}

TEST_F(Fspf, AnUnreadableSwitchsLinksAreNone) {
  Script script;
  script.expect(lsr_of(5, 0x63)).status(17);
  int32_t count = 9;
  fspfLinkEntry old{};
  fspfLinkEntry* links = &old;
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 0x63, &count, &links), -1);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(links, nullptr);
}

TEST_F(Fspf, EveryFailingAllocationOfASwitchsLinksLosesNothing) {
  Responder responder([](const Request&) {
    HeapLedger::Pause inner;
    return Response::with(lsr_reply({link(0x63, 7)}));
  });
  const size_t rounds = for_every_failing_allocation(
      [](FailingAllocation& round) {
        int32_t count = 9;
        fspfLinkEntry* links = nullptr;
        const int32_t status = round.attempt(
            [&] { return fspf_cim_get_all_fspfLinks_of_domain(kQueue, 5, 1, &count, &links); });
        EXPECT_EQ(status, round.was_hit() ? -1 : 0);
        EXPECT_EQ(count, round.was_hit() ? 0 : 1);
        std::free(links);
      },
      Heap::c);
  EXPECT_EQ(rounds, 3u);  // the record and the array
}

// ---- A whole VSAN -------------------------------------------------------------------------

Bytes switch_wwn(uint8_t vsan, uint8_t n) {
  return Bytes{0x20, vsan, 0x00, 0x0d, 0xec, 0x0a, 0x1b, n};
}

// Switch n of the VSAN has the domain 0x60 + n.
Bytes element_reply(uint32_t vsan, uint8_t n) {
  return Record(32)
      .be32(0, vsan)
      .put(4, switch_wwn(static_cast<uint8_t>(vsan), n))
      .be32(16, 0x60u + n);
}

Exchange element_of(uint32_t vsan, uint8_t n) {
  return get(1402)
      .sap(20)
      .sends(Record(16).be32(0, 20).be32(4, vsan).put(8, switch_wwn(static_cast<uint8_t>(vsan), n)))
      .last(0);
}

Bytes giel_reply(uint8_t vsan, uint8_t switches) {
  Bytes reply = Record(4).be32(0, switches);
  for (uint8_t n = 1; n <= switches; ++n)
    reply = joined({reply, switch_wwn(vsan, n), hex("00 00 01 00")});
  return reply;
}

void expect_switches(Script& script, uint8_t vsan, uint8_t switches) {
  script.expect(get(1401).sap(20).sends(Record(8).be32(0, vsan)))
      .replies(giel_reply(vsan, switches));
  for (uint8_t n = 1; n <= switches; ++n)
    script.expect(element_of(vsan, n)).replies(element_reply(vsan, n));
}

Exchange local_domain_of(uint32_t vsan) {
  return get(264).sap(14).sends(Record(1152).be32(0, vsan).be32(4, 1));
}

Bytes local_domain_reply(uint32_t vsan, uint8_t domain) {
  return Record(1152).be32(0, vsan).be32(4, 1).byte(21, domain);
}

class FspfVsan : public Fspf {
 protected:
  ~FspfVsan() override { std::free(links_); }
  int32_t fetch(int32_t remote_only) {
    return fspf_cim_get_all_fspfLinks_of_vsan(kQueue, 5, &count_, remote_only, &links_);
  }
  Words found() const { return if_indexes(links_, static_cast<size_t>(count_)); }

  int32_t count_ = 9;
  fspfLinkEntry* links_ = nullptr;
};

TEST_F(FspfVsan, TheLinksStandInTheOrderOfTheSwitches) {
  Script script;
  expect_switches(script, 5, 3);
  script.expect(lsr_of(5, 0x61)).replies(lsr_reply({link(0x61, 1), link(0x61, 2)}));
  script.expect(lsr_of(5, 0x62)).replies(lsr_reply({}));
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 3)}));
  ASSERT_EQ(fetch(0), 0);
  EXPECT_EQ(found(), (Words{1, 2, 3}));
  EXPECT_EQ(links_[2].domain, 0x63u);
  EXPECT_EQ(out_.out() + out_.err(), "");
}

TEST_F(FspfVsan, TheSessionIsPassedThrough) {
  Script script;
  script.expect(local_domain_of(5).q(12)).replies(local_domain_reply(5, 0x62));
  script.expect(get(1401).sap(20).q(12).sends(Record(8).be32(0, 5))).replies(giel_reply(5, 1));
  script.expect(element_of(5, 1).q(12)).replies(element_reply(5, 1));
  script.expect(lsr_of(5, 0x61).q(12)).replies(lsr_reply({link(0x61, 1)}));
  ASSERT_EQ(fspf_cim_get_all_fspfLinks_of_vsan(12, 5, &count_, 1, &links_), 0);
  EXPECT_EQ(found(), Words{1});
}

TEST_F(FspfVsan, ASwitchWhoseLsrCannotBeReadIsSkipped) {
  Script script;
  expect_switches(script, 5, 3);
  script.expect(lsr_of(5, 0x61)).replies(lsr_reply({link(0x61, 1)}));
  script.expect(lsr_of(5, 0x62)).status(17);
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 3)}));
  ASSERT_EQ(fetch(0), 0);
  EXPECT_EQ(found(), (Words{1, 3}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(FspfVsan, TheLocalSwitchsLinksAreLeftOutWhenOnlyRemoteOnesAreAskedFor) {
  Script script;
  script.expect(local_domain_of(5)).replies(local_domain_reply(5, 0x62));
  expect_switches(script, 5, 3);
  script.expect(lsr_of(5, 0x61)).replies(lsr_reply({link(0x61, 1)}));
  script.expect(lsr_of(5, 0x63)).replies(lsr_reply({link(0x63, 3)}));
  ASSERT_EQ(fetch(1), 0);
  EXPECT_EQ(found(), (Words{1, 3}));
}

TEST_F(FspfVsan, AVsanOfTheLocalSwitchAloneHasNoRemoteLinks) {
  for (const int32_t remote_only : {1, 2, -1}) {
    Script script;
    script.expect(local_domain_of(5)).replies(local_domain_reply(5, 0x61));
    expect_switches(script, 5, 1);
    EXPECT_EQ(fetch(remote_only), 0);
    EXPECT_EQ(count_, 0);
    ledger_.release_by_caller(links_);
    links_ = nullptr;
  }
}

TEST_F(FspfVsan, WithoutTheLocalDomainNoSwitchIsLeftOut) {
  Script script;
  script.expect(local_domain_of(5)).status(17);
  expect_switches(script, 5, 1);
  script.expect(lsr_of(5, 0x61)).replies(lsr_reply({link(0x61, 1)}));
  ASSERT_EQ(fetch(1), 0);
  EXPECT_EQ(found(), Words{1});
  EXPECT_EQ(out_.out(),
            "get domain entry fail, fspf link contains local link even only looking for remote "
            "links ");
}

TEST_F(FspfVsan, WithoutSwitchesThereAreNoLinks) {
  Script script;
  expect_switches(script, 5, 0);
  EXPECT_EQ(fetch(0), 0);
  EXPECT_EQ(count_, 0);
}

TEST_F(FspfVsan, SwitchesThatCannotBeReadAreAFailure) {
  Script script;
  script.expect(get(1401).sap(20).sends(Record(8).be32(0, 5))).status(17);
  EXPECT_EQ(fetch(0), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(links_, nullptr);
}

// A VSAN in which every switch has `links` links, for any number of exchanges.
Response vsan_answer(const Request& request, uint8_t switches, uint32_t links) {
  HeapLedger::Pause pause;
  switch (request.opcode) {
    case 264:
      return Response::with(local_domain_reply(request.be32(0), 0x61));
    case 1401:
      return Response::with(giel_reply(static_cast<uint8_t>(request.be32(0)), switches));
    case 1402:
      return Response::with(element_reply(request.be32(4), request.body->at(15)));
    default: {
      std::vector<Bytes> all;
      for (uint32_t i = 0; i < links; ++i)
        all.push_back(link(request.be32(4), i));
      return Response::with(lsr_reply(all));
    }
  }
}

TEST_F(FspfVsan, EveryFailingAllocationAndExchangeLosesNothing) {
  Responder responder([](const Request& request) { return vsan_answer(request, 3, 2); });
  size_t failures = 0;
  const size_t rounds = for_every_failing_allocation(
      [&failures](FailingAllocation& round) {
        int32_t count = 9;
        fspfLinkEntry* links = nullptr;
        const int32_t status = round.attempt(
            [&] { return fspf_cim_get_all_fspfLinks_of_vsan(kQueue, 5, &count, 1, &links); });
        if (status != 0) {
          ++failures;
          EXPECT_EQ(count, 0);
          EXPECT_EQ(links, nullptr);
        }
        std::free(links);
      },
      Heap::c);
  // The list, the elements, one request each, the table, two records, the links.
  EXPECT_EQ(rounds, 10u);
  EXPECT_EQ(failures, 4u);  // those but the requests and the records, whose switches are skipped
  for (size_t n = 1; n <= 7; ++n) {
    HeapLedger counted;
    responder.fail_nth_exchange(n, 17);
    int32_t count = 9;
    fspfLinkEntry* links = nullptr;
    EXPECT_EQ(fspf_cim_get_all_fspfLinks_of_vsan(kQueue, 5, &count, 1, &links), n == 2 ? -1 : 0);
    std::free(links);
  }
}

TEST_F(FspfVsan, FiftySwitchesCostOneExchangeEachForElementAndLsr) {
  HeapLedger::Pause pause;
  Responder responder([](const Request& request) { return vsan_answer(request, 50, 100); });
  ASSERT_EQ(fetch(0), 0);
  EXPECT_EQ(count_, 5000);
  EXPECT_EQ(responder.calls(1401), 1u);
  EXPECT_EQ(responder.calls(1402), 50u);
  EXPECT_EQ(responder.calls(53), 50u);
  EXPECT_EQ(responder.calls(), 101u);
  std::free(links_);
  ASSERT_EQ(fetch(1), 0);
  EXPECT_EQ(count_, 4900);
  EXPECT_EQ(responder.calls(), 101u + 101u);  // the local domain, and one LSR less
  EXPECT_EQ(responder.calls(264), 1u);
}

// ---- The links of a switch port -----------------------------------------------------------

Exchange next_vsan(uint32_t after) {
  return get_next(149).sap(15).sends(Record(2632).be32(520, after).be32(552, after == 0 ? 0 : 1));
}

Bytes vsan_reply(uint32_t vsan) {
  return Record(2632).be32(520, vsan).be32(552, 1);
}

// The switch is in VSANs 1 to 3, with the domains 0x61 to 0x63.
void expect_three_vsans(Script& script) {
  for (uint8_t vsan = 1; vsan <= 3; ++vsan) {
    script.expect(next_vsan(vsan - 1u)).replies(vsan_reply(vsan));
    const Bytes wwn = switch_wwn(vsan, 0x2d);
    script.expect(get(1402).sap(20).sends(Record(16).be32(0, 20).be32(4, vsan).put(8, wwn)).last(0))
        .replies(Record(32).be32(0, vsan).put(4, wwn).be32(16, 0x60u + vsan));
  }
  script.expect(next_vsan(3)).status(17);
}

class FspfPort : public Fspf {
 protected:
  ~FspfPort() override { cim_g_slist_destroy(list_, nullptr); }
  int32_t fetch(uint32_t if_index) {
    return fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(
        kQueue, hex("20 00 00 0d ec 0a 1b 2c").data(), if_index, &list_);
  }
  Words domains() const {
    Words found;
    for (guint i = 0; i < cim_g_slist_length(list_); ++i)
      found.push_back(static_cast<fspfLinkEntry*>(cim_g_slist_nth_data(list_, i))->domain);
    return found;
  }

  GSList* list_ = nullptr;
};

TEST_F(FspfPort, ItsLinksAreListedFromTheLastVsanToTheFirst) {
  Script script;
  expect_three_vsans(script);
  script.expect(lsr_of(3, 0x63)).replies(lsr_reply({link(0x63, 9), link(0x63, 7)}));
  script.expect(lsr_of(2, 0x62)).replies(lsr_reply({link(0x62, 8)}));
  script.expect(lsr_of(1, 0x61)).replies(lsr_reply({link(0x61, 7)}));
  ASSERT_EQ(fetch(7), 0);
  EXPECT_EQ(domains(), (Words{0x63, 0x61}));
}

TEST_F(FspfPort, APortWithoutLinksIsAFailure) {
  Script script;
  expect_three_vsans(script);
  script.expect(lsr_of(3, 0x63)).status(17);
  script.expect(lsr_of(2, 0x62)).replies(lsr_reply({}));
  script.expect(lsr_of(1, 0x61)).replies(lsr_reply({link(0x61, 8)}));
  EXPECT_EQ(fetch(7), -1);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(FspfPort, AnUnknownSwitchHasNoLinks) {
  Script script;
  script.expect(next_vsan(0)).status(17);
  EXPECT_EQ(fetch(7), -1);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(FspfPort, WhatTheListHeldStays) {
  Script script;
  auto* held = static_cast<fspfLinkEntry*>(std::calloc(1, sizeof(fspfLinkEntry)));
  held->domain = 0x11;
  list_ = cim_g_slist_append(nullptr, held);
  expect_three_vsans(script);
  script.expect(lsr_of(3, 0x63)).replies(lsr_reply({}));
  script.expect(lsr_of(2, 0x62)).replies(lsr_reply({link(0x62, 7)}));
  script.expect(lsr_of(1, 0x61)).replies(lsr_reply({}));
  EXPECT_EQ(fetch(7), 0);
  EXPECT_EQ(domains(), (Words{0x11, 0x62}));
}

Response port_answer(const Request& request) {
  HeapLedger::Pause pause;
  if (request.opcode == 149) {
    return request.be32(520) < 3 ? Response::with(vsan_reply(request.be32(520) + 1))
                                 : Response::failed(17);
  }
  return request.opcode == 1402 ? Response::with(element_reply(request.be32(4), 1))
                                : Response::with(lsr_reply({link(request.be32(4), 7)}));
}

TEST_F(FspfPort, EveryFailingAllocationAndExchangeLosesNothing) {
  Responder responder(port_answer);
  const Bytes wwn = hex("20 00 00 0d ec 0a 1b 2c");
  const auto fetch_list = [&wwn](GSList** list) {
    return fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(kQueue, wwn.data(), 7, list);
  };
  size_t failures = 0;
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        GSList* list = nullptr;
        if (round.attempt([&] { return fetch_list(&list); }) != 0) ++failures;
        cim_g_slist_destroy(list, nullptr);
      },
      Heap::c);
  // Three times request, element; three times record, link; and the round without a failure.
  EXPECT_EQ(rounds, 13u);
  EXPECT_EQ(failures, 4u);  // the first element, the links; a record too few is none
  for (size_t n = 1; n <= 10; ++n) {
    HeapLedger counted;
    responder.fail_nth_exchange(n, 17);
    GSList* list = nullptr;
    fetch_list(&list);
    cim_g_slist_destroy(list, nullptr);
  }
}

TEST_F(FspfPort, AListOfManyIsBuiltWithoutWalkingIt) {
  HeapLedger::Pause pause;
  Responder responder([](const Request& request) {
    if (request.opcode != 149) return port_answer(request);
    return request.be32(520) < 1000 ? Response::with(vsan_reply(request.be32(520) + 1))
                                    : Response::failed(17);
  });
  const ListWork before = list_work();
  ASSERT_EQ(fetch(7), 0);
  const ListWork after = list_work();
  EXPECT_EQ(cim_g_slist_length(list_), 1000u);
  EXPECT_EQ(responder.calls(), 1001u + 1000u + 1000u);
  EXPECT_EQ(after.calls - before.calls, 2000u);  // of elements and of links
  EXPECT_LE(after.nodes - before.nodes, 2000u);
}

TEST_F(FspfPort, APortWwnDenotesSwitchAndInterface) {
  Script script;
  // Slot and port are what the WWN carries; never an iSCSI interface.
  indexes_.makes(1, 0, 7);
  expect_three_vsans(script);
  script.expect(lsr_of(3, 0x63)).replies(lsr_reply({}));
  script.expect(lsr_of(2, 0x62)).replies(lsr_reply({link(0x62, 7)}));
  script.expect(lsr_of(1, 0x61)).replies(lsr_reply({}));
  wwn_ port;
  std::memcpy(&port, hex("20 41 00 0d ec 0a 1b 2c").data(), sizeof port);
  ASSERT_EQ(fspf_cim_get_all_fspfLinks_for_pwwn(kQueue, &port, &list_), 0);
  EXPECT_EQ(domains(), Words{0x62});
}

TEST_F(FspfPort, APortWwnThatDenotesNoInterfaceIsAFailure) {
  Script script;
  wwn_ port;
  std::memcpy(&port, hex("20 41 00 0d ec 0a 1b 2c").data(), sizeof port);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_pwwn(kQueue, &port, &list_), -1);
  // Neither does one without a maker denote a switch.
  std::memset(&port, 0, sizeof port);
  EXPECT_EQ(fspf_cim_get_all_fspfLinks_for_pwwn(kQueue, &port, &list_), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST(FspfFixedAnswers, LookNothingUp) {
  Script script;
  EXPECT_EQ(check_valid_vsan(), 1);
  EXPECT_EQ(check_valid_interface(), 0);
  EXPECT_EQ(fspf_check_if_active(), 0);
}

}  // namespace
