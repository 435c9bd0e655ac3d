#include "tests/support/capture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>

namespace test_support {
namespace {

TEST(StdioCapture, HoldsBothStreamsApart) {
  StdioCapture capture;
  printf("one %d\n", 1);
  fprintf(stderr, "two\n");
  std::cout << "three" << std::flush;
  EXPECT_EQ(capture.out(), "one 1\nthree");
  EXPECT_EQ(capture.err(), "two\n");
}

TEST(StdioCapture, GivesTheTextSoFarAndGoesOn) {
  StdioCapture capture;
  printf("a");
  EXPECT_EQ(capture.out(), "a");
  printf("b");
  EXPECT_EQ(capture.out(), "ab");
  capture.clear();
  printf("c");
  EXPECT_EQ(capture.out(), "c");
}

TEST(StdioCapture, HoldsWhatIsWrittenToTheFileDescriptor) {
  StdioCapture capture;
  EXPECT_EQ(write(STDOUT_FILENO, "raw", 3), 3);
  EXPECT_EQ(capture.out(), "raw");
}

TEST(StdioCapture, HoldsZeroBytesAndLongTexts) {
  StdioCapture capture;
  fwrite("a\0b", 1, 3, stdout);
  EXPECT_EQ(capture.out(), std::string("a\0b", 3));
  capture.clear();
  std::string text(300000, 'x');
  fputs(text.c_str(), stdout);
  EXPECT_EQ(capture.out(), text);
}

TEST(StdioCapture, PutsTheStreamsBack) {
  StdioCapture outer;
  {
    StdioCapture inner;
    printf("inside");
    EXPECT_EQ(inner.out(), "inside");
  }
  printf("outside");
  EXPECT_EQ(outer.out(), "outside");
}

TEST(StdioCapture, HoldsThePerrorLine) {
  StdioCapture capture;
  errno = ENOENT;
  perror("what");
  EXPECT_EQ(capture.err(), "what: No such file or directory\n");
}

}  // namespace
}  // namespace test_support
