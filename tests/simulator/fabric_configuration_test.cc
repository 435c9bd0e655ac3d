#include <switch_platform/fabric_configuration.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class FabricConfiguration : public SimulatorTest {
 protected:
  Result element(uint32_t operation, const char* vsan_and_wwn) {
    return call(20, 1402, operation, Pattern(16).at(0, "00000014").at(4, vsan_and_wwn).bytes());
  }

  mts_msg_t* receive(mts_msg_t* request) {
    const cim_mts_recv_opts opts = {1, 0, 5, mts_rr_token_get(request), 0, 0};
    mts_msg_t* reply = nullptr;
    mts_recv(q, &reply, &opts);
    return reply;
  }

  static void suspend_first_vsan() {
    auto fabric = control::fabric();
    fabric.vsans[0].state = switch_sim::VsanState::suspended;
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }
};

TEST_F(FabricConfiguration, TheElementsOfAVsanAreTwelveBytesEach) {
  expect_reply(call(20, 1401, 1, Pattern(8).at(0, "00000002").bytes()),
               Pattern(40)
                   .at(0, "00000003")
                   .at(4, "2002000dec0a1b2d00000100")
                   .at(16, "2002000dec0a1b5f00000100")
                   .at(28, "2002000dec0a1b9100000100"));
}

TEST_F(FabricConfiguration, TheElementsOfAnUnknownOrSuspendedVsanAreRefused) {
  expect_refused(call(20, 1401, 1, Pattern(8).at(0, "00000003").bytes()), kNotFound);
  suspend_first_vsan();
  expect_refused(call(20, 1401, 1, Pattern(8).at(0, "00000001").bytes()), kNotRunning);
}

TEST_F(FabricConfiguration, AnotherLengthOrOperationIsRefused) {
  expect_refused(call(20, 1401, 1, Pattern(4).at(0, "00000001").bytes()), kBadLength);
  expect_refused(call(20, 1401, 2, Pattern(8).at(0, "00000001").bytes()), kBadOperation);
  expect_refused(call(20, 1402, 1, Pattern(3).bytes()), kBadLength);
  expect_refused(call(20, 1402, 1, Pattern(15).at(0, "00000014").bytes()), kBadLength);
  expect_refused(call(20, 1402, 1, Pattern(16).at(0, "00000015").bytes()), kBadValue);
  expect_refused(element(3, "000000012001000dec0a1b2d"), kBadOperation);
}

TEST_F(FabricConfiguration, AnElementIsFoundByVsanAndWwn) {
  expect_reply(element(1, "000000012001000dec0a1b5f"),
               Pattern(32)
                   .at(0, "00000001")
                   .at(4, "2001000dec0a1b5f")
                   .at(12, "00000001")    // a switch
                   .at(16, "00000062")    // domain ID 98
                   .at(20, "00fffc62"));  // its domain controller
}

TEST_F(FabricConfiguration, AnUnknownElementIsNotFound) {
  expect_refused(element(1, "000000012002000dec0a1b5f"), kNotFound);
  expect_refused(element(1, "000000092001000dec0a1b5f"), kNotFound);
  suspend_first_vsan();
  expect_refused(element(1, "000000012001000dec0a1b5f"), kNotRunning);
}

TEST_F(FabricConfiguration, TheWalkOverElementsGoesOnInTheNextVsan) {
  const auto from = [&](const char* vsan_and_wwn) {
    const auto result = element(2, vsan_and_wwn);
    return std::vector<uint8_t>(result.reply.begin(),
                                result.reply.begin() + std::min<long>(12, result.length));
  };
  EXPECT_EQ(Pattern(12).at(0, "000000012001000dec0a1b2d").bytes(),
            from("000000010000000000000000"));
  EXPECT_EQ(Pattern(12).at(0, "000000012001000dec0a1b5f").bytes(),
            from("000000012001000dec0a1b2d"));
  EXPECT_EQ(Pattern(12).at(0, "000000022002000dec0a1b2d").bytes(),
            from("000000012001000dec0a1b91"));
  expect_refused(element(2, "000000022002000dec0a1b91"), kEndOfTable);
}

TEST_F(FabricConfiguration, AWwnWhoseLastByteWrapsKeepsItsPlaceInTheWalk) {
  auto fabric = control::fabric();
  fabric.links.clear();
  fabric.devices.clear();
  fabric.switches.resize(2);
  for (auto& vsan : fabric.vsans) {
    vsan.domains.resize(2);
    vsan.principal_switch = {};
    vsan.domains[1].switch_wwn.bytes[7] = 0xFF;
  }
  fabric.switches[1].wwn.bytes[7] = 0xFF;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  // ...1b00 now stands before ...1b2d.
  expect_reply(call(20, 1401, 1, Pattern(8).at(0, "00000001").bytes()),
               Pattern(28)
                   .at(0, "00000002")
                   .at(4, "2001000dec0a1b0000000100")
                   .at(16, "2001000dec0a1b2d00000100"));
  EXPECT_EQ(0x2d, element(2, "000000012001000dec0a1b00").reply.at(11));
}

TEST_F(FabricConfiguration, ASwitchWithoutARunningDomainManagerIsNoElement) {
  auto fabric = control::fabric();
  fabric.vsans[0].domains[1].enabled = false;
  fabric.vsans[0].domains[1].domain_id = 0;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_refused(element(1, "000000012001000dec0a1b5f"), kNotFound);
  expect_reply(call(20, 1401, 1, Pattern(8).at(0, "00000001").bytes()),
               Pattern(28)
                   .at(0, "00000002")
                   .at(4, "2001000dec0a1b2d00000100")
                   .at(16, "2001000dec0a1b9100000100"));
}

TEST_F(FabricConfiguration, TheAddressListTellsDomainIdsAndNames) {
  mts_msg_t* request = nullptr;
  ASSERT_EQ(0, fcs_send_get_inet_addr(q, 1, &request));
  mts_msg_t* reply = receive(request);
  ASSERT_NE(nullptr, reply);
  int32_t status = 0, count = 0;
  void* list = nullptr;
  ASSERT_EQ(0, fcs_parse_get_inet_addr(reply, &status, &count, &list));
  EXPECT_EQ(1, status);
  ASSERT_EQ(3, count);
  const auto* bytes = static_cast<const uint8_t*>(list);
  const auto expected = Pattern(3 * 396)
                            .at(0, "2001000dec0a1b2d00000001c000020b")
                            .at(360, "61")
                            .text(364, "switch-1")
                            .at(396, "2001000dec0a1b5f00000001c000020c")
                            .at(756, "62")
                            .text(760, "switch-2")
                            .at(792, "2001000dec0a1b9100000001c000020d")
                            .at(1152, "63")
                            .text(1156, "switch-3");
  EXPECT_EQ(expected.bytes(), std::vector<uint8_t>(bytes, bytes + 3 * 396));
  free(list);
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricConfiguration, ALongNameIsCutTo31Characters) {
  auto fabric = control::fabric();
  fabric.switches[0].name = "abcdefghijklmnopqrstuvwxyz0123456789";
  ASSERT_EQ(std::nullopt, control::install(fabric));
  mts_msg_t* request = nullptr;
  ASSERT_EQ(0, fcs_send_get_inet_addr(q, 2, &request));
  mts_msg_t* reply = receive(request);
  int32_t status = 0, count = 0;
  void* list = nullptr;
  ASSERT_EQ(0, fcs_parse_get_inet_addr(reply, &status, &count, &list));
  EXPECT_STREQ("abcdefghijklmnopqrstuvwxyz01234", static_cast<const char*>(list) + 364);
  free(list);
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricConfiguration, TheAddressListOfAnUnknownVsanFailsInTheParse) {
  mts_msg_t* request = nullptr;
  ASSERT_EQ(0, fcs_send_get_inet_addr(q, 9, &request));
  mts_msg_t* reply = receive(request);
  ASSERT_NE(nullptr, reply);
  int32_t status = 77, count = 77;
  void* list = &status;
  EXPECT_EQ(kNotFound, fcs_parse_get_inet_addr(reply, &status, &count, &list));
  EXPECT_EQ(0, status);
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, list);
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricConfiguration, AShortAddressListFailsInTheParse) {
  for (int32_t length : {0, 7, 8, 1195}) {
    control::set_faults({{.opcode = switch_sim::kSwitchAddresses,
                          .kind = switch_sim::Fault::Kind::short_reply,
                          .value = length}});
    mts_msg_t* request = nullptr;
    ASSERT_EQ(0, fcs_send_get_inet_addr(q, 1, &request));
    mts_msg_t* reply = receive(request);
    int32_t status = 0, count = 0;
    void* list = nullptr;
    EXPECT_EQ(kBadLength, fcs_parse_get_inet_addr(reply, &status, &count, &list)) << length;
    EXPECT_EQ(nullptr, list);
    mts_drop(q, request);
    mts_drop(q, reply);
  }
}

TEST_F(FabricConfiguration, NoReplyFailsInTheParse) {
  int32_t status = 0, count = 0;
  void* list = nullptr;
  EXPECT_EQ(-1, fcs_parse_get_inet_addr(nullptr, &status, &count, &list));
  EXPECT_NE(0, fcs_parse_get_inet_addr(nullptr, nullptr, &count, &list));
}

TEST_F(FabricConfiguration, AnUnboundQueueCannotSend) {
  mts_msg_t* request = nullptr;
  EXPECT_EQ(-1, fcs_send_get_inet_addr(12345, 1, &request));
  EXPECT_EQ(nullptr, request);
  EXPECT_EQ(EBADF, errno);
  EXPECT_NE(0, fcs_send_get_inet_addr(q, 1, nullptr));
}

}  // namespace
}  // namespace simulator_test
