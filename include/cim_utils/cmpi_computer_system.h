/* CMPI-face builders of switches, of their membership in VSANs, and of the own switch's
 * capabilities and settings. The conventions are those of cmpi_builders.h.
 *
 * The class of a switch is "VEXOR_PhysicalComputerSystem" for the device,
 * "VEXOR_LogicalComputerSystem" for its part in a VSAN, or "VEXOR_ComputerSystem". */
#ifndef CIM_UTILS_CMPI_COMPUTER_SYSTEM_H
#define CIM_UTILS_CMPI_COMPUTER_SYSTEM_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <cim_utils/fabric_configuration.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A switch by the text of its WWN (16 characters). remote is zero for the own switch and anything
 * else for another one. Asks the domain manager for VSAN 1: without it "ElementName",
 * "PrimarySwitch", "IPAddress", "EnabledState" and "OtherIdentifyingInfo" are left out. Of another
 * switch the fabric distribution service is asked for the address, up to 20 seconds, and the fabric
 * configuration server for the name, up to 5 seconds; what they do not know is left out.
 * "OtherIdentifyingInfo" is "0" for every switch, deliberately. The property list is ignored. */
CIM_UTILS_EXPORT CMPIInstance* switch_build_instance_str(const char* className,
                                                         const char* nameSpace, const char* wwnText,
                                                         unsigned char remote,
                                                         const char** propertyList,
                                                         const CMPIBroker* broker);

/* The same by the WWN itself. */
CIM_UTILS_EXPORT CMPIInstance* switch_build_instance_wwn(const char* className,
                                                         const char* nameSpace, const wwn_* wwn,
                                                         unsigned char remote,
                                                         const char** propertyList,
                                                         const CMPIBroker* broker);

/* A switch as the fabric configuration server sees it, with its domain ID. "EnabledState" is 2 for
 * the own switch, else 5: asks the switch identity service. The property list is applied. */
CIM_UTILS_EXPORT CMPIInstance* switch_build_instance_ie(const char* className,
                                                        const char* nameSpace,
                                                        const fcs_cim_ie_* element,
                                                        const char** propertyList,
                                                        const CMPIBroker* broker);

/* A switch from the domain manager's list, with its domain ID. "EnabledState" is 2, left out when
 * the VSAN manager does not give VSAN 1. The property list is applied. */
CIM_UTILS_EXPORT CMPIInstance* switch_build_instance_dm(const char* className,
                                                        const char* nameSpace,
                                                        const mts_dm_sw_dom_list_info_* entry,
                                                        const char** propertyList,
                                                        const CMPIBroker* broker);

/* The path of a switch: keys "Name", its WWN text, and "CreationClassName". A path that the broker
 * does not give is returned as it came. */
CIM_UTILS_EXPORT CMPIObjectPath* switch_fill_reference_str(const char* className,
                                                           const char* nameSpace,
                                                           const char* wwnText,
                                                           const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* switch_fill_reference_wwn(const char* className,
                                                           const char* nameSpace, const wwn_* wwn,
                                                           const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* switch_fill_reference_ie(const char* className,
                                                          const char* nameSpace,
                                                          const fcs_cim_ie_* element,
                                                          const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* switch_fill_reference_dm(const char* className,
                                                          const char* nameSpace,
                                                          const mts_dm_sw_dom_list_info_* entry,
                                                          const CMPIBroker* broker);

/* The path of the own switch. Asks the switch identity service; "Name" is "N/A" without it. */
CIM_UTILS_EXPORT CMPIObjectPath* switch_fill_reference(const char* className, const char* nameSpace,
                                                       const CMPIBroker* broker);

/* A part of a whole, by two references: "GroupComponent", "PartComponent". */
CIM_UTILS_EXPORT CMPIInstance* component_build_instance(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* groupRef,
                                                        const CMPIObjectPath* partRef,
                                                        const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* component_fill_reference(const char* className,
                                                          const char* nameSpace,
                                                          const CMPIObjectPath* groupRef,
                                                          const CMPIObjectPath* partRef,
                                                          const CMPIBroker* broker);

/* A switch in a VSAN: "GroupComponent" the VEXOR_Vsan, "PartComponent" the switch of the element, a
 * VEXOR_LogicalComputerSystem when its WWN is one of the maker's and carries a VSAN number, else a
 * VEXOR_PhysicalComputerSystem. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* component_build_instance_ie(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const fcs_cim_ie_* element, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* component_fill_reference_ie(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const fcs_cim_ie_* element, const CMPIBroker* broker);

/* What the own switch can do. Key "InstanceID": the switch's WWN text, "N/A" when the switch
 * identity service does not tell it. The property list is applied. */
CIM_UTILS_EXPORT CMPIInstance* fcswitch_cap_build_instance(const char* className,
                                                           const char* nameSpace,
                                                           const char** propertyList,
                                                           const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcswitch_cap_fill_reference(const char* className,
                                                             const char* nameSpace,
                                                             const CMPIBroker* broker);

/* How the own switch is set in VSAN 1: "PreferredDomainID", "DomainIDLocked", "PrincipalPriority",
 * left out when the domain manager does not answer. Key as of the capabilities. The property list
 * is applied. */
CIM_UTILS_EXPORT CMPIInstance* fcswitch_set_build_instance(const char* className,
                                                           const char* nameSpace,
                                                           const char** propertyList,
                                                           const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcswitch_set_fill_reference(const char* className,
                                                             const char* nameSpace,
                                                             const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_COMPUTER_SYSTEM_H */
