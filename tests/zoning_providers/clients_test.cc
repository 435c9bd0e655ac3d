// Several clients at once.
#include <atomic>
#include <thread>

#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;

class ZoningClients : public AgentTest {};

TEST_F(ZoningClients, EightMakeTwoHundredZonesEach) {
  constexpr int kClients = 8;
  constexpr int kZonesEach = 200;
  std::atomic<int> refused = 0;
  std::vector<std::thread> threads;
  for (int number = 0; number < kClients; ++number)
    threads.emplace_back([number, &refused] {
      Client client;
      for (int i = 0; i < kZonesEach; ++i) {
        const std::string name = "c" + std::to_string(number) + "_" + std::to_string(i);
        if (client.call("CreateZone", {text("ZoneName", name)}) != 0) ++refused;
      }
    });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(refused, 0);
  const auto fabric = control::fabric();
  const ZoneDatabase& full = *zoning(fabric).full;
  EXPECT_EQ(full.zones().size(), 2u + 1600u);
  for (int number = 0; number < kClients; ++number)
    for (int i = 0; i < kZonesEach; ++i)
      EXPECT_NE(
          full.id_of(ZoningKind::zone, "c" + std::to_string(number) + "_" + std::to_string(i)), 0u);
}

// The ids of the active zones, from the sorted list of what a class has.
Texts active_only(const Texts& ids) {
  Texts active;
  for (const std::string& id : ids)
    if (id.ends_with("_1")) active.push_back(id);
  return active;
}

TEST_F(ZoningClients, AReaderDuringAnActivationSeesTheOldSetOrTheNewOne) {
  auto fabric = control::fabric();
  ZoneDatabase& full = fabric.vsans.at(0).zoning.change().full.change();
  Texts zones[2];
  for (uint32_t set = 0; set < 2; ++set) {
    ASSERT_EQ(full.create(ZoningKind::zone_set, "set" + std::to_string(set)), 0);
    for (uint32_t i = 0; i < 40; ++i) {
      const std::string name = "z" + std::to_string(set) + "_" + std::to_string(i);
      ASSERT_EQ(full.create(ZoningKind::zone, name), 0);
      const uint32_t id = full.id_of(ZoningKind::zone, name);
      ASSERT_EQ(full.add_zone(set + 2, id), 0);
      zones[set].push_back("1_" + std::to_string(id) + "_1");
    }
  }
  fabric.vsans.at(0).zoning.change().active.change() = full.excerpt(2);
  ASSERT_EQ(control::install(fabric), std::nullopt);

  std::atomic<bool> done = false;
  std::atomic<int> refused = 0;
  std::thread writer([&] {
    Client client;
    for (int i = 1; i <= 60; ++i) {
      const std::string id = i % 2 == 0 ? "1_2_0" : "1_3_0";
      if (client.call("ActivateZoneSet", {reference("ZoneSet", instance("VEXOR_ZoneSet", id)),
                                          flag("Activate", true)}) != 0)
        ++refused;
    }
    done = true;
  });
  int reads = 0;
  while (!done || reads == 0) {
    ++reads;
    const Texts seen = active_only(client_->ids("VEXOR_Zone"));
    EXPECT_TRUE(seen == zones[0] || seen == zones[1]) << seen.size();
    const Texts sets = active_only(client_->ids("VEXOR_ZoneSet"));
    ASSERT_EQ(sets.size(), 1u);
    // Its zones, or none when it is active no more.
    const Texts held =
        client_->ids(instance("VEXOR_ZoneSet", sets[0]), "VEXOR_ZoneMemberOfCollection");
    EXPECT_TRUE(held.empty() || held == zones[sets[0] == "1_2_1" ? 0 : 1]) << held.size();
  }
  writer.join();
  EXPECT_EQ(refused, 0);
}

}  // namespace
