// What every CMPI-face builder shares.
#include <cim_utils/cmpi_builders.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/capture.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
constexpr const char* kNamespace = "root/cimv2";

class CmpiCore : public testing::Test {
 protected:
  CmpiCore() {
    broker_.write_down(false);
    first_ = makePath(broker_, kNamespace, "VEXOR_First", nullptr);
    second_ = makePath(broker_, kNamespace, "VEXOR_Second", nullptr);
    broker_.write_down(true);
  }
  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  CMPIObjectPath* first_ = nullptr;
  CMPIObjectPath* second_ = nullptr;
};

TEST_F(CmpiCore, APathHasItsHostAndNoKeys) {
  makePath(broker_, kNamespace, "VEXOR_Zone", nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Zone) -> path3\n"
            "setHostname(path3, switch-1)\n");
}

TEST_F(CmpiCore, AnUnusablePathIsPassedOnAsItCame) {
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(makePath(broker_, kNamespace, "VEXOR_Zone", nullptr), nullptr);
  broker_.fail_nth_path(1, Failure::null_handle);
  CMPIObjectPath* path = makePath(broker_, kNamespace, "VEXOR_Zone", nullptr);
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->hdl, nullptr);
}

// Only the caller of makePath asks for a status; whoever else makes paths, instances and arrays of
// the broker asks for none, which the lines of every transcript tell.
TEST_F(CmpiCore, TheStatusOfAPathIsTheBrokers) {
  CMPIStatus status{CMPI_RC_ERR_FAILED, nullptr};
  EXPECT_NE(makePath(broker_, kNamespace, "VEXOR_Zone", &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Zone, status) -> path3\n"
            "setHostname(path3, switch-1)\n");
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(makePath(broker_, kNamespace, "VEXOR_Zone", &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
}

TEST_F(CmpiCore, AnAssociationsPathHoldsTwoReferences) {
  association_class_fill_reference_path("VEXOR_A", kNamespace, first_, second_, "One", "Two",
                                        broker_);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_A) -> path3\n"
            "setHostname(path3, switch-1)\n"
            "addKey(path3, One, ref path1)\n"
            "addKey(path3, Two, ref path2)\n");
}

TEST_F(CmpiCore, AnAssociationsInstanceHoldsTwoReferences) {
  association_class_build_instance_path("VEXOR_A", kNamespace, first_, second_, "One", "Two",
                                        broker_);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_A) -> path3\n"
            "setHostname(path3, switch-1)\n"
            "newInstance(path3) -> instance1\n"
            "setProperty(instance1, One, ref path1)\n"
            "setProperty(instance1, Two, ref path2)\n");
}

TEST_F(CmpiCore, AnAssociationOfABadPathOrInstanceGetsNothing) {
  broker_.fail_nth_path(1, Failure::null_handle);
  CMPIObjectPath* path = association_class_fill_reference_path("VEXOR_A", kNamespace, first_,
                                                               second_, "One", "Two", broker_);
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->hdl, nullptr);
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(association_class_fill_reference_path("VEXOR_A", kNamespace, first_, second_, "One",
                                                  "Two", broker_),
            nullptr);
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(association_class_build_instance_path("VEXOR_A", kNamespace, first_, second_, "One",
                                                    "Two", broker_),
              nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(association_class_build_instance_path("VEXOR_A", kNamespace, first_, second_, "One",
                                                    "Two", broker_),
              nullptr);
  }
  EXPECT_EQ(out_.out().find("addKey"), std::string::npos);
  EXPECT_EQ(out_.out().find("setProperty"), std::string::npos);
}

TEST_F(CmpiCore, ANullReferenceSetsNothing) {
  CMPIObjectPath* path = association_class_fill_reference_path("VEXOR_A", kNamespace, nullptr,
                                                               second_, "One", "Two", broker_);
  EXPECT_EQ(broker_.key_names(path), std::vector<std::string>{"Two"});
  CMPIInstance* instance = association_class_build_instance_path("VEXOR_A", kNamespace, first_,
                                                                 nullptr, "One", "Two", broker_);
  EXPECT_EQ(broker_.property_names(instance), std::vector<std::string>{"One"});
}

TEST_F(CmpiCore, ElementSettingDataIgnoresItsFifthArgument) {
  const char* properties[] = {"SettingData", nullptr};
  CMPIInstance* instance =
      esd_build_instance("VEXOR_ESD", kNamespace, first_, second_, properties, broker_);
  EXPECT_EQ(broker_.property(instance, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.property(instance, "SettingData"), "ref path2");
  EXPECT_EQ(broker_.filter(instance), "none");
  CMPIObjectPath* path = esd_fill_reference("VEXOR_ESD", kNamespace, first_, second_, broker_);
  EXPECT_EQ(broker_.key(path, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.key(path, "SettingData"), "ref path2");
}

TEST_F(CmpiCore, AnAccessPointForAnElementHasItsRoles) {
  CMPIInstance* instance =
      sap_afe_build_instance("VEXOR_SAP", kNamespace, first_, second_, broker_);
  EXPECT_EQ(broker_.property(instance, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.property(instance, "AvailableSAP"), "ref path2");
  CMPIObjectPath* path = sap_afe_fill_reference("VEXOR_SAP", kNamespace, first_, second_, broker_);
  EXPECT_EQ(broker_.key(path, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.key(path, "AvailableSAP"), "ref path2");
}

TEST_F(CmpiCore, ElementCapabilitiesHaveTheirRoles) {
  CMPIInstance* instance =
      ele_cap_build_instance("VEXOR_Cap", kNamespace, first_, second_, broker_);
  EXPECT_EQ(broker_.property(instance, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.property(instance, "Capabilities"), "ref path2");
  CMPIObjectPath* path = ele_cap_fill_reference("VEXOR_Cap", kNamespace, first_, second_, broker_);
  EXPECT_EQ(broker_.key(path, "ManagedElement"), "ref path1");
  EXPECT_EQ(broker_.key(path, "Capabilities"), "ref path2");
}

std::string status_text(int code) {
  char buffer[32] = {};
  set_operational_status(code, buffer);
  return buffer;
}

TEST(OperationalStatus, HasATextForEveryCode) {
  const char* const texts[] = {"Unknown",           "Unknown",       "OK",
                               "DISABLED",          "OKDIAGFAILED",  "BOOT",
                               "SELFTEST",          "FAILED",        "MISSING",
                               "MISMATCHWITHPAREN", "MISMATCHCONFI", "DIAGFAILED",
                               "DORMANT",           "OUTOFSERVICE",  "OUTOFSERVICE",
                               "POWEREDDOWN",       "POWEREDUP",     "POWERDENIED",
                               "POWERCYCLED",       "POWEROVERWARN", "POWEROVERCRITICAL",
                               "SYNCINPROG",        "Unknown"};
  for (int code = 0; code <= 22; ++code)
    EXPECT_EQ(status_text(code), texts[code]) << code;
  EXPECT_EQ(status_text(-1), "Unknown");
  EXPECT_EQ(status_text(-2147483647), "Unknown");
}

TEST(OperationalStatus, WritesNoTerminator) {
  char buffer[32] = "DISABLED";
  set_operational_status(2, buffer);
  EXPECT_STREQ(buffer, "OKSABLED");
}

TEST(OperationalStatus, NeedsEighteenBytesAtMost) {
  char buffer[19];
  std::memset(buffer, '#', sizeof buffer);
  set_operational_status(9, buffer);
  EXPECT_EQ(std::string(buffer, 18), "MISMATCHWITHPAREN#");
  set_operational_status(2, nullptr);
}

}  // namespace
