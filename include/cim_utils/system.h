/* The switch as a whole: its WWN, its name, the rendering of system information, and what the
 * fabric knows of other switches.
 *
 * Conventions: C linkage; q is the caller's queue handle; 0 is success and -1 failure unless
 * stated; texts and records are the caller's.
 */
#ifndef CIM_UTILS_SYSTEM_H
#define CIM_UTILS_SYSTEM_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_system.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Fetches the local switch's WWN from the switch identity service. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t system_cim_get_switch_wwn(int32_t q, wwn_* wwn);

/* Renders a system-information record (host order) for `selector` into dst (1029 bytes).
 * Result: the length of the text in dst.
 *   0..3  the answer's text
 *   4     the answer's words as "%u." each 3 characters further than the one before, deliberately:
 *         longer components are partly overwritten; with a count of 0 nothing is written
 *   6     "%u seconds" of the number in hundredths of a second
 *   other "Not Available" */
CIM_UTILS_EXPORT int32_t system_cim_parse_sys_info(const system_information_* info,
                                                   int32_t selector, char* dst);

/* Sets the system name: at most 255 characters of it. Asks the system-name service. Result: 0, -1
 * for a null name, or the service's status. */
CIM_UTILS_EXPORT int32_t system_cim_set_SysName(int32_t q, const char* name);

/* Writes the key text of a switch, "%d_%s" of the number and the WWN, to dst (29 bytes). */
CIM_UTILS_EXPORT int32_t system_cim_get_system_key(const wwn_* wwn, int32_t number, char* dst);

/* Reads the number of such a key. The WWN behind the underscore must be 16 characters long and is
 * not looked at further. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t system_cim_get_fields_from_key(const char* key, int32_t* number);

/* Always -1. */
CIM_UTILS_EXPORT int32_t system_cim_is_local_switch_wwn_str(void);

/* Whether bytes 2 to 7 of a WWN (8 bytes) are those of the local switch's, in *result. A WWN whose
 * byte 1 is not zero has its byte 7 decremented first, in the caller's array, deliberately. Asks
 * the switch identity service. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t system_cim_is_local_switch_wwn_hex(int32_t q, uint8_t* wwn,
                                                            uint8_t* result);

/* Writes the address of the peer switch with the WWN text wwn_text to ip_text (48 bytes), which
 * stays untouched when there is no such peer. Asks the fabric distribution service and waits up to
 * 20 seconds. Result: 0, whether or not a peer matched; 1 without an answer; -1 on failure. */
CIM_UTILS_EXPORT int32_t get_kfs_peer_ip(int32_t q, const char* wwn_text, char* ip_text);

/* Writes the name of the switch that owns `domain` to name (257 bytes), which stays untouched when
 * the fabric configuration server knows none or lists one switch only. Asks on the CMPI face's
 * queue and waits up to 5 seconds. Result: 0, whether or not a switch matched, or -1. */
CIM_UTILS_EXPORT int32_t get_remote_switchname(uint8_t domain, char* name);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_SYSTEM_H */
