#include "simulator/fabric/hardware.h"

#include <algorithm>

#include "simulator/fabric/fabric.h"

namespace switch_sim {
namespace {

constexpr uint32_t kChassisIndex = 1;
constexpr uint32_t kSlotIndex = 100;
constexpr uint32_t kModuleIndex = 200;
constexpr uint32_t kPowerSupplyIndex = 300;
constexpr uint32_t kFanIndex = 400;
constexpr uint32_t kSensorIndex = 1000;
constexpr uint32_t kSensorsOfModule = 10;

const char* kind_text(ModuleKind kind) {
  switch (kind) {
    case ModuleKind::supervisor:
      return "Supervisor";
    case ModuleKind::fibre_channel:
      return "Fibre Channel Switching Module";
    case ModuleKind::ip_storage:
      return "IP Storage Services Module";
    case ModuleKind::crossbar:
      return "Crossbar Module";
    case ModuleKind::services:
      return "Application Services Module";
  }
  return "Module";
}

const char* kind_model(ModuleKind kind) {
  switch (kind) {
    case ModuleKind::supervisor:
      return "-SUP";
    case ModuleKind::fibre_channel:
      return "-FC";
    case ModuleKind::ip_storage:
      return "-IPS";
    case ModuleKind::crossbar:
      return "-XBAR";
    case ModuleKind::services:
      return "-APP";
  }
  return "";
}

// What is part of the chassis has the chassis's serial number with a suffix.
std::string part_serial(const Switch& element, const std::string& suffix) {
  const std::string& serial = element.chassis.serial_number;
  return serial.empty() ? "" : serial + suffix;
}

Entity make(uint32_t index, uint32_t container, EntityClass entity_class, uint32_t position,
            std::string description) {
  Entity made;
  made.index = index;
  made.container = container;
  made.entity_class = entity_class;
  made.position = position;
  made.description = std::move(description);
  made.name = made.description;
  return made;
}

Entity chassis_entity(const Switch& element) {
  const Chassis& chassis = element.chassis;
  Entity made =
      make(kChassisIndex, 0, EntityClass::chassis, 1,
           chassis.model + " chassis with " + std::to_string(slots_of(element)) + " slots");
  made.name = "Chassis";
  made.model_name = chassis.model;
  made.serial_number = chassis.serial_number;
  return made;
}

Entity module_entity(const Switch& element, const Module& module) {
  std::string description = kind_text(module.kind);
  std::string model = element.chassis.model + kind_model(module.kind);
  if (module.ports != 0) {
    description = std::to_string(module.ports) + "-port " + description;
    model += std::to_string(module.ports);
  }
  Entity made = make(kModuleIndex + module.slot, kSlotIndex + module.slot, EntityClass::module, 1,
                     description);
  made.name = "Module " + std::to_string(module.slot);
  made.model_name = model;
  made.serial_number = part_serial(element, "-M" + std::to_string(module.slot));
  if (module.state == ModuleState::ok) made.software_version = element.system.software_version;
  made.replaceable = true;
  return made;
}

Entity numbered_part(const Switch& element, EntityClass entity_class, uint32_t first,
                     uint32_t number, const char* name, const char* suffix) {
  const std::string text = std::to_string(number);
  Entity made =
      make(first + number, kChassisIndex, entity_class, number, std::string(name) + " " + text);
  made.model_name = element.chassis.model + suffix;
  made.serial_number = part_serial(element, suffix + text);
  made.replaceable = true;
  return made;
}

bool is_prom_text(const std::string& text) {
  return text.size() <= kLongestPromText && (text.empty() || is_name(text));
}

}  // namespace

uint32_t slots_of(const Switch& element) {
  const uint32_t needed = element.modules.empty() ? 0 : element.modules.back().slot;
  return std::max(element.chassis.slots, needed);
}

std::vector<uint32_t> entity_indexes(const Switch& element) {
  std::vector<uint32_t> indexes = {kChassisIndex};
  for (uint32_t slot = 1; slot <= slots_of(element); ++slot)
    indexes.push_back(kSlotIndex + slot);
  for (const Module& module : element.modules)
    indexes.push_back(kModuleIndex + module.slot);
  for (uint32_t n = 1; n <= element.chassis.power_supplies; ++n)
    indexes.push_back(kPowerSupplyIndex + n);
  for (uint32_t n = 1; n <= element.chassis.fans; ++n)
    indexes.push_back(kFanIndex + n);
  for (const Module& module : element.modules) {
    for (uint32_t n = 1; n <= element.chassis.sensors; ++n)
      indexes.push_back(kSensorIndex + module.slot * kSensorsOfModule + n);
  }
  return indexes;
}

std::optional<Entity> find_entity(const Switch& element, uint32_t index) {
  const auto indexes = entity_indexes(element);
  if (!std::binary_search(indexes.begin(), indexes.end(), index)) return std::nullopt;
  if (index > kSensorIndex) {
    const uint32_t slot = (index - kSensorIndex) / kSensorsOfModule;
    const uint32_t number = (index - kSensorIndex) % kSensorsOfModule;
    return make(index, kModuleIndex + slot, EntityClass::sensor, number,
                "Module " + std::to_string(slot) + " temperature sensor " + std::to_string(number));
  }
  if (index > kFanIndex) {
    return numbered_part(element, EntityClass::fan, kFanIndex, index - kFanIndex, "Fan", "-FAN");
  }
  if (index > kPowerSupplyIndex) {
    return numbered_part(element, EntityClass::power_supply, kPowerSupplyIndex,
                         index - kPowerSupplyIndex, "Power supply", "-PS");
  }
  if (const Module* module = module_of_entity(element, index)) {
    return module_entity(element, *module);
  }
  if (index > kSlotIndex) {
    return make(index, kChassisIndex, EntityClass::slot, index - kSlotIndex,
                "Slot " + std::to_string(index - kSlotIndex));
  }
  return chassis_entity(element);
}

uint32_t slot_of_entity(const Switch& element, uint32_t index) {
  if (const Module* module = module_of_entity(element, index)) return module->slot;
  const bool is_slot = index > kSlotIndex && index <= kSlotIndex + slots_of(element);
  return is_slot ? index - kSlotIndex : 0;
}

const Module* module_of_entity(const Switch& element, uint32_t index) {
  return index > kModuleIndex ? find_module(element, index - kModuleIndex) : nullptr;
}

std::optional<ChassisProblem> problem_of_chassis(const Switch& element) {
  const Chassis& chassis = element.chassis;
  if (chassis.model.size() > kLongestModelName || !is_name(chassis.model)) {
    return ChassisProblem{"model", "a model is UTF-8 of one line and 1 to 39 bytes"};
  }
  if (!is_prom_text(chassis.part_number)) {
    return ChassisProblem{"part_number", "a part number is UTF-8 of one line and at most 19 bytes"};
  }
  if (!is_prom_text(chassis.serial_number)) {
    return ChassisProblem{"serial_number",
                          "a serial number is UTF-8 of one line and at most 19 bytes"};
  }
  if (chassis.slots > kLargestModuleSlot) {
    return ChassisProblem{"slots", "a chassis has at most 31 slots"};
  }
  if (chassis.slots != 0 && slots_of(element) > chassis.slots) {
    return ChassisProblem{"slots", "a module is in a slot that the chassis does not have"};
  }
  if (chassis.power_supplies > kMostPowerSupplies) {
    return ChassisProblem{"power_supplies", "a chassis has at most 16 power supplies"};
  }
  if (chassis.fans > kMostFans) return ChassisProblem{"fans", "a chassis has at most 16 fans"};
  if (chassis.sensors > kMostSensors) {
    return ChassisProblem{"sensors", "a module has at most 8 sensors"};
  }
  return std::nullopt;
}

}  // namespace switch_sim
