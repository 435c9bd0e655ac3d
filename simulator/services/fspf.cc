// FSPF: the link-state records of the switches of a VSAN (opcode 53).
//
// The request is nine words: VSAN, domain ID, 1, zeros. The reply has a header of nine words, VSAN,
// domain ID, 1 (a switch link record), and the number of links at 28; then nine words per link:
// VSAN, domain ID, 1 (point to point), 0, the far end's domain ID, the interface indexes of both
// ends as FSPF writes them (port numbers on another maker's switch), cost, 0.
#include "simulator/fabric/topology.h"
#include "simulator/local/fspf_if_index.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kWords = 36;
constexpr uint32_t kSwitchLinkRecord = 1;
constexpr uint32_t kPointToPoint = 1;

const DomainManager* find_running(const Vsan& vsan, uint32_t domain_id) {
  for (const DomainManager& domain : vsan.domains) {
    if (is_running(vsan, domain) && domain.domain_id == domain_id) return &domain;
  }
  return nullptr;
}

uint32_t index_of(const LinkEnd& end) {
  if (is_of_another_maker(end.switch_wwn)) return port_number(end.if_index);
  return to_fspf_if_index(end.if_index).value_or(0);
}

// 1000 for a link of 1 Gb/s, the faster the less.
uint32_t cost_of(const RoutedLink& link) {
  return link.speed != 0 ? 1'000'000 / link.speed : 0;
}

Outcome find_record(const Fabric& fabric, uint32_t number, uint32_t domain_id, const Vsan** vsan,
                    const DomainManager** owner) {
  *vsan = find_vsan(fabric, number);
  if (*vsan == nullptr) return refuse(status::kNotFound);
  const DomainManager* local = find_domain(**vsan, fabric.local_switch);
  if (local == nullptr || !is_running(**vsan, *local)) return refuse(status::kNotRunning);
  *owner = find_running(**vsan, domain_id);
  return *owner != nullptr ? Outcome{} : refuse(status::kNotFound);
}

}  // namespace

Outcome link_state_record(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != kWords) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  const uint32_t number = reader.be32(0);
  const uint32_t domain_id = reader.be32(4);
  if (reader.be32(8) != 1) return refuse(status::kBadValue);
  const Vsan* vsan = nullptr;
  const DomainManager* owner = nullptr;
  Outcome refused = find_record(fabric, number, domain_id, &vsan, &owner);
  if (refused.status != status::kOk) return refused;

  const auto links = topology_of(fabric).links_of(fabric, owner->switch_wwn, number);
  ReplyWriter writer(kWords * (1 + links.size()));
  writer.be32(0, number).be32(4, domain_id).be32(8, kSwitchLinkRecord);
  writer.be32(28, static_cast<uint32_t>(links.size()));
  for (size_t i = 0; i < links.size(); ++i) {
    const size_t entry = kWords * (1 + i);
    const RoutedLink& link = links[i];
    writer.be32(entry, number)
        .be32(entry + 4, domain_id)
        .be32(entry + 8, kPointToPoint)
        .be32(entry + 16, find_domain(*vsan, link.there.switch_wwn)->domain_id)
        .be32(entry + 20, index_of(link.here))
        .be32(entry + 24, index_of(link.there))
        .be32(entry + 28, cost_of(link));
  }
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
