#include <cim_utils/zoning_records.h>
#include <gtest/gtest.h>

#include <type_traits>

extern "C" void zoning_record_sizes_in_c(size_t sizes[4]);

namespace {

TEST(ZoningRecords, AreLaidOutInCAsInCxx) {
  size_t sizes[4] = {};
  zoning_record_sizes_in_c(sizes);
  EXPECT_EQ(sizes[0], sizeof(zs_cim_zone_set_));
  EXPECT_EQ(sizes[1], sizeof(zs_cim_zone_));
  EXPECT_EQ(sizes[2], sizeof(zs_cim_alias_));
  EXPECT_EQ(sizes[3], sizeof(zs_cim_zone_member_));
}

// Whether an argument of one type may stand where the other is asked for.
template <class From, class To>
constexpr bool kPasses = std::is_convertible_v<From, To>;

TEST(ZoningRecords, TheCodesOfOneSideDoNotPassForThoseOfTheOther) {
  EXPECT_FALSE((kPasses<zs_member_type, zs_cim_member_type>));
  EXPECT_FALSE((kPasses<zs_cim_member_type, zs_member_type>));
  EXPECT_FALSE((kPasses<zs_object_kind, zs_member_parent_kind>));
  EXPECT_FALSE((kPasses<zs_member_parent_kind, zs_object_kind>));
  EXPECT_FALSE((kPasses<int, zs_object_kind>));
  EXPECT_FALSE((kPasses<uint8_t, zs_member_type>));
  EXPECT_FALSE((kPasses<uint32_t, zs_cim_member_type>));
}

TEST(ZoningRecords, TheTwoCodesOfParentsAreDifferentNumbers) {
  EXPECT_EQ(static_cast<int>(ZS_OBJECT_ZONE), 0);
  EXPECT_EQ(static_cast<int>(ZS_OBJECT_ZONE_SET), 1);
  EXPECT_EQ(static_cast<int>(ZS_OBJECT_ALIAS), 2);
  EXPECT_EQ(static_cast<int>(ZS_MEMBER_PARENT_ALIAS), 0);
  EXPECT_EQ(static_cast<int>(ZS_MEMBER_PARENT_ZONE), 1);
}

}  // namespace
