// Whole screens of vexor-cim on the default fabric.
#include "tests/tools/program.h"

#include "schema/repository.h"

namespace program {
namespace {

using Screens = ProgramTest;

TEST_F(Screens, Enumerate_prints_a_table) {
  expect_screen("enumerate_vsan.txt", {"enumerate", "VEXOR_Vsan"});
  expect_screen("enumerate_vsan.txt", {"enumerate", "VEXOR_Vsan", "--format", "table"});
}

TEST_F(Screens, Names_of_classes_and_namespaces_are_taken_in_any_letter_case) {
  expect_screen("enumerate_vsan.txt", {"enumerate", "vexor_VSAN"});
  expect_screen("enumerate_vsan_properties.txt",
                {"enumerate", "vexor_vsan", "--properties", "STATUS,vsanid,caption"});
}

TEST_F(Screens, Enumerate_shows_the_asked_properties_in_the_asked_order) {
  expect_screen("enumerate_vsan_properties.txt",
                {"enumerate", "VEXOR_Vsan", "--properties", "Status,VsanId,Caption"});
  expect_screen("enumerate_vsan_properties.json",
                {"enumerate", "VEXOR_Vsan", "--properties", "VsanId,Caption", "--format", "json"});
}

TEST_F(Screens, Enumerate_prints_MOF) {
  expect_screen("enumerate_vsan.mof", {"enumerate", "VEXOR_Vsan", "--format", "mof"});
  expect_screen("enumerate_contained_domain.mof",
                {"enumerate", "VEXOR_ContainedDomain", "--format", "mof"});
}

TEST_F(Screens, Printed_MOF_is_read_back_into_the_repository) {
  for (const char* cls : {"VEXOR_Vsan", "VEXOR_AdminDomain", "VEXOR_ContainedDomain"}) {
    cim::schema::Repository repository;
    ASSERT_TRUE(repository.add_file(CIM_SOURCE_DIR "/mof/vexor.mof").empty());
    const Outcome outcome = run({"enumerate", cls, "--format", "mof"});
    const cim::schema::Document document = cim::schema::read_mof_text(outcome.out, "screen");
    ASSERT_EQ(document.error_text(), "") << cls;
    for (const cim::schema::Diagnostic& error : repository.add(document))
      ADD_FAILURE() << cls << ": " << error.text();
    EXPECT_FALSE(repository.instances().empty()) << cls;
  }
}

TEST_F(Screens, Enumerate_prints_JSON) {
  expect_screen("enumerate_vsan.json", {"enumerate", "VEXOR_Vsan", "--format", "json"});
}

TEST_F(Screens, Enumerate_names_prints_paths) {
  expect_screen("enumerate_vsan_names.txt", {"enumerate", "VEXOR_Vsan", "--names"});
  expect_screen("enumerate_vsan_names.json",
                {"enumerate", "VEXOR_Vsan", "--names", "--format", "json"});
}

TEST_F(Screens, References_in_tables_are_short) {
  expect_screen("enumerate_contained_domain.txt", {"enumerate", "VEXOR_ContainedDomain"});
}

TEST_F(Screens, Enumerate_of_a_superclass_prints_a_table_for_each_class) {
  expect_screen("enumerate_superclass.txt", {"enumerate", "CIM_AdminDomain"});
}

TEST_F(Screens, Get_prints_a_property_a_line) {
  expect_screen("get_vsan.txt", {"get",
                                 "root/cimv2:VEXOR_Vsan.Name=\"2002000DEC0A1B2D\","
                                 "CreationClassName=\"VEXOR_Vsan\""});
}

TEST_F(Screens, Get_does_without_namespace_and_creation_class_name) {
  expect_screen("get_vsan.txt", {"get", "vexor_vsan.NAME=\"2002000DEC0A1B2D\""});
}

TEST_F(Screens, Get_shows_the_asked_properties) {
  expect_screen("get_vsan_properties.txt", {"get", "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"",
                                            "--properties", "Status,Caption,VsanId"});
}

TEST_F(Screens, Get_prints_MOF_and_JSON) {
  expect_screen("get_vsan.mof", {"get", "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"", "--format", "mof"});
  expect_screen("get_vsan.json",
                {"get", "VEXOR_Vsan.Name=\"2002000DEC0A1B2D\"", "--format", "json"});
}

TEST_F(Screens, Get_takes_every_path_that_enumerate_names_prints) {
  for (const char* cls : {"VEXOR_Vsan", "VEXOR_AdminDomain", "VEXOR_ContainedDomain"}) {
    const Outcome names = run({"enumerate", cls, "--names"});
    std::istringstream lines(names.out);
    int count = 0;
    for (std::string path; std::getline(lines, path); ++count) {
      const Outcome outcome = run({"get", path});
      EXPECT_EQ(outcome.status, 0) << path << "\n" << outcome.err;
      EXPECT_TRUE(outcome.out.starts_with(path + "\n")) << outcome.out;
    }
    EXPECT_GT(count, 0) << cls;
  }
}

TEST_F(Screens, Classes_lists_the_classes_of_the_agent) {
  const Outcome outcome = run({"classes"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.out.starts_with("Class ")) << outcome.out;
  EXPECT_NE(outcome.out.find("\nVEXOR_Vsan "), std::string::npos) << outcome.out;
  EXPECT_EQ(outcome.out.find("\nCIM_"), std::string::npos) << outcome.out;
}

// --- Classes of a model of its own ---------------------------------------------------------------

constexpr const char* kModel = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
Qualifier Abstract : boolean = false, Scope(class, association, indication), Flavor(Restricted);
Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride, ToSubclass);

[Abstract]
class CIM_Thing {
  [Key] uint32 Id;
  string Name;
};

class VEXOR_Thing : CIM_Thing {
  uint16 Size = 5;
};

[Association]
class VEXOR_Link {
  [Key] CIM_Thing REF From;
  [Key] CIM_Thing REF To;
};

class Other_Thing : CIM_Thing {
};
)";

class OwnModel : public ProgramTest {
 protected:
  TemporaryFolder folder_;
  std::string mof_ = folder_.write("vexor.mof", kModel).string();
};

TEST_F(OwnModel, Class_prints_MOF_with_what_it_inherits_marked) {
  expect_screen("class_thing.mof", {"class", "vexor_thing", "--mof", mof_});
}

TEST_F(OwnModel, Classes_lists_the_classes_of_the_agent_with_their_kinds) {
  expect_screen("classes.txt", {"--mof", mof_, "classes"});
}

TEST_F(OwnModel, Classes_all_lists_every_class_with_its_kind) {
  expect_screen("classes_all.txt", {"--mof", mof_, "classes", "--all"});
}

TEST_F(OwnModel, A_folder_stands_for_the_file_vexor_mof_in_it) {
  expect_screen("classes_all.txt", {"--mof", folder_.path().string(), "classes", "--all"});
}

TEST_F(OwnModel, The_environment_names_the_definitions_and_the_command_line_is_stronger) {
  setenv("VEXOR_MOF", mof_.c_str(), 1);
  expect_screen("classes_all.txt", {"classes", "--all"});
  setenv("VEXOR_MOF", "/nonexistent", 1);
  expect_screen("classes_all.txt", {"classes", "--all", "--mof", mof_});
}

TEST_F(OwnModel, A_class_that_the_providers_do_not_know_is_an_error) {
  const Outcome outcome = run({"--mof", mof_, "enumerate", "VEXOR_Thing"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("vexor-cim: ")) << outcome.err;
  EXPECT_NE(outcome.err.find("VEXOR_Thing"), std::string::npos) << outcome.err;
}

// --- Help ----------------------------------------------------------------------------------------

TEST_F(Screens, Help_teaches_by_examples) {
  expect_screen("help.txt", {"--help"});
  expect_screen("help.txt", {"-h"});
  expect_screen("help_enumerate.txt", {"enumerate", "--help"});
  expect_screen("help_associators.txt", {"associators", "--help"});
  expect_screen("help_invoke.txt", {"invoke", "--help"});
  expect_screen("help_modify.txt", {"modify", "--help"});
  expect_screen("help_fabric.txt", {"fabric", "--help"});
  expect_screen("help_switch.txt", {"switch", "--help"});
}

TEST_F(Screens, Enumerate_of_a_superclass_shows_each_object_once) {
  const Outcome outcome = run({"enumerate", "VEXOR_ComputerSystem"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("VEXOR_PhysicalComputerSystem   3 instances in root/cimv2\n"),
            std::string::npos);
  EXPECT_NE(outcome.out.find("VEXOR_LogicalComputerSystem   6 instances in root/cimv2\n"),
            std::string::npos);
}

TEST_F(Screens, Version_is_one_line) {
  expect_screen("version.txt", {"--version"});
}

}  // namespace
}  // namespace program
