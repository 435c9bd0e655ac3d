// The name server: the devices that are logged into the fabric.
//
// A query is the VSAN, an attribute selector (two bytes), two zero bytes, and a WWN or a port type.
// The reply is the number of entries, then 772 bytes for each: 1 in the first word when the entry
// before it is of the same device, and the record of 768: VSAN at 4, FC ID at 9, port WWN at 12,
// map of FC-4 types at 36, port type at 196, node WWN at 200, IP address at 208, WWN of the switch
// port at 236. A query that finds nothing is rejected as FC-GS says, with a reason and an
// explanation.
//
// Devices of an FC-4 type: the query is VSAN, FC-4 type, and a node or port WWN; the reply the
// number of devices, then 24 bytes for each, its FC ID at 1.
#include <algorithm>

#include "simulator/fabric/topology.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"
#include "simulator/transport/port_messages.h"

namespace switch_sim::services {
namespace {

constexpr size_t kQueryHeader = 8;
constexpr uint32_t kAnyNxPort = 127;
constexpr uint32_t kUnableToPerform = 9;  // reason
constexpr uint32_t kAllAttributes = 0x0A47;
constexpr uint32_t kFabricPortAttributes = 0x0114;

// Explanations of a rejected query.
constexpr uint32_t kPortNameNotRegistered = 2;
constexpr uint32_t kNodeNameNotRegistered = 3;
constexpr uint32_t kPortTypeNotRegistered = 10;
constexpr uint32_t kFabricPortNameNotRegistered = 12;

Outcome reject(uint32_t explanation) {
  ReplyWriter writer(8);
  writer.be32(0, kUnableToPerform).be32(4, explanation);
  Outcome outcome = reply(std::move(writer).take());
  outcome.status = status::kQueryRejected;
  return outcome;
}

uint32_t port_type(const Device& device) {
  return static_cast<uint32_t>(device.kind);
}

void write_entry(ReplyWriter& writer, size_t offset, const Registration& entry,
                 const Device& device) {
  writer.be32(offset + 4, entry.vsan)
      .raw(offset + 9, entry.fc_id.data(), entry.fc_id.size())
      .wwn(offset + 12, device.port_wwn)
      .be32(offset + 196, port_type(device))
      .wwn(offset + 200, device.node_wwn)
      .raw(offset + 220, device.address.data(), device.address.size())
      .wwn(offset + 236, entry.fabric_port);
  std::array<uint32_t, 8> types{};
  for (const uint8_t type : device.fc4_types)
    types[type / 32] |= 1U << (type % 32);
  for (size_t i = 0; i < types.size(); ++i)
    writer.be32(offset + 36 + i * 4, types[i]);
}

Outcome list_entries(const Fabric& fabric, const std::vector<Registration>& entries,
                     uint32_t explanation) {
  if (entries.empty()) return reject(explanation);
  size_t count = 0;
  for (const Registration& entry : entries)
    count += fabric.devices[entry.device].registered_twice ? 2 : 1;
  ReplyWriter writer(4 + count * (4 + kDeviceRecordSize));
  writer.be32(0, static_cast<uint32_t>(count));
  size_t offset = 4;
  for (const Registration& entry : entries) {
    const Device& device = fabric.devices[entry.device];
    for (uint32_t copy = 0; copy < (device.registered_twice ? 2U : 1U); ++copy) {
      writer.be32(offset, copy);
      write_entry(writer, offset + 4, entry, device);
      offset += 4 + kDeviceRecordSize;
    }
  }
  return reply(std::move(writer).take());
}

Outcome serve(const Fabric& fabric, uint32_t number) {
  const Vsan* vsan = find_vsan(fabric, number);
  if (vsan == nullptr) return refuse(status::kNotFound);
  const DomainManager* local = find_domain(*vsan, fabric.local_switch);
  if (local == nullptr || !is_running(*vsan, *local)) return refuse(status::kNotRunning);
  return {};
}

Outcome devices_of_type(const Fabric& fabric, uint32_t vsan, uint32_t type) {
  auto entries = topology_of(fabric).in_vsan(vsan);
  if (type != kAnyNxPort) {
    std::erase_if(entries, [&](const Registration& entry) {
      return port_type(fabric.devices[entry.device]) != type;
    });
  }
  return list_entries(fabric, entries, kPortTypeNotRegistered);
}

}  // namespace

Outcome registered_devices(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  const bool by_type = request.opcode == kDevicesOfPortType;
  if (request.body.size() != kQueryHeader + (by_type ? 4 : 8)) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  const uint32_t vsan = reader.be32(0);
  const uint32_t selector = reader.be32(4) >> 16;
  if (selector != kAllAttributes && selector != kFabricPortAttributes) {
    return refuse(status::kBadValue);
  }
  Outcome refused = serve(fabric, vsan);
  if (refused.status != status::kOk) return refused;
  if (by_type) return devices_of_type(fabric, vsan, reader.be32(kQueryHeader));

  const Topology& topology = topology_of(fabric);
  const Wwn wwn = reader.wwn(kQueryHeader);
  switch (request.opcode) {
    case kDeviceWithPortName:
      return list_entries(fabric, topology.with_port_wwn(vsan, wwn), kPortNameNotRegistered);
    case kDevicesWithNodeName:
      return list_entries(fabric, topology.with_node_wwn(vsan, wwn), kNodeNameNotRegistered);
    default:
      return list_entries(fabric, topology.with_fabric_port(vsan, wwn),
                          kFabricPortNameNotRegistered);
  }
}

Outcome fc4_devices(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != 16) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  const uint32_t vsan = reader.be32(0);
  const uint32_t type = reader.be32(4);
  if (type > 255) return refuse(status::kBadValue);
  Outcome refused = serve(fabric, vsan);
  if (refused.status != status::kOk) return refused;

  const Topology& topology = topology_of(fabric);
  auto entries = topology.with_node_wwn(vsan, reader.wwn(8));
  if (entries.empty()) entries = topology.with_port_wwn(vsan, reader.wwn(8));
  std::erase_if(entries, [&](const Registration& entry) {
    const auto& types = fabric.devices[entry.device].fc4_types;
    return !std::binary_search(types.begin(), types.end(), static_cast<uint8_t>(type));
  });
  ReplyWriter writer(4 + entries.size() * kFc4DeviceSize);
  writer.be32(0, static_cast<uint32_t>(entries.size()));
  for (size_t i = 0; i < entries.size(); ++i) {
    writer.raw(4 + i * kFc4DeviceSize + 1, entries[i].fc_id.data(), entries[i].fc_id.size());
  }
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
