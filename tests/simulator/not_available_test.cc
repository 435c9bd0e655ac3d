// Client functions of services that have no model: each answers, and hands nothing out.
#include <switch_platform/port_manager.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

constexpr int32_t kNo = kServiceNotAvailable;

class NotAvailable : public SimulatorTest {
 protected:
  int32_t count = 77;
  void* block = &count;
};

TEST_F(NotAvailable, ExchangeLinkParametersAreNotHandedOut) {
  EXPECT_EQ(kNo, pm_cmi_get_elp_info(q, 1, 1, nullptr, &count, &block, 4));
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, block);
}

}  // namespace
}  // namespace simulator_test
