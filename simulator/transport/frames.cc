#include "simulator/transport/frames.h"

#include <algorithm>

namespace switch_sim {
namespace {

constexpr size_t kLengthSize = 4;
constexpr size_t kKindSize = 4;
constexpr size_t kRequestHead = 20;
constexpr size_t kOutcomeHead = 28;

// Later than anybody waits; sums of a few of these are still far from the end of the type.
constexpr VirtualTime kLatest = std::chrono::years(1000000);

bool is_known(uint32_t kind) {
  switch (static_cast<FrameKind>(kind)) {
    case FrameKind::request:
    case FrameKind::fabric_request:
    case FrameKind::outcome:
    case FrameKind::fabric:
      return true;
  }
  return false;
}

template <typename Number>
void put(Bytes& bytes, Number number) {
  for (size_t i = sizeof number; i-- > 0;)
    bytes.push_back(static_cast<std::byte>(number >> (8 * i)));
}

template <typename Number>
Number get(const Bytes& bytes, size_t offset) {
  Number number = 0;
  for (size_t i = 0; i < sizeof number; ++i)
    number = number << 8 | std::to_integer<Number>(bytes[offset + i]);
  return number;
}

void put_time(Bytes& bytes, VirtualTime time) {
  put(bytes, static_cast<uint64_t>(time.count()));
}

std::optional<VirtualTime> get_time(const Bytes& bytes, size_t offset) {
  const auto count = get<uint64_t>(bytes, offset);
  if (count > static_cast<uint64_t>(kLatest.count())) return std::nullopt;
  return VirtualTime(count);
}

Bytes without_head(Bytes bytes, size_t head) {
  bytes.erase(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(head));
  return bytes;
}

}  // namespace

uint32_t FrameReader::word_at(size_t offset) const {
  return get<uint32_t>(bytes_, taken_ + offset);
}

void FrameReader::add(const std::byte* bytes, size_t size) {
  bytes_.erase(bytes_.begin(), bytes_.begin() + static_cast<ptrdiff_t>(taken_));
  taken_ = 0;
  bytes_.insert(bytes_.end(), bytes, bytes + size);
}

bool FrameReader::is_broken() const {
  if (size() < kLengthSize) return false;
  const size_t length = word_at(0);
  if (length < kKindSize || length > longest_) return true;
  return size() >= kLengthSize + kKindSize && !is_known(word_at(kLengthSize));
}

bool FrameReader::has_frame() const {
  return !is_broken() && size() >= kLengthSize + kKindSize && size() >= kLengthSize + word_at(0);
}

std::optional<Frame> FrameReader::next() {
  if (!has_frame()) return std::nullopt;
  const auto begin = bytes_.begin() + static_cast<ptrdiff_t>(taken_);
  const size_t whole = kLengthSize + word_at(0);
  Frame frame;
  frame.kind = static_cast<FrameKind>(word_at(kLengthSize));
  frame.body.assign(begin + kLengthSize + kKindSize, begin + static_cast<ptrdiff_t>(whole));
  taken_ += whole;
  return frame;
}

size_t size_of(const Frame& frame) {
  return kKindSize + frame.body.size();
}

Bytes to_bytes(const Frame& frame) {
  Bytes bytes;
  bytes.reserve(kLengthSize + size_of(frame));
  put(bytes, static_cast<uint32_t>(size_of(frame)));
  put(bytes, static_cast<uint32_t>(frame.kind));
  bytes.insert(bytes.end(), frame.body.begin(), frame.body.end());
  return bytes;
}

Frame request_frame(const TimedRequest& timed) {
  const Request& request = timed.request;
  Frame frame{FrameKind::request, {}};
  put_time(frame.body, timed.now);
  put(frame.body, static_cast<uint32_t>(request.service));
  put(frame.body, request.opcode);
  put(frame.body, request.operation);
  frame.body.insert(frame.body.end(), request.body.begin(), request.body.end());
  return frame;
}

Frame outcome_frame(const TimedOutcome& timed) {
  const Outcome& outcome = timed.outcome;
  Frame frame{FrameKind::outcome, {}};
  put_time(frame.body, timed.now);
  put(frame.body, static_cast<uint32_t>(outcome.status));
  put(frame.body, static_cast<uint32_t>(outcome.error_number));
  put_time(frame.body, outcome.due);
  put(frame.body, static_cast<uint32_t>(outcome.reply ? 1 : 0));
  if (outcome.reply) {
    frame.body.insert(frame.body.end(), outcome.reply->begin(), outcome.reply->end());
  }
  return frame;
}

Frame fabric_frame(std::string_view text) {
  Frame frame{FrameKind::fabric, Bytes(text.size())};
  std::transform(text.begin(), text.end(), frame.body.begin(),
                 [](char character) { return static_cast<std::byte>(character); });
  return frame;
}

std::optional<TimedRequest> read_request(Frame frame) {
  if (frame.kind != FrameKind::request || frame.body.size() < kRequestHead) return std::nullopt;
  const auto now = get_time(frame.body, 0);
  if (!now) return std::nullopt;
  TimedRequest timed;
  timed.now = *now;
  timed.request.service = static_cast<Service>(get<uint32_t>(frame.body, 8));
  timed.request.opcode = get<uint32_t>(frame.body, 12);
  timed.request.operation = get<uint32_t>(frame.body, 16);
  timed.request.body = without_head(std::move(frame.body), kRequestHead);
  return timed;
}

std::optional<TimedOutcome> read_outcome(Frame frame) {
  if (frame.kind != FrameKind::outcome || frame.body.size() < kOutcomeHead) return std::nullopt;
  const auto now = get_time(frame.body, 0);
  const auto after = get_time(frame.body, 16);
  const auto has_reply = get<uint32_t>(frame.body, 24);
  if (!now || !after || has_reply > 1) return std::nullopt;
  if (has_reply == 0 && frame.body.size() > kOutcomeHead) return std::nullopt;
  TimedOutcome timed;
  timed.now = *now;
  timed.outcome.status = static_cast<int32_t>(get<uint32_t>(frame.body, 8));
  timed.outcome.error_number = static_cast<int>(get<uint32_t>(frame.body, 12));
  timed.outcome.due = *after;
  if (has_reply != 0) timed.outcome.reply = without_head(std::move(frame.body), kOutcomeHead);
  return timed;
}

}  // namespace switch_sim
