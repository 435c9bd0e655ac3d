/* The zoning database of a VSAN, read from the zone server: single objects, all objects of a VSAN,
 * and who contains whom.
 *
 * Conventions of this header:
 * - C99, C linkage. q is the caller's queue handle. 0 is success; failure is -1, or the zone
 *   server's own result where a comment says so. A null argument is -1.
 * - active: 1 reads the active database, 0 the full (editable) one. The flag is stored in each
 *   record and in its instance id, so that an instance id leads back to the same database.
 * - Arrays and chains: see zoning_records.h. Outputs are set on every path: on failure arrays and
 *   chains are null and counts 0.
 * - Lists own their elements, blocks of the C heap, and are released with cim_g_slist_destroy; what
 *   is found is appended to the list at *list, which may be empty (null).
 * - Every call asks the zone server afresh: nothing is remembered. Callers serialise their calls.
 */
#ifndef CIM_UTILS_ZONING_QUERIES_H
#define CIM_UTILS_ZONING_QUERIES_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>
#include <cim_utils/zoning_records.h>
#include <switch_platform/records_zone_server.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Zone sets, zones and aliases ---------------------------------------------------------
 * Failure of the zone server: its result. -1 when memory runs out, and for an instance id that
 * cannot be read. No objects are a success with count 0 and a null array. */

/* One object by its id, or with id 0 all of the VSAN. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_set(int32_t q, uint32_t id, uint32_t vsan_id,
                                             int32_t active, int32_t* count,
                                             zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone(int32_t q, uint32_t id, uint32_t vsan_id, int32_t active,
                                         int32_t* count, zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_alias(int32_t q, uint32_t id, uint32_t vsan_id,
                                               int32_t active, int32_t* count,
                                               zs_cim_alias_** aliases);

/* The same without the count. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_set_by_ids(int32_t q, uint32_t id, uint32_t vsan_id,
                                                    int32_t active, zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_by_ids(int32_t q, uint32_t id, uint32_t vsan_id,
                                                int32_t active, zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_alias_by_ids(int32_t q, uint32_t id, uint32_t vsan_id,
                                                      int32_t active, zs_cim_alias_** aliases);

/* The same by instance id, which names the database too. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_set_by_instance_id(int32_t q, const char* instance_id,
                                                            zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_by_instance_id(int32_t q, const char* instance_id,
                                                        zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_alias_by_instance_id(int32_t q, const char* instance_id,
                                                              zs_cim_alias_** aliases);

/* All of a VSAN, from the database that the name tells. */
CIM_UTILS_EXPORT int32_t zs_cim_get_all_active_zone_sets(int32_t q, uint32_t vsan_id,
                                                         int32_t* count,
                                                         zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_non_active_zone_sets(int32_t q, uint32_t vsan_id,
                                                             int32_t* count,
                                                             zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_active_zones(int32_t q, uint32_t vsan_id, int32_t* count,
                                                     zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_non_active_zones(int32_t q, uint32_t vsan_id,
                                                         int32_t* count, zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_active_zone_aliases(int32_t q, uint32_t vsan_id,
                                                            int32_t* count,
                                                            zs_cim_alias_** aliases);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_non_active_zone_aliases(int32_t q, uint32_t vsan_id,
                                                                int32_t* count,
                                                                zs_cim_alias_** aliases);

/* Do nothing. Result: 0. Kept for programs that were linked with them. */
CIM_UTILS_EXPORT int32_t zs_cim_get_all_zone_sets(void);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_zones(void);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_zone_aliases(void);

/* ---- The zone server's own entries --------------------------------------------------------
 * One entry by its id, or with id 0 all of the VSAN, as the zone server gives them. The caller
 * frees the entries with free(). Result: 0 or the zone server's. */

CIM_UTILS_EXPORT int32_t zs_cim_get_cmi_zone_set(int32_t q, uint32_t id, uint32_t vsan_id,
                                                 int32_t active, int32_t* count,
                                                 zs_zone_set_entry_** entries);
CIM_UTILS_EXPORT int32_t zs_cim_get_cmi_zone(int32_t q, uint32_t id, uint32_t vsan_id,
                                             int32_t active, int32_t* count,
                                             zs_zone_entry_** entries);
CIM_UTILS_EXPORT int32_t zs_cim_get_cmi_zone_alias(int32_t q, uint32_t id, uint32_t vsan_id,
                                                   int32_t active, int32_t* count,
                                                   zs_alias_entry_** entries);

/* Records of `count` entries, which stay the caller's; the VSAN is that of each entry. A count of
 * 0 or less is a success with a null array. Failure: memory. No service is asked. */
CIM_UTILS_EXPORT int32_t zs_cim_convert_cmi_zone_set_to_cim_zone_set(
    const zs_zone_set_entry_* entries, zs_cim_zone_set_** zone_sets, int32_t active, int32_t count);
CIM_UTILS_EXPORT int32_t zs_cim_convert_cmi_zone_to_cim_zone(const zs_zone_entry_* entries,
                                                             zs_cim_zone_** zones, int32_t active,
                                                             int32_t count);
CIM_UTILS_EXPORT int32_t zs_cim_convert_cmi_zone_alias_to_cim_zone_alias(
    const zs_alias_entry_* entries, zs_cim_alias_** aliases, int32_t active, int32_t count);

/* ---- Members ------------------------------------------------------------------------------
 * Failure: -1. */

/* One member by its id within its zone or alias. A member that cannot be named (type 109, unknown
 * types) is a record of zeros. A member id of 0 is a success and touches nothing, not even the
 * outputs. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member(int32_t q, uint32_t member_id, uint32_t vsan_id,
                                                int32_t active,
                                                enum zs_member_parent_kind parent_kind,
                                                uint32_t parent_id, int32_t* count,
                                                zs_cim_zone_member_** members);

/* The member with that instance id, in any case of its letters, found by reading every member of
 * the VSAN: first of the active database, then of the full one, whatever the id says. One record,
 * whose instance id is spelled as given. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member_by_instance_id(int32_t q, const char* instance_id,
                                                               zs_cim_zone_member_** member);

/* The members of all zones and then of all aliases of a VSAN as a chain, each once: those of one
 * type and display text are one member, with the instance id of the first. What cannot be read is
 * left out. Result: 0. */
CIM_UTILS_EXPORT int32_t zs_cim_get_all_zone_members(int32_t q, uint32_t vsan_id, int32_t active,
                                                     int32_t* count, zs_cim_zone_member_** members);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_active_zone_members(int32_t q, uint32_t vsan_id,
                                                            int32_t* count,
                                                            zs_cim_zone_member_** members);
CIM_UTILS_EXPORT int32_t zs_cim_get_all_non_active_zone_members(int32_t q, uint32_t vsan_id,
                                                                int32_t* count,
                                                                zs_cim_zone_member_** members);

/* ---- Children -----------------------------------------------------------------------------
 * Chains, in the order of the children's ids. A child that cannot be read is left out. Failure
 * (-1): the parent cannot be read. An instance id that cannot be read reads what was understood of
 * it, without an object id the first of the VSAN. A parent without children is a success with a
 * null chain, but for a zone set without zones, which is a failure, deliberately. */

CIM_UTILS_EXPORT int32_t zs_cim_get_zone_set_zones_by_instance_id(int32_t q,
                                                                  const char* instance_id,
                                                                  zs_cim_zone_** zones);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_zone_aliases_by_instance_id(int32_t q,
                                                                     const char* instance_id,
                                                                     zs_cim_alias_** aliases);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_zone_members_by_instance_id(int32_t q,
                                                                     const char* instance_id,
                                                                     zs_cim_zone_member_** members);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_alias_zone_members_by_instance_id(
    int32_t q, const char* instance_id, zs_cim_zone_member_** members);

/* ---- Parents ------------------------------------------------------------------------------ */

/* The zone sets that hold a zone, and the zones that hold an alias, as chains. Failure (-1): an
 * instance id that cannot be read, the VSAN cannot be read, memory. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_zone_set_parents_by_instance_id(
    int32_t q, const char* instance_id, zs_cim_zone_set_** zone_sets);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_alias_zone_parents_by_instance_id(int32_t q,
                                                                           const char* instance_id,
                                                                           zs_cim_zone_** zones);

/* Appends copies of the zone server's entries (zs_zone_entry_, zs_alias_entry_) that hold the
 * member with that instance id, in any case of its letters; each once. 0 also when the VSAN cannot
 * be read; failure (-1): memory. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member_zone_parents(int32_t q, uint32_t vsan_id,
                                                             int32_t active,
                                                             const char* member_instance_id,
                                                             GSList** list);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member_zone_alias_parents(int32_t q, uint32_t vsan_id,
                                                                   int32_t active,
                                                                   const char* member_instance_id,
                                                                   GSList** list);

/* The same as records (zs_cim_zone_, zs_cim_alias_), the last found first, in the VSAN and the
 * database that the instance id names. Failure (-1): an instance id that cannot be read, memory. */
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member_zone_parents_by_instance_id(
    int32_t q, const char* member_instance_id, GSList** list);
CIM_UTILS_EXPORT int32_t zs_cim_get_zone_member_zone_alias_parents_by_instance_id(
    int32_t q, const char* member_instance_id, GSList** list);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_ZONING_QUERIES_H */
