#include "providers/class_table.h"

// Zone sets, zones, aliases, members, zone services, and what ties them together.
namespace vexor::providers {

ClassTable zoning_classes() {
  return {};
}

}  // namespace vexor::providers
