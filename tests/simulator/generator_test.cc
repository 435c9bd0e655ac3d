#include "simulator/fabric/generator.h"

#include <fstream>
#include <set>
#include <sstream>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

using switch_sim::Fabric;
using switch_sim::FabricError;
using switch_sim::generate_fabric;

Fabric fabric_of(const char* description) {
  auto made = generate_fabric(description);
  if (const auto* error = std::get_if<FabricError>(&made)) {
    ADD_FAILURE() << error->message;
    return {};
  }
  return std::get<Fabric>(std::move(made));
}

std::string error_of(const char* description) {
  const auto made = generate_fabric(description);
  const auto* error = std::get_if<FabricError>(&made);
  return error != nullptr ? error->message : "no error";
}

TEST(Generator, TheSameNumbersGiveTheSameBytes) {
  const char* description = "switches=8,ports=48,vsans=8,devices=200,seed=7";
  EXPECT_EQ(switch_sim::write_fabric(fabric_of(description)),
            switch_sim::write_fabric(fabric_of(description)));
}

// The file was derived from the rules of the generator without this code: another machine, compiler
// or day gives the same bytes.
TEST(Generator, TheBytesOfOneDescriptionNeverChange) {
  std::stringstream expected;
  expected << std::ifstream(std::string(CIM_SOURCE_DIR) +
                            "/tests/simulator/data/generated_fabric.json")
                  .rdbuf();
  EXPECT_EQ(expected.str(), switch_sim::write_fabric(fabric_of("switches=4,vsans=5,seed=7")));
}

TEST(Generator, AnotherSeedGivesAnotherFabric) {
  EXPECT_NE(fabric_of("seed=1"), fabric_of("seed=2"));
}

TEST(Generator, TheSizesAreThoseAskedFor) {
  const Fabric fabric = fabric_of("switches=8,vsans=5");
  EXPECT_EQ(8U, fabric.switches.size());
  EXPECT_EQ(5U, fabric.vsans.size());
}

TEST(Generator, WhatIsLeftOutHasItsUsualValue) {
  EXPECT_EQ(fabric_of("switches=3,ports=0,vsans=2,devices=0,seed=1"), fabric_of("seed=1"));
}

TEST(Generator, EveryGeneratedFabricKeepsTheRulesAndIsSorted) {
  for (int seed = 0; seed < 60; ++seed) {
    const std::string description =
        "switches=" + std::to_string(seed % 20 + 1) + ",vsans=40,seed=" + std::to_string(seed);
    const Fabric fabric = fabric_of(description.c_str());
    EXPECT_EQ(std::nullopt, switch_sim::problem_of(fabric)) << description;
    Fabric sorted = fabric;
    switch_sim::sort(sorted);
    EXPECT_EQ(sorted, fabric) << description;
    const auto read = switch_sim::parse_fabric(switch_sim::write_fabric(fabric), "written");
    EXPECT_EQ(fabric, std::get<Fabric>(read)) << description;
  }
}

TEST(Generator, VsanOneIsUpAndHoldsEverySwitch) {
  for (int seed = 0; seed < 50; ++seed) {
    const std::string description = "switches=9,vsans=3,seed=" + std::to_string(seed);
    const Fabric fabric = fabric_of(description.c_str());
    EXPECT_EQ(1U, fabric.vsans.at(0).number);
    EXPECT_EQ(switch_sim::VsanState::up, fabric.vsans.at(0).state);
    EXPECT_EQ(9U, fabric.vsans.at(0).domains.size());
  }
}

TEST(Generator, ALargeFabricHoldsSuspendedVsansAndVsansWithoutADomainManager) {
  const Fabric fabric = fabric_of("switches=4,vsans=400,seed=3");
  size_t suspended = 0, without_manager = 0;
  for (const auto& vsan : fabric.vsans) {
    if (vsan.state == switch_sim::VsanState::suspended) ++suspended;
    if (!switch_sim::find_domain(vsan, fabric.local_switch)->enabled) ++without_manager;
  }
  EXPECT_GT(suspended, 0U);
  EXPECT_GT(without_manager, 0U);
}

TEST(Generator, TheLargestFabricsAreMade) {
  EXPECT_EQ(239U, fabric_of("switches=239,vsans=1").vsans.at(0).domains.size());
  const Fabric many = fabric_of("switches=1,vsans=4094");
  EXPECT_EQ(4094U, many.vsans.size());
  EXPECT_EQ(4094U, many.vsans.back().number);
  EXPECT_EQ(0U, fabric_of("vsans=0").vsans.size());
}

TEST(Generator, EverySwitchHasThePortsAskedFor) {
  for (const uint64_t ports : {1U, 16U, 17U, 240U, 241U, 768U}) {
    const Fabric fabric = fabric_of(("switches=2,ports=" + std::to_string(ports)).c_str());
    for (const auto& element : fabric.switches) {
      uint64_t found = 0;
      for (const auto& module : element.modules)
        found += module.ports;
      EXPECT_EQ(ports, found);
      EXPECT_EQ(ports + 1, element.interfaces.size());  // and a management port
    }
  }
}

TEST(Generator, FabricsWithPortsKeepTheRulesAndAreReadBack) {
  for (int seed = 0; seed < 12; ++seed) {
    const std::string description =
        "switches=" + std::to_string(seed % 6 + 1) + ",ports=" + std::to_string(seed * 7 + 9) +
        ",vsans=4,devices=" + std::to_string(seed * 20) + ",seed=" + std::to_string(seed);
    const Fabric fabric = fabric_of(description.c_str());
    EXPECT_EQ(std::nullopt, switch_sim::problem_of(fabric)) << description;
    EXPECT_EQ(static_cast<size_t>(seed * 20), fabric.devices.size());
    const auto read = switch_sim::parse_fabric(switch_sim::write_fabric(fabric), "written");
    ASSERT_TRUE(std::holds_alternative<Fabric>(read)) << std::get<FabricError>(read).message;
    EXPECT_EQ(fabric, std::get<Fabric>(read)) << description;
  }
}

TEST(Generator, EverySwitchIsJoinedToTheOthers) {
  const Fabric fabric = fabric_of("switches=50,ports=48,vsans=1,seed=4");
  std::set<switch_sim::Wwn> joined;
  for (const auto& link : fabric.links) {
    EXPECT_TRUE(link.trunking);
    joined.insert(link.ends[0].switch_wwn);
    joined.insert(link.ends[1].switch_wwn);
  }
  EXPECT_EQ(50U, joined.size());
  EXPECT_GE(fabric.links.size(), 49U);
}

TEST(Generator, ManyDevicesShareLoops) {
  const Fabric fabric = fabric_of("switches=3,ports=32,vsans=2,devices=2000,seed=2");
  EXPECT_EQ(2000U, fabric.devices.size());
  EXPECT_EQ(switch_sim::DeviceKind::nl_port, fabric.devices.front().kind);
}

TEST(Generator, TheSeedIsThatOfTheCounters) {
  EXPECT_EQ(7U, fabric_of("ports=1,seed=7").counter_seed);
  EXPECT_EQ(INT64_MAX,
            static_cast<int64_t>(fabric_of("ports=1,seed=18446744073709551615").counter_seed));
}

TEST(Generator, DevicesWithoutRoomAreTold) {
  EXPECT_EQ("devices: 1 do not fit behind the free ports", error_of("devices=1"));
  EXPECT_EQ("no error", error_of("switches=1,ports=1,devices=126"));
  EXPECT_EQ("devices: 127 do not fit behind the free ports",
            error_of("switches=1,ports=1,devices=127"));
}

TEST(Generator, AWrongDescriptionIsTold) {
  EXPECT_EQ("expected a name, \"=\" and a number, found \"\"", error_of(""));
  EXPECT_EQ("expected a name, \"=\" and a number, found \"switches\"", error_of("switches"));
  EXPECT_EQ("expected a name, \"=\" and a number, found \"\"", error_of("seed=1,"));
  EXPECT_EQ("unknown key \"swiches\" (did you mean \"switches\"?)", error_of("swiches=8"));
  EXPECT_EQ("unknown key \"colour\"", error_of("seed=1,colour=3"));
  EXPECT_EQ("key \"seed\" is given twice", error_of("seed=1,seed=1"));
  EXPECT_EQ("switches: expected a whole number from 1 to 239, found \"0\"", error_of("switches=0"));
  EXPECT_EQ("switches: expected a whole number from 1 to 239, found \"240\"",
            error_of("switches=240"));
  EXPECT_EQ("vsans: expected a whole number from 0 to 4094, found \"4095\"",
            error_of("vsans=4095"));
  EXPECT_EQ("ports: expected a whole number from 0 to 768, found \"769\"", error_of("ports=769"));
  EXPECT_EQ("devices: expected a whole number from 0 to 100000, found \"-1\"",
            error_of("devices=-1"));
  EXPECT_EQ("seed: expected a whole number from 0 to 18446744073709551615, found \"7x\"",
            error_of("seed=7x"));
  EXPECT_EQ("seed: expected a whole number from 0 to 18446744073709551615, found \"\"",
            error_of("seed="));
}

class GeneratedFabric : public SimulatorTest {};

TEST_F(GeneratedFabric, IsInstalledAndAnswered) {
  ASSERT_EQ(std::nullopt, switch_sim::control::install_generated("switches=2,vsans=4094"));
  expect_reply(call(15, 125, 1, {}), Pattern(4).at(0, "00000ffe"));
  EXPECT_EQ("unknown key \"x\"", switch_sim::control::install_generated("x=1"));
}

}  // namespace
}  // namespace simulator_test
