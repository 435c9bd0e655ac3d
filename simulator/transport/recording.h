// Replays what a request log has written.
#ifndef SIMULATOR_TRANSPORT_RECORDING_H
#define SIMULATOR_TRANSPORT_RECORDING_H

#include <string>
#include <string_view>
#include <variant>

#include "simulator/transport/in_process_carrier.h"
#include "simulator/transport/request_log.h"

namespace switch_sim {

struct RecordingError {
  size_t line;  // from 1
  std::string message;
};

// Reads the lines of a request log. Exchanges keep the order of their requests; `due` of an outcome
// is the time from request to reply.
std::variant<std::vector<Exchange>, RecordingError> read_recording(std::string_view text);

// A recording shared by the carriers of a process: each recorded exchange is given out once.
class Recording {
 public:
  explicit Recording(std::vector<Exchange> exchanges) : exchanges_(std::move(exchanges)) {}

  // The outcome of the first equal request that was not given out yet. A request that is not
  // recorded is refused; one that had no reply gets none (its `due` is never reached).
  Outcome next_for(const Request& request);

 private:
  std::vector<Exchange> exchanges_;
  std::vector<bool> used_ = std::vector<bool>(exchanges_.size());
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_RECORDING_H
