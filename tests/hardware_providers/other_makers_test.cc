// Switches of other makers in the fabric, and links of which one side alone tells: what is known of
// them hangs together like the rest. The own switch ("switch-1") is linked to one of a maker whose
// WWNs are known and to a second one of its own kind; behind the first stands a switch of a maker
// whose WWNs are not known.
#include "tests/hardware_providers/hardware_fixture.h"

namespace hardware_tests {
namespace {

constexpr const char* kLogical = "VEXOR_LogicalComputerSystem";
constexpr const char* kKnownWwn = "1000006069123456";
constexpr const char* kUnknownWwn = "1000001122ABCDEF";
constexpr const char* kLinked = "16842754";  // fc1/2, to port 3 of the switch of a known maker

std::string switch_path(const char* wwn) {
  return std::string("root/cimv2:VEXOR_PhysicalComputerSystem.Name=\"") + wwn +
         "\",CreationClassName=\"VEXOR_PhysicalComputerSystem\"";
}

// The links that the switch of a domain tells are not known.
Fault untold(uint32_t domain) {
  Fault fault;
  fault.opcode = 53;
  fault.word = {4, domain};
  fault.value = 0x40300002;
  return fault;
}

class OtherMakers : public HardwareTest {
 protected:
  OtherMakers() {
    EXPECT_EQ(control::install_file(CIM_SOURCE_DIR "/tests/simulator/data/other_makers.json"),
              std::nullopt);
  }

  const std::string known_ = switch_path(kKnownWwn);
  const std::string unknown_ = switch_path(kUnknownWwn);
  const std::string device_port_ = port_path("1000006069123456_3_1", kKnownWwn);
  const std::string port_in_vsan_ = port_path("1_1_5_1_0_3", kKnownWwn, kLogical);
  const std::string endpoint_ = endpoint_path("1_1_5_1_0_3", kKnownWwn);
  const std::string own_endpoint_ = endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D");
};

// ---- switches ----

TEST_F(OtherMakers, AreDevicesWithoutPartsInTheVsans) {
  EXPECT_EQ(names("VEXOR_PhysicalComputerSystem"),
            (Texts{unknown_, known_, kOwnSwitch, kSecondSwitch}));
  EXPECT_EQ(count(kLogical), 3u);
  EXPECT_EQ(linked(known_, "VEXOR_HostedDependency"), Texts{});
  EXPECT_EQ(count("VEXOR_HostedDependency"), 3u);
}

TEST_F(OtherMakers, AreInTheirVsansAsDevices) {
  EXPECT_EQ(linked(known_, "VEXOR_Component").size(), 2u);
  EXPECT_EQ(linked(unknown_, "VEXOR_Component").size(), 1u);
}

// Nobody tells their names and addresses.
TEST_F(OtherMakers, GoByTheirWwns) {
  const Instance device = get(known_);
  EXPECT_EQ(value(device, "Name"), kKnownWwn);
  EXPECT_EQ(value(device, "PermanentAddress"), kKnownWwn);
  EXPECT_EQ(value(device, "PrimarySwitch"), "false");
  EXPECT_EQ(value(device, "IPAddress"), "NULL");
  EXPECT_EQ(value(device, "ElementName"), "NULL");
}

// ---- ports of links ----

TEST_F(OtherMakers, HaveTheirPortsAsDevicesAndInTheVsan) {
  expect_linked(known_, "VEXOR_SystemDevice", device_port_);
  expect_linked(known_, "VEXOR_SystemDevice", port_in_vsan_);
  expect_linked(device_port_, "VEXOR_LogicalIdentity", port_in_vsan_);
}

TEST_F(OtherMakers, HostTheEndpointsOfTheirPorts) {
  expect_linked(known_, "VEXOR_HostedAccessPoint", endpoint_);
  expect_linked(port_in_vsan_, "VEXOR_DeviceSAPImplementation", endpoint_);
  expect_linked(id_path("VEXOR_ConnectivityCollection", "1"),
                "VEXOR_ConnectivityMemberOfCollection", endpoint_);
}

// The end of the lower domain, 5, tells of the link: it is "Dependent".
TEST_F(OtherMakers, AreConnectedOnceByEachLink) {
  expect_linked(own_endpoint_, "VEXOR_ActiveConnection", endpoint_);
  EXPECT_EQ(linked(endpoint_, "VEXOR_ActiveConnection", "", "Dependent"), (Texts{own_endpoint_}));
  // Three links, and three devices.
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 3u + 3u);
}

TEST_F(OtherMakers, AreWhatAnOwnPortIsConnectedTo) {
  expect_linked(port_path(kLinked), "VEXOR_SAPAvailableForElement",
                remote_path("1000006069123456_3_1", kKnownWwn));
  EXPECT_EQ(count("VEXOR_RemoteServiceAccessPoint"), 3u);
}

// Ports behind others: 68 on the switch of the known maker, 1 on the other.
TEST_F(OtherMakers, AreConnectedWithEachOther) {
  expect_linked(endpoint_path("1_1_5_1_0_68", kKnownWwn), "VEXOR_ActiveConnection",
                endpoint_path("1_1_6_1_0_1", kUnknownWwn));
  expect_linked(unknown_, "VEXOR_SystemDevice", port_path("1000001122ABCDEF_1_1", kUnknownWwn));
}

// ---- ports of attachments ----

TEST_F(OtherMakers, HaveThePortsThatDevicesLogInAtWhereTheirWwnsAreKnown) {
  expect_linked(known_, "VEXOR_SystemDevice", port_path("2_2041006069123456", "unknown system"));
  expect_linked(known_, "VEXOR_SystemDevice",
                port_path("2_1_2041006069123456", "unknown system", kLogical));
  expect_linked(known_, "VEXOR_HostedAccessPoint", endpoint_path("2_1_2100001122334402", ""));
  const std::string port = port_path("2_2005001122ABCDEF", "unknown system");
  EXPECT_EQ(value(get(port), "DeviceID"), "2_2005001122ABCDEF");
  EXPECT_EQ(linked(port, "VEXOR_SystemDevice"), Texts{});
  EXPECT_EQ(linked(endpoint_path("2_1_2100001122334403", ""), "VEXOR_HostedAccessPoint"), Texts{});
}

// ---- switches that the configuration server does not tell of ----

TEST_F(OtherMakers, ThatAreNoElementsAreNoObjectsAndNothingLeadsToThem) {
  Fault no_element;
  no_element.opcode = 1402;
  no_element.word = {8, 0x10000060};
  no_element.value = 0x40300002;
  control::set_faults({no_element});
  expect_not_found(known_);
  const std::string attached = port_path("2_2041006069123456", "unknown system");
  for (const std::string& port :
       {attached, port_path("2_1_2041006069123456", "unknown system", kLogical)})
    EXPECT_EQ(linked(port, "VEXOR_SystemDevice"), Texts{}) << port;
  EXPECT_EQ(linked(endpoint_path("2_1_2100001122334402", ""), "VEXOR_HostedAccessPoint"), Texts{});
  // The own switch knows what its port is linked to all the same.
  expect_linked(port_path(kLinked), "VEXOR_SAPAvailableForElement",
                remote_path("1000006069123456_3_1", kKnownWwn));
  // So do FSPF and the domain manager, by which its port is a port without a system.
  expect_linked(own_endpoint_, "VEXOR_ActiveConnection", endpoint_);
  expect_linked(device_port_, "VEXOR_LogicalIdentity", port_in_vsan_);
  for (const std::string& port : {device_port_, port_in_vsan_})
    EXPECT_EQ(linked(port, "VEXOR_SystemDevice"), Texts{}) << port;
  EXPECT_EQ(linked(endpoint_, "VEXOR_HostedAccessPoint"), Texts{});
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 3u + 3u);
  // The device behind it is there, too.
  expect_linked(attached, "VEXOR_LogicalIdentity",
                port_path("2_1_2041006069123456", "unknown system", kLogical));
}

// ---- links that one side tells ----

TEST_F(OtherMakers, ThatTellNoLinksAreKnownByTheOwnSwitchs) {
  control::set_faults({untold(5), untold(6)});
  expect_linked(known_, "VEXOR_SystemDevice", device_port_);
  expect_linked(device_port_, "VEXOR_LogicalIdentity", port_in_vsan_);
  expect_linked(known_, "VEXOR_HostedAccessPoint", endpoint_);
  expect_linked(own_endpoint_, "VEXOR_ActiveConnection", endpoint_);
  expect_linked(port_path(kLinked), "VEXOR_SAPAvailableForElement",
                remote_path("1000006069123456_3_1", kKnownWwn));
  // Nobody tells of the link between the two.
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 2u + 3u);
  EXPECT_EQ(count("VEXOR_RemoteServiceAccessPoint"), 3u);
}

class OneSidedLinks : public HardwareTest {
 protected:
  // What the object model holds of links.
  std::vector<size_t> counts() {
    std::vector<size_t> found;
    for (const char* of :
         {"VEXOR_FCPort", "VEXOR_ProtocolEndPoint", "VEXOR_ActiveConnection", "VEXOR_SystemDevice",
          "VEXOR_LogicalIdentity", "VEXOR_HostedAccessPoint", "VEXOR_DeviceSAPImplementation",
          "VEXOR_RemoteServiceAccessPoint", "VEXOR_SAPAvailableForElement"})
      found.push_back(count(of));
    return found;
  }
};

// switch-2 has domain 98 in VSAN 1, and its links lead to switches that tell theirs.
TEST_F(OneSidedLinks, AreAllThereWhereTheOtherSideTells) {
  const std::vector<size_t> whole = counts();
  control::set_faults({untold(98)});
  EXPECT_EQ(counts(), whole);
  const std::string there = endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F");
  expect_linked(endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D"), "VEXOR_ActiveConnection",
                there);
  expect_linked(kSecondSwitch, "VEXOR_SystemDevice",
                port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
  expect_linked(port_path("16842754"), "VEXOR_SAPAvailableForElement",
                remote_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
}

// A record that ends before its second link.
TEST_F(OneSidedLinks, AreAllThereWhereARecordIsCut) {
  const std::vector<size_t> whole = counts();
  Fault cut = untold(98);
  cut.kind = Fault::Kind::short_reply;
  cut.value = 72;
  control::set_faults({cut});
  EXPECT_EQ(counts(), whole);
}

// What the own ports are connected to is asked of the own switch alone.
TEST_F(OneSidedLinks, OfTheOwnSwitchAreKnownFromTheOtherSideButForItsRemoteAccessPoints) {
  control::set_faults({untold(97)});
  expect_linked(endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D"), "VEXOR_ActiveConnection",
                endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F"));
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice",
                port_path("2000000DEC0A1B2C_16842754_1", "2000000DEC0A1B2C"));
  expect_not_found(remote_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
  EXPECT_EQ(linked(port_path("16842754"), "VEXOR_SAPAvailableForElement"), Texts{});
}

// port-channel 1 of switch-3 carries two VSANs, in which the switch has domains 99 and 23.
TEST_F(OneSidedLinks, AreThePortInEachOfTheirVsans) {
  const std::string port = port_path("2000000DEC0A1B90_67108865_4", "2000000DEC0A1B90");
  const Texts in_vsans = linked(port, "VEXOR_LogicalIdentity");
  EXPECT_EQ(in_vsans.size(), 2u);
  control::set_faults({untold(99), untold(23)});
  EXPECT_EQ(linked(port, "VEXOR_LogicalIdentity"), in_vsans);
  for (const std::string& each : in_vsans)
    expect_linked(port, "VEXOR_LogicalIdentity", each);
}

TEST_F(OneSidedLinks, OfTheOwnSwitchAreThoseOfItsPorts) {
  control::set_faults({untold(97), untold(21)});
  expect_linked(port_path("16842754"), "VEXOR_LogicalIdentity",
                port_path("2000000DEC0A1B2C_16842754_1"));
  expect_linked(port_path("67108865"), "VEXOR_LogicalIdentity",
                port_path("2000000DEC0A1B2C_67108865_4"));
}

TEST_F(OneSidedLinks, ThatNobodyTellsLeaveThePortsOfTheOwnSwitch) {
  control::set_faults({untold(97), untold(98), untold(99), untold(21), untold(22), untold(23)});
  // Those of the devices, and what the own ports are.
  EXPECT_EQ(count("VEXOR_ActiveConnection"), 11u);
  expect_not_found(port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
  expect_not_found(endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F"));
  EXPECT_EQ(linked(port_path("16842754"), "VEXOR_LogicalIdentity"), Texts{});
  EXPECT_EQ(value(get(port_path("16842754")), "DeviceID"), "16842754");
}

}  // namespace
}  // namespace hardware_tests
