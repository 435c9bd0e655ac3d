#include "providers/port_links.h"

#include <cim_utils/cmpi_ports.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/fspf.h>
#include <cim_utils/vsan.h>

#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "providers/computer_system.h"
#include "providers/port_blocks.h"
#include "providers/port_own.h"
#include "providers/queue.h"
#include "providers/vsan.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

constexpr unsigned char kFlag = 1;       // which the library's builders do not look at
constexpr size_t kLongestDeviceId = 31;  // the library cuts a longer one
constexpr long kLargestVsan = 4095;

uint32_t domain_of(const LinkEnd& end) {
  return end.local ? end.link.domain : end.link.remote_domain;
}

uint32_t interface_of(const LinkEnd& end) {
  return end.local ? end.link.if_index : end.link.remote_if_index;
}

wwn_ device_of(const LinkEnd& end) {
  wwn_ wwn = end.switch_wwn;
  wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&wwn, &end.switch_wwn);
  return wwn;
}

std::string link_name(const LinkEnd& end) {
  char name[CIM_FSPF_LINK_NAME_ROOM] = {};
  // An interface that the platform does not know leaves the name unwritten.
  fspf_cim_get_link_name(&end.link, name, end.local ? 1 : 0);
  return name;
}

// "DeviceID" as the library's builders write it.
std::string device_id(const LinkEnd& end) {
  const std::string number = std::to_string(static_cast<int32_t>(interface_of(end)));
  std::string name;
  if (end.physical) {
    char text[CIM_FSPF_PHYSICAL_LINK_NAME_ROOM] = {};
    const wwn_ wwn = device_of(end);
    fspf_cim_get_physical_link_name(wwn.bytes, &end.link, text, end.local ? 1 : 0);
    name = text[0] != '\0' ? text : text_of(wwn) + "_" + number;
  } else {
    name = link_name(end);
    if (name.empty())
      name = text_of(end.switch_wwn) + "_" + std::to_string(static_cast<int32_t>(end.link.word_0)) +
             "_" + number;
  }
  return name.substr(0, kLongestDeviceId);
}

// What tells two ends apart.
std::string identity(const LinkEnd& end) {
  return text_of(end.physical ? device_of(end) : end.switch_wwn) + " " + device_id(end);
}

bool is_up(int32_t q, uint32_t vsan) {
  vsanNewEntry_t entry;
  return read_vsan_entry(q, vsan, entry) && vexor::providers::is_up(entry);
}

std::vector<fspfLinkEntry> links_of_switch(int32_t q, uint32_t vsan, uint32_t domain) {
  int32_t count = 0;
  fspfLinkEntry* links = nullptr;
  const int32_t status = fspf_cim_get_all_fspfLinks_of_domain(q, vsan, domain, &count, &links);
  const CBlock<fspfLinkEntry> owner(links);
  if (status != 0 || links == nullptr || count <= 0) return {};
  return {links, links + count};
}

// ---- by name ----

// The ends of a VSAN that `matches`, for a name that does not tell where to look.
template <class Matches>
void add_matching(int32_t q, uint32_t vsan, bool physical, Matches matches,
                  std::vector<LinkEnd>& found) {
  for (LinkEnd& end : link_ends_of_vsan(q, vsan)) {
    end.physical = physical;
    if (matches(end)) found.push_back(end);
  }
}

struct LinkName {
  int32_t type, vsan, domain, word_2, word_3, if_index;
};

bool read_link_name(const char* text, LinkName& name) {
  name = {};
  return fspf_cim_get_fields_from_name(text, &name.type, &name.vsan, &name.domain, &name.word_2,
                                       &name.word_3, &name.if_index) == 0;
}

// The second number of a link name, of which the library reads those of some types only; 0 for a
// text that is none.
uint32_t vsan_of_link_name(const char* text) {
  const char* separator = std::strchr(text, '_');
  if (separator == nullptr) return 0;
  const long number = std::strtol(separator + 1, nullptr, 10);
  return number > 0 && number <= kLargestVsan ? static_cast<uint32_t>(number) : 0;
}

// The end whose link the named switch advertises.
bool find_advertised(int32_t q, const LinkName& name, LinkEnd& end) {
  const auto vsan = static_cast<uint32_t>(name.vsan);
  const auto domain = static_cast<uint32_t>(name.domain);
  end = {};
  end.local = true;
  return domain <= 0xFF &&
         fspf_cim_get_fspfLink(q, vsan, domain, static_cast<uint32_t>(name.if_index), &end.link) ==
             0 &&
         dm_cim_get_switch_wwn_by_domain_id(q, vsan, static_cast<uint8_t>(domain),
                                            &end.switch_wwn) == 0;
}

// By a link name, whole or cut.
template <class Matches>
std::vector<LinkEnd> ends_with_link_name(int32_t q, const char* text, Matches matches) {
  LinkName name;
  LinkEnd end;
  if (read_link_name(text, name) && find_advertised(q, name, end) && matches(end)) return {end};
  std::vector<LinkEnd> found;
  const uint32_t vsan = vsan_of_link_name(text);
  if (vsan != 0 && is_up(q, vsan)) add_matching(q, vsan, false, matches, found);
  return found;
}

// By "WWN_INTERFACE_TYPE", or what stands for it where the platform does not know the interface.
std::vector<LinkEnd> ends_with_device_wwn(int32_t q, const char* text) {
  const auto matches = [text](const LinkEnd& end) { return device_id(end) == text; };
  char wwn_text[kWwnText + 1] = {};
  int32_t if_index = 0;
  int32_t type = 0;
  wwn_ wwn;
  if (fspf_cim_get_fields_from_physical_name(text, wwn_text, &if_index, &type) == 0 &&
      read_wwn(wwn_text, wwn)) {
    GSList* list = nullptr;
    fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(q, wwn.bytes, static_cast<uint32_t>(if_index),
                                                      &list);
    const GListOwner owner(list);
    for (const GSList* node = list; node != nullptr; node = node->next) {
      const LinkEnd end{*static_cast<const fspfLinkEntry*>(node->data), wwn, true, true};
      if (matches(end)) return {end};
    }
  }
  std::vector<LinkEnd> found;
  for (const uint32_t vsan : running_vsans(q))
    for (const bool physical : {true, false})
      if (found.empty()) add_matching(q, vsan, physical, matches, found);
  return found;
}

bool begins_with_wwn(const char* text) {
  wwn_ wwn;
  return std::strlen(text) > kWwnText && text[kWwnText] == '_' &&
         read_wwn(std::string(text, kWwnText).c_str(), wwn);
}

}  // namespace

std::vector<uint32_t> running_vsans(int32_t q) {
  std::vector<uint32_t> running;
  for (const vsanNewEntry_t& entry : all_vsan_entries(q))
    if (vexor::providers::is_up(entry)) running.push_back(entry.vsan_index);
  return running;
}

namespace {

// The WWN that a switch shows in a VSAN, by its domain, from the domain manager.
std::optional<wwn_> switch_of_domain(int32_t q, uint32_t vsan, uint32_t domain) {
  wwn_ wwn;
  if (domain > 0xFF ||
      dm_cim_get_switch_wwn_by_domain_id(q, vsan, static_cast<uint8_t>(domain), &wwn) != 0)
    return std::nullopt;
  return wwn;
}

}  // namespace

std::vector<LinkEnd> link_ends_of_vsan(int32_t q, uint32_t vsan) {
  const std::vector<fcs_cim_ie_> elements = elements_of(q, vsan);
  std::unordered_map<uint32_t, std::optional<wwn_>> switches;
  for (const fcs_cim_ie_& element : elements)
    switches[element.domain & 0xFF] = element.wwn;
  std::vector<LinkEnd> ends;
  std::unordered_set<std::string> listed;
  for (const fcs_cim_ie_& element : elements) {
    for (const fspfLinkEntry& link : links_of_switch(q, vsan, element.domain & 0xFF)) {
      for (const bool local : {true, false}) {
        LinkEnd end{link, {}, local, false};
        const auto [owner, is_new] = switches.try_emplace(domain_of(end));
        if (is_new) owner->second = switch_of_domain(q, vsan, domain_of(end));
        if (!owner->second) continue;
        end.switch_wwn = *owner->second;
        if (listed.insert(identity(end)).second) ends.push_back(end);
      }
    }
  }
  return ends;
}

std::vector<LinkEnd> link_ends(int32_t q, const std::vector<uint32_t>& vsans) {
  std::vector<LinkEnd> ends;
  std::unordered_set<std::string> devices;
  for (const uint32_t vsan : vsans) {
    for (LinkEnd& end : link_ends_of_vsan(q, vsan)) {
      ends.push_back(end);
      end.physical = true;
      if (devices.insert(identity(end)).second) ends.push_back(end);
    }
  }
  return ends;
}

std::vector<LinkEnd> link_ends_named(int32_t q, const char* text) {
  if (begins_with_wwn(text)) return ends_with_device_wwn(q, text);
  return ends_with_link_name(q, text,
                             [text](const LinkEnd& end) { return device_id(end) == text; });
}

CMPIObjectPath* link_end_reference(const Target& target, const LinkEnd& end) {
  return fcport_fill_reference_fspf_wwnt(0, target.name_space, target.class_name, &end.link,
                                         &end.switch_wwn, end.physical, kFlag, end.local,
                                         target.broker);
}

CMPIInstance* link_end_instance(const Target& target, const LinkEnd& end) {
  CMPIInstance* instance = fcport_build_instance_fspf_wwn(
      0, target.class_name, target.name_space, &end.link, end.switch_wwn.bytes, end.physical, kFlag,
      end.local, target.properties, target.broker);
  if (instance != nullptr) complete_port_number(target, interface_of(end), instance);
  return instance;
}

// ---- endpoints ----

std::string endpoint_name(const LinkEnd& end) {
  const std::string name = link_name(end);
  return name.empty() ? kNoLinkName : name;
}

std::vector<LinkEnd> link_endpoints_named(int32_t q, const char* name) {
  const auto matches = [name](const LinkEnd& end) { return endpoint_name(end) == name; };
  if (std::strcmp(name, kNoLinkName) != 0) return ends_with_link_name(q, name, matches);
  std::vector<LinkEnd> found;
  for (const uint32_t vsan : running_vsans(q))
    add_matching(q, vsan, false, matches, found);
  return found;
}

CMPIObjectPath* link_endpoint_reference(const Target& target, const LinkEnd& end) {
  return pe_fill_reference_fspf(target.class_name, target.name_space, queue::handle(), &end.link,
                                end.local, target.broker);
}

CMPIInstance* link_endpoint_instance(const Target& target, const LinkEnd& end) {
  return pe_build_instance_fspf(target.class_name, target.name_space, queue::handle(), &end.link,
                                end.local, target.properties, target.broker);
}

}  // namespace vexor::providers
