#include <Pegasus/Common/CIMProperty.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::messageOf;
using pegasus_test::textOf;
using pegasus_test::textProperty;

const char* const kUninitialized = "uninitialized object";

TEST(CIMProperty, HasNameAndValue) {
  const CIMProperty property(CIMName("VsanId"), CIMValue(Uint32{7}));
  EXPECT_EQ(property.getName().getString(), "VsanId");
  EXPECT_EQ(textOf(property.getValue()), "7");
  EXPECT_EQ(property.getType(), CIMTYPE_UINT32);
  EXPECT_FALSE(property.isArray());
  EXPECT_EQ(property.getArraySize(), 0U);
  EXPECT_TRUE(property.getReferenceClassName().isNull());
  EXPECT_TRUE(property.getClassOrigin().isNull());
  EXPECT_FALSE(property.getPropagated());
  EXPECT_FALSE(property.isUninitialized());
}

TEST(CIMProperty, HasSizeReferenceClassAndOrigin) {
  const CIMProperty array(CIMName("Status"), CIMValue(Array<Uint16>(2)), 2, CIMName(),
                          CIMName("CIM_A"), true);
  EXPECT_TRUE(array.isArray());
  EXPECT_EQ(array.getArraySize(), 2U);
  EXPECT_EQ(array.getClassOrigin().getString(), "CIM_A");
  EXPECT_TRUE(array.getPropagated());
  const CIMProperty reference(CIMName("Dependent"), CIMValue(CIMObjectPath()), 0,
                              CIMName("CIM_System"));
  EXPECT_EQ(reference.getReferenceClassName().getString(), "CIM_System");
}

TEST(CIMProperty, ChangesThroughItsSetters) {
  CIMProperty property = textProperty("a", "x");
  property.setName(CIMName("b"));
  property.setValue(CIMValue(String("y")));
  property.setClassOrigin(CIMName("CIM_B"));
  property.setPropagated(true);
  EXPECT_EQ(property.getName().getString(), "b");
  EXPECT_EQ(textOf(property.getValue()), "y");
  EXPECT_EQ(property.getClassOrigin().getString(), "CIM_B");
  EXPECT_TRUE(property.getPropagated());
}

TEST(CIMProperty, AValueOfAnotherTypeThrowsAndIsNotSet) {
  CIMProperty property = textProperty("a", "x");
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { property.setValue(CIMValue(Uint32{1})); }),
            "type mismatch");
  EXPECT_EQ(
      messageOf<TypeMismatchException>([&] { property.setValue(CIMValue(Array<String>(1))); }),
      "type mismatch");
  EXPECT_EQ(textOf(property.getValue()), "x");
}

TEST(CIMProperty, SizeAndReferenceClassMustSuitTheValue) {
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMProperty property(CIMName("a"), CIMValue(Uint16{1}), 1); }),
            "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMProperty property(CIMName("a"), CIMValue(Array<Uint16>(2)), 3); }),
            "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>([] {
              CIMProperty property(CIMName("a"), CIMValue(Uint16{1}), 0, CIMName("CIM_A"));
            }),
            "type mismatch");
}

TEST(CIMProperty, HasQualifiersInOrder) {
  CIMProperty property = textProperty("a", "x");
  CIMProperty& same = property.addQualifier(flag("Key")).addQualifier(flag("Read"));
  EXPECT_EQ(&same, &property);
  EXPECT_EQ(property.getQualifierCount(), 2U);
  EXPECT_EQ(property.findQualifier(CIMName("READ")), 1U);
  EXPECT_EQ(property.findQualifier(CIMName("Write")), 4294967295U);
  const CIMProperty& constant = property;
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Key");
  property.getQualifier(1).setName(CIMName("Renamed"));
  EXPECT_EQ(constant.getQualifier(1).getName().getString(), "Renamed");
  property.removeQualifier(0);
  EXPECT_EQ(property.getQualifierCount(), 1U);
  EXPECT_EQ(property.getQualifier(0).getName().getString(), "Renamed");
}

TEST(CIMProperty, ASecondQualifierOfANameThrows) {
  CIMProperty property = textProperty("a", "x");
  property.addQualifier(flag("Key"));
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { property.addQualifier(flag("KEY")); }),
            "already exists: qualifier \"KEY\"");
  EXPECT_EQ(property.getQualifierCount(), 1U);
}

TEST(CIMProperty, AQualifierIndexOutOfRangeThrows) {
  CIMProperty property = textProperty("a", "x");
  const CIMProperty& constant = property;
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { property.getQualifier(0); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { constant.getQualifier(0); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { property.removeQualifier(0); }),
            "index out of bounds");
}

TEST(CIMProperty, IdenticalComparesEverything) {
  CIMProperty property = textProperty("a", "x");
  property.addQualifier(flag("Key"));
  CIMProperty other = property.clone();
  EXPECT_TRUE(property.identical(other));
  EXPECT_TRUE(property.identical(property));
  other.setValue(CIMValue(String("y")));
  EXPECT_FALSE(property.identical(other));
  other = property.clone();
  other.removeQualifier(0);
  EXPECT_FALSE(property.identical(other));
  other = property.clone();
  other.setPropagated(true);
  EXPECT_FALSE(property.identical(other));
  other = property.clone();
  other.setClassOrigin(CIMName("CIM_A"));
  EXPECT_FALSE(property.identical(other));
  EXPECT_FALSE(property.identical(textProperty("b", "x")));
}

TEST(CIMProperty, UninitializedHandlesThrow) {
  CIMProperty none;
  const CIMConstProperty constant;
  EXPECT_TRUE(none.isUninitialized());
  EXPECT_TRUE(constant.isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.getName(); }), kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.setValue(CIMValue()); }),
            kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.addQualifier(flag("a")); }),
            kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.clone(); }), kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { constant.getQualifierCount(); }),
            kUninitialized);
}

TEST(CIMProperty, ANullNameOrQualifierThrows) {
  CIMProperty property = textProperty("a", "x");
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([] { CIMProperty made(CIMName(), CIMValue(true)); }),
      kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { property.setName(CIMName()); }),
            kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { property.addQualifier(CIMQualifier()); }),
            kUninitialized);
  EXPECT_EQ(property.getName().getString(), "a");
}

TEST(CIMConstProperty, ShowsTheProperty) {
  CIMProperty property(CIMName("Dependent"), CIMValue(CIMObjectPath(String("A.b=1"))), 0,
                       CIMName("CIM_A"), CIMName("CIM_Origin"), true);
  property.addQualifier(flag("Key"));
  const CIMConstProperty constant(property);
  EXPECT_EQ(constant.getName().getString(), "Dependent");
  EXPECT_EQ(textOf(constant.getValue()), "A.b=1");
  EXPECT_EQ(constant.getType(), CIMTYPE_REFERENCE);
  EXPECT_FALSE(constant.isArray());
  EXPECT_EQ(constant.getArraySize(), 0U);
  EXPECT_EQ(constant.getReferenceClassName().getString(), "CIM_A");
  EXPECT_EQ(constant.getClassOrigin().getString(), "CIM_Origin");
  EXPECT_TRUE(constant.getPropagated());
  EXPECT_EQ(constant.findQualifier(CIMName("key")), 0U);
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Key");
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  EXPECT_FALSE(constant.isUninitialized());
  CIMConstProperty assigned;
  assigned = constant;
  EXPECT_TRUE(assigned.identical(constant));
  assigned = textProperty("other", "x");
  EXPECT_EQ(assigned.getName().getString(), "other");
  const CIMProperty clone = constant.clone();
  property.setPropagated(false);
  EXPECT_FALSE(constant.getPropagated());
  EXPECT_TRUE(clone.getPropagated());
  const CIMConstProperty made(CIMName("a"), CIMValue(Array<Uint8>(2)), 2);
  EXPECT_TRUE(made.isArray());
  EXPECT_EQ(made.getArraySize(), 2U);
}

}  // namespace
