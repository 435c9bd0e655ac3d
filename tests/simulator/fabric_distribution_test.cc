#include <switch_platform/fabric_distribution.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class FabricDistribution : public SimulatorTest {
 protected:
  mts_msg_t* discover(uint32_t application = 126) {
    uint32_t request[7] = {0, 0, 0, 0, 0, 0, application};
    mts_msg_t* message = nullptr;
    EXPECT_EQ(0, kfs_discover_peers(q, request, 2, &message));
    return message;
  }

  mts_msg_t* receive() {
    const cim_mts_recv_opts opts = {1, 0, 20, 0, 0, 0};
    mts_msg_t* reply = nullptr;
    receive_result = mts_recv(q, &reply, &opts);
    return reply;
  }

  std::vector<uint8_t> payload_of(mts_msg_t* message) {
    const auto* payload = static_cast<const uint8_t*>(mts_payload_get(message));
    return {payload, payload + mts_payload_size(message)};
  }

  int32_t receive_result = 77;
};

TEST_F(FabricDistribution, TheOtherSwitchesAreThePeers) {
  mts_msg_t* request = discover();
  mts_msg_t* reply = receive();
  ASSERT_NE(nullptr, reply);
  EXPECT_EQ(Pattern(128)
                .at(0, "0000000000000002")
                .at(8, "000000012000000dec0a1b5e")
                .at(48, "00000001c000020c")
                .at(68, "000000012000000dec0a1b90")
                .at(108, "00000001c000020d")
                .bytes(),
            payload_of(reply));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricDistribution, AnIpv6PeerIsToldWithItsFamily) {
  auto fabric = control::fabric();
  fabric.switches[1].address = {switch_sim::IpAddress::Family::ipv6,
                                {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x2a}};
  ASSERT_EQ(std::nullopt, control::install(fabric));
  mts_msg_t* request = discover();
  mts_msg_t* reply = receive();
  const auto payload = payload_of(reply);
  EXPECT_EQ(Pattern(20).at(0, "0000000220010db800000000000000000000002a").bytes(),
            std::vector<uint8_t>(payload.begin() + 48, payload.begin() + 68));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricDistribution, ASwitchThatSharesNoRunningVsanIsNoPeer) {
  auto fabric = control::fabric();
  fabric.vsans[0].state = switch_sim::VsanState::suspended;
  fabric.vsans[1].domains[2].enabled = false;
  fabric.vsans[1].domains[2].domain_id = 0;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  mts_msg_t* request = discover();
  mts_msg_t* reply = receive();
  EXPECT_EQ(Pattern(68)
                .at(0, "0000000000000001")
                .at(8, "000000012000000dec0a1b5e")
                .at(48, "00000001c000020c")
                .bytes(),
            payload_of(reply));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricDistribution, AnUnknownApplicationIsAResultCode) {
  mts_msg_t* request = discover(127);
  mts_msg_t* reply = receive();
  EXPECT_EQ(Pattern(8).at(0, "00000002").bytes(), payload_of(reply));
  int32_t count = 0;
  void* iter = nullptr;
  EXPECT_EQ(
      2, kfs_iter_parse_response(mts_payload_get(reply), mts_payload_size(reply), &count, &iter));
  mts_drop(q, request);
  mts_drop(q, reply);
}

TEST_F(FabricDistribution, AReplyAfterTheTimeOutIsTheNextThatIsReceived) {
  control::set_faults({{.service = switch_sim::Service::fabric_distribution,
                        .nth = 1,
                        .kind = switch_sim::Fault::Kind::delay,
                        .value = 25000}});
  mts_msg_t* request = discover();
  const uint32_t late_token = mts_rr_token_get(request);
  EXPECT_EQ(nullptr, receive());
  EXPECT_EQ(-1, receive_result);
  EXPECT_EQ(ETIME, errno);
  EXPECT_EQ(62, mts_errno_get(q));
  EXPECT_EQ(switch_sim::VirtualTime(20000), control::now());
  mts_drop(q, request);

  mts_msg_t* reply = receive();
  ASSERT_NE(nullptr, reply);
  EXPECT_EQ(late_token, mts_rr_token_get(reply));
  EXPECT_EQ(switch_sim::VirtualTime(25000), control::now());
  mts_drop(q, reply);
}

TEST_F(FabricDistribution, BadArgumentsAndQueuesAreRefused) {
  uint32_t request[7] = {};
  mts_msg_t* message = nullptr;
  EXPECT_NE(0, kfs_discover_peers(q, nullptr, 2, &message));
  EXPECT_NE(0, kfs_discover_peers(q, request, 2, nullptr));
  EXPECT_EQ(-1, kfs_discover_peers(12345, request, 2, &message));
  EXPECT_EQ(nullptr, message);
}

}  // namespace
}  // namespace simulator_test
