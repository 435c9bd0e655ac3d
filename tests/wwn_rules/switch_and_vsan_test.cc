// Switch-unique WWNs and the WWNs that a switch shows in its VSANs.
#include <gtest/gtest.h>

#include "tests/wwn_rules/twins.h"

namespace {

using namespace wwn_rules_test;

TEST(VsanNumber, IsTheTwelveBitsBehindTheNaa) {
  constexpr uint8_t switch_unique[8] = {0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
  constexpr uint8_t vsan_5[8] = {0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d};
  constexpr uint8_t vsan_4094[8] = {0x2f, 0xfe, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d};
  constexpr uint8_t other_naa[8] = {0x51, 0x23, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d};
  EXPECT_EQ(wwn_cim_get_vsan_index_from_wwn_str(switch_unique), 0U);
  EXPECT_EQ(wwn_cim_get_vsan_index_from_wwn_str(vsan_5), 5U);
  EXPECT_EQ(wwn_cim_get_vsan_index_from_wwn_str(vsan_4094), 4094U);
  EXPECT_EQ(wwn_cim_get_vsan_index_from_wwn_str(other_naa), 0x123U);
}

TEST(VsanNumber, OfANullWwnIsZero) {
  EXPECT_EQ(wwn_cim_get_vsan_index_from_wwn_str(nullptr), 0U);
}

TEST(SwitchUniqueWwn, IsOneLessInTheLastByteWithoutTheVsan) {
  EXPECT_EQ(both(kSwitchUniqueWwn, Bytes{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
  EXPECT_EQ(both(kSwitchUniqueWwn, Bytes{0x2f, 0xfe, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}));
}

TEST(SwitchUniqueWwn, WrapsAroundWhereTheLastByteIsZero) {
  EXPECT_EQ(both(kSwitchUniqueWwn, Bytes{0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x00}),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0xff}));
}

TEST(SwitchUniqueWwn, OfOneThatIsSoAlreadyIsItself) {
  EXPECT_EQ(both(kSwitchUniqueWwn, kMakerSwitch), gives(kMakerSwitch));
  const Bytes naa_one = {0x10, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
  EXPECT_EQ(both(kSwitchUniqueWwn, naa_one), gives(naa_one));
}

TEST(SwitchUniqueWwn, OfAnotherVendorIsItself) {
  const Bytes brocade = {0x20, 0x05, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c};
  EXPECT_EQ(both(kSwitchUniqueWwn, brocade), gives(brocade));
  EXPECT_EQ(both(kSwitchUniqueWwn, kNobody), gives(kNobody));
  EXPECT_EQ(both(kSwitchUniqueWwn, kAllZero), gives(kAllZero));
}

TEST(SwitchUniqueWwn, TakesAMakersNaaFiveForAVsanWwn) {
  // Its OUI lies where the VSAN number is, so that it always seems to carry one.
  EXPECT_EQ(both(kSwitchUniqueWwn, Bytes{0x50, 0x2f, 0xc0, 0x01, 0x12, 0x34, 0x56, 0x78}),
            gives({0x20, 0x00, 0xc0, 0x01, 0x12, 0x34, 0x56, 0x77}));
}

TEST(SwitchUniqueWwn, KnowsTheMakersFurtherOuis) {
  EXPECT_EQ(both(kSwitchUniqueWwn, Bytes{0x20, 0x05, 0x02, 0xfc, 0x19, 0x0a, 0x1b, 0x2d}),
            gives({0x20, 0x00, 0x02, 0xfc, 0x19, 0x0a, 0x1b, 0x2c}));
}

TEST(VsanWwn, IsOneMoreInTheLastByteWithTheVsanInFront) {
  EXPECT_EQ(both(kVsanWwn, 5U, kMakerSwitch),
            gives({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kVsanWwn, 4094U, kMakerSwitch),
            gives({0x2f, 0xfe, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
}

TEST(VsanWwn, KeepsTwelveBitsOfTheVsan) {
  EXPECT_EQ(both(kVsanWwn, 4096U, kMakerSwitch),
            gives({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kVsanWwn, 0xFFFF1234U, kMakerSwitch),
            gives({0x22, 0x34, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
}

TEST(VsanWwn, WrapsAroundWhereTheLastByteIs255) {
  EXPECT_EQ(both(kVsanWwn, 1U, Bytes{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0xff}),
            gives({0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x00}));
}

TEST(VsanWwn, OfAnotherVendorIsItself) {
  EXPECT_EQ(both(kVsanWwn, 5U, kBrocade), gives(kBrocade));
  EXPECT_EQ(both(kVsanWwn, 5U, kNobody), gives(kNobody));
}

TEST(VsanWwn, OfVsanOneAndBackIsTheStartingWwn) {
  const Derived in_vsan = both(kVsanWwn, 1U, kMakerSwitch);
  EXPECT_EQ(in_vsan, gives({0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  EXPECT_EQ(both(kSwitchUniqueWwn, in_vsan.wwn), gives(kMakerSwitch));
}

TEST(VsanWwn, AndBackIsTheStartingWwnForEveryVsan) {
  for (uint32_t vsan = 1; vsan <= 4095; ++vsan) {
    const Derived in_vsan = both(kVsanWwn, vsan, kMakerSwitch);
    ASSERT_EQ(wwn_cim_get_vsan_index_from_wwn_str(in_vsan.wwn.data()), vsan);
    ASSERT_EQ(both(kSwitchUniqueWwn, in_vsan.wwn), gives(kMakerSwitch));
  }
}

TEST(SwitchAndVsan, MayBeDerivedInPlace) {
  Bytes wwn = kMakerSwitch;
  wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(5, wwn.data(), wwn.data());
  EXPECT_EQ(wwn, (Bytes{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}));
  wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(wwn.data(), wwn.data());
  EXPECT_EQ(wwn, kMakerSwitch);
}

TEST(SwitchAndVsan, FailOnNullArguments) {
  wwn_ wwn = record_of(kMakerSwitch);
  Bytes bytes = kMakerSwitch;
  EXPECT_EQ(wwn_cim_get_switch_unique_wwn_from_vsan_wwn(nullptr, &wwn), -1);
  EXPECT_EQ(wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&wwn, nullptr), -1);
  EXPECT_EQ(wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(nullptr, bytes.data()), -1);
  EXPECT_EQ(wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(bytes.data(), nullptr), -1);
  EXPECT_EQ(wwn_cim_get_vsan_wwn_from_switch_unique_wwn(5, nullptr, &wwn), -1);
  EXPECT_EQ(wwn_cim_get_vsan_wwn_from_switch_unique_wwn(5, &wwn, nullptr), -1);
  EXPECT_EQ(wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(5, nullptr, bytes.data()), -1);
  EXPECT_EQ(wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(5, bytes.data(), nullptr), -1);
  EXPECT_EQ(bytes_of(wwn), kMakerSwitch);
  EXPECT_EQ(bytes, kMakerSwitch);
}

TEST(SameWwn, ComparesAllEightBytes) {
  EXPECT_EQ(wwn_cim_is_same_wwn_hex(kMakerSwitch.data(), Bytes(kMakerSwitch).data()), 1);
  for (std::size_t i = 0; i < 8; ++i) {
    Bytes other = kMakerSwitch;
    other[i] ^= 1;
    EXPECT_EQ(wwn_cim_is_same_wwn_hex(kMakerSwitch.data(), other.data()), 0) << i;
  }
}

TEST(SameWwn, IsZeroForANullWwn) {
  EXPECT_EQ(wwn_cim_is_same_wwn_hex(nullptr, kMakerSwitch.data()), 0);
  EXPECT_EQ(wwn_cim_is_same_wwn_hex(kMakerSwitch.data(), nullptr), 0);
  EXPECT_EQ(wwn_cim_is_same_wwn_hex(nullptr, nullptr), 0);
}

}  // namespace
