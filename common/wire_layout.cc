// The sizes and offsets of the records that cross the message transport. A field that moves does
// not compile.
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_system.h>
#include <switch_platform/records_vsan.h>
#include <switch_platform/records_zone_server.h>
#include <switch_platform/types.h>

#include <cstddef>

static_assert(sizeof(vsanNewEntry_t) == 2108);
static_assert(offsetof(vsanNewEntry_t, vsan_index) == 0);
static_assert(offsetof(vsanNewEntry_t, word_4) == 4);
static_assert(offsetof(vsanNewEntry_t, admin_state) == 8);
static_assert(offsetof(vsanNewEntry_t, word_12) == 12);
static_assert(offsetof(vsanNewEntry_t, raw_16) == 16);
static_assert(offsetof(vsanNewEntry_t, word_20) == 20);
static_assert(offsetof(vsanNewEntry_t, load_balancing_type) == 24);
static_assert(offsetof(vsanNewEntry_t, word_28) == 28);
static_assert(offsetof(vsanNewEntry_t, oper_state) == 32);
static_assert(offsetof(vsanNewEntry_t, name) == 36);
static_assert(offsetof(vsanNewEntry_t, rest) == 164);

static_assert(sizeof(vsan_message_) == 2632);
static_assert(offsetof(vsan_message_, header_word) == 0);
static_assert(offsetof(vsan_message_, header_rest) == 4);
static_assert(offsetof(vsan_message_, entry) == 520);
static_assert(offsetof(vsan_message_, trailer) == 2628);

static_assert(sizeof(zs_context_) == 132);

static_assert(sizeof(zs_zone_set_entry_) == 1344);
static_assert(offsetof(zs_zone_set_entry_, vsan_id) == 0);
static_assert(offsetof(zs_zone_set_entry_, object_id) == 4);
static_assert(offsetof(zs_zone_set_entry_, raw_8) == 8);
static_assert(offsetof(zs_zone_set_entry_, name) == 16);
static_assert(offsetof(zs_zone_set_entry_, zones) == 84);

static_assert(sizeof(zs_zone_entry_) == 872);
static_assert(offsetof(zs_zone_entry_, vsan_id) == 0);
static_assert(offsetof(zs_zone_entry_, object_id) == 4);
static_assert(offsetof(zs_zone_entry_, raw_8) == 8);
static_assert(offsetof(zs_zone_entry_, name) == 16);
static_assert(offsetof(zs_zone_entry_, members) == 84);
static_assert(offsetof(zs_zone_entry_, aliases) == 344);
static_assert(offsetof(zs_zone_entry_, attributes) == 604);
static_assert(offsetof(zs_zone_entry_, rest) == 608);

static_assert(sizeof(zs_alias_entry_) == 344);
static_assert(offsetof(zs_alias_entry_, vsan_id) == 0);
static_assert(offsetof(zs_alias_entry_, object_id) == 4);
static_assert(offsetof(zs_alias_entry_, raw_8) == 8);
static_assert(offsetof(zs_alias_entry_, name) == 16);
static_assert(offsetof(zs_alias_entry_, members) == 84);

static_assert(sizeof(zs_member_entry_) == 24);
static_assert(offsetof(zs_member_entry_, raw_0) == 0);
static_assert(offsetof(zs_member_entry_, type) == 20);
static_assert(offsetof(zs_member_entry_, raw_21) == 21);

static_assert(sizeof(zs_member_change_) == 4);
static_assert(offsetof(zs_member_change_, type) == 0);
static_assert(offsetof(zs_member_change_, zero_1) == 1);
static_assert(offsetof(zs_member_change_, length_code) == 2);
static_assert(offsetof(zs_member_change_, zero_3) == 3);

static_assert(sizeof(mts_dm_sw_conf_) == 1152);
static_assert(offsetof(mts_dm_sw_conf_, vsan_index) == 0);
static_assert(offsetof(mts_dm_sw_conf_, request_kind) == 4);
static_assert(offsetof(mts_dm_sw_conf_, word_8) == 8);
static_assert(offsetof(mts_dm_sw_conf_, domain_id) == 21);
static_assert(offsetof(mts_dm_sw_conf_, vsan_wwn) == 22);
static_assert(offsetof(mts_dm_sw_conf_, words_32) == 32);
static_assert(offsetof(mts_dm_sw_conf_, word_52) == 52);
static_assert(offsetof(mts_dm_sw_conf_, words_312) == 312);
static_assert(offsetof(mts_dm_sw_conf_, config_domain) == 332);
static_assert(offsetof(mts_dm_sw_conf_, config_type) == 333);
static_assert(offsetof(mts_dm_sw_conf_, enabled) == 334);
static_assert(offsetof(mts_dm_sw_conf_, config_priority) == 337);
static_assert(offsetof(mts_dm_sw_conf_, alternate_wwn) == 340);
static_assert(offsetof(mts_dm_sw_conf_, change_mask) == 348);
static_assert(offsetof(mts_dm_sw_conf_, rest) == 352);

static_assert(sizeof(mts_dm_sw_dom_list_info_) == 19);
static_assert(offsetof(mts_dm_sw_dom_list_info_, vsan_index) == 0);
static_assert(offsetof(mts_dm_sw_dom_list_info_, request_kind) == 4);
static_assert(offsetof(mts_dm_sw_dom_list_info_, domain_id) == 5);
static_assert(offsetof(mts_dm_sw_dom_list_info_, switch_wwn) == 6);
static_assert(offsetof(mts_dm_sw_dom_list_info_, raw_14) == 14);

static_assert(sizeof(system_information_) == 1032);
static_assert(offsetof(system_information_, selector) == 0);
static_assert(offsetof(system_information_, answer) == 4);
static_assert(offsetof(system_information_, count) == 1028);

static_assert(sizeof(system_name_request_) == 260);
static_assert(offsetof(system_name_request_, name) == 0);
static_assert(offsetof(system_name_request_, zero) == 256);

static_assert(sizeof(wwn_) == 8);
static_assert(offsetof(wwn_, bytes) == 0);

static_assert(sizeof(cim_mts_bind_opts) == 20);
static_assert(offsetof(cim_mts_bind_opts, mode) == 0);
static_assert(offsetof(cim_mts_bind_opts, flags) == 4);
static_assert(offsetof(cim_mts_bind_opts, limit) == 8);
static_assert(offsetof(cim_mts_bind_opts, reserved_12) == 12);
static_assert(offsetof(cim_mts_bind_opts, reserved_16) == 16);

static_assert(sizeof(cim_mts_recv_opts) == 24);
static_assert(offsetof(cim_mts_recv_opts, word_0) == 0);
static_assert(offsetof(cim_mts_recv_opts, word_1) == 4);
static_assert(offsetof(cim_mts_recv_opts, timeout_seconds) == 8);
static_assert(offsetof(cim_mts_recv_opts, token) == 12);
static_assert(offsetof(cim_mts_recv_opts, word_4) == 16);
static_assert(offsetof(cim_mts_recv_opts, word_5) == 20);
