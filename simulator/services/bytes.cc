#include "simulator/services/bytes.h"

#include <algorithm>
#include <cstring>

namespace switch_sim {

ReplyWriter& ReplyWriter::u8(size_t offset, uint32_t value) {
  bytes_.at(offset) = static_cast<std::byte>(value);
  return *this;
}

ReplyWriter& ReplyWriter::be32(size_t offset, uint32_t value) {
  return u8(offset, value >> 24)
      .u8(offset + 1, value >> 16)
      .u8(offset + 2, value >> 8)
      .u8(offset + 3, value);
}

ReplyWriter& ReplyWriter::be16(size_t offset, uint32_t value) {
  return u8(offset, value >> 8).u8(offset + 1, value);
}

ReplyWriter& ReplyWriter::be64(size_t offset, uint64_t value) {
  return be32(offset, static_cast<uint32_t>(value >> 32))
      .be32(offset + 4, static_cast<uint32_t>(value));
}

ReplyWriter& ReplyWriter::wwn(size_t offset, const Wwn& value) {
  return raw(offset, value.bytes.data(), value.bytes.size());
}

ReplyWriter& ReplyWriter::raw(size_t offset, const uint8_t* bytes, size_t size) {
  for (size_t i = 0; i < size; ++i)
    u8(offset + i, bytes[i]);
  return *this;
}

ReplyWriter& ReplyWriter::text(size_t offset, size_t width, std::string_view value) {
  const size_t length = std::min(value.size(), width - 1);
  for (size_t i = 0; i < length; ++i)
    u8(offset + i, static_cast<uint8_t>(value[i]));
  return u8(offset + length, 0);
}

uint8_t RequestReader::u8(size_t offset) const {
  return std::to_integer<uint8_t>(bytes_.at(offset));
}

uint32_t RequestReader::be32(size_t offset) const {
  return static_cast<uint32_t>(u8(offset)) << 24 | u8(offset + 1) << 16 | u8(offset + 2) << 8 |
         u8(offset + 3);
}

uint32_t RequestReader::native32(size_t offset) const {
  uint32_t value = 0;
  const uint8_t bytes[4] = {u8(offset), u8(offset + 1), u8(offset + 2), u8(offset + 3)};
  memcpy(&value, bytes, sizeof value);
  return value;
}

Wwn RequestReader::wwn(size_t offset) const {
  Wwn value;
  for (size_t i = 0; i < value.bytes.size(); ++i)
    value.bytes[i] = u8(offset + i);
  return value;
}

std::optional<std::string> RequestReader::text(size_t offset, size_t width) const {
  std::string value;
  for (size_t i = 0; i < width; ++i) {
    const char character = static_cast<char>(u8(offset + i));
    if (character == '\0') return value;
    value += character;
  }
  return std::nullopt;
}

}  // namespace switch_sim
