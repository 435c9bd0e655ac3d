#include <cim_utils/collections.h>
#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "tests/adaptors/port_records.h"
#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

// A list of records, released at its end.
class Interfaces {
 public:
  Interfaces() = default;
  Interfaces(const Interfaces&) = delete;
  Interfaces& operator=(const Interfaces&) = delete;
  ~Interfaces() { cim_g_slist_destroy(list_, nullptr); }
  GSList** out() { return &list_; }
  std::vector<uint32_t> indexes() const {
    std::vector<uint32_t> found;
    for (GSList* node = list_; node != nullptr; node = node->next)
      found.push_back(static_cast<pm_port_info_*>(node->data)->if_index);
    return found;
  }

 private:
  GSList* list_ = nullptr;
};

// A port channel as the service sends it.
Bytes channel_reply(const std::vector<uint32_t>& members) {
  Record reply(268);
  reply.be32(0, 5).be32(4, kChannel).be32(168, static_cast<uint32_t>(members.size() * 4));
  for (size_t i = 0; i < members.size(); ++i)
    reply.be32(104 + 4 * i, members[i]);
  return reply;
}

Bytes channel_request(uint32_t channel) {
  return Record(268).be32(0, channel);
}

class PortChannels : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

// ---- The entry --------------------------------------------------------------------------------

// Every field and every byte its own value: on the wire, ...
Bytes full_entry_on_the_wire() {
  return Record(268)
      .put(0, hex("01 02 03 04  04 00 00 05"))
      .put(8, hex("11 12 13 14  15 16 17 18  19 1a 1b 1c  1d 1e 1f 20"))
      .put(24, hex("21 22 23 24  25 26 27 28  29 2a 2b 2c  2d 2e 2f 30"))
      .put(40, hex("41 42 43 44"))
      .put(100, hex("45 46 47 48"))
      .put(104, hex("01 01 00 01  01 01 00 02"))
      .put(164, hex("49 4a 4b 4c"))
      .put(168, hex("00 00 00 40  51 52 53 54  55 56 57 58"))
      .put(180, hex("61 62 63 64"))
      .put(184, hex("65 66 67 68  01 02 00 03"))
      .put(192, hex("71 72 73 74"))
      .put(252, hex("75 76 77 78"))
      .put(256, hex("81 82 83 84  85 86 87 88  89 8a 8b 8c"));
}

// ... and in host order.
Bytes full_entry() {
  return Record(268)
      .host32(0, 0x01020304)
      .host32(4, 0x04000005)
      .host32(8, 0x11121314)
      .host32(12, 0x15161718)
      .host32(16, 0x191a1b1c)
      .host32(20, 0x1d1e1f20)
      .host32(24, 0x21222324)
      .host32(28, 0x25262728)
      .host32(32, 0x292a2b2c)
      .host32(36, 0x2d2e2f30)
      .put(40, hex("41 42 43 44"))
      .put(100, hex("45 46 47 48"))
      .put(104, hex("01 01 00 01  01 01 00 02"))
      .put(164, hex("49 4a 4b 4c"))
      .host32(168, 64)
      .host32(172, 0x51525354)
      .host32(176, 0x55565758)
      .put(180, hex("61 62 63 64"))
      .host32(184, 0x65666768)
      .host32(188, 0x01020003)
      .put(192, hex("71 72 73 74"))
      .put(252, hex("75 76 77 78"))
      .host32(256, 0x81828384)
      .host32(260, 0x85868788)
      .host32(264, 0x898a8b8c);
}

pm_port_channel_entry_ entry_of(const Bytes& bytes) {
  pm_port_channel_entry_ entry;
  std::memcpy(&entry, bytes.data(), sizeof entry);
  return entry;
}

TEST_F(PortChannels, AnEntryIsConvertedToNetworkOrderWithoutItsMembers) {
  pm_port_channel_entry_ entry = entry_of(full_entry());
  pm_port_channel_entry_hton(&entry);
  EXPECT_EQ(difference(full_entry_on_the_wire(), bytes_of(entry)), "");
}

TEST_F(PortChannels, AnEntryIsConvertedToHostOrderWithoutItsMembers) {
  pm_port_channel_entry_ entry = entry_of(full_entry_on_the_wire());
  pm_port_channel_entry_ntoh(&entry);
  EXPECT_EQ(difference(full_entry(), bytes_of(entry)), "");
}

TEST_F(PortChannels, ConvertingNoEntryDoesNothing) {
  pm_port_channel_entry_hton(nullptr);
  pm_port_channel_entry_ntoh(nullptr);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PortChannels, AGetNamesTheChannelAndGivesItsEntryInHostOrder) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(0x102))).replies(full_entry_on_the_wire());
  pm_port_channel_entry_ entry;
  std::memset(&entry, 0xee, sizeof entry);
  ASSERT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 0x102, &entry), 0);
  EXPECT_EQ(difference(full_entry(), bytes_of(entry)), "");
  EXPECT_EQ(uint32_t{entry.channel}, 0x01020304u);
  EXPECT_EQ(uint32_t{entry.if_index}, 0x04000005u);
  EXPECT_EQ(uint32_t{entry.attributes_8[3]}, 0x1d1e1f20u);
  EXPECT_EQ(uint32_t{entry.attributes_24[0]}, 0x21222324u);
  EXPECT_EQ(bytes_of(entry.members)[7], 2);
  EXPECT_EQ(uint32_t{entry.member_list_length}, 64u);
  EXPECT_EQ(uint32_t{entry.attribute_172}, 0x51525354u);
  EXPECT_EQ(uint32_t{entry.attribute_176}, 0x55565758u);
  EXPECT_EQ(uint32_t{entry.attribute_184}, 0x65666768u);
  EXPECT_EQ(uint32_t{entry.if_index_188}, 0x01020003u);
  EXPECT_EQ(uint32_t{entry.attributes_256[2]}, 0x898a8b8cu);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PortChannels, OnlyExactZeroIsAGetNext) {
  Script script;
  script.expect(get_next(620).sap(34).sends(channel_request(5))).replies(channel_reply({}));
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({}));
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({}));
  pm_port_channel_entry_ entry;
  EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 0, 5, &entry), 0);
  EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 2, 5, &entry), 0);
  EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, -1, 5, &entry), 0);
}

TEST_F(PortChannels, WithoutAnEntryTheServiceIsAskedAllTheSame) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({}));
  EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, nullptr), 0);
}

TEST_F(PortChannels, AFailureIsPassedOnAndSaid) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).status(0x40330005);
  script.expect(get(620).sap(34).sends(channel_request(5))).times_out();
  script.expect(get(620).sap(34).sends(channel_request(5)))
      .status_with_reply(7, full_entry_on_the_wire());
  for (const int32_t status : {0x40330005, -1, 7}) {
    out_.clear();
    pm_port_channel_entry_ entry;
    EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &entry), status);
    EXPECT_EQ(difference(Record(268).host32(0, 5).bytes(), bytes_of(entry)), "");
    EXPECT_EQ(out_.out(), "get port channel fail " + std::to_string(status) + "\n");
  }
}

TEST_F(PortChannels, ASuccessWithoutAReplyIsZeroAfterTheMessage) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).ok_without_reply();
  pm_port_channel_entry_ entry;
  EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &entry), 0);
  EXPECT_EQ(difference(Record(268).host32(0, 5).bytes(), bytes_of(entry)), "");
  EXPECT_EQ(out_.out(), "get port channel fail 0\n");
}

TEST_F(PortChannels, OfAShortReplyAsManyBytesAreTakenAsThereAre) {
  Script script;
  // The last word but two and two bytes of the last one.
  script.expect(get(620).sap(34).sends(channel_request(5)))
      .replies(full_entry_on_the_wire())
      .cut_to(266);
  script.expect(get(620).sap(34).sends(channel_request(5)))
      .replies(full_entry_on_the_wire())
      .cut_to(4);
  pm_port_channel_entry_ entry;
  ASSERT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &entry), 0);
  EXPECT_EQ(uint32_t{entry.attributes_256[1]}, 0x85868788u);
  EXPECT_EQ(uint32_t{entry.attributes_256[2]}, 0x898a0000u);
  ASSERT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &entry), 0);
  EXPECT_EQ(difference(Record(268).host32(0, 0x01020304).bytes(), bytes_of(entry)), "");
}

TEST_F(PortChannels, OfALongReply268BytesAreTaken) {
  Bytes reply = full_entry_on_the_wire();
  reply.resize(400, 0xff);
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(reply);
  struct {
    pm_port_channel_entry_ entry;
    uint8_t behind[8];
  } place;
  std::memset(&place, 0xee, sizeof place);
  ASSERT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &place.entry), 0);
  EXPECT_EQ(difference(full_entry(), bytes_of(place.entry)), "");
  EXPECT_EQ(bytes_of(place.behind), Bytes(8, 0xee));
}

TEST_F(PortChannels, EveryReplyLengthAndPatternIsSafe) {
  sweep_replies(268, [this] {
    pm_port_channel_entry_ entry;
    EXPECT_EQ(pm_cim_get_port_channel_entry(kQueue, 1, 5, &entry), 0);
    out_.clear();
  });
}

// ---- Members ----------------------------------------------------------------------------------

TEST_F(PortChannels, AMemberIsABigEndianIndexAtAnyOffset) {
  const Bytes members = hex("00 01 02 03 04 85 86 87 88");
  uint32_t id = 0;
  EXPECT_EQ(get_port_channel_member_id(members.data(), 0, &id), 0);
  EXPECT_EQ(id, 0x00010203u);
  EXPECT_EQ(get_port_channel_member_id(members.data(), 5, &id), 0);
  EXPECT_EQ(id, 0x85868788u);
}

TEST_F(PortChannels, AMemberNeedsAListAPlaceInItAndAPlaceForTheIndex) {
  const Bytes members = zeros(8);
  uint32_t id = 9;
  EXPECT_EQ(get_port_channel_member_id(nullptr, 0, &id), -1);
  EXPECT_EQ(get_port_channel_member_id(members.data(), -4, &id), -1);
  EXPECT_EQ(get_port_channel_member_id(members.data(), 0, nullptr), -1);
  EXPECT_EQ(id, 9u);
}

TEST_F(PortChannels, TheMembersAreListedInTheirOrder) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5)))
      .replies(channel_reply({kFcNext, kFc, kEthernet}));
  script.expect(get_port(kFcNext)).gives(port_record(kFcNext));
  script.expect(get_port(kFc)).gives(port_record(kFc));
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 00 00 01"));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), 0);
  EXPECT_EQ(members.indexes(), (std::vector<uint32_t>{kFcNext, kFc, kEthernet}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PortChannels, TheMembersAreAppendedToTheCallersList) {
  Script script;
  script.expect(get_port(kIscsi)).gives(port_record(kIscsi));
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({kFc}));
  script.expect(get_port(kFc)).gives(port_record(kFc));
  Interfaces list;
  *list.out() = cim_g_slist_append(nullptr, pm_cim_find_interface(1, kIscsi, kQueue));
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, list.out()), 0);
  EXPECT_EQ(list.indexes(), (std::vector<uint32_t>{kIscsi, kFc}));
}

TEST_F(PortChannels, SixteenMembersAreListed) {
  std::vector<uint32_t> all;
  for (uint32_t port = 1; port <= 16; ++port)
    all.push_back(0x01010000 + port);
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply(all));
  for (const uint32_t member : all)
    script.expect(get_port(member)).gives(port_record(member));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), 0);
  EXPECT_EQ(members.indexes(), all);
}

TEST_F(PortChannels, AListLongerThanItsRoomIsTakenAsFull) {
  for (const uint32_t length : {65u, 68u, 0x80000000u, 0xffffffffu}) {
    Record reply(268);
    reply.be32(168, length);
    for (size_t i = 0; i < 18; ++i)
      if (i != 16) reply.be32(104 + 4 * i, kFc);
    Script script;
    script.expect(get(620).sap(34).sends(channel_request(5))).replies(reply);
    for (int i = 0; i < 16; ++i)
      script.expect(get_port(kFc)).gives(port_record(kFc));
    Interfaces members;
    EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), 0);
    EXPECT_EQ(members.indexes().size(), 16u) << length;
    EXPECT_EQ(out_.out(), "") << length;  // nothing behind the room is taken for a member
  }
}

TEST_F(PortChannels, APartOfAMemberCountsAsOne) {
  Record reply(268);
  reply.be32(104, kFc).be32(108, kFcNext).be32(168, 5);
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(reply);
  script.expect(get_port(kFc)).gives(port_record(kFc));
  script.expect(get_port(kFcNext)).gives(port_record(kFcNext));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), 0);
  EXPECT_EQ(members.indexes(), (std::vector<uint32_t>{kFc, kFcNext}));
}

TEST_F(PortChannels, AnEmptyChannelIsAFailureWithAnEmptyList) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({}));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), -1);
  EXPECT_EQ(*members.out(), nullptr);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PortChannels, AChannelThatCannotBeReadHasNoMembers) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).status(7);
  script.expect(get(620).sap(34).sends(channel_request(5))).ok_without_reply();
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), -1);
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), -1);
  EXPECT_EQ(*members.out(), nullptr);
  EXPECT_EQ(out_.out(), "get port channel fail 7\nget port channel fail 0\n");
}

TEST_F(PortChannels, AMemberThatHasVanishedIsSaidAndTheOthersAreListed) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5)))
      .replies(channel_reply({kFc, kFcNext, kIscsi}));
  script.expect(get_port(kFc)).gives(port_record(kFc));
  script.expect(get_port(kFcNext)).gives(port_record(kFcNext).host32(4, 1));
  script.expect(get_port(kIscsi)).gives(port_record(kIscsi));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), 0);
  EXPECT_EQ(members.indexes(), (std::vector<uint32_t>{kFc, kIscsi}));
  EXPECT_EQ(out_.out(), "get portchannel member interface 16842754 fail \n");
}

TEST_F(PortChannels, WithoutAnyReadableMemberTheResultIsAFailure) {
  Script script;
  script.expect(get(620).sap(34).sends(channel_request(5))).replies(channel_reply({kFc, kUnknown}));
  script.expect(get_port(kFc)).times_out();
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, members.out()), -1);
  EXPECT_EQ(*members.out(), nullptr);
  EXPECT_EQ(out_.out(),
            "get portchannel member interface 16842753 fail \n"
            "get portchannel member interface 50331649 fail \n");
}

TEST_F(PortChannels, WithoutAListNothingIsAsked) {
  Script script;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(kQueue, 5, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChannels, TheSessionIsPassedThrough) {
  Script script;
  script.expect(get(620).sap(34).q(12).sends(channel_request(5)))
      .replies(channel_reply({kEthernet}));
  script.expect(get_port(kEthernet).q(12)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2).q(12)).gives(hex("0a 00 00 01"));
  Interfaces members;
  EXPECT_EQ(pm_cim_get_port_channel_interfaces(12, 5, members.out()), 0);
}

TEST(PortChannelFailures, EveryFailingCallOfAMemberListLeavesNothingBehind) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    StdioCapture out;
    Script script;
    script.expect(get(620).sap(34).sends(channel_request(5)))
        .replies(channel_reply({kFc, kFcNext}));
    script.expect(get_port(kFc)).gives(port_record(kFc));
    script.expect(get_port(kFcNext)).gives(port_record(kFcNext));
    Interfaces members;
    const int32_t result = pm_cim_get_port_channel_interfaces(kQueue, 5, members.out());
    // Without the channel there are no members; without one member there is the other.
    const bool no_channel = failing.was_hit() && failing.n() == 1;
    EXPECT_EQ(result, no_channel ? -1 : 0);
    EXPECT_EQ(members.indexes().size(), no_channel ? 0u : failing.was_hit() ? 1u : 2u);
  });
  EXPECT_EQ(rounds, 4u);
}

// ---- FCIP bindings ----------------------------------------------------------------------------

constexpr uint32_t kFcipNext = 0x0a000008;
constexpr uint32_t kEthernetNext = 0x02020004;

class FcipBindings : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(FcipBindings, TheFcipInterfacesOfAnEthernetPortAreListedLastFirst) {
  Script script;
  script.expect(fcip_interfaces_of(kEthernet)).gives({kFcip, kFcipNext});
  script.expect(get_port(kFcipNext)).gives(port_record(kFcipNext));
  script.expect(get_port(kFcip)).gives(port_record(kFcip));
  Interfaces found;
  EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, found.out()), 0);
  EXPECT_EQ(found.indexes(), (std::vector<uint32_t>{kFcipNext, kFcip}));
  EXPECT_EQ(out_.out(),
            " \t pm found fcip 167772168 for eth 33685507 \n"
            " \t pm found fcip 167772167 for eth 33685507 \n");
}

TEST_F(FcipBindings, TheEthernetPortsOfAnFcipInterfaceAreListedLastFirst) {
  Script script;
  script.expect(ethernet_interfaces_of(kFcip)).gives({kEthernet, kEthernetNext});
  script.expect(get_port(kEthernetNext)).gives(port_record(kEthernetNext));
  script.expect(get_interface_address(kEthernetNext, 2)).gives(hex("0a 00 00 02"));
  script.expect(get_port(kEthernet)).gives(port_record(kEthernet));
  script.expect(get_interface_address(kEthernet, 2)).gives(hex("0a 00 00 01"));
  Interfaces found;
  EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(kQueue, kFcip, found.out()), 0);
  EXPECT_EQ(found.indexes(), (std::vector<uint32_t>{kEthernetNext, kEthernet}));
  EXPECT_EQ(out_.out(), "");
}

TEST_F(FcipBindings, AnInterfaceThatHasVanishedIsSaidByTheOneAskedAbout) {
  Script script;
  script.expect(fcip_interfaces_of(kEthernet)).gives({kFcip, kFcipNext});
  script.expect(get_port(kFcipNext)).fails(5);
  script.expect(get_port(kFcip)).gives(port_record(kFcip));
  Interfaces fcip;
  EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, fcip.out()), 0);
  EXPECT_EQ(fcip.indexes(), (std::vector<uint32_t>{kFcip}));
  EXPECT_EQ(out_.out(),
            " \t pm found fcip 167772168 for eth 33685507 \n"
            "get ether if - fcip interface 33685507 fail \n"
            " \t pm found fcip 167772167 for eth 33685507 \n");

  out_.clear();
  script.expect(ethernet_interfaces_of(kFcip)).gives({kEthernet});
  script.expect(get_port(kEthernet)).times_out();
  Interfaces ethernet;
  EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(kQueue, kFcip, ethernet.out()), -1);
  EXPECT_EQ(*ethernet.out(), nullptr);
  EXPECT_EQ(out_.out(), "get fcip if - ether interface 167772167 fail \n");
}

TEST_F(FcipBindings, WithoutABlockOrWithAnEmptyOneThereAreNone) {
  Script script;
  Interfaces found;
  uint32_t ethernet = 9;
  script.expect(fcip_interfaces_of(kEthernet)).gives_nothing();
  script.expect(ethernet_interfaces_of(kFcip)).gives_nothing();
  script.expect(ethernet_interfaces_of(kFcip)).gives_nothing();
  script.expect(fcip_interfaces_of(kEthernet)).gives({});
  script.expect(ethernet_interfaces_of(kFcip)).gives({});
  script.expect(ethernet_interfaces_of(kFcip)).gives({});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, found.out()), -1);
    EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(kQueue, kFcip, found.out()), -1);
    EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(kQueue, kFcip, &ethernet), -1);
  }
  EXPECT_EQ(*found.out(), nullptr);
  EXPECT_EQ(ethernet, 9u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(FcipBindings, ACountThatTheBlockDoesNotHoldIsTakenAsWhatItHolds) {
  Script script;
  script.expect(fcip_interfaces_of(kEthernet)).gives_block({3, kFcip, kFcipNext});
  script.expect(get_port(kFcipNext)).gives(port_record(kFcipNext));
  script.expect(get_port(kFcip)).gives(port_record(kFcip));
  script.expect(ethernet_interfaces_of(kFcip)).gives_block({0xffffffff, kEthernetNext});
  script.expect(get_port(kEthernetNext)).gives(port_record(kEthernetNext));
  script.expect(get_interface_address(kEthernetNext, 2)).fails(5);
  script.expect(ethernet_interfaces_of(kFcip)).gives_block({0x80000000, kEthernetNext});
  Interfaces fcip;
  EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, fcip.out()), 0);
  EXPECT_EQ(fcip.indexes(), (std::vector<uint32_t>{kFcipNext, kFcip}));
  Interfaces ethernet;
  EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(kQueue, kFcip, ethernet.out()), 0);
  EXPECT_EQ(ethernet.indexes(), (std::vector<uint32_t>{kEthernetNext}));
  uint32_t if_index = 0;
  EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(kQueue, kFcip, &if_index), 0);
  EXPECT_EQ(if_index, kEthernetNext);
}

TEST_F(FcipBindings, OfTheBlockOnlyTheCountedIndexesAreTaken) {
  Script script;
  script.expect(ethernet_interfaces_of(kFcip)).gives_block({1, kEthernet, kEthernetNext});
  uint32_t if_index = 0;
  EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(kQueue, kFcip, &if_index), 0);
  EXPECT_EQ(if_index, kEthernet);
}

TEST_F(FcipBindings, TheEthernetIndexIsTheLastOfTheBlock) {
  Script script;
  script.expect(ethernet_interfaces_of(kFcip)).gives({kEthernet, kEthernetNext});
  uint32_t if_index = 0;
  EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(kQueue, kFcip, &if_index), 0);
  EXPECT_EQ(if_index, kEthernetNext);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(FcipBindings, WithoutAPlaceForTheResultNothingIsAsked) {
  Script script;
  EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, nullptr), -1);
  EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(kQueue, kFcip, nullptr), -1);
  EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(kQueue, kFcip, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(FcipBindings, TheSessionIsPassedThrough) {
  Script script;
  script.expect(fcip_interfaces_of(kEthernet).q(12)).gives({kFcip});
  script.expect(get_port(kFcip).q(12)).gives(port_record(kFcip));
  script.expect(ethernet_interfaces_of(kFcip).q(12)).gives({kFc});
  script.expect(get_port(kFc).q(12)).gives(port_record(kFc));
  script.expect(ethernet_interfaces_of(kFcip).q(12)).gives({kEthernet});
  Interfaces found;
  uint32_t ethernet = 0;
  EXPECT_EQ(pm_cim_get_fcip_interfaces_for_eth_interface(12, kEthernet, found.out()), 0);
  EXPECT_EQ(pm_cim_get_ether_interfaces_for_fcip_interface(12, kFcip, found.out()), 0);
  EXPECT_EQ(pm_cim_get_ether_index_for_fcip_interface(12, kFcip, &ethernet), 0);
}

TEST(FcipBindingFailures, EveryFailingCallLeavesNothingBehind) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    StdioCapture out;
    Script script;
    script.expect(fcip_interfaces_of(kEthernet)).gives({kFcip});
    script.expect(get_port(kFcip)).gives(port_record(kFcip));
    Interfaces found;
    const int32_t result =
        pm_cim_get_fcip_interfaces_for_eth_interface(kQueue, kEthernet, found.out());
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
  });
  EXPECT_EQ(rounds, 3u);
}

}  // namespace
