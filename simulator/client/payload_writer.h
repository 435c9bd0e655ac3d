// Building requests, and bringing replies into the byte order of this machine.
#ifndef SIMULATOR_CLIENT_PAYLOAD_WRITER_H
#define SIMULATOR_CLIENT_PAYLOAD_WRITER_H

#include <algorithm>
#include <bit>

#include "simulator/transport/message.h"

namespace switch_sim {

inline void append_be32(Bytes& bytes, uint32_t value) {
  for (const int shift : {24, 16, 8, 0})
    bytes.push_back(static_cast<std::byte>(value >> shift));
}

inline void append_raw(Bytes& bytes, const void* block, size_t size) {
  const auto* first = static_cast<const std::byte*>(block);
  bytes.insert(bytes.end(), first, first + size);
}

// A big-endian number of a record, where the reply holds all of it.
inline void to_host(Bytes& bytes, size_t offset, size_t width) {
  if (std::endian::native == std::endian::big || offset + width > bytes.size()) return;
  const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
  std::reverse(first, first + static_cast<std::ptrdiff_t>(width));
}

}  // namespace switch_sim

#endif  // SIMULATOR_CLIENT_PAYLOAD_WRITER_H
