// Domain/port texts and numbers.
#include <cim_utils/formats.h>

#include <climits>

#include "fuzz/fuzzed_text.h"

// A rejected text is traced on standard output.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
  fuzz::require(std::freopen("/dev/null", "w", stdout) != nullptr, "traces go nowhere");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const fuzz::Text text(data, size);
  uint32_t out[2] = {111, 222};
  const int result = parse_domain_port(text.c_str(), out);
  const bool stored = out[0] != 111 || out[1] != 222;
  if (text.length() == 0) {
    fuzz::require(result == 0 && !stored, "an empty text changes nothing");
  } else if (result == 0) {
    fuzz::require(out[0] >= 1 && out[0] <= INT_MAX, "a domain is a positive number");
    fuzz::require(out[1] >= 1 && out[1] <= INT_MAX, "a port is a positive number");
  } else {
    fuzz::require(result == -1 && !stored, "a rejected text changes nothing");
  }

  const auto length = static_cast<int32_t>(text.length());
  const int32_t whole = is_valid_number(text.c_str(), length);
  fuzz::require(whole >= -1, "a number of digits is not negative");
  fuzz::require(length == 0 || (whole >= 0) == (std::strspn(text.c_str(), "0123456789") ==
                                                static_cast<size_t>(length)),
                "digits and nothing else are a number");
  fuzz::require(is_valid_number(text.c_str(), length + 1) == -1, "the terminator is no digit");
  // Fewer checked characters never make a number of digits another one.
  for (int32_t n = 1; whole >= 0 && n < length; ++n) {
    fuzz::require(is_valid_number(text.c_str(), n) == whole,
                  "digits behind the checked ones count");
  }
  (void)is_valid_number(text.c_str(), 0);
  return 0;
}
