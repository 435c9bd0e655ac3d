// Texts of an IPv4 address with its mask.
#include <cim_utils/formats.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint8_t pair[8];
  const int result = cim_get_hex_from_str_ip_with_mask(text.c_str(), pair);

  unsigned v[8] = {};
  const int fields = std::sscanf(text.c_str(), "%u.%u.%u.%u/%u.%u.%u.%u", &v[0], &v[1], &v[2],
                                 &v[3], &v[4], &v[5], &v[6], &v[7]);
  fuzz::require((result == 0) == (fields == 8), "a text is read when the scan finds 8 numbers");
  if (result != 0) return 0;
  for (size_t i = 0; i < 4; ++i) {
    fuzz::require(pair[3 - i] == static_cast<uint8_t>(v[i]), "the address is that of the scan");
    fuzz::require(pair[7 - i] == static_cast<uint8_t>(v[4 + i]), "the mask is that of the scan");
  }

  char written[CIM_IP_WITH_MASK_TEXT_ROOM];
  cim_sprintf_ip_with_mask_hex(written, pair);
  uint8_t again[8];
  fuzz::require(cim_get_hex_from_str_ip_with_mask(written, again) == 0, "a written text is read");
  fuzz::require(fuzz::same(pair, again, 8), "a written text gives the same bytes");
  return 0;
}
