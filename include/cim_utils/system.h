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

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_SYSTEM_H */
