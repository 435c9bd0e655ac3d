#include "host/data.h"

#include <gtest/gtest.h>

#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

Data number(CMPIType type, std::uint64_t value) {
  return Data::of(type, Element(value));
}

TEST(Convert, Fits_integers_where_their_number_does) {
  EXPECT_EQ(convert(number(CMPI_uint64, 65535), CMPI_uint16), number(CMPI_uint16, 65535));
  EXPECT_EQ(convert(number(CMPI_uint64, 5), CMPI_sint8),
            Data::of(CMPI_sint8, Element(std::int64_t{5})));
  EXPECT_EQ(error_of([] { convert(number(CMPI_uint64, 65536), CMPI_uint16); }),
            std::pair(CMPI_RC_ERR_TYPE_MISMATCH,
                      std::string("65536 is out of range for uint16 (0 to 65535)")));
  EXPECT_EQ(error_of([] {
              convert(Data::of(CMPI_sint64, Element(std::int64_t{-1})), CMPI_uint16);
            }).first,
            CMPI_RC_ERR_TYPE_MISMATCH);
}

TEST(Convert, Makes_a_reference_of_a_text_that_is_a_path) {
  const Data data = convert(Data::string("root/test:Test_Disk.Id=4"), CMPI_ref);
  ASSERT_EQ(data.type, CMPI_ref);
  EXPECT_EQ(std::get<PathPtr>(data.element)->class_name, "Test_Disk");
  EXPECT_EQ(error_of([] { convert(Data::string("Test_Disk."), CMPI_ref); }),
            std::pair(CMPI_RC_ERR_TYPE_MISMATCH,
                      std::string("not an object path: column 11: expected the name of a key")));
  EXPECT_EQ(error_of([] { convert(Data::boolean(true), CMPI_ref); }).second,
            "a reference is needed, not a value of type boolean");
}

TEST(Convert, Makes_a_datetime_of_a_text_only_when_it_is_one) {
  EXPECT_EQ(convert(Data::string("20260102030405.000000+000"), CMPI_dateTime).type, CMPI_dateTime);
  EXPECT_EQ(error_of([] { convert(Data::string("tomorrow"), CMPI_dateTime); }).first,
            CMPI_RC_ERR_TYPE_MISMATCH);
}

TEST(Convert, Refuses_arrays_for_single_values_and_the_reverse) {
  EXPECT_EQ(error_of([] {
              convert(Data::array_of(CMPI_uint16, {std::uint64_t{1}}), CMPI_uint16);
            }).second,
            "a value of type uint16[] is no uint16");
  EXPECT_EQ(error_of([] { convert(number(CMPI_uint16, 1), CMPI_uint16A); }).second,
            "a value of type uint16 is no uint16[]");
}

TEST(Convert, Keeps_null_null) {
  const Data data = convert(Data::null_of(CMPI_string), CMPI_uint8);
  EXPECT_TRUE(data.null);
  EXPECT_EQ(data.type, CMPI_uint8);
}

TEST(InstanceMof, Prints_values_that_are_there_and_nothing_for_the_others) {
  Instance instance{{{}, "root/test", "Test_Disk", {}}, {}};
  instance.properties = {
      {"Id", number(CMPI_uint32, 3)},
      {"Name", Data::string("a \"b\"")},
      {"Size", Data::null_of(CMPI_uint64)},
      {"States", Data::array_of(CMPI_uint16, {std::uint64_t{2}, std::uint64_t{11}})},
      {"Ready", Data::boolean(true)}};
  EXPECT_EQ(to_mof(instance),
            "instance of Test_Disk {\n"
            "  Id = 3;\n"
            "  Name = \"a \\\"b\\\"\";\n"
            "  States = {2, 11};\n"
            "  Ready = true;\n"
            "};\n");
}

TEST(InstanceMof, Is_read_back_by_the_MOF_reader) {
  Instance instance{{{}, "root/test", "Test_Link", {}}, {}};
  instance.properties = {
      {"Antecedent",
       Data::reference({{}, "root/test", "Test_Disk", {{"Id", number(CMPI_uint32, 3)}}})}};
  const schema::Document document = schema::read_mof_text(to_mof(instance));
  ASSERT_EQ(document.error_text(), "");
  ASSERT_EQ(document.instances.size(), 1U);
  EXPECT_EQ(*document.instances[0].properties[0].value.text(), "root/test:Test_Disk.Id=3");
}

TEST(TypeText, Names_types_as_MOF_does) {
  EXPECT_EQ(type_text(CMPI_uint16), "uint16");
  EXPECT_EQ(type_text(CMPI_stringA), "string[]");
  EXPECT_EQ(type_text(CMPI_ref), "reference");
  EXPECT_EQ(type_text(CMPI_dateTime), "datetime");
  EXPECT_EQ(type_text(CMPI_chars), "chars");
  EXPECT_EQ(type_text(CMPI_null), "null");
  EXPECT_EQ(type_text(CMPI_instance), "instance");
  EXPECT_EQ(type_text(CMPI_ptr), "CMPI type 6400");
}

TEST(RepositoryValue, Becomes_data_and_back) {
  const schema::Value text = schema::Value::string("x");
  EXPECT_EQ(to_value(to_data(text)), text);
  const schema::Value strings = schema::Value::strings({"a", "b"});
  EXPECT_EQ(to_value(to_data(strings)), strings);
  const schema::Value null = schema::Value::null(schema::Type::uint8, true);
  EXPECT_EQ(to_value(to_data(null)), null);
  const schema::Value path =
      schema::Value::of(schema::Type::reference, schema::Scalar(std::string("A.K=1")));
  EXPECT_EQ(to_data(path).type, CMPI_ref);
  EXPECT_EQ(to_value(to_data(path)), path);
}

}  // namespace
}  // namespace cim::host
