#include "schema/names.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <unordered_set>

namespace cim::schema {
namespace {

TEST(Names, Differ_by_more_than_letter_case) {
  EXPECT_TRUE(equal_names("VEXOR_Vsan", "vexor_VSAN"));
  EXPECT_FALSE(equal_names("VEXOR_Vsan", "VEXOR_Vsa"));
  EXPECT_FALSE(equal_names("VEXOR_Vsan", "VEXOR_Vsam"));
  EXPECT_TRUE(equal_names("", ""));
}

TEST(Names, Fold_letters_only) {
  EXPECT_FALSE(equal_names("A[", "A{"));
  EXPECT_FALSE(equal_names("@", "`"));
}

TEST(Names, Are_one_key_of_a_map_in_any_letter_case) {
  const std::map<std::string, int, NameLess> map = {{"Name", 1}, {"VsanId", 2}};
  EXPECT_EQ(map.find("NAME")->second, 1);
  EXPECT_EQ(map.find("vsanid")->second, 2);
  EXPECT_EQ(map.find("Vsan"), map.end());
}

TEST(Names, Are_one_element_of_a_hash_set_in_any_letter_case) {
  const std::unordered_set<std::string, NameHash, NameEqual> set = {"Name"};
  EXPECT_TRUE(set.contains("nAME"));
  EXPECT_FALSE(set.contains("Nam"));
}

constexpr std::array<std::string_view, 3> kClasses = {"VEXOR_Vsan", "VEXOR_Zone", "CIM_System"};

TEST(Suggestion, Names_the_nearest_candidate) {
  EXPECT_EQ(suggestion("VEXOR_Vsam", kClasses), "; did you mean 'VEXOR_Vsan'?");
  EXPECT_EQ(suggestion("vexor_van", kClasses), "; did you mean 'VEXOR_Vsan'?");
}

TEST(Suggestion, Is_empty_when_nothing_is_near) {
  EXPECT_EQ(suggestion("Unrelated", kClasses), "");
  EXPECT_EQ(suggestion("", kClasses), "");
  EXPECT_EQ(suggestion("VEXOR_Vsan", {}), "");
}

TEST(Suggestion, Is_not_computed_for_absurd_lengths) {
  EXPECT_EQ(suggestion(std::string(10'000, 'A'), kClasses), "");
}

}  // namespace
}  // namespace cim::schema
