// Switches of other makers in the fabric: they show the same WWN in every VSAN, number their ports
// through, and know neither the address list nor the fabric distribution service.
#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>

#include "simulator/fabric/fabric_file.h"
#include "simulator/transport/port_messages.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fabric;

class OtherMakers : public SimulatorTest {
 protected:
  void SetUp() override {
    SimulatorTest::SetUp();
    ASSERT_EQ(std::nullopt,
              control::install_file(CIM_SOURCE_DIR "/tests/simulator/data/other_makers.json"));
  }

  mts_msg_t* receive(uint32_t token) {
    const cim_mts_recv_opts opts = {1, 0, 20, token, 0, 0};
    mts_msg_t* reply = nullptr;
    mts_recv(q, &reply, &opts);
    return reply;
  }

  // What is wrong with the fabric after a change.
  static std::string problem_after(void (*edit)(Fabric&)) {
    Fabric fabric = control::fabric();
    edit(fabric);
    switch_sim::sort(fabric);
    return switch_sim::problem_of(fabric).value_or("no problem");
  }
};

TEST_F(OtherMakers, ShowTheSameWwnInEveryVsan) {
  expect_reply(call(20, 1401, 1, Pattern(8).at(0, "00000001").bytes()),
               Pattern(52)
                   .at(0, "00000004")
                   .at(4, "1000001122abcdef00000100")
                   .at(16, "100000606912345600000100")
                   .at(28, "2001000dec0a1b2d00000100")
                   .at(40, "2001000dec0a1b5f00000100"));
  expect_reply(call(20, 1401, 1, Pattern(8).at(0, "00000002").bytes()),
               Pattern(28)
                   .at(0, "00000002")
                   .at(4, "100000606912345600000100")
                   .at(16, "2002000dec0a1b2d00000100"));
}

TEST_F(OtherMakers, AreElementsWithADomainInEachVsan) {
  const auto element = [&](const char* vsan) {
    return call(20, 1402, 1,
                Pattern(16).at(0, "00000014").at(4, vsan).at(8, "1000006069123456").bytes());
  };
  expect_reply(element("00000001"),
               Pattern(32).at(0, "000000011000006069123456").at(12, "000000010000000500fffc05"));
  expect_reply(element("00000002"),
               Pattern(32).at(0, "000000021000006069123456").at(12, "000000010000000700fffc07"));
}

TEST_F(OtherMakers, StandInTheDomainDatabaseWithTheirWwn) {
  expect_reply(call(14, 267, 1, Pattern(19).at(0, "000000010105").bytes()),
               Pattern(19).at(0, "0000000101051000006069123456"));
}

// fc1/3 is port 3, fc2/4 port 64 + 4.
TEST_F(OtherMakers, NumberTheirPortsThroughInLinks) {
  const auto record = [&](const char* domain) {
    return call(29, 53, 1, Pattern(36).at(0, "00000001").at(4, domain).at(8, "00000001").bytes());
  };
  expect_reply(record("00000061"), Pattern(108)
                                       .at(0, "000000010000006100000001")
                                       .at(28, "00000002")
                                       .at(36, "00000001000000610000000100000000")
                                       .at(52, "000000050008080200000003000001f4")
                                       .at(72, "00000001000000610000000100000000")
                                       .at(88, "000000620008080300080803000001f4"));
  expect_reply(record("00000005"), Pattern(108)
                                       .at(0, "000000010000000500000001")
                                       .at(28, "00000002")
                                       .at(36, "00000001000000050000000100000000")
                                       .at(52, "000000610000000300080802000001f4")
                                       .at(72, "00000001000000050000000100000000")
                                       .at(88, "000000060000004400000001000001f4"));
}

TEST_F(OtherMakers, HavePortWwnsWithTheNumberOfThePort) {
  const switch_sim::Wwn known = {{0x10, 0, 0, 0x60, 0x69, 0x12, 0x34, 0x56}};
  EXPECT_EQ("20:03:00:60:69:12:34:56", to_text(port_wwn(known, 0x01010003)));
  EXPECT_EQ("20:41:00:60:69:12:34:56", to_text(port_wwn(known, 0x01020001)));
  EXPECT_EQ("20:ff:00:60:69:12:34:56", to_text(port_wwn(known, 0x0104003F)));
  const Result array =
      call(257, switch_sim::kDeviceWithPortName, 1,
           Pattern(16).at(0, "000000010a470000").at(8, "2100001122334402").bytes());
  ASSERT_EQ(0, array.status);
  EXPECT_EQ(Pattern(8).at(0, "2041006069123456").bytes(),
            std::vector<uint8_t>(array.reply.begin() + 8 + 236, array.reply.begin() + 8 + 244));
}

TEST_F(OtherMakers, AreNotInTheListOfAddresses) {
  mts_msg_t* request = nullptr;
  ASSERT_EQ(0, fcs_send_get_inet_addr(q, 1, &request));
  mts_msg_t* reply = receive(mts_rr_token_get(request));
  int32_t status = 0, count = 0;
  void* list = nullptr;
  ASSERT_EQ(0, fcs_parse_get_inet_addr(reply, &status, &count, &list));
  ASSERT_EQ(2, count);
  EXPECT_STREQ("switch-1", static_cast<const char*>(list) + 364);
  EXPECT_STREQ("switch-2", static_cast<const char*>(list) + 396 + 364);
  free(list);
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(OtherMakers, AreNoPeers) {
  uint32_t body[7] = {0, 0, 0, 0, 0, 0, 126};
  mts_msg_t* request = nullptr;
  ASSERT_EQ(0, kfs_discover_peers(q, body, 2, &request));
  mts_msg_t* reply = receive(0);
  ASSERT_NE(nullptr, reply);
  ASSERT_EQ(68, mts_payload_size(reply));
  const auto* payload = static_cast<const uint8_t*>(mts_payload_get(reply));
  EXPECT_EQ(Pattern(20).at(0, "0000000000000001000000012000000dec0a1b5e").bytes(),
            std::vector<uint8_t>(payload, payload + 20));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(OtherMakers, TheFileOfSuchAFabricIsReadAndWrittenBack) {
  const Fabric fabric = control::fabric();
  EXPECT_EQ(fabric, std::get<Fabric>(
                        switch_sim::parse_fabric(switch_sim::write_fabric(fabric), "written")));
}

TEST_F(OtherMakers, WhatTheyCannotHaveIsTold) {
  EXPECT_EQ("no problem", problem_after([](Fabric&) {}));
  EXPECT_EQ("the local switch is another maker's",
            problem_after([](Fabric& f) { f.local_switch = f.switches[1].wwn; }));
  EXPECT_EQ(
      "switch 10:00:00:60:69:12:34:56, slot 5: another maker's switch has Fibre Channel modules in "
      "slots 1 to 4",
      problem_after([](Fabric& f) {
        f.switches[1].modules.push_back(
            {5, switch_sim::ModuleKind::fibre_channel, switch_sim::ModuleState::ok, 4});
      }));
  EXPECT_EQ(
      "switch 10:00:00:60:69:12:34:56, slot 3: another maker's switch has Fibre Channel modules in "
      "slots 1 to 4",
      problem_after([](Fabric& f) {
        f.switches[1].modules.push_back({3, switch_sim::ModuleKind::supervisor});
      }));
  EXPECT_EQ(
      "switch 10:00:00:60:69:12:34:56, port-channel 1: another maker's switch has FC ports only",
      problem_after(
          [](Fabric& f) { f.switches[1].interfaces.emplace_back().if_index = 0x04000001; }));
  EXPECT_EQ("link of known-maker fc1/3 and switch-1 fc1/2: another maker's switch does not trunk",
            problem_after([](Fabric& f) { f.links[1].trunking = true; }));
}

}  // namespace
}  // namespace simulator_test
