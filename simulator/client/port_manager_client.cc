// The port manager's client functions. The fabric has no ports yet, so that none of them can
// answer: each says that the service is not available and hands nothing out.
#include <switch_platform/port_manager.h>

#include "simulator/local/platform_status.h"

namespace {

using switch_sim::status::kServiceNotAvailable;

template <typename Type>
int32_t nothing(int32_t* count, Type** out) {
  if (count != nullptr) *count = 0;
  if (out != nullptr) *out = nullptr;
  return kServiceNotAvailable;
}

}  // namespace

int32_t pm_cmi_get_port_config(int32_t /*q*/, int32_t /*operation*/, int32_t /*num_keys*/,
                               const struct pm_if_key_* /*key*/, int32_t* reply_count,
                               pm_port_info_** out, int32_t /*last*/) {
  return nothing(reply_count, out);
}

int32_t pm_cmi_set_port_config(int32_t /*q*/, int32_t /*zero1*/, int32_t /*zero2*/, int32_t /*one*/,
                               const struct pm_if_key_* /*key*/, int32_t /*attribute*/,
                               int32_t /*value_length*/, const void* /*value*/,
                               int32_t* reply_count, void** reply, int32_t /*last*/) {
  return nothing(reply_count, reply);
}

int32_t pm_cmi_get_fcot_info(int32_t /*q*/, int32_t /*operation*/, int32_t /*num_keys*/,
                             const struct pm_if_key_* /*key*/, int32_t* reply_count, void** reply,
                             int32_t /*timeout*/, int32_t /*last*/) {
  return nothing(reply_count, reply);
}

int32_t pm_cmi_get_elp_info(int32_t /*q*/, int32_t /*operation*/, int32_t /*num_keys*/,
                            const struct pm_if_key_* /*key*/, int32_t* reply_count, void** reply,
                            int32_t /*last*/) {
  return nothing(reply_count, reply);
}

int32_t pm_get_port_counters(int32_t /*q*/, uint32_t /*if_index*/, int32_t /*one1*/,
                             int32_t /*one2*/, fcIfAllCounters_t** counters) {
  return nothing(nullptr, counters);
}

int32_t ipconf_get_intf_ip_address(int32_t /*q*/, uint32_t /*if_index*/, void** address_block,
                                   int32_t /*type*/) {
  return nothing(nullptr, address_block);
}

uint32_t* ips_mgr_fcip_get_fcip_if_for_eth_if_blk(int32_t /*q*/, uint32_t /*eth_if_index*/) {
  return nullptr;
}

uint32_t* ips_mgr_fcip_get_eth_if_for_fcip_if_blk(int32_t /*q*/, uint32_t /*fcip_if_index*/) {
  return nullptr;
}
