// The fabric that the simulated switch belongs to, as a value: comparable, copyable, and the only
// thing that the services answer from.
#ifndef SIMULATOR_FABRIC_FABRIC_H
#define SIMULATOR_FABRIC_FABRIC_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fabric/hardware.h"
#include "simulator/fabric/ports.h"
#include "simulator/fabric/topology_cache.h"
#include "simulator/fabric/wwn.h"
#include "simulator/fabric/zoning.h"

namespace switch_sim {

inline constexpr uint32_t kLargestVsan = 4094;
inline constexpr uint32_t kLargestDomainId = 239;
inline constexpr size_t kLongestVsanName = 127;
inline constexpr size_t kLongestSystemName = 255;
inline constexpr size_t kLongestSystemText = 1023;
inline constexpr size_t kLongestObjectId = 256;

// A management address: IPv4 in the first four bytes, or IPv6.
struct IpAddress {
  enum class Family : uint32_t { ipv4 = 1, ipv6 = 2 };
  Family family = Family::ipv4;
  std::array<uint8_t, 16> bytes{};
  friend bool operator==(const IpAddress&, const IpAddress&) = default;
};

// What a switch tells about itself as a managed system.
struct SystemInformation {
  std::string contact;
  std::string location;
  std::string description;
  std::string software_version;     // empty: the version cannot be read
  std::vector<uint32_t> object_id;  // components of the system's object identifier
  uint32_t services = 2;            // sum of 2^(layer - 1) over the layers that it serves
  uint32_t uptime_hundredths = 0;   // hundredths of a second, at the start of the virtual clock
  friend bool operator==(const SystemInformation&, const SystemInformation&) = default;
};

struct Switch {
  std::string name;  // the system name
  Wwn wwn;           // switch-wide: no VSAN number in its first bytes; tells the maker
  IpAddress address;
  SystemInformation system;
  std::vector<Module> modules;        // by slot, rising
  std::vector<Interface> interfaces;  // by interface index, rising
  Chassis chassis;
  friend bool operator==(const Switch&, const Switch&) = default;
};

enum class DomainType : uint8_t { static_id = 1, preferred = 2 };

// The domain manager of one switch in one VSAN.
struct DomainManager {
  Wwn switch_wwn;  // switch-wide WWN of the switch
  bool enabled = true;
  uint8_t domain_id = 0;  // the domain ID in use; 0 while the domain manager is not enabled
  uint8_t configured_domain_id = 0;  // 0: any
  DomainType configured_type = DomainType::preferred;
  uint8_t configured_priority = 128;
  friend bool operator==(const DomainManager&, const DomainManager&) = default;
};

enum class VsanState : uint32_t { up = 1, suspended = 2 };

enum class LoadBalancing : uint32_t { source_destination = 1, source_destination_exchange = 2 };

struct Vsan {
  uint32_t number = 0;
  std::string name;
  // Administrative and operational state: a suspended VSAN is down, an active one up.
  VsanState state = VsanState::up;
  LoadBalancing load_balancing = LoadBalancing::source_destination_exchange;
  Wwn principal_switch;                // switch-wide WWN; all zeros while there is none
  std::vector<DomainManager> domains;  // by switch WWN, rising
  Shared<Zoning> zoning;
  friend bool operator==(const Vsan&, const Vsan&) = default;
};

struct Fabric {
  Wwn local_switch;              // the switch whose platform this is
  std::vector<Switch> switches;  // by WWN, rising
  std::vector<Vsan> vsans;       // by number, rising
  std::vector<Link> links;       // by their first ends, rising
  std::vector<Device> devices;   // by port WWN, rising
  uint64_t counter_seed = 1;     // of the numbers that counters grow by
  TopologyCache topology;        // of services; no part of the value
  friend bool operator==(const Fabric&, const Fabric&) = default;
};

// Three switches, of which "switch-1" is the local one, in VSANs 1 and 2.
Fabric default_fabric();

// Brings the lists into the order that the model keeps them in.
void sort(Fabric& fabric);

// What a sorted fabric breaks of the rules above (limits, duplicates, unknown switches), or
// nothing.
std::optional<std::string> problem_of(const Fabric& fabric);

// True for what may be a name: UTF-8 of one line, not empty.
bool is_name(std::string_view text);

// Look-ups in a sorted fabric; null when there is none.
const Switch* find_switch(const Fabric& fabric, const Wwn& wwn);
const Vsan* find_vsan(const Fabric& fabric, uint32_t number);
const Vsan* next_vsan(const Fabric& fabric, uint32_t after);  // the lowest above `after`
const DomainManager* find_domain(const Vsan& vsan, const Wwn& switch_wwn);
Switch& local_switch(Fabric& fabric);
const Switch& local_switch(const Fabric& fabric);

// True when the switch takes part in the VSAN with a domain ID.
bool is_running(const Vsan& vsan, const DomainManager& domain);

// True for a switch that does not run this platform: its WWN begins with 10:00. It takes part in
// VSANs without knowing of them, numbers its ports through, and is no peer of this platform's
// switches.
bool is_of_another_maker(const Wwn& switch_wwn);

// The WWN that a switch shows in a VSAN: the VSAN number in the 12 bits behind the NAA nibble, and
// the last byte plus one. Another maker's switch shows its own everywhere.
Wwn vsan_wwn(const Wwn& switch_wwn, uint32_t vsan);

// 16 hexadecimal digits in pairs, "20:00:00:0d:ec:0a:1b:2c".
std::string to_text(const Wwn& wwn);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_FABRIC_H
