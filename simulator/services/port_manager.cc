// The port manager of the local switch: interfaces, optics, counters and port channels.
//
// Interfaces: the request is an interface index and, with a get-next, means the next interface of
// the same type. The reply is the port record, 204 bytes, big-endian: interface index at 0, status
// (0) at 4, alias at 8 (81 bytes), configured mode, speed and state at 89, 94 and 98, MTU at 102,
// VSAN at 104, port WWN or MAC address at 127, FC ID at 135, operational mode, speed and state at
// 143, 147 and 151, physically enabled at 154, optics present at 201.
//
// Optics of an FC port: 12 bytes, interface index at 0, status (0) at 4, supported at 8, present
// at 9. Counters of an FC port or FC port channel: 600 bytes, interface index at 0, then 64-bit
// counters.
//
// Port channels (opcode 620), 268 bytes: number at 0, interface index at 4, members at 104 (4 bytes
// each) and their length in bytes at 168, a member that works at 188.
#include <utility>

#include "simulator/fabric/counters.h"
#include "simulator/fabric/topology.h"
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"
#include "simulator/transport/port_messages.h"

namespace switch_sim::services {
namespace {

constexpr size_t kChannelSize = 268;
constexpr uint32_t kFcMtu = 2112;  // largest payload of a frame

InterfaceType type_of(uint32_t if_index) {
  return static_cast<InterfaceType>(type_bits(if_index));
}

// The interface that a request names; a refusal when there is none.
Outcome find_named(const Request& request, const Switch& local, const Interface** found) {
  if (request.body.size() != 4) return refuse(status::kBadLength);
  const uint32_t if_index = RequestReader(request.body).be32(0);
  if (request.operation == kGet) {
    *found = find_interface(local, if_index);
    return *found != nullptr ? Outcome{} : refuse(status::kNotFound);
  }
  if (request.operation != kGetNext) return refuse(status::kBadOperation);
  *found = next_interface(local, if_index);
  const bool same_type = *found != nullptr && type_of((*found)->if_index) == type_of(if_index);
  return same_type ? Outcome{} : refuse(status::kEndOfTable);
}

// The FC ID of the device behind an F or iSCSI port; of a loop, that of its switch port, whose last
// byte is 0. None for other ports.
std::array<uint8_t, 4> fc_id_of(const Topology& topology, const LinkEnd& end, PortMode mode) {
  const auto devices = topology.devices_behind(end);
  if (devices.empty()) return {};
  const auto& fc_id = devices.front().fc_id;
  const bool loop = mode == PortMode::fl || mode == PortMode::tl;
  return {0, fc_id[0], fc_id[1], loop ? uint8_t{0} : fc_id[2]};
}

void write_alias(ReplyWriter& writer, const std::string& alias) {
  for (size_t i = 0; i < alias.size() && i < kLongestAlias; ++i)
    writer.u8(8 + i, static_cast<uint8_t>(alias[i]));
}

Bytes write_record(const Fabric& fabric, const Switch& local, const Interface& port) {
  const Topology& topology = topology_of(fabric);
  const PortStatus state = topology.status(local.wwn, port.if_index);
  const uint32_t channel = topology.channel_of(local.wwn, port.if_index);
  // A member works for the VSAN of its channel.
  const uint32_t vsan = channel != 0 ? find_interface(local, channel)->vsan : port.vsan;
  const bool ethernet_like = is_ethernet_like(port.if_index);
  const bool has_optics =
      type_of(port.if_index) == InterfaceType::fibre_channel && port.optics != Optics::none;
  ReplyWriter writer(kPortRecordSize);
  write_alias(writer, port.alias);
  writer.be32(0, port.if_index)
      .be32(89, static_cast<uint32_t>(port.mode))
      .be32(94, port.speed)
      .u8(98, static_cast<uint32_t>(port.admin_state))
      .be16(102, ethernet_like ? port.mtu : kFcMtu)
      .be32(104, ethernet_like ? 0 : vsan)
      .wwn(127, ethernet_like ? mac_address(local.wwn, port.if_index)
                              : port_wwn(local.wwn, port.if_index))
      .be32(143, static_cast<uint32_t>(state.mode))
      .be32(147, state.speed)
      .u8(151, static_cast<uint32_t>(state.state))
      .u8(154, state.physically_enabled ? 1 : 0)
      .u8(201, has_optics ? 1 : 0);
  const auto fc_id = fc_id_of(topology, {local.wwn, port.if_index}, state.mode);
  writer.raw(135, fc_id.data(), fc_id.size());
  return std::move(writer).take();
}

// A channel is found by its number, whichever its kind.
const Interface* find_channel(const Switch& local, uint32_t number) {
  if (number == 0 || number > kLargestChannelNumber) return nullptr;
  const Interface* found =
      find_interface(local, make_if_index(InterfaceType::port_channel, 0, number));
  return found != nullptr ? found
                          : find_interface(local, make_if_index(InterfaceType::port_channel,
                                                                kEthernetChannel, number));
}

// The channel with the lowest number above `after`.
const Interface* next_channel(const Switch& local, uint32_t after) {
  const Interface* lowest = nullptr;
  if (after > kLargestChannelNumber) return nullptr;
  for (const uint32_t kind : {0U, kEthernetChannel}) {
    const uint32_t start = make_if_index(InterfaceType::port_channel, kind, after);
    const Interface* next = next_interface(local, start);
    if (next == nullptr || next->if_index >> 16 != start >> 16) continue;
    if (lowest == nullptr || unit_bits(next->if_index) < unit_bits(lowest->if_index)) lowest = next;
  }
  return lowest;
}

Bytes write_channel(const Fabric& fabric, const Switch& local, const Interface& channel) {
  ReplyWriter writer(kChannelSize);
  uint32_t working = 0;
  for (size_t i = 0; i < channel.members.size(); ++i) {
    const uint32_t member = channel.members[i];
    writer.be32(104 + i * 4, member);
    if (working == 0 && topology_of(fabric).status(local.wwn, member).works()) working = member;
  }
  writer.be32(0, unit_bits(channel.if_index))
      .be32(4, channel.if_index)
      .be32(168, static_cast<uint32_t>(channel.members.size() * 4))
      .be32(188, working);
  return std::move(writer).take();
}

}  // namespace

Outcome port_configuration(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  const Switch& local = local_switch(std::as_const(fabric));
  const Interface* found = nullptr;
  Outcome refused = find_named(request, local, &found);
  if (refused.status != status::kOk) return refused;
  return reply(write_record(fabric, local, *found));
}

Outcome transceiver(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  const Interface* port = nullptr;
  Outcome refused = find_named(request, local_switch(std::as_const(fabric)), &port);
  if (refused.status != status::kOk) return refused;
  if (type_of(port->if_index) != InterfaceType::fibre_channel) {
    return refuse(status::kAttributeNotSupported);
  }
  ReplyWriter writer(12);
  writer.be32(0, port->if_index)
      .u8(8, port->optics == Optics::supported ? 1 : 0)
      .u8(9, port->optics != Optics::none ? 1 : 0);
  return reply(std::move(writer).take());
}

Outcome port_counters(const Request& request, Fabric& fabric, VirtualTime now) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  const Switch& local = local_switch(std::as_const(fabric));
  const Interface* port = nullptr;
  Outcome refused = find_named(request, local, &port);
  if (refused.status != status::kOk) return refused;
  if (type_of(port->if_index) != InterfaceType::fibre_channel && !is_fc_channel(port->if_index)) {
    return refuse(status::kAttributeNotSupported);
  }
  const uint64_t uptime_ms =
      uint64_t{local.system.uptime_hundredths} * 10 + static_cast<uint64_t>(now.count());
  const Counters counters = counters_of(fabric, local, *port, uptime_ms);
  ReplyWriter writer(kCountersSize);
  writer.be32(0, port->if_index);
  for (size_t i = 1; i < counters.size(); ++i)
    writer.be64(i * 8, counters[i]);
  return reply(std::move(writer).take());
}

Outcome port_channel_entry(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kChannelSize) return refuse(status::kBadLength);
  const uint32_t number = RequestReader(request.body).be32(0);
  const Switch& local = local_switch(std::as_const(fabric));
  const Interface* channel = nullptr;
  if (request.operation == kGet) {
    channel = find_channel(local, number);
    if (channel == nullptr) return refuse(status::kNotFound);
  } else if (request.operation == kGetNext) {
    channel = next_channel(local, number);
    if (channel == nullptr) return refuse(status::kEndOfTable);
  } else {
    return refuse(status::kBadOperation);
  }
  return reply(write_channel(fabric, local, *channel));
}

}  // namespace switch_sim::services
