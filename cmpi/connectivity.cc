#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/wwn_rules.h>

#include "cmpi/builder.h"
#include "model/connectivity.h"

using namespace cim_utils;

namespace {

constexpr char kLogicalIdentity[] = "VEXOR_LogicalIdentity";
constexpr char kEndpoint[] = "VEXOR_ProtocolEndPoint";
constexpr char kPort[] = "VEXOR_FCPort";

// The reference of an association; unlike the generic builders' it is null where the broker gives
// no path that can be used.
CMPIObjectPath* tied_by(const char* className, const char* nameSpace, const CMPIObjectPath* first,
                        const CMPIObjectPath* second, const char* firstRole, const char* secondRole,
                        const CMPIBroker* broker) {
  CMPIObjectPath* path = association_class_fill_reference_path(className, nameSpace, first, second,
                                                               firstRole, secondRole, broker);
  return usable(path) ? path : nullptr;
}

struct Ends {
  const CMPIObjectPath* first;
  const CMPIObjectPath* second;
};

Ends endpoints_of(const char* nameSpace, const fspfLinkEntry* link, int interface,
                  const CMPIBroker* broker) {
  const CMPIObjectPath* far =
      pe_fill_reference_fspf(kEndpoint, nameSpace, interface, link, 0, broker);
  return {far, pe_fill_reference_fspf(kEndpoint, nameSpace, interface, link, 1, broker)};
}

Ends endpoints_of(const char* nameSpace, const ns_api_register_req_* entry,
                  const CMPIBroker* broker) {
  const CMPIObjectPath* fabric_side = pe_fill_reference_ns(kEndpoint, nameSpace, entry, 1, broker);
  return {fabric_side, pe_fill_reference_ns(kEndpoint, nameSpace, entry, 0, broker)};
}

Ends switch_and_port(int index, const char* nameSpace, const mts_dm_sw_dom_list_info_* entry,
                     const fspfLinkEntry* link, const CMPIBroker* broker) {
  if (entry == nullptr) return {};
  const model::SwitchOfLink seen(*entry);
  const CMPIObjectPath* system = switch_fill_reference_dm(seen.cls, nameSpace, entry, broker);
  return {system, fcport_fill_reference_fspf_wwnt(index, nameSpace, kPort, link, &seen.wwn,
                                                  seen.not_maker, 1, 1, broker)};
}

Ends node_and_port(const char* nameSpace, const ns_api_register_req_* entry,
                   const CMPIBroker* broker) {
  if (entry == nullptr) return {};
  const CMPIObjectPath* port = fcport_fill_reference_ns(kPort, nameSpace, entry, 1, 0, broker);
  return {logical_port_group_fill_reference("VEXOR_LogicalPortGroup", nameSpace, &entry->node_wwn,
                                            broker),
          port};
}

}  // namespace

CMPIInstance* logical_identity_build_instance(const char* /*ignored*/, const char* nameSpace,
                                              const CMPIObjectPath* systemRef,
                                              const CMPIObjectPath* sameRef,
                                              const CMPIBroker* broker) {
  return association_class_build_instance_path(kLogicalIdentity, nameSpace, systemRef, sameRef,
                                               "SystemElement", "SameElement", broker);
}

CMPIObjectPath* logical_identity_fill_reference(const char* className, const char* nameSpace,
                                                const CMPIObjectPath* systemRef,
                                                const CMPIObjectPath* sameRef,
                                                const CMPIBroker* broker) {
  return tied_by(className, nameSpace, systemRef, sameRef, "SystemElement", "SameElement", broker);
}

CMPIInstance* hosted_dependency_build_instance(const char* className, const char* nameSpace,
                                               const CMPIObjectPath* hostRef,
                                               const CMPIObjectPath* hostedRef,
                                               const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, hostRef, hostedRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* hosted_dependency_fill_reference(const char* className, const char* nameSpace,
                                                 const CMPIObjectPath* hostRef,
                                                 const CMPIObjectPath* hostedRef,
                                                 const CMPIBroker* broker) {
  return tied_by(className, nameSpace, hostRef, hostedRef, "Antecedent", "Dependent", broker);
}

CMPIInstance* hosted_access_point_build_instance(const char* className, const char* nameSpace,
                                                 const CMPIObjectPath* systemRef,
                                                 const CMPIObjectPath* accessPointRef,
                                                 const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, systemRef, accessPointRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* hosted_access_point_fill_reference(const char* className, const char* nameSpace,
                                                   const CMPIObjectPath* systemRef,
                                                   const CMPIObjectPath* accessPointRef,
                                                   const CMPIBroker* broker) {
  return tied_by(className, nameSpace, systemRef, accessPointRef, "Antecedent", "Dependent",
                 broker);
}

CMPIInstance* device_sap_implementation_build_instance(const char* className, const char* nameSpace,
                                                       const CMPIObjectPath* deviceRef,
                                                       const CMPIObjectPath* accessPointRef,
                                                       const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, deviceRef, accessPointRef,
                                               "Antecedent", "Dependent", broker);
}

CMPIObjectPath* device_sap_implementation_fill_reference(const char* className,
                                                         const char* nameSpace,
                                                         const CMPIObjectPath* deviceRef,
                                                         const CMPIObjectPath* accessPointRef,
                                                         const CMPIBroker* broker) {
  return tied_by(className, nameSpace, deviceRef, accessPointRef, "Antecedent", "Dependent",
                 broker);
}

CMPIInstance* active_connection_build_instance(const char* className, const char* nameSpace,
                                               const CMPIObjectPath* fromRef,
                                               const CMPIObjectPath* toRef,
                                               const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, fromRef, toRef, "Antecedent",
                                               "Dependent", broker);
}

CMPIObjectPath* active_connection_fill_reference(const char* className, const char* nameSpace,
                                                 const CMPIObjectPath* fromRef,
                                                 const CMPIObjectPath* toRef,
                                                 const CMPIBroker* broker) {
  return tied_by(className, nameSpace, fromRef, toRef, "Antecedent", "Dependent", broker);
}

CMPIInstance* fcnode_member_collection_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* groupRef,
                                                      const CMPIObjectPath* portRef,
                                                      const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, groupRef, portRef,
                                               "Collection", "Member", broker);
}

CMPIObjectPath* fcnode_member_collection_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* groupRef,
                                                        const CMPIObjectPath* portRef,
                                                        const CMPIBroker* broker) {
  return tied_by(className, nameSpace, groupRef, portRef, "Collection", "Member", broker);
}

CMPIInstance* connectivity_member_collection_build_instance(const char* className,
                                                            const char* nameSpace,
                                                            const CMPIObjectPath* collectionRef,
                                                            const CMPIObjectPath* memberRef,
                                                            const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, collectionRef, memberRef,
                                               "Collection", "Member", broker);
}

CMPIObjectPath* connectivity_member_collection_fill_reference(const char* className,
                                                              const char* nameSpace,
                                                              const CMPIObjectPath* collectionRef,
                                                              const CMPIObjectPath* memberRef,
                                                              const CMPIBroker* broker) {
  return tied_by(className, nameSpace, collectionRef, memberRef, "Collection", "Member", broker);
}

CMPIInstance* system_device_build_instance(const char* className, const char* nameSpace,
                                           const CMPIObjectPath* systemRef,
                                           const CMPIObjectPath* deviceRef,
                                           const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, systemRef, deviceRef,
                                               "GroupComponent", "PartComponent", broker);
}

CMPIObjectPath* system_device_fill_reference(const char* className, const char* nameSpace,
                                             const CMPIObjectPath* systemRef,
                                             const CMPIObjectPath* deviceRef,
                                             const CMPIBroker* broker) {
  return tied_by(className, nameSpace, systemRef, deviceRef, "GroupComponent", "PartComponent",
                 broker);
}

CMPIInstance* active_connection_build_instance_fspf(const char* className, const char* nameSpace,
                                                    const fspfLinkEntry* link, int interface,
                                                    const CMPIBroker* broker) {
  const Ends ends = endpoints_of(nameSpace, link, interface, broker);
  return active_connection_build_instance(className, nameSpace, ends.first, ends.second, broker);
}

CMPIObjectPath* active_connection_fill_reference_fspf(const char* className, const char* nameSpace,
                                                      const fspfLinkEntry* link, int interface,
                                                      const CMPIBroker* broker) {
  const Ends ends = endpoints_of(nameSpace, link, interface, broker);
  return active_connection_fill_reference(className, nameSpace, ends.first, ends.second, broker);
}

CMPIInstance* active_connection_build_instance_ns(const char* className, const char* nameSpace,
                                                  const ns_api_register_req_* entry,
                                                  const CMPIBroker* broker) {
  const Ends ends = endpoints_of(nameSpace, entry, broker);
  return active_connection_build_instance(className, nameSpace, ends.first, ends.second, broker);
}

CMPIObjectPath* active_connection_fill_reference_ns(const char* className, const char* nameSpace,
                                                    const ns_api_register_req_* entry,
                                                    const CMPIBroker* broker) {
  const Ends ends = endpoints_of(nameSpace, entry, broker);
  return active_connection_fill_reference(className, nameSpace, ends.first, ends.second, broker);
}

CMPIInstance* system_device_build_instance_fspf(int index, const char* className,
                                                const char* nameSpace,
                                                const mts_dm_sw_dom_list_info_* entry,
                                                const fspfLinkEntry* link,
                                                const CMPIBroker* broker) {
  const Ends ends = switch_and_port(index, nameSpace, entry, link, broker);
  return system_device_build_instance(className, nameSpace, ends.first, ends.second, broker);
}

CMPIObjectPath* system_device_fill_reference_fspf(int index, const char* className,
                                                  const char* nameSpace,
                                                  const mts_dm_sw_dom_list_info_* entry,
                                                  const fspfLinkEntry* link,
                                                  const CMPIBroker* broker) {
  const Ends ends = switch_and_port(index, nameSpace, entry, link, broker);
  return system_device_fill_reference(className, nameSpace, ends.first, ends.second, broker);
}

CMPIInstance* fcnode_member_collection_build_instance_ns(const char* className,
                                                         const char* nameSpace,
                                                         const ns_api_register_req_* entry,
                                                         const CMPIBroker* broker) {
  const Ends ends = node_and_port(nameSpace, entry, broker);
  return fcnode_member_collection_build_instance(className, nameSpace, ends.first, ends.second,
                                                 broker);
}

CMPIObjectPath* fcnode_member_collection_fill_reference_ns(const char* className,
                                                           const char* nameSpace,
                                                           const ns_api_register_req_* entry,
                                                           const CMPIBroker* broker) {
  const Ends ends = node_and_port(nameSpace, entry, broker);
  return fcnode_member_collection_fill_reference(className, nameSpace, ends.first, ends.second,
                                                 broker);
}

CMPIInstance* rsap_build_instance(const char* className, const char* nameSpace, const char* name,
                                  const char* systemName, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::remote_access_point_instance(builder, className, nameSpace, name, systemName));
}

CMPIObjectPath* rsap_fill_reference(const char* className, const char* nameSpace, const char* name,
                                    const char* systemName, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::remote_access_point_reference(builder, className, nameSpace, name, systemName));
}
