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
      "^switch simulator: SWITCH_SIM_TRACE=/nonexistent/folder/trace: No such file or directory; "
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

}  // namespace
}  // namespace simulator_test
