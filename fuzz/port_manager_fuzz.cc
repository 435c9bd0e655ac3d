// The port manager's adaptor against client libraries that hand out whatever the input says.
#include <cim_utils/collections.h>
#include <cim_utils/port_manager.h>

#include <cstdint>
#include <cstdlib>

#include <switch_platform/port_manager.h>

#include "fuzz/fuzzed_services.h"

int32_t mts_errno_get(int32_t) {
  return input.byte() == 62 ? 62 : 0;
}

namespace {

// What a client library of the port manager gives: a block, or none, and a result.
template <typename Block>
int32_t answer(Block** out, int32_t* count) {
  if (input.empty() || --exchanges_left < 0) return -1;
  const uint8_t what = input.byte();
  const size_t size = input.word() % 700;
  if ((what & 1) != 0 && size > 0) {
    *out = static_cast<Block*>(std::malloc(size));
    input.fill(*out, size);
  }
  if (count != nullptr) *count = what >> 5;
  return (what & 0x18) == 0x18 ? static_cast<int8_t>(input.byte()) : 0;
}

}  // namespace

int32_t pm_cmi_get_port_config(int32_t, int32_t, int32_t, const pm_if_key_*, int32_t* count,
                               pm_port_info_** out, int32_t) {
  return answer(out, count);
}

int32_t pm_cmi_set_port_config(int32_t, int32_t, int32_t, int32_t, const pm_if_key_*, int32_t,
                               int32_t, const void*, int32_t* count, void** reply, int32_t) {
  return answer(reply, count);
}

int32_t pm_cmi_get_fcot_info(int32_t, int32_t, int32_t, const pm_if_key_*, int32_t* count,
                             void** reply, int32_t, int32_t) {
  return answer(reply, count);
}

int32_t pm_get_port_counters(int32_t, uint32_t, int32_t, int32_t, fcIfAllCounters_t** counters) {
  return answer(counters, nullptr);
}

int32_t ipconf_get_intf_ip_address(int32_t, uint32_t, void** address_block, int32_t) {
  return answer(address_block, nullptr);
}

uint32_t* ips_mgr_fcip_get_fcip_if_for_eth_if_blk(int32_t, uint32_t) {
  uint32_t* block = nullptr;
  answer(&block, nullptr);
  return block;
}

uint32_t* ips_mgr_fcip_get_eth_if_for_fcip_if_blk(int32_t q, uint32_t if_index) {
  return ips_mgr_fcip_get_fcip_if_for_eth_if_blk(q, if_index);
}

namespace {

// Of one of the first sixteen types, among which are all that interfaces have.
uint32_t fuzzed_if_index() {
  const uint32_t type = input.byte() % 16;
  return type << 24 | static_cast<uint32_t>(input.byte()) << 16 | input.word();
}

// The texts of a record, whatever stands in it.
void show(const pm_port_info_* info, uint8_t if_type) {
  char text[PM_PERMANENT_ADDRESS_TEXT_ROOM];
  pm_cim_get_permanent_address(text, info, if_type);
  pm_cim_get_network_address(text, info, if_type);
  pm_cim_get_speed(info, if_type);
  pm_cim_get_mtu(info, if_type);
  print_port_info(info);
}

void ask_the_port_manager(int32_t q) {
  for (const int32_t exact : {0, 1}) {
    pm_port_info_* info = pm_cim_find_interface(exact, fuzzed_if_index(), q);
    // The management port's address would be this machine's.
    const uint8_t if_type = input.byte();
    if (info != nullptr && if_type != PM_IF_MANAGEMENT) show(info, if_type);
    uint8_t supported = 0;
    pm_cim_get_fcot_info(q, info, &supported);
    std::free(info);
    std::free(pm_cim_find_interface_counters(exact, fuzzed_if_index(), q));
    pm_port_channel_entry_ entry;
    pm_cim_get_port_channel_entry(q, exact, input.word(), &entry);
  }
  GSList* interfaces = nullptr;
  pm_cim_get_port_channel_interfaces(q, input.word(), &interfaces);
  pm_cim_get_fcip_interfaces_for_eth_interface(q, fuzzed_if_index(), &interfaces);
  pm_cim_get_ether_interfaces_for_fcip_interface(q, fuzzed_if_index(), &interfaces);
  cim_g_slist_destroy(interfaces, nullptr);
  uint32_t ethernet = 0;
  pm_cim_get_ether_index_for_fcip_interface(q, fuzzed_if_index(), &ethernet);

  char alias[90] = {};
  input.fill(alias, sizeof alias - 1);
  pm_cim_set_port_alias(alias, fuzzed_if_index(), q);
  pm_cim_set_port_admin_speed(1062500000, fuzzed_if_index(), q);
  pm_cim_set_port_admin_mode(input.word(), fuzzed_if_index(), q);
  pm_cim_set_port_admin_status(input.byte(), fuzzed_if_index(), q);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  start_run(data, size);
  ask_the_port_manager(7);
  return 0;
}
