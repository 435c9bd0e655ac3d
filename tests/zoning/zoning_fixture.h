// What the zoning tests share: nothing left over, nothing on the screen, a bound queue, one
// interface of a scripted platform.
#ifndef TESTS_ZONING_ZONING_FIXTURE_H
#define TESTS_ZONING_ZONING_FIXTURE_H

#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/bytes.h"
#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/script.h"
#include "tests/zoning/interface_double.h"

namespace zoning_test {

class ZoningFixture : public testing::Test {
 protected:
  ZoningFixture() {
    test_support::HeapLedger::Pause pause;
    mts_q = test_support::kQueue;
    reset_platform_interface();
  }
  ~ZoningFixture() override {
    test_support::HeapLedger::Pause pause;
    mts_q = -1;
    reset_platform_interface();
  }

  // What was printed since the last call.
  std::string printed() {
    std::string text = out_.out();
    out_.clear();
    return text;
  }
  bool was_printed(const std::string& text) { return out_.out().find(text) != std::string::npos; }

  test_support::HeapLedger ledger_;
  test_support::StdioCapture out_;
};

// The query for the local switch's WWN.
inline test_support::Exchange switch_wwn() {
  return test_support::get(1282).sap(46).no_request().length(0);
}

// The text without the line numbers behind "Line ".
inline std::string without_line_numbers(std::string text) {
  const std::string mark = "Line ";
  for (size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
    size_t end = at + mark.size();
    while (end < text.size() && text[end] >= '0' && text[end] <= '9')
      ++end;
    text.replace(at + mark.size(), end - at - mark.size(), "N");
  }
  return text;
}

}  // namespace zoning_test

#endif  // TESTS_ZONING_ZONING_FIXTURE_H
