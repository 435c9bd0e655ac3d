/* The port manager: interfaces, their configuration, optics and counters; IP and FCIP bindings. */
#ifndef SWITCH_PLATFORM_PORT_MANAGER_H
#define SWITCH_PLATFORM_PORT_MANAGER_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok; negative + mts_errno_get 62 = time-out; other non-zero failure. Memory: client
 * allocates *out with the C heap, caller frees with free(); *out preset to NULL. */
int32_t pm_cmi_get_port_config(int32_t q, int32_t operation, int32_t num_keys,
                               const struct pm_if_key_* key, int32_t* reply_count,
                               pm_port_info_** out, int32_t last);

/* Result: 0 ok; reply word 1 (second 32-bit word, network order) is the service status. Memory:
 * client allocates *reply, library frees with free(); value is the caller's. */
int32_t pm_cmi_set_port_config(int32_t q, int32_t zero1, int32_t zero2, int32_t one,
                               const struct pm_if_key_* key, int32_t attribute,
                               int32_t value_length, const void* value, int32_t* reply_count,
                               void** reply, int32_t last);

/* Result: 0 ok. Memory: client allocates *reply (>= 9 bytes), library frees. */
int32_t pm_cmi_get_fcot_info(int32_t q, int32_t operation, int32_t num_keys,
                             const struct pm_if_key_* key, int32_t* reply_count, void** reply,
                             int32_t timeout, int32_t last);

/* Result: 0 ok. Memory: client allocates *reply, library frees. */
int32_t pm_cmi_get_elp_info(int32_t q, int32_t operation, int32_t num_keys,
                            const struct pm_if_key_* key, int32_t* reply_count, void** reply,
                            int32_t last);

/* Result: 0 ok. Memory: client allocates *counters (>= 600 bytes), caller of the adaptor frees
 * with free(). */
int32_t pm_get_port_counters(int32_t q, uint32_t if_index, int32_t one1, int32_t one2,
                             fcIfAllCounters_t** counters);

/* Result: non-zero = Ethernet channel. */
int32_t pm_is_ether_channel(uint32_t if_index);

/* Result: non-zero = bundle. */
int32_t pm_is_bundle_port_type(uint8_t if_type);

/* Result: printed with "%u". */
uint32_t pm_cli_dump_port_speed(uint32_t speed);

/* Result: printed with "%u". */
uint32_t pm_cli_dump_port_mode(uint32_t mode);

/* Result: 0 ok. Memory: platform allocates *address_block (first 4 bytes = IPv4, network order),
 * library frees with free(). */
int32_t ipconf_get_intf_ip_address(int32_t q, uint32_t if_index, void** address_block,
                                   int32_t type);

/* Result: block: count n then n indexes; NULL = none/failure. Memory: platform allocates,
 * library frees with free(). */
uint32_t* ips_mgr_fcip_get_fcip_if_for_eth_if_blk(int32_t q, uint32_t eth_if_index);

/* Result: same. Memory: same. */
uint32_t* ips_mgr_fcip_get_eth_if_for_fcip_if_blk(int32_t q, uint32_t fcip_if_index);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_PORT_MANAGER_H */
