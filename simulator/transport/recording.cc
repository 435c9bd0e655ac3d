#include "simulator/transport/recording.h"

#include <charconv>

#include "simulator/local/platform_status.h"

namespace switch_sim {
namespace {

// Splits a line into its words and values.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  // True when the next word is `word`.
  bool word(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return skip_blank();
  }

  // Reads "NAME=NUMBER".
  template <typename Number>
  bool number(std::string_view name, Number* value) {
    if (!key(name)) return false;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), *value);
    if (error != std::errc{}) return false;
    rest_.remove_prefix(static_cast<size_t>(end - rest_.data()));
    return skip_blank();
  }

  // Reads "NAME=HEX" at the end of the line.
  bool bytes(std::string_view name, Bytes* value) {
    if (!key(name) || rest_.size() % 2 != 0) return false;
    for (; !rest_.empty(); rest_.remove_prefix(2)) {
      unsigned byte = 0;
      const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + 2, byte, 16);
      if (error != std::errc{} || end != rest_.data() + 2) return false;
      value->push_back(static_cast<std::byte>(byte));
    }
    return true;
  }

  bool is_at(std::string_view text) const { return rest_ == text; }

 private:
  bool key(std::string_view name) {
    if (!rest_.starts_with(name) || rest_.size() <= name.size() || rest_[name.size()] != '=') {
      return false;
    }
    rest_.remove_prefix(name.size() + 1);
    return true;
  }

  bool skip_blank() {
    if (rest_.empty()) return true;
    if (rest_.front() != ' ') return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::string_view rest_;
};

bool read_request(LineReader line, Exchange* exchange) {
  uint32_t service = 0;
  Request& request = exchange->request;
  const bool complete =
      line.number("token", &exchange->token) && line.number("service", &service) &&
      line.number("opcode", &request.opcode) && line.number("operation", &request.operation) &&
      line.bytes("body", &request.body);
  request.service = static_cast<Service>(service);
  return complete;
}

bool read_reply(LineReader line, Outcome* outcome) {
  VirtualTime::rep after = 0;
  const bool complete =
      line.number("token", &outcome->token) && line.number("status", &outcome->status) &&
      line.number("errno", &outcome->error_number) && line.number("after_ms", &after);
  outcome->due = VirtualTime(after);
  if (!complete || after < 0) return false;
  if (line.is_at("body=none")) return true;
  outcome->reply.emplace();
  return line.bytes("body", &*outcome->reply);
}

// A log may hold several runs: a token belongs to the latest request that had it.
Exchange* waiting_for(std::vector<Exchange>& exchanges, Token token) {
  for (auto exchange = exchanges.rbegin(); exchange != exchanges.rend(); ++exchange) {
    if (exchange->token == token) return exchange->outcome ? nullptr : &*exchange;
  }
  return nullptr;
}

// Adds what one line says; an error text when it says nothing sensible.
const char* read_line(std::string_view text, std::vector<Exchange>& exchanges) {
  LineReader line(text);
  if (line.word("request")) {
    Exchange exchange;
    if (!read_request(line, &exchange)) return "malformed request line";
    exchanges.push_back(std::move(exchange));
    return nullptr;
  }
  if (!line.word("reply")) return "neither a request nor a reply line";
  Outcome outcome;
  if (!read_reply(line, &outcome)) return "malformed reply line";
  Exchange* exchange = waiting_for(exchanges, outcome.token);
  if (exchange == nullptr) return "no request waits for this reply";
  exchange->outcome = std::move(outcome);
  return nullptr;
}

}  // namespace

std::variant<std::vector<Exchange>, RecordingError> read_recording(std::string_view text) {
  std::vector<Exchange> exchanges;
  for (size_t number = 1; !text.empty(); ++number) {
    const size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (!line.empty()) {
      if (const char* error = read_line(line, exchanges)) return RecordingError{number, error};
    }
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return exchanges;
}

Outcome Recording::next_for(const Request& request) {
  Outcome outcome;
  for (size_t i = 0; i < exchanges_.size(); ++i) {
    if (used_[i] || exchanges_[i].request != request) continue;
    used_[i] = true;
    if (exchanges_[i].outcome) return *exchanges_[i].outcome;
    outcome.due = std::chrono::years(1000);  // never: nobody waits that long
    return outcome;
  }
  outcome.status = status::kNotRecorded;
  return outcome;
}

}  // namespace switch_sim
