// What ties zoning objects together, and to the VSAN: VEXOR_ZoneMemberOfCollection,
// VEXOR_ZoneElementSettingData, VEXOR_ZoneHostedCollection and VEXOR_HostedCollection.
//
// Walks read what stands at the other end. Of the object that a walk starts from only the name is
// known; an object that is not there has no associations.
#pragma once

#include <memory>
#include <vector>

#include "providers/class.h"
#include "providers/vsan.h"
#include "providers/zoning_members.h"
#include "providers/zoning_objects.h"

namespace vexor::providers {

// ---- VEXOR_ZoneMemberOfCollection: a zone in a zone set, an alias in a zone ----

struct ZoneMembership {
  std::shared_ptr<const ZoningObject> collection;
  std::shared_ptr<const ZoningObject> member;
};

std::vector<ZoneMembership> zone_memberships(int32_t q);
std::vector<ZoneMembership> zone_memberships_named(int32_t q, const ObjectName& name);
std::vector<ZoneMembership> zone_memberships_of(int32_t q, const char* role,
                                                const ObjectName& object);
CMPIObjectPath* zone_membership_reference(const Target& target, const ZoneMembership& membership);
CMPIInstance* zone_membership_instance(const Target& target, const ZoneMembership& membership);
// Adds a zone to a zone set or an alias to a zone: "Collection" and "Member".
ZoneMembership create_zone_membership(int32_t q, const NewValues& values);
void delete_zone_membership(int32_t q, const ZoneMembership& membership);

// ---- VEXOR_ZoneElementSettingData: a member in a zone or an alias ----

struct ZoneElement {
  std::shared_ptr<const ZoningObject> element;
  zs_cim_zone_member_ member;
};

std::vector<ZoneElement> zone_elements(int32_t q);
std::vector<ZoneElement> zone_elements_named(int32_t q, const ObjectName& name);
std::vector<ZoneElement> zone_elements_of(int32_t q, const char* role, const ObjectName& object);
CMPIObjectPath* zone_element_reference(const Target& target, const ZoneElement& element);
CMPIInstance* zone_element_instance(const Target& target, const ZoneElement& element);
// Adds a member that is elsewhere in the VSAN: "ManagedElement" and "SettingData".
ZoneElement create_zone_element(int32_t q, const NewValues& values);
void delete_zone_element(int32_t q, const ZoneElement& element);

// ---- VEXOR_ZoneHostedCollection: a zone set, zone or alias in a VSAN ----

struct HostedZoning {
  std::shared_ptr<const VsanRecord> vsan;
  ZoningObject object;
};

std::vector<HostedZoning> hosted_zoning(int32_t q);
std::vector<HostedZoning> hosted_zoning_named(int32_t q, const ObjectName& name);
std::vector<HostedZoning> hosted_zoning_of(int32_t q, const char* role, const ObjectName& object);
CMPIObjectPath* hosted_zoning_reference(const Target& target, const HostedZoning& hosted);
CMPIInstance* hosted_zoning_instance(const Target& target, const HostedZoning& hosted);

// ---- VEXOR_HostedCollection: the connectivity collection of a VSAN ----

std::vector<VsanRecord> hosted_collections_named(int32_t q, const ObjectName& name);
std::vector<VsanRecord> hosted_collections_of(int32_t q, const char* role,
                                              const ObjectName& object);
CMPIObjectPath* hosted_collection_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* hosted_collection_instance(const Target& target, const VsanRecord& vsan);
CMPIObjectPath* collection_of_vsan_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* collection_of_vsan_instance(const Target& target, const VsanRecord& vsan);

}  // namespace vexor::providers
