#include <Pegasus/Common/CIMPropertyList.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::messageOf;

Array<CIMName> names() {
  Array<CIMName> result;
  result.append(CIMName("Name"));
  result.append(CIMName("VsanId"));
  return result;
}

TEST(CIMPropertyList, NullMeansEveryProperty) {
  const CIMPropertyList list;
  EXPECT_TRUE(list.isNull());
  EXPECT_EQ(list.size(), 0U);
  EXPECT_TRUE(list.useThisProperty(CIMName("Anything")));
  EXPECT_FALSE(list.contains(CIMName("Anything")));
  EXPECT_EQ(list.getPropertyNameArray().size(), 0U);
  EXPECT_EQ(list.toString(), "NULL");
}

TEST(CIMPropertyList, EmptyMeansNoProperty) {
  const CIMPropertyList list{Array<CIMName>()};
  EXPECT_FALSE(list.isNull());
  EXPECT_EQ(list.size(), 0U);
  EXPECT_FALSE(list.useThisProperty(CIMName("Anything")));
  EXPECT_EQ(list.toString(), "EMPTY");
}

TEST(CIMPropertyList, HoldsNamesInOrder) {
  const CIMPropertyList list(names());
  EXPECT_FALSE(list.isNull());
  EXPECT_EQ(list.size(), 2U);
  EXPECT_EQ(list[1].getString(), "VsanId");
  EXPECT_EQ(list.getPropertyNameArray()[0].getString(), "Name");
  EXPECT_TRUE(list.contains(CIMName("VSANID")));
  EXPECT_TRUE(list.useThisProperty(CIMName("name")));
  EXPECT_FALSE(list.useThisProperty(CIMName("Other")));
  EXPECT_EQ(list.toString(), "Name,VsanId");
}

TEST(CIMPropertyList, IndexPastTheEndThrows) {
  EXPECT_EQ(
      messageOf<IndexOutOfBoundsException>([] { static_cast<void>(CIMPropertyList{names()}[2]); }),
      "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([] { static_cast<void>(CIMPropertyList{}[0]); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([] { CIMPropertyList().getCIMNameTag(0); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([] { CIMPropertyList(names()).getCIMNameTag(2); }),
            "index out of bounds");
}

TEST(CIMPropertyList, CopiesAreValues) {
  CIMPropertyList list(names());
  const CIMPropertyList copy(list);
  list.set(Array<CIMName>());
  EXPECT_EQ(copy.size(), 2U);
  list = copy;
  EXPECT_EQ(list.size(), 2U);
  list.clear();
  EXPECT_TRUE(list.isNull());
  EXPECT_EQ(copy.size(), 2U);
}

TEST(CIMPropertyList, AppendAddsTexts) {
  CIMPropertyList list;
  Array<String> more(1, String("Status"));
  list.append(more);
  list.append(more);
  EXPECT_EQ(list.toString(), "Status,Status");
  Array<String> illegal(1, String("a b"));
  EXPECT_EQ(messageOf<InvalidNameException>([&] { list.append(illegal); }),
            "The CIM name is not valid: a b");
  EXPECT_EQ(list.size(), 2U);
}

TEST(CIMPropertyList, TagsDoNotRegardCase) {
  Array<CIMName> upper;
  upper.append(CIMName("NAME"));
  const CIMPropertyList list(names());
  EXPECT_EQ(list.getCIMNameTag(0), CIMPropertyList(upper).getCIMNameTag(0));
  EXPECT_NE(list.getCIMNameTag(0), list.getCIMNameTag(1));
  CIMPropertyList tagged(list);
  tagged.appendCIMNameTag(77);
  EXPECT_EQ(tagged.getCIMNameTag(2), 77U);
  EXPECT_EQ(tagged.size(), 2U);
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { list.getCIMNameTag(2); }),
            "index out of bounds");
}

TEST(CIMPropertyList, ANullNameThrowsAndKeepsTheList) {
  CIMPropertyList list(names());
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { list.set(Array<CIMName>(1)); }),
            "uninitialized object");
  EXPECT_EQ(list.size(), 2U);
}

}  // namespace
