#include "simulator/fabric/fabric_file.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

using switch_sim::Fabric;
using switch_sim::FabricError;
using switch_sim::parse_fabric;
using switch_sim::ReadFabric;

std::string content(const std::string& path) {
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

// The whole of the default fabric, written by hand.
const std::string kDefaultFile =
    content(std::string(CIM_SOURCE_DIR) + "/tests/simulator/data/default_fabric.json");

// A file in which only one thing is of interest.
std::string with_switch(const std::string& members) {
  return R"({"version": 1, "local_switch": "a", "switches": [
{"name": "a", "wwn": "20:00:00:00:00:00:00:01"},
{)" + members +
         "}]}";
}

std::string with_vsan(const std::string& members) {
  return R"({"version": 1, "local_switch": "a", "switches": [
{"name": "a", "wwn": "20:00:00:00:00:00:00:01"}, {"name": "b", "wwn": "20:00:00:00:00:00:00:02"}],
"vsans": [
{)" + members +
         "}]}";
}

std::string with_domains(const std::string& domains) {
  return with_vsan("\"number\": 1, \"domains\": [\n" + domains + "]");
}

std::string error_of(const std::string& text) {
  const ReadFabric read = parse_fabric(text, "fabric.json");
  const auto* error = std::get_if<FabricError>(&read);
  return error != nullptr ? error->message : "no error";
}

Fabric fabric_of(const std::string& text) {
  ReadFabric read = parse_fabric(text, "fabric.json");
  if (const auto* error = std::get_if<FabricError>(&read)) {
    ADD_FAILURE() << error->message;
    return {};
  }
  return std::get<Fabric>(read);
}

TEST(FabricFile, TheDefaultFabricIsWrittenInItsOneForm) {
  EXPECT_EQ(kDefaultFile, switch_sim::write_fabric(switch_sim::default_fabric()));
}

TEST(FabricFile, TheWrittenFormIsReadBack) {
  EXPECT_EQ(switch_sim::default_fabric(), fabric_of(kDefaultFile));
}

TEST(FabricFile, TheOrderOfAFileDoesNotMatter) {
  const Fabric fabric = fabric_of(
      R"({"vsans": [{"domains": [{"switch": "b", "domain_id": 2}, {"domain_id": 1, "switch": "a"}],
                     "number": 7}, {"number": 3}],
          "switches": [{"wwn": "20:00:00:00:00:00:00:02", "name": "b"},
                       {"wwn": "20:00:00:00:00:00:00:01", "name": "a"}],
          "local_switch": "b", "version": 1})");
  EXPECT_EQ("a", fabric.switches.at(0).name);
  EXPECT_EQ("20:00:00:00:00:00:00:02", to_text(fabric.local_switch));
  EXPECT_EQ(3U, fabric.vsans.at(0).number);
  EXPECT_EQ(1, fabric.vsans.at(1).domains.at(0).domain_id);
}

TEST(FabricFile, WhatIsLeftOutHasItsUsualValue) {
  const Fabric fabric = fabric_of(with_domains(R"({"switch": "a", "domain_id": 5})"));
  const switch_sim::Vsan& vsan = fabric.vsans.at(0);
  EXPECT_EQ("VSAN0001", vsan.name);
  EXPECT_EQ(switch_sim::VsanState::up, vsan.state);
  EXPECT_EQ(switch_sim::LoadBalancing::source_destination_exchange, vsan.load_balancing);
  EXPECT_EQ(switch_sim::Wwn{}, vsan.principal_switch);
  EXPECT_TRUE(vsan.domains.at(0).enabled);
  EXPECT_EQ(0, vsan.domains.at(0).configured_domain_id);
  EXPECT_EQ(switch_sim::DomainType::preferred, vsan.domains.at(0).configured_type);
  EXPECT_EQ(128, vsan.domains.at(0).configured_priority);
  EXPECT_EQ("", fabric.switches.at(0).system.contact);
  EXPECT_EQ(2U, fabric.switches.at(0).system.services);
  EXPECT_EQ("0.0.0.0", to_text(fabric.switches.at(0).address));
}

TEST(FabricFile, EveryValueIsReadAndWritten) {
  const std::string text = R"({
  "version": 1,
  "local_switch": "20:00:00:00:00:00:00:01",
  "switches": [
    {
      "name": "K\u00f6ln \"1\" \\ \ud83d\ude00",
      "wwn": "20:00:00:00:00:00:00:01",
      "address": "2001:db8::2a",
      "contact": "a\nb",
      "location": "",
      "description": "",
      "software_version": "",
      "object_id": "",
      "services": 127,
      "uptime_hundredths": 4294967295
    }
  ],
  "vsans": [
    {
      "number": 4094,
      "name": "x",
      "state": "suspended",
      "load_balancing": "src-id/dst-id",
      "domains": [
        {"switch": "20:00:00:00:00:00:00:01", "enabled": false, "configured_domain_id": 239, "type": "static", "priority": 254}
      ]
    }
  ]
}
)";
  const Fabric fabric = fabric_of(text);
  EXPECT_EQ("K\u00f6ln \"1\" \\ \U0001F600", fabric.switches.at(0).name);
  EXPECT_EQ("a\nb", fabric.switches.at(0).system.contact);
  EXPECT_EQ(4294967295U, fabric.switches.at(0).system.uptime_hundredths);
  EXPECT_FALSE(fabric.vsans.at(0).domains.at(0).enabled);
  EXPECT_EQ(239, fabric.vsans.at(0).domains.at(0).configured_domain_id);
  // Written, characters beyond ASCII stand as they are, and control characters as escapes.
  const std::string written = switch_sim::write_fabric(fabric);
  EXPECT_NE(std::string::npos, written.find("\"name\": \"K\u00f6ln \\\"1\\\" \\\\ \U0001F600\""));
  EXPECT_NE(std::string::npos, written.find("\"contact\": \"a\\u000ab\""));
  EXPECT_EQ(fabric, fabric_of(written));
}

TEST(FabricFile, TheExampleOfTheDocumentIsRead) {
  std::ifstream document(std::string(CIM_SOURCE_DIR) + "/docs/fabric-file.md");
  std::string text;
  bool in_example = false;
  for (std::string line; std::getline(document, line);) {
    if (line == "    {") in_example = true;
    if (in_example) text += line + "\n";
    if (in_example && line == "    }") break;
  }
  const Fabric fabric = fabric_of(text);
  EXPECT_EQ(2U, fabric.switches.size());
  EXPECT_EQ(switch_sim::VsanState::suspended, fabric.vsans.at(1).state);
  EXPECT_EQ(17U, fabric.switches.at(0).interfaces.size());
  EXPECT_EQ(1U, fabric.links.size());
  EXPECT_EQ(1U, fabric.devices.size());
}

TEST(FabricFile, AnEmptyListIsWrittenInOneLine) {
  const Fabric fabric = fabric_of(
      R"({"version": 1, "local_switch": "a",
          "switches": [{"name": "a", "wwn": "20:00:00:00:00:00:00:01"}]})");
  const std::string written = switch_sim::write_fabric(fabric);
  EXPECT_NE(std::string::npos, written.find("  \"vsans\": []\n}\n"));
}

struct WrongFile {
  std::string text;
  const char* error;
};

void PrintTo(const WrongFile& file, std::ostream* out) {
  *out << file.error;
}

class WrongFabricFile : public testing::TestWithParam<WrongFile> {};

TEST_P(WrongFabricFile, IsToldWithItsPosition) {
  EXPECT_EQ(GetParam().error, error_of(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Syntax, WrongFabricFile,
    testing::Values(
        WrongFile{"", "fabric.json:1:1: expected a value, found the end of the file"},
        WrongFile{"\n\n  ", "fabric.json:3:3: expected a value, found the end of the file"},
        WrongFile{"[]", "fabric.json:1:1: expected the fabric"},
        WrongFile{"{",
                  "fabric.json:1:2: expected a key in double quotes, found the end of the file"},
        WrongFile{"{version: 1}", "fabric.json:1:2: expected a key in double quotes, found 'v'"},
        WrongFile{"{\"version\" 1}", "fabric.json:1:12: expected \":\", found '1'"},
        WrongFile{"{\"version\": }", "fabric.json:1:13: expected a value, found '}'"},
        WrongFile{"{\"version\": 1\n \"x\": 2}",
                  "fabric.json:2:2: expected \",\" or \"}\", found '\"'"},
        WrongFile{"{\"version\": 1,}",
                  "fabric.json:1:15: expected a key in double quotes, found '}'"},
        WrongFile{"[1 2]", "fabric.json:1:4: expected \",\" or \"]\", found '2'"},
        WrongFile{"{\"version\": 1, \"version\": 1}",
                  "fabric.json:1:16: key \"version\" is given twice"},
        WrongFile{"{} x", "fabric.json:1:4: there is more after the end of the description"},
        WrongFile{"{\"a", "fabric.json:1:2: a text that is not closed"},
        WrongFile{"{\"a\n\": 1}", "fabric.json:1:2: a text that is not closed"},
        WrongFile{"{\"a\tb\": 1}", "fabric.json:1:4: a control character in a text"},
        WrongFile{"{\"\\x\": 1}", "fabric.json:1:3: an unknown escape in a text"},
        WrongFile{"{\"\\", "fabric.json:1:3: an unknown escape in a text"},
        WrongFile{"{\"\\u12\": 1}", "fabric.json:1:3: \\u needs four hexadecimal digits"},
        WrongFile{"{\"\\u", "fabric.json:1:3: \\u needs four hexadecimal digits"},
        WrongFile{"{\"\\ud800\": 1}", "fabric.json:1:3: half of a surrogate pair in a text"},
        WrongFile{"{\"\\udc00\": 1}", "fabric.json:1:3: half of a surrogate pair in a text"},
        WrongFile{"{\"\\ud800\\u0041\": 1}", "fabric.json:1:3: half of a surrogate pair in a text"},
        WrongFile{"{\"a\xff\": 1}", "fabric.json:1:4: not valid UTF-8"},
        WrongFile{"{\"\xed\xa0\x80\": 1}", "fabric.json:1:3: not valid UTF-8"},
        WrongFile{"{\"\xc0\x80\": 1}", "fabric.json:1:3: not valid UTF-8"},
        WrongFile{"{\"\xf4\x90\x80\x80\": 1}", "fabric.json:1:3: not valid UTF-8"},
        WrongFile{"{\"\xe2\x82", "fabric.json:1:3: not valid UTF-8"},
        WrongFile{"\xfe", "fabric.json:1:1: expected a value, found byte 0xfe"},
        WrongFile{"{\"\u00e4\u00f6\" x}", "fabric.json:1:7: expected \":\", found 'x'"},
        WrongFile{"01", "fabric.json:1:1: not a number as JSON writes it"},
        WrongFile{"1.", "fabric.json:1:1: not a number as JSON writes it"},
        WrongFile{"-", "fabric.json:1:1: not a number as JSON writes it"},
        WrongFile{"1e+", "fabric.json:1:1: not a number as JSON writes it"},
        WrongFile{"+1", "fabric.json:1:1: expected a value, found '+'"},
        WrongFile{"nul", "fabric.json:1:1: expected a value, found 'n'"},
        WrongFile{std::string(100, '['), "fabric.json:1:66: nested too deeply"}));

INSTANTIATE_TEST_SUITE_P(
    TopLevel, WrongFabricFile,
    testing::Values(WrongFile{"{}", "fabric.json:1:1: the fabric lacks \"version\""},
                    WrongFile{"{\n  \"version\": 1,\n  \"vsns\": []\n}",
                              "fabric.json:3:3: unknown key \"vsns\" (did you mean \"vsans\"?)"},
                    WrongFile{"{\"colour\": 1}", "fabric.json:1:2: unknown key \"colour\""},
                    WrongFile{"{\"version\": 2}",
                              "fabric.json:1:13: expected a whole number from 1 to 1"},
                    WrongFile{"{\"version\": \"1\"}", "fabric.json:1:13: expected a number"},
                    WrongFile{"{\"version\": 1}", "fabric.json:1:1: the fabric lacks \"switches\""},
                    WrongFile{"{\"version\": 1, \"switches\": {}}",
                              "fabric.json:1:28: expected a list of switches"},
                    WrongFile{"{\"version\": 1, \"switches\": []}",
                              "fabric.json:1:1: the fabric lacks \"local_switch\""},
                    WrongFile{"{\"version\": 1, \"switches\": [], \"local_switch\": \"a\"}",
                              "fabric.json:1:48: no switch \"a\""},
                    WrongFile{"{\"version\": 1, \"switches\": [], \"local_switch\": 1}",
                              "fabric.json:1:48: expected the name or WWN of a switch"}));

INSTANTIATE_TEST_SUITE_P(
    Switches, WrongFabricFile,
    testing::Values(
        WrongFile{R"({"version": 1, "switches": [7]})", "fabric.json:1:29: expected a switch"},
        WrongFile{with_switch(R"("name": "b")"), "fabric.json:3:1: a switch lacks \"wwn\""},
        WrongFile{with_switch(R"("wwn": "20:00:00:00:00:00:00:02")"),
                  "fabric.json:3:1: a switch lacks \"name\""},
        WrongFile{with_switch(R"("nam": "b")"),
                  "fabric.json:3:2: unknown key \"nam\" (did you mean \"name\"?)"},
        WrongFile{with_switch(R"("name": "")"), "fabric.json:3:10: a name is not empty"},
        WrongFile{with_switch(R"("name": "a\nb")"),
                  "fabric.json:3:10: a name holds no control characters"},
        WrongFile{with_switch("\"name\": \"" + std::string(256, 'n') + "\""),
                  "fabric.json:3:10: a name has at most 255 bytes"},
        WrongFile{with_switch(R"("name": null)"), "fabric.json:3:10: expected a text"},
        WrongFile{with_switch(R"("name": "b", "wwn": "2000000000000002")"),
                  "fabric.json:3:22: expected a WWN such as \"20:00:00:0d:ec:0a:1b:2c\""},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:0g")"),
                  "fabric.json:3:22: expected a WWN such as \"20:00:00:0d:ec:0a:1b:2c\""},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:01:00:00:00:00:00:02")"),
                  "fabric.json:3:22: a switch WWN starts with 20:00, another maker's with 10:00"},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:01")"),
                  "fabric.json:3:22: another switch has this WWN"},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "address": "x")"),
                  "fabric.json:3:60: expected an IPv4 or IPv6 address"},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "services": 128)"),
                  "fabric.json:3:61: expected a whole number from 0 to 127"},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "services": 1.5)"),
                  "fabric.json:3:61: expected a whole number from 0 to 127"},
        WrongFile{with_switch(
                      R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "uptime_hundredths": -1)"),
                  "fabric.json:3:70: expected a whole number from 0 to 4294967295"},
        WrongFile{
            with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "object_id": "1..3")"),
            "fabric.json:3:62: expected an object identifier such as \"1.3.6.1\""},
        WrongFile{
            with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "object_id": "1.")"),
            "fabric.json:3:62: expected an object identifier such as \"1.3.6.1\""},
        WrongFile{
            with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "contact": "\u0000")"),
            "fabric.json:3:60: a text holds no zero byte"},
        WrongFile{with_switch(R"("name": "b", "wwn": "20:00:00:00:00:00:00:02", "contact": ")" +
                              std::string(1024, 'c') + "\""),
                  "fabric.json:3:60: a text has at most 1023 bytes"},
        WrongFile{with_switch(R"("name": "a", "wwn": "20:00:00:00:00:00:00:02")"),
                  "fabric.json:1:32: several switches are called \"a\": name one by its WWN"}));

INSTANTIATE_TEST_SUITE_P(
    Vsans, WrongFabricFile,
    testing::Values(
        WrongFile{with_vsan(R"("name": "x")"), "fabric.json:4:1: a VSAN lacks \"number\""},
        WrongFile{with_vsan(R"("number": 0)"),
                  "fabric.json:4:12: expected a whole number from 1 to 4094"},
        WrongFile{with_vsan(R"("number": 4095)"),
                  "fabric.json:4:12: expected a whole number from 1 to 4094"},
        WrongFile{with_vsan(R"("number": 99999999999999999999)"),
                  "fabric.json:4:12: expected a whole number from 1 to 4094"},
        WrongFile{with_vsan("\"number\": 1},\n{\"number\": 1"),
                  "fabric.json:5:12: another VSAN has this number"},
        WrongFile{with_vsan("\"number\": 1, \"name\": \"" + std::string(128, 'v') + "\""),
                  "fabric.json:4:23: a name has at most 127 bytes"},
        WrongFile{with_vsan(R"("number": 1, "state": "upp")"),
                  "fabric.json:4:24: expected \"up\" or \"suspended\" (did you mean \"up\"?)"},
        WrongFile{with_vsan(R"("number": 1, "load_balancing": "none")"),
                  "fabric.json:4:33: expected \"src-id/dst-id\" or \"src-id/dst-id/ox-id\""},
        WrongFile{with_vsan(R"("number": 1, "principal_switch": "a")"),
                  "fabric.json:4:35: the principal switch has no enabled domain manager here"},
        WrongFile{with_vsan(R"("number": 1, "domains": 1)"),
                  "fabric.json:4:26: expected a list of domain managers"},
        WrongFile{with_vsan(R"("number": 1, "domain": [])"),
                  "fabric.json:4:15: unknown key \"domain\" (did you mean \"domains\"?)"}));

INSTANTIATE_TEST_SUITE_P(
    Domains, WrongFabricFile,
    testing::Values(
        WrongFile{with_domains(R"({"domain_id": 1})"),
                  "fabric.json:5:1: a domain manager lacks \"switch\""},
        WrongFile{with_domains(R"({"switch": "a"})"),
                  "fabric.json:5:1: a domain manager lacks \"domain_id\""},
        WrongFile{with_domains(R"({"switch": "c", "domain_id": 1})"),
                  "fabric.json:5:12: no switch \"c\" (did you mean \"a\"?)"},
        WrongFile{with_domains(R"({"switch": "20:00:00:00:00:00:00:03", "domain_id": 1})"),
                  "fabric.json:5:12: no switch \"20:00:00:00:00:00:00:03\""},
        WrongFile{with_domains(R"({"switch": "a", "domain_id": 240})"),
                  "fabric.json:5:30: expected a whole number from 1 to 239"},
        WrongFile{with_domains(R"({"switch": "a", "domain_id": 0})"),
                  "fabric.json:5:30: expected a whole number from 1 to 239"},
        WrongFile{with_domains(R"({"switch": "a", "enabled": false, "domain_id": 1})"),
                  "fabric.json:5:48: a domain manager that is not enabled has no domain ID"},
        WrongFile{with_domains(R"({"switch": "a", "enabled": 1})"),
                  "fabric.json:5:28: expected true or false"},
        WrongFile{with_domains(R"({"switch": "a", "domain_id": 1, "priority": 255})"),
                  "fabric.json:5:45: expected a whole number from 1 to 254"},
        WrongFile{with_domains(R"({"switch": "a", "domain_id": 1, "type": "statik"})"),
                  "fabric.json:5:41: expected \"static\" or \"preferred\" (did you mean "
                  "\"static\"?)"},
        WrongFile{with_domains(R"({"switch": "a", "domain_id": 1, "type": "static"})"),
                  "fabric.json:5:41: a static domain needs \"configured_domain_id\""},
        WrongFile{with_domains("{\"switch\": \"a\", \"domain_id\": 1},\n"
                               "{\"switch\": \"a\", \"domain_id\": 2}"),
                  "fabric.json:6:12: the switch is already in this VSAN"},
        WrongFile{with_domains("{\"switch\": \"a\", \"domain_id\": 1},\n"
                               "{\"switch\": \"b\", \"domain_id\": 1}"),
                  "fabric.json:6:30: another switch has this domain ID"}));

// Every prefix of a file is read without harm and refused.
TEST(FabricFile, EveryCutFileIsRefused) {
  const std::string text =
      R"({"version": 1, "local_switch": "a",
"switches": [{"name": "a", "wwn": "20:00:00:00:00:00:00:01", "address": "192.0.2.1",
 "object_id": "1.3.6", "modules": [{"slot": 1, "kind": "fibre-channel", "ports": 4}],
 "interfaces": [{"name": "fc1/1", "alias": "x", "optics": "none"},
  {"name": "port-channel 1", "members": ["fc1/3", "fc1/4"]}]},
 {"name": "b", "wwn": "20:00:00:00:00:00:00:02",
  "modules": [{"slot": 1, "kind": "fibre-channel", "ports": 4}]}],
"vsans": [{"number": 1, "domains": [{"switch": "a", "domain_id": 5}], "principal_switch": "a"}],
"links": [{"ends": [{"switch": "a", "interface": "fc1/2"}, {"switch": "b", "interface": "fc1/2"}],
 "trunk": [1, 2]}],
"devices": [{"port_wwn": "21:00:00:00:00:00:00:01", "node_wwn": "20:00:00:00:00:00:00:01",
 "switch": "a", "interface": "fc1/1", "fc_id": "0100", "fc4_types": [8]}]}
)";
  ASSERT_EQ("no error", error_of(text));
  for (size_t length = 0; length + 1 < text.size(); ++length) {
    EXPECT_NE("no error", error_of(text.substr(0, length))) << length;
  }
}

class FabricFiles : public testing::Test {
 protected:
  void SetUp() override {
    folder = testing::TempDir() + "fabric_files_" + std::to_string(getpid());
    std::filesystem::create_directory(folder);
    path = folder + "/fabric.json";
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  std::string folder;
  std::string path;
};

TEST_F(FabricFiles, ASavedFabricIsReadBackAndNothingElseIsLeft) {
  ASSERT_EQ(std::nullopt, switch_sim::save_fabric_file(switch_sim::default_fabric(), path));
  EXPECT_EQ(kDefaultFile, content(path));
  const auto read = switch_sim::read_fabric_file(path);
  EXPECT_EQ(switch_sim::default_fabric(), std::get<Fabric>(read));
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder), {}));
}

TEST_F(FabricFiles, SavingKeepsTheModeOfTheFile) {
  std::ofstream(path) << "old";
  chmod(path.c_str(), 0640);
  ASSERT_EQ(std::nullopt, switch_sim::save_fabric_file(switch_sim::default_fabric(), path));
  struct stat information {};
  stat(path.c_str(), &information);
  EXPECT_EQ(0640U, information.st_mode & 0777);
}

TEST_F(FabricFiles, ANewFileIsForItsOwnerOnly) {
  ASSERT_EQ(std::nullopt, switch_sim::save_fabric_file(switch_sim::default_fabric(), path));
  struct stat information {};
  stat(path.c_str(), &information);
  EXPECT_EQ(0600U, information.st_mode & 0777);
}

TEST_F(FabricFiles, SavingThroughASymbolicLinkReplacesWhatItPointsTo) {
  std::ofstream(folder + "/real.json") << "old";
  std::filesystem::create_symlink("real.json", path);
  ASSERT_EQ(std::nullopt, switch_sim::save_fabric_file(switch_sim::default_fabric(), path));
  EXPECT_TRUE(std::filesystem::is_symlink(path));
  EXPECT_EQ(kDefaultFile, content(folder + "/real.json"));
}

TEST_F(FabricFiles, AFolderThatIsMissingIsToldOnSaving) {
  EXPECT_EQ((FabricError{folder + "/none/f.json: No such file or directory"}),
            switch_sim::save_fabric_file(switch_sim::default_fabric(), folder + "/none/f.json"));
}

TEST_F(FabricFiles, AFailedSaveLeavesTheOldFileAndNoOther) {
  std::filesystem::create_directory(path);  // cannot be replaced by a file
  EXPECT_EQ((FabricError{path + ": Is a directory"}),
            switch_sim::save_fabric_file(switch_sim::default_fabric(), path));
  EXPECT_TRUE(std::filesystem::is_directory(path));
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder), {}));
}

TEST_F(FabricFiles, WhatCannotBeReadIsTold) {
  const auto error = [](const std::string& file) {
    return std::get<FabricError>(switch_sim::read_fabric_file(file)).message;
  };
  EXPECT_EQ(path + ": No such file or directory", error(path));
  EXPECT_EQ(folder + ": Is a directory", error(folder));
  EXPECT_EQ("/dev/null: not a regular file", error("/dev/null"));
  const std::string pipe = folder + "/pipe";
  ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
  EXPECT_EQ(pipe + ": not a regular file", error(pipe));
  std::ofstream(path) << "{\n  \"vsns\": []}";
  EXPECT_EQ(path + ":2:3: unknown key \"vsns\" (did you mean \"vsans\"?)", error(path));
}

class FabricState : public SimulatorTest {
 protected:
  void SetUp() override {
    SimulatorTest::SetUp();
    path = testing::TempDir() + "fabric_state_" + std::to_string(getpid());
    remove(path.c_str());
  }
  void TearDown() override {
    SimulatorTest::TearDown();
    switch_sim::control::reset();
    std::filesystem::remove_all(path);
  }

  Result rename_switch(const char* name) {
    return call(35, 878, 3, Pattern(260).text(0, name).bytes());
  }

  Result set_speed_of_fc1_1() {
    return call(34, 0x11002, 3, Pattern(12).at(0, "0101000100000003000003e8").bytes());
  }

  // Another process that goes on from the file and renames the switch. True when that was
  // acknowledged.
  bool another_process_renames_to(const char* name) {
    const pid_t child = fork();
    if (child == 0) {
      switch_sim::control::reset();
      const bool opened = !switch_sim::control::keep_state_in(path);
      _exit(opened && rename_switch(name).status == 0 ? 0 : 1);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  std::string path;
};

TEST_F(FabricState, EveryChangeIsSavedBeforeItIsAcknowledged) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  auto saved = std::get<Fabric>(switch_sim::read_fabric_file(path));
  EXPECT_EQ("edge-7", saved.switches.at(0).name);
  EXPECT_EQ(0, rename_switch("edge-8").status);
  saved = std::get<Fabric>(switch_sim::read_fabric_file(path));
  EXPECT_EQ(switch_sim::control::fabric(), saved);
  EXPECT_EQ("edge-8", saved.switches.at(0).name);
}

TEST_F(FabricState, AChangeOfAPortIsSaved) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  // Speed of fc1/1, then a speed that is refused.
  EXPECT_EQ(0, call(34, 0x11002, 3, Pattern(12).at(0, "0101000100000003000003e8").bytes()).status);
  const std::string saved = content(path);
  EXPECT_NE(std::string::npos,
            saved.find("{\"name\": \"fc1/1\", \"alias\": \"host-a\", \"admin_state\": \"up\", "
                       "\"vsan\": 1, \"mode\": \"auto\", \"speed\": 1000, "));
  EXPECT_EQ(switch_sim::control::fabric(), fabric_of(saved));
  EXPECT_EQ(0, call(34, 0x11002, 3, Pattern(12).at(0, "0101000100000003000003e9").bytes()).status);
  EXPECT_EQ(saved, content(path));
}

TEST_F(FabricState, ASavedStateIsGoneOnFrom) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  rename_switch("edge-7");
  switch_sim::control::reset();
  EXPECT_EQ("switch-1", switch_sim::control::fabric().switches.at(0).name);
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ("edge-7", switch_sim::control::fabric().switches.at(0).name);
}

TEST_F(FabricState, ARefusedChangeAndAReadSaveNothing) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(kBadValue, rename_switch("").status);
  EXPECT_EQ(0, call(46, 1282, 1, {}).status);
  EXPECT_EQ(0, rename_switch("switch-1").status);  // already its name
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(FabricState, AChangeThatCannotBeSavedIsRefusedAndUndone) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  std::filesystem::create_directory(path);  // in the way of the file
  const auto before = switch_sim::control::fabric();
  testing::internal::CaptureStderr();
  EXPECT_EQ(kStateNotSaved, rename_switch("edge-7").status);
  EXPECT_EQ("switch simulator: a change was not saved: " + path + ": Is a directory\n",
            testing::internal::GetCapturedStderr());
  EXPECT_EQ(before, switch_sim::control::fabric());
}

TEST_F(FabricState, AChangeIsMadeOnWhatAnotherProcessHasSaved) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  ASSERT_TRUE(another_process_renames_to("edge-8"));
  EXPECT_EQ("edge-7", switch_sim::control::fabric().switches.at(0).name);
  EXPECT_EQ(0, set_speed_of_fc1_1().status);
  EXPECT_EQ("edge-8", switch_sim::control::fabric().switches.at(0).name);
  const auto saved = std::get<Fabric>(switch_sim::read_fabric_file(path));
  EXPECT_EQ("edge-8", saved.switches.at(0).name);
  EXPECT_EQ(switch_sim::control::fabric(), saved);
  EXPECT_NE(std::string::npos, content(path).find("\"mode\": \"auto\", \"speed\": 1000, "));
}

TEST_F(FabricState, AChangeBackToWhatThisProcessKnewIsSavedAllTheSame) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  ASSERT_TRUE(another_process_renames_to("edge-8"));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  EXPECT_EQ("edge-7", std::get<Fabric>(switch_sim::read_fabric_file(path)).switches.at(0).name);
}

TEST_F(FabricState, AFileThatAnotherProcessMadeMeanwhileIsGoneOnFrom) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  ASSERT_TRUE(another_process_renames_to("edge-8"));
  EXPECT_EQ(0, set_speed_of_fc1_1().status);
  EXPECT_EQ("edge-8", std::get<Fabric>(switch_sim::read_fabric_file(path)).switches.at(0).name);
}

TEST_F(FabricState, AFileThatCannotBeGoneOnFromAnyMoreIsToldAndNotReplaced) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  std::ofstream(path) << "{}";
  testing::internal::CaptureStderr();
  EXPECT_EQ(kStateNotSaved, rename_switch("edge-8").status);
  EXPECT_EQ(
      "switch simulator: a change was not saved: " + path + ":1:1: the fabric lacks \"version\"\n",
      testing::internal::GetCapturedStderr());
  EXPECT_EQ("{}", content(path));
  EXPECT_EQ("edge-7", switch_sim::control::fabric().switches.at(0).name);
}

TEST_F(FabricState, AnInstalledFabricDoesNotReplaceAChangeOfAnotherProcess) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  ASSERT_EQ(std::nullopt, switch_sim::control::install(switch_sim::control::fabric()));
  ASSERT_TRUE(another_process_renames_to("edge-8"));
  testing::internal::CaptureStderr();
  EXPECT_EQ(kStateNotSaved, rename_switch("edge-9").status);
  EXPECT_EQ("switch simulator: a change was not saved: " + path +
                ": another process has changed it, and this one has another fabric\n",
            testing::internal::GetCapturedStderr());
  EXPECT_EQ("edge-8", std::get<Fabric>(switch_sim::read_fabric_file(path)).switches.at(0).name);
}

TEST_F(FabricState, AFileThatSomebodyRemovedIsWrittenAnew) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  std::filesystem::remove(path);
  EXPECT_EQ(0, rename_switch("edge-8").status);
  EXPECT_EQ("edge-8", std::get<Fabric>(switch_sim::read_fabric_file(path)).switches.at(0).name);
}

TEST_F(FabricState, AListenerIsToldInPlaceOfStandardError) {
  ASSERT_EQ(std::nullopt, switch_sim::control::keep_state_in(path));
  std::filesystem::create_directory(path);
  std::vector<std::string> told;
  switch_sim::control::tell_problems_to(
      [&told](const std::string& problem) { told.push_back(problem); });
  testing::internal::CaptureStderr();
  EXPECT_EQ(kStateNotSaved, rename_switch("edge-7").status);
  switch_sim::control::tell_problems_to(nullptr);
  EXPECT_EQ("", testing::internal::GetCapturedStderr());
  EXPECT_EQ(std::vector<std::string>{"a change was not saved: " + path + ": Is a directory"}, told);
}

TEST_F(FabricState, AWrongStateFileIsToldAndNotOverwritten) {
  std::ofstream(path) << "{\"version\": 1,\n \"vsns\": []}";
  EXPECT_EQ(path + ":2:2: unknown key \"vsns\" (did you mean \"vsans\"?)",
            switch_sim::control::keep_state_in(path));
  EXPECT_EQ(0, rename_switch("edge-7").status);
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  EXPECT_EQ("{\"version\": 1,\n \"vsns\": []}", text.str());
}

TEST_F(FabricState, AStateFileInAMissingFolderIsToldAtOnce) {
  EXPECT_EQ("/nonexistent/state.json: No such file or directory",
            switch_sim::control::keep_state_in("/nonexistent/state.json"));
}

TEST_F(FabricState, ControlReadsAndWritesFiles) {
  EXPECT_EQ(std::nullopt, switch_sim::control::save(path));
  EXPECT_EQ(kDefaultFile, switch_sim::control::fabric_text());
  EXPECT_EQ("name:1:1: expected the fabric", switch_sim::control::install_text("[]", "name"));
  EXPECT_EQ(std::nullopt, switch_sim::control::install_file(path));
  EXPECT_EQ(path + "x: No such file or directory", switch_sim::control::install_file(path + "x"));
  EXPECT_EQ(switch_sim::default_fabric(), switch_sim::control::fabric());
}

TEST_F(FabricState, ANameThatIsNotUtf8IsRefusedSinceItCouldNotBeSaved) {
  EXPECT_EQ(kBadValue, rename_switch("a\xff").status);
  EXPECT_EQ(0, rename_switch("K\u00f6ln").status);
}

}  // namespace
}  // namespace simulator_test
