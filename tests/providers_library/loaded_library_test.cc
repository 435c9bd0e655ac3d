// The provider library in the embedded object manager, against the simulated fabric.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/object_manager.h"
#include "host/object_path.h"
#include "schema/repository.h"
#include "simulator/control/control.h"

namespace {

namespace control = switch_sim::control;
using cim::host::Behavior;
using cim::host::CimError;
using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using Texts = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";

// Without the host, which is that of the machine.
std::string text(ObjectPath path) {
  path.host.clear();
  for (auto& key : path.keys)
    if (auto* reference = std::get_if<cim::host::PathPtr>(&key.data.element)) {
      ObjectPath end = **reference;
      end.host.clear();
      *reference = std::make_shared<const ObjectPath>(end);
    }
  return to_text(path);
}

bool is_loaded() {
  void* library = dlopen(PROVIDERS_LIBRARY, RTLD_NOLOAD | RTLD_LAZY);
  if (library == nullptr) return false;
  dlclose(library);
  return true;
}

class LoadedProviders : public testing::Test {
 protected:
  LoadedProviders() {
    control::reset();
    const auto problems = repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof");
    EXPECT_TRUE(problems.empty());
  }

  // The traces of the library go to standard output.
  void SetUp() override { testing::internal::CaptureStdout(); }
  void TearDown() override {
    const std::string traces = testing::internal::GetCapturedStdout();
    if (HasFailure()) std::fputs(traces.c_str(), stderr);
  }

  cim::host::Settings settings(const Behavior& behavior = {}) {
    cim::host::Settings result;
    result.providers = {{"VexorProvider", PROVIDERS_LIBRARY, "VEXOR_"}};
    result.behavior = behavior;
    result.report = [this](std::string_view line) { reports_.emplace_back(line); };
    return result;
  }
  static Texts names(ObjectManager& manager, const char* class_name) {
    Texts result;
    for (const ObjectPath& path : manager.enumerate_instance_names(kNamespace, class_name))
      result.push_back(text(path));
    return result;
  }

  cim::schema::Repository repository_;
  Texts reports_;
};

const Texts kVsans = {
    "root/cimv2:VEXOR_Vsan.Name=\"2001000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"",
    "root/cimv2:VEXOR_Vsan.Name=\"2002000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\""};
constexpr const char* kFabric =
    "root/cimv2:VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\","
    "CreationClassName=\"VEXOR_AdminDomain\"";

TEST_F(LoadedProviders, EnumerateTheVsansOfTheFabric) {
  ObjectManager manager(repository_, settings());
  EXPECT_EQ(names(manager, "VEXOR_Vsan"), kVsans);
  EXPECT_EQ(names(manager, "VEXOR_AdminDomain"), (Texts{kFabric}));
  EXPECT_EQ(names(manager, "VEXOR_ContainedDomain").size(), 2u);
  EXPECT_EQ(names(manager, "CIM_AdminDomain").size(), 3u);
  EXPECT_EQ(reports_, Texts{});
}

// As the providers are registered.
Texts served_classes() {
  Texts classes;
  std::ifstream in(REGISTRATION);
  for (std::string line; std::getline(in, line);)
    if (line.starts_with('[')) classes.push_back(line.substr(1, line.find(']') - 1));
  EXPECT_GE(classes.size(), 9u) << REGISTRATION;
  return classes;
}

TEST_F(LoadedProviders, EveryNameOfEveryClassCanBeGotUnderEveryBehavior) {
  constexpr size_t kMostOfAClass = 12;
  for (const char* mode : {"strict", "lenient", "quiet"}) {
    ObjectManager manager(repository_, settings(*Behavior::named(mode)));
    for (const std::string& cls : served_classes()) {
      auto paths = manager.enumerate_instance_names(kNamespace, cls);
      if (paths.size() > kMostOfAClass) paths.resize(kMostOfAClass);
      for (const ObjectPath& path : paths) {
        const Instance instance = manager.get_instance(path);
        EXPECT_TRUE(same_instance(instance.path, path)) << mode << ": " << text(path);
      }
    }
    // What the strict object manager leaves out, it reports.
    EXPECT_EQ(reports_, Texts{}) << mode;
  }
}

// Paths with their keys in one order, since object managers have their own.
std::string value_text(const cim::host::Data& data) {
  const auto* reference = std::get_if<cim::host::PathPtr>(&data.element);
  if (reference == nullptr) return to_text(to_value(data));
  ObjectPath path = **reference;
  std::sort(path.keys.begin(), path.keys.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  return text(path);
}

// The values of an instance that any object manager returns: those that the provider set.
std::map<std::string, std::string> values(const Instance& instance, const Instance& strict) {
  std::map<std::string, std::string> result;
  for (const auto& property : strict.properties)
    if (!property.data.null) {
      const auto* data = instance.find(property.name);
      result[property.name] = data == nullptr ? "missing" : value_text(*data);
    }
  return result;
}

TEST_F(LoadedProviders, InstancesAreTheSameUnderEveryBehavior) {
  ObjectManager strict(repository_, settings());
  for (const char* mode : {"lenient", "quiet"}) {
    ObjectManager manager(repository_, settings(*Behavior::named(mode)));
    for (const std::string& cls : served_classes()) {
      const auto expected = strict.enumerate_instances(kNamespace, cls);
      const auto instances = manager.enumerate_instances(kNamespace, cls);
      ASSERT_EQ(instances.size(), expected.size()) << mode << ": " << cls;
      for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_TRUE(same_instance(instances[i].path, expected[i].path)) << mode << ": " << cls;
        EXPECT_EQ(values(instances[i], expected[i]), values(expected[i], expected[i]))
            << mode << ": " << cls;
      }
    }
  }
}

TEST_F(LoadedProviders, ASwitchIsRenamedByItsNameAloneUnderEveryBehavior) {
  for (const char* mode : {"strict", "lenient", "quiet"}) {
    ObjectManager manager(repository_, settings(*Behavior::named(mode)));
    Instance change;
    change.path = manager.enumerate_instance_names(kNamespace, "VEXOR_PhysicalComputerSystem")[0];
    change.properties.push_back({"ElementName", cim::host::Data::string("lab")});
    EXPECT_NO_THROW(manager.modify_instance(change)) << mode;
  }
}

TEST_F(LoadedProviders, AssociationsAreWalkedFromBothEnds) {
  ObjectManager manager(repository_, settings());
  const auto fabric = manager.enumerate_instance_names(kNamespace, "VEXOR_AdminDomain").at(0);
  const cim::host::AssociationFilter containment = {.association_class = "VEXOR_ContainedDomain",
                                                    .result_class = "",
                                                    .role = "",
                                                    .result_role = ""};
  const auto vsans = manager.associator_names(fabric, containment);
  ASSERT_EQ(vsans.size(), 2u);
  EXPECT_EQ(text(vsans[0]), kVsans[0]);
  const auto back = manager.associator_names(vsans[1], containment);
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(text(back[0]), kFabric);
  // Without a filter the three switches of the VSAN come too, its collection and its zone service.
  EXPECT_EQ(manager.associator_names(vsans[1]).size(), 6u);
  EXPECT_EQ(manager.references(vsans[1]).size(), 6u);
}

TEST_F(LoadedProviders, WhatDoesNotExistIsNotFound) {
  ObjectManager manager(repository_, settings());
  auto parsed = cim::host::parse_object_path(
      "root/cimv2:VEXOR_Vsan.Name=\"2009000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"");
  try {
    manager.get_instance(parsed.path);
    FAIL() << "found";
  } catch (const CimError& error) {
    EXPECT_EQ(error.code(), CMPI_RC_ERR_NOT_FOUND);
    EXPECT_NE(std::string(error.what()).find("there is no such VEXOR_Vsan"), std::string::npos);
  }
}

TEST_F(LoadedProviders, TheQueueIsHeldFromTheFirstRequestToTheEnd) {
  {
    ObjectManager manager(repository_, settings());
    EXPECT_EQ(control::outstanding().queues, 0);
    names(manager, "VEXOR_Vsan");
    manager.associator_names(manager.enumerate_instance_names(kNamespace, "VEXOR_Vsan").at(0));
    EXPECT_EQ(control::outstanding().queues, 1);
  }
  EXPECT_EQ(control::outstanding().queues, 0);
  EXPECT_EQ(control::outstanding().messages, 0);
}

TEST_F(LoadedProviders, UnloadAndLoadAgain) {
  for (int round = 0; round < 3; ++round) {
    {
      ObjectManager manager(repository_, settings());
      EXPECT_EQ(names(manager, "VEXOR_Vsan"), kVsans);
      EXPECT_TRUE(is_loaded());
    }
    EXPECT_FALSE(is_loaded()) << "round " << round;
  }
}

TEST_F(LoadedProviders, ASuspendedVsanIsGotByItsNumber) {
  auto fabric = control::default_fabric();
  fabric.vsans.at(1).state = switch_sim::VsanState::suspended;
  ASSERT_EQ(control::install(fabric), std::nullopt);
  ObjectManager manager(repository_, settings());
  const auto paths = manager.enumerate_instance_names(kNamespace, "VEXOR_Vsan");
  ASSERT_EQ(paths.size(), 2u);
  EXPECT_EQ(text(paths[1]),
            "root/cimv2:VEXOR_Vsan.Name=\"0000000000000000:2\",CreationClassName=\"VEXOR_Vsan\"");
  EXPECT_TRUE(same_instance(manager.get_instance(paths[1]).path, paths[1]));
}

// ---- what the library offers and needs ----

Texts symbols(const char* options) {
  Texts result;
  FILE* nm = popen((std::string(CIM_NM) + " -D " + options + " " + PROVIDERS_LIBRARY).c_str(), "r");
  char line[4096];
  while (nm != nullptr && std::fgets(line, sizeof line, nm) != nullptr) {
    std::istringstream words(line);
    std::string word, last;
    while (words >> word)
      last = word;
    result.push_back(last.substr(0, last.find('@')));
  }
  EXPECT_EQ(pclose(nm), 0);
  return result;
}

TEST(ProviderExports, AreTheGenericFactoriesOnly) {
  Texts names = symbols("--defined-only");
  std::erase(names, "VEXOR_PROVIDERS_1");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (Texts{"_Generic_Create_AssociationMI", "_Generic_Create_InstanceMI",
                          "_Generic_Create_MethodMI"}));
}

TEST(ProviderImports, FromOurLibrariesAreItsPublicFunctionsOnly) {
  std::set<std::string> listed;
  std::ifstream in(std::string(CIM_SOURCE_DIR) + "/tests/exports/public_names.txt");
  for (std::string line; std::getline(in, line);) {
    constexpr std::string_view kData = "data ";
    if (line.starts_with(kData)) line.erase(0, kData.size());
    listed.insert(line.substr(0, line.find('\t')));
  }
  int ours = 0;
  for (const std::string& name : symbols("--undefined-only")) {
    if (listed.contains(name)) {
      ++ours;
      continue;
    }
    // The switch's own services are asked through the library, never around it.
    for (const char* prefix : {"mts_", "cmi_", "zs_cmi_", "pm_cmi_", "ns_send_", "fcs_send_"})
      EXPECT_FALSE(name.starts_with(prefix)) << name;
  }
  EXPECT_GT(ours, 8);
}

}  // namespace
