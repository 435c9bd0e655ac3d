// Names of links between switches and of the ports at their ends.
#include <cim_utils/fspf.h>

#include <algorithm>

#include "fuzz/fuzzed_text.h"
#include "fuzz/split_name.h"

namespace {

void link_name(const fuzz::Text& text) {
  int32_t n[6] = {};
  const bool read =
      fspf_cim_get_fields_from_name(text.c_str(), &n[0], &n[1], &n[2], &n[3], &n[4], &n[5]) == 0;
  const auto parts = fuzz::split_name(text.c_str(), 31);
  const int32_t type = parts.empty() ? 0 : fuzz::number_of(parts[0]);
  const bool known = type == 1 || type == 4 || type == 10;
  fuzz::require(read == (known && parts.size() >= 6), "six numbers of a known type are read");
  if (!known) return;
  for (std::size_t i = 0; i < std::min<std::size_t>(parts.size(), 6); ++i)
    fuzz::require(n[i] == fuzz::number_of(parts[i]), "a number is its part");
}

void physical_name(const fuzz::Text& text) {
  char wwn[17] = {};
  int32_t if_index = 0;
  int32_t type = 0;
  const bool read =
      fspf_cim_get_fields_from_physical_name(text.c_str(), wwn, &if_index, &type) == 0;
  const auto parts = fuzz::split_name(text.c_str(), std::string::npos);
  const bool expected = text.length() <= 63 && parts.size() == 3 && parts[0].size() == 16;
  fuzz::require(read == expected, "WWN, interface and type are read");
  if (!read) return;
  fuzz::require(
      wwn == parts[0] && if_index == fuzz::number_of(parts[1]) && type == fuzz::number_of(parts[2]),
      "a field is its part");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  link_name(text);
  physical_name(text);
  return 0;
}
