// The provider on the OpenPegasus interface, against the simulated fabric.
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Provider/CIMInstanceProvider.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "schema/repository.h"
#include "simulator/control/control.h"
#include "tests/model/repository_class_source.h"

namespace {

namespace control = switch_sim::control;
using Pegasus::Array;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMProperty;
using Pegasus::CIMPropertyList;
using Pegasus::String;
using Pegasus::Uint32;
using Texts = std::vector<std::string>;

constexpr const char* kProvider = "VexorPhysicalComputerSystemProvider";
constexpr const char* kOwn = "2000000DEC0A1B2C";
constexpr const char* kRemote = "2000000DEC0A1B5E";

// As it came: the calls of a provider in their order.
class Instances : public Pegasus::InstanceResponseHandler {
 public:
  void processing() override { calls += "processing "; }
  void complete() override { calls += "complete"; }
  void deliver(const CIMInstance& instance) override {
    calls += "one ";
    got.push_back(instance);
  }
  void deliver(const Array<CIMInstance>&) override { calls += "array "; }

  std::string calls;
  std::vector<CIMInstance> got;
};

class Paths : public Pegasus::ObjectPathResponseHandler {
 public:
  void processing() override { calls += "processing "; }
  void complete() override { calls += "complete"; }
  void deliver(const CIMObjectPath& path) override {
    calls += "one ";
    CIMObjectPath without_host = path;
    without_host.setHost(String());
    got.emplace_back(without_host.toString().getCString());
  }
  void deliver(const Array<CIMObjectPath>&) override { calls += "array "; }

  std::string calls;
  Texts got;
};

class Done : public Pegasus::ResponseHandler {
 public:
  void processing() override { calls += "processing "; }
  void complete() override { calls += "complete"; }

  std::string calls;
};

// The library in the process, as long as it lives.
class Library {
 public:
  Library() : handle_(dlopen(PROVIDERS_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
    EXPECT_NE(nullptr, handle_) << dlerror();
  }
  ~Library() { dlclose(handle_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  Pegasus::CIMProvider* create(const char* name) const {
    using Create = Pegasus::CIMProvider* (*)(const String&);
    const auto create = reinterpret_cast<Create>(dlsym(handle_, "PegasusCreateProvider"));
    EXPECT_NE(nullptr, create);
    return create(String(name));
  }

 private:
  void* handle_;
};

class Provider {
 public:
  explicit Provider(const Library& library, const char* name = kProvider) {
    Pegasus::CIMProvider* const made = library.create(name);
    made->initialize(cimom_);
    provider_ = dynamic_cast<Pegasus::CIMInstanceProvider*>(made);
    EXPECT_NE(nullptr, provider_);
  }
  ~Provider() { provider_->terminate(); }
  Provider(const Provider&) = delete;
  Provider& operator=(const Provider&) = delete;

  Pegasus::CIMInstanceProvider* operator->() const { return provider_; }

 private:
  Pegasus::CIMOMHandle cimom_;
  Pegasus::CIMInstanceProvider* provider_ = nullptr;
};

CIMObjectPath of_class(const char* name = "VEXOR_PhysicalComputerSystem") {
  return {String(), Pegasus::CIMNamespaceName("root/cimv2"), CIMName(name)};
}

CIMObjectPath named(const char* wwn, const char* cls = "VEXOR_PhysicalComputerSystem") {
  Array<Pegasus::CIMKeyBinding> keys;
  keys.append({CIMName("CreationClassName"), String(cls), Pegasus::CIMKeyBinding::STRING});
  keys.append({CIMName("Name"), String(wwn), Pegasus::CIMKeyBinding::STRING});
  CIMObjectPath path = of_class();
  path.setKeyBindings(keys);
  return path;
}

CIMPropertyList only(const std::vector<const char*>& names) {
  Array<CIMName> list;
  for (const char* name : names)
    list.append(CIMName(name));
  return CIMPropertyList(list);
}

std::string value(const CIMInstance& instance, const char* name) {
  const Uint32 at = instance.findProperty(CIMName(name));
  if (at == PEG_NOT_FOUND) return "(none)";
  return std::string(instance.getProperty(at).getValue().toString().getCString());
}

class PegasusProvider : public testing::Test {
 protected:
  PegasusProvider() {
    control::reset();
    for (const auto& error : repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
      ADD_FAILURE() << error.text();
    source_.emplace(repository_);
  }
  ~PegasusProvider() override { control::reset(); }

  // The traces of the library go to standard output and standard error.
  void SetUp() override {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
  }
  void TearDown() override {
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
  }

  Instances enumerate(const Provider& provider, const CIMPropertyList& list = {},
                      bool qualifiers = true) {
    Instances instances;
    provider->enumerateInstances(context_, of_class(), qualifiers, true, list, instances);
    return instances;
  }

  CIMInstance get(const Provider& provider, const CIMObjectPath& path) {
    Instances instances;
    provider->getInstance(context_, path, true, true, CIMPropertyList(), instances);
    EXPECT_EQ("processing one complete", instances.calls);
    return instances.got.at(0);
  }

  // "CODE text" of what an operation throws.
  template <typename Operation>
  static std::string error_of(Operation operation) {
    try {
      operation();
    } catch (const Pegasus::CIMException& error) {
      return std::to_string(error.getCode()) + " " + std::string(error.getMessage().getCString());
    }
    return "(nothing)";
  }
  std::string error_of_get(const Provider& provider, const CIMObjectPath& path) {
    Instances instances;
    const std::string error = error_of(
        [&] { provider->getInstance(context_, path, true, true, CIMPropertyList(), instances); });
    EXPECT_TRUE(instances.got.empty());
    EXPECT_EQ(std::string::npos, instances.calls.find("complete"));
    return error;
  }

  std::string error_of_change(const Provider& provider, const CIMObjectPath& path,
                              const CIMInstance& changed, const CIMPropertyList& list = {}) {
    Done done;
    const std::string error =
        error_of([&] { provider->modifyInstance(context_, path, changed, true, list, done); });
    EXPECT_EQ(error == "(nothing)" ? "processing complete" : "processing ", done.calls);
    return error;
  }
  static CIMInstance with(const char* name, const Pegasus::CIMValue& value) {
    CIMInstance changed(CIMName("VEXOR_PhysicalComputerSystem"));
    changed.addProperty(CIMProperty(CIMName(name), value));
    return changed;
  }

  cim::schema::Repository repository_;
  std::optional<RepositoryClassSource> source_;
  Pegasus::OperationContext context_;
};

TEST_F(PegasusProvider, AnUnknownNameHasNoProvider) {
  const Library library;
  EXPECT_EQ(nullptr, library.create("Other"));
  EXPECT_EQ(nullptr, library.create(""));
}

TEST_F(PegasusProvider, TheNamesOfAllSwitchesAreDelivered) {
  const Library library;
  const Provider provider(library);
  Paths paths;
  provider->enumerateInstanceNames(context_, of_class(), paths);
  EXPECT_EQ("processing one one one complete", paths.calls);
  EXPECT_EQ((Texts{
                "root/cimv2:VEXOR_PhysicalComputerSystem.CreationClassName="
                "\"VEXOR_PhysicalComputerSystem\",Name=\"2000000DEC0A1B2C\"",
                "root/cimv2:VEXOR_PhysicalComputerSystem.CreationClassName="
                "\"VEXOR_PhysicalComputerSystem\",Name=\"2000000DEC0A1B5E\"",
                "root/cimv2:VEXOR_PhysicalComputerSystem.CreationClassName="
                "\"VEXOR_PhysicalComputerSystem\",Name=\"2000000DEC0A1B90\"",
            }),
            paths.got);
}

TEST_F(PegasusProvider, AllSwitchesAreDelivered) {
  const Library library;
  const Provider provider(library);
  const Instances instances = enumerate(provider);
  EXPECT_EQ("processing one one one complete", instances.calls);
  ASSERT_EQ(3U, instances.got.size());
  EXPECT_EQ(kOwn, value(instances.got[0], "Name"));
  EXPECT_EQ("TRUE", value(instances.got[0], "PrimarySwitch"));
  EXPECT_EQ(kRemote, value(instances.got[1], "Name"));
  EXPECT_EQ("FALSE", value(instances.got[1], "PrimarySwitch"));
  EXPECT_EQ("VEXOR_PhysicalComputerSystem", value(instances.got[2], "CreationClassName"));
}

TEST_F(PegasusProvider, AnInstanceHasThePathThatIsEnumerated) {
  const Library library;
  const Provider provider(library);
  Paths paths;
  provider->enumerateInstanceNames(context_, of_class(), paths);
  const Instances instances = enumerate(provider);
  ASSERT_EQ(paths.got.size(), instances.got.size());
  for (size_t i = 0; i < paths.got.size(); ++i) {
    CIMObjectPath path = instances.got[i].getPath();
    path.setHost(String());
    EXPECT_EQ(paths.got[i], std::string(path.toString().getCString()));
  }
}

TEST_F(PegasusProvider, OneSwitchIsGotByItsName) {
  const Library library;
  const Provider provider(library);
  const CIMInstance instance = get(provider, named(kRemote));
  EXPECT_EQ(kRemote, value(instance, "Name"));
  EXPECT_EQ("192.0.2.12", value(instance, "IPAddress"));
}

TEST_F(PegasusProvider, TheClassMayBeLeftOutOfTheKeysAndItsCaseDoesNotCount) {
  const Library library;
  const Provider provider(library);
  Array<Pegasus::CIMKeyBinding> keys;
  keys.append({CIMName("name"), String(kOwn), Pegasus::CIMKeyBinding::STRING});
  CIMObjectPath path = of_class("vexor_physicalcomputersystem");
  path.setKeyBindings(keys);
  EXPECT_EQ(kOwn, value(get(provider, path), "Name"));
  EXPECT_EQ(kOwn, value(get(provider, named(kOwn, "VEXOR_physicalComputerSYSTEM")), "Name"));
}

TEST_F(PegasusProvider, APropertyListLeavesTheOthersOut) {
  const Library library;
  const Provider provider(library);
  const CIMInstance instance = enumerate(provider, only({"name", "Status"})).got.at(0);
  EXPECT_EQ(kOwn, value(instance, "Name"));
  EXPECT_EQ("(none)", value(instance, "PrimarySwitch"));
  EXPECT_EQ(0U, enumerate(provider, only({})).got.at(0).getPropertyCount());
}

TEST_F(PegasusProvider, QualifiersComeFromTheObjectManagerWhenTheyAreWanted) {
  const Library library;
  const Provider provider(library);
  const CIMInstance with_them = enumerate(provider).got.at(0);
  EXPECT_NE(PEG_NOT_FOUND, with_them.findQualifier(CIMName("Description")));
  const CIMInstance without = enumerate(provider, {}, false).got.at(0);
  EXPECT_EQ(0U, without.getQualifierCount());
}

TEST_F(PegasusProvider, AnOwnSwitchThatNoVsanKnowsIsStillDelivered) {
  auto fabric = control::fabric();
  for (auto& vsan : fabric.vsans)
    vsan.state = switch_sim::VsanState::suspended;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  const Library library;
  const Provider provider(library);
  const Instances instances = enumerate(provider);
  ASSERT_EQ(1U, instances.got.size());
  EXPECT_EQ(kOwn, value(instances.got[0], "Name"));
}

TEST_F(PegasusProvider, ASwitchThatIsNotThereIsNotFound) {
  const Library library;
  const Provider provider(library);
  const CIMObjectPath path = named("2000000DEC0A1B00");
  EXPECT_TRUE(error_of_get(provider, path).starts_with("6 ")) << error_of_get(provider, path);
  EXPECT_TRUE(error_of_get(provider, named(kOwn, "VEXOR_Other")).starts_with("6 "));
  EXPECT_TRUE(error_of_get(provider, named("2000000dec0a1b2c")).starts_with("6 "));
}

TEST_F(PegasusProvider, KeysThatTheClassDoesNotHaveAreAnInvalidParameter) {
  const Library library;
  const Provider provider(library);
  EXPECT_EQ("4 the key Name is missing", error_of_get(provider, of_class()));
  Array<Pegasus::CIMKeyBinding> keys;
  keys.append({CIMName("Tag"), String("x"), Pegasus::CIMKeyBinding::STRING});
  CIMObjectPath path = of_class();
  path.setKeyBindings(keys);
  EXPECT_EQ("4 VEXOR_PhysicalComputerSystem has other keys", error_of_get(provider, path));
}

TEST_F(PegasusProvider, AnotherClassIsRefused) {
  const Library library;
  const Provider provider(library);
  Instances instances;
  EXPECT_EQ("5 this provider serves VEXOR_PhysicalComputerSystem only", error_of([&] {
              provider->enumerateInstances(context_, of_class("VEXOR_Vsan"), true, true,
                                           CIMPropertyList(), instances);
            }));
  Paths paths;
  EXPECT_TRUE(error_of([&] {
                provider->enumerateInstanceNames(context_, of_class("VEXOR_Vsan"), paths);
              }).starts_with("5 "));
  EXPECT_EQ("", instances.calls + paths.calls);
}

TEST_F(PegasusProvider, SwitchesAreNeitherMadeNorDeleted) {
  const Library library;
  const Provider provider(library);
  Paths paths;
  Done done;
  EXPECT_TRUE(error_of([&] {
                provider->createInstance(context_, of_class(),
                                         CIMInstance(CIMName("VEXOR_PhysicalComputerSystem")),
                                         paths);
              }).starts_with("7 "));
  EXPECT_TRUE(
      error_of([&] { provider->deleteInstance(context_, named(kOwn), done); }).starts_with("7 "));
}

// --- Changes -------------------------------------------------------------------------------------

TEST_F(PegasusProvider, TheNameOfTheOwnSwitchIsChanged) {
  const Library library;
  const Provider provider(library);
  EXPECT_EQ("(nothing)",
            error_of_change(provider, named(kOwn), with("ElementName", String("core-7"))));
  EXPECT_EQ("core-7", control::fabric().switches[0].name);
}

TEST_F(PegasusProvider, AnInstanceThatIsSentBackAsItCameChangesNothing) {
  const Library library;
  const Provider provider(library);
  const auto before = control::fabric();
  EXPECT_EQ("(nothing)", error_of_change(provider, named(kOwn), get(provider, named(kOwn))));
  EXPECT_EQ("(nothing)", error_of_change(provider, named(kRemote), get(provider, named(kRemote))));
  EXPECT_EQ(before, control::fabric());
}

TEST_F(PegasusProvider, WhatThePropertyListLeavesOutIsNotChanged) {
  const Library library;
  const Provider provider(library);
  const auto before = control::fabric();
  CIMInstance changed = with("ElementName", String("core-7"));
  changed.addProperty(CIMProperty(CIMName("Vendor"), String("nobody")));
  EXPECT_EQ("(nothing)", error_of_change(provider, named(kOwn), changed, only({"Status"})));
  EXPECT_EQ(before, control::fabric());
  EXPECT_EQ("(nothing)", error_of_change(provider, named(kOwn), changed, only({"elementname"})));
  EXPECT_EQ("core-7", control::fabric().switches[0].name);
}

TEST_F(PegasusProvider, OtherPropertiesCannotBeChangedAndThenNothingIs) {
  const Library library;
  const Provider provider(library);
  const auto before = control::fabric();
  CIMInstance changed = with("ElementName", String("core-7"));
  changed.addProperty(CIMProperty(CIMName("Vendor"), String("nobody")));
  EXPECT_EQ("7 Vendor cannot be changed", error_of_change(provider, named(kOwn), changed));
  EXPECT_EQ(before, control::fabric());
}

TEST_F(PegasusProvider, ANameThatIsNoneIsRefused) {
  const Library library;
  const Provider provider(library);
  const auto before = control::fabric();
  const CIMObjectPath own = named(kOwn);
  EXPECT_EQ(
      "4 ElementName has 0 characters: a switch's name has 1 to "
      "32",
      error_of_change(provider, own, with("ElementName", String(""))));
  EXPECT_EQ(
      "4 ElementName has 33 characters: a switch's name has 1 to "
      "32",
      error_of_change(provider, own, with("ElementName", String(std::string(33, 'n').c_str()))));
  EXPECT_EQ("4 ElementName is a text",
            error_of_change(provider, own, with("ElementName", Uint32{7})));
  EXPECT_EQ(
      "4 ElementName is a text",
      error_of_change(provider, own,
                      with("ElementName", Pegasus::CIMValue(Pegasus::CIMTYPE_STRING, false))));
  EXPECT_EQ(before, control::fabric());
  EXPECT_EQ(
      "(nothing)",
      error_of_change(provider, own, with("ElementName", String(std::string(32, 'n').c_str()))));
}

TEST_F(PegasusProvider, TheNameOfAnotherSwitchIsChangedThere) {
  const Library library;
  const Provider provider(library);
  EXPECT_EQ(
      "7 switch 2000000DEC0A1B5E is not the one that runs this "
      "agent: its name is changed there",
      error_of_change(provider, named(kRemote), with("ElementName", String("edge-7"))));
}

// --- What goes wrong -----------------------------------------------------------------------------

TEST_F(PegasusProvider, ASwitchThatDoesNotTellItsWwnFailsTheRequest) {
  control::set_faults({{.service = switch_sim::Service::switch_identity,
                        .kind = switch_sim::Fault::Kind::status,
                        .value = 17}});
  const Library library;
  const Provider provider(library);
  EXPECT_EQ("1 the switch identity service does not tell the switch's WWN",
            error_of_get(provider, named(kOwn)));
}

TEST_F(PegasusProvider, AServiceThatRefusesTheNameFailsTheRequest) {
  control::set_faults({{.service = switch_sim::Service::system_name,
                        .kind = switch_sim::Fault::Kind::status,
                        .value = 17}});
  const Library library;
  const Provider provider(library);
  EXPECT_EQ("1 the system name service refuses the name",
            error_of_change(provider, named(kOwn), with("ElementName", String("core-7"))));
}

TEST_F(PegasusProvider, WithoutAClassDefinitionThereAreNoQualifiersAndAllProperties) {
  source_.reset();
  const Library library;
  const Provider provider(library);
  const CIMInstance instance = get(provider, named(kOwn));
  EXPECT_EQ(0U, instance.getQualifierCount());
  EXPECT_EQ(kOwn, value(instance, "Name"));
}

TEST_F(PegasusProvider, ItIsUnloadedAndLoadedAgain) {
  for (int i = 0; i < 3; ++i) {
    {
      const Library library;
      const Provider provider(library);
      EXPECT_EQ(3U, enumerate(provider).got.size());
    }
    EXPECT_EQ(nullptr, dlopen(PROVIDERS_LIBRARY, RTLD_NOLOAD | RTLD_LAZY));
  }
}

TEST_F(PegasusProvider, TheLastProviderReleasesItsQueues) {
  const auto before = control::outstanding().queues;
  const Library library;
  std::optional<Provider> first(std::in_place, library);
  {
    const Provider second(library);
    EXPECT_EQ(3U, enumerate(second).got.size());
  }
  EXPECT_EQ(3U, enumerate(*first).got.size());
  EXPECT_EQ(before + 2, control::outstanding().queues);
  first.reset();
  EXPECT_EQ(before, control::outstanding().queues);
}

// The library stays loaded where something else in the process uses it.
TEST_F(PegasusProvider, AfterARestartItBindsItsQueuesAnew) {
  const auto before = control::outstanding().queues;
  const Library library;
  for (int i = 0; i < 2; ++i) {
    const Provider provider(library);
    const CIMInstance instance = get(provider, named(kOwn));
    EXPECT_EQ("TRUE", value(instance, "PrimarySwitch"));
    EXPECT_EQ(before + 2, control::outstanding().queues);
  }
  EXPECT_EQ(before, control::outstanding().queues);
}

TEST_F(PegasusProvider, ThreadsGetWholeAnswers) {
  const Library library;
  const Provider provider(library);
  const auto ask = [&] {
    for (int i = 0; i < 20; ++i) {
      const Instances instances = enumerate(provider);
      ASSERT_EQ(3U, instances.got.size());
      EXPECT_EQ(kOwn, value(instances.got[0], "Name"));
      EXPECT_EQ("192.0.2.12", value(instances.got[1], "IPAddress"));
    }
  };
  std::thread first(ask);
  std::thread second(ask);
  first.join();
  second.join();
}

// ---- VEXOR_Switch, made of the properties that class ComputerSystem gives ----

constexpr const char* kSwitchProvider = "VexorSwitchProvider";
constexpr const char* kSwitch = "VEXOR_Switch";

class PegasusSwitchProvider : public PegasusProvider {
 protected:
  static CIMObjectPath path_of(const char* wwn, const char* creation_class = kSwitch) {
    CIMObjectPath path = named(wwn, creation_class);
    path.setClassName(CIMName(kSwitch));
    return path;
  }

  const Library library_;
  const Provider provider_{library_, kSwitchProvider};
};

TEST_F(PegasusSwitchProvider, TheOwnSwitchIsTheOnlyOne) {
  Paths paths;
  provider_->enumerateInstanceNames(context_, of_class(kSwitch), paths);
  EXPECT_EQ("processing one complete", paths.calls);
  EXPECT_EQ((Texts{"root/cimv2:VEXOR_Switch.CreationClassName=\"VEXOR_Switch\","
                   "Name=\"2000000DEC0A1B2C\""}),
            paths.got);
  Instances instances;
  provider_->enumerateInstances(context_, of_class(kSwitch), true, true, CIMPropertyList(),
                                instances);
  EXPECT_EQ("processing one complete", instances.calls);
  CIMObjectPath path = instances.got.at(0).getPath();
  path.setHost(String());
  EXPECT_EQ(paths.got[0], std::string(path.toString().getCString()));
}

TEST_F(PegasusSwitchProvider, TheSwitchHasThePropertiesOfItsGetters) {
  const CIMInstance own = get(provider_, path_of(kOwn));
  const std::pair<const char*, const char*> properties[] = {
      {"CreationClassName", "VEXOR_Switch"},
      {"Name", "2000000DEC0A1B2C"},
      {"NameFormat", "WWN"},
      {"ElementName", "switch-1"},
      {"Vendor", "VEXOR"},
      {"Version", "1.0"},
      {"IdentifyingNumber", "2000000DEC0A1B2C"},
      {"OperationalStatus", "2"},
      {"Status", "OK"},
      {"Dedicated", "5"},
      {"Caption", "Simulated Fibre Channel switch"},
      {"Description", "Simulated Fibre Channel switch"},
      {"PrimaryOwnerName", "storage-team@example.com"},
      {"PrimaryOwnerContact", "storage-team@example.com"},
      {"PowerManagementCapabilities", "1"}};
  for (const auto& [name, text] : properties)
    EXPECT_EQ(text, value(own, name)) << name;
  EXPECT_EQ(15U, own.getPropertyCount());
}

// As an object manager takes them: the up-time is no date and time, and left out.
TEST_F(PegasusSwitchProvider, PropertiesAreOfTheTypesThatTheClassDeclares) {
  const CIMInstance own = get(provider_, path_of(kOwn));
  const auto* cls = repository_.find(kSwitch);
  ASSERT_NE(nullptr, cls);
  for (Uint32 i = 0; i < own.getPropertyCount(); ++i) {
    const auto property = own.getProperty(i);
    const std::string name(property.getName().getString().getCString());
    const auto* declared = repository_.property(*cls, name);
    ASSERT_NE(nullptr, declared) << name;
    EXPECT_EQ(declared->is_array, property.getValue().isArray()) << name;
    EXPECT_EQ(cim::schema::type_name(declared->type),
              property.getType() == Pegasus::CIMTYPE_STRING   ? "string"
              : property.getType() == Pegasus::CIMTYPE_UINT16 ? "uint16"
                                                              : "another type")
        << name;
  }
  EXPECT_EQ("(none)", value(own, "InstallDate"));
}

TEST_F(PegasusSwitchProvider, AnotherSwitchIsNotFound) {
  EXPECT_TRUE(error_of_get(provider_, path_of(kRemote)).starts_with("6 "));
  EXPECT_TRUE(error_of_get(provider_, path_of("N/A")).starts_with("6 "));
  EXPECT_TRUE(
      error_of_get(provider_, path_of(kOwn, "VEXOR_PhysicalComputerSystem")).starts_with("6 "));
}

TEST_F(PegasusSwitchProvider, AnotherClassIsRefused) {
  EXPECT_EQ("5 this provider serves VEXOR_Switch only", error_of_get(provider_, named(kOwn)));
  Paths paths;
  EXPECT_EQ("5 this provider serves VEXOR_Switch only",
            error_of([&] { provider_->enumerateInstanceNames(context_, of_class(), paths); }));
  Instances instances;
  EXPECT_EQ("5 this provider serves VEXOR_Switch only", error_of([&] {
              provider_->enumerateInstances(context_, of_class(), true, true, CIMPropertyList(),
                                            instances);
            }));
}

TEST_F(PegasusSwitchProvider, OnlyWhatIsAskedForIsDelivered) {
  Instances instances;
  provider_->getInstance(context_, path_of(kOwn), true, true, only({"Vendor", "Status"}),
                         instances);
  EXPECT_EQ(2U, instances.got.at(0).getPropertyCount());
  EXPECT_EQ("VEXOR", value(instances.got.at(0), "Vendor"));
}

TEST_F(PegasusSwitchProvider, ASwitchWhoseWwnIsNotToldFailsTheRequest) {
  switch_sim::Fault fault;
  fault.opcode = 1282;
  fault.value = 9;
  control::set_faults({fault});
  EXPECT_NE(std::string::npos,
            error_of_get(provider_, path_of(kOwn)).find("does not tell the switch's WWN"));
}

// The WWN is asked for first, and again by the getters of "Name" and "IdentifyingNumber".
TEST_F(PegasusSwitchProvider, ASwitchThatStopsTellingItsWwnFailsTheRequest) {
  switch_sim::Fault fault;
  fault.opcode = 1282;
  fault.nth = 2;
  fault.value = 9;
  control::set_faults({fault});
  EXPECT_NE(std::string::npos,
            error_of_get(provider_, path_of(kOwn)).find("does not tell the switch's WWN"));
}

TEST_F(PegasusSwitchProvider, NothingOfTheSwitchIsChanged) {
  EXPECT_NE(std::string::npos, error_of([&] {
                                 Done done;
                                 provider_->modifyInstance(context_, path_of(kOwn),
                                                           CIMInstance(CIMName(kSwitch)), true,
                                                           CIMPropertyList(), done);
                               }).find("VEXOR_PhysicalComputerSystem"));
  EXPECT_TRUE(error_of([&] {
                Done done;
                provider_->deleteInstance(context_, path_of(kOwn), done);
              }).starts_with("7 "));
  EXPECT_TRUE(error_of([&] {
                Paths made;
                provider_->createInstance(context_, of_class(kSwitch),
                                          CIMInstance(CIMName(kSwitch)), made);
              }).starts_with("7 "));
}

}  // namespace
