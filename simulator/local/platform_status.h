// Status codes that the simulated services answer. A positive status is the platform's, with the
// service family in bits 16..23; a negative one is the transport's.
#ifndef SIMULATOR_LOCAL_PLATFORM_STATUS_H
#define SIMULATOR_LOCAL_PLATFORM_STATUS_H

#include <cstdint>

namespace switch_sim::status {

inline constexpr int32_t kOk = 0;
inline constexpr int32_t kTransportFailure = -1;

inline constexpr int32_t kNotFound = 0x40010001;
inline constexpr int32_t kEndOfTable = 0x40010002;
inline constexpr int32_t kBadLength = 0x40010003;
inline constexpr int32_t kBadOperation = 0x40010004;
inline constexpr int32_t kBadValue = 0x40010005;
inline constexpr int32_t kNotRunning = 0x40010006;
inline constexpr int32_t kUnknownOpcode = 0x40010007;
inline constexpr int32_t kServiceNotAvailable = 0x40010008;
inline constexpr int32_t kFabricNotUsable = 0x40010009;
inline constexpr int32_t kStateNotSaved = 0x4001000A;
inline constexpr int32_t kNotRecorded = 0x4001000B;
inline constexpr int32_t kNoMemory = 0x4001000C;
inline constexpr int32_t kAttributeNotSupported = 0x40150001;
inline constexpr int32_t kPortInChannel = 0x40150002;
inline constexpr int32_t kQueryRejected = 0x4025000A;
inline constexpr int32_t kBadSystemInformationItem = 0x40490001;

}  // namespace switch_sim::status

#endif  // SIMULATOR_LOCAL_PLATFORM_STATUS_H
