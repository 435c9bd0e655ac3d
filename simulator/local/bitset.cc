// Bit sets as they stand in the records of the services:
//
//   byte 0   number of bits, 32-bit big-endian
//   byte 4   the bits: bit b is bit b % 8 (0 = least significant) of byte 4 + b / 8
//
// The bit set of a record takes 260 bytes, that of a zone set's zones 1260. A number that fits
// neither counts as 2048, so that a damaged record is never read past the smaller of the two.
#include <switch_platform/bitset.h>

#include <cstdint>

namespace {

constexpr uint32_t kUsualNumberOfBits = 2048;
constexpr uint32_t kLargestNumberOfBits = 10048;

int32_t number_of_bits(const uint8_t* bytes) {
  const uint32_t announced =
      static_cast<uint32_t>(bytes[0]) << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
  return static_cast<int32_t>(announced <= kLargestNumberOfBits ? announced : kUsualNumberOfBits);
}

bool is_set(const uint8_t* bytes, int32_t bit) {
  return (bytes[4 + bit / 8] >> (bit % 8) & 1) != 0;
}

}  // namespace

int32_t bitset_first_bit(const void* bitset) {
  return bitset_next_bit(bitset, -1);
}

int32_t bitset_next_bit(const void* bitset, int32_t previous) {
  if (bitset == nullptr || previous < -1) return -1;
  const auto* bytes = static_cast<const uint8_t*>(bitset);
  const int32_t size = number_of_bits(bytes);
  for (int32_t bit = previous; bit < size - 1;) {
    if (is_set(bytes, ++bit)) return bit;
  }
  return -1;
}

int32_t bitset_is_bit_set(const void* bitset, int32_t bit) {
  if (bitset == nullptr || bit < 0) return 0;
  const auto* bytes = static_cast<const uint8_t*>(bitset);
  return bit < number_of_bits(bytes) && is_set(bytes, bit) ? 1 : 0;
}
