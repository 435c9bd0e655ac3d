/* The message transport (MTS) and the synchronous request/reply call on top of it. */
#ifndef SWITCH_PLATFORM_MTS_H
#define SWITCH_PLATFORM_MTS_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: handle >= 0; negative = failure with errno set. Memory: nothing allocated for the
 * caller; the handle is released with mts_unbind. */
int32_t mts_bind(int32_t kind, int32_t address, const struct cim_mts_bind_opts* opts,
                 const char* name);

/* Result: status; only the low byte is used (narrowed to signed 8 bits by deinit_mts). Memory:
 * releases the queue. */
int32_t mts_unbind(int32_t q, int32_t flags);

/* Result: >= 0 ok; < 0 failure with errno (ETIME on time-out). Memory: transport allocates *msg;
 * caller releases with mts_drop; *msg preset to NULL by the caller. */
int32_t mts_recv(int32_t q, mts_msg_t** msg, const struct cim_mts_recv_opts* opts);

/* Result: result ignored. Memory: releases a sent or a received message. */
int32_t mts_drop(int32_t q, mts_msg_t* msg);

/* Result: the token. */
uint32_t mts_rr_token_get(const mts_msg_t* msg);

/* Result: pointer into the message. Memory: pointer belongs to the message, valid until
 * mts_drop. */
void* mts_payload_get(mts_msg_t* msg);

/* Result: length in bytes. */
int32_t mts_payload_size(mts_msg_t* msg);

/* Result: transport error number; 62 = time-out. */
int32_t mts_errno_get(int32_t q);

/* Result: 0 ok; non-zero status (negative = transport failure, positive = platform status).
 * Memory: *length in: request length, or expected reply length; out: size of *reply (0 when
 * none). *reply preset to NULL by the caller. Caller owns request; transport allocates *reply
 * with the C heap, caller frees with free() on success and failure; reply address is NULL for a
 * set. */
int32_t cmi_req_resp(uint32_t opcode, uint32_t operation, const void* request, void** reply,
                     int32_t* length, int32_t zero1, int32_t zero2, uint32_t service_sap, int32_t q,
                     int32_t last);

/* Result: text, never NULL. Memory: static/platform text, not freed. */
const char* syserr2str(int32_t code);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_MTS_H */
