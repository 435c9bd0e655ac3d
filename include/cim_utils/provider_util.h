// The Pegasus face: class ProviderUtil, for providers written on the OpenPegasus provider
// interface.
//
// Conventions:
// - All members are static; the class has no data of its own.
// - X_fill_reference gives an object path with host, namespace, class name and keys;
//   X_build_instance an instance with its path and the qualifiers of its class; X_build_object the
//   same instance as a CIMObject.
// - The host of every path is Pegasus::System::getHostName(), unlike the CMPI face's, deliberately.
// - Services are asked on the queue mts_q of this class. A service that does not answer leaves out
//   what depends on it, or gives the fallback text that the class defines.
// - Null records make an uninitialised object. Records are the caller's, in host order.
// - Exceptions of the interface (a class name or a namespace that is none) are the caller's, except
//   where a function says otherwise; so is std::bad_alloc when memory runs out. What was made until
//   then is released.
// - Traces go to standard output.
#pragma once

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObject.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/String.h>
#include <Pegasus/Provider/CIMOMHandle.h>
#include <cim_utils/export.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/zoning_records.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_platform_manager.h>
#include <switch_platform/records_port_manager.h>
#include <switch_platform/records_vsan.h>

class CIM_UTILS_EXPORT ProviderUtil {
 public:
  ProviderUtil();
  ~ProviderUtil();  // NOLINT(performance-trivially-destructible): exported

  // The handle through which addQualifiers fetches class definitions. The hosting provider assigns
  // it before it builds instances.
  static Pegasus::CIMOMHandle _cimom;

  // This face's queue handle, -1 while unbound. Written by init_mts only.
  static int mts_q;

  // As init_mts, deinit_mts and gdb_check of the CMPI face, on this face's own handle.
  static int init_mts(int* q_out);
  static int deinit_mts(int* q);
  static int gdb_check();

  // Copies the qualifiers of the instance's class, as defined in nameSpace, to the instance, and
  // those of each property of the class to the instance's property. A property that the class does
  // not have is dropped, after a line that names it. Does not throw for a class that cannot be had:
  // one line says so and the instance stays as it was.
  static void addQualifiers(Pegasus::CIMInstance& instance, Pegasus::String nameSpace);

  // An array whose only element is `value`.
  static Pegasus::Array<Pegasus::Uint16> convert_uint_to_array(Pegasus::Uint16 value);

  // The own switch, named by ComputerSystem::getName() on this class's queue.
  static Pegasus::CIMObjectPath switch_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace);
  static Pegasus::CIMInstance switch_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace);
  static Pegasus::CIMObject switch_build_object(const char* className,
                                                const Pegasus::String& nameSpace);

  // A switch by the text of its WWN, or its WWN; remote is zero for the own switch. Asks the domain
  // manager for VSAN 1, without which "ElementName", "PrimarySwitch", "IPAddress", "EnabledState"
  // and "OtherIdentifyingInfo" are left out. The name of another switch is asked on the queue of
  // the CMPI face (get_remote_switchname), and left out while that is unbound.
  static Pegasus::CIMObjectPath switch_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      const char* wwnText);
  static Pegasus::CIMInstance switch_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    const char* wwnText, unsigned char remote);
  static Pegasus::CIMObject switch_build_object(const char* className,
                                                const Pegasus::String& nameSpace,
                                                const char* wwnText, unsigned char remote);
  static Pegasus::CIMObjectPath switch_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace, wwn_* wwn);
  static Pegasus::CIMInstance switch_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace, wwn_* wwn,
                                                    unsigned char remote);
  static Pegasus::CIMObject switch_build_object(const char* className,
                                                const Pegasus::String& nameSpace, wwn_* wwn,
                                                unsigned char remote);

  // A switch as the fabric configuration server sees it.
  static Pegasus::CIMObjectPath switch_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      fcs_cim_ie_* element);
  static Pegasus::CIMInstance switch_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    fcs_cim_ie_* element);
  static Pegasus::CIMObject switch_build_object(const char* className,
                                                const Pegasus::String& nameSpace,
                                                fcs_cim_ie_* element);

  // A switch from the domain manager's list.
  static Pegasus::CIMObjectPath switch_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      mts_dm_sw_dom_list_info_* entry);
  static Pegasus::CIMInstance switch_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    mts_dm_sw_dom_list_info_* entry);
  static Pegasus::CIMObject switch_build_object(const char* className,
                                                const Pegasus::String& nameSpace,
                                                mts_dm_sw_dom_list_info_* entry);

  // The fabric, named by the domain manager's WWN of VSAN 1 or, without that, "PHYSICAL_FABRIC".
  static Pegasus::CIMObjectPath fabric_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace);
  static Pegasus::CIMInstance fabric_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace);
  static Pegasus::CIMObject fabric_build_object(const char* className,
                                                const Pegasus::String& nameSpace);

  // A VSAN from its entry and the domain manager's record of it.
  static Pegasus::CIMObjectPath vsan_fill_reference(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf);
  static Pegasus::CIMInstance vsan_build_instance(const char* className,
                                                  const Pegasus::String& nameSpace,
                                                  vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf);
  static Pegasus::CIMObject vsan_build_object(const char* className,
                                              const Pegasus::String& nameSpace,
                                              vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf);

  // The connectivity of a group of ports, known by a number.
  static Pegasus::CIMObjectPath connectivity_collection_fill_reference(
      const char* className, const Pegasus::String& nameSpace, int number);
  static Pegasus::CIMInstance connectivity_collection_build_instance(
      const char* className, const Pegasus::String& nameSpace, int number);
  static Pegasus::CIMObject connectivity_collection_build_object(const char* className,
                                                                 const Pegasus::String& nameSpace,
                                                                 int number);

  // A VSAN in the fabric.
  static Pegasus::CIMObjectPath contained_domain_fill_reference(const Pegasus::String& className,
                                                                const Pegasus::String& nameSpace,
                                                                vsanNewEntry_t* vsan,
                                                                mts_dm_sw_conf_* swConf);
  static Pegasus::CIMInstance contained_domain_build_instance(const Pegasus::String& className,
                                                              const Pegasus::String& nameSpace,
                                                              vsanNewEntry_t* vsan,
                                                              mts_dm_sw_conf_* swConf);
  static Pegasus::CIMObject contained_domain_build_object(const Pegasus::String& className,
                                                          const Pegasus::String& nameSpace,
                                                          vsanNewEntry_t* vsan,
                                                          mts_dm_sw_conf_* swConf);

  // A part of a whole, by two references: "GroupComponent", "PartComponent".
  static Pegasus::CIMObjectPath component_fill_reference(const char* className,
                                                         const Pegasus::String& nameSpace,
                                                         const Pegasus::CIMObjectPath& groupRef,
                                                         const Pegasus::CIMObjectPath& partRef);
  static Pegasus::CIMInstance component_build_instance(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       const Pegasus::CIMObjectPath& groupRef,
                                                       const Pegasus::CIMObjectPath& partRef);
  static Pegasus::CIMObject component_build_object(const char* className,
                                                   const Pegasus::String& nameSpace,
                                                   const Pegasus::CIMObjectPath& groupRef,
                                                   const Pegasus::CIMObjectPath& partRef);

  // A switch, by its interconnect element, in a VSAN.
  static Pegasus::CIMObjectPath component_fill_reference(const char* className,
                                                         const Pegasus::String& nameSpace,
                                                         vsanNewEntry_t* vsan,
                                                         mts_dm_sw_conf_* swConf,
                                                         fcs_cim_ie_* element);
  static Pegasus::CIMInstance component_build_instance(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       vsanNewEntry_t* vsan,
                                                       mts_dm_sw_conf_* swConf,
                                                       fcs_cim_ie_* element);
  static Pegasus::CIMObject component_build_object(const char* className,
                                                   const Pegasus::String& nameSpace,
                                                   vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf,
                                                   fcs_cim_ie_* element);

  // A port of the own switch. One that is an Ethernet port (a physical one, a channel of such ones,
  // the management port, FCIP, iSCSI) is of class "VEXOR_EthernetPort", whatever className says.
  // The instance asks as fcport_build_instance_pm of the CMPI face, the optics on that face's queue
  // (mts_q), deliberately.
  static Pegasus::CIMObjectPath fcport_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      pm_port_info_* port);
  static Pegasus::CIMInstance fcport_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    pm_port_info_* port);
  static Pegasus::CIMObject fcport_build_object(const char* className,
                                                const Pegasus::String& nameSpace,
                                                pm_port_info_* port);

  // The port at one end of a link between switches: at the end that advertised it for local not
  // zero, else at the far end. wwn (8 bytes) is that of the switch at that end, which is named by
  // itself for physical not zero, else by its part in the VSAN. index and flag are not used.
  static Pegasus::CIMObjectPath fcport_fill_reference(int index, const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      fspfLinkEntry* link, unsigned char* wwn,
                                                      unsigned char physical, unsigned char flag,
                                                      unsigned char local);
  static Pegasus::CIMInstance fcport_build_instance(int index, const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    fspfLinkEntry* link, unsigned char* wwn,
                                                    unsigned char physical, unsigned char flag,
                                                    unsigned char local);
  static Pegasus::CIMObject fcport_build_object(int index, const char* className,
                                                const Pegasus::String& nameSpace,
                                                fspfLinkEntry* link, unsigned char* wwn,
                                                unsigned char physical, unsigned char flag,
                                                unsigned char local);

  // The same by the WWN as a record.
  static Pegasus::CIMObjectPath fcport_fill_reference(int index, const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      fspfLinkEntry* link, wwn_* wwn,
                                                      unsigned char physical, unsigned char flag,
                                                      unsigned char local);
  static Pegasus::CIMInstance fcport_build_instance(int index, const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    fspfLinkEntry* link, wwn_* wwn,
                                                    unsigned char physical, unsigned char flag,
                                                    unsigned char local);
  static Pegasus::CIMObject fcport_build_object(int index, const char* className,
                                                const Pegasus::String& nameSpace,
                                                fspfLinkEntry* link, wwn_* wwn,
                                                unsigned char physical, unsigned char flag,
                                                unsigned char local);

  // The port at one end of an attachment: of the switch for fabric_side not zero, else of the
  // device. Does not throw for a path that cannot be made: one line says so, and there is none.
  static Pegasus::CIMObjectPath fcport_fill_reference(const char* className,
                                                      const Pegasus::String& nameSpace,
                                                      ns_api_register_req_* entry,
                                                      unsigned char physical,
                                                      unsigned char fabric_side);
  static Pegasus::CIMInstance fcport_build_instance(const char* className,
                                                    const Pegasus::String& nameSpace,
                                                    ns_api_register_req_* entry,
                                                    unsigned char physical,
                                                    unsigned char fabric_side);
  static Pegasus::CIMObject fcport_build_object(const char* className,
                                                const Pegasus::String& nameSpace,
                                                ns_api_register_req_* entry, unsigned char physical,
                                                unsigned char fabric_side);

  // The protocol endpoint at one end of a link; the domain manager is asked on `queue`.
  static Pegasus::CIMObjectPath pe_fill_reference(const char* className,
                                                  const Pegasus::String& nameSpace, int queue,
                                                  fspfLinkEntry* link, unsigned char local);
  static Pegasus::CIMInstance pe_build_instance(const char* className,
                                                const Pegasus::String& nameSpace, int queue,
                                                fspfLinkEntry* link, unsigned char local);
  static Pegasus::CIMObject pe_build_object(const char* className, const Pegasus::String& nameSpace,
                                            int queue, fspfLinkEntry* link, unsigned char local);

  // The protocol endpoint of a port of the own switch.
  static Pegasus::CIMObjectPath pe_fill_reference(const char* className,
                                                  const Pegasus::String& nameSpace,
                                                  pm_port_info_* port);
  static Pegasus::CIMInstance pe_build_instance(const char* className,
                                                const Pegasus::String& nameSpace,
                                                pm_port_info_* port);
  static Pegasus::CIMObject pe_build_object(const char* className, const Pegasus::String& nameSpace,
                                            pm_port_info_* port);

  // The protocol endpoint at one end of an attachment.
  static Pegasus::CIMObjectPath pe_fill_reference(const char* className,
                                                  const Pegasus::String& nameSpace,
                                                  ns_api_register_req_* entry,
                                                  unsigned char fabric_side);
  static Pegasus::CIMInstance pe_build_instance(const char* className,
                                                const Pegasus::String& nameSpace,
                                                ns_api_register_req_* entry,
                                                unsigned char fabric_side);
  static Pegasus::CIMObject pe_build_object(const char* className, const Pegasus::String& nameSpace,
                                            ns_api_register_req_* entry, unsigned char fabric_side);

  // The ports of one node, known by a text or by the node's WWN.
  static Pegasus::CIMObjectPath logical_port_group_fill_reference(const char* className,
                                                                  const Pegasus::String& nameSpace,
                                                                  const char* text);
  static Pegasus::CIMInstance logical_port_group_build_instance(const char* className,
                                                                const Pegasus::String& nameSpace,
                                                                const char* text);
  static Pegasus::CIMObject logical_port_group_build_object(const char* className,
                                                            const Pegasus::String& nameSpace,
                                                            const char* text);
  static Pegasus::CIMObjectPath logical_port_group_fill_reference(const char* className,
                                                                  const Pegasus::String& nameSpace,
                                                                  wwn_* wwn);
  static Pegasus::CIMInstance logical_port_group_build_instance(const char* className,
                                                                const Pegasus::String& nameSpace,
                                                                wwn_* wwn);
  static Pegasus::CIMObject logical_port_group_build_object(const char* className,
                                                            const Pegasus::String& nameSpace,
                                                            wwn_* wwn);

  // What a port has counted: by its interface index, and from its counters.
  static Pegasus::CIMObjectPath fcport_stat_fill_reference(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           unsigned int if_index);
  static Pegasus::CIMInstance fcport_stat_build_instance(const char* className,
                                                         const Pegasus::String& nameSpace,
                                                         fcIfAllCounters_t* counters);
  static Pegasus::CIMObject fcport_stat_build_object(const char* className,
                                                     const Pegasus::String& nameSpace,
                                                     fcIfAllCounters_t* counters);

  // Ties a port to its statistics, by two references: "ManagedElement", "Stats".
  static Pegasus::CIMObjectPath port_stat_fill_reference(const char* className,
                                                         const Pegasus::String& nameSpace,
                                                         const Pegasus::CIMObjectPath& portRef,
                                                         const Pegasus::CIMObjectPath& statRef);
  static Pegasus::CIMInstance port_stat_build_instance(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       const Pegasus::CIMObjectPath& portRef,
                                                       const Pegasus::CIMObjectPath& statRef);
  static Pegasus::CIMObject port_stat_build_object(const char* className,
                                                   const Pegasus::String& nameSpace,
                                                   const Pegasus::CIMObjectPath& portRef,
                                                   const Pegasus::CIMObjectPath& statRef);

  // The same for a port of the own switch.
  static Pegasus::CIMObjectPath port_stat_fill_reference(const char* className,
                                                         const Pegasus::String& nameSpace,
                                                         pm_port_info_* port);
  static Pegasus::CIMInstance port_stat_build_instance(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       pm_port_info_* port);
  static Pegasus::CIMObject port_stat_build_object(const char* className,
                                                   const Pegasus::String& nameSpace,
                                                   pm_port_info_* port);
  // Zoning objects, services and capabilities, and what ties them together. Unlike the other
  // members, these take the namespace first and the class name second, deliberately.

  // A zone set. Properties "ElementName" (its name) and "Active".
  static Pegasus::CIMObjectPath zone_set_fill_reference(const Pegasus::String& nameSpace,
                                                        const Pegasus::String& className,
                                                        const zs_cim_zone_set_* zoneSet);
  static Pegasus::CIMInstance zone_set_build_instance(const Pegasus::String& nameSpace,
                                                      const Pegasus::String& className,
                                                      const zs_cim_zone_set_* zoneSet);
  static Pegasus::CIMObject zone_set_build_object(const Pegasus::String& nameSpace,
                                                  const Pegasus::String& className,
                                                  const zs_cim_zone_set_* zoneSet);

  // A zone. Properties "ElementName", "Active", "ProtocolType", "ReadOnly", "ZoneType".
  static Pegasus::CIMObjectPath zone_fill_reference(const Pegasus::String& nameSpace,
                                                    const Pegasus::String& className,
                                                    const zs_cim_zone_* zone);
  static Pegasus::CIMInstance zone_build_instance(const Pegasus::String& nameSpace,
                                                  const Pegasus::String& className,
                                                  const zs_cim_zone_* zone);
  static Pegasus::CIMObject zone_build_object(const Pegasus::String& nameSpace,
                                              const Pegasus::String& className,
                                              const zs_cim_zone_* zone);

  // A zone alias. Properties "ElementName" and "CollectionAlias" (its name) and "Active".
  static Pegasus::CIMObjectPath zone_alias_fill_reference(const Pegasus::String& nameSpace,
                                                          const Pegasus::String& className,
                                                          const zs_cim_alias_* alias);
  static Pegasus::CIMInstance zone_alias_build_instance(const Pegasus::String& nameSpace,
                                                        const Pegasus::String& className,
                                                        const zs_cim_alias_* alias);
  static Pegasus::CIMObject zone_alias_build_object(const Pegasus::String& nameSpace,
                                                    const Pegasus::String& className,
                                                    const zs_cim_alias_* alias);

  // A member of a zone or an alias. Properties "ConnectivityMemberID" (its display text) and
  // "ConnectivityMemberType".
  static Pegasus::CIMObjectPath zone_member_fill_reference(const Pegasus::String& nameSpace,
                                                           const Pegasus::String& className,
                                                           const zs_cim_zone_member_* member);
  static Pegasus::CIMInstance zone_member_build_instance(const Pegasus::String& nameSpace,
                                                         const Pegasus::String& className,
                                                         const zs_cim_zone_member_* member);
  static Pegasus::CIMObject zone_member_build_object(const Pegasus::String& nameSpace,
                                                     const Pegasus::String& className,
                                                     const zs_cim_zone_member_* member);

  // The zone service of a VSAN. Keys "Name" (the VSAN number), "SystemName" (the VSAN's key text,
  // for which the VSAN manager and the domain manager are asked; the number when they do not
  // answer), "SystemCreationClassName", "CreationClassName". The instance asks the zone server for
  // the default policy, property "defaultZoningState".
  static Pegasus::CIMObjectPath zone_service_fill_reference(const Pegasus::String& nameSpace,
                                                            const Pegasus::String& className,
                                                            int vsan);
  static Pegasus::CIMInstance zone_service_build_instance(const Pegasus::String& nameSpace,
                                                          const Pegasus::String& className,
                                                          int vsan);
  static Pegasus::CIMObject zone_service_build_object(const Pegasus::String& nameSpace,
                                                      const Pegasus::String& className, int vsan);

  // What zone servers can do: constants. Asks no service.
  static Pegasus::CIMObjectPath zone_cap_fill_reference(const Pegasus::String& nameSpace,
                                                        const Pegasus::String& className,
                                                        const char* instanceId);
  static Pegasus::CIMInstance zone_cap_build_instance(const Pegasus::String& nameSpace,
                                                      const Pegasus::String& className,
                                                      const char* instanceId);
  static Pegasus::CIMObject zone_cap_build_object(const Pegasus::String& nameSpace,
                                                  const Pegasus::String& className,
                                                  const char* instanceId);

  // A zone in a zone set, by their instance ids: "Collection", "Member".
  static Pegasus::CIMObjectPath zmoc_fill_reference_zoneSetZone(const Pegasus::String& nameSpace,
                                                                const Pegasus::String& className,
                                                                const char* zoneSetId,
                                                                const char* zoneId);
  static Pegasus::CIMInstance zmoc_build_instance_zoneSetZone(const Pegasus::String& nameSpace,
                                                              const Pegasus::String& className,
                                                              const char* zoneSetId,
                                                              const char* zoneId);
  static Pegasus::CIMObject zmoc_build_object_zoneSetZone(const Pegasus::String& nameSpace,
                                                          const Pegasus::String& className,
                                                          const char* zoneSetId,
                                                          const char* zoneId);

  // An alias in a zone: "Collection", "Member".
  static Pegasus::CIMObjectPath zmoc_fill_reference(const Pegasus::String& nameSpace,
                                                    const Pegasus::String& className,
                                                    const zs_cim_zone_* zone,
                                                    const zs_cim_alias_* alias);
  static Pegasus::CIMInstance zmoc_build_instance(const Pegasus::String& nameSpace,
                                                  const Pegasus::String& className,
                                                  const zs_cim_zone_* zone,
                                                  const zs_cim_alias_* alias);
  static Pegasus::CIMObject zmoc_build_object(const Pegasus::String& nameSpace,
                                              const Pegasus::String& className,
                                              const zs_cim_zone_* zone, const zs_cim_alias_* alias);

  // A member of a zone: "ManagedElement", "SettingData".
  static Pegasus::CIMObjectPath esd_fill_reference_zoneZoneMember(
      const Pegasus::String& nameSpace, const Pegasus::String& className, const zs_cim_zone_* zone,
      const zs_cim_zone_member_* member);
  static Pegasus::CIMInstance esd_build_instance_zoneZoneMember(const Pegasus::String& nameSpace,
                                                                const Pegasus::String& className,
                                                                const zs_cim_zone_* zone,
                                                                const zs_cim_zone_member_* member);
  static Pegasus::CIMObject esd_build_object_zoneZoneMember(const Pegasus::String& nameSpace,
                                                            const Pegasus::String& className,
                                                            const zs_cim_zone_* zone,
                                                            const zs_cim_zone_member_* member);

  // A member of an alias: "ManagedElement", "SettingData".
  static Pegasus::CIMObjectPath esd_fill_reference_zoneAliasZoneMember(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const zs_cim_alias_* alias, const zs_cim_zone_member_* member);
  static Pegasus::CIMInstance esd_build_instance_zoneAliasZoneMember(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const zs_cim_alias_* alias, const zs_cim_zone_member_* member);
  static Pegasus::CIMObject esd_build_object_zoneAliasZoneMember(const Pegasus::String& nameSpace,
                                                                 const Pegasus::String& className,
                                                                 const zs_cim_alias_* alias,
                                                                 const zs_cim_zone_member_* member);

  // The connectivity collection that a VSAN hosts: "Antecedent" the VSAN, "Dependent" the
  // collection of that number.
  static Pegasus::CIMObjectPath hosted_collection_fill_reference(const Pegasus::String& nameSpace,
                                                                 const Pegasus::String& className,
                                                                 vsanNewEntry_t* vsan,
                                                                 mts_dm_sw_conf_* swConf,
                                                                 int number);
  static Pegasus::CIMInstance hosted_collection_build_instance(const Pegasus::String& nameSpace,
                                                               const Pegasus::String& className,
                                                               vsanNewEntry_t* vsan,
                                                               mts_dm_sw_conf_* swConf, int number);
  static Pegasus::CIMObject hosted_collection_build_object(const Pegasus::String& nameSpace,
                                                           const Pegasus::String& className,
                                                           vsanNewEntry_t* vsan,
                                                           mts_dm_sw_conf_* swConf, int number);

  // A zone set that a VSAN hosts: "Antecedent", "Dependent".
  static Pegasus::CIMObjectPath hosted_collection_fill_reference_zset(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_zone_set_* zoneSet);
  static Pegasus::CIMInstance hosted_collection_build_instance_zset(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_zone_set_* zoneSet);
  static Pegasus::CIMObject hosted_collection_build_object_zset(const Pegasus::String& nameSpace,
                                                                const Pegasus::String& className,
                                                                vsanNewEntry_t* vsan,
                                                                mts_dm_sw_conf_* swConf,
                                                                const zs_cim_zone_set_* zoneSet);

  // A zone that a VSAN hosts: "Antecedent", "Dependent".
  static Pegasus::CIMObjectPath hosted_collection_fill_reference_zone(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_zone_* zone);
  static Pegasus::CIMInstance hosted_collection_build_instance_zone(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_zone_* zone);
  static Pegasus::CIMObject hosted_collection_build_object_zone(const Pegasus::String& nameSpace,
                                                                const Pegasus::String& className,
                                                                vsanNewEntry_t* vsan,
                                                                mts_dm_sw_conf_* swConf,
                                                                const zs_cim_zone_* zone);

  // An alias that a VSAN hosts: "Antecedent", "Dependent".
  static Pegasus::CIMObjectPath hosted_collection_fill_reference_zalias(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_alias_* alias);
  static Pegasus::CIMInstance hosted_collection_build_instance_zalias(
      const Pegasus::String& nameSpace, const Pegasus::String& className, vsanNewEntry_t* vsan,
      mts_dm_sw_conf_* swConf, const zs_cim_alias_* alias);
  static Pegasus::CIMObject hosted_collection_build_object_zalias(const Pegasus::String& nameSpace,
                                                                  const Pegasus::String& className,
                                                                  vsanNewEntry_t* vsan,
                                                                  mts_dm_sw_conf_* swConf,
                                                                  const zs_cim_alias_* alias);

  // A member of a collection, by two references: "Collection", "Member".
  static Pegasus::CIMObjectPath zmoc_fill_reference_MemberCollection(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const Pegasus::CIMObjectPath& collectionRef, const Pegasus::CIMObjectPath& memberRef);
  static Pegasus::CIMInstance zmoc_build_instance_MemberCollection(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const Pegasus::CIMObjectPath& collectionRef, const Pegasus::CIMObjectPath& memberRef);
  static Pegasus::CIMObject zmoc_build_object_MemberCollection(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const Pegasus::CIMObjectPath& collectionRef, const Pegasus::CIMObjectPath& memberRef);

  // A collection and its host, by two references: "Antecedent", "Dependent".
  static Pegasus::CIMObjectPath zone_hosted_collection_fill_reference(
      const Pegasus::String& nameSpace, const Pegasus::String& className,
      const Pegasus::CIMObjectPath& hostRef, const Pegasus::CIMObjectPath& collectionRef);
  static Pegasus::CIMInstance zhc_build_instance(const Pegasus::String& nameSpace,
                                                 const Pegasus::String& className,
                                                 const Pegasus::CIMObjectPath& hostRef,
                                                 const Pegasus::CIMObjectPath& collectionRef);
  static Pegasus::CIMObject zhc_build_object(const Pegasus::String& nameSpace,
                                             const Pegasus::String& className,
                                             const Pegasus::CIMObjectPath& hostRef,
                                             const Pegasus::CIMObjectPath& collectionRef);

  // The zone service that a VSAN hosts. Class name first, unlike the other zoning members,
  // deliberately.
  static Pegasus::CIMObjectPath hosted_service_fill_reference(const Pegasus::String& className,
                                                              const Pegasus::String& nameSpace,
                                                              vsanNewEntry_t* vsan,
                                                              mts_dm_sw_conf_* swConf);
  static Pegasus::CIMInstance hosted_service_build_instance(const Pegasus::String& className,
                                                            const Pegasus::String& nameSpace,
                                                            vsanNewEntry_t* vsan,
                                                            mts_dm_sw_conf_* swConf);
  static Pegasus::CIMObject hosted_service_build_object(const Pegasus::String& className,
                                                        const Pegasus::String& nameSpace,
                                                        vsanNewEntry_t* vsan,
                                                        mts_dm_sw_conf_* swConf);
  // The product. The reference takes the namespace first, deliberately.
  static Pegasus::CIMObjectPath product_fill_reference(const Pegasus::String& nameSpace,
                                                       const char* className);
  static Pegasus::CIMInstance product_build_instance(const char* className,
                                                     const Pegasus::String& nameSpace);
  static Pegasus::CIMObject product_build_object(const char* className,
                                                 const Pegasus::String& nameSpace);

  // The chassis. The reference takes the namespace first, deliberately. The instance asks the
  // platform manager for the serial PROM.
  static Pegasus::CIMObjectPath physical_package_fill_reference(const Pegasus::String& nameSpace,
                                                                const char* className);
  static Pegasus::CIMInstance physical_package_build_instance(const char* className,
                                                              const Pegasus::String& nameSpace);
  static Pegasus::CIMObject physical_package_build_object(const char* className,
                                                          const Pegasus::String& nameSpace);

  // The physical side of an interface.
  static Pegasus::CIMObjectPath physical_element_fill_reference(const char* className,
                                                                const Pegasus::String& nameSpace,
                                                                pm_port_info_* info);
  static Pegasus::CIMInstance physical_element_build_instance(const char* className,
                                                              const Pegasus::String& nameSpace,
                                                              pm_port_info_* info);
  static Pegasus::CIMObject physical_element_build_object(const char* className,
                                                          const Pegasus::String& nameSpace,
                                                          pm_port_info_* info);

  // A line card or a supervisor. Key "CreationClassName" of the reference is VEXOR_LogicalModule,
  // whatever class is given, deliberately.
  static Pegasus::CIMObjectPath logical_module_fill_reference(const Pegasus::String& className,
                                                              const Pegasus::String& nameSpace,
                                                              _vefcModuleEntry* module);
  static Pegasus::CIMInstance logical_module_build_instance(const Pegasus::String& className,
                                                            const Pegasus::String& nameSpace,
                                                            _vefcModuleEntry* module,
                                                            _entPhysicalEntry* entity);
  static Pegasus::CIMObject logical_module_build_object(const Pegasus::String& className,
                                                        const Pegasus::String& nameSpace,
                                                        _vefcModuleEntry* module,
                                                        _entPhysicalEntry* entity);

  // The chassis of the own switch. The instance is a VEXOR_ComputerSystemPackage, whatever class is
  // given, deliberately; its path keeps the given class.
  static Pegasus::CIMObjectPath switch_package_fill_reference(char* className,
                                                              const Pegasus::String& nameSpace);
  static Pegasus::CIMInstance switch_package_build_instance(char* className,
                                                            const Pegasus::String& nameSpace);
  static Pegasus::CIMObject switch_package_build_object(char* className,
                                                        const Pegasus::String& nameSpace);

  // What a logical object is made of: "Antecedent" the physical one, "Dependent" the logical one.
  static Pegasus::CIMObjectPath realize_fill_reference(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       Pegasus::CIMObjectPath physicalRef,
                                                       Pegasus::CIMObjectPath logicalRef);
  static Pegasus::CIMInstance realize_build_instance(const char* className,
                                                     const Pegasus::String& nameSpace,
                                                     Pegasus::CIMObjectPath physicalRef,
                                                     Pegasus::CIMObjectPath logicalRef);
  static Pegasus::CIMObject realize_build_object(const char* className,
                                                 const Pegasus::String& nameSpace,
                                                 Pegasus::CIMObjectPath physicalRef,
                                                 Pegasus::CIMObjectPath logicalRef);
  // One thing known as two: "SystemElement", "SameElement".
  // The instance is a VEXOR_LogicalIdentity whatever class is given, deliberately; the reference
  // keeps the given class.
  static Pegasus::CIMObjectPath logical_identity_fill_reference(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& systemRef, const Pegasus::CIMObjectPath& sameRef);
  static Pegasus::CIMInstance logical_identity_build_instance(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& systemRef, const Pegasus::CIMObjectPath& sameRef);
  static Pegasus::CIMObject logical_identity_build_object(const char* className,
                                                          const Pegasus::String& nameSpace,
                                                          const Pegasus::CIMObjectPath& systemRef,
                                                          const Pegasus::CIMObjectPath& sameRef);

  // What a system hosts: "Antecedent" the host, "Dependent" the hosted.
  static Pegasus::CIMObjectPath hosted_dependency_fill_reference(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& hostRef, const Pegasus::CIMObjectPath& hostedRef);
  static Pegasus::CIMInstance hosted_dependency_build_instance(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& hostRef, const Pegasus::CIMObjectPath& hostedRef);
  static Pegasus::CIMObject hosted_dependency_build_object(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           const Pegasus::CIMObjectPath& hostRef,
                                                           const Pegasus::CIMObjectPath& hostedRef);

  // An access point that a system hosts: "Antecedent" the system, "Dependent" the access point.
  static Pegasus::CIMObjectPath hosted_access_point_fill_reference(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath systemRef,
      Pegasus::CIMObjectPath accessPointRef);
  static Pegasus::CIMInstance hosted_access_point_build_instance(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath systemRef,
      Pegasus::CIMObjectPath accessPointRef);
  static Pegasus::CIMObject hosted_access_point_build_object(const char* className,
                                                             const Pegasus::String& nameSpace,
                                                             Pegasus::CIMObjectPath systemRef,
                                                             Pegasus::CIMObjectPath accessPointRef);

  // An access point that a device implements: "Antecedent" the device, "Dependent" the access
  // point.
  static Pegasus::CIMObjectPath device_sap_implementation_fill_reference(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath deviceRef,
      Pegasus::CIMObjectPath accessPointRef);
  static Pegasus::CIMInstance device_sap_implementation_build_instance(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath deviceRef,
      Pegasus::CIMObjectPath accessPointRef);
  static Pegasus::CIMObject device_sap_implementation_build_object(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath deviceRef,
      Pegasus::CIMObjectPath accessPointRef);

  // Two connected endpoints: "Antecedent", "Dependent".
  static Pegasus::CIMObjectPath active_connection_fill_reference(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& fromRef, const Pegasus::CIMObjectPath& toRef);
  static Pegasus::CIMInstance active_connection_build_instance(
      const char* className, const Pegasus::String& nameSpace,
      const Pegasus::CIMObjectPath& fromRef, const Pegasus::CIMObjectPath& toRef);
  static Pegasus::CIMObject active_connection_build_object(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           const Pegasus::CIMObjectPath& fromRef,
                                                           const Pegasus::CIMObjectPath& toRef);

  // A port of a node: "Collection" the port group, "Member" the port.
  static Pegasus::CIMObjectPath fcnode_member_collection_fill_reference(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath groupRef,
      Pegasus::CIMObjectPath portRef);
  static Pegasus::CIMInstance fcnode_member_collection_build_instance(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath groupRef,
      Pegasus::CIMObjectPath portRef);
  static Pegasus::CIMObject fcnode_member_collection_build_object(const char* className,
                                                                  const Pegasus::String& nameSpace,
                                                                  Pegasus::CIMObjectPath groupRef,
                                                                  Pegasus::CIMObjectPath portRef);

  // A member of a connectivity collection: "Collection", "Member".
  static Pegasus::CIMObjectPath connectivity_member_collection_fill_reference(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath collectionRef,
      Pegasus::CIMObjectPath memberRef);
  static Pegasus::CIMInstance connectivity_member_collection_build_instance(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath collectionRef,
      Pegasus::CIMObjectPath memberRef);
  static Pegasus::CIMObject connectivity_member_collection_build_object(
      const char* className, const Pegasus::String& nameSpace, Pegasus::CIMObjectPath collectionRef,
      Pegasus::CIMObjectPath memberRef);

  // A device of a system: "GroupComponent", "PartComponent".
  static Pegasus::CIMObjectPath system_device_fill_reference(const char* className,
                                                             const Pegasus::String& nameSpace,
                                                             Pegasus::CIMObjectPath systemRef,
                                                             Pegasus::CIMObjectPath deviceRef);
  static Pegasus::CIMInstance system_device_build_instance(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           Pegasus::CIMObjectPath systemRef,
                                                           Pegasus::CIMObjectPath deviceRef);
  static Pegasus::CIMObject system_device_build_object(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       Pegasus::CIMObjectPath systemRef,
                                                       Pegasus::CIMObjectPath deviceRef);

  // The connection of a link between switches: "Antecedent" its far end, "Dependent" the end that
  // advertised it. interface is the queue handle on which the domain manager is asked for the
  // switches of both ends.
  static Pegasus::CIMObjectPath active_connection_fill_reference(const char* className,
                                                                 const Pegasus::String& nameSpace,
                                                                 fspfLinkEntry* link,
                                                                 int interface);
  static Pegasus::CIMInstance active_connection_build_instance(const char* className,
                                                               const Pegasus::String& nameSpace,
                                                               fspfLinkEntry* link, int interface);
  static Pegasus::CIMObject active_connection_build_object(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           fspfLinkEntry* link, int interface);

  // The connection of a device: "Antecedent" the fabric's side, "Dependent" the device's; the other
  // way round than for links, deliberately.
  static Pegasus::CIMObjectPath active_connection_fill_reference(const char* className,
                                                                 const Pegasus::String& nameSpace,
                                                                 ns_api_register_req_* entry);
  static Pegasus::CIMInstance active_connection_build_instance(const char* className,
                                                               const Pegasus::String& nameSpace,
                                                               ns_api_register_req_* entry);
  static Pegasus::CIMObject active_connection_build_object(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           ns_api_register_req_* entry);

  // The port at the end of a link that advertised it, on the switch of a domain. A switch of the
  // maker is seen as its part in the VSAN, another as a device. index is handed to the port's
  // builder.
  static Pegasus::CIMObjectPath system_device_fill_reference(int index, const char* className,
                                                             const Pegasus::String& nameSpace,
                                                             mts_dm_sw_dom_list_info_* entry,
                                                             fspfLinkEntry* link);
  static Pegasus::CIMInstance system_device_build_instance(int index, const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           mts_dm_sw_dom_list_info_* entry,
                                                           fspfLinkEntry* link);
  static Pegasus::CIMObject system_device_build_object(int index, const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       mts_dm_sw_dom_list_info_* entry,
                                                       fspfLinkEntry* link);

  // A device's port among the ports of its node.
  static Pegasus::CIMObjectPath fcnode_member_collection_fill_reference(
      const char* className, const Pegasus::String& nameSpace, ns_api_register_req_* entry);
  static Pegasus::CIMInstance fcnode_member_collection_build_instance(
      const char* className, const Pegasus::String& nameSpace, ns_api_register_req_* entry);
  static Pegasus::CIMObject fcnode_member_collection_build_object(const char* className,
                                                                  const Pegasus::String& nameSpace,
                                                                  ns_api_register_req_* entry);

  // The port of the device of one name-server entry, on the switch that the device of another is
  // attached to.
  static Pegasus::CIMObjectPath system_device_fill_reference(const char* className,
                                                             const Pegasus::String& nameSpace,
                                                             ns_api_register_req_* attached,
                                                             ns_api_register_req_* device);
  static Pegasus::CIMInstance system_device_build_instance(const char* className,
                                                           const Pegasus::String& nameSpace,
                                                           ns_api_register_req_* attached,
                                                           ns_api_register_req_* device);
  static Pegasus::CIMObject system_device_build_object(const char* className,
                                                       const Pegasus::String& nameSpace,
                                                       ns_api_register_req_* attached,
                                                       ns_api_register_req_* device);
};

// Assigns to `property` a new one with the given name and an array whose only element is `value`,
// narrowed to 16 bits.
CIM_UTILS_EXPORT void getUIntArrayProperty(Pegasus::CIMProperty& property, char* name, int value);

// The same with a text.
CIM_UTILS_EXPORT void getStringArrayProperty(Pegasus::CIMProperty& property, char* name,
                                             char* value);
