// Feeds any bytes to the reader of frames, in pieces whose sizes the input also decides. Frames
// must come out as they would in one piece, and a message that was read must be written as it was.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "fuzz/fuzzed_text.h"
#include "simulator/transport/frames.h"

namespace {

using namespace switch_sim;

constexpr size_t kLongest = 300;

struct Result {
  std::vector<Frame> frames;
  bool broken = false;
};

void take_frames(FrameReader& reader, Result& result) {
  while (auto frame = reader.next())
    result.frames.push_back(std::move(*frame));
  result.broken = reader.is_broken();
}

Result read_in_pieces(const Bytes& bytes, size_t largest_piece) {
  FrameReader reader(kLongest);
  Result result;
  for (size_t at = 0, piece = 1; at < bytes.size(); at += piece) {
    piece = std::min(bytes.size() - at, 1 + (at * 7 + largest_piece) % largest_piece);
    reader.add(bytes.data() + at, piece);
    take_frames(reader, result);
  }
  return result;
}

void check_messages(const Frame& frame) {
  if (const auto request = read_request(frame)) {
    fuzz::require(request_frame(*request) == frame, "a request is written as it was read");
  }
  if (const auto outcome = read_outcome(frame)) {
    fuzz::require(outcome_frame(*outcome) == frame, "an outcome is written as it was read");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto* begin = reinterpret_cast<const std::byte*>(data);
  const Bytes bytes(begin + 1, begin + size);
  const Result pieces = read_in_pieces(bytes, 1 + data[0]);

  FrameReader reader(kLongest);
  Result whole;
  reader.add(bytes.data(), bytes.size());
  take_frames(reader, whole);
  fuzz::require(pieces.frames == whole.frames, "pieces give the same frames");
  fuzz::require(pieces.broken == whole.broken, "pieces break at the same place");

  Bytes again;
  for (const Frame& frame : whole.frames) {
    fuzz::require(size_of(frame) <= kLongest, "no frame is longer than allowed");
    const Bytes frame_bytes = to_bytes(frame);
    again.insert(again.end(), frame_bytes.begin(), frame_bytes.end());
    check_messages(frame);
  }
  fuzz::require(
      again.size() <= bytes.size() && std::equal(again.begin(), again.end(), bytes.begin()),
      "frames are the bytes that arrived");
  return 0;
}
