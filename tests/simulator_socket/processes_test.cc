// `vexor-cim switch` and its clients as processes.
#include <signal.h>
#include <sys/stat.h>

#include "tests/simulator_socket/socket_fixture.h"

namespace socket_test {
namespace {

constexpr const char* kSecondVsan = "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"";
constexpr const char* kSettings = "VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"";

// A program that was started and not waited for; its standard output can be read. Its standard
// error goes to a file.
class Process {
 public:
  Process(std::vector<std::string> arguments, const std::string& errors) {
    int out[2] = {-1, -1};
    EXPECT_EQ(0, pipe2(out, O_CLOEXEC));
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    arguments.insert(arguments.begin(), VEXOR_CIM);
    std::vector<char*> argv;
    for (std::string& argument : arguments)
      argv.push_back(argument.data());
    argv.push_back(nullptr);
    EXPECT_EQ(0, posix_spawn(&process_, VEXOR_CIM, &actions, nullptr, argv.data(), environ));
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    output_ = fdopen(out[0], "r");
  }
  ~Process() {
    if (process_ != 0) end(SIGKILL);
    fclose(output_);
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // The next line, without its end; waits for it.
  std::string line() {
    char text[1024] = "";
    if (fgets(text, sizeof text, output_) == nullptr) return "(end)";
    return {text, strlen(text) - 1};
  }

  // What waitpid tells.
  int wait() {
    int status = -1;
    waitpid(process_, &status, 0);
    process_ = 0;
    return status;
  }

  int end(int signal) {
    kill(process_, signal);
    return wait();
  }

 private:
  pid_t process_ = 0;
  FILE* output_ = nullptr;
};

class Processes : public program::ProgramTest {
 protected:
  ~Processes() override { unsetenv("SWITCH_SIM_SOCKET"); }

  std::string path(const char* name = "switch.sock") const {
    return (folder_.path() / name).string();
  }

  // Runs the switch and waits until it serves.
  std::unique_ptr<Process> serve(std::vector<std::string> arguments = {}) {
    arguments.insert(arguments.end(), {"switch", "--socket", path()});
    auto process = std::make_unique<Process>(arguments, errors());
    EXPECT_EQ("the switch answers at " + path(), process->line());
    EXPECT_EQ("other processes use it with SWITCH_SIM_SOCKET=" + path(), process->line());
    return process;
  }

  void use_it() { setenv("SWITCH_SIM_SOCKET", path().c_str(), 1); }

  std::vector<std::string> with_state() const { return {"--state", path("state.json")}; }

  // What the switch wrote to its standard error.
  std::string errors() const { return (elsewhere_.path() / "errors").string(); }

  program::TemporaryFolder folder_;
  program::TemporaryFolder elsewhere_;
};

TEST_F(Processes, OneProcessChangesAndAnotherSeesIt) {
  const auto served = serve();
  use_it();
  EXPECT_EQ("RequestStateChange returned 0\n",
            program::run({"invoke", kSecondVsan, "RequestStateChange", "RequestedState=3"}).out);
  EXPECT_EQ(program::screen("enumerate_vsan_suspended.txt"),
            program::run({"enumerate", "VEXOR_Vsan"}).out);
}

TEST_F(Processes, ProcessesChangeAndReadAtOnce) {
  const auto served = serve(with_state());
  use_it();
  std::vector<std::thread> writers;
  for (const char* setting : {"PrincipalPriority", "PreferredDomainID"}) {
    writers.emplace_back([setting] {
      for (const int value : {3, 2, 4, 2, 3, 4}) {
        const auto outcome =
            program::run({"modify", kSettings, std::string(setting) + "=" + std::to_string(value)});
        EXPECT_EQ(0, outcome.status) << outcome.err;
      }
    });
  }
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(program::screen("enumerate_vsan.txt"), program::run({"enumerate", "VEXOR_Vsan"}).out);
  for (std::thread& writer : writers)
    writer.join();
  EXPECT_EQ(
      "root/cimv2:VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"\n"
      "PrincipalPriority  4\nPreferredDomainID  4\n",
      program::run({"get", kSettings, "--properties", "PrincipalPriority,PreferredDomainID"}).out);
}

// Each with a switch of its own: they share the state file only.
TEST_F(Processes, ProcessesThatChangeOneStateFileLoseNothing) {
  std::vector<std::thread> writers;
  for (const char* setting : {"PrincipalPriority", "PreferredDomainID"}) {
    writers.emplace_back([this, setting] {
      for (const int value : {3, 2, 4, 2, 3, 4}) {
        const auto outcome = program::run({"--state", path("state.json"), "modify", kSettings,
                                           std::string(setting) + "=" + std::to_string(value)});
        EXPECT_EQ(0, outcome.status) << outcome.err;
      }
    });
  }
  for (std::thread& writer : writers)
    writer.join();
  EXPECT_EQ(
      "root/cimv2:VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"\n"
      "PrincipalPriority  4\nPreferredDomainID  4\n",
      program::run({"--state", path("state.json"), "get", kSettings, "--properties",
                    "PrincipalPriority,PreferredDomainID"})
          .out);
}

TEST_F(Processes, TheSwitchTellsWhatItCannotSave) {
  std::filesystem::create_directory(path("state.json.journal"));  // in the way of the journal
  const auto served = serve(with_state());
  use_it();
  EXPECT_EQ(1, program::run({"modify", kSettings, "PreferredDomainID=12"}).status);
  EXPECT_EQ(0, served->end(SIGTERM));
  EXPECT_EQ(
      "vexor-cim: a change was not saved: " + path("state.json") + ".journal: Is a directory\n",
      program::file_text(errors()));
}

TEST_F(Processes, TheFabricIsThatOfTheSwitch) {
  const std::string numbers = "switches=2,vsans=3,seed=5";
  const auto served = serve({"--generate", numbers});
  const std::string generated = program::run({"--generate", numbers, "fabric"}).out;
  use_it();
  EXPECT_EQ(generated, program::run({"fabric"}).out);
}

TEST_F(Processes, AFabricOnTheCommandLineIsStrongerThanTheSocket) {
  const auto served = serve({"--generate", "switches=2,vsans=3,seed=5"});
  const std::string own = program::run({"--generate", "seed=9", "fabric"}).out;
  use_it();
  EXPECT_EQ(own, program::run({"--generate", "seed=9", "fabric"}).out);
}

TEST_F(Processes, TheSocketIsForItsOwnerOnly) {
  const auto served = serve();
  struct stat made {};
  ASSERT_EQ(0, lstat(path().c_str(), &made));
  EXPECT_TRUE(S_ISSOCK(made.st_mode));
  EXPECT_EQ(0600U, made.st_mode & 07777U);
}

TEST_F(Processes, ItEndsWithSuccessWhenItIsInterrupted) {
  for (const int signal : {SIGTERM, SIGINT}) {
    const auto served = serve();
    const int status = served->end(signal);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(0, WEXITSTATUS(status));
    EXPECT_EQ("(end)", served->line());
    EXPECT_TRUE(program::fs::is_empty(folder_.path()));
  }
}

TEST_F(Processes, AServedSocketIsRefused) {
  const auto served = serve();
  expect_error(2, path() + ": another process serves there", {"switch", "--socket", path()});
  use_it();
  EXPECT_EQ(0, program::run({"enumerate", "VEXOR_Vsan"}).status);
}

TEST_F(Processes, WhatCannotBeServedIsRefused) {
  expect_error(2, "/nonexistent/s: No such file or directory",
               {"switch", "--socket", "/nonexistent/s"});
  const std::string long_name = "/tmp/" + std::string(110, 'n');
  expect_error(2, long_name + ": the name of a socket has at most 107 bytes",
               {"switch", "--socket", long_name});
  expect_error(2, "/nonexistent/f: No such file or directory",
               {"--fabric", "/nonexistent/f", "switch", "--socket", path()});
  EXPECT_TRUE(program::fs::is_empty(folder_.path()));
  expect_error(2, "--socket is required; vexor-cim --help tells what there is", {"switch"});
}

TEST_F(Processes, ASwitchIsNobodysClient) {
  use_it();
  const auto served = serve();
  EXPECT_EQ(0, program::run({"enumerate", "VEXOR_Vsan"}).status);
}

TEST_F(Processes, WithoutASwitchAClientSaysSo) {
  use_it();
  const std::string line =
      "SWITCH_SIM_SOCKET: " + path() + ": no switch answers there: No such file or directory";
  expect_error(2, line, {"enumerate", "VEXOR_Vsan"});
  expect_error(2, line, {"fabric"});
  EXPECT_EQ(0, program::run({"classes"}).status);
}

TEST_F(Processes, EveryAcknowledgedChangeOutlivesAKilledSwitch) {
  auto served = serve(with_state());
  SwitchConnection connection(path());
  VirtualClock clock;
  // The last one that was acknowledged is the one that counts.
  for (int i = 1; i <= 50; ++i) {
    Bytes name(260);
    const std::string text = "switch-" + std::to_string(i);
    memcpy(name.data(), text.data(), text.size());
    ASSERT_EQ(0, connection.exchange({Service::system_name, 878, 3, name}, clock).status);
  }
  const int status = served->end(SIGKILL);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_TRUE(program::fs::exists(path()));  // stale
  EXPECT_EQ(ECONNREFUSED,
            connection.exchange({Service::system_name, 878, 3, Bytes(260)}, clock).error_number);

  served = serve(with_state());
  std::string fabric;
  ASSERT_EQ(0, connection.ask_fabric(fabric));
  EXPECT_NE(std::string::npos, fabric.find("\"name\": \"switch-50\""));
}

TEST_F(Processes, AKilledClientLosesNothingThatWasAcknowledged) {
  const auto served = serve();
  int acknowledged[2] = {-1, -1};
  ASSERT_EQ(0, pipe2(acknowledged, O_CLOEXEC));
  const pid_t client = fork();
  if (client == 0) {
    SwitchConnection connection(path());
    VirtualClock clock;
    for (uint32_t i = 0;; ++i) {
      Bytes name(260);
      const std::string text = "switch-" + std::to_string(i);
      memcpy(name.data(), text.data(), text.size());
      if (connection.exchange({Service::system_name, 878, 3, name}, clock).status != 0) _exit(1);
      if (write(acknowledged[1], &i, sizeof i) != sizeof i) _exit(1);
    }
  }
  close(acknowledged[1]);
  uint32_t last = 0;
  for (int i = 0; i < 20; ++i)
    ASSERT_EQ(ssize_t{sizeof last}, read(acknowledged[0], &last, sizeof last));
  kill(client, SIGKILL);
  waitpid(client, nullptr, 0);
  while (read(acknowledged[0], &last, sizeof last) == sizeof last) {
  }
  close(acknowledged[0]);

  SwitchConnection connection(path());
  std::string fabric;
  ASSERT_EQ(0, connection.ask_fabric(fabric));
  // The one that was under way may have been made, too.
  const auto is_there = [&](uint32_t i) {
    return fabric.find("\"name\": \"switch-" + std::to_string(i) + "\"") != std::string::npos;
  };
  EXPECT_TRUE(is_there(last) || is_there(last + 1)) << fabric;
}

TEST_F(Processes, AStoppedClientBlocksNobody) {
  const auto served = serve();
  Line halting = Line::to(path());
  halting.say(hex("00000018 56530101 00"));
  use_it();
  EXPECT_EQ(program::screen("enumerate_vsan.txt"), program::run({"enumerate", "VEXOR_Vsan"}).out);
}

TEST_F(Processes, TheTraceOfTheSwitchHoldsTheRequestsOfItsClients) {
  const std::string trace = path("trace");
  setenv("SWITCH_SIM_TRACE", trace.c_str(), 1);
  auto served = serve();
  unsetenv("SWITCH_SIM_TRACE");
  SwitchConnection connection(path());
  VirtualClock clock;
  connection.exchange({Service::switch_identity, 1282, 1, {}}, clock);
  served->end(SIGTERM);
  EXPECT_EQ(
      "request token=1 service=46 opcode=1282 operation=1 body=\n"
      "reply token=1 status=0 errno=0 after_ms=0 body=2000000dec0a1b2c\n",
      program::file_text(trace));
}

}  // namespace
}  // namespace socket_test
