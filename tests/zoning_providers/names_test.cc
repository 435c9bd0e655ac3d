// Names that are none cost nothing and find nothing.
#include "tests/zoning_providers/zoning_fixture.h"

namespace {

using namespace zoning_provider_tests;

class ZoningNames : public ZoningFixture {};

TEST_F(ZoningNames, OnlyWhatTheLibraryWritesNamesAZone) {
  const Script script;
  for (const char* id :
       {"",        "1",      "1_7",      "1_7_",   "1_7_2",  "1_7_-1",          "1_0_0",
        "1_-7_0",  "0_7_0",  "4097_7_0", "01_7_0", "1_07_0", "1_7_00",          "1_7_0_",
        "1_7_0_1", "1_7x_0", " 1_7_0",   "1_7_0 ", "x_y_z",  "1_99999999999_0", "__",
        "1^2^3^0"}) {
    const Outcome answer = get(zone(id));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND) << id;
    EXPECT_EQ(answer.message, "there is no such VEXOR_Zone") << id;
  }
  const std::string long_id = "1_7_" + std::string(300, '0');
  EXPECT_EQ(get(zone(long_id.c_str())).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ZoningNames, OnlyWhatTheLibraryWritesNamesAMember) {
  const Script script;
  for (const char* id : {"", "^", "^^^", "1^2^3", "1^2^21000024FF3A1B01", "1^2^21000024FF3A1B01^",
                         "x^2^3^0", "1^2^21000024FF3A1B01^2", "4097^2^3^0",
                         "1^2^21000024FF3A1B01^10", "01^2^3^0", "-1^2^3^0", "1_7_0"})
    EXPECT_EQ(get(member(id)).code, CMPI_RC_ERR_NOT_FOUND) << id;
  const std::string long_id = "1^12^" + std::string(300, 'x') + "^0";
  EXPECT_EQ(get(member(long_id.c_str())).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ZoningNames, AZoneIsReadByItsNumberAlone) {
  Script script;
  script.expect(read_zone(1, 1, 7)).gives({zone_entry(1, 7, "web", {}, 1)});
  EXPECT_EQ(get(zone("1_7_1")).returned.instances,
            (Texts{"VEXOR_Zone {InstanceID=\"1_7_1\", ElementName=\"web\", Active=true, "
                   "ProtocolType=sint32 0, ReadOnly=sint32 1, ZoneType=uint16 0}"}));
}

TEST_F(ZoningNames, AZoneThatIsNotThereIsNotFound) {
  Script script;
  script.expect(read_zone(1, 0, 7)).returns(0x40200002);
  EXPECT_EQ(get(zone("1_7_0")).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ZoningNames, OnlyTheNumberOfAVsanNamesAServiceOrCapabilities) {
  const Script script;
  for (const char* name : {"", "0", "01", "1x", "x", "-1", "4095", "99999999999"}) {
    EXPECT_EQ(get(object("VEXOR_ZoneCapabilities", name)).code, CMPI_RC_ERR_NOT_FOUND) << name;
    auto* path = broker_.path("VEXOR_ZoneService", {{"SystemCreationClassName", "VEXOR_Vsan"},
                                                    {"SystemName", "2001000DEC0A1B2D"},
                                                    {"CreationClassName", "VEXOR_ZoneService"},
                                                    {"Name", name}});
    EXPECT_EQ(get(path).code, CMPI_RC_ERR_NOT_FOUND) << name;
  }
  EXPECT_EQ(get(object("VEXOR_ZoneCapabilities", "2")).code, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(get(object("VEXOR_ZoneCapabilities", "1")).returned.instances,
            (Texts{"VEXOR_ZoneCapabilities {InstanceID=\"1\", ZoneNameMaxLen=uint32 64, "
                   "ZoneNameFormat=uint16 3, SupportedConnectivityMemberTypes={uint16 2}, "
                   "MaxNumZoneSets=uint32 1000, MaxNumZone=uint32 8000, MaxNumZoneMembers=uint32 "
                   "20000, MaxNumZoneAliases=uint32 2048, MaxNumZonesPerZoneSet=uint32 8000}"}));
}

TEST_F(ZoningNames, ReferencesThatNameNothingAreInvalidParametersAndNobodyIsAsked) {
  const Script script;
  auto* two_keys = broker_.path("VEXOR_Zone", {{"InstanceID", "1_7_0"}, {"Name", "web"}});
  for (CMPIObjectPath* bad :
       {zone("1_7_1"), zone("2_7_0"), zone("1_x_0"), alias("1_7_0"), zone_set("1_7_0"), two_keys,
        broker_.path("VEXOR_Zone"), vsan_path("2001000DEC0A1B2D")}) {
    EXPECT_EQ(call("AddZone", in().reference("ZoneSet", zone_set("1_2_0")).reference("Zone", bad)),
              "uint32 5")
        << broker_.text(bad);
    if (bad == nullptr) continue;
    EXPECT_EQ(
        call("AddZoneAlias", in().reference("Zone", bad).reference("ZoneAlias", alias("1_3_1"))),
        "uint32 5")
        << broker_.text(bad);
  }
  EXPECT_EQ(call("AddZone", in().reference("ZoneSet", zone_set("1_2_0"))), "uint32 5");
  EXPECT_EQ(call("AddZone", in().reference("Zone", zone("1_7_0"))), "uint32 5");
  EXPECT_EQ(call("AddZone",
                 in().text("ZoneSet", "VEXOR_ZoneSet.InstanceID=\"1_2_0\"").text("Zone", "1_7_0")),
            "uint32 5");
  EXPECT_EQ(call("ActivateZoneSet", in().reference("ZoneSet", zone_set("1_2_0"))), "uint32 5");
  EXPECT_EQ(call("ActivateZoneSet", in().flag("Activate", true)), "uint32 5");
  EXPECT_EQ(
      call("ActivateZoneSet", in().reference("ZoneSet", zone_set("2_2_0")).flag("Activate", true)),
      "uint32 5");
  EXPECT_EQ(call("AddZoneMembershipSettingData",
                 in().reference("SystemSpecificCollection", zone("1_7_0"))
                     .reference("ZoneMembershipSettingData", member("2^2^21000024FF3A1B01^0"))),
            "uint32 5");
  EXPECT_EQ(call("AddZoneMembershipSettingData",
                 in().reference("SystemSpecificCollection", zone_set("1_2_0"))
                     .reference("ZoneMembershipSettingData", member("1^2^21000024FF3A1B01^0"))),
            "uint32 5");
}

TEST_F(ZoningNames, NamesOfWrongLengthsAreInvalidParametersAndNobodyIsAsked) {
  const Script script;
  const std::string too_long(65, 'n');
  for (const char* name : {"", too_long.c_str()}) {
    EXPECT_EQ(call("CreateZoneSet", in().text("ZoneSetName", name)), "uint32 5");
    EXPECT_EQ(call("CreateZone", in().text("ZoneName", name)), "uint32 5");
    EXPECT_EQ(call("CreateZoneAlias", in().text("CollectionAlias", name)), "uint32 5");
  }
  EXPECT_EQ(call("CreateZone", in()), "uint32 5");
  EXPECT_EQ(call("CreateZone", in().reference("ZoneName", zone("1_7_0"))), "uint32 5");
}

TEST_F(ZoningNames, TypesOfZonesAreNotKept) {
  const Script script;
  const auto create = [this](In arguments) {
    return call("CreateZone", arguments.text("ZoneName", "web"));
  };
  EXPECT_EQ(create(in().number("ZoneType", 3)), "uint32 1");
  EXPECT_EQ(create(in().number("ZoneType", 2).number("ZoneSubType", 2)), "uint32 1");
  EXPECT_EQ(create(in().number("ZoneSubType", 4)), "uint32 1");
  EXPECT_EQ(create(in().number("ZoneType", 1)), "uint32 5");
  EXPECT_EQ(create(in().number("ZoneType", 4)), "uint32 5");
  EXPECT_EQ(create(in().number("ZoneSubType", 5)), "uint32 5");
}

struct Value {
  uint16_t type;
  const char* text;
};

TEST_F(ZoningNames, ValuesThatATypeDoesNotHaveAreInvalidParametersAndNobodyIsAsked) {
  const Script script;
  const std::string text64(64, 'x');
  const std::string text300(300, 'x');
  const Value kValues[] = {
      {0, "x"},
      {1, "21000024FF3A1B01"},
      {14, "x"},
      {101, "21000024FF3A1B01:0001000000000000"},
      {102, "010A00:0001000000000000"},
      {65535, "x"},
      {2, ""},
      {2, "21000024FF3A1B0"},
      {2, "21000024FF3A1B011"},
      {2, "21000024FF3A1B0G"},
      {2, "21:00:00:24:FF:3A"},
      {7, "21000024FF3A1B0 "},
      {3, "010A0"},
      {3, "010A000"},
      {3, "01;A00"},
      {4, "0:5"},
      {4, "3:0"},
      {4, "240:5"},
      {4, "3:256"},
      {4, "259:5"},
      {4, "3:5:7"},
      {4, "3"},
      {4, "a:5"},
      {4, "-3:5"},
      {4, " 3:5"},
      {4, "4294967299:5"},
      {8, "10.0.0.1"},
      {8, "10.0.0.256/255.0.0.0"},
      {8, "10.0.0.1/255.0.0"},
      {8, "10.0.0.1/8"},
      {9, "10.0.0.1"},
      {9, "2001:db8::g"},
      {9, "2001:db8::1/64"},
      {10, "fc1/5"},
      {10, "fc1/5;2000000DEC0A1B2"},
      {10, "fc1/5;2000000DEC0A1B2X"},
      {10, "fc1/500000;2000000DEC0A1B2C"},
      {11, "fc1/5"},
      {11, "fc1/5;0"},
      {11, "fc1/5;240"},
      {11, "fc1/5;263"},
      {11, ";7"},
      {11, "fc1/500000;7"},
      {12, ""},
      {12, "a^b"},
      {12, text64.c_str()},
      {12, text300.c_str()},
      {13, "x"},
      {5, ""},
      {5, text64.c_str()},
  };
  for (const Value& value : kValues) {
    EXPECT_EQ(call("CreateZoneMembershipSettingData",
                   in().number("ConnectivityMemberType", value.type)
                       .text("ConnectivityMemberID", value.text)
                       .reference("SystemSpecificCollection", zone("1_7_0"))),
              "uint32 5")
        << value.type << " " << value.text;
    EXPECT_EQ(given_back("ZoneMembershipSettingData"), "nothing");
  }
  // An alias in an alias.
  EXPECT_EQ(call("CreateZoneMembershipSettingData",
                 in().number("ConnectivityMemberType", 5)
                     .text("ConnectivityMemberID", "disks")
                     .reference("SystemSpecificCollection", alias("1_3_0"))),
            "uint32 5");
  EXPECT_EQ(call("CreateZoneMembershipSettingData",
                 in().number("ConnectivityMemberType", 2)
                     .text("ConnectivityMemberID", "21000024FF3A1B01")
                     .reference("SystemSpecificCollection", zone_set("1_2_0"))),
            "uint32 5");
}

TEST_F(ZoningNames, NothingOfTheZoningCanBeModified) {
  const Script script;
  for (const char* cls : {"VEXOR_ZoneSet", "VEXOR_Zone", "VEXOR_ZoneAlias"}) {
    const Outcome answer = modify(object(cls, "1_7_0"), broker_.instance(cls));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(answer.message, std::string("instances of ") + cls + " cannot be modified");
  }
}

}  // namespace
