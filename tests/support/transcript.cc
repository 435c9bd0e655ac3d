#include "tests/support/transcript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "tests/support/heap_ledger.h"

namespace test_support {
namespace {

// Lines with their ends, so that a missing last line end shows.
std::vector<std::string> lines_of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

// One line for a failure: what can not be seen is made visible.
std::string show(const std::vector<std::string>& lines, size_t i) {
  if (i >= lines.size()) return "(the end)\n";
  const std::string& line = lines[i];
  std::string text = "|";
  text.append(line, 0, line.find('\n'));
  return text.append(line.back() == '\n' ? "|\n" : "| without a line end\n");
}

}  // namespace

std::string first_difference(std::string_view expected, std::string_view actual) {
  if (expected == actual) return "";
  std::vector<std::string> wanted = lines_of(expected);
  std::vector<std::string> found = lines_of(actual);
  auto [at_wanted, at_found] =
      std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end());
  auto line = static_cast<size_t>(at_wanted - wanted.begin());
  std::string text = "line " + std::to_string(line + 1) + " differs\n";
  for (size_t i = line < 3 ? 0 : line - 3; i < line; ++i)
    text += "  before    " + show(wanted, i);
  return text + "  expected  " + show(wanted, line) + "  found     " + show(found, line);
}

void expect_same_lines(std::string_view actual, std::string_view expected, const char* name) {
  HeapLedger::Pause pause;
  std::string difference = first_difference(expected, actual);
  if (!difference.empty()) {
    ADD_FAILURE() << name << ": " << difference << "everything found:\n" << actual;
  }
}

void expect_transcript(std::string_view actual, const char* name) {
  HeapLedger::Pause pause;
  std::string file_name = std::string(CIM_SOURCE_DIR "/tests/transcripts/") + name;
  std::ifstream file(file_name, std::ios::binary);
  if (!file) {
    ADD_FAILURE() << file_name << " can not be read; found:\n" << actual;
    return;
  }
  std::ostringstream expected;
  expected << file.rdbuf();
  expect_same_lines(actual, expected.str(), name);
}

}  // namespace test_support
