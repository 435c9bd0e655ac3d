// The input of a text reader: exactly these bytes and a terminator on the heap, so that a sanitizer
// sees the first byte read too many; and the end of the run when a reader gives a wrong result.
#ifndef FUZZ_FUZZED_TEXT_H
#define FUZZ_FUZZED_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace fuzz {

class Text {
 public:
  Text(const uint8_t* data, std::size_t size) : chars_(std::make_unique<char[]>(size + 1)) {
    if (size > 0) std::memcpy(chars_.get(), data, size);
    chars_[size] = '\0';
  }
  const char* c_str() const { return chars_.get(); }
  // Up to the first NUL.
  std::size_t length() const { return std::strlen(chars_.get()); }

 private:
  std::unique_ptr<char[]> chars_;
};

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// What the C library's scan makes of `count` two-digit hexadecimal fields, at most eight.
inline void scan_hex(const char* text, std::size_t count, uint8_t* bytes) {
  char fields[17] = {};
  std::memcpy(fields, text, 2 * count);
  for (std::size_t i = 0; i < count; ++i)
    bytes[i] = 0;
  unsigned v[8] = {};
  (void)std::sscanf(fields, "%2x%2x%2x%2x%2x%2x%2x%2x", &v[0], &v[1], &v[2], &v[3], &v[4], &v[5],
                    &v[6], &v[7]);
  for (std::size_t i = 0; i < count; ++i)
    bytes[i] = static_cast<uint8_t>(v[i]);
}

inline bool same(const uint8_t* bytes, const uint8_t* others, std::size_t count) {
  return std::memcmp(bytes, others, count) == 0;
}

}  // namespace fuzz

#endif  // FUZZ_FUZZED_TEXT_H
