#include <switch_platform/platform_manager.h>

#include "simulator/fabric/fabric_file.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fabric;

class PlatformManager : public SimulatorTest {
 protected:
  Result module(uint32_t operation, const char* entity) {
    return call(39, 1029, operation, Pattern(316).at(0, entity).bytes());
  }
  Result entity(uint32_t operation, const char* index) {
    return call(39, 1026, operation, Pattern(2780).at(0, index).bytes());
  }

  static void change(void (*edit)(Fabric&)) {
    auto fabric = control::fabric();
    edit(fabric);
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }

  // The first words of all rows of a table.
  std::string walk(uint32_t opcode) {
    std::string indexes;
    uint32_t last = 0;
    for (int row = 0; row < 1000; ++row) {
      char key[9];
      snprintf(key, sizeof key, "%08x", last);
      const Result result = opcode == 1029 ? module(2, key) : entity(2, key);
      if (result.status != 0) {
        EXPECT_EQ(kEndOfTable, result.status);
        return indexes;
      }
      last = static_cast<uint32_t>(result.reply.at(2) << 8 | result.reply.at(3));
      if (!indexes.empty()) indexes += ' ';
      indexes += std::to_string(last);
    }
    return indexes + " and no end";
  }
};

TEST_F(PlatformManager, ALineCardHasItsStatesPortsAndNumber) {
  expect_reply(module(1, "000000c9"), Pattern(316)
                                          .at(0, "000000c90000000100000002")
                                          .at(288, "00000010")
                                          .at(297, "6f66")
                                          .at(304, "00000001"));
  expect_reply(module(1, "000000ca"), Pattern(316)
                                          .at(0, "000000ca0000000100000002")
                                          .at(288, "00000004")
                                          .at(297, "6f69")
                                          .at(304, "00000002"));
}

TEST_F(PlatformManager, ASupervisorHasNoPorts) {
  expect_reply(module(1, "000000cd"),
               Pattern(316).at(0, "000000cd0000000100000002").at(297, "6f73").at(304, "00000005"));
}

TEST_F(PlatformManager, AModuleThatIsPoweredDownIsDisabled) {
  expect_reply(module(1, "000000cc"),
               Pattern(316).at(0, "000000cc0000000200000003").at(297, "6461").at(304, "00000004"));
}

TEST_F(PlatformManager, AFailedModuleIsEnabledAndFailed) {
  expect_reply(module(1, "000000d0"),
               Pattern(316).at(0, "000000d00000000100000007").at(297, "6678").at(304, "00000008"));
}

TEST_F(PlatformManager, AModuleThatStartsIsBooting) {
  change([](Fabric& fabric) {
    fabric.switches[0].modules[1].state = switch_sim::ModuleState::starting;
  });
  expect_reply(module(1, "000000ca"), Pattern(316)
                                          .at(0, "000000ca0000000100000005")
                                          .at(288, "00000004")
                                          .at(297, "7369")
                                          .at(304, "00000002"));
}

TEST_F(PlatformManager, TheModulesAreWalkedBySlot) {
  EXPECT_EQ("201 202 204 205 206 207 208", walk(1029));
}

TEST_F(PlatformManager, AModuleThatIsNotThereIsNotFoundAndTheNextOneIs) {
  expect_refused(module(1, "000000cb"), kNotFound);
  expect_refused(module(1, "00000000"), kNotFound);
  expect_refused(module(1, "ffffffff"), kNotFound);
  expect_refused(module(1, "00000065"), kNotFound);  // a slot is no module
  EXPECT_EQ(0xCC, module(2, "000000cb").reply.at(3));
  EXPECT_EQ(0xC9, module(2, "00000000").reply.at(3));
  expect_refused(module(2, "000000d0"), kEndOfTable);
  expect_refused(module(2, "ffffffff"), kEndOfTable);
}

TEST_F(PlatformManager, AnotherRequestForModulesIsRefused) {
  expect_refused(call(39, 1029, 1, Pattern(315).bytes()), kBadLength);
  expect_refused(call(39, 1029, 1, Pattern(317).bytes()), kBadLength);
  expect_refused(module(3, "000000c9"), kBadOperation);
  expect_refused(call(39, 1028, 1, {}), kUnknownOpcode);
}

TEST_F(PlatformManager, TheChassisHoldsEverything) {
  // 1.3.6.1.4.1.8.5 and the class, 3
  expect_reply(
      entity(1, "00000001"),
      Pattern(2780)
          .at(0, "00000001")
          .text(4, "QRX4400 chassis with 9 slots")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000003")
          .at(772, "000000000000000300000001")
          .text(788, "Chassis")
          .text(1808, "VX0951A02C")
          .text(2096, "QRX4400")
          .at(2428, "00000002"));
}

TEST_F(PlatformManager, AModuleSitsInItsSlot) {
  expect_reply(
      entity(1, "00000065"),
      Pattern(2780)
          .at(0, "00000065")
          .text(4, "Slot 1")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000005")
          .at(772, "000000010000000500000001")
          .text(788, "Slot 1")
          .at(2428, "00000002"));
  expect_reply(
      entity(1, "000000c9"),
      Pattern(2780)
          .at(0, "000000c9")
          .text(4, "16-port Fibre Channel Switching Module")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000009")
          .at(772, "000000650000000900000001")
          .text(788, "Module 1")
          .text(1553, "3.1(2a)")
          .text(1808, "VX0951A02C-M1")
          .text(2096, "QRX4400-FC16")
          .at(2428, "00000001"));
}

TEST_F(PlatformManager, AModuleThatDoesNotRunHasNoSoftware) {
  expect_reply(
      entity(1, "000000d0"),
      Pattern(2780)
          .at(0, "000000d0")
          .text(4, "Crossbar Module")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000009")
          .at(772, "0000006c0000000900000001")
          .text(788, "Module 8")
          .text(1808, "VX0951A02C-M8")
          .text(2096, "QRX4400-XBAR")
          .at(2428, "00000001"));
}

TEST_F(PlatformManager, PowerSuppliesFansAndSensorsAreEntities) {
  expect_reply(
      entity(1, "0000012e"),
      Pattern(2780)
          .at(0, "0000012e")
          .text(4, "Power supply 2")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000006")
          .at(772, "000000010000000600000002")
          .text(788, "Power supply 2")
          .text(1808, "VX0951A02C-PS2")
          .text(2096, "QRX4400-PS")
          .at(2428, "00000001"));
  expect_reply(
      entity(1, "00000191"),
      Pattern(2780)
          .at(0, "00000191")
          .text(4, "Fan 1")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000007")
          .at(772, "000000010000000700000001")
          .text(788, "Fan 1")
          .text(1808, "VX0951A02C-FAN1")
          .text(2096, "QRX4400-FAN")
          .at(2428, "00000001"));
  expect_reply(
      entity(1, "0000041c"),
      Pattern(2780)
          .at(0, "0000041c")
          .text(4, "Module 5 temperature sensor 2")
          .at(260, "000000010000000300000006000000010000000400000001000000080000000500000008")
          .at(772, "000000cd0000000800000002")
          .text(788, "Module 5 temperature sensor 2")
          .at(2428, "00000002"));
}

TEST_F(PlatformManager, TheEntitiesAreWalkedByIndex) {
  EXPECT_EQ(
      "1 101 102 103 104 105 106 107 108 109 201 202 204 205 206 207 208 301 302 401 402 "
      "1011 1012 1021 1022 1041 1042 1051 1052 1061 1062 1071 1072 1081 1082",
      walk(1026));
}

TEST_F(PlatformManager, AnEntityThatIsNotThereIsNotFoundAndTheNextOneIs) {
  expect_refused(entity(1, "00000000"), kNotFound);
  expect_refused(entity(1, "0000006e"), kNotFound);
  expect_refused(entity(1, "000000cb"), kNotFound);
  expect_refused(entity(1, "0000012f"), kNotFound);
  expect_refused(entity(1, "000003e8"), kNotFound);
  expect_refused(entity(1, "ffffffff"), kNotFound);
  EXPECT_EQ(0xC9, entity(2, "0000006d").reply.at(3));
  expect_refused(entity(2, "0000043a"), kEndOfTable);
  expect_refused(entity(2, "ffffffff"), kEndOfTable);
}

TEST_F(PlatformManager, AnotherRequestForEntitiesIsRefused) {
  expect_refused(call(39, 1026, 1, Pattern(2779).bytes()), kBadLength);
  expect_refused(call(39, 1026, 2, {}), kBadLength);
  expect_refused(entity(3, "00000001"), kBadOperation);
}

TEST_F(PlatformManager, AChassisWithoutAnObjectIdentifierOrPartsHasEmptyFields) {
  change([](Fabric& fabric) {
    fabric.switches[0].chassis = {};
    fabric.switches[0].system.object_id.clear();
  });
  EXPECT_EQ("1 101 102 103 104 105 106 107 108 201 202 204 205 206 207 208", walk(1026));
  expect_reply(entity(1, "00000001"), Pattern(2780)
                                          .at(0, "00000001")
                                          .text(4, "QRX4400 chassis with 8 slots")
                                          .at(772, "000000000000000300000001")
                                          .text(788, "Chassis")
                                          .text(2096, "QRX4400")
                                          .at(2428, "00000002"));
}

TEST_F(PlatformManager, TheLongestObjectIdentifierIsCutToItsField) {
  change([](Fabric& fabric) { fabric.switches[0].system.object_id.assign(256, 7); });
  const Result chassis = entity(1, "00000001");
  ASSERT_EQ(0, chassis.status);
  EXPECT_EQ(7, chassis.reply.at(260 + 4 * 126 + 3));
  EXPECT_EQ(3, chassis.reply.at(260 + 4 * 127 + 3));
  EXPECT_EQ(0, chassis.reply.at(775));
}

TEST_F(PlatformManager, ASwitchWithoutModulesIsAChassis) {
  ASSERT_EQ(std::nullopt, control::install_generated("switches=1"));
  EXPECT_EQ("", walk(1029));
  EXPECT_EQ("1", walk(1026));
}

TEST_F(PlatformManager, SlotsAreCountedFromZero) {
  uint32_t number = 77;
  EXPECT_EQ(0, pfm_slot_num_to_entity_index(q, &number, 0));
  EXPECT_EQ(201U, number);
  EXPECT_EQ(0, pfm_slot_num_to_entity_index(q, &number, 7));
  EXPECT_EQ(208U, number);
  EXPECT_EQ(0, pfm_entity_index_to_slot_num(q, 201, &number));
  EXPECT_EQ(0U, number);
  EXPECT_EQ(0, pfm_entity_index_to_slot_num(q, 208, &number));
  EXPECT_EQ(7U, number);
  EXPECT_EQ(0, pfm_entity_index_to_slot_num(q, 103, &number));
  EXPECT_EQ(2U, number);
}

TEST_F(PlatformManager, AnEmptySlotAndAnEntityWithoutSlotAreNotFound) {
  uint32_t number = 77;
  EXPECT_EQ(kNotFound, pfm_slot_num_to_entity_index(q, &number, 2));
  EXPECT_EQ(kNotFound, pfm_slot_num_to_entity_index(q, &number, 31));
  EXPECT_EQ(kNotFound, pfm_slot_num_to_entity_index(q, &number, 0xFFFFFFFF));
  for (const uint32_t entity : {0U, 1U, 110U, 203U, 301U, 1011U, 0xFFFFFFFFU})
    EXPECT_EQ(kNotFound, pfm_entity_index_to_slot_num(q, entity, &number)) << entity;
  EXPECT_EQ(77U, number);
}

TEST_F(PlatformManager, TranslationsNeedAQueueAndAPlaceForTheResult) {
  uint32_t number = 77;
  EXPECT_EQ(kBadValue, pfm_slot_num_to_entity_index(q, nullptr, 0));
  EXPECT_EQ(kBadValue, pfm_entity_index_to_slot_num(q, 201, nullptr));
  EXPECT_EQ(-1, pfm_slot_num_to_entity_index(q + 1, &number, 0));
  EXPECT_EQ(-1, pfm_entity_index_to_slot_num(q + 1, 201, &number));
  EXPECT_EQ(77U, number);
}

TEST_F(PlatformManager, TheSerialPromHoldsSerialAndPartNumber) {
  std::vector<uint8_t> prom(498, 0xEE);
  ASSERT_EQ(0, pfm_get_sprom(q, 0, 2, 0, prom.data(), 498));
  EXPECT_EQ(Pattern(498).text(14, "QRX4400").text(54, "VX0951A02C").text(74, "68-1180-04").bytes(),
            prom);
}

TEST_F(PlatformManager, TheLongestNumbersKeepTheirTerminators) {
  change([](Fabric& fabric) {
    fabric.switches[0].chassis.serial_number = "1234567890123456789";
    fabric.switches[0].chassis.part_number = "abcdefghijklmnopqrs";
  });
  std::vector<uint8_t> prom(498);
  ASSERT_EQ(0, pfm_get_sprom(q, 0, 2, 0, prom.data(), 498));
  EXPECT_STREQ("1234567890123456789", reinterpret_cast<const char*>(&prom[54]));
  EXPECT_STREQ("abcdefghijklmnopqrs", reinterpret_cast<const char*>(&prom[74]));
}

TEST_F(PlatformManager, OnlyThePromOfTheChassisIsReadAndOnlyWhole) {
  std::vector<uint8_t> prom(499, 0xEE);
  const std::vector<uint8_t> untouched = prom;
  EXPECT_EQ(kNotFound, pfm_get_sprom(q, 1, 2, 0, prom.data(), 498));
  EXPECT_EQ(kNotFound, pfm_get_sprom(q, 0, 1, 0, prom.data(), 498));
  EXPECT_EQ(kNotFound, pfm_get_sprom(q, 0, 2, 1, prom.data(), 498));
  EXPECT_EQ(kBadLength, pfm_get_sprom(q, 0, 2, 0, prom.data(), 497));
  EXPECT_EQ(kBadLength, pfm_get_sprom(q, 0, 2, 0, prom.data(), 499));
  EXPECT_EQ(kBadLength, pfm_get_sprom(q, 0, 2, 0, nullptr, 498));
  EXPECT_EQ(-1, pfm_get_sprom(q + 1, 0, 2, 0, prom.data(), 498));
  EXPECT_EQ(untouched, prom);
}

TEST_F(PlatformManager, TheChassisIsCalledByItsModel) {
  EXPECT_STREQ("QRX4400", pdb_get_chassis_id_string());
  const char* before = pdb_get_chassis_id_string();
  change([](Fabric& fabric) { fabric.switches[0].chassis.model = "QRX9000"; });
  EXPECT_STREQ("QRX9000", pdb_get_chassis_id_string());
  EXPECT_STREQ("QRX4400", before);
}

// ---- the fabric file ----

std::string with_chassis(const std::string& chassis) {
  return R"({"version": 1, "local_switch": "a", "switches": [
{"name": "a", "wwn": "20:00:00:00:00:00:00:01", "modules": [{"slot": 3, "kind": "crossbar"}],
"chassis": )" +
         chassis + "}]}";
}

std::string problem_of_file(const std::string& chassis) {
  const auto read = switch_sim::parse_fabric(with_chassis(chassis), "f");
  const auto* error = std::get_if<switch_sim::FabricError>(&read);
  return error != nullptr ? error->message : "no problem";
}

TEST(ChassisFile, AChassisIsReadAndWrittenBack) {
  const auto read = switch_sim::parse_fabric(
      with_chassis(R"({"model": "m", "part_number": "p", "serial_number": "s", "slots": 4,
        "power_supplies": 1, "fans": 2, "sensors": 3})"),
      "f");
  ASSERT_TRUE(std::holds_alternative<Fabric>(read));
  const Fabric& fabric = std::get<Fabric>(read);
  EXPECT_EQ((switch_sim::Chassis{"m", "p", "s", 4, 1, 2, 3}), fabric.switches.at(0).chassis);
  const std::string written = switch_sim::write_fabric(fabric);
  EXPECT_NE(std::string::npos,
            written.find("\"chassis\": {\"model\": \"m\", \"part_number\": \"p\", "
                         "\"serial_number\": \"s\", \"slots\": 4, \"power_supplies\": 1, "
                         "\"fans\": 2, \"sensors\": 3}"));
  EXPECT_EQ(fabric, std::get<Fabric>(switch_sim::parse_fabric(written, "written")));
}

TEST(ChassisFile, WithoutAChassisItIsOfTheUsualModel) {
  const auto read = switch_sim::parse_fabric(with_chassis("{}"), "f");
  ASSERT_TRUE(std::holds_alternative<Fabric>(read));
  const auto& element = std::get<Fabric>(read).switches.at(0);
  EXPECT_EQ((switch_sim::Chassis{"QRX4400", "", "", 0, 0, 0, 0}), element.chassis);
  EXPECT_EQ(3U, switch_sim::slots_of(element));
  EXPECT_EQ(std::string::npos, switch_sim::write_fabric(std::get<Fabric>(read)).find("chassis"));
}

TEST(ChassisFile, EveryWrongValueIsToldWhereItStands) {
  EXPECT_EQ("f:3:12: expected a chassis", problem_of_file("1").substr(0, 26));
  EXPECT_EQ("f:3:13: unknown key \"slot\" (did you mean \"slots\"?)",
            problem_of_file(R"({"slot": 1})"));
  EXPECT_EQ("f:3:22: a model is UTF-8 of one line and 1 to 39 bytes",
            problem_of_file(R"({"model": ""})"));
  EXPECT_EQ("f:3:28: a part number is UTF-8 of one line and at most 19 bytes",
            problem_of_file(R"({"part_number": "12345678901234567890"})"));
  EXPECT_EQ("f:3:30: a serial number is UTF-8 of one line and at most 19 bytes",
            problem_of_file(R"({"serial_number": "a\nb"})"));
  EXPECT_EQ("f:3:22: a module is in a slot that the chassis does not have",
            problem_of_file(R"({"slots": 2})"));
  EXPECT_EQ("f:3:22: expected a whole number from 1 to 31", problem_of_file(R"({"slots": 32})"));
  EXPECT_EQ("f:3:31: expected a whole number from 0 to 16",
            problem_of_file(R"({"power_supplies": 17})"));
  EXPECT_EQ("f:3:21: expected a whole number from 0 to 16", problem_of_file(R"({"fans": -1})"));
  EXPECT_EQ("f:3:24: expected a whole number from 0 to 8", problem_of_file(R"({"sensors": 9})"));
}

TEST(ChassisFile, AModelThatBreaksTheRulesIsNotInstalled) {
  const auto problem_after = [](void (*edit)(switch_sim::Chassis&)) {
    Fabric fabric = switch_sim::default_fabric();
    edit(fabric.switches[0].chassis);
    return switch_sim::problem_of(fabric).value_or("no problem");
  };
  const std::string where = "switch 20:00:00:0d:ec:0a:1b:2c, chassis: ";
  EXPECT_EQ(where + "a chassis has at most 31 slots",
            problem_after([](auto& chassis) { chassis.slots = 32; }));
  EXPECT_EQ(where + "a chassis has at most 16 power supplies",
            problem_after([](auto& chassis) { chassis.power_supplies = 17; }));
  EXPECT_EQ(where + "a chassis has at most 16 fans",
            problem_after([](auto& chassis) { chassis.fans = 17; }));
  EXPECT_EQ(where + "a module has at most 8 sensors",
            problem_after([](auto& chassis) { chassis.sensors = 9; }));
  EXPECT_EQ(where + "a model is UTF-8 of one line and 1 to 39 bytes",
            problem_after([](auto& chassis) { chassis.model.assign(40, 'm'); }));
}

TEST(ChassisFile, ModulesWithoutPortsHaveNone) {
  Fabric fabric = switch_sim::default_fabric();
  fabric.switches[0].modules[2].ports = 1;
  EXPECT_EQ("switch 20:00:00:0d:ec:0a:1b:2c, slot 4: such a module has no ports",
            switch_sim::problem_of(fabric));
}

TEST(ChassisFile, AGeneratedSwitchHasAFailedModuleAndOneThatIsPoweredDown) {
  for (const char* description : {"switches=2,ports=16", "switches=1,ports=768"}) {
    ASSERT_EQ(std::nullopt, control::install_generated(description));
    const Fabric fabric = control::fabric();
    for (const auto& element : fabric.switches) {
      size_t supervisors = 0, failed = 0, powered_down = 0;
      for (const auto& module : element.modules) {
        if (module.kind == switch_sim::ModuleKind::supervisor) ++supervisors;
        if (module.state == switch_sim::ModuleState::failed) ++failed;
        if (module.state == switch_sim::ModuleState::powered_down) ++powered_down;
      }
      EXPECT_EQ(2U, supervisors);
      EXPECT_EQ(1U, failed);
      EXPECT_EQ(1U, powered_down);
      EXPECT_EQ(2U, element.chassis.power_supplies);
    }
  }
  control::reset();
}

}  // namespace
}  // namespace simulator_test
