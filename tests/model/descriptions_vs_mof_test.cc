// What the descriptions write against what the classes declare, and one face against the other.
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "model/computer_system.h"
#include "model/port_classes.h"
#include "model/port_endpoints.h"
#include "model/port_statistics.h"
#include "model/switch_classes.h"
#include "schema/repository.h"
#include "tests/model/computer_system_records.h"
#include "tests/model/listing_builder.h"
#include "tests/model/port_records.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"
#include "tests/support/os_double.h"

using namespace cim_utils::model;

namespace {

struct Description {
  const char* cls;
  bool instance;
  std::function<void(Builder&)> write;
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

// Types that a class does not declare and that are written all the same; providers convert them.
struct KeptDifference {
  const char* cls;
  const char* property;
  const char* type;
};
constexpr KeptDifference kKeptDifferences[] = {
    {"VEXOR_FCPort", "PortNumber", "sint32"},
    {"VEXOR_EthernetPort", "PortNumber", "sint32"},
};

const KeptDifference* kept_difference(const std::string& cls, const ListingBuilder::Entry& entry) {
  for (const KeptDifference& difference : kKeptDifferences) {
    if (cls == difference.cls && entry.name == difference.property && entry.type == difference.type)
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

const std::vector<Description>& descriptions() {
  static const std::vector<Description> all = [] {
    std::vector<Description> together = switch_descriptions();
    together.insert(together.end(), port_descriptions().begin(), port_descriptions().end());
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
  std::set<const KeptDifference*> seen;
  for (const Description& description : descriptions()) {
    const auto* cls = classes().find(description.cls);
    ASSERT_NE(cls, nullptr) << description.cls;
    const ListingBuilder::Listed listed = written(description, Face::cmpi);
    EXPECT_EQ(listed.cls, description.cls);
    for (const auto& entry : listed.entries) {
      const auto* property = classes().property(*cls, entry.name);
      ASSERT_NE(property, nullptr) << description.cls << "." << entry.name;
      EXPECT_EQ(entry.name, property->name) << "letter case of " << description.cls;
      if (const KeptDifference* kept = kept_difference(description.cls, entry)) {
        seen.insert(kept);
        continue;
      }
      EXPECT_EQ(entry.type, declared_type(*property)) << description.cls << "." << entry.name;
    }
  }
  EXPECT_EQ(seen.size(), std::size(kKeptDifferences)) << "a difference that no longer is one";
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
