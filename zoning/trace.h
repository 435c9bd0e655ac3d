// Traces that tell a place in the source.
#ifndef ZONING_TRACE_H
#define ZONING_TRACE_H

#include <cstdio>

namespace cim_utils {

// Prints the function and the line from which it is called.
inline void trace_place(const char* function = __builtin_FUNCTION(), int line = __builtin_LINE()) {
  std::printf("Function %s Line %d \n", function, line);
}

}  // namespace cim_utils

#endif  // ZONING_TRACE_H
