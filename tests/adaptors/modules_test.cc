#include <cim_utils/modules.h>
#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/double_system.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

constexpr int32_t kNoSuchRow = 0x40370005;

// A module's row as the platform manager writes it, every number its own value.
Bytes module_row(uint32_t entity) {
  return Record(316)
      .be32(0, entity)
      .be32(4, 2)
      .be32(8, 3)
      .be32(12, 0x01020304)
      .be32(28, 0x05060708)
      .put(32, hex("a1 a2 a3 a4"))
      .put(284, hex("b1 b2 b3 b4"))
      .be32(288, 48)
      .be32(292, 0x090a0b0c)
      .byte(296, 0xc1)
      .byte(297, 'o')
      .byte(298, 'L')
      .put(299, hex("d1 d2 d3 d4 d5"))
      .be32(304, 7)
      .be32(308, 0x0d0e0f10)
      .put(312, hex("e1 e2 e3 e4"));
}

Bytes entity_row(uint32_t entity) {
  return Record(2780)
      .be32(0, entity)
      .text(4, "Chassis of nine slots")
      .be32(260, 1)
      .be32(768, 0x01020304)
      .be32(772, 0x11121314)
      .be32(784, 0x15161718)
      .text(788, "chassis")
      .text(1553, "2.1(1a)")
      .text(1808, "FOX0712S007")
      .text(2096, "VX-9509")
      .text(2351, "rack four")
      .be32(2428, 0x191a1b1c)
      .put(2432, hex("f1 f2 f3 f4"))
      .byte(2779, 0x77);
}

Bytes module_request(uint32_t entity) {
  return Record(316).be32(0, entity);
}

Bytes entity_request(uint32_t entity) {
  return Record(2780).be32(0, entity);
}

class ModuleAdaptor : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  _vefcModuleEntry module_{};
  _entPhysicalEntry entity_{};
};

TEST_F(ModuleAdaptor, OperStatesAreOperationalStatuses) {
  const std::pair<uint32_t, uint16_t> rows[] = {{0, 6}, {1, 0}, {2, 2}, {3, 10},        {4, 2},
                                                {5, 8}, {6, 8}, {7, 6}, {0xffffffff, 6}};
  for (const auto& [state, status] : rows)
    EXPECT_EQ(pfm_cim_convert_module_oper_state(state), status) << state;
}

TEST_F(ModuleAdaptor, AdminStatusesAreRequestedAndEnabledStatesByOneRule) {
  const std::pair<uint32_t, uint16_t> rows[] = {{0, 5}, {1, 2}, {2, 3},         {3, 4},
                                                {4, 6}, {5, 5}, {0xffffffff, 5}};
  for (const auto& [status, state] : rows) {
    EXPECT_EQ(pfm_cim_convert_module_requested_status(status), state) << status;
    EXPECT_EQ(pfm_cim_convert_module_enable_state(status), state) << status;
  }
}

TEST_F(ModuleAdaptor, ASlotsEntityIsAskedFor) {
  Script script;
  script.expect(entity_of_slot(3)).gives(25);
  EXPECT_EQ(pfm_cim_get_entityId_from_slotNumber(kQueue, 3), 25u);
  EXPECT_EQ(
      out_.out(),
      "pfm_cim_get_entityId_from_slotNumber(): slotNumber is 3\n"
      "pfm_cim_get_entityId_from_slotNumber(): errres is 0 slot numberis 3 entityId is 25 \n");
}

TEST_F(ModuleAdaptor, ASlotWithoutAnEntityIsMinusOne) {
  Script script;
  script.expect(entity_of_slot(9)).fails(-1);
  EXPECT_EQ(pfm_cim_get_entityId_from_slotNumber(kQueue, 9), 0xffffffffu);
  EXPECT_EQ(out_.out(),
            "pfm_cim_get_entityId_from_slotNumber(): slotNumber is 9\n"
            "pfm_cim_get_entityId_from_slotNumber(): errres is 4294967295 slot numberis 9 entityId "
            "is 0 \n");
}

TEST_F(ModuleAdaptor, AnEntitysSlotIsAskedForAndTheResultPassedOn) {
  Script script;
  script.expect(slot_of_entity(25)).gives(3);
  script.expect(slot_of_entity(26)).fails(kNoSuchRow);
  uint32_t slot = 0;
  EXPECT_EQ(pfm_cim_entity_index_to_slot_num(kQueue, 25, &slot), 0);
  EXPECT_EQ(slot, 3u);
  EXPECT_EQ(pfm_cim_entity_index_to_slot_num(kQueue, 26, &slot), kNoSuchRow);
  EXPECT_EQ(slot, 3u);
  EXPECT_EQ(pfm_cim_entity_index_to_slot_num(kQueue, 26, nullptr), -1);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(ModuleAdaptor, AModulesRowComesInHostOrder) {
  Script script;
  script.expect(get(1029).sap(39).sends(module_request(25))).replies(module_row(25));
  ASSERT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 25, 1, &module_), 0);
  EXPECT_EQ(module_.entity_index, 25u);
  EXPECT_EQ(module_.admin_status, 2u);
  EXPECT_EQ(module_.oper_status, 3u);
  EXPECT_EQ(module_.words_12[0], 0x01020304u);
  EXPECT_EQ(module_.words_12[4], 0x05060708u);
  EXPECT_EQ(Bytes(module_.raw_32, module_.raw_32 + 4), hex("a1 a2 a3 a4"));
  EXPECT_EQ(Bytes(module_.raw_32 + 252, module_.raw_32 + 256), hex("b1 b2 b3 b4"));
  EXPECT_EQ(module_.num_ports, 48u);
  EXPECT_EQ(module_.word_292, 0x090a0b0cu);
  EXPECT_EQ(module_.raw_296, 0xc1);
  EXPECT_EQ(module_.module_state, 'o');
  EXPECT_EQ(module_.module_type, 'L');
  EXPECT_EQ(bytes_of(module_.raw_299), hex("d1 d2 d3 d4 d5"));
  EXPECT_EQ(module_.module_number, 7u);
  EXPECT_EQ(module_.word_308, 0x0d0e0f10u);
  EXPECT_EQ(bytes_of(module_.raw_312), hex("e1 e2 e3 e4"));
  EXPECT_EQ(out_.out(),
            "get_vefcModuleTable(): entityId is  25 exact is 1 \n"
            "get_vefcModuleTable(): ret_code is  0 \n");
}

TEST_F(ModuleAdaptor, AnEntitysRowComesInHostOrder) {
  Script script;
  script.expect(get(1026).sap(39).sends(entity_request(1))).replies(entity_row(1));
  ASSERT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 1, -5, &entity_), 0);
  EXPECT_EQ(entity_.entity_index, 1u);
  EXPECT_STREQ(entity_.description, "Chassis of nine slots");
  EXPECT_EQ(entity_.vendor_type[0], 1u);
  EXPECT_EQ(entity_.vendor_type[127], 0x01020304u);
  EXPECT_EQ(entity_.attributes[0], 0x11121314u);
  EXPECT_EQ(entity_.attributes[3], 0x15161718u);
  EXPECT_STREQ(entity_.name, "chassis");
  EXPECT_STREQ(entity_.software_rev, "2.1(1a)");
  EXPECT_STREQ(entity_.serial_num, "FOX0712S007");
  EXPECT_STREQ(entity_.model_name, "VX-9509");
  EXPECT_STREQ(entity_.alias, "rack four");
  EXPECT_EQ(entity_.word_2428, 0x191a1b1cu);
  EXPECT_EQ(Bytes(entity_.raw_2432, entity_.raw_2432 + 4), hex("f1 f2 f3 f4"));
  EXPECT_EQ(entity_.raw_2432[347], 0x77);
  EXPECT_EQ(out_.out(),
            "get_entPhysicalTable(): entityId is  1 exact is -5 \n"
            "get_entPhysicalTable(): ret_code is  0 \n");
}

TEST_F(ModuleAdaptor, TheRequestCarriesTheWholeRowInWireOrder) {
  Script script;
  script.expect(get(1029).sap(39).any_request().length(316)).replies(module_row(25));
  script.expect(get_next(1029).sap(39).sends(module_row(25))).replies(module_row(26));
  script.expect(get(1026).sap(39).any_request().length(2780)).replies(entity_row(1));
  script.expect(get_next(1026).sap(39).sends(entity_row(1))).replies(entity_row(2));
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 3, 1, &module_), 0);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 25, 0, &module_), 0);
  EXPECT_EQ(module_.entity_index, 26u);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 3, 1, &entity_), 0);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 1, 0, &entity_), 0);
  EXPECT_EQ(entity_.entity_index, 2u);
}

TEST_F(ModuleAdaptor, AWalkFeedsEachRowsIndexBackUntilTheCallFails) {
  Script script;
  script.expect(get_next(1029).sap(39).sends(module_request(0))).replies(module_row(22));
  script.expect(get_next(1029).sap(39).sends(module_row(22))).replies(module_row(25));
  script.expect(get_next(1029).sap(39).sends(module_row(25))).status(kNoSuchRow);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 0, 0, &module_), 0);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, module_.entity_index, 0, &module_), 0);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, module_.entity_index, 0, &module_), kNoSuchRow);
}

TEST_F(ModuleAdaptor, AFailedReadLeavesTheIndexAsItWasGivenInHostOrder) {
  Script script;
  script.expect(get(1029).sap(39).any_request().length(316)).status(kNoSuchRow);
  script.expect(get(1029).sap(39).any_request().length(316)).times_out();
  script.expect(get(1029).sap(39).any_request().length(316))
      .status_with_reply(kNoSuchRow, module_row(99));
  script.expect(get(1026).sap(39).any_request().length(2780)).status(kNoSuchRow);
  module_.num_ports = 48;
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 0x0102, 1, &module_), kNoSuchRow);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 0x0102, 1, &module_), -1);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 0x0102, 1, &module_), kNoSuchRow);
  EXPECT_EQ(module_.entity_index, 0x0102u);
  EXPECT_EQ(module_.num_ports, 48u);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 0x0304, 1, &entity_), kNoSuchRow);
  EXPECT_EQ(entity_.entity_index, 0x0304u);
  EXPECT_NE(out_.out().find("get_vefcModuleTable(): ret_code is  1077346309 \n"),
            std::string::npos);
  EXPECT_NE(out_.out().find("get_vefcModuleTable(): ret_code is  4294967295 \n"),
            std::string::npos);
}

TEST_F(ModuleAdaptor, SuccessWithoutAReplyIsSuccessAndLeavesTheRow) {
  Script script;
  script.expect(get(1029).sap(39).any_request().length(316)).ok_without_reply();
  module_.num_ports = 48;
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 25, 1, &module_), 0);
  EXPECT_EQ(module_.entity_index, 25u);
  EXPECT_EQ(module_.num_ports, 48u);
}

TEST_F(ModuleAdaptor, AnEntitysRowMayNotComeOrComeLateOrRefused) {
  Script script;
  script.expect(get(1026).sap(39).any_request().length(2780)).ok_without_reply();
  script.expect(get(1026).sap(39).any_request().length(2780)).times_out();
  script.expect(get_next(1026).sap(39).any_request().length(2780))
      .status_with_reply(kNoSuchRow, entity_row(99));
  entity_.word_2428 = 0x01020304;
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 0x0102, 1, &entity_), 0);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 0x0102, 1, &entity_), -1);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 0x0102, 0, &entity_), kNoSuchRow);
  EXPECT_EQ(entity_.entity_index, 0x0102u);
  EXPECT_EQ(entity_.word_2428, 0x01020304u);
  EXPECT_NE(out_.out().find("get_entPhysicalTable(): ret_code is  1077346309 \n"),
            std::string::npos);
}

TEST_F(ModuleAdaptor, OfAnEntitysReplyWithoutItsLastByteTheRestIsTaken) {
  Script script;
  script.expect(get(1026).sap(39).any_request().length(2780)).replies(entity_row(1)).cut_to(2779);
  script.expect(get(1029).sap(39).any_request().length(316)).replies(module_row(25)).cut_to(315);
  entity_.raw_2432[347] = 0x11;
  module_.raw_312[3] = 0x22;
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 1, 1, &entity_), 0);
  EXPECT_EQ(entity_.word_2428, 0x191a1b1cu);
  EXPECT_EQ(entity_.raw_2432[347], 0x11);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 1, 1, &module_), 0);
  EXPECT_EQ(bytes_of(module_.raw_312), hex("e1 e2 e3 22"));
}

TEST_F(ModuleAdaptor, OfAReplyThatIsShortOrLongAsMuchIsTakenAsTheRowHolds) {
  Script script;
  script.expect(get(1029).sap(39).any_request().length(316)).replies(module_row(25)).cut_to(11);
  script.expect(get(1029).sap(39).any_request().length(316))
      .replies(Record(324).put(0, module_row(26)).be32(316, 0xffffffff));
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 1, 1, &module_), 0);
  EXPECT_EQ(module_.entity_index, 25u);
  EXPECT_EQ(module_.admin_status, 2u);
  EXPECT_EQ(module_.oper_status, 0u);  // its last byte, the 3, did not come
  EXPECT_EQ(module_.num_ports, 0u);
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 1, 1, &module_), 0);
  EXPECT_EQ(module_.entity_index, 26u);
  EXPECT_EQ(bytes_of(module_.raw_312), hex("e1 e2 e3 e4"));
}

TEST_F(ModuleAdaptor, ANullRowIsRefusedWithoutAnExchange) {
  Script script;
  EXPECT_EQ(pfm_cim_get_vefcModuleTable(kQueue, 1, 1, nullptr), -1);
  EXPECT_EQ(pfm_cim_get_entPhysicalTable(kQueue, 1, 1, nullptr), -1);
  print_module_info(nullptr);
  print_entity_info(nullptr);
  EXPECT_EQ(script.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(ModuleAdaptor, AnyReplyOfAnyLengthIsTaken) {
  sweep_replies(316, [&] { pfm_cim_get_vefcModuleTable(kQueue, 1, 1, &module_); });
}

// Of every content, ending where fields begin and within them.
TEST_F(ModuleAdaptor, AnEntitysReplyThatEndsAnywhereInAFieldIsTaken) {
  const size_t ends[] = {0, 1, 3, 4, 259, 260, 262, 771, 772, 788, 1552, 1807, 2095, 2427, 2430};
  size_t length = 0;
  unsigned number = 0;
  Responder responder([&](const Request&) { return Response::with(pattern(number, length)); });
  for (const size_t end : ends) {
    for (number = 0; number < kPatterns; ++number) {
      length = end;
      pfm_cim_get_entPhysicalTable(kQueue, 1, 1, &entity_);
      print_entity_info(&entity_);
    }
  }
  EXPECT_EQ(responder.calls(), std::size(ends) * kPatterns);
}

TEST_F(ModuleAdaptor, AModuleIsPrinted) {
  module_.entity_index = 25;
  module_.admin_status = 1;
  module_.oper_status = 2;
  module_.num_ports = 48;
  module_.module_number = 7;
  module_.module_state = 'o';
  module_.module_type = 'L';
  print_module_info(&module_);
  EXPECT_EQ(out_.out(),
            "\n print_module_info(): Start \n"
            "entPhysicalIndex is  25 \n"
            "Admin Status is 1, oper status is  2\n"
            "NumPorts is 48, moduleNumber is 7 \n"
            "mod_state is o, mod_type is L \n"
            "\n print_module_info(): Exit \n");
}

TEST_F(ModuleAdaptor, AnEntityIsPrinted) {
  std::strcpy(entity_.description, "Chassis of nine slots");
  std::strcpy(entity_.name, "chassis");
  std::strcpy(entity_.serial_num, "FOX0712S007");
  std::strcpy(entity_.alias, "rack four");
  std::strcpy(entity_.model_name, "VX-9509");
  std::strcpy(entity_.software_rev, "2.1(1a)");
  print_entity_info(&entity_);
  EXPECT_EQ(out_.out(),
            "\n print_entity_info(): Start \n"
            "entPhysicalDescr is  Chassis of nine slots \n"
            "entPhysicalName is  chassis \n"
            "entPhysicalSerialNum is  FOX0712S007 \n"
            "entPhysicalAlias is  rack four \n"
            "entPhysicalModelName is  VX-9509 \n"
            "entPhysicalSoftwareRev is  2.1(1a) \n"
            "\n print_entity_info(): Exit \n");
}

TEST_F(ModuleAdaptor, ATextThatFillsItsFieldEndsWithIt) {
  std::memset(entity_.alias, 'a', sizeof entity_.alias);
  entity_.word_2428 = 0x62626262;
  print_entity_info(&entity_);
  EXPECT_NE(out_.out().find("entPhysicalAlias is  " + std::string(77, 'a') + " \n"),
            std::string::npos);
}

}  // namespace
