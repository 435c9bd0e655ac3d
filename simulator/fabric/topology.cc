#include "simulator/fabric/topology.h"

#include <algorithm>
#include <tuple>

namespace switch_sim {
namespace {

constexpr uint32_t kFastestPort = 2000;

InterfaceType type_of(const Interface& interface) {
  return static_cast<InterfaceType>(type_bits(interface.if_index));
}

bool runs(const Fabric& fabric, const Wwn& switch_wwn, uint32_t number) {
  const Vsan* vsan = find_vsan(fabric, number);
  const DomainManager* domain = vsan != nullptr ? find_domain(*vsan, switch_wwn) : nullptr;
  return domain != nullptr && is_running(*vsan, *domain);
}

bool allows(PortMode configured, PortMode wanted) {
  if (configured == PortMode::automatic || configured == wanted) return true;
  if (configured == PortMode::fx) return wanted == PortMode::f || wanted == PortMode::fl;
  return configured == PortMode::tl && wanted == PortMode::fl;
}

// The speed that two ports agree on; 0 when they cannot.
uint32_t common_speed(const Interface& left, const Interface& right) {
  if (left.speed != 0 && right.speed != 0 && left.speed != right.speed) return 0;
  const uint32_t configured = std::max(left.speed, right.speed);
  return configured != 0 ? configured : kFastestPort;
}

bool lists(const Link& link, uint32_t vsan) {
  return link.vsans.empty() || std::binary_search(link.vsans.begin(), link.vsans.end(), vsan);
}

}  // namespace

// Fills a topology, from the ports of the modules to what depends on them.
class TopologyBuilder {
 public:
  TopologyBuilder(const Fabric& fabric, Topology& made) : fabric_(fabric), made_(made) {}

  void build() {
    for (const Switch& element : fabric_.switches)
      add_switch(element);
    for (const Switch& element : fabric_.switches) {
      work_out(element, InterfaceType::ethernet);
      work_out(element, InterfaceType::management);
      work_out(element, InterfaceType::port_channel);
      work_out(element, InterfaceType::iscsi);
    }
    for (size_t i = 0; i < fabric_.links.size(); ++i)
      add_link(i);
    collect_linked();
    for (uint32_t i = 0; i < fabric_.devices.size(); ++i)
      add_device(i);
    index_registrations();
  }

 private:
  using Slot = Topology::Slot;

  Slot& slot(const Wwn& switch_wwn, uint32_t if_index) {
    return const_cast<Slot&>(*made_.find(switch_wwn, if_index));
  }

  const Interface& interface(const LinkEnd& end) const {
    return *find_interface(*find_switch(fabric_, end.switch_wwn), end.if_index);
  }

  void add_switch(const Switch& element) {
    made_.blocks_.push_back({element.wwn, made_.slots_.size(), element.interfaces.size(), {}});
    for (const Interface& port : element.interfaces) {
      Slot& added = made_.slots_.emplace_back();
      added.if_index = port.if_index;
      added.status.physically_enabled = is_enabled(element, port);
      if (type_of(port) == InterfaceType::fcip) {
        made_.fcip_[{element.wwn, port.ethernet}].push_back(port.if_index);
      }
    }
    for (const Interface& channel : element.interfaces) {
      for (const uint32_t member : channel.members)
        slot(element.wwn, member).channel = channel.if_index;
    }
  }

  static bool is_enabled(const Switch& element, const Interface& port) {
    if (port.admin_state != AdminState::up) return false;
    const Module* module = module_of(element, port.if_index);
    if (module != nullptr && module->state != ModuleState::ok) return false;
    return type_of(port) != InterfaceType::fibre_channel || port.optics == Optics::supported;
  }

  // Interfaces that need no link: everything that carries Ethernet.
  void work_out(const Switch& element, InterfaceType type) {
    const uint32_t start = make_if_index(type, 0, 0);
    for (const Interface* port = next_interface(element, start);
         port != nullptr && type_of(*port) == type;
         port = next_interface(element, port->if_index)) {
      PortStatus& status = slot(element.wwn, port->if_index).status;
      if (!status.physically_enabled) continue;
      const uint32_t speed = ethernet_speed(element, *port);
      if (speed == 0 || (type == InterfaceType::iscsi && !runs(fabric_, element.wwn, port->vsan))) {
        continue;
      }
      status.state = OperState::up;
      status.speed = speed;
    }
  }

  // 0: nothing is connected.
  uint32_t ethernet_speed(const Switch& element, const Interface& port) {
    switch (type_of(port)) {
      case InterfaceType::ethernet:
        return port.cable ? 1000 : 0;
      case InterfaceType::management:
        return port.cable ? 100 : 0;
      case InterfaceType::iscsi: {
        const uint32_t below = make_if_index(InterfaceType::ethernet, slot_bits(port.if_index),
                                             unit_bits(port.if_index));
        return slot(element.wwn, below).status.speed;
      }
      default: {
        uint32_t speed = 0;
        if (!is_ethernet_channel(port.if_index)) return 0;
        for (const uint32_t member : port.members)
          speed += slot(element.wwn, member).status.speed;
        return speed;
      }
    }
  }

  bool carries(const Link& link, uint32_t vsan) const {
    return std::all_of(link.ends.begin(), link.ends.end(),
                       [&](const LinkEnd& end) {
                         return (link.trunking || interface(end).vsan == vsan) &&
                                runs(fabric_, end.switch_wwn, vsan);
                       }) &&
           lists(link, vsan);
  }

  bool carries_any(const Link& link) const {
    if (!link.trunking) return carries(link, interface(link.ends[0]).vsan);
    return std::any_of(fabric_.vsans.begin(), fabric_.vsans.end(),
                       [&](const Vsan& vsan) { return carries(link, vsan.number); });
  }

  // Both ends of a cable, as far as the ports decide.
  bool may_connect(const LinkEnd& end) {
    const Interface& port = interface(end);
    if (!slot(end.switch_wwn, end.if_index).status.physically_enabled) return false;
    return allows(port.mode, PortMode::e);
  }

  uint32_t tunnel_speed(const Link& link) {
    for (const LinkEnd& end : link.ends) {
      const uint32_t below = interface(end).ethernet;
      if (!slot(end.switch_wwn, below).status.works()) return 0;
    }
    return 1000;
  }

  void set_up(const LinkEnd& end, bool trunking, uint32_t speed) {
    PortStatus& status = slot(end.switch_wwn, end.if_index).status;
    status.state = trunking ? OperState::trunking : OperState::up;
    status.mode = trunking ? PortMode::te : PortMode::e;
    status.speed = speed;
  }

  // The members in their order are connected with one another. The speed of all that work.
  uint32_t connect_members(const Link& link) {
    uint32_t sum = 0;
    const auto& left = interface(link.ends[0]).members;
    const auto& right = interface(link.ends[1]).members;
    for (size_t i = 0; i < left.size(); ++i) {
      const LinkEnd near = {link.ends[0].switch_wwn, left[i]};
      const LinkEnd far = {link.ends[1].switch_wwn, right[i]};
      const uint32_t speed = common_speed(interface(near), interface(far));
      if (!may_connect(near) || !may_connect(far) || speed == 0) continue;
      set_up(near, link.trunking, speed);
      set_up(far, link.trunking, speed);
      sum += speed;
    }
    return sum;
  }

  void add_link(size_t number) {
    const Link& link = fabric_.links[number];
    for (const LinkEnd& end : link.ends)
      slot(end.switch_wwn, end.if_index).link = static_cast<int64_t>(number);
    if (!may_connect(link.ends[0]) || !may_connect(link.ends[1]) || !carries_any(link)) return;
    uint32_t speed = 0;
    if (is_fc_channel(link.ends[0].if_index)) {
      speed = connect_members(link);
    } else if (type_of(interface(link.ends[0])) == InterfaceType::fcip) {
      speed = tunnel_speed(link);
    } else {
      speed = common_speed(interface(link.ends[0]), interface(link.ends[1]));
    }
    if (speed == 0) return;
    for (const LinkEnd& end : link.ends)
      set_up(end, link.trunking, speed);
  }

  void collect_linked() {
    for (Topology::Block& block : made_.blocks_) {
      for (size_t i = block.first; i < block.first + block.count; ++i) {
        if (made_.slots_[i].link >= 0) block.linked.push_back(i);
      }
    }
  }

  void add_device(uint32_t number) {
    const Device& device = fabric_.devices[number];
    const LinkEnd& end = device.attached_to;
    const Interface& port = interface(end);
    PortStatus& status = slot(end.switch_wwn, end.if_index).status;
    if (type_of(port) == InterfaceType::fibre_channel) {
      const PortMode mode = device.kind == DeviceKind::n_port ? PortMode::f : PortMode::fl;
      if (!status.physically_enabled || !allows(port.mode, mode) ||
          !runs(fabric_, end.switch_wwn, port.vsan)) {
        return;
      }
      status.state = OperState::up;
      status.mode = port.mode == PortMode::tl ? PortMode::tl : mode;
      status.speed = port.speed != 0 ? port.speed : kFastestPort;
    } else if (!status.works()) {
      return;
    }
    const DomainManager* domain = find_domain(*find_vsan(fabric_, port.vsan), end.switch_wwn);
    made_.registrations_.push_back({port.vsan,
                                    {domain->domain_id, device.area, device.port},
                                    number,
                                    port_wwn(end.switch_wwn, end.if_index)});
  }

  void index_registrations() {
    auto& all = made_.registrations_;
    std::sort(all.begin(), all.end(), [](const Registration& left, const Registration& right) {
      return std::tie(left.vsan, left.fc_id) < std::tie(right.vsan, right.fc_id);
    });
    for (uint32_t i = 0; i < all.size(); ++i) {
      const Device& device = fabric_.devices[all[i].device];
      made_.by_port_.push_back({all[i].vsan, device.port_wwn, i});
      made_.by_node_.push_back({all[i].vsan, device.node_wwn, i});
      made_.by_fabric_port_.push_back({all[i].vsan, all[i].fabric_port, i});
      slot(device.attached_to.switch_wwn, device.attached_to.if_index).registrations.push_back(i);
    }
    for (auto* list : {&made_.by_port_, &made_.by_node_, &made_.by_fabric_port_}) {
      std::sort(list->begin(), list->end(), [](const auto& left, const auto& right) {
        return std::tie(left.vsan, left.wwn.bytes, left.registration) <
               std::tie(right.vsan, right.wwn.bytes, right.registration);
      });
    }
  }

  const Fabric& fabric_;
  Topology& made_;
};

Topology::Topology(const Fabric& fabric) {
  TopologyBuilder(fabric, *this).build();
}

const Topology::Block* Topology::find(const Wwn& switch_wwn) const {
  const auto found =
      std::lower_bound(blocks_.begin(), blocks_.end(), switch_wwn,
                       [](const Block& block, const Wwn& wwn) { return block.switch_wwn < wwn; });
  return found != blocks_.end() && found->switch_wwn == switch_wwn ? &*found : nullptr;
}

const Topology::Slot* Topology::find(const Wwn& switch_wwn, uint32_t if_index) const {
  const Block* block = find(switch_wwn);
  if (block == nullptr) return nullptr;
  const auto first = slots_.begin() + static_cast<std::ptrdiff_t>(block->first);
  const auto last = first + static_cast<std::ptrdiff_t>(block->count);
  const auto found = std::lower_bound(first, last, if_index, [](const Slot& slot, uint32_t wanted) {
    return slot.if_index < wanted;
  });
  return found != last && found->if_index == if_index ? &*found : nullptr;
}

PortStatus Topology::status(const Wwn& switch_wwn, uint32_t if_index) const {
  const Slot* slot = find(switch_wwn, if_index);
  return slot != nullptr ? slot->status : PortStatus{};
}

uint32_t Topology::channel_of(const Wwn& switch_wwn, uint32_t if_index) const {
  const Slot* slot = find(switch_wwn, if_index);
  return slot != nullptr ? slot->channel : 0;
}

std::vector<uint32_t> Topology::fcip_of(const Wwn& switch_wwn, uint32_t ethernet) const {
  const auto found = fcip_.find({switch_wwn, ethernet});
  return found != fcip_.end() ? found->second : std::vector<uint32_t>{};
}

std::vector<Registration> Topology::devices_behind(const LinkEnd& port) const {
  std::vector<Registration> found;
  if (const Slot* slot = find(port.switch_wwn, port.if_index)) {
    for (const uint32_t number : slot->registrations)
      found.push_back(registrations_[number]);
  }
  return found;
}

std::vector<Registration> Topology::in_vsan(uint32_t vsan) const {
  const auto first = std::lower_bound(
      registrations_.begin(), registrations_.end(), vsan,
      [](const Registration& entry, uint32_t number) { return entry.vsan < number; });
  const auto last = std::upper_bound(
      first, registrations_.end(), vsan,
      [](uint32_t number, const Registration& entry) { return number < entry.vsan; });
  return {first, last};
}

std::vector<Registration> Topology::find(const std::vector<ByWwn>& list, uint32_t vsan,
                                         const Wwn& wwn) const {
  const auto first = std::lower_bound(list.begin(), list.end(), std::tie(vsan, wwn.bytes),
                                      [](const ByWwn& entry, const auto& key) {
                                        return std::tie(entry.vsan, entry.wwn.bytes) < key;
                                      });
  std::vector<Registration> found;
  for (auto entry = first; entry != list.end() && entry->vsan == vsan && entry->wwn == wwn; ++entry)
    found.push_back(registrations_[entry->registration]);
  return found;
}

std::vector<Registration> Topology::with_port_wwn(uint32_t vsan, const Wwn& wwn) const {
  return find(by_port_, vsan, wwn);
}

std::vector<Registration> Topology::with_node_wwn(uint32_t vsan, const Wwn& wwn) const {
  return find(by_node_, vsan, wwn);
}

std::vector<Registration> Topology::with_fabric_port(uint32_t vsan, const Wwn& wwn) const {
  return find(by_fabric_port_, vsan, wwn);
}

std::vector<RoutedLink> Topology::links_of(const Fabric& fabric, const Wwn& switch_wwn,
                                           uint32_t vsan) const {
  std::vector<RoutedLink> found;
  const Block* block = find(switch_wwn);
  if (block == nullptr) return found;
  for (const size_t place : block->linked) {
    const Slot& slot = slots_[place];
    if (!slot.status.works()) continue;
    const Link& link = fabric.links[static_cast<size_t>(slot.link)];
    const bool first_end = link.ends[0] == LinkEnd{switch_wwn, slot.if_index};
    const LinkEnd& there = link.ends[first_end ? 1 : 0];
    const Interface& port = *find_interface(*find_switch(fabric, switch_wwn), slot.if_index);
    if (!runs(fabric, switch_wwn, vsan) || !runs(fabric, there.switch_wwn, vsan)) continue;
    if (link.trunking ? !lists(link, vsan) : port.vsan != vsan) continue;
    found.push_back({{switch_wwn, slot.if_index}, there, slot.status.speed});
  }
  return found;
}

// In the order of the WWNs there: the last byte of one may have wrapped around.
const std::vector<Element>& Topology::elements_of(const Vsan& vsan) const {
  const auto [found, is_new] = elements_.try_emplace(vsan.number);
  std::vector<Element>& elements = found->second;
  if (!is_new) return elements;
  for (size_t i = 0; i < vsan.domains.size(); ++i) {
    if (!is_running(vsan, vsan.domains[i])) continue;
    elements.push_back({vsan_wwn(vsan.domains[i].switch_wwn, vsan.number), i});
  }
  std::sort(elements.begin(), elements.end(),
            [](const Element& left, const Element& right) { return left.wwn < right.wwn; });
  return elements;
}

const Topology& topology_of(const Fabric& fabric) {
  auto& kept = fabric.topology.topology_;
  if (!kept) kept = std::make_shared<const Topology>(fabric);
  return *kept;
}

}  // namespace switch_sim
