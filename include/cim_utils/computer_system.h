// The Pegasus face: class ComputerSystem, what a provider of the switch's computer-system instance
// asks about the own switch.
//
// Conventions:
// - Services are asked on the queue handle that the object was made with.
// - Texts returned are in a buffer of the object, overwritten by the next call that returns one.
#pragma once

#include <cim_utils/export.h>
#include <cim_utils/provider_util.h>

class CIM_UTILS_EXPORT ComputerSystem {
 public:
  explicit ComputerSystem(int queue = ProviderUtil::mts_q);

  // The switch WWN as text; "N/A" when the switch identity service does not tell it.
  char* getName();

 private:
  // The handle is the first member: providers rely on its place.
  int queue_;
  char text_[256] = {};
};
