// The fabric distribution service's client function that sends; what it answers is taken apart by
// the functions of simulator/local.
#include <switch_platform/fabric_distribution.h>

#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"

using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Platform;

int32_t kfs_discover_peers(int32_t q, const void* request, int32_t /*two*/, mts_msg_t** message) {
  if (request == nullptr || message == nullptr) return switch_sim::status::kBadValue;
  *message = nullptr;
  return on_platform(switch_sim::status::kNoMemory, [&](Platform& platform) {
    const auto* bytes = static_cast<const std::byte*>(request);
    *message =
        platform.send(q, {switch_sim::Service::fabric_distribution, switch_sim::kDiscoverPeers,
                          switch_sim::kGet, Bytes(bytes, bytes + 28)});
    if (*message != nullptr) return switch_sim::status::kOk;
    errno = EBADF;
    return switch_sim::status::kTransportFailure;
  });
}
