// The map of FC-4 types of a name-server entry, as FC-GS lays it out: eight big-endian words, type
// t is bit t % 32 of word t / 32.
#include <switch_platform/name_server.h>

int32_t ns_is_set_fc4_type(const void* fc4_map, uint8_t type) {
  if (fc4_map == nullptr) return 0;
  const auto* bytes = static_cast<const uint8_t*>(fc4_map);
  const unsigned byte = type / 32U * 4 + 3 - type % 32U / 8;
  return bytes[byte] >> (type % 8) & 1;
}
