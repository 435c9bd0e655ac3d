#include "tests/support/double_name_server.h"

#include <switch_platform/name_server.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <set>

#include "tests/support/double.h"

namespace test_support {
namespace {

constexpr size_t kEntrySize = 768;
constexpr size_t kDeviceSize = 24;
constexpr size_t kQuerySize = 16;
constexpr size_t kWwnSize = 8;

struct Fc4Reply : MessageContent {
  std::vector<Bytes> devices;
  int32_t count = 0;
};

Bytes padded(Bytes bytes, size_t size) {
  bytes.resize(size);
  return bytes;
}

}  // namespace

struct NameServerReply::Reply : MessageContent {
  std::vector<Bytes> entries;
  std::optional<int32_t> count;
  int32_t status = 0;
  std::optional<std::pair<int32_t, int32_t>> ct_error;
  std::map<int32_t, int32_t> failing_entries;
  std::set<int32_t> duplicates;
  std::map<int32_t, int32_t> failing_duplicates;
};

NameServerQuery::NameServerQuery(const char* function, uint32_t word0, uint32_t word1)
    : SendingLine(function) {
  q(kQueue);
  number("wwn_word0", word0);
  number("wwn_word1", word1);
  text("request", "preset to null");
  call()->answer_required = true;
}

NameServerQuery::NameServerQuery(const char* function, uint32_t port_type) : SendingLine(function) {
  q(kQueue);
  number("port_type", port_type);
  text("request", "preset to null");
  call()->answer_required = true;
}

NameServerQuery query_port_name(uint32_t word0, uint32_t word1) {
  return {"ns_send_get_entry_given_portname", word0, word1};
}

NameServerQuery query_node_name(uint32_t word0, uint32_t word1) {
  return {"ns_send_get_entries_given_nodename", word0, word1};
}

NameServerQuery query_fabric_port_name(uint32_t word0, uint32_t word1) {
  return {"ns_send_get_entries_given_fab_port_name", word0, word1};
}

NameServerQuery query_port_type(uint32_t port_type) {
  return {"ns_send_get_entries_given_port_type", port_type};
}

NameServerReply::NameServerReply() {
  HeapLedger::Pause pause;
  reply_ = std::make_shared<Reply>();
  reply_->payload = zeros(16);  // something for the cursor to point to
}

NameServerReply& NameServerReply::entry(const Bytes& entry) {
  HeapLedger::Pause pause;
  reply_->entries.push_back(padded(entry, kEntrySize));
  return *this;
}

NameServerReply& NameServerReply::count(int32_t n) {
  reply_->count = n;
  return *this;
}

NameServerReply& NameServerReply::status(int32_t result) {
  reply_->status = result;
  return *this;
}

NameServerReply& NameServerReply::ct_error(int32_t error, int32_t explanation) {
  reply_->ct_error = {error, explanation};
  return *this;
}

NameServerReply& NameServerReply::entry_fails(int32_t index, int32_t result) {
  HeapLedger::Pause pause;
  reply_->failing_entries[index] = result;
  return *this;
}

NameServerReply& NameServerReply::duplicate(int32_t index) {
  HeapLedger::Pause pause;
  reply_->duplicates.insert(index);
  return *this;
}

NameServerReply& NameServerReply::duplicate_fails(int32_t index, int32_t result) {
  HeapLedger::Pause pause;
  reply_->failing_duplicates[index] = result;
  return *this;
}

NameServerReply::operator Content() const {
  return reply_;
}

NameServerReply name_server_reply() {
  return {};
}

Fc4Query::Fc4Query(uint32_t vsan, const Bytes& wwn) : Line("ns_get_fc4_devices") {
  q(kQueue);
  number("vsan", vsan);
  fc4_type(8);
  bytes("wwn", wwn);
  text("reply", "preset to null");
  call()->answer_required = true;
}

Fc4Query query_fc4_devices(uint32_t vsan, const Bytes& wwn) {
  return {vsan, wwn};
}

Content fc4_devices(const std::vector<Bytes>& devices) {
  return fc4_devices(devices, static_cast<int32_t>(devices.size()));
}

Content fc4_devices(const std::vector<Bytes>& devices, int32_t count) {
  HeapLedger::Pause pause;
  auto reply = std::make_shared<Fc4Reply>();
  for (const Bytes& device : devices)
    reply->devices.push_back(padded(device, kDeviceSize));
  reply->count = count;
  return reply;
}

namespace {

using Reply = NameServerReply::Reply;

int32_t send(Call call, const ns_query_* query, int32_t q, mts_msg_t** request) {
  call.arguments.push_back(bytes_argument("query", query, kQuerySize));
  call.arguments.push_back(
      preset_argument("request", reinterpret_cast<const void* const*>(request)));
  Answer answer = answer_to(call);
  if (request != nullptr) *request = hand_out_message(answer, call, q, true);
  return static_cast<int32_t>(answer.result);
}

int32_t send_by_wwn(const char* function, int32_t q, uint32_t word0, uint32_t word1,
                    const ns_query_* query, mts_msg_t** request) {
  HeapLedger::Pause pause;
  return send({function,
               {number_argument("q", q), number_argument("wwn_word0", word0),
                number_argument("wwn_word1", word1)}},
              query, q, request);
}

// The reply, when the cursor is the one that ns_parse_get_entry_status gave for it.
Reply* reply_at(mts_msg_t* message, const void* cursor, const char* function) {
  auto* reply = content_of<Reply>(message, function);
  if (reply == nullptr || cursor == message->payload) return reply;
  double_failure(std::string(function) + " with a cursor of another message");
  return nullptr;
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t ns_send_get_entry_given_portname(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                         const struct ns_query_* query, mts_msg_t** request) {
  return send_by_wwn("ns_send_get_entry_given_portname", q, wwn_word0, wwn_word1, query, request);
}

int32_t ns_send_get_entries_given_nodename(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                           const struct ns_query_* query, mts_msg_t** request) {
  return send_by_wwn("ns_send_get_entries_given_nodename", q, wwn_word0, wwn_word1, query, request);
}

int32_t ns_send_get_entries_given_fab_port_name(int32_t q, uint32_t wwn_word0, uint32_t wwn_word1,
                                                const struct ns_query_* query,
                                                mts_msg_t** request) {
  return send_by_wwn("ns_send_get_entries_given_fab_port_name", q, wwn_word0, wwn_word1, query,
                     request);
}

int32_t ns_send_get_entries_given_port_type(int32_t q, uint32_t port_type,
                                            const struct ns_query_* query, mts_msg_t** request) {
  HeapLedger::Pause pause;
  return send({"ns_send_get_entries_given_port_type",
               {number_argument("q", q), number_argument("port_type", port_type)}},
              query, q, request);
}

int32_t ns_parse_get_entry_status(mts_msg_t* message, int32_t* count, void** cursor) {
  HeapLedger::Pause pause;
  auto* reply = content_of<Reply>(message, "ns_parse_get_entry_status");
  if (reply == nullptr) return -1;
  if (reply->status != 0) return reply->status;
  *count = reply->count.value_or(static_cast<int32_t>(reply->entries.size()));
  *cursor = message->payload;
  return 0;
}

int32_t ns_parse_get_entry(mts_msg_t* message, void* cursor, void* slot, int32_t index) {
  HeapLedger::Pause pause;
  Reply* reply = reply_at(message, cursor, "ns_parse_get_entry");
  if (reply == nullptr) return -1;
  auto failing = reply->failing_entries.find(index);
  if (failing != reply->failing_entries.end()) return failing->second;
  if (index < 0 || static_cast<size_t>(index) >= reply->entries.size()) return 1;
  memcpy(slot, reply->entries[static_cast<size_t>(index)].data(), kEntrySize);
  return 0;
}

int32_t ns_parse_get_ct_error(mts_msg_t* message, int32_t* error, int32_t* expln) {
  HeapLedger::Pause pause;
  auto* reply = content_of<Reply>(message, "ns_parse_get_ct_error");
  if (reply == nullptr || !reply->ct_error) return 0;
  *error = reply->ct_error->first;
  *expln = reply->ct_error->second;
  return kNameServerRejects;
}

int32_t ns_parse_is_entry_duplicate(mts_msg_t* message, void* cursor, int32_t index,
                                    uint8_t* duplicate) {
  HeapLedger::Pause pause;
  Reply* reply = reply_at(message, cursor, "ns_parse_is_entry_duplicate");
  if (reply == nullptr) return -1;
  auto failing = reply->failing_duplicates.find(index);
  if (failing != reply->failing_duplicates.end()) return failing->second;
  *duplicate = reply->duplicates.contains(index) ? 1 : 0;
  return 0;
}

int32_t ns_get_fc4_devices(int32_t q, uint32_t vsan, uint32_t fc4_type, const uint8_t wwn[8],
                           mts_msg_t** reply) {
  HeapLedger::Pause pause;
  Call call{"ns_get_fc4_devices",
            {number_argument("q", q), number_argument("vsan", vsan),
             number_argument("fc4_type", fc4_type), bytes_argument("wwn", wwn, kWwnSize),
             preset_argument("reply", reinterpret_cast<const void* const*>(reply))}};
  Answer answer = answer_to(call);
  if (reply != nullptr) *reply = hand_out_message(answer, call, q, false);
  return static_cast<int32_t>(answer.result);
}

int32_t ns_parse_get_num_fc4_devices(mts_msg_t* message) {
  HeapLedger::Pause pause;
  auto* reply = content_of<Fc4Reply>(message, "ns_parse_get_num_fc4_devices");
  return reply == nullptr ? 0 : reply->count;
}

int32_t ns_parse_get_fc4_device_entry(mts_msg_t* message, void* slot, int32_t index) {
  HeapLedger::Pause pause;
  auto* reply = content_of<Fc4Reply>(message, "ns_parse_get_fc4_device_entry");
  if (reply == nullptr || index < 0 || static_cast<size_t>(index) >= reply->devices.size()) {
    return -1;
  }
  memcpy(slot, reply->devices[static_cast<size_t>(index)].data(), kDeviceSize);
  return 0;
}

}  // extern "C"
