// Interface indexes as the platform's local functions take them apart, and records of interfaces.
#pragma once

#include <cstring>

#include "tests/support/bytes.h"

#include <cim_utils/port_manager.h>

namespace test_support {

inline constexpr uint32_t kFc = 0x01010001;             // fc1/1
inline constexpr uint32_t kFcNext = 0x01010002;         // fc1/2
inline constexpr uint32_t kEthernet = 0x02020003;       // gigabitethernet2/3
inline constexpr uint32_t kChannel = 0x04000005;        // port-channel 5
inline constexpr uint32_t kEtherChannel = 0x04010006;   // ethernet-channel 6
inline constexpr uint32_t kManagement = 0x05000001;     // mgmt0
inline constexpr uint32_t kInBand = 0x06000001;         // sup-fc0
inline constexpr uint32_t kFcip = 0x0a000007;           // fcip7
inline constexpr uint32_t kIscsi = 0x0b030004;          // iscsi3/4
inline constexpr uint32_t kVsanInterface = 0x0e000001;  // vsan1
inline constexpr uint32_t kUnknown = 0x03000001;        // of no type

// A record of the interface, as the port manager's client library hands it out.
inline Record port_record(uint32_t if_index) {
  return Record(204)
      .host32(0, if_index)
      .text(8, "uplink")
      .put(127, hex("20 41 00 0d ec 01 02 03"))
      .put(135, hex("00 7f 0e ff"));
}

inline pm_port_info_ info_of(const Bytes& record) {
  pm_port_info_ info;
  std::memcpy(&info, record.data(), sizeof info);
  return info;
}

}  // namespace test_support
