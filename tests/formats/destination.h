// A caller's text buffer of exactly the promised room, on the heap, so that a sanitizer sees the
// first byte too many.
#ifndef TESTS_FORMATS_DESTINATION_H
#define TESTS_FORMATS_DESTINATION_H

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

namespace formats_test {

class Destination {
 public:
  explicit Destination(std::size_t room) : room_(room), bytes_(std::make_unique<char[]>(room)) {
    std::memset(bytes_.get(), kUntouched, room);
  }
  operator char*() { return bytes_.get(); }
  std::string text() const { return {bytes_.get(), strnlen(bytes_.get(), room_)}; }
  // Nothing was written behind the terminator.
  bool rest_is_untouched() const {
    for (std::size_t i = text().size() + 1; i < room_; ++i) {
      if (bytes_[i] != kUntouched) return false;
    }
    return true;
  }
  bool is_untouched() const { return bytes_[0] == kUntouched; }

 private:
  static constexpr char kUntouched = '\x5A';
  std::size_t room_;
  std::unique_ptr<char[]> bytes_;
};

}  // namespace formats_test

#endif  // TESTS_FORMATS_DESTINATION_H
