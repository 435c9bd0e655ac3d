// The own switch's interfaces, from the port manager: VEXOR_FCPort in the form that has an
// interface index, VEXOR_EthernetPort, VEXOR_FCPortCapabilities and VEXOR_FCPortSettings.
#pragma once

#include <switch_platform/records_port_manager.h>
#include <switch_platform/types.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "providers/class.h"

namespace vexor::providers {

// By the WWN of a switch port as a number, the port WWN of the first device behind it.
using DevicesBehindPorts = std::unordered_map<uint64_t, wwn_>;

struct OwnPort {
  // As the port manager gave it, never copied: how long a record is belongs to the platform.
  std::shared_ptr<const pm_port_info_> info;
  // Set where all devices were read anyway; without it the name server is asked for those behind
  // the port when an instance shows them.
  std::shared_ptr<const DevicesBehindPorts> devices;
};

enum class PortKind { fibre_channel, ethernet };

// The class that the library's builders give an interface.
PortKind kind_of(uint32_t if_index);

// One exchange with the port manager for each interface, one for each of its types, and one with
// the IP configuration for each that may have an address. An interface that vanishes on the way is
// passed over. When the port manager stops answering on the way, the interfaces read until then are
// the result: the library does not tell the difference. Throws Failure when there are none at all
// and the port manager does not answer.
std::vector<OwnPort> own_ports(int32_t q, PortKind kind);

// Those of both kinds that have a WWN, each WWN once.
std::vector<OwnPort> own_ports_with_wwns(int32_t q);

// The one with the WWN. It is read alone where the WWN tells its interface index.
std::vector<OwnPort> own_ports_with_wwn(int32_t q, const wwn_& wwn);

// The one with the interface index, if it is of the kind.
std::vector<OwnPort> own_port(int32_t q, PortKind kind, uint32_t if_index);

// By "DeviceID", a signed decimal, and by "InstanceID", an unsigned one. Nothing for other texts.
std::vector<OwnPort> own_ports_named(int32_t q, PortKind kind, const ObjectName& name);
std::optional<uint32_t> id_of(const ObjectName& name);
std::vector<OwnPort> own_ports_with_id(int32_t q, const ObjectName& name);

// The library shows the interface index as the "PortNumber" of port 0, which no such number can
// hold: sets it to 0.
void complete_port_number(const Target& target, uint32_t if_index, CMPIInstance* instance);

CMPIObjectPath* own_port_reference(const Target& target, const OwnPort& port);
// With "PeerPortWWN" for a port that devices log in at, too: the first of the devices behind it.
CMPIInstance* own_port_instance(const Target& target, const OwnPort& port);

// What a client may change of a port: its alias, which it sends as "ElementName" and sees as
// "Description". The interface's name, which "ElementName" shows, is no change.
inline constexpr const char* kChangeableOfPort[] = {"ElementName", nullptr};
void modify_own_port(int32_t q, const OwnPort& port, const NewValues& values);

// The method RequestStateChange: "RequestedState" 2 enables the port, 3 disables it. It is done
// when the method returns, so there is never a job. Result: 0; 1 for an interface that has no state
// of its own (a port channel); 2 when the port manager refuses or does not answer; 5 for another
// state or none.
enum StateChange : uint32_t {
  kStateChanged = 0,
  kStateNotSupported = 1,
  kStateRefused = 2,
  kStateInvalid = 5
};
uint32_t request_own_port_state(int32_t q, const OwnPort& port, const Arguments& arguments);

CMPIObjectPath* port_capabilities_reference(const Target& target, const OwnPort& port);
CMPIInstance* port_capabilities_instance(const Target& target, const OwnPort& port);

CMPIObjectPath* port_settings_reference(const Target& target, const OwnPort& port);
CMPIInstance* port_settings_instance(const Target& target, const OwnPort& port);

inline constexpr const char* kChangeableOfPortSettings[] = {"AutoSenseSpeed", "RequestedSpeed",
                                                            "RequestedType", nullptr};
// Speed before type; when the type is refused, the speed gets its old value back.
void modify_port_settings(int32_t q, const OwnPort& port, const NewValues& values);

}  // namespace vexor::providers
