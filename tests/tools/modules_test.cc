// The table of `modules`: the chassis and what is in its slots.
#include "tests/tools/program.h"

namespace program {
namespace {

class Modules : public ProgramTest {
 protected:
  /// What is printed of one switch with this chassis and these modules.
  std::string table_of(const std::string& chassis, const std::string& modules,
                       const std::string& version = "3.1(2a)") const {
    const std::string fabric =
        R"json({"version": 1, "local_switch": "core-1", "vsans": [], "switches": [
             {"name": "core-1", "wwn": "20:00:00:0d:ec:0a:1b:2c", "software_version": ")json" +
        version + "\"" + chassis + R"(, "modules": [)" + modules + "]}]}";
    const Outcome outcome = run({"--fabric", folder_.write("f.json", fabric).string(), "modules"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    return outcome.out;
  }

  TemporaryFolder folder_;
};

TEST_F(Modules, Every_module_stands_in_a_line_below_the_chassis) {
  expect_screen("modules.txt", {"modules"});
}

TEST_F(Modules, Help_tells_what_the_columns_mean) {
  expect_screen("help_modules.txt", {"modules", "--help"});
}

TEST_F(Modules, A_chassis_without_numbers_leaves_them_out) {
  EXPECT_EQ(table_of("", R"({"slot": 3, "kind": "supervisor"})"),
            "chassis QRX4400, version 3.1(2a)\n"
            "\n"
            "slot  module    status  ports\n"
            "3     Module 3  OK      --\n");
}

TEST_F(Modules, Ports_are_counted_by_their_kind) {
  EXPECT_EQ(table_of(R"(, "chassis": {"model": "QRX4500", "serial_number": "VX1", "slots": 4})",
                     R"({"slot": 1, "kind": "fibre-channel", "ports": 3, "state": "powered-down"},
                        {"slot": 2, "kind": "ip-storage", "ports": 2, "state": "starting"},
                        {"slot": 4, "kind": "services", "state": "failed"})"),
            "chassis QRX4500, serial number VX1, version 3.1(2a)\n"
            "\n"
            "slot  module    status    ports\n"
            "1     Module 1  DISABLED  3 FC\n"
            "2     Module 2  BOOT      2 Ethernet\n"
            "4     Module 4  FAILED    --\n");
}

TEST_F(Modules, Control_characters_do_not_reach_the_terminal) {
  EXPECT_EQ(table_of("", "", R"(3.1\u001b[31m)"),
            "chassis QRX4400, version 3.1\\x001B[31m\n"
            "\n"
            "slot  module  status  ports\n");
}

TEST_F(Modules, A_switch_without_modules_prints_the_heading) {
  EXPECT_EQ(table_of("", ""),
            "chassis QRX4400, version 3.1(2a)\n"
            "\n"
            "slot  module  status  ports\n");
}

TEST_F(Modules, Words_behind_the_command_and_other_namespaces_are_refused) {
  expect_error(2, "the argument 1 is one too many; vexor-cim --help tells what there is",
               {"modules", "1"});
  expect_error(1, "root/other: no such namespace (there is root/cimv2)",
               {"--namespace", "root/other", "modules"});
}

}  // namespace
}  // namespace program
