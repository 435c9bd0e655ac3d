// Texts of an FC ID and a LUN.
#include <cim_utils/formats.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint8_t pair[12];
  const int result = cim_get_hex_from_str_fcid_lun(text.c_str(), pair);
  fuzz::require((result == 0) == (text.length() == 23), "23 characters are read, no others");
  if (result != 0) return 0;

  uint8_t scanned[12] = {};
  fuzz::scan_hex(text.c_str(), 3, scanned + 1);
  fuzz::scan_hex(text.c_str() + 7, 8, scanned + 4);
  fuzz::require(fuzz::same(pair, scanned, 12), "each half is what its scan gives");

  char written[CIM_FCID_LUN_TEXT_ROOM];
  cim_sprintf_fcid_lun_hex(written, pair);
  uint8_t again[12];
  fuzz::require(cim_get_hex_from_str_fcid_lun(written, again) == 0, "a written text is read");
  fuzz::require(fuzz::same(pair, again, 12), "a written text gives the same bytes");
  return 0;
}
