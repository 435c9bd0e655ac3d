#include "simulator/transport/request_log.h"

#include <fstream>
#include <sstream>

#include "simulator/transport/recording.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Exchange;
using switch_sim::read_recording;
using switch_sim::RecordingError;

std::string file_in_temp(const char* name) {
  return testing::TempDir() + "simulator_" + std::to_string(getpid()) + "_" + name;
}

class RequestLog : public SimulatorTest {};

TEST_F(RequestLog, ExchangesAreCountedAlways) {
  EXPECT_EQ(0U, control::exchange_count());
  call(46, 1282, 1, {});
  call(15, 125, 1, {});
  EXPECT_EQ(2U, control::exchange_count());
  EXPECT_TRUE(control::log().empty());
  control::clear_log();
  EXPECT_EQ(0U, control::exchange_count());
}

TEST_F(RequestLog, KeptExchangesHoldRequestAndOutcome) {
  control::keep_log(true);
  call(46, 1282, 1, {});
  call(15, 149, 1, Pattern(2632).at(520, "00000009").bytes());
  const auto log = control::log();
  ASSERT_EQ(2U, log.size());
  EXPECT_EQ(switch_sim::Service::switch_identity, log[0].request.service);
  EXPECT_EQ(1282U, log[0].request.opcode);
  EXPECT_EQ(1U, log[0].request.operation);
  EXPECT_TRUE(log[0].request.body.empty());
  EXPECT_EQ(8U, log[0].outcome->reply->size());
  EXPECT_EQ(2632U, log[1].request.body.size());
  EXPECT_EQ(kNotFound, log[1].outcome->status);
  EXPECT_EQ(std::nullopt, log[1].outcome->reply);
}

TEST_F(RequestLog, AnExchangeInVainHasNoOutcome) {
  control::keep_log(true);
  control::set_faults({{.kind = switch_sim::Fault::Kind::delay, .value = 60000}});
  call(46, 1282, 1, {});
  ASSERT_EQ(1U, control::log().size());
  EXPECT_EQ(std::nullopt, control::log()[0].outcome);
}

TEST(RequestLogLines, ARequestIsOneLine) {
  const switch_sim::Request request = {
      switch_sim::Service::vsan_manager, 149, 2, {std::byte{0x0F}, std::byte{0xA0}}};
  EXPECT_EQ("request token=7 service=15 opcode=149 operation=2 body=0fa0",
            switch_sim::request_line(7, request));
}

TEST(RequestLogLines, AReplyIsOneLine) {
  switch_sim::Outcome outcome;
  outcome.token = 7;
  outcome.reply = {std::byte{0x01}};
  EXPECT_EQ("reply token=7 status=0 errno=0 after_ms=25 body=01",
            switch_sim::reply_line(outcome, switch_sim::VirtualTime(25)));
  outcome.reply.reset();
  outcome.status = -1;
  outcome.error_number = 62;
  EXPECT_EQ("reply token=7 status=-1 errno=62 after_ms=0 body=none",
            switch_sim::reply_line(outcome, switch_sim::VirtualTime(0)));
}

TEST(RequestLogFile, LinesAreAppended) {
  const std::string path = file_in_temp("log");
  switch_sim::RequestLog log;
  ASSERT_TRUE(log.write_to(path.c_str()));
  log.sent(1, {switch_sim::Service::switch_identity, 1282, 1, {}}, switch_sim::VirtualTime(10));
  switch_sim::Outcome outcome;
  outcome.token = 1;
  outcome.due = switch_sim::VirtualTime(15);
  outcome.reply = {std::byte{0x20}};
  log.taken(outcome);
  ASSERT_TRUE(log.write_to(path.c_str()));
  log.sent(2, {switch_sim::Service::switch_identity, 1282, 1, {}}, switch_sim::VirtualTime(20));
  log.stop_writing();

  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  EXPECT_EQ(
      "request token=1 service=46 opcode=1282 operation=1 body=\n"
      "reply token=1 status=0 errno=0 after_ms=5 body=20\n"
      "request token=2 service=46 opcode=1282 operation=1 body=\n",
      text.str());
  remove(path.c_str());
}

TEST(RequestLogFile, AFileThatCannotBeOpenedIsReported) {
  switch_sim::RequestLog log;
  EXPECT_FALSE(log.write_to("/nonexistent/folder/trace"));
  EXPECT_EQ(ENOENT, errno);
}

TEST(Recording, TheLinesOfALogAreRead) {
  const auto read = read_recording(
      "request token=1 service=46 opcode=1282 operation=1 body=\n"
      "reply token=1 status=0 errno=0 after_ms=5 body=20ff\n"
      "\n"
      "request token=2 service=15 opcode=149 operation=2 body=0001\n");
  ASSERT_TRUE(std::holds_alternative<std::vector<Exchange>>(read));
  const auto& exchanges = std::get<std::vector<Exchange>>(read);
  ASSERT_EQ(2U, exchanges.size());
  EXPECT_EQ(1282U, exchanges[0].request.opcode);
  EXPECT_EQ((switch_sim::Bytes{std::byte{0x20}, std::byte{0xFF}}), exchanges[0].outcome->reply);
  EXPECT_EQ(switch_sim::VirtualTime(5), exchanges[0].outcome->due);
  EXPECT_EQ(2U, exchanges[1].request.body.size());
  EXPECT_EQ(std::nullopt, exchanges[1].outcome);
}

TEST(Recording, WrongLinesAreToldWithTheirNumber) {
  const auto error_of = [](const char* text) {
    const auto read = read_recording(text);
    const auto* error = std::get_if<RecordingError>(&read);
    return error != nullptr ? std::to_string(error->line) + ": " + error->message : "none";
  };
  EXPECT_EQ("1: neither a request nor a reply line", error_of("hello\n"));
  EXPECT_EQ("2: malformed request line", error_of("\nrequest token=x\n"));
  EXPECT_EQ("1: malformed request line",
            error_of("request token=1 service=46 opcode=1 operation=1 body=0\n"));
  EXPECT_EQ("1: malformed request line",
            error_of("request token=1 service=46 opcode=1 operation=1 body=zz"));
  EXPECT_EQ("1: malformed request line", error_of("request token=1 service=46 opcode=1"));
  EXPECT_EQ("1: no request waits for this reply",
            error_of("reply token=1 status=0 errno=0 after_ms=5 body=none"));
  const std::string request = "request token=1 service=46 opcode=1282 operation=1 body=\n";
  EXPECT_EQ("2: malformed reply line", error_of((request + "reply token=1 status=").c_str()));
  EXPECT_EQ("2: malformed reply line",
            error_of((request + "reply token=1 status=0 errno=0 after_ms=-5 body=none").c_str()));
  const std::string reply = "reply token=1 status=0 errno=0 after_ms=5 body=none\n";
  EXPECT_EQ("3: no request waits for this reply", error_of((request + reply + reply).c_str()));
}

class Replay : public SimulatorTest {};

TEST_F(Replay, ARecordedRequestGetsTheRecordedOutcome) {
  ASSERT_EQ(std::nullopt,
            control::replay("request token=1 service=46 opcode=1282 operation=1 body=\n"
                            "reply token=1 status=0 errno=0 after_ms=5 body=1122334455667788\n"
                            "request token=2 service=46 opcode=1282 operation=1 body=\n"
                            "reply token=2 status=77 errno=0 after_ms=0 body=none\n"));
  expect_reply(call(46, 1282, 1, {}), Pattern(8).at(0, "1122334455667788"));
  EXPECT_EQ(switch_sim::VirtualTime(5), control::now());
  expect_refused(call(46, 1282, 1, {}), 77);
}

TEST_F(Replay, ARequestThatIsNotRecordedIsRefused) {
  ASSERT_EQ(std::nullopt, control::replay(""));
  expect_refused(call(46, 1282, 1, {}), kNotRecorded);
}

TEST_F(Replay, ARequestRecordedWithoutAReplyTimesOut) {
  ASSERT_EQ(std::nullopt,
            control::replay("request token=1 service=46 opcode=1282 operation=1 body=\n"));
  EXPECT_EQ(-1, call(46, 1282, 1, {}).status);
  EXPECT_EQ(62, mts_errno_get(q));
}

TEST_F(Replay, AWrongRecordingIsToldAndNotUsed) {
  EXPECT_EQ("line 1: neither a request nor a reply line", control::replay("hello"));
  expect_reply(call(46, 1282, 1, {}), Pattern(8).at(0, "2000000dec0a1b2c"));
}

TEST_F(Replay, WhatWasLoggedIsReplayed) {
  const std::string path = file_in_temp("replay");
  control::keep_log(true);
  const auto first = call(28, 1812, 1, Pattern(1032).at(0, "00000002").bytes());
  const auto second = call(15, 149, 1, Pattern(2632).at(520, "00000009").bytes());
  std::string text;
  for (const auto& exchange : control::log()) {
    text += switch_sim::request_line(exchange.token, exchange.request) + "\n";
    text += switch_sim::reply_line(*exchange.outcome, switch_sim::VirtualTime(0)) + "\n";
  }
  auto fabric = control::fabric();
  fabric.switches[0].name = "another";
  ASSERT_EQ(std::nullopt, control::install(fabric));
  ASSERT_EQ(std::nullopt, control::replay(text));
  EXPECT_EQ(first.reply, call(28, 1812, 1, Pattern(1032).at(0, "00000002").bytes()).reply);
  EXPECT_EQ(second.status, call(15, 149, 1, Pattern(2632).at(520, "00000009").bytes()).status);
}

}  // namespace
}  // namespace simulator_test
