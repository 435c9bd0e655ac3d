// The sizes and offsets of the records that cross the message transport. A field that moves does
// not compile.
#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_platform_manager.h>
#include <switch_platform/records_port_manager.h>
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

static_assert(sizeof(pm_if_key_) == 8);
static_assert(offsetof(pm_if_key_, first) == 0);
static_assert(offsetof(pm_if_key_, last) == 4);

static_assert(sizeof(pm_port_info_) == 204);
static_assert(offsetof(pm_port_info_, if_index) == 0);
static_assert(offsetof(pm_port_info_, status) == 4);
static_assert(offsetof(pm_port_info_, name) == 8);
static_assert(offsetof(pm_port_info_, admin_mode) == 89);
static_assert(offsetof(pm_port_info_, admin_speed) == 94);
static_assert(offsetof(pm_port_info_, admin_state) == 98);
static_assert(offsetof(pm_port_info_, mtu) == 102);
static_assert(offsetof(pm_port_info_, vsan) == 104);
static_assert(offsetof(pm_port_info_, wwn) == 127);
static_assert(offsetof(pm_port_info_, address) == 135);
static_assert(offsetof(pm_port_info_, oper_mode) == 143);
static_assert(offsetof(pm_port_info_, oper_speed) == 147);
static_assert(offsetof(pm_port_info_, oper_state) == 151);
static_assert(offsetof(pm_port_info_, phy_enable_state) == 154);
static_assert(offsetof(pm_port_info_, fcot_present) == 201);

static_assert(sizeof(fcIfAllCounters_t) == 600);
static_assert(offsetof(fcIfAllCounters_t, if_index) == 0);
static_assert(offsetof(fcIfAllCounters_t, class2_frames_received) == 8);
static_assert(offsetof(fcIfAllCounters_t, class2_frames_transmitted) == 16);
static_assert(offsetof(fcIfAllCounters_t, class2_bytes_received) == 24);
static_assert(offsetof(fcIfAllCounters_t, class2_bytes_transmitted) == 32);
static_assert(offsetof(fcIfAllCounters_t, class2_fabric_busy) == 48);
static_assert(offsetof(fcIfAllCounters_t, class2_fabric_reject) == 56);
static_assert(offsetof(fcIfAllCounters_t, class2_port_busy) == 64);
static_assert(offsetof(fcIfAllCounters_t, class2_port_reject) == 72);
static_assert(offsetof(fcIfAllCounters_t, class3_frames_received) == 80);
static_assert(offsetof(fcIfAllCounters_t, class3_frames_transmitted) == 88);
static_assert(offsetof(fcIfAllCounters_t, class3_bytes_received) == 96);
static_assert(offsetof(fcIfAllCounters_t, class3_bytes_transmitted) == 104);
static_assert(offsetof(fcIfAllCounters_t, class3_frames_discarded) == 112);
static_assert(offsetof(fcIfAllCounters_t, link_failures) == 160);
static_assert(offsetof(fcIfAllCounters_t, loss_of_sync) == 168);
static_assert(offsetof(fcIfAllCounters_t, loss_of_signal) == 176);
static_assert(offsetof(fcIfAllCounters_t, primitive_sequence_errors) == 184);
static_assert(offsetof(fcIfAllCounters_t, invalid_transmission_words) == 192);
static_assert(offsetof(fcIfAllCounters_t, crc_errors) == 200);
static_assert(offsetof(fcIfAllCounters_t, delimiter_errors) == 208);
static_assert(offsetof(fcIfAllCounters_t, address_errors) == 216);
static_assert(offsetof(fcIfAllCounters_t, link_resets_received) == 224);
static_assert(offsetof(fcIfAllCounters_t, link_resets_transmitted) == 232);
static_assert(offsetof(fcIfAllCounters_t, frames_too_long) == 280);
static_assert(offsetof(fcIfAllCounters_t, frames_too_short) == 288);
static_assert(offsetof(fcIfAllCounters_t, nos_count) == 312);
static_assert(offsetof(fcIfAllCounters_t, encoding_disparity_errors) == 352);
static_assert(offsetof(fcIfAllCounters_t, dumped_frames) == 360);
static_assert(offsetof(fcIfAllCounters_t, buffer_credit_not_received) == 376);
static_assert(offsetof(fcIfAllCounters_t, buffer_credit_not_provided) == 384);
static_assert(offsetof(fcIfAllCounters_t, error_frames) == 400);
static_assert(offsetof(fcIfAllCounters_t, multicast_frames_received) == 408);
static_assert(offsetof(fcIfAllCounters_t, multicast_frames_transmitted) == 424);
static_assert(offsetof(fcIfAllCounters_t, lip_count) == 592);

static_assert(sizeof(pm_port_channel_entry_) == 268);
static_assert(offsetof(pm_port_channel_entry_, channel) == 0);
static_assert(offsetof(pm_port_channel_entry_, if_index) == 4);
static_assert(offsetof(pm_port_channel_entry_, attributes_8) == 8);
static_assert(offsetof(pm_port_channel_entry_, attributes_24) == 24);
static_assert(offsetof(pm_port_channel_entry_, members) == 104);
static_assert(offsetof(pm_port_channel_entry_, member_list_length) == 168);
static_assert(offsetof(pm_port_channel_entry_, attribute_172) == 172);
static_assert(offsetof(pm_port_channel_entry_, attribute_176) == 176);
static_assert(offsetof(pm_port_channel_entry_, attribute_184) == 184);
static_assert(offsetof(pm_port_channel_entry_, if_index_188) == 188);
static_assert(offsetof(pm_port_channel_entry_, attributes_256) == 256);

static_assert(sizeof(system_information_) == 1032);
static_assert(offsetof(system_information_, selector) == 0);
static_assert(offsetof(system_information_, answer) == 4);
static_assert(offsetof(system_information_, count) == 1028);

static_assert(sizeof(system_name_request_) == 260);
static_assert(offsetof(system_name_request_, name) == 0);
static_assert(offsetof(system_name_request_, zero) == 256);

static_assert(sizeof(fspfLinkEntry) == 36);
static_assert(offsetof(fspfLinkEntry, word_0) == 0);
static_assert(offsetof(fspfLinkEntry, domain) == 4);
static_assert(offsetof(fspfLinkEntry, word_2) == 8);
static_assert(offsetof(fspfLinkEntry, word_3) == 12);
static_assert(offsetof(fspfLinkEntry, remote_domain) == 16);
static_assert(offsetof(fspfLinkEntry, if_index) == 20);
static_assert(offsetof(fspfLinkEntry, remote_if_index) == 24);
static_assert(offsetof(fspfLinkEntry, word_7) == 28);
static_assert(offsetof(fspfLinkEntry, word_8) == 32);

static_assert(sizeof(fspf_lsr_) == 36);
static_assert(offsetof(fspf_lsr_, words_0) == 0);
static_assert(offsetof(fspf_lsr_, link_count) == 28);
static_assert(offsetof(fspf_lsr_, word_8) == 32);

static_assert(sizeof(fspf_lsr_request_) == 36);
static_assert(offsetof(fspf_lsr_request_, vsan_index) == 0);
static_assert(offsetof(fspf_lsr_request_, domain) == 4);
static_assert(offsetof(fspf_lsr_request_, one) == 8);
static_assert(offsetof(fspf_lsr_request_, zeros) == 12);

static_assert(sizeof(ns_query_) == 16);
static_assert(offsetof(ns_query_, vsan_index) == 0);
static_assert(offsetof(ns_query_, attributes) == 4);
static_assert(offsetof(ns_query_, zeros_6) == 6);
static_assert(offsetof(ns_query_, zeros_8) == 8);

static_assert(sizeof(ns_api_register_req_) == 768);
static_assert(offsetof(ns_api_register_req_, vsan_index) == 4);
static_assert(offsetof(ns_api_register_req_, fcid) == 8);
static_assert(offsetof(ns_api_register_req_, port_wwn) == 12);
static_assert(offsetof(ns_api_register_req_, fc4_types) == 36);
static_assert(offsetof(ns_api_register_req_, port_type) == 196);
static_assert(offsetof(ns_api_register_req_, node_wwn) == 200);
static_assert(offsetof(ns_api_register_req_, node_ip_address) == 208);
static_assert(offsetof(ns_api_register_req_, fabric_port_wwn) == 236);
static_assert(offsetof(ns_api_register_req_, rest) == 244);

static_assert(sizeof(ns_fc4_device_) == 24);
static_assert(offsetof(ns_fc4_device_, fcid) == 0);
static_assert(offsetof(ns_fc4_device_, rest) == 4);

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

static_assert(sizeof(_vefcModuleEntry) == 316);
static_assert(offsetof(_vefcModuleEntry, entity_index) == 0);
static_assert(offsetof(_vefcModuleEntry, admin_status) == 4);
static_assert(offsetof(_vefcModuleEntry, oper_status) == 8);
static_assert(offsetof(_vefcModuleEntry, words_12) == 12);
static_assert(offsetof(_vefcModuleEntry, raw_32) == 32);
static_assert(offsetof(_vefcModuleEntry, num_ports) == 288);
static_assert(offsetof(_vefcModuleEntry, word_292) == 292);
static_assert(offsetof(_vefcModuleEntry, raw_296) == 296);
static_assert(offsetof(_vefcModuleEntry, module_state) == 297);
static_assert(offsetof(_vefcModuleEntry, module_type) == 298);
static_assert(offsetof(_vefcModuleEntry, raw_299) == 299);
static_assert(offsetof(_vefcModuleEntry, module_number) == 304);
static_assert(offsetof(_vefcModuleEntry, word_308) == 308);
static_assert(offsetof(_vefcModuleEntry, raw_312) == 312);

static_assert(sizeof(_entPhysicalEntry) == 2780);
static_assert(offsetof(_entPhysicalEntry, entity_index) == 0);
static_assert(offsetof(_entPhysicalEntry, description) == 4);
static_assert(offsetof(_entPhysicalEntry, vendor_type) == 260);
static_assert(offsetof(_entPhysicalEntry, attributes) == 772);
static_assert(offsetof(_entPhysicalEntry, name) == 788);
static_assert(offsetof(_entPhysicalEntry, software_rev) == 1553);
static_assert(offsetof(_entPhysicalEntry, serial_num) == 1808);
static_assert(offsetof(_entPhysicalEntry, model_name) == 2096);
static_assert(offsetof(_entPhysicalEntry, alias) == 2351);
static_assert(offsetof(_entPhysicalEntry, word_2428) == 2428);
static_assert(offsetof(_entPhysicalEntry, raw_2432) == 2432);
