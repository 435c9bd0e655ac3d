/* The CMPI face of zoning: zone sets, zones, aliases and members, the zone service of a VSAN and
 * its capabilities, and what ties them together.
 *
 * The conventions of cmpi_builders.h apply. Zoning objects have one key, "InstanceID": the instance
 * id text of their record. A path of one, of a zone service or of capabilities that the broker
 * cannot make is said on standard output and returned as it came; an association leaves such an end
 * out.
 */
#ifndef CIM_UTILS_CMPI_ZONING_H
#define CIM_UTILS_CMPI_ZONING_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <cim_utils/zoning_records.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A zone set. Properties "ElementName" (its name) and "Active". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_set_fill_reference(const char* className,
                                                         const char* nameSpace,
                                                         const char* instanceId,
                                                         const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_set_build_instance(const char* className, const char* nameSpace,
                                                       const zs_cim_zone_set_* zoneSet,
                                                       const char** propertyList,
                                                       const CMPIBroker* broker);

/* A zone. Properties "ElementName", "Active", "ProtocolType", "ReadOnly", "ZoneType". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_fill_reference(const char* className, const char* nameSpace,
                                                     const char* instanceId,
                                                     const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_build_instance(const char* className, const char* nameSpace,
                                                   const zs_cim_zone_* zone,
                                                   const char** propertyList,
                                                   const CMPIBroker* broker);

/* A zone alias. Properties "ElementName" and "CollectionAlias" (its name) and "Active". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_alias_fill_reference(const char* className,
                                                           const char* nameSpace,
                                                           const char* instanceId,
                                                           const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_alias_build_instance(const char* className,
                                                         const char* nameSpace,
                                                         const zs_cim_alias_* alias,
                                                         const char** propertyList,
                                                         const CMPIBroker* broker);

/* A member of a zone or an alias. Properties "ConnectivityMemberID" (its display text) and
 * "ConnectivityMemberType". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_member_fill_reference(const char* className,
                                                            const char* nameSpace,
                                                            const char* instanceId,
                                                            const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_member_build_instance(const char* className,
                                                          const char* nameSpace,
                                                          const zs_cim_zone_member_* member,
                                                          const char** propertyList,
                                                          const CMPIBroker* broker);

/* The zone service of a VSAN. Keys "Name" (the VSAN number), "SystemName" (the VSAN's key text, for
 * which the VSAN manager and the domain manager are asked; the number when they do not answer),
 * "SystemCreationClassName", "CreationClassName". The instance asks the zone server for the default
 * policy, property "defaultZoningState". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_service_fill_reference(const char* className,
                                                             const char* nameSpace, int vsan,
                                                             const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_service_build_instance(const char* className,
                                                           const char* nameSpace, int vsan,
                                                           const CMPIBroker* broker);

/* What zone servers can do: constants. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* zone_cap_fill_reference(const char* className,
                                                         const char* nameSpace,
                                                         const char* instanceId,
                                                         const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zone_cap_build_instance(const char* className, const char* nameSpace,
                                                       const char* instanceId,
                                                       const CMPIBroker* broker);

/* A zone in a zone set, by their instance ids: "Collection", "Member". */
CIM_UTILS_EXPORT CMPIObjectPath* zmoc_fill_reference_zoneSetZone(const char* className,
                                                                 const char* nameSpace,
                                                                 const char* zoneSetId,
                                                                 const char* zoneId,
                                                                 const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zmoc_build_instance_zoneSetZone(const char* className,
                                                               const char* nameSpace,
                                                               const char* zoneSetId,
                                                               const char* zoneId,
                                                               const CMPIBroker* broker);

/* An alias in a zone: "Collection", "Member". */
CIM_UTILS_EXPORT CMPIObjectPath* zmoc_fill_reference(const char* className, const char* nameSpace,
                                                     const zs_cim_zone_* zone,
                                                     const zs_cim_alias_* alias,
                                                     const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zmoc_build_instance(const char* className, const char* nameSpace,
                                                   const zs_cim_zone_* zone,
                                                   const zs_cim_alias_* alias,
                                                   const CMPIBroker* broker);

/* A member of a zone: "ManagedElement", "SettingData". */
CIM_UTILS_EXPORT CMPIObjectPath* esd_fill_reference_zoneZoneMember(
    const char* className, const char* nameSpace, const zs_cim_zone_* zone,
    const zs_cim_zone_member_* member, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* esd_build_instance_zoneZoneMember(const char* className,
                                                                 const char* nameSpace,
                                                                 const zs_cim_zone_* zone,
                                                                 const zs_cim_zone_member_* member,
                                                                 const CMPIBroker* broker);

/* A member of an alias: "ManagedElement", "SettingData". */
CIM_UTILS_EXPORT CMPIObjectPath* esd_fill_reference_zoneAliasZoneMember(
    const char* className, const char* nameSpace, const zs_cim_alias_* alias,
    const zs_cim_zone_member_* member, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* esd_build_instance_zoneAliasZoneMember(
    const char* className, const char* nameSpace, const zs_cim_alias_* alias,
    const zs_cim_zone_member_* member, const CMPIBroker* broker);

/* The connectivity collection that a VSAN hosts: "Antecedent" the VSAN, "Dependent" the collection
 * of that number. */
CIM_UTILS_EXPORT CMPIObjectPath* hosted_collection_fill_reference(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, int number, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* hosted_collection_build_instance(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, int number, const CMPIBroker* broker);

/* A zone set that a VSAN hosts: "Antecedent", "Dependent". */
CIM_UTILS_EXPORT CMPIObjectPath* hosted_collection_fill_reference_zset(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_zone_set_* zoneSet, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* hosted_collection_build_instance_zset(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_zone_set_* zoneSet, const CMPIBroker* broker);

/* A zone that a VSAN hosts: "Antecedent", "Dependent". */
CIM_UTILS_EXPORT CMPIObjectPath* hosted_collection_fill_reference_zone(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_zone_* zone, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* hosted_collection_build_instance_zone(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_zone_* zone, const CMPIBroker* broker);

/* An alias that a VSAN hosts: "Antecedent", "Dependent". */
CIM_UTILS_EXPORT CMPIObjectPath* hosted_collection_fill_reference_zalias(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_alias_* alias, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* hosted_collection_build_instance_zalias(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_alias_* alias, const CMPIBroker* broker);

/* A member of a collection, by two references: "Collection", "Member". */
CIM_UTILS_EXPORT CMPIObjectPath* zmoc_fill_reference_MemberCollection(
    const char* className, const char* nameSpace, const CMPIObjectPath* collectionRef,
    const CMPIObjectPath* memberRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zmoc_build_instance_MemberCollection(
    const char* className, const char* nameSpace, const CMPIObjectPath* collectionRef,
    const CMPIObjectPath* memberRef, const CMPIBroker* broker);

/* A collection and its host, by two references: "Antecedent", "Dependent". */
CIM_UTILS_EXPORT CMPIObjectPath* zone_hosted_collection_fill_reference(
    const char* className, const char* nameSpace, const CMPIObjectPath* hostRef,
    const CMPIObjectPath* collectionRef, const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* zhc_build_instance(const char* className, const char* nameSpace,
                                                  const CMPIObjectPath* hostRef,
                                                  const CMPIObjectPath* collectionRef,
                                                  const CMPIBroker* broker);

/* The zone service that a VSAN hosts: "Antecedent" the VEXOR_Vsan, "Dependent" the
 * VEXOR_ZoneService. */
CIM_UTILS_EXPORT CMPIObjectPath* hosted_service_fill_reference(const char* className,
                                                               const char* nameSpace,
                                                               const vsanNewEntry_t* vsan,
                                                               const mts_dm_sw_conf_* swConf,
                                                               const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* hosted_service_build_instance(const char* className,
                                                             const char* nameSpace,
                                                             const vsanNewEntry_t* vsan,
                                                             const mts_dm_sw_conf_* swConf,
                                                             const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_ZONING_H */
