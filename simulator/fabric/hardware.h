// The chassis of a switch and the physical entities in it: the part of the fabric that the platform
// manager answers from. What sits in the slots are the modules of ports.h.
#ifndef SIMULATOR_FABRIC_HARDWARE_H
#define SIMULATOR_FABRIC_HARDWARE_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace switch_sim {

struct Switch;
struct Module;

// The serial PROM has fields of 20 bytes for the part number and the serial number.
inline constexpr size_t kLongestModelName = 39;
inline constexpr size_t kLongestPromText = 19;
inline constexpr uint32_t kMostPowerSupplies = 16;
inline constexpr uint32_t kMostFans = 16;
inline constexpr uint32_t kMostSensors = 8;

struct Chassis {
  std::string model = "QRX4400";  // what the chassis is called by the platform
  std::string part_number;
  std::string serial_number;
  uint32_t slots = 0;           // as many as the modules need, where they need more
  uint32_t power_supplies = 0;  // numbered from 1, as are the fans
  uint32_t fans = 0;
  uint32_t sensors = 0;  // temperature sensors of each module
  friend bool operator==(const Chassis&, const Chassis&) = default;
};

// Kinds of physical entities, as entPhysicalClass numbers them.
enum class EntityClass : uint32_t {
  chassis = 3,
  slot = 5,  // a container
  power_supply = 6,
  fan = 7,
  sensor = 8,
  module = 9,
};

// One physical entity. Its index tells what it is:
//
//   1           the chassis
//   100 + slot  a slot
//   200 + slot  the module in a slot
//   300 + n     power supply n
//   400 + n     fan n
//   1000 + slot * 10 + n   sensor n of the module in a slot
struct Entity {
  uint32_t index = 0;
  uint32_t container = 0;  // index of the entity that it sits in; 0 for the chassis
  EntityClass entity_class = EntityClass::chassis;
  uint32_t position = 0;  // among those of its class in its container, from 1
  std::string description;
  std::string name;
  std::string model_name;
  std::string serial_number;
  std::string software_version;  // of modules that run some
  bool replaceable = false;
};

// The number of slots: that of the chassis, or the highest that holds a module.
uint32_t slots_of(const Switch& element);

// The indexes of all entities of a switch, rising.
std::vector<uint32_t> entity_indexes(const Switch& element);

// The entity of one of these indexes; nothing for another.
std::optional<Entity> find_entity(const Switch& element, uint32_t index);

inline uint32_t entity_of_module(uint32_t slot) {
  return 200 + slot;
}

// The slot that an entity is, or that the module of this index is in; 0 for other entities.
uint32_t slot_of_entity(const Switch& element, uint32_t index);

// The module whose entity has this index; null when there is none.
const Module* module_of_entity(const Switch& element, uint32_t index);

// What the chassis breaks of the rules of the model, and the key of the fabric file it is about;
// or nothing. The modules must be sorted.
struct ChassisProblem {
  const char* key;
  const char* message;
};
std::optional<ChassisProblem> problem_of_chassis(const Switch& element);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_HARDWARE_H
