/* The platform manager's table rows: modules (opcode 1029) and physical entities (opcode 1026). */
#ifndef SWITCH_PLATFORM_RECORDS_PLATFORM_MANAGER_H
#define SWITCH_PLATFORM_RECORDS_PLATFORM_MANAGER_H

#include <stdint.h>

#pragma pack(push, 1)

/* One row of the FRU-control module table: a line card, a supervisor or another replaceable module.
 * The 32-bit numbers are big-endian on the wire, in host order in a caller's hands. */
struct _vefcModuleEntry {
  uint32_t entity_index; /*   0: entPhysicalIndex of the module; the starting point of a get-next */
  uint32_t admin_status; /*   4 */
  uint32_t oper_status;  /*   8 */
  uint32_t words_12[5];  /*  12: converted, not interpreted */
  uint8_t raw_32[256];   /*  32: never converted */
  uint32_t num_ports;    /* 288 */
  uint32_t word_292;     /* 292: converted, not interpreted */
  uint8_t raw_296;       /* 296: never converted */
  char module_state;     /* 297 */
  char module_type;      /* 298 */
  uint8_t raw_299[5];    /* 299: never converted */
  uint32_t module_number; /* 304 */
  uint32_t word_308;      /* 308: converted, not interpreted */
  uint8_t raw_312[4];     /* 312: never converted */
};
typedef struct _vefcModuleEntry _vefcModuleEntry;

/* One row of entPhysicalTable. Texts are NUL-terminated; one that fills its field has no end of its
 * own. The 32-bit numbers are big-endian on the wire, in host order in a caller's hands. */
struct _entPhysicalEntry {
  uint32_t entity_index;     /*    0: entPhysicalIndex; the starting point of a get-next */
  char description[256];     /*    4: entPhysicalDescr */
  uint32_t vendor_type[128]; /*  260: entPhysicalVendorType, an object identifier */
  uint32_t attributes[4];    /*  772: containment, class and position */
  char name[765];            /*  788: entPhysicalName */
  char software_rev[255];    /* 1553: entPhysicalSoftwareRev */
  char serial_num[288];      /* 1808: entPhysicalSerialNum */
  char model_name[255];      /* 2096: entPhysicalModelName */
  char alias[77];            /* 2351: entPhysicalAlias */
  uint32_t word_2428;        /* 2428: converted, not interpreted */
  uint8_t raw_2432[348];     /* 2432: never converted */
};
typedef struct _entPhysicalEntry _entPhysicalEntry;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_PLATFORM_MANAGER_H */
