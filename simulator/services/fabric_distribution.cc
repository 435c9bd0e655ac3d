// The fabric distribution service: which other switches of the fabric can be reached. The layout of
// its answer is told in simulator/local/fabric_distribution_response.h.
#include "simulator/local/fabric_distribution_response.h"

#include <algorithm>

#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kRequestSize = 28;
constexpr uint32_t kPeersApplication = 126;

Bytes write_failure(int32_t code) {
  ReplyWriter reply(distribution::kHeaderSize);
  reply.be32(0, static_cast<uint32_t>(code));
  return std::move(reply).take();
}

// A peer is reached through a VSAN in which both switches take part. Another maker's switch does
// not know the service.
bool is_reachable(const Fabric& fabric, const Switch& peer) {
  if (is_of_another_maker(peer.wwn)) return false;
  return std::any_of(fabric.vsans.begin(), fabric.vsans.end(), [&](const Vsan& vsan) {
    const DomainManager* local = find_domain(vsan, fabric.local_switch);
    const DomainManager* remote = find_domain(vsan, peer.wwn);
    return local != nullptr && remote != nullptr && is_running(vsan, *local) &&
           is_running(vsan, *remote);
  });
}

}  // namespace

Outcome discover_peers(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kRequestSize) return refuse(status::kBadLength);
  // The application number travels in host order.
  if (RequestReader(request.body).native32(24) != kPeersApplication) {
    return reply(write_failure(distribution::kUnknownApplication));
  }
  std::vector<const Switch*> peers;
  for (const Switch& candidate : fabric.switches) {
    if (candidate.wwn != fabric.local_switch && is_reachable(fabric, candidate)) {
      peers.push_back(&candidate);
    }
  }
  ReplyWriter writer(distribution::kHeaderSize + peers.size() * distribution::kAnswerSize);
  writer.be32(0, distribution::kSuccess).be32(4, static_cast<uint32_t>(peers.size()));
  for (size_t i = 0; i < peers.size(); ++i) {
    const size_t entry = distribution::kHeaderSize + i * distribution::kAnswerSize;
    writer.be32(entry, 1)
        .wwn(entry + 4, peers[i]->wwn)
        .be32(entry + 40, static_cast<uint32_t>(peers[i]->address.family))
        .raw(entry + 44, peers[i]->address.bytes.data(), peers[i]->address.bytes.size());
  }
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
