// The provider library in the embedded object manager, over the simulated switch: operations on
// paths written as text, what they give as text, and how many exchanges they cost.
#ifndef TESTS_PORT_PROVIDERS_PORT_FIXTURE_H
#define TESTS_PORT_PROVIDERS_PORT_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/object_manager.h"
#include "host/object_path.h"
#include "schema/repository.h"
#include "simulator/control/control.h"
#include "simulator/transport/port_messages.h"

namespace port_tests {

namespace control = switch_sim::control;
using cim::host::CimError;
using cim::host::Data;
using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using switch_sim::Fault;
using Texts = std::vector<std::string>;

inline constexpr const char* kNamespace = "root/cimv2";

// Interfaces of the default fabric's own switch.
inline constexpr const char* kOwnWwn = "2000000DEC0A1B2C";
inline constexpr const char* kFc1 = "16842753";         // fc1/1: F, VSAN 1, one device
inline constexpr const char* kFc2 = "16842754";         // fc1/2: E, VSAN 1, to switch-2 fc1/2
inline constexpr const char* kFc5 = "16842757";         // fc1/5: member of port-channel 1
inline constexpr const char* kFc7 = "16842759";         // fc1/7: FL, VSAN 2, three devices
inline constexpr const char* kFc8 = "16842760";         // fc1/8: disabled
inline constexpr const char* kFc9 = "16842761";         // fc1/9: nothing plugged in
inline constexpr const char* kChannel = "67108865";     // port-channel 1
inline constexpr const char* kGigabit = "33685505";     // gigabitethernet2/1
inline constexpr const char* kManagement = "83886081";  // mgmt0
inline constexpr const char* kFcip = "167772161";       // fcip1
inline constexpr const char* kIscsi = "184680449";      // iscsi2/1

inline std::string port_path(const std::string& device_id, const std::string& system = kOwnWwn,
                             const std::string& system_class = "VEXOR_PhysicalComputerSystem") {
  return "root/cimv2:VEXOR_FCPort.DeviceID=\"" + device_id + "\",SystemName=\"" + system +
         "\",SystemCreationClassName=\"" + system_class + "\",CreationClassName=\"VEXOR_FCPort\"";
}

inline std::string ethernet_path(const std::string& device_id, const std::string& name) {
  return "root/cimv2:VEXOR_EthernetPort.DeviceID=\"" + device_id + "\",SystemName=\"" + name +
         "\",SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\","
         "CreationClassName=\"VEXOR_EthernetPort\"";
}

inline std::string endpoint_path(const std::string& name, const std::string& system) {
  return "root/cimv2:VEXOR_ProtocolEndPoint.Name=\"" + name + "\",SystemName=\"" + system +
         "\",SystemCreationClassName=\"VEXOR_LogicalComputerSystem\","
         "CreationClassName=\"VEXOR_ProtocolEndPoint\"";
}

inline std::string id_path(const char* class_name, const std::string& id) {
  return std::string("root/cimv2:") + class_name + ".InstanceID=\"" + id + "\"";
}

// Object paths that the library makes carry the name of the machine.
inline std::string text(ObjectPath path) {
  path.host.clear();
  for (auto& key : path.keys)
    if (auto* reference = std::get_if<cim::host::PathPtr>(&key.data.element)) {
      ObjectPath end = **reference;
      end.host.clear();
      *reference = std::make_shared<const ObjectPath>(end);
    }
  return to_text(path);
}

// "16842753" of DeviceID; "NULL" of a property without a value.
inline std::string value(const Instance& instance, const char* property) {
  const Data* data = instance.find(property);
  if (data == nullptr || data->null) return "NULL";
  return cim::schema::to_text(cim::host::to_value(*data));
}

class PortTest : public testing::Test {
 protected:
  PortTest() {
    control::reset();
    EXPECT_TRUE(repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof").empty());
    cim::host::Settings settings;
    settings.providers = {{"VexorProvider", PROVIDERS_LIBRARY, "VEXOR_"}};
    manager_ = std::make_unique<ObjectManager>(repository_, settings);
  }

  // The traces of the library go to standard output; so does what failed.
  void SetUp() override { testing::internal::CaptureStdout(); }
  void TearDown() override {
    const std::string printed = testing::internal::GetCapturedStdout();
    if (HasFailure()) std::fputs(printed.c_str(), stderr);
  }

  static void generate(const std::string& numbers) {
    EXPECT_EQ(control::install_generated(numbers), std::nullopt);
  }

  static ObjectPath path(const std::string& text) {
    const auto parsed = cim::host::parse_object_path(text);
    EXPECT_EQ(parsed.error, "") << text;
    return parsed.path;
  }

  Texts names(const char* class_name) {
    Texts found;
    for (const ObjectPath& each : manager_->enumerate_instance_names(kNamespace, class_name))
      found.push_back(text(each));
    return found;
  }
  std::vector<Instance> instances(const char* class_name,
                                  const cim::host::PropertyList& properties = {}) {
    return manager_->enumerate_instances(kNamespace, class_name, properties);
  }
  Instance get(const std::string& of, const cim::host::PropertyList& properties = {}) {
    return manager_->get_instance(path(of), properties);
  }
  void modify(const std::string& of, std::vector<cim::host::NamedData> values) {
    std::vector<std::string> names;
    for (const auto& each : values)
      names.push_back(each.name);
    manager_->modify_instance({path(of), std::move(values)}, names);
  }
  // What RequestStateChange returns.
  std::string request_state(const std::string& of, uint16_t state) {
    const auto result =
        manager_->invoke_method(path(of), "RequestStateChange",
                                {{"RequestedState", Data::of(CMPI_uint16, uint64_t{state})}});
    return cim::schema::to_text(cim::host::to_value(result.value));
  }

  template <class Operation>
  static void expect_error(CMPIrc code, const std::string& message, Operation operation) {
    try {
      operation();
      ADD_FAILURE() << "succeeded, not: " << message;
    } catch (const CimError& error) {
      EXPECT_EQ(error.code(), code) << error.what();
      EXPECT_NE(std::string(error.what()).find(message), std::string::npos) << error.what();
    }
  }
  void expect_not_found(const std::string& of) {
    expect_error(CMPI_RC_ERR_NOT_FOUND, "there is no such VEXOR_", [&] { get(of); });
  }

  template <class Operation>
  static uint64_t exchanges(Operation operation) {
    control::clear_log();
    operation();
    return control::exchange_count();
  }
  // Of one opcode.
  template <class Operation>
  static size_t exchanges(uint32_t opcode, Operation operation) {
    control::keep_log(true);
    control::clear_log();
    operation();
    size_t count = 0;
    for (const auto& exchange : control::log())
      count += exchange.request.opcode == opcode ? 1 : 0;
    control::keep_log(false);
    return count;
  }
  static void fail(uint32_t opcode, Fault::Kind kind, int32_t value = 0, uint32_t nth = 0) {
    Fault fault;
    fault.opcode = opcode;
    fault.kind = kind;
    fault.value = value;
    fault.nth = nth;
    control::set_faults({fault});
  }

  cim::schema::Repository repository_;
  std::unique_ptr<ObjectManager> manager_;
};

}  // namespace port_tests

#endif
