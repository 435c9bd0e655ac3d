// A client's changes outlive the process that answered them.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <sstream>

#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;

// Makes changes until it is killed, and tells each one whose answer it had:
//   c NAME ID  a zone was made     m ID N  it got the member with port WWN N
//   s ID       it is in the zone set          a ID  the zone set was activated with it
//   - NAME     it is going to be deleted      d NAME  it was
[[noreturn]] void change_and_tell(int out, unsigned seed) {
  if (freopen("/dev/null", "w", stdout) == nullptr) _exit(2);
  const auto tell = [out](const std::string& line) {
    if (write(out, line.data(), line.size()) < 0) _exit(2);
  };
  std::minstd_rand random(seed);
  Client client;
  const auto zone_set = reference("ZoneSet", instance("VEXOR_ZoneSet", "1_1_0"));
  for (unsigned i = 0;; ++i) {
    const std::string name = "k" + std::to_string(i) + "_" + std::string(random() % 40, 'x');
    if (client.call("CreateZone", {text("ZoneName", name)}) != 0) _exit(3);
    const std::string id = client.made();
    tell("c " + name + " " + id + "\n");
    const ObjectPath zone = instance("VEXOR_Zone", id);
    char wwn[17];
    snprintf(wwn, sizeof wwn, "21000000%08X", i + 1);
    if (client.call("CreateZoneMembershipSettingData",
                    {number("ConnectivityMemberType", 2), text("ConnectivityMemberID", wwn),
                     reference("SystemSpecificCollection", zone)}) != 0)
      _exit(4);
    tell("m " + name + " " + wwn + "\n");
    if (i % 3 == 0) {
      if (client.call("AddZone", {zone_set, reference("Zone", zone)}) != 0) _exit(5);
      tell("s " + name + "\n");
      if (client.call("ActivateZoneSet", {zone_set, flag("Activate", true)}) != 0) _exit(6);
      tell("a " + name + "\n");
    }
    if (i % 3 == 1) {
      tell("- " + name + "\n");
      client.manager().delete_instance(zone);
      tell("d " + name + "\n");
    }
  }
}

// What the client knows.
struct Known {
  std::map<std::string, std::string> zones;  // by name: the port WWN, or empty
  Texts in_zone_set, active, deleted;
  int changes = 0;
};

Known read_told(const std::string& told) {
  Known known;
  std::istringstream lines(told.substr(0, told.rfind('\n') + 1));
  std::string what, name, rest;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    rest.clear();
    words >> what >> name >> rest;
    if (what != "-") ++known.changes;
    if (what == "c") known.zones[name];
    if (what == "m") known.zones[name] = rest;
    if (what == "s") known.in_zone_set.push_back(name);
    if (what == "a") known.active.push_back(name);
    if (what == "-") known.zones.erase(name);  // it may be there or not
    if (what == "d") known.deleted.push_back(name);
  }
  return known;
}

void expect_kept(const Known& known, const switch_sim::Zoning& zoning, unsigned seed) {
  const ZoneDatabase& full = *zoning.full;
  for (const auto& [name, wwn] : known.zones) {
    const uint32_t id = full.id_of(ZoningKind::zone, name);
    ASSERT_NE(id, 0u) << "seed " << seed << " " << name;
    if (wwn.empty()) continue;
    const auto& members = full.zones().find(id)->members;
    ASSERT_EQ(members.size(), 1u) << "seed " << seed << " " << name;
    std::string kept;
    for (const char byte : members[0].value) {
      char digits[3];
      snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(byte));
      kept += digits;
    }
    EXPECT_EQ(kept, wwn) << "seed " << seed;
  }
  const auto& held = full.zone_sets().find(1)->zones;
  for (const std::string& name : known.in_zone_set)
    EXPECT_EQ(std::count(held.begin(), held.end(), full.id_of(ZoningKind::zone, name)), 1)
        << "seed " << seed << " " << name;
  for (const std::string& name : known.active)
    EXPECT_NE(zoning.active->id_of(ZoningKind::zone, name), 0u) << "seed " << seed << " " << name;
  for (const std::string& name : known.deleted)
    EXPECT_EQ(full.id_of(ZoningKind::zone, name), 0u) << "seed " << seed << " " << name;
}

class ZoningKills : public testing::Test {
 protected:
  ZoningKills() : folder_(testing::TempDir() + "zoning_kills_" + std::to_string(getpid())) {
    std::filesystem::create_directory(folder_);
    control::reset();
    repository();  // read once, in front of the children
  }
  ~ZoningKills() override {
    control::reset();
    std::filesystem::remove_all(folder_);
  }
  std::string state() const { return folder_ + "/state.json"; }

  // What a child that is killed somewhere told.
  std::string run_and_kill(unsigned seed) {
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
      close(ends[0]);
      // Whatever happens, the child does not go on as the test.
      try {
        change_and_tell(ends[1], seed);
      } catch (...) {
        _exit(7);
      }
    }
    close(ends[1]);
    std::string told;
    char block[4096];
    const size_t enough = 20 + seed * 41 % 1500;
    ssize_t count = 0;
    while (told.size() < enough && (count = read(ends[0], block, sizeof block)) > 0)
      told.append(block, static_cast<size_t>(count));
    kill(child, SIGKILL);
    while ((count = read(ends[0], block, sizeof block)) > 0)
      told.append(block, static_cast<size_t>(count));
    close(ends[0]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status)) << "seed " << seed << " exit " << WEXITSTATUS(status);
    return told;
  }

  std::string folder_;
};

// SWITCH_SIM_KILLS gives another number of runs.
TEST_F(ZoningKills, EveryAnsweredChangeIsInTheReloadedState) {
  const char* given = getenv("SWITCH_SIM_KILLS");
  const unsigned runs = given != nullptr ? static_cast<unsigned>(atoi(given)) : 20;
  for (unsigned seed = 1; seed <= runs; ++seed) {
    for (const auto& file : std::filesystem::directory_iterator(folder_))
      std::filesystem::remove(file);
    control::reset();
    // A large state is written as a journal, a small one as a whole.
    if (seed % 2 == 0) {
      ASSERT_EQ(control::install_generated("switches=2,vsans=1,zones=1200,members=1200,seed=5"),
                std::nullopt);
    }
    ASSERT_EQ(control::keep_state_in(state()), std::nullopt);
    const Known known = read_told(run_and_kill(seed));
    EXPECT_GT(known.changes, 0) << seed;
    control::reset();
    ASSERT_EQ(control::keep_state_in(state()), std::nullopt) << "seed " << seed;
    const auto fabric = control::fabric();
    expect_kept(known, *fabric.vsans.at(0).zoning, seed);
  }
}

}  // namespace
