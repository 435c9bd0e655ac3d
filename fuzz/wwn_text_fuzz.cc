// WWN texts: the record and its text, and the interface index behind it.
#include <cim_utils/wwn_rules.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  wwn_ wwn;
  const int result = wwn_cim_get_hex_from_str_wwn(text.c_str(), &wwn);
  fuzz::require((result == 0) == (text.length() == 16), "16 characters are read, no others");

  for (const int32_t iscsi : {0, 1}) {
    uint32_t if_index = 0;
    const int found = wwn_cim_get_port_index_from_wwn(&if_index, text.c_str(), iscsi);
    fuzz::require(found == 0 || found == -1, "an index is found or not");
    fuzz::require(found == -1 || result == 0, "no index comes from a text that is no WWN");
  }
  if (result != 0) return 0;

  uint8_t scanned[8];
  fuzz::scan_hex(text.c_str(), 8, scanned);
  fuzz::require(fuzz::same(wwn.bytes, scanned, 8), "the bytes are those of the scan");

  char written[CIM_WWN_TEXT_ROOM];
  cim_sprintf_wwn(written, &wwn);
  wwn_ again;
  fuzz::require(wwn_cim_get_hex_from_str_wwn(written, &again) == 0, "a written text is read");
  fuzz::require(fuzz::same(wwn.bytes, again.bytes, 8), "a written text gives the same bytes");
  return 0;
}
