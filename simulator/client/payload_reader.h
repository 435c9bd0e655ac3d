// Reading the payload of a reply message. Every function stays inside the payload.
#ifndef SIMULATOR_CLIENT_PAYLOAD_READER_H
#define SIMULATOR_CLIENT_PAYLOAD_READER_H

#include "simulator/transport/message.h"

namespace switch_sim {

// The big-endian word at an offset; 0 where the payload ends before it.
inline uint32_t be32_at(const Bytes& payload, size_t offset) {
  if (payload.size() < 4 || offset > payload.size() - 4) return 0;
  uint32_t value = 0;
  for (size_t i = 0; i < 4; ++i) {
    value = value << 8 | std::to_integer<uint32_t>(payload[offset + i]);
  }
  return value;
}

}  // namespace switch_sim

#endif  // SIMULATOR_CLIENT_PAYLOAD_READER_H
