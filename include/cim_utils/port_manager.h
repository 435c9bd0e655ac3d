/* The switch's interfaces: records, counters, optics, port channels and FCIP bindings from the port
 * manager, changes of them, and the values that CIM has for them.
 *
 * Conventions:
 * - C linkage. session is the caller's queue handle. 0 is success and -1 failure unless stated; a
 *   failed function leaves its out-parameters null or unchanged. A null argument that a function
 *   cannot do without is a failure.
 * - Interface indexes are the platform's 32-bit identifiers. if_type is what the platform gives for
 *   one, see pm_interface_type; other types are accepted and unsupported.
 * - Records and counters handed out come from the C heap and are the caller's, who frees them with
 *   free(). Lists own their elements and are released with cim_g_slist_destroy; *list is the head,
 *   in and out. The records have fields that are not aligned: take values, never addresses.
 * - exact not zero: the interface itself; zero: the next one after it.
 * - Messages go to standard output.
 */
#ifndef CIM_UTILS_PORT_MANAGER_H
#define CIM_UTILS_PORT_MANAGER_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_port_manager.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

enum pm_interface_type {
  PM_IF_FC = 1,
  PM_IF_ETHERNET = 2,
  PM_IF_PORT_CHANNEL = 4, /* of FC ports, or of Ethernet ports where pm_is_ether_channel says so */
  PM_IF_MANAGEMENT = 5,
  PM_IF_IN_BAND = 6,
  PM_IF_FCIP = 10,
  PM_IF_ISCSI = 11,
  PM_IF_VSAN = 14
};

enum pm_text_room {
  PM_MANAGEMENT_MAC_TEXT_ROOM = 13,
  PM_FCID_TEXT_ROOM = 7,
  PM_IP_TEXT_ROOM = 16,
  PM_WWN_TEXT_ROOM = 17,
  PM_PERMANENT_ADDRESS_TEXT_ROOM = 32,
  PM_NETWORK_ADDRESS_TEXT_ROOM = 16
};

/* The most characters of an alias; an alias of just so many is kept without a terminator. */
enum { PM_MAX_ALIAS_LENGTH = 81 };

/* ---- Values, without asking a service ------------------------------------------------------ */

/* CIM OperationalStatus of an oper state: 2 (OK) for 1, else 0 (unknown). */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_oper_state(uint32_t state);

/* CIM EnabledState of an admin state: 2 (enabled) for 1, else 3 (disabled). */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_admin_state(uint32_t state);
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_enable_state(uint32_t state);

/* The admin state for a CIM requested state: 1 (up) for 2, else 2 (down). */
CIM_UTILS_EXPORT uint32_t pm_cim_convert_cimport_state(uint32_t state);

/* CIM FC port type of a mode: 14 (E) for 4 and 8, 15 (F) for 32, 16 (FL) for 64, 128 and 256, else
 * 0. */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_mode(uint32_t mode);

/* CIM port type of an interface: by its mode for an FC port, 16004 for a port channel, 16010 for
 * FCIP, 16011 for iSCSI, else 0. */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_type(uint32_t mode, uint8_t if_type);

/* CIM port type of a port of an inter-switch link: 16004, 16010, 16011 as above, else 14 (E). */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_isl_port_type(uint8_t if_type);

/* CIM port type of a name-server entry on an interface: 16011 for iSCSI, else 14. */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_ns_port_type(uint8_t if_type);

/* Value of the CIM FC port settings for a mode: 4 for 4 and 8, 5 for 32, 6 for 96, else the low 16
 * bits of 17000 + mode. */
CIM_UTILS_EXPORT uint16_t pm_cim_convert_port_mode_fcportsettings(uint32_t mode);

/* The mode for a CIM requested port type: 4 for 4, 32 for 5, 96 for 6; 1, 2, 16 and 64 for 17000
 * and the mode; else 1. Not the inverse of the function above for modes 8, 128 and 256,
 * deliberately. */
CIM_UTILS_EXPORT uint32_t pm_cim_convert_cimport_mode(uint32_t value);

/* The admin speed for a CIM speed in bits per second: 1000 for 1062500000, 2000 for 2125000000,
 * else 0. */
CIM_UTILS_EXPORT uint32_t pm_cim_convert_cimport_speed(uint64_t speed);

/* ---- Values of a record -------------------------------------------------------------------- */

/* Speed in bits per second. FC-like interfaces (1, 4, 10, 11) that work (oper state 1 or 8): oper
 * speed x 1,062,500. Ports 2 and 5 that are up: oper speed x 1,000,000 modulo 2^32, deliberately,
 * or 100,000,000 without an oper speed. Else 0. */
CIM_UTILS_EXPORT uint64_t pm_cim_get_speed(const pm_port_info_* info, uint8_t if_type);

/* Largest payload in bytes: 2112 for FC-like interfaces, the record's for ports 2 and 5, else 0. */
CIM_UTILS_EXPORT uint32_t pm_cim_get_mtu(const pm_port_info_* info, uint8_t if_type);

/* Writes the interface's permanent address: WWN (16 upper-case digits) of FC-like interfaces, MAC
 * (12 upper-case digits) of Ethernet ports and channels, get_mgmt_port_addr of the management port,
 * a text that says so for other types. Room: 32. */
CIM_UTILS_EXPORT int32_t pm_cim_get_permanent_address(char* dst, const pm_port_info_* info,
                                                      uint8_t if_type);

/* Writes the interface's network address: FC ID (6 upper-case digits) of FC-like interfaces, IPv4
 * address of ports 2 and 5 and of Ethernet channels, one blank for other types. Room: 16. */
CIM_UTILS_EXPORT int32_t pm_cim_get_network_address(char* dst, const pm_port_info_* info,
                                                    uint8_t if_type);

/* ---- Texts --------------------------------------------------------------------------------- */

/* 16 upper-case hexadecimal digits. Room: 17. Result: 16 characters, or -1 for null. */
CIM_UTILS_EXPORT int32_t pm_cim_sprintf_wwn(char* dst, const wwn_* wwn);

/* 6 upper-case hexadecimal digits of bytes 1, 2 and 3. Room: 7. Result: 6, or -1 for null. */
CIM_UTILS_EXPORT int32_t pm_cim_sprintf_fcid(char* dst, const uint8_t fcid[4]);

/* The four bytes in memory order as "a.b.c.d". Room: 16. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t pm_cim_sprintf_ip(char* dst, const uint8_t address[4]);

/* Hardware address of the host's interface "eth1", 12 lower-case hexadecimal digits; "--" with
 * result -1 and a message when it cannot be read. Room: 13. */
CIM_UTILS_EXPORT int32_t get_mgmt_port_addr(char* dst);

/* Prints fields of the record. Nothing for null. */
CIM_UTILS_EXPORT void print_port_info(const pm_port_info_* info);

/* ---- Interface types and indexes ----------------------------------------------------------- */

/* The numbers of the service behind an interface type: destination 380 and access 43 for 1, 4, 5,
 * 10, 11; access 45 for 2, which leaves the destination unchanged. Result: 0, or -1 with both
 * unchanged for every other type: nothing can be asked about it. Null out-parameters are skipped.
 */
CIM_UTILS_EXPORT int32_t pm_cim_get_ifTable_dest_info(uint8_t if_type, uint32_t* destination_out,
                                                      uint32_t* access_out);

/* Advances *if_type to the next interface type and stores the index from which a walk over that
 * type starts. Result: 0, or the platform's non-zero result with the index 0. */
CIM_UTILS_EXPORT int32_t pm_cim_if_index_get_next_type(uint32_t* if_index_out, uint8_t* if_type);

/* Slot and port number (0..255) of an FC or Ethernet port; *kind_out, which may be null, is 1 for
 * FC and 2 for Ethernet. Result: the number; -1 for other types. */
CIM_UTILS_EXPORT int32_t pm_cim_get_slot_number_from_ifIndex(uint32_t if_index, int32_t* kind_out);
CIM_UTILS_EXPORT int32_t pm_cim_get_port_number_from_ifIndex(uint32_t if_index, int32_t* kind_out);

/* ---- Interfaces ---------------------------------------------------------------------------- */

/* Reads one interface from the port manager. A get-next goes on with the next interface type when
 * the type has no further interface; from index 0 it gives the switch's first interface. Ethernet
 * ports, management ports and Ethernet channels get their IPv4 address from the IP configuration,
 * if it has one. Result: 0 with *out set, or -1 with *out null: no such (or no further) interface,
 * a type that cannot be asked about, a time-out. */
CIM_UTILS_EXPORT int32_t pm_cim_get_port_info(pm_port_info_** out, int32_t exact, uint32_t if_index,
                                              int32_t session);

/* The same; the record or null. */
CIM_UTILS_EXPORT pm_port_info_* pm_cim_find_interface(int32_t exact, uint32_t if_index,
                                                      int32_t session);

/* Asks whether an FC port can have optics: not zero at *supported_out. -1 for other interfaces. */
CIM_UTILS_EXPORT int32_t pm_cim_get_fcot_info(int32_t session, const pm_port_info_* info,
                                              uint8_t* supported_out);

/* Reads the counters of an FC port or port channel. -1 for other interfaces. A service that says
 * success without counters gives 0 and null. */
CIM_UTILS_EXPORT int32_t pm_cim_get_fc_port_counters(int32_t session, uint32_t if_index,
                                                     fcIfAllCounters_t** counters_out);

/* Reads the counters of the interface or of the next one. Result: the counters or null. */
CIM_UTILS_EXPORT fcIfAllCounters_t* pm_cim_find_interface_counters(int32_t exact, uint32_t if_index,
                                                                   int32_t session);

/* ---- Port channels and FCIP bindings ------------------------------------------------------- */

/* Converts the numbers of an entry to network order and back; the members are never converted.
 * Nothing for null. */
CIM_UTILS_EXPORT void pm_port_channel_entry_hton(pm_port_channel_entry_* entry);
CIM_UTILS_EXPORT void pm_port_channel_entry_ntoh(pm_port_channel_entry_* entry);

/* Reads one port channel by its number into the caller's entry, which holds nothing but that number
 * after a failure. Without an entry the service is asked all the same. Result: 0 or the transport's
 * status; a success without a reply is 0 with a message, deliberately. */
CIM_UTILS_EXPORT int32_t pm_cim_get_port_channel_entry(int32_t session, int32_t exact,
                                                       uint32_t channel,
                                                       pm_port_channel_entry_* entry);

/* Reads the big-endian interface index that lies byte_offset bytes into a member list. */
CIM_UTILS_EXPORT int32_t get_port_channel_member_id(const uint8_t* member_bytes,
                                                    int32_t byte_offset, uint32_t* id_out);

/* Appends the record of every member that can be read. Result: 0 when there was at least one. */
CIM_UTILS_EXPORT int32_t pm_cim_get_port_channel_interfaces(int32_t session, uint32_t channel,
                                                            GSList** list);

/* Append the records of the FCIP interfaces bound to an Ethernet interface, and of the Ethernet
 * interfaces under an FCIP interface, last binding first. Result: 0 when there was at least one. */
CIM_UTILS_EXPORT int32_t pm_cim_get_fcip_interfaces_for_eth_interface(int32_t session,
                                                                      uint32_t eth_if_index,
                                                                      GSList** list);
CIM_UTILS_EXPORT int32_t pm_cim_get_ether_interfaces_for_fcip_interface(int32_t session,
                                                                        uint32_t fcip_if_index,
                                                                        GSList** list);

/* The last Ethernet interface under an FCIP interface. Result: 0, or -1 when there is none. */
CIM_UTILS_EXPORT int32_t pm_cim_get_ether_index_for_fcip_interface(int32_t session,
                                                                   uint32_t fcip_if_index,
                                                                   uint32_t* eth_if_index_out);

/* ---- Changes ------------------------------------------------------------------------------- */

/* Sets the description, of at most 81 characters. Not for FCIP and iSCSI. Result: 0; -1 without a
 * request; the transport's result; or the service's status where the transport succeeded. */
CIM_UTILS_EXPORT int32_t pm_cim_set_port_alias(const char* alias, uint32_t if_index,
                                               int32_t session);

/* Set the admin speed from a CIM speed in bits per second, and the admin mode from a CIM port type
 * (see pm_cim_convert_cimport_speed and _mode). Not for iSCSI. Result: the service's status; -1
 * without a request; the transport's result, or -1, when there was no reply. */
CIM_UTILS_EXPORT int32_t pm_cim_set_port_admin_speed(uint64_t speed, uint32_t if_index,
                                                     int32_t session);
CIM_UTILS_EXPORT int32_t pm_cim_set_port_admin_mode(uint32_t cim_mode, uint32_t if_index,
                                                    int32_t session);

/* Sets the admin state: up for CIM state 2, down for every other. Not for port channels and in-band
 * ports. Result: the transport's; -1 without a request. A refusal that the service tells in its
 * reply is not looked at, deliberately. */
CIM_UTILS_EXPORT int32_t pm_cim_set_port_admin_status(uint32_t cim_state, uint32_t if_index,
                                                      int32_t session);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_PORT_MANAGER_H */
