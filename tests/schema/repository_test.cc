#include "schema/repository.h"

#include <gtest/gtest.h>

namespace cim::schema {
namespace {

/// The qualifiers of most tests, on one line of their own file.
constexpr std::string_view kQualifiers =
    "Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride);"
    "Qualifier Abstract : boolean = false, Scope(class, association, indication), "
    "Flavor(Restricted);"
    "Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride);"
    "Qualifier Indication : boolean = false, Scope(class, indication), Flavor(DisableOverride);"
    "Qualifier Override : string, Scope(property, reference, method), Flavor(Restricted);"
    "Qualifier Description : string, Scope(any), Flavor(Translatable);"
    "Qualifier MaxLen : uint32, Scope(property, method, parameter);"
    "Qualifier Values : string[], Scope(property, method, parameter);"
    "Qualifier ArrayType : string = \"Bag\", Scope(property, parameter);"
    "Qualifier In : boolean = true, Scope(parameter), Flavor(DisableOverride);"
    "Qualifier Out : boolean = false, Scope(parameter), Flavor(DisableOverride);";

std::string text_of(const std::vector<Diagnostic>& errors) {
  std::string text;
  for (const Diagnostic& error : errors)
    text += error.text() + "\n";
  return text;
}

class RepositoryTest : public testing::Test {
 protected:
  RepositoryTest() { EXPECT_EQ(add(kQualifiers, "q.mof"), ""); }

  /// Adds a text; the result is all errors.
  std::string add(std::string_view text, const std::string& file = "t.mof") {
    return text_of(repository.add(read_mof_text(text, file)));
  }

  const Class& cls(std::string_view name) {
    const Class* found = repository.find(name);
    if (found != nullptr) return *found;
    ADD_FAILURE() << "no class " << name;
    static const Class kNone;
    return kNone;
  }

  std::vector<std::string> property_names(std::string_view name) {
    std::vector<std::string> names;
    for (const Property* property : repository.properties(cls(name))) {
      names.push_back(property->name);
    }
    return names;
  }

  std::vector<std::string> key_names(std::string_view name) {
    std::vector<std::string> names;
    for (const Property* property : repository.keys(cls(name)))
      names.push_back(property->name);
    return names;
  }

  static std::vector<std::string> names_of(const std::vector<const Class*>& classes) {
    std::vector<std::string> names;
    for (const Class* found : classes)
      names.push_back(found->name);
    return names;
  }

  Repository repository;
};

using Names = std::vector<std::string>;

TEST_F(RepositoryTest, Finds_classes_in_any_letter_case) {
  ASSERT_EQ(add("class VEXOR_Vsan { [Key] string Name; };"), "");
  EXPECT_EQ(repository.find("vexor_VSAN")->name, "VEXOR_Vsan");
  EXPECT_EQ(repository.find("VEXOR_Vsa"), nullptr);
  EXPECT_EQ(repository.find(""), nullptr);
  EXPECT_EQ(repository.find_qualifier_declaration("KEY")->name, "Key");
  EXPECT_EQ(repository.find_qualifier_declaration("Keys"), nullptr);
}

TEST_F(RepositoryTest, Takes_classes_of_one_load_in_any_order) {
  ASSERT_EQ(add("class C : B { };\nclass B : A { };\nclass A { [Key] string Name; };"), "");
  EXPECT_TRUE(repository.is_a("C", "A"));
  EXPECT_EQ(key_names("C"), Names{"Name"});
  ASSERT_EQ(repository.all().size(), 3U);
  EXPECT_EQ(repository.all()[0]->name, "A");
  EXPECT_EQ(repository.all()[1]->name, "B");
  EXPECT_EQ(repository.all()[2]->name, "C");
}

TEST_F(RepositoryTest, Takes_qualifier_declarations_behind_their_use) {
  EXPECT_EQ(add("[Version(\"1\")] class A { [Key] string Name; };\n"
                "Qualifier Version : string, Scope(class);"),
            "");
  EXPECT_EQ(cls("A").qualifiers[0].value, Value::string("1"));
}

TEST_F(RepositoryTest, Takes_superclasses_of_an_earlier_load) {
  ASSERT_EQ(add("class A { [Key] string Name; };"), "");
  ASSERT_EQ(add("class B : a { uint8 Size; };"), "");
  EXPECT_EQ(repository.superclass(cls("B")), &cls("A"));
  EXPECT_EQ(repository.superclass(cls("A")), nullptr);
  EXPECT_EQ(property_names("B"), (Names{"Name", "Size"}));
}

TEST_F(RepositoryTest, Adds_nothing_of_a_load_with_an_error) {
  EXPECT_NE(add("Qualifier New : boolean, Scope(any); class A { [Key] string N; };"
                "class B : Missing { };"),
            "");
  EXPECT_EQ(repository.find("A"), nullptr);
  EXPECT_EQ(repository.find_qualifier_declaration("New"), nullptr);
  EXPECT_TRUE(repository.all().empty());
  EXPECT_EQ(add("class A { [Key] string N; };"), "");
}

TEST_F(RepositoryTest, Passes_on_the_errors_of_the_reader) {
  EXPECT_EQ(add("class A { [Key] string N };"),
            "t.mof:1:26: expected ';' after property N, found '}'\n");
  EXPECT_EQ(repository.find("A"), nullptr);
}

TEST_F(RepositoryTest, Knows_what_derives_from_what) {
  ASSERT_EQ(add("class A { [Key] string N; };\nclass B : A { };\nclass C : B { };\n"
                "class D : A { };\nclass X { [Key] string N; };"),
            "");
  EXPECT_TRUE(repository.is_a("A", "A"));
  EXPECT_TRUE(repository.is_a("c", "a"));
  EXPECT_FALSE(repository.is_a("A", "C"));
  EXPECT_FALSE(repository.is_a("X", "A"));
  EXPECT_FALSE(repository.is_a("Missing", "A"));
  EXPECT_FALSE(repository.is_a("A", "Missing"));
  EXPECT_FALSE(repository.is_a("Missing", "Missing"));
}

TEST_F(RepositoryTest, Lists_subclasses_directly_or_through_all_steps) {
  ASSERT_EQ(add("class A { [Key] string N; };\nclass C : B { };\nclass B : A { };\n"
                "class D : A { };"),
            "");
  EXPECT_EQ(names_of(repository.subclasses("a", false)), (Names{"B", "D"}));
  EXPECT_EQ(names_of(repository.subclasses("A", true)), (Names{"B", "C", "D"}));
  EXPECT_EQ(names_of(repository.subclasses("C", true)), Names{});
  EXPECT_EQ(names_of(repository.subclasses("Missing", true)), Names{});
}

TEST_F(RepositoryTest, Lists_subclasses_of_later_loads_too) {
  ASSERT_EQ(add("class A { [Key] string N; };"), "");
  ASSERT_EQ(add("class B : A { };"), "");
  EXPECT_EQ(names_of(repository.subclasses("A", false)), Names{"B"});
}

TEST_F(RepositoryTest, Puts_inherited_properties_first_and_keeps_the_place_of_overridden_ones) {
  ASSERT_EQ(add("class A { [Key] string Name; string Caption; };\n"
                "class B : A { uint8 Size; [Override(\"NAME\")] string name; };\n"
                "class C : B { string Last; };"),
            "");
  EXPECT_EQ(property_names("C"), (Names{"name", "Caption", "Size", "Last"}));
  EXPECT_EQ(cls("B").properties.size(), 2U);
}

TEST_F(RepositoryTest, Propagates_keys_to_overriding_properties) {
  ASSERT_EQ(add("class A { [Key] string Name; };\n"
                "class B : A { [Override(\"Name\"), MaxLen(64)] string Name; };"),
            "");
  EXPECT_EQ(key_names("B"), Names{"Name"});
  const Property* name = repository.property(cls("B"), "NAME");
  EXPECT_TRUE(name->is_key());
  EXPECT_EQ(name->origin, "A");
  EXPECT_EQ(name->declaring_class, "B");
  EXPECT_FALSE(cls("B").properties[0].is_key());
  EXPECT_EQ(repository.property(cls("A"), "Name")->declaring_class, "A");
  EXPECT_EQ(repository.property(cls("B"), "Nam"), nullptr);
}

TEST_F(RepositoryTest, Inherits_qualifiers_by_their_flavors) {
  ASSERT_EQ(add("[Abstract, Description(\"a\") : Restricted] class A {\n"
                "  [Key, MaxLen(8), Description(\"own\") : Restricted] string Name; };\n"
                "class B : A { };\n"
                "class C : B { [Override(\"Name\"), MaxLen(16)] string Name; };\n"
                "class D : C { };"),
            "");
  EXPECT_TRUE(cls("A").is_abstract);
  EXPECT_FALSE(cls("B").is_abstract);
  EXPECT_TRUE(repository.qualifiers(cls("B")).empty());
  const Property* in_a = repository.property(cls("A"), "Name");
  EXPECT_NE(find_qualifier(in_a->qualifiers, "Description"), nullptr);
  const Property* in_b = repository.property(cls("B"), "Name");
  EXPECT_EQ(find_qualifier(in_b->qualifiers, "Description"), nullptr);
  EXPECT_EQ(find_qualifier(in_b->qualifiers, "MaxLen")->value,
            Value::unsigned_integer(Type::uint32, 8));
  EXPECT_EQ(in_b->declaring_class, "A");
  const Property* in_c = repository.property(cls("C"), "Name");
  EXPECT_EQ(find_qualifier(in_c->qualifiers, "MaxLen")->value,
            Value::unsigned_integer(Type::uint32, 16));
  EXPECT_NE(find_qualifier(in_c->qualifiers, "Override"), nullptr);
  const Property* in_d = repository.property(cls("D"), "Name");
  EXPECT_EQ(find_qualifier(in_d->qualifiers, "Override"), nullptr);
  EXPECT_TRUE(in_d->is_key());
}

TEST_F(RepositoryTest, Inherits_class_qualifiers_of_flavor_ToSubclass) {
  ASSERT_EQ(add("[Association, Description(\"a\")] class A { [Key] A REF x; [Key] A REF y; };\n"
                "[Description(\"b\")] class B : A { };"),
            "");
  EXPECT_TRUE(cls("B").is_association);
  const std::span<const Qualifier> qualifiers = repository.qualifiers(cls("B"));
  ASSERT_EQ(qualifiers.size(), 2U);
  EXPECT_EQ(qualifiers[0].name, "Association");
  EXPECT_EQ(qualifiers[1].value, Value::string("b"));
}

TEST_F(RepositoryTest, Inherits_the_default_of_an_overridden_property) {
  ASSERT_EQ(add("class A { [Key] string N; uint8 x = 5; uint8 y = 6; };\n"
                "class B : A { uint8 x; uint8 y = 7; };"),
            "");
  EXPECT_EQ(to_mof(repository.property(cls("B"), "x")->default_value), "5");
  EXPECT_EQ(to_mof(repository.property(cls("B"), "y")->default_value), "7");
}

TEST_F(RepositoryTest, Gives_qualifiers_their_declared_types_and_defaults) {
  ASSERT_EQ(add("class A { [Key, MaxLen(0x10), ArrayType] string N; };"), "");
  const std::vector<Qualifier>& qualifiers = cls("A").properties[0].qualifiers;
  EXPECT_EQ(qualifiers[0].value, Value::boolean(true));
  EXPECT_FALSE(qualifiers[0].flavors.overridable);
  EXPECT_EQ(qualifiers[1].value, Value::unsigned_integer(Type::uint32, 16));
  EXPECT_EQ(qualifiers[2].value, Value::string("Bag"));
}

TEST_F(RepositoryTest, Inherits_and_overrides_methods) {
  ASSERT_EQ(add("class A { [Key] string N; [Description(\"a\")] uint32 Do([In(false), Out] string "
                "S); uint32 Other(); };\n"
                "class B : A { uint32 Third(); [Override(\"Do\")] uint32 Do(string S); };"),
            "");
  const std::span<const Method* const> methods = repository.methods(cls("B"));
  ASSERT_EQ(methods.size(), 3U);
  EXPECT_EQ(methods[0]->name, "Do");
  EXPECT_EQ(methods[0]->declaring_class, "B");
  EXPECT_EQ(methods[0]->origin, "A");
  EXPECT_TRUE(methods[0]->parameters[0].is_out());
  EXPECT_EQ(find_qualifier(methods[0]->qualifiers, "Description")->value, Value::string("a"));
  EXPECT_EQ(methods[1]->name, "Other");
  EXPECT_EQ(repository.method(cls("B"), "THIRD"), methods[2]);
  EXPECT_EQ(repository.method(cls("A"), "Third"), nullptr);
}

TEST_F(RepositoryTest, Narrows_references_to_subclasses) {
  EXPECT_EQ(add("class A { [Key] string N; }; class B : A { };\n"
                "[Association] class R { [Key] A REF x; [Key] A REF y; };\n"
                "class S : R { [Override(\"x\")] B REF x; [Override(\"y\")] a REF y; };"),
            "");
  EXPECT_EQ(key_names("S"), (Names{"x", "y"}));
}

TEST_F(RepositoryTest, Lets_associations_and_indications_have_no_keys_of_their_own) {
  EXPECT_EQ(add("[Indication] class I { string Text; };\n"
                "[Association] class R { I REF x; I REF y; };"),
            "");
  EXPECT_TRUE(cls("I").is_indication);
}

TEST_F(RepositoryTest, Types_the_values_of_instances) {
  ASSERT_EQ(add("class A { [Key] uint16 N; datetime T; string S[]; };\n"
                "[Association] class R { [Key] A REF x; [Key] A REF y; };\n"
                "instance of a as $One { n = 7; T = \"00000001132312.000000:000\"; S = {}; };\n"
                "instance of R { x = $One; y = \"A.N=7\"; };"),
            "");
  ASSERT_EQ(repository.instances().size(), 2U);
  const InstanceDeclaration& one = *repository.instances()[0];
  EXPECT_EQ(one.properties[0].value, Value::unsigned_integer(Type::uint16, 7));
  EXPECT_EQ(one.properties[1].value.type(), Type::datetime);
  EXPECT_EQ(one.properties[2].value, Value::array_of(Type::string, {}));
  EXPECT_EQ(*repository.instances()[1]->properties[0].value.text(), "$One");
}

TEST_F(RepositoryTest, Accepts_a_qualifier_declared_twice_alike) {
  EXPECT_EQ(add("Qualifier MAXLEN : uint32, Scope(parameter, property, method);"), "");
  EXPECT_EQ(repository.qualifier_declarations().size(), 11U);
}

TEST_F(RepositoryTest, Suggests_class_names) {
  ASSERT_EQ(add("class VEXOR_Vsan { [Key] string N; };"), "");
  EXPECT_EQ(repository.suggest_class("vexor_vsam"), "; did you mean 'VEXOR_Vsan'?");
  EXPECT_EQ(repository.suggest_class("nothing"), "");
}

TEST_F(RepositoryTest, Answers_for_a_class_of_another_repository_with_nothing) {
  Class stranger;
  stranger.name = "Stranger";
  EXPECT_TRUE(repository.properties(stranger).empty());
  EXPECT_TRUE(repository.methods(stranger).empty());
  EXPECT_TRUE(repository.keys(stranger).empty());
  EXPECT_TRUE(repository.qualifiers(stranger).empty());
  EXPECT_EQ(repository.property(stranger, "a"), nullptr);
  EXPECT_EQ(repository.method(stranger, "a"), nullptr);
  EXPECT_EQ(repository.superclass(stranger), nullptr);
}

TEST_F(RepositoryTest, Keeps_its_classes_in_place_while_more_are_added) {
  ASSERT_EQ(add("class A { [Key] string N; };"), "");
  const Class* a = repository.find("A");
  const Property* n = repository.keys(*a)[0];
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(add("class A" + std::to_string(i) + " : A { };"), "");
  }
  Repository moved = std::move(repository);
  EXPECT_EQ(moved.find("A"), a);
  EXPECT_EQ(moved.keys(*a)[0], n);
  EXPECT_EQ(moved.subclasses("A", true).size(), 1000U);
}

TEST_F(RepositoryTest, Reads_and_adds_a_file) {
  EXPECT_EQ(text_of(repository.add_file("/nonexistent/a.mof")),
            "/nonexistent/a.mof: cannot be opened: No such file or directory\n");
}

TEST_F(RepositoryTest, Sorts_errors_by_file_and_line) {
  const std::string errors =
      add("class A { };\n"
          "class B : Missing { };\n"
          "class C { [Kay] string Name; };\n");
  EXPECT_EQ(errors,
            "t.mof:1:7: class A is not abstract, but neither it nor a superclass has a key\n"
            "t.mof:2:11: class B has an unknown superclass 'Missing'\n"
            "t.mof:3:7: class C is not abstract, but neither it nor a superclass has a key\n"
            "t.mof:3:12: unknown qualifier 'Kay' on property Name; did you mean 'Key'?\n");
}

struct Mistake {
  const char* name;
  const char* text;
  const char* expected;
};

void PrintTo(const Mistake& mistake, std::ostream* out) {
  *out << mistake.name;
}

class RepositoryMistakes : public RepositoryTest, public testing::WithParamInterface<Mistake> {};

TEST_P(RepositoryMistakes, Are_reported_where_they_are) {
  ASSERT_EQ(add("class VEXOR_Vsan { [Key] string Name; uint16 VsanId; string Tags[]; "
                "uint32 Do(string S); };\n"
                "class VEXOR_Zone { [Key] string Name; };\n"
                "[Association] class VEXOR_Link { [Key] VEXOR_Vsan REF Left; [Key] VEXOR_Vsan REF "
                "Right; };",
                "base.mof"),
            "");
  EXPECT_EQ(add(GetParam().text), std::string(GetParam().expected) + "\n");
  EXPECT_EQ(repository.all().size(), 3U);
}

const Mistake kMistakes[] = {
    {"unknown_superclass", "class B : VEXOR_Vsam { };",
     "t.mof:1:11: class B has an unknown superclass 'VEXOR_Vsam'; did you mean 'VEXOR_Vsan'?"},
    {"unknown_superclass_of_a_superclass", "class C : B { };\nclass B : Missing { };",
     "t.mof:2:11: class B has an unknown superclass 'Missing'"},
    {"duplicate_class_of_an_earlier_load", "class vexor_vsan { [Key] string Name; };",
     "t.mof:1:7: class vexor_vsan is already declared at base.mof:1:7"},
    {"duplicate_class_of_this_load", "class B : VEXOR_Vsan { };\nclass B : VEXOR_Vsan { };",
     "t.mof:2:7: class B is already declared at t.mof:1:7"},
    {"class_that_is_its_own_superclass", "class B : B { };",
     "t.mof:1:11: class B is its own superclass (B : B)"},
    {"inheritance_cycle", "class B : C { };\nclass C : D { };\nclass D : B { };",
     "t.mof:1:11: class B is its own superclass (B : C : D : B)"},
    {"class_below_an_inheritance_cycle", "class A : B { };\nclass B : C { };\nclass C : B { };",
     "t.mof:2:11: class B is its own superclass (B : C : B)"},
    {"property_of_another_type", "class B : VEXOR_Vsan { uint32 VsanId; };",
     "t.mof:1:31: property VsanId of class B is uint32, but class VEXOR_Vsan declares it as "
     "uint16"},
    {"property_of_another_arrayness", "class B : VEXOR_Vsan { uint16 VsanId[]; };",
     "t.mof:1:31: property VsanId of class B is uint16[], but class VEXOR_Vsan declares it as "
     "uint16"},
    {"array_made_scalar", "class B : VEXOR_Vsan { string Tags; };",
     "t.mof:1:31: property Tags of class B is string, but class VEXOR_Vsan declares it as "
     "string[]"},
    {"property_twice", "class B : VEXOR_Vsan { uint8 x; string X; };",
     "t.mof:1:40: property X is declared twice in class B"},
    {"override_of_nothing", "class B : VEXOR_Vsan { [Override(\"Size\")] string Size; };",
     "t.mof:1:25: property Size overrides 'Size', which no superclass of B has"},
    {"override_of_another_name", "class B : VEXOR_Vsan { [Override(\"Name\")] string Title; };",
     "t.mof:1:25: property Title overrides 'Name': an override has the name of what it overrides"},
    {"unknown_qualifier", "class B : VEXOR_Vsan { [MaxLenn(3)] string x; };",
     "t.mof:1:25: unknown qualifier 'MaxLenn' on property x; did you mean 'MaxLen'?"},
    {"unknown_qualifier_far_from_any", "[Nonsense] class B : VEXOR_Vsan { };",
     "t.mof:1:2: unknown qualifier 'Nonsense' on class B"},
    {"qualifier_on_the_wrong_element", "[Key] class B : VEXOR_Vsan { };",
     "t.mof:1:2: qualifier Key cannot stand on class B: its scope is property, reference"},
    {"qualifier_on_a_method", "class B : VEXOR_Vsan { [Key] uint32 x(); };",
     "t.mof:1:25: qualifier Key cannot stand on method x: its scope is property, reference"},
    {"qualifier_on_a_parameter", "class B : VEXOR_Vsan { uint32 x([Override(\"y\")] string y); };",
     "t.mof:1:34: qualifier Override cannot stand on parameter y: its scope is property, "
     "reference, method"},
    {"qualifier_on_a_property", "class B : VEXOR_Vsan { [Out] string x; };",
     "t.mof:1:25: qualifier Out cannot stand on property x: its scope is parameter"},
    {"qualifier_of_a_wrong_type", "class B : VEXOR_Vsan { [MaxLen(\"3\")] string x; };",
     "t.mof:1:25: qualifier MaxLen on property x: \"3\" is not a uint32"},
    {"qualifier_out_of_range", "class B : VEXOR_Vsan { [MaxLen(-3)] string x; };",
     "t.mof:1:25: qualifier MaxLen on property x: -3 is out of range for uint32 (0 to 4294967295)"},
    {"qualifier_that_needs_an_array", "class B : VEXOR_Vsan { [Values(\"a\")] string x; };",
     "t.mof:1:25: qualifier Values on property x: an array in braces is needed"},
    {"qualifier_without_its_value", "class B : VEXOR_Vsan { [MaxLen] string x; };",
     "t.mof:1:25: qualifier MaxLen on property x needs a value"},
    {"qualifier_twice", "class B : VEXOR_Vsan { [MaxLen(1), MAXLEN(2)] string x; };",
     "t.mof:1:36: qualifier MAXLEN stands twice on property x"},
    {"qualifier_that_must_not_change",
     "class B : VEXOR_Vsan { [Key(false), Override(\"Name\")] string Name; };",
     "t.mof:1:25: qualifier Key cannot change from true to false: it is inherited with "
     "DisableOverride"},
    {"qualifier_declared_differently", "Qualifier Key : boolean = true, Scope(property);",
     "t.mof:1:11: qualifier Key is already declared differently at q.mof:1:11"},
    {"concrete_class_without_keys", "class B { string Name; };",
     "t.mof:1:7: class B is not abstract, but neither it nor a superclass has a key"},
    {"key_below_a_class_with_keys", "class B : VEXOR_Vsan { [Key] string More; };",
     "t.mof:1:37: property More cannot be a key: class VEXOR_Vsan has keys already (Name)"},
    {"key_that_is_an_array", "class B { [Key] string Names[]; };",
     "t.mof:1:24: key property Names cannot be an array"},
    {"reference_in_a_plain_class", "class B : VEXOR_Vsan { VEXOR_Vsan REF x; };",
     "t.mof:1:39: reference x in class B, which is no association"},
    {"reference_to_an_unknown_class",
     "[Association] class B { [Key] VEXOR_Vsan REF x; [Key] VEXOR_Zon REF y; };",
     "t.mof:1:69: reference y refers to an unknown class 'VEXOR_Zon'; did you mean 'VEXOR_Zone'?"},
    {"parameter_of_an_unknown_class", "class B : VEXOR_Vsan { uint32 x(Missing REF y); };",
     "t.mof:1:45: parameter y of method x refers to an unknown class 'Missing'"},
    {"reference_that_is_not_narrowed",
     "class B : VEXOR_Link { [Override(\"Left\")] VEXOR_Zone REF Left; };",
     "t.mof:1:58: reference Left of class B refers to VEXOR_Zone, which does not derive from "
     "VEXOR_Vsan as class VEXOR_Link demands"},
    {"association_with_one_end", "[Association] class B { [Key] VEXOR_Vsan REF x; };",
     "t.mof:1:21: association B has fewer than two references"},
    {"association_below_a_plain_class",
     "[Association] class B : VEXOR_Vsan { VEXOR_Vsan REF x; VEXOR_Vsan REF y; };",
     "t.mof:1:21: association B derives from class VEXOR_Vsan, which is not an association"},
    {"method_twice", "class B : VEXOR_Vsan { uint32 x(); uint32 X(); };",
     "t.mof:1:43: method X is declared twice in class B"},
    {"parameter_twice", "class B : VEXOR_Vsan { uint32 x(string a, string A); };",
     "t.mof:1:50: parameter A is declared twice in method x"},
    {"method_of_another_signature", "class B : VEXOR_Vsan { uint32 Do(uint8 S); };",
     "t.mof:1:31: method Do of class B differs in return type or parameters from that of class "
     "VEXOR_Vsan"},
    {"method_of_another_return_type", "class B : VEXOR_Vsan { uint16 Do(string S); };",
     "t.mof:1:31: method Do of class B differs in return type or parameters from that of class "
     "VEXOR_Vsan"},
    {"instance_of_an_unknown_class", "instance of VEXOR_Vsam { Name = \"a\"; };",
     "t.mof:1:13: the instance declaration refers to an unknown class 'VEXOR_Vsam'; did you mean "
     "'VEXOR_Vsan'?"},
    {"instance_of_an_abstract_class",
     "[Abstract] class B { string Name; };\ninstance of B { Name = \"a\"; };",
     "t.mof:2:13: abstract class B has no instances"},
    {"instance_with_an_unknown_property", "instance of VEXOR_Vsan { Nam = \"a\"; };",
     "t.mof:1:26: class VEXOR_Vsan has no property 'Nam'; did you mean 'Name'?"},
    {"instance_with_a_property_twice", "instance of VEXOR_Vsan { Name = \"a\"; NAME = \"b\"; };",
     "t.mof:1:38: property NAME stands twice in the instance of VEXOR_Vsan"},
    {"instance_with_a_wrong_value", "instance of VEXOR_Vsan { VsanId = 65536; };",
     "t.mof:1:35: property VsanId: 65536 is out of range for uint16 (0 to 65535)"},
    {"instance_with_a_misplaced_alias", "instance of VEXOR_Vsan { Name = $One; };",
     "t.mof:1:33: property Name is no reference: an alias cannot stand here"},
};

INSTANTIATE_TEST_SUITE_P(Each, RepositoryMistakes, testing::ValuesIn(kMistakes),
                         [](const testing::TestParamInfo<Mistake>& mistake) {
                           return std::string(mistake.param.name);
                         });

}  // namespace
}  // namespace cim::schema
