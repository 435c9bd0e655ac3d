#include "tools/ports_command.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <variant>
#include <vector>

#include "host/cim_error.h"
#include "tools/instance_values.h"
#include "tools/output.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;

constexpr const char* kFcPort = "VEXOR_FCPort";
constexpr const char* kEthernetPort = "VEXOR_EthernetPort";
constexpr const char* kDeviceSwitch = "VEXOR_PhysicalComputerSystem";

// CIM port types.
constexpr std::uint64_t kE = 14;
constexpr std::uint64_t kF = 15;
constexpr std::uint64_t kFl = 16;
constexpr std::uint64_t kPortChannel = 16004;

bool holds(const Instance& instance, std::string_view property, std::uint64_t number) {
  const Data* data = instance.find(property);
  if (data == nullptr) return false;
  return std::any_of(data->elements.begin(), data->elements.end(), [number](const auto& element) {
    const auto* each = std::get_if<std::uint64_t>(&element);
    return each != nullptr && *each == number;
  });
}

/// Ports of the own switch are known by a number, all others by the name of a link.
bool is_own(const Instance& port) {
  const std::string id = text_of(port, "DeviceID");
  return !id.empty() && id.find_first_not_of("-0123456789") == std::string::npos;
}

/// What the own ports' other ends are looked up in.
class Others {
 public:
  Others(ObjectManager& manager, std::string_view name_space)
      : manager_(manager), name_space_(name_space) {}

  void add(const Instance& port) {
    const std::string system = text_of(port, "SystemCreationClassName");
    if (system == "VEXOR_Vsan") {
      ++devices_behind_[text_of(port, "PeerPortWWN")];
    } else if (system == kDeviceSwitch && text_of(port, "PeerPortWWN").empty()) {
      // The ports of links; the sides of attachments tell each other.
      switch_ports_.try_emplace(
          text_of(port, "PermanentAddress"),
          SwitchPort{text_of(port, "SystemName"), text_of(port, "ElementName")});
    }
  }

  /// "switch-2 fc1/2", as far as it is known; else the WWN.
  std::string switch_port(const std::string& wwn) {
    const auto found = switch_ports_.find(wwn);
    if (found == switch_ports_.end()) return wwn;
    return switch_name(found->second.switch_wwn) + " " + found->second.name;
  }

  std::size_t devices_behind(const std::string& port_wwn) const {
    const auto found = devices_behind_.find(port_wwn);
    return found == devices_behind_.end() ? 0 : found->second;
  }

 private:
  struct SwitchPort {
    std::string switch_wwn;
    std::string name;
  };

  /// Asked once for each switch. One without a name, or that has just left, goes by its WWN.
  const std::string& switch_name(const std::string& wwn) {
    const auto [known, is_new] = names_.try_emplace(wwn, wwn);
    if (!is_new) return known->second;
    const ObjectPath path{
        {},
        name_space_,
        kDeviceSwitch,
        {{"Name", Data::string(wwn)}, {"CreationClassName", Data::string(kDeviceSwitch)}}};
    try {
      const Instance device = manager_.get_instance(path, std::vector<std::string>{"ElementName"});
      const std::string name = text_of(device, "ElementName");
      if (!name.empty()) known->second = name;
    } catch (const cim::host::CimError&) {
      return known->second;
    }
    return known->second;
  }

  ObjectManager& manager_;
  std::string name_space_;
  std::unordered_map<std::string, SwitchPort> switch_ports_;     // by port WWN
  std::unordered_map<std::string, std::size_t> devices_behind_;  // by the switch port's WWN
  std::map<std::string, std::string> names_;                     // of switches, by WWN
};

std::string mode_of(const Instance& port) {
  if (port.path.class_name == kEthernetPort) return "eth";
  switch (number_of(port, "PortType").value_or(0)) {
    case kE:
    case kPortChannel:  // only links between switches are bundled
      return "E";
    case kF:
      return "F";
    case kFl:
      return "FL";
    default:
      return kNothing;
  }
}

std::string state_of(const Instance& port) {
  constexpr std::uint64_t kOk = 2;
  constexpr std::uint64_t kDisabled = 3;
  constexpr std::uint64_t kNoTransceiver = 4;
  constexpr std::uint64_t kIncompatibleTransceiver = 5;
  if (holds(port, "OperationalStatus", kOk)) return "up";
  // CIM calls the status of a trunk unknown, but only ports that work have a speed.
  if (port.path.class_name == kFcPort && number_of(port, "Speed").value_or(0) != 0) return "up";
  if (number_of(port, "EnabledState") == kDisabled) return "disabled";
  const bool has_optics =
      port.path.class_name == kFcPort && number_of(port, "PortType").value_or(0) != kPortChannel;
  const auto availability = number_of(port, "PortAvailability");
  if (has_optics && availability == kNoTransceiver) return "no optics";
  if (has_optics && availability == kIncompatibleTransceiver) return "bad optics";
  return "down";
}

/// As it is sold: 2125000000 bits per second are 2G.
std::string speed_of(const Instance& port) {
  constexpr std::uint64_t kGigabit = 1000000000;
  constexpr std::uint64_t kMegabit = 1000000;
  const std::uint64_t speed = number_of(port, "Speed").value_or(0);
  if (speed == 0) return kNothing;
  if (speed < kGigabit) return std::to_string(speed / kMegabit) + "M";
  return std::to_string(speed / kGigabit) + "G";
}

/// The description of a port whose device is asked for is taken for the device's name.
std::string device_text(const Instance& port, const std::string& wwn, std::size_t devices) {
  std::string text = wwn;
  if (devices > 1) text += " and " + std::to_string(devices - 1) + " more";
  const std::string description = text_of(port, "Description");
  if (description.empty() || description == text_of(port, "ElementName")) return text;
  return description + " (" + text + ")";
}

std::string peer_of(const Instance& port, Others& others) {
  const std::string wwn = text_of(port, "PeerPortWWN");
  if (wwn.empty()) return {};
  if (mode_of(port) == "E") return others.switch_port(wwn);
  return device_text(port, wwn, others.devices_behind(text_of(port, "PermanentAddress")));
}

std::string or_nothing(const std::string& text) {
  return text.empty() ? kNothing : text;
}

std::string vsan_of(const Instance& port) {
  const auto vsan = number_of(port, "VsanId");
  return vsan ? std::to_string(*vsan) : kNothing;
}

}  // namespace

std::string ports_table(ObjectManager& manager, std::string_view name_space) {
  const std::vector<std::string> properties = {"DeviceID",
                                               "SystemName",
                                               "SystemCreationClassName",
                                               "ElementName",
                                               "Description",
                                               "VsanId",
                                               "PortType",
                                               "OperationalStatus",
                                               "EnabledState",
                                               "PortAvailability",
                                               "Speed",
                                               "PermanentAddress",
                                               "PeerPortWWN"};
  Others others(manager, name_space);
  std::vector<Instance> own;
  for (const char* cls : {kFcPort, kEthernetPort}) {
    for (Instance& port : manager.enumerate_instances(name_space, cls, properties)) {
      if (is_own(port)) {
        own.push_back(std::move(port));
      } else {
        others.add(port);
      }
    }
  }
  std::vector<std::vector<std::string>> rows = {
      {"interface", "vsan", "mode", "state", "speed", "port WWN", "peer"}};
  for (const Instance& port : own)
    rows.push_back({text_of(port, "ElementName"), vsan_of(port), mode_of(port), state_of(port),
                    speed_of(port), or_nothing(text_of(port, "PermanentAddress")),
                    peer_of(port, others)});
  return columns_text(rows);
}

}  // namespace vexor::tools
