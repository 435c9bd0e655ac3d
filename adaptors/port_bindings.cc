// Interfaces that belong together: the members of port channels, FCIP interfaces and the Ethernet
// interfaces under them.
#include <cim_utils/port_manager.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include <switch_platform/mts.h>
#include <switch_platform/port_manager.h>

#include "adaptors/port_requests.h"
#include "common/exchange.h"
#include "common/list_builder.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

constexpr wire::Span kChannelEntry[] = {{0, 1, 4},   {8, 4, 4},   {24, 4, 4},
                                        {168, 3, 4}, {184, 1, 4}, {256, 3, 4}};

constexpr int32_t kMemberSize = sizeof(uint32_t);

// A block of interface indexes behind their count, as the FCIP manager hands it out.
class Bindings {
 public:
  explicit Bindings(uint32_t* block) : words_(take(block, sizeof(uint32_t))) {
    if (words_ == nullptr) return;
    const size_t room = malloc_usable_size(words_.get()) / sizeof(uint32_t) - 1;
    count_ = std::min<size_t>(words_.get()[0], room);
  }

  size_t count() const { return count_; }
  uint32_t operator[](size_t n) const { return words_.get()[1 + n]; }

 private:
  PlatformRecord<uint32_t> words_;
  size_t count_ = 0;
};

// Appends the record of the interface; false when it cannot be read.
bool append_interface(ListBuilder* interfaces, uint32_t if_index, int32_t session) {
  pm_port_info_* info = pm_cim_find_interface(1, if_index, session);
  if (info == nullptr) return false;
  interfaces->append(info);
  return true;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

void pm_port_channel_entry_hton(pm_port_channel_entry_* entry) {
  if (entry == nullptr) return;
  wire::convert(entry, kChannelEntry);
  entry->if_index = hton_if_index(entry->if_index);
  entry->if_index_188 = hton_if_index(entry->if_index_188);
}

void pm_port_channel_entry_ntoh(pm_port_channel_entry_* entry) {
  if (entry == nullptr) return;
  wire::convert(entry, kChannelEntry);
  entry->if_index = ntoh_if_index(entry->if_index);
  entry->if_index_188 = ntoh_if_index(entry->if_index_188);
}

int32_t pm_cim_get_port_channel_entry(int32_t session, int32_t exact, uint32_t channel,
                                      pm_port_channel_entry_* entry) {
  pm_port_channel_entry_ own;
  if (entry == nullptr) entry = &own;
  std::memset(entry, 0, sizeof *entry);
  entry->channel = channel;
  pm_port_channel_entry_hton(entry);
  Reply reply;
  const int32_t status =
      exchange({MTS_OPC_PORT_CHANNEL_ENTRY,
                static_cast<uint32_t>(exact != 0 ? MTS_OPERATION_GET : MTS_OPERATION_GET_NEXT),
                MTS_SAP_PORT_MANAGER, entry, static_cast<int32_t>(sizeof *entry)},
               session, &reply);
  const bool answered = status == 0 && reply.present();
  if (answered) {
    const auto bytes = reply.bytes();
    std::memcpy(entry, bytes.data(), std::min(bytes.size(), sizeof *entry));
  }
  pm_port_channel_entry_ntoh(entry);
  if (!answered) std::printf("get port channel fail %d\n", status);
  return status;
}

int32_t get_port_channel_member_id(const uint8_t* member_bytes, int32_t byte_offset,
                                   uint32_t* id_out) {
  if (member_bytes == nullptr || byte_offset < 0 || id_out == nullptr) return -1;
  *id_out = wire::read32(member_bytes + byte_offset);
  return 0;
}

int32_t pm_cim_get_port_channel_interfaces(int32_t session, uint32_t channel, GSList** list) {
  if (list == nullptr) return -1;
  pm_port_channel_entry_ entry;
  if (pm_cim_get_port_channel_entry(session, 1, channel, &entry) != 0) return -1;

  const auto length =
      static_cast<int32_t>(std::min<uint32_t>(entry.member_list_length, sizeof entry.members));
  ListBuilder interfaces(list);
  int32_t result = -1;
  for (int32_t offset = 0; offset < length; offset += kMemberSize) {
    uint32_t member = 0;
    if (get_port_channel_member_id(entry.members, offset, &member) != 0) {
      std::printf("get portchannel %d member list id %d fail \n", static_cast<int>(channel),
                  offset / kMemberSize);
    } else if (append_interface(&interfaces, member, session)) {
      result = 0;
    } else {
      std::printf("get portchannel member interface %d fail \n", static_cast<int>(member));
    }
  }
  return result;
}

int32_t pm_cim_get_fcip_interfaces_for_eth_interface(int32_t session, uint32_t eth_if_index,
                                                     GSList** list) {
  if (list == nullptr) return -1;
  const Bindings bound(ips_mgr_fcip_get_fcip_if_for_eth_if_blk(session, eth_if_index));
  ListBuilder interfaces(list);
  int32_t result = -1;
  for (size_t n = bound.count(); n-- > 0;) {
    std::printf(" \t pm found fcip %d for eth %d \n", static_cast<int>(bound[n]),
                static_cast<int>(eth_if_index));
    if (append_interface(&interfaces, bound[n], session)) {
      result = 0;
    } else {
      std::printf("get ether if - fcip interface %d fail \n", static_cast<int>(eth_if_index));
    }
  }
  return result;
}

int32_t pm_cim_get_ether_interfaces_for_fcip_interface(int32_t session, uint32_t fcip_if_index,
                                                       GSList** list) {
  if (list == nullptr) return -1;
  const Bindings bound(ips_mgr_fcip_get_eth_if_for_fcip_if_blk(session, fcip_if_index));
  ListBuilder interfaces(list);
  int32_t result = -1;
  for (size_t n = bound.count(); n-- > 0;) {
    if (append_interface(&interfaces, bound[n], session)) {
      result = 0;
    } else {
      std::printf("get fcip if - ether interface %d fail \n", static_cast<int>(fcip_if_index));
    }
  }
  return result;
}

int32_t pm_cim_get_ether_index_for_fcip_interface(int32_t session, uint32_t fcip_if_index,
                                                  uint32_t* eth_if_index_out) {
  if (eth_if_index_out == nullptr) return -1;
  const Bindings bound(ips_mgr_fcip_get_eth_if_for_fcip_if_blk(session, fcip_if_index));
  if (bound.count() == 0) return -1;
  *eth_if_index_out = bound[bound.count() - 1];
  return 0;
}
