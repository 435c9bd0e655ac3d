#include "simulator/transport/faults.h"

#include <algorithm>

#include "simulator/local/platform_status.h"

namespace switch_sim {
namespace {

bool holds(const Fault::Word& word, const Bytes& body) {
  if (body.size() < word.offset + sizeof word.value) return false;
  uint32_t value = 0;
  for (size_t i = 0; i < sizeof word.value; ++i)
    value = value << 8 | std::to_integer<uint32_t>(body[word.offset + i]);
  return value == word.value;
}

bool fits(const Fault& fault, const Request& request) {
  return (!fault.service || *fault.service == request.service) &&
         (!fault.opcode || *fault.opcode == request.opcode) &&
         (!fault.operation || *fault.operation == request.operation) &&
         (!fault.word || holds(*fault.word, request.body));
}

bool reaches_the_service(Fault::Kind kind) {
  return kind != Fault::Kind::status && kind != Fault::Kind::error;
}

void apply(const Fault& fault, Outcome& outcome) {
  switch (fault.kind) {
    case Fault::Kind::without_reply:
      outcome.reply.reset();
      break;
    case Fault::Kind::short_reply:
      if (outcome.reply && static_cast<int64_t>(outcome.reply->size()) > fault.value) {
        outcome.reply->resize(static_cast<size_t>(std::max(fault.value, 0)));
      }
      break;
    case Fault::Kind::delay:
      outcome.due += VirtualTime(fault.value);
      break;
    case Fault::Kind::status:
      outcome.status = fault.value;
      break;
    case Fault::Kind::error:
      outcome.status = status::kTransportFailure;
      outcome.error_number = fault.value;
      break;
  }
}

}  // namespace

void FaultPlan::set(const std::vector<Fault>& faults) {
  entries_.clear();
  for (const Fault& fault : faults)
    entries_.push_back({fault, 0});
}

std::optional<Fault> FaultPlan::next_for(const Request& request) {
  std::optional<Fault> chosen;
  for (Entry& entry : entries_) {
    if (!fits(entry.fault, request)) continue;
    ++entry.seen;
    if (!chosen && (entry.fault.nth == 0 || entry.fault.nth == entry.seen)) chosen = entry.fault;
  }
  return chosen;
}

Token FaultyCarrier::send(const Request& request) {
  const auto fault = plan_.next_for(request);
  if (!fault || reaches_the_service(fault->kind)) {
    const Token token = inner_->send(request);
    if (fault) planned_.emplace(token, *fault);
    return token;
  }
  Outcome outcome;
  outcome.token = next_own_token_++;
  outcome.due = clock_.now();
  apply(*fault, outcome);
  const Token token = outcome.token;
  pending_.add(std::move(outcome));
  return token;
}

// Takes from the inner carrier and applies the planned fault. An outcome that a delay moved behind
// `until` waits among the pending ones.
std::optional<Outcome> FaultyCarrier::take_inner(std::optional<Token> token, VirtualTime until) {
  auto outcome = inner_->take(token, until);
  if (!outcome) return outcome;
  const auto planned = planned_.find(outcome->token);
  if (planned == planned_.end()) return outcome;
  const Fault fault = planned->second;
  planned_.erase(planned);
  apply(fault, *outcome);
  if (fault.kind != Fault::Kind::delay) return outcome;
  const Token delayed = outcome->token;
  pending_.add(std::move(*outcome));
  return pending_.take(token ? std::optional(delayed) : std::nullopt, clock_.now());
}

std::optional<Outcome> FaultyCarrier::take(std::optional<Token> token, VirtualTime until) {
  if (!token) return take_any(until);
  if (pending_.holds(*token)) return pending_.take(token, until);
  if (auto outcome = take_inner(token, until)) return outcome;
  return pending_.take(token, until);
}

std::optional<Outcome> FaultyCarrier::take_any(VirtualTime until) {
  for (;;) {
    const auto own = pending_.earliest_due();
    const VirtualTime inner_until = own ? std::min(*own, until) : until;
    const size_t planned_before = planned_.size();
    if (auto outcome = take_inner(std::nullopt, inner_until)) return outcome;
    if (planned_.size() == planned_before) break;  // nothing moved: no more to learn from inside
  }
  return pending_.take(std::nullopt, until);
}

}  // namespace switch_sim
