#include "model/port_classes.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/fspf.h>
#include <cim_utils/name_server.h>
#include <cim_utils/port_manager.h>
#include <cim_utils/session.h>
#include <cim_utils/vsan.h>
#include <switch_platform/port_manager.h>

#include <algorithm>
#include <cstring>

#include "model/port_texts.h"

namespace cim_utils::model {
namespace {

constexpr char kEthernetClass[] = "VEXOR_EthernetPort";
constexpr char kVsanClass[] = "VEXOR_Vsan";
constexpr char kUnknownSwitch[] = "unknown system";

constexpr uint16_t kOk = 2;
constexpr uint16_t kFibreChannel = 4;      // LinkTechnology
constexpr uint16_t kThousandBaseT = 53;    // PortType
constexpr uint64_t kGigabit = 1000000000;  // bits per second
constexpr uint64_t kSpeedUnit = 1062500;   // bits per second, of one step of an admin speed

// Types of interfaces.
constexpr uint8_t kFcPort = 1;
constexpr uint8_t kEthernet = 2;
constexpr uint8_t kManagement = 5;
constexpr uint8_t kFcip = 10;
constexpr uint8_t kIscsi = 11;

// What a port is known by.
struct PortKeys {
  const char* cls;
  const char* system_class;
  char device_id[std::max<size_t>(CIM_FSPF_LINK_NAME_ROOM, CIM_NS_LINK_NAME_ROOM)] = {};
  char system_name[64] = {};
};

void write_keys(ObjectWriter& out, const PortKeys& keys) {
  out.text("DeviceID", keys.device_id);
  out.text("SystemName", keys.system_name);
  out.text("SystemCreationClassName", keys.system_class);
  out.text("CreationClassName", keys.cls);
}

Ref reference_of(Builder& b, const char* ns, const PortKeys& keys) {
  auto [out, ref] = b.open_path(keys.cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  write_keys(*out, keys);
  return b.close_path(out);
}

// An instance with its keys; `write` adds the rest.
template <class Write>
Object instance_of(Builder& b, const char* ns, const PortKeys& keys, const char** properties,
                   Write write) {
  const KeyNames names(b,
                       {"DeviceID", "SystemName", "SystemCreationClassName", "CreationClassName"});
  if (!names) return {};
  ObjectWriter* out = b.open_instance(keys.cls, ns, names, Filter::applied, properties);
  if (out == nullptr) return {};
  write_keys(*out, keys);
  write(*out);
  if (b.instances_have_paths()) out->path(reference_of(b, ns, keys));
  return b.close_instance(out);
}

void write_one_text(ObjectWriter& out, const char* name, const char* value) {
  out.texts(name, {&value, 1});
}

void write_one_number(ObjectWriter& out, const char* name, uint16_t value) {
  out.uint16s(name, {&value, 1});
}

void write_names(ObjectWriter& out, const char* name, const char* description,
                 const char* caption) {
  out.text("ElementName", name);
  out.text("Description", description);
  out.text("Caption", caption);
}

void write_identity(ObjectWriter& out, const char* what, const char* text) {
  write_one_text(out, "IdentifyingDescriptions", what);
  write_one_text(out, "OtherIdentifyingInfo", text);
}

uint8_t type_of(uint32_t if_index) {
  uint8_t type = 0;
  return if_index_get_type(if_index, &type) == 0 ? type : 0;
}

// The number of the port on its module. Port 0, and an interface without a module, show their
// interface index instead, in another type: deliberate, providers convert it.
void write_port_number(ObjectWriter& out, uint32_t if_index) {
  int32_t kind = 0;
  const int32_t number = pm_cim_get_port_number_from_ifIndex(if_index, &kind);
  if (number > 0) {
    out.uint16("PortNumber", static_cast<uint16_t>(number));
  } else {
    out.sint32("PortNumber", static_cast<int32_t>(if_index));
  }
}

// ---- Ports of the own switch

bool is_ethernet(uint32_t if_index, uint8_t type) {
  if (pm_is_ether_channel(if_index) != 0) return true;
  return type == kEthernet || type == kManagement || type == kFcip || type == kIscsi;
}

// The VSAN that the port is in; 0 when it is in none.
uint32_t vsan_of(const pm_port_info_& port) {
  return port.vsan;
}

// Modes of ports that join switches.
bool joins_switches(uint32_t mode) {
  return mode == 4 || mode == 8;
}

// What the port manager's description field holds; it has no terminator when it is full.
struct Alias {
  explicit Alias(const pm_port_info_& port) {
    std::memcpy(text, port.name, strnlen(port.name, PM_MAX_ALIAS_LENGTH));
  }
  char text[PM_MAX_ALIAS_LENGTH + 1] = {};
};

struct OwnPort {
  OwnPort(const char* asked_class, const pm_port_info_& port)
      : type(type_of(port.if_index)),
        ethernet(is_ethernet(port.if_index, type)),
        name(port.if_index),
        keys{ethernet ? kEthernetClass : asked_class, kPhysicalSwitchClass} {
    // A signed number, deliberately: an index above 2^31 shows negative.
    std::snprintf(keys.device_id, sizeof keys.device_id, "%d", static_cast<int>(port.if_index));
    if (ethernet) {
      std::snprintf(keys.system_name, sizeof keys.system_name, "%s", name.text);
    } else {
      switch_text(keys.system_name, 0, port.wwn, kUnknownSwitch);
    }
  }
  uint8_t type;
  bool ethernet;
  InterfaceName name;
  PortKeys keys;
};

void write_state(ObjectWriter& out, const pm_port_info_& port) {
  write_one_number(out, "OperationalStatus", pm_cim_convert_port_oper_state(port.oper_state));
  out.uint16("EnabledDefault", pm_cim_convert_port_admin_state(port.admin_state));
  out.uint16("EnabledState", pm_cim_convert_port_enable_state(port.admin_state));
}

void say_no_domain_entry() {
  std::printf("fcport_build_instance_pm(): error during get dm entry\n");
}

// The port at the other end of a link to another switch, which the link tells by its domain and
// interface.
void write_peer(ObjectWriter& out, int32_t queue, uint32_t vsan, const pm_port_info_& port) {
  if (!joins_switches(port.oper_mode)) return;
  mts_dm_sw_conf_ own{};
  if (dm_cim_get_dmEntry(queue, vsan, 1, &own) != 0) return say_no_domain_entry();
  fspfLinkEntry link{};
  if (fspf_cim_get_fspfLink(queue, vsan, own.domain_id, port.if_index, &link) != 0) return;
  wwn_ peer;
  if (dm_cim_get_port_wwn_by_domain_id(queue, vsan, static_cast<uint8_t>(link.remote_domain),
                                       link.remote_if_index, &peer) != 0)
    return say_no_domain_entry();
  out.text("PeerPortWWN", WwnText(peer).text);
}

void write_vsan(ObjectWriter& out, int32_t queue, const pm_port_info_& port) {
  const uint32_t number = vsan_of(port);
  vsanNewEntry_t vsan{};
  vsan.vsan_index = number;
  if (number == 0 || vsan_cim_get_vsanEntry(queue, 1, &vsan) != 0) {
    std::printf("fcport_build_instance_pm(): error during get vsan id\n");
    return;
  }
  char name[sizeof vsan.name + 1] = {};
  std::memcpy(name, vsan.name, sizeof vsan.name);
  out.uint16("VsanId", static_cast<uint16_t>(number));
  out.text("VsanName", name);
  write_peer(out, queue, number, port);
}

void write_ethernet(ObjectWriter& out, const pm_port_info_& port) {
  out.uint16("PortType", kThousandBaseT);
  out.uint64("Speed", port.oper_state == 1 ? kGigabit : 0);
  out.uint64("MaxSpeed", kGigabit);
}

void write_fibre_channel(ObjectWriter& out, const pm_port_info_& port, uint8_t type) {
  out.uint16("PortType", pm_cim_convert_port_type(port.oper_mode, type));
  const uint64_t speed = pm_cim_get_speed(&port, type);
  out.uint64("Speed", speed);
  out.uint64("MaxSpeed", speed);
  out.uint16("LinkTechnology", kFibreChannel);
  const uint64_t mtu = pm_cim_get_mtu(&port, type);
  out.uint64("SupportedMaximumTransmissionUnit", mtu);
  out.uint64("ActiveMaximumTransmissionUnit", mtu);
  write_one_number(out, "SupportedCOS", 2);
  // One array for both, whatever the port carries: deliberate.
  constexpr uint16_t kFc4Types[] = {17};
  out.same_uint16s("SupportedFC4Types", "ActiveFC4Types", kFc4Types);
}

enum PortAvailability : uint16_t {
  kAvailable = 2,
  kNoTransceiver = 4,
  kIncompatibleTransceiver = 5
};

// Asked on the queue of the CMPI face in both faces, deliberately.
PortAvailability availability_of(const pm_port_info_& port) {
  if (port.fcot_present == 0) return kNoTransceiver;
  uint8_t supported = 0;
  if (pm_cim_get_fcot_info(mts_q, &port, &supported) != 0) {
    std::printf("Error in pm_cim_get_fcot_info ");
    return kAvailable;
  }
  return supported != 0 ? kAvailable : kIncompatibleTransceiver;
}

// ---- Ports of links

uint32_t interface_of(const LinkPort& port) {
  return port.local ? port.link->if_index : port.link->remote_if_index;
}

bool is_whole(const LinkPort& port) {
  return port.link != nullptr && port.switch_wwn != nullptr;
}

// The WWN by which the link's switch is known: as a device, or in its VSAN.
wwn_ switch_of(const LinkPort& port) {
  wwn_ wwn;
  std::memcpy(wwn.bytes, port.switch_wwn, sizeof wwn.bytes);
  if (port.physical) wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(wwn.bytes, wwn.bytes);
  return wwn;
}

bool write_link_name(char* name, const LinkPort& port, const wwn_& switch_wwn) {
  const int32_t this_end = port.local ? 1 : 0;
  const int32_t status =
      port.physical ? fspf_cim_get_physical_link_name(switch_wwn.bytes, port.link, name, this_end)
                    : fspf_cim_get_link_name(port.link, name, this_end);
  // An interface whose type is not known may leave the name unwritten.
  return status == 0 && name[0] != '\0';
}

void write_link_device_id(PortKeys& keys, const LinkPort& port, const wwn_& switch_wwn) {
  constexpr size_t kRoom = 32;  // longer texts are cut
  const int number = static_cast<int>(interface_of(port));
  if (!write_link_name(keys.device_id, port, switch_wwn)) {
    if (port.physical) {
      std::snprintf(keys.device_id, sizeof keys.device_id, "%s_%d", keys.system_name, number);
    } else {
      std::snprintf(keys.device_id, sizeof keys.device_id, "%s_%d_%d", keys.system_name,
                    static_cast<int>(port.link->word_0), number);
    }
  }
  keys.device_id[kRoom - 1] = '\0';
}

PortKeys keys_of(const char* cls, const LinkPort& port) {
  PortKeys keys{cls, port.physical ? kPhysicalSwitchClass : kLogicalSwitchClass};
  const wwn_ switch_wwn = switch_of(port);
  cim_sprintf_wwn_uint_array(keys.system_name, switch_wwn.bytes);
  write_link_device_id(keys, port, switch_wwn);
  return keys;
}

// Whether a link's interface is one of this platform, not a port number of another maker's switch.
// Compared as a signed number, as link names do.
bool is_platform_interface(uint32_t number) {
  return static_cast<int32_t>(number) > 256;
}

// The interface's own name, or its number.
struct LinkInterfaceName {
  explicit LinkInterfaceName(uint32_t number) {
    if (is_platform_interface(number)) {
      sprintf_if_index(text, number);
    } else {
      std::snprintf(text, sizeof text, "%d", static_cast<int>(number));
    }
  }
  char text[64] = {};
};

void write_link_port(ObjectWriter& out, const char* cls, const LinkPort& port) {
  const uint32_t number = interface_of(port);
  const LinkInterfaceName name(number);
  write_names(out, name.text, name.text, cls);
  // FSPF lists a link while it carries frames.
  write_one_number(out, "OperationalStatus", kOk);
  const wwn_ switch_wwn = switch_of(port);
  wwn_ port_wwn;
  if (wwn_cim_get_port_wwn(number, &port_wwn, &switch_wwn) == 0)
    out.text("PermanentAddress", WwnText(port_wwn).text);
  if (!port.physical) out.uint16("VsanId", static_cast<uint16_t>(port.link->word_0));
  write_identity(out, "Interface", name.text);
  write_port_number(out, number);
  const uint8_t type = is_platform_interface(number) ? type_of(number) : kFcPort;
  out.uint16("PortType", pm_cim_convert_isl_port_type(type));
  out.uint16("LinkTechnology", kFibreChannel);
}

// ---- Ports of attachments

const char* system_class_of(const AttachedPort& port) {
  if (port.physical) return kPhysicalSwitchClass;
  return port.fabric_side ? kLogicalSwitchClass : kVsanClass;
}

PortKeys keys_of(const char* cls, const AttachedPort& port) {
  PortKeys keys{cls, system_class_of(port)};
  const int32_t fabric_side = port.fabric_side ? 1 : 0;
  if (port.physical) {
    ns_cim_get_physical_link_name(port.entry, keys.device_id, fabric_side);
  } else {
    ns_cim_get_link_name(port.entry, keys.device_id, fabric_side);
  }
  // The switch that the device's own WWN tells, which is rarely one: deliberately not the fabric
  // port's.
  switch_text(keys.system_name, port.physical ? 0 : port.entry->vsan_index, port.entry->port_wwn,
              kUnknownSwitch);
  return keys;
}

// The FC-4 types that the device has registered, if any.
void write_fc4_types(ObjectWriter& out, const ns_api_register_req_& entry) {
  constexpr size_t kTypes = 256;
  uint16_t types[kTypes];
  size_t count = 0;
  for (size_t type = 0; type < kTypes; ++type) {
    if (ns_cim_is_set_fc4_type(entry.fc4_types, static_cast<uint8_t>(type)) != 0)
      types[count++] = static_cast<uint16_t>(type);
  }
  if (count != 0) out.uint16s("ActiveFC4Types", {types, count});
}

void write_attached_port(ObjectWriter& out, const char* cls, const AttachedPort& port) {
  const ns_api_register_req_& entry = *port.entry;
  const WwnText device(entry.port_wwn);
  const WwnText attached_to(entry.fabric_port_wwn);
  const char* own = port.fabric_side ? attached_to.text : device.text;
  write_names(out, own, own, cls);
  // The name server lists a device while it is logged in.
  write_one_number(out, "OperationalStatus", kOk);
  out.text("PermanentAddress", own);
  out.uint16("VsanId", static_cast<uint16_t>(entry.vsan_index));
  out.text("PeerPortWWN", port.fabric_side ? device.text : attached_to.text);
  if (!port.fabric_side) {
    write_identity(out, "Node WWN", WwnText(entry.node_wwn).text);
    char fcid[CIM_FCID_TEXT_ROOM];
    cim_sprintf_fcid(fcid, entry.fcid);
    write_one_text(out, "NetworkAddresses", fcid);
  }
  out.uint16("PortType",
             static_cast<uint16_t>(ns_cim_convert_ns_port_type(&entry, port.fabric_side ? 1 : 0)));
  out.uint16("LinkTechnology", kFibreChannel);
  if (!port.fabric_side) write_fc4_types(out, entry);
}

// ---- Capabilities and settings

Ref setting_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port) {
  if (port == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("InstanceID", InterfaceId(port->if_index).text);
  return b.close_path(out);
}

template <class Write>
Object setting_instance(Builder& b, const char* cls, const char* ns, const pm_port_info_* port,
                        const char* element_name, const char** properties, Write write) {
  if (port == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  out->text("InstanceID", InterfaceId(port->if_index).text);
  out->text("ElementName", element_name);
  write(*out);
  if (b.instances_have_paths()) out->path(setting_reference(b, cls, ns, port));
  return b.close_instance(out);
}

}  // namespace

Ref port_reference(Builder& b, const char* cls, const char* ns, const pm_port_info_* port) {
  if (port == nullptr) return {};
  return reference_of(b, ns, OwnPort(cls, *port).keys);
}

Object port_instance(Builder& b, const char* cls, const char* ns, const pm_port_info_* port,
                     const char** properties) {
  if (port == nullptr) return {};
  const OwnPort own(cls, *port);
  const auto write = [&](ObjectWriter& out) {
    const Alias alias(*port);
    const char* name = own.name.text;
    write_names(out, name, alias.text[0] != '\0' ? alias.text : name, own.keys.cls);
    write_state(out, *port);
    char permanent[PM_PERMANENT_ADDRESS_TEXT_ROOM] = {};
    pm_cim_get_permanent_address(permanent, port, own.type);
    out.text("PermanentAddress", permanent);
    write_vsan(out, b.queue(), *port);
    write_identity(out, "Interface", name);
    char network[PM_NETWORK_ADDRESS_TEXT_ROOM] = {};
    pm_cim_get_network_address(network, port, own.type);
    write_one_text(out, "NetworkAddresses", network);
    write_port_number(out, port->if_index);
    if (own.ethernet) {
      write_ethernet(out, *port);
    } else {
      write_fibre_channel(out, *port, own.type);
    }
    out.uint16("PortAvailability", availability_of(*port));
  };
  return instance_of(b, ns, own.keys, properties, write);
}

Ref port_reference(Builder& b, const char* cls, const char* ns, const LinkPort& port) {
  if (!is_whole(port)) return {};
  return reference_of(b, ns, keys_of(cls, port));
}

Object port_instance(Builder& b, const char* cls, const char* ns, const LinkPort& port,
                     const char** properties) {
  if (!is_whole(port)) return {};
  return instance_of(b, ns, keys_of(cls, port), properties,
                     [&](ObjectWriter& out) { write_link_port(out, cls, port); });
}

Ref port_reference(Builder& b, const char* cls, const char* ns, const AttachedPort& port) {
  if (port.entry == nullptr) return {};
  return reference_of(b, ns, keys_of(cls, port));
}

Object port_instance(Builder& b, const char* cls, const char* ns, const AttachedPort& port,
                     const char** properties) {
  if (port.entry == nullptr) return {};
  return instance_of(b, ns, keys_of(cls, port), properties,
                     [&](ObjectWriter& out) { write_attached_port(out, cls, port); });
}

Ref port_capabilities_reference(Builder& b, const char* cls, const char* ns,
                                const pm_port_info_* port) {
  return setting_reference(b, cls, ns, port);
}

Object port_capabilities_instance(Builder& b, const char* cls, const char* ns,
                                  const pm_port_info_* port, const char** properties) {
  const auto write = [](ObjectWriter& out) {
    out.boolean("ElementNameEditSupported", true);
    out.uint16("MaxElementNameLen", PM_MAX_ALIAS_LENGTH);
    constexpr uint16_t kStates[] = {2, 3};
    out.uint16s("RequestedStatesSupported", kStates);
    constexpr uint64_t kSpeeds[] = {1000 * kSpeedUnit, 2000 * kSpeedUnit};
    out.uint64s("RequestedSpeedsSupported", kSpeeds);
    out.boolean("AutoSenseSpeedConfigurable", true);
    constexpr uint16_t kTypes[] = {4, 5, 6, 17001, 17002, 17016, 17064};
    out.uint16s("RequestedTypesSupported", kTypes);
  };
  return setting_instance(b, cls, ns, port, "FC Port Capabilities", properties, write);
}

Ref port_settings_reference(Builder& b, const char* cls, const char* ns,
                            const pm_port_info_* port) {
  return setting_reference(b, cls, ns, port);
}

Object port_settings_instance(Builder& b, const char* cls, const char* ns,
                              const pm_port_info_* port, const char** properties) {
  const auto write = [port](ObjectWriter& out) {
    // A port without a speed of its own takes that of the other end.
    out.boolean("AutoSenseSpeed", port->admin_speed == 0);
    out.uint64("RequestedSpeed", port->admin_speed * kSpeedUnit);
    out.uint16("RequestedType", pm_cim_convert_port_mode_fcportsettings(port->admin_mode));
  };
  return setting_instance(b, cls, ns, port, "FC Port Settings", properties, write);
}

}  // namespace cim_utils::model
