// Interfaces that are taken out of the switch while somebody walks over them: between one get-next
// and the following one.
#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "tests/adaptors/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

constexpr uint32_t kFcThird = 0x01010003;         // fc1/3
constexpr int32_t kNoSuchInterface = 0x40350004;  // what a port manager may say of a removed one
constexpr uint32_t kStarts[] = {0x01000000, 0x02000000, 0x04000000,
                                0x05000000, 0x0a000000, 0x0b000000};

class RemovedPorts : public testing::Test {
 protected:
  struct Freed {
    void operator()(void* block) const { std::free(block); }
  };
  using Info = std::unique_ptr<pm_port_info_, Freed>;

  static Info next(uint32_t after) { return Info(pm_cim_find_interface(0, after, kQueue)); }

  // The interfaces of a walk from the one behind `after` to the end.
  static std::vector<uint32_t> walk(uint32_t after = 0) {
    std::vector<uint32_t> visited;
    for (Info info = next(after); info != nullptr; info = next(after))
      visited.push_back(after = info->if_index);
    return visited;
  }
  // The types behind that of FC ports have no interfaces.
  static void expect_other_types_empty(Script& script) {
    for (const uint32_t start : kStarts)
      if (start != kStarts[0]) script.expect(get_next_port(start)).fails(5);
  }

  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(RemovedPorts, OneThatIsRemovedBeforeItsTurnIsNotVisited) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(port_record(kFc));
  script.expect(get_next_port(kFc)).gives(port_record(kFcThird));  // no fc1/2 any more
  script.expect(get_next_port(kFcThird)).fails(5);
  expect_other_types_empty(script);
  EXPECT_EQ(walk(), (std::vector<uint32_t>{kFc, kFcThird}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(RemovedPorts, TheWalkGoesOnBehindOneThatIsRemovedAfterItsTurn) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(port_record(kFc));
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  // fc1/2 is taken out here. The port manager tells the next one behind its place.
  script.expect(get_next_port(kFcNext)).gives(port_record(kFcThird));
  script.expect(get_next_port(kFcThird)).fails(5);
  expect_other_types_empty(script);
  EXPECT_EQ(walk(), (std::vector<uint32_t>{kFc, kFcNext, kFcThird}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(RemovedPorts, APortManagerThatRefusesARemovedOneEndsTheWalkOverItsTypeOnly) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(port_record(kFc));
  // fc1/1 is taken out here; the interfaces of the other types are visited all the same.
  script.expect(get_next_port(kFc)).fails(kNoSuchInterface);
  script.expect(get_next_port(kStarts[1])).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 00 00 01"));
  script.expect(get_next_port(kEthernet)).fails(5);
  script.expect(get_next_port(kStarts[2])).gives(port_record(kChannel));
  script.expect(get_next_port(kChannel)).gives_nothing();
  for (size_t type = 3; type < std::size(kStarts); ++type)
    script.expect(get_next_port(kStarts[type])).fails(5);
  EXPECT_EQ(walk(), (std::vector<uint32_t>{kFc, kEthernet, kChannel}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(RemovedPorts, TheLastOneOfTheSwitchEndsTheWalkAsIfItWereThere) {
  for (const bool refused : {true, false}) {
    Script script;
    auto line = script.expect(get_next_port(kIscsi));
    if (refused) {
      line.fails(kNoSuchInterface);
    } else {
      line.gives_nothing();
    }
    pm_port_info_ before;
    pm_port_info_* out = &before;
    EXPECT_EQ(pm_cim_get_port_info(&out, 0, kIscsi, kQueue), -1);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(out_.out(), "");
}

TEST_F(RemovedPorts, OneThatIsRemovedBeforeItsAddressIsAskedIsVisitedWithoutIt) {
  Script script;
  script.expect(get_next_port(kEthernet)).gives(port_record(kEthernet + 1));
  // gigabitethernet2/4 is taken out here.
  script.expect(get_interface_address(kEthernet + 1, 2)).fails(kNoSuchInterface);
  const Info info = next(kEthernet);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(uint32_t{info->if_index}, 0x02020004u);
  EXPECT_EQ(bytes_of(info->address), hex("00 7f 0e ff"));
}

TEST_F(RemovedPorts, AllOfThemLeaveNothingToVisit) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(port_record(kFc));
  // The whole line card is taken out here, and nothing else is there.
  script.expect(get_next_port(kFc)).fails(5);
  expect_other_types_empty(script);
  EXPECT_EQ(walk(), (std::vector<uint32_t>{kFc}));
}

TEST_F(RemovedPorts, AreNotFoundByTheirIndexAfterTheWalk) {
  Script script;
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  // fc1/2 is taken out here: refused, or told by the status of its record.
  script.expect(get_port(kFcNext)).fails(kNoSuchInterface);
  script.expect(get_port(kFcNext)).gives(port_record(kFcNext).host32(4, 1));
  const Info info = next(kFc);
  ASSERT_NE(info, nullptr);
  for (int round = 0; round < 2; ++round)
    EXPECT_EQ(pm_cim_find_interface(1, info->if_index, kQueue), nullptr);
}

}  // namespace
