// What vexor-cim says when it cannot do what it is asked: one line, and which exit status.
#include "tests/tools/program.h"

namespace program {
namespace {

using Errors = ProgramTest;

constexpr const char* kSeeHelp = "; vexor-cim --help tells what there is";

// --- Exit status 1: the operation failed ---------------------------------------------------------

TEST_F(Errors, An_unknown_class_comes_with_the_one_that_was_meant) {
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"enumerate", "VEXOR_Vsna"});
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"enumerate", "VEXOR_Vsna", "--names"});
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)", {"class", "VEXOR_Vsna"});
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"get", "VEXOR_Vsna.Name=\"x\""});
}

TEST_F(Errors, An_unknown_namespace_comes_with_those_that_there_are) {
  const std::string line = "root/interop: no such namespace (there is root/cimv2)";
  expect_error(1, line, {"enumerate", "VEXOR_Vsan", "--namespace", "root/interop"});
  expect_error(1, line, {"--namespace", "root/interop", "classes"});
  expect_error(1, line, {"--namespace", "root/interop", "class", "VEXOR_Vsan"});
  expect_error(1, line, {"get", "root/interop:VEXOR_Vsan.Name=\"x\""});
}

TEST_F(Errors, A_class_without_a_provider_is_not_enumerated) {
  expect_error(1, "CIM_Job: no provider serves this class", {"enumerate", "CIM_Job"});
}

TEST_F(Errors, An_instance_that_is_not_there_is_an_error) {
  const Outcome outcome = run({"get", "VEXOR_Vsan.Name=\"2009000DEC0A1B2D\""});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "vexor-cim: there is no such VEXOR_Vsan\n");
}

TEST_F(Errors, Keys_that_do_not_fit_the_class_are_an_error) {
  expect_error(1, "VEXOR_Vsan has no key Nam (did you mean Name?)",
               {"get", "VEXOR_Vsan.Nam=\"x\""});
  expect_error(1, "VEXOR_Vsan: key Name is missing", {"get", "VEXOR_Vsan"});
  expect_error(1, "VEXOR_Vsan, key Name: 5 is not a string", {"get", "VEXOR_Vsan.Name=5"});
  expect_error(1, "CIM_System is abstract: an instance has a class that derives from it",
               {"get", "CIM_System.Name=\"x\""});
  expect_error(1, "CIM_AdminDomain: no provider serves this class",
               {"get", "CIM_AdminDomain.Name=\"x\""});
}

TEST_F(Errors, Results_that_cannot_be_written_are_an_error) {
  const Outcome outcome = run({"enumerate", "VEXOR_Vsan"}, Output::to_full_device);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "vexor-cim: the results cannot be written: No space left on device\n");
  const Outcome help = run({"--help"}, Output::to_full_device);
  EXPECT_EQ(help.status, 1);
  EXPECT_EQ(help.err, outcome.err);
}

// --- Exit status 2: the command line -------------------------------------------------------------

TEST_F(Errors, An_unknown_command_comes_with_the_one_that_was_meant) {
  expect_error(2, std::string("no command enumrate (did you mean enumerate?)") + kSeeHelp,
               {"enumrate", "VEXOR_Vsan"});
  expect_error(2, std::string("no command xyzzy") + kSeeHelp, {"xyzzy"});
}

TEST_F(Errors, A_command_is_needed) {
  expect_error(2, std::string("a command is needed") + kSeeHelp, {});
  expect_error(2, std::string("a command is needed") + kSeeHelp, {"-v"});
  expect_error(2, std::string("a command is needed") + kSeeHelp, {"--nothing"});
}

TEST_F(Errors, Arguments_must_be_there_and_known) {
  expect_error(2, std::string("NAME is required") + kSeeHelp, {"class"});
  expect_error(2, std::string("CLASS is required") + kSeeHelp, {"enumerate"});
  expect_error(2, std::string("PATH is required") + kSeeHelp, {"get"});
  expect_error(2, std::string("the argument B is one too many") + kSeeHelp,
               {"enumerate", "A", "B"});
  expect_error(2, std::string("no option --nothing") + kSeeHelp, {"--nothing", "classes"});
}

TEST_F(Errors, An_unknown_option_comes_with_the_one_that_was_meant) {
  expect_error(2, std::string("no option --propertie (did you mean --properties?)") + kSeeHelp,
               {"enumerate", "VEXOR_Vsan", "--propertie", "Name"});
  expect_error(2, std::string("no option --namespce (did you mean --namespace?)") + kSeeHelp,
               {"ports", "--namespce", "root/cimv2"});
  expect_error(2, std::string("no option -z") + kSeeHelp, {"classes", "-z"});
}

TEST_F(Errors, An_option_has_one_value) {
  expect_error(2, std::string("--format: its value is missing") + kSeeHelp,
               {"enumerate", "VEXOR_Vsan", "--format"});
  expect_error(2, std::string("--format is given twice") + kSeeHelp,
               {"enumerate", "VEXOR_Vsan", "--format", "json", "--format", "json"});
}

TEST_F(Errors, Empty_names_are_missing_ones) {
  for (const char* option : {"--trace", "--mof", "--providers", "--fabric", "--state"})
    expect_error(2, std::string(option) + ": the name of the file is missing" + kSeeHelp,
                 {option, "", "classes"});
  expect_error(2, std::string("--namespace: the name is missing") + kSeeHelp,
               {"--namespace", "", "classes"});
  expect_error(2, std::string("CLASS: the name of the class is missing") + kSeeHelp,
               {"enumerate", ""});
  expect_error(2, std::string("NAME: the name of the class is missing") + kSeeHelp, {"class", ""});
}

TEST_F(Errors, Traces_go_to_one_place) {
  expect_error(2, std::string("--trace and --verbose both say where the traces go") + kSeeHelp,
               {"-v", "--trace", "/nonexistent/t", "classes"});
}

TEST_F(Errors, Formats_are_table_mof_and_json) {
  expect_error(2, std::string("--format: xml is not table, mof or json") + kSeeHelp,
               {"enumerate", "VEXOR_Vsan", "--format", "xml"});
}

TEST_F(Errors, Names_go_with_neither_properties_nor_MOF) {
  expect_error(
      2, std::string("--names prints paths, which --properties cannot choose from") + kSeeHelp,
      {"enumerate", "VEXOR_Vsan", "--names", "--properties", "Name"});
  expect_error(2, std::string("--names prints paths, which have no MOF form") + kSeeHelp,
               {"enumerate", "VEXOR_Vsan", "--names", "--format", "mof"});
}

TEST_F(Errors, An_unknown_property_comes_with_the_one_that_was_meant) {
  expect_error(2, "VEXOR_Vsan: no property VsanNo (did you mean VsanId?)",
               {"enumerate", "VEXOR_Vsan", "--properties", "Name,VsanNo"});
  expect_error(2, "VEXOR_Vsan: no property VsanNo (did you mean VsanId?)",
               {"get", "VEXOR_Vsan.Name=\"x\"", "--properties", "VsanNo"});
}

TEST_F(Errors, A_property_list_has_a_name_between_any_two_commas) {
  for (const char* list : {"", "Name,", ",Name", "Name,,VsanId"})
    expect_error(2, std::string("--properties: a name is missing") + kSeeHelp,
                 {"enumerate", "VEXOR_Vsan", "--properties", list});
}

TEST_F(Errors, A_property_of_a_derived_class_is_known) {
  const Outcome outcome = run({"enumerate", "CIM_AdminDomain", "--properties", "VsanId"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST_F(Errors, A_path_that_is_none_is_refused_with_the_column) {
  expect_error(2, "VEXOR_Vsan.Name: column 16: expected '=' after key Name",
               {"get", "VEXOR_Vsan.Name"});
  expect_error(2, "VEXOR_Vsan.Name=\"x: column 17: the text that starts here has no closing \"",
               {"get", "VEXOR_Vsan.Name=\"x"});
  expect_error(2, ": column 1: the path is empty", {"get", ""});
}

TEST_F(Errors, Control_characters_neither_break_the_line_nor_reach_the_terminal) {
  expect_error(2, std::string("no command \\x1B[31mred\\x0A\\x7F") + kSeeHelp,
               {"\x1B[31mred\n\x7F"});
  expect_error(1, "K\u00f6ln: no such class", {"class", "K\u00f6ln"});
}

// --- Exit status 2: files ------------------------------------------------------------------------

TEST_F(Errors, Named_files_must_be_there) {
  expect_error(2, "--mof: there is no file /nonexistent/x.mof",
               {"--mof", "/nonexistent/x.mof", "classes"});
  expect_error(2, "--providers: there is no file /nonexistent/lib.so",
               {"--providers", "/nonexistent/lib.so", "enumerate", "VEXOR_Vsan"});
  const TemporaryFolder folder;
  expect_error(2, "--mof: there is no file " + (folder.path() / "vexor.mof").string(),
               {"--mof", folder.path().string(), "classes"});
  setenv("VEXOR_PROVIDERS", "/nonexistent/lib.so", 1);
  expect_error(2, "VEXOR_PROVIDERS: there is no file /nonexistent/lib.so",
               {"enumerate", "VEXOR_Vsan"});
}

TEST_F(Errors, Class_definitions_with_errors_are_refused_with_the_place) {
  const TemporaryFolder folder;
  const std::string mof = folder.write("x.mof", "class A {\n  uint33 B;\n};\n").string();
  const Outcome outcome = run({"--mof", mof, "classes"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_TRUE(outcome.err.starts_with("vexor-cim: " + mof + ":2:3: ")) << outcome.err;
  EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1);
}

TEST_F(Errors, A_provider_library_that_does_not_load_is_an_error) {
  const TemporaryFolder folder;
  const std::string library = folder.write("lib.so", "this is no library").string();
  const Outcome outcome = run({"--providers", library, "enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.err.starts_with("vexor-cim: the provider library does not load: " + library))
      << outcome.err;
}

TEST_F(Errors, A_trace_file_that_cannot_be_written_is_refused) {
  expect_error(2, "trace file /nonexistent/t cannot be written: No such file or directory",
               {"--trace", "/nonexistent/t", "enumerate", "VEXOR_Vsan"});
}

TEST_F(Errors, Traces_that_did_not_arrive_are_an_error_beside_the_results) {
  const Outcome outcome = run({"--trace", "/dev/full", "enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
  EXPECT_EQ(outcome.err,
            "vexor-cim: trace file /dev/full cannot be written: No space left on device\n");
}

TEST_F(Errors, A_closed_standard_output_is_refused) {
  const Outcome outcome = run({"enumerate", "VEXOR_Vsan"}, Output::closed);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.err, "vexor-cim: standard output cannot be used: Bad file descriptor\n");
}

TEST_F(Errors, A_platform_that_cannot_start_says_why) {
  setenv("SWITCH_SIM_TRACE", "/nonexistent/trace", 1);
  const Outcome outcome = run({"enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.err.find("/nonexistent/trace"), std::string::npos) << outcome.err;
}

}  // namespace
}  // namespace program
