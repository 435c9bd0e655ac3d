#include "providers/class_table.h"

#include "providers/port.h"
#include "providers/port_attachments.h"
#include "providers/port_own.h"
#include "providers/port_statistics.h"

// Ports, their statistics, endpoints, groups, capabilities and settings.
namespace vexor::providers {
namespace {

constexpr KeyNames kDeviceKeys = {"SystemCreationClassName", "SystemName", "CreationClassName",
                                  "DeviceID"};
constexpr KeyNames kEndpointKeys = {"SystemCreationClassName", "SystemName", "CreationClassName",
                                    "Name"};

std::vector<OwnPort> fibre_channel_ports(int32_t q) {
  return own_ports(q, PortKind::fibre_channel);
}

std::vector<OwnPort> ethernet_ports(int32_t q) {
  return own_ports(q, PortKind::ethernet);
}

std::vector<OwnPort> ethernet_ports_named(int32_t q, const ObjectName& name) {
  return own_ports_named(q, PortKind::ethernet, name);
}

constexpr RecordClass<Port>::Method kPortMethods[] = {{"RequestStateChange", request_port_state}};

constexpr RecordClass<Port> kFCPort{{
    .name = "VEXOR_FCPort",
    .keys = kDeviceKeys,
    .list = ports,
    .reference = port_reference,
    .instance = port_instance,
    .find = ports_named,
    .modify = modify_port,
    .changeable = kChangeableOfPort,
    .methods = kPortMethods,
}};

constexpr RecordClass<OwnPort>::Method kEthernetPortMethods[] = {
    {"RequestStateChange", request_own_port_state},
};

constexpr RecordClass<OwnPort> kEthernetPort{{
    .name = "VEXOR_EthernetPort",
    .keys = kDeviceKeys,
    .list = ethernet_ports,
    .reference = own_port_reference,
    .instance = own_port_instance,
    .find = ethernet_ports_named,
    .modify = modify_own_port,
    .changeable = kChangeableOfPort,
    .methods = kEthernetPortMethods,
}};

constexpr RecordClass<PortCounters> kFCPortStatistics{{
    .name = "VEXOR_FCPortStatistics",
    .keys = {"InstanceID"},
    .list = port_counters,
    .reference = port_counters_reference,
    .instance = port_counters_instance,
    .find = port_counters_named,
}};

constexpr RecordClass<OwnPort> kFCPortStatisticalData{{
    .name = "VEXOR_FCPortStatisticalData",
    .keys = {"ManagedElement", "Stats"},
    .list = ports_with_counters,
    .reference = statistical_data_reference,
    .instance = statistical_data_instance,
    .find = statistical_data_named,
    .ends = {{
        {{.role = "ManagedElement", .class_name = "VEXOR_FCPort"},
         own_port_reference,
         own_port_instance},
        {{.role = "Stats", .class_name = "VEXOR_FCPortStatistics"},
         statistics_end_reference,
         statistics_end_instance},
    }},
    .related = statistical_data_of,
}};

constexpr RecordClass<Port> kProtocolEndPoint{{
    .name = "VEXOR_ProtocolEndPoint",
    .keys = kEndpointKeys,
    .list = endpoints,
    .reference = endpoint_reference,
    .instance = endpoint_instance,
    .find = endpoints_named,
}};

constexpr RecordClass<Node> kLogicalPortGroup{{
    .name = "VEXOR_LogicalPortGroup",
    .keys = {"InstanceID"},
    .list = nodes,
    .reference = node_reference,
    .instance = node_instance,
    .find = nodes_named,
}};

constexpr RecordClass<OwnPort> kFCPortCapabilities{{
    .name = "VEXOR_FCPortCapabilities",
    .keys = {"InstanceID"},
    .list = fibre_channel_ports,
    .reference = port_capabilities_reference,
    .instance = port_capabilities_instance,
    .find = own_ports_with_id,
}};

constexpr RecordClass<OwnPort> kFCPortSettings{{
    .name = "VEXOR_FCPortSettings",
    .keys = {"InstanceID"},
    .list = fibre_channel_ports,
    .reference = port_settings_reference,
    .instance = port_settings_instance,
    .find = own_ports_with_id,
    .modify = modify_port_settings,
    .changeable = kChangeableOfPortSettings,
}};

constexpr const Class* kClasses[] = {
    &kEthernetPort,          &kFCPort,           &kFCPortCapabilities, &kFCPortSettings,
    &kFCPortStatisticalData, &kFCPortStatistics, &kLogicalPortGroup,   &kProtocolEndPoint,
};

}  // namespace

ClassTable port_classes() {
  return kClasses;
}

}  // namespace vexor::providers
