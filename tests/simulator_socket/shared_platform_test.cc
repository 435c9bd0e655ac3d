// The client functions on a switch that is behind a socket.
#include <switch_platform/domain_manager.h>
#include <switch_platform/fabric_distribution.h>
#include <switch_platform/system.h>
#include <sys/wait.h>

#include <mutex>

#include "simulator/control/control.h"
#include "simulator/fabric/fabric_file.h"
#include "tests/simulator/simulator_fixture.h"
#include "tests/simulator_socket/socket_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::VirtualTime;

// The services over a fabric of their own, apart from the platform of this process.
class OtherProcess {
 public:
  explicit OtherProcess(const std::string& path)
      : served_(path, {[this](const switch_sim::TimedRequest& timed) { return answer(timed); },
                       [this] { return text(); }}) {}

  switch_sim::Fabric fabric() {
    const std::lock_guard lock(mutex_);
    return fabric_;
  }

 private:
  switch_sim::TimedOutcome answer(const switch_sim::TimedRequest& timed) {
    const std::lock_guard lock(mutex_);
    clock_.advance_to(timed.now);
    return {clock_.now(), switch_sim::answer(timed.request, fabric_, clock_.now())};
  }
  std::string text() {
    const std::lock_guard lock(mutex_);
    return switch_sim::write_fabric(fabric_);
  }

  std::mutex mutex_;
  switch_sim::Fabric fabric_ = switch_sim::default_fabric();
  switch_sim::VirtualClock clock_;
  socket_test::ServedSwitch served_;
};

class SharedPlatform : public SimulatorTest {
 protected:
  void SetUp() override {
    SimulatorTest::SetUp();
    ASSERT_EQ(std::nullopt, control::use_switch_at(path()));
  }
  void TearDown() override {
    SimulatorTest::TearDown();
    control::reset();
  }

  std::string path() const { return (folder_.path() / "switch.sock").string(); }
  Result set_name(std::string_view name) {
    return call(35, 878, 3, Pattern(260).text(0, name).bytes());
  }
  mts_msg_t* discover() {
    uint32_t body[7] = {0, 0, 0, 0, 0, 0, 126};
    mts_msg_t* message = nullptr;
    EXPECT_EQ(0, kfs_discover_peers(q, body, 2, &message));
    return message;
  }
  int32_t receive(mts_msg_t** reply) {
    const cim_mts_recv_opts opts = {1, 0, 20, 0, 0, 0};
    *reply = nullptr;
    return mts_recv(q, reply, &opts);
  }

  program::TemporaryFolder folder_;
};

TEST_F(SharedPlatform, SynchronousRequestsAreAnsweredByTheOtherProcess) {
  OtherProcess other(path());
  expect_reply(call(46, 1282, 1, {}), Pattern(8).at(0, "2000000dec0a1b2c"));
  expect_refused(call(15, 999, 1, {}), kUnknownOpcode);
}

TEST_F(SharedPlatform, AChangeIsMadeInTheOtherProcess) {
  OtherProcess other(path());
  expect_refused(set_name("edge-7"), 0);
  EXPECT_EQ("edge-7", other.fabric().switches[0].name);
  EXPECT_EQ("edge-7", control::fabric().switches[0].name);
  EXPECT_NE(std::string::npos, control::fabric_text().find("\"name\": \"edge-7\""));
  const std::string file = (folder_.path() / "saved").string();
  EXPECT_EQ(std::nullopt, control::save(file));
  EXPECT_EQ(control::fabric_text(), program::file_text(file));
}

TEST_F(SharedPlatform, AsynchronousMessagesAreAnsweredByTheOtherProcess) {
  OtherProcess other(path());
  mts_msg_t* request = discover();
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, receive(&reply));
  EXPECT_EQ(128, mts_payload_size(reply));
  EXPECT_EQ(mts_rr_token_get(request), mts_rr_token_get(reply));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(SharedPlatform, FunctionsWithoutAQueueAreAnsweredByTheOtherProcess) {
  OtherProcess other(path());
  EXPECT_NE(nullptr, srg_sw_ver_get(0));
}

TEST_F(SharedPlatform, MessagesOfClientFunctionsAreAnsweredByTheOtherProcess) {
  OtherProcess other(path());
  mts_msg_t* message = nullptr;
  ASSERT_EQ(0, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(2, dm_parse_get_num_entries(message));
  mts_drop(q, message);
}

TEST_F(SharedPlatform, WithoutTheOtherProcessEveryFunctionFailsAsTheTransportDoes) {
  const Result result = call(46, 1282, 1, {});
  EXPECT_EQ(-1, result.status);
  EXPECT_EQ(ENOENT, errno);
  EXPECT_EQ(ENOENT, mts_errno_get(q));
  EXPECT_FALSE(result.has_reply);
  EXPECT_EQ(nullptr, srg_sw_ver_get(0));
  mts_msg_t* message = nullptr;
  EXPECT_EQ(-1, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(nullptr, message);
}

TEST_F(SharedPlatform, WithoutTheOtherProcessAMessageIsSentAndReceivingItFails) {
  mts_msg_t* request = discover();
  mts_msg_t* reply = nullptr;
  EXPECT_EQ(-1, receive(&reply));
  EXPECT_EQ(nullptr, reply);
  EXPECT_EQ(ENOENT, errno);
  EXPECT_EQ(ENOENT, mts_errno_get(q));
  EXPECT_EQ(VirtualTime(0), control::now());
  mts_drop(q, request);
}

TEST_F(SharedPlatform, WithoutTheOtherProcessTheFabricIsNotKnown) {
  EXPECT_EQ(path() + ": no switch answers there: No such file or directory",
            control::connection_problem());
  try {
    control::fabric_text();
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(path() + ": no switch answers there: No such file or directory", error.what());
  }
}

TEST_F(SharedPlatform, AFabricTextThatCannotBeReadIsAnError) {
  socket_test::ServedSwitch served(path());
  EXPECT_EQ("fabric", control::fabric_text());
  EXPECT_THROW(control::fabric(), std::runtime_error);
}

TEST_F(SharedPlatform, TheOtherProcessMayStopAndComeBack) {
  {
    OtherProcess other(path());
    EXPECT_EQ(0, call(46, 1282, 1, {}).status);
    EXPECT_EQ("", control::connection_problem());
  }
  EXPECT_EQ(-1, call(46, 1282, 1, {}).status);
  OtherProcess again(path());
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
  EXPECT_EQ(0, mts_errno_get(q));
}

TEST_F(SharedPlatform, FaultsAndTimeOutsAreThoseOfThisProcess) {
  OtherProcess other(path());
  control::set_faults({{.service = switch_sim::Service::fabric_distribution,
                        .nth = 1,
                        .kind = switch_sim::Fault::Kind::delay,
                        .value = 25000}});
  mts_msg_t* request = discover();
  mts_msg_t* reply = nullptr;
  EXPECT_EQ(-1, receive(&reply));
  EXPECT_EQ(ETIME, errno);
  EXPECT_EQ(VirtualTime(20000), control::now());
  EXPECT_EQ(0, receive(&reply));
  EXPECT_EQ(VirtualTime(25000), control::now());
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(SharedPlatform, TimeThatPassesHereHasPassedInTheOtherProcess) {
  OtherProcess other(path());
  const auto up_time = Pattern(1032).at(0, "00000006");
  control::advance(std::chrono::seconds(1));
  expect_reply(call(28, 1812, 1, up_time.bytes()), Pattern(up_time).at(4, "0083d664"));
}

TEST_F(SharedPlatform, TheLogHoldsWhatThisProcessSaw) {
  OtherProcess other(path());
  control::keep_log(true);
  call(15, 125, 1, {});
  const auto log = control::log();
  ASSERT_EQ(1U, log.size());
  EXPECT_EQ(125U, log[0].request.opcode);
  EXPECT_EQ(socket_test::hex("00000002"), log[0].outcome->reply);
}

TEST_F(SharedPlatform, AFabricOfThisProcessEndsIt) {
  EXPECT_EQ(-1, call(46, 1282, 1, {}).status);
  control::install(switch_sim::default_fabric());
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
  EXPECT_EQ("", control::connection_problem());
}

TEST_F(SharedPlatform, AStateFileOfThisProcessEndsIt) {
  EXPECT_EQ(std::nullopt, control::keep_state_in((folder_.path() / "state").string()));
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
}

TEST_F(SharedPlatform, AnEmptyPathEndsIt) {
  EXPECT_EQ(std::nullopt, control::use_switch_at(""));
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
}

TEST_F(SharedPlatform, ANameThatIsNoSocketNameIsRefused) {
  const std::string name(110, 'n');
  EXPECT_EQ("/" + name + ": the name of a socket has at most 107 bytes",
            control::use_switch_at("/" + name));
}

TEST_F(SharedPlatform, ThreadsOfOneProcessGetTheirOwnAnswers) {
  OtherProcess other(path());
  const auto ask = [this](uint32_t sap, uint32_t opcode, const std::vector<uint8_t>& expected) {
    const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
    const int32_t queue = mts_bind(1, -1, &opts, "thread");
    for (int i = 0; i < 300; ++i) {
      void* reply = nullptr;
      int32_t length = 0;
      EXPECT_EQ(0, cmi_req_resp(opcode, 1, nullptr, &reply, &length, 0, 0, sap, queue, 4));
      ASSERT_EQ(static_cast<int32_t>(expected.size()), length);
      EXPECT_EQ(0, memcmp(expected.data(), reply, expected.size()));
      free(reply);
    }
    mts_unbind(queue, 0);
  };
  std::thread first([&] { ask(46, 1282, Pattern(8).at(0, "2000000dec0a1b2c").bytes()); });
  std::thread second([&] { ask(15, 125, Pattern(4).at(0, "00000002").bytes()); });
  first.join();
  second.join();
}

TEST_F(SharedPlatform, AChildProcessAndItsParentAskSideBySide) {
  OtherProcess other(path());
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
  const pid_t child = fork();
  bool answered = true;
  for (int i = 0; i < 200; ++i) {
    const Result result = child == 0 ? call(46, 1282, 1, {}) : call(15, 125, 1, {});
    answered = answered && result.status == 0 && result.length == (child == 0 ? 8 : 4);
  }
  if (child == 0) _exit(answered ? 0 : 1);
  EXPECT_TRUE(answered);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(0, status);
}

class SharedEnvironmentDeathTest : public testing::Test {
 protected:
  void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
  void TearDown() override {
    for (const char* name : {"SWITCH_SIM_SOCKET", "SWITCH_SIM_FABRIC", "SWITCH_SIM_STATE"})
      unsetenv(name);
  }
};

int query_error() {
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  const int32_t q = mts_bind(1, -1, &opts, "test");
  int32_t length = 0;
  cmi_req_resp(1282, 1, nullptr, nullptr, &length, 0, 0, 46, q, 4);
  return mts_errno_get(q);
}

// The variables of fabric and state are for the process that serves.
TEST_F(SharedEnvironmentDeathTest, TheSocketOfTheEnvironmentIsUsedAndTheRestLeftAlone) {
  setenv("SWITCH_SIM_SOCKET", "/nonexistent/switch.sock", 1);
  setenv("SWITCH_SIM_FABRIC", "/nonexistent/fabric.json", 1);
  setenv("SWITCH_SIM_STATE", "/nonexistent/state.json", 1);
  EXPECT_EXIT(
      {
        const bool used =
            query_error() == ENOENT && control::connection_problem() ==
                                           "/nonexistent/switch.sock: no switch answers there: "
                                           "No such file or directory";
        _exit(used && control::startup_problem().empty() ? 0 : 1);
      },
      testing::ExitedWithCode(0), "^$");
}

TEST_F(SharedEnvironmentDeathTest, ARelativeNameStaysTheSameFileWhenTheProgramChangesItsFolder) {
  setenv("SWITCH_SIM_SOCKET", "switch.sock", 1);
  const program::TemporaryFolder folder;
  socket_test::ServedSwitch served((folder.path() / "switch.sock").string());
  EXPECT_EXIT(
      {
        if (chdir(folder.path().c_str()) != 0) _exit(2);
        query_error();
        if (chdir("/") != 0) _exit(2);
        const int error = query_error();
        program::fs::remove_all(folder.path());
        _exit(error == 0 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "^$");
}

TEST_F(SharedEnvironmentDeathTest, ANameThatIsTooLongIsToldOnceAndRefusesEveryRequest) {
  const std::string name = "/" + std::string(107, 'n');
  setenv("SWITCH_SIM_SOCKET", name.c_str(), 1);
  EXPECT_EXIT(
      {
        query_error();
        query_error();
        _exit(control::startup_problem() ==
                      "SWITCH_SIM_SOCKET: " + name + ": the name of a socket has at most 107 bytes"
                  ? 0
                  : 1);
      },
      testing::ExitedWithCode(0),
      "^switch simulator: SWITCH_SIM_SOCKET: " + name +
          ": the name of a socket has at most 107 bytes; every request is refused\n$");
}

}  // namespace
}  // namespace simulator_test
