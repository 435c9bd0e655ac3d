// Names of the sides of a device's attachment to the fabric.
#include <cim_utils/name_server.h>

#include "fuzz/fuzzed_text.h"
#include "fuzz/split_name.h"

namespace {

using Parts = std::vector<std::string>;

bool is_code(const Parts& parts) {
  const int32_t code = parts.empty() ? 0 : fuzz::number_of(parts[0]);
  return code == 2 || code == 3 || code == 11 || code == 27;
}

void link_name(const fuzz::Text& text, const Parts& parts) {
  int32_t code = 0;
  int32_t vsan = 0;
  char wwn[17] = {};
  const bool read = ns_cim_get_fields_from_name(text.c_str(), &code, &vsan, wwn) == 0;
  fuzz::require(read == (is_code(parts) && parts.size() == 3 && parts[2].size() == 16),
                "code, VSAN and WWN are read");
  if (!read) return;
  fuzz::require(
      code == fuzz::number_of(parts[0]) && vsan == fuzz::number_of(parts[1]) && wwn == parts[2],
      "a field is its part");
}

void physical_name(const fuzz::Text& text, const Parts& parts) {
  int32_t code = 0;
  char wwn[17] = {};
  const bool read = ns_cim_get_fields_from_physical_name(text.c_str(), &code, wwn) == 0;
  fuzz::require(read == (is_code(parts) && parts.size() == 2 && parts[1].size() == 16),
                "code and WWN are read");
  if (read) fuzz::require(code == fuzz::number_of(parts[0]) && wwn == parts[1], "as their parts");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  const Parts parts = fuzz::split_name(text.c_str(), 31);
  link_name(text, parts);
  physical_name(text, parts);
  return 0;
}
