#include "model/hardware.h"

#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>

#include "pegasus/builder.h"

// References are taken by value where the interface of ProviderUtil does.
// NOLINTBEGIN(performance-unnecessary-value-param)

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

constexpr char kLogicalModule[] = "VEXOR_LogicalModule";
constexpr char kSwitchPackage[] = "VEXOR_ComputerSystemPackage";

// This face's own texts: the vendor without its final s, and a fixed model and version.
class PegasusChassisTexts final : public model::ChassisTexts {
 public:
  const char* system_name() override { return system_.getName(); }
  const char* product_name() override { return system_.getElementName(); }
  const char* vendor() override { return "Vexor System"; }
  const char* model() override { return "QRX4400"; }
  const char* version() override { return "2.1"; }

 private:
  ComputerSystem system_{ProviderUtil::mts_q};
};

}  // namespace

CIMObjectPath ProviderUtil::product_fill_reference(const String& nameSpace, const char* className) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(model::product_reference(builder, className, nameSpace.getCString(), texts));
}

CIMInstance ProviderUtil::product_build_instance(const char* className, const String& nameSpace) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(model::product_instance(builder, className, nameSpace.getCString(), texts));
}

CIMObject ProviderUtil::product_build_object(const char* className, const String& nameSpace) {
  return CIMObject(product_build_instance(className, nameSpace));
}

CIMObjectPath ProviderUtil::physical_package_fill_reference(const String& nameSpace,
                                                            const char* className) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(
      model::physical_package_reference(builder, className, nameSpace.getCString(), texts));
}

CIMInstance ProviderUtil::physical_package_build_instance(const char* className,
                                                          const String& nameSpace) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(
      model::physical_package_instance(builder, className, nameSpace.getCString(), texts));
}

CIMObject ProviderUtil::physical_package_build_object(const char* className,
                                                      const String& nameSpace) {
  return CIMObject(physical_package_build_instance(className, nameSpace));
}

CIMObjectPath ProviderUtil::physical_element_fill_reference(const char* className,
                                                            const String& nameSpace,
                                                            pm_port_info_* info) {
  PegasusBuilder builder;
  return to_pegasus(
      model::physical_element_reference(builder, className, nameSpace.getCString(), info));
}

CIMInstance ProviderUtil::physical_element_build_instance(const char* className,
                                                          const String& nameSpace,
                                                          pm_port_info_* info) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(
      model::physical_element_instance(builder, className, nameSpace.getCString(), info, texts));
}

CIMObject ProviderUtil::physical_element_build_object(const char* className,
                                                      const String& nameSpace,
                                                      pm_port_info_* info) {
  return CIMObject(physical_element_build_instance(className, nameSpace, info));
}

CIMObjectPath ProviderUtil::logical_module_fill_reference(const String& className,
                                                          const String& nameSpace,
                                                          _vefcModuleEntry* module) {
  PegasusBuilder builder;
  return to_pegasus(model::logical_module_reference(
      builder, className.getCString(), nameSpace.getCString(), kLogicalModule, module));
}

CIMInstance ProviderUtil::logical_module_build_instance(const String& className,
                                                        const String& nameSpace,
                                                        _vefcModuleEntry* module,
                                                        _entPhysicalEntry* entity) {
  PegasusBuilder builder;
  return to_pegasus(model::logical_module_instance(
      builder, className.getCString(), nameSpace.getCString(), kLogicalModule, module, entity));
}

CIMObject ProviderUtil::logical_module_build_object(const String& className,
                                                    const String& nameSpace,
                                                    _vefcModuleEntry* module,
                                                    _entPhysicalEntry* entity) {
  return CIMObject(logical_module_build_instance(className, nameSpace, module, entity));
}

CIMObjectPath ProviderUtil::switch_package_fill_reference(char* className,
                                                          const String& nameSpace) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(
      model::switch_package_reference(builder, className, nameSpace.getCString(), texts));
}

CIMInstance ProviderUtil::switch_package_build_instance(char* className, const String& nameSpace) {
  PegasusBuilder builder;
  PegasusChassisTexts texts;
  return to_pegasus(model::switch_package_instance(builder, kSwitchPackage, className,
                                                   nameSpace.getCString(), texts));
}

CIMObject ProviderUtil::switch_package_build_object(char* className, const String& nameSpace) {
  return CIMObject(switch_package_build_instance(className, nameSpace));
}

CIMObjectPath ProviderUtil::realize_fill_reference(const char* className, const String& nameSpace,
                                                   CIMObjectPath physicalRef,
                                                   CIMObjectPath logicalRef) {
  return association_reference(className, nameSpace, physicalRef, logicalRef, "Antecedent",
                               "Dependent");
}

CIMInstance ProviderUtil::realize_build_instance(const char* className, const String& nameSpace,
                                                 CIMObjectPath physicalRef,
                                                 CIMObjectPath logicalRef) {
  return association_instance(className, nameSpace, physicalRef, logicalRef, "Antecedent",
                              "Dependent");
}

CIMObject ProviderUtil::realize_build_object(const char* className, const String& nameSpace,
                                             CIMObjectPath physicalRef, CIMObjectPath logicalRef) {
  return CIMObject(realize_build_instance(className, nameSpace, physicalRef, logicalRef));
}

// NOLINTEND(performance-unnecessary-value-param)
