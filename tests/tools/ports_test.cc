// Ports on the command line: the table of `ports`, a screen for each class, and their changes.
#include <regex>

#include "tests/tools/program.h"

namespace program {
namespace {

using Ports = ProgramTest;

const std::string kFc9 =
    "VEXOR_FCPort.DeviceID=\"16842761\",SystemName=\"2000000DEC0A1B2C\","
    "SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\"";
const std::string kSettings9 = "VEXOR_FCPortSettings.InstanceID=\"16842761\"";

/// The management port has the address of an interface of this machine, where it has one.
std::string without_management_address(const std::string& text) {
  return std::regex_replace(text, std::regex("\n(mgmt0 .* 1G +)[0-9a-f]{12}"), "\n$1--");
}

std::string table(std::vector<std::string> arguments) {
  const Outcome outcome = run(std::move(arguments));
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  return without_management_address(outcome.out);
}

/// The line of an interface; empty when there is none.
std::string line_of(const std::string& text, const std::string& interface) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(interface + " ")) return line;
  return {};
}

// --- ports ---------------------------------------------------------------------------------------

TEST_F(Ports, Every_port_stands_in_a_line_with_what_is_plugged_in) {
  EXPECT_EQ(table({"ports"}), screen("ports.txt"));
}

TEST_F(Ports, Help_tells_what_the_columns_mean) {
  expect_screen("help_ports.txt", {"ports", "--help"});
}

TEST_F(Ports, A_device_without_a_description_of_its_port_goes_by_its_WWN) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  const std::string fc1 =
      "VEXOR_FCPort.DeviceID=\"16842753\",SystemName=\"2000000DEC0A1B2C\","
      "SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\"";
  ASSERT_EQ(run({"--state", state, "modify", fc1, "ElementName="}).status, 0);
  EXPECT_EQ(line_of(table({"--state", state, "ports"}), "fc1/1"),
            "fc1/1               1     F     up         2G     2041000DEC0A1B2C  2100001122334401");
}

TEST_F(Ports, A_disabled_port_shows_that_and_has_no_peer) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  const std::string fc1 =
      "VEXOR_FCPort.DeviceID=\"16842753\",SystemName=\"2000000DEC0A1B2C\","
      "SystemCreationClassName=\"VEXOR_PhysicalComputerSystem\"";
  ASSERT_EQ(run({"--state", state, "invoke", fc1, "RequestStateChange", "RequestedState=3"}).status,
            0);
  EXPECT_EQ(line_of(table({"--state", state, "ports"}), "fc1/1"),
            "fc1/1               1     --    disabled   --     2041000DEC0A1B2C");
}

TEST_F(Ports, A_switch_without_ports_prints_the_heading) {
  EXPECT_EQ(table({"--generate", "switches=2,ports=0", "ports"}),
            "interface  vsan  mode  state  speed  port WWN  peer\n");
}

TEST_F(Ports, Words_behind_the_command_and_other_namespaces_are_refused) {
  const Outcome extra = run({"ports", "fc1/1"});
  EXPECT_EQ(extra.status, 2);
  EXPECT_NE(extra.err.find("fc1/1"), std::string::npos) << extra.err;
  const Outcome other = run({"--namespace", "root/other", "ports"});
  EXPECT_EQ(other.status, 1);
  EXPECT_EQ(other.out, "");
  EXPECT_NE(other.err.find("root/other"), std::string::npos) << other.err;
}

// --- classes -------------------------------------------------------------------------------------

TEST_F(Ports, Fibre_channel_ports_in_every_form) {
  expect_screen("enumerate_fc_port.txt", {"enumerate", "VEXOR_FCPort", "--properties",
                                          "DeviceID,ElementName,VsanId,PortType,PeerPortWWN"});
}

TEST_F(Ports, Ethernet_ports) {
  expect_screen("enumerate_ethernet_port.txt",
                {"enumerate", "VEXOR_EthernetPort", "--properties",
                 "DeviceID,ElementName,VsanId,NetworkAddresses,PortNumber"});
}

TEST_F(Ports, Statistics_and_their_association) {
  expect_screen("enumerate_fc_port_statistics.txt",
                {"enumerate", "VEXOR_FCPortStatistics", "--properties", "InstanceID,ElementName"});
  expect_screen(
      "references_fc_port_statistics.mof",
      {"references", "VEXOR_FCPortStatistics.InstanceID=\"16842753\"", "--format", "mof"});
}

TEST_F(Ports, Capabilities_and_settings) {
  expect_screen("get_fc_port_capabilities.txt",
                {"get", "VEXOR_FCPortCapabilities.InstanceID=\"16842753\""});
  expect_screen("get_fc_port_settings.txt",
                {"get", "VEXOR_FCPortSettings.InstanceID=\"16842753\""});
}

TEST_F(Ports, Endpoints_and_groups) {
  expect_screen("enumerate_protocol_end_point.txt",
                {"enumerate", "VEXOR_ProtocolEndPoint", "--properties", "Name,SystemName"});
  expect_screen("enumerate_logical_port_group.txt", {"enumerate", "VEXOR_LogicalPortGroup"});
}

// --- changes -------------------------------------------------------------------------------------

TEST_F(Ports, A_modified_port_is_there_in_the_next_run) {
  const TemporaryFolder folder;
  const std::string state = (folder.path() / "state.json").string();
  EXPECT_EQ(table({"--state", state, "modify", kSettings9, "RequestedSpeed=1062500000",
                   "AutoSenseSpeed=false", "RequestedType=5"}),
            "modified VEXOR_FCPortSettings.InstanceID=16842761\n");
  EXPECT_EQ(table({"--state", state, "get", kSettings9}),
            "root/cimv2:VEXOR_FCPortSettings.InstanceID=\"16842761\"\n"
            "InstanceID      16842761\n"
            "ElementName     FC Port Settings\n"
            "AutoSenseSpeed  false\n"
            "RequestedSpeed  1062500000\n"
            "RequestedType   5\n");
}

TEST_F(Ports, What_a_port_cannot_be_set_to_is_refused) {
  expect_error(1, "VEXOR_FCPortSettings: RequestedSpeed is 5, not 0, 1062500000 or 2125000000",
               {"modify", kSettings9, "RequestedSpeed=5"});
  expect_error(1, "\"VsanId\" of a VEXOR_FCPort cannot be changed", {"modify", kFc9, "VsanId=2"});
}

TEST_F(Ports, A_state_that_a_port_does_not_have_ends_with_1) {
  const Outcome outcome = run({"invoke", kFc9, "RequestStateChange", "RequestedState=4"});
  EXPECT_EQ(outcome.out, "RequestStateChange returned 5\n");
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace program
