// Enumerating and getting instances through the provider objects.
#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using test_support::HeapLedger;

class Instances : public ProviderFixture {};

TEST_F(Instances, NamesOfVsansAreTheirWwns) {
  const Answer answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1, kVsan2}));
}

TEST_F(Instances, InstancesOfVsansHoldEveryProperty) {
  const Answer answer = enumerate("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan1Instance, kVsan2Instance}));
}

TEST_F(Instances, ClassNamesAreTakenInAnyCaseAndComeBackInTheirOwn) {
  EXPECT_EQ(names("vexor_VSAN").returned.paths, (Texts{kVsan1, kVsan2}));
}

TEST_F(Instances, ASuspendedVsanIsListedByItsNumber) {
  switch_.suspend(2);
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths,
            (Texts{kVsan1,
                   "root/cimv2:VEXOR_Vsan.Name=\"0000000000000000:2\","
                   "CreationClassName=\"VEXOR_Vsan\""}));
}

TEST_F(Instances, AVsanWhoseDomainManagerRefusesIsStillListed) {
  switch_.domain_manager_refuses(2);
  const Answer answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK);
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1,
                                          "root/cimv2:VEXOR_Vsan.Name=\"error during get vsan id\","
                                          "CreationClassName=\"VEXOR_Vsan\""}));
}

TEST_F(Instances, TheFabricIsOneObject) {
  EXPECT_EQ(names("VEXOR_AdminDomain").returned.paths, (Texts{kFabric}));
  EXPECT_EQ(enumerate("VEXOR_AdminDomain").returned.instances, (Texts{kFabricInstance}));
}

TEST_F(Instances, EveryVsanIsContainedInTheFabric) {
  const std::string fabric = std::string("[") + kFabric + "]";
  const std::string first = "[" + std::string(kVsan1) + "]";
  const std::string second = "[" + std::string(kVsan2) + "]";
  EXPECT_EQ(names("VEXOR_ContainedDomain").returned.paths,
            (Texts{"root/cimv2:VEXOR_ContainedDomain.GroupComponent=" + fabric +
                       ",PartComponent=" + first,
                   "root/cimv2:VEXOR_ContainedDomain.GroupComponent=" + fabric +
                       ",PartComponent=" + second}));
  EXPECT_EQ(
      enumerate("VEXOR_ContainedDomain").returned.instances,
      (Texts{
          "VEXOR_ContainedDomain {GroupComponent=" + fabric + ", PartComponent=" + first + "}",
          "VEXOR_ContainedDomain {GroupComponent=" + fabric + ", PartComponent=" + second + "}"}));
}

TEST_F(Instances, ASuperclassGivesTheInstancesOfItsSubclasses) {
  broker_.derives("VEXOR_Vsan", "CIM_AdminDomain");
  broker_.derives("VEXOR_AdminDomain", "CIM_AdminDomain");
  EXPECT_EQ(names("CIM_AdminDomain").returned.paths, (Texts{kFabric, kVsan1, kVsan2}));
  EXPECT_EQ(enumerate("CIM_AdminDomain").returned.instances,
            (Texts{kFabricInstance, kVsan1Instance, kVsan2Instance}));
}

TEST_F(Instances, AnUnknownClassIsRefusedByName) {
  const Answer answer = names("VEXOR_Nothing");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(answer.message, "\"VEXOR_Nothing\" is not a class of this provider");
  EXPECT_EQ(enumerate("VEXOR_Nothing").code, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(get(broker_.path("VEXOR_Nothing")).code, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(Instances, ABrokerThatCannotTellSubclassesStillFindsClassesByName) {
  broker_.leave_out_optional_slots();
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths.size(), 2u);
  EXPECT_EQ(names("CIM_AdminDomain").code, CMPI_RC_ERR_INVALID_CLASS);
}

// ---- getInstance ----

TEST_F(Instances, GetGivesTheVsanThatItsWwnNames) {
  const Answer answer = get(vsan_path("2002000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan2Instance}));
}

TEST_F(Instances, GetOfAVsanAsksForThatVsanOnly) {
  get(vsan_path("2002000DEC0A1B2D"));
  EXPECT_EQ(switch_.calls(kVsanOpcode), 1u);
  EXPECT_EQ(switch_.calls(kDomainOpcode), 1u);
  EXPECT_EQ(switch_.calls(), 2u);
}

TEST_F(Instances, GetGivesASuspendedVsanByItsNumber) {
  switch_.suspend(2);
  const Answer answer = get(vsan_path("0000000000000000:2"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"0000000000000000:2\", NameFormat=\"WWN\", "
                   "ElementName=\"VSAN0002\", VsanId=uint16 2, Status=\"Down\", "
                   "CreationClassName=\"VEXOR_Vsan\", "
                   "LoadBalancingType=\"src-id/dst-id/ox-id\"}"}));
  EXPECT_EQ(switch_.calls(), 2u);
}

TEST_F(Instances, GetGivesAVsanWhoseWwnDoesNotHoldItsNumber) {
  switch_.alternate_wwn(2, "10 00 00 0d ec 0a 1b 2d");
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths[1],
            "root/cimv2:VEXOR_Vsan.Name=\"1000000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"");
  const Answer answer = get(vsan_path("1000000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  ASSERT_EQ(answer.returned.instances.size(), 1u);
  EXPECT_NE(answer.returned.instances[0].find("VsanId=uint16 2"), std::string::npos);
}

TEST_F(Instances, EveryListedNameCanBeGot) {
  switch_.suspend(1);
  for (const char* name : {"0000000000000000:1", "2002000DEC0A1B2D"})
    EXPECT_EQ(get(vsan_path(name)).code, CMPI_RC_OK) << name;
}

TEST_F(Instances, NamesAreComparedExactly) {
  switch_.suspend(2);
  for (const char* name :
       {"2003000DEC0A1B2D", "2001000DEC0A1B2E", "2001000dec0a1b2d", "2001000DEC0A1B2D ", "",
        "0000000000000000:1", "0000000000000000:02", "0000000000000000:", "000000000000000:2",
        "0000000000000000:23456", "2002000DEC0A1B2D", ":", "error during get vsan id",
        "a name much longer than any buffer that the library keeps for a name, of which there are "
        "several, and the longest of them takes one hundred and twenty-seven characters: 2"}) {
    const Answer answer = get(vsan_path(name));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND) << name;
    EXPECT_EQ(answer.message, "there is no such VEXOR_Vsan") << name;
    EXPECT_TRUE(answer.returned.instances.empty()) << name;
  }
}

TEST_F(Instances, TheCreationClassNameHasToBeTheClass) {
  const auto* path = broker_.path(
      "VEXOR_Vsan", {{"Name", "2001000DEC0A1B2D"}, {"CreationClassName", "VEXOR_AdminDomain"}});
  EXPECT_EQ(get(path).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(Instances, NamesOfKeysAndClassesAreTakenInAnyCaseAndOrder) {
  const Answer answer = get(broker_.path(
      "vexor_vsan", {{"CREATIONCLASSNAME", "VEXOR_Vsan"}, {"name", "2001000DEC0A1B2D"}}));
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan1Instance}));
}

TEST_F(Instances, AMissingKeyIsAskedForBeforeTheSwitchIs) {
  const Answer answer = get(broker_.path("VEXOR_Vsan", {{"Name", "2001000DEC0A1B2D"}}));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "the object path of a VEXOR_Vsan lacks the key \"CreationClassName\"");
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(Instances, AnUnknownKeyIsRefusedByName) {
  auto* path = vsan_path("2001000DEC0A1B2D");
  const Answer answer = get(broker_.add_reference(path, "Switch", fabric_path()));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "VEXOR_Vsan has no key \"Switch\"");
}

TEST_F(Instances, AReferenceWhereATextBelongsNamesNothing) {
  auto* path = broker_.path("VEXOR_Vsan", {{"CreationClassName", "VEXOR_Vsan"}});
  EXPECT_EQ(get(broker_.add_reference(path, "Name", fabric_path())).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(Instances, AKeyWithoutAValueIsRefusedByName) {
  auto* path = broker_.path("VEXOR_Vsan", {{"CreationClassName", "VEXOR_Vsan"}});
  path->ft->addKey(path, "Name", nullptr, CMPI_string);
  const Answer answer = get(path);
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "key \"Name\" has no value");
}

TEST_F(Instances, GetOfTheFabric) {
  EXPECT_EQ(get(fabric_path()).returned.instances, (Texts{kFabricInstance}));
  EXPECT_EQ(get(fabric_path("2002000DEC0A1B2D")).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(Instances, AFabricWithoutItsDomainManagerGoesByAFixedName) {
  switch_.domain_manager_refuses(1);
  EXPECT_EQ(get(fabric_path("PHYSICAL_FABRIC")).code, CMPI_RC_OK);
  EXPECT_EQ(get(fabric_path()).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(Instances, GetOfAContainedDomainComparesBothEnds) {
  auto contained = [&](CMPIObjectPath* fabric, CMPIObjectPath* vsan) {
    auto* path = broker_.path("VEXOR_ContainedDomain");
    broker_.add_reference(path, "PartComponent", vsan);
    return get(broker_.add_reference(path, "GroupComponent", fabric));
  };
  EXPECT_EQ(contained(fabric_path(), vsan_path("2002000DEC0A1B2D")).returned.instances,
            (Texts{"VEXOR_ContainedDomain {GroupComponent=[" + std::string(kFabric) +
                   "], PartComponent=[" + kVsan2 + "]}"}));
  EXPECT_EQ(contained(fabric_path("PHYSICAL_FABRIC"), vsan_path("2002000DEC0A1B2D")).code,
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(contained(fabric_path(), vsan_path("2003000DEC0A1B2D")).code, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(contained(vsan_path("2001000DEC0A1B2D"), fabric_path()).code, CMPI_RC_ERR_NOT_FOUND);
}

// ---- property lists ----

TEST_F(Instances, APropertyListIsHonouredInAnyCaseAndKeepsTheKeys) {
  const char* list[] = {"vsanid", "STATUS", "NoSuchProperty", nullptr};
  const Texts expected = {
      "VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", VsanId=uint16 1, Status=\"Up\", "
      "CreationClassName=\"VEXOR_Vsan\"}"};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances, expected);
  EXPECT_EQ(enumerate("VEXOR_Vsan", list).returned.instances[0], expected[0]);
}

TEST_F(Instances, APropertyListIsHonouredWhereTheBrokerIgnoresFilters) {
  broker_.ignore_property_filters();
  const char* list[] = {"elementname", nullptr};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", ElementName=\"VSAN0001\", "
                   "CreationClassName=\"VEXOR_Vsan\"}"}));
}

TEST_F(Instances, APropertyListIsHonouredWhereTheBrokerHasNoFilters) {
  broker_.leave_out_optional_slots();
  const char* list[] = {"elementname", nullptr};
  EXPECT_EQ(get(fabric_path(), list).returned.instances,
            (Texts{"VEXOR_AdminDomain {Name=\"2001000DEC0A1B2D\", ElementName=\"VSAN0001\", "
                   "CreationClassName=\"VEXOR_AdminDomain\"}"}));
}

TEST_F(Instances, AnEmptyPropertyListAsksForTheKeysOnly) {
  const char* list[] = {nullptr};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", CreationClassName=\"VEXOR_Vsan\"}"}));
}

TEST_F(Instances, TheKeysOfAnAssociationAreItsEnds) {
  const char* list[] = {"Caption", nullptr};
  EXPECT_EQ(enumerate("VEXOR_ContainedDomain", list).returned.instances[0],
            "VEXOR_ContainedDomain {GroupComponent=[" + std::string(kFabric) +
                "], PartComponent=[" + kVsan1 + "]}");
}

// ---- what these classes do not do ----

TEST_F(Instances, VsansCannotBeCreatedModifiedOrDeletedYet) {
  const auto* path = vsan_path("2001000DEC0A1B2D");
  const auto* values = broker_.instance("VEXOR_Vsan");
  const Answer created = ask([&](const CMPIResult* result) {
    return instances_->ft->createInstance(instances_, nullptr, result, path, values);
  });
  EXPECT_EQ(created.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(created.message, "instances of VEXOR_Vsan cannot be created");
  const Answer modified = ask([&](const CMPIResult* result) {
    return instances_->ft->modifyInstance(instances_, nullptr, result, path, values, nullptr);
  });
  EXPECT_EQ(modified.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(modified.message, "instances of VEXOR_Vsan cannot be modified");
  const Answer deleted = ask([&](const CMPIResult* result) {
    return instances_->ft->deleteInstance(instances_, nullptr, result, path);
  });
  EXPECT_EQ(deleted.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(deleted.message, "instances of VEXOR_Vsan cannot be deleted");
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(Instances, QueriesAreNotSupported) {
  const Answer answer = ask([&](const CMPIResult* result) {
    return instances_->ft->execQuery(instances_, nullptr, result, broker_.path("VEXOR_Vsan"),
                                     "select * from VEXOR_Vsan", "WQL");
  });
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(answer.message, "queries are not supported");
}

TEST_F(Instances, AnUnknownMethodIsRefusedByName) {
  const Answer answer = ask([&](const CMPIResult* result) {
    return methods_->ft->invokeMethod(methods_, nullptr, result, vsan_path("2001000DEC0A1B2D"),
                                      "Suspend", broker_.arguments(), broker_.arguments());
  });
  EXPECT_EQ(answer.code, CMPI_RC_ERR_METHOD_NOT_FOUND);
  EXPECT_EQ(answer.message, "VEXOR_Vsan has no method \"Suspend\"");
}

}  // namespace
