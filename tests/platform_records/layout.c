/* The same layout as seen by a C compiler: providers written in C include these records too. */
#include <assert.h>
#include <stddef.h>

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_system.h>
#include <switch_platform/records_vsan.h>
#include <switch_platform/records_zone_server.h>
#include <switch_platform/types.h>

static_assert(sizeof(struct vsanNewEntry_t) == 2108, "vsanNewEntry_t");
static_assert(offsetof(struct vsanNewEntry_t, vsan_index) == 0, "vsanNewEntry_t.vsan_index");
static_assert(offsetof(struct vsanNewEntry_t, word_4) == 4, "vsanNewEntry_t.word_4");
static_assert(offsetof(struct vsanNewEntry_t, admin_state) == 8, "vsanNewEntry_t.admin_state");
static_assert(offsetof(struct vsanNewEntry_t, word_12) == 12, "vsanNewEntry_t.word_12");
static_assert(offsetof(struct vsanNewEntry_t, raw_16) == 16, "vsanNewEntry_t.raw_16");
static_assert(offsetof(struct vsanNewEntry_t, word_20) == 20, "vsanNewEntry_t.word_20");
static_assert(offsetof(struct vsanNewEntry_t, load_balancing_type) == 24,
              "vsanNewEntry_t.load_balancing_type");
static_assert(offsetof(struct vsanNewEntry_t, word_28) == 28, "vsanNewEntry_t.word_28");
static_assert(offsetof(struct vsanNewEntry_t, oper_state) == 32, "vsanNewEntry_t.oper_state");
static_assert(offsetof(struct vsanNewEntry_t, name) == 36, "vsanNewEntry_t.name");
static_assert(offsetof(struct vsanNewEntry_t, rest) == 164, "vsanNewEntry_t.rest");

static_assert(sizeof(struct vsan_message_) == 2632, "vsan_message_");
static_assert(offsetof(struct vsan_message_, header_word) == 0, "vsan_message_.header_word");
static_assert(offsetof(struct vsan_message_, header_rest) == 4, "vsan_message_.header_rest");
static_assert(offsetof(struct vsan_message_, entry) == 520, "vsan_message_.entry");
static_assert(offsetof(struct vsan_message_, trailer) == 2628, "vsan_message_.trailer");

static_assert(sizeof(struct zs_context_) == 132, "zs_context_");

static_assert(sizeof(struct zs_zone_set_entry_) == 1344, "zs_zone_set_entry_");
static_assert(offsetof(struct zs_zone_set_entry_, vsan_id) == 0, "zs_zone_set_entry_.vsan_id");
static_assert(offsetof(struct zs_zone_set_entry_, object_id) == 4, "zs_zone_set_entry_.object_id");
static_assert(offsetof(struct zs_zone_set_entry_, raw_8) == 8, "zs_zone_set_entry_.raw_8");
static_assert(offsetof(struct zs_zone_set_entry_, name) == 16, "zs_zone_set_entry_.name");
static_assert(offsetof(struct zs_zone_set_entry_, zones) == 84, "zs_zone_set_entry_.zones");

static_assert(sizeof(struct zs_zone_entry_) == 872, "zs_zone_entry_");
static_assert(offsetof(struct zs_zone_entry_, vsan_id) == 0, "zs_zone_entry_.vsan_id");
static_assert(offsetof(struct zs_zone_entry_, object_id) == 4, "zs_zone_entry_.object_id");
static_assert(offsetof(struct zs_zone_entry_, raw_8) == 8, "zs_zone_entry_.raw_8");
static_assert(offsetof(struct zs_zone_entry_, name) == 16, "zs_zone_entry_.name");
static_assert(offsetof(struct zs_zone_entry_, members) == 84, "zs_zone_entry_.members");
static_assert(offsetof(struct zs_zone_entry_, aliases) == 344, "zs_zone_entry_.aliases");
static_assert(offsetof(struct zs_zone_entry_, attributes) == 604, "zs_zone_entry_.attributes");
static_assert(offsetof(struct zs_zone_entry_, rest) == 608, "zs_zone_entry_.rest");

static_assert(sizeof(struct zs_alias_entry_) == 344, "zs_alias_entry_");
static_assert(offsetof(struct zs_alias_entry_, vsan_id) == 0, "zs_alias_entry_.vsan_id");
static_assert(offsetof(struct zs_alias_entry_, object_id) == 4, "zs_alias_entry_.object_id");
static_assert(offsetof(struct zs_alias_entry_, raw_8) == 8, "zs_alias_entry_.raw_8");
static_assert(offsetof(struct zs_alias_entry_, name) == 16, "zs_alias_entry_.name");
static_assert(offsetof(struct zs_alias_entry_, members) == 84, "zs_alias_entry_.members");

static_assert(sizeof(struct zs_member_entry_) == 24, "zs_member_entry_");
static_assert(offsetof(struct zs_member_entry_, raw_0) == 0, "zs_member_entry_.raw_0");
static_assert(offsetof(struct zs_member_entry_, type) == 20, "zs_member_entry_.type");
static_assert(offsetof(struct zs_member_entry_, raw_21) == 21, "zs_member_entry_.raw_21");

static_assert(sizeof(struct zs_member_change_) == 4, "zs_member_change_");
static_assert(offsetof(struct zs_member_change_, type) == 0, "zs_member_change_.type");
static_assert(offsetof(struct zs_member_change_, zero_1) == 1, "zs_member_change_.zero_1");
static_assert(offsetof(struct zs_member_change_, length_code) == 2,
              "zs_member_change_.length_code");
static_assert(offsetof(struct zs_member_change_, zero_3) == 3, "zs_member_change_.zero_3");

static_assert(sizeof(struct mts_dm_sw_conf_) == 1152, "mts_dm_sw_conf_");
static_assert(offsetof(struct mts_dm_sw_conf_, vsan_index) == 0, "mts_dm_sw_conf_.vsan_index");
static_assert(offsetof(struct mts_dm_sw_conf_, request_kind) == 4, "mts_dm_sw_conf_.request_kind");
static_assert(offsetof(struct mts_dm_sw_conf_, word_8) == 8, "mts_dm_sw_conf_.word_8");
static_assert(offsetof(struct mts_dm_sw_conf_, domain_id) == 21, "mts_dm_sw_conf_.domain_id");
static_assert(offsetof(struct mts_dm_sw_conf_, vsan_wwn) == 22, "mts_dm_sw_conf_.vsan_wwn");
static_assert(offsetof(struct mts_dm_sw_conf_, words_32) == 32, "mts_dm_sw_conf_.words_32");
static_assert(offsetof(struct mts_dm_sw_conf_, word_52) == 52, "mts_dm_sw_conf_.word_52");
static_assert(offsetof(struct mts_dm_sw_conf_, words_312) == 312, "mts_dm_sw_conf_.words_312");
static_assert(offsetof(struct mts_dm_sw_conf_, config_domain) == 332,
              "mts_dm_sw_conf_.config_domain");
static_assert(offsetof(struct mts_dm_sw_conf_, config_type) == 333, "mts_dm_sw_conf_.config_type");
static_assert(offsetof(struct mts_dm_sw_conf_, enabled) == 334, "mts_dm_sw_conf_.enabled");
static_assert(offsetof(struct mts_dm_sw_conf_, config_priority) == 337,
              "mts_dm_sw_conf_.config_priority");
static_assert(offsetof(struct mts_dm_sw_conf_, alternate_wwn) == 340,
              "mts_dm_sw_conf_.alternate_wwn");
static_assert(offsetof(struct mts_dm_sw_conf_, change_mask) == 348, "mts_dm_sw_conf_.change_mask");
static_assert(offsetof(struct mts_dm_sw_conf_, rest) == 352, "mts_dm_sw_conf_.rest");

static_assert(sizeof(struct mts_dm_sw_dom_list_info_) == 19, "mts_dm_sw_dom_list_info_");
static_assert(offsetof(struct mts_dm_sw_dom_list_info_, vsan_index) == 0,
              "mts_dm_sw_dom_list_info_.vsan_index");
static_assert(offsetof(struct mts_dm_sw_dom_list_info_, request_kind) == 4,
              "mts_dm_sw_dom_list_info_.request_kind");
static_assert(offsetof(struct mts_dm_sw_dom_list_info_, domain_id) == 5,
              "mts_dm_sw_dom_list_info_.domain_id");
static_assert(offsetof(struct mts_dm_sw_dom_list_info_, switch_wwn) == 6,
              "mts_dm_sw_dom_list_info_.switch_wwn");
static_assert(offsetof(struct mts_dm_sw_dom_list_info_, raw_14) == 14,
              "mts_dm_sw_dom_list_info_.raw_14");

static_assert(sizeof(struct system_information_) == 1032, "system_information_");
static_assert(offsetof(struct system_information_, selector) == 0, "system_information_.selector");
static_assert(offsetof(struct system_information_, answer) == 4, "system_information_.answer");
static_assert(offsetof(struct system_information_, count) == 1028, "system_information_.count");

static_assert(sizeof(struct system_name_request_) == 260, "system_name_request_");
static_assert(offsetof(struct system_name_request_, name) == 0, "system_name_request_.name");
static_assert(offsetof(struct system_name_request_, zero) == 256, "system_name_request_.zero");

static_assert(sizeof(struct wwn_) == 8, "wwn_");
static_assert(offsetof(struct wwn_, bytes) == 0, "wwn_.bytes");

static_assert(sizeof(struct cim_mts_bind_opts) == 20, "cim_mts_bind_opts");
static_assert(offsetof(struct cim_mts_bind_opts, mode) == 0, "cim_mts_bind_opts.mode");
static_assert(offsetof(struct cim_mts_bind_opts, flags) == 4, "cim_mts_bind_opts.flags");
static_assert(offsetof(struct cim_mts_bind_opts, limit) == 8, "cim_mts_bind_opts.limit");
static_assert(offsetof(struct cim_mts_bind_opts, reserved_12) == 12,
              "cim_mts_bind_opts.reserved_12");
static_assert(offsetof(struct cim_mts_bind_opts, reserved_16) == 16,
              "cim_mts_bind_opts.reserved_16");

static_assert(sizeof(struct cim_mts_recv_opts) == 24, "cim_mts_recv_opts");
static_assert(offsetof(struct cim_mts_recv_opts, word_0) == 0, "cim_mts_recv_opts.word_0");
static_assert(offsetof(struct cim_mts_recv_opts, word_1) == 4, "cim_mts_recv_opts.word_1");
static_assert(offsetof(struct cim_mts_recv_opts, timeout_seconds) == 8,
              "cim_mts_recv_opts.timeout_seconds");
static_assert(offsetof(struct cim_mts_recv_opts, token) == 12, "cim_mts_recv_opts.token");
static_assert(offsetof(struct cim_mts_recv_opts, word_4) == 16, "cim_mts_recv_opts.word_4");
static_assert(offsetof(struct cim_mts_recv_opts, word_5) == 20, "cim_mts_recv_opts.word_5");

int platform_records_are_laid_out_in_c(void) {
  return 1;
}
