// The Pegasus face of ports, their endpoints, groups and statistics.
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/System.h>
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <optional>

#include "schema/repository.h"
#include "tests/model/class_source_double.h"
#include "tests/model/pegasus_text.h"
#include "tests/model/port_records.h"
#include "tests/model/repository_class_source.h"
#include "tests/support/capture.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");
constexpr const char* kPort = "VEXOR_FCPort";
constexpr const char* kEndpoint = "VEXOR_ProtocolEndPoint";
constexpr const char* kGroup = "VEXOR_LogicalPortGroup";
constexpr const char* kStatistics = "VEXOR_FCPortStatistics";
constexpr const char* kData = "VEXOR_FCPortStatisticalData";
constexpr const char* kText = "20000000C9123456";
constexpr int32_t kCmpiQueue = 9;

std::string text_of(const CIMInstance& instance, const char* property) {
  const auto at = instance.findProperty(CIMName(property));
  if (at == PEG_NOT_FOUND) return "none";
  return std::string(instance.getProperty(at).getValue().toString().getCString());
}

std::string key_of(const CIMObjectPath& path, const char* name) {
  const auto& keys = path.getKeyBindings();
  for (Pegasus::Uint32 i = 0; i < keys.size(); ++i) {
    if (keys[i].getName().equal(CIMName(name))) return std::string(keys[i].getValue().getCString());
  }
  return "none";
}

class PegasusPorts : public testing::Test {
 protected:
  PegasusPorts() { ProviderUtil::mts_q = kQueue; }
  ~PegasusPorts() override {
    ProviderUtil::mts_q = -1;
    mts_q = -1;
  }
  void define_classes() {
    classes_.emplace();
    const std::vector<const char*> port = {"DeviceID", "SystemName", "SystemCreationClassName",
                                           "CreationClassName"};
    for (const char* cls : {kPort, "VEXOR_EthernetPort"})
      classes_->define(cls, port,
                       {"ElementName",
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
                        "PortAvailability"});
    classes_->define(kEndpoint,
                     {"Name", "SystemName", "SystemCreationClassName", "CreationClassName"},
                     {"ProtocolIFType"});
    classes_->define(kGroup, {"InstanceID"}, {"ElementName"});
    classes_->define(kData, {"ManagedElement", "Stats"}, {});
  }
  // Every service answers fc1/2's questions; the optics are asked on the CMPI face's queue.
  static void expect_all(Script& script) {
    mts_q = kCmpiQueue;
    script.expect(records::entry_of_vsan_10()).replies(records::vsan_10_entry());
    script.expect(records::own_domain_in_vsan_10()).replies(records::domain_97());
    script.expect(records::links_of_domain_97()).replies(records::one_link());
    script.expect(records::switch_of(10, 239)).replies(records::switch_239());
    script.expect(records::optics_of_fc12().q(kCmpiQueue)).gives(records::optics(1));
  }
  // The traces, and then what was returned.
  template <class Value>
  void expect(const Value& value, const char* transcript) {
    expect_transcript(out_.out() + "\n---\n" + pegasus_text::of(value), transcript);
  }
  bool said(const char* text) const { return out_.out().find(text) != std::string::npos; }

  std::optional<ClassSourceDouble> classes_;
  StdioCapture out_;
  pm_port_info_ port_ = records::fc12();
  pm_port_info_ ethernet_ = records::port(records::ethernet_bytes());
  fspfLinkEntry link_ = records::link(records::link_bytes());
  ns_api_register_req_ disk_ = records::entry(records::disk_bytes());
  fcIfAllCounters_t counters_ =
      records::record_of<fcIfAllCounters_t>(records::counters_by_offset(records::kFc12));
  wwn_ in_vsan_ = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4d}};
  wwn_ node_ = {{0x20, 0x00, 0x00, 0x00, 0xc9, 0x12, 0x34, 0x56}};
};

TEST_F(PegasusPorts, APortOfALinkHasItsVsanAndItsPeer) {
  define_classes();
  Script script;
  expect_all(script);
  expect(ProviderUtil::fcport_build_instance(kPort, kNamespace, &port_),
         "pegasus_port_instance_link.txt");
}

TEST_F(PegasusPorts, AnEthernetPortIsOfItsOwnClassThroughout) {
  define_classes();
  const CIMInstance made = ProviderUtil::fcport_build_instance(kPort, kNamespace, &ethernet_);
  EXPECT_TRUE(made.getClassName().equal(CIMName("VEXOR_EthernetPort")));
  EXPECT_TRUE(made.getPath().getClassName().equal(CIMName("VEXOR_EthernetPort")));
  EXPECT_EQ(text_of(made, "CreationClassName"), "VEXOR_EthernetPort");
  EXPECT_EQ(text_of(made, "SystemName"), "gigabitethernet2/2");
  EXPECT_EQ(text_of(made, "PortType"), "53");
  EXPECT_EQ(text_of(made, "LinkTechnology"), "none");
  EXPECT_EQ(made.getPropertyCount(), 19u);
}

TEST_F(PegasusPorts, WithoutServicesAPortHasWhatItsRecordTells) {
  define_classes();
  Script script;
  script.expect(records::entry_of_vsan_10()).status(17);
  script.expect(records::optics_of_fc12().q(-1)).fails(17);
  const CIMInstance made = ProviderUtil::fcport_build_instance(kPort, kNamespace, &port_);
  EXPECT_EQ(made.getPropertyCount(), 25u);
  EXPECT_EQ(text_of(made, "VsanId"), "none");
  EXPECT_EQ(text_of(made, "PortAvailability"), "2");
  EXPECT_TRUE(said("fcport_build_instance_pm(): error during get vsan id\n"));
  EXPECT_TRUE(said("Error in pm_cim_get_fcot_info "));
}

TEST_F(PegasusPorts, TheFarEndOfALinkShowsWhatTheLinkTells) {
  define_classes();
  expect(ProviderUtil::fcport_build_instance(0, kPort, kNamespace, &link_, in_vsan_.bytes, 0, 1, 0),
         "pegasus_port_instance_link_end.txt");
}

TEST_F(PegasusPorts, TheWwnOfALinksSwitchMayBeARecord) {
  define_classes();
  expect(ProviderUtil::fcport_build_instance(0, kPort, kNamespace, &link_, &in_vsan_, 0, 1, 0),
         "pegasus_port_instance_link_end.txt");
}

TEST_F(PegasusPorts, ADevicesPortShowsWhatTheNameServerTells) {
  define_classes();
  expect(ProviderUtil::fcport_build_instance(kPort, kNamespace, &disk_, 0, 0),
         "pegasus_port_instance_device.txt");
}

TEST_F(PegasusPorts, AnEndpointAsksForItsSwitchOnceOnTheQueueGiven) {
  define_classes();
  Script script;
  script.expect(records::switch_of(10, 97)).q(77).replies(records::switch_97());
  expect(ProviderUtil::pe_build_instance(kEndpoint, kNamespace, 77, &link_, 1),
         "pegasus_endpoint_instance_link.txt");
}

TEST_F(PegasusPorts, EndpointsOfPortsAndDevicesAskNothing) {
  define_classes();
  const CIMInstance of_port = ProviderUtil::pe_build_instance(kEndpoint, kNamespace, &port_);
  EXPECT_EQ(text_of(of_port, "Name"), "2042000DEC0A1B3C");
  EXPECT_EQ(text_of(of_port, "SystemName"), "2000000DEC0A1B3C");
  const CIMInstance of_device = ProviderUtil::pe_build_instance(kEndpoint, kNamespace, &disk_, 1);
  EXPECT_EQ(text_of(of_device, "Name"), "2_10_10000000C9123456");
  EXPECT_EQ(text_of(of_device, "SystemName"), "");
  EXPECT_EQ(text_of(of_device, "ProtocolIFType"), "56");
}

TEST_F(PegasusPorts, APortGroupIsKnownByItsTextOrItsWwn) {
  define_classes();
  for (const CIMInstance& made :
       {ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, kText),
        ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, &node_)}) {
    EXPECT_EQ(text_of(made, "InstanceID"), kText);
    EXPECT_EQ(text_of(made, "ElementName"), kText);
    EXPECT_EQ(pegasus_text::of(made.getPath()),
              "path HOST root/cimv2 VEXOR_LogicalPortGroup\nkey InstanceID = 20000000C9123456\n");
  }
}

TEST_F(PegasusPorts, APortIsTiedToItsStatistics) {
  define_classes();
  expect(ProviderUtil::port_stat_build_instance(kData, kNamespace, &port_),
         "pegasus_port_statistical_data.txt");
}

TEST_F(PegasusPorts, TwoGivenReferencesAreTied) {
  define_classes();
  const CIMObjectPath port = ProviderUtil::fcport_fill_reference(kPort, kNamespace, &port_);
  const CIMObjectPath statistics =
      ProviderUtil::fcport_stat_fill_reference(kStatistics, kNamespace, records::kFc12);
  expect(ProviderUtil::port_stat_build_instance(kData, kNamespace, port, statistics),
         "pegasus_port_statistical_data.txt");
}

// The keys of both faces are the same; the hosts of their paths differ, deliberately.
TEST_F(PegasusPorts, BothFacesHaveTheSameKeys) {
  RecordingBroker broker;
  broker.write_down(false);
  const auto same = [&broker](const CIMObjectPath& ours, const CMPIObjectPath* theirs) {
    const auto names = broker.key_names(theirs);
    EXPECT_EQ(ours.getKeyBindings().size(), names.size());
    for (const std::string& name : names)
      EXPECT_EQ(key_of(ours, name.c_str()), broker.key_text(theirs, name.c_str())) << name;
    EXPECT_EQ(std::string(ours.getClassName().getString().getCString()), broker.class_name(theirs));
    EXPECT_TRUE(String::equal(ours.getHost(), Pegasus::System::getHostName()));
    EXPECT_EQ(broker.host(theirs), "switch-1");
  };
  const char* ns = "root/cimv2";
  same(ProviderUtil::fcport_fill_reference(kPort, kNamespace, &port_),
       fcport_fill_reference_pm(ns, kPort, &port_, broker));
  same(ProviderUtil::fcport_fill_reference(kPort, kNamespace, &ethernet_),
       fcport_fill_reference_pm(ns, kPort, &ethernet_, broker));
  for (const unsigned char first : {0, 1}) {
    for (const unsigned char second : {0, 1}) {
      same(ProviderUtil::fcport_fill_reference(3, kPort, kNamespace, &link_, in_vsan_.bytes, first,
                                               1, second),
           fcport_fill_reference_fspf_wwn(3, ns, kPort, &link_, in_vsan_.bytes, first, 1, second,
                                          broker));
      same(ProviderUtil::fcport_fill_reference(3, kPort, kNamespace, &link_, &in_vsan_, first, 1,
                                               second),
           fcport_fill_reference_fspf_wwnt(3, ns, kPort, &link_, &in_vsan_, first, 1, second,
                                           broker));
      same(ProviderUtil::fcport_fill_reference(kPort, kNamespace, &disk_, first, second),
           fcport_fill_reference_ns(kPort, ns, &disk_, first, second, broker));
    }
    same(ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, &disk_, first),
         pe_fill_reference_ns(kEndpoint, ns, &disk_, first, broker));
    Responder services([](const Request&) { return Response::with(records::switch_97()); });
    same(ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, kQueue, &link_, first),
         pe_fill_reference_fspf(kEndpoint, ns, kQueue, &link_, first, broker));
  }
  same(ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, &port_),
       pe_fill_reference_pm(kEndpoint, ns, &port_, broker));
  same(ProviderUtil::logical_port_group_fill_reference(kGroup, kNamespace, kText),
       logical_port_group_fill_reference_str(ns, kGroup, kText, broker));
  same(ProviderUtil::logical_port_group_fill_reference(kGroup, kNamespace, &node_),
       logical_port_group_fill_reference(kGroup, ns, &node_, broker));
  same(ProviderUtil::fcport_stat_fill_reference(kStatistics, kNamespace, 0x80000001),
       fcport_stat_fill_reference(ns, kStatistics, 0x80000001, broker));
}

TEST_F(PegasusPorts, AnObjectIsTheInstance) {
  define_classes();
  Responder services([](const Request&) { return Response::failed(17); });
  port_.fcot_present = 0;
  const CIMObjectPath end = ProviderUtil::fcport_stat_fill_reference(kStatistics, kNamespace, 5);
  unsigned char* wwn = in_vsan_.bytes;
  const std::pair<CIMObject, CIMInstance> pairs[] = {
      {ProviderUtil::fcport_build_object(kPort, kNamespace, &port_),
       ProviderUtil::fcport_build_instance(kPort, kNamespace, &port_)},
      {ProviderUtil::fcport_build_object(1, kPort, kNamespace, &link_, wwn, 1, 1, 0),
       ProviderUtil::fcport_build_instance(1, kPort, kNamespace, &link_, wwn, 1, 1, 0)},
      {ProviderUtil::fcport_build_object(1, kPort, kNamespace, &link_, &in_vsan_, 0, 1, 1),
       ProviderUtil::fcport_build_instance(1, kPort, kNamespace, &link_, &in_vsan_, 0, 1, 1)},
      {ProviderUtil::fcport_build_object(kPort, kNamespace, &disk_, 1, 0),
       ProviderUtil::fcport_build_instance(kPort, kNamespace, &disk_, 1, 0)},
      {ProviderUtil::pe_build_object(kEndpoint, kNamespace, kQueue, &link_, 0),
       ProviderUtil::pe_build_instance(kEndpoint, kNamespace, kQueue, &link_, 0)},
      {ProviderUtil::pe_build_object(kEndpoint, kNamespace, &port_),
       ProviderUtil::pe_build_instance(kEndpoint, kNamespace, &port_)},
      {ProviderUtil::pe_build_object(kEndpoint, kNamespace, &disk_, 0),
       ProviderUtil::pe_build_instance(kEndpoint, kNamespace, &disk_, 0)},
      {ProviderUtil::logical_port_group_build_object(kGroup, kNamespace, kText),
       ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, kText)},
      {ProviderUtil::logical_port_group_build_object(kGroup, kNamespace, &node_),
       ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, &node_)},
      {ProviderUtil::fcport_stat_build_object(kStatistics, kNamespace, &counters_),
       ProviderUtil::fcport_stat_build_instance(kStatistics, kNamespace, &counters_)},
      {ProviderUtil::port_stat_build_object(kData, kNamespace, &port_),
       ProviderUtil::port_stat_build_instance(kData, kNamespace, &port_)},
      {ProviderUtil::port_stat_build_object(kData, kNamespace, end, end),
       ProviderUtil::port_stat_build_instance(kData, kNamespace, end, end)},
  };
  for (const auto& [object, instance] : pairs) {
    ASSERT_TRUE(object.isInstance());
    EXPECT_EQ(pegasus_text::of(CIMInstance(object)), pegasus_text::of(instance));
  }
}

TEST_F(PegasusPorts, NoRecordMakesAnUninitializedObject) {
  pm_port_info_* no_port = nullptr;
  fspfLinkEntry* no_link = nullptr;
  ns_api_register_req_* no_entry = nullptr;
  fcIfAllCounters_t* no_counters = nullptr;
  unsigned char* no_bytes = nullptr;
  wwn_* no_wwn = nullptr;
  const char* no_text = nullptr;
  const CIMInstance instances[] = {
      ProviderUtil::fcport_build_instance(kPort, kNamespace, no_port),
      ProviderUtil::fcport_build_instance(0, kPort, kNamespace, no_link, &in_vsan_, 0, 1, 1),
      ProviderUtil::fcport_build_instance(0, kPort, kNamespace, &link_, no_bytes, 0, 1, 1),
      ProviderUtil::fcport_build_instance(0, kPort, kNamespace, &link_, no_wwn, 0, 1, 1),
      ProviderUtil::fcport_build_instance(kPort, kNamespace, no_entry, 0, 0),
      ProviderUtil::pe_build_instance(kEndpoint, kNamespace, kQueue, no_link, 0),
      ProviderUtil::pe_build_instance(kEndpoint, kNamespace, no_port),
      ProviderUtil::pe_build_instance(kEndpoint, kNamespace, no_entry, 0),
      ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, no_text),
      ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, no_wwn),
      ProviderUtil::fcport_stat_build_instance(kStatistics, kNamespace, no_counters),
      ProviderUtil::port_stat_build_instance(kData, kNamespace, no_port)};
  for (const CIMInstance& instance : instances)
    EXPECT_TRUE(instance.isUninitialized());
  const CIMObjectPath paths[] = {
      ProviderUtil::fcport_fill_reference(kPort, kNamespace, no_port),
      ProviderUtil::fcport_fill_reference(0, kPort, kNamespace, no_link, &in_vsan_, 0, 1, 1),
      ProviderUtil::fcport_fill_reference(0, kPort, kNamespace, &link_, no_bytes, 0, 1, 1),
      ProviderUtil::fcport_fill_reference(0, kPort, kNamespace, &link_, no_wwn, 0, 1, 1),
      ProviderUtil::fcport_fill_reference(kPort, kNamespace, no_entry, 0, 0),
      ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, kQueue, no_link, 0),
      ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, no_port),
      ProviderUtil::pe_fill_reference(kEndpoint, kNamespace, no_entry, 0),
      ProviderUtil::logical_port_group_fill_reference(kGroup, kNamespace, no_text),
      ProviderUtil::logical_port_group_fill_reference(kGroup, kNamespace, no_wwn),
      ProviderUtil::port_stat_fill_reference(kData, kNamespace, no_port)};
  for (const CIMObjectPath& path : paths)
    EXPECT_TRUE(path.getClassName().isNull());
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PegasusPorts, AnEndpointWhoseSwitchIsNotToldHasAnEmptySystemName) {
  define_classes();
  Responder services([](const Request&) { return Response::failed(17); });
  const CIMInstance made =
      ProviderUtil::pe_build_instance(kEndpoint, kNamespace, kQueue, &link_, 1);
  EXPECT_EQ(text_of(made, "SystemName"), "");
  EXPECT_EQ(text_of(made, "Name"), "1_10_97_2_3_16842754");
}

// ---- exceptions

TEST_F(PegasusPorts, ADevicesReferenceOfABadNamespaceIsToldAndNotThere) {
  const CIMObjectPath path = ProviderUtil::fcport_fill_reference(kPort, "root/c i m", &disk_, 1, 0);
  EXPECT_TRUE(path.getClassName().isNull());
  EXPECT_EQ(out_.out(), "f port fill refere exception:  invalid CIM namespace name: root/c i m");
}

TEST_F(PegasusPorts, ADevicesReferenceOfABadClassNameIsToldAndNotThere) {
  const CIMObjectPath path =
      ProviderUtil::fcport_fill_reference("no class", kNamespace, &disk_, 0, 1);
  EXPECT_TRUE(path.getClassName().isNull());
  EXPECT_EQ(out_.out(), "f port fill refere exception:  The CIM name is not valid: no class");
}

TEST_F(PegasusPorts, ADevicesPortGoesOnWithoutAPath) {
  define_classes();
  const CIMInstance made = ProviderUtil::fcport_build_instance(kPort, "root/c i m", &disk_, 1, 0);
  EXPECT_EQ(text_of(made, "DeviceID"), "3_10000000C9123456");
  EXPECT_EQ(text_of(made, "PortType"), "10");
  EXPECT_TRUE(made.getPath().getClassName().isNull() ||
              made.getPath().getKeyBindings().size() == 0);
  EXPECT_TRUE(said("f port fill refere exception:  invalid CIM namespace name: root/c i m"));
  EXPECT_TRUE(said("ProviderUtil::addQualifiers() - Exit\n"));
}

TEST_F(PegasusPorts, EveryOtherExceptionIsTheCallers) {
  const String bad("root/c i m");
  using Pegasus::Exception;
  EXPECT_THROW(ProviderUtil::fcport_fill_reference(kPort, bad, &port_), Exception);
  EXPECT_THROW(ProviderUtil::fcport_fill_reference(0, kPort, bad, &link_, &in_vsan_, 0, 1, 1),
               Exception);
  EXPECT_THROW(ProviderUtil::pe_fill_reference(kEndpoint, bad, &disk_, 1), Exception);
  EXPECT_THROW(ProviderUtil::logical_port_group_fill_reference(kGroup, bad, kText), Exception);
  EXPECT_THROW(ProviderUtil::fcport_stat_fill_reference(kStatistics, bad, 1), Exception);
  EXPECT_THROW(ProviderUtil::port_stat_fill_reference(kData, bad, &port_), Exception);
  EXPECT_THROW(ProviderUtil::fcport_build_instance("no class", kNamespace, &disk_, 1, 0),
               Exception);
}

// ---- our own class definitions

class PegasusPortClasses : public PegasusPorts {
 protected:
  PegasusPortClasses() {
    for (const auto& error : repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
      ADD_FAILURE() << error.text();
    source_.emplace(repository_);
  }
  static bool qualified(const CIMInstance& instance, const char* name, const char* qualifier) {
    const Pegasus::Uint32 at = instance.findProperty(CIMName(name));
    return at != PEG_NOT_FOUND &&
           instance.getProperty(at).findQualifier(CIMName(qualifier)) != PEG_NOT_FOUND;
  }
  cim::schema::Repository repository_;
  std::optional<RepositoryClassSource> source_;
};

TEST_F(PegasusPortClasses, NothingIsDropped) {
  Script script;
  expect_all(script);
  const CIMInstance port = ProviderUtil::fcport_build_instance(kPort, kNamespace, &port_);
  EXPECT_EQ(port.getPropertyCount(), 28u);
  EXPECT_TRUE(qualified(port, "DeviceID", "Key"));
  EXPECT_TRUE(qualified(port, "PortType", "ValueMap"));
  const CIMInstance ethernet = ProviderUtil::fcport_build_instance(kPort, kNamespace, &ethernet_);
  EXPECT_EQ(ethernet.getPropertyCount(), 19u);
  EXPECT_EQ(ProviderUtil::fcport_build_instance(0, kPort, kNamespace, &link_, &in_vsan_, 0, 1, 1)
                .getPropertyCount(),
            15u);
  EXPECT_EQ(ProviderUtil::fcport_build_instance(kPort, kNamespace, &disk_, 0, 0).getPropertyCount(),
            17u);
  EXPECT_EQ(ProviderUtil::pe_build_instance(kEndpoint, kNamespace, &port_).getPropertyCount(), 5u);
  EXPECT_EQ(
      ProviderUtil::logical_port_group_build_instance(kGroup, kNamespace, kText).getPropertyCount(),
      2u);
  const CIMInstance statistics =
      ProviderUtil::fcport_stat_build_instance(kStatistics, kNamespace, &counters_);
  EXPECT_EQ(statistics.getPropertyCount(), 36u);
  EXPECT_EQ(text_of(statistics, "PacketsTransmitted"), "88");
  EXPECT_EQ(text_of(statistics, "PacketsReceived"), "104");
  EXPECT_TRUE(qualified(statistics, "CRCErrors", "Counter"));
  const CIMInstance data = ProviderUtil::port_stat_build_instance(kData, kNamespace, &port_);
  EXPECT_EQ(data.getPropertyCount(), 2u);
  EXPECT_TRUE(qualified(data, "Stats", "Key"));
  EXPECT_FALSE(said("NO SUCH property"));
  EXPECT_FALSE(said("exception"));
}

}  // namespace
