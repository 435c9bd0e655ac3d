// Owners of C heap memory. What callers free with free() is made here.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace cim_utils {

struct Free {
  void operator()(void* block) const { std::free(block); }
};

// An array of records in C heap memory.
template <typename Record>
using CHeap = std::unique_ptr<Record[], Free>;

// `count` zeroed records; null when memory runs out.
template <typename Record>
CHeap<Record> allocate(size_t count = 1) {
  return CHeap<Record>(static_cast<Record*>(std::calloc(count, sizeof(Record))));
}

}  // namespace cim_utils
