#include "zoning/member_entries.h"

#include <cim_utils/zoning_identifiers.h>
#include <malloc.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

#include <switch_platform/records_zone_server.h>
#include <switch_platform/zone_server.h>

#include "zoning/zone_server_entries.h"

namespace cim_utils {
namespace {

constexpr size_t kHeader = sizeof(zs_member_entry_);
constexpr size_t kWwnSize = 8;
constexpr size_t kFcidSize = 4;
constexpr size_t kLunSize = 8;

bool is_text(zs_member_type type) {
  return type == ZS_MEMBER_ALIAS || type == ZS_MEMBER_TEXT || type == ZS_MEMBER_SYMBOLIC_NAME ||
         type == ZS_MEMBER_UNSIZED_TEXT;
}

// Bytes that a value of the type needs. Texts and unknown types need none.
size_t packed_size(zs_member_type type) {
  const int32_t length = is_text(type) ? 0 : get_member_value_length(type);
  return static_cast<size_t>(std::max(length, 0));
}

// Where the LUN stands in a packed value; 0 for a type without one.
size_t lun_offset(zs_member_type type) {
  switch (type) {
    case ZS_MEMBER_WWN_LUN:
    case ZS_MEMBER_WWN_LUN_2:
      return kWwnSize;
    case ZS_MEMBER_FCID_LUN:
    case ZS_MEMBER_FCID_LUN_2:
      return kFcidSize;
    default:
      return 0;
  }
}

// An entry in memory of its own, zero behind its end: the parser, which is not told where the reply
// ends, stays inside, and so does whoever follows its pointers.
class EntryCopy {
 public:
  EntryCopy(const uint8_t* from, size_t available) {
    std::copy_n(from, std::min(available, bytes_.size()), bytes_.begin());
  }
  const uint8_t* bytes() const { return bytes_.data(); }

  // Copies at most `size` bytes of what the parser points at.
  MemberValue copy(const void* from, size_t size) const {
    MemberValue value{};
    const auto* const first = static_cast<const uint8_t*>(from);
    std::copy_n(first, readable(first, std::min(size, value.size())), value.begin());
    return value;
  }
  // The same of a text, up to its terminator.
  MemberValue copy_text(const void* from, size_t size) const {
    const size_t bound = readable(static_cast<const uint8_t*>(from), size);
    return copy(from, bound > 0 ? strnlen(static_cast<const char*>(from), bound) : 0);
  }

 private:
  size_t readable(const uint8_t* from, size_t size) const {
    if (from == nullptr) return 0;
    const uint8_t* const end = bytes_.data() + bytes_.size();
    const std::less<> before;
    if (before(from, bytes_.data()) || before(end, from)) return size;  // the parser's own memory
    return std::min(size, static_cast<size_t>(end - from));
  }

  std::array<uint8_t, kHeader + sizeof(MemberValue)> bytes_{};
};

}  // namespace

size_t shown_length(int32_t told) {
  constexpr int32_t kLongest = ZS_CIM_MEMBER_ID_ROOM - 1;
  return static_cast<size_t>(told < 0 ? kLongest : std::min(told, kLongest));
}

MemberEntries::MemberEntries(CHeap<uint8_t> reply, int32_t announced)
    : reply_(std::move(reply)),
      size_(reply_ != nullptr ? malloc_usable_size(reply_.get()) : 0),
      count_(0) {
  const int32_t headers = whole_entries(reply_.get(), announced, kHeader);
  while (count_ < headers && rest_from(count_) >= kHeader + packed_size(type(count_)))
    ++count_;
}

size_t MemberEntries::offset_of(int32_t i) {
  return static_cast<size_t>(i) * kHeader;
}

zs_member_type MemberEntries::type(int32_t i) const {
  return static_cast<zs_member_type>(begin_of(i)[offsetof(zs_member_entry_, type)]);
}

MemberValue MemberEntries::value(int32_t i) const {
  MemberValue value{};
  if (i == 0) {
    std::copy_n(begin_of(0) + kHeader, std::min(rest_from(0) - kHeader, value.size() - 1),
                value.begin());
    return value;
  }
  const ParsedMember parsed = parse(i);
  value = parsed.value;
  if (const size_t behind = lun_offset(parsed.type); behind != 0)
    std::copy_n(parsed.lun.begin(), kLunSize, value.begin() + behind);
  return value;
}

ParsedMember MemberEntries::parse(int32_t i) const {
  const EntryCopy entry(begin_of(i), rest_from(i));
  ParsedMember parsed;
  uint8_t type = 0;
  int32_t length = 0;
  const void* value = nullptr;
  const void* lun = nullptr;
  if (zs_api_parse_member(entry.bytes(), &type, &length, &value, &lun) != 0) return parsed;
  parsed.type = static_cast<zs_member_type>(type);
  parsed.length = length;
  if (is_text(parsed.type)) {
    parsed.value = entry.copy_text(value, shown_length(length));
  } else if (const size_t in_front = lun_offset(parsed.type); in_front != 0) {
    parsed.value = entry.copy(value, in_front);
    parsed.lun = entry.copy(lun, kLunSize);
  } else {
    parsed.value = entry.copy(value, packed_size(parsed.type));
  }
  return parsed;
}

}  // namespace cim_utils
