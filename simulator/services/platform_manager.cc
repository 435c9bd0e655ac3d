// The platform manager: the modules of the local switch (opcode 1029) and the physical entities of
// its chassis (opcode 1026), row by row; slots, the serial PROM and the chassis's name for client
// functions. A row begins with its entity index, which is the key.
#include <algorithm>

#include "simulator/fabric/hardware.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"
#include "simulator/transport/hardware_messages.h"

namespace switch_sim::services {
namespace {

constexpr size_t kModuleRow = 316;
constexpr size_t kEntityRow = 2780;
constexpr size_t kVendorTypeWords = 128;

// Slots are printed from 1 on, which is a module's number; the platform counts them from 0.
constexpr uint32_t kFirstSlot = 1;

// The PROM of the chassis, as against those of its parts.
constexpr uint32_t kChassisProm = 2;

struct ModuleStatus {
  uint32_t admin;  // 1 enabled, 2 disabled
  uint32_t oper;   // 2 ok, 3 disabled, 5 booting, 7 failed
  char letter;
};

ModuleStatus status_of(ModuleState state) {
  switch (state) {
    case ModuleState::ok:
      return {1, 2, 'o'};
    case ModuleState::powered_down:
      return {2, 3, 'd'};
    case ModuleState::starting:
      return {1, 5, 's'};
    case ModuleState::failed:
      break;
  }
  return {1, 7, 'f'};
}

char letter_of(ModuleKind kind) {
  switch (kind) {
    case ModuleKind::supervisor:
      return 's';
    case ModuleKind::fibre_channel:
      return 'f';
    case ModuleKind::ip_storage:
      return 'i';
    case ModuleKind::crossbar:
      return 'x';
    case ModuleKind::services:
      break;
  }
  return 'a';
}

Outcome module_row(const Module& module) {
  const ModuleStatus status = status_of(module.state);
  ReplyWriter writer(kModuleRow);
  writer.be32(0, entity_of_module(module.slot))
      .be32(4, status.admin)
      .be32(8, status.oper)
      .be32(288, module.ports)
      .u8(297, static_cast<uint8_t>(status.letter))
      .u8(298, static_cast<uint8_t>(letter_of(module.kind)))
      .be32(304, module.slot);
  return reply(std::move(writer).take());
}

// The vendor type is the object identifier of the system with the class of the entity behind it.
// Words at 772: container, class, position; at 2428: 1 for what can be replaced, else 2.
Outcome entity_row(const Switch& element, const Entity& entity) {
  ReplyWriter writer(kEntityRow);
  writer.be32(0, entity.index).text(4, 256, entity.description);
  const auto& system = element.system.object_id;
  const size_t words = std::min(system.size(), kVendorTypeWords - 1);
  for (size_t i = 0; i < words; ++i)
    writer.be32(260 + 4 * i, system[i]);
  const auto entity_class = static_cast<uint32_t>(entity.entity_class);
  if (words != 0) writer.be32(260 + 4 * words, entity_class);
  writer.be32(772, entity.container)
      .be32(776, entity_class)
      .be32(780, entity.position)
      .text(788, 255, entity.name)
      .text(1553, 255, entity.software_version)
      .text(1808, 33, entity.serial_number)
      .text(2096, 255, entity.model_name)
      .be32(2428, entity.replaceable ? 1 : 2);
  return reply(std::move(writer).take());
}

const Module* next_module(const Switch& element, uint32_t after) {
  const auto found =
      std::find_if(element.modules.begin(), element.modules.end(),
                   [after](const Module& module) { return entity_of_module(module.slot) > after; });
  return found != element.modules.end() ? &*found : nullptr;
}

std::optional<Entity> next_entity(const Switch& element, uint32_t after) {
  const auto indexes = entity_indexes(element);
  const auto found = std::upper_bound(indexes.begin(), indexes.end(), after);
  return found != indexes.end() ? find_entity(element, *found) : std::nullopt;
}

// The words of a request of a client function.
bool has_words(const Request& request, size_t count) {
  return request.body.size() == 4 * count;
}

Outcome word(uint32_t value) {
  ReplyWriter writer(4);
  writer.be32(0, value);
  return reply(std::move(writer).take());
}

}  // namespace

Outcome module_table(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kModuleRow) return refuse(status::kBadLength);
  const Switch& local = local_switch(fabric);
  const uint32_t index = RequestReader(request.body).be32(0);
  switch (request.operation) {
    case kGet: {
      const Module* module = module_of_entity(local, index);
      return module != nullptr ? module_row(*module) : refuse(status::kNotFound);
    }
    case kGetNext: {
      const Module* module = next_module(local, index);
      return module != nullptr ? module_row(*module) : refuse(status::kEndOfTable);
    }
    default:
      return refuse(status::kBadOperation);
  }
}

Outcome physical_entity_table(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kEntityRow) return refuse(status::kBadLength);
  const Switch& local = local_switch(fabric);
  const uint32_t index = RequestReader(request.body).be32(0);
  switch (request.operation) {
    case kGet: {
      const auto entity = find_entity(local, index);
      return entity ? entity_row(local, *entity) : refuse(status::kNotFound);
    }
    case kGetNext: {
      const auto entity = next_entity(local, index);
      return entity ? entity_row(local, *entity) : refuse(status::kEndOfTable);
    }
    default:
      return refuse(status::kBadOperation);
  }
}

Outcome entity_of_slot(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (!has_words(request, 1)) return refuse(status::kBadLength);
  const uint32_t slot = RequestReader(request.body).be32(0);
  if (slot >= kLargestModuleSlot) return refuse(status::kNotFound);
  const Module* module = find_module(local_switch(fabric), slot + kFirstSlot);
  return module != nullptr ? word(entity_of_module(module->slot)) : refuse(status::kNotFound);
}

Outcome slot_of_entity(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (!has_words(request, 1)) return refuse(status::kBadLength);
  const uint32_t index = RequestReader(request.body).be32(0);
  const uint32_t slot = switch_sim::slot_of_entity(local_switch(fabric), index);
  return slot != 0 ? word(slot - kFirstSlot) : refuse(status::kNotFound);
}

// Three words: 0, which PROM, 0. In the PROM: the model at 14, the serial number at 54, the part
// number at 74.
Outcome serial_prom(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (!has_words(request, 3)) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  if (reader.be32(0) != 0 || reader.be32(4) != kChassisProm || reader.be32(8) != 0) {
    return refuse(status::kNotFound);
  }
  const Chassis& chassis = local_switch(fabric).chassis;
  ReplyWriter writer(kSerialPromSize);
  writer.text(14, kLongestModelName + 1, chassis.model)
      .text(54, kLongestPromText + 1, chassis.serial_number)
      .text(74, kLongestPromText + 1, chassis.part_number);
  return reply(std::move(writer).take());
}

// The reply of the client function: the text without a terminator.
Outcome chassis_id(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  const std::string& model = local_switch(fabric).chassis.model;
  Bytes bytes(model.size());
  std::transform(model.begin(), model.end(), bytes.begin(),
                 [](char character) { return static_cast<std::byte>(character); });
  return reply(std::move(bytes));
}

}  // namespace switch_sim::services
