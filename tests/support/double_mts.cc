#include "tests/support/double_mts.h"

#include <switch_platform/mts.h>

#include "tests/support/double.h"

namespace test_support {

Bind::Bind(const char* name) : Line("mts_bind") {
  kind(1);
  address(-1);
  number("mode", 1);
  number("flags", 0);
  number("limit", 1024);
  number("reserved_12", 0);
  number("reserved_16", 0);
  text("name", name);
  call()->answer_required = true;
}

Bind bind(const char* name) {
  return Bind(name);
}

Unbind::Unbind(int32_t handle) : Line("mts_unbind") {
  q(handle);
  number("flags", 0);
  call()->answer_required = true;
}

Unbind unbind(int32_t handle) {
  return Unbind(handle);
}

Receive::Receive() : Line("mts_recv") {
  q(kQueue);
  argument("msg", Value::text("preset to null"));
  number("word_0", 1);
  number("word_1", 0);
  number("word_4", 0);
  number("word_5", 0);
  call()->set_last_token("token");
  call()->answer_required = true;
}

Receive& Receive::receives(const Content& content) {
  return fails_with_message(0, content);
}

Receive& Receive::fails_with_message(int64_t result, const Content& content) {
  answer().message = content;
  return returns(result);
}

Receive receive() {
  return {};
}

Content payload(const Bytes& bytes) {
  HeapLedger::Pause pause;
  auto content = std::make_shared<MessageContent>();
  content->payload = bytes;
  return content;
}

}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t mts_bind(int32_t kind, int32_t address, const struct cim_mts_bind_opts* opts,
                 const char* name) {
  HeapLedger::Pause pause;
  if (opts == nullptr) {
    double_failure("mts_bind without options");
    return -1;
  }
  Answer answer = answer_to(
      {"mts_bind",
       {number_argument("kind", kind), number_argument("address", address),
        number_argument("mode", opts->mode), number_argument("flags", opts->flags),
        number_argument("limit", opts->limit), number_argument("reserved_12", opts->reserved_12),
        number_argument("reserved_16", opts->reserved_16), text_argument("name", name)}});
  return static_cast<int32_t>(answer.result);
}

int32_t mts_unbind(int32_t q, int32_t flags) {
  HeapLedger::Pause pause;
  Answer answer =
      answer_to({"mts_unbind", {number_argument("q", q), number_argument("flags", flags)}});
  return static_cast<int32_t>(answer.result);
}

int32_t mts_recv(int32_t q, mts_msg_t** msg, const struct cim_mts_recv_opts* opts) {
  HeapLedger::Pause pause;
  if (opts == nullptr) {
    double_failure("mts_recv without options");
    return -1;
  }
  Call call{
      "mts_recv",
      {number_argument("q", q), preset_argument("msg", reinterpret_cast<const void* const*>(msg)),
       number_argument("word_0", opts->word_0), number_argument("word_1", opts->word_1),
       number_argument("timeout_seconds", opts->timeout_seconds),
       number_argument("token", opts->token), number_argument("word_4", opts->word_4),
       number_argument("word_5", opts->word_5)}};
  Answer answer = answer_to(call);
  if (msg != nullptr) *msg = hand_out_message(answer, call, q, false);
  return static_cast<int32_t>(answer.result);
}

int32_t mts_drop(int32_t q, mts_msg_t* msg) {
  drop_message(q, msg);
  return -1;  // nobody may depend on it
}

uint32_t mts_rr_token_get(const mts_msg_t* msg) {
  HeapLedger::Pause pause;
  const mts_msg_t* live = live_message(msg, "mts_rr_token_get");
  if (live == nullptr) return 0;
  if (!live->sent) double_failure("mts_rr_token_get of a message that is no sent request");
  return live->token;
}

void* mts_payload_get(mts_msg_t* msg) {
  mts_msg_t* live = live_message(msg, "mts_payload_get");
  return live == nullptr ? nullptr : live->payload;
}

int32_t mts_payload_size(mts_msg_t* msg) {
  const mts_msg_t* live = live_message(msg, "mts_payload_size");
  return live == nullptr ? 0 : static_cast<int32_t>(live->payload_size);
}

int32_t mts_errno_get(int32_t q) {
  return transport_error(q);
}

}  // extern "C"
