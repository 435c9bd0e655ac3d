// FC ID texts.
#include <cim_utils/formats.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint8_t fcid[4];
  const int result = cim_get_hex_from_str_fcid(text.c_str(), fcid);
  fuzz::require((result == 0) == (text.length() == 6), "6 characters are read, no others");
  if (result != 0) return 0;

  uint8_t scanned[4] = {};
  fuzz::scan_hex(text.c_str(), 3, scanned + 1);
  fuzz::require(fuzz::same(fcid, scanned, 4), "the bytes are a zero and those of the scan");

  char written[CIM_FCID_TEXT_ROOM];
  cim_sprintf_fcid(written, fcid);
  uint8_t again[4];
  fuzz::require(cim_get_hex_from_str_fcid(written, again) == 0, "a written text is read");
  fuzz::require(fuzz::same(fcid, again, 4), "a written text gives the same bytes");
  return 0;
}
