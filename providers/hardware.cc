#include "providers/hardware.h"

#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/modules.h>
#include <cim_utils/port_manager.h>

#include <charconv>
#include <cstring>

#include "providers/queue.h"

namespace vexor::providers {
namespace {

// A decimal number that a key holds. Result: false for any other text, null among them.
template <class Number>
bool read_number(const char* text, Number& number) {
  if (text == nullptr) return false;
  const char* end = text + std::strlen(text);
  const auto [stopped, error] = std::from_chars(text, end, number);
  return error == std::errc{} && stopped == end;
}

// A row of the module table, or the next one. Result: false when there is none.
bool read_module(int32_t q, uint32_t entity, bool exact, _vefcModuleEntry& row) {
  row = {};
  const int32_t status = pfm_cim_get_vefcModuleTable(q, entity, exact ? 1 : 0, &row);
  // The service's own refusals are positive; a negative status says that nobody answered.
  if (status < 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the platform manager does not answer (status %d)", status);
  return status == 0;
}

}  // namespace

// ---- product and chassis ----

std::vector<Product> the_product(int32_t) {
  return {Product{}};
}

CMPIObjectPath* product_reference(const Target& target, const Product&) {
  return product_fill_reference(target.class_name, target.name_space, target.broker);
}

CMPIInstance* product_instance(const Target& target, const Product&) {
  return product_build_instance(target.class_name, target.name_space, target.broker);
}

std::vector<Chassis> the_chassis(int32_t) {
  return {Chassis{}};
}

CMPIObjectPath* chassis_reference(const Target& target, const Chassis&) {
  return physical_package_fill_reference(target.name_space, target.class_name, target.broker);
}

CMPIInstance* chassis_instance(const Target& target, const Chassis&) {
  return physical_package_build_instance(target.class_name, target.name_space, target.broker);
}

// ---- physical sides of ports ----

std::vector<PhysicalPort> physical_ports(int32_t q) {
  std::vector<PhysicalPort> found;
  for (const PortKind kind : {PortKind::fibre_channel, PortKind::ethernet})
    for (const OwnPort& port : own_ports(q, kind))
      found.push_back({port});
  return found;
}

std::vector<PhysicalPort> physical_ports_named(int32_t q, const ObjectName& name) {
  int32_t if_index = 0;
  if (!read_number(name.text("Tag"), if_index)) return {};
  const auto index = static_cast<uint32_t>(if_index);
  std::vector<PhysicalPort> found;
  for (const OwnPort& port : own_port(q, kind_of(index), index))
    found.push_back({port});
  return found;
}

CMPIObjectPath* physical_port_reference(const Target& target, const PhysicalPort& port) {
  return physical_element_fill_reference(target.class_name, target.name_space, port.port.info.get(),
                                         target.broker);
}

CMPIInstance* physical_port_instance(const Target& target, const PhysicalPort& port) {
  return physical_element_build_instance(target.class_name, target.name_space, port.port.info.get(),
                                         target.broker);
}

// ---- modules ----

std::vector<Module> modules(int32_t q) {
  std::vector<Module> found;
  _vefcModuleEntry row;
  // A walk that does not move forward has ended.
  for (uint32_t entity = 0; read_module(q, entity, false, row) && row.entity_index > entity;
       entity = row.entity_index)
    found.push_back({row});
  return found;
}

std::vector<Module> modules_named(int32_t q, const ObjectName& name) {
  int32_t entity = 0;
  _vefcModuleEntry row;
  if (!read_number(name.text("DeviceID"), entity) ||
      !read_module(q, static_cast<uint32_t>(entity), true, row))
    return {};
  return {Module{row}};
}

CMPIObjectPath* module_reference(const Target& target, const Module& module) {
  return logical_module_fill_reference(target.class_name, target.name_space, &module.row,
                                       target.broker);
}

CMPIInstance* module_instance(const Target& target, const Module& module) {
  _entPhysicalEntry entity{};
  // An entity that is not told leaves the names empty.
  if (pfm_cim_get_entPhysicalTable(queue::handle(), module.row.entity_index, 1, &entity) != 0)
    entity = {};
  return logical_module_build_instance(target.class_name, target.name_space, &module.row, &entity,
                                       target.broker);
}

bool module_number_of(uint32_t if_index, uint32_t& number) {
  const int32_t slot = pm_cim_get_slot_number_from_ifIndex(if_index, nullptr);
  if (slot < 0) return false;
  number = static_cast<uint32_t>(slot);
  return true;
}

}  // namespace vexor::providers
