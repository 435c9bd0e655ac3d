#ifndef TOOLS_EXIT_STATUS_H_
#define TOOLS_EXIT_STATUS_H_

namespace vexor::tools {

inline constexpr int kSuccess = 0;
inline constexpr int kFailed = 1;    ///< the operation failed, or its results could not be written
inline constexpr int kBadInput = 2;  ///< the command line, a file or the installation is wrong

}  // namespace vexor::tools

#endif  // TOOLS_EXIT_STATUS_H_
