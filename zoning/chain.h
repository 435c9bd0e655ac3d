// Chains of records that the library hands out: one block of the C heap each, joined by `next`.
#ifndef ZONING_CHAIN_H
#define ZONING_CHAIN_H

#include <cstdlib>

namespace cim_utils {

// Adds blocks at the end of a chain in constant time each.
template <typename Record>
class ChainBuilder {
 public:
  // Begins a new chain at *head.
  explicit ChainBuilder(Record** head) : end_(head) { *head = nullptr; }
  ChainBuilder(const ChainBuilder&) = delete;
  ChainBuilder& operator=(const ChainBuilder&) = delete;

  // Takes over a block whose first record is the one that counts.
  void append(Record* block) {
    block->next = nullptr;
    *end_ = block;
    end_ = &block->next;
  }

 private:
  Record** end_;
};

template <typename Record>
void free_chain(Record* head) {
  while (head != nullptr) {
    Record* const next = head->next;
    std::free(head);
    head = next;
  }
}

}  // namespace cim_utils

#endif  // ZONING_CHAIN_H
