#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include "tests/adaptors/reply_sweep.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

Bytes request_for(uint32_t item) {
  return Record(1032).be32(0, item);
}

class SystemInformation : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  system_information_ info_{};
};

TEST_F(SystemInformation, ATextItemComesAsItIs) {
  Script script;
  script.expect(get(1812).sap(28).sends(request_for(2)))
      .replies(Record(1032).be32(0, 2).text(4, "sydney").be32(1028, 0x01020304));
  info_.selector = 2;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0);
  EXPECT_EQ(info_.selector, 2u);
  EXPECT_STREQ(reinterpret_cast<const char*>(info_.answer), "sydney");
  // The last word of a text item is part of the text: it stays as received.
  EXPECT_EQ(bytes_of(info_.count), hex("01 02 03 04"));
}

TEST_F(SystemInformation, ItemFourCarriesANumberInItsLastWord) {
  Script script;
  script.expect(get(1812).sap(28).sends(request_for(4)))
      .replies(Record(1032).be32(0, 4).be32(4, 0x0a0b0c0d).be32(1028, 0x01020304));
  info_.selector = 4;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0);
  EXPECT_EQ(info_.count, 0x01020304u);
  EXPECT_EQ(Bytes(info_.answer, info_.answer + 4), hex("0a 0b 0c 0d"));
}

TEST_F(SystemInformation, ItemsFiveAndSixCarryANumberInTheAnswersFirstWord) {
  for (const uint32_t item : {5u, 6u}) {
    Script script;
    script.expect(get(1812).sap(28).sends(request_for(item)))
        .replies(Record(1032)
                     .be32(0, item)
                     .be32(4, 0x01020304)
                     .be32(8, 0x05060708)
                     .be32(1028, 0x0a0b0c0d));
    info_ = {};
    info_.selector = item;
    EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0);
    EXPECT_EQ(Bytes(info_.answer, info_.answer + 8), hex("04 03 02 01 05 06 07 08"));
    EXPECT_EQ(bytes_of(info_.count), hex("0a 0b 0c 0d"));
  }
}

TEST_F(SystemInformation, TheReplysOwnSelectorDecides) {
  Script script;
  script.expect(get(1812).sap(28).any_request().length(1032))
      .replies(Record(1032).be32(0, 6).be32(4, 0x01020304));
  info_.selector = 2;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0);
  EXPECT_EQ(info_.selector, 6u);
  EXPECT_EQ(Bytes(info_.answer, info_.answer + 4), hex("04 03 02 01"));
}

TEST_F(SystemInformation, NoRecordIsAFailureWithoutAnExchange) {
  Script script;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, nullptr), 0x40490001);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(SystemInformation, AStatusIsPassedOnAndTheSelectorIsBackInHostOrder) {
  Script script;
  script.expect(get(1812).sap(28).any_request().length(1032)).status(0x40490007);
  script.expect(get(1812).sap(28).any_request().length(1032)).times_out();
  script.expect(get(1812).sap(28).any_request().length(1032))
      .status_with_reply(3, Record(1032).be32(0, 9));
  info_.selector = 6;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0x40490007);
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), -1);
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 3);
  EXPECT_EQ(info_.selector, 6u);
}

TEST_F(SystemInformation, SuccessWithoutAReplyIsItsOwnFailure) {
  Script script;
  script.expect(get(1812).sap(28).any_request().length(1032)).ok_without_reply();
  info_.selector = 3;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0x40490001);
  EXPECT_EQ(info_.selector, 3u);
}

TEST_F(SystemInformation, AReplyOneByteShortCountsAsNone) {
  Script script;
  script.expect(get(1812).sap(28).any_request().length(1032))
      .replies(Record(1032).be32(0, 9))
      .cut_to(1031);
  script.expect(get(1812).sap(28).any_request().length(1032))
      .replies(Record(1032).be32(0, 9))
      .cut_to(1031)
      .length_left_alone();
  info_.selector = 3;
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0x40490001);
  EXPECT_EQ(snmp_get_sys_info1(kQueue, &info_), 0x40490001);
  EXPECT_EQ(info_.selector, 3u);
}

TEST_F(SystemInformation, EveryReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(1032, [] {
    system_information_ info{};
    info.selector = 6;
    snmp_get_sys_info1(kQueue, &info);
  });
}

}  // namespace
