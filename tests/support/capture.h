// What a test prints to standard output and standard error, as text.
#ifndef TESTS_SUPPORT_CAPTURE_H
#define TESTS_SUPPORT_CAPTURE_H

#include <string>

namespace test_support {

// While one exists, both streams of the process go into files in memory, file descriptors 1 and 2
// included. When it ends they are as before, and what the last failures printed is shown: when the
// running test failed meanwhile, the captured text follows on the real streams.
class StdioCapture {
 public:
  StdioCapture();
  ~StdioCapture();
  StdioCapture(const StdioCapture&) = delete;
  StdioCapture& operator=(const StdioCapture&) = delete;

  // The text so far, or since the last clear().
  std::string out() const;
  std::string err() const;
  void clear();

 private:
  struct Stream {
    int memory = -1;  // the file in memory
    int saved = -1;   // the real one
    long long start = 0;
  };
  static std::string text_of(const Stream& stream);
  Stream out_;
  Stream err_;
  int failures_before_;
};

}  // namespace test_support

#endif
