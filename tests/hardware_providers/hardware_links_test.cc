// What ties product, chassis, modules, ports and switches together.
#include "tests/hardware_providers/hardware_fixture.h"

namespace hardware_tests {
namespace {

constexpr const char* kFc1 = "16842753";
constexpr const char* kGigabit = "33685505";
constexpr const char* kManagement = "83886081";

class HardwareLinks : public HardwareTest {};

TEST_F(HardwareLinks, TheProductLeadsToItsChassisAndTheChassisToTheSwitch) {
  expect_linked(kProduct, "VEXOR_ProductPhysicalComponent", kChassis);
  expect_linked(kChassis, "VEXOR_ComputerSystemPackage", kOwnSwitch);
  EXPECT_EQ(linked(kSecondSwitch, "VEXOR_ComputerSystemPackage"), Texts{});
}

TEST_F(HardwareLinks, PortsAndModulesAreMadeOfSomething) {
  expect_linked(element_path(kFc1), "VEXOR_Realizes", port_path(kFc1));
  expect_linked(element_path(kManagement), "VEXOR_Realizes", ethernet_path(kManagement, "mgmt0"));
  expect_linked(kChassis, "VEXOR_Realizes", module_path("208"));
  EXPECT_EQ(linked(element_path(kFc1), "VEXOR_Realizes"), (Texts{port_path(kFc1)}));
  EXPECT_EQ(linked(kChassis, "VEXOR_Realizes").size(), 7u);
  EXPECT_EQ(count("VEXOR_Realizes"), 25u + 7u);
}

TEST_F(HardwareLinks, ModulesHoldTheirPorts) {
  expect_linked(module_path("201"), "VEXOR_ModulePort", port_path(kFc1));
  expect_linked(module_path("202"), "VEXOR_ModulePort",
                ethernet_path(kGigabit, "gigabitethernet2/1"));
  EXPECT_EQ(linked(module_path("201"), "VEXOR_ModulePort").size(), 16u);
  EXPECT_EQ(linked(module_path("202"), "VEXOR_ModulePort").size(), 4u);
  EXPECT_EQ(linked(module_path("205"), "VEXOR_ModulePort"), Texts{});
  EXPECT_EQ(linked(port_path("67108865"), "VEXOR_ModulePort"), Texts{});
  EXPECT_EQ(count("VEXOR_ModulePort"), 20u);
}

TEST_F(HardwareLinks, TheSwitchHasItsModulesAndPorts) {
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice", module_path("204"));
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice", port_path(kFc1));
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice", ethernet_path(kManagement, "mgmt0"));
}

TEST_F(HardwareLinks, ASwitchHasThePortsOfItsLinks) {
  expect_linked(kSecondSwitch, "VEXOR_SystemDevice",
                port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"));
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice",
                port_path("2000000DEC0A1B2C_16842754_1", "2000000DEC0A1B2C"));
  expect_linked(
      kOwnPart1, "VEXOR_SystemDevice",
      port_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D", "VEXOR_LogicalComputerSystem"));
}

TEST_F(HardwareLinks, ASwitchHasThePortsThatDevicesLogInAt) {
  expect_linked(kOwnSwitch, "VEXOR_SystemDevice",
                port_path("2_2041000DEC0A1B2C", "unknown system"));
  expect_linked(kOwnPart1, "VEXOR_SystemDevice",
                port_path("2_1_2041000DEC0A1B2C", "unknown system", "VEXOR_LogicalComputerSystem"));
  EXPECT_EQ(linked(port_path("3_2100001122334401", "unknown system"), "VEXOR_SystemDevice"),
            Texts{});
}

TEST_F(HardwareLinks, ASwitchHostsItsPartsInTheVsans) {
  EXPECT_EQ(linked(kOwnSwitch, "VEXOR_HostedDependency"), (Texts{kOwnPart1, kOwnPart2}));
  expect_linked(kOwnSwitch, "VEXOR_HostedDependency", kOwnPart2);
  EXPECT_EQ(count("VEXOR_HostedDependency"), 6u);
}

TEST_F(HardwareLinks, TheSwitchItsPortsAndZoneServicesHaveCapabilities) {
  expect_linked(kOwnSwitch, "VEXOR_ElementCapabilities",
                id_path("VEXOR_FCSwitchCapabilities", kOwnWwn));
  expect_linked(port_path(kFc1), "VEXOR_ElementCapabilities",
                id_path("VEXOR_FCPortCapabilities", kFc1));
  const Texts services = names("VEXOR_ZoneService");
  ASSERT_EQ(services.size(), 2u);
  expect_linked(services[0], "VEXOR_ElementCapabilities", id_path("VEXOR_ZoneCapabilities", "1"));
  EXPECT_EQ(linked(ethernet_path(kManagement, "mgmt0"), "VEXOR_ElementCapabilities"), Texts{});
  EXPECT_EQ(linked(kSecondSwitch, "VEXOR_ElementCapabilities"), Texts{});
  EXPECT_EQ(count("VEXOR_ElementCapabilities"), 1u + 17u + 2u);
}

TEST_F(HardwareLinks, TheSwitchAndItsPortsHaveSettings) {
  expect_linked(kOwnSwitch, "VEXOR_ElementSettingData", id_path("VEXOR_FCSwitchSettings", kOwnWwn));
  expect_linked(port_path(kFc1), "VEXOR_ElementSettingData", id_path("VEXOR_FCPortSettings", kFc1));
  EXPECT_EQ(count("VEXOR_ElementSettingData"), 1u + 17u);
}

TEST_F(HardwareLinks, RolesAndClassesChooseAmongWhatIsLinked) {
  EXPECT_EQ(linked(port_path(kFc1), "VEXOR_Realizes", "", "Antecedent"), Texts{});
  EXPECT_EQ(linked(port_path(kFc1), "VEXOR_Realizes", "", "Dependent").size(), 1u);
  EXPECT_EQ(linked(kOwnSwitch, "VEXOR_SystemDevice", "VEXOR_LogicalModule").size(), 7u);
  EXPECT_EQ(linked(kOwnSwitch, "CIM_SystemDevice", "CIM_LogicalModule").size(), 7u);
}

TEST_F(HardwareLinks, AnAssociationOfTwoThatAreNotLinkedIsNotFound) {
  expect_not_found("root/cimv2:VEXOR_Realizes.Antecedent=\"" + escaped(element_path("16842754")) +
                   "\",Dependent=\"" + escaped(port_path(kFc1)) + "\"");
  expect_not_found("root/cimv2:VEXOR_ModulePort.GroupComponent=\"" + escaped(module_path("202")) +
                   "\",PartComponent=\"" + escaped(port_path(kFc1)) + "\"");
}

TEST_F(HardwareLinks, APortsLinksCostAFewExchanges) {
  EXPECT_LE(exchanges([&] { linked(port_path(kFc1), "VEXOR_Realizes"); }), 4u);
  EXPECT_LE(exchanges([&] { linked(port_path(kFc1), "VEXOR_ElementCapabilities"); }), 4u);
  EXPECT_LE(exchanges([&] { linked(port_path(kFc1), "VEXOR_ModulePort"); }), 14u);
}

TEST_F(HardwareLinks, AllDevicesCostExchangesInProportion) {
  const auto cost = [&](const char* numbers) {
    generate(numbers);
    const auto objects = instances("VEXOR_SystemDevice").size();
    return static_cast<double>(exchanges([&] { names("VEXOR_SystemDevice"); })) /
           static_cast<double>(objects);
  };
  const double small = cost("switches=3,ports=16,vsans=1,devices=10");
  EXPECT_LE(cost("switches=3,ports=64,vsans=1,devices=60"), small * 1.5);
}

}  // namespace
}  // namespace hardware_tests
