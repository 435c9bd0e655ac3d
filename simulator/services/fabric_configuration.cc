// The fabric configuration server: the interconnect elements (switches) of each VSAN.
//
// Elements of a VSAN (opcode 1401): the request is the VSAN and a zero word; the reply a count and
// 12 bytes per element, its WWN at 0 and a non-zero byte at 10.
//
// Data (opcode 1402): a selector word and what it needs. Selector 20, one element: VSAN at 4 and
// WWN at 8 of the request; the reply has 32 bytes, VSAN at 0, WWN at 4, type (1: switch) at 12,
// domain ID at 16, management FC ID at 20.
//
// A switch shows its VSAN WWN in each VSAN. Another maker's switch registers no address.
#include <algorithm>

#include "simulator/fabric/topology.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kElementsRequestSize = 8;
constexpr size_t kElementRequestSize = 16;
constexpr size_t kElementSize = 32;
constexpr uint32_t kElementSelector = 20;
constexpr uint32_t kSwitchType = 1;
constexpr size_t kAddressSize = 396;

// The server tells about a VSAN only while the local switch takes part in it.
bool serves(const Fabric& fabric, const Vsan& vsan) {
  const DomainManager* local = find_domain(vsan, fabric.local_switch);
  return local != nullptr && is_running(vsan, *local);
}

Bytes write_element(const Vsan& vsan, const Element& element) {
  const uint32_t domain_id = vsan.domains[element.domain].domain_id;
  ReplyWriter reply(kElementSize);
  reply.be32(0, vsan.number)
      .wwn(4, element.wwn)
      .be32(12, kSwitchType)
      .be32(16, domain_id)
      .be32(20, 0xFFFC00 | domain_id);
  return std::move(reply).take();
}

bool before(const Element& element, const Wwn& wwn) {
  return element.wwn < wwn;
}

bool after(const Wwn& wwn, const Element& element) {
  return wwn < element.wwn;
}

Outcome exact_element(const Fabric& fabric, uint32_t number, const Wwn& wwn) {
  const Vsan* vsan = find_vsan(fabric, number);
  if (vsan == nullptr) return refuse(status::kNotFound);
  if (!serves(fabric, *vsan)) return refuse(status::kNotRunning);
  const auto& elements = topology_of(fabric).elements_of(*vsan);
  const auto found = std::lower_bound(elements.begin(), elements.end(), wwn, before);
  if (found == elements.end() || found->wwn != wwn) return refuse(status::kNotFound);
  return reply(write_element(*vsan, *found));
}

// The element after (VSAN, WWN); the table goes on in the next VSAN.
Outcome next_element(const Fabric& fabric, uint32_t number, const Wwn& wwn) {
  if (const Vsan* vsan = find_vsan(fabric, number); vsan != nullptr && serves(fabric, *vsan)) {
    const auto& elements = topology_of(fabric).elements_of(*vsan);
    const auto found = std::upper_bound(elements.begin(), elements.end(), wwn, after);
    if (found != elements.end()) return reply(write_element(*vsan, *found));
  }
  for (const Vsan* vsan = next_vsan(fabric, number); vsan != nullptr;
       vsan = next_vsan(fabric, vsan->number)) {
    if (!serves(fabric, *vsan)) continue;
    return reply(write_element(*vsan, topology_of(fabric).elements_of(*vsan).front()));
  }
  return refuse(status::kEndOfTable);
}

}  // namespace

Outcome interconnect_elements(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != kElementsRequestSize) return refuse(status::kBadLength);
  const Vsan* vsan = find_vsan(fabric, RequestReader(request.body).be32(0));
  if (vsan == nullptr) return refuse(status::kNotFound);
  if (!serves(fabric, *vsan)) return refuse(status::kNotRunning);

  const auto& elements = topology_of(fabric).elements_of(*vsan);
  ReplyWriter writer(4 + elements.size() * 12);
  writer.be32(0, static_cast<uint32_t>(elements.size()));
  for (size_t i = 0; i < elements.size(); ++i) {
    writer.wwn(4 + i * 12, elements[i].wwn).u8(4 + i * 12 + 10, kSwitchType);
  }
  return reply(std::move(writer).take());
}

Outcome fabric_configuration_data(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() < 4) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  if (reader.be32(0) != kElementSelector) return refuse(status::kBadValue);
  if (request.body.size() != kElementRequestSize) return refuse(status::kBadLength);
  switch (request.operation) {
    case kGet:
      return exact_element(fabric, reader.be32(4), reader.wwn(8));
    case kGetNext:
      return next_element(fabric, reader.be32(4), reader.wwn(8));
    default:
      return refuse(status::kBadOperation);
  }
}

// The reply of the client function: status 1 at 0, the number of entries at 4, then 396 bytes per
// switch of the VSAN: VSAN WWN at 0, address family at 8 and address at 12, domain ID at 360, name
// at 364 (32 bytes).
Outcome switch_addresses(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != 4) return refuse(status::kBadLength);
  const Vsan* vsan = find_vsan(fabric, RequestReader(request.body).be32(0));
  if (vsan == nullptr) return refuse(status::kNotFound);
  if (!serves(fabric, *vsan)) return refuse(status::kNotRunning);

  auto elements = topology_of(fabric).elements_of(*vsan);
  std::erase_if(elements, [](const Element& element) { return is_of_another_maker(element.wwn); });
  ReplyWriter writer(8 + elements.size() * kAddressSize);
  writer.be32(0, 1).be32(4, static_cast<uint32_t>(elements.size()));
  for (size_t i = 0; i < elements.size(); ++i) {
    const size_t entry = 8 + i * kAddressSize;
    const Switch& owner = *find_switch(fabric, vsan->domains[elements[i].domain].switch_wwn);
    writer.wwn(entry, elements[i].wwn)
        .be32(entry + 8, static_cast<uint32_t>(owner.address.family))
        .raw(entry + 12, owner.address.bytes.data(), owner.address.bytes.size())
        .u8(entry + 360, vsan->domains[elements[i].domain].domain_id)
        .text(entry + 364, 32, owner.name);
  }
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
