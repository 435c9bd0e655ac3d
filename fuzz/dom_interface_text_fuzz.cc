// Texts of a WWN and a domain.
#include <cim_utils/formats.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint8_t record[12];
  const int result = cim_get_hex_from_str_dom_interface(text.c_str(), record);
  fuzz::require((result == 0) == (text.length() == 19), "19 characters are read, no others");
  if (result != 0) return 0;

  uint8_t scanned[12] = {};
  fuzz::scan_hex(text.c_str(), 8, scanned);
  fuzz::scan_hex(text.c_str() + 17, 1, scanned + 8);
  fuzz::require(fuzz::same(record, scanned, 12), "WWN and domain are what their scans give");
  return 0;
}
