/* The instance ids of zoning objects, and zone members between the zone server's packed form and
 * the text forms of CIM.
 *
 * Conventions of this header:
 * - C99, C linkage. 0 is success and -1 failure. A null argument is a failure. Messages are traces
 *   on standard output.
 * - An instance id has room for ZS_CIM_INSTANCE_ID_ROOM bytes, a packed value for
 *   ZS_CIM_VALUE_ROOM. Values need no alignment.
 * - Nothing is allocated and no service is asked, unless a comment says so.
 * - The key text of a member, inside its instance id, is another than the display text of
 *   zs_cim_zone_member_. Not every text that is written can be read back, deliberately: the zone
 *   server's and CIM's tables differ.
 * - Callers serialise their calls (global_mutex).
 */
#ifndef CIM_UTILS_ZONING_IDENTIFIERS_H
#define CIM_UTILS_ZONING_IDENTIFIERS_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <cim_utils/zoning_records.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Zone sets, zones and aliases --------------------------------------------------------- */

/* Writes "%d_%d_%d" to dst. */
CIM_UTILS_EXPORT int32_t zs_cim_get_generic_instance_id(int32_t vsan_id, int32_t object_id,
                                                        int32_t active, char* dst);

/* Reads such a text, of which the first 287 characters count. The numbers are not checked: "7x" is
 * 7, "x" is 0, and one beyond 32 bits is the nearest. Each is stored as soon as it is read: when
 * one is missing, which is a failure, those in front of it are stored. */
CIM_UTILS_EXPORT int32_t zs_cim_get_fields_from_generic_instance_id(const char* text,
                                                                    int32_t* vsan_id,
                                                                    int32_t* object_id,
                                                                    int32_t* active);

/* ---- Members ------------------------------------------------------------------------------ */

/* Writes "%d^%d^%s^%d" of the VSAN, the CIM type, the key text of the value and active to dst.
 * Failure: the type has no CIM type or no key text. */
CIM_UTILS_EXPORT int32_t zs_cim_get_member_instance_id(uint32_t vsan_id,
                                                       enum zs_member_type zs_type,
                                                       const void* value, int32_t active,
                                                       char* dst);

/* The same from parts in CIM form, at most 287 characters of it. */
CIM_UTILS_EXPORT int32_t
zs_cim_get_member_instance_id_with_cim_member(uint32_t vsan_id, enum zs_cim_member_type cim_type,
                                              const char* value_text, int32_t active, char* dst);

/* Reads a member instance id, of which the first 287 characters count.
 *   vsan_id       decimal
 *   zs_type       zone-server type of the CIM type in the text; a type that is not read back fails
 *   value_out     raw 0: the packed value. Otherwise the text of the active flag, deliberately not
 *                 that of the value, cut to 257 characters: of no use to the caller
 *   value_length  size of the value (get_member_value_length); for the types 4 and 230 the length
 *                 of the active flag's text plus 1, deliberately
 *   active        1 when the text says 1, else 0
 * Outputs are stored one after another in this order, active in front of the value; when a part is
 * missing or cannot be read, which is a failure, those in front of it are stored.
 * With raw 0 and the types 109, 231 and 233 services are asked: get_pwwn_with_ifindex_and_swwn. */
CIM_UTILS_EXPORT int32_t zs_cim_get_fields_from_member_instance_id(
    const char* text, uint32_t* vsan_id, uint8_t* zs_type, void* value_out, int32_t* value_length,
    uint8_t* active, int32_t raw);

/* ---- Member types -------------------------------------------------------------------------
 * A type without a counterpart is a failure and leaves the output alone. */

/* The CIM type by which a member is shown. 109 has none. */
CIM_UTILS_EXPORT int32_t get_cim_member_type_from_member_type(enum zs_member_type zs_type,
                                                              uint32_t* cim_type);

/* The zone-server type that a CIM type asks for; CIM types 2 to 13. 12 is 230, never 228. */
CIM_UTILS_EXPORT int32_t get_member_type_from_cim_member_type(enum zs_cim_member_type cim_type,
                                                              uint8_t* zs_type);

/* The same for the decimal text of a CIM type. */
CIM_UTILS_EXPORT int32_t get_member_type_from_cim_member_type_str(const char* cim_type,
                                                                  uint8_t* zs_type);

/* The same for the CIM types 2 to 12 only. */
CIM_UTILS_EXPORT int32_t decode_cim_member_type(enum zs_cim_member_type cim_type, uint8_t* zs_type);

/* The size of a packed value in bytes; -1 for type 235, which has none, and for unknown types. */
CIM_UTILS_EXPORT int32_t get_member_value_length(enum zs_member_type zs_type);

/* ---- Member values ------------------------------------------------------------------------ */

/* Writes the key text of a packed value to dst (128 bytes). Failure, dst unchanged: type 109 and
 * unknown types. Type 233 asks the platform for the name of the interface, but no service. */
CIM_UTILS_EXPORT int32_t get_cim_member_value_from_member_type_and_value(
    enum zs_member_type zs_type, const void* value, char* dst);

/* Reads the text form of a value: the key text, but for the types 231 (interface name on this
 * switch), 233 (interface;domain) and 109 (interface;switch WWN). Texts are cut to 63 characters.
 * Writes as many bytes as get_member_value_length says. Domain and port keep their low 8 bits. An
 * IPv6 address gets prefix length 128. Failure, value_out unchanged: a text that does not fit the
 * type, type 235 and unknown types. For the types 109, 231 and 233 services are asked:
 * get_pwwn_with_ifindex_and_swwn. */
CIM_UTILS_EXPORT int32_t get_member_value_from_cim_member_type_value(const char* text,
                                                                     enum zs_member_type zs_type,
                                                                     void* value_out);

/* What get_pwwn_with_ifindex_and_swwn is given. */
enum zs_cim_interface_reference {
  ZS_CIM_INTERFACE = 0, /* "fc1/5" of the local switch */
  ZS_CIM_INTERFACE_OF_SWITCH =
      1,                         /* "fc1/5;20000005300084DF", the WWN ended by a blank or the end */
  ZS_CIM_INTERFACE_OF_DOMAIN = 2 /* "fc1/5;7", likewise; the low 8 bits of the number count */
};

/* Resolves an interface reference (zs_cim_interface_reference; any other mode is success and leaves
 * out alone). Of an interface's name in front of ";" the first 9 characters count.
 *   0, 1  out receives the interface's port WWN (8 bytes)
 *   2     out receives 12 bytes: the first two of the port WWN that the interface would have on the
 *         local switch, six bytes 0xFF, the domain, three zeros. Deliberate: the zone server knows
 *         the interfaces of domain/interface members by this key.
 * Modes 0 and 2 ask the switch identity service on the CMPI face's queue, mts_q. Failure, with a
 * line on standard output, out unchanged: an unknown interface, no or a bad switch WWN, an
 * interface without a port WWN. */
CIM_UTILS_EXPORT int32_t get_pwwn_with_ifindex_and_swwn(const char* text, int32_t mode, void* out);

/* ---- Zones -------------------------------------------------------------------------------- */

/* Prints instance id and name of a zone; nothing for null. */
CIM_UTILS_EXPORT void print_zone(const zs_cim_zone_* zone);

/* 1 when bit 0 of a zone's attribute word is set, else 0. */
CIM_UTILS_EXPORT int32_t is_zone_readonly(uint32_t attribute_word);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_ZONING_IDENTIFIERS_H */
