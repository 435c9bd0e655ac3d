// The parts of a name that joins numbers and texts with "_".
#pragma once

#include <string.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace cim_utils {

// Reads at most Room - 1 characters of a name, part by part. Parts that are empty do not count, as
// with strtok.
template <size_t Room>
class NameParts {
 public:
  explicit NameParts(const char* name) { std::memcpy(copy_, name, strnlen(name, Room - 1)); }
  NameParts(const NameParts&) = delete;
  NameParts& operator=(const NameParts&) = delete;

  // The next part; null behind the last one.
  const char* next() {
    const char* part = strtok_r(started_ ? nullptr : copy_, "_", &rest_);
    started_ = true;
    return part;
  }

  // The next part as far as it is a decimal number. False, and nothing stored, without one.
  bool next_number(int32_t* number) {
    const char* part = next();
    if (part == nullptr) return false;
    *number = static_cast<int32_t>(std::strtol(part, nullptr, 10));
    return true;
  }

  // The next part with a terminator, when it is as long as the text of a WWN. False, and nothing
  // stored, when not.
  bool next_wwn(char* text) {
    constexpr size_t kWwnText = 16;
    const char* part = next();
    if (part == nullptr || std::strlen(part) != kWwnText) return false;
    std::memcpy(text, part, kWwnText + 1);
    return true;
  }

 private:
  char copy_[Room] = {};
  char* rest_ = nullptr;
  bool started_ = false;
};

}  // namespace cim_utils
