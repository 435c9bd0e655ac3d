#include "simulator/client/platform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "simulator/local/platform_status.h"
#include "simulator/services/services.h"

namespace switch_sim {
namespace {

Outcome transport_failure(int error_number) {
  Outcome outcome;
  outcome.status = status::kTransportFailure;
  outcome.error_number = error_number;
  return outcome;
}

}  // namespace

// Never destroyed: client functions may still be called while the process ends.
Platform& Platform::instance() {
  static auto* platform = new Platform;
  return *platform;
}

Platform::Platform() {
  read_environment();
  without_queue_ = open_carrier();
}

// Told once, on standard error: a library must not end the process that loaded it.
void Platform::refuse_everything(std::string why) {
  startup_problem_ = std::move(why);
  fprintf(stderr, "switch simulator: %s; every request is refused\n", startup_problem_.c_str());
}

void Platform::read_environment() {
  const char* trace = getenv("SWITCH_SIM_TRACE");
  if (trace != nullptr && *trace != '\0' && !log_.write_to(trace)) {
    refuse_everything(std::string("SWITCH_SIM_TRACE=") + trace + ": " + strerror(errno));
  }
}

// The services, behind the faults, behind the log: the log holds what the client saw.
std::unique_ptr<Carrier> Platform::open_carrier() {
  auto services = std::make_unique<InProcessCarrier>(
      [this](const Request& request) { return handle(request); }, clock_, next_token_);
  auto faulty = std::make_unique<FaultyCarrier>(std::move(services), faults_, clock_);
  return std::make_unique<LoggingCarrier>(std::move(faulty), log_, clock_);
}

Outcome Platform::handle(const Request& request) {
  if (!startup_problem_.empty()) return services::refuse(status::kFabricNotUsable);
  if (recording_) return recording_->next_for(request);
  return answer(request, fabric_, clock_.now());
}

int32_t Platform::bind() {
  const int32_t q = next_queue_++;
  queues_.emplace(q, Queue{open_carrier(), open_carrier(), 0});
  return q;
}

bool Platform::unbind(int32_t q) {
  return queues_.erase(q) != 0;
}

int Platform::last_error(int32_t q) const {
  const auto queue = queues_.find(q);
  return queue != queues_.end() ? queue->second.last_error : EBADF;
}

void Platform::set_last_error(int32_t q, int error_number) {
  const auto queue = queues_.find(q);
  if (queue != queues_.end()) queue->second.last_error = error_number;
}

Outcome Platform::exchange(std::unique_ptr<Carrier>& carrier, const Request& request) {
  const Token token = carrier->send(request);
  if (auto outcome = carrier->take(token, clock_.now() + kSynchronousTimeout)) return *outcome;
  carrier = open_carrier();  // with the old one goes whatever arrives late
  return transport_failure(ETIME);
}

Outcome Platform::exchange(int32_t q, const Request& request) {
  const auto queue = queues_.find(q);
  if (queue == queues_.end()) return transport_failure(EBADF);
  Outcome outcome = exchange(queue->second.synchronous, request);
  queue->second.last_error = outcome.error_number;
  return outcome;
}

Outcome Platform::exchange(const Request& request) {
  return exchange(without_queue_, request);
}

mts_msg_t* Platform::send(int32_t q, const Request& request) {
  const auto queue = queues_.find(q);
  if (queue == queues_.end()) return nullptr;
  const Token token = queue->second.asynchronous->send(request);
  queue->second.last_error = 0;
  return make_message(token, 0, request.body);
}

mts_msg_t* Platform::receive(int32_t q, Token token, VirtualTime timeout) {
  const auto queue = queues_.find(q);
  if (queue == queues_.end()) return nullptr;
  auto outcome = queue->second.asynchronous->take(token != 0 ? std::optional(token) : std::nullopt,
                                                  clock_.now() + timeout);
  queue->second.last_error = outcome ? outcome->error_number : ETIME;
  if (!outcome || outcome->error_number != 0) return nullptr;
  return make_message(outcome->token, outcome->status,
                      outcome->reply ? std::move(*outcome->reply) : Bytes());
}

mts_msg_t* Platform::make_message(Token token, int32_t status, Bytes payload) {
  auto message = std::make_unique<mts_msg_t>();
  message->token = token;
  message->status = status;
  message->payload = std::move(payload);
  messages_.insert(message.get());
  return message.release();
}

bool Platform::holds(const mts_msg_t* message) const {
  return messages_.contains(message);
}

bool Platform::drop(mts_msg_t* message) {
  if (messages_.erase(message) == 0) return false;
  delete message;
  return true;
}

void* Platform::hand_out(const Bytes& bytes) {
  if (bytes.empty()) return nullptr;
  void* block = malloc(bytes.size());
  if (block == nullptr) throw std::bad_alloc();
  memcpy(block, bytes.data(), bytes.size());
  ++replies_;
  reply_bytes_ += bytes.size();
  return block;
}

HandedOut Platform::handed_out() const {
  return {replies_, reply_bytes_, static_cast<int64_t>(messages_.size()),
          static_cast<int64_t>(queues_.size())};
}

void Platform::reset_counts() {
  replies_ = 0;
  reply_bytes_ = 0;
}

}  // namespace switch_sim
