/* The VSAN manager's records (opcodes 125, 128 and 149). */
#ifndef SWITCH_PLATFORM_RECORDS_VSAN_H
#define SWITCH_PLATFORM_RECORDS_VSAN_H

#include <stdint.h>

#pragma pack(push, 1)

/* One VSAN. The 32-bit numbers are big-endian on the wire, in host order in a caller's hands;
 * raw_16 and everything from byte 36 on travel as they are. */
struct vsanNewEntry_t {
  uint32_t vsan_index;          /*    0: 1..4096; the starting point of a get-next */
  uint32_t word_4;              /*    4: converted, not interpreted */
  uint32_t admin_state;         /*    8: 1 active, 2 suspended */
  uint32_t word_12;             /*   12: converted, not interpreted */
  uint8_t raw_16[4];            /*   16: never converted */
  uint32_t word_20;             /*   20: converted, not interpreted */
  uint32_t load_balancing_type; /*   24: 1 src-id/dst-id, 2 src-id/dst-id/ox-id */
  uint32_t word_28;             /*   28: converted, not interpreted */
  uint32_t oper_state;          /*   32: 1 up */
  char name[128];               /*   36: NUL-terminated text */
  uint8_t rest[1944];           /*  164: carried unchanged */
};
typedef struct vsanNewEntry_t vsanNewEntry_t;

/* A VSAN message, as sent and as received. */
struct vsan_message_ {
  uint32_t header_word;     /*    0: 0 */
  uint8_t header_rest[516]; /*    4: sent as zeros */
  vsanNewEntry_t entry;     /*  520 */
  uint8_t trailer[4];       /* 2628: sent as zeros */
};
typedef struct vsan_message_ vsan_message_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_VSAN_H */
