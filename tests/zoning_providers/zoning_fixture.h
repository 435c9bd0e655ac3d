// The zoning providers on one VSAN, whose zone server is a script or a responder.
#ifndef TESTS_ZONING_PROVIDERS_ZONING_FIXTURE_H
#define TESTS_ZONING_PROVIDERS_ZONING_FIXTURE_H

#include <string>

#include "tests/providers/provider_fixture.h"
#include "tests/support/double_zone_server.h"
#include "tests/zoning_queries/entries.h"

namespace zoning_provider_tests {

using namespace provider_tests;
using namespace test_support;
using namespace zoning_queries_test;

inline constexpr int32_t kInAlias = 0;
inline constexpr int32_t kInZone = 1;

class ZoningFixture : public ProviderFixture {
 protected:
  CMPIObjectPath* object(const char* class_name, const char* instance_id) {
    return broker_.path(class_name, {{"InstanceID", instance_id}});
  }
  CMPIObjectPath* zone_set(const char* id) { return object("VEXOR_ZoneSet", id); }
  CMPIObjectPath* zone(const char* id) { return object("VEXOR_Zone", id); }
  CMPIObjectPath* alias(const char* id) { return object("VEXOR_ZoneAlias", id); }
  CMPIObjectPath* member(const char* id) { return object("VEXOR_ZoneMemberSettingData", id); }
  CMPIObjectPath* association(const char* class_name, const char* first_role, CMPIObjectPath* first,
                              const char* second_role, CMPIObjectPath* second) {
    CMPIObjectPath* path = broker_.path(class_name);
    broker_.add_reference(path, first_role, first);
    return broker_.add_reference(path, second_role, second);
  }
  CMPIObjectPath* service() {
    return broker_.path("VEXOR_ZoneService", {{"SystemCreationClassName", "VEXOR_Vsan"},
                                              {"SystemName", "2001000DEC0A1B2D"},
                                              {"CreationClassName", "VEXOR_ZoneService"},
                                              {"Name", "1"}});
  }
  Outcome remove(const CMPIObjectPath* path) {
    return ask([&](const CMPIResult* result) {
      return instances_->ft->deleteInstance(instances_, nullptr, result, path);
    });
  }

  // Arguments of a method.
  struct In {
    CMPIArgs* args;
    In& text(const char* name, const char* value) {
      args->ft->addArg(args, name, reinterpret_cast<const CMPIValue*>(value), CMPI_chars);
      return *this;
    }
    In& number(const char* name, uint16_t number) {
      CMPIValue value{};
      value.uint16 = number;
      args->ft->addArg(args, name, &value, CMPI_uint16);
      return *this;
    }
    In& flag(const char* name, bool on) {
      CMPIValue value{};
      value.boolean = on ? 1 : 0;
      args->ft->addArg(args, name, &value, CMPI_boolean);
      return *this;
    }
    In& reference(const char* name, CMPIObjectPath* path) {
      CMPIValue value{};
      value.ref = path;
      args->ft->addArg(args, name, &value, CMPI_ref);
      return *this;
    }
  };
  In in() { return {broker_.arguments()}; }

  // The return value of a method of the service, "uint32 0"; what it gave back is in out_args_.
  std::string call(const char* method, const In& arguments) {
    out_args_ = broker_.arguments();
    const Outcome answer = invoke(service(), method, arguments.args, out_args_);
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
    return answer.returned.data.empty() ? "none" : answer.returned.data[0];
  }
  std::string given_back(const char* argument) {
    CMPIStatus status{};
    const CMPIData data = out_args_->ft->getArg(out_args_, argument, &status);
    if (status.rc != CMPI_RC_OK || data.type != CMPI_ref) return "nothing";
    return broker_.text(data.value.ref);
  }

  SwitchDouble one_vsan_{1};
  CMPIArgs* out_args_ = nullptr;
};

}  // namespace zoning_provider_tests

#endif
