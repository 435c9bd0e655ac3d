// The zone server's entries of members.
//
// A reply has a header of 24 bytes per entry, with the type in byte 20. The value of the first
// entry follows at byte 24 of the reply, which is where a second header would be: members are read
// by id, so there is one. Of further entries only what the platform's parser tells is taken.
#ifndef ZONING_MEMBER_ENTRIES_H
#define ZONING_MEMBER_ENTRIES_H

#include <cim_utils/zoning_records.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "common/c_heap.h"

namespace cim_utils {

// A value in memory of its own: zero behind its end, so that readers of any type stay inside.
using MemberValue = std::array<uint8_t, ZS_CIM_VALUE_ROOM>;

// What the platform's parser tells about an entry. A text is cut to its shown length.
struct ParsedMember {
  zs_member_type type{};
  int32_t length = 0;  // of the value in bytes; negative: unknown
  MemberValue value{};
  MemberValue lun{};
};

// How many characters of a text are shown whose length is told as this: those that fit a record
// when it is not known.
size_t shown_length(int32_t told);

class MemberEntries {
 public:
  // The block of zs_cmi_get_member and the number of entries that it told.
  MemberEntries(CHeap<uint8_t> reply, int32_t announced);

  // Entries that the block holds whole, each with a value of its type behind its header.
  int32_t count() const { return count_; }
  // The type byte of entry i.
  zs_member_type type(int32_t i) const;
  // The packed value of entry i.
  MemberValue value(int32_t i) const;
  // Asks the platform to take entry i apart. Type 0, which no member has, when it refuses.
  ParsedMember parse(int32_t i) const;

 private:
  // Where entry i begins, and how many bytes there are from there.
  const uint8_t* begin_of(int32_t i) const { return reply_.get() + offset_of(i); }
  size_t rest_from(int32_t i) const { return size_ - offset_of(i); }
  static size_t offset_of(int32_t i);

  CHeap<uint8_t> reply_;
  size_t size_;
  int32_t count_;
};

}  // namespace cim_utils

#endif  // ZONING_MEMBER_ENTRIES_H
