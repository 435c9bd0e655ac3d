// The session mechanics shared by the two faces; each face has its own handle and its own words.
#pragma once

#include <cstdint>

namespace cim_utils {

// Binds the response queue into `handle` unless it is bound already and stores it at `q_out`.
// `bound_line` is the face's own line for standard error. Result: 0 or -1.
int32_t bind_response_queue(int32_t& handle, const char* bound_line, int32_t* q_out);

// Releases the queue whose handle is at `q`, which keeps its value. Result as of deinit_mts.
int32_t release_response_queue(const int32_t* q);

// Stops the process for a debugger when `marker_file` exists. Result: that of kill; without the
// file that of stat, or of the line that is printed when `say_so` is set.
int32_t stop_for_debugger(const char* marker_file, bool say_so);

inline constexpr char kProviderDebugFile[] = "/etc/cim_debug_provider";
inline constexpr char kZoneDebugFile[] = "/etc/cim_debug_zone";

}  // namespace cim_utils
