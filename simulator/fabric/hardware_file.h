// The part of the fabric file about the chassis of a switch.
#ifndef SIMULATOR_FABRIC_HARDWARE_FILE_H
#define SIMULATOR_FABRIC_HARDWARE_FILE_H

#include <string>

#include "simulator/fabric/fabric.h"
#include "simulator/fabric/object_reader.h"

namespace switch_sim {

// Reads "chassis" of a switch, whose modules were read.
void read_chassis(const ObjectReader& object, Switch& element);

// The member of a switch, with a comma in front; nothing for a chassis as it is without one.
std::string chassis_text(const Chassis& chassis);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_HARDWARE_FILE_H
