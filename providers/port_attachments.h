// The attachments of devices to switch ports, from the name server: what VEXOR_FCPort,
// VEXOR_ProtocolEndPoint and VEXOR_LogicalPortGroup show of them.
#pragma once

#include <switch_platform/records_name_server.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "providers/class.h"

namespace vexor::providers {

// What the name server knows of one port; shared by all that show it.
using Registration = std::shared_ptr<const ns_api_register_req_>;

// One side of an attachment.
struct Attachment {
  Registration entry;
  bool fabric_side;  // the switch's port, else the device's
  bool physical;     // as a port of a device, else as one in the VSAN
};

// Every registered port of the VSANs, one exchange for each VSAN. A VSAN without devices, and one
// whose name server does not answer, give none: the library does not tell the difference.
std::vector<Registration> registrations(int32_t q, const std::vector<uint32_t>& vsans);

// Both sides of all, each as a port in its VSAN and as one of its device, and each once: several
// devices may share a switch port, and a device may be registered twice.
std::vector<Attachment> attachments(const std::vector<Registration>& entries);

// Those that "DeviceID" may name: one exchange in the VSAN that it tells; in every VSAN that is up
// for a physical one.
std::vector<Attachment> attachments_named(int32_t q, const char* device_id);

CMPIObjectPath* attachment_reference(const Target& target, const Attachment& side);
CMPIInstance* attachment_instance(const Target& target, const Attachment& side);

// ---- endpoints ----

std::vector<Attachment> attachment_endpoints(const std::vector<Registration>& entries);
std::vector<Attachment> attachment_endpoints_named(int32_t q, const char* name);
CMPIObjectPath* attachment_endpoint_reference(const Target& target, const Attachment& side);
CMPIInstance* attachment_endpoint_instance(const Target& target, const Attachment& side);

// ---- VEXOR_LogicalPortGroup ----

// A node, by its WWN.
struct Node {
  wwn_ wwn;
};

// The nodes of all registered ports, each once.
std::vector<Node> nodes(int32_t q);
// By "InstanceID": the ports of the node are asked for in every VSAN that is up.
std::vector<Node> nodes_named(int32_t q, const ObjectName& name);
CMPIObjectPath* node_reference(const Target& target, const Node& node);
CMPIInstance* node_instance(const Target& target, const Node& node);

}  // namespace vexor::providers
