/* What World Wide Names tell: the vendor, the VSAN, the switch and the port behind a name.
 *
 * Conventions of this header:
 * - C99, C linkage. A WWN is 8 bytes, byte 0 first as it is written in text. The functions ending
 *   in _str take the same 8 bytes as their twins (not text) and behave alike.
 * - Unless a comment says otherwise the result is 0, or -1 on failure; tests answer 1 or 0. A null
 *   WWN fails, belongs to no vendor and carries no VSAN. A function that fails leaves its result
 *   unchanged.
 * - An out WWN may be the same record as the WWN it is derived from.
 * - Nothing is allocated. The rules are pure computation; only those about the maker's ports ask
 *   the platform's interface-index functions, which contact no service.
 */
#ifndef CIM_UTILS_WWN_RULES_H
#define CIM_UTILS_WWN_RULES_H

#include <stdint.h>

#include <switch_platform/types.h>

#include <cim_utils/export.h>
#include <cim_utils/formats.h> /* wwn_cim_get_hex_from_str_wwn */

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Vendors ------------------------------------------------------------------------------ */

/* 24-bit vendor id (OUI) according to the high nibble of byte 0: for 1 and 2 bytes 2, 3 and 4, for
 * 5 byte 1, byte 2 and the high nibble of byte 3; for any other, 0. */
CIM_UTILS_EXPORT uint32_t wwn_cim_getVendorId(const wwn_* wwn);

/* 1 when the vendor id is one of the switch maker's 26 further OUIs, and *index (may be null) its
 * place in that table; else 0 with index 26. The maker's primary OUI is not in the table. */
CIM_UTILS_EXPORT int wwn_cim_isVexor(uint32_t vendor_id, int32_t* index);

/* Vexor: the switch's own maker, by its primary OUI or one of the further ones. */
CIM_UTILS_EXPORT int wwn_cim_isVexorWwn(const wwn_* wwn);
CIM_UTILS_EXPORT int wwn_cim_isMcDataWwn(const wwn_* wwn);
CIM_UTILS_EXPORT int wwn_cim_isBrocadeWwn(const wwn_* wwn);
CIM_UTILS_EXPORT int wwn_cim_isInrangeWwn(const wwn_* wwn);
CIM_UTILS_EXPORT int wwn_cim_isQlogicWwn(const wwn_* wwn);
CIM_UTILS_EXPORT int wwn_cim_isVexorWwn_str(const uint8_t wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_isMcDataWwn_str(const uint8_t wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_isBrocadeWwn_str(const uint8_t wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_isInrangeWwn_str(const uint8_t wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_isQlogicWwn_str(const uint8_t wwn[8]);

/* ---- Switches and VSANs ------------------------------------------------------------------- */

/* The 12-bit VSAN number inside a WWN; 0 in a switch-unique one. */
CIM_UTILS_EXPORT uint32_t wwn_cim_get_vsan_index_from_wwn_str(const uint8_t wwn[8]);

/* The switch-unique WWN of a switch from the WWN that it shows in a VSAN. Another vendor's WWN and
 * one without a VSAN number are copied unchanged. Always 0 (-1 only for a null argument). */
CIM_UTILS_EXPORT int wwn_cim_get_switch_unique_wwn_from_vsan_wwn(wwn_* out, const wwn_* vsan_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(uint8_t out[8],
                                                                         const uint8_t vsan_wwn[8]);

/* The WWN that a switch shows in a VSAN (the low 12 bits count) from its switch-unique WWN. Another
 * vendor's WWN is copied unchanged. Always 0 (-1 only for a null argument). */
CIM_UTILS_EXPORT int wwn_cim_get_vsan_wwn_from_switch_unique_wwn(uint32_t vsan, wwn_* out,
                                                                 const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(
    uint32_t vsan, uint8_t out[8], const uint8_t switch_wwn[8]);

/* ---- Ports -------------------------------------------------------------------------------- */

/* The WWN of a port from the WWN of its switch, by the rule of the switch's vendor. The port is an
 * interface index for the maker's switches and a port number for the others. -1 for an all-zero
 * WWN, an unknown vendor, and as below. */
CIM_UTILS_EXPORT int wwn_cim_get_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_port_wwn_str(uint32_t port, uint8_t out[8],
                                              const uint8_t switch_wwn[8]);

/* The maker's rule, whatever the vendor of the WWN. Port channels and FCIP interfaces are traced on
 * standard output, "%d is port channel \n" and "%d is fcip \n". -1 for an FCIP interface and when
 * the platform does not know the type, channel, slot or port of the interface. */
CIM_UTILS_EXPORT int wwn_cim_get_vexor_port_wwn(uint32_t if_index, wwn_* out,
                                                const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_vexor_port_wwn_str(uint32_t if_index, uint8_t out[8],
                                                    const uint8_t switch_wwn[8]);

/* The other vendors' rules, whatever the vendor of the WWN; the low 8 bits of the port count.
 * Always 0 (-1 only for a null argument). */
CIM_UTILS_EXPORT int wwn_cim_get_mcdata_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_brocade_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_inrange_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_qlogic_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_mcdata_port_wwn_str(uint32_t port, uint8_t out[8],
                                                     const uint8_t switch_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_brocade_port_wwn_str(uint32_t port, uint8_t out[8],
                                                      const uint8_t switch_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_inrange_port_wwn_str(uint32_t port, uint8_t out[8],
                                                      const uint8_t switch_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_qlogic_port_wwn_str(uint32_t port, uint8_t out[8],
                                                     const uint8_t switch_wwn[8]);

/* The WWN of the switch from the WWN of one of its ports, by the rule of the port's vendor. For the
 * maker's ports VSAN 0 gives the switch-unique WWN and any other the WWN in that VSAN; the others
 * have no VSANs. -1 for an all-zero WWN and an unknown vendor. */
CIM_UTILS_EXPORT int wwn_cim_get_switch_wwn_from_port_wwn(uint32_t vsan, wwn_* out,
                                                          const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_switch_wwn_from_port_wwn_str(uint32_t vsan, uint8_t out[8],
                                                              const uint8_t port_wwn[8]);

/* The rules one by one, whatever the vendor of the WWN. The high part of the VSAN number is not
 * limited to four bits here (deliberately unlike the VSAN WWN above): a VSAN above 4095 reaches the
 * high nibble of byte 0. Always 0 (-1 only for a null argument). */
CIM_UTILS_EXPORT int wwn_cim_get_vexor_switch_wwn(uint32_t vsan, wwn_* out, const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_vexor_switch_wwn_str(uint32_t vsan, uint8_t out[8],
                                                      const uint8_t port_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_mcdata_switch_wwn(wwn_* out, const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_brocade_switch_wwn(wwn_* out, const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_inrange_switch_wwn(wwn_* out, const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_qlogic_switch_wwn(wwn_* out, const wwn_* port_wwn);
CIM_UTILS_EXPORT int wwn_cim_get_mcdata_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_brocade_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_inrange_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]);
CIM_UTILS_EXPORT int wwn_cim_get_qlogic_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]);

/* The interface index that a port WWN stands for: on the maker's switches asked of the platform
 * (a port channel, or the FC port or, with a non-zero iscsi flag, iSCSI port of a slot); for the
 * other known vendors the port number, byte 1 (McDATA: byte 1 minus 4, modulo 2^32). -1 for an
 * unknown vendor and when the platform cannot make the index. */
CIM_UTILS_EXPORT int wwn_cim_get_port_index_from_wwn_hex(uint32_t* if_index,
                                                         const uint8_t port_wwn[8], int32_t iscsi);

/* The same for the text of a WWN (16 characters); -1 too when it does not parse. */
CIM_UTILS_EXPORT int wwn_cim_get_port_index_from_wwn(uint32_t* if_index, const char* port_wwn_text,
                                                     int32_t iscsi);

/* 1 when all 8 bytes are equal, else 0. */
CIM_UTILS_EXPORT int wwn_cim_is_same_wwn_hex(const uint8_t wwn[8], const uint8_t other[8]);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_WWN_RULES_H */
