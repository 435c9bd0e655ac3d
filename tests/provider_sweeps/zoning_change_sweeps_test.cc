// The methods of the zone service, and zoning objects made and deleted.
#include "tests/provider_sweeps/change_sweep.h"

namespace provider_sweeps {
namespace {

using switch_sim::ZoneDatabase;
using switch_sim::ZoneMember;
using switch_sim::ZoningKind;

// The small fabric's zone set 1 with zone 1, which holds alias 1, and the same active; and, not
// active, zone set 2, zone 2 and alias 2, which are empty.
class ZoningChanges : public ChangeSweep {
 protected:
  ZoningChanges() {
    change_full([](ZoneDatabase& full) {
      full.create(ZoningKind::zone_set, "lab");
      full.create(ZoningKind::zone, "web");
      full.create(ZoningKind::alias, "disks");
    });
  }

  template <class Change>
  void change_full(Change change) {
    switch_sim::Fabric fabric = control::fabric();
    change(fabric.vsans.at(0).zoning.change().full.change());
    EXPECT_EQ(control::install(fabric), std::nullopt);
    begin_ = control::fabric();
  }

  CMPIObjectPath* object(const char* class_name, const char* id) {
    return broker_.path(class_name, {{"InstanceID", id}});
  }
  CMPIObjectPath* service() {
    return broker_.path("VEXOR_ZoneService", {{"SystemCreationClassName", "VEXOR_Vsan"},
                                              {"SystemName", "2001000DEC0A1B2D"},
                                              {"CreationClassName", "VEXOR_ZoneService"},
                                              {"Name", "1"}});
  }
  CMPIObjectPath* association(const char* class_name, const char* first_role, CMPIObjectPath* first,
                              const char* second_role, CMPIObjectPath* second) {
    CMPIObjectPath* path = broker_.path(class_name);
    broker_.add_reference(path, first_role, first);
    return broker_.add_reference(path, second_role, second);
  }
  CMPIInstance* made(const char* class_name, const char* first_role, CMPIObjectPath* first,
                     const char* second_role, CMPIObjectPath* second) {
    CMPIInstance* instance = broker_.instance(class_name);
    CMPIValue value{};
    value.ref = first;
    instance->ft->setProperty(instance, first_role, &value, CMPI_ref);
    value.ref = second;
    instance->ft->setProperty(instance, second_role, &value, CMPI_ref);
    return instance;
  }

  // ---- arguments of methods ----
  CMPIArgs* arguments() { return broker_.arguments(); }
  static void add_text(CMPIArgs* to, const char* name, const char* text) {
    to->ft->addArg(to, name, reinterpret_cast<const CMPIValue*>(text), CMPI_chars);
  }
  static void add_reference(CMPIArgs* to, const char* name, CMPIObjectPath* path) {
    CMPIValue value{};
    value.ref = path;
    to->ft->addArg(to, name, &value, CMPI_ref);
  }
  void expect_method(const char* method, const CMPIArgs* in) {
    expect_all_or_nothing(sweep_.invoking(service(), method, in), "uint32 0");
  }
  void expect_creation(const char* method, const char* argument) {
    CMPIArgs* in = arguments();
    add_text(in, argument, "fresh");
    expect_method(method, in);
  }
  void expect_two(const char* method, const char* first, CMPIObjectPath* one, const char* second,
                  CMPIObjectPath* other) {
    CMPIArgs* in = arguments();
    add_reference(in, first, one);
    add_reference(in, second, other);
    expect_method(method, in);
  }
  void expect_activation(const char* id, bool on) {
    CMPIArgs* in = arguments();
    add_reference(in, "ZoneSet", object("VEXOR_ZoneSet", id));
    CMPIValue value{};
    value.boolean = on ? 1 : 0;
    in->ft->addArg(in, "Activate", &value, CMPI_boolean);
    expect_method("ActivateZoneSet", in);
  }
  void expect_deletion(CMPIObjectPath* path) { expect_all_or_nothing(sweep_.deleting(path)); }

  static constexpr const char* kMember = "1^2^2100001122334401^0";
};

// ---- methods ----

TEST_F(ZoningChanges, CreateZoneSet) {
  expect_creation("CreateZoneSet", "ZoneSetName");
}

TEST_F(ZoningChanges, CreateZone) {
  expect_creation("CreateZone", "ZoneName");
}

TEST_F(ZoningChanges, CreateZoneAlias) {
  expect_creation("CreateZoneAlias", "CollectionAlias");
}

TEST_F(ZoningChanges, CreateZoneMembershipSettingData) {
  CMPIArgs* in = arguments();
  CMPIValue type{};
  type.uint16 = 2;
  in->ft->addArg(in, "ConnectivityMemberType", &type, CMPI_uint16);
  add_text(in, "ConnectivityMemberID", "21000024FF3A1B01");
  add_reference(in, "SystemSpecificCollection", object("VEXOR_Zone", "1_2_0"));
  expect_method("CreateZoneMembershipSettingData", in);
}

TEST_F(ZoningChanges, AddZone) {
  expect_two("AddZone", "ZoneSet", object("VEXOR_ZoneSet", "1_2_0"), "Zone",
             object("VEXOR_Zone", "1_1_0"));
}

TEST_F(ZoningChanges, AddZoneAlias) {
  expect_two("AddZoneAlias", "Zone", object("VEXOR_Zone", "1_2_0"), "ZoneAlias",
             object("VEXOR_ZoneAlias", "1_1_0"));
}

TEST_F(ZoningChanges, AddZoneMembershipSettingData) {
  expect_two("AddZoneMembershipSettingData", "SystemSpecificCollection",
             object("VEXOR_Zone", "1_2_0"), "ZoneMembershipSettingData",
             object("VEXOR_ZoneMemberSettingData", kMember));
}

TEST_F(ZoningChanges, ActivationOfAZoneSet) {
  change_full([](ZoneDatabase& full) { full.add_zone(2, 2); });
  expect_activation("1_2_0", true);
}

TEST_F(ZoningChanges, DeactivationOfAZoneSet) {
  expect_activation("1_1_1", false);
}

TEST_F(ZoningChanges, DistributeZoneSet) {
  expect_method("DistributeZoneSet", arguments());
}

// ---- creations ----

TEST_F(ZoningChanges, AMembershipOfAZoneIsMade) {
  CMPIObjectPath* zone_set = object("VEXOR_ZoneSet", "1_2_0");
  CMPIObjectPath* zone = object("VEXOR_Zone", "1_2_0");
  const char* const cls = "VEXOR_ZoneMemberOfCollection";
  expect_all_or_nothing(
      sweep_.creating(broker_.path(cls), made(cls, "Collection", zone_set, "Member", zone)));
}

TEST_F(ZoningChanges, AMembershipOfAMemberIsMade) {
  CMPIObjectPath* alias = object("VEXOR_ZoneAlias", "1_2_0");
  CMPIObjectPath* member = object("VEXOR_ZoneMemberSettingData", kMember);
  const char* const cls = "VEXOR_ZoneElementSettingData";
  expect_all_or_nothing(sweep_.creating(broker_.path(cls),
                                        made(cls, "ManagedElement", alias, "SettingData", member)));
}

// ---- deletions ----

TEST_F(ZoningChanges, AZoneSetIsDeleted) {
  expect_deletion(object("VEXOR_ZoneSet", "1_1_0"));
}

TEST_F(ZoningChanges, AZoneIsDeleted) {
  expect_deletion(object("VEXOR_Zone", "1_1_0"));
}

TEST_F(ZoningChanges, AnAliasIsDeleted) {
  expect_deletion(object("VEXOR_ZoneAlias", "1_1_0"));
}

TEST_F(ZoningChanges, AMembershipOfAZoneIsDeleted) {
  expect_deletion(association("VEXOR_ZoneMemberOfCollection", "Collection",
                              object("VEXOR_ZoneSet", "1_1_0"), "Member",
                              object("VEXOR_Zone", "1_1_0")));
}

TEST_F(ZoningChanges, AMembershipOfAnAliasIsDeleted) {
  expect_deletion(association("VEXOR_ZoneMemberOfCollection", "Collection",
                              object("VEXOR_Zone", "1_1_0"), "Member",
                              object("VEXOR_ZoneAlias", "1_1_0")));
}

TEST_F(ZoningChanges, AMembershipOfAMemberIsDeleted) {
  expect_deletion(association("VEXOR_ZoneElementSettingData", "ManagedElement",
                              object("VEXOR_Zone", "1_1_0"), "SettingData",
                              object("VEXOR_ZoneMemberSettingData", kMember)));
}

// It is taken out of a zone and of an alias.
TEST_F(ZoningChanges, AMemberIsDeletedEverywhere) {
  expect_deletion(object("VEXOR_ZoneMemberSettingData", kMember));
}

}  // namespace
}  // namespace provider_sweeps
