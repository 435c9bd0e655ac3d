#include "host/object_manager.h"

#include <gtest/gtest.h>

#include "host/object_path.h"
#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

std::vector<std::string> texts(const std::vector<ObjectPath>& paths) {
  std::vector<std::string> result;
  for (const ObjectPath& path : paths)
    result.push_back(to_text(path));
  return result;
}

std::vector<std::string> texts(const std::vector<Instance>& instances) {
  std::vector<std::string> result;
  for (const Instance& instance : instances)
    result.push_back(to_text(instance.path));
  return result;
}

using Texts = std::vector<std::string>;
using Enumerate = ManagerTest;

// --- Enumerating ---------------------------------------------------------------------------------

TEST_F(Enumerate, Gives_the_instances_of_the_class_and_of_those_derived_from_it) {
  const std::vector<Instance> disks = manager_->enumerate_instances("root/test", "Test_Disk");
  EXPECT_EQ(texts(disks), (Texts{"root/test:Test_Disk.Id=1", "root/test:Test_Disk.Id=2",
                                 "root/test:Test_FastDisk.Id=3"}));
  EXPECT_EQ(*disks[0].find("name"), Data::string("disk1"));
  EXPECT_EQ(*disks[2].find("Size"), Data::of(CMPI_uint64, Element(std::uint64_t{3000})));
  EXPECT_TRUE(disks[0].find("Ready")->null);
}

TEST_F(Enumerate, Gives_the_names_likewise) {
  EXPECT_EQ(texts(manager_->enumerate_instance_names("root/test", "test_disk")),
            (Texts{"root/test:Test_Disk.Id=1", "root/test:Test_Disk.Id=2",
                   "root/test:Test_FastDisk.Id=3"}));
}

TEST_F(Enumerate, Of_a_superclass_leaves_out_what_is_not_supported) {
  EXPECT_EQ(manager_->enumerate_instances("root/test", "CIM_Thing").size(), 3U);
  EXPECT_EQ(reports_, Texts{"Test_Tape: no tapes"});
  EXPECT_EQ(manager_->enumerate_instance_names("root/test", "CIM_Thing").size(), 3U);
}

TEST_F(Enumerate, Of_a_class_that_is_not_supported_says_so) {
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_Tape"); }),
            std::pair(CMPI_RC_ERR_NOT_SUPPORTED, std::string("Test_Tape: no tapes")));
}

TEST_F(Enumerate, Asks_the_provider_in_the_words_of_the_repository) {
  manager_->enumerate_instances("ROOT/test", "TEST_FASTDISK", PropertyList({"name", "SIZE"}));
  EXPECT_STREQ(fake().last_operation, "enumerateInstances");
  EXPECT_STREQ(fake().last_class, "Test_FastDisk");
  EXPECT_STREQ(fake().last_namespace, "ROOT/test");
  EXPECT_STREQ(fake().last_properties, "name,SIZE");
  EXPECT_EQ(fake().last_flags, 2U);  // deep inheritance
  EXPECT_STREQ(fake().last_principal, "guest");
}

TEST_F(Enumerate, Returns_only_the_properties_that_were_asked_for) {
  const auto disks =
      manager_->enumerate_instances("root/test", "Test_FastDisk", PropertyList({"NAME"}));
  ASSERT_EQ(disks.size(), 1U);
  ASSERT_EQ(disks[0].properties.size(), 1U);
  EXPECT_EQ(disks[0].properties[0].name, "Name");
  EXPECT_EQ(to_text(disks[0].path), "root/test:Test_FastDisk.Id=3");
}

TEST_F(Enumerate, An_empty_property_list_returns_no_properties) {
  const auto disks =
      manager_->enumerate_instances("root/test", "Test_FastDisk", PropertyList(std::in_place));
  EXPECT_STREQ(fake().last_properties, "");
  EXPECT_TRUE(disks.at(0).properties.empty());
}

TEST_F(Enumerate, Fills_in_a_namespace_that_the_provider_left_out) {
  fake().mode = FakeMode::leaves_namespace_out;
  EXPECT_EQ(texts(manager_->enumerate_instances("root/second", "Test_FastDisk")),
            Texts{"root/second:Test_FastDisk.Id=3"});
  EXPECT_EQ(texts(manager_->enumerate_instance_names("root/second", "Test_FastDisk")),
            Texts{"root/second:Test_FastDisk.Id=3"});
}

TEST_F(Enumerate, Knows_its_namespaces) {
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/cimv2", "Test_Disk"); }),
            std::pair(CMPI_RC_ERR_INVALID_NAMESPACE,
                      std::string("root/cimv2: no such namespace (there is root/test, "
                                  "root/second)")));
}

TEST_F(Enumerate, Suggests_the_class_that_was_meant) {
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_Dsik"); }),
            std::pair(CMPI_RC_ERR_INVALID_CLASS,
                      std::string("Test_Dsik: no such class (did you mean Test_Disk?)")));
  EXPECT_EQ(error_of([&] { manager_->enumerate_instance_names("root/test", "Zebra"); }).second,
            "Zebra: no such class");
}

TEST_F(Enumerate, Of_a_class_without_a_provider_says_so) {
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Lone_Thing"); }),
            std::pair(CMPI_RC_ERR_NOT_SUPPORTED,
                      std::string("Lone_Thing: no provider serves this class")));
}

TEST_F(Enumerate, A_failure_of_the_provider_reaches_the_client) {
  fake().mode = FakeMode::fails;
  fake().status = CMPI_RC_ERR_ACCESS_DENIED;
  fake().message = "go away";
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_Disk"); }),
            std::pair(CMPI_RC_ERR_ACCESS_DENIED, std::string("Test_Disk: go away")));
  fake().message = "Test_Disk is locked";
  EXPECT_EQ(error_of([&] { manager_->enumerate_instance_names("root/test", "Test_Disk"); }).second,
            "Test_Disk is locked");
}

TEST_F(Enumerate, A_failure_without_a_text_gets_the_name_of_its_status) {
  fake().mode = FakeMode::fails_without_text;
  fake().status = CMPI_RC_ERR_ACCESS_DENIED;
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_Disk"); }).second,
            "Test_Disk: CIM_ERR_ACCESS_DENIED");
}

TEST_F(Enumerate, An_exception_of_the_provider_is_a_failure) {
  fake().mode = FakeMode::throws;
  EXPECT_EQ(
      error_of([&] { manager_->enumerate_instances("root/test", "Test_Disk"); }),
      std::pair(CMPI_RC_ERR_FAILED, std::string("Test_Disk: the provider failed: out of luck")));
}

TEST_F(Enumerate, Whatever_a_provider_throws_is_a_failure) {
  fake().mode = FakeMode::throws_a_number;
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_Disk"); }),
            std::pair(CMPI_RC_ERR_FAILED, std::string("Test_Disk: the provider failed")));
}

TEST_F(Enumerate, Takes_nothing_after_the_provider_is_done) {
  fake().mode = FakeMode::returns_after_done;
  EXPECT_EQ(manager_->enumerate_instances("root/test", "Test_FastDisk").size(), 1U);
  EXPECT_EQ(fake().last_return_status, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(reports_, Texts{"the provider returns more after returnDone; it was not taken"});
}

TEST_F(Enumerate, Takes_no_paths_for_instances_and_the_reverse) {
  fake().mode = FakeMode::returns_wrong_kind;
  EXPECT_EQ(manager_->enumerate_instances("root/test", "Test_FastDisk").size(), 0U);
  EXPECT_EQ(fake().last_return_status, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(manager_->enumerate_instance_names("root/test", "Test_FastDisk").size(), 0U);
  EXPECT_EQ(reports_, (Texts{"this operation returns instances, not object paths",
                             "this operation returns object paths, not instances"}));
}

TEST_F(Enumerate, A_result_ends_with_its_operation) {
  // Inside one request the structure is still there, but its handle is not.
  const Scope request(manager_->broker(), std::make_shared<Arena>());
  fake().mode = FakeMode::keeps_result;
  manager_->enumerate_instances("root/test", "Test_FastDisk");
  fake().mode = FakeMode::uses_kept_result;
  manager_->enumerate_instances("root/test", "Test_FastDisk");
  EXPECT_EQ(fake().last_return_status, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(Enumerate, A_refused_type_is_reported_and_the_value_missing) {
  fake().mode = FakeMode::sets_wrong_type;
  const auto disks = manager_->enumerate_instances("root/test", "Test_FastDisk");
  EXPECT_EQ(fake().last_return_status, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_TRUE(disks.at(0).find("Size")->null);
  EXPECT_EQ(reports_, Texts{"Test_FastDisk.Size is declared uint64, not uint32; it was not set"});
}

TEST_F(Enumerate, No_instances_are_no_failure) {
  fake().mode = FakeMode::returns_nothing;
  EXPECT_TRUE(manager_->enumerate_instances("root/test", "Test_Disk").empty());
}

// --- One instance --------------------------------------------------------------------------------

using GetInstance = ManagerTest;

ObjectPath typed(const char* text) {
  ParsedPath parsed = parse_object_path(text);
  EXPECT_EQ(parsed.error, "") << text;
  return parsed.path;
}

TEST_F(GetInstance, Gives_the_keys_of_a_typed_path_their_declared_types) {
  const Instance disk = manager_->get_instance(typed("test_disk.ID=2"));
  EXPECT_EQ(to_text(disk.path), "root/test:Test_Disk.Id=2");
  EXPECT_EQ(disk.path.keys.at(0).data.type, CMPI_uint32);
  EXPECT_EQ(*disk.find("Name"), Data::string("disk2"));
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk.Id=2");
}

TEST_F(GetInstance, Converts_every_kind_of_key) {
  fake().mode = FakeMode::returns_nothing;
  error_of([&] { manager_->get_instance(typed("Test_Text.Number=-5,Flag=true,Name=\"x\"")); });
  EXPECT_STREQ(fake().last_path, "root/test:Test_Text.Number=-5,Flag=TRUE,Name=\"x\"");
  error_of([&] {
    manager_->get_instance(
        typed("Test_Link.Antecedent=\"Test_Disk.Id=1\",Dependent=\"Test_FastDisk.Id=3\""));
  });
  EXPECT_STREQ(fake().last_path,
               "root/test:Test_Link.Antecedent=\"Test_Disk.Id=1\","
               "Dependent=\"Test_FastDisk.Id=3\"");
}

TEST_F(GetInstance, Refuses_paths_that_do_not_fit_the_class) {
  const struct {
    const char* path;
    CMPIrc code;
    const char* text;
  } table[] = {
      {"Test_Disk", CMPI_RC_ERR_INVALID_PARAMETER, "Test_Disk: key Id is missing"},
      {"Test_Disk.Idd=1", CMPI_RC_ERR_INVALID_PARAMETER,
       "Test_Disk has no key Idd (did you mean Id?)"},
      {"Test_Disk.Id=1,Name=\"x\"", CMPI_RC_ERR_INVALID_PARAMETER, "Test_Disk has no key Name"},
      {"Test_Disk.Id=\"1\"", CMPI_RC_ERR_INVALID_PARAMETER,
       "Test_Disk, key Id: \"1\" is not a uint32"},
      {"Test_Disk.Id=4294967296", CMPI_RC_ERR_INVALID_PARAMETER,
       "Test_Disk, key Id: 4294967296 is out of range for uint32 (0 to 4294967295)"},
      {"Test_Disk.Id=-1", CMPI_RC_ERR_INVALID_PARAMETER,
       "Test_Disk, key Id: -1 is out of range for uint32 (0 to 4294967295)"},
      {"Test_Link.Antecedent=\"Test_Disk.Id\",Dependent=\"A\"", CMPI_RC_ERR_INVALID_PARAMETER,
       "Test_Link, key Antecedent: not an object path: column 13: expected '=' after key Id"},
      {"CIM_Thing.Id=1", CMPI_RC_ERR_NOT_SUPPORTED,
       "CIM_Thing is abstract: an instance has a class that derives from it"},
      {"Lone_Thing.Id=1", CMPI_RC_ERR_NOT_SUPPORTED, "Lone_Thing: no provider serves this class"},
      {"Nothing.Id=1", CMPI_RC_ERR_INVALID_CLASS, "Nothing: no such class"},
      {"other:Test_Disk.Id=1", CMPI_RC_ERR_INVALID_NAMESPACE,
       "other: no such namespace (there is root/test, root/second)"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(error_of([&] { manager_->get_instance(typed(row.path)); }),
              std::pair(row.code, std::string(row.text)))
        << row.path;
  }
  EXPECT_STREQ(fake().last_operation, "");
}

TEST_F(GetInstance, What_the_provider_does_not_find_is_not_found) {
  EXPECT_EQ(error_of([&] { manager_->get_instance(disk_path(9)); }),
            std::pair(CMPI_RC_ERR_NOT_FOUND, std::string("Test_Disk: no such disk")));
  fake().mode = FakeMode::returns_nothing;
  EXPECT_EQ(
      error_of([&] { manager_->get_instance(disk_path(1)); }),
      std::pair(CMPI_RC_ERR_NOT_FOUND, std::string("root/test:Test_Disk.Id=1: no such instance")));
}

TEST_F(GetInstance, Returns_only_the_properties_that_were_asked_for) {
  const Instance disk = manager_->get_instance(disk_path(1), PropertyList({"size"}));
  EXPECT_STREQ(fake().last_properties, "size");
  ASSERT_EQ(disk.properties.size(), 1U);
  EXPECT_EQ(disk.properties[0].name, "Size");
}

TEST_F(GetInstance, A_provider_may_ask_back_in_the_middle_of_a_request) {
  fake().mode = FakeMode::asks_back;
  EXPECT_EQ(*manager_->get_instance(disk_path(1)).find("Name"), Data::string("disk1"));
  EXPECT_STREQ(fake().last_filters, "root/test:Test_FastDisk.Id=3");
}

TEST_F(GetInstance, A_provider_that_asks_for_an_unknown_class_is_told_so) {
  fake().mode = FakeMode::asks_unknown_class;
  EXPECT_EQ(
      error_of([&] { manager_->get_instance(disk_path(1)); }),
      std::pair(CMPI_RC_ERR_INVALID_CLASS, std::string("Test_Disk: Test_Nothing: no such class")));
}

// --- Changing ------------------------------------------------------------------------------------

using Changes = ManagerTest;

TEST_F(Changes, Create_hands_over_typed_properties_and_returns_the_new_path) {
  Instance disk{{{}, "root/test", "test_disk", {}}, {}};
  disk.properties = {{"NAME", Data::string("new")},
                     {"size", Data::of(CMPI_uint8, Element(std::uint64_t{5}))}};
  EXPECT_EQ(to_text(manager_->create_instance(disk)), "root/test:Test_Disk.Id=7");
  EXPECT_STREQ(fake().last_operation, "createInstance");
  EXPECT_STREQ(fake().last_instance,
               "instance of Test_Disk {\n  Name = \"new\";\n  Size = 5;\n};\n");
}

TEST_F(Changes, Create_refuses_what_the_class_does_not_allow) {
  Instance disk{{{}, "root/test", "Test_Disk", {}}, {{"Nam", Data::string("x")}}};
  EXPECT_EQ(error_of([&] { manager_->create_instance(disk); }),
            std::pair(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                      std::string("Test_Disk has no property Nam (did you mean Name?)")));
  disk.properties = {{"Size", Data::string("big")}};
  EXPECT_EQ(
      error_of([&] { manager_->create_instance(disk); }),
      std::pair(CMPI_RC_ERR_TYPE_MISMATCH, std::string("Test_Disk.Size: \"big\" is not a uint64")));
  disk.path.class_name = "CIM_Thing";
  EXPECT_EQ(error_of([&] { manager_->create_instance(disk); }).first, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_STREQ(fake().last_operation, "");
}

TEST_F(Changes, Create_needs_the_path_from_the_provider) {
  fake().mode = FakeMode::returns_nothing;
  EXPECT_EQ(error_of([&] {
              manager_->create_instance({{{}, "root/test", "Test_Disk", {}}, {}});
            }).second,
            "Test_Disk: the provider returned no path of the new instance");
}

TEST_F(Changes, Modify_hands_over_the_instance_and_the_list) {
  manager_->modify_instance({disk_path(1), {{"Name", Data::string("x")}}}, PropertyList({"Name"}));
  EXPECT_STREQ(fake().last_operation, "modifyInstance");
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk.Id=1");
  EXPECT_STREQ(fake().last_properties, "Name");
  EXPECT_STREQ(fake().last_instance, "instance of Test_Disk {\n  Name = \"x\";\n};\n");
}

TEST_F(Changes, Delete_hands_over_the_path) {
  manager_->delete_instance(disk_path(2));
  EXPECT_STREQ(fake().last_operation, "deleteInstance");
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk.Id=2");
}

TEST_F(Changes, Failures_of_the_provider_reach_the_client) {
  fake().mode = FakeMode::fails;
  fake().status = CMPI_RC_ERR_ALREADY_EXISTS;
  fake().message = "no";
  const auto expected = std::pair(CMPI_RC_ERR_ALREADY_EXISTS, std::string("Test_Disk: no"));
  EXPECT_EQ(error_of([&] {
              manager_->create_instance({{{}, "root/test", "Test_Disk", {}}, {}});
            }),
            expected);
  EXPECT_EQ(error_of([&] { manager_->modify_instance({disk_path(1), {}}); }), expected);
  EXPECT_EQ(error_of([&] { manager_->delete_instance(disk_path(1)); }), expected);
}

// --- Associations --------------------------------------------------------------------------------

using Associations = ManagerTest;

TEST_F(Associations, Are_asked_of_the_classes_that_lead_to_the_instance) {
  EXPECT_EQ(texts(manager_->associators(disk_path(1))), Texts{"root/test:Test_FastDisk.Id=3"});
  EXPECT_STREQ(fake().last_operation, "associators");
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk.Id=1");
  EXPECT_STREQ(fake().last_filters, "Test_Link,-,-,-");
  EXPECT_STREQ(fake().last_properties, "(all)");
}

TEST_F(Associations, Filters_and_properties_are_handed_over) {
  const AssociationFilter filter{"test_link", "Test_FastDisk", "Antecedent", "Dependent"};
  const auto disks = manager_->associators(disk_path(1), filter, PropertyList({"Name"}));
  EXPECT_STREQ(fake().last_filters, "Test_Link,Test_FastDisk,Antecedent,Dependent");
  EXPECT_STREQ(fake().last_properties, "Name");
  EXPECT_EQ(disks.at(0).properties.size(), 1U);
  EXPECT_EQ(texts(manager_->associator_names(disk_path(1), filter)),
            Texts{"root/test:Test_FastDisk.Id=3"});
  EXPECT_STREQ(fake().last_filters, "Test_Link,Test_FastDisk,Antecedent,Dependent");
}

TEST_F(Associations, A_role_that_does_not_lead_to_the_class_asks_nobody) {
  EXPECT_TRUE(manager_->associators(disk_path(1), {{}, {}, "Dependent", {}}).empty());
  EXPECT_TRUE(manager_->reference_names(disk_path(1), {{}, {}, "Nothing", {}}).empty());
  EXPECT_STREQ(fake().last_operation, "");
}

TEST_F(Associations, A_role_is_found_for_a_derived_class) {
  manager_->associators(disk_path(3, "Test_FastDisk"), {{}, {}, "dependent", {}});
  EXPECT_STREQ(fake().last_filters, "Test_Link,-,dependent,-");
}

TEST_F(Associations, References_are_the_association_instances) {
  const auto links = manager_->references(disk_path(1), {{}, "Test_Link", "Antecedent", {}});
  ASSERT_EQ(links.size(), 1U);
  EXPECT_EQ(to_text(links[0].path),
            "root/test:Test_Link.Antecedent=\"root/test:Test_Disk.Id=1\","
            "Dependent=\"root/test:Test_FastDisk.Id=3\"");
  EXPECT_STREQ(fake().last_filters, "Test_Link,Antecedent");
  EXPECT_EQ(manager_->reference_names(disk_path(1)).size(), 1U);
  EXPECT_STREQ(fake().last_filters, "Test_Link,-");
}

TEST_F(Associations, An_unknown_association_class_is_refused) {
  EXPECT_EQ(error_of([&] {
              manager_->associators(disk_path(1), {"Nothing", {}, {}, {}});
            }),
            std::pair(CMPI_RC_ERR_INVALID_PARAMETER, std::string("Nothing: no such class")));
}

TEST_F(Associations, What_a_provider_does_not_support_is_left_out) {
  fake().mode = FakeMode::fails;
  fake().status = CMPI_RC_ERR_NOT_SUPPORTED;
  fake().message = "no links";
  EXPECT_TRUE(manager_->associators(disk_path(1)).empty());
  EXPECT_EQ(reports_, Texts{"Test_Link: no links"});
  fake().status = CMPI_RC_ERR_FAILED;
  EXPECT_EQ(error_of([&] { manager_->references(disk_path(1)); }),
            std::pair(CMPI_RC_ERR_FAILED, std::string("Test_Link: no links")));
}

// --- Methods -------------------------------------------------------------------------------------

using Methods = ManagerTest;

TEST_F(Methods, Take_typed_arguments_and_give_a_value_and_arguments) {
  const MethodResult result = manager_->invoke_method(
      disk_path(1), "FORMAT",
      {{"blocks", Data::of(CMPI_uint64, Element(std::uint64_t{8}))}, {"LABEL", Data::string("x")}});
  EXPECT_STREQ(fake().last_operation, "Format");
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk.Id=1");
  EXPECT_STREQ(fake().last_arguments, "Blocks=8, Label=\"x\"");
  EXPECT_EQ(result.value, Data::of(CMPI_uint32, Element(std::uint64_t{42})));
  ASSERT_EQ(result.out.size(), 1U);
  EXPECT_EQ(result.out[0].name, "Report");
  EXPECT_EQ(result.out[0].data, Data::string("done"));
}

TEST_F(Methods, May_be_called_on_the_class) {
  manager_->invoke_method({{}, {}, "test_disk", {}}, "Count", {});
  EXPECT_STREQ(fake().last_path, "root/test:Test_Disk");
}

TEST_F(Methods, Refuse_what_is_not_declared) {
  EXPECT_EQ(
      error_of([&] { manager_->invoke_method(disk_path(1), "Explode", {}); }),
      std::pair(CMPI_RC_ERR_METHOD_NOT_FOUND, std::string("Test_Disk has no method Explode")));
  EXPECT_EQ(error_of([&] {
              manager_->invoke_method(disk_path(1), "Format", {{"Size", Data::boolean(true)}});
            }),
            std::pair(CMPI_RC_ERR_INVALID_PARAMETER,
                      std::string("Test_Disk.Format takes no parameter Size")));
  EXPECT_EQ(error_of([&] {
              manager_->invoke_method(disk_path(1), "Format", {{"Report", Data::string("x")}});
            }).first,
            CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(error_of([&] {
              manager_->invoke_method(disk_path(1), "Format", {{"Blocks", Data::string("x")}});
            }),
            std::pair(CMPI_RC_ERR_INVALID_PARAMETER,
                      std::string("parameter Blocks: \"x\" is not a uint32")));
}

// --- Up-calls through the broker's table ---------------------------------------------------------

class UpCalls : public ManagerTest {
 protected:
  UpCalls() : scope_(manager_->broker(), std::make_shared<Arena>()) {}

  const CMPIBroker* mb() { return manager_->broker().face(); }
  CMPIObjectPath* path(const ObjectPath& content) {
    return make<CMPIObjectPath>(manager_->broker(), content);
  }
  static std::string chars(const CMPIString* string) {
    return string->ft->getCharPtr(string, nullptr);
  }

  Scope scope_;
};

TEST_F(UpCalls, Enumerate_instances_and_names) {
  CMPIStatus status{};
  const char* properties[] = {"Name", nullptr};
  CMPIEnumeration* disks = mb()->bft->enumerateInstances(
      mb(), nullptr, path({{}, "root/test", "Test_FastDisk", {}}), properties, &status);
  ASSERT_EQ(status.rc, CMPI_RC_OK);
  const CMPIInstance* disk = disks->ft->getNext(disks, nullptr).value.inst;
  EXPECT_EQ(chars(disk->ft->getProperty(disk, "Name", nullptr).value.string), "disk3");
  EXPECT_EQ(disks->ft->hasNext(disks, nullptr), 0);
  CMPIEnumeration* names = mb()->bft->enumerateInstanceNames(
      mb(), nullptr, path({{}, "root/test", "Test_Disk", {}}), &status);
  EXPECT_EQ(
      names->ft->toArray(names, nullptr)->ft->getSize(names->ft->toArray(names, nullptr), nullptr),
      3U);
}

TEST_F(UpCalls, Get_an_instance_and_a_property) {
  CMPIStatus status{};
  CMPIInstance* disk = mb()->bft->getInstance(mb(), nullptr, path(disk_path(1)), nullptr, &status);
  ASSERT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(disk->ft->getProperty(disk, "Name", nullptr).value.string), "disk1");
  EXPECT_EQ(
      chars(
          mb()->bft->getProperty(mb(), nullptr, path(disk_path(1)), "name", &status).value.string),
      "disk1");
  mb()->bft->getProperty(mb(), nullptr, path(disk_path(1)), "Colour", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(mb()->bft->getInstance(mb(), nullptr, path(disk_path(9)), nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(chars(status.msg), "Test_Disk: no such disk");
}

TEST_F(UpCalls, Create_modify_set_a_property_and_delete) {
  CMPIObjectPath* op = path(disk_path(1));
  CMPIInstance* disk = mb()->eft->newInstance(mb(), op, nullptr);
  disk->ft->setProperty(disk, "Name", reinterpret_cast<const CMPIValue*>("x"), CMPI_chars);
  CMPIStatus status{};
  CMPIObjectPath* made = mb()->bft->createInstance(mb(), nullptr, op, disk, &status);
  EXPECT_EQ(chars(made->ft->toString(made, nullptr)), "root/test:Test_Disk.Id=7");
  EXPECT_EQ(mb()->bft->modifyInstance(mb(), nullptr, op, disk, nullptr).rc, CMPI_RC_OK);
  EXPECT_STREQ(fake().last_operation, "modifyInstance");
  EXPECT_EQ(mb()->bft
                ->setProperty(mb(), nullptr, op, "name", reinterpret_cast<const CMPIValue*>("y"),
                              CMPI_chars)
                .rc,
            CMPI_RC_OK);
  EXPECT_STREQ(fake().last_properties, "name");
  EXPECT_STREQ(fake().last_instance, "instance of Test_Disk {\n  Name = \"y\";\n};\n");
  EXPECT_EQ(mb()->bft->deleteInstance(mb(), nullptr, op).rc, CMPI_RC_OK);
  EXPECT_STREQ(fake().last_operation, "deleteInstance");
}

TEST_F(UpCalls, Walk_associations_with_their_filters) {
  CMPIObjectPath* op = path(disk_path(1));
  CMPIStatus status{};
  EXPECT_NE(mb()->bft->associators(mb(), nullptr, op, "Test_Link", nullptr, "Antecedent", nullptr,
                                   nullptr, &status),
            nullptr);
  EXPECT_STREQ(fake().last_filters, "Test_Link,-,Antecedent,-");
  EXPECT_NE(mb()->bft->associatorNames(mb(), nullptr, op, nullptr, nullptr, nullptr, "Dependent",
                                       &status),
            nullptr);
  EXPECT_STREQ(fake().last_filters, "Test_Link,-,-,Dependent");
  EXPECT_NE(mb()->bft->references(mb(), nullptr, op, "Test_Link", nullptr, nullptr, &status),
            nullptr);
  EXPECT_STREQ(fake().last_filters, "Test_Link,-");
  EXPECT_NE(mb()->bft->referenceNames(mb(), nullptr, op, nullptr, "Antecedent", &status), nullptr);
  EXPECT_STREQ(fake().last_filters, "Test_Link,Antecedent");
}

TEST_F(UpCalls, Invoke_a_method) {
  CMPIArgs* in = mb()->eft->newArgs(mb(), nullptr);
  CMPIArgs* out = mb()->eft->newArgs(mb(), nullptr);
  CMPIStatus status{};
  const CMPIData value =
      mb()->bft->invokeMethod(mb(), nullptr, path(disk_path(1)), "Format", in, out, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(value.value.uint32, 42U);
  EXPECT_EQ(chars(out->ft->getArg(out, "Report", nullptr).value.string), "done");
  mb()->bft->invokeMethod(mb(), nullptr, path(disk_path(1)), nullptr, in, out, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

// --- Providers -----------------------------------------------------------------------------------

using Providers = ManagerTest;

TEST_F(Providers, One_provider_object_of_each_kind_is_made_when_it_is_needed) {
  EXPECT_EQ(fake().factories, 0);
  manager_->enumerate_instances("root/test", "Test_Disk");
  manager_->enumerate_instance_names("root/test", "Test_Disk");
  EXPECT_EQ(fake().factories, 1);
  EXPECT_STREQ(fake().factory_name, "Fake");
  manager_->associators(disk_path(1));
  manager_->invoke_method(disk_path(1), "Format", {});
  EXPECT_EQ(fake().factories, 3);
}

TEST_F(Providers, Are_told_when_the_object_manager_ends) {
  manager_->enumerate_instances("root/test", "Test_Disk");
  manager_->associators(disk_path(1));
  manager_.reset();
  EXPECT_EQ(fake().cleanups, 2);
  EXPECT_EQ(fake().last_terminating, 1);
}

/// Whether the library is still in the process after an object manager that used it, while its
/// provider answers cleanup with `status`.
bool stays_loaded(CMPIrc status) {
  std::string file;
  {
    const FakeLibrary fake("fake_both");
    file = fake.file();
    fake.control().cleanup_status = status;
    Settings settings;
    settings.name_spaces = {"root/test"};
    settings.providers = {{"Fake", file, "Test_"}};
    ObjectManager(test_repository(), settings).enumerate_instances("root/test", "Test_Disk");
  }
  void* still_there = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (still_there != nullptr) dlclose(still_there);
  return still_there != nullptr;
}

TEST(ProviderLibraries, Are_unloaded_unless_a_provider_wants_to_stay) {
  EXPECT_FALSE(stays_loaded(CMPI_RC_OK));
  EXPECT_TRUE(stays_loaded(CMPI_RC_NEVER_UNLOAD));
}

TEST(ProviderLibraries, Stay_loaded_when_a_provider_asks_for_it_this_time) {
  EXPECT_TRUE(stays_loaded(CMPI_RC_DO_NOT_UNLOAD));
}

TEST(ProviderLibraries, A_named_factory_serves_when_there_is_no_generic_one) {
  const FakeLibrary fake("fake_named");
  Settings settings;
  settings.name_spaces = {"root/test"};
  settings.providers = {{"Fake", fake.file(), "Test_"}};
  ObjectManager manager(test_repository(), settings);
  EXPECT_EQ(manager.enumerate_instances("root/test", "Test_FastDisk").size(), 1U);
  EXPECT_STREQ(fake.control().factory_name, "named");
}

TEST(ProviderLibraries, The_generic_factory_goes_first) {
  const FakeLibrary fake("fake_both");
  Settings settings;
  settings.name_spaces = {"root/test"};
  settings.providers = {{"Fake", fake.file(), "Test_"}};
  ObjectManager manager(test_repository(), settings);
  EXPECT_EQ(manager.enumerate_instances("root/test", "Test_FastDisk").size(), 1U);
  EXPECT_STREQ(fake.control().factory_name, "Fake");
}

TEST(ProviderLibraries, A_library_without_factories_is_not_supported) {
  const FakeLibrary fake("fake_neither");
  Settings settings;
  settings.name_spaces = {"root/test"};
  settings.providers = {{"Fake", fake.file(), "Test_"}};
  ObjectManager manager(test_repository(), settings);
  EXPECT_EQ(error_of([&] { manager.enumerate_instances("root/test", "Test_FastDisk"); }),
            std::pair(CMPI_RC_ERR_NOT_SUPPORTED, fake.file() +
                                                     " has neither _Generic_Create_InstanceMI nor "
                                                     "Fake_Create_InstanceMI"));
}

TEST_F(Providers, A_factory_that_fails_says_why) {
  restart("Broken", fake_.file());
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_FastDisk"); }),
            std::pair(CMPI_RC_ERR_ACCESS_DENIED,
                      std::string("provider Broken cannot be made: the disks are locked")));
  restart("Silent", fake_.file());
  EXPECT_EQ(error_of([&] { manager_->enumerate_instances("root/test", "Test_FastDisk"); }).first,
            CMPI_RC_ERR_FAILED);
}

TEST_F(Providers, A_library_that_is_not_there_is_a_failure) {
  restart("Fake", "/nonexistent/libnothing.so");
  const auto [code, text] =
      error_of([&] { manager_->enumerate_instances("root/test", "Test_FastDisk"); });
  EXPECT_EQ(code, CMPI_RC_ERR_FAILED);
  EXPECT_TRUE(text.starts_with("the provider library does not load: /nonexistent/libnothing.so"))
      << text;
}

TEST_F(Providers, Serve_concrete_classes_by_prefix_or_by_the_Provider_qualifier) {
  const auto& repository = manager_->repository();
  EXPECT_NE(manager_->route(*repository.find("Test_Disk")), nullptr);
  EXPECT_EQ(manager_->route(*repository.find("CIM_Thing")), nullptr);
  EXPECT_EQ(manager_->route(*repository.find("Lone_Thing")), nullptr);
  EXPECT_EQ(manager_->route(*repository.find("Test_Foreign")), nullptr);
  restart("Other", fake_.file());
  EXPECT_EQ(manager_->route(*repository.find("Test_Foreign"))->name, "Other");
}

TEST(ObjectManagers, Need_a_namespace) {
  Settings settings;
  settings.name_spaces = {};
  EXPECT_EQ(error_of([&] { ObjectManager(test_repository(), settings); }).first,
            CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST(StatusName, Names_the_codes_of_CIM) {
  EXPECT_EQ(status_name(CMPI_RC_ERR_NOT_FOUND), "CIM_ERR_NOT_FOUND");
  EXPECT_EQ(status_name(CMPI_RC_ERR_METHOD_NOT_FOUND), "CIM_ERR_METHOD_NOT_FOUND");
  EXPECT_EQ(status_name(static_cast<CMPIrc>(77)), "status 77");
}

}  // namespace
}  // namespace cim::host
