#include "tests/support/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>

#include "tests/support/double.h"

namespace test_support {
namespace {

constexpr uint32_t kFirstToken = 0x7001;

Script* current = nullptr;
FailingExchange* failing = nullptr;
ExchangeFailure failing_how = ExchangeFailure::refused;
const char* function_failed = "";
uint32_t last_owner = 0;

struct Handle {
  std::string what;
  Content content;
  bool destroyed = false;
};

std::string print(const Call& call) {
  std::string text = std::string(call.function) + "(";
  const char* separator = "";
  for (const Argument& argument : call.arguments) {
    text += separator + std::string(argument.name) + " " + argument.value.print();
    separator = ", ";
  }
  return text + ")";
}

void fail_at(const ExpectedCall& line, const std::string& text) {
  ADD_FAILURE_AT(line.where.file_name(), static_cast<int>(line.where.line())) << text;
}

}  // namespace

struct Script::Impl {
  std::deque<std::shared_ptr<ExpectedCall>> lines;
  std::vector<std::shared_ptr<ExpectedCall>> used;  // keeps the texts they returned
  std::deque<mts_msg_> messages;
  std::deque<Handle> handles;
  std::deque<std::unique_ptr<uint8_t[]>> kept;
  std::map<int32_t, int> transport_errors;
  std::map<std::pair<std::string, int32_t>, std::string> texts;
  uint32_t owner = ++last_owner;
  uint32_t next_token = kFirstToken;
  uint32_t last_token = 0;
  bool lines_may_be_left = false;
  bool handles_may_be_left = false;
  bool out_of_order = false;
};

// ---- values ----

Value Value::number(int64_t n) {
  Value value;
  value.kind_ = Kind::number;
  value.number_ = n;
  return value;
}

Value Value::text(const char* text) {
  Value value;
  if (text == nullptr) return value;
  value.kind_ = Kind::text;
  value.text_ = text;
  return value;
}

Value Value::bytes(Bytes bytes) {
  Value value;
  value.kind_ = Kind::bytes;
  value.bytes_ = std::move(bytes);
  return value;
}

Value Value::null() {
  return {};
}

Value Value::not_null() {
  Value value;
  value.kind_ = Kind::not_null;
  return value;
}

std::string Value::print() const {
  switch (kind_) {
    case Kind::null:
      return "null";
    case Kind::not_null:
      return "not null";
    case Kind::text:
      return "\"" + text_ + "\"";
    case Kind::bytes:
      return std::to_string(bytes_.size()) + " bytes";
    case Kind::number:
      break;
  }
  char text[64];
  if (number_ >= -9 && number_ <= 9) {
    snprintf(text, sizeof text, "%lld", static_cast<long long>(number_));
  } else {
    snprintf(text, sizeof text, "%lld (0x%llx)", static_cast<long long>(number_),
             static_cast<unsigned long long>(number_ < 0 ? static_cast<uint32_t>(number_)
                                                         : static_cast<uint64_t>(number_)));
  }
  return text;
}

std::string Value::mismatch(const Value& actual) const {
  if (kind_ == Kind::bytes && actual.kind_ == Kind::bytes) {
    return difference(bytes_, actual.bytes_);
  }
  std::string text = "expected " + print() + ", found " + actual.print() + "\n";
  if (kind_ == Kind::bytes) text += hexdump(bytes_);
  if (actual.kind_ == Kind::bytes) text += hexdump(actual.bytes_);
  return text;
}

// ---- lines ----

Bytes Answer::bytes() const {
  Bytes all = block.value_or(Bytes());
  if (cut && *cut < all.size()) all.resize(*cut);
  return all;
}

void ExpectedCall::set(const char* name, Value value) {
  std::erase_if(arguments, [name](const Expectation& e) { return e.name == name; });
  arguments.push_back({name, false, false, std::move(value)});
}

void ExpectedCall::set_any(const char* name) {
  set(name, Value::null());
  arguments.back().any = true;
}

void ExpectedCall::set_last_token(const char* name) {
  set(name, Value::null());
  arguments.back().last_token = true;
}

bool ExpectedCall::says(const char* name) const {
  return std::any_of(arguments.begin(), arguments.end(),
                     [name](const Expectation& e) { return e.name == name; });
}

std::string ExpectedCall::mismatch(const Call& call) const {
  if (function != call.function) return "expected a call of " + function + "\n";
  std::string text;
  for (const Argument& argument : call.arguments) {
    auto expectation = std::find_if(arguments.begin(), arguments.end(),
                                    [&](const Expectation& e) { return e.name == argument.name; });
    if (expectation == arguments.end()) {
      text += std::string(argument.name) + ": the script does not say it, found " +
              argument.value.print() + "\n";
      continue;
    }
    Value expected =
        expectation->last_token ? Value::number(last_token_sent()) : expectation->value;
    if (!expectation->any && expected != argument.value) {
      text += std::string(argument.name) + ": " + expected.mismatch(argument.value);
    }
  }
  for (const Expectation& expectation : arguments) {
    bool known = std::any_of(call.arguments.begin(), call.arguments.end(),
                             [&](const Argument& a) { return expectation.name == a.name; });
    if (!known) text += expectation.name + ": no such argument\n";
  }
  return text;
}

// ---- the script ----

Script::Script() {
  HeapLedger::Pause pause;
  impl_ = std::make_unique<Impl>();
  if (current != nullptr) ADD_FAILURE() << "a second Script while the first is in force";
  current = this;
}

Script::~Script() {
  HeapLedger::Pause pause;
  verify();
  for (mts_msg_& message : impl_->messages) {
    if (!message.dropped) free(message.payload);
  }
  if (current == this) current = nullptr;
  impl_.reset();
}

void Script::add(const std::shared_ptr<ExpectedCall>& call, const std::source_location& where) {
  HeapLedger::Pause pause;
  call->where = where;
  impl_->lines.push_back(call);
}

void Script::verify() {
  HeapLedger::Pause pause;
  if (!impl_->out_of_order && !impl_->lines_may_be_left) {
    for (const auto& line : impl_->lines) {
      fail_at(*line, "the script's call of " + line->function + " was not made");
    }
  }
  impl_->lines.clear();
  for (mts_msg_& message : impl_->messages) {
    if (!message.dropped) ADD_FAILURE() << "not dropped: the message of " << message.origin;
  }
  for (const Handle& handle : impl_->handles) {
    if (!handle.destroyed && !impl_->handles_may_be_left) {
      ADD_FAILURE() << "not destroyed: " << handle.what;
    }
  }
  for (const std::string& line : not_given_back(impl_->owner)) {
    ADD_FAILURE() << "not freed: " << line;
  }
}

Script& Script::text_for(const char* function, int32_t code, const char* text) {
  HeapLedger::Pause pause;
  impl_->texts[{function, code}] = text;
  return *this;
}

Script& Script::iterators_may_be_left() {
  impl_->handles_may_be_left = true;
  return *this;
}

void lines_may_be_left(Script& script) {
  script.impl().lines_may_be_left = true;
}

// ---- what the doubles ask ----

struct ScriptAccess {
  static void count(Script& script) { ++script.calls_; }

  static std::optional<ExchangeFailure> failure_now(const char* function) {
    if (failing == nullptr || ++failing->seen_ != failing->n_) return std::nullopt;
    failing->hit_ = true;
    function_failed = function;
    return failing_how;
  }

  static bool failed_before() { return failing != nullptr && failing->hit_; }
};

namespace {

Answer refused() {
  Answer answer;
  answer.given = true;
  answer.refused = true;
  answer.result = -1;
  return answer;
}

// After a call was made to fail, lines that belonged to its success are passed over.
void skip_to(Script::Impl& script, const Call& call) {
  auto match = std::find_if(script.lines.begin(), script.lines.end(),
                            [&](const auto& line) { return line->mismatch(call).empty(); });
  if (match != script.lines.end()) script.lines.erase(script.lines.begin(), match);
}

Answer take_line(Script::Impl& script, const Call& call) {
  if (script.lines.empty()) {
    script.out_of_order = true;
    ADD_FAILURE() << "a call that is not in the script: " << print(call);
    return refused();
  }
  std::shared_ptr<ExpectedCall> line = script.lines.front();
  std::string wrong = line->mismatch(call);
  if (!wrong.empty()) fail_at(*line, "wrong call: " + print(call) + "\n" + wrong);
  if (line->function != call.function) {
    script.out_of_order = true;
    return refused();
  }
  script.lines.pop_front();
  script.used.push_back(line);
  if (line->answer_required && !line->answer.given) {
    fail_at(*line, "the line does not say how " + line->function + " answers");
  }
  return line->answer;
}

void tell_errors(const Answer& answer, const Call& call) {
  if (answer.error_number == 0) return;
  for (const Argument& argument : call.arguments) {
    if (strcmp(argument.name, "q") != 0 || current == nullptr) continue;
    current->impl().transport_errors[static_cast<int32_t>(argument.value.as_number())] =
        answer.error_number;
  }
}

}  // namespace

std::optional<ExchangeFailure> exchange_failure(const char* function) {
  return ScriptAccess::failure_now(function);
}

Answer failed_answer(const Answer& answer, ExchangeFailure how) {
  constexpr int64_t kStatus = 0x40330005;
  constexpr int kTimerExpired = 62;
  if (how == ExchangeFailure::refused) return refused();
  if (how == ExchangeFailure::cut_reply) {
    Answer cut = answer;
    if (const size_t size = answer.bytes().size(); size != 0) cut.cut = size - 1;
    return cut;
  }
  Answer nothing;
  nothing.given = true;
  nothing.cut = 0;  // not even the message of a request that was sent
  if (how == ExchangeFailure::status) nothing.result = kStatus;
  if (how == ExchangeFailure::timed_out) {
    nothing.result = -1;
    nothing.error_number = kTimerExpired;
  }
  return nothing;
}

Answer answer_to(const Call& call) {
  HeapLedger::Pause pause;
  if (current == nullptr) {
    ADD_FAILURE() << "a call while no script is in force: " << print(call);
    return refused();
  }
  ScriptAccess::count(*current);
  Script::Impl& script = current->impl();
  if (script.lines_may_be_left || ScriptAccess::failed_before()) skip_to(script, call);
  Answer answer = take_line(script, call);
  if (const auto how = ScriptAccess::failure_now(call.function)) {
    answer = failed_answer(answer, *how);
    script.lines_may_be_left = true;
  }
  tell_errors(answer, call);
  if (answer.error_number != 0) errno = answer.error_number;
  return answer;
}

void* hand_out_block(const Answer& answer, const std::string& label) {
  HeapLedger::Pause pause;
  if (answer.refused || !answer.block || answer.bytes().empty()) return nullptr;
  return give_out(answer.bytes(), label, current != nullptr ? current->impl().owner : 0);
}

mts_msg_* hand_out_message(const Answer& answer, const Call& call, int32_t q, bool sent) {
  HeapLedger::Pause pause;
  if (current == nullptr || answer.refused) return nullptr;
  Script::Impl& script = current->impl();
  if (answer.message == nullptr && (!sent || answer.result != 0 || answer.cut == 0u))
    return nullptr;
  uint32_t token = 0;
  if (sent) {
    token = answer.token.value_or(script.next_token);
    ++script.next_token;
    script.last_token = token;
  }
  mts_msg_ message{};
  message.origin = print(call);
  message.sent = sent;
  message.q = q;
  message.token = token;
  message.content = answer.message;
  if (message.content != nullptr) {
    const Bytes& payload = message.content->payload;
    message.payload_size = payload.size();
    message.payload = static_cast<uint8_t*>(malloc(payload.size()));
    if (!payload.empty()) memcpy(message.payload, payload.data(), payload.size());
  }
  script.messages.push_back(std::move(message));
  return &script.messages.back();
}

mts_msg_* live_message(const mts_msg_* message, const char* function) {
  HeapLedger::Pause pause;
  if (message == nullptr) {
    double_failure(std::string(function) + " of a null message");
    return nullptr;
  }
  if (current != nullptr) {
    for (mts_msg_& known : current->impl().messages) {
      if (&known != message) continue;
      if (!known.dropped) return &known;
      double_failure(std::string(function) + " of a message that was dropped: " + known.origin);
      return nullptr;
    }
  }
  double_failure(std::string(function) + " of a message that no double handed out");
  return nullptr;
}

mts_msg_* message_with_payload(const void* payload) {
  if (current == nullptr || payload == nullptr) return nullptr;
  for (mts_msg_& message : current->impl().messages) {
    if (!message.dropped && message.payload == payload) return &message;
  }
  return nullptr;
}

void drop_message(int32_t q, mts_msg_* message) {
  HeapLedger::Pause pause;
  mts_msg_* live = live_message(message, "mts_drop");
  if (live == nullptr) return;
  if (q != live->q) {
    double_failure("mts_drop on queue " + std::to_string(q) + " of a message of queue " +
                   std::to_string(live->q) + ": " + live->origin);
  }
  live->dropped = true;
  free(live->payload);
  live->payload = nullptr;
}

uint32_t last_token_sent() {
  return current == nullptr ? 0 : current->impl().last_token;
}

int transport_error(int32_t q) {
  if (current == nullptr) return 0;
  const auto& errors = current->impl().transport_errors;
  auto found = errors.find(q);
  return found == errors.end() ? 0 : found->second;
}

const char* scripted_text(const char* function, int32_t code, const char* fallback) {
  HeapLedger::Pause pause;
  if (current == nullptr) return fallback;
  const auto& texts = current->impl().texts;
  auto found = texts.find({function, code});
  return found == texts.end() ? fallback : found->second.c_str();
}

void* make_handle(const std::string& what, Content content) {
  HeapLedger::Pause pause;
  if (current == nullptr) return nullptr;
  current->impl().handles.push_back({what, std::move(content)});
  return &current->impl().handles.back();
}

const char* kept_text(const Answer& answer) {
  HeapLedger::Pause pause;
  if (answer.refused || !answer.text) return nullptr;
  Bytes bytes(answer.text->begin(), answer.text->end());
  bytes.push_back(0);
  return static_cast<const char*>(keep(bytes));
}

const void* keep(const Bytes& bytes) {
  HeapLedger::Pause pause;
  if (current == nullptr) return nullptr;
  auto& kept = current->impl().kept;
  kept.push_back(std::make_unique<uint8_t[]>(bytes.size()));
  std::copy(bytes.begin(), bytes.end(), kept.back().get());
  return kept.back().get();
}

size_t expected_size(const char* function, const char* argument) {
  if (current == nullptr || current->impl().lines.empty()) return 0;
  const ExpectedCall& line = *current->impl().lines.front();
  if (line.function != function) return 0;
  for (const ExpectedCall::Expectation& expectation : line.arguments) {
    if (expectation.name == argument) return expectation.value.size();
  }
  return 0;
}

namespace {

Handle* find_handle(void* handle, const char* function) {
  HeapLedger::Pause pause;
  if (current != nullptr) {
    for (Handle& known : current->impl().handles) {
      if (&known != handle) continue;
      if (!known.destroyed) return &known;
      double_failure(std::string(function) + " after it was destroyed: " + known.what);
      return nullptr;
    }
  }
  double_failure(std::string(function) +
                 (handle == nullptr ? " of a null handle" : " of a handle that no double made"));
  return nullptr;
}

}  // namespace

MessageContent* live_handle(void* handle, const char* function) {
  Handle* found = find_handle(handle, function);
  return found == nullptr ? nullptr : found->content.get();
}

void destroy_handle(void* handle, const char* function) {
  if (Handle* found = find_handle(handle, function)) found->destroyed = true;
}

void double_failure(const std::string& text) {
  HeapLedger::Pause pause;
  ADD_FAILURE() << text;
}

Argument number_argument(const char* name, int64_t value) {
  return {name, Value::number(value)};
}

Argument text_argument(const char* name, const char* value) {
  return {name, Value::text(value)};
}

Argument bytes_argument(const char* name, const void* from, size_t size) {
  if (from == nullptr) return {name, Value::null()};
  const auto* first = static_cast<const uint8_t*>(from);
  return {name, Value::bytes(Bytes(first, first + size))};
}

Argument pointer_argument(const char* name, const void* pointer) {
  return {name, pointer == nullptr ? Value::null() : Value::not_null()};
}

Argument preset_argument(const char* name, const void* const* out) {
  if (out == nullptr) return {name, Value::null()};
  return {name, *out == nullptr ? Value::text("preset to null") : Value::text("not preset")};
}

// ---- failing exchanges ----

FailingExchange::FailingExchange(size_t n) : n_(n), outer_(failing) {
  failing = this;
}
FailingExchange::~FailingExchange() {
  failing = outer_;
}

FailingHow::FailingHow(ExchangeFailure how) {
  failing_how = how;
}
FailingHow::~FailingHow() {
  failing_how = ExchangeFailure::refused;
}

const char* failed_function() {
  return function_failed;
}

}  // namespace test_support
