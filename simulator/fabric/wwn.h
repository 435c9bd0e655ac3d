// A World Wide Name, most significant byte first.
#ifndef SIMULATOR_FABRIC_WWN_H
#define SIMULATOR_FABRIC_WWN_H

#include <array>
#include <cstdint>

namespace switch_sim {

struct Wwn {
  std::array<uint8_t, 8> bytes{};
  friend bool operator==(const Wwn&, const Wwn&) = default;
  friend bool operator<(const Wwn& left, const Wwn& right) { return left.bytes < right.bytes; }
};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_WWN_H
