/* CMPI-face builders of the fabric, its VSANs, and what ties them together. The conventions are
 * those of cmpi_builders.h. */
#ifndef CIM_UTILS_CMPI_SWITCH_H
#define CIM_UTILS_CMPI_SWITCH_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The fabric, named by the domain manager's WWN of VSAN 1 or, without that, "PHYSICAL_FABRIC". Keys
 * "Name", "CreationClassName". Asks the domain manager and the VSAN manager for VSAN 1. The
 * property list is ignored. */
CIM_UTILS_EXPORT CMPIInstance* fabric_build_instance(const char* className, const char* nameSpace,
                                                     const char** propertyList,
                                                     const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fabric_fill_reference(const char* className, const char* nameSpace,
                                                       const CMPIBroker* broker);

/* A VSAN from its entry and the domain manager's record of it, both the caller's and in host order.
 * Keys "Name", "CreationClassName": the WWN text of an active VSAN, or sixteen zeros, a colon and
 * the number of a suspended one. The property list is ignored. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* vsan_build_instance(const char* className, const char* nameSpace,
                                                   const vsanNewEntry_t* vsan,
                                                   const mts_dm_sw_conf_* swConf,
                                                   const char** propertyList,
                                                   const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* vsan_fill_reference(const char* className, const char* nameSpace,
                                                     const vsanNewEntry_t* vsan,
                                                     const mts_dm_sw_conf_* swConf,
                                                     const CMPIBroker* broker);

/* A VSAN in the fabric: "GroupComponent" the VEXOR_AdminDomain, "PartComponent" the VEXOR_Vsan.
 * Asks what fabric_fill_reference asks. */
CIM_UTILS_EXPORT CMPIInstance* contained_domain_build_instance(const char* className,
                                                               const char* nameSpace,
                                                               const vsanNewEntry_t* vsan,
                                                               const mts_dm_sw_conf_* swConf,
                                                               const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* contained_domain_fill_reference(const char* className,
                                                                 const char* nameSpace,
                                                                 const vsanNewEntry_t* vsan,
                                                                 const mts_dm_sw_conf_* swConf,
                                                                 const CMPIBroker* broker);

/* The connectivity of a group of ports, known by a number: key and only property "InstanceID", its
 * decimal text. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* connectivity_collection_build_instance(const char* className,
                                                                      const char* nameSpace,
                                                                      int number,
                                                                      const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* connectivity_collection_fill_reference(const char* className,
                                                                        const char* nameSpace,
                                                                        int number,
                                                                        const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_SWITCH_H */
