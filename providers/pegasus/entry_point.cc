// The function by which OpenPegasus finds this library's providers: by the names in their
// registration (PG_Provider.Name).
#include <Pegasus/Common/String.h>

#include "providers/pegasus/own_switch.h"
#include "providers/pegasus/physical_computer_system.h"

extern "C" PEGASUS_EXPORT Pegasus::CIMProvider* PegasusCreateProvider(const Pegasus::String& name) {
  if (Pegasus::String::equalNoCase(name, "VexorPhysicalComputerSystemProvider"))
    return new vexor::providers::pegasus::PhysicalComputerSystemProvider;
  if (Pegasus::String::equalNoCase(name, "VexorSwitchProvider"))
    return new vexor::providers::pegasus::SwitchProvider;
  return nullptr;
}
