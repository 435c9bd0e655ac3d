/* The domain manager's records (opcodes 264 and 267). */
#ifndef SWITCH_PLATFORM_RECORDS_DOMAIN_MANAGER_H
#define SWITCH_PLATFORM_RECORDS_DOMAIN_MANAGER_H

#include <stdint.h>

#include <switch_platform/types.h>

#pragma pack(push, 1)

/* The configuration of the local switch in one VSAN. Big-endian on the wire are the words at 0, 4,
 * 8, 32..48 and 312..324 and the 16-bit word at 52; nothing else, the change mask included. */
struct mts_dm_sw_conf_ {
  uint32_t vsan_index;     /*   0 */
  uint32_t request_kind;   /*   4: always 1 */
  uint32_t word_8;         /*   8: converted, not interpreted */
  uint8_t raw_12[9];       /*  12 */
  uint8_t domain_id;       /*  21: the domain ID in use */
  wwn_ vsan_wwn;           /*  22: the VSAN's WWN while the domain manager is enabled */
  uint8_t raw_30[2];       /*  30 */
  uint32_t words_32[5];    /*  32: converted, not interpreted */
  uint16_t word_52;        /*  52: converted, not interpreted */
  uint8_t raw_54[258];     /*  54 */
  uint32_t words_312[4];   /* 312: converted, not interpreted */
  uint8_t raw_328[4];      /* 328 */
  uint8_t config_domain;   /* 332: configured domain ID */
  uint8_t config_type;     /* 333: configured domain type, 1 or 2 */
  uint8_t enabled;         /* 334: non-zero while the domain manager runs in the VSAN */
  uint8_t raw_335[2];      /* 335 */
  uint8_t config_priority; /* 337: configured priority */
  uint8_t raw_338[2];      /* 338 */
  wwn_ alternate_wwn;      /* 340: the VSAN's WWN while the domain manager is not enabled */
  uint32_t change_mask;    /* 348: of a set; 32 priority, 512 domain ID and type; host order */
  uint8_t rest[800];       /* 352 */
};
typedef struct mts_dm_sw_conf_ mts_dm_sw_conf_;

/* One switch in the domain database of a VSAN. Big-endian on the wire is the first word. */
struct mts_dm_sw_dom_list_info_ {
  uint32_t vsan_index;  /*  0 */
  uint8_t request_kind; /*  4: 1 */
  uint8_t domain_id;    /*  5 */
  wwn_ switch_wwn;      /*  6: the switch that owns the domain */
  uint8_t raw_14[5];    /* 14: copied back, not interpreted */
};
typedef struct mts_dm_sw_dom_list_info_ mts_dm_sw_dom_list_info_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_DOMAIN_MANAGER_H */
