// Reading requests and writing replies by offset. All numbers are big-endian on the wire, except
// where a function says native.
#ifndef SIMULATOR_SERVICES_BYTES_H
#define SIMULATOR_SERVICES_BYTES_H

#include <string>
#include <string_view>

#include "simulator/fabric/fabric.h"
#include "simulator/transport/message.h"

namespace switch_sim {

// A reply of a fixed size, all zeros at first. Every offset must lie inside.
class ReplyWriter {
 public:
  explicit ReplyWriter(size_t size) : bytes_(size) {}

  ReplyWriter& u8(size_t offset, uint32_t value);
  ReplyWriter& be32(size_t offset, uint32_t value);
  ReplyWriter& be16(size_t offset, uint32_t value);
  ReplyWriter& be64(size_t offset, uint64_t value);
  ReplyWriter& wwn(size_t offset, const Wwn& value);
  ReplyWriter& raw(size_t offset, const uint8_t* bytes, size_t size);

  // A NUL-terminated text in a field of `width` bytes; what does not fit is cut off.
  ReplyWriter& text(size_t offset, size_t width, std::string_view value);

  Bytes take() && { return std::move(bytes_); }

 private:
  Bytes bytes_;
};

// A request whose size the service has tested. Every offset must lie inside.
class RequestReader {
 public:
  explicit RequestReader(const Bytes& bytes) : bytes_(bytes) {}

  uint8_t u8(size_t offset) const;
  uint32_t be32(size_t offset) const;
  uint32_t native32(size_t offset) const;
  Wwn wwn(size_t offset) const;

  // The text of a field of `width` bytes; nothing when no NUL ends it there.
  std::optional<std::string> text(size_t offset, size_t width) const;

 private:
  const Bytes& bytes_;
};

}  // namespace switch_sim

#endif  // SIMULATOR_SERVICES_BYTES_H
