/* The devices logged into the fabric, from the name server, and the texts by which CIM objects name
 * their attachments to it.
 *
 * Conventions:
 * - C linkage. session is the caller's queue handle. 0 is success and -1 failure unless stated; a
 *   failure is printed on standard output. A null pointer argument is a failure.
 * - Arrays come from the C heap; the caller frees them with free(), after a failure too: the
 *   out-parameter is null unless an array was allocated before the failure. A count is 0 until
 *   entries were read. A reply that announces a negative number of them, or more than there are FC
 *   IDs, is a failure.
 * - Lists own their elements and are released with cim_g_slist_destroy; *list is the head, in and
 *   out. Elements are ns_api_register_req_ records of 768 bytes.
 * - A lookup waits at most 10 seconds for the name server's reply, and asks it once unless stated.
 * - WWNs are 8 bytes, most significant first; WWN texts 16 hexadecimal digits.
 */
#ifndef CIM_UTILS_NAME_SERVER_H
#define CIM_UTILS_NAME_SERVER_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What a link name begins with: the side of an attachment that it names, and of what device. */
enum ns_cim_link_name_code {
  NS_CIM_FABRIC_SIDE = 2,        /* the switch port of a Fibre Channel device */
  NS_CIM_NODE_SIDE = 3,          /* the port of a Fibre Channel device */
  NS_CIM_NODE = 7,               /* a node; only of ns_cim_get_all_name_server_entries_with_wwn */
  NS_CIM_ISCSI_FABRIC_SIDE = 11, /* the switch port of an iSCSI device */
  NS_CIM_ISCSI_NODE_SIDE = 27    /* the port of an iSCSI device */
};

/* Room for every name written here, in bytes. */
enum { CIM_NS_LINK_NAME_ROOM = 128 };

/* ---- Link names --------------------------------------------------------------------------- */

/* Write the name of one side of a device's attachment, the switch port's for fabric_side non-zero,
 * else the device port's. The code is that of the side and the kind of device. Room:
 * CIM_NS_LINK_NAME_ROOM. Result: 0; -1 for a null argument. */

/* "CODE_VSAN_WWN", with the WWN of the switch port or of the device port. */
CIM_UTILS_EXPORT int32_t ns_cim_get_link_name(const ns_api_register_req_* entry, char* dst,
                                              int32_t fabric_side);
/* "CODE_VSAN_WWN", with the WWN of the device port for both sides. */
CIM_UTILS_EXPORT int32_t ns_cim_get_pe_link_name(const ns_api_register_req_* entry, char* dst,
                                                 int32_t fabric_side);
/* "CODE_WWN", with the WWN of the switch port or of the device port. */
CIM_UTILS_EXPORT int32_t ns_cim_get_physical_link_name(const ns_api_register_req_* entry, char* dst,
                                                       int32_t fabric_side);

/* Reads "CODE_VSAN_WWN", of which only the first 31 characters count. The code is 2, 3, 11 or 27;
 * the VSAN is read as far as it is decimal, without a test of its range; the WWN is any 16
 * characters, stored with a terminator (room 17). -1 for anything else; the parts before the wrong
 * one, and a wrong code, are stored then. */
CIM_UTILS_EXPORT int32_t ns_cim_get_fields_from_name(const char* name, int32_t* code_out,
                                                     int32_t* vsan_out, char* wwn_out);

/* Reads "CODE_WWN" in the same way. */
CIM_UTILS_EXPORT int32_t ns_cim_get_fields_from_physical_name(const char* name, int32_t* code_out,
                                                              char* wwn_out);

/* ---- Lookups ------------------------------------------------------------------------------ */

/* The registered ports with the port WWN (by_node 0), or of the node with the node WWN, in a VSAN.
 * No such port is a success with a count of 0, where the name server says so. */
CIM_UTILS_EXPORT int32_t ns_cim_get_node_or_nxport_with_wwn_byte_array(
    int32_t session, uint32_t vsan, const uint8_t wwn[8], int32_t by_node, int32_t* count_out,
    ns_api_register_req_** entries_out);
CIM_UTILS_EXPORT int32_t ns_cim_get_node_or_nxport_with_wwn(int32_t session, uint32_t vsan,
                                                            const wwn_* wwn, int32_t by_node,
                                                            int32_t* count_out,
                                                            ns_api_register_req_** entries_out);
/* The same for a WWN text; -1 when it does not parse. */
CIM_UTILS_EXPORT int32_t ns_cim_get_node_or_nxport_with_string_wwn(
    int32_t session, uint32_t vsan, const char* wwn_text, int32_t by_node, int32_t* count_out,
    ns_api_register_req_** entries_out);

/* The ports attached to one switch port, by its WWN, in a VSAN. */
CIM_UTILS_EXPORT int32_t ns_cim_get_fxport_entries_with_wwn_byte_array(
    int32_t session, uint32_t vsan, const uint8_t fabric_port_wwn[8], int32_t* count_out,
    ns_api_register_req_** entries_out);
/* The same for a WWN text; -1 when it does not parse. */
CIM_UTILS_EXPORT int32_t
ns_cim_get_fxport_entries_with_string_wwn(int32_t session, uint32_t vsan, const char* wwn_text,
                                          int32_t* count_out, ns_api_register_req_** entries_out);

/* The devices with FC-4 type 8 (SCSI) of the node with the WWN text. */
CIM_UTILS_EXPORT int32_t ns_cim_get_fc4_devices(int32_t session, uint32_t vsan,
                                                const char* wwn_text, int32_t* count_out,
                                                ns_fc4_device_** devices_out);

/* Every registered port of a VSAN, one that is registered twice twice, deliberately. */
CIM_UTILS_EXPORT int32_t ns_cim_get_all_nodes_or_ports_in_vsan(int32_t session, uint32_t vsan,
                                                               int32_t fabric_side,
                                                               int32_t* count_out,
                                                               ns_api_register_req_** entries_out);

/* The same from the node side; with one_per_fabric_port non-zero only the first of the ports
 * attached to each switch port. */
CIM_UTILS_EXPORT int32_t ns_cim_get_all_fxports_in_vsan(int32_t session, uint32_t vsan,
                                                        int32_t one_per_fabric_port,
                                                        int32_t* count_out,
                                                        ns_api_register_req_** entries_out);

/* Appends those of the previous whose FC ID has the domain. *count_out is the number appended; -1
 * when that is 0 or memory runs out. */
CIM_UTILS_EXPORT int32_t ns_cim_get_all_fxports_by_domain_id_in_vsan(int32_t session, uint32_t vsan,
                                                                     uint8_t domain,
                                                                     int32_t one_per_fabric_port,
                                                                     int32_t* count_out,
                                                                     GSList** list);

/* Appends every registered port that a WWN leads to, in each VSAN that is up: with code 2 or 11 the
 * ports attached to that switch port, with 3 or 27 that port, with 7 the ports of that node, with
 * any other code none. arg4 and arg5 are not read. 0 when the list then has elements, else -1; -1
 * also when memory runs out, the list holding what was appended before. Asks the VSAN manager for
 * the VSANs and the name server once for each that is up. */
CIM_UTILS_EXPORT int32_t ns_cim_get_all_name_server_entries_with_wwn(int32_t session,
                                                                     const uint8_t wwn[8],
                                                                     int32_t code, int32_t arg4,
                                                                     int32_t arg5, GSList** list);

/* Reads a link name "CODE_VSAN_WWN" and looks its WWN up as a port WWN in its VSAN, whatever side
 * it names, deliberately: the WWN of a switch port leads to nothing. -1 also when no port was
 * found, with an empty array for the caller to free. */
CIM_UTILS_EXPORT int32_t ns_cim_get_ns_entries_with_link_name(
    int32_t session, const char* link_name, int32_t* code_out, int32_t* vsan_out,
    char* wwn_text_out, int32_t* count_out, ns_api_register_req_** entries_out);

/* ---- Conversions and tests ---------------------------------------------------------------- */

/* Whether an FC-4 type is set in the bit map of an entry (fc4_types): non-zero when it is. */
CIM_UTILS_EXPORT int32_t ns_cim_is_set_fc4_type(const void* fc4_map, uint8_t type);

/* Whether the bit map is that of an iSCSI device, which has type 225. */
CIM_UTILS_EXPORT int32_t ns_cim_is_iscsi_fc4_type(const void* fc4_map);

/* The CIM port type of one side of an attachment: 10 N, 11 NL, 12 F/NL, 13 Nx, 15 F, 16 FL, 16011
 * and 16012 the fabric and the node side of an iSCSI device; 0 for an unknown port type or a null
 * entry. */
CIM_UTILS_EXPORT uint32_t ns_cim_convert_ns_port_type(const ns_api_register_req_* entry,
                                                      int32_t fabric_side);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_NAME_SERVER_H */
