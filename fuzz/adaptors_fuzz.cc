// Every adaptor against services that answer whatever the input says: statuses, missing replies,
// short and long ones, true and untrue lengths.
#include <cim_utils/collections.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/fspf.h>
#include <cim_utils/modules.h>
#include <cim_utils/name_server.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>

#include <cstdint>
#include <cstdlib>

#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>
#include <switch_platform/mts.h>
#include <switch_platform/name_server.h>

#include "fuzz/fuzzed_services.h"

// A message of the name server. What it holds is read from the input when it is asked for.
struct mts_msg_ {
  int32_t entries;
};

namespace {

int messages_out;

// Fails or not, with a message or without, as the input says.
int32_t hand_out(mts_msg_t** message) {
  const uint8_t what = input.byte();
  if ((what & 1) == 0) {
    *message = new mts_msg_{input.word() % 200 - 5};
    ++messages_out;
  }
  return input.empty() || (what & 6) == 6 ? -1 : 0;
}

int32_t fill_record(void* record, size_t size, size_t from_input) {
  if (input.empty()) return 1;
  std::memset(record, input.byte(), size);
  input.fill(record, from_input);
  return 0;
}

}  // namespace

int32_t mts_recv(int32_t, mts_msg_t** message, const cim_mts_recv_opts*) {
  return hand_out(message);
}

int32_t mts_drop(int32_t, mts_msg_t* message) {
  --messages_out;
  delete message;
  return 0;
}

uint32_t mts_rr_token_get(const mts_msg_t* request) {
  return static_cast<uint32_t>(request->entries);
}

int32_t ns_send_get_entry_given_portname(int32_t, uint32_t, uint32_t, const ns_query_*,
                                         mts_msg_t** request) {
  return hand_out(request);
}

int32_t ns_send_get_entries_given_nodename(int32_t, uint32_t, uint32_t, const ns_query_*,
                                           mts_msg_t** request) {
  return hand_out(request);
}

int32_t ns_send_get_entries_given_fab_port_name(int32_t, uint32_t, uint32_t, const ns_query_*,
                                                mts_msg_t** request) {
  return hand_out(request);
}

int32_t ns_send_get_entries_given_port_type(int32_t, uint32_t, const ns_query_*,
                                            mts_msg_t** request) {
  return hand_out(request);
}

int32_t ns_parse_get_entry_status(mts_msg_t* reply, int32_t* count, void** cursor) {
  *count = reply->entries;
  *cursor = reply;
  const uint8_t what = input.byte();
  return what == 1 ? 0x4025000A : what >> 7;
}

int32_t ns_parse_get_entry(mts_msg_t*, void*, void* slot, int32_t) {
  return fill_record(slot, 768, 20);
}

int32_t ns_parse_get_ct_error(mts_msg_t*, int32_t* error, int32_t* expln) {
  *error = *expln = input.byte();
  return 0x4025000A;
}

int32_t ns_parse_is_entry_duplicate(mts_msg_t*, void*, int32_t, uint8_t* duplicate) {
  *duplicate = input.byte();
  return *duplicate == 0xff ? 1 : 0;
}

int32_t ns_get_fc4_devices(int32_t, uint32_t, uint32_t, const uint8_t*, mts_msg_t** reply) {
  return hand_out(reply);
}

int32_t ns_parse_get_num_fc4_devices(mts_msg_t* reply) {
  return reply->entries;
}

int32_t ns_parse_get_fc4_device_entry(mts_msg_t*, void* slot, int32_t) {
  return fill_record(slot, 24, 4);
}

namespace {

void ask_fspf(int32_t q, const wwn_& wwn) {
  fspfLinkEntry link{};
  fspf_cim_get_fspfLink(q, 1, 1, input.word(), &link);
  char name[CIM_FSPF_LINK_NAME_ROOM];
  fspf_cim_get_link_name(&link, name, 1);
  fspf_cim_get_physical_link_name(wwn.bytes, &link, name, 0);
  int32_t count = 0;
  fspfLinkEntry* links = nullptr;
  fspf_cim_get_all_fspfLinks_of_domain(q, 1, 1, &count, &links);
  std::free(links);
  fspf_cim_get_all_fspfLinks_of_vsan(q, 1, &count, 1, &links);
  std::free(links);
  GSList* list = nullptr;
  fspf_cim_get_all_fspfLinks_for_pwwn(q, &wwn, &list);
  cim_g_slist_destroy(list, nullptr);
}

void ask_name_server(int32_t q, const wwn_& wwn) {
  int32_t count = 0;
  ns_api_register_req_* entries = nullptr;
  ns_cim_get_node_or_nxport_with_wwn(q, 1, &wwn, input.byte() & 1, &count, &entries);
  std::free(entries);
  ns_cim_get_fxport_entries_with_wwn_byte_array(q, 1, wwn.bytes, &count, &entries);
  for (int32_t i = 0; i < count; ++i) {
    char name[CIM_NS_LINK_NAME_ROOM];
    ns_cim_get_link_name(&entries[i], name, i & 1);
    ns_cim_get_physical_link_name(&entries[i], name, i & 1);
    ns_cim_convert_ns_port_type(&entries[i], i & 1);
  }
  std::free(entries);
  ns_fc4_device_* devices = nullptr;
  ns_cim_get_fc4_devices(q, 1, "210000E08B0A1B2C", &count, &devices);
  std::free(devices);
  GSList* list = nullptr;
  ns_cim_get_all_fxports_by_domain_id_in_vsan(q, 1, input.byte(), input.byte() & 1, &count, &list);
  ns_cim_get_all_name_server_entries_with_wwn(q, wwn.bytes, input.byte() & 31, 0, 0, &list);
  cim_g_slist_destroy(list, nullptr);
  if (messages_out != 0) std::abort();
}

}  // namespace

#include "fuzz/fuzzed_services.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr int32_t kQueue = 7;
  mts_q = kQueue;
  start_run(data, size);

  vsanNewEntry_t vsan{};
  vsan_cim_get_vsanEntry(kQueue, input.byte(), &vsan);
  vsanNewEntry_t* entry = nullptr;
  vsan_cim_get_vsanEntry_with_memory_allocation(kQueue, 0, &entry);
  std::free(entry);
  int32_t count = 0;
  vsan_cim_get_vsan_num(kQueue, &count, 0);
  vsanNewEntry_t* list = nullptr;
  if (vsan_cim_get_all_vsanEntry(kQueue, &count, &list) == 0) std::free(list);
  vsan_cim_set_VsanEntry(kQueue, input.byte(), 2);

  mts_dm_sw_conf_ conf{};
  dm_cim_get_dmEntry(kQueue, 1, 1, &conf);
  mts_dm_sw_dom_list_info_ info{};
  dm_cim_get_dmDatabaseEntry(kQueue, 1, 1, 0, &info);
  wwn_ wwn{};
  dm_cim_get_switch_wwn_by_domain_id(kQueue, 1, 1, &wwn);
  dm_cim_get_port_wwn_by_domain_id(kQueue, 1, 1, input.word(), &wwn);
  input.fill(&wwn, sizeof wwn);
  dm_cim_is_local_switch_wwn(kQueue, &wwn);
  dm_cim_is_local_port_wwn(kQueue, &wwn);
  dm_cim_set_DMEntry(kQueue, 1, 2, 3, 1, 2);

  _vefcModuleEntry module{};
  pfm_cim_get_vefcModuleTable(kQueue, 1, 0, &module);
  print_module_info(&module);
  _entPhysicalEntry entity{};
  pfm_cim_get_entPhysicalTable(kQueue, 1, 0, &entity);
  print_entity_info(&entity);

  system_information_ system_information{};
  system_information.selector = input.byte();
  if (snmp_get_sys_info1(kQueue, &system_information) == 0) {
    char text[1100] = {};
    system_cim_parse_sys_info(&system_information,
                              static_cast<int32_t>(system_information.selector), text);
  }
  CSgetName(kQueue);
  CSgetElementName(kQueue);
  uint8_t local = 0;
  system_cim_is_local_switch_wwn_hex(kQueue, wwn.bytes, &local);

  fcs_cim_ie_ element{};
  fcs_cim_get_ie_entry(kQueue, 0, 1, &wwn, &element);
  fcs_cim_search_ie_entry_with_wwn_hex(kQueue, wwn.bytes);
  GSList* elements = nullptr;
  fcs_cim_get_ie_list_with_wwn_hex(kQueue, wwn.bytes, &elements);
  cim_g_slist_destroy(elements, nullptr);
  fcs_cim_ie_* records = nullptr;
  if (fcs_cim_get_ie_entries_in_vsan(kQueue, 1, &count, &records) == 0) std::free(records);
  GSList* switches = nullptr;
  fcs_cim_get_physical_switch_wwn_lists(kQueue, &switches);
  cim_g_slist_destroy(switches, nullptr);

  ask_fspf(kQueue, wwn);
  ask_name_server(kQueue, wwn);
  return 0;
}
