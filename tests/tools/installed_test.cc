// The program as it is installed, away from its build tree.
#include "tests/tools/program.h"

namespace program {
namespace {

class Installed : public ProgramTest {
 protected:
  Installed() {
    const Outcome outcome =
        run_file(CMAKE_PROGRAM, {"--install", CIM_BINARY_DIR, "--component", "vexor-cim",
                                 "--prefix", prefix_.path().string()});
    EXPECT_EQ(outcome.status, 0) << outcome.out << outcome.err;
    program_ = (prefix_.path() / "bin" / "vexor-cim").string();
  }

  TemporaryFolder prefix_;
  std::string program_;
};

TEST_F(Installed, Finds_its_definitions_and_providers_beside_itself) {
  const Outcome outcome = run_file(program_, {"enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(Installed, Does_not_look_into_the_build_tree) {
  fs::remove_all(prefix_.path() / "share");
  const Outcome classes = run_file(program_, {"classes"});
  EXPECT_EQ(classes.status, 2);
  EXPECT_EQ(classes.err,
            "vexor-cim: the class definitions are not where they belong: there is no " +
                (prefix_.path() / "share/vexor/mof/vexor.mof").string() +
                " (--mof or VEXOR_MOF says where they are)\n");
}

TEST_F(Installed, Misses_its_providers) {
  for (const auto& entry : fs::recursive_directory_iterator(prefix_.path() / "lib"))
    if (entry.path().filename() == "libvexor_providers.so") fs::rename(entry, prefix_.path() / "x");
  const Outcome outcome = run_file(program_, {"enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_TRUE(outcome.err.starts_with(
      "vexor-cim: the providers are not where they belong: there is no " + prefix_.path().string()))
      << outcome.err;
}

TEST_F(Installed, Is_told_where_the_providers_are) {
  setenv("VEXOR_PROVIDERS", VEXOR_PROVIDERS_LIBRARY, 1);
  const Outcome outcome = run_file(program_, {"enumerate", "VEXOR_Vsan"});
  EXPECT_EQ(outcome.out, screen("enumerate_vsan.txt"));
}

}  // namespace
}  // namespace program
