#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/double_fabric.h"
#include "tests/support/double_mts.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

Exchange switch_wwn() {
  return get(1282).sap(46).no_request().length(0);
}
Exchange item_two() {
  return get(1812).sap(28).sends(Record(1032).be32(0, 2));
}

class SystemAdaptor : public testing::Test {
 protected:
  SystemAdaptor() { mts_q = kQueue; }
  ~SystemAdaptor() override { mts_q = -1; }
  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(SystemAdaptor, TheSwitchWwnIsTheRepliesFirstEightBytes) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2d 99 99"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2e")).length_left_alone();
  wwn_ wwn{};
  EXPECT_EQ(system_cim_get_switch_wwn(kQueue, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_EQ(system_cim_get_switch_wwn(kQueue, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), hex("20 00 00 0d ec 0a 1b 2d"));
  EXPECT_EQ(system_cim_get_switch_wwn(kQueue, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), hex("20 00 00 0d ec 0a 1b 2e"));
}

TEST_F(SystemAdaptor, EveryWayToGetNoSwitchWwnIsAFailure) {
  Script script;
  script.expect(switch_wwn()).status(17);
  script.expect(switch_wwn()).times_out();
  script.expect(switch_wwn()).ok_without_reply();
  script.expect(switch_wwn()).status_with_reply(3, hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c")).cut_to(7);
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c")).cut_to(7).length_left_alone();
  wwn_ wwn{};
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(system_cim_get_switch_wwn(kQueue, &wwn), -1) << i;
  EXPECT_EQ(bytes_of(wwn), zeros(8));
  EXPECT_EQ(system_cim_get_switch_wwn(kQueue, nullptr), -1);
}

TEST_F(SystemAdaptor, EverySwitchWwnReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(8, [] {
    wwn_ wwn{};
    system_cim_get_switch_wwn(kQueue, &wwn);
  });
}

TEST_F(SystemAdaptor, BothNamesAreTheSwitchWwn) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_STREQ(CSgetName(kQueue), "2000000DEC0A1B2C");
  std::memset(newswitch_buf, 'x', 40);
  EXPECT_EQ(CSgetWWN(kQueue), newswitch_buf);
  EXPECT_STREQ(newswitch_buf, "2000000DEC0A1B2C");
}

TEST_F(SystemAdaptor, WithoutTheSwitchWwnBothNamesSaySo) {
  Script script;
  script.expect(switch_wwn()).status(17);
  script.expect(switch_wwn()).ok_without_reply();
  EXPECT_STREQ(CSgetName(kQueue), "N/A");
  EXPECT_STREQ(CSgetWWN(kQueue), "N/A");
}

TEST_F(SystemAdaptor, TheElementNameIsItemTwo) {
  Script script;
  script.expect(item_two()).replies(Record(1032).be32(0, 2).text(4, "sydney"));
  EXPECT_EQ(CSgetElementName(kQueue), newswitch_buf);
  EXPECT_STREQ(newswitch_buf, "sydney");
}

TEST_F(SystemAdaptor, ALongElementNameIsCutTo255Characters) {
  Script script;
  script.expect(item_two()).replies(Record(1032).be32(0, 2).text(4, std::string(1028, 'n')));
  EXPECT_EQ(CSgetElementName(kQueue), std::string(255, 'n'));
}

TEST_F(SystemAdaptor, WithoutItemTwoTheElementNameIsNotAvailable) {
  Script script;
  script.expect(item_two()).status(17);
  EXPECT_STREQ(CSgetElementName(kQueue), "Not Available");
  EXPECT_EQ(out_.err().rfind("get sys info error: : ", 0), 0u);
}

system_information_ information(const Bytes& bytes) {
  system_information_ info;
  std::memcpy(&info, bytes.data(), sizeof info);
  return info;
}

std::string rendered(const system_information_& info, int32_t selector) {
  char text[1100] = {};
  const int32_t length = system_cim_parse_sys_info(&info, selector, text);
  EXPECT_EQ(length, static_cast<int32_t>(std::strlen(text)));
  return text;
}

TEST_F(SystemAdaptor, TextItemsAreRenderedAsTheyAre) {
  const system_information_ info = information(Record(1032).text(4, "an answer"));
  for (const int32_t selector : {0, 1, 2, 3})
    EXPECT_EQ(rendered(info, selector), "an answer");
}

TEST_F(SystemAdaptor, ATextWithoutATerminatorEndsWithTheRecord) {
  const system_information_ info = information(Record(1032).text(4, std::string(1028, 't')));
  EXPECT_EQ(rendered(info, 1), std::string(1028, 't'));
}

TEST_F(SystemAdaptor, AnObjectIdentifierHasAStrideOfThreeCharacters) {
  // 12. at 0, 345. at 3, 67. at 6 over the third one's dot, 8. at 9, and there it ends.
  const system_information_ info = information(
      Record(1032).host32(4, 12).host32(8, 345).host32(12, 67).host32(16, 8).host32(1028, 4));
  EXPECT_EQ(rendered(info, 4), "12.34567.8.");
}

TEST_F(SystemAdaptor, AOneDigitComponentEndsTheObjectIdentifier) {
  const system_information_ info =
      information(Record(1032).host32(4, 1).host32(8, 22).host32(1028, 2));
  EXPECT_EQ(rendered(info, 4), "1.");
}

TEST_F(SystemAdaptor, AnObjectIdentifierOfNoComponentsWritesNothing) {
  const system_information_ info = information(Record(1032).host32(4, 12));
  char text[] = "before";
  EXPECT_EQ(system_cim_parse_sys_info(&info, 4, text), 6);
  EXPECT_STREQ(text, "before");
}

TEST_F(SystemAdaptor, AHugeComponentCountIsClampedToTheAnswer) {
  const system_information_ info = information(Record(1032).host32(1028, 0xffffffff));
  char text[1029] = {};
  system_cim_parse_sys_info(&info, 4, text);
  EXPECT_EQ(std::string(text + 3 * 255), "0.");
  EXPECT_EQ(text[3 * 256], '\0');
}

TEST_F(SystemAdaptor, TheUpTimeIsRenderedInSeconds) {
  const system_information_ info = information(Record(1032).host32(4, 12345));
  EXPECT_EQ(rendered(info, 6), "123 seconds");
  EXPECT_EQ(rendered(information(Record(1032).host32(4, 0xffffffff)), 6), "42949672 seconds");
}

TEST_F(SystemAdaptor, AnyOtherItemIsNotAvailable) {
  const system_information_ info = information(Record(1032).text(4, "an answer"));
  for (const int32_t selector : {5, 7, 9, -1})
    EXPECT_EQ(rendered(info, selector), "Not Available");
  char text[20];
  EXPECT_EQ(system_cim_parse_sys_info(nullptr, 2, text), -1);
  EXPECT_EQ(system_cim_parse_sys_info(&info, 2, nullptr), -1);
}

Bytes name_request(const std::string& name) {
  return Record(260).text(0, name);
}

TEST_F(SystemAdaptor, TheSystemNameIsSent) {
  Script script;
  script.expect(set(878).sap(35).sends(name_request("sydney"))).returns(0);
  EXPECT_EQ(system_cim_set_SysName(kQueue, "sydney"), 0);
  EXPECT_EQ(out_.out(), "system_cim_util:set SysName - ret code is 0\n");
}

TEST_F(SystemAdaptor, ASystemNameIsCutTo255Characters) {
  Script script;
  script.expect(set(878).sap(35).sends(name_request(std::string(255, 'n')))).returns(0);
  EXPECT_EQ(system_cim_set_SysName(kQueue, std::string(300, 'n').c_str()), 0);
}

TEST_F(SystemAdaptor, ARefusedSystemNameIsPassedOnAndSaid) {
  Script script;
  script.expect(set(878).sap(35).any_request().length(260)).status(17);
  EXPECT_EQ(system_cim_set_SysName(kQueue, "sydney"), 17);
  EXPECT_EQ(out_.out(), "system_cim_util:set SysName -  FAIL ret code is 17\n");
}

TEST_F(SystemAdaptor, ASystemNameThatTimesOutIsPassedOnAndSaid) {
  Script script;
  script.expect(set(878).sap(35).any_request().length(260)).times_out();
  EXPECT_EQ(system_cim_set_SysName(kQueue, "sydney"), -1);
  EXPECT_EQ(out_.out(), "system_cim_util:set SysName -  FAIL ret code is -1\n");
}

TEST_F(SystemAdaptor, NoSystemNameIsAFailureWithoutAnExchange) {
  Script script;
  EXPECT_EQ(system_cim_set_SysName(kQueue, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(SystemAdaptor, TheSystemKeyIsNumberAndWwn) {
  const wwn_ wwn{{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
  char key[40];
  EXPECT_EQ(system_cim_get_system_key(&wwn, 12, key), 0);
  EXPECT_STREQ(key, "12_2000000DEC0A1B2C");
  EXPECT_EQ(system_cim_get_system_key(&wwn, -2147483647, key), 0);
  EXPECT_STREQ(key, "-2147483647_2000000DEC0A1B2C");
  EXPECT_EQ(system_cim_get_system_key(nullptr, 12, key), -1);
  EXPECT_EQ(system_cim_get_system_key(&wwn, 12, nullptr), -1);
}

TEST_F(SystemAdaptor, ASystemKeysNumberIsRead) {
  int32_t number = 0;
  EXPECT_EQ(system_cim_get_fields_from_key("12_2000000DEC0A1B2C", &number), 0);
  EXPECT_EQ(number, 12);
  EXPECT_EQ(system_cim_get_fields_from_key("x_not a WWN at all", &number), 0);
  EXPECT_EQ(number, 0);
}

TEST_F(SystemAdaptor, AMalformedSystemKeyIsRefused) {
  int32_t number = 0;
  for (const char* key : {"12_2000000DEC0A1B2", "12_2000000DEC0A1B2C0", "122000000DEC0A1B2C", "12_",
                          "", "_", "12_2000000DEC0A1B2C_1"})
    EXPECT_EQ(system_cim_get_fields_from_key(key, &number), -1) << key;
  EXPECT_EQ(system_cim_get_fields_from_key(nullptr, &number), -1);
  EXPECT_EQ(system_cim_get_fields_from_key("12_2000000DEC0A1B2C", nullptr), -1);
}

TEST_F(SystemAdaptor, OnlyTheFirst31CharactersOfASystemKeyCount) {
  int32_t number = 0;
  // Sixteen characters of the WWN are left when the rest is cut off.
  EXPECT_EQ(system_cim_get_fields_from_key("00000000000012_2000000DEC0A1B2C99", &number), 0);
  EXPECT_EQ(number, 12);
}

TEST_F(SystemAdaptor, TheTextFormOfTheLocalSwitchTestDoesNothing) {
  EXPECT_EQ(system_cim_is_local_switch_wwn_str(), -1);
}

TEST_F(SystemAdaptor, AWwnWithoutAVsanIsComparedUnchanged) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  Bytes wwn = hex("99 00 00 0d ec 0a 1b 2c");
  uint8_t local = 9;
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, wwn.data(), &local), 0);
  EXPECT_EQ(local, 1);
  EXPECT_EQ(wwn, hex("99 00 00 0d ec 0a 1b 2c"));
  wwn = hex("20 00 00 0d ec 0a 1b 2d");
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, wwn.data(), &local), 0);
  EXPECT_EQ(local, 0);
}

TEST_F(SystemAdaptor, AVsanWwnIsChangedInPlaceBeforeItIsCompared) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b ff"));
  Bytes wwn = hex("20 05 00 0d ec 0a 1b 00");
  uint8_t local = 9;
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, wwn.data(), &local), 0);
  EXPECT_EQ(local, 1);
  EXPECT_EQ(wwn, hex("20 05 00 0d ec 0a 1b ff"));
}

TEST_F(SystemAdaptor, TheLocalSwitchTestFailsWithoutTheLocalWwnAndLeavesItsArguments) {
  Script script;
  script.expect(switch_wwn()).status(17);
  Bytes wwn = hex("20 05 00 0d ec 0a 1b 00");
  uint8_t local = 9;
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, wwn.data(), &local), -1);
  EXPECT_EQ(local, 9);
  EXPECT_EQ(wwn, hex("20 05 00 0d ec 0a 1b 00"));
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, nullptr, &local), -1);
  EXPECT_EQ(system_cim_is_local_switch_wwn_hex(kQueue, wwn.data(), nullptr), -1);
}

Bytes discovery_request() {
  return Record(28).host32(24, 126);
}

const Bytes kPeerOne = hex("20 00 00 0d ec 0a 1b 3c");
const Bytes kPeerTwo = hex("20 00 00 0d ec 0a 1b 4c");

TEST_F(SystemAdaptor, APeersAddressIsFoundByItsWwn) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers()
                    .answer(kPeerOne, 1, hex("0a 00 00 02"))
                    .no_answer()
                    .answer(kPeerTwo, 1, hex("0a 00 00 03")));
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B4C", ip), 0);
  EXPECT_STREQ(ip, "10.0.0.3");
  EXPECT_EQ(out_.out(), "Match Found ");
}

TEST_F(SystemAdaptor, ALaterPeerOfTheSameWwnCounts) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers()
                    .answer(kPeerOne, 1, hex("0a 00 00 02"))
                    .answer(kPeerOne, 2, hex("20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01")));
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 0);
  EXPECT_STREQ(ip, "2001:db8::1");
  EXPECT_EQ(out_.out(), "Match Found Match Found ");
}

TEST_F(SystemAdaptor, WithoutAMatchThePeersAddressIsLeftAlone) {
  for (const char* wwn : {static_cast<const char*>(nullptr), "2000000dec0a1b3c", ""}) {
    Script script;
    script.expect(discover_peers(discovery_request())).returns(0);
    script.expect(receive().timeout(20).no_token())
        .receives(peers().answer(kPeerOne, 1, hex("0a 00 00 02")));
    char ip[48] = "before";
    EXPECT_EQ(get_kfs_peer_ip(kQueue, wwn, ip), 0);
    EXPECT_STREQ(ip, "before");
  }
  EXPECT_EQ(out_.out(), "");
}

TEST_F(SystemAdaptor, FortyEightBytesOfAPeersAddressAreWritten) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().answer(kPeerOne, 1, hex("0a 00 00 02")));
  Bytes ip(49, 'x');
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", reinterpret_cast<char*>(ip.data())), 0);
  EXPECT_EQ(ip, Bytes(Record(49).text(0, "10.0.0.2").byte(48, 'x')));
}

TEST_F(SystemAdaptor, APeerOfAnUnknownAddressFamilyHasTheAddressOfNobody) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().answer(kPeerOne, 3, hex("0a 00 00 02")));
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 0);
  EXPECT_STREQ(ip, "0.0.0.0");
}

TEST_F(SystemAdaptor, PeersAreReadWhateverTheAttributesOfTheReply) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().answer(kPeerOne, 1, hex("0a 00 00 02")).attributes_fail(7));
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 0);
  EXPECT_STREQ(ip, "10.0.0.2");
}

TEST_F(SystemAdaptor, AMatchingPeerNeedsNoPlaceForItsAddress) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().answer(kPeerOne, 1, hex("0a 00 00 02")));
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", nullptr), 0);
  EXPECT_EQ(out_.out(), "Match Found ");
}

TEST_F(SystemAdaptor, PeersWithoutAnIteratorAreNone) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token()).receives(peers().count(3).no_iterator());
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 0);
  EXPECT_STREQ(ip, "before");
}

TEST_F(SystemAdaptor, NoMessageOfPeersIsAFailureToReceive) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token()).returns(0);
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 1);
  EXPECT_STREQ(ip, "before");
}

TEST_F(SystemAdaptor, NoPeersInTimeIsSaidSo) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token()).times_out();
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 1);
  EXPECT_STREQ(ip, "before");
  EXPECT_EQ(out_.out(),
            "Could not get response. The network topology may under going change.\n"
            "Please try after about 30 seconds");
}

TEST_F(SystemAdaptor, AnotherReceiveFailureOfPeersIsReportedByTheSystem) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token()).fails(-1).with_errno(EIO);
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 1);
  EXPECT_EQ(out_.err(), "Unable to receive response: Input/output error\n");
  EXPECT_EQ(out_.out(), "");
}

TEST_F(SystemAdaptor, PeersThatCannotBeParsedAreSaidByTheirCode) {
  Script script;
  script.text_for("kfs_rcode2str", 33, "thirty-three");
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token()).receives(peers().parse_fails(33));
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().parse_fails_without_iterator(33));
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), -1);
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), -1);
  EXPECT_EQ(out_.out(), "\nthirty-three\n\nthirty-three\n");
}

TEST_F(SystemAdaptor, ADiscoveryThatCannotBeSentIsAFailure) {
  Script script;
  script.expect(discover_peers(discovery_request())).fails(-1);
  char ip[48] = "before";
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), -1);
}

TEST_F(SystemAdaptor, AHugePeerCountIsAnEndToo) {
  Script script;
  script.expect(discover_peers(discovery_request())).returns(0);
  script.expect(receive().timeout(20).no_token())
      .receives(peers().answer(kPeerOne, 1, hex("0a 00 00 02")).count(0x7fffffff));
  char ip[48] = {};
  EXPECT_EQ(get_kfs_peer_ip(kQueue, "2000000DEC0A1B3C", ip), 0);
  EXPECT_STREQ(ip, "10.0.0.2");
}

TEST_F(SystemAdaptor, ARemoteSwitchIsNamedByItsDomain) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "melbourne").entry(20, "perth"));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(20, name), 0);
  EXPECT_STREQ(name, "melbourne");
  EXPECT_EQ(out_.out(), "Switch name = melbourne\nSwitch Domain Id = 20\n");
}

TEST_F(SystemAdaptor, AnUnknownDomainLeavesTheNameAlone) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "melbourne"));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(30, name), 0);
  EXPECT_STREQ(name, "before");
}

TEST_F(SystemAdaptor, AListOfTwoSwitchesIsSearchedFromTheFirst) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "melbourne"));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), 0);
  EXPECT_STREQ(name, "sydney");
}

TEST_F(SystemAdaptor, AListOfOneSwitchIsNotSearched) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5)).receives(switch_addresses().entry(10, "sydney"));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), 0);
  EXPECT_STREQ(name, "before");
}

TEST_F(SystemAdaptor, AListOfAnotherStatusIsNotSearched) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "perth").status(0));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), 0);
  EXPECT_STREQ(name, "before");
}

TEST_F(SystemAdaptor, ASwitchNameEndsWithItsEntry) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses()
                    .entry(Record(396).byte(360, 10).text(364, std::string(32, 'n')))
                    .entry(20, "perth"));
  char name[257];
  std::memset(name, 'x', sizeof name);
  EXPECT_EQ(get_remote_switchname(10, name), 0);
  EXPECT_EQ(std::string(name), std::string(32, 'n'));
  EXPECT_EQ(name[256], '\0');
}

TEST_F(SystemAdaptor, AHugeSwitchCountIsClampedToTheList) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "perth").count(0x7fffffff));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(99, name), 0);
  EXPECT_STREQ(name, "before");
}

TEST_F(SystemAdaptor, AnAddressQueryThatCannotBeSentPrintsItsError) {
  Script script;
  script.expect(query_switch_addresses()).fails(0x4033000a);
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), -1);
  EXPECT_EQ(out_.out(), "API failed errno: 0x4033000a");
  EXPECT_STREQ(name, "before");
}

TEST_F(SystemAdaptor, AFailedReceiveOfAddressesShowsAsAFailedParse) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5)).times_out();
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), -1);
  EXPECT_EQ(out_.out(), "API failed errno: 0xffffffff");
}

TEST_F(SystemAdaptor, ARequestForAddressesWithoutAMessageShowsAsAFailedParse) {
  Script script;
  script.expect(query_switch_addresses()).sent_without_message();
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), -1);
  EXPECT_STREQ(name, "before");
  EXPECT_EQ(out_.out(), "API failed errno: 0xffffffff");
}

TEST_F(SystemAdaptor, TheResultOfReceivingAddressesIsNotTested) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .fails_with_message(-1, switch_addresses().entry(10, "sydney").entry(20, "perth"));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(20, name), 0);
  EXPECT_STREQ(name, "perth");
}

TEST_F(SystemAdaptor, AddressesThatCannotBeParsedPrintTheirErrorAndAreFreed) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses()
                    .entry(10, "sydney")
                    .entry(20, "perth")
                    .parse_fails_with_list(0x4033000b));
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5)).receives(switch_addresses().parse_fails(0x4033000c));
  char name[257] = "before";
  EXPECT_EQ(get_remote_switchname(10, name), -1);
  EXPECT_EQ(get_remote_switchname(10, name), -1);
  EXPECT_EQ(out_.out(), "API failed errno: 0x4033000bAPI failed errno: 0x4033000c");
}

TEST_F(SystemAdaptor, ANameNeedsAPlace) {
  Script script;
  script.expect(query_switch_addresses()).returns(0);
  script.expect(receive().timeout(5))
      .receives(switch_addresses().entry(10, "sydney").entry(20, "perth"));
  EXPECT_EQ(get_remote_switchname(10, nullptr), 0);
}

}  // namespace
