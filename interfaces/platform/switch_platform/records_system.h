/* Records of the system services: switch identity, system name, system information. */
#ifndef SWITCH_PLATFORM_RECORDS_SYSTEM_H
#define SWITCH_PLATFORM_RECORDS_SYSTEM_H

#include <stdint.h>

#pragma pack(push, 1)

/* One system-information item (opcode 1812). The selector and the number that a selector carries
 * are big-endian on the wire: the last word for selector 4, the answer's first for 5 and 6. */
struct system_information_ {
  uint32_t selector;    /*    0: the item asked for, 0..6 */
  uint8_t answer[1024]; /*    4: NUL-terminated text, or 32-bit words */
  uint32_t count;       /* 1028: for selector 4 the number of words of the answer */
};
typedef struct system_information_ system_information_;

/* Change of the system name (opcode 878). */
struct system_name_request_ {
  char name[256]; /*   0: NUL-terminated text */
  uint32_t zero;  /* 256 */
};
typedef struct system_name_request_ system_name_request_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_SYSTEM_H */
