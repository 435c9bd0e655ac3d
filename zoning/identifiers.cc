// Instance ids of zoning objects and of members.
#include <cim_utils/zoning_identifiers.h>

#include <cstdio>
#include <cstring>

#include "zoning/decimal.h"
#include "zoning/trace.h"

namespace cim_utils {
namespace {

constexpr int32_t kFailed = -1;

// A text's parts between separators, as strtok takes them: no part is empty.
class Parts {
 public:
  Parts(const char* text, const char* separators) : separators_(separators) {
    std::memcpy(copy_, text, strnlen(text, sizeof copy_ - 1));
  }
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  // Null behind the last one. Valid as long as this object.
  const char* next() {
    char* from = started_ ? nullptr : copy_;
    started_ = true;
    return strtok_r(from, separators_, &state_);
  }

 private:
  char copy_[ZS_CIM_INSTANCE_ID_ROOM] = {};
  const char* separators_;
  char* state_ = nullptr;
  bool started_ = false;
};

// The next part as a number, traced and stored. False when there is none.
bool take_number(Parts& parts, const char* format, int32_t* number) {
  const char* part = parts.next();
  if (part == nullptr) return false;
  *number = decimal(part);
  std::printf("%s %d \n", format, *number);
  return true;
}

// Texts whose length in an instance id counts as that of the active flag.
bool has_length_of_its_text(zs_member_type zs_type) {
  return zs_type == ZS_MEMBER_SYMBOLIC_NAME || zs_type == ZS_MEMBER_ALIAS;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t zs_cim_get_generic_instance_id(int32_t vsan_id, int32_t object_id, int32_t active,
                                       char* dst) {
  if (dst == nullptr) return kFailed;
  std::snprintf(dst, ZS_CIM_INSTANCE_ID_ROOM, "%d_%d_%d", vsan_id, object_id, active);
  return 0;
}

int32_t zs_cim_get_fields_from_generic_instance_id(const char* text, int32_t* vsan_id,
                                                   int32_t* object_id, int32_t* active) {
  if (text == nullptr || vsan_id == nullptr || object_id == nullptr || active == nullptr) {
    return kFailed;
  }
  Parts parts(text, "_");
  return take_number(parts, "vsan_id_p", vsan_id) &&
                 take_number(parts, "generic_id_p", object_id) &&
                 take_number(parts, "active", active)
             ? 0
             : kFailed;
}

int32_t zs_cim_get_member_instance_id(uint32_t vsan_id, zs_member_type zs_type, const void* value,
                                      int32_t active, char* dst) {
  if (value == nullptr || dst == nullptr) return kFailed;
  uint32_t cim_type = 0;
  char value_text[ZS_CIM_INSTANCE_ID_ROOM] = {};
  if (get_cim_member_type_from_member_type(zs_type, &cim_type) != 0 ||
      get_cim_member_value_from_member_type_and_value(zs_type, value, value_text) != 0) {
    trace_place();
    return kFailed;
  }
  zs_cim_get_member_instance_id_with_cim_member(vsan_id, static_cast<zs_cim_member_type>(cim_type),
                                                value_text, active, dst);
  std::printf("Instance id in zs_cim_get_member_instance_id : %s \n", dst);
  return 0;
}

int32_t zs_cim_get_member_instance_id_with_cim_member(uint32_t vsan_id, zs_cim_member_type cim_type,
                                                      const char* value_text, int32_t active,
                                                      char* dst) {
  if (value_text == nullptr || dst == nullptr) return kFailed;
  std::snprintf(dst, ZS_CIM_INSTANCE_ID_ROOM, "%d^%d^%s^%d", static_cast<int>(vsan_id),
                static_cast<int>(cim_type), value_text, active);
  return 0;
}

int32_t zs_cim_get_fields_from_member_instance_id(const char* text, uint32_t* vsan_id,
                                                  uint8_t* zs_type, void* value_out,
                                                  int32_t* value_length, uint8_t* active,
                                                  int32_t raw) {
  if (text == nullptr || vsan_id == nullptr || zs_type == nullptr || value_out == nullptr ||
      value_length == nullptr || active == nullptr) {
    return kFailed;
  }
  Parts parts(text, "^");
  int32_t vsan = 0;
  if (!take_number(parts, "vsan_id in zs_cim_get_fields_from_member_instance_id", &vsan)) {
    return kFailed;
  }
  *vsan_id = static_cast<uint32_t>(vsan);
  if (get_member_type_from_cim_member_type_str(parts.next(), zs_type) != 0) return kFailed;
  const auto type = static_cast<zs_member_type>(*zs_type);

  const char* value_text = parts.next();
  const char* active_text = parts.next();
  if (value_text == nullptr || active_text == nullptr) return kFailed;
  std::printf("Temp str is %s \n", active_text);
  *active = decimal(active_text) == 1 ? 1 : 0;

  if (raw == 0) {
    if (get_member_value_from_cim_member_type_value(value_text, type, value_out) != 0) {
      return kFailed;
    }
  } else {
    // The flag's text, not the value's: deliberate, see the header.
    std::snprintf(static_cast<char*>(value_out), ZS_CIM_MEMBER_ID_ROOM, "%s", active_text);
    std::printf("member_value %s \n", active_text);
  }
  *value_length = has_length_of_its_text(type) ? static_cast<int32_t>(std::strlen(active_text)) + 1
                                               : get_member_value_length(type);
  return 0;
}

void print_zone(const zs_cim_zone_* zone) {
  if (zone == nullptr) return;
  std::printf("zone id %.*s\n  name %.*s\n", ZS_CIM_INSTANCE_ID_ROOM, zone->instance_id,
              ZS_CIM_NAME_SIZE, zone->name);
}

int32_t is_zone_readonly(uint32_t attribute_word) {
  return static_cast<int32_t>(attribute_word & 1U);
}
