/* CMPI-face builders of ports, their protocol endpoints, groups, statistics, capabilities and
 * settings. The conventions are those of cmpi_builders.h; mind the functions that take the
 * namespace first. Records are the caller's, in host order. A path that the broker does not give is
 * null. Every property list is applied: the keys and what the list names. */
#ifndef CIM_UTILS_CMPI_PORTS_H
#define CIM_UTILS_CMPI_PORTS_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_port_manager.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Ports of the own switch --------------------------------------------------------------- */

/* The path of a port. Physical Ethernet ports, Ethernet channels, the management port, FCIP and
 * iSCSI interfaces are of class "VEXOR_EthernetPort", whatever className says. Keys: "DeviceID",
 * the interface index as a signed decimal; "SystemName", the WWN of the switch that the port's WWN
 * tells or "unknown system", and of an Ethernet port the name of the interface;
 * "SystemCreationClassName" "VEXOR_PhysicalComputerSystem"; "CreationClassName". Asks no service.
 */
CIM_UTILS_EXPORT CMPIObjectPath* fcport_fill_reference_pm(const char* nameSpace,
                                                          const char* className,
                                                          const pm_port_info_* port,
                                                          const CMPIBroker* broker);

/* The port. Asks, on mts_q:
 * - the VSAN manager for the port's VSAN. Without it, and for a port in none, a line says so and
 *   "VsanId", "VsanName" and "PeerPortWWN" are left out;
 * - for a port in mode 4 or 8 (E) the domain manager and FSPF for "PeerPortWWN", which is left out
 *   in other modes, where FSPF knows no link, and, with a line that says so, where the domain
 *   manager does not answer. The device on an F port is not told here;
 * - while optics are plugged in, the port manager for them, up to 20 seconds: "PortAvailability" is
 *   2 with supported optics, 5 with others, 4 without any, and 2 after a line that says so when the
 *   port manager does not answer or the interface is no FC port.
 * "PortNumber" is a uint16, but the interface index as a sint32 for port 0 and for interfaces
 * without a port number, deliberately. */
CIM_UTILS_EXPORT CMPIInstance* fcport_build_instance_pm(const char* className,
                                                        const char* nameSpace,
                                                        const pm_port_info_* port,
                                                        const char** propertyList,
                                                        const CMPIBroker* broker);

/* ---- Ports at the ends of links and attachments -------------------------------------------- */

/* The path of the port at one end of a link: at the end that advertised it for local not zero, else
 * at the far end. wwn (8 bytes) is that of the switch at that end; index and flag are not used,
 * callers pass 1 as the flag. For physical not zero the switch is a
 * "VEXOR_PhysicalComputerSystem" by its own WWN, without VSAN, and "DeviceID" the physical link
 * name, or "WWN_INTERFACE" where that cannot be formed; else the switch is a
 * "VEXOR_LogicalComputerSystem" by the WWN as given, and "DeviceID" the link name, or
 * "WWN_WORD0_INTERFACE". A "DeviceID" is cut to 31 characters. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* fcport_fill_reference_fspf_wwn(
    int index, const char* nameSpace, const char* className, const fspfLinkEntry* link,
    const uint8_t* wwn, unsigned char physical, unsigned char flag, unsigned char local,
    const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcport_fill_reference_fspf_wwnt(
    int index, const char* nameSpace, const char* className, const fspfLinkEntry* link,
    const wwn_* wwn, unsigned char physical, unsigned char flag, unsigned char local,
    const CMPIBroker* broker);

/* The port: the keys, and what the link tells. "PermanentAddress" is the WWN that the switch gives
 * its port, left out where that has none; "VsanId" is left out for physical not zero. Asks no
 * service. */
CIM_UTILS_EXPORT CMPIInstance* fcport_build_instance_fspf_wwn(
    int index, const char* className, const char* nameSpace, const fspfLinkEntry* link,
    const uint8_t* wwn, unsigned char physical, unsigned char flag, unsigned char local,
    const char** propertyList, const CMPIBroker* broker);

/* The path of the port at one end of an attachment: of the switch for fabric_side not zero, else of
 * the device. "DeviceID" is the link name of the name server, the physical one for physical not
 * zero. "SystemName" is the WWN of the switch that the device's port WWN tells, as a device for
 * physical not zero, else in the entry's VSAN; "unknown system" where it tells none. The switch is
 * a "VEXOR_PhysicalComputerSystem", else on the fabric side a "VEXOR_LogicalComputerSystem" and on
 * the device's side the "VEXOR_Vsan". Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* fcport_fill_reference_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    unsigned char physical, unsigned char fabric_side, const CMPIBroker* broker);

/* The port: the keys, and what the entry tells. Node WWN, FC ID and FC-4 types are told on the
 * device's side only. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* fcport_build_instance_ns(
    const char* className, const char* nameSpace, const ns_api_register_req_* entry,
    unsigned char physical, unsigned char fabric_side, const char** propertyList,
    const CMPIBroker* broker);

/* ---- Capabilities and settings ------------------------------------------------------------- */

/* What a port of the own switch can be set to. Key "InstanceID": the interface index as an unsigned
 * decimal. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* fcport_cap_build_instance(const char* className,
                                                         const char* nameSpace,
                                                         const pm_port_info_* port,
                                                         const char** propertyList,
                                                         const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcport_cap_fill_reference(const char* className,
                                                           const char* nameSpace,
                                                           const pm_port_info_* port,
                                                           const CMPIBroker* broker);

/* How it is set: admin speed and admin mode. The same key. Asks no service. */
CIM_UTILS_EXPORT CMPIInstance* fcport_set_build_instance(const char* className,
                                                         const char* nameSpace,
                                                         const pm_port_info_* port,
                                                         const char** propertyList,
                                                         const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* fcport_set_fill_reference(const char* className,
                                                           const char* nameSpace,
                                                           const pm_port_info_* port,
                                                           const CMPIBroker* broker);

/* ---- Protocol endpoints -------------------------------------------------------------------- */

/* The endpoint at one end of a link. Keys: "Name", the link name of that end or "none";
 * "SystemName", the WWN of the switch of that end, which the domain manager is asked for on
 * `queue`, empty where it does not tell; "SystemCreationClassName" "VEXOR_LogicalComputerSystem";
 * "CreationClassName". */
CIM_UTILS_EXPORT CMPIObjectPath* pe_fill_reference_fspf(const char* className,
                                                        const char* nameSpace, int queue,
                                                        const fspfLinkEntry* link,
                                                        unsigned char local,
                                                        const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* pe_build_instance_fspf(const char* className, const char* nameSpace,
                                                      int queue, const fspfLinkEntry* link,
                                                      unsigned char local,
                                                      const char** propertyList,
                                                      const CMPIBroker* broker);

/* The endpoint of a port of the own switch: "Name" is the port's WWN, "SystemName" the WWN of the
 * switch that this tells, or empty. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* pe_fill_reference_pm(const char* className, const char* nameSpace,
                                                      const pm_port_info_* port,
                                                      const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* pe_build_instance_pm(const char* className, const char* nameSpace,
                                                    const pm_port_info_* port,
                                                    const char** propertyList,
                                                    const CMPIBroker* broker);

/* The endpoint at one end of an attachment: "Name" is the endpoint link name of the name server,
 * "SystemName" the WWN, in the entry's VSAN, of the switch that the device's port WWN tells, or
 * empty. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* pe_fill_reference_ns(const char* className, const char* nameSpace,
                                                      const ns_api_register_req_* entry,
                                                      unsigned char fabric_side,
                                                      const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* pe_build_instance_ns(const char* className, const char* nameSpace,
                                                    const ns_api_register_req_* entry,
                                                    unsigned char fabric_side,
                                                    const char** propertyList,
                                                    const CMPIBroker* broker);

/* ---- Port groups --------------------------------------------------------------------------- */

/* The ports of one node. Key "InstanceID": the text, or the text of the WWN; "ElementName" is the
 * same. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* logical_port_group_fill_reference_str(const char* nameSpace,
                                                                       const char* className,
                                                                       const char* text,
                                                                       const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* logical_port_group_fill_reference(const char* className,
                                                                   const char* nameSpace,
                                                                   const wwn_* wwn,
                                                                   const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* logical_port_group_build_instance_str(const char* className,
                                                                     const char* nameSpace,
                                                                     const char* text,
                                                                     const char** propertyList,
                                                                     const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* logical_port_group_build_instance(const char* className,
                                                                 const char* nameSpace,
                                                                 const wwn_* wwn,
                                                                 const char** propertyList,
                                                                 const CMPIBroker* broker);

/* ---- Statistics ---------------------------------------------------------------------------- */

/* What a port has counted. Key "InstanceID": the interface index as an unsigned decimal.
 * "PacketsTransmitted" is the sum of the frames received and "PacketsReceived" that of the frames
 * transmitted, deliberately. Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* fcport_stat_fill_reference(const char* nameSpace,
                                                            const char* className,
                                                            uint32_t if_index,
                                                            const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* fcport_stat_build_instance(const char* className,
                                                          const char* nameSpace,
                                                          const fcIfAllCounters_t* counters,
                                                          const char** propertyList,
                                                          const CMPIBroker* broker);

/* Ties a port to its statistics, by two references: "ManagedElement", "Stats". */
CIM_UTILS_EXPORT CMPIObjectPath* port_stat_fill_reference(const char* className,
                                                          const char* nameSpace,
                                                          const CMPIObjectPath* portRef,
                                                          const CMPIObjectPath* statRef,
                                                          const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* port_stat_build_instance(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* portRef,
                                                        const CMPIObjectPath* statRef,
                                                        const CMPIBroker* broker);

/* The same for a port of the own switch, whose references are made first: a "VEXOR_FCPort" (or
 * "VEXOR_EthernetPort") and a "VEXOR_FCPortStatistics". Asks no service. */
CIM_UTILS_EXPORT CMPIObjectPath* port_stat_fill_reference_pm(const char* className,
                                                             const char* nameSpace,
                                                             const pm_port_info_* port,
                                                             const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIInstance* port_stat_build_instance_pm(const char* className,
                                                           const char* nameSpace,
                                                           const pm_port_info_* port,
                                                           const CMPIBroker* broker);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_PORTS_H */
