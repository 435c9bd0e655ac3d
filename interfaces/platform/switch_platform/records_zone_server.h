/* The zone server's records: the entries of its replies, the member of a change, and the context
 * that goes with every call. They stay on this machine: all numbers are in host order.
 *
 * A bit set is read with the functions of bitset.h only. Its bit b stands for the child object with
 * the id b + 1. */
#ifndef SWITCH_PLATFORM_RECORDS_ZONE_SERVER_H
#define SWITCH_PLATFORM_RECORDS_ZONE_SERVER_H

#include <stdint.h>

#pragma pack(push, 1)

/* The context of a call. All zero. */
struct zs_context_ {
  uint8_t zeros[132];
};
typedef struct zs_context_ zs_context_;

/* A zone set. */
struct zs_zone_set_entry_ {
  uint32_t vsan_id;    /*    0 */
  uint32_t object_id;  /*    4 */
  uint8_t raw_8[8];    /*    8: not interpreted */
  char name[68];       /*   16: text; the terminator is not promised */
  uint8_t zones[1260]; /*   84: bit set of the zones in it */
};
typedef struct zs_zone_set_entry_ zs_zone_set_entry_;

/* A zone. */
struct zs_zone_entry_ {
  uint32_t vsan_id;     /*   0 */
  uint32_t object_id;   /*   4 */
  uint8_t raw_8[8];     /*   8: not interpreted */
  char name[68];        /*  16: text; the terminator is not promised */
  uint8_t members[260]; /*  84: bit set of its members */
  uint8_t aliases[260]; /* 344: bit set of the aliases in it */
  uint32_t attributes;  /* 604: bit 0 read-only; the others are not interpreted */
  uint8_t rest[264];    /* 608: not interpreted */
};
typedef struct zs_zone_entry_ zs_zone_entry_;

/* A zone alias. */
struct zs_alias_entry_ {
  uint32_t vsan_id;     /*  0 */
  uint32_t object_id;   /*  4 */
  uint8_t raw_8[8];     /*  8: not interpreted */
  char name[68];        /* 16: text; the terminator is not promised */
  uint8_t members[260]; /* 84: bit set of its members */
};
typedef struct zs_alias_entry_ zs_alias_entry_;

/* What stands in front of the value of a member. The value follows at byte 24; zs_api_parse_member
 * tells its length. */
struct zs_member_entry_ {
  uint8_t raw_0[20]; /*  0: not interpreted */
  uint8_t type;      /* 20: zone-server member type */
  uint8_t raw_21[3]; /* 21: not interpreted */
};
typedef struct zs_member_entry_ zs_member_entry_;

/* What stands in front of the value of a member that is added or removed. The value follows at
 * byte 4. */
struct zs_member_change_ {
  uint8_t type;        /* 0: zone-server member type */
  uint8_t zero_1;      /* 1: 0 */
  uint8_t length_code; /* 2: 4, 8 or 24; not always the length of the value */
  uint8_t zero_3;      /* 3: 0 */
};
typedef struct zs_member_change_ zs_member_change_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_ZONE_SERVER_H */
