// Fabrics made from a few numbers: the same numbers always give the same fabric.
#ifndef SIMULATOR_FABRIC_GENERATOR_H
#define SIMULATOR_FABRIC_GENERATOR_H

#include <string_view>

#include "simulator/fabric/fabric_file.h"

namespace switch_sim {

// `description` is a list such as "switches=8,ports=48,vsans=8,devices=200,seed=7"; what it leaves
// out is 3 switches, no ports, 2 VSANs, no devices, seed 1. Every switch gets that many FC ports;
// the switches are joined by links and the devices attached as far as there are ports. Devices for
// which there is no room are an error.
//
// "zones=8000,members=20000,aliases=2048" is the zoning of each VSAN; left out, there is none.
ReadFabric generate_fabric(std::string_view description);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_GENERATOR_H
