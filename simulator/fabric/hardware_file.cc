// Reads and writes the chassis of a switch.
#include "simulator/fabric/hardware_file.h"

namespace switch_sim {
namespace {

void read_text(const ObjectReader& object, const char* key, std::string& text) {
  if (const Value* value = object.find(key)) text = expect<std::string>(*value, "a text");
}

}  // namespace

void read_chassis(const ObjectReader& object, Switch& element) {
  const Value* value = object.find("chassis");
  if (value == nullptr) return;
  const ObjectReader reader(
      *value, "a chassis",
      {"model", "part_number", "serial_number", "slots", "power_supplies", "fans", "sensors"});
  Chassis& chassis = element.chassis;
  read_text(reader, "model", chassis.model);
  read_text(reader, "part_number", chassis.part_number);
  read_text(reader, "serial_number", chassis.serial_number);
  chassis.slots = read_number<uint32_t>(reader, "slots", 1, kLargestModuleSlot, chassis.slots);
  chassis.power_supplies =
      read_number<uint32_t>(reader, "power_supplies", 0, kMostPowerSupplies, 0);
  chassis.fans = read_number<uint32_t>(reader, "fans", 0, kMostFans, 0);
  chassis.sensors = read_number<uint32_t>(reader, "sensors", 0, kMostSensors, 0);
  if (const auto problem = problem_of_chassis(element)) {
    throw Problem{reader.position_of(problem->key), problem->message};
  }
}

std::string chassis_text(const Chassis& chassis) {
  if (chassis == Chassis{}) return "";
  std::string text = ",\n      \"chassis\": {\"model\": " + quote(chassis.model);
  text += ", \"part_number\": " + quote(chassis.part_number);
  text += ", \"serial_number\": " + quote(chassis.serial_number);
  if (chassis.slots != 0) text += ", \"slots\": " + std::to_string(chassis.slots);
  text += ", \"power_supplies\": " + std::to_string(chassis.power_supplies);
  text += ", \"fans\": " + std::to_string(chassis.fans);
  text += ", \"sensors\": " + std::to_string(chassis.sensors);
  return text + "}";
}

}  // namespace switch_sim
