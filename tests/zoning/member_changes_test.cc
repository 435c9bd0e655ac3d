// Members: added to and removed from zones and aliases, and removed from all that hold them.
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>

#include <vector>

#include "tests/support/double_zone_server.h"
#include "tests/zoning/zoning_fixture.h"

using namespace test_support;
using zoning_test::without_line_numbers;

namespace {

constexpr int32_t kUntouched = 4711;

struct Outcome {
  int32_t result;
  int32_t error;
  bool operator==(const Outcome&) const = default;
  friend void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << outcome.result << ", error " << outcome.error;
  }
};

const Outcome kDone = {0, kUntouched};

const Bytes kWwn = hex("21 00 00 e0 8b 05 05 04");

// ---- One parent

class ZoneMembers : public zoning_test::ZoningFixture {
 protected:
  // To or from zone or alias 17 of VSAN 5.
  static Outcome change(int32_t operation, zs_object_kind kind, zs_member_type type,
                        const Bytes& value, int32_t active = 0) {
    Outcome outcome{0, kUntouched};
    outcome.result =
        zs_cim_add_zoning_member(kQueue, operation, 5, active, kind, 17, type, value.data(),
                                 static_cast<int32_t>(value.size()), &outcome.error);
    return outcome;
  }
  static Outcome add_to_zone(zs_member_type type, const Bytes& value) {
    return change(1, ZS_OBJECT_ZONE, type, value);
  }
  // Expects the member with these bytes in front, and zeros behind them up to the 28 bytes that
  // every member has at least.
  static void expect_sent(Script& script, const Bytes& bytes) {
    Bytes member = bytes;
    if (member.size() < 28) member.resize(28);
    script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
    script.expect(add_zone_member(1, 5, "zone-a", member)).returns(0);
  }
};

TEST_F(ZoneMembers, APortWwnIsSentToAZoneWithNullTexts) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_zone_member(1, 5, "zone-a", joined({hex("01 00 08 00"), kWwn, zeros(16)})))
      .returns(0);
  EXPECT_EQ(change(1, ZS_OBJECT_ZONE, ZS_MEMBER_PORT_WWN, kWwn), kDone);
  EXPECT_EQ(printed(),
            "\t add/remove zoning member 17 -- 1 -- 0 -- 8\n"
            "\t\t result (zs_cmi_get_name_for_id) 0\n"
            "wwn_str is 210000E08B050504 \n"
            "\t\t Zone Name in zs_cmi_add_zone_member zone-a\n"
            "Zone \t\t result 0\n");
}

TEST_F(ZoneMembers, APortWwnIsSentToAnAliasWithEmptyTexts) {
  Script script;
  script.expect(query_name_for_id(5, 2, 17)).gives("alias-a");
  script.expect(add_alias_member(1, 5, "alias-a", joined({hex("01 00 08 00"), kWwn, zeros(16)})))
      .returns(0);
  EXPECT_EQ(change(1, ZS_OBJECT_ALIAS, ZS_MEMBER_PORT_WWN, kWwn), kDone);
  EXPECT_EQ(printed(),
            "\t add/remove zoning member 17 -- 1 -- 0 -- 8\n"
            "\t\t result (zs_cmi_get_name_for_id) 0\n"
            "wwn_str is 210000E08B050504 \n"
            "\t\t Zone Name in zs_cmi_add_zone_member alias-a\n"
            "Zone Alias \t\t result 0\n");
}

TEST_F(ZoneMembers, AnyOperationIsPassedOn) {
  const Bytes member = joined({hex("01 00 08 00"), kWwn, zeros(16)});
  Script script;
  for (const int32_t operation : {0, 1, 2, -1}) {
    script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
    script.expect(add_zone_member(operation, 5, "zone-a", member)).returns(0);
    EXPECT_EQ(change(operation, ZS_OBJECT_ZONE, ZS_MEMBER_PORT_WWN, kWwn), kDone);
    script.expect(query_name_for_id(5, 2, 17)).gives("alias-a");
    script.expect(add_alias_member(operation, 5, "alias-a", member)).returns(0);
    EXPECT_EQ(change(operation, ZS_OBJECT_ALIAS, ZS_MEMBER_PORT_WWN, kWwn), kDone);
  }
}

TEST_F(ZoneMembers, TheParentsNameIsLookedUpInTheDatabaseThatTheFlagNames) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17).active(1)).gives("zone-a");
  script.expect(add_zone_member(1, 5, "zone-a", joined({hex("01 00 08 00"), kWwn, zeros(16)})))
      .returns(0);
  EXPECT_EQ(change(1, ZS_OBJECT_ZONE, ZS_MEMBER_PORT_WWN, kWwn, 1), kDone);
}

// The buffer of each type, byte for byte. The third byte is what the zone server expects, which is
// not the length of the value.
TEST_F(ZoneMembers, EveryTypeIsSentWithItsLengthCode) {
  const Bytes fcid = hex("00 01 0a ef");
  const Bytes lun = hex("00 02 00 00 00 00 00 7f");
  const Bytes text = Record(256).text(0, "iqn.name");
  const Bytes ipv6 = hex("02000000 20010db8000000000000000000000001 80000000");
  Script script;
  expect_sent(script, joined({hex("01 00 08 00"), kWwn}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_PORT_WWN, kWwn), kDone);
  expect_sent(script, hex("02 00 04 00  03 00 00 05"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_DOMAIN_PORT, hex("03 00 00 05")), kDone);
  expect_sent(script, joined({hex("03 00 04 00"), fcid}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_FCID, fcid), kDone);
  expect_sent(script, joined({hex("e1 00 08 00"), kWwn, lun}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_WWN_LUN, joined({kWwn, lun})), kDone);
  expect_sent(script, joined({hex("e3 00 08 00"), fcid, lun}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_FCID_LUN, joined({fcid, lun})), kDone);
  expect_sent(script, joined({hex("e4 00 08 00"), text}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_TEXT, text), kDone);
  expect_sent(script, joined({hex("e5 00 08 00"), kWwn}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_NODE_WWN, kWwn), kDone);
  expect_sent(script, joined({hex("e6 00 08 00"), text}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_SYMBOLIC_NAME, text), kDone);
  expect_sent(script, joined({hex("e7 00 08 00"), kWwn}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_LOCAL_INTERFACE, kWwn), kDone);
  expect_sent(script, hex("e8 00 08 00  01 00 00 0a 00 ff ff ff"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_IPV4, hex("01 00 00 0a 00 ff ff ff")), kDone);
  expect_sent(script, hex("e9 00 08 00  20 45 ff ff ff ff ff ff 07 00 00 00"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_DOMAIN_INTERFACE, hex("20 45 ff ff ff ff ff ff 07 00 00 00")),
            kDone);
  expect_sent(script, joined({hex("ea 00 18 00"), ipv6}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_IPV6, ipv6), kDone);
  expect_sent(script, joined({hex("eb 00 08 00"), hex("61 62 00")}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_UNSIZED_TEXT, hex("61 62 00")), kDone);
  expect_sent(script, joined({hex("f1 00 08 00"), kWwn, lun}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_WWN_LUN_2, joined({kWwn, lun})), kDone);
  expect_sent(script, joined({hex("f3 00 08 00"), fcid, lun}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_FCID_LUN_2, joined({fcid, lun})), kDone);
}

TEST_F(ZoneMembers, AnInterfaceOfAnotherSwitchIsSentAsAPortWwnOfAnInterface) {
  Script script;
  expect_sent(script, joined({hex("e7 00 08 00"), kWwn}));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_INTERFACE_WWN, kWwn), kDone);
  EXPECT_TRUE(was_printed("\t add/remove zoning member 17 -- 109 -- 0 -- 8\n"));
  EXPECT_TRUE(was_printed("wwn_str is 210000E08B050504 \n"));
}

TEST_F(ZoneMembers, ADomainInterfaceIsTracedAsAWwn) {
  Script script;
  expect_sent(script, hex("e9 00 08 00  20 45 ff ff ff ff ff ff 07 00 00 00"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_DOMAIN_INTERFACE, hex("20 45 ff ff ff ff ff ff 07 00 00 00")),
            kDone);
  EXPECT_TRUE(was_printed("wwn_str is 2045FFFFFFFFFFFF \n"));
}

TEST_F(ZoneMembers, AnIpv6AddressIsSentWholeWhateverTheLength) {
  const Bytes ipv6 = hex("02000000 20010db8000000000000000000000001 80000000");
  const Bytes member = joined({hex("ea 00 18 00"), ipv6});
  Script script;
  for (const int32_t length : {0, 2, 24}) {
    script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
    script.expect(add_zone_member(1, 5, "zone-a", member)).returns(0);
    int32_t error = kUntouched;
    EXPECT_EQ(zs_cim_add_zoning_member(kQueue, 1, 5, 0, ZS_OBJECT_ZONE, 17, ZS_MEMBER_IPV6,
                                       ipv6.data(), length, &error),
              0);
  }
  EXPECT_TRUE(was_printed(" ipv6_addr is 2001:db8::1 \n"));
  EXPECT_NE(without_line_numbers(printed()).find("Function zs_cim_add_zoning_member Line N \n"),
            std::string::npos);
}

TEST_F(ZoneMembers, AValueShorterThanItsTypeIsSentWithZerosBehindIt) {
  Script script;
  expect_sent(script, hex("e6 00 08 00  69 71"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_SYMBOLIC_NAME, hex("69 71")), kDone);
  EXPECT_TRUE(was_printed("\t add/remove zoning member 17 -- 230 -- 0 -- 2\n"));
  expect_sent(script, hex("01 00 08 00"));
  int32_t error = kUntouched;
  EXPECT_EQ(zs_cim_add_zoning_member(kQueue, 1, 5, 0, ZS_OBJECT_ZONE, 17, ZS_MEMBER_PORT_WWN, "", 0,
                                     &error),
            0);
}

TEST_F(ZoneMembers, TheThirdByteOfTheValueIsTraced) {
  Script script;
  expect_sent(script, hex("e6 00 08 00  69 71 6e"));
  EXPECT_EQ(add_to_zone(ZS_MEMBER_SYMBOLIC_NAME, hex("69 71 6e")), kDone);
  EXPECT_TRUE(was_printed("\t add/remove zoning member 17 -- 230 -- 110 -- 3\n"));
}

TEST_F(ZoneMembers, AnAliasNameMakesTheAliasPartOfTheZone) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_alias_to_zone(1, 5, "zone-a", "alias-b")).returns(0);
  EXPECT_EQ(add_to_zone(ZS_MEMBER_ALIAS, Record(64).text(0, "alias-b")), kDone);
  EXPECT_EQ(printed(),
            "\t add/remove zoning member 17 -- 4 -- 105 -- 64\n"
            "\t\t result (zs_cmi_get_name_for_id) 0\n"
            "Alias name is alias-b \n"
            "\t\t Zone Name in zs_cmi_add_zone_member zone-a\n"
            "\t\t result 0\n");
}

// The alias's own name stands where a zone's is expected.
TEST_F(ZoneMembers, AnAliasNameForAnAliasIsSentAsIfThatWereAZone) {
  Script script;
  script.expect(query_name_for_id(5, 2, 17)).gives("alias-a");
  script.expect(add_alias_to_zone(0, 5, "alias-a", "alias-b")).returns(0);
  EXPECT_EQ(change(0, ZS_OBJECT_ALIAS, ZS_MEMBER_ALIAS, Record(64).text(0, "alias-b")), kDone);
}

TEST_F(ZoneMembers, AnAliasNameIsReadToItsTerminatorWhateverTheLength) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_alias_to_zone(0, 5, "zone-a", "alias-b")).returns(0);
  int32_t error = kUntouched;
  EXPECT_EQ(zs_cim_add_zoning_member(kQueue, 0, 5, 0, ZS_OBJECT_ZONE, 17, ZS_MEMBER_ALIAS,
                                     "alias-b", 2, &error),
            0);
}

TEST_F(ZoneMembers, AParentOfAnotherKindIsLookedUpButNothingIsSent) {
  Script script;
  script.expect(query_name_for_id(5, 1, 17)).gives("set-a");
  script.expect(query_name_for_id(5, 3, 17)).gives("what");
  EXPECT_EQ(change(1, ZS_OBJECT_ZONE_SET, ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, -1}));
  EXPECT_TRUE(was_printed("\t\t Zone Name in zs_cmi_add_zone_member set-a\n\t\t result -1\n"));
  EXPECT_EQ(change(1, static_cast<zs_object_kind>(3), ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, -1}));
}

TEST_F(ZoneMembers, AParentWithoutANameChangesNothing) {
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).fails(0x40200015);
  EXPECT_EQ(add_to_zone(ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, 0x40200015}));
  EXPECT_EQ(printed(),
            "\t add/remove zoning member 17 -- 1 -- 0 -- 8\n"
            "\t\t result (zs_cmi_get_name_for_id) 1075838997\n");
}

TEST_F(ZoneMembers, ARefusedMemberTellsTheZoneServersResult) {
  const Bytes member = joined({hex("01 00 08 00"), kWwn, zeros(16)});
  Script script;
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_zone_member(1, 5, "zone-a", member)).returns(0x40200031);
  script.expect(query_name_for_id(5, 2, 17)).gives("alias-a");
  script.expect(add_alias_member(1, 5, "alias-a", member)).returns(0x40200032);
  script.expect(query_name_for_id(5, 0, 17)).gives("zone-a");
  script.expect(add_alias_to_zone(1, 5, "zone-a", "b")).returns(0x40200033);
  EXPECT_EQ(change(1, ZS_OBJECT_ZONE, ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, 0x40200031}));
  EXPECT_EQ(change(1, ZS_OBJECT_ALIAS, ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, 0x40200032}));
  EXPECT_EQ(change(1, ZS_OBJECT_ZONE, ZS_MEMBER_ALIAS, hex("62 00")), (Outcome{-1, 0x40200033}));
}

TEST_F(ZoneMembers, ANegativeLengthOrNoValueAsksNothing) {
  int32_t error = kUntouched;
  EXPECT_EQ(zs_cim_add_zoning_member(kQueue, 1, 5, 0, ZS_OBJECT_ZONE, 17, ZS_MEMBER_UNSIZED_TEXT,
                                     kWwn.data(), -1, &error),
            -1);
  EXPECT_EQ(error, -1);
  error = kUntouched;
  EXPECT_EQ(zs_cim_add_zoning_member(kQueue, 1, 5, 0, ZS_OBJECT_ZONE, 17, ZS_MEMBER_PORT_WWN,
                                     nullptr, 8, &error),
            -1);
  EXPECT_EQ(error, -1);
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneMembers, WithoutMemoryNothingIsAsked) {
  ledger_.fail_nth(1, Heap::c);
  EXPECT_EQ(add_to_zone(ZS_MEMBER_PORT_WWN, kWwn), (Outcome{-1, -1}));
  ledger_.fail_none();
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneMembers, EveryFailingCallIsAFailure) {
  EXPECT_EQ(for_every_failing_exchange([](FailingExchange& failing) {
              Script script;
              expect_sent(script, joined({hex("01 00 08 00"), kWwn}));
              const Outcome outcome = add_to_zone(ZS_MEMBER_PORT_WWN, kWwn);
              EXPECT_EQ(outcome, failing.was_hit() ? (Outcome{-1, -1}) : kDone);
            }),
            3u);
}

TEST_F(ZoneMembers, EveryFailingAllocationIsAFailure) {
  EXPECT_EQ(for_every_failing_allocation([](FailingAllocation& failing) {
              Script script;
              if (failing.n() > 1) expect_sent(script, joined({hex("01 00 08 00"), kWwn}));
              const Outcome outcome =
                  failing.attempt([] { return add_to_zone(ZS_MEMBER_PORT_WWN, kWwn); });
              EXPECT_EQ(outcome, failing.was_hit() ? (Outcome{-1, -1}) : kDone);
            }),
            2u);
}

// ---- All parents

class MemberRemoval : public zoning_test::ZoningFixture {
 protected:
  // A bit set with the bits of these ids.
  static Bytes bits_of(const std::vector<uint32_t>& ids) {
    Bytes bits = zeros(260);
    bits[2] = 0x08;  // 2048 bits
    for (const uint32_t id : ids)
      bits[4 + (id - 1) / 8] |= static_cast<uint8_t>(1U << (id - 1) % 8);
    return bits;
  }
  static Record zone(uint32_t id, const std::vector<uint32_t>& members) {
    return Record(872).host32(0, 5).host32(4, id).put(84, bits_of(members));
  }
  static Record alias(uint32_t id, const std::vector<uint32_t>& members) {
    return Record(344).host32(0, 5).host32(4, id).put(84, bits_of(members));
  }
  static Bytes member_entry(uint8_t type, const Bytes& value) {
    return joined({Record(24).byte(20, type), value});
  }
  // The member of that id is a port WWN.
  static void expect_member(Script& script, int32_t parent_kind, uint32_t parent_id,
                            uint32_t member_id, const Bytes& wwn) {
    script.expect(read_member(5, 0, parent_kind, parent_id, member_id))
        .gives({member_entry(1, wwn)});
    script.expect(parse_any_member()).as(1, wwn);
  }
  static void expect_removal_from_zone(Script& script, uint32_t id, const char* name,
                                       int32_t result) {
    script.expect(query_name_for_id(5, 0, id)).gives(name);
    script.expect(add_zone_member(0, 5, name, sent())).returns(result);
  }
  static void expect_removal_from_alias(Script& script, uint32_t id, const char* name,
                                        int32_t result) {
    script.expect(query_name_for_id(5, 2, id)).gives(name);
    script.expect(add_alias_member(0, 5, name, sent())).returns(result);
  }
  static Bytes sent() { return joined({hex("01 00 08 00"), kWwn, zeros(16)}); }
  static Bytes other_wwn() { return hex("50 00 00 00 00 00 00 01"); }

  // Zones 4, 7 and 8, of which 4 and 8 hold the member, and aliases 1 and 2, which both hold it.
  static void expect_zones(Script& script) {
    script.expect(read_all_zones(5, 0)).gives({zone(4, {1}), zone(7, {1}), zone(8, {1, 3})});
    expect_member(script, 1, 4, 1, kWwn);
    expect_member(script, 1, 7, 1, other_wwn());
    expect_member(script, 1, 8, 1, other_wwn());
    expect_member(script, 1, 8, 3, kWwn);
  }
  static void expect_aliases(Script& script) {
    script.expect(read_all_aliases(5, 0)).gives({alias(1, {2}), alias(2, {1})});
    expect_member(script, 0, 1, 2, kWwn);
    expect_member(script, 0, 2, 1, kWwn);
  }
};

constexpr char kId[] = "5^2^210000E08B050504^0";

TEST_F(MemberRemoval, GoesThroughZonesThenAliasesEachFromTheLastToTheFirst) {
  Script script;
  expect_zones(script);
  expect_removal_from_zone(script, 8, "zone-8", 0);
  expect_removal_from_zone(script, 4, "zone-4", 0);
  expect_aliases(script);
  expect_removal_from_alias(script, 2, "alias-2", 0);
  expect_removal_from_alias(script, 1, "alias-1", 0);
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, kId), 0);
  EXPECT_EQ(out_.out().rfind("removing all zone member 5^2^210000E08B050504^0\n", 0), 0u);
  EXPECT_FALSE(was_printed("Fail to remove"));
}

TEST_F(MemberRemoval, AZoneOrAliasThatKeepsTheMemberIsSaidAndTheOthersAreGoneThrough) {
  Script script;
  expect_zones(script);
  expect_removal_from_zone(script, 8, "zone-8", 77);
  expect_removal_from_zone(script, 4, "zone-4", 0);
  expect_aliases(script);
  expect_removal_from_alias(script, 2, "alias-2", 0);
  script.expect(query_name_for_id(5, 2, 1)).fails(88);
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, kId), 0);
  EXPECT_TRUE(
      was_printed("Fail to remove zone member 5^2^210000E08B050504^0 from zone 8, Error:77\n"));
  EXPECT_TRUE(was_printed(
      "Fail to remove zone member 5^2^210000E08B050504^0 from zone alias  1, Error:88\n"));
  EXPECT_FALSE(was_printed("from zone 4"));
  EXPECT_FALSE(was_printed("from zone alias  2"));
}

TEST_F(MemberRemoval, AMemberInOtherLettersIsTheSame) {
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone(4, {1})});
  expect_member(script, 1, 4, 1, kWwn);
  expect_removal_from_zone(script, 4, "zone-4", 0);
  script.expect(read_all_aliases(5, 0)).gives_nothing();
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, "5^2^210000e08b050504^0"), 0);
}

TEST_F(MemberRemoval, AMemberOfTheActiveDatabaseIsRefused) {
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, "5^2^210000E08B050504^1"), -1);
  EXPECT_TRUE(out_.out().ends_with("Invalid Zone member 5^2^210000E08B050504^1\n"));
}

TEST_F(MemberRemoval, AnIdThatCannotBeReadIsRefused) {
  for (const char* id : {"", "5", "5^2^210000E08B050504", "5^101^210000E08B050504_0^0",
                         "5^2^short^0", "5^6^2045000DEC0A1B2C^0", "5^11^fc1/5: 7^0"}) {
    EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, id), -1);
    EXPECT_TRUE(out_.out().ends_with("Invalid Zone member " + std::string(id) + "\n")) << id;
  }
}

TEST_F(MemberRemoval, WithoutAnIdNothingIsAsked) {
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, nullptr), -1);
  EXPECT_EQ(printed(), "");
}

TEST_F(MemberRemoval, DatabasesThatCannotBeReadHoldNoParents) {
  Script script;
  script.expect(read_all_zones(5, 0)).fails(0x40200015);
  script.expect(read_all_aliases(5, 0)).fails(0x40200015);
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, kId), 0);
}

// The length of a symbolic name counts as that of the flag: two bytes of it are sent.
TEST_F(MemberRemoval, OfASymbolicNameTwoBytesAreSent) {
  const Bytes name = Record(256).text(0, "iqn.name");
  Script script;
  script.expect(read_all_zones(5, 0)).gives({zone(4, {1})});
  script.expect(read_member(5, 0, 1, 4, 1)).gives({member_entry(230, name)});
  script.expect(parse_any_member()).as(230, name);
  script.expect(query_name_for_id(5, 0, 4)).gives("zone-4");
  script
      .expect(
          add_zone_member(0, 5, "zone-4", joined({hex("e6 00 08 00"), hex("69 71"), zeros(22)})))
      .returns(0);
  script.expect(read_all_aliases(5, 0)).gives_nothing();
  EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, "5^12^iqn.name^0"), 0);
}

TEST_F(MemberRemoval, AnyFailingCallIsNoFailureOfTheWhole) {
  const size_t rounds = for_every_failing_exchange([](FailingExchange&) {
    Script script;
    expect_zones(script);
    expect_removal_from_zone(script, 8, "zone-8", 0);
    expect_removal_from_zone(script, 4, "zone-4", 0);
    expect_aliases(script);
    expect_removal_from_alias(script, 2, "alias-2", 0);
    expect_removal_from_alias(script, 1, "alias-1", 0);
    EXPECT_EQ(zs_cim_remove_zone_member_from_all_parents(kQueue, kId), 0);
  });
  EXPECT_GT(rounds, 16u);
}

// The allocations in their order: for the zones the member read, the copy of the zone and the
// member sent; the same for the aliases. Without memory for a copy the whole fails; a member that
// is not read or not sent stays where it is.
TEST_F(MemberRemoval, AnyFailingAllocationLeavesNothingBehind) {
  const size_t rounds = for_every_failing_allocation([](FailingAllocation& failing) {
    const size_t n = failing.n();
    Script script;
    script.expect(read_all_zones(5, 0)).gives({zone(4, {1})});
    script.expect(read_member(5, 0, 1, 4, 1)).gives({member_entry(1, kWwn)});
    if (n > 1) script.expect(parse_any_member()).as(1, kWwn);
    if (n > 3) expect_removal_from_zone(script, 4, "zone-4", 0);
    if (n != 2) {
      script.expect(read_all_aliases(5, 0)).gives({alias(1, {1})});
      script.expect(read_member(5, 0, 0, 1, 1)).gives({member_entry(1, kWwn)});
      if (n != 4) script.expect(parse_any_member()).as(1, kWwn);
      if (n < 4 || n > 6) expect_removal_from_alias(script, 1, "alias-1", 0);
    }
    const int32_t result =
        failing.attempt([] { return zs_cim_remove_zone_member_from_all_parents(kQueue, kId); });
    EXPECT_EQ(result, n == 2 || n == 5 ? -1 : 0);
  });
  EXPECT_EQ(rounds, 7u);
}

}  // namespace
