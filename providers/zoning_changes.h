// Changes of the full zoning database of a VSAN, by the names that clients give to objects.
//
// A name of another class, of another VSAN or of the active database is an invalid parameter, and
// the zone server is asked nothing.
#pragma once

#include <cim_utils/zoning_records.h>

#include <optional>
#include <string>

#include "providers/class.h"
#include "providers/zoning_objects.h"
#include "providers/zoning_results.h"

namespace vexor::providers {

using Reference = std::optional<ObjectName>;

struct NamedObject {
  zs_object_kind kind;
  ZoningId id;
};

// What a reference names; none when it names no zone set, zone or alias.
std::optional<NamedObject> named_object(const Reference& reference);
// The same in the full database of a VSAN.
std::optional<NamedObject> editable_object(const Reference& reference, uint32_t vsan);

// A record that holds the name alone, which is enough for a path.
ZoningObject only_name(zs_object_kind kind, const char* instance_id);
zs_cim_zone_member_ only_name_of_member(const char* instance_id);
// Of a reference that names an object.
ZoningObject only_name(const ObjectName& object);

// A zone set, zone or alias. `made` receives it on success.
ZoneServiceResult create_zoning_object(int32_t q, uint32_t vsan, zs_object_kind kind,
                                       const std::string& name, std::optional<ZoningObject>& made);

// A zone into a zone set, or an alias into a zone.
ZoneServiceResult add_zone(int32_t q, uint32_t vsan, const Reference& zone_set,
                           const Reference& zone);
ZoneServiceResult add_alias(int32_t q, uint32_t vsan, const Reference& zone,
                            const Reference& alias);

// A new member into a zone or an alias. `cim_type` is the decimal text of a ConnectivityMemberType
// and `text` the value in its form:
//    2, 7  WWN, 16 hexadecimal digits
//    3     FC ID, 6 hexadecimal digits
//    4     domain:port, 1 to 239 and 1 to 255
//    5     name of an alias, into a zone only: the zone then holds the alias, and no member is made
//    6     interface of the local switch, such as "fc1/5"
//    8     IPv4 address and mask, "10.0.0.1/255.255.255.0"
//    9     IPv6 address
//   10     interface;switch WWN: becomes a member of type 6
//   11     interface;domain
//   12     symbolic name, at most 63 characters without "^"
// `instance_id` receives the member's; it stays empty where none is made.
ZoneServiceResult create_member(int32_t q, uint32_t vsan, const std::string& cim_type,
                                const std::string& text, const Reference& collection,
                                std::string& instance_id);

// A member that another zone or alias of the VSAN holds already.
ZoneServiceResult add_member(int32_t q, uint32_t vsan, const Reference& collection,
                             const Reference& member);

// Activates a zone set of the VSAN, of either database, or deactivates it.
ZoneServiceResult activate_zone_set(int32_t q, uint32_t vsan, const Reference& zone_set, bool on);

}  // namespace vexor::providers
