// Enumerating and getting instances through the provider objects.
#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using test_support::HeapLedger;

class ProviderInstances : public ProviderFixture {};

TEST_F(ProviderInstances, NamesOfVsansAreTheirWwns) {
  const Outcome answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1, kVsan2}));
}

TEST_F(ProviderInstances, InstancesOfVsansHoldEveryProperty) {
  const Outcome answer = enumerate("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan1Instance, kVsan2Instance}));
}

TEST_F(ProviderInstances, ClassNamesAreTakenInAnyCaseAndComeBackInTheirOwn) {
  EXPECT_EQ(names("vexor_VSAN").returned.paths, (Texts{kVsan1, kVsan2}));
}

TEST_F(ProviderInstances, ASuspendedVsanIsListedByItsNumber) {
  switch_.suspend(2);
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths,
            (Texts{kVsan1,
                   "root/cimv2:VEXOR_Vsan.Name=\"0000000000000000:2\","
                   "CreationClassName=\"VEXOR_Vsan\""}));
}

TEST_F(ProviderInstances, AVsanWhoseDomainManagerRefusesIsStillListed) {
  switch_.domain_manager_refuses(2);
  const Outcome answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK);
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1,
                                          "root/cimv2:VEXOR_Vsan.Name=\"error during get vsan id\","
                                          "CreationClassName=\"VEXOR_Vsan\""}));
}

TEST_F(ProviderInstances, TheFabricIsOneObject) {
  EXPECT_EQ(names("VEXOR_AdminDomain").returned.paths, (Texts{kFabric}));
  EXPECT_EQ(enumerate("VEXOR_AdminDomain").returned.instances, (Texts{kFabricInstance}));
}

TEST_F(ProviderInstances, EveryVsanIsContainedInTheFabric) {
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

TEST_F(ProviderInstances, ASuperclassGivesTheInstancesOfItsSubclasses) {
  broker_.derives("VEXOR_Vsan", "CIM_AdminDomain");
  broker_.derives("VEXOR_AdminDomain", "CIM_AdminDomain");
  EXPECT_EQ(names("CIM_AdminDomain").returned.paths, (Texts{kFabric, kVsan1, kVsan2}));
  EXPECT_EQ(enumerate("CIM_AdminDomain").returned.instances,
            (Texts{kFabricInstance, kVsan1Instance, kVsan2Instance}));
}

TEST_F(ProviderInstances, AnUnknownClassIsRefusedByName) {
  const Outcome answer = names("VEXOR_Nothing");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(answer.message, "\"VEXOR_Nothing\" is not a class of this provider");
  EXPECT_EQ(enumerate("VEXOR_Nothing").code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(get(broker_.path("VEXOR_Nothing")).code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(ProviderInstances, ABrokerThatCannotTellSubclassesStillFindsClassesByName) {
  broker_.leave_out_optional_slots();
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths.size(), 2u);
  EXPECT_EQ(names("CIM_AdminDomain").code, CMPI_RC_ERR_NOT_SUPPORTED);
}

// ---- getInstance ----

TEST_F(ProviderInstances, GetGivesTheVsanThatItsWwnNames) {
  const Outcome answer = get(vsan_path("2002000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan2Instance}));
}

TEST_F(ProviderInstances, GetOfAVsanAsksForThatVsanOnly) {
  get(vsan_path("2002000DEC0A1B2D"));
  EXPECT_EQ(switch_.calls(kVsanOpcode), 1u);
  EXPECT_EQ(switch_.calls(kDomainOpcode), 1u);
  EXPECT_EQ(switch_.calls(), 2u);
}

TEST_F(ProviderInstances, GetGivesASuspendedVsanByItsNumber) {
  switch_.suspend(2);
  const Outcome answer = get(vsan_path("0000000000000000:2"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"0000000000000000:2\", NameFormat=\"WWN\", "
                   "ElementName=\"VSAN0002\", VsanId=uint16 2, Status=\"Down\", "
                   "CreationClassName=\"VEXOR_Vsan\", "
                   "LoadBalancingType=\"src-id/dst-id/ox-id\"}"}));
  EXPECT_EQ(switch_.calls(), 2u);
}

TEST_F(ProviderInstances, GetGivesAVsanWhoseWwnDoesNotHoldItsNumber) {
  switch_.alternate_wwn(2, "10 00 00 0d ec 0a 1b 2d");
  EXPECT_EQ(names("VEXOR_Vsan").returned.paths[1],
            "root/cimv2:VEXOR_Vsan.Name=\"1000000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"");
  const Outcome answer = get(vsan_path("1000000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  ASSERT_EQ(answer.returned.instances.size(), 1u);
  EXPECT_NE(answer.returned.instances[0].find("VsanId=uint16 2"), std::string::npos);
}

TEST_F(ProviderInstances, EveryListedNameCanBeGot) {
  switch_.suspend(1);
  for (const char* name : {"0000000000000000:1", "2002000DEC0A1B2D"})
    EXPECT_EQ(get(vsan_path(name)).code, CMPI_RC_OK) << name;
}

TEST_F(ProviderInstances, NamesAreComparedExactly) {
  switch_.suspend(2);
  for (const char* name :
       {"2003000DEC0A1B2D", "2001000DEC0A1B2E", "2001000dec0a1b2d", "2001000DEC0A1B2D ", "",
        "0000000000000000:1", "0000000000000000:02", "0000000000000000:", "000000000000000:2",
        "0000000000000000:23456", "2002000DEC0A1B2D", ":", "error during get vsan id",
        "a name much longer than any buffer that the library keeps for a name, of which there are "
        "several, and the longest of them takes one hundred and twenty-seven characters: 2"}) {
    const Outcome answer = get(vsan_path(name));
    EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND) << name;
    EXPECT_EQ(answer.message, "there is no such VEXOR_Vsan") << name;
    EXPECT_TRUE(answer.returned.instances.empty()) << name;
  }
}

TEST_F(ProviderInstances, TheCreationClassNameHasToBeTheClass) {
  const auto* path = broker_.path(
      "VEXOR_Vsan", {{"Name", "2001000DEC0A1B2D"}, {"CreationClassName", "VEXOR_AdminDomain"}});
  EXPECT_EQ(get(path).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderInstances, NamesOfKeysAndClassesAreTakenInAnyCaseAndOrder) {
  const Outcome answer = get(broker_.path(
      "vexor_vsan", {{"CREATIONCLASSNAME", "VEXOR_Vsan"}, {"name", "2001000DEC0A1B2D"}}));
  EXPECT_EQ(answer.returned.instances, (Texts{kVsan1Instance}));
}

TEST_F(ProviderInstances, AMissingKeyIsAskedForBeforeTheSwitchIs) {
  const Outcome answer = get(broker_.path("VEXOR_Vsan", {{"Name", "2001000DEC0A1B2D"}}));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "the object path of a VEXOR_Vsan lacks the key \"CreationClassName\"");
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(ProviderInstances, AnUnknownKeyIsRefusedByName) {
  auto* path = vsan_path("2001000DEC0A1B2D");
  const Outcome answer = get(broker_.add_reference(path, "Switch", fabric_path()));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "VEXOR_Vsan has no key \"Switch\"");
}

TEST_F(ProviderInstances, AReferenceWhereATextBelongsNamesNothing) {
  auto* path = broker_.path("VEXOR_Vsan", {{"CreationClassName", "VEXOR_Vsan"}});
  EXPECT_EQ(get(broker_.add_reference(path, "Name", fabric_path())).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderInstances, AKeyWithoutAValueIsRefusedByName) {
  auto* path = broker_.path("VEXOR_Vsan", {{"CreationClassName", "VEXOR_Vsan"}});
  path->ft->addKey(path, "Name", nullptr, CMPI_uint16);
  const Outcome answer = get(path);
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message, "key \"Name\" has no value");
}

// Some object managers give an empty text so.
TEST_F(ProviderInstances, ATextKeyWithoutAValueIsTheEmptyText) {
  auto* path = broker_.path("VEXOR_Vsan", {{"CreationClassName", "VEXOR_Vsan"}});
  path->ft->addKey(path, "Name", nullptr, CMPI_string);
  const Outcome answer = get(path);
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(answer.message, "there is no such VEXOR_Vsan");
}

TEST_F(ProviderInstances, GetOfTheFabric) {
  EXPECT_EQ(get(fabric_path()).returned.instances, (Texts{kFabricInstance}));
  EXPECT_EQ(get(fabric_path("2002000DEC0A1B2D")).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderInstances, AFabricWithoutItsDomainManagerGoesByAFixedName) {
  switch_.domain_manager_refuses(1);
  EXPECT_EQ(get(fabric_path("PHYSICAL_FABRIC")).code, CMPI_RC_OK);
  EXPECT_EQ(get(fabric_path()).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderInstances, GetOfAContainedDomainComparesBothEnds) {
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

TEST_F(ProviderInstances, AConnectivityCollectionGoesByTheNumberOfItsVsanAsItIsWritten) {
  const auto collection = [&](const char* id) {
    return broker_.path("VEXOR_ConnectivityCollection", {{"InstanceID", id}});
  };
  EXPECT_EQ(get(collection("2")).returned.instances,
            (Texts{"VEXOR_ConnectivityCollection {InstanceID=\"2\"}"}));
  for (const char* id : {"3", "02", " 2", "+2", "2x", "-2", "", "0", "4095", "4294967298", "VSAN"})
    EXPECT_EQ(get(collection(id)).code, CMPI_RC_ERR_NOT_FOUND) << id;
}

TEST_F(ProviderInstances, APropertyListIsHonouredInAnyCaseAndKeepsTheKeys) {
  const char* list[] = {"vsanid", "STATUS", "NoSuchProperty", nullptr};
  const Texts expected = {
      "VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", VsanId=uint16 1, Status=\"Up\", "
      "CreationClassName=\"VEXOR_Vsan\"}"};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances, expected);
  EXPECT_EQ(enumerate("VEXOR_Vsan", list).returned.instances[0], expected[0]);
}

TEST_F(ProviderInstances, APropertyListIsHonouredWhereTheBrokerIgnoresFilters) {
  broker_.ignore_property_filters();
  const char* list[] = {"elementname", nullptr};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", ElementName=\"VSAN0001\", "
                   "CreationClassName=\"VEXOR_Vsan\"}"}));
}

TEST_F(ProviderInstances, APropertyListIsHonouredWhereTheBrokerHasNoFilters) {
  broker_.leave_out_optional_slots();
  const char* list[] = {"elementname", nullptr};
  EXPECT_EQ(get(fabric_path(), list).returned.instances,
            (Texts{"VEXOR_AdminDomain {Name=\"2001000DEC0A1B2D\", ElementName=\"VSAN0001\", "
                   "CreationClassName=\"VEXOR_AdminDomain\"}"}));
}

TEST_F(ProviderInstances, AnEmptyPropertyListAsksForTheKeysOnly) {
  const char* list[] = {nullptr};
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D"), list).returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", CreationClassName=\"VEXOR_Vsan\"}"}));
}

TEST_F(ProviderInstances, TheKeysOfAnAssociationAreItsEnds) {
  const char* list[] = {"Caption", nullptr};
  EXPECT_EQ(enumerate("VEXOR_ContainedDomain", list).returned.instances[0],
            "VEXOR_ContainedDomain {GroupComponent=[" + std::string(kFabric) +
                "], PartComponent=[" + kVsan1 + "]}");
}

// ---- what these classes do not do ----

TEST_F(ProviderInstances, VsansCannotBeCreatedModifiedOrDeletedYet) {
  const auto* path = vsan_path("2001000DEC0A1B2D");
  const auto* values = broker_.instance("VEXOR_Vsan");
  const Outcome created = ask([&](const CMPIResult* result) {
    return instances_->ft->createInstance(instances_, nullptr, result, path, values);
  });
  EXPECT_EQ(created.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(created.message, "instances of VEXOR_Vsan cannot be created");
  const Outcome modified = ask([&](const CMPIResult* result) {
    return instances_->ft->modifyInstance(instances_, nullptr, result, path, values, nullptr);
  });
  EXPECT_EQ(modified.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(modified.message, "instances of VEXOR_Vsan cannot be modified");
  const Outcome deleted = ask([&](const CMPIResult* result) {
    return instances_->ft->deleteInstance(instances_, nullptr, result, path);
  });
  EXPECT_EQ(deleted.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(deleted.message, "instances of VEXOR_Vsan cannot be deleted");
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(ProviderInstances, QueriesAreNotSupported) {
  const Outcome answer = ask([&](const CMPIResult* result) {
    return instances_->ft->execQuery(instances_, nullptr, result, broker_.path("VEXOR_Vsan"),
                                     "select * from VEXOR_Vsan", "WQL");
  });
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(answer.message, "queries are not supported");
}

TEST_F(ProviderInstances, AnUnknownMethodIsRefusedByName) {
  const Outcome answer = ask([&](const CMPIResult* result) {
    return methods_->ft->invokeMethod(methods_, nullptr, result, vsan_path("2001000DEC0A1B2D"),
                                      "Suspend", broker_.arguments(), broker_.arguments());
  });
  EXPECT_EQ(answer.code, CMPI_RC_ERR_METHOD_NOT_FOUND);
  EXPECT_EQ(answer.message, "VEXOR_Vsan has no method \"Suspend\"");
}

}  // namespace
