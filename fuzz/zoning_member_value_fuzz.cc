// The texts of member values: the first byte is the type, the rest the text.
#include <cim_utils/zoning_identifiers.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "fuzz/silent_switch.h"

namespace {

constexpr uint8_t kUntouched = 0xa7;
constexpr size_t kKeyTextRoom = 128;

// Whether the text that is written of a value reads back to that value.
bool reads_back(zs_member_type type) {
  switch (type) {
    case ZS_MEMBER_LOCAL_INTERFACE:   // shown as a WWN, read as a name
    case ZS_MEMBER_DOMAIN_INTERFACE:  // two different texts
    case ZS_MEMBER_INTERFACE_WWN:     // never shown
      return false;
    default:
      return true;
  }
}

void write_and_read_again(zs_member_type type, const uint8_t* value, int32_t length) {
  char written[kKeyTextRoom];
  const int32_t shown = get_cim_member_value_from_member_type_and_value(type, value, written);
  fuzz::require((shown == 0) == (type != ZS_MEMBER_INTERFACE_WWN), "a value that was read shows");
  if (shown != 0 || !reads_back(type)) return;
  fuzz::require(std::find(std::begin(written), std::end(written), '\0') != std::end(written),
                "a text ends");
  uint8_t again[ZS_CIM_VALUE_ROOM] = {};
  if (type == ZS_MEMBER_DOMAIN_PORT && (value[0] == 0 || value[3] == 0)) return;  // low bytes
  fuzz::require(get_member_value_from_cim_member_type_value(written, type, again) == 0 &&
                    fuzz::same(value, again, static_cast<size_t>(length)),
                "a written value reads as it was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const auto type = static_cast<zs_member_type>(data[0]);
  const fuzz::Text text(data + 1, size - 1);
  const int32_t length = get_member_value_length(type);
  uint8_t value[ZS_CIM_VALUE_ROOM];
  std::fill(std::begin(value), std::end(value), kUntouched);
  const int32_t result = get_member_value_from_cim_member_type_value(text.c_str(), type, value);
  const auto* const behind = result == 0 ? value + length : value;
  fuzz::require(result == 0 || result == -1, "a result is 0 or -1");
  fuzz::require(result != 0 || length > 0, "what is read has a length");
  fuzz::require(std::all_of(behind, static_cast<const uint8_t*>(std::end(value)),
                            [](uint8_t byte) { return byte == kUntouched; }),
                "nothing is written behind a value, and nothing at all of a refused text");
  if (result == 0) write_and_read_again(type, value, length);

  for (int32_t mode = 0; mode < 4; ++mode) {
    uint8_t resolved[12] = {};
    (void)get_pwwn_with_ifindex_and_swwn(text.c_str(), mode, resolved);
  }
  return 0;
}
