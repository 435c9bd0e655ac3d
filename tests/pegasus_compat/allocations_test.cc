// How many blocks common operations take, and that they give them all back.

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/OperationContext.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long taken = 0;
long given = 0;

}  // namespace

// These take the place of the library's operators as well. Not inlined: g++ would take the pair for
// a mismatched one.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++taken;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  given += block != nullptr ? 1 : 0;
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
  operator delete(block);
}

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it

// Blocks that the action takes; every one of them must be back at its end.
template <class Action>
long blocksOf(Action action) {
  const long takenBefore = taken;
  const long givenBefore = given;
  action();
  EXPECT_EQ(taken - takenBefore, given - givenBefore);
  return taken - takenBefore;
}

TEST(Allocations, APropertyWithAShortTextTakesFourBlocks) {
  // The characters of its name and of its text, its value, itself.
  EXPECT_EQ(blocksOf([] { CIMProperty made(CIMName("Name"), CIMValue(String("VSAN0001"))); }), 4);
}

TEST(Allocations, CopiesTakeNoBlocks) {
  const String text("text");
  const CIMName name("Name");
  const CIMValue value(text);
  const Array<String> array(3, text);
  const CIMProperty property(name, value);
  const CIMInstance instance(name);
  const CIMObjectPath path(String("root:A.k=1"));
  EXPECT_EQ(blocksOf([&] {
              const String textCopy(text);
              const CIMName nameCopy(name);
              const CIMValue valueCopy(value);
              const Array<String> arrayCopy(array);
              const CIMProperty propertyCopy(property);
              const CIMInstance instanceCopy(instance);
              const CIMObjectPath pathCopy(path);
            }),
            0);
}

TEST(Allocations, EmptyObjectsTakeNoBlocks) {
  EXPECT_EQ(blocksOf([] {
              const String text;
              const CIMName name;
              const CIMValue value;
              const Array<String> array;
              const CIMInstance instance;
              const CIMObjectPath path;
              const CIMPropertyList list;
              const OperationContext context;
            }),
            0);
}

TEST(Allocations, ReadingAnInstanceTakesNoBlocks) {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(CIMProperty(CIMName("Name"), String("x")));
  const CIMName name("name");
  EXPECT_EQ(blocksOf([&] {
              const CIMProperty property = instance.getProperty(instance.findProperty(name));
              String text;
              property.getValue().get(text);
              EXPECT_EQ(text.size(), 1U);
            }),
            0);
}

TEST(Allocations, AnInstanceOfThirtyPropertiesGivesEverythingBack) {
  const long blocks = blocksOf([] {
    CIMInstance instance(CIMName("VEXOR_A"));
    for (int i = 0; i < 30; ++i) {
      String name("Property");
      name.appendPrintf("%d", i);
      instance.addProperty(CIMProperty(CIMName(name), String("value")));
    }
    instance.setPath(CIMObjectPath(String("//h/root:VEXOR_A.Property0=\"value\"")));
  });
  EXPECT_LT(blocks, 30 * 8 + 40);
}

}  // namespace
