#include <Pegasus/Common/CIMClass.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::keyProperty;
using pegasus_test::messageOf;
using pegasus_test::textProperty;

CIMClass vsan() {
  CIMClass cls(CIMName("VEXOR_Vsan"), CIMName("CIM_AdminDomain"));
  cls.addQualifier(flag("Version"));
  cls.addProperty(keyProperty("Name"));
  cls.addProperty(textProperty("Caption", "default"));
  cls.addMethod(CIMMethod(CIMName("RequestStateChange"), CIMTYPE_UINT32));
  return cls;
}

TEST(CIMClass, HasNameSuperclassAndPath) {
  CIMClass cls = vsan();
  EXPECT_EQ(cls.getClassName().getString(), "VEXOR_Vsan");
  EXPECT_EQ(cls.getSuperClassName().getString(), "CIM_AdminDomain");
  cls.setSuperClassName(CIMName("CIM_System"));
  EXPECT_EQ(cls.getSuperClassName().getString(), "CIM_System");
  EXPECT_EQ(cls.getPath().toString(), "VEXOR_Vsan");
  cls.setPath(CIMObjectPath(String("root:VEXOR_Vsan")));
  EXPECT_EQ(cls.getPath().toString(), "root:VEXOR_Vsan");
  EXPECT_FALSE(cls.isUninitialized());
  EXPECT_TRUE(CIMClass(CIMName("A")).getSuperClassName().isNull());
}

TEST(CIMClass, QualifiersSayWhatItIs) {
  CIMClass cls(CIMName("A"));
  EXPECT_FALSE(cls.isAssociation());
  EXPECT_FALSE(cls.isAbstract());
  cls.addQualifier(flag("ASSOCIATION"));
  cls.addQualifier(flag("abstract"));
  EXPECT_TRUE(cls.isAssociation());
  EXPECT_TRUE(cls.isAbstract());
  EXPECT_TRUE(CIMConstClass(cls).isAssociation());
  EXPECT_TRUE(CIMConstClass(cls).isAbstract());
  cls.getQualifier(0).setValue(CIMValue(false));
  cls.getQualifier(1).setValue(CIMValue(String("TRUE")));  // not a boolean: not the qualifier
  EXPECT_FALSE(cls.isAssociation());
  EXPECT_FALSE(cls.isAbstract());
}

TEST(CIMClass, HasQualifiers) {
  CIMClass cls = vsan();
  EXPECT_EQ(cls.findQualifier(CIMName("VERSION")), 0U);
  EXPECT_EQ(cls.getQualifierCount(), 1U);
  const CIMClass& constant = cls;
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Version");
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { cls.addQualifier(flag("VERSION")); }),
            "already exists: qualifier \"VERSION\"");
  cls.removeQualifier(0);
  EXPECT_EQ(cls.getQualifierCount(), 0U);
}

TEST(CIMClass, HasProperties) {
  CIMClass cls = vsan();
  EXPECT_EQ(cls.findProperty(CIMName("CAPTION")), 1U);
  EXPECT_EQ(cls.findProperty(CIMName("none")), 4294967295U);
  EXPECT_EQ(cls.getPropertyCount(), 2U);
  cls.getProperty(1).setName(CIMName("Renamed"));
  const CIMClass& constant = cls;
  EXPECT_EQ(constant.getProperty(1).getName().getString(), "Renamed");
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { cls.addProperty(textProperty("NAME", "")); }),
            "already exists: property \"NAME\"");
  cls.removeProperty(0);
  EXPECT_EQ(cls.getPropertyCount(), 1U);
}

TEST(CIMClass, HasMethods) {
  CIMClass cls = vsan();
  EXPECT_EQ(cls.findMethod(CIMName("requeststatechange")), 0U);
  EXPECT_EQ(cls.getMethodCount(), 1U);
  cls.getMethod(0).setType(CIMTYPE_UINT8);
  const CIMClass& constant = cls;
  EXPECT_EQ(constant.getMethod(0).getType(), CIMTYPE_UINT8);
  EXPECT_EQ(messageOf<AlreadyExistsException>(
                [&] { cls.addMethod(CIMMethod(CIMName("RequestStateChange"), CIMTYPE_UINT8)); }),
            "already exists: method \"RequestStateChange\"");
  cls.removeMethod(0);
  EXPECT_EQ(cls.getMethodCount(), 0U);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { cls.getMethod(0); }), "index out of bounds");
}

TEST(CIMClass, KeysAreThePropertiesMarkedSo) {
  Array<CIMName> names;
  vsan().getKeyNames(names);
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(names[0].getString(), "Name");
  EXPECT_TRUE(vsan().hasKeys());
  CIMConstClass(vsan()).getKeyNames(names);
  EXPECT_EQ(names.size(), 2U);  // appended
  EXPECT_TRUE(CIMConstClass(vsan()).hasKeys());
  CIMClass none(CIMName("A"));
  CIMProperty off = textProperty("p", "");
  off.addQualifier(flag("Key", false));
  none.addProperty(off);
  EXPECT_FALSE(none.hasKeys());
}

TEST(CIMClass, CopiesShareAndClonesDoNot) {
  CIMClass cls = vsan();
  CIMClass copy(cls);
  CIMClass clone = cls.clone();
  copy.addProperty(textProperty("added", ""));
  EXPECT_EQ(cls.getPropertyCount(), 3U);
  EXPECT_EQ(clone.getPropertyCount(), 2U);
  clone.getProperty(0).getQualifier(0).setName(CIMName("Other"));
  clone.getMethod(0).setName(CIMName("Other"));
  clone.getQualifier(0).setName(CIMName("Other"));
  EXPECT_EQ(cls.getProperty(0).getQualifier(0).getName().getString(), "Key");
  EXPECT_EQ(cls.getMethod(0).getName().getString(), "RequestStateChange");
  EXPECT_EQ(cls.getQualifier(0).getName().getString(), "Version");
}

TEST(CIMClass, IdenticalComparesEverything) {
  const CIMClass cls = vsan();
  CIMClass other = vsan();
  EXPECT_TRUE(cls.identical(other));
  other.removeMethod(0);
  EXPECT_FALSE(cls.identical(other));
  other = vsan();
  other.setSuperClassName(CIMName());
  EXPECT_FALSE(cls.identical(other));
}

TEST(CIMClass, UninitializedHandlesThrow) {
  const char* message = "uninitialized object";
  EXPECT_TRUE(CIMClass().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMClass().getClassName(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMClass().isAbstract(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMClass made{CIMName()}; }), message);
  EXPECT_EQ(messageOf<DynamicCastFailedException>(
                [] { CIMClass made{CIMObject(CIMInstance(CIMName("A")))}; }),
            "dynamic cast failed");
}

TEST(CIMClass, BuildsInstances) {
  CIMClass cls = vsan();
  cls.setPath(CIMObjectPath(String("//h/root:VEXOR_Vsan")));
  const CIMInstance whole = cls.buildInstance(true, true, CIMPropertyList());
  EXPECT_EQ(whole.getClassName().getString(), "VEXOR_Vsan");
  EXPECT_EQ(whole.getPath().toString(), "//h/root:VEXOR_Vsan");
  EXPECT_EQ(whole.getQualifierCount(), 1U);
  EXPECT_EQ(whole.getPropertyCount(), 2U);
  EXPECT_EQ(whole.getProperty(0).getQualifierCount(), 1U);
  EXPECT_EQ(whole.getProperty(0).getClassOrigin().getString(), "CIM_Base");
  const CIMInstance bare = cls.buildInstance(false, false, CIMPropertyList());
  EXPECT_EQ(bare.getQualifierCount(), 0U);
  EXPECT_EQ(bare.getProperty(0).getQualifierCount(), 0U);
  EXPECT_TRUE(bare.getProperty(0).getClassOrigin().isNull());
  const CIMInstance none = cls.buildInstance(true, true, CIMPropertyList(Array<CIMName>()));
  EXPECT_EQ(none.getPropertyCount(), 0U);
  cls.buildInstance(true, true, CIMPropertyList()).getProperty(0).setName(CIMName("Other"));
  EXPECT_EQ(cls.getProperty(0).getName().getString(), "Name");
}

TEST(CIMConstClass, ShowsTheClass) {
  CIMClass cls = vsan();
  const CIMConstClass constant(cls);
  EXPECT_EQ(constant.getClassName().getString(), "VEXOR_Vsan");
  EXPECT_EQ(constant.getSuperClassName().getString(), "CIM_AdminDomain");
  EXPECT_EQ(constant.getPath().toString(), "VEXOR_Vsan");
  EXPECT_EQ(constant.findQualifier(CIMName("version")), 0U);
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Version");
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  EXPECT_EQ(constant.findProperty(CIMName("caption")), 1U);
  EXPECT_EQ(constant.getProperty(1).getName().getString(), "Caption");
  EXPECT_EQ(constant.getPropertyCount(), 2U);
  EXPECT_EQ(constant.findMethod(CIMName("x")), 4294967295U);
  EXPECT_EQ(constant.getMethod(0).getName().getString(), "RequestStateChange");
  EXPECT_EQ(constant.getMethodCount(), 1U);
  EXPECT_TRUE(constant.clone().identical(constant));
  EXPECT_TRUE(constant.identical(cls));
  EXPECT_FALSE(constant.isUninitialized());
  EXPECT_TRUE(CIMConstClass().isUninitialized());
  EXPECT_EQ(CIMConstClass(CIMName("A"), CIMName("B")).getSuperClassName().getString(), "B");
  EXPECT_EQ(CIMConstClass(CIMObject(cls)).getPropertyCount(), 2U);
  EXPECT_EQ(CIMConstClass(CIMConstObject(cls)).getPropertyCount(), 2U);
  CIMConstClass assigned;
  assigned = cls;
  EXPECT_TRUE(assigned.identical(constant));
}

}  // namespace
