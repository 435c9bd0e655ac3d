/* The fabric configuration server's address query: names and addresses of the fabric's switches. */
#ifndef SWITCH_PLATFORM_FABRIC_CONFIGURATION_H
#define SWITCH_PLATFORM_FABRIC_CONFIGURATION_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok, else error code (printed "0x%x"). Memory: client allocates request; library
 * drops it; *out preset to NULL by the caller. */
int32_t fcs_send_get_inet_addr(int32_t q, int32_t one, mts_msg_t** request);

/* Result: 0 ok, else error code. Memory: client allocates *list (count x 396 bytes) with the C
 * heap; library frees with free(), also on failure. */
int32_t fcs_parse_get_inet_addr(mts_msg_t* reply, int32_t* status, int32_t* count, void** list);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_FABRIC_CONFIGURATION_H */
