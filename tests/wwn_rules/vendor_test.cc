// Which vendor made a WWN.
#include <gtest/gtest.h>

#include "tests/wwn_rules/twins.h"

namespace {

using namespace wwn_rules_test;

uint32_t vendor_id(const Bytes& bytes) {
  const wwn_ wwn = record_of(bytes);
  return wwn_cim_getVendorId(&wwn);
}

constexpr VendorTest kMaker = {"maker", wwn_cim_isVexorWwn, wwn_cim_isVexorWwn_str};
constexpr VendorTest kOthers[] = {
    {"McDATA", wwn_cim_isMcDataWwn, wwn_cim_isMcDataWwn_str},
    {"Brocade", wwn_cim_isBrocadeWwn, wwn_cim_isBrocadeWwn_str},
    {"Inrange", wwn_cim_isInrangeWwn, wwn_cim_isInrangeWwn_str},
    {"QLogic", wwn_cim_isQlogicWwn, wwn_cim_isQlogicWwn_str},
};

int is_of(const VendorTest& vendor, const Bytes& bytes) {
  const wwn_ wwn = record_of(bytes);
  const int result = vendor.record(&wwn);
  return vendor.array(bytes.data()) == result ? result : -99;
}

// The names of the vendors that claim the WWN.
std::string vendors_of(const Bytes& bytes) {
  std::string names;
  if (is_of(kMaker, bytes) != 0) names += "maker ";
  for (const VendorTest& vendor : kOthers) {
    if (is_of(vendor, bytes) != 0) names += std::string(vendor.name) + " ";
  }
  return names;
}

TEST(VendorId, OfNaaOneAndTwoIsBytesTwoToFour) {
  EXPECT_EQ(vendor_id({0x10, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}), 0x000DECU);
  EXPECT_EQ(vendor_id({0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}), 0x000DECU);
  EXPECT_EQ(vendor_id({0x2f, 0xff, 0xab, 0xcd, 0xef, 0x00, 0x00, 0x00}), 0xABCDEFU);
}

TEST(VendorId, OfNaaFiveIsTheNibblesBehindByteZero) {
  EXPECT_EQ(vendor_id({0x50, 0x06, 0x06, 0x9f, 0x12, 0x34, 0x56, 0x78}), 0x006069U);
  EXPECT_EQ(vendor_id({0x50, 0x00, 0xde, 0xc0, 0x12, 0x34, 0x56, 0x78}), 0x000DECU);
}

TEST(VendorId, OfNaaFiveLeavesOutTheLowNibbleOfByteZero) {
  EXPECT_EQ(vendor_id({0x5a, 0xbc, 0xde, 0xf7, 0x12, 0x34, 0x56, 0x78}), 0x0BCDEFU);
}

TEST(VendorId, OfAnyOtherNaaIsZero) {
  for (const uint8_t naa :
       {0x00, 0x30, 0x40, 0x60, 0x70, 0x80, 0x90, 0xa0, 0xb0, 0xc0, 0xd0, 0xe0, 0xf0}) {
    EXPECT_EQ(vendor_id({naa, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}), 0U) << int{naa};
  }
}

TEST(VendorId, OfANullWwnIsZero) {
  EXPECT_EQ(wwn_cim_getVendorId(nullptr), 0U);
}

TEST(VendorTests, KnowTheVendorOfAWwn) {
  EXPECT_EQ(vendors_of(kMakerSwitch), "maker ");
  EXPECT_EQ(vendors_of(kMcData), "McDATA ");
  EXPECT_EQ(vendors_of(kBrocade), "Brocade ");
  EXPECT_EQ(vendors_of(kInrange), "Inrange ");
  EXPECT_EQ(vendors_of(kQlogic), "QLogic ");
}

TEST(VendorTests, AnswerExactlyOneOrZero) {
  EXPECT_EQ(is_of(kMaker, kMakerSwitch), 1);
  EXPECT_EQ(is_of(kMaker, kMcData), 0);
  EXPECT_EQ(is_of(kOthers[0], kMcData), 1);
  EXPECT_EQ(is_of(kOthers[0], kMakerSwitch), 0);
}

TEST(VendorTests, KnowNobodyElse) {
  EXPECT_EQ(vendors_of(kNobody), "");
  EXPECT_EQ(vendors_of(kAllZero), "");
}

TEST(VendorTests, ReadEveryFormatOfAWwn) {
  EXPECT_EQ(vendors_of({0x20, 0x00, 0x08, 0x00, 0x88, 0, 0, 1}), "McDATA ");
  EXPECT_EQ(vendors_of({0x50, 0x80, 0x08, 0x80, 0, 0, 0, 1}), "McDATA ");
  EXPECT_EQ(vendors_of({0x50, 0x06, 0x06, 0x90, 0, 0, 0, 1}), "Brocade ");
  EXPECT_EQ(vendors_of({0x50, 0x06, 0x0d, 0xf0, 0, 0, 0, 1}), "Inrange ");
  EXPECT_EQ(vendors_of({0x50, 0x0c, 0x0d, 0xd0, 0, 0, 0, 1}), "QLogic ");
  EXPECT_EQ(vendors_of({0x50, 0x00, 0xde, 0xc0, 0, 0, 0, 1}), "maker ");
}

TEST(VendorTests, ClaimNoWwnOfNaaThreeFourAndSix) {
  for (const uint8_t naa : {0x30, 0x40, 0x60}) {
    EXPECT_EQ(vendors_of({naa, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}), "");
    EXPECT_EQ(vendors_of({naa, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}), "");
  }
}

TEST(VendorTests, AnswerZeroForANullWwn) {
  EXPECT_EQ(wwn_cim_isVexorWwn(nullptr), 0);
  EXPECT_EQ(wwn_cim_isVexorWwn_str(nullptr), 0);
  for (const VendorTest& vendor : kOthers) {
    SCOPED_TRACE(vendor.name);
    EXPECT_EQ(vendor.record(nullptr), 0);
    EXPECT_EQ(vendor.array(nullptr), 0);
  }
}

// The 26 further OUIs of the maker, in order.
constexpr uint32_t kFurther[] = {
    0x02FC00, 0x02FC01, 0x02FC02, 0x02FC03, 0x02FC04, 0x02FC05, 0x02FC06, 0x02FC07, 0x02FC08,
    0x02FC09, 0x02FC0A, 0x02FC0B, 0x02FC0C, 0x02FC0D, 0x02FC0E, 0x02FC0F, 0x02FC10, 0x02FC11,
    0x02FC12, 0x02FC13, 0x02FC14, 0x02FC15, 0x02FC16, 0x02FC17, 0x02FC18, 0x02FC19};

TEST(MakerTable, FindsEachOfItsTwentySixOuisAtItsPlace) {
  int32_t place = 0;
  for (const uint32_t oui : kFurther) {
    int32_t index = -1;
    EXPECT_EQ(wwn_cim_isVexor(oui, &index), 1) << oui;
    EXPECT_EQ(index, place++);
  }
  EXPECT_EQ(place, 26);
}

TEST(MakerTable, DoesNotHoldThePrimaryOui) {
  int32_t index = -1;
  EXPECT_EQ(wwn_cim_isVexor(0x000DEC, &index), 0);
  EXPECT_EQ(index, 26);
}

TEST(MakerTable, HoldsNoOtherVendorAndNotZero) {
  for (const uint32_t oui :
       {0x080088U, 0x006069U, 0x0060DFU, 0x00C0DDU, 0U, 0x02FC1AU, 0x02FBFFU, 0xFF02FC00U}) {
    int32_t index = -1;
    EXPECT_EQ(wwn_cim_isVexor(oui, &index), 0) << oui;
    EXPECT_EQ(index, 26);
  }
}

TEST(MakerTable, AnswersWithoutAPlaceForTheIndex) {
  EXPECT_EQ(wwn_cim_isVexor(0x02FC19, nullptr), 1);
  EXPECT_EQ(wwn_cim_isVexor(0x000DEC, nullptr), 0);
}

TEST(MakerTable, MakesAWwnTheMakersInEveryFormat) {
  EXPECT_EQ(vendors_of({0x10, 0x00, 0x02, 0xfc, 0x00, 0, 0, 1}), "maker ");
  EXPECT_EQ(vendors_of({0x20, 0x00, 0x02, 0xfc, 0x19, 0, 0, 1}), "maker ");
  EXPECT_EQ(vendors_of({0x50, 0x2f, 0xc0, 0xa1, 0, 0, 0, 1}), "maker ");
  EXPECT_EQ(vendors_of({0x20, 0x00, 0x02, 0xfc, 0x1a, 0, 0, 1}), "");
}

}  // namespace
