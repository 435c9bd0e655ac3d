// The part of the fabric file about zoning.
#ifndef SIMULATOR_FABRIC_ZONING_FILE_H
#define SIMULATOR_FABRIC_ZONING_FILE_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/fabric/fabric.h"
#include "simulator/fabric/object_reader.h"

namespace switch_sim {

// Finds a switch by what a file calls it; throws when there is none.
using SwitchReference = std::function<Wwn(const Value&)>;

// Reads "zoning" of a VSAN whose domain managers were read.
void read_zoning(const ObjectReader& object, const SwitchReference& reference,
                 const Wwn& local_switch, Vsan& vsan);

// The member "zoning" with a comma in front; nothing for a VSAN without zoning.
std::string zoning_text(const Zoning& zoning);

// The types of zone members that have a word, which stands for them in a file.
struct ZoneMemberWord {
  std::string_view word;
  uint8_t type;
};
inline constexpr std::array<ZoneMemberWord, 13> kZoneMemberWords = {{
    {"port-wwn", 1},
    {"domain-port", 2},
    {"fc-id", 3},
    {"symbolic-name", 4},
    {"port-wwn-lun", 225},
    {"fc-id-lun", 227},
    {"fabric-port-wwn", 229},
    {"symbolic-node-name", 230},
    {"interface", 231},
    {"ipv4", 232},
    {"domain-interface", 233},
    {"ipv6", 234},
    {"device-alias", 235},
}};

// The packed value of a member from its text, nothing when the type cannot have it; and back. The
// type must be known.
std::optional<std::string> parse_member_value(uint8_t type, const std::string& text);
std::string member_value_text(uint8_t type, const std::string& value);

// What the text of a type looks like, for an error: `a WWN such as "21:00:00:e0:8b:05:05:04"`.
const char* member_value_form(uint8_t type);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_ZONING_FILE_H
