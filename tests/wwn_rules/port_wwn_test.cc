// The WWN of a port from the WWN of its switch.
#include <gtest/gtest.h>

#include "tests/wwn_rules/interface_indexes.h"
#include "tests/wwn_rules/twins.h"

namespace {

using namespace wwn_rules_test;

constexpr uint32_t kIfIndex = 16781312;
using Calls = std::vector<std::string>;

class MakersPortWwn : public testing::Test {
 protected:
  MakersPortWwn() { reset_platform(); }

  // The interface at kIfIndex for the doubles.
  static void interface_is(uint32_t type, uint32_t slot, uint32_t port) {
    platform().type.value = type;
    platform().slot.value = slot;
    platform().port.value = port;
  }
  static void port_channel_is(uint32_t channel) {
    platform().type.value = 4;
    platform().channel.value = channel;
  }
};

TEST_F(MakersPortWwn, CarriesSlotAndPortPlusOne) {
  interface_is(1, 1, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  interface_is(1, 13, 47);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x23, 0x70, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, AsksForTypeThenSlotThenPort) {
  interface_is(1, 1, 0);
  kVexorPortWwn.on_record(kIfIndex, kMakerSwitch);
  EXPECT_EQ(platform().calls, (Calls{"if_index_get_type(16781312)", "if_index_get_slot(16781312)",
                                     "if_index_get_port(16781312)"}));
}

TEST_F(MakersPortWwn, HasOneRuleForAllOtherTypes) {
  for (const uint32_t type : {0U, 1U, 2U, 5U, 11U, 14U, 255U}) {
    interface_is(type, 1, 0);
    EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
              gives({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}))
        << type;
  }
}

TEST_F(MakersPortWwn, LetsLargeSlotsReachThePortChannelBit) {
  interface_is(1, 16, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x24, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  interface_is(1, 19, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x24, 0xc1, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  interface_is(1, 255, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x3f, 0xc1, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, LetsLargePortsReachTheSlotBits) {
  interface_is(1, 0, 63);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x20, 0x40, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  interface_is(1, 0, 255);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, StartsFromTheSwitchUniqueFormOfAVsanWwn) {
  interface_is(1, 1, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, Bytes{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}),
            gives({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, Bytes{0x2f, 0xfe, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x00}),
            gives({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0xff}));
}

TEST_F(MakersPortWwn, KeepsTheFirstByteOfASwitchUniqueWwn) {
  interface_is(1, 4, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, Bytes{0x10, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}),
            gives({0x11, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, OfAPortChannelCarriesItsNumberPlusOne) {
  port_channel_is(10);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x24, 0x0b, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  port_channel_is(255);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch),
            gives({0x24, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, OfAPortChannelStartsFromTheSwitchUniqueForm) {
  port_channel_is(10);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, Bytes{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}),
            gives({0x24, 0x0b, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(MakersPortWwn, OfAPortChannelIsTracedAndAsksForTheChannelOnly) {
  port_channel_is(10);
  testing::internal::CaptureStdout();
  kVexorPortWwn.on_array(kIfIndex, kMakerSwitch);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "16781312 is port channel \n");
  EXPECT_EQ(platform().calls, (Calls{"if_index_get_type(16781312)",
                                     "if_index_port_channel_get_channel_num(16781312)"}));
}

TEST_F(MakersPortWwn, OfAnFcipInterfaceFailsWithATrace) {
  interface_is(10, 1, 0);
  testing::internal::CaptureStdout();
  EXPECT_EQ(kVexorPortWwn.on_record(kIfIndex, kMakerSwitch), kFails);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "16781312 is fcip \n");
  EXPECT_EQ(platform().calls, Calls{"if_index_get_type(16781312)"});
  EXPECT_EQ(both(kPortWwn, kIfIndex, kMakerSwitch), kFails);
}

TEST_F(MakersPortWwn, TracesTheIndexAsASignedNumber) {
  interface_is(10, 1, 0);
  testing::internal::CaptureStdout();
  kVexorPortWwn.on_record(0xFFFFFFFF, kMakerSwitch);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "-1 is fcip \n");
}

TEST_F(MakersPortWwn, FailsWhenTheTypeIsUnknown) {
  interface_is(1, 1, 0);
  platform().type.status = 3;
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch), kFails);
  EXPECT_EQ(platform().calls,
            (Calls{"if_index_get_type(16781312)", "if_index_get_type(16781312)"}));
}

TEST_F(MakersPortWwn, FailsWhenTheSlotIsUnknown) {
  interface_is(1, 1, 0);
  platform().slot.status = -1;
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch), kFails);
}

TEST_F(MakersPortWwn, FailsWhenThePortIsUnknown) {
  interface_is(1, 1, 0);
  platform().port.status = -1;
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch), kFails);
}

TEST_F(MakersPortWwn, FailsWhenTheChannelIsUnknown) {
  port_channel_is(10);
  platform().channel.status = -1;
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kMakerSwitch), kFails);
}

TEST_F(MakersPortWwn, PrintsNothingForOtherTypes) {
  interface_is(1, 1, 0);
  testing::internal::CaptureStdout();
  both(kVexorPortWwn, kIfIndex, kMakerSwitch);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(MakersPortWwn, IsDerivedWhateverTheVendorOfTheSwitch) {
  interface_is(1, 1, 0);
  EXPECT_EQ(both(kVexorPortWwn, kIfIndex, kBrocade),
            gives({0x10, 0x41, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}));
}

// ---- The other vendors

TEST(McDataPortWwn, CarriesThePortPlusFour) {
  EXPECT_EQ(both(kMcDataPortWwn, 0U, kMcData),
            gives({0x20, 0x04, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kMcDataPortWwn, 27U, kMcData),
            gives({0x20, 0x1f, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}));
}

TEST(McDataPortWwn, KeepsTheLowEightBits) {
  EXPECT_EQ(both(kMcDataPortWwn, 252U, kMcData).wwn[1], 0x00);
  EXPECT_EQ(both(kMcDataPortWwn, 0xFFFFFFFFU, kMcData).wwn[1], 0x03);
}

TEST(OtherPortWwn, CarriesThePort) {
  EXPECT_EQ(both(kBrocadePortWwn, 7U, kBrocade),
            gives({0x20, 0x07, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kInrangePortWwn, 7U, kInrange),
            gives({0x20, 0x07, 0x00, 0x60, 0xdf, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kQlogicPortWwn, 7U, kQlogic),
            gives({0x20, 0x07, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c}));
}

TEST(OtherPortWwn, KeepsTheLowEightBits) {
  for (const NumberedRule& rule : {kBrocadePortWwn, kInrangePortWwn, kQlogicPortWwn}) {
    SCOPED_TRACE(rule.name);
    EXPECT_EQ(both(rule, 0x1234U, kBrocade).wwn[1], 0x34);
  }
}

// ---- By the vendor of the switch

class PortWwn : public MakersPortWwn {};

TEST_F(PortWwn, FollowsTheVendorOfTheSwitch) {
  interface_is(1, 1, 0);
  EXPECT_EQ(both(kPortWwn, kIfIndex, kMakerSwitch),
            gives({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kPortWwn, 3U, kMcData), gives({0x20, 0x07, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kPortWwn, 3U, kBrocade), gives({0x20, 0x03, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kPortWwn, 3U, kInrange), gives({0x20, 0x03, 0x00, 0x60, 0xdf, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kPortWwn, 3U, kQlogic), gives({0x20, 0x03, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c}));
}

TEST_F(PortWwn, AsksThePlatformForTheMakersPortsOnly) {
  both(kPortWwn, 3U, kMcData);
  both(kPortWwn, 3U, kQlogic);
  EXPECT_EQ(platform().calls, Calls{});
}

TEST_F(PortWwn, FailsForAnUnknownVendor) {
  EXPECT_EQ(both(kPortWwn, 3U, kNobody), kFails);
}

TEST_F(PortWwn, FailsForAnAllZeroSwitchWwn) {
  EXPECT_EQ(both(kPortWwn, 3U, kAllZero), kFails);
}

TEST_F(PortWwn, PassesOnTheFailureOfTheMakersRule) {
  platform().type.status = -1;
  EXPECT_EQ(both(kPortWwn, kIfIndex, kMakerSwitch), kFails);
}

TEST_F(PortWwn, MayBeDerivedInPlace) {
  interface_is(1, 1, 0);
  wwn_ wwn = record_of(kMakerSwitch);
  EXPECT_EQ(wwn_cim_get_port_wwn(kIfIndex, &wwn, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), (Bytes{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST_F(PortWwn, FailsOnNullArguments) {
  for (const NumberedRule& rule : {kPortWwn, kVexorPortWwn, kMcDataPortWwn, kBrocadePortWwn,
                                   kInrangePortWwn, kQlogicPortWwn}) {
    SCOPED_TRACE(rule.name);
    for (const Bytes& switch_wwn : {kMakerSwitch, kMcData, kBrocade, kInrange, kQlogic}) {
      const wwn_ wwn = record_of(switch_wwn);
      EXPECT_EQ(rule.record(3, nullptr, &wwn), -1);
      EXPECT_EQ(rule.array(3, nullptr, switch_wwn.data()), -1);
    }
    wwn_ out = record_of(kUnchanged);
    EXPECT_EQ(rule.record(3, &out, nullptr), -1);
    EXPECT_EQ(rule.array(3, out.bytes, nullptr), -1);
    EXPECT_EQ(bytes_of(out), kUnchanged);
  }
  EXPECT_EQ(platform().calls, Calls{});
}

}  // namespace
