#include "simulator/transport/request_log.h"

#include <sstream>

namespace switch_sim {
namespace {

std::string hex(const Bytes& bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const std::byte byte : bytes) {
    text += kDigits[std::to_integer<unsigned>(byte) >> 4];
    text += kDigits[std::to_integer<unsigned>(byte) & 15];
  }
  return text;
}

}  // namespace

std::string request_line(Token token, const Request& request) {
  std::ostringstream line;
  line << "request token=" << token << " service=" << static_cast<uint32_t>(request.service)
       << " opcode=" << request.opcode << " operation=" << request.operation
       << " body=" << hex(request.body);
  return line.str();
}

std::string reply_line(const Outcome& outcome, VirtualTime after) {
  std::ostringstream line;
  line << "reply token=" << outcome.token << " status=" << outcome.status
       << " errno=" << outcome.error_number << " after_ms=" << after.count()
       << " body=" << (outcome.reply ? hex(*outcome.reply) : "none");
  return line.str();
}

bool RequestLog::write_to(const char* path) {
  file_.reset(fopen(path, "ae"));
  return file_ != nullptr;
}

void RequestLog::clear() {
  kept_.clear();
  count_ = 0;
  for (auto& [token, waiting] : waiting_)
    waiting.kept_at.reset();
}

// One write per line, so that the lines of several processes stay whole.
void RequestLog::write(std::string line) {
  line += '\n';
  fwrite(line.data(), 1, line.size(), file_.get());
  fflush(file_.get());
}

void RequestLog::sent(Token token, const Request& request, VirtualTime now) {
  ++count_;
  Waiting waiting{now, std::nullopt};
  if (keeps_) {
    waiting.kept_at = kept_.size();
    kept_.push_back({token, request, now, std::nullopt});
  }
  waiting_.insert_or_assign(token, waiting);
  if (file_) write(request_line(token, request));
}

void RequestLog::taken(const Outcome& outcome) {
  const auto found = waiting_.find(outcome.token);
  if (found == waiting_.end()) return;
  const auto [sent, kept_at] = found->second;
  waiting_.erase(found);
  if (kept_at) kept_[*kept_at].outcome = outcome;
  if (file_) write(reply_line(outcome, outcome.due - sent));
}

Token LoggingCarrier::send(const Request& request) {
  const VirtualTime now = clock_.now();
  const Token token = inner_->send(request);
  log_.sent(token, request, now);
  return token;
}

std::optional<Outcome> LoggingCarrier::take(std::optional<Token> token, VirtualTime until) {
  auto outcome = inner_->take(token, until);
  if (outcome) log_.taken(*outcome);
  return outcome;
}

}  // namespace switch_sim
