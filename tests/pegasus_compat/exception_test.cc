#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/Exception.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::messageOf;

TEST(Exception, CarriesItsMessage) {
  Exception first(String("first"));
  const Exception copy(first);
  first = Exception(String("second"));
  EXPECT_EQ(first.getMessage(), "second");
  EXPECT_EQ(copy.getMessage(), "first");
}

TEST(Exception, SubclassesSayWhatWentWrong) {
  EXPECT_EQ(IndexOutOfBoundsException().getMessage(), "index out of bounds");
  EXPECT_EQ(AlreadyExistsException(String("x")).getMessage(), "already exists: x");
  EXPECT_EQ(DynamicCastFailedException().getMessage(), "dynamic cast failed");
  EXPECT_EQ(InvalidNameException(String("x")).getMessage(), "The CIM name is not valid: x");
  EXPECT_EQ(InvalidNamespaceNameException(String("x")).getMessage(),
            "invalid CIM namespace name: x");
  EXPECT_EQ(MalformedObjectNameException(String("x")).getMessage(), "malformed object name: x");
  EXPECT_EQ(UninitializedObjectException().getMessage(), "uninitialized object");
  EXPECT_EQ(TypeMismatchException().getMessage(), "type mismatch");
  EXPECT_EQ(InvalidDateTimeFormatException().getMessage(), "invalid datetime format");
}

TEST(Exception, SubclassesAreCaughtAsException) {
  EXPECT_EQ(messageOf<Exception>([] { throw TypeMismatchException(); }), "type mismatch");
  EXPECT_EQ(messageOf<Exception>([] { throw CIMNotSupportedException(String("no")); }), "no");
}

TEST(CIMException, CarriesCodeAndMessage) {
  const CIMException none;
  EXPECT_EQ(none.getCode(), CIM_ERR_SUCCESS);
  EXPECT_EQ(none.getMessage(), "");
  CIMException error(CIM_ERR_NOT_FOUND, String("gone"));
  const CIMException copy(error);
  error = none;
  EXPECT_EQ(error.getCode(), CIM_ERR_SUCCESS);
  EXPECT_EQ(copy.getCode(), CIM_ERR_NOT_FOUND);
  EXPECT_EQ(copy.getMessage(), "gone");
}

TEST(CIMException, CarriesErrorInstances) {
  const CIMInstance instance(CIMName("CIM_Error"));
  CIMException one(CIM_ERR_FAILED, String("x"), instance);
  EXPECT_EQ(one.getErrorCount(), 1U);
  EXPECT_EQ(one.getError(0).getClassName().getString(), "CIM_Error");
  one.addError(instance);
  EXPECT_EQ(one.getErrorCount(), 2U);
  const CIMException two(CIM_ERR_FAILED, String("x"), Array<CIMInstance>(2, instance));
  EXPECT_EQ(two.getErrorCount(), 2U);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { two.getError(2); }), "index out of bounds");
  EXPECT_EQ(CIMException().getErrorCount(), 0U);
}

TEST(CIMException, SubclassesHaveTheirCodes) {
  const String text("text");
  EXPECT_EQ(CIMNotSupportedException(text).getCode(), CIM_ERR_NOT_SUPPORTED);
  EXPECT_EQ(CIMObjectAlreadyExistsException(text).getCode(), CIM_ERR_ALREADY_EXISTS);
  EXPECT_EQ(CIMObjectNotFoundException(text).getCode(), CIM_ERR_NOT_FOUND);
  EXPECT_EQ(CIMInvalidParameterException(text).getCode(), CIM_ERR_INVALID_PARAMETER);
  EXPECT_EQ(CIMAccessDeniedException(text).getCode(), CIM_ERR_ACCESS_DENIED);
  EXPECT_EQ(CIMPropertyNotFoundException(text).getCode(), CIM_ERR_NO_SUCH_PROPERTY);
  EXPECT_EQ(CIMOperationFailedException(text).getCode(), CIM_ERR_FAILED);
  EXPECT_EQ(CIMObjectNotFoundException(text).getMessage(), "text");
}

TEST(CIMStatusCode, HasItsNumbersAndNames) {
  EXPECT_EQ(static_cast<int>(CIM_ERR_SUCCESS), 0);
  EXPECT_EQ(static_cast<int>(CIM_ERR_FAILED), 1);
  EXPECT_EQ(static_cast<int>(CIM_ERR_NOT_FOUND), 6);
  EXPECT_EQ(static_cast<int>(CIM_ERR_NOT_SUPPORTED), 7);
  EXPECT_EQ(static_cast<int>(CIM_ERR_ALREADY_EXISTS), 11);
  EXPECT_EQ(static_cast<int>(CIM_ERR_METHOD_NOT_FOUND), 17);
  EXPECT_EQ(static_cast<int>(CIM_ERR_NAMESPACE_NOT_EMPTY), 20);
  EXPECT_EQ(static_cast<int>(CIM_ERR_INVALID_ENUMERATION_CONTEXT), 21);
  EXPECT_EQ(static_cast<int>(CIM_ERR_CONTINUATION_ON_ERROR_NOT_SUPPORTED), 26);
  EXPECT_EQ(static_cast<int>(CIM_ERR_SERVER_LIMITS_EXCEEDED), 27);
  EXPECT_EQ(static_cast<int>(CIM_ERR_SERVER_IS_SHUTTING_DOWN), 28);
  EXPECT_STREQ(cimStatusCodeToString(CIM_ERR_NOT_FOUND), "CIM_ERR_NOT_FOUND");
  EXPECT_STREQ(cimStatusCodeToString(CIM_ERR_SERVER_IS_SHUTTING_DOWN),
               "CIM_ERR_SERVER_IS_SHUTTING_DOWN");
  EXPECT_STREQ(cimStatusCodeToString(static_cast<CIMStatusCode>(18)), "unknown");
}

}  // namespace
