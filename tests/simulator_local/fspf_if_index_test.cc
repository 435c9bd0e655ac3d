#include "simulator/local/fspf_if_index.h"

#include <gtest/gtest.h>

namespace {

TEST(FspfIfIndex, IsMadeFromAPlatformIndex) {
  EXPECT_EQ(0x00081006U, switch_sim::to_fspf_if_index(0x01020006));
  EXPECT_EQ(0x00500007U, switch_sim::to_fspf_if_index(0x0A000007));
}

TEST(FspfIfIndex, AnIndexThatDoesNotFitHasNone) {
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0x0E000FFE));
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0x01020000));
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0));
}

}  // namespace
