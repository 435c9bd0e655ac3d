/* The session with the message transport, the process-wide lock, debug hooks, host name, software
 * version, system information, and the string arrays of CIM property lists.
 *
 * Conventions:
 * - C linkage. 0 is success and -1 the library's own failure unless stated.
 * - Texts returned from static buffers are overwritten by the next call that returns the same
 *   buffer and are never freed by the caller.
 * - No function takes the lock; callers hold it around calls that return static texts.
 */
#ifndef CIM_UTILS_SESSION_H
#define CIM_UTILS_SESSION_H

#include <pthread.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_system.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The CMPI face's queue handle, -1 while unbound. Written by init_mts only. */
CIM_UTILS_EXPORT extern int32_t mts_q;

/* The lock of mutex_lock and mutex_unlock. Not recursive. */
CIM_UTILS_EXPORT extern pthread_mutex_t global_mutex;

/* Result buffer of CSgetName, CSgetWWN and CSgetElementName. */
CIM_UTILS_EXPORT extern char newswitch_buf[256];

/* Exported for the providers that name it; the library does not use it. */
CIM_UTILS_EXPORT extern uint32_t zs_snmp_notif_type_t;

/* Binds the CMPI face's response queue, "CIM Response SAP", once per process and stores the handle
 * at q_out. Result: 0, or -1 when the transport has no queue to give; the next call tries again.
 * One line on standard error for a bound queue, two for a failure. */
CIM_UTILS_EXPORT int32_t init_mts(int32_t* q_out);

/* Releases the queue whose handle is at q. Result: 0 for a negative handle, else the transport's
 * status narrowed to a signed 8-bit value. The handle keeps its value, deliberately: a later
 * init_mts hands the old one out again. */
CIM_UTILS_EXPORT int32_t deinit_mts(int32_t* q);

/* Lock and unlock global_mutex. Result: that of the POSIX call. */
CIM_UTILS_EXPORT int32_t mutex_lock(void);
CIM_UTILS_EXPORT int32_t mutex_unlock(void);

/* Stops the process for a debugger (SIGSTOP to itself) when "/etc/cim_debug_provider" exists.
 * Result: that of kill; without the file, that of printing a line which says so. */
CIM_UTILS_EXPORT int32_t gdb_check(void);

/* The same for "/etc/cim_debug_zone", silent without the file. Result: that of kill or of stat. */
CIM_UTILS_EXPORT int32_t z_gdb_check(void);

/* The host name, which is the CIM system name of the CMPI face. Static buffer of 500 bytes. */
CIM_UTILS_EXPORT char* getCSName(void);
CIM_UTILS_EXPORT char* getCSNameNew(void);

/* Sets the host name. Result: -1 for null, else 0, whether or not the system took the name. A name
 * of more than 99 characters is ignored without a message, deliberately. */
CIM_UTILS_EXPORT int32_t setCSName(const char* name);

/* Writes the host's IPv4 address in dotted decimal to dst (room for 255 bytes). Result: 0, or -1
 * and dst untouched when the host name does not resolve. */
CIM_UTILS_EXPORT int32_t getIpAddress(char* dst);

/* The software version (static buffer of 32 bytes). Asked once per process; "Unknown Version"
 * stays when the first answer was none. */
CIM_UTILS_EXPORT char* getSwitchVersion(void);

/* Fetches the system-information item named by info->selector (0..6) into info (1032 bytes, the
 * caller's), asking the system-information service. Result: 0, 0x40490001 for a null record or a
 * success without a reply, else the service's status. The selector is in host order afterwards. */
CIM_UTILS_EXPORT int32_t snmp_get_sys_info1(int32_t q, struct system_information_* info);

/* The switch WWN as text, in newswitch_buf; "N/A" when the switch does not tell it. CSgetName gives
 * the WWN too, deliberately, not a host name. */
CIM_UTILS_EXPORT char* CSgetName(int32_t q);
CIM_UTILS_EXPORT char* CSgetWWN(int32_t q);

/* System-information item 2 as text, in newswitch_buf; "Not Available" on failure. */
CIM_UTILS_EXPORT char* CSgetElementName(int32_t q);

/* An array of n texts of `size` zeroed bytes each and a terminating null pointer. Null when memory
 * runs out or n is negative. The owner releases it with free_char_array. */
CIM_UTILS_EXPORT char** malloc_char_array(int32_t n, uint32_t size);

/* Frees each text up to the first null pointer, then the array. Null is accepted. */
CIM_UTILS_EXPORT void free_char_array(char** array);

/* Prints each text with its index on standard output. */
CIM_UTILS_EXPORT void print_char_array(char** array);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_SESSION_H */
