// Client functions of services that have no model: each answers, and hands nothing out.
#include <switch_platform/platform_manager.h>
#include <switch_platform/port_manager.h>
#include <switch_platform/zone_server.h>

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

TEST_F(NotAvailable, TheZoneServerReadsNothing) {
  uint8_t context[132] = {};
  EXPECT_EQ(kNo, zs_cmi_get_zone_set(q, 1, 1, context, 0, 0, 1, &count, &block));
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, block);
  EXPECT_EQ(kNo, zs_cmi_get_zone(q, 1, 1, context, 0, 0, 1, &count, &block));
  EXPECT_EQ(kNo, zs_cmi_get_alias(q, 1, 1, context, 0, 0, 1, &count, &block));
  EXPECT_EQ(kNo, zs_cmi_get_all_zone_sets_in_vsan(q, 1, context, 0, 0, &count, &block));
  EXPECT_EQ(kNo, zs_cmi_get_all_zones_in_vsan(q, 1, context, 0, 0, &count, &block));
  EXPECT_EQ(kNo, zs_cmi_get_all_aliases_in_vsan(q, 1, context, 0, 0, &count, &block));
  EXPECT_EQ(kNo, zs_cmi_get_member(q, 1, 1, context, 0, 0, 1, 1, 1, &count, &block, 0));
  uint8_t type = 0;
  const void* value = &count;
  const void* lun = &count;
  EXPECT_EQ(kNo, zs_api_parse_member(context, &type, &count, &value, &lun));
  EXPECT_EQ(nullptr, value);
  EXPECT_EQ(nullptr, lun);
  uint32_t id = 77;
  EXPECT_EQ(kNo, zs_cmi_get_id_for_name(q, 1, context, 0, 0, 1, "z", &id));
  EXPECT_EQ(77U, id);
  char name[256] = "kept";
  EXPECT_EQ(kNo, zs_cmi_get_name_for_id(q, 1, context, 0, 0, 1, 1, name));
  EXPECT_STREQ("kept", name);
  EXPECT_EQ(kNo, zs_cmi_get_all_policies(q, 1, 1, context, 0, &block));
  EXPECT_EQ(nullptr, block);
  EXPECT_EQ(0U, zs_cmi_get_policy(nullptr, 0, 0, 0));
}

TEST_F(NotAvailable, TheZoneServerRefusesEveryChange) {
  uint8_t context[132] = {};
  EXPECT_EQ(kNo, zs_cmi_create_zoning_object(q, 1, 1, 1, -1, "z", "", "", context));
  EXPECT_EQ(kNo, zs_cmi_add_zone_to_zone_set(q, 1, 1, "s", "z", "", "", context));
  EXPECT_EQ(kNo, zs_cmi_add_alias_to_zone(q, 1, 1, "z", "a", "", "", context));
  EXPECT_EQ(kNo, zs_cmi_add_zone_member(q, 1, 1, "z", -1, context, "", "", context));
  EXPECT_EQ(kNo, zs_cmi_add_alias_member(q, 1, 1, "a", -1, context, "", "", context));
  EXPECT_EQ(kNo, zs_cmi_activate_zone_set(q, 1, 1, "s", "", "", context));
  EXPECT_EQ(kNo, zs_cmi_zoneset_distribute(q, 1, "", "", context));
}

}  // namespace
}  // namespace simulator_test
