// Several client processes on one switch, which another process serves.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <set>

#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;

constexpr int kClients = 8;

class Pipe {
 public:
  Pipe() { EXPECT_EQ(pipe(ends_), 0); }
  ~Pipe() {
    close_reader();
    close_writer();
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int reader() const { return ends_[0]; }
  void close_reader() { close_end(0); }
  void close_writer() { close_end(1); }
  void tell() { EXPECT_EQ(write(ends_[1], "!", 1), 1); }
  // False when nobody can tell any more.
  bool hear() {
    char ignored;
    return read(ends_[0], &ignored, 1) == 1;
  }

 private:
  void close_end(int end) {
    if (ends_[end] >= 0) close(ends_[end]);
    ends_[end] = -1;
  }
  int ends_[2] = {-1, -1};
};

// A child process; its result is its exit status. The traces of the library go nowhere.
pid_t start(const std::function<int()>& run) {
  const pid_t child = fork();
  if (child != 0) return child;
  int status = 99;
  if (freopen("/dev/null", "w", stdout) != nullptr) {
    // Whatever happens, the child does not go on as the test.
    try {
      status = run();
    } catch (...) {
      status = 98;
    }
  }
  _exit(status);
}

int exit_status(pid_t child) {
  int status = -1;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Those of the active database.
Texts active_only(Texts ids) {
  std::erase_if(ids, [](const std::string& id) { return !id.ends_with("_1"); });
  return ids;
}

bool is_part_of(const Texts& part, const Texts& whole) {
  return std::all_of(part.begin(), part.end(), [&](const std::string& id) {
    return std::find(whole.begin(), whole.end(), id) != whole.end();
  });
}

class ZoningProcesses : public testing::Test {
 protected:
  ZoningProcesses() : folder_(testing::TempDir() + "zoning_processes_" + std::to_string(getpid())) {
    std::filesystem::create_directory(folder_);
    control::reset();
    repository();  // read once, in front of the children
  }
  ~ZoningProcesses() override {
    end_switch();
    control::reset();
    std::filesystem::remove_all(folder_);
  }

  // From now on another process serves the fabric of this one.
  void serve() {
    Pipe serving;
    switch_ = start([&] {
      stop_.close_writer();
      return control::serve(socket(), stop_.reader(), [&] { serving.tell(); }) ? 1 : 0;
    });
    serving.close_writer();
    ASSERT_TRUE(serving.hear());
    ASSERT_EQ(control::use_switch_at(socket()), std::nullopt);
  }
  void end_switch() {
    stop_.close_writer();
    if (switch_ != 0) {
      EXPECT_EQ(exit_status(switch_), 0);
    }
    switch_ = 0;
  }

  // Runs a client in each of several processes at once. Result: their exit statuses.
  std::vector<int> run_clients(int count, const std::function<int(int, Client&)>& run) {
    Pipe go;
    Pipe ready;
    std::vector<pid_t> children;
    for (int number = 0; number < count; ++number)
      children.push_back(start([&] {
        go.close_writer();
        Client client;
        ready.tell();
        ready.close_writer();
        go.hear();
        return run(number, client);
      }));
    ready.close_writer();
    for (int number = 0; number < count; ++number)
      EXPECT_TRUE(ready.hear());
    go.close_writer();
    std::vector<int> statuses;
    for (const pid_t child : children)
      statuses.push_back(exit_status(child));
    return statuses;
  }

  std::string socket() const { return folder_ + "/switch"; }
  // The full database, as the switch tells it.
  static ZoneDatabase full() { return *control::fabric().vsans.at(0).zoning->full; }

 private:
  std::string folder_;
  Pipe stop_;
  pid_t switch_ = 0;
};

TEST_F(ZoningProcesses, EightMakeTwentyZonesEachAtOnceAndNoneIsLost) {
  constexpr int kZonesEach = 20;
  serve();
  const auto name_of = [](int client, int i) {
    return "p" + std::to_string(client) + "_" + std::to_string(i);
  };
  const std::vector<int> refused = run_clients(kClients, [&](int number, Client& client) {
    int count = 0;
    for (int i = 0; i < kZonesEach; ++i)
      if (client.call("CreateZone", {text("ZoneName", name_of(number, i))}) != 0) ++count;
    return count;
  });
  EXPECT_EQ(refused, std::vector<int>(kClients, 0));
  const ZoneDatabase zones = full();
  EXPECT_EQ(zones.zones().size(), 2u + 160u);
  std::set<uint32_t> ids;
  for (int number = 0; number < kClients; ++number)
    for (int i = 0; i < kZonesEach; ++i)
      ids.insert(zones.id_of(ZoningKind::zone, name_of(number, i)));
  EXPECT_EQ(ids.size(), 160u);
  EXPECT_FALSE(ids.contains(0));
}

TEST_F(ZoningProcesses, OfEightThatMakeTheSameZonesOneMakesEach) {
  constexpr int kZones = 10;
  serve();
  // How many each makes; a refusal for another reason than that the name is in use is more.
  const std::vector<int> made = run_clients(kClients, [](int, Client& client) {
    int count = 0;
    for (int i = 0; i < kZones; ++i) {
      const uint64_t result =
          client.call("CreateZone", {text("ZoneName", "same" + std::to_string(i))});
      count += result == 0 ? 1 : result == 8 ? 0 : 50;
    }
    return count;
  });
  int all = 0;
  for (const int count : made)
    all += count;
  EXPECT_EQ(all, kZones);
  EXPECT_EQ(full().zones().size(), 2u + 10u);
}

// A list is one exchange, and one database: its zones are those of one zone set. A walk is many,
// and the zone set may be replaced in its middle: then it ends early, or there is nothing to walk.
TEST_F(ZoningProcesses, AReaderDuringActivationsNeverSeesZonesOfTwoZoneSets) {
  auto fabric = control::fabric();
  ZoneDatabase& zones = fabric.vsans.at(0).zoning.change().full.change();
  Texts ids[2];
  for (uint32_t set = 0; set < 2; ++set) {
    ASSERT_EQ(zones.create(ZoningKind::zone_set, "set" + std::to_string(set)), 0);
    for (uint32_t i = 0; i < 20; ++i) {
      const std::string name = "z" + std::to_string(set) + "_" + std::to_string(i);
      ASSERT_EQ(zones.create(ZoningKind::zone, name), 0);
      const uint32_t id = zones.id_of(ZoningKind::zone, name);
      ASSERT_EQ(zones.add_zone(set + 2, id), 0);
      ids[set].push_back("1_" + std::to_string(id) + "_1");
    }
  }
  fabric.vsans.at(0).zoning.change().active.change() = zones.excerpt(2);
  ASSERT_EQ(control::install(fabric), std::nullopt);
  serve();

  Pipe started;
  const pid_t writer = start([&] {
    Client client;
    started.tell();
    int refused = 0;
    for (int i = 1; i <= 100; ++i) {
      const char* const id = i % 2 == 0 ? "1_2_0" : "1_3_0";
      if (client.call("ActivateZoneSet", {reference("ZoneSet", instance("VEXOR_ZoneSet", id)),
                                          flag("Activate", true)}) != 0)
        ++refused;
    }
    return refused;
  });
  started.close_writer();
  testing::internal::CaptureStdout();
  {
    Client client;
    ASSERT_TRUE(started.hear());
    int status = 0;
    do {
      const Texts seen = active_only(client.ids("VEXOR_Zone"));
      EXPECT_TRUE(seen == ids[0] || seen == ids[1]) << seen.size();
      const Texts sets = active_only(client.ids("VEXOR_ZoneSet"));
      ASSERT_EQ(sets.size(), 1u);
      const Texts& whole = ids[sets[0] == "1_2_1" ? 0 : 1];
      const Texts held =
          client.ids(instance("VEXOR_ZoneSet", sets[0]), "VEXOR_ZoneMemberOfCollection");
      EXPECT_TRUE(is_part_of(held, whole)) << held.size();
    } while (waitpid(writer, &status, WNOHANG) == 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
  }
  testing::internal::GetCapturedStdout();
}

}  // namespace
