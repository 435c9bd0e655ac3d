#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/OperationContext.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using Pegasus::AlreadyExistsException;
using Pegasus::Exception;
using Pegasus::OperationContext;
using Pegasus::String;
using pegasus_test::messageOf;

int living = 0;

// Counts the containers that are alive.
class Note : public OperationContext::Container {
 public:
  Note(const char* name, int number, bool cloneable = true)
      : _name(name), _number(number), _cloneable(cloneable) {
    ++living;
  }
  Note(const Note& other)
      : Container(other), _name(other._name), _number(other._number), _cloneable(other._cloneable) {
    ++living;
  }
  Note& operator=(const Note&) = delete;
  ~Note() override { --living; }
  String getName() const override { return _name; }
  Container* clone() const override { return _cloneable ? new Note(*this) : nullptr; }
  void destroy() override { delete this; }
  int number() const { return _number; }

 private:
  String _name;
  int _number;
  bool _cloneable;
};

int numberIn(const OperationContext& context, const char* name) {
  return dynamic_cast<const Note&>(context.get(String(name))).number();
}

TEST(OperationContext, KeepsClonesOfItsContainers) {
  {
    OperationContext context;
    EXPECT_FALSE(context.contains(String("a")));
    context.insert(Note("a", 1));
    EXPECT_TRUE(context.contains(String("a")));
    EXPECT_EQ(numberIn(context, "a"), 1);
    EXPECT_EQ(living, 1);
  }
  EXPECT_EQ(living, 0);
}

TEST(OperationContext, SetReplacesAContainer) {
  OperationContext context;
  context.insert(Note("a", 1));
  context.set(Note("a", 2));
  EXPECT_EQ(numberIn(context, "a"), 2);
  EXPECT_EQ(living, 1);
  EXPECT_EQ(messageOf<Exception>([&] { context.set(Note("b", 1)); }), "no such container: \"b\"");
  EXPECT_EQ(messageOf<Exception>([] { OperationContext().set(Note("b", 1)); }),
            "no such container: \"b\"");
}

TEST(OperationContext, InsertOfASecondContainerOfANameThrows) {
  OperationContext context;
  context.insert(Note("a", 1));
  EXPECT_EQ(messageOf<AlreadyExistsException>([&] { context.insert(Note("a", 2)); }),
            "already exists: container \"a\"");
  EXPECT_EQ(numberIn(context, "a"), 1);
}

TEST(OperationContext, RemoveTakesAContainerAway) {
  OperationContext context;
  context.insert(Note("a", 1));
  context.insert(Note("b", 2));
  context.remove(String("a"));
  EXPECT_FALSE(context.contains(String("a")));
  EXPECT_TRUE(context.contains(String("b")));
  EXPECT_EQ(messageOf<Exception>([&] { context.remove(String("a")); }), "no such container: \"a\"");
  EXPECT_EQ(messageOf<Exception>([] { OperationContext().remove(String("a")); }),
            "no such container: \"a\"");
  context.clear();
  EXPECT_FALSE(context.contains(String("b")));
  EXPECT_EQ(living, 0);
}

TEST(OperationContext, GetOfAMissingContainerThrows) {
  OperationContext context;
  EXPECT_EQ(messageOf<Exception>([&] { context.get(String("a")); }), "no such container: \"a\"");
  context.insert(Note("b", 1));
  EXPECT_EQ(messageOf<Exception>([&] { context.get(String("a")); }), "no such container: \"a\"");
}

TEST(OperationContext, CopiesAreValues) {
  OperationContext context;
  context.insert(Note("a", 1));
  OperationContext copy(context);
  copy.set(Note("a", 2));
  EXPECT_EQ(numberIn(context, "a"), 1);
  context = copy;
  EXPECT_EQ(numberIn(context, "a"), 2);
  const OperationContext& same = context;
  context = same;
  EXPECT_EQ(numberIn(context, "a"), 2);
  EXPECT_EQ(living, 2);
}

TEST(OperationContext, AContainerThatCannotBeClonedThrows) {
  OperationContext context;
  EXPECT_EQ(messageOf<Exception>([&] { context.insert(Note("a", 1, false)); }),
            "a container cannot be cloned");
  EXPECT_FALSE(context.contains(String("a")));
}

}  // namespace
