// The table of classes: every CIM class that this library provides.
#pragma once

#include "providers/class.h"

namespace vexor::providers {

ClassTable class_table();

}  // namespace vexor::providers
