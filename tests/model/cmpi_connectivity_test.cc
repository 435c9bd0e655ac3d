// The CMPI face of connections, devices of systems and ports of nodes, made from records, and of
// access points of other systems.
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/model/computer_system_records.h"
#include "tests/model/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kConnection = "VEXOR_ActiveConnection";
constexpr const char* kDevice = "VEXOR_SystemDevice";
constexpr const char* kNodeMember = "VEXOR_FCNodeMemberOfCollection";

std::string endpoint(const char* path, const char* name, const char* system) {
  const std::string key = std::string("addKey(") + path + ", ";
  return std::string("newObjectPath(root/cimv2, VEXOR_ProtocolEndPoint) -> ") + path +
         "\nsetHostname(" + path + ", switch-1)\n" + key + "Name, chars \"" + name + "\")\n" + key +
         "SystemName, chars \"" + system + "\")\n" + key +
         "SystemCreationClassName, chars \"VEXOR_LogicalComputerSystem\")\n" + key +
         "CreationClassName, chars \"VEXOR_ProtocolEndPoint\")\n";
}

std::string port(const char* path, const char* device_id, const char* system,
                 const char* system_class) {
  const std::string key = std::string("addKey(") + path + ", ";
  return std::string("newObjectPath(root/cimv2, VEXOR_FCPort) -> ") + path + "\nsetHostname(" +
         path + ", switch-1)\n" + key + "DeviceID, chars \"" + device_id + "\")\n" + key +
         "SystemName, chars \"" + system + "\")\n" + key + "SystemCreationClassName, chars \"" +
         system_class + "\")\n" + key + "CreationClassName, chars \"VEXOR_FCPort\")\n";
}

std::string system_path(const char* name, const char* cls) {
  return std::string("newObjectPath(root/cimv2, ") + cls +
         ") -> path1\nsetHostname(path1, switch-1)\naddKey(path1, Name, chars \"" + name +
         "\")\naddKey(path1, CreationClassName, chars \"" + cls + "\")\n";
}

std::string as_path(const char* cls, const char* first_role, const char* first,
                    const char* second_role, const char* second) {
  return std::string("newObjectPath(root/cimv2, ") + cls +
         ") -> path3\nsetHostname(path3, switch-1)\naddKey(path3, " + first_role + ", ref " +
         first + ")\naddKey(path3, " + second_role + ", ref " + second + ")\n";
}

std::string as_instance(const char* cls, const char* first_role, const char* first,
                        const char* second_role, const char* second) {
  return std::string("newObjectPath(root/cimv2, ") + cls +
         ") -> path3\nsetHostname(path3, switch-1)\nnewInstance(path3) -> instance1\n" +
         "setProperty(instance1, " + first_role + ", ref " + first + ")\nsetProperty(instance1, " +
         second_role + ", ref " + second + ")\n";
}

class CmpiConnectivity : public testing::Test {
 protected:
  CmpiConnectivity() {
    mts_q = kQueue;
    system_.host_name("switch-1");
  }
  ~CmpiConnectivity() override { mts_q = -1; }

  // The far end's switch first, then the near one's.
  static void expect_both_switches(Script& script) {
    script.expect(records::switch_of(10, 239)).replies(records::switch_239());
    script.expect(records::switch_of(10, 97)).replies(records::switch_97());
  }
  CMPIObjectPath* connection_path() {
    return active_connection_fill_reference_fspf(kConnection, kNamespace, &link_, kQueue, broker_);
  }
  CMPIInstance* connection() {
    return active_connection_build_instance_fspf(kConnection, kNamespace, &link_, kQueue, broker_);
  }
  CMPIObjectPath* device_path() {
    return system_device_fill_reference_fspf(9, kDevice, kNamespace, &domain_, &link_, broker_);
  }
  CMPIInstance* device() {
    return system_device_build_instance_fspf(9, kDevice, kNamespace, &domain_, &link_, broker_);
  }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  fspfLinkEntry link_ = records::link(records::link_bytes());
  ns_api_register_req_ disk_ = records::entry(records::disk_bytes());
  mts_dm_sw_dom_list_info_ domain_ = records::other_domain();
};

// ---- connections

const std::string& link_ends() {
  static const std::string ends = endpoint("path1", "1_10_239_2_3_16908291", "200A000DEC0A1B4D") +
                                  endpoint("path2", "1_10_97_2_3_16842754", "200A000DEC0A1B3D");
  return ends;
}
const std::string& attachment_ends() {
  static const std::string ends = endpoint("path1", "2_10_10000000C9123456", "") +
                                  endpoint("path2", "3_10_10000000C9123456", "");
  return ends;
}

// A link begins with its far end, an attachment with the switch's side: not alike, deliberately.
TEST_F(CmpiConnectivity, AConnectionOfALinkLeadsFromTheFarEndToTheNear) {
  Script script;
  expect_both_switches(script);
  ASSERT_NE(connection_path(), nullptr);
  EXPECT_EQ(out_.out(),
            link_ends() + as_path(kConnection, "Antecedent", "path1", "Dependent", "path2"));
}

TEST_F(CmpiConnectivity, AConnectionOfALinkHasBothEndsAsProperties) {
  Script script;
  expect_both_switches(script);
  ASSERT_NE(connection(), nullptr);
  EXPECT_EQ(out_.out(),
            link_ends() + as_instance(kConnection, "Antecedent", "path1", "Dependent", "path2"));
}

TEST_F(CmpiConnectivity, AConnectionOfADeviceLeadsFromTheSwitchsSideToTheDevices) {
  const Script script;
  ASSERT_NE(active_connection_fill_reference_ns(kConnection, kNamespace, &disk_, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            attachment_ends() + as_path(kConnection, "Antecedent", "path1", "Dependent", "path2"));
}

TEST_F(CmpiConnectivity, AConnectionOfADeviceHasBothEndsAsProperties) {
  const Script script;
  ASSERT_NE(active_connection_build_instance_ns(kConnection, kNamespace, &disk_, broker_), nullptr);
  EXPECT_EQ(out_.out(), attachment_ends() +
                            as_instance(kConnection, "Antecedent", "path1", "Dependent", "path2"));
}

TEST_F(CmpiConnectivity, TheSwitchesOfALinkAreAskedForOnTheQueueGiven) {
  Script script;
  script.expect(records::switch_of(10, 239)).q(77).replies(records::switch_239());
  script.expect(records::switch_of(10, 97)).q(77).replies(records::switch_97());
  EXPECT_NE(active_connection_fill_reference_fspf(kConnection, kNamespace, &link_, 77, broker_),
            nullptr);
}

TEST_F(CmpiConnectivity, WithoutTheDomainManagerTheEndsOfAConnectionHaveNoSystem) {
  for (int i = 0; i < 2; ++i) {
    Script script;
    script.expect(records::switch_of(10, 239)).status(17);
    script.expect(records::switch_of(10, 97)).times_out();
    const CMPIObjectPath* ends[2];
    if (i == 0) {
      CMPIObjectPath* path = connection_path();
      ends[0] = broker_.key_reference(path, "Antecedent");
      ends[1] = broker_.key_reference(path, "Dependent");
    } else {
      CMPIInstance* instance = connection();
      ends[0] = broker_.property_reference(instance, "Antecedent");
      ends[1] = broker_.property_reference(instance, "Dependent");
    }
    EXPECT_EQ(broker_.key_text(ends[0], "Name"), "1_10_239_2_3_16908291");
    EXPECT_EQ(broker_.key_text(ends[1], "Name"), "1_10_97_2_3_16842754");
    EXPECT_EQ(broker_.key_text(ends[0], "SystemName"), "");
    EXPECT_EQ(broker_.key_text(ends[1], "SystemName"), "");
  }
}

// ---- devices of systems

TEST_F(CmpiConnectivity, AMakersSwitchIsSeenAsItsPartInTheVsan) {
  const Script script;
  ASSERT_NE(device_path(), nullptr);
  EXPECT_EQ(out_.out(), system_path("200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem") +
                            port("path2", "1_10_97_2_3_16842754", "200A000DEC0A1B4D",
                                 "VEXOR_LogicalComputerSystem") +
                            as_path(kDevice, "GroupComponent", "path1", "PartComponent", "path2"));
}

TEST_F(CmpiConnectivity, AnotherMakersSwitchIsSeenAsADevice) {
  const Script script;
  domain_.switch_wwn = {{0x10, 0x00, 0x00, 0x60, 0x69, 0x12, 0x34, 0x56}};
  ASSERT_NE(device(), nullptr);
  EXPECT_EQ(out_.out(),
            system_path("1000006069123456", "VEXOR_PhysicalComputerSystem") +
                port("path2", "1000006069123456_16842754_1", "1000006069123456",
                     "VEXOR_PhysicalComputerSystem") +
                as_instance(kDevice, "GroupComponent", "path1", "PartComponent", "path2"));
}

TEST_F(CmpiConnectivity, TheMakerAloneDecidesNotTheVsanInTheWwn) {
  const Script script;
  domain_.switch_wwn = records::kOtherWwn;
  const CMPIObjectPath* path = device_path();
  EXPECT_EQ(broker_.class_name(broker_.key_reference(path, "GroupComponent")),
            "VEXOR_LogicalComputerSystem");
  EXPECT_EQ(
      broker_.key_text(broker_.key_reference(path, "PartComponent"), "SystemCreationClassName"),
      "VEXOR_LogicalComputerSystem");
}

TEST_F(CmpiConnectivity, ADevicesReferenceAndInstanceHaveTheSameEnds) {
  const Script script;
  domain_.switch_wwn = {{0x10, 0x00, 0x00, 0x60, 0x69, 0x12, 0x34, 0x56}};
  CMPIObjectPath* path = device_path();
  CMPIInstance* instance = device();
  for (const char* role : {"GroupComponent", "PartComponent"}) {
    const CMPIObjectPath* of_path = broker_.key_reference(path, role);
    const CMPIObjectPath* of_instance = broker_.property_reference(instance, role);
    EXPECT_EQ(broker_.class_name(of_path), broker_.class_name(of_instance));
    for (const std::string& key : broker_.key_names(of_path))
      EXPECT_EQ(broker_.key(of_path, key.c_str()), broker_.key(of_instance, key.c_str())) << key;
  }
}

// ---- ports of nodes

const std::string& node_ends() {
  static const std::string ends =
      port("path1", "3_10000000C9123456", "unknown system", "VEXOR_PhysicalComputerSystem") +
      "newObjectPath(root/cimv2, VEXOR_LogicalPortGroup) -> path2\n"
      "setHostname(path2, switch-1)\n"
      "addKey(path2, InstanceID, chars \"20000000C9123456\")\n";
  return ends;
}

TEST_F(CmpiConnectivity, ANodeCollectsItsPort) {
  const Script script;
  ASSERT_NE(fcnode_member_collection_fill_reference_ns(kNodeMember, kNamespace, &disk_, broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            node_ends() + as_path(kNodeMember, "Collection", "path2", "Member", "path1"));
}

TEST_F(CmpiConnectivity, ANodesMemberHasBothEndsAsProperties) {
  const Script script;
  ASSERT_NE(fcnode_member_collection_build_instance_ns(kNodeMember, kNamespace, &disk_, broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            node_ends() + as_instance(kNodeMember, "Collection", "path2", "Member", "path1"));
}

// ---- access points of other systems

TEST_F(CmpiConnectivity, ARemoteAccessPointIsItsKeys) {
  const Script script;
  ASSERT_NE(rsap_fill_reference("VEXOR_Rsap", kNamespace, "10.0.0.7", "200A000DEC0A1B4D", broker_),
            nullptr);
  ASSERT_NE(rsap_build_instance("VEXOR_Rsap", kNamespace, "10.0.0.7", "200A000DEC0A1B4D", broker_),
            nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Rsap) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, SystemCreationClassName, chars \"VEXOR_PhysicalComputerSystem\")\n"
            "addKey(path1, CreationClassName, chars \"VEXOR_Rsap\")\n"
            "addKey(path1, SystemName, chars \"200A000DEC0A1B4D\")\n"
            "addKey(path1, Name, chars \"10.0.0.7\")\n"
            "newObjectPath(root/cimv2, VEXOR_Rsap) -> path2\n"
            "setHostname(path2, switch-1)\n"
            "newInstance(path2) -> instance1\n"
            "setProperty(instance1, SystemCreationClassName, chars "
            "\"VEXOR_PhysicalComputerSystem\")\n"
            "setProperty(instance1, CreationClassName, chars \"VEXOR_Rsap\")\n"
            "setProperty(instance1, SystemName, chars \"200A000DEC0A1B4D\")\n"
            "setProperty(instance1, Name, chars \"10.0.0.7\")\n");
}

TEST_F(CmpiConnectivity, ARemoteAccessPointWithoutItsTextsIsNone) {
  EXPECT_EQ(rsap_fill_reference("C", kNamespace, nullptr, "s", broker_), nullptr);
  EXPECT_EQ(rsap_fill_reference("C", kNamespace, "n", nullptr, broker_), nullptr);
  EXPECT_EQ(rsap_build_instance("C", kNamespace, nullptr, "s", broker_), nullptr);
  EXPECT_EQ(rsap_build_instance("C", kNamespace, "n", nullptr, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
}

TEST_F(CmpiConnectivity, ARemoteAccessPointOfABadPathOrInstanceIsNone) {
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(rsap_fill_reference("C", kNamespace, "n", "s", broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(rsap_build_instance("C", kNamespace, "n", "s", broker_), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(rsap_build_instance("C", kNamespace, "n", "s", broker_), nullptr);
  }
}

TEST_F(CmpiConnectivity, EveryFailingAllocationMakesNoRemoteAccessPoint) {
  const size_t rounds = for_every_failing_allocation([](FailingAllocation& round) {
    RecordingBroker broker;
    broker.write_down(false);
    CMPIInstance* instance =
        round.attempt([&] { return rsap_build_instance("C", kNamespace, "n", "s", broker); });
    EXPECT_EQ(instance == nullptr, round.was_hit());
  });
  EXPECT_EQ(rounds, 6u);
}

// ---- what fails, for all that are made from records

struct Association {
  const char* name;
  std::function<CMPIObjectPath*(const CMPIBroker*)> fill;
  std::function<CMPIInstance*(const CMPIBroker*)> build;
  const char* made_first;
  const char* made_second;
};

std::vector<Association> associations(const fspfLinkEntry* link, const ns_api_register_req_* entry,
                                      const mts_dm_sw_dom_list_info_* domain) {
  const char* ns = kNamespace;
  return {
      {"link",
       [=](auto* b) { return active_connection_fill_reference_fspf("C", ns, link, kQueue, b); },
       [=](auto* b) { return active_connection_build_instance_fspf("C", ns, link, kQueue, b); },
       "Antecedent", "Dependent"},
      {"attachment",
       [=](auto* b) { return active_connection_fill_reference_ns("C", ns, entry, b); },
       [=](auto* b) { return active_connection_build_instance_ns("C", ns, entry, b); },
       "Antecedent", "Dependent"},
      {"device",
       [=](auto* b) { return system_device_fill_reference_fspf(0, "C", ns, domain, link, b); },
       [=](auto* b) { return system_device_build_instance_fspf(0, "C", ns, domain, link, b); },
       "GroupComponent", "PartComponent"},
      {"node",
       [=](auto* b) { return fcnode_member_collection_fill_reference_ns("C", ns, entry, b); },
       [=](auto* b) { return fcnode_member_collection_build_instance_ns("C", ns, entry, b); },
       "Member", "Collection"},
  };
}

TEST_F(CmpiConnectivity, AnEndThatTheBrokerDidNotGiveIsLeftOut) {
  Responder services([](const Request&) { return Response::failed(17); });
  for (const Association& a : associations(&link_, &disk_, &domain_)) {
    RecordingBroker broker;
    broker.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(broker.key_names(a.fill(broker)), Names{a.made_second}) << a.name;
    broker.fail_nth_path(2, Failure::null_handle);
    EXPECT_EQ(broker.key_names(a.fill(broker)), Names{a.made_first}) << a.name;
    broker.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(broker.property_names(a.build(broker)), Names{a.made_second}) << a.name;
    broker.fail_nth_path(2, Failure::null_handle);
    EXPECT_EQ(broker.property_names(a.build(broker)), Names{a.made_first}) << a.name;
  }
}

TEST_F(CmpiConnectivity, TheEndsAreMadeBeforeAPathThatTheBrokerDoesNotGive) {
  Responder services([](const Request&) { return Response::failed(17); });
  for (const Association& a : associations(&link_, &disk_, &domain_)) {
    RecordingBroker broker;
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      broker.fail_nth_path(3, how);
      EXPECT_EQ(a.fill(broker), nullptr) << a.name;
      broker.fail_nth_path(3, how);
      EXPECT_EQ(a.build(broker), nullptr) << a.name;
      broker.fail_nth_instance(1, how);
      EXPECT_EQ(a.build(broker), nullptr) << a.name;
    }
  }
}

TEST_F(CmpiConnectivity, WithoutItsRecordsAnAssociationHasNoEndsAndAsksNothing) {
  const Script script;
  for (const Association& a : associations(nullptr, nullptr, nullptr)) {
    EXPECT_EQ(broker_.key_names(a.fill(broker_)), Names{}) << a.name;
    EXPECT_EQ(broker_.property_names(a.build(broker_)), Names{}) << a.name;
  }
}

TEST_F(CmpiConnectivity, ADeviceWithoutItsLinkHasItsSystemAlone) {
  EXPECT_EQ(broker_.key_names(
                system_device_fill_reference_fspf(0, "C", kNamespace, &domain_, nullptr, broker_)),
            Names{"GroupComponent"});
  EXPECT_EQ(broker_.property_names(
                system_device_build_instance_fspf(0, "C", kNamespace, &domain_, nullptr, broker_)),
            Names{"GroupComponent"});
}

TEST_F(CmpiConnectivity, EveryFailingExchangeLeavesAConnectionStanding) {
  const size_t rounds = for_every_failing_exchange([this](FailingExchange&) {
    RecordingBroker broker;
    broker.write_down(false);
    Script script;
    expect_both_switches(script);
    CMPIInstance* made =
        active_connection_build_instance_fspf(kConnection, kNamespace, &link_, kQueue, broker);
    EXPECT_EQ(broker.property_names(made), (Names{"Antecedent", "Dependent"}));
  });
  EXPECT_EQ(rounds, 3u);
}

TEST_F(CmpiConnectivity, EveryFailingAllocationMakesAWholeAssociation) {
  Responder services([](const Request&) { return Response::failed(17); });
  for (const Association& a : associations(&link_, &disk_, &domain_)) {
    for_every_failing_allocation([&](FailingAllocation& round) {
      RecordingBroker broker;
      broker.write_down(false);
      CMPIInstance* instance = round.attempt([&] { return a.build(broker); });
      EXPECT_EQ(broker.property_names(instance).size(), 2u) << a.name;
    });
  }
}

}  // namespace
