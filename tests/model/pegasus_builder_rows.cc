#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/System.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>

#include "tests/model/pegasus_row_table.h"

namespace builders {
namespace {

using Pegasus::CIMObjectPath;
using Pegasus::String;
using P = ProviderUtil;
using Text = const char*;
using Name = const String&;
using Byte = unsigned char;

constexpr const char* kPhysical = "VEXOR_PhysicalComputerSystem";
constexpr const char* kPort = "VEXOR_FCPort";
constexpr const char* kEndpoint = "VEXOR_ProtocolEndPoint";
constexpr const char* kGroup = "VEXOR_LogicalPortGroup";
constexpr const char* kStatistics = "VEXOR_FCPortStatistics";
constexpr const char* kPortData = "VEXOR_FCPortStatisticalData";
constexpr const char* kCollects = "VEXOR_ZoneMemberOfCollection";
constexpr const char* kHas = "VEXOR_ZoneElementSettingData";
constexpr const char* kHosts = "VEXOR_ZoneHostedCollection";

Inputs in;

// One end of an association of two given paths.
CIMObjectPath end_of(const char* name) {
  Pegasus::Array<Pegasus::CIMKeyBinding> keys;
  keys.append(Pegasus::CIMKeyBinding(Pegasus::CIMName("Name"), Pegasus::CIMValue(String(name))));
  return {Pegasus::System::getHostName(), Pegasus::CIMNamespaceName(kNamespace),
          Pegasus::CIMName("VEXOR_End"), keys};
}

// Associations of two given paths, which are taken by reference or by value.
using ByReference = Of<Text, Name, const CIMObjectPath&, const CIMObjectPath&>;
using ByValue = Of<Text, Name, CIMObjectPath, CIMObjectPath>;
using ZoningTie = Of<Name, Name, const CIMObjectPath&, const CIMObjectPath&>;

void add_switches(std::vector<PegasusRow>& rows) {
  PegasusTable t(rows, Area::switches);
  constexpr Byte own = 0;
  constexpr Byte remote = 1;
  Of<Text, Name>::triple(t,
                         {.stem = "switch",
                          .reference = "switch_fill_reference",
                          .instance = "switch_build_instance_str"},
                         &P::switch_fill_reference, &P::switch_build_instance,
                         &P::switch_build_object, kPhysical, kNamespace);
  const Stem by_text{.stem = "switch",
                     .reference = "switch_fill_reference_str",
                     .instance = "switch_build_instance_str"};
  Of<Text, Name, Text>::reference(t, by_text, &P::switch_fill_reference, kPhysical, kNamespace,
                                  kOwn);
  Of<Text, Name, Text, Byte>::instances(t, by_text, &P::switch_build_instance,
                                        &P::switch_build_object, kPhysical, kNamespace, kOwn, own);
  Of<Text, Name, Text, Byte>::instances(t,
                                        {.stem = "switch",
                                         .which = " (remote)",
                                         .instance = "switch_build_instance_str (remote)",
                                         .instance_lines = another_switch},
                                        &P::switch_build_instance, &P::switch_build_object,
                                        kPhysical, kNamespace, kOther, remote);
  const Stem by_wwn{.stem = "switch",
                    .reference = "switch_fill_reference_wwn",
                    .instance = "switch_build_instance_wwn"};
  Of<Text, Name, wwn_*>::reference(t, by_wwn, &P::switch_fill_reference, kPhysical, kNamespace,
                                   &in.own);
  Of<Text, Name, wwn_*, Byte>::instances(t, by_wwn, &P::switch_build_instance,
                                         &P::switch_build_object, kPhysical, kNamespace, &in.own,
                                         own);
  static wwn_ other = records::kOtherWwn;
  Of<Text, Name, wwn_*, Byte>::instances(t,
                                         {.stem = "switch",
                                          .which = " (remote)",
                                          .instance = "switch_build_instance_wwn (remote)",
                                          .instance_lines = another_switch},
                                         &P::switch_build_instance, &P::switch_build_object,
                                         "VEXOR_LogicalComputerSystem", kNamespace, &other, remote);
  Of<Text, Name, fcs_cim_ie_*>::triple(t,
                                       {.stem = "switch",
                                        .reference = "switch_fill_reference_ie",
                                        .instance = "switch_build_instance_ie"},
                                       &P::switch_fill_reference, &P::switch_build_instance,
                                       &P::switch_build_object, kPhysical, kNamespace, &in.element);
  Of<Text, Name, mts_dm_sw_dom_list_info_*>::triple(
      t,
      {.stem = "switch",
       .reference = "switch_fill_reference_dm",
       .instance = "switch_build_instance_dm"},
      &P::switch_fill_reference, &P::switch_build_instance, &P::switch_build_object, kPhysical,
      kNamespace, &in.domain);
  Of<Text, Name>::triple(
      t,
      {.stem = "fabric", .reference = "fabric_fill_reference", .instance = "fabric_build_instance"},
      &P::fabric_fill_reference, &P::fabric_build_instance, &P::fabric_build_object,
      "VEXOR_AdminDomain", kNamespace);
  Of<Text, Name, vsanNewEntry_t*, mts_dm_sw_conf_*>::triple(
      t, {.stem = "vsan", .reference = "vsan_fill_reference", .instance = "vsan_build_instance"},
      &P::vsan_fill_reference, &P::vsan_build_instance, &P::vsan_build_object, "VEXOR_Vsan",
      kNamespace, &in.vsan, &in.conf);
  Of<Text, Name, int>::triple(
      t,
      {.stem = "connectivity_collection",
       .reference = "connectivity_collection_fill_reference",
       .instance = "connectivity_collection_build_instance"},
      &P::connectivity_collection_fill_reference, &P::connectivity_collection_build_instance,
      &P::connectivity_collection_build_object, "VEXOR_ConnectivityCollection", kNamespace, 10);
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*>::triple(
      t,
      {.stem = "contained_domain",
       .reference = "contained_domain_fill_reference",
       .instance = "contained_domain_build_instance"},
      &P::contained_domain_fill_reference, &P::contained_domain_build_instance,
      &P::contained_domain_build_object, "VEXOR_ContainedDomain", kNamespace, &in.vsan, &in.conf);
  ByReference::triple(t,
                      {.stem = "component",
                       .reference = "component_fill_reference",
                       .instance = "component_build_instance"},
                      &P::component_fill_reference, &P::component_build_instance,
                      &P::component_build_object, "VEXOR_Component", kNamespace, end_of("1"),
                      end_of("2"));
  Of<Text, Name, vsanNewEntry_t*, mts_dm_sw_conf_*, fcs_cim_ie_*>::triple(
      t,
      {.stem = "component",
       .reference = "component_fill_reference_ie",
       .instance = "component_build_instance_ie"},
      &P::component_fill_reference, &P::component_build_instance, &P::component_build_object,
      "VEXOR_Component", kNamespace, &in.vsan, &in.conf, &in.element);
}

void add_ports(std::vector<PegasusRow>& rows) {
  PegasusTable t(rows, Area::ports);
  constexpr int queue = test_support::kQueue;
  using OwnPort = Of<Text, Name, pm_port_info_*>;
  OwnPort::triple(t,
                  {.stem = "fcport",
                   .reference = "fcport_fill_reference_pm",
                   .instance = "fcport_build_instance_pm",
                   .instance_lines = optics},
                  &P::fcport_fill_reference, &P::fcport_build_instance, &P::fcport_build_object,
                  kPort, kNamespace, &in.port);
  OwnPort::triple(t,
                  {.stem = "fcport",
                   .which = " (ethernet)",
                   .reference = "fcport_fill_reference_pm (ethernet)",
                   .instance = "fcport_build_instance_pm (ethernet)"},
                  &P::fcport_fill_reference, &P::fcport_build_instance, &P::fcport_build_object,
                  kPort, kNamespace, &in.ethernet);
  using PortOfLink = Of<int, Text, Name, fspfLinkEntry*, unsigned char*, Byte, Byte, Byte>;
  PortOfLink::triple(t,
                     {.stem = "fcport",
                      .reference = "fcport_fill_reference_fspf_wwn",
                      .instance = "fcport_build_instance_fspf_wwn"},
                     &P::fcport_fill_reference, &P::fcport_build_instance, &P::fcport_build_object,
                     0, kPort, kNamespace, &in.link, in.in_vsan.bytes, 0, 1, 1);
  PortOfLink::triple(t,
                     {.stem = "fcport",
                      .which = " (device, far)",
                      .reference = "fcport_fill_reference_fspf_wwn (device, far)",
                      .instance = "fcport_build_instance_fspf_wwn (device, far)"},
                     &P::fcport_fill_reference, &P::fcport_build_instance, &P::fcport_build_object,
                     0, kPort, kNamespace, &in.link, in.in_vsan.bytes, 1, 1, 0);
  Of<int, Text, Name, fspfLinkEntry*, wwn_*, Byte, Byte, Byte>::triple(
      t,
      {.stem = "fcport",
       .reference = "fcport_fill_reference_fspf_wwnt",
       .instance = "fcport_build_instance_fspf_wwn"},
      &P::fcport_fill_reference, &P::fcport_build_instance, &P::fcport_build_object, 0, kPort,
      kNamespace, &in.link, &in.in_vsan, 0, 1, 1);
  using AttachedPort = Of<Text, Name, ns_api_register_req_*, Byte, Byte>;
  AttachedPort::triple(t,
                       {.stem = "fcport",
                        .reference = "fcport_fill_reference_ns",
                        .instance = "fcport_build_instance_ns"},
                       &P::fcport_fill_reference, &P::fcport_build_instance,
                       &P::fcport_build_object, kPort, kNamespace, &in.disk, 0, 0);
  AttachedPort::triple(t,
                       {.stem = "fcport",
                        .which = " (device, fabric side)",
                        .reference = "fcport_fill_reference_ns (device, fabric side)",
                        .instance = "fcport_build_instance_ns (device, fabric side)"},
                       &P::fcport_fill_reference, &P::fcport_build_instance,
                       &P::fcport_build_object, kPort, kNamespace, &in.disk, 1, 1);
  Of<Text, Name, int, fspfLinkEntry*, Byte>::triple(
      t,
      {.stem = "pe", .reference = "pe_fill_reference_fspf", .instance = "pe_build_instance_fspf"},
      &P::pe_fill_reference, &P::pe_build_instance, &P::pe_build_object, kEndpoint, kNamespace,
      queue, &in.link, 1);
  OwnPort::triple(
      t, {.stem = "pe", .reference = "pe_fill_reference_pm", .instance = "pe_build_instance_pm"},
      &P::pe_fill_reference, &P::pe_build_instance, &P::pe_build_object, kEndpoint, kNamespace,
      &in.port);
  Of<Text, Name, ns_api_register_req_*, Byte>::triple(
      t, {.stem = "pe", .reference = "pe_fill_reference_ns", .instance = "pe_build_instance_ns"},
      &P::pe_fill_reference, &P::pe_build_instance, &P::pe_build_object, kEndpoint, kNamespace,
      &in.disk, 1);
  Of<Text, Name, Text>::triple(t,
                               {.stem = "logical_port_group",
                                .reference = "logical_port_group_fill_reference_str",
                                .instance = "logical_port_group_build_instance_str"},
                               &P::logical_port_group_fill_reference,
                               &P::logical_port_group_build_instance,
                               &P::logical_port_group_build_object, kGroup, kNamespace, kNode);
  Of<Text, Name, wwn_*>::triple(t,
                                {.stem = "logical_port_group",
                                 .reference = "logical_port_group_fill_reference",
                                 .instance = "logical_port_group_build_instance"},
                                &P::logical_port_group_fill_reference,
                                &P::logical_port_group_build_instance,
                                &P::logical_port_group_build_object, kGroup, kNamespace, &in.node);
  const Stem statistics{.stem = "fcport_stat",
                        .reference = "fcport_stat_fill_reference",
                        .instance = "fcport_stat_build_instance"};
  Of<Text, Name, unsigned int>::reference(t, statistics, &P::fcport_stat_fill_reference,
                                          kStatistics, kNamespace, records::kFc12);
  Of<Text, Name, fcIfAllCounters_t*>::instances(t, statistics, &P::fcport_stat_build_instance,
                                                &P::fcport_stat_build_object, kStatistics,
                                                kNamespace, &in.counters);
  ByReference::triple(t,
                      {.stem = "port_stat",
                       .reference = "port_stat_fill_reference",
                       .instance = "port_stat_build_instance"},
                      &P::port_stat_fill_reference, &P::port_stat_build_instance,
                      &P::port_stat_build_object, kPortData, kNamespace, end_of("1"), end_of("2"));
  OwnPort::triple(t,
                  {.stem = "port_stat",
                   .reference = "port_stat_fill_reference_pm",
                   .instance = "port_stat_build_instance_pm"},
                  &P::port_stat_fill_reference, &P::port_stat_build_instance,
                  &P::port_stat_build_object, kPortData, kNamespace, &in.port);
}

void add_zoning_objects(PegasusTable& t) {
  Of<Name, Name, const zs_cim_zone_set_*>::triple(
      t,
      {.stem = "zone_set",
       .reference = "zone_set_fill_reference",
       .instance = "zone_set_build_instance"},
      &P::zone_set_fill_reference, &P::zone_set_build_instance, &P::zone_set_build_object,
      kNamespace, "VEXOR_ZoneSet", &in.zone_set);
  Of<Name, Name, const zs_cim_zone_*>::triple(
      t, {.stem = "zone", .reference = "zone_fill_reference", .instance = "zone_build_instance"},
      &P::zone_fill_reference, &P::zone_build_instance, &P::zone_build_object, kNamespace,
      "VEXOR_Zone", &in.zone);
  Of<Name, Name, const zs_cim_alias_*>::triple(
      t,
      {.stem = "zone_alias",
       .reference = "zone_alias_fill_reference",
       .instance = "zone_alias_build_instance"},
      &P::zone_alias_fill_reference, &P::zone_alias_build_instance, &P::zone_alias_build_object,
      kNamespace, "VEXOR_ZoneAlias", &in.alias);
  Of<Name, Name, const zs_cim_zone_member_*>::triple(
      t,
      {.stem = "zone_member",
       .reference = "zone_member_fill_reference",
       .instance = "zone_member_build_instance"},
      &P::zone_member_fill_reference, &P::zone_member_build_instance, &P::zone_member_build_object,
      kNamespace, "VEXOR_ZoneMemberSettingData", &in.member);
  Of<Name, Name, int>::triple(t,
                              {.stem = "zone_service",
                               .reference = "zone_service_fill_reference",
                               .instance = "zone_service_build_instance",
                               .instance_lines = policies},
                              &P::zone_service_fill_reference, &P::zone_service_build_instance,
                              &P::zone_service_build_object, kNamespace, "VEXOR_ZoneService", 10);
  Of<Name, Name, Text>::triple(t,
                               {.stem = "zone_cap",
                                .reference = "zone_cap_fill_reference",
                                .instance = "zone_cap_build_instance"},
                               &P::zone_cap_fill_reference, &P::zone_cap_build_instance,
                               &P::zone_cap_build_object, kNamespace, "VEXOR_ZoneCapabilities",
                               "10");
}

void add_zoning_associations(PegasusTable& t) {
  Of<Name, Name, Text, Text>::triple(t,
                                     {.stem = "zmoc",
                                      .suffix = "_zoneSetZone",
                                      .reference = "zmoc_fill_reference_zoneSetZone",
                                      .instance = "zmoc_build_instance_zoneSetZone"},
                                     &P::zmoc_fill_reference_zoneSetZone,
                                     &P::zmoc_build_instance_zoneSetZone,
                                     &P::zmoc_build_object_zoneSetZone, kNamespace, kCollects,
                                     in.zone_set.instance_id, in.zone.instance_id);
  Of<Name, Name, const zs_cim_zone_*, const zs_cim_alias_*>::triple(
      t, {.stem = "zmoc", .reference = "zmoc_fill_reference", .instance = "zmoc_build_instance"},
      &P::zmoc_fill_reference, &P::zmoc_build_instance, &P::zmoc_build_object, kNamespace,
      kCollects, &in.zone, &in.alias);
  Of<Name, Name, const zs_cim_zone_*, const zs_cim_zone_member_*>::triple(
      t,
      {.stem = "esd",
       .suffix = "_zoneZoneMember",
       .reference = "esd_fill_reference_zoneZoneMember",
       .instance = "esd_build_instance_zoneZoneMember"},
      &P::esd_fill_reference_zoneZoneMember, &P::esd_build_instance_zoneZoneMember,
      &P::esd_build_object_zoneZoneMember, kNamespace, kHas, &in.zone, &in.member);
  Of<Name, Name, const zs_cim_alias_*, const zs_cim_zone_member_*>::triple(
      t,
      {.stem = "esd",
       .suffix = "_zoneAliasZoneMember",
       .reference = "esd_fill_reference_zoneAliasZoneMember",
       .instance = "esd_build_instance_zoneAliasZoneMember"},
      &P::esd_fill_reference_zoneAliasZoneMember, &P::esd_build_instance_zoneAliasZoneMember,
      &P::esd_build_object_zoneAliasZoneMember, kNamespace, kHas, &in.alias, &in.member);
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*, int>::triple(
      t,
      {.stem = "hosted_collection",
       .reference = "hosted_collection_fill_reference",
       .instance = "hosted_collection_build_instance"},
      &P::hosted_collection_fill_reference, &P::hosted_collection_build_instance,
      &P::hosted_collection_build_object, kNamespace, "VEXOR_HostedCollection", &in.vsan, &in.conf,
      10);
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*, const zs_cim_zone_set_*>::triple(
      t,
      {.stem = "hosted_collection",
       .suffix = "_zset",
       .reference = "hosted_collection_fill_reference_zset",
       .instance = "hosted_collection_build_instance_zset"},
      &P::hosted_collection_fill_reference_zset, &P::hosted_collection_build_instance_zset,
      &P::hosted_collection_build_object_zset, kNamespace, kHosts, &in.vsan, &in.conf,
      &in.zone_set);
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*, const zs_cim_zone_*>::triple(
      t,
      {.stem = "hosted_collection",
       .suffix = "_zone",
       .reference = "hosted_collection_fill_reference_zone",
       .instance = "hosted_collection_build_instance_zone"},
      &P::hosted_collection_fill_reference_zone, &P::hosted_collection_build_instance_zone,
      &P::hosted_collection_build_object_zone, kNamespace, kHosts, &in.vsan, &in.conf, &in.zone);
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*, const zs_cim_alias_*>::triple(
      t,
      {.stem = "hosted_collection",
       .suffix = "_zalias",
       .reference = "hosted_collection_fill_reference_zalias",
       .instance = "hosted_collection_build_instance_zalias"},
      &P::hosted_collection_fill_reference_zalias, &P::hosted_collection_build_instance_zalias,
      &P::hosted_collection_build_object_zalias, kNamespace, kHosts, &in.vsan, &in.conf, &in.alias);
  ZoningTie::triple(
      t,
      {.stem = "zmoc",
       .suffix = "_MemberCollection",
       .reference = "zmoc_fill_reference_MemberCollection",
       .instance = "zmoc_build_instance_MemberCollection"},
      &P::zmoc_fill_reference_MemberCollection, &P::zmoc_build_instance_MemberCollection,
      &P::zmoc_build_object_MemberCollection, kNamespace, kCollects, end_of("1"), end_of("2"));
  ZoningTie::reference(
      t, {.stem = "zone_hosted_collection", .reference = "zone_hosted_collection_fill_reference"},
      &P::zone_hosted_collection_fill_reference, kNamespace, kHosts, end_of("1"), end_of("2"));
  ZoningTie::instances(t, {.stem = "zhc", .instance = "zhc_build_instance"}, &P::zhc_build_instance,
                       &P::zhc_build_object, kNamespace, kHosts, end_of("1"), end_of("2"));
  Of<Name, Name, vsanNewEntry_t*, mts_dm_sw_conf_*>::triple(
      t,
      {.stem = "hosted_service",
       .reference = "hosted_service_fill_reference",
       .instance = "hosted_service_build_instance"},
      &P::hosted_service_fill_reference, &P::hosted_service_build_instance,
      &P::hosted_service_build_object, "VEXOR_HostedService", kNamespace, &in.vsan, &in.conf);
}

void add_hardware(std::vector<PegasusRow>& rows) {
  PegasusTable t(rows, Area::hardware);
  const Stem product{.stem = "product",
                     .reference = "product_fill_reference",
                     .instance = "product_build_instance",
                     .reference_lines = system_name,
                     .instance_lines = system_name_twice};
  Of<Name, Text>::reference(t, product, &P::product_fill_reference, kNamespace, "VEXOR_Product");
  Of<Text, Name>::instances(t, product, &P::product_build_instance, &P::product_build_object,
                            "VEXOR_Product", kNamespace);
  const Stem package{.stem = "physical_package",
                     .reference = "physical_package_fill_reference",
                     .instance = "physical_package_build_instance",
                     .instance_lines = prom};
  Of<Name, Text>::reference(t, package, &P::physical_package_fill_reference, kNamespace,
                            "VEXOR_PhysicalPackage");
  Of<Text, Name>::instances(t, package, &P::physical_package_build_instance,
                            &P::physical_package_build_object, "VEXOR_PhysicalPackage", kNamespace);
  Of<Text, Name, pm_port_info_*>::triple(
      t,
      {.stem = "physical_element",
       .reference = "physical_element_fill_reference",
       .instance = "physical_element_build_instance",
       .instance_lines = prom},
      &P::physical_element_fill_reference, &P::physical_element_build_instance,
      &P::physical_element_build_object, "VEXOR_PhysicalElement", kNamespace, &in.port);
  const Stem module{.stem = "logical_module",
                    .reference = "logical_module_fill_reference",
                    .instance = "logical_module_build_instance",
                    .instance_lines = slot};
  Of<Name, Name, _vefcModuleEntry*>::reference(t, module, &P::logical_module_fill_reference,
                                               "VEXOR_LogicalModule", kNamespace, &in.module);
  Of<Name, Name, _vefcModuleEntry*, _entPhysicalEntry*>::instances(
      t, module, &P::logical_module_build_instance, &P::logical_module_build_object,
      "VEXOR_LogicalModule", kNamespace, &in.module, &in.entity);
  Of<Name, Name, _vefcModuleEntry*>::reference(
      t,
      {.stem = "logical_module",
       .which = " (card)",
       .reference = "logical_module_fill_reference (card)"},
      &P::logical_module_fill_reference, "VEXOR_Card", kNamespace, &in.module);
  static char realizes[] = "VEXOR_Realizes";
  Of<char*, Name>::triple(t,
                          {.stem = "switch_package",
                           .reference = "switch_package_fill_reference",
                           .instance = "switch_package_build_instance"},
                          &P::switch_package_fill_reference, &P::switch_package_build_instance,
                          &P::switch_package_build_object, realizes, kNamespace);
  ByValue::triple(t,
                  {.stem = "realize",
                   .reference = "realize_fill_reference",
                   .instance = "realize_build_instance"},
                  &P::realize_fill_reference, &P::realize_build_instance, &P::realize_build_object,
                  "VEXOR_Realizes", kNamespace, end_of("1"), end_of("2"));
}

void add_ties(PegasusTable& t) {
  ByReference::triple(t,
                      {.stem = "logical_identity",
                       .reference = "logical_identity_fill_reference",
                       .instance = "logical_identity_build_instance"},
                      &P::logical_identity_fill_reference, &P::logical_identity_build_instance,
                      &P::logical_identity_build_object, "VEXOR_LogicalIdentity", kNamespace,
                      end_of("1"), end_of("2"));
  ByReference::triple(t,
                      {.stem = "hosted_dependency",
                       .reference = "hosted_dependency_fill_reference",
                       .instance = "hosted_dependency_build_instance"},
                      &P::hosted_dependency_fill_reference, &P::hosted_dependency_build_instance,
                      &P::hosted_dependency_build_object, "VEXOR_HostedDependency", kNamespace,
                      end_of("1"), end_of("2"));
  ByValue::triple(t,
                  {.stem = "hosted_access_point",
                   .reference = "hosted_access_point_fill_reference",
                   .instance = "hosted_access_point_build_instance"},
                  &P::hosted_access_point_fill_reference, &P::hosted_access_point_build_instance,
                  &P::hosted_access_point_build_object, "VEXOR_HostedAccessPoint", kNamespace,
                  end_of("1"), end_of("2"));
  ByValue::triple(t,
                  {.stem = "device_sap_implementation",
                   .reference = "device_sap_implementation_fill_reference",
                   .instance = "device_sap_implementation_build_instance"},
                  &P::device_sap_implementation_fill_reference,
                  &P::device_sap_implementation_build_instance,
                  &P::device_sap_implementation_build_object, "VEXOR_DeviceSAPImplementation",
                  kNamespace, end_of("1"), end_of("2"));
  ByReference::triple(t,
                      {.stem = "active_connection",
                       .reference = "active_connection_fill_reference",
                       .instance = "active_connection_build_instance"},
                      &P::active_connection_fill_reference, &P::active_connection_build_instance,
                      &P::active_connection_build_object, "VEXOR_ActiveConnection", kNamespace,
                      end_of("1"), end_of("2"));
  ByValue::triple(t,
                  {.stem = "fcnode_member_collection",
                   .reference = "fcnode_member_collection_fill_reference",
                   .instance = "fcnode_member_collection_build_instance"},
                  &P::fcnode_member_collection_fill_reference,
                  &P::fcnode_member_collection_build_instance,
                  &P::fcnode_member_collection_build_object, "VEXOR_FCNodeMemberOfCollection",
                  kNamespace, end_of("1"), end_of("2"));
  ByValue::triple(t,
                  {.stem = "connectivity_member_collection",
                   .reference = "connectivity_member_collection_fill_reference",
                   .instance = "connectivity_member_collection_build_instance"},
                  &P::connectivity_member_collection_fill_reference,
                  &P::connectivity_member_collection_build_instance,
                  &P::connectivity_member_collection_build_object,
                  "VEXOR_ConnectivityMemberOfCollection", kNamespace, end_of("1"), end_of("2"));
  ByValue::triple(t,
                  {.stem = "system_device",
                   .reference = "system_device_fill_reference",
                   .instance = "system_device_build_instance"},
                  &P::system_device_fill_reference, &P::system_device_build_instance,
                  &P::system_device_build_object, "VEXOR_SystemDevice", kNamespace, end_of("1"),
                  end_of("2"));
}

void add_ties_of_records(PegasusTable& t) {
  constexpr int queue = test_support::kQueue;
  Of<Text, Name, fspfLinkEntry*, int>::triple(
      t,
      {.stem = "active_connection",
       .reference = "active_connection_fill_reference_fspf",
       .instance = "active_connection_build_instance_fspf"},
      &P::active_connection_fill_reference, &P::active_connection_build_instance,
      &P::active_connection_build_object, "VEXOR_ActiveConnection", kNamespace, &in.link, queue);
  Of<Text, Name, ns_api_register_req_*>::triple(
      t,
      {.stem = "active_connection",
       .reference = "active_connection_fill_reference_ns",
       .instance = "active_connection_build_instance_ns"},
      &P::active_connection_fill_reference, &P::active_connection_build_instance,
      &P::active_connection_build_object, "VEXOR_ActiveConnection", kNamespace, &in.disk);
  Of<int, Text, Name, mts_dm_sw_dom_list_info_*, fspfLinkEntry*>::triple(
      t,
      {.stem = "system_device",
       .reference = "system_device_fill_reference_fspf",
       .instance = "system_device_build_instance_fspf"},
      &P::system_device_fill_reference, &P::system_device_build_instance,
      &P::system_device_build_object, 0, "VEXOR_SystemDevice", kNamespace, &in.domain, &in.link);
  Of<Text, Name, ns_api_register_req_*, ns_api_register_req_*>::triple(
      t, {.stem = "system_device"}, &P::system_device_fill_reference,
      &P::system_device_build_instance, &P::system_device_build_object, "VEXOR_SystemDevice",
      kNamespace, &in.disk, &in.tape);
  Of<Text, Name, ns_api_register_req_*>::triple(
      t,
      {.stem = "fcnode_member_collection",
       .reference = "fcnode_member_collection_fill_reference_ns",
       .instance = "fcnode_member_collection_build_instance_ns"},
      &P::fcnode_member_collection_fill_reference, &P::fcnode_member_collection_build_instance,
      &P::fcnode_member_collection_build_object, "VEXOR_FCNodeMemberOfCollection", kNamespace,
      &in.disk);
}

}  // namespace

void add_computer_system_getters(std::vector<PegasusRow>& rows);
void add_pegasus_others(std::vector<PegasusRow>& rows);

const std::vector<PegasusRow>& pegasus_rows() {
  static const std::vector<PegasusRow> all = [] {
    std::vector<PegasusRow> rows;
    add_switches(rows);
    add_ports(rows);
    PegasusTable zoning(rows, Area::zoning);
    add_zoning_objects(zoning);
    add_zoning_associations(zoning);
    add_hardware(rows);
    PegasusTable connectivity(rows, Area::connectivity);
    add_ties(connectivity);
    add_ties_of_records(connectivity);
    add_computer_system_getters(rows);
    add_pegasus_others(rows);
    return rows;
  }();
  return all;
}

}  // namespace builders
