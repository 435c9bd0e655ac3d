#include "tools/output.h"

#include <gtest/gtest.h>

#include "schema/mof_reader.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Element;
using cim::host::Instance;
using cim::host::ObjectPath;

constexpr const char* kMof = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);

class Base {
  string Caption;
  string Note;
  [Key] string SystemName;
  [Key] string Name;
  string CreationClassName;
};

class Port : Base {
  uint16 States[];
  uint32 DomainID;
  uint16 VsanId;
  string Alias;
  real64 Load;
  string Peer;
};
)";

class Output : public ::testing::Test {
 protected:
  Output() {
    const auto document = cim::schema::read_mof_text(kMof, "test.mof");
    EXPECT_EQ(document.error_text(), "");
    for (const cim::schema::Diagnostic& error : repository_.add(document))
      ADD_FAILURE() << error.text();
  }

  const cim::schema::Class& cls(const char* name) const { return *repository_.find(name); }

  static Data number(CMPIType type, std::uint64_t value) { return Data::of(type, Element(value)); }

  static Instance port(const char* name) {
    Instance instance{{{}, "root/cimv2", "Port", {{"Name", Data::string(name)}}}, {}};
    instance.properties = {
        {"Caption", Data::string("boring")},     {"Note", Data::null_of(CMPI_string)},
        {"SystemName", Data::string("switch")},  {"Name", Data::string(name)},
        {"States", Data::null_of(CMPI_uint16A)}, {"VsanId", Data::null_of(CMPI_uint16)}};
    return instance;
  }

  static void set(Instance& instance, const char* name, Data data) {
    if (auto* known = cim::host::find_named(instance.properties, name)) {
      known->data = std::move(data);
    } else {
      instance.properties.push_back({name, std::move(data)});
    }
  }

  std::string table(const std::vector<Instance>& instances, const Names& wanted = {}) const {
    return instance_tables(repository_, cls("Base"), "root/cimv2", instances, wanted);
  }

  cim::schema::Repository repository_;
};

TEST_F(Output, Columns_are_aligned_with_no_blanks_at_the_end_of_a_line) {
  EXPECT_EQ(columns_text({{"A", "Long", "C"}, {"longer", "", "x"}, {"1", "2", ""}, {"", "", ""}}),
            "A       Long  C\n"
            "longer        x\n"
            "1       2\n"
            "\n");
}

TEST_F(Output, Columns_count_characters_not_bytes) {
  EXPECT_EQ(columns_text({{"caf\xC3\xA9", "x"}, {"tea", "y"}}),
            "caf\xC3\xA9  x\n"
            "tea   y\n");
}

TEST_F(Output, Control_characters_and_bad_bytes_do_not_break_lines) {
  EXPECT_EQ(columns_text({{"a\nb\t\x1B[31m", "\xFF"}}), "a\\nb\\t\\x001B[31m  \\x00FF\n");
}

TEST_F(Output, Keys_come_first_then_identifiers_then_the_rest_in_the_order_of_the_class) {
  Instance it = port("fc1");
  set(it, "Alias", Data::string("host-a"));
  set(it, "Note", Data::string("n"));
  set(it, "VsanId", number(CMPI_uint16, 2));
  set(it, "DomainID", number(CMPI_uint32, 9));
  EXPECT_EQ(default_columns(repository_, cls("Port"), {it}),
            (std::vector<std::string>{"Name", "DomainID", "VsanId", "Note", "Alias"}));
}

TEST_F(Output, A_property_that_one_instance_has_is_a_column) {
  Instance with = port("fc1");
  set(with, "Alias", Data::string("host-a"));
  EXPECT_EQ(table({with, port("fc2")}),
            "Port   2 instances in root/cimv2\n"
            "Name  Alias\n"
            "fc1   host-a\n"
            "fc2\n");
}

TEST_F(Output, No_instances_are_said_of_the_class_that_was_asked) {
  EXPECT_EQ(table({}), "Base   0 instances in root/cimv2\n");
}

TEST_F(Output, One_instance_is_singular) {
  EXPECT_EQ(table({port("fc1")}), "Port   1 instance in root/cimv2\nName\nfc1\n");
}

TEST_F(Output, Asked_columns_stand_as_the_class_writes_them_with_or_without_values) {
  EXPECT_EQ(table({port("fc1")}, Names({"CAPTION", "states", "Foreign", "NAME"})),
            "Port   1 instance in root/cimv2\n"
            "Caption  States  Foreign  Name\n"
            "boring                    fc1\n");
}

TEST_F(Output, Arrays_reals_and_references_fit_in_a_cell) {
  Instance it = port("fc1");
  set(it, "States", Data::array_of(CMPI_uint16, {std::uint64_t{2}, std::uint64_t{11}}));
  set(it, "Load", Data::of(CMPI_real64, Element(0.5)));
  ObjectPath peer{"h", "root/cimv2", "Base", {}};
  peer.keys = {{"Name", Data::string("a b")}, {"CreationClassName", Data::string("base")}};
  set(it, "Peer", Data::reference(peer));
  EXPECT_EQ(table({it}, Names({"States", "Load", "Peer"})),
            "Port   1 instance in root/cimv2\n"
            "States  Load  Peer\n"
            "2, 11   0.5   Base.Name=a b\n");
}

TEST_F(Output, A_creation_class_name_that_is_not_the_class_is_shown) {
  Instance it = port("fc1");
  ObjectPath peer{{}, {}, "Base", {{"CreationClassName", Data::string("Port")}}};
  set(it, "Peer", Data::reference(peer));
  EXPECT_EQ(table({it}, Names({"Peer"})),
            "Port   1 instance in root/cimv2\nPeer\nBase.CreationClassName=Port\n");
}

TEST_F(Output, JSON_has_values_of_their_kinds) {
  Instance it{{{}, "root/cimv2", "Port", {{"Name", Data::string("fc1")}}}, {}};
  set(it, "States", Data::array_of(CMPI_uint16, {std::uint64_t{2}, Element()}));
  set(it, "Load", Data::of(CMPI_real64, Element(0.5)));
  set(it, "Big", number(CMPI_uint64, 18446744073709551615U));
  set(it, "Low", Data::of(CMPI_sint8, Element(std::int64_t{-8})));
  set(it, "Ready", Data::boolean(true));
  set(it, "Letter", Data::of(CMPI_char16, Element(u'x')));
  set(it, "Gone", Data::null_of(CMPI_string));
  set(it, "Text", Data::string("a\"\n\xFF"));
  EXPECT_EQ(instance_json(it, {}),
            "{\n"
            "  \"class\": \"Port\",\n"
            "  \"path\": \"root/cimv2:Port.Name=\\\"fc1\\\"\",\n"
            "  \"properties\": {\n"
            "    \"States\": [\n"
            "      2,\n"
            "      null\n"
            "    ],\n"
            "    \"Load\": 0.5,\n"
            "    \"Big\": 18446744073709551615,\n"
            "    \"Low\": -8,\n"
            "    \"Ready\": true,\n"
            "    \"Letter\": \"x\",\n"
            "    \"Text\": \"a\\\"\\n\xEF\xBF\xBD\"\n"
            "  }\n"
            "}\n");
}

TEST_F(Output, JSON_of_nothing_is_an_empty_array) {
  EXPECT_EQ(instances_json({}, {}), "[]\n");
  EXPECT_EQ(paths_json({}), "[]\n");
  EXPECT_EQ(instances_mof({}), "");
  EXPECT_EQ(paths_text({}), "");
}

TEST_F(Output, JSON_holds_embedded_instances_as_objects) {
  Instance inner{{{}, {}, "Base", {}}, {{"Name", Data::string("in")}}};
  Instance outer{{{}, {}, "Port", {}}, {}};
  set(outer, "Twin", Data::of(CMPI_instance, std::make_shared<const Instance>(std::move(inner))));
  EXPECT_EQ(instance_json(outer, {}),
            "{\n"
            "  \"class\": \"Port\",\n"
            "  \"path\": \"Port\",\n"
            "  \"properties\": {\n"
            "    \"Twin\": {\n"
            "      \"class\": \"Base\",\n"
            "      \"path\": \"Base\",\n"
            "      \"properties\": {\n"
            "        \"Name\": \"in\"\n"
            "      }\n"
            "    }\n"
            "  }\n"
            "}\n");
}

}  // namespace
}  // namespace vexor::tools
