// Operations on objects of the default fabric, with what they give as text.
#ifndef TESTS_HARDWARE_PROVIDERS_HARDWARE_FIXTURE_H
#define TESTS_HARDWARE_PROVIDERS_HARDWARE_FIXTURE_H

#include <algorithm>
#include <cerrno>

#include "simulator/transport/hardware_messages.h"
#include "tests/port_providers/port_fixture.h"

namespace hardware_tests {

namespace control = switch_sim::control;
using cim::host::Instance;
using cim::host::ObjectPath;
using port_tests::endpoint_path;
using port_tests::ethernet_path;
using port_tests::id_path;
using port_tests::kOwnWwn;
using port_tests::port_path;
using port_tests::text;
using port_tests::Texts;
using port_tests::value;
using switch_sim::Fault;

inline constexpr const char* kOwnSwitch =
    "root/cimv2:VEXOR_PhysicalComputerSystem.Name=\"2000000DEC0A1B2C\","
    "CreationClassName=\"VEXOR_PhysicalComputerSystem\"";
inline constexpr const char* kSecondSwitch =
    "root/cimv2:VEXOR_PhysicalComputerSystem.Name=\"2000000DEC0A1B5E\","
    "CreationClassName=\"VEXOR_PhysicalComputerSystem\"";
inline constexpr const char* kOwnPart1 =
    "root/cimv2:VEXOR_LogicalComputerSystem.Name=\"2001000DEC0A1B2D\","
    "CreationClassName=\"VEXOR_LogicalComputerSystem\"";
inline constexpr const char* kOwnPart2 =
    "root/cimv2:VEXOR_LogicalComputerSystem.Name=\"2002000DEC0A1B2D\","
    "CreationClassName=\"VEXOR_LogicalComputerSystem\"";
inline constexpr const char* kChassis =
    "root/cimv2:VEXOR_PhysicalPackage.CreationClassName=\"VEXOR_PhysicalPackage\","
    "Tag=\"2000000DEC0A1B2C\"";
inline constexpr const char* kProduct =
    "root/cimv2:VEXOR_Product.IdentifyingNumber=\"2000000DEC0A1B2C\",Name=\"QRX4400\","
    "Vendor=\"Vexor Systems\",Version=\"3.1(2a)\"";

inline std::string module_path(const char* entity) {
  return std::string("root/cimv2:VEXOR_LogicalModule.DeviceID=\"") + entity +
         "\",SystemName=\"2000000DEC0A1B2C\","
         "SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\","
         "CreationClassName=\"VEXOR_LogicalModule\"";
}

inline std::string element_path(const char* if_index) {
  return std::string("root/cimv2:VEXOR_PhysicalElement.Tag=\"") + if_index +
         "\",CreationClassName=\"VEXOR_PhysicalElement\"";
}

inline std::string remote_path(const char* name, const char* system) {
  return std::string("root/cimv2:VEXOR_RemoteServiceAccessPoint.SystemCreationClassName=") +
         "\"VEXOR_PhysicalComputerSystem\"," +
         "CreationClassName=\"VEXOR_RemoteServiceAccessPoint\",SystemName=\"" + system +
         "\",Name=\"" + name + "\"";
}

class HardwareTest : public port_tests::PortTest {
 protected:
  // What an association leads to, in the order of the texts.
  Texts linked(const std::string& from, const char* association, const char* result_class = "",
               const char* role = "") {
    Texts found;
    for (const ObjectPath& each :
         manager_->associator_names(path(from), {association, result_class, role, ""}))
      found.push_back(text(each));
    std::sort(found.begin(), found.end());
    return found;
  }
  size_t count(const char* class_name) { return names(class_name).size(); }

  // Both ends lead to each other, as instances too, and the association answers `get`.
  void expect_linked(const std::string& first, const char* association, const std::string& second) {
    const auto leads_to = [&](const std::string& from, const std::string& to) {
      const Texts found = linked(from, association);
      EXPECT_EQ(1, std::count(found.begin(), found.end(), to)) << from << "\n" << to;
      size_t instances = 0;
      for (const Instance& each : manager_->associators(path(from), {association, "", "", ""}))
        instances += each.properties.empty() ? 0 : 1;
      EXPECT_EQ(found.size(), instances) << from;
    };
    leads_to(first, second);
    leads_to(second, first);
    size_t between = 0;
    for (const ObjectPath& each :
         manager_->reference_names(path(first), {"", association, "", ""})) {
      if (text(each).find(escaped(second)) == std::string::npos) continue;
      ++between;
      EXPECT_EQ(2u, manager_->get_instance(each).properties.size());
    }
    EXPECT_EQ(1u, between) << first << "\n" << second;
  }

  // As a path stands in another path.
  static std::string escaped(const std::string& of) {
    std::string made;
    for (const char character : of) {
      if (character == '"' || character == '\\') made += '\\';
      made += character;
    }
    return made;
  }

  static void change(void (*edit)(switch_sim::Fabric&)) {
    auto fabric = control::fabric();
    edit(fabric);
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }
};

}  // namespace hardware_tests

#endif  // TESTS_HARDWARE_PROVIDERS_HARDWARE_FIXTURE_H
