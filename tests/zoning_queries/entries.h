// The zone server's entries, as tests lay them out.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "tests/support/bytes.h"

namespace zoning_queries_test {

using test_support::Bytes;
using test_support::Record;

// A bit set of `size` bytes: the number of its bits, then bit id - 1 for each object in it.
inline Bytes bit_set(size_t size, const std::vector<uint32_t>& ids) {
  Bytes bytes = Record(size).be32(0, static_cast<uint32_t>(size - 4) * 8);
  for (uint32_t id : ids)
    bytes.at(4 + (id - 1) / 8) |= static_cast<uint8_t>(1U << ((id - 1) % 8));
  return bytes;
}

inline Bytes zone_set_entry(uint32_t vsan, uint32_t id, std::string_view name,
                            const std::vector<uint32_t>& zones = {}) {
  return Record(1344).host32(0, vsan).host32(4, id).text(16, name).put(84, bit_set(1260, zones));
}

struct ZoneChildren {
  std::vector<uint32_t> members = {};
  std::vector<uint32_t> aliases = {};
};
inline Bytes zone_entry(uint32_t vsan, uint32_t id, std::string_view name,
                        const ZoneChildren& children = {}, uint32_t attributes = 0) {
  return Record(872)
      .host32(0, vsan)
      .host32(4, id)
      .text(16, name)
      .put(84, bit_set(260, children.members))
      .put(344, bit_set(260, children.aliases))
      .host32(604, attributes);
}

inline Bytes alias_entry(uint32_t vsan, uint32_t id, std::string_view name,
                         const std::vector<uint32_t>& members = {}) {
  return Record(344).host32(0, vsan).host32(4, id).text(16, name).put(84, bit_set(260, members));
}

// A member: 24 bytes with the type at 20 and, first, the length of the value; then the value.
inline Bytes member_entry(uint8_t type, const Bytes& value) {
  return Record(24 + value.size())
      .host32(0, static_cast<uint32_t>(value.size()))
      .byte(20, type)
      .put(24, value);
}
// What of it the platform's parser is asked about.
inline Bytes head_of(const Bytes& member) {
  return Bytes(member.begin(), member.begin() + 24);
}

// GoogleTest's stack of traces keeps its memory. A member of this type in front of a fixture's
// ledger makes it before anything is counted.
struct TraceStack {
  TraceStack() { SCOPED_TRACE(""); }
};

// A text with its terminator.
inline Bytes terminated(std::string_view text) {
  Bytes bytes(text.begin(), text.end());
  bytes.push_back(0);
  return bytes;
}

}  // namespace zoning_queries_test
