// Reads a member entry of the zone server.
#include <switch_platform/zone_server.h>
#include <switch_platform/zone_server_results.h>

#include <cstring>

#include "simulator/local/zone_member_layout.h"

using switch_sim::zone_member::kTypeOffset;
using switch_sim::zone_member::kValueOffset;

// The length is that of the packed value; of a text, that of the text with its NUL.
int32_t zs_api_parse_member(const void* entry, uint8_t* type, int32_t* length, const void** value,
                            const void** lun) {
  if (length != nullptr) *length = 0;
  if (value != nullptr) *value = nullptr;
  if (lun != nullptr) *lun = nullptr;
  if (entry == nullptr) return ZS_BAD_MEMBER;
  const auto* bytes = static_cast<const uint8_t*>(entry);
  if (type != nullptr) *type = bytes[kTypeOffset];
  const auto* layout = switch_sim::zone_member::layout_of(bytes[kTypeOffset]);
  if (layout == nullptr) return ZS_BAD_MEMBER;
  const uint8_t* packed = bytes + kValueOffset;
  if (value != nullptr) *value = packed;
  if (lun != nullptr && layout->lun_offset != 0) *lun = packed + layout->lun_offset;
  if (length != nullptr) {
    *length = layout->width;
    if (layout->is_text) {
      const void* end = memchr(packed, 0, layout->width);
      if (end != nullptr) {
        *length = static_cast<int32_t>(static_cast<const uint8_t*>(end) - packed) + 1;
      }
    }
  }
  return 0;
}
