// CMPIInstance and CMPIObjectPath.
#include <gtest/gtest.h>

#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

class InstanceObjects : public TableTest {
 protected:
  using TableTest::TableTest;

  CMPIStatus set(CMPIInstance* instance, const char* name, CMPIValue value, CMPIType type) {
    return instance->ft->setProperty(instance, name, &value, type);
  }
  CMPIStatus set_text(CMPIInstance* instance, const char* name, const char* chars) {
    return instance->ft->setProperty(instance, name, text(chars), CMPI_chars);
  }
  static CMPIValue number(CMPIUint64 content, CMPIType type) {
    CMPIValue value{};
    if (type == CMPI_uint16) {
      value.uint16 = static_cast<CMPIUint16>(content);
    } else if (type == CMPI_uint32) {
      value.uint32 = static_cast<CMPIUint32>(content);
    } else {
      value.uint64 = content;
    }
    return value;
  }
  CMPIData get(const CMPIInstance* instance, const char* name) {
    return instance->ft->getProperty(instance, name, nullptr);
  }
  std::string path_text(const CMPIObjectPath* path) {
    return chars(path->ft->toString(path, nullptr));
  }
};

// --- Making instances ----------------------------------------------------------------------------

TEST_F(InstanceObjects, A_new_instance_has_every_property_of_its_class_as_null) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 11U);
  CMPIString* name = nullptr;
  const CMPIData first = instance->ft->getPropertyAt(instance, 0, &name, nullptr);
  EXPECT_EQ(chars(name), "Id");
  EXPECT_EQ(first.type, CMPI_uint32);
  EXPECT_EQ(first.state, CMPI_nullValue);
}

TEST_F(InstanceObjects, A_new_instance_does_not_copy_the_keys_of_its_path) {
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIValue id = number(5, CMPI_uint32);
  path->ft->addKey(path, "Id", &id, CMPI_uint32);
  CMPIInstance* instance = mb()->eft->newInstance(mb(), path, nullptr);
  EXPECT_EQ(get(instance, "Id").state, CMPI_nullValue);
}

TEST_F(InstanceObjects, An_instance_of_an_unknown_class_is_refused_and_reported) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newInstance(mb(), new_path("Test_Nothing"), &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(reports_, std::vector<std::string>{"no class Test_Nothing; no instance was made"});
}

// --- Setting and getting -------------------------------------------------------------------------

TEST_F(InstanceObjects, Every_type_of_property_is_kept_as_it_was_set) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set(instance, "Id", number(4000000000, CMPI_uint32), CMPI_uint32).rc, CMPI_RC_OK);
  EXPECT_EQ(set(instance, "Size", number(18446744073709551615U, CMPI_uint64), CMPI_uint64).rc,
            CMPI_RC_OK);
  CMPIValue value{};
  value.boolean = 1;
  EXPECT_EQ(set(instance, "Ready", value, CMPI_boolean).rc, CMPI_RC_OK);
  value.real32 = 1.5F;
  EXPECT_EQ(set(instance, "Speed", value, CMPI_real32).rc, CMPI_RC_OK);
  value.sint8 = -8;
  EXPECT_EQ(set(instance, "Level", value, CMPI_sint8).rc, CMPI_RC_OK);
  value.char16 = u'Z';
  EXPECT_EQ(set(instance, "Letter", value, CMPI_char16).rc, CMPI_RC_OK);
  value.dateTime = mb()->eft->newDateTimeFromBinary(mb(), 0, 0, nullptr);
  EXPECT_EQ(set(instance, "Made", value, CMPI_dateTime).rc, CMPI_RC_OK);
  value.string = string("sda");
  EXPECT_EQ(set(instance, "Name", value, CMPI_string).rc, CMPI_RC_OK);

  EXPECT_EQ(get(instance, "Id").value.uint32, 4000000000U);
  EXPECT_EQ(get(instance, "Size").value.uint64, 18446744073709551615U);
  EXPECT_EQ(get(instance, "Ready").value.boolean, 1);
  EXPECT_EQ(get(instance, "Speed").value.real32, 1.5F);
  EXPECT_EQ(get(instance, "Level").value.sint8, -8);
  EXPECT_EQ(get(instance, "Letter").value.char16, u'Z');
  const CMPIDateTime* made = get(instance, "Made").value.dateTime;
  EXPECT_EQ(chars(made->ft->getStringFormat(made, nullptr)), "19700101000000.000000+000");
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
  EXPECT_TRUE(reports_.empty());
}

TEST_F(InstanceObjects, Chars_become_a_string) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set_text(instance, "Name", "sda").rc, CMPI_RC_OK);
  EXPECT_EQ(get(instance, "Name").type, CMPI_string);
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
}

TEST_F(InstanceObjects, Arrays_of_numbers_and_of_chars_are_kept) {
  CMPIInstance* instance = new_instance();
  CMPIArray* states = mb()->eft->newArray(mb(), 2, CMPI_uint16, nullptr);
  CMPIValue value = number(2, CMPI_uint16);
  states->ft->setElementAt(states, 0, &value, CMPI_uint16);
  CMPIValue array{};
  array.array = states;
  EXPECT_EQ(set(instance, "States", array, CMPI_uint16A).rc, CMPI_RC_OK);
  const CMPIArray* kept = get(instance, "States").value.array;
  EXPECT_EQ(kept->ft->getElementAt(kept, 0, nullptr).value.uint16, 2);
  EXPECT_EQ(kept->ft->getElementAt(kept, 1, nullptr).state, CMPI_nullValue);

  CMPIArray* labels = mb()->eft->newArray(mb(), 1, CMPI_chars, nullptr);
  labels->ft->setElementAt(labels, 0, text("fast"), CMPI_chars);
  array.array = labels;
  EXPECT_EQ(set(instance, "Labels", array, CMPI_charsA).rc, CMPI_RC_OK);
  const CMPIArray* texts = get(instance, "Labels").value.array;
  EXPECT_EQ(chars(texts->ft->getElementAt(texts, 0, nullptr).value.string), "fast");
}

TEST_F(InstanceObjects, An_array_whose_elements_have_another_type_is_refused) {
  CMPIInstance* instance = new_instance();
  CMPIValue array{};
  array.array = mb()->eft->newArray(mb(), 1, CMPI_uint32, nullptr);
  EXPECT_EQ(set(instance, "States", array, CMPI_uint16A).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(InstanceObjects, Names_are_found_in_any_letter_case) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set_text(instance, "NAME", "sda").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(get(instance, "name").value.string), "sda");
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 11U);
}

TEST_F(InstanceObjects, A_wrong_type_is_refused_reported_and_changes_nothing) {
  CMPIInstance* instance = new_instance();
  set(instance, "Size", number(7, CMPI_uint64), CMPI_uint64);
  const CMPIStatus status = set(instance, "Size", number(1, CMPI_uint32), CMPI_uint32);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(message(status), "Test_Disk.Size is declared uint64, not uint32");
  EXPECT_EQ(reports_, std::vector<std::string>{
                          "Test_Disk.Size is declared uint64, not uint32; it was not set"});
  EXPECT_EQ(get(instance, "Size").value.uint64, 7U);
  EXPECT_EQ(set_text(instance, "Id", "5").rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(InstanceObjects, An_array_of_one_is_no_single_value) {
  CMPIInstance* instance = new_instance();
  CMPIValue array{};
  array.array = mb()->eft->newArray(mb(), 1, CMPI_uint32, nullptr);
  const CMPIStatus status = set(instance, "Id", array, CMPI_uint32A);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(message(status), "Test_Disk.Id is declared uint32, not uint32[]");
}

TEST_F(InstanceObjects, An_undeclared_property_is_refused_and_reported) {
  CMPIInstance* instance = new_instance();
  const CMPIStatus status = set_text(instance, "Colour", "red");
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(reports_, std::vector<std::string>{"Test_Disk has no property Colour; it was not set"});
  CMPIStatus asked{};
  EXPECT_EQ(instance->ft->getProperty(instance, "Colour", &asked).state,
            CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(asked.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

TEST_F(InstanceObjects, Null_of_the_declared_type_clears_a_property_and_untyped_null_does_not) {
  CMPIInstance* instance = new_instance();
  set_text(instance, "Name", "sda");
  EXPECT_EQ(instance->ft->setProperty(instance, "Name", nullptr, CMPI_null).rc,
            CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
  EXPECT_EQ(instance->ft->setProperty(instance, "Name", nullptr, CMPI_string).rc, CMPI_RC_OK);
  EXPECT_EQ(get(instance, "Name").state, CMPI_nullValue);
}

TEST_F(InstanceObjects, An_embedded_instance_fits_a_property_declared_for_it) {
  CMPIInstance* instance = new_instance();
  CMPIValue value{};
  value.inst = new_instance();
  set_text(value.inst, "Name", "inner");
  EXPECT_EQ(set(instance, "Twin", value, CMPI_instance).rc, CMPI_RC_OK);
  const CMPIInstance* inner = get(instance, "Twin").value.inst;
  EXPECT_EQ(chars(get(inner, "Name").value.string), "inner");
  EXPECT_EQ(set(instance, "Name", value, CMPI_instance).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(InstanceObjects, SetPropertyWithOrigin_sets_like_setProperty) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(
      instance->ft->setPropertyWithOrigin(instance, "Name", text("sda"), CMPI_chars, "CIM_Thing")
          .rc,
      CMPI_RC_OK);
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
}

TEST_F(InstanceObjects, There_is_no_property_past_the_last_one) {
  CMPIInstance* instance = new_instance();
  CMPIString* name = string("untouched");
  CMPIStatus status{};
  EXPECT_EQ(instance->ft->getPropertyAt(instance, 11, &name, &status).state,
            CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(name, nullptr);
}

TEST_F(InstanceObjects, A_property_without_a_name_is_refused) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set_text(instance, nullptr, "x").rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

// --- Filters -------------------------------------------------------------------------------------

TEST_F(InstanceObjects, A_filter_leaves_the_listed_properties_and_the_keys) {
  CMPIInstance* instance = new_instance();
  const char* properties[] = {"NAME", "size", "Unheard", nullptr};
  const char* keys[] = {"Id", nullptr};
  EXPECT_EQ(instance->ft->setPropertyFilter(instance, properties, keys).rc, CMPI_RC_OK);
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 3U);
  CMPIValue yes{};
  yes.boolean = 1;
  EXPECT_EQ(set(instance, "Ready", yes, CMPI_boolean).rc, CMPI_RC_OK);
  CMPIStatus status{};
  instance->ft->getProperty(instance, "Ready", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(set_text(instance, "Name", "sda").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
}

TEST_F(InstanceObjects, A_filter_without_keys_keeps_those_of_the_class) {
  CMPIInstance* instance = new_instance();
  const char* properties[] = {"Name", nullptr};
  instance->ft->setPropertyFilter(instance, properties, nullptr);
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 2U);
  EXPECT_EQ(get(instance, "Id").state, CMPI_nullValue);
}

TEST_F(InstanceObjects, A_filter_does_not_hide_wrong_types) {
  CMPIInstance* instance = new_instance();
  const char* properties[] = {nullptr};
  instance->ft->setPropertyFilter(instance, properties, nullptr);
  EXPECT_EQ(set_text(instance, "Size", "5").rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(InstanceObjects, No_list_is_no_filter) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(instance->ft->setPropertyFilter(instance, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(set_text(instance, "Name", "sda").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(get(instance, "Name").value.string), "sda");
}

// --- Paths of instances --------------------------------------------------------------------------

TEST_F(InstanceObjects, The_path_of_an_instance_has_the_keys_that_were_set) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(path_text(instance->ft->getObjectPath(instance, nullptr)), "root/test:Test_Disk");
  set(instance, "Id", number(5, CMPI_uint32), CMPI_uint32);
  EXPECT_EQ(path_text(instance->ft->getObjectPath(instance, nullptr)), "root/test:Test_Disk.Id=5");
}

TEST_F(InstanceObjects, A_path_that_was_given_stays_the_path_of_the_instance) {
  CMPIInstance* instance = new_instance();
  CMPIObjectPath* path = new_path("TEST_DISK", "root/other");
  CMPIValue id = number(9, CMPI_uint32);
  path->ft->addKey(path, "Id", &id, CMPI_uint32);
  EXPECT_EQ(instance->ft->setObjectPath(instance, path).rc, CMPI_RC_OK);
  set(instance, "Id", number(5, CMPI_uint32), CMPI_uint32);
  EXPECT_EQ(path_text(instance->ft->getObjectPath(instance, nullptr)), "root/other:TEST_DISK.Id=9");
}

TEST_F(InstanceObjects, A_path_of_another_class_is_refused) {
  CMPIInstance* instance = new_instance();
  const CMPIStatus status = instance->ft->setObjectPath(instance, new_path("Test_Tape"));
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(message(status), "a path of class Test_Tape does not fit an instance of Test_Disk");
}

// --- Object paths --------------------------------------------------------------------------------

TEST_F(InstanceObjects, A_path_without_a_namespace_has_an_empty_one) {
  CMPIStatus status{};
  CMPIObjectPath* path = mb()->eft->newObjectPath(mb(), nullptr, "Whatever", &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(path->ft->getNameSpace(path, nullptr)), "");
  EXPECT_EQ(mb()->eft->newObjectPath(mb(), "root", nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST_F(InstanceObjects, A_path_says_what_was_set) {
  CMPIObjectPath* path = new_path("A", "root");
  EXPECT_EQ(path->ft->setNameSpace(path, "root/b").rc, CMPI_RC_OK);
  EXPECT_EQ(path->ft->setClassName(path, "B").rc, CMPI_RC_OK);
  EXPECT_EQ(path->ft->setHostname(path, "switch-1").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(path->ft->getNameSpace(path, nullptr)), "root/b");
  EXPECT_EQ(chars(path->ft->getClassName(path, nullptr)), "B");
  EXPECT_EQ(chars(path->ft->getHostname(path, nullptr)), "switch-1");
  EXPECT_EQ(path->ft->setHostname(path, nullptr).rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(path_text(path), "//switch-1/root/b:B");
}

TEST_F(InstanceObjects, Keys_keep_their_order_and_types_and_are_replaced_by_name) {
  CMPIObjectPath* path = new_path("Test_Disk");
  EXPECT_EQ(path->ft->addKey(path, "Zone", text("z"), CMPI_chars).rc, CMPI_RC_OK);
  CMPIValue id = number(5, CMPI_uint32);
  EXPECT_EQ(path->ft->addKey(path, "Id", &id, CMPI_uint32).rc, CMPI_RC_OK);
  EXPECT_EQ(path->ft->addKey(path, "ZONE", text("y"), CMPI_chars).rc, CMPI_RC_OK);
  EXPECT_EQ(path->ft->getKeyCount(path, nullptr), 2U);
  CMPIString* name = nullptr;
  const CMPIData first = path->ft->getKeyAt(path, 0, &name, nullptr);
  EXPECT_EQ(chars(name), "Zone");
  EXPECT_EQ(first.type, CMPI_string);
  EXPECT_EQ(first.state, CMPI_keyValue);
  EXPECT_EQ(chars(first.value.string), "y");
  const CMPIData second = path->ft->getKey(path, "id", nullptr);
  EXPECT_EQ(second.type, CMPI_uint32);
  EXPECT_EQ(second.value.uint32, 5U);
  EXPECT_EQ(path_text(path), "root/test:Test_Disk.Zone=\"y\",Id=5");
}

TEST_F(InstanceObjects, A_reference_key_is_a_copy_of_the_path) {
  CMPIObjectPath* end = new_path("Test_Disk");
  CMPIObjectPath* path = new_path("Test_Link");
  CMPIValue value{};
  value.ref = end;
  EXPECT_EQ(path->ft->addKey(path, "Antecedent", &value, CMPI_ref).rc, CMPI_RC_OK);
  end->ft->setClassName(end, "Changed");
  const CMPIObjectPath* kept = path->ft->getKey(path, "Antecedent", nullptr).value.ref;
  EXPECT_EQ(chars(kept->ft->getClassName(kept, nullptr)), "Test_Disk");
}

TEST_F(InstanceObjects, Null_and_arrays_are_no_keys) {
  CMPIObjectPath* path = new_path("Test_Disk");
  EXPECT_EQ(path->ft->addKey(path, "Id", nullptr, CMPI_uint32).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  CMPIValue value{};
  value.array = mb()->eft->newArray(mb(), 1, CMPI_uint16, nullptr);
  EXPECT_EQ(path->ft->addKey(path, "Id", &value, CMPI_uint16A).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  value.string = nullptr;
  EXPECT_EQ(path->ft->addKey(path, "Id", &value, CMPI_string).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(InstanceObjects, A_missing_key_is_not_found) {
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIStatus status{};
  EXPECT_EQ(path->ft->getKey(path, "Id", &status).state, CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
  path->ft->getKeyAt(path, 0, nullptr, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

TEST_F(InstanceObjects, Namespace_and_host_are_taken_from_another_path) {
  CMPIObjectPath* from = new_path("A", "root/from");
  from->ft->setHostname(from, "switch-1");
  CMPIObjectPath* to = new_path("B", "root/to");
  EXPECT_EQ(to->ft->setNameSpaceFromObjectPath(to, from).rc, CMPI_RC_OK);
  EXPECT_EQ(path_text(to), "root/from:B");
  EXPECT_EQ(to->ft->setHostAndNameSpaceFromObjectPath(to, from).rc, CMPI_RC_OK);
  EXPECT_EQ(path_text(to), "//switch-1/root/from:B");
  EXPECT_EQ(to->ft->setNameSpaceFromObjectPath(to, nullptr).rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(InstanceObjects, Qualifiers_come_from_the_class) {
  CMPIObjectPath* path = new_path("test_disk");
  EXPECT_EQ(chars(path->ft->getClassQualifier(path, "description", nullptr).value.string),
            "A disk.");
  EXPECT_EQ(path->ft->getPropertyQualifier(path, "ID", "Key", nullptr).value.boolean, 1);
  EXPECT_EQ(
      chars(path->ft->getMethodQualifier(path, "Format", "Description", nullptr).value.string),
      "Writes it anew.");
  EXPECT_EQ(chars(path->ft->getParameterQualifier(path, "Format", "Blocks", "Description", nullptr)
                      .value.string),
            "How many.");
}

TEST_F(InstanceObjects, A_qualifier_of_nothing_is_refused) {
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIStatus status{};
  path->ft->getClassQualifier(path, "Nothing", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
  path->ft->getPropertyQualifier(path, "Nothing", "Key", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  path->ft->getMethodQualifier(path, "Nothing", "Key", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_METHOD_NOT_FOUND);
  path->ft->getParameterQualifier(path, "Format", "Nothing", "Key", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  CMPIObjectPath* unknown = new_path("Nothing");
  unknown->ft->getClassQualifier(unknown, "Key", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_CLASS);
}

// --- Other behaviors -----------------------------------------------------------------------------

class Lenient : public InstanceObjects {
 protected:
  Lenient() : InstanceObjects(Behavior::lenient()) {}
};

TEST_F(Lenient, Stores_wrong_types_and_undeclared_properties) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set(instance, "Size", number(5, CMPI_uint32), CMPI_uint32).rc, CMPI_RC_OK);
  EXPECT_EQ(get(instance, "Size").type, CMPI_uint32);
  EXPECT_EQ(set_text(instance, "Colour", "red").rc, CMPI_RC_OK);
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 12U);
  EXPECT_EQ(instance->ft->setProperty(instance, "Size", nullptr, CMPI_null).rc, CMPI_RC_OK);
}

TEST_F(Lenient, Makes_instances_of_unknown_classes_and_copies_keys) {
  CMPIInstance* unknown = new_instance("Test_Nothing");
  ASSERT_NE(unknown, nullptr);
  EXPECT_EQ(unknown->ft->getPropertyCount(unknown, nullptr), 0U);
  EXPECT_EQ(set_text(unknown, "Any", "thing").rc, CMPI_RC_OK);
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIValue id = number(5, CMPI_uint32);
  path->ft->addKey(path, "Id", &id, CMPI_uint32);
  EXPECT_EQ(path->ft->getKey(path, "Id", nullptr).state, CMPI_goodValue);
  CMPIInstance* known = mb()->eft->newInstance(mb(), path, nullptr);
  EXPECT_EQ(get(known, "Id").value.uint32, 5U);
}

TEST_F(Lenient, Fills_new_values_with_the_defaults_of_their_class) {
  Instance sent;
  sent.path.class_name = "Test_Tape";
  sent.properties.push_back({"Name", Data::string("reel")});
  const InstanceContent content = request_content(broker_, sent);
  EXPECT_EQ(content.instance.find("Wear")->element, Element(std::uint64_t{3}));
  EXPECT_EQ(*content.instance.find("Name"), Data::string("reel"));
}

TEST_F(InstanceObjects, Hold_the_new_values_that_were_sent_only) {
  Instance sent;
  sent.path.class_name = "Test_Tape";
  EXPECT_TRUE(request_content(broker_, sent).instance.find("Wear")->null);
}

TEST_F(Lenient, Loses_paths_with_a_quotation_mark_that_other_objects_hold) {
  CMPIObjectPath* disk = new_path("Test_Disk");
  CMPIObjectPath* link = new_path("Test_Link");
  CMPIInstance* link_instance = new_instance("Test_Link");
  const auto reads_back = [&](const char* zone) {
    disk->ft->addKey(disk, "Zone", text(zone), CMPI_chars);
    CMPIValue reference{};
    reference.ref = disk;
    link->ft->addKey(link, "Antecedent", &reference, CMPI_ref);
    EXPECT_EQ(set(link_instance, "Antecedent", reference, CMPI_ref).rc, CMPI_RC_OK);
    const CMPIData key = link->ft->getKey(link, "Antecedent", nullptr);
    const CMPIData property = get(link_instance, "Antecedent");
    EXPECT_EQ(key.type, CMPI_ref);
    EXPECT_EQ(key.state, CMPI_goodValue);
    EXPECT_EQ(property.state, CMPI_goodValue);
    EXPECT_EQ(key.value.ref == nullptr, property.value.ref == nullptr);
    return key.value.ref != nullptr;
  };
  EXPECT_TRUE(reads_back("it's"));
  EXPECT_FALSE(reads_back("5\""));
  EXPECT_EQ(path_text(disk), "root/test:Test_Disk.Zone=\"5\\\"\"");
}

TEST_F(Lenient, Leaves_optional_slots_out) {
  EXPECT_EQ(mb()->eft->newCMPIError, nullptr);
  EXPECT_EQ(mb()->eft->openMessageFile, nullptr);
  EXPECT_EQ(mb()->xft->joinThread, nullptr);
  CMPIObjectPath* path = new_path("Test_Disk");
  EXPECT_EQ(path->ft->getClassQualifier, nullptr);
  EXPECT_EQ(new_instance()->ft->setPropertyWithOrigin, nullptr);
  EXPECT_EQ(mb()->bft->brokerCapabilities & CMPI_MB_Supports_Extended_Error, 0U);
}

TEST_F(Lenient, Takes_texts_into_string_arrays) {
  CMPIArray* strings = mb()->eft->newArray(mb(), 1, CMPI_string, nullptr);
  EXPECT_EQ(strings->ft->setElementAt(strings, 0, text("x"), CMPI_chars).rc, CMPI_RC_OK);
  EXPECT_EQ(strings->ft->setElementAt(strings, 0, nullptr, CMPI_null).rc, CMPI_RC_OK);
  EXPECT_EQ(strings->ft->getElementAt(strings, 0, nullptr).state, CMPI_nullValue);
}

class Quiet : public InstanceObjects {
 protected:
  Quiet() : InstanceObjects(Behavior::quiet()) {}
};

TEST_F(Quiet, Drops_undeclared_properties_without_a_word) {
  CMPIInstance* instance = new_instance();
  EXPECT_EQ(set_text(instance, "Colour", "red").rc, CMPI_RC_OK);
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 11U);
  EXPECT_TRUE(reports_.empty());
  EXPECT_EQ(set(instance, "Size", number(5, CMPI_uint32), CMPI_uint32).rc,
            CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(Quiet, Sorts_and_widens_keys) {
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIValue id = number(5, CMPI_uint32);
  path->ft->addKey(path, "Zone", text("z"), CMPI_chars);
  path->ft->addKey(path, "id", &id, CMPI_uint32);
  CMPIString* name = nullptr;
  const CMPIData first = path->ft->getKeyAt(path, 0, &name, nullptr);
  EXPECT_EQ(chars(name), "id");
  EXPECT_EQ(first.type, CMPI_sint64);
  EXPECT_EQ(first.value.sint64, 5);
  EXPECT_EQ(path_text(path), "root/test:Test_Disk.id=5,Zone=\"z\"");
}

TEST_F(Quiet, Gives_back_empty_keys_as_null) {
  CMPIObjectPath* path = new_path("Test_Disk");
  path->ft->addKey(path, "Zone", text(""), CMPI_chars);
  const CMPIData key = path->ft->getKey(path, "Zone", nullptr);
  EXPECT_EQ(key.type, CMPI_string);
  EXPECT_EQ(key.state, CMPI_keyValue | CMPI_nullValue);
  EXPECT_EQ(key.value.string, nullptr);
  EXPECT_EQ(path->ft->getKeyAt(path, 0, nullptr, nullptr).state, CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(path->ft->getKeyAt(path, 1, nullptr, nullptr).state, CMPI_keyValue | CMPI_nullValue);
  EXPECT_EQ(path_text(path), "root/test:Test_Disk.Zone=\"\"");
}

TEST_F(Quiet, Counts_keys_that_a_path_lacks) {
  CMPIObjectPath* path = new_path("Test_Text");
  path->ft->addKey(path, "Name", text("n"), CMPI_chars);
  EXPECT_EQ(path->ft->getKeyCount(path, nullptr), 3U);
  CMPIString* name = nullptr;
  CMPIStatus status{};
  EXPECT_EQ(path->ft->getKeyAt(path, 0, &name, &status).state, CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(chars(name), "Flag");
  path->ft->getKeyAt(path, 1, &name, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(name), "Name");
  CMPIObjectPath* unknown = new_path("Test_Nothing");
  EXPECT_EQ(unknown->ft->getKeyCount(unknown, nullptr), 0U);
}

TEST_F(Quiet, Starts_instances_with_the_defaults_of_their_class) {
  CMPIInstance* tape = new_instance("Test_Tape");
  EXPECT_EQ(get(tape, "Wear").value.uint16, 3U);
  EXPECT_EQ(get(tape, "Name").state, CMPI_nullValue);
}

TEST_F(InstanceObjects, Start_without_the_defaults_of_their_class) {
  EXPECT_EQ(get(new_instance("Test_Tape"), "Wear").state, CMPI_nullValue);
}

TEST(Behaviors, Have_names) {
  EXPECT_EQ(Behavior::named("strict")->wrong_type, WrongType::refuse);
  EXPECT_TRUE(Behavior::named("lenient")->keys_copied_to_instance);
  EXPECT_TRUE(Behavior::named("quiet")->sorted_keys);
  EXPECT_FALSE(Behavior::named("Quiet").has_value());
}

TEST_F(Quiet, Filters_when_the_instance_is_returned) {
  CMPIInstance* instance = new_instance();
  const char* properties[] = {"Name", nullptr};
  instance->ft->setPropertyFilter(instance, properties, nullptr);
  CMPIValue yes{};
  yes.boolean = 1;
  set(instance, "Ready", yes, CMPI_boolean);
  EXPECT_EQ(get(instance, "Ready").value.boolean, 1);
  EXPECT_EQ(instance->ft->getPropertyCount(instance, nullptr), 11U);
  Collector collector;
  collector.wanted = ResultOf::instances;
  CMPIResult* result = make<CMPIResult>(broker_, ResultContent{&collector});
  result->ft->returnInstance(result, instance);
  ASSERT_EQ(collector.instances.size(), 1U);
  EXPECT_EQ(collector.instances[0].find("Ready"), nullptr);
  EXPECT_EQ(collector.instances[0].properties.size(), 2U);
}

TEST_F(Quiet, Has_no_memory_table) {
  EXPECT_EQ(mb()->mft, nullptr);
  EXPECT_EQ(mb()->bft->brokerCapabilities & CMPI_MB_Supports_MemEnhancements, 0U);
}

}  // namespace
}  // namespace cim::host
