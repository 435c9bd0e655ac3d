#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/cmpi_hardware.h>

#include "providers/class_table.h"
#include "providers/connectivity.h"
#include "providers/hardware.h"
#include "providers/hardware_links.h"

// The switch as hardware, and what ties switches, ports and endpoints together.
namespace vexor::providers {
namespace {

constexpr KeyNames kDeviceKeys = {"SystemCreationClassName", "SystemName", "CreationClassName",
                                  "DeviceID"};
constexpr KeyNames kEndpointKeys = {"SystemCreationClassName", "SystemName", "CreationClassName",
                                    "Name"};
constexpr KeyNames kPhysicalKeys = {"Tag", "CreationClassName"};

// ---- objects ----

constexpr RecordClass<Product> kProduct{{
    .name = "VEXOR_Product",
    .keys = {"Name", "IdentifyingNumber", "Vendor", "Version"},
    .list = the_product,
    .reference = product_reference,
    .instance = product_instance,
}};

constexpr RecordClass<Chassis> kPhysicalPackage{{
    .name = "VEXOR_PhysicalPackage",
    .keys = kPhysicalKeys,
    .list = the_chassis,
    .reference = chassis_reference,
    .instance = chassis_instance,
}};

constexpr RecordClass<PhysicalPort> kPhysicalElement{{
    .name = "VEXOR_PhysicalElement",
    .keys = kPhysicalKeys,
    .list = physical_ports,
    .reference = physical_port_reference,
    .instance = physical_port_instance,
    .find = physical_ports_named,
}};

constexpr RecordClass<Module> kLogicalModule{{
    .name = "VEXOR_LogicalModule",
    .keys = kDeviceKeys,
    .list = modules,
    .reference = module_reference,
    .instance = module_instance,
    .find = modules_named,
}};

constexpr RecordClass<RemoteAccessPoint> kRemoteServiceAccessPoint{{
    .name = "VEXOR_RemoteServiceAccessPoint",
    .keys = kEndpointKeys,
    .list = remote_access_points,
    .reference = [](const Target& to,
                    const RemoteAccessPoint& remote) { return linked_reference(to, remote); },
    .instance = [](const Target& to,
                   const RemoteAccessPoint& remote) { return linked_instance(to, remote); },
    .find = remote_access_points_named,
}};

// ---- associations ----

constexpr LinkedAssociation kProductParts = {
    .name = "VEXOR_ProductPhysicalComponent",
    .ends = {{{"GroupComponent", "VEXOR_Product", true},
              {"PartComponent", "VEXOR_PhysicalPackage", true}}},
    .fill = product_physical_element_fill_reference,
    .build = product_physical_element_build_instance,
    .list = product_parts,
    .related = product_parts_of,
    .known_by = 0,
};

constexpr LinkedAssociation kSwitchPackages = {
    .name = "VEXOR_ComputerSystemPackage",
    .ends = {{{"Antecedent", "VEXOR_PhysicalPackage", true},
              {"Dependent", "VEXOR_PhysicalComputerSystem", true}}},
    .fill = switch_package_fill_reference_op,
    .build = switch_package_build_instance_op,
    .list = switch_packages,
    .related = switch_packages_of,
    .known_by = 0,
};

constexpr LinkedAssociation kRealized = {
    .name = "VEXOR_Realizes",
    .ends = {{{"Antecedent", "CIM_PhysicalElement"}, {"Dependent", "CIM_LogicalDevice"}}},
    .fill = realize_fill_reference,
    .build = realize_build_instance,
    .list = realized,
    .related = realized_of,
    .known_by = 1,
};

constexpr LinkedAssociation kModulePorts = {
    .name = "VEXOR_ModulePort",
    .ends = {{{"GroupComponent", "VEXOR_LogicalModule"}, {"PartComponent", "CIM_NetworkPort"}}},
    .fill = module_port_fill_reference,
    .build = module_port_build_instance,
    .list = module_ports,
    .related = module_ports_of,
    .known_by = 1,
};

constexpr LinkedAssociation kSystemDevices = {
    .name = "VEXOR_SystemDevice",
    .ends = {{{"GroupComponent", "CIM_ComputerSystem"}, {"PartComponent", "CIM_LogicalDevice"}}},
    .fill = system_device_fill_reference,
    .build = system_device_build_instance,
    .list = system_devices,
    .related = system_devices_of,
    .known_by = 1,
};

constexpr LinkedAssociation kPortIdentities = {
    .name = "VEXOR_LogicalIdentity",
    .ends = {{{"SystemElement", "CIM_NetworkPort"}, {"SameElement", "VEXOR_FCPort"}}},
    .fill = logical_identity_fill_reference,
    .build = logical_identity_build_instance,
    .list = port_identities,
    .related = port_identities_of,
    .known_by = 1,
};

constexpr LinkedAssociation kHostedParts = {
    .name = "VEXOR_HostedDependency",
    .ends = {{{"Antecedent", "VEXOR_PhysicalComputerSystem"},
              {"Dependent", "VEXOR_LogicalComputerSystem"}}},
    .fill = hosted_dependency_fill_reference,
    .build = hosted_dependency_build_instance,
    .list = hosted_parts,
    .related = hosted_parts_of,
    .known_by = 1,
};

constexpr LinkedAssociation kHostedEndpoints = {
    .name = "VEXOR_HostedAccessPoint",
    .ends = {{{"Antecedent", "CIM_ComputerSystem"}, {"Dependent", "VEXOR_ProtocolEndPoint"}}},
    .fill = hosted_access_point_fill_reference,
    .build = hosted_access_point_build_instance,
    .list = hosted_endpoints,
    .related = hosted_endpoints_of,
    .known_by = 1,
};

constexpr LinkedAssociation kImplementedEndpoints = {
    .name = "VEXOR_DeviceSAPImplementation",
    .ends = {{{"Antecedent", "CIM_NetworkPort"}, {"Dependent", "VEXOR_ProtocolEndPoint"}}},
    .fill = device_sap_implementation_fill_reference,
    .build = device_sap_implementation_build_instance,
    .list = implemented_endpoints,
    .related = implemented_endpoints_of,
    .known_by = 1,
};

constexpr LinkedAssociation kConnections = {
    .name = "VEXOR_ActiveConnection",
    .ends = {{{"Antecedent", "VEXOR_ProtocolEndPoint"}, {"Dependent", "VEXOR_ProtocolEndPoint"}}},
    .fill = active_connection_fill_reference,
    .build = active_connection_build_instance,
    .list = connections,
    .related = connections_of,
    .known_by = 1,
};

constexpr LinkedAssociation kNodePorts = {
    .name = "VEXOR_FCNodeMemberOfCollection",
    .ends = {{{"Collection", "VEXOR_LogicalPortGroup"}, {"Member", "VEXOR_FCPort"}}},
    .fill = fcnode_member_collection_fill_reference,
    .build = fcnode_member_collection_build_instance,
    .list = node_ports,
    .related = node_ports_of,
    .known_by = 1,
};

constexpr LinkedAssociation kConnectedEndpoints = {
    .name = "VEXOR_ConnectivityMemberOfCollection",
    .ends = {{{"Collection", "VEXOR_ConnectivityCollection"},
              {"Member", "VEXOR_ProtocolEndPoint"}}},
    .fill = connectivity_member_collection_fill_reference,
    .build = connectivity_member_collection_build_instance,
    .list = connected_endpoints,
    .related = connected_endpoints_of,
    .known_by = 1,
};

constexpr LinkedAssociation kElementCapabilities = {
    .name = "VEXOR_ElementCapabilities",
    .ends = {{{"ManagedElement", "CIM_ManagedElement"}, {"Capabilities", "CIM_Capabilities"}}},
    .fill = ele_cap_fill_reference,
    .build = ele_cap_build_instance,
    .list = element_capabilities,
    .related = element_capabilities_of,
    .known_by = 1,
};

constexpr LinkedAssociation kElementSettings = {
    .name = "VEXOR_ElementSettingData",
    .ends = {{{"ManagedElement", "CIM_ManagedElement"}, {"SettingData", "CIM_SettingData"}}},
    .fill = esd_fill_reference,
    .build =
        [](const char* cls, const char* ns, const CMPIObjectPath* element,
           const CMPIObjectPath* setting, const CMPIBroker* broker) {
          return esd_build_instance(cls, ns, element, setting, nullptr, broker);
        },
    .list = element_settings,
    .related = element_settings_of,
    .known_by = 1,
};

constexpr LinkedAssociation kRemoteConnections = {
    .name = "VEXOR_SAPAvailableForElement",
    .ends = {{{"ManagedElement", "CIM_NetworkPort"},
              {"AvailableSAP", "VEXOR_RemoteServiceAccessPoint"}}},
    .fill = sap_afe_fill_reference,
    .build = sap_afe_build_instance,
    .list = remote_connections,
    .related = remote_connections_of,
    .known_by = 1,
};

constexpr RecordClass<LinkedPair> kActiveConnection{described<kConnections>()};
constexpr RecordClass<LinkedPair> kComputerSystemPackage{described<kSwitchPackages>()};
constexpr RecordClass<LinkedPair> kConnectivityMember{described<kConnectedEndpoints>()};
constexpr RecordClass<LinkedPair> kDeviceSAPImplementation{described<kImplementedEndpoints>()};
constexpr RecordClass<LinkedPair> kElementCapabilitiesClass{described<kElementCapabilities>()};
constexpr RecordClass<LinkedPair> kElementSettingData{described<kElementSettings>()};
constexpr RecordClass<LinkedPair> kFCNodeMember{described<kNodePorts>()};
constexpr RecordClass<LinkedPair> kHostedAccessPoint{described<kHostedEndpoints>()};
constexpr RecordClass<LinkedPair> kHostedDependency{described<kHostedParts>()};
constexpr RecordClass<LinkedPair> kLogicalIdentity{described<kPortIdentities>()};
constexpr RecordClass<LinkedPair> kModulePort{described<kModulePorts>()};
constexpr RecordClass<LinkedPair> kProductPhysicalComponent{described<kProductParts>()};
constexpr RecordClass<LinkedPair> kRealizes{described<kRealized>()};
constexpr RecordClass<LinkedPair> kSAPAvailableForElement{described<kRemoteConnections>()};
constexpr RecordClass<LinkedPair> kSystemDevice{described<kSystemDevices>()};

constexpr const Class* kClasses[] = {
    &kActiveConnection,
    &kComputerSystemPackage,
    &kConnectivityMember,
    &kDeviceSAPImplementation,
    &kElementCapabilitiesClass,
    &kElementSettingData,
    &kFCNodeMember,
    &kHostedAccessPoint,
    &kHostedDependency,
    &kLogicalIdentity,
    &kLogicalModule,
    &kModulePort,
    &kPhysicalElement,
    &kPhysicalPackage,
    &kProduct,
    &kProductPhysicalComponent,
    &kRealizes,
    &kRemoteServiceAccessPoint,
    &kSAPAvailableForElement,
    &kSystemDevice,
};

}  // namespace

ClassTable hardware_classes() {
  return kClasses;
}

}  // namespace vexor::providers
