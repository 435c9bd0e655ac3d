#include "tests/support/double_cmi.h"

#include <gtest/gtest.h>

#include <cerrno>

#include <switch_platform/mts.h>

#include "tests/support/double.h"

namespace test_support {
namespace {

// Scripts count their owners from 1 up, responders from here.
constexpr uint32_t kFirstResponderOwner = 0x80000000;

Responder* responder = nullptr;
uint32_t last_responder_owner = kFirstResponderOwner;

const Value kPresetToNull = Value::text("preset to null");

}  // namespace

Exchange::Exchange(uint32_t opcode, uint32_t operation) : Line("cmi_req_resp") {
  number("opcode", opcode);
  number("operation", operation);
  number("zero1", 0);
  number("zero2", 0);
  number("q", kQueue);
  number("last", 4);
  if (operation == MTS_OPERATION_SET) {
    reply_address_null();
    returns(0);
  } else {
    reply_address_given();
    call()->answer_required = true;
  }
}

Exchange& Exchange::sends(const Bytes& request) {
  if (!call()->says("length")) length(static_cast<int32_t>(request.size()));
  return bytes("request", request);
}

Exchange& Exchange::any_request() {
  if (!call()->says("length")) any("length");
  return any("request");
}

Exchange& Exchange::reply_address_given() {
  return argument("reply", kPresetToNull);
}

Exchange& Exchange::replies(const Bytes& reply) {
  return returns(0).hands_out(reply);
}

Exchange& Exchange::status_with_reply(int64_t code, const Bytes& reply) {
  return returns(code).hands_out(reply);
}

Exchange& Exchange::cut_to(size_t n) {
  answer().cut = n;
  return *this;
}

Exchange& Exchange::length_left_alone() {
  answer().length_left_alone = true;
  return *this;
}

Exchange get(uint32_t opcode) {
  return {opcode, MTS_OPERATION_GET};
}
Exchange get_next(uint32_t opcode) {
  return {opcode, MTS_OPERATION_GET_NEXT};
}
Exchange set(uint32_t opcode) {
  return {opcode, MTS_OPERATION_SET};
}

uint32_t Request::be32(size_t offset) const {
  uint32_t word = 0;
  for (size_t i = 0; i < 4; ++i) {
    size_t at = offset + i;
    word = word << 8 | (body && at < body->size() ? (*body)[at] : 0u);
  }
  return word;
}

Responder::Responder(std::function<Response(const Request&)> answer)
    : answer_(std::move(answer)), owner_(++last_responder_owner), outer_(responder) {
  responder = this;
}

Responder::~Responder() {
  HeapLedger::Pause pause;
  responder = outer_;
  for (const std::string& line : not_given_back(owner_))
    ADD_FAILURE() << "not freed: " << line;
  by_opcode_.clear();
}

size_t Responder::calls(uint32_t opcode) const {
  auto found = by_opcode_.find(opcode);
  return found == by_opcode_.end() ? 0 : found->second;
}

void Responder::fail_nth_exchange(size_t n, int32_t status, int error_number) {
  fail_in_ = n;
  failure_ = Response::failed(status, error_number);
}

Response Responder::respond(const Request& request) {
  ++calls_;
  ++by_opcode_[request.opcode];
  const auto how = exchange_failure("cmi_req_resp");
  if (how && *how != ExchangeFailure::cut_reply) {
    const Answer answer = failed_answer({}, *how);
    return Response::failed(static_cast<int32_t>(answer.result), answer.error_number);
  }
  if (fail_in_ != 0 && --fail_in_ == 0) return failure_;
  Response response = answer_(request);
  if (how && response.reply && !response.reply->empty()) response.reply->pop_back();
  return response;
}

namespace {

// Requests longer than any record of the platform are not read.
constexpr int32_t kLongestRequest = 1 << 20;

Argument request_argument(const void* request, const int32_t* length) {
  if (request == nullptr || length == nullptr || *length < 0 || *length > kLongestRequest) {
    return pointer_argument("request", request);
  }
  return bytes_argument("request", request, static_cast<size_t>(*length));
}

Argument length_argument(const int32_t* length) {
  return {"length", length == nullptr ? Value::null() : Value::number(*length)};
}

// Hands the reply over the way the transport does.
int32_t deliver(const Answer& answer, const std::string& label, void** reply, int32_t* length,
                uint32_t responder_owner) {
  void* block = nullptr;
  size_t size = 0;
  if (reply != nullptr) {
    size = answer.refused ? 0 : answer.bytes().size();
    if (responder_owner == 0) {
      block = hand_out_block(answer, label);
    } else if (size != 0) {
      block = give_out(answer.bytes(), label, responder_owner);
    }
    *reply = block;
  }
  if (length != nullptr && !answer.length_left_alone) *length = static_cast<int32_t>(size);
  return static_cast<int32_t>(answer.result);
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" int32_t cmi_req_resp(uint32_t opcode, uint32_t operation, const void* request,
                                void** reply, int32_t* length, int32_t zero1, int32_t zero2,
                                uint32_t service_sap, int32_t q, int32_t last) {
  HeapLedger::Pause pause;
  std::string label = "cmi_req_resp " + std::to_string(opcode);
  if (reply != nullptr && *reply != nullptr) double_failure(label + ": the reply is not preset");
  if (responder != nullptr && length != nullptr) {
    Request asked;
    asked.opcode = opcode;
    asked.operation = operation;
    if (request != nullptr && *length >= 0) {
      const auto* first = static_cast<const uint8_t*>(request);
      asked.body = Bytes(first, first + *length);
    }
    asked.wants_reply = reply != nullptr;
    asked.length = *length;
    asked.sap = service_sap;
    asked.q = q;
    asked.last = last;
    Responder& by = *responder;
    Response response = by.respond(asked);
    Answer answer;
    answer.result = response.status;
    answer.block = response.reply;
    answer.length_left_alone = response.length_left_alone;
    int32_t status = deliver(answer, label, reply, length, by.owner());
    if (response.error_number != 0) errno = response.error_number;
    return status;
  }
  Answer answer =
      answer_to({"cmi_req_resp",
                 {number_argument("opcode", opcode), number_argument("operation", operation),
                  request_argument(request, length), preset_argument("reply", reply),
                  length_argument(length), number_argument("zero1", zero1),
                  number_argument("zero2", zero2), number_argument("service_sap", service_sap),
                  number_argument("q", q), number_argument("last", last)}});
  return deliver(answer, label, reply, length, 0);
}
