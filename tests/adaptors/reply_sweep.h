// Replies of every length and of many contents, for functions that read one.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/double_cmi.h"

namespace test_support {

// Calls `operation` with every exchange answered by each of the 200 patterns, cut to every length
// from 0 to `record` + 8; with the length told and left at what the caller put in. What matters is
// that nothing is read out of bounds, left behind or walked without end.
template <class Operation>
void sweep_replies(size_t record, Operation operation) {
  std::vector<Bytes> patterns;
  for (unsigned number = 0; number < kPatterns; ++number)
    patterns.push_back(pattern(number, record + 8));
  const Bytes* bytes = nullptr;
  size_t length = 0;
  bool length_told = true;
  Responder responder([&](const Request&) {
    Response response =
        Response::with(Bytes(bytes->begin(), bytes->begin() + static_cast<std::ptrdiff_t>(length)));
    response.length_left_alone = !length_told;
    return response;
  });
  for (length = 0; length <= record + 8; ++length) {
    for (unsigned number = 0; number < kPatterns; ++number) {
      bytes = &patterns[number];
      length_told = number % 2 == 0;
      operation();
    }
  }
  EXPECT_GE(responder.calls(), (record + 9) * kPatterns);
}

}  // namespace test_support
