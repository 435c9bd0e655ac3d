// What the zone server's replies hold, entry by entry. Nothing else in the library knows where in
// an entry a field stands, or how far a reply may be read.
#ifndef ZONING_ZONE_SERVER_ENTRIES_H
#define ZONING_ZONE_SERVER_ENTRIES_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <switch_platform/bitset.h>
#include <switch_platform/records_zone_server.h>

#include "common/c_heap.h"

namespace cim_utils {

// How many entries of the stride may be read: never more than were announced or than the block
// holds whole.
int32_t whole_entries(const void* reply, int32_t announced, size_t stride);

// Zone sets, zones or aliases in heap memory.
template <typename Entry>
struct Entries {
  CHeap<Entry> list;  // may be null
  int32_t count = 0;

  const Entry* begin() const { return list.get(); }
  const Entry* end() const { return list.get() + count; }
};

// The largest bit set of an entry, in bytes.
inline constexpr size_t kLargestBitSet = sizeof zs_zone_set_entry_::zones;

// Calls visit(id) for each object that a bit set of an entry holds, in rising order, until visit
// returns false. The set is copied first: whatever size it announces, nothing behind the entry is
// read.
template <size_t size, typename Visit>
void for_each_object(const uint8_t (&bits)[size], Visit visit) {
  uint8_t copy[kLargestBitSet] = {};
  static_assert(size <= sizeof copy);
  std::memcpy(copy, bits, size);
  for (int32_t bit = bitset_next_bit(copy, -1); bit >= 0; bit = bitset_next_bit(copy, bit))
    if (!visit(static_cast<uint32_t>(bit) + 1)) return;
}

// Whether a bit set of an entry holds the object.
template <size_t size>
bool holds_object(const uint8_t (&bits)[size], int32_t id) {
  if (id < 1) return false;
  uint8_t copy[kLargestBitSet] = {};
  static_assert(size <= sizeof copy);
  std::memcpy(copy, bits, size);
  return bitset_is_bit_set(copy, id - 1) != 0;
}

}  // namespace cim_utils

#endif  // ZONING_ZONE_SERVER_ENTRIES_H
