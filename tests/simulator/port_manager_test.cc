#include <switch_platform/port_manager.h>
#include <switch_platform/records_port_manager.h>

#include <memory>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fault;

constexpr int32_t kAttributeNotSupported = 0x40150001;
constexpr int32_t kPortInChannel = 0x40150002;

class PortManager : public SimulatorTest {
 protected:
  // Over the message seam: numbers are big-endian.
  Result record(uint32_t operation, const char* if_index) {
    return call(34, 0x11001, operation, Pattern(4).at(0, if_index).bytes());
  }

  // Through the client function; the record is freed with the test.
  const pm_port_info_* port(uint32_t if_index, int32_t operation = 1) {
    pm_port_info_* out = nullptr;
    const pm_if_key_ key = {if_index, if_index};
    status = pm_cmi_get_port_config(q, operation, 1, &key, &count, &out, 4);
    kept.emplace_back(out, free);
    return out;
  }

  // The status that the service puts into its reply.
  int32_t set(uint32_t if_index, int32_t attribute, const void* value, int32_t length) {
    void* reply = nullptr;
    const pm_if_key_ key = {if_index, if_index};
    status = pm_cmi_set_port_config(q, 0, 0, 1, &key, attribute, length, value, &count, &reply, 4);
    if (reply == nullptr) return -1;
    const auto* bytes = static_cast<const uint8_t*>(reply);
    const int32_t result = static_cast<int32_t>(static_cast<uint32_t>(bytes[4]) << 24 |
                                                bytes[5] << 16 | bytes[6] << 8 | bytes[7]);
    free(reply);
    return result;
  }
  int32_t set_word(uint32_t if_index, int32_t attribute, uint32_t value) {
    return set(if_index, attribute, &value, 4);
  }
  int32_t set_state(uint32_t if_index, uint8_t state) { return set(if_index, 1, &state, 1); }
  int32_t set_alias(uint32_t if_index, const std::string& alias) {
    char field[81] = {};
    memcpy(field, alias.data(), std::min<size_t>(81, alias.size()));
    return set(if_index, 6, field, 81);
  }

  int32_t status = 0;
  int32_t count = 77;
  std::vector<std::unique_ptr<pm_port_info_, decltype(&free)>> kept;
};

TEST_F(PortManager, AnFPortShowsItsDevice) {
  expect_reply(record(1, "01010001"), Pattern(204)
                                          .at(0, "01010001")
                                          .text(8, "host-a")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "0840")
                                          .at(104, "00000001")
                                          .at(127, "2041000dec0a1b2c")
                                          .at(135, "00610000")
                                          .at(143, "00000020")
                                          .at(147, "000007d0")
                                          .at(151, "01")
                                          .at(154, "01")
                                          .at(201, "01"));
}

TEST_F(PortManager, AnFlPortShowsItsLoop) {
  expect_reply(record(1, "01010007"), Pattern(204)
                                          .at(0, "01010007")
                                          .text(8, "disk shelf")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "0840")
                                          .at(104, "00000002")
                                          .at(127, "2047000dec0a1b2c")
                                          .at(135, "00150600")
                                          .at(143, "00000040")
                                          .at(147, "000007d0")
                                          .at(151, "01")
                                          .at(154, "01")
                                          .at(201, "01"));
}

TEST_F(PortManager, APortChannelHasTheSpeedOfItsMembersAndTrunks) {
  expect_reply(record(1, "04000001"), Pattern(204)
                                          .at(0, "04000001")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "0840")
                                          .at(104, "00000001")
                                          .at(127, "2402000dec0a1b2c")
                                          .at(143, "00000008")
                                          .at(147, "00000fa0")
                                          .at(151, "08")
                                          .at(154, "01"));
}

TEST_F(PortManager, AnEthernetPortHasAMacAddressAndNoVsan) {
  expect_reply(record(1, "02020001"), Pattern(204)
                                          .at(0, "02020001")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "05dc")
                                          .at(127, "0202010a1b2c0000")
                                          .at(143, "00000001")
                                          .at(147, "000003e8")
                                          .at(151, "01")
                                          .at(154, "01"));
}

TEST_F(PortManager, TheManagementPortHasTheAddressOfTheSwitchWwn) {
  expect_reply(record(1, "05000001"), Pattern(204)
                                          .at(0, "05000001")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "05dc")
                                          .at(127, "000dec0a1b2c0000")
                                          .at(143, "00000001")
                                          .at(147, "00000064")
                                          .at(151, "01")
                                          .at(154, "01"));
}

TEST_F(PortManager, AnFcipInterfaceHasAWwnAndItsTunnelSpeed) {
  expect_reply(record(1, "0a000001"), Pattern(204)
                                          .at(0, "0a000001")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "0840")
                                          .at(104, "00000002")
                                          .at(127, "2801000dec0a1b2c")
                                          .at(143, "00000004")
                                          .at(147, "000003e8")
                                          .at(151, "01")
                                          .at(154, "01"));
}

TEST_F(PortManager, AnIscsiInterfaceShowsItsInitiator) {
  expect_reply(record(1, "0b020001"), Pattern(204)
                                          .at(0, "0b020001")
                                          .at(89, "00000001")
                                          .at(98, "01")
                                          .at(102, "0840")
                                          .at(104, "00000001")
                                          .at(127, "2081000dec0a1b2c")
                                          .at(135, "00610800")
                                          .at(143, "00000001")
                                          .at(147, "000003e8")
                                          .at(151, "01")
                                          .at(154, "01"));
}

TEST_F(PortManager, TheClientGivesNumbersInHostOrder) {
  const pm_port_info_* info = port(0x01010002);
  ASSERT_NE(nullptr, info);
  EXPECT_EQ(0, status);
  EXPECT_EQ(1, count);
  EXPECT_EQ(0x01010002U, +info->if_index);
  EXPECT_EQ(0U, +info->status);
  EXPECT_STREQ("switch-2", info->name);
  EXPECT_EQ(1U, +info->admin_mode);
  EXPECT_EQ(0U, +info->admin_speed);
  EXPECT_EQ(1, info->admin_state);
  EXPECT_EQ(2112, +info->mtu);
  EXPECT_EQ(1U, +info->vsan);
  EXPECT_EQ(4U, +info->oper_mode);
  EXPECT_EQ(2000U, +info->oper_speed);
  EXPECT_EQ(1, info->oper_state);
  EXPECT_EQ(1, info->phy_enable_state);
  EXPECT_EQ(1, info->fcot_present);
  EXPECT_EQ(0x20, info->wwn.bytes[0]);
  EXPECT_EQ(0x42, info->wwn.bytes[1]);
}

TEST_F(PortManager, APortThatIsSetDownOrHasNoOpticsIsNotEnabled) {
  const pm_port_info_* down = port(0x01010008);
  EXPECT_EQ(2, down->admin_state);
  EXPECT_EQ(2, down->oper_state);
  EXPECT_EQ(0, down->phy_enable_state);
  EXPECT_EQ(1, down->fcot_present);
  const pm_port_info_* bare = port(0x01010010);
  EXPECT_EQ(1, bare->admin_state);
  EXPECT_EQ(0, bare->phy_enable_state);
  EXPECT_EQ(0, bare->fcot_present);
  const pm_port_info_* unused = port(0x01010009);
  EXPECT_EQ(1, unused->phy_enable_state);
  EXPECT_EQ(2, unused->oper_state);
  EXPECT_EQ(0U, +unused->oper_speed);
  EXPECT_EQ(1U, +unused->oper_mode);
}

TEST_F(PortManager, AMemberShowsTheVsanAndModeOfItsChannel) {
  const pm_port_info_* member = port(0x01010005);
  EXPECT_EQ(8U, +member->oper_mode);
  EXPECT_EQ(8, member->oper_state);
  EXPECT_EQ(2000U, +member->oper_speed);
  EXPECT_EQ(1U, +member->vsan);
}

TEST_F(PortManager, AMemberWorksForTheVsanOfItsChannelWhateverItsOwn) {
  switch_sim::Fabric fabric = control::default_fabric();
  find_interface(fabric.switches[0], 0x04000001)->vsan = 2;
  ASSERT_EQ(1U, find_interface(fabric.switches[0], 0x01010005)->vsan);
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(2U, +port(0x01010005)->vsan);
  EXPECT_EQ(2U, +port(0x04000001)->vsan);
}

TEST_F(PortManager, AnEthernetChannelHasTheSpeedOfItsMembers) {
  const pm_port_info_* channel = port(0x04010002);
  EXPECT_EQ(2000U, +channel->oper_speed);
  EXPECT_EQ(1, channel->oper_state);
  EXPECT_EQ(0x02, channel->wwn.bytes[0]);
  EXPECT_EQ(0xFF, channel->wwn.bytes[1]);
  EXPECT_EQ(0x02, channel->wwn.bytes[2]);
}

TEST_F(PortManager, AWalkOverATypeEndsWithIt) {
  std::vector<uint32_t> found;
  for (const uint32_t start : {0x01000000U, 0x02000000U, 0x04000000U, 0x05000000U, 0x0A000000U,
                               0x0B000000U, 0x0E000000U}) {
    for (uint32_t at = start;;) {
      const pm_port_info_* info = port(at, 2);
      if (info == nullptr) break;
      at = info->if_index;
      found.push_back(at);
    }
    EXPECT_EQ(kEndOfTable, status);
    EXPECT_EQ(0, count);
  }
  const std::vector<uint32_t> expected = {
      0x01010001, 0x01010002, 0x01010003, 0x01010004, 0x01010005, 0x01010006, 0x01010007,
      0x01010008, 0x01010009, 0x0101000A, 0x0101000B, 0x0101000C, 0x0101000D, 0x0101000E,
      0x0101000F, 0x01010010, 0x02020001, 0x02020002, 0x02020003, 0x02020004, 0x04000001,
      0x04010002, 0x05000001, 0x0A000001, 0x0B020001};
  EXPECT_EQ(expected, found);
}

// The default fabric with these port channels of the own switch, too, which have no members.
switch_sim::Fabric with_channels(const std::vector<uint32_t>& added) {
  switch_sim::Fabric fabric = control::default_fabric();
  for (const uint32_t if_index : added)
    fabric.switches[0].interfaces.emplace_back().if_index = if_index;
  sort(fabric);
  return fabric;
}

TEST_F(PortManager, AWalkGoesOnBehindAnInterfaceThatIsTakenOutOnTheWay) {
  ASSERT_EQ(std::nullopt, control::install(with_channels({0x04000003, 0x04000004})));
  const pm_port_info_* info = port(0x04000001, 2);
  ASSERT_NE(nullptr, info);
  EXPECT_EQ(0x04000003U, info->if_index);
  ASSERT_EQ(std::nullopt, control::install(with_channels({0x04000004})));
  info = port(0x04000003, 2);
  ASSERT_NE(nullptr, info);
  EXPECT_EQ(0x04000004U, info->if_index);
  EXPECT_EQ(nullptr, port(0x04000003));
  EXPECT_EQ(kNotFound, status);
}

TEST_F(PortManager, AnInterfaceThatIsTakenOutBeforeItsTurnIsPassedOver) {
  ASSERT_EQ(std::nullopt, control::install(with_channels({0x04000003, 0x04000004})));
  ASSERT_NE(nullptr, port(0x04000000, 2));
  ASSERT_EQ(std::nullopt, control::install(with_channels({0x04000004})));
  const pm_port_info_* info = port(0x04000001, 2);
  ASSERT_NE(nullptr, info);
  EXPECT_EQ(0x04000004U, info->if_index);
}

TEST_F(PortManager, WhatIsNoInterfaceIsNotFound) {
  expect_refused(record(1, "01010011"), kNotFound);
  expect_refused(record(1, "00000000"), kNotFound);
  expect_refused(record(2, "00000000"), kEndOfTable);
  expect_refused(record(3, "01010001"), kBadOperation);
  expect_refused(call(34, 0x11001, 1, Pattern(3).bytes()), kBadLength);
}

TEST_F(PortManager, ARequestForSeveralOrNoInterfacesIsRefused) {
  pm_port_info_* out = nullptr;
  const pm_if_key_ range = {0x01010001, 0x01010002};
  EXPECT_EQ(kBadValue, pm_cmi_get_port_config(q, 1, 1, &range, &count, &out, 4));
  const pm_if_key_ key = {0x01010001, 0x01010001};
  EXPECT_EQ(kBadValue, pm_cmi_get_port_config(q, 1, 2, &key, &count, &out, 4));
  EXPECT_EQ(kBadValue, pm_cmi_get_port_config(q, 1, 1, nullptr, &count, &out, 4));
  EXPECT_EQ(kBadValue, pm_cmi_get_port_config(q, 1, 1, &key, nullptr, &out, 4));
  EXPECT_EQ(kBadValue, pm_cmi_get_port_config(q, 1, 1, &key, &count, nullptr, 4));
  EXPECT_EQ(nullptr, out);
  void* reply = nullptr;
  EXPECT_EQ(kBadValue, pm_cmi_set_port_config(q, 0, 0, 1, &key, 6, 0, "", &count, &reply, 4));
  EXPECT_EQ(kBadValue, pm_cmi_set_port_config(q, 0, 0, 1, &key, 6, 81, nullptr, &count, &reply, 4));
}

TEST_F(PortManager, ATimeOutIsATransportFailure) {
  control::set_faults({{.opcode = 0x11001, .kind = Fault::Kind::delay, .value = 40000}});
  EXPECT_EQ(nullptr, port(0x01010001));
  EXPECT_LT(status, 0);
  EXPECT_EQ(62, mts_errno_get(q));
}

TEST_F(PortManager, AShortRecordIsHandedOutAsItCame) {
  for (const int32_t length : {1, 88, 91, 203}) {
    control::set_faults({{.opcode = 0x11001, .kind = Fault::Kind::short_reply, .value = length}});
    const pm_port_info_* info = port(0x01010001);
    EXPECT_NE(nullptr, info);
    EXPECT_EQ(0, status);
  }
}

TEST_F(PortManager, TheAliasIsChanged) {
  EXPECT_EQ(0, set_alias(0x01010001, "database, left"));
  EXPECT_EQ(0, status);
  EXPECT_EQ(1, count);
  EXPECT_STREQ("database, left", port(0x01010001)->name);
  EXPECT_EQ(0, set_alias(0x01010001, ""));
  EXPECT_STREQ("", port(0x01010001)->name);
  EXPECT_EQ(0, set_alias(0x04000001, "to switch-3"));
  EXPECT_EQ(0, set_alias(0x05000001, "lab"));
}

TEST_F(PortManager, AFullAliasHasNoNul) {
  const std::string full(81, 'a');
  EXPECT_EQ(0, set_alias(0x01010001, full));
  const pm_port_info_* info = port(0x01010001);
  EXPECT_EQ(full, std::string(info->name, 81));
  EXPECT_EQ(1U, +info->admin_mode);
}

TEST_F(PortManager, AnAliasIsRefusedInTheReply) {
  EXPECT_EQ(kBadValue, set_alias(0x01010001, "two\nlines"));
  EXPECT_EQ(0, status);
  EXPECT_EQ(1, count);
  EXPECT_EQ(kBadValue, set_alias(0x01010001, "\xff"));
  EXPECT_EQ(kBadLength, set(0x01010001, 6, "short", 5));
  EXPECT_EQ(kAttributeNotSupported, set_alias(0x0A000001, "tunnel"));
  EXPECT_EQ(kAttributeNotSupported, set_alias(0x0B020001, "initiators"));
  EXPECT_STREQ("host-a", port(0x01010001)->name);
}

TEST_F(PortManager, TheReplyToAChangeNamesTheInterface) {
  expect_reply(call(34, 0x11002, 3, Pattern(12).at(0, "0101000100000003000003e8").bytes()),
               Pattern(8).at(0, "0101000100000000"));
  expect_reply(call(34, 0x11002, 3, Pattern(12).at(0, "0101000100000003000003e9").bytes()),
               Pattern(8).at(0, "0101000140010005"));
  expect_refused(call(34, 0x11002, 1, Pattern(12).at(0, "01010001").bytes()), kBadOperation);
  expect_refused(call(34, 0x11002, 3, Pattern(7).bytes()), kBadLength);
}

TEST_F(PortManager, AnInterfaceThatIsNotThereIsRefusedAsAWhole) {
  EXPECT_EQ(-1, set_word(0x01010011, 3, 1000));
  EXPECT_EQ(kNotFound, status);
  EXPECT_EQ(0, count);
}

TEST_F(PortManager, TheSpeedIsChangedAndTheLinkFollows) {
  EXPECT_EQ(0, set_word(0x01010001, 3, 1000));
  EXPECT_EQ(1000U, +port(0x01010001)->admin_speed);
  EXPECT_EQ(1000U, +port(0x01010001)->oper_speed);
  EXPECT_EQ(0, set_word(0x01010001, 3, 0));
  EXPECT_EQ(2000U, +port(0x01010001)->oper_speed);
}

TEST_F(PortManager, ALinkWhoseEndsHaveDifferentSpeedsIsDown) {
  auto fabric = control::fabric();
  find_interface(fabric.switches[1], 0x01010002)->speed = 2000;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(1, port(0x01010002)->oper_state);
  EXPECT_EQ(0, set_word(0x01010002, 3, 1000));
  EXPECT_EQ(2, port(0x01010002)->oper_state);
  EXPECT_EQ(0, set_word(0x01010002, 3, 2000));
  EXPECT_EQ(1, port(0x01010002)->oper_state);
}

TEST_F(PortManager, ASpeedIsRefused) {
  EXPECT_EQ(kBadValue, set_word(0x01010001, 3, 4000));
  EXPECT_EQ(kAttributeNotSupported, set_word(0x02020001, 3, 1000));
  EXPECT_EQ(kAttributeNotSupported, set_word(0x04000001, 3, 1000));
  EXPECT_EQ(kPortInChannel, set_word(0x01010005, 3, 1000));
  EXPECT_EQ(kBadLength, set(0x01010001, 3, "\1", 1));
}

TEST_F(PortManager, AModeThatDoesNotFitTheDeviceTakesThePortDown) {
  EXPECT_EQ(0, set_word(0x01010001, 2, 4));
  EXPECT_EQ(4U, +port(0x01010001)->admin_mode);
  EXPECT_EQ(2, port(0x01010001)->oper_state);
  EXPECT_EQ(0, set_word(0x01010001, 2, 32));
  EXPECT_EQ(1, port(0x01010001)->oper_state);
  EXPECT_EQ(0, set_word(0x01010001, 2, 96));
  EXPECT_EQ(1, port(0x01010001)->oper_state);
  EXPECT_EQ(32U, +port(0x01010001)->oper_mode);
  EXPECT_EQ(0, set_word(0x01010001, 2, 64));
  EXPECT_EQ(2, port(0x01010001)->oper_state);
}

TEST_F(PortManager, ALoopWorksInFlFxAndTlMode) {
  EXPECT_EQ(0, set_word(0x01010007, 2, 64));
  EXPECT_EQ(64U, +port(0x01010007)->oper_mode);
  EXPECT_EQ(0, set_word(0x01010007, 2, 96));
  EXPECT_EQ(64U, +port(0x01010007)->oper_mode);
  EXPECT_EQ(0, set_word(0x01010007, 2, 128));
  EXPECT_EQ(128U, +port(0x01010007)->oper_mode);
  EXPECT_EQ(0, set_word(0x01010007, 2, 32));
  EXPECT_EQ(2, port(0x01010007)->oper_state);
}

TEST_F(PortManager, EveryModeOfTheSettingsIsTaken) {
  for (const uint32_t mode : {1U, 2U, 4U, 16U, 32U, 64U, 96U, 128U}) {
    EXPECT_EQ(0, set_word(0x01010009, 2, mode)) << mode;
    EXPECT_EQ(mode, +port(0x01010009)->admin_mode);
  }
}

TEST_F(PortManager, AModeIsRefused) {
  for (const uint32_t mode : {0U, 3U, 8U, 256U, 1000U}) {
    EXPECT_EQ(kBadValue, set_word(0x01010001, 2, mode)) << mode;
  }
  EXPECT_EQ(kBadValue, set_word(0x04000001, 2, 32));
  EXPECT_EQ(kBadValue, set_word(0x0A000001, 2, 32));
  EXPECT_EQ(0, set_word(0x0A000001, 2, 4));
  EXPECT_EQ(kAttributeNotSupported, set_word(0x02020001, 2, 1));
  EXPECT_EQ(kAttributeNotSupported, set_word(0x0B020001, 2, 1));
  EXPECT_EQ(kPortInChannel, set_word(0x01010006, 2, 4));
}

TEST_F(PortManager, ThePortIsSetDownAndUp) {
  EXPECT_EQ(0, set_state(0x01010001, 2));
  EXPECT_EQ(2, port(0x01010001)->admin_state);
  EXPECT_EQ(2, port(0x01010001)->oper_state);
  EXPECT_EQ(0U, +port(0x01010001)->oper_speed);
  EXPECT_EQ(0, set_state(0x01010001, 1));
  EXPECT_EQ(1, port(0x01010001)->oper_state);
  EXPECT_EQ(0, set_state(0x05000001, 2));
  EXPECT_EQ(2, port(0x05000001)->oper_state);
}

TEST_F(PortManager, WhatSitsOnAnEthernetPortGoesDownWithIt) {
  EXPECT_EQ(0, set_state(0x02020001, 2));
  EXPECT_EQ(2, port(0x0B020001)->oper_state);
  EXPECT_EQ(0, set_state(0x02020002, 2));
  EXPECT_EQ(2, port(0x0A000001)->oper_state);
  EXPECT_EQ(0, set_state(0x02020003, 2));
  EXPECT_EQ(1000U, +port(0x04010002)->oper_speed);
  EXPECT_EQ(0, set_state(0x02020004, 2));
  EXPECT_EQ(2, port(0x04010002)->oper_state);
}

TEST_F(PortManager, APortChannelLosesTheSpeedOfAMemberThatIsDown) {
  EXPECT_EQ(0, set_state(0x01010005, 2));
  EXPECT_EQ(2000U, +port(0x04000001)->oper_speed);
  EXPECT_EQ(0, set_state(0x01010006, 2));
  EXPECT_EQ(2, port(0x04000001)->oper_state);
  EXPECT_EQ(1U, +port(0x04000001)->oper_mode);
}

TEST_F(PortManager, AStateIsRefused) {
  EXPECT_EQ(kBadValue, set_state(0x01010001, 0));
  EXPECT_EQ(kBadValue, set_state(0x01010001, 3));
  EXPECT_EQ(kAttributeNotSupported, set_state(0x04000001, 2));
  EXPECT_EQ(kBadLength, set(0x01010001, 1, "\1\1", 2));
  EXPECT_EQ(kAttributeNotSupported, set_word(0x01010001, 99, 1));
}

TEST_F(PortManager, ThePortsOfAModuleThatIsNotOkAreDown) {
  auto fabric = control::fabric();
  fabric.switches[0].modules[0].state = switch_sim::ModuleState::powered_down;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(2, port(0x01010001)->oper_state);
  EXPECT_EQ(0, port(0x01010001)->phy_enable_state);
  EXPECT_EQ(2, port(0x04000001)->oper_state);
  EXPECT_EQ(1, port(0x02020001)->oper_state);
}

TEST_F(PortManager, APortInASuspendedVsanIsDown) {
  auto fabric = control::fabric();
  fabric.vsans[0].state = switch_sim::VsanState::suspended;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(2, port(0x01010001)->oper_state);
  EXPECT_EQ(2, port(0x01010002)->oper_state);
  EXPECT_EQ(2, port(0x0B020001)->oper_state);
  EXPECT_EQ(1, port(0x01010004)->oper_state);
  EXPECT_EQ(8, port(0x04000001)->oper_state);  // VSAN 2 is left to the trunk
}

TEST_F(PortManager, OpticsAreTold) {
  const auto optics = [&](uint32_t if_index) {
    const pm_if_key_ key = {if_index, if_index};
    void* reply = nullptr;
    status = pm_cmi_get_fcot_info(q, 1, 1, &key, &count, &reply, 20, -1);
    std::vector<uint8_t> bytes;
    if (reply != nullptr) {
      bytes.assign(static_cast<uint8_t*>(reply) + 4, static_cast<uint8_t*>(reply) + 12);
    }
    free(reply);
    return bytes;
  };
  EXPECT_EQ(Pattern(8).at(4, "0101").bytes(), optics(0x01010001));
  EXPECT_EQ(1, count);
  EXPECT_EQ(Pattern(8).bytes(), optics(0x01010010));
  EXPECT_EQ(0, status);
  EXPECT_EQ(Pattern(0).bytes(), optics(0x02020001));
  EXPECT_EQ(kAttributeNotSupported, status);
  EXPECT_EQ(0, count);
  optics(0x01010011);
  EXPECT_EQ(kNotFound, status);
}

TEST_F(PortManager, UnsupportedOpticsKeepThePortDown) {
  auto fabric = control::fabric();
  find_interface(fabric.switches[0], 0x01010001)->optics = switch_sim::Optics::unsupported;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_reply(call(34, 0x11003, 1, Pattern(4).at(0, "01010001").bytes()),
               Pattern(12).at(0, "01010001").at(9, "01"));
  EXPECT_EQ(2, port(0x01010001)->oper_state);
  EXPECT_EQ(1, port(0x01010001)->fcot_present);
}

TEST_F(PortManager, EveryPortOfALargeSwitchIsWalkedOnce) {
  ASSERT_EQ(std::nullopt,
            control::install_generated("switches=50,ports=768,vsans=4,devices=5000,seed=3"));
  control::clear_log();
  size_t found = 0;
  uint32_t at = 0x01000000;
  for (const pm_port_info_* info = port(at, 2); info != nullptr; info = port(at, 2)) {
    EXPECT_GT(info->if_index, at);
    at = info->if_index;
    ++found;
    kept.clear();
  }
  EXPECT_EQ(768U, found);
  EXPECT_EQ(769U, control::exchange_count());
}

class PortChannels : public SimulatorTest {
 protected:
  Result entry(uint32_t operation, const char* number) {
    return call(34, 620, operation, Pattern(268).at(0, number).bytes());
  }
};

TEST_F(PortChannels, AnFcChannelListsItsMembers) {
  expect_reply(entry(1, "00000001"), Pattern(268)
                                         .at(0, "00000001")
                                         .at(4, "04000001")
                                         .at(104, "0101000501010006")
                                         .at(168, "00000008")
                                         .at(188, "01010005"));
}

TEST_F(PortChannels, AnEthernetChannelIsFoundByItsNumber) {
  expect_reply(entry(1, "00000002"), Pattern(268)
                                         .at(0, "00000002")
                                         .at(4, "04010002")
                                         .at(104, "0202000302020004")
                                         .at(168, "00000008")
                                         .at(188, "02020003"));
}

TEST_F(PortChannels, AWalkGoesByNumber) {
  EXPECT_EQ(entry(1, "00000001").reply, entry(2, "00000000").reply);
  EXPECT_EQ(entry(1, "00000002").reply, entry(2, "00000001").reply);
  expect_refused(entry(2, "00000002"), kEndOfTable);
  expect_refused(entry(2, "ffffffff"), kEndOfTable);
}

TEST_F(PortChannels, AnUnknownChannelOrRequestIsRefused) {
  expect_refused(entry(1, "00000003"), kNotFound);
  expect_refused(entry(1, "00000000"), kNotFound);
  expect_refused(entry(1, "00010001"), kNotFound);
  expect_refused(entry(3, "00000001"), kBadOperation);
  expect_refused(call(34, 620, 1, Pattern(267).bytes()), kBadLength);
}

TEST_F(PortChannels, AnEmptyChannelHasNoMembers) {
  auto fabric = control::fabric();
  fabric.links.erase(fabric.links.begin() + 1);
  find_interface(fabric.switches[0], 0x04000001)->members.clear();
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_reply(entry(1, "00000001"), Pattern(268).at(0, "00000001").at(4, "04000001"));
}

class IpInterfaces : public SimulatorTest {
 protected:
  std::string address(uint32_t if_index, int32_t type) {
    void* block = nullptr;
    status = ipconf_get_intf_ip_address(q, if_index, &block, type);
    if (block == nullptr) return "none";
    const auto* bytes = static_cast<const uint8_t*>(block);
    const std::string text = std::to_string(bytes[0]) + "." + std::to_string(bytes[1]) + "." +
                             std::to_string(bytes[2]) + "." + std::to_string(bytes[3]);
    free(block);
    return text;
  }

  static std::vector<uint32_t> taken(uint32_t* block) {
    std::vector<uint32_t> list;
    if (block != nullptr) list.assign(block, block + 1 + block[0]);
    free(block);
    return list;
  }

  int32_t status = 0;
};

TEST_F(IpInterfaces, EthernetManagementAndEthernetChannelsHaveAddresses) {
  EXPECT_EQ("192.0.2.65", address(0x02020001, 2));
  EXPECT_EQ("192.0.2.11", address(0x05000001, 5));
  EXPECT_EQ("192.0.2.67", address(0x04010002, 4));
  EXPECT_EQ(0, status);
}

TEST_F(IpInterfaces, WhatHasNoAddressIsRefused) {
  EXPECT_EQ("none", address(0x02020003, 2));
  EXPECT_EQ(kNotFound, status);
  EXPECT_EQ("none", address(0x02020009, 2));
  EXPECT_EQ(kNotFound, status);
  EXPECT_EQ("none", address(0x01010001, 1));
  EXPECT_EQ(kBadValue, status);
  EXPECT_EQ("none", address(0x02020001, 5));
  EXPECT_EQ(kBadValue, status);
  EXPECT_NE(0, ipconf_get_intf_ip_address(q, 0x02020001, nullptr, 2));
}

TEST_F(IpInterfaces, FcipAndEthernetAreBoundToEachOther) {
  EXPECT_EQ((std::vector<uint32_t>{1, 0x0A000001}),
            taken(ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02020002)));
  EXPECT_EQ((std::vector<uint32_t>{1, 0x02020002}),
            taken(ips_mgr_fcip_get_eth_if_for_fcip_if_blk(q, 0x0A000001)));
}

TEST_F(IpInterfaces, AnEthernetPortMayCarrySeveralTunnels) {
  auto fabric = control::fabric();
  for (const uint32_t if_index : {0x0A000003U, 0x0A000002U}) {
    fabric.switches[0].interfaces.emplace_back().if_index = if_index;
    fabric.switches[0].interfaces.back().ethernet = 0x02020002;
  }
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ((std::vector<uint32_t>{3, 0x0A000001, 0x0A000002, 0x0A000003}),
            taken(ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02020002)));
}

TEST_F(IpInterfaces, WithoutABindingThereIsNoBlock) {
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02020001));
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02020009));
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x0A000001));
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_eth_if_for_fcip_if_blk(q, 0x0A000002));
}

TEST_F(IpInterfaces, AShortBlockIsNone) {
  for (const int32_t length : {0, 3, 4, 7}) {
    control::set_faults({{.opcode = 0x11006, .kind = Fault::Kind::short_reply, .value = length}});
    EXPECT_EQ(nullptr, ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02020002)) << length;
  }
}

}  // namespace
}  // namespace simulator_test
