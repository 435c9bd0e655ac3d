#include <cim_utils/provider_util.h>

#include "model/zoning_classes.h"
#include "pegasus/builder.h"

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

CIMObjectPath ProviderUtil::zone_set_fill_reference(const String& nameSpace,
                                                    const String& className,
                                                    const zs_cim_zone_set_* zoneSet) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_set_reference(
      builder, className.getCString(), nameSpace.getCString(), model::InstanceId(zoneSet).get()));
}

CIMInstance ProviderUtil::zone_set_build_instance(const String& nameSpace, const String& className,
                                                  const zs_cim_zone_set_* zoneSet) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_set_instance(builder, className.getCString(),
                                             nameSpace.getCString(), zoneSet, nullptr));
}

CIMObject ProviderUtil::zone_set_build_object(const String& nameSpace, const String& className,
                                              const zs_cim_zone_set_* zoneSet) {
  return CIMObject(zone_set_build_instance(nameSpace, className, zoneSet));
}

CIMObjectPath ProviderUtil::zone_fill_reference(const String& nameSpace, const String& className,
                                                const zs_cim_zone_* zone) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_reference(builder, className.getCString(), nameSpace.getCString(),
                                          model::InstanceId(zone).get()));
}

CIMInstance ProviderUtil::zone_build_instance(const String& nameSpace, const String& className,
                                              const zs_cim_zone_* zone) {
  PegasusBuilder builder;
  return to_pegasus(
      model::zone_instance(builder, className.getCString(), nameSpace.getCString(), zone, nullptr));
}

CIMObject ProviderUtil::zone_build_object(const String& nameSpace, const String& className,
                                          const zs_cim_zone_* zone) {
  return CIMObject(zone_build_instance(nameSpace, className, zone));
}

CIMObjectPath ProviderUtil::zone_alias_fill_reference(const String& nameSpace,
                                                      const String& className,
                                                      const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_alias_reference(
      builder, className.getCString(), nameSpace.getCString(), model::InstanceId(alias).get()));
}

CIMInstance ProviderUtil::zone_alias_build_instance(const String& nameSpace,
                                                    const String& className,
                                                    const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_alias_instance(builder, className.getCString(),
                                               nameSpace.getCString(), alias, nullptr));
}

CIMObject ProviderUtil::zone_alias_build_object(const String& nameSpace, const String& className,
                                                const zs_cim_alias_* alias) {
  return CIMObject(zone_alias_build_instance(nameSpace, className, alias));
}

CIMObjectPath ProviderUtil::zone_member_fill_reference(const String& nameSpace,
                                                       const String& className,
                                                       const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_member_reference(
      builder, className.getCString(), nameSpace.getCString(), model::InstanceId(member).get()));
}

CIMInstance ProviderUtil::zone_member_build_instance(const String& nameSpace,
                                                     const String& className,
                                                     const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_member_instance(builder, className.getCString(),
                                                nameSpace.getCString(), member, nullptr));
}

CIMObject ProviderUtil::zone_member_build_object(const String& nameSpace, const String& className,
                                                 const zs_cim_zone_member_* member) {
  return CIMObject(zone_member_build_instance(nameSpace, className, member));
}

CIMObjectPath ProviderUtil::zone_service_fill_reference(const String& nameSpace,
                                                        const String& className, int vsan) {
  PegasusBuilder builder;
  return to_pegasus(
      model::zone_service_reference(builder, className.getCString(), nameSpace.getCString(), vsan));
}

CIMInstance ProviderUtil::zone_service_build_instance(const String& nameSpace,
                                                      const String& className, int vsan) {
  PegasusBuilder builder;
  return to_pegasus(
      model::zone_service_instance(builder, className.getCString(), nameSpace.getCString(), vsan));
}

CIMObject ProviderUtil::zone_service_build_object(const String& nameSpace, const String& className,
                                                  int vsan) {
  return CIMObject(zone_service_build_instance(nameSpace, className, vsan));
}

CIMObjectPath ProviderUtil::zone_cap_fill_reference(const String& nameSpace,
                                                    const String& className,
                                                    const char* instanceId) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_capabilities_reference(builder, className.getCString(),
                                                       nameSpace.getCString(), instanceId));
}

CIMInstance ProviderUtil::zone_cap_build_instance(const String& nameSpace, const String& className,
                                                  const char* instanceId) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_capabilities_instance(builder, className.getCString(),
                                                      nameSpace.getCString(), instanceId));
}

CIMObject ProviderUtil::zone_cap_build_object(const String& nameSpace, const String& className,
                                              const char* instanceId) {
  return CIMObject(zone_cap_build_instance(nameSpace, className, instanceId));
}

CIMObjectPath ProviderUtil::zmoc_fill_reference_zoneSetZone(const String& nameSpace,
                                                            const String& className,
                                                            const char* zoneSetId,
                                                            const char* zoneId) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_set_zone_reference(builder, className.getCString(),
                                                   nameSpace.getCString(), zoneSetId, zoneId));
}

CIMInstance ProviderUtil::zmoc_build_instance_zoneSetZone(const String& nameSpace,
                                                          const String& className,
                                                          const char* zoneSetId,
                                                          const char* zoneId) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_set_zone_instance(builder, className.getCString(),
                                                  nameSpace.getCString(), zoneSetId, zoneId));
}

CIMObject ProviderUtil::zmoc_build_object_zoneSetZone(const String& nameSpace,
                                                      const String& className,
                                                      const char* zoneSetId, const char* zoneId) {
  return CIMObject(zmoc_build_instance_zoneSetZone(nameSpace, className, zoneSetId, zoneId));
}

CIMObjectPath ProviderUtil::zmoc_fill_reference(const String& nameSpace, const String& className,
                                                const zs_cim_zone_* zone,
                                                const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_zone_alias_reference(builder, className.getCString(),
                                                     nameSpace.getCString(), zone, alias));
}

CIMInstance ProviderUtil::zmoc_build_instance(const String& nameSpace, const String& className,
                                              const zs_cim_zone_* zone,
                                              const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_zone_alias_instance(builder, className.getCString(),
                                                    nameSpace.getCString(), zone, alias));
}

CIMObject ProviderUtil::zmoc_build_object(const String& nameSpace, const String& className,
                                          const zs_cim_zone_* zone, const zs_cim_alias_* alias) {
  return CIMObject(zmoc_build_instance(nameSpace, className, zone, alias));
}

CIMObjectPath ProviderUtil::esd_fill_reference_zoneZoneMember(const String& nameSpace,
                                                              const String& className,
                                                              const zs_cim_zone_* zone,
                                                              const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_zone_member_reference(builder, className.getCString(),
                                                      nameSpace.getCString(), zone, member));
}

CIMInstance ProviderUtil::esd_build_instance_zoneZoneMember(const String& nameSpace,
                                                            const String& className,
                                                            const zs_cim_zone_* zone,
                                                            const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_zone_member_instance(builder, className.getCString(),
                                                     nameSpace.getCString(), zone, member));
}

CIMObject ProviderUtil::esd_build_object_zoneZoneMember(const String& nameSpace,
                                                        const String& className,
                                                        const zs_cim_zone_* zone,
                                                        const zs_cim_zone_member_* member) {
  return CIMObject(esd_build_instance_zoneZoneMember(nameSpace, className, zone, member));
}

CIMObjectPath ProviderUtil::esd_fill_reference_zoneAliasZoneMember(
    const String& nameSpace, const String& className, const zs_cim_alias_* alias,
    const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_alias_zone_member_reference(builder, className.getCString(),
                                                            nameSpace.getCString(), alias, member));
}

CIMInstance ProviderUtil::esd_build_instance_zoneAliasZoneMember(
    const String& nameSpace, const String& className, const zs_cim_alias_* alias,
    const zs_cim_zone_member_* member) {
  PegasusBuilder builder;
  return to_pegasus(model::zone_alias_zone_member_instance(builder, className.getCString(),
                                                           nameSpace.getCString(), alias, member));
}

CIMObject ProviderUtil::esd_build_object_zoneAliasZoneMember(const String& nameSpace,
                                                             const String& className,
                                                             const zs_cim_alias_* alias,
                                                             const zs_cim_zone_member_* member) {
  return CIMObject(esd_build_instance_zoneAliasZoneMember(nameSpace, className, alias, member));
}

CIMObjectPath ProviderUtil::hosted_collection_fill_reference(const String& nameSpace,
                                                             const String& className,
                                                             vsanNewEntry_t* vsan,
                                                             mts_dm_sw_conf_* swConf, int number) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_collection_reference(builder, className.getCString(),
                                                       nameSpace.getCString(),
                                                       model::VsanRecords{vsan, swConf}, number));
}

CIMInstance ProviderUtil::hosted_collection_build_instance(const String& nameSpace,
                                                           const String& className,
                                                           vsanNewEntry_t* vsan,
                                                           mts_dm_sw_conf_* swConf, int number) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_collection_instance(builder, className.getCString(),
                                                      nameSpace.getCString(),
                                                      model::VsanRecords{vsan, swConf}, number));
}

CIMObject ProviderUtil::hosted_collection_build_object(const String& nameSpace,
                                                       const String& className,
                                                       vsanNewEntry_t* vsan,
                                                       mts_dm_sw_conf_* swConf, int number) {
  return CIMObject(hosted_collection_build_instance(nameSpace, className, vsan, swConf, number));
}

CIMObjectPath ProviderUtil::hosted_collection_fill_reference_zset(const String& nameSpace,
                                                                  const String& className,
                                                                  vsanNewEntry_t* vsan,
                                                                  mts_dm_sw_conf_* swConf,
                                                                  const zs_cim_zone_set_* zoneSet) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_set_reference(builder, className.getCString(),
                                                     nameSpace.getCString(),
                                                     model::VsanRecords{vsan, swConf}, zoneSet));
}

CIMInstance ProviderUtil::hosted_collection_build_instance_zset(const String& nameSpace,
                                                                const String& className,
                                                                vsanNewEntry_t* vsan,
                                                                mts_dm_sw_conf_* swConf,
                                                                const zs_cim_zone_set_* zoneSet) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_set_instance(builder, className.getCString(),
                                                    nameSpace.getCString(),
                                                    model::VsanRecords{vsan, swConf}, zoneSet));
}

CIMObject ProviderUtil::hosted_collection_build_object_zset(const String& nameSpace,
                                                            const String& className,
                                                            vsanNewEntry_t* vsan,
                                                            mts_dm_sw_conf_* swConf,
                                                            const zs_cim_zone_set_* zoneSet) {
  return CIMObject(
      hosted_collection_build_instance_zset(nameSpace, className, vsan, swConf, zoneSet));
}

CIMObjectPath ProviderUtil::hosted_collection_fill_reference_zone(const String& nameSpace,
                                                                  const String& className,
                                                                  vsanNewEntry_t* vsan,
                                                                  mts_dm_sw_conf_* swConf,
                                                                  const zs_cim_zone_* zone) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_reference(builder, className.getCString(),
                                                 nameSpace.getCString(),
                                                 model::VsanRecords{vsan, swConf}, zone));
}

CIMInstance ProviderUtil::hosted_collection_build_instance_zone(const String& nameSpace,
                                                                const String& className,
                                                                vsanNewEntry_t* vsan,
                                                                mts_dm_sw_conf_* swConf,
                                                                const zs_cim_zone_* zone) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_instance(builder, className.getCString(),
                                                nameSpace.getCString(),
                                                model::VsanRecords{vsan, swConf}, zone));
}

CIMObject ProviderUtil::hosted_collection_build_object_zone(const String& nameSpace,
                                                            const String& className,
                                                            vsanNewEntry_t* vsan,
                                                            mts_dm_sw_conf_* swConf,
                                                            const zs_cim_zone_* zone) {
  return CIMObject(hosted_collection_build_instance_zone(nameSpace, className, vsan, swConf, zone));
}

CIMObjectPath ProviderUtil::hosted_collection_fill_reference_zalias(const String& nameSpace,
                                                                    const String& className,
                                                                    vsanNewEntry_t* vsan,
                                                                    mts_dm_sw_conf_* swConf,
                                                                    const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_alias_reference(builder, className.getCString(),
                                                       nameSpace.getCString(),
                                                       model::VsanRecords{vsan, swConf}, alias));
}

CIMInstance ProviderUtil::hosted_collection_build_instance_zalias(const String& nameSpace,
                                                                  const String& className,
                                                                  vsanNewEntry_t* vsan,
                                                                  mts_dm_sw_conf_* swConf,
                                                                  const zs_cim_alias_* alias) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_zone_alias_instance(builder, className.getCString(),
                                                      nameSpace.getCString(),
                                                      model::VsanRecords{vsan, swConf}, alias));
}

CIMObject ProviderUtil::hosted_collection_build_object_zalias(const String& nameSpace,
                                                              const String& className,
                                                              vsanNewEntry_t* vsan,
                                                              mts_dm_sw_conf_* swConf,
                                                              const zs_cim_alias_* alias) {
  return CIMObject(
      hosted_collection_build_instance_zalias(nameSpace, className, vsan, swConf, alias));
}

CIMObjectPath ProviderUtil::zmoc_fill_reference_MemberCollection(const String& nameSpace,
                                                                 const String& className,
                                                                 const CIMObjectPath& collectionRef,
                                                                 const CIMObjectPath& memberRef) {
  return association_reference(className.getCString(), nameSpace, collectionRef, memberRef,
                               "Collection", "Member");
}

CIMInstance ProviderUtil::zmoc_build_instance_MemberCollection(const String& nameSpace,
                                                               const String& className,
                                                               const CIMObjectPath& collectionRef,
                                                               const CIMObjectPath& memberRef) {
  return association_instance(className.getCString(), nameSpace, collectionRef, memberRef,
                              "Collection", "Member");
}

CIMObject ProviderUtil::zmoc_build_object_MemberCollection(const String& nameSpace,
                                                           const String& className,
                                                           const CIMObjectPath& collectionRef,
                                                           const CIMObjectPath& memberRef) {
  return CIMObject(
      zmoc_build_instance_MemberCollection(nameSpace, className, collectionRef, memberRef));
}

CIMObjectPath ProviderUtil::zone_hosted_collection_fill_reference(
    const String& nameSpace, const String& className, const CIMObjectPath& hostRef,
    const CIMObjectPath& collectionRef) {
  return association_reference(className.getCString(), nameSpace, hostRef, collectionRef,
                               "Antecedent", "Dependent");
}

CIMInstance ProviderUtil::zhc_build_instance(const String& nameSpace, const String& className,
                                             const CIMObjectPath& hostRef,
                                             const CIMObjectPath& collectionRef) {
  return association_instance(className.getCString(), nameSpace, hostRef, collectionRef,
                              "Antecedent", "Dependent");
}

CIMObject ProviderUtil::zhc_build_object(const String& nameSpace, const String& className,
                                         const CIMObjectPath& hostRef,
                                         const CIMObjectPath& collectionRef) {
  return CIMObject(zhc_build_instance(nameSpace, className, hostRef, collectionRef));
}

CIMObjectPath ProviderUtil::hosted_service_fill_reference(const String& className,
                                                          const String& nameSpace,
                                                          vsanNewEntry_t* vsan,
                                                          mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_service_reference(
      builder, className.getCString(), nameSpace.getCString(), model::VsanRecords{vsan, swConf}));
}

CIMInstance ProviderUtil::hosted_service_build_instance(const String& className,
                                                        const String& nameSpace,
                                                        vsanNewEntry_t* vsan,
                                                        mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(model::hosted_service_instance(
      builder, className.getCString(), nameSpace.getCString(), model::VsanRecords{vsan, swConf}));
}

CIMObject ProviderUtil::hosted_service_build_object(const String& className,
                                                    const String& nameSpace, vsanNewEntry_t* vsan,
                                                    mts_dm_sw_conf_* swConf) {
  return CIMObject(hosted_service_build_instance(className, nameSpace, vsan, swConf));
}
