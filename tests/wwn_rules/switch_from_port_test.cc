// The WWN of a switch from the WWN of one of its ports.
#include <gtest/gtest.h>

#include "tests/wwn_rules/twins.h"

namespace {

using namespace wwn_rules_test;

constexpr Bytes kMakerPort = {0x23, 0x70, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};

TEST(MakersSwitchWwn, WithoutAVsanIsSwitchUnique) {
  EXPECT_EQ(both(kVexorSwitchWwn, 0U, kMakerPort),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST(MakersSwitchWwn, WithAVsanIsThatOfTheVsan) {
  EXPECT_EQ(both(kVexorSwitchWwn, 5U, kMakerPort),
            gives({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kVexorSwitchWwn, 4094U, kMakerPort),
            gives({0x2f, 0xfe, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
}

TEST(MakersSwitchWwn, DoesNotMaskTheHighPartOfTheVsan) {
  EXPECT_EQ(both(kVexorSwitchWwn, 0x1005U, kMakerPort),
            gives({0x30, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kVexorSwitchWwn, 0xFFF05U, kMakerPort),
            gives({0xff, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  // The VSAN WWN of the same number stays within its four bits.
  EXPECT_EQ(both(kVsanWwn, 0x1005U, kMakerSwitch),
            gives({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
}

TEST(MakersSwitchWwn, WrapsAroundWhereTheLastByteIs255) {
  EXPECT_EQ(both(kVexorSwitchWwn, 5U, Bytes{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0xff}),
            gives({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x00}));
}

TEST(OtherSwitchWwn, IsNaaOneWithoutThePort) {
  const Bytes port = {0x20, 0x07, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c};
  for (const PlainRule& rule :
       {kMcDataSwitchWwn, kBrocadeSwitchWwn, kInrangeSwitchWwn, kQlogicSwitchWwn}) {
    SCOPED_TRACE(rule.name);
    EXPECT_EQ(both(rule, port), gives({0x10, 0x00, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}));
  }
}

TEST(SwitchWwn, FollowsTheVendorOfThePort) {
  EXPECT_EQ(both(kSwitchWwn, 5U, kMakerPort),
            gives({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kSwitchWwn, 5U, Bytes{0x20, 0x07, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}),
            gives(kMcData));
  EXPECT_EQ(both(kSwitchWwn, 5U, Bytes{0x20, 0x07, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}),
            gives(kBrocade));
  EXPECT_EQ(both(kSwitchWwn, 5U, Bytes{0x20, 0x07, 0x00, 0x60, 0xdf, 0x0a, 0x1b, 0x2c}),
            gives(kInrange));
  EXPECT_EQ(both(kSwitchWwn, 5U, Bytes{0x20, 0x07, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c}),
            gives(kQlogic));
}

TEST(SwitchWwn, FailsForAnUnknownVendor) {
  EXPECT_EQ(both(kSwitchWwn, 0U, kNobody), kFails);
}

TEST(SwitchWwn, FailsForAnAllZeroPortWwn) {
  EXPECT_EQ(both(kSwitchWwn, 0U, kAllZero), kFails);
}

TEST(SwitchWwn, MayBeDerivedInPlace) {
  Bytes wwn = kMakerPort;
  EXPECT_EQ(wwn_cim_get_switch_wwn_from_port_wwn_str(0, wwn.data(), wwn.data()), 0);
  EXPECT_EQ(wwn, kMakerSwitch);
}

TEST(SwitchWwn, FailsOnNullArguments) {
  for (const NumberedRule& rule : {kSwitchWwn, kVexorSwitchWwn}) {
    SCOPED_TRACE(rule.name);
    for (const Bytes& port_wwn : {kMakerPort, kMcData, kBrocade, kInrange, kQlogic}) {
      const wwn_ wwn = record_of(port_wwn);
      EXPECT_EQ(rule.record(0, nullptr, &wwn), -1);
      EXPECT_EQ(rule.array(0, nullptr, port_wwn.data()), -1);
    }
    wwn_ out = record_of(kUnchanged);
    EXPECT_EQ(rule.record(0, &out, nullptr), -1);
    EXPECT_EQ(rule.array(0, out.bytes, nullptr), -1);
    EXPECT_EQ(bytes_of(out), kUnchanged);
  }
  for (const PlainRule& rule :
       {kMcDataSwitchWwn, kBrocadeSwitchWwn, kInrangeSwitchWwn, kQlogicSwitchWwn}) {
    SCOPED_TRACE(rule.name);
    wwn_ out = record_of(kUnchanged);
    EXPECT_EQ(rule.record(nullptr, &out), -1);
    EXPECT_EQ(rule.record(&out, nullptr), -1);
    EXPECT_EQ(rule.array(nullptr, out.bytes), -1);
    EXPECT_EQ(rule.array(out.bytes, nullptr), -1);
    EXPECT_EQ(bytes_of(out), kUnchanged);
  }
}

}  // namespace
