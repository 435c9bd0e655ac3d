// Changes of an interface. The request is an interface index, an attribute, and its value; the
// reply 8 bytes, the interface index at 0 and a status at 4: the service refuses a value there, and
// the exchange as a whole only for an interface that is not there.
//
//   1 configured state (a byte: 1 up, 2 down)   2 mode (a word)
//   3 speed in Mb/s (a word)                    6 alias (81 bytes, NUL-padded)
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"
#include "simulator/transport/port_messages.h"

namespace switch_sim::services {
namespace {

constexpr size_t kHeader = 8;

InterfaceType type_of(const Interface& port) {
  return static_cast<InterfaceType>(type_bits(port.if_index));
}

// Channels are brought up and down by the service that bundles them.
int32_t set_admin_state(Interface& port, const RequestReader& value, size_t size) {
  if (type_of(port) == InterfaceType::port_channel) return status::kAttributeNotSupported;
  if (size != 1) return status::kBadLength;
  const uint8_t state = value.u8(kHeader);
  if (state != 1 && state != 2) return status::kBadValue;
  port.admin_state = static_cast<AdminState>(state);
  return status::kOk;
}

bool is_port_mode(uint32_t mode) {
  switch (static_cast<PortMode>(mode)) {
    case PortMode::automatic:
    case PortMode::np:
    case PortMode::e:
    case PortMode::sd:
    case PortMode::f:
    case PortMode::fl:
    case PortMode::fx:
    case PortMode::tl:
      return true;
    default:
      return false;
  }
}

int32_t set_mode(Interface& port, const RequestReader& value, size_t size) {
  const bool is_port = type_of(port) == InterfaceType::fibre_channel;
  if (!is_port && !is_fc_channel(port.if_index) && type_of(port) != InterfaceType::fcip) {
    return status::kAttributeNotSupported;
  }
  if (size != 4) return status::kBadLength;
  const uint32_t mode = value.be32(kHeader);
  const bool expansion = mode == static_cast<uint32_t>(PortMode::automatic) ||
                         mode == static_cast<uint32_t>(PortMode::e);
  if (is_port ? !is_port_mode(mode) : !expansion) return status::kBadValue;
  port.mode = static_cast<PortMode>(mode);
  return status::kOk;
}

int32_t set_speed(Interface& port, const RequestReader& value, size_t size) {
  if (type_of(port) != InterfaceType::fibre_channel) return status::kAttributeNotSupported;
  if (size != 4) return status::kBadLength;
  const uint32_t speed = value.be32(kHeader);
  if (speed != 0 && speed != 1000 && speed != 2000) return status::kBadValue;
  port.speed = speed;
  return status::kOk;
}

// A full field has no NUL.
int32_t set_alias(Interface& port, const RequestReader& value, size_t size) {
  const InterfaceType type = type_of(port);
  if (type == InterfaceType::fcip || type == InterfaceType::iscsi) {
    return status::kAttributeNotSupported;
  }
  if (size != kLongestAlias) return status::kBadLength;
  std::string alias;
  for (size_t i = 0; i < size && value.u8(kHeader + i) != 0; ++i)
    alias += static_cast<char>(value.u8(kHeader + i));
  if (!alias.empty() && !is_name(alias)) return status::kBadValue;
  port.alias = alias;
  return status::kOk;
}

// The members of a channel work alike: mode and speed are those that they joined it with.
int32_t set_attribute(const Switch& local, Interface& port, const RequestReader& request,
                      size_t size) {
  const uint32_t attribute = request.be32(4);
  const bool of_the_bundle = attribute == kModeAttribute || attribute == kSpeedAttribute;
  if (of_the_bundle && channel_of(local, port.if_index) != nullptr) return status::kPortInChannel;
  switch (attribute) {
    case kAdminStateAttribute:
      return set_admin_state(port, request, size);
    case kModeAttribute:
      return set_mode(port, request, size);
    case kSpeedAttribute:
      return set_speed(port, request, size);
    case kAliasAttribute:
      return set_alias(port, request, size);
    default:
      return status::kAttributeNotSupported;
  }
}

}  // namespace

Outcome set_port_attribute(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  if (request.body.size() < kHeader) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  Switch& local = local_switch(fabric);
  Interface* port = find_interface(local, reader.be32(0));
  if (port == nullptr) return refuse(status::kNotFound);
  const int32_t result = set_attribute(local, *port, reader, request.body.size() - kHeader);
  ReplyWriter writer(8);
  writer.be32(0, port->if_index).be32(4, static_cast<uint32_t>(result));
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
