// VEXOR_FCPort in all its forms: the own switch's interfaces, the ends of links between switches,
// and the sides of attachments.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "providers/class.h"
#include "providers/port_attachments.h"
#include "providers/port_links.h"
#include "providers/port_own.h"

namespace vexor::providers {

using Port = std::variant<OwnPort, LinkEnd, Attachment>;

// Each once. The devices behind the own ports are told by the same answers of the name server as
// their attachments.
std::vector<Port> ports(int32_t q);

// By "DeviceID": a number is an interface index, every other form the name of a link or an
// attachment, which tells what has to be asked.
std::vector<Port> ports_named(int32_t q, const ObjectName& name);

CMPIObjectPath* port_reference(const Target& target, const Port& port);
CMPIInstance* port_instance(const Target& target, const Port& port);

// As for own ports; others are changed where they are.
void modify_port(int32_t q, const Port& port, const NewValues& values);
uint32_t request_port_state(int32_t q, const Port& port, const Arguments& arguments);

// ---- VEXOR_ProtocolEndPoint ----

// The endpoints of own ports, of links and of attachments, each once.
std::vector<Port> endpoints(int32_t q);
// By "Name": the WWN of an own port, or the name of a link or an attachment.
std::vector<Port> endpoints_named(int32_t q, const ObjectName& name);
CMPIObjectPath* endpoint_reference(const Target& target, const Port& port);
CMPIInstance* endpoint_instance(const Target& target, const Port& port);

}  // namespace vexor::providers
