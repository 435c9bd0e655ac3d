#include <switch_platform/bitset.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> bits_of(const void* bitset) {
  std::vector<int> bits;
  for (int bit = bitset_next_bit(bitset, -1); bit != -1; bit = bitset_next_bit(bitset, bit)) {
    bits.push_back(bit);
  }
  return bits;
}

TEST(Bitset, AWalkVisitsTheSetBitsInRisingOrder) {
  const uint8_t bitset[] = {0, 0, 0, 24, 0x81, 0x00, 0x02};
  EXPECT_EQ(0, bitset_first_bit(bitset));
  EXPECT_EQ((std::vector<int>{0, 7, 17}), bits_of(bitset));
}

TEST(Bitset, ASetWithoutBitsHasNoFirst) {
  const uint8_t empty[] = {0, 0, 0, 0};
  const uint8_t zeros[] = {0, 0, 0, 16, 0, 0};
  EXPECT_EQ(-1, bitset_first_bit(empty));
  EXPECT_EQ(-1, bitset_first_bit(zeros));
}

TEST(Bitset, BitsBeyondTheNumberOfBitsDoNotCount) {
  const uint8_t bitset[] = {0, 0, 0, 9, 0x00, 0xFF};
  EXPECT_EQ((std::vector<int>{8}), bits_of(bitset));
  EXPECT_EQ(0, bitset_is_bit_set(bitset, 9));
}

TEST(Bitset, ABitIsTested) {
  const uint8_t bitset[] = {0, 0, 0, 16, 0x08, 0x80};
  EXPECT_NE(0, bitset_is_bit_set(bitset, 3));
  EXPECT_NE(0, bitset_is_bit_set(bitset, 15));
  EXPECT_EQ(0, bitset_is_bit_set(bitset, 4));
  EXPECT_EQ(0, bitset_is_bit_set(bitset, 16));
  EXPECT_EQ(0, bitset_is_bit_set(bitset, -1));
  EXPECT_EQ(0, bitset_is_bit_set(bitset, 2147483647));
}

TEST(Bitset, AnAnnouncedSizeAboveTheLargestIsTakenAsTheLargest) {
  std::vector<uint8_t> bitset(260, 0);
  bitset[0] = bitset[1] = bitset[2] = bitset[3] = 0xFF;
  bitset[259] = 0x80;
  EXPECT_EQ((std::vector<int>{2047}), bits_of(bitset.data()));
  EXPECT_EQ(-1, bitset_next_bit(bitset.data(), 2147483647));
  EXPECT_EQ(0, bitset_is_bit_set(bitset.data(), 2048));
}

TEST(Bitset, TheZonesOfAZoneSetTakeUpTo10048Bits) {
  std::vector<uint8_t> bitset(1260, 0);
  bitset[2] = 0x27;
  bitset[3] = 0x40;
  bitset[4 + 8000 / 8 - 1] = 0x80;
  bitset[1259] = 0x80;
  EXPECT_EQ((std::vector<int>{7999, 10047}), bits_of(bitset.data()));
  EXPECT_NE(0, bitset_is_bit_set(bitset.data(), 7999));
  bitset[3] = 0x41;  // more than there is room for
  EXPECT_EQ(-1, bitset_first_bit(bitset.data()));
}

TEST(Bitset, NothingIsSetInNull) {
  EXPECT_EQ(-1, bitset_first_bit(nullptr));
  EXPECT_EQ(-1, bitset_next_bit(nullptr, 0));
  EXPECT_EQ(0, bitset_is_bit_set(nullptr, 0));
}

TEST(Bitset, AStartBelowMinusOneFindsNothing) {
  const uint8_t bitset[] = {0, 0, 0, 8, 0xFF};
  EXPECT_EQ(-1, bitset_next_bit(bitset, -2));
}

}  // namespace
