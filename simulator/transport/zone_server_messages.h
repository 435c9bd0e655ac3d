// The requests of the zone server. A body is a row of big-endian words; a text is the word of its
// length and its bytes, without padding.
#ifndef SIMULATOR_TRANSPORT_ZONE_SERVER_MESSAGES_H
#define SIMULATOR_TRANSPORT_ZONE_SERVER_MESSAGES_H

#include <cstddef>
#include <cstdint>

namespace switch_sim {

// Reads. `active` is 1 for the active database, 0 for the full one; `kind` is 0 zone, 1 zone set,
// 2 alias. The operation get answers the object itself, get-next the one with the lowest id above.
inline constexpr uint32_t kZoningObject = 0x10101;    // VSAN, active, kind, id
inline constexpr uint32_t kZoningObjects = 0x10102;   // VSAN, active, kind
inline constexpr uint32_t kZoneMember = 0x10103;      // VSAN, active, kind of parent, parent id, id
inline constexpr uint32_t kZoningIdOfName = 0x10104;  // VSAN, active, kind, text: a word
inline constexpr uint32_t kZoningNameOfId =
    0x10105;                                        // VSAN, active, kind, id: the bytes of the name
inline constexpr uint32_t kZoningPolicy = 0x10106;  // VSAN: a word, 0 deny, 1 permit

// Changes of the full database: operation set. `what` is 0 to remove, anything else to add.
inline constexpr uint32_t kChangeZoningObject = 0x10111;   // VSAN, what, kind, name
inline constexpr uint32_t kChangeZoneOfZoneSet = 0x10112;  // VSAN, what, zone set, zone
inline constexpr uint32_t kChangeAliasOfZone = 0x10113;    // VSAN, what, zone, alias
inline constexpr uint32_t kChangeZoneMember =
    0x10114;                                           // VSAN, what, kind, parent, type, value text
inline constexpr uint32_t kActivateZoneSet = 0x10115;  // VSAN, what, zone set
inline constexpr uint32_t kDistributeZoning = 0x10116;  // VSAN

// The entries that the reads answer. All start with the VSAN and the object's id; bit b of a bit
// set stands for the object with the id b + 1.
inline constexpr size_t kZoneSetEntrySize = 1344;  // name at 16, zones at 84
inline constexpr size_t kZoneEntrySize = 872;      // name at 16, members at 84, aliases at 344, ...
inline constexpr size_t kAliasEntrySize = 344;     // name at 16, members at 84
inline constexpr size_t kMemberEntrySize = 24;     // type at 20; then the value in its packed width

inline constexpr size_t kZoningNameOffset = 16;
inline constexpr size_t kZoningNameWidth = 68;
inline constexpr size_t kFirstBitSetOffset = 84;
inline constexpr size_t kSecondBitSetOffset = 344;
inline constexpr size_t kZoneAttributesOffset = 604;  // a word

inline constexpr uint32_t kBitsOfZones = 8000;
inline constexpr uint32_t kBitsOfMembers = 2048;
inline constexpr uint32_t kBitsOfAliases = 2048;

// The kinds of parents as a read of a member tells them, which differ from those of changes.
inline constexpr uint32_t kParentIsAlias = 0;
inline constexpr uint32_t kParentIsZone = 1;

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_ZONE_SERVER_MESSAGES_H
