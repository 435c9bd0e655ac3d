// Interfaces as the port manager knows them: records, optics, counters.
#include <cim_utils/port_manager.h>

#include <cstdio>
#include <cstring>

#include <switch_platform/mts.h>
#include <switch_platform/port_manager.h>

#include "adaptors/port_requests.h"

namespace cim_utils {
namespace {

constexpr int32_t kTransportTimedOut = 62;

using PortInfo = PlatformRecord<pm_port_info_>;

// One request about an interface. Result: the client library's; without a record `info` is null.
int32_t request_port(int32_t session, int32_t operation, uint32_t if_index, PortInfo* info) {
  const pm_if_key_ key = key_of(if_index);
  int32_t count = 0;
  pm_port_info_* record = nullptr;
  const int32_t result = pm_cmi_get_port_config(session, operation, 1, &key, &count, &record, 4);
  *info = take(record, kPortInfoRead);
  if (result != 0) info->reset();
  return result;
}

PortInfo port(int32_t session, uint32_t if_index) {
  PortInfo info;
  const auto type = type_of(if_index);
  if (!type || !can_be_asked_about(*type)) return info;
  if (request_port(session, MTS_OPERATION_GET, if_index, &info) != 0) return nullptr;
  if (info != nullptr && info->status != 0) info.reset();
  return info;
}

// The first interface after if_index, of its own type or of a following one.
PortInfo port_after(int32_t session, uint32_t if_index) {
  uint8_t type = type_of(if_index).value_or(0);
  // A platform that never runs out of types is stopped where there can be no further one.
  constexpr int kMostTypes = 256;
  for (int types = 0; types < kMostTypes; ++types) {
    if (can_be_asked_about(type)) {
      PortInfo info;
      const int32_t result = request_port(session, MTS_OPERATION_GET_NEXT, if_index, &info);
      if (info != nullptr) return info;
      if (result < 0 && mts_errno_get(session) == kTransportTimedOut) {
        std::printf("\t\tMTS TIMEOUT\n");
        return nullptr;
      }
    }
    if (pm_cim_if_index_get_next_type(&if_index, &type) != 0) return nullptr;
  }
  return nullptr;
}

bool has_ip_address(uint8_t if_type, uint32_t if_index) {
  return if_type == PM_IF_ETHERNET || if_type == PM_IF_MANAGEMENT ||
         (if_type == PM_IF_PORT_CHANNEL && pm_is_ether_channel(if_index) != 0);
}

// An interface without an address keeps what the port manager said.
void add_ip_address(int32_t session, pm_port_info_* info) {
  const auto type = type_of(info->if_index);
  if (!type || !has_ip_address(*type, info->if_index)) return;
  void* block = nullptr;
  const int32_t result = ipconf_get_intf_ip_address(session, info->if_index, &block, *type);
  const auto address = take_bytes(block, sizeof info->address);
  if (result == 0 && address != nullptr)
    std::memcpy(info->address, address.get(), sizeof info->address);
}

// The number of an FC or Ethernet port that `get` tells.
int32_t number_of_port(uint32_t if_index, int32_t (*get)(uint32_t, uint8_t*), int32_t* kind_out) {
  const auto type = type_of(if_index);
  if (type != PM_IF_FC && type != PM_IF_ETHERNET) return -1;
  uint8_t number = 0;
  if (get(if_index, &number) != 0) return -1;
  if (kind_out != nullptr) *kind_out = *type;
  return number;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t pm_cim_get_ifTable_dest_info(uint8_t if_type, uint32_t* destination_out,
                                     uint32_t* access_out) {
  switch (if_type) {
    case PM_IF_FC:
    case PM_IF_PORT_CHANNEL:
    case PM_IF_MANAGEMENT:
    case PM_IF_FCIP:
    case PM_IF_ISCSI:
      if (destination_out != nullptr) *destination_out = 380;
      if (access_out != nullptr) *access_out = 43;
      return 0;
    case PM_IF_ETHERNET:
      if (access_out != nullptr) *access_out = 45;
      return 0;
    default:
      return -1;
  }
}

int32_t pm_cim_if_index_get_next_type(uint32_t* if_index_out, uint8_t* if_type) {
  if (if_index_out == nullptr || if_type == nullptr) return -1;
  *if_index_out = 0;
  const int32_t result = if_index_get_next_type(if_type);
  if (result == 0) *if_index_out = if_index_get_if_index_all_for_type(*if_type);
  return result;
}

int32_t pm_cim_get_slot_number_from_ifIndex(uint32_t if_index, int32_t* kind_out) {
  return number_of_port(if_index, if_index_get_slot, kind_out);
}

int32_t pm_cim_get_port_number_from_ifIndex(uint32_t if_index, int32_t* kind_out) {
  return number_of_port(if_index, if_index_get_port, kind_out);
}

int32_t pm_cim_get_port_info(pm_port_info_** out, int32_t exact, uint32_t if_index,
                             int32_t session) {
  if (out == nullptr) return -1;
  *out = nullptr;
  PortInfo info = exact != 0 ? port(session, if_index) : port_after(session, if_index);
  if (info == nullptr) return -1;
  add_ip_address(session, info.get());
  *out = info.release();
  return 0;
}

pm_port_info_* pm_cim_find_interface(int32_t exact, uint32_t if_index, int32_t session) {
  pm_port_info_* info = nullptr;
  pm_cim_get_port_info(&info, exact, if_index, session);
  return info;
}

int32_t pm_cim_get_fcot_info(int32_t session, const pm_port_info_* info, uint8_t* supported_out) {
  constexpr size_t kSupported = 8;  // offset in the reply
  if (info == nullptr || supported_out == nullptr || type_of(info->if_index) != PM_IF_FC) return -1;
  const pm_if_key_ key = key_of(info->if_index);
  int32_t count = 0;
  void* block = nullptr;
  const int32_t result =
      pm_cmi_get_fcot_info(session, MTS_OPERATION_GET, 1, &key, &count, &block, 20, -1);
  const auto reply = take_bytes(block, kSupported + 1);
  if (result != 0 || reply == nullptr) {
    std::printf("error in retrieving sfp information - ");
    return -1;
  }
  const auto supported = std::to_integer<uint8_t>(reply.get()[kSupported]);
  std::printf("\nis_fcot_supported :: %d \n is_fcot_present :: %d \n ", supported,
              info->fcot_present);
  *supported_out = supported;
  return 0;
}

int32_t pm_cim_get_fc_port_counters(int32_t session, uint32_t if_index,
                                    fcIfAllCounters_t** counters_out) {
  if (counters_out == nullptr) return -1;
  *counters_out = nullptr;
  const auto type = type_of(if_index);
  if (type != PM_IF_FC && type != PM_IF_PORT_CHANNEL) return -1;
  char name[64] = {};
  sprintf_if_index(name, if_index);
  std::printf("looking for counter of %s\n", name);
  fcIfAllCounters_t* block = nullptr;
  const int32_t result = pm_get_port_counters(session, if_index, 1, 1, &block);
  auto counters = take(block, kCountersRead);
  if (result != 0) {
    std::printf("    counters not available");
    return -1;
  }
  std::printf(" counter found ");
  *counters_out = counters.release();
  return 0;
}

fcIfAllCounters_t* pm_cim_find_interface_counters(int32_t exact, uint32_t if_index,
                                                  int32_t session) {
  std::printf("in find port stat %d\n", static_cast<int>(if_index));
  if (exact == 0) {
    const PortInfo next(pm_cim_find_interface(0, if_index, session));
    if (next == nullptr) return nullptr;
    if_index = next->if_index;
  }
  fcIfAllCounters_t* counters = nullptr;
  if (pm_cim_get_fc_port_counters(session, if_index, &counters) != 0) return nullptr;
  std::printf(" found counter ");
  if (counters == nullptr) std::printf("\tcounter is NULL!!");
  return counters;
}
