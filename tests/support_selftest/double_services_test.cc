// The doubles of the services: each function gives what its line says, and fails the test for a
// wrong argument.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <switch_platform/domain_manager.h>
#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>
#include <switch_platform/mts.h>
#include <switch_platform/name_server.h>
#include <switch_platform/platform_manager.h>
#include <switch_platform/port_manager.h>
#include <switch_platform/system.h>

#include <cstdlib>
#include <cstring>

#include "tests/support/platform_double.h"

namespace test_support {
namespace {

mts_msg_t* receive_reply(uint32_t timeout, uint32_t token) {
  const cim_mts_recv_opts options = {1, 0, timeout, token, 0, 0};
  mts_msg_t* message = nullptr;
  mts_recv(kQueue, &message, &options);
  return message;
}

// ---- texts ----

TEST(TextsDouble, StatusTextsAreFixedUnlessTheScriptSaysOthers) {
  EXPECT_STREQ(syserr2str(5), "platform error");
  EXPECT_STREQ(kfs_rcode2str(5), "distribution error");
  Script script;
  script.text_for("syserr2str", 5, "no such VSAN").text_for("kfs_rcode2str", 5, "busy");
  EXPECT_STREQ(syserr2str(5), "no such VSAN");
  EXPECT_STREQ(syserr2str(6), "platform error");
  EXPECT_STREQ(kfs_rcode2str(5), "busy");
}

// ---- domain manager ----

TEST(DomainManagerDouble, GivesAMessageThatTheParsersRead) {
  HeapLedger ledger;
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({{1, 0x61}, {10, 0xef}}));
  mts_msg_t* message = nullptr;
  ASSERT_EQ(dm_get_dom_ids_in_sw(kQueue, 0, &message), 0);
  EXPECT_EQ(dm_parse_get_num_entries(message), 2);
  EXPECT_EQ(dm_parse_get_vsan_index_in_vsan(message, 1), 10u);
  EXPECT_EQ(dm_parse_get_dom_id_in_vsan(message, 1), 0xef);
  EXPECT_NONFATAL_FAILURE(dm_parse_get_dom_id_in_vsan(message, 2), "of entry 2 of 2");
  EXPECT_NONFATAL_FAILURE(dm_parse_get_vsan_index_in_vsan(message, -1), "of entry -1 of 2");
  mts_drop(kQueue, message);
  EXPECT_NONFATAL_FAILURE(dm_parse_get_num_entries(message), "of a message that was dropped");
}

TEST(DomainManagerDouble, AFailureHandsOutNothingUnlessItSaysSo) {
  Script script;
  script.expect(query_domain_ids()).fails(-1);
  script.expect(query_domain_ids()).fails_with_message(3, domain_list({}));
  mts_msg_t* message = nullptr;
  EXPECT_EQ(dm_get_dom_ids_in_sw(kQueue, 0, &message), -1);
  EXPECT_EQ(message, nullptr);
  EXPECT_EQ(dm_get_dom_ids_in_sw(kQueue, 0, &message), 3);
  ASSERT_NE(message, nullptr);
  mts_drop(kQueue, message);
}

TEST(DomainManagerDouble, ChecksItsArguments) {
  Script script;
  script.expect(query_domain_ids()).fails(-1);
  mts_msg_t* message = nullptr;
  EXPECT_NONFATAL_FAILURE(dm_get_dom_ids_in_sw(kQueue, 1, &message), "zero: expected 0, found 1");
}

TEST(DomainManagerDouble, AParserRefusesAMessageOfAnotherKind) {
  Script script;
  script.expect(receive().timeout(1).no_token()).receives(payload(hex("00")));
  mts_msg_t* message = receive_reply(1, 0);
  EXPECT_NONFATAL_FAILURE(dm_parse_get_num_entries(message), "of a message of another kind");
  mts_drop(kQueue, message);
}

// ---- port manager ----

// A key as the library lays it out: first and last interface.
struct Key {
  uint32_t first;
  uint32_t last;
  const pm_if_key_* get() const { return reinterpret_cast<const pm_if_key_*>(this); }
};

int32_t get_port_config(int32_t operation, Key key, pm_port_info_** out, int32_t* count) {
  return pm_cmi_get_port_config(kQueue, operation, 1, key.get(), count, out, 4);
}

TEST(PortManagerDouble, GivesAPortRecordAndItsCount) {
  HeapLedger ledger;
  Script script;
  script.expect(get_port(0x01000000)).gives(hex("01 02 03"));
  script.expect(get_next_port(0x01000000)).gives_nothing();
  pm_port_info_* out = nullptr;
  int32_t count = -5;
  EXPECT_EQ(get_port_config(1, {0x01000000, 0x01000000}, &out, &count), 0);
  EXPECT_EQ(count, 1);
  ASSERT_NE(out, nullptr);
  EXPECT_EQ(reinterpret_cast<uint8_t*>(out)[2], 3);
  free(out);
  out = nullptr;
  EXPECT_EQ(get_port_config(2, {0x01000000, 0x01000000}, &out, &count), 0);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(out, nullptr);
}

TEST(PortManagerDouble, ChecksBothWordsOfTheKeyAndThePreset) {
  Script script;
  for (int i = 0; i < 3; ++i)
    script.expect(get_port(5)).gives_nothing();
  pm_port_info_* out = nullptr;
  int32_t count = 0;
  EXPECT_NONFATAL_FAILURE(get_port_config(1, {6, 5}, &out, &count), "key first: expected 5");
  EXPECT_NONFATAL_FAILURE(get_port_config(1, {5, 6}, &out, &count), "key last: expected 5");
  int other = 0;
  out = reinterpret_cast<pm_port_info_*>(&other);
  EXPECT_NONFATAL_FAILURE(get_port_config(1, {5, 5}, &out, &count), "out: expected \"preset");
}

TEST(PortManagerDouble, AFailureMayHandOutARecordOrTimeOut) {
  HeapLedger ledger;
  Script script;
  script.expect(get_port(5)).fails_with_record(7, hex("01"));
  script.expect(get_port(5)).times_out();
  pm_port_info_* out = nullptr;
  int32_t count = 0;
  EXPECT_EQ(get_port_config(1, {5, 5}, &out, &count), 7);
  ASSERT_NE(out, nullptr);
  free(out);
  out = nullptr;
  EXPECT_EQ(get_port_config(1, {5, 5}, &out, &count), -1);
  EXPECT_EQ(mts_errno_get(kQueue), 62);
}

TEST(PortManagerDouble, ChangesTellTheServicesStatus) {
  HeapLedger ledger;
  Script script;
  script.expect(set_port(5, 3, hex("00 00 03 e8"))).service_status(0x40340001);
  script.expect(set_port(5, 3, hex("00 00 03 e8"))).ok_without_reply();
  Key key = {5, 5};
  void* reply = nullptr;
  int32_t count = 0;
  Bytes value = hex("00 00 03 e8");
  EXPECT_EQ(
      pm_cmi_set_port_config(kQueue, 0, 0, 1, key.get(), 3, 4, value.data(), &count, &reply, 4), 0);
  EXPECT_EQ(count, 1);
  ASSERT_NE(reply, nullptr);
  EXPECT_EQ(memcmp(reply, "\0\0\0\0\x40\x34\0\x01", 8), 0);
  free(reply);
  reply = nullptr;
  value[3] = 0;
  EXPECT_NONFATAL_FAILURE(
      pm_cmi_set_port_config(kQueue, 0, 0, 1, key.get(), 3, 4, value.data(), &count, &reply, 4),
      "value: first difference at offset 3");
}

TEST(PortManagerDouble, TransceiverQueryExpectsItsTimeOut) {
  HeapLedger ledger;
  Script script;
  script.expect(get_fcot(5)).gives(hex("00 00 00 00 00 00 00 00 01"));
  script.expect(get_fcot(5)).gives_nothing();
  script.expect(get_elp(1, 5)).gives(hex("01"));
  Key key = {5, 5};
  void* reply = nullptr;
  int32_t count = 0;
  EXPECT_EQ(pm_cmi_get_fcot_info(kQueue, 1, 1, key.get(), &count, &reply, 20, -1), 0);
  EXPECT_EQ(static_cast<uint8_t*>(reply)[8], 1);
  free(reply);
  reply = nullptr;
  EXPECT_NONFATAL_FAILURE(pm_cmi_get_fcot_info(kQueue, 1, 1, key.get(), &count, &reply, 10, -1),
                          "timeout: expected 20");
  EXPECT_EQ(pm_cmi_get_elp_info(kQueue, 1, 1, key.get(), &count, &reply, 4), 0);
  free(reply);
}

TEST(PortManagerDouble, CountersAreABlockForTheCaller) {
  HeapLedger ledger;
  Script script;
  script.expect(get_port_counters(5)).gives(zeros(600));
  script.expect(get_port_counters(5)).fails_with_block(-1, zeros(8));
  script.expect(get_port_counters(5)).fails();
  fcIfAllCounters_t* counters = nullptr;
  EXPECT_EQ(pm_get_port_counters(kQueue, 5, 1, 1, &counters), 0);
  free(counters);
  EXPECT_EQ(pm_get_port_counters(kQueue, 5, 1, 1, &counters), -1);
  free(counters);
  counters = nullptr;
  EXPECT_EQ(pm_get_port_counters(kQueue, 5, 1, 1, &counters), -1);
  EXPECT_EQ(counters, nullptr);
}

TEST(PortManagerDouble, AddressesAreABlockForTheLibrary) {
  HeapLedger ledger;
  Script script;
  script.expect(get_interface_address(5, 2)).gives(hex("0a 00 00 01"));
  script.expect(get_interface_address(5, 2)).gives_nothing();
  void* block = nullptr;
  EXPECT_EQ(ipconf_get_intf_ip_address(kQueue, 5, &block, 2), 0);
  EXPECT_EQ(memcmp(block, "\x0a\0\0\x01", 4), 0);
  free(block);
  block = nullptr;
  EXPECT_NONFATAL_FAILURE(ipconf_get_intf_ip_address(kQueue, 5, &block, 5), "type: expected 2");
}

TEST(PortManagerDouble, BindingsAreACountAndIndexes) {
  HeapLedger ledger;
  Script script;
  script.expect(fcip_interfaces_of(5)).gives({7, 8});
  script.expect(ethernet_interfaces_of(7)).gives_block({1000});
  script.expect(ethernet_interfaces_of(7)).gives_nothing();
  uint32_t* block = ips_mgr_fcip_get_fcip_if_for_eth_if_blk(kQueue, 5);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(block[0], 2u);
  EXPECT_EQ(block[1], 7u);
  EXPECT_EQ(block[2], 8u);
  free(block);
  block = ips_mgr_fcip_get_eth_if_for_fcip_if_blk(kQueue, 7);
  EXPECT_EQ(block[0], 1000u);
  free(block);
  EXPECT_EQ(ips_mgr_fcip_get_eth_if_for_fcip_if_blk(kQueue, 7), nullptr);
}

// ---- platform manager and system ----

TEST(PlatformManagerDouble, TranslatesSlotsAndEntities) {
  Script script;
  script.expect(entity_of_slot(3)).gives(25);
  script.expect(slot_of_entity(25)).gives(3);
  script.expect(slot_of_entity(26)).fails(5);
  script.expect(slot_of_entity(27)).gives(1);
  uint32_t number = 99;
  EXPECT_EQ(pfm_slot_num_to_entity_index(kQueue, &number, 3), 0);
  EXPECT_EQ(number, 25u);
  EXPECT_EQ(pfm_entity_index_to_slot_num(kQueue, 25, &number), 0);
  EXPECT_EQ(number, 3u);
  EXPECT_EQ(pfm_entity_index_to_slot_num(kQueue, 26, &number), 5);
  EXPECT_EQ(number, 3u);
  EXPECT_NONFATAL_FAILURE(pfm_entity_index_to_slot_num(kQueue, 28, &number), "entity: expected 27");
}

TEST(PlatformManagerDouble, FillsTheZeroedPromBuffer) {
  Script script;
  script.expect(read_chassis_prom()).gives(Record(498).text(54, "SERIAL"));
  script.expect(read_chassis_prom()).gives(zeros(498));
  char buffer[498] = {};
  EXPECT_EQ(pfm_get_sprom(kQueue, 0, 2, 0, buffer, 498), 0);
  EXPECT_STREQ(buffer + 54, "SERIAL");
  EXPECT_NONFATAL_FAILURE(pfm_get_sprom(kQueue, 0, 2, 0, buffer, 498),
                          "buffer: expected \"zeroed\", found \"not zeroed\"");
}

TEST(PlatformManagerDouble, ChassisAndVersionAreTextsOrNull) {
  HeapLedger ledger;
  Script script;
  script.expect(chassis_id()).gives("chassis");
  script.expect(chassis_id()).gives(nullptr);
  script.expect(software_version()).gives("3.1(2)");
  script.expect(software_version()).gives("3");
  EXPECT_STREQ(pdb_get_chassis_id_string(), "chassis");
  EXPECT_EQ(pdb_get_chassis_id_string(), nullptr);
  EXPECT_STREQ(srg_sw_ver_get(0), "3.1(2)");
  EXPECT_NONFATAL_FAILURE(srg_sw_ver_get(1), "zero: expected 0, found 1");
}

TEST(SystemDouble, WritesTheInformationRecord) {
  Script script;
  Bytes answer = Record(1032).host32(0, 2).text(4, "name");
  script.expect(get_system_info(2)).gives(answer);
  script.expect(get_system_info(2)).fails(9);
  script.expect(get_system_info(2)).fails(9);
  uint8_t record[1032] = {};
  record[0] = 2;
  EXPECT_EQ(snmp_get_sys_info(kQueue, record), 0);
  EXPECT_STREQ(reinterpret_cast<char*>(record) + 4, "name");
  EXPECT_EQ(snmp_get_sys_info(kQueue, record), 9);
  record[0] = 3;
  EXPECT_NONFATAL_FAILURE(snmp_get_sys_info(kQueue, record), "selector: expected 2, found 3");
}

// ---- name server ----

const ns_query_* as_query(const Bytes& bytes) {
  return reinterpret_cast<const ns_query_*>(bytes.data());
}

const Bytes kQuery = hex("0a 00 00 00 47 0a 00 00 00 00 00 00 00 00 00 00");

TEST(NameServerDouble, AQueryIsARequestWhoseTokenIsAwaited) {
  HeapLedger ledger;
  Script script;
  script.expect(query_port_name(0x10000000, 0xc9000001).query(kQuery).request_token(77)).sent();
  script.expect(receive().timeout(10))
      .receives(name_server_reply().entry(hex("01")).entry(hex("02")));
  mts_msg_t* request = nullptr;
  ASSERT_EQ(
      ns_send_get_entry_given_portname(kQueue, 0x10000000, 0xc9000001, as_query(kQuery), &request),
      0);
  EXPECT_EQ(mts_rr_token_get(request), 77u);
  mts_msg_t* reply = receive_reply(10, 77);
  int32_t count = -1;
  void* cursor = nullptr;
  EXPECT_EQ(ns_parse_get_entry_status(reply, &count, &cursor), 0);
  EXPECT_EQ(count, 2);
  uint8_t slot[768];
  EXPECT_EQ(ns_parse_get_entry(reply, cursor, slot, 1), 0);
  EXPECT_EQ(slot[0], 2);
  EXPECT_EQ(slot[767], 0);
  EXPECT_NE(ns_parse_get_entry(reply, cursor, slot, 2), 0);
  EXPECT_NONFATAL_FAILURE(ns_parse_get_entry(reply, slot, slot, 0), "cursor of another message");
  mts_drop(kQueue, reply);
  mts_drop(kQueue, request);
}

TEST(NameServerDouble, EachQueryHasItsFunction) {
  Script script;
  script.expect(query_node_name(1, 2).query(kQuery)).fails(3);
  script.expect(query_fabric_port_name(1, 2).query(kQuery)).fails(4);
  script.expect(query_port_type(127).query(kQuery)).fails_with_message(5);
  script.expect(query_port_type(127).query(kQuery)).fails(6);
  mts_msg_t* request = nullptr;
  EXPECT_EQ(ns_send_get_entries_given_nodename(kQueue, 1, 2, as_query(kQuery), &request), 3);
  EXPECT_EQ(ns_send_get_entries_given_fab_port_name(kQueue, 1, 2, as_query(kQuery), &request), 4);
  EXPECT_EQ(request, nullptr);
  EXPECT_EQ(ns_send_get_entries_given_port_type(kQueue, 127, as_query(kQuery), &request), 5);
  ASSERT_NE(request, nullptr);
  mts_drop(kQueue, request);
  request = nullptr;
  Bytes other = kQuery;
  other[4] = 0x14;
  EXPECT_NONFATAL_FAILURE(
      ns_send_get_entries_given_port_type(kQueue, 127, as_query(other), &request),
      "query: first difference at offset 4");
}

TEST(NameServerDouble, AReplyMayBeARejectAndTellItsCodes) {
  Script script;
  script.expect(receive().timeout(10).token(1))
      .receives(name_server_reply().status(kNameServerRejects).ct_error(9, 2));
  mts_msg_t* reply = receive_reply(10, 1);
  int32_t count = -1;
  void* cursor = nullptr;
  EXPECT_EQ(ns_parse_get_entry_status(reply, &count, &cursor), 0x4025000a);
  EXPECT_EQ(count, -1);
  int32_t error = 0;
  int32_t expln = 0;
  EXPECT_EQ(ns_parse_get_ct_error(reply, &error, &expln), 0x4025000a);
  EXPECT_EQ(error, 9);
  EXPECT_EQ(expln, 2);
  mts_drop(kQueue, reply);
}

TEST(NameServerDouble, EntriesMayFailAndBeDuplicates) {
  Script script;
  script.expect(receive().timeout(10).token(1))
      .receives(name_server_reply()
                    .entry(hex("01"))
                    .entry(hex("02"))
                    .entry(hex("03"))
                    .count(1000)
                    .entry_fails(1, 5)
                    .duplicate(2)
                    .duplicate_fails(0, 6));
  mts_msg_t* reply = receive_reply(10, 1);
  int32_t count = -1;
  void* cursor = nullptr;
  EXPECT_EQ(ns_parse_get_entry_status(reply, &count, &cursor), 0);
  EXPECT_EQ(count, 1000);
  uint8_t slot[768];
  EXPECT_EQ(ns_parse_get_entry(reply, cursor, slot, 1), 5);
  uint8_t duplicate = 9;
  EXPECT_EQ(ns_parse_is_entry_duplicate(reply, cursor, 2, &duplicate), 0);
  EXPECT_EQ(duplicate, 1);
  EXPECT_EQ(ns_parse_is_entry_duplicate(reply, cursor, 1, &duplicate), 0);
  EXPECT_EQ(duplicate, 0);
  EXPECT_EQ(ns_parse_is_entry_duplicate(reply, cursor, 0, &duplicate), 6);
  int32_t error = 0;
  EXPECT_EQ(ns_parse_get_ct_error(reply, &error, &error), 0);
  mts_drop(kQueue, reply);
}

TEST(NameServerDouble, Fc4DevicesAreRecordsOf24Bytes) {
  HeapLedger ledger;
  Script script;
  Bytes wwn = hex("20 00 00 0d ec 01 02 03");
  script.expect(query_fc4_devices(10, wwn)).gives(fc4_devices({hex("00 61 01 02")}, 5));
  script.expect(query_fc4_devices(10, wwn)).fails(-1);
  mts_msg_t* reply = nullptr;
  EXPECT_EQ(ns_get_fc4_devices(kQueue, 10, 8, wwn.data(), &reply), 0);
  EXPECT_EQ(ns_parse_get_num_fc4_devices(reply), 5);
  uint8_t slot[24];
  EXPECT_EQ(ns_parse_get_fc4_device_entry(reply, slot, 0), 0);
  EXPECT_EQ(slot[1], 0x61);
  EXPECT_NE(ns_parse_get_fc4_device_entry(reply, slot, 1), 0);
  mts_drop(kQueue, reply);
  wwn[7] = 0;
  reply = nullptr;
  EXPECT_NONFATAL_FAILURE(ns_get_fc4_devices(kQueue, 10, 8, wwn.data(), &reply),
                          "wwn: first difference at offset 7");
}

// ---- fabric configuration server ----

TEST(FabricConfigurationDouble, GivesAListToBeFreed) {
  HeapLedger ledger;
  Script script;
  script.expect(query_switch_addresses()).sent();
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(0x61, "sw-a").entry(0x62, "b"));
  mts_msg_t* request = nullptr;
  EXPECT_EQ(fcs_send_get_inet_addr(kQueue, 1, &request), 0);
  mts_msg_t* reply = receive_reply(5, mts_rr_token_get(request));
  int32_t status = -1;
  int32_t count = -1;
  void* list = nullptr;
  EXPECT_EQ(fcs_parse_get_inet_addr(reply, &status, &count, &list), 0);
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(static_cast<uint8_t*>(list)[396 + 360], 0x62);
  EXPECT_STREQ(static_cast<char*>(list) + 364, "sw-a");
  free(list);
  mts_drop(kQueue, reply);
  mts_drop(kQueue, request);
}

TEST(FabricConfigurationDouble, ParsingMayFailWithAndWithoutAList) {
  Script script;
  script.expect(receive().timeout(5).token(1)).receives(switch_addresses().parse_fails(8));
  script.expect(receive().timeout(5).token(1))
      .receives(switch_addresses().entry(1, "a").status(2).count(50).parse_fails_with_list(9));
  int32_t status = -1;
  int32_t count = -1;
  void* list = nullptr;
  mts_msg_t* reply = receive_reply(5, 1);
  EXPECT_EQ(fcs_parse_get_inet_addr(reply, &status, &count, &list), 8);
  EXPECT_EQ(status, -1);
  EXPECT_EQ(list, nullptr);
  mts_drop(kQueue, reply);
  reply = receive_reply(5, 1);
  EXPECT_EQ(fcs_parse_get_inet_addr(reply, &status, &count, &list), 9);
  EXPECT_EQ(status, 2);
  EXPECT_EQ(count, 50);
  ASSERT_NE(list, nullptr);
  void* first_list = list;
  EXPECT_NONFATAL_FAILURE(fcs_parse_get_inet_addr(reply, &status, &count, &list),
                          "the list is not preset to null");
  free(first_list);
  free(list);
  mts_drop(kQueue, reply);
}

// ---- fabric distribution ----

TEST(FabricDistributionDouble, WalksTheAnswersOfThePeers) {
  HeapLedger ledger;
  Script script;
  script.expect(discover_peers(Record(28).host32(24, 126))).sent();
  script.expect(receive().timeout(20).no_token())
      .receives(peers()
                    .answer(hex("20 00 00 0d ec 01 02 03"), 1, hex("0a 00 00 01"))
                    .no_answer()
                    .answer(zeros(60)));
  Bytes request_record = Record(28).host32(24, 126);
  mts_msg_t* request = nullptr;
  EXPECT_EQ(kfs_discover_peers(kQueue, request_record.data(), 2, &request), 0);
  mts_msg_t* reply = receive_reply(20, 0);
  void* bytes = mts_payload_get(reply);
  int32_t size = mts_payload_size(reply);
  uint8_t attributes[64] = {};
  EXPECT_EQ(kfs_get_response_attr(bytes, size, attributes), 0);
  int32_t count = 0;
  void* iterator = nullptr;
  EXPECT_EQ(kfs_iter_parse_response(bytes, size, &count, &iterator), 0);
  EXPECT_EQ(count, 3);
  auto* answer = static_cast<uint8_t*>(kfs_iter_get_next_response(iterator));
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(memcmp(answer + 4, "\x20\0\0\x0d\xec\x01\x02\x03", 8), 0);
  EXPECT_EQ(answer[43], 1);
  EXPECT_EQ(answer[44], 10);
  EXPECT_EQ(kfs_iter_get_next_response(iterator), nullptr);
  EXPECT_NE(kfs_iter_get_next_response(iterator), nullptr);
  EXPECT_EQ(kfs_iter_get_next_response(iterator), nullptr);
  kfs_iter_destroy(iterator);
  EXPECT_NONFATAL_FAILURE(kfs_iter_destroy(iterator), "kfs_iter_destroy after it was destroyed");
  EXPECT_NONFATAL_FAILURE(kfs_iter_get_next_response(iterator), "after it was destroyed");
  mts_drop(kQueue, reply);
  mts_drop(kQueue, request);
}

TEST(FabricDistributionDouble, ParsingMayFailWithAndWithoutAnIterator) {
  Script script;
  script.expect(receive().timeout(20).no_token()).receives(peers().parse_fails(7));
  script.expect(receive().timeout(20).no_token())
      .receives(peers().parse_fails_without_iterator(8).attributes_fail(9));
  mts_msg_t* reply = receive_reply(20, 0);
  int32_t count = 0;
  void* iterator = nullptr;
  EXPECT_EQ(kfs_iter_parse_response(mts_payload_get(reply), 5, &count, &iterator), 7);
  ASSERT_NE(iterator, nullptr);
  kfs_iter_destroy(iterator);
  mts_drop(kQueue, reply);
  iterator = nullptr;
  reply = receive_reply(20, 0);
  uint8_t attributes[64];
  EXPECT_EQ(kfs_get_response_attr(mts_payload_get(reply), 5, attributes), 9);
  EXPECT_EQ(kfs_iter_parse_response(mts_payload_get(reply), 5, &count, &iterator), 8);
  EXPECT_EQ(iterator, nullptr);
  kfs_iter_destroy(iterator);
  mts_drop(kQueue, reply);
}

TEST(FabricDistributionDouble, ChecksPayloadAndSize) {
  Script script;
  script.expect(receive().timeout(20).no_token()).receives(peers());
  mts_msg_t* reply = receive_reply(20, 0);
  uint8_t attributes[64];
  EXPECT_NONFATAL_FAILURE(kfs_get_response_attr(mts_payload_get(reply), 4, attributes),
                          "with size 4 of a payload of 5");
  EXPECT_NONFATAL_FAILURE(kfs_get_response_attr(attributes, 5, attributes),
                          "what is no payload of a discovery");
  mts_drop(kQueue, reply);
}

void leave_an_iterator(Script& script) {
  script.expect(receive().timeout(20).no_token()).receives(peers());
  mts_msg_t* reply = receive_reply(20, 0);
  int32_t count = 0;
  void* iterator = nullptr;
  kfs_iter_parse_response(mts_payload_get(reply), 5, &count, &iterator);
  mts_drop(kQueue, reply);
}

TEST(FabricDistributionDouble, AnIteratorLeftOverFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        Script script;
        leave_an_iterator(script);
      },
      "not destroyed: the iterator of kfs_iter_parse_response");
}

TEST(FabricDistributionDouble, AnIteratorMayBeLeftWhereTheScriptSaysSo) {
  Script script;
  script.iterators_may_be_left();
  leave_an_iterator(script);
}

// ---- failing exchanges across services ----

TEST(ForEveryFailingExchange, CoversEveryService) {
  size_t rounds = for_every_failing_exchange([](FailingExchange& failing) {
    Script script;
    script.expect(get(125).sap(15).no_request().length(4)).replies(hex("00 00 00 01"));
    script.expect(query_domain_ids()).gives(domain_list({}));
    script.expect(chassis_id()).gives("text");
    void* reply = nullptr;
    int32_t length = 4;
    int32_t first = cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, kQueue, 4);
    EXPECT_EQ(first == 0, reply != nullptr);
    free(reply);
    mts_msg_t* message = nullptr;
    int32_t second = dm_get_dom_ids_in_sw(kQueue, 0, &message);
    EXPECT_EQ(second == 0, message != nullptr);
    if (message != nullptr) mts_drop(kQueue, message);
    const char* third = pdb_get_chassis_id_string();
    EXPECT_EQ(failing.was_hit(), first != 0 || second != 0 || third == nullptr);
  });
  EXPECT_EQ(rounds, 4u);
}

}  // namespace
}  // namespace test_support
