// Faults on purpose: requests that a plan names get another outcome than the services gave.
#ifndef SIMULATOR_TRANSPORT_FAULTS_H
#define SIMULATOR_TRANSPORT_FAULTS_H

#include <memory>
#include <unordered_map>

#include "simulator/transport/in_process_carrier.h"
#include "simulator/transport/message.h"

namespace switch_sim {

struct Fault {
  enum class Kind {
    status,         // the service refuses with `value`; it never sees the request
    without_reply,  // status 0 and no reply, although there was one
    short_reply,    // the reply is cut to `value` bytes
    delay,          // the outcome arrives `value` milliseconds later
    error,          // the transport fails with errno `value`; the service never sees the request
  };

  // A number in a request, most significant byte first.
  struct Word {
    size_t offset = 0;
    uint32_t value = 0;
  };

  // Which requests: those that fit every field that is set.
  std::optional<Service> service = std::nullopt;
  std::optional<uint32_t> opcode = std::nullopt;
  std::optional<uint32_t> operation = std::nullopt;
  std::optional<Word> word = std::nullopt;
  uint32_t nth = 0;  // counted from 1 among the requests that fit; 0: each of them

  Kind kind = Kind::status;
  int32_t value = 0;
};

// The plan of a process: faults in order, of which the first that fits a request is applied.
class FaultPlan {
 public:
  void set(const std::vector<Fault>& faults);

  // The fault for a request; counts it.
  std::optional<Fault> next_for(const Request& request);

 private:
  struct Entry {
    Fault fault;
    uint32_t seen = 0;
  };
  std::vector<Entry> entries_;
};

class FaultyCarrier : public Carrier {
 public:
  FaultyCarrier(std::unique_ptr<Carrier> inner, FaultPlan& plan, VirtualClock& clock)
      : inner_(std::move(inner)), plan_(plan), clock_(clock), pending_(clock) {}

  Token send(const Request& request) override;
  std::optional<Outcome> take(std::optional<Token> token, VirtualTime until) override;

 private:
  std::optional<Outcome> take_inner(std::optional<Token> token, VirtualTime until);
  std::optional<Outcome> take_any(VirtualTime until);

  std::unique_ptr<Carrier> inner_;
  FaultPlan& plan_;
  VirtualClock& clock_;
  PendingOutcomes pending_;  // those that never reached a service, and delayed ones
  std::unordered_map<Token, Fault> planned_;
  Token next_own_token_ = 0x80000000;  // never one of the inner carrier's
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_FAULTS_H
