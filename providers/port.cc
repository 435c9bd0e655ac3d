#include "providers/port.h"

#include <cim_utils/cmpi_ports.h>

#include <unordered_set>

#include "providers/wwn.h"

namespace vexor::providers {
namespace {

template <class Record>
void add(const std::vector<Record>& records, std::vector<Port>& found) {
  found.insert(found.end(), records.begin(), records.end());
}

std::shared_ptr<const DevicesBehindPorts> devices_behind(const std::vector<Registration>& entries) {
  auto devices = std::make_shared<DevicesBehindPorts>();
  for (const Registration& entry : entries)
    devices->emplace(number_of(entry->fabric_port_wwn), entry->port_wwn);
  return devices;
}

bool is_number(const char* text) {
  return text[std::strspn(text, "-0123456789")] == '\0';
}

// One builder for each form.
template <class... Builders>
struct Overloaded : Builders... {
  using Builders::operator()...;
};
template <class... Builders>
Overloaded(Builders...) -> Overloaded<Builders...>;

// Both ends of every link by their names. Ends without one share an endpoint for each switch.
std::vector<LinkEnd> link_endpoints(int32_t q, const std::vector<uint32_t>& vsans) {
  std::vector<LinkEnd> found;
  std::unordered_set<std::string> listed;
  for (const uint32_t vsan : vsans)
    for (const LinkEnd& end : link_ends_of_vsan(q, vsan))
      if (listed.insert(text_of(end.switch_wwn) + " " + endpoint_name(end)).second)
        found.push_back(end);
  return found;
}

}  // namespace

std::vector<Port> ports(int32_t q) {
  std::vector<OwnPort> own = own_ports(q, PortKind::fibre_channel);
  const std::vector<uint32_t> vsans = running_vsans(q);
  const std::vector<Registration> entries = registrations(q, vsans);
  const auto devices = devices_behind(entries);
  for (OwnPort& port : own)
    port.devices = devices;
  std::vector<Port> found;
  add(own, found);
  add(link_ends(q, vsans), found);
  add(attachments(entries), found);
  return found;
}

std::vector<Port> ports_named(int32_t q, const ObjectName& name) {
  const char* device_id = name.text("DeviceID");
  std::vector<Port> found;
  if (device_id == nullptr || *device_id == '\0') return found;
  if (is_number(device_id)) {
    add(own_ports_named(q, PortKind::fibre_channel, name), found);
    return found;
  }
  add(attachments_named(q, device_id), found);
  if (found.empty()) add(link_ends_named(q, device_id), found);
  return found;
}

CMPIObjectPath* port_reference(const Target& target, const Port& port) {
  return std::visit(
      Overloaded{[&](const OwnPort& own) { return own_port_reference(target, own); },
                 [&](const LinkEnd& end) { return link_end_reference(target, end); },
                 [&](const Attachment& side) { return attachment_reference(target, side); }},
      port);
}

CMPIInstance* port_instance(const Target& target, const Port& port) {
  return std::visit(
      Overloaded{[&](const OwnPort& own) { return own_port_instance(target, own); },
                 [&](const LinkEnd& end) { return link_end_instance(target, end); },
                 [&](const Attachment& side) { return attachment_instance(target, side); }},
      port);
}

void modify_port(int32_t q, const Port& port, const NewValues& values) {
  const auto* own = std::get_if<OwnPort>(&port);
  if (own == nullptr)
    throw Failure(CMPI_RC_ERR_NOT_SUPPORTED,
                  "only the own switch's ports, whose DeviceID is a number, can be modified");
  modify_own_port(q, *own, values);
}

uint32_t request_port_state(int32_t q, const Port& port, const Arguments& arguments) {
  const auto* own = std::get_if<OwnPort>(&port);
  return own != nullptr ? request_own_port_state(q, *own, arguments) : kStateNotSupported;
}

// ---- VEXOR_ProtocolEndPoint ----

std::vector<Port> endpoints(int32_t q) {
  std::vector<Port> found;
  add(own_ports_with_wwns(q), found);
  const std::vector<uint32_t> vsans = running_vsans(q);
  add(link_endpoints(q, vsans), found);
  add(attachment_endpoints(registrations(q, vsans)), found);
  return found;
}

std::vector<Port> endpoints_named(int32_t q, const ObjectName& name) {
  const char* text = name.text("Name");
  std::vector<Port> found;
  if (text == nullptr) return found;
  if (wwn_ wwn; read_wwn(text, wwn)) {
    add(own_ports_with_wwn(q, wwn), found);
    return found;
  }
  add(attachment_endpoints_named(q, text), found);
  if (found.empty()) add(link_endpoints_named(q, text), found);
  return found;
}

CMPIObjectPath* endpoint_reference(const Target& target, const Port& port) {
  return std::visit(
      Overloaded{
          [&](const OwnPort& own) {
            return pe_fill_reference_pm(target.class_name, target.name_space, own.info.get(),
                                        target.broker);
          },
          [&](const LinkEnd& end) { return link_endpoint_reference(target, end); },
          [&](const Attachment& side) { return attachment_endpoint_reference(target, side); }},
      port);
}

CMPIInstance* endpoint_instance(const Target& target, const Port& port) {
  return std::visit(
      Overloaded{
          [&](const OwnPort& own) {
            return pe_build_instance_pm(target.class_name, target.name_space, own.info.get(),
                                        target.properties, target.broker);
          },
          [&](const LinkEnd& end) { return link_endpoint_instance(target, end); },
          [&](const Attachment& side) { return attachment_endpoint_instance(target, side); }},
      port);
}

}  // namespace vexor::providers
