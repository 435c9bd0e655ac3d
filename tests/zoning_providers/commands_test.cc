// Zoning on the command line: references as arguments, what is given back, and how commands end.
#include "tests/tools/program.h"

namespace program {
namespace {

class ZoningCommands : public ProgramTest {
 protected:
  // With the state file of this test.
  Outcome command(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"--state", (folder_.path() / "state.json").string()});
    Outcome outcome = run(std::move(arguments));
    outcome.out = without_host_name(outcome.out);
    return outcome;
  }
  Outcome invoke(const std::string& method, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {"invoke", kService, method};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return command(words);
  }
  static void expect(const Outcome& outcome, int status, const std::string& out,
                     const std::string& err = "") {
    EXPECT_EQ(outcome.out, out);
    EXPECT_EQ(outcome.err, err);
    EXPECT_EQ(outcome.status, status);
  }

  const std::string kService =
      "VEXOR_ZoneService.Name=\"1\",SystemName=\"2001000DEC0A1B2D\","
      "SystemCreationClassName=\"VEXOR_Vsan\"";
  TemporaryFolder folder_;
};

TEST_F(ZoningCommands, WhatAMethodGivesBackIsPrinted) {
  expect(invoke("CreateZone", {"ZoneName=web"}), 0,
         "CreateZone returned 0\nZone = //HOST/root/cimv2:VEXOR_Zone.InstanceID=\"1_3_0\"\n");
  expect(invoke("CreateZone", {"ZoneName=web"}), 1, "CreateZone returned 8\n");
}

TEST_F(ZoningCommands, AReferenceIsWrittenAsAnyPath) {
  for (const char* zone :
       {"VEXOR_Zone.InstanceID=\"1_9_0\"", "root/cimv2:VEXOR_Zone.InstanceID=\"1_9_0\"",
        "//elsewhere/root/cimv2:vexor_zone.instanceid=\"1_9_0\""})
    expect(invoke("AddZone",
                  {"ZoneSet=VEXOR_ZoneSet.InstanceID=\"1_1_0\"", std::string("Zone=") + zone}),
           1, "AddZone returned 7\n");
}

TEST_F(ZoningCommands, ATextThatIsNoPathIsBadInput) {
  expect(invoke("AddZone", {"ZoneSet=VEXOR_ZoneSet.InstanceID=\"1_1_0\"", "Zone=1_2_0\""}), 2, "",
         "vexor-cim: VEXOR_ZoneService.AddZone.Zone: 1_2_0\": column 1: expected a class name\n");
}

TEST_F(ZoningCommands, ARequiredParameterIsAskedFor) {
  expect(invoke("AddZone", {"Zone=VEXOR_Zone.InstanceID=\"1_2_0\""}), 2, "",
         "vexor-cim: VEXOR_ZoneService.AddZone: parameter ZoneSet is missing\n");
}

TEST_F(ZoningCommands, AssociationsAreCreatedAndDeleted) {
  expect(invoke("CreateZone", {"ZoneName=web"}), 0,
         "CreateZone returned 0\nZone = //HOST/root/cimv2:VEXOR_Zone.InstanceID=\"1_3_0\"\n");
  expect(command({"create", "VEXOR_ZoneMemberOfCollection",
                  "Collection=VEXOR_ZoneSet.InstanceID=\"1_1_0\"",
                  "Member=VEXOR_Zone.InstanceID=\"1_3_0\""}),
         0,
         "root/cimv2:VEXOR_ZoneMemberOfCollection.Collection=\"//HOST/root/"
         "cimv2:VEXOR_ZoneSet.InstanceID=\\\"1_1_0\\\"\",Member=\"//HOST/root/"
         "cimv2:VEXOR_Zone.InstanceID=\\\"1_3_0\\\"\"\n");
  const std::string path =
      "VEXOR_ZoneMemberOfCollection.Collection=\"VEXOR_ZoneSet.InstanceID=\\\"1_1_0\\\"\","
      "Member=\"VEXOR_Zone.InstanceID=\\\"1_3_0\\\"\"";
  EXPECT_EQ(command({"get", path}).status, 0);
  EXPECT_EQ(command({"delete", path}).status, 0);
  expect(command({"delete", path}), 1, "",
         "vexor-cim: there is no such VEXOR_ZoneMemberOfCollection\n");
}

TEST_F(ZoningCommands, ObjectsAreMadeByMethodsOnlyAndNotModified) {
  expect(command({"create", "VEXOR_Zone", "ElementName=web"}), 1, "",
         "vexor-cim: instances of VEXOR_Zone cannot be created\n");
  expect(command({"modify", "VEXOR_Zone.InstanceID=\"1_1_0\"", "ElementName=web"}), 1, "",
         "vexor-cim: instances of VEXOR_Zone cannot be modified\n");
}

TEST_F(ZoningCommands, TheZoningOfTheDefaultFabricIsShown) {
  expect(command({"enumerate", "VEXOR_ZoneMemberOfCollection"}), 0,
         "VEXOR_ZoneMemberOfCollection   8 instances in root/cimv2\n"
         "Collection                      Member\n"
         "VEXOR_ZoneSet.InstanceID=1_1_1  VEXOR_Zone.InstanceID=1_1_1\n"
         "VEXOR_ZoneSet.InstanceID=1_1_1  VEXOR_Zone.InstanceID=1_2_1\n"
         "VEXOR_Zone.InstanceID=1_1_1     VEXOR_ZoneAlias.InstanceID=1_1_1\n"
         "VEXOR_Zone.InstanceID=1_2_1     VEXOR_ZoneAlias.InstanceID=1_1_1\n"
         "VEXOR_ZoneSet.InstanceID=1_1_0  VEXOR_Zone.InstanceID=1_1_0\n"
         "VEXOR_ZoneSet.InstanceID=1_1_0  VEXOR_Zone.InstanceID=1_2_0\n"
         "VEXOR_Zone.InstanceID=1_1_0     VEXOR_ZoneAlias.InstanceID=1_1_0\n"
         "VEXOR_Zone.InstanceID=1_2_0     VEXOR_ZoneAlias.InstanceID=1_1_0\n");
}

}  // namespace
}  // namespace program
