// The switch platform under the providers, where this program may choose and show it: the simulated
// one. With any other platform library these functions do nothing.
#ifndef TOOLS_PLATFORM_H_
#define TOOLS_PLATFORM_H_

#include <string>

#include "tools/command_line.h"
#include "tools/streams.h"

namespace vexor::tools {

/// Installs the fabric of --fabric or --generate, and then the one that --state kept.
/// \throws BadInput when one of them cannot be used
void prepare_platform(const PlatformOptions& options);

/// From now on changes that the platform could not save are told as errors, while `streams` lives.
/// \throws BadInput when the platform's own configuration is wrong, or another process's switch
/// that it names does not answer
void check_platform(Streams& streams);

/// The present fabric as a fabric file.
std::string platform_fabric();

}  // namespace vexor::tools

#endif  // TOOLS_PLATFORM_H_
