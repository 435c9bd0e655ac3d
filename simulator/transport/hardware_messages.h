// Opcodes of the platform manager.
#ifndef SIMULATOR_TRANSPORT_HARDWARE_MESSAGES_H
#define SIMULATOR_TRANSPORT_HARDWARE_MESSAGES_H

#include "simulator/transport/message.h"

namespace switch_sim {

// Of the synchronous call.
inline constexpr uint32_t kPhysicalEntity = 1026;
inline constexpr uint32_t kModule = 1029;

// Of client functions.
inline constexpr uint32_t kEntityOfSlot = 0x13001;
inline constexpr uint32_t kSlotOfEntity = 0x13002;
inline constexpr uint32_t kSerialProm = 0x13003;
inline constexpr uint32_t kChassisId = 0x13004;

inline constexpr size_t kSerialPromSize = 498;

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_HARDWARE_MESSAGES_H
