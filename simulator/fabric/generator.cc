#include "simulator/fabric/generator.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <numeric>
#include <set>

#include "simulator/fabric/generator_ports.h"
#include "simulator/fabric/random.h"
#include "simulator/fabric/suggestion.h"

namespace switch_sim {
namespace {

struct Parameter {
  std::string_view name;
  uint64_t least;
  uint64_t most;
  uint64_t value;
  bool given = false;
};

constexpr size_t kSwitches = 0;
constexpr size_t kPorts = 1;
constexpr size_t kVsans = 2;
constexpr size_t kDevices = 3;
constexpr size_t kSeed = 4;
constexpr size_t kZones = 5;
constexpr size_t kMembers = 6;
constexpr size_t kAliases = 7;

using Parameters = std::array<Parameter, 8>;

constexpr Parameters kDefaults = {{
    {"switches", 1, kLargestDomainId, 3},
    {"ports", 0, kMostGeneratedPorts, 0},  // of each switch
    {"vsans", 0, kLargestVsan, 2},
    {"devices", 0, kMostGeneratedDevices, 0},
    {"seed", 0, UINT64_MAX, 1},
    {"zones", 0, kMostZones, 0},      // of each VSAN, as the next two
    {"members", 0, kMostMembers, 0},  // of its zones and aliases together
    {"aliases", 0, kMostAliases, 0},
}};

std::string in_quotes(std::string_view text) {
  return '"' + std::string(text) + '"';
}

// Reads one "name=number"; an error text when it is none.
std::string read_parameter(std::string_view item, Parameters& parameters) {
  const size_t equals = item.find('=');
  if (equals == std::string_view::npos) {
    return "expected a name, \"=\" and a number, found " + in_quotes(item);
  }
  const std::string_view name = item.substr(0, equals);
  const std::string_view number = item.substr(equals + 1);
  const auto parameter =
      std::find_if(parameters.begin(), parameters.end(),
                   [&](const Parameter& candidate) { return candidate.name == name; });
  if (parameter == parameters.end()) {
    std::array<std::string_view, std::tuple_size_v<Parameters>> names;
    std::transform(parameters.begin(), parameters.end(), names.begin(),
                   [](const Parameter& known) { return known.name; });
    return "unknown key " + in_quotes(name) + suggestion(name, names);
  }
  if (parameter->given) return "key " + in_quotes(name) + " is given twice";
  const char* end = number.data() + number.size();
  const auto [next, error] = std::from_chars(number.data(), end, parameter->value);
  if (error != std::errc{} || next != end || parameter->value < parameter->least ||
      parameter->value > parameter->most) {
    return std::string(name) + ": expected a whole number from " +
           std::to_string(parameter->least) + " to " + std::to_string(parameter->most) +
           ", found " + in_quotes(number);
  }
  parameter->given = true;
  return "";
}

std::string read_parameters(std::string_view description, Parameters& parameters) {
  for (;;) {
    const size_t comma = description.find(',');
    std::string problem = read_parameter(description.substr(0, comma), parameters);
    if (!problem.empty() || comma == std::string_view::npos) return problem;
    description.remove_prefix(comma + 1);
  }
}

std::string numbered(const char* format, unsigned number) {
  char text[32];
  snprintf(text, sizeof text, format, number);
  return text;
}

Switch make_switch(unsigned index, uint32_t first_serial, Random& random) {
  // Serial numbers stand apart as those of real switches do, which number their ports in between.
  const uint32_t serial = (first_serial + index * 0x40) & 0xFFFFFF;
  Switch made;
  made.name = numbered("switch-%u", index + 1);
  made.wwn = {{0x20, 0x00, 0x00, 0x0D, 0xEC, static_cast<uint8_t>(serial >> 16),
               static_cast<uint8_t>(serial >> 8), static_cast<uint8_t>(serial)}};
  if (random.one_in(4)) {
    made.address.family = IpAddress::Family::ipv6;
    made.address.bytes = {0x20, 0x01, 0x0D, 0xB8};
    made.address.bytes[15] = static_cast<uint8_t>(index + 1);
  } else {
    made.address.bytes = {198, 51, 100, static_cast<uint8_t>(index + 1)};
  }
  made.system.contact = "storage-team@example.com";
  const auto row = static_cast<unsigned>(random.below(8)) + 1;
  const auto rack = static_cast<unsigned>(random.below(40)) + 1;
  made.system.location = numbered("Row %u, rack ", row) + std::to_string(rack);
  made.system.description = "Simulated Fibre Channel switch";
  made.system.software_version = random.one_in(3) ? "3.2(1)" : "3.1(2a)";
  made.system.object_id = {1, 3, 6, 1, 4, 1, 8, 5};
  made.system.uptime_hundredths = static_cast<uint32_t>(random.below(100000000));
  return made;
}

// `count` different VSAN numbers, 1 among them, rising.
std::vector<uint32_t> choose_vsans(size_t count, Random& random) {
  std::vector<uint32_t> numbers(kLargestVsan);
  std::iota(numbers.begin(), numbers.end(), 1U);
  for (size_t i = 1; i < count; ++i) {
    std::swap(numbers[i], numbers[i + random.below(numbers.size() - i)]);
  }
  numbers.resize(count);
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

DomainManager make_domain(const Wwn& switch_wwn, uint8_t domain_id, Random& random) {
  static constexpr std::array<uint8_t, 4> kPriorities = {1, 2, 128, 254};
  DomainManager made;
  made.switch_wwn = switch_wwn;
  made.domain_id = domain_id;
  made.configured_domain_id = domain_id;
  made.configured_type = random.one_in(4) ? DomainType::static_id : DomainType::preferred;
  made.configured_priority = kPriorities[random.below(kPriorities.size())];
  return made;
}

void choose_principal(Vsan& vsan) {
  const DomainManager* best = nullptr;
  for (const DomainManager& domain : vsan.domains) {
    if (!domain.enabled) continue;
    if (best == nullptr || domain.configured_priority < best->configured_priority) best = &domain;
  }
  if (best != nullptr) vsan.principal_switch = best->switch_wwn;
}

// VSAN 1 is up and holds every switch; others may be suspended, miss switches, or have no domain
// manager on the local switch.
Vsan make_vsan(uint32_t number, const Fabric& fabric, Random& random) {
  Vsan made;
  made.number = number;
  made.name = numbered("VSAN%04u", number);
  made.load_balancing = random.one_in(2) ? LoadBalancing::source_destination
                                         : LoadBalancing::source_destination_exchange;
  if (number != 1 && random.one_in(8)) made.state = VsanState::suspended;

  std::array<uint8_t, kLargestDomainId> domain_ids;
  std::iota(domain_ids.begin(), domain_ids.end(), uint8_t{1});
  size_t used = 0;
  for (const Switch& member : fabric.switches) {
    const bool is_local = member.wwn == fabric.local_switch;
    if (number != 1 && !is_local && random.one_in(4)) continue;
    std::swap(domain_ids[used], domain_ids[used + random.below(domain_ids.size() - used)]);
    DomainManager domain = make_domain(member.wwn, domain_ids[used++], random);
    if (number != 1 && is_local && random.one_in(16)) {
      domain.enabled = false;
      domain.domain_id = 0;
    }
    made.domains.push_back(domain);
  }
  choose_principal(made);
  return made;
}

// What one fabric may hold of zones, members and aliases.
constexpr uint64_t kMostZoningOfAllVsans = 2000000;

std::string problem_with_zoning(const Parameters& parameters) {
  const uint64_t zones = parameters[kZones].value, members = parameters[kMembers].value;
  const uint64_t aliases = parameters[kAliases].value;
  if (members > (zones + aliases) * kMostMembersOfParent) {
    return "members: expected at most " + std::to_string(kMostMembersOfParent) +
           " for each zone and alias, found \"" + std::to_string(members) + "\"";
  }
  if ((zones + members + aliases) * parameters[kVsans].value > kMostZoningOfAllVsans) {
    return "zones, members and aliases of all VSANs: expected at most " +
           std::to_string(kMostZoningOfAllVsans);
  }
  return "";
}

// The port WWN of a host that may be in several zones.
ZoneMember make_member(uint64_t host) {
  std::string wwn("\x21\x00\x00\xE0\x8B", 5);
  for (const int shift : {16, 8, 0})
    wwn += static_cast<char>(host >> shift);
  return {0, 1, wwn};
}

// Members in turn to each zone and alias; each zone with an alias, while there are any; all zones
// in one zone set, which is active.
Zoning make_zoning(const Parameters& parameters, Random& random) {
  const auto zones = static_cast<uint32_t>(parameters[kZones].value);
  const auto aliases = static_cast<uint32_t>(parameters[kAliases].value);
  const uint64_t members = parameters[kMembers].value;
  Zoning zoning;
  ZoneDatabase& full = zoning.full.change();
  for (uint32_t id = 1; id <= aliases; ++id)
    full.create(ZoningKind::alias, numbered("alias-%u", id));
  for (uint32_t id = 1; id <= zones; ++id) {
    full.create(ZoningKind::zone, numbered("zone-%u", id));
    if (aliases != 0) full.add_alias(id, (id - 1) % aliases + 1);
  }
  for (uint64_t i = 0; i < members; ++i) {
    const auto place = static_cast<uint32_t>(i % (zones + aliases)) + 1;
    const auto kind = place <= zones ? ZoningKind::zone : ZoningKind::alias;
    const uint32_t parent = place <= zones ? place : place - zones;
    if (full.add_member(kind, parent, make_member(random.below(members / 2 + 1))) != 0) {
      full.add_member(kind, parent, make_member(members + i));
    }
  }
  if (zones != 0) {
    full.create(ZoningKind::zone_set, "zoneset-1");
    for (uint32_t id = 1; id <= zones; ++id)
      full.add_zone(1, id);
    zoning.active.change() = full.excerpt(1);
  }
  return zoning;
}

}  // namespace

ReadFabric generate_fabric(std::string_view description) {
  Parameters parameters = kDefaults;
  std::string problem = read_parameters(description, parameters);
  if (problem.empty()) problem = problem_with_zoning(parameters);
  if (!problem.empty()) return FabricError{std::move(problem)};

  Random random(parameters[kSeed].value);
  Fabric fabric;
  const auto first_serial = static_cast<uint32_t>(random.below(0x1000000));
  for (unsigned i = 0; i < parameters[kSwitches].value; ++i) {
    fabric.switches.push_back(make_switch(i, first_serial, random));
  }
  fabric.local_switch = fabric.switches.front().wwn;
  sort(fabric);
  for (const uint32_t number : choose_vsans(parameters[kVsans].value, random)) {
    fabric.vsans.push_back(make_vsan(number, fabric, random));
  }
  if (auto error = add_generated_ports(
          {parameters[kPorts].value, parameters[kDevices].value, parameters[kSeed].value},
          fabric)) {
    return std::move(*error);
  }
  // Behind everything else, so that zoning changes nothing of a fabric but its zoning.
  for (Vsan& vsan : fabric.vsans) {
    Zoning zoning = make_zoning(parameters, random);
    if (zoning != Zoning()) vsan.zoning.change() = std::move(zoning);
  }
  return fabric;
}

}  // namespace switch_sim
