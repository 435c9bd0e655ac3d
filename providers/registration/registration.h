// The texts by which an object manager learns what the provider library serves, made from the table
// of classes, so that none is forgotten.
#pragma once

#include <string>

#include "providers/class.h"

namespace vexor::providers {

struct Registration {
  std::string name_space;  // of the classes
  std::string version;     // of the library
};

// For OpenPegasus: a MOF file for the namespace root/PG_InterOp.
std::string openpegasus_registration(ClassTable classes, const Registration& registration);

// For SFCB: a registration file. All classes are in one group, that is in one process: they share
// the queue to the switch and the library's lock.
std::string sfcb_registration(ClassTable classes, const Registration& registration);

}  // namespace vexor::providers
