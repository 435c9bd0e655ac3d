#include "simulator/server/switch_server.h"

#include <atomic>
#include <future>
#include <new>

#include "tests/simulator_socket/socket_fixture.h"

namespace socket_test {
namespace {

constexpr const char* kAskSeven = "00000018 56530101 0000000000000000 0000000f 00000007 00000000";
constexpr const char* kAnswerSeven =
    "00000020 56530181 0000000000000000 00000007 00000000 0000000000000000 00000000";
constexpr size_t kAnswerSize = 36;
constexpr const char* kAskFabric = "00000004 56530102";

class Servers : public SocketTest {
 protected:
  // The others are still answered.
  void expect_served() {
    Line line = Line::to(path());
    line.say(hex(kAskSeven));
    EXPECT_EQ(hex(kAnswerSeven), line.hear(kAnswerSize));
  }
};

TEST_F(Servers, ARequestIsAnswered) {
  ServedSwitch served(path());
  expect_served();
}

TEST_F(Servers, TheFabricIsTold) {
  ServedSwitch served(path());
  Line line = Line::to(path());
  line.say(hex(kAskFabric));
  EXPECT_EQ(hex("0000000a 56530182 666162726963"), line.hear(14));
}

TEST_F(Servers, RequestsThatArriveTogetherAreAnsweredInTheirOrder) {
  ServedSwitch served(path());
  Line line = Line::to(path());
  line.say(hex(std::string(kAskFabric) + kAskSeven + kAskFabric));
  EXPECT_EQ(hex(std::string("0000000a 56530182 666162726963") + kAnswerSeven +
                "0000000a 56530182 666162726963"),
            line.hear(14 + kAnswerSize + 14));
}

TEST_F(Servers, AClientThatStopsInTheMiddleOfARequestBlocksNobody) {
  ServedSwitch served(path());
  Line halting = Line::to(path());
  halting.say(hex("00000018 56530101 00"));
  expect_served();
  halting.say(hex("00000000000000 0000000f 00000007 00000000"));
  EXPECT_EQ(hex(kAnswerSeven), halting.hear(kAnswerSize));
}

TEST_F(Servers, AClientThatGoesInTheMiddleOfARequestLeavesNothing) {
  ServedSwitch served(path());
  {
    Line halting = Line::to(path());
    halting.say(hex("00000018 56530101 00"));
  }
  expect_served();
}

TEST_F(Servers, AClientThatGoesBeforeItsAnswerBlocksNobody) {
  ServedSwitch served(path());
  {
    Line gone = Line::to(path());
    gone.say(hex(std::string(kAskSeven) + kAskSeven));
  }
  expect_served();
}

TEST_F(Servers, WhatIsNoRequestEndsThatConnectionOnly) {
  ServedSwitch served(path());
  Line other = Line::to(path());
  for (const char* garbage : {
           "00000000",                          // a frame shorter than its kind
           "00100001",                          // longer than any request
           "ffffffff",                          //
           "474554202f20485454502f312e310d0a",  // another protocol
           "00000018 56530201 00",              // another version
           "00000017 56530101 0000000000000000 0000000f 00000007 000000",  // too short
           "00000018 56530101 ffffffffffffffff 0000000f 00000007 00000000",
           "00000005 56530102 00",  // a fabric request with a body
           kAnswerSeven,            // an answer
           "00000004 56530182",
       }) {
    Line line = Line::to(path());
    line.say(hex(garbage));
    EXPECT_TRUE(line.is_closed()) << garbage;
  }
  other.say(hex(kAskSeven));
  EXPECT_EQ(hex(kAnswerSeven), other.hear(kAnswerSize));
}

TEST_F(Servers, GarbageAfterARequestEndsTheConnectionAfterItsAnswer) {
  ServedSwitch served(path());
  Line line = Line::to(path());
  line.say(hex(std::string(kAskSeven) + "00000000"));
  EXPECT_EQ(hex(kAnswerSeven), line.hear(kAnswerSize));
  EXPECT_TRUE(line.is_closed());
}

TEST_F(Servers, AClientThatDoesNotReadIsDisconnectedAndBlocksNobody) {
  std::atomic<int> told = 0;
  ServedSwitch served(path(), {echo, [&] {
                                 ++told;
                                 return std::string(100000, 'f');
                               }});
  Line deaf = Line::to(path());
  int asked = 0;
  while (asked < 10000 && deaf.say(hex(kAskFabric))) {
    ++asked;
    if (asked % 10 == 0) expect_served();
  }
  EXPECT_LT(asked, 10000) << "it was never disconnected";
  expect_served();
  // A megabyte of answers and what the system keeps; not what was asked for.
  EXPECT_GE(told, 10);
  EXPECT_LE(told, 60);
}

TEST_F(Servers, AClientThatReadsSlowlyGetsAllOfItsAnswers) {
  ServedSwitch served(path(), {echo, [] { return std::string(3000000, 'f'); }});
  Line slow = Line::to(path());
  slow.say(hex(kAskFabric));
  EXPECT_EQ(hex("002dc6c4 56530182 6666"), slow.hear(10));
  for (int i = 0; i < 3; ++i) {
    expect_served();
    EXPECT_EQ(Bytes(900000, std::byte{'f'}), slow.hear(900000));
  }
  EXPECT_EQ(Bytes(299998, std::byte{'f'}), slow.hear(299998));
  slow.say(hex(kAskSeven));
  EXPECT_EQ(hex(kAnswerSeven), slow.hear(kAnswerSize));
}

TEST_F(Servers, AClientThatAsksALotDoesNotKeepOthersWaiting) {
  std::promise<void> other_has_asked;
  const std::shared_future<void> wait_for_other = other_has_asked.get_future().share();
  int told = 0;
  int told_before_other = 0;
  ServedSwitch served(path(), {[&](const TimedRequest& timed) {
                                 told_before_other = told;
                                 return echo(timed);
                               },
                               [&] {
                                 wait_for_other.wait();
                                 ++told;
                                 return std::string("f");
                               }});
  Line greedy = Line::to(path());
  Line other = Line::to(path());
  std::string many;
  for (int i = 0; i < 1000; ++i)
    many += kAskFabric;
  greedy.say(hex(many));
  other.say(hex(kAskSeven));
  other_has_asked.set_value();
  EXPECT_EQ(hex(kAnswerSeven), other.hear(kAnswerSize));
  EXPECT_LE(told_before_other, 3);
  EXPECT_EQ(1000U * 9, greedy.hear(1000 * 9).size());
  EXPECT_EQ(1000, told);
}

TEST_F(Servers, MoreClientsThanItTakesWaitForThoseThatLeave) {
  ServedSwitch served(path());
  std::vector<Line> lines;
  for (size_t i = 0; i < kMostClients; ++i)
    lines.push_back(Line::to(path()));
  // The last one was taken, so all before it were.
  lines.back().say(hex(kAskSeven));
  EXPECT_EQ(hex(kAnswerSeven), lines.back().hear(kAnswerSize));
  Line further = Line::to(path());
  further.say(hex(kAskSeven));
  lines.front().say(hex(kAskSeven));
  EXPECT_EQ(hex(kAnswerSeven), lines.front().hear(kAnswerSize));
  lines.pop_back();
  EXPECT_EQ(hex(kAnswerSeven), further.hear(kAnswerSize));
}

TEST_F(Servers, ARequestForWhichMemoryDoesNotSufficeEndsThatConnectionOnly) {
  ServedSwitch served(path(), {echo, []() -> std::string { throw std::bad_alloc(); }});
  Line line = Line::to(path());
  line.say(hex(kAskFabric));
  EXPECT_TRUE(line.is_closed());
  expect_served();
}

TEST_F(Servers, AReplyThatIsTooLongIsATransportFailure) {
  ServedSwitch served(path(), {[](const TimedRequest& timed) {
                                 Outcome outcome;
                                 outcome.reply = Bytes(kLongestAnswer);
                                 return TimedOutcome{timed.now, outcome};
                               },
                               [] { return std::string(); }});
  SwitchConnection connection(path());
  const Outcome outcome = connection.exchange(request(1), clock_);
  EXPECT_EQ(-1, outcome.status);
  EXPECT_EQ(EMSGSIZE, outcome.error_number);
  EXPECT_EQ(std::nullopt, outcome.reply);
}

TEST_F(Servers, TheEndDisconnectsEverybody) {
  auto served = std::make_unique<ServedSwitch>(path());
  Line line = Line::to(path());
  line.say(hex(kAskSeven));
  EXPECT_EQ(hex(kAnswerSeven), line.hear(kAnswerSize));
  served.reset();
  EXPECT_TRUE(line.is_closed());
  EXPECT_FALSE(program::fs::exists(path()));
}

}  // namespace
}  // namespace socket_test
