/* The zoning records as seen by a C compiler: providers written in C read them too. */
#include <assert.h>
#include <cim_utils/zoning_records.h>
#include <stddef.h>

static_assert(offsetof(struct zs_cim_zone_set_, instance_id) == 0, "zs_cim_zone_set_.instance_id");
static_assert(offsetof(struct zs_cim_zone_set_, name) == 288, "zs_cim_zone_set_.name");
static_assert(offsetof(struct zs_cim_zone_set_, vsan_id) == 356, "zs_cim_zone_set_.vsan_id");
static_assert(offsetof(struct zs_cim_zone_set_, active) == 360, "zs_cim_zone_set_.active");

static_assert(offsetof(struct zs_cim_zone_, instance_id) == 0, "zs_cim_zone_.instance_id");
static_assert(offsetof(struct zs_cim_zone_, name) == 288, "zs_cim_zone_.name");
static_assert(offsetof(struct zs_cim_zone_, vsan_id) == 356, "zs_cim_zone_.vsan_id");
static_assert(offsetof(struct zs_cim_zone_, zero_360) == 360, "zs_cim_zone_.zero_360");
static_assert(offsetof(struct zs_cim_zone_, zero_362) == 362, "zs_cim_zone_.zero_362");
static_assert(offsetof(struct zs_cim_zone_, read_only) == 364, "zs_cim_zone_.read_only");
static_assert(offsetof(struct zs_cim_zone_, active) == 365, "zs_cim_zone_.active");

static_assert(offsetof(struct zs_cim_alias_, instance_id) == 0, "zs_cim_alias_.instance_id");
static_assert(offsetof(struct zs_cim_alias_, name) == 288, "zs_cim_alias_.name");
static_assert(offsetof(struct zs_cim_alias_, vsan_id) == 356, "zs_cim_alias_.vsan_id");
static_assert(offsetof(struct zs_cim_alias_, unset_360) == 360, "zs_cim_alias_.unset_360");
static_assert(offsetof(struct zs_cim_alias_, active) == 364, "zs_cim_alias_.active");
static_assert(sizeof(struct zs_cim_alias_) == sizeof(struct zs_cim_zone_), "zs_cim_alias_");

static_assert(offsetof(struct zs_cim_zone_member_, instance_id) == 0,
              "zs_cim_zone_member_.instance_id");
static_assert(offsetof(struct zs_cim_zone_member_, member_type) == 288,
              "zs_cim_zone_member_.member_type");
static_assert(offsetof(struct zs_cim_zone_member_, member_id) == 290,
              "zs_cim_zone_member_.member_id");

static_assert(sizeof(enum zs_object_kind) == 4, "zs_object_kind");
static_assert(sizeof(enum zs_member_parent_kind) == 4, "zs_member_parent_kind");
static_assert(sizeof(enum zs_member_type) == 4, "zs_member_type");
static_assert(sizeof(enum zs_cim_member_type) == 4, "zs_cim_member_type");

/* The sizes of the four records. */
void zoning_record_sizes_in_c(size_t sizes[4]) {
  sizes[0] = sizeof(struct zs_cim_zone_set_);
  sizes[1] = sizeof(struct zs_cim_zone_);
  sizes[2] = sizeof(struct zs_cim_alias_);
  sizes[3] = sizeof(struct zs_cim_zone_member_);
}
