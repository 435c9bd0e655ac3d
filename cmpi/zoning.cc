#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_zoning.h>

#include "cmpi/builder.h"
#include "model/zoning_classes.h"

using namespace cim_utils;

CMPIObjectPath* zone_set_fill_reference(const char* className, const char* nameSpace,
                                        const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_set_reference(builder, className, nameSpace, instanceId));
}

CMPIInstance* zone_set_build_instance(const char* className, const char* nameSpace,
                                      const zs_cim_zone_set_* zoneSet, const char** propertyList,
                                      const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_set_instance(builder, className, nameSpace, zoneSet, propertyList));
}

CMPIObjectPath* zone_fill_reference(const char* className, const char* nameSpace,
                                    const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_reference(builder, className, nameSpace, instanceId));
}

CMPIInstance* zone_build_instance(const char* className, const char* nameSpace,
                                  const zs_cim_zone_* zone, const char** propertyList,
                                  const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_instance(builder, className, nameSpace, zone, propertyList));
}

CMPIObjectPath* zone_alias_fill_reference(const char* className, const char* nameSpace,
                                          const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_alias_reference(builder, className, nameSpace, instanceId));
}

CMPIInstance* zone_alias_build_instance(const char* className, const char* nameSpace,
                                        const zs_cim_alias_* alias, const char** propertyList,
                                        const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_alias_instance(builder, className, nameSpace, alias, propertyList));
}

CMPIObjectPath* zone_member_fill_reference(const char* className, const char* nameSpace,
                                           const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_member_reference(builder, className, nameSpace, instanceId));
}

CMPIInstance* zone_member_build_instance(const char* className, const char* nameSpace,
                                         const zs_cim_zone_member_* member,
                                         const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_member_instance(builder, className, nameSpace, member, propertyList));
}

CMPIObjectPath* zone_service_fill_reference(const char* className, const char* nameSpace, int vsan,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_service_reference(builder, className, nameSpace, vsan));
}

CMPIInstance* zone_service_build_instance(const char* className, const char* nameSpace, int vsan,
                                          const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_service_instance(builder, className, nameSpace, vsan));
}

CMPIObjectPath* zone_cap_fill_reference(const char* className, const char* nameSpace,
                                        const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_capabilities_reference(builder, className, nameSpace, instanceId));
}

CMPIInstance* zone_cap_build_instance(const char* className, const char* nameSpace,
                                      const char* instanceId, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_capabilities_instance(builder, className, nameSpace, instanceId));
}

CMPIObjectPath* zmoc_fill_reference_zoneSetZone(const char* className, const char* nameSpace,
                                                const char* zoneSetId, const char* zoneId,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_set_zone_reference(builder, className, nameSpace, zoneSetId, zoneId));
}

CMPIInstance* zmoc_build_instance_zoneSetZone(const char* className, const char* nameSpace,
                                              const char* zoneSetId, const char* zoneId,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_set_zone_instance(builder, className, nameSpace, zoneSetId, zoneId));
}

CMPIObjectPath* zmoc_fill_reference(const char* className, const char* nameSpace,
                                    const zs_cim_zone_* zone, const zs_cim_alias_* alias,
                                    const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_zone_alias_reference(builder, className, nameSpace, zone, alias));
}

CMPIInstance* zmoc_build_instance(const char* className, const char* nameSpace,
                                  const zs_cim_zone_* zone, const zs_cim_alias_* alias,
                                  const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_zone_alias_instance(builder, className, nameSpace, zone, alias));
}

CMPIObjectPath* esd_fill_reference_zoneZoneMember(const char* className, const char* nameSpace,
                                                  const zs_cim_zone_* zone,
                                                  const zs_cim_zone_member_* member,
                                                  const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_zone_member_reference(builder, className, nameSpace, zone, member));
}

CMPIInstance* esd_build_instance_zoneZoneMember(const char* className, const char* nameSpace,
                                                const zs_cim_zone_* zone,
                                                const zs_cim_zone_member_* member,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::zone_zone_member_instance(builder, className, nameSpace, zone, member));
}

CMPIObjectPath* esd_fill_reference_zoneAliasZoneMember(const char* className, const char* nameSpace,
                                                       const zs_cim_alias_* alias,
                                                       const zs_cim_zone_member_* member,
                                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::zone_alias_zone_member_reference(builder, className, nameSpace, alias, member));
}

CMPIInstance* esd_build_instance_zoneAliasZoneMember(const char* className, const char* nameSpace,
                                                     const zs_cim_alias_* alias,
                                                     const zs_cim_zone_member_* member,
                                                     const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::zone_alias_zone_member_instance(builder, className, nameSpace, alias, member));
}

CMPIObjectPath* hosted_collection_fill_reference(const char* className, const char* nameSpace,
                                                 const vsanNewEntry_t* vsan,
                                                 const mts_dm_sw_conf_* swConf, int number,
                                                 const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_collection_reference(builder, className, nameSpace,
                                                    model::VsanRecords{vsan, swConf}, number));
}

CMPIInstance* hosted_collection_build_instance(const char* className, const char* nameSpace,
                                               const vsanNewEntry_t* vsan,
                                               const mts_dm_sw_conf_* swConf, int number,
                                               const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_collection_instance(builder, className, nameSpace,
                                                   model::VsanRecords{vsan, swConf}, number));
}

CMPIObjectPath* hosted_collection_fill_reference_zset(const char* className, const char* nameSpace,
                                                      const vsanNewEntry_t* vsan,
                                                      const mts_dm_sw_conf_* swConf,
                                                      const zs_cim_zone_set_* zoneSet,
                                                      const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_set_reference(builder, className, nameSpace,
                                                  model::VsanRecords{vsan, swConf}, zoneSet));
}

CMPIInstance* hosted_collection_build_instance_zset(const char* className, const char* nameSpace,
                                                    const vsanNewEntry_t* vsan,
                                                    const mts_dm_sw_conf_* swConf,
                                                    const zs_cim_zone_set_* zoneSet,
                                                    const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_set_instance(builder, className, nameSpace,
                                                 model::VsanRecords{vsan, swConf}, zoneSet));
}

CMPIObjectPath* hosted_collection_fill_reference_zone(const char* className, const char* nameSpace,
                                                      const vsanNewEntry_t* vsan,
                                                      const mts_dm_sw_conf_* swConf,
                                                      const zs_cim_zone_* zone,
                                                      const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_reference(builder, className, nameSpace,
                                              model::VsanRecords{vsan, swConf}, zone));
}

CMPIInstance* hosted_collection_build_instance_zone(const char* className, const char* nameSpace,
                                                    const vsanNewEntry_t* vsan,
                                                    const mts_dm_sw_conf_* swConf,
                                                    const zs_cim_zone_* zone,
                                                    const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_instance(builder, className, nameSpace,
                                             model::VsanRecords{vsan, swConf}, zone));
}

CMPIObjectPath* hosted_collection_fill_reference_zalias(
    const char* className, const char* nameSpace, const vsanNewEntry_t* vsan,
    const mts_dm_sw_conf_* swConf, const zs_cim_alias_* alias, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_alias_reference(builder, className, nameSpace,
                                                    model::VsanRecords{vsan, swConf}, alias));
}

CMPIInstance* hosted_collection_build_instance_zalias(const char* className, const char* nameSpace,
                                                      const vsanNewEntry_t* vsan,
                                                      const mts_dm_sw_conf_* swConf,
                                                      const zs_cim_alias_* alias,
                                                      const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_zone_alias_instance(builder, className, nameSpace,
                                                   model::VsanRecords{vsan, swConf}, alias));
}

CMPIObjectPath* zmoc_fill_reference_MemberCollection(const char* className, const char* nameSpace,
                                                     const CMPIObjectPath* collectionRef,
                                                     const CMPIObjectPath* memberRef,
                                                     const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, collectionRef, memberRef,
                                               "Collection", "Member", broker);
}

CMPIInstance* zmoc_build_instance_MemberCollection(const char* className, const char* nameSpace,
                                                   const CMPIObjectPath* collectionRef,
                                                   const CMPIObjectPath* memberRef,
                                                   const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, collectionRef, memberRef,
                                               "Collection", "Member", broker);
}

CMPIObjectPath* zone_hosted_collection_fill_reference(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* hostRef,
                                                      const CMPIObjectPath* collectionRef,
                                                      const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, hostRef, collectionRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIInstance* zhc_build_instance(const char* className, const char* nameSpace,
                                 const CMPIObjectPath* hostRef, const CMPIObjectPath* collectionRef,
                                 const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, hostRef, collectionRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* hosted_service_fill_reference(const char* className, const char* nameSpace,
                                              const vsanNewEntry_t* vsan,
                                              const mts_dm_sw_conf_* swConf,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_service_reference(builder, className, nameSpace,
                                                 model::VsanRecords{vsan, swConf}));
}

CMPIInstance* hosted_service_build_instance(const char* className, const char* nameSpace,
                                            const vsanNewEntry_t* vsan,
                                            const mts_dm_sw_conf_* swConf,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::hosted_service_instance(builder, className, nameSpace,
                                                model::VsanRecords{vsan, swConf}));
}
