// Associations of the switch as hardware: what ties product, chassis, modules, the physical sides
// of ports, ports and switches together.
#pragma once

#include "providers/linked_object.h"

namespace vexor::providers {

// The product and its chassis.
std::vector<LinkedPair> product_parts(int32_t q);
std::vector<LinkedPair> product_parts_of(int32_t q, int end, const ObjectName& object);

// The chassis and the own switch.
std::vector<LinkedPair> switch_packages(int32_t q);
std::vector<LinkedPair> switch_packages_of(int32_t q, int end, const ObjectName& object);

// The physical side of every own port and the port; the chassis and its modules.
std::vector<LinkedPair> realized(int32_t q);
std::vector<LinkedPair> realized_of(int32_t q, int end, const ObjectName& object);

// The modules and their ports, Fibre Channel and Ethernet ones.
std::vector<LinkedPair> module_ports(int32_t q);
std::vector<LinkedPair> module_ports_of(int32_t q, int end, const ObjectName& object);

// The own switch with its modules and ports; every switch, and its part in a VSAN, with its ports
// at links and attachments.
std::vector<LinkedPair> system_devices(int32_t q);
std::vector<LinkedPair> system_devices_of(int32_t q, int end, const ObjectName& object);

// Every switch of the maker and its parts in the VSANs.
std::vector<LinkedPair> hosted_parts(int32_t q);
std::vector<LinkedPair> hosted_parts_of(int32_t q, int end, const ObjectName& object);

// The own switch, its Fibre Channel ports and the zone services with what they can do; the first
// two with how they are set.
std::vector<LinkedPair> element_capabilities(int32_t q);
std::vector<LinkedPair> element_capabilities_of(int32_t q, int end, const ObjectName& object);
std::vector<LinkedPair> element_settings(int32_t q);
std::vector<LinkedPair> element_settings_of(int32_t q, int end, const ObjectName& object);

}  // namespace vexor::providers
