#include <cim_utils/domain_manager.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

// A configuration as the domain manager sends it, every field its own value.
Bytes configuration_reply() {
  return Record(1152)
      .be32(0, 10)
      .be32(4, 1)
      .be32(8, 0x01020304)
      .byte(12, 0x91)
      .byte(21, 0x63)
      .put(22, hex("20 0a 00 0d ec 0a 1b 2d"))
      .byte(30, 0x92)
      .be32(32, 0x11121314)
      .be32(36, 0x21222324)
      .be32(40, 0x31323334)
      .be32(44, 0x41424344)
      .be32(48, 0x51525354)
      .be16(52, 0x6162)
      .byte(54, 0x93)
      .be32(312, 0x71727374)
      .be32(316, 0x81828384)
      .be32(320, 0xa1a2a3a4)
      .be32(324, 0xb1b2b3b4)
      .byte(328, 0x94)
      .byte(332, 0xef)
      .byte(333, 2)
      .byte(334, 1)
      .byte(335, 0x95)
      .byte(337, 254)
      .byte(338, 0x96)
      .put(340, hex("20 0a 00 0d ec 0a 1b 99"))
      .host32(348, 0xc1c2c3c4)
      .byte(352, 0x97)
      .byte(1151, 0x98);
}

void expect_configuration(const mts_dm_sw_conf_& conf) {
  EXPECT_EQ(conf.vsan_index, 10u);
  EXPECT_EQ(conf.request_kind, 1u);
  EXPECT_EQ(conf.word_8, 0x01020304u);
  EXPECT_EQ(conf.raw_12[0], 0x91);
  EXPECT_EQ(conf.domain_id, 0x63);
  EXPECT_EQ(bytes_of(conf.vsan_wwn), hex("20 0a 00 0d ec 0a 1b 2d"));
  EXPECT_EQ(conf.raw_30[0], 0x92);
  const uint32_t words_32[] = {0x11121314, 0x21222324, 0x31323334, 0x41424344, 0x51525354};
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(uint32_t{conf.words_32[i]}, words_32[i]);
  EXPECT_EQ(conf.word_52, 0x6162);
  EXPECT_EQ(conf.raw_54[0], 0x93);
  const uint32_t words_312[] = {0x71727374, 0x81828384, 0xa1a2a3a4, 0xb1b2b3b4};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(uint32_t{conf.words_312[i]}, words_312[i]);
  EXPECT_EQ(conf.raw_328[0], 0x94);
  EXPECT_EQ(conf.config_domain, 0xef);
  EXPECT_EQ(conf.config_type, 2);
  EXPECT_EQ(conf.enabled, 1);
  EXPECT_EQ(conf.raw_335[0], 0x95);
  EXPECT_EQ(conf.config_priority, 254);
  EXPECT_EQ(conf.raw_338[0], 0x96);
  EXPECT_EQ(bytes_of(conf.alternate_wwn), hex("20 0a 00 0d ec 0a 1b 99"));
  EXPECT_EQ(conf.change_mask, 0xc1c2c3c4u);  // never converted
  EXPECT_EQ(conf.rest[0], 0x97);
  EXPECT_EQ(conf.rest[799], 0x98);
}

Bytes configuration_request(uint32_t vsan) {
  return Record(1152).be32(0, vsan).be32(4, 1);
}

class DomainManager : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  mts_dm_sw_conf_ conf_{};
  mts_dm_sw_dom_list_info_ info_{};
};

TEST_F(DomainManager, ReadsTheConfigurationOfAVsanInHostOrder) {
  Script script;
  script.expect(get(264).sap(14).sends(configuration_request(10))).replies(configuration_reply());
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 1, &conf_), 0);
  expect_configuration(conf_);
}

TEST_F(DomainManager, AnyExactButZeroIsAGet) {
  Script script;
  script.expect(get(264).sap(14).any_request()).replies(configuration_reply());
  script.expect(get_next(264).sap(14).sends(configuration_request(9)))
      .replies(configuration_reply());
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 7, &conf_), 0);
  conf_ = {};
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 9, 0, &conf_), 0);
  expect_configuration(conf_);
}

TEST_F(DomainManager, TheRequestCarriesTheWholeRecordInWireOrder) {
  Script script;
  script.expect(get(264).sap(14).any_request()).replies(configuration_reply());
  script.expect(get_next(264).sap(14).sends(configuration_reply())).replies(configuration_reply());
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 1, &conf_), 0);
  expect_configuration(conf_);
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 0, &conf_), 0);
}

TEST_F(DomainManager, AFailedConfigurationReadSaysSoAndLeavesTheRecordInWireOrder) {
  Script script;
  script.expect(get(264).sap(14).any_request()).status(17);
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 1, &conf_), -1);
  EXPECT_EQ(bytes_of(conf_), configuration_request(10));
  EXPECT_EQ(out_.err().rfind("vsan get dm error:: ", 0), 0u) << out_.err();
}

TEST_F(DomainManager, EveryWayToGetNoConfigurationIsAFailure) {
  Script script;
  script.expect(get(264).sap(14).any_request()).times_out();
  script.expect(get(264).sap(14).any_request()).ok_without_reply();
  script.expect(get(264).sap(14).any_request()).status_with_reply(5, configuration_reply());
  script.expect(get(264).sap(14).any_request()).replies(configuration_reply()).cut_to(1151);
  script.expect(get(264).sap(14).any_request())
      .replies(configuration_reply())
      .cut_to(1151)
      .length_left_alone();
  for (int i = 0; i < 5; ++i) {
    conf_ = {};
    EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 1, &conf_), -1) << i;
    EXPECT_EQ(conf_.domain_id, 0) << i;
  }
  EXPECT_EQ(dm_cim_get_dmEntry(kQueue, 10, 1, nullptr), -1);
}

TEST_F(DomainManager, EveryConfigurationReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(1152, [] {
    mts_dm_sw_conf_ conf{};
    dm_cim_get_dmEntry(kQueue, 10, 1, &conf);
  });
}

TEST_F(DomainManager, ConvertingTwiceChangesNothing) {
  std::memcpy(&conf_, configuration_reply().data(), sizeof conf_);
  dmEntry_hton(&conf_);
  expect_configuration(conf_);
  dmEntry_hton(&conf_);
  EXPECT_EQ(bytes_of(conf_), configuration_reply());
  dmEntry_hton(nullptr);
}

Bytes database_request(uint32_t vsan, uint8_t domain) {
  return Record(19).be32(0, vsan).byte(4, 1).byte(5, domain);
}

Bytes database_reply() {
  return Record(19)
      .be32(0, 0x01020304)
      .byte(4, 1)
      .byte(5, 0x63)
      .put(6, hex("20 01 00 0d ec 0a 1b 2d"))
      .put(14, hex("a1 a2 a3 a4 a5"));
}

TEST_F(DomainManager, ReadsTheOwnerOfADomain) {
  Script script;
  script.expect(get(267).sap(14).sends(database_request(10, 0x63))).replies(database_reply());
  EXPECT_EQ(dm_cim_get_dmDatabaseEntry(kQueue, 10, 0x63, 3, &info_), 0);
  EXPECT_EQ(info_.vsan_index, 0x01020304u);
  EXPECT_EQ(info_.request_kind, 1);
  EXPECT_EQ(info_.domain_id, 0x63);
  EXPECT_EQ(bytes_of(info_.switch_wwn), hex("20 01 00 0d ec 0a 1b 2d"));
  EXPECT_EQ(bytes_of(info_.raw_14), hex("a1 a2 a3 a4 a5"));
}

TEST_F(DomainManager, ReadsTheNextDomainsOwner) {
  Script script;
  script.expect(get_next(267).sap(14).sends(database_request(10, 0))).replies(database_reply());
  EXPECT_EQ(dm_cim_get_dmDatabaseEntry(kQueue, 10, 0, 0, &info_), 0);
  EXPECT_EQ(info_.domain_id, 0x63);
}

TEST_F(DomainManager, EveryWayToGetNoDatabaseEntryIsAFailureWithTheVsanInHostOrder) {
  Script script;
  script.expect(get(267).sap(14).any_request()).status(17);
  script.expect(get(267).sap(14).any_request()).times_out();
  script.expect(get(267).sap(14).any_request()).ok_without_reply();
  script.expect(get(267).sap(14).any_request()).status_with_reply(5, database_reply());
  script.expect(get(267).sap(14).any_request()).replies(database_reply()).cut_to(18);
  script.expect(get(267).sap(14).any_request())
      .replies(database_reply())
      .cut_to(18)
      .length_left_alone();
  for (int i = 0; i < 6; ++i) {
    info_ = {};
    EXPECT_EQ(dm_cim_get_dmDatabaseEntry(kQueue, 0x0a0b, 5, 1, &info_), -1) << i;
    EXPECT_EQ(info_.vsan_index, 0x0a0bu) << i;
    EXPECT_EQ(info_.domain_id, 5) << i;
  }
  EXPECT_EQ(dm_cim_get_dmDatabaseEntry(kQueue, 10, 5, 1, nullptr), -1);
}

TEST_F(DomainManager, EveryDatabaseReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(19, [] {
    mts_dm_sw_dom_list_info_ info{};
    dm_cim_get_dmDatabaseEntry(kQueue, 10, 5, 1, &info);
  });
}

TEST_F(DomainManager, TheSwitchWwnOfADomainIsItsOwners) {
  Script script;
  script.expect(get(267).sap(14).sends(database_request(10, 0x63))).replies(database_reply());
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_switch_wwn_by_domain_id(kQueue, 10, 0x63, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), hex("20 01 00 0d ec 0a 1b 2d"));
}

TEST_F(DomainManager, ADomainWithoutAnOwnerHasNoSwitchWwn) {
  Script script;
  script.expect(get(267).sap(14).any_request()).status(17);
  wwn_ wwn{{1, 2, 3, 4, 5, 6, 7, 8}};
  EXPECT_EQ(dm_cim_get_switch_wwn_by_domain_id(kQueue, 10, 0x63, &wwn), -1);
  EXPECT_EQ(bytes_of(wwn), hex("01 02 03 04 05 06 07 08"));
  EXPECT_EQ(dm_cim_get_switch_wwn_by_domain_id(kQueue, 10, 0x63, nullptr), -1);
}

TEST_F(DomainManager, ASwitchWwnWithoutMemorySaysSoAndAsksNothing) {
  Script script;
  ledger_.fail_nth(1, Heap::c);
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_switch_wwn_by_domain_id(kQueue, 10, 0x63, &wwn), -1);
  EXPECT_EQ(out_.out(), " Memory failure in retrieving dm info ");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(DomainManager, APortWwnOfAnotherMakersDomainIsDerivedFromItsIndex) {
  // 0x006069: byte 0 becomes 0x20, byte 1 the port.
  Script script;
  script.expect(get(267).sap(14).sends(database_request(10, 0x63)))
      .replies(Record(19).be32(0, 10).put(6, hex("10 00 00 60 69 0a 1b 2d")));
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_port_wwn_by_domain_id(kQueue, 10, 0x63, 5, &wwn), 0);
  EXPECT_EQ(bytes_of(wwn), hex("20 05 00 60 69 0a 1b 2d"));
}

TEST_F(DomainManager, APortWwnOfAnUnknownMakersDomainFailsAndSaysSo) {
  Script script;
  script.expect(get(267).sap(14).any_request())
      .replies(Record(19).be32(0, 10).put(6, hex("10 00 11 22 33 0a 1b 2d")));
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_port_wwn_by_domain_id(kQueue, 10, 0x63, 5, &wwn), -1);
  EXPECT_EQ(out_.out(), "dm get port 5 wwn fail \n");
}

TEST_F(DomainManager, APortWwnWithoutMemorySaysSoAndAsksNothing) {
  Script script;
  ledger_.fail_nth(1, Heap::c);
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_port_wwn_by_domain_id(kQueue, 10, 0x63, 5, &wwn), -1);
  EXPECT_EQ(out_.out(), " Memory failure in retrieving dm info ");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(DomainManager, APortWwnOfADomainWithoutAnOwnerFailsSilently) {
  Script script;
  script.expect(get(267).sap(14).any_request()).status(17);
  wwn_ wwn{};
  EXPECT_EQ(dm_cim_get_port_wwn_by_domain_id(kQueue, 10, 0x63, 5, &wwn), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(dm_cim_get_port_wwn_by_domain_id(kQueue, 10, 0x63, 5, nullptr), -1);
}

Exchange switch_wwn() {
  return get(1282).sap(46).no_request().length(0);
}

TEST_F(DomainManager, AVsanWwnOfTheLocalSwitchIsLocal) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  const wwn_ vsan_wwn{{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
  EXPECT_EQ(dm_cim_is_local_switch_wwn(kQueue, &vsan_wwn), 1);
}

TEST_F(DomainManager, AVsanWwnOfAnotherSwitchIsNot) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  const wwn_ vsan_wwn{{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3d}};
  EXPECT_EQ(dm_cim_is_local_switch_wwn(kQueue, &vsan_wwn), 0);
}

TEST_F(DomainManager, WithoutTheLocalWwnTheSwitchTestIsAnError) {
  Script script;
  script.expect(switch_wwn()).status(17);
  const wwn_ vsan_wwn{{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
  EXPECT_EQ(dm_cim_is_local_switch_wwn(kQueue, &vsan_wwn), -1);
  EXPECT_EQ(dm_cim_is_local_switch_wwn(kQueue, nullptr), -1);
}

TEST_F(DomainManager, ATextOfTheLocalSwitchIsLocal) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_NE(dm_cim_is_local_switch_wwn_hex(kQueue, "2005000DEC0A1B2D"), 0);
  EXPECT_EQ(dm_cim_is_local_switch_wwn_hex(kQueue, "2005000DEC0A1B3D"), 0);
}

TEST_F(DomainManager, ATextThatIsNotTheMakersIsNotLocalAndAsksNothing) {
  Script script;
  EXPECT_EQ(dm_cim_is_local_switch_wwn_hex(kQueue, "1000006069001122"), 0);
  EXPECT_EQ(dm_cim_is_local_switch_wwn_hex(kQueue, "2005000DEC0A1B2"), 0);
  EXPECT_EQ(dm_cim_is_local_switch_wwn_hex(kQueue, nullptr), 0);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(DomainManager, WithoutTheLocalWwnNoTextIsLocal) {
  Script script;
  script.expect(switch_wwn()).status(17);
  EXPECT_EQ(dm_cim_is_local_switch_wwn_hex(kQueue, "2005000DEC0A1B2D"), 0);
}

TEST_F(DomainManager, APortWwnOfTheLocalSwitchIsLocal) {
  Script script;
  for (int i = 0; i < 4; ++i)
    script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  const wwn_ local{{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
  const wwn_ remote{{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3c}};
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, &local), 1);
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, &remote), 0);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "2041000dec0a1b2c"), 1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "2041000DEC0A1B3C"), 0);
}

TEST_F(DomainManager, APortWwnThatNamesNoSwitchIsAnErrorWithoutAnExchange) {
  Script script;
  const wwn_ zero{};
  const wwn_ unknown{{0x20, 0x41, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55}};
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, &zero), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, &unknown), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, nullptr), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "2041001122334455"), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "0000000000000000"), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "20410011223344"), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, nullptr), -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(DomainManager, WithoutTheLocalWwnThePortTestsAreErrors) {
  Script script;
  script.expect(switch_wwn()).status(17);
  script.expect(switch_wwn()).ok_without_reply();
  const wwn_ port{{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
  EXPECT_EQ(dm_cim_is_local_port_wwn(kQueue, &port), -1);
  EXPECT_EQ(dm_cim_is_local_port_wwn_hex(kQueue, "2041000DEC0A1B2C"), -1);
}

constexpr const char* kDone = "dm_cim_set_dmEntry -  ret code is 0\n";

TEST_F(DomainManager, APriorityIsSentByItsCode) {
  const struct {
    uint16_t code;
    uint8_t priority;
  } rows[] = {{2, 1}, {3, 254}, {4, 128}, {7, 128}, {0, 128}};
  for (const auto& row : rows) {
    Script script;
    script
        .expect(set(264).sap(14).sends(
            Record(1152).be32(0, 10).be32(4, 1).byte(337, row.priority).host32(348, 32)))
        .returns(0);
    EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, row.code, 0, 0, 1), 0) << row.code;
  }
}

TEST_F(DomainManager, AChangeIsTracedBeforeAndAfter) {
  Script script;
  script.expect(set(264).sap(14).any_request().length(1152)).returns(0);
  EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, 2, 99, 1, 1), 0);
  EXPECT_EQ(out_.out(),
            std::string("dm_cim_set_dmEntry Start -  pp is 2, domId is 99, domTpe is 1, setType is "
                        "1\n") +
                kDone);
}

TEST_F(DomainManager, ADomainIsSentWithItsType) {
  const struct {
    int32_t type;
    int32_t what;
    uint8_t sent;
  } rows[] = {{1, 2, 1}, {0, 2, 2}, {2, 3, 2}, {1, 3, 1}, {-1, 2, 2}};
  for (const auto& row : rows) {
    Script script;
    script
        .expect(set(264).sap(14).sends(Record(1152)
                                           .be32(0, 10)
                                           .be32(4, 1)
                                           .byte(332, 0xef)
                                           .byte(333, row.sent)
                                           .host32(348, 512)))
        .returns(0);
    EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, 2, 0xef, row.type, row.what), 0);
  }
}

TEST_F(DomainManager, AnyOtherChangeIsSentWithoutAMask) {
  Script script;
  script.expect(set(264).sap(14).sends(Record(1152).be32(0, 10).be32(4, 1))).returns(0);
  EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, 2, 0xef, 1, 4), 0);
}

TEST_F(DomainManager, ARefusedChangeIsPassedOnAndCalledAPriority) {
  Script script;
  script.expect(set(264).sap(14).any_request().length(1152)).status(17);
  out_.clear();
  EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, 0, 5, 1, 2), 17);
  EXPECT_EQ(out_.out(),
            "dm_cim_set_dmEntry Start -  pp is 0, domId is 5, domTpe is 1, setType is 2\n"
            "set dm priority -  FAIL ret code is 17\n");
}

TEST_F(DomainManager, AChangeThatTimesOutIsPassedOn) {
  Script script;
  script.expect(set(264).sap(14).any_request().length(1152)).times_out();
  EXPECT_EQ(dm_cim_set_DMEntry(kQueue, 10, 2, 0, 0, 1), -1);
  EXPECT_EQ(out_.out(),
            "dm_cim_set_dmEntry Start -  pp is 2, domId is 0, domTpe is 0, setType is 1\n"
            "set dm priority -  FAIL ret code is -1\n");
}

}  // namespace
