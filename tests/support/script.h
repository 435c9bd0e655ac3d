// A script of the calls that the library is expected to make to the platform's services, in order,
// with every argument and the answer of each. The doubles of the platform functions (double_*.cc)
// consume it line by line.
//
//   Script script;
//   script.expect(get(125).sap(15).no_request().length(4).replies(hex("00 00 00 02")));
//   script.expect(get_next(149).sap(15).sends(request).status(0x40330005));
//
// A wrong argument, a call out of order, a call too many, a line not used, a block or a message
// that was not given back: each fails the test.
#ifndef TESTS_SUPPORT_SCRIPT_H
#define TESTS_SUPPORT_SCRIPT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <source_location>
#include <string>
#include <vector>

#include "tests/support/bytes.h"
#include "tests/support/heap_ledger.h"

struct mts_msg_;

namespace test_support {

// The queue handle that lines expect unless they say another.
inline constexpr int32_t kQueue = 7;

// One argument of a call: a number, a text, bytes behind a pointer, a pointer that only is or is
// not null.
class Value {
 public:
  static Value number(int64_t n);
  static Value text(const char* text);  // null is not the empty text
  static Value bytes(Bytes bytes);
  static Value null();
  static Value not_null();
  bool operator==(const Value&) const = default;
  std::string print() const;
  int64_t as_number() const { return number_; }  // 0 for what is no number
  size_t size() const { return bytes_.size(); }  // 0 for what is no bytes
  // What is wrong with `actual` where this was expected.
  std::string mismatch(const Value& actual) const;

 private:
  enum class Kind { null, not_null, number, text, bytes };
  Kind kind_ = Kind::null;
  int64_t number_ = 0;
  std::string text_;
  Bytes bytes_;
};

// A call as a double saw it.
struct Argument {
  const char* name;
  Value value;
};
struct Call {
  const char* function;
  std::vector<Argument> arguments;
};

// What a message carries, for the functions that read it. The areas derive from it.
class MessageContent {
 public:
  virtual ~MessageContent() = default;
  Bytes payload;
};
using Content = std::shared_ptr<MessageContent>;

// The answer to one call. Doubles use what their function has.
struct Answer {
  bool given = false;
  bool refused = false;  // the function's own way of failing: -1 or null, nothing handed out
  int64_t result = 0;
  int error_number = 0;
  std::optional<Bytes> block;       // memory handed out, or copied into the caller's
  std::optional<size_t> cut;        // hand out only so many bytes of it
  bool length_left_alone = false;   // the length argument keeps what the caller put in
  std::optional<int64_t> count;     // count written for the caller
  std::vector<uint32_t> numbers;    // other numbers written for the caller
  std::optional<std::string> text;  // text returned or written for the caller
  std::optional<uint32_t> token;    // of the message handed out
  Content message;                  // message handed out
  // `block` as it is handed out.
  Bytes bytes() const;
};

// One line of a script.
struct ExpectedCall {
  struct Expectation {
    std::string name;
    bool any = false;
    bool last_token = false;  // the token of the request handed out last
    Value value;
  };
  std::string function;
  std::vector<Expectation> arguments;
  Answer answer;
  bool answer_required = false;
  std::source_location where;

  void set(const char* name, Value value);
  void set_any(const char* name);
  void set_last_token(const char* name);
  bool says(const char* name) const;
  // Empty when the call is the expected one.
  std::string mismatch(const Call& call) const;
};

// Base of the fluent descriptions of a call. Self is the description of one function or family.
template <class Self>
class Line {
 public:
  // The queue handle; kQueue unless said.
  Self& q(int32_t handle) { return number("q", handle); }
  // The function's result; nothing is handed out unless said.
  Self& returns(int64_t result) {
    call_->answer.given = true;
    call_->answer.result = result;
    return self();
  }
  Self& fails(int64_t result = -1) { return returns(result); }
  // errno, and what mts_errno_get tells for the call's queue.
  Self& with_errno(int error_number) {
    call_->answer.given = true;
    call_->answer.error_number = error_number;
    return self();
  }
  const std::shared_ptr<ExpectedCall>& call() const { return call_; }

 protected:
  explicit Line(const char* function) {
    HeapLedger::Pause pause;
    call_ = std::make_shared<ExpectedCall>();
    call_->function = function;
  }
  Self& self() { return static_cast<Self&>(*this); }
  Self& number(const char* name, int64_t n) { return argument(name, Value::number(n)); }
  Self& text(const char* name, const char* value) {
    HeapLedger::Pause pause;
    return argument(name, Value::text(value));
  }
  Self& bytes(const char* name, const Bytes& value) {
    HeapLedger::Pause pause;
    return argument(name, Value::bytes(value));
  }
  Self& any(const char* name) {
    HeapLedger::Pause pause;
    call_->set_any(name);
    return self();
  }
  Self& argument(const char* name, Value value) {
    HeapLedger::Pause pause;
    call_->set(name, std::move(value));
    return self();
  }
  Self& hands_out(const Bytes& block) {
    HeapLedger::Pause pause;
    call_->answer.given = true;
    call_->answer.block = block;
    return self();
  }
  Answer& answer() {
    call_->answer.given = true;
    return call_->answer;
  }
  Self& gives_number(uint32_t n) {
    HeapLedger::Pause pause;
    answer().numbers = {n};
    return self();
  }
  Self& gives_text(const char* text) {
    HeapLedger::Pause pause;
    if (text != nullptr) answer().text = text;
    return returns(0);
  }
  Self& gives_message(int64_t result, const Content& content) {
    answer().message = content;
    return returns(result);
  }

 private:
  std::shared_ptr<ExpectedCall> call_;
};

// Base of calls that send a request whose reply is received later.
template <class Self>
class SendingLine : public Line<Self> {
 public:
  // Success: a request message, to be dropped by the library.
  Self& sent() { return this->returns(0); }
  // The token of the request; the script makes one up unless said.
  Self& request_token(uint32_t token) {
    this->answer().token = token;
    return this->self();
  }
  // A failure that hands out a request message all the same.
  Self& fails_with_message(int64_t result) {
    HeapLedger::Pause pause;
    return this->gives_message(result, std::make_shared<MessageContent>());
  }

 protected:
  using Line<Self>::Line;
};

class Script {
 public:
  Script();
  // Verifies.
  ~Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  // Adds a line. The line may still be completed through the result.
  template <class Description>
  Description expect(Description description,
                     std::source_location where = std::source_location::current()) {
    add(description.call(), where);
    return description;
  }

  // Expects what the destructor expects, now: no line left, every block, message and iterator given
  // back. For scripts that are used in several steps.
  void verify();

  // Calls made so far to the services, matched or not.
  size_t calls() const { return calls_; }

  // An answer for all calls of a pure text function: syserr2str and kfs_rcode2str by code.
  Script& text_for(const char* function, int32_t code, const char* text);
  // Iterators of the fabric distribution service may be left over.
  Script& iterators_may_be_left();

  struct Impl;
  Impl& impl() { return *impl_; }

 private:
  friend struct ScriptAccess;
  void add(const std::shared_ptr<ExpectedCall>& call, const std::source_location& where);
  std::unique_ptr<Impl> impl_;
  size_t calls_ = 0;
};

// One round of for_every_failing_exchange: while it exists, the n-th call to a service fails by
// itself, whatever its line says: status -1, nothing handed out. From then on the library may leave
// out lines of the script, but not change their order.
class FailingExchange {
 public:
  explicit FailingExchange(size_t n);
  ~FailingExchange();
  FailingExchange(const FailingExchange&) = delete;
  FailingExchange& operator=(const FailingExchange&) = delete;
  bool was_hit() const { return hit_; }
  size_t n() const { return n_; }
  HeapLedger& ledger() { return ledger_; }

 private:
  friend struct ScriptAccess;
  size_t n_;
  size_t seen_ = 0;
  bool hit_ = false;
  FailingExchange* outer_;
  HeapLedger ledger_;
};

// Calls test(FailingExchange&) with n = 1, 2, ... until a round makes fewer than n calls to the
// services. Each round has a heap ledger of its own. Result: the number of rounds.
template <class Test>
size_t for_every_failing_exchange(Test test) {
  for (size_t n = 1;; ++n) {
    FailingExchange round(n);
    if constexpr (std::is_invocable_v<Test, FailingExchange&>) {
      test(round);
    } else {
      test();
    }
    if (!round_may_go_on("exchange", n, true) || !round.was_hit()) return n;
  }
}

}  // namespace test_support

#endif
