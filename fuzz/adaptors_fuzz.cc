// Every adaptor against services that answer whatever the input says: statuses, missing replies,
// short and long ones, true and untrue lengths.
#include <cim_utils/collections.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/modules.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>

#include <cstdint>
#include <cstdlib>

#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>

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
  return 0;
}
