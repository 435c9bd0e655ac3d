#include "simulator/transport/frames.h"

#include "tests/simulator_socket/socket_fixture.h"

namespace socket_test {
namespace {

constexpr const char* kRequestBytes =
    "0000001a 56530101 0000000000000102 0000000f 00000095 00000003 aabb";
constexpr const char* kOutcomeBytes =
    "00000021 56530181 0000000000000005 40010001 00000000 000000000000012c 00000001 ff";
constexpr const char* kFailureBytes =
    "00000020 56530181 0000000000000000 ffffffff 00000068 0000000000000000 00000000";

TimedRequest a_request() {
  return {VirtualTime(258), {Service::vsan_manager, 149, 3, hex("aabb")}};
}

TimedOutcome an_outcome() {
  Outcome outcome;
  outcome.status = 0x40010001;
  outcome.due = VirtualTime(300);
  outcome.reply = hex("ff");
  return {VirtualTime(5), outcome};
}

TimedOutcome a_failure() {
  Outcome outcome;
  outcome.status = -1;
  outcome.error_number = 104;
  return {VirtualTime(0), outcome};
}

Frame frame_of(const Bytes& bytes) {
  FrameReader reader(1000);
  reader.add(bytes.data(), bytes.size());
  const auto frame = reader.next();
  EXPECT_TRUE(frame.has_value());
  return frame.value_or(Frame{});
}

TEST(Frames, ARequestIsWrittenBigEndian) {
  EXPECT_EQ(hex(kRequestBytes), to_bytes(request_frame(a_request())));
}

TEST(Frames, AnOutcomeIsWrittenBigEndian) {
  EXPECT_EQ(hex(kOutcomeBytes), to_bytes(outcome_frame(an_outcome())));
  EXPECT_EQ(hex(kFailureBytes), to_bytes(outcome_frame(a_failure())));
}

TEST(Frames, AFabricIsItsText) {
  EXPECT_EQ(hex("00000004 56530102"), to_bytes({FrameKind::fabric_request, {}}));
  EXPECT_EQ(hex("00000007 56530182 7b7d0a"), to_bytes(fabric_frame("{}\n")));
}

TEST(Frames, TheSizeOfAFrameLeavesOutItsLength) {
  EXPECT_EQ(26U, size_of(request_frame(a_request())));
}

TEST(Frames, WhatWasWrittenIsReadBack) {
  EXPECT_EQ(a_request(), read_request(frame_of(hex(kRequestBytes))));
  EXPECT_EQ(an_outcome(), read_outcome(frame_of(hex(kOutcomeBytes))));
  EXPECT_EQ(a_failure(), read_outcome(frame_of(hex(kFailureBytes))));
}

TEST(Frames, AnEmptyReplyIsNotTheSameAsNone) {
  const auto timed = read_outcome(frame_of(
      hex("00000020 56530181 0000000000000000 00000000 00000000 0000000000000000 00000001")));
  ASSERT_TRUE(timed.has_value());
  EXPECT_EQ(Bytes(), timed->outcome.reply);
}

TEST(Frames, ABodyThatIsTooShortIsNoRequestAndNoOutcome) {
  EXPECT_EQ(std::nullopt, read_request({FrameKind::request, Bytes(19)}));
  EXPECT_NE(std::nullopt, read_request({FrameKind::request, Bytes(20)}));
  EXPECT_EQ(std::nullopt, read_outcome({FrameKind::outcome, Bytes(27)}));
  EXPECT_NE(std::nullopt, read_outcome({FrameKind::outcome, Bytes(28)}));
}

TEST(Frames, AFrameOfAnotherKindIsNoRequestAndNoOutcome) {
  EXPECT_EQ(std::nullopt, read_request({FrameKind::outcome, Bytes(40)}));
  EXPECT_EQ(std::nullopt, read_outcome({FrameKind::request, Bytes(40)}));
}

TEST(Frames, AReplyWithoutItsMarkOrWithAnUnknownMarkIsNoOutcome) {
  EXPECT_EQ(std::nullopt,
            read_outcome(frame_of(hex("00000021 56530181 0000000000000000 00000000 00000000 "
                                      "0000000000000000 00000000 ff"))));
  EXPECT_EQ(std::nullopt,
            read_outcome(frame_of(hex("00000020 56530181 0000000000000000 00000000 00000000 "
                                      "0000000000000000 00000002"))));
}

// A clock that ran to the end of its type could not be added to any more.
TEST(Frames, TimesOutOfRangeAreRefused) {
  EXPECT_EQ(std::nullopt, read_request(frame_of(hex("00000018 56530101 7fffffffffffffff 00000000 "
                                                    "00000000 00000000"))));
  EXPECT_EQ(std::nullopt, read_request(frame_of(hex("00000018 56530101 ffffffffffffffff 00000000 "
                                                    "00000000 00000000"))));
  EXPECT_EQ(std::nullopt,
            read_outcome(frame_of(hex("00000020 56530181 ffffffffffffffff 00000000 00000000 "
                                      "0000000000000000 00000000"))));
  EXPECT_EQ(std::nullopt,
            read_outcome(frame_of(hex("00000020 56530181 0000000000000000 00000000 00000000 "
                                      "8000000000000000 00000000"))));
}

TEST(FrameReader, FramesArriveInAnyPieces) {
  const Bytes bytes = hex(std::string(kRequestBytes) + kOutcomeBytes);
  FrameReader reader(1000);
  std::vector<FrameKind> kinds;
  for (const std::byte byte : bytes) {
    reader.add(&byte, 1);
    EXPECT_FALSE(reader.is_broken());
    if (auto frame = reader.next()) kinds.push_back(frame->kind);
  }
  EXPECT_EQ((std::vector<FrameKind>{FrameKind::request, FrameKind::outcome}), kinds);
}

TEST(FrameReader, SeveralFramesArriveTogether) {
  const Bytes bytes = hex(std::string(kRequestBytes) + kOutcomeBytes + "00000004");
  FrameReader reader(1000);
  reader.add(bytes.data(), bytes.size());
  EXPECT_EQ(FrameKind::request, reader.next()->kind);
  EXPECT_TRUE(reader.has_frame());
  EXPECT_EQ(FrameKind::outcome, reader.next()->kind);
  EXPECT_FALSE(reader.has_frame());
  EXPECT_EQ(std::nullopt, reader.next());
  EXPECT_FALSE(reader.is_broken());
}

TEST(FrameReader, AFrameIsThereWithItsLastByte) {
  const Bytes bytes = hex(kRequestBytes);
  FrameReader reader(1000);
  reader.add(bytes.data(), bytes.size() - 1);
  EXPECT_FALSE(reader.has_frame());
  reader.add(&bytes.back(), 1);
  EXPECT_TRUE(reader.has_frame());
}

bool breaks(const char* bytes_in_hex, size_t longest = 26) {
  const Bytes bytes = hex(bytes_in_hex);
  FrameReader reader(longest);
  reader.add(bytes.data(), bytes.size());
  EXPECT_FALSE(reader.is_broken() && reader.next().has_value());
  return reader.is_broken();
}

TEST(FrameReader, ALengthOutOfRangeBreaksAtOnce) {
  EXPECT_FALSE(breaks("0000001a"));
  EXPECT_TRUE(breaks("0000001b"));
  EXPECT_TRUE(breaks("ffffffff"));
  EXPECT_FALSE(breaks("00000004"));
  EXPECT_TRUE(breaks("00000003"));
  EXPECT_TRUE(breaks("00000000"));
}

TEST(FrameReader, AnUnknownKindBreaksAtOnce) {
  EXPECT_FALSE(breaks("00000010 56530101"));
  EXPECT_TRUE(breaks("00000010 56530201"));
  EXPECT_TRUE(breaks("00000010 56530100"));
  EXPECT_TRUE(breaks("00000010 00000000"));
}

TEST(FrameReader, WhatIsBrokenStaysSo) {
  const Bytes bad = hex("00000000");
  const Bytes good = hex(kRequestBytes);
  FrameReader reader(1000);
  reader.add(bad.data(), bad.size());
  reader.add(good.data(), good.size());
  EXPECT_TRUE(reader.is_broken());
  EXPECT_EQ(std::nullopt, reader.next());
}

}  // namespace
}  // namespace socket_test
