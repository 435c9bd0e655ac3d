#include <switch_platform/fabric_distribution.h>

#include <algorithm>
#include <cstring>
#include <optional>

#include "tests/support/double.h"
#include "tests/support/double_fabric.h"

namespace test_support {
namespace {

constexpr size_t kRequestSize = 28;
constexpr size_t kAttributeSize = 64;

// The answers of one iterator. Each has a vector of its own size, so that reading past an answer
// shows.
struct Iterator : MessageContent {
  std::vector<std::optional<Bytes>> answers;
  size_t next = 0;
};

}  // namespace

struct PeerReply::Reply : MessageContent {
  std::vector<std::optional<Bytes>> answers;
  std::optional<int32_t> count;
  int32_t attribute_result = 0;
  int32_t parse_result = 0;
  bool iterator_despite_failure = true;
  bool iterator_on_success = true;
};

PeerDiscovery::PeerDiscovery(const Bytes& request) : SendingLine("kfs_discover_peers") {
  q(kQueue);
  bytes("request", request);
  number("two", 2);
  text("message", "preset to null");
  call()->answer_required = true;
}

PeerDiscovery discover_peers(const Bytes& request) {
  return PeerDiscovery(request);
}

PeerReply::PeerReply() {
  HeapLedger::Pause pause;
  reply_ = std::make_shared<Reply>();
  reply_->payload = hex("70 65 65 72 73");  // not to be read: the functions read it
}

PeerReply& PeerReply::answer(const Bytes& answer) {
  HeapLedger::Pause pause;
  reply_->answers.emplace_back(answer);
  return *this;
}

PeerReply& PeerReply::answer(const Bytes& wwn, uint32_t family, const Bytes& address) {
  HeapLedger::Pause pause;
  return answer(Record(60).put(4, wwn).be32(40, family).put(44, address));
}

PeerReply& PeerReply::no_answer() {
  HeapLedger::Pause pause;
  reply_->answers.emplace_back();
  return *this;
}

PeerReply& PeerReply::count(int32_t n) {
  reply_->count = n;
  return *this;
}

PeerReply& PeerReply::attributes_fail(int32_t result) {
  reply_->attribute_result = result;
  return *this;
}

PeerReply& PeerReply::parse_fails(int32_t code) {
  reply_->parse_result = code;
  return *this;
}

PeerReply& PeerReply::parse_fails_without_iterator(int32_t code) {
  reply_->iterator_despite_failure = false;
  return parse_fails(code);
}

PeerReply& PeerReply::no_iterator() {
  reply_->iterator_on_success = false;
  return *this;
}

PeerReply::operator Content() const {
  return reply_;
}

PeerReply peers() {
  return {};
}

namespace {

// The reply whose payload this is; null, after a failure, when it is none.
PeerReply::Reply* reply_of(const void* payload, int32_t size, const char* function) {
  mts_msg_* message = message_with_payload(payload);
  auto* reply =
      message == nullptr ? nullptr : dynamic_cast<PeerReply::Reply*>(message->content.get());
  if (reply == nullptr) {
    double_failure(std::string(function) + " of what is no payload of a discovery");
  } else if (static_cast<size_t>(size) != message->payload_size) {
    double_failure(std::string(function) + " with size " + std::to_string(size) +
                   " of a payload of " + std::to_string(message->payload_size));
  }
  return reply;
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t kfs_discover_peers(int32_t q, const void* request, int32_t two, mts_msg_t** message) {
  HeapLedger::Pause pause;
  Call call{"kfs_discover_peers",
            {number_argument("q", q), bytes_argument("request", request, kRequestSize),
             number_argument("two", two),
             preset_argument("message", reinterpret_cast<const void* const*>(message))}};
  Answer answer = answer_to(call);
  if (message != nullptr) *message = hand_out_message(answer, call, q, true);
  return static_cast<int32_t>(answer.result);
}

int32_t kfs_get_response_attr(const void* payload, int32_t size, void* attr) {
  HeapLedger::Pause pause;
  PeerReply::Reply* reply = reply_of(payload, size, "kfs_get_response_attr");
  if (reply == nullptr) return -1;
  memset(attr, 0xa5, kAttributeSize);  // all that the service may write
  return reply->attribute_result;
}

int32_t kfs_iter_parse_response(const void* payload, int32_t size, int32_t* count, void** iter) {
  HeapLedger::Pause pause;
  PeerReply::Reply* reply = reply_of(payload, size, "kfs_iter_parse_response");
  if (reply == nullptr) return -1;
  if (reply->parse_result != 0 && !reply->iterator_despite_failure) return reply->parse_result;
  *count = reply->count.value_or(static_cast<int32_t>(reply->answers.size()));
  if (reply->parse_result == 0 && !reply->iterator_on_success) return 0;
  auto answers = std::make_shared<Iterator>();
  answers->answers = reply->answers;
  *iter = make_handle("the iterator of kfs_iter_parse_response", answers);
  return reply->parse_result;
}

void* kfs_iter_get_next_response(void* iter) {
  HeapLedger::Pause pause;
  auto* answers = static_cast<Iterator*>(live_handle(iter, "kfs_iter_get_next_response"));
  if (answers == nullptr || answers->next >= answers->answers.size()) return nullptr;
  std::optional<Bytes>& answer = answers->answers[answers->next++];
  return answer ? answer->data() : nullptr;
}

void kfs_iter_destroy(void* iter) {
  if (iter != nullptr) destroy_handle(iter, "kfs_iter_destroy");
}

const char* kfs_rcode2str(int32_t code) {
  return scripted_text("kfs_rcode2str", code, "distribution error");
}

}  // extern "C"
