#include "tests/support/double_cmi.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <malloc.h>
#include <cerrno>
#include <cstdlib>

#include <switch_platform/mts.h>

namespace test_support {
namespace {

// What a careful caller does for a get.
struct Got {
  int32_t status;
  Bytes reply;
  int32_t length;
  bool null_reply;
};

Got ask(uint32_t opcode, uint32_t operation, const Bytes* request, int32_t length, uint32_t sap,
        int32_t q = kQueue, int32_t last = 4) {
  void* reply = nullptr;
  Got got{};
  got.length = length;
  got.status = cmi_req_resp(opcode, operation, request == nullptr ? nullptr : request->data(),
                            &reply, &got.length, 0, 0, sap, q, last);
  got.null_reply = reply == nullptr;
  if (reply != nullptr) {
    auto* first = static_cast<uint8_t*>(reply);
    got.reply = Bytes(first, first + malloc_usable_size(reply));
  }
  free(reply);
  return got;
}

TEST(CmiDouble, AnswersAGetWithTheReplyAndItsLength) {
  HeapLedger ledger;
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 02"));
  Got got = ask(125, 1, nullptr, 4, 15);
  EXPECT_EQ(got.status, 0);
  EXPECT_EQ(got.reply, hex("00 00 00 02"));
  EXPECT_EQ(got.length, 4);
}

TEST(CmiDouble, ChecksTheRequestByteByByte) {
  Script script;
  script.expect(get_next(149).sap(15).sends(hex("00 01 02 03"))).ok_without_reply();
  Bytes request = hex("00 01 ff 03");
  EXPECT_NONFATAL_FAILURE(ask(149, 2, &request, 4, 15), "first difference at offset 2");
}

TEST(CmiDouble, ANullRequestIsNotAnEmptyOne) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(0)).ok_without_reply();
  Bytes request = hex("00");
  EXPECT_NONFATAL_FAILURE(ask(125, 1, &request, 0, 15), "request: expected null, found 0 bytes");
}

TEST(CmiDouble, ChecksEveryNumber) {
  Bytes request = hex("01");
  auto line = [] { return get(125).sap(15).sends(hex("01")).ok_without_reply(); };
  {
    Script script;
    script.expect(line());
    EXPECT_NONFATAL_FAILURE(ask(128, 1, &request, 1, 15), "opcode: expected 125 (0x7d), found 128");
  }
  {
    Script script;
    script.expect(line());
    EXPECT_NONFATAL_FAILURE(ask(125, 2, &request, 1, 15), "operation: expected 1, found 2");
  }
  {
    Script script;
    script.expect(line());
    EXPECT_NONFATAL_FAILURE(ask(125, 1, &request, 1, 14), "service_sap: expected 15");
  }
  {
    Script script;
    script.expect(line());
    EXPECT_NONFATAL_FAILURE(ask(125, 1, &request, 1, 15, 8), "q: expected 7, found 8");
  }
  {
    Script script;
    script.expect(line());
    EXPECT_NONFATAL_FAILURE(ask(125, 1, &request, 1, 15, 7, 0), "last: expected 4, found 0");
  }
  {
    Script script;
    script.expect(line().length(2));
    EXPECT_NONFATAL_FAILURE(ask(125, 1, &request, 1, 15), "length: expected 2, found 1");
  }
}

TEST(CmiDouble, ChecksTheZeroWords) {
  Script script;
  script.expect(set(878).sap(35).sends(hex("01")));
  script.expect(set(878).sap(35).sends(hex("01")));
  Bytes request = hex("01");
  int32_t length = 1;
  EXPECT_NONFATAL_FAILURE(
      cmi_req_resp(878, 3, request.data(), nullptr, &length, 1, 0, 35, kQueue, 4),
      "zero1: expected 0, found 1");
  length = 1;
  EXPECT_NONFATAL_FAILURE(
      cmi_req_resp(878, 3, request.data(), nullptr, &length, 0, 1, 35, kQueue, 4),
      "zero2: expected 0, found 1");
}

TEST(CmiDouble, ASetHasANullReplyAddress) {
  Script script;
  script.expect(set(878).sap(35).sends(hex("01")));
  script.expect(set(878).sap(35).sends(hex("01")));
  Bytes request = hex("01");
  int32_t length = 1;
  EXPECT_EQ(cmi_req_resp(878, 3, request.data(), nullptr, &length, 0, 0, 35, kQueue, 4), 0);
  EXPECT_EQ(length, 0);
  EXPECT_NONFATAL_FAILURE(ask(878, 3, &request, 1, 35),
                          "reply: expected null, found \"preset to null\"");
}

TEST(CmiDouble, AGetNeedsAReplyAddressThatIsPresetToNull) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4).ok_without_reply());
  int32_t length = 4;
  EXPECT_NONFATAL_FAILURE(cmi_req_resp(125, 1, nullptr, nullptr, &length, 0, 0, 15, kQueue, 4),
                          "reply: expected \"preset to null\", found null");
  static char rest;
  static void* reply;
  reply = &rest;
  EXPECT_NONFATAL_FAILURE(
      {
        Responder responder([](const Request&) { return Response::none(); });
        cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4);
      },
      "the reply is not preset");
}

TEST(CmiDouble, AnyRequestTakesEveryRequest) {
  Script script;
  script.expect(get(149).sap(15).any_request().ok_without_reply());
  script.expect(get(149).sap(15).any_request().ok_without_reply());
  Bytes request = hex("aa bb");
  EXPECT_TRUE(ask(149, 1, &request, 2, 15).null_reply);
  EXPECT_TRUE(ask(149, 1, nullptr, 99, 15).null_reply);
}

TEST(CmiDouble, AnswersAStatusWithoutAReply) {
  Script script;
  script.expect(get(149).sap(15).any_request().status(0x40330005));
  Got got = ask(149, 1, nullptr, 10, 15);
  EXPECT_EQ(got.status, 0x40330005);
  EXPECT_TRUE(got.null_reply);
  EXPECT_EQ(got.length, 0);
}

TEST(CmiDouble, AFailureMayHandOutAReply) {
  Script script;
  script.expect(get(149).sap(15).any_request()).status_with_reply(5, hex("01 02"));
  Got got = ask(149, 1, nullptr, 10, 15);
  EXPECT_EQ(got.status, 5);
  EXPECT_EQ(got.reply, hex("01 02"));
  EXPECT_EQ(got.length, 2);
}

TEST(CmiDouble, ATransportFailureSetsErrnoAndTheTransportError) {
  Script script;
  script.expect(get(149).sap(15).any_request()).fails(-1).with_errno(5);
  script.expect(get(149).sap(15).any_request()).times_out();
  errno = 0;
  EXPECT_EQ(ask(149, 1, nullptr, 10, 15).status, -1);
  EXPECT_EQ(errno, 5);
  EXPECT_EQ(mts_errno_get(kQueue), 5);
  EXPECT_EQ(ask(149, 1, nullptr, 10, 15).status, -1);
  EXPECT_EQ(mts_errno_get(kQueue), 62);
  EXPECT_EQ(mts_errno_get(kQueue + 1), 0);
}

TEST(CmiDouble, AReplyCutShortTellsItsTrueLength) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(hex("01 02 03")).cut_to(2);
  Got got = ask(149, 1, nullptr, 10, 15);
  EXPECT_EQ(got.reply, hex("01 02"));
  EXPECT_EQ(got.length, 2);
}

TEST(CmiDouble, TheLengthCanBeLeftAlone) {
  Script script;
  script.expect(get(149).sap(15).any_request())
      .replies(hex("01 02 03"))
      .cut_to(1)
      .length_left_alone();
  Got got = ask(149, 1, nullptr, 10, 15);
  EXPECT_EQ(got.reply, hex("01"));
  EXPECT_EQ(got.length, 10);
}

TEST(CmiDouble, AReplyOfLengthZeroIsNull) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(hex("01 02 03")).cut_to(0);
  Got got = ask(149, 1, nullptr, 10, 15);
  EXPECT_TRUE(got.null_reply);
  EXPECT_EQ(got.length, 0);
}

TEST(CmiDouble, AReplyThatIsNotFreedFailsTheTest) {
  static void* reply;
  reply = nullptr;
  EXPECT_NONFATAL_FAILURE(
      {
        Script script;
        script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 02"));
        int32_t length = 4;
        cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4);
      },
      "not freed: 4 bytes, given out by the double for cmi_req_resp 125");
  free(reply);
}

TEST(CmiDouble, ALineThatDoesNotSayAnArgumentFailsTheTest) {
  Script script;
  script.expect(get(125).no_request().length(4).ok_without_reply());
  EXPECT_NONFATAL_FAILURE(ask(125, 1, nullptr, 4, 15), "service_sap: the script does not say it");
}

TEST(CmiDouble, ALineWithoutAnAnswerFailsTheTest) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4));
  EXPECT_NONFATAL_FAILURE(ask(125, 1, nullptr, 4, 15), "does not say how cmi_req_resp answers");
}

TEST(CmiDouble, ACallTooManyFailsAndIsRefused) {
  Script script;
  Got got{};
  EXPECT_NONFATAL_FAILURE(got = ask(125, 1, nullptr, 4, 15), "a call that is not in the script");
  EXPECT_EQ(got.status, -1);
  EXPECT_TRUE(got.null_reply);
}

TEST(CmiDouble, ACallWithoutAScriptFails) {
  Got got{};
  EXPECT_NONFATAL_FAILURE(got = ask(125, 1, nullptr, 4, 15), "no script is in force");
  EXPECT_EQ(got.status, -1);
}

TEST(CmiDouble, ALineThatWasNotUsedFailsAtTheEnd) {
  EXPECT_NONFATAL_FAILURE(
      {
        Script script;
        script.expect(get(125).sap(15).any_request().ok_without_reply());
      },
      "the script's call of cmi_req_resp was not made");
}

TEST(CmiDouble, ASecondScriptFailsTheTest) {
  Script script;
  EXPECT_NONFATAL_FAILURE(Script second, "a second Script");
}

TEST(CmiDouble, UsesNothingOfTheLedgersCount) {
  HeapLedger ledger;
  Script script;
  auto line = get(125).sap(15).no_request().length(4).replies(Bytes());
  script.expect(line);
  ledger.fail_nth(1);
  int32_t length = 4;
  void* reply = nullptr;
  EXPECT_EQ(cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4), 0);
  EXPECT_FALSE(ledger.failure_was_hit());
  ledger.fail_none();
}

TEST(Responder, AnswersEveryExchangeAndCountsByOpcode) {
  HeapLedger ledger;
  Responder responder([](const Request& request) {
    EXPECT_EQ(request.sap, 15u);
    EXPECT_EQ(request.operation, 2u);
    EXPECT_TRUE(request.wants_reply);
    EXPECT_EQ(request.q, kQueue);
    EXPECT_EQ(request.last, 4);
    return Response::with(Record(4).be32(0, request.be32(0) + 1));
  });
  Bytes request = hex("00 00 00 09");
  EXPECT_EQ(ask(149, 2, &request, 4, 15).reply, hex("00 00 00 0a"));
  EXPECT_EQ(ask(149, 2, &request, 4, 15).length, 4);
  EXPECT_EQ(ask(125, 2, nullptr, 4, 15).reply, hex("00 00 00 01"));
  EXPECT_EQ(responder.calls(), 3u);
  EXPECT_EQ(responder.calls(149), 2u);
  EXPECT_EQ(responder.calls(264), 0u);
}

TEST(Responder, FailsTheNthExchange) {
  Responder responder([](const Request&) { return Response::with(hex("01")); });
  responder.fail_nth_exchange(2, 77, 62);
  EXPECT_EQ(ask(125, 1, nullptr, 4, 15).status, 0);
  Got second = ask(125, 1, nullptr, 4, 15);
  EXPECT_EQ(second.status, 77);
  EXPECT_EQ(errno, 62);
  EXPECT_TRUE(second.null_reply);
  EXPECT_EQ(ask(125, 1, nullptr, 4, 15).status, 0);
}

TEST(Responder, ExpectsItsRepliesToBeFreed) {
  static void* reply;
  reply = nullptr;
  EXPECT_NONFATAL_FAILURE(
      {
        Responder responder([](const Request&) { return Response::with(hex("01")); });
        int32_t length = 4;
        cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4);
      },
      "not freed: 1 bytes, given out by the double for cmi_req_resp 125");
  free(reply);
}

TEST(ForEveryFailingExchange, FailsEachExchangeOfAResponderOnce) {
  std::vector<int> failures;
  failures.reserve(8);
  size_t rounds = for_every_failing_exchange([&](FailingExchange& failing) {
    Responder responder([](const Request&) { return Response::with(hex("01")); });
    int first = ask(125, 1, nullptr, 4, 15).status;
    int second = ask(149, 1, nullptr, 4, 15).status;
    EXPECT_EQ(failing.was_hit(), first != 0 || second != 0);
    failures.push_back(first * 10 + second);
  });
  EXPECT_EQ(rounds, 3u);
  EXPECT_EQ(failures, (std::vector<int>{-10, -1, 0}));
}

TEST(ForEveryFailingExchange, LetsAScriptSkipWhatBelongedToTheSuccess) {
  size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    Script script;
    script.expect(get(125).sap(15).any_request()).replies(hex("01"));
    script.expect(get(149).sap(15).any_request()).replies(hex("02"));
    script.expect(get(264).sap(14).any_request()).replies(hex("03"));
    int first = ask(125, 1, nullptr, 4, 15).status;
    if (first == 0) ask(149, 1, nullptr, 4, 15);
    Got last = ask(264, 1, nullptr, 4, 14);
    EXPECT_EQ(last.status, failing.was_hit() && failing.n() == 3 ? -1 : 0);
  });
  EXPECT_EQ(rounds, 4u);
}

TEST(ForEveryFailingExchange, StillRefusesAnUnexpectedCall) {
  EXPECT_NONFATAL_FAILURE(for_every_failing_exchange([](FailingExchange& failing) {
                            Script script;
                            script.expect(get(125).sap(15).any_request().ok_without_reply());
                            ask(125, 1, nullptr, 4, 15);
                            if (failing.was_hit()) ask(53, 1, nullptr, 4, 29);
                          }),
                          "a call that is not in the script");
}

}  // namespace
}  // namespace test_support
