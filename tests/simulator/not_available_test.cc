// Client functions of services that have no model: each answers, and hands nothing out.
#include <switch_platform/platform_manager.h>
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

TEST_F(NotAvailable, ThePlatformManagerHandsNothingOut) {
  uint32_t number = 77;
  EXPECT_EQ(kNo, pfm_slot_num_to_entity_index(q, &number, 1));
  EXPECT_EQ(kNo, pfm_entity_index_to_slot_num(q, 1, &number));
  EXPECT_EQ(77U, number);
  char buffer[498] = {};
  EXPECT_EQ(kNo, pfm_get_sprom(q, 1, 0, 0, buffer, sizeof buffer));
  EXPECT_STREQ("", pdb_get_chassis_id_string());
}

}  // namespace
}  // namespace simulator_test
