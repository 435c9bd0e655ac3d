#include <cim_utils/domain_manager.h>
#include <cim_utils/formats.h>
#include <cim_utils/system.h>
#include <cim_utils/wwn_rules.h>
#include <strings.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include <switch_platform/domain_manager.h>

#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

// Everything that the domain manager sends in network order; the change mask is not among it.
constexpr wire::Span kConfiguration[] = {{0, 3, 4}, {32, 5, 4}, {52, 1, 2}, {312, 4, 4}};
constexpr wire::Span kDatabaseEntry[] = {{0, 1, 4}};

constexpr uint32_t kRequestKind = 1;
constexpr uint32_t kChangePriority = 32;
constexpr uint32_t kChangeDomain = 512;

uint32_t operation_for(int32_t exact) {
  return exact != 0 ? MTS_OPERATION_GET : MTS_OPERATION_GET_NEXT;
}

uint8_t priority_for(uint16_t code) {
  switch (code) {
    case 2:
      return 1;
    case 3:
      return 254;
    default:
      return 128;
  }
}

// 1 when both WWNs are written alike, else 0.
int32_t same_text(const wwn_& a, const wwn_& b) {
  char text_a[17];
  char text_b[17];
  cim_sprintf_wwn(text_a, &a);
  cim_sprintf_wwn(text_b, &b);
  return strcasecmp(text_a, text_b) == 0 ? 1 : 0;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

void dmEntry_hton(mts_dm_sw_conf_* conf) {
  if (conf != nullptr) wire::convert(conf, kConfiguration);
}

int32_t dm_cim_get_dmEntry(int32_t q, uint32_t vsan, int32_t exact, mts_dm_sw_conf_* conf) {
  if (conf == nullptr) return -1;
  conf->request_kind = kRequestKind;
  conf->vsan_index = vsan;
  wire::InWireOrder on_the_wire(*conf, kConfiguration);
  Reply reply;
  const int32_t status = exchange({MTS_OPC_DOMAIN_CONFIGURATION, operation_for(exact),
                                   MTS_SAP_DOMAIN_MANAGER, conf, sizeof *conf},
                                  q, &reply);
  if (status == 0 && reply.copy(conf, sizeof *conf)) return 0;
  std::perror("vsan get dm error:");
  on_the_wire.leave();  // deliberate: callers do not read the record after a failure
  return -1;
}

int32_t dm_cim_get_dmDatabaseEntry(int32_t q, uint32_t vsan, uint8_t domain, int32_t exact,
                                   mts_dm_sw_dom_list_info_* info) {
  if (info == nullptr) return -1;
  info->vsan_index = vsan;
  info->request_kind = kRequestKind;
  info->domain_id = domain;
  wire::InWireOrder on_the_wire(*info, kDatabaseEntry);
  Reply reply;
  const int32_t status = exchange(
      {MTS_OPC_DOMAIN_DATABASE, operation_for(exact), MTS_SAP_DOMAIN_MANAGER, info, sizeof *info},
      q, &reply);
  return status == 0 && reply.copy(info, sizeof *info) ? 0 : -1;
}

int32_t dm_cim_get_switch_wwn_by_domain_id(int32_t q, uint32_t vsan, uint8_t domain, wwn_* wwn) {
  if (wwn == nullptr) return -1;
  auto info = allocate<mts_dm_sw_dom_list_info_>();
  if (info == nullptr) {
    std::printf(" Memory failure in retrieving dm info ");
    return -1;
  }
  if (dm_cim_get_dmDatabaseEntry(q, vsan, domain, 1, info.get()) != 0) return -1;
  *wwn = info[0].switch_wwn;
  return 0;
}

int32_t dm_cim_get_port_wwn_by_domain_id(int32_t q, uint32_t vsan, uint8_t domain, uint32_t port,
                                         wwn_* wwn) {
  wwn_ switch_wwn;
  if (wwn == nullptr || dm_cim_get_switch_wwn_by_domain_id(q, vsan, domain, &switch_wwn) != 0)
    return -1;
  if (wwn_cim_get_port_wwn(port, wwn, &switch_wwn) != 0) {
    std::printf("dm get port %d wwn fail \n", static_cast<int>(port));
    return -1;
  }
  return 0;
}

int32_t dm_cim_is_local_switch_wwn(int32_t q, const wwn_* vsan_wwn) {
  if (vsan_wwn == nullptr) return -1;
  wwn_ switch_wwn;
  wwn_ local;
  if (wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&switch_wwn, vsan_wwn) != 0) return -1;
  if (system_cim_get_switch_wwn(q, &local) != 0) return -1;
  return same_text(switch_wwn, local);
}

int32_t dm_cim_is_local_switch_wwn_hex(int32_t q, const char* text) {
  wwn_ vsan_wwn;
  if (wwn_cim_get_hex_from_str_wwn(text, &vsan_wwn) != 0) return 0;
  if (wwn_cim_isVexorWwn_str(vsan_wwn.bytes) == 0) return 0;
  wwn_ local;
  if (system_cim_get_switch_wwn(q, &local) != 0) return 0;
  wwn_ switch_wwn;
  wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(switch_wwn.bytes, vsan_wwn.bytes);
  return wwn_cim_is_same_wwn_hex(switch_wwn.bytes, local.bytes);
}

int32_t dm_cim_is_local_port_wwn(int32_t q, const wwn_* port_wwn) {
  if (port_wwn == nullptr) return -1;
  wwn_ switch_wwn;
  wwn_ local;
  if (wwn_cim_get_switch_wwn_from_port_wwn(0, &switch_wwn, port_wwn) != 0) return -1;
  if (system_cim_get_switch_wwn(q, &local) != 0) return -1;
  return same_text(switch_wwn, local);
}

int32_t dm_cim_is_local_port_wwn_hex(int32_t q, const char* text) {
  wwn_ port_wwn;
  wwn_ switch_wwn;
  wwn_ local;
  if (wwn_cim_get_hex_from_str_wwn(text, &port_wwn) != 0) return -1;
  if (wwn_cim_get_switch_wwn_from_port_wwn_str(0, switch_wwn.bytes, port_wwn.bytes) != 0) return -1;
  if (system_cim_get_switch_wwn(q, &local) != 0) return -1;
  return same_text(switch_wwn, local);
}

int32_t dm_cim_get_domainId(int32_t q, uint32_t vsan, uint8_t* domain) {
  constexpr int32_t kNoList = 255;
  // One domain for each VSAN that a switch can have: a greater count is a broken one.
  constexpr int32_t kMostEntries = 4096;
  Message list(q);
  if (dm_get_dom_ids_in_sw(q, 0, list.out()) != 0 || list.get() == nullptr) {
    std::printf("Failed to get domain-id from DM. Ignoring Domain Id.");
    return kNoList;
  }
  uint8_t found = 0;
  const int32_t entries = std::min(dm_parse_get_num_entries(list.get()), kMostEntries);
  // Every entry is looked at: the last one of the VSAN counts.
  for (int32_t i = 0; i < entries; ++i) {
    if (dm_parse_get_vsan_index_in_vsan(list.get(), i) != vsan) continue;
    found = dm_parse_get_dom_id_in_vsan(list.get(), i);
    std::printf("return DomId is  %d \n ", found);
  }
  if (domain != nullptr) *domain = found;
  return 0;
}

int32_t dm_cim_set_DMEntry(int32_t q, uint32_t vsan, uint16_t priority, uint8_t domain,
                           int32_t type, int32_t what) {
  std::printf("dm_cim_set_dmEntry Start -  pp is %d, domId is %d, domTpe is %d, setType is %d\n",
              priority, domain, type, what);
  mts_dm_sw_conf_ change;
  std::memset(&change, 0, sizeof change);
  change.vsan_index = vsan;
  change.request_kind = kRequestKind;
  if (what == 1) {
    change.config_priority = priority_for(priority);
    change.change_mask = kChangePriority;
  } else if (what == 2 || what == 3) {
    change.config_domain = domain;
    change.config_type = type == 1 ? 1 : 2;
    change.change_mask = kChangeDomain;
  }
  dmEntry_hton(&change);
  const int32_t status = exchange({MTS_OPC_DOMAIN_CONFIGURATION, MTS_OPERATION_SET,
                                   MTS_SAP_DOMAIN_MANAGER, &change, sizeof change},
                                  q, nullptr);
  if (status != 0) {
    // The text says priority for every change, deliberately.
    std::printf("set dm priority -  FAIL ret code is %d\n", status);
  } else {
    std::printf("dm_cim_set_dmEntry -  ret code is %d\n", status);
  }
  return status;
}
