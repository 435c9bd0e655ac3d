// Zoning: zone sets, zones, aliases and members, the zone service of a VSAN and its capabilities,
// and what ties them together.
//
// Null records, references and ids make nothing.
#pragma once

#include <cim_utils/zoning_records.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#include "model/builder.h"

namespace cim_utils::model {

// A zoning object is known by its instance id alone.
Ref zone_set_reference(Builder& b, const char* cls, const char* ns, const char* instance_id);
Object zone_set_instance(Builder& b, const char* cls, const char* ns,
                         const zs_cim_zone_set_* zone_set, const char** properties);
Ref zone_reference(Builder& b, const char* cls, const char* ns, const char* instance_id);
Object zone_instance(Builder& b, const char* cls, const char* ns, const zs_cim_zone_* zone,
                     const char** properties);
Ref zone_alias_reference(Builder& b, const char* cls, const char* ns, const char* instance_id);
Object zone_alias_instance(Builder& b, const char* cls, const char* ns, const zs_cim_alias_* alias,
                           const char** properties);
Ref zone_member_reference(Builder& b, const char* cls, const char* ns, const char* instance_id);
Object zone_member_instance(Builder& b, const char* cls, const char* ns,
                            const zs_cim_zone_member_* member, const char** properties);

// The instance id of a record, which may fill its field.
struct InstanceId {
  template <class Record>
  explicit InstanceId(const Record* record) {
    if (record == nullptr) return;
    for (size_t i = 0; i < sizeof record->instance_id && record->instance_id[i] != '\0'; ++i)
      text[i] = record->instance_id[i];
    given = true;
  }
  const char* get() const { return given ? text : nullptr; }

 private:
  char text[ZS_CIM_INSTANCE_ID_ROOM + 1] = {};
  bool given = false;
};

// The zone service of a VSAN. Asks the VSAN manager and the domain manager for its system's name,
// which without them is the VSAN's number; the instance asks the zone server for the default
// policy.
Ref zone_service_reference(Builder& b, const char* cls, const char* ns, int vsan);
Object zone_service_instance(Builder& b, const char* cls, const char* ns, int vsan);

// What zone servers can do: constants.
Ref zone_capabilities_reference(Builder& b, const char* cls, const char* ns,
                                const char* instance_id);
Object zone_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                  const char* instance_id);

// "Collection" the zone set, "Member" the zone.
Ref zone_set_zone_reference(Builder& b, const char* cls, const char* ns, const char* zone_set_id,
                            const char* zone_id);
Object zone_set_zone_instance(Builder& b, const char* cls, const char* ns, const char* zone_set_id,
                              const char* zone_id);
// "Collection" the zone, "Member" the alias.
Ref zone_zone_alias_reference(Builder& b, const char* cls, const char* ns, const zs_cim_zone_* zone,
                              const zs_cim_alias_* alias);
Object zone_zone_alias_instance(Builder& b, const char* cls, const char* ns,
                                const zs_cim_zone_* zone, const zs_cim_alias_* alias);
// "ManagedElement" the zone or the alias, "SettingData" the member.
Ref zone_zone_member_reference(Builder& b, const char* cls, const char* ns,
                               const zs_cim_zone_* zone, const zs_cim_zone_member_* member);
Object zone_zone_member_instance(Builder& b, const char* cls, const char* ns,
                                 const zs_cim_zone_* zone, const zs_cim_zone_member_* member);
Ref zone_alias_zone_member_reference(Builder& b, const char* cls, const char* ns,
                                     const zs_cim_alias_* alias, const zs_cim_zone_member_* member);
Object zone_alias_zone_member_instance(Builder& b, const char* cls, const char* ns,
                                       const zs_cim_alias_* alias,
                                       const zs_cim_zone_member_* member);

// A VSAN from its entry and the domain manager's record of it.
struct VsanRecords {
  const vsanNewEntry_t* entry;
  const mts_dm_sw_conf_* conf;
};

// "Antecedent" the VSAN, "Dependent" the collection that it hosts.
Ref hosted_collection_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                int number);
Object hosted_collection_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                  int number);
Ref hosted_zone_set_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                              const zs_cim_zone_set_* zone_set);
Object hosted_zone_set_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                const zs_cim_zone_set_* zone_set);
Ref hosted_zone_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                          const zs_cim_zone_* zone);
Object hosted_zone_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                            const zs_cim_zone_* zone);
Ref hosted_zone_alias_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                const zs_cim_alias_* alias);
Object hosted_zone_alias_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan,
                                  const zs_cim_alias_* alias);

// "Antecedent" the VSAN, "Dependent" its zone service.
Ref hosted_service_reference(Builder& b, const char* cls, const char* ns, VsanRecords vsan);
Object hosted_service_instance(Builder& b, const char* cls, const char* ns, VsanRecords vsan);

}  // namespace cim_utils::model
