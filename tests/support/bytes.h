// Bytes as tests write and read them: hexadecimal text, records filled by offset, patterns.
#ifndef TESTS_SUPPORT_BYTES_H
#define TESTS_SUPPORT_BYTES_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace test_support {

using Bytes = std::vector<uint8_t>;

// The bytes that a text of hexadecimal digits stands for, e.g. hex("00 00 01 f4"). Blanks and line
// ends are ignored. Throws std::invalid_argument for anything else and for an odd digit.
Bytes hex(std::string_view text);

// n zero bytes.
Bytes zeros(size_t n);

// The bytes of an object as they lie in memory.
template <class Object>
Bytes bytes_of(const Object& object) {
  const auto* first = reinterpret_cast<const uint8_t*>(&object);
  return Bytes(first, first + sizeof(Object));
}

// A record of a fixed size, zeroed, filled by offset. Offsets past the end throw
// std::out_of_range, so that a reply can not be laid out wider than the service sends it.
//   Record(2632).be32(520, 5).text(556, "VSAN0005")
class Record {
 public:
  explicit Record(size_t size) : bytes_(size) {}
  Record& byte(size_t offset, uint8_t value);
  Record& be16(size_t offset, uint16_t value);
  Record& be32(size_t offset, uint32_t value);
  Record& be64(size_t offset, uint64_t value);
  // Numbers as this machine keeps them, for the few fields that travel unconverted.
  Record& host16(size_t offset, uint16_t value);
  Record& host32(size_t offset, uint32_t value);
  Record& host64(size_t offset, uint64_t value);
  Record& put(size_t offset, std::span<const uint8_t> value);
  // The characters without a terminator: the record is zero where nothing was put.
  Record& text(size_t offset, std::string_view value);
  const Bytes& bytes() const { return bytes_; }
  operator Bytes() const { return bytes_; }  // NOLINT: a Record is a way to write Bytes

 private:
  Bytes bytes_;
};

// The bytes of several pieces one after another.
Bytes joined(std::initializer_list<Bytes> pieces);

// Sixteen bytes a line with their offset; at most max_bytes of them.
std::string hexdump(std::span<const uint8_t> bytes, size_t max_bytes = 512);

// Empty when equal; else sizes, the first differing offset, and the lines around it on both sides.
std::string difference(std::span<const uint8_t> expected, std::span<const uint8_t> actual);

// Byte patterns for sweeps over replies: pattern(number, size) for number 0 .. kPatterns - 1. The
// first are all zero, all 0xff, counting up, and text without a terminator; the rest are
// pseudo-random, the same on every run and machine.
inline constexpr unsigned kPatterns = 200;
Bytes pattern(unsigned number, size_t size);

}  // namespace test_support

#endif
