// tests/failures.tsv names, for every exported function, the ways in which it can fail and the test
// that proves each.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "tests/repository/source_files.h"

namespace {

struct Row {
  std::string function;
  std::string path;
  std::string test;
};

std::vector<Row> rows() {
  std::vector<Row> result;
  for (const std::string& line : repository::lines(repository::root() / "tests/failures.tsv")) {
    if (line.empty() || line.starts_with("#") || line.starts_with("function\t")) continue;
    std::istringstream fields(line);
    Row row;
    std::getline(fields, row.function, '\t');
    std::getline(fields, row.path, '\t');
    std::getline(fields, row.test, '\t');
    result.push_back(row);
  }
  return result;
}

using Matches = std::sregex_iterator;

// The tests of a source by the names they run under. A test with parameters runs once for each
// value, under the name of its suite's instantiation and a slash: "Each/Suite.Test".
std::set<std::string> tests_of(const std::string& text) {
  static const std::regex test("\\bTEST(_F|_P)?\\s*\\(\\s*(\\w+)\\s*,\\s*(\\w+)\\s*\\)");
  static const std::regex values(
      "\\bINSTANTIATE_TEST_SUITE_P\\s*\\(\\s*(\\w+)\\s*,\\s*(\\w+)\\s*,");
  std::multimap<std::string, std::string> instantiations;
  if (text.find("INSTANTIATE_TEST_SUITE_P") != std::string::npos) {
    for (Matches match(text.begin(), text.end(), values), end; match != end; ++match)
      instantiations.emplace((*match)[2], (*match)[1]);
  }
  std::set<std::string> result;
  for (Matches match(text.begin(), text.end(), test), end; match != end; ++match) {
    const std::string suite = (*match)[2];
    const std::string name = suite + "." + (*match)[3].str();
    if ((*match)[1] != "_P") result.insert(name);
    const auto [first, last] = instantiations.equal_range(suite);
    for (auto instantiation = first; (*match)[1] == "_P" && instantiation != last; ++instantiation)
      result.insert(instantiation->second + "/" + name);
  }
  return result;
}

std::set<std::string> tests_of_the_tree() {
  std::set<std::string> result;
  for (const auto& file : repository::sources_below("tests"))
    result.merge(tests_of(repository::read(file)));
  return result;
}

// Functions only: exported data cannot fail.
std::set<std::string> exported_functions() {
  std::set<std::string> result;
  const auto list = repository::root() / "tests/exports/public_names.txt";
  for (const std::string& line : repository::lines(list)) {
    if (line.empty() || line.starts_with("#") || line.starts_with("data ")) continue;
    result.insert(line.substr(0, line.find_first_of("(\t")));
  }
  return result;
}

TEST(FailureTable, ATestIsKnownByTheNameThatItRunsUnder) {
  EXPECT_EQ(tests_of("TEST(One, Plain) {}\nTEST_F( Two,\n  Fixture) {}"),
            (std::set<std::string>{"One.Plain", "Two.Fixture"}));
  EXPECT_EQ(tests_of("TEST_P(Three, Runs) {}\nTEST_P(Four, IsNeverRun) {}\n"
                     "INSTANTIATE_TEST_SUITE_P(Each, Three, values);\n"
                     "INSTANTIATE_TEST_SUITE_P(Other, Three, values);"),
            (std::set<std::string>{"Each/Three.Runs", "Other/Three.Runs"}));
}

TEST(FailureTable, EveryRowNamesATestThatExists) {
  const std::set<std::string> tests = tests_of_the_tree();
  for (const Row& row : rows()) {
    EXPECT_TRUE(tests.contains(row.test)) << row.function << ": " << row.path << ": " << row.test;
    EXPECT_FALSE(row.path.empty()) << row.function;
  }
}

TEST(FailureTable, EveryExportedFunctionHasARow) {
  std::set<std::string> listed;
  for (const Row& row : rows())
    listed.insert(row.function);
  for (const std::string& function : exported_functions())
    EXPECT_TRUE(listed.contains(function)) << function;
}

TEST(FailureTable, EveryRowIsAboutAnExportedFunction) {
  const std::set<std::string> functions = exported_functions();
  for (const Row& row : rows())
    EXPECT_TRUE(functions.contains(row.function)) << row.function;
}

}  // namespace
