// Reading whole tables over growing fabrics. The last lines give the growth: linear, or worse.
#include <benchmark/benchmark.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/vsan.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/generated_fabric.h"
#include "bench/traces_aside.h"

namespace {

void AllVsans(benchmark::State& state) {
  const TracesAside aside;
  const int32_t q = queue_on("switches=1,vsans=" + std::to_string(state.range(0)), state);
  for (auto _ : state) {
    int32_t count = 0;
    vsanNewEntry_t* vsans = nullptr;
    vsan_cim_get_all_vsanEntry(q, &count, &vsans);
    if (count != state.range(0)) state.SkipWithError("not all VSANs were read");
    for (int32_t i = 0; i < count; ++i) {
      mts_dm_sw_conf_ conf{};
      dm_cim_get_dmEntry(q, vsans[i].vsan_index, 1, &conf);
      benchmark::DoNotOptimize(conf);
    }
    std::free(vsans);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(AllVsans)->RangeMultiplier(4)->Range(16, 4094)->Complexity();

}  // namespace
