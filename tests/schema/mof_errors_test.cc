// What the reader says about each kind of mistake, and where.
#include <gtest/gtest.h>

#include "schema/mof_reader.h"

namespace cim::schema {
namespace {

struct Mistake {
  const char* name;
  std::string_view text;
  const char* expected;  // all errors
};

void PrintTo(const Mistake& mistake, std::ostream* out) {
  *out << mistake.name;
}

class MofMistakes : public testing::TestWithParam<Mistake> {};

TEST_P(MofMistakes, Are_reported_where_they_are) {
  const Document document = read_mof_text(GetParam().text, "t.mof");
  EXPECT_EQ(document.error_text(), std::string(GetParam().expected) + "\n");
}

using namespace std::string_view_literals;

const Mistake kMistakes[] = {
    // Outside of classes.
    {"stray_word", "klass A { };",
     "t.mof:1:1: expected 'class', 'instance', 'qualifier' or '#pragma', found 'klass'; did you "
     "mean 'class'?"},
    {"stray_mark", "\n  };",
     "t.mof:2:3: expected 'class', 'instance', 'qualifier' or '#pragma', found '}'"},
    {"stray_string", "\"a long text that is shown cut off after a while\";",
     "t.mof:1:1: expected 'class', 'instance', 'qualifier' or '#pragma', found \"a long text that "
     "is shown cu..."},
    {"qualifiers_without_a_class", "[Abstract]\nstring x;",
     "t.mof:2:1: expected 'class' or 'instance' after the qualifiers, found 'string'"},
    {"class_without_a_name", "class { };", "t.mof:1:7: expected the name of the class, found '{'"},
    {"class_with_a_reserved_name", "class Null { };",
     "t.mof:1:7: expected the name of the class, found 'Null' (a reserved word)"},
    {"class_without_a_brace", "class A ;",
     "t.mof:1:9: expected '{' after the head of class A, found ';'"},
    {"superclass_missing", "class A : { };",
     "t.mof:1:11: expected the superclass of class A, found '{'"},
    {"alias_without_dollar", "class A as B { };",
     "t.mof:1:12: expected an alias such as '$Name' after 'as', found 'B'"},
    {"class_never_closed", "class A { string b;",
     "t.mof:1:20: expected '}' at the end of class A, found the end of the file"},
    {"class_without_semicolon", "class A { }",
     "t.mof:1:12: expected ';' after class A, found the end of the file"},
    {"unknown_directive", "#include (\"a.mof\");",
     "t.mof:1:1: expected '#pragma', found '#include'"},
    {"pragma_without_name", "#pragma (\"a\")",
     "t.mof:1:9: expected the name of the pragma, found '('"},
    {"pragma_without_parenthesis", "#pragma include \"a.mof\"",
     "t.mof:1:17: expected '(' after pragma include, found \"a.mof\""},
    {"pragma_with_a_number", "#pragma locale (1)",
     "t.mof:1:17: expected a string for pragma locale, found '1'"},
    {"pragma_never_closed", "#pragma locale (\"a\"",
     "t.mof:1:20: expected ')' at the end of pragma locale, found the end of the file"},
    {"include_of_nothing", "#pragma include (\"\")", "t.mof:1:18: pragma include names no file"},

    // Qualifier declarations.
    {"declaration_without_a_name", "Qualifier : boolean, Scope(any);",
     "t.mof:1:11: expected the name of the qualifier, found ':'"},
    {"declaration_without_a_type", "Qualifier A = true, Scope(any);",
     "t.mof:1:13: expected ':' after qualifier A, found '='"},
    {"declaration_of_unknown_type", "Qualifier A : bool, Scope(any);",
     "t.mof:1:15: unknown type 'bool' (a reference is written 'bool REF')"},
    {"declaration_of_a_reference", "Qualifier A : B REF, Scope(any);",
     "t.mof:1:11: qualifier A cannot be a reference"},
    {"declaration_with_a_wrong_default", "Qualifier A : uint8 = \"x\", Scope(any);",
     "t.mof:1:23: the default of qualifier A: \"x\" is not a uint8"},
    {"declaration_without_scope", "Qualifier A : boolean;",
     "t.mof:1:22: expected ',' and a scope after the type of qualifier A, found ';'"},
    {"declaration_with_flavor_for_scope", "Qualifier A : boolean, Flavor(Restricted);",
     "t.mof:1:24: expected 'Scope' of qualifier A, found 'Flavor'"},
    {"declaration_with_an_unknown_scope", "Qualifier A : boolean, Scope(class, propery);",
     "t.mof:1:37: expected an element in the scope of qualifier A, found 'propery'; did you mean "
     "'property'?"},
    {"declaration_with_an_unknown_flavor", "Qualifier A : boolean, Scope(any), Flavor(Restrict);",
     "t.mof:1:43: expected a flavor, found 'Restrict'; did you mean 'Restricted'?"},
    {"declaration_never_ended", "Qualifier A : boolean, Scope(any)\nclass B { };",
     "t.mof:2:1: expected ';' after qualifier A, found 'class'"},

    // Qualifiers.
    {"empty_qualifier_list", "[] class A { };",
     "t.mof:1:2: expected the name of a qualifier, found ']'"},
    {"qualifier_list_not_closed", "[Abstract class A { };",
     "t.mof:1:11: expected ',' or ']' after qualifier Abstract, found 'class'"},
    {"qualifier_without_value", "[Version()] class A { };",
     "t.mof:1:10: expected a value for qualifier Version, found ')'"},
    {"qualifier_value_not_closed", "[Version(\"1\"] class A { };",
     "t.mof:1:13: expected ')' after the value of qualifier Version, found ']'"},
    {"qualifier_array_without_comma", "[Values{\"a\" 1}] class A { };",
     "t.mof:1:13: expected ',' or '}' in the values of qualifier Values, found '1'"},
    {"qualifier_array_with_trailing_comma", "[Values{\"a\",}] class A { };",
     "t.mof:1:13: expected a value for qualifier Values, found '}'"},
    {"qualifier_array_in_an_array", "[Values{{\"a\"}}] class A { };",
     "t.mof:1:9: expected a value for qualifier Values, found '{'"},
    {"unknown_flavor", "[Key : ToSubclas] class A { };",
     "t.mof:1:8: expected a flavor, found 'ToSubclas'; did you mean 'ToSubclass'?"},

    // Properties and methods.
    {"unknown_type", "class A { unit16 VsanId; };",
     "t.mof:1:11: unknown type 'unit16'; did you mean 'uint16'?"},
    {"reference_without_ref", "class A { CIM_System Name; };",
     "t.mof:1:11: unknown type 'CIM_System' (a reference is written 'CIM_System REF')"},
    {"property_without_a_type", "class A { [Key] = 1; };",
     "t.mof:1:17: expected a property or method type, found '='"},
    {"property_without_a_name", "class A { uint16 ; };",
     "t.mof:1:18: expected the name of a property or method, found ';'"},
    {"property_with_a_reserved_name", "class A { uint16 true; };",
     "t.mof:1:18: expected the name of a property or method, found 'true' (a reserved word)"},
    {"property_without_semicolon", "class A {\n  [Key]\n  uint16 VsanId\n};",
     "t.mof:4:1: expected ';' after property VsanId, found '}'"},
    {"property_without_a_default", "class A { uint16 a = ; };",
     "t.mof:1:22: expected a value for the default of property a, found ';'"},
    {"default_out_of_range", "class A { uint8 a = 256; };",
     "t.mof:1:21: the default of property a: 256 is out of range for uint8 (0 to 255)"},
    {"default_array_for_a_scalar", "class A { uint8 a = {1}; };",
     "t.mof:1:21: the default of property a: a single value is needed, not an array"},
    {"default_scalar_for_an_array", "class A { uint8 a[] = 1; };",
     "t.mof:1:23: the default of property a: an array in braces is needed"},
    {"default_alias", "class A { A REF a = $B; };",
     "t.mof:1:21: the default of property a: an alias can stand only in an instance"},
    {"array_of_size_zero", "class A { uint8 a[0]; };",
     "t.mof:1:19: expected an array size from 1 to 4294967295 for property a, found '0'"},
    {"array_of_negative_size", "class A { uint8 a[-1]; };",
     "t.mof:1:19: expected an array size from 1 to 4294967295 for property a, found '-1'"},
    {"array_of_huge_size", "class A { uint8 a[4294967296]; };",
     "t.mof:1:19: expected an array size from 1 to 4294967295 for property a, found '4294967296'"},
    {"array_of_real_size", "class A { uint8 a[1.5]; };",
     "t.mof:1:19: expected an array size from 1 to 4294967295 for property a, found '1.5'"},
    {"array_not_closed", "class A { uint8 a[; };",
     "t.mof:1:19: expected ']' after the array mark of property a, found ';'"},
    {"array_of_references", "class A { A REF a[]; };",
     "t.mof:1:18: property a: a reference cannot be an array"},
    {"method_returning_a_reference", "class A { A REF a(); };",
     "t.mof:1:11: method a cannot return a reference"},
    {"method_returning_nothing", "class A { void a(); };",
     "t.mof:1:11: unknown type 'void' (a reference is written 'void REF')"},
    {"method_not_closed", "class A { uint32 a(string b; };",
     "t.mof:1:28: expected ',' or ')' in the parameters of method a, found ';'"},
    {"method_without_semicolon", "class A { uint32 a() };",
     "t.mof:1:22: expected ';' after method a, found '}'"},
    {"parameter_without_a_name", "class A { uint32 a(string); };",
     "t.mof:1:26: expected the name of a parameter of method a, found ')'"},
    {"parameter_without_a_type", "class A { uint32 a(string b,); };",
     "t.mof:1:29: expected the type of a parameter of method a, found ')'"},

    // Instances.
    {"instance_without_of", "instance VEXOR_Vsan { };",
     "t.mof:1:10: expected 'of' after 'instance', found 'VEXOR_Vsan'"},
    {"instance_without_a_class", "instance of { };",
     "t.mof:1:13: expected the class of the instance, found '{'"},
    {"instance_without_equals", "instance of A { Name \"x\"; };",
     "t.mof:1:22: expected '=' after property Name, found \"x\""},
    {"instance_without_value", "instance of A { Name = x; };",
     "t.mof:1:24: expected a value for property Name, found 'x'"},
    {"instance_property_without_semicolon", "instance of A { Name = 1 };",
     "t.mof:1:26: expected ';' after property Name, found '}'"},
    {"instance_not_closed", "instance of A { Name = 1;",
     "t.mof:1:26: expected '}' at the end of the instance of A, found the end of the file"},

    // Tokens.
    {"comment_not_closed", "class A { };\n /* never\nclosed", "t.mof:2:2: comment is not closed"},
    {"string_not_closed", "class A { string a = \"never;\n string b; };",
     "t.mof:1:22: string is not closed before the end of the line"},
    {"string_not_closed_at_the_end", "class A { string a = \"never",
     "t.mof:1:22: string is not closed before the end of the line\n"
     "t.mof:1:28: expected '}' at the end of class A, found the end of the file"},
    {"string_with_unknown_escape", "class A { string a = \"\\q\"; };",
     "t.mof:1:22: string: '\\q' is not an escape"},
    {"string_with_empty_hex_escape", "class A { string a = \"\\xg\"; };",
     "t.mof:1:22: string: '\\x' needs one to four hexadecimal digits"},
    {"string_with_null_escape", "class A { string a = \"\\x0000\"; };",
     "t.mof:1:22: string: '\\x0' is not allowed: a text cannot hold the character U+0000"},
    {"string_with_control_character", "class A { string a = \"\x01\"; };",
     "t.mof:1:22: string: control character U+0001 must be written as an escape"},
    {"string_with_null_byte", "class A { string a = \"\0\"; };"sv,
     "t.mof:1:22: string: control character U+0000 must be written as an escape"},
    {"string_not_utf8", "class A { string a = \"\xE9\"; };",
     "t.mof:1:22: string: a text holds a byte that is not UTF-8"},
    {"character_of_two", "class A { char16 a = 'ab'; };",
     "t.mof:1:22: character: exactly one character of 16 bits must stand between the quotes"},
    {"character_not_closed", "class A { char16 a = 'a; };",
     "t.mof:1:22: character is not closed before the end of the line\n"
     "t.mof:1:28: expected '}' at the end of class A, found the end of the file"},
    {"malformed_number", "class A { uint8 a = 0xZZ; };", "t.mof:1:21: malformed number '0xZZ'"},
    {"octal_with_a_nine", "class A { uint8 a = 09; };", "t.mof:1:21: malformed number '09'"},
    {"number_beyond_64_bits", "class A { uint64 a = 99999999999999999999; };",
     "t.mof:1:22: number '99999999999999999999' does not fit 64 bits"},
    {"real_beyond_64_bits", "class A { real64 a = 1.0e400; };",
     "t.mof:1:22: number '1.0e400' is out of range for real64"},
    {"character_of_no_token", "class A { string a? };",
     "t.mof:1:19: character '?' cannot stand here"},
    {"letter_outside_ascii", "class \xC3\x84 { };",
     "t.mof:1:7: character U+00C4 cannot stand here"},
    {"byte_that_is_not_utf8", "class \xFF { };",
     "t.mof:1:7: a byte that is not UTF-8 cannot stand here"},
    {"null_byte", "class A \0 { };"sv, "t.mof:1:9: character U+0000 cannot stand here"},
    {"lone_dollar", "class A as $ { };", "t.mof:1:12: character '$' cannot stand here"},
};

INSTANTIATE_TEST_SUITE_P(Each, MofMistakes, testing::ValuesIn(kMistakes),
                         [](const testing::TestParamInfo<Mistake>& mistake) {
                           return std::string(mistake.param.name);
                         });

}  // namespace
}  // namespace cim::schema
