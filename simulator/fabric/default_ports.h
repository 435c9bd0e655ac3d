// Line cards, ports, links and devices of the default fabric.
#ifndef SIMULATOR_FABRIC_DEFAULT_PORTS_H
#define SIMULATOR_FABRIC_DEFAULT_PORTS_H

#include "simulator/fabric/fabric.h"

namespace switch_sim {

// The fabric must hold its three switches.
void add_default_ports(Fabric& fabric);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_DEFAULT_PORTS_H
