// What the requests to the port manager have in common.
#pragma once

#include <cim_utils/port_manager.h>

#include <malloc.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include <switch_platform/if_index.h>

#include "common/c_heap.h"

namespace cim_utils {

// A record that a client library of the platform allocated.
template <typename Record>
using PlatformRecord = std::unique_ptr<Record, Free>;

// The bytes of a record up to the end of its last field that is read. The record is the platform's
// and may be longer.
constexpr size_t kPortInfoRead = offsetof(pm_port_info_, fcot_present) + sizeof(uint8_t);
constexpr size_t kCountersRead = offsetof(fcIfAllCounters_t, lip_count) + sizeof(uint64_t);

// Takes over what a client library handed out. A block too small for what is read from it counts
// as none.
template <typename Record>
PlatformRecord<Record> take(Record* block, size_t read) {
  PlatformRecord<Record> owner(block);
  if (block != nullptr && malloc_usable_size(block) < read) owner.reset();
  return owner;
}

inline PlatformRecord<std::byte> take_bytes(void* block, size_t read) {
  return take(static_cast<std::byte*>(block), read);
}

// A request always names one interface.
inline pm_if_key_ key_of(uint32_t if_index) {
  return {if_index, if_index};
}

// Nothing for an index that the platform does not know.
inline std::optional<uint8_t> type_of(uint32_t if_index) {
  uint8_t type = 0;
  if (if_index_get_type(if_index, &type) != 0) return std::nullopt;
  return type;
}

// Whether the port manager answers for interfaces of the type.
inline bool can_be_asked_about(uint8_t if_type) {
  return pm_cim_get_ifTable_dest_info(if_type, nullptr, nullptr) == 0;
}

}  // namespace cim_utils
