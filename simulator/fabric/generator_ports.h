// Ports, links and devices of a generated fabric.
#ifndef SIMULATOR_FABRIC_GENERATOR_PORTS_H
#define SIMULATOR_FABRIC_GENERATOR_PORTS_H

#include "simulator/fabric/fabric_file.h"

namespace switch_sim {

inline constexpr uint64_t kMostGeneratedPorts = 768;
inline constexpr uint64_t kMostGeneratedDevices = 100000;

struct PortNumbers {
  uint64_t ports;    // of each switch
  uint64_t devices;  // of the fabric
  uint64_t seed;
};

// Adds line cards, ports, links and devices to a fabric of switches and VSANs. With no ports
// nothing is added. Fails when the devices do not fit behind the ports.
std::optional<FabricError> add_generated_ports(const PortNumbers& numbers, Fabric& fabric);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_GENERATOR_PORTS_H
