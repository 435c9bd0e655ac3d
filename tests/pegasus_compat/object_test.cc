#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMObject.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::messageOf;
using pegasus_test::textProperty;

TEST(CIMObject, SharesItsInstance) {
  CIMInstance instance(CIMName("VEXOR_A"));
  CIMObject object(instance);
  EXPECT_TRUE(object.isInstance());
  EXPECT_FALSE(object.isClass());
  object.addProperty(textProperty("p", "x"));
  object.addQualifier(flag("Version"));
  object.setPath(CIMObjectPath(String("root:VEXOR_A")));
  EXPECT_EQ(instance.getPropertyCount(), 1U);
  EXPECT_EQ(instance.getQualifierCount(), 1U);
  EXPECT_EQ(instance.getPath().toString(), "root:VEXOR_A");
  EXPECT_EQ(object.getPath().toString(), "root:VEXOR_A");
}

TEST(CIMObject, SharesItsClass) {
  CIMClass cls(CIMName("VEXOR_A"));
  CIMObject object(cls);
  EXPECT_TRUE(object.isClass());
  EXPECT_FALSE(object.isInstance());
  object.addProperty(textProperty("p", "x"));
  EXPECT_EQ(cls.getPropertyCount(), 1U);
  EXPECT_EQ(CIMClass(object).getPropertyCount(), 1U);
}

TEST(CIMObject, HasQualifiersAndProperties) {
  CIMObject object(CIMInstance(CIMName("VEXOR_A")));
  EXPECT_EQ(object.getClassName().getString(), "VEXOR_A");
  object.addQualifier(flag("Version"));
  object.addProperty(textProperty("p", "x"));
  EXPECT_EQ(object.findQualifier(CIMName("version")), 0U);
  EXPECT_EQ(object.getQualifierCount(), 1U);
  object.getQualifier(0).setPropagated(true);
  object.getProperty(0).setName(CIMName("q"));
  EXPECT_EQ(object.findProperty(CIMName("Q")), 0U);
  EXPECT_EQ(object.findProperty(CIMName("p")), 4294967295U);
  EXPECT_EQ(object.getPropertyCount(), 1U);
  const CIMObject& constant = object;
  EXPECT_EQ(constant.getQualifier(0).getPropagated(), 1U);
  EXPECT_EQ(constant.getProperty(0).getName().getString(), "q");
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { object.addProperty(textProperty("Q", "")); }),
            "already exists: property \"Q\"");
  object.removeQualifier(0);
  object.removeProperty(0);
  EXPECT_EQ(object.getQualifierCount(), 0U);
  EXPECT_EQ(object.getPropertyCount(), 0U);
}

TEST(CIMObject, CopiesShareAndClonesDoNot) {
  CIMObject object(CIMInstance(CIMName("VEXOR_A")));
  CIMObject copy(object);
  const CIMObject clone = object.clone();
  copy.addProperty(textProperty("p", "x"));
  EXPECT_EQ(object.getPropertyCount(), 1U);
  EXPECT_EQ(clone.getPropertyCount(), 0U);
  EXPECT_TRUE(object.identical(copy));
  EXPECT_FALSE(object.identical(clone));
  copy = clone;
  EXPECT_EQ(copy.getPropertyCount(), 0U);
}

TEST(CIMObject, AnInstanceAndAClassAreNeverIdentical) {
  EXPECT_FALSE(CIMObject(CIMInstance(CIMName("A"))).identical(CIMObject(CIMClass(CIMName("A")))));
}

TEST(CIMObject, FilterIsForInstances) {
  CIMObject object(CIMInstance(CIMName("A")));
  object.addProperty(textProperty("p", "x"));
  object.instanceFilter(true, true, CIMPropertyList(Array<CIMName>()));
  EXPECT_EQ(object.getPropertyCount(), 0U);
  EXPECT_EQ(messageOf<DynamicCastFailedException>([] {
              CIMObject(CIMClass(CIMName("A"))).instanceFilter(true, true, CIMPropertyList());
            }),
            "dynamic cast failed");
}

TEST(CIMObject, UninitializedHandlesThrow) {
  const char* message = "uninitialized object";
  EXPECT_TRUE(CIMObject().isUninitialized());
  EXPECT_TRUE(CIMObject(CIMInstance()).isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMObject().toString(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMObject().isClass(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMConstObject().getPath(); }), message);
}

TEST(CIMObject, AnInstanceIsWrittenAsMof) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addQualifier(flag("Version"));
  instance.addProperty(textProperty("Text", "a\"b\\"));
  instance.addProperty(CIMProperty(CIMName("Numbers"), CIMValue(Array<Uint16>(2, 5))));
  instance.addProperty(CIMProperty(CIMName("Nothing"), CIMValue(CIMTYPE_UINT8, false)));
  instance.addProperty(CIMProperty(CIMName("On"), CIMValue(true)));
  instance.addProperty(CIMProperty(CIMName("End"), CIMValue(CIMObjectPath(String("B.k=1")))));
  instance.getProperty(0).addQualifier(
      CIMQualifier(CIMName("Values"), CIMValue(Array<String>(1, String("v")))));
  instance.getProperty(0).addQualifier(flag("Key"));
  EXPECT_EQ(CIMObject(instance).toString(),
            "[Version (TRUE)]\n"
            "instance of VEXOR_A {\n"
            "  [Values {\"v\"}, Key (TRUE)]\n"
            "  Text = \"a\\\"b\\\\\";\n"
            "  Numbers = {5, 5};\n"
            "  Nothing = NULL;\n"
            "  On = TRUE;\n"
            "  End = \"B.k=1\";\n"
            "};\n");
}

TEST(CIMObject, AClassIsWrittenAsMof) {
  CIMClass cls(CIMName("VEXOR_A"), CIMName("CIM_A"));
  cls.addProperty(textProperty("Text", "x"));
  cls.addProperty(CIMProperty(CIMName("Numbers"), CIMValue(CIMTYPE_UINT16, true)));
  cls.addProperty(
      CIMProperty(CIMName("End"), CIMValue(CIMTYPE_REFERENCE, false), 0, CIMName("CIM_System")));
  CIMMethod method(CIMName("Go"), CIMTYPE_UINT32);
  method.addQualifier(flag("Static"));
  method.addParameter(CIMParameter(CIMName("a"), CIMTYPE_UINT8, true));
  method.addParameter(CIMParameter(CIMName("b"), CIMTYPE_STRING));
  cls.addMethod(method);
  EXPECT_EQ(CIMObject(cls).toString(),
            "class VEXOR_A : CIM_A {\n"
            "  string Text = \"x\";\n"
            "  uint16 Numbers[];\n"
            "  CIM_System REF End;\n"
            "  [Static (TRUE)]\n"
            "  uint32 Go(uint8 a[], string b);\n"
            "};\n");
}

TEST(CIMConstObject, ShowsTheObject) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(textProperty("p", "x"));
  instance.addQualifier(flag("Version"));
  const CIMConstObject constant{CIMObject(instance)};
  EXPECT_EQ(constant.getClassName().getString(), "VEXOR_A");
  EXPECT_EQ(constant.getPath().toString(), "VEXOR_A");
  EXPECT_EQ(constant.findQualifier(CIMName("version")), 0U);
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Version");
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  EXPECT_EQ(constant.findProperty(CIMName("P")), 0U);
  EXPECT_EQ(constant.getProperty(0).getName().getString(), "p");
  EXPECT_EQ(constant.getPropertyCount(), 1U);
  EXPECT_TRUE(constant.isInstance());
  EXPECT_FALSE(constant.isClass());
  EXPECT_FALSE(constant.isUninitialized());
  EXPECT_EQ(constant.toString(), CIMObject(instance).toString());
  EXPECT_TRUE(constant.clone().identical(constant));
  EXPECT_TRUE(CIMConstObject(instance).identical(constant));
  EXPECT_TRUE(CIMConstObject(CIMConstInstance(instance)).identical(constant));
  EXPECT_TRUE(CIMConstObject(CIMClass(CIMName("A"))).isClass());
  EXPECT_TRUE(CIMConstObject(CIMConstClass(CIMName("A"))).isClass());
  EXPECT_TRUE(CIMConstObject().isUninitialized());
  CIMConstObject assigned;
  assigned = CIMObject(instance);
  EXPECT_TRUE(assigned.identical(constant));
}

}  // namespace
