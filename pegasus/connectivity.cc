#include <cim_utils/provider_util.h>

#include "model/connectivity.h"
#include "pegasus/builder.h"

// References are taken by value where the interface of ProviderUtil does.
// NOLINTBEGIN(performance-unnecessary-value-param)

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

constexpr char kLogicalIdentity[] = "VEXOR_LogicalIdentity";
constexpr char kEndpoint[] = "VEXOR_ProtocolEndPoint";
constexpr char kPort[] = "VEXOR_FCPort";

struct Ends {
  CIMObjectPath first;
  CIMObjectPath second;
};

Ends endpoints_of(const String& nameSpace, fspfLinkEntry* link, int interface) {
  CIMObjectPath far = ProviderUtil::pe_fill_reference(kEndpoint, nameSpace, interface, link, 0);
  return {far, ProviderUtil::pe_fill_reference(kEndpoint, nameSpace, interface, link, 1)};
}

Ends endpoints_of(const String& nameSpace, ns_api_register_req_* entry) {
  CIMObjectPath fabric_side = ProviderUtil::pe_fill_reference(kEndpoint, nameSpace, entry, 1);
  return {fabric_side, ProviderUtil::pe_fill_reference(kEndpoint, nameSpace, entry, 0)};
}

Ends switch_and_port(int index, const String& nameSpace, mts_dm_sw_dom_list_info_* entry,
                     fspfLinkEntry* link) {
  if (entry == nullptr) return {};
  model::SwitchOfLink seen(*entry);
  CIMObjectPath system = ProviderUtil::switch_fill_reference(seen.cls, nameSpace, entry);
  return {system, ProviderUtil::fcport_fill_reference(index, kPort, nameSpace, link, &seen.wwn,
                                                      seen.not_maker, 1, 1)};
}

Ends switch_and_device(const String& nameSpace, ns_api_register_req_* attached,
                       ns_api_register_req_* device) {
  CIMObjectPath system;
  if (attached != nullptr)
    system = ProviderUtil::switch_fill_reference("VEXOR_PhysicalComputerSystem", nameSpace,
                                                 model::AttachedSwitch(*attached).name);
  return {system, ProviderUtil::fcport_fill_reference(kPort, nameSpace, device, 1, 0)};
}

Ends node_and_port(const String& nameSpace, ns_api_register_req_* entry) {
  if (entry == nullptr) return {};
  CIMObjectPath port = ProviderUtil::fcport_fill_reference(kPort, nameSpace, entry, 1, 0);
  wwn_ node = entry->node_wwn;
  return {
      ProviderUtil::logical_port_group_fill_reference("VEXOR_LogicalPortGroup", nameSpace, &node),
      port};
}

}  // namespace

CIMObjectPath ProviderUtil::logical_identity_fill_reference(const char* className,
                                                            const String& nameSpace,
                                                            const CIMObjectPath& systemRef,
                                                            const CIMObjectPath& sameRef) {
  return association_reference(className, nameSpace, systemRef, sameRef, "SystemElement",
                               "SameElement");
}

CIMInstance ProviderUtil::logical_identity_build_instance(const char* className,
                                                          const String& nameSpace,
                                                          const CIMObjectPath& systemRef,
                                                          const CIMObjectPath& sameRef) {
  CIMInstance instance = association_instance(kLogicalIdentity, nameSpace, systemRef, sameRef,
                                              "SystemElement", "SameElement");
  instance.setPath(logical_identity_fill_reference(className, nameSpace, systemRef, sameRef));
  return instance;
}

CIMObject ProviderUtil::logical_identity_build_object(const char* className,
                                                      const String& nameSpace,
                                                      const CIMObjectPath& systemRef,
                                                      const CIMObjectPath& sameRef) {
  return CIMObject(logical_identity_build_instance(className, nameSpace, systemRef, sameRef));
}

CIMObjectPath ProviderUtil::hosted_dependency_fill_reference(const char* className,
                                                             const String& nameSpace,
                                                             const CIMObjectPath& hostRef,
                                                             const CIMObjectPath& hostedRef) {
  return association_reference(className, nameSpace, hostRef, hostedRef, "Antecedent", "Dependent");
}

CIMInstance ProviderUtil::hosted_dependency_build_instance(const char* className,
                                                           const String& nameSpace,
                                                           const CIMObjectPath& hostRef,
                                                           const CIMObjectPath& hostedRef) {
  return association_instance(className, nameSpace, hostRef, hostedRef, "Antecedent", "Dependent");
}

CIMObject ProviderUtil::hosted_dependency_build_object(const char* className,
                                                       const String& nameSpace,
                                                       const CIMObjectPath& hostRef,
                                                       const CIMObjectPath& hostedRef) {
  return CIMObject(hosted_dependency_build_instance(className, nameSpace, hostRef, hostedRef));
}

CIMObjectPath ProviderUtil::hosted_access_point_fill_reference(const char* className,
                                                               const String& nameSpace,
                                                               CIMObjectPath systemRef,
                                                               CIMObjectPath accessPointRef) {
  return association_reference(className, nameSpace, systemRef, accessPointRef, "Antecedent",
                               "Dependent");
}

CIMInstance ProviderUtil::hosted_access_point_build_instance(const char* className,
                                                             const String& nameSpace,
                                                             CIMObjectPath systemRef,
                                                             CIMObjectPath accessPointRef) {
  return association_instance(className, nameSpace, systemRef, accessPointRef, "Antecedent",
                              "Dependent");
}

CIMObject ProviderUtil::hosted_access_point_build_object(const char* className,
                                                         const String& nameSpace,
                                                         CIMObjectPath systemRef,
                                                         CIMObjectPath accessPointRef) {
  return CIMObject(
      hosted_access_point_build_instance(className, nameSpace, systemRef, accessPointRef));
}

CIMObjectPath ProviderUtil::device_sap_implementation_fill_reference(const char* className,
                                                                     const String& nameSpace,
                                                                     CIMObjectPath deviceRef,
                                                                     CIMObjectPath accessPointRef) {
  return association_reference(className, nameSpace, deviceRef, accessPointRef, "Antecedent",
                               "Dependent");
}

CIMInstance ProviderUtil::device_sap_implementation_build_instance(const char* className,
                                                                   const String& nameSpace,
                                                                   CIMObjectPath deviceRef,
                                                                   CIMObjectPath accessPointRef) {
  return association_instance(className, nameSpace, deviceRef, accessPointRef, "Antecedent",
                              "Dependent");
}

CIMObject ProviderUtil::device_sap_implementation_build_object(const char* className,
                                                               const String& nameSpace,
                                                               CIMObjectPath deviceRef,
                                                               CIMObjectPath accessPointRef) {
  return CIMObject(
      device_sap_implementation_build_instance(className, nameSpace, deviceRef, accessPointRef));
}

CIMObjectPath ProviderUtil::active_connection_fill_reference(const char* className,
                                                             const String& nameSpace,
                                                             const CIMObjectPath& fromRef,
                                                             const CIMObjectPath& toRef) {
  return association_reference(className, nameSpace, fromRef, toRef, "Antecedent", "Dependent");
}

CIMInstance ProviderUtil::active_connection_build_instance(const char* className,
                                                           const String& nameSpace,
                                                           const CIMObjectPath& fromRef,
                                                           const CIMObjectPath& toRef) {
  return association_instance(className, nameSpace, fromRef, toRef, "Antecedent", "Dependent");
}

CIMObject ProviderUtil::active_connection_build_object(const char* className,
                                                       const String& nameSpace,
                                                       const CIMObjectPath& fromRef,
                                                       const CIMObjectPath& toRef) {
  return CIMObject(active_connection_build_instance(className, nameSpace, fromRef, toRef));
}

CIMObjectPath ProviderUtil::fcnode_member_collection_fill_reference(const char* className,
                                                                    const String& nameSpace,
                                                                    CIMObjectPath groupRef,
                                                                    CIMObjectPath portRef) {
  return association_reference(className, nameSpace, groupRef, portRef, "Collection", "Member");
}

CIMInstance ProviderUtil::fcnode_member_collection_build_instance(const char* className,
                                                                  const String& nameSpace,
                                                                  CIMObjectPath groupRef,
                                                                  CIMObjectPath portRef) {
  return association_instance(className, nameSpace, groupRef, portRef, "Collection", "Member");
}

CIMObject ProviderUtil::fcnode_member_collection_build_object(const char* className,
                                                              const String& nameSpace,
                                                              CIMObjectPath groupRef,
                                                              CIMObjectPath portRef) {
  return CIMObject(
      fcnode_member_collection_build_instance(className, nameSpace, groupRef, portRef));
}

CIMObjectPath ProviderUtil::connectivity_member_collection_fill_reference(
    const char* className, const String& nameSpace, CIMObjectPath collectionRef,
    CIMObjectPath memberRef) {
  return association_reference(className, nameSpace, collectionRef, memberRef, "Collection",
                               "Member");
}

CIMInstance ProviderUtil::connectivity_member_collection_build_instance(const char* className,
                                                                        const String& nameSpace,
                                                                        CIMObjectPath collectionRef,
                                                                        CIMObjectPath memberRef) {
  return association_instance(className, nameSpace, collectionRef, memberRef, "Collection",
                              "Member");
}

CIMObject ProviderUtil::connectivity_member_collection_build_object(const char* className,
                                                                    const String& nameSpace,
                                                                    CIMObjectPath collectionRef,
                                                                    CIMObjectPath memberRef) {
  return CIMObject(connectivity_member_collection_build_instance(className, nameSpace,
                                                                 collectionRef, memberRef));
}

CIMObjectPath ProviderUtil::system_device_fill_reference(const char* className,
                                                         const String& nameSpace,
                                                         CIMObjectPath systemRef,
                                                         CIMObjectPath deviceRef) {
  return association_reference(className, nameSpace, systemRef, deviceRef, "GroupComponent",
                               "PartComponent");
}

CIMInstance ProviderUtil::system_device_build_instance(const char* className,
                                                       const String& nameSpace,
                                                       CIMObjectPath systemRef,
                                                       CIMObjectPath deviceRef) {
  return association_instance(className, nameSpace, systemRef, deviceRef, "GroupComponent",
                              "PartComponent");
}

CIMObject ProviderUtil::system_device_build_object(const char* className, const String& nameSpace,
                                                   CIMObjectPath systemRef,
                                                   CIMObjectPath deviceRef) {
  return CIMObject(system_device_build_instance(className, nameSpace, systemRef, deviceRef));
}

CIMObjectPath ProviderUtil::active_connection_fill_reference(const char* className,
                                                             const String& nameSpace,
                                                             fspfLinkEntry* link, int interface) {
  const Ends ends = endpoints_of(nameSpace, link, interface);
  return active_connection_fill_reference(className, nameSpace, ends.first, ends.second);
}

CIMInstance ProviderUtil::active_connection_build_instance(const char* className,
                                                           const String& nameSpace,
                                                           fspfLinkEntry* link, int interface) {
  const Ends ends = endpoints_of(nameSpace, link, interface);
  return active_connection_build_instance(className, nameSpace, ends.first, ends.second);
}

CIMObject ProviderUtil::active_connection_build_object(const char* className,
                                                       const String& nameSpace, fspfLinkEntry* link,
                                                       int interface) {
  return CIMObject(active_connection_build_instance(className, nameSpace, link, interface));
}

CIMObjectPath ProviderUtil::active_connection_fill_reference(const char* className,
                                                             const String& nameSpace,
                                                             ns_api_register_req_* entry) {
  const Ends ends = endpoints_of(nameSpace, entry);
  return active_connection_fill_reference(className, nameSpace, ends.first, ends.second);
}

CIMInstance ProviderUtil::active_connection_build_instance(const char* className,
                                                           const String& nameSpace,
                                                           ns_api_register_req_* entry) {
  const Ends ends = endpoints_of(nameSpace, entry);
  return active_connection_build_instance(className, nameSpace, ends.first, ends.second);
}

CIMObject ProviderUtil::active_connection_build_object(const char* className,
                                                       const String& nameSpace,
                                                       ns_api_register_req_* entry) {
  return CIMObject(active_connection_build_instance(className, nameSpace, entry));
}

CIMObjectPath ProviderUtil::system_device_fill_reference(int index, const char* className,
                                                         const String& nameSpace,
                                                         mts_dm_sw_dom_list_info_* entry,
                                                         fspfLinkEntry* link) {
  const Ends ends = switch_and_port(index, nameSpace, entry, link);
  return system_device_fill_reference(className, nameSpace, ends.first, ends.second);
}

CIMInstance ProviderUtil::system_device_build_instance(int index, const char* className,
                                                       const String& nameSpace,
                                                       mts_dm_sw_dom_list_info_* entry,
                                                       fspfLinkEntry* link) {
  const Ends ends = switch_and_port(index, nameSpace, entry, link);
  return system_device_build_instance(className, nameSpace, ends.first, ends.second);
}

CIMObject ProviderUtil::system_device_build_object(int index, const char* className,
                                                   const String& nameSpace,
                                                   mts_dm_sw_dom_list_info_* entry,
                                                   fspfLinkEntry* link) {
  return CIMObject(system_device_build_instance(index, className, nameSpace, entry, link));
}

CIMObjectPath ProviderUtil::fcnode_member_collection_fill_reference(const char* className,
                                                                    const String& nameSpace,
                                                                    ns_api_register_req_* entry) {
  const Ends ends = node_and_port(nameSpace, entry);
  return fcnode_member_collection_fill_reference(className, nameSpace, ends.first, ends.second);
}

CIMInstance ProviderUtil::fcnode_member_collection_build_instance(const char* className,
                                                                  const String& nameSpace,
                                                                  ns_api_register_req_* entry) {
  const Ends ends = node_and_port(nameSpace, entry);
  return fcnode_member_collection_build_instance(className, nameSpace, ends.first, ends.second);
}

CIMObject ProviderUtil::fcnode_member_collection_build_object(const char* className,
                                                              const String& nameSpace,
                                                              ns_api_register_req_* entry) {
  return CIMObject(fcnode_member_collection_build_instance(className, nameSpace, entry));
}

CIMObjectPath ProviderUtil::system_device_fill_reference(const char* className,
                                                         const String& nameSpace,
                                                         ns_api_register_req_* attached,
                                                         ns_api_register_req_* device) {
  const Ends ends = switch_and_device(nameSpace, attached, device);
  return system_device_fill_reference(className, nameSpace, ends.first, ends.second);
}

CIMInstance ProviderUtil::system_device_build_instance(const char* className,
                                                       const String& nameSpace,
                                                       ns_api_register_req_* attached,
                                                       ns_api_register_req_* device) {
  const Ends ends = switch_and_device(nameSpace, attached, device);
  return system_device_build_instance(className, nameSpace, ends.first, ends.second);
}

CIMObject ProviderUtil::system_device_build_object(const char* className, const String& nameSpace,
                                                   ns_api_register_req_* attached,
                                                   ns_api_register_req_* device) {
  return CIMObject(system_device_build_instance(className, nameSpace, attached, device));
}

// NOLINTEND(performance-unnecessary-value-param)
