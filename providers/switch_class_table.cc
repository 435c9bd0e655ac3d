#include "providers/class_table.h"

#include "providers/computer_system.h"
#include "providers/fabric.h"
#include "providers/switch_settings.h"
#include "providers/vsan.h"

// The switches of the fabric, its VSANs, and what the own switch can do and is set to.
namespace vexor::providers {
namespace {

constexpr KeyNames kSystemKeys = {"Name", "CreationClassName"};

constexpr RecordClass<Fabric> kAdminDomain{{
    .name = "VEXOR_AdminDomain",
    .keys = kSystemKeys,
    .list = the_fabric,
    .reference = [](const Target& to, const Fabric&) { return fabric_reference(to); },
    .instance = [](const Target& to, const Fabric&) { return fabric_instance(to); },
}};

constexpr RecordClass<VsanRecord>::Method kVsanMethods[] = {
    {"RequestStateChange", request_vsan_state},
};

constexpr RecordClass<VsanRecord> kVsan{{
    .name = "VEXOR_Vsan",
    .keys = kSystemKeys,
    .list = all_vsans,
    .reference = vsan_reference,
    .instance = vsan_instance,
    .find = vsans_named,
    .methods = kVsanMethods,
}};

constexpr RecordClass<ConnectivityCollection> kConnectivityCollection{{
    .name = "VEXOR_ConnectivityCollection",
    .keys = {"InstanceID"},
    .list = connectivity_collections,
    .reference = connectivity_collection_reference,
    .instance = connectivity_collection_instance,
    .find = connectivity_collections_named,
}};

constexpr RecordClass<VsanRecord> kContainedDomain{{
    .name = "VEXOR_ContainedDomain",
    .keys = {"GroupComponent", "PartComponent"},
    .list = all_vsans,
    .reference = contained_domain_reference,
    .instance = contained_domain_instance,
    .find = contained_domains_named,
    .ends = {{
        {{.role = "GroupComponent", .class_name = "VEXOR_AdminDomain", .always_the_same = true},
         [](const Target& to, const VsanRecord&) { return fabric_reference(to); },
         [](const Target& to, const VsanRecord&) { return fabric_instance(to); }},
        {{.role = "PartComponent", .class_name = "VEXOR_Vsan"}, vsan_reference, vsan_instance},
    }},
    .related = contained_domains_of,
}};

constexpr RecordClass<PhysicalSwitch> kPhysicalComputerSystem{{
    .name = "VEXOR_PhysicalComputerSystem",
    .keys = kSystemKeys,
    .list = physical_switches,
    .reference = physical_switch_reference,
    .instance = physical_switch_instance,
    .find = physical_switches_named,
    .modify = modify_physical_switch,
    .changeable = kChangeableOfSwitch,
}};

constexpr RecordClass<fcs_cim_ie_> kLogicalComputerSystem{{
    .name = "VEXOR_LogicalComputerSystem",
    .keys = kSystemKeys,
    .list = logical_switches,
    .reference = logical_switch_reference,
    .instance = logical_switch_instance,
    .find = logical_switches_named,
}};

constexpr RecordClass<Component> kComponent{{
    .name = "VEXOR_Component",
    .keys = {"GroupComponent", "PartComponent"},
    .list = components,
    .reference = component_reference,
    .instance = component_instance,
    .find = components_named,
    .ends = {{
        {{.role = "GroupComponent", .class_name = "VEXOR_Vsan"},
         [](const Target& to, const Component& part) { return vsan_reference(to, *part.vsan); },
         [](const Target& to, const Component& part) { return vsan_instance(to, *part.vsan); }},
        {{.role = "PartComponent", .class_name = "VEXOR_ComputerSystem"},
         component_part_reference,
         component_part_instance},
    }},
    .related = components_of,
}};

constexpr RecordClass<OwnSwitch> kFCSwitchCapabilities{{
    .name = "VEXOR_FCSwitchCapabilities",
    .keys = {"InstanceID"},
    .list = the_own_switch,
    .reference = switch_capabilities_reference,
    .instance = switch_capabilities_instance,
}};

constexpr RecordClass<OwnSwitch> kFCSwitchSettings{{
    .name = "VEXOR_FCSwitchSettings",
    .keys = {"InstanceID"},
    .list = the_own_switch,
    .reference = switch_settings_reference,
    .instance = switch_settings_instance,
    .modify = modify_switch_settings,
    .changeable = kChangeableOfSwitchSettings,
}};

constexpr const Class* kClasses[] = {
    &kAdminDomain,
    &kComponent,
    &kConnectivityCollection,
    &kContainedDomain,
    &kFCSwitchCapabilities,
    &kFCSwitchSettings,
    &kLogicalComputerSystem,
    &kPhysicalComputerSystem,
    &kVsan,
};

}  // namespace

ClassTable switch_classes() {
  return kClasses;
}

}  // namespace vexor::providers
