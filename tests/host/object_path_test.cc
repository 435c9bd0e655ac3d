#include "host/object_path.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cim::host {
namespace {

Data uint32_of(std::uint64_t value) {
  return Data::of(CMPI_uint32, Element(value));
}

TEST(ObjectPathText, Prints_namespace_class_and_keys_in_the_order_they_were_added) {
  const ObjectPath path{
      {}, "root/cimv2", "Test_Disk", {{"Name", Data::string("sda")}, {"Id", uint32_of(5)}}};
  EXPECT_EQ(to_text(path), "root/cimv2:Test_Disk.Name=\"sda\",Id=5");
}

TEST(ObjectPathText, Prints_the_host_in_front_when_there_is_one) {
  EXPECT_EQ(to_text(ObjectPath{"switch-1", "root/cimv2", "Test_Disk", {{"Id", uint32_of(5)}}}),
            "//switch-1/root/cimv2:Test_Disk.Id=5");
}

TEST(ObjectPathText, Prints_a_class_path_without_a_point) {
  EXPECT_EQ(to_text(ObjectPath{{}, {}, "Test_Disk", {}}), "Test_Disk");
}

TEST(ObjectPathText, Prints_every_type_of_key) {
  ObjectPath path{{}, {}, "C", {}};
  path.keys = {{"T", Data::boolean(true)},
               {"F", Data::boolean(false)},
               {"S", Data::of(CMPI_sint8, Element(std::int64_t{-3}))},
               {"R", Data::of(CMPI_real64, Element(1.5))},
               {"L", Data::of(CMPI_char16, Element(u'x'))},
               {"D", Data::of(CMPI_dateTime, Element(std::string("20260102030405.000000+000")))}};
  EXPECT_EQ(to_text(path), "C.T=TRUE,F=FALSE,S=-3,R=1.5,L='x',D=\"20260102030405.000000+000\"");
}

TEST(ObjectPathText, Escapes_quotes_backslashes_and_control_characters) {
  const ObjectPath path{{}, {}, "C", {{"K", Data::string("a\"b\\c\n")}}};
  EXPECT_EQ(to_text(path), R"(C.K="a\"b\\c\n")");
}

TEST(ObjectPathText, Prints_a_reference_as_the_quoted_text_of_its_path) {
  ObjectPath inner{{}, "root/cimv2", "A", {{"Name", Data::string("x")}}};
  const ObjectPath path{{}, {}, "L", {{"End", Data::reference(inner)}}};
  EXPECT_EQ(to_text(path), R"(L.End="root/cimv2:A.Name=\"x\"")");
  EXPECT_EQ(to_short_text(path), "L.End=A.Name=x");
}

struct Good {
  const char* text;
  const char* host;
  const char* name_space;
  const char* class_name;
  const char* keys;  ///< "name/type/value ..."
};

std::string described(const std::vector<NamedData>& keys) {
  std::string text;
  for (const NamedData& key : keys) {
    text += (text.empty() ? "" : " ") + key.name + "/" + type_text(key.data.type) + "/" +
            schema::to_text(to_value(key.data));
  }
  return text;
}

TEST(ObjectPathParser, Reads_what_a_path_may_be) {
  const Good table[] = {
      {"Test_Disk", "", "", "Test_Disk", ""},
      {"root/cimv2:Test_Disk", "", "root/cimv2", "Test_Disk", ""},
      {"root:Test_Disk.Id=1", "", "root", "Test_Disk", "Id/uint64/1"},
      {"//switch-1/root/cimv2:Test_Disk.Id=1", "switch-1", "root/cimv2", "Test_Disk",
       "Id/uint64/1"},
      {"//10.0.0.1:5988/root/cimv2:C.K=1", "10.0.0.1:5988", "root/cimv2", "C", "K/uint64/1"},
      {"C.K=-5", "", "", "C", "K/sint64/-5"},
      {"C.K=+5", "", "", "C", "K/uint64/5"},
      {"C.K=0x1F", "", "", "C", "K/uint64/31"},
      {"C.K=1.5", "", "", "C", "K/real64/1.5"},
      {"C.K=18446744073709551615", "", "", "C", "K/uint64/18446744073709551615"},
      {"C.K=TRUE,L=false", "", "", "C", "K/boolean/true L/boolean/false"},
      {"C.K='x'", "", "", "C", "K/char16/x"},
      {"C.K=\"\"", "", "", "C", "K/string/"},
      {"C.K=\"a,b=c.d\",L=\"e\"", "", "", "C", "K/string/a,b=c.d L/string/e"},
      {R"(C.K="say \"hi\" \\ ")", "", "", "C", R"(K/string/say "hi" \ )"},
      {R"(C.K="tab\tend")", "", "", "C", "K/string/tab\tend"},
      {"C.K=\"caf\xC3\xA9\"", "", "", "C", "K/string/caf\xC3\xA9"},
      {R"(L.End="root:A.Name=\"x\"")", "", "", "L", R"(End/string/root:A.Name="x")"},
  };
  for (const Good& row : table) {
    const ParsedPath parsed = parse_object_path(row.text);
    ASSERT_EQ(parsed.error, "") << row.text;
    EXPECT_EQ(parsed.path.host, row.host) << row.text;
    EXPECT_EQ(parsed.path.name_space, row.name_space) << row.text;
    EXPECT_EQ(parsed.path.class_name, row.class_name) << row.text;
    EXPECT_EQ(described(parsed.path.keys), row.keys) << row.text;
  }
}

struct Bad {
  const char* text;
  std::size_t column;
  const char* error;
};

TEST(ObjectPathParser, Refuses_with_the_column_what_is_no_path) {
  const Bad table[] = {
      {"", 1, "the path is empty"},
      {".Id=1", 1, "expected a class name"},
      {"1Disk", 1, "expected a class name"},
      {":C.K=1", 1, "expected a namespace in front of ':'"},
      {"//", 3, "expected '/' after the host name"},
      {"//host", 3, "expected '/' after the host name"},
      {"///C", 3, "expected a host name after '//'"},
      {"//host/C.K=1", 9, "expected a namespace and ':' after the host"},
      {"root/cimv2:", 12, "expected a class name"},
      {"C K=1", 2, "expected '.' and a key after the class name"},
      {"C.", 3, "expected the name of a key"},
      {"C.=1", 3, "expected the name of a key"},
      {"C.K", 4, "expected '=' after key K"},
      {"C.K=", 5, "expected a value for key K"},
      {"C.K=,L=1", 5, "expected a text in quotes, a number, TRUE or FALSE as the value of key K"},
      {"C.K=abc", 5, "expected a text in quotes, a number, TRUE or FALSE as the value of key K"},
      {"C.K=5x", 5, "expected a text in quotes, a number, TRUE or FALSE as the value of key K"},
      {"C.K=18446744073709551616", 5,
       "expected a text in quotes, a number, TRUE or FALSE as the value of key K"},
      {"C.K=\"abc", 5, "the text that starts here has no closing \""},
      {"C.K=\"abc\\\"", 5, "the text that starts here has no closing \""},
      {"C.K=\"a\\q\"", 5,
       "the text that starts here has a '\\' without a known escape, or is not UTF-8"},
      {"C.K=\"\xFF\"", 5,
       "the text that starts here has a '\\' without a known escape, or is not UTF-8"},
      {"C.K=1,", 7, "expected the name of a key"},
      {"C.K=\"a\"L=1", 8, "expected ',' or the end after the value of key K"},
      {"C.K=1,k=2", 7, "key k stands here a second time"},
      {"C.\xC3\xA9=1,K", 8, "expected '=' after key K"},
  };
  for (const Bad& row : table) {
    const ParsedPath parsed = parse_object_path(row.text);
    EXPECT_EQ(parsed.error, row.error) << row.text;
    EXPECT_EQ(parsed.column, row.column) << row.text;
  }
}

TEST(ObjectPathParser, Refuses_a_path_beyond_a_million_bytes) {
  const ParsedPath parsed = parse_object_path(std::string((1U << 20) + 1, 'C'));
  EXPECT_EQ(parsed.error, "the path is too long");
}

TEST(ObjectPathParser, Reads_back_what_was_printed) {
  ObjectPath path{"h", "root/cimv2", "C", {}};
  path.keys = {{"A", Data::string("q\"\\ \t\xE2\x82\xAC,.=")},
               {"B", Data::boolean(false)},
               {"N", Data::of(CMPI_uint64, Element(std::uint64_t{7}))}};
  const ParsedPath parsed = parse_object_path(to_text(path));
  ASSERT_EQ(parsed.error, "");
  EXPECT_EQ(to_text(parsed.path), to_text(path));
  EXPECT_TRUE(same_instance(parsed.path, path));
}

TEST(ObjectPathParser, Survives_any_bytes) {
  std::string text;
  std::uint32_t state = 12345;
  for (int round = 0; round < 20000; ++round) {
    text.clear();
    for (int i = 0; i < 24; ++i) {
      state = state * 1664525U + 1013904223U;
      text += "C.K=\"\\,:/5x'\xC3\xA9TRUE\x01\xFF"[state >> 24 & 15];
    }
    const ParsedPath parsed = parse_object_path(text);
    if (parsed.error.empty()) {
      EXPECT_TRUE(parse_object_path(to_text(parsed.path))) << text;
    } else {
      EXPECT_GE(parsed.column, 1U);
      EXPECT_LE(parsed.column, 25U);
    }
  }
}

TEST(SameInstance, Compares_without_letter_case_order_of_keys_or_width_of_numbers) {
  const ObjectPath a{
      "h", "root/cimv2", "Test_Disk", {{"Name", Data::string("x")}, {"Id", uint32_of(5)}}};
  ObjectPath b{
      {},
      "ROOT/CIMV2",
      "TEST_DISK",
      {{"ID", Data::of(CMPI_sint64, Element(std::int64_t{5}))}, {"NAME", Data::string("x")}}};
  EXPECT_TRUE(same_instance(a, b));
  b.keys[1].data = Data::string("X");
  EXPECT_FALSE(same_instance(a, b));
  b.keys[1].data = Data::string("x");
  b.keys[0].data = Data::of(CMPI_sint64, Element(std::int64_t{-5}));
  EXPECT_FALSE(same_instance(a, b));
  b.keys.pop_back();
  EXPECT_FALSE(same_instance(a, b));
}

}  // namespace
}  // namespace cim::host
