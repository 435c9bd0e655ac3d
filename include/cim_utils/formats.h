/* Text forms of Fibre Channel and IP identifiers, and the readers of these texts.
 *
 * Conventions of this header:
 * - C99, C linkage. Binary identifiers are bytes in wire order, byte 0 first, always passed by
 *   pointer; the array sizes below say how many bytes are read or written.
 * - Writers (cim_sprintf_*, zs_cim_sprintf_*) take the destination first. The caller provides the
 *   room that each comment names, terminator included. Unless a comment says otherwise the result
 *   is the count of the last print, which nobody needs, or -1 for a null argument. A null
 *   identifier gives an empty text; a null destination is left alone.
 * - Readers take the text first and return 0 on success, -1 on failure. A failed reader leaves its
 *   result unchanged, and so does one that is given a null argument, which is a failure.
 * - Hexadecimal fields are read as scanf reads "%2x", in either case. A text of the right length
 *   always succeeds: from the first field on that holds no number, the bytes are 0.
 * - Nothing is allocated. Three functions return a buffer of the library, which the next call
 *   overwrites; callers serialise their calls (global_mutex).
 * - Only the domain/interface writers and the IPv6 writers ask the platform, and those only its
 *   local functions: no service is contacted.
 */
#ifndef CIM_UTILS_FORMATS_H
#define CIM_UTILS_FORMATS_H

#include <stdint.h>

#include <switch_platform/types.h>

#include <cim_utils/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Room for the texts, terminator included. */
enum cim_text_room {
  CIM_WWN_TEXT_ROOM = 17,
  CIM_MAC_TEXT_ROOM = 13,
  CIM_FCID_TEXT_ROOM = 7,
  CIM_WWN_LUN_TEXT_ROOM = 34,
  CIM_FCID_LUN_TEXT_ROOM = 24,
  CIM_IP_TEXT_ROOM = 16,
  CIM_IP_WITH_MASK_TEXT_ROOM = 32,
  CIM_IPV6_TEXT_ROOM = 128,
  CIM_KFS_ADDRESS_TEXT_ROOM = 46,
  CIM_DOM_INTERFACE_TEXT_ROOM = 80,
  CIM_ZONING_DOM_INTERFACE_TEXT_ROOM = 9,
  CIM_ZONING_DOM_PORT_TEXT_ROOM = 16
};

/* ---- Writers ------------------------------------------------------------------------------ */

/* 16 upper-case hexadecimal digits without separators. Room: 17. Result: 2. */
CIM_UTILS_EXPORT int cim_sprintf_wwn(char* dst, const wwn_* wwn);
CIM_UTILS_EXPORT int cim_sprintf_wwn_uint_array(char* dst, const uint8_t wwn[8]);

/* 12 upper-case hexadecimal digits without separators. Room: 13. Result: 2. */
CIM_UTILS_EXPORT int cim_sprintf_mac(char* dst, const uint8_t mac[6]);

/* 6 lower-case hexadecimal digits of bytes 1 (domain), 2 (area) and 3 (port); byte 0 is not part
 * of the identifier and is not written. Room: 7. Result: 2. */
CIM_UTILS_EXPORT int cim_sprintf_fcid(char* dst, const uint8_t fcid[4]);
CIM_UTILS_EXPORT int cim_sprintf_fcid_uint_array(char* dst, const uint8_t fcid[4]);

/* The WWN text, "_", and the eight bytes of the LUN in the form of a WWN: 33 characters. The _hex
 * variant takes both in one record, WWN in bytes 0..7 and LUN in 8..15. Room: 34. Result: 2. */
CIM_UTILS_EXPORT int cim_sprintf_wwn_lun(char* dst, const wwn_* wwn, const uint8_t lun[8]);
CIM_UTILS_EXPORT int cim_sprintf_wwn_lun_hex(char* dst, const uint8_t pair[16]);

/* The FC ID text, "_", and the LUN in the form of a WWN: 23 characters. The _hex variant takes
 * both in one record, FC ID in bytes 0..3 and LUN in 4..11. Room: 24. Result: 2. */
CIM_UTILS_EXPORT int cim_sprintf_fcid_lun(char* dst, const uint8_t fcid[4], const uint8_t lun[8]);
CIM_UTILS_EXPORT int cim_sprintf_fcid_lun_hex(char* dst, const uint8_t pair[12]);

/* IPv4 address "10.0.0.1". The bytes are those of a little-endian number: byte 3 is printed
 * first. Room: 16. Result: length of the text. */
CIM_UTILS_EXPORT int cim_sprintf_ip_uint_array(char* dst, const uint8_t address[4]);

/* IPv4 address given as a number, 0x0a000001 for "10.0.0.1". Despite the name there is no mask.
 * Room: 16. Result: length of the text. */
CIM_UTILS_EXPORT int cim_sprintf_ip_with_mask(char* dst, uint32_t address);

/* IPv4 address and mask, "10.0.0.1/255.255.255.0", from bytes 3, 2, 1, 0 and 7, 6, 5, 4. The two
 * functions are the same. Room: 32. Result: length of the text. */
CIM_UTILS_EXPORT int cim_sprintf_ip_with_mask_hex(char* dst, const uint8_t pair[8]);
CIM_UTILS_EXPORT int zs_cim_sprintf_ip_with_mask(char* dst, const uint8_t pair[8]);

/* IPv6 address: the platform's text (ip_addr_to_str) of its address record, at most 127
 * characters of it. Room: 128. Result: the library's 1024-byte text buffer, which the next call
 * overwrites. A null address renders nothing: dst receives the text of the previous call. */
CIM_UTILS_EXPORT char* cim_sprintf_ipv6_addr(char* dst, const void* address);

/* The same with "/" and the prefix length behind it, unless that is 128. The prefix length is the
 * 32-bit number in host order at byte 20 of the record (24 bytes). Room: 128. Result: as above;
 * the buffer holds the address alone. A null address gives the previous address without prefix. */
CIM_UTILS_EXPORT char* cim_sprintf_ipv6_addr_with_prefix(char* dst, const void* address);

/* Address of a peer. Family 1: IPv4 text of 4 bytes; family 2: IPv6 text of 16 bytes, both in
 * network order; any other family, or a null address: "0.0.0.0". Room: 46. Result: buffer, or
 * where that is null the library's own buffer, which the next such call overwrites. */
CIM_UTILS_EXPORT char* kfs_ip_addr_to_str(uint32_t family, const void* address, char* buffer);

/* Domain/interface record: port WWN in bytes 0..7, domain id in byte 8 (the other three are not
 * read). Writes "%s:%2d" of the interface's name and the domain in decimal, and traces
 * "interface : %s domain-id %d \n" on standard output. The platform is asked for the interface
 * index of the WWN and for its name; should it know none, index 0 is named. Room: 80. Result:
 * length of the text. cim_get_hex_from_str_dom_interface is not the inverse. */
CIM_UTILS_EXPORT int cim_sprintf_dom_interface_hex(char* dst, const uint8_t record[12]);

/* The same, with the text cut after 8 characters. Room: 9. Result: length of the uncut text. */
CIM_UTILS_EXPORT int zs_cim_sprintf_dom_interface(char* dst, const uint8_t record[12]);

/* Domain and port, bytes 0 and 3, "%02d:%02d". Room: 16. Result: length of the text. */
CIM_UTILS_EXPORT int zs_cim_sprintf_dom_port(char* dst, const uint8_t record[4]);

/* ---- Readers ------------------------------------------------------------------------------ */

/* Exactly 16 characters: eight two-digit hexadecimal fields, byte 0 first. */
CIM_UTILS_EXPORT int wwn_cim_get_hex_from_str_wwn(const char* text, wwn_* wwn);

/* Exactly 6 characters: three two-digit hexadecimal fields for bytes 1, 2, 3. Byte 0 becomes 0. */
CIM_UTILS_EXPORT int cim_get_hex_from_str_fcid(const char* text, uint8_t fcid[4]);

/* Exactly 33 characters: WWN, one character that is not looked at, LUN. */
CIM_UTILS_EXPORT int cim_get_hex_from_str_wwn_lun(const char* text, uint8_t pair[16]);

/* Exactly 23 characters: FC ID, one character that is not looked at, LUN. */
CIM_UTILS_EXPORT int cim_get_hex_from_str_fcid_lun(const char* text, uint8_t pair[12]);

/* "10.0.0.1/255.255.255.0", read as scanf reads "%u.%u.%u.%u/%u.%u.%u.%u": all eight numbers must
 * be there, what follows them is not looked at. The address goes to bytes 3, 2, 1, 0 and the mask
 * to bytes 7, 6, 5, 4; of each number the low 8 bits are kept. */
CIM_UTILS_EXPORT int cim_get_hex_from_str_ip_with_mask(const char* text, uint8_t pair[8]);

/* Exactly 19 characters: WWN, one character that is not looked at, domain in two hexadecimal
 * digits. Bytes 9..11 become 0. The writer's text (interface name, decimal domain) is another. */
CIM_UTILS_EXPORT int cim_get_hex_from_str_dom_interface(const char* text, uint8_t record[12]);

/* Domain, ":", port, both decimal and neither of them 0; out[0] is the domain, out[1] the port.
 * Only the first 99 characters are looked at. Colons in front are skipped. An empty text succeeds
 * and leaves out unchanged. A number that is missing, zero or not made of digits prints
 * "Invalid domain or port " on standard output and fails. */
CIM_UTILS_EXPORT int parse_domain_port(const char* text, uint32_t out[2]);

/* The decimal value of the text, or -1 when one of its first n characters is not a decimal digit.
 * Digits behind the first n count too. With n of 0 or less nothing is tested, and a text without a
 * number is 0. Values beyond 32 bits give the nearest signed 32-bit number. */
CIM_UTILS_EXPORT int32_t is_valid_number(const char* text, int32_t n);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_FORMATS_H */
