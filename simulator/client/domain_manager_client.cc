// The domain manager's client functions: the domain IDs of the local switch.
#include <switch_platform/domain_manager.h>

#include <algorithm>

#include "simulator/client/payload_reader.h"
#include "simulator/client/platform.h"

using switch_sim::be32_at;
using switch_sim::on_platform;
using switch_sim::Platform;

namespace {

constexpr size_t kHeaderSize = 4;
constexpr size_t kEntrySize = 8;

// Never more than the message holds.
size_t number_of_entries(const switch_sim::Bytes& payload) {
  if (payload.size() < kHeaderSize) return 0;
  return std::min<size_t>(be32_at(payload, 0), (payload.size() - kHeaderSize) / kEntrySize);
}

// Where entry i starts; nothing when the message is not one of ours or has no such entry.
std::optional<size_t> entry_offset(const Platform& platform, const mts_msg_t* message, int32_t i) {
  if (!platform.holds(message) || i < 0) return std::nullopt;
  const auto index = static_cast<size_t>(i);
  if (index >= number_of_entries(message->payload)) return std::nullopt;
  return kHeaderSize + index * kEntrySize;
}

}  // namespace

int32_t dm_get_dom_ids_in_sw(int32_t q, int32_t /*zero*/, mts_msg_t** message) {
  if (message == nullptr) return -1;
  *message = nullptr;
  return on_platform(-1, [&](Platform& platform) {
    auto outcome = platform.exchange(
        q,
        {switch_sim::Service::domain_manager, switch_sim::kLocalDomainIds, switch_sim::kGet, {}});
    if (outcome.error_number != 0) errno = outcome.error_number;
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply) return -1;
    *message = platform.make_message(outcome.token, 0, std::move(*outcome.reply));
    return 0;
  });
}

int32_t dm_parse_get_num_entries(const mts_msg_t* message) {
  return on_platform(0, [&](Platform& platform) {
    return platform.holds(message) ? static_cast<int32_t>(number_of_entries(message->payload)) : 0;
  });
}

uint32_t dm_parse_get_vsan_index_in_vsan(const mts_msg_t* message, int32_t i) {
  return on_platform(0U, [&](Platform& platform) {
    const auto offset = entry_offset(platform, message, i);
    return offset ? be32_at(message->payload, *offset) : 0U;
  });
}

uint8_t dm_parse_get_dom_id_in_vsan(const mts_msg_t* message, int32_t i) {
  return on_platform(uint8_t{0}, [&](Platform& platform) {
    const auto offset = entry_offset(platform, message, i);
    return offset ? std::to_integer<uint8_t>(message->payload[*offset + 4]) : uint8_t{0};
  });
}
