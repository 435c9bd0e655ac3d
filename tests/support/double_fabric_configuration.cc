#include <switch_platform/fabric_configuration.h>

#include <optional>

#include "tests/support/double.h"
#include "tests/support/double_fabric.h"

namespace test_support {

struct AddressListReply::Reply : MessageContent {
  std::vector<Bytes> entries;
  std::optional<int32_t> count;
  int32_t status = 1;
  int32_t parse_result = 0;
  bool list_despite_failure = false;
};

AddressListQuery::AddressListQuery() : SendingLine("fcs_send_get_inet_addr") {
  q(kQueue);
  number("one", 1);
  text("request", "preset to null");
  call()->answer_required = true;
}

AddressListQuery& AddressListQuery::sent_without_message() {
  answer().count = 0;
  return returns(0);
}

AddressListQuery query_switch_addresses() {
  return {};
}

AddressListReply::AddressListReply() {
  HeapLedger::Pause pause;
  reply_ = std::make_shared<Reply>();
}

AddressListReply& AddressListReply::entry(uint8_t domain, const char* name) {
  HeapLedger::Pause pause;
  return entry(Record(396).byte(360, domain).text(364, name));
}

AddressListReply& AddressListReply::entry(const Bytes& entry) {
  HeapLedger::Pause pause;
  reply_->entries.push_back(entry);
  return *this;
}

AddressListReply& AddressListReply::status(int32_t status) {
  reply_->status = status;
  return *this;
}

AddressListReply& AddressListReply::count(int32_t n) {
  reply_->count = n;
  return *this;
}

AddressListReply& AddressListReply::parse_fails(int32_t result) {
  reply_->parse_result = result;
  return *this;
}

AddressListReply& AddressListReply::parse_fails_with_list(int32_t result) {
  reply_->list_despite_failure = true;
  return parse_fails(result);
}

AddressListReply::operator Content() const {
  return reply_;
}

AddressListReply switch_addresses() {
  return {};
}

}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t fcs_send_get_inet_addr(int32_t q, int32_t one, mts_msg_t** request) {
  HeapLedger::Pause pause;
  Call call{"fcs_send_get_inet_addr",
            {number_argument("q", q), number_argument("one", one),
             preset_argument("request", reinterpret_cast<const void* const*>(request))}};
  Answer answer = answer_to(call);
  const bool handed_out = answer.count.value_or(1) != 0;
  if (request != nullptr && handed_out) *request = hand_out_message(answer, call, q, true);
  return static_cast<int32_t>(answer.result);
}

int32_t fcs_parse_get_inet_addr(mts_msg_t* message, int32_t* status, int32_t* count, void** list) {
  HeapLedger::Pause pause;
  const char* function = "fcs_parse_get_inet_addr";
  auto* reply = content_of<AddressListReply::Reply>(message, function);
  if (reply == nullptr) return -1;
  if (*list != nullptr) double_failure(std::string(function) + ": the list is not preset to null");
  if (reply->parse_result != 0 && !reply->list_despite_failure) return reply->parse_result;
  Answer answer;
  answer.block = Bytes();
  for (const Bytes& entry : reply->entries) {
    answer.block->insert(answer.block->end(), entry.begin(), entry.end());
  }
  *status = reply->status;
  *count = reply->count.value_or(static_cast<int32_t>(reply->entries.size()));
  *list = hand_out_block(answer, function);
  return reply->parse_result;
}

}  // extern "C"
