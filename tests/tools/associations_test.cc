// Walking associations, on the default fabric.
#include "tests/tools/program.h"

namespace program {
namespace {

using Associations = ProgramTest;

const std::string kFabric = "VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"";
const std::string kVsan2 = "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"";

TEST_F(Associations, Associators_of_the_fabric_are_its_VSANs) {
  expect_screen("associators_fabric.txt", {"associators", kFabric});
  expect_screen("associators_fabric_properties.json",
                {"associators", kFabric, "--properties", "vsanid", "--format", "json"});
  expect_screen("enumerate_vsan.mof", {"associators", kFabric, "--format", "mof"});
}

TEST_F(Associations, Filters_choose_among_the_associators) {
  expect_screen("associators_fabric.txt",
                {"associators", kFabric, "--assoc-class", "CIM_ContainedDomain", "--result-class",
                 "CIM_AdminDomain", "--role", "groupcomponent", "--result-role", "PartComponent"});
}

TEST_F(Associations, Nothing_found_is_said_and_no_failure) {
  const std::string nothing =
      "Nothing is associated with VEXOR_AdminDomain.Name=2001000DEC0A1B2D\n";
  for (const std::vector<std::string>& filter :
       std::vector<std::vector<std::string>>{{"--role", "PartComponent"},
                                             {"--result-role", "GroupComponent"},
                                             {"--result-class", "VEXOR_AdminDomain"}}) {
    const Outcome outcome = run({"associators", kFabric, filter[0], filter[1]});
    EXPECT_EQ(outcome.out, nothing) << filter[0];
    EXPECT_EQ(outcome.status, 0);
  }
  EXPECT_EQ(run({"references", kFabric, "--role", "PartComponent"}).out,
            "No association leads to VEXOR_AdminDomain.Name=2001000DEC0A1B2D\n");
  EXPECT_EQ(run({"associators", kFabric, "--role", "PartComponent", "--format", "json"}).out,
            "[]\n");
  EXPECT_EQ(run({"associator-names", kFabric, "--role", "PartComponent"}).out, "");
}

TEST_F(Associations, Associator_names_are_paths_that_get_takes) {
  expect_screen("associator_names_fabric.txt", {"associator-names", kFabric});
  expect_screen("associator_names_fabric.json", {"associator-names", kFabric, "--format", "json"});
  const Outcome back = run({"associator-names", kVsan2, "--assoc-class", "VEXOR_ContainedDomain"});
  EXPECT_EQ(back.out, "root/cimv2:" + kFabric + ",CreationClassName=\"VEXOR_AdminDomain\"\n");
}

TEST_F(Associations, References_are_the_associations_themselves) {
  expect_screen("references_fabric.txt", {"references", kFabric});
  expect_screen("references_fabric.txt", {"references", kFabric, "--result-class",
                                          "VEXOR_ContainedDomain", "--role", "GroupComponent"});
  expect_screen("enumerate_contained_domain.mof", {"references", kFabric, "--format", "mof"});
  expect_screen("reference_names_fabric.txt", {"reference-names", kFabric});
}

TEST_F(Associations, Filters_that_nothing_can_pass_are_slips) {
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"associators", kFabric, "--result-class", "VEXOR_Vsna"});
  expect_error(1, "VEXOR_ContainedDomian: no such class (did you mean VEXOR_ContainedDomain?)",
               {"associators", kFabric, "--assoc-class", "VEXOR_ContainedDomian"});
  expect_error(2,
               "--role: no association has a reference PartComponen (did you mean PartComponent?)",
               {"references", kFabric, "--role", "PartComponen"});
  expect_error(2, "--result-role: no association has a reference Xyzzy",
               {"associator-names", kFabric, "--result-role", "Xyzzy"});
}

TEST_F(Associations, Classes_of_associations_are_associations) {
  expect_error(2, "--assoc-class: VEXOR_Vsan is no association",
               {"associators", kFabric, "--assoc-class", "VEXOR_Vsan"});
  expect_error(2, "--result-class: VEXOR_Vsan is no association",
               {"references", kFabric, "--result-class", "VEXOR_Vsan"});
  expect_error(2, "--result-class: VEXOR_Vsan is no association",
               {"reference-names", kFabric, "--result-class", "VEXOR_Vsan"});
  expect_error(1, "VEXOR_Vsna: no such class (did you mean VEXOR_Vsan?)",
               {"references", kFabric, "--result-class", "VEXOR_Vsna"});
}

TEST_F(Associations, An_object_that_is_not_there_is_an_error) {
  for (const char* command : {"associators", "associator-names", "references", "reference-names"})
    expect_error(1, "there is no such VEXOR_AdminDomain",
                 {command, "VEXOR_AdminDomain.Name=\"2009000DEC0A1B2D\""});
}

TEST_F(Associations, Properties_are_those_of_what_is_shown) {
  expect_error(2, "no association has a property GroupComponen (did you mean GroupComponent?)",
               {"references", kFabric, "--properties", "GroupComponen"});
  expect_error(2, "no class has a property VsanNumberX",
               {"associators", kFabric, "--properties", "VsanNumberX"});
  expect_error(2, "VEXOR_Vsan: no property VsanNo (did you mean VsanId?)",
               {"associators", kFabric, "--result-class", "VEXOR_Vsan", "--properties", "VsanNo"});
}

TEST_F(Associations, Paths_have_no_MOF_form) {
  expect_error(2, "paths have no MOF form; vexor-cim --help tells what there is",
               {"associator-names", kFabric, "--format", "mof"});
  expect_error(2, "paths have no MOF form; vexor-cim --help tells what there is",
               {"reference-names", kFabric, "--format", "mof"});
}

TEST_F(Associations, A_path_that_is_none_is_refused) {
  for (const char* command : {"associators", "associator-names", "references", "reference-names"}) {
    expect_error(2, "VEXOR_Vsan.Name: column 16: expected '=' after key Name",
                 {command, "VEXOR_Vsan.Name"});
    expect_error(1, "VEXOR_Vsan: key Name is missing", {command, "VEXOR_Vsan"});
  }
}

}  // namespace
}  // namespace program
