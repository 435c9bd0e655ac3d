#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fault;
using switch_sim::Service;
using switch_sim::VirtualTime;

class Faults : public SimulatorTest {
 protected:
  Result wwn() { return call(46, 1282, 1, {}); }
  Result count() { return call(15, 125, 1, {}); }
};

TEST_F(Faults, AStatusIsAnsweredInsteadOfTheService) {
  control::set_faults({{.opcode = 878, .kind = Fault::Kind::status, .value = 0x12345}});
  expect_refused(call(35, 878, 3, Pattern(260).text(0, "edge-7").bytes()), 0x12345);
  EXPECT_EQ("switch-1", control::fabric().switches[0].name);
  expect_reply(wwn(), Pattern(8).at(0, "2000000dec0a1b2c"));
}

TEST_F(Faults, ASuccessMayComeWithoutItsReply) {
  control::set_faults({{.opcode = 1282, .kind = Fault::Kind::without_reply}});
  const auto result = wwn();
  EXPECT_EQ(0, result.status);
  EXPECT_FALSE(result.has_reply);
  EXPECT_EQ(0, result.length);
}

TEST_F(Faults, AReplyMayBeCutShort) {
  control::set_faults({{.opcode = 1282, .kind = Fault::Kind::short_reply, .value = 3}});
  expect_reply(wwn(), Pattern(3).at(0, "200000"));
}

TEST_F(Faults, AReplyIsNeverMadeLonger) {
  control::set_faults({{.opcode = 1282, .kind = Fault::Kind::short_reply, .value = 100}});
  expect_reply(wwn(), Pattern(8).at(0, "2000000dec0a1b2c"));
}

TEST_F(Faults, AShortDelayOnlyTakesTime) {
  control::set_faults({{.opcode = 1282, .kind = Fault::Kind::delay, .value = 1500}});
  EXPECT_EQ(0, wwn().status);
  EXPECT_EQ(VirtualTime(1500), control::now());
}

TEST_F(Faults, ADelayBeyondTheTimeOutIsATimeOut) {
  control::set_faults({{.opcode = 1282, .nth = 1, .kind = Fault::Kind::delay, .value = 60000}});
  const auto result = wwn();
  EXPECT_EQ(-1, result.status);
  EXPECT_FALSE(result.has_reply);
  EXPECT_EQ(62, errno);
  EXPECT_EQ(62, mts_errno_get(q));
  EXPECT_EQ(VirtualTime(30000), control::now());
  expect_reply(count(), Pattern(4).at(0, "00000002"));  // the late reply disturbs nobody
}

TEST_F(Faults, ATransportErrorSetsErrno) {
  control::set_faults(
      {{.service = Service::switch_identity, .kind = Fault::Kind::error, .value = ECONNRESET}});
  EXPECT_EQ(-1, wwn().status);
  EXPECT_EQ(ECONNRESET, errno);
  EXPECT_EQ(ECONNRESET, mts_errno_get(q));
}

TEST_F(Faults, TheNthRequestThatFitsIsHit) {
  control::set_faults({{.opcode = 125, .nth = 2, .kind = Fault::Kind::status, .value = 9}});
  EXPECT_EQ(0, count().status);
  EXPECT_EQ(0, wwn().status);
  EXPECT_EQ(9, count().status);
  EXPECT_EQ(0, count().status);
}

TEST_F(Faults, WithoutANumberEachRequestThatFitsIsHit) {
  control::set_faults({{.operation = 1, .kind = Fault::Kind::status, .value = 9}});
  EXPECT_EQ(9, count().status);
  EXPECT_EQ(9, wwn().status);
  EXPECT_EQ(0, call(35, 878, 3, Pattern(260).text(0, "edge-7").bytes()).status);
}

TEST_F(Faults, ANumberInTheRequestChoosesWhichOnesFit) {
  const auto links_of = [&](const char* domain) {
    return call(29, 53, 1, Pattern(36).at(0, "00000001").at(4, domain).at(8, "00000001").bytes());
  };
  control::set_faults({{.word = Fault::Word{4, 98}, .kind = Fault::Kind::status, .value = 9}});
  EXPECT_EQ(0, links_of("00000061").status);
  EXPECT_EQ(9, links_of("00000062").status);
  EXPECT_EQ(0, wwn().status);  // a request that has no such number
}

TEST_F(Faults, TheFirstFaultThatFitsWins) {
  control::set_faults({{.opcode = 125, .nth = 2, .kind = Fault::Kind::status, .value = 1},
                       {.opcode = 125, .kind = Fault::Kind::status, .value = 2}});
  EXPECT_EQ(2, count().status);
  EXPECT_EQ(1, count().status);
  EXPECT_EQ(2, count().status);
}

TEST_F(Faults, ANewPlanReplacesTheOldOne) {
  control::set_faults({{.kind = Fault::Kind::status, .value = 9}});
  control::set_faults({});
  EXPECT_EQ(0, count().status);
}

TEST_F(Faults, TheLogShowsWhatTheClientSaw) {
  control::keep_log(true);
  control::set_faults({{.kind = Fault::Kind::status, .value = 9}});
  count();
  ASSERT_EQ(1U, control::log().size());
  EXPECT_EQ(9, control::log()[0].outcome->status);
}

}  // namespace
}  // namespace simulator_test
