// The switch as hardware: VEXOR_Product, VEXOR_PhysicalPackage, VEXOR_PhysicalElement and
// VEXOR_LogicalModule. The switch is one product in one chassis.
#pragma once

#include <switch_platform/records_platform_manager.h>

#include <vector>

#include "providers/class.h"
#include "providers/port_own.h"

namespace vexor::providers {

// The library's builders ask the switch for all they need.
struct Product {};
struct Chassis {};

std::vector<Product> the_product(int32_t q);
CMPIObjectPath* product_reference(const Target& target, const Product&);
CMPIInstance* product_instance(const Target& target, const Product&);

std::vector<Chassis> the_chassis(int32_t q);
CMPIObjectPath* chassis_reference(const Target& target, const Chassis&);
CMPIInstance* chassis_instance(const Target& target, const Chassis&);

// The physical side of an own port.
struct PhysicalPort {
  OwnPort port;
};

// Of every interface.
std::vector<PhysicalPort> physical_ports(int32_t q);
// By "Tag", the interface index: one exchange.
std::vector<PhysicalPort> physical_ports_named(int32_t q, const ObjectName& name);
CMPIObjectPath* physical_port_reference(const Target& target, const PhysicalPort& port);
CMPIInstance* physical_port_instance(const Target& target, const PhysicalPort& port);

// A line card, a supervisor or another module: its row of the module table.
struct Module {
  _vefcModuleEntry row;
};

// One exchange for each, and one more. Throws Failure when the platform manager stops answering on
// the way.
std::vector<Module> modules(int32_t q);
// By "DeviceID", the entity index: one exchange.
std::vector<Module> modules_named(int32_t q, const ObjectName& name);
CMPIObjectPath* module_reference(const Target& target, const Module& module);
// Asks for the module's physical entity, which its names are of.
CMPIInstance* module_instance(const Target& target, const Module& module);

// The number of the module that an interface is a port of: its slot. Result: false for channels,
// tunnels and the management port.
bool module_number_of(uint32_t if_index, uint32_t& number);

}  // namespace vexor::providers
