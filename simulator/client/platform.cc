#include "simulator/client/platform.h"

#include <sys/un.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <new>

#include "simulator/local/platform_status.h"
#include "simulator/services/services.h"
#include "simulator/transport/port_messages.h"

namespace switch_sim {
namespace {

Outcome transport_failure(int error_number) {
  Outcome outcome;
  outcome.status = status::kTransportFailure;
  outcome.error_number = error_number;
  return outcome;
}

std::string environment(const char* name) {
  const char* value = getenv(name);
  return value != nullptr ? value : "";
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
void Platform::read_environment() {
  if (auto problem = problem_with_environment()) {
    startup_problem_ = std::move(*problem);
    fprintf(stderr, "switch simulator: %s; every request is refused\n", startup_problem_.c_str());
  }
}

std::optional<std::string> Platform::problem_with_environment() {
  const std::string trace = environment("SWITCH_SIM_TRACE");
  if (!trace.empty() && !log_.write_to(trace.c_str())) {
    return "SWITCH_SIM_TRACE: " + trace + ": " + strerror(errno);
  }
  // Fabric and state are then the serving process's.
  const std::string socket = environment("SWITCH_SIM_SOCKET");
  if (!socket.empty()) {
    auto problem = use_switch_at(socket);
    if (problem) problem->insert(0, "SWITCH_SIM_SOCKET: ");
    return problem;
  }
  const std::string file = environment("SWITCH_SIM_FABRIC");
  if (!file.empty()) {
    auto read = read_fabric_file(file);
    if (const auto* error = std::get_if<FabricError>(&read)) {
      return "SWITCH_SIM_FABRIC: " + error->message;
    }
    fabric_ = std::get<Fabric>(std::move(read));
  }
  if (const auto error = keep_state_in(environment("SWITCH_SIM_STATE"))) {
    return "SWITCH_SIM_STATE: " + error->message;
  }
  return std::nullopt;
}

void Platform::install(Fabric fabric) {
  fabric_ = std::move(fabric);
  state_.differs();
  startup_problem_.clear();
  connection_.reset();
}

std::optional<FabricError> Platform::keep_state_in(const std::string& path) {
  auto opened = StateStore::open(path);
  if (auto* error = std::get_if<FabricError>(&opened)) return std::move(*error);
  auto& [store, fabric] = std::get<StateStore::Opened>(opened);
  if (fabric) install(std::move(*fabric));
  if (!path.empty()) connection_.reset();
  state_ = std::move(store);
  return std::nullopt;
}

// Connects later: the switch may start after its clients. The path is made absolute now, since a
// program that becomes a daemon changes its folder.
std::optional<std::string> Platform::use_switch_at(const std::string& path) {
  if (path.empty()) {
    connection_.reset();
    return std::nullopt;
  }
  std::error_code error;
  const std::string absolute = std::filesystem::absolute(path, error).string();
  if (error) return path + ": " + error.message();
  if (absolute.size() >= sizeof(sockaddr_un::sun_path)) {
    return absolute + ": the name of a socket has at most 107 bytes";
  }
  connection_ = std::make_unique<SwitchConnection>(absolute);
  return std::nullopt;
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
  if (connection_) return connection_->exchange(request, clock_);
  return request.operation == kSet ? change(request) : answer(request, fabric_, time_of(request));
}

VirtualTime Platform::time_of(const Request& request) const {
  const bool of_counters =
      request.service == Service::port_manager && request.opcode == kPortCounters;
  return of_counters ? counters_frozen_at_.value_or(clock_.now()) : clock_.now();
}

void Platform::freeze_counters(bool on) {
  if (!on) {
    counters_frozen_at_.reset();
  } else if (!counters_frozen_at_) {
    counters_frozen_at_ = clock_.now();
  }
}

// A change counts only once it is saved. It is made on what the state file holds at that moment,
// which may be more than this process has put there.
Outcome Platform::change(const Request& request) {
  constexpr int kMostTries = 1000;  // each of them because another process was faster
  std::optional<FabricError> error;
  for (int i = 0; i < kMostTries; ++i) {
    error = catch_up();
    if (error) break;
    Fabric changed = fabric_;
    Outcome outcome = answer(request, changed, clock_.now());
    if (outcome.status != status::kOk || changed == fabric_) return outcome;
    error = state_.save(request, changed);
    if (!error) {
      fabric_ = std::move(changed);
      return outcome;
    }
    if (!state_.is_behind()) break;
  }
  tell("a change was not saved: " + error->message);
  return services::refuse(status::kStateNotSaved);
}

std::optional<FabricError> Platform::catch_up() {
  if (!state_.is_behind()) return std::nullopt;
  if (state_.has_differed()) {
    return FabricError{state_.path() +
                       ": another process has changed it, and this one has another fabric"};
  }
  auto opened = StateStore::open(state_.path());
  if (auto* error = std::get_if<FabricError>(&opened)) return std::move(*error);
  auto& [store, fabric] = std::get<StateStore::Opened>(opened);
  if (fabric) fabric_ = std::move(*fabric);
  state_ = std::move(store);
  return std::nullopt;
}

void Platform::tell(const std::string& problem) const {
  if (listener_) {
    listener_(problem);
  } else {
    fprintf(stderr, "switch simulator: %s\n", problem.c_str());
  }
}

TimedOutcome Platform::serve(const TimedRequest& timed) {
  clock_.advance_to(timed.now);
  const Token token = next_token_++;
  log_.sent(token, timed.request, clock_.now());
  Outcome logged = handle(timed.request);
  TimedOutcome answer{clock_.now(), logged};
  logged.token = token;
  logged.due += clock_.now();
  log_.taken(logged);
  return answer;
}

int32_t Platform::bind() {
  const int32_t q = next_queue_++;
  Queue& queue = queues_[q];
  queue.synchronous = open_carrier();
  queue.asynchronous = open_carrier();
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
