// Records of the switch classes' tests.
#pragma once

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#include <cstring>

namespace records {

// VSAN 10, active and up, balancing over exchanges.
inline vsanNewEntry_t vsan_10() {
  vsanNewEntry_t vsan{};
  vsan.vsan_index = 10;
  vsan.admin_state = 1;
  vsan.load_balancing_type = 2;
  vsan.oper_state = 1;
  std::strcpy(vsan.name, "VSAN0010");
  return vsan;
}

inline mts_dm_sw_conf_ configuration_10() {
  mts_dm_sw_conf_ conf{};
  conf.vsan_index = 10;
  conf.enabled = 1;
  conf.vsan_wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
  return conf;
}

}  // namespace records
