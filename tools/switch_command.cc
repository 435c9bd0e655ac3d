#include "tools/switch_command.h"

#include "tools/exit_status.h"

#if VEXOR_WITH_SIMULATOR

#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "simulator/control/control.h"
#include "tools/input.h"
#include "tools/platform.h"

namespace vexor::tools {
namespace {

/// While it lives, SIGTERM and SIGINT do not end the process but can be read from a descriptor.
class EndSignals {
 public:
  EndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigprocmask(SIG_BLOCK, &signals, &before_);
    descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor_ < 0)
      throw std::system_error(errno, std::generic_category(), "signals cannot be awaited");
  }
  ~EndSignals() {
    // A second one that came meanwhile must not end the process before it has ended by itself.
    signalfd_siginfo ignored;
    while (read(descriptor_, &ignored, sizeof ignored) > 0) {
    }
    close(descriptor_);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
  }
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  int descriptor() const { return descriptor_; }

 private:
  sigset_t before_{};
  int descriptor_ = -1;
};

std::string absolute(const std::string& path) {
  std::error_code error;
  const std::string whole = std::filesystem::absolute(path, error).string();
  return error ? path : whole;
}

}  // namespace

int serve_switch(const Options& options, Streams& streams) {
  // A switch is nobody's client: what the environment says of one is for other programs.
  unsetenv("SWITCH_SIM_SOCKET");
  prepare_platform(options.platform);
  check_platform(streams);
  const EndSignals signals;
  const std::string path = absolute(options.socket);
  bool serves = false;
  const auto problem = switch_sim::control::serve(path, signals.descriptor(), [&] {
    serves = true;
    streams.result("the switch answers at " + path +
                   "\nother processes use it with SWITCH_SIM_SOCKET=" + path + "\n");
    streams.flush();
  });
  if (!problem) return kSuccess;
  if (!serves) throw BadInput(*problem);
  streams.error("the switch has ended: " + *problem);
  return kFailed;
}

}  // namespace vexor::tools

#else

namespace vexor::tools {

int serve_switch(const Options&, Streams&) {
  return kFailed;
}

}  // namespace vexor::tools

#endif
