// The part of the fabric file about line cards, interfaces, links and devices.
#include "simulator/fabric/fabric_file.h"
#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

using switch_sim::Fabric;
using switch_sim::FabricError;
using switch_sim::parse_fabric;

// Two switches "a" and "b" with an FC module of 4 ports in slot 1 and an Ethernet module of 2 in
// slot 2; the interesting part of "a" stands in line 3, that of the fabric in line 6.
std::string file(const std::string& of_switch, const std::string& of_fabric) {
  return R"({"version": 1, "local_switch": "a", "switches": [
{"name": "a", "wwn": "20:00:00:00:00:00:00:01"
)" + of_switch +
         R"(},
{"name": "b", "wwn": "20:00:00:00:00:00:00:02", "modules": [
 {"slot": 1, "kind": "fibre-channel", "ports": 4}]}]
)" + of_fabric +
         "}";
}

std::string with_modules(const std::string& modules) {
  return file(", \"modules\": [" + modules + "]", "");
}

const std::string kModules =
    R"(, "modules": [{"slot": 1, "kind": "fibre-channel", "ports": 4}, )"
    R"({"slot": 2, "kind": "ip-storage", "ports": 2}, {"slot": 3, "kind": "supervisor"}])";

// Interfaces of "a", each of them in a line from 4 on.
std::string with_interfaces(const std::string& interfaces) {
  return file(kModules + ", \"interfaces\": [\n" + interfaces + "]", "");
}

std::string with_links(const std::string& links) {
  return file(kModules, ", \"links\": [\n" + links + "]");
}

std::string with_devices(const std::string& devices) {
  return file(kModules + R"(, "interfaces": [{"name": "iscsi2/1"}])",
              R"(, "links": [{"ends": [{"switch": "a", "interface": "fc1/4"},
 {"switch": "b", "interface": "fc1/4"}]}], "devices": [
)" + devices + "]");
}

std::string device(const std::string& number, const std::string& members) {
  return "{\"port_wwn\": \"21:00:00:00:00:00:00:" + number +
         "\", \"node_wwn\": \"20:00:00:00:00:00:00:" + number + "\",\n" + members + "}";
}

std::string error_of(const std::string& text) {
  const auto read = parse_fabric(text, "f");
  const auto* error = std::get_if<FabricError>(&read);
  return error != nullptr ? error->message : "no error";
}

Fabric fabric_of(const std::string& text) {
  auto read = parse_fabric(text, "f");
  if (const auto* error = std::get_if<FabricError>(&read)) {
    ADD_FAILURE() << error->message;
    return {};
  }
  return std::get<Fabric>(read);
}

TEST(PortFile, ThePortsOfAModuleAreThereWithoutBeingTold) {
  const Fabric fabric = fabric_of(with_interfaces(""));
  const auto& interfaces = fabric.switches.at(0).interfaces;
  ASSERT_EQ(6U, interfaces.size());
  EXPECT_EQ(0x01010001U, interfaces.front().if_index);
  EXPECT_EQ(0x02020002U, interfaces.back().if_index);
}

TEST(PortFile, WhatIsLeftOutHasItsUsualValue) {
  const Fabric fabric = fabric_of(with_interfaces(R"({"name": "fc1/1"}, {"name": "mgmt0"},
{"name": "fcip1", "ethernet": "gigabitethernet2/1"})"));
  const auto& port = fabric.switches.at(0).interfaces.at(0);
  EXPECT_EQ("", port.alias);
  EXPECT_EQ(switch_sim::AdminState::up, port.admin_state);
  EXPECT_EQ(1U, port.vsan);
  EXPECT_EQ(switch_sim::PortMode::automatic, port.mode);
  EXPECT_EQ(0U, port.speed);
  EXPECT_EQ(switch_sim::Optics::supported, port.optics);
  EXPECT_EQ(switch_sim::CounterProfile::idle, port.counters);
  const auto* management = find_interface(fabric.switches.at(0), 0x05000001);
  ASSERT_NE(nullptr, management);
  EXPECT_FALSE(management->cable);
  EXPECT_EQ(1500, +management->mtu);
  EXPECT_EQ(1U, fabric.counter_seed);
}

TEST(PortFile, EveryValueIsReadAndWritten) {
  const std::string interfaces =
      R"(        {"name": "fc1/1", "alias": "K\"1", "admin_state": "down", "vsan": 4094, "mode": "TL", "speed": 2000, "optics": "unsupported", "counters": "error-storm"},
        {"name": "fc1/2", "alias": "", "admin_state": "up", "vsan": 1, "mode": "Fx", "speed": 1000, "optics": "none", "counters": "steady"},
        {"name": "gigabitethernet2/1", "alias": "", "admin_state": "up", "cable": true, "mtu": 9216, "address": "192.0.2.1"},
        {"name": "port-channel 254", "alias": "pc", "admin_state": "down", "vsan": 2, "mode": "E", "members": ["fc1/3", "fc1/4"]},
        {"name": "ethernet-channel 1", "alias": "", "admin_state": "up", "mtu": 576, "address": "0.0.0.0", "members": []},
        {"name": "mgmt0", "alias": "", "admin_state": "up", "cable": false, "mtu": 1500, "address": "192.0.2.9"},
        {"name": "fcip2047", "admin_state": "up", "vsan": 3, "mode": "auto", "ethernet": "gigabitethernet2/2"},
        {"name": "iscsi2/1", "admin_state": "down", "vsan": 5}
      ]
)";
  const std::string devices =
      R"(  "devices": [
    {"name": "d", "port_wwn": "21:00:00:00:00:00:00:01", "node_wwn": "20:00:00:00:00:00:00:01", "kind": "NL", "switch": "20:00:00:00:00:00:00:01", "interface": "fc1/1", "fc_id": "ffe8", "fc4_types": [0, 255], "address": "192.0.2.3", "registered_twice": true}
  ],
  "counter_seed": 9223372036854775807
}
)";
  const Fabric fabric = fabric_of(file(kModules + ", \"interfaces\": [\n" + interfaces,
                                       ",\n" + devices.substr(0, devices.size() - 3)));
  const std::string written = switch_sim::write_fabric(fabric);
  EXPECT_NE(std::string::npos, written.find("\"interfaces\": [\n" + interfaces)) << written;
  EXPECT_NE(std::string::npos, written.find(",\n" + devices)) << written;
  EXPECT_EQ(fabric, fabric_of(written));
}

TEST(PortFile, TheOrderOfAFileDoesNotMatter) {
  const Fabric fabric = fabric_of(file(
      R"(, "interfaces": [{"name": "port-channel 1", "members": ["fc1/4", "fc1/3"]}, {"name": "fc1/2"}],
"modules": [{"slot": 2, "kind": "supervisor"}, {"ports": 4, "slot": 1, "kind": "fibre-channel"}])",
      R"(, "links": [{"trunk": [9, 3], "ends": [{"interface": "fc1/2", "switch": "b"},
{"switch": "a", "interface": "fc1/2"}]}])"));
  EXPECT_EQ(1U, fabric.switches.at(0).modules.at(0).slot);
  EXPECT_EQ((std::vector<uint32_t>{0x01010003, 0x01010004}),
            find_interface(fabric.switches.at(0), 0x04000001)->members);
  EXPECT_EQ("20:00:00:00:00:00:00:01", to_text(fabric.links.at(0).ends[0].switch_wwn));
  EXPECT_EQ((std::vector<uint32_t>{3, 9}), fabric.links.at(0).vsans);
}

struct WrongFile {
  std::string text;
  const char* error;
};

void PrintTo(const WrongFile& file, std::ostream* out) {
  *out << file.error;
}

class WrongPortFile : public testing::TestWithParam<WrongFile> {};

TEST_P(WrongPortFile, IsToldWithItsPosition) {
  EXPECT_EQ(GetParam().error, error_of(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Modules, WrongPortFile,
    testing::Values(
        WrongFile{with_modules("1"), "f:3:15: expected a module"},
        WrongFile{with_modules(R"({"slot": 32, "kind": "supervisor"})"),
                  "f:3:24: expected a whole number from 1 to 31"},
        WrongFile{with_modules(R"({"slot": 1})"), "f:3:15: a module lacks \"kind\""},
        WrongFile{
            with_modules(R"({"slot": 1, "kind": "fiber-channel"})"),
            "f:3:35: expected \"supervisor\", \"fibre-channel\", \"ip-storage\", \"crossbar\" or "
            "\"services\" (did you mean \"fibre-channel\"?)"},
        WrongFile{with_modules(R"({"slot": 1, "kind": "fibre-channel", "ports": 64})"),
                  "f:3:61: expected a whole number from 0 to 63"},
        WrongFile{with_modules(R"({"slot": 1, "kind": "fibre-channel"})"),
                  "f:3:15: a Fibre Channel module has 1 to 63 ports"},
        WrongFile{with_modules(R"({"slot": 1, "kind": "ip-storage", "ports": 17})"),
                  "f:3:58: an IP storage module has 1 to 16 ports"},
        WrongFile{with_modules(R"({"slot": 1, "kind": "supervisor", "ports": 1})"),
                  "f:3:58: a supervisor has no ports"},
        WrongFile{
            with_modules(R"({"slot": 1, "kind": "supervisor"}, {"slot": 1, "kind": "supervisor"})"),
            "f:3:59: another module is in this slot"},
        WrongFile{with_modules(R"({"slot": 1, "kind": "supervisor", "sate": "ok"})"),
                  "f:3:49: unknown key \"sate\" (did you mean \"state\"?)"}));

INSTANTIATE_TEST_SUITE_P(
    Interfaces, WrongPortFile,
    testing::Values(
        WrongFile{with_interfaces(R"({"alias": "x"})"), "f:4:1: an interface lacks \"name\""},
        WrongFile{with_interfaces(R"({"name": "fc1"})"),
                  "f:4:10: \"fc1\" is not the name of an interface"},
        WrongFile{with_interfaces(R"({"name": "vsan1"})"), "f:4:10: no interface of a fabric"},
        WrongFile{with_interfaces(R"({"name": "mgmt1"})"), "f:4:10: no interface of a fabric"},
        WrongFile{with_interfaces(R"({"name": "port-channel 255"})"),
                  "f:4:10: no interface of a fabric"},
        WrongFile{with_interfaces(R"({"name": "fc1/5"})"), "f:4:10: no module has this port"},
        WrongFile{with_interfaces(R"({"name": "fc2/1"})"), "f:4:10: no module has this port"},
        WrongFile{with_interfaces(R"({"name": "iscsi1/1"})"),
                  "f:4:10: there is no Ethernet port with this slot and number"},
        WrongFile{with_interfaces("{\"name\": \"fc1/1\"},\n{\"name\": \"fc1/1\"}"),
                  "f:5:10: the interface is there already"},
        WrongFile{with_interfaces(R"({"name": "mgmt0", "vsan": 1})"),
                  "f:4:19: unknown key \"vsan\""},
        WrongFile{with_interfaces(R"({"name": "fcip1", "alias": "x"})"),
                  "f:4:19: unknown key \"alias\""},
        WrongFile{with_interfaces(R"({"name": "fc1/1", "optic": "none"})"),
                  "f:4:19: unknown key \"optic\" (did you mean \"optics\"?)"},
        WrongFile{
            with_interfaces("{\"name\": \"fc1/1\", \"alias\": \"" + std::string(82, 'x') + "\"}"),
            "f:4:28: an alias has at most 81 bytes"},
        WrongFile{with_interfaces(R"({"name": "fc1/1", "alias": "a\nb"})"),
                  "f:4:28: an alias is UTF-8 of one line"},
        WrongFile{with_interfaces(R"({"name": "fc1/1", "vsan": 4095})"),
                  "f:4:27: expected a whole number from 1 to 4094"},
        WrongFile{with_interfaces(R"({"name": "fc1/1", "speed": 1500})"),
                  "f:4:28: a speed is 0, 1000 or 2000"},
        WrongFile{with_interfaces(R"({"name": "port-channel 1", "mode": "F"})"),
                  "f:4:36: the interface cannot have this mode"},
        WrongFile{with_interfaces(R"({"name": "gigabitethernet2/1", "mtu": 575})"),
                  "f:4:39: expected a whole number from 576 to 9216"},
        WrongFile{with_interfaces(R"({"name": "mgmt0", "address": "2001:db8::1"})"),
                  "f:4:30: expected an IPv4 address"},
        WrongFile{with_interfaces(R"({"name": "fcip1"})"),
                  "f:4:1: this interface lacks \"ethernet\""},
        WrongFile{with_interfaces(R"({"name": "fcip1", "ethernet": "fc1/1"})"),
                  "f:4:31: the switch has no such Ethernet port"},
        WrongFile{with_interfaces(R"({"name": "fcip1", "ethernet": "gigabitethernet2/3"})"),
                  "f:4:31: the switch has no such Ethernet port"},
        WrongFile{
            with_interfaces(R"({"name": "port-channel 1", "members": ["gigabitethernet2/1"]})"),
            "f:4:39: the switch has no such port for the channel"},
        WrongFile{with_interfaces(R"({"name": "port-channel 1", "members": ["fc1/1", "fc1/1"]})"),
                  "f:4:39: fc1/1 is a member already"},
        WrongFile{
            with_interfaces("{\"name\": \"port-channel 1\"},\n{\"name\": \"ethernet-channel 1\"}"),
            "f:5:10: another channel has this number"}));

INSTANTIATE_TEST_SUITE_P(
    Links, WrongPortFile,
    testing::Values(
        WrongFile{with_links("{}"), "f:7:1: a link lacks \"ends\""},
        WrongFile{with_links(R"({"ends": [{"switch": "a", "interface": "fc1/1"}]})"),
                  "f:7:10: a link has two ends"},
        WrongFile{with_links(R"({"ends": [{"switch": "a", "interface": "fc1/1"},
{"switch": "c", "interface": "fc1/1"}]})"),
                  "f:8:12: no switch \"c\" (did you mean \"a\"?)"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/5"}]})"),
            "f:7:10: the switch has no such interface"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "a", "interface": "fc1/2"}]})"),
            "f:7:10: the ends of a link lie on two switches"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "gigabitethernet2/1"}, {"switch": "b", "interface": "fc1/1"}]})"),
            "f:7:10: a link joins FC ports, port channels or FCIP interfaces"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/1"}]},
{"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/2"}]})"),
            "f:8:10: the interface has a link already"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/1"}], "trunk": []})"),
            "f:7:99: a trunk carries at least one VSAN"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/1"}], "trunk": "some"})"),
            "f:7:99: expected \"all\" or a list of VSAN numbers"},
        WrongFile{
            with_links(
                R"({"ends": [{"switch": "a", "interface": "fc1/1"}, {"switch": "b", "interface": "fc1/1"}], "trunk": [0]})"),
            "f:7:100: expected a whole number from 1 to 4094"}));

INSTANTIATE_TEST_SUITE_P(
    Devices, WrongPortFile,
    testing::Values(
        WrongFile{with_devices("{}"), "f:8:1: a device lacks \"port_wwn\""},
        WrongFile{
            with_devices(device("0g", R"("switch": "a", "interface": "fc1/1", "fc_id": "0000")")),
            "f:8:14: expected a WWN such as \"21:00:00:11:22:33:44:55\""},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/9", "fc_id": "0000")")),
            "f:9:29: the switch has no such interface"},
        WrongFile{
            with_devices(device(
                "01", R"("switch": "a", "interface": "gigabitethernet2/1", "fc_id": "0000")")),
            "f:9:29: a device is attached to an FC port or an iSCSI interface"},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/4", "fc_id": "0000")")),
            "f:9:29: the port has a link to a switch"},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/1", "fc_id": "00")")),
            "f:9:47: expected area and port as four hexadecimal digits"},
        WrongFile{
            with_devices(device(
                "01", R"("switch": "a", "interface": "iscsi2/1", "kind": "NL", "fc_id": "0000")")),
            "f:9:49: an iSCSI initiator is an N_Port"},
        WrongFile{
            with_devices(device(
                "01",
                R"("switch": "a", "interface": "fc1/1", "fc_id": "0000", "fc4_types": [256])")),
            "f:9:69: expected a whole number from 0 to 255"},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/1", "fc_id": "0000")") +
                         ",\n" +
                         device("01", R"("switch": "a", "interface": "fc1/2", "fc_id": "0001")")),
            "f:10:14: another device has this port WWN"},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/1", "fc_id": "0000")") +
                         ",\n" +
                         device("02", R"("switch": "a", "interface": "fc1/1", "fc_id": "0001")")),
            "f:11:29: another N_Port is attached to the port"},
        WrongFile{
            with_devices(
                device("01", R"("switch": "a", "interface": "fc1/1", "fc_id": "0000")") + ",\n" +
                device("02",
                       R"("switch": "a", "interface": "fc1/1", "kind": "NL", "fc_id": "0001")")),
            "f:11:46: an N_Port and NL_Ports do not share a port"},
        WrongFile{
            with_devices(device("01", R"("switch": "a", "interface": "fc1/1", "fc_id": "0000")") +
                         ",\n" +
                         device("02", R"("switch": "a", "interface": "fc1/2", "fc_id": "0000")")),
            "f:11:47: another device of the switch has this FC ID in the VSAN"}));

TEST(PortModel, WhatCannotStandInAFileIsNotInstalledEither) {
  const auto problem_after = [](auto edit) {
    Fabric fabric = switch_sim::default_fabric();
    edit(fabric);
    return switch_sim::control::install(fabric).value_or("none");
  };
  EXPECT_EQ("none", problem_after([](Fabric&) {}));
  EXPECT_EQ("switch 20:00:00:0d:ec:0a:1b:2c, fc1/1: the port of the module is missing",
            problem_after([](Fabric& fabric) {
              fabric.switches[0].interfaces.erase(fabric.switches[0].interfaces.begin());
            }));
  EXPECT_EQ("switch 20:00:00:0d:ec:0a:1b:2c, fc1/1: a speed is 0, 1000 or 2000",
            problem_after([](Fabric& fabric) { fabric.switches[0].interfaces[0].speed = 1; }));
  EXPECT_EQ("switch 20:00:00:0d:ec:0a:1b:2c, slot 1: a Fibre Channel module has 1 to 63 ports",
            problem_after([](Fabric& fabric) { fabric.switches[0].modules[0].ports = 64; }));
  EXPECT_EQ("link of switch-1 fc1/2 and switch-2 fc1/2: only a trunking link has VSANs",
            problem_after([](Fabric& fabric) { fabric.links[0].vsans = {1}; }));
  EXPECT_EQ(
      "link of switch-1 port-channel 1 and switch-3 port-channel 1: linked port channels have "
      "the same number of members",
      problem_after([](Fabric& fabric) {
        find_interface(fabric.switches[2], 0x04000001)->members.pop_back();
      }));
  EXPECT_EQ(
      "device 21:00:00:11:22:33:44:01: the port is a member of a channel",
      problem_after([](Fabric& fabric) { fabric.devices[0].attached_to.if_index = 0x01010005; }));
  EXPECT_EQ("the seed of the counters is too large",
            problem_after([](Fabric& fabric) { fabric.counter_seed = UINT64_MAX; }));
  switch_sim::control::reset();
}

TEST(PortModel, PortWwnsCarryTheirPlace) {
  const switch_sim::Wwn wwn = {{0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C}};
  EXPECT_EQ("20:41:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x01010001)));
  EXPECT_EQ("27:ff:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x011F003F)));
  EXPECT_EQ("24:02:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x04000001)));
  EXPECT_EQ("24:ff:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x040000FE)));
  EXPECT_EQ("2f:ff:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x0A0007FF)));
  EXPECT_EQ("20:bd:00:0d:ec:0a:1b:2c", to_text(port_wwn(wwn, 0x0B020010)));
}

TEST(PortModel, APortBelongsToItsModule) {
  const Fabric fabric = switch_sim::default_fabric();
  const auto& element = fabric.switches[0];
  EXPECT_EQ(1U, module_of(element, 0x01010010)->slot);
  EXPECT_EQ(2U, module_of(element, 0x02020001)->slot);
  EXPECT_EQ(2U, module_of(element, 0x0B020001)->slot);
  EXPECT_EQ(5U, module_of(element, 0x05000001)->slot);
  EXPECT_EQ(nullptr, module_of(element, 0x01010011));
  EXPECT_EQ(nullptr, module_of(element, 0x04000001));
  EXPECT_EQ(nullptr, module_of(element, 0x0A000001));
}

}  // namespace
}  // namespace simulator_test
