// The list of a fabric's physical switches over growing fabrics, with services that answer in
// constant time: what grows is the library's own work.
#include <benchmark/benchmark.h>
#include <cim_utils/collections.h>
#include <cim_utils/fabric_configuration.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <switch_platform/mts.h>
#include <switch_platform/records_vsan.h>

#include "bench/traces_aside.h"

namespace {

uint32_t switches;  // in VSAN 1, the only one

void put32(uint8_t* at, uint32_t value) {
  for (int i = 0; i < 4; ++i)
    at[i] = static_cast<uint8_t>(value >> (24 - 8 * i));
}

// The WWN that switch n shows in VSAN 1.
void put_wwn(uint8_t* at, uint32_t n) {
  const uint8_t start[] = {0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a};
  std::memcpy(at, start, sizeof start);
  at[6] = static_cast<uint8_t>(n);
  at[7] = 1;
}

uint8_t* give(void** reply, int32_t* length, size_t size) {
  *reply = std::calloc(size, 1);
  *length = static_cast<int32_t>(size);
  return static_cast<uint8_t*>(*reply);
}

}  // namespace

// Takes the place of the platform's.
int32_t cmi_req_resp(uint32_t opcode, uint32_t, const void* request, void** reply, int32_t* length,
                     int32_t, int32_t, uint32_t, int32_t, int32_t) {
  const auto* asked = static_cast<const uint8_t*>(request);
  switch (opcode) {
    case MTS_OPC_VSAN_ENTRY: {
      if (asked[523] != 0) return 1;  // behind VSAN 1 there is none
      uint8_t* message = give(reply, length, sizeof(vsan_message_));
      put32(message + 520, 1);
      put32(message + 552, 1);
      return 0;
    }
    case MTS_OPC_INTERCONNECT_ELEMENTS: {
      uint8_t* list = give(reply, length, 4 + 12 * static_cast<size_t>(switches));
      put32(list, switches);
      for (uint32_t n = 0; n < switches; ++n) {
        put_wwn(list + 4 + 12 * static_cast<size_t>(n), n);
        list[4 + 12 * static_cast<size_t>(n) + 10] = 1;
      }
      return 0;
    }
    case MTS_OPC_FABRIC_CONFIGURATION_DATA: {
      uint8_t* element = give(reply, length, 32);
      std::memcpy(element, asked + 4, 12);
      return 0;
    }
    default:
      return 1;
  }
}

namespace {

void AllPhysicalSwitches(benchmark::State& state) {
  const TracesAside aside;
  switches = static_cast<uint32_t>(state.range(0));
  for (auto _ : state) {
    GSList* list = nullptr;
    fcs_cim_get_physical_switch_wwn_lists(7, &list);
    if (cim_g_slist_length(list) != switches) state.SkipWithError("not all switches were read");
    cim_g_slist_destroy(list, nullptr);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(AllPhysicalSwitches)->RangeMultiplier(2)->Range(15, 239)->Complexity();

}  // namespace
