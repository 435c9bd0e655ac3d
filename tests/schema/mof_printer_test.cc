#include <gtest/gtest.h>

#include "schema/repository.h"

namespace cim::schema {
namespace {

constexpr const char* kQualifiers =
    R"(Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride);
Qualifier Abstract : boolean = false, Scope(class, association, indication), Flavor(Restricted);
Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride);
Qualifier Override : string, Scope(property, reference, method), Flavor(Restricted);
Qualifier Description : string, Scope(any), Flavor(Translatable);
Qualifier MaxLen : uint32, Scope(property, method, parameter);
Qualifier Fixed : uint8[2] = {1, 2}, Scope(property), Flavor(DisableOverride, Restricted);
Qualifier Values : string[], Scope(property, method, parameter);
Qualifier In : boolean = true, Scope(parameter), Flavor(DisableOverride);
Qualifier Out : boolean = false, Scope(parameter), Flavor(DisableOverride);
Qualifier Weight : real32 = 0.5, Scope(parameter, schema);
)";

std::string add(Repository& repository, const std::string& text) {
  std::string errors;
  for (const Diagnostic& error : repository.add(read_mof_text(text, "t.mof"))) {
    errors += error.text() + "\n";
  }
  return errors;
}

TEST(MofPrinter, Prints_qualifier_declarations_as_they_are_written) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  std::string text;
  for (const QualifierDeclaration* declaration : repository.qualifier_declarations()) {
    text += to_mof(*declaration);
  }
  EXPECT_EQ(text, kQualifiers);
}

TEST(MofPrinter, Prints_a_class_in_its_canonical_form) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  ASSERT_EQ(add(repository,
                "[ABSTRACT(true),Description(\"A \" \"base\"):Restricted]class A{[Key:ToSubclass]"
                "string Name;uint8 Codes[]={0x1,2};real64 r[3]; char16 c='\\x41'; "
                "[Values{\"a\",\"b\"},MaxLen(0x10):DisableOverride Translatable]STRING s=\"\\t\";"
                "uint32 Do([In(FALSE),Out]A REF Other,string b[]);boolean Stop();};"),
            "");
  EXPECT_EQ(to_mof(*repository.find("A"), repository),
            R"([ABSTRACT, Description("A base") : Restricted]
class A {
  [Key]
  string Name;

  uint8 Codes[] = {1, 2};

  real64 r[3];

  char16 c = 'A';

  [Values {"a", "b"}, MaxLen(16) : DisableOverride Translatable]
  string s = "\t";

  uint32 Do(
    [In(false), Out]
    A REF Other,
    string b[]);

  boolean Stop();
};
)");
}

TEST(MofPrinter, Prints_an_empty_class) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  ASSERT_EQ(add(repository, "class A { [Key] string N; }; class B : A { };"), "");
  EXPECT_EQ(to_mof(*repository.find("B"), repository), "class B : A {\n};\n");
}

TEST(MofPrinter, Prints_long_qualifier_lists_one_a_line) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  ASSERT_EQ(add(repository,
                "class A { [Key, Description(\"a text that together with its neighbours is longer "
                "than a line\"), MaxLen(100), Values {\"x\"}] string N; };"),
            "");
  EXPECT_EQ(to_mof(*repository.find("A"), repository),
            R"(class A {
  [Key,
   Description("a text that together with its neighbours is longer than a line"),
   MaxLen(100),
   Values {"x"}]
  string N;
};
)");
}

TEST(MofPrinter, Prints_a_complete_class_with_what_it_inherits) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  ASSERT_EQ(add(repository,
                "[Description(\"base\")] class A { [Key, MaxLen(8)] string Name; uint8 Size = 3; "
                "uint32 Do(); };\n"
                "class B : A { [Override(\"Name\")] string Name; uint16 Own; };"),
            "");
  EXPECT_EQ(to_mof(*repository.find("B"), repository, Form::complete),
            R"([Description("base")]
class B : A {
  [Key, MaxLen(8), Override("Name")]
  string Name;

  // from A
  uint8 Size = 3;

  uint16 Own;

  // from A
  uint32 Do();
};
)");
}

/// Prints every class of `from` and reads all of that again.
void expect_round_trip(const Repository& from) {
  std::string text;
  for (const QualifierDeclaration* declaration : from.qualifier_declarations()) {
    text += to_mof(*declaration);
  }
  for (const Class* cls : from.all())
    text += to_mof(*cls, from);
  Repository again;
  ASSERT_EQ(add(again, text), "") << text;
  ASSERT_EQ(again.all().size(), from.all().size());
  for (std::size_t i = 0; i < from.all().size(); ++i) {
    EXPECT_TRUE(same_declaration(*from.all()[i], *again.all()[i])) << from.all()[i]->name;
  }
  for (const QualifierDeclaration* declaration : from.qualifier_declarations()) {
    const QualifierDeclaration* read = again.find_qualifier_declaration(declaration->name);
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(same_declaration(*declaration, *read)) << declaration->name;
  }
}

TEST(MofPrinter, Prints_what_reads_back_equal) {
  Repository repository;
  ASSERT_EQ(add(repository, kQualifiers), "");
  ASSERT_EQ(add(repository,
                R"(class A { [Key] string Name = "q\"b\\\x0001é";
               datetime t = "20260131235959.000000+000"; real32 r = 0.1; real64 d[] = {1e300, -0.0};
               sint64 i = -9223372036854775808; boolean b[] = {true, NULL}; char16 c = '\''; 
               [Fixed, Description(NULL), Key(false)] string f[7]; };
             [Association, Abstract] class R { [Key] A REF x = "A.Name=\"1\""; [Key] A REF y; };
             class S : R { [Override("x") : ToSubclass DisableOverride] A REF x;
               uint32 M([In, Out, Weight(1)] uint8 p[2]); };)"),
            "");
  expect_round_trip(repository);
}

TEST(MofPrinter, Prints_the_classes_of_the_agent_so_that_they_read_back_equal) {
  Repository repository;
  for (const Diagnostic& error :
       repository.add_file(CIM_SOURCE_DIR "/mof/vexor_switch_classes.mof")) {
    ADD_FAILURE() << error.text();
  }
  expect_round_trip(repository);
}

TEST(SameDeclaration, Sees_every_difference) {
  const auto read = [](const char* text) {
    Document document = read_mof_text(text);
    EXPECT_EQ(document.error_text(), "");
    return document.classes.at(0);
  };
  const Class base = read("[A(1)] class X : Y { [B] uint8 p = 1; uint32 m(string s); };");
  EXPECT_TRUE(same_declaration(
      base, read("\n[a(1)] class x : y { [b] uint8 P = 1; uint32 M(string S); };")));
  for (const char* other : {
           "[A(2)] class X : Y { [B] uint8 p = 1; uint32 m(string s); };",
           "class X : Y { [B] uint8 p = 1; uint32 m(string s); };",
           "[A(1)] class X { [B] uint8 p = 1; uint32 m(string s); };",
           "[A(1)] class Z : Y { [B] uint8 p = 1; uint32 m(string s); };",
           "[A(1)] class X : Y { uint8 p = 1; uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 p; uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 q = 1; uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint16 p = 1; uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 p[] = {1}; uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; sint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; uint32 m(uint8 s); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; uint32 m(string s, string t); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; uint32 m(string s[3]); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; [C] uint32 m(string s); };",
           "[A(1)] class X : Y { [B] uint8 p = 1; };",
       }) {
    EXPECT_FALSE(same_declaration(base, read(other))) << other;
  }
}

}  // namespace
}  // namespace cim::schema
