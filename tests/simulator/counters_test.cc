#include "simulator/fabric/counters.h"

#include <switch_platform/port_manager.h>
#include <switch_platform/records_port_manager.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fault;

constexpr uint64_t kDay = 86'400'000;  // milliseconds

class SimulatedCounters : public SimulatorTest {
 protected:
  fcIfAllCounters_t read(uint32_t if_index) {
    fcIfAllCounters_t* block = nullptr;
    status = pm_get_port_counters(q, if_index, 1, 1, &block);
    fcIfAllCounters_t copy{};
    if (block != nullptr) copy = *block;
    free(block);
    return copy;
  }

  int32_t status = 0;
};

TEST_F(SimulatedCounters, APortThatNothingWasConnectedToCountsNothing) {
  expect_reply(call(34, 0x11004, 1, Pattern(4).at(0, "01010009").bytes()),
               Pattern(600).at(0, "01010009"));
}

TEST_F(SimulatedCounters, TheClientGivesNumbersInHostOrder) {
  const Result wire = call(34, 0x11004, 1, Pattern(4).at(0, "01010001").bytes());
  ASSERT_EQ(600, wire.length);
  uint64_t frames = 0;
  for (size_t i = 80; i < 88; ++i)
    frames = frames << 8 | wire.reply[i];
  const fcIfAllCounters_t counters = read(0x01010001);
  EXPECT_EQ(0, status);
  EXPECT_EQ(0x01010001U, counters.if_index);
  EXPECT_EQ(frames, counters.class3_frames_received);
  // One day at a hundred to five thousand frames per second.
  EXPECT_GE(frames, 8'640'000U);
  EXPECT_LE(frames, 432'000'000U);
}

TEST_F(SimulatedCounters, FramesHaveALegalSize) {
  const fcIfAllCounters_t counters = read(0x01010001);
  for (const auto& [frames, bytes] :
       {std::pair(counters.class2_frames_received, counters.class2_bytes_received),
        std::pair(counters.class2_frames_transmitted, counters.class2_bytes_transmitted),
        std::pair(counters.class3_frames_received, counters.class3_bytes_received),
        std::pair(counters.class3_frames_transmitted, counters.class3_bytes_transmitted)}) {
    ASSERT_GT(frames, 0U);
    EXPECT_GE(bytes / frames, 64U);
    EXPECT_LE(bytes / frames, 2112U);
  }
}

TEST_F(SimulatedCounters, TheyMoveWithTheClockAndStandStillWithoutIt) {
  const auto first = read(0x01010001);
  EXPECT_EQ(first.class3_frames_received, read(0x01010001).class3_frames_received);
  control::advance(std::chrono::seconds(10));
  const auto second = read(0x01010001);
  EXPECT_GE(second.class3_frames_received, first.class3_frames_received + 900);
  EXPECT_GT(second.class3_bytes_transmitted, first.class3_bytes_transmitted);
}

TEST_F(SimulatedCounters, TheyCanBeFrozen) {
  control::freeze_counters(true);
  const auto first = read(0x01010001);
  control::advance(std::chrono::seconds(10));
  EXPECT_EQ(first.class3_frames_received, read(0x01010001).class3_frames_received);
  control::freeze_counters(true);  // keeps the first moment
  EXPECT_EQ(first.class3_frames_received, read(0x01010001).class3_frames_received);
  control::freeze_counters(false);
  EXPECT_GT(read(0x01010001).class3_frames_received, first.class3_frames_received);
}

TEST_F(SimulatedCounters, AResetThawsThem) {
  control::freeze_counters(true);
  control::reset();
  const auto first = read(0x01010001);
  control::advance(std::chrono::seconds(10));
  EXPECT_GT(read(0x01010001).class3_frames_received, first.class3_frames_received);
}

TEST_F(SimulatedCounters, AnErrorStormGrowsManyErrorsASteadyPortFew) {
  const auto storm = read(0x01010004);
  const auto steady = read(0x01010003);
  EXPECT_GT(storm.crc_errors, 100'000U);  // one day at 120 or more a minute
  EXPECT_LT(steady.crc_errors, 3U);
  EXPECT_GT(storm.invalid_transmission_words, storm.crc_errors);
  EXPECT_GT(storm.link_failures, 0U);
}

TEST_F(SimulatedCounters, APortChannelCountsWhatItsMembersDo) {
  const auto channel = read(0x04000001);
  const auto left = read(0x01010005);
  const auto right = read(0x01010006);
  EXPECT_EQ(0x04000001U, channel.if_index);
  EXPECT_EQ(left.class3_frames_received + right.class3_frames_received,
            channel.class3_frames_received);
  EXPECT_EQ(left.multicast_frames_transmitted + right.multicast_frames_transmitted,
            channel.multicast_frames_transmitted);
}

TEST_F(SimulatedCounters, OtherInterfacesHaveNone) {
  for (const uint32_t if_index : {0x02020001U, 0x04010002U, 0x05000001U, 0x0A000001U}) {
    read(if_index);
    EXPECT_EQ(0x40150001, status);
  }
  read(0x01010011);
  EXPECT_EQ(kNotFound, status);
  EXPECT_EQ(kBadValue, pm_get_port_counters(q, 0x01010001, 1, 1, nullptr));
  expect_refused(call(34, 0x11004, 2, Pattern(4).at(0, "01010001").bytes()), kBadOperation);
}

TEST_F(SimulatedCounters, AShortBlockIsHandedOutAsItCame) {
  for (const int32_t length : {1, 7, 12, 599}) {
    control::set_faults({{.opcode = 0x11004, .kind = Fault::Kind::short_reply, .value = length}});
    fcIfAllCounters_t* block = nullptr;
    EXPECT_EQ(0, pm_get_port_counters(q, 0x01010001, 1, 1, &block));
    EXPECT_NE(nullptr, block);
    free(block);
  }
}

class CounterFunction : public testing::Test {
 protected:
  switch_sim::Fabric fabric = switch_sim::default_fabric();

  switch_sim::Counters at(uint32_t if_index, uint64_t uptime_ms) const {
    return counters_of(fabric, fabric.switches[0], *find_interface(fabric.switches[0], if_index),
                       uptime_ms);
  }
};

TEST_F(CounterFunction, NoCounterEverFalls) {
  for (const uint32_t if_index : {0x01010001U, 0x01010004U, 0x04000001U}) {
    auto before = at(if_index, 0);
    for (uint64_t now = 1; now < 100 * kDay; now = now * 3 / 2 + 1) {
      const auto after = at(if_index, now);
      for (size_t i = 0; i < after.size(); ++i) {
        ASSERT_GE(after[i], before[i]) << "word " << i << " at " << now;
      }
      before = after;
    }
  }
}

TEST_F(CounterFunction, NothingIsCountedAtTheStart) {
  EXPECT_EQ(switch_sim::Counters{}, at(0x01010001, 0));
  EXPECT_EQ(switch_sim::Counters{}, at(0x01010004, 0));
}

TEST_F(CounterFunction, EveryNamedCounterMovesInAStorm) {
  const auto counters = at(0x01010004, 30 * kDay);
  for (const size_t offset :
       {8,   16,  24,  32,  48,  56,  64,  72,  80,  88,  96,  104, 112, 160, 168, 176, 184,
        192, 200, 208, 216, 224, 232, 280, 288, 312, 352, 360, 376, 384, 400, 408, 424, 592}) {
    EXPECT_GT(counters.at(offset / 8), 0U) << offset;
  }
}

TEST_F(CounterFunction, TheSeedAndThePlaceOfThePortMatter) {
  const auto first = at(0x01010001, kDay);
  EXPECT_NE(first, at(0x01010003, kDay));
  fabric.counter_seed = 2;
  EXPECT_NE(first, at(0x01010001, kDay));
  fabric.counter_seed = 1;
  EXPECT_EQ(first, at(0x01010001, kDay));
}

TEST_F(CounterFunction, TheStateOfAPortDoesNotTakeCountsBack) {
  const auto first = at(0x01010001, kDay);
  find_interface(fabric.switches[0], 0x01010001)->admin_state = switch_sim::AdminState::down;
  EXPECT_EQ(first, at(0x01010001, kDay));
}

}  // namespace
}  // namespace simulator_test
