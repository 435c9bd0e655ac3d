#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObject.h>
#include <Pegasus/Common/CIMValue.h>
#include <gtest/gtest.h>

#include <type_traits>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::messageOf;
using pegasus_test::textOf;
using pegasus_test::textProperty;

// Tests of one value per type: what it is made of, the type it has, and its text.
template <class T>
void expectScalar(const T& x, CIMType type, const char* text) {
  const CIMValue made(x);
  EXPECT_EQ(made.getType(), type);
  EXPECT_FALSE(made.isArray());
  EXPECT_FALSE(made.isNull());
  EXPECT_EQ(made.getArraySize(), 0U);
  EXPECT_EQ(textOf(made), text);
  T got{};
  made.get(got);
  EXPECT_EQ(textOf(CIMValue(got)), text);
  CIMValue set;
  set.set(x);
  EXPECT_TRUE(set == made);
  EXPECT_EQ(set.getType(), type);
}

template <class T>
void expectArray(const T& x, const T& y, CIMType type, const char* text) {
  Array<T> array(1, x);
  array.append(y);
  const CIMValue made(array);
  EXPECT_EQ(made.getType(), type);
  EXPECT_TRUE(made.isArray());
  EXPECT_FALSE(made.isNull());
  EXPECT_EQ(made.getArraySize(), 2U);
  EXPECT_EQ(textOf(made), text);
  Array<T> got;
  made.get(got);
  EXPECT_EQ(got.size(), 2U);
  EXPECT_EQ(textOf(CIMValue(got)), text);
  CIMValue set;
  set.set(array);
  EXPECT_TRUE(set == made);
}

TEST(CIMValue, DefaultIsANullBoolean) {
  const CIMValue value;
  EXPECT_TRUE(value.isNull());
  EXPECT_FALSE(value.isArray());
  EXPECT_EQ(value.getType(), CIMTYPE_BOOLEAN);
  EXPECT_EQ(value.getArraySize(), 0U);
  EXPECT_EQ(textOf(value), "");
}

TEST(CIMValue, IsMadeOfEveryScalarType) {
  expectScalar<Boolean>(true, CIMTYPE_BOOLEAN, "TRUE");
  expectScalar<Boolean>(false, CIMTYPE_BOOLEAN, "FALSE");
  expectScalar<Uint8>(255, CIMTYPE_UINT8, "255");
  expectScalar<Sint8>(-128, CIMTYPE_SINT8, "-128");
  expectScalar<Uint16>(65535, CIMTYPE_UINT16, "65535");
  expectScalar<Sint16>(-32768, CIMTYPE_SINT16, "-32768");
  expectScalar<Uint32>(4294967295U, CIMTYPE_UINT32, "4294967295");
  expectScalar<Sint32>(-2147483647 - 1, CIMTYPE_SINT32, "-2147483648");
  expectScalar<Uint64>(18446744073709551615ULL, CIMTYPE_UINT64, "18446744073709551615");
  expectScalar<Sint64>(-9223372036854775807LL - 1, CIMTYPE_SINT64, "-9223372036854775808");
  expectScalar<Real32>(1.5F, CIMTYPE_REAL32, "1.5");
  expectScalar<Real64>(-0.1, CIMTYPE_REAL64, "-0.1");
  expectScalar<Char16>(Char16('x'), CIMTYPE_CHAR16, "x");
  expectScalar<String>(String("a \"text\""), CIMTYPE_STRING, "a \"text\"");
  expectScalar<CIMDateTime>(CIMDateTime(String("20240101000000.000000+000")), CIMTYPE_DATETIME,
                            "20240101000000.000000+000");
  expectScalar<CIMObjectPath>(CIMObjectPath(String("root:A.b=1")), CIMTYPE_REFERENCE, "root:A.b=1");
}

TEST(CIMValue, IsMadeOfAnArrayOfEveryType) {
  expectArray<Boolean>(true, false, CIMTYPE_BOOLEAN, "TRUE FALSE");
  expectArray<Uint8>(1, 2, CIMTYPE_UINT8, "1 2");
  expectArray<Sint8>(-1, 2, CIMTYPE_SINT8, "-1 2");
  expectArray<Uint16>(1, 2, CIMTYPE_UINT16, "1 2");
  expectArray<Sint16>(-1, 2, CIMTYPE_SINT16, "-1 2");
  expectArray<Uint32>(1, 2, CIMTYPE_UINT32, "1 2");
  expectArray<Sint32>(-1, 2, CIMTYPE_SINT32, "-1 2");
  expectArray<Uint64>(1, 2, CIMTYPE_UINT64, "1 2");
  expectArray<Sint64>(-1, 2, CIMTYPE_SINT64, "-1 2");
  expectArray<Real32>(0.5F, 2, CIMTYPE_REAL32, "0.5 2");
  expectArray<Real64>(0.25, 1e30, CIMTYPE_REAL64, "0.25 1e+30");
  expectArray<Char16>('a', 'b', CIMTYPE_CHAR16, "a b");
  expectArray<String>(String("a"), String("b"), CIMTYPE_STRING, "a b");
  expectArray<CIMDateTime>(CIMDateTime(), CIMDateTime(), CIMTYPE_DATETIME,
                           "00000000000000.000000:000 00000000000000.000000:000");
  expectArray<CIMObjectPath>(CIMObjectPath(String("A.b=1")), CIMObjectPath(String("A.b=2")),
                             CIMTYPE_REFERENCE, "A.b=1 A.b=2");
}

TEST(CIMValue, HoldsEmbeddedObjectsAndInstances) {
  CIMInstance instance("VEXOR_A");
  instance.addProperty(textProperty("p", "x"));
  const char* mof = "instance of VEXOR_A {\n  p = \"x\";\n};\n";
  const CIMValue asInstance(instance);
  EXPECT_EQ(asInstance.getType(), CIMTYPE_INSTANCE);
  EXPECT_EQ(textOf(asInstance), mof);
  const CIMValue asObject{CIMObject(instance)};
  EXPECT_EQ(asObject.getType(), CIMTYPE_OBJECT);
  EXPECT_EQ(textOf(asObject), mof);
  EXPECT_EQ(CIMValue(Array<CIMInstance>(2, instance)).getArraySize(), 2U);
  EXPECT_EQ(CIMValue(Array<CIMObject>(2, CIMObject(instance))).getArraySize(), 2U);
  CIMValue set;
  set.set(instance);
  EXPECT_TRUE(set == asInstance);
  set.set(CIMObject(instance));
  EXPECT_TRUE(set == asObject);
  set.set(Array<CIMInstance>(1, instance));
  Array<CIMInstance> instances;
  set.get(instances);
  EXPECT_EQ(instances[0].getPropertyCount(), 1U);
  set.set(Array<CIMObject>(1, CIMObject(instance)));
  Array<CIMObject> objects;
  set.get(objects);
  EXPECT_EQ(objects[0].getPropertyCount(), 1U);
}

TEST(CIMValue, EmbeddedInstancesAreIndependentOfTheirSource) {
  CIMInstance instance("VEXOR_A");
  const CIMValue value(instance);
  instance.addProperty(textProperty("p", "x"));
  CIMInstance got;
  value.get(got);
  EXPECT_EQ(got.getPropertyCount(), 0U);
  got.addProperty(textProperty("q", "x"));
  CIMInstance again;
  value.get(again);
  EXPECT_EQ(again.getPropertyCount(), 0U);
  CIMObject object;
  CIMValue{CIMObject(instance)}.get(object);
  object.removeProperty(0);
  EXPECT_EQ(instance.getPropertyCount(), 1U);
}

TEST(CIMValue, AnUninitializedEmbeddedObjectThrows) {
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMValue value{CIMInstance()}; }),
            "uninitialized object");
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMValue value{CIMObject()}; }),
            "uninitialized object");
  EXPECT_EQ(messageOf<UninitializedObjectException>(
                [] { CIMValue value{Array<CIMInstance>(1, CIMInstance())}; }),
            "uninitialized object");
}

TEST(CIMValue, GetOfAnotherTypeThrows) {
  const CIMValue value(Uint16{1});
  Uint32 wider = 7;
  Array<Uint16> array;
  String text;
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { value.get(wider); }), "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { value.get(array); }), "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { value.get(text); }), "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { CIMValue(Array<Uint16>()).get(wider); }),
            "type mismatch");
  EXPECT_EQ(wider, 7U);
}

TEST(CIMValue, GetOfNullLeavesTheArgument) {
  String text("kept");
  CIMValue(CIMTYPE_STRING, false).get(text);
  EXPECT_EQ(text, "kept");
  Boolean on = true;
  CIMValue().get(on);
  EXPECT_TRUE(on);
  EXPECT_EQ(messageOf<TypeMismatchException>([&] { CIMValue().get(text); }), "type mismatch");
}

TEST(CIMValue, NullHasATypeAndASize) {
  const CIMValue value(CIMTYPE_UINT16, true, 3);
  EXPECT_TRUE(value.isNull());
  EXPECT_TRUE(value.isArray());
  EXPECT_EQ(value.getType(), CIMTYPE_UINT16);
  EXPECT_EQ(value.getArraySize(), 3U);
  EXPECT_EQ(CIMValue(CIMTYPE_UINT16, true).getArraySize(), 0U);
  CIMValue set(String("x"));
  set.setNullValue(CIMTYPE_STRING, false);
  EXPECT_TRUE(set.isNull());
  EXPECT_EQ(set.getType(), CIMTYPE_STRING);
}

TEST(CIMValue, ClearReturnsToTheDefault) {
  CIMValue value(String("x"));
  value.clear();
  EXPECT_TRUE(value.isNull());
  EXPECT_EQ(value.getType(), CIMTYPE_BOOLEAN);
}

TEST(CIMValue, CopiesAreValues) {
  CIMValue value(String("x"));
  const CIMValue copy(value);
  value.set(String("y"));
  EXPECT_EQ(textOf(copy), "x");
  CIMValue assigned;
  assigned.assign(copy);
  EXPECT_EQ(textOf(assigned), "x");
  assigned = value;
  EXPECT_EQ(textOf(assigned), "y");
}

TEST(CIMValue, EqualRegardsTypeAndNull) {
  EXPECT_TRUE(CIMValue(Uint16{1}).equal(CIMValue(Uint16{1})));
  EXPECT_TRUE(CIMValue(Uint16{1}) != CIMValue(Uint16{2}));
  EXPECT_TRUE(CIMValue(Uint16{1}) != CIMValue(Uint32{1}));
  EXPECT_TRUE(CIMValue(Uint16{1}) != CIMValue(Array<Uint16>(1, 1)));
  EXPECT_TRUE(CIMValue(CIMTYPE_UINT16, false) != CIMValue(Uint16{0}));
  EXPECT_TRUE(CIMValue(CIMTYPE_UINT16, false) == CIMValue(CIMTYPE_UINT16, false));
  EXPECT_TRUE(CIMValue(Array<String>(1, String("a"))) == CIMValue(Array<String>(1, String("a"))));
  EXPECT_TRUE(CIMValue(Array<String>(1, String("a"))) != CIMValue(Array<String>(1, String("A"))));
  EXPECT_TRUE(CIMValue(Array<String>(1)) != CIMValue(Array<String>(2)));
  EXPECT_TRUE(CIMValue(CIMInstance("A")) == CIMValue(CIMInstance("a")));
}

TEST(CIMValue, TypeCompatibleRegardsTypeAndArray) {
  EXPECT_TRUE(CIMValue(Uint16{1}).typeCompatible(CIMValue(CIMTYPE_UINT16, false)));
  EXPECT_FALSE(CIMValue(Uint16{1}).typeCompatible(CIMValue(Uint32{1})));
  EXPECT_FALSE(CIMValue(Uint16{1}).typeCompatible(CIMValue(CIMTYPE_UINT16, true)));
}

TEST(CIMValue, ACharIsASint8) {
  CIMValue value(char{'A'});
  EXPECT_EQ(value.getType(), CIMTYPE_SINT8);
  char got = 0;
  value.get(got);
  EXPECT_EQ(got, 'A');
  value.set(char{'B'});
  value.get(got);
  EXPECT_EQ(got, 'B');
  value.set(Array<char>(2, 'C'));
  EXPECT_TRUE(value == CIMValue(Array<char>(2, 'C')));
  Array<char> chars;
  value.get(chars);
  EXPECT_EQ(chars.size(), 2U);
  EXPECT_EQ(chars[1], 'C');
  CIMValue(CIMTYPE_SINT8, true).get(chars);
  EXPECT_EQ(chars.size(), 2U);
  CIMValue(CIMTYPE_SINT8, false).get(got);
  EXPECT_EQ(got, 'B');
}

TEST(CIMValue, ZeroAndNegativeZeroAndBigRealsHaveAText) {
  EXPECT_EQ(textOf(CIMValue(Real64{0})), "0");
  EXPECT_EQ(textOf(CIMValue(Real64{1.7976931348623157e308})), "1.7976931348623157e+308");
  EXPECT_EQ(textOf(CIMValue(Real32{3.4028235e38F})), "3.4028235e+38");
}

TEST(CIMType, HasItsNumbersAndNames) {
  EXPECT_EQ(static_cast<int>(CIMTYPE_BOOLEAN), 0);
  EXPECT_EQ(static_cast<int>(CIMTYPE_UINT8), 1);
  EXPECT_EQ(static_cast<int>(CIMTYPE_SINT8), 2);
  EXPECT_EQ(static_cast<int>(CIMTYPE_UINT16), 3);
  EXPECT_EQ(static_cast<int>(CIMTYPE_SINT16), 4);
  EXPECT_EQ(static_cast<int>(CIMTYPE_UINT32), 5);
  EXPECT_EQ(static_cast<int>(CIMTYPE_SINT32), 6);
  EXPECT_EQ(static_cast<int>(CIMTYPE_UINT64), 7);
  EXPECT_EQ(static_cast<int>(CIMTYPE_SINT64), 8);
  EXPECT_EQ(static_cast<int>(CIMTYPE_REAL32), 9);
  EXPECT_EQ(static_cast<int>(CIMTYPE_REAL64), 10);
  EXPECT_EQ(static_cast<int>(CIMTYPE_CHAR16), 11);
  EXPECT_EQ(static_cast<int>(CIMTYPE_STRING), 12);
  EXPECT_EQ(static_cast<int>(CIMTYPE_DATETIME), 13);
  EXPECT_EQ(static_cast<int>(CIMTYPE_REFERENCE), 14);
  EXPECT_EQ(static_cast<int>(CIMTYPE_OBJECT), 15);
  EXPECT_EQ(static_cast<int>(CIMTYPE_INSTANCE), 16);
  EXPECT_STREQ(cimTypeToString(CIMTYPE_BOOLEAN), "boolean");
  EXPECT_STREQ(cimTypeToString(CIMTYPE_SINT64), "sint64");
  EXPECT_STREQ(cimTypeToString(CIMTYPE_DATETIME), "datetime");
  EXPECT_STREQ(cimTypeToString(CIMTYPE_INSTANCE), "instance");
}

// A pointer would otherwise become a Boolean, and an unsigned long has no width of its own.
static_assert(!std::is_constructible_v<CIMValue, const char*>);
static_assert(!std::is_constructible_v<CIMValue, char*>);
static_assert(!std::is_constructible_v<CIMValue, const void*>);
static_assert(!std::is_constructible_v<CIMValue, unsigned long>);
static_assert(!std::is_constructible_v<CIMValue, long>);
static_assert(std::is_same_v<Uint64, unsigned long long>);
static_assert(std::is_same_v<Sint64, long long>);
static_assert(std::is_same_v<Boolean, bool>);
static_assert(std::is_same_v<Uint8, unsigned char> && std::is_same_v<Sint8, signed char>);
static_assert(std::is_same_v<Uint16, unsigned short> && std::is_same_v<Sint16, short>);
static_assert(std::is_same_v<Uint32, unsigned int> && std::is_same_v<Sint32, int>);
static_assert(std::is_same_v<Real32, float> && std::is_same_v<Real64, double>);

}  // namespace
