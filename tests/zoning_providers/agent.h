// The provider library in the embedded object manager, on the simulated switch of this process.
#ifndef TESTS_ZONING_PROVIDERS_AGENT_H
#define TESTS_ZONING_PROVIDERS_AGENT_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/object_manager.h"
#include "host/object_path.h"
#include "schema/repository.h"
#include "simulator/control/control.h"

namespace zoning_agent {

namespace control = switch_sim::control;
using cim::host::CimError;
using cim::host::Data;
using cim::host::Element;
using cim::host::MethodResult;
using cim::host::NamedData;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using switch_sim::ZoneDatabase;
using switch_sim::ZoningKind;
using Texts = std::vector<std::string>;
using Arguments = std::vector<NamedData>;

inline constexpr const char* kNamespace = "root/cimv2";

inline const cim::schema::Repository& repository() {
  static const cim::schema::Repository& loaded = *[] {
    auto* made = new cim::schema::Repository;  // for the whole process
    EXPECT_TRUE(made->add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof").empty());
    return made;
  }();
  return loaded;
}

inline std::unique_ptr<ObjectManager> make_manager() {
  cim::host::Settings settings;
  settings.providers = {{"VexorProvider", PROVIDERS_LIBRARY, "VEXOR_"}};
  return std::make_unique<ObjectManager>(repository(), settings);
}

inline ObjectPath path(const std::string& text) {
  cim::host::ParsedPath parsed = cim::host::parse_object_path(text);
  EXPECT_TRUE(parsed) << text;
  if (parsed.path.name_space.empty()) parsed.path.name_space = kNamespace;
  return parsed.path;
}
inline ObjectPath instance(const char* class_name, const std::string& id) {
  return path(std::string(class_name) + ".InstanceID=\"" + id + "\"");
}

inline NamedData text(const char* name, const std::string& value) {
  return {name, Data::string(value)};
}
inline NamedData number(const char* name, uint64_t value) {
  return {name, Data::of(CMPI_uint16, Element(std::uint64_t{value}))};
}
inline NamedData flag(const char* name, bool on) {
  return {name, Data::boolean(on)};
}
inline NamedData reference(const char* name, const ObjectPath& object) {
  return {name, Data::reference(object)};
}

// One client: an object manager of its own.
class Client {
 public:
  Client() : manager_(make_manager()) {
    service_ = manager_->enumerate_instance_names(kNamespace, "VEXOR_ZoneService").at(0);
  }
  ObjectManager& manager() { return *manager_; }

  uint64_t call(const char* method, const Arguments& arguments) {
    result_ = manager_->invoke_method(service_, method, arguments);
    return std::get<std::uint64_t>(result_.value.element);
  }
  // The InstanceID of the object that the last call gave back; empty: none.
  std::string made() const {
    if (result_.out.empty()) return "";
    const auto* object = std::get_if<cim::host::PathPtr>(&result_.out.at(0).data.element);
    return object != nullptr ? id_of(**object) : "";
  }
  std::string create_zone(const std::string& name) {
    EXPECT_EQ(call("CreateZone", {text("ZoneName", name)}), 0u) << name;
    return made();
  }

  // Those of a class, or at the other ends of an association of an object.
  Texts ids(const char* class_name) {
    return ids_of(manager_->enumerate_instance_names(kNamespace, class_name));
  }
  Texts ids(const ObjectPath& object, const char* association, const char* result_class = "") {
    return ids_of(manager_->associator_names(object, {association, result_class, "", ""}));
  }

  // How an operation ends.
  template <class Operation>
  static CMPIrc code_of(Operation operation) {
    try {
      operation();
      return CMPI_RC_OK;
    } catch (const CimError& error) {
      return error.code();
    }
  }
  CMPIrc remove(const ObjectPath& object) {
    return code_of([&] { manager_->delete_instance(object); });
  }

 private:
  static std::string id_of(const ObjectPath& object) {
    const NamedData* id = cim::host::find_named(object.keys, "InstanceID");
    return id != nullptr ? std::get<std::string>(id->data.element) : "";
  }
  static Texts ids_of(const std::vector<ObjectPath>& objects) {
    Texts ids;
    for (const ObjectPath& object : objects)
      ids.push_back(id_of(object));
    return ids;
  }

  std::unique_ptr<ObjectManager> manager_;
  ObjectPath service_;
  MethodResult result_;
};

class AgentTest : public testing::Test {
 protected:
  // The traces of the library go to standard output.
  void SetUp() override {
    control::reset();
    testing::internal::CaptureStdout();
    client_ = std::make_unique<Client>();
  }
  void TearDown() override {
    client_.reset();
    testing::internal::GetCapturedStdout();
    control::reset();
  }

  static const switch_sim::Zoning& zoning(const switch_sim::Fabric& fabric) {
    return *fabric.vsans.at(0).zoning;
  }

  std::unique_ptr<Client> client_;
};

}  // namespace zoning_agent

#endif
