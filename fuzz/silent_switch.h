// A switch for text readers that ask for one: it knows its WWN and nothing else, and what is traced
// goes nowhere.
#ifndef FUZZ_SILENT_SWITCH_H
#define FUZZ_SILENT_SWITCH_H

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <switch_platform/mts.h>

#include "fuzz/fuzzed_text.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  fuzz::require(std::freopen("/dev/null", "w", stdout) != nullptr, "traces go nowhere");
  return 0;
}

int32_t cmi_req_resp(uint32_t opcode, uint32_t, const void*, void** reply, int32_t* length, int32_t,
                     int32_t, uint32_t, int32_t, int32_t) {
  if (opcode != MTS_OPC_SWITCH_WWN || reply == nullptr) return -1;
  constexpr uint8_t kWwn[8] = {0x20, 0, 0, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
  *reply = std::malloc(sizeof kWwn);
  std::memcpy(*reply, kWwn, sizeof kWwn);
  *length = sizeof kWwn;
  return 0;
}

#endif  // FUZZ_SILENT_SWITCH_H
