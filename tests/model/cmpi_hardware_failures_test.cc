// The CMPI face of the switch as hardware, where a record, the broker, a service or memory fails.
#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/model/hardware_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";

struct Paths {
  const char* name;
  std::function<CMPIObjectPath*(const CMPIBroker*)> fill;
};
struct Instances {
  const char* name;
  std::function<CMPIInstance*(const CMPIBroker*)> build;
};

class CmpiHardwareFailures : public testing::Test {
 protected:
  CmpiHardwareFailures() {
    records::know_version();
    out_.clear();
    mts_q = kQueue;
    system_.host_name("switch-1");
  }
  ~CmpiHardwareFailures() override { mts_q = -1; }

  std::vector<Paths> paths() const {
    return {
        {"product", [](auto* b) { return product_fill_reference("C", kNamespace, b); }},
        {"package", [](auto* b) { return physical_package_fill_reference(kNamespace, "C", b); }},
        {"element",
         [this](auto* b) { return physical_element_fill_reference("C", kNamespace, &port_, b); }},
        {"module",
         [this](auto* b) { return logical_module_fill_reference("C", kNamespace, &module_, b); }},
    };
  }
  std::vector<Instances> instances() const {
    return {
        {"product", [](auto* b) { return product_build_instance("C", kNamespace, b); }},
        {"package", [](auto* b) { return physical_package_build_instance("C", kNamespace, b); }},
        {"element",
         [this](auto* b) { return physical_element_build_instance("C", kNamespace, &port_, b); }},
        {"module",
         [this](auto* b) {
           return logical_module_build_instance("C", kNamespace, &module_, &entity_, b);
         }},
    };
  }
  // No service answers. The chassis's and the slot's questions stand in the order of instances().
  static void expect_platform(Script& script, size_t which) {
    if (which == 0 || which == 1) script.expect(chassis_id()).gives(nullptr);
    if (which == 1) script.expect(read_chassis_prom()).fails(17);
    if (which == 2) {
      script.expect(chassis_id()).gives(nullptr);
      script.expect(read_chassis_prom()).fails(17);
    }
    if (which == 3) script.expect(slot_of_entity(22)).fails(17);
  }

  OsDouble system_;
  StdioCapture out_;
  pm_port_info_ port_ = records::fc12();
  _vefcModuleEntry module_ = records::module_22();
  _entPhysicalEntry entity_ = records::entity_22();
};

TEST_F(CmpiHardwareFailures, ABadPathMakesNoReferenceAndAsksNothing) {
  const Script script;
  for (const auto& [name, fill] : paths()) {
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      RecordingBroker broker;
      broker.fail_nth_path(1, how);
      EXPECT_EQ(fill(broker), nullptr) << name;
    }
  }
}

TEST_F(CmpiHardwareFailures, ABadPathOrInstanceMakesNoInstanceAndAsksNothing) {
  const Script script;
  for (const auto& [name, build] : instances()) {
    for (const Failure how : {Failure::null_object, Failure::null_handle}) {
      RecordingBroker broker;
      broker.fail_nth_path(1, how);
      EXPECT_EQ(build(broker), nullptr) << name;
      broker.fail_nth_instance(1, how);
      EXPECT_EQ(build(broker), nullptr) << name;
    }
  }
}

TEST_F(CmpiHardwareFailures, NoRecordMakesNoObject) {
  const Script script;
  const RecordingBroker broker;
  EXPECT_EQ(physical_element_fill_reference("C", kNamespace, nullptr, broker), nullptr);
  EXPECT_EQ(physical_element_build_instance("C", kNamespace, nullptr, broker), nullptr);
  EXPECT_EQ(logical_module_fill_reference("C", kNamespace, nullptr, broker), nullptr);
  EXPECT_EQ(logical_module_build_instance("C", kNamespace, nullptr, &entity_, broker), nullptr);
  EXPECT_EQ(logical_module_build_instance("C", kNamespace, &module_, nullptr, broker), nullptr);
  EXPECT_EQ(broker.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(CmpiHardwareFailures, AnArrayThatTheBrokerDoesNotGiveIsLeftOut) {
  Responder services([](const Request&) { return Response::failed(17); });
  const char* arrays[] = {"OperationalStatus", "EnabledState", "RequestedState", "EnabledDefault"};
  for (size_t n = 1; n <= std::size(arrays); ++n) {
    Script script;
    expect_platform(script, 3);
    RecordingBroker broker;
    broker.fail_nth_array(n, n % 2 != 0 ? Failure::null_object : Failure::null_handle);
    CMPIInstance* instance =
        logical_module_build_instance("C", kNamespace, &module_, &entity_, broker);
    for (size_t i = 1; i <= std::size(arrays); ++i)
      EXPECT_EQ(broker.property(instance, arrays[i - 1]) == "none", i == n) << arrays[i - 1];
  }
}

TEST_F(CmpiHardwareFailures, EveryFailingExchangeLeavesTheInstancesStanding) {
  const Names names[] = {{"IdentifyingNumber", "Name", "ElementName", "Vendor", "Version"},
                         {"CreationClassName", "Tag", "ElementName", "Name", "Manufacturer",
                          "Model", "SerialNumber", "Version", "PartNumber"},
                         {"CreationClassName", "Tag", "ElementName", "Name", "Manufacturer",
                          "SerialNumber", "Version", "Model", "PartNumber"},
                         {"DeviceID", "SystemName", "SystemCreationClassName", "CreationClassName",
                          "ElementName", "Name", "Description", "Caption", "OperationalStatus",
                          "Status", "EnabledState", "RequestedState", "EnabledDefault"}};
  Responder services([](const Request&) { return Response::failed(17); });
  size_t which = 0;
  for (const auto& [name, build] : instances()) {
    Script script;
    expect_platform(script, which);
    RecordingBroker broker;
    EXPECT_EQ(broker.property_names(build(broker)), names[which]) << name;
    ++which;
  }
}

// What is allocated is the list of the names of the keys; without it nothing is asked.
TEST_F(CmpiHardwareFailures, EveryFailingAllocationMakesNoInstanceAndAsksNothing) {
  constexpr size_t kAllocations[] = {1 + 4, 1 + 2, 1 + 2, 1 + 4};
  Responder services([](const Request&) { return Response::failed(17); });
  size_t which = 0;
  for (const auto& [name, build] : instances()) {
    const size_t rounds = for_every_failing_allocation([&](FailingAllocation& round) {
      RecordingBroker broker;
      broker.write_down(false);
      Script script;
      if (round.n() > kAllocations[which]) expect_platform(script, which);
      CMPIInstance* instance = round.attempt([&] { return build(broker); });
      EXPECT_EQ(instance == nullptr, round.was_hit()) << name;
    });
    EXPECT_EQ(rounds, kAllocations[which] + 1) << name;
    ++which;
  }
}

// ---- the chassis of the switch

TEST_F(CmpiHardwareFailures, AnEndThatTheBrokerDidNotGiveIsLeftOut) {
  Responder services([](const Request&) { return Response::failed(17); });
  RecordingBroker broker;
  broker.fail_nth_path(1, Failure::null_handle);
  EXPECT_EQ(broker.key_names(switch_package_fill_reference("C", kNamespace, broker)),
            Names{"Dependent"});
  broker.fail_nth_path(2, Failure::null_object);
  EXPECT_EQ(broker.key_names(switch_package_fill_reference("C", kNamespace, broker)),
            Names{"Antecedent"});
  broker.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(broker.property_names(switch_package_build_instance("C", kNamespace, broker)),
            Names{"Dependent"});
  broker.fail_nth_path(2, Failure::null_object);
  EXPECT_EQ(broker.property_names(switch_package_build_instance("C", kNamespace, broker)),
            Names{"Antecedent"});
}

TEST_F(CmpiHardwareFailures, TheEndsAreMadeBeforeAPathThatTheBrokerDoesNotGive) {
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    Script script;
    for (int i = 0; i < 6; ++i)
      script.expect(records::own_switch_wwn()).replies(records::own_wwn());
    RecordingBroker broker;
    broker.fail_nth_path(3, how);
    EXPECT_EQ(switch_package_fill_reference("C", kNamespace, broker), nullptr);
    broker.fail_nth_path(3, how);
    EXPECT_EQ(switch_package_build_instance("C", kNamespace, broker), nullptr);
    broker.fail_nth_instance(1, how);
    EXPECT_EQ(switch_package_build_instance("C", kNamespace, broker), nullptr);
  }
}

}  // namespace
