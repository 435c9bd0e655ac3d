// Each of these needs a process of its own, since the environment is read at the first use.
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

int32_t query_switch_wwn() {
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  const int32_t q = mts_bind(1, -1, &opts, "test");
  void* reply = nullptr;
  int32_t length = 0;
  const int32_t status = cmi_req_resp(1282, 1, nullptr, &reply, &length, 0, 0, 46, q, 4);
  free(reply);
  mts_unbind(q, 0);
  return status;
}

class EnvironmentDeathTest : public testing::Test {
 protected:
  void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

TEST_F(EnvironmentDeathTest, ATraceFileThatCannotBeOpenedRefusesEveryRequest) {
  EXPECT_EXIT(
      {
        setenv("SWITCH_SIM_TRACE", "/nonexistent/folder/trace", 1);
        const bool refused = query_switch_wwn() == kFabricNotUsable &&
                             query_switch_wwn() == kFabricNotUsable &&
                             !switch_sim::control::startup_problem().empty();
        _exit(refused ? 0 : 1);
      },
      testing::ExitedWithCode(0),
      "^switch simulator: SWITCH_SIM_TRACE: /nonexistent/folder/trace: No such file or directory; "
      "every request is refused\n$");
}

TEST_F(EnvironmentDeathTest, TheTraceFileGetsOneLinePerMessage) {
  const std::string path = testing::TempDir() + "simulator_trace_" + std::to_string(getuid());
  remove(path.c_str());
  setenv("SWITCH_SIM_TRACE", path.c_str(), 1);
  EXPECT_EXIT(_exit(query_switch_wwn()), testing::ExitedWithCode(0), "^$");
  unsetenv("SWITCH_SIM_TRACE");
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  EXPECT_EQ(
      "request token=1 service=46 opcode=1282 operation=1 body=\n"
      "reply token=1 status=0 errno=0 after_ms=0 body=2000000dec0a1b2c\n",
      text.str());
  remove(path.c_str());
}

std::string temporary(const char* name) {
  return testing::TempDir() + "simulator_environment_" + std::to_string(getuid()) + "_" + name;
}

void write(const std::string& path, const std::string& text) {
  std::ofstream(path) << text;
}

constexpr const char* kSmallFabric = R"({"version": 1, "local_switch": "a",
"switches": [{"name": "a", "wwn": "20:00:00:00:00:00:00:01"}], "vsans": []})";

TEST_F(EnvironmentDeathTest, AFabricFileIsAnsweredFrom) {
  const std::string path = temporary("fabric");
  write(path, kSmallFabric);
  setenv("SWITCH_SIM_FABRIC", path.c_str(), 1);
  EXPECT_EXIT(
      _exit(query_switch_wwn() == 0 && switch_sim::control::fabric().switches.size() == 1 ? 0 : 1),
      testing::ExitedWithCode(0), "^$");
  unsetenv("SWITCH_SIM_FABRIC");
  remove(path.c_str());
}

TEST_F(EnvironmentDeathTest, AWrongFabricFileIsToldOnceAndRefusesEveryRequest) {
  const std::string path = temporary("wrong_fabric");
  write(path, "{\n  \"vsns\": []}");
  setenv("SWITCH_SIM_FABRIC", path.c_str(), 1);
  EXPECT_EXIT(
      _exit(query_switch_wwn() == kFabricNotUsable && query_switch_wwn() == kFabricNotUsable ? 0
                                                                                             : 1),
      testing::ExitedWithCode(0),
      "^switch simulator: SWITCH_SIM_FABRIC: " + path +
          ":2:3: unknown key \"vsns\" .did you mean \"vsans\"..; every request is "
          "refused\n$");
  unsetenv("SWITCH_SIM_FABRIC");
  remove(path.c_str());
}

TEST_F(EnvironmentDeathTest, AnInstalledFabricEndsWhatWasWrongWithTheEnvironment) {
  setenv("SWITCH_SIM_FABRIC", "/nonexistent/fabric.json", 1);
  EXPECT_EXIT(
      {
        const bool refused = query_switch_wwn() == kFabricNotUsable;
        switch_sim::control::install(switch_sim::default_fabric());
        _exit(refused && query_switch_wwn() == 0 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "No such file or directory");
  unsetenv("SWITCH_SIM_FABRIC");
}

TEST_F(EnvironmentDeathTest, AStateFileIsTakenBeforeTheFabricFile) {
  const std::string path = temporary("state");
  write(path, kSmallFabric);
  setenv("SWITCH_SIM_STATE", path.c_str(), 1);
  setenv("SWITCH_SIM_FABRIC", "", 1);
  EXPECT_EXIT(_exit(switch_sim::control::fabric().switches.at(0).name == "a" ? 0 : 1),
              testing::ExitedWithCode(0), "^$");
  unsetenv("SWITCH_SIM_STATE");
  unsetenv("SWITCH_SIM_FABRIC");
  remove(path.c_str());
}

TEST_F(EnvironmentDeathTest, AStateFileThatCannotBeMadeRefusesEveryRequest) {
  setenv("SWITCH_SIM_STATE", "/nonexistent/state.json", 1);
  EXPECT_EXIT(_exit(query_switch_wwn() == kFabricNotUsable ? 0 : 1), testing::ExitedWithCode(0),
              "^switch simulator: SWITCH_SIM_STATE: /nonexistent/state.json: No such file or "
              "directory; every request is refused\n$");
  unsetenv("SWITCH_SIM_STATE");
}

}  // namespace
}  // namespace simulator_test
