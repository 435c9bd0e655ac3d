// The examples that the helps show: each runs as it stands there.
#include <regex>
#include <sstream>

#include "tests/tools/program.h"

namespace program {
namespace {

/// The commands below "Examples:", continued lines joined, without what is said about them.
std::vector<std::string> examples_in(const std::string& help) {
  std::vector<std::string> examples;
  std::istringstream lines(help.substr(help.find("\nExample")));
  bool goes_on = false;
  for (std::string line; std::getline(lines, line);) {
    const bool begins = line.starts_with("  vexor-cim ");
    if (!begins && !goes_on) continue;
    std::string words = std::regex_replace(line.substr(2), std::regex("(\\S)  +.*$"), "$1");
    goes_on = words.ends_with('\\');
    if (goes_on) words.pop_back();
    if (begins) {
      examples.push_back(words);
    } else {
      examples.back() += words;
    }
  }
  return examples;
}

class Examples : public ProgramTest, public testing::WithParamInterface<const char*> {};

TEST_P(Examples, Run_as_they_stand) {
  std::vector<std::string> ask = {"--help"};
  if (*GetParam() != '\0') ask.insert(ask.begin(), GetParam());
  const std::vector<std::string> examples = examples_in(run(ask).out);
  ASSERT_FALSE(examples.empty());
  const TemporaryFolder folder;
  for (const std::string& example : examples) {
    if (example.starts_with("vexor-cim switch")) continue;  // runs until it is interrupted
    const std::string script = "cd '" + folder.path().string() + "' && PATH='" +
                               fs::path(VEXOR_CIM).parent_path().string() + "':$PATH && " + example;
    const Outcome outcome = run_file("/bin/sh", {"-c", script});
    EXPECT_EQ(outcome.status, 0) << example << "\n" << outcome.err;
    const bool verbose = example.find(" -v ") != std::string::npos;
    EXPECT_EQ(outcome.err.empty(), !verbose) << example << "\n" << outcome.err;
  }
}

// Without the command `switch`, whose examples run until they are interrupted.
INSTANTIATE_TEST_SUITE_P(OfEveryHelp, Examples,
                         testing::Values("", "class", "enumerate", "get", "ports", "modules",
                                         "associators", "associator-names", "references",
                                         "reference-names", "invoke", "modify", "create", "delete",
                                         "fabric"));

}  // namespace
}  // namespace program
