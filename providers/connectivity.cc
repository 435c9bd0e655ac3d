#include "providers/connectivity.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/fspf.h>
#include <cim_utils/name_server.h>
#include <cim_utils/port_manager.h>
#include <cim_utils/wwn_rules.h>
#include <switch_platform/if_index.h>
#include <switch_platform/port_manager.h>

#include <unordered_map>
#include <unordered_set>

#include "providers/port_blocks.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

uint32_t interface_of(const LinkEnd& end) {
  return end.local ? end.link.if_index : end.link.remote_if_index;
}

uint32_t domain_of(const LinkEnd& end) {
  return end.local ? end.link.domain : end.link.remote_domain;
}

// A port by the WWN of its device and its interface.
std::string name_of(const wwn_& device, uint32_t if_index) {
  return text_of(device) + " " + std::to_string(if_index);
}

// Whether a WWN is what a switch shows in a VSAN, and not its device's.
bool is_shown_in_vsan(const wwn_& wwn) {
  return wwn_cim_isVexorWwn(&wwn) == 0 || wwn_cim_get_vsan_index_from_wwn_str(wwn.bytes) > 0;
}

LinkEnd as_physical(LinkEnd end, bool physical) {
  end.physical = physical;
  return end;
}

// ---- asking the name server ----

std::vector<Registration> shared(int32_t count, ns_api_register_req_* entries) {
  const std::shared_ptr<const ns_api_register_req_> owner(entries, FreeCBlock());
  std::vector<Registration> found;
  for (int32_t i = 0; entries != nullptr && i < count; ++i)
    found.emplace_back(owner, entries + i);
  return found;
}

std::vector<Registration> registered_behind(int32_t q, uint32_t vsan, const wwn_& fabric_port) {
  int32_t count = 0;
  ns_api_register_req_* entries = nullptr;
  ns_cim_get_fxport_entries_with_wwn_byte_array(q, vsan, fabric_port.bytes, &count, &entries);
  return shared(count, entries);
}

// In every VSAN that is up, by what the WWN is of: a port of a device, or a node.
std::vector<Registration> registered_anywhere(int32_t q, const wwn_& wwn, int32_t code) {
  GSList* list = nullptr;
  ns_cim_get_all_name_server_entries_with_wwn(q, wwn.bytes, code, 0, 0, &list);
  const GListOwner owner(list);
  std::vector<Registration> found;
  for (const GSList* element = list; element != nullptr; element = element->next)
    found.push_back(std::make_shared<const ns_api_register_req_>(
        *static_cast<const ns_api_register_req_*>(element->data)));
  return found;
}

// ---- asking FSPF ----

// The ends of the links that leave a switch through an interface, one for each VSAN.
std::vector<LinkEnd> ends_in_vsans(int32_t q, const wwn_& device, uint32_t if_index) {
  GSList* list = nullptr;
  fspf_cim_get_all_fspfLinks_for_swwwn_and_if_index(q, device.bytes, if_index, &list);
  const GListOwner owner(list);
  std::vector<LinkEnd> found;
  for (const GSList* element = list; element != nullptr; element = element->next) {
    LinkEnd end{*static_cast<const fspfLinkEntry*>(element->data), {}, true, false};
    if (dm_cim_get_switch_wwn_by_domain_id(
            q, end.link.word_0, static_cast<uint8_t>(end.link.domain), &end.switch_wwn) == 0)
      found.push_back(end);
  }
  return found;
}

// The same where the switch does not tell the link: by the ends that other switches tell, for which
// all links are read.
std::vector<LinkEnd> ends_told_by_others(int32_t q, const wwn_& device, uint32_t if_index) {
  std::vector<LinkEnd> found;
  for (const uint32_t vsan : running_vsans(q))
    for (const LinkEnd& end : link_ends_of_vsan(q, vsan))
      if (interface_of(end) == if_index && same_wwn(device_wwn_of(end.switch_wwn), device))
        found.push_back(end);
  return found;
}

// Whether a port joins two switches.
bool is_expansion_port(const OwnPort& port) {
  constexpr uint16_t kE = 14;
  return pm_cim_convert_port_mode(port.info->oper_mode) == kE;
}

// ---- one port in several forms ----

void add_identities(const std::vector<LinkEnd>& ends, std::vector<LinkedPair>& found) {
  for (const LinkEnd& end : ends)
    found.push_back({as_physical(end, true), as_physical(end, false)});
}

void add_attached_identities(const std::vector<Registration>& entries, bool fabric_side,
                             std::vector<LinkedPair>& found) {
  for (const Attachment& side : attachments(entries))
    if (side.fabric_side == fabric_side && !side.physical)
      found.push_back({Attachment{side.entry, fabric_side, true}, side});
}

// An own port and its form as a port of its device, once however many VSANs or devices there are.
void add_own_identities(const OwnPort& port, const std::vector<LinkEnd>& ends,
                        const std::vector<Registration>& entries, std::vector<LinkedPair>& found) {
  if (!ends.empty()) found.push_back({port, as_physical(ends.front(), true)});
  for (const Attachment& side : attachments(entries))
    if (side.fabric_side && side.physical) found.push_back({port, side});
}

void add_identities_of(int32_t q, const OwnPort& port, std::vector<LinkedPair>& found) {
  const wwn_ port_wwn = port.info->wwn;
  const wwn_ own = own_switch_wwn(q);
  std::vector<LinkEnd> ends = ends_in_vsans(q, own, port.info->if_index);
  if (ends.empty() && is_expansion_port(port))
    ends = ends_told_by_others(q, own, port.info->if_index);
  add_own_identities(port, ends, registered_behind(q, port.info->vsan, port_wwn), found);
}

void add_identities_of(int32_t q, const LinkEnd& end, std::vector<LinkedPair>& found) {
  if (!end.physical) return add_identities({end}, found);
  const wwn_ device = device_wwn_of(end.switch_wwn);
  const uint32_t if_index = interface_of(end);
  std::vector<LinkEnd> ends = ends_in_vsans(q, device, if_index);
  if (ends.empty()) ends = ends_told_by_others(q, device, if_index);
  if (ends.empty() && is_shown_in_vsan(end.switch_wwn)) ends.push_back(end);
  if (ends.empty()) return;
  add_identities(ends, found);
  if (!same_wwn(device, own_switch_wwn(q))) return;
  for (const OwnPort& port : own_port(q, kind_of(if_index), if_index))
    found.push_back({port, as_physical(ends.front(), true)});
}

void add_identities_of(int32_t q, const Attachment& side, std::vector<LinkedPair>& found) {
  found.push_back({Attachment{side.entry, side.fabric_side, true},
                   Attachment{side.entry, side.fabric_side, false}});
  if (!side.fabric_side || !side.physical) return;
  const wwn_ port_wwn = side.entry->fabric_port_wwn;
  for (const OwnPort& port : own_ports_with_wwn(q, port_wwn))
    found.push_back({port, side});
}

// ---- endpoints ----

// Whether an endpoint is in a VSAN; which one.
uint32_t vsan_of(const OwnPort& port) {
  return port.info->vsan;
}
uint32_t vsan_of(const LinkEnd& end) {
  return end.link.word_0;
}
uint32_t vsan_of(const Attachment& side) {
  return side.entry->vsan_index;
}

uint32_t vsan_of(const Port& port) {
  return std::visit([](const auto& form) { return vsan_of(form); }, port);
}

// The switch that has the port of an endpoint; none for the ports of devices, and where the
// configuration server does not tell of the switch.
bool host_of(const OwnPort&, Switches& switches, LinkedObject& host) {
  host = switch_with_wwn(switches.own(), switches.own());
  return true;
}
bool host_of(const LinkEnd& end, Switches& switches, LinkedObject& host) {
  if (!switches.has(end.link.word_0, end.switch_wwn)) return false;
  host = switch_in_vsan(end.switch_wwn, switches.own());
  return true;
}
bool host_of(const Attachment& side, Switches& switches, LinkedObject& host) {
  const wwn_ port_wwn = side.entry->fabric_port_wwn;
  const uint32_t vsan = side.entry->vsan_index;
  wwn_ wwn{};
  if (!side.fabric_side || wwn_cim_get_switch_wwn_from_port_wwn(vsan, &wwn, &port_wwn) != 0 ||
      !switches.has(vsan, wwn))
    return false;
  host = switch_in_vsan(wwn, switches.own());
  return true;
}

std::vector<LinkedPair> hosted(int32_t q, const std::vector<Port>& endpoints) {
  std::vector<LinkedPair> found;
  Switches switches(q);
  LinkedObject host;
  for (const Port& port : endpoints)
    if (std::visit([&](const auto& form) { return host_of(form, switches, host); }, port))
      found.push_back({host, Endpoint{port}});
  return found;
}

std::vector<LinkedPair> implemented(const std::vector<Port>& endpoints) {
  std::vector<LinkedPair> found;
  found.reserve(endpoints.size());
  for (const Port& port : endpoints)
    found.push_back({linked(port), Endpoint{port}});
  return found;
}

// Ethernet ports and channels and the management port have a MAC address in place of a WWN.
bool has_wwn(const OwnPort& port) {
  const uint32_t if_index = port.info->if_index;
  uint8_t type = 0;
  if (pm_is_ether_channel(if_index) != 0 || if_index_get_type(if_index, &type) != 0) return false;
  return type == PM_IF_FC || type == PM_IF_PORT_CHANNEL || type == PM_IF_FCIP ||
         type == PM_IF_ISCSI;
}

// The endpoints of a port, in its VSAN: a port of a device has none of its own.
std::vector<Port> endpoints_of(int32_t, const OwnPort& port) {
  if (!has_wwn(port)) return {};
  return {port};
}
std::vector<Port> endpoints_of(int32_t, const LinkEnd& end) {
  if (end.physical) return {};
  return {end};
}
std::vector<Port> endpoints_of(int32_t q, const Attachment& side) {
  if (side.physical) return {};
  if (!side.fabric_side) return {side};
  const wwn_ port_wwn = side.entry->fabric_port_wwn;
  std::vector<Port> found;
  const auto entries = registered_behind(q, side.entry->vsan_index, port_wwn);
  for (const Attachment& endpoint : attachment_endpoints(entries))
    if (endpoint.fabric_side) found.emplace_back(endpoint);
  return found;
}

// ---- connections ----

// A switch by its domain, and an interface of it.
struct Place {
  uint32_t domain;
  uint32_t if_index;
};

bool operator<(const Place& a, const Place& b) {
  return a.domain != b.domain ? a.domain < b.domain : a.if_index < b.if_index;
}

Place near_place(const fspfLinkEntry& link) {
  return {link.domain, link.if_index};
}
Place far_place(const fspfLinkEntry& link) {
  return {link.remote_domain, link.remote_if_index};
}

// Of the two records of a link, which both its switches advertise, the one that tells of it.
bool tells_of_link(const fspfLinkEntry& link) {
  return near_place(link) < far_place(link);
}

fspfLinkEntry turned(const fspfLinkEntry& link) {
  fspfLinkEntry other = link;
  other.domain = link.remote_domain;
  other.if_index = link.remote_if_index;
  other.remote_domain = link.domain;
  other.remote_if_index = link.if_index;
  return other;
}

// The endpoints of a link with the ends as their switches show them. Both ends of a link have the
// same name from either side.
LinkedPair connection(const LinkEnd& near, const wwn_& far_wwn) {
  LinkEnd far = near;
  far.local = !near.local;
  far.switch_wwn = far_wwn;
  return {Endpoint{far}, Endpoint{near}};
}

void add_connection(int32_t q, const LinkEnd& end, std::vector<LinkedPair>& found) {
  LinkEnd near = end;
  near.physical = false;
  if (!near.local) {
    near.link = turned(end.link);
    near.local = true;
  }
  wwn_ far_wwn;
  if (dm_cim_get_switch_wwn_by_domain_id(
          q, near.link.word_0, static_cast<uint8_t>(near.link.remote_domain), &far_wwn) != 0)
    return;
  if (tells_of_link(near.link)) {
    found.push_back(connection(near, far_wwn));
    return;
  }
  const LinkEnd other{turned(near.link), far_wwn, true, false};
  found.push_back(connection(other, near.switch_wwn));
}

void add_link_connections(int32_t q, uint32_t vsan, std::vector<LinkedPair>& found) {
  std::unordered_map<uint32_t, wwn_> switches;
  const std::vector<LinkEnd> ends = link_ends_of_vsan(q, vsan);
  for (const LinkEnd& end : ends)
    switches[domain_of(end)] = end.switch_wwn;
  // Every end stands there once, so that one of the two tells of the link.
  for (const LinkEnd& end : ends) {
    LinkEnd near = end;
    if (!near.local) {
      near.link = turned(end.link);
      near.local = true;
    }
    const uint32_t far_domain = near.link.remote_domain;  // of a packed record
    const auto far = switches.find(far_domain);
    if (tells_of_link(near.link) && far != switches.end())
      found.push_back(connection(near, far->second));
  }
}

LinkedPair connection(const Registration& entry) {
  return {Endpoint{Attachment{entry, true, false}}, Endpoint{Attachment{entry, false, false}}};
}

void add_attached_connections(const std::vector<Registration>& entries,
                              std::vector<LinkedPair>& found) {
  for (const Attachment& side : attachment_endpoints(entries))
    if (side.fabric_side) found.push_back(connection(side.entry));
}

// ---- nodes ----

std::vector<LinkedPair> ports_of_nodes(const std::vector<Registration>& entries) {
  std::vector<LinkedPair> found;
  for (const Attachment& side : attachments(entries))
    if (!side.fabric_side && side.physical) found.push_back({Node{side.entry->node_wwn}, side});
  return found;
}

// ---- VSANs ----

template <class Form>
void add_members(uint32_t vsan, const std::vector<Form>& endpoints,
                 std::vector<LinkedPair>& found) {
  for (const Form& endpoint : endpoints)
    if (vsan_of(endpoint) == vsan)
      found.push_back({ConnectivityCollection{vsan}, Endpoint{endpoint}});
}

// Leaves out the endpoints of ports in a VSAN that the VSAN manager does not know. Asks once for
// each VSAN.
std::vector<LinkedPair> members(int32_t q, const std::vector<Port>& endpoints) {
  std::unordered_map<uint32_t, bool> known;
  std::vector<LinkedPair> found;
  for (const Port& port : endpoints) {
    const uint32_t number = vsan_of(port);
    const auto [vsan, is_new] = known.try_emplace(number, false);
    vsanNewEntry_t entry;
    if (is_new) vsan->second = read_vsan_entry(q, number, entry);
    if (vsan->second) found.push_back({ConnectivityCollection{number}, Endpoint{port}});
  }
  return found;
}

// ---- other systems ----

// The port at the far end of an own link, named as FSPF names a port of a device.
bool remote_end(int32_t q, const fspfLinkEntry& link, RemoteAccessPoint& remote) {
  wwn_ shown;
  if (dm_cim_get_switch_wwn_by_domain_id(q, link.word_0, static_cast<uint8_t>(link.remote_domain),
                                         &shown) != 0)
    return false;
  const wwn_ device = device_wwn_of(shown);
  char name[CIM_FSPF_PHYSICAL_LINK_NAME_ROOM] = {};
  if (fspf_cim_get_physical_link_name(device.bytes, &link, name, 0) != 0) return false;
  remote = {name, text_of(device)};
  return true;
}

std::vector<fspfLinkEntry> own_links(int32_t q, uint32_t vsan) {
  mts_dm_sw_conf_ own{};
  if (dm_cim_get_dmEntry(q, vsan, 1, &own) != 0) return {};
  int32_t count = 0;
  fspfLinkEntry* links = nullptr;
  const int32_t status =
      fspf_cim_get_all_fspfLinks_of_domain(q, vsan, own.domain_id, &count, &links);
  const CBlock<fspfLinkEntry> owner(links);
  if (status != 0 || links == nullptr || count <= 0) return {};
  return {links, links + count};
}

bool any_link(const fspfLinkEntry&) {
  return true;
}

// visit(if_index, RemoteAccessPoint) for the far end of every own link that is wanted, each once.
template <class Visit, class IsWanted>
void for_each_remote_end(int32_t q, const std::vector<uint32_t>& vsans, IsWanted is_wanted,
                         Visit visit) {
  std::unordered_set<uint32_t> listed;
  RemoteAccessPoint remote;
  for (const uint32_t vsan : vsans)
    for (const fspfLinkEntry& link : own_links(q, vsan))
      if (const uint32_t if_index = link.if_index;
          is_wanted(link) && !listed.contains(if_index) && remote_end(q, link, remote)) {
        listed.insert(if_index);
        visit(if_index, remote);
      }
}

RemoteAccessPoint remote_device(const Registration& entry) {
  return {text_of(entry->port_wwn), text_of(entry->node_wwn)};
}

// visit(WWN of the switch port, RemoteAccessPoint) for every device behind a port of the own
// switch, each once.
template <class Visit>
void for_each_remote_device(int32_t q, const std::vector<uint32_t>& vsans, Visit visit) {
  const wwn_ own = own_switch_wwn(q);
  for (const Attachment& side : attachments(registrations(q, vsans))) {
    if (side.fabric_side || !side.physical) continue;
    const wwn_ port_wwn = side.entry->fabric_port_wwn;
    wwn_ wwn{};
    if (wwn_cim_get_switch_wwn_from_port_wwn(0, &wwn, &port_wwn) == 0 && same_wwn(wwn, own))
      visit(port_wwn, remote_device(side.entry));
  }
}

std::vector<LinkedPair> remote_connections_among(int32_t q, const std::vector<OwnPort>& ports) {
  std::unordered_map<uint32_t, const OwnPort*> by_index;
  std::unordered_map<uint64_t, const OwnPort*> by_wwn;
  for (const OwnPort& port : ports) {
    const uint32_t if_index = port.info->if_index;  // of a packed record
    by_index.emplace(if_index, &port);
    by_wwn.emplace(number_of(port.info->wwn), &port);
  }
  std::vector<LinkedPair> found;
  const std::vector<uint32_t> vsans = running_vsans(q);
  for_each_remote_end(q, vsans, any_link, [&](uint32_t if_index, const RemoteAccessPoint& remote) {
    const auto port = by_index.find(if_index);
    if (port != by_index.end()) found.push_back({*port->second, remote});
  });
  for_each_remote_device(q, vsans, [&](const wwn_& port_wwn, const RemoteAccessPoint& remote) {
    const auto port = by_wwn.find(number_of(port_wwn));
    if (port != by_wwn.end()) found.push_back({*port->second, remote});
  });
  return found;
}

// The own ports that are connected to a device's port, by its WWN.
void add_remote_device(int32_t q, const wwn_& wwn, std::vector<LinkedPair>& found) {
  const wwn_ own = own_switch_wwn(q);
  for (const Registration& entry : registered_anywhere(q, wwn, NS_CIM_NODE_SIDE)) {
    const wwn_ port_wwn = entry->fabric_port_wwn;
    wwn_ owner{};
    if (wwn_cim_get_switch_wwn_from_port_wwn(0, &owner, &port_wwn) != 0 || !same_wwn(owner, own))
      continue;
    for (const OwnPort& port : own_ports_with_wwn(q, port_wwn))
      found.push_back({port, remote_device(entry)});
  }
}

// The own port that is linked to another switch's, by the name that FSPF gives a port of a device.
// The own switch tells its links; the other one need not.
void add_remote_end(int32_t q, const char* name, std::vector<LinkedPair>& found) {
  char text[kWwnText + 1] = {};
  int32_t number = 0;
  int32_t type = 0;
  if (fspf_cim_get_fields_from_physical_name(name, text, &number, &type) != 0) return;
  const auto far_index = static_cast<uint32_t>(number);
  for_each_remote_end(
      q, running_vsans(q),
      [&](const fspfLinkEntry& link) { return link.remote_if_index == far_index; },
      [&](uint32_t if_index, const RemoteAccessPoint& remote) {
        if (remote.name != name) return;
        for (const OwnPort& port : own_port(q, kind_of(if_index), if_index))
          found.push_back({port, remote});
      });
}

}  // namespace

// ---- VEXOR_LogicalIdentity ----

std::vector<LinkedPair> port_identities(int32_t q) {
  const std::vector<uint32_t> vsans = running_vsans(q);
  const wwn_ own = own_switch_wwn(q);
  std::vector<LinkEnd> ends;
  std::unordered_map<uint32_t, std::vector<LinkEnd>> own_ends;
  std::unordered_set<std::string> ports;
  for (const LinkEnd& end : link_ends(q, vsans)) {
    if (end.physical) continue;
    ends.push_back(end);
    const wwn_ device = device_wwn_of(end.switch_wwn);
    if (same_wwn(device, own) && ports.insert(name_of(device, interface_of(end))).second)
      own_ends[interface_of(end)].push_back(end);
  }
  const std::vector<Registration> entries = registrations(q, vsans);
  std::unordered_map<uint64_t, std::vector<Registration>> behind;
  for (const Registration& entry : entries)
    behind[number_of(entry->fabric_port_wwn)].push_back(entry);

  std::vector<LinkedPair> found;
  for (const OwnPort& port : all_own_ports(q)) {
    const uint32_t if_index = port.info->if_index;  // of a packed record
    const wwn_ port_wwn = port.info->wwn;
    add_own_identities(port, own_ends[if_index], behind[number_of(port_wwn)], found);
  }
  add_identities(ends, found);
  for (const bool fabric_side : {true, false})
    add_attached_identities(entries, fabric_side, found);
  return found;
}

std::vector<LinkedPair> port_identities_of(int32_t q, int, const ObjectName& object) {
  std::vector<LinkedPair> found;
  for (const Port& port : ports_like(q, object))
    std::visit([&](const auto& form) { add_identities_of(q, form, found); }, port);
  return found;
}

// ---- endpoints ----

std::vector<LinkedPair> hosted_endpoints(int32_t q) {
  return hosted(q, endpoints(q));
}

std::vector<LinkedPair> hosted_endpoints_of(int32_t q, int end, const ObjectName& object) {
  return hosted(q, end == 0 ? endpoints(q) : endpoints_named(q, object));
}

std::vector<LinkedPair> implemented_endpoints(int32_t q) {
  return implemented(endpoints(q));
}

std::vector<LinkedPair> implemented_endpoints_of(int32_t q, int end, const ObjectName& object) {
  if (end == 1) return implemented(endpoints_named(q, object));
  std::vector<Port> found;
  for (const Port& port : ports_like(q, object))
    std::visit(
        [&](const auto& form) {
          for (const Port& endpoint : endpoints_of(q, form))
            found.push_back(endpoint);
        },
        port);
  return implemented(found);
}

// ---- connections ----

std::vector<LinkedPair> connections(int32_t q) {
  std::vector<LinkedPair> found;
  const std::vector<uint32_t> vsans = running_vsans(q);
  for (const uint32_t vsan : vsans)
    add_link_connections(q, vsan, found);
  add_attached_connections(registrations(q, vsans), found);
  return found;
}

std::vector<LinkedPair> connections_of(int32_t q, int, const ObjectName& object) {
  std::vector<LinkedPair> found;
  for (const Port& port : endpoints_named(q, object)) {
    if (const auto* end = std::get_if<LinkEnd>(&port)) add_connection(q, *end, found);
    if (const auto* side = std::get_if<Attachment>(&port)) found.push_back(connection(side->entry));
  }
  return found;
}

// ---- collections ----

std::vector<LinkedPair> node_ports(int32_t q) {
  return ports_of_nodes(registrations(q, running_vsans(q)));
}

std::vector<LinkedPair> node_ports_of(int32_t q, int end, const ObjectName& object) {
  if (end == 0) {
    wwn_ wwn;
    if (!read_wwn(object.text("InstanceID"), wwn)) return {};
    return ports_of_nodes(registered_anywhere(q, wwn, NS_CIM_NODE));
  }
  std::vector<Registration> entries;
  for (const Port& port : ports_like(q, object))
    if (const auto* side = std::get_if<Attachment>(&port)) entries.push_back(side->entry);
  return ports_of_nodes(entries);
}

std::vector<LinkedPair> connected_endpoints(int32_t q) {
  return members(q, endpoints(q));
}

std::vector<LinkedPair> connected_endpoints_of(int32_t q, int end, const ObjectName& object) {
  if (end == 1) return members(q, endpoints_named(q, object));
  const uint32_t number = read_vsan_number(object.text("InstanceID"));
  vsanNewEntry_t vsan;
  if (number == 0 || !read_vsan_entry(q, number, vsan)) return {};
  std::vector<LinkedPair> found;
  add_members(number, own_ports_with_wwns(q), found);
  if (!is_up(vsan)) return found;
  add_members(number, link_ends_of_vsan(q, number), found);
  add_members(number, attachment_endpoints(registrations(q, {number})), found);
  return found;
}

// ---- other systems ----

std::vector<LinkedPair> remote_connections(int32_t q) {
  return remote_connections_among(q, all_own_ports(q));
}

std::vector<LinkedPair> remote_connections_of(int32_t q, int end, const ObjectName& object) {
  if (end == 0) return remote_connections_among(q, own_ports_like(q, object));
  std::vector<LinkedPair> found;
  const char* name = object.text("Name");
  if (name == nullptr) return found;
  if (wwn_ wwn; read_wwn(name, wwn)) {
    add_remote_device(q, wwn, found);
  } else {
    add_remote_end(q, name, found);
  }
  return found;
}

std::vector<RemoteAccessPoint> remote_access_points_named(int32_t q, const ObjectName& name) {
  std::vector<RemoteAccessPoint> found;
  for (const LinkedPair& pair : remote_connections_of(q, 1, name))
    found.push_back(std::get<RemoteAccessPoint>(pair.second));
  return found;
}

std::vector<RemoteAccessPoint> remote_access_points(int32_t q) {
  std::vector<RemoteAccessPoint> found;
  const std::vector<uint32_t> vsans = running_vsans(q);
  for_each_remote_end(q, vsans, any_link,
                      [&](uint32_t, const RemoteAccessPoint& remote) { found.push_back(remote); });
  for_each_remote_device(
      q, vsans, [&](const wwn_&, const RemoteAccessPoint& remote) { found.push_back(remote); });
  return found;
}

}  // namespace vexor::providers
