/* The domain manager: which switch owns which domain ID in a VSAN, the local switch's
 * configuration, and whether a WWN is the local switch's.
 *
 * Conventions:
 * - C linkage. q is the caller's queue handle. 0 is success and -1 failure unless stated.
 * - Records are the caller's, in host order.
 */
#ifndef CIM_UTILS_DOMAIN_MANAGER_H
#define CIM_UTILS_DOMAIN_MANAGER_H

#include <stdint.h>

#include <cim_utils/export.h>
#include <switch_platform/records_domain_manager.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Reads the local switch's configuration in `vsan` (exact non-zero) or in the next VSAN after it
 * into conf, which the caller clears first. Result: 0 or -1. After a failure the record is left in
 * network order, deliberately, and is not to be read. */
CIM_UTILS_EXPORT int32_t dm_cim_get_dmEntry(int32_t q, uint32_t vsan, int32_t exact,
                                            mts_dm_sw_conf_* conf);

/* Reads the switch that owns `domain` in `vsan` (exact non-zero), or that of the next domain after
 * it. Result: 0 or -1. */
CIM_UTILS_EXPORT int32_t dm_cim_get_dmDatabaseEntry(int32_t q, uint32_t vsan, uint8_t domain,
                                                    int32_t exact, mts_dm_sw_dom_list_info_* info);

/* The WWN of the switch that owns `domain` in `vsan`. */
CIM_UTILS_EXPORT int32_t dm_cim_get_switch_wwn_by_domain_id(int32_t q, uint32_t vsan,
                                                            uint8_t domain, wwn_* wwn);

/* The WWN of port `port` (a port index) of the switch that owns `domain` in `vsan`. */
CIM_UTILS_EXPORT int32_t dm_cim_get_port_wwn_by_domain_id(int32_t q, uint32_t vsan, uint8_t domain,
                                                          uint32_t port, wwn_* wwn);

/* Whether a VSAN WWN belongs to the local switch. Result: 1, 0, or -1 when that cannot be told.
 * Asks the switch identity service. */
CIM_UTILS_EXPORT int32_t dm_cim_is_local_switch_wwn(int32_t q, const wwn_* vsan_wwn);

/* The same for a VSAN WWN as text of 16 characters. Result: non-zero when local, 0 otherwise. */
CIM_UTILS_EXPORT int32_t dm_cim_is_local_switch_wwn_hex(int32_t q, const char* text);

/* Whether a port WWN is one of the local switch's. Result: 1, 0, or -1 when that cannot be told. */
CIM_UTILS_EXPORT int32_t dm_cim_is_local_port_wwn(int32_t q, const wwn_* port_wwn);
CIM_UTILS_EXPORT int32_t dm_cim_is_local_port_wwn_hex(int32_t q, const char* text);

/* The local switch's domain ID in `vsan`, 0 when it has none there. Result: 0, or 255 with *domain
 * untouched when the domain manager does not give its list. */
CIM_UTILS_EXPORT int32_t dm_cim_get_domainId(int32_t q, uint32_t vsan, uint8_t* domain);

/* Changes the local switch's configuration in `vsan`. what 1: the priority, by code (2 gives 1, 3
 * gives 254, any other 128). what 2 or 3: domain ID and domain type (type code 1 gives 1, any other
 * 2). Any other what sends a record that changes nothing. Result: 0 or the service's status. */
CIM_UTILS_EXPORT int32_t dm_cim_set_DMEntry(int32_t q, uint32_t vsan, uint16_t priority,
                                            uint8_t domain, int32_t type, int32_t what);

/* Converts a configuration record between host and network order, in place. */
CIM_UTILS_EXPORT void dmEntry_hton(mts_dm_sw_conf_* conf);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_DOMAIN_MANAGER_H */
