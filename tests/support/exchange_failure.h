// The ways in which a call to a service fails, for sweeps that try each of them, and scripts for
// operations that stop at any of their calls.
#ifndef TESTS_SUPPORT_EXCHANGE_FAILURE_H
#define TESTS_SUPPORT_EXCHANGE_FAILURE_H

#include "tests/support/script.h"

namespace test_support {

enum class ExchangeFailure {
  refused,    // -1, nothing handed out
  status,     // a status of the service, nothing handed out
  no_reply,   // success, but nothing handed out
  cut_reply,  // success, and a block without its last byte; calls that hand out none go well
  timed_out,  // -1 and error 62, nothing handed out
};

// While it exists, the call that a FailingExchange fails does so in this way; refused without one.
class FailingHow {
 public:
  explicit FailingHow(ExchangeFailure how);
  ~FailingHow();
  FailingHow(const FailingHow&) = delete;
  FailingHow& operator=(const FailingHow&) = delete;
};

// The platform function whose call failed last; empty before the first.
const char* failed_function();

// Lines may be passed over and left, as what the library asks depends on where it stops: for
// operations of which an allocation fails. Other calls and another order fail the test as ever.
void lines_may_be_left(Script& script);

}  // namespace test_support

#endif
