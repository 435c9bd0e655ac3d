/* The fabric distribution service: discovery of the peer switches. */
#ifndef SWITCH_PLATFORM_FABRIC_DISTRIBUTION_H
#define SWITCH_PLATFORM_FABRIC_DISTRIBUTION_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok. Memory: client allocates *message; released with mts_drop; *out preset to NULL
 * by the caller. */
int32_t kfs_discover_peers(int32_t q, const void* request /* 28 bytes */, int32_t two,
                           mts_msg_t** message);

/* Result: 0 ok. Memory: caller's attribute buffer (use 64 zeroed bytes). */
int32_t kfs_get_response_attr(const void* payload, int32_t size, void* attr);

/* Result: 0 ok; non-zero code for kfs_rcode2str. Memory: client allocates *iter; released with
 * kfs_iter_destroy. */
int32_t kfs_iter_parse_response(const void* payload, int32_t size, int32_t* count, void** iter);

/* Result: next answer (>= 60 bytes) or NULL (skipped). Memory: answer belongs to the iterator. */
void* kfs_iter_get_next_response(void* iter);

/* Result: none. Memory: releases the iterator. */
void kfs_iter_destroy(void* iter);

/* Result: text. Memory: platform text, not freed. */
const char* kfs_rcode2str(int32_t code);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_FABRIC_DISTRIBUTION_H */
