// The Pegasus face over our own class definitions: what the classes declare and what the instances
// and the getters of the own switch give.
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/String.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "schema/repository.h"
#include "tests/model/hardware_records.h"
#include "tests/model/repository_class_source.h"
#include "tests/model/switch_records.h"
#include "tests/model/zoning_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_zone_server.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;
using P = ProviderUtil;

namespace {

const String kNamespace("root/cimv2");

class PegasusClasses : public testing::Test {
 protected:
  PegasusClasses() {
    ProviderUtil::mts_q = kQueue;
    for (const auto& error : repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
      ADD_FAILURE() << error.text();
    source_.emplace(repository_);
  }
  ~PegasusClasses() override { ProviderUtil::mts_q = -1; }

  // Everything that was written is declared, and the keys are marked as such.
  void expect_whole(const CIMInstance& instance, Pegasus::Uint32 properties,
                    const std::vector<const char*>& keys) {
    const std::string cls(instance.getClassName().getString().getCString());
    EXPECT_EQ(instance.getPropertyCount(), properties) << cls;
    for (const char* key : keys) {
      const auto at = instance.findProperty(CIMName(key));
      ASSERT_NE(at, PEG_NOT_FOUND) << cls << "." << key;
      EXPECT_NE(instance.getProperty(at).findQualifier(CIMName("Key")), PEG_NOT_FOUND)
          << cls << "." << key;
    }
    EXPECT_EQ(out_.out().find("NO SUCH property"), std::string::npos) << cls;
    EXPECT_EQ(out_.out().find("exception"), std::string::npos) << cls;
  }

  StdioCapture out_;
  cim::schema::Repository repository_;
  std::optional<RepositoryClassSource> source_;
};

TEST_F(PegasusClasses, NothingOfTheHardwareIsDropped) {
  Responder services([](const Request&) { return Response::with(records::own_wwn()); });
  pm_port_info_ port = records::fc12();
  _vefcModuleEntry module = records::module_22();
  _entPhysicalEntry entity = records::entity_22();
  char housing[] = "VEXOR_ComputerSystemPackage";
  Script script;
  for (int i = 0; i < 2; ++i)
    script.expect(get_system_info(2)).gives(Record(1032).host32(0, 2).text(4, "sydney"));
  expect_whole(P::product_build_instance("VEXOR_Product", kNamespace), 5,
               {"IdentifyingNumber", "Name", "Vendor", "Version"});
  script.expect(read_chassis_prom()).gives(records::chassis_prom());
  expect_whole(P::physical_package_build_instance("VEXOR_PhysicalPackage", kNamespace), 9,
               {"CreationClassName", "Tag"});
  script.expect(read_chassis_prom()).gives(records::chassis_prom());
  expect_whole(P::physical_element_build_instance("VEXOR_PhysicalElement", kNamespace, &port), 9,
               {"CreationClassName", "Tag"});
  script.expect(slot_of_entity(22)).gives(3);
  expect_whole(
      P::logical_module_build_instance(String("VEXOR_LogicalModule"), kNamespace, &module, &entity),
      14, {"DeviceID", "SystemName", "SystemCreationClassName", "CreationClassName"});
  expect_whole(P::switch_package_build_instance(housing, kNamespace), 2,
               {"Antecedent", "Dependent"});
}

TEST_F(PegasusClasses, NothingOfTheConnectionsIsDropped) {
  const CIMObjectPath one =
      P::switch_fill_reference("VEXOR_PhysicalComputerSystem", kNamespace, "ONE");
  const CIMObjectPath two =
      P::switch_fill_reference("VEXOR_LogicalComputerSystem", kNamespace, "TWO");
  expect_whole(P::logical_identity_build_instance("VEXOR_LogicalIdentity", kNamespace, one, two), 2,
               {"SystemElement", "SameElement"});
  expect_whole(P::hosted_dependency_build_instance("VEXOR_HostedDependency", kNamespace, one, two),
               2, {"Antecedent", "Dependent"});
  expect_whole(
      P::hosted_access_point_build_instance("VEXOR_HostedAccessPoint", kNamespace, one, two), 2,
      {"Antecedent", "Dependent"});
  expect_whole(P::device_sap_implementation_build_instance("VEXOR_DeviceSAPImplementation",
                                                           kNamespace, one, two),
               2, {"Antecedent", "Dependent"});
  expect_whole(P::active_connection_build_instance("VEXOR_ActiveConnection", kNamespace, one, two),
               2, {"Antecedent", "Dependent"});
  expect_whole(P::realize_build_instance("VEXOR_Realizes", kNamespace, one, two), 2,
               {"Antecedent", "Dependent"});
  expect_whole(P::fcnode_member_collection_build_instance("VEXOR_FCNodeMemberOfCollection",
                                                          kNamespace, one, two),
               2, {"Collection", "Member"});
  expect_whole(P::connectivity_member_collection_build_instance(
                   "VEXOR_ConnectivityMemberOfCollection", kNamespace, one, two),
               2, {"Collection", "Member"});
  expect_whole(P::system_device_build_instance("VEXOR_SystemDevice", kNamespace, one, two), 2,
               {"GroupComponent", "PartComponent"});
}

TEST_F(PegasusClasses, NothingOfTheZoningIsDropped) {
  const zs_cim_zone_set_ set = records::zone_set_7();
  const zs_cim_zone_ zone = records::zone_12();
  const zs_cim_alias_ alias = records::alias_4();
  const zs_cim_zone_member_ member = records::member_of_fcid();
  vsanNewEntry_t vsan = records::vsan_10();
  mts_dm_sw_conf_ conf = records::configuration_10();
  expect_whole(P::zone_set_build_instance(kNamespace, "VEXOR_ZoneSet", &set), 3, {"InstanceID"});
  expect_whole(P::zone_build_instance(kNamespace, "VEXOR_Zone", &zone), 6, {"InstanceID"});
  expect_whole(P::zone_alias_build_instance(kNamespace, "VEXOR_ZoneAlias", &alias), 4,
               {"InstanceID"});
  expect_whole(P::zone_member_build_instance(kNamespace, "VEXOR_ZoneMemberSettingData", &member), 3,
               {"InstanceID"});
  Responder services([](const Request&) { return Response::failed(17); });
  Script script;
  script.expect(query_policies(10)).fails(17);
  expect_whole(P::zone_service_build_instance(kNamespace, "VEXOR_ZoneService", 10), 8,
               {"Name", "SystemName", "SystemCreationClassName", "CreationClassName"});
  expect_whole(P::zone_cap_build_instance(kNamespace, "VEXOR_ZoneCapabilities", "10"), 9,
               {"InstanceID"});
  expect_whole(P::zmoc_build_instance(kNamespace, "VEXOR_ZoneMemberOfCollection", &zone, &alias), 2,
               {"Collection", "Member"});
  expect_whole(P::esd_build_instance_zoneZoneMember(kNamespace, "VEXOR_ZoneElementSettingData",
                                                    &zone, &member),
               2, {"ManagedElement", "SettingData"});
  expect_whole(
      P::hosted_collection_build_instance(kNamespace, "VEXOR_HostedCollection", &vsan, &conf, 10),
      2, {"Antecedent", "Dependent"});
  expect_whole(P::hosted_collection_build_instance_zone(kNamespace, "VEXOR_ZoneHostedCollection",
                                                        &vsan, &conf, &zone),
               2, {"Antecedent", "Dependent"});
  expect_whole(P::hosted_service_build_instance("VEXOR_HostedService", kNamespace, &vsan, &conf), 2,
               {"Antecedent", "Dependent"});
}

std::string type_of(const CIMValue& value) {
  std::string type = value.getType() == Pegasus::CIMTYPE_STRING   ? "string"
                     : value.getType() == Pegasus::CIMTYPE_UINT16 ? "uint16"
                     : value.getType() == Pegasus::CIMTYPE_SINT32 ? "sint32"
                                                                  : "another type";
  return value.isArray() ? type + "[]" : type;
}

// The up-time is no date and time and the power management is one number: kept, deliberately.
TEST_F(PegasusClasses, TheGettersGiveDeclaredPropertiesOfDeclaredTypesButForTwo) {
  using C = ComputerSystem;
  using Getter = int (C::*)(CIMProperty&);
  const std::map<std::string, std::string> kept = {{"InstallDate", "string"},
                                                   {"PowerManagementCapabilities", "sint32"}};
  const Getter getters[] = {&C::getCaption,
                            &C::getDescription,
                            &C::getInstallDate,
                            &C::getCreationClassName,
                            &C::getName,
                            &C::getElementName,
                            &C::getSysName,
                            &C::getVendor,
                            &C::getVersion,
                            &C::getIdentifyNumber,
                            &C::getOperStatus,
                            &C::getStatus,
                            &C::getNameFormat,
                            &C::getPrimaryOwnerName,
                            &C::getPrimaryOwnerContact,
                            &C::getDedicated,
                            &C::getPowerManagementCapabilities};
  Responder services([](const Request&) { return Response::failed(17); });
  Script script;
  for (const uint32_t item : {3, 3, 6, 2, 2, 0, 0})
    script.expect(get_system_info(item)).fails(17);
  const auto* cls = repository_.find("VEXOR_Switch");  // what getCreationClassName names
  ASSERT_NE(cls, nullptr);
  EXPECT_EQ(cls->superclass, "VEXOR_ComputerSystem");
  std::map<std::string, std::string> different;
  ComputerSystem system;
  for (const Getter getter : getters) {
    CIMProperty property;
    EXPECT_EQ((system.*getter)(property), 0);
    const std::string name(property.getName().getString().getCString());
    const auto* declared = repository_.property(*cls, name);
    ASSERT_NE(declared, nullptr) << name;
    EXPECT_EQ(declared->name, name) << "letter case";
    const std::string type =
        std::string(cim::schema::type_name(declared->type)) + (declared->is_array ? "[]" : "");
    if (type_of(property.getValue()) != type) different[name] = type_of(property.getValue());
  }
  EXPECT_EQ(different, kept);
}

}  // namespace
