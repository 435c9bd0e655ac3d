/* The name server: the N_Ports and NL_Ports logged into the fabric. */
#ifndef SWITCH_PLATFORM_NAME_SERVER_H
#define SWITCH_PLATFORM_NAME_SERVER_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok. Memory: client allocates the request; library drops it with mts_drop; *out
 * preset to NULL by the caller. */
int32_t ns_send_get_entry_given_portname(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                         const struct ns_query_* query, mts_msg_t** request);

/* Result: 0 ok. Memory: as ns_send_get_entry_given_portname; *out preset to NULL by the caller. */
int32_t ns_send_get_entries_given_nodename(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                           const struct ns_query_* query, mts_msg_t** request);

/* Result: 0 ok. Memory: as ns_send_get_entry_given_portname; *out preset to NULL by the caller. */
int32_t ns_send_get_entries_given_fab_port_name(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                                const struct ns_query_* query, mts_msg_t** request);

/* Result: 0 ok. Memory: as ns_send_get_entry_given_portname; *out preset to NULL by the caller. */
int32_t ns_send_get_entries_given_port_type(int32_t q, uint32_t port_type,
                                            const struct ns_query_* query, mts_msg_t** request);

/* Result: 0 ok; 0x4025000A = query rejected. Memory: cursor points into the reply (not freed). */
int32_t ns_parse_get_entry_status(mts_msg_t* reply, int32_t* count, void** cursor);

/* Result: 0 ok, non-zero = no more; index counts from 0. Memory: caller owns the 768-byte slot. */
int32_t ns_parse_get_entry(mts_msg_t* reply, void* cursor, void* slot /* 768 bytes */,
                           int32_t index);

/* Result: 0x4025000A when it holds a CT reject. */
int32_t ns_parse_get_ct_error(mts_msg_t* reply, int32_t* error, int32_t* expln);

/* Result: 0 ok; index counts from 0. */
int32_t ns_parse_is_entry_duplicate(mts_msg_t* reply, void* cursor, int32_t index,
                                    uint8_t* duplicate);

/* Result: 0 ok. Memory: client allocates reply; library drops with mts_drop; *out preset to NULL
 * by the caller. */
int32_t ns_get_fc4_devices(int32_t q, uint32_t vsan, uint32_t fc4_type, const uint8_t wwn[8],
                           mts_msg_t** reply);

/* Result: the count. */
int32_t ns_parse_get_num_fc4_devices(mts_msg_t* reply);

/* Result: 0 ok; index counts from 0. Memory: caller owns the slot. */
int32_t ns_parse_get_fc4_device_entry(mts_msg_t* reply, void* slot /* 24 bytes */, int32_t index);

/* Result: non-zero = set. */
int32_t ns_is_set_fc4_type(const void* fc4_map, uint8_t type);

/* Result: ignored. Memory: caller's buffer (use 64). */
int32_t ns_print_ip_addr(const void* addr, char* dst);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_NAME_SERVER_H */
