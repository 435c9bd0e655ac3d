/* The fabric configuration server: the interconnect elements (switches) of each VSAN.
 *
 * Conventions:
 * - C linkage. session is the caller's queue handle. 0 is success and -1 failure unless stated.
 * - Arrays handed out come from the C heap and are freed by the caller with free(). Lists own their
 *   elements and are released with cim_g_slist_destroy; *list is the head, in and out.
 * - WWNs are 8 bytes, most significant first.
 */
#ifndef CIM_UTILS_FABRIC_CONFIGURATION_H
#define CIM_UTILS_FABRIC_CONFIGURATION_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One interconnect element, in host order. */
struct fcs_cim_ie_ {
  uint32_t vsan;
  wwn_ wwn;             /* as received */
  uint32_t attribute_3; /* of the element; number */
  uint32_t domain;      /* domain ID of the switch, in the low 8 bits */
  uint32_t attribute_5; /* of the element, as received */
  uint32_t attribute_6; /* of the element, as received */
};
typedef struct fcs_cim_ie_ fcs_cim_ie_;

/* One entry of a VSAN's list of interconnect elements, as received. */
struct fcs_giel_entry_ {
  wwn_ wwn;
  uint8_t flags[4]; /* flags[2] not zero: the element counts */
};
typedef struct fcs_giel_entry_ fcs_giel_entry_;

/* One exchange with the server: sends the selector and `length` bytes of data, and copies the whole
 * reply, of whatever length is reported for it, to out; the caller provides for the longest reply
 * of the request. Result: 0, or -1 for a failure or no reply. */
CIM_UTILS_EXPORT int32_t fcs_get_data(int32_t session, uint32_t selector, uint32_t operation,
                                      const void* data, int32_t length, void* out);

/* Reads one element of a VSAN: with exact non-zero the one with the WWN, which must be given, in a
 * VSAN of 1..4094; else the next one after it in the VSAN, or the first for a null WWN. Result: 0
 * or -1, also when the next element belongs to another VSAN. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_ie_entry_with_wwn_hex(int32_t session, int32_t exact,
                                                           uint32_t vsan, const uint8_t* wwn,
                                                           fcs_cim_ie_* ie_out);

/* The same, but -1 at once for a null WWN, whatever exact says. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_ie_entry(int32_t session, int32_t exact, uint32_t vsan,
                                              const wwn_* wwn, fcs_cim_ie_* ie_out);

/* 0 when an element with that WWN exists in any VSAN that is up, else -1. Asks the VSAN manager for
 * the VSANs. */
CIM_UTILS_EXPORT int32_t fcs_cim_search_ie_entry_with_wwn_hex(int32_t session, const uint8_t* wwn);

/* Appends the element record of the WWN (fcs_cim_ie_) in each VSAN where it exists. A WWN of the
 * switch's own maker is looked up in the VSAN that it carries, or as each VSAN's WWN of the switch.
 * Result: 0 when the list has elements, else -1. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_ie_list_with_wwn_hex(int32_t session, const uint8_t* wwn,
                                                          GSList** list);

/* The list of a VSAN's elements, without those that do not count. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_ies_in_vsan(int32_t session, uint32_t vsan,
                                                 fcs_giel_entry_** entries_out, int32_t* count_out);

/* The element records of every element of a VSAN. An element that cannot be read is left out. With
 * no elements *ies_out is null. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_ie_entries_in_vsan(int32_t session, uint32_t vsan,
                                                        int32_t* count_out, fcs_cim_ie_** ies_out);

/* Appends the WWN texts of the fabric's physical switches, each once; of the local switch alone
 * when no VSAN that is up has elements. */
CIM_UTILS_EXPORT int32_t fcs_cim_get_physical_switch_wwn_lists(int32_t session, GSList** list);

/* Replaces an element type: 1 by 3, 2 by 4, 3 by 5, anything else by 1. Result: the old type. */
CIM_UTILS_EXPORT uint32_t fcs_map_ie_type(uint32_t* type);

/* Convert the numbers of an element record, in place; the same swap both ways. */
CIM_UTILS_EXPORT void fcs_cim_ie_entry_hton(fcs_cim_ie_* ie);
CIM_UTILS_EXPORT void fcs_cim_ie_entry_ntoh(fcs_cim_ie_* ie);

/* Set the flags of a list entry to zero, deliberately. */
CIM_UTILS_EXPORT void fcs_cim_giel_hton(fcs_giel_entry_* entry);
CIM_UTILS_EXPORT void fcs_cim_giel_ntoh(fcs_giel_entry_* entry);

/* A WWN for one failure trace: the last byte only, padded with a blank to two characters, is what
 * dst (4 bytes) finally holds, deliberately. */
CIM_UTILS_EXPORT void sprint_wwn(char* dst, const uint8_t* wwn);

/* The length in bytes of a bit set up to its last set bit: 0 for none; one more than the bytes
 * touched unless the last bit ends a byte, deliberately. */
CIM_UTILS_EXPORT int32_t fcs_trim_trailing_blanks(const void* bitset);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_FABRIC_CONFIGURATION_H */
