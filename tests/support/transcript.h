// Transcripts written by hand: what an operation prints, its broker calls included.
#ifndef TESTS_SUPPORT_TRANSCRIPT_H
#define TESTS_SUPPORT_TRANSCRIPT_H

#include <string>
#include <string_view>

namespace test_support {

// Expects the text to be that of tests/transcripts/<name>, byte for byte; the failure shows the
// first differing line. Nothing writes these files but a person.
void expect_transcript(std::string_view actual, const char* name);

// The same with the expected text at hand.
void expect_same_lines(std::string_view actual, std::string_view expected, const char* name);

// Empty when equal; else the number of the first differing line, and both lines with what stands
// before them.
std::string first_difference(std::string_view expected, std::string_view actual);

}  // namespace test_support

#endif
