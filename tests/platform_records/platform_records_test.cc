#include <gtest/gtest.h>

extern "C" int platform_records_are_laid_out_in_c(void);

namespace {

// The assertions are in layout.c: it would not have compiled.
TEST(PlatformRecords, AreLaidOutInCAsInCxx) {
  EXPECT_EQ(platform_records_are_laid_out_in_c(), 1);
}

}  // namespace
