// Who is told of the client functions' work in the platform.
#ifndef SIMULATOR_CLIENT_CALL_WATCHER_H
#define SIMULATOR_CLIENT_CALL_WATCHER_H

#include <atomic>

namespace switch_sim {

class CallWatcher {
 public:
  virtual ~CallWatcher() = default;
  // Both on the caller's thread, without the platform's mutex.
  virtual void enter() = 0;
  virtual void leave() = 0;
};

// Null: nobody.
inline constinit std::atomic<CallWatcher*> call_watcher = nullptr;

// The work of one client function.
class WatchedCall {
 public:
  WatchedCall() : watcher_(call_watcher.load()) {
    if (watcher_ != nullptr) watcher_->enter();
  }
  ~WatchedCall() {
    if (watcher_ != nullptr) watcher_->leave();
  }
  WatchedCall(const WatchedCall&) = delete;
  WatchedCall& operator=(const WatchedCall&) = delete;

 private:
  CallWatcher* watcher_;
};

}  // namespace switch_sim

#endif  // SIMULATOR_CLIENT_CALL_WATCHER_H
