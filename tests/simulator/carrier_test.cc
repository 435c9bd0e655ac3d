#include "simulator/transport/in_process_carrier.h"

#include <gtest/gtest.h>

#include "simulator/transport/faults.h"

namespace {

using namespace switch_sim;

constexpr auto kFar = VirtualTime(1000000);

// Answers with the opcode as status, after as many milliseconds as the operation says.
Outcome echo(const Request& request) {
  Outcome outcome;
  outcome.status = static_cast<int32_t>(request.opcode);
  outcome.due = VirtualTime(request.operation);
  return outcome;
}

Request request(uint32_t opcode, uint32_t delay) {
  return {Service::vsan_manager, opcode, delay, {}};
}

struct Carriers : testing::Test {
  VirtualClock clock;
  Token next_token = 1;
  FaultPlan plan;
  InProcessCarrier direct{echo, clock, next_token};
  FaultyCarrier faulty{std::make_unique<InProcessCarrier>(echo, clock, next_token), plan, clock};
};

TEST_F(Carriers, WithoutATokenTheEarliestOutcomeIsTaken) {
  const Token late = direct.send(request(1, 300));
  const Token early = direct.send(request(2, 100));
  EXPECT_EQ(early, direct.take(std::nullopt, kFar)->token);
  EXPECT_EQ(VirtualTime(100), clock.now());
  EXPECT_EQ(late, direct.take(std::nullopt, kFar)->token);
  EXPECT_EQ(VirtualTime(300), clock.now());
}

TEST_F(Carriers, OutcomesOfTheSameTimeComeInTheOrderOfTheirRequests) {
  const Token first = direct.send(request(1, 100));
  direct.send(request(2, 100));
  EXPECT_EQ(first, direct.take(std::nullopt, kFar)->token);
}

TEST_F(Carriers, WaitingInVainMovesTheClockToTheEndOfTheWait) {
  direct.send(request(1, 300));
  EXPECT_EQ(std::nullopt, direct.take(std::nullopt, VirtualTime(200)));
  EXPECT_EQ(VirtualTime(200), clock.now());
  EXPECT_EQ(std::nullopt, direct.take(Token{99}, VirtualTime(250)));
  EXPECT_EQ(VirtualTime(250), clock.now());
  EXPECT_EQ(1, direct.take(std::nullopt, VirtualTime(300))->status);
}

TEST_F(Carriers, TheClockNeverGoesBack) {
  clock.advance_to(VirtualTime(500));
  EXPECT_EQ(std::nullopt, direct.take(std::nullopt, VirtualTime(200)));
  EXPECT_EQ(VirtualTime(500), clock.now());
}

TEST_F(Carriers, AnOutcomeThatArrivedLongAgoIsTakenWithoutWaiting) {
  direct.send(request(1, 10));
  clock.advance_to(VirtualTime(500));
  EXPECT_EQ(1, direct.take(std::nullopt, VirtualTime(0))->status);
  EXPECT_EQ(VirtualTime(500), clock.now());
}

TEST_F(Carriers, AFaultsOutcomeAndAServicesOutcomeComeInTheOrderOfTime) {
  plan.set({{.opcode = 7, .kind = Fault::Kind::status, .value = 70}});
  faulty.send(request(1, 200));
  faulty.send(request(7, 0));
  EXPECT_EQ(70, faulty.take(std::nullopt, kFar)->status);
  EXPECT_EQ(VirtualTime(0), clock.now());
  EXPECT_EQ(1, faulty.take(std::nullopt, kFar)->status);
  EXPECT_EQ(VirtualTime(200), clock.now());
}

TEST_F(Carriers, ADelayedOutcomeLetsOthersPass) {
  plan.set({{.opcode = 7, .kind = Fault::Kind::delay, .value = 500}});
  faulty.send(request(7, 0));
  faulty.send(request(1, 200));
  EXPECT_EQ(1, faulty.take(std::nullopt, kFar)->status);
  EXPECT_EQ(VirtualTime(200), clock.now());
  EXPECT_EQ(7, faulty.take(std::nullopt, kFar)->status);
  EXPECT_EQ(VirtualTime(500), clock.now());
}

TEST_F(Carriers, ADelayedOutcomeIsTakenByItsTokenWhenItArrives) {
  plan.set({{.kind = Fault::Kind::delay, .value = 500}});
  const Token token = faulty.send(request(7, 100));
  EXPECT_EQ(std::nullopt, faulty.take(token, VirtualTime(400)));
  EXPECT_EQ(VirtualTime(400), clock.now());
  EXPECT_EQ(7, faulty.take(token, kFar)->status);
  EXPECT_EQ(VirtualTime(600), clock.now());
}

}  // namespace
