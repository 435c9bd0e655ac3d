// The way to a switch that another process serves (simulator/server). No threads and no signals:
// everything happens inside the call that asks.
#ifndef SIMULATOR_TRANSPORT_SWITCH_CONNECTION_H
#define SIMULATOR_TRANSPORT_SWITCH_CONNECTION_H

#include <sys/types.h>

#include <chrono>
#include <string>

#include "simulator/transport/frames.h"
#include "simulator/transport/virtual_clock.h"

namespace switch_sim {

// How long, in real time, an answer may take.
inline constexpr auto kPatience = std::chrono::milliseconds(30000);

// Connects when it is first asked, and again when the connection has ended since: a switch process
// may be started later, or stopped and started again, and only what was asked meanwhile fails. A
// request whose answer did not arrive is never sent twice, since it may have made its change.
class SwitchConnection {
 public:
  explicit SwitchConnection(std::string path, std::chrono::milliseconds patience = kPatience)
      : path_(std::move(path)), patience_(patience) {}
  ~SwitchConnection() { disconnect(); }
  SwitchConnection(const SwitchConnection&) = delete;
  SwitchConnection& operator=(const SwitchConnection&) = delete;

  // The outcome, with `due` counted from the clock, which goes on to the switch process's time.
  // Where that cannot be reached it is a transport failure with errno: that of the socket, ETIME
  // after too long, EMSGSIZE for a request that is too long, EPROTO for an answer that is none.
  Outcome exchange(const Request& request, VirtualClock& clock);

  // Result: 0 or errno. `text` receives the fabric file of the switch process's fabric.
  int ask_fabric(std::string& text);

  // Result: 0 when the switch process can be reached, or errno.
  int connect();

  const std::string& path() const { return path_; }

 private:
  using Deadline = std::chrono::steady_clock::time_point;

  int open();
  void disconnect();
  bool is_own_descriptor() const;
  bool is_usable() const;
  int ask(const Frame& question, Frame& answer);
  int send_all(const Bytes& bytes, Deadline deadline);
  int receive(Frame& answer, Deadline deadline);
  int wait_for(short events, Deadline deadline) const;

  std::string path_;
  std::chrono::milliseconds patience_;
  int descriptor_ = -1;
  dev_t device_ = 0;  // of the socket, to know it again
  ino_t inode_ = 0;
  pid_t owner_ = 0;       // the process that connected
  bool in_step_ = false;  // whatever was asked has been answered
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_SWITCH_CONNECTION_H
