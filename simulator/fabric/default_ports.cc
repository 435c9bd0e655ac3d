// The default fabric as it is cabled:
//
//   switch-1 fc1/2                     switch-2 fc1/2              VSAN 1
//   switch-1 port-channel 1            switch-3 port-channel 1     trunk, fc1/5 and fc1/6 each
//   switch-1 fcip1                     switch-2 fcip1              VSAN 2
//   switch-2 fc1/9                     switch-3 fc1/9              trunk of VSANs 1 and 2
#include "simulator/fabric/default_ports.h"

namespace switch_sim {
namespace {

constexpr uint32_t fc(uint32_t port) {
  return make_if_index(InterfaceType::fibre_channel, 1, port);
}
constexpr uint32_t gigabit(uint32_t port) {
  return make_if_index(InterfaceType::ethernet, 2, port);
}
constexpr uint32_t kManagement = make_if_index(InterfaceType::management, 0, 1);
constexpr uint32_t kChannel = make_if_index(InterfaceType::port_channel, 0, 1);
constexpr uint32_t kEtherChannel = make_if_index(InterfaceType::port_channel, kEthernetChannel, 2);
constexpr uint32_t kFcip = make_if_index(InterfaceType::fcip, 0, 1);
constexpr uint32_t kIscsi = make_if_index(InterfaceType::iscsi, 2, 1);

Interface& port(Switch& element, uint32_t if_index) {
  if (Interface* known = find_interface(element, if_index)) return *known;
  element.interfaces.emplace_back().if_index = if_index;
  return element.interfaces.back();
}

// A port that something is connected to.
void use(Switch& element, uint32_t if_index, const char* alias, uint32_t vsan) {
  Interface& used = port(element, if_index);
  used.alias = alias;
  used.vsan = vsan;
  used.counters = CounterProfile::steady;
}

// A chassis of nine slots; its serial number ends as the WWN of the switch.
void add_chassis(Switch& element, const char* serial_number) {
  element.chassis = {"QRX4400", "68-1180-04", serial_number, 9, 2, 2, 2};
}

// Modules that have no ports. One of the crossbars has failed, and a slot is powered down.
void add_other_modules(Switch& element) {
  element.modules.push_back({4, ModuleKind::services, ModuleState::powered_down, 0});
  element.modules.push_back({6, ModuleKind::supervisor, ModuleState::ok, 0});
  element.modules.push_back({7, ModuleKind::crossbar, ModuleState::ok, 0});
  element.modules.push_back({8, ModuleKind::crossbar, ModuleState::failed, 0});
}

void add_modules(Switch& element, uint32_t ethernet_ports) {
  element.modules = {{1, ModuleKind::fibre_channel, ModuleState::ok, 16},
                     {5, ModuleKind::supervisor, ModuleState::ok, 0}};
  if (ethernet_ports != 0) {
    element.modules.insert(element.modules.begin() + 1,
                           {2, ModuleKind::ip_storage, ModuleState::ok, ethernet_ports});
  }
  add_missing_ports(element);
}

void add_management(Switch& element) {
  Interface made;
  made.if_index = kManagement;
  made.cable = true;
  for (size_t i = 0; i < made.address.size(); ++i)
    made.address[i] = element.address.bytes[i];
  element.interfaces.push_back(made);
}

void cable(Switch& element, uint32_t if_index, uint8_t last_address_byte) {
  Interface& cabled = port(element, if_index);
  cabled.cable = true;
  cabled.address = {192, 0, 2, last_address_byte};
}

void add_fcip(Switch& element, uint32_t ethernet) {
  Interface made;
  made.if_index = kFcip;
  made.vsan = 2;
  made.ethernet = ethernet;
  element.interfaces.push_back(made);
}

void add_port_channel(Switch& element) {
  for (const uint32_t member : {fc(5), fc(6)})
    use(element, member, "", 1);
  Interface made;
  made.if_index = kChannel;
  made.members = {fc(5), fc(6)};
  element.interfaces.push_back(made);
}

void cable_first_switch(Switch& element) {
  add_modules(element, 4);
  add_other_modules(element);
  add_chassis(element, "VX0951A02C");
  use(element, fc(1), "host-a", 1);
  use(element, fc(2), "switch-2", 1);
  use(element, fc(3), "array-1", 1);
  use(element, fc(4), "host-b", 2);
  use(element, fc(7), "disk shelf", 2);
  // A link with bad optics at the far end: it works, and its errors grow.
  port(element, fc(4)).counters = CounterProfile::error_storm;
  port(element, fc(8)).admin_state = AdminState::down;
  port(element, fc(16)).optics = Optics::none;
  cable(element, gigabit(1), 65);
  cable(element, gigabit(2), 66);
  port(element, gigabit(3)).cable = true;
  port(element, gigabit(4)).cable = true;
  add_port_channel(element);
  add_management(element);
  add_fcip(element, gigabit(2));
  Interface channel;
  channel.if_index = kEtherChannel;
  channel.members = {gigabit(3), gigabit(4)};
  channel.address = {192, 0, 2, 67};
  element.interfaces.push_back(channel);
  element.interfaces.emplace_back().if_index = kIscsi;
}

void cable_second_switch(Switch& element) {
  add_modules(element, 4);
  add_chassis(element, "VX0951A05E");
  use(element, fc(1), "array-2", 1);
  use(element, fc(2), "switch-1", 1);
  use(element, fc(3), "host-c", 2);
  use(element, fc(9), "switch-3", 1);
  cable(element, gigabit(1), 97);
  add_management(element);
  add_fcip(element, gigabit(1));
}

void cable_third_switch(Switch& element) {
  add_modules(element, 0);
  add_chassis(element, "VX0951A090");
  use(element, fc(1), "tape-1", 1);
  use(element, fc(2), "array-2b", 2);
  use(element, fc(9), "switch-2", 1);
  add_port_channel(element);
  add_management(element);
}

constexpr uint8_t kFcp = 8;
constexpr uint8_t kIscsiType = 225;

Device make_device(const char* name, uint8_t number, const Switch& element, uint32_t if_index,
                   uint8_t area) {
  Device made;
  made.name = name;
  made.port_wwn = {{0x21, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, number}};
  made.node_wwn = {{0x20, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, number}};
  made.attached_to = {element.wwn, if_index};
  made.area = area;
  made.fc4_types = {kFcp};
  return made;
}

Device make_loop_device(const char* name, uint8_t number, const Switch& element, uint32_t if_index,
                        uint8_t area, uint8_t loop_address) {
  Device made = make_device(name, number, element, if_index, area);
  made.kind = DeviceKind::nl_port;
  made.port = loop_address;
  return made;
}

// The iSCSI initiator, to which the switch gives WWNs of its own.
Device make_initiator(const Switch& element) {
  Device made = make_device("iscsi-host", 0x51, element, kIscsi, 8);
  made.fc4_types = {kFcp, kIscsiType};
  made.address = {192, 0, 2, 129};
  return made;
}

}  // namespace

void add_default_ports(Fabric& fabric) {
  Switch& first = fabric.switches[0];
  Switch& second = fabric.switches[1];
  Switch& third = fabric.switches[2];
  cable_first_switch(first);
  cable_second_switch(second);
  cable_third_switch(third);

  fabric.links = {
      {{{{first.wwn, fc(2)}, {second.wwn, fc(2)}}}, false, {}},
      {{{{first.wwn, kChannel}, {third.wwn, kChannel}}}, true, {}},
      {{{{first.wwn, kFcip}, {second.wwn, kFcip}}}, false, {}},
      {{{{second.wwn, fc(9)}, {third.wwn, fc(9)}}}, true, {1, 2}},
  };
  // The two ports of array-2 share its node WWN.
  Device array_2b = make_device("array-2b", 0x22, third, fc(2), 1);
  array_2b.node_wwn.bytes[7] = 0x21;
  fabric.devices = {
      make_device("host-a", 0x01, first, fc(1), 0),
      make_device("host-b", 0x02, first, fc(4), 3),
      make_device("host-c", 0x03, second, fc(3), 2),
      make_device("array-1", 0x11, first, fc(3), 2),
      make_device("array-2", 0x21, second, fc(1), 0),
      array_2b,
      make_loop_device("disk-1", 0x31, first, fc(7), 6, 0xE8),
      make_loop_device("disk-2", 0x32, first, fc(7), 6, 0xE4),
      make_loop_device("disk-3", 0x33, first, fc(7), 6, 0xE2),
      make_device("tape-1", 0x41, third, fc(1), 0),
      make_initiator(first),
  };
}

}  // namespace switch_sim
