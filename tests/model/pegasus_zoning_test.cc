// The Pegasus face of zoning: namespace first, class name second, and the same content as the CMPI
// face.
#include <cim_utils/provider_util.h>
#include <gtest/gtest.h>

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>

#include "tests/model/class_source_double.h"
#include "tests/model/pegasus_text.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/model/zoning_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");

constexpr const char* kVsanKeys =
    "//HOST/root/cimv2:VEXOR_Vsan.CreationClassName=\"VEXOR_Vsan\",Name=\"200A000DEC0A1B2D\"";

class PegasusZoning : public testing::Test {
 protected:
  PegasusZoning() {
    ProviderUtil::mts_q = kQueue;
    classes_.define("VEXOR_ZoneSet", {"InstanceID"}, {"ElementName", "Active"});
    classes_.define("VEXOR_Zone", {"InstanceID"},
                    {"ElementName", "Active", "ProtocolType", "ReadOnly", "ZoneType"});
    classes_.define("VEXOR_ZoneAlias", {"InstanceID"},
                    {"ElementName", "CollectionAlias", "Active"});
    classes_.define("VEXOR_ZoneMemberSettingData", {"InstanceID"},
                    {"ConnectivityMemberID", "ConnectivityMemberType"});
    classes_.define(
        "VEXOR_ZoneService", {"Name", "SystemName", "SystemCreationClassName", "CreationClassName"},
        {"SessionState", "RequestedSessionState", "DefaultZoningState", "OperationalStatus"});
    classes_.define(
        "VEXOR_ZoneCapabilities", {"InstanceID"},
        {"ZoneNameMaxLen", "ZoneNameFormat", "SupportedConnectivityMemberTypes", "MaxNumZoneSets",
         "MaxNumZone", "MaxNumZoneMembers", "MaxNumZoneAliases", "MaxNumZonesPerZoneSet"});
    classes_.define("C", {"Collection", "Member"}, {});
    classes_.define("E", {"ManagedElement", "SettingData"}, {});
    classes_.define("D", {"Antecedent", "Dependent"}, {});
  }
  ~PegasusZoning() override { ProviderUtil::mts_q = -1; }

  static void expect_service_reads(Script& script) {
    script.expect(get(149).sap(15).sends(Record(2632).be32(520, 10)))
        .replies(Record(2632).be32(520, 10));
    script.expect(get(264).sap(14).sends(Record(1152).be32(0, 10).be32(4, 1)))
        .replies(Record(1152).be32(0, 10).byte(334, 1).put(22, hex("20 0a 00 0d ec 0a 1b 2d")));
  }

  template <class Value>
  static void expect(const Value& value, const std::string& text) {
    EXPECT_EQ(pegasus_text::of(value), text);
  }

  // A path of two references, the instance with them, and the object, which is the instance.
  static void expect_association(const CIMObjectPath& path, const CIMInstance& instance,
                                 const CIMObject& object, const char* cls, const char* first_role,
                                 const std::string& first, const char* second_role,
                                 const std::string& second) {
    const std::string keys = std::string("path HOST root/cimv2 ") + cls + "\nkey " + first_role +
                             " = " + first + "\nkey " + second_role + " = " + second + "\n";
    expect(path, keys);
    expect(instance, std::string("instance ") + cls + "\n  [Version]\nproperty " + first_role +
                         " reference " + first + "\n  [Key]\nproperty " + second_role +
                         " reference " + second + "\n  [Key]\n" + keys);
    expect(CIMInstance(object), pegasus_text::of(instance));
  }

  static std::string zoning(const char* cls, const char* id) {
    return std::string("//HOST/root/cimv2:") + cls + ".InstanceID=\"" + id + "\"";
  }

  ClassSourceDouble classes_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
  zs_cim_zone_set_ zone_set_ = records::zone_set_7();
  zs_cim_zone_ zone_ = records::zone_12();
  zs_cim_alias_ alias_ = records::alias_4();
  zs_cim_zone_member_ member_ = records::member_of_fcid();
};

TEST_F(PegasusZoning, AZoneSetIsThatOfTheOtherFace) {
  const std::string path = "path HOST root/cimv2 VEXOR_ZoneSet\nkey InstanceID = 10_7_1\n";
  expect(ProviderUtil::zone_set_fill_reference(kNamespace, "VEXOR_ZoneSet", &zone_set_), path);
  const CIMInstance instance =
      ProviderUtil::zone_set_build_instance(kNamespace, "VEXOR_ZoneSet", &zone_set_);
  expect(instance,
         "instance VEXOR_ZoneSet\n  [Version]\nproperty InstanceID string 10_7_1\n"
         "  [Key]\nproperty ElementName string backup\n  [Description]\n"
         "property Active boolean TRUE\n  [Description]\n" +
             path);
  expect(CIMInstance(ProviderUtil::zone_set_build_object(kNamespace, "VEXOR_ZoneSet", &zone_set_)),
         pegasus_text::of(instance));
}

TEST_F(PegasusZoning, AZoneIsThatOfTheOtherFace) {
  const std::string path = "path HOST root/cimv2 VEXOR_Zone\nkey InstanceID = 10_12_0\n";
  expect(ProviderUtil::zone_fill_reference(kNamespace, "VEXOR_Zone", &zone_), path);
  const CIMInstance instance = ProviderUtil::zone_build_instance(kNamespace, "VEXOR_Zone", &zone_);
  expect(instance,
         "instance VEXOR_Zone\n  [Version]\nproperty InstanceID string 10_12_0\n"
         "  [Key]\nproperty ElementName string tape\n  [Description]\n"
         "property Active boolean FALSE\n  [Description]\n"
         "property ProtocolType sint32 5\n  [Description]\n"
         "property ReadOnly sint32 1\n  [Description]\n"
         "property ZoneType uint16 3\n  [Description]\n" +
             path);
  expect(CIMInstance(ProviderUtil::zone_build_object(kNamespace, "VEXOR_Zone", &zone_)),
         pegasus_text::of(instance));
}

TEST_F(PegasusZoning, AnAliasIsThatOfTheOtherFace) {
  const std::string path = "path HOST root/cimv2 VEXOR_ZoneAlias\nkey InstanceID = 10_4_1\n";
  expect(ProviderUtil::zone_alias_fill_reference(kNamespace, "VEXOR_ZoneAlias", &alias_), path);
  const CIMInstance instance =
      ProviderUtil::zone_alias_build_instance(kNamespace, "VEXOR_ZoneAlias", &alias_);
  expect(instance,
         "instance VEXOR_ZoneAlias\n  [Version]\nproperty InstanceID string 10_4_1\n"
         "  [Key]\nproperty ElementName string library\n  [Description]\n"
         "property CollectionAlias string library\n  [Description]\n"
         "property Active boolean TRUE\n  [Description]\n" +
             path);
  expect(CIMInstance(ProviderUtil::zone_alias_build_object(kNamespace, "VEXOR_ZoneAlias", &alias_)),
         pegasus_text::of(instance));
}

TEST_F(PegasusZoning, AMemberIsThatOfTheOtherFace) {
  const char* cls = "VEXOR_ZoneMemberSettingData";
  const std::string path =
      "path HOST root/cimv2 VEXOR_ZoneMemberSettingData\n"
      "key InstanceID = 10^3^00610203^0\n";
  expect(ProviderUtil::zone_member_fill_reference(kNamespace, cls, &member_), path);
  const CIMInstance instance = ProviderUtil::zone_member_build_instance(kNamespace, cls, &member_);
  expect(instance,
         "instance VEXOR_ZoneMemberSettingData\n  [Version]\n"
         "property InstanceID string 10^3^00610203^0\n  [Key]\n"
         "property ConnectivityMemberID string 610203\n  [Description]\n"
         "property ConnectivityMemberType uint16 3\n  [Description]\n" +
             path);
  expect(CIMInstance(ProviderUtil::zone_member_build_object(kNamespace, cls, &member_)),
         pegasus_text::of(instance));
}

TEST_F(PegasusZoning, AZoneServiceIsThatOfTheOtherFaceOnThisFacesQueue) {
  const char* cls = "VEXOR_ZoneService";
  const std::string path =
      "path HOST root/cimv2 VEXOR_ZoneService\nkey CreationClassName = VEXOR_ZoneService\n"
      "key Name = 10\nkey SystemCreationClassName = VEXOR_Vsan\nkey SystemName = "
      "200A000DEC0A1B2D\n";
  Script script;
  expect_service_reads(script);
  expect(ProviderUtil::zone_service_fill_reference(kNamespace, cls, 10), path);
  const std::string text =
      "instance VEXOR_ZoneService\n  [Version]\nproperty Name string 10\n  [Key]\n"
      "property SystemName string 200A000DEC0A1B2D\n  [Key]\n"
      "property SystemCreationClassName string VEXOR_Vsan\n  [Key]\n"
      "property CreationClassName string VEXOR_ZoneService\n  [Key]\n"
      "property SessionState uint16 4\n  [Description]\n"
      "property RequestedSessionState uint16 2\n  [Description]\n"
      "property defaultZoningState uint16 3\n  [Description]\n"
      "property OperationalStatus uint16[] 2\n  [Description]\n" +
      path;
  for (int i = 0; i < 2; ++i) {
    expect_service_reads(script);
    script.expect(query_policies(10)).gives(hex("01 02 03 04"));
    script.expect(read_policy(hex("01 02 03 04"))).gives(0);
    expect_service_reads(script);
    if (i == 0) {
      expect(ProviderUtil::zone_service_build_instance(kNamespace, cls, 10), text);
    } else {
      expect(CIMInstance(ProviderUtil::zone_service_build_object(kNamespace, cls, 10)), text);
    }
  }
}

TEST_F(PegasusZoning, CapabilitiesAreThoseOfTheOtherFace) {
  const char* cls = "VEXOR_ZoneCapabilities";
  const std::string path = "path HOST root/cimv2 VEXOR_ZoneCapabilities\nkey InstanceID = 10\n";
  expect(ProviderUtil::zone_cap_fill_reference(kNamespace, cls, "10"), path);
  const CIMInstance instance = ProviderUtil::zone_cap_build_instance(kNamespace, cls, "10");
  expect(instance,
         "instance VEXOR_ZoneCapabilities\n  [Version]\nproperty InstanceID string 10\n"
         "  [Key]\nproperty ZoneNameMaxLen uint32 64\n  [Description]\n"
         "property ZoneNameFormat uint16 3\n  [Description]\n"
         "property SupportedConnectivityMemberTypes uint16[] 2\n  [Description]\n"
         "property MaxNumZoneSets uint32 1000\n  [Description]\n"
         "property MaxNumZone uint32 8000\n  [Description]\n"
         "property MaxNumZoneMembers uint32 20000\n  [Description]\n"
         "property MaxNumZoneAliases uint32 2048\n  [Description]\n"
         "property MaxNumZonesPerZoneSet uint32 8000\n  [Description]\n" +
             path);
  expect(CIMInstance(ProviderUtil::zone_cap_build_object(kNamespace, cls, "10")),
         pegasus_text::of(instance));
}

TEST_F(PegasusZoning, AZoneSetCollectsZonesAndAZoneCollectsAliases) {
  expect_association(
      ProviderUtil::zmoc_fill_reference_zoneSetZone(kNamespace, "C", "10_7_1", "10_12_1"),
      ProviderUtil::zmoc_build_instance_zoneSetZone(kNamespace, "C", "10_7_1", "10_12_1"),
      ProviderUtil::zmoc_build_object_zoneSetZone(kNamespace, "C", "10_7_1", "10_12_1"), "C",
      "Collection", zoning("VEXOR_ZoneSet", "10_7_1"), "Member", zoning("VEXOR_Zone", "10_12_1"));
  expect_association(ProviderUtil::zmoc_fill_reference(kNamespace, "C", &zone_, &alias_),
                     ProviderUtil::zmoc_build_instance(kNamespace, "C", &zone_, &alias_),
                     ProviderUtil::zmoc_build_object(kNamespace, "C", &zone_, &alias_), "C",
                     "Collection", zoning("VEXOR_Zone", "10_12_0"), "Member",
                     zoning("VEXOR_ZoneAlias", "10_4_1"));
}

TEST_F(PegasusZoning, ZonesAndAliasesHaveMembers) {
  const std::string member = zoning("VEXOR_ZoneMemberSettingData", "10^3^00610203^0");
  expect_association(
      ProviderUtil::esd_fill_reference_zoneZoneMember(kNamespace, "E", &zone_, &member_),
      ProviderUtil::esd_build_instance_zoneZoneMember(kNamespace, "E", &zone_, &member_),
      ProviderUtil::esd_build_object_zoneZoneMember(kNamespace, "E", &zone_, &member_), "E",
      "ManagedElement", zoning("VEXOR_Zone", "10_12_0"), "SettingData", member);
  expect_association(
      ProviderUtil::esd_fill_reference_zoneAliasZoneMember(kNamespace, "E", &alias_, &member_),
      ProviderUtil::esd_build_instance_zoneAliasZoneMember(kNamespace, "E", &alias_, &member_),
      ProviderUtil::esd_build_object_zoneAliasZoneMember(kNamespace, "E", &alias_, &member_), "E",
      "ManagedElement", zoning("VEXOR_ZoneAlias", "10_4_1"), "SettingData", member);
}

TEST_F(PegasusZoning, AVsanHostsItsCollections) {
  const char* d = "D";
  expect_association(
      ProviderUtil::hosted_collection_fill_reference(kNamespace, d, &vsan_, &conf_, 10),
      ProviderUtil::hosted_collection_build_instance(kNamespace, d, &vsan_, &conf_, 10),
      ProviderUtil::hosted_collection_build_object(kNamespace, d, &vsan_, &conf_, 10), d,
      "Antecedent", kVsanKeys, "Dependent", zoning("VEXOR_ConnectivityCollection", "10"));
  expect_association(
      ProviderUtil::hosted_collection_fill_reference_zset(kNamespace, d, &vsan_, &conf_,
                                                          &zone_set_),
      ProviderUtil::hosted_collection_build_instance_zset(kNamespace, d, &vsan_, &conf_,
                                                          &zone_set_),
      ProviderUtil::hosted_collection_build_object_zset(kNamespace, d, &vsan_, &conf_, &zone_set_),
      d, "Antecedent", kVsanKeys, "Dependent", zoning("VEXOR_ZoneSet", "10_7_1"));
  expect_association(
      ProviderUtil::hosted_collection_fill_reference_zone(kNamespace, d, &vsan_, &conf_, &zone_),
      ProviderUtil::hosted_collection_build_instance_zone(kNamespace, d, &vsan_, &conf_, &zone_),
      ProviderUtil::hosted_collection_build_object_zone(kNamespace, d, &vsan_, &conf_, &zone_), d,
      "Antecedent", kVsanKeys, "Dependent", zoning("VEXOR_Zone", "10_12_0"));
  expect_association(
      ProviderUtil::hosted_collection_fill_reference_zalias(kNamespace, d, &vsan_, &conf_, &alias_),
      ProviderUtil::hosted_collection_build_instance_zalias(kNamespace, d, &vsan_, &conf_, &alias_),
      ProviderUtil::hosted_collection_build_object_zalias(kNamespace, d, &vsan_, &conf_, &alias_),
      d, "Antecedent", kVsanKeys, "Dependent", zoning("VEXOR_ZoneAlias", "10_4_1"));
}

TEST_F(PegasusZoning, AVsanHostsItsZoneServiceAndThereTheClassNameIsFirst) {
  Script script;
  for (int i = 0; i < 5; ++i)
    expect_service_reads(script);
  expect_association(
      ProviderUtil::hosted_service_fill_reference("D", kNamespace, &vsan_, &conf_),
      ProviderUtil::hosted_service_build_instance("D", kNamespace, &vsan_, &conf_),
      ProviderUtil::hosted_service_build_object("D", kNamespace, &vsan_, &conf_), "D", "Antecedent",
      kVsanKeys, "Dependent",
      "//HOST/root/cimv2:VEXOR_ZoneService.CreationClassName=\"VEXOR_ZoneService\",Name=\"10\","
      "SystemCreationClassName=\"VEXOR_Vsan\",SystemName=\"200A000DEC0A1B2D\"");
}

TEST_F(PegasusZoning, CollectionsAndHostsOfGivenReferences) {
  const CIMObjectPath one = ProviderUtil::zone_fill_reference(kNamespace, "VEXOR_Zone", &zone_);
  const CIMObjectPath two =
      ProviderUtil::zone_alias_fill_reference(kNamespace, "VEXOR_ZoneAlias", &alias_);
  const std::string first = zoning("VEXOR_Zone", "10_12_0");
  const std::string second = zoning("VEXOR_ZoneAlias", "10_4_1");
  expect_association(ProviderUtil::zmoc_fill_reference_MemberCollection(kNamespace, "C", one, two),
                     ProviderUtil::zmoc_build_instance_MemberCollection(kNamespace, "C", one, two),
                     ProviderUtil::zmoc_build_object_MemberCollection(kNamespace, "C", one, two),
                     "C", "Collection", first, "Member", second);
  expect_association(ProviderUtil::zone_hosted_collection_fill_reference(kNamespace, "D", one, two),
                     ProviderUtil::zhc_build_instance(kNamespace, "D", one, two),
                     ProviderUtil::zhc_build_object(kNamespace, "D", one, two), "D", "Antecedent",
                     first, "Dependent", second);
}

TEST_F(PegasusZoning, NoRecordAndNoIdMakeAnUninitializedObject) {
  const Script script;
  EXPECT_TRUE(
      ProviderUtil::zone_set_fill_reference(kNamespace, "C", nullptr).getClassName().isNull());
  EXPECT_TRUE(ProviderUtil::zone_fill_reference(kNamespace, "C", nullptr).getClassName().isNull());
  EXPECT_TRUE(
      ProviderUtil::zone_alias_fill_reference(kNamespace, "C", nullptr).getClassName().isNull());
  EXPECT_TRUE(
      ProviderUtil::zone_member_fill_reference(kNamespace, "C", nullptr).getClassName().isNull());
  EXPECT_TRUE(
      ProviderUtil::zone_cap_fill_reference(kNamespace, "C", nullptr).getClassName().isNull());
  EXPECT_TRUE(ProviderUtil::zone_set_build_instance(kNamespace, "C", nullptr).isUninitialized());
  EXPECT_TRUE(ProviderUtil::zone_build_instance(kNamespace, "C", nullptr).isUninitialized());
  EXPECT_TRUE(ProviderUtil::zone_alias_build_instance(kNamespace, "C", nullptr).isUninitialized());
  EXPECT_TRUE(ProviderUtil::zone_member_build_instance(kNamespace, "C", nullptr).isUninitialized());
  EXPECT_TRUE(ProviderUtil::zone_cap_build_instance(kNamespace, "C", nullptr).isUninitialized());
}

TEST_F(PegasusZoning, AnAssociationLeavesOutAnEndWithoutARecord) {
  const Script script;
  expect(ProviderUtil::esd_fill_reference_zoneZoneMember(kNamespace, "E", &zone_, nullptr),
         "path HOST root/cimv2 E\nkey ManagedElement = " + zoning("VEXOR_Zone", "10_12_0") + "\n");
  expect(ProviderUtil::zmoc_fill_reference_MemberCollection(kNamespace, "C", CIMObjectPath(),
                                                            CIMObjectPath()),
         "path HOST root/cimv2 C\n");
}

TEST_F(PegasusZoning, WithoutItsServicesAZoneServiceIsOnTheSystemOfItsNumber) {
  Responder services([](const Request&) { return Response::failed(17); });
  Script script;
  for (int i = 0; i < 2; ++i)
    script.expect(query_policies(10)).fails(17);
  const std::string path =
      "path HOST root/cimv2 VEXOR_ZoneService\nkey CreationClassName = VEXOR_ZoneService\n"
      "key Name = 10\nkey SystemCreationClassName = VEXOR_Vsan\nkey SystemName = 10\n";
  expect(ProviderUtil::zone_service_fill_reference(kNamespace, "VEXOR_ZoneService", 10), path);
  for (const CIMInstance& made :
       {ProviderUtil::zone_service_build_instance(kNamespace, "VEXOR_ZoneService", 10),
        CIMInstance(
            ProviderUtil::zone_service_build_object(kNamespace, "VEXOR_ZoneService", 10))}) {
    const std::string text = pegasus_text::of(made);
    EXPECT_NE(text.find("property SystemName string 10\n"), std::string::npos);
    EXPECT_NE(text.find("property defaultZoningState uint16 0\n"), std::string::npos);
    EXPECT_EQ(pegasus_text::of(made.getPath()), path);
  }
}

TEST_F(PegasusZoning, WithoutItsServicesAHostedServicesEndIsOnTheSystemOfItsNumber) {
  Responder services([](const Request&) { return Response::failed(17); });
  const std::string service =
      "//HOST/root/cimv2:VEXOR_ZoneService.CreationClassName=\"VEXOR_ZoneService\",Name=\"10\","
      "SystemCreationClassName=\"VEXOR_Vsan\",SystemName=\"10\"";
  expect_association(ProviderUtil::hosted_service_fill_reference("D", kNamespace, &vsan_, &conf_),
                     ProviderUtil::hosted_service_build_instance("D", kNamespace, &vsan_, &conf_),
                     ProviderUtil::hosted_service_build_object("D", kNamespace, &vsan_, &conf_),
                     "D", "Antecedent", kVsanKeys, "Dependent", service);
}

TEST_F(PegasusZoning, EveryAssociationLeavesOutItsEndsWithoutRecords) {
  using P = ProviderUtil;
  const Script script;
  const CIMInstance made[] = {
      P::zmoc_build_instance_zoneSetZone(kNamespace, "C", nullptr, nullptr),
      P::zmoc_build_instance(kNamespace, "C", nullptr, nullptr),
      P::zmoc_build_instance_MemberCollection(kNamespace, "C", CIMObjectPath(), CIMObjectPath()),
      P::esd_build_instance_zoneZoneMember(kNamespace, "E", nullptr, nullptr),
      P::esd_build_instance_zoneAliasZoneMember(kNamespace, "E", nullptr, nullptr),
      P::hosted_collection_build_instance_zset(kNamespace, "D", nullptr, nullptr, nullptr),
      P::hosted_collection_build_instance_zone(kNamespace, "D", nullptr, nullptr, nullptr),
      P::hosted_collection_build_instance_zalias(kNamespace, "D", nullptr, nullptr, nullptr),
      P::hosted_service_build_instance("D", kNamespace, nullptr, nullptr),
      P::zhc_build_instance(kNamespace, "D", CIMObjectPath(), CIMObjectPath())};
  for (const CIMInstance& instance : made) {
    EXPECT_EQ(instance.getPropertyCount(), 0u);
    EXPECT_EQ(instance.getPath().getKeyBindings().size(), 0u);
  }
  EXPECT_EQ(
      P::hosted_collection_build_instance(kNamespace, "D", nullptr, nullptr, 10).getPropertyCount(),
      1u);
}

TEST_F(PegasusZoning, EveryExceptionIsTheCallers) {
  using P = ProviderUtil;
  using Pegasus::Exception;
  const String bad("root/c i m");
  EXPECT_THROW(P::zone_set_fill_reference(bad, "C", &zone_set_), Exception);
  EXPECT_THROW(P::zone_build_instance(kNamespace, "no class", &zone_), Exception);
  EXPECT_THROW(P::zmoc_fill_reference(bad, "C", &zone_, &alias_), Exception);
  EXPECT_THROW(P::hosted_collection_build_object(bad, "D", &vsan_, &conf_, 10), Exception);
}

}  // namespace
