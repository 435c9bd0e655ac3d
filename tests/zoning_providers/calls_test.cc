// What the zone server is asked, in which order and with which arguments.
#include "tests/zoning_providers/zoning_fixture.h"

namespace {

using namespace zoning_provider_tests;

class ZoningCalls : public ZoningFixture {};

// ---- methods ----

TEST_F(ZoningCalls, AZoneIsMadeAndItsPathGivenBack) {
  Script script;
  script.expect(create_zoning_object(1, 1, 0, "web")).returns(0);
  script.expect(query_id_for_name(1, 0, "web")).gives(7);
  script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web")});
  EXPECT_EQ(call("CreateZone", in().text("ZoneName", "web")), "uint32 0");
  EXPECT_EQ(given_back("Zone"), "root/cimv2:VEXOR_Zone.InstanceID=\"1_7_0\"");
}

TEST_F(ZoningCalls, AZoneSetIsMadeAndItsPathGivenBack) {
  Script script;
  script.expect(create_zoning_object(1, 1, 1, "lab")).returns(0);
  script.expect(query_id_for_name(1, 1, "lab")).gives(2);
  script.expect(read_zone_set(1, 0, 2)).gives({zone_set_entry(1, 2, "lab")});
  EXPECT_EQ(call("CreateZoneSet", in().text("ZoneSetName", "lab")), "uint32 0");
  EXPECT_EQ(given_back("ZoneSet"), "root/cimv2:VEXOR_ZoneSet.InstanceID=\"1_2_0\"");
}

TEST_F(ZoningCalls, AnAliasIsMadeAndItsPathGivenBack) {
  Script script;
  script.expect(create_zoning_object(1, 1, 2, "disks")).returns(0);
  script.expect(query_id_for_name(1, 2, "disks")).gives(3);
  script.expect(read_alias(1, 0, 3)).gives({alias_entry(1, 3, "disks")});
  EXPECT_EQ(call("CreateZoneAlias", in().text("CollectionAlias", "disks")), "uint32 0");
  EXPECT_EQ(given_back("ZoneAlias"), "root/cimv2:VEXOR_ZoneAlias.InstanceID=\"1_3_0\"");
}

TEST_F(ZoningCalls, EveryResultOfTheZoneServerHasAReturnValue) {
  const std::pair<int32_t, const char*> kResults[] = {
      {0x40200001, "uint32 7"}, {0x40200002, "uint32 7"}, {0x40200003, "uint32 7"},
      {0x40200004, "uint32 8"}, {0x40200005, "uint32 8"}, {0x40200006, "uint32 5"},
      {0x40200007, "uint32 5"}, {0x40200008, "uint32 5"}, {0x40200009, "uint32 4"},
      {0x40200011, "uint32 9"}, {0x40200012, "uint32 9"}, {0x40200013, "uint32 9"},
      {0x40200014, "uint32 9"}, {0x40200015, "uint32 9"}, {0x40209999, "uint32 4"},
      {-1, "uint32 4"},
  };
  for (const auto& [result, expected] : kResults) {
    Script script;
    script.expect(create_zoning_object(1, 1, 0, "web")).returns(result);
    EXPECT_EQ(call("CreateZone", in().text("ZoneName", "web")), expected) << std::hex << result;
    EXPECT_EQ(given_back("Zone"), "nothing");
  }
}

TEST_F(ZoningCalls, AZoneThatCannotBeReadBackIsAFailureWithoutAPath) {
  Script script;
  script.expect(create_zoning_object(1, 1, 0, "web")).returns(0);
  script.expect(query_id_for_name(1, 0, "web")).returns(-1);
  EXPECT_EQ(call("CreateZone", in().text("ZoneName", "web")), "uint32 4");
  EXPECT_EQ(given_back("Zone"), "nothing");
}

TEST_F(ZoningCalls, AZoneGoesIntoAZoneSetByTheirNames) {
  Script script;
  script.expect(query_name_for_id(1, 1, 2)).gives("lab");
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(add_zone_to_zone_set(1, 1, "lab", "web")).returns(0);
  EXPECT_EQ(call("AddZone",
                 in().reference("ZoneSet", zone_set("1_2_0")).reference("Zone", zone("1_7_0"))),
            "uint32 0");
}

TEST_F(ZoningCalls, AnAliasGoesIntoAZoneByTheirNames) {
  Script script;
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(query_name_for_id(1, 2, 3)).gives("disks");
  script.expect(add_alias_to_zone(1, 1, "web", "disks")).returns(0);
  EXPECT_EQ(call("AddZoneAlias",
                 in().reference("Zone", zone("1_7_0")).reference("ZoneAlias", alias("1_3_0"))),
            "uint32 0");
}

TEST_F(ZoningCalls, AMemberGoesIntoAnAlias) {
  Script script;
  script.expect(query_name_for_id(1, 2, 3)).gives("disks");
  script
      .expect(add_alias_member(1, 1, "disks",
                               joined({hex("01 00 08 00 21 00 00 24 ff 3a 1b 01"), zeros(16)})))
      .returns(0);
  EXPECT_EQ(call("CreateZoneMembershipSettingData",
                 in().number("ConnectivityMemberType", 2)
                     .text("ConnectivityMemberID", "21000024FF3A1B01")
                     .reference("SystemSpecificCollection", alias("1_3_0"))),
            "uint32 0");
  EXPECT_EQ(given_back("ZoneMembershipSettingData"),
            "root/cimv2:VEXOR_ZoneMemberSettingData.InstanceID=\"1^2^21000024FF3A1B01^0\"");
}

TEST_F(ZoningCalls, ASymbolicNameIsSentWithItsTerminator) {
  const char* name = "a node with a name of 40 characters, yes";
  Script script;
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(add_zone_member(1, 1, "web", joined({hex("e6 00 08 00"), terminated(name)})))
      .returns(0);
  EXPECT_EQ(call("CreateZoneMembershipSettingData",
                 in().number("ConnectivityMemberType", 12)
                     .text("ConnectivityMemberID", name)
                     .reference("SystemSpecificCollection", zone("1_7_0"))),
            "uint32 0");
}

TEST_F(ZoningCalls, AMemberOfTypeAliasPutsTheAliasIntoTheZoneAndIsNone) {
  Script script;
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(add_alias_to_zone(1, 1, "web", "disks")).returns(0);
  EXPECT_EQ(call("CreateZoneMembershipSettingData",
                 in().number("ConnectivityMemberType", 5)
                     .text("ConnectivityMemberID", "disks")
                     .reference("SystemSpecificCollection", zone("1_7_0"))),
            "uint32 0");
  EXPECT_EQ(given_back("ZoneMembershipSettingData"), "nothing");
}

TEST_F(ZoningCalls, AZoneSetOfEitherDatabaseIsActivatedByItsName) {
  for (const int32_t active : {0, 1}) {
    Script script;
    script.expect(read_zone_set(1, active, 2)).gives({zone_set_entry(1, 2, "lab")});
    script.expect(query_name_for_id(1, 1, 2)).active(active).gives("lab");
    script.expect(activate_zone_set(1, 1, "lab")).returns(0);
    EXPECT_EQ(
        call("ActivateZoneSet", in().reference("ZoneSet", zone_set(active != 0 ? "1_2_1" : "1_2_0"))
                                    .flag("Activate", true)),
        "uint32 0");
  }
}

TEST_F(ZoningCalls, ADeactivationOfAZoneSetThatIsNotActiveIsDone) {
  Script script;
  script.expect(read_zone_set(1, 0, 2)).gives({zone_set_entry(1, 2, "lab")});
  script.expect(query_name_for_id(1, 1, 2)).gives("lab");
  script.expect(activate_zone_set(0, 1, "lab")).returns(0x40200039);
  EXPECT_EQ(
      call("ActivateZoneSet", in().reference("ZoneSet", zone_set("1_2_0")).flag("Activate", false)),
      "uint32 0");
}

TEST_F(ZoningCalls, AZoneServerThatDoesNotAnswerIsNoZoneSetThatIsNotThere) {
  Script script;
  script.expect(read_zone_set(1, 0, 2)).returns(-1);
  const Outcome answer =
      invoke(service(), "ActivateZoneSet",
             in().reference("ZoneSet", zone_set("1_2_0")).flag("Activate", true).args,
             broker_.arguments());
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the zone server does not give the zone sets of VSAN 1 (status -1)");
}

TEST_F(ZoningCalls, DistributionReturnsWhatTheZoneServerSays) {
  const std::pair<int32_t, const char*> kResults[] = {
      {0, "uint32 0"},          {0x40200079, "uint32 0"}, {0x40200091, "uint32 32913"},
      {0x40200001, "uint32 7"}, {0x40010006, "uint32 4"}, {0x40210000, "uint32 4"},
      {-1, "uint32 4"},
  };
  for (const auto& [result, expected] : kResults) {
    Script script;
    script.text_for("syserr2str", 0x40200091, "nothing to distribute");
    script.expect(distribute_zone_set(1)).returns(result);
    EXPECT_EQ(call("DistributeZoneSet", in()), expected) << std::hex << result;
  }
}

TEST_F(ZoningCalls, SessionsAreNotSupportedAndNobodyIsAsked) {
  const Script script;
  for (const uint16_t state : {2, 3, 4, 9})
    EXPECT_EQ(call("SessionControl", in().number("RequestedSessionState", state)), "uint32 1");
}

// ---- deletion ----

TEST_F(ZoningCalls, AZoneIsReadAndDeletedByItsName) {
  Script script;
  script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web")});
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(create_zoning_object(0, 1, 0, "web")).returns(0);
  EXPECT_EQ(remove(zone("1_7_0")).code, CMPI_RC_OK);
}

TEST_F(ZoningCalls, ARefusedDeletionIsReported) {
  Script script;
  script.expect(read_alias(1, 0, 3)).gives({alias_entry(1, 3, "disks")});
  script.expect(query_name_for_id(1, 2, 3)).gives("disks");
  script.expect(create_zoning_object(0, 1, 2, "disks")).returns(0x40010006);
  const Outcome answer = remove(alias("1_3_0"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the zone server does not delete zone alias 1_3_0 (status 1073807366)");
}

TEST_F(ZoningCalls, WhatIsActiveIsNotDeleted) {
  Script script;
  script.expect(read_zone_set(1, 1, 2)).gives({zone_set_entry(1, 2, "lab")});
  const Outcome answer = remove(zone_set("1_2_1"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(answer.message,
            "zone set 1_2_1 is in the active database, which changes with the activation of a zone "
            "set only");
}

// A member of zone 7: the reads in which it is found there.
class ZoningMemberCalls : public ZoningCalls {
 protected:
  void expect_member(Script& script) {
    script.expect(read_member(1, 0, kInZone, 7, 2)).gives({entry_});
    script.expect(parse_member(head_of(entry_))).as(entry_[20], value_);
  }
  void expect_in_all_zones(Script& script) {
    script.expect(read_all_zones(1, 0)).gives({zone_entry(1, 7, "web", {.members = {2}})});
    expect_member(script);
  }
  void expect_in_its_zone(Script& script) {
    script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web", {.members = {2}})});
    expect_member(script);
  }
  void expect_removal(Script& script, const Bytes& sent, int32_t result = 0) {
    script.expect(query_name_for_id(1, 0, 7)).gives("web");
    script.expect(add_zone_member(0, 1, "web", sent)).returns(result);
  }
  void hold(uint8_t type, const Bytes& value) {
    value_ = value;
    entry_ = member_entry(type, value);
  }

  Bytes value_;
  Bytes entry_;
};

TEST_F(ZoningMemberCalls, ASymbolicNameIsRemovedWithItsWholeText) {
  const char* name = "a node with a name of 40 characters, yes";
  hold(230, Record(256).text(0, name));
  value_ = terminated(name);
  Script script;
  expect_in_all_zones(script);
  expect_in_its_zone(script);
  expect_in_all_zones(script);
  expect_in_its_zone(script);
  script.expect(read_all_aliases(1, 0)).gives_nothing();
  expect_removal(script, joined({hex("e6 00 08 00"), terminated(name)}));
  script.expect(read_all_zones(1, 0)).gives({zone_entry(1, 7, "web")});
  script.expect(read_all_aliases(1, 0)).gives_nothing();
  EXPECT_EQ(remove(member("1^12^a node with a name of 40 characters, yes^0")).code, CMPI_RC_OK);
}

TEST_F(ZoningMemberCalls, AMemberThatAnAliasKeepsIsPutBackIntoTheZone) {
  hold(1, hex("21 00 00 24 ff 3a 1b 01"));
  const Bytes sent = joined({hex("01 00 08 00 21 00 00 24 ff 3a 1b 01"), zeros(16)});
  const auto in_alias = [&](Script& script) {
    script.expect(read_member(1, 0, kInAlias, 3, 2)).gives({entry_});
    script.expect(parse_member(head_of(entry_))).as(entry_[20], value_);
  };
  Script script;
  expect_in_all_zones(script);
  expect_in_its_zone(script);
  expect_in_all_zones(script);
  expect_in_its_zone(script);
  script.expect(read_all_aliases(1, 0)).gives({alias_entry(1, 3, "disks", {2})});
  in_alias(script);
  script.expect(read_alias(1, 0, 3)).gives({alias_entry(1, 3, "disks", {2})});
  in_alias(script);
  expect_removal(script, sent);
  script.expect(query_name_for_id(1, 2, 3)).gives("disks");
  script.expect(add_alias_member(0, 1, "disks", sent)).returns(0x40010006);
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(add_zone_member(1, 1, "web", sent)).returns(0);
  const Outcome answer = remove(member("1^2^21000024FF3A1B01^0"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message,
            "the zone server does not remove zone member 1^2^21000024FF3A1B01^0 everywhere (status "
            "1073807366)");
}

TEST_F(ZoningMemberCalls, ATextThatIsNoSymbolicNameIsRemovedAsTheOtherType) {
  hold(228, Record(256).text(0, "host"));
  value_ = terminated("host");
  Script script;
  expect_in_its_zone(script);
  expect_in_its_zone(script);
  expect_removal(script, joined({hex("e6 00 08 00"), terminated("host"), zeros(19)}), 0x40200003);
  expect_removal(script, joined({hex("e4 00 08 00"), terminated("host"), zeros(19)}));
  EXPECT_EQ(remove(association("VEXOR_ZoneElementSettingData", "ManagedElement", zone("1_7_0"),
                               "SettingData", member("1^12^host^0")))
                .code,
            CMPI_RC_OK);
}

TEST_F(ZoningMemberCalls, AnInterfaceIsRemovedByItsPortWwn) {
  hold(231, hex("20 45 00 0d ec 0a 1b 2c"));
  Script script;
  expect_in_its_zone(script);
  expect_in_its_zone(script);
  expect_removal(script, joined({hex("e7 00 08 00 20 45 00 0d ec 0a 1b 2c"), zeros(16)}));
  EXPECT_EQ(remove(association("VEXOR_ZoneElementSettingData", "ManagedElement", zone("1_7_0"),
                               "SettingData", member("1^6^2045000DEC0A1B2C^0")))
                .code,
            CMPI_RC_OK);
}

TEST_F(ZoningMemberCalls, ARefusedRemovalIsReported) {
  hold(1, hex("21 00 00 24 ff 3a 1b 01"));
  Script script;
  expect_in_its_zone(script);
  expect_in_its_zone(script);
  expect_removal(script, joined({hex("01 00 08 00 21 00 00 24 ff 3a 1b 01"), zeros(16)}),
                 0x40010006);
  const Outcome answer =
      remove(association("VEXOR_ZoneElementSettingData", "ManagedElement", zone("1_7_0"),
                         "SettingData", member("1^2^21000024FF3A1B01^0")));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message,
            "the zone server does not take 1^2^21000024FF3A1B01^0 out of zone 1_7_0 (status "
            "1073807366)");
}

TEST_F(ZoningMemberCalls, AMemberIsGotInAnyCaseOfItsLettersAndSpelledAsAsked) {
  hold(1, hex("21 00 00 24 ff 3a 1b 01"));
  Script script;
  expect_in_all_zones(script);
  expect_in_its_zone(script);
  EXPECT_EQ(get(member("1^2^21000024ff3a1b01^0")).returned.instances,
            (Texts{"VEXOR_ZoneMemberSettingData {InstanceID=\"1^2^21000024ff3a1b01^0\", "
                   "ConnectivityMemberID=\"21000024FF3A1B01\", ConnectivityMemberType=uint16 2}"}));
}

TEST_F(ZoningMemberCalls, AZoneLeavesAZoneSetByTheirNames) {
  Script script;
  script.expect(read_zone_set(1, 0, 2)).gives({zone_set_entry(1, 2, "lab", {7})});
  script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web")});
  script.expect(query_name_for_id(1, 1, 2)).gives("lab");
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(add_zone_to_zone_set(0, 1, "lab", "web")).returns(0);
  EXPECT_EQ(remove(association("VEXOR_ZoneMemberOfCollection", "Collection", zone_set("1_2_0"),
                               "Member", zone("1_7_0")))
                .code,
            CMPI_RC_OK);
}

TEST_F(ZoningMemberCalls, AnAliasLeavesAZoneByTheirNames) {
  Script script;
  script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web", {.aliases = {3}})});
  script.expect(read_alias(1, 0, 3)).gives({alias_entry(1, 3, "disks")});
  script.expect(query_name_for_id(1, 0, 7)).gives("web");
  script.expect(query_name_for_id(1, 2, 3)).gives("disks");
  script.expect(add_alias_to_zone(0, 1, "web", "disks")).returns(0);
  EXPECT_EQ(remove(association("VEXOR_ZoneMemberOfCollection", "Collection", zone("1_7_0"),
                               "Member", alias("1_3_0")))
                .code,
            CMPI_RC_OK);
}

// ---- failures of reads ----

TEST_F(ZoningCalls, AReadThatFailsIsAFailureOfTheRequest) {
  Script script;
  script.expect(read_all_zones(1, 1)).returns(0x40010006);
  const Outcome answer = enumerate("VEXOR_Zone");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message,
            "the zone server does not give the zones of VSAN 1 (status 1073807366)");
}

TEST_F(ZoningCalls, AVsanThatTheZoneServerDoesNotKnowHasNoZoning) {
  Script script;
  script.expect(read_all_zone_sets(1, 1)).returns(0x40200001);
  script.expect(read_all_zone_sets(1, 0)).gives({zone_set_entry(1, 2, "lab")});
  EXPECT_EQ(enumerate("VEXOR_ZoneSet").returned.instances,
            (Texts{"VEXOR_ZoneSet {InstanceID=\"1_2_0\", ElementName=\"lab\", Active=false}"}));
}

TEST_F(ZoningCalls, ChildrenThatCannotBeReadAreAFailureAndNoneIsNot) {
  {
    Script script;
    script.expect(read_zone(1, 0, 7)).returns(-1);
    script.expect(read_zone(1, 0, 7)).gives({zone_entry(1, 7, "web")});
    const Outcome answer =
        associator_names(zone("1_7_0"), {.association = "VEXOR_ZoneElementSettingData"});
    EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(answer.message, "the members of zone 1_7_0 cannot be read");
  }
  Script script;
  script.expect(read_zone_set(1, 0, 2)).gives({zone_set_entry(1, 2, "lab")});
  script.expect(read_zone_set(1, 0, 2)).gives({zone_set_entry(1, 2, "lab")});
  const Outcome empty =
      associator_names(zone_set("1_2_0"), {.association = "VEXOR_ZoneMemberOfCollection"});
  EXPECT_EQ(empty.code, CMPI_RC_OK);
  EXPECT_EQ(empty.returned.paths, Texts{});
}

}  // namespace
