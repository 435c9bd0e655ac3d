// The interface index behind a port WWN.
#include <gtest/gtest.h>

#include "tests/support/heap_ledger.h"
#include "tests/wwn_rules/interface_indexes.h"
#include "tests/wwn_rules/twins.h"

namespace {

using namespace wwn_rules_test;
using Calls = std::vector<std::string>;

constexpr int32_t kFc = 0;
constexpr int32_t kIscsi = 1;
constexpr uint32_t kUntouched = 4711;

struct Found {
  int result;
  uint32_t if_index;
  bool operator==(const Found&) const = default;
  friend void PrintTo(const Found& found, std::ostream* out) {
    *out << found.result << ", index " << found.if_index;
  }
};

const Found kNothing = {-1, kUntouched};

class PortIndex : public testing::Test {
 protected:
  PortIndex() { reset_platform(); }

  static Found find(const Bytes& port_wwn, int32_t iscsi) {
    Found found = {0, kUntouched};
    found.result = wwn_cim_get_port_index_from_wwn_hex(&found.if_index, port_wwn.data(), iscsi);
    return found;
  }

  static Found find(const char* text, int32_t iscsi) {
    Found found = {0, kUntouched};
    found.result = wwn_cim_get_port_index_from_wwn(&found.if_index, text, iscsi);
    return found;
  }

  // The only call that a maker's port WWN, given by its first two bytes, leads to.
  static Calls calls_for(uint8_t byte_0, uint8_t byte_1, int32_t iscsi) {
    platform().calls.clear();
    find(Bytes{byte_0, byte_1, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, iscsi);
    return platform().calls;
  }
};

TEST_F(PortIndex, OfAMakersPortIsMadeByThePlatform) {
  platform().made.value = 16781312;
  EXPECT_EQ(find(Bytes{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kFc), (Found{0, 16781312}));
  EXPECT_EQ(platform().calls, Calls{"if_index_phy_fc_port_init(1, 0)"});
}

TEST_F(PortIndex, TakesTheSlotFromBothBytes) {
  EXPECT_EQ(calls_for(0x23, 0x70, kFc), Calls{"if_index_phy_fc_port_init(13, 47)"});
  EXPECT_EQ(calls_for(0x27, 0xc1, kFc), Calls{"if_index_phy_fc_port_init(31, 0)"});
  // Bit 3 of byte 0 belongs to no slot.
  EXPECT_EQ(calls_for(0x28, 0x41, kFc), Calls{"if_index_phy_fc_port_init(1, 0)"});
}

TEST_F(PortIndex, OfPortZeroInTheWwnIsPortZeroToo) {
  EXPECT_EQ(calls_for(0x20, 0x40, kFc), Calls{"if_index_phy_fc_port_init(1, 0)"});
}

TEST_F(PortIndex, OfAnIscsiPortLeavesOutTheLowTwoBits) {
  EXPECT_EQ(calls_for(0x20, 0x41, kIscsi), Calls{"if_index_iscsi_port_init(1, 0)"});
  EXPECT_EQ(calls_for(0x20, 0x44, kIscsi), Calls{"if_index_iscsi_port_init(1, 1)"});
  EXPECT_EQ(calls_for(0x23, 0x7f, kIscsi), Calls{"if_index_iscsi_port_init(13, 15)"});
}

TEST_F(PortIndex, TakesAnyNonZeroFlagForIscsi) {
  EXPECT_EQ(calls_for(0x20, 0x44, 7), Calls{"if_index_iscsi_port_init(1, 1)"});
  EXPECT_EQ(calls_for(0x20, 0x44, -1), Calls{"if_index_iscsi_port_init(1, 1)"});
}

TEST_F(PortIndex, OfAPortChannelIsMadeFromByteOneMinusOne) {
  platform().made.value = 67108874;
  EXPECT_EQ(find(Bytes{0x24, 0x0b, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kFc), (Found{0, 67108874}));
  EXPECT_EQ(platform().calls, Calls{"if_index_port_channel_init(10)"});
}

TEST_F(PortIndex, OfAPortChannelDoesNotLookAtTheIscsiFlag) {
  EXPECT_EQ(calls_for(0x24, 0x0b, kIscsi), Calls{"if_index_port_channel_init(10)"});
}

TEST_F(PortIndex, OfPortChannelZeroWrapsAround) {
  EXPECT_EQ(calls_for(0x24, 0x00, kFc), Calls{"if_index_port_channel_init(4294967295)"});
}

TEST_F(PortIndex, FailsWhenThePlatformCannotMakeIt) {
  platform().made.status = 5;
  EXPECT_EQ(find(Bytes{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kFc), kNothing);
  EXPECT_EQ(find(Bytes{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kIscsi), kNothing);
  EXPECT_EQ(find(Bytes{0x24, 0x0b, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kFc), kNothing);
}

TEST_F(PortIndex, FailsForNaaTen) {
  EXPECT_EQ(find(Bytes{0xa0, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}, kFc), kNothing);
  EXPECT_EQ(platform().calls, Calls{});
}

TEST_F(PortIndex, OfMcDataIsByteOneMinusFour) {
  EXPECT_EQ(find(Bytes{0x20, 0x1f, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}, kFc), (Found{0, 27}));
  EXPECT_EQ(find(Bytes{0x20, 0x04, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}, kIscsi), (Found{0, 0}));
}

TEST_F(PortIndex, OfMcDataWrapsAroundBelowFour) {
  EXPECT_EQ(find(Bytes{0x20, 0x03, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c}, kFc),
            (Found{0, 4294967295}));
}

TEST_F(PortIndex, OfTheOtherVendorsIsByteOne) {
  EXPECT_EQ(find(Bytes{0x20, 0xf7, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c}, kFc), (Found{0, 247}));
  EXPECT_EQ(find(Bytes{0x20, 0x07, 0x00, 0x60, 0xdf, 0x0a, 0x1b, 0x2c}, kFc), (Found{0, 7}));
  EXPECT_EQ(find(Bytes{0x20, 0x07, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c}, kIscsi), (Found{0, 7}));
  EXPECT_EQ(platform().calls, Calls{});
}

TEST_F(PortIndex, FailsForAnUnknownVendor) {
  EXPECT_EQ(find(kNobody, kFc), kNothing);
  EXPECT_EQ(find(kAllZero, kFc), kNothing);
}

TEST_F(PortIndex, IsFoundByTextToo) {
  platform().made.value = 16781312;
  EXPECT_EQ(find("2041000DEC0A1B2C", kFc), (Found{0, 16781312}));
  EXPECT_EQ(find("2044000dec0a1b2c", kIscsi), (Found{0, 16781312}));
  EXPECT_EQ(platform().calls,
            (Calls{"if_index_phy_fc_port_init(1, 0)", "if_index_iscsi_port_init(1, 1)"}));
  EXPECT_EQ(find("2007006069000001", kFc), (Found{0, 7}));
}

TEST_F(PortIndex, FailsForATextThatIsNoWwn) {
  EXPECT_EQ(find("2041000DEC0A1B2", kFc), kNothing);
  EXPECT_EQ(find("2041000DEC0A1B2C0", kFc), kNothing);
  EXPECT_EQ(find("", kFc), kNothing);
  EXPECT_EQ(find(nullptr, kFc), kNothing);
  EXPECT_EQ(platform().calls, Calls{});
}

TEST_F(PortIndex, FailsOnNullArguments) {
  uint32_t if_index = kUntouched;
  EXPECT_EQ(wwn_cim_get_port_index_from_wwn_hex(&if_index, nullptr, kFc), -1);
  EXPECT_EQ(wwn_cim_get_port_index_from_wwn_hex(nullptr, kBrocade.data(), kFc), -1);
  EXPECT_EQ(wwn_cim_get_port_index_from_wwn(nullptr, "2041000DEC0A1B2C", kFc), -1);
  EXPECT_EQ(if_index, kUntouched);
  EXPECT_EQ(platform().calls, Calls{});
}

TEST(WwnRules, AllocateNothing) {
  const wwn_ qlogic = record_of(kQlogic);
  const wwn_ maker = record_of(kMakerSwitch);
  wwn_ out;
  uint32_t if_index = 0;
  const test_support::HeapLedger ledger;
  wwn_cim_get_port_wwn(3, &out, &qlogic);
  wwn_cim_get_switch_wwn_from_port_wwn(5, &out, &maker);
  wwn_cim_get_vsan_wwn_from_switch_unique_wwn(5, &out, &maker);
  wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&out, &maker);
  wwn_cim_get_port_index_from_wwn_hex(&if_index, qlogic.bytes, kFc);
  EXPECT_EQ(ledger.allocations(), 0U);
}

}  // namespace
