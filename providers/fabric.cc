#include "providers/fabric.h"

#include <cim_utils/cmpi_switch.h>

namespace vexor::providers {

std::vector<Fabric> the_fabric(int32_t) {
  return {Fabric{}};
}

CMPIObjectPath* fabric_reference(const Target& target) {
  return fabric_fill_reference(target.class_name, target.name_space, target.broker);
}

CMPIInstance* fabric_instance(const Target& target) {
  return fabric_build_instance(target.class_name, target.name_space, target.properties,
                               target.broker);
}

}  // namespace vexor::providers
