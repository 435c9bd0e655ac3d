#include "simulator/fabric/generator_ports.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "simulator/fabric/random.h"

namespace switch_sim {
namespace {

constexpr uint32_t kSmallCard = 16;
constexpr uint32_t kLargeCard = 48;
constexpr uint64_t kMostPortsOnSmallCards = 240;
constexpr uint8_t kFcp = 8;
constexpr size_t kAreasAndPorts = 65536;

// The ports of a switch that nothing is connected to yet, the next one last.
struct FreePorts {
  Wwn switch_wwn;
  std::vector<uint32_t> ports;
};

class PortGenerator {
 public:
  // Numbers of its own, so that ports change nothing in what a description without them gives.
  PortGenerator(const PortNumbers& numbers, Fabric& fabric)
      : numbers_(numbers), fabric_(fabric), random_(numbers.seed ^ 0x706F727473U) {}

  std::optional<FabricError> add() {
    fabric_.counter_seed = numbers_.seed & INT64_MAX;
    for (Switch& element : fabric_.switches)
      add_modules(element);
    add_links();
    if (!add_devices()) {
      return FabricError{"devices: " + std::to_string(numbers_.devices) +
                         " do not fit behind the free ports"};
    }
    sort(fabric_);
    return std::nullopt;
  }

 private:
  void add_modules(Switch& element) {
    const uint32_t card = numbers_.ports <= kMostPortsOnSmallCards ? kSmallCard : kLargeCard;
    auto left = static_cast<uint32_t>(numbers_.ports);
    uint32_t slot = 1;
    FreePorts& free = free_.emplace_back();
    free.switch_wwn = element.wwn;
    for (; left > 0; ++slot) {
      const uint32_t ports = std::min(left, card);
      element.modules.push_back({slot, ModuleKind::fibre_channel, ModuleState::ok, ports});
      left -= ports;
    }
    element.modules.push_back({slot, ModuleKind::supervisor, ModuleState::ok, 0});
    add_chassis(element, slot);
    add_missing_ports(element);
    for (const Interface& port : element.interfaces)
      free.ports.push_back(port.if_index);
    std::reverse(free.ports.begin(), free.ports.end());
    add_management(element);
  }

  // The chassis, and modules without ports behind the supervisor in `slot`: a second supervisor,
  // two crossbars of which one has failed, and a module that is powered down.
  static void add_chassis(Switch& element, uint32_t slot) {
    element.modules.push_back({slot + 1, ModuleKind::supervisor, ModuleState::ok, 0});
    element.modules.push_back({slot + 2, ModuleKind::crossbar, ModuleState::ok, 0});
    element.modules.push_back({slot + 3, ModuleKind::crossbar, ModuleState::failed, 0});
    element.modules.push_back({slot + 4, ModuleKind::services, ModuleState::powered_down, 0});
    char serial_number[kLongestPromText + 1];
    const auto& wwn = element.wwn.bytes;
    snprintf(serial_number, sizeof serial_number, "VX%02X%02X%02X%02X", wwn[4], wwn[5], wwn[6],
             wwn[7]);
    element.chassis = {"QRX4400", "68-1180-04", serial_number, slot + 5, 2, 2, 2};
  }

  static void add_management(Switch& element) {
    Interface made;
    made.if_index = make_if_index(InterfaceType::management, 0, 1);
    made.cable = true;
    if (element.address.family == IpAddress::Family::ipv4) {
      std::copy_n(element.address.bytes.begin(), made.address.size(), made.address.begin());
    }
    element.interfaces.push_back(made);
  }

  Interface& port(const LinkEnd& end) {
    const auto owner =
        std::find_if(fabric_.switches.begin(), fabric_.switches.end(),
                     [&](const Switch& element) { return element.wwn == end.switch_wwn; });
    return *find_interface(*owner, end.if_index);
  }

  // Takes a free port into use.
  LinkEnd take(FreePorts& free) {
    const LinkEnd end = {free.switch_wwn, free.ports.back()};
    free.ports.pop_back();
    port(end).counters = random_.one_in(16) ? CounterProfile::error_storm : CounterProfile::steady;
    return end;
  }

  // Every switch is joined to an earlier one by one trunk or two, as long as both have ports, and
  // keeps at least half of them for devices.
  void add_links() {
    for (size_t i = 1; i < free_.size(); ++i) {
      FreePorts& other = free_[random_.below(i)];
      for (uint64_t count = 1 + random_.below(2); count > 0; --count) {
        if (free_[i].ports.size() * 2 <= numbers_.ports || other.ports.size() * 2 <= numbers_.ports)
          break;
        Link made;
        made.ends = {take(other), take(free_[i])};
        made.trunking = true;
        fabric_.links.push_back(made);
      }
    }
  }

  // A VSAN in which the switch takes part: the first, or any.
  uint32_t choose_vsan(const Wwn& switch_wwn) {
    if (fabric_.vsans.empty() || random_.one_in(2)) return 1;
    const Vsan& vsan = fabric_.vsans[random_.below(fabric_.vsans.size())];
    const DomainManager* domain = find_domain(vsan, switch_wwn);
    return domain != nullptr && is_running(vsan, *domain) ? vsan.number : 1;
  }

  // Area and port of the next FC ID of a switch in a VSAN; false when there is none left.
  bool next_fc_id(const LinkEnd& end, Device& made) {
    size_t& used = fc_ids_[{end.switch_wwn, port(end).vsan}];
    if (used == kAreasAndPorts) return false;
    made.area = static_cast<uint8_t>(used >> 8);
    made.port = static_cast<uint8_t>(used);
    ++used;
    return true;
  }

  bool add_device(const LinkEnd& end, DeviceKind kind) {
    const auto number = static_cast<uint32_t>(fabric_.devices.size() + 1);
    Device made;
    made.name = "device-" + std::to_string(number);
    made.port_wwn = {{0x21, 0x00, 0x00, 0x11, 0x22, static_cast<uint8_t>(number >> 16),
                      static_cast<uint8_t>(number >> 8), static_cast<uint8_t>(number)}};
    made.node_wwn = made.port_wwn;
    made.node_wwn.bytes[0] = 0x20;
    // The second port of the device before it.
    if (number > 1 && random_.one_in(4)) made.node_wwn = fabric_.devices.back().node_wwn;
    made.kind = kind;
    made.attached_to = end;
    made.fc4_types = {kFcp};
    made.registered_twice = random_.one_in(64);
    if (!next_fc_id(end, made)) return false;
    fabric_.devices.push_back(std::move(made));
    return true;
  }

  // Behind one port: as many as the rest of the ports cannot take, and now and then a small loop.
  uint64_t choose_count(uint64_t devices, uint64_t ports) {
    const uint64_t needed = (devices + ports - 1) / ports;
    if (needed > 1) return needed;
    return random_.one_in(8) ? std::min<uint64_t>(devices, 2 + random_.below(4)) : 1;
  }

  bool add_devices() {
    uint64_t ports = 0;
    for (const FreePorts& free : free_)
      ports += free.ports.size();
    uint64_t left = numbers_.devices;
    for (size_t i = 0; left > 0; i = (i + 1) % free_.size()) {
      if (ports == 0) return false;
      if (free_[i].ports.empty()) continue;
      const uint64_t count = choose_count(left, ports--);
      if (count > kMostLoopDevices) return false;
      const LinkEnd end = take(free_[i]);
      port(end).vsan = choose_vsan(end.switch_wwn);
      const DeviceKind kind = count == 1 ? DeviceKind::n_port : DeviceKind::nl_port;
      for (uint64_t device = 0; device < count; ++device) {
        if (!add_device(end, kind)) return false;
      }
      left -= count;
    }
    return true;
  }

  const PortNumbers numbers_;
  Fabric& fabric_;
  Random random_;
  std::vector<FreePorts> free_;
  std::map<std::pair<Wwn, uint32_t>, size_t> fc_ids_;
};

}  // namespace

std::optional<FabricError> add_generated_ports(const PortNumbers& numbers, Fabric& fabric) {
  if (numbers.ports == 0 && numbers.devices == 0) return std::nullopt;
  return PortGenerator(numbers, fabric).add();
}

}  // namespace switch_sim
