// What deletion takes away, for every kind of object and every type of member.
#include <algorithm>

#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;
using std::string_literals::operator""s;

class ZoningDeletion : public AgentTest {
 protected:
  static ObjectPath association(const char* cls, const char* first, const ObjectPath& one,
                                const char* second, const ObjectPath& other) {
    return {"", kNamespace, cls, {reference(first, one), reference(second, other)}};
  }
};

TEST_F(ZoningDeletion, AZoneGoesOutOfItsZoneSets) {
  EXPECT_EQ(client_->remove(instance("VEXOR_Zone", "1_1_0")), CMPI_RC_OK);
  EXPECT_EQ(client_->ids("VEXOR_Zone"), (Texts{"1_1_1", "1_2_1", "1_2_0"}));
  EXPECT_EQ(client_->ids(instance("VEXOR_ZoneSet", "1_1_0"), "VEXOR_ZoneMemberOfCollection"),
            (Texts{"1_2_0"}));
  EXPECT_EQ(client_->remove(instance("VEXOR_Zone", "1_1_0")), CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ZoningDeletion, ZoneSetsAndAliasesGo) {
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneSet", "1_1_0")), CMPI_RC_OK);
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneAlias", "1_1_0")), CMPI_RC_OK);
  EXPECT_EQ(client_->ids("VEXOR_ZoneSet"), (Texts{"1_1_1"}));
  EXPECT_EQ(client_->ids("VEXOR_ZoneAlias"), (Texts{"1_1_1"}));
}

TEST_F(ZoningDeletion, TheActiveDatabaseIsNotEdited) {
  const auto before = control::fabric();
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneSet", "1_1_1")), CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(client_->remove(instance("VEXOR_Zone", "1_1_1")), CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneAlias", "1_1_1")), CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneMemberSettingData", "1^2^2100001122334401^1")),
            CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(client_->remove(association("VEXOR_ZoneMemberOfCollection", "Collection",
                                        instance("VEXOR_ZoneSet", "1_1_1"), "Member",
                                        instance("VEXOR_Zone", "1_1_1"))),
            CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(client_->remove(association(
                "VEXOR_ZoneElementSettingData", "ManagedElement", instance("VEXOR_Zone", "1_1_1"),
                "SettingData", instance("VEXOR_ZoneMemberSettingData", "1^2^2100001122334401^1"))),
            CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(control::fabric(), before);
}

TEST_F(ZoningDeletion, WhatDoesNotExistIsNotFoundAndChangesNothing) {
  const auto before = control::fabric();
  for (const char* id : {"1_9_0", "2_1_0", "9_1_0", "1_x_0", ""})
    EXPECT_EQ(client_->remove(instance("VEXOR_Zone", id)), CMPI_RC_ERR_NOT_FOUND) << id;
  for (const char* id : {"1^2^2100001122334499^0", "2^2^2100001122334401^0", "1^2^x^0", "x"})
    EXPECT_EQ(client_->remove(instance("VEXOR_ZoneMemberSettingData", id)), CMPI_RC_ERR_NOT_FOUND)
        << id;
  // Both are there, but not in each other.
  EXPECT_EQ(client_->remove(association(
                "VEXOR_ZoneElementSettingData", "ManagedElement", instance("VEXOR_Zone", "1_2_0"),
                "SettingData", instance("VEXOR_ZoneMemberSettingData", "1^2^2100001122334401^0"))),
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(client_->remove(association("VEXOR_ZoneMemberOfCollection", "Collection",
                                        instance("VEXOR_ZoneSet", "1_1_0"), "Member",
                                        instance("VEXOR_ZoneAlias", "1_1_0"))),
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(client_->remove(association("VEXOR_ZoneHostedCollection", "Antecedent",
                                        instance("VEXOR_ZoneSet", "1_1_0"), "Dependent",
                                        instance("VEXOR_Zone", "1_1_0"))),
            CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(control::fabric(), before);
}

TEST_F(ZoningDeletion, MembershipsEndAndTheObjectsStay) {
  EXPECT_EQ(client_->remove(association("VEXOR_ZoneMemberOfCollection", "Collection",
                                        instance("VEXOR_ZoneSet", "1_1_0"), "Member",
                                        instance("VEXOR_Zone", "1_2_0"))),
            CMPI_RC_OK);
  EXPECT_EQ(client_->remove(association("VEXOR_ZoneMemberOfCollection", "Collection",
                                        instance("VEXOR_Zone", "1_1_0"), "Member",
                                        instance("VEXOR_ZoneAlias", "1_1_0"))),
            CMPI_RC_OK);
  const auto fabric = control::fabric();
  const ZoneDatabase& full = *zoning(fabric).full;
  EXPECT_EQ(full.zone_sets().find(1)->zones, std::vector<uint32_t>{1});
  EXPECT_TRUE(full.zones().find(1)->aliases.empty());
  EXPECT_EQ(full.zones().size(), 2u);
  EXPECT_EQ(full.aliases().size(), 1u);
}

// ---- members ----

struct Packed {
  uint8_t type;
  std::string value;
};

// Members of every type that is shown, and numbers at their ends.
const Packed kMembers[] = {
    {1, "\x21\x00\x00\x24\xff\x3a\x1b\x01"s},
    {2, "\x03\x00\x00\x00"s},
    {2, "\xff\x00\x00\xff"s},
    {3, "\x00\x01\x0a\x00"s},
    {225, "\x21\x00\x00\x24\xff\x3a\x1b\x01\x00\x01\x00\x00\x00\x00\x00\x00"s},
    {227, "\x00\x01\x0a\x00\x00\x01\x00\x00\x00\x00\x00\x00"s},
    {228, "host"s},
    {228, std::string(200, 'x') + "1"},
    {229, "\x20\x00\x00\x24\xff\x3a\x1b\x01"s},
    {230, "node name"s},
    {230, std::string(200, 'x') + "2"},
    {231, "\x20\x45\x00\x0d\xec\x0a\x1b\x2c"s},
    {232, "\x0a\x00\x00\x01\xff\xff\xff\x00"s},
    {233, "\x20\x45\xff\xff\xff\xff\xff\xff\x07\x00\x00\x00"s},
    {234, "\x00\x00\x00\x02\x20\x01\x0d\xb8\0\0\0\0\0\0\0\0\0\0\0\x01\x00\x00\x00\x80"s},
    {234, "\x00\x00\x00\x02\x20\x01\x0d\xb8\0\0\0\0\0\0\0\0\0\0\0\x00\x00\x00\x00\x20"s},
    {235, "device alias"s},
    {241, "\x21\x00\x00\x24\xff\x3a\x1b\x02\x00\x01\x00\x00\x00\x00\x00\x00"s},
    {243, "\x00\x01\x0a\x01\x00\x01\x00\x00\x00\x00\x00\x00"s},
};

class MemberDeletion : public ZoningDeletion {
 protected:
  void SetUp() override {
    ZoningDeletion::SetUp();
    auto fabric = control::fabric();
    ZoneDatabase& full = fabric.vsans.at(0).zoning.change().full.change();
    ASSERT_EQ(full.create(ZoningKind::zone, "mixed"), 0);
    ASSERT_EQ(full.create(ZoningKind::alias, "mixed"), 0);
    for (const Packed& each : kMembers) {
      ASSERT_EQ(full.add_member(ZoningKind::zone, 3, {0, each.type, each.value}), 0);
      ASSERT_EQ(full.add_member(ZoningKind::alias, 2, {0, each.type, each.value}), 0);
    }
    ASSERT_EQ(control::install(fabric), std::nullopt);
  }
};

TEST_F(MemberDeletion, EveryTypeIsRemovedEverywhere) {
  const ObjectPath zone = instance("VEXOR_Zone", "1_3_0");
  const Texts members = client_->ids(zone, "VEXOR_ZoneElementSettingData");
  EXPECT_EQ(members.size(), std::size(kMembers));
  for (const std::string& id : members) {
    const CMPIrc code = client_->remove(instance("VEXOR_ZoneMemberSettingData", id));
    // The two long texts have the same name: the second is gone with the first.
    EXPECT_TRUE(code == CMPI_RC_OK ||
                (code == CMPI_RC_ERR_NOT_FOUND && id.find("xxx") != std::string::npos))
        << id;
  }
  const auto fabric = control::fabric();
  EXPECT_TRUE(zoning(fabric).full->zones().find(3)->members.empty());
  EXPECT_TRUE(zoning(fabric).full->aliases().find(2)->members.empty());
  // Those of the others are there.
  EXPECT_EQ(zoning(fabric).full->members(), 4u);
}

TEST_F(MemberDeletion, EveryTypeIsRemovedFromOneAliasOnly) {
  const ObjectPath alias = instance("VEXOR_ZoneAlias", "1_2_0");
  for (const std::string& id : client_->ids(alias, "VEXOR_ZoneElementSettingData"))
    client_->remove(association("VEXOR_ZoneElementSettingData", "ManagedElement", alias,
                                "SettingData", instance("VEXOR_ZoneMemberSettingData", id)));
  const auto fabric = control::fabric();
  EXPECT_TRUE(zoning(fabric).full->aliases().find(2)->members.empty());
  EXPECT_EQ(zoning(fabric).full->zones().find(3)->members.size(), std::size(kMembers));
}

TEST_F(MemberDeletion, EveryTypeIsAddedToAnotherZone) {
  const std::string other = client_->create_zone("other");
  const Texts members =
      client_->ids(instance("VEXOR_Zone", "1_3_0"), "VEXOR_ZoneElementSettingData", "");
  for (const std::string& id : members)
    client_->call(
        "AddZoneMembershipSettingData",
        {reference("SystemSpecificCollection", instance("VEXOR_Zone", other)),
         reference("ZoneMembershipSettingData", instance("VEXOR_ZoneMemberSettingData", id))});
  // One of the two long texts, for their name is the same.
  Texts expected = members;
  const auto is_long = [](const std::string& id) { return id.find("xxx") != std::string::npos; };
  expected.erase(std::find_if(std::find_if(expected.begin(), expected.end(), is_long) + 1,
                              expected.end(), is_long));
  EXPECT_EQ(client_->ids(instance("VEXOR_Zone", other), "VEXOR_ZoneElementSettingData"), expected);
}

TEST_F(ZoningDeletion, AnAliasNameAsAMemberOfAnAliasIsLeftAlone) {
  auto fabric = control::fabric();
  ZoneDatabase& full = fabric.vsans.at(0).zoning.change().full.change();
  // A zone of the alias's name that holds the alias "arrays" must not lose it.
  ASSERT_EQ(full.create(ZoningKind::alias, "backup"), 0);
  ASSERT_EQ(full.add_member(ZoningKind::alias, 2, {0, 4, "arrays"}), 0);
  ASSERT_EQ(control::install(fabric), std::nullopt);
  const auto before = control::fabric();
  EXPECT_EQ(client_->remove(instance("VEXOR_ZoneMemberSettingData", "1^5^arrays^0")),
            CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(control::fabric(), before);
}

}  // namespace
