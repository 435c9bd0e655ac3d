// The CMPI face of the ports at the ends of links and attachments, of protocol endpoints and of
// port groups.
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/model/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kPort = "VEXOR_FCPort";
constexpr const char* kEndpoint = "VEXOR_ProtocolEndPoint";
constexpr const char* kGroup = "VEXOR_LogicalPortGroup";

// The other switch in VSAN 10, and without a VSAN.
constexpr wwn_ kInVsan = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4d}};
constexpr wwn_ kUnique = {{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4c}};
// A switch of another maker.
constexpr wwn_ kForeign = {{0x10, 0x00, 0x00, 0x60, 0x69, 0x12, 0x34, 0x56}};
constexpr wwn_ kNode = {{0x20, 0x00, 0x00, 0x00, 0xc9, 0x12, 0x34, 0x56}};

class CmpiLinkPorts : public testing::Test {
 protected:
  CMPIObjectPath* path(const fspfLinkEntry& link, const wwn_& wwn, unsigned char physical,
                       unsigned char local) {
    return fcport_fill_reference_fspf_wwn(0, kNamespace, kPort, &link, wwn.bytes, physical, 1,
                                          local, broker_);
  }
  CMPIInstance* instance(const fspfLinkEntry& link, const wwn_& wwn, unsigned char physical,
                         unsigned char local, const char** properties = nullptr) {
    return fcport_build_instance_fspf_wwn(0, kPort, kNamespace, &link, wwn.bytes, physical, 1,
                                          local, properties, broker_);
  }
  CMPIObjectPath* path(const ns_api_register_req_& entry, unsigned char physical,
                       unsigned char fabric_side) {
    return fcport_fill_reference_ns(kPort, kNamespace, &entry, physical, fabric_side, broker_);
  }
  CMPIInstance* instance(const ns_api_register_req_& entry, unsigned char physical,
                         unsigned char fabric_side, const char** properties = nullptr) {
    return fcport_build_instance_ns(kPort, kNamespace, &entry, physical, fabric_side, properties,
                                    broker_);
  }
  std::string device_id(const CMPIObjectPath* path) { return broker_.key_text(path, "DeviceID"); }

  RecordingBroker broker_;
  StdioCapture out_;
};

// ---- ports of links: references

TEST_F(CmpiLinkPorts, TheFarEndOfALinkIsKnownByItsLinkName) {
  ASSERT_NE(path(records::link(records::link_bytes()), kInVsan, 0, 0), nullptr);
  expect_transcript(out_.out(), "cmpi_port_reference_link.txt");
}

TEST_F(CmpiLinkPorts, BothEndsAreNamedAsDevicesAndAsPartsOfTheVsan) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  const struct {
    unsigned char physical;
    unsigned char local;
    const char* device_id;
    const char* system_name;
    const char* system_class;
  } cases[] = {
      {0, 1, "1_10_97_2_3_16842754", "200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem"},
      {0, 0, "1_10_239_2_3_16908291", "200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem"},
      {1, 1, "2000000DEC0A1B4C_16842754_1", "2000000DEC0A1B4C", "VEXOR_PhysicalComputerSystem"},
      {255, 0, "2000000DEC0A1B4C_16908291_1", "2000000DEC0A1B4C", "VEXOR_PhysicalComputerSystem"}};
  for (const auto& c : cases) {
    CMPIObjectPath* reference = path(link, kInVsan, c.physical, c.local);
    EXPECT_EQ(device_id(reference), c.device_id);
    EXPECT_EQ(broker_.key_text(reference, "SystemName"), c.system_name);
    EXPECT_EQ(broker_.key_text(reference, "SystemCreationClassName"), c.system_class);
    EXPECT_EQ(broker_.key_text(reference, "CreationClassName"), kPort);
  }
}

TEST_F(CmpiLinkPorts, APortChannelKeepsItsTypeInBothNames) {
  const fspfLinkEntry link =
      records::link(records::link_bytes().host32(20, records::kPortChannel5));
  EXPECT_EQ(device_id(path(link, kInVsan, 0, 1)), "4_10_97_2_3_67108869");
  EXPECT_EQ(device_id(path(link, kInVsan, 1, 1)), "2000000DEC0A1B4C_67108869_4");
}

TEST_F(CmpiLinkPorts, ANameThatCannotBeFormedFallsBackToTheNumbers) {
  const fspfLinkEntry link = records::link(
      records::link_bytes().host32(20, records::kNoType).host32(24, records::kNoType + 1));
  EXPECT_EQ(device_id(path(link, kInVsan, 1, 1)), "2000000DEC0A1B4C_50331649");
  EXPECT_EQ(device_id(path(link, kInVsan, 1, 0)), "2000000DEC0A1B4C_50331650");
  EXPECT_EQ(device_id(path(link, kInVsan, 0, 1)), "200A000DEC0A1B4D_10_50331649");
  EXPECT_EQ(device_id(path(link, kInVsan, 0, 0)), "200A000DEC0A1B4D_10_50331650");
}

TEST_F(CmpiLinkPorts, ADeviceIdIsCutTo31Characters) {
  const fspfLinkEntry named =
      records::link(records::link_bytes().host32(8, 1234567).host32(12, 1234567));
  EXPECT_EQ(device_id(path(named, kInVsan, 0, 1)), "1_10_97_1234567_1234567_1684275");
  const fspfLinkEntry unnamed =
      records::link(records::link_bytes().host32(0, 4094).host32(20, 0x7f000001));
  EXPECT_EQ(device_id(path(unnamed, kInVsan, 0, 1)), "200A000DEC0A1B4D_4094_213070643");
}

TEST_F(CmpiLinkPorts, AnotherMakersPortHasANumber) {
  const fspfLinkEntry link = records::link(records::link_bytes().host32(24, 5));
  EXPECT_EQ(device_id(path(link, kForeign, 1, 0)), "1000006069123456_5_1");
  EXPECT_EQ(device_id(path(link, kForeign, 0, 0)), "1_10_239_2_3_5");
  EXPECT_EQ(broker_.key_text(path(link, kForeign, 1, 0), "SystemName"), "1000006069123456");
}

TEST_F(CmpiLinkPorts, IndexAndFlagAreNotLookedAt) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  for (const int index : {-1, 0, 16842754}) {
    for (const unsigned char flag : {0, 1, 255}) {
      CMPIObjectPath* reference = fcport_fill_reference_fspf_wwn(
          index, kNamespace, kPort, &link, kInVsan.bytes, 0, flag, 1, broker_);
      EXPECT_EQ(device_id(reference), "1_10_97_2_3_16842754");
      CMPIInstance* made = fcport_build_instance_fspf_wwn(
          index, kPort, kNamespace, &link, kInVsan.bytes, 0, flag, 1, nullptr, broker_);
      EXPECT_EQ(broker_.property_text(made, "DeviceID"), "1_10_97_2_3_16842754");
    }
  }
}

TEST_F(CmpiLinkPorts, TheWwnMayBeARecord) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  ASSERT_NE(
      fcport_fill_reference_fspf_wwnt(9, kNamespace, kPort, &link, &kInVsan, 0, 1, 0, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_port_reference_link.txt");
}

// ---- ports of links: instances

TEST_F(CmpiLinkPorts, ALinksPortShowsWhatTheLinkTells) {
  const char* properties[] = {"PortType", nullptr};
  ASSERT_NE(instance(records::link(records::link_bytes()), kInVsan, 0, 0, properties), nullptr);
  expect_transcript(out_.out(), "cmpi_port_instance_link_end.txt");
}

TEST_F(CmpiLinkPorts, ALinksPortAsADeviceIsInNoVsan) {
  CMPIInstance* port = instance(records::link(records::link_bytes()), kInVsan, 1, 1);
  EXPECT_EQ(broker_.property_text(port, "SystemName"), "2000000DEC0A1B4C");
  EXPECT_EQ(broker_.property(port, "VsanId"), "none");
  EXPECT_EQ(broker_.property_text(port, "ElementName"), "fc1/2");
  EXPECT_EQ(broker_.property_text(port, "PermanentAddress"), "2042000DEC0A1B4C");
  EXPECT_EQ(broker_.property(port, "PortNumber"), "uint16 1");
}

TEST_F(CmpiLinkPorts, ALinksPortHasTheTypeOfItsInterface) {
  const struct {
    uint32_t if_index;
    const char* name;
    const char* type;
    const char* address;
    const char* number;
  } cases[] = {{records::kPortChannel5, "port-channel 5", "uint16 16004",
                "chars \"2406000DEC0A1B4C\"", "sint32 67108869"},
               {records::kFcip7, "fcip7", "uint16 16010", "none", "sint32 167772167"},
               {records::kIscsi31, "iscsi3/1", "uint16 16011", "chars \"20C1000DEC0A1B4C\"",
                "sint32 184745985"},
               {records::kGigabitEthernet22, "gigabitethernet2/2", "uint16 14",
                "chars \"2082000DEC0A1B4C\"", "uint16 1"},
               {records::kNoType, "unknown (0x3000001)", "uint16 14", "none", "sint32 50331649"},
               {256, "256", "uint16 14", "none", "sint32 256"},
               {0x80000001, "-2147483647", "uint16 14", "none", "sint32 -2147483647"}};
  for (const auto& c : cases) {
    CMPIInstance* port =
        instance(records::link(records::link_bytes().host32(24, c.if_index)), kUnique, 1, 0);
    EXPECT_EQ(broker_.property_text(port, "ElementName"), c.name);
    EXPECT_EQ(broker_.property(port, "PortType"), c.type) << c.name;
    EXPECT_EQ(broker_.property(port, "PermanentAddress"), c.address) << c.name;
    EXPECT_EQ(broker_.property(port, "PortNumber"), c.number) << c.name;
  }
}

TEST_F(CmpiLinkPorts, AnotherMakersPortShowsItsNumberAndItsWwn) {
  CMPIInstance* port = instance(records::link(records::link_bytes().host32(24, 5)), kForeign, 1, 0);
  EXPECT_EQ(broker_.property_text(port, "ElementName"), "5");
  EXPECT_EQ(broker_.property(port, "OtherIdentifyingInfo"), "chars[] {\"5\"}");
  EXPECT_EQ(broker_.property_text(port, "PermanentAddress"), "2005006069123456");
  EXPECT_EQ(broker_.property(port, "PortType"), "uint16 14");
}

TEST_F(CmpiLinkPorts, ASwitchWithoutAWwnHasPortsWithoutOne) {
  const wwn_ none = {};
  CMPIInstance* port = instance(records::link(records::link_bytes()), none, 0, 1);
  EXPECT_EQ(broker_.property_text(port, "SystemName"), "0000000000000000");
  EXPECT_EQ(broker_.property(port, "PermanentAddress"), "none");
}

// ---- ports of attachments

TEST_F(CmpiLinkPorts, ADevicesPortIsKnownByThePhysicalLinkName) {
  ASSERT_NE(path(records::entry(records::disk_bytes()), 1, 0), nullptr);
  expect_transcript(out_.out(), "cmpi_port_reference_attached.txt");
}

TEST_F(CmpiLinkPorts, BothSidesAreNamedAsDevicesAndWithinTheVsan) {
  const struct {
    Bytes entry;
    unsigned char physical;
    unsigned char fabric_side;
    const char* device_id;
    const char* system_class;
  } cases[] = {
      {records::disk_bytes(), 1, 0, "3_10000000C9123456", "VEXOR_PhysicalComputerSystem"},
      {records::disk_bytes(), 1, 1, "2_2042000DEC0A1B3C", "VEXOR_PhysicalComputerSystem"},
      {records::disk_bytes(), 0, 0, "3_10_10000000C9123456", "VEXOR_Vsan"},
      {records::disk_bytes(), 0, 255, "2_10_2042000DEC0A1B3C", "VEXOR_LogicalComputerSystem"},
      {records::iscsi_bytes(), 1, 0, "27_10000000C9123456", "VEXOR_PhysicalComputerSystem"},
      {records::iscsi_bytes(), 255, 1, "11_2042000DEC0A1B3C", "VEXOR_PhysicalComputerSystem"},
      {records::iscsi_bytes(), 0, 0, "27_10_10000000C9123456", "VEXOR_Vsan"},
      {records::iscsi_bytes(), 0, 1, "11_10_2042000DEC0A1B3C", "VEXOR_LogicalComputerSystem"}};
  for (const auto& c : cases) {
    CMPIObjectPath* reference = path(records::entry(c.entry), c.physical, c.fabric_side);
    EXPECT_EQ(device_id(reference), c.device_id);
    EXPECT_EQ(broker_.key_text(reference, "SystemName"), "unknown system") << c.device_id;
    EXPECT_EQ(broker_.key_text(reference, "SystemCreationClassName"), c.system_class);
    EXPECT_EQ(broker_.key_text(reference, "CreationClassName"), kPort);
  }
}

// Deliberate: the switch is told from the device's WWN, not from the fabric port's.
TEST_F(CmpiLinkPorts, TheSwitchIsTheOneThatTheDevicesOwnWwnTells) {
  const ns_api_register_req_ entry = records::entry(
      records::disk_bytes().put(12, hex("20 42 00 0d ec 0a 1b 3c")).put(236, hex("20 00")));
  for (const unsigned char side : {0, 1}) {
    EXPECT_EQ(broker_.key_text(path(entry, 1, side), "SystemName"), "2000000DEC0A1B3C");
    EXPECT_EQ(broker_.key_text(path(entry, 0, side), "SystemName"), "200A000DEC0A1B3D");
  }
}

TEST_F(CmpiLinkPorts, ADevicesPortShowsWhatTheNameServerTells) {
  const char* properties[] = {"PortType", nullptr};
  ASSERT_NE(instance(records::entry(records::disk_bytes()), 0, 0, properties), nullptr);
  expect_transcript(out_.out(), "cmpi_port_instance_device.txt");
}

TEST_F(CmpiLinkPorts, TheSwitchPortOfADeviceShowsNothingOfTheDevicesOwn) {
  ASSERT_NE(instance(records::entry(records::disk_bytes()), 0, 1), nullptr);
  expect_transcript(out_.out(), "cmpi_port_instance_fabric_side.txt");
}

TEST_F(CmpiLinkPorts, AnIscsiDevicesPortsHaveTypesOfTheirOwn) {
  const ns_api_register_req_ entry = records::entry(records::iscsi_bytes());
  CMPIInstance* device = instance(entry, 1, 0);
  EXPECT_EQ(broker_.property(device, "PortType"), "uint16 16012");
  EXPECT_EQ(broker_.property(device, "ActiveFC4Types"), "uint16[] {5, 8, 225}");
  EXPECT_EQ(broker_.property(instance(entry, 1, 1), "PortType"), "uint16 16011");
}

TEST_F(CmpiLinkPorts, ALoopPortIsNlAtTheDeviceAndFlAtTheSwitch) {
  const ns_api_register_req_ entry = records::entry(records::disk_bytes().host32(196, 130));
  EXPECT_EQ(broker_.property(instance(entry, 1, 0), "PortType"), "uint16 11");
  EXPECT_EQ(broker_.property(instance(entry, 1, 1), "PortType"), "uint16 16");
}

TEST_F(CmpiLinkPorts, ADeviceWithoutFc4TypesShowsNone) {
  const ns_api_register_req_ entry = records::entry(records::disk_bytes().put(36, zeros(32)));
  EXPECT_EQ(broker_.property(instance(entry, 0, 0), "ActiveFC4Types"), "none");
}

TEST_F(CmpiLinkPorts, ADeviceWithEveryFc4TypeShowsThemAll) {
  const ns_api_register_req_ entry = records::entry(records::disk_bytes().put(36, Bytes(32, 0xff)));
  std::string all = "uint16[] {0";
  for (int type = 1; type < 256; ++type)
    all += ", " + std::to_string(type);
  EXPECT_EQ(broker_.property(instance(entry, 0, 0), "ActiveFC4Types"), all + "}");
}

// ---- endpoints

TEST_F(CmpiLinkPorts, TheNearEndpointIsKnownByTheLinkAndTheSwitchOfItsDomain) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  Script script;
  script.expect(records::switch_of(10, 97)).replies(records::switch_97());
  ASSERT_NE(pe_fill_reference_fspf(kEndpoint, kNamespace, kQueue, &link, 1, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_endpoint_reference_link.txt");
}

TEST_F(CmpiLinkPorts, TheFarEndpointAsksForTheOtherSwitchOnce) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  const char* properties[] = {"Name", nullptr};
  Script script;
  script.expect(records::switch_of(10, 239)).replies(records::switch_239());
  ASSERT_NE(pe_build_instance_fspf(kEndpoint, kNamespace, kQueue, &link, 0, properties, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_endpoint_instance_link.txt");
}

TEST_F(CmpiLinkPorts, TheDomainManagerIsAskedOnTheQueueGiven) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  mts_q = kQueue;
  Script script;
  script.expect(records::switch_of(10, 97)).q(77).replies(records::switch_97());
  EXPECT_NE(pe_fill_reference_fspf(kEndpoint, kNamespace, 77, &link, 255, broker_), nullptr);
  mts_q = -1;
}

TEST_F(CmpiLinkPorts, AnEndpointWithoutALinkNameIsCalledNone) {
  const fspfLinkEntry link = records::link(records::link_bytes().host32(20, records::kNoType));
  Script script;
  script.expect(records::switch_of(10, 97)).replies(records::switch_97());
  CMPIObjectPath* reference =
      pe_fill_reference_fspf(kEndpoint, kNamespace, kQueue, &link, 1, broker_);
  EXPECT_EQ(broker_.key_text(reference, "Name"), "none");
  EXPECT_EQ(broker_.key_text(reference, "SystemName"), "200A000DEC0A1B3D");
}

TEST_F(CmpiLinkPorts, AnEndpointsLinkNameIsNotCut) {
  const fspfLinkEntry link =
      records::link(records::link_bytes().host32(8, 0x80000000).host32(12, 0x80000000));
  Script script;
  script.expect(records::switch_of(10, 97)).status(17);
  EXPECT_EQ(broker_.key_text(
                pe_fill_reference_fspf(kEndpoint, kNamespace, kQueue, &link, 1, broker_), "Name"),
            "1_10_97_-2147483648_-2147483648_16842754");
}

TEST_F(CmpiLinkPorts, AnEndpointWhoseSwitchIsNotToldHasAnEmptySystemName) {
  const fspfLinkEntry link = records::link(records::link_bytes());
  Script script;
  script.expect(records::switch_of(10, 97)).status(17);
  script.expect(records::switch_of(10, 97)).times_out();
  script.expect(records::switch_of(10, 97)).ok_without_reply();
  script.expect(records::switch_of(10, 97)).replies(records::switch_97()).cut_to(18);
  for (int i = 0; i < 4; ++i) {
    CMPIInstance* made =
        pe_build_instance_fspf(kEndpoint, kNamespace, kQueue, &link, 1, nullptr, broker_);
    EXPECT_EQ(broker_.property_text(made, "Name"), "1_10_97_2_3_16842754");
    EXPECT_EQ(broker_.property(made, "SystemName"), "chars \"\"");
    EXPECT_EQ(broker_.property(made, "ProtocolIFType"), "uint16 56");
  }
}

TEST_F(CmpiLinkPorts, APortsEndpointIsKnownByItsWwn) {
  const pm_port_info_ port = records::fc12();
  ASSERT_NE(pe_build_instance_pm(kEndpoint, kNamespace, &port, nullptr, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_endpoint_instance_port.txt");
}

TEST_F(CmpiLinkPorts, APortsEndpointOfNoKnownMakerHasAnEmptySystemName) {
  const pm_port_info_ port =
      records::port(records::fc12_bytes().put(127, hex("20 42 00 00 c9 12 34 56")));
  CMPIObjectPath* reference = pe_fill_reference_pm(kEndpoint, kNamespace, &port, broker_);
  EXPECT_EQ(broker_.key_names(reference),
            (Names{"Name", "SystemName", "SystemCreationClassName", "CreationClassName"}));
  EXPECT_EQ(broker_.key_text(reference, "Name"), "20420000C9123456");
  EXPECT_EQ(broker_.key(reference, "SystemName"), "chars \"\"");
  EXPECT_EQ(broker_.key_text(reference, "SystemCreationClassName"), "VEXOR_LogicalComputerSystem");
  EXPECT_EQ(broker_.key_text(reference, "CreationClassName"), kEndpoint);
}

TEST_F(CmpiLinkPorts, AnAttachmentsEndpointsAreBothNamedByTheDevicesWwn) {
  const ns_api_register_req_ entry = records::entry(records::disk_bytes());
  ASSERT_NE(pe_build_instance_ns(kEndpoint, kNamespace, &entry, 1, nullptr, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_endpoint_instance_attached.txt");
  CMPIObjectPath* device = pe_fill_reference_ns(kEndpoint, kNamespace, &entry, 0, broker_);
  EXPECT_EQ(broker_.key_text(device, "Name"), "3_10_10000000C9123456");
  const ns_api_register_req_ iscsi = records::entry(records::iscsi_bytes());
  EXPECT_EQ(
      broker_.key_text(pe_fill_reference_ns(kEndpoint, kNamespace, &iscsi, 0, broker_), "Name"),
      "27_10_10000000C9123456");
  EXPECT_EQ(
      broker_.key_text(pe_fill_reference_ns(kEndpoint, kNamespace, &iscsi, 255, broker_), "Name"),
      "11_10_10000000C9123456");
}

TEST_F(CmpiLinkPorts, AnAttachmentsEndpointIsOnTheSwitchThatTheDevicesWwnTells) {
  const ns_api_register_req_ entry =
      records::entry(records::disk_bytes().put(12, hex("20 42 00 0d ec 0a 1b 3c")));
  EXPECT_EQ(broker_.key_text(pe_fill_reference_ns(kEndpoint, kNamespace, &entry, 0, broker_),
                             "SystemName"),
            "200A000DEC0A1B3D");
}

// ---- port groups

TEST_F(CmpiLinkPorts, APortGroupIsKnownByItsText) {
  const char* properties[] = {"ElementName", nullptr};
  ASSERT_NE(logical_port_group_build_instance_str(kGroup, kNamespace, "20000000C9123456",
                                                  properties, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_port_group_instance.txt");
}

TEST_F(CmpiLinkPorts, APortGroupByItsWwnIsTheSame) {
  const char* properties[] = {"ElementName", nullptr};
  ASSERT_NE(logical_port_group_build_instance(kGroup, kNamespace, &kNode, properties, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_port_group_instance.txt");
}

TEST_F(CmpiLinkPorts, APortGroupsReferenceHasOneKey) {
  ASSERT_NE(logical_port_group_fill_reference_str(kNamespace, kGroup, "20000000C9123456", broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_port_group_reference.txt");
}

TEST_F(CmpiLinkPorts, APortGroupsReferenceByItsWwnIsTheSame) {
  ASSERT_NE(logical_port_group_fill_reference(kGroup, kNamespace, &kNode, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_port_group_reference.txt");
}

TEST_F(CmpiLinkPorts, APortGroupsTextIsTakenAsItIs) {
  const std::string text = "100% " + std::string(2000, 'g');
  EXPECT_EQ(broker_.key_text(
                logical_port_group_fill_reference_str(kNamespace, kGroup, text.c_str(), broker_),
                "InstanceID"),
            text);
}

// ---- failures of every builder

struct References {
  const char* name;
  std::function<CMPIObjectPath*(const CMPIBroker*)> build;
};
struct Instances {
  const char* name;
  std::function<CMPIInstance*(const CMPIBroker*)> build;
};

const fspfLinkEntry kLink = records::link(records::link_bytes());
const pm_port_info_ kFc12 = records::fc12();
const ns_api_register_req_ kDisk = records::entry(records::disk_bytes());

std::vector<References> references(bool with_record) {
  const auto* link = with_record ? &kLink : nullptr;
  const auto* port = with_record ? &kFc12 : nullptr;
  const auto* entry = with_record ? &kDisk : nullptr;
  const auto* wwn = with_record ? &kNode : nullptr;
  const char* text = with_record ? "text" : nullptr;
  return {
      {"fcport_fill_reference_fspf_wwn",
       [=](auto* b) {
         return fcport_fill_reference_fspf_wwn(0, kNamespace, kPort, link, kInVsan.bytes, 0, 1, 1,
                                               b);
       }},
      {"fcport_fill_reference_fspf_wwnt",
       [=](auto* b) {
         return fcport_fill_reference_fspf_wwnt(0, kNamespace, kPort, &kLink, wwn, 0, 1, 1, b);
       }},
      {"fcport_fill_reference_ns",
       [=](auto* b) { return fcport_fill_reference_ns(kPort, kNamespace, entry, 1, 0, b); }},
      {"pe_fill_reference_fspf",
       [=](auto* b) { return pe_fill_reference_fspf(kEndpoint, kNamespace, kQueue, link, 1, b); }},
      {"pe_fill_reference_pm",
       [=](auto* b) { return pe_fill_reference_pm(kEndpoint, kNamespace, port, b); }},
      {"pe_fill_reference_ns",
       [=](auto* b) { return pe_fill_reference_ns(kEndpoint, kNamespace, entry, 1, b); }},
      {"logical_port_group_fill_reference_str",
       [=](auto* b) { return logical_port_group_fill_reference_str(kNamespace, kGroup, text, b); }},
      {"logical_port_group_fill_reference",
       [=](auto* b) { return logical_port_group_fill_reference(kGroup, kNamespace, wwn, b); }},
  };
}

std::vector<Instances> instances(bool with_record) {
  const auto* link = with_record ? &kLink : nullptr;
  const auto* port = with_record ? &kFc12 : nullptr;
  const auto* entry = with_record ? &kDisk : nullptr;
  const auto* wwn = with_record ? &kNode : nullptr;
  const char* text = with_record ? "text" : nullptr;
  const char** none = nullptr;
  return {
      {"fcport_build_instance_fspf_wwn",
       [=](auto* b) {
         return fcport_build_instance_fspf_wwn(0, kPort, kNamespace, link, kInVsan.bytes, 0, 1, 1,
                                               none, b);
       }},
      {"fcport_build_instance_ns",
       [=](auto* b) { return fcport_build_instance_ns(kPort, kNamespace, entry, 1, 0, none, b); }},
      {"pe_build_instance_fspf",
       [=](auto* b) {
         return pe_build_instance_fspf(kEndpoint, kNamespace, kQueue, link, 1, none, b);
       }},
      {"pe_build_instance_pm",
       [=](auto* b) { return pe_build_instance_pm(kEndpoint, kNamespace, port, none, b); }},
      {"pe_build_instance_ns",
       [=](auto* b) { return pe_build_instance_ns(kEndpoint, kNamespace, entry, 1, none, b); }},
      {"logical_port_group_build_instance_str",
       [=](auto* b) {
         return logical_port_group_build_instance_str(kGroup, kNamespace, text, none, b);
       }},
      {"logical_port_group_build_instance",
       [=](auto* b) {
         return logical_port_group_build_instance(kGroup, kNamespace, wwn, none, b);
       }},
  };
}

TEST_F(CmpiLinkPorts, NoRecordMakesNothing) {
  for (const References& reference : references(false))
    EXPECT_EQ(reference.build(broker_), nullptr) << reference.name;
  for (const Instances& made : instances(false))
    EXPECT_EQ(made.build(broker_), nullptr) << made.name;
  EXPECT_EQ(fcport_fill_reference_fspf_wwn(0, kNamespace, kPort, &kLink, nullptr, 0, 1, 1, broker_),
            nullptr);
  EXPECT_EQ(fcport_build_instance_fspf_wwn(0, kPort, kNamespace, &kLink, nullptr, 0, 1, 1, nullptr,
                                           broker_),
            nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(CmpiLinkPorts, ABadPathOrInstanceIsNoneAndAsksNothing) {
  Script script;
  HeapLedger ledger;
  broker_.write_down(false);
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    for (const References& reference : references(true)) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(reference.build(broker_), nullptr) << reference.name;
    }
    for (const Instances& made : instances(true)) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(made.build(broker_), nullptr) << made.name;
      broker_.fail_nth_instance(1, how);
      EXPECT_EQ(made.build(broker_), nullptr) << made.name;
    }
  }
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(CmpiLinkPorts, WithoutMemoryForItsKeysThereIsNoInstance) {
  broker_.write_down(false);
  for (const Instances& made : instances(true)) {
    size_t none = 0;
    for_every_failing_allocation(
        [&](FailingAllocation& round) {
          Responder services([](const Request&) { return Response::failed(17); });
          if (round.attempt([&] { return made.build(broker_); }) == nullptr) ++none;
        },
        Heap::c);
    // The list and one block for each key.
    const bool group = std::string(made.name).starts_with("logical_port_group");
    EXPECT_EQ(none, group ? 2u : 5u) << made.name;
  }
}

TEST_F(CmpiLinkPorts, WithoutMemoryForTheSwitchAnEndpointHasAnEmptySystemName) {
  broker_.write_down(false);
  size_t rounds = for_every_failing_allocation(
      [this](FailingAllocation& round) {
        Script script;
        if (round.n() > 1) script.expect(records::switch_of(10, 97)).replies(records::switch_97());
        CMPIObjectPath* reference = round.attempt([this] {
          return pe_fill_reference_fspf(kEndpoint, kNamespace, kQueue, &kLink, 1, broker_);
        });
        EXPECT_EQ(broker_.key_text(reference, "SystemName"),
                  round.was_hit() ? "" : "200A000DEC0A1B3D");
      },
      Heap::c);
  EXPECT_EQ(rounds, 2u);
}

}  // namespace
