// Chains that the library hands out, read and freed by tests.
#pragma once

#include <cstdlib>
#include <string>

#include "tests/support/heap_ledger.h"

namespace zoning_queries_test {

// A chain that is freed block by block.
template <class Record>
class Chain {
 public:
  Chain() = default;
  Chain(const Chain&) = delete;
  Chain& operator=(const Chain&) = delete;
  ~Chain() { release(); }

  Record** out() { return &head_; }
  Record* head() const { return head_; }
  void release() {
    while (head_ != nullptr) {
      Record* next = head_->next;
      free(head_);
      head_ = next;
    }
  }
  int length() const {
    int n = 0;
    for (const Record* record = head_; record != nullptr; record = record->next)
      ++n;
    return n;
  }
  // The instance ids with a blank between them.
  std::string ids() const {
    std::string all;
    for (const Record* record = head_; record != nullptr; record = record->next)
      all += (record == head_ ? "" : " ") + std::string(record->instance_id);
    return all;
  }

 private:
  Record* head_ = nullptr;
};

}  // namespace zoning_queries_test
