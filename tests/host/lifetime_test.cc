// How long CMPI objects live. Run under the sanitizers, these tests also show that nothing leaks.
#include <gtest/gtest.h>

#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

using Lifetime = TableTest;

TEST_F(Lifetime, Objects_go_with_the_request) {
  CMPIString* string = this->string("text");
  const void* handle = string->hdl;
  EXPECT_NE(live_node(handle), nullptr);
  end_request();
  EXPECT_EQ(live_node(handle), nullptr);
}

TEST_F(Lifetime, A_clone_outlives_the_request_until_it_is_released) {
  CMPIInstance* instance = new_instance();
  CMPIValue value{};
  value.uint32 = 5;
  instance->ft->setProperty(instance, "Id", &value, CMPI_uint32);
  CMPIStatus status{};
  CMPIInstance* clone = instance->ft->clone(instance, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  end_request();
  EXPECT_EQ(clone->ft->getProperty(clone, "Id", nullptr).value.uint32, 5U);
  EXPECT_EQ(clone->ft->release(clone).rc, CMPI_RC_OK);
}

TEST_F(Lifetime, Release_frees_the_content_of_a_clone_at_once) {
  CMPIString* clone = string("text")->ft->clone(string("text"), nullptr);
  const void* handle = clone->hdl;
  EXPECT_EQ(clone->ft->release(clone).rc, CMPI_RC_OK);
  EXPECT_EQ(live_node(handle), nullptr);
  EXPECT_EQ(clone->hdl, nullptr);
}

TEST_F(Lifetime, A_second_release_in_the_same_request_is_harmless) {
  CMPIString* clone = string("text")->ft->clone(string("text"), nullptr);
  EXPECT_EQ(clone->ft->release(clone).rc, CMPI_RC_OK);
  EXPECT_EQ(clone->ft->release(clone).rc, CMPI_RC_OK);
}

TEST_F(Lifetime, An_object_of_the_request_may_be_released_early_and_twice) {
  CMPIObjectPath* path = new_path("Test_Disk");
  EXPECT_EQ(path->ft->release(path).rc, CMPI_RC_OK);
  EXPECT_EQ(path->ft->release(path).rc, CMPI_RC_OK);
  CMPIStatus status{};
  EXPECT_EQ(path->ft->getKeyCount(path, &status), 0U);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(Lifetime, An_unreleased_clone_goes_with_the_broker) {
  EXPECT_NE(string("text")->ft->clone(string("text"), nullptr), nullptr);
}

TEST_F(Lifetime, A_clone_does_not_follow_changes_of_its_original) {
  CMPIObjectPath* path = new_path("Test_Disk");
  CMPIObjectPath* clone = path->ft->clone(path, nullptr);
  path->ft->setClassName(path, "Test_Tape");
  EXPECT_EQ(chars(clone->ft->getClassName(clone, nullptr)), "Test_Disk");
}

TEST_F(Lifetime, Objects_made_outside_of_requests_live_as_long_as_the_broker) {
  end_request();
  EXPECT_EQ(chars(string("text")), "text");
}

TEST_F(Lifetime, A_handle_of_another_kind_is_refused) {
  auto* not_a_string = reinterpret_cast<CMPIString*>(new_path("Test_Disk"));
  CMPIStatus status{};
  EXPECT_EQ(broker_.tables().string.getCharPtr(not_a_string, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
  EXPECT_EQ(message(status), "not a valid CMPIString");
}

TEST_F(Lifetime, A_foreign_handle_is_refused_and_not_followed) {
  CMPIString foreign{reinterpret_cast<void*>(8), &broker_.tables().string};
  CMPIStatus status{};
  EXPECT_EQ(foreign.ft->getCharPtr(&foreign, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
  EXPECT_EQ(foreign.ft->release(&foreign).rc, CMPI_RC_ERR_INVALID_HANDLE);
  EXPECT_EQ(foreign.ft->clone(&foreign, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(Lifetime, A_null_object_is_refused) {
  CMPIStatus status{};
  EXPECT_EQ(broker_.tables().string.getCharPtr(nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(Lifetime, A_null_broker_is_refused) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newString(nullptr, "x", &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
  CMPIBroker empty{};
  EXPECT_EQ(mb()->eft->newArgs(&empty, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(Lifetime, A_copy_of_the_broker_structure_with_other_tables_still_works) {
  CMPIBroker copy = *mb();
  CMPIBrokerEncFT table = *copy.eft;
  table.newArray = nullptr;
  copy.eft = &table;
  CMPIString* string = copy.eft->newString(&copy, "x", nullptr);
  EXPECT_EQ(chars(string), "x");
}

TEST_F(Lifetime, Scopes_of_two_brokers_do_not_mix) {
  Broker other(test_repository(), {}, {}, nullptr);
  CMPIString* foreign = other.face()->eft->newString(other.face(), "other", nullptr);
  end_request();
  EXPECT_EQ(chars(foreign), "other");
}

}  // namespace
}  // namespace cim::host
