/* The same layout as seen by a C compiler: providers written in C include these records too. */
#include <assert.h>
#include <stddef.h>

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_platform_manager.h>
#include <switch_platform/records_port_manager.h>
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

static_assert(sizeof(struct pm_if_key_) == 8, "pm_if_key_");
static_assert(offsetof(struct pm_if_key_, first) == 0, "pm_if_key_.first");
static_assert(offsetof(struct pm_if_key_, last) == 4, "pm_if_key_.last");

static_assert(sizeof(struct pm_port_info_) == 204, "pm_port_info_");
static_assert(offsetof(struct pm_port_info_, if_index) == 0, "pm_port_info_.if_index");
static_assert(offsetof(struct pm_port_info_, status) == 4, "pm_port_info_.status");
static_assert(offsetof(struct pm_port_info_, name) == 8, "pm_port_info_.name");
static_assert(offsetof(struct pm_port_info_, admin_mode) == 89, "pm_port_info_.admin_mode");
static_assert(offsetof(struct pm_port_info_, admin_speed) == 94, "pm_port_info_.admin_speed");
static_assert(offsetof(struct pm_port_info_, admin_state) == 98, "pm_port_info_.admin_state");
static_assert(offsetof(struct pm_port_info_, mtu) == 102, "pm_port_info_.mtu");
static_assert(offsetof(struct pm_port_info_, vsan) == 104, "pm_port_info_.vsan");
static_assert(offsetof(struct pm_port_info_, wwn) == 127, "pm_port_info_.wwn");
static_assert(offsetof(struct pm_port_info_, address) == 135, "pm_port_info_.address");
static_assert(offsetof(struct pm_port_info_, oper_mode) == 143, "pm_port_info_.oper_mode");
static_assert(offsetof(struct pm_port_info_, oper_speed) == 147, "pm_port_info_.oper_speed");
static_assert(offsetof(struct pm_port_info_, oper_state) == 151, "pm_port_info_.oper_state");
static_assert(offsetof(struct pm_port_info_, phy_enable_state) == 154,
              "pm_port_info_.phy_enable_state");
static_assert(offsetof(struct pm_port_info_, fcot_present) == 201, "pm_port_info_.fcot_present");

static_assert(sizeof(struct fcIfAllCounters_t) == 600, "fcIfAllCounters_t");
static_assert(offsetof(struct fcIfAllCounters_t, if_index) == 0, "fcIfAllCounters_t.if_index");
static_assert(offsetof(struct fcIfAllCounters_t, class2_frames_received) == 8,
              "fcIfAllCounters_t.class2_frames_received");
static_assert(offsetof(struct fcIfAllCounters_t, class2_frames_transmitted) == 16,
              "fcIfAllCounters_t.class2_frames_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, class2_bytes_received) == 24,
              "fcIfAllCounters_t.class2_bytes_received");
static_assert(offsetof(struct fcIfAllCounters_t, class2_bytes_transmitted) == 32,
              "fcIfAllCounters_t.class2_bytes_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, class2_fabric_busy) == 48,
              "fcIfAllCounters_t.class2_fabric_busy");
static_assert(offsetof(struct fcIfAllCounters_t, class2_fabric_reject) == 56,
              "fcIfAllCounters_t.class2_fabric_reject");
static_assert(offsetof(struct fcIfAllCounters_t, class2_port_busy) == 64,
              "fcIfAllCounters_t.class2_port_busy");
static_assert(offsetof(struct fcIfAllCounters_t, class2_port_reject) == 72,
              "fcIfAllCounters_t.class2_port_reject");
static_assert(offsetof(struct fcIfAllCounters_t, class3_frames_received) == 80,
              "fcIfAllCounters_t.class3_frames_received");
static_assert(offsetof(struct fcIfAllCounters_t, class3_frames_transmitted) == 88,
              "fcIfAllCounters_t.class3_frames_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, class3_bytes_received) == 96,
              "fcIfAllCounters_t.class3_bytes_received");
static_assert(offsetof(struct fcIfAllCounters_t, class3_bytes_transmitted) == 104,
              "fcIfAllCounters_t.class3_bytes_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, class3_frames_discarded) == 112,
              "fcIfAllCounters_t.class3_frames_discarded");
static_assert(offsetof(struct fcIfAllCounters_t, link_failures) == 160,
              "fcIfAllCounters_t.link_failures");
static_assert(offsetof(struct fcIfAllCounters_t, loss_of_sync) == 168,
              "fcIfAllCounters_t.loss_of_sync");
static_assert(offsetof(struct fcIfAllCounters_t, loss_of_signal) == 176,
              "fcIfAllCounters_t.loss_of_signal");
static_assert(offsetof(struct fcIfAllCounters_t, primitive_sequence_errors) == 184,
              "fcIfAllCounters_t.primitive_sequence_errors");
static_assert(offsetof(struct fcIfAllCounters_t, invalid_transmission_words) == 192,
              "fcIfAllCounters_t.invalid_transmission_words");
static_assert(offsetof(struct fcIfAllCounters_t, crc_errors) == 200,
              "fcIfAllCounters_t.crc_errors");
static_assert(offsetof(struct fcIfAllCounters_t, delimiter_errors) == 208,
              "fcIfAllCounters_t.delimiter_errors");
static_assert(offsetof(struct fcIfAllCounters_t, address_errors) == 216,
              "fcIfAllCounters_t.address_errors");
static_assert(offsetof(struct fcIfAllCounters_t, link_resets_received) == 224,
              "fcIfAllCounters_t.link_resets_received");
static_assert(offsetof(struct fcIfAllCounters_t, link_resets_transmitted) == 232,
              "fcIfAllCounters_t.link_resets_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, frames_too_long) == 280,
              "fcIfAllCounters_t.frames_too_long");
static_assert(offsetof(struct fcIfAllCounters_t, frames_too_short) == 288,
              "fcIfAllCounters_t.frames_too_short");
static_assert(offsetof(struct fcIfAllCounters_t, nos_count) == 312, "fcIfAllCounters_t.nos_count");
static_assert(offsetof(struct fcIfAllCounters_t, encoding_disparity_errors) == 352,
              "fcIfAllCounters_t.encoding_disparity_errors");
static_assert(offsetof(struct fcIfAllCounters_t, dumped_frames) == 360,
              "fcIfAllCounters_t.dumped_frames");
static_assert(offsetof(struct fcIfAllCounters_t, buffer_credit_not_received) == 376,
              "fcIfAllCounters_t.buffer_credit_not_received");
static_assert(offsetof(struct fcIfAllCounters_t, buffer_credit_not_provided) == 384,
              "fcIfAllCounters_t.buffer_credit_not_provided");
static_assert(offsetof(struct fcIfAllCounters_t, error_frames) == 400,
              "fcIfAllCounters_t.error_frames");
static_assert(offsetof(struct fcIfAllCounters_t, multicast_frames_received) == 408,
              "fcIfAllCounters_t.multicast_frames_received");
static_assert(offsetof(struct fcIfAllCounters_t, multicast_frames_transmitted) == 424,
              "fcIfAllCounters_t.multicast_frames_transmitted");
static_assert(offsetof(struct fcIfAllCounters_t, lip_count) == 592, "fcIfAllCounters_t.lip_count");

static_assert(sizeof(struct pm_port_channel_entry_) == 268, "pm_port_channel_entry_");
static_assert(offsetof(struct pm_port_channel_entry_, channel) == 0,
              "pm_port_channel_entry_.channel");
static_assert(offsetof(struct pm_port_channel_entry_, if_index) == 4,
              "pm_port_channel_entry_.if_index");
static_assert(offsetof(struct pm_port_channel_entry_, attributes_8) == 8,
              "pm_port_channel_entry_.attributes_8");
static_assert(offsetof(struct pm_port_channel_entry_, attributes_24) == 24,
              "pm_port_channel_entry_.attributes_24");
static_assert(offsetof(struct pm_port_channel_entry_, members) == 104,
              "pm_port_channel_entry_.members");
static_assert(offsetof(struct pm_port_channel_entry_, member_list_length) == 168,
              "pm_port_channel_entry_.member_list_length");
static_assert(offsetof(struct pm_port_channel_entry_, attribute_172) == 172,
              "pm_port_channel_entry_.attribute_172");
static_assert(offsetof(struct pm_port_channel_entry_, attribute_176) == 176,
              "pm_port_channel_entry_.attribute_176");
static_assert(offsetof(struct pm_port_channel_entry_, attribute_184) == 184,
              "pm_port_channel_entry_.attribute_184");
static_assert(offsetof(struct pm_port_channel_entry_, if_index_188) == 188,
              "pm_port_channel_entry_.if_index_188");
static_assert(offsetof(struct pm_port_channel_entry_, attributes_256) == 256,
              "pm_port_channel_entry_.attributes_256");

static_assert(sizeof(struct system_information_) == 1032, "system_information_");
static_assert(offsetof(struct system_information_, selector) == 0, "system_information_.selector");
static_assert(offsetof(struct system_information_, answer) == 4, "system_information_.answer");
static_assert(offsetof(struct system_information_, count) == 1028, "system_information_.count");

static_assert(sizeof(struct system_name_request_) == 260, "system_name_request_");
static_assert(offsetof(struct system_name_request_, name) == 0, "system_name_request_.name");
static_assert(offsetof(struct system_name_request_, zero) == 256, "system_name_request_.zero");

static_assert(sizeof(struct fspfLinkEntry) == 36, "fspfLinkEntry");
static_assert(offsetof(struct fspfLinkEntry, word_0) == 0, "fspfLinkEntry.word_0");
static_assert(offsetof(struct fspfLinkEntry, domain) == 4, "fspfLinkEntry.domain");
static_assert(offsetof(struct fspfLinkEntry, word_2) == 8, "fspfLinkEntry.word_2");
static_assert(offsetof(struct fspfLinkEntry, word_3) == 12, "fspfLinkEntry.word_3");
static_assert(offsetof(struct fspfLinkEntry, remote_domain) == 16, "fspfLinkEntry.remote_domain");
static_assert(offsetof(struct fspfLinkEntry, if_index) == 20, "fspfLinkEntry.if_index");
static_assert(offsetof(struct fspfLinkEntry, remote_if_index) == 24,
              "fspfLinkEntry.remote_if_index");
static_assert(offsetof(struct fspfLinkEntry, word_7) == 28, "fspfLinkEntry.word_7");
static_assert(offsetof(struct fspfLinkEntry, word_8) == 32, "fspfLinkEntry.word_8");

static_assert(sizeof(struct fspf_lsr_) == 36, "fspf_lsr_");
static_assert(offsetof(struct fspf_lsr_, words_0) == 0, "fspf_lsr_.words_0");
static_assert(offsetof(struct fspf_lsr_, link_count) == 28, "fspf_lsr_.link_count");
static_assert(offsetof(struct fspf_lsr_, word_8) == 32, "fspf_lsr_.word_8");

static_assert(sizeof(struct fspf_lsr_request_) == 36, "fspf_lsr_request_");
static_assert(offsetof(struct fspf_lsr_request_, vsan_index) == 0, "fspf_lsr_request_.vsan_index");
static_assert(offsetof(struct fspf_lsr_request_, domain) == 4, "fspf_lsr_request_.domain");
static_assert(offsetof(struct fspf_lsr_request_, one) == 8, "fspf_lsr_request_.one");
static_assert(offsetof(struct fspf_lsr_request_, zeros) == 12, "fspf_lsr_request_.zeros");

static_assert(sizeof(struct ns_query_) == 16, "ns_query_");
static_assert(offsetof(struct ns_query_, vsan_index) == 0, "ns_query_.vsan_index");
static_assert(offsetof(struct ns_query_, attributes) == 4, "ns_query_.attributes");
static_assert(offsetof(struct ns_query_, zeros_6) == 6, "ns_query_.zeros_6");
static_assert(offsetof(struct ns_query_, zeros_8) == 8, "ns_query_.zeros_8");

static_assert(sizeof(struct ns_api_register_req_) == 768, "ns_api_register_req_");
static_assert(offsetof(struct ns_api_register_req_, vsan_index) == 4,
              "ns_api_register_req_.vsan_index");
static_assert(offsetof(struct ns_api_register_req_, fcid) == 8, "ns_api_register_req_.fcid");
static_assert(offsetof(struct ns_api_register_req_, port_wwn) == 12,
              "ns_api_register_req_.port_wwn");
static_assert(offsetof(struct ns_api_register_req_, fc4_types) == 36,
              "ns_api_register_req_.fc4_types");
static_assert(offsetof(struct ns_api_register_req_, port_type) == 196,
              "ns_api_register_req_.port_type");
static_assert(offsetof(struct ns_api_register_req_, node_wwn) == 200,
              "ns_api_register_req_.node_wwn");
static_assert(offsetof(struct ns_api_register_req_, node_ip_address) == 208,
              "ns_api_register_req_.node_ip_address");
static_assert(offsetof(struct ns_api_register_req_, fabric_port_wwn) == 236,
              "ns_api_register_req_.fabric_port_wwn");
static_assert(offsetof(struct ns_api_register_req_, rest) == 244, "ns_api_register_req_.rest");

static_assert(sizeof(struct ns_fc4_device_) == 24, "ns_fc4_device_");
static_assert(offsetof(struct ns_fc4_device_, fcid) == 0, "ns_fc4_device_.fcid");
static_assert(offsetof(struct ns_fc4_device_, rest) == 4, "ns_fc4_device_.rest");

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

static_assert(sizeof(struct _vefcModuleEntry) == 316, "_vefcModuleEntry");
static_assert(offsetof(struct _vefcModuleEntry, entity_index) == 0,
              "_vefcModuleEntry.entity_index");
static_assert(offsetof(struct _vefcModuleEntry, admin_status) == 4,
              "_vefcModuleEntry.admin_status");
static_assert(offsetof(struct _vefcModuleEntry, oper_status) == 8, "_vefcModuleEntry.oper_status");
static_assert(offsetof(struct _vefcModuleEntry, words_12) == 12, "_vefcModuleEntry.words_12");
static_assert(offsetof(struct _vefcModuleEntry, raw_32) == 32, "_vefcModuleEntry.raw_32");
static_assert(offsetof(struct _vefcModuleEntry, num_ports) == 288, "_vefcModuleEntry.num_ports");
static_assert(offsetof(struct _vefcModuleEntry, word_292) == 292, "_vefcModuleEntry.word_292");
static_assert(offsetof(struct _vefcModuleEntry, raw_296) == 296, "_vefcModuleEntry.raw_296");
static_assert(offsetof(struct _vefcModuleEntry, module_state) == 297,
              "_vefcModuleEntry.module_state");
static_assert(offsetof(struct _vefcModuleEntry, module_type) == 298,
              "_vefcModuleEntry.module_type");
static_assert(offsetof(struct _vefcModuleEntry, raw_299) == 299, "_vefcModuleEntry.raw_299");
static_assert(offsetof(struct _vefcModuleEntry, module_number) == 304,
              "_vefcModuleEntry.module_number");
static_assert(offsetof(struct _vefcModuleEntry, word_308) == 308, "_vefcModuleEntry.word_308");
static_assert(offsetof(struct _vefcModuleEntry, raw_312) == 312, "_vefcModuleEntry.raw_312");

static_assert(sizeof(struct _entPhysicalEntry) == 2780, "_entPhysicalEntry");
static_assert(offsetof(struct _entPhysicalEntry, entity_index) == 0,
              "_entPhysicalEntry.entity_index");
static_assert(offsetof(struct _entPhysicalEntry, description) == 4,
              "_entPhysicalEntry.description");
static_assert(offsetof(struct _entPhysicalEntry, vendor_type) == 260,
              "_entPhysicalEntry.vendor_type");
static_assert(offsetof(struct _entPhysicalEntry, attributes) == 772,
              "_entPhysicalEntry.attributes");
static_assert(offsetof(struct _entPhysicalEntry, name) == 788, "_entPhysicalEntry.name");
static_assert(offsetof(struct _entPhysicalEntry, software_rev) == 1553,
              "_entPhysicalEntry.software_rev");
static_assert(offsetof(struct _entPhysicalEntry, serial_num) == 1808,
              "_entPhysicalEntry.serial_num");
static_assert(offsetof(struct _entPhysicalEntry, model_name) == 2096,
              "_entPhysicalEntry.model_name");
static_assert(offsetof(struct _entPhysicalEntry, alias) == 2351, "_entPhysicalEntry.alias");
static_assert(offsetof(struct _entPhysicalEntry, word_2428) == 2428, "_entPhysicalEntry.word_2428");
static_assert(offsetof(struct _entPhysicalEntry, raw_2432) == 2432, "_entPhysicalEntry.raw_2432");
int platform_records_are_laid_out_in_c(void) {
  return 1;
}
