// Traces of the library stay apart from results.
#include "tests/tools/program.h"

namespace program {
namespace {

using Traces = ProgramTest;

constexpr const char* kTrace = "providerutil:vsan_build_instance() Start\n";
constexpr const char* kQueue = "successfuly create mts response q";

TEST_F(Traces, Go_nowhere_when_nobody_asks_for_them) {
  const Outcome outcome = run({"enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Traces, Go_to_the_trace_file) {
  const TemporaryFolder folder;
  const fs::path file = folder.write("trace", "what was there before\n");
  const Outcome outcome = run({"--trace", file.string(), "enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
  EXPECT_EQ(outcome.err, "");
  const std::string traces = file_text(file);
  EXPECT_NE(traces.find(kTrace), std::string::npos) << traces;
  EXPECT_NE(traces.find(kQueue), std::string::npos) << traces;
  EXPECT_EQ(traces.find("what was there before"), std::string::npos);
}

TEST_F(Traces, Go_to_standard_error_when_verbose) {
  for (const char* flag : {"-v", "--verbose"}) {
    const Outcome outcome = run({flag, "enumerate", "VEXOR_Vsan"});
    EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
    EXPECT_NE(outcome.err.find(kTrace), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.err.find(kQueue), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST_F(Traces, Do_not_hide_errors_of_the_program) {
  const TemporaryFolder folder;
  const std::string file = (folder.path() / "trace").string();
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"--trace", file, "enumerate", "VEXOR_Vsna"});
}

TEST_F(Traces, Global_options_may_follow_the_command) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "trace";
  const Outcome outcome = run({"enumerate", "VEXOR_Vsan", "--trace", file.string()});
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
  EXPECT_NE(file_text(file).find(kTrace), std::string::npos);
}

}  // namespace
}  // namespace program
