#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/cmpi_connectivity.h>
#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/cmpi_switch.h>
#include <cim_utils/cmpi_zoning.h>

#include "tests/model/builder_content.h"
#include "tests/model/builder_rows.h"

namespace builders {
namespace {

constexpr const char* kPhysical = "VEXOR_PhysicalComputerSystem";
constexpr const char* kPort = "VEXOR_FCPort";
constexpr const char* kEndpoint = "VEXOR_ProtocolEndPoint";
constexpr const char* kGroup = "VEXOR_LogicalPortGroup";
constexpr const char* kStatistics = "VEXOR_FCPortStatistics";
constexpr const char* kPortData = "VEXOR_FCPortStatisticalData";
constexpr const char* kCollects = "VEXOR_ZoneMemberOfCollection";
constexpr const char* kHas = "VEXOR_ZoneElementSettingData";
constexpr const char* kHosts = "VEXOR_ZoneHostedCollection";
constexpr const char** kEverything = nullptr;  // the property list that asks for all

const Inputs in;

// One end of an association of two given paths.
CMPIObjectPath* end_of(const CMPIBroker* broker, const char* name) {
  CMPIObjectPath* path = broker->eft->newObjectPath(broker, kNamespace, "VEXOR_End", nullptr);
  path->ft->setHostname(path, kCmpiHost);
  path->ft->addKey(path, "Name", reinterpret_cast<const CMPIValue*>(name), CMPI_chars);
  return path;
}

class Table {
 public:
  Table(std::vector<CmpiRow>& rows, Area area) : rows_(rows), area_(area) {}

  // A builder whose broker stands behind the arguments.
  template <class Builder, class... Arguments>
  void add(const char* id, Builder* builder, Arguments... arguments) {
    asking(no_lines, id, builder, arguments...);
  }
  template <class Builder, class... Arguments>
  void asking(Lines lines, const char* id, Builder* builder, Arguments... arguments) {
    rows_.push_back({id, area_, lines,
                     [=](const CMPIBroker* broker) { return builder(arguments..., broker); }});
  }
  // The two builders of an association of two given paths.
  template <class Reference, class Instance>
  void tie(const char* cls, const char* reference_id, Reference* reference, const char* instance_id,
           Instance* instance) {
    rows_.push_back({reference_id, area_, no_lines, [=](const CMPIBroker* broker) {
                       return reference(cls, kNamespace, end_of(broker, "1"), end_of(broker, "2"),
                                        broker);
                     }});
    rows_.push_back({instance_id, area_, no_lines, [=](const CMPIBroker* broker) {
                       return instance(cls, kNamespace, end_of(broker, "1"), end_of(broker, "2"),
                                       broker);
                     }});
  }
  void row(const char* id, std::function<CmpiObject(const CMPIBroker*)> make) {
    rows_.push_back({id, area_, no_lines, std::move(make)});
  }

 private:
  std::vector<CmpiRow>& rows_;
  Area area_;
};

void add_switches(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::switches);
  constexpr unsigned char own = 0;
  constexpr unsigned char remote = 1;
  t.add("switch_build_instance_str", switch_build_instance_str, kPhysical, kNamespace, kOwn, own,
        kEverything);
  t.asking(another_switch, "switch_build_instance_str (remote)", switch_build_instance_str,
           kPhysical, kNamespace, kOther, remote, kEverything);
  t.add("switch_build_instance_wwn", switch_build_instance_wwn, kPhysical, kNamespace, &in.own, own,
        kEverything);
  t.asking(another_switch, "switch_build_instance_wwn (remote)", switch_build_instance_wwn,
           "VEXOR_LogicalComputerSystem", kNamespace, &records::kOtherWwn, remote, kEverything);
  t.add("switch_build_instance_ie", switch_build_instance_ie, kPhysical, kNamespace, &in.element,
        kEverything);
  t.add("switch_build_instance_dm", switch_build_instance_dm, kPhysical, kNamespace, &in.domain,
        kEverything);
  t.add("switch_fill_reference_str", switch_fill_reference_str, kPhysical, kNamespace, kOwn);
  t.add("switch_fill_reference_wwn", switch_fill_reference_wwn, kPhysical, kNamespace, &in.own);
  t.add("switch_fill_reference_ie", switch_fill_reference_ie, kPhysical, kNamespace, &in.element);
  t.add("switch_fill_reference_dm", switch_fill_reference_dm, kPhysical, kNamespace, &in.domain);
  t.add("switch_fill_reference", switch_fill_reference, kPhysical, kNamespace);
  t.tie("VEXOR_Component", "component_fill_reference", component_fill_reference,
        "component_build_instance", component_build_instance);
  t.add("component_fill_reference_ie", component_fill_reference_ie, "VEXOR_Component", kNamespace,
        &in.vsan, &in.conf, &in.element);
  t.add("component_build_instance_ie", component_build_instance_ie, "VEXOR_Component", kNamespace,
        &in.vsan, &in.conf, &in.element);
  t.add("fcswitch_cap_build_instance", fcswitch_cap_build_instance, "VEXOR_FCSwitchCapabilities",
        kNamespace, kEverything);
  t.add("fcswitch_cap_fill_reference", fcswitch_cap_fill_reference, "VEXOR_FCSwitchCapabilities",
        kNamespace);
  t.add("fcswitch_set_build_instance", fcswitch_set_build_instance, "VEXOR_FCSwitchSettings",
        kNamespace, kEverything);
  t.add("fcswitch_set_fill_reference", fcswitch_set_fill_reference, "VEXOR_FCSwitchSettings",
        kNamespace);
  t.add("fabric_build_instance", fabric_build_instance, "VEXOR_AdminDomain", kNamespace,
        kEverything);
  t.add("fabric_fill_reference", fabric_fill_reference, "VEXOR_AdminDomain", kNamespace);
  t.add("vsan_build_instance", vsan_build_instance, "VEXOR_Vsan", kNamespace, &in.vsan, &in.conf,
        kEverything);
  t.add("vsan_fill_reference", vsan_fill_reference, "VEXOR_Vsan", kNamespace, &in.vsan, &in.conf);
  t.add("contained_domain_build_instance", contained_domain_build_instance, "VEXOR_ContainedDomain",
        kNamespace, &in.vsan, &in.conf);
  t.add("contained_domain_fill_reference", contained_domain_fill_reference, "VEXOR_ContainedDomain",
        kNamespace, &in.vsan, &in.conf);
  t.add("connectivity_collection_build_instance", connectivity_collection_build_instance,
        "VEXOR_ConnectivityCollection", kNamespace, 10);
  t.add("connectivity_collection_fill_reference", connectivity_collection_fill_reference,
        "VEXOR_ConnectivityCollection", kNamespace, 10);
}

void add_ports(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::ports);
  using Byte = unsigned char;
  const uint8_t* wwn = in.in_vsan.bytes;
  constexpr int queue = test_support::kQueue;
  t.add("fcport_fill_reference_pm", fcport_fill_reference_pm, kNamespace, kPort, &in.port);
  t.asking(optics, "fcport_build_instance_pm", fcport_build_instance_pm, kPort, kNamespace,
           &in.port, kEverything);
  t.add("fcport_fill_reference_pm (ethernet)", fcport_fill_reference_pm, kNamespace, kPort,
        &in.ethernet);
  t.add("fcport_build_instance_pm (ethernet)", fcport_build_instance_pm, kPort, kNamespace,
        &in.ethernet, kEverything);
  t.add("fcport_fill_reference_fspf_wwn", fcport_fill_reference_fspf_wwn, 0, kNamespace, kPort,
        &in.link, wwn, Byte{0}, Byte{1}, Byte{1});
  t.add("fcport_fill_reference_fspf_wwnt", fcport_fill_reference_fspf_wwnt, 0, kNamespace, kPort,
        &in.link, &in.in_vsan, Byte{0}, Byte{1}, Byte{1});
  t.add("fcport_build_instance_fspf_wwn", fcport_build_instance_fspf_wwn, 0, kPort, kNamespace,
        &in.link, wwn, Byte{0}, Byte{1}, Byte{1}, kEverything);
  t.add("fcport_fill_reference_fspf_wwn (device, far)", fcport_fill_reference_fspf_wwn, 0,
        kNamespace, kPort, &in.link, wwn, Byte{1}, Byte{1}, Byte{0});
  t.add("fcport_build_instance_fspf_wwn (device, far)", fcport_build_instance_fspf_wwn, 0, kPort,
        kNamespace, &in.link, wwn, Byte{1}, Byte{1}, Byte{0}, kEverything);
  t.add("fcport_fill_reference_ns", fcport_fill_reference_ns, kPort, kNamespace, &in.disk, Byte{0},
        Byte{0});
  t.add("fcport_build_instance_ns", fcport_build_instance_ns, kPort, kNamespace, &in.disk, Byte{0},
        Byte{0}, kEverything);
  t.add("fcport_fill_reference_ns (device, fabric side)", fcport_fill_reference_ns, kPort,
        kNamespace, &in.disk, Byte{1}, Byte{1});
  t.add("fcport_build_instance_ns (device, fabric side)", fcport_build_instance_ns, kPort,
        kNamespace, &in.disk, Byte{1}, Byte{1}, kEverything);
  t.add("fcport_cap_build_instance", fcport_cap_build_instance, "VEXOR_FCPortCapabilities",
        kNamespace, &in.port, kEverything);
  t.add("fcport_cap_fill_reference", fcport_cap_fill_reference, "VEXOR_FCPortCapabilities",
        kNamespace, &in.port);
  t.add("fcport_set_build_instance", fcport_set_build_instance, "VEXOR_FCPortSettings", kNamespace,
        &in.port, kEverything);
  t.add("fcport_set_fill_reference", fcport_set_fill_reference, "VEXOR_FCPortSettings", kNamespace,
        &in.port);
  t.add("pe_fill_reference_fspf", pe_fill_reference_fspf, kEndpoint, kNamespace, queue, &in.link,
        Byte{1});
  t.add("pe_build_instance_fspf", pe_build_instance_fspf, kEndpoint, kNamespace, queue, &in.link,
        Byte{1}, kEverything);
  t.add("pe_fill_reference_pm", pe_fill_reference_pm, kEndpoint, kNamespace, &in.port);
  t.add("pe_build_instance_pm", pe_build_instance_pm, kEndpoint, kNamespace, &in.port, kEverything);
  t.add("pe_fill_reference_ns", pe_fill_reference_ns, kEndpoint, kNamespace, &in.disk, Byte{1});
  t.add("pe_build_instance_ns", pe_build_instance_ns, kEndpoint, kNamespace, &in.disk, Byte{1},
        kEverything);
  t.add("logical_port_group_fill_reference_str", logical_port_group_fill_reference_str, kNamespace,
        kGroup, kNode);
  t.add("logical_port_group_fill_reference", logical_port_group_fill_reference, kGroup, kNamespace,
        &in.node);
  t.add("logical_port_group_build_instance_str", logical_port_group_build_instance_str, kGroup,
        kNamespace, kNode, kEverything);
  t.add("logical_port_group_build_instance", logical_port_group_build_instance, kGroup, kNamespace,
        &in.node, kEverything);
  t.add("fcport_stat_fill_reference", fcport_stat_fill_reference, kNamespace, kStatistics,
        records::kFc12);
  t.add("fcport_stat_build_instance", fcport_stat_build_instance, kStatistics, kNamespace,
        &in.counters, kEverything);
  t.tie(kPortData, "port_stat_fill_reference", port_stat_fill_reference, "port_stat_build_instance",
        port_stat_build_instance);
  t.add("port_stat_fill_reference_pm", port_stat_fill_reference_pm, kPortData, kNamespace,
        &in.port);
  t.add("port_stat_build_instance_pm", port_stat_build_instance_pm, kPortData, kNamespace,
        &in.port);
}

void add_zoning(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::zoning);
  const char* zone_set_id = in.zone_set.instance_id;
  const char* zone_id = in.zone.instance_id;
  t.add("zone_set_fill_reference", zone_set_fill_reference, "VEXOR_ZoneSet", kNamespace,
        zone_set_id);
  t.add("zone_set_build_instance", zone_set_build_instance, "VEXOR_ZoneSet", kNamespace,
        &in.zone_set, kEverything);
  t.add("zone_fill_reference", zone_fill_reference, "VEXOR_Zone", kNamespace, zone_id);
  t.add("zone_build_instance", zone_build_instance, "VEXOR_Zone", kNamespace, &in.zone,
        kEverything);
  t.add("zone_alias_fill_reference", zone_alias_fill_reference, "VEXOR_ZoneAlias", kNamespace,
        in.alias.instance_id);
  t.add("zone_alias_build_instance", zone_alias_build_instance, "VEXOR_ZoneAlias", kNamespace,
        &in.alias, kEverything);
  t.add("zone_member_fill_reference", zone_member_fill_reference, "VEXOR_ZoneMemberSettingData",
        kNamespace, in.member.instance_id);
  t.add("zone_member_build_instance", zone_member_build_instance, "VEXOR_ZoneMemberSettingData",
        kNamespace, &in.member, kEverything);
  t.add("zone_service_fill_reference", zone_service_fill_reference, "VEXOR_ZoneService", kNamespace,
        10);
  t.asking(policies, "zone_service_build_instance", zone_service_build_instance,
           "VEXOR_ZoneService", kNamespace, 10);
  t.add("zone_cap_fill_reference", zone_cap_fill_reference, "VEXOR_ZoneCapabilities", kNamespace,
        "10");
  t.add("zone_cap_build_instance", zone_cap_build_instance, "VEXOR_ZoneCapabilities", kNamespace,
        "10");
  t.add("zmoc_fill_reference_zoneSetZone", zmoc_fill_reference_zoneSetZone, kCollects, kNamespace,
        zone_set_id, zone_id);
  t.add("zmoc_build_instance_zoneSetZone", zmoc_build_instance_zoneSetZone, kCollects, kNamespace,
        zone_set_id, zone_id);
  t.add("zmoc_fill_reference", zmoc_fill_reference, kCollects, kNamespace, &in.zone, &in.alias);
  t.add("zmoc_build_instance", zmoc_build_instance, kCollects, kNamespace, &in.zone, &in.alias);
  t.add("esd_fill_reference_zoneZoneMember", esd_fill_reference_zoneZoneMember, kHas, kNamespace,
        &in.zone, &in.member);
  t.add("esd_build_instance_zoneZoneMember", esd_build_instance_zoneZoneMember, kHas, kNamespace,
        &in.zone, &in.member);
  t.add("esd_fill_reference_zoneAliasZoneMember", esd_fill_reference_zoneAliasZoneMember, kHas,
        kNamespace, &in.alias, &in.member);
  t.add("esd_build_instance_zoneAliasZoneMember", esd_build_instance_zoneAliasZoneMember, kHas,
        kNamespace, &in.alias, &in.member);
  t.add("hosted_collection_fill_reference", hosted_collection_fill_reference,
        "VEXOR_HostedCollection", kNamespace, &in.vsan, &in.conf, 10);
  t.add("hosted_collection_build_instance", hosted_collection_build_instance,
        "VEXOR_HostedCollection", kNamespace, &in.vsan, &in.conf, 10);
  t.add("hosted_collection_fill_reference_zset", hosted_collection_fill_reference_zset, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.zone_set);
  t.add("hosted_collection_build_instance_zset", hosted_collection_build_instance_zset, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.zone_set);
  t.add("hosted_collection_fill_reference_zone", hosted_collection_fill_reference_zone, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.zone);
  t.add("hosted_collection_build_instance_zone", hosted_collection_build_instance_zone, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.zone);
  t.add("hosted_collection_fill_reference_zalias", hosted_collection_fill_reference_zalias, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.alias);
  t.add("hosted_collection_build_instance_zalias", hosted_collection_build_instance_zalias, kHosts,
        kNamespace, &in.vsan, &in.conf, &in.alias);
  t.tie(kCollects, "zmoc_fill_reference_MemberCollection", zmoc_fill_reference_MemberCollection,
        "zmoc_build_instance_MemberCollection", zmoc_build_instance_MemberCollection);
  t.tie(kHosts, "zone_hosted_collection_fill_reference", zone_hosted_collection_fill_reference,
        "zhc_build_instance", zhc_build_instance);
  t.add("hosted_service_fill_reference", hosted_service_fill_reference, "VEXOR_HostedService",
        kNamespace, &in.vsan, &in.conf);
  t.add("hosted_service_build_instance", hosted_service_build_instance, "VEXOR_HostedService",
        kNamespace, &in.vsan, &in.conf);
}

void add_hardware(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::hardware);
  t.asking(chassis, "product_fill_reference", product_fill_reference, "VEXOR_Product", kNamespace);
  t.asking(chassis, "product_build_instance", product_build_instance, "VEXOR_Product", kNamespace);
  t.add("physical_package_fill_reference", physical_package_fill_reference, kNamespace,
        "VEXOR_PhysicalPackage");
  t.asking(chassis_and_prom, "physical_package_build_instance", physical_package_build_instance,
           "VEXOR_PhysicalPackage", kNamespace);
  t.add("physical_element_fill_reference", physical_element_fill_reference, "VEXOR_PhysicalElement",
        kNamespace, &in.port);
  t.asking(chassis_and_prom, "physical_element_build_instance", physical_element_build_instance,
           "VEXOR_PhysicalElement", kNamespace, &in.port);
  t.add("logical_module_fill_reference", logical_module_fill_reference, "VEXOR_LogicalModule",
        kNamespace, &in.module);
  t.asking(slot, "logical_module_build_instance", logical_module_build_instance,
           "VEXOR_LogicalModule", kNamespace, &in.module, &in.entity);
  // A class that is not the one that the other face fixes.
  t.add("logical_module_fill_reference (card)", logical_module_fill_reference, "VEXOR_Card",
        kNamespace, &in.module);
  t.add("switch_package_fill_reference", switch_package_fill_reference, "VEXOR_Realizes",
        kNamespace);
  t.add("switch_package_build_instance", switch_package_build_instance, "VEXOR_Realizes",
        kNamespace);
  t.tie("VEXOR_ComputerSystemPackage", "switch_package_fill_reference_op",
        switch_package_fill_reference_op, "switch_package_build_instance_op",
        switch_package_build_instance_op);
  t.tie("VEXOR_Realizes", "realize_fill_reference", realize_fill_reference,
        "realize_build_instance", realize_build_instance);
  t.tie("VEXOR_ModulePort", "module_port_fill_reference", module_port_fill_reference,
        "module_port_build_instance", module_port_build_instance);
  t.tie("VEXOR_ProductPhysicalComponent", "product_physical_element_fill_reference",
        product_physical_element_fill_reference, "product_physical_element_build_instance",
        product_physical_element_build_instance);
}

void add_connectivity(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::connectivity);
  constexpr int queue = test_support::kQueue;
  t.tie("VEXOR_LogicalIdentity", "logical_identity_fill_reference", logical_identity_fill_reference,
        "logical_identity_build_instance", logical_identity_build_instance);
  t.tie("VEXOR_HostedDependency", "hosted_dependency_fill_reference",
        hosted_dependency_fill_reference, "hosted_dependency_build_instance",
        hosted_dependency_build_instance);
  t.tie("VEXOR_HostedAccessPoint", "hosted_access_point_fill_reference",
        hosted_access_point_fill_reference, "hosted_access_point_build_instance",
        hosted_access_point_build_instance);
  t.tie("VEXOR_DeviceSAPImplementation", "device_sap_implementation_fill_reference",
        device_sap_implementation_fill_reference, "device_sap_implementation_build_instance",
        device_sap_implementation_build_instance);
  t.tie("VEXOR_ActiveConnection", "active_connection_fill_reference",
        active_connection_fill_reference, "active_connection_build_instance",
        active_connection_build_instance);
  t.tie("VEXOR_FCNodeMemberOfCollection", "fcnode_member_collection_fill_reference",
        fcnode_member_collection_fill_reference, "fcnode_member_collection_build_instance",
        fcnode_member_collection_build_instance);
  t.tie("VEXOR_ConnectivityMemberOfCollection", "connectivity_member_collection_fill_reference",
        connectivity_member_collection_fill_reference,
        "connectivity_member_collection_build_instance",
        connectivity_member_collection_build_instance);
  t.tie("VEXOR_SystemDevice", "system_device_fill_reference", system_device_fill_reference,
        "system_device_build_instance", system_device_build_instance);
  t.add("active_connection_fill_reference_fspf", active_connection_fill_reference_fspf,
        "VEXOR_ActiveConnection", kNamespace, &in.link, queue);
  t.add("active_connection_build_instance_fspf", active_connection_build_instance_fspf,
        "VEXOR_ActiveConnection", kNamespace, &in.link, queue);
  t.add("active_connection_fill_reference_ns", active_connection_fill_reference_ns,
        "VEXOR_ActiveConnection", kNamespace, &in.disk);
  t.add("active_connection_build_instance_ns", active_connection_build_instance_ns,
        "VEXOR_ActiveConnection", kNamespace, &in.disk);
  t.add("system_device_fill_reference_fspf", system_device_fill_reference_fspf, 0,
        "VEXOR_SystemDevice", kNamespace, &in.domain, &in.link);
  t.add("system_device_build_instance_fspf", system_device_build_instance_fspf, 0,
        "VEXOR_SystemDevice", kNamespace, &in.domain, &in.link);
  t.add("fcnode_member_collection_fill_reference_ns", fcnode_member_collection_fill_reference_ns,
        "VEXOR_FCNodeMemberOfCollection", kNamespace, &in.disk);
  t.add("fcnode_member_collection_build_instance_ns", fcnode_member_collection_build_instance_ns,
        "VEXOR_FCNodeMemberOfCollection", kNamespace, &in.disk);
  t.add("rsap_fill_reference", rsap_fill_reference, "VEXOR_RemoteServiceAccessPoint", kNamespace,
        "10.0.0.7", kOwn);
  t.add("rsap_build_instance", rsap_build_instance, "VEXOR_RemoteServiceAccessPoint", kNamespace,
        "10.0.0.7", kOwn);
}

void add_others(std::vector<CmpiRow>& rows) {
  Table t(rows, Area::others);
  t.row("makePath", [](const CMPIBroker* broker) {
    return makePath(broker, kNamespace, "VEXOR_Vsan", nullptr);
  });
  t.row("association_class_fill_reference_path", [](const CMPIBroker* broker) {
    return association_class_fill_reference_path("VEXOR_Realizes", kNamespace, end_of(broker, "1"),
                                                 end_of(broker, "2"), "Antecedent", "Dependent",
                                                 broker);
  });
  t.row("association_class_build_instance_path", [](const CMPIBroker* broker) {
    return association_class_build_instance_path("VEXOR_Realizes", kNamespace, end_of(broker, "1"),
                                                 end_of(broker, "2"), "Antecedent", "Dependent",
                                                 broker);
  });
  t.row("esd_fill_reference", [](const CMPIBroker* broker) {
    return esd_fill_reference("VEXOR_ElementSettingData", kNamespace, end_of(broker, "1"),
                              end_of(broker, "2"), broker);
  });
  t.row("esd_build_instance", [](const CMPIBroker* broker) {
    return esd_build_instance("VEXOR_ElementSettingData", kNamespace, end_of(broker, "1"),
                              end_of(broker, "2"), kEverything, broker);
  });
  t.tie("VEXOR_SAPAvailableForElement", "sap_afe_fill_reference", sap_afe_fill_reference,
        "sap_afe_build_instance", sap_afe_build_instance);
  t.tie("VEXOR_ElementCapabilities", "ele_cap_fill_reference", ele_cap_fill_reference,
        "ele_cap_build_instance", ele_cap_build_instance);
}

}  // namespace

const std::vector<CmpiRow>& cmpi_rows() {
  static const std::vector<CmpiRow> all = [] {
    std::vector<CmpiRow> rows;
    add_switches(rows);
    add_ports(rows);
    add_zoning(rows);
    add_hardware(rows);
    add_connectivity(rows);
    add_others(rows);
    return rows;
  }();
  return all;
}

}  // namespace builders
