// Controls the simulated platform of this process: for programs that show it and for tests.
//
// All functions may be called from any thread.
#ifndef SIMULATOR_CONTROL_CONTROL_H
#define SIMULATOR_CONTROL_CONTROL_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulator/client/call_watcher.h"
#include "simulator/fabric/fabric.h"
#include "simulator/transport/faults.h"
#include "simulator/transport/request_log.h"

namespace switch_sim::control {

// The fabric that the services answer from.
Fabric fabric();
Fabric default_fabric();

// Answers from another fabric from now on, also when the environment could not be used. A fabric
// that breaks the rules of the model is not taken; the result then tells what is wrong with it.
std::optional<std::string> install(Fabric fabric);

// As install, from the text of a fabric file (`name` is what errors call it), from a file, or from
// the numbers of the generator ("switches=8,ports=48,vsans=8,devices=200,seed=7"). Errors of a file
// name line and column.
std::optional<std::string> install_text(const std::string& text, const std::string& name);
std::optional<std::string> install_file(const std::string& path);
std::optional<std::string> install_generated(const std::string& description);

// The fabric file of the present fabric.
std::string fabric_text();
std::optional<std::string> save(const std::string& path);

// Installs what the file holds, where it exists, and from now on saves every change of the fabric
// to it before the change is acknowledged. An empty path ends that.
std::optional<std::string> keep_state_in(const std::string& path);

// Whom to tell why a change could not be saved, in place of standard error; nobody: standard error
// again. Is called with the platform locked: it must not call a function of this file.
void tell_problems_to(std::function<void(const std::string& problem)> listener);

// Answers from the switch that another process serves at a socket (`serve`), as SWITCH_SIM_SOCKET
// does it, until a fabric is installed or a state file chosen; an empty path ends it, too. The
// serving process may start later. `fabric`, `fabric_text` and `save` then ask it, and throw
// std::runtime_error when it does not answer. The result tells what is wrong with the path.
std::optional<std::string> use_switch_at(const std::string& path);

// Why the serving process cannot be reached now; empty: it can, or none is used.
std::string connection_problem();

// Serves this process's own switch at a socket, until something can be read from the descriptor
// `stop`. `serving` is called when clients can connect. The result tells why it could not begin or
// go on.
std::optional<std::string> serve(const std::string& path, int stop,
                                 const std::function<void()>& serving);

// Back to the default fabric, an empty log, no faults, no replay, no state file, no listener, no
// other process's switch, counts at zero, a clock at zero, and counters that move. Queues stay
// bound.
void reset();

// The environment could not be used (the text tells why), and every request is refused.
std::string startup_problem();

// Exchanges: counted since the last clear_log; kept in full only after keep_log(true).
uint64_t exchange_count();
void keep_log(bool on);
std::vector<Exchange> log();
void clear_log();

// Faults from now on, in place of earlier ones.
void set_faults(const std::vector<Fault>& faults);

// Answers from a recording (the text of a trace file) instead of the services. The result tells
// what is wrong with the text, with its line.
std::optional<std::string> replay(const std::string& recording);

VirtualTime now();
void advance(VirtualTime by);

// The counters of ports stand still from now on, or go on from what the clock shows.
void freeze_counters(bool on);

// Is told of the work of each client function from now on; null: nobody is. For programs that tell
// the platform's memory from its callers'. The watcher must outlive its time.
void watch_calls(CallWatcher* watcher);

// What the client functions gave out. Messages, iterators and queues are those not given back yet;
// replies are all that were handed out, since callers release them with free().
struct Outstanding {
  uint64_t replies_handed_out = 0;
  uint64_t reply_bytes_handed_out = 0;
  int64_t messages = 0;
  int64_t iterators = 0;
  int64_t queues = 0;
  friend bool operator==(const Outstanding&, const Outstanding&) = default;
};
Outstanding outstanding();

}  // namespace switch_sim::control

#endif  // SIMULATOR_CONTROL_CONTROL_H
