/* Interface indexes: the platform's 32-bit identifiers of interfaces. Only these functions decode
 * them. */
#ifndef SWITCH_PLATFORM_IF_INDEX_H
#define SWITCH_PLATFORM_IF_INDEX_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: ignored. Memory: caller's buffer of at least 64 bytes. */
int32_t sprintf_if_index(char* dst, uint32_t if_index);

/* Result: 0 ok, non-zero failure. */
int32_t if_db_str2ifindex(const char* name, uint32_t* if_index);

/* Result: 0 ok. */
int32_t wwnm_get_ifindex_from_port_wwn(const uint8_t wwn[8], uint32_t* if_index);

/* Result: 0 ok, non-zero failure. */
int32_t if_index_get_type(uint32_t if_index, uint8_t* type);

/* Result: 0 ok. */
int32_t if_index_get_slot(uint32_t if_index, uint8_t* slot);

/* Result: 0 ok. */
int32_t if_index_get_port(uint32_t if_index, uint8_t* port);

/* Result: 0 ok = *type advanced; non-zero = no more types (passed through). */
int32_t if_index_get_next_type(uint8_t* type);

/* Result: the start index of a get-next walk of that type. */
uint32_t if_index_get_if_index_all_for_type(uint8_t type);

/* Result: 0 ok. */
int32_t if_index_phy_fc_port_init(uint32_t* if_index, uint32_t slot, uint32_t port);

/* Result: 0 ok. */
int32_t if_index_iscsi_port_init(uint32_t* if_index, uint32_t slot, uint32_t port);

/* Result: 0 ok. */
int32_t if_index_port_channel_init(uint32_t* if_index, uint32_t channel);

/* Result: 0 ok. */
int32_t if_index_port_channel_get_channel_num(uint32_t if_index, uint32_t* channel);

/* Result: converted value. */
uint32_t hton_if_index(uint32_t if_index);

/* Result: converted value. */
uint32_t ntoh_if_index(uint32_t if_index);

/* Result: 0 ok; *if_index in host order. */
int32_t convert_fspf_if_index_to_if_index(uint32_t fspf_index_be, uint32_t* if_index);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_IF_INDEX_H */
