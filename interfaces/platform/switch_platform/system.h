/* System-wide facts of the switch: software version, system information, address texts. */
#ifndef SWITCH_PLATFORM_SYSTEM_H
#define SWITCH_PLATFORM_SYSTEM_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: text, or NULL. Memory: platform text, not freed. */
const char* srg_sw_ver_get(int32_t zero);

/* Result: 0 ok, else status. Memory: caller owns the 1032-byte record. */
int32_t snmp_get_sys_info(int32_t q, void* info /* 1032 bytes */);

/* Result: pointer to buffer (ignored). Memory: caller's buffer (1024). */
char* ip_addr_to_str(const void* addr, char* buffer, int32_t size);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_SYSTEM_H */
