#include "tests/support/transcript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace test_support {
namespace {

TEST(Transcript, EqualTextsHaveNoDifference) {
  EXPECT_EQ(first_difference("a\nb\n", "a\nb\n"), "");
  EXPECT_EQ(first_difference("", ""), "");
}

TEST(Transcript, ShowsTheFirstDifferingLineWithWhatStandsBefore) {
  EXPECT_EQ(first_difference("a\nb\nc\n", "a\nx\nc\n"),
            "line 2 differs\n"
            "  before    |a|\n"
            "  expected  |b|\n"
            "  found     |x|\n");
}

TEST(Transcript, ShowsAMissingLineAndAMissingLineEnd) {
  EXPECT_EQ(first_difference("a\nb\n", "a\n"),
            "line 2 differs\n"
            "  before    |a|\n"
            "  expected  |b|\n"
            "  found     (the end)\n");
  EXPECT_EQ(first_difference("a\n", "a"),
            "line 1 differs\n"
            "  expected  |a|\n"
            "  found     |a| without a line end\n");
}

TEST(Transcript, ADifferenceFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(expect_same_lines("b\n", "a\n", "name.txt"), "name.txt: line 1 differs");
  expect_same_lines("a\n", "a\n", "name.txt");
}

TEST(Transcript, AFileThatDoesNotExistFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(expect_transcript("text", "no such file.txt"), "can not be read");
}

TEST(Transcript, ComparesWithTheFileOfThatName) {
  expect_transcript("first line\nsecond line\n", "support_selftest/two_lines.txt");
  EXPECT_NONFATAL_FAILURE(
      expect_transcript("first line\nsecond  line\n", "support_selftest/two_lines.txt"),
      "line 2 differs");
}

}  // namespace
}  // namespace test_support
