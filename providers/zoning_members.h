// VEXOR_ZoneMemberSettingData: what zones and aliases hold.
//
// The zone server knows members by their number in a zone or an alias; a client knows them by type
// and value, wherever they are in one of the databases of a VSAN. Finding one by its name therefore
// reads members until it is found. Walks from a zone or an alias do not: they read its own.
#pragma once

#include <cim_utils/zoning_records.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "providers/class.h"
#include "providers/zoning_objects.h"

namespace vexor::providers {

// What an instance id of a member tells about where it is.
struct MemberId {
  uint32_t vsan;
  bool active;
};

// Result: none for a text that no member has as its instance id. Asks nobody.
std::optional<MemberId> read_member_id(const char* instance_id);

// The members of both databases of every VSAN, each once: those of the active database first. One
// exchange for all zones and one for all aliases of a database, and one for each member of these.
std::vector<zs_cim_zone_member_> all_zone_members(int32_t q);

// By "InstanceID", in any case of its letters. Reads the members of zones, and then of aliases,
// until one holds it.
std::vector<zs_cim_zone_member_> zone_members_named(int32_t q, const ObjectName& name);

CMPIObjectPath* zone_member_reference(const Target& target, const zs_cim_zone_member_& member);
CMPIInstance* zone_member_instance(const Target& target, const zs_cim_zone_member_& member);

// Out of every zone and every alias of the full database that holds it.
void delete_zone_member(int32_t q, const zs_cim_zone_member_& member);

// ---- zones and aliases, and their members ----

// The members of a zone or an alias: one exchange, and one for each. None when there is no such
// object.
std::vector<zs_cim_zone_member_> members_of(int32_t q, zs_object_kind kind,
                                            const char* instance_id);

// The zones (kind ZS_OBJECT_ZONE) or the aliases that hold a member.
std::vector<ZoningObject> parents_of_member(int32_t q, zs_object_kind kind,
                                            const char* member_instance_id);

// A member as the zone server packs it. The length of a text counts the zero behind it.
struct PackedMember {
  zs_member_type type;
  int32_t length;
  std::array<uint8_t, ZS_CIM_VALUE_ROOM> value;
};

// What the zone server may hold a member as. CIM shows some of its types as one, so there may be
// two; the first is the one that new members get. None when the record's texts make no value.
std::vector<PackedMember> packed_forms(const zs_cim_zone_member_& member);

// Removes the member from one zone or alias of the full database. Result: 0 or the zone server's.
int32_t remove_member_from(int32_t q, zs_object_kind kind, const ZoningId& parent,
                           const char* member_instance_id);

}  // namespace vexor::providers
