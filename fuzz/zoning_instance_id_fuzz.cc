// Instance ids of zoning objects and of members, read in every way.
#include <cim_utils/zoning_identifiers.h>

#include <algorithm>
#include <iterator>

#include "fuzz/silent_switch.h"

namespace {

void read_generic_id(const char* text) {
  int32_t vsan = 7;
  int32_t object = 7;
  int32_t active = 7;
  if (zs_cim_get_fields_from_generic_instance_id(text, &vsan, &object, &active) != 0) return;
  // What was read is written and read again.
  char written[ZS_CIM_INSTANCE_ID_ROOM];
  fuzz::require(zs_cim_get_generic_instance_id(vsan, object, active, written) == 0,
                "an id of numbers can be written");
  int32_t again[3] = {};
  fuzz::require(
      zs_cim_get_fields_from_generic_instance_id(written, &again[0], &again[1], &again[2]) == 0 &&
          again[0] == vsan && again[1] == object && again[2] == active,
      "a written id reads as it was written");
}

constexpr uint8_t kUntouched = 0xa7;

void read_member_id(const char* text, int32_t raw) {
  uint32_t vsan = 7;
  uint8_t type = 0;
  uint8_t value[ZS_CIM_VALUE_ROOM];
  std::fill(std::begin(value), std::end(value), kUntouched);
  int32_t length = -7;
  uint8_t active = 7;
  const int32_t result =
      zs_cim_get_fields_from_member_instance_id(text, &vsan, &type, value, &length, &active, raw);
  fuzz::require(result == 0 || result == -1, "a result is 0 or -1");
  fuzz::require(std::all_of(value + ZS_CIM_MEMBER_ID_ROOM, std::end(value),
                            [](uint8_t byte) { return byte == kUntouched; }),
                "a value stays within the room of a member id");
  if (result != 0) return;
  fuzz::require(active <= 1, "a member is active or not");
  fuzz::require(length >= -1 && length <= 288, "a length is that of a value or a text");
  if (raw != 0) return;
  fuzz::require(length > 0, "what was read has a length");
  // Members are shown, but for the interfaces of other switches.
  char written[ZS_CIM_INSTANCE_ID_ROOM];
  const int32_t shown = zs_cim_get_member_instance_id(vsan, static_cast<zs_member_type>(type),
                                                      value, active, written);
  fuzz::require((shown == 0) == (type != ZS_MEMBER_INTERFACE_WWN), "a member that was read shows");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  read_generic_id(text.c_str());
  read_member_id(text.c_str(), 0);
  read_member_id(text.c_str(), 1);
  return 0;
}
