/* The switch's VSANs, from the VSAN manager, and the key text by which CIM object paths name them.
 *
 * Conventions:
 * - C linkage. q is the caller's queue handle. 0 is success, -1 the library's own failure; another
 *   value is the transport's or the service's status, unchanged.
 * - Entries passed in are the caller's, in host order before and after every call.
 * - Entries handed out come from the C heap; the caller frees them with free().
 */
#ifndef CIM_UTILS_VSAN_H
#define CIM_UTILS_VSAN_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One row of HexMap. */
struct hex_digit_ {
  uint32_t code;  /* the character */
  uint32_t value; /* 0..15 */
};

/* The digits "0".."9" and "A".."F", in that order. Lower-case letters are not in it. */
CIM_UTILS_EXPORT extern const struct hex_digit_ HexMap[16];

/* Reads one VSAN from the VSAN manager: with exact 1 the one named by entry->vsan_index, with
 * anything else the next one after it. Result: 0, -1 for a null entry, or the status. A success
 * without a reply is 0 with the entry unchanged, deliberately. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsanEntry(int32_t q, int32_t exact, vsanNewEntry_t* entry);

/* The same into a new entry that starts at VSAN 0, so that a get-next gives the lowest VSAN.
 * Result: 0, or -1 with *out null. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsanEntry_with_memory_allocation(int32_t q, int32_t exact,
                                                                       vsanNewEntry_t** out);

/* Asks the VSAN manager for one of its two counts, by whether `which` is zero. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsan_num(int32_t q, int32_t* count, int32_t which);

/* Reads all VSANs: the count first, then one get-next each. *list receives an array of *count
 * entries; a read that fails ends it early, still with result 0. Result: 0, or -1 with *list null
 * when the count cannot be read or memory runs out. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_all_vsanEntry(int32_t q, int32_t* count,
                                                    vsanNewEntry_t** list);

/* Makes a VSAN active (state 2) or suspends it (state 3), leaving everything else of it as it is.
 * Result: 0, -1 for another state or an unreadable VSAN, or the status. */
CIM_UTILS_EXPORT int32_t vsan_cim_set_VsanEntry(int32_t q, uint32_t vsan, int32_t state);

/* 0 when 1 <= vsan <= 4096, else -1. Asks no service. */
CIM_UTILS_EXPORT int32_t vsan_cim_check_vsan_index(uint32_t vsan);

/* Writes the VSAN's WWN text (16 characters and a terminator) to dst: that of the domain manager
 * where it runs in the VSAN, else the alternate one. Result: 0; -1 for a null record. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsan_key(char* dst, uint32_t vsan,
                                               const mts_dm_sw_conf_* dm_entry);

/* The same text without traces. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsan_admindomain_key(char* dst,
                                                           const mts_dm_sw_conf_* dm_entry);

/* Splits a VSAN key. The form with a colon gives the decimal number of the (at most four)
 * characters behind it and sixteen "0" characters at wwn, without a terminator, deliberately: the
 * caller's buffer of 17 bytes must end in zero already. Any other key gives the number in its
 * characters 1 to 3, and itself at wwn. Result: 0. */
CIM_UTILS_EXPORT int32_t vsan_cim_get_vsan_key_fields(const char* key, uint32_t* vsan, char* wwn);

/* The number that three upper-case hexadecimal digits write. A character that is none is skipped,
 * without shifting, deliberately. Result: 0. */
CIM_UTILS_EXPORT int32_t get_vsan_value(char high, char mid, char low, uint32_t* value);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_VSAN_H */
