#include "providers/port_own.h"

#include <cim_utils/cmpi_ports.h>
#include <cim_utils/name_server.h>
#include <cim_utils/port_manager.h>
#include <cim_utils/wwn_rules.h>
#include <switch_platform/if_index.h>
#include <switch_platform/port_manager.h>

#include <algorithm>
#include <charconv>
#include <unordered_set>

#include "providers/port_blocks.h"
#include "providers/queue.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

uint8_t type_of(uint32_t if_index) {
  uint8_t type = 0;
  return if_index_get_type(if_index, &type) == 0 ? type : 0;
}

// A whole decimal number. Result: nothing for any other text.
template <class Number>
std::optional<Number> read_number(const char* text) {
  if (text == nullptr) return std::nullopt;
  Number number = 0;
  const char* end = text + std::strlen(text);
  const auto [stopped, error] = std::from_chars(text, end, number);
  if (error != std::errc{} || stopped != end || text == end) return std::nullopt;
  return number;
}

bool wants(const Target& target, const char* property) {
  return target.properties == nullptr || is_in(property, target.properties);
}

// Ethernet ports and channels and the management port have a MAC address in its place.
bool has_wwn(const pm_port_info_& info) {
  switch (type_of(info.if_index)) {
    case PM_IF_FC:
    case PM_IF_FCIP:
    case PM_IF_ISCSI:
      return true;
    case PM_IF_PORT_CHANNEL:
      return pm_is_ether_channel(info.if_index) == 0;
    default:
      return false;
  }
}

// Whether devices log in at the port.
bool is_fabric_port(const pm_port_info_& info) {
  if (!has_wwn(info)) return false;
  if (type_of(info.if_index) == PM_IF_ISCSI) return true;
  constexpr uint16_t kF = 15;
  constexpr uint16_t kFl = 16;
  const uint16_t type = pm_cim_convert_port_mode(info.oper_mode);
  return type == kF || type == kFl;
}

// The first device that the name server has behind a port. Result: false without one, also when the
// name server does not answer: the library does not tell the difference.
bool ask_for_device_behind(int32_t q, const pm_port_info_& info, wwn_& device) {
  int32_t count = 0;
  ns_api_register_req_* entries = nullptr;
  const wwn_ port_wwn = info.wwn;
  const int32_t status =
      ns_cim_get_fxport_entries_with_wwn_byte_array(q, info.vsan, port_wwn.bytes, &count, &entries);
  const CBlock<ns_api_register_req_> owner(entries);
  if (status != 0 || entries == nullptr || count <= 0) return false;
  device = entries[0].port_wwn;
  return true;
}

bool device_behind(int32_t q, const OwnPort& port, wwn_& device) {
  if (port.devices == nullptr) return ask_for_device_behind(q, *port.info, device);
  const auto found = port.devices->find(number_of(port.info->wwn));
  if (found == port.devices->end()) return false;
  device = found->second;
  return true;
}

std::string name_of(const OwnPort& port) {
  char name[64] = {};
  sprintf_if_index(name, port.info->if_index);
  return name;
}

void check(int32_t status, const OwnPort& port, const char* what) {
  if (status != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the port manager refuses the %s of %s (status %d)", what,
                  name_of(port).c_str(), status);
}

// ---- settings ----

constexpr uint64_t kSpeedUnit = 1062500;  // bits per second, of one step of an admin speed
constexpr uint64_t kOneGigabit = 1000 * kSpeedUnit;
constexpr uint64_t kTwoGigabits = 2000 * kSpeedUnit;

uint64_t speed_of(const pm_port_info_& info) {
  return info.admin_speed * kSpeedUnit;
}

// The library takes every other speed for 0.
bool can_be_set(uint64_t speed) {
  return speed == 0 || speed == kOneGigabit || speed == kTwoGigabits;
}

std::optional<uint64_t> read_speed(const NewValues& values) {
  std::string text;
  if (!values.text("RequestedSpeed", text)) return std::nullopt;
  const auto speed = read_number<uint64_t>(text.c_str());
  if (!speed)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "RequestedSpeed is %.40s, not a number",
                  text.c_str());
  return speed;
}

std::optional<bool> read_auto_sense(const NewValues& values) {
  std::string text;
  if (!values.text("AutoSenseSpeed", text)) return std::nullopt;
  if (text == "true") return true;
  if (text == "false") return false;
  throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "AutoSenseSpeed is %.40s, not true or false",
                text.c_str());
}

// The speed that a port is to have, 0 for that of the other end; nothing: as it is.
std::optional<uint64_t> wanted_speed(const OwnPort& port, const NewValues& values) {
  const uint64_t now = speed_of(*port.info);
  const auto auto_sense = read_auto_sense(values);
  const auto speed = read_speed(values);
  if (auto_sense == true && speed.value_or(0) != 0)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER,
                  "AutoSenseSpeed is true and RequestedSpeed %llu: a port senses its speed or has "
                  "one",
                  static_cast<unsigned long long>(*speed));
  if (auto_sense == false && speed.value_or(now) == 0)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER,
                  "AutoSenseSpeed is false: RequestedSpeed has to tell the speed, %llu or %llu",
                  static_cast<unsigned long long>(kOneGigabit),
                  static_cast<unsigned long long>(kTwoGigabits));
  const uint64_t wanted = auto_sense == true ? 0 : speed.value_or(now);
  if (wanted == now) return std::nullopt;
  if (!can_be_set(wanted))
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "RequestedSpeed is %llu, not 0, %llu or %llu",
                  static_cast<unsigned long long>(wanted),
                  static_cast<unsigned long long>(kOneGigabit),
                  static_cast<unsigned long long>(kTwoGigabits));
  return wanted;
}

// What the capabilities tell. The library takes every other type for 17001.
bool is_type(uint16_t type) {
  constexpr uint16_t kTypes[] = {4, 5, 6, 17001, 17002, 17016, 17064};
  return std::find(std::begin(kTypes), std::end(kTypes), type) != std::end(kTypes);
}

// Whether a change that failed may have been made all the same: it was not refused, its answer is
// missing.
bool may_be_done(int32_t status) {
  return status < 0;
}

// The type that a port is to have; nothing: as it is.
std::optional<uint16_t> wanted_type(const OwnPort& port, const NewValues& values) {
  std::string text;
  if (!values.text("RequestedType", text)) return std::nullopt;
  const auto type = read_number<uint16_t>(text.c_str());
  if (type == pm_cim_convert_port_mode_fcportsettings(port.info->admin_mode)) return std::nullopt;
  if (type && is_type(*type)) return type;
  throw Failure(CMPI_RC_ERR_INVALID_PARAMETER,
                "RequestedType is %.40s, not 4, 5, 6, 17001, 17002, 17016 or 17064", text.c_str());
}

// Without a record when there is none, or the port manager does not answer.
OwnPort read_own_port(int32_t q, int32_t exact, uint32_t if_index) {
  pm_port_info_* info = nullptr;
  pm_cim_get_port_info(&info, exact, if_index, q);
  return {std::shared_ptr<const pm_port_info_>(info, FreeCBlock()), nullptr};
}

// Asked of it is the first port channel: of this request the library tells the status, which is
// negative when nobody answers.
bool port_manager_answers(int32_t q) {
  pm_port_channel_entry_ entry{};
  return pm_cim_get_port_channel_entry(q, 0, 0, &entry) >= 0;
}

// visit(const OwnPort&) for every interface, until it says false.
template <class Visit>
void for_each_own_port(int32_t q, Visit visit) {
  std::unordered_set<uint32_t> seen;  // the indexes of one type may stand before those of another
  for (uint32_t if_index = 0;;) {
    const OwnPort port = read_own_port(q, 0, if_index);
    if (port.info == nullptr) break;
    if_index = port.info->if_index;
    if (!seen.insert(if_index).second || !visit(port)) return;
  }
  if (seen.empty() && !port_manager_answers(q))
    throw Failure(CMPI_RC_ERR_FAILED, "the port manager does not answer");
}

}  // namespace

// ---- reading ----

PortKind kind_of(uint32_t if_index) {
  if (pm_is_ether_channel(if_index) != 0) return PortKind::ethernet;
  switch (type_of(if_index)) {
    case PM_IF_ETHERNET:
    case PM_IF_MANAGEMENT:
    case PM_IF_FCIP:
    case PM_IF_ISCSI:
      return PortKind::ethernet;
    default:
      return PortKind::fibre_channel;
  }
}

std::vector<OwnPort> own_ports(int32_t q, PortKind kind) {
  std::vector<OwnPort> ports;
  for_each_own_port(q, [&](const OwnPort& port) {
    if (kind_of(port.info->if_index) == kind) ports.push_back(port);
    return true;
  });
  return ports;
}

std::vector<OwnPort> own_ports_with_wwns(int32_t q) {
  std::vector<OwnPort> ports;
  std::unordered_set<uint64_t> listed;
  for_each_own_port(q, [&](const OwnPort& port) {
    if (has_wwn(*port.info) && listed.insert(number_of(port.info->wwn)).second)
      ports.push_back(port);
    return true;
  });
  return ports;
}

std::vector<OwnPort> own_ports_with_wwn(int32_t q, const wwn_& wwn) {
  uint32_t if_index = 0;
  std::vector<OwnPort> found;
  if (wwn_cim_get_port_index_from_wwn_hex(&if_index, wwn.bytes, 0) == 0)
    found = own_port(q, kind_of(if_index), if_index);
  if (!found.empty() && has_wwn(*found[0].info) && same_wwn(found[0].info->wwn, wwn)) return found;
  found.clear();
  for_each_own_port(q, [&](const OwnPort& port) {
    if (has_wwn(*port.info) && same_wwn(port.info->wwn, wwn)) found.push_back(port);
    return found.empty();
  });
  return found;
}

std::vector<OwnPort> own_port(int32_t q, PortKind kind, uint32_t if_index) {
  if (kind_of(if_index) != kind) return {};
  OwnPort port = read_own_port(q, 1, if_index);
  if (port.info == nullptr) return {};
  return {std::move(port)};
}

std::vector<OwnPort> own_ports_named(int32_t q, PortKind kind, const ObjectName& name) {
  const auto if_index = read_number<int32_t>(name.text("DeviceID"));
  if (!if_index) return {};
  return own_port(q, kind, static_cast<uint32_t>(*if_index));
}

std::optional<uint32_t> id_of(const ObjectName& name) {
  return read_number<uint32_t>(name.text("InstanceID"));
}

std::vector<OwnPort> own_ports_with_id(int32_t q, const ObjectName& name) {
  const auto if_index = id_of(name);
  if (!if_index) return {};
  return own_port(q, PortKind::fibre_channel, *if_index);
}

// ---- building ----

void complete_port_number(const Target& target, uint32_t if_index, CMPIInstance* instance) {
  if (!wants(target, "PortNumber")) return;
  if (pm_cim_get_port_number_from_ifIndex(if_index, nullptr) != 0) return;
  const CMPIValue number{.uint16 = 0};
  instance->ft->setProperty(instance, "PortNumber", &number, CMPI_uint16);
}

CMPIObjectPath* own_port_reference(const Target& target, const OwnPort& port) {
  return fcport_fill_reference_pm(target.name_space, target.class_name, port.info.get(),
                                  target.broker);
}

CMPIInstance* own_port_instance(const Target& target, const OwnPort& port) {
  CMPIInstance* instance = fcport_build_instance_pm(
      target.class_name, target.name_space, port.info.get(), target.properties, target.broker);
  if (instance == nullptr) return nullptr;
  complete_port_number(target, port.info->if_index, instance);
  wwn_ device;
  if (is_fabric_port(*port.info) && wants(target, "PeerPortWWN") &&
      device_behind(queue::handle(), port, device)) {
    const std::string text = text_of(device);
    instance->ft->setProperty(instance, "PeerPortWWN",
                              reinterpret_cast<const CMPIValue*>(text.c_str()), CMPI_chars);
  }
  return instance;
}

CMPIObjectPath* port_capabilities_reference(const Target& target, const OwnPort& port) {
  return fcport_cap_fill_reference(target.class_name, target.name_space, port.info.get(),
                                   target.broker);
}

CMPIInstance* port_capabilities_instance(const Target& target, const OwnPort& port) {
  return fcport_cap_build_instance(target.class_name, target.name_space, port.info.get(),
                                   target.properties, target.broker);
}

CMPIObjectPath* port_settings_reference(const Target& target, const OwnPort& port) {
  return fcport_set_fill_reference(target.class_name, target.name_space, port.info.get(),
                                   target.broker);
}

CMPIInstance* port_settings_instance(const Target& target, const OwnPort& port) {
  return fcport_set_build_instance(target.class_name, target.name_space, port.info.get(),
                                   target.properties, target.broker);
}

// ---- changing ----

void modify_own_port(int32_t q, const OwnPort& port, const NewValues& values) {
  std::string alias;
  if (!values.text("ElementName", alias) || alias == name_of(port)) return;
  if (alias.size() > PM_MAX_ALIAS_LENGTH)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER,
                  "ElementName has %zu characters: the alias of a port has at most %d",
                  alias.size(), PM_MAX_ALIAS_LENGTH);
  const uint8_t type = type_of(port.info->if_index);
  if (type == PM_IF_FCIP || type == PM_IF_ISCSI)
    throw Failure(CMPI_RC_ERR_NOT_SUPPORTED, "%s has no alias: it is an FCIP or iSCSI interface",
                  name_of(port).c_str());
  check(pm_cim_set_port_alias(alias.c_str(), port.info->if_index, q), port, "alias");
}

uint32_t request_own_port_state(int32_t q, const OwnPort& port, const Arguments& arguments) {
  std::string text;
  if (!arguments.text("RequestedState", text) || (text != "2" && text != "3")) return kStateInvalid;
  if (type_of(port.info->if_index) == PM_IF_PORT_CHANNEL) return kStateNotSupported;
  const uint32_t state = text == "2" ? 2 : 3;
  if (pm_cim_set_port_admin_status(state, port.info->if_index, q) != 0) return kStateRefused;
  // The library does not tell what the port manager says of the change; the port does.
  const auto after = own_port(q, kind_of(port.info->if_index), port.info->if_index);
  const bool changed =
      !after.empty() && pm_cim_convert_port_enable_state(after[0].info->admin_state) == state;
  return changed ? kStateChanged : kStateRefused;
}

void modify_port_settings(int32_t q, const OwnPort& port, const NewValues& values) {
  const auto speed = wanted_speed(port, values);
  const auto type = wanted_type(port, values);
  const uint32_t if_index = port.info->if_index;
  const uint64_t old = speed_of(*port.info);
  if (speed) {
    const int32_t status = pm_cim_set_port_admin_speed(*speed, if_index, q);
    if (may_be_done(status) && can_be_set(old)) pm_cim_set_port_admin_speed(old, if_index, q);
    check(status, port, "speed");
  }
  if (!type) return;
  const int32_t status = pm_cim_set_port_admin_mode(*type, if_index, q);
  if (status == 0) return;
  const uint16_t old_type = pm_cim_convert_port_mode_fcportsettings(port.info->admin_mode);
  // Not every mode can be asked for: in its place the port would get one that it never had.
  const bool can_be_restored = pm_cim_convert_cimport_mode(old_type) == port.info->admin_mode;
  if (may_be_done(status) && can_be_restored) pm_cim_set_port_admin_mode(old_type, if_index, q);
  if (speed && (!can_be_set(old) || pm_cim_set_port_admin_speed(old, if_index, q) != 0))
    throw Failure(CMPI_RC_ERR_FAILED,
                  "the port manager refuses the type of %s (status %d), and keeps the new speed",
                  name_of(port).c_str(), status);
  check(status, port, "type");
}

}  // namespace vexor::providers
