// VEXOR_AdminDomain: the fabric, of which there is one.
#pragma once

#include <vector>

#include "providers/class.h"

namespace vexor::providers {

// The library's builders ask the switch for all they need.
struct Fabric {};

std::vector<Fabric> the_fabric(int32_t q);

// For associations that hold the fabric beside a record of another type.
CMPIObjectPath* fabric_reference(const Target& target);
CMPIInstance* fabric_instance(const Target& target);

}  // namespace vexor::providers
