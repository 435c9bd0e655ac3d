// IPv4 addresses of interfaces, and which FCIP interface uses which Ethernet port.
//
// Address: the request is an interface index and its type, the reply the four bytes of the address.
// Bindings: the request is an interface index, the reply a count and as many interface indexes.
#include <utility>

#include "simulator/fabric/topology.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

Outcome list_reply(const std::vector<uint32_t>& indexes) {
  ReplyWriter writer(4 + indexes.size() * 4);
  writer.be32(0, static_cast<uint32_t>(indexes.size()));
  for (size_t i = 0; i < indexes.size(); ++i)
    writer.be32(4 + i * 4, indexes[i]);
  return reply(std::move(writer).take());
}

// The interface that a request for its bindings names; a refusal when it is not of that type.
Outcome find_bound(const Request& request, const Switch& local, InterfaceType type,
                   const Interface** found) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != 4) return refuse(status::kBadLength);
  const uint32_t if_index = RequestReader(request.body).be32(0);
  if (type_bits(if_index) != static_cast<uint8_t>(type)) return refuse(status::kBadValue);
  *found = find_interface(local, if_index);
  return *found != nullptr ? Outcome{} : refuse(status::kNotFound);
}

}  // namespace

Outcome interface_address(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != 8) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  const uint32_t if_index = reader.be32(0);
  if (!is_ethernet_like(if_index) || reader.be32(4) != type_bits(if_index)) {
    return refuse(status::kBadValue);
  }
  const Interface* port = find_interface(local_switch(std::as_const(fabric)), if_index);
  const std::array<uint8_t, 4> none{};
  if (port == nullptr || port->address == none) return refuse(status::kNotFound);
  ReplyWriter writer(4);
  writer.raw(0, port->address.data(), port->address.size());
  return reply(std::move(writer).take());
}

Outcome fcip_of_ethernet(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  const Switch& local = local_switch(std::as_const(fabric));
  const Interface* port = nullptr;
  Outcome refused = find_bound(request, local, InterfaceType::ethernet, &port);
  if (refused.status != status::kOk) return refused;
  return list_reply(topology_of(fabric).fcip_of(local.wwn, port->if_index));
}

Outcome ethernet_of_fcip(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  const Switch& local = local_switch(std::as_const(fabric));
  const Interface* port = nullptr;
  Outcome refused = find_bound(request, local, InterfaceType::fcip, &port);
  if (refused.status != status::kOk) return refused;
  return list_reply({port->ethernet});
}

}  // namespace switch_sim::services
