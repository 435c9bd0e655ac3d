#include "tests/support/double_mts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cerrno>

#include <switch_platform/mts.h>

namespace test_support {
namespace {

constexpr cim_mts_bind_opts kBindOptions = {1, 0, 1024, 0, 0};

cim_mts_recv_opts receive_options(uint32_t timeout, uint32_t token) {
  return {1, 0, timeout, token, 0, 0};
}

mts_msg_t* receive_one(uint32_t timeout, uint32_t token) {
  cim_mts_recv_opts options = receive_options(timeout, token);
  mts_msg_t* message = nullptr;
  mts_recv(kQueue, &message, &options);
  return message;
}

TEST(MtsDouble, BindReturnsTheHandle) {
  HeapLedger ledger;
  Script script;
  script.expect(bind("CIM Response SAP")).returns(12);
  EXPECT_EQ(mts_bind(1, -1, &kBindOptions, "CIM Response SAP"), 12);
}

TEST(MtsDouble, BindFailsWithErrno) {
  Script script;
  script.expect(bind("CIM Response SAP")).fails(-1).with_errno(13);
  EXPECT_EQ(mts_bind(1, -1, &kBindOptions, "CIM Response SAP"), -1);
  EXPECT_EQ(errno, 13);
}

TEST(MtsDouble, BindChecksNameKindAddressAndOptions) {
  Script script;
  for (int i = 0; i < 4; ++i)
    script.expect(bind("CIM Response SAP")).returns(1);
  EXPECT_NONFATAL_FAILURE(mts_bind(1, -1, &kBindOptions, "other"),
                          "name: expected \"CIM Response SAP\", found \"other\"");
  EXPECT_NONFATAL_FAILURE(mts_bind(2, -1, &kBindOptions, "CIM Response SAP"),
                          "kind: expected 1, found 2");
  EXPECT_NONFATAL_FAILURE(mts_bind(1, 0, &kBindOptions, "CIM Response SAP"),
                          "address: expected -1, found 0");
  cim_mts_bind_opts options = {1, 0, 1023, 0, 0};
  EXPECT_NONFATAL_FAILURE(mts_bind(1, -1, &options, "CIM Response SAP"), "limit: expected 1024");
}

TEST(MtsDouble, UnbindChecksHandleAndFlags) {
  Script script;
  script.expect(unbind(5)).returns(0x1ff);
  script.expect(unbind(5)).returns(0);
  EXPECT_EQ(mts_unbind(5, 0), 0x1ff);
  EXPECT_NONFATAL_FAILURE(mts_unbind(5, 1), "flags: expected 0, found 1");
}

TEST(MtsDouble, ReceivedPayloadCanBeReadUntilTheDrop) {
  HeapLedger ledger;
  Script script;
  script.expect(receive().timeout(20).no_token()).receives(payload(hex("0a 0b")));
  mts_msg_t* message = receive_one(20, 0);
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(mts_payload_size(message), 2);
  EXPECT_EQ(static_cast<uint8_t*>(mts_payload_get(message))[1], 0x0b);
  mts_drop(kQueue, message);
  EXPECT_NONFATAL_FAILURE(mts_payload_get(message), "of a message that was dropped");
}

TEST(MtsDouble, AMessageNotDroppedFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        Script script;
        script.expect(receive().timeout(20).no_token()).receives(payload(hex("0a")));
        receive_one(20, 0);
      },
      "not dropped: the message of mts_recv(q 7");
}

TEST(MtsDouble, ASecondDropFailsTheTest) {
  Script script;
  script.expect(receive().timeout(20).no_token()).receives(payload(hex("0a")));
  mts_msg_t* message = receive_one(20, 0);
  mts_drop(kQueue, message);
  EXPECT_NONFATAL_FAILURE(mts_drop(kQueue, message), "mts_drop of a message that was dropped");
}

TEST(MtsDouble, DropChecksTheQueue) {
  Script script;
  script.expect(receive().timeout(20).no_token()).receives(payload(hex("0a")));
  mts_msg_t* message = receive_one(20, 0);
  EXPECT_NONFATAL_FAILURE(mts_drop(3, message), "mts_drop on queue 3 of a message of queue 7");
}

TEST(MtsDouble, DropOfNullOrOfAnUnknownMessageFailsTheTest) {
  Script script;
  EXPECT_NONFATAL_FAILURE(mts_drop(kQueue, nullptr), "mts_drop of a null message");
  int other = 0;
  EXPECT_NONFATAL_FAILURE(mts_drop(kQueue, reinterpret_cast<mts_msg_t*>(&other)),
                          "mts_drop of a message that no double handed out");
}

TEST(MtsDouble, ReceiveChecksTimeoutTokenAndWords) {
  Script script;
  for (int i = 0; i < 3; ++i)
    script.expect(receive().timeout(10).token(5).receives_nothing());
  EXPECT_NONFATAL_FAILURE(receive_one(20, 5), "timeout_seconds: expected 10 (0xa), found 20");
  EXPECT_NONFATAL_FAILURE(receive_one(10, 6), "token: expected 5, found 6");
  cim_mts_recv_opts options = {0, 0, 10, 5, 0, 0};
  mts_msg_t* message = nullptr;
  EXPECT_NONFATAL_FAILURE(mts_recv(kQueue, &message, &options), "word_0: expected 1, found 0");
}

TEST(MtsDouble, ReceiveWantsTheMessagePresetToNull) {
  Script script;
  script.expect(receive().timeout(10).token(5).receives_nothing());
  cim_mts_recv_opts options = receive_options(10, 5);
  int other = 0;
  auto* message = reinterpret_cast<mts_msg_t*>(&other);
  EXPECT_NONFATAL_FAILURE(mts_recv(kQueue, &message, &options),
                          "msg: expected \"preset to null\", found \"not preset\"");
  EXPECT_EQ(message, nullptr);
}

TEST(MtsDouble, ReceiveTimesOutWithErrno) {
  Script script;
  script.expect(receive().timeout(10).no_token().times_out());
  cim_mts_recv_opts options = receive_options(10, 0);
  mts_msg_t* message = nullptr;
  EXPECT_EQ(mts_recv(kQueue, &message, &options), -1);
  EXPECT_EQ(errno, ETIME);
  EXPECT_EQ(mts_errno_get(kQueue), 62);
  EXPECT_EQ(message, nullptr);
}

TEST(MtsDouble, AFailedReceiveMayHandOutAMessage) {
  Script script;
  script.expect(receive().timeout(10).no_token().fails_with_message(-2, payload(hex("01"))));
  cim_mts_recv_opts options = receive_options(10, 0);
  mts_msg_t* message = nullptr;
  EXPECT_EQ(mts_recv(kQueue, &message, &options), -2);
  ASSERT_NE(message, nullptr);
  mts_drop(kQueue, message);
}

TEST(MtsDouble, TheTokenOfAReceivedMessageIsNotAsked) {
  Script script;
  script.expect(receive().timeout(10).no_token().receives(payload(hex("01"))));
  mts_msg_t* message = receive_one(10, 0);
  EXPECT_NONFATAL_FAILURE(mts_rr_token_get(message), "no sent request");
  mts_drop(kQueue, message);
}

}  // namespace
}  // namespace test_support
