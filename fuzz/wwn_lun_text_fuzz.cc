// Texts of a WWN and a LUN.
#include <cim_utils/formats.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint8_t pair[16];
  const int result = cim_get_hex_from_str_wwn_lun(text.c_str(), pair);
  fuzz::require((result == 0) == (text.length() == 33), "33 characters are read, no others");
  if (result != 0) return 0;

  uint8_t scanned[16];
  fuzz::scan_hex(text.c_str(), 8, scanned);
  fuzz::scan_hex(text.c_str() + 17, 8, scanned + 8);
  fuzz::require(fuzz::same(pair, scanned, 16), "each half is what its scan gives");

  char written[CIM_WWN_LUN_TEXT_ROOM];
  cim_sprintf_wwn_lun_hex(written, pair);
  uint8_t again[16];
  fuzz::require(cim_get_hex_from_str_wwn_lun(written, again) == 0, "a written text is read");
  fuzz::require(fuzz::same(pair, again, 16), "a written text gives the same bytes");
  return 0;
}
