// The name server's client functions. A query is sent, its reply received with mts_recv, and then
// taken apart here; every function stays inside the reply.
#include <switch_platform/name_server.h>
#include <switch_platform/records_name_server.h>

#include <algorithm>
#include <cstring>

#include "simulator/client/payload_reader.h"
#include "simulator/client/payload_writer.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"
#include "simulator/transport/port_messages.h"

using switch_sim::be32_at;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Platform;
namespace status = switch_sim::status;

namespace {

constexpr size_t kHeaderSize = 4;
constexpr size_t kEntrySize = 4 + switch_sim::kDeviceRecordSize;

int32_t send(int32_t q, uint32_t opcode, const struct ns_query_* query, const void* value,
             size_t size, mts_msg_t** request) {
  if (request == nullptr) return status::kBadValue;
  *request = nullptr;
  if (query == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body;
    switch_sim::append_be32(body, query->vsan_index);
    switch_sim::append_be32(body, static_cast<uint32_t>(query->attributes) << 16);
    switch_sim::append_raw(body, value, size);
    *request = platform.send(q, {switch_sim::kNameServer, opcode, switch_sim::kGet, body});
    if (*request != nullptr) return status::kOk;
    errno = EBADF;
    return status::kTransportFailure;
  });
}

// A WWN comes as two words in the order of memory.
int32_t send_wwn(int32_t q, uint32_t opcode, uint32_t wwn_word0, uint32_t wwn_word1,
                 const struct ns_query_* query, mts_msg_t** request) {
  uint8_t wwn[8];
  memcpy(wwn, &wwn_word0, 4);
  memcpy(wwn + 4, &wwn_word1, 4);
  return send(q, opcode, query, wwn, sizeof wwn, request);
}

// The number of entries that the reply holds whole; nothing when it announces more.
std::optional<size_t> count_of(const Bytes& payload, size_t entry_size) {
  if (payload.size() < kHeaderSize) return std::nullopt;
  const size_t announced = be32_at(payload, 0);
  if (announced > (payload.size() - kHeaderSize) / entry_size) return std::nullopt;
  return announced;
}

// Where entry `index` of a reply starts; nothing when there is none.
std::optional<size_t> entry_at(const Platform& platform, const mts_msg_t* reply, int32_t index,
                               size_t entry_size) {
  if (!platform.holds(reply) || reply->status != 0 || index < 0) return std::nullopt;
  const auto count = count_of(reply->payload, entry_size);
  if (!count || static_cast<size_t>(index) >= *count) return std::nullopt;
  return kHeaderSize + static_cast<size_t>(index) * entry_size;
}

// The same for a reply with a cursor, which must be its own.
std::optional<size_t> entry_at_cursor(const Platform& platform, const mts_msg_t* reply,
                                      const void* cursor, int32_t index) {
  const auto offset = entry_at(platform, reply, index, kEntrySize);
  if (!offset || cursor != reply->payload.data() + kHeaderSize) return std::nullopt;
  return offset;
}

}  // namespace

int32_t ns_send_get_entry_given_portname(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                         const struct ns_query_* query, mts_msg_t** request) {
  return send_wwn(q, switch_sim::kDeviceWithPortName, wwn_word0, wwn_word1, query, request);
}

int32_t ns_send_get_entries_given_nodename(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                           const struct ns_query_* query, mts_msg_t** request) {
  return send_wwn(q, switch_sim::kDevicesWithNodeName, wwn_word0, wwn_word1, query, request);
}

int32_t ns_send_get_entries_given_fab_port_name(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                                const struct ns_query_* query,
                                                mts_msg_t** request) {
  return send_wwn(q, switch_sim::kDevicesBehindFabricPort, wwn_word0, wwn_word1, query, request);
}

int32_t ns_send_get_entries_given_port_type(int32_t q, uint32_t port_type,
                                            const struct ns_query_* query, mts_msg_t** request) {
  uint8_t type[4];
  for (size_t i = 0; i < sizeof type; ++i)
    type[i] = static_cast<uint8_t>(port_type >> (24 - 8 * i));
  return send(q, switch_sim::kDevicesOfPortType, query, type, sizeof type, request);
}

int32_t ns_parse_get_entry_status(mts_msg_t* reply, int32_t* count, void** cursor) {
  if (count != nullptr) *count = 0;
  if (cursor != nullptr) *cursor = nullptr;
  if (count == nullptr || cursor == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    if (!platform.holds(reply)) return status::kTransportFailure;
    if (reply->status != 0) return reply->status;
    const auto entries = count_of(reply->payload, kEntrySize);
    if (!entries) return status::kBadLength;
    *count = static_cast<int32_t>(*entries);
    *cursor = reply->payload.data() + kHeaderSize;
    return status::kOk;
  });
}

int32_t ns_parse_get_entry(mts_msg_t* reply, void* cursor, void* slot, int32_t index) {
  if (slot == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    const auto offset = entry_at_cursor(platform, reply, cursor, index);
    if (!offset) return status::kEndOfTable;
    const auto first = reply->payload.begin() + static_cast<std::ptrdiff_t>(*offset + 4);
    Bytes record(first, first + switch_sim::kDeviceRecordSize);
    switch_sim::to_host(record, 4, 4);
    switch_sim::to_host(record, 196, 4);
    memcpy(slot, record.data(), record.size());
    return status::kOk;
  });
}

int32_t ns_parse_get_ct_error(mts_msg_t* reply, int32_t* error, int32_t* expln) {
  if (error != nullptr) *error = 0;
  if (expln != nullptr) *expln = 0;
  if (error == nullptr || expln == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    if (!platform.holds(reply)) return status::kTransportFailure;
    if (reply->status != status::kQueryRejected || reply->payload.size() < 8) {
      return status::kNotFound;
    }
    *error = static_cast<int32_t>(be32_at(reply->payload, 0));
    *expln = static_cast<int32_t>(be32_at(reply->payload, 4));
    return status::kQueryRejected;
  });
}

int32_t ns_parse_is_entry_duplicate(mts_msg_t* reply, void* cursor, int32_t index,
                                    uint8_t* duplicate) {
  if (duplicate == nullptr) return status::kBadValue;
  *duplicate = 0;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    const auto offset = entry_at_cursor(platform, reply, cursor, index);
    if (!offset) return status::kEndOfTable;
    *duplicate = be32_at(reply->payload, *offset) != 0 ? 1 : 0;
    return status::kOk;
  });
}

int32_t ns_get_fc4_devices(int32_t q, uint32_t vsan, uint32_t fc4_type, const uint8_t wwn[8],
                           mts_msg_t** reply) {
  if (reply == nullptr) return status::kBadValue;
  *reply = nullptr;
  if (wwn == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body;
    switch_sim::append_be32(body, vsan);
    switch_sim::append_be32(body, fc4_type);
    switch_sim::append_raw(body, wwn, 8);
    auto outcome = platform.exchange(
        q, {switch_sim::kNameServer, switch_sim::kFc4Devices, switch_sim::kGet, std::move(body)});
    if (outcome.error_number != 0) errno = outcome.error_number;
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply) return status::kTransportFailure;
    *reply = platform.make_message(outcome.token, 0, std::move(*outcome.reply));
    return status::kOk;
  });
}

int32_t ns_parse_get_num_fc4_devices(mts_msg_t* reply) {
  return on_platform(0, [&](Platform& platform) {
    if (!platform.holds(reply)) return 0;
    const auto count = count_of(reply->payload, switch_sim::kFc4DeviceSize);
    return static_cast<int32_t>(count.value_or(0));
  });
}

int32_t ns_parse_get_fc4_device_entry(mts_msg_t* reply, void* slot, int32_t index) {
  if (slot == nullptr) return status::kBadValue;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    const auto offset = entry_at(platform, reply, index, switch_sim::kFc4DeviceSize);
    if (!offset) return status::kEndOfTable;
    memcpy(slot, reply->payload.data() + *offset, switch_sim::kFc4DeviceSize);
    return status::kOk;
  });
}
