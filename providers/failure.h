// How a request of a client fails: with a CIM status code and a sentence that the client sees.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <cstdarg>
#include <cstdio>

namespace vexor::providers {

// Thrown inside the providers and turned into a CMPIStatus before anything returns to the object
// manager. The sentence lives in the exception, so that throwing needs no memory of ours.
class Failure {
 public:
  // format: as of printf; a longer text is cut.
  [[gnu::format(printf, 3, 4)]] Failure(CMPIrc code, const char* format, ...) : code_(code) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text_, sizeof text_, format, arguments);
    va_end(arguments);
  }
  CMPIrc code() const { return code_; }
  const char* text() const { return text_; }

 private:
  CMPIrc code_;
  char text_[320];
};

}  // namespace vexor::providers
