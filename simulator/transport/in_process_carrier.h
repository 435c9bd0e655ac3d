// Carries requests to a handler that answers within the call: services of the same process, or a
// connection to those of another one.
#ifndef SIMULATOR_TRANSPORT_IN_PROCESS_CARRIER_H
#define SIMULATOR_TRANSPORT_IN_PROCESS_CARRIER_H

#include <functional>
#include <map>

#include "simulator/transport/message.h"
#include "simulator/transport/virtual_clock.h"

namespace switch_sim {

// Outcomes on their way.
class PendingOutcomes {
 public:
  explicit PendingOutcomes(VirtualClock& clock) : clock_(clock) {}

  void add(Outcome outcome) { outcomes_.insert_or_assign(outcome.token, std::move(outcome)); }

  // As Carrier::take.
  std::optional<Outcome> take(std::optional<Token> token, VirtualTime until);

  bool holds(Token token) const { return outcomes_.contains(token); }

  // When the earliest of all arrives.
  std::optional<VirtualTime> earliest_due() const;

 private:
  std::map<Token, Outcome>::iterator find(std::optional<Token> token);

  VirtualClock& clock_;
  std::map<Token, Outcome> outcomes_;
};

// What a service answers at once; the carrier gives it a token and a time.
using Handler = std::function<Outcome(const Request&)>;

class InProcessCarrier : public Carrier {
 public:
  // `next_token` is shared by the carriers of a process, so that a log can tell requests apart.
  InProcessCarrier(Handler handler, VirtualClock& clock, Token& next_token)
      : handler_(std::move(handler)), clock_(clock), next_token_(next_token), pending_(clock) {}

  Token send(const Request& request) override;
  std::optional<Outcome> take(std::optional<Token> token, VirtualTime until) override {
    return pending_.take(token, until);
  }

 private:
  Handler handler_;
  VirtualClock& clock_;
  Token& next_token_;
  PendingOutcomes pending_;
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_IN_PROCESS_CARRIER_H
