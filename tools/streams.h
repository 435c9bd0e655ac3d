// Keeps results apart from traces.
//
// The library writes its traces to standard output and standard error of C, whatever program it is
// in. From open() on, both lead to a sink, and results and errors of this program go to the
// streams that the process was started with.
#ifndef TOOLS_STREAMS_H_
#define TOOLS_STREAMS_H_

#include <cstdio>
#include <string>
#include <string_view>

namespace vexor::tools {

/// Where the traces go.
struct TraceSink {
  std::string file;                ///< empty: nowhere
  bool to_standard_error = false;  ///< stronger than `file`
};

class Streams {
 public:
  /// Moves standard output and standard error of C to the sink.
  /// \return an empty text, or why this cannot be done; nothing has been moved then
  std::string open(const TraceSink& sink);

  /// Writes to the standard output that the process was started with.
  void result(std::string_view text);
  /// Writes "vexor-cim: `text`" as a line to the standard error that the process was started with.
  void error(std::string_view text);
  /// Hands the results so far on; what is wrong is told by finish().
  void flush();
  /// \return an empty text, or what was lost and why: results, or traces for a file
  std::string finish();

 private:
  std::FILE* results_ = stdout;
  std::FILE* errors_ = stderr;
  std::string problem_;
  std::string trace_file_;
};

}  // namespace vexor::tools

#endif  // TOOLS_STREAMS_H_
