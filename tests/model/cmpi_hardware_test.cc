// The CMPI face of the switch as hardware.
#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/cmpi_hardware.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/model/hardware_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"

using namespace test_support;

namespace {

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kProduct = "VEXOR_Product";
constexpr const char* kPackage = "VEXOR_PhysicalPackage";
constexpr const char* kElement = "VEXOR_PhysicalElement";
constexpr const char* kModule = "VEXOR_LogicalModule";

class CmpiHardware : public testing::Test {
 protected:
  CmpiHardware() {
    records::know_version();
    out_.clear();
    mts_q = kQueue;
    system_.host_name("switch-1");
  }
  ~CmpiHardware() override { mts_q = -1; }

  static void expect_wwn(Script& script) {
    script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  }
  static void expect_chassis(Script& script) { script.expect(chassis_id()).gives("QRX4200"); }
  static void expect_prom(Script& script) {
    script.expect(read_chassis_prom()).gives(records::chassis_prom());
  }
  CMPIInstance* package() { return physical_package_build_instance(kPackage, kNamespace, broker_); }
  // The physical element of a port, of a chassis without identifier and PROM.
  CMPIInstance* bare_element(const pm_port_info_& port) {
    Script script;
    script.expect(chassis_id()).gives(nullptr);
    script.expect(read_chassis_prom()).fails(17);
    return physical_element_build_instance(kElement, kNamespace, &port, broker_);
  }
  CMPIInstance* module() {
    return logical_module_build_instance(kModule, kNamespace, &module_, &entity_, broker_);
  }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  pm_port_info_ port_ = records::fc12();
  _vefcModuleEntry module_ = records::module_22();
  _entPhysicalEntry entity_ = records::entity_22();
};

// ---- product

TEST_F(CmpiHardware, AProductIsKnownByFourKeysAndItsReferenceTakesTheClassNameFirst) {
  Script script;
  expect_wwn(script);
  expect_chassis(script);
  ASSERT_NE(product_fill_reference(kProduct, kNamespace, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Product) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, IdentifyingNumber, chars \"2000000DEC0A1B3C\")\n"
            "addKey(path1, Name, chars \"QRX4200\")\n"
            "addKey(path1, Vendor, chars \"Vexor Systems\")\n"
            "addKey(path1, Version, chars \"3.2(1a)\")\n");
}

TEST_F(CmpiHardware, AProductIsCalledAsItsChassis) {
  Script script;
  expect_wwn(script);
  expect_chassis(script);
  ASSERT_NE(product_build_instance(kProduct, kNamespace, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Product) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setProperty(instance1, IdentifyingNumber, chars \"2000000DEC0A1B3C\")\n"
            "setProperty(instance1, Name, chars \"QRX4200\")\n"
            "setProperty(instance1, ElementName, chars \"QRX4200\")\n"
            "setProperty(instance1, Vendor, chars \"Vexor Systems\")\n"
            "setProperty(instance1, Version, chars \"3.2(1a)\")\n");
}

TEST_F(CmpiHardware, WithoutItsWwnAndItsChassisAProductIsNumberedNaAndHasNoName) {
  for (int i = 0; i < 2; ++i) {
    Script script;
    script.expect(records::own_switch_wwn()).status(17);
    script.expect(chassis_id()).gives(nullptr);
    if (i == 0) {
      CMPIObjectPath* path = product_fill_reference(kProduct, kNamespace, broker_);
      EXPECT_EQ(broker_.key_text(path, "IdentifyingNumber"), "N/A");
      EXPECT_EQ(broker_.key_text(path, "Name"), "");
    } else {
      CMPIInstance* instance = product_build_instance(kProduct, kNamespace, broker_);
      EXPECT_EQ(broker_.property_text(instance, "IdentifyingNumber"), "N/A");
      EXPECT_EQ(broker_.property_text(instance, "Name"), "");
      EXPECT_EQ(broker_.property_text(instance, "ElementName"), "");
      EXPECT_EQ(broker_.property_text(instance, "Version"), "3.2(1a)");
    }
  }
}

TEST_F(CmpiHardware, ALongChassisIdentifierIsTheSameInReferenceAndInstance) {
  const std::string identifier(300, 'q');
  Script script;
  expect_wwn(script);
  script.expect(chassis_id()).gives(identifier.c_str());
  expect_wwn(script);
  script.expect(chassis_id()).gives(identifier.c_str());
  EXPECT_EQ(broker_.key_text(product_fill_reference(kProduct, kNamespace, broker_), "Name"),
            identifier);
  CMPIInstance* instance = product_build_instance(kProduct, kNamespace, broker_);
  EXPECT_EQ(broker_.property_text(instance, "Name"), identifier);
  EXPECT_EQ(broker_.property_text(instance, "ElementName"), identifier);
}

// ---- chassis

TEST_F(CmpiHardware, AChassisIsKnownByTheSwitchAndItsReferenceTakesTheNamespaceFirst) {
  Script script;
  expect_wwn(script);
  ASSERT_NE(physical_package_fill_reference(kNamespace, kPackage, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_PhysicalPackage) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, CreationClassName, chars \"VEXOR_PhysicalPackage\")\n"
            "addKey(path1, Tag, chars \"2000000DEC0A1B3C\")\n");
}

TEST_F(CmpiHardware, AChassisTellsWhatItsPromHolds) {
  Script script;
  expect_wwn(script);
  expect_chassis(script);
  expect_prom(script);
  ASSERT_NE(package(), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_PhysicalPackage) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setProperty(instance1, CreationClassName, chars \"VEXOR_PhysicalPackage\")\n"
            "setProperty(instance1, Tag, chars \"2000000DEC0A1B3C\")\n"
            "setProperty(instance1, ElementName, chars \"2000000DEC0A1B3C\")\n"
            "setProperty(instance1, Name, chars \"2000000DEC0A1B3C\")\n"
            "setProperty(instance1, Manufacturer, chars \"Vexor Systems\")\n"
            "setProperty(instance1, Model, chars \"QRX4200\")\n"
            "setProperty(instance1, SerialNumber, chars \"VX07123450A\")\n"
            "setProperty(instance1, Version, chars \"3.2(1a)\")\n"
            "setProperty(instance1, PartNumber, chars \"73-8158-07\")\n");
}

TEST_F(CmpiHardware, AChassisWhosePromCannotBeReadHasEmptyNumbers) {
  Script script;
  expect_wwn(script);
  expect_chassis(script);
  script.expect(read_chassis_prom()).fails(17);
  expect_wwn(script);
  expect_chassis(script);
  script.expect(read_chassis_prom()).fails_with_content(17, records::chassis_prom());
  for (int i = 0; i < 2; ++i) {
    CMPIInstance* instance = package();
    EXPECT_EQ(broker_.property(instance, "SerialNumber"), "chars \"\"");
    EXPECT_EQ(broker_.property(instance, "PartNumber"), "chars \"\"");
    EXPECT_EQ(broker_.property_text(instance, "Model"), "QRX4200");
  }
}

TEST_F(CmpiHardware, NumbersThatFillThePromEndWithIt) {
  Record full(498);
  full.put(0, Bytes(498, 's')).put(74, Bytes(424, 'p'));
  Script script;
  expect_wwn(script);
  expect_chassis(script);
  script.expect(read_chassis_prom()).gives(full);
  CMPIInstance* instance = package();
  EXPECT_EQ(broker_.property_text(instance, "SerialNumber"), std::string(20, 's'));
  EXPECT_EQ(broker_.property_text(instance, "PartNumber"), std::string(424, 'p'));
}

TEST_F(CmpiHardware, WithoutItsWwnAndItsIdentifierAChassisIsTaggedNaAndHasNoModel) {
  Responder responder([](const Request&) { return Response::failed(17); });
  Script script;
  script.expect(chassis_id()).gives(nullptr);
  expect_prom(script);
  CMPIInstance* instance = package();
  for (const char* name : {"Tag", "ElementName", "Name"})
    EXPECT_EQ(broker_.property_text(instance, name), "N/A");
  EXPECT_EQ(broker_.property(instance, "Model"), "chars \"\"");
  EXPECT_EQ(broker_.key_text(physical_package_fill_reference(kNamespace, kPackage, broker_), "Tag"),
            "N/A");
}

// ---- physical side of an interface

TEST_F(CmpiHardware, APhysicalElementIsKnownByItsTagFirst) {
  const Script script;
  ASSERT_NE(physical_element_fill_reference(kElement, kNamespace, &port_, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_PhysicalElement) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, Tag, chars \"16842754\")\n"
            "addKey(path1, CreationClassName, chars \"VEXOR_PhysicalElement\")\n");
}

TEST_F(CmpiHardware, APhysicalElementTellsItsClassFirst) {
  Script script;
  expect_chassis(script);
  expect_prom(script);
  ASSERT_NE(physical_element_build_instance(kElement, kNamespace, &port_, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_PhysicalElement) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setProperty(instance1, CreationClassName, chars \"VEXOR_PhysicalElement\")\n"
            "setProperty(instance1, Tag, chars \"16842754\")\n"
            "setProperty(instance1, ElementName, chars \"fc1/2\")\n"
            "setProperty(instance1, Name, chars \"fc1/2\")\n"
            "setProperty(instance1, Manufacturer, chars \"Vexor Systems\")\n"
            "setProperty(instance1, SerialNumber, chars \"2042000DEC0A1B3C\")\n"
            "setProperty(instance1, Version, chars \"3.2(1a)\")\n"
            "setProperty(instance1, Model, chars \"QRX4200\")\n"
            "setProperty(instance1, PartNumber, chars \"73-8158-07\")\n");
}

TEST_F(CmpiHardware, TwoPortsOfASwitchShareWhatTheChassisTells) {
  const pm_port_info_ other = records::port(
      records::fc12_bytes().host32(0, records::kFc23).put(127, hex("20 83 00 0d ec 0a 1b 3c")));
  CMPIInstance* elements[2];
  const pm_port_info_* ports[] = {&port_, &other};
  for (int i = 0; i < 2; ++i) {
    Script script;
    expect_chassis(script);
    expect_prom(script);
    elements[i] = physical_element_build_instance(kElement, kNamespace, ports[i], broker_);
  }
  for (const char* same : {"PartNumber", "Model", "Version", "Manufacturer"})
    EXPECT_EQ(broker_.property(elements[0], same), broker_.property(elements[1], same));
  EXPECT_EQ(broker_.property_text(elements[1], "PartNumber"), "73-8158-07");
  EXPECT_EQ(broker_.property_text(elements[1], "Model"), "QRX4200");
  EXPECT_EQ(broker_.property_text(elements[1], "Version"), "3.2(1a)");
  EXPECT_EQ(broker_.property_text(elements[1], "Tag"), "16908291");
  EXPECT_EQ(broker_.property_text(elements[1], "Name"), "fc2/3");
  EXPECT_EQ(broker_.property_text(elements[1], "SerialNumber"), "2083000DEC0A1B3C");
}

TEST_F(CmpiHardware, ThePermanentAddressOfEachTypeIsItsSerialNumber) {
  const struct {
    uint32_t if_index;
    const char* name;
    const char* serial_number;
  } cases[] = {{records::kFc12, "fc1/2", "2042000DEC0A1B3C"},
               {records::kGigabitEthernet22, "gigabitethernet2/2", "2042000DEC0A"},
               {records::kPortChannel5, "port-channel 5", "2042000DEC0A1B3C"},
               {records::kFcip7, "fcip7", "2042000DEC0A1B3C"},
               {records::kIscsi31, "iscsi3/1", "2042000DEC0A1B3C"},
               {records::kNoType, "unknown (0x3000001)", "unsupported cim port type 0"}};
  for (const auto& c : cases) {
    CMPIInstance* element = bare_element(records::port_of(c.if_index));
    EXPECT_EQ(broker_.property_text(element, "Name"), c.name);
    EXPECT_EQ(broker_.property_text(element, "SerialNumber"), c.serial_number) << c.name;
  }
}

// Its type is not looked up: the port manager tells what it is.
TEST_F(CmpiHardware, AnEthernetChannelHasAMacForASerialNumber) {
  EXPECT_EQ(broker_.property_text(bare_element(records::port_of(records::kEthernetChannel2)),
                                  "SerialNumber"),
            "2042000DEC0A");
}

TEST_F(CmpiHardware, TheManagementPortHasTheAddressOfItsInterface) {
  EXPECT_EQ(broker_.property_text(bare_element(records::port_of(records::kMgmt0)), "SerialNumber"),
            "--");
  system_.hardware_address("eth1", {0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x10});
  EXPECT_EQ(broker_.property_text(bare_element(records::port_of(records::kMgmt0)), "SerialNumber"),
            "000dec0a1b10");
}

TEST_F(CmpiHardware, AnElementOfAChassisThatTellsNothingHasEmptyTexts) {
  CMPIInstance* element = bare_element(port_);
  EXPECT_EQ(broker_.property(element, "PartNumber"), "chars \"\"");
  EXPECT_EQ(broker_.property(element, "Model"), "chars \"\"");
}

TEST_F(CmpiHardware, ATagIsASignedDecimalNumber) {
  const pm_port_info_ port = records::port_of(0x80000001);
  EXPECT_EQ(broker_.key_text(physical_element_fill_reference(kElement, kNamespace, &port, broker_),
                             "Tag"),
            "-2147483647");
  EXPECT_EQ(broker_.property_text(bare_element(port), "Tag"), "-2147483647");
}

// ---- modules

TEST_F(CmpiHardware, AModuleIsKnownByItsEntity) {
  Script script;
  expect_wwn(script);
  ASSERT_NE(logical_module_fill_reference("VEXOR_Card", kNamespace, &module_, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Card) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "addKey(path1, DeviceID, chars \"22\")\n"
            "addKey(path1, SystemName, chars \"2000000DEC0A1B3C\")\n"
            "addKey(path1, SystemCreationClassName, chars \"VEXOR_PhysicalComputerSystem\")\n"
            "addKey(path1, CreationClassName, chars \"VEXOR_Card\")\n");
}

// "EnabledState" tells the oper status, and it, "RequestedState" and "EnabledDefault" are arrays of
// one: both deliberate.
TEST_F(CmpiHardware, AModuleTellsItsSlotItsNameAndItsStates) {
  Script script;
  expect_wwn(script);
  script.expect(slot_of_entity(22)).gives(3);
  ASSERT_NE(module(), nullptr);
  EXPECT_EQ(out_.out(),
            "log_module_build_instance(): Entered - entityId is 22\n"
            "newObjectPath(root/cimv2, VEXOR_LogicalModule) -> path1\n"
            "setHostname(path1, switch-1)\n"
            "newInstance(path1) -> instance1\n"
            "setProperty(instance1, DeviceID, chars \"22\")\n"
            "setProperty(instance1, SystemName, chars \"2000000DEC0A1B3C\")\n"
            "setProperty(instance1, SystemCreationClassName, chars "
            "\"VEXOR_PhysicalComputerSystem\")\n"
            "setProperty(instance1, CreationClassName, chars \"VEXOR_LogicalModule\")\n"
            "log_module_build_instance(): slot number of Card is 3\n"
            "setProperty(instance1, ModuleNumber, uint16 4)\n"
            "log_module_build_instance(): ent Physical Name is  Slot 4 line card\n"
            "setProperty(instance1, ElementName, chars \"Slot 4 line card\")\n"
            "setProperty(instance1, Name, chars \"Slot 4 line card\")\n"
            "setProperty(instance1, Description, chars \"Slot 4 line card\")\n"
            "setProperty(instance1, Caption, chars \"Slot 4 line card\")\n"
            "log_module_build_instance(): EntityId is 22 Moduleoperstatus is 3 \n"
            "newArray(1, uint16) -> array1\n"
            "setElementAt(array1, 0, uint16 10)\n"
            "setProperty(instance1, OperationalStatus, uint16[] array1)\n"
            "setProperty(instance1, Status, chars \"DISABLED\")\n"
            "newArray(1, uint16) -> array2\n"
            "setElementAt(array2, 0, uint16 4)\n"
            "setProperty(instance1, EnabledState, uint16[] array2)\n"
            "log_module_build_instance(): requested status is 3 \n"
            "newArray(1, uint16) -> array3\n"
            "setElementAt(array3, 0, uint16 3)\n"
            "setProperty(instance1, RequestedState, uint16[] array3)\n"
            "newArray(1, uint16) -> array4\n"
            "setElementAt(array4, 0, uint16 2)\n"
            "setProperty(instance1, EnabledDefault, uint16[] array4)\n");
}

TEST_F(CmpiHardware, ModulesAreCountedFromOneAndSlotsFromZero) {
  Script script;
  expect_wwn(script);
  script.expect(slot_of_entity(22)).gives(0);
  EXPECT_EQ(broker_.property(module(), "ModuleNumber"), "uint16 1");
}

TEST_F(CmpiHardware, AModuleWhoseSlotIsNotKnownHasNoNumber) {
  Script script;
  expect_wwn(script);
  script.expect(slot_of_entity(22)).fails(0x40370002);
  CMPIInstance* instance = module();
  EXPECT_EQ(broker_.property(instance, "ModuleNumber"), "none");
  EXPECT_EQ(broker_.property_text(instance, "Caption"), "Slot 4 line card");
  EXPECT_NE(out_.out().find("log_module_build_instance(): slot number of Card is 0\n"),
            std::string::npos);
}

TEST_F(CmpiHardware, WithoutItsWwnTheSystemOfAModuleIsNa) {
  Responder responder([](const Request&) { return Response::failed(17); });
  Script script;
  script.expect(slot_of_entity(22)).gives(3);
  EXPECT_EQ(broker_.property_text(module(), "SystemName"), "N/A");
  EXPECT_EQ(broker_.key_text(logical_module_fill_reference(kModule, kNamespace, &module_, broker_),
                             "SystemName"),
            "N/A");
}

// One number is read by two lists of codes, deliberately: 4 is "OKDIAGFAILED" and enabled but
// offline.
TEST_F(CmpiHardware, StatesOfModules) {
  const struct {
    uint32_t oper;
    uint32_t admin;
    const char* status;
    const char* operational;
    const char* enabled;
    const char* requested;
  } cases[] = {{0, 0, "Unknown", "6", "5", "5"},
               {1, 1, "Unknown", "0", "2", "2"},
               {2, 2, "OK", "2", "3", "3"},
               {4, 3, "OKDIAGFAILED", "2", "6", "4"},
               {5, 4, "BOOT", "8", "5", "6"},
               {6, 5, "SELFTEST", "8", "5", "5"},
               {7, 1, "FAILED", "6", "5", "2"},
               {9, 1, "MISMATCHWITHPAREN", "6", "5", "2"},
               {15, 2, "POWEREDDOWN", "6", "5", "3"},
               {20, 1, "POWEROVERCRITICAL", "6", "5", "2"},
               {21, 1, "SYNCINPROG", "6", "5", "2"},
               {22, 1, "Unknown", "6", "5", "2"},
               {0xffffffff, 1, "Unknown", "6", "5", "2"}};
  for (const auto& c : cases) {
    module_.oper_status = c.oper;
    module_.admin_status = c.admin;
    Script script;
    expect_wwn(script);
    script.expect(slot_of_entity(22)).gives(3);
    CMPIInstance* instance = module();
    const auto one = [](const char* code) { return "uint16[] {" + std::string(code) + "}"; };
    EXPECT_EQ(broker_.property_text(instance, "Status"), c.status);
    EXPECT_EQ(broker_.property(instance, "OperationalStatus"), one(c.operational)) << c.oper;
    EXPECT_EQ(broker_.property(instance, "EnabledState"), one(c.enabled)) << c.oper;
    EXPECT_EQ(broker_.property(instance, "RequestedState"), one(c.requested)) << c.admin;
    EXPECT_EQ(broker_.property(instance, "EnabledDefault"), "uint16[] {2}");
  }
}

TEST_F(CmpiHardware, AnEntityNameThatFillsItsFieldEndsWithIt) {
  std::memset(entity_.name, 'n', sizeof entity_.name);
  Script script;
  expect_wwn(script);
  script.expect(slot_of_entity(22)).gives(3);
  EXPECT_EQ(broker_.property_text(module(), "ElementName"), std::string(765, 'n'));
}

// ---- the chassis of the switch

constexpr const char* kPackageEnds =
    "newObjectPath(root/cimv2, VEXOR_PhysicalPackage) -> path1\n"
    "setHostname(path1, switch-1)\n"
    "addKey(path1, CreationClassName, chars \"VEXOR_PhysicalPackage\")\n"
    "addKey(path1, Tag, chars \"2000000DEC0A1B3C\")\n"
    "newObjectPath(root/cimv2, VEXOR_PhysicalComputerSystem) -> path2\n"
    "setHostname(path2, switch-1)\n"
    "addKey(path2, Name, chars \"2000000DEC0A1B3C\")\n"
    "addKey(path2, CreationClassName, chars \"VEXOR_PhysicalComputerSystem\")\n"
    "newObjectPath(root/cimv2, VEXOR_Housing) -> path3\n"
    "setHostname(path3, switch-1)\n";

TEST_F(CmpiHardware, TheChassisIsThatOfTheOwnSwitch) {
  Script script;
  expect_wwn(script);
  expect_wwn(script);
  ASSERT_NE(switch_package_fill_reference("VEXOR_Housing", kNamespace, broker_), nullptr);
  EXPECT_EQ(out_.out(), std::string(kPackageEnds) +
                            "addKey(path3, Antecedent, ref path1)\n"
                            "addKey(path3, Dependent, ref path2)\n");
}

TEST_F(CmpiHardware, TheChassisOfTheSwitchIsAnInstanceOfTheGivenClass) {
  Script script;
  expect_wwn(script);
  expect_wwn(script);
  ASSERT_NE(switch_package_build_instance("VEXOR_Housing", kNamespace, broker_), nullptr);
  EXPECT_EQ(out_.out(), std::string(kPackageEnds) +
                            "newInstance(path3) -> instance1\n"
                            "setProperty(instance1, Antecedent, ref path1)\n"
                            "setProperty(instance1, Dependent, ref path2)\n");
}

TEST_F(CmpiHardware, WithoutItsWwnBothEndsOfTheChassisAreNamedNa) {
  Responder responder([](const Request&) { return Response::failed(17); });
  CMPIObjectPath* path = switch_package_fill_reference("C", kNamespace, broker_);
  EXPECT_EQ(broker_.key_text(broker_.key_reference(path, "Antecedent"), "Tag"), "N/A");
  EXPECT_EQ(broker_.key_text(broker_.key_reference(path, "Dependent"), "Name"), "N/A");
}

}  // namespace
