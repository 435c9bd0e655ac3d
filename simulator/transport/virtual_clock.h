// The clock of the simulated platform. Waiting moves it; no time really passes.
#ifndef SIMULATOR_TRANSPORT_VIRTUAL_CLOCK_H
#define SIMULATOR_TRANSPORT_VIRTUAL_CLOCK_H

#include <algorithm>

#include "simulator/transport/message.h"

namespace switch_sim {

class VirtualClock {
 public:
  VirtualTime now() const { return now_; }
  void advance_to(VirtualTime time) { now_ = std::max(now_, time); }  // never backwards
  void reset() { now_ = VirtualTime{}; }

 private:
  VirtualTime now_{};
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_VIRTUAL_CLOCK_H
