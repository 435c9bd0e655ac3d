/* Changes of the zoning database of a VSAN, made by the zone server.
 *
 * Conventions of this header:
 * - C99, C linkage. q is the caller's queue handle. 0 is success and -1 failure unless a comment
 *   says otherwise; *error, where it may be null, receives the zone server's result then, or -1
 *   where the zone server was not at fault. On success *error is left alone.
 * - Every change goes to the full (editable) database. The zone server goes by names: ids are
 *   looked up first.
 * - operation: 0 removes or deletes, anything else adds or creates; passed on unchanged.
 * - Nothing is undone: what was changed in front of a failure stays changed.
 * - Messages and traces go to standard output. Callers serialise their calls (global_mutex).
 */
#ifndef CIM_UTILS_ZONING_CHANGES_H
#define CIM_UTILS_ZONING_CHANGES_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <cim_utils/zoning_records.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Creates or deletes the object of that kind and name. After a creation the new object is read back
 * into *record, an array of one zs_cim_zone_, zs_cim_zone_set_ or zs_cim_alias_ by kind, which the
 * caller frees; after a deletion, and on failure, *record is null. A deletion does without a place
 * for it: record may be null. A failure to read it back is a failure although the object exists
 * from then on. */
CIM_UTILS_EXPORT int32_t zs_cim_create_zoning_object(int32_t q, int32_t operation, uint32_t vsan_id,
                                                     enum zs_object_kind kind, const char* name,
                                                     void** record, int32_t* error);

/* The same for an existing object, by its id. */
CIM_UTILS_EXPORT int32_t zs_cim_create_zoning_object_with_id(int32_t q, int32_t operation,
                                                             uint32_t vsan_id,
                                                             enum zs_object_kind kind, uint32_t id,
                                                             void** record, int32_t* error);

/* Adds a zone to a zone set, or removes it from there. */
CIM_UTILS_EXPORT int32_t zs_cim_add_zone_to_zone_set(int32_t q, int32_t operation, uint32_t vsan_id,
                                                     uint32_t zone_set_id, uint32_t zone_id,
                                                     int32_t* error);

/* Adds an alias to a zone, or removes it from there. */
CIM_UTILS_EXPORT int32_t zs_cim_add_alias_to_zone(int32_t q, int32_t operation, uint32_t vsan_id,
                                                  uint32_t zone_id, uint32_t alias_id,
                                                  int32_t* error);

/* Adds a member to a zone (ZS_OBJECT_ZONE) or an alias (ZS_OBJECT_ALIAS), or removes it from there.
 * The parent's name is looked up in the database that `active` names. `value` has value_length
 * bytes, for an IPv6 member 24 whatever value_length says, and for an alias name (type 4) it is a
 * terminated text.
 *   type 109   is sent as 231, deliberately: what is stored is the port WWN of the interface
 *   type 4     adds the alias of that name to the zone with the parent's name, deliberately also
 *              when the parent is an alias
 * Failure with *error -1, nothing changed: another kind of parent, a negative length, memory. */
CIM_UTILS_EXPORT int32_t zs_cim_add_zoning_member(int32_t q, int32_t operation, uint32_t vsan_id,
                                                  int32_t active, enum zs_object_kind parent_kind,
                                                  uint32_t parent_id,
                                                  enum zs_member_type member_type,
                                                  const void* value, int32_t value_length,
                                                  int32_t* error);

/* Removes a member from every zone and every alias that holds it. What fails for one of them is
 * said on standard output and the others are gone through all the same; the result is 0 then.
 * Failure: an instance id that cannot be read or that names the active database (nothing is
 * changed), and when memory for the parents runs out. */
CIM_UTILS_EXPORT int32_t zs_cim_remove_zone_member_from_all_parents(int32_t q,
                                                                    const char* member_instance_id);

/* Activates (or deactivates) a zone set, looked up in the database that `active` names. The results
 * 0x40200038 and 0x40200039 of the zone server are successes. *error is 1 for an unknown zone set.
 */
CIM_UTILS_EXPORT int32_t zs_cim_activate_zone_set(int32_t q, uint32_t vsan_id, int32_t active,
                                                  uint32_t zone_set_id, const int32_t* operation,
                                                  int32_t* error);

/* Distributes the zone set database of a VSAN to the other switches. The zone server's result
 * 0x40200079 is a success. Any other is stored in *error, also 0, and the result is its low 16
 * bits, or 145 for 0x40200091. */
CIM_UTILS_EXPORT int32_t zs_cim_distribute_zone_set(int32_t q, uint32_t vsan_id, int32_t* error);

/* What happens to devices that are in no zone, as CIM's DefaultZoningState: 2 when the policy is 1,
 * else 3; 0 when it cannot be read. */
CIM_UTILS_EXPORT int32_t zs_cim_get_default_zoning_state(int32_t q, uint32_t vsan_id);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_ZONING_CHANGES_H */
