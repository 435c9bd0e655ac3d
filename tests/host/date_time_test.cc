#include "host/date_time.h"

#include <gtest/gtest.h>

namespace cim::host {
namespace {

TEST(DateTime, Prints_moments_in_UTC) {
  EXPECT_EQ(time_stamp_text(0), "19700101000000.000000+000");
  EXPECT_EQ(time_stamp_text(951782400123456), "20000229000000.123456+000");
  EXPECT_EQ(time_stamp_text(253402300799999999), "99991231235959.999999+000");
  EXPECT_EQ(time_stamp_text(253402300800000000), std::nullopt);
}

TEST(DateTime, Prints_intervals) {
  EXPECT_EQ(interval_text(0), "00000000000000.000000:000");
  EXPECT_EQ(interval_text(93784000005), "00000001020304.000005:000");
  EXPECT_EQ(interval_text(8639999999999999999), "99999999235959.999999:000");
  EXPECT_EQ(interval_text(8640000000000000000), std::nullopt);
}

TEST(DateTime, Reads_moments_with_their_offset_from_UTC) {
  EXPECT_EQ(microseconds_of("19700101000000.000000+000"), 0U);
  EXPECT_EQ(microseconds_of("20000229000000.123456+000"), 951782400123456U);
  EXPECT_EQ(microseconds_of("19700101010000.000000+060"), 0U);
  EXPECT_EQ(microseconds_of("19691231230000.000000-060"), 0U);
  EXPECT_EQ(microseconds_of("19691231230000.000000-061"), 60000000U);
}

TEST(DateTime, Has_no_number_for_a_moment_before_1970) {
  EXPECT_EQ(microseconds_of("19691231235959.999999+000"), std::nullopt);
  EXPECT_EQ(microseconds_of("19700101000000.000000+001"), std::nullopt);
}

TEST(DateTime, Reads_intervals) {
  EXPECT_EQ(microseconds_of("00000001020304.000005:000"), 93784000005U);
  EXPECT_TRUE(is_interval("00000001020304.000005:000"));
  EXPECT_FALSE(is_interval("20000229000000.123456+000"));
}

TEST(DateTime, Takes_asterisks_for_the_lowest_value) {
  EXPECT_EQ(microseconds_of("19700102******.******+000"), 86400000000U);
  EXPECT_EQ(microseconds_of("19700101000000.12****+000"), 120000U);
}

TEST(DateTime, Refuses_what_is_none) {
  for (const char* text : {"", "rubbish", "20001329000000.123456+000", "2000022900000.123456+0000"})
    EXPECT_EQ(microseconds_of(text), std::nullopt) << text;
}

}  // namespace
}  // namespace cim::host
