// What providers have been seen to rely on; each test is one observed behaviour.

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMObject.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::messageOf;
using pegasus_test::textOf;
using pegasus_test::textProperty;

TEST(Semantics, APropertyAddedThroughACopyShowsInTheOriginalInstance) {
  const CIMInstance original(CIMName("VEXOR_A"));
  CIMInstance copy(original);
  copy.addProperty(textProperty("a", "x"));
  EXPECT_EQ(original.getPropertyCount(), 1U);
}

TEST(Semantics, AValueSetThroughACopyShowsInTheOriginalProperty) {
  const CIMProperty original = textProperty("a", "x");
  CIMProperty copy(original);
  copy.setValue(CIMValue(String("y")));
  EXPECT_EQ(textOf(original.getValue()), "y");
}

TEST(Semantics, AssignedHandlesShareToo) {
  CIMInstance original(CIMName("VEXOR_A"));
  CIMInstance assigned;
  assigned = original;
  assigned.addProperty(textProperty("a", "x"));
  EXPECT_EQ(original.getPropertyCount(), 1U);
}

TEST(Semantics, CopiesOfClassesShare) {
  const CIMClass original(CIMName("VEXOR_A"));
  CIMClass copy(original);
  copy.addProperty(textProperty("a", "x"));
  EXPECT_EQ(original.getPropertyCount(), 1U);
}

TEST(Semantics, CopiesOfQualifiersShare) {
  const CIMQualifier original = flag("Key");
  CIMQualifier copy(original);
  copy.setValue(CIMValue(false));
  EXPECT_EQ(textOf(original.getValue()), "FALSE");
}

TEST(Semantics, AnObjectSharesTheInstanceItIsMadeOf) {
  const CIMInstance instance(CIMName("VEXOR_A"));
  CIMObject object(instance);
  object.addProperty(textProperty("a", "x"));
  EXPECT_EQ(instance.getPropertyCount(), 1U);
}

TEST(Semantics, CopiesOfObjectsShare) {
  const CIMObject original(CIMInstance(CIMName("VEXOR_A")));
  CIMObject copy(original);
  copy.addProperty(textProperty("a", "x"));
  EXPECT_EQ(original.getPropertyCount(), 1U);
}

TEST(Semantics, AddPropertyKeepsSharingWithThePropertyPassedIn) {
  CIMInstance instance(CIMName("VEXOR_A"));
  CIMProperty property = textProperty("a", "x");
  instance.addProperty(property);
  property.setValue(CIMValue(String("y")));
  EXPECT_EQ(textOf(instance.getProperty(0).getValue()), "y");
  property.addQualifier(flag("Key"));
  EXPECT_EQ(instance.getProperty(0).getQualifierCount(), 1U);
}

TEST(Semantics, ACloneOfAnInstanceIsIndependent) {
  CIMInstance original(CIMName("VEXOR_A"));
  original.addProperty(textProperty("a", "x"));
  CIMInstance clone = original.clone();
  clone.getProperty(0).setValue(CIMValue(String("y")));
  clone.addProperty(textProperty("b", "x"));
  clone.addQualifier(flag("Version"));
  clone.setPath(CIMObjectPath(String("root:VEXOR_A")));
  EXPECT_EQ(original.getPropertyCount(), 1U);
  EXPECT_EQ(original.getQualifierCount(), 0U);
  EXPECT_EQ(textOf(original.getProperty(0).getValue()), "x");
  EXPECT_EQ(original.getPath().toString(), "VEXOR_A");
}

TEST(Semantics, ACloneOfAPropertyIsIndependent) {
  CIMProperty original = textProperty("a", "x");
  original.addQualifier(flag("Key"));
  CIMProperty clone = original.clone();
  clone.setValue(CIMValue(String("y")));
  clone.getQualifier(0).setName(CIMName("Other"));
  EXPECT_EQ(textOf(original.getValue()), "x");
  EXPECT_EQ(original.getQualifier(0).getName().getString(), "Key");
}

TEST(Semantics, ACloneOfAnObjectIsIndependent) {
  CIMObject original(CIMInstance(CIMName("VEXOR_A")));
  CIMObject clone = original.clone();
  clone.addProperty(textProperty("a", "x"));
  EXPECT_EQ(original.getPropertyCount(), 0U);
}

TEST(Semantics, CopiesOfObjectPathsAreValues) {
  const CIMObjectPath original(String("root:A"));
  CIMObjectPath copy(original);
  copy.setClassName(CIMName("B"));
  EXPECT_EQ(original.toString(), "root:A");
}

TEST(Semantics, CopiesOfArraysAreValues) {
  const Array<Uint32> original(1, 7);
  Array<Uint32> copy(original);
  copy[0] = 8;
  EXPECT_EQ(original[0], 7U);
}

TEST(Semantics, CopiesOfStringsAreValues) {
  const String original("a");
  String copy(original);
  copy.append(String("b"));
  EXPECT_EQ(original, "a");
}

TEST(Semantics, CopiesOfNamesAreValues) {
  const CIMName original("a");
  CIMName copy(original);
  copy = String("b");
  EXPECT_EQ(original.getString(), "a");
}

TEST(Semantics, SeveralThreadsMayCopyOneObject) {
  const CIMInstance instance(CIMName("VEXOR_A"));
  const String text("shared");
  const Array<String> array(3, text);
  const CIMValue value(array);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 10000; ++round) {
        const CIMInstance instanceCopy(instance);
        String textCopy(text);
        textCopy.append(String("x"));
        Array<String> arrayCopy;
        value.get(arrayCopy);
        arrayCopy[0] = textCopy;
      }
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(text, "shared");
  EXPECT_EQ(array[0], "shared");
}

TEST(Semantics, HandlesAreOnePointerWide) {
  EXPECT_EQ(sizeof(CIMInstance), 8U);
  EXPECT_EQ(sizeof(String), 8U);
  EXPECT_EQ(sizeof(Array<String>), 8U);
  EXPECT_EQ(sizeof(CIMValue), 8U);
  EXPECT_EQ(sizeof(CIMName), 8U);
  EXPECT_EQ(sizeof(CIMObjectPath), 8U);
}

TEST(Semantics, GetOfAWrongTypeIsATypeMismatch) {
  String text;
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { CIMValue(Uint16{1}).get(text); }),
            "type mismatch");
}

TEST(Semantics, ClassNameOfADefaultInstanceThrows) {
  EXPECT_EQ(messageOf<Exception>([] { CIMInstance().getClassName(); }), "uninitialized object");
}

TEST(Semantics, ASecondPropertyOfANameThrows) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(textProperty("A", "x"));
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { instance.addProperty(textProperty("a", "")); }),
            "already exists: property \"a\"");
  EXPECT_EQ(instance.getPropertyCount(), 1U);
}

TEST(Semantics, APropertyIndexOutOfRangeThrows) {
  CIMInstance instance(CIMName("VEXOR_A"));
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { instance.getProperty(0); }),
            "index out of bounds");
}

TEST(Semantics, NamesAreChecked) {
  EXPECT_EQ(messageOf<InvalidNameException>([] { CIMName name("a b"); }),
            "The CIM name is not valid: a b");
  EXPECT_EQ(messageOf<Exception>([] { CIMNamespaceName name("//x"); }),
            "invalid CIM namespace name: //x");
}

TEST(Semantics, FindIgnoresCaseAndAnswersTheGreatestNumberIfThereIsNone) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(textProperty("Name", "x"));
  instance.addQualifier(flag("Version"));
  EXPECT_EQ(instance.findProperty(CIMName("nAME")), 0U);
  EXPECT_EQ(instance.findProperty(CIMName("other")), 4294967295U);
  EXPECT_EQ(instance.findQualifier(CIMName("vERSION")), 0U);
  EXPECT_EQ(instance.findQualifier(CIMName("other")), PEG_NOT_FOUND);
}

TEST(Semantics, AnObjectPathSortsItsKeysByName) {
  Array<CIMKeyBinding> keys;
  keys.append(CIMKeyBinding(CIMName("Z"), CIMValue(Uint32{7})));
  keys.append(CIMKeyBinding(CIMName("B"), CIMValue(true)));
  keys.append(CIMKeyBinding(CIMName("A"), CIMValue(String("q\"x"))));
  const CIMObjectPath path(String("host"), CIMNamespaceName("namespace"), CIMName("Class"), keys);
  EXPECT_EQ(path.toString(), "//host/namespace:Class.A=\"q\\\"x\",B=TRUE,Z=7");
}

TEST(Semantics, NumbersMakeNumericKeysAndBooleansBooleanOnes) {
  EXPECT_EQ(CIMKeyBinding(CIMName("k"), CIMValue(Uint32{7})).getType(), CIMKeyBinding::NUMERIC);
  EXPECT_EQ(CIMKeyBinding(CIMName("k"), CIMValue(true)).getType(), CIMKeyBinding::BOOLEAN);
}

TEST(Semantics, AnObjectPathWithoutAHostShowsNone) {
  const CIMObjectPath path(String(""), CIMNamespaceName("root/cimv2"), CIMName("A"));
  EXPECT_EQ(path.getHost(), "");
  EXPECT_EQ(path.toString(), "root/cimv2:A");
}

}  // namespace
