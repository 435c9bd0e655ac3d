#include <switch_platform/name_server.h>
#include <switch_platform/records_name_server.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fault;

constexpr int32_t kRejected = 0x4025000A;
constexpr int32_t kNoTime = 62;

class NameServer : public SimulatorTest {
 protected:
  // Over the message seam; a client function leads to the same.
  Result query(uint32_t opcode, const char* header, const char* value) {
    const std::string_view text = value;
    return call(257, opcode, 1, Pattern(8 + text.size() / 2).at(0, header).at(8, text).bytes());
  }

  mts_msg_t* receive(mts_msg_t* request) {
    const cim_mts_recv_opts opts = {1, 0, 10, mts_rr_token_get(request), 0, 0};
    mts_msg_t* reply = nullptr;
    mts_recv(q, &reply, &opts);
    mts_drop(q, request);
    return reply;
  }

  // A WWN as its two words in memory.
  static void words(const char* wwn, uint32_t* word0, uint32_t* word1) {
    const auto bytes = Pattern(8).at(0, wwn).bytes();
    memcpy(word0, bytes.data(), 4);
    memcpy(word1, bytes.data() + 4, 4);
  }

  using Send = int32_t (*)(int32_t, uint32_t, uint32_t, const ns_query_*, mts_msg_t**);

  mts_msg_t* ask(Send send, uint32_t vsan, const char* wwn) {
    const ns_query_ block = {vsan, 0x0A47, {}, {}};
    uint32_t word0 = 0, word1 = 0;
    words(wwn, &word0, &word1);
    mts_msg_t* request = nullptr;
    EXPECT_EQ(0, send(q, word0, word1, &block, &request));
    return receive(request);
  }

  mts_msg_t* ask_all(uint32_t vsan, uint32_t type = 127, uint16_t selector = 0x0A47) {
    const ns_query_ block = {vsan, selector, {}, {}};
    mts_msg_t* request = nullptr;
    EXPECT_EQ(0, ns_send_get_entries_given_port_type(q, type, &block, &request));
    return receive(request);
  }

  struct Listed {
    int32_t status = 0;
    std::vector<std::string> fc_ids;  // with a "*" for a duplicate
  };

  // Takes the reply apart and drops it.
  Listed listed(mts_msg_t* reply) {
    Listed result;
    int32_t count = 0;
    void* cursor = nullptr;
    result.status = ns_parse_get_entry_status(reply, &count, &cursor);
    for (int32_t i = 0; i < count; ++i) {
      ns_api_register_req_ entry;
      uint8_t duplicate = 0;
      EXPECT_EQ(0, ns_parse_get_entry(reply, cursor, &entry, i));
      EXPECT_EQ(0, ns_parse_is_entry_duplicate(reply, cursor, i, &duplicate));
      char text[16];
      snprintf(text, sizeof text, "%02x%02x%02x%s", entry.fcid[1], entry.fcid[2], entry.fcid[3],
               duplicate != 0 ? "*" : "");
      result.fc_ids.emplace_back(text);
    }
    ns_api_register_req_ beyond;
    EXPECT_NE(0, ns_parse_get_entry(reply, cursor, &beyond, count));
    EXPECT_NE(0, ns_parse_get_entry(reply, cursor, &beyond, -1));
    mts_drop(q, reply);
    return result;
  }

  using Texts = std::vector<std::string>;
};

TEST_F(NameServer, ADeviceIsFoundByItsPortName) {
  expect_reply(query(0x12001, "000000010a470000", "2100001122334401"),
               Pattern(776)
                   .at(0, "00000001")
                   .at(8 + 4, "00000001")
                   .at(8 + 9, "610000")
                   .at(8 + 12, "2100001122334401")
                   .at(8 + 38, "01")  // FC-4 type 8
                   .at(8 + 196, "00000001")
                   .at(8 + 200, "2000001122334401")
                   .at(8 + 236, "2041000dec0a1b2c"));
}

TEST_F(NameServer, AnIscsiInitiatorHasItsTypeAndAddress) {
  expect_reply(query(0x12001, "000000010a470000", "2100001122334451"),
               Pattern(776)
                   .at(0, "00000001")
                   .at(8 + 4, "00000001")
                   .at(8 + 9, "610800")
                   .at(8 + 12, "2100001122334451")
                   .at(8 + 38, "01")
                   .at(8 + 67, "02")  // FC-4 type 225
                   .at(8 + 196, "00000001")
                   .at(8 + 200, "2000001122334451")
                   .at(8 + 220, "c0000281")
                   .at(8 + 236, "2081000dec0a1b2c"));
}

TEST_F(NameServer, TheClientGivesNumbersInHostOrder) {
  mts_msg_t* reply = ask(ns_send_get_entry_given_portname, 2, "2100001122334432");
  int32_t count = 0;
  void* cursor = nullptr;
  ASSERT_EQ(0, ns_parse_get_entry_status(reply, &count, &cursor));
  ASSERT_EQ(1, count);
  ns_api_register_req_ entry;
  ASSERT_EQ(0, ns_parse_get_entry(reply, cursor, &entry, 0));
  EXPECT_EQ(2U, entry.vsan_index);
  EXPECT_EQ(2U, entry.port_type);
  EXPECT_EQ(0x15, entry.fcid[1]);
  EXPECT_EQ(0x06, entry.fcid[2]);
  EXPECT_EQ(0xE4, entry.fcid[3]);
  EXPECT_EQ(0x47, entry.fabric_port_wwn.bytes[1]);
  EXPECT_NE(0, ns_is_set_fc4_type(entry.fc4_types, 8));
  EXPECT_EQ(0, ns_is_set_fc4_type(entry.fc4_types, 225));
  mts_drop(q, reply);
}

TEST_F(NameServer, ALoopIsFoundByItsSwitchPort) {
  EXPECT_EQ((Texts{"1506e2", "1506e4", "1506e8"}),
            listed(ask(ns_send_get_entries_given_fab_port_name, 2, "2047000dec0a1b2c")).fc_ids);
}

TEST_F(NameServer, ANodeIsFoundWithItsPortsInTheVsan) {
  EXPECT_EQ((Texts{"620000"}),
            listed(ask(ns_send_get_entries_given_nodename, 1, "2000001122334421")).fc_ids);
  EXPECT_EQ((Texts{"170100"}),
            listed(ask(ns_send_get_entries_given_nodename, 2, "2000001122334421")).fc_ids);
}

TEST_F(NameServer, AVsanListsItsDevicesByFcId) {
  EXPECT_EQ((Texts{"610000", "610200", "610800", "620000", "630000"}), listed(ask_all(1)).fc_ids);
  EXPECT_EQ((Texts{"150300", "1506e2", "1506e4", "1506e8", "160200", "170100"}),
            listed(ask_all(2, 127, 0x0114)).fc_ids);
}

TEST_F(NameServer, APortTypeListsOnlyItsOwn) {
  EXPECT_EQ((Texts{"150300", "160200", "170100"}), listed(ask_all(2, 1)).fc_ids);
  EXPECT_EQ((Texts{"1506e2", "1506e4", "1506e8"}), listed(ask_all(2, 2)).fc_ids);
}

TEST_F(NameServer, ADeviceThatIsRegisteredTwiceIsListedTwice) {
  auto fabric = control::fabric();
  fabric.devices[3].registered_twice = true;  // array-1
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ((Texts{"610000", "610200", "610200*", "610800", "620000", "630000"}),
            listed(ask_all(1)).fc_ids);
}

TEST_F(NameServer, AQueryThatFindsNothingIsRejectedWithItsReason) {
  struct Case {
    mts_msg_t* reply;
    int32_t explanation;
  };
  const Case cases[] = {
      {ask(ns_send_get_entry_given_portname, 2, "2100001122334401"), 2},
      {ask(ns_send_get_entries_given_nodename, 1, "2000001122334499"), 3},
      {ask(ns_send_get_entries_given_fab_port_name, 1, "2042000dec0a1b2c"), 12},
      {ask_all(1, 2), 10},
      {ask_all(1, 3), 10},
  };
  for (const Case& found : cases) {
    int32_t count = 77, error = 0, expln = 0;
    void* cursor = &count;
    EXPECT_EQ(kRejected, ns_parse_get_entry_status(found.reply, &count, &cursor));
    EXPECT_EQ(0, count);
    EXPECT_EQ(nullptr, cursor);
    EXPECT_EQ(kRejected, ns_parse_get_ct_error(found.reply, &error, &expln));
    EXPECT_EQ(9, error);
    EXPECT_EQ(found.explanation, expln);
    mts_drop(q, found.reply);
  }
}

TEST_F(NameServer, AReplyThatIsNoRejectHasNoReason) {
  mts_msg_t* reply = ask_all(1);
  int32_t error = 77, expln = 77;
  EXPECT_EQ(kNotFound, ns_parse_get_ct_error(reply, &error, &expln));
  EXPECT_EQ(0, error);
  EXPECT_EQ(0, expln);
  mts_drop(q, reply);
}

TEST_F(NameServer, AVsanThatIsUnknownOrDoesNotRunIsRefused) {
  EXPECT_EQ(kNotFound, listed(ask_all(3)).status);
  auto fabric = control::fabric();
  fabric.vsans[1].state = switch_sim::VsanState::suspended;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(kNotRunning, listed(ask_all(2)).status);
}

TEST_F(NameServer, ADeviceLeavesWithItsPort) {
  expect_reply(call(34, 0x11002, 3, Pattern(9).at(0, "010100010000000102").bytes()),
               Pattern(8).at(0, "01010001"));
  EXPECT_EQ((Texts{"610200", "610800", "620000", "630000"}), listed(ask_all(1)).fc_ids);
  expect_reply(call(34, 0x11002, 3, Pattern(9).at(0, "010100010000000101").bytes()),
               Pattern(8).at(0, "01010001"));
  EXPECT_EQ(5U, listed(ask_all(1)).fc_ids.size());
}

TEST_F(NameServer, AnotherQueryIsRefused) {
  expect_refused(query(0x12001, "0000000100010000", "2100001122334401"), kBadValue);
  expect_refused(query(0x12001, "000000010a470000", "21000011223344"), kBadLength);
  expect_refused(query(0x12004, "000000010a470000", "2100001122334401"), kBadLength);
  expect_refused(query(0x12005, "00000001000001ff", "2100001122334401"), kBadValue);
  expect_refused(query(0x12005, "0000000300000008", "2100001122334401"), kNotFound);
  expect_refused(call(257, 0x12001, 2, Pattern(16).bytes()), kBadOperation);
  expect_refused(call(257, 0x12005, 2, Pattern(16).bytes()), kBadOperation);
  expect_refused(call(257, 0x12005, 1, Pattern(15).bytes()), kBadLength);
}

TEST_F(NameServer, Fc4DevicesOfANodeOrPort) {
  mts_msg_t* reply = nullptr;
  const auto node = Pattern(8).at(0, "2000001122334421").bytes();
  ASSERT_EQ(0, ns_get_fc4_devices(q, 2, 8, node.data(), &reply));
  ASSERT_EQ(1, ns_parse_get_num_fc4_devices(reply));
  uint8_t slot[24];
  memset(slot, 0xEE, sizeof slot);
  ASSERT_EQ(0, ns_parse_get_fc4_device_entry(reply, slot, 0));
  EXPECT_EQ(Pattern(24).at(1, "170100").bytes(), std::vector<uint8_t>(slot, slot + 24));
  EXPECT_NE(0, ns_parse_get_fc4_device_entry(reply, slot, 1));
  EXPECT_NE(0, ns_parse_get_fc4_device_entry(reply, slot, -1));
  EXPECT_NE(0, ns_parse_get_fc4_device_entry(reply, nullptr, 0));
  mts_drop(q, reply);

  const auto port = Pattern(8).at(0, "2100001122334451").bytes();
  ASSERT_EQ(0, ns_get_fc4_devices(q, 1, 225, port.data(), &reply));
  EXPECT_EQ(1, ns_parse_get_num_fc4_devices(reply));
  mts_drop(q, reply);
}

TEST_F(NameServer, ANodeWithoutTheTypeHasNoFc4Devices) {
  const auto node = Pattern(8).at(0, "2000001122334421").bytes();
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, ns_get_fc4_devices(q, 2, 225, node.data(), &reply));
  EXPECT_EQ(0, ns_parse_get_num_fc4_devices(reply));
  mts_drop(q, reply);
  EXPECT_EQ(kNotFound, ns_get_fc4_devices(q, 9, 8, node.data(), &reply));
  EXPECT_EQ(nullptr, reply);
  EXPECT_EQ(kBadValue, ns_get_fc4_devices(q, 2, 8, nullptr, &reply));
  EXPECT_EQ(kBadValue, ns_get_fc4_devices(q, 2, 8, node.data(), nullptr));
}

TEST_F(NameServer, AReplyThatIsCutFailsInTheParse) {
  for (const int32_t length : {0, 3, 4, 775}) {
    control::set_faults({{.opcode = 0x12001, .kind = Fault::Kind::short_reply, .value = length}});
    mts_msg_t* reply = ask(ns_send_get_entry_given_portname, 1, "2100001122334401");
    int32_t count = 0;
    void* cursor = nullptr;
    EXPECT_EQ(kBadLength, ns_parse_get_entry_status(reply, &count, &cursor)) << length;
    EXPECT_EQ(0, count);
    uint8_t slot[768];
    EXPECT_NE(0, ns_parse_get_entry(reply, cursor, slot, 0));
    mts_drop(q, reply);
  }
  control::set_faults({{.opcode = 0x12005, .kind = Fault::Kind::short_reply, .value = 27}});
  const auto node = Pattern(8).at(0, "2000001122334401").bytes();
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, ns_get_fc4_devices(q, 1, 8, node.data(), &reply));
  EXPECT_EQ(0, ns_parse_get_num_fc4_devices(reply));
  mts_drop(q, reply);
}

TEST_F(NameServer, ALateReplyIsATimeOut) {
  control::set_faults({{.opcode = 0x12004, .kind = Fault::Kind::delay, .value = 11000}});
  EXPECT_EQ(nullptr, ask_all(1));
  EXPECT_EQ(kNoTime, mts_errno_get(q));
}

TEST_F(NameServer, ACursorOfAnotherReplyReadsNothing) {
  mts_msg_t* first = ask_all(1);
  mts_msg_t* second = ask_all(2);
  int32_t count = 0;
  void* cursor = nullptr;
  ASSERT_EQ(0, ns_parse_get_entry_status(first, &count, &cursor));
  uint8_t slot[768];
  uint8_t duplicate = 77;
  EXPECT_NE(0, ns_parse_get_entry(second, cursor, slot, 0));
  EXPECT_NE(0, ns_parse_is_entry_duplicate(second, cursor, 0, &duplicate));
  EXPECT_EQ(0, duplicate);
  EXPECT_NE(0, ns_parse_get_entry(first, nullptr, slot, 0));
  EXPECT_NE(0, ns_parse_get_entry(first, cursor, nullptr, 0));
  mts_drop(q, first);
  mts_drop(q, second);
}

TEST_F(NameServer, WithoutAReplyNothingIsParsed) {
  int32_t count = 77, error = 77, expln = 77;
  void* cursor = &count;
  uint8_t slot[768], duplicate = 77;
  EXPECT_EQ(-1, ns_parse_get_entry_status(nullptr, &count, &cursor));
  EXPECT_NE(0, ns_parse_get_entry(nullptr, nullptr, slot, 0));
  EXPECT_EQ(-1, ns_parse_get_ct_error(nullptr, &error, &expln));
  EXPECT_NE(0, ns_parse_is_entry_duplicate(nullptr, nullptr, 0, &duplicate));
  EXPECT_EQ(0, ns_parse_get_num_fc4_devices(nullptr));
  EXPECT_NE(0, ns_parse_get_fc4_device_entry(nullptr, slot, 0));
  EXPECT_NE(0, ns_parse_get_entry_status(nullptr, nullptr, &cursor));
}

TEST_F(NameServer, AnUnboundQueueCannotSend) {
  const ns_query_ block = {1, 0x0A47, {}, {}};
  mts_msg_t* request = nullptr;
  EXPECT_EQ(-1, ns_send_get_entries_given_port_type(12345, 127, &block, &request));
  EXPECT_EQ(nullptr, request);
  EXPECT_EQ(EBADF, errno);
  EXPECT_NE(0, ns_send_get_entry_given_portname(q, 0, 0, nullptr, &request));
  EXPECT_NE(0, ns_send_get_entry_given_portname(q, 0, 0, &block, nullptr));
}

TEST_F(NameServer, FiveThousandDevicesAreListedOnceEach) {
  ASSERT_EQ(std::nullopt,
            control::install_generated("switches=4,ports=768,vsans=1,devices=5000,seed=9"));
  const auto fabric = control::fabric();
  size_t expected = 0;
  for (const auto& device : fabric.devices)
    expected += device.registered_twice ? 2 : 1;
  EXPECT_EQ(5000U, fabric.devices.size());
  EXPECT_EQ(expected, listed(ask_all(1)).fc_ids.size());
}

}  // namespace
}  // namespace simulator_test
