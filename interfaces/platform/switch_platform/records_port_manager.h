/* The port manager's records: keys, interfaces, counters, port channels (opcode 620). */
#ifndef SWITCH_PLATFORM_RECORDS_PORT_MANAGER_H
#define SWITCH_PLATFORM_RECORDS_PORT_MANAGER_H

#include <stdint.h>

#include <switch_platform/types.h>

#pragma pack(push, 1)

/* The interfaces that a request names: all from the first index to the last. Host order. */
struct pm_if_key_ {
  uint32_t first; /* 0 */
  uint32_t last;  /* 4 */
};
typedef struct pm_if_key_ pm_if_key_;

/* One interface, as the client library hands it out: numbers are in host order. Most of them are
 * not aligned: take their values, never their addresses. */
struct pm_port_info_ {
  uint32_t if_index;    /*   0 */
  uint32_t status;      /*   4: 0 when the interface was found */
  char name[81];        /*   8: the description; NUL-padded, without a NUL when it is full */
  uint32_t admin_mode;  /*  89 */
  uint8_t raw_93[1];    /*  93 */
  uint32_t admin_speed; /*  94 */
  uint8_t admin_state;  /*  98: 1 up, anything else down */
  uint8_t raw_99[3];    /*  99 */
  uint16_t mtu;         /* 102: of Ethernet-like interfaces, in bytes */
  uint32_t vsan;        /* 104: the port's VSAN */
  uint8_t raw_108[19];  /* 108 */
  wwn_ wwn;             /* 127: port WWN; a MAC address in the first 6 bytes when Ethernet-like */
  uint8_t address[4];   /* 135: FC ID as 0, domain, area, port; or IPv4, first byte first */
  uint8_t raw_139[4];   /* 139 */
  uint32_t oper_mode;   /* 143 */
  uint32_t oper_speed;  /* 147: in megabits per second of nominal rate */
  uint8_t oper_state;   /* 151: 1 up; 8 is a working state of FC-like ports, too */
  uint8_t raw_152[2];   /* 152 */
  uint8_t phy_enable_state; /* 154 */
  uint8_t raw_155[46];      /* 155 */
  uint8_t fcot_present;     /* 201: not zero while optics are plugged in */
  uint8_t raw_202[2];       /* 202 */
};

/* The counters of one FC interface, in host order. Frames but for the bytes and events that the
 * names say. */
struct fcIfAllCounters_t {
  uint32_t if_index;                     /*   0 */
  uint8_t raw_4[4];                      /*   4 */
  uint64_t class2_frames_received;       /*   8 */
  uint64_t class2_frames_transmitted;    /*  16 */
  uint64_t class2_bytes_received;        /*  24 */
  uint64_t class2_bytes_transmitted;     /*  32 */
  uint8_t raw_40[8];                     /*  40 */
  uint64_t class2_fabric_busy;           /*  48 */
  uint64_t class2_fabric_reject;         /*  56 */
  uint64_t class2_port_busy;             /*  64 */
  uint64_t class2_port_reject;           /*  72 */
  uint64_t class3_frames_received;       /*  80 */
  uint64_t class3_frames_transmitted;    /*  88 */
  uint64_t class3_bytes_received;        /*  96 */
  uint64_t class3_bytes_transmitted;     /* 104 */
  uint64_t class3_frames_discarded;      /* 112 */
  uint8_t raw_120[40];                   /* 120 */
  uint64_t link_failures;                /* 160 */
  uint64_t loss_of_sync;                 /* 168 */
  uint64_t loss_of_signal;               /* 176 */
  uint64_t primitive_sequence_errors;    /* 184 */
  uint64_t invalid_transmission_words;   /* 192 */
  uint64_t crc_errors;                   /* 200 */
  uint64_t delimiter_errors;             /* 208 */
  uint64_t address_errors;               /* 216 */
  uint64_t link_resets_received;         /* 224 */
  uint64_t link_resets_transmitted;      /* 232 */
  uint8_t raw_240[40];                   /* 240 */
  uint64_t frames_too_long;              /* 280 */
  uint64_t frames_too_short;             /* 288 */
  uint8_t raw_296[16];                   /* 296 */
  uint64_t nos_count;                    /* 312: not-operational sequences */
  uint8_t raw_320[32];                   /* 320 */
  uint64_t encoding_disparity_errors;    /* 352 */
  uint64_t dumped_frames;                /* 360 */
  uint8_t raw_368[8];                    /* 368 */
  uint64_t buffer_credit_not_received;   /* 376 */
  uint64_t buffer_credit_not_provided;   /* 384 */
  uint8_t raw_392[8];                    /* 392 */
  uint64_t error_frames;                 /* 400 */
  uint64_t multicast_frames_received;    /* 408 */
  uint8_t raw_416[8];                    /* 416 */
  uint64_t multicast_frames_transmitted; /* 424 */
  uint8_t raw_432[160];                  /* 432 */
  uint64_t lip_count;                    /* 592: loop initialisations */
};

/* One port channel, request and reply. Big-endian on the wire are all words but the members, which
 * are big-endian in a caller's hands, too. */
struct pm_port_channel_entry_ {
  uint32_t channel;            /*   0: the port-channel number asked for */
  uint32_t if_index;           /*   4: the channel's own interface index */
  uint32_t attributes_8[4];    /*   8 */
  uint32_t attributes_24[4];   /*  24 */
  uint8_t raw_40[64];          /*  40 */
  uint8_t members[64];         /* 104: interface indexes of 4 bytes, big-endian always */
  uint32_t member_list_length; /* 168: in bytes, 4 per member */
  uint32_t attribute_172;      /* 172 */
  uint32_t attribute_176;      /* 176: 0 in a request */
  uint8_t raw_180[4];          /* 180 */
  uint32_t attribute_184;      /* 184 */
  uint32_t if_index_188;       /* 188: an interface index */
  uint8_t raw_192[64];         /* 192 */
  uint32_t attributes_256[3];  /* 256 */
};
typedef struct pm_port_channel_entry_ pm_port_channel_entry_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_PORT_MANAGER_H */
