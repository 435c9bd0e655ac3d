// The state of a large fabric: a fabric file and the journal of what came after it.
#include <signal.h>
#include <switch_platform/zone_server.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>

#include "simulator/fabric/fabric_file.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::ZoningKind;

// Its file is large enough for a journal.
constexpr const char* kLargeFabric = "switches=2,vsans=1,zones=1200,members=1200,seed=5";

class StateJournal : public SimulatorTest {
 protected:
  void SetUp() override {
    SimulatorTest::SetUp();
    folder = testing::TempDir() + "state_journal_" + std::to_string(getpid());
    std::filesystem::create_directory(folder);
    path = folder + "/state.json";
    journal = path + ".journal";
    // The first change writes the file.
    ASSERT_EQ(std::nullopt, control::install_generated(kLargeFabric));
    ASSERT_EQ(std::nullopt, control::keep_state_in(path));
    ASSERT_EQ(0, create("first"));
  }

  void TearDown() override {
    SimulatorTest::TearDown();
    control::reset();
    std::filesystem::remove_all(folder);
  }

  int32_t create(const std::string& name) {
    return zs_cmi_create_zoning_object(q, 1, 1, 0, -1, name.c_str(), "", "", context);
  }

  int32_t destroy(const std::string& name) {
    return zs_cmi_create_zoning_object(q, 0, 1, 0, -1, name.c_str(), "", "", context);
  }

  static std::string content(const std::string& file) {
    std::stringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
  }

  static void write(const std::string& file, const std::string& text) {
    std::ofstream(file) << text;
  }

  static bool holds(const std::string& name) {
    return control::fabric().vsans.at(0).zoning->full->id_of(ZoningKind::zone, name) != 0;
  }

  // What a process that starts now answers from.
  std::optional<std::string> reload() {
    control::reset();
    return control::keep_state_in(path);
  }

  uint8_t context[132] = {};
  std::string folder, path, journal;
};

TEST_F(StateJournal, AChangeIsAppendedAndTheFileStays) {
  const std::string before = content(path);
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_EQ(0, create("second"));
  EXPECT_EQ(before, content(path));
  const std::string text = content(journal);
  EXPECT_EQ("journal of ", text.substr(0, 11));
  // After a checksum of 16 digits: VSAN 1, to add, kind 0, 6 bytes of name.
  EXPECT_EQ(
      " request token=0 service=272 opcode=65809 operation=3 "
      "body=000000010000000100000000000000067365636f6e64\n",
      text.substr(text.find('\n') + 1 + 16));
}

TEST_F(StateJournal, TheReloadedStateHasTheChangesOfTheJournal) {
  EXPECT_EQ(0, create("second"));
  EXPECT_EQ(0, create("third"));
  EXPECT_EQ(0, destroy("first"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

TEST_F(StateJournal, AReloadedStateIsGoneOnFrom) {
  EXPECT_EQ(0, create("second"));
  const std::string before = content(path);
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(0, create("third"));
  EXPECT_EQ(before, content(path));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
  EXPECT_TRUE(holds("second") && holds("third"));
}

TEST_F(StateJournal, ARefusedChangeAndOneThatChangesNothingAreNotAppended) {
  EXPECT_EQ(0, create("second"));
  const std::string before = content(journal);
  EXPECT_NE(0, create("second"));
  EXPECT_NE(0, create("1"));
  EXPECT_EQ(before, content(journal));
}

TEST_F(StateJournal, ASmallFabricHasNoJournal) {
  control::reset();
  const std::string small = folder + "/small.json";
  ASSERT_EQ(std::nullopt, control::keep_state_in(small));
  EXPECT_EQ(0, create("second"));
  EXPECT_EQ(0, create("third"));
  EXPECT_FALSE(std::filesystem::exists(small + ".journal"));
  EXPECT_EQ(control::fabric(), std::get<switch_sim::Fabric>(switch_sim::read_fabric_file(small)));
}

TEST_F(StateJournal, AJournalAsLargeAsTheFileGoesIntoTheFile) {
  EXPECT_EQ(0, create("second"));
  const std::string tail(50, 'x');
  for (int i = 0; std::filesystem::exists(journal); ++i) {
    ASSERT_LT(i, 5000);
    ASSERT_EQ(0, i % 2 == 0 ? create("y" + tail) : destroy("y" + tail));
  }
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_EQ(control::fabric(), std::get<switch_sim::Fabric>(switch_sim::read_fabric_file(path)));
  EXPECT_EQ(0, create("later"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

// Whatever was written of the last record, the state loads, with all records before it.
TEST_F(StateJournal, ATornRecordIsThatOfAChangeThatNobodyHeardOf) {
  EXPECT_EQ(0, create("second"));
  const size_t whole = content(journal).size();
  EXPECT_EQ(0, create("third"));
  const std::string text = content(journal);
  for (size_t length = 0; length <= text.size(); length += length < whole ? 37 : 7) {
    write(journal, text.substr(0, length));
    ASSERT_EQ(std::nullopt, reload()) << length;
    EXPECT_EQ(length >= whole, holds("second")) << length;
    EXPECT_FALSE(length != text.size() && holds("third")) << length;
    EXPECT_TRUE(holds("first"));
  }
  write(journal, text);
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("third"));
}

TEST_F(StateJournal, ATornRecordIsCutOffBeforeTheNext) {
  EXPECT_EQ(0, create("second"));
  write(journal, content(journal) + "0123456789abcdef requ");
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(0, create("third"));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second") && holds("third"));
}

TEST_F(StateJournal, ADamagedRecordWithAnotherBehindItIsTold) {
  EXPECT_EQ(0, create("second"));
  EXPECT_EQ(0, create("third"));
  std::string text = content(journal);
  text[text.find("request") + 2] = 'X';
  write(journal, text);
  EXPECT_EQ(journal + ":3: the line before is damaged", reload());
}

TEST_F(StateJournal, AJournalOfAnotherFileIsTold) {
  EXPECT_EQ(0, create("second"));
  write(path, content(path) + "\n");
  EXPECT_EQ(
      journal + ":1: the journal goes on from another state file; without it, its changes are lost",
      reload());
  std::filesystem::remove(journal);
  EXPECT_EQ(std::nullopt, reload());
  EXPECT_FALSE(holds("second"));
}

TEST_F(StateJournal, AChangeThatCannotBeRepeatedIsTold) {
  EXPECT_EQ(0, create("second"));
  const std::string text = content(journal);
  write(journal, text + text.substr(text.find('\n') + 1));
  EXPECT_EQ(journal + ":3: the change cannot be repeated", reload());
}

// The process ended between the new file and the removal of the journal.
TEST_F(StateJournal, AJournalWhoseChangesTheFileHasIsLeftAside) {
  EXPECT_EQ(0, create("second"));
  const std::string text = content(journal);
  ASSERT_EQ(std::nullopt, control::install(control::fabric()));  // the next change writes all
  EXPECT_EQ(0, create("third"));
  ASSERT_FALSE(std::filesystem::exists(journal));
  const auto hash_of = [](const std::string& bytes) {  // FNV-1a
    uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : bytes)
      hash = (hash ^ static_cast<uint8_t>(byte)) * 0x100000001B3U;
    char digits[17];
    snprintf(digits, sizeof digits, "%016lx", static_cast<unsigned long>(hash));
    return std::string(digits);
  };
  const std::string marker = "replaced by " + hash_of(content(path));
  write(journal, text + "\n" + hash_of(marker) + " " + marker + "\n");
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second") && holds("third"));
  EXPECT_EQ(0, create("fourth"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

// The process ended before the new file was there: the old one and the journal count.
TEST_F(StateJournal, ANewFileThatNeverCameDoesNotCount) {
  EXPECT_EQ(0, create("second"));
  std::string text = content(journal);
  // The checksum of "replaced by 0123456789abcdef".
  text += "\n47337f50ee14c746 replaced by 0123456789abcdef\n";
  write(journal, text);
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second"));
  EXPECT_EQ(0, create("third"));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second") && holds("third"));
}

TEST_F(StateJournal, AnInstalledFabricIsWrittenWithTheNextChange) {
  EXPECT_EQ(0, create("second"));
  ASSERT_EQ(std::nullopt, control::install_generated(kLargeFabric));
  EXPECT_EQ(0, create("other"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
  EXPECT_FALSE(holds("second"));
}

TEST_F(StateJournal, AFileThatSomebodyReplacedIsWrittenAnew) {
  EXPECT_EQ(0, create("second"));
  std::filesystem::rename(path, path + ".old");
  std::filesystem::copy(path + ".old", path);
  EXPECT_EQ(0, create("third"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

TEST_F(StateJournal, AJournalThatSomebodyRemovedIsMissedByNobody) {
  EXPECT_EQ(0, create("second"));
  std::filesystem::remove(journal);
  EXPECT_EQ(0, create("third"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

TEST_F(StateJournal, AJournalThatSomebodyRemovedSinceItWasReadIsMissedByNobody) {
  EXPECT_EQ(0, create("second"));
  ASSERT_EQ(std::nullopt, reload());
  std::filesystem::remove(journal);
  EXPECT_EQ(0, create("third"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
  EXPECT_TRUE(holds("second") && holds("third"));
}

// The file alone is as it was before the journal: what the journal told was undone meanwhile.
TEST_F(StateJournal, AFileThatAnotherProcessWroteAnewWithoutTheJournalsChangesCounts) {
  EXPECT_EQ(0, create("second"));
  std::filesystem::copy(path, path + ".new");
  std::filesystem::rename(path + ".new", path);
  std::filesystem::remove(journal);
  EXPECT_EQ(0, create("third"));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_FALSE(holds("second"));
  EXPECT_TRUE(holds("third"));
}

TEST_F(StateJournal, AChangeThatCannotBeAppendedIsRefusedAndUndone) {
  std::filesystem::create_directory(journal);
  const auto before = control::fabric();
  testing::internal::CaptureStderr();
  EXPECT_EQ(kStateNotSaved, create("second"));
  EXPECT_EQ("switch simulator: a change was not saved: " + journal + ": Is a directory\n",
            testing::internal::GetCapturedStderr());
  EXPECT_EQ(before, control::fabric());
  std::filesystem::remove(journal);
  EXPECT_EQ(0, create("third"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
}

// What runs in another process that goes on from the same files; false when it failed there.
template <typename Work>
bool in_another_process(const std::string& path, Work work) {
  const pid_t child = fork();
  if (child == 0) {
    control::reset();
    _exit(!control::keep_state_in(path) && work() ? 0 : 1);
  }
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// With no journal yet, with one that was read, and with one of this process's own that is open.
TEST_F(StateJournal, AChangeThatAnotherProcessAppendedIsNeverCutOff) {
  ASSERT_TRUE(in_another_process(path, [this] { return create("theirs_1") == 0; }));
  EXPECT_EQ(0, create("ours_1"));
  ASSERT_EQ(std::nullopt, reload());
  ASSERT_TRUE(in_another_process(path, [this] { return create("theirs_2") == 0; }));
  EXPECT_EQ(0, create("ours_2"));
  ASSERT_TRUE(in_another_process(path, [this] { return create("theirs_3") == 0; }));
  EXPECT_EQ(0, create("ours_3"));
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
  for (const char* name :
       {"first", "theirs_1", "ours_1", "theirs_2", "ours_2", "theirs_3", "ours_3"})
    EXPECT_TRUE(holds(name)) << name;
}

TEST_F(StateJournal, AFileThatAnotherProcessWroteAnewIsGoneOnFrom) {
  EXPECT_EQ(0, create("second"));
  ASSERT_TRUE(in_another_process(path, [this] {
    return !control::install(control::fabric()) && create("theirs") == 0;  // the file, as a whole
  }));
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_EQ(0, create("ours"));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second") && holds("theirs") && holds("ours"));
}

TEST_F(StateJournal, WhatAnotherProcessMadeCannotBeMadeAgain) {
  ASSERT_TRUE(in_another_process(path, [this] { return create("theirs") == 0; }));
  EXPECT_FALSE(holds("theirs"));
  const int32_t refused = create("theirs");
  EXPECT_NE(0, refused);
  EXPECT_NE(kStateNotSaved, refused);
  EXPECT_TRUE(holds("theirs"));
}

TEST_F(StateJournal, AJournalLeftBehindByARemovedFileIsNobodysChange) {
  EXPECT_EQ(0, create("second"));
  std::filesystem::remove(path);
  ASSERT_EQ(std::nullopt, control::install_generated(kLargeFabric));
  ASSERT_EQ(std::nullopt, control::keep_state_in(path));
  EXPECT_EQ(0, create("third"));
  EXPECT_FALSE(std::filesystem::exists(journal));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("third"));
  EXPECT_FALSE(holds("second"));
}

// Makes changes, now and then as a process that has just started. Ends with 0 when all of them
// were acknowledged.
[[noreturn]] void change_often(const std::string& path, int client, int32_t q) {
  uint8_t context[132] = {};
  for (int i = 0; i < 12; ++i) {
    if (i % 4 == 0) {
      control::reset();
      if (control::keep_state_in(path)) _exit(1);
    }
    const std::string name = "p" + std::to_string(client) + "_" + std::to_string(i);
    if (zs_cmi_create_zoning_object(q, 1, 1, 0, -1, name.c_str(), "", "", context) != 0) _exit(2);
  }
  _exit(0);
}

TEST_F(StateJournal, EveryChangeOfFourProcessesIsThere) {
  for (const char* start : {"switches=2,vsans=1", kLargeFabric}) {
    SCOPED_TRACE(start);
    std::filesystem::remove(path);
    std::filesystem::remove(journal);
    ASSERT_EQ(std::nullopt, control::install_generated(start));
    ASSERT_EQ(std::nullopt, control::save(path));
    std::vector<pid_t> children;
    for (int client = 0; client < 4; ++client) {
      const pid_t child = fork();
      if (child == 0) change_often(path, client, q);
      children.push_back(child);
    }
    for (const pid_t child : children) {
      int status = 0;
      ASSERT_EQ(child, waitpid(child, &status, 0));
      EXPECT_EQ(0, status);
    }
    ASSERT_EQ(std::nullopt, reload());
    for (int client = 0; client < 4; ++client) {
      for (int i = 0; i < 12; ++i) {
        const std::string name = "p" + std::to_string(client) + "_" + std::to_string(i);
        EXPECT_TRUE(holds(name)) << name;
      }
    }
  }
}

TEST_F(StateJournal, TheJournalStandsBesideTheFileThatALinkPointsTo) {
  std::filesystem::rename(path, folder + "/real.json");
  std::filesystem::create_symlink("real.json", path);
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(0, create("second"));
  EXPECT_TRUE(std::filesystem::exists(folder + "/real.json.journal"));
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_TRUE(holds("second"));
}

TEST_F(StateJournal, WhatEightClientsDoAtOnceIsReloaded) {
  std::atomic<int> failed = 0;
  std::vector<std::thread> clients;
  for (int client = 0; client < 8; ++client) {
    clients.emplace_back([&failed, client] {
      const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
      const int32_t queue = mts_bind(1, -1, &opts, "client");
      uint8_t zeros[132] = {};
      for (int i = 0; i < 200; ++i) {
        const std::string name = "c" + std::to_string(client) + "_" + std::to_string(i);
        if (zs_cmi_create_zoning_object(queue, 1, 1, 0, -1, name.c_str(), "", "", zeros) != 0) {
          ++failed;
        }
      }
      mts_unbind(queue, 0);
    });
  }
  for (std::thread& client : clients)
    client.join();
  EXPECT_EQ(0, failed);
  const auto kept = control::fabric();
  ASSERT_EQ(std::nullopt, reload());
  EXPECT_EQ(kept, control::fabric());
  EXPECT_EQ(1200U + 1 + 1600, kept.vsans.at(0).zoning->full->zones().size());
}

// Changes until it is killed, and tells each one that was acknowledged.
[[noreturn]] void change_and_tell(int out, int32_t q, unsigned seed) {
  uint8_t context[132] = {};
  std::minstd_rand random(seed);
  for (unsigned i = 0;; ++i) {
    const std::string name = "k" + std::to_string(i) + std::string(random() % 40, 'x');
    if (zs_cmi_create_zoning_object(q, 1, 1, 0, -1, name.c_str(), "", "", context) != 0) _exit(1);
    if (i % 7 == 0)
      zs_cmi_add_zone_to_zone_set(q, 1, 1, "zoneset-1", name.c_str(), "", "", context);
    if (i % 7 == 1) zs_cmi_activate_zone_set(q, 1, 1, "zoneset-1", "", "", context);
    const std::string line = name + "\n";
    if (write(out, line.data(), line.size()) < 0) _exit(1);
  }
}

// SWITCH_SIM_KILLS gives another number of runs.
TEST_F(StateJournal, EveryAcknowledgedChangeSurvivesAKill) {
  const char* given = getenv("SWITCH_SIM_KILLS");
  const unsigned runs = given != nullptr ? static_cast<unsigned>(atoi(given)) : 20;
  for (unsigned seed = 1; seed <= runs; ++seed) {
    std::filesystem::remove(path);
    std::filesystem::remove(journal);
    // With few zones the file is small, and written anew for every change, until it is large.
    ASSERT_EQ(std::nullopt, control::install_generated("switches=2,vsans=1,zones=" +
                                                       std::to_string(seed % 2 != 0 ? 1200 : 560)));
    ASSERT_EQ(std::nullopt, control::keep_state_in(path));
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    const pid_t child = fork();
    if (child == 0) {
      close(ends[0]);
      change_and_tell(ends[1], q, seed);
    }
    close(ends[1]);
    std::string told;
    char block[4096];
    const size_t enough = 20 + seed * 37 % 1500;
    ssize_t count = 0;
    while (told.size() < enough && (count = read(ends[0], block, sizeof block)) > 0)
      told.append(block, static_cast<size_t>(count));
    kill(child, SIGKILL);
    while ((count = read(ends[0], block, sizeof block)) > 0)
      told.append(block, static_cast<size_t>(count));
    close(ends[0]);
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    ASSERT_TRUE(WIFSIGNALED(status)) << seed;

    ASSERT_EQ(std::nullopt, reload()) << seed;
    const auto fabric = control::fabric();
    const auto& zoning = *fabric.vsans.at(0).zoning;
    std::istringstream names(told);
    unsigned acknowledged = 0;
    for (std::string name; std::getline(names, name); ++acknowledged) {
      ASSERT_NE(0U, zoning.full->id_of(ZoningKind::zone, name)) << seed << " " << name;
      const std::string digits = name.substr(1, name.find('x') - 1);
      if (std::stoul(digits) % 7 != 1) continue;
      // Its activation made active what stood in the zone set before.
      const std::string before = "k" + std::to_string(std::stoul(digits) - 1);
      bool active = false;
      for (uint32_t id = 0; (id = zoning.active->zones().next_id(id)) != 0;) {
        const std::string& other = zoning.active->zones().find(id)->name;
        active = active || other == before || other.starts_with(before + "x");
      }
      EXPECT_TRUE(active) << seed << " " << before;
    }
    EXPECT_GT(acknowledged, 0U);
  }
}

}  // namespace
}  // namespace simulator_test
