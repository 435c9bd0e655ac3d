/* Results of the zone server (see zone_server.h). Other platforms may have further ones. */
#ifndef SWITCH_PLATFORM_ZONE_SERVER_RESULTS_H
#define SWITCH_PLATFORM_ZONE_SERVER_RESULTS_H

enum zs_result {
  ZS_NO_SUCH_VSAN = 0x40200001,
  ZS_NO_SUCH_OBJECT = 0x40200002, /* no zone set, zone or alias with this name or id */
  ZS_NO_SUCH_MEMBER = 0x40200003, /* the parent does not hold this member, zone or alias */
  ZS_OBJECT_EXISTS = 0x40200004,  /* another object of the kind has this name */
  ZS_MEMBER_EXISTS = 0x40200005,  /* the parent already holds this member, zone or alias */
  ZS_BAD_NAME = 0x40200006,       /* not 1 to 64 characters, or one that a name cannot hold */
  ZS_BAD_KIND = 0x40200007,       /* no such kind of object, or not one that the request is for */
  ZS_BAD_MEMBER = 0x40200008,     /* no such member type, or a value that the type cannot have */
  ZS_ZONE_SET_EMPTY = 0x40200009, /* a zone set without zones is not activated */

  /* Limits. */
  ZS_TOO_MANY_ZONE_SETS = 0x40200011,
  ZS_TOO_MANY_ZONES = 0x40200012,
  ZS_TOO_MANY_ALIASES = 0x40200013,
  ZS_TOO_MANY_MEMBERS = 0x40200014,           /* of all zones and aliases of the VSAN */
  ZS_TOO_MANY_MEMBERS_OF_PARENT = 0x40200015, /* of one zone or alias */

  /* There was nothing to do. */
  ZS_ALREADY_ACTIVE = 0x40200038,      /* activation: the zone set is active as it stands */
  ZS_NOT_ACTIVE = 0x40200039,          /* deactivation: another zone set is active, or none */
  ZS_ALREADY_DISTRIBUTED = 0x40200079, /* every other switch of the VSAN holds the database */

  ZS_NOTHING_TO_DISTRIBUTE = 0x40200091 /* the VSAN has no zone set */
};

#endif /* SWITCH_PLATFORM_ZONE_SERVER_RESULTS_H */
