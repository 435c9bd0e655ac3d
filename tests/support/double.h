// For the doubles themselves: how they ask the script in force, and hand out blocks and messages.
#ifndef TESTS_SUPPORT_DOUBLE_H
#define TESTS_SUPPORT_DOUBLE_H

#include <cstdint>
#include <optional>
#include <string>

#include "tests/support/exchange_failure.h"
#include "tests/support/script.h"

// A message as the doubles make it. It outlives its drop, so that a second drop can be seen; its
// payload does not.
struct mts_msg_ {
  std::string origin;
  bool sent;  // a request that was sent; else a message received
  int32_t q;
  uint32_t token;
  test_support::Content content;  // may be null
  uint8_t* payload;               // exactly payload_size bytes
  size_t payload_size;
  bool dropped;
};

namespace test_support {

// The answer to the call: from the script in force, after its arguments were checked; refused when
// there is none. Sets errno where the answer says one.
Answer answer_to(const Call& call);

// How the failing round in force fails this call, if it does. For calls that no script answers.
std::optional<ExchangeFailure> exchange_failure(const char* function);
// What is left of an answer when its call fails so.
Answer failed_answer(const Answer& answer, ExchangeFailure how);

// A block for the library to free, holding the answer's bytes; null when it has none.
void* hand_out_block(const Answer& answer, const std::string& label);

// A message for the library to drop; null when the answer has none and `sent` is false. A sent
// message always exists unless the answer is a failure without one.
mts_msg_* hand_out_message(const Answer& answer, const Call& call, int32_t q, bool sent);

// The message of the script in force behind the pointer; null, after a test failure, when there is
// none, or it was dropped.
mts_msg_* live_message(const mts_msg_* message, const char* function);
// The live message whose payload begins here; else null.
mts_msg_* message_with_payload(const void* payload);
void drop_message(int32_t q, mts_msg_* message);
// The token of the request that was sent last; 0 when there is none.
uint32_t last_token_sent();
// What the call that failed last on the queue left for mts_errno_get.
int transport_error(int32_t q);
// A text set by Script::text_for; else the fallback.
const char* scripted_text(const char* function, int32_t code, const char* fallback);

// Things to be destroyed once: iterators. `what` names it in failures.
void* make_handle(const std::string& what, Content content);
// Null, after a failure, when it is none or was destroyed.
MessageContent* live_handle(void* handle, const char* function);
void destroy_handle(void* handle, const char* function);

// Adds a failure to the test that is running.
void double_failure(const std::string& text);

// The content of the live message, when it is of the type; null, after a failure, when not.
template <class Type>
Type* content_of(const mts_msg_* message, const char* function) {
  mts_msg_* live = live_message(message, function);
  if (live == nullptr) return nullptr;
  auto* content = dynamic_cast<Type*>(live->content.get());
  if (content == nullptr) double_failure(std::string(function) + " of a message of another kind");
  return content;
}

// The text that a function returns: kept until the script ends; null when there is none.
const char* kept_text(const Answer& answer);

// Memory of the script, of exactly these bytes, that stays until its end.
const void* keep(const Bytes& bytes);

// How many bytes the line that is next expects for the argument; 0 when it expects none.
size_t expected_size(const char* function, const char* argument);

// Arguments that are the same in every double.
Argument number_argument(const char* name, int64_t value);
Argument text_argument(const char* name, const char* value);
Argument bytes_argument(const char* name, const void* from, size_t size);  // null: the null pointer
Argument pointer_argument(const char* name, const void* pointer);
// An out-pointer that the caller has to preset to null: "null pointer", "preset to null", or
// "not preset".
Argument preset_argument(const char* name, const void* const* out);

}  // namespace test_support

#endif
