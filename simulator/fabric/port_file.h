// The part of the fabric file about line cards, interfaces, links and devices.
#ifndef SIMULATOR_FABRIC_PORT_FILE_H
#define SIMULATOR_FABRIC_PORT_FILE_H

#include <functional>
#include <string>

#include "simulator/fabric/fabric.h"
#include "simulator/fabric/object_reader.h"

namespace switch_sim {

// Reads "modules" and "interfaces" of a switch, with the ports that only the modules tell of. The
// switch is sorted then.
void read_ports(const ObjectReader& object, Switch& element);

// Finds a switch by what a file calls it; throws when there is none.
using SwitchReference = std::function<Wwn(const Value&)>;

// Reads "links", "devices" and "counter_seed". The switches of the fabric must be sorted.
void read_links_and_devices(const ObjectReader& object, const SwitchReference& reference,
                            Fabric& fabric);

// The members that stand behind the others of a switch and of the fabric, each with a comma in
// front; nothing for what is empty.
std::string ports_text(const Switch& element);
std::string links_and_devices_text(const Fabric& fabric);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_PORT_FILE_H
