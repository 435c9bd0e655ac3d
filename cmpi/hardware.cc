#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/session.h>
#include <switch_platform/platform_manager.h>

#include "cmpi/builder.h"
#include "model/hardware.h"

using namespace cim_utils;

namespace {

class CmpiChassisTexts final : public model::ChassisTexts {
 public:
  const char* system_name() override { return CSgetName(mts_q); }
  const char* product_name() override { return chassis_id(); }
  const char* vendor() override { return "Vexor Systems"; }
  const char* model() override { return chassis_id(); }
  const char* version() override { return getSwitchVersion(); }

 private:
  static const char* chassis_id() {
    const char* id = pdb_get_chassis_id_string();
    return id != nullptr ? id : "";
  }
};

}  // namespace

CMPIObjectPath* product_fill_reference(const char* className, const char* nameSpace,
                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::product_reference(builder, className, nameSpace, texts));
}

CMPIInstance* product_build_instance(const char* className, const char* nameSpace,
                                     const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::product_instance(builder, className, nameSpace, texts));
}

CMPIObjectPath* physical_package_fill_reference(const char* nameSpace, const char* className,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::physical_package_reference(builder, className, nameSpace, texts));
}

CMPIInstance* physical_package_build_instance(const char* className, const char* nameSpace,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::physical_package_instance(builder, className, nameSpace, texts));
}

CMPIObjectPath* physical_element_fill_reference(const char* className, const char* nameSpace,
                                                const pm_port_info_* info,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::physical_element_reference(builder, className, nameSpace, info));
}

CMPIInstance* physical_element_build_instance(const char* className, const char* nameSpace,
                                              const pm_port_info_* info, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::physical_element_instance(builder, className, nameSpace, info, texts));
}

CMPIObjectPath* logical_module_fill_reference(const char* className, const char* nameSpace,
                                              const _vefcModuleEntry* module,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::logical_module_reference(builder, className, nameSpace, className, module));
}

CMPIInstance* logical_module_build_instance(const char* className, const char* nameSpace,
                                            const _vefcModuleEntry* module,
                                            const _entPhysicalEntry* entity,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::logical_module_instance(builder, className, nameSpace, className, module, entity));
}

CMPIObjectPath* switch_package_fill_reference(const char* className, const char* nameSpace,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::switch_package_reference(builder, className, nameSpace, texts));
}

CMPIInstance* switch_package_build_instance(const char* className, const char* nameSpace,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  CmpiChassisTexts texts;
  return to_cmpi(model::switch_package_instance(builder, className, className, nameSpace, texts));
}

CMPIObjectPath* switch_package_fill_reference_op(const char* className, const char* nameSpace,
                                                 const CMPIObjectPath* packageRef,
                                                 const CMPIObjectPath* systemRef,
                                                 const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, packageRef, systemRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIInstance* switch_package_build_instance_op(const char* className, const char* nameSpace,
                                               const CMPIObjectPath* packageRef,
                                               const CMPIObjectPath* systemRef,
                                               const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, packageRef, systemRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* realize_fill_reference(const char* className, const char* nameSpace,
                                       const CMPIObjectPath* physicalRef,
                                       const CMPIObjectPath* logicalRef, const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, physicalRef, logicalRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIInstance* realize_build_instance(const char* className, const char* nameSpace,
                                     const CMPIObjectPath* physicalRef,
                                     const CMPIObjectPath* logicalRef, const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, physicalRef, logicalRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* module_port_fill_reference(const char* className, const char* nameSpace,
                                           const CMPIObjectPath* moduleRef,
                                           const CMPIObjectPath* portRef,
                                           const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, moduleRef, portRef,
                                               "GroupComponent", "PartComponent", broker);
}

CMPIInstance* module_port_build_instance(const char* className, const char* nameSpace,
                                         const CMPIObjectPath* moduleRef,
                                         const CMPIObjectPath* portRef, const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, moduleRef, portRef,
                                               "GroupComponent", "PartComponent", broker);
}

CMPIObjectPath* product_physical_element_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* productRef,
                                                        const CMPIObjectPath* elementRef,
                                                        const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, productRef, elementRef,
                                               "GroupComponent", "PartComponent", broker);
}

CMPIInstance* product_physical_element_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* productRef,
                                                      const CMPIObjectPath* elementRef,
                                                      const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, productRef, elementRef,
                                               "GroupComponent", "PartComponent", broker);
}
