#include "simulator/fabric/fabric.h"

#include <functional>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

using switch_sim::Fabric;

TEST(FabricModel, TheDefaultFabricKeepsTheRules) {
  EXPECT_EQ(std::nullopt, switch_sim::problem_of(switch_sim::default_fabric()));
}

TEST(FabricModel, TheDefaultFabricIsSorted) {
  Fabric sorted = switch_sim::default_fabric();
  switch_sim::sort(sorted);
  EXPECT_EQ(switch_sim::default_fabric(), sorted);
}

TEST(FabricModel, ACopyIsEqualUntilItIsChanged) {
  Fabric copy = switch_sim::default_fabric();
  EXPECT_EQ(switch_sim::default_fabric(), copy);
  copy.vsans[1].domains[2].configured_priority = 3;
  EXPECT_NE(switch_sim::default_fabric(), copy);
}

TEST(FabricModel, AVsanWwnCarriesTheVsanAndTheNextLastByte) {
  const switch_sim::Wwn wwn = {{0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C}};
  EXPECT_EQ("20:01:00:0d:ec:0a:1b:2d", to_text(vsan_wwn(wwn, 1)));
  EXPECT_EQ("2f:fe:00:0d:ec:0a:1b:2d", to_text(vsan_wwn(wwn, 4094)));
  const switch_sim::Wwn wrapping = {{0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0xFF}};
  EXPECT_EQ("20:01:00:0d:ec:0a:1b:00", to_text(vsan_wwn(wrapping, 1)));
}

TEST(FabricModel, SortingPutsEveryListInItsOrder) {
  Fabric fabric = switch_sim::default_fabric();
  std::swap(fabric.switches[0], fabric.switches[2]);
  std::swap(fabric.vsans[0], fabric.vsans[1]);
  std::swap(fabric.vsans[0].domains[0], fabric.vsans[0].domains[1]);
  switch_sim::sort(fabric);
  EXPECT_EQ(switch_sim::default_fabric(), fabric);
}

struct BrokenRule {
  const char* problem;
  std::function<void(Fabric&)> breaks;
};

void PrintTo(const BrokenRule& rule, std::ostream* out) {
  *out << rule.problem;
}

class FabricRules : public testing::TestWithParam<BrokenRule> {};

TEST_P(FabricRules, ABrokenRuleIsTold) {
  Fabric fabric = switch_sim::default_fabric();
  GetParam().breaks(fabric);
  EXPECT_EQ(GetParam().problem, switch_sim::problem_of(fabric));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, FabricRules,
    testing::Values(
        BrokenRule{"the local switch is missing", [](Fabric& f) { f.local_switch = {}; }},
        BrokenRule{"the local switch is missing", [](Fabric& f) { f = {}; }},
        BrokenRule{"switch 20:01:00:0d:ec:0a:1b:5e: a switch WWN starts with 20:00, "
                   "another maker's with 10:00",
                   [](Fabric& f) { f.switches[1].wwn.bytes[1] = 1; }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: the name is empty",
                   [](Fabric& f) { f.switches[1].name = ""; }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: the name is too long",
                   [](Fabric& f) { f.switches[1].name = std::string(256, 'a'); }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: the name is not UTF-8 of one line",
                   [](Fabric& f) { f.switches[1].name = "a\tb"; }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: a system text is too long",
                   [](Fabric& f) { f.switches[1].system.contact = std::string(1024, 'a'); }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: a system text holds a zero byte",
                   [](Fabric& f) { f.switches[1].system.location = std::string(1, '\0'); }},
        BrokenRule{"switch 20:00:00:0d:ec:0a:1b:5e: the object identifier has too many components",
                   [](Fabric& f) { f.switches[1].system.object_id.resize(257); }},
        BrokenRule{"two switches with the WWN 20:00:00:0d:ec:0a:1b:2c",
                   [](Fabric& f) { f.switches[1].wwn = f.switches[0].wwn; }},
        BrokenRule{"VSAN 0: a VSAN number lies between 1 and 4094",
                   [](Fabric& f) { f.vsans[0].number = 0; }},
        BrokenRule{"VSAN 4095: a VSAN number lies between 1 and 4094",
                   [](Fabric& f) { f.vsans[1].number = 4095; }},
        BrokenRule{"two VSANs with the number 1", [](Fabric& f) { f.vsans[1].number = 1; }},
        BrokenRule{"VSAN 1: the name is empty", [](Fabric& f) { f.vsans[0].name = ""; }},
        BrokenRule{"VSAN 1: the name is too long",
                   [](Fabric& f) { f.vsans[0].name = std::string(128, 'a'); }},
        BrokenRule{"VSAN 1: the name is not UTF-8 of one line",
                   [](Fabric& f) { f.vsans[0].name = "\x7f"; }},
        BrokenRule{
            "VSAN 1: two domain managers of 20:00:00:0d:ec:0a:1b:2c",
            [](Fabric& f) { f.vsans[0].domains[1].switch_wwn = f.vsans[0].domains[0].switch_wwn; }},
        BrokenRule{"VSAN 1: domain ID 97 is used twice",
                   [](Fabric& f) { f.vsans[0].domains[1].domain_id = 97; }},
        BrokenRule{"VSAN 1: the principal switch has no enabled domain manager",
                   [](Fabric& f) {
                     f.vsans[0].domains[0].enabled = false;
                     f.vsans[0].domains[0].domain_id = 0;
                   }},
        BrokenRule{"VSAN 1, domain manager of 21:00:00:00:00:00:00:00: no such switch",
                   [](Fabric& f) { f.vsans[0].domains[0].switch_wwn = {{0x21}}; }}));

INSTANTIATE_TEST_SUITE_P(
    DomainRules, FabricRules,
    testing::Values(BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "an enabled domain manager has a domain ID, another has none",
                               [](Fabric& f) { f.vsans[0].domains[0].domain_id = 0; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "an enabled domain manager has a domain ID, another has none",
                               [](Fabric& f) { f.vsans[0].domains[0].enabled = false; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "a domain ID is at most 239",
                               [](Fabric& f) { f.vsans[0].domains[0].domain_id = 240; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "a domain ID is at most 239",
                               [](Fabric& f) { f.vsans[0].domains[0].configured_domain_id = 240; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "a priority lies between 1 and 254",
                               [](Fabric& f) { f.vsans[0].domains[0].configured_priority = 0; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "a priority lies between 1 and 254",
                               [](Fabric& f) { f.vsans[0].domains[0].configured_priority = 255; }},
                    BrokenRule{"VSAN 1, domain manager of 20:00:00:0d:ec:0a:1b:2c: "
                               "a static domain ID is not 0",
                               [](Fabric& f) {
                                 f.vsans[0].domains[0].configured_type =
                                     switch_sim::DomainType::static_id;
                                 f.vsans[0].domains[0].configured_domain_id = 0;
                               }}));

class FabricControl : public SimulatorTest {};

TEST_F(FabricControl, AnInstalledFabricIsAnsweredFrom) {
  auto fabric = switch_sim::control::fabric();
  fabric.local_switch = fabric.switches[2].wwn;
  ASSERT_EQ(std::nullopt, switch_sim::control::install(fabric));
  expect_reply(call(46, 1282, 1, {}), Pattern(8).at(0, "2000000dec0a1b90"));
  EXPECT_EQ(fabric, switch_sim::control::fabric());
}

TEST_F(FabricControl, ABrokenFabricIsNotInstalled) {
  EXPECT_EQ("the local switch is missing", switch_sim::control::install({}));
  EXPECT_EQ(switch_sim::default_fabric(), switch_sim::control::fabric());
}

TEST_F(FabricControl, ResetBringsBackTheDefaultFabric) {
  auto fabric = switch_sim::control::fabric();
  fabric.vsans.clear();
  ASSERT_EQ(std::nullopt, switch_sim::control::install(fabric));
  switch_sim::control::reset();
  EXPECT_EQ(switch_sim::default_fabric(), switch_sim::control::fabric());
}

TEST_F(FabricControl, AFabricWithoutVsansAnswersEmptyTables) {
  auto fabric = switch_sim::control::fabric();
  fabric.vsans.clear();
  ASSERT_EQ(std::nullopt, switch_sim::control::install(fabric));
  expect_reply(call(15, 125, 1, {}), Pattern(4));
  expect_refused(call(15, 149, 2, Pattern(2632).bytes()), kEndOfTable);
}

}  // namespace
}  // namespace simulator_test
