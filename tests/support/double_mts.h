// Lines for the message transport: mts_bind, mts_unbind, mts_recv.
//
// The functions that read or release a message (mts_rr_token_get, mts_payload_get,
// mts_payload_size, mts_drop) and mts_errno_get need no line: they answer from the messages and
// failures of the script, and fail the test when the message is null, unknown, dropped, or of
// another queue. A script expects every message it handed out to be dropped once.
#ifndef TESTS_SUPPORT_DOUBLE_MTS_H
#define TESTS_SUPPORT_DOUBLE_MTS_H

#include <cstdint>

#include "tests/support/script.h"

namespace test_support {

// mts_bind under the name. Expected unless said: kind 1, address -1, options 1, 0, 1024, 0, 0.
// Answer: returns(handle), or fails(-1).with_errno(n).
class Bind : public Line<Bind> {
 public:
  explicit Bind(const char* name);
  Bind& kind(int32_t kind) { return number("kind", kind); }
  Bind& address(int32_t address) { return number("address", address); }
};
Bind bind(const char* name);

// mts_unbind of the queue, flags 0. Answer: returns(status).
class Unbind : public Line<Unbind> {
 public:
  explicit Unbind(int32_t handle);
};
Unbind unbind(int32_t handle);

// mts_recv. Expected unless said: queue kQueue, words 1, 0, .., 0, 0, and the token of the request
// that the script handed out last. To be said: the time-out.
class Receive : public Line<Receive> {
 public:
  Receive();
  Receive& timeout(uint32_t seconds) { return number("timeout_seconds", seconds); }
  Receive& token(uint32_t token) { return number("token", token); }
  Receive& no_token() { return number("token", 0); }

  // A message with the content.
  Receive& receives(const Content& content);
  // Result 0 without a message.
  Receive& receives_nothing() { return returns(0); }
  // A failure; errno and the transport error are ETIME.
  Receive& times_out() { return fails(-1).with_errno(62); }
  // A failure that hands out a message all the same.
  Receive& fails_with_message(int64_t result, const Content& content);
};
Receive receive();

// A message that only has a payload.
Content payload(const Bytes& bytes);

}  // namespace test_support

#endif
