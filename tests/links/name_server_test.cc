#include <cim_utils/collections.h>
#include <cim_utils/name_server.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "tests/links/link_doubles.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/double_mts.h"
#include "tests/support/double_name_server.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

// A WWN, and the two words that it is in memory.
constexpr char kWwn[] = "21 00 00 e0 8b 0a 1b 2c";
constexpr char kWwnText[] = "210000E08B0A1B2C";

uint32_t in_memory(const char* four_bytes) {
  const Bytes bytes = hex(four_bytes);
  uint32_t word;
  std::memcpy(&word, bytes.data(), sizeof word);
  return word;
}
uint32_t word0() {
  return in_memory("21 00 00 e0");
}
uint32_t word1() {
  return in_memory("8b 0a 1b 2c");
}

Bytes query_block(uint32_t vsan, uint16_t selector = 0x0a47) {
  return Record(16).host32(0, vsan).host16(4, selector);
}

// A registered port, by the last byte of its FC ID.
Bytes entry(uint8_t port, uint8_t fabric_port = 1, uint8_t domain = 0x0a) {
  return Record(768)
      .host32(4, 5)
      .byte(9, domain)
      .byte(10, 0x0b)
      .byte(11, port)
      .put(12, hex("21 00 00 e0 8b 00 00"))
      .byte(19, port)
      .put(200, hex("80 00 00 e0 8b 00 00"))
      .byte(207, port)
      .put(236, hex("20 01 00 0d ec 0a 1b"))
      .byte(243, fabric_port)
      .byte(767, 0x99);
}

// The client says that the request was sent, and hands none out.
void without_request(NameServerQuery query) {
  query.returns(0).call()->answer.refused = true;
}

using Send = NameServerQuery (*)(uint32_t, uint32_t);

// One of the lookups by a WWN, with everything in which they differ.
struct Lookup {
  const char* name;
  int32_t (*call)(const uint8_t* wwn, int32_t* count, ns_api_register_req_** entries);
  Send send;
  const char* send_failure;
  const char* receive_failure;
};

void PrintTo(const Lookup& lookup, std::ostream* out) {
  *out << lookup.name;
}

constexpr Lookup kLookups[] = {
    {"port",
     [](const uint8_t* wwn, int32_t* count, ns_api_register_req_** entries) {
       return ns_cim_get_node_or_nxport_with_wwn_byte_array(kQueue, 5, wwn, 0, count, entries);
     },
     query_port_name, "get_entry_given_port_name failed!", "MTS recv failed!"},
    {"node",
     [](const uint8_t* wwn, int32_t* count, ns_api_register_req_** entries) {
       return ns_cim_get_node_or_nxport_with_wwn_byte_array(kQueue, 5, wwn, 2, count, entries);
     },
     query_node_name, "get_entry_given_node_name failed!", "MTS recv failed!"},
    {"fabric port",
     [](const uint8_t* wwn, int32_t* count, ns_api_register_req_** entries) {
       return ns_cim_get_fxport_entries_with_wwn_byte_array(kQueue, 5, wwn, count, entries);
     },
     query_fabric_port_name, "get_entry_given_fab_port_name failed!",
     "get fwwn entry MTS recv failed!"},
};

class NameServer : public testing::Test {
 protected:
  ~NameServer() override { forget(); }
  void forget() {
    std::free(entries_);
    entries_ = nullptr;
    count_ = 9;
  }
  // The last byte of each entry's FC ID.
  std::vector<int> ports() const {
    std::vector<int> found;
    for (int32_t i = 0; i < count_; ++i)
      found.push_back(entries_[i].fcid[3]);
    return found;
  }

  HeapLedger ledger_;
  StdioCapture out_;
  int32_t count_ = 9;
  ns_api_register_req_* entries_ = nullptr;
};

// ---- By a WWN -----------------------------------------------------------------------------

class NameServerLookup : public NameServer, public testing::WithParamInterface<Lookup> {
 protected:
  int32_t look_up() { return GetParam().call(hex(kWwn).data(), &count_, &entries_); }
  NameServerQuery query() { return GetParam().send(word0(), word1()).query(query_block(5)); }
  Receive reply() { return receive().timeout(10); }
};

TEST_P(NameServerLookup, AsksOnceAndGivesTheEntriesAsTheyCame) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).receives(name_server_reply().entry(entry(0x10)).entry(entry(0x20)));
  ASSERT_EQ(look_up(), 0);
  ASSERT_EQ(count_, 2);
  EXPECT_EQ(bytes_of(entries_[0]), entry(0x10));
  EXPECT_EQ(bytes_of(entries_[1]), entry(0x20));
  EXPECT_EQ(entries_[1].vsan_index, 5u);
  EXPECT_EQ(bytes_of(entries_[1].port_wwn), hex("21 00 00 e0 8b 00 00 20"));
  EXPECT_EQ(bytes_of(entries_[1].node_wwn), hex("80 00 00 e0 8b 00 00 20"));
  EXPECT_EQ(bytes_of(entries_[1].fabric_port_wwn), hex("20 01 00 0d ec 0a 1b 01"));
  const std::string out = out_.out();
  EXPECT_NE(out.find("\na:b:10 - 210000E08B000010, "), std::string::npos) << out;
  EXPECT_NE(out.find("\n800000E08B000010\n"), std::string::npos) << out;
  EXPECT_NE(out.find("\na:b:20 - 210000E08B000020, "), std::string::npos) << out;
}

TEST_P(NameServerLookup, NoEntriesAreASuccess) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).receives(name_server_reply());
  EXPECT_EQ(look_up(), 0);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(out_.out(), "");
}

TEST_P(NameServerLookup, ReadingEndsAtTheEntryThatCannotBeRead) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).receives(
      name_server_reply().entry(entry(1)).entry(entry(2)).entry(entry(3)).entry_fails(1));
  EXPECT_EQ(look_up(), 0);
  EXPECT_EQ(ports(), std::vector<int>{1});
}

TEST_P(NameServerLookup, NoMoreEntriesAreReadThanWereAnnounced) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).receives(name_server_reply().entry(entry(1)).entry(entry(2)).count(1));
  EXPECT_EQ(look_up(), 0);
  EXPECT_EQ(ports(), std::vector<int>{1});
}

TEST_P(NameServerLookup, MoreEntriesAnnouncedThanThereAreCountForNothing) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).receives(name_server_reply().entry(entry(1)).count(100));
  EXPECT_EQ(look_up(), 0);
  EXPECT_EQ(ports(), std::vector<int>{1});
}

TEST_P(NameServerLookup, ACountThatNoVsanHasIsAFailure) {
  for (const int32_t count : {-1, INT32_MIN, 0x1000001, INT32_MAX}) {
    Script script;
    script.expect(query()).sent();
    script.expect(reply()).receives(name_server_reply().entry(entry(1)).count(count));
    EXPECT_EQ(look_up(), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(entries_, nullptr);
  }
}

TEST_P(NameServerLookup, ARequestThatIsNotSentIsToldByItsName) {
  Script script;
  script.expect(query()).fails(3);
  EXPECT_EQ(look_up(), -1);
  EXPECT_EQ(out_.out(), GetParam().send_failure);
  // A message that was made all the same is dropped.
  script.expect(query()).fails_with_message(3);
  EXPECT_EQ(look_up(), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(entries_, nullptr);
}

TEST_P(NameServerLookup, AReplyThatDoesNotComeIsToldAndTheRequestDropped) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).times_out();
  EXPECT_EQ(look_up(), -1);
  EXPECT_EQ(out_.out(), GetParam().receive_failure);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(entries_, nullptr);
}

TEST_P(NameServerLookup, ASuccessfulSendWithoutARequestWaitsForNothing) {
  Script script;
  without_request(script.expect(query()));
  EXPECT_EQ(look_up(), -1);
  EXPECT_EQ(out_.out(), GetParam().receive_failure);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(entries_, nullptr);
}

TEST_P(NameServerLookup, AFailedReceiveWithAMessageAndNoneWithoutAreFailures) {
  Script script;
  script.expect(query()).sent();
  script.expect(reply()).fails_with_message(-1, name_server_reply().entry(entry(1)));
  EXPECT_EQ(look_up(), -1);
  script.expect(query()).sent();
  script.expect(reply()).receives_nothing();
  EXPECT_EQ(look_up(), -1);
  EXPECT_EQ(out_.out(), std::string(GetParam().receive_failure) + GetParam().receive_failure);
}

TEST_P(NameServerLookup, TheReplyIsThatToTheRequest) {
  Script script;
  script.expect(query().request_token(0x1234)).sent();
  script.expect(reply().token(0x1234)).receives(name_server_reply());
  EXPECT_EQ(look_up(), 0);
}

TEST_P(NameServerLookup, AReplyOfAFailureIsTold) {
  Script script;
  for (const int32_t status : {1, -1, 0x4025000a}) {
    script.expect(query()).sent();
    script.expect(reply()).receives(name_server_reply().status(status).ct_error(9, 10));
    EXPECT_EQ(look_up(), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(entries_, nullptr);
    // Only the walk over a VSAN asks why.
    EXPECT_EQ(out_.out(), "parse_get_entry_status returned error");
    out_.clear();
  }
}

TEST_P(NameServerLookup, WithoutMemoryBothMessagesAreDropped) {
  const size_t rounds = for_every_failing_allocation([this](FailingAllocation& round) {
    Script script;
    script.expect(query()).sent();
    script.expect(reply()).receives(name_server_reply().entry(entry(1)));
    int32_t count = 9;
    ns_api_register_req_* entries = nullptr;
    const Bytes wwn = hex(kWwn);
    const int32_t status =
        round.attempt([&] { return GetParam().call(wwn.data(), &count, &entries); });
    EXPECT_EQ(status, round.was_hit() ? -1 : 0);
    EXPECT_EQ(count, round.was_hit() ? 0 : 1);
    std::free(entries);
  });
  EXPECT_EQ(rounds, 2u);
}

TEST_P(NameServerLookup, NullArgumentsAreFailuresWithoutARequest) {
  Script script;
  EXPECT_EQ(GetParam().call(nullptr, &count_, &entries_), -1);
  EXPECT_EQ(GetParam().call(hex(kWwn).data(), nullptr, &entries_), -1);
  EXPECT_EQ(GetParam().call(hex(kWwn).data(), &count_, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Each, NameServerLookup, testing::ValuesIn(kLookups));

TEST_F(NameServer, TheOtherFormsOfALookupAskTheSame) {
  Script script;
  wwn_ wwn;
  std::memcpy(&wwn, hex(kWwn).data(), sizeof wwn);
  const NameServerReply one = name_server_reply().entry(entry(1));
  const auto expect = [&](Send send) {
    script.expect(send(word0(), word1()).query(query_block(0x11223344))).sent();
    script.expect(receive().timeout(10)).receives(one);
  };
  const auto given = [this](int32_t status) {
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ports(), std::vector<int>{1});
    forget();
  };
  constexpr uint32_t kVsan = 0x11223344;
  expect(query_port_name);
  given(ns_cim_get_node_or_nxport_with_wwn(kQueue, kVsan, &wwn, 0, &count_, &entries_));
  expect(query_node_name);
  given(ns_cim_get_node_or_nxport_with_wwn(kQueue, kVsan, &wwn, 1, &count_, &entries_));
  expect(query_port_name);
  given(ns_cim_get_node_or_nxport_with_string_wwn(kQueue, kVsan, kWwnText, 0, &count_, &entries_));
  expect(query_node_name);
  given(ns_cim_get_node_or_nxport_with_string_wwn(kQueue, kVsan, kWwnText, 1, &count_, &entries_));
  expect(query_fabric_port_name);
  given(ns_cim_get_fxport_entries_with_string_wwn(kQueue, kVsan, kWwnText, &count_, &entries_));
}

TEST_F(NameServer, TheSessionIsPassedThrough) {
  Script script;
  ns_fc4_device_* devices = nullptr;
  script.expect(query_fabric_port_name(word0(), word1()).q(12).query(query_block(5))).sent();
  script.expect(receive().timeout(10).q(12)).receives(name_server_reply().entry(entry(1)));
  script.expect(query_port_type(127).q(12).query(query_block(5))).sent();
  script.expect(receive().timeout(10).q(12)).receives(name_server_reply().entry(entry(2)));
  script.expect(query_fc4_devices(5, hex(kWwn)).q(12)).gives(fc4_devices({}));
  EXPECT_EQ(ns_cim_get_fxport_entries_with_string_wwn(12, 5, kWwnText, &count_, &entries_), 0);
  forget();
  EXPECT_EQ(ns_cim_get_all_fxports_in_vsan(12, 5, 0, &count_, &entries_), 0);
  forget();
  EXPECT_EQ(ns_cim_get_fc4_devices(12, 5, kWwnText, &count_, &devices), 0);
  std::free(devices);
}

TEST_F(NameServer, ATextThatIsNoWwnIsAFailureWithoutARequest) {
  Script script;
  ns_fc4_device_* devices = nullptr;
  const char* const texts[] = {"210000E08B0A1B2", "210000E08B0A1B2C0", "", nullptr};
  for (const char* text : texts) {
    EXPECT_EQ(ns_cim_get_node_or_nxport_with_string_wwn(kQueue, 5, text, 0, &count_, &entries_),
              -1);
    EXPECT_EQ(ns_cim_get_fxport_entries_with_string_wwn(kQueue, 5, text, &count_, &entries_), -1);
    EXPECT_EQ(ns_cim_get_fc4_devices(kQueue, 5, text, &count_, &devices), -1);
    EXPECT_EQ(count_, 0);
  }
  EXPECT_EQ(ns_cim_get_node_or_nxport_with_wwn(kQueue, 5, nullptr, 0, &count_, &entries_), -1);
  EXPECT_EQ(ns_cim_get_node_or_nxport_with_string_wwn(kQueue, 5, kWwnText, 0, nullptr, &entries_),
            -1);
  EXPECT_EQ(ns_cim_get_fxport_entries_with_string_wwn(kQueue, 5, kWwnText, &count_, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

// ---- FC-4 devices -------------------------------------------------------------------------

class NameServerDevices : public NameServer {
 protected:
  ~NameServerDevices() override { std::free(devices_); }
  int32_t fetch() { return ns_cim_get_fc4_devices(kQueue, 5, kWwnText, &count_, &devices_); }
  Fc4Query query() { return query_fc4_devices(5, hex(kWwn)); }

  const Bytes device_ =
      Record(24).byte(0, 0x88).byte(1, 0x0a).byte(2, 0xb).byte(3, 0xcc).byte(23, 7);
  ns_fc4_device_* devices_ = nullptr;
};

TEST_F(NameServerDevices, AreRecordsOf24Bytes) {
  Script script;
  script.expect(query()).gives(fc4_devices({device_, hex("00 01 02 03")}));
  ASSERT_EQ(fetch(), 0);
  ASSERT_EQ(count_, 2);
  EXPECT_EQ(bytes_of(devices_[0]), device_);
  EXPECT_EQ(bytes_of(devices_[1].fcid), hex("00 01 02 03"));
  EXPECT_EQ(out_.out(), "\na:b:cc\n1:2:3");
}

TEST_F(NameServerDevices, ANodeWithoutDevicesHasNone) {
  Script script;
  script.expect(query()).gives(fc4_devices({}));
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(NameServerDevices, ReadingEndsAtTheRecordThatCannotBeRead) {
  Script script;
  script.expect(query()).gives(fc4_devices({device_}, 3));
  EXPECT_EQ(fetch(), 0);
  EXPECT_EQ(count_, 1);
}

TEST_F(NameServerDevices, EveryFailureIsOneAndDropsTheReply) {
  Script script;
  script.expect(query()).fails(3);
  EXPECT_EQ(fetch(), -1);
  script.expect(query()).fails_with_message(3, fc4_devices({device_}));
  EXPECT_EQ(fetch(), -1);
  script.expect(query()).returns(0);
  EXPECT_EQ(fetch(), -1);
  for (const int32_t count : {-1, 0x1000001, INT32_MAX}) {
    script.expect(query()).gives(fc4_devices({device_}, count));
    EXPECT_EQ(fetch(), -1);
  }
  script.expect(query()).gives(fc4_devices({device_}));
  ledger_.fail_nth(1, Heap::c);
  EXPECT_EQ(fetch(), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(devices_, nullptr);
  EXPECT_EQ(ns_cim_get_fc4_devices(kQueue, 5, kWwnText, nullptr, &devices_), -1);
  EXPECT_EQ(ns_cim_get_fc4_devices(kQueue, 5, kWwnText, &count_, nullptr), -1);
}

// ---- The walk over a VSAN -----------------------------------------------------------------

class NameServerWalk : public NameServer {
 protected:
  int32_t walk(int32_t fabric_side = 0) {
    return ns_cim_get_all_nodes_or_ports_in_vsan(kQueue, 5, fabric_side, &count_, &entries_);
  }
  int32_t fxports(int32_t one_per_port) {
    return ns_cim_get_all_fxports_in_vsan(kQueue, 5, one_per_port, &count_, &entries_);
  }
  static void expect_walk(Script& script, const NameServerReply& reply) {
    script.expect(query_port_type(127).query(query_block(5))).sent();
    script.expect(receive().timeout(10)).receives(reply);
  }
};

TEST_F(NameServerWalk, GivesEveryNxPortFromTheNodeSide) {
  Script script;
  expect_walk(script, name_server_reply().entry(entry(1)).entry(entry(2)));
  ASSERT_EQ(walk(), 0);
  ASSERT_EQ(count_, 2);
  EXPECT_EQ(bytes_of(entries_[0]), entry(1));
  EXPECT_EQ(bytes_of(entries_[1]), entry(2));
  EXPECT_EQ(out_.out(), "\nnodename: 800000e08b000001\nnodename: 800000e08b000002");
}

TEST_F(NameServerWalk, AsksForOtherAttributesFromTheFabricSide) {
  for (const int32_t fabric_side : {1, 2, -1}) {
    Script script;
    script.expect(query_port_type(127).query(query_block(5, 0x0114))).sent();
    script.expect(receive().timeout(10)).receives(name_server_reply().entry(entry(1)));
    EXPECT_EQ(walk(fabric_side), 0);
    EXPECT_EQ(ports(), std::vector<int>{1});
    forget();
  }
}

TEST_F(NameServerWalk, ADeviceRegisteredTwiceIsListedTwice) {
  Script script;
  expect_walk(script,
              name_server_reply().entry(entry(1)).entry(entry(1)).entry(entry(2)).duplicate(1));
  ASSERT_EQ(walk(), 0);
  EXPECT_EQ(ports(), (std::vector<int>{1, 1, 2}));
  EXPECT_EQ(out_.out(),
            "\nnodename: 800000e08b000001\nnodename: 800000e08b000001(duplicate)"
            "\nnodename: 800000e08b000002");
}

TEST_F(NameServerWalk, StopsBehindAnEntryThatCannotBeToldFromADuplicate) {
  Script script;
  expect_walk(
      script,
      name_server_reply().entry(entry(1)).entry(entry(2)).entry(entry(3)).duplicate_fails(1));
  ASSERT_EQ(walk(), 0);
  EXPECT_EQ(ports(), (std::vector<int>{1, 2}));
  EXPECT_EQ(out_.out(), "\nnodename: 800000e08b000001entry_dup failed!");
}

TEST_F(NameServerWalk, ReadsAtMostTheAnnouncedCountAndEndsAtAFailure) {
  Script script;
  expect_walk(script, name_server_reply().entry(entry(1)).entry(entry(2)).count(1));
  EXPECT_EQ(walk(), 0);
  EXPECT_EQ(ports(), std::vector<int>{1});
  forget();
  expect_walk(script, name_server_reply().entry(entry(1)).entry(entry(2)).entry_fails(1));
  EXPECT_EQ(walk(), 0);
  EXPECT_EQ(ports(), std::vector<int>{1});
  for (const int32_t count : {-1, 0x1000001, INT32_MAX}) {
    forget();
    expect_walk(script, name_server_reply().count(count));
    EXPECT_EQ(walk(), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(entries_, nullptr);
  }
}

TEST_F(NameServerWalk, OfAnEmptyVsanIsASuccess) {
  Script script;
  expect_walk(script, name_server_reply());
  EXPECT_EQ(walk(), 0);
  EXPECT_EQ(count_, 0);
}

TEST_F(NameServerWalk, ARequestThatIsNotSentIsTold) {
  Script script;
  script.expect(query_port_type(127).query(query_block(5))).fails(3);
  ns_api_register_req_ old{};
  ns_api_register_req_* entries = &old;
  EXPECT_EQ(ns_cim_get_all_nodes_or_ports_in_vsan(kQueue, 5, 0, &count_, &entries), -1);
  EXPECT_EQ(entries, nullptr);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(out_.out(), "get nodes in vsan error");
  script.expect(query_port_type(127).query(query_block(5))).fails_with_message(3);
  EXPECT_EQ(walk(), -1);
}

TEST_F(NameServerWalk, AReplyThatDoesNotComeIsToldAndTheRequestDropped) {
  Script script;
  script.expect(query_port_type(127).query(query_block(5))).sent();
  script.expect(receive().timeout(10)).times_out();
  EXPECT_EQ(walk(), -1);
  EXPECT_EQ(out_.out(), "get nodes in vsan MTS recv failed!");
  script.expect(query_port_type(127).query(query_block(5))).sent();
  script.expect(receive().timeout(10)).receives_nothing();
  EXPECT_EQ(walk(), -1);
}

TEST_F(NameServerWalk, ASuccessfulSendWithoutARequestWaitsForNothing) {
  Script script;
  without_request(script.expect(query_port_type(127).query(query_block(5))));
  EXPECT_EQ(walk(), -1);
  EXPECT_EQ(out_.out(), "get nodes in vsan MTS recv failed!");
}

TEST_F(NameServerWalk, ARejectIsToldWithItsTwoCodes) {
  Script script;
  expect_walk(script, name_server_reply().status(0x4025000a).ct_error(9, -10));
  EXPECT_EQ(walk(), -1);
  EXPECT_EQ(out_.out(), "CT error = 9, expln = -10\nparse_get_entry_status returned error");
  EXPECT_EQ(entries_, nullptr);
}

TEST_F(NameServerWalk, AFailureThatIsNoRejectHasNoCodes) {
  Script script;
  expect_walk(script, name_server_reply().status(0x4025000a));
  EXPECT_EQ(walk(), -1);
  EXPECT_EQ(out_.out(), "parse_get_entry_status returned error");
  out_.clear();
  expect_walk(script, name_server_reply().status(0x4025000b).ct_error(9, 10));
  EXPECT_EQ(walk(), -1);
  EXPECT_EQ(out_.out(), "parse_get_entry_status returned error");
}

TEST_F(NameServerWalk, NoPlaceForTheResultIsAFailureWithoutARequest) {
  Script script;
  GSList* list = nullptr;
  EXPECT_EQ(ns_cim_get_all_nodes_or_ports_in_vsan(kQueue, 5, 0, nullptr, &entries_), -1);
  EXPECT_EQ(ns_cim_get_all_nodes_or_ports_in_vsan(kQueue, 5, 0, &count_, nullptr), -1);
  EXPECT_EQ(ns_cim_get_all_fxports_in_vsan(kQueue, 5, 0, nullptr, &entries_), -1);
  EXPECT_EQ(ns_cim_get_all_fxports_in_vsan(kQueue, 5, 0, &count_, nullptr), -1);
  EXPECT_EQ(ns_cim_get_all_fxports_by_domain_id_in_vsan(kQueue, 5, 1, 0, nullptr, &list), -1);
  EXPECT_EQ(ns_cim_get_all_fxports_by_domain_id_in_vsan(kQueue, 5, 1, 0, &count_, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

// Two devices on switch port 1, one of them registered twice, and one on port 2.
NameServerReply three_devices() {
  return name_server_reply()
      .entry(entry(1, 1))
      .entry(entry(2, 1))
      .entry(entry(3, 2))
      .entry(entry(1, 1))
      .duplicate(3);
}

TEST_F(NameServerWalk, TheFxPortsAreAllEntries) {
  Script script;
  expect_walk(script, three_devices());
  ASSERT_EQ(fxports(0), 0);
  EXPECT_EQ(ports(), (std::vector<int>{1, 2, 3, 1}));
  EXPECT_EQ(bytes_of(entries_[2]), entry(3, 2));
}

TEST_F(NameServerWalk, OnePerFabricPortKeepsTheFirstEntryOfEach) {
  Script script;
  expect_walk(script, three_devices());
  ASSERT_EQ(fxports(1), 0);
  EXPECT_EQ(ports(), (std::vector<int>{1, 3}));
  EXPECT_EQ(bytes_of(entries_[1]), entry(3, 2));
  const std::string out = out_.out();
  const std::string line = "found FL 2001000DEC0A1B01  with multiple NL ports \n";
  const size_t first = out.find(line);
  ASSERT_NE(first, std::string::npos) << out;
  EXPECT_EQ(out.substr(first), line + line);
}

TEST_F(NameServerWalk, EveryNonZeroFlagAsksForOnePerFabricPort) {
  for (const int32_t one_per_port : {2, -1}) {
    Script script;
    expect_walk(script, three_devices());
    EXPECT_EQ(fxports(one_per_port), 0);
    EXPECT_EQ(ports(), (std::vector<int>{1, 3}));
    forget();
  }
}

TEST_F(NameServerWalk, AFailedWalkHasNoFxPorts) {
  Script script;
  script.expect(query_port_type(127).query(query_block(5))).fails(3);
  EXPECT_EQ(fxports(1), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(entries_, nullptr);
}

TEST_F(NameServerWalk, EveryFailingAllocationOfFxPortsLosesNothing) {
  for (const int32_t one_per_port : {0, 1}) {
    const size_t rounds = for_every_failing_allocation(
        [one_per_port](FailingAllocation& round) {
          Script script;
          expect_walk(script, three_devices());
          int32_t count = 9;
          ns_api_register_req_* entries = nullptr;
          const int32_t status = round.attempt([&] {
            return ns_cim_get_all_fxports_in_vsan(kQueue, 5, one_per_port, &count, &entries);
          });
          EXPECT_EQ(status, round.was_hit() ? -1 : 0);
          if (round.was_hit()) {
            EXPECT_EQ(count, 0);
          }
          std::free(entries);
        },
        Heap::c);
    // The walk, the copy, and a key for each switch port.
    EXPECT_EQ(rounds, one_per_port != 0 ? 5u : 3u);
  }
}

// ---- Of one domain ------------------------------------------------------------------------

class NameServerDomain : public NameServerWalk {
 protected:
  ~NameServerDomain() override { cim_g_slist_destroy(list_, nullptr); }
  int32_t fetch(uint8_t domain, int32_t one_per_port) {
    return ns_cim_get_all_fxports_by_domain_id_in_vsan(kQueue, 5, domain, one_per_port, &count_,
                                                       &list_);
  }
  std::vector<int> listed() const {
    std::vector<int> found;
    for (GSList* node = list_; node != nullptr; node = node->next)
      found.push_back(static_cast<ns_api_register_req_*>(node->data)->fcid[3]);
    return found;
  }
  static NameServerReply two_domains() {
    return name_server_reply()
        .entry(entry(1, 1, 0x63))
        .entry(entry(2, 2, 0x64))
        .entry(entry(3, 1, 0x63))
        .entry(entry(4, 3, 0x63));
  }

  GSList* list_ = nullptr;
};

TEST_F(NameServerDomain, ItsPortsAreListedInOrder) {
  Script script;
  expect_walk(script, two_domains());
  ASSERT_EQ(fetch(0x63, 0), 0);
  EXPECT_EQ(count_, 3);
  EXPECT_EQ(listed(), (std::vector<int>{1, 3, 4}));
  EXPECT_EQ(bytes_of(*static_cast<ns_api_register_req_*>(list_->data)), entry(1, 1, 0x63));
}

TEST_F(NameServerDomain, OnePerFabricPortIsPassedOn) {
  Script script;
  expect_walk(script, two_domains());
  ASSERT_EQ(fetch(0x63, 1), 0);
  EXPECT_EQ(count_, 2);
  EXPECT_EQ(listed(), (std::vector<int>{1, 4}));
}

TEST_F(NameServerDomain, ADomainWithoutPortsIsAFailure) {
  Script script;
  expect_walk(script, two_domains());
  EXPECT_EQ(fetch(0x65, 0), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(NameServerDomain, AFailedWalkIsAFailure) {
  Script script;
  script.expect(query_port_type(127).query(query_block(5))).fails(3);
  EXPECT_EQ(fetch(0x63, 0), -1);
  EXPECT_EQ(count_, 0);
}

TEST_F(NameServerDomain, TheCountIsOfWhatWasListedWhenMemoryRanOut) {
  size_t listed = 0;
  const size_t rounds = for_every_failing_allocation(
      [&listed](FailingAllocation& round) {
        Script script;
        expect_walk(script, two_domains());
        int32_t count = 9;
        GSList* list = nullptr;
        const int32_t status = round.attempt([&] {
          return ns_cim_get_all_fxports_by_domain_id_in_vsan(kQueue, 5, 0x63, 0, &count, &list);
        });
        EXPECT_EQ(status, round.was_hit() ? -1 : 0);
        EXPECT_EQ(count, static_cast<int32_t>(cim_g_slist_length(list)));
        listed += cim_g_slist_length(list);
        cim_g_slist_destroy(list, nullptr);
      },
      Heap::c);
  EXPECT_EQ(rounds, 6u);                 // the walk, the copy, three elements
  EXPECT_EQ(listed, 0u + 1u + 2u + 3u);  // with the first, second, third and no element failing
}

TEST_F(NameServerDomain, FiveThousandPortsCostOneQueryAndAListBuiltWithoutWalkingIt) {
  HeapLedger::Pause pause;
  Script script;
  NameServerReply reply = name_server_reply();
  for (int i = 0; i < 5000; ++i)
    reply.entry(entry(static_cast<uint8_t>(i), static_cast<uint8_t>(i / 50), 0x63));
  expect_walk(script, reply);
  const ListWork before = list_work();
  ASSERT_EQ(fetch(0x63, 0), 0);
  const ListWork after = list_work();
  EXPECT_EQ(script.calls(), 2u);
  EXPECT_EQ(count_, 5000);
  EXPECT_EQ(cim_g_slist_length(list_), 5000u);
  EXPECT_EQ(after.calls - before.calls, 5000u);
  EXPECT_LE(after.nodes - before.nodes, 5000u);
}

// ---- In every VSAN ------------------------------------------------------------------------

class NameServerVsans : public NameServer {
 protected:
  ~NameServerVsans() override { cim_g_slist_destroy(list_, nullptr); }
  int32_t fetch(int32_t code) {
    return ns_cim_get_all_name_server_entries_with_wwn(kQueue, hex(kWwn).data(), code, 98, 99,
                                                       &list_);
  }
  std::vector<int> listed() const {
    std::vector<int> found;
    for (GSList* node = list_; node != nullptr; node = node->next)
      found.push_back(static_cast<ns_api_register_req_*>(node->data)->fcid[3]);
    return found;
  }
  // VSANs 1, 2, ... of these states.
  static void expect_vsans(Script& script, const std::vector<uint32_t>& states) {
    script.expect(get(125).sap(15).no_request().length(4))
        .replies(Record(4).be32(0, static_cast<uint32_t>(states.size())));
    uint32_t after = 0;
    for (const uint32_t state : states) {
      script.expect(get_next(149).sap(15).sends(Record(2632).be32(520, after)))
          .replies(Record(2632).be32(520, after + 1).be32(552, state));
      ++after;
    }
  }
  static void expect_lookup(Script& script, Send send, uint32_t vsan,
                            const NameServerReply& reply) {
    script.expect(send(word0(), word1()).query(query_block(vsan))).sent();
    script.expect(receive().timeout(10)).receives(reply);
  }

  GSList* list_ = nullptr;
};

TEST_F(NameServerVsans, TheEntriesOfEveryActiveVsanAreListed) {
  Script script;
  expect_vsans(script, {1, 2, 1, 1});
  expect_lookup(script, query_port_name, 1, name_server_reply().entry(entry(1)).entry(entry(2)));
  expect_lookup(script, query_port_name, 3, name_server_reply());
  expect_lookup(script, query_port_name, 4, name_server_reply().entry(entry(4)));
  ASSERT_EQ(fetch(3), 0);
  EXPECT_EQ(listed(), (std::vector<int>{1, 2, 4}));
  EXPECT_EQ(bytes_of(*static_cast<ns_api_register_req_*>(list_->data)), entry(1));
}

TEST_F(NameServerVsans, TheCodeSaysWhatTheWwnIs) {
  const struct {
    int32_t code;
    Send send;
  } rows[] = {{2, query_fabric_port_name},
              {11, query_fabric_port_name},
              {3, query_port_name},
              {27, query_port_name},
              {7, query_node_name}};
  for (const auto& row : rows) {
    Script script;
    expect_vsans(script, {1});
    expect_lookup(script, row.send, 1, name_server_reply().entry(entry(1)));
    EXPECT_EQ(fetch(row.code), 0) << row.code;
    cim_g_slist_destroy(list_, nullptr);
    list_ = nullptr;
  }
}

TEST_F(NameServerVsans, AnyOtherCodeLooksNothingUp) {
  for (const int32_t code : {0, 1, 4, 26, 28, -2, 1000}) {
    Script script;
    expect_vsans(script, {1});
    EXPECT_EQ(fetch(code), -1) << code;
  }
}

TEST_F(NameServerVsans, AWwnOfVsansThatAreNotActiveIsAFailure) {
  Script script;
  expect_vsans(script, {2, 0});
  EXPECT_EQ(fetch(3), -1);
  EXPECT_EQ(list_, nullptr);
}

TEST_F(NameServerVsans, AVsanWhoseLookupFailsIsSkipped) {
  Script script;
  expect_vsans(script, {1, 1});
  script.expect(query_port_name(word0(), word1()).query(query_block(1))).fails(3);
  expect_lookup(script, query_port_name, 2, name_server_reply().entry(entry(2)));
  ASSERT_EQ(fetch(3), 0);
  EXPECT_EQ(listed(), std::vector<int>{2});
}

TEST_F(NameServerVsans, WithoutTheVsansThereIsNothing) {
  Script script;
  script.expect(get(125).sap(15).no_request().length(4)).status(17);
  EXPECT_EQ(fetch(3), -1);
  const std::string out = out_.out();
  EXPECT_NE(out.find("ns cim util get all vsan error -1\n"), std::string::npos) << out;
}

TEST_F(NameServerVsans, NullArgumentsAreFailuresWithoutAnExchange) {
  Script script;
  EXPECT_EQ(ns_cim_get_all_name_server_entries_with_wwn(kQueue, nullptr, 3, 0, 0, &list_), -1);
  EXPECT_EQ(ns_cim_get_all_name_server_entries_with_wwn(kQueue, hex(kWwn).data(), 3, 0, 0, nullptr),
            -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(NameServerVsans, EveryFailingExchangeLosesNothing) {
  const Bytes wwn = hex(kWwn);
  const size_t rounds = for_every_failing_exchange([&wwn](FailingExchange&) {
    Script script;
    expect_vsans(script, {1});
    expect_lookup(script, query_port_name, 1, name_server_reply().entry(entry(1)));
    GSList* list = nullptr;
    ns_cim_get_all_name_server_entries_with_wwn(kQueue, wwn.data(), 3, 0, 0, &list);
    cim_g_slist_destroy(list, nullptr);
  });
  EXPECT_EQ(rounds, 5u);
}

TEST_F(NameServerVsans, EveryFailingAllocationLosesNothing) {
  const Bytes wwn = hex(kWwn);
  size_t failures = 0;
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        Script script;
        expect_vsans(script, {1});
        expect_lookup(script, query_port_name, 1,
                      name_server_reply().entry(entry(1)).entry(entry(2)));
        FailingExchange may_leave_out(1000);
        GSList* list = nullptr;
        const int32_t status = round.attempt([&] {
          return ns_cim_get_all_name_server_entries_with_wwn(kQueue, wwn.data(), 3, 0, 0, &list);
        });
        if (status != 0) ++failures;
        cim_g_slist_destroy(list, nullptr);
      },
      Heap::c);
  EXPECT_EQ(failures, rounds - 1);
}

// ---- By link name -------------------------------------------------------------------------

class NameServerLinkName : public NameServer {
 protected:
  int32_t look_up(const char* name) {
    return ns_cim_get_ns_entries_with_link_name(kQueue, name, &code_, &vsan_, wwn_, &count_,
                                                &entries_);
  }

  int32_t code_ = 0;
  int32_t vsan_ = 0;
  char wwn_[17] = {};
};

TEST_F(NameServerLinkName, IsLookedUpByPortWwnWhateverItsSide) {
  const struct {
    const char* name;
    int32_t code;
  } rows[] = {{"3_5_210000E08B0A1B2C", 3},
              {"2_5_210000E08B0A1B2C", 2},
              {"11_5_210000E08B0A1B2C", 11},
              {"27_5_210000E08B0A1B2C", 27}};
  for (const auto& row : rows) {
    Script script;
    script.expect(query_port_name(word0(), word1()).query(query_block(5))).sent();
    script.expect(receive().timeout(10)).receives(name_server_reply().entry(entry(1)));
    EXPECT_EQ(look_up(row.name), 0) << row.name;
    EXPECT_EQ(code_, row.code);
    EXPECT_EQ(vsan_, 5);
    EXPECT_STREQ(wwn_, kWwnText);
    EXPECT_EQ(ports(), std::vector<int>{1});
    forget();
  }
}

TEST_F(NameServerLinkName, WithoutAnEntryIsAFailure) {
  Script script;
  script.expect(query_port_name(word0(), word1()).query(query_block(5))).sent();
  script.expect(receive().timeout(10)).receives(name_server_reply());
  EXPECT_EQ(look_up("3_5_210000E08B0A1B2C"), -1);
  EXPECT_EQ(count_, 0);
  forget();
  script.expect(query_port_name(word0(), word1()).query(query_block(5))).fails(3);
  EXPECT_EQ(look_up("3_5_210000E08B0A1B2C"), -1);
  EXPECT_EQ(entries_, nullptr);
}

TEST_F(NameServerLinkName, ThatIsNoneIsAFailureWithoutARequest) {
  Script script;
  const char* const names[] = {"4_5_210000E08B0A1B2C",
                               "7_5_210000E08B0A1B2C",
                               "3_210000E08B0A1B2C",
                               "3_5_210000E08B0A1B2",
                               "",
                               nullptr};
  for (const char* name : names) {
    EXPECT_EQ(look_up(name), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(entries_, nullptr);
  }
  const char* name = "3_5_210000E08B0A1B2C";
  EXPECT_EQ(
      ns_cim_get_ns_entries_with_link_name(kQueue, name, nullptr, &vsan_, wwn_, &count_, &entries_),
      -1);
  EXPECT_EQ(
      ns_cim_get_ns_entries_with_link_name(kQueue, name, &code_, &vsan_, wwn_, nullptr, &entries_),
      -1);
  EXPECT_EQ(
      ns_cim_get_ns_entries_with_link_name(kQueue, name, &code_, &vsan_, wwn_, &count_, nullptr),
      -1);
  EXPECT_EQ(script.calls(), 0u);
}

}  // namespace
