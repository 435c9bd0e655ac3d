/* Types shared by the switch's client libraries.
 *
 * Conventions of every header of this folder:
 * - C99, C linkage. A queue handle `q` is a signed 32-bit integer, -1 while unbound.
 * - Numbers inside records travel in network byte order unless a record says otherwise.
 * - What a function allocates for its caller comes from the C heap and is released as the comment
 *   of the function says; out-pointers are preset to NULL by the caller.
 */
#ifndef SWITCH_PLATFORM_TYPES_H
#define SWITCH_PLATFORM_TYPES_H

#include <stdint.h>

/* A World Wide Name: 8 bytes, most significant first. */
struct wwn_ {
  uint8_t bytes[8];
};
typedef struct wwn_ wwn_;

/* A message of the transport, sent or received. Opaque. */
typedef struct mts_msg_ mts_msg_t;

/* Records of the port manager and the name server, known to this folder by name only. */
struct pm_if_key_;
struct ns_query_;
typedef struct pm_port_info_ pm_port_info_;
typedef struct fcIfAllCounters_t fcIfAllCounters_t;

/* Options of mts_bind. Not a wire record: natural alignment, 20 bytes. */
struct cim_mts_bind_opts {
  uint32_t mode;  /*  0 */
  uint16_t flags; /*  4 */
  uint32_t limit; /*  8 */
  uint32_t reserved_12;
  uint32_t reserved_16;
};

/* Options of mts_recv. */
struct cim_mts_recv_opts {
  uint32_t word_0; /* 1 */
  uint32_t word_1; /* 0 */
  uint32_t timeout_seconds;
  uint32_t token; /* request/response token of the request; 0: any message */
  uint32_t word_4;
  uint32_t word_5;
};

/* Service access points and opcodes of the synchronous request/reply call. */
enum mts_service_access_point {
  MTS_SAP_DOMAIN_MANAGER = 14,
  MTS_SAP_VSAN_MANAGER = 15,
  MTS_SAP_FABRIC_CONFIGURATION = 20,
  MTS_SAP_SYSTEM_INFORMATION = 28,
  MTS_SAP_FSPF = 29,
  MTS_SAP_PORT_MANAGER = 34,
  MTS_SAP_SYSTEM_NAME = 35,
  MTS_SAP_PLATFORM_MANAGER = 39,
  MTS_SAP_SWITCH_IDENTITY = 46
};

enum mts_opcode {
  MTS_OPC_FSPF_LINK_STATE_RECORD = 53,
  MTS_OPC_VSAN_COUNT = 125,
  MTS_OPC_VSAN_OTHER_COUNT = 128,
  MTS_OPC_VSAN_ENTRY = 149,
  MTS_OPC_DOMAIN_CONFIGURATION = 264,
  MTS_OPC_DOMAIN_DATABASE = 267,
  MTS_OPC_PORT_CHANNEL_ENTRY = 620,
  MTS_OPC_SET_SYSTEM_NAME = 878,
  MTS_OPC_PHYSICAL_ENTITY = 1026,
  MTS_OPC_MODULE = 1029,
  MTS_OPC_SWITCH_WWN = 1282,
  MTS_OPC_INTERCONNECT_ELEMENTS = 1401,
  MTS_OPC_FABRIC_CONFIGURATION_DATA = 1402,
  MTS_OPC_SYSTEM_INFORMATION = 1812
};

/* Operation of a synchronous request. */
enum mts_operation { MTS_OPERATION_GET = 1, MTS_OPERATION_GET_NEXT = 2, MTS_OPERATION_SET = 3 };

#endif /* SWITCH_PLATFORM_TYPES_H */
