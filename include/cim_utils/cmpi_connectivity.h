/* The CMPI face of what ties switches, ports, endpoints and collections together.
 *
 * The conventions of cmpi_builders.h apply. Most of these are associations of two given references;
 * those made from records build both references first. Null where the broker gives no path or no
 * instance that can be used.
 */
#ifndef CIM_UTILS_CMPI_CONNECTIVITY_H
#define CIM_UTILS_CMPI_CONNECTIVITY_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One thing known as two: "SystemElement", "SameElement".
 * The instance is a VEXOR_LogicalIdentity whatever class is given, deliberately; the reference
 * keeps the given class. */
CIM_UTILS_EXPORT CMPIInstance* logical_identity_build_instance(const char* className,
                                                               const char* nameSpace,
                                                               const CMPIObjectPath* systemRef,
                                                               const CMPIObjectPath* sameRef,
                                                               const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* logical_identity_fill_reference(const char* className,
                                                                 const char* nameSpace,
                                                                 const CMPIObjectPath* systemRef,
                                                                 const CMPIObjectPath* sameRef,
                                                                 const CMPIBroker* broker);

/* What a system hosts: "Antecedent" the host, "Dependent" the hosted. */
CIM_UTILS_EXPORT CMPIInstance* hosted_dependency_build_instance(const char* className,
                                                                const char* nameSpace,
                                                                const CMPIObjectPath* hostRef,
                                                                const CMPIObjectPath* hostedRef,
                                                                const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* hosted_dependency_fill_reference(const char* className,
                                                                  const char* nameSpace,
                                                                  const CMPIObjectPath* hostRef,
                                                                  const CMPIObjectPath* hostedRef,
                                                                  const CMPIBroker* broker);

/* An access point that a system hosts: "Antecedent" the system, "Dependent" the access point. */
CIM_UTILS_EXPORT CMPIInstance* hosted_access_point_build_instance(
    const char* className, const char* nameSpace, const CMPIObjectPath* systemRef,
    const CMPIObjectPath* accessPointRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* hosted_access_point_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* systemRef,
    const CMPIObjectPath* accessPointRef, const CMPIBroker* broker);

/* An access point that a device implements: "Antecedent" the device, "Dependent" the access point.
 */
CIM_UTILS_EXPORT CMPIInstance* device_sap_implementation_build_instance(
    const char* className, const char* nameSpace, const CMPIObjectPath* deviceRef,
    const CMPIObjectPath* accessPointRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* device_sap_implementation_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* deviceRef,
    const CMPIObjectPath* accessPointRef, const CMPIBroker* broker);

/* Two connected endpoints: "Antecedent", "Dependent". */
CIM_UTILS_EXPORT CMPIInstance* active_connection_build_instance(const char* className,
                                                                const char* nameSpace,
                                                                const CMPIObjectPath* fromRef,
                                                                const CMPIObjectPath* toRef,
                                                                const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* active_connection_fill_reference(const char* className,
                                                                  const char* nameSpace,
                                                                  const CMPIObjectPath* fromRef,
                                                                  const CMPIObjectPath* toRef,
                                                                  const CMPIBroker* broker);

/* A port of a node: "Collection" the port group, "Member" the port. */
CIM_UTILS_EXPORT CMPIInstance* fcnode_member_collection_build_instance(
    const char* className, const char* nameSpace, const CMPIObjectPath* groupRef,
    const CMPIObjectPath* portRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcnode_member_collection_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* groupRef,
    const CMPIObjectPath* portRef, const CMPIBroker* broker);

/* A member of a connectivity collection: "Collection", "Member". */
CIM_UTILS_EXPORT CMPIInstance* connectivity_member_collection_build_instance(
    const char* className, const char* nameSpace, const CMPIObjectPath* collectionRef,
    const CMPIObjectPath* memberRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* connectivity_member_collection_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* collectionRef,
    const CMPIObjectPath* memberRef, const CMPIBroker* broker);

/* A device of a system: "GroupComponent", "PartComponent". */
CIM_UTILS_EXPORT CMPIInstance* system_device_build_instance(const char* className,
                                                            const char* nameSpace,
                                                            const CMPIObjectPath* systemRef,
                                                            const CMPIObjectPath* deviceRef,
                                                            const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* system_device_fill_reference(const char* className,
                                                              const char* nameSpace,
                                                              const CMPIObjectPath* systemRef,
                                                              const CMPIObjectPath* deviceRef,
                                                              const CMPIBroker* broker);

/* The connection of a link between switches: "Antecedent" its far end, "Dependent" the end that
 * advertised it. interface is the queue handle on which the domain manager is asked for the
 * switches of both ends. */
CIM_UTILS_EXPORT CMPIInstance* active_connection_build_instance_fspf(const char* className,
                                                                     const char* nameSpace,
                                                                     const fspfLinkEntry* link,
                                                                     int interface,
                                                                     const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* active_connection_fill_reference_fspf(const char* className,
                                                                       const char* nameSpace,
                                                                       const fspfLinkEntry* link,
                                                                       int interface,
                                                                       const CMPIBroker* broker);

/* The connection of a device: "Antecedent" the fabric's side, "Dependent" the device's; the other
 * way round than for links, deliberately. */
CIM_UTILS_EXPORT CMPIInstance* active_connection_build_instance_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* active_connection_fill_reference_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    const CMPIBroker* broker);

/* The port at the end of a link that advertised it, on the switch of a domain. A switch of the
 * maker is seen as its part in the VSAN, another as a device. index is handed to the port's
 * builder. */
CIM_UTILS_EXPORT CMPIInstance* system_device_build_instance_fspf(
    int index, const char* className, const char* nameSpace, const mts_dm_sw_dom_list_info_* entry,
    const fspfLinkEntry* link, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* system_device_fill_reference_fspf(
    int index, const char* className, const char* nameSpace, const mts_dm_sw_dom_list_info_* entry,
    const fspfLinkEntry* link, const CMPIBroker* broker);

/* A device's port among the ports of its node. */
CIM_UTILS_EXPORT CMPIInstance* fcnode_member_collection_build_instance_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcnode_member_collection_fill_reference_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    const CMPIBroker* broker);

/* A service access point of another system, known by its keys alone: "SystemCreationClassName"
 * (VEXOR_PhysicalComputerSystem), "CreationClassName", "SystemName", "Name". */
CIM_UTILS_EXPORT CMPIInstance* rsap_build_instance(const char* className, const char* nameSpace,
                                                   const char* name, const char* systemName,
                                                   const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* rsap_fill_reference(const char* className, const char* nameSpace,
                                                     const char* name, const char* systemName,
                                                     const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_CONNECTIVITY_H */
