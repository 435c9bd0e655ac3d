#include "simulator/fabric/generator.h"

#include <fstream>
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
