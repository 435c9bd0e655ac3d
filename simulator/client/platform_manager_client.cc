// The platform manager's client functions: slots, the serial PROM and the chassis's name.
#include <switch_platform/platform_manager.h>

#include <cstring>

#include "simulator/client/payload_reader.h"
#include "simulator/client/payload_writer.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"
#include "simulator/transport/hardware_messages.h"

using switch_sim::append_be32;
using switch_sim::be32_at;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Outcome;
using switch_sim::Platform;
using switch_sim::Service;
namespace status = switch_sim::status;

namespace {

Outcome ask(Platform& platform, int32_t q, uint32_t opcode, Bytes body) {
  auto outcome =
      platform.exchange(q, {Service::platform_manager, opcode, switch_sim::kGet, std::move(body)});
  if (outcome.error_number != 0) errno = outcome.error_number;
  return outcome;
}

// Asks with one number for another.
int32_t translate(int32_t q, uint32_t opcode, uint32_t number, uint32_t* result) {
  if (result == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body;
    append_be32(body, number);
    const Outcome outcome = ask(platform, q, opcode, std::move(body));
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->size() < sizeof *result) return status::kBadLength;
    *result = be32_at(*outcome.reply, 0);
    return status::kOk;
  });
}

}  // namespace

int32_t pfm_slot_num_to_entity_index(int32_t q, uint32_t* entity, uint32_t slot) {
  return translate(q, switch_sim::kEntityOfSlot, slot, entity);
}

int32_t pfm_entity_index_to_slot_num(int32_t q, uint32_t entity, uint32_t* slot) {
  return translate(q, switch_sim::kSlotOfEntity, entity, slot);
}

// Which PROM: a, b and c are 0, 2 and 0 for that of the chassis. It is read whole.
int32_t pfm_get_sprom(int32_t q, int32_t a, int32_t b, int32_t c, void* buffer, int32_t size) {
  if (buffer == nullptr || size != static_cast<int32_t>(switch_sim::kSerialPromSize)) {
    return status::kBadLength;
  }
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body;
    for (const int32_t word : {a, b, c})
      append_be32(body, static_cast<uint32_t>(word));
    const Outcome outcome = ask(platform, q, switch_sim::kSerialProm, std::move(body));
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->size() < switch_sim::kSerialPromSize) {
      return status::kBadLength;
    }
    std::memcpy(buffer, outcome.reply->data(), switch_sim::kSerialPromSize);
    return status::kOk;
  });
}

const char* pdb_get_chassis_id_string(void) {
  return on_platform("", [](Platform& platform) {
    const Outcome outcome = platform.exchange(
        {Service::platform_manager, switch_sim::kChassisId, switch_sim::kGet, {}});
    if (outcome.status != 0 || !outcome.reply) return "";
    const auto* text = reinterpret_cast<const char*>(outcome.reply->data());
    return platform.keep_text(std::string(text, outcome.reply->size()));
  });
}
