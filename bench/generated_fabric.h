// A generated fabric to measure on.
#ifndef BENCH_GENERATED_FABRIC_H
#define BENCH_GENERATED_FABRIC_H

#include <benchmark/benchmark.h>
#include <cim_utils/session.h>

#include <string>

#include "simulator/control/control.h"

// The queue to ask on, after installing the fabric; a description that is refused ends the
// benchmark.
inline int32_t queue_on(const std::string& fabric, benchmark::State& state) {
  if (const auto problem = switch_sim::control::install_generated(fabric))
    state.SkipWithError(problem->c_str());
  int32_t q = -1;
  init_mts(&q);
  return q;
}

#endif  // BENCH_GENERATED_FABRIC_H
