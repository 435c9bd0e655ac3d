// Commands that change the switch: which change, what they print, and how they end.
#include "tests/tools/program.h"

namespace program {
namespace {

using Changes = ProgramTest;

const std::string kVsan2 = "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"";
const std::string kFabric = "VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"";
const std::string kSettings = "VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"";

void expect_run(int status, const std::string& out, std::vector<std::string> arguments) {
  const Outcome outcome = run(std::move(arguments));
  EXPECT_EQ(outcome.out, out);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, status);
}

// --- invoke --------------------------------------------------------------------------------------

TEST_F(Changes, A_method_changes_the_switch_and_the_state_file_keeps_it) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  expect_run(0, "RequestStateChange returned 0\n",
             {"--state", state, "invoke", kVsan2, "RequestStateChange", "RequestedState=3"});
  expect_screen("enumerate_vsan_suspended.txt", {"--state", state, "enumerate", "VEXOR_Vsan"});
  expect_run(0, "RequestStateChange returned 0\n",
             {"--state", state, "invoke", "VEXOR_Vsan.Name=\"0000000000000000:2\"",
              "requeststatechange", "REQUESTEDSTATE=2"});
  expect_screen("enumerate_vsan.txt", {"--state", state, "enumerate", "VEXOR_Vsan"});
}

TEST_F(Changes, Without_a_state_file_a_change_ends_with_the_run) {
  expect_run(0, "RequestStateChange returned 0\n",
             {"invoke", kVsan2, "RequestStateChange", "RequestedState=3"});
  expect_screen("enumerate_vsan.txt", {"enumerate", "VEXOR_Vsan"});
}

TEST_F(Changes, A_method_that_returns_another_number_than_0_ends_with_1) {
  expect_run(1, "RequestStateChange returned 5\n",
             {"invoke", kVsan2, "RequestStateChange", "RequestedState=9"});
}

TEST_F(Changes, Methods_and_parameters_must_be_of_the_class) {
  expect_error(2, "VEXOR_Vsan: no method RequestStatChange (did you mean RequestStateChange?)",
               {"invoke", kVsan2, "RequestStatChange"});
  expect_error(2,
               "VEXOR_Vsan.RequestStateChange: no parameter RequestedStat (did you mean "
               "RequestedState?)",
               {"invoke", kVsan2, "RequestStateChange", "RequestedStat=2"});
  expect_error(2,
               "VEXOR_Vsan.RequestStateChange.RequestedState: 70000 is out of range for uint16 "
               "(0 to 65535)",
               {"invoke", kVsan2, "RequestStateChange", "RequestedState=70000"});
  expect_error(2, "VEXOR_Vsan.RequestStateChange.TimeoutPeriod: \"soon\" is not a datetime",
               {"invoke", kVsan2, "RequestStateChange", "TimeoutPeriod=soon"});
  expect_error(2, "VEXOR_Vsan.RequestStateChange returns Job: it cannot be given",
               {"invoke", kVsan2, "RequestStateChange", "Job=x"});
}

TEST_F(Changes, A_method_that_the_provider_does_not_have_is_refused) {
  expect_error(1, "VEXOR_AdminDomain has no method \"RequestStateChange\"",
               {"invoke", kFabric, "RequestStateChange", "RequestedState=2"});
}

TEST_F(Changes, A_method_of_an_instance_that_is_not_there_is_refused) {
  expect_error(1, "there is no such VEXOR_Vsan",
               {"invoke", "VEXOR_Vsan.Name=\"x\"", "RequestStateChange", "RequestedState=3"});
}

TEST_F(Changes, A_change_that_cannot_be_saved_says_why) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  fs::create_directory(state + ".journal");  // in the way of the file's journal
  const Outcome outcome = run({"--state", state, "modify", kSettings, "PreferredDomainID=12"});
  EXPECT_EQ(outcome.err,
            "vexor-cim: a change was not saved: " + state +
                ".journal: Is a directory\n"
                "vexor-cim: VEXOR_FCSwitchSettings: the domain manager refuses the domain ID "
                "(status 1073807370)\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_FALSE(fs::exists(state));
}

TEST_F(Changes, A_file_that_may_not_grow_is_an_error_and_leaves_no_other) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  // The largest file, in blocks of 512 or 1,024 bytes: enough for what the program prints.
  const Outcome outcome =
      run_file("/bin/sh", {"-c", "ulimit -f 2; exec \"$@\"", "sh", VEXOR_CIM, "--state", state,
                           "modify", kSettings, "PreferredDomainID=12"});
  EXPECT_EQ(outcome.err.substr(0, outcome.err.find('\n')),
            "vexor-cim: a change was not saved: " + state + ": File too large");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

// --- modify --------------------------------------------------------------------------------------

TEST_F(Changes, Modified_properties_are_there_in_the_next_run) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  expect_run(0, "modified VEXOR_FCSwitchSettings.InstanceID=2000000DEC0A1B2C\n",
             {"--state", state, "modify", kSettings, "PreferredDomainID=12", "DomainIDLocked=true",
              "PrincipalPriority=3"});
  expect_screen("enumerate_settings_changed.txt",
                {"--state", state, "enumerate", "VEXOR_FCSwitchSettings"});
}

TEST_F(Changes, A_refused_modification_says_why_and_leaves_no_state) {
  const TemporaryFolder folder;
  const fs::path state = folder.path() / "state.json";
  expect_error(1, "VEXOR_FCSwitchSettings: PrincipalPriority is 5, not 2, 3 or 4",
               {"--state", state.string(), "modify", kSettings, "PrincipalPriority=5"});
  EXPECT_FALSE(fs::exists(state));
  expect_error(1, "instances of VEXOR_AdminDomain cannot be modified",
               {"modify", kFabric, "Status=Down"});
}

TEST_F(Changes, Properties_to_modify_must_be_of_the_class_and_no_keys) {
  expect_error(2,
               "VEXOR_FCSwitchSettings: no property PrincipalPriorty (did you mean "
               "PrincipalPriority?)",
               {"modify", kSettings, "PrincipalPriorty=3"});
  expect_error(2, "VEXOR_FCSwitchSettings.InstanceID is a key: it cannot change",
               {"modify", kSettings, "instanceid=x"});
  expect_error(2, "PrincipalPriority: expected NAME=VALUE",
               {"modify", kSettings, "PrincipalPriority"});
  expect_error(2, "VALUES is required; vexor-cim --help tells what there is",
               {"modify", kSettings});
}

// --- create and delete ---------------------------------------------------------------------------

TEST_F(Changes, Classes_without_creation_and_deletion_refuse) {
  expect_error(1, "instances of VEXOR_Vsan cannot be created",
               {"create", "VEXOR_Vsan", "VsanId=5"});
  expect_error(1, "instances of VEXOR_Vsan cannot be deleted", {"delete", kVsan2});
}

TEST_F(Changes, Classes_to_create_must_be_known_and_concrete) {
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"create", "VEXOR_Vsna", "VsanId=5"});
  expect_error(1, "CIM_System is abstract: an instance has a class that derives from it",
               {"create", "CIM_System", "Name=x"});
  expect_error(2, "VEXOR_Vsan.VsanId: 65536 is out of range for uint16 (0 to 65535)",
               {"create", "VEXOR_Vsan", "VsanId=65536"});
}

// --- A provider that takes everything ------------------------------------------------------------

constexpr const char* kDisks = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
Qualifier In : boolean = true, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Out : boolean = false, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Provider : string, Scope(class), Flavor(Restricted);

[Provider("VexorProvider")]
class Test_Disk {
  [Key] uint32 Id;
  string Name;
  uint64 Size;
  uint32 Format(uint32 Blocks, [In(false), Out] string Report);
};
)";

class ChangesOfDisks : public ProgramTest {
 protected:
  std::vector<std::string> on_disks(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--mof", mof_, "--providers", FAKE_PROVIDER});
    return arguments;
  }

  TemporaryFolder folder_;
  std::string mof_ = folder_.write("vexor.mof", kDisks).string();
};

TEST_F(ChangesOfDisks, What_a_method_gives_back_follows_one_a_line) {
  expect_run(1, "Format returned 42\nReport = done\n",
             on_disks({"invoke", "Test_Disk.Id=1", "Format", "Blocks=8"}));
}

TEST_F(ChangesOfDisks, A_path_without_keys_calls_the_method_of_the_class) {
  expect_run(1, "Format returned 42\nReport = done\n", on_disks({"invoke", "Test_Disk", "Format"}));
}

TEST_F(ChangesOfDisks, Create_prints_the_path_of_what_was_made) {
  expect_run(0, "root/cimv2:Test_Disk.Id=7\n", on_disks({"create", "test_disk", "Name=new"}));
}

TEST_F(ChangesOfDisks, Modify_and_delete_print_a_line) {
  expect_run(0, "modified Test_Disk.Id=1\n", on_disks({"modify", "Test_Disk.Id=1", "Name=other"}));
  expect_run(0, "deleted Test_Disk.Id=1\n", on_disks({"delete", "Test_Disk.Id=1"}));
}

}  // namespace
}  // namespace program
