// One member by its id.
#include <cim_utils/zoning_queries.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/zoning_queries/entries.h"

using namespace test_support;
using namespace zoning_queries_test;

namespace {

constexpr int32_t kInAlias = 0;
constexpr int32_t kInZone = 1;

class ZoneMember : public testing::Test {
 protected:
  // Reads member 4 of zone 12 of the active database of VSAN 5.
  int32_t read() {
    return zs_cim_get_zone_member(kQueue, 4, 5, 1, ZS_MEMBER_PARENT_ZONE, 12, &count_, &members_);
  }
  ZoneRead expected() { return read_member(5, 1, kInZone, 12, 4); }
  void release() {
    free(members_);
    members_ = nullptr;
  }
  // Reads it from an entry of the type with the packed value, of which the parser tells value, LUN
  // and length.
  void read_text(uint8_t type, const Bytes& packed, const Bytes& told, int32_t length) {
    Script script;
    const Bytes entry = member_entry(type, packed);
    script.expect(expected()).gives({entry});
    script.expect(parse_member(head_of(entry))).as(type, told).length(length);
    EXPECT_EQ(read(), 0);
    ASSERT_EQ(count_, 1);
  }

  TraceStack trace_stack_;
  HeapLedger ledger_;
  StdioCapture printed_;
  int32_t count_ = -7;
  zs_cim_zone_member_* members_ = nullptr;
};

struct Shown {
  uint8_t type;
  Bytes packed;  // the value behind the entry's header
  Bytes value;   // as the parser tells it
  Bytes lun;
  const char* instance_id;
  uint16_t cim_type;
  const char* text;
};

Bytes text64(std::string_view text) {
  return Record(64).text(0, text);
}
Bytes text256(std::string_view text) {
  return Record(256).text(0, text);
}

const Bytes kWwn = hex("20 41 00 0d ec 0a 1b 2c");
const Bytes kLun = hex("00 01 02 03 04 05 0a 0b");
const Bytes kFcid = hex("00 0a 0b 0c");
const Bytes kIpv6 = hex("02 00 00 00 20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01 80 00 00 00");

const std::vector<Shown>& rows() {
  HeapLedger::Pause pause;
  static const std::vector<Shown> table = {
      {1, kWwn, kWwn, {}, "5^2^2041000DEC0A1B2C^1", 2, "2041000DEC0A1B2C"},
      {2, hex("03 00 00 05"), hex("03 00 00 05"), {}, "5^4^03:05^1", 4, "03:05"},
      {3, kFcid, kFcid, {}, "5^3^0a0b0c^1", 3, "0a0b0c"},
      {4, text64("tape"), terminated("tape"), {}, "5^5^tape^1", 5, "tape"},
      {225, joined({kWwn, kLun}), kWwn, kLun, "5^101^2041000DEC0A1B2C_0001020304050A0B^1", 101,
       "2041000DEC0A1B2C_0001020304050A0B"},
      {227, joined({kFcid, kLun}), kFcid, kLun, "5^102^0a0b0c_0001020304050A0B^1", 102,
       "0a0b0c_0001020304050A0B"},
      {228, text256("iqn.a"), terminated("iqn.a"), {}, "5^12^iqn.a^1", 12, "iqn.a"},
      {229, kWwn, kWwn, {}, "5^7^2041000DEC0A1B2C^1", 7, "2041000DEC0A1B2C"},
      {230, text256("iqn.b"), terminated("iqn.b"), {}, "5^12^iqn.b^1", 12, "iqn.b"},
      {231, kWwn, kWwn, {}, "5^6^2041000DEC0A1B2C^1", 6, "2041000DEC0A1B2C"},
      {232,
       hex("01 00 00 0a 00 ff ff ff"),
       hex("01 00 00 0a 00 ff ff ff"),
       {},
       "5^8^10.0.0.1/255.255.255.0^1",
       8,
       "10.0.0.1/255.255.255.0"},
      // The instance id has the whole text, the display text 8 characters of it.
      {233,
       joined({kWwn, hex("e1 00 00 00")}),
       joined({kWwn, hex("e1 00 00 00")}),
       {},
       "5^11^fc1/1:225^1",
       11,
       "fc1/1:22"},
      {234, kIpv6, kIpv6, {}, "5^9^2001:db8::1^1", 9, "2001:db8::1"},
      {235, terminated("device-7"), terminated("device-7"), {}, "5^13^device-7^1", 13, "device-7"},
      {241, joined({kWwn, kLun}), kWwn, kLun, "5^101^2041000DEC0A1B2C_0001020304050A0B^1", 101,
       "2041000DEC0A1B2C_0001020304050A0B"},
      {243, joined({kFcid, kLun}), kFcid, kLun, "5^102^0a0b0c_0001020304050A0B^1", 102,
       "0a0b0c_0001020304050A0B"},
  };
  return table;
}

TEST_F(ZoneMember, OfEveryTypeIsShown) {
  for (const Shown& row : rows()) {
    SCOPED_TRACE(static_cast<int>(row.type));
    Script script;
    const Bytes entry = member_entry(row.type, row.packed);
    script.expect(expected()).gives({entry});
    script.expect(parse_member(head_of(entry))).as(row.type, row.value, row.lun);
    EXPECT_EQ(read(), 0);
    ASSERT_EQ(count_, 1);
    EXPECT_STREQ(members_[0].instance_id, row.instance_id);
    EXPECT_EQ(members_[0].member_type, row.cim_type);
    EXPECT_STREQ(members_[0].member_id, row.text);
    EXPECT_EQ(members_[0].next, nullptr);
    release();
  }
}

TEST_F(ZoneMember, OfAnAliasIsReadWithTheOtherParentKind) {
  Script script;
  const Bytes entry = member_entry(3, kFcid);
  script.expect(read_member(4094, 0, kInAlias, 2048, 17)).gives({entry});
  script.expect(parse_member(head_of(entry))).as(3, kFcid);
  EXPECT_EQ(
      zs_cim_get_zone_member(kQueue, 17, 4094, 0, ZS_MEMBER_PARENT_ALIAS, 2048, &count_, &members_),
      0);
  ASSERT_EQ(count_, 1);
  EXPECT_STREQ(members_[0].instance_id, "4094^3^0a0b0c^0");
  release();
}

TEST_F(ZoneMember, IdZeroTouchesNothing) {
  Script script;
  zs_cim_zone_member_ unused{};
  members_ = &unused;
  EXPECT_EQ(zs_cim_get_zone_member(kQueue, 0, 5, 1, ZS_MEMBER_PARENT_ZONE, 12, &count_, &members_),
            0);
  EXPECT_EQ(zs_cim_get_zone_member(kQueue, 0, 5, 1, ZS_MEMBER_PARENT_ZONE, 12, nullptr, nullptr),
            0);
  EXPECT_EQ(count_, -7);
  EXPECT_EQ(members_, &unused);
  EXPECT_EQ(script.calls(), 0u);
  EXPECT_EQ(printed_.out(), "");
}

TEST_F(ZoneMember, WithoutAPlaceForTheResultNobodyIsAsked) {
  Script script;
  EXPECT_EQ(zs_cim_get_zone_member(kQueue, 1, 5, 1, ZS_MEMBER_PARENT_ZONE, 12, nullptr, &members_),
            -1);
  EXPECT_EQ(zs_cim_get_zone_member(kQueue, 1, 5, 1, ZS_MEMBER_PARENT_ZONE, 12, &count_, nullptr),
            -1);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(ZoneMember, AFailedReadIsMinusOneAndFreesTheReply) {
  Script script;
  script.expect(expected()).fails(0x40200011);
  script.expect(expected()).fails_with_reply(3, member_entry(3, kFcid)).count(1);
  for (int i = 0; i < 2; ++i) {
    zs_cim_zone_member_ unused{};
    members_ = &unused;
    count_ = 9;
    EXPECT_EQ(read(), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(members_, nullptr);
  }
}

TEST_F(ZoneMember, AnEmptyReplyIsNoMember) {
  Script script;
  script.expect(expected()).gives_nothing();
  script.expect(expected()).returns(0);  // the count stays 1, without a reply
  script.expect(expected()).returns(0).count(-1);
  for (int i = 0; i < 3; ++i) {
    zs_cim_zone_member_ unused{};
    members_ = &unused;
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(members_, nullptr);
  }
}

TEST_F(ZoneMember, AnEntryThatTheReplyDoesNotHoldWholeIsNone) {
  Script script;
  script.expect(expected()).gives({member_entry(235, {})}).cut_to(23);
  script.expect(expected()).gives({member_entry(1, kWwn)}).cut_to(31);
  script.expect(expected()).gives({member_entry(225, joined({kWwn, kLun}))}).cut_to(39);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(members_, nullptr);
  }
}

TEST_F(ZoneMember, AShortTextIsWholeWithoutTheRestOfItsField) {
  read_text(4, terminated("disk"), terminated("disk"), 5);
  EXPECT_STREQ(members_[0].instance_id, "5^5^disk^1");
  EXPECT_STREQ(members_[0].member_id, "disk");
  release();
}

TEST_F(ZoneMember, OfATypeWithoutAnInstanceIdStaysZero) {
  for (uint8_t type : {109, 0, 5, 226, 255}) {
    Script script;
    script.expect(expected()).gives({member_entry(type, kWwn)});
    printed_.clear();
    EXPECT_EQ(read(), 0);
    ASSERT_EQ(count_, 1);
    EXPECT_EQ(bytes_of(members_[0]), zeros(sizeof(zs_cim_zone_member_)));
    EXPECT_NE(printed_.out().find("Function "), std::string::npos);
    release();
  }
}

TEST_F(ZoneMember, WhoseParsedTypeIsNotShownFailsTheWholeRead) {
  for (uint8_t type : {109, 0, 99}) {
    Script script;
    const Bytes entry = member_entry(1, kWwn);
    script.expect(expected()).gives({entry});
    script.expect(parse_member(head_of(entry))).as(type, kWwn);
    count_ = 9;
    EXPECT_EQ(read(), -1);
    EXPECT_EQ(count_, 0);
    EXPECT_EQ(members_, nullptr);
  }
}

TEST_F(ZoneMember, ThatTheParserRefusesFailsTheWholeRead) {
  Script script;
  const Bytes entry = member_entry(1, kWwn);
  script.expect(expected()).gives({entry});
  script.expect(parse_member(head_of(entry))).as(1, kWwn).returns(-1);
  EXPECT_EQ(read(), -1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(members_, nullptr);
}

TEST_F(ZoneMember, IsShownAsTheTypeThatTheParserTells) {
  Script script;
  const Bytes entry = member_entry(1, kWwn);
  script.expect(expected()).gives({entry});
  script.expect(parse_member(head_of(entry))).as(3, kFcid);
  EXPECT_EQ(read(), 0);
  ASSERT_EQ(count_, 1);
  EXPECT_STREQ(members_[0].instance_id, "5^2^2041000DEC0A1B2C^1");
  EXPECT_EQ(members_[0].member_type, 3);
  EXPECT_STREQ(members_[0].member_id, "0a0b0c");
  release();
}

TEST_F(ZoneMember, WithoutALunIsShownWithLunZero) {
  Script script;
  const Bytes entry = member_entry(225, joined({kWwn, kLun}));
  script.expect(expected()).gives({entry});
  script.expect(parse_member(head_of(entry))).as(225, kWwn);
  EXPECT_EQ(read(), 0);
  ASSERT_EQ(count_, 1);
  EXPECT_STREQ(members_[0].member_id, "2041000DEC0A1B2C_0000000000000000");
  release();
}

// ---- How much of a text is shown

TEST_F(ZoneMember, ATextIsBoundedByTheDecodedLength) {
  for (uint8_t type : {4, 228, 230, 235}) {
    read_text(type, text256("abcdef"), Bytes{'a', 'b', 'c'}, 3);
    EXPECT_STREQ(members_[0].member_id, "abc");
    release();
    read_text(type, text256("abcdef"), text256("abcdef"), 6);
    EXPECT_STREQ(members_[0].member_id, "abcdef");
    release();
  }
}

TEST_F(ZoneMember, ATextEndsAtItsTerminatorWhenTheLengthGoesOn) {
  for (uint8_t type : {4, 228, 230, 235}) {
    read_text(type, text256("abcdef"), text256("abcdef"), 256);
    EXPECT_STREQ(members_[0].member_id, "abcdef");
    release();
  }
}

TEST_F(ZoneMember, ATextOfUnknownLengthEndsAtItsTerminator) {
  for (uint8_t type : {4, 228, 230, 235}) {
    read_text(type, text256("abcdef"), terminated("abcdef"), -1);
    EXPECT_STREQ(members_[0].member_id, "abcdef");
    release();
  }
}

TEST_F(ZoneMember, ATextOfLengthZeroIsEmpty) {
  read_text(235, terminated("abcdef"), terminated("abcdef"), 0);
  EXPECT_STREQ(members_[0].member_id, "");
  EXPECT_EQ(members_[0].member_type, 13);
  release();
}

TEST_F(ZoneMember, ALongTextIsCutToTheRoomOfTheRecord) {
  for (int32_t length : {300, -1, 0x7fffffff}) {
    read_text(235, Bytes(300, 'x'), Bytes(300, 'x'), length);
    EXPECT_EQ(members_[0].member_id, std::string(257, 'x'));
    // The instance id has the key text, which is shorter.
    EXPECT_EQ(members_[0].instance_id, "5^13^" + std::string(63, 'x') + "^1");
    release();
  }
}

TEST_F(ZoneMember, AnIpv6TextIsCutAtTheLengthOfThePackedValue) {
  const Bytes packed =
      hex("02 00 00 00 20 01 0d b8 11 11 22 22 33 33 44 44 55 55 66 66 40 00 00 00");
  read_text(234, packed, packed, 24);
  // Of 2001:db8:1111:2222:3333:4444:5555:6666/64.
  EXPECT_STREQ(members_[0].member_id, "2001:db8:1111:2222:3333:");
  EXPECT_STREQ(members_[0].instance_id, "5^9^2001:db8:1111:2222:3333:4444:5555:6666/64^1");
  EXPECT_NE(printed_.out().find(" ipv6_addr is 2001:db8:1111:2222:3333:4444:5555:6666/64 \n"),
            std::string::npos);
  release();
  read_text(234, packed, packed, -1);
  EXPECT_STREQ(members_[0].member_id, "2001:db8:1111:2222:3333:4444:5555:6666/64");
  release();
}

// ---- Replies with more than one entry

TEST_F(ZoneMember, OfFurtherEntriesOnlyTheParserIsBelieved) {
  // The second header begins where the value of the first one does.
  const Bytes reply = Record(64).byte(20, 1).put(24, kWwn).byte(44, 227).put(48, zeros(12));
  Script script;
  script.expect(expected()).gives({reply}).count(2);
  script.expect(parse_member(Bytes(reply.begin(), reply.begin() + 24))).as(1, kWwn);
  const Bytes second(reply.begin() + 24, reply.begin() + 48);
  script.expect(parse_member(second)).as(227, kFcid, kLun);
  script.expect(parse_member(second)).as(227, kFcid, kLun);
  EXPECT_EQ(read(), 0);
  ASSERT_EQ(count_, 2);
  EXPECT_STREQ(members_[0].instance_id, "5^2^2041000DEC0A1B2C^1");
  EXPECT_STREQ(members_[1].instance_id, "5^102^0a0b0c_0001020304050A0B^1");
  EXPECT_STREQ(members_[1].member_id, "0a0b0c_0001020304050A0B");
  EXPECT_EQ(members_[0].next, nullptr);
  release();
}

TEST_F(ZoneMember, AFurtherEntryThatDoesNotFitIsNotCounted) {
  const Bytes reply = Record(59).byte(20, 1).put(24, kWwn).byte(44, 227);
  Script script;
  script.expect(expected()).gives({reply}).count(2);
  script.expect(parse_any_member()).as(1, kWwn);
  EXPECT_EQ(read(), 0);
  EXPECT_EQ(count_, 1);
  release();
}

// ---- Failures of every step

TEST_F(ZoneMember, AFailingAllocationIsAFailureAndFreesTheReply) {
  for_every_failing_allocation([this](FailingAllocation& failing) {
    Script script;
    const Bytes entry = member_entry(1, kWwn);
    script.expect(expected()).gives({entry});
    if (failing.n() > 1) script.expect(parse_member(head_of(entry))).as(1, kWwn);
    const int32_t result = failing.attempt([&] { return read(); });
    EXPECT_EQ(result, failing.was_hit() ? -1 : 0);
    EXPECT_EQ(count_, failing.was_hit() ? 0 : 1);
    release();
  });
}

TEST_F(ZoneMember, RepliesOfEveryLengthAndPatternAreSafe) {
  HeapLedger::Pause pause;
  Bytes reply;
  int32_t announced = 1;
  ZoneReadResponder zone_server([&](const ZoneReadRequest&) {
    return ZoneReadResponse{0, announced, reply};
  });
  for (unsigned number = 0; number < kPatterns; ++number) {
    for (uint8_t type : {1, 4, 225, 227, 228, 232, 233, 234, 235}) {
      for (size_t size : {0, 1, 20, 21, 23, 24, 25, 31, 32, 35, 36, 40, 47, 48, 49, 72, 96, 300}) {
        reply = pattern(number, size);
        if (size > 20) reply[20] = type;
        announced = number % 3 == 0 ? 1 : static_cast<int32_t>(number * 7);
        read();
        release();
      }
      printed_.clear();
    }
  }
  EXPECT_EQ(zone_server.calls("zs_cmi_get_member"), kPatterns * 9 * 18);
}

}  // namespace
