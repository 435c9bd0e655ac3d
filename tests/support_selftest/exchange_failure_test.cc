#include "tests/support/exchange_failure.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include <switch_platform/fabric_configuration.h>
#include <switch_platform/mts.h>
#include <switch_platform/platform_manager.h>

#include "tests/support/double_cmi.h"
#include "tests/support/double_fabric.h"
#include "tests/support/double_system.h"

namespace test_support {
namespace {

struct Outcome {
  int32_t status;
  int32_t length;
  bool replied;
};

// An exchange whose reply has four bytes.
Outcome ask() {
  void* reply = nullptr;
  int32_t length = 4;
  const int32_t status = cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4);
  const Outcome outcome{status, length, reply != nullptr};
  free(reply);
  return outcome;
}

// The same, failed in the given way.
Outcome failed(ExchangeFailure how) {
  const FailingHow failing_so(how);
  const FailingExchange failing(1);
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 01"));
  const Outcome outcome = ask();
  EXPECT_TRUE(failing.was_hit());
  EXPECT_STREQ(failed_function(), "cmi_req_resp");
  return outcome;
}

TEST(FailingHow, ARefusedCallIsRefused) {
  const Outcome outcome = failed(ExchangeFailure::refused);
  EXPECT_EQ(outcome.status, -1);
  EXPECT_FALSE(outcome.replied);
}

TEST(FailingHow, AStatusComesWithoutAReply) {
  const Outcome outcome = failed(ExchangeFailure::status);
  EXPECT_EQ(outcome.status, 0x40330005);
  EXPECT_FALSE(outcome.replied);
}

TEST(FailingHow, NoReplyIsASuccess) {
  const Outcome outcome = failed(ExchangeFailure::no_reply);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.length, 0);
  EXPECT_FALSE(outcome.replied);
}

TEST(FailingHow, ACutReplyLacksItsLastByte) {
  const Outcome outcome = failed(ExchangeFailure::cut_reply);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.length, 3);
  EXPECT_TRUE(outcome.replied);
}

TEST(FailingHow, ATimeOutSetsTheErrorNumber) {
  errno = 0;
  const Outcome outcome = failed(ExchangeFailure::timed_out);
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(errno, 62);
  EXPECT_FALSE(outcome.replied);
}

TEST(FailingHow, AResponderFailsInTheSameWays) {
  const Responder responder([](const Request&) { return Response::with(hex("00 00 00 01")); });
  const FailingHow failing_so(ExchangeFailure::cut_reply);
  const FailingExchange failing(2);
  EXPECT_EQ(ask().length, 4);
  EXPECT_EQ(ask().length, 3);
  EXPECT_EQ(ask().length, 4);
}

TEST(FailingHow, ARequestWithoutAReplyIsNotHandedOut) {
  const FailingHow failing_so(ExchangeFailure::no_reply);
  const FailingExchange failing(1);
  Script script;
  script.expect(query_switch_addresses()).sent();
  mts_msg_t* request = nullptr;
  EXPECT_EQ(fcs_send_get_inet_addr(kQueue, 1, &request), 0);
  EXPECT_EQ(request, nullptr);
}

TEST(FailingHow, EndsWithItsScope) {
  { const FailingHow failing_so(ExchangeFailure::no_reply); }
  const FailingExchange failing(1);
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 01"));
  EXPECT_EQ(ask().status, -1);
}

TEST(LinesMayBeLeft, PassesOverLinesAndLeavesSome) {
  Script script;
  lines_may_be_left(script);
  script.expect(chassis_id()).gives("passed over");
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 01"));
  script.expect(chassis_id()).gives("left");
  EXPECT_EQ(ask().status, 0);
}

TEST(LinesMayBeLeft, KeepsTheOrder) {
  Script script;
  lines_may_be_left(script);
  script.expect(chassis_id()).gives("the first");
  script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 01"));
  EXPECT_EQ(ask().status, 0);
  EXPECT_NONFATAL_FAILURE(pdb_get_chassis_id_string(), "a call that is not in the script");
}

}  // namespace
}  // namespace test_support
