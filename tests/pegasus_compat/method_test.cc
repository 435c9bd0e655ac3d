#include <Pegasus/Common/CIMMethod.h>
#include <Pegasus/Common/CIMParamValue.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::messageOf;
using pegasus_test::textOf;

TEST(CIMParameter, HasTypeAndQualifiers) {
  CIMParameter parameter(CIMName("Requested"), CIMTYPE_UINT16, true, 4);
  EXPECT_EQ(parameter.getName().getString(), "Requested");
  EXPECT_EQ(parameter.getType(), CIMTYPE_UINT16);
  EXPECT_TRUE(parameter.isArray());
  EXPECT_EQ(parameter.getArraySize(), 4U);
  EXPECT_TRUE(parameter.getReferenceClassName().isNull());
  EXPECT_EQ(&parameter.addQualifier(flag("IN")), &parameter);
  EXPECT_EQ(parameter.findQualifier(CIMName("in")), 0U);
  EXPECT_EQ(parameter.getQualifierCount(), 1U);
  parameter.getQualifier(0).setName(CIMName("Out"));
  parameter.setName(CIMName("Other"));
  const CIMConstParameter constant(parameter);
  EXPECT_EQ(constant.getName().getString(), "Other");
  EXPECT_EQ(constant.getType(), CIMTYPE_UINT16);
  EXPECT_TRUE(constant.isArray());
  EXPECT_EQ(constant.getArraySize(), 4U);
  EXPECT_TRUE(constant.getReferenceClassName().isNull());
  EXPECT_EQ(constant.findQualifier(CIMName("out")), 0U);
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Out");
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  const CIMParameter clone = constant.clone();
  EXPECT_TRUE(clone.identical(parameter));
  parameter.removeQualifier(0);
  EXPECT_FALSE(constant.identical(clone));
  const CIMParameter& shown = clone;
  EXPECT_EQ(shown.getQualifier(0).getName().getString(), "Out");
  EXPECT_EQ(CIMParameter(CIMName("r"), CIMTYPE_REFERENCE, false, 0, CIMName("CIM_A"))
                .getReferenceClassName()
                .getString(),
            "CIM_A");
}

TEST(CIMParameter, SizeAndReferenceClassMustSuitTheType) {
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMParameter made(CIMName("a"), CIMTYPE_UINT16, false, 4); }),
            "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>([] {
              CIMParameter made(CIMName("a"), CIMTYPE_UINT16, false, 0, CIMName("CIM_A"));
            }),
            "type mismatch");
}

TEST(CIMParameter, UninitializedHandlesThrow) {
  EXPECT_TRUE(CIMParameter().isUninitialized());
  EXPECT_TRUE(CIMConstParameter().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMParameter().getName(); }),
            "uninitialized object");
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([] { CIMParameter made(CIMName(), CIMTYPE_UINT8); }),
      "uninitialized object");
}

TEST(CIMMethod, HasTypeOriginAndQualifiers) {
  CIMMethod method(CIMName("Start"), CIMTYPE_UINT32, CIMName("CIM_A"), true);
  EXPECT_EQ(method.getName().getString(), "Start");
  EXPECT_EQ(method.getType(), CIMTYPE_UINT32);
  EXPECT_EQ(method.getClassOrigin().getString(), "CIM_A");
  EXPECT_TRUE(method.getPropagated());
  EXPECT_FALSE(method.isUninitialized());
  method.setName(CIMName("Stop"));
  method.setType(CIMTYPE_STRING);
  method.setClassOrigin(CIMName("CIM_B"));
  method.setPropagated(false);
  method.addQualifier(flag("Static"));
  EXPECT_EQ(method.findQualifier(CIMName("static")), 0U);
  method.getQualifier(0).setPropagated(true);
  const CIMConstMethod constant(method);
  EXPECT_EQ(constant.getName().getString(), "Stop");
  EXPECT_EQ(constant.getType(), CIMTYPE_STRING);
  EXPECT_EQ(constant.getClassOrigin().getString(), "CIM_B");
  EXPECT_FALSE(constant.getPropagated());
  EXPECT_EQ(constant.findQualifier(CIMName("other")), 4294967295U);
  EXPECT_EQ(constant.getQualifier(0).getPropagated(), 1U);
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  EXPECT_FALSE(constant.isUninitialized());
  method.removeQualifier(0);
  EXPECT_EQ(method.getQualifierCount(), 0U);
}

TEST(CIMMethod, HasParametersInOrder) {
  CIMMethod method(CIMName("Start"), CIMTYPE_UINT32);
  method.addParameter(CIMParameter(CIMName("a"), CIMTYPE_UINT8));
  method.addParameter(CIMParameter(CIMName("b"), CIMTYPE_UINT8));
  EXPECT_EQ(messageOf<AlreadyExistsException>(
                [&] { method.addParameter(CIMParameter(CIMName("A"), CIMTYPE_UINT8)); }),
            "already exists: parameter \"A\"");
  EXPECT_EQ(method.findParameter(CIMName("B")), 1U);
  EXPECT_EQ(method.getParameterCount(), 2U);
  method.getParameter(0).setName(CIMName("first"));
  const CIMConstMethod constant(method);
  EXPECT_EQ(constant.findParameter(CIMName("first")), 0U);
  EXPECT_EQ(constant.getParameter(0).getName().getString(), "first");
  EXPECT_EQ(constant.getParameterCount(), 2U);
  const CIMMethod& shown = method;
  EXPECT_EQ(shown.getParameter(1).getName().getString(), "b");
  method.removeParameter(0);
  EXPECT_EQ(method.getParameterCount(), 1U);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { method.getParameter(1); }),
            "index out of bounds");
}

TEST(CIMMethod, ClonesAreIndependentToTheirParameters) {
  CIMMethod method(CIMName("Start"), CIMTYPE_UINT32);
  method.addParameter(CIMParameter(CIMName("a"), CIMTYPE_UINT8));
  CIMMethod clone = method.clone();
  EXPECT_TRUE(clone.identical(method));
  clone.getParameter(0).setName(CIMName("b"));
  EXPECT_EQ(method.getParameter(0).getName().getString(), "a");
  EXPECT_FALSE(CIMConstMethod(method).identical(clone));
  EXPECT_TRUE(CIMConstMethod(method).clone().identical(method));
  CIMConstMethod assigned;
  EXPECT_TRUE(assigned.isUninitialized());
  assigned = clone;
  EXPECT_TRUE(assigned.identical(clone));
}

TEST(CIMMethod, UninitializedHandlesThrow) {
  EXPECT_TRUE(CIMMethod().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMMethod().getType(); }),
            "uninitialized object");
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([] { CIMMethod made(CIMName(), CIMTYPE_UINT8); }),
      "uninitialized object");
}

TEST(CIMParamValue, IsANameAndAValue) {
  CIMParamValue value(String("RequestedState"), CIMValue(Uint16{2}));
  EXPECT_EQ(value.getParameterName(), "RequestedState");
  EXPECT_EQ(textOf(value.getValue()), "2");
  EXPECT_TRUE(value.isTyped());
  const CIMParamValue clone = value.clone();
  String name("Other");
  CIMValue other(Uint16{3});
  value.setParameterName(name);
  value.setValue(other);
  value.setIsTyped(false);
  EXPECT_EQ(value.getParameterName(), "Other");
  EXPECT_EQ(textOf(value.getValue()), "3");
  EXPECT_FALSE(value.isTyped());
  EXPECT_EQ(clone.getParameterName(), "RequestedState");
  value.setIsTyped();
  EXPECT_TRUE(value.isTyped());
  EXPECT_FALSE(value.isUninitialized());
  EXPECT_TRUE(CIMParamValue().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMParamValue().getValue(); }),
            "uninitialized object");
}

}  // namespace
