// The Pegasus face of what ties switches, ports and endpoints together: the same content as the
// CMPI face.
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include "tests/model/class_source_double.h"
#include "tests/model/computer_system_records.h"
#include "tests/model/pegasus_text.h"
#include "tests/model/port_records.h"
#include "tests/support/capture.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");
constexpr const char* kTie = "VEXOR_Tie";

std::string endpoint(const char* name, const char* system) {
  return std::string(
             "//HOST/root/cimv2:VEXOR_ProtocolEndPoint.CreationClassName=\"VEXOR_ProtocolEndPoint"
             "\",Name=\"") +
         name + "\",SystemCreationClassName=\"VEXOR_LogicalComputerSystem\",SystemName=\"" +
         system + "\"";
}
std::string port(const char* device_id, const char* system, const char* system_class) {
  return std::string(
             "//HOST/root/cimv2:VEXOR_FCPort.CreationClassName=\"VEXOR_FCPort\",DeviceID=\"") +
         device_id + "\",SystemCreationClassName=\"" + system_class + "\",SystemName=\"" + system +
         "\"";
}
std::string system_path(const char* name, const char* cls) {
  return std::string("//HOST/root/cimv2:") + cls + ".CreationClassName=\"" + cls + "\",Name=\"" +
         name + "\"";
}

// A path of two references, the instance with them, and the object, which is the instance.
struct Made {
  CIMObjectPath path;
  CIMInstance instance;
  CIMObject object;
};

class PegasusConnectivity : public testing::Test {
 protected:
  PegasusConnectivity() {
    // The queue of the CMPI face stays unbound: nothing here asks on it.
    ProviderUtil::mts_q = kQueue;
    const std::vector<const char*> keys = {"Antecedent",    "Dependent",      "Collection",
                                           "Member",        "GroupComponent", "PartComponent",
                                           "SystemElement", "SameElement"};
    classes_.define(kTie, keys, {});
    classes_.define("VEXOR_LogicalIdentity", {"SystemElement", "SameElement"}, {});
  }
  ~PegasusConnectivity() override { ProviderUtil::mts_q = -1; }

  static std::string as_path(const char* first_role, const std::string& first,
                             const char* second_role, const std::string& second) {
    return std::string("path HOST root/cimv2 VEXOR_Tie\nkey ") + first_role + " = " + first +
           "\nkey " + second_role + " = " + second + "\n";
  }
  static std::string as_instance(const char* cls, const char* first_role, const std::string& first,
                                 const char* second_role, const std::string& second) {
    return std::string("instance ") + cls + "\n  [Version]\nproperty " + first_role +
           " reference " + first + "\n  [Key]\nproperty " + second_role + " reference " + second +
           "\n  [Key]\n";
  }
  // Keys of paths stand in the order of their names.
  static void expect(const Made& made, const char* first_role, const std::string& first,
                     const char* second_role, const std::string& second) {
    const bool in_order = std::string(first_role) < second_role;
    const std::string path = in_order ? as_path(first_role, first, second_role, second)
                                      : as_path(second_role, second, first_role, first);
    EXPECT_EQ(pegasus_text::of(made.path), path);
    const std::string instance = as_instance(kTie, first_role, first, second_role, second) + path;
    EXPECT_EQ(pegasus_text::of(made.instance), instance);
    EXPECT_EQ(pegasus_text::of(CIMInstance(made.object)), instance);
  }

  Made link() {
    return {ProviderUtil::active_connection_fill_reference(kTie, kNamespace, &link_, kQueue),
            ProviderUtil::active_connection_build_instance(kTie, kNamespace, &link_, kQueue),
            ProviderUtil::active_connection_build_object(kTie, kNamespace, &link_, kQueue)};
  }
  Made attachment() {
    return {ProviderUtil::active_connection_fill_reference(kTie, kNamespace, &disk_),
            ProviderUtil::active_connection_build_instance(kTie, kNamespace, &disk_),
            ProviderUtil::active_connection_build_object(kTie, kNamespace, &disk_)};
  }
  Made device() {
    return {ProviderUtil::system_device_fill_reference(9, kTie, kNamespace, &domain_, &link_),
            ProviderUtil::system_device_build_instance(9, kTie, kNamespace, &domain_, &link_),
            ProviderUtil::system_device_build_object(9, kTie, kNamespace, &domain_, &link_)};
  }
  Made attached_device() {
    return {ProviderUtil::system_device_fill_reference(kTie, kNamespace, &disk_, &tape_),
            ProviderUtil::system_device_build_instance(kTie, kNamespace, &disk_, &tape_),
            ProviderUtil::system_device_build_object(kTie, kNamespace, &disk_, &tape_)};
  }
  Made node() {
    return {ProviderUtil::fcnode_member_collection_fill_reference(kTie, kNamespace, &disk_),
            ProviderUtil::fcnode_member_collection_build_instance(kTie, kNamespace, &disk_),
            ProviderUtil::fcnode_member_collection_build_object(kTie, kNamespace, &disk_)};
  }

  ClassSourceDouble classes_;
  StdioCapture out_;
  fspfLinkEntry link_ = records::link(records::link_bytes());
  ns_api_register_req_ disk_ = records::entry(records::disk_bytes());
  // Another device, on a port of a switch that is not known.
  ns_api_register_req_ tape_ = records::entry(records::disk_bytes()
                                                  .put(12, hex("10 00 00 00 c9 77 77 77"))
                                                  .put(236, hex("00 00 00 00 00 00 00 00")));
  mts_dm_sw_dom_list_info_ domain_ = records::other_domain();
  const CIMObjectPath one_ =
      ProviderUtil::switch_fill_reference("VEXOR_PhysicalComputerSystem", kNamespace, "ONE");
  const CIMObjectPath two_ =
      ProviderUtil::switch_fill_reference("VEXOR_LogicalComputerSystem", kNamespace, "TWO");
  const std::string first_ = system_path("ONE", "VEXOR_PhysicalComputerSystem");
  const std::string second_ = system_path("TWO", "VEXOR_LogicalComputerSystem");
};

// ---- two given references

TEST_F(PegasusConnectivity, DependenciesOfGivenReferences) {
  using P = ProviderUtil;
  const Script script;
  expect({P::hosted_dependency_fill_reference(kTie, kNamespace, one_, two_),
          P::hosted_dependency_build_instance(kTie, kNamespace, one_, two_),
          P::hosted_dependency_build_object(kTie, kNamespace, one_, two_)},
         "Antecedent", first_, "Dependent", second_);
  expect({P::hosted_access_point_fill_reference(kTie, kNamespace, one_, two_),
          P::hosted_access_point_build_instance(kTie, kNamespace, one_, two_),
          P::hosted_access_point_build_object(kTie, kNamespace, one_, two_)},
         "Antecedent", first_, "Dependent", second_);
  expect({P::device_sap_implementation_fill_reference(kTie, kNamespace, one_, two_),
          P::device_sap_implementation_build_instance(kTie, kNamespace, one_, two_),
          P::device_sap_implementation_build_object(kTie, kNamespace, one_, two_)},
         "Antecedent", first_, "Dependent", second_);
  expect({P::active_connection_fill_reference(kTie, kNamespace, one_, two_),
          P::active_connection_build_instance(kTie, kNamespace, one_, two_),
          P::active_connection_build_object(kTie, kNamespace, one_, two_)},
         "Antecedent", first_, "Dependent", second_);
  expect({P::realize_fill_reference(kTie, kNamespace, one_, two_),
          P::realize_build_instance(kTie, kNamespace, one_, two_),
          P::realize_build_object(kTie, kNamespace, one_, two_)},
         "Antecedent", first_, "Dependent", second_);
}

TEST_F(PegasusConnectivity, CollectionsAndDevicesOfGivenReferences) {
  using P = ProviderUtil;
  const Script script;
  expect({P::fcnode_member_collection_fill_reference(kTie, kNamespace, one_, two_),
          P::fcnode_member_collection_build_instance(kTie, kNamespace, one_, two_),
          P::fcnode_member_collection_build_object(kTie, kNamespace, one_, two_)},
         "Collection", first_, "Member", second_);
  expect({P::connectivity_member_collection_fill_reference(kTie, kNamespace, one_, two_),
          P::connectivity_member_collection_build_instance(kTie, kNamespace, one_, two_),
          P::connectivity_member_collection_build_object(kTie, kNamespace, one_, two_)},
         "Collection", first_, "Member", second_);
  expect({P::system_device_fill_reference(kTie, kNamespace, one_, two_),
          P::system_device_build_instance(kTie, kNamespace, one_, two_),
          P::system_device_build_object(kTie, kNamespace, one_, two_)},
         "GroupComponent", first_, "PartComponent", second_);
}

// Deliberate: the instance's class is fixed, the reference's is the caller's.
TEST_F(PegasusConnectivity, AnIdentityIsOfItsOwnClassAndItsPathOfTheOneGiven) {
  const std::string path = as_path("SameElement", second_, "SystemElement", first_);
  EXPECT_EQ(
      pegasus_text::of(ProviderUtil::logical_identity_fill_reference(kTie, kNamespace, one_, two_)),
      path);
  const std::string instance =
      as_instance("VEXOR_LogicalIdentity", "SystemElement", first_, "SameElement", second_) + path;
  EXPECT_EQ(
      pegasus_text::of(ProviderUtil::logical_identity_build_instance(kTie, kNamespace, one_, two_)),
      instance);
  EXPECT_EQ(pegasus_text::of(CIMInstance(
                ProviderUtil::logical_identity_build_object(kTie, kNamespace, one_, two_))),
            instance);
}

TEST_F(PegasusConnectivity, AnEndThatIsNoReferenceIsLeftOut) {
  using P = ProviderUtil;
  const CIMObjectPath none;
  const struct {
    CIMInstance instance;
    const char* second_role;
  } cases[] = {
      {P::logical_identity_build_instance(kTie, kNamespace, none, two_), "SameElement"},
      {P::hosted_dependency_build_instance(kTie, kNamespace, none, two_), "Dependent"},
      {P::hosted_access_point_build_instance(kTie, kNamespace, none, two_), "Dependent"},
      {P::device_sap_implementation_build_instance(kTie, kNamespace, none, two_), "Dependent"},
      {P::active_connection_build_instance(kTie, kNamespace, none, two_), "Dependent"},
      {P::realize_build_instance(kTie, kNamespace, none, two_), "Dependent"},
      {P::fcnode_member_collection_build_instance(kTie, kNamespace, none, two_), "Member"},
      {P::connectivity_member_collection_build_instance(kTie, kNamespace, none, two_), "Member"},
      {P::system_device_build_instance(kTie, kNamespace, none, two_), "PartComponent"}};
  for (const auto& c : cases) {
    EXPECT_EQ(c.instance.getPropertyCount(), 1u) << c.second_role;
    EXPECT_EQ(pegasus_text::of(c.instance.getPath()),
              std::string("path HOST root/cimv2 VEXOR_Tie\nkey ") + c.second_role + " = " +
                  second_ + "\n");
  }
  EXPECT_EQ(pegasus_text::of(P::realize_fill_reference(kTie, kNamespace, none, none)),
            "path HOST root/cimv2 VEXOR_Tie\n");
}

// ---- connections

// A link begins with its far end, an attachment with the switch's side: not alike, deliberately.
TEST_F(PegasusConnectivity, AConnectionOfALinkLeadsFromTheFarEndToTheNear) {
  Script script;
  for (int i = 0; i < 3; ++i) {
    script.expect(records::switch_of(10, 239)).replies(records::switch_239());
    script.expect(records::switch_of(10, 97)).replies(records::switch_97());
  }
  expect(link(), "Antecedent", endpoint("1_10_239_2_3_16908291", "200A000DEC0A1B4D"), "Dependent",
         endpoint("1_10_97_2_3_16842754", "200A000DEC0A1B3D"));
}

TEST_F(PegasusConnectivity, AConnectionOfADeviceLeadsFromTheSwitchsSideToTheDevices) {
  const Script script;
  expect(attachment(), "Antecedent", endpoint("2_10_10000000C9123456", ""), "Dependent",
         endpoint("3_10_10000000C9123456", ""));
}

TEST_F(PegasusConnectivity, TheSwitchesOfALinkAreAskedForOnTheQueueGiven) {
  Script script;
  script.expect(records::switch_of(10, 239)).q(77).replies(records::switch_239());
  script.expect(records::switch_of(10, 97)).q(77).replies(records::switch_97());
  ProviderUtil::active_connection_fill_reference(kTie, kNamespace, &link_, 77);
}

TEST_F(PegasusConnectivity, WithoutTheDomainManagerTheEndsOfAConnectionHaveNoSystem) {
  Responder services([](const Request&) { return Response::failed(17); });
  expect(link(), "Antecedent", endpoint("1_10_239_2_3_16908291", ""), "Dependent",
         endpoint("1_10_97_2_3_16842754", ""));
}

// ---- devices of systems

TEST_F(PegasusConnectivity, AMakersSwitchIsSeenAsItsPartInTheVsan) {
  const Script script;
  expect(device(), "GroupComponent", system_path("200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem"),
         "PartComponent",
         port("1_10_97_2_3_16842754", "200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem"));
}

TEST_F(PegasusConnectivity, AnotherMakersSwitchIsSeenAsADevice) {
  const Script script;
  domain_.switch_wwn = {{0x10, 0x00, 0x00, 0x60, 0x69, 0x12, 0x34, 0x56}};
  expect(device(), "GroupComponent",
         system_path("1000006069123456", "VEXOR_PhysicalComputerSystem"), "PartComponent",
         port("1000006069123456_16842754_1", "1000006069123456", "VEXOR_PhysicalComputerSystem"));
}

TEST_F(PegasusConnectivity, ADeviceIsOneOfTheSwitchThatAnotherIsAttachedTo) {
  const Script script;
  expect(attached_device(), "GroupComponent",
         system_path("2000000DEC0A1B3C", "VEXOR_PhysicalComputerSystem"), "PartComponent",
         port("3_10000000C9777777", "unknown system", "VEXOR_PhysicalComputerSystem"));
}

TEST_F(PegasusConnectivity, TheSwitchOfAnUnknownPortIsAnUnknownSystem) {
  const Script script;
  disk_.fabric_port_wwn = {};
  expect(attached_device(), "GroupComponent",
         system_path("unknown system", "VEXOR_PhysicalComputerSystem"), "PartComponent",
         port("3_10000000C9777777", "unknown system", "VEXOR_PhysicalComputerSystem"));
}

// ---- ports of nodes

TEST_F(PegasusConnectivity, ANodeCollectsItsPort) {
  const Script script;
  expect(node(), "Collection",
         "//HOST/root/cimv2:VEXOR_LogicalPortGroup.InstanceID=\"20000000C9123456\"", "Member",
         port("3_10000000C9123456", "unknown system", "VEXOR_PhysicalComputerSystem"));
}

// ---- what fails

TEST_F(PegasusConnectivity, WithoutItsRecordsAnAssociationHasNoEndsAndAsksNothing) {
  using P = ProviderUtil;
  const Script script;
  fspfLinkEntry* no_link = nullptr;
  ns_api_register_req_* no_entry = nullptr;
  const std::string bare = "path HOST root/cimv2 VEXOR_Tie\n";
  const CIMInstance made[] = {
      P::active_connection_build_instance(kTie, kNamespace, no_link, kQueue),
      P::active_connection_build_instance(kTie, kNamespace, no_entry),
      P::system_device_build_instance(0, kTie, kNamespace, nullptr, &link_),
      P::system_device_build_instance(kTie, kNamespace, no_entry, no_entry),
      P::fcnode_member_collection_build_instance(kTie, kNamespace, no_entry)};
  for (const CIMInstance& instance : made) {
    EXPECT_EQ(instance.getPropertyCount(), 0u);
    EXPECT_EQ(pegasus_text::of(instance.getPath()), bare);
  }
}

TEST_F(PegasusConnectivity, ADeviceWithOneOfItsRecordsHasOneEnd) {
  using P = ProviderUtil;
  const std::string device = system_path("200A000DEC0A1B4D", "VEXOR_LogicalComputerSystem");
  EXPECT_EQ(
      pegasus_text::of(P::system_device_fill_reference(0, kTie, kNamespace, &domain_, nullptr)),
      "path HOST root/cimv2 VEXOR_Tie\nkey GroupComponent = " + device + "\n");
  EXPECT_EQ(pegasus_text::of(P::system_device_fill_reference(kTie, kNamespace, nullptr, &tape_)),
            "path HOST root/cimv2 VEXOR_Tie\nkey PartComponent = " +
                port("3_10000000C9777777", "unknown system", "VEXOR_PhysicalComputerSystem") +
                "\n");
}

TEST_F(PegasusConnectivity, EveryExceptionIsTheCallers) {
  using P = ProviderUtil;
  using Pegasus::Exception;
  const String bad("root/c i m");
  EXPECT_THROW(P::realize_fill_reference(kTie, bad, one_, two_), Exception);
  EXPECT_THROW(P::hosted_dependency_build_instance("no class", kNamespace, one_, two_), Exception);
  EXPECT_THROW(P::logical_identity_build_instance(kTie, bad, one_, two_), Exception);
  EXPECT_THROW(P::active_connection_fill_reference(kTie, bad, &disk_), Exception);
  EXPECT_THROW(P::system_device_fill_reference(0, kTie, bad, &domain_, &link_), Exception);
  EXPECT_THROW(P::system_device_build_object("no class", kNamespace, one_, two_), Exception);
}

}  // namespace
