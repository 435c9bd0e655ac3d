#include <cim_utils/modules.h>
#include <switch_platform/platform_manager.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "common/exchange.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

constexpr wire::Span kModuleEntry[] = {{0, 8, 4}, {288, 2, 4}, {304, 2, 4}};
constexpr wire::Span kPhysicalEntry[] = {{0, 1, 4}, {260, 128, 4}, {772, 4, 4}, {2428, 1, 4}};

// One of the platform manager's tables. Its rows begin with the entity index, which is the key.
struct Table {
  const char* name;
  uint32_t opcode;
  std::span<const wire::Span> numbers;
};

constexpr Table kModules = {"get_vefcModuleTable", MTS_OPC_MODULE, kModuleEntry};
constexpr Table kPhysicalEntities = {"get_entPhysicalTable", MTS_OPC_PHYSICAL_ENTITY,
                                     kPhysicalEntry};

template <typename Row>
int32_t get_row(const Table& table, int32_t session, uint32_t entity, int32_t exact, Row* row) {
  if (row == nullptr) return -1;
  std::printf("%s(): entityId is  %u exact is %d \n", table.name, entity, exact);
  row->entity_index = entity;
  const wire::InWireOrder on_the_wire(*row, table.numbers);
  Reply reply;
  const int32_t status = exchange(
      {table.opcode, static_cast<uint32_t>(exact != 0 ? MTS_OPERATION_GET : MTS_OPERATION_GET_NEXT),
       MTS_SAP_PLATFORM_MANAGER, row, static_cast<int32_t>(sizeof *row)},
      session, &reply);
  std::printf("%s(): ret_code is  %u \n", table.name, static_cast<unsigned>(status));
  // As much as came: the rest of the row stays what it was.
  if (status == 0 && reply.present())
    std::memcpy(row, reply.bytes().data(), std::min(sizeof *row, reply.bytes().size()));
  return status;
}

// A text of a row, which may fill its field.
template <size_t size>
void print_text(const char* label, const char (&text)[size]) {
  std::printf("%s is  %.*s \n", label, static_cast<int>(size), text);
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

uint16_t pfm_cim_convert_module_oper_state(uint32_t state) {
  switch (state) {
    case 1:
      return 0;
    case 2:
    case 4:
      return 2;
    case 3:
      return 10;
    case 5:
    case 6:
      return 8;
    default:
      return 6;
  }
}

uint16_t pfm_cim_convert_module_requested_status(uint32_t state) {
  switch (state) {
    case 1:
      return 2;
    case 2:
      return 3;
    case 3:
      return 4;
    case 4:
      return 6;
    default:
      return 5;
  }
}

uint16_t pfm_cim_convert_module_enable_state(uint32_t state) {
  return pfm_cim_convert_module_requested_status(state);
}

uint32_t pfm_cim_get_entityId_from_slotNumber(int32_t session, uint32_t slot) {
  std::printf("pfm_cim_get_entityId_from_slotNumber(): slotNumber is %u\n", slot);
  uint32_t entity = 0;
  const int32_t status = pfm_slot_num_to_entity_index(session, &entity, slot);
  std::printf(
      "pfm_cim_get_entityId_from_slotNumber(): errres is %u slot numberis %u entityId is %u \n",
      static_cast<unsigned>(status), slot, entity);
  return status == 0 ? entity : UINT32_MAX;
}

int32_t pfm_cim_entity_index_to_slot_num(int32_t session, uint32_t entity, uint32_t* slot_out) {
  if (slot_out == nullptr) return -1;
  return pfm_entity_index_to_slot_num(session, entity, slot_out);
}

int32_t pfm_cim_get_vefcModuleTable(int32_t session, uint32_t entity, int32_t exact,
                                    _vefcModuleEntry* entry) {
  return get_row(kModules, session, entity, exact, entry);
}

int32_t pfm_cim_get_entPhysicalTable(int32_t session, uint32_t entity, int32_t exact,
                                     _entPhysicalEntry* entry) {
  return get_row(kPhysicalEntities, session, entity, exact, entry);
}

void print_module_info(const _vefcModuleEntry* entry) {
  if (entry == nullptr) return;
  std::printf("\n print_module_info(): Start \n");
  std::printf("entPhysicalIndex is  %u \n", entry->entity_index);
  std::printf("Admin Status is %u, oper status is  %u\n", entry->admin_status, entry->oper_status);
  std::printf("NumPorts is %u, moduleNumber is %u \n", entry->num_ports, entry->module_number);
  std::printf("mod_state is %c, mod_type is %c \n", entry->module_state, entry->module_type);
  std::printf("\n print_module_info(): Exit \n");
}

void print_entity_info(const _entPhysicalEntry* entry) {
  if (entry == nullptr) return;
  std::printf("\n print_entity_info(): Start \n");
  print_text("entPhysicalDescr", entry->description);
  print_text("entPhysicalName", entry->name);
  print_text("entPhysicalSerialNum", entry->serial_num);
  print_text("entPhysicalAlias", entry->alias);
  print_text("entPhysicalModelName", entry->model_name);
  print_text("entPhysicalSoftwareRev", entry->software_rev);
  std::printf("\n print_entity_info(): Exit \n");
}
