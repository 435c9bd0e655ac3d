#include "simulator/transport/in_process_carrier.h"

#include <algorithm>

namespace switch_sim {
namespace {

bool arrives_earlier(const std::pair<const Token, Outcome>& left,
                     const std::pair<const Token, Outcome>& right) {
  return left.second.due < right.second.due;
}

}  // namespace

std::map<Token, Outcome>::iterator PendingOutcomes::find(std::optional<Token> token) {
  return token ? outcomes_.find(*token)
               : std::min_element(outcomes_.begin(), outcomes_.end(), arrives_earlier);
}

std::optional<Outcome> PendingOutcomes::take(std::optional<Token> token, VirtualTime until) {
  const auto found = find(token);
  if (found == outcomes_.end() || found->second.due > std::max(until, clock_.now())) {
    clock_.advance_to(until);
    return std::nullopt;
  }
  Outcome outcome = std::move(found->second);
  outcomes_.erase(found);
  clock_.advance_to(outcome.due);
  return outcome;
}

std::optional<VirtualTime> PendingOutcomes::earliest_due() const {
  const auto found = std::min_element(outcomes_.begin(), outcomes_.end(), arrives_earlier);
  return found != outcomes_.end() ? std::optional(found->second.due) : std::nullopt;
}

Token InProcessCarrier::send(const Request& request) {
  Outcome outcome = handler_(request);
  outcome.token = next_token_++;
  outcome.due += clock_.now();
  const Token token = outcome.token;
  pending_.add(std::move(outcome));
  return token;
}

}  // namespace switch_sim
