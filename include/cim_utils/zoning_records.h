/* The zoning objects as the library hands them out, and the codes by which the zone server and CIM
 * call kinds and member types.
 *
 * Records come as an array (all links null), which is one block of the C heap, or as a chain of
 * one-record blocks joined through next; the caller frees an array once and a chain block by block,
 * with free().
 *
 * The codes of the two sides overlap: 1 is a zone set in one place and a zone in another, 2 is a
 * member type on both sides with different meanings. In C++ they are types that do not convert to
 * each other, and a number becomes one of them by a cast only.
 */
#ifndef CIM_UTILS_ZONING_RECORDS_H
#define CIM_UTILS_ZONING_RECORDS_H

#include <stddef.h>
#include <stdint.h>

/* The codes are 32-bit numbers in C as in C++; in C++ every number is a value of theirs. */
#ifdef __cplusplus
#define CIM_UTILS_CODE : int32_t
#else
#define CIM_UTILS_CODE
#endif

/* What a change creates, deletes, names or adds to. */
enum zs_object_kind CIM_UTILS_CODE {
  ZS_OBJECT_ZONE = 0,
  ZS_OBJECT_ZONE_SET = 1,
  ZS_OBJECT_ALIAS = 2
};

/* Whose members are read. */
enum zs_member_parent_kind CIM_UTILS_CODE { ZS_MEMBER_PARENT_ALIAS = 0, ZS_MEMBER_PARENT_ZONE = 1 };

/* Types of members at the zone server, which keeps them in one byte, and the size of their values
 * (get_member_value_length). */
enum zs_member_type CIM_UTILS_CODE {
  ZS_MEMBER_PORT_WWN = 1,           /*   8: port WWN */
  ZS_MEMBER_DOMAIN_PORT = 2,        /*   4: domain at 0, port at 3, zeros between them */
  ZS_MEMBER_FCID = 3,               /*   4: 0, then the FC ID */
  ZS_MEMBER_ALIAS = 4,              /*  64: text and terminator */
  ZS_MEMBER_INTERFACE_WWN = 109,    /*   8: WWN; an interface of the switch that a WWN names */
  ZS_MEMBER_WWN_LUN = 225,          /*  16: WWN, LUN */
  ZS_MEMBER_FCID_LUN = 227,         /*  12: FC ID (4 bytes), LUN */
  ZS_MEMBER_TEXT = 228,             /* 256: text */
  ZS_MEMBER_NODE_WWN = 229,         /*   8: WWN */
  ZS_MEMBER_SYMBOLIC_NAME = 230,    /* 256: text */
  ZS_MEMBER_LOCAL_INTERFACE = 231,  /*   8: port WWN of an interface of the local switch */
  ZS_MEMBER_IPV4 = 232,             /*   8: address, mask; 32-bit numbers, low byte first */
  ZS_MEMBER_DOMAIN_INTERFACE = 233, /* 12: interface key (8 bytes), domain, three zeros */
  ZS_MEMBER_IPV6 = 234,             /*  24: word 2, 16 bytes, word of the prefix length */
  ZS_MEMBER_UNSIZED_TEXT = 235,     /* no size (-1): text */
  ZS_MEMBER_WWN_LUN_2 = 241,        /*  16: as 225 */
  ZS_MEMBER_FCID_LUN_2 = 243        /*  12: as 227 */
};

/* Values of the CIM property ConnectivityMemberType. */
enum zs_cim_member_type CIM_UTILS_CODE {
  ZS_CIM_MEMBER_PORT_WWN = 2,
  ZS_CIM_MEMBER_FCID = 3,
  ZS_CIM_MEMBER_DOMAIN_PORT = 4,
  ZS_CIM_MEMBER_ALIAS = 5,
  ZS_CIM_MEMBER_LOCAL_INTERFACE = 6,
  ZS_CIM_MEMBER_NODE_WWN = 7,
  ZS_CIM_MEMBER_IPV4 = 8,
  ZS_CIM_MEMBER_IPV6 = 9,
  ZS_CIM_MEMBER_INTERFACE_WWN = 10, /* read only: no member is shown with it */
  ZS_CIM_MEMBER_DOMAIN_INTERFACE = 11,
  ZS_CIM_MEMBER_SYMBOLIC_NAME = 12,
  ZS_CIM_MEMBER_UNSIZED_TEXT = 13,
  ZS_CIM_MEMBER_WWN_LUN = 101, /* shown, but not accepted back */
  ZS_CIM_MEMBER_FCID_LUN = 102 /* shown, but not accepted back */
};

/* Room for texts and values. */
enum zs_cim_room {
  ZS_CIM_INSTANCE_ID_ROOM = 288, /* both kinds of instance ids, terminator included */
  ZS_CIM_MEMBER_ID_ROOM = 258,   /* display text of a member, terminator included */
  ZS_CIM_NAME_SIZE = 68,         /* name of an object; the terminator is not promised */
  ZS_CIM_VALUE_ROOM = 288        /* packed value of any member */
};

/* A zone set. */
struct zs_cim_zone_set_ {
  char instance_id[288]; /*   0: "%d_%d_%d": VSAN, object id, active */
  char name[68];         /* 288: copied whole from the zone server */
  uint32_t vsan_id;      /* 356 */
  uint8_t active;        /* 360: 1 from the active database, 0 from the full one */
  struct zs_cim_zone_set_* next;
};
typedef struct zs_cim_zone_set_ zs_cim_zone_set_;

/* A zone. */
struct zs_cim_zone_ {
  char instance_id[288]; /*   0: as of a zone set */
  char name[68];         /* 288 */
  uint32_t vsan_id;      /* 356 */
  uint16_t zero_360;     /* 360: 0 */
  uint16_t zero_362;     /* 362: 0 */
  uint8_t read_only;     /* 364: 1 when the zone server says so, else 0 */
  uint8_t active;        /* 365: as of a zone set */
  struct zs_cim_zone_* next;
};
typedef struct zs_cim_zone_ zs_cim_zone_;

/* A zone alias. Of the size of a zone, with the active flag where a zone has its read-only flag:
 * deliberate, each record is read through its own layout. */
struct zs_cim_alias_ {
  char instance_id[288]; /*   0: as of a zone set */
  char name[68];         /* 288 */
  uint32_t vsan_id;      /* 356 */
  uint8_t unset_360[4];  /* 360: never written */
  uint8_t active;        /* 364: as of a zone set */
  struct zs_cim_alias_* next;
};
typedef struct zs_cim_alias_ zs_cim_alias_;

/* A member of a zone or an alias. All zero when the zone server's member could not be shown. */
struct zs_cim_zone_member_ {
  char instance_id[288]; /*   0: "%d^%d^%s^%d": VSAN, CIM type, key text, active */
  uint16_t member_type;  /* 288: zs_cim_member_type */
  char member_id[258];   /* 290: display text; not the key text of the instance id */
  struct zs_cim_zone_member_* next;
};
typedef struct zs_cim_zone_member_ zs_cim_zone_member_;

#ifdef __cplusplus
static_assert(sizeof(zs_object_kind) == 4 && sizeof(zs_member_parent_kind) == 4, "codes");
static_assert(sizeof(zs_member_type) == 4 && sizeof(zs_cim_member_type) == 4, "codes");

static_assert(offsetof(zs_cim_zone_set_, instance_id) == 0, "zs_cim_zone_set_.instance_id");
static_assert(offsetof(zs_cim_zone_set_, name) == 288, "zs_cim_zone_set_.name");
static_assert(offsetof(zs_cim_zone_set_, vsan_id) == 356, "zs_cim_zone_set_.vsan_id");
static_assert(offsetof(zs_cim_zone_set_, active) == 360, "zs_cim_zone_set_.active");
static_assert(sizeof(zs_cim_zone_set_) == (sizeof(void*) == 8 ? 376 : 368), "zs_cim_zone_set_");

static_assert(offsetof(zs_cim_zone_, instance_id) == 0, "zs_cim_zone_.instance_id");
static_assert(offsetof(zs_cim_zone_, name) == 288, "zs_cim_zone_.name");
static_assert(offsetof(zs_cim_zone_, vsan_id) == 356, "zs_cim_zone_.vsan_id");
static_assert(offsetof(zs_cim_zone_, zero_360) == 360, "zs_cim_zone_.zero_360");
static_assert(offsetof(zs_cim_zone_, zero_362) == 362, "zs_cim_zone_.zero_362");
static_assert(offsetof(zs_cim_zone_, read_only) == 364, "zs_cim_zone_.read_only");
static_assert(offsetof(zs_cim_zone_, active) == 365, "zs_cim_zone_.active");
static_assert(sizeof(zs_cim_zone_) == (sizeof(void*) == 8 ? 376 : 372), "zs_cim_zone_");

static_assert(offsetof(zs_cim_alias_, instance_id) == 0, "zs_cim_alias_.instance_id");
static_assert(offsetof(zs_cim_alias_, name) == 288, "zs_cim_alias_.name");
static_assert(offsetof(zs_cim_alias_, vsan_id) == 356, "zs_cim_alias_.vsan_id");
static_assert(offsetof(zs_cim_alias_, unset_360) == 360, "zs_cim_alias_.unset_360");
static_assert(offsetof(zs_cim_alias_, active) == offsetof(zs_cim_zone_, read_only),
              "zs_cim_alias_.active");
static_assert(sizeof(zs_cim_alias_) == sizeof(zs_cim_zone_), "zs_cim_alias_");

static_assert(offsetof(zs_cim_zone_member_, instance_id) == 0, "zs_cim_zone_member_.instance_id");
static_assert(offsetof(zs_cim_zone_member_, member_type) == 288, "zs_cim_zone_member_.member_type");
static_assert(offsetof(zs_cim_zone_member_, member_id) == 290, "zs_cim_zone_member_.member_id");
static_assert(sizeof(zs_cim_zone_member_) == (sizeof(void*) == 8 ? 560 : 552),
              "zs_cim_zone_member_");
#endif

#endif /* CIM_UTILS_ZONING_RECORDS_H */
