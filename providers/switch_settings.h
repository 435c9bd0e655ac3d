// VEXOR_FCSwitchCapabilities and VEXOR_FCSwitchSettings: what the own switch can do and is set to.
#pragma once

#include <vector>

#include "providers/class.h"

namespace vexor::providers {

// The library's builders ask the switch for all they need.
struct OwnSwitch {};

std::vector<OwnSwitch> the_own_switch(int32_t q);

CMPIObjectPath* switch_capabilities_reference(const Target& target, const OwnSwitch&);
CMPIInstance* switch_capabilities_instance(const Target& target, const OwnSwitch&);
CMPIObjectPath* switch_settings_reference(const Target& target, const OwnSwitch&);
CMPIInstance* switch_settings_instance(const Target& target, const OwnSwitch&);

inline constexpr const char* kChangeableOfSwitchSettings[] = {"PreferredDomainID", "DomainIDLocked",
                                                              "PrincipalPriority", nullptr};
// Sends what differs from how the switch is set: a domain change can disturb the fabric, and
// clients send back all they have read.
void modify_switch_settings(int32_t q, const OwnSwitch&, const NewValues& values);

}  // namespace vexor::providers
