// Numbers that look random and are the same on every machine.
#ifndef SIMULATOR_FABRIC_RANDOM_H
#define SIMULATOR_FABRIC_RANDOM_H

#include <cstdint>

namespace switch_sim {

// The splitmix64 sequence: the same on every machine, unlike the standard distributions.
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}

  uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    uint64_t value = state_;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9U;
    value = (value ^ value >> 27) * 0x94D049BB133111EBU;
    return value ^ value >> 31;
  }

  // 0 to count - 1.
  uint64_t below(uint64_t count) { return next() % count; }

  bool one_in(uint64_t count) { return below(count) == 0; }

 private:
  uint64_t state_;
};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_RANDOM_H
