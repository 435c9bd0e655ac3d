// Writes the part of a fabric file about line cards, interfaces, links and devices: one line each.
#include <algorithm>
#include <cstdio>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/port_file.h"
#include "simulator/fabric/port_words.h"

namespace switch_sim {
namespace {

template <typename Enumeration, size_t kCount>
std::string word_of(Enumeration value, const std::array<std::string_view, kCount>& words) {
  return quote(words.at(static_cast<size_t>(value) - 1));
}

std::string ipv4_text(const std::array<uint8_t, 4>& address) {
  IpAddress wide;
  std::copy(address.begin(), address.end(), wide.bytes.begin());
  return quote(to_text(wide));
}

std::string numbers_text(const std::vector<uint32_t>& numbers) {
  std::string text;
  for (const uint32_t number : numbers)
    text += (text.empty() ? "" : ", ") + std::to_string(number);
  return "[" + text + "]";
}

// One object in one line.
class Line {
 public:
  explicit Line(std::string& text) : text_(text) { text_ += '{'; }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;
  ~Line() { text_ += '}'; }

  void add(const char* key, const std::string& value) {
    if (text_.back() != '{') text_ += ", ";
    text_ += std::string("\"") + key + "\": " + value;
  }

 private:
  std::string& text_;
};

void write_module(std::string& text, const Module& module) {
  Line line(text);
  line.add("slot", std::to_string(module.slot));
  line.add("kind", word_of(module.kind, kModuleKindWords));
  line.add("state", word_of(module.state, kModuleStateWords));
  if (module.ports != 0) line.add("ports", std::to_string(module.ports));
}

std::string mode_text(PortMode mode) {
  const auto* const place = std::find(kAdminModes.begin(), kAdminModes.end(), mode);
  return quote(kAdminModeWords.at(static_cast<size_t>(place - kAdminModes.begin())));
}

void write_interface(std::string& text, const Interface& interface) {
  const auto type = static_cast<InterfaceType>(type_bits(interface.if_index));
  const bool is_port = type == InterfaceType::fibre_channel;
  const bool is_tunnel = type == InterfaceType::fcip;
  const bool has_mode = is_port || is_tunnel || is_fc_channel(interface.if_index);
  const bool has_address = is_ethernet_like(interface.if_index);
  const bool is_channel = type == InterfaceType::port_channel;
  Line line(text);
  line.add("name", quote(interface_name(interface.if_index)));
  if (!is_tunnel && type != InterfaceType::iscsi) line.add("alias", quote(interface.alias));
  line.add("admin_state", word_of(interface.admin_state, kAdminStateWords));
  if (has_mode || type == InterfaceType::iscsi) line.add("vsan", std::to_string(interface.vsan));
  if (has_mode) line.add("mode", mode_text(interface.mode));
  if (is_port) {
    line.add("speed", std::to_string(interface.speed));
    line.add("optics", word_of(interface.optics, kOpticsWords));
    line.add("counters", word_of(interface.counters, kCounterWords));
  }
  if (has_address && !is_channel) line.add("cable", interface.cable ? "true" : "false");
  if (has_address) {
    line.add("mtu", std::to_string(interface.mtu));
    line.add("address", ipv4_text(interface.address));
  }
  if (is_tunnel) line.add("ethernet", quote(interface_name(interface.ethernet)));
  if (is_channel) {
    std::string members;
    for (const uint32_t port : interface.members)
      members += (members.empty() ? "" : ", ") + quote(interface_name(port));
    line.add("members", "[" + members + "]");
  }
}

void write_link(std::string& text, const Link& link) {
  std::string ends;
  for (const LinkEnd& end : link.ends) {
    if (!ends.empty()) ends += ", ";
    Line line(ends);
    line.add("switch", quote(to_text(end.switch_wwn)));
    line.add("interface", quote(interface_name(end.if_index)));
  }
  Line line(text);
  line.add("ends", "[" + ends + "]");
  if (link.trunking) line.add("trunk", link.vsans.empty() ? "\"all\"" : numbers_text(link.vsans));
}

void write_device(std::string& text, const Device& device) {
  char fc_id[8];
  snprintf(fc_id, sizeof fc_id, "%02x%02x", device.area, device.port);
  Line line(text);
  line.add("name", quote(device.name));
  line.add("port_wwn", quote(to_text(device.port_wwn)));
  line.add("node_wwn", quote(to_text(device.node_wwn)));
  line.add("kind", word_of(device.kind, kDeviceKindWords));
  line.add("switch", quote(to_text(device.attached_to.switch_wwn)));
  line.add("interface", quote(interface_name(device.attached_to.if_index)));
  line.add("fc_id", quote(fc_id));
  line.add("fc4_types", numbers_text({device.fc4_types.begin(), device.fc4_types.end()}));
  if (device.address != decltype(device.address){}) line.add("address", ipv4_text(device.address));
  if (device.registered_twice) line.add("registered_twice", "true");
}

// `, "key": [...]` with one element per line; nothing for an empty list.
template <typename List, typename Write>
std::string list_text(const std::string& indent, const char* key, const List& list, Write write) {
  if (list.empty()) return "";
  std::string text = ",\n" + indent + '"' + key + "\": [\n";
  for (size_t i = 0; i < list.size(); ++i) {
    text += indent + "  ";
    write(text, list[i]);
    text += i + 1 < list.size() ? ",\n" : "\n";
  }
  return text + indent + "]";
}

// A port of a module that is as it came need not be told.
bool is_told(const Switch& element, const Interface& interface) {
  Interface untouched;
  untouched.if_index = interface.if_index;
  const bool by_module = module_of(element, interface.if_index) != nullptr &&
                         (type_bits(interface.if_index) == 1 || type_bits(interface.if_index) == 2);
  return !by_module || interface != untouched;
}

}  // namespace

std::string ports_text(const Switch& element) {
  std::vector<Interface> told;
  for (const Interface& interface : element.interfaces) {
    if (is_told(element, interface)) told.push_back(interface);
  }
  return list_text("      ", "modules", element.modules, write_module) +
         list_text("      ", "interfaces", told, write_interface);
}

std::string links_and_devices_text(const Fabric& fabric) {
  std::string text = list_text("  ", "links", fabric.links, write_link) +
                     list_text("  ", "devices", fabric.devices, write_device);
  if (fabric.counter_seed != 1) {
    text += ",\n  \"counter_seed\": " + std::to_string(fabric.counter_seed);
  }
  return text;
}

}  // namespace switch_sim
