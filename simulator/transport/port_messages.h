// Services and opcodes of the client functions about ports, devices and links.
#ifndef SIMULATOR_TRANSPORT_PORT_MESSAGES_H
#define SIMULATOR_TRANSPORT_PORT_MESSAGES_H

#include "simulator/transport/message.h"

namespace switch_sim {

inline constexpr auto kNameServer = static_cast<Service>(257);
inline constexpr auto kIpConfiguration = static_cast<Service>(258);
inline constexpr auto kIpStorage = static_cast<Service>(259);

// Of the synchronous call.
inline constexpr uint32_t kLinkStateRecord = 53;
inline constexpr uint32_t kPortChannelEntry = 620;

// Of client functions.
inline constexpr uint32_t kPortConfiguration = 0x11001;
inline constexpr uint32_t kPortAttribute = 0x11002;
inline constexpr uint32_t kTransceiver = 0x11003;
inline constexpr uint32_t kPortCounters = 0x11004;
inline constexpr uint32_t kInterfaceAddress = 0x11005;
inline constexpr uint32_t kFcipOfEthernet = 0x11006;
inline constexpr uint32_t kEthernetOfFcip = 0x11007;
inline constexpr uint32_t kDeviceWithPortName = 0x12001;
inline constexpr uint32_t kDevicesWithNodeName = 0x12002;
inline constexpr uint32_t kDevicesBehindFabricPort = 0x12003;
inline constexpr uint32_t kDevicesOfPortType = 0x12004;
inline constexpr uint32_t kFc4Devices = 0x12005;

// Sizes of records, the same on the wire as in a caller's hands.
inline constexpr size_t kPortRecordSize = 204;
inline constexpr size_t kCountersSize = 600;
inline constexpr size_t kDeviceRecordSize = 768;
inline constexpr size_t kFc4DeviceSize = 24;

// Attributes of an interface that can be set.
inline constexpr uint32_t kAdminStateAttribute = 1;  // one byte
inline constexpr uint32_t kModeAttribute = 2;        // a word
inline constexpr uint32_t kSpeedAttribute = 3;       // a word
inline constexpr uint32_t kAliasAttribute = 6;       // 81 bytes

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_PORT_MESSAGES_H
