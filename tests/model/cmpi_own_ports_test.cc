// The CMPI face of the own switch's ports, of what they can do and are set to.
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/model/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kPort = "VEXOR_FCPort";
constexpr const char* kVsanTrace = "fcport_build_instance_pm(): error during get vsan id\n";
constexpr const char* kDomainTrace = "fcport_build_instance_pm(): error during get dm entry\n";
constexpr const char* kOpticsTrace = "Error in pm_cim_get_fcot_info ";

class CmpiOwnPorts : public testing::Test {
 protected:
  CmpiOwnPorts() { mts_q = kQueue; }
  ~CmpiOwnPorts() override { mts_q = -1; }

  CMPIInstance* instance(const pm_port_info_& port, const char** properties = nullptr) {
    return fcport_build_instance_pm(kPort, kNamespace, &port, properties, broker_);
  }
  CMPIObjectPath* path(const pm_port_info_& port) {
    return fcport_fill_reference_pm(kNamespace, kPort, &port, broker_);
  }
  std::string property(const pm_port_info_& port, const char* name) {
    return broker_.property(instance(port), name);
  }
  // What fc1/2 asks, as far as everybody answers.
  static void expect_vsan(Script& script) {
    script.expect(records::entry_of_vsan_10()).replies(records::vsan_10_entry());
  }
  static void expect_domain(Script& script) {
    script.expect(records::own_domain_in_vsan_10()).replies(records::domain_97());
  }
  static void expect_link(Script& script) {
    script.expect(records::links_of_domain_97()).replies(records::one_link());
  }
  static void expect_peer(Script& script) {
    script.expect(records::switch_of(10, 239)).replies(records::switch_239());
  }
  static void expect_optics(Script& script, uint8_t supported = 1) {
    script.expect(records::optics_of_fc12()).gives(records::optics(supported));
  }
  static void expect_all(Script& script) {
    expect_vsan(script);
    expect_domain(script);
    expect_link(script);
    expect_peer(script);
    expect_optics(script);
  }
  bool said(const char* text) const { return out_.out().find(text) != std::string::npos; }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
};

const Names kFcPort = {"DeviceID",
                       "SystemName",
                       "SystemCreationClassName",
                       "CreationClassName",
                       "ElementName",
                       "Description",
                       "Caption",
                       "OperationalStatus",
                       "EnabledDefault",
                       "EnabledState",
                       "PermanentAddress",
                       "VsanId",
                       "VsanName",
                       "PeerPortWWN",
                       "IdentifyingDescriptions",
                       "OtherIdentifyingInfo",
                       "NetworkAddresses",
                       "PortNumber",
                       "PortType",
                       "Speed",
                       "MaxSpeed",
                       "LinkTechnology",
                       "SupportedMaximumTransmissionUnit",
                       "ActiveMaximumTransmissionUnit",
                       "SupportedCOS",
                       "SupportedFC4Types",
                       "ActiveFC4Types",
                       "PortAvailability"};

Names fc_port_without(const Names& left_out) {
  Names names = kFcPort;
  for (const std::string& name : left_out)
    std::erase(names, name);
  return names;
}

// ---- references

TEST_F(CmpiOwnPorts, AnFcPortIsKnownByItsIndexAndItsSwitch) {
  ASSERT_NE(path(records::fc12()), nullptr);
  expect_transcript(out_.out(), "cmpi_port_reference.txt");
}

TEST_F(CmpiOwnPorts, EthernetPortsHaveAClassAndASystemOfTheirOwn) {
  const struct {
    uint32_t if_index;
    const char* name;
    const char* device_id;
  } cases[] = {{records::kGigabitEthernet22, "gigabitethernet2/2", "33685506"},
               {records::kEthernetChannel2, "ethernet-channel 2", "67174402"},
               {records::kMgmt0, "mgmt0", "83886081"},
               {records::kFcip7, "fcip7", "167772167"},
               {records::kIscsi31, "iscsi3/1", "184745985"}};
  for (const char* cls : {"VEXOR_FCPort", "VEXOR_Anything", "VEXOR_EthernetPort"}) {
    for (const auto& c : cases) {
      const pm_port_info_ port = records::port_of(c.if_index);
      CMPIObjectPath* reference = fcport_fill_reference_pm(kNamespace, cls, &port, broker_);
      ASSERT_NE(reference, nullptr);
      EXPECT_EQ(broker_.class_name(reference), "VEXOR_EthernetPort") << c.name;
      EXPECT_EQ(broker_.key_text(reference, "DeviceID"), c.device_id) << c.name;
      EXPECT_EQ(broker_.key_text(reference, "SystemName"), c.name);
      EXPECT_EQ(broker_.key_text(reference, "SystemCreationClassName"),
                "VEXOR_PhysicalComputerSystem");
      EXPECT_EQ(broker_.key_text(reference, "CreationClassName"), "VEXOR_EthernetPort") << c.name;
    }
  }
}

TEST_F(CmpiOwnPorts, EveryOtherInterfaceHasTheClassAskedFor) {
  for (const uint32_t if_index :
       {records::kFc11, records::kPortChannel5, records::kSupFc0, records::kNoType}) {
    const pm_port_info_ port = records::port_of(if_index);
    CMPIObjectPath* reference =
        fcport_fill_reference_pm(kNamespace, "VEXOR_AnotherPort", &port, broker_);
    EXPECT_EQ(broker_.class_name(reference), "VEXOR_AnotherPort");
    EXPECT_EQ(broker_.key_text(reference, "CreationClassName"), "VEXOR_AnotherPort");
    EXPECT_EQ(broker_.key_text(reference, "SystemName"), "2000000DEC0A1B3C");
  }
}

TEST_F(CmpiOwnPorts, AWwnOfNoKnownMakerIsOfAnUnknownSystem) {
  for (const char* wwn : {"20 42 00 00 c9 12 34 56", "00 00 00 00 00 00 00 00"}) {
    const pm_port_info_ port = records::port(records::fc12_bytes().put(127, hex(wwn)));
    EXPECT_EQ(broker_.key_text(path(port), "SystemName"), "unknown system");
  }
}

TEST_F(CmpiOwnPorts, AnotherMakersWwnTellsItsSwitch) {
  const pm_port_info_ port =
      records::port(records::fc12_bytes().put(127, hex("20 05 00 60 69 12 34 56")));
  EXPECT_EQ(broker_.key_text(path(port), "SystemName"), "1000006069123456");
}

// Deliberate: the index is written as a signed number here, and unsigned as an InstanceID.
TEST_F(CmpiOwnPorts, AnIndexAboveTwoToThe31IsNegative) {
  EXPECT_EQ(broker_.key_text(path(records::port_of(0x80000001)), "DeviceID"), "-2147483647");
}

TEST_F(CmpiOwnPorts, AReferenceOfABadPathIsNone) {
  const pm_port_info_ port = records::fc12();
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(path(port), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fcport_cap_fill_reference("VEXOR_FCPortCapabilities", kNamespace, &port, broker_),
              nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fcport_set_fill_reference("VEXOR_FCPortSettings", kNamespace, &port, broker_),
              nullptr);
  }
  EXPECT_EQ(broker_.calls(), 6u);
}

TEST_F(CmpiOwnPorts, NoRecordMakesNothing) {
  EXPECT_EQ(fcport_fill_reference_pm(kNamespace, kPort, nullptr, broker_), nullptr);
  EXPECT_EQ(fcport_build_instance_pm(kPort, kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(fcport_cap_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(fcport_cap_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(fcport_set_fill_reference("C", kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(fcport_set_build_instance("C", kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

// ---- instances

TEST_F(CmpiOwnPorts, APortOfALinkHasItsVsanAndItsPeer) {
  Script script;
  expect_all(script);
  const char* properties[] = {"Speed", "PortType", nullptr};
  ASSERT_NE(instance(records::fc12(), properties), nullptr);
  expect_transcript(out_.out(), "cmpi_port_instance_link.txt");
}

TEST_F(CmpiOwnPorts, AnEthernetPortHasNothingOfFibreChannel) {
  const pm_port_info_ port = records::port(records::ethernet_bytes());
  ASSERT_NE(instance(port), nullptr);
  expect_transcript(out_.out(), "cmpi_port_instance_ethernet.txt");
}

TEST_F(CmpiOwnPorts, AManagementPortShowsTheHostsHardwareAddress) {
  system_.hardware_address("eth1", {0x00, 0x0d, 0xec, 0xaa, 0xbb, 0x01});
  CMPIInstance* port =
      instance(records::port(Record(204).host32(0, records::kMgmt0).put(135, hex("0a 00 00 01"))));
  EXPECT_EQ(broker_.class_name(port), "VEXOR_EthernetPort");
  EXPECT_EQ(broker_.property_text(port, "PermanentAddress"), "000decaabb01");
  EXPECT_EQ(broker_.property(port, "NetworkAddresses"), "chars[] {\"10.0.0.1\"}");
}

TEST_F(CmpiOwnPorts, WithoutTheHostsHardwareAddressTheManagementPortHasTwoDashes) {
  EXPECT_EQ(property(records::port_of(records::kMgmt0), "PermanentAddress"), "chars \"--\"");
}

TEST_F(CmpiOwnPorts, AnInterfaceOfNoKnownTypeIsShownAsAnFcPort) {
  CMPIInstance* port = instance(records::port_of(records::kNoType));
  EXPECT_EQ(broker_.class_name(port), kPort);
  EXPECT_EQ(broker_.property_text(port, "PermanentAddress"), "unsupported cim port type 0");
  EXPECT_EQ(broker_.property(port, "NetworkAddresses"), "chars[] {\" \"}");
  EXPECT_EQ(broker_.property(port, "PortType"), "uint16 0");
  EXPECT_EQ(broker_.property(port, "SupportedMaximumTransmissionUnit"), "uint64 0");
  EXPECT_EQ(broker_.property_names(port), fc_port_without({"VsanId", "VsanName", "PeerPortWWN"}));
}

TEST_F(CmpiOwnPorts, StatesAreThoseOfTheRecord) {
  const struct {
    uint8_t admin;
    uint8_t oper;
    const char* enabled;
    const char* status;
  } cases[] = {{1, 1, "uint16 2", "uint16[] {2}"},
               {2, 1, "uint16 3", "uint16[] {2}"},
               {1, 8, "uint16 2", "uint16[] {0}"},
               {0, 2, "uint16 3", "uint16[] {0}"}};
  for (const auto& c : cases) {
    CMPIInstance* port = instance(
        records::port(Record(204).host32(0, records::kFc11).byte(98, c.admin).byte(151, c.oper)));
    EXPECT_EQ(broker_.property(port, "EnabledDefault"), c.enabled);
    EXPECT_EQ(broker_.property(port, "EnabledState"), c.enabled);
    EXPECT_EQ(broker_.property(port, "OperationalStatus"), c.status);
  }
}

TEST_F(CmpiOwnPorts, WithoutAnAliasTheDescriptionIsTheInterfacesName) {
  CMPIInstance* port = instance(records::port_of(records::kFc11));
  EXPECT_EQ(broker_.property_text(port, "ElementName"), "fc1/1");
  EXPECT_EQ(broker_.property_text(port, "Description"), "fc1/1");
}

TEST_F(CmpiOwnPorts, AnAliasOf81CharactersHasNoTerminatorAndIsShownWhole) {
  const std::string alias(81, 'a');
  Bytes bytes = Record(204).host32(0, records::kFc11).text(8, alias).host32(89, 0x41414141);
  CMPIInstance* port = instance(records::port(bytes));
  EXPECT_EQ(broker_.property_text(port, "Description"), alias);
}

TEST_F(CmpiOwnPorts, APortNumberIsOfAnotherTypeWhereThereIsNone) {
  const struct {
    uint32_t if_index;
    const char* number;
  } cases[] = {{records::kFc12, "uint16 1"},
               {records::kFc23, "uint16 2"},
               {0x010100ff, "uint16 254"},
               {records::kGigabitEthernet22, "uint16 1"},
               {records::kFc11, "sint32 16842753"},
               {records::kPortChannel5, "sint32 67108869"},
               {records::kMgmt0, "sint32 83886081"},
               {records::kFcip7, "sint32 167772167"},
               {records::kIscsi31, "sint32 184745985"},
               {0x80000001, "sint32 -2147483647"}};
  for (const auto& c : cases)
    EXPECT_EQ(property(records::port_of(c.if_index), "PortNumber"), c.number) << c.if_index;
}

TEST_F(CmpiOwnPorts, ThePortTypeIsThatOfTheOperModeOrOfAPortChannel) {
  const struct {
    uint32_t if_index;
    uint32_t mode;
    const char* type;
  } cases[] = {{records::kFc11, 4, "uint16 14"},
               {records::kFc11, 8, "uint16 14"},
               {records::kFc11, 32, "uint16 15"},
               {records::kFc11, 64, "uint16 16"},
               {records::kFc11, 128, "uint16 16"},
               {records::kFc11, 256, "uint16 16"},
               {records::kFc11, 1, "uint16 0"},
               {records::kPortChannel5, 32, "uint16 16004"},
               {records::kPortChannel5, 0, "uint16 16004"},
               {records::kFcip7, 8, "uint16 53"},
               {records::kIscsi31, 32, "uint16 53"},
               {records::kEthernetChannel2, 4, "uint16 53"}};
  for (const auto& c : cases) {
    const pm_port_info_ port =
        records::port(Record(204).host32(0, c.if_index).host32(89, 16).host32(143, c.mode));
    EXPECT_EQ(property(port, "PortType"), c.type) << c.if_index << " " << c.mode;
  }
}

TEST_F(CmpiOwnPorts, ThePermanentAddressOfAPortChannelIsItsWwn) {
  CMPIInstance* port = instance(records::port_of(records::kPortChannel5));
  EXPECT_EQ(broker_.property_text(port, "PermanentAddress"), "2042000DEC0A1B3C");
  EXPECT_EQ(broker_.property(port, "LinkTechnology"), "uint16 4");
}

TEST_F(CmpiOwnPorts, AnFcPortsSpeedIsTheOperSpeedWhileItWorks) {
  const struct {
    uint8_t state;
    uint32_t speed;
    const char* shown;
  } cases[] = {{1, 2000, "uint64 2125000000"},
               {8, 4000, "uint64 4250000000"},
               {1, 0, "uint64 0"},
               {2, 2000, "uint64 0"}};
  for (const auto& c : cases) {
    CMPIInstance* port = instance(records::port(
        Record(204).host32(0, records::kFc11).host32(147, c.speed).byte(151, c.state)));
    EXPECT_EQ(broker_.property(port, "Speed"), c.shown);
    EXPECT_EQ(broker_.property(port, "MaxSpeed"), c.shown);
  }
}

TEST_F(CmpiOwnPorts, AnEthernetPortsSpeedIsAGigabitWhileItIsUp) {
  for (const uint8_t state : {0, 1, 2, 8}) {
    CMPIInstance* port =
        instance(records::port(records::ethernet_bytes().host32(147, 100).byte(151, state)));
    EXPECT_EQ(broker_.property(port, "Speed"), state == 1 ? "uint64 1000000000" : "uint64 0");
    EXPECT_EQ(broker_.property(port, "MaxSpeed"), "uint64 1000000000");
  }
}

// ---- the VSAN

TEST_F(CmpiOwnPorts, APortInNoVsanAsksForNone) {
  const pm_port_info_ port = records::port(records::fc12_bytes().host32(104, 0).byte(201, 0));
  EXPECT_EQ(broker_.property_names(instance(port)),
            fc_port_without({"VsanId", "VsanName", "PeerPortWWN"}));
  EXPECT_TRUE(said(kVsanTrace));
}

TEST_F(CmpiOwnPorts, AVsanThatCannotBeReadLeavesOutVsanAndPeer) {
  const pm_port_info_ port = records::port(records::fc12_bytes().byte(201, 0));
  Script script;
  script.expect(records::entry_of_vsan_10()).status(17);
  script.expect(records::entry_of_vsan_10()).times_out();
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(broker_.property_names(instance(port)),
              fc_port_without({"VsanId", "VsanName", "PeerPortWWN"}));
  EXPECT_TRUE(said(kVsanTrace));
}

TEST_F(CmpiOwnPorts, AVsanAnsweredWithoutAnEntryHasNoName) {
  const pm_port_info_ port = records::port(records::fc12_bytes().host32(143, 32).byte(201, 0));
  Script script;
  script.expect(records::entry_of_vsan_10()).ok_without_reply();
  script.expect(records::entry_of_vsan_10()).replies(records::vsan_10_entry()).cut_to(2627);
  for (int i = 0; i < 2; ++i) {
    CMPIInstance* made = instance(port);
    EXPECT_EQ(broker_.property(made, "VsanId"), "uint16 10");
    EXPECT_EQ(broker_.property(made, "VsanName"), "chars \"\"");
  }
}

TEST_F(CmpiOwnPorts, AVsanNameThatFillsItsFieldIsShownWhole) {
  const std::string name(128, 'v');
  const pm_port_info_ port = records::port(records::fc12_bytes().host32(143, 32).byte(201, 0));
  Script script;
  script.expect(records::entry_of_vsan_10()).replies(records::vsan_10_entry(name.c_str()));
  EXPECT_EQ(broker_.property_text(instance(port), "VsanName"), name);
}

// ---- the peer

TEST_F(CmpiOwnPorts, OnlyPortsOfLinksAskForTheirPeer) {
  for (const uint32_t mode : {0, 1, 2, 5, 12, 16, 32, 64, 128, 256}) {
    Script script;
    expect_vsan(script);
    const pm_port_info_ port = records::port(records::fc12_bytes().host32(143, mode).byte(201, 0));
    EXPECT_EQ(broker_.property_names(instance(port)), fc_port_without({"PeerPortWWN"})) << mode;
  }
  EXPECT_FALSE(said(kDomainTrace));
}

TEST_F(CmpiOwnPorts, BothModesOfLinksHaveAPeer) {
  for (const uint32_t mode : {4, 8}) {
    Script script;
    expect_all(script);
    EXPECT_EQ(property(records::port(records::fc12_bytes().host32(143, mode)), "PeerPortWWN"),
              "chars \"2083000DEC0A1B4C\"");
  }
}

TEST_F(CmpiOwnPorts, WithoutTheOwnDomainThereIsNoPeerAndALineSaysSo) {
  Script script;
  expect_vsan(script);
  script.expect(records::own_domain_in_vsan_10()).status(17);
  expect_optics(script);
  EXPECT_EQ(broker_.property_names(instance(records::fc12())), fc_port_without({"PeerPortWWN"}));
  EXPECT_TRUE(said(kDomainTrace));
  EXPECT_FALSE(said(kVsanTrace));
}

TEST_F(CmpiOwnPorts, WithoutALinkThereIsNoPeerAndNoLine) {
  Script script;
  for (int i = 0; i < 3; ++i) {
    expect_vsan(script);
    expect_domain(script);
    if (i == 0) script.expect(records::links_of_domain_97()).status(17);
    if (i == 1) script.expect(records::links_of_domain_97()).replies(Record(36).be32(28, 0));
    // A link through another interface, fc1/1.
    if (i == 2)
      script.expect(records::links_of_domain_97()).replies(records::one_link().be32(56, 0x80801));
    expect_optics(script);
    EXPECT_EQ(broker_.property_names(instance(records::fc12())), fc_port_without({"PeerPortWWN"}));
  }
  EXPECT_FALSE(said(kDomainTrace));
}

TEST_F(CmpiOwnPorts, WithoutTheOtherSwitchThereIsNoPeerAndALineSaysSo) {
  Script script;
  expect_vsan(script);
  expect_domain(script);
  expect_link(script);
  script.expect(records::switch_of(10, 239)).times_out();
  expect_optics(script);
  EXPECT_EQ(broker_.property_names(instance(records::fc12())), fc_port_without({"PeerPortWWN"}));
  EXPECT_TRUE(said(kDomainTrace));
}

TEST_F(CmpiOwnPorts, AnotherSwitchOfNoKnownMakerHasNoPortToShow) {
  Script script;
  expect_vsan(script);
  expect_domain(script);
  expect_link(script);
  script.expect(records::switch_of(10, 239))
      .replies(records::switch_239().put(6, hex("10 00 00 00 c9 00 00 01")));
  expect_optics(script);
  EXPECT_EQ(broker_.property_names(instance(records::fc12())), fc_port_without({"PeerPortWWN"}));
  EXPECT_TRUE(said(kDomainTrace));
}

TEST_F(CmpiOwnPorts, EveryFailingExchangeLeavesThePortStanding) {
  broker_.write_down(false);
  const size_t rounds = for_every_failing_exchange([this](FailingExchange&) {
    Script script;
    expect_all(script);
    CMPIInstance* port = instance(records::fc12());
    EXPECT_EQ(broker_.property_text(port, "DeviceID"), "16842754");
    EXPECT_EQ(broker_.property(port, "PortAvailability"), "uint16 2");
  });
  EXPECT_EQ(rounds, 6u);
}

// ---- the optics

TEST_F(CmpiOwnPorts, WithoutOpticsNothingIsAsked) {
  EXPECT_EQ(property(records::port_of(records::kFc11), "PortAvailability"), "uint16 4");
  EXPECT_FALSE(said(kOpticsTrace));
}

TEST_F(CmpiOwnPorts, OpticsAreSupportedOrNot) {
  const pm_port_info_ port = records::port(records::fc12_bytes().host32(104, 0));
  Script script;
  for (const uint8_t supported : {0, 1, 255}) {
    expect_optics(script, supported);
    EXPECT_EQ(property(port, "PortAvailability"), supported != 0 ? "uint16 2" : "uint16 5");
  }
  EXPECT_FALSE(said(kOpticsTrace));
}

TEST_F(CmpiOwnPorts, OpticsThatCannotBeAskedAreTakenAsAvailableAndALineSaysSo) {
  const pm_port_info_ port = records::port(records::fc12_bytes().host32(104, 0));
  Script script;
  script.expect(records::optics_of_fc12()).fails(17);
  EXPECT_EQ(property(port, "PortAvailability"), "uint16 2");
  EXPECT_TRUE(said(kOpticsTrace));
  script.expect(records::optics_of_fc12()).times_out();
  EXPECT_EQ(property(port, "PortAvailability"), "uint16 2");
  script.expect(records::optics_of_fc12()).gives_nothing();
  EXPECT_EQ(property(port, "PortAvailability"), "uint16 2");
  script.expect(records::optics_of_fc12()).gives(Record(8));
  EXPECT_EQ(property(port, "PortAvailability"), "uint16 2");
}

TEST_F(CmpiOwnPorts, OpticsOfAnEthernetPortAreNotAskedAndALineSaysSo) {
  const pm_port_info_ port = records::port(records::ethernet_bytes().byte(201, 1));
  EXPECT_EQ(property(port, "PortAvailability"), "uint16 2");
  EXPECT_TRUE(said(kOpticsTrace));
}

// ---- object manager and memory

TEST_F(CmpiOwnPorts, ABadPathOrInstanceAsksNothing) {
  Script script;
  const pm_port_info_ port = records::fc12();
  const std::function<CMPIInstance*()> builders[] = {
      [&] { return instance(port); },
      [&] { return fcport_cap_build_instance("C", kNamespace, &port, nullptr, broker_); },
      [&] { return fcport_set_build_instance("C", kNamespace, &port, nullptr, broker_); },
  };
  broker_.write_down(false);
  HeapLedger ledger;
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    for (const auto& build : builders) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(build(), nullptr);
      broker_.fail_nth_instance(1, how);
      EXPECT_EQ(build(), nullptr);
    }
  }
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(CmpiOwnPorts, AnArrayThatTheBrokerDoesNotGiveIsLeftOut) {
  const pm_port_info_ port = records::port(records::ethernet_bytes());
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_array(4, how);
    CMPIInstance* made = instance(port);
    EXPECT_EQ(broker_.property(made, "NetworkAddresses"), "none");
    EXPECT_EQ(broker_.property(made, "OtherIdentifyingInfo"), "chars[] {\"gigabitethernet2/2\"}");
  }
}

TEST_F(CmpiOwnPorts, WithoutMemoryForItsKeysThereIsNoPort) {
  broker_.write_down(false);
  const pm_port_info_ port = records::port_of(records::kFc11);
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        CMPIInstance* made = round.attempt([&] { return instance(port); });
        EXPECT_EQ(made == nullptr, round.was_hit());
      },
      Heap::c);
  EXPECT_EQ(rounds, 6u);  // the list of four keys: five blocks
}

TEST_F(CmpiOwnPorts, WithoutMemoryForTheLinkOrTheOtherSwitchThereIsNoPeer) {
  broker_.write_down(false);
  const pm_port_info_ port = records::port(records::fc12_bytes().byte(201, 0));
  size_t without_peer = 0;
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        Script script;
        if (round.n() > 5) {  // behind the key names
          expect_vsan(script);
          expect_domain(script);
          expect_link(script);
        }
        if (round.n() > 7) expect_peer(script);
        CMPIInstance* made = round.attempt([&] { return instance(port); });
        EXPECT_EQ(made == nullptr, round.n() <= 5);
        if (made != nullptr && broker_.property(made, "PeerPortWWN") == "none") ++without_peer;
      },
      Heap::c);
  EXPECT_EQ(rounds, 8u);
  EXPECT_EQ(without_peer, 2u);
}

// ---- capabilities and settings

TEST_F(CmpiOwnPorts, CapabilitiesAreThoseOfEveryPort) {
  const pm_port_info_ port = records::fc12();
  const char* properties[] = {"MaxElementNameLen", nullptr};
  ASSERT_NE(
      fcport_cap_build_instance("VEXOR_FCPortCapabilities", kNamespace, &port, properties, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_port_capabilities_instance.txt");
}

TEST_F(CmpiOwnPorts, SettingsAreThoseOfTheRecord) {
  const pm_port_info_ port = records::fc12();
  const char* properties[] = {"RequestedSpeed", nullptr};
  ASSERT_NE(
      fcport_set_build_instance("VEXOR_FCPortSettings", kNamespace, &port, properties, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_port_settings_instance.txt");
}

TEST_F(CmpiOwnPorts, SettingsShowAdminSpeedAndAdminMode) {
  const struct {
    uint32_t speed;
    uint32_t mode;
    const char* automatic;
    const char* shown_speed;
    const char* type;
  } cases[] = {{0, 4, "boolean true", "uint64 0", "uint16 4"},
               {1000, 32, "boolean false", "uint64 1062500000", "uint16 5"},
               {2000, 96, "boolean false", "uint64 2125000000", "uint16 6"},
               {4294967295u, 64, "boolean false", "uint64 4563402750937500", "uint16 17064"},
               {4000, 256, "boolean false", "uint64 4250000000", "uint16 17256"}};
  for (const auto& c : cases) {
    const pm_port_info_ port = records::port(
        records::fc12_bytes().host32(94, c.speed).host32(89, c.mode).host32(143, 1).host32(147, 9));
    CMPIInstance* made =
        fcport_set_build_instance("VEXOR_FCPortSettings", kNamespace, &port, nullptr, broker_);
    EXPECT_EQ(broker_.property(made, "AutoSenseSpeed"), c.automatic);
    EXPECT_EQ(broker_.property(made, "RequestedSpeed"), c.shown_speed);
    EXPECT_EQ(broker_.property(made, "RequestedType"), c.type);
  }
}

TEST_F(CmpiOwnPorts, CapabilitiesAndSettingsAreKnownByTheUnsignedIndex) {
  const pm_port_info_ port = records::port_of(0x80000001);
  CMPIObjectPath* capabilities =
      fcport_cap_fill_reference("VEXOR_FCPortCapabilities", kNamespace, &port, broker_);
  CMPIObjectPath* settings =
      fcport_set_fill_reference("VEXOR_FCPortSettings", kNamespace, &port, broker_);
  for (const CMPIObjectPath* reference : {capabilities, settings}) {
    EXPECT_EQ(broker_.key_names(reference), Names{"InstanceID"});
    EXPECT_EQ(broker_.key_text(reference, "InstanceID"), "2147483649");
    EXPECT_EQ(broker_.host(reference), "switch-1");
    EXPECT_EQ(broker_.name_space(reference), kNamespace);
  }
  EXPECT_EQ(broker_.class_name(capabilities), "VEXOR_FCPortCapabilities");
  EXPECT_EQ(broker_.class_name(settings), "VEXOR_FCPortSettings");
}

TEST_F(CmpiOwnPorts, WithoutMemoryForTheirKeyThereAreNoCapabilitiesAndSettings) {
  broker_.write_down(false);
  const pm_port_info_ port = records::fc12();
  const std::function<CMPIInstance*()> builders[] = {
      [&] { return fcport_cap_build_instance("C", kNamespace, &port, nullptr, broker_); },
      [&] { return fcport_set_build_instance("C", kNamespace, &port, nullptr, broker_); },
  };
  for (const auto& build : builders) {
    const size_t rounds = for_every_failing_allocation(
        [&build](FailingAllocation& round) {
          CMPIInstance* made = round.attempt(build);
          EXPECT_EQ(made == nullptr, round.was_hit());
        },
        Heap::c);
    EXPECT_EQ(rounds, 3u);
  }
}

}  // namespace
