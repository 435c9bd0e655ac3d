#include <cim_utils/collections.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/formats.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>
#include <cim_utils/wwn_rules.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include <switch_platform/bitset.h>
#include <switch_platform/mts.h>

#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/list_builder.h"
#include "common/seen_texts.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

constexpr uint32_t kElementSelector = 20;
constexpr wire::Span kElement[] = {{0, 1, 4}, {12, 2, 4}};

// The request for one element: VSAN in network order and WWN.
constexpr int32_t kElementRequest = 12;
// The reply to it, as far as it is kept.
struct ElementReply {
  static constexpr size_t kVsan = 0;
  static constexpr size_t kWwn = 4;
  static constexpr size_t kAttribute3 = 12;
  static constexpr size_t kDomain = 16;
  static constexpr size_t kAttribute5 = 24;  // the four bytes before it are not kept
  static constexpr size_t kAttribute6 = 28;
  static constexpr size_t kSize = 32;
};

// Sends the selector and `length` bytes of data. Result: 0 with a reply, or -1.
int32_t ask_for_data(int32_t session, uint32_t selector, uint32_t operation, const void* data,
                     int32_t length, Reply* reply) {
  constexpr int32_t kMostData = INT32_MAX - static_cast<int32_t>(sizeof selector);
  if (length < 0 || length > kMostData || (data == nullptr && length > 0)) return -1;
  const size_t size = sizeof selector + static_cast<size_t>(length);
  auto request = allocate<std::byte>(size);
  if (request == nullptr) return -1;
  const uint32_t on_the_wire = wire::network32(selector);
  std::memcpy(request.get(), &on_the_wire, sizeof on_the_wire);
  if (length > 0) std::memcpy(request.get() + sizeof on_the_wire, data, size - sizeof on_the_wire);
  SynchronousRequest bulk{MTS_OPC_FABRIC_CONFIGURATION_DATA, operation,
                          MTS_SAP_FABRIC_CONFIGURATION,      request.get(),
                          static_cast<int32_t>(size),        Preset::unknown};
  bulk.last = 0;  // where every other service gets 4, deliberately
  return exchange(bulk, session, reply) == 0 && reply->present() ? 0 : -1;
}

// Walks the VSANs in rising order until there is no further one, or `visit` returns false.
template <typename Visit>
void for_each_vsan(int32_t session, Visit visit) {
  vsanNewEntry_t vsan{};
  for (;;) {
    const uint32_t asked = vsan.vsan_index;
    if (vsan_cim_get_vsanEntry(session, 0, &vsan) != 0) return;
    if (vsan.vsan_index <= asked) return;  // the service does not move forward
    if (!visit(vsan)) return;
  }
}

bool is_up(const vsanNewEntry_t& vsan) {
  return vsan.oper_state == 1;
}

// The WWN that the switch of an element has in all VSANs, or the element's own for another maker's.
wwn_ physical_switch_wwn(const wwn_& element) {
  if (wwn_cim_isVexorWwn(&element) == 0) return element;
  wwn_ switch_wwn;
  wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&switch_wwn, &element);
  return switch_wwn;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t fcs_get_data(int32_t session, uint32_t selector, uint32_t operation, const void* data,
                     int32_t length, void* out) {
  Reply reply;
  if (ask_for_data(session, selector, operation, data, length, &reply) != 0) return -1;
  // No byte more than reported: the caller has made room for that, not for the block behind it.
  const auto bytes = reply.reported_bytes();
  if (out != nullptr) std::memcpy(out, bytes.data(), bytes.size());
  return 0;
}

int32_t fcs_cim_get_ie_entry_with_wwn_hex(int32_t session, int32_t exact, uint32_t vsan,
                                          const uint8_t* wwn, fcs_cim_ie_* ie_out) {
  if (ie_out == nullptr) return -1;
  if (exact != 0 && (vsan < 1 || vsan > 4094 || wwn == nullptr)) return -1;

  std::byte request[kElementRequest] = {};
  const uint32_t vsan_on_the_wire = wire::network32(vsan);
  std::memcpy(request, &vsan_on_the_wire, sizeof vsan_on_the_wire);
  if (wwn != nullptr) std::memcpy(request + 4, wwn, sizeof(wwn_));
  Reply reply;
  if (ask_for_data(session, kElementSelector,
                   exact != 0 ? MTS_OPERATION_GET : MTS_OPERATION_GET_NEXT, request,
                   kElementRequest, &reply) != 0)
    return -1;
  if (!reply.holds(ElementReply::kSize)) return -1;

  const std::byte* bytes = reply.bytes().data();
  // A get-next that runs into the next VSAN has no further element to give.
  if (wire::read32(bytes + ElementReply::kVsan) != vsan) return -1;
  ie_out->vsan = vsan;
  std::memcpy(&ie_out->wwn, bytes + ElementReply::kWwn, sizeof ie_out->wwn);
  ie_out->attribute_3 = wire::read32(bytes + ElementReply::kAttribute3);
  ie_out->domain = wire::read32(bytes + ElementReply::kDomain);
  std::memcpy(&ie_out->attribute_5, bytes + ElementReply::kAttribute5, sizeof(uint32_t));
  std::memcpy(&ie_out->attribute_6, bytes + ElementReply::kAttribute6, sizeof(uint32_t));
  return 0;
}

int32_t fcs_cim_get_ie_entry(int32_t session, int32_t exact, uint32_t vsan, const wwn_* wwn,
                             fcs_cim_ie_* ie_out) {
  if (wwn == nullptr || ie_out == nullptr) return -1;
  return fcs_cim_get_ie_entry_with_wwn_hex(session, exact, vsan, wwn->bytes, ie_out);
}

int32_t fcs_cim_search_ie_entry_with_wwn_hex(int32_t session, const uint8_t* wwn) {
  int32_t found = -1;
  for_each_vsan(session, [&](const vsanNewEntry_t& vsan) {
    fcs_cim_ie_ element;
    if (is_up(vsan) &&
        fcs_cim_get_ie_entry_with_wwn_hex(session, 1, vsan.vsan_index, wwn, &element) == 0)
      found = 0;
    return found != 0;
  });
  return found;
}

int32_t fcs_cim_get_ie_list_with_wwn_hex(int32_t session, const uint8_t* wwn, GSList** list) {
  if (wwn == nullptr || list == nullptr) return -1;
  ListBuilder elements(list);
  const auto append_from = [&](uint32_t vsan, const uint8_t* wwn_there) {
    fcs_cim_ie_ element;
    if (fcs_cim_get_ie_entry_with_wwn_hex(session, 1, vsan, wwn_there, &element) != 0) return true;
    return elements.append_copy(&element, sizeof element);
  };

  const bool makers = wwn_cim_isVexorWwn_str(wwn) != 0;
  const uint32_t own_vsan = makers ? wwn_cim_get_vsan_index_from_wwn_str(wwn) : 0;
  if (own_vsan > 0) {
    append_from(own_vsan, wwn);
  } else {
    for_each_vsan(session, [&](const vsanNewEntry_t& vsan) {
      wwn_ in_vsan;
      std::memcpy(&in_vsan, wwn, sizeof in_vsan);
      if (makers && wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(vsan.vsan_index,
                                                                        in_vsan.bytes, wwn) != 0)
        return true;
      return append_from(vsan.vsan_index, in_vsan.bytes);
    });
  }
  return *list != nullptr ? 0 : -1;
}

int32_t fcs_cim_get_ies_in_vsan(int32_t session, uint32_t vsan, fcs_giel_entry_** entries_out,
                                int32_t* count_out) {
  if (entries_out == nullptr || count_out == nullptr) return -1;
  constexpr int32_t kExpectedReply = 8;
  const uint32_t request[2] = {wire::network32(vsan), 0};
  Reply reply;
  const int32_t status =
      exchange({MTS_OPC_INTERCONNECT_ELEMENTS, MTS_OPERATION_GET, MTS_SAP_FABRIC_CONFIGURATION,
                request, kExpectedReply, Preset::unknown},
               session, &reply);
  if (status < 0) {
    std::perror("fcs cim get ies in vsan error\n");
    return -1;
  }
  if (status > 0) {
    std::printf("Error: %s\n", syserr2str(status));
    return -1;
  }
  if (!reply.holds(sizeof(uint32_t))) return -1;

  const auto bytes = reply.bytes();
  const size_t fitting = (bytes.size() - sizeof(uint32_t)) / sizeof(fcs_giel_entry_);
  const size_t announced = wire::read32(bytes.data());
  const size_t total = std::min(announced, fitting);
  auto entries = allocate<fcs_giel_entry_>(std::max<size_t>(total, 1));
  if (entries == nullptr) return -1;
  int32_t counted = 0;
  for (size_t i = 0; i < total; ++i) {
    fcs_giel_entry_ entry;
    reply.copy(&entry, sizeof entry, sizeof(uint32_t) + i * sizeof entry);
    if (entry.flags[2] != 0) entries[counted++] = entry;
  }
  *count_out = counted;
  *entries_out = entries.release();
  return 0;
}

int32_t fcs_cim_get_ie_entries_in_vsan(int32_t session, uint32_t vsan, int32_t* count_out,
                                       fcs_cim_ie_** ies_out) {
  if (count_out == nullptr || ies_out == nullptr) return -1;
  *ies_out = nullptr;
  fcs_giel_entry_* listed = nullptr;
  int32_t count = 0;
  if (fcs_cim_get_ies_in_vsan(session, vsan, &listed, &count) != 0) {
    std::printf("fcs get giel_reply error");
    return -1;
  }
  const CHeap<fcs_giel_entry_> giel(listed);
  *count_out = 0;
  if (count == 0) return 0;
  auto elements = allocate<fcs_cim_ie_>(static_cast<size_t>(count));
  if (elements == nullptr) return -1;
  int32_t filled = 0;
  for (int32_t i = 0; i < count; ++i) {
    char text[4];
    sprint_wwn(text, giel[i].wwn.bytes);
    if (fcs_cim_get_ie_entry(session, 1, vsan, &giel[i].wwn, &elements[filled]) == 0) {
      ++filled;
    } else {
      std::printf("\tfcs get ie entry fail for %s\n", text);
    }
  }
  *count_out = filled;
  *ies_out = elements.release();
  return 0;
}

int32_t fcs_cim_get_physical_switch_wwn_lists(int32_t session, GSList** list) {
  if (list == nullptr) return -1;
  ListBuilder texts(list);
  {
    SeenTexts seen;
    for_each_vsan(session, [&](const vsanNewEntry_t& vsan) {
      if (!is_up(vsan)) return true;
      int32_t count = 0;
      fcs_cim_ie_* elements = nullptr;
      if (fcs_cim_get_ie_entries_in_vsan(session, vsan.vsan_index, &count, &elements) != 0)
        return true;
      const CHeap<fcs_cim_ie_> owner(elements);
      for (int32_t i = 0; i < count; ++i) {
        const wwn_ switch_wwn = physical_switch_wwn(elements[i].wwn);
        char text[17];
        cim_sprintf_wwn(text, &switch_wwn);
        if (seen.first_time(text) && !texts.append_text(text)) return false;
      }
      return true;
    });
  }
  if (*list != nullptr) return 0;

  wwn_ local;
  if (system_cim_get_switch_wwn(session, &local) != 0) return -1;
  char text[17];
  cim_sprintf_wwn(text, &local);
  return texts.append_text(text) ? 0 : -1;
}

uint32_t fcs_map_ie_type(uint32_t* type) {
  if (type == nullptr) return 0;
  const uint32_t old = *type;
  *type = old >= 1 && old <= 3 ? old + 2 : 1;
  return old;
}

void fcs_cim_ie_entry_hton(fcs_cim_ie_* ie) {
  if (ie != nullptr) wire::convert(ie, kElement);
}

void fcs_cim_ie_entry_ntoh(fcs_cim_ie_* ie) {
  fcs_cim_ie_entry_hton(ie);
}

void fcs_cim_giel_hton(fcs_giel_entry_* entry) {
  // Each flag is swapped as a 16-bit number and its low byte kept, which is zero: deliberate.
  if (entry != nullptr) std::memset(entry->flags, 0, sizeof entry->flags);
}

void fcs_cim_giel_ntoh(fcs_giel_entry_* entry) {
  fcs_cim_giel_hton(entry);
}

void sprint_wwn(char* dst, const uint8_t* wwn) {
  if (dst == nullptr || wwn == nullptr) return;
  // Every byte is written at the start of dst: only the last one stays, deliberately.
  std::sprintf(dst, "%2X", wwn[7]);
}

int32_t fcs_trim_trailing_blanks(const void* bitset) {
  if (bitset == nullptr) return 0;
  int32_t last = -1;
  for (int32_t bit = bitset_first_bit(bitset); bit > last; bit = bitset_next_bit(bitset, bit))
    last = bit;
  if (last < 0) return 0;
  const int32_t bits = last + 1;
  return bits % 8 == 0 ? bits / 8 : bits / 8 + 2;
}
