// tests/failures.tsv names, for every exported function, the ways in which it can fail and the test
// that proves each.
#include <gtest/gtest.h>

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

std::set<std::string> tests_of_the_tree() {
  static const std::regex test("\\bTEST(_F|_P)?\\s*\\(\\s*(\\w+)\\s*,\\s*(\\w+)\\s*\\)");
  std::set<std::string> result;
  for (const auto& file : repository::sources_below("tests")) {
    const std::string text = repository::read(file);
    for (std::sregex_iterator match(text.begin(), text.end(), test), end; match != end; ++match)
      result.insert((*match)[2].str() + "." + (*match)[3].str());
  }
  return result;
}

// Functions only: exported data cannot fail.
std::set<std::string> exported_functions() {
  std::set<std::string> result;
  const auto list = repository::root() / "tests/exports/public_names.txt";
  for (const std::string& line : repository::lines(list)) {
    if (line.empty() || line.starts_with("#") || line.starts_with("data ")) continue;
    result.insert(line.substr(0, line.find('(')));
  }
  return result;
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
