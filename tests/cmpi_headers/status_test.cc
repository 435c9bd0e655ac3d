// Status helpers, tests of objects and data, and the helpers with any number of arguments.
#include <cmpimacs.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <string>
#include <vector>

namespace {

// A broker whose strings are the texts last given to newString, and which notes messages.
CMPIString made_string{};
std::string made_text;
const char* string_text = nullptr;
std::vector<std::string> message;

CMPIString* NewString(const CMPIBroker*, const char* chars, CMPIStatus*) {
  made_text = chars;
  return &made_string;
}

const char* GetCharPtr(const CMPIString*, CMPIStatus* rc) {
  CMSetStatus(rc, CMPI_RC_OK);
  return string_text;
}

// Reads the pairs of type and value as a broker does.
void NoteMessage(const char* id, const char* default_text, CMPICount count, va_list values) {
  message = {id, default_text, std::to_string(count)};
  for (CMPICount i = 0; i < count; ++i) {
    const int type = va_arg(values, int);
    switch (type) {
      case CMPI_sint32:
        message.push_back("sint32 " + std::to_string(va_arg(values, long)));
        break;
      case CMPI_uint32:
        message.push_back("uint32 " + std::to_string(va_arg(values, unsigned long)));
        break;
      case CMPI_sint64:
        message.push_back("sint64 " + std::to_string(va_arg(values, long long)));
        break;
      case CMPI_uint64:
        message.push_back("uint64 " + std::to_string(va_arg(values, unsigned long long)));
        break;
      case CMPI_real64:
        message.push_back("real64 " + std::to_string(va_arg(values, double)));
        break;
      case CMPI_boolean:
        message.push_back("boolean " + std::to_string(va_arg(values, int)));
        break;
      case CMPI_chars:
        message.push_back(std::string("chars ") + va_arg(values, const char*));
        break;
      case CMPI_string:
        message.push_back(va_arg(values, const CMPIString*) == &made_string ? "string" : "other");
        break;
      default:
        message.push_back("unknown type");
    }
  }
}

CMPIString* GetMessage(const CMPIBroker*, const char* id, const char* default_text, CMPIStatus* rc,
                       CMPICount count, ...) {
  va_list values;
  va_start(values, count);
  NoteMessage(id, default_text, count, values);
  va_end(values);
  CMSetStatus(rc, CMPI_RC_OK);
  return &made_string;
}

CMPIString* GetMessage2(const CMPIBroker*, const char* id, CMPIMsgFileHandle handle,
                        const char* default_text, CMPIStatus* rc, CMPICount count, ...) {
  va_list values;
  va_start(values, count);
  NoteMessage(id, default_text, count, values);
  va_end(values);
  message.push_back(static_cast<const char*>(handle));
  CMSetStatus(rc, CMPI_RC_OK);
  return &made_string;
}

CMPIBrokerEncFT MakeEnc() {
  CMPIBrokerEncFT eft{};
  eft.newString = &NewString;
  eft.getMessage = &GetMessage;
  eft.getMessage2 = &GetMessage2;
  return eft;
}

const CMPIBrokerEncFT kEnc = MakeEnc();
const CMPIBroker kBroker{nullptr, nullptr, &kEnc, nullptr, nullptr};

CMPIStatus Return(CMPIrc code) {
  CMReturn(code);
}
CMPIStatus ReturnWithString(CMPIrc code, CMPIString* text) {
  CMReturnWithString(code, text);
}
CMPIStatus ReturnWithChars(CMPIrc code, const char* text) {
  CMReturnWithChars(&kBroker, code, text);
}
// The macros are single statements.
CMPIStatus ReturnOneOfTwo(bool first) {
  if (first)
    CMReturn(CMPI_RC_OK);
  else
    CMReturn(CMPI_RC_ERR_FAILED);
}

CMPIData WithState(CMPIValueState state) {
  return {CMPI_uint8, state, {}};
}
CMPIData WithType(CMPIType type) {
  return {type, CMPI_goodValue, {}};
}

}  // namespace

TEST(CmpiStatus, ReturnGivesTheCodeAndNoText) {
  const CMPIStatus status = Return(CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(status.msg, nullptr);
}

TEST(CmpiStatus, ReturnIsASingleStatement) {
  EXPECT_EQ(ReturnOneOfTwo(true).rc, CMPI_RC_OK);
  EXPECT_EQ(ReturnOneOfTwo(false).rc, CMPI_RC_ERR_FAILED);
}

TEST(CmpiStatus, ReturnWithStringKeepsTheString) {
  CMPIString text{};
  const CMPIStatus status = ReturnWithString(CMPI_RC_ERR_FAILED, &text);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(status.msg, &text);
}

TEST(CmpiStatus, ReturnWithCharsMakesAString) {
  made_text.clear();
  const CMPIStatus status = ReturnWithChars(CMPI_RC_ERR_ACCESS_DENIED, "not for you");
  EXPECT_EQ(status.rc, CMPI_RC_ERR_ACCESS_DENIED);
  EXPECT_EQ(status.msg, &made_string);
  EXPECT_EQ(made_text, "not for you");
}

TEST(CmpiStatus, SetStatusClearsTheText) {
  CMPIString text{};
  CMPIStatus status{CMPI_RC_OK, &text};
  CMSetStatus(&status, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_CLASS);
  EXPECT_EQ(status.msg, nullptr);
}

TEST(CmpiStatus, SetStatusWithStringKeepsTheString) {
  CMPIString text{};
  CMPIStatus status{CMPI_RC_OK, nullptr};
  CMSetStatusWithString(&status, CMPI_RC_ERR_FAILED, &text);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(status.msg, &text);
}

TEST(CmpiStatus, SetStatusWithCharsMakesAString) {
  made_text.clear();
  CMPIStatus status{CMPI_RC_OK, nullptr};
  CMSetStatusWithChars(&kBroker, &status, CMPI_RC_ERR_INVALID_QUERY, "what?");
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_QUERY);
  EXPECT_EQ(status.msg, &made_string);
  EXPECT_EQ(made_text, "what?");
}

TEST(CmpiStatus, NobodyAskingForAStatusIsFine) {
  made_text.clear();
  CMSetStatus(nullptr, CMPI_RC_ERR_FAILED);
  CMSetStatusWithString(nullptr, CMPI_RC_ERR_FAILED, nullptr);
  CMSetStatusWithChars(&kBroker, nullptr, CMPI_RC_ERR_FAILED, "unheard");
  EXPECT_EQ(made_text, "");
}

TEST(CmpiNullObject, IsANullPointerOrANullHandle) {
  int handle = 0;
  const CMPIObjectPath without_handle{nullptr, nullptr};
  const CMPIObjectPath with_handle{&handle, nullptr};
  const CMPIInstance instance{&handle, nullptr};
  EXPECT_TRUE(CMIsNullObject(nullptr));
  EXPECT_TRUE(CMIsNullObject(&without_handle));
  EXPECT_FALSE(CMIsNullObject(&with_handle));
  EXPECT_FALSE(CMIsNullObject(&instance));
}

TEST(CmpiData, NullValueIsABitOfTheState) {
  EXPECT_TRUE(CMIsNullValue(WithState(CMPI_nullValue)));
  EXPECT_TRUE(CMIsNullValue(WithState(CMPI_nullValue | CMPI_notFound)));
  EXPECT_FALSE(CMIsNullValue(WithState(CMPI_goodValue)));
  EXPECT_FALSE(CMIsNullValue(WithState(CMPI_keyValue)));
  EXPECT_FALSE(CMIsNullValue(WithState(CMPI_notFound)));
}

TEST(CmpiData, KeyValueIsABitOfTheState) {
  EXPECT_TRUE(CMIsKeyValue(WithState(CMPI_keyValue)));
  EXPECT_TRUE(CMIsKeyValue(WithState(CMPI_keyValue | CMPI_nullValue)));
  EXPECT_FALSE(CMIsKeyValue(WithState(CMPI_goodValue)));
  EXPECT_FALSE(CMIsKeyValue(WithState(CMPI_badValue)));
}

TEST(CmpiData, ArrayIsABitOfTheType) {
  EXPECT_TRUE(CMIsArray(WithType(CMPI_uint16A)));
  EXPECT_TRUE(CMIsArray(WithType(CMPI_charsA)));
  EXPECT_FALSE(CMIsArray(WithType(CMPI_uint16)));
  EXPECT_FALSE(CMIsArray(WithType(CMPI_string)));
}

TEST(CmpiValue, FirstMemberIsUint64) {
  const CMPIValue value = {0x0102030405060708};
  EXPECT_EQ(value.uint64, 0x0102030405060708U);
}

TEST(CmpiString, NullStringHasNoText) {
  CMPIStatus status{CMPI_RC_OK, nullptr};
  EXPECT_EQ(CMGetCharsPtr(nullptr, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
  EXPECT_EQ(CMGetCharsPtr(nullptr, nullptr), nullptr);
  EXPECT_EQ(CMGetCharPtr(nullptr), nullptr);
}

TEST(CmpiString, StringWithANullTextHasNoText) {
  CMPIStringFT table{};
  table.getCharPtr = &GetCharPtr;
  const CMPIString string{nullptr, &table};
  string_text = nullptr;
  EXPECT_EQ(CMGetCharPtr(&string), nullptr);
  string_text = "root/cimv2";
  EXPECT_STREQ(CMGetCharPtr(&string), "root/cimv2");
}

TEST(CmpiMessage, ArgumentsTravelAsPairsOfTypeAndValue) {
  CMPIStatus status{CMPI_RC_ERR_FAILED, nullptr};
  CMPIString* result =
      CMGetMessage(&kBroker, "MSG1", "default", &status, 8, CMFmtSint(-5), CMFmtUint(4000000000U),
                   CMFmtSint64(-5000000000LL), CMFmtUint64(18446744073709551615ULL), CMFmtReal(0.5),
                   CMFmtBoolean(true), CMFmtChars("text"), CMFmtString(&made_string));
  EXPECT_EQ(result, &made_string);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  const std::vector<std::string> expected = {"MSG1",
                                             "default",
                                             "8",
                                             "sint32 -5",
                                             "uint32 4000000000",
                                             "sint64 -5000000000",
                                             "uint64 18446744073709551615",
                                             "real64 0.500000",
                                             "boolean 1",
                                             "chars text",
                                             "string"};
  EXPECT_EQ(message, expected);
}

TEST(CmpiMessage, NeedsNoArguments) {
  EXPECT_EQ(CMGetMessage(&kBroker, "MSG2", "plain", nullptr, 0), &made_string);
  EXPECT_EQ(message, (std::vector<std::string>{"MSG2", "plain", "0"}));
}

TEST(CmpiMessage, ComesFromAnOpenFile) {
  char file[] = "file";
  CMPIString* result = CMGetMessage2(&kBroker, "MSG3", file, "default", nullptr, 1, CMFmtUint(7));
  EXPECT_EQ(result, &made_string);
  EXPECT_EQ(message, (std::vector<std::string>{"MSG3", "default", "1", "uint32 7", "file"}));
}
