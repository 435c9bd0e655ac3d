// What passes through the socket of a switch process. Numbers are big-endian:
//
//   frame     length (4 bytes, of all that follows), kind (4), body
//   request   body: now (8, milliseconds), service (4), opcode (4), operation (4), the bytes
//   outcome   body: now (8), status (4), errno (4), after (8, milliseconds), has_reply (4), bytes
//
//   fabric request    body: nothing
//   fabric            body: the text of a fabric file
//
// `now` is the sender's virtual clock: time that one process has waited has passed for all of them.
#ifndef SIMULATOR_TRANSPORT_FRAMES_H
#define SIMULATOR_TRANSPORT_FRAMES_H

#include <optional>
#include <string_view>

#include "simulator/transport/message.h"

namespace switch_sim {

// The upper three bytes say that this is ours, and in which version.
enum class FrameKind : uint32_t {
  request = 0x56530101,
  fabric_request = 0x56530102,
  outcome = 0x56530181,
  fabric = 0x56530182,
};

struct Frame {
  FrameKind kind{};
  Bytes body;
  friend bool operator==(const Frame&, const Frame&) = default;
};

// The longest frames, without their length: what a switch process accepts, and what it may send.
inline constexpr size_t kLongestRequest = size_t{1} << 20;
inline constexpr size_t kLongestAnswer = size_t{1} << 26;

// Puts frames together again from bytes that arrive in any pieces. It holds no more than what has
// arrived, whatever length a frame claims to have.
class FrameReader {
 public:
  explicit FrameReader(size_t longest) : longest_(longest) {}

  void add(const std::byte* bytes, size_t size);

  bool has_frame() const;

  // The next frame, when all of it is there.
  std::optional<Frame> next();

  // What comes next can never be a frame: too long, too short, or of no known kind.
  bool is_broken() const;

 private:
  size_t size() const { return bytes_.size() - taken_; }
  uint32_t word_at(size_t offset) const;

  size_t longest_;
  Bytes bytes_;
  size_t taken_ = 0;  // of bytes_
};

Bytes to_bytes(const Frame& frame);

// What the length in front of it says.
size_t size_of(const Frame& frame);

struct TimedRequest {
  VirtualTime now{};
  Request request;
  friend bool operator==(const TimedRequest&, const TimedRequest&) = default;
};

// `outcome.due` counts from `now`. Tokens stay in their process: they are 0.
struct TimedOutcome {
  VirtualTime now{};
  Outcome outcome;
  friend bool operator==(const TimedOutcome&, const TimedOutcome&) = default;
};

Frame request_frame(const TimedRequest& request);
Frame outcome_frame(const TimedOutcome& outcome);
Frame fabric_frame(std::string_view text);

// Nothing when the frame is of another kind, its body too short, or a time out of range.
std::optional<TimedRequest> read_request(Frame frame);
std::optional<TimedOutcome> read_outcome(Frame frame);

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_FRAMES_H
