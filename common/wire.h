// Byte order of the records that cross the message transport.
//
// A record's multi-byte numbers are listed once, as spans, by the adaptor that exchanges it. A
// record in a caller's hands is in host order; for the time of an exchange it is in wire order.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace cim_utils::wire {

// `count` numbers of `width` bytes (2 or 4) in a row, starting `offset` bytes into a record.
struct Span {
  uint16_t offset;
  uint8_t count;
  uint8_t width;
};

inline uint32_t network32(uint32_t value) {
  if constexpr (std::endian::native == std::endian::little) return __builtin_bswap32(value);
  return value;
}

inline uint16_t network16(uint16_t value) {
  if constexpr (std::endian::native == std::endian::little) return __builtin_bswap16(value);
  return value;
}

// Reads a big-endian number at `at`, which needs no alignment.
inline uint32_t read32(const void* at) {
  uint32_t value;
  std::memcpy(&value, at, sizeof value);
  return network32(value);
}

// Converts the numbers of a record in place. The same swap serves both directions.
inline void convert(void* record, std::span<const Span> spans) {
  auto* bytes = static_cast<std::byte*>(record);
  for (const Span& span : spans) {
    for (unsigned i = 0; i < span.count; ++i) {
      std::byte* at = bytes + span.offset + static_cast<size_t>(i) * span.width;
      if (span.width == sizeof(uint32_t)) {
        const uint32_t value = read32(at);
        std::memcpy(at, &value, sizeof value);
      } else {
        uint16_t value;
        std::memcpy(&value, at, sizeof value);
        value = network16(value);
        std::memcpy(at, &value, sizeof value);
      }
    }
  }
}

// Holds a record in wire order for the scope's lifetime; whatever stands in the record at the end
// of the scope, the request or a reply copied over it, is turned back to host order.
class InWireOrder {
 public:
  template <typename Record>
  InWireOrder(Record& record, std::span<const Span> spans) : record_(&record), spans_(spans) {
    convert(record_, spans_);
  }
  InWireOrder(const InWireOrder&) = delete;
  InWireOrder& operator=(const InWireOrder&) = delete;
  ~InWireOrder() {
    if (record_ != nullptr) convert(record_, spans_);
  }

  // The record stays in wire order after the scope.
  void leave() { record_ = nullptr; }

 private:
  void* record_;
  std::span<const Span> spans_;
};

}  // namespace cim_utils::wire
