// What the descriptions write against what the classes declare, and one face against the other.
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "model/computer_system.h"
#include "model/switch_classes.h"
#include "schema/repository.h"
#include "tests/model/computer_system_records.h"
#include "tests/model/listing_builder.h"
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

const std::vector<Description>& descriptions() {
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

// Every service answers with what has all properties.
test_support::Response answer(const test_support::Request& request) {
  if (request.opcode == 264) return test_support::Response::with(records::domain_configuration_1());
  if (request.opcode == 1282) return test_support::Response::with(records::own_wwn());
  if (request.opcode == 149) return test_support::Response::with(records::vsan_1(1));
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
  for (const Description& description : descriptions()) {
    const auto* cls = classes().find(description.cls);
    ASSERT_NE(cls, nullptr) << description.cls;
    const ListingBuilder::Listed listed = written(description, Face::cmpi);
    EXPECT_EQ(listed.cls, description.cls);
    for (const auto& entry : listed.entries) {
      const auto* property = classes().property(*cls, entry.name);
      ASSERT_NE(property, nullptr) << description.cls << "." << entry.name;
      EXPECT_EQ(entry.name, property->name) << "letter case of " << description.cls;
      EXPECT_EQ(entry.type, declared_type(*property)) << description.cls << "." << entry.name;
    }
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
