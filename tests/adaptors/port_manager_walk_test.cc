// Walks on platforms whose interface types do not come in an order that ends. The build sends the
// library's if_index_get_next_type here.
#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include "tests/adaptors/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/heap_ledger.h"

#include <switch_platform/if_index.h>

using namespace test_support;

extern "C" int32_t __real_if_index_get_next_type(uint8_t* type);

namespace {

// The type that always comes next; none: the platform's own order.
uint8_t type_for_ever = 0;
int types_asked = 0;

struct SameTypeForEver {
  explicit SameTypeForEver(uint8_t type) {
    type_for_ever = type;
    types_asked = 0;
  }
  SameTypeForEver(const SameTypeForEver&) = delete;
  SameTypeForEver& operator=(const SameTypeForEver&) = delete;
  ~SameTypeForEver() { type_for_ever = 0; }
};

}  // namespace

extern "C" int32_t __wrap_if_index_get_next_type(uint8_t* type) {
  if (type_for_ever == 0) return __real_if_index_get_next_type(type);
  ++types_asked;
  *type = type_for_ever;
  return 0;
}

namespace {

TEST(PortWalk, APlatformThatNeverRunsOutOfTypesIsStopped) {
  HeapLedger ledger;
  StdioCapture out;
  const SameTypeForEver unsupported(14);
  Script script;
  EXPECT_EQ(pm_cim_find_interface(0, 0, kQueue), nullptr);
  EXPECT_EQ(types_asked, 256);
  EXPECT_EQ(script.calls(), 0u);
}

TEST(PortWalk, APlatformThatNeverRunsOutOfTypesThatHaveNoInterfaceIsStopped) {
  HeapLedger ledger;
  StdioCapture out;
  const SameTypeForEver iscsi(11);
  Script script;
  for (int calls = 0; calls < 255; ++calls)
    script.expect(get_next_port(0x0b000000)).fails(5);
  EXPECT_EQ(pm_cim_find_interface(0, 0, kQueue), nullptr);
}

}  // namespace
