#include "schema/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace cim::schema {
namespace {

std::uint64_t unsigned_of(const ValueResult& result) {
  return std::get<std::uint64_t>(result.value->scalar());
}
std::int64_t signed_of(const ValueResult& result) {
  return std::get<std::int64_t>(result.value->scalar());
}

TEST(TypeNames, Are_those_of_MOF) {
  EXPECT_EQ(type_name(Type::boolean), "boolean");
  EXPECT_EQ(type_name(Type::char16), "char16");
  EXPECT_EQ(type_name(Type::uint8), "uint8");
  EXPECT_EQ(type_name(Type::sint64), "sint64");
  EXPECT_EQ(type_name(Type::real32), "real32");
  EXPECT_EQ(type_name(Type::datetime), "datetime");
  EXPECT_EQ(type_name(Type::reference), "reference");
  EXPECT_EQ(type_of_name("UINT16"), Type::uint16);
  EXPECT_EQ(type_of_name("String"), Type::string);
  EXPECT_EQ(type_of_name("reference"), std::nullopt);
  EXPECT_EQ(type_of_name("ref"), std::nullopt);
  EXPECT_EQ(type_of_name("int"), std::nullopt);
}

TEST(ValueFromMof, Reads_integers_in_every_base) {
  EXPECT_EQ(unsigned_of(value_from_mof("42", Type::uint16, false)), 42U);
  EXPECT_EQ(unsigned_of(value_from_mof("+42", Type::uint16, false)), 42U);
  EXPECT_EQ(unsigned_of(value_from_mof("0x1F", Type::uint16, false)), 31U);
  EXPECT_EQ(unsigned_of(value_from_mof("0X1b", Type::uint16, false)), 27U);
  EXPECT_EQ(unsigned_of(value_from_mof("101b", Type::uint16, false)), 5U);
  EXPECT_EQ(unsigned_of(value_from_mof("101B", Type::uint16, false)), 5U);
  EXPECT_EQ(unsigned_of(value_from_mof("017", Type::uint16, false)), 15U);
  EXPECT_EQ(unsigned_of(value_from_mof("0", Type::uint16, false)), 0U);
  EXPECT_EQ(signed_of(value_from_mof("-0x10", Type::sint8, false)), -16);
  EXPECT_EQ(signed_of(value_from_mof("7", Type::sint8, false)), 7);
}

TEST(ValueFromMof, Reads_the_ends_of_64_bits) {
  EXPECT_EQ(unsigned_of(value_from_mof("18446744073709551615", Type::uint64, false)),
            18446744073709551615U);
  EXPECT_EQ(signed_of(value_from_mof("-9223372036854775808", Type::sint64, false)),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(value_from_mof("18446744073709551616", Type::uint64, false).error,
            "number '18446744073709551616' does not fit 64 bits");
  EXPECT_EQ(value_from_mof("-9223372036854775809", Type::sint64, false).error,
            "number '-9223372036854775809' does not fit 64 bits");
}

TEST(ValueFromMof, Checks_the_range_of_each_integer_type) {
  EXPECT_EQ(value_from_mof("256", Type::uint8, false).error,
            "256 is out of range for uint8 (0 to 255)");
  EXPECT_EQ(value_from_mof("-1", Type::uint16, false).error,
            "-1 is out of range for uint16 (0 to 65535)");
  EXPECT_EQ(value_from_mof("4294967296", Type::uint32, false).error,
            "4294967296 is out of range for uint32 (0 to 4294967295)");
  EXPECT_EQ(value_from_mof("-129", Type::sint8, false).error,
            "-129 is out of range for sint8 (-128 to 127)");
  EXPECT_EQ(value_from_mof("32768", Type::sint16, false).error,
            "32768 is out of range for sint16 (-32768 to 32767)");
  EXPECT_EQ(value_from_mof("2147483648", Type::sint32, false).error,
            "2147483648 is out of range for sint32 (-2147483648 to 2147483647)");
  EXPECT_EQ(value_from_mof("9223372036854775808", Type::sint64, false).error,
            "9223372036854775808 is out of range for sint64 (-9223372036854775808 to "
            "9223372036854775807)");
}

TEST(ValueFromMof, Reads_reals) {
  EXPECT_EQ(std::get<double>(value_from_mof("1.5", Type::real64, false).value->scalar()), 1.5);
  EXPECT_EQ(std::get<double>(value_from_mof("-.25", Type::real64, false).value->scalar()), -0.25);
  EXPECT_EQ(std::get<double>(value_from_mof("2.5e3", Type::real64, false).value->scalar()), 2500.0);
  EXPECT_EQ(std::get<double>(value_from_mof("1E-2", Type::real64, false).value->scalar()), 0.01);
  EXPECT_EQ(std::get<double>(value_from_mof("3", Type::real64, false).value->scalar()), 3.0);
  EXPECT_EQ(std::get<double>(value_from_mof("0.1", Type::real32, false).value->scalar()),
            static_cast<double>(0.1F));
  EXPECT_EQ(value_from_mof("1.0e39", Type::real32, false).error,
            "1.0e+39 is out of range for real32");
  EXPECT_EQ(value_from_mof("1.0e999", Type::real64, false).error,
            "number '1.0e999' is out of range for real64");
}

TEST(ValueFromMof, Refuses_malformed_numbers) {
  for (const char* text : {"0x", "12a", "09", "1.", "1.2.3", "1e", "2b", "0x1.0", "1_000", "--1"}) {
    EXPECT_FALSE(value_from_mof(text, Type::sint64, false)) << text;
    EXPECT_FALSE(value_from_mof(text, Type::real64, false)) << text;
  }
  EXPECT_EQ(value_from_mof("12a", Type::uint8, false).error, "malformed number '12a'");
}

TEST(ValueFromMof, Reads_strings_with_escapes_and_joins_adjacent_ones) {
  const ValueResult result =
      value_from_mof(R"("a\"b\\c\t" /* between */ "\x41\x00e9\n")", Type::string, false);
  ASSERT_TRUE(result) << result.error;
  EXPECT_EQ(*result.value->text(), "a\"b\\c\tA\xC3\xA9\n");
}

TEST(ValueFromMof, Reads_a_surrogate_pair_as_one_character) {
  const ValueResult result = value_from_mof(R"("\xD83D\xDE00")", Type::string, false);
  ASSERT_TRUE(result) << result.error;
  EXPECT_EQ(*result.value->text(), "\xF0\x9F\x98\x80");
  EXPECT_EQ(value_from_mof(R"("\xD83D")", Type::string, false).error,
            "string: half of a surrogate pair (U+D83D)");
}

TEST(ValueFromMof, Reads_characters) {
  const auto character = [](const char* text) {
    return std::get<char16_t>(value_from_mof(text, Type::char16, false).value->scalar());
  };
  EXPECT_EQ(character("'a'"), u'a');
  EXPECT_EQ(character(R"('\'')"), u'\'');
  EXPECT_EQ(character(R"('\x20AC')"), u'\u20AC');
  EXPECT_EQ(character("'\xE2\x82\xAC'"), u'\u20AC');
  EXPECT_EQ(value_from_mof("'ab'", Type::char16, false).error,
            "character: exactly one character of 16 bits must stand between the quotes");
  EXPECT_FALSE(value_from_mof("''", Type::char16, false));
  EXPECT_FALSE(value_from_mof("'\xF0\x9F\x98\x80'", Type::char16, false));
}

TEST(ValueFromMof, Reads_booleans_and_null_in_any_letter_case) {
  EXPECT_TRUE(value_from_mof("TRUE", Type::boolean, false).value->is_true());
  EXPECT_FALSE(value_from_mof("False", Type::boolean, false).value->is_true());
  const ValueResult null = value_from_mof("Null", Type::uint8, false);
  EXPECT_TRUE(null.value->is_null());
  EXPECT_EQ(null.value->type(), Type::uint8);
  EXPECT_TRUE(value_from_mof("NULL", Type::uint8, true).value->is_array());
}

TEST(ValueFromMof, Reads_arrays_with_null_elements) {
  const ValueResult result = value_from_mof("{1, NULL, 0x3}", Type::uint8, true);
  ASSERT_TRUE(result) << result.error;
  ASSERT_EQ(result.value->elements().size(), 3U);
  EXPECT_EQ(std::get<std::uint64_t>(result.value->elements()[0]), 1U);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(result.value->elements()[1]));
  EXPECT_EQ(std::get<std::uint64_t>(result.value->elements()[2]), 3U);
}

TEST(ValueFromMof, Tells_an_empty_array_from_null) {
  const ValueResult empty = value_from_mof("{}", Type::string, true);
  ASSERT_TRUE(empty);
  EXPECT_FALSE(empty.value->is_null());
  EXPECT_TRUE(empty.value->elements().empty());
  EXPECT_NE(*empty.value, Value::null(Type::string, true));
}

TEST(ValueFromMof, Refuses_what_is_of_another_kind) {
  EXPECT_EQ(value_from_mof("\"12\"", Type::uint8, false).error, "\"12\" is not a uint8");
  EXPECT_EQ(value_from_mof("1.5", Type::uint8, false).error, "1.5 is not a uint8");
  EXPECT_EQ(value_from_mof("1", Type::boolean, false).error, "1 is not a boolean");
  EXPECT_EQ(value_from_mof("true", Type::string, false).error, "true is not a string");
  EXPECT_EQ(value_from_mof("\"a\"", Type::char16, false).error, "\"a\" is not a char16");
  EXPECT_EQ(value_from_mof("\"x\"", Type::real32, false).error, "\"x\" is not a real32");
  EXPECT_EQ(value_from_mof("\"yesterday\"", Type::datetime, false).error,
            "\"yesterday\" is not a datetime");
  EXPECT_EQ(value_from_mof("{1, \"x\"}", Type::uint8, true).error, "\"x\" is not a uint8");
}

TEST(ValueFromMof, Refuses_an_array_for_a_scalar_and_the_other_way_round) {
  EXPECT_EQ(value_from_mof("{1}", Type::uint8, false).error,
            "a single value is needed, not an array");
  EXPECT_EQ(value_from_mof("1", Type::uint8, true).error, "an array in braces is needed");
}

TEST(ValueFromMof, Refuses_anything_behind_the_literal) {
  EXPECT_EQ(value_from_mof("1 2", Type::uint8, false).error,
            "expected the end of the literal, found '2'");
  EXPECT_EQ(value_from_mof("1;", Type::uint8, false).error,
            "expected the end of the literal, found ';'");
  EXPECT_EQ(value_from_mof("", Type::uint8, false).error,
            "expected a value for the literal, found the end of the file");
  EXPECT_EQ(value_from_mof("1 \x01", Type::uint8, false).error,
            "character U+0001 cannot stand here");
}

TEST(ValueToMof, Writes_each_type) {
  EXPECT_EQ(to_mof(Value::boolean(true)), "true");
  EXPECT_EQ(to_mof(Value::of(Type::char16, u'x')), "'x'");
  EXPECT_EQ(to_mof(Value::of(Type::char16, u'\'')), "'\\''");
  EXPECT_EQ(to_mof(Value::of(Type::char16, u'"')), "'\"'");
  EXPECT_EQ(to_mof(Value::of(Type::char16, u'\n')), "'\\n'");
  EXPECT_EQ(to_mof(Value::unsigned_integer(Type::uint64, 18446744073709551615U)),
            "18446744073709551615");
  EXPECT_EQ(to_mof(Value::signed_integer(Type::sint8, -5)), "-5");
  EXPECT_EQ(to_mof(Value::of(Type::real64, 1.0)), "1.0");
  EXPECT_EQ(to_mof(Value::of(Type::real64, 1e22)), "1.0e+22");
  EXPECT_EQ(to_mof(Value::of(Type::real32, static_cast<double>(0.1F))), "0.1");
  EXPECT_EQ(to_mof(Value::string("a\"\\\n\x01")), "\"a\\\"\\\\\\n\\x0001\"");
  EXPECT_EQ(to_mof(Value::null(Type::uint8)), "NULL");
  EXPECT_EQ(to_mof(Value::strings({"a", "b c"})), "{\"a\", \"b c\"}");
  EXPECT_EQ(to_mof(Value::array_of(Type::uint8, {})), "{}");
  EXPECT_EQ(to_mof(Value::array_of(Type::uint8, {Scalar(std::uint64_t{1}), Scalar()})),
            "{1, NULL}");
}

TEST(ValueToMof, Writes_no_number_for_infinity) {
  EXPECT_EQ(to_mof(Value::of(Type::real64, std::numeric_limits<double>::infinity())), "NULL");
  EXPECT_EQ(to_text(Value::of(Type::real64, std::numeric_limits<double>::infinity())), "inf");
}

TEST(ValueToMof, Reads_back_equal) {
  const std::vector<Value> values = {
      Value::of(Type::real64, 1.0 / 3.0),
      Value::of(Type::real64, 5e-324),
      Value::of(Type::real32, static_cast<double>(16777217.0F)),
      Value::string("tab\t quote\" back\\ euro\xE2\x82\xAC \x1f \xF0\x9F\x98\x80"),
      Value::of(Type::char16, u'\\'),
      Value::signed_integer(Type::sint64, std::numeric_limits<std::int64_t>::min()),
      Value::strings({"", "x"}),
      Value::of(Type::datetime, std::string("20260131235959.000000+000")),
  };
  for (const Value& value : values) {
    const ValueResult back = value_from_mof(to_mof(value), value.type(), value.is_array());
    ASSERT_TRUE(back) << to_mof(value) << ": " << back.error;
    EXPECT_EQ(*back.value, value) << to_mof(value);
  }
}

TEST(ValueFromText, Takes_texts_as_they_are) {
  EXPECT_EQ(*value_from_text(" a \"b\" ", Type::string, false).value->text(), " a \"b\" ");
  EXPECT_EQ(*value_from_text("NULL", Type::string, false).value->text(), "NULL");
  EXPECT_EQ(*value_from_text("", Type::string, false).value->text(), "");
  EXPECT_EQ(*value_from_text("C.K=1", Type::reference, false).value->text(), "C.K=1");
  EXPECT_EQ(value_from_text("\xFF", Type::string, false).error, "the text is not UTF-8");
  EXPECT_EQ(value_from_text(std::string_view("a\0b", 3), Type::string, false).error,
            "the text holds a null character");
}

TEST(ValueFromText, Reads_numbers_booleans_characters_and_dates) {
  EXPECT_EQ(unsigned_of(value_from_text(" 0x10 ", Type::uint8, false)), 16U);
  EXPECT_EQ(value_from_text("300", Type::uint8, false).error,
            "300 is out of range for uint8 (0 to 255)");
  EXPECT_EQ(value_from_text("ten", Type::uint8, false).error, "malformed number 'ten'");
  EXPECT_EQ(value_from_text("", Type::uint8, false).error, "malformed number ''");
  EXPECT_TRUE(value_from_text("TRUE", Type::boolean, false).value->is_true());
  EXPECT_EQ(value_from_text("yes", Type::boolean, false).error,
            "'yes' is not a boolean (true or false)");
  EXPECT_EQ(std::get<char16_t>(value_from_text("x", Type::char16, false).value->scalar()), u'x');
  EXPECT_EQ(value_from_text("xy", Type::char16, false).error,
            "exactly one character of 16 bits is needed");
  EXPECT_TRUE(value_from_text("20260131235959.000000+060", Type::datetime, false));
  EXPECT_FALSE(value_from_text("2026-01-31", Type::datetime, false));
  EXPECT_TRUE(value_from_text("null", Type::uint8, false).value->is_null());
}

TEST(ValueFromText, Takes_one_element_or_braces_for_an_array) {
  EXPECT_EQ(*value_from_text("WWN", Type::string, true).value, Value::strings({"WWN"}));
  EXPECT_EQ(*value_from_text("{\"a\", \"b\"}", Type::string, true).value,
            Value::strings({"a", "b"}));
  EXPECT_EQ(value_from_text("{1, 2", Type::uint8, true).error,
            "expected ',' or '}' in the values of the literal, found the end of the file");
  EXPECT_TRUE(value_from_text("NULL", Type::uint8, true).value->is_null());
}

TEST(ValueToText, Shows_values_to_people) {
  EXPECT_EQ(to_text(Value::string("a\"b")), "a\"b");
  EXPECT_EQ(to_text(Value::unsigned_integer(Type::uint16, 7)), "7");
  EXPECT_EQ(to_text(Value::boolean(false)), "false");
  EXPECT_EQ(to_text(Value::null(Type::string)), "");
  EXPECT_EQ(to_text(Value::strings({"a", "b"})), "a, b");
  EXPECT_EQ(to_text(Value::of(Type::char16, u'\u20AC')), "\xE2\x82\xAC");
}

TEST(Escape, Writes_control_characters_and_bad_bytes_as_escapes) {
  EXPECT_EQ(escape("\b\t\n\f\r"), "\\b\\t\\n\\f\\r");
  EXPECT_EQ(escape("\"\\'"), "\\\"\\\\'");
  EXPECT_EQ(escape("\x1F"), "\\x001F");
  EXPECT_EQ(escape("\xFFz"), "\\x00FFz");
  EXPECT_EQ(escape("\xC3\xA9"), "\xC3\xA9");
  EXPECT_EQ(quote("a"), "\"a\"");
}

TEST(Escape, Is_undone_by_unescape) {
  EXPECT_EQ(unescape("a\\\"b\\x41"), "a\"bA");
  EXPECT_EQ(unescape("\\x1F600"),
            "\xE1\xBD\xA0"
            "0");
  EXPECT_EQ(unescape("a\"b"), std::nullopt);
  EXPECT_EQ(unescape("a\\"), std::nullopt);
  EXPECT_EQ(unescape("\\q"), std::nullopt);
  EXPECT_EQ(unescape("\\x0"), std::nullopt);
  EXPECT_EQ(unescape("a\nb"), std::nullopt);
}

TEST(Datetime, Is_a_time_stamp_or_an_interval_of_25_characters) {
  EXPECT_TRUE(is_datetime("19980525133015.000000-300"));
  EXPECT_TRUE(is_datetime("00000001132312.000000:000"));
  EXPECT_TRUE(is_datetime("99999999235959.999999:000"));
  EXPECT_FALSE(is_datetime("19981325133015.000000-300"));
  EXPECT_FALSE(is_datetime("19980532133015.000000-300"));
  EXPECT_FALSE(is_datetime("19980525243015.000000-300"));
  EXPECT_FALSE(is_datetime("19980525133060.000000-300"));
  EXPECT_FALSE(is_datetime("19980525133015.000000 300"));
  EXPECT_FALSE(is_datetime("19980525133015,000000-300"));
  EXPECT_FALSE(is_datetime("00000001132312.000000:001"));
  EXPECT_FALSE(is_datetime("00000001242312.000000:000"));
  EXPECT_FALSE(is_datetime("19980525133015.000000-3000"));
  EXPECT_FALSE(is_datetime("1998052513301a.000000-300"));
  EXPECT_FALSE(is_datetime(""));
}

TEST(Datetime, May_end_in_asterisks) {
  EXPECT_TRUE(is_datetime("199805251330**.******-300"));
  EXPECT_TRUE(is_datetime("19980525133015.000***-300"));
  EXPECT_TRUE(is_datetime("**************.******-300"));
  EXPECT_FALSE(is_datetime("1998**25133015.000000-300"));
  EXPECT_FALSE(is_datetime("199805251330**.000000-300"));
  EXPECT_FALSE(is_datetime("19980525133015.0*0000-300"));
  EXPECT_FALSE(is_datetime("1998052513301*.******-300"));
}

TEST(Utf8, Refuses_overlong_forms_surrogates_and_cut_sequences) {
  EXPECT_TRUE(is_utf8("plain \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"));
  EXPECT_FALSE(is_utf8("\xC0\x80"));
  EXPECT_FALSE(is_utf8("\xED\xA0\x80"));
  EXPECT_FALSE(is_utf8("\xF4\x90\x80\x80"));
  EXPECT_FALSE(is_utf8("\xE2\x82"));
  EXPECT_FALSE(is_utf8("\x80"));
  EXPECT_FALSE(is_utf8("\xC3("));
}

}  // namespace
}  // namespace cim::schema
