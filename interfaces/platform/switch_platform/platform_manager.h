/* The platform manager: slots, physical entities and the chassis. */
#ifndef SWITCH_PLATFORM_PLATFORM_MANAGER_H
#define SWITCH_PLATFORM_PLATFORM_MANAGER_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok. */
int32_t pfm_slot_num_to_entity_index(int32_t q, uint32_t* entity, uint32_t slot);

/* Result: 0 ok, result passed through. */
int32_t pfm_entity_index_to_slot_num(int32_t q, uint32_t entity, uint32_t* slot);

/* Result: 0 ok. Memory: caller's 498-byte buffer, zeroed first. */
int32_t pfm_get_sprom(int32_t q, int32_t a, int32_t b, int32_t c, void* buffer, int32_t size);

/* Result: text. Memory: platform text, not freed. */
const char* pdb_get_chassis_id_string(void);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_PLATFORM_MANAGER_H */
