// Associations of connectivity: what ties ports, endpoints, nodes, VSANs and other systems
// together; and VEXOR_RemoteServiceAccessPoint.
#pragma once

#include "providers/linked_object.h"

namespace vexor::providers {

// One port in its several forms: an own port and the same port at the end of a link or of an
// attachment; a port of a device and the same port in a VSAN.
std::vector<LinkedPair> port_identities(int32_t q);
std::vector<LinkedPair> port_identities_of(int32_t q, int end, const ObjectName& object);

// A switch, or its part in a VSAN, and the endpoints of its ports.
std::vector<LinkedPair> hosted_endpoints(int32_t q);
std::vector<LinkedPair> hosted_endpoints_of(int32_t q, int end, const ObjectName& object);

// A port and its endpoint. The port of a switch that several devices share has one for each.
std::vector<LinkedPair> implemented_endpoints(int32_t q);
std::vector<LinkedPair> implemented_endpoints_of(int32_t q, int end, const ObjectName& object);

// The endpoints of a link, from the far end to the one that advertised it, each link once; those of
// an attachment, from the switch to the device.
std::vector<LinkedPair> connections(int32_t q);
std::vector<LinkedPair> connections_of(int32_t q, int end, const ObjectName& object);

// A node and its ports.
std::vector<LinkedPair> node_ports(int32_t q);
std::vector<LinkedPair> node_ports_of(int32_t q, int end, const ObjectName& object);

// The connectivity collection of a VSAN and the endpoints in the VSAN.
std::vector<LinkedPair> connected_endpoints(int32_t q);
std::vector<LinkedPair> connected_endpoints_of(int32_t q, int end, const ObjectName& object);

// An own port and what it is connected to: the port of the switch at the other end of its link, or
// the ports of devices behind it.
std::vector<LinkedPair> remote_connections(int32_t q);
std::vector<LinkedPair> remote_connections_of(int32_t q, int end, const ObjectName& object);

// VEXOR_RemoteServiceAccessPoint: what the own ports are connected to, each once.
std::vector<RemoteAccessPoint> remote_access_points(int32_t q);
// By "Name": the WWN of a device's port, or what FSPF calls a port of a switch.
std::vector<RemoteAccessPoint> remote_access_points_named(int32_t q, const ObjectName& name);

}  // namespace vexor::providers
