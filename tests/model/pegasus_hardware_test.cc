// The Pegasus face of the switch as hardware. It has texts of its own for the vendor, the model and
// the version, deliberately.
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include "tests/model/class_source_double.h"
#include "tests/model/hardware_records.h"
#include "tests/model/pegasus_text.h"
#include "tests/support/capture.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");
constexpr const char* kProduct = "VEXOR_Product";
constexpr const char* kPackage = "VEXOR_PhysicalPackage";
constexpr const char* kElement = "VEXOR_PhysicalElement";
const String kModule("VEXOR_LogicalModule");
const String kCard("VEXOR_Card");
constexpr const char* kProductPath =
    "path HOST root/cimv2 VEXOR_Product\nkey IdentifyingNumber = 2000000DEC0A1B3C\n"
    "key Name = sydney\nkey Vendor = Vexor System\nkey Version = 2.1\n";
constexpr const char* kPackagePath =
    "path HOST root/cimv2 VEXOR_PhysicalPackage\nkey CreationClassName = VEXOR_PhysicalPackage\n"
    "key Tag = 2000000DEC0A1B3C\n";
constexpr const char* kElementPath =
    "path HOST root/cimv2 VEXOR_PhysicalElement\nkey CreationClassName = VEXOR_PhysicalElement\n"
    "key Tag = 16842754\n";
const std::string kHousingPath =
    "path HOST root/cimv2 VEXOR_Housing\n"
    "key Antecedent = //HOST/root/cimv2:VEXOR_PhysicalPackage.CreationClassName="
    "\"VEXOR_PhysicalPackage\",Tag=\"2000000DEC0A1B3C\"\n"
    "key Dependent = //HOST/root/cimv2:VEXOR_PhysicalComputerSystem.CreationClassName="
    "\"VEXOR_PhysicalComputerSystem\",Name=\"2000000DEC0A1B3C\"\n";

std::string text_of(const CIMInstance& instance, const char* property) {
  const auto at = instance.findProperty(CIMName(property));
  if (at == PEG_NOT_FOUND) return "none";
  return std::string(instance.getProperty(at).getValue().toString().getCString());
}

std::string key_of(const CIMObjectPath& path, const char* name) {
  const auto& keys = path.getKeyBindings();
  for (Pegasus::Uint32 i = 0; i < keys.size(); ++i) {
    if (keys[i].getName().equal(CIMName(name))) return std::string(keys[i].getValue().getCString());
  }
  return "none";
}

class PegasusHardware : public testing::Test {
 protected:
  // The queue of the CMPI face stays unbound: nothing here asks on it.
  PegasusHardware() {
    records::know_version();
    ProviderUtil::mts_q = kQueue;
    classes_.define(kProduct, {"IdentifyingNumber", "Name", "Vendor", "Version"}, {"ElementName"});
    classes_.define(
        kPackage, {"CreationClassName", "Tag"},
        {"ElementName", "Name", "Manufacturer", "Model", "SerialNumber", "Version", "PartNumber"});
    classes_.define(
        kElement, {"CreationClassName", "Tag"},
        {"ElementName", "Name", "Manufacturer", "Model", "SerialNumber", "Version", "PartNumber"});
    for (const char* cls : {"VEXOR_LogicalModule", "VEXOR_Card"})
      classes_.define(
          cls, {"DeviceID", "SystemName", "SystemCreationClassName", "CreationClassName"},
          {"ModuleNumber", "ElementName", "Name", "Description", "Caption", "OperationalStatus",
           "Status", "EnabledState", "RequestedState", "EnabledDefault"});
    classes_.define("VEXOR_ComputerSystemPackage", {"Antecedent", "Dependent"}, {});
    classes_.define("VEXOR_Realizes", {"Antecedent", "Dependent"}, {});
  }
  ~PegasusHardware() override { ProviderUtil::mts_q = -1; }

  static void expect_wwn(Script& script) {
    script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  }
  static void expect_product(Script& script) {
    expect_wwn(script);
    script.expect(get_system_info(2)).gives(Record(1032).host32(0, 2).text(4, "sydney"));
  }
  static void expect_package(Script& script) {
    expect_wwn(script);
    script.expect(read_chassis_prom()).gives(records::chassis_prom());
    expect_wwn(script);
  }
  static void expect_module(Script& script) {
    expect_wwn(script);
    script.expect(slot_of_entity(22)).gives(3);
    expect_wwn(script);
  }
  template <class Value>
  static void expect(const Value& value, const std::string& text) {
    EXPECT_EQ(pegasus_text::of(value), text);
  }
  CIMInstance element() {
    return ProviderUtil::physical_element_build_instance(kElement, kNamespace, &port_);
  }
  CIMInstance module() {
    return ProviderUtil::logical_module_build_instance(kModule, kNamespace, &module_, &entity_);
  }

  ClassSourceDouble classes_;
  StdioCapture out_;
  pm_port_info_ port_ = records::fc12();
  _vefcModuleEntry module_ = records::module_22();
  _entPhysicalEntry entity_ = records::entity_22();
  char housing_[14] = "VEXOR_Housing";
};

// ---- product

TEST_F(PegasusHardware, AProductIsCalledAsTheSystemAndItsReferenceTakesTheNamespaceFirst) {
  Script script;
  expect_product(script);
  expect(ProviderUtil::product_fill_reference(kNamespace, kProduct), kProductPath);
}

TEST_F(PegasusHardware, AProductsInstanceTakesTheClassNameFirst) {
  const std::string text =
      "instance VEXOR_Product\n  [Version]\n"
      "property IdentifyingNumber string 2000000DEC0A1B3C\n  [Key]\n"
      "property Name string sydney\n  [Key]\n"
      "property ElementName string sydney\n  [Description]\n"
      "property Vendor string Vexor System\n  [Key]\n"
      "property Version string 2.1\n  [Key]\n" +
      std::string(kProductPath);
  Script script;
  for (int i = 0; i < 4; ++i)
    expect_product(script);
  expect(ProviderUtil::product_build_instance(kProduct, kNamespace), text);
  expect(CIMInstance(ProviderUtil::product_build_object(kProduct, kNamespace)), text);
}

TEST_F(PegasusHardware, WithoutItsServicesAProductIsNumberedNaAndNotNamed) {
  Script script;
  for (int i = 0; i < 3; ++i) {
    script.expect(records::own_switch_wwn()).status(17);
    script.expect(get_system_info(2)).fails(17);
  }
  const CIMInstance product = ProviderUtil::product_build_instance(kProduct, kNamespace);
  EXPECT_EQ(text_of(product, "IdentifyingNumber"), "N/A");
  EXPECT_EQ(text_of(product, "Name"), "Not Available");
  EXPECT_EQ(text_of(product, "ElementName"), "Not Available");
  EXPECT_EQ(text_of(product, "Vendor"), "Vexor System");
  EXPECT_EQ(key_of(product.getPath(), "Name"), "Not Available");
  EXPECT_EQ(key_of(ProviderUtil::product_fill_reference(kNamespace, kProduct), "IdentifyingNumber"),
            "N/A");
}

// ---- chassis

TEST_F(PegasusHardware, AChassisIsTaggedByTheSwitchAndItsReferenceTakesTheNamespaceFirst) {
  Script script;
  expect_wwn(script);
  expect(ProviderUtil::physical_package_fill_reference(kNamespace, kPackage), kPackagePath);
}

TEST_F(PegasusHardware, AChassisHasAFixedModelAndVersionAndItsPromsNumbers) {
  const std::string text =
      "instance VEXOR_PhysicalPackage\n  [Version]\n"
      "property CreationClassName string VEXOR_PhysicalPackage\n  [Key]\n"
      "property Tag string 2000000DEC0A1B3C\n  [Key]\n"
      "property ElementName string 2000000DEC0A1B3C\n  [Description]\n"
      "property Name string 2000000DEC0A1B3C\n  [Description]\n"
      "property Manufacturer string Vexor System\n  [Description]\n"
      "property Model string QRX4400\n  [Description]\n"
      "property SerialNumber string VX07123450A\n  [Description]\n"
      "property Version string 2.1\n  [Description]\n"
      "property PartNumber string 73-8158-07\n  [Description]\n" +
      std::string(kPackagePath);
  Script script;
  expect_package(script);
  expect(ProviderUtil::physical_package_build_instance(kPackage, kNamespace), text);
  expect_package(script);
  expect(CIMInstance(ProviderUtil::physical_package_build_object(kPackage, kNamespace)), text);
}

TEST_F(PegasusHardware, WithoutItsServicesAChassisIsTaggedNaAndHasEmptyNumbers) {
  Script script;
  script.expect(records::own_switch_wwn()).times_out();
  script.expect(read_chassis_prom()).fails(17);
  script.expect(records::own_switch_wwn()).ok_without_reply();
  const CIMInstance package = ProviderUtil::physical_package_build_instance(kPackage, kNamespace);
  EXPECT_EQ(text_of(package, "Tag"), "N/A");
  EXPECT_EQ(text_of(package, "Name"), "N/A");
  EXPECT_EQ(text_of(package, "SerialNumber"), "");
  EXPECT_EQ(text_of(package, "PartNumber"), "");
  EXPECT_EQ(text_of(package, "Model"), "QRX4400");
  EXPECT_EQ(key_of(package.getPath(), "Tag"), "N/A");
}

// ---- physical side of an interface

TEST_F(PegasusHardware, APhysicalElementIsTaggedByItsInterface) {
  const Script script;
  expect(ProviderUtil::physical_element_fill_reference(kElement, kNamespace, &port_), kElementPath);
}

TEST_F(PegasusHardware, APhysicalElementHasAFixedModelAndVersionAndTheChassisPartNumber) {
  const std::string text =
      "instance VEXOR_PhysicalElement\n  [Version]\n"
      "property CreationClassName string VEXOR_PhysicalElement\n  [Key]\n"
      "property Tag string 16842754\n  [Key]\n"
      "property ElementName string fc1/2\n  [Description]\n"
      "property Name string fc1/2\n  [Description]\n"
      "property Manufacturer string Vexor System\n  [Description]\n"
      "property SerialNumber string 2042000DEC0A1B3C\n  [Description]\n"
      "property Version string 2.1\n  [Description]\n"
      "property Model string QRX4400\n  [Description]\n"
      "property PartNumber string 73-8158-07\n  [Description]\n" +
      std::string(kElementPath);
  Script script;
  script.expect(read_chassis_prom()).gives(records::chassis_prom());
  script.expect(read_chassis_prom()).gives(records::chassis_prom());
  expect(element(), text);
  expect(CIMInstance(ProviderUtil::physical_element_build_object(kElement, kNamespace, &port_)),
         text);
}

TEST_F(PegasusHardware, AnElementOfAChassisWhosePromCannotBeReadHasAnEmptyPartNumber) {
  Script script;
  script.expect(read_chassis_prom()).fails(17);
  const CIMInstance made = element();
  EXPECT_EQ(text_of(made, "PartNumber"), "");
  EXPECT_EQ(text_of(made, "SerialNumber"), "2042000DEC0A1B3C");
}

TEST_F(PegasusHardware, AnEthernetChannelHasAMacForASerialNumber) {
  port_ = records::port_of(records::kEthernetChannel2);
  Script script;
  script.expect(read_chassis_prom()).gives(records::chassis_prom());
  EXPECT_EQ(text_of(element(), "SerialNumber"), "2042000DEC0A");
}

// ---- modules

// The key names a fixed class, deliberately; the property that of the instance.
TEST_F(PegasusHardware, AModulesReferenceNamesAFixedClass) {
  Script script;
  expect_wwn(script);
  expect(ProviderUtil::logical_module_fill_reference(kCard, kNamespace, &module_),
         "path HOST root/cimv2 VEXOR_Card\nkey CreationClassName = VEXOR_LogicalModule\n"
         "key DeviceID = 22\nkey SystemCreationClassName = VEXOR_PhysicalComputerSystem\n"
         "key SystemName = 2000000DEC0A1B3C\n");
  expect_module(script);
  const CIMInstance made =
      ProviderUtil::logical_module_build_instance(kCard, kNamespace, &module_, &entity_);
  EXPECT_EQ(text_of(made, "CreationClassName"), "VEXOR_Card");
  EXPECT_EQ(key_of(made.getPath(), "CreationClassName"), "VEXOR_LogicalModule");
}

TEST_F(PegasusHardware, AModuleIsThatOfTheOtherFace) {
  const std::string text =
      "instance VEXOR_LogicalModule\n  [Version]\n"
      "property DeviceID string 22\n  [Key]\n"
      "property SystemName string 2000000DEC0A1B3C\n  [Key]\n"
      "property SystemCreationClassName string VEXOR_PhysicalComputerSystem\n  [Key]\n"
      "property CreationClassName string VEXOR_LogicalModule\n  [Key]\n"
      "property ModuleNumber uint16 4\n  [Description]\n"
      "property ElementName string Slot 4 line card\n  [Description]\n"
      "property Name string Slot 4 line card\n  [Description]\n"
      "property Description string Slot 4 line card\n  [Description]\n"
      "property Caption string Slot 4 line card\n  [Description]\n"
      "property OperationalStatus uint16[] 10\n  [Description]\n"
      "property Status string DISABLED\n  [Description]\n"
      "property EnabledState uint16[] 4\n  [Description]\n"
      "property RequestedState uint16[] 3\n  [Description]\n"
      "property EnabledDefault uint16[] 2\n  [Description]\n"
      "path HOST root/cimv2 VEXOR_LogicalModule\nkey CreationClassName = VEXOR_LogicalModule\n"
      "key DeviceID = 22\nkey SystemCreationClassName = VEXOR_PhysicalComputerSystem\n"
      "key SystemName = 2000000DEC0A1B3C\n";
  Script script;
  expect_module(script);
  expect(module(), text);
  expect_module(script);
  expect(CIMInstance(
             ProviderUtil::logical_module_build_object(kModule, kNamespace, &module_, &entity_)),
         text);
}

TEST_F(PegasusHardware, AModuleTracesWhatTheOtherFaceTraces) {
  Script script;
  expect_module(script);
  module();
  EXPECT_NE(out_.out().find("log_module_build_instance(): Entered - entityId is 22\n"
                            "log_module_build_instance(): slot number of Card is 3\n"
                            "log_module_build_instance(): ent Physical Name is  Slot 4 line card\n"
                            "log_module_build_instance(): EntityId is 22 Moduleoperstatus is 3 \n"),
            std::string::npos);
}

TEST_F(PegasusHardware, WithoutItsServicesAModuleHasNoNumberAndItsSystemIsNa) {
  Responder services([](const Request&) { return Response::failed(17); });
  Script script;
  script.expect(slot_of_entity(22)).fails(17);
  const CIMInstance made = module();
  EXPECT_EQ(text_of(made, "ModuleNumber"), "none");
  EXPECT_EQ(text_of(made, "SystemName"), "N/A");
  EXPECT_EQ(text_of(made, "Status"), "DISABLED");
  EXPECT_EQ(key_of(made.getPath(), "SystemName"), "N/A");
}

// ---- the chassis of the switch

// The instance's class is fixed, deliberately; the path keeps the class that was asked for.
TEST_F(PegasusHardware, TheChassisOfTheSwitchIsAnInstanceOfItsOwnClass) {
  const std::string text =
      "instance VEXOR_ComputerSystemPackage\n  [Version]\n"
      "property Antecedent reference //HOST/root/cimv2:VEXOR_PhysicalPackage.CreationClassName="
      "\"VEXOR_PhysicalPackage\",Tag=\"2000000DEC0A1B3C\"\n  [Key]\n"
      "property Dependent reference //HOST/root/cimv2:VEXOR_PhysicalComputerSystem."
      "CreationClassName=\"VEXOR_PhysicalComputerSystem\",Name=\"2000000DEC0A1B3C\"\n  [Key]\n" +
      kHousingPath;
  Script script;
  for (int i = 0; i < 10; ++i)
    expect_wwn(script);
  expect(ProviderUtil::switch_package_fill_reference(housing_, kNamespace), kHousingPath);
  expect(ProviderUtil::switch_package_build_instance(housing_, kNamespace), text);
  expect(CIMInstance(ProviderUtil::switch_package_build_object(housing_, kNamespace)), text);
}

TEST_F(PegasusHardware, WithoutItsWwnBothEndsOfTheChassisAreNamedNa) {
  Responder services([](const Request&) { return Response::failed(17); });
  const CIMObjectPath path = ProviderUtil::switch_package_fill_reference(housing_, kNamespace);
  EXPECT_NE(key_of(path, "Antecedent").find("Tag=\"N/A\""), std::string::npos);
  EXPECT_NE(key_of(path, "Dependent").find("Name=\"N/A\""), std::string::npos);
}

// ---- what fails

TEST_F(PegasusHardware, NoRecordMakesAnUninitializedObject) {
  const Script script;
  const auto none = [](const CIMInstance& made) { return made.isUninitialized(); };
  EXPECT_TRUE(ProviderUtil::physical_element_fill_reference(kElement, kNamespace, nullptr)
                  .getClassName()
                  .isNull());
  EXPECT_TRUE(none(ProviderUtil::physical_element_build_instance(kElement, kNamespace, nullptr)));
  EXPECT_TRUE(ProviderUtil::logical_module_fill_reference(kModule, kNamespace, nullptr)
                  .getClassName()
                  .isNull());
  EXPECT_TRUE(
      none(ProviderUtil::logical_module_build_instance(kModule, kNamespace, nullptr, &entity_)));
  EXPECT_TRUE(
      none(ProviderUtil::logical_module_build_instance(kModule, kNamespace, &module_, nullptr)));
}

TEST_F(PegasusHardware, EveryExceptionIsTheCallers) {
  Responder services([](const Request&) { return Response::failed(17); });
  const String bad("root/c i m");
  using Pegasus::Exception;
  EXPECT_THROW(ProviderUtil::physical_package_fill_reference(bad, kPackage), Exception);
  EXPECT_THROW(ProviderUtil::physical_element_fill_reference(kElement, bad, &port_), Exception);
  EXPECT_THROW(ProviderUtil::logical_module_fill_reference(kModule, bad, &module_), Exception);
  EXPECT_THROW(ProviderUtil::switch_package_fill_reference(housing_, bad), Exception);
  EXPECT_THROW(ProviderUtil::physical_element_build_instance("no class", kNamespace, &port_),
               Exception);
}

}  // namespace
