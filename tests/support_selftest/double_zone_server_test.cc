#include "tests/support/double_zone_server.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <switch_platform/zone_server.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace test_support {
namespace {

class ZoneServerDouble : public testing::Test {
 protected:
  uint8_t context_[132] = {};
  int32_t count_ = 1;
  void* reply_ = nullptr;
};

TEST_F(ZoneServerDouble, ReadsOneObjectById) {
  HeapLedger ledger;
  Script script;
  script.expect(read_zone_set(10, 1, 3)).gives({Record(1344).be32(4, 3)});
  script.expect(read_zone(10, 0, 4)).gives_nothing();
  script.expect(read_alias(10, 0, 5)).fails(0x40200001);
  EXPECT_EQ(zs_cmi_get_zone_set(kQueue, 1, 10, context_, 0, 1, 3, &count_, &reply_), 0);
  EXPECT_EQ(count_, 1);
  ASSERT_NE(reply_, nullptr);
  EXPECT_EQ(static_cast<uint8_t*>(reply_)[7], 3);
  free(reply_);
  reply_ = nullptr;
  EXPECT_EQ(zs_cmi_get_zone(kQueue, 1, 10, context_, 0, 0, 4, &count_, &reply_), 0);
  EXPECT_EQ(count_, 0);
  count_ = 1;
  EXPECT_EQ(zs_cmi_get_alias(kQueue, 1, 10, context_, 0, 0, 5, &count_, &reply_), 0x40200001);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(reply_, nullptr);
}

TEST_F(ZoneServerDouble, ReadsAllObjectsWithACountOf32GoingIn) {
  HeapLedger ledger;
  Script script;
  script.expect(read_all_zone_sets(10, 1)).gives({zeros(1344), zeros(1344)});
  script.expect(read_all_zones(10, 1)).gives({zeros(872)}).count(1000).cut_to(100);
  script.expect(read_all_aliases(10, 1)).fails_with_reply(5, zeros(344));
  script.expect(read_all_aliases(10, 1)).fails(5);
  count_ = 32;
  EXPECT_EQ(zs_cmi_get_all_zone_sets_in_vsan(kQueue, 10, context_, 0, 1, &count_, &reply_), 0);
  EXPECT_EQ(count_, 2);
  EXPECT_EQ(live_block_size(reply_, 0), 2688u);
  free(reply_);
  reply_ = nullptr;
  count_ = 32;
  EXPECT_EQ(zs_cmi_get_all_zones_in_vsan(kQueue, 10, context_, 0, 1, &count_, &reply_), 0);
  EXPECT_EQ(count_, 1000);
  EXPECT_EQ(live_block_size(reply_, 0), 100u);
  free(reply_);
  reply_ = nullptr;
  count_ = 32;
  EXPECT_EQ(zs_cmi_get_all_aliases_in_vsan(kQueue, 10, context_, 0, 1, &count_, &reply_), 5);
  EXPECT_NE(reply_, nullptr);
  free(reply_);
  reply_ = nullptr;
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(
      zs_cmi_get_all_aliases_in_vsan(kQueue, 10, context_, 0, 1, &count_, &reply_),
      "count: expected 32 (0x20), found 1");
}

TEST_F(ZoneServerDouble, ChecksEveryArgumentOfARead) {
  Script script;
  for (int i = 0; i < 7; ++i)
    script.expect(read_zone(10, 0, 4)).gives_nothing();
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 0, 10, context_, 0, 0, 4, &count_, &reply_),
                          "exact: expected 1");
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 11, context_, 0, 0, 4, &count_, &reply_),
                          "vsan: expected 10");
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 10, context_, 1, 0, 4, &count_, &reply_),
                          "zero: expected 0");
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 10, context_, 0, 1, 4, &count_, &reply_),
                          "active: expected 0");
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 10, context_, 0, 0, 5, &count_, &reply_),
                          "id: expected 4");
  count_ = 1;
  reply_ = &count_;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 10, context_, 0, 0, 4, &count_, &reply_),
                          "reply: expected \"preset to null\"");
  reply_ = nullptr;
  count_ = 1;
  context_[131] = 1;
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_zone(kQueue, 1, 10, context_, 0, 0, 4, &count_, &reply_),
                          "context: first difference at offset 131");
}

TEST_F(ZoneServerDouble, ReadsMembersOfAParent) {
  HeapLedger ledger;
  Script script;
  script.expect(read_member(10, 0, 1, 4, 2)).gives({Record(40).byte(20, 1)});
  script.expect(read_member(10, 0, 1, 4, 2)).gives_nothing();
  EXPECT_EQ(zs_cmi_get_member(kQueue, 1, 10, context_, 0, 0, 1, 4, 2, &count_, &reply_, 0), 0);
  free(reply_);
  reply_ = nullptr;
  count_ = 1;
  EXPECT_NONFATAL_FAILURE(
      zs_cmi_get_member(kQueue, 1, 10, context_, 0, 0, 0, 4, 2, &count_, &reply_, 0),
      "parent_kind: expected 1, found 0");
}

TEST_F(ZoneServerDouble, DecodesAMemberAsTheLineSays) {
  HeapLedger ledger;
  Script script;
  Bytes entry = Record(24).byte(20, 225);
  script.expect(parse_member(entry)).as(225, hex("01 02"), hex("aa bb cc"));
  script.expect(parse_any_member()).as(4, hex("61")).length(500);
  script.expect(parse_any_member()).fails(3);
  uint8_t type = 0;
  int32_t length = -1;
  const void* value = nullptr;
  const void* lun = nullptr;
  EXPECT_EQ(zs_api_parse_member(entry.data(), &type, &length, &value, &lun), 0);
  EXPECT_EQ(type, 225);
  EXPECT_EQ(length, 2);
  EXPECT_EQ(memcmp(value, "\x01\x02", 2), 0);
  EXPECT_EQ(memcmp(lun, "\xaa\xbb\xcc", 3), 0);
  EXPECT_EQ(zs_api_parse_member(entry.data(), &type, &length, &value, &lun), 0);
  EXPECT_EQ(length, 500);
  EXPECT_EQ(lun, nullptr);
  EXPECT_EQ(zs_api_parse_member(entry.data(), &type, &length, &value, &lun), 3);
}

TEST_F(ZoneServerDouble, ChangesCarryNamesAndEmptyTexts) {
  Script script;
  script.expect(create_zoning_object(1, 10, 0, "zone-a")).returns(0);
  script.expect(add_zone_to_zone_set(1, 10, "set", "zone-a")).returns(0x40200001);
  script.expect(add_alias_to_zone(0, 10, "zone-a", "alias")).returns(0);
  script.expect(activate_zone_set(1, 10, "set")).returns(0x40200038);
  script.expect(distribute_zone_set(10)).returns(0x40200079);
  script.expect(distribute_zone_set(10)).returns(0);
  EXPECT_EQ(zs_cmi_create_zoning_object(kQueue, 1, 10, 0, -1, "zone-a", "", "", context_), 0);
  EXPECT_EQ(zs_cmi_add_zone_to_zone_set(kQueue, 1, 10, "set", "zone-a", "", "", context_),
            0x40200001);
  EXPECT_EQ(zs_cmi_add_alias_to_zone(kQueue, 0, 10, "zone-a", "alias", "", "", context_), 0);
  EXPECT_EQ(zs_cmi_activate_zone_set(kQueue, 1, 10, "set", "", "", context_), 0x40200038);
  EXPECT_EQ(zs_cmi_zoneset_distribute(kQueue, 10, "", "", context_), 0x40200079);
  EXPECT_NONFATAL_FAILURE(zs_cmi_zoneset_distribute(kQueue, 10, nullptr, "", context_),
                          "empty1: expected \"\", found null");
}

TEST_F(ZoneServerDouble, AZoneMemberHasNullTextsAndAnAliasMemberEmptyOnes) {
  HeapLedger ledger;
  Script script;
  const Bytes member = Record(12).put(0, hex("00 01 00 08")).byte(11, 7);  // a block of 12 bytes
  script.expect(add_zone_member(1, 10, "zone-a", member)).returns(0);
  script.expect(add_alias_member(1, 10, "alias", member)).returns(0);
  script.expect(add_zone_member(1, 10, "zone-a", member)).returns(0);
  EXPECT_EQ(zs_cmi_add_zone_member(kQueue, 1, 10, "zone-a", -1, member.data(), nullptr, nullptr,
                                   context_),
            0);
  EXPECT_EQ(zs_cmi_add_alias_member(kQueue, 1, 10, "alias", -1, member.data(), "", "", context_),
            0);
  EXPECT_NONFATAL_FAILURE(
      zs_cmi_add_zone_member(kQueue, 1, 10, "zone-a", -1, member.data(), "", "", context_),
      "empty1: expected null, found \"\"");
}

TEST_F(ZoneServerDouble, TheSizeOfTheMembersBufferIsChecked) {
  Script script;
  script.expect(add_zone_member(1, 10, "zone-a", hex("00 01 02"))).returns(0);
  const Bytes longer = Record(4).put(0, hex("00 01 02 03"));  // a block of 4 bytes
  EXPECT_NONFATAL_FAILURE(zs_cmi_add_zone_member(kQueue, 1, 10, "zone-a", -1, longer.data(),
                                                 nullptr, nullptr, context_),
                          "first difference at offset 3 (3 bytes expected, 4 found)");
}

TEST_F(ZoneServerDouble, AMemberOutsideOfTheHeapIsReadAsFarAsExpected) {
  Script script;
  const uint8_t member[] = {9, 8, 7};
  script.expect(add_zone_member(1, 10, "zone-a", hex("09 08"))).returns(0);
  EXPECT_EQ(zs_cmi_add_zone_member(kQueue, 1, 10, "zone-a", -1, member, nullptr, nullptr, context_),
            0);
}

TEST_F(ZoneServerDouble, TranslatesNamesAndIds) {
  Script script;
  script.expect(query_id_for_name(10, 1, "set")).gives(17);
  script.expect(query_id_for_name(10, 1, "set")).fails(6);
  script.expect(query_name_for_id(10, 1, 17).active(1)).gives("set");
  script.expect(query_name_for_id(10, 1, 17)).fails(7);
  uint32_t id = 0;
  EXPECT_EQ(zs_cmi_get_id_for_name(kQueue, 10, context_, 0, 0, 1, "set", &id), 0);
  EXPECT_EQ(id, 17u);
  EXPECT_EQ(zs_cmi_get_id_for_name(kQueue, 10, context_, 0, 0, 1, "set", &id), 6);
  char name[256] = "";
  EXPECT_EQ(zs_cmi_get_name_for_id(kQueue, 10, context_, 0, 1, 1, 17, name), 0);
  EXPECT_STREQ(name, "set");
  EXPECT_EQ(zs_cmi_get_name_for_id(kQueue, 10, context_, 0, 0, 1, 17, name), 7);
}

TEST_F(ZoneServerDouble, PoliciesAreABlockToBeFreed) {
  HeapLedger ledger;
  Script script;
  Bytes policies = hex("00 00 00 01");
  script.expect(query_policies(10)).gives(policies);
  script.expect(read_policy(policies)).gives(1);
  script.expect(read_policy(policies)).gives(1);
  script.expect(query_policies(10)).fails(3);
  EXPECT_EQ(zs_cmi_get_all_policies(kQueue, 1, 10, context_, 0, &reply_), 0);
  EXPECT_EQ(zs_cmi_get_policy(reply_, 0, 0, 0), 1u);
  EXPECT_NONFATAL_FAILURE(zs_cmi_get_policy(reply_, 0, 1, 0), "b: expected 0, found 1");
  free(reply_);
  reply_ = nullptr;
  EXPECT_EQ(zs_cmi_get_all_policies(kQueue, 1, 10, context_, 0, &reply_), 3);
  EXPECT_EQ(reply_, nullptr);
}

TEST_F(ZoneServerDouble, AResponderAnswersEveryReadAndCountsByFunction) {
  HeapLedger ledger;
  ZoneReadResponder responder([](const ZoneReadRequest& request) {
    EXPECT_EQ(request.vsan, 10u);
    EXPECT_EQ(request.active, 1);
    if (request.function == "zs_cmi_get_all_zones_in_vsan") return ZoneReadResponse{7, 0, {}};
    EXPECT_EQ(request.parent_kind, 1);
    EXPECT_EQ(request.parent_id, 3u);
    EXPECT_EQ(request.member_id, 4u);
    return ZoneReadResponse{0, 5, Record(40).host32(0, 16).byte(20, 225)};
  });
  EXPECT_EQ(zs_cmi_get_all_zones_in_vsan(kQueue, 10, context_, 0, 1, &count_, &reply_), 7);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(reply_, nullptr);
  EXPECT_EQ(zs_cmi_get_member(kQueue, 1, 10, context_, 0, 1, 1, 3, 4, &count_, &reply_, 0), 0);
  EXPECT_EQ(count_, 5);
  ASSERT_NE(reply_, nullptr);
  uint8_t type = 0;
  int32_t length = 0;
  const void* value = nullptr;
  const void* lun = nullptr;
  EXPECT_EQ(zs_api_parse_member(reply_, &type, &length, &value, &lun), 0);
  EXPECT_EQ(type, 225);
  EXPECT_EQ(length, 16);
  EXPECT_EQ(value, static_cast<uint8_t*>(reply_) + 24);
  EXPECT_EQ(lun, static_cast<uint8_t*>(reply_) + 32);
  free(reply_);
  EXPECT_EQ(responder.calls(), 2u);
  EXPECT_EQ(responder.calls("zs_cmi_get_member"), 1u);
  EXPECT_EQ(responder.calls("zs_cmi_get_zone"), 0u);
}

TEST_F(ZoneServerDouble, AResponderExpectsItsRepliesToBeFreed) {
  static void* reply;
  reply = nullptr;
  EXPECT_NONFATAL_FAILURE(
      {
        ZoneReadResponder responder([](const ZoneReadRequest&) {
          return ZoneReadResponse{0, 1, hex("01")};
        });
        uint8_t context[132] = {};
        int32_t count = 1;
        zs_cmi_get_zone(kQueue, 1, 10, context, 0, 0, 4, &count, &reply);
      },
      "not freed: 1 bytes");
  free(reply);
}

}  // namespace
}  // namespace test_support
