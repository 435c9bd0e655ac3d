// Which folder may include which. An include that is not listed here is a mistake.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "tests/repository/source_files.h"

namespace {

using repository::fs::path;

// What an include names, by its first folder or, for interfaces without one, by its file.
std::string area_of(const std::string& include) {
  static const std::regex cmpi_header("cmpi(dt|ft|macs|os)\\.h");
  if (std::regex_match(include, cmpi_header)) return "<cmpi>";
  const auto slash = include.find('/');
  if (slash == std::string::npos) return "";
  const std::string first = include.substr(0, slash);
  static const std::set<std::string> own = {
      "common",    "adaptors", "zoning", "model", "cmpi",  "pegasus", "schema", "simulator",
      "providers", "host",     "wbem",   "tools", "tests", "bench",   "fuzz",   "pegasus_compat"};
  if (own.contains(first)) return first;
  if (first == "switch_platform") return "<switch_platform>";
  if (first == "Pegasus") return "<Pegasus>";
  if (first == "cim_utils") {
    // Public headers of the two faces know CIM; the others do not.
    const std::string file = include.substr(slash + 1);
    if (file.starts_with("cmpi_")) return "<cim_utils cmpi>";
    if (file == "provider_util.h" || file == "computer_system.h") return "<cim_utils pegasus>";
    return "<cim_utils>";
  }
  return "";  // the C and C++ libraries and packages
}

const std::map<std::string, std::set<std::string>>& allowed() {
  static const std::set<std::string> records = {"<switch_platform>", "<cim_utils>"};
  static const auto with = [](std::set<std::string> base, std::set<std::string> more) {
    base.merge(more);
    return base;
  };
  static const std::map<std::string, std::set<std::string>> table = {
      {"interfaces/platform", {"<switch_platform>"}},
      {"interfaces/cmpi", {"<cmpi>"}},
      {"interfaces/pegasus", {"<Pegasus>"}},
      {"pegasus_compat", {"<Pegasus>", "pegasus_compat"}},
      {"include",
       with(records, {"<cmpi>", "<Pegasus>", "<cim_utils cmpi>", "<cim_utils pegasus>"})},
      {"common", with(records, {"common"})},
      {"adaptors", with(records, {"common", "adaptors"})},
      {"zoning", with(records, {"common", "adaptors", "zoning"})},
      {"model", with(records, {"common", "model"})},
      {"cmpi", with(records, {"common", "model", "cmpi", "<cmpi>", "<cim_utils cmpi>"})},
      {"pegasus",
       with(records, {"common", "model", "pegasus", "<Pegasus>", "<cim_utils pegasus>"})},
      {"providers", with(records, {"providers", "<cmpi>", "<cim_utils cmpi>", "<Pegasus>",
                                   "<cim_utils pegasus>"})},
      {"schema", {"schema"}},
      {"host", {"host", "schema", "<cmpi>"}},
      {"wbem", {"wbem", "host", "schema", "<cmpi>"}},
      {"tools", {"tools", "wbem", "host", "schema", "simulator", "<cmpi>"}},
      {"simulator", {"simulator", "<switch_platform>"}},
  };
  return table;
}

std::vector<std::string> includes_of(const path& file) {
  static const std::regex include("\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"].*");
  std::vector<std::string> result;
  for (const std::string& line : repository::lines(file)) {
    std::smatch match;
    if (std::regex_match(line, match, include)) result.push_back(match[1]);
  }
  return result;
}

TEST(DependencyDirections, EveryIncludeGoesAlongAnArrow) {
  int files = 0;
  for (const auto& [folder, areas] : allowed()) {
    for (const path& file : repository::sources_below(folder)) {
      ++files;
      for (const std::string& include : includes_of(file)) {
        const std::string area = area_of(include);
        EXPECT_TRUE(area.empty() || areas.contains(area))
            << file << " must not include " << include;
      }
    }
  }
  EXPECT_GT(files, 40);
}

TEST(DependencyDirections, ProvidersOfOneInterfaceDoNotKnowTheOther) {
  static const std::set<std::string> of_cmpi = {"<cmpi>", "<cim_utils cmpi>"};
  static const std::set<std::string> of_pegasus = {"<Pegasus>", "<cim_utils pegasus>"};
  for (const path& file : repository::sources_below("providers")) {
    const bool is_pegasus = file.string().find("/providers/pegasus/") != std::string::npos;
    for (const std::string& include : includes_of(file)) {
      const std::string area = area_of(include);
      EXPECT_FALSE((is_pegasus ? of_cmpi : of_pegasus).contains(area)) << file << " " << include;
      if (is_pegasus && area == "providers") {
        EXPECT_TRUE(include.starts_with("providers/pegasus/")) << file << " " << include;
      }
    }
  }
}

TEST(DependencyDirections, ProgramsReachTheSimulatorThroughItsControlOnly) {
  for (const path& file : repository::sources_below("tools"))
    for (const std::string& include : includes_of(file))
      if (area_of(include) == "simulator") {
        EXPECT_TRUE(include.starts_with("simulator/control/")) << file << " " << include;
      }
}

TEST(DependencyDirections, EveryFolderWithSourcesHasARule) {
  static const std::set<std::string> unruled = {"tests", "bench", "fuzz", "docs", "interfaces"};
  for (const auto& entry : repository::fs::directory_iterator(repository::root())) {
    const std::string name = entry.path().filename();
    if (!entry.is_directory() || name.starts_with(".") || name == "build" || name == "install")
      continue;
    if (repository::sources_below(name).empty() || unruled.contains(name)) continue;
    EXPECT_TRUE(allowed().contains(name)) << name;
  }
}

}  // namespace
