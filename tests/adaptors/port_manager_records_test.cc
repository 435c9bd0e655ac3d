#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "tests/adaptors/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

// Where the walk over a type starts.
constexpr uint32_t kAllFc = 0x01000000;
constexpr uint32_t kAllEthernet = 0x02000000;
constexpr uint32_t kAllChannels = 0x04000000;
constexpr uint32_t kAllManagement = 0x05000000;
constexpr uint32_t kAllFcip = 0x0a000000;
constexpr uint32_t kAllIscsi = 0x0b000000;

struct Freed {
  void operator()(void* block) const { std::free(block); }
};
using Info = std::unique_ptr<pm_port_info_, Freed>;
using Counters = std::unique_ptr<fcIfAllCounters_t, Freed>;

Info find(int32_t exact, uint32_t if_index) {
  return Info(pm_cim_find_interface(exact, if_index, kQueue));
}

class Ports : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

// ---- Types ------------------------------------------------------------------------------------

TEST_F(Ports, OnlySomeTypesCanBeAskedAbout) {
  for (const uint8_t type : {1, 4, 5, 10, 11}) {
    uint32_t destination = 7;
    uint32_t access = 8;
    EXPECT_EQ(pm_cim_get_ifTable_dest_info(type, &destination, &access), 0) << int{type};
    EXPECT_EQ(destination, 380u);
    EXPECT_EQ(access, 43u);
  }
  for (const uint8_t type : {0, 3, 6, 7, 8, 9, 12, 13, 14, 15, 100, 255}) {
    uint32_t destination = 7;
    uint32_t access = 8;
    EXPECT_EQ(pm_cim_get_ifTable_dest_info(type, &destination, &access), -1) << int{type};
    EXPECT_EQ(destination, 7u);
    EXPECT_EQ(access, 8u);
  }
}

TEST_F(Ports, EthernetPortsLeaveTheDestinationAsItIs) {
  uint32_t destination = 7;
  uint32_t access = 8;
  EXPECT_EQ(pm_cim_get_ifTable_dest_info(2, &destination, &access), 0);
  EXPECT_EQ(destination, 7u);
  EXPECT_EQ(access, 45u);
}

TEST_F(Ports, TheNextTypeComesWithTheStartOfItsWalk) {
  uint8_t type = 2;
  uint32_t if_index = 99;
  EXPECT_EQ(pm_cim_if_index_get_next_type(&if_index, &type), 0);
  EXPECT_EQ(type, 4);
  EXPECT_EQ(if_index, 0x04000000u);
}

TEST_F(Ports, BehindTheLastTypeTheResultIsThePlatformsAndTheIndexZero) {
  uint8_t type = 14;
  uint32_t if_index = 99;
  EXPECT_NE(pm_cim_if_index_get_next_type(&if_index, &type), 0);
  EXPECT_EQ(if_index, 0u);
  EXPECT_EQ(pm_cim_if_index_get_next_type(nullptr, &type), -1);
  EXPECT_EQ(pm_cim_if_index_get_next_type(&if_index, nullptr), -1);
}

TEST_F(Ports, SlotAndPortOfFcPortsAreOfKindOne) {
  int32_t kind = 9;
  EXPECT_EQ(pm_cim_get_slot_number_from_ifIndex(0x010c00ff, &kind), 12);
  EXPECT_EQ(kind, 1);
  kind = 9;
  EXPECT_EQ(pm_cim_get_port_number_from_ifIndex(0x010c00ff, &kind), 254);
  EXPECT_EQ(kind, 1);
}

TEST_F(Ports, SlotAndPortOfEthernetPortsAreOfKindTwo) {
  int32_t kind = 9;
  EXPECT_EQ(pm_cim_get_slot_number_from_ifIndex(0x02ff0001, &kind), 255);
  EXPECT_EQ(kind, 2);
  kind = 9;
  EXPECT_EQ(pm_cim_get_port_number_from_ifIndex(0x02ff0001, &kind), 0);
  EXPECT_EQ(kind, 2);
  EXPECT_EQ(pm_cim_get_port_number_from_ifIndex(0x02ff0001, nullptr), 0);
}

TEST_F(Ports, OtherTypesAndRefusingPlatformsHaveNoSlotAndNoPort) {
  // The last two are the starts of walks: of a type that has slots, but no ports themselves.
  for (const uint32_t if_index : {kChannel, kManagement, kInBand, kFcip, kIscsi, kUnknown,
                                  uint32_t{0}, kAllFc, kAllEthernet}) {
    int32_t kind = 9;
    EXPECT_EQ(pm_cim_get_slot_number_from_ifIndex(if_index, &kind), -1) << if_index;
    EXPECT_EQ(pm_cim_get_port_number_from_ifIndex(if_index, &kind), -1) << if_index;
    EXPECT_EQ(kind, 9);
  }
}

// ---- One interface ----------------------------------------------------------------------------

TEST_F(Ports, ARecordIsHandedOutAsThePortManagerGaveIt) {
  const Bytes record = Record(204)
                           .host32(0, kFc)
                           .host32(4, 0)
                           .text(8, "to host-a")
                           .host32(89, 0x01020304)
                           .host32(94, 0x05060708)
                           .byte(98, 0x09)
                           .host16(102, 0x0a0b)
                           .host32(104, 0x0c0d0e0f)
                           .put(127, hex("20 41 00 0d ec 01 02 03"))
                           .put(135, hex("00 7f 0e ff"))
                           .host32(143, 0x11121314)
                           .host32(147, 0x15161718)
                           .byte(151, 0x19)
                           .byte(154, 0x1a)
                           .byte(201, 0x1b);
  Script script;
  script.expect(get_port(kFc)).gives(record);
  pm_port_info_* out = nullptr;
  ASSERT_EQ(pm_cim_get_port_info(&out, 1, kFc, kQueue), 0);
  const Info info(out);
  EXPECT_EQ(uint32_t{info->if_index}, 0x01010001u);
  EXPECT_EQ(uint32_t{info->status}, 0u);
  EXPECT_STREQ(info->name, "to host-a");
  EXPECT_EQ(uint32_t{info->admin_mode}, 0x01020304u);
  EXPECT_EQ(uint32_t{info->admin_speed}, 0x05060708u);
  EXPECT_EQ(info->admin_state, 0x09);
  EXPECT_EQ(uint16_t{info->mtu}, 0x0a0b);
  EXPECT_EQ(uint32_t{info->vsan}, 0x0c0d0e0fu);
  EXPECT_EQ(bytes_of(info->wwn), hex("20 41 00 0d ec 01 02 03"));
  EXPECT_EQ(bytes_of(info->address), hex("00 7f 0e ff"));
  EXPECT_EQ(uint32_t{info->oper_mode}, 0x11121314u);
  EXPECT_EQ(uint32_t{info->oper_speed}, 0x15161718u);
  EXPECT_EQ(info->oper_state, 0x19);
  EXPECT_EQ(info->phy_enable_state, 0x1a);
  EXPECT_EQ(info->fcot_present, 0x1b);
  EXPECT_EQ(bytes_of(*info), record);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Ports, EveryNonZeroExactIsAGet) {
  for (const int32_t exact : {1, 2, -1}) {
    Script script;
    script.expect(get_port(kIscsi)).gives(port_record(kIscsi));
    EXPECT_NE(find(exact, kIscsi), nullptr);
  }
}

TEST_F(Ports, TheSessionIsPassedThrough) {
  Script script;
  script.expect(get_port(kFc).q(12)).gives(port_record(kFc));
  const Info info(pm_cim_find_interface(1, kFc, 12));
  EXPECT_NE(info, nullptr);
}

TEST_F(Ports, ATypeThatCannotBeAskedAboutHasNoRecord) {
  for (const uint32_t if_index : {kUnknown, kInBand, kVsanInterface, uint32_t{0}}) {
    Script script;
    pm_port_info_ before;
    pm_port_info_* out = &before;
    EXPECT_EQ(pm_cim_get_port_info(&out, 1, if_index, kQueue), -1);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(script.calls(), 0u);
  }
}

TEST_F(Ports, ARefusedOrTimedOutReadGivesNoRecord) {
  Script script;
  script.expect(get_port(kFc)).fails(5);
  script.expect(get_port(kFc)).times_out();
  script.expect(get_port(kFc)).fails_with_record(5, port_record(kFc));
  EXPECT_EQ(find(1, kFc), nullptr);
  EXPECT_EQ(find(1, kFc), nullptr);
  EXPECT_EQ(find(1, kFc), nullptr);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Ports, ASuccessWithoutARecordIsAFailure) {
  Script script;
  script.expect(get_port(kFc)).gives_nothing();
  EXPECT_EQ(find(1, kFc), nullptr);
}

TEST_F(Ports, ARecordWithAStatusIsAFailure) {
  Script script;
  script.expect(get_port(kFc)).gives(port_record(kFc).host32(4, 1));
  EXPECT_EQ(find(1, kFc), nullptr);
}

TEST_F(Ports, ARecordOneByteShortOfItsLastFieldCountsAsNone) {
  Bytes record = port_record(kFc);
  record.resize(201);
  Script script;
  script.expect(get_port(kFc)).gives(record);
  EXPECT_EQ(find(1, kFc), nullptr);
}

TEST_F(Ports, ARecordThatEndsBehindItsLastFieldIsEnough) {
  Bytes record = port_record(kFc).byte(201, 3);
  record.resize(202);
  Script script;
  script.expect(get_port(kFc)).gives(record);
  const Info info = find(1, kFc);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->fcot_present, 3);
}

TEST_F(Ports, WithoutAPlaceForTheRecordNothingIsAsked) {
  Script script;
  EXPECT_EQ(pm_cim_get_port_info(nullptr, 1, kFc, kQueue), -1);
  EXPECT_EQ(script.calls(), 0u);
}

// ---- IP addresses -----------------------------------------------------------------------------

TEST_F(Ports, EthernetLikeInterfacesGetTheirIpAddress) {
  const struct {
    uint32_t if_index;
    int32_t type;
  } rows[] = {{kEthernet, 2}, {kManagement, 5}, {kEtherChannel, 4}};
  for (const auto& row : rows) {
    Script script;
    script.expect(get_port(row.if_index)).gives(port_record(row.if_index));
    script.expect(get_interface_address(row.if_index, row.type)).gives(hex("0a 01 02 03 ff ff"));
    const Info info = find(1, row.if_index);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(bytes_of(*info), port_record(row.if_index).put(135, hex("0a 01 02 03")).bytes());
  }
}

TEST_F(Ports, FcLikeInterfacesAreNotAskedForAnIpAddress) {
  for (const uint32_t if_index : {kFc, kChannel, kFcip, kIscsi}) {
    Script script;
    script.expect(get_port(if_index)).gives(port_record(if_index));
    const Info info = find(1, if_index);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(bytes_of(info->address), hex("00 7f 0e ff"));
  }
}

TEST_F(Ports, AnIpAddressThatCannotBeReadLeavesTheRecordAsItIs) {
  Script script;
  const Bytes address = hex("0a 01 02 03");
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).fails(5);
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).fails_with_block(5, address);
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives_nothing();
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 01 02"));
  for (int round = 0; round < 4; ++round) {
    const Info info = find(1, kEthernet);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(bytes_of(info->address), hex("00 7f 0e ff"));
  }
}

TEST_F(Ports, TheTypeForTheIpAddressIsThatOfTheRecordsOwnIndex) {
  Script script;
  script.expect(get_port(kFc)).gives(port_record(kManagement));
  script.expect(get_interface_address(kManagement, 5)).gives(hex("0a 01 02 03"));
  script.expect(get_port(kEthernet)).gives(port_record(kUnknown));
  const Info management = find(1, kFc);
  ASSERT_NE(management, nullptr);
  EXPECT_EQ(bytes_of(management->address), hex("0a 01 02 03"));
  EXPECT_NE(find(1, kEthernet), nullptr);
}

// ---- The walk ---------------------------------------------------------------------------------

TEST_F(Ports, AWalkFromZeroGivesTheFirstInterfaceOfTheSwitch) {
  Script script;
  script.expect(get_next_port(kAllFc)).gives(port_record(kFc));
  const Info info = find(0, 0);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(uint32_t{info->if_index}, kFc);
}

TEST_F(Ports, AWalkVisitsEveryTypeThatCanBeAskedAboutInOrder) {
  Script script;
  script.expect(get_next_port(kAllFc)).gives(port_record(kFc));
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  script.expect(get_next_port(kFcNext)).fails(5);
  script.expect(get_next_port(kAllEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 00 00 01"));
  script.expect(get_next_port(kEthernet)).fails(5);
  script.expect(get_next_port(kAllChannels)).gives(port_record(kChannel));
  script.expect(get_next_port(kChannel)).gives(port_record(kEtherChannel));
  script.expect(get_interface_address(kEtherChannel, 4)).gives(hex("0a 00 00 02"));
  script.expect(get_next_port(kEtherChannel)).gives_nothing();
  script.expect(get_next_port(kAllManagement)).gives(port_record(kManagement));
  script.expect(get_interface_address(kManagement, 5)).gives(hex("0a 00 00 03"));
  // The in-band port cannot be asked about.
  script.expect(get_next_port(kManagement)).fails(-1);
  script.expect(get_next_port(kAllFcip)).gives(port_record(kFcip));
  script.expect(get_next_port(kFcip)).fails(5);
  script.expect(get_next_port(kAllIscsi)).gives(port_record(kIscsi));
  // VSAN interfaces cannot either.
  script.expect(get_next_port(kIscsi)).fails(5);

  std::vector<uint32_t> visited;
  for (Info info = find(0, 0); info != nullptr; info = find(0, info->if_index))
    visited.push_back(info->if_index);
  EXPECT_EQ(visited, (std::vector<uint32_t>{kFc, kFcNext, kEthernet, kChannel, kEtherChannel,
                                            kManagement, kFcip, kIscsi}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Ports, AWalkFromATypeThatCannotBeAskedAboutGoesOnBehindIt) {
  Script script;
  script.expect(get_next_port(kAllFcip)).gives(port_record(kFcip));
  const Info info = find(0, kInBand);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(uint32_t{info->if_index}, kFcip);
  EXPECT_EQ(find(0, kVsanInterface), nullptr);
}

TEST_F(Ports, AWalkFromAnInterfaceThatHasVanishedGoesOnBehindIt) {
  Script script;
  script.expect(get_next_port(kAllFc)).gives(port_record(kFc));
  script.expect(get_port(kFc)).fails(5);
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  const Info first = find(0, 0);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(find(1, first->if_index), nullptr);
  const Info second = find(0, first->if_index);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(uint32_t{second->if_index}, kFcNext);
}

TEST_F(Ports, ATimeOutEndsAWalkAndSaysSo) {
  Script script;
  script.expect(get_next_port(kFc)).times_out();
  pm_port_info_* out = nullptr;
  EXPECT_EQ(pm_cim_get_port_info(&out, 0, kFc, kQueue), -1);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(out_.out(), "\t\tMTS TIMEOUT\n");
}

TEST_F(Ports, ATimeOutInALaterTypeEndsAWalkToo) {
  Script script;
  script.expect(get_next_port(kFc)).fails(5);
  script.expect(get_next_port(kAllEthernet)).times_out();
  EXPECT_EQ(find(0, kFc), nullptr);
  EXPECT_EQ(out_.out(), "\t\tMTS TIMEOUT\n");
}

TEST_F(Ports, APositiveResultIsNoTimeOutWhateverTheTransportsErrorSays) {
  Script script;
  script.expect(get_next_port(kFc)).fails(5).with_errno(62);
  script.expect(get_next_port(kAllEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).fails(5);
  EXPECT_NE(find(0, kFc), nullptr);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Ports, AnotherTransportErrorGoesOnWithTheNextType) {
  Script script;
  script.expect(get_next_port(kFc)).fails(-1).with_errno(5);
  script.expect(get_next_port(kAllEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).fails(5);
  EXPECT_NE(find(0, kFc), nullptr);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Ports, ARecordThatComesWithAFailureIsFreedAndTheWalkGoesOn) {
  Script script;
  script.expect(get_next_port(kFcip)).fails_with_record(5, port_record(kFc));
  script.expect(get_next_port(kAllIscsi)).gives(port_record(kIscsi));
  const Info info = find(0, kFcip);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(uint32_t{info->if_index}, kIscsi);
}

TEST_F(Ports, AShortRecordCountsAsNoneInAWalk) {
  Bytes record = port_record(kFc);
  record.resize(201);
  Script script;
  script.expect(get_next_port(kFcip)).gives(record);
  script.expect(get_next_port(kAllIscsi)).gives(port_record(kIscsi));
  EXPECT_NE(find(0, kFcip), nullptr);
}

TEST_F(Ports, TheStatusOfARecordDoesNotMatterInAWalk) {
  Script script;
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext).host32(4, 1));
  const Info info = find(0, kFc);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(uint32_t{info->status}, 1u);
}

TEST_F(Ports, ASwitchWithoutInterfacesEndsTheWalkAtOnce) {
  Script script;
  for (const uint32_t all :
       {kAllFc, kAllEthernet, kAllChannels, kAllManagement, kAllFcip, kAllIscsi})
    script.expect(get_next_port(all)).fails(5);
  EXPECT_EQ(find(0, 0), nullptr);
}

TEST(PortFailures, EveryFailingCallOfAReadLeavesNothingBehind) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    StdioCapture out;
    Script script;
    script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
    script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 00 00 01"));
    const Info info = find(1, kEthernet);
    // Without its record the interface is not found; without its IP address it is.
    EXPECT_EQ(info == nullptr, failing.was_hit() && failing.n() == 1);
  });
  EXPECT_EQ(rounds, 3u);
}

// ---- Optics -----------------------------------------------------------------------------------

class Optics : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  const pm_port_info_ info_ = info_of(port_record(kFc).byte(201, 1));
};

TEST_F(Optics, TheSupportIsByte8OfTheReply) {
  Script script;
  script.expect(get_fcot(kFc)).gives(hex("11 12 13 14 15 16 17 18 02 19"));
  uint8_t supported = 0;
  EXPECT_EQ(pm_cim_get_fcot_info(kQueue, &info_, &supported), 0);
  EXPECT_EQ(supported, 2);
  EXPECT_EQ(out_.out(), "\nis_fcot_supported :: 2 \n is_fcot_present :: 1 \n ");
}

TEST_F(Optics, TheSessionIsPassedThrough) {
  Script script;
  script.expect(get_fcot(kFc).q(12)).gives(zeros(9));
  uint8_t supported = 9;
  EXPECT_EQ(pm_cim_get_fcot_info(12, &info_, &supported), 0);
  EXPECT_EQ(supported, 0);
}

TEST_F(Optics, AFailedRequestSaysSo) {
  Script script;
  script.expect(get_fcot(kFc)).fails(5);
  uint8_t supported = 9;
  EXPECT_EQ(pm_cim_get_fcot_info(kQueue, &info_, &supported), -1);
  EXPECT_EQ(supported, 9);
  EXPECT_EQ(out_.out(), "error in retrieving sfp information - ");
}

TEST_F(Optics, AReplyThatComesWithAFailureATimeOutNoReplyAndAShortOneAreFailures) {
  Script script;
  script.expect(get_fcot(kFc)).fails_with_record(5, zeros(9));
  script.expect(get_fcot(kFc)).times_out();
  script.expect(get_fcot(kFc)).gives_nothing();
  script.expect(get_fcot(kFc)).gives(hex("01 01 01 01 01 01 01 01"));
  for (int round = 0; round < 4; ++round) {
    out_.clear();
    uint8_t supported = 9;
    EXPECT_EQ(pm_cim_get_fcot_info(kQueue, &info_, &supported), -1);
    EXPECT_EQ(supported, 9);
    EXPECT_EQ(out_.out(), "error in retrieving sfp information - ");
  }
}

TEST_F(Optics, OtherInterfacesHaveNone) {
  Script script;
  for (const uint32_t if_index :
       {kEthernet, kChannel, kManagement, kInBand, kFcip, kIscsi, kUnknown}) {
    const pm_port_info_ info = info_of(port_record(if_index));
    uint8_t supported = 9;
    EXPECT_EQ(pm_cim_get_fcot_info(kQueue, &info, &supported), -1);
    EXPECT_EQ(supported, 9);
  }
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(Optics, NullArgumentsAreRefusedSilently) {
  Script script;
  uint8_t supported = 9;
  EXPECT_EQ(pm_cim_get_fcot_info(kQueue, nullptr, &supported), -1);
  EXPECT_EQ(pm_cim_get_fcot_info(kQueue, &info_, nullptr), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(script.calls(), 0u);
}

// ---- Counters ---------------------------------------------------------------------------------

// The value of the counter at an offset.
constexpr uint64_t at(uint64_t offset) {
  return 0xa1b2c3d4e5f60000 + offset;
}

// Every 8 bytes their own value.
Bytes counter_block(uint32_t if_index) {
  Record block(600);
  block.host32(0, if_index);
  for (size_t offset = 8; offset < 600; offset += 8)
    block.host64(offset, at(offset));
  return block;
}

class PortCounters : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(PortCounters, EachIsAtItsPlace) {
  Script script;
  script.expect(get_port_counters(kFc)).gives(counter_block(kFc));
  fcIfAllCounters_t* out = nullptr;
  ASSERT_EQ(pm_cim_get_fc_port_counters(kQueue, kFc, &out), 0);
  const Counters counters(out);
  const fcIfAllCounters_t c = *counters;
  EXPECT_EQ(uint32_t{c.if_index}, 0x01010001u);
  EXPECT_EQ(uint64_t{c.class2_frames_received}, at(8));
  EXPECT_EQ(uint64_t{c.class2_frames_transmitted}, at(16));
  EXPECT_EQ(uint64_t{c.class2_bytes_received}, at(24));
  EXPECT_EQ(uint64_t{c.class2_bytes_transmitted}, at(32));
  EXPECT_EQ(uint64_t{c.class2_fabric_busy}, at(48));
  EXPECT_EQ(uint64_t{c.class2_fabric_reject}, at(56));
  EXPECT_EQ(uint64_t{c.class2_port_busy}, at(64));
  EXPECT_EQ(uint64_t{c.class2_port_reject}, at(72));
  EXPECT_EQ(uint64_t{c.class3_frames_received}, at(80));
  EXPECT_EQ(uint64_t{c.class3_frames_transmitted}, at(88));
  EXPECT_EQ(uint64_t{c.class3_bytes_received}, at(96));
  EXPECT_EQ(uint64_t{c.class3_bytes_transmitted}, at(104));
  EXPECT_EQ(uint64_t{c.class3_frames_discarded}, at(112));
  EXPECT_EQ(uint64_t{c.link_failures}, at(160));
  EXPECT_EQ(uint64_t{c.loss_of_sync}, at(168));
  EXPECT_EQ(uint64_t{c.loss_of_signal}, at(176));
  EXPECT_EQ(uint64_t{c.primitive_sequence_errors}, at(184));
  EXPECT_EQ(uint64_t{c.invalid_transmission_words}, at(192));
  EXPECT_EQ(uint64_t{c.crc_errors}, at(200));
  EXPECT_EQ(uint64_t{c.delimiter_errors}, at(208));
  EXPECT_EQ(uint64_t{c.address_errors}, at(216));
  EXPECT_EQ(uint64_t{c.link_resets_received}, at(224));
  EXPECT_EQ(uint64_t{c.link_resets_transmitted}, at(232));
  EXPECT_EQ(uint64_t{c.frames_too_long}, at(280));
  EXPECT_EQ(uint64_t{c.frames_too_short}, at(288));
  EXPECT_EQ(uint64_t{c.nos_count}, at(312));
  EXPECT_EQ(uint64_t{c.encoding_disparity_errors}, at(352));
  EXPECT_EQ(uint64_t{c.dumped_frames}, at(360));
  EXPECT_EQ(uint64_t{c.buffer_credit_not_received}, at(376));
  EXPECT_EQ(uint64_t{c.buffer_credit_not_provided}, at(384));
  EXPECT_EQ(uint64_t{c.error_frames}, at(400));
  EXPECT_EQ(uint64_t{c.multicast_frames_received}, at(408));
  EXPECT_EQ(uint64_t{c.multicast_frames_transmitted}, at(424));
  EXPECT_EQ(uint64_t{c.lip_count}, at(592));
  EXPECT_EQ(out_.out(), "looking for counter of fc1/1\n counter found ");
}

TEST_F(PortCounters, PortChannelsHaveThemToo) {
  Script script;
  script.expect(get_port_counters(kChannel)).gives(counter_block(kChannel));
  fcIfAllCounters_t* out = nullptr;
  EXPECT_EQ(pm_cim_get_fc_port_counters(kQueue, kChannel, &out), 0);
  const Counters counters(out);
  ASSERT_NE(counters, nullptr);
  EXPECT_EQ(out_.out(), "looking for counter of port-channel 5\n counter found ");
}

TEST_F(PortCounters, OtherInterfacesHaveNone) {
  Script script;
  for (const uint32_t if_index : {kEthernet, kManagement, kInBand, kFcip, kIscsi, kUnknown}) {
    fcIfAllCounters_t* out = nullptr;
    EXPECT_EQ(pm_cim_get_fc_port_counters(kQueue, if_index, &out), -1);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(pm_cim_get_fc_port_counters(kQueue, kFc, nullptr), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortCounters, AFailedReadSaysSoAndGivesNone) {
  Script script;
  script.expect(get_port_counters(kFc)).fails(5);
  script.expect(get_port_counters(kFc)).fails_with_block(5, counter_block(kFc));
  script.expect(get_port_counters(kFc)).fails(-1).with_errno(62);
  for (int round = 0; round < 3; ++round) {
    out_.clear();
    fcIfAllCounters_t* out = nullptr;
    EXPECT_EQ(pm_cim_get_fc_port_counters(kQueue, kFc, &out), -1);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(out_.out(), "looking for counter of fc1/1\n    counters not available");
  }
}

TEST_F(PortCounters, ABlockOneByteShortCountsAsNone) {
  Bytes block = counter_block(kFc);
  block.resize(599);
  Script script;
  script.expect(get_port_counters(kFc)).gives(block);
  fcIfAllCounters_t* out = nullptr;
  EXPECT_EQ(pm_cim_get_fc_port_counters(kQueue, kFc, &out), 0);
  EXPECT_EQ(out, nullptr);
}

TEST_F(PortCounters, AreFoundByTheInterface) {
  Script script;
  script.expect(get_port_counters(kFc)).gives(counter_block(kFc));
  const Counters counters(pm_cim_find_interface_counters(1, kFc, kQueue));
  ASSERT_NE(counters, nullptr);
  EXPECT_EQ(out_.out(),
            "in find port stat 16842753\nlooking for counter of fc1/1\n counter found "
            " found counter ");
}

TEST_F(PortCounters, OnlyExactZeroIsTheNextInterface) {
  for (const int32_t exact : {2, -1}) {
    Script script;
    script.expect(get_port_counters(kFc)).gives(counter_block(kFc));
    EXPECT_NE(Counters(pm_cim_find_interface_counters(exact, kFc, kQueue)), nullptr);
  }
}

TEST_F(PortCounters, AreFoundForTheNextInterface) {
  Script script;
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  script.expect(get_port_counters(kFcNext)).gives(counter_block(kFcNext));
  const Counters counters(pm_cim_find_interface_counters(0, kFc, kQueue));
  ASSERT_NE(counters, nullptr);
  EXPECT_EQ(uint32_t{counters->if_index}, kFcNext);
  EXPECT_EQ(out_.out(),
            "in find port stat 16842753\nlooking for counter of fc1/2\n counter found "
            " found counter ");
}

TEST_F(PortCounters, TheSessionIsPassedThrough) {
  Script script;
  script.expect(get_next_port(kFc).q(12)).gives(port_record(kFcNext));
  script.expect(get_port_counters(kFcNext).q(12)).gives(counter_block(kFcNext));
  const Counters counters(pm_cim_find_interface_counters(0, kFc, 12));
  EXPECT_NE(counters, nullptr);
}

TEST_F(PortCounters, AreNotFoundWithoutANextInterface) {
  Script script;
  script.expect(get_next_port(kIscsi)).fails(5);
  EXPECT_EQ(pm_cim_find_interface_counters(0, kIscsi, kQueue), nullptr);
  EXPECT_EQ(out_.out(), "in find port stat 184745988\n");
}

TEST_F(PortCounters, AreNotFoundWhenTheNextInterfaceHasNone) {
  Script script;
  script.expect(get_next_port(kFcNext)).fails(5);
  script.expect(get_next_port(kAllEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).fails(5);
  EXPECT_EQ(pm_cim_find_interface_counters(0, kFcNext, kQueue), nullptr);
}

TEST_F(PortCounters, AreNotFoundWhenTheNextInterfaceVanishesMeanwhile) {
  Script script;
  script.expect(get_next_port(kFc)).gives(port_record(kFcNext));
  script.expect(get_port_counters(kFcNext)).fails(5);
  EXPECT_EQ(pm_cim_find_interface_counters(0, kFc, kQueue), nullptr);
}

TEST_F(PortCounters, ATimeOutOnTheWayToTheNextInterfaceSaysSo) {
  Script script;
  script.expect(get_next_port(kFc)).times_out();
  EXPECT_EQ(pm_cim_find_interface_counters(0, kFc, kQueue), nullptr);
  EXPECT_EQ(out_.out(), "in find port stat 16842753\n\t\tMTS TIMEOUT\n");
}

TEST_F(PortCounters, ASuccessWithoutCountersIsToldAndGivesNull) {
  Script script;
  script.expect(get_port_counters(kFc)).gives_nothing();
  EXPECT_EQ(pm_cim_find_interface_counters(1, kFc, kQueue), nullptr);
  EXPECT_EQ(out_.out(),
            "in find port stat 16842753\nlooking for counter of fc1/1\n counter found "
            " found counter \tcounter is NULL!!");
}

TEST_F(PortCounters, AnIndexFromTwoToThe31OnIsPrintedNegative) {
  Script script;
  EXPECT_EQ(pm_cim_find_interface_counters(1, 0x81000001, kQueue), nullptr);
  EXPECT_EQ(out_.out(), "in find port stat -2130706431\n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST(PortCounterFailures, EveryFailingCallOfASearchGivesNoneAndLeavesNothingBehind) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    StdioCapture out;
    Script script;
    script.expect(get_next_port(kIscsi)).gives(port_record(kFcNext));
    script.expect(get_port_counters(kFcNext)).gives(counter_block(kFcNext));
    const Counters counters(pm_cim_find_interface_counters(0, kIscsi, kQueue));
    EXPECT_EQ(counters == nullptr, failing.was_hit());
  });
  EXPECT_EQ(rounds, 3u);
}

}  // namespace
