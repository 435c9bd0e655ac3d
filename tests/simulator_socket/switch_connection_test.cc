#include "simulator/transport/switch_connection.h"

#include <sys/wait.h>

#include "tests/simulator_socket/socket_fixture.h"

namespace socket_test {
namespace {

// Frames of a request without a body, and answers to it.
constexpr size_t kRequestSize = 28;
constexpr const char* kRequestFrame =
    "00000018 56530101 0000000000000000 0000000f 00000007 00000000";
constexpr const char* kAnswerSeven =
    "00000020 56530181 0000000000000000 00000007 00000000 0000000000000000 00000000";

class Connections : public SocketTest {
 protected:
  // Status of a request, or the negative errno of a failed transport.
  int ask(SwitchConnection& connection, uint32_t opcode = 7) {
    const Outcome outcome = connection.exchange(request(opcode), clock_);
    if (outcome.error_number == 0) return outcome.status;
    EXPECT_EQ(-1, outcome.status);
    EXPECT_EQ(std::nullopt, outcome.reply);
    return -outcome.error_number;
  }

  // Asks in a thread, while the test is the other side.
  template <typename OtherSide>
  int ask_with(SwitchConnection& connection, OtherSide other_side) {
    int result = 0;
    std::thread asking([&] { result = ask(connection); });
    other_side();
    asking.join();
    return result;
  }
};

TEST_F(Connections, ARequestIsOneFrameAndSoIsItsAnswer) {
  Listener peer(path());
  SwitchConnection connection(path());
  EXPECT_EQ(7, ask_with(connection, [&] {
              Line line = peer.next();
              EXPECT_EQ(hex(kRequestFrame), line.hear(kRequestSize));
              line.say(hex(kAnswerSeven));
            }));
}

TEST_F(Connections, WithoutASwitchTheTransportFails) {
  SwitchConnection connection(path());
  EXPECT_EQ(-ENOENT, ask(connection));
  EXPECT_EQ(ENOENT, connection.connect());
  { Listener dead(path()); }
  EXPECT_EQ(-ECONNREFUSED, ask(connection));
  std::string text;
  EXPECT_EQ(ECONNREFUSED, connection.ask_fabric(text));
}

TEST_F(Connections, ASwitchThatStartsLaterIsFound) {
  SwitchConnection connection(path());
  EXPECT_EQ(-ENOENT, ask(connection));
  ServedSwitch served(path());
  EXPECT_EQ(7, ask(connection));
}

TEST_F(Connections, ARestartBetweenTwoRequestsIsNotNoticed) {
  SwitchConnection connection(path());
  {
    ServedSwitch served(path());
    EXPECT_EQ(7, ask(connection));
  }
  ServedSwitch again(path());
  EXPECT_EQ(8, ask(connection, 8));
}

TEST_F(Connections, ASwitchThatDiesBeforeItAnswersIsAFailureAndTheNextRequestAsksAnew) {
  Listener peer(path());
  SwitchConnection connection(path());
  EXPECT_EQ(-ECONNRESET, ask_with(connection, [&] { peer.next().hear(kRequestSize); }));
  EXPECT_EQ(7, ask_with(connection, [&] {
              Line line = peer.next();
              line.hear(kRequestSize);
              line.say(hex(kAnswerSeven));
            }));
}

TEST_F(Connections, AHalfAnswerIsAFailure) {
  Listener peer(path());
  SwitchConnection connection(path());
  EXPECT_EQ(-ECONNRESET, ask_with(connection, [&] {
    Line line = peer.next();
    line.hear(kRequestSize);
    line.say(hex("00000020 56530181 00000000"));
  }));
}

// Longer than what the socket itself takes, so that the failure comes while sending.
TEST_F(Connections, ASwitchThatDiesWhileItIsAskedIsAFailureAndNoSignal) {
  Listener peer(path());
  SwitchConnection connection(path());
  Outcome outcome;
  std::thread asking([&] {
    outcome = connection.exchange({Service::vsan_manager, 1, 3, Bytes(1000000)}, clock_);
  });
  peer.next().hear(1000);
  asking.join();
  EXPECT_EQ(-1, outcome.status);
  EXPECT_TRUE(outcome.error_number == EPIPE || outcome.error_number == ECONNRESET)
      << outcome.error_number;
}

TEST_F(Connections, WhatIsNoAnswerIsAProtocolErrorAndTheNextRequestAsksAnew) {
  Listener peer(path());
  SwitchConnection connection(path());
  for (const char* garbage :
       {"48545450 2f312e31", "00000004 56530182", "00000018 56530181 0000000000000000",
        "00000004 56530102",
        "00000020 56530181 ffffffffffffffff 00000007 00000000 0000000000000000 00000000"}) {
    const int result = ask_with(connection, [&] {
      Line line = peer.next();
      line.hear(kRequestSize);
      line.say(hex(garbage));
    });
    // What is only too short ends with the connection.
    EXPECT_EQ(std::string_view(garbage).starts_with("00000018") ? -ECONNRESET : -EPROTO, result)
        << garbage;
  }
  ServedSwitch served(path("other.sock"));
  SwitchConnection other(path("other.sock"));
  EXPECT_EQ(7, ask(other));
}

TEST_F(Connections, AnAnswerThatNobodyAskedForEndsTheConnection) {
  Listener peer(path());
  SwitchConnection connection(path());
  ASSERT_EQ(0, connection.connect());
  Line first = peer.next();
  first.say(hex("00000020 56530181 0000000000000000 00000009 00000000 0000000000000000 00000000"));
  EXPECT_EQ(7, ask_with(connection, [&] {
              Line line = peer.next();
              line.hear(kRequestSize);
              line.say(hex(kAnswerSeven));
            }));
  EXPECT_TRUE(first.is_closed());
}

// Real time: what a stopped process costs its clients.
TEST_F(Connections, ASwitchThatDoesNotAnswerIsATimeOut) {
  Listener peer(path());
  SwitchConnection connection(path(), std::chrono::milliseconds(1));
  EXPECT_EQ(-ETIME, ask(connection));
  Line late = peer.next();
  late.say(hex(kAnswerSeven));  // thrown away with the connection
  EXPECT_EQ(-ETIME, ask(connection, 8));
}

TEST_F(Connections, AFullQueueIsAFailure) {
  Listener peer(path(), 0);
  std::vector<std::unique_ptr<SwitchConnection>> waiting;
  int error = 0;
  while (error == 0 && waiting.size() < 100) {
    waiting.push_back(std::make_unique<SwitchConnection>(path()));
    error = waiting.back()->connect();
  }
  EXPECT_EQ(EAGAIN, error);
}

TEST_F(Connections, ARequestThatIsTooLongIsNotSent) {
  ServedSwitch served(path());
  SwitchConnection connection(path());
  const Outcome outcome =
      connection.exchange({Service::vsan_manager, 1, 3, Bytes(1 << 20)}, clock_);
  EXPECT_EQ(EMSGSIZE, outcome.error_number);
  const Bytes longest((1 << 20) - 24);
  EXPECT_EQ(longest, connection.exchange({Service::vsan_manager, 1, 0, longest}, clock_).reply);
}

TEST_F(Connections, AnAnswerOfManyPiecesIsPutTogether) {
  ServedSwitch served(path(), {echo, [] { return std::string(5000000, 'f'); }});
  SwitchConnection connection(path());
  std::string text;
  EXPECT_EQ(0, connection.ask_fabric(text));
  EXPECT_EQ(std::string(5000000, 'f'), text);
  EXPECT_EQ(7, ask(connection));
}

TEST_F(Connections, TheClockGoesOnToThatOfTheSwitch) {
  ServedSwitch served(path(), {[](const TimedRequest& timed) {
                                 Outcome outcome;
                                 outcome.due = VirtualTime(20);
                                 return TimedOutcome{timed.now + VirtualTime(500), outcome};
                               },
                               [] { return std::string(); }});
  SwitchConnection connection(path());
  clock_.advance_to(VirtualTime(100));
  EXPECT_EQ(VirtualTime(20), connection.exchange(request(1), clock_).due);
  EXPECT_EQ(VirtualTime(600), clock_.now());
}

TEST_F(Connections, AChildProcessConnectsByItself) {
  Listener peer(path());
  SwitchConnection connection(path());
  ASSERT_EQ(0, connection.connect());
  Line of_parent = peer.next();
  const pid_t child = fork();
  if (child == 0) _exit(ask(connection) == 7 ? 0 : 1);
  Line of_child = peer.next();
  EXPECT_EQ(hex(kRequestFrame), of_child.hear(kRequestSize));
  of_child.say(hex(kAnswerSeven));
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(0, status);
  EXPECT_EQ(8, ask_with(connection, [&] {
              EXPECT_EQ(hex(kRequestFrame), of_parent.hear(kRequestSize));
              of_parent.say(
                  hex("00000020 56530181 0000000000000000 00000008 00000000 "
                      "0000000000000000 00000000"));
            }));
}

TEST_F(Connections, ADescriptorThatBecameAnotherFilesIsLeftAlone) {
  Listener peer(path());
  int file = -1;
  {
    SwitchConnection connection(path(), std::chrono::milliseconds(1));
    const int next = dup(STDERR_FILENO);
    close(next);
    ASSERT_EQ(0, connection.connect());
    close(next);  // as a program does that becomes a daemon
    file = open(path("log").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(next, file);
    EXPECT_EQ(-ETIME, ask(connection));
  }
  EXPECT_NE(-1, fcntl(file, F_GETFD));
  EXPECT_EQ(0, lseek(file, 0, SEEK_END));
  close(file);
}

}  // namespace
}  // namespace socket_test
