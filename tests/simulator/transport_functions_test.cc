#include <switch_platform/fabric_configuration.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;
using switch_sim::Fault;

class TransportFunctions : public SimulatorTest {
 protected:
  mts_msg_t* send() {
    mts_msg_t* request = nullptr;
    EXPECT_EQ(0, fcs_send_get_inet_addr(q, 1, &request));
    return request;
  }
  int32_t receive(uint32_t token, uint32_t seconds, mts_msg_t** reply) {
    const cim_mts_recv_opts opts = {1, 0, seconds, token, 0, 0};
    return mts_recv(q, reply, &opts);
  }
};

TEST_F(TransportFunctions, EachBoundQueueHasItsOwnHandle) {
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  const int64_t before = control::outstanding().queues;
  const int32_t other = mts_bind(1, -1, &opts, "other");
  EXPECT_GE(other, 0);
  EXPECT_NE(q, other);
  EXPECT_EQ(before + 1, control::outstanding().queues);
  EXPECT_EQ(0, mts_unbind(other, 0));
  EXPECT_EQ(before, control::outstanding().queues);
  EXPECT_NE(0, mts_unbind(other, 0));
  EXPECT_EQ(EBADF, errno);
}

TEST_F(TransportFunctions, ABindWithoutOptionsOrNameIsRefused) {
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  EXPECT_EQ(-1, mts_bind(1, -1, nullptr, "name"));
  EXPECT_EQ(EINVAL, errno);
  EXPECT_EQ(-1, mts_bind(1, -1, &opts, nullptr));
  EXPECT_EQ(-1, mts_bind(1, -1, &opts, ""));
}

TEST_F(TransportFunctions, TheTrueLengthIsStoredAlsoWhenItWasPreset) {
  void* reply = nullptr;
  int32_t length = 0;
  ASSERT_EQ(0, cmi_req_resp(1282, 1, nullptr, &reply, &length, 0, 0, 46, q, 4));
  EXPECT_EQ(8, length);
  free(reply);
}

TEST_F(TransportFunctions, AReplyWithoutBytesIsNull) {
  control::set_faults({{.kind = Fault::Kind::short_reply, .value = 0}});
  void* reply = &reply;
  int32_t length = 4;
  EXPECT_EQ(0, cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, q, 4));
  EXPECT_EQ(nullptr, reply);
  EXPECT_EQ(0, length);
}

TEST_F(TransportFunctions, ASetMayLeaveOutTheReplyAddress) {
  const auto request = Pattern(260).text(0, "edge-7").bytes();
  int32_t length = 260;
  EXPECT_EQ(0, cmi_req_resp(878, 3, request.data(), nullptr, &length, 0, 0, 35, q, 4));
  EXPECT_EQ("edge-7", control::fabric().switches[0].name);
}

TEST_F(TransportFunctions, AGetMayLeaveOutTheReplyAddress) {
  int32_t length = 0;
  EXPECT_EQ(0, cmi_req_resp(1282, 1, nullptr, nullptr, &length, 0, 0, 46, q, 4));
  EXPECT_EQ(0U, control::outstanding().replies_handed_out);
}

TEST_F(TransportFunctions, AMissingOrNegativeLengthIsRefused) {
  void* reply = &reply;
  EXPECT_EQ(-1, cmi_req_resp(1282, 1, nullptr, &reply, nullptr, 0, 0, 46, q, 4));
  EXPECT_EQ(EINVAL, errno);
  EXPECT_EQ(nullptr, reply);
  int32_t length = -1;
  EXPECT_EQ(-1, cmi_req_resp(1282, 1, nullptr, &reply, &length, 0, 0, 46, q, 4));
}

TEST_F(TransportFunctions, AnUnboundQueueCarriesNothing) {
  void* reply = nullptr;
  int32_t length = 0;
  EXPECT_EQ(-1, cmi_req_resp(1282, 1, nullptr, &reply, &length, 0, 0, 46, 12345, 4));
  EXPECT_EQ(EBADF, errno);
  EXPECT_EQ(EBADF, mts_errno_get(12345));
  EXPECT_EQ(0U, control::exchange_count());
  mts_msg_t* message = nullptr;
  const cim_mts_recv_opts opts = {1, 0, 5, 0, 0, 0};
  EXPECT_EQ(-1, mts_recv(12345, &message, &opts));
  EXPECT_EQ(EBADF, errno);
}

TEST_F(TransportFunctions, AnUnknownOpcodeAndAnUnknownServiceAreToldApart) {
  expect_refused(call(15, 999, 1, {}), kUnknownOpcode);
  expect_refused(call(99, 149, 1, {}), kServiceNotAvailable);
}

TEST_F(TransportFunctions, ServicesWithoutAModelAreNotAvailable) {
  expect_refused(call(1, 1026, 1, Pattern(4).bytes()), kServiceNotAvailable);
  expect_refused(call(99, 1029, 1, Pattern(4).bytes()), kServiceNotAvailable);
}

TEST_F(TransportFunctions, RepliesAreCountedAsHandedOut) {
  call(46, 1282, 1, {});
  call(15, 125, 1, {});
  const auto counts = control::outstanding();
  EXPECT_EQ(2U, counts.replies_handed_out);
  EXPECT_EQ(12U, counts.reply_bytes_handed_out);
}

TEST_F(TransportFunctions, AReplyIsReceivedByItsToken) {
  mts_msg_t* first = send();
  mts_msg_t* second = send();
  EXPECT_NE(mts_rr_token_get(first), mts_rr_token_get(second));
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, receive(mts_rr_token_get(second), 5, &reply));
  EXPECT_EQ(mts_rr_token_get(second), mts_rr_token_get(reply));
  mts_drop(q, reply);
  ASSERT_EQ(0, receive(mts_rr_token_get(first), 5, &reply));
  EXPECT_EQ(mts_rr_token_get(first), mts_rr_token_get(reply));
  mts_drop(q, reply);
  mts_drop(q, first);
  mts_drop(q, second);
}

TEST_F(TransportFunctions, AReplyIsReceivedOnce) {
  mts_msg_t* request = send();
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, receive(mts_rr_token_get(request), 5, &reply));
  mts_drop(q, reply);
  EXPECT_EQ(-1, receive(mts_rr_token_get(request), 5, &reply));
  EXPECT_EQ(nullptr, reply);
  EXPECT_EQ(ETIME, errno);
  EXPECT_EQ(switch_sim::VirtualTime(5000), control::now());
  mts_drop(q, request);
}

TEST_F(TransportFunctions, AnotherQueueDoesNotReceiveTheReply) {
  const cim_mts_bind_opts bind_opts = {1, 0, 1024, 0, 0};
  const int32_t other = mts_bind(1, -1, &bind_opts, "other");
  mts_msg_t* request = send();
  const cim_mts_recv_opts opts = {1, 0, 0, 0, 0, 0};
  mts_msg_t* reply = nullptr;
  EXPECT_EQ(-1, mts_recv(other, &reply, &opts));
  EXPECT_EQ(0, receive(0, 0, &reply));
  mts_drop(q, reply);
  mts_drop(q, request);
  mts_unbind(other, 0);
}

TEST_F(TransportFunctions, MessagesAreCountedUntilTheyAreDropped) {
  mts_msg_t* request = send();
  mts_msg_t* reply = nullptr;
  ASSERT_EQ(0, receive(0, 5, &reply));
  EXPECT_EQ(2, control::outstanding().messages);
  EXPECT_EQ(0, mts_drop(q, request));
  EXPECT_EQ(1, control::outstanding().messages);
  EXPECT_EQ(0, mts_drop(q, reply));
  EXPECT_EQ(0, control::outstanding().messages);
}

TEST_F(TransportFunctions, AMessageIsDroppedAfterItsQueueToo) {
  mts_msg_t* request = send();
  mts_unbind(q, 0);
  EXPECT_EQ(0, mts_drop(q, request));
}

TEST_F(TransportFunctions, WhatIsNoMessageHasNeitherTokenNorPayload) {
  EXPECT_EQ(0U, mts_rr_token_get(nullptr));
  EXPECT_EQ(nullptr, mts_payload_get(nullptr));
  EXPECT_EQ(0, mts_payload_size(nullptr));
  EXPECT_NE(0, mts_drop(q, nullptr));
  mts_msg_t* request = send();
  mts_drop(q, request);
  EXPECT_NE(0, mts_drop(q, request));
  EXPECT_EQ(nullptr, mts_payload_get(request));
}

TEST_F(TransportFunctions, ReceivingNeedsAnAddressAndOptions) {
  mts_msg_t* reply = nullptr;
  const cim_mts_recv_opts opts = {1, 0, 5, 0, 0, 0};
  EXPECT_EQ(-1, mts_recv(q, nullptr, &opts));
  EXPECT_EQ(EINVAL, errno);
  EXPECT_EQ(-1, mts_recv(q, &reply, nullptr));
}

TEST_F(TransportFunctions, ASuccessfulCallClearsTheLastError) {
  control::set_faults({{.nth = 1, .kind = Fault::Kind::error, .value = ENOBUFS}});
  EXPECT_EQ(-1, call(46, 1282, 1, {}).status);
  EXPECT_EQ(ENOBUFS, mts_errno_get(q));
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
  EXPECT_EQ(0, mts_errno_get(q));
}

}  // namespace
}  // namespace simulator_test
