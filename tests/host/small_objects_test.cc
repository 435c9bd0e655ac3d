// CMPIString, CMPIArray, CMPIArgs, CMPIContext, CMPIDateTime, CMPIEnumeration, CMPIError.
#include <gtest/gtest.h>

#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

class SmallObjects : public TableTest {
 protected:
  CMPIArray* array(CMPICount size, CMPIType type) {
    return mb()->eft->newArray(mb(), size, type, nullptr);
  }
  CMPIArgs* args() { return mb()->eft->newArgs(mb(), nullptr); }
  CMPIError* error() {
    return mb()->eft->newCMPIError(mb(), "VEXOR", "V1", "no light", ErrorSevHigh, Loss_of_Signal,
                                   CMPI_RC_ERR_FAILED, nullptr);
  }

  static CMPIValue uint16_value(CMPIUint16 number) {
    CMPIValue value{};
    value.uint16 = number;
    return value;
  }
};

// --- Strings -------------------------------------------------------------------------------------

TEST_F(SmallObjects, A_string_copies_its_text) {
  char text[] = "before";
  CMPIString* string = mb()->eft->newString(mb(), text, nullptr);
  text[0] = 'X';
  EXPECT_EQ(chars(string), "before");
}

TEST_F(SmallObjects, A_string_of_a_null_pointer_is_refused) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newString(mb(), nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(message(status), "the text is a null pointer");
}

// --- Arrays --------------------------------------------------------------------------------------

TEST_F(SmallObjects, An_array_starts_with_null_elements) {
  CMPIArray* numbers = array(2, CMPI_uint16);
  CMPIStatus status{};
  EXPECT_EQ(numbers->ft->getSize(numbers, &status), 2U);
  EXPECT_EQ(numbers->ft->getSimpleType(numbers, &status), CMPI_uint16);
  const CMPIData data = numbers->ft->getElementAt(numbers, 1, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(data.type, CMPI_uint16);
  EXPECT_EQ(data.state, CMPI_nullValue);
}

TEST_F(SmallObjects, An_array_may_be_empty) {
  CMPIArray* numbers = array(0, CMPI_uint16);
  ASSERT_NE(numbers, nullptr);
  EXPECT_EQ(numbers->ft->getSize(numbers, nullptr), 0U);
}

TEST_F(SmallObjects, An_array_holds_what_is_set) {
  CMPIArray* numbers = array(2, CMPI_uint16);
  const CMPIValue value = uint16_value(65535);
  EXPECT_EQ(numbers->ft->setElementAt(numbers, 1, &value, CMPI_uint16).rc, CMPI_RC_OK);
  const CMPIData data = numbers->ft->getElementAt(numbers, 1, nullptr);
  EXPECT_EQ(data.state, CMPI_goodValue);
  EXPECT_EQ(data.value.uint16, 65535);
}

TEST_F(SmallObjects, An_array_of_chars_takes_texts_and_gives_strings) {
  CMPIArray* texts = array(1, CMPI_chars);
  EXPECT_EQ(texts->ft->setElementAt(texts, 0, text("hello"), CMPI_chars).rc, CMPI_RC_OK);
  const CMPIData data = texts->ft->getElementAt(texts, 0, nullptr);
  EXPECT_EQ(data.type, CMPI_string);
  EXPECT_EQ(chars(data.value.string), "hello");
}

TEST_F(SmallObjects, An_array_refuses_an_element_of_another_type) {
  CMPIArray* strings = array(1, CMPI_string);
  const CMPIValue value = uint16_value(1);
  const CMPIStatus status = strings->ft->setElementAt(strings, 0, &value, CMPI_uint16);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(message(status), "an element of type uint16 does not fit an array of string");
}

TEST_F(SmallObjects, An_array_of_strings_refuses_chars_as_some_object_managers_do) {
  CMPIArray* strings = array(1, CMPI_string);
  EXPECT_EQ(strings->ft->setElementAt(strings, 0, text("x"), CMPI_chars).rc,
            CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(strings->ft->setElementAt(strings, 0, nullptr, CMPI_null).rc,
            CMPI_RC_ERR_TYPE_MISMATCH);
}

TEST_F(SmallObjects, An_array_has_nothing_beyond_its_end) {
  CMPIArray* numbers = array(1, CMPI_uint16);
  const CMPIValue value = uint16_value(1);
  EXPECT_EQ(numbers->ft->setElementAt(numbers, 1, &value, CMPI_uint16).rc,
            CMPI_RC_ERR_NO_SUCH_PROPERTY);
  CMPIStatus status{};
  EXPECT_EQ(numbers->ft->getElementAt(numbers, 1, &status).state, CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(message(status), "the array has 1 elements, and none at index 1");
}

TEST_F(SmallObjects, Arrays_without_a_sensible_type_or_size_are_refused) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newArray(mb(), 1, CMPI_uint16A, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(mb()->eft->newArray(mb(), 1, CMPI_args, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(mb()->eft->newArray(mb(), 4000000000U, CMPI_uint8, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

// --- Args and context ----------------------------------------------------------------------------

TEST_F(SmallObjects, Arguments_are_found_in_any_letter_case_and_replaced) {
  CMPIArgs* list = args();
  EXPECT_EQ(list->ft->addArg(list, "Label", text("a"), CMPI_chars).rc, CMPI_RC_OK);
  EXPECT_EQ(list->ft->addArg(list, "LABEL", text("b"), CMPI_chars).rc, CMPI_RC_OK);
  EXPECT_EQ(list->ft->getArgCount(list, nullptr), 1U);
  CMPIStatus status{};
  const CMPIData data = list->ft->getArg(list, "label", &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(data.value.string), "b");
}

TEST_F(SmallObjects, Arguments_keep_their_order) {
  CMPIArgs* list = args();
  list->ft->addArg(list, "Z", text("1"), CMPI_chars);
  list->ft->addArg(list, "A", text("2"), CMPI_chars);
  CMPIString* name = nullptr;
  const CMPIData data = list->ft->getArgAt(list, 0, &name, nullptr);
  EXPECT_EQ(chars(name), "Z");
  EXPECT_EQ(chars(data.value.string), "1");
}

TEST_F(SmallObjects, A_missing_argument_is_no_such_property) {
  CMPIArgs* list = args();
  CMPIStatus status{};
  EXPECT_EQ(list->ft->getArg(list, "Label", &status).state, CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(message(status), "no argument Label");
  CMPIString* name = string("untouched");
  list->ft->getArgAt(list, 0, &name, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(name, nullptr);
  EXPECT_EQ(list->ft->addArg(list, nullptr, text("x"), CMPI_chars).rc,
            CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST_F(SmallObjects, A_value_of_no_data_type_is_refused) {
  CMPIArgs* list = args();
  CMPIValue value{};
  EXPECT_EQ(list->ft->addArg(list, "A", &value, CMPI_ptr).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(list->ft->addArg(list, "A", &value, 0x7777).rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
}

TEST_F(SmallObjects, A_context_takes_and_gives_entries) {
  CMPIContext* context = make<CMPIContext>(broker_, {});
  CMPIValue value{};
  value.uint32 = 6;
  EXPECT_EQ(context->ft->addEntry(context, CMPIInvocationFlags, &value, CMPI_uint32).rc,
            CMPI_RC_OK);
  EXPECT_EQ(context->ft->getEntryCount(context, nullptr), 1U);
  EXPECT_EQ(context->ft->getEntry(context, "cmpiinvocationflags", nullptr).value.uint32, 6U);
  CMPIString* name = nullptr;
  EXPECT_EQ(context->ft->getEntryAt(context, 0, &name, nullptr).value.uint32, 6U);
  EXPECT_EQ(chars(name), "CMPIInvocationFlags");
  CMPIStatus status{};
  context->ft->getEntry(context, "Nothing", &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  context->ft->getEntryAt(context, 1, nullptr, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

// --- Datetimes -----------------------------------------------------------------------------------

TEST_F(SmallObjects, A_datetime_converts_between_its_forms) {
  CMPIDateTime* moment =
      mb()->eft->newDateTimeFromChars(mb(), "20000229000000.123456+000", nullptr);
  EXPECT_EQ(moment->ft->getBinaryFormat(moment, nullptr), 951782400123456U);
  EXPECT_EQ(moment->ft->isInterval(moment, nullptr), 0);
  CMPIDateTime* interval = mb()->eft->newDateTimeFromBinary(mb(), 93784000005, 1, nullptr);
  EXPECT_EQ(chars(interval->ft->getStringFormat(interval, nullptr)), "00000001020304.000005:000");
  EXPECT_EQ(interval->ft->isInterval(interval, nullptr), 1);
  CMPIDateTime* same = mb()->eft->newDateTimeFromBinary(mb(), 951782400123456, 0, nullptr);
  EXPECT_EQ(chars(same->ft->getStringFormat(same, nullptr)), "20000229000000.123456+000");
}

TEST_F(SmallObjects, A_datetime_keeps_its_offset_from_UTC) {
  CMPIDateTime* moment =
      mb()->eft->newDateTimeFromChars(mb(), "20000229000000.000000-300", nullptr);
  EXPECT_EQ(chars(moment->ft->getStringFormat(moment, nullptr)), "20000229000000.000000-300");
}

TEST_F(SmallObjects, Now_is_a_moment_after_2020) {
  CMPIDateTime* now = mb()->eft->newDateTime(mb(), nullptr);
  EXPECT_GT(now->ft->getBinaryFormat(now, nullptr), 1577836800000000U);
  EXPECT_EQ(now->ft->isInterval(now, nullptr), 0);
}

TEST_F(SmallObjects, What_is_no_datetime_is_refused) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newDateTimeFromChars(mb(), "rubbish", &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(message(status), "'rubbish' is no CIM datetime");
  EXPECT_EQ(mb()->eft->newDateTimeFromChars(mb(), nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(mb()->eft->newDateTimeFromBinary(mb(), ~0ULL, 0, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(mb()->eft->newDateTimeFromBinary(mb(), ~0ULL, 1, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST_F(SmallObjects, A_moment_before_1970_has_no_binary_form) {
  CMPIDateTime* moment =
      mb()->eft->newDateTimeFromChars(mb(), "19600101000000.000000+000", nullptr);
  CMPIStatus status{};
  EXPECT_EQ(moment->ft->getBinaryFormat(moment, &status), 0U);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
}

// --- Enumerations --------------------------------------------------------------------------------

TEST_F(SmallObjects, An_enumeration_gives_its_items_once) {
  CMPIEnumeration* items = make<CMPIEnumeration>(
      broker_, EnumerationContent{CMPI_string, {Data::string("a"), Data::string("b")}, 0});
  EXPECT_EQ(items->ft->hasNext(items, nullptr), 1);
  EXPECT_EQ(chars(items->ft->getNext(items, nullptr).value.string), "a");
  EXPECT_EQ(chars(items->ft->getNext(items, nullptr).value.string), "b");
  EXPECT_EQ(items->ft->hasNext(items, nullptr), 0);
  CMPIStatus status{};
  EXPECT_EQ(items->ft->getNext(items, &status).state, CMPI_notFound | CMPI_nullValue);
  EXPECT_EQ(status.rc, CMPI_RC_NO_MORE_ELEMENTS);
}

TEST_F(SmallObjects, An_enumeration_as_array_has_all_items) {
  CMPIEnumeration* items = make<CMPIEnumeration>(
      broker_, EnumerationContent{CMPI_string, {Data::string("a"), Data::string("b")}, 1});
  CMPIArray* array = items->ft->toArray(items, nullptr);
  EXPECT_EQ(array->ft->getSize(array, nullptr), 2U);
  EXPECT_EQ(chars(array->ft->getElementAt(array, 0, nullptr).value.string), "a");
  EXPECT_EQ(items->ft->hasNext(items, nullptr), 1);
}

// --- Errors --------------------------------------------------------------------------------------

TEST_F(SmallObjects, An_error_says_what_it_was_made_of) {
  CMPIError* it = error();
  EXPECT_EQ(chars(it->ft->getOwningEntity(it, nullptr)), "VEXOR");
  EXPECT_EQ(chars(it->ft->getMessageID(it, nullptr)), "V1");
  EXPECT_EQ(chars(it->ft->getMessage(it, nullptr)), "no light");
  EXPECT_EQ(it->ft->getPerceivedSeverity(it, nullptr), ErrorSevHigh);
  EXPECT_EQ(it->ft->getProbableCause(it, nullptr), Loss_of_Signal);
  EXPECT_EQ(it->ft->getCIMStatusCode(it, nullptr), CMPI_RC_ERR_FAILED);
  EXPECT_EQ(it->ft->getErrorType(it, nullptr), UnknownErrorType);
}

TEST_F(SmallObjects, An_error_keeps_what_is_set) {
  CMPIError* it = error();
  EXPECT_EQ(it->ft->setErrorType(it, HardwareError).rc, CMPI_RC_OK);
  EXPECT_EQ(it->ft->getErrorType(it, nullptr), HardwareError);
  EXPECT_EQ(it->ft->setOtherErrorType(it, "other").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(it->ft->getOtherErrorType(it, nullptr)), "other");
  EXPECT_EQ(it->ft->setProbableCauseDescription(it, "dust").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(it->ft->getProbableCauseDescription(it, nullptr)), "dust");
  EXPECT_EQ(it->ft->setErrorSource(it, "fc1/1").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(it->ft->getErrorSource(it, nullptr)), "fc1/1");
  EXPECT_EQ(it->ft->setErrorSourceFormat(it, CIMObjectHandle).rc, CMPI_RC_OK);
  EXPECT_EQ(it->ft->getErrorSourceFormat(it, nullptr), CIMObjectHandle);
  EXPECT_EQ(it->ft->setOtherErrorSourceFormat(it, "port").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(it->ft->getOtherErrorSourceFormat(it, nullptr)), "port");
  EXPECT_EQ(it->ft->setCIMStatusCodeDescription(it, "failed").rc, CMPI_RC_OK);
  EXPECT_EQ(chars(it->ft->getCIMStatusCodeDescription(it, nullptr)), "failed");
  CMPIArray* texts = array(1, CMPI_string);
  CMPIValue value{};
  value.string = string("clean it");
  texts->ft->setElementAt(texts, 0, &value, CMPI_string);
  EXPECT_EQ(it->ft->setRecommendedActions(it, texts).rc, CMPI_RC_OK);
  CMPIArray* actions = it->ft->getRecommendedActions(it, nullptr);
  EXPECT_EQ(chars(actions->ft->getElementAt(actions, 0, nullptr).value.string), "clean it");
  EXPECT_EQ(it->ft->setMessageArguments(it, texts).rc, CMPI_RC_OK);
  CMPIArray* arguments = it->ft->getMessageArguments(it, nullptr);
  EXPECT_EQ(arguments->ft->getSize(arguments, nullptr), 1U);
}

TEST_F(SmallObjects, An_error_refuses_arrays_of_numbers_and_null_texts) {
  CMPIError* it = error();
  EXPECT_EQ(it->ft->setRecommendedActions(it, array(1, CMPI_uint16)).rc,
            CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(it->ft->setErrorSource(it, nullptr).rc, CMPI_RC_ERR_INVALID_PARAMETER);
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newCMPIError(mb(), nullptr, "V1", "x", ErrorSevLow,
                                    ErrorProbableCauseUnknown, CMPI_RC_OK, &status),
            nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

}  // namespace
}  // namespace cim::host
