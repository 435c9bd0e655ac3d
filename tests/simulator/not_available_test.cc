// Client functions of services that have no model: each answers, and hands nothing out.
#include <switch_platform/name_server.h>
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

TEST_F(NotAvailable, ThePortManagerHandsNothingOut) {
  auto* port = reinterpret_cast<pm_port_info_*>(&count);
  EXPECT_EQ(kNo, pm_cmi_get_port_config(q, 1, 1, nullptr, &count, &port, 4));
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, port);
  EXPECT_EQ(kNo, pm_cmi_set_port_config(q, 0, 0, 1, nullptr, 3, 4, nullptr, &count, &block, 4));
  EXPECT_EQ(nullptr, block);
  EXPECT_EQ(kNo, pm_cmi_get_fcot_info(q, 1, 1, nullptr, &count, &block, 5, 4));
  EXPECT_EQ(kNo, pm_cmi_get_elp_info(q, 1, 1, nullptr, &count, &block, 4));
  auto* counters = reinterpret_cast<fcIfAllCounters_t*>(&count);
  EXPECT_EQ(kNo, pm_get_port_counters(q, 0x01010001, 1, 1, &counters));
  EXPECT_EQ(nullptr, counters);
  EXPECT_EQ(kNo, ipconf_get_intf_ip_address(q, 0x05000001, &block, 5));
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, 0x02010001));
  EXPECT_EQ(nullptr, ips_mgr_fcip_get_eth_if_for_fcip_if_blk(q, 0x0A000001));
}

TEST_F(NotAvailable, TheNameServerHandsNothingOut) {
  auto* message = reinterpret_cast<mts_msg_t*>(&count);
  EXPECT_EQ(kNo, ns_send_get_entry_given_portname(q, 0, 0, nullptr, &message));
  EXPECT_EQ(nullptr, message);
  EXPECT_EQ(kNo, ns_send_get_entries_given_nodename(q, 0, 0, nullptr, &message));
  EXPECT_EQ(kNo, ns_send_get_entries_given_fab_port_name(q, 0, 0, nullptr, &message));
  EXPECT_EQ(kNo, ns_send_get_entries_given_port_type(q, 1, nullptr, &message));
  EXPECT_EQ(kNo, ns_parse_get_entry_status(nullptr, &count, &block));
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, block);
  EXPECT_NE(0, ns_parse_get_entry(nullptr, nullptr, nullptr, 0));
  int32_t error = 77, expln = 77;
  EXPECT_NE(0x4025000A, ns_parse_get_ct_error(nullptr, &error, &expln));
  uint8_t duplicate = 77;
  EXPECT_EQ(kNo, ns_parse_is_entry_duplicate(nullptr, nullptr, 0, &duplicate));
  EXPECT_EQ(0, duplicate);
  const uint8_t wwn[8] = {};
  EXPECT_EQ(kNo, ns_get_fc4_devices(q, 1, 8, wwn, &message));
  EXPECT_EQ(0, ns_parse_get_num_fc4_devices(nullptr));
  EXPECT_EQ(kNo, ns_parse_get_fc4_device_entry(nullptr, nullptr, 0));
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
