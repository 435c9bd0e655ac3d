// The switches of the fabric, their parts in VSANs, and what the own switch can do and is set to.
#include "tests/providers/provider_fixture.h"
#include "tests/support/platform_double.h"

namespace {

using namespace provider_tests;
using test_support::hex;
using test_support::Script;

std::string physical(const char* wwn) {
  return "root/cimv2:VEXOR_PhysicalComputerSystem.Name=\"" + std::string(wwn) +
         "\",CreationClassName=\"VEXOR_PhysicalComputerSystem\"";
}

std::string logical(const char* wwn) {
  return "root/cimv2:VEXOR_LogicalComputerSystem.Name=\"" + std::string(wwn) +
         "\",CreationClassName=\"VEXOR_LogicalComputerSystem\"";
}

std::string component(const char* vsan, const std::string& part) {
  return "root/cimv2:VEXOR_Component.GroupComponent=[" + std::string(vsan) + "],PartComponent=[" +
         part + "]";
}

constexpr const char* kOwn = "2000000DEC0A1B2C";
constexpr const char* kOther = "2000000DEC0A1B3C";
constexpr const char* kForeign = "1000006069123456";

constexpr const char* kOwnInstance =
    "VEXOR_PhysicalComputerSystem {PermanentAddress=\"2000000DEC0A1B2C\", "
    "Name=\"2000000DEC0A1B2C\", NameFormat=\"WWN\", "
    "CreationClassName=\"VEXOR_PhysicalComputerSystem\", ElementName=\"switch-1\", "
    "PrimarySwitch=true, IPAddress=\"10.0.0.1\", EnabledState=uint16 2, "
    "OtherIdentifyingInfo={\"0\"}, IdentifyingDescriptions={\"DomainID\"}, "
    "OperationalStatus={uint16 2}, Dedicated={uint16 2}, "
    "OtherDedicatedDescriptions={\"Not Dedicated\"}, Caption=\"VexorQRX Switch\", "
    "Description=\"VexorQRX Switch\", Vendor=\"Vexor Systems\"}";

constexpr const char* kPartInVsan2 =
    "VEXOR_LogicalComputerSystem {Name=\"2002000DEC0A1B2D\", NameFormat=\"WWN\", "
    "CreationClassName=\"VEXOR_LogicalComputerSystem\", ElementName=\"2002000DEC0A1B2D\", "
    "EnabledState=uint16 2, OtherIdentifyingInfo={\"43\"}, "
    "IdentifyingDescriptions={\"DomainID\"}, OperationalStatus={uint16 2, uint16 0}, "
    "Dedicated={uint16 5}, OtherDedicatedDescriptions={\"Dedicated\"}}";

// VSAN 1: the own switch, another one of our maker, one of another maker; VSAN 2: the own one and
// that of the other maker.
class ProviderSwitches : public ProviderFixture {
 protected:
  ProviderSwitches() {
    broker_.derives("VEXOR_PhysicalComputerSystem", "VEXOR_ComputerSystem");
    broker_.derives("VEXOR_LogicalComputerSystem", "VEXOR_ComputerSystem");
    system_.address("switch-1", 10, 0, 0, 1);
    switch_.add_switch(1, "20 01 00 0d ec 0a 1b 2d", 33);
    switch_.add_switch(1, "20 01 00 0d ec 0a 1b 3d", 34);
    switch_.add_switch(1, "10 00 00 60 69 12 34 56", 35);
    switch_.add_switch(2, "20 02 00 0d ec 0a 1b 2d", 43);
    switch_.add_switch(2, "10 00 00 60 69 12 34 56", 45);
  }

  CMPIObjectPath* physical_path(const char* wwn) {
    return broker_.path("VEXOR_PhysicalComputerSystem",
                        {{"Name", wwn}, {"CreationClassName", "VEXOR_PhysicalComputerSystem"}});
  }
  CMPIObjectPath* logical_path(const char* wwn) {
    return broker_.path("VEXOR_LogicalComputerSystem",
                        {{"Name", wwn}, {"CreationClassName", "VEXOR_LogicalComputerSystem"}});
  }
  CMPIObjectPath* component_path(const char* vsan, CMPIObjectPath* part) {
    CMPIObjectPath* path = broker_.path("VEXOR_Component");
    broker_.add_reference(path, "GroupComponent", vsan_path(vsan));
    return broker_.add_reference(path, "PartComponent", part);
  }
  // What the library's builder asks about another switch: its address, and the name of domain 0.
  void expect_builder_of_remote_switch(Script& script) {
    script.expect(discover_peers(test_support::Record(28).host32(24, 126))).returns(0);
    script.expect(test_support::receive().timeout(20).no_token())
        .receives(
            test_support::peers().answer(hex("20 00 00 0d ec 0a 1b 3c"), 1, hex("0a 00 00 02")));
    expect_names(script);
  }
  void expect_names(Script& script) {
    script.expect(test_support::query_switch_addresses()).returns(0);
    script.expect(test_support::receive().timeout(5))
        .receives(test_support::switch_addresses().entry(33, "sydney").entry(34, "melbourne"));
  }
};

// ---- VEXOR_PhysicalComputerSystem ----

TEST_F(ProviderSwitches, EveryDeviceOfTheFabricIsListedOnce) {
  const Outcome answer = names("VEXOR_PhysicalComputerSystem");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.paths, (Texts{physical(kOwn), physical(kOther), physical(kForeign)}));
}

TEST_F(ProviderSwitches, TheOwnSwitchIsListedWhenNoVsanHasSwitches) {
  SwitchDouble alone(2);
  EXPECT_EQ(names("VEXOR_PhysicalComputerSystem").returned.paths, (Texts{physical(kOwn)}));
}

TEST_F(ProviderSwitches, TheOwnSwitchIsListedThoughTheConfigurationServerDoesNotKnowIt) {
  SwitchDouble strange(1);
  strange.add_switch(1, "10 00 00 60 69 12 34 56", 35);
  EXPECT_EQ(names("VEXOR_PhysicalComputerSystem").returned.paths,
            (Texts{physical(kOwn), physical(kForeign)}));
}

TEST_F(ProviderSwitches, TheOwnSwitchIsGotByItsWwn) {
  const Outcome answer = get(physical_path(kOwn));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kOwnInstance}));
}

TEST_F(ProviderSwitches, TheOwnSwitchIsFoundWithoutAskingForOthers) {
  get(physical_path(kOwn));
  EXPECT_EQ(switch_.calls(kIdentityOpcode), 1u);
  EXPECT_EQ(switch_.calls(kDomainOpcode), 1u);
  EXPECT_EQ(switch_.calls(), 2u);
}

TEST_F(ProviderSwitches, NamesOfClassesAndKeysAreTakenInAnyCase) {
  const auto* path =
      broker_.path("vexor_physicalcomputersystem",
                   {{"NAME", kOwn}, {"creationclassname", "VEXOR_PhysicalComputerSystem"}});
  EXPECT_EQ(get(path).returned.instances, (Texts{kOwnInstance}));
}

TEST_F(ProviderSwitches, ARemoteSwitchShowsTheNameOfItsDomainInVsan1) {
  Script script;
  expect_builder_of_remote_switch(script);
  expect_names(script);
  const Outcome answer = get(physical_path(kOther));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances,
            (Texts{"VEXOR_PhysicalComputerSystem {PermanentAddress=\"2000000DEC0A1B3C\", "
                   "Name=\"2000000DEC0A1B3C\", NameFormat=\"WWN\", "
                   "CreationClassName=\"VEXOR_PhysicalComputerSystem\", PrimarySwitch=false, "
                   "IPAddress=\"10.0.0.2\", EnabledState=uint16 5, OtherIdentifyingInfo={\"0\"}, "
                   "IdentifyingDescriptions={\"DomainID\"}, OperationalStatus={uint16 2}, "
                   "Dedicated={uint16 2}, OtherDedicatedDescriptions={\"Not Dedicated\"}, "
                   "Caption=\"VexorQRX Switch\", Description=\"VexorQRX Switch\", "
                   "Vendor=\"Vexor Systems\", ElementName=\"melbourne\"}"}));
}

TEST_F(ProviderSwitches, ARemoteSwitchWithoutANameHasNoElementName) {
  Script script;
  expect_builder_of_remote_switch(script);
  expect_names(script);  // not that of domain 35
  const Outcome answer = get(physical_path(kForeign));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  ASSERT_EQ(answer.returned.instances.size(), 1u);
  EXPECT_EQ(answer.returned.instances[0].find("ElementName"), std::string::npos);
}

TEST_F(ProviderSwitches, ANameThatCannotBeAskedForIsLeftOut) {
  Script script;
  expect_builder_of_remote_switch(script);
  script.expect(test_support::query_switch_addresses()).returns(0);
  script.expect(test_support::receive().timeout(5)).times_out();
  const Outcome answer = get(physical_path(kOther));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  ASSERT_EQ(answer.returned.instances.size(), 1u);
  EXPECT_EQ(answer.returned.instances[0].find("ElementName"), std::string::npos);
}

TEST_F(ProviderSwitches, ASwitchThatIsNotInVsan1IsNotGivenTheNameOfAnotherOne) {
  switch_.add_switch(2, "20 02 00 0d ec 0a 1b 5d", 34);
  Script script;
  expect_builder_of_remote_switch(script);
  const Outcome answer = get(physical_path("2000000DEC0A1B5C"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  ASSERT_EQ(answer.returned.instances.size(), 1u);
  EXPECT_EQ(answer.returned.instances[0].find("ElementName"), std::string::npos);
}

TEST_F(ProviderSwitches, ANameThatIsNotAskedForIsNotLookedUp) {
  Script script;
  expect_builder_of_remote_switch(script);
  const char* list[] = {"Vendor", nullptr};
  EXPECT_EQ(get(physical_path(kOther), list).returned.instances,
            (Texts{"VEXOR_PhysicalComputerSystem {Name=\"2000000DEC0A1B3C\", "
                   "CreationClassName=\"VEXOR_PhysicalComputerSystem\", "
                   "Vendor=\"Vexor Systems\"}"}));
}

TEST_F(ProviderSwitches, WhatIsNoDeviceOfTheFabricIsNotFound) {
  for (const char* name : {"2000000DEC0A1B6C", "2000000dec0a1b2c", "2001000DEC0A1B2D",
                           "2000000DEC0A1B2C ", "2000000DEC0A1B2", "", "switch-1"}) {
    const Outcome answer = get(physical_path(name));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND) << name;
    EXPECT_EQ(answer.message, "there is no such VEXOR_PhysicalComputerSystem") << name;
  }
}

TEST_F(ProviderSwitches, WithoutTheOwnWwnDevicesCannotBeTold) {
  switch_.responder().fail_nth_exchange(1);
  const Outcome answer = names("VEXOR_PhysicalComputerSystem");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the switch identity service does not tell the switch's WWN");
}

TEST_F(ProviderSwitches, AVsanManagerThatDoesNotAnswerIsNotAMissingSwitch) {
  switch_.responder().fail_nth_exchange(2, -1, 62);
  const Outcome answer = get(physical_path(kOther));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the VSAN manager does not answer (status -1)");
}

// ---- VEXOR_LogicalComputerSystem ----

TEST_F(ProviderSwitches, PartsInVsansAreThoseOfOurMaker) {
  EXPECT_EQ(names("VEXOR_LogicalComputerSystem").returned.paths,
            (Texts{logical("2001000DEC0A1B2D"), logical("2001000DEC0A1B3D"),
                   logical("2002000DEC0A1B2D")}));
}

TEST_F(ProviderSwitches, ASuspendedVsanHasNoParts) {
  switch_.suspend(2);
  EXPECT_EQ(names("VEXOR_LogicalComputerSystem").returned.paths,
            (Texts{logical("2001000DEC0A1B2D"), logical("2001000DEC0A1B3D")}));
  EXPECT_EQ(get(logical_path("2002000DEC0A1B2D")).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderSwitches, APartIsGotFromItsVsanAlone) {
  const Outcome answer = get(logical_path("2002000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kPartInVsan2}));
  EXPECT_EQ(switch_.calls(kVsanOpcode), 1u);
  EXPECT_EQ(switch_.calls(kElementOpcode), 1u);
  EXPECT_EQ(switch_.calls(kElementsOpcode), 0u);
}

TEST_F(ProviderSwitches, APropertyListIsAppliedToAPart) {
  const char* list[] = {"otheridentifyinginfo", nullptr};
  EXPECT_EQ(get(logical_path("2002000DEC0A1B2D"), list).returned.instances,
            (Texts{"VEXOR_LogicalComputerSystem {Name=\"2002000DEC0A1B2D\", "
                   "CreationClassName=\"VEXOR_LogicalComputerSystem\", "
                   "OtherIdentifyingInfo={\"43\"}}"}));
}

TEST_F(ProviderSwitches, WhatIsNoPartInAVsanIsNotFound) {
  for (const char* name : {"2002000DEC0A1B3D", "2003000DEC0A1B2D", kOwn, kForeign, "nothing"}) {
    const Outcome answer = get(logical_path(name));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND) << name;
    EXPECT_EQ(answer.message, "there is no such VEXOR_LogicalComputerSystem") << name;
  }
}

TEST_F(ProviderSwitches, AVsanWhoseSwitchesAreNotGivenFailsTheList) {
  switch_.responder().fail_nth_exchange(2);
  const Outcome answer = names("VEXOR_LogicalComputerSystem");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the fabric configuration server does not give the switches of VSAN 1");
}

// ---- VEXOR_Component ----

TEST_F(ProviderSwitches, EverySwitchIsAComponentOfItsVsan) {
  const Outcome answer = names("VEXOR_Component");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.paths, (Texts{component(kVsan1, logical("2001000DEC0A1B2D")),
                                          component(kVsan1, logical("2001000DEC0A1B3D")),
                                          component(kVsan1, physical(kForeign)),
                                          component(kVsan2, logical("2002000DEC0A1B2D")),
                                          component(kVsan2, physical(kForeign))}));
}

TEST_F(ProviderSwitches, EveryListedComponentCanBeGot) {
  struct {
    const char* vsan;
    CMPIObjectPath* part;
  } const kListed[] = {
      {"2001000DEC0A1B2D", logical_path("2001000DEC0A1B2D")},
      {"2001000DEC0A1B2D", logical_path("2001000DEC0A1B3D")},
      {"2001000DEC0A1B2D", physical_path(kForeign)},
      {"2002000DEC0A1B2D", logical_path("2002000DEC0A1B2D")},
      {"2002000DEC0A1B2D", physical_path(kForeign)},
  };
  for (const auto& [vsan, part] : kListed) {
    const Outcome answer = get(component_path(vsan, part));
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
    EXPECT_EQ(answer.returned.instances.size(), 1u);
  }
  EXPECT_EQ(get(component_path("2002000DEC0A1B2D", physical_path(kForeign))).returned.instances,
            (Texts{"VEXOR_Component {GroupComponent=[" + std::string(kVsan2) +
                   "], PartComponent=[" + physical(kForeign) + "]}"}));
}

TEST_F(ProviderSwitches, AComponentThatTiesTheWrongEndsIsNotFound) {
  for (CMPIObjectPath* part : {logical_path("2001000DEC0A1B2D"), logical_path(kForeign),
                               physical_path(kOwn), logical_path("")})
    EXPECT_EQ(get(component_path("2002000DEC0A1B2D", part)).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderSwitches, AVsanLeadsToItsSwitches) {
  const Filter filter{.association = "VEXOR_Component"};
  EXPECT_EQ(associator_names(vsan_path("2002000DEC0A1B2D"), filter).returned.paths,
            (Texts{logical("2002000DEC0A1B2D"), physical(kForeign)}));
}

TEST_F(ProviderSwitches, APartLeadsToItsVsanAndBack) {
  EXPECT_EQ(associators(logical_path("2002000DEC0A1B2D"), Filter{.association = "VEXOR_Component"})
                .returned.instances,
            (Texts{kVsan2Instance}));
  const Filter filter{.association = "VEXOR_Component",
                      .result_class = "VEXOR_LogicalComputerSystem"};
  EXPECT_EQ(associators(vsan_path("2002000DEC0A1B2D"), filter).returned.instances,
            (Texts{kPartInVsan2}));
}

TEST_F(ProviderSwitches, ADeviceOfAnotherMakerLeadsToAllItsVsans) {
  EXPECT_EQ(associator_names(physical_path(kForeign), {}).returned.paths, (Texts{kVsan1, kVsan2}));
  EXPECT_EQ(reference_names(physical_path(kForeign), {}).returned.paths,
            (Texts{component(kVsan1, physical(kForeign)), component(kVsan2, physical(kForeign))}));
}

TEST_F(ProviderSwitches, ASwitchThatDoesNotExistLeadsNowhere) {
  for (CMPIObjectPath* path : {logical_path("2003000DEC0A1B2D"), logical_path("nothing"),
                               physical_path("1000006069000000")}) {
    const Outcome answer = associator_names(path, {});
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
    EXPECT_TRUE(answer.returned.paths.empty());
  }
}

// ---- capabilities and settings ----

TEST_F(ProviderSwitches, TheCapabilitiesAreOneObject) {
  EXPECT_EQ(names("VEXOR_FCSwitchCapabilities").returned.paths,
            (Texts{"root/cimv2:VEXOR_FCSwitchCapabilities.InstanceID=\"2000000DEC0A1B2C\""}));
  EXPECT_EQ(
      enumerate("VEXOR_FCSwitchCapabilities").returned.instances,
      (Texts{"VEXOR_FCSwitchCapabilities {InstanceID=\"2000000DEC0A1B2C\", "
             "ElementName=\"FC Switch Capabilities\", ElementNameEditSupported=true, "
             "MaxElementNameLen=uint16 32, RequestedStatesSupported={uint16 2, uint16 3, "
             "uint16 11}, DomainIDLockedSupported=true, DomainIDConfigureable=true, "
             "MinDomainID=uint8 1, MaxDomainID=uint8 239, PrincipalPrioritiesSupported={uint16 2, "
             "uint16 3, uint16 4}}"}));
}

TEST_F(ProviderSwitches, TheSettingsAreGotByTheSwitchsWwn) {
  switch_.configure(17, 1, 254);
  const Outcome answer =
      get(broker_.path("VEXOR_FCSwitchSettings", {{"instanceid", "2000000DEC0A1B2C"}}));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances,
            (Texts{"VEXOR_FCSwitchSettings {InstanceID=\"2000000DEC0A1B2C\", "
                   "ElementName=\"FC Switch Settings\", PreferredDomainID=uint8 17, "
                   "DomainIDLocked=true, PrincipalPriority=uint16 3}"}));
  EXPECT_EQ(get(broker_.path("VEXOR_FCSwitchSettings", {{"InstanceID", kOther}})).code,
            CMPI_RC_ERR_NOT_FOUND);
}

}  // namespace
