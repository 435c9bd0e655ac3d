#include "tools/modules_command.h"

#include <map>
#include <utility>
#include <vector>

#include "host/data.h"
#include "schema/names.h"
#include "tools/instance_values.h"
#include "tools/output.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;

std::string chassis_text(const Instance& chassis) {
  std::string text = "chassis " + text_of(chassis, "Model");
  const std::pair<const char*, const char*> parts[] = {
      {"SerialNumber", "serial number"}, {"PartNumber", "part number"}, {"Version", "version"}};
  for (const auto& [property, name] : parts) {
    const std::string value = text_of(chassis, property);
    if (!value.empty()) text += std::string(", ") + name + " " + value;
  }
  return columns_text({{text}});
}

/// The object at an end of an association; null where there is none.
const ObjectPath* end_of(const Instance& association, std::string_view role) {
  const Data* data = association.find(role);
  const auto* path = data == nullptr ? nullptr : std::get_if<cim::host::PathPtr>(&data->element);
  return path == nullptr ? nullptr : path->get();
}

std::string device_id(const ObjectPath& path) {
  const cim::host::NamedData* key = cim::host::find_named(path.keys, "DeviceID");
  const auto* text = key == nullptr ? nullptr : std::get_if<std::string>(&key->data.element);
  return text == nullptr ? std::string() : *text;
}

/// How many ports of each kind a module has.
class Ports {
 public:
  void add(const Instance& module_port) {
    const ObjectPath* module = end_of(module_port, "GroupComponent");
    const ObjectPath* port = end_of(module_port, "PartComponent");
    if (module == nullptr || port == nullptr) return;
    Counts& counts = counts_[device_id(*module)];
    const bool ethernet = cim::schema::equal_names(port->class_name, "VEXOR_EthernetPort");
    ++(ethernet ? counts.ethernet : counts.fibre_channel);
  }

  std::string text_for(const std::string& module) const {
    const auto found = counts_.find(module);
    if (found == counts_.end()) return kNothing;
    const auto& [fibre_channel, ethernet] = found->second;
    std::string text;
    if (fibre_channel != 0) text = std::to_string(fibre_channel) + " FC";
    if (ethernet == 0) return text;
    return text + (text.empty() ? "" : ", ") + std::to_string(ethernet) + " Ethernet";
  }

 private:
  struct Counts {
    std::size_t fibre_channel = 0;
    std::size_t ethernet = 0;
  };
  std::map<std::string, Counts> counts_;  // by the module's DeviceID
};

std::string or_nothing(const std::string& text) {
  return text.empty() ? kNothing : text;
}

}  // namespace

std::string modules_table(ObjectManager& manager, std::string_view name_space) {
  std::string text;
  for (const Instance& chassis : manager.enumerate_instances(
           name_space, "VEXOR_PhysicalPackage",
           std::vector<std::string>{"Model", "SerialNumber", "PartNumber", "Version"}))
    text += chassis_text(chassis);
  Ports ports;
  for (const Instance& module_port :
       manager.enumerate_instances(name_space, "VEXOR_ModulePort", std::nullopt))
    ports.add(module_port);
  std::vector<std::vector<std::string>> rows = {{"slot", "module", "status", "ports"}};
  for (const Instance& module : manager.enumerate_instances(
           name_space, "VEXOR_LogicalModule",
           std::vector<std::string>{"DeviceID", "ModuleNumber", "Name", "Status"})) {
    const auto slot = number_of(module, "ModuleNumber");
    rows.push_back({slot ? std::to_string(*slot) : kNothing, or_nothing(text_of(module, "Name")),
                    or_nothing(text_of(module, "Status")),
                    ports.text_for(text_of(module, "DeviceID"))});
  }
  return text + "\n" + columns_text(rows);
}

}  // namespace vexor::tools
