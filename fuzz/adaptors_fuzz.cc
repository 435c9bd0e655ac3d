// Every adaptor against services that answer whatever the input says: statuses, missing replies,
// short and long ones, true and untrue lengths.
#include <cim_utils/collections.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/modules.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>
#include <switch_platform/mts.h>

namespace {

// The rest of the input, consumed from its front. Behind its end everything is zero.
class Input {
 public:
  void start(const uint8_t* data, size_t size) {
    data_ = data;
    size_ = size;
  }
  uint8_t byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }
  uint16_t word() { return static_cast<uint16_t>(byte() << 8 | byte()); }
  void fill(void* to, size_t size) {
    const size_t there = std::min(size, size_);
    if (there > 0) std::memcpy(to, data_, there);
    std::memset(static_cast<uint8_t*>(to) + there, 0, size - there);
    data_ += there;
    size_ -= there;
  }
  bool empty() const { return size_ == 0; }

 private:
  const uint8_t* data_ = nullptr;
  size_t size_ = 0;
};

Input input;
// Exchanges left for this run: services do not answer for ever.
int exchanges_left;

}  // namespace

int32_t cmi_req_resp(uint32_t, uint32_t, const void*, void** reply, int32_t* length, int32_t,
                     int32_t, uint32_t, int32_t, int32_t) {
  if (input.empty() || --exchanges_left < 0) return -1;
  const uint8_t what = input.byte();
  const size_t size = input.word() % 3000;
  if (reply != nullptr && (what & 1) != 0 && size > 0) {
    *reply = std::malloc(size);
    input.fill(*reply, size);
    if ((what & 2) == 0) *length = static_cast<int32_t>(size);
    if ((what & 4) != 0) *length = static_cast<int32_t>(input.word()) - 0x8000;
  }
  if ((what & 0x18) == 0x18) return static_cast<int8_t>(input.byte());
  return 0;
}

void perror(const char*) {}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool quiet = [] {
    // Traces are of no interest here; what the sanitizers say is.
    return std::freopen("/dev/null", "w", stdout) != nullptr;
  }();
  (void)quiet;
  constexpr int32_t kQueue = 7;
  mts_q = kQueue;
  input.start(data, size);
  exchanges_left = 2000;

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
