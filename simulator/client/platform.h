// What stands behind the client functions: one platform per process, made at first use.
//
// Everything here is called with the platform's mutex held: take it with `lock()`.
#ifndef SIMULATOR_CLIENT_PLATFORM_H
#define SIMULATOR_CLIENT_PLATFORM_H

#include <cerrno>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include <switch_platform/types.h>

#include "simulator/client/call_watcher.h"
#include "simulator/client/state_store.h"
#include "simulator/fabric/fabric.h"
#include "simulator/fabric/fabric_file.h"
#include "simulator/transport/faults.h"
#include "simulator/transport/message.h"
#include "simulator/transport/recording.h"
#include "simulator/transport/request_log.h"
#include "simulator/transport/switch_connection.h"
#include "simulator/transport/virtual_clock.h"

// A message of the transport: a request that was sent, or a reply that was received.
struct mts_msg_ {
  switch_sim::Token token = 0;
  int32_t status = 0;
  switch_sim::Bytes payload;
};

namespace switch_sim {

// The longest wait of a synchronous call.
inline constexpr VirtualTime kSynchronousTimeout = std::chrono::seconds(30);

// What was handed to the callers of the client functions.
struct HandedOut {
  uint64_t replies = 0;  // blocks of the C heap, released with free()
  uint64_t reply_bytes = 0;
  int64_t messages = 0;  // outstanding: released with mts_drop
  int64_t queues = 0;    // outstanding: released with mts_unbind
  friend bool operator==(const HandedOut&, const HandedOut&) = default;
};

class Platform {
 public:
  using Listener = std::function<void(const std::string& problem)>;

  static Platform& instance();

  std::unique_lock<std::mutex> lock() { return std::unique_lock(mutex_); }

  // Queues. A handle is never used twice.
  int32_t bind();
  bool unbind(int32_t q);
  int last_error(int32_t q) const;
  void set_last_error(int32_t q, int error_number);

  // Sends and waits for the outcome. An outcome that does not arrive in time is a transport failure
  // with ETIME; a late one is thrown away. Without a bound queue: EBADF.
  Outcome exchange(int32_t q, const Request& request);

  // The same for functions without a queue.
  Outcome exchange(const Request& request);

  // Sends without waiting; nothing without a bound queue. The message is the caller's.
  mts_msg_t* send(int32_t q, const Request& request);

  // Waits for a reply to one request of the queue, or to any (token 0). Null with the queue's last
  // error set: EBADF, ETIME, or that of the transport.
  mts_msg_t* receive(int32_t q, Token token, VirtualTime timeout);

  mts_msg_t* make_message(Token token, int32_t status, Bytes payload);
  bool holds(const mts_msg_t* message) const;
  bool drop(mts_msg_t* message);

  // A block of the C heap with a copy of the bytes, counted; null for no bytes. Throws bad_alloc.
  void* hand_out(const Bytes& bytes);

  // A text that stays valid for the life of the process.
  const char* keep_text(const std::string& text) { return texts_.insert(text).first->c_str(); }

  // For the control interface.
  const Fabric& fabric() const { return fabric_; }
  // Also ends what was wrong at the start, and the use of another process's switch.
  void install(Fabric fabric);

  // Answers from what the file holds, where it exists, and saves every change of the fabric to it
  // before the change is acknowledged. An empty path ends that.
  std::optional<FabricError> keep_state_in(const std::string& path);

  // Who is told of changes that cannot be saved; nobody: standard error.
  void tell_problems_to(Listener listener) { listener_ = std::move(listener); }

  // Answers from the switch that another process serves at a socket. An empty path ends that.
  std::optional<std::string> use_switch_at(const std::string& path);

  // Null while the fabric is this process's own.
  SwitchConnection* connection() { return connection_.get(); }

  // Answers a request of another process, and counts and logs it.
  TimedOutcome serve(const TimedRequest& request);
  VirtualClock& clock() { return clock_; }

  // While frozen, counters stand still; afterwards they go on from what the clock shows.
  void freeze_counters(bool on);
  RequestLog& log() { return log_; }
  FaultPlan& faults() { return faults_; }
  void replay(std::unique_ptr<Recording> recording) { recording_ = std::move(recording); }
  HandedOut handed_out() const;
  void reset_counts();
  const std::string& startup_problem() const { return startup_problem_; }

 private:
  struct Queue {
    std::unique_ptr<Carrier> synchronous;
    std::unique_ptr<Carrier> asynchronous;
    int last_error = 0;
  };

  Platform();
  void read_environment();
  std::optional<std::string> problem_with_environment();
  std::unique_ptr<Carrier> open_carrier();
  Outcome handle(const Request& request);
  Outcome change(const Request& request);
  std::optional<FabricError> catch_up();
  void tell(const std::string& problem) const;
  VirtualTime time_of(const Request& request) const;
  Outcome exchange(std::unique_ptr<Carrier>& carrier, const Request& request);

  std::mutex mutex_;
  Fabric fabric_ = default_fabric();
  VirtualClock clock_;
  std::optional<VirtualTime> counters_frozen_at_;
  Token next_token_ = 1;
  RequestLog log_;
  FaultPlan faults_;
  std::unique_ptr<Recording> recording_;
  std::unique_ptr<SwitchConnection> connection_;  // null: the fabric is this process's own
  StateStore state_;
  Listener listener_;
  std::string startup_problem_;  // not empty: the environment cannot be used, nothing is answered

  int32_t next_queue_ = 1;
  std::unordered_map<int32_t, Queue> queues_;
  std::unique_ptr<Carrier> without_queue_;
  std::unordered_set<const mts_msg_t*> messages_;
  std::set<std::string> texts_;
  uint64_t replies_ = 0;
  uint64_t reply_bytes_ = 0;
};

// Runs what a C function does, with the platform's mutex held. No exception leaves a C function:
// when memory ends, the result is `failure` and errno is ENOMEM.
template <typename Result, typename Work>
Result on_platform(Result failure, Work work) {
  const WatchedCall call;
  try {
    Platform& platform = Platform::instance();
    const auto lock = platform.lock();
    return work(platform);
  } catch (...) {
    errno = ENOMEM;
    return failure;
  }
}

}  // namespace switch_sim

#endif  // SIMULATOR_CLIENT_PLATFORM_H
