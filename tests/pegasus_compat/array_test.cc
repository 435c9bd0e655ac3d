#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMParamValue.h>
#include <Pegasus/Common/CIMQualifierDecl.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/pegasus_compat/support.h"

namespace {

using Pegasus::Array;
using Pegasus::IndexOutOfBoundsException;
using Pegasus::String;
using Pegasus::Uint32;
using pegasus_test::messageOf;

Array<Uint32> numbers(std::initializer_list<Uint32> values) {
  return Array<Uint32>(values.begin(), static_cast<Uint32>(values.size()));
}

std::string listed(const Array<Uint32>& array) {
  std::string text;
  for (Uint32 i = 0; i < array.size(); ++i)
    text += std::to_string(array[i]) + " ";
  return text;
}

std::string listed(const Array<String>& array) {
  std::string text;
  for (Uint32 i = 0; i < array.size(); ++i) {
    text += static_cast<const char*>(array[i].getCString());
    text += " ";
  }
  return text;
}

TEST(Array, DefaultIsEmpty) {
  const Array<Uint32> array;
  EXPECT_EQ(array.size(), 0U);
  EXPECT_EQ(array.getCapacity(), 0U);
}

TEST(Array, IsMadeWithASize) {
  EXPECT_EQ(listed(Array<Uint32>(3)), "0 0 0 ");
  EXPECT_EQ(listed(Array<Uint32>(2, 7)), "7 7 ");
  const Uint32 items[] = {4, 5};
  EXPECT_EQ(listed(Array<Uint32>(items, 2)), "4 5 ");
  EXPECT_EQ(Array<Uint32>(0).size(), 0U);
}

TEST(Array, CopiesAreValues) {
  Array<Uint32> array = numbers({1, 2});
  Array<Uint32> copy(array);
  copy[0] = 9;
  copy.append(3);
  EXPECT_EQ(listed(array), "1 2 ");
  EXPECT_EQ(listed(copy), "9 2 3 ");
  array = copy;
  copy.remove(0);
  EXPECT_EQ(listed(array), "9 2 3 ");
  const Array<Uint32>& same = array;
  array = same;
  EXPECT_EQ(listed(array), "9 2 3 ");
}

TEST(Array, CopiesShareTheirElementsUntilOneChanges) {
  Array<String> array(1, String("x"));
  const Array<String> copy(array);
  EXPECT_EQ(array.getData(), copy.getData());
  array.append(String("y"));
  EXPECT_NE(array.getData(), copy.getData());
}

TEST(Array, MovesLeaveAnEmptyArray) {
  Array<Uint32> from = numbers({1});
  Array<Uint32> to(std::move(from));
  EXPECT_EQ(listed(to), "1 ");
  EXPECT_EQ(from.size(), 0U);  // NOLINT(bugprone-use-after-move): what it is afterwards
  from = std::move(to);
  EXPECT_EQ(listed(from), "1 ");
}

TEST(Array, ClearMakesItEmptyAndLeavesCopiesAlone) {
  Array<Uint32> array = numbers({1, 2});
  const Array<Uint32> copy(array);
  array.clear();
  EXPECT_EQ(array.size(), 0U);
  EXPECT_EQ(copy.size(), 2U);
}

TEST(Array, ReservesRoomWithoutChangingTheSize) {
  Array<Uint32> array = numbers({1});
  array.reserveCapacity(100);
  EXPECT_EQ(array.size(), 1U);
  EXPECT_GE(array.getCapacity(), 100U);
  const Uint32* data = array.getData();
  for (Uint32 i = 0; i < 99; ++i)
    array.append(i);
  EXPECT_EQ(array.getData(), data);
}

TEST(Array, GrowAddsCopiesOfOneElement) {
  Array<Uint32> array = numbers({1});
  array.grow(3, 8);
  EXPECT_EQ(listed(array), "1 8 8 8 ");
  array.grow(2, array[0]);
  EXPECT_EQ(listed(array), "1 8 8 8 1 1 ");
}

TEST(Array, SwapExchangesTheElements) {
  Array<Uint32> one = numbers({1});
  Array<Uint32> two = numbers({2, 3});
  one.swap(two);
  EXPECT_EQ(listed(one), "2 3 ");
  EXPECT_EQ(listed(two), "1 ");
}

TEST(Array, IndexPastTheEndThrows) {
  Array<Uint32> array = numbers({1});
  const Array<Uint32>& constant = array;
  EXPECT_EQ(constant[0], 1U);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { array[1] = 0; }), "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { static_cast<void>(constant[1]); }),
            "index out of bounds");
}

TEST(Array, AppendsAndPrepends) {
  Array<Uint32> array;
  const Uint32 more[] = {6, 7};
  array.append(1);
  array.append(more, 2);
  array.appendArray(numbers({8, 9}));
  array.prepend(0);
  array.prepend(more, 2);
  EXPECT_EQ(listed(array), "6 7 0 1 6 7 8 9 ");
  array.append(more, 0);
  array.appendArray(Array<Uint32>());
  EXPECT_EQ(array.size(), 8U);
}

TEST(Array, InsertsInFrontOfAnElement) {
  Array<String> array(2, String("x"));
  const String more[] = {String("a"), String("b")};
  array.insert(1, String("m"));
  array.insert(3, String("end"));
  array.insert(0, more, 2);
  EXPECT_EQ(listed(array), "a b x m x end ");
}

TEST(Array, InsertPastTheEndThrowsAndChangesNothing) {
  Array<Uint32> array = numbers({1});
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { array.insert(2, 5); }),
            "index out of bounds");
  EXPECT_EQ(listed(array), "1 ");
}

TEST(Array, AddsItsOwnElements) {
  Array<String> array(1, String("a"));
  for (int i = 0; i < 3; ++i)
    array.append(array[0]);
  array.insert(1, array[0]);
  array.appendArray(array);
  array.prepend(array.getData() + 1, 2);
  EXPECT_EQ(listed(array), "a a a a a a a a a a a a ");
  Array<String> roomy(1, String("first"));
  roomy.reserveCapacity(10);
  roomy.append(String("second"));
  roomy.insert(0, roomy[1]);
  EXPECT_EQ(listed(roomy), "second first second ");
}

TEST(Array, RemovesElements) {
  Array<String> array;
  for (const char* text : {"0", "1", "2", "3", "4"})
    array.append(String(text));
  const Array<String> copy(array);
  array.remove(1);
  EXPECT_EQ(listed(array), "0 2 3 4 ");
  array.remove(1, 2);
  EXPECT_EQ(listed(array), "0 4 ");
  array.remove(2, 0);
  array.remove(0, 2);
  EXPECT_EQ(array.size(), 0U);
  EXPECT_EQ(listed(copy), "0 1 2 3 4 ");
}

TEST(Array, RemovingPastTheEndThrowsAndChangesNothing) {
  Array<Uint32> array = numbers({1, 2});
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { array.remove(2); }), "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { array.remove(1, 2); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { array.remove(0, 4294967295U); }),
            "index out of bounds");
  EXPECT_EQ(listed(array), "1 2 ");
}

TEST(Array, AppendingManyElementsMovesThemSeldom) {
  Array<Uint32> array;
  int moves = 0;
  for (Uint32 i = 0; i < 100000; ++i) {
    const Uint32* before = array.getData();
    array.append(i);
    if (array.getData() != before) ++moves;
  }
  EXPECT_EQ(array[99999], 99999U);
  EXPECT_LE(moves, 20);
}

// Each element type is an explicit instantiation of its own.
template <class T>
class ArrayOf : public testing::Test {};

using ElementTypes =
    testing::Types<Pegasus::Boolean, char, Pegasus::Uint8, Pegasus::Sint8, Pegasus::Uint16,
                   Pegasus::Sint16, Pegasus::Uint32, Pegasus::Sint32, Pegasus::Uint64,
                   Pegasus::Sint64, Pegasus::Real32, Pegasus::Real64, Pegasus::Char16,
                   Pegasus::String, Pegasus::CIMDateTime, Pegasus::CIMName,
                   Pegasus::CIMNamespaceName, Pegasus::CIMObjectPath, Pegasus::CIMKeyBinding,
                   Pegasus::CIMValue, Pegasus::CIMProperty, Pegasus::CIMQualifier,
                   Pegasus::CIMQualifierDecl, Pegasus::CIMParameter, Pegasus::CIMParamValue,
                   Pegasus::CIMMethod, Pegasus::CIMClass, Pegasus::CIMInstance, Pegasus::CIMObject>;
TYPED_TEST_SUITE(ArrayOf, ElementTypes);

TYPED_TEST(ArrayOf, HasEveryMember) {
  const TypeParam item{};
  Array<TypeParam> array(1, item);
  Array<TypeParam> sized(2);
  const Array<TypeParam> fromItems(&item, 1);
  array.append(item);
  array.append(&item, 1);
  array.appendArray(fromItems);
  array.prepend(item);
  array.prepend(&item, 1);
  array.insert(1, item);
  array.insert(1, &item, 1);
  array.grow(2, item);
  EXPECT_EQ(array.size(), 10U);
  array.remove(0);
  array.remove(0, 2);
  EXPECT_EQ(array.size(), 7U);
  array.swap(sized);
  EXPECT_EQ(array.size(), 2U);
  array.reserveCapacity(20);
  EXPECT_GE(array.getCapacity(), 20U);
  EXPECT_NE(array.getData(), nullptr);
  array[0] = item;
  array = fromItems;
  EXPECT_EQ(array.size(), 1U);
  array.clear();
  EXPECT_EQ(array.size(), 0U);
}

}  // namespace
