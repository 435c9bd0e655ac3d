// The fabric configuration server's client functions: names and addresses of the switches of a
// VSAN.
#include <switch_platform/fabric_configuration.h>

#include "simulator/client/payload_reader.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"

using switch_sim::be32_at;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Platform;

namespace {

constexpr size_t kHeaderSize = 8;
constexpr size_t kEntrySize = 396;

}  // namespace

// The second argument names the VSAN.
int32_t fcs_send_get_inet_addr(int32_t q, int32_t one, mts_msg_t** request) {
  if (request == nullptr) return switch_sim::status::kBadValue;
  *request = nullptr;
  return on_platform(switch_sim::status::kNoMemory, [&](Platform& platform) {
    const auto vsan = static_cast<uint32_t>(one);
    Bytes body;
    for (const int shift : {24, 16, 8, 0})
      body.push_back(static_cast<std::byte>(vsan >> shift));
    *request = platform.send(q, {switch_sim::Service::fabric_configuration,
                                 switch_sim::kSwitchAddresses, switch_sim::kGet, body});
    if (*request != nullptr) return switch_sim::status::kOk;
    errno = EBADF;
    return switch_sim::status::kTransportFailure;
  });
}

int32_t fcs_parse_get_inet_addr(mts_msg_t* reply, int32_t* status, int32_t* count, void** list) {
  if (status == nullptr || count == nullptr || list == nullptr) {
    return switch_sim::status::kBadValue;
  }
  *status = 0;
  *count = 0;
  *list = nullptr;
  return on_platform(switch_sim::status::kNoMemory, [&](Platform& platform) {
    if (!platform.holds(reply)) return switch_sim::status::kTransportFailure;
    if (reply->status != 0) return reply->status;
    const Bytes& payload = reply->payload;
    if (payload.size() < kHeaderSize) return switch_sim::status::kBadLength;
    const uint32_t announced = be32_at(payload, 4);
    if (announced > (payload.size() - kHeaderSize) / kEntrySize) {
      return switch_sim::status::kBadLength;
    }
    const auto entries = payload.begin() + kHeaderSize;
    *list =
        platform.hand_out({entries, entries + static_cast<std::ptrdiff_t>(announced * kEntrySize)});
    *status = static_cast<int32_t>(be32_at(payload, 0));
    *count = static_cast<int32_t>(announced);
    return switch_sim::status::kOk;
  });
}
