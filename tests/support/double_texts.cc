// The text of a status code: fixed, unless Script::text_for says another. No lines are needed.
#include <switch_platform/mts.h>

#include "tests/support/double.h"

extern "C" const char* syserr2str(int32_t code) {
  return test_support::scripted_text("syserr2str", code, "platform error");
}
