// The switch as hardware: the product, the chassis, the physical side of its interfaces, its
// modules, and what ties the chassis to the switch.
#pragma once

#include <switch_platform/records_platform_manager.h>
#include <switch_platform/records_port_manager.h>

#include "model/builder.h"

namespace cim_utils::model {

// What the two faces tell differently of the chassis and of the product. A text stays valid until
// the next call.
class ChassisTexts {
 public:
  // The switch's computer-system name: its WWN. Asks the switch identity service.
  virtual const char* system_name() = 0;
  // The name of the product.
  virtual const char* product_name() = 0;
  virtual const char* vendor() = 0;
  virtual const char* model() = 0;
  virtual const char* version() = 0;

 protected:
  ~ChassisTexts() = default;
};

Ref product_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts);
Object product_instance(Builder& b, const char* cls, const char* ns, ChassisTexts& texts);

// The chassis. The instance asks the platform manager for the serial PROM; without it part number
// and serial number are empty.
Ref physical_package_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts);
Object physical_package_instance(Builder& b, const char* cls, const char* ns, ChassisTexts& texts);

// The physical side of an interface. Null records make nothing.
Ref physical_element_reference(Builder& b, const char* cls, const char* ns,
                               const pm_port_info_* info);
Object physical_element_instance(Builder& b, const char* cls, const char* ns,
                                 const pm_port_info_* info, ChassisTexts& texts);

// A line card or a supervisor. Null records make nothing. `key_class` is the class name in the
// reference's key, which differs between the faces.
Ref logical_module_reference(Builder& b, const char* cls, const char* ns, const char* key_class,
                             const _vefcModuleEntry* module);
Object logical_module_instance(Builder& b, const char* cls, const char* ns, const char* key_class,
                               const _vefcModuleEntry* module, const _entPhysicalEntry* entity);

// The chassis of the own switch. `instance_class` is the instance's class; the path's is `cls`.
Ref switch_package_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts);
Object switch_package_instance(Builder& b, const char* instance_class, const char* cls,
                               const char* ns, ChassisTexts& texts);

}  // namespace cim_utils::model
