// The switches of the fabric: VEXOR_PhysicalComputerSystem, a device; VEXOR_LogicalComputerSystem,
// the part that a switch of our maker has in one VSAN; and VEXOR_Component, which ties a VSAN to
// the switches in it.
#pragma once

#include <cim_utils/fabric_configuration.h>

#include <memory>
#include <vector>

#include "providers/class.h"
#include "providers/vsan.h"

namespace vexor::providers {

// The number of characters of a WWN as text.
inline constexpr size_t kWwnText = 16;

// Every switch of a VSAN, each with its domain: one exchange with the configuration server, and one
// more for each. None in a VSAN where the own switch has no domain manager running. Throws Failure
// when the server does not tell them.
std::vector<fcs_cim_ie_> elements_of(int32_t q, uint32_t vsan);

// ---- devices ----

struct PhysicalSwitch {
  char wwn[kWwnText + 1];
  bool remote;  // not the switch that runs this agent
};

// The own switch, and every other one that is in a VSAN that is up, each once.
std::vector<PhysicalSwitch> physical_switches(int32_t q);
// By "Name". Looks in one VSAN after the other until the switch is found.
std::vector<PhysicalSwitch> physical_switches_named(int32_t q, const ObjectName& name);
CMPIObjectPath* physical_switch_reference(const Target& target, const PhysicalSwitch& device);
// The name of another switch is asked for once more than the library's builder does, by the domain
// that the switch has: the builder knows none.
CMPIInstance* physical_switch_instance(const Target& target, const PhysicalSwitch& device);

// What a client may change of the own switch: its name. Null at the end.
inline constexpr const char* kChangeableOfSwitch[] = {"ElementName", nullptr};
void modify_physical_switch(int32_t q, const PhysicalSwitch& device, const NewValues& values);

// ---- parts in VSANs ----

std::vector<fcs_cim_ie_> logical_switches(int32_t q);
// By "Name", which holds the VSAN's number: one VSAN is asked.
std::vector<fcs_cim_ie_> logical_switches_named(int32_t q, const ObjectName& name);
CMPIObjectPath* logical_switch_reference(const Target& target, const fcs_cim_ie_& element);
CMPIInstance* logical_switch_instance(const Target& target, const fcs_cim_ie_& element);

// ---- VEXOR_Component ----

struct Component {
  std::shared_ptr<const VsanRecord> vsan;  // shared by all its switches
  fcs_cim_ie_ element;
};

// The switches of every VSAN that is up.
std::vector<Component> components(int32_t q);
std::vector<Component> components_named(int32_t q, const ObjectName& name);
// The switches of a VSAN, or the VSANs of a switch.
std::vector<Component> components_of(int32_t q, const char* role, const ObjectName& object);
CMPIObjectPath* component_reference(const Target& target, const Component& component);
CMPIInstance* component_instance(const Target& target, const Component& component);
// The switch at the end "PartComponent": a part in the VSAN, or the device when another maker's
// switch has no part of its own.
CMPIObjectPath* component_part_reference(const Target& target, const Component& component);
CMPIInstance* component_part_instance(const Target& target, const Component& component);

}  // namespace vexor::providers
