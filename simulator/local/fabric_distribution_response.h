// The answer of the fabric distribution service to a discovery. Numbers are big-endian.
//
//   0   result code (kfs_rcode2str)
//   4   number of answers n
//   8   n answers of 60 bytes:
//         0   1 when the peer answered, 0 when it kept silent (the iterator gives null for it)
//         4   switch WWN, 8 bytes
//         12  zeros
//         40  address family, 1 IPv4, 2 IPv6
//         44  address, 16 bytes; an IPv4 address in the first four
#ifndef SIMULATOR_LOCAL_FABRIC_DISTRIBUTION_RESPONSE_H
#define SIMULATOR_LOCAL_FABRIC_DISTRIBUTION_RESPONSE_H

#include <cstddef>
#include <cstdint>

namespace switch_sim::distribution {

inline constexpr size_t kHeaderSize = 8;
inline constexpr size_t kAnswerSize = 60;

// Result codes.
inline constexpr int32_t kSuccess = 0;
inline constexpr int32_t kMalformed = 1;
inline constexpr int32_t kUnknownApplication = 2;
inline constexpr int32_t kNotAvailable = 3;

// Iterators given out by kfs_iter_parse_response and not yet destroyed, in the whole process.
int64_t iterators_outstanding();

}  // namespace switch_sim::distribution

#endif  // SIMULATOR_LOCAL_FABRIC_DISTRIBUTION_RESPONSE_H
