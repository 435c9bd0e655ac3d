// The product, the chassis, the physical sides of ports, and the modules.
#include "tests/hardware_providers/hardware_fixture.h"

namespace hardware_tests {
namespace {

class HardwareObjects : public HardwareTest {};

TEST_F(HardwareObjects, TheSwitchIsOneProductInOneChassis) {
  EXPECT_EQ(names("VEXOR_Product"), (Texts{kProduct}));
  EXPECT_EQ(names("VEXOR_PhysicalPackage"), (Texts{kChassis}));
  EXPECT_EQ(value(get(kProduct), "ElementName"), "QRX4400");
  const Instance chassis = get(kChassis);
  EXPECT_EQ(value(chassis, "ElementName"), "2000000DEC0A1B2C");
  EXPECT_EQ(value(chassis, "Manufacturer"), "Vexor Systems");
  EXPECT_EQ(value(chassis, "Model"), "QRX4400");
  EXPECT_EQ(value(chassis, "SerialNumber"), "VX0951A02C");
  EXPECT_EQ(value(chassis, "PartNumber"), "68-1180-04");
  EXPECT_EQ(value(chassis, "Version"), "3.1(2a)");
}

TEST_F(HardwareObjects, AnotherSwitchIsNoChassisHere) {
  expect_not_found(
      "root/cimv2:VEXOR_PhysicalPackage.CreationClassName=\"VEXOR_PhysicalPackage\","
      "Tag=\"2000000DEC0A1B5E\"");
}

TEST_F(HardwareObjects, AChassisWhosePromIsNotReadHasNoNumbers) {
  fail(switch_sim::kSerialProm, Fault::Kind::status, 0x40010001);
  const Instance chassis = get(kChassis);
  EXPECT_EQ(value(chassis, "SerialNumber"), "");
  EXPECT_EQ(value(chassis, "PartNumber"), "");
  EXPECT_EQ(value(chassis, "Model"), "QRX4400");
}

TEST_F(HardwareObjects, EveryInterfaceHasAPhysicalSide) {
  EXPECT_EQ(count("VEXOR_PhysicalElement"), 25u);
  const Instance first = get(element_path("16842753"));
  EXPECT_EQ(value(first, "Name"), "fc1/1");
  EXPECT_EQ(value(first, "SerialNumber"), "2041000DEC0A1B2C");
  const Instance second = get(element_path("16842754"));
  EXPECT_EQ(value(second, "Name"), "fc1/2");
  EXPECT_EQ(value(second, "SerialNumber"), "2042000DEC0A1B2C");
  for (const char* same : {"PartNumber", "Model", "Version", "Manufacturer"})
    EXPECT_EQ(value(first, same), value(second, same)) << same;
  EXPECT_EQ(value(first, "PartNumber"), "68-1180-04");
}

TEST_F(HardwareObjects, APhysicalSideThatIsNotThereIsNotFound) {
  for (const char* tag : {"16842770", "16842753x", "", "0", "99999999999", "fc1/1"})
    expect_not_found(element_path(tag));
}

TEST_F(HardwareObjects, ModulesHaveSlotsStatesAndNames) {
  EXPECT_EQ(names("VEXOR_LogicalModule"),
            (Texts{module_path("201"), module_path("202"), module_path("204"), module_path("205"),
                   module_path("206"), module_path("207"), module_path("208")}));
  const Instance card = get(module_path("201"));
  EXPECT_EQ(value(card, "ModuleNumber"), "1");
  EXPECT_EQ(value(card, "ElementName"), "Module 1");
  EXPECT_EQ(value(card, "OperationalStatus"), "2");
  EXPECT_EQ(value(card, "Status"), "OK");
  EXPECT_EQ(value(card, "EnabledState"), "3");
  EXPECT_EQ(value(card, "RequestedState"), "2");
  EXPECT_EQ(value(card, "EnabledDefault"), "2");
}

TEST_F(HardwareObjects, AFailedModuleIsInError) {
  const Instance module = get(module_path("208"));
  EXPECT_EQ(value(module, "ModuleNumber"), "8");
  EXPECT_EQ(value(module, "OperationalStatus"), "6");
  EXPECT_EQ(value(module, "Status"), "FAILED");
  EXPECT_EQ(value(module, "EnabledState"), "5");
  EXPECT_EQ(value(module, "RequestedState"), "2");
}

TEST_F(HardwareObjects, AModuleThatIsPoweredDownIsStoppedAndDisabled) {
  const Instance module = get(module_path("204"));
  EXPECT_EQ(value(module, "ModuleNumber"), "4");
  EXPECT_EQ(value(module, "OperationalStatus"), "10");
  EXPECT_EQ(value(module, "Status"), "DISABLED");
  EXPECT_EQ(value(module, "EnabledState"), "4");
  EXPECT_EQ(value(module, "RequestedState"), "3");
}

TEST_F(HardwareObjects, AModuleThatIsNotThereIsNotFound) {
  for (const char* entity : {"203", "1", "101", "301", "0", "", "201x", "-1", "4294967497"})
    expect_not_found(module_path(entity));
  expect_not_found(
      "root/cimv2:VEXOR_LogicalModule.DeviceID=\"201\",SystemName=\"2000000DEC0A1B5E\","
      "SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\","
      "CreationClassName=\"VEXOR_LogicalModule\"");
}

TEST_F(HardwareObjects, AModuleWhoseSlotIsNotKnownHasNoNumber) {
  fail(switch_sim::kSlotOfEntity, Fault::Kind::status, 0x40010001);
  EXPECT_EQ(value(get(module_path("201")), "ModuleNumber"), "NULL");
}

TEST_F(HardwareObjects, AModuleWhoseEntityIsNotToldHasNoNames) {
  fail(switch_sim::kPhysicalEntity, Fault::Kind::status, 0x40010001);
  const Instance module = get(module_path("201"));
  EXPECT_EQ(value(module, "ElementName"), "");
  EXPECT_EQ(value(module, "OperationalStatus"), "2");
}

TEST_F(HardwareObjects, APlatformManagerThatDoesNotAnswerFailsTheRequest) {
  fail(switch_sim::kModule, Fault::Kind::error, ETIME);
  expect_error(CMPI_RC_ERR_FAILED, "the platform manager does not answer",
               [&] { names("VEXOR_LogicalModule"); });
  expect_error(CMPI_RC_ERR_FAILED, "the platform manager does not answer",
               [&] { get(module_path("201")); });
}

TEST_F(HardwareObjects, AWalkThatBreaksOffFailsTheRequest) {
  fail(switch_sim::kModule, Fault::Kind::error, ETIME, 4);
  expect_error(CMPI_RC_ERR_FAILED, "the platform manager does not answer",
               [&] { names("VEXOR_LogicalModule"); });
}

TEST_F(HardwareObjects, AModuleWithoutAReplyIsNotFound) {
  fail(switch_sim::kModule, Fault::Kind::without_reply);
  EXPECT_EQ(names("VEXOR_LogicalModule"), Texts{});
}

TEST_F(HardwareObjects, ModulesCostOneExchangeEach) {
  EXPECT_EQ(8u, exchanges(switch_sim::kModule, [&] { names("VEXOR_LogicalModule"); }));
  EXPECT_EQ(1u, exchanges(switch_sim::kModule, [&] { get(module_path("201")); }));
}

TEST_F(HardwareObjects, ASwitchWithoutModulesHasNone) {
  generate("switches=1");
  EXPECT_EQ(names("VEXOR_LogicalModule"), Texts{});
  EXPECT_EQ(count("VEXOR_PhysicalPackage"), 1u);
}

// Providers on the OpenPegasus interface make VEXOR_Switch.
TEST_F(HardwareObjects, TheClassThatOtherProvidersServeIsNamedInTheRefusal) {
  const char* const refusal = "\"VEXOR_Switch\" is not a class of this provider";
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, refusal, [&] { names("VEXOR_Switch"); });
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, refusal, [&] {
    get("root/cimv2:VEXOR_Switch.Name=\"2000000DEC0A1B2C\",CreationClassName=\"VEXOR_Switch\"");
  });
  EXPECT_EQ(count("VEXOR_ComputerSystem"), 3u + 6u);
}

TEST_F(HardwareObjects, NothingOfHardwareIsCreatedOrDeleted) {
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, "cannot be deleted",
               [&] { manager_->delete_instance(path(kProduct)); });
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, "cannot be modified", [&] {
    modify(module_path("201"), {{"ElementName", cim::host::Data::string("x")}});
  });
}

}  // namespace
}  // namespace hardware_tests
