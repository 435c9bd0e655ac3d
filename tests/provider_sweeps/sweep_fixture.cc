#include "tests/provider_sweeps/sweep_fixture.h"

#include <algorithm>
#include <array>

#include "simulator/transport/hardware_messages.h"

namespace provider_sweeps {
namespace {

using switch_sim::Fabric;
using switch_sim::Interface;
using switch_sim::Switch;
using switch_sim::Zoning;
using switch_sim::ZoningKind;

void keep_modules(Switch& element, std::vector<switch_sim::Module> modules) {
  element.modules = std::move(modules);
  element.chassis.slots = 0;
  element.chassis.power_supplies = 0;
  element.chassis.fans = 0;
  element.chassis.sensors = 0;
}

// Interfaces by their names.
void keep_interfaces(Switch& element, const std::vector<std::string>& names) {
  std::erase_if(element.interfaces, [&](const Interface& each) {
    const std::string name = switch_sim::interface_name(each.if_index);
    return std::find(names.begin(), names.end(), name) == names.end();
  });
}

Zoning small_zoning() {
  const switch_sim::ZoneMember member{0, 1, std::string("\x21\x00\x00\x11\x22\x33\x44\x01", 8)};
  Zoning zoning;
  switch_sim::ZoneDatabase& full = zoning.full.change();
  full.create(ZoningKind::alias, "hosts");
  full.add_member(ZoningKind::alias, 1, member);
  full.create(ZoningKind::zone, "backup");
  full.add_member(ZoningKind::zone, 1, member);
  full.add_alias(1, 1);
  full.create(ZoningKind::zone_set, "production");
  full.add_zone(1, 1);
  zoning.active.change() = full.excerpt(1);
  return zoning;
}

// What is replied is a text, whose length nobody knows.
bool is_text(const switch_sim::Request& request) {
  return request.opcode == switch_sim::kChassisId || request.opcode == switch_sim::kSoftwareVersion;
}

// Longer than any wait of the library or the platform.
constexpr int32_t kTooLate = 60000;  // milliseconds
constexpr int32_t kRefusal = 0x40010001;

}  // namespace

Fabric small_fabric() {
  using switch_sim::ModuleKind;
  using switch_sim::ModuleState;
  Fabric fabric = control::default_fabric();
  fabric.switches.resize(2);
  Switch& own = fabric.switches[0];
  Switch& other = fabric.switches[1];
  keep_modules(own, {{1, ModuleKind::fibre_channel, ModuleState::ok, 2},
                     {2, ModuleKind::ip_storage, ModuleState::ok, 1}});
  keep_interfaces(own, {"fc1/1", "fc1/2", "gigabitethernet2/1"});
  keep_modules(other, own.modules);
  keep_interfaces(other, {"fc1/1", "fc1/2", "gigabitethernet2/1"});
  fabric.vsans.resize(1);
  fabric.vsans[0].domains.resize(2);
  fabric.vsans[0].zoning.change() = small_zoning();
  const auto is_kept = [&](const switch_sim::LinkEnd& end) {
    const Switch* owner = switch_sim::find_switch(fabric, end.switch_wwn);
    return owner != nullptr && switch_sim::find_interface(*owner, end.if_index) != nullptr;
  };
  std::erase_if(fabric.links, [&](const switch_sim::Link& link) {
    return !is_kept(link.ends[0]) || !is_kept(link.ends[1]);
  });
  std::erase_if(fabric.devices,
                [&](const switch_sim::Device& device) { return device.name != "host-a"; });
  return fabric;
}

namespace {

// In every way.
std::vector<Fault> failures_of(const switch_sim::Exchange& exchange, uint32_t nth) {
  std::vector<Fault> faults;
  const auto add = [&](Fault::Kind kind, int32_t value) {
    Fault fault;
    fault.nth = nth;
    fault.kind = kind;
    fault.value = value;
    faults.push_back(fault);
  };
  add(Fault::Kind::error, ECONNRESET);
  add(Fault::Kind::status, kRefusal);
  add(Fault::Kind::delay, kTooLate);
  const auto& outcome = exchange.outcome;
  if (!outcome || !outcome->reply || outcome->reply->empty()) return faults;
  add(Fault::Kind::without_reply, 0);
  if (!is_text(exchange.request))
    add(Fault::Kind::short_reply, static_cast<int32_t>(outcome->reply->size()) - 1);
  return faults;
}

}  // namespace

std::vector<Fault> ProviderSweep::failing_exchanges(const Operation& operation, Ways ways) {
  control::keep_log(true);
  control::clear_log();
  sweep_.run(operation);
  const auto exchanges = control::log();
  control::keep_log(false);
  control::clear_log();
  std::vector<Fault> faults;
  for (uint32_t n = 1; n <= exchanges.size(); ++n) {
    const std::vector<Fault> all = failures_of(exchanges[n - 1], n);
    if (ways == Ways::every) {
      faults.insert(faults.end(), all.begin(), all.end());
    } else {
      faults.push_back(all[n % all.size()]);
    }
  }
  return faults;
}

std::string ProviderSweep::name_of(const Fault& fault) {
  constexpr std::array kNames = {"refused", "without a reply", "one byte short", "too late",
                                 "lost"};
  return "exchange " + std::to_string(fault.nth) + " " + kNames.at(static_cast<size_t>(fault.kind));
}

Outcome ProviderSweep::run_with(const Fault& fault, const Operation& operation) {
  const control::Outstanding before = control::outstanding();
  const std::string what = operation.name + ", " + name_of(fault);
  control::set_faults({fault});
  control::clear_log();
  Outcome outcome = sweep_.run({what, operation.run});
  EXPECT_GE(control::exchange_count(), fault.nth) << what << ": not reached";
  control::set_faults({});
  const control::Outstanding after = control::outstanding();
  EXPECT_EQ(after.messages, before.messages) << what;
  EXPECT_EQ(after.iterators, before.iterators) << what;
  EXPECT_EQ(after.queues, before.queues) << what;
  return outcome;
}

}  // namespace provider_sweeps
