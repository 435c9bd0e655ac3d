/* The links between switches, from the FSPF routing service, and the texts by which CIM objects
 * name them.
 *
 * Conventions:
 * - C linkage. session is the caller's queue handle. 0 is success and -1 failure unless stated. A
 *   null pointer argument is a failure.
 * - What is handed out comes from the C heap and is freed by the caller with free(). Lists own
 *   their elements and are released with cim_g_slist_destroy; *list is the head, in and out.
 * - Links are in host order, with the platform's interface indexes where the platform knows them. A
 *   link whose interface on this side is an internal one (type 16) is never handed out.
 * - WWNs are 8 bytes, most significant first.
 */
#ifndef CIM_UTILS_FSPF_H
#define CIM_UTILS_FSPF_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Room for the texts written here, in bytes. */
enum { CIM_FSPF_LINK_NAME_ROOM = 64, CIM_FSPF_PHYSICAL_LINK_NAME_ROOM = 32 };

/* ---- Links -------------------------------------------------------------------------------- */

/* The link-state record of the switch that owns `domain` in `vsan`, one exchange with the FSPF
 * service: *lsr_out is one block, the header with its link_count links (fspfLinkEntry) behind it.
 * `reserved` is not read; callers pass 1. A failed exchange is reported on standard error. After a
 * failure *lsr_out is null. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_fspfLSR(int32_t session, uint32_t vsan, uint32_t domain,
                                              int32_t reserved, fspf_lsr_** lsr_out);

/* Copies the link that leaves that switch through the interface; of several the last of the LSR.
 * -1, with *link_out unchanged, when there is none. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_fspfLink(int32_t session, uint32_t vsan, uint32_t domain,
                                               uint32_t if_index, fspfLinkEntry* link_out);

/* All links of that switch, as an array of *count_out entries. After a failure the count is 0 and
 * *links_out null. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_all_fspfLinks_of_domain(int32_t session, uint32_t vsan,
                                                              uint32_t domain, int32_t* count_out,
                                                              fspfLinkEntry** links_out);

/* All links of every switch of the VSAN, switch by switch in the order of the fabric configuration
 * server; with remote_only non-zero, without those of the local switch, whose domain the domain
 * manager tells (when it does not, that is printed and nothing left out). A switch whose LSR cannot
 * be read is skipped. An array of *count_out entries, not null even when that is 0. After a failure
 * the count is 0 and *links_out null. Asks the fabric configuration server once and once more for
 * each switch, and FSPF once for each switch that is not left out. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_all_fspfLinks_of_vsan(int32_t session, uint32_t vsan,
                                                            int32_t* count_out, int32_t remote_only,
                                                            fspfLinkEntry** links_out);

/* Appends the link that leaves the switch through the interface in each VSAN in which the switch
 * is, from the last of fcs_cim_get_ie_list_with_wwn_hex to the first, each as a fspfLinkEntry of
 * its own. 0 when the list then has elements, else -1; -1 also when memory runs out, the list
 * holding what was appended before. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(
    int32_t session, const uint8_t switch_wwn[8], uint32_t if_index, GSList** list);

/* The same for the switch and the interface that the WWN of a port of a switch denotes. -1 also
 * when it denotes none. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_all_fspfLinks_for_pwwn(int32_t session, const wwn_* port_wwn,
                                                             GSList** list);

/* ---- Names -------------------------------------------------------------------------------- */

/* Writes the name of one end of a link, this end's for this_end non-zero, else the far end's:
 * "TYPE_WORD0_DOMAIN_WORD2_WORD3_INTERFACE" in decimal, numbers as signed ones. The type is that of
 * the interface when its index is above 256, else 1. Room: CIM_FSPF_LINK_NAME_ROOM. Result: 0, also
 * when the interface's type cannot be told, which leaves dst unwritten, deliberately: callers clear
 * dst first. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_link_name(const fspfLinkEntry* link, char* dst,
                                                int32_t this_end);

/* Writes the name of the port at one end of a link: "WWN_INTERFACE_TYPE" with the WWN of the switch
 * as 16 digits. Any type but 4 (port channel) and 10 (FCIP) is written as 1. Room:
 * CIM_FSPF_PHYSICAL_LINK_NAME_ROOM. -1, with dst unwritten, when the type cannot be told. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_physical_link_name(const uint8_t switch_wwn[8],
                                                         const fspfLinkEntry* link, char* dst,
                                                         int32_t this_end);

/* Reads a link name of type 1, 4 or 10, of which only the first 31 characters count. Numbers are
 * read as far as they are decimal, without a test of their range; what follows the sixth is
 * ignored. -1 for another type or a missing number; the numbers before it are stored then. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_fields_from_name(const char* name, int32_t* type_out,
                                                       int32_t* w0_out, int32_t* domain_out,
                                                       int32_t* w2_out, int32_t* w3_out,
                                                       int32_t* if_index_out);

/* Reads a physical link name of at most 63 characters. wwn_text_out receives the 16 characters of
 * the WWN, whatever they are, and a terminator. -1 for a name that is longer or has more, fewer or
 * other parts; the parts before the wrong one are stored then. */
CIM_UTILS_EXPORT int32_t fspf_cim_get_fields_from_physical_name(const char* name,
                                                                char* wwn_text_out,
                                                                int32_t* if_index_out,
                                                                int32_t* type_out);

/* ---- Fixed answers ------------------------------------------------------------------------ */

/* Kept for their callers; they look nothing up, deliberately. */
CIM_UTILS_EXPORT int32_t check_valid_vsan(void);      /* 1 */
CIM_UTILS_EXPORT int32_t check_valid_interface(void); /* 0 */
CIM_UTILS_EXPORT int32_t fspf_check_if_active(void);  /* 0 */

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_FSPF_H */
