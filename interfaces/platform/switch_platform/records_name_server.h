/* The name server's records, as its client functions take and give them: numbers in host order. */
#ifndef SWITCH_PLATFORM_RECORDS_NAME_SERVER_H
#define SWITCH_PLATFORM_RECORDS_NAME_SERVER_H

#include <stdint.h>

#include <switch_platform/types.h>

#pragma pack(push, 1)

/* What every query of the name server is sent with. */
struct ns_query_ {
  uint32_t vsan_index; /*  0 */
  uint16_t attributes; /*  4: selector, enum ns_attributes */
  uint8_t zeros_6[2];  /*  6: zeros */
  uint32_t zeros_8[2]; /*  8: zeros */
};
typedef struct ns_query_ ns_query_;

/* Attributes that a query asks for. */
enum ns_attributes {
  NS_ATTRIBUTES_FABRIC_PORTS = 0x0114, /* the walk over a VSAN from the fabric side */
  NS_ATTRIBUTES_ALL = 0x0A47           /* every other query */
};

/* Port types, in the coding of Fibre Channel's generic services. */
enum ns_port_type {
  NS_PORT_TYPE_N = 1,
  NS_PORT_TYPE_NL = 2,
  NS_PORT_TYPE_F_NL = 3,
  NS_PORT_TYPE_NX = 127,
  NS_PORT_TYPE_F = 129,
  NS_PORT_TYPE_FL = 130
};

/* One registered port (768 bytes). */
struct ns_api_register_req_ {
  uint8_t raw_0[4];
  uint32_t vsan_index;         /*   4 */
  uint8_t fcid[4];             /*   8: a byte that is no part of it, domain, area, port */
  wwn_ port_wwn;               /*  12 */
  uint8_t raw_20[16];          /*  20 */
  uint8_t fc4_types[32];       /*  36: bit map, read with ns_is_set_fc4_type */
  uint8_t raw_68[128];         /*  68 */
  uint32_t port_type;          /* 196: enum ns_port_type */
  wwn_ node_wwn;               /* 200 */
  uint8_t node_ip_address[16]; /* 208: written with ns_print_ip_addr */
  uint8_t raw_224[12];         /* 224 */
  wwn_ fabric_port_wwn;        /* 236: the switch port that the device is attached to */
  uint8_t rest[524];           /* 244 */
};
typedef struct ns_api_register_req_ ns_api_register_req_;

/* One device that offers an FC-4 type (24 bytes). */
struct ns_fc4_device_ {
  uint8_t fcid[4];  /*  0: a byte that is no part of it, domain, area, port */
  uint8_t rest[20]; /*  4 */
};
typedef struct ns_fc4_device_ ns_fc4_device_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_NAME_SERVER_H */
