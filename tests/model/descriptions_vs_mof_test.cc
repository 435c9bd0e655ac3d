// What the descriptions write against what the classes declare, and one face against the other.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <set>

#include "model/computer_system.h"
#include "model/connectivity.h"
#include "model/hardware.h"
#include "model/port_classes.h"
#include "model/port_endpoints.h"
#include "model/port_statistics.h"
#include "model/switch_classes.h"
#include "model/zoning_classes.h"
#include "schema/repository.h"
#include "tests/model/computer_system_records.h"
#include "tests/model/hardware_records.h"
#include "tests/model/listing_builder.h"
#include "tests/model/port_records.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/model/type_differences.h"
#include "tests/model/zoning_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/os_double.h"

using namespace cim_utils::model;

namespace {

struct Description {
  const char* cls;
  bool instance;
  std::function<void(Builder&)> write;
  // What is asked of services that are not reached by messages.
  std::function<void(test_support::Script&)> lines = nullptr;
};

const std::vector<Description>& port_descriptions() {
  // Ports of a link, one with a number on its module and one without; optics would ask the port
  // manager.
  static pm_port_info_ port = records::port(records::fc12_bytes().byte(201, 0));
  static pm_port_info_ port_0 =
      records::port(records::fc12_bytes().host32(0, records::kFc11).byte(201, 0));
  static pm_port_info_ ethernet = records::port(records::ethernet_bytes().host32(104, 10));
  static pm_port_info_ management = records::port_of(records::kMgmt0);
  static fspfLinkEntry link = records::link(records::link_bytes());
  static ns_api_register_req_ disk = records::entry(records::disk_bytes());
  static fcIfAllCounters_t counters =
      records::record_of<fcIfAllCounters_t>(records::counters_by_offset(records::kFc12));
  static wwn_ wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4d}};
  constexpr const char* ns = "root/cimv2";
  constexpr const char* fc = "VEXOR_FCPort";
  constexpr const char* eth = "VEXOR_EthernetPort";
  constexpr const char* endpoint = "VEXOR_ProtocolEndPoint";
  constexpr const char* group = "VEXOR_LogicalPortGroup";
  constexpr const char* statistics = "VEXOR_FCPortStatistics";
  constexpr const char* data = "VEXOR_FCPortStatisticalData";
  constexpr const char* capabilities = "VEXOR_FCPortCapabilities";
  constexpr const char* settings = "VEXOR_FCPortSettings";
  static const LinkPort link_end{&link, wwn.bytes, false, false};
  static const AttachedPort device{&disk, false, false};
  static const AttachedPort attached_to{&disk, true, true};
  static const std::vector<Description> all = {
      {fc, false, [](Builder& b) { port_reference(b, fc, ns, &port); }},
      {fc, true, [](Builder& b) { port_instance(b, fc, ns, &port, nullptr); }},
      {fc, true, [](Builder& b) { port_instance(b, fc, ns, &port_0, nullptr); }},
      {eth, false, [](Builder& b) { port_reference(b, fc, ns, &ethernet); }},
      {eth, true, [](Builder& b) { port_instance(b, fc, ns, &ethernet, nullptr); }},
      {eth, true, [](Builder& b) { port_instance(b, fc, ns, &management, nullptr); }},
      {fc, false, [](Builder& b) { port_reference(b, fc, ns, link_end); }},
      {fc, true, [](Builder& b) { port_instance(b, fc, ns, link_end, nullptr); }},
      {fc, false, [](Builder& b) { port_reference(b, fc, ns, device); }},
      {fc, true, [](Builder& b) { port_instance(b, fc, ns, device, nullptr); }},
      {fc, true, [](Builder& b) { port_instance(b, fc, ns, attached_to, nullptr); }},
      {endpoint, false, [](Builder& b) { endpoint_reference(b, endpoint, ns, 7, &link, true); }},
      {endpoint, true,
       [](Builder& b) { endpoint_instance(b, endpoint, ns, 7, &link, true, nullptr); }},
      {endpoint, true, [](Builder& b) { endpoint_instance(b, endpoint, ns, &port, nullptr); }},
      {endpoint, true,
       [](Builder& b) { endpoint_instance(b, endpoint, ns, &disk, true, nullptr); }},
      {group, false, [](Builder& b) { port_group_reference(b, group, ns, &wwn); }},
      {group, true, [](Builder& b) { port_group_instance(b, group, ns, &wwn, nullptr); }},
      {statistics, false,
       [](Builder& b) { port_statistics_reference(b, statistics, ns, records::kFc12); }},
      {statistics, true,
       [](Builder& b) { port_statistics_instance(b, statistics, ns, &counters, nullptr); }},
      {data, false, [](Builder& b) { port_statistical_data_reference(b, data, ns, &port); }},
      {data, true, [](Builder& b) { port_statistical_data_instance(b, data, ns, &port); }},
      {capabilities, false,
       [](Builder& b) { port_capabilities_reference(b, capabilities, ns, &port); }},
      {capabilities, true,
       [](Builder& b) { port_capabilities_instance(b, capabilities, ns, &port, nullptr); }},
      {settings, false, [](Builder& b) { port_settings_reference(b, settings, ns, &port); }},
      {settings, true, [](Builder& b) { port_settings_instance(b, settings, ns, &port, nullptr); }},
  };
  return all;
}

// A type that the class does not declare and that is written all the same; providers convert it.
const types::Difference* kept_difference(const std::string& cls,
                                         const ListingBuilder::Entry& entry) {
  for (const types::Difference& difference : types::kDifferences) {
    if (cls == difference.cls && entry.name == difference.property &&
        entry.type == difference.written && difference.writer == types::Writer::builders)
      return &difference;
  }
  return nullptr;
}

const std::vector<Description>& switch_descriptions() {
  static vsanNewEntry_t vsan = records::vsan_10();
  static mts_dm_sw_conf_ conf = records::configuration_10();
  static fcs_cim_ie_ element = records::own_element();
  static mts_dm_sw_dom_list_info_ domain = records::other_domain();
  constexpr const char* ns = "root/cimv2";
  constexpr const char* wwn = "2000000DEC0A1B3C";
  static const std::vector<Description> all = {
      {"VEXOR_AdminDomain", false,
       [](Builder& b) { fabric_reference(b, "VEXOR_AdminDomain", ns); }},
      {"VEXOR_AdminDomain", true,
       [](Builder& b) { fabric_instance(b, "VEXOR_AdminDomain", ns, nullptr); }},
      {"VEXOR_Vsan", false, [](Builder& b) { vsan_reference(b, "VEXOR_Vsan", ns, &vsan, &conf); }},
      {"VEXOR_Vsan", true,
       [](Builder& b) { vsan_instance(b, "VEXOR_Vsan", ns, &vsan, &conf, nullptr); }},
      {"VEXOR_ConnectivityCollection", false,
       [](Builder& b) {
         connectivity_collection_reference(b, "VEXOR_ConnectivityCollection", ns, 5);
       }},
      {"VEXOR_ConnectivityCollection", true,
       [](Builder& b) {
         connectivity_collection_instance(b, "VEXOR_ConnectivityCollection", ns, 5);
       }},
      {"VEXOR_ContainedDomain", false,
       [](Builder& b) {
         contained_domain_reference(b, "VEXOR_ContainedDomain", ns, &vsan, &conf);
       }},
      {"VEXOR_ContainedDomain", true,
       [](Builder& b) { contained_domain_instance(b, "VEXOR_ContainedDomain", ns, &vsan, &conf); }},
      {"VEXOR_ComputerSystem", false,
       [](Builder& b) { switch_reference(b, "VEXOR_ComputerSystem", ns, wwn); }},
      {"VEXOR_ComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_ComputerSystem", ns, wwn, 0, nullptr); }},
      {"VEXOR_ComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_ComputerSystem", ns, &element, nullptr); }},
      {"VEXOR_ComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_ComputerSystem", ns, &domain, nullptr); }},
      {"VEXOR_PhysicalComputerSystem", false,
       [](Builder& b) { switch_reference(b, "VEXOR_PhysicalComputerSystem", ns, wwn); }},
      {"VEXOR_PhysicalComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_PhysicalComputerSystem", ns, wwn, 0, nullptr); }},
      {"VEXOR_PhysicalComputerSystem", true,
       [](Builder& b) {
         switch_instance(b, "VEXOR_PhysicalComputerSystem", ns, &element, nullptr);
       }},
      {"VEXOR_PhysicalComputerSystem", true,
       [](Builder& b) {
         switch_instance(b, "VEXOR_PhysicalComputerSystem", ns, &domain, nullptr);
       }},
      {"VEXOR_LogicalComputerSystem", false,
       [](Builder& b) { switch_reference(b, "VEXOR_LogicalComputerSystem", ns, wwn); }},
      {"VEXOR_LogicalComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_LogicalComputerSystem", ns, wwn, 0, nullptr); }},
      {"VEXOR_LogicalComputerSystem", true,
       [](Builder& b) {
         switch_instance(b, "VEXOR_LogicalComputerSystem", ns, &element, nullptr);
       }},
      {"VEXOR_LogicalComputerSystem", true,
       [](Builder& b) { switch_instance(b, "VEXOR_LogicalComputerSystem", ns, &domain, nullptr); }},
      {"VEXOR_Component", false,
       [](Builder& b) { component_reference(b, "VEXOR_Component", ns, &vsan, &conf, &element); }},
      {"VEXOR_Component", true,
       [](Builder& b) { component_instance(b, "VEXOR_Component", ns, &vsan, &conf, &element); }},
      {"VEXOR_FCSwitchCapabilities", false,
       [](Builder& b) { switch_capabilities_reference(b, "VEXOR_FCSwitchCapabilities", ns); }},
      {"VEXOR_FCSwitchCapabilities", true,
       [](Builder& b) {
         switch_capabilities_instance(b, "VEXOR_FCSwitchCapabilities", ns, nullptr);
       }},
      {"VEXOR_FCSwitchSettings", false,
       [](Builder& b) { switch_settings_reference(b, "VEXOR_FCSwitchSettings", ns); }},
      {"VEXOR_FCSwitchSettings", true,
       [](Builder& b) { switch_settings_instance(b, "VEXOR_FCSwitchSettings", ns, nullptr); }},
  };
  return all;
}

const std::vector<Description>& zoning_descriptions() {
  static zs_cim_zone_set_ set = records::zone_set_7();
  static zs_cim_zone_ zone = records::zone_12();
  static zs_cim_alias_ alias = records::alias_4();
  static zs_cim_zone_member_ member = records::member_of_fcid();
  static vsanNewEntry_t vsan = records::vsan_10();
  static mts_dm_sw_conf_ conf = records::configuration_10();
  static const VsanRecords of_vsan{&vsan, &conf};
  constexpr const char* ns = "root/cimv2";
  constexpr const char* id = "10_7_1";
  constexpr const char* service = "VEXOR_ZoneService";
  constexpr const char* capabilities = "VEXOR_ZoneCapabilities";
  constexpr const char* data = "VEXOR_ZoneMemberSettingData";
  constexpr const char* collects = "VEXOR_ZoneMemberOfCollection";
  constexpr const char* has = "VEXOR_ZoneElementSettingData";
  constexpr const char* hosts = "VEXOR_ZoneHostedCollection";
  constexpr const char* hosts_collection = "VEXOR_HostedCollection";
  constexpr const char* hosts_service = "VEXOR_HostedService";
  const auto no_policy = [](test_support::Script& script) {
    script.expect(test_support::query_policies(10)).fails(17);
  };
  static const std::vector<Description> all = {
      {"VEXOR_ZoneSet", false, [](Builder& b) { zone_set_reference(b, "VEXOR_ZoneSet", ns, id); }},
      {"VEXOR_ZoneSet", true,
       [](Builder& b) { zone_set_instance(b, "VEXOR_ZoneSet", ns, &set, nullptr); }},
      {"VEXOR_Zone", false, [](Builder& b) { zone_reference(b, "VEXOR_Zone", ns, id); }},
      {"VEXOR_Zone", true, [](Builder& b) { zone_instance(b, "VEXOR_Zone", ns, &zone, nullptr); }},
      {"VEXOR_ZoneAlias", false,
       [](Builder& b) { zone_alias_reference(b, "VEXOR_ZoneAlias", ns, id); }},
      {"VEXOR_ZoneAlias", true,
       [](Builder& b) { zone_alias_instance(b, "VEXOR_ZoneAlias", ns, &alias, nullptr); }},
      {data, false, [](Builder& b) { zone_member_reference(b, data, ns, id); }},
      {data, true, [](Builder& b) { zone_member_instance(b, data, ns, &member, nullptr); }},
      {service, false, [](Builder& b) { zone_service_reference(b, service, ns, 10); }},
      {service, true, [](Builder& b) { zone_service_instance(b, service, ns, 10); }, no_policy},
      {capabilities, false,
       [](Builder& b) { zone_capabilities_reference(b, capabilities, ns, id); }},
      {capabilities, true, [](Builder& b) { zone_capabilities_instance(b, capabilities, ns, id); }},
      {collects, false, [](Builder& b) { zone_set_zone_reference(b, collects, ns, id, id); }},
      {collects, true, [](Builder& b) { zone_set_zone_instance(b, collects, ns, id, id); }},
      {collects, false,
       [](Builder& b) { zone_zone_alias_reference(b, collects, ns, &zone, &alias); }},
      {collects, true,
       [](Builder& b) { zone_zone_alias_instance(b, collects, ns, &zone, &alias); }},
      {has, false, [](Builder& b) { zone_zone_member_reference(b, has, ns, &zone, &member); }},
      {has, true, [](Builder& b) { zone_zone_member_instance(b, has, ns, &zone, &member); }},
      {has, false,
       [](Builder& b) { zone_alias_zone_member_reference(b, has, ns, &alias, &member); }},
      {has, true, [](Builder& b) { zone_alias_zone_member_instance(b, has, ns, &alias, &member); }},
      {hosts_collection, false,
       [](Builder& b) { hosted_collection_reference(b, hosts_collection, ns, of_vsan, 10); }},
      {hosts_collection, true,
       [](Builder& b) { hosted_collection_instance(b, hosts_collection, ns, of_vsan, 10); }},
      {hosts, false, [](Builder& b) { hosted_zone_set_reference(b, hosts, ns, of_vsan, &set); }},
      {hosts, true, [](Builder& b) { hosted_zone_set_instance(b, hosts, ns, of_vsan, &set); }},
      {hosts, false, [](Builder& b) { hosted_zone_reference(b, hosts, ns, of_vsan, &zone); }},
      {hosts, true, [](Builder& b) { hosted_zone_instance(b, hosts, ns, of_vsan, &zone); }},
      {hosts, false,
       [](Builder& b) { hosted_zone_alias_reference(b, hosts, ns, of_vsan, &alias); }},
      {hosts, true, [](Builder& b) { hosted_zone_alias_instance(b, hosts, ns, of_vsan, &alias); }},
      {hosts_service, false,
       [](Builder& b) { hosted_service_reference(b, hosts_service, ns, of_vsan); }},
      {hosts_service, true,
       [](Builder& b) { hosted_service_instance(b, hosts_service, ns, of_vsan); }},
  };
  return all;
}

class FixedTexts final : public ChassisTexts {
 public:
  const char* system_name() override { return "2000000DEC0A1B3C"; }
  const char* product_name() override { return "QRX4200"; }
  const char* vendor() override { return "Vexor"; }
  const char* model() override { return "QRX4200"; }
  const char* version() override { return "3.2"; }
};

const std::vector<Description>& hardware_descriptions() {
  static FixedTexts texts;
  static pm_port_info_ port = records::fc12();
  static _vefcModuleEntry module = records::module_22();
  static _entPhysicalEntry entity = records::entity_22();
  constexpr const char* ns = "root/cimv2";
  constexpr const char* product = "VEXOR_Product";
  constexpr const char* package = "VEXOR_PhysicalPackage";
  constexpr const char* element = "VEXOR_PhysicalElement";
  constexpr const char* card = "VEXOR_LogicalModule";
  constexpr const char* housing = "VEXOR_ComputerSystemPackage";
  constexpr const char* remote = "VEXOR_RemoteServiceAccessPoint";
  const auto no_prom = [](test_support::Script& script) {
    script.expect(test_support::read_chassis_prom()).fails(17);
  };
  const auto slot_3 = [](test_support::Script& script) {
    script.expect(test_support::slot_of_entity(22)).gives(3);
  };
  static const std::vector<Description> all = {
      {product, false, [](Builder& b) { product_reference(b, product, ns, texts); }},
      {product, true, [](Builder& b) { product_instance(b, product, ns, texts); }},
      {package, false, [](Builder& b) { physical_package_reference(b, package, ns, texts); }},
      {package, true, [](Builder& b) { physical_package_instance(b, package, ns, texts); },
       no_prom},
      {element, false, [](Builder& b) { physical_element_reference(b, element, ns, &port); }},
      {element, true, [](Builder& b) { physical_element_instance(b, element, ns, &port, texts); },
       no_prom},
      {card, false, [](Builder& b) { logical_module_reference(b, card, ns, card, &module); }},
      {card, true, [](Builder& b) { logical_module_instance(b, card, ns, card, &module, &entity); },
       slot_3},
      {housing, false, [](Builder& b) { switch_package_reference(b, housing, ns, texts); }},
      {housing, true, [](Builder& b) { switch_package_instance(b, housing, housing, ns, texts); }},
      {remote, false,
       [](Builder& b) { remote_access_point_reference(b, remote, ns, "10.0.0.7", "A"); }},
      {remote, true,
       [](Builder& b) { remote_access_point_instance(b, remote, ns, "10.0.0.7", "A"); }},
  };
  return all;
}

const std::vector<Description>& descriptions() {
  static const std::vector<Description> all = [] {
    std::vector<Description> together;
    for (const auto* area : {&switch_descriptions(), &port_descriptions(), &zoning_descriptions(),
                             &hardware_descriptions()})
      together.insert(together.end(), area->begin(), area->end());
    return together;
  }();
  return all;
}

// Every service answers with what has all properties.
test_support::Response answer(const test_support::Request& request) {
  if (request.opcode == 264) return test_support::Response::with(records::domain_configuration_1());
  if (request.opcode == 1282) return test_support::Response::with(records::own_wwn());
  if (request.opcode == 149) return test_support::Response::with(records::vsan_1(1));
  if (request.opcode == 53) return test_support::Response::with(records::one_link());
  if (request.opcode == 267) return test_support::Response::with(records::switch_239());
  return test_support::Response::failed(17);
}

ListingBuilder::Listed written(const Description& description, Face face) {
  test_support::OsDouble system;
  system.address("switch-1", 10, 0, 0, 1);
  test_support::StdioCapture traces;
  test_support::Responder services(answer);
  std::optional<test_support::Script> others;
  if (description.lines) description.lines(others.emplace());
  ListingBuilder builder(face);
  description.write(builder);
  EXPECT_FALSE(builder.listed().empty()) << description.cls;
  return builder.listed().empty() ? ListingBuilder::Listed{} : builder.listed().back();
}

const cim::schema::Repository& classes() {
  static const cim::schema::Repository repository = [] {
    cim::schema::Repository loaded;
    const auto errors = loaded.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof");
    for (const auto& error : errors)
      ADD_FAILURE() << error.text();
    return loaded;
  }();
  return repository;
}

std::string declared_type(const cim::schema::Property& property) {
  return std::string(cim::schema::type_name(property.type)) + (property.is_array ? "[]" : "");
}

TEST(Descriptions, WriteDeclaredPropertiesOfDeclaredTypes) {
  std::set<const types::Difference*> seen;
  for (const Description& description : descriptions()) {
    const auto* cls = classes().find(description.cls);
    ASSERT_NE(cls, nullptr) << description.cls;
    const ListingBuilder::Listed listed = written(description, Face::cmpi);
    EXPECT_EQ(listed.cls, description.cls);
    for (const auto& entry : listed.entries) {
      const auto* property = classes().property(*cls, entry.name);
      ASSERT_NE(property, nullptr) << description.cls << "." << entry.name;
      EXPECT_EQ(entry.name, property->name) << "letter case of " << description.cls;
      if (const types::Difference* kept = kept_difference(description.cls, entry)) {
        seen.insert(kept);
        continue;
      }
      EXPECT_EQ(entry.type, declared_type(*property)) << description.cls << "." << entry.name;
    }
  }
  for (const types::Difference& difference : types::kDifferences) {
    EXPECT_TRUE(seen.contains(&difference) || difference.writer != types::Writer::builders)
        << "no longer one: " << difference.cls << "." << difference.property;
  }
}

TEST(Descriptions, ReferencesHoldExactlyTheKeysAndInstancesAllOfThem) {
  for (const Description& description : descriptions()) {
    const auto* cls = classes().find(description.cls);
    ASSERT_NE(cls, nullptr) << description.cls;
    std::set<std::string> keys;
    for (const auto* key : classes().keys(*cls))
      keys.insert(key->name);
    std::set<std::string> names;
    for (const auto& entry : written(description, Face::cmpi).entries)
      names.insert(entry.name);
    if (description.instance) {
      for (const std::string& key : keys)
        EXPECT_TRUE(names.contains(key)) << description.cls << "." << key;
    } else {
      EXPECT_EQ(names, keys) << description.cls;
    }
  }
}

TEST(Descriptions, WriteTheSameInBothFaces) {
  for (const Description& description : descriptions())
    EXPECT_EQ(written(description, Face::cmpi).entries, written(description, Face::pegasus).entries)
        << description.cls;
}

TEST(Descriptions, NothingIsWrittenTwice) {
  for (const Description& description : descriptions()) {
    std::set<std::string> names;
    for (const auto& entry : written(description, Face::cmpi).entries)
      EXPECT_TRUE(names.insert(entry.name).second) << description.cls << "." << entry.name;
  }
}

}  // namespace
