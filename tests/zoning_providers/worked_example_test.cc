// The worked example of docs/zoning.md, run as it stands there.
#include <cstring>
#include <sstream>

#include "tests/tools/program.h"

namespace program {
namespace {

// A command of the document, and what stands below it.
struct Step {
  std::string command;
  std::string output;
};

std::vector<Step> steps_of(const std::string& document) {
  std::vector<Step> steps;
  std::istringstream lines(document);
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) {
      inside = line == "```console";
    } else if (inside && line.starts_with("$ ")) {
      steps.push_back({line.substr(2), ""});
    } else if (inside && !steps.empty()) {
      steps.back().output += line + "\n";
    }
  }
  return steps;
}

constexpr const char* kEnd = "(end of the step)\n";

// One shell runs all of them, in an empty folder.
std::string script_of(const std::vector<Step>& steps, const std::string& folder) {
  const std::string programs = fs::path(VEXOR_CIM).parent_path();
  std::string script = "exec 2>&1\ncd '" + folder + "'\nPATH='" + programs + "':$PATH\n";
  for (const Step& step : steps)
    script += step.command + "\necho '" + std::string(kEnd, strlen(kEnd) - 1) + "'\n";
  return script;
}

using WorkedExample = ProgramTest;

TEST_F(WorkedExample, OfZoningPrintsWhatTheDocumentSays) {
  const std::vector<Step> steps =
      steps_of(file_text(fs::path(CIM_SOURCE_DIR) / "docs" / "zoning.md"));
  ASSERT_GT(steps.size(), 30u);
  const TemporaryFolder folder;
  std::string rest = run_file("/bin/sh", {"-c", script_of(steps, folder.path())}).out;
  char host[256] = {};
  gethostname(host, sizeof host - 1);
  const std::string own = std::string("//") + host + "/";
  for (std::size_t at = rest.find(own); at != std::string::npos; at = rest.find(own, at + 1))
    rest.replace(at, own.size(), "//switch1/");
  for (const Step& step : steps) {
    const std::size_t end = rest.find(kEnd);
    ASSERT_NE(end, std::string::npos) << step.command;
    EXPECT_EQ(rest.substr(0, end), step.output) << step.command;
    rest.erase(0, end + strlen(kEnd));
  }
  EXPECT_EQ(rest, "");
}

}  // namespace
}  // namespace program
