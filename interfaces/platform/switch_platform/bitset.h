/* Bit sets as the services send them. */
#ifndef SWITCH_PLATFORM_BITSET_H
#define SWITCH_PLATFORM_BITSET_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: index of the first set bit, -1 = none. */
int32_t bitset_first_bit(const void* bitset);

/* Result: next set bit after previous (start with -1), -1 = none. */
int32_t bitset_next_bit(const void* bitset, int32_t previous);

/* Result: non-zero = set. */
int32_t bitset_is_bit_set(const void* bitset, int32_t bit);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_BITSET_H */
