// Choosing the simulated fabric.
#include "tests/tools/program.h"

namespace program {
namespace {

class Platform : public ProgramTest {
 protected:
  std::string path(const char* name) const { return (folder_.path() / name).string(); }

  TemporaryFolder folder_;
};

constexpr const char* kOneSwitch = R"({
  "version": 1,
  "local_switch": "core-1",
  "switches": [{"name": "core-1", "wwn": "20:00:00:0d:ec:0a:1b:2c"}],
  "vsans": [{
    "number": 20,
    "name": "backup",
    "domains": [{"switch": "core-1", "domain_id": 9}]
  }]
}
)";

constexpr const char* kOneVsan =
    "VEXOR_Vsan   1 instance in root/cimv2\n"
    "Name              VsanId  ElementName  Status  LoadBalancingType\n"
    "2014000DEC0A1B2D  20      backup       Up      src-id/dst-id/ox-id\n";

TEST_F(Platform, Fabric_prints_the_present_fabric_as_a_fabric_file) {
  EXPECT_EQ(run({"fabric"}).out,
            file_text(fs::path(CIM_SOURCE_DIR) / "tests/simulator/data/default_fabric.json"));
}

TEST_F(Platform, A_fabric_file_answers) {
  const std::string file = folder_.write("fabric.json", kOneSwitch).string();
  EXPECT_EQ(run({"--fabric", file, "enumerate", "VEXOR_Vsan"}).out, kOneVsan);
  EXPECT_EQ(run({"enumerate", "VEXOR_Vsan", "--fabric", file}).out, kOneVsan);
}

TEST_F(Platform, A_printed_fabric_is_read_back_equal) {
  const std::string numbers = "switches=3,vsans=4,seed=7";
  const Outcome first = run({"--generate", numbers, "fabric"});
  EXPECT_EQ(first.status, 0) << first.err;
  const std::string file = folder_.write("fabric.json", first.out).string();
  EXPECT_EQ(run({"--fabric", file, "fabric"}).out, first.out);
}

TEST_F(Platform, Generated_fabrics_have_what_was_asked) {
  const Outcome outcome = run({"--generate", "switches=1,vsans=7", "enumerate", "VEXOR_Vsan"});
  EXPECT_TRUE(outcome.out.starts_with("VEXOR_Vsan   7 instances in root/cimv2\n")) << outcome.out;
}

TEST_F(Platform, A_wrong_fabric_file_is_refused_with_the_place_whatever_the_command) {
  const std::string file =
      folder_.write("fabric.json", "{\n  \"version\": 1,\n  \"vsns\": []\n}\n").string();
  const std::string line = file + ":3:3: unknown key \"vsns\" (did you mean \"vsans\"?)";
  expect_error(2, line, {"--fabric", file, "enumerate", "VEXOR_Vsan"});
  expect_error(2, line, {"--fabric", file, "classes"});
  expect_error(2, line, {"--state", file, "fabric"});
  EXPECT_EQ(file_text(file), "{\n  \"version\": 1,\n  \"vsns\": []\n}\n");
}

TEST_F(Platform, Files_that_cannot_be_used_are_refused) {
  expect_error(2, "/nonexistent/f: No such file or directory",
               {"--fabric", "/nonexistent/f", "fabric"});
  expect_error(2, "/nonexistent/f: No such file or directory",
               {"--state", "/nonexistent/f", "fabric"});
}

TEST_F(Platform, A_state_file_needs_a_name) {
  expect_error(2, "--state: the name of the file is missing; vexor-cim --help tells what there is",
               {"--state", "", "fabric"});
}

TEST_F(Platform, Numbers_of_the_generator_must_be_known_and_in_range) {
  expect_error(2, "--generate: unknown key \"switchs\" (did you mean \"switches\"?)",
               {"--generate", "switchs=3", "fabric"});
  const Outcome outcome = run({"--generate", "switches=240", "fabric"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("vexor-cim: --generate: ")) << outcome.err;
}

TEST_F(Platform, A_fabric_has_one_source) {
  expect_error(2,
               "--fabric and --generate both say what the fabric is; vexor-cim --help tells what "
               "there is",
               {"--fabric", "f", "--generate", "seed=1", "fabric"});
}

TEST_F(Platform, A_state_file_is_stronger_than_the_fabric) {
  const std::string state = folder_.write("state.json", kOneSwitch).string();
  EXPECT_EQ(run({"--state", state, "--generate", "vsans=9", "enumerate", "VEXOR_Vsan"}).out,
            kOneVsan);
}

TEST_F(Platform, A_state_file_begins_with_the_first_change) {
  const std::string state = path("state.json");
  EXPECT_EQ(run({"--state", state, "enumerate", "VEXOR_Vsan"}).status, 0);
  EXPECT_FALSE(fs::exists(state));
}

TEST_F(Platform, The_command_line_is_stronger_than_the_environment) {
  const std::string file = folder_.write("fabric.json", kOneSwitch).string();
  setenv("SWITCH_SIM_FABRIC", "/nonexistent/f", 1);
  const Outcome outcome = run({"--fabric", file, "enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.out, kOneVsan);
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Platform, Changes_of_a_chosen_fabric_leave_the_state_file_of_the_environment_alone) {
  const std::string file = folder_.write("fabric.json", kOneSwitch).string();
  const std::string kept = run({"fabric"}).out;
  const std::string state = folder_.write("state.json", kept).string();
  setenv("SWITCH_SIM_STATE", state.c_str(), 1);
  const Outcome outcome = run({"--fabric", file, "invoke", "VEXOR_Vsan.Name=\"2014000DEC0A1B2D\"",
                               "RequestStateChange", "RequestedState=3"});
  EXPECT_EQ(outcome.out, "RequestStateChange returned 0\n");
  EXPECT_EQ(file_text(state), kept);
}

}  // namespace
}  // namespace program
