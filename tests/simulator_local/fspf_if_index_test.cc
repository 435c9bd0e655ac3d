#include "simulator/local/fspf_if_index.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <switch_platform/if_index.h>

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

TEST(FspfIfIndex, OnlyPlacesThatAnInterfaceOfTheTypeHasAreMade) {
  EXPECT_EQ(0x005003FFU, switch_sim::to_fspf_if_index(0x0A0003FF));
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0x0A010007));  // FCIP without a slot
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0x04020005));  // channels of two kinds
  EXPECT_EQ(std::nullopt, switch_sim::to_fspf_if_index(0x01020100));  // ports up to 255
}

// The bits above would be lost in a type of eight bits: 0x08080801 would look like an FC port.
TEST(FspfIfIndex, MoreThan24BitsAreNoIndex) {
  uint32_t if_index = 77;
  EXPECT_EQ(0, convert_fspf_if_index_to_if_index(htonl(0x00080801), &if_index));
  EXPECT_EQ(0x01010001U, if_index);
  if_index = 77;
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(htonl(0x08080801), &if_index));
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(htonl(0x01000000), &if_index));
  EXPECT_EQ(77U, if_index);
}

}  // namespace
