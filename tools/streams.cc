#include "tools/streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace vexor::tools {
namespace {

constexpr std::size_t kTraceBuffer = std::size_t{1} << 16;

std::string reason(int error) {
  return std::strerror(error);
}

/// A duplicate of the descriptor that programs started by this one do not get; -1 on failure.
int duplicate(int descriptor) {
  // 3 and up: a stream that was closed at the start must not be mistaken for a new one.
  return fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
}

/// What files and command lines hold must not break the line or command the terminal.
std::string printable(std::string_view text) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string result;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte >= 0x20 && byte != 0x7F) {
      result += character;
    } else {
      result.append("\\x").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
    }
  }
  return result;
}

std::string name_of(const TraceSink& sink) {
  return sink.file.empty() ? "/dev/null" : sink.file;
}

int open_sink(const TraceSink& sink, int real_errors) {
  if (sink.to_standard_error) return duplicate(real_errors);
  const std::string name = name_of(sink);
  const int opened =
      ::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644);
  if (opened < 0 || opened > 2) return opened;
  const int moved = duplicate(opened);
  close(opened);
  return moved;
}

/// The sanitizers report to standard error by its number, which leads to the sink by now.
void send_sanitizer_reports_to([[maybe_unused]] int descriptor) {
#if defined(__SANITIZE_ADDRESS__)
  __sanitizer_set_report_fd(
      reinterpret_cast<void*>(static_cast<std::intptr_t>(descriptor)));  // NOLINT
#endif
}

}  // namespace

std::string Streams::open(const TraceSink& sink) {
  const int real_results = duplicate(STDOUT_FILENO);
  if (real_results < 0) return "standard output cannot be used: " + reason(errno);
  int real_errors = duplicate(STDERR_FILENO);
  if (real_errors < 0) real_errors = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  const int traces = open_sink(sink, real_errors);
  if (traces < 0) {
    const std::string why = reason(errno);
    close(real_results);
    close(real_errors);
    return "trace file " + name_of(sink) + " cannot be written: " + why;
  }
  results_ = fdopen(real_results, "w");
  errors_ = fdopen(real_errors, "w");
  if (results_ == nullptr || errors_ == nullptr) return "no memory for streams";
  std::setvbuf(errors_, nullptr, _IOLBF, BUFSIZ);
  dup2(traces, STDOUT_FILENO);
  dup2(traces, STDERR_FILENO);
  close(traces);
  // On a screen the two trace streams keep their order; in a file speed counts.
  std::setvbuf(stdout, nullptr, sink.to_standard_error ? _IOLBF : _IOFBF, kTraceBuffer);
  send_sanitizer_reports_to(real_errors);
  trace_file_ = sink.file;
  return {};
}

void Streams::result(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), results_) != text.size() && problem_.empty())
    problem_ = reason(errno);
}

void Streams::error(std::string_view text) {
  std::fprintf(errors_, "vexor-cim: %s\n", printable(text).c_str());
}

void Streams::flush() {
  if (std::fflush(results_) != 0 && problem_.empty()) problem_ = reason(errno);
}

std::string Streams::finish() {
  flush();
  if (!problem_.empty()) return "the results cannot be written: " + problem_;
  if (trace_file_.empty()) return {};
  const std::string lost = "trace file " + trace_file_ + " cannot be written";
  if (std::fflush(stdout) != 0) return lost + ": " + reason(errno);
  return std::ferror(stdout) != 0 ? lost : std::string();
}

}  // namespace vexor::tools
