// Records of the zoning classes' tests.
#pragma once

#include <cim_utils/zoning_records.h>

#include <cstring>

namespace records {

// Zone set 7 of VSAN 10's active database.
inline zs_cim_zone_set_ zone_set_7() {
  zs_cim_zone_set_ record{};
  std::strcpy(record.instance_id, "10_7_1");
  std::strcpy(record.name, "backup");
  record.vsan_id = 10;
  record.active = 1;
  return record;
}

// Zone 12 of VSAN 10's full database, read-only. The two words are zero in every record that is
// read; here they are not, to be told apart.
inline zs_cim_zone_ zone_12() {
  zs_cim_zone_ record{};
  std::strcpy(record.instance_id, "10_12_0");
  std::strcpy(record.name, "tape");
  record.vsan_id = 10;
  record.zero_360 = 3;
  record.zero_362 = 5;
  record.read_only = 1;
  record.active = 0;
  return record;
}

inline zs_cim_alias_ alias_4() {
  zs_cim_alias_ record{};
  std::strcpy(record.instance_id, "10_4_1");
  std::strcpy(record.name, "library");
  record.vsan_id = 10;
  std::memset(record.unset_360, 0xee, sizeof record.unset_360);
  record.active = 1;
  return record;
}

inline zs_cim_zone_member_ member_of_fcid() {
  zs_cim_zone_member_ record{};
  std::strcpy(record.instance_id, "10^3^00610203^0");
  record.member_type = 3;
  std::strcpy(record.member_id, "610203");
  return record;
}

}  // namespace records
