// What ties ports, endpoints, nodes, VSANs and other systems together.
#include "tests/hardware_providers/hardware_fixture.h"

namespace hardware_tests {
namespace {

constexpr const char* kFc1 = "16842753";  // host-a, VSAN 1
constexpr const char* kFc2 = "16842754";  // switch-2 fc1/2, VSAN 1
constexpr const char* kFc7 = "16842759";  // three disks, VSAN 2
constexpr const char* kVsanSystem = "VEXOR_LogicalComputerSystem";

std::string own_endpoint(const char* wwn) {
  return endpoint_path(wwn, kOwnWwn);
}

class Connectivity : public HardwareTest {};

// ---- one port in several forms ----

TEST_F(Connectivity, AnOwnPortIsThePortAtItsLink) {
  const std::string device = port_path("2000000DEC0A1B2C_16842754_1");
  const std::string in_vsan = port_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D", kVsanSystem);
  expect_linked(port_path(kFc2), "VEXOR_LogicalIdentity", device);
  expect_linked(device, "VEXOR_LogicalIdentity", in_vsan);
}

TEST_F(Connectivity, APortOfALinkOfSeveralVsansIsThePortInEach) {
  EXPECT_EQ(linked(port_path("2000000DEC0A1B2C_67108865_4"), "VEXOR_LogicalIdentity"),
            (Texts{port_path("4_1_97_1_0_67108865", "2001000DEC0A1B2D", kVsanSystem),
                   port_path("4_2_21_1_0_67108865", "2002000DEC0A1B2D", kVsanSystem),
                   port_path("67108865")}));
}

TEST_F(Connectivity, APortOfAnotherSwitchIsNoOwnPort) {
  EXPECT_EQ(
      linked(port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"), "VEXOR_LogicalIdentity"),
      (Texts{port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", kVsanSystem)}));
}

TEST_F(Connectivity, AnOwnPortIsThePortThatADeviceLogsInAt) {
  const std::string device = port_path("2_2041000DEC0A1B2C", "unknown system");
  expect_linked(port_path(kFc1), "VEXOR_LogicalIdentity", device);
  expect_linked(device, "VEXOR_LogicalIdentity",
                port_path("2_1_2041000DEC0A1B2C", "unknown system", kVsanSystem));
}

TEST_F(Connectivity, APortOfADeviceIsThePortInItsVsan) {
  expect_linked(port_path("3_2100001122334401", "unknown system"), "VEXOR_LogicalIdentity",
                port_path("3_1_2100001122334401", "unknown system", "VEXOR_Vsan"));
}

TEST_F(Connectivity, APortThatNothingIsConnectedToIsItselfOnly) {
  EXPECT_EQ(linked(port_path("16842760"), "VEXOR_LogicalIdentity"), Texts{});
  EXPECT_EQ(linked(ethernet_path("83886081", "mgmt0"), "VEXOR_LogicalIdentity"), Texts{});
}

// ---- endpoints ----

TEST_F(Connectivity, SwitchesHostTheEndpointsOfTheirPorts) {
  expect_linked(kOwnSwitch, "VEXOR_HostedAccessPoint", own_endpoint("2041000DEC0A1B2C"));
  expect_linked(kOwnPart1, "VEXOR_HostedAccessPoint",
                endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D"));
  expect_linked(kOwnPart1, "VEXOR_HostedAccessPoint", endpoint_path("2_1_2100001122334401", ""));
  EXPECT_EQ(linked(endpoint_path("3_1_2100001122334401", ""), "VEXOR_HostedAccessPoint"), Texts{});
}

TEST_F(Connectivity, PortsImplementTheirEndpoints) {
  const char* const association = "VEXOR_DeviceSAPImplementation";
  expect_linked(port_path(kFc1), association, own_endpoint("2041000DEC0A1B2C"));
  expect_linked(port_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D", kVsanSystem), association,
                endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D"));
  expect_linked(port_path("3_1_2100001122334401", "unknown system", "VEXOR_Vsan"), association,
                endpoint_path("3_1_2100001122334401", ""));
  EXPECT_EQ(linked(port_path("2000000DEC0A1B2C_16842754_1"), association), Texts{});
}

TEST_F(Connectivity, APortThatDevicesShareImplementsAnEndpointForEach) {
  EXPECT_EQ(
      linked(port_path("2_2_2047000DEC0A1B2C", "unknown system", kVsanSystem),
             "VEXOR_DeviceSAPImplementation"),
      (Texts{endpoint_path("2_2_2100001122334431", ""), endpoint_path("2_2_2100001122334432", ""),
             endpoint_path("2_2_2100001122334433", "")}));
}

TEST_F(Connectivity, EthernetPortsWithoutAWwnImplementNone) {
  for (const std::string& port :
       {ethernet_path("83886081", "mgmt0"), ethernet_path("33685505", "gigabitethernet2/1"),
        ethernet_path("67174402", "ethernet-channel 2")})
    EXPECT_EQ(linked(port, "VEXOR_DeviceSAPImplementation"), Texts{}) << port;
  EXPECT_EQ(linked(ethernet_path("167772161", "fcip1"), "VEXOR_DeviceSAPImplementation").size(),
            1u);
}

// ---- connections ----

TEST_F(Connectivity, ALinkConnectsItsEndpointsOnce) {
  const std::string here = endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D");
  const std::string there = endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F");
  expect_linked(here, "VEXOR_ActiveConnection", there);
  // The end of the switch with the lower domain tells of the link: it is "Dependent".
  EXPECT_EQ(linked(here, "VEXOR_ActiveConnection", "", "Dependent"), (Texts{there}));
  EXPECT_EQ(linked(here, "VEXOR_ActiveConnection", "", "Antecedent"), Texts{});
  EXPECT_EQ(linked(there, "VEXOR_ActiveConnection", "", "Antecedent"), (Texts{here}));
}

TEST_F(Connectivity, AnAttachmentConnectsSwitchAndDevice) {
  const std::string fabric = endpoint_path("2_1_2100001122334401", "");
  const std::string device = endpoint_path("3_1_2100001122334401", "");
  expect_linked(fabric, "VEXOR_ActiveConnection", device);
  EXPECT_EQ(linked(fabric, "VEXOR_ActiveConnection", "", "Antecedent"), (Texts{device}));
}

TEST_F(Connectivity, ThereIsAConnectionForEveryLinkInAVsanAndEveryDevice) {
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 6u + 11u);
}

TEST_F(Connectivity, ADeviceThatIsRegisteredTwiceIsConnectedOnce) {
  change([](switch_sim::Fabric& fabric) { fabric.devices.front().registered_twice = true; });
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 6u + 11u);
  EXPECT_EQ(count("VEXOR_FCNodeMemberOfCollection"), 11u);
  EXPECT_EQ(count("VEXOR_RemoteServiceAccessPoint"), 10u);
}

// ---- collections ----

TEST_F(Connectivity, ANodeHasItsPorts) {
  const std::string node = id_path("VEXOR_LogicalPortGroup", "2000001122334421");
  EXPECT_EQ(linked(node, "VEXOR_FCNodeMemberOfCollection"),
            (Texts{port_path("3_2100001122334421", "unknown system"),
                   port_path("3_2100001122334422", "unknown system")}));
  expect_linked(node, "VEXOR_FCNodeMemberOfCollection",
                port_path("3_2100001122334422", "unknown system"));
}

TEST_F(Connectivity, AVsanConnectsItsEndpoints) {
  const std::string vsan_1 = id_path("VEXOR_ConnectivityCollection", "1");
  const std::string vsan_2 = id_path("VEXOR_ConnectivityCollection", "2");
  const char* const association = "VEXOR_ConnectivityMemberOfCollection";
  expect_linked(vsan_1, association, own_endpoint("2041000DEC0A1B2C"));
  expect_linked(vsan_1, association, endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F"));
  expect_linked(vsan_2, association, endpoint_path("3_2_2100001122334402", ""));
  EXPECT_EQ(linked(endpoint_path("3_2_2100001122334402", ""), association), (Texts{vsan_2}));
  EXPECT_EQ(linked(vsan_1, association).size() + linked(vsan_2, association).size(),
            count(association));
}

TEST_F(Connectivity, AVsanThatIsNotKnownConnectsNothing) {
  EXPECT_EQ(
      linked(id_path("VEXOR_ConnectivityCollection", "3"), "VEXOR_ConnectivityMemberOfCollection"),
      Texts{});
  change([](switch_sim::Fabric& fabric) {
    for (auto& interface : fabric.switches[0].interfaces)
      if (interface.if_index == 0x01010009) interface.vsan = 77;
  });
  EXPECT_EQ(linked(own_endpoint("2049000DEC0A1B2C"), "VEXOR_ConnectivityMemberOfCollection"),
            Texts{});
}

TEST_F(Connectivity, ASuspendedVsanHasTheEndpointsOfOwnPortsOnly) {
  change(
      [](switch_sim::Fabric& fabric) { fabric.vsans[1].state = switch_sim::VsanState::suspended; });
  for (const std::string& endpoint :
       linked(id_path("VEXOR_ConnectivityCollection", "2"), "VEXOR_ConnectivityMemberOfCollection"))
    EXPECT_NE(endpoint.find("SystemName=\"2000000DEC0A1B2C\""), std::string::npos) << endpoint;
}

// ---- other systems ----

TEST_F(Connectivity, OwnPortsLeadToWhatTheyAreConnectedTo) {
  const char* const association = "VEXOR_SAPAvailableForElement";
  expect_linked(port_path(kFc1), association, remote_path("2100001122334401", "2000001122334401"));
  expect_linked(port_path(kFc2), association,
                remote_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
  expect_linked(ethernet_path("167772161", "fcip1"), association,
                remote_path("2000000DEC0A1B5E_167772161_10", "2000000DEC0A1B5E"));
  EXPECT_EQ(linked(port_path(kFc7), association).size(), 3u);
  EXPECT_EQ(linked(port_path("16842760"), association), Texts{});
  EXPECT_EQ(count(association), 10u);
  EXPECT_EQ(count("VEXOR_RemoteServiceAccessPoint"), 10u);
}

TEST_F(Connectivity, WhatAnotherSwitchIsConnectedToIsNoRemoteAccessPoint) {
  // array-2 is behind switch-2, whose fc1/9 is linked to switch-3.
  expect_not_found(remote_path("2100001122334421", "2000001122334421"));
  expect_not_found(remote_path("2000000DEC0A1B90_16842761_1", "2000000DEC0A1B90"));
  for (const char* name :
       {"", "x", "2000000DEC0A1B5E_1", "2000000DEC0A1B5E_x_1", "0000000000000000"})
    expect_not_found(remote_path(name, "2000000DEC0A1B5E"));
}

TEST_F(Connectivity, ARemoteAccessPointIsFoundWithoutReadingAllPorts) {
  EXPECT_LE(exchanges(switch_sim::kPortConfiguration,
                      [&] { get(remote_path("2100001122334401", "2000001122334401")); }),
            1u);
}

// ---- costs ----

TEST_F(Connectivity, ConnectionsCostExchangesBySwitchesAndVsans) {
  generate("switches=4,ports=32,vsans=1,devices=20");
  const auto few = exchanges([&] { names("VEXOR_ActiveConnection"); });
  generate("switches=4,ports=32,vsans=1,devices=60");
  const auto links = control::fabric().links.size();
  const auto many = exchanges([&] { names("VEXOR_ActiveConnection"); });
  // An endpoint of a link asks the domain manager for its switch; one of a device asks nobody.
  EXPECT_LE(many, few + 8 * links);
}

TEST_F(Connectivity, AServiceThatDoesNotAnswerFailsTheRequest) {
  fail(125, Fault::Kind::error, ETIME);
  for (const char* association :
       {"VEXOR_ActiveConnection", "VEXOR_LogicalIdentity", "VEXOR_SAPAvailableForElement",
        "VEXOR_HostedAccessPoint", "VEXOR_FCNodeMemberOfCollection"})
    expect_error(CMPI_RC_ERR_FAILED, "the VSAN manager does not give its VSANs",
                 [&] { names(association); });
}

}  // namespace
}  // namespace hardware_tests
