// The CMPI face of zoning.
#include <cim_utils/cmpi_zoning.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/model/zoning_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;

constexpr const char* kNamespace = "root/cimv2";

// What the VSAN's own path prints, which the associations begin with.
constexpr const char* kVsanPath =
    "newObjectPath(root/cimv2, VEXOR_Vsan) -> path1\n"
    "setHostname(path1, switch-1)\n"
    " vsan 10 dm enabled is 1\n"
    " vsan wwn is  200A000DEC0A1B2D \n"
    "addKey(path1, Name, chars \"200A000DEC0A1B2D\")\n"
    "addKey(path1, CreationClassName, chars \"VEXOR_Vsan\")\n";

class CmpiZoning : public testing::Test {
 protected:
  CmpiZoning() {
    mts_q = kQueue;
    system_.host_name("switch-1");
  }
  ~CmpiZoning() override { mts_q = -1; }

  static void expect_service_reads(Script& script) {
    script.expect(get(149).sap(15).sends(Record(2632).be32(520, 10)))
        .replies(Record(2632).be32(520, 10).be32(528, 2).be32(552, 2));
    script.expect(get(264).sap(14).sends(Record(1152).be32(0, 10).be32(4, 1)))
        .replies(Record(1152).be32(0, 10).byte(334, 1).put(22, hex("20 0a 00 0d ec 0a 1b 2d")));
  }
  CMPIObjectPath* service_path() {
    return zone_service_fill_reference("VEXOR_ZoneService", kNamespace, 10, broker_);
  }
  CMPIInstance* service() {
    return zone_service_build_instance("VEXOR_ZoneService", kNamespace, 10, broker_);
  }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
  zs_cim_zone_set_ zone_set_ = records::zone_set_7();
  zs_cim_zone_ zone_ = records::zone_12();
  zs_cim_alias_ alias_ = records::alias_4();
  zs_cim_zone_member_ member_ = records::member_of_fcid();
};

TEST_F(CmpiZoning, AZoneSetIsKnownByItsInstanceId) {
  ASSERT_NE(zone_set_fill_reference("VEXOR_ZoneSet", kNamespace, "10_7_1", broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "Entry  -zone_set_fill_reference \n "
            "newObjectPath(root/cimv2, VEXOR_ZoneSet) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, InstanceID, chars \"10_7_1\")\n");
}

TEST_F(CmpiZoning, AZoneSetTellsItsNameAndWhetherItIsActive) {
  const char* properties[] = {"Active", nullptr};
  ASSERT_NE(zone_set_build_instance("VEXOR_ZoneSet", kNamespace, &zone_set_, properties, broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            "Entry  -zone_set_build_instance\n "
            "newObjectPath(root/cimv2, VEXOR_ZoneSet) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setPropertyFilter(instance1, [Active], [InstanceID])\n"
            "setProperty(instance1, InstanceID, chars \"10_7_1\")\n"
            "setProperty(instance1, ElementName, chars \"backup\")\n"
            "setProperty(instance1, Active, boolean true)\n");
}

TEST_F(CmpiZoning, AZoneIsKnownByItsInstanceId) {
  ASSERT_NE(zone_fill_reference("VEXOR_Zone", kNamespace, "10_12_0", broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Zone) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, InstanceID, chars \"10_12_0\")\n");
}

TEST_F(CmpiZoning, AZoneTellsItsTwoWordsAndWhetherItIsReadOnly) {
  const char* properties[] = {"ZoneType", nullptr};
  ASSERT_NE(zone_build_instance("VEXOR_Zone", kNamespace, &zone_, properties, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Zone) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setPropertyFilter(instance1, [ZoneType], [InstanceID])\n"
            "setProperty(instance1, InstanceID, chars \"10_12_0\")\n"
            "setProperty(instance1, ElementName, chars \"tape\")\n"
            "setProperty(instance1, Active, boolean false)\n"
            "setProperty(instance1, ProtocolType, sint32 5)\n"
            "readonly in utils 1 \n"
            "setProperty(instance1, ReadOnly, sint32 1)\n"
            "setProperty(instance1, ZoneType, uint16 3)\n");
}

TEST_F(CmpiZoning, AnAliasTellsItsNameTwiceAndReadsItsOwnActiveFlag) {
  ASSERT_NE(zone_alias_fill_reference("VEXOR_ZoneAlias", kNamespace, "10_4_1", broker_), nullptr);
  ASSERT_NE(zone_alias_build_instance("VEXOR_ZoneAlias", kNamespace, &alias_, nullptr, broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_ZoneAlias) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, InstanceID, chars \"10_4_1\")\n"
            "newObjectPath(root/cimv2, VEXOR_ZoneAlias) -> path2\n"
            "setHostname(path2, switch-1)\n"
            "newInstance(path2) -> instance1\n"
            "setPropertyFilter(instance1, null, [InstanceID])\n"
            "setProperty(instance1, InstanceID, chars \"10_4_1\")\n"
            "setProperty(instance1, ElementName, chars \"library\")\n"
            "setProperty(instance1, CollectionAlias, chars \"library\")\n"
            "setProperty(instance1, Active, boolean true)\n");
}

TEST_F(CmpiZoning, AMemberTellsItsIdAndItsType) {
  ASSERT_NE(zone_member_fill_reference("VEXOR_ZoneMemberSettingData", kNamespace, "10^3^00610203^0",
                                       broker_),
            nullptr);
  ASSERT_NE(zone_member_build_instance("VEXOR_ZoneMemberSettingData", kNamespace, &member_, nullptr,
                                       broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_ZoneMemberSettingData) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, InstanceID, chars \"10^3^00610203^0\")\n"
            "newObjectPath(root/cimv2, VEXOR_ZoneMemberSettingData) -> path2\n"
            "setHostname(path2, switch-1)\n"
            "newInstance(path2) -> instance1\n"
            "setPropertyFilter(instance1, null, [InstanceID])\n"
            "Instance ID is 10^3^00610203^0 \n"
            "setProperty(instance1, InstanceID, chars \"10^3^00610203^0\")\n"
            "Member ID is 610203 \n"
            "setProperty(instance1, ConnectivityMemberID, chars \"610203\")\n"
            "setProperty(instance1, ConnectivityMemberType, uint16 3)\n");
}

TEST_F(CmpiZoning, OnlyTheFlagOneIsActive) {
  zone_set_.active = 2;
  zone_.active = 255;
  alias_.active = 0;
  EXPECT_EQ(broker_.property(
                zone_set_build_instance("VEXOR_ZoneSet", kNamespace, &zone_set_, nullptr, broker_),
                "Active"),
            "boolean false");
  EXPECT_EQ(broker_.property(
                zone_build_instance("VEXOR_Zone", kNamespace, &zone_, nullptr, broker_), "Active"),
            "boolean false");
  zone_.active = 1;
  EXPECT_EQ(broker_.property(
                zone_build_instance("VEXOR_Zone", kNamespace, &zone_, nullptr, broker_), "Active"),
            "boolean true");
  EXPECT_EQ(broker_.property(
                zone_alias_build_instance("VEXOR_ZoneAlias", kNamespace, &alias_, nullptr, broker_),
                "Active"),
            "boolean false");
}

TEST_F(CmpiZoning, TextsThatFillTheirFieldsEndWithThem) {
  std::memset(zone_.instance_id, 'i', sizeof zone_.instance_id);
  std::memset(zone_.name, 'n', sizeof zone_.name);
  std::memset(member_.member_id, 'm', sizeof member_.member_id);
  CMPIInstance* zone = zone_build_instance("VEXOR_Zone", kNamespace, &zone_, nullptr, broker_);
  EXPECT_EQ(broker_.property_text(zone, "InstanceID"), std::string(288, 'i'));
  EXPECT_EQ(broker_.property_text(zone, "ElementName"), std::string(68, 'n'));
  CMPIInstance* member = zone_member_build_instance("VEXOR_ZoneMemberSettingData", kNamespace,
                                                    &member_, nullptr, broker_);
  EXPECT_EQ(broker_.property_text(member, "ConnectivityMemberID"), std::string(258, 'm'));
}

TEST_F(CmpiZoning, AZoningObjectsPathThatCannotBeMadeIsSaidAndReturnedAsItCame) {
  using Fill = CMPIObjectPath* (*)(const char*, const char*, const char*, const CMPIBroker*);
  for (const Fill fill : {&zone_set_fill_reference, &zone_fill_reference,
                          &zone_alias_fill_reference, &zone_member_fill_reference}) {
    broker_.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(fill("VEXOR_Zone", kNamespace, "10_1_1", broker_), nullptr);
    EXPECT_NE(out_.out().find("ObjectPath is null\n\n\n"), std::string::npos);
    broker_.fail_nth_path(1, Failure::null_handle);
    CMPIObjectPath* path = fill("VEXOR_Zone", kNamespace, "10_1_1", broker_);
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->hdl, nullptr);
  }
}

TEST_F(CmpiZoning, AServicesOrCapabilitiesPathThatCannotBeMadeIsSaidAndReturnedAsItCame) {
  const Script script;  // nobody is asked for the keys
  for (const bool service : {true, false}) {
    const auto fill = [&] {
      return service ? service_path()
                     : zone_cap_fill_reference("VEXOR_ZoneCapabilities", kNamespace, "10", broker_);
    };
    out_.clear();
    broker_.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(fill(), nullptr);
    EXPECT_TRUE(out_.out().ends_with("ObjectPath is null\n\n\n")) << out_.out();
    out_.clear();
    broker_.fail_nth_path(1, Failure::null_handle);
    CMPIObjectPath* path = fill();
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->hdl, nullptr);
    EXPECT_TRUE(out_.out().ends_with("ObjectPath is null\n\n\n")) << out_.out();
  }
}

TEST_F(CmpiZoning, AZoneServiceIsNamedByItsVsanAndItsSystemByTheVsansWwn) {
  Script script;
  expect_service_reads(script);
  ASSERT_NE(service_path(), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_ZoneService) -> path1\n"
            "setHostname(path1, switch-1)\n"
            " vsan 10 dm enabled is 1\n"
            " vsan wwn is  200A000DEC0A1B2D \n"
            "addKey(path1, Name, chars \"10\")\n"
            "addKey(path1, SystemName, chars \"200A000DEC0A1B2D\")\n"
            "addKey(path1, SystemCreationClassName, chars \"VEXOR_Vsan\")\n"
            "addKey(path1, CreationClassName, chars \"VEXOR_ZoneService\")\n");
}

TEST_F(CmpiZoning, AZoneServiceHasNoSessionAndTellsTheDefaultPolicy) {
  Script script;
  expect_service_reads(script);
  script.expect(query_policies(10)).gives(hex("01 02 03 04"));
  script.expect(read_policy(hex("01 02 03 04"))).gives(1);
  ASSERT_NE(service(), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_ZoneService) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            " vsan 10 dm enabled is 1\n"
            " vsan wwn is  200A000DEC0A1B2D \n"
            "setProperty(instance1, Name, chars \"10\")\n"
            "setProperty(instance1, SystemName, chars \"200A000DEC0A1B2D\")\n"
            "setProperty(instance1, SystemCreationClassName, chars \"VEXOR_Vsan\")\n"
            "setProperty(instance1, CreationClassName, chars \"VEXOR_ZoneService\")\n"
            "setProperty(instance1, SessionState, uint16 4)\n"
            "setProperty(instance1, RequestedSessionState, uint16 2)\n"
            "setProperty(instance1, defaultZoningState, uint16 2)\n"
            "newArray(1, uint16) -> array1\n"
            "setElementAt(array1, 0, uint16 2)\n"
            "setProperty(instance1, OperationalStatus, uint16[] array1)\n");
}

TEST_F(CmpiZoning, ADefaultPolicyThatCannotBeReadIsZero) {
  Script script;
  expect_service_reads(script);
  script.expect(query_policies(10)).fails(0x40200001);
  CMPIInstance* instance = service();
  EXPECT_EQ(broker_.property(instance, "defaultZoningState"), "uint16 0");
}

TEST_F(CmpiZoning, WithoutTheVsanManagerOrTheDomainManagerTheSystemIsNamedByTheNumber) {
  {
    Script script;
    script.expect(get(149).sap(15).any_request().length(2632)).status(0x40330005);
    EXPECT_EQ(broker_.key_text(service_path(), "SystemName"), "10");
  }
  Script script;
  script.expect(get(149).sap(15).any_request().length(2632)).replies(Record(2632).be32(520, 10));
  script.expect(get(264).sap(14).any_request().length(1152)).times_out();
  EXPECT_EQ(broker_.key_text(service_path(), "SystemName"), "10");
}

TEST_F(CmpiZoning, CapabilitiesAreConstantsInOrder) {
  ASSERT_NE(zone_cap_fill_reference("VEXOR_ZoneCapabilities", kNamespace, "10", broker_), nullptr);
  ASSERT_NE(zone_cap_build_instance("VEXOR_ZoneCapabilities", kNamespace, "10", broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_ZoneCapabilities) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, InstanceID, chars \"10\")\n"
            "newObjectPath(root/cimv2, VEXOR_ZoneCapabilities) -> path2\n"
            "setHostname(path2, switch-1)\n"
            "newInstance(path2) -> instance1\n"
            "setProperty(instance1, InstanceID, chars \"10\")\n"
            "setProperty(instance1, ZoneNameMaxLen, uint32 64)\n"
            "setProperty(instance1, ZoneNameFormat, uint16 3)\n"
            "newArray(1, uint16) -> array1\n"
            "setElementAt(array1, 0, uint16 2)\n"
            "setProperty(instance1, SupportedConnectivityMemberTypes, uint16[] array1)\n"
            "setProperty(instance1, MaxNumZoneSets, uint32 1000)\n"
            "setProperty(instance1, MaxNumZone, uint32 8000)\n"
            "setProperty(instance1, MaxNumZoneMembers, uint32 20000)\n"
            "setProperty(instance1, MaxNumZoneAliases, uint32 2048)\n"
            "setProperty(instance1, MaxNumZonesPerZoneSet, uint32 8000)\n");
}

// The calls of an association: its ends, then the path or the instance with its two references.
std::string as_path(const std::string& ends, const char* cls, const char* first,
                    const char* second) {
  return ends + "newObjectPath(root/cimv2, " + cls + ") -> path3\nsetHostname(path3, switch-1)\n" +
         "addKey(path3, " + first + ", ref path1)\naddKey(path3, " + second + ", ref path2)\n";
}
std::string as_instance(const std::string& ends, const char* cls, const char* first,
                        const char* second) {
  return ends + "newObjectPath(root/cimv2, " + cls + ") -> path3\nsetHostname(path3, switch-1)\n" +
         "newInstance(path3) -> instance1\nsetProperty(instance1, " + first +
         ", ref path1)\nsetProperty(instance1, " + second + ", ref path2)\n";
}
std::string zoning_path(const char* name, const char* cls, const char* id) {
  return std::string("newObjectPath(root/cimv2, ") + cls + ") -> " + name + "\nsetHostname(" +
         name + ", switch-1)\naddKey(" + name + ", InstanceID, chars \"" + id + "\")\n";
}

constexpr const char* kZoneSetEntry = "Entry  -zone_set_fill_reference \n ";

// An association's two builders, and what they are to print.
struct Association {
  std::function<CMPIObjectPath*(const CMPIBroker*)> fill;
  std::function<CMPIInstance*(const CMPIBroker*)> build;
  std::string ends;
  const char* cls;
  const char* first;
  const char* second;
  const char* behind = "";  // what the instance builder prints at its end
};

void expect_association(const Association& a, StdioCapture& out) {
  {
    RecordingBroker broker;
    const size_t before = out.out().size();
    ASSERT_NE(a.fill(broker), nullptr);
    EXPECT_EQ(out.out().substr(before), as_path(a.ends, a.cls, a.first, a.second));
  }
  RecordingBroker broker;
  const size_t before = out.out().size();
  ASSERT_NE(a.build(broker), nullptr);
  EXPECT_EQ(out.out().substr(before), as_instance(a.ends, a.cls, a.first, a.second) + a.behind);
}

TEST_F(CmpiZoning, AZoneSetCollectsZones) {
  expect_association({[](auto b) {
                        return zmoc_fill_reference_zoneSetZone("VEXOR_ZoneMemberOfCollection",
                                                               kNamespace, "10_7_1", "10_12_1", b);
                      },
                      [](auto b) {
                        return zmoc_build_instance_zoneSetZone("VEXOR_ZoneMemberOfCollection",
                                                               kNamespace, "10_7_1", "10_12_1", b);
                      },
                      kZoneSetEntry + zoning_path("path1", "VEXOR_ZoneSet", "10_7_1") +
                          zoning_path("path2", "VEXOR_Zone", "10_12_1"),
                      "VEXOR_ZoneMemberOfCollection", "Collection", "Member"},
                     out_);
}

TEST_F(CmpiZoning, AZoneCollectsAliases) {
  expect_association(
      {[this](auto b) {
         return zmoc_fill_reference("VEXOR_ZoneMemberOfCollection", kNamespace, &zone_, &alias_, b);
       },
       [this](auto b) {
         return zmoc_build_instance("VEXOR_ZoneMemberOfCollection", kNamespace, &zone_, &alias_, b);
       },
       zoning_path("path1", "VEXOR_Zone", "10_12_0") +
           zoning_path("path2", "VEXOR_ZoneAlias", "10_4_1"),
       "VEXOR_ZoneMemberOfCollection", "Collection", "Member"},
      out_);
}

TEST_F(CmpiZoning, AZoneHasMembers) {
  expect_association({[this](auto b) {
                        return esd_fill_reference_zoneZoneMember("VEXOR_ZoneElementSettingData",
                                                                 kNamespace, &zone_, &member_, b);
                      },
                      [this](auto b) {
                        return esd_build_instance_zoneZoneMember("VEXOR_ZoneElementSettingData",
                                                                 kNamespace, &zone_, &member_, b);
                      },
                      zoning_path("path1", "VEXOR_Zone", "10_12_0") +
                          zoning_path("path2", "VEXOR_ZoneMemberSettingData", "10^3^00610203^0"),
                      "VEXOR_ZoneElementSettingData", "ManagedElement", "SettingData"},
                     out_);
}

TEST_F(CmpiZoning, AnAliasHasMembers) {
  expect_association({[this](auto b) {
                        return esd_fill_reference_zoneAliasZoneMember(
                            "VEXOR_ZoneElementSettingData", kNamespace, &alias_, &member_, b);
                      },
                      [this](auto b) {
                        return esd_build_instance_zoneAliasZoneMember(
                            "VEXOR_ZoneElementSettingData", kNamespace, &alias_, &member_, b);
                      },
                      zoning_path("path1", "VEXOR_ZoneAlias", "10_4_1") +
                          zoning_path("path2", "VEXOR_ZoneMemberSettingData", "10^3^00610203^0"),
                      "VEXOR_ZoneElementSettingData", "ManagedElement", "SettingData"},
                     out_);
}

TEST_F(CmpiZoning, AVsanHostsItsConnectivityCollection) {
  expect_association({[this](auto b) {
                        return hosted_collection_fill_reference("VEXOR_HostedCollection",
                                                                kNamespace, &vsan_, &conf_, 10, b);
                      },
                      [this](auto b) {
                        return hosted_collection_build_instance("VEXOR_HostedCollection",
                                                                kNamespace, &vsan_, &conf_, 10, b);
                      },
                      kVsanPath + zoning_path("path2", "VEXOR_ConnectivityCollection", "10"),
                      "VEXOR_HostedCollection", "Antecedent", "Dependent"},
                     out_);
}

TEST_F(CmpiZoning, AVsanHostsZoneSetsAndTheInstanceSaysItsEnd) {
  expect_association(
      {[this](auto b) {
         return hosted_collection_fill_reference_zset("VEXOR_ZoneHostedCollection", kNamespace,
                                                      &vsan_, &conf_, &zone_set_, b);
       },
       [this](auto b) {
         return hosted_collection_build_instance_zset("VEXOR_ZoneHostedCollection", kNamespace,
                                                      &vsan_, &conf_, &zone_set_, b);
       },
       std::string(kVsanPath) + kZoneSetEntry + zoning_path("path2", "VEXOR_ZoneSet", "10_7_1"),
       "VEXOR_ZoneHostedCollection", "Antecedent", "Dependent",
       "hosted_collection_build_instance_zset() - instance end \n "},
      out_);
}

TEST_F(CmpiZoning, AVsanHostsZones) {
  expect_association({[this](auto b) {
                        return hosted_collection_fill_reference_zone(
                            "VEXOR_ZoneHostedCollection", kNamespace, &vsan_, &conf_, &zone_, b);
                      },
                      [this](auto b) {
                        return hosted_collection_build_instance_zone(
                            "VEXOR_ZoneHostedCollection", kNamespace, &vsan_, &conf_, &zone_, b);
                      },
                      kVsanPath + zoning_path("path2", "VEXOR_Zone", "10_12_0"),
                      "VEXOR_ZoneHostedCollection", "Antecedent", "Dependent"},
                     out_);
}

TEST_F(CmpiZoning, AVsanHostsAliases) {
  expect_association({[this](auto b) {
                        return hosted_collection_fill_reference_zalias(
                            "VEXOR_ZoneHostedCollection", kNamespace, &vsan_, &conf_, &alias_, b);
                      },
                      [this](auto b) {
                        return hosted_collection_build_instance_zalias(
                            "VEXOR_ZoneHostedCollection", kNamespace, &vsan_, &conf_, &alias_, b);
                      },
                      kVsanPath + zoning_path("path2", "VEXOR_ZoneAlias", "10_4_1"),
                      "VEXOR_ZoneHostedCollection", "Antecedent", "Dependent"},
                     out_);
}

TEST_F(CmpiZoning, AVsanHostsItsZoneService) {
  Script script;
  expect_service_reads(script);
  expect_service_reads(script);
  expect_association(
      {[this](auto b) {
         return hosted_service_fill_reference("VEXOR_HostedService", kNamespace, &vsan_, &conf_, b);
       },
       [this](auto b) {
         return hosted_service_build_instance("VEXOR_HostedService", kNamespace, &vsan_, &conf_, b);
       },
       std::string(kVsanPath) + "newObjectPath(root/cimv2, VEXOR_ZoneService) -> path2\n"
                                "setHostname(path2, switch-1)\n"
                                " vsan 10 dm enabled is 1\n"
                                " vsan wwn is  200A000DEC0A1B2D \n"
                                "addKey(path2, Name, chars \"10\")\n"
                                "addKey(path2, SystemName, chars \"200A000DEC0A1B2D\")\n"
                                "addKey(path2, SystemCreationClassName, chars \"VEXOR_Vsan\")\n"
                                "addKey(path2, CreationClassName, chars \"VEXOR_ZoneService\")\n",
       "VEXOR_HostedService", "Antecedent", "Dependent"},
      out_);
}

TEST_F(CmpiZoning, CollectionsAndHostsOfGivenReferences) {
  CMPIObjectPath* one = zone_fill_reference("VEXOR_Zone", kNamespace, "10_12_0", broker_);
  CMPIObjectPath* two = zone_fill_reference("VEXOR_Zone", kNamespace, "10_13_0", broker_);
  CMPIObjectPath* member = zmoc_fill_reference_MemberCollection("C", kNamespace, one, two, broker_);
  EXPECT_EQ(broker_.class_name(member), "C");
  EXPECT_EQ(broker_.key_reference(member, "Collection"), one);
  EXPECT_EQ(broker_.key_reference(member, "Member"), two);
  CMPIInstance* membership =
      zmoc_build_instance_MemberCollection("C", kNamespace, one, two, broker_);
  EXPECT_EQ(broker_.property_reference(membership, "Collection"), one);
  EXPECT_EQ(broker_.property_reference(membership, "Member"), two);
  CMPIObjectPath* hosted =
      zone_hosted_collection_fill_reference("C", kNamespace, one, two, broker_);
  EXPECT_EQ(broker_.key_reference(hosted, "Antecedent"), one);
  EXPECT_EQ(broker_.key_reference(hosted, "Dependent"), two);
  CMPIInstance* hosting = zhc_build_instance("C", kNamespace, one, two, broker_);
  EXPECT_EQ(broker_.property_reference(hosting, "Antecedent"), one);
  EXPECT_EQ(broker_.property_reference(hosting, "Dependent"), two);
}

// Every builder that makes something of the records, as a path and as an instance.
std::vector<std::function<CMPIObjectPath*(const CMPIBroker*)>> all_paths(
    const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf, const zs_cim_zone_set_* set,
    const zs_cim_zone_* zone, const zs_cim_alias_* alias, const zs_cim_zone_member_* member) {
  const char* ns = kNamespace;
  return {
      [=](auto b) { return zmoc_fill_reference_zoneSetZone("C", ns, "10_7_1", "10_12_1", b); },
      [=](auto b) { return zmoc_fill_reference("C", ns, zone, alias, b); },
      [=](auto b) { return esd_fill_reference_zoneZoneMember("C", ns, zone, member, b); },
      [=](auto b) { return esd_fill_reference_zoneAliasZoneMember("C", ns, alias, member, b); },
      [=](auto b) { return hosted_collection_fill_reference("C", ns, vsan, conf, 10, b); },
      [=](auto b) { return hosted_collection_fill_reference_zset("C", ns, vsan, conf, set, b); },
      [=](auto b) { return hosted_collection_fill_reference_zone("C", ns, vsan, conf, zone, b); },
      [=](auto b) {
        return hosted_collection_fill_reference_zalias("C", ns, vsan, conf, alias, b);
      },
      [=](auto b) { return hosted_service_fill_reference("C", ns, vsan, conf, b); },
  };
}

std::vector<std::function<CMPIInstance*(const CMPIBroker*)>> all_instances(
    const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf, const zs_cim_zone_set_* set,
    const zs_cim_zone_* zone, const zs_cim_alias_* alias, const zs_cim_zone_member_* member) {
  const char* ns = kNamespace;
  return {
      [=](auto b) { return zone_set_build_instance("C", ns, set, nullptr, b); },
      [=](auto b) { return zone_build_instance("C", ns, zone, nullptr, b); },
      [=](auto b) { return zone_alias_build_instance("C", ns, alias, nullptr, b); },
      [=](auto b) { return zone_member_build_instance("C", ns, member, nullptr, b); },
      [=](auto b) { return zmoc_build_instance_zoneSetZone("C", ns, "10_7_1", "10_12_1", b); },
      [=](auto b) { return zmoc_build_instance("C", ns, zone, alias, b); },
      [=](auto b) { return esd_build_instance_zoneZoneMember("C", ns, zone, member, b); },
      [=](auto b) { return esd_build_instance_zoneAliasZoneMember("C", ns, alias, member, b); },
      [=](auto b) { return hosted_collection_build_instance("C", ns, vsan, conf, 10, b); },
      [=](auto b) { return hosted_collection_build_instance_zset("C", ns, vsan, conf, set, b); },
      [=](auto b) { return hosted_collection_build_instance_zone("C", ns, vsan, conf, zone, b); },
      [=](auto b) {
        return hosted_collection_build_instance_zalias("C", ns, vsan, conf, alias, b);
      },
      [=](auto b) { return hosted_service_build_instance("C", ns, vsan, conf, b); },
      [=](auto b) { return zone_cap_build_instance("C", ns, "10", b); },
  };
}

TEST_F(CmpiZoning, AnInstanceThatTheBrokerDoesNotMakeIsNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  for (const auto& build : all_instances(&vsan_, &conf_, &zone_set_, &zone_, &alias_, &member_)) {
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      RecordingBroker broker;
      broker.fail_nth_instance(1, how);
      EXPECT_EQ(build(broker), nullptr);
    }
  }
}

TEST_F(CmpiZoning, AServiceThatTheBrokerDoesNotMakeIsNone) {
  const Script script;
  broker_.fail_nth_instance(1, Failure::null_handle);
  EXPECT_EQ(service(), nullptr);
}

TEST_F(CmpiZoning, AnAssociationsPathThatTheBrokerDoesNotMakeIsNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  for (const auto& fill : all_paths(&vsan_, &conf_, &zone_set_, &zone_, &alias_, &member_)) {
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      RecordingBroker broker;
      broker.fail_nth_path(3, how);
      EXPECT_EQ(fill(broker), nullptr);
    }
  }
}

TEST_F(CmpiZoning, NoRecordAndNoIdMakeNoObject) {
  Script script;
  EXPECT_EQ(zone_set_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_alias_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_member_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_cap_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_set_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_alias_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_member_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(zone_cap_build_instance("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
}

TEST_F(CmpiZoning, AnAssociationLeavesOutAnEndWithoutARecord) {
  const Script script;
  for (const auto& fill : all_paths(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)) {
    RecordingBroker broker;
    ASSERT_NE(fill(broker), nullptr);
  }
  CMPIInstance* instance =
      esd_build_instance_zoneZoneMember("C", kNamespace, &zone_, nullptr, broker_);
  EXPECT_EQ(broker_.property_names(instance), std::vector<std::string>{"ManagedElement"});
}

TEST_F(CmpiZoning, AnAssociationLeavesOutAnEndWhosePathCannotBeMade) {
  broker_.fail_nth_path(1, Failure::null_handle);
  EXPECT_EQ(broker_.key_names(
                zmoc_fill_reference_zoneSetZone("C", kNamespace, "10_7_1", "10_12_1", broker_)),
            std::vector<std::string>{"Member"});
  broker_.fail_nth_path(2, Failure::null_object);
  EXPECT_EQ(broker_.property_names(
                zmoc_build_instance_zoneSetZone("C", kNamespace, "10_7_1", "10_12_1", broker_)),
            std::vector<std::string>{"Collection"});
  const Script script;  // the service is not asked for
  broker_.fail_nth_path(2, Failure::null_handle);
  EXPECT_EQ(
      broker_.key_names(hosted_service_fill_reference("C", kNamespace, &vsan_, &conf_, broker_)),
      std::vector<std::string>{"Antecedent"});
}

TEST_F(CmpiZoning, AnAssociationWithoutAnyRecordHasNoEnds) {
  const Script script;
  const char* ns = kNamespace;
  const auto no_keys = [this](const CMPIObjectPath* path) {
    return path != nullptr && broker_.key_names(path).empty();
  };
  const auto no_properties = [this](const CMPIInstance* instance) {
    return instance != nullptr && broker_.property_names(instance).empty();
  };
  EXPECT_TRUE(no_keys(zmoc_fill_reference_zoneSetZone("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_keys(zmoc_fill_reference("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_keys(esd_fill_reference_zoneZoneMember("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_keys(esd_fill_reference_zoneAliasZoneMember("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(
      no_keys(hosted_collection_fill_reference_zset("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(
      no_keys(hosted_collection_fill_reference_zone("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_keys(
      hosted_collection_fill_reference_zalias("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_keys(hosted_service_fill_reference("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(zmoc_build_instance_zoneSetZone("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(zmoc_build_instance("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(esd_build_instance_zoneZoneMember("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(
      no_properties(esd_build_instance_zoneAliasZoneMember("C", ns, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(
      hosted_collection_build_instance_zset("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(
      hosted_collection_build_instance_zone("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(
      hosted_collection_build_instance_zalias("C", ns, nullptr, nullptr, nullptr, broker_)));
  EXPECT_TRUE(no_properties(hosted_service_build_instance("C", ns, nullptr, nullptr, broker_)));
}

TEST_F(CmpiZoning, AConnectivityCollectionWithoutItsVsansRecordsIsKnownByItsNumberAlone) {
  EXPECT_EQ(broker_.key_names(
                hosted_collection_fill_reference("C", kNamespace, nullptr, nullptr, 10, broker_)),
            std::vector<std::string>{"Dependent"});
  EXPECT_EQ(broker_.property_names(
                hosted_collection_build_instance("C", kNamespace, nullptr, nullptr, 10, broker_)),
            std::vector<std::string>{"Dependent"});
}

TEST_F(CmpiZoning, EveryFailingExchangeLeavesTheServiceStanding) {
  broker_.write_down(false);
  const size_t rounds = for_every_failing_exchange([this](FailingExchange&) {
    Script script;
    expect_service_reads(script);
    script.expect(query_policies(10)).gives(hex("01 02 03 04"));
    script.expect(read_policy(hex("01 02 03 04"))).gives(1);
    EXPECT_NE(service(), nullptr);
  });
  EXPECT_GE(rounds, 4u);
}

TEST_F(CmpiZoning, EveryFailingAllocationMakesAWholeInstanceOrNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  for (const auto& build : all_instances(&vsan_, &conf_, &zone_set_, &zone_, &alias_, &member_)) {
    for_every_failing_allocation([&](FailingAllocation& round) {
      RecordingBroker broker;
      broker.write_down(false);
      CMPIInstance* instance = round.attempt([&] { return build(broker); });
      EXPECT_TRUE(instance != nullptr || round.was_hit());
    });
  }
}

// Without the list of the names of the four keys nothing is asked.
TEST_F(CmpiZoning, EveryFailingAllocationMakesAWholeServiceOrNone) {
  constexpr size_t kNamesOfKeys = 1 + 4;
  const size_t rounds = for_every_failing_allocation([&](FailingAllocation& round) {
    RecordingBroker broker;
    broker.write_down(false);
    Script script;
    if (round.n() > kNamesOfKeys) {
      script.expect(get(149).sap(15).any_request().length(2632)).status(17);
      script.expect(query_policies(10)).fails(17);
    }
    CMPIInstance* instance =
        round.attempt([&] { return zone_service_build_instance("C", kNamespace, 10, broker); });
    EXPECT_EQ(instance == nullptr, round.was_hit());
  });
  EXPECT_EQ(rounds, kNamesOfKeys + 1);
}

}  // namespace
