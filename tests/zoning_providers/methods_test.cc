// What the methods of the zone service change, and what they leave alone.
#include <algorithm>
#include <tuple>

#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;

// The default fabric: zone set 1 "production" with zones 1 and 2, alias 1 "arrays" in both, active.
class ZoneServiceMethods : public AgentTest {
 protected:
  // A call that returns `expected` and changes nothing.
  void expect_refused(uint64_t expected, const char* method, const Arguments& arguments) {
    const auto before = control::fabric();
    EXPECT_EQ(client_->call(method, arguments), expected) << method;
    EXPECT_EQ(client_->made(), "");
    EXPECT_EQ(control::fabric(), before) << method;
  }
  static NamedData zone_set(const std::string& id) {
    return reference("ZoneSet", instance("VEXOR_ZoneSet", id));
  }
  static NamedData zone(const std::string& id) {
    return reference("Zone", instance("VEXOR_Zone", id));
  }
  static NamedData alias(const std::string& id) {
    return reference("ZoneAlias", instance("VEXOR_ZoneAlias", id));
  }
  static NamedData into_zone(const std::string& id) {
    return reference("SystemSpecificCollection", instance("VEXOR_Zone", id));
  }
  static NamedData member(const std::string& id) {
    return reference("ZoneMembershipSettingData", instance("VEXOR_ZoneMemberSettingData", id));
  }
};

TEST_F(ZoneServiceMethods, WhatTheyMakeIsThere) {
  EXPECT_EQ(client_->create_zone("web"), "1_3_0");
  EXPECT_EQ(client_->call("CreateZoneSet", {text("ZoneSetName", "lab")}), 0u);
  EXPECT_EQ(client_->made(), "1_2_0");
  EXPECT_EQ(client_->call("CreateZoneAlias", {text("CollectionAlias", "disks")}), 0u);
  EXPECT_EQ(client_->made(), "1_2_0");
  EXPECT_EQ(client_->call("AddZone", {zone_set("1_2_0"), zone("1_3_0")}), 0u);
  EXPECT_EQ(client_->call("AddZoneAlias", {zone("1_3_0"), alias("1_2_0")}), 0u);
  const auto fabric = control::fabric();
  const ZoneDatabase& full = *zoning(fabric).full;
  ASSERT_NE(full.zone_sets().find(2), nullptr);
  EXPECT_EQ(full.zone_sets().find(2)->name, "lab");
  EXPECT_EQ(full.zone_sets().find(2)->zones, std::vector<uint32_t>{3});
  EXPECT_EQ(full.zones().find(3)->name, "web");
  EXPECT_EQ(full.zones().find(3)->aliases, std::vector<uint32_t>{2});
  EXPECT_EQ(full.aliases().find(2)->name, "disks");
}

TEST_F(ZoneServiceMethods, EveryTypeOfMemberIsPackedAsItsTextSays) {
  struct Case {
    unsigned type;
    const char* text;
    uint8_t kept_type;
    std::string value;
    const char* instance_id;
  };
  using std::string_literals::operator""s;
  const Case kCases[] = {
      {2, "21000024FF3A1B01", 1, "\x21\x00\x00\x24\xff\x3a\x1b\x01"s, "1^2^21000024FF3A1B01^0"},
      {3, "010A00", 3, "\x00\x01\x0a\x00"s, "1^3^010a00^0"},
      {4, "3:5", 2, "\x03\x00\x00\x05"s, "1^4^03:05^0"},
      {4, "239:255", 2, "\xef\x00\x00\xff"s, "1^4^239:255^0"},
      {6, "fc1/5", 231, "\x20\x45\x00\x0d\xec\x0a\x1b\x2c"s, "1^6^2045000DEC0A1B2C^0"},
      {7, "20000024FF3A1B01", 229, "\x20\x00\x00\x24\xff\x3a\x1b\x01"s, "1^7^20000024FF3A1B01^0"},
      {8, "10.0.0.1/255.255.255.0", 232, "\x0a\x00\x00\x01\xff\xff\xff\x00"s,
       "1^8^10.0.0.1/255.255.255.0^0"},
      {9, "2001:db8::1", 234,
       "\x00\x00\x00\x02\x20\x01\x0d\xb8\0\0\0\0\0\0\0\0\0\0\0\x01\x00\x00\x00\x80"s,
       "1^9^2001:db8::1^0"},
      {10, "fc1/6;20000005300084DF", 231, "\x20\x46\x00\x05\x30\x00\x84\xdf"s,
       "1^6^20460005300084DF^0"},
      {11, "fc1/5;7", 233, "\x20\x45\xff\xff\xff\xff\xff\xff\x07\x00\x00\x00"s, "1^11^fc1/5: 7^0"},
      {12, "a node", 230, "a node", "1^12^a node^0"},
  };
  const std::string id = client_->create_zone("web");
  size_t count = 0;
  for (const Case& each : kCases) {
    EXPECT_EQ(client_->call("CreateZoneMembershipSettingData",
                            {number("ConnectivityMemberType", each.type),
                             text("ConnectivityMemberID", each.text), into_zone(id)}),
              0u)
        << each.text;
    EXPECT_EQ(client_->made(), each.instance_id);
    const auto fabric = control::fabric();
    const auto& members = zoning(fabric).full->zones().find(3)->members;
    ASSERT_EQ(members.size(), ++count) << each.text;
    EXPECT_EQ(members.back().type, each.kept_type) << each.text;
    EXPECT_EQ(members.back().value, each.value) << each.text;
    // The path that is given back names it.
    EXPECT_NO_THROW(
        client_->manager().get_instance(instance("VEXOR_ZoneMemberSettingData", each.instance_id)));
  }
}

TEST_F(ZoneServiceMethods, AMemberThatIsThereGoesIntoAnotherZone) {
  const std::string id = client_->create_zone("web");
  EXPECT_EQ(client_->call("AddZoneMembershipSettingData",
                          {into_zone(id), member("1^2^2100001122334401^0")}),
            0u);
  EXPECT_EQ(client_->ids(instance("VEXOR_Zone", id), "VEXOR_ZoneElementSettingData"),
            (Texts{"1^2^2100001122334401^0"}));
  EXPECT_EQ(client_->ids(instance("VEXOR_ZoneMemberSettingData", "1^2^2100001122334401^0"), ""),
            (Texts{"1_1_0", "1_3_0"}));
  expect_refused(8, "AddZoneMembershipSettingData",
                 {into_zone(id), member("1^2^2100001122334401^0")});
  expect_refused(7, "AddZoneMembershipSettingData",
                 {into_zone(id), member("1^2^2100001122334499^0")});
}

TEST_F(ZoneServiceMethods, WhatIsThereAlreadyIsRefused) {
  expect_refused(8, "CreateZone", {text("ZoneName", "backup")});
  expect_refused(8, "CreateZoneSet", {text("ZoneSetName", "production")});
  expect_refused(8, "CreateZoneAlias", {text("CollectionAlias", "arrays")});
  expect_refused(8, "AddZone", {zone_set("1_1_0"), zone("1_1_0")});
  expect_refused(8, "AddZoneAlias", {zone("1_1_0"), alias("1_1_0")});
}

TEST_F(ZoneServiceMethods, WhatIsNotThereAnyMoreIsNotFound) {
  expect_refused(7, "AddZone", {zone_set("1_1_0"), zone("1_3_0")});
  expect_refused(7, "AddZone", {zone_set("1_2_0"), zone("1_1_0")});
  expect_refused(7, "AddZoneAlias", {zone("1_1_0"), alias("1_2_0")});
  expect_refused(7, "ActivateZoneSet", {zone_set("1_2_0"), flag("Activate", true)});
  expect_refused(7, "ActivateZoneSet", {zone_set("1_2_1"), flag("Activate", true)});
  expect_refused(7, "CreateZoneMembershipSettingData",
                 {number("ConnectivityMemberType", 2),
                  text("ConnectivityMemberID", "21000024FF3A1B01"), into_zone("1_3_0")});
}

TEST_F(ZoneServiceMethods, BadNamesAreRefused) {
  for (const char* name : {"1zone", "a b", "a.b", "z\xc3\xb6ne", "_a", "a\nb", "a/b", "a\"b"}) {
    expect_refused(5, "CreateZone", {text("ZoneName", name)});
    expect_refused(5, "CreateZoneSet", {text("ZoneSetName", name)});
    expect_refused(5, "CreateZoneAlias", {text("CollectionAlias", name)});
  }
  const std::string longest = "z" + std::string(63, 'x');
  EXPECT_EQ(client_->create_zone(longest), "1_3_0");
}

TEST_F(ZoneServiceMethods, LimitsAreInsufficientResources) {
  auto fabric = control::fabric();
  ZoneDatabase& full = fabric.vsans.at(0).zoning.change().full.change();
  for (unsigned i = 0; full.zone_sets().size() < 1000; ++i)
    full.create(ZoningKind::zone_set, "s" + std::to_string(i));
  ASSERT_EQ(control::install(fabric), std::nullopt);
  expect_refused(9, "CreateZoneSet", {text("ZoneSetName", "one_more")});
}

TEST_F(ZoneServiceMethods, AZoneSetWithoutZonesIsNotActivated) {
  EXPECT_EQ(client_->call("CreateZoneSet", {text("ZoneSetName", "lab")}), 0u);
  expect_refused(4, "ActivateZoneSet", {zone_set("1_2_0"), flag("Activate", true)});
}

TEST_F(ZoneServiceMethods, TheActiveZoneSetIsDeactivatedByEitherName) {
  for (const char* id : {"1_1_1", "1_1_0"}) {
    EXPECT_EQ(client_->call("ActivateZoneSet", {zone_set("1_1_0"), flag("Activate", true)}), 0u);
    EXPECT_EQ(client_->ids("VEXOR_ZoneSet"), (Texts{"1_1_1", "1_1_0"}));
    EXPECT_EQ(client_->call("ActivateZoneSet", {zone_set(id), flag("Activate", false)}), 0u);
    EXPECT_EQ(client_->ids("VEXOR_ZoneSet"), (Texts{"1_1_0"}));
    EXPECT_EQ(client_->ids("VEXOR_Zone"), (Texts{"1_1_0", "1_2_0"}));
  }
}

TEST_F(ZoneServiceMethods, DistributionReachesTheOtherSwitches) {
  client_->create_zone("web");
  EXPECT_EQ(client_->call("DistributeZoneSet", {}), 0u);
  EXPECT_EQ(client_->call("DistributeZoneSet", {}), 0u);
  const auto fabric = control::fabric();
  ASSERT_FALSE(zoning(fabric).distributed.empty());
  for (const auto& held : zoning(fabric).distributed)
    EXPECT_EQ(*held.database, *zoning(fabric).full);
}

TEST_F(ZoneServiceMethods, AVsanWithoutZoneSetsHasNothingToDistribute) {
  const auto service =
      client_->manager().enumerate_instance_names(kNamespace, "VEXOR_ZoneService").at(1);
  const MethodResult result = client_->manager().invoke_method(service, "DistributeZoneSet", {});
  EXPECT_EQ(std::get<std::uint64_t>(result.value.element), 0x8091u);
}

TEST_F(ZoneServiceMethods, AssociationsAreMadeByCreation) {
  const std::string zone_id = client_->create_zone("web");
  const auto create = [&](const char* cls, const char* first, const ObjectPath& one,
                          const char* second, const ObjectPath& other) {
    return Client::code_of([&] {
      client_->manager().create_instance(
          {{"", kNamespace, cls, {}}, {reference(first, one), reference(second, other)}});
    });
  };
  const ObjectPath web = instance("VEXOR_Zone", zone_id);
  const ObjectPath production = instance("VEXOR_ZoneSet", "1_1_0");
  const char* membership = "VEXOR_ZoneMemberOfCollection";
  EXPECT_EQ(create(membership, "Collection", production, "Member", web), CMPI_RC_OK);
  EXPECT_EQ(client_->ids(production, membership), (Texts{"1_1_0", "1_2_0", "1_3_0"}));
  EXPECT_EQ(create(membership, "Collection", production, "Member", web),
            CMPI_RC_ERR_ALREADY_EXISTS);
  EXPECT_EQ(create(membership, "Collection", web, "Member", instance("VEXOR_ZoneAlias", "1_1_0")),
            CMPI_RC_OK);
  EXPECT_EQ(create(membership, "Collection", web, "Member", instance("VEXOR_ZoneAlias", "1_9_0")),
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(create(membership, "Collection", web, "Member", production),
            CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(create(membership, "Collection", instance("VEXOR_ZoneSet", "1_1_1"), "Member", web),
            CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(create("VEXOR_ZoneElementSettingData", "ManagedElement", web, "SettingData",
                   instance("VEXOR_ZoneMemberSettingData", "1^2^2100001122334401^0")),
            CMPI_RC_OK);
  EXPECT_EQ(client_->ids(web, "VEXOR_ZoneElementSettingData"), (Texts{"1^2^2100001122334401^0"}));
}

TEST_F(ZoneServiceMethods, EveryNameOfEveryZoningClassCanBeGot) {
  for (const char* cls :
       {"VEXOR_ZoneSet", "VEXOR_Zone", "VEXOR_ZoneAlias", "VEXOR_ZoneMemberSettingData",
        "VEXOR_ZoneService", "VEXOR_ZoneCapabilities", "VEXOR_ZoneMemberOfCollection",
        "VEXOR_ZoneElementSettingData", "VEXOR_ZoneHostedCollection", "VEXOR_HostedCollection",
        "VEXOR_HostedService"}) {
    const auto paths = client_->manager().enumerate_instance_names(kNamespace, cls);
    EXPECT_FALSE(paths.empty()) << cls;
    for (const ObjectPath& each : paths)
      EXPECT_TRUE(same_instance(client_->manager().get_instance(each).path, each)) << to_text(each);
  }
}

TEST_F(ZoneServiceMethods, EveryAssociationIsWalkedFromBothEnds) {
  for (const auto& [cls, first, second] :
       {std::tuple{"VEXOR_ZoneMemberOfCollection", "Collection", "Member"},
        std::tuple{"VEXOR_ZoneElementSettingData", "ManagedElement", "SettingData"},
        std::tuple{"VEXOR_ZoneHostedCollection", "Antecedent", "Dependent"},
        std::tuple{"VEXOR_HostedCollection", "Antecedent", "Dependent"},
        std::tuple{"VEXOR_HostedService", "Antecedent", "Dependent"}}) {
    for (const ObjectPath& each : client_->manager().enumerate_instance_names(kNamespace, cls)) {
      const auto end = [&, path = each](const char* role) {
        return *std::get<cim::host::PathPtr>(cim::host::find_named(path.keys, role)->data.element);
      };
      for (const auto& [from, to] : {std::pair{first, second}, std::pair{second, first}}) {
        const auto names = client_->manager().associator_names(end(from), {cls, "", from, to});
        EXPECT_EQ(std::count_if(names.begin(), names.end(),
                                [&, role = to](const ObjectPath& name) {
                                  return same_instance(name, end(role));
                                }),
                  1)
            << to_text(each) << " from " << from;
        const auto references = client_->manager().reference_names(end(from), {"", cls, from, ""});
        EXPECT_EQ(std::count_if(references.begin(), references.end(),
                                [&](const ObjectPath& name) { return same_instance(name, each); }),
                  1)
            << to_text(each) << " from " << from;
      }
    }
  }
}

}  // namespace
