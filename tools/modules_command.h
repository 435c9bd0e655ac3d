// The command `modules`: the chassis of the switch and what is in its slots.
#ifndef TOOLS_MODULES_COMMAND_H_
#define TOOLS_MODULES_COMMAND_H_

#include <string>
#include <string_view>

#include "host/object_manager.h"

namespace vexor::tools {

/// A line for the chassis and one for each module, in the order of the switch. Everything comes
/// from the instances of VEXOR_PhysicalPackage, VEXOR_LogicalModule and VEXOR_ModulePort.
/// \throws CimError when one of them cannot be enumerated
std::string modules_table(cim::host::ObjectManager& manager, std::string_view name_space);

}  // namespace vexor::tools

#endif  // TOOLS_MODULES_COMMAND_H_
