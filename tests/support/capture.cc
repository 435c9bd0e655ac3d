#include "tests/support/capture.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "tests/support/heap_ledger.h"

namespace test_support {
namespace {

[[noreturn]] void give_up(const char* what) {
  perror(what);
  abort();
}

void write_all(int fd, const std::string& text) {
  size_t done = 0;
  while (done < text.size()) {
    ssize_t n = write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno != EINTR) return;
    if (n > 0) done += static_cast<size_t>(n);
  }
}

}  // namespace

StdioCapture::StdioCapture() : failures_before_(failures_so_far()) {
  HeapLedger::Pause pause;
  fflush(stdout);
  fflush(stderr);
  for (auto [stream, fd] : {std::pair{&out_, STDOUT_FILENO}, std::pair{&err_, STDERR_FILENO}}) {
    stream->memory = memfd_create("captured", MFD_CLOEXEC);
    stream->saved = dup(fd);
    if (stream->memory < 0 || stream->saved < 0 || dup2(stream->memory, fd) < 0) {
      give_up("StdioCapture");
    }
  }
}

StdioCapture::~StdioCapture() {
  HeapLedger::Pause pause;
  int error_number = errno;
  bool failed = failures_so_far() != failures_before_;
  clearerr(stdout);
  clearerr(stderr);
  fflush(stdout);
  fflush(stderr);
  for (auto [stream, fd] : {std::pair{&out_, STDOUT_FILENO}, std::pair{&err_, STDERR_FILENO}}) {
    stream->start = 0;
    std::string text = failed ? text_of(*stream) : std::string();
    dup2(stream->saved, fd);
    close(stream->saved);
    close(stream->memory);
    if (!text.empty()) write_all(fd, "---- captured while the test failed ----\n" + text + "\n");
  }
  errno = error_number;
}

std::string StdioCapture::text_of(const Stream& stream) {
  struct stat status {};
  if (fstat(stream.memory, &status) != 0 || status.st_size <= stream.start) return "";
  std::string text(static_cast<size_t>(status.st_size - stream.start), '\0');
  ssize_t n = pread(stream.memory, text.data(), text.size(), stream.start);
  text.resize(n < 0 ? 0 : static_cast<size_t>(n));
  return text;
}

std::string StdioCapture::out() const {
  HeapLedger::Pause pause;
  fflush(stdout);
  return text_of(out_);
}

std::string StdioCapture::err() const {
  HeapLedger::Pause pause;
  fflush(stderr);
  return text_of(err_);
}

void StdioCapture::clear() {
  out_.start += static_cast<long long>(out().size());
  err_.start += static_cast<long long>(err().size());
}

}  // namespace test_support
