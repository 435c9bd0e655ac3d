// The tables of classes: every CIM class that this library provides.
#pragma once

#include "providers/class.h"

namespace vexor::providers {

// Each area's own.
ClassTable switch_classes();
ClassTable port_classes();
ClassTable zoning_classes();
ClassTable hardware_classes();

// All of them.
ClassTable class_table();

}  // namespace vexor::providers
