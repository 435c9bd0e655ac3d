// Walking associations from either end.
#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;

std::string contained(const char* vsan) {
  return "root/cimv2:VEXOR_ContainedDomain.GroupComponent=[" + std::string(kFabric) +
         "],PartComponent=[" + vsan + "]";
}

std::string contained_instance(const char* vsan) {
  return "VEXOR_ContainedDomain {GroupComponent=[" + std::string(kFabric) + "], PartComponent=[" +
         vsan + "]}";
}

class ProviderAssociations : public ProviderFixture {
 protected:
  ProviderAssociations() {
    broker_.derives("VEXOR_Vsan", "CIM_AdminDomain");
    broker_.derives("VEXOR_AdminDomain", "CIM_AdminDomain");
    broker_.derives("VEXOR_ContainedDomain", "CIM_ContainedDomain");
  }
};

TEST_F(ProviderAssociations, TheFabricLeadsToItsVsans) {
  const Outcome names = associator_names(fabric_path(), {});
  EXPECT_EQ(names.code, CMPI_RC_OK) << names.message;
  EXPECT_EQ(names.returned.paths, (Texts{kVsan1, kVsan2}));
  EXPECT_EQ(associators(fabric_path(), {}).returned.instances,
            (Texts{kVsan1Instance, kVsan2Instance}));
  EXPECT_EQ(reference_names(fabric_path(), {}).returned.paths,
            (Texts{contained(kVsan1), contained(kVsan2)}));
  EXPECT_EQ(references(fabric_path(), {}).returned.instances,
            (Texts{contained_instance(kVsan1), contained_instance(kVsan2)}));
}

TEST_F(ProviderAssociations, AVsanLeadsToItsFabric) {
  auto* vsan = vsan_path("2002000DEC0A1B2D");
  const Filter up{.association = "VEXOR_ContainedDomain"};
  const Filter containment{.result_class = "VEXOR_ContainedDomain"};
  EXPECT_EQ(associator_names(vsan, up).returned.paths, (Texts{kFabric}));
  EXPECT_EQ(associators(vsan, up).returned.instances, (Texts{kFabricInstance}));
  EXPECT_EQ(reference_names(vsan, containment).returned.paths, (Texts{contained(kVsan2)}));
  EXPECT_EQ(references(vsan, containment).returned.instances, (Texts{contained_instance(kVsan2)}));
}

TEST_F(ProviderAssociations, TheFabricIsComparedOnceForAllItsVsans) {
  associators(fabric_path(), {});
  EXPECT_EQ(switch_.calls(kCountOpcode), 1u);
  EXPECT_EQ(switch_.calls(kVsanOpcode), 2u);
  EXPECT_EQ(switch_.calls(kDomainOpcode), 2u + 1u);
}

TEST_F(ProviderAssociations, AVsansFabricIsFoundWithoutReadingTheOtherVsans) {
  associator_names(vsan_path("2002000DEC0A1B2D"), {.association = "VEXOR_ContainedDomain"});
  EXPECT_EQ(switch_.calls(kCountOpcode), 0u);
  EXPECT_EQ(switch_.calls(kVsanOpcode), 1u);
  EXPECT_EQ(switch_.calls(kDomainOpcode), 1u + 1u);
}

TEST_F(ProviderAssociations, RolesPickTheEnds) {
  EXPECT_EQ(associator_names(fabric_path(), {.role = "groupcomponent"}).returned.paths.size(), 2u);
  EXPECT_EQ(associator_names(fabric_path(), {.role = "PartComponent"}).returned.paths.size(), 0u);
  EXPECT_EQ(associator_names(fabric_path(), {.result_role = "PARTCOMPONENT"}).returned.paths.size(),
            2u);
  EXPECT_EQ(
      associator_names(fabric_path(), {.result_role = "GroupComponent"}).returned.paths.size(), 0u);
  EXPECT_EQ(associators(fabric_path(), {.role = "NoRole"}).returned.instances.size(), 0u);
  EXPECT_EQ(references(fabric_path(), {.role = "GroupComponent"}).returned.instances.size(), 2u);
  EXPECT_EQ(reference_names(fabric_path(), {.role = "PartComponent"}).returned.paths.size(), 0u);
}

TEST_F(ProviderAssociations, ClassesOfAssociationAndResultIncludeTheirSubclasses) {
  for (const char* association : {"vexor_containeddomain", "CIM_ContainedDomain", ""})
    EXPECT_EQ(associator_names(fabric_path(), {.association = association}).returned.paths.size(),
              2u)
        << association;
  EXPECT_EQ(associator_names(fabric_path(), {.association = "CIM_Component"}).returned.paths.size(),
            0u);
  for (const char* result : {"vexor_vsan", "CIM_AdminDomain"}) {
    EXPECT_EQ(associator_names(fabric_path(), {.result_class = result}).returned.paths.size(), 2u)
        << result;
    EXPECT_EQ(associators(fabric_path(), {.result_class = result}).returned.instances.size(), 2u)
        << result;
  }
  EXPECT_EQ(
      associators(fabric_path(), {.result_class = "VEXOR_AdminDomain"}).returned.instances.size(),
      0u);
  EXPECT_EQ(
      references(fabric_path(), {.result_class = "CIM_ContainedDomain"}).returned.instances.size(),
      2u);
  EXPECT_EQ(reference_names(fabric_path(), {.result_class = "CIM_Component"}).returned.paths.size(),
            0u);
}

TEST_F(ProviderAssociations, AnObjectThatDoesNotExistHasNone) {
  EXPECT_EQ(associator_names(fabric_path("PHYSICAL_FABRIC"), {}).returned.paths.size(), 0u);
  EXPECT_EQ(references(vsan_path("2003000DEC0A1B2D"), {}).returned.instances.size(), 0u);
  EXPECT_EQ(associators(broker_.path("VEXOR_Vsan"), {}).returned.instances.size(), 0u);
}

TEST_F(ProviderAssociations, AnObjectOfAnotherClassCostsNoExchange) {
  const Outcome answer = associators(broker_.path("VEXOR_Zone", {{"InstanceID", "1"}}), {});
  EXPECT_EQ(answer.code, CMPI_RC_OK);
  EXPECT_EQ(answer.returned.instances.size(), 0u);
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(ProviderAssociations, PropertyListsActOnTheClassThatIsReturned) {
  const char* list[] = {"status", nullptr};
  EXPECT_EQ(
      associators(vsan_path("2001000DEC0A1B2D"), {.association = "VEXOR_ContainedDomain"}, list)
          .returned.instances,
      (Texts{"VEXOR_AdminDomain {Name=\"2001000DEC0A1B2D\", Status=\"Up\", "
             "CreationClassName=\"VEXOR_AdminDomain\"}"}));
  EXPECT_EQ(
      references(vsan_path("2001000DEC0A1B2D"), {.result_class = "VEXOR_ContainedDomain"}, list)
          .returned.instances,
      (Texts{contained_instance(kVsan1)}));
}

}  // namespace
