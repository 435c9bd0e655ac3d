/* The CMPI face of the switch as hardware: product, chassis, physical side of the interfaces,
 * modules, and the associations that tie them to the switch and to each other.
 *
 * The conventions of cmpi_builders.h apply. The vendor is "Vexor Systems", the version that of
 * getSwitchVersion, the model the chassis identifier. The part number and the serial number of the
 * chassis come from its serial PROM (platform manager); they are empty when it cannot be read.
 */
#ifndef CIM_UTILS_CMPI_HARDWARE_H
#define CIM_UTILS_CMPI_HARDWARE_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <switch_platform/records_platform_manager.h>
#include <switch_platform/records_port_manager.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The product. Keys "IdentifyingNumber" (the switch WWN, from the switch identity service), "Name"
 * (the chassis identifier), "Vendor", "Version". */
CIM_UTILS_EXPORT CMPIObjectPath* product_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* product_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIBroker* broker);

/* The chassis. Keys "CreationClassName" and "Tag" (the switch WWN). The reference takes the
 * namespace first, unlike the others, deliberately. */
CIM_UTILS_EXPORT CMPIObjectPath* physical_package_fill_reference(const char* nameSpace,
                                                                 const char* className,
                                                                 const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* physical_package_build_instance(const char* className,
                                                               const char* nameSpace,
                                                               const CMPIBroker* broker);

/* The physical side of an interface. Keys "Tag" (the interface index in decimal) and
 * "CreationClassName". The serial number is the interface's permanent address, the part number the
 * chassis's. */
CIM_UTILS_EXPORT CMPIObjectPath* physical_element_fill_reference(const char* className,
                                                                 const char* nameSpace,
                                                                 const pm_port_info_* info,
                                                                 const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* physical_element_build_instance(const char* className,
                                                               const char* nameSpace,
                                                               const pm_port_info_* info,
                                                               const CMPIBroker* broker);

/* A line card or a supervisor, from its row of the module table and of the table of physical
 * entities. Keys "DeviceID" (the entity index in decimal), "SystemName" (the switch WWN),
 * "SystemCreationClassName", "CreationClassName". The instance asks the platform manager for the
 * slot; "ModuleNumber" is one more than it, and left out when it is not known. "EnabledState",
 * "RequestedState" and "EnabledDefault" are arrays of one, deliberately. */
CIM_UTILS_EXPORT CMPIObjectPath* logical_module_fill_reference(const char* className,
                                                               const char* nameSpace,
                                                               const _vefcModuleEntry* module,
                                                               const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* logical_module_build_instance(const char* className,
                                                             const char* nameSpace,
                                                             const _vefcModuleEntry* module,
                                                             const _entPhysicalEntry* entity,
                                                             const CMPIBroker* broker);

/* The chassis of the own switch: "Antecedent" the VEXOR_PhysicalPackage, "Dependent" the
 * VEXOR_PhysicalComputerSystem; and the same of two given references. */
CIM_UTILS_EXPORT CMPIObjectPath* switch_package_fill_reference(const char* className,
                                                               const char* nameSpace,
                                                               const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* switch_package_build_instance(const char* className,
                                                             const char* nameSpace,
                                                             const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* switch_package_fill_reference_op(const char* className,
                                                                  const char* nameSpace,
                                                                  const CMPIObjectPath* packageRef,
                                                                  const CMPIObjectPath* systemRef,
                                                                  const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* switch_package_build_instance_op(const char* className,
                                                                const char* nameSpace,
                                                                const CMPIObjectPath* packageRef,
                                                                const CMPIObjectPath* systemRef,
                                                                const CMPIBroker* broker);

/* What a logical object is made of: "Antecedent" the physical one, "Dependent" the logical one. */
CIM_UTILS_EXPORT CMPIObjectPath* realize_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* physicalRef,
                                                        const CMPIObjectPath* logicalRef,
                                                        const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* realize_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* physicalRef,
                                                      const CMPIObjectPath* logicalRef,
                                                      const CMPIBroker* broker);

/* A port on a module: "GroupComponent" the module, "PartComponent" the port. */
CIM_UTILS_EXPORT CMPIObjectPath* module_port_fill_reference(const char* className,
                                                            const char* nameSpace,
                                                            const CMPIObjectPath* moduleRef,
                                                            const CMPIObjectPath* portRef,
                                                            const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* module_port_build_instance(const char* className,
                                                          const char* nameSpace,
                                                          const CMPIObjectPath* moduleRef,
                                                          const CMPIObjectPath* portRef,
                                                          const CMPIBroker* broker);

/* A physical part of a product: "GroupComponent" the product, "PartComponent" the part. */
CIM_UTILS_EXPORT CMPIObjectPath* product_physical_element_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* productRef,
    const CMPIObjectPath* elementRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* product_physical_element_build_instance(
    const char* className, const char* nameSpace, const CMPIObjectPath* productRef,
    const CMPIObjectPath* elementRef, const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_HARDWARE_H */
