// The objects that associations of hardware and connectivity tie together, and how such an
// association is described: a list of pairs of them.
#pragma once

#include <switch_platform/types.h>

#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "providers/computer_system.h"
#include "providers/hardware.h"
#include "providers/port.h"
#include "providers/vsan.h"

namespace vexor::providers {

// A switch's part in the VSAN that its WWN tells.
struct SwitchPart {
  wwn_ wwn;
};

// The endpoint of a port.
struct Endpoint {
  Port port;
};

struct SwitchCapabilities {};
struct SwitchSettings {};

struct PortCapabilities {
  OwnPort port;
};
struct PortSettings {
  OwnPort port;
};

// What there is once for each VSAN.
struct ServiceOfZones {
  uint32_t vsan;
};
struct CapabilitiesOfZones {
  uint32_t vsan;
};

// The port of another switch, or of a device, that a port of the own switch is connected to.
struct RemoteAccessPoint {
  std::string name;
  std::string system;  // a WWN as text
};

using LinkedObject =
    std::variant<PhysicalSwitch, SwitchPart, OwnPort, LinkEnd, Attachment, Endpoint, Module,
                 PhysicalPort, Chassis, Product, SwitchCapabilities, SwitchSettings,
                 PortCapabilities, PortSettings, Node, ConnectivityCollection, ServiceOfZones,
                 CapabilitiesOfZones, RemoteAccessPoint>;

// By the library's builders. The class is that of the object, whatever the target says.
CMPIObjectPath* linked_reference(const Target& target, const LinkedObject& object);
CMPIInstance* linked_instance(const Target& target, const LinkedObject& object);

template <class Record>
LinkedObject linked(const Record& record) {
  return record;
}
inline LinkedObject linked(const Port& port) {
  return std::visit([](const auto& form) { return LinkedObject(form); }, port);
}

// The ports that a path may name: of the own switch, of links, and of attachments.
std::vector<Port> ports_like(int32_t q, const ObjectName& object);
// Those of the own switch only.
std::vector<OwnPort> own_ports_like(int32_t q, const ObjectName& object);
// All of the own switch.
std::vector<OwnPort> all_own_ports(int32_t q);

// Throws Failure when the switch identity service does not answer.
wwn_ own_switch_wwn(int32_t q);

// The switches that a request comes across.
class Switches {
 public:
  // Throws Failure when the switch identity service does not answer.
  explicit Switches(int32_t q) : q_(q), own_(own_switch_wwn(q)) {}

  const wwn_& own() const { return own_; }
  // Whether the configuration server tells of a switch in a VSAN, by the WWN that it shows there or
  // by that of the device: there is no object of another one. Asks once for each.
  bool has(uint32_t vsan, const wwn_& wwn);

 private:
  int32_t q_;
  wwn_ own_;
  std::map<std::pair<uint32_t, uint64_t>, bool> known_;
};

// A device by its WWN, as against the own switch's.
PhysicalSwitch switch_with_wwn(const wwn_& wwn, const wwn_& own);
// The device of a switch that shows a WWN in a VSAN.
wwn_ device_wwn_of(const wwn_& shown);
// What a switch is in a VSAN: a part of its own, or the device for another maker's.
LinkedObject switch_in_vsan(const wwn_& shown, const wwn_& own);

// ---- associations ----

struct LinkedPair {
  LinkedObject first;
  LinkedObject second;
};

// An association of two linked objects, built by a pair of functions of the library.
struct LinkedAssociation {
  const char* name;
  std::array<End, 2> ends;
  CMPIObjectPath* (*fill)(const char*, const char*, const CMPIObjectPath*, const CMPIObjectPath*,
                          const CMPIBroker*);
  CMPIInstance* (*build)(const char*, const char*, const CMPIObjectPath*, const CMPIObjectPath*,
                         const CMPIBroker*);
  std::vector<LinkedPair> (*list)(int32_t q);
  // Those that may have the object at an end (0 or 1).
  std::vector<LinkedPair> (*related)(int32_t q, int end, const ObjectName& object);
  // The end at which an object has the fewer of them.
  int known_by;
};

template <const LinkedAssociation& kThe>
constexpr RecordClass<LinkedPair>::Description described() {
  return {
      .name = kThe.name,
      .keys = {kThe.ends[0].role, kThe.ends[1].role},
      .list = kThe.list,
      .reference =
          [](const Target& to, const LinkedPair& pair) {
            return kThe.fill(to.class_name, to.name_space, linked_reference(to, pair.first),
                             linked_reference(to, pair.second), to.broker);
          },
      .instance =
          [](const Target& to, const LinkedPair& pair) {
            return kThe.build(to.class_name, to.name_space, linked_reference(to, pair.first),
                              linked_reference(to, pair.second), to.broker);
          },
      .find =
          [](int32_t q, const ObjectName& name) {
            const ObjectName* object = name.reference(kThe.ends[kThe.known_by].role);
            return object != nullptr ? kThe.related(q, kThe.known_by, *object)
                                     : std::vector<LinkedPair>{};
          },
      .ends = {{
          {kThe.ends[0],
           [](const Target& to, const LinkedPair& pair) {
             return linked_reference(to, pair.first);
           },
           [](const Target& to, const LinkedPair& pair) {
             return linked_instance(to, pair.first);
           }},
          {kThe.ends[1],
           [](const Target& to, const LinkedPair& pair) {
             return linked_reference(to, pair.second);
           },
           [](const Target& to, const LinkedPair& pair) {
             return linked_instance(to, pair.second);
           }},
      }},
      .related =
          [](int32_t q, const char* role, const ObjectName& object) {
            return kThe.related(q, same_name(role, kThe.ends[1].role) ? 1 : 0, object);
          },
  };
}

}  // namespace vexor::providers
