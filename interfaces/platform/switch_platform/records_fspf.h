/* The FSPF routing service's records (opcode 53). */
#ifndef SWITCH_PLATFORM_RECORDS_FSPF_H
#define SWITCH_PLATFORM_RECORDS_FSPF_H

#include <stdint.h>

#pragma pack(push, 1)

/* One link of a switch. All nine words are big-endian on the wire, in host order in a caller's
 * hands. An interface index above 256 is one of FSPF's own on the wire and the platform's in a
 * caller's hands. */
struct fspfLinkEntry {
  uint32_t word_0;          /*  0: attribute shared by both ends' names; holds the VSAN */
  uint32_t domain;          /*  4: of this end, the switch that advertised the link */
  uint32_t word_2;          /*  8: attribute, carried unchanged */
  uint32_t word_3;          /* 12: attribute, carried unchanged */
  uint32_t remote_domain;   /* 16: of the far end */
  uint32_t if_index;        /* 20: interface of this end */
  uint32_t remote_if_index; /* 24: interface of the far end */
  uint32_t word_7;          /* 28: attribute, carried unchanged */
  uint32_t word_8;          /* 32: attribute, carried unchanged */
};
typedef struct fspfLinkEntry fspfLinkEntry;

/* What stands in front of the links of a link-state record (LSR). Words 0 to 7 are big-endian on
 * the wire, in host order in a caller's hands; word 8 travels as it is. */
struct fspf_lsr_ {
  uint32_t words_0[7]; /*  0: carried, not interpreted */
  uint32_t link_count; /* 28: of the fspfLinkEntry records that follow */
  uint32_t word_8;     /* 32: never converted */
};
typedef struct fspf_lsr_ fspf_lsr_;

/* The request for the LSR of one switch, big-endian on the wire. */
struct fspf_lsr_request_ {
  uint32_t vsan_index; /*  0 */
  uint32_t domain;     /*  4: the switch */
  uint32_t one;        /*  8: 1 */
  uint32_t zeros[6];   /* 12: sent as zeros */
};
typedef struct fspf_lsr_request_ fspf_lsr_request_;

#pragma pack(pop)

#endif /* SWITCH_PLATFORM_RECORDS_FSPF_H */
