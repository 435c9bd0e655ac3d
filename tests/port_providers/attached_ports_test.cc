// Devices as the name server knows them: both sides of their attachments, and their nodes.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;
using AttachedPorts = PortTest;

constexpr const char* kLogical = "VEXOR_LogicalComputerSystem";
constexpr const char* kUnknown = "unknown system";

TEST_F(AttachedPorts, BothSidesHaveAPortInTheVsanAndAPortOfTheDevice) {
  const Texts all = names("VEXOR_FCPort");
  const Texts expected = {
      port_path("2_1_2041000DEC0A1B2C", kUnknown, kLogical),
      port_path("2_2041000DEC0A1B2C", kUnknown),
      port_path("3_1_2100001122334401", kUnknown, "VEXOR_Vsan"),
      port_path("3_2100001122334401", kUnknown),
  };
  ASSERT_GT(all.size(), 41u);
  EXPECT_EQ(Texts(all.begin() + 37, all.begin() + 41), expected);
}

TEST_F(AttachedPorts, TheDevicesSideShowsTheDevice) {
  const Instance port = get(port_path("3_1_2100001122334401", kUnknown, "VEXOR_Vsan"));
  EXPECT_EQ(value(port, "ElementName"), "2100001122334401");
  EXPECT_EQ(value(port, "PermanentAddress"), "2100001122334401");
  EXPECT_EQ(value(port, "PeerPortWWN"), "2041000DEC0A1B2C");
  EXPECT_EQ(value(port, "VsanId"), "1");
  EXPECT_EQ(value(port, "PortType"), "10");
  EXPECT_EQ(value(port, "OtherIdentifyingInfo"), "2000001122334401");
}

TEST_F(AttachedPorts, TheFabricSideShowsTheSwitchPort) {
  const Instance port = get(port_path("2_2041000DEC0A1B2C", kUnknown));
  EXPECT_EQ(value(port, "PermanentAddress"), "2041000DEC0A1B2C");
  EXPECT_EQ(value(port, "PeerPortWWN"), "2100001122334401");
  EXPECT_EQ(value(port, "PortType"), "15");
}

TEST_F(AttachedPorts, DevicesOfALoopShareTheirSwitchPort) {
  size_t fabric_sides = 0;
  size_t devices = 0;
  for (const std::string& each : names("VEXOR_FCPort")) {
    fabric_sides += each.find("\"2_2_2047000DEC0A1B2C\"") != std::string::npos ? 1 : 0;
    devices += each.find("\"3_2_210000112233443") != std::string::npos ? 1 : 0;
  }
  EXPECT_EQ(fabric_sides, 1u);
  EXPECT_EQ(devices, 3u);
}

TEST_F(AttachedPorts, OnePortIsAskedOfTheNameServerInItsVsan) {
  EXPECT_EQ(exchanges([&] { get(port_path("3_1_2100001122334401", kUnknown, "VEXOR_Vsan")); }), 1u);
  EXPECT_EQ(exchanges([&] { get(port_path("2_1_2041000DEC0A1B2C", kUnknown, kLogical)); }), 1u);
}

TEST_F(AttachedPorts, APortOfADeviceIsAskedOfTheNameServerInEveryVsan) {
  // The count of the VSANs, two VSANs, and a query in each.
  EXPECT_EQ(exchanges([&] { get(port_path("3_2100001122334401", kUnknown)); }), 5u);
}

TEST_F(AttachedPorts, NamesOfNoAttachmentAreNotFound) {
  for (const char* id : {"3_1_2100001122334402", "3_3_2100001122334401", "2_1_2100001122334401",
                         "3_1_2041000DEC0A1B2C", "27_1_2100001122334401", "4_1_2100001122334401",
                         "3_1_210000112233440", "3_1_2100001122334401_", "3_-1_2100001122334401",
                         "3_1_21000011223344zz"})
    expect_not_found(port_path(id, kUnknown, "VEXOR_Vsan"));
  for (const char* id : {"3_2100001122334499", "2_2100001122334401", "27_2100001122334401"})
    expect_not_found(port_path(id, kUnknown));
}

TEST_F(AttachedPorts, AVsanWhoseNameServerDoesNotAnswerShowsNone) {
  fail(switch_sim::kDevicesOfPortType, Fault::Kind::error, 62, 1);
  const Texts all = names("VEXOR_FCPort");
  for (const std::string& each : all)
    EXPECT_EQ(each.find("\"3_1_"), std::string::npos) << each;
  EXPECT_EQ(all[37], port_path("2_2_2044000DEC0A1B2C", kUnknown, kLogical));
}

// ---- nodes ----

TEST_F(AttachedPorts, EveryNodeIsAGroupOfPorts) {
  const Texts all = names("VEXOR_LogicalPortGroup");
  // array-2 has two ports, in two VSANs.
  ASSERT_EQ(all.size(), 10u);
  EXPECT_EQ(all[0], id_path("VEXOR_LogicalPortGroup", "2000001122334401"));
  const Instance node = get(id_path("VEXOR_LogicalPortGroup", "2000001122334421"));
  EXPECT_EQ(value(node, "ElementName"), "2000001122334421");
}

TEST_F(AttachedPorts, NodesThatAreNotThereAreNotFound) {
  for (const char* id :
       {"2000001122334499", "2100001122334401", "200000112233442", "", "x", "2000001122334421 "})
    expect_not_found(id_path("VEXOR_LogicalPortGroup", id));
}

}  // namespace
