#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "tests/adaptors/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

constexpr int32_t kState = 1;
constexpr int32_t kMode = 2;
constexpr int32_t kSpeed = 3;
constexpr int32_t kAlias = 6;

Bytes alias_field(const std::string& alias) {
  return Record(81).text(0, alias);
}

Bytes number(uint32_t value) {
  return Record(4).host32(0, value);
}

// Stands in for standard output, and keeps what each flush of its buffer writes.
class WrittenPieces {
 public:
  WrittenPieces() : real_(stdout) {
    HeapLedger::Pause pause;
    stdout = fopencookie(this, "w", {nullptr, write, nullptr, nullptr});
    std::setvbuf(stdout, buffer_, _IOFBF, sizeof buffer_);
  }
  WrittenPieces(const WrittenPieces&) = delete;
  WrittenPieces& operator=(const WrittenPieces&) = delete;
  ~WrittenPieces() { taken(); }

  // All of them; from then on standard output is the real one.
  std::vector<std::string> taken() {
    HeapLedger::Pause pause;
    if (stdout != real_) std::fclose(std::exchange(stdout, real_));
    return std::exchange(pieces_, {});
  }

 private:
  static ssize_t write(void* self, const char* text, size_t size) {
    HeapLedger::Pause pause;
    static_cast<WrittenPieces*>(self)->pieces_.emplace_back(text, size);
    return static_cast<ssize_t>(size);
  }

  FILE* real_;
  char buffer_[4096];
  std::vector<std::string> pieces_;
};

class PortChanges : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
};

// ---- Alias ------------------------------------------------------------------------------------

TEST_F(PortChanges, AnAliasIsSentInAZeroedFieldOf81Bytes) {
  for (const uint32_t if_index : {kFc, kEthernet, kChannel, kEtherChannel, kManagement}) {
    Script script;
    script.expect(set_port(if_index, kAlias, alias_field("to host-a"))).service_status(0);
    EXPECT_EQ(pm_cim_set_port_alias("to host-a", if_index, kQueue), 0);
  }
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PortChanges, AnEmptyAliasIsSentAsZeros) {
  Script script;
  script.expect(set_port(kFc, kAlias, zeros(81))).service_status(0);
  EXPECT_EQ(pm_cim_set_port_alias("", kFc, kQueue), 0);
}

TEST_F(PortChanges, AnAliasOf81CharactersFillsTheField) {
  Script script;
  script.expect(set_port(kFc, kAlias, Bytes(81, 'x'))).service_status(0);
  EXPECT_EQ(pm_cim_set_port_alias(std::string(81, 'x').c_str(), kFc, kQueue), 0);
}

TEST_F(PortChanges, AnAliasOf82CharactersIsRefusedWithoutARequest) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_alias(std::string(82, 'x').c_str(), kFc, kQueue), -1);
  EXPECT_EQ(out_.out(),
            "pm_cim_set_port_alias length of alias is 82 greater than Port Max Len 81\n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, TheAliasOfFcipAndIscsiInterfacesCannotBeSet) {
  for (const uint32_t if_index : {kFcip, kIscsi}) {
    Script script;
    out_.clear();
    EXPECT_EQ(pm_cim_set_port_alias(std::string(82, 'x').c_str(), if_index, kQueue), -1);
    EXPECT_EQ(out_.out(), "pm_cim_set_port_alias NOT supported for FCIP and ISCSI\n");
    EXPECT_EQ(script.calls(), 0u);
  }
}

TEST_F(PortChanges, TheAliasOfATypeThatCannotBeAskedAboutIsRefusedSilently) {
  Script script;
  for (const uint32_t if_index : {kUnknown, kInBand, kVsanInterface})
    EXPECT_EQ(pm_cim_set_port_alias("a", if_index, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_alias(nullptr, kFc, kQueue), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, ARefusedAliasGivesTheServicesStatusInHostOrder) {
  Script script;
  script.expect(set_port(kFc, kAlias, alias_field("a"))).replies(hex("00 00 00 00 40 33 00 05"));
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), 0x40330005);
}

TEST_F(PortChanges, AnAliasThatIsNotDeliveredGivesTheTransportsResult) {
  Script script;
  script.expect(set_port(kFc, kAlias, alias_field("a"))).fails(7);
  script.expect(set_port(kFc, kAlias, alias_field("a"))).fails(-1).with_errno(62);
  script.expect(set_port(kFc, kAlias, alias_field("a")))
      .fails_with_reply(7, hex("00 00 00 00 00 00 00 09"));
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), 7);
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), 7);
}

TEST_F(PortChanges, AnAliasWithoutAReplyGivesTheTransportsResult) {
  Script script;
  script.expect(set_port(kFc, kAlias, alias_field("a"))).ok_without_reply();
  script.expect(set_port(kFc, kAlias, alias_field("a"))).replies(hex("ff ff ff ff ff ff ff"));
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, kQueue), 0);
}

TEST_F(PortChanges, TheSessionIsPassedThrough) {
  Script script;
  script.expect(set_port(kFc, kAlias, alias_field("a")).q(12)).service_status(0);
  script.expect(set_port(kFc, kSpeed, number(1000)).q(12)).service_status(0);
  script.expect(set_port(kFc, kMode, number(32)).q(12)).service_status(0);
  script.expect(set_port(kFc, kState, hex("01")).q(12)).service_status(0);
  EXPECT_EQ(pm_cim_set_port_alias("a", kFc, 12), 0);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, 12), 0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, 12), 0);
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, 12), 0);
}

// ---- Speed ------------------------------------------------------------------------------------

TEST_F(PortChanges, ASpeedIsSentAsThePortManagersNumber) {
  Script script;
  script.expect(set_port(kFc, kSpeed, number(1000))).service_status(0);
  script.expect(set_port(kFc, kSpeed, number(2000))).service_status(0);
  script.expect(set_port(kFc, kSpeed, number(0))).service_status(0);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_speed(2125000000, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_speed(4250000000, kFc, kQueue), 0);
  EXPECT_EQ(out_.out(), "port speed is 1000 \nport speed is 2000 \nport speed is 0 \n");
}

TEST_F(PortChanges, TheSpeedOfEveryKnownInterfaceButIscsiIsSent) {
  for (const uint32_t if_index : {kEthernet, kChannel, kManagement, kInBand, kFcip}) {
    Script script;
    script.expect(set_port(if_index, kSpeed, number(1000))).service_status(0);
    EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, if_index, kQueue), 0);
  }
}

TEST_F(PortChanges, SpeedAndModeOfAnIscsiInterfaceCannotBeSet) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kIscsi, kQueue), -1);
  EXPECT_EQ(out_.out(), "ISCSI Interface not supported \n");
  out_.clear();
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kIscsi, kQueue), -1);
  EXPECT_EQ(out_.out(), "ISCSI Interface not supported \n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, SpeedAndModeOfAnUnknownTypeAreRefusedSilently) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kUnknown, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kUnknown, kQueue), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, ARefusedSpeedGivesTheServicesStatusWhateverTheTransportSays) {
  Script script;
  script.expect(set_port(kFc, kSpeed, number(1000))).replies(hex("00 00 00 00 40 33 00 05"));
  script.expect(set_port(kFc, kSpeed, number(1000)))
      .fails_with_reply(7, hex("00 00 00 00 00 00 00 09"));
  script.expect(set_port(kFc, kSpeed, number(1000))).fails_with_reply(7, zeros(8));
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), 0x40330005);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), 9);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), 0);
}

TEST_F(PortChanges, ASpeedWithoutAReplyIsAFailure) {
  Script script;
  script.expect(set_port(kFc, kSpeed, number(1000))).ok_without_reply();
  script.expect(set_port(kFc, kSpeed, number(1000))).replies(zeros(7));
  script.expect(set_port(kFc, kSpeed, number(1000))).fails(7);
  script.expect(set_port(kFc, kSpeed, number(1000))).fails(-1).with_errno(62);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), 7);
  EXPECT_EQ(pm_cim_set_port_admin_speed(1062500000, kFc, kQueue), -1);
}

// ---- Mode -------------------------------------------------------------------------------------

TEST_F(PortChanges, AModeIsSentAsThePortManagersNumber) {
  Script script;
  script.expect(set_port(kFc, kMode, number(4))).service_status(0);
  script.expect(set_port(kFc, kMode, number(32))).service_status(0);
  script.expect(set_port(kFc, kMode, number(96))).service_status(0);
  script.expect(set_port(kFc, kMode, number(64))).service_status(0);
  script.expect(set_port(kFc, kMode, number(1))).service_status(0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(4, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(6, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(17064, kFc, kQueue), 0);
  EXPECT_EQ(pm_cim_set_port_admin_mode(17128, kFc, kQueue), 0);
  EXPECT_EQ(out_.out(),
            "port mode is 4 \nport mode is 32 \nport mode is 96 \nport mode is 64 \n"
            "port mode is 1 \n");
}

TEST_F(PortChanges, ARefusedModeGivesTheServicesStatusWhateverTheTransportSays) {
  Script script;
  script.expect(set_port(kFc, kMode, number(32))).replies(hex("00 00 00 00 40 33 00 05"));
  script.expect(set_port(kFc, kMode, number(32)))
      .fails_with_reply(7, hex("00 00 00 00 00 00 00 09"));
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), 0x40330005);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), 9);
}

TEST_F(PortChanges, AModeWithoutAReplyIsAFailure) {
  Script script;
  script.expect(set_port(kFc, kMode, number(32))).ok_without_reply();
  script.expect(set_port(kFc, kMode, number(32))).replies(zeros(7));
  script.expect(set_port(kFc, kMode, number(32))).fails(7);
  script.expect(set_port(kFc, kMode, number(32))).fails(-1).with_errno(62);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), 7);
  EXPECT_EQ(pm_cim_set_port_admin_mode(5, kFc, kQueue), -1);
}

// ---- State ------------------------------------------------------------------------------------

TEST_F(PortChanges, StateTwoIsSentAsUp) {
  for (const uint32_t if_index : {kFc, kEthernet, kManagement, kFcip, kIscsi}) {
    Script script;
    out_.clear();
    script.expect(set_port(if_index, kState, hex("01"))).service_status(0);
    EXPECT_EQ(pm_cim_set_port_admin_status(2, if_index, kQueue), 0);
    EXPECT_EQ(out_.out(), "port state is 1, input state is 2 \nret_code =0 platform error ");
  }
}

TEST_F(PortChanges, EveryOtherStateIsSentAsDown) {
  for (const uint32_t state : {0u, 1u, 3u, 4u, 65535u}) {
    Script script;
    out_.clear();
    script.expect(set_port(kFc, kState, hex("02"))).service_status(0);
    EXPECT_EQ(pm_cim_set_port_admin_status(state, kFc, kQueue), 0);
    EXPECT_EQ(out_.out(), "port state is 2, input state is " + std::to_string(state) +
                              " \nret_code =0 platform error ");
  }
}

TEST_F(PortChanges, TheStateOfAnUnknownTypeIsRefused) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kUnknown, kQueue), -1);
  EXPECT_EQ(out_.out(), "pm_cim_set_port_admin_status(): index type not found\n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, TheStateOfTheInBandPortIsRefused) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kInBand, kQueue), -1);
  EXPECT_EQ(out_.out(), "pm_cim_set_port_admin_status(): index type INBAND PORT not supported\n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, TheStateOfATypeThatCannotBeAskedAboutIsRefused) {
  Script script;
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kVsanInterface, kQueue), -1);
  EXPECT_EQ(out_.out(), "pm_cim_set_port_admin_status(): IF table dest info failed\n");
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(PortChanges, TheStateOfPortChannelsIsRefusedWithATrace) {
  for (const uint32_t if_index : {kChannel, kEtherChannel}) {
    Script script;
    out_.clear();
    EXPECT_EQ(pm_cim_set_port_admin_status(2, if_index, kQueue), -1);
    EXPECT_NE(out_.out(), "");
    EXPECT_EQ(script.calls(), 0u);
  }
}

TEST_F(PortChanges, AStateGivesTheTransportsResultAndItsText) {
  Script script;
  script.text_for("syserr2str", 7, "no such port");
  script.expect(set_port(kFc, kState, hex("01"))).fails(7);
  script.expect(set_port(kFc, kState, hex("01"))).fails(-1).with_errno(62);
  script.expect(set_port(kFc, kState, hex("01")))
      .fails_with_reply(7, hex("00 00 00 00 00 00 00 09"));
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, kQueue), 7);
  const std::string expected = "port state is 1, input state is 2 \nret_code =7 no such port ";
  EXPECT_TRUE(out_.out().starts_with(expected)) << out_.out();
  EXPECT_GT(out_.out().size(), expected.size());  // the trace of the failure
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, kQueue), -1);
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, kQueue), 7);
}

// What was printed until the request returned is out of the buffer before its result is told.
TEST_F(PortChanges, AStateIsTracedOnceBeforeItsResult) {
  WrittenPieces pieces;
  Script script;
  script.expect(set_port(kFc, kState, hex("02"))).service_status(0);
  EXPECT_EQ(pm_cim_set_port_admin_status(3, kFc, kQueue), 0);
  EXPECT_EQ(pieces.taken(), (std::vector<std::string>{"port state is 2, input state is 3 \n",
                                                      "ret_code =0 platform error "}));
}

TEST_F(PortChanges, AStateThatTheServiceRefusesIsASuccess) {
  Script script;
  script.expect(set_port(kFc, kState, hex("01"))).service_status(9);
  EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, kQueue), 0);
  EXPECT_EQ(out_.out(), "port state is 1, input state is 2 \nret_code =0 platform error ");
}

TEST_F(PortChanges, AStateWithoutExactlyOneReplyIsASuccessWithATrace) {
  const std::string expected = "port state is 1, input state is 2 \nret_code =0 platform error ";
  Script script;
  script.expect(set_port(kFc, kState, hex("01"))).ok_without_reply();
  script.expect(set_port(kFc, kState, hex("01"))).replies(zeros(7));  // one byte short
  script.expect(set_port(kFc, kState, hex("01"))).service_status(0).count(0);
  script.expect(set_port(kFc, kState, hex("01"))).service_status(0).count(2);
  for (int round = 0; round < 4; ++round) {
    out_.clear();
    EXPECT_EQ(pm_cim_set_port_admin_status(2, kFc, kQueue), 0);
    EXPECT_TRUE(out_.out().starts_with(expected)) << out_.out();
    EXPECT_GT(out_.out().size(), expected.size());
  }
}

}  // namespace
