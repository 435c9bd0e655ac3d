/* Modules and physical entities: line cards, supervisors and the other parts of the chassis, and
 * the CIM values of their states.
 *
 * Conventions: C linkage; session is the caller's queue handle; records are the caller's, in host
 * order before and after every call. Each row is one exchange with the platform manager.
 */
#ifndef CIM_UTILS_MODULES_H
#define CIM_UTILS_MODULES_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_platform_manager.h>

#ifdef __cplusplus
extern "C" {
#endif

/* CIM OperationalStatus of a module's oper status: 1 gives 0 (Unknown), 2 and 4 give 2 (OK), 3
 * gives 10 (Stopped), 5 and 6 give 8 (Starting), anything else 6 (Error). */
CIM_UTILS_EXPORT uint16_t pfm_cim_convert_module_oper_state(uint32_t state);

/* CIM RequestedState and EnabledState of a module's admin status, one rule: 1 gives 2 (Enabled), 2
 * gives 3 (Disabled), 3 gives 4, 4 gives 6, anything else 5. */
CIM_UTILS_EXPORT uint16_t pfm_cim_convert_module_requested_status(uint32_t state);
CIM_UTILS_EXPORT uint16_t pfm_cim_convert_module_enable_state(uint32_t state);

/* The entity index of what sits in a slot. Result: 0xFFFFFFFF (-1) when the platform manager does
 * not tell it. Two lines on standard output. */
CIM_UTILS_EXPORT uint32_t pfm_cim_get_entityId_from_slotNumber(int32_t session, uint32_t slot);

/* The slot in which an entity sits, in *slot_out. Result: that of the platform manager, 0 for
 * success; -1 for a null argument. */
CIM_UTILS_EXPORT int32_t pfm_cim_entity_index_to_slot_num(int32_t session, uint32_t entity,
                                                          uint32_t* slot_out);

/* Fetches the row of `entity` (exact not zero) or the one behind it (exact zero) into *entry. A
 * walk starts with entity index 0. Result: 0 or the platform manager's status; -1 for a null entry.
 * A success without a reply leaves the entry as it was, but for its entity index. */
CIM_UTILS_EXPORT int32_t pfm_cim_get_vefcModuleTable(int32_t session, uint32_t entity,
                                                     int32_t exact, _vefcModuleEntry* entry);
CIM_UTILS_EXPORT int32_t pfm_cim_get_entPhysicalTable(int32_t session, uint32_t entity,
                                                      int32_t exact, _entPhysicalEntry* entry);

/* Print a row on standard output; nothing for null. */
CIM_UTILS_EXPORT void print_module_info(const _vefcModuleEntry* entry);
CIM_UTILS_EXPORT void print_entity_info(const _entPhysicalEntry* entry);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_MODULES_H */
