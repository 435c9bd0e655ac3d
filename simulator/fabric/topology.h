// What follows from a fabric: which ports work and how, which devices are logged in, which links
// carry which VSAN. Worked out once per state of the fabric, then looked up.
#ifndef SIMULATOR_FABRIC_TOPOLOGY_H
#define SIMULATOR_FABRIC_TOPOLOGY_H

#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

#include "simulator/fabric/fabric.h"

namespace switch_sim {

enum class OperState : uint8_t { up = 1, down = 2, trunking = 8 };

struct PortStatus {
  OperState state = OperState::down;
  PortMode mode = PortMode::automatic;  // of FC-like interfaces that work
  uint32_t speed = 0;                   // Mb/s; 0 while down
  bool physically_enabled = false;      // of ports: set up, powered, with usable optics
  bool works() const { return state != OperState::down; }
  friend bool operator==(const PortStatus&, const PortStatus&) = default;
};

// A device that is logged in.
struct Registration {
  uint32_t vsan = 0;
  std::array<uint8_t, 3> fc_id{};  // domain, area, port
  uint32_t device = 0;             // its place in Fabric::devices
  Wwn fabric_port;                 // of the switch port that it is attached to
};

// One direction of a link that carries a VSAN.
struct RoutedLink {
  LinkEnd here;
  LinkEnd there;
  uint32_t speed = 0;  // Mb/s
};

// A switch as it shows itself in a VSAN.
struct Element {
  Wwn wwn;            // of the switch in the VSAN
  size_t domain = 0;  // its place in Vsan::domains
};

class Topology {
 public:
  explicit Topology(const Fabric& fabric);

  // Of an interface of the switch; down for what is no interface.
  PortStatus status(const Wwn& switch_wwn, uint32_t if_index) const;

  // The channel that the port is a member of; 0: none.
  uint32_t channel_of(const Wwn& switch_wwn, uint32_t if_index) const;

  // The FCIP interfaces that use an Ethernet port, rising.
  std::vector<uint32_t> fcip_of(const Wwn& switch_wwn, uint32_t ethernet) const;

  // The devices behind a port of a switch, by FC ID.
  std::vector<Registration> devices_behind(const LinkEnd& port) const;

  // The devices that are logged in, by FC ID: of a VSAN, with a port WWN, a node WWN, or behind a
  // switch port with a WWN.
  std::vector<Registration> in_vsan(uint32_t vsan) const;
  std::vector<Registration> with_port_wwn(uint32_t vsan, const Wwn& wwn) const;
  std::vector<Registration> with_node_wwn(uint32_t vsan, const Wwn& wwn) const;
  std::vector<Registration> with_fabric_port(uint32_t vsan, const Wwn& wwn) const;

  // The links over which a switch reaches others in a VSAN, by interface.
  std::vector<RoutedLink> links_of(const Fabric& fabric, const Wwn& switch_wwn,
                                   uint32_t vsan) const;

  // The switches whose domain manager runs in the VSAN, by their WWN there. Good while the topology
  // is.
  const std::vector<Element>& elements_of(const Vsan& vsan) const;

 private:
  friend class TopologyBuilder;

  // Where the interfaces of a switch start in the lists below.
  struct Block {
    Wwn switch_wwn;
    size_t first = 0;
    size_t count = 0;
    std::vector<size_t> linked;  // places in slots_ of interfaces that have a link
  };
  struct Slot {
    uint32_t if_index = 0;
    uint32_t channel = 0;
    PortStatus status;
    std::vector<uint32_t> registrations;  // places in registrations_
    int64_t link = -1;                    // place in Fabric::links; -1: none
  };
  struct ByWwn {
    uint32_t vsan = 0;
    Wwn wwn;
    uint32_t registration = 0;  // rising with the FC ID
  };

  const Slot* find(const Wwn& switch_wwn, uint32_t if_index) const;
  const Block* find(const Wwn& switch_wwn) const;
  std::vector<Registration> find(const std::vector<ByWwn>& list, uint32_t vsan,
                                 const Wwn& wwn) const;

  std::vector<Block> blocks_;                // by switch WWN
  std::vector<Slot> slots_;                  // of each block by interface index
  std::vector<Registration> registrations_;  // by VSAN and FC ID
  std::vector<ByWwn> by_port_, by_node_, by_fabric_port_;
  std::map<LinkEnd, std::vector<uint32_t>> fcip_;
  mutable std::unordered_map<uint32_t, std::vector<Element>> elements_;  // as far as asked for
};

// The topology of the fabric, kept in it until it is changed. A fabric whose parts were changed in
// place since then must be copied first.
const Topology& topology_of(const Fabric& fabric);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_TOPOLOGY_H
