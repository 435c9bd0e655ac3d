// The command `switch`: the simulated platform as a process of its own.
#ifndef TOOLS_SWITCH_COMMAND_H_
#define TOOLS_SWITCH_COMMAND_H_

#include "tools/command_line.h"
#include "tools/streams.h"

namespace vexor::tools {

/// Serves the switch of --fabric, --generate, --state or the environment at --socket until SIGTERM
/// or SIGINT, and says so when other processes can connect.
/// \return the exit status
/// \throws BadInput when the fabric or the socket cannot be used
int serve_switch(const Options& options, Streams& streams);

}  // namespace vexor::tools

#endif  // TOOLS_SWITCH_COMMAND_H_
