#include "providers/registration/registration.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "providers/class_table.h"
#include "schema/repository.h"

namespace {

using cim::schema::InstanceDeclaration;
using cim::schema::Repository;
using namespace vexor::providers;

std::string file_text(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  EXPECT_TRUE(in.good()) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string made(const char* name) {
  return file_text(std::string(REGISTRATION_FOLDER) + "/" + name);
}

const Class* find_class(const std::string& name) {
  for (const Class* each : class_table())
    if (each->name() == name) return each;
  ADD_FAILURE() << name;
  return nullptr;
}

std::string pegasus_text_of(const char* name) {
  const Class* const only[] = {find_class(name)};
  return openpegasus_registration(only, {"root/cimv2", "0.1.0"});
}

std::string sfcb_text_of(const char* name) {
  const Class* const only[] = {find_class(name)};
  return sfcb_registration(only, {"root/cimv2", "0.1.0"});
}

constexpr const char* kPegasusModule =
    R"(// The providers of libvexor_providers.so; for the namespace root/PG_InterOp.

instance of PG_ProviderModule {
  Name = "VexorProviderModule";
  Vendor = "VEXOR";
  Version = "0.1.0";
  InterfaceType = "CMPI";
  InterfaceVersion = "2.0.0";
  Location = "vexor_providers";
  UserContext = 5;
};

instance of PG_Provider {
  ProviderModuleName = "VexorProviderModule";
  Name = "VexorProvider";
};
)";

TEST(OpenPegasusRegistration, AClassWithInstancesOnly) {
  EXPECT_EQ(std::string(kPegasusModule) + R"(
instance of PG_ProviderCapabilities {
  ProviderModuleName = "VexorProviderModule";
  ProviderName = "VexorProvider";
  CapabilityID = "VEXOR_AdminDomain";
  ClassName = "VEXOR_AdminDomain";
  Namespaces = {"root/cimv2"};
  ProviderType = {2};
  SupportedProperties = NULL;
  SupportedMethods = NULL;
};
)",
            pegasus_text_of("VEXOR_AdminDomain"));
}

TEST(OpenPegasusRegistration, AnAssociation) {
  EXPECT_EQ(std::string(kPegasusModule) + R"(
instance of PG_ProviderCapabilities {
  ProviderModuleName = "VexorProviderModule";
  ProviderName = "VexorProvider";
  CapabilityID = "VEXOR_ContainedDomain";
  ClassName = "VEXOR_ContainedDomain";
  Namespaces = {"root/cimv2"};
  ProviderType = {2, 3};
  SupportedProperties = NULL;
  SupportedMethods = NULL;
};
)",
            pegasus_text_of("VEXOR_ContainedDomain"));
}

TEST(OpenPegasusRegistration, AClassWithMethods) {
  EXPECT_EQ(std::string(kPegasusModule) + R"(
instance of PG_ProviderCapabilities {
  ProviderModuleName = "VexorProviderModule";
  ProviderName = "VexorProvider";
  CapabilityID = "VEXOR_Vsan";
  ClassName = "VEXOR_Vsan";
  Namespaces = {"root/cimv2"};
  ProviderType = {2, 5};
  SupportedProperties = NULL;
  SupportedMethods = NULL;
};
)",
            pegasus_text_of("VEXOR_Vsan"));
}

constexpr const char* kSfcbHead =
    "# The providers of libvexor_providers.so, version 0.1.0: one group, one process.\n";

TEST(SfcbRegistration, AClassWithInstancesOnly) {
  EXPECT_EQ(std::string(kSfcbHead) + R"(
[VEXOR_AdminDomain]
   provider: VexorProvider
   location: vexor_providers
   type: instance
   namespace: root/cimv2
   group: vexor
)",
            sfcb_text_of("VEXOR_AdminDomain"));
}

TEST(SfcbRegistration, AnAssociation) {
  EXPECT_EQ(std::string(kSfcbHead) + R"(
[VEXOR_ContainedDomain]
   provider: VexorProvider
   location: vexor_providers
   type: instance association
   namespace: root/cimv2
   group: vexor
)",
            sfcb_text_of("VEXOR_ContainedDomain"));
}

TEST(SfcbRegistration, AClassWithMethods) {
  EXPECT_EQ(std::string(kSfcbHead) + R"(
[VEXOR_Vsan]
   provider: VexorProvider
   location: vexor_providers
   type: instance method
   namespace: root/cimv2
   group: vexor
)",
            sfcb_text_of("VEXOR_Vsan"));
}

TEST(Registration, TheNamespaceIsTheOneThatWasAskedFor) {
  const Class* const only[] = {find_class("VEXOR_Vsan")};
  EXPECT_NE(std::string::npos, openpegasus_registration(only, {"root/switch", "2"})
                                   .find("\n  Namespaces = {\"root/switch\"};\n"));
  EXPECT_NE(std::string::npos,
            sfcb_registration(only, {"root/switch", "2"}).find("\n   namespace: root/switch\n"));
}

// --- The files that are installed ----------------------------------------------------------------

// As the object manager declares them, as far as the registration goes.
constexpr const char* kPegasusClasses = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
class PG_ProviderModule {
  [Key] string Name; string Vendor; string Version; string InterfaceType; string InterfaceVersion;
  string Location; uint16 UserContext;
};
class PG_Provider { [Key] string ProviderModuleName; [Key] string Name; };
class PG_ProviderCapabilities {
  [Key] string ProviderModuleName; [Key] string ProviderName; [Key] string CapabilityID;
  string ClassName; string Namespaces[]; uint16 ProviderType[];
  string SupportedProperties[]; string SupportedMethods[];
};
)";

std::string all(const std::vector<cim::schema::Diagnostic>& errors) {
  std::string text;
  for (const auto& error : errors)
    text += error.text() + "\n";
  return text;
}

// What one class is registered for: "instance", "association", "method".
using Kinds = std::set<std::string>;

std::map<std::string, Kinds> table() {
  std::map<std::string, Kinds> classes;
  for (const Class* each : class_table()) {
    Kinds& kinds = classes[each->name()];
    kinds.insert("instance");
    if (each->is_association()) kinds.insert("association");
    if (each->has_methods()) kinds.insert("method");
  }
  return classes;
}

const cim::schema::Scalar& only_element(const cim::schema::Value& value) {
  if (!value.is_array()) return value.scalar();
  EXPECT_EQ(1U, value.elements().size());
  return value.elements().at(0);
}

std::string text_of(const InstanceDeclaration& instance, const std::string& property) {
  for (const auto& each : instance.properties)
    if (each.name == property) return std::get<std::string>(only_element(each.value));
  ADD_FAILURE() << property;
  return {};
}

TEST(InstalledRegistration, OpenPegasusGetsEveryClassOnceWithWhatItSupports) {
  Repository repository;
  ASSERT_EQ("", all(repository.add(cim::schema::read_mof_text(kPegasusClasses))));
  ASSERT_EQ("", all(repository.add(
                    cim::schema::read_mof_text(made("vexor_openpegasus.mof"), "registration"))));
  std::map<std::string, Kinds> registered;
  size_t capabilities = 0;
  for (const InstanceDeclaration* instance : repository.instances()) {
    if (instance->class_name != "PG_ProviderCapabilities") continue;
    ++capabilities;
    EXPECT_EQ("VexorProviderModule", text_of(*instance, "ProviderModuleName"));
    EXPECT_EQ("VexorProvider", text_of(*instance, "ProviderName"));
    EXPECT_EQ(REGISTRATION_NAMESPACE, text_of(*instance, "Namespaces"));
    EXPECT_EQ(text_of(*instance, "ClassName"), text_of(*instance, "CapabilityID"));
    Kinds& kinds = registered[text_of(*instance, "ClassName")];
    for (const auto& each : instance->properties) {
      if (each.name != "ProviderType") continue;
      for (const auto& number : each.value.elements()) {
        static const std::map<uint64_t, std::string> names = {
            {2, "instance"}, {3, "association"}, {5, "method"}};
        kinds.insert(names.at(std::get<uint64_t>(number)));
      }
    }
  }
  EXPECT_EQ(table(), registered);
  EXPECT_EQ(class_table().size(), capabilities);
}

TEST(InstalledRegistration, SfcbGetsEveryClassOnceWithWhatItSupportsInOneGroup) {
  std::map<std::string, Kinds> registered;
  std::map<std::string, int> groups;
  size_t sections = 0;
  std::string name;
  std::istringstream lines(made("vexor_sfcb.reg"));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("[")) {
      name = line.substr(1, line.size() - 2);
      ++sections;
    } else if (line.starts_with("   type: ")) {
      std::istringstream kinds(line.substr(9));
      for (std::string kind; kinds >> kind;)
        registered[name].insert(kind);
    } else if (line.starts_with("   group: ")) {
      ++groups[line.substr(10)];
    } else if (line.starts_with("   namespace: ")) {
      EXPECT_EQ(REGISTRATION_NAMESPACE, line.substr(14));
    }
  }
  EXPECT_EQ(table(), registered);
  EXPECT_EQ(class_table().size(), sections);
  EXPECT_EQ((std::map<std::string, int>{{"vexor", static_cast<int>(sections)}}), groups);
}

TEST(InstalledRegistration, TheFilesSayWhichVersionTheyAreOf) {
  EXPECT_NE(std::string::npos,
            made("vexor_openpegasus.mof").find("\n  Version = \"" REGISTRATION_VERSION "\";\n"));
  EXPECT_NE(std::string::npos, made("vexor_sfcb.reg").find("version " REGISTRATION_VERSION ":"));
}

class InstalledDefinitions : public testing::Test {
 protected:
  // The object manager's part of the definitions, then ours.
  void SetUp() override {
    constexpr const char* kSchema =
        "#pragma include (\"cim_hardware.mof\")\n#pragma include (\"cim_zoning.mof\")\n";
    ASSERT_EQ("", all(repository_.add(cim::schema::read_mof_text(
                      kSchema, std::string(CIM_SOURCE_DIR) + "/mof/cim_schema.mof"))));
    theirs_ = repository_.all().size();
    ASSERT_EQ("", all(repository_.add(
                      cim::schema::read_mof_text(made("vexor_classes.mof"), "vexor_classes.mof"))));
  }

  Repository repository_;
  size_t theirs_ = 0;
};

TEST_F(InstalledDefinitions, EveryRegisteredClassIsDefinedAndFitsItsRegistration) {
  for (const auto& [name, kinds] : table()) {
    const auto* cls = repository_.find(name);
    ASSERT_NE(nullptr, cls) << name;
    EXPECT_FALSE(cls->is_abstract) << name;
    EXPECT_EQ(kinds.contains("association"), cls->is_association) << name;
    if (kinds.contains("method")) {
      EXPECT_FALSE(repository_.methods(*cls).empty()) << name;
    }
  }
}

TEST_F(InstalledDefinitions, NoneIsTheObjectManagersOwn) {
  const std::string text = made("vexor_classes.mof");
  EXPECT_EQ(std::string::npos, text.find("class CIM_"));
  EXPECT_EQ(std::string::npos, text.find("#pragma include"));
  EXPECT_EQ(std::string::npos, text.find("Qualifier "));
}

TEST_F(InstalledDefinitions, TheyAreAllThatTheProgramsRead) {
  Repository complete;
  ASSERT_EQ("", all(complete.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof")));
  ASSERT_EQ(complete.all().size(), repository_.all().size());
  EXPECT_GT(repository_.all().size(), theirs_);
  for (const auto* cls : complete.all()) {
    const auto* ours = repository_.find(cls->name);
    ASSERT_NE(nullptr, ours) << cls->name;
    EXPECT_TRUE(cim::schema::same_declaration(*cls, *ours)) << cls->name;
  }
}

// Other readers of MOF take the classes in their order.
TEST_F(InstalledDefinitions, ASuperclassComesBeforeItsSubclasses) {
  const std::string text = made("vexor_classes.mof");
  for (const auto* cls : repository_.all()) {
    if (!cls->superclass.starts_with("VEXOR_")) continue;
    EXPECT_LT(text.find("class " + cls->superclass + " "), text.find("class " + cls->name + " "))
        << cls->name;
  }
}

// --- The program ---------------------------------------------------------------------------------

int run(const std::string& arguments) {
  const std::string command = REGISTRATION_PROGRAM " " + arguments;
  return WEXITSTATUS(system(command.c_str()));  // NOLINT
}

TEST(RegistrationProgram, WhatItDoesNotUnderstandIsAnError) {
  EXPECT_EQ(2, run("2>/dev/null"));
  EXPECT_EQ(2, run("sfcb 2>/dev/null"));
  EXPECT_EQ(2, run("other root/cimv2 2>/dev/null"));
  EXPECT_EQ(0, run("sfcb root/cimv2 >/dev/null"));
}

TEST(RegistrationProgram, WhatCannotBeWrittenIsAnError) {
  EXPECT_EQ(1, run("sfcb root/cimv2 >/dev/full 2>/dev/null"));
}

}  // namespace
