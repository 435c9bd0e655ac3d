// What a person types, as paths and typed values.
#include "tools/input.h"

#include <gtest/gtest.h>

#include "host/object_path.h"
#include "schema/mof_reader.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Element;
using cim::host::NamedData;

constexpr const char* kMof = R"(
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
Qualifier In : boolean = true, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Out : boolean = false, Scope(parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Required : boolean = false, Scope(property, parameter), Flavor(DisableOverride, ToSubclass);
Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride, ToSubclass);

class Port {
  [Key] string CreationClassName;
  [Key] string Name;
  uint8 Speed;
  sint8 Level;
  real64 Load;
  boolean Ready;
  datetime Made;
  char16 Letter;
  uint16 States[];
  string Labels[];
  uint32 Reset([Required] uint16 Mode, string Note, Port REF Peer, [In(false), Out] string Report);
};

[Association]
class Cable {
  [Key] Port REF From;
  [Key] Port REF To;
};
)";

class Input : public ::testing::Test {
 protected:
  Input() {
    const auto document = cim::schema::read_mof_text(kMof, "test.mof");
    EXPECT_EQ(document.error_text(), "");
    for (const cim::schema::Diagnostic& error : repository_.add(document))
      ADD_FAILURE() << error.text();
  }

  const cim::schema::Class& cls(const char* name = "Port") const { return *repository_.find(name); }

  std::vector<NamedData> properties(const std::vector<std::string>& words,
                                    const char* name = "Port") const {
    return read_properties({repository_, "root/x"}, cls(name), words);
  }

  std::vector<NamedData> arguments(const std::vector<std::string>& words) const {
    return read_arguments({repository_, "root/x"}, cls(), *repository_.method(cls(), "Reset"),
                          words);
  }

  /// The one value of the one word.
  Data value(const std::string& word) const {
    const std::vector<NamedData> values = properties({word});
    EXPECT_EQ(values.size(), 1U);
    return values.at(0).data;
  }

  template <class Call>
  static std::string error_of(Call&& call) {
    try {
      call();
    } catch (const BadInput& error) {
      return error.what();
    }
    return "no error";
  }

  std::string property_error(const std::vector<std::string>& words) const {
    return error_of([&] { properties(words); });
  }
  std::string argument_error(const std::vector<std::string>& words) const {
    return error_of([&] { arguments(words); });
  }

  cim::schema::Repository repository_;
};

TEST_F(Input, Values_get_the_declared_types) {
  EXPECT_EQ(value("Speed=255"), Data::of(CMPI_uint8, Element(std::uint64_t{255})));
  EXPECT_EQ(value("Speed=0x1F"), Data::of(CMPI_uint8, Element(std::uint64_t{31})));
  EXPECT_EQ(value("Level=-128"), Data::of(CMPI_sint8, Element(std::int64_t{-128})));
  EXPECT_EQ(value("Load=0.5"), Data::of(CMPI_real64, Element(0.5)));
  EXPECT_EQ(value("Ready=true"), Data::boolean(true));
  EXPECT_EQ(value("Ready=FALSE"), Data::boolean(false));
  EXPECT_EQ(value("Letter=x"), Data::of(CMPI_char16, Element(u'x')));
  EXPECT_EQ(value("Made=20050101120000.000000+000"),
            Data::of(CMPI_dateTime, Element(std::string("20050101120000.000000+000"))));
}

TEST_F(Input, A_text_stands_as_it_is) {
  EXPECT_EQ(value("Name=a b"), Data::string("a b"));
  EXPECT_EQ(value("Name=x=y"), Data::string("x=y"));
  EXPECT_EQ(value("Name="), Data::string(""));
  EXPECT_EQ(value("Name=\"q\""), Data::string("\"q\""));
  EXPECT_EQ(value("Name={a,b}"), Data::string("{a,b}"));
}

TEST_F(Input, Arrays_stand_in_braces_or_have_one_element) {
  const Data two = Data::array_of(CMPI_uint16, {std::uint64_t{2}, std::uint64_t{11}});
  EXPECT_EQ(value("States={2,11}"), two);
  EXPECT_EQ(value("States={ 2, 0x0B }"), two);
  EXPECT_EQ(value("States=7"), Data::array_of(CMPI_uint16, {std::uint64_t{7}}));
  EXPECT_EQ(value("States={}"), Data::array_of(CMPI_uint16, {}));
}

TEST_F(Input, Texts_of_arrays_need_quotes_only_around_commas_blanks_and_quotes) {
  EXPECT_EQ(value("Labels={a, b c}"),
            Data::array_of(CMPI_string, {std::string("a"), std::string("b c")}));
  EXPECT_EQ(value(R"(Labels={"a,b", "\"", ""})"),
            Data::array_of(CMPI_string, {std::string("a,b"), std::string("\""), std::string()}));
}

TEST_F(Input, References_are_paths_with_namespace_and_creation_class_name_filled_in) {
  const std::vector<NamedData> values =
      properties({"From=port.Name=\"a\"", "To=root/y:Port.Name=\"b\""}, "Cable");
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[0].data.type, CMPI_ref);
  EXPECT_EQ(cim::host::to_text(*std::get<cim::host::PathPtr>(values[0].data.element)),
            "root/x:port.Name=\"a\",CreationClassName=\"Port\"");
  EXPECT_EQ(cim::host::to_text(*std::get<cim::host::PathPtr>(values[1].data.element)),
            "root/y:Port.Name=\"b\",CreationClassName=\"Port\"");
}

TEST_F(Input, Names_are_taken_in_any_letter_case_and_given_as_declared) {
  EXPECT_EQ(properties({"SPEED=1"}).at(0).name, "Speed");
  EXPECT_EQ(arguments({"mode=1"}).at(0).name, "Mode");
}

TEST_F(Input, Values_of_other_types_are_refused_with_the_reason) {
  EXPECT_EQ(property_error({"Speed=256"}), "Port.Speed: 256 is out of range for uint8 (0 to 255)");
  EXPECT_EQ(property_error({"Made=today"}), "Port.Made: \"today\" is not a datetime");
  EXPECT_EQ(property_error({"States={1,65536}"}),
            "Port.States: 65536 is out of range for uint16 (0 to 65535)");
  EXPECT_EQ(error_of([&] { properties({"From=Port.Name"}, "Cable"); }),
            "Cable.From: Port.Name: column 10: expected '=' after key Name");
  for (const char* word : {"Speed=", "Speed=x", "Speed=-1", "Ready=yes", "Load=", "Letter=ab",
                           "Letter=", "States=x", "Labels={\"a}"})
    EXPECT_NE(property_error({word}), "no error") << word;
}

TEST_F(Input, Broken_arrays_are_refused) {
  EXPECT_EQ(property_error({"States={1,2"}), "Port.States: the array has no closing }");
  EXPECT_EQ(property_error({"States={"}), "Port.States: the array has no closing }");
  for (const char* word : {"States={1,,2}", "States={,}", "States={1,}", "Labels={,a}"}) {
    const std::string name = std::string(word).substr(0, 6);
    EXPECT_EQ(property_error({word}), "Port." + name + ": an element of the array is missing");
  }
}

TEST_F(Input, A_word_is_a_name_an_equals_sign_and_a_value) {
  EXPECT_EQ(property_error({"Speed"}), "Speed: expected NAME=VALUE");
  EXPECT_EQ(property_error({"=5"}), "=5: expected NAME=VALUE");
  EXPECT_EQ(property_error({""}), ": expected NAME=VALUE");
}

TEST_F(Input, Unknown_and_repeated_names_are_refused) {
  EXPECT_EQ(property_error({"Sped=1"}), "Port: no property Sped (did you mean Speed?)");
  EXPECT_EQ(property_error({"Xyzzy=1"}), "Port: no property Xyzzy");
  EXPECT_EQ(property_error({"Speed=1", "speed=1"}), "Port.Speed is given twice");
  EXPECT_EQ(argument_error({"Mod=1"}), "Port.Reset: no parameter Mod (did you mean Mode?)");
  EXPECT_EQ(argument_error({"Mode=1", "Mode=2"}), "Port.Reset.Mode is given twice");
}

TEST_F(Input, Required_parameters_must_be_given_and_others_need_not) {
  EXPECT_EQ(argument_error({}), "Port.Reset: parameter Mode is missing");
  EXPECT_EQ(argument_error({"Note=x"}), "Port.Reset: parameter Mode is missing");
  EXPECT_EQ(arguments({"Mode=1"}).size(), 1U);
  EXPECT_EQ(arguments({"Note=x", "Mode=1"}).size(), 2U);
}

TEST_F(Input, A_parameter_that_only_comes_back_cannot_be_given) {
  EXPECT_EQ(argument_error({"Mode=1", "Report=x"}),
            "Port.Reset returns Report: it cannot be given");
}

TEST_F(Input, A_path_without_keys_stays_without) {
  EXPECT_EQ(cim::host::to_text(read_path(repository_, "Port", "root/x")), "root/x:Port");
}

TEST_F(Input, A_path_of_an_unknown_class_is_left_to_the_object_manager) {
  EXPECT_EQ(cim::host::to_text(read_path(repository_, "Nothing.Name=\"a\"", "root/x")),
            "root/x:Nothing.Name=\"a\"");
}

}  // namespace
}  // namespace vexor::tools
