// The CMPI face's associations of two given references.
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/cmpi_zoning.h>
#include <gtest/gtest.h>

#include <set>

#include "schema/repository.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;
using Fill = CMPIObjectPath* (*)(const char*, const char*, const CMPIObjectPath*,
                                 const CMPIObjectPath*, const CMPIBroker*);
using Build = CMPIInstance* (*)(const char*, const char*, const CMPIObjectPath*,
                                const CMPIObjectPath*, const CMPIBroker*);

constexpr const char* kNamespace = "root/cimv2";

struct Association {
  const char* stem;
  const char* cls;
  Fill fill;
  Build build;
  const char* first;
  const char* second;
  // Whether the reference is null where the broker gives a path that cannot be used; else that path
  // is handed on.
  bool tests_its_path;
};

constexpr Association kAssociations[] = {
    {"hosted_dependency", "VEXOR_HostedDependency", hosted_dependency_fill_reference,
     hosted_dependency_build_instance, "Antecedent", "Dependent", true},
    {"hosted_access_point", "VEXOR_HostedAccessPoint", hosted_access_point_fill_reference,
     hosted_access_point_build_instance, "Antecedent", "Dependent", true},
    {"device_sap_implementation", "VEXOR_DeviceSAPImplementation",
     device_sap_implementation_fill_reference, device_sap_implementation_build_instance,
     "Antecedent", "Dependent", true},
    {"active_connection", "VEXOR_ActiveConnection", active_connection_fill_reference,
     active_connection_build_instance, "Antecedent", "Dependent", true},
    {"fcnode_member_collection", "VEXOR_FCNodeMemberOfCollection",
     fcnode_member_collection_fill_reference, fcnode_member_collection_build_instance, "Collection",
     "Member", true},
    {"connectivity_member_collection", "VEXOR_ConnectivityMemberOfCollection",
     connectivity_member_collection_fill_reference, connectivity_member_collection_build_instance,
     "Collection", "Member", true},
    {"system_device", "VEXOR_SystemDevice", system_device_fill_reference,
     system_device_build_instance, "GroupComponent", "PartComponent", true},
    {"realize", "VEXOR_Realizes", realize_fill_reference, realize_build_instance, "Antecedent",
     "Dependent", false},
    {"switch_package", "VEXOR_ComputerSystemPackage", switch_package_fill_reference_op,
     switch_package_build_instance_op, "Antecedent", "Dependent", false},
    {"product_physical_element", "VEXOR_ProductPhysicalComponent",
     product_physical_element_fill_reference, product_physical_element_build_instance,
     "GroupComponent", "PartComponent", false},
    {"module_port", "VEXOR_ModulePort", module_port_fill_reference, module_port_build_instance,
     "GroupComponent", "PartComponent", false},
    {"zmoc", "VEXOR_ZoneMemberOfCollection", zmoc_fill_reference_MemberCollection,
     zmoc_build_instance_MemberCollection, "Collection", "Member", false},
    {"zhc", "VEXOR_ZoneHostedCollection", zone_hosted_collection_fill_reference, zhc_build_instance,
     "Antecedent", "Dependent", false},
};
constexpr Association kIdentity = {"logical_identity",
                                   "VEXOR_LogicalIdentity",
                                   logical_identity_fill_reference,
                                   logical_identity_build_instance,
                                   "SystemElement",
                                   "SameElement",
                                   true};

std::vector<Association> all() {
  std::vector<Association> result(std::begin(kAssociations), std::end(kAssociations));
  result.push_back(kIdentity);
  return result;
}

class CmpiAssociations : public testing::Test {
 protected:
  CmpiAssociations() { system_.host_name("switch-1"); }
  const CMPIObjectPath* new_path(const char* cls) {
    return broker_.broker()->eft->newObjectPath(broker_, kNamespace, cls, nullptr);
  }

  OsDouble system_;
  StdioCapture out_;
  RecordingBroker broker_;
  const CMPIObjectPath* one_ = new_path("One");  // path1
  const CMPIObjectPath* two_ = new_path("Two");  // path2
};

TEST_F(CmpiAssociations, AReferenceHoldsTwoKeysOfItsRoles) {
  int n = 2;
  for (const Association& a : all()) {
    out_.clear();
    const std::string path = "path" + std::to_string(++n);
    ASSERT_NE(a.fill("VEXOR_Tie", kNamespace, one_, two_, broker_), nullptr) << a.stem;
    EXPECT_EQ(out_.out(), "newObjectPath(root/cimv2, VEXOR_Tie) -> " + path + "\nsetHostname(" +
                              path + ", switch-1)\naddKey(" + path + ", " + a.first +
                              ", ref path1)\naddKey(" + path + ", " + a.second + ", ref path2)\n")
        << a.stem;
  }
}

TEST_F(CmpiAssociations, AnInstanceHoldsTwoPropertiesOfItsRoles) {
  int n = 0;
  for (const Association& a : kAssociations) {
    out_.clear();
    const std::string instance = "instance" + std::to_string(++n);
    const std::string path = "path" + std::to_string(n + 2);
    ASSERT_NE(a.build("VEXOR_Tie", kNamespace, one_, two_, broker_), nullptr) << a.stem;
    EXPECT_EQ(out_.out(), "newObjectPath(root/cimv2, VEXOR_Tie) -> " + path + "\nsetHostname(" +
                              path + ", switch-1)\nnewInstance(" + path + ") -> " + instance +
                              "\nsetProperty(" + instance + ", " + a.first +
                              ", ref path1)\nsetProperty(" + instance + ", " + a.second +
                              ", ref path2)\n")
        << a.stem;
  }
}

// Deliberate: the instance's class is fixed, the reference's is the caller's.
TEST_F(CmpiAssociations, AnIdentityIsOfItsOwnClassWhateverIsAsked) {
  for (const char* cls : {"VEXOR_SomethingElse", "", static_cast<const char*>(nullptr)}) {
    CMPIInstance* instance = logical_identity_build_instance(cls, kNamespace, one_, two_, broker_);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(broker_.class_name(instance), "VEXOR_LogicalIdentity");
    EXPECT_EQ(broker_.property_reference(instance, "SystemElement"), one_);
    EXPECT_EQ(broker_.property_reference(instance, "SameElement"), two_);
  }
  EXPECT_EQ(broker_.class_name(logical_identity_fill_reference("VEXOR_SomethingElse", kNamespace,
                                                               one_, two_, broker_)),
            "VEXOR_SomethingElse");
}

TEST_F(CmpiAssociations, ANullReferenceIsLeftOut) {
  for (const Association& a : all()) {
    CMPIObjectPath* path = a.fill("C", kNamespace, nullptr, two_, broker_);
    EXPECT_EQ(broker_.key_names(path), Names{a.second}) << a.stem;
    EXPECT_EQ(broker_.key_names(a.fill("C", kNamespace, nullptr, nullptr, broker_)), Names{});
    CMPIInstance* instance = a.build("C", kNamespace, one_, nullptr, broker_);
    EXPECT_EQ(broker_.property_names(instance), Names{a.first}) << a.stem;
    EXPECT_EQ(broker_.property_names(a.build("C", kNamespace, nullptr, nullptr, broker_)), Names{});
  }
}

TEST_F(CmpiAssociations, AReferenceOfABadPathIsWhatTheBrokerGave) {
  for (const Association& a : all()) {
    broker_.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(a.fill("C", kNamespace, one_, two_, broker_), nullptr) << a.stem;
    if (a.tests_its_path) continue;
    broker_.fail_nth_path(1, Failure::null_handle);
    CMPIObjectPath* path = a.fill("C", kNamespace, one_, two_, broker_);
    ASSERT_NE(path, nullptr) << a.stem;
    EXPECT_EQ(path->hdl, nullptr) << a.stem;
  }
}

TEST_F(CmpiAssociations, AReferenceThatTestsItsPathIsNoneForABadOne) {
  for (const Association& a : all()) {
    if (!a.tests_its_path) continue;
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(a.fill("C", kNamespace, one_, two_, broker_), nullptr) << a.stem;
    }
  }
}

TEST_F(CmpiAssociations, AnInstanceOfABadPathOrInstanceIsNone) {
  for (const Association& a : all()) {
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(a.build("C", kNamespace, one_, two_, broker_), nullptr) << a.stem;
      broker_.fail_nth_instance(1, how);
      EXPECT_EQ(a.build("C", kNamespace, one_, two_, broker_), nullptr) << a.stem;
    }
  }
}

TEST_F(CmpiAssociations, TheRolesAreTheKeysOfTheirClasses) {
  cim::schema::Repository classes;
  for (const auto& error : classes.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
    ADD_FAILURE() << error.text();
  for (const Association& a : all()) {
    const auto* cls = classes.find(a.cls);
    ASSERT_NE(cls, nullptr) << a.cls;
    std::set<std::string> keys;
    for (const auto* key : classes.keys(*cls)) {
      keys.insert(key->name);
      EXPECT_EQ(cim::schema::type_name(key->type), "reference") << a.cls;
    }
    EXPECT_EQ(keys, (std::set<std::string>{a.first, a.second})) << a.cls;
  }
}

TEST_F(CmpiAssociations, TheLibraryAllocatesNothing) {
  for (const Association& a : all()) {
    const size_t rounds = for_every_failing_allocation(
        [&](FailingAllocation& round) {
          RecordingBroker broker;
          broker.write_down(false);
          CMPIObjectPath* path =
              round.attempt([&] { return a.fill("C", kNamespace, one_, two_, broker); });
          EXPECT_NE(path, nullptr);
        },
        Heap::c);
    EXPECT_EQ(rounds, 1u) << a.stem;
  }
}

}  // namespace
