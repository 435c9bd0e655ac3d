#include <cim_utils/domain_manager.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/formats.h>
#include <cim_utils/fspf.h>
#include <cim_utils/wwn_rules.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <switch_platform/if_index.h>
#include <switch_platform/mts.h>

#include "adaptors/link_name.h"
#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/list_builder.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

constexpr wire::Span kRequest[] = {{0, 9, 4}};
constexpr wire::Span kHeader[] = {{0, 8, 4}};  // word 8 stays as received, deliberately
constexpr wire::Span kLink[] = {{0, 9, 4}};

constexpr uint8_t kInternalInterface = 16;

// Larger indexes are FSPF's own; as a signed number, so that one with the top bit set is none.
bool is_fspf_if_index(uint32_t index) {
  return static_cast<int32_t>(index) > 256;
}

// An index that the platform does not know is kept.
uint32_t platform_if_index(uint32_t index) {
  uint32_t converted = 0;
  if (is_fspf_if_index(index) &&
      convert_fspf_if_index_to_if_index(wire::network32(index), &converted) == 0)
    return converted;
  return index;
}

bool is_internal(uint32_t if_index) {
  uint8_t type = 0;
  return if_index_get_type(if_index, &type) == 0 && type == kInternalInterface;
}

// A link of the reply, in host order.
fspfLinkEntry received_link(const Reply& reply, size_t index) {
  fspfLinkEntry link;
  reply.copy(&link, sizeof link, sizeof(fspf_lsr_) + index * sizeof link);
  wire::convert(&link, kLink);
  link.if_index = platform_if_index(link.if_index);
  link.remote_if_index = platform_if_index(link.remote_if_index);
  return link;
}

// The links behind the header of a link-state record.
fspfLinkEntry* links_of(fspf_lsr_* lsr) {
  return reinterpret_cast<fspfLinkEntry*>(lsr + 1);
}

// A header with room for `count` links behind it.
CHeap<fspf_lsr_> allocate_lsr(size_t count) {
  static_assert(sizeof(fspf_lsr_) == sizeof(fspfLinkEntry));
  return allocate<fspf_lsr_>(1 + count);
}

// The record of a reply that holds a header at least; null when memory runs out.
CHeap<fspf_lsr_> received_lsr(const Reply& reply) {
  fspf_lsr_ header;
  reply.copy(&header, sizeof header);
  wire::convert(&header, kHeader);
  const size_t fitting = (reply.bytes().size() - sizeof header) / sizeof(fspfLinkEntry);
  const size_t count = std::min<size_t>(header.link_count, fitting);
  auto lsr = allocate_lsr(count);
  if (lsr == nullptr) return lsr;
  uint32_t kept = 0;
  for (size_t i = 0; i < count; ++i) {
    const fspfLinkEntry entry = received_link(reply, i);
    if (!is_internal(entry.if_index)) links_of(lsr.get())[kept++] = entry;
  }
  header.link_count = kept;
  lsr[0] = header;
  return lsr;
}

// The record of one switch; null when it cannot be read.
CHeap<fspf_lsr_> read_lsr(int32_t session, uint32_t vsan, uint32_t domain) {
  fspf_lsr_* lsr = nullptr;
  fspf_cim_get_fspfLSR(session, vsan, domain, 1, &lsr);
  return CHeap<fspf_lsr_>(lsr);
}

// The records of a VSAN's switches.
class LsrTable {
 public:
  explicit LsrTable(size_t room) : lsrs_(allocate<Kept>(std::max<size_t>(room, 1))) {}
  LsrTable(const LsrTable&) = delete;
  LsrTable& operator=(const LsrTable&) = delete;
  ~LsrTable() {
    for (size_t i = 0; i < count_; ++i)
      std::free(lsrs_[i].lsr);
  }

  bool has_memory() const { return lsrs_ != nullptr; }
  size_t link_count() const { return link_count_; }

  void add(CHeap<fspf_lsr_> lsr) {
    link_count_ += lsr[0].link_count;
    lsrs_[count_++].lsr = lsr.release();
  }

  // The links of all records one after another; null when memory runs out.
  CHeap<fspfLinkEntry> links() const {
    auto all = allocate<fspfLinkEntry>(std::max<size_t>(link_count_, 1));
    if (all == nullptr) return all;
    fspfLinkEntry* end = all.get();
    for (size_t i = 0; i < count_; ++i)
      end = std::copy_n(links_of(lsrs_[i].lsr), lsrs_[i].lsr->link_count, end);
    return all;
  }

 private:
  struct Kept {
    fspf_lsr_* lsr;
  };
  CHeap<Kept> lsrs_;
  size_t count_ = 0;
  size_t link_count_ = 0;
};

constexpr int32_t kNoDomain = -1;

// The domain of the local switch in the VSAN, or kNoDomain.
int32_t local_domain(int32_t session, uint32_t vsan) {
  mts_dm_sw_conf_ conf;
  std::memset(&conf, 0, sizeof conf);
  if (dm_cim_get_dmEntry(session, vsan, 1, &conf) == 0) return conf.domain_id;
  std::printf(
      "get domain entry fail, fspf link contains local link even only looking for remote links ");
  return kNoDomain;
}

constexpr uint8_t kPhysicalFc = 1;
constexpr uint8_t kPortChannel = 4;
constexpr uint8_t kFcip = 10;

// The type of an interface as names tell it. False when it cannot be told.
bool type_in_name(uint32_t if_index, uint8_t* type) {
  *type = kPhysicalFc;
  return !is_fspf_if_index(if_index) || if_index_get_type(if_index, type) == 0;
}

// One end of a link.
struct End {
  uint32_t domain;
  uint32_t if_index;
};

End end_of(const fspfLinkEntry& link, int32_t this_end) {
  if (this_end != 0) return {link.domain, link.if_index};
  return {link.remote_domain, link.remote_if_index};
}

int as_int(uint32_t number) {
  return static_cast<int>(number);
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t fspf_cim_get_fspfLSR(int32_t session, uint32_t vsan, uint32_t domain, int32_t,
                             fspf_lsr_** lsr_out) {
  if (lsr_out == nullptr) return -1;
  *lsr_out = nullptr;
  fspf_lsr_request_ request = {vsan, domain, 1, {}};
  wire::convert(&request, kRequest);
  Reply reply;
  const int32_t status = exchange({MTS_OPC_FSPF_LINK_STATE_RECORD, MTS_OPERATION_GET, MTS_SAP_FSPF,
                                   &request, sizeof request, Preset::unknown},
                                  session, &reply);
  if (status != 0 || !reply.holds(sizeof(fspf_lsr_))) {
    std::perror("get fspf lsr error");
    return -1;
  }
  *lsr_out = received_lsr(reply).release();
  return *lsr_out != nullptr ? 0 : -1;
}

int32_t fspf_cim_get_fspfLink(int32_t session, uint32_t vsan, uint32_t domain, uint32_t if_index,
                              fspfLinkEntry* link_out) {
  if (link_out == nullptr) return -1;
  const auto lsr = read_lsr(session, vsan, domain);
  if (lsr == nullptr) return -1;
  const fspfLinkEntry* links = links_of(lsr.get());
  for (size_t i = lsr[0].link_count; i > 0; --i) {
    if (links[i - 1].if_index != if_index) continue;
    *link_out = links[i - 1];
    return 0;
  }
  return -1;
}

int32_t fspf_cim_get_all_fspfLinks_of_domain(int32_t session, uint32_t vsan, uint32_t domain,
                                             int32_t* count_out, fspfLinkEntry** links_out) {
  if (count_out == nullptr || links_out == nullptr) return -1;
  *count_out = 0;
  *links_out = nullptr;
  const auto lsr = read_lsr(session, vsan, domain);
  if (lsr == nullptr) return -1;
  const size_t count = lsr[0].link_count;
  auto links = allocate<fspfLinkEntry>(std::max<size_t>(count, 1));
  if (links == nullptr) return -1;
  std::copy_n(links_of(lsr.get()), count, links.get());
  *count_out = static_cast<int32_t>(count);
  *links_out = links.release();
  return 0;
}

int32_t fspf_cim_get_all_fspfLinks_of_vsan(int32_t session, uint32_t vsan, int32_t* count_out,
                                           int32_t remote_only, fspfLinkEntry** links_out) {
  if (count_out == nullptr || links_out == nullptr) return -1;
  *count_out = 0;
  *links_out = nullptr;
  const int32_t skipped = remote_only != 0 ? local_domain(session, vsan) : kNoDomain;

  int32_t switch_count = 0;
  fcs_cim_ie_* listed = nullptr;
  const int32_t status = fcs_cim_get_ie_entries_in_vsan(session, vsan, &switch_count, &listed);
  CHeap<fcs_cim_ie_> switches(listed);
  if (status != 0) return -1;

  LsrTable lsrs(static_cast<size_t>(switch_count));
  if (!lsrs.has_memory()) return -1;
  for (int32_t i = 0; i < switch_count; ++i) {
    if (skipped != kNoDomain && switches[i].domain == static_cast<uint32_t>(skipped)) continue;
    auto lsr = read_lsr(session, vsan, switches[i].domain);
    if (lsr != nullptr) lsrs.add(std::move(lsr));
  }
  switches.reset();
  auto links = lsrs.links();
  if (links == nullptr) return -1;
  *count_out = static_cast<int32_t>(lsrs.link_count());
  *links_out = links.release();
  return 0;
}

int32_t fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(int32_t session,
                                                          const uint8_t* switch_wwn,
                                                          uint32_t if_index, GSList** list) {
  if (switch_wwn == nullptr || list == nullptr) return -1;
  OwnedList elements;
  fcs_cim_get_ie_list_with_wwn_hex(session, switch_wwn, &elements.head);
  elements.head = reversed(elements.head);  // from the last element to the first
  ListBuilder links(list);
  for (const GSList* node = elements.head; node != nullptr; node = node->next) {
    const auto& element = *static_cast<const fcs_cim_ie_*>(node->data);
    fspfLinkEntry link;
    if (fspf_cim_get_fspfLink(session, element.vsan, element.domain, if_index, &link) != 0)
      continue;
    if (!links.append_copy(&link, sizeof link)) return -1;
  }
  return *list != nullptr ? 0 : -1;
}

int32_t fspf_cim_get_all_fspfLinks_for_pwwn(int32_t session, const wwn_* port_wwn, GSList** list) {
  if (port_wwn == nullptr || list == nullptr) return -1;
  wwn_ switch_wwn;
  uint32_t if_index = 0;
  if (wwn_cim_get_switch_wwn_from_port_wwn(0, &switch_wwn, port_wwn) != 0 ||
      wwn_cim_get_port_index_from_wwn_hex(&if_index, port_wwn->bytes, 0) != 0)
    return -1;
  return fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(session, switch_wwn.bytes, if_index,
                                                           list);
}

int32_t fspf_cim_get_link_name(const fspfLinkEntry* link, char* dst, int32_t this_end) {
  if (link == nullptr || dst == nullptr) return -1;
  const End end = end_of(*link, this_end);
  uint8_t type;
  // Still a success, deliberately: callers look at the text.
  if (!type_in_name(end.if_index, &type)) return 0;
  std::snprintf(dst, CIM_FSPF_LINK_NAME_ROOM, "%d_%d_%d_%d_%d_%d", type, as_int(link->word_0),
                as_int(end.domain), as_int(link->word_2), as_int(link->word_3),
                as_int(end.if_index));
  return 0;
}

int32_t fspf_cim_get_physical_link_name(const uint8_t* switch_wwn, const fspfLinkEntry* link,
                                        char* dst, int32_t this_end) {
  if (switch_wwn == nullptr || link == nullptr || dst == nullptr) return -1;
  const End end = end_of(*link, this_end);
  uint8_t type;
  if (!type_in_name(end.if_index, &type)) return -1;
  if (type != kPortChannel && type != kFcip) type = kPhysicalFc;
  char wwn_text[17];
  cim_sprintf_wwn_uint_array(wwn_text, switch_wwn);
  std::snprintf(dst, CIM_FSPF_PHYSICAL_LINK_NAME_ROOM, "%s_%d_%d", wwn_text, as_int(end.if_index),
                type);
  return 0;
}

int32_t fspf_cim_get_fields_from_name(const char* name, int32_t* type_out, int32_t* w0_out,
                                      int32_t* domain_out, int32_t* w2_out, int32_t* w3_out,
                                      int32_t* if_index_out) {
  if (name == nullptr || type_out == nullptr) return -1;
  NameParts<32> parts(name);
  if (!parts.next_number(type_out)) return -1;
  if (*type_out != kPhysicalFc && *type_out != kPortChannel && *type_out != kFcip) return -1;
  for (int32_t* field : {w0_out, domain_out, w2_out, w3_out, if_index_out}) {
    if (field == nullptr || !parts.next_number(field)) return -1;
  }
  return 0;
}

int32_t fspf_cim_get_fields_from_physical_name(const char* name, char* wwn_text_out,
                                               int32_t* if_index_out, int32_t* type_out) {
  constexpr size_t kRoom = 64;
  if (name == nullptr || wwn_text_out == nullptr || if_index_out == nullptr || type_out == nullptr)
    return -1;
  if (strnlen(name, kRoom) == kRoom) return -1;
  NameParts<kRoom> parts(name);
  if (!parts.next_wwn(wwn_text_out) || !parts.next_number(if_index_out) ||
      !parts.next_number(type_out))
    return -1;
  return parts.next() == nullptr ? 0 : -1;
}

int32_t check_valid_vsan(void) {
  return 1;
}

int32_t check_valid_interface(void) {
  return 0;
}

int32_t fspf_check_if_active(void) {
  return 0;
}
