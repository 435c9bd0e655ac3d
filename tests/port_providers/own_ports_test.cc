// The own switch's interfaces as ports, and what they can do and are set to.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;
using OwnPorts = PortTest;

constexpr int kTimedOut = 62;

// ---- reading ----

TEST_F(OwnPorts, AnFPortShowsItsStateItsVsanAndTheDeviceBehindIt) {
  const Instance port = get(port_path(kFc1));
  EXPECT_EQ(value(port, "ElementName"), "fc1/1");
  EXPECT_EQ(value(port, "Description"), "host-a");
  EXPECT_EQ(value(port, "Caption"), "VEXOR_FCPort");
  EXPECT_EQ(value(port, "OperationalStatus"), "2");
  EXPECT_EQ(value(port, "EnabledState"), "2");
  EXPECT_EQ(value(port, "EnabledDefault"), "2");
  EXPECT_EQ(value(port, "PermanentAddress"), "2041000DEC0A1B2C");
  EXPECT_EQ(value(port, "VsanId"), "1");
  EXPECT_EQ(value(port, "VsanName"), "VSAN0001");
  EXPECT_EQ(value(port, "PeerPortWWN"), "2100001122334401");
  EXPECT_EQ(value(port, "PortType"), "15");
  EXPECT_EQ(value(port, "Speed"), "2125000000");
  EXPECT_EQ(value(port, "PortAvailability"), "2");
}

TEST_F(OwnPorts, AnEPortShowsThePortAtTheOtherEndOfItsLink) {
  const Instance port = get(port_path(kFc2));
  EXPECT_EQ(value(port, "PortType"), "14");
  EXPECT_EQ(value(port, "PeerPortWWN"), "2042000DEC0A1B5E");
}

TEST_F(OwnPorts, ALoopPortShowsTheFirstDeviceThatTheNameServerTells) {
  const Instance port = get(port_path(kFc7));
  EXPECT_EQ(value(port, "PortType"), "16");
  EXPECT_EQ(value(port, "PeerPortWWN"), "2100001122334433");
}

TEST_F(OwnPorts, APortWithNothingPluggedInHasNoPeer) {
  EXPECT_EQ(value(get(port_path(kFc9)), "PeerPortWWN"), "NULL");
  EXPECT_EQ(value(get(port_path(kFc9)), "PortType"), "0");
}

TEST_F(OwnPorts, TheEnumerationShowsTheSamePeersAsGet) {
  const auto all = instances("VEXOR_FCPort");
  ASSERT_EQ(all.size(), 77u);
  for (size_t i = 0; i < 17; ++i)
    EXPECT_EQ(value(all[i], "PeerPortWWN"), value(get(text(all[i].path)), "PeerPortWWN"))
        << text(all[i].path);
}

TEST_F(OwnPorts, AnIscsiInterfaceShowsTheInitiatorBehindIt) {
  EXPECT_EQ(value(get(ethernet_path(kIscsi, "iscsi2/1")), "PeerPortWWN"), "2100001122334451");
}

TEST_F(OwnPorts, TheFirstPortOfAModuleHasNumber0) {
  EXPECT_EQ(value(get(port_path(kFc1)), "PortNumber"), "0");
  EXPECT_EQ(value(get(port_path(kFc2)), "PortNumber"), "1");
  EXPECT_EQ(value(get(ethernet_path(kGigabit, "gigabitethernet2/1")), "PortNumber"), "0");
}

TEST_F(OwnPorts, AnInterfaceWithoutAModuleHasNoNumber) {
  EXPECT_EQ(value(get(port_path(kChannel)), "PortNumber"), "NULL");
  EXPECT_EQ(value(get(ethernet_path(kManagement, "mgmt0")), "PortNumber"), "NULL");
}

// ---- classes ----

TEST_F(OwnPorts, EthernetPortsAreListedOnceUnderTheirOwnClass) {
  EXPECT_EQ(
      names("VEXOR_EthernetPort"),
      (Texts{ethernet_path("33685505", "gigabitethernet2/1"),
             ethernet_path("33685506", "gigabitethernet2/2"),
             ethernet_path("33685507", "gigabitethernet2/3"),
             ethernet_path("33685508", "gigabitethernet2/4"),
             ethernet_path("67174402", "ethernet-channel 2"), ethernet_path("83886081", "mgmt0"),
             ethernet_path("167772161", "fcip1"), ethernet_path("184680449", "iscsi2/1")}));
}

TEST_F(OwnPorts, FibreChannelPortsComeFirstInTheOrderOfTheSwitch) {
  const Texts all = names("VEXOR_FCPort");
  ASSERT_EQ(all.size(), 77u);
  for (int i = 0; i < 16; ++i)
    EXPECT_EQ(all[static_cast<size_t>(i)], port_path(std::to_string(16842753 + i)));
  EXPECT_EQ(all[16], port_path(kChannel));
}

TEST_F(OwnPorts, AnInterfaceIsFoundUnderItsOwnClassOnly) {
  for (const char* id : {kGigabit, kManagement, kFcip, kIscsi, "67174402"})
    expect_not_found(port_path(id));
  expect_not_found(ethernet_path(kFc1, "fc1/1"));
  expect_not_found(ethernet_path(kChannel, "port-channel 1"));
}

TEST_F(OwnPorts, WhatIsNoInterfaceOfTheSwitchIsNotFound) {
  for (const char* id :
       {"16842769", "0", "-1", "016842753", "16842753 ", "", "fc1/1", "4294967296", "--"})
    expect_not_found(port_path(id));
  expect_not_found(port_path(kFc1, "2000000DEC0A1B5E"));
  expect_not_found(port_path(kFc1, kOwnWwn, "VEXOR_LogicalComputerSystem"));
}

// ---- capabilities and settings ----

TEST_F(OwnPorts, EveryFibreChannelPortHasCapabilitiesAndSettings) {
  for (const char* cls : {"VEXOR_FCPortCapabilities", "VEXOR_FCPortSettings"}) {
    const Texts all = names(cls);
    ASSERT_EQ(all.size(), 17u);
    EXPECT_EQ(all.front(), id_path(cls, kFc1));
    EXPECT_EQ(all.back(), id_path(cls, kChannel));
    for (const std::string& each : all)
      EXPECT_EQ(text(get(each).path), each);
    expect_not_found(id_path(cls, kGigabit));
    expect_not_found(id_path(cls, "-1"));
    expect_not_found(id_path(cls, "fc1/1"));
  }
}

TEST_F(OwnPorts, SettingsOfAPortThatTakesTheSpeedOfTheOtherEnd) {
  const Instance settings = get(id_path("VEXOR_FCPortSettings", kFc1));
  EXPECT_EQ(value(settings, "AutoSenseSpeed"), "true");
  EXPECT_EQ(value(settings, "RequestedSpeed"), "0");
  EXPECT_EQ(value(settings, "RequestedType"), "17001");
}

// ---- what is asked ----

TEST_F(OwnPorts, APortIsReadAloneWithItsVsanItsOpticsAndItsDevice) {
  EXPECT_EQ(exchanges([&] { get(port_path(kFc1)); }), 4u);
}

TEST_F(OwnPorts, TheNameServerIsNotAskedForAPeerThatIsNotWanted) {
  EXPECT_EQ(exchanges(switch_sim::kDevicesBehindFabricPort,
                      [&] { get(port_path(kFc1), Texts{"ElementName"}); }),
            0u);
}

TEST_F(OwnPorts, CapabilitiesAndSettingsOfOnePortCostOneExchange) {
  EXPECT_EQ(exchanges([&] { get(id_path("VEXOR_FCPortCapabilities", kFc1)); }), 1u);
  EXPECT_EQ(exchanges([&] { get(id_path("VEXOR_FCPortSettings", kFc1)); }), 1u);
}

// ---- failures ----

TEST_F(OwnPorts, WithoutThePortManagerPortsCannotBeListed) {
  Fault dead;
  dead.service = switch_sim::Service::port_manager;
  dead.kind = Fault::Kind::error;
  dead.value = kTimedOut;
  control::set_faults({dead});
  for (const char* cls :
       {"VEXOR_FCPort", "VEXOR_EthernetPort", "VEXOR_FCPortSettings", "VEXOR_FCPortCapabilities",
        "VEXOR_FCPortStatistics", "VEXOR_FCPortStatisticalData", "VEXOR_ProtocolEndPoint"})
    expect_error(CMPI_RC_ERR_FAILED, "the port manager does not answer", [&] { names(cls); });
}

TEST_F(OwnPorts, AfterATimeOutOnTheWayThePortsReadUntilThenAreListed) {
  fail(switch_sim::kPortConfiguration, Fault::Kind::error, kTimedOut, 3);
  EXPECT_EQ(names("VEXOR_FCPortSettings"),
            (Texts{id_path("VEXOR_FCPortSettings", kFc1), id_path("VEXOR_FCPortSettings", kFc2)}));
}

TEST_F(OwnPorts, AnInterfaceThatVanishesWhileItIsWalkedOverIsPassedOver) {
  // The reply about fc1/3 is lost with the interface: the walk goes on with the next type.
  fail(switch_sim::kPortConfiguration, Fault::Kind::without_reply, 0, 3);
  const Texts all = names("VEXOR_FCPortSettings");
  EXPECT_EQ(all,
            (Texts{id_path("VEXOR_FCPortSettings", kFc1), id_path("VEXOR_FCPortSettings", kFc2),
                   id_path("VEXOR_FCPortSettings", kChannel)}));
}

TEST_F(OwnPorts, APortThatCannotBeReadIsNotFound) {
  for (const auto kind : {Fault::Kind::status, Fault::Kind::without_reply, Fault::Kind::error}) {
    fail(switch_sim::kPortConfiguration, kind, kTimedOut);
    expect_not_found(port_path(kFc1));
    expect_not_found(id_path("VEXOR_FCPortSettings", kFc1));
  }
}

TEST_F(OwnPorts, ARecordMayEndBehindTheLastFieldThatIsRead) {
  fail(switch_sim::kPortConfiguration, Fault::Kind::short_reply, 202);
  EXPECT_EQ(value(get(port_path(kFc1)), "PeerPortWWN"), "2100001122334401");
  EXPECT_EQ(names("VEXOR_FCPortSettings").size(), 17u);
  // The C library rounds blocks up to 8 behind a multiple of 16: 200 is the longest that it shows
  // as too short.
  fail(switch_sim::kPortConfiguration, Fault::Kind::short_reply, 200);
  expect_not_found(port_path(kFc1));
}

TEST_F(OwnPorts, APortWhoseDevicesCannotBeToldHasNoPeer) {
  fail(switch_sim::kDevicesBehindFabricPort, Fault::Kind::error, kTimedOut);
  const Instance port = get(port_path(kFc1));
  EXPECT_EQ(value(port, "PeerPortWWN"), "NULL");
  EXPECT_EQ(value(port, "PermanentAddress"), "2041000DEC0A1B2C");
}

}  // namespace
