// The counters of FC interfaces: a pure function of the fabric's seed, the interface and the time.
#ifndef SIMULATOR_FABRIC_COUNTERS_H
#define SIMULATOR_FABRIC_COUNTERS_H

#include <array>
#include <cstdint>

#include "simulator/fabric/fabric.h"

namespace switch_sim {

// The words of a counter block: word n stands at byte 8 n of the record. Word 0 is not a counter.
using Counters = std::array<uint64_t, 75>;

// What the interface has counted since its switch started, `uptime_ms` milliseconds ago. Never
// falls with the time. An idle interface counts nothing; a steady one frames and bytes, and an
// error now and then; one in an error storm the same frames and a stream of errors. A port channel
// counts what its members do.
Counters counters_of(const Fabric& fabric, const Switch& element, const Interface& interface,
                     uint64_t uptime_ms);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_COUNTERS_H
