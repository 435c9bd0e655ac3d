#include "schema/mof_reader.h"

#include <gtest/gtest.h>

#include <map>

namespace cim::schema {
namespace {

Document read(std::string_view text) {
  return read_mof_text(text, "t.mof");
}

/// The one class of a text that has nothing else.
Class read_class(std::string_view text) {
  Document document = read(text);
  EXPECT_EQ(document.error_text(), "");
  if (document.classes.size() != 1) {
    ADD_FAILURE() << document.classes.size() << " classes";
    return {};
  }
  return document.classes[0];
}

/// Files for include tests, by their names.
ReadOptions files(std::map<std::string, std::string> contents) {
  ReadOptions options;
  options.read_file = [contents = std::move(contents)](const std::string& path,
                                                       std::size_t) -> FileContent {
    const auto found = contents.find(path);
    if (found == contents.end()) return {std::nullopt, "is not there"};
    return {found->second, {}};
  };
  return options;
}

TEST(MofReader, Reads_an_empty_text) {
  const Document document = read("");
  EXPECT_TRUE(document.ok());
  EXPECT_TRUE(document.classes.empty());
  EXPECT_EQ(document.files, std::vector<std::string>{"t.mof"});
}

TEST(MofReader, Reads_a_qualifier_declaration) {
  const Document document = read(
      "Qualifier Key : boolean = false, Scope(property, reference), "
      "Flavor(DisableOverride, ToSubclass);");
  ASSERT_EQ(document.error_text(), "");
  ASSERT_EQ(document.qualifiers.size(), 1U);
  const QualifierDeclaration& key = document.qualifiers[0];
  EXPECT_EQ(key.name, "Key");
  EXPECT_EQ(key.type, Type::boolean);
  EXPECT_FALSE(key.is_array);
  EXPECT_EQ(key.default_value, Value::boolean(false));
  EXPECT_TRUE(key.allows(Scope::property));
  EXPECT_TRUE(key.allows(Scope::reference));
  EXPECT_FALSE(key.allows(Scope::class_));
  EXPECT_FALSE(key.flavors.overridable);
  EXPECT_TRUE(key.flavors.to_subclass);
  EXPECT_FALSE(key.flavors.translatable);
  EXPECT_EQ(key.position.text(), "t.mof:1:11");
}

TEST(MofReader, Reads_array_qualifiers_and_all_scopes_and_flavors) {
  const Document document = read(
      "qualifier Values : string[] = {\"a\"}, scope(any), flavor(EnableOverride, Restricted, "
      "Translatable);\n"
      "Qualifier Fixed : uint32[4], Scope(class, association, indication, method, parameter, "
      "schema);");
  ASSERT_EQ(document.error_text(), "");
  ASSERT_EQ(document.qualifiers.size(), 2U);
  const QualifierDeclaration& values = document.qualifiers[0];
  EXPECT_TRUE(values.is_array);
  EXPECT_EQ(values.array_size, std::nullopt);
  EXPECT_EQ(values.default_value, Value::strings({"a"}));
  EXPECT_TRUE(values.allows(Scope::reference));
  EXPECT_TRUE(values.flavors.overridable);
  EXPECT_FALSE(values.flavors.to_subclass);
  EXPECT_TRUE(values.flavors.translatable);
  const QualifierDeclaration& fixed = document.qualifiers[1];
  EXPECT_EQ(fixed.array_size, 4U);
  EXPECT_TRUE(fixed.default_value.is_null());
  EXPECT_TRUE(fixed.allows(Scope::indication));
  EXPECT_FALSE(fixed.allows(Scope::property));
}

TEST(MofReader, Reads_a_class_with_its_superclass) {
  const Class cls = read_class("class VEXOR_Vsan : CIM_AdminDomain { };");
  EXPECT_EQ(cls.name, "VEXOR_Vsan");
  EXPECT_EQ(cls.superclass, "CIM_AdminDomain");
  EXPECT_EQ(cls.position.text(), "t.mof:1:7");
  EXPECT_EQ(cls.superclass_position.text(), "t.mof:1:20");
  EXPECT_TRUE(cls.properties.empty());
}

TEST(MofReader, Reads_a_class_with_an_alias) {
  EXPECT_EQ(read_class("class A as $TheA : B { };").superclass, "B");
}

TEST(MofReader, Reads_properties_of_every_type) {
  const Class cls = read_class(
      "class A { boolean a; char16 b; uint8 c; sint8 d; uint16 e; sint16 f; uint32 g; sint32 h; "
      "uint64 i; sint64 j; real32 k; real64 l; string m; datetime n; CIM_System REF o; };");
  const Type expected[] = {Type::boolean, Type::char16,   Type::uint8,    Type::sint8,
                           Type::uint16,  Type::sint16,   Type::uint32,   Type::sint32,
                           Type::uint64,  Type::sint64,   Type::real32,   Type::real64,
                           Type::string,  Type::datetime, Type::reference};
  ASSERT_EQ(cls.properties.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(cls.properties[i].type, expected[i]) << i;
    EXPECT_FALSE(cls.properties[i].is_array) << i;
    EXPECT_TRUE(cls.properties[i].default_value.is_null()) << i;
    EXPECT_EQ(cls.properties[i].default_value.type(), expected[i]) << i;
  }
  EXPECT_EQ(cls.properties[14].reference_class, "CIM_System");
  EXPECT_EQ(cls.properties[4].origin, "A");
  EXPECT_EQ(cls.properties[4].declaring_class, "A");
}

TEST(MofReader, Reads_defaults_of_every_kind) {
  const Class cls = read_class(R"(class A {
    boolean a = TRUE; char16 b = 'x'; uint8 c = 0xFF; sint8 d = -0x80; uint16 e = 1010b;
    sint16 f = -017; real32 g = 1.5e3; real64 h = -.5; string i = "one " "two";
    datetime j = "00000001132312.000000:000"; string k = NULL; B REF l = "B.Name=\"x\""; };)");
  const auto text = [&](const char* name) {
    return to_mof(cls.find_property(name)->default_value);
  };
  EXPECT_EQ(text("a"), "true");
  EXPECT_EQ(text("b"), "'x'");
  EXPECT_EQ(text("c"), "255");
  EXPECT_EQ(text("d"), "-128");
  EXPECT_EQ(text("e"), "10");
  EXPECT_EQ(text("f"), "-15");
  EXPECT_EQ(text("g"), "1500.0");
  EXPECT_EQ(text("h"), "-0.5");
  EXPECT_EQ(text("i"), "\"one two\"");
  EXPECT_EQ(text("j"), "\"00000001132312.000000:000\"");
  EXPECT_EQ(text("k"), "NULL");
  EXPECT_EQ(text("l"), "\"B.Name=\\\"x\\\"\"");
}

TEST(MofReader, Reads_arrays_with_and_without_a_size) {
  const Class cls =
      read_class("class A { uint16 a[]; string b[4]; uint8 c[] = {1, 2}; string d[] = {}; };");
  EXPECT_TRUE(cls.properties[0].is_array);
  EXPECT_EQ(cls.properties[0].array_size, std::nullopt);
  EXPECT_TRUE(cls.properties[0].default_value.is_null());
  EXPECT_EQ(cls.properties[1].array_size, 4U);
  EXPECT_EQ(to_mof(cls.properties[2].default_value), "{1, 2}");
  EXPECT_FALSE(cls.properties[3].default_value.is_null());
}

TEST(MofReader, Reads_qualifiers_with_values_arrays_and_flavors) {
  const Class cls = read_class(
      "[Abstract, Version(\"2.8\" \".0\") : Restricted DisableOverride Translatable, "
      "Max(3), Values{\"a\", \"b\"} : ToSubclass EnableOverride ToInstance, None {}]\n"
      "class A { };");
  ASSERT_EQ(cls.qualifiers.size(), 5U);
  EXPECT_EQ(cls.qualifiers[0].name, "Abstract");
  EXPECT_FALSE(cls.qualifiers[0].value_given);
  EXPECT_EQ(cls.qualifiers[0].position.text(), "t.mof:1:2");
  EXPECT_EQ(cls.qualifiers[1].value, Value::string("2.8.0"));
  EXPECT_EQ(cls.qualifiers[1].written.to_subclass, false);
  EXPECT_EQ(cls.qualifiers[1].written.overridable, false);
  EXPECT_EQ(cls.qualifiers[1].written.translatable, true);
  EXPECT_EQ(cls.qualifiers[2].value, Value::unsigned_integer(Type::uint64, 3));
  EXPECT_EQ(cls.qualifiers[2].written.overridable, std::nullopt);
  EXPECT_EQ(cls.qualifiers[3].value, Value::strings({"a", "b"}));
  EXPECT_EQ(cls.qualifiers[3].written.to_subclass, true);
  EXPECT_EQ(cls.qualifiers[3].written.overridable, true);
  EXPECT_TRUE(cls.qualifiers[4].value_given);
  EXPECT_TRUE(cls.qualifiers[4].value.elements().empty());
}

TEST(MofReader, Knows_a_key_as_soon_as_it_is_read) {
  const Class cls = read_class(
      "class A { [Key] string a; [Key(true)] string b; [Key(false)] string c; string d; };");
  EXPECT_TRUE(cls.properties[0].is_key());
  EXPECT_TRUE(cls.properties[1].is_key());
  EXPECT_FALSE(cls.properties[2].is_key());
  EXPECT_FALSE(cls.properties[3].is_key());
}

TEST(MofReader, Reads_methods_with_parameters) {
  const Class cls = read_class(
      "class A {\n"
      "  uint32 Reset();\n"
      "  [Static] boolean Change([In] uint16 State, [In(false), Out] CIM_ConcreteJob REF Job,\n"
      "                 string Names[], [In, Out] uint8 Bytes[8]);\n"
      "};");
  ASSERT_EQ(cls.methods.size(), 2U);
  EXPECT_EQ(cls.methods[0].name, "Reset");
  EXPECT_EQ(cls.methods[0].return_type, Type::uint32);
  EXPECT_TRUE(cls.methods[0].parameters.empty());
  const Method& change = cls.methods[1];
  EXPECT_EQ(change.return_type, Type::boolean);
  EXPECT_EQ(change.qualifiers[0].name, "Static");
  EXPECT_EQ(change.position.text(), "t.mof:3:20");
  ASSERT_EQ(change.parameters.size(), 4U);
  EXPECT_TRUE(change.parameters[0].is_in());
  EXPECT_FALSE(change.parameters[0].is_out());
  EXPECT_FALSE(change.parameters[1].is_in());
  EXPECT_TRUE(change.parameters[1].is_out());
  EXPECT_EQ(change.parameters[1].type, Type::reference);
  EXPECT_EQ(change.parameters[1].reference_class, "CIM_ConcreteJob");
  EXPECT_TRUE(change.parameters[2].is_in());
  EXPECT_TRUE(change.parameters[2].is_array);
  EXPECT_EQ(change.parameters[3].array_size, 8U);
  EXPECT_TRUE(change.parameters[3].is_in());
  EXPECT_EQ(change.find_parameter("JOB"), &change.parameters[1]);
  EXPECT_EQ(change.find_parameter("Jobs"), nullptr);
  EXPECT_EQ(cls.find_method("CHANGE"), &cls.methods[1]);
}

TEST(MofReader, Reads_instances_with_values_and_aliases) {
  const Document document = read(
      "[Description(\"x\")] instance of VEXOR_Vsan as $One {\n"
      "  Name = \"20\" \"01\"; VsanId = 1; Status = NULL; Codes = {2, 3};\n"
      "  Domain = $Two;\n"
      "};");
  ASSERT_EQ(document.error_text(), "");
  ASSERT_EQ(document.instances.size(), 1U);
  const InstanceDeclaration& instance = document.instances[0];
  EXPECT_EQ(instance.class_name, "VEXOR_Vsan");
  EXPECT_EQ(instance.alias, "$One");
  EXPECT_EQ(instance.position.text(), "t.mof:1:32");
  EXPECT_EQ(instance.qualifiers.size(), 1U);
  ASSERT_EQ(instance.properties.size(), 5U);
  EXPECT_EQ(instance.properties[0].name, "Name");
  EXPECT_EQ(instance.properties[0].value, Value::string("2001"));
  EXPECT_EQ(instance.properties[0].position.text(), "t.mof:2:3");
  EXPECT_EQ(instance.properties[0].value_position.text(), "t.mof:2:10");
  EXPECT_EQ(to_mof(instance.properties[1].value), "1");
  EXPECT_TRUE(instance.properties[2].value.is_null());
  EXPECT_EQ(to_mof(instance.properties[3].value), "{2, 3}");
  EXPECT_EQ(instance.properties[4].value.type(), Type::reference);
  EXPECT_EQ(*instance.properties[4].value.text(), "$Two");
}

TEST(MofReader, Skips_comments_wherever_blanks_may_stand) {
  const Class cls = read_class(
      "// first\n/* second\n * // */class/**/A/* : B */{ // string x;\n"
      "string/* */y/***/; /* \" ' */ };//");
  ASSERT_EQ(cls.properties.size(), 1U);
  EXPECT_EQ(cls.properties[0].name, "y");
  EXPECT_EQ(cls.position.text(), "t.mof:3:18");
}

TEST(MofReader, Takes_key_words_in_any_letter_case) {
  const Document document = read(
      "QUALIFIER K : BOOLEAN = TRUE, SCOPE(ANY), FLAVOR(RESTRICTED);\n"
      "CLASS A { STRING s = null; A ref r; };\n"
      "INSTANCE OF A AS $x { s = \"\"; };\n#PRAGMA LOCALE(\"en\")");
  EXPECT_EQ(document.error_text(), "");
  EXPECT_EQ(document.qualifiers.size(), 1U);
  EXPECT_EQ(document.classes[0].properties[1].type, Type::reference);
  EXPECT_EQ(document.instances.size(), 1U);
}

TEST(MofReader, Takes_key_words_as_names_where_no_key_word_can_stand) {
  const Class cls =
      read_class("[Association] class A { string Schema; string Flavor; uint8 of; };");
  EXPECT_EQ(cls.properties[0].name, "Schema");
  EXPECT_EQ(cls.qualifiers[0].name, "Association");
}

TEST(MofReader, Accepts_windows_line_ends_and_a_byte_order_mark) {
  const Document document = read(
      "\xEF\xBB\xBF"
      "class A {\r\n  string b;\r\n  c;\r\n};\r\n");
  EXPECT_EQ(document.error_text(),
            "t.mof:3:3: unknown type 'c' (a reference is written 'c REF')\n");
}

TEST(MofReader, Counts_columns_in_characters) {
  const Document document =
      read("class A { string b = \"\xC3\xA9\xE2\x82\xAC\"; string\tc = 1; };");
  EXPECT_EQ(document.error_text(), "t.mof:1:39: the default of property c: 1 is not a string\n");
}

TEST(MofReader, Accepts_other_pragmas) {
  EXPECT_EQ(read("#pragma locale (\"en_US\")\n#pragma namespace(\"root/\" \"cimv2\")").error_text(),
            "");
}

TEST(MofReader, Includes_files_relative_to_the_including_one) {
  const ReadOptions options =
      files({{"mof/all.mof",
              "#pragma include (\"sub/a.mof\")\nclass Last { };\n"
              "#pragma include (\"/abs/b.mof\")"},
             {"mof/sub/a.mof", "#pragma include (\"../c.mof\") class A {};"},
             {"mof/c.mof", "class C { };"},
             {"/abs/b.mof", "class B { string x };"}});
  const Document document = read_mof_file("mof/all.mof", options);
  EXPECT_EQ(document.error_text(), "/abs/b.mof:1:20: expected ';' after property x, found '}'\n");
  ASSERT_EQ(document.classes.size(), 4U);
  EXPECT_EQ(document.classes[0].name, "C");
  EXPECT_EQ(document.classes[1].name, "A");
  EXPECT_EQ(document.classes[2].name, "Last");
  EXPECT_EQ(document.classes[3].name, "B");
  EXPECT_EQ(document.files,
            (std::vector<std::string>{"mof/all.mof", "mof/sub/a.mof", "mof/c.mof", "/abs/b.mof"}));
}

TEST(MofReader, Includes_a_file_once_however_often_it_is_named) {
  const ReadOptions options =
      files({{"a.mof", "#pragma include (\"c.mof\")"}, {"c.mof", "class C { };"}});
  const Document document = read_mof_text(
      "#pragma include (\"a.mof\")\n#pragma include (\"c.mof\")\n#pragma include "
      "(\"./x/../c.mof\")",
      "t.mof", options);
  EXPECT_EQ(document.error_text(), "");
  EXPECT_EQ(document.classes.size(), 1U);
}

TEST(MofReader, Reports_a_file_that_includes_itself) {
  const ReadOptions options = files({{"a.mof", "#pragma include (\"b.mof\")\nclass A { };"},
                                     {"b.mof", "  #pragma include (\"a.mof\")\nclass B { };"}});
  const Document document = read_mof_file("a.mof", options);
  EXPECT_EQ(document.error_text(), "b.mof:1:20: included file 'a.mof' includes itself\n");
  EXPECT_EQ(document.classes.size(), 2U);
}

TEST(MofReader, Reports_a_missing_file) {
  EXPECT_EQ(read_mof_file("/nonexistent/x.mof").error_text(),
            "/nonexistent/x.mof: cannot be opened: No such file or directory\n");
  EXPECT_EQ(read_mof_text("#pragma include (\"gone.mof\")", "/nonexistent/t.mof").error_text(),
            "/nonexistent/t.mof:1:18: included file '/nonexistent/gone.mof' cannot be opened: No "
            "such file or directory\n");
}

TEST(MofReader, Reads_regular_files_only) {
  EXPECT_EQ(read_mof_file("/dev/zero").error_text(), "/dev/zero: is not a regular file\n");
  EXPECT_EQ(read_mof_file("/").error_text(), "/: is not a regular file\n");
}

TEST(MofReader, Refuses_a_file_beyond_its_limit) {
  ReadOptions options;
  options.max_file_bytes = 10;
  EXPECT_EQ(read_mof_text("class A { };", "t.mof", options).error_text(),
            "t.mof: is larger than 10 bytes\n");
  EXPECT_EQ(read_mof_file(CIM_SOURCE_DIR "/mof/qualifiers.mof", options).error_text(),
            CIM_SOURCE_DIR "/mof/qualifiers.mof: is larger than 10 bytes\n");
}

TEST(MofReader, Refuses_files_that_are_too_large_together) {
  ReadOptions options = files({{"a.mof", "class A { };"}, {"b.mof", "class B { };"}});
  options.max_total_bytes = 70;
  const Document document =
      read_mof_text("#pragma include(\"a.mof\")\n#pragma include(\"b.mof\")", "t.mof", options);
  EXPECT_EQ(document.error_text(),
            "t.mof:2:17: included file 'b.mof' makes all files together larger than 70 bytes\n");
}

TEST(MofReader, Goes_on_behind_an_error_in_a_class) {
  const Document document = read(
      "class A {\n"
      "  unit16 a;\n"
      "  string b\n"
      "  string c;\n"
      "  uint8 d = 300;\n"
      "  string e;\n"
      "};\n"
      "class B { };");
  EXPECT_EQ(document.error_text(),
            "t.mof:2:3: unknown type 'unit16'; did you mean 'uint16'?\n"
            "t.mof:4:3: expected ';' after property b, found 'string'\n"
            "t.mof:5:13: the default of property d: 300 is out of range for uint8 (0 to 255)\n");
  ASSERT_EQ(document.classes.size(), 2U);
  EXPECT_EQ(document.classes[0].properties.size(), 1U);
}

TEST(MofReader, Goes_on_with_the_next_class_behind_a_missing_brace) {
  const Document document = read("class A { string a;\nclass B { };\nclass C { }\nclass D { };");
  EXPECT_EQ(document.error_text(),
            "t.mof:2:1: expected '}' at the end of class A, found 'class'\n"
            "t.mof:4:1: expected ';' after class C, found 'class'\n");
  ASSERT_EQ(document.classes.size(), 3U);
  EXPECT_EQ(document.classes[0].name, "B");
  EXPECT_EQ(document.classes[2].name, "D");
}

TEST(MofReader, Stops_after_too_many_errors) {
  ReadOptions options;
  options.max_errors = 2;
  const Document document = read_mof_text("x;\ny;\nz;\n", "t.mof", options);
  EXPECT_EQ(document.error_text(),
            "t.mof:1:1: expected 'class', 'instance', 'qualifier' or '#pragma', found 'x'\n"
            "t.mof:2:1: expected 'class', 'instance', 'qualifier' or '#pragma', found 'y'\n"
            "t.mof:2:1: too many errors: reading stopped here\n");
}

}  // namespace
}  // namespace cim::schema
