#include "tests/support/recording_broker.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/transcript.h"

namespace test_support {
namespace {

const CMPIValue* text(const char* characters) {
  return reinterpret_cast<const CMPIValue*>(characters);
}

CMPIObjectPath* new_path(const CMPIBroker* mb, const char* cls) {
  return mb->eft->newObjectPath(mb, "root/cimv2", cls, nullptr);
}

TEST(RecordingBroker, WritesEveryCallAmongTheTraces) {
  HeapLedger ledger;
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  CMPIObjectPath* path = new_path(mb, "VEXOR_Vsan");
  path->ft->setHostname(path, "switch-1");
  path->ft->addKey(path, "Name", text("2001"), CMPI_chars);
  printf("a trace\n");
  CMPIObjectPath* association = new_path(mb, "VEXOR_Component");
  CMPIValue value{};
  value.ref = path;
  association->ft->addKey(association, "GroupComponent", &value, CMPI_ref);
  CMPIInstance* instance = mb->eft->newInstance(mb, path, nullptr);
  const char* properties[] = {"A", "B", nullptr};
  const char* keys[] = {"Name", "CreationClassName", nullptr};
  instance->ft->setPropertyFilter(instance, properties, keys);
  instance->ft->setPropertyFilter(instance, nullptr, keys);
  value.uint16 = 5;
  instance->ft->setProperty(instance, "VsanId", &value, CMPI_uint16);
  CMPIArray* array = mb->eft->newArray(mb, 2, CMPI_uint16, nullptr);
  value.uint16 = 2;
  array->ft->setElementAt(array, 0, &value, CMPI_uint16);
  value.array = array;
  instance->ft->setProperty(instance, "OperationalStatus", &value, CMPI_uint16A);
  expect_same_lines(capture.out(),
                    "newObjectPath(root/cimv2, VEXOR_Vsan) -> path1\n"
                    "setHostname(path1, switch-1)\n"
                    "addKey(path1, Name, chars \"2001\")\n"
                    "a trace\n"
                    "newObjectPath(root/cimv2, VEXOR_Component) -> path2\n"
                    "addKey(path2, GroupComponent, ref path1)\n"
                    "newInstance(path1) -> instance1\n"
                    "setPropertyFilter(instance1, [A,B], [Name,CreationClassName])\n"
                    "setPropertyFilter(instance1, null, [Name,CreationClassName])\n"
                    "setProperty(instance1, VsanId, uint16 5)\n"
                    "newArray(2, uint16) -> array1\n"
                    "setElementAt(array1, 0, uint16 2)\n"
                    "setProperty(instance1, OperationalStatus, uint16[] array1)\n",
                    "calls");
  EXPECT_EQ(recorder.calls(), 12u);
}

TEST(RecordingBroker, KeepsWhatTheObjectsHold) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  CMPIObjectPath* path = new_path(mb, "VEXOR_Vsan");
  path->ft->setHostname(path, "switch-1");
  path->ft->addKey(path, "Name", text("2001"), CMPI_chars);
  CMPIValue value{};
  value.ref = path;
  path->ft->addKey(path, "Self", &value, CMPI_ref);
  EXPECT_EQ(recorder.class_name(path), "VEXOR_Vsan");
  EXPECT_EQ(recorder.name_space(path), "root/cimv2");
  EXPECT_EQ(recorder.host(path), "switch-1");
  EXPECT_EQ(recorder.key_names(path), (std::vector<std::string>{"Name", "Self"}));
  EXPECT_EQ(recorder.key(path, "Name"), "chars \"2001\"");
  EXPECT_EQ(recorder.key_text(path, "Name"), "2001");
  EXPECT_EQ(recorder.key_reference(path, "Self"), path);
  EXPECT_EQ(recorder.key(path, "Other"), "none");
  CMPIInstance* instance = mb->eft->newInstance(mb, path, nullptr);
  EXPECT_EQ(recorder.class_name(instance), "VEXOR_Vsan");
  EXPECT_EQ(recorder.host(instance), "switch-1");
  EXPECT_EQ(recorder.filter(instance), "none");
  EXPECT_EQ(recorder.property(instance, "Name"), "none");
  CMPIArray* array = mb->eft->newArray(mb, 3, CMPI_chars, nullptr);
  array->ft->setElementAt(array, 0, text("a"), CMPI_chars);
  array->ft->setElementAt(array, 2, text("c\n\"\x01"), CMPI_chars);
  value.array = array;
  instance->ft->setProperty(instance, "Texts", &value, CMPI_charsA);
  EXPECT_EQ(recorder.property(instance, "Texts"), "chars[] {\"a\", null, \"c\\n\\\"\\x01\"}");
  EXPECT_EQ(recorder.name(path), "path1");
  EXPECT_EQ(recorder.name(instance), "instance1");
}

TEST(RecordingBroker, ReadsEveryTypeFromItsOwnMember) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  CMPIInstance* instance = mb->eft->newInstance(mb, new_path(mb, "C"), nullptr);
  auto set = [&](const CMPIValue& value, CMPIType type) {
    instance->ft->setProperty(instance, "P", &value, type);
    return recorder.property(instance, "P");
  };
  CMPIValue all_set{};
  all_set.uint64 = 0xfffffffffffffffe;
  EXPECT_EQ(set(all_set, CMPI_uint8), "uint8 254");
  EXPECT_EQ(set(all_set, CMPI_uint16), "uint16 65534");
  EXPECT_EQ(set(all_set, CMPI_uint32), "uint32 4294967294");
  EXPECT_EQ(set(all_set, CMPI_uint64), "uint64 18446744073709551614");
  EXPECT_EQ(set(all_set, CMPI_sint8), "sint8 -2");
  EXPECT_EQ(set(all_set, CMPI_sint16), "sint16 -2");
  EXPECT_EQ(set(all_set, CMPI_sint32), "sint32 -2");
  EXPECT_EQ(set(all_set, CMPI_sint64), "sint64 -2");
  EXPECT_EQ(set(all_set, CMPI_boolean), "boolean true");
  CMPIValue none{};
  EXPECT_EQ(set(none, CMPI_boolean), "boolean false");
  EXPECT_EQ(set(none, CMPI_ref), "ref null");
  EXPECT_EQ(set(none, CMPI_uint16A), "uint16[] null");
  none.real64 = 0.5;
  EXPECT_EQ(set(none, CMPI_real64), "real64 0.5");
  instance->ft->setProperty(instance, "P", nullptr, CMPI_chars);
  EXPECT_EQ(recorder.property(instance, "P"), "chars null");
}

TEST(RecordingBroker, TheNthObjectCanBeNull) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  recorder.fail_nth_path(2, RecordingBroker::Failure::null_object);
  CMPIObjectPath* path = new_path(mb, "A");
  EXPECT_NE(path, nullptr);
  CMPIStatus rc{};
  EXPECT_EQ(mb->eft->newObjectPath(mb, "n", "B", &rc), nullptr);
  EXPECT_EQ(rc.rc, CMPI_RC_ERR_FAILED);
  EXPECT_NE(new_path(mb, "C"), nullptr);
  recorder.fail_nth_instance(1, RecordingBroker::Failure::null_object);
  EXPECT_EQ(mb->eft->newInstance(mb, path, nullptr), nullptr);
  recorder.fail_nth_array(1, RecordingBroker::Failure::null_object);
  EXPECT_EQ(mb->eft->newArray(mb, 1, CMPI_uint8, nullptr), nullptr);
  EXPECT_EQ(capture.out(),
            "newObjectPath(root/cimv2, A) -> path1\n"
            "newObjectPath(n, B, status) -> null\n"
            "newObjectPath(root/cimv2, C) -> path3\n"
            "newInstance(path1) -> null\n"
            "newArray(1, uint8) -> null\n");
}

TEST(RecordingBroker, AStatusThatIsAskedForStandsInTheLine) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  CMPIStatus rc{CMPI_RC_ERR_FAILED, nullptr};
  CMPIObjectPath* path = mb->eft->newObjectPath(mb, "n", "A", &rc);
  mb->eft->newInstance(mb, path, &rc);
  mb->eft->newArray(mb, 1, CMPI_uint8, &rc);
  EXPECT_EQ(rc.rc, CMPI_RC_OK);
  EXPECT_EQ(capture.out(),
            "newObjectPath(n, A, status) -> path1\n"
            "newInstance(path1, status) -> instance1\n"
            "newArray(1, uint8, status) -> array1\n");
}

TEST(RecordingBroker, TheNthObjectCanHaveANullHandle) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  recorder.fail_nth_path(1, RecordingBroker::Failure::null_handle);
  CMPIObjectPath* path = new_path(mb, "A");
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->hdl, nullptr);
  EXPECT_EQ(recorder.name(path), "path1");
  recorder.fail_nth_instance(1, RecordingBroker::Failure::null_handle);
  CMPIInstance* instance = mb->eft->newInstance(mb, path, nullptr);
  ASSERT_NE(instance, nullptr);
  EXPECT_EQ(instance->hdl, nullptr);
  EXPECT_EQ(capture.out(),
            "newObjectPath(root/cimv2, A) -> path1 with a null handle\n"
            "newInstance(path1) -> instance1 with a null handle\n");
}

TEST(RecordingBroker, RefusesAnElementOfAnotherTypeOrPastTheEnd) {
  StdioCapture capture;
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  CMPIArray* array = mb->eft->newArray(mb, 1, CMPI_uint16, nullptr);
  CMPIValue value{};
  EXPECT_EQ(array->ft->setElementAt(array, 0, &value, CMPI_uint32).rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(array->ft->setElementAt(array, 1, &value, CMPI_uint16).rc,
            CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(capture.out(),
            "newArray(1, uint16) -> array1\n"
            "setElementAt(array1, 0, uint32 0) -> wrong type\n"
            "setElementAt(array1, 1, uint16 0) -> past the end\n");
}

TEST(RecordingBroker, SlotsThatTheLibraryDoesNotNeedAreNull) {
  RecordingBroker recorder;
  const CMPIBroker* mb = recorder;
  EXPECT_EQ(mb->eft->newString, nullptr);
  EXPECT_EQ(mb->eft->newArgs, nullptr);
  EXPECT_EQ(mb->bft->getInstance, nullptr);
  EXPECT_EQ(mb->xft, nullptr);
  EXPECT_EQ(mb->mft, nullptr);
}

TEST(RecordingBroker, CanKeepQuiet) {
  StdioCapture capture;
  RecordingBroker recorder;
  recorder.write_down(false);
  new_path(recorder, "A");
  EXPECT_EQ(capture.out(), "");
  EXPECT_EQ(recorder.calls(), 1u);
}

TEST(RecordingBroker, AskingANullObjectFailsTheTest) {
  RecordingBroker recorder;
  const CMPIObjectPath* none = nullptr;
  EXPECT_NONFATAL_FAILURE(recorder.key(none, "Name"), "the path is null");
}

}  // namespace
}  // namespace test_support
