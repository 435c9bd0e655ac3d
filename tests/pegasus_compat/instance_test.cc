#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::keyProperty;
using pegasus_test::messageOf;
using pegasus_test::textOf;
using pegasus_test::textProperty;

CIMPropertyList onlyB() {
  Array<CIMName> names;
  names.append(CIMName("B"));
  return CIMPropertyList(names);
}

CIMInstance twoProperties() {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(textProperty("a", "1"));
  instance.addProperty(
      CIMProperty(CIMName("b"), CIMValue(String("2")), 0, CIMName(), CIMName("CIM_Origin")));
  instance.getProperty(1).addQualifier(flag("Key"));
  instance.addQualifier(flag("Version"));
  return instance;
}

TEST(CIMInstance, HasAClassNameAndAPath) {
  CIMInstance instance(CIMName("VEXOR_A"));
  EXPECT_EQ(instance.getClassName().getString(), "VEXOR_A");
  EXPECT_EQ(instance.getPath().toString(), "VEXOR_A");
  instance.setPath(CIMObjectPath(String("//h/root:VEXOR_A.k=1")));
  EXPECT_EQ(instance.getPath().toString(), "//h/root:VEXOR_A.k=1");
  EXPECT_FALSE(instance.isUninitialized());
}

TEST(CIMInstance, HasPropertiesInOrder) {
  CIMInstance instance = twoProperties();
  EXPECT_EQ(instance.getPropertyCount(), 2U);
  EXPECT_EQ(instance.findProperty(CIMName("B")), 1U);
  EXPECT_EQ(instance.findProperty(CIMName("c")), 4294967295U);
  instance.getProperty(0).setValue(CIMValue(String("changed")));
  const CIMInstance& constant = instance;
  const CIMConstProperty shown = constant.getProperty(0);
  EXPECT_EQ(textOf(shown.getValue()), "changed");
  instance.removeProperty(0);
  EXPECT_EQ(instance.getPropertyCount(), 1U);
  EXPECT_EQ(instance.getProperty(0).getName().getString(), "b");
  EXPECT_EQ(&instance.addProperty(textProperty("c", "3")), &instance);
}

TEST(CIMInstance, HasQualifiersInOrder) {
  CIMInstance instance(CIMName("VEXOR_A"));
  EXPECT_EQ(&instance.addQualifier(flag("Version")), &instance);
  EXPECT_EQ(instance.getQualifierCount(), 1U);
  EXPECT_EQ(instance.findQualifier(CIMName("VERSION")), 0U);
  EXPECT_EQ(instance.findQualifier(CIMName("x")), 4294967295U);
  instance.getQualifier(0).setPropagated(true);
  const CIMInstance& constant = instance;
  EXPECT_EQ(constant.getQualifier(0).getPropagated(), 1U);
  instance.removeQualifier(0);
  EXPECT_EQ(instance.getQualifierCount(), 0U);
}

TEST(CIMInstance, ASecondQualifierOfANameThrows) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addQualifier(flag("Version"));
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { instance.addQualifier(flag("version")); }),
            "already exists: qualifier \"version\"");
}

TEST(CIMInstance, IndexesOutOfRangeThrow) {
  CIMInstance instance(CIMName("VEXOR_A"));
  const CIMInstance& constant = instance;
  const char* message = "index out of bounds";
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { instance.getProperty(0); }), message);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { constant.getProperty(0); }), message);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { instance.removeProperty(0); }), message);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { instance.getQualifier(0); }), message);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { constant.getQualifier(0); }), message);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { instance.removeQualifier(0); }), message);
}

TEST(CIMInstance, UninitializedHandlesThrow) {
  CIMInstance none;
  const char* message = "uninitialized object";
  EXPECT_TRUE(none.isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.getPath(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.setPath(CIMObjectPath()); }),
            message);
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([&] { none.addProperty(textProperty("a", "")); }),
      message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.getPropertyCount(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.clone(); }), message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMInstance made{CIMName()}; }), message);
  CIMInstance instance(CIMName("VEXOR_A"));
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { instance.addProperty(CIMProperty()); }),
            message);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { instance.addQualifier(CIMQualifier()); }),
            message);
}

TEST(CIMInstance, IdenticalComparesEverything) {
  const CIMInstance instance = twoProperties();
  CIMInstance other = instance.clone();
  EXPECT_TRUE(instance.identical(other));
  EXPECT_TRUE(instance.identical(instance));
  other.setPath(CIMObjectPath(String("root:VEXOR_A")));
  EXPECT_FALSE(instance.identical(other));
  other = instance.clone();
  other.removeProperty(0);
  EXPECT_FALSE(instance.identical(other));
  other = instance.clone();
  other.removeQualifier(0);
  EXPECT_FALSE(instance.identical(other));
  EXPECT_FALSE(instance.identical(CIMInstance(CIMName("VEXOR_B"))));
}

TEST(CIMInstance, BuildPathTakesTheKeysOfTheClass) {
  CIMClass cls(CIMName("VEXOR_A"));
  cls.addProperty(keyProperty("b"));
  cls.addProperty(textProperty("c", ""));
  EXPECT_EQ(twoProperties().buildPath(cls).toString(), "VEXOR_A.b=\"2\"");
  EXPECT_EQ(twoProperties().buildPath(CIMClass(CIMName("VEXOR_A"))).toString(), "VEXOR_A");
}

TEST(CIMInstance, BuildPathWithoutAKeyPropertyThrows) {
  CIMClass cls(CIMName("VEXOR_A"));
  cls.addProperty(keyProperty("missing"));
  EXPECT_EQ(messageOf<Exception>([&] { twoProperties().buildPath(cls); }),
            "no such property: \"missing\"");
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([&] { twoProperties().buildPath(CIMConstClass()); }),
      "uninitialized object");
}

TEST(CIMInstance, FilterKeepsWhatWasAskedFor) {
  CIMInstance all = twoProperties();
  all.instanceFilter(true, true, CIMPropertyList());
  EXPECT_TRUE(all.identical(twoProperties()));

  CIMInstance listed = twoProperties();
  listed.instanceFilter(true, true, onlyB());
  EXPECT_EQ(listed.getPropertyCount(), 1U);
  EXPECT_EQ(listed.getProperty(0).getName().getString(), "b");
  EXPECT_EQ(listed.getProperty(0).getQualifierCount(), 1U);

  CIMInstance bare = twoProperties();
  bare.instanceFilter(false, false, CIMPropertyList());
  EXPECT_EQ(bare.getQualifierCount(), 0U);
  EXPECT_EQ(bare.getPropertyCount(), 2U);
  EXPECT_EQ(bare.getProperty(1).getQualifierCount(), 0U);
  EXPECT_TRUE(bare.getProperty(1).getClassOrigin().isNull());

  CIMInstance none = twoProperties();
  none.filter(true, true, CIMPropertyList(Array<CIMName>()));
  EXPECT_EQ(none.getPropertyCount(), 0U);
}

TEST(CIMInstance, IsMadeOfAnObjectThatIsAnInstance) {
  const CIMInstance instance = twoProperties();
  const CIMInstance again{CIMObject(instance)};
  EXPECT_EQ(again.getPropertyCount(), 2U);
  const char* message = "dynamic cast failed";
  EXPECT_EQ(messageOf<DynamicCastFailedException>(
                [] { CIMInstance made{CIMObject(CIMClass(CIMName("A")))}; }),
            message);
  EXPECT_EQ(messageOf<DynamicCastFailedException>([] { CIMInstance made{CIMObject()}; }), message);
  EXPECT_EQ(messageOf<DynamicCastFailedException>(
                [] { CIMConstInstance made{CIMObject(CIMClass(CIMName("A")))}; }),
            message);
}

TEST(CIMConstInstance, ShowsTheInstance) {
  CIMInstance instance = twoProperties();
  const CIMConstInstance constant(instance);
  EXPECT_EQ(constant.getClassName().getString(), "VEXOR_A");
  EXPECT_EQ(constant.getPath().toString(), "VEXOR_A");
  EXPECT_EQ(constant.findProperty(CIMName("b")), 1U);
  EXPECT_EQ(constant.getProperty(1).getName().getString(), "b");
  EXPECT_EQ(constant.getPropertyCount(), 2U);
  EXPECT_EQ(constant.findQualifier(CIMName("version")), 0U);
  EXPECT_EQ(constant.getQualifier(0).getName().getString(), "Version");
  EXPECT_EQ(constant.getQualifierCount(), 1U);
  EXPECT_FALSE(constant.isUninitialized());
  instance.removeProperty(0);
  EXPECT_EQ(constant.getPropertyCount(), 1U);
  EXPECT_TRUE(constant.clone().identical(constant));
  EXPECT_TRUE(constant.identical(instance));
  EXPECT_TRUE(CIMConstInstance().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMConstInstance().getClassName(); }),
            "uninitialized object");
  EXPECT_EQ(CIMConstInstance(CIMName("B")).getClassName().getString(), "B");
  EXPECT_EQ(CIMConstInstance(CIMObject(instance)).getPropertyCount(), 1U);
  EXPECT_EQ(CIMConstInstance(CIMConstObject(instance)).getPropertyCount(), 1U);
  CIMClass cls(CIMName("VEXOR_A"));
  cls.addProperty(keyProperty("b"));
  EXPECT_EQ(constant.buildPath(cls).toString(), "VEXOR_A.b=\"2\"");
  CIMConstInstance assigned;
  assigned = instance;
  EXPECT_TRUE(assigned.identical(constant));
}

}  // namespace
