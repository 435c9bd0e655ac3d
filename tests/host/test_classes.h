// The classes of the host tests, and an object manager over them.
#ifndef TESTS_HOST_TEST_CLASSES_H_
#define TESTS_HOST_TEST_CLASSES_H_

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/object_manager.h"
#include "host/objects.h"
#include "schema/mof_reader.h"
#include "tests/host/fake_provider.h"

namespace cim::host {

inline constexpr const char* kTestMof = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
Qualifier Abstract : boolean = false, Scope(class, association, indication), Flavor(Restricted);
Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride, ToSubclass);
Qualifier Description : string, Scope(any), Flavor(EnableOverride, ToSubclass, Translatable);
Qualifier EmbeddedInstance : string, Scope(property, method, parameter);
Qualifier In : boolean = true, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Out : boolean = false, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Static : boolean = false, Scope(property, method), Flavor(DisableOverride, ToSubclass);
Qualifier Provider : string, Scope(class), Flavor(Restricted);

[Abstract]
class CIM_Thing {
  [Key] uint32 Id;
  string Name;
};

[Description("A disk.")]
class Test_Disk : CIM_Thing {
  [Description("Bytes.")] uint64 Size;
  uint16 States[];
  string Labels[];
  boolean Ready;
  real32 Speed;
  sint8 Level;
  datetime Made;
  char16 Letter;
  [EmbeddedInstance("Test_Disk")] string Twin;

  [Description("Writes it anew.")]
  uint32 Format([Description("How many.")] uint32 Blocks, string Label,
                [In(false), Out] string Report);
  [Static] uint32 Count();
};

class Test_FastDisk : Test_Disk {
  uint32 Cache;
};

class Test_Tape : CIM_Thing {
  uint16 Wear = 3;
};

[Provider("Other")]
class Test_Foreign : CIM_Thing {
};

class Lone_Thing : CIM_Thing {
};

[Association]
class Test_Link {
  [Key] CIM_Thing REF Antecedent;
  [Key] Test_FastDisk REF Dependent;
};

class Test_Text {
  [Key] string Name;
  [Key] boolean Flag;
  [Key] sint16 Number;
};
)";

inline const schema::Repository& test_repository() {
  static const schema::Repository& repository = *[] {
    auto* made = new schema::Repository;
    const schema::Document document = schema::read_mof_text(kTestMof, "test.mof");
    EXPECT_EQ(document.error_text(), "");
    for (const schema::Diagnostic& error : made->add(document))
      ADD_FAILURE() << error.text();
    return made;
  }();
  return repository;
}

/// A broker without an object manager behind it, inside a request.
class TableTest : public ::testing::Test {
 protected:
  explicit TableTest(const Behavior& behavior = {})
      : broker_(
            test_repository(), behavior,
            [this](std::string_view line) { reports_.emplace_back(line); }, nullptr) {
    scope_.emplace(broker_, std::make_shared<Arena>());
  }

  const CMPIBroker* mb() const { return broker_.face(); }

  CMPIObjectPath* new_path(const char* cls, const char* name_space = "root/test") {
    return mb()->eft->newObjectPath(mb(), name_space, cls, nullptr);
  }

  CMPIInstance* new_instance(const char* cls = "Test_Disk") {
    return mb()->eft->newInstance(mb(), new_path(cls), nullptr);
  }

  CMPIString* string(const char* text) { return mb()->eft->newString(mb(), text, nullptr); }

  static std::string chars(const CMPIString* string) {
    if (string == nullptr) return "(null)";
    return string->ft->getCharPtr(string, nullptr);
  }

  static const CMPIValue* text(const char* chars) {
    return reinterpret_cast<const CMPIValue*>(chars);
  }

  std::string message(const CMPIStatus& status) { return chars(status.msg); }

  void end_request() { scope_.reset(); }

  std::vector<std::string> reports_;
  Broker broker_;
  std::optional<Scope> scope_;
};

/// The library that a test loads, and its control; stays loaded for the test.
class FakeLibrary {
 public:
  explicit FakeLibrary(const std::string& name)
      : file_(std::string(FAKE_FOLDER) + "/" + name + ".so"),
        handle_(dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    EXPECT_NE(handle_, nullptr) << dlerror();
    control_ = reinterpret_cast<FakeControlFunction>(dlsym(handle_, "fake_control"))();
    *control_ = FakeControl();
  }
  ~FakeLibrary() { dlclose(handle_); }
  FakeLibrary(const FakeLibrary&) = delete;
  FakeLibrary& operator=(const FakeLibrary&) = delete;

  const std::string& file() const { return file_; }
  FakeControl& control() const { return *control_; }

 private:
  std::string file_;
  void* handle_;
  FakeControl* control_;
};

/// An object manager with the fake provider, in namespace root/test.
class ManagerTest : public ::testing::Test {
 protected:
  ManagerTest() : fake_("fake_generic") { restart("Fake", fake_.file()); }

  void restart(const std::string& name, const std::string& library) {
    manager_.reset();
    Settings settings;
    settings.name_spaces = {"root/test", "root/second"};
    settings.providers = {{name, library, "Test_"}};
    settings.principal = "guest";
    settings.report = [this](std::string_view line) { reports_.emplace_back(line); };
    manager_ = std::make_unique<ObjectManager>(test_repository(), std::move(settings));
  }

  FakeControl& fake() { return fake_.control(); }

  static ObjectPath disk_path(unsigned id, const char* cls = "Test_Disk") {
    return {{}, "root/test", cls, {{"Id", Data::of(CMPI_uint32, std::uint64_t{id})}}};
  }

  std::vector<std::string> reports_;
  FakeLibrary fake_;
  std::unique_ptr<ObjectManager> manager_;
};

/// The code and text of the CimError that `call` throws; fails the test when it throws none.
template <class Call>
std::pair<CMPIrc, std::string> error_of(Call&& call) {
  try {
    call();
  } catch (const CimError& error) {
    return {error.code(), error.what()};
  }
  ADD_FAILURE() << "no CimError";
  return {CMPI_RC_OK, ""};
}

}  // namespace cim::host

#endif  // TESTS_HOST_TEST_CLASSES_H_
