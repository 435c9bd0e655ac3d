// The command `ports`: the ports of the switch, each with what is at its other end.
#ifndef TOOLS_PORTS_COMMAND_H_
#define TOOLS_PORTS_COMMAND_H_

#include <string>
#include <string_view>

#include "host/object_manager.h"

namespace vexor::tools {

/// A line for each port of the own switch, in the order of the switch. Everything comes from CIM
/// instances: VEXOR_FCPort, which holds the devices and the ports of the other switches, too;
/// VEXOR_EthernetPort; and one VEXOR_PhysicalComputerSystem for each switch that is a neighbour.
/// \throws CimError when the ports cannot be enumerated
std::string ports_table(cim::host::ObjectManager& manager, std::string_view name_space);

}  // namespace vexor::tools

#endif  // TOOLS_PORTS_COMMAND_H_
