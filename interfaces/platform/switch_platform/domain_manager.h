/* The domain manager: the per-VSAN domain IDs of the switches of a fabric. */
#ifndef SWITCH_PLATFORM_DOMAIN_MANAGER_H
#define SWITCH_PLATFORM_DOMAIN_MANAGER_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok, else failure. Memory: platform allocates *message; caller releases with mts_drop
 * on both paths (only if non-NULL); *out preset to NULL by the caller. */
int32_t dm_get_dom_ids_in_sw(int32_t q, int32_t zero, mts_msg_t** message);

/* Result: the count. */
int32_t dm_parse_get_num_entries(const mts_msg_t* message);

/* Result: VSAN of entry i (from 0); index counts from 0. */
uint32_t dm_parse_get_vsan_index_in_vsan(const mts_msg_t* message, int32_t i);

/* Result: domain id of entry i; index counts from 0. */
uint8_t dm_parse_get_dom_id_in_vsan(const mts_msg_t* message, int32_t i);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_DOMAIN_MANAGER_H */
