// The map between the zone server's and CIM's types of members, row by row and for every other
// number.
#include <cim_utils/zoning_identifiers.h>

#include <optional>

#include "tests/zoning/zoning_fixture.h"

namespace {

using zoning_test::without_line_numbers;

class MemberTypes : public zoning_test::ZoningFixture {};

constexpr uint32_t kUntouched = 7777;

struct Row {
  int zs_type;
  std::optional<uint32_t> shown_as;  // none: refused
  int32_t length;
};

constexpr Row kRows[] = {
    {1, 2, 8},      {2, 4, 4},      {3, 3, 4},     {4, 5, 64},     {109, {}, 8},   {225, 101, 16},
    {227, 102, 12}, {228, 12, 256}, {229, 7, 8},   {230, 12, 256}, {231, 6, 8},    {232, 8, 8},
    {233, 11, 12},  {234, 9, 24},   {235, 13, -1}, {241, 101, 16}, {243, 102, 12},
};

const Row* row_of(int zs_type) {
  for (const Row& row : kRows)
    if (row.zs_type == zs_type) return &row;
  return nullptr;
}

TEST_F(MemberTypes, EveryZoneServerTypeIsShownAsTheTableSaysAndAnyOtherRefused) {
  for (int type = 0; type < 256; ++type) {
    const Row* row = row_of(type);
    uint32_t cim_type = kUntouched;
    const int32_t result =
        get_cim_member_type_from_member_type(static_cast<zs_member_type>(type), &cim_type);
    if (row != nullptr && row->shown_as) {
      EXPECT_EQ(result, 0) << type;
      EXPECT_EQ(cim_type, *row->shown_as) << type;
    } else {
      EXPECT_EQ(result, -1) << type;
      EXPECT_EQ(cim_type, kUntouched) << type;
    }
  }
}

TEST_F(MemberTypes, EveryLengthIsThatOfTheTableAndAnyOtherMinusOne) {
  for (int type = 0; type < 256; ++type) {
    const Row* row = row_of(type);
    EXPECT_EQ(get_member_value_length(static_cast<zs_member_type>(type)),
              row == nullptr ? -1 : row->length)
        << type;
  }
  EXPECT_EQ(get_member_value_length(static_cast<zs_member_type>(-1)), -1);
  EXPECT_EQ(get_member_value_length(static_cast<zs_member_type>(256 + 1)), -1);
}

// By CIM type; what is not here is refused.
std::optional<int> asked_for_by(int cim_type) {
  constexpr int types[] = {1, 3, 2, 4, 231, 229, 232, 234, 109, 233, 230, 235};
  if (cim_type < 2 || cim_type > 13) return {};
  return types[cim_type - 2];
}

TEST_F(MemberTypes, TheCimTypes2To13AreReadAndAnyOtherRefused) {
  for (int cim_type = -2; cim_type < 300; ++cim_type) {
    uint8_t zs_type = 77;
    const int32_t result =
        get_member_type_from_cim_member_type(static_cast<zs_cim_member_type>(cim_type), &zs_type);
    EXPECT_EQ(result, asked_for_by(cim_type) ? 0 : -1) << cim_type;
    EXPECT_EQ(zs_type, asked_for_by(cim_type).value_or(77)) << cim_type;
  }
}

TEST_F(MemberTypes, DecodingTakesTheCimTypes2To12Only) {
  for (int cim_type = -2; cim_type < 300; ++cim_type) {
    uint8_t zs_type = 77;
    const bool known = cim_type != 13 && asked_for_by(cim_type);
    EXPECT_EQ(decode_cim_member_type(static_cast<zs_cim_member_type>(cim_type), &zs_type),
              known ? 0 : -1)
        << cim_type;
    EXPECT_EQ(zs_type, known ? *asked_for_by(cim_type) : 77) << cim_type;
  }
}

TEST_F(MemberTypes, OfTheTwoTextsThatAreShownAlikeTheSymbolicNameIsReadBack) {
  uint32_t shown = 0;
  EXPECT_EQ(get_cim_member_type_from_member_type(ZS_MEMBER_TEXT, &shown), 0);
  EXPECT_EQ(shown, 12u);
  uint8_t read = 0;
  EXPECT_EQ(get_member_type_from_cim_member_type(ZS_CIM_MEMBER_SYMBOLIC_NAME, &read), 0);
  EXPECT_EQ(read, 230);
}

TEST_F(MemberTypes, TheMappingOfIpv6AndUnsizedTextTellsItsPlace) {
  uint32_t cim_type = 0;
  get_cim_member_type_from_member_type(ZS_MEMBER_IPV4, &cim_type);
  EXPECT_EQ(printed(), "");
  get_cim_member_type_from_member_type(ZS_MEMBER_IPV6, &cim_type);
  get_cim_member_type_from_member_type(ZS_MEMBER_UNSIZED_TEXT, &cim_type);
  EXPECT_EQ(without_line_numbers(printed()),
            "Function get_cim_member_type_from_member_type Line N \n"
            "Function get_cim_member_type_from_member_type Line N \n");
  uint8_t zs_type = 0;
  get_member_type_from_cim_member_type(ZS_CIM_MEMBER_IPV4, &zs_type);
  EXPECT_EQ(printed(), "");
  get_member_type_from_cim_member_type(ZS_CIM_MEMBER_IPV6, &zs_type);
  get_member_type_from_cim_member_type(ZS_CIM_MEMBER_UNSIZED_TEXT, &zs_type);
  EXPECT_EQ(without_line_numbers(printed()),
            "Function get_member_type_from_cim_member_type Line N \n"
            "Function get_member_type_from_cim_member_type Line N \n");
}

TEST_F(MemberTypes, ACimTypeIsReadFromItsDecimalText) {
  uint8_t zs_type = 77;
  EXPECT_EQ(get_member_type_from_cim_member_type_str("11", &zs_type), 0);
  EXPECT_EQ(zs_type, 233);
  EXPECT_EQ(printed(), "Value in get_member_type_from_cim_member_type_str 11 \n");
  EXPECT_EQ(get_member_type_from_cim_member_type_str("2x", &zs_type), 0);
  EXPECT_EQ(zs_type, 1);
}

TEST_F(MemberTypes, ATextOfNoCimTypeIsRefused) {
  for (const char* text :
       {"", "x", "0", "1", "14", "101", "102", "-2", "4294967298", "99999999999999999999"}) {
    uint8_t zs_type = 77;
    EXPECT_EQ(get_member_type_from_cim_member_type_str(text, &zs_type), -1) << text;
    EXPECT_EQ(zs_type, 77) << text;
  }
}

TEST_F(MemberTypes, NullArgumentsAreFailures) {
  uint8_t zs_type = 77;
  EXPECT_EQ(get_cim_member_type_from_member_type(ZS_MEMBER_PORT_WWN, nullptr), -1);
  EXPECT_EQ(get_member_type_from_cim_member_type(ZS_CIM_MEMBER_PORT_WWN, nullptr), -1);
  EXPECT_EQ(decode_cim_member_type(ZS_CIM_MEMBER_PORT_WWN, nullptr), -1);
  EXPECT_EQ(get_member_type_from_cim_member_type_str("2", nullptr), -1);
  EXPECT_EQ(get_member_type_from_cim_member_type_str(nullptr, &zs_type), -1);
}

}  // namespace
