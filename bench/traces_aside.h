// Sends the library's traces, which go to standard output, nowhere while one of these exists: they
// are no part of what is measured, and the report needs the real standard output.
#ifndef BENCH_TRACES_ASIDE_H
#define BENCH_TRACES_ASIDE_H

#include <cstdio>

class TracesAside {
 public:
  TracesAside() : real_(stdout) {
    std::fflush(stdout);
    stdout = std::fopen("/dev/null", "w");
  }
  TracesAside(const TracesAside&) = delete;
  TracesAside& operator=(const TracesAside&) = delete;
  ~TracesAside() {
    std::fclose(stdout);
    stdout = real_;
  }

 private:
  FILE* real_;
};

#endif  // BENCH_TRACES_ASIDE_H
