// The fabric that is there when nothing else is asked for.
#include "simulator/fabric/default_ports.h"
#include "simulator/fabric/fabric.h"

namespace switch_sim {
namespace {

Switch make_switch(const char* name, uint8_t last_byte, uint8_t last_address_byte,
                   const char* location) {
  Switch made;
  made.name = name;
  made.wwn = {{0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, last_byte}};
  made.address.bytes = {192, 0, 2, last_address_byte};
  made.system.contact = "storage-team@example.com";
  made.system.location = location;
  made.system.description = "Simulated Fibre Channel switch";
  made.system.software_version = "3.1(2a)";
  made.system.object_id = {1, 3, 6, 1, 4, 1, 8, 5};
  made.system.uptime_hundredths = 8640000;  // one day
  return made;
}

DomainManager make_domain(const Switch& owner, uint8_t domain_id, uint8_t priority) {
  DomainManager made;
  made.switch_wwn = owner.wwn;
  made.domain_id = domain_id;
  made.configured_domain_id = domain_id;
  made.configured_priority = priority;
  return made;
}

ZoneMember port_wwn_member(char last_byte) {
  return {0, 1, std::string("\x21\x00\x00\x11\x22\x33\x44", 7) + last_byte};
}

// A host and a tape library, each in a zone of its own with the ports of two arrays; an alias holds
// these.
Zoning make_zoning() {
  Zoning zoning;
  ZoneDatabase& full = zoning.full.change();
  full.create(ZoningKind::alias, "arrays");
  full.add_member(ZoningKind::alias, 1, port_wwn_member(0x11));
  full.add_member(ZoningKind::alias, 1, port_wwn_member(0x21));
  full.create(ZoningKind::zone, "host_a_arrays");
  full.add_member(ZoningKind::zone, 1, port_wwn_member(0x01));
  full.add_alias(1, 1);
  full.create(ZoningKind::zone, "backup");
  full.add_member(ZoningKind::zone, 2, port_wwn_member(0x41));
  full.add_alias(2, 1);
  full.create(ZoningKind::zone_set, "production");
  full.add_zone(1, 1);
  full.add_zone(1, 2);
  zoning.active.change() = full.excerpt(1);
  return zoning;
}

}  // namespace

Fabric default_fabric() {
  Fabric fabric;
  fabric.switches = {
      make_switch("switch-1", 0x2C, 11, "Row 1, rack 4"),
      make_switch("switch-2", 0x5E, 12, "Row 1, rack 9"),
      make_switch("switch-3", 0x90, 13, "Row 2, rack 4"),
  };
  fabric.local_switch = fabric.switches[0].wwn;

  Vsan first;
  first.number = 1;
  first.name = "VSAN0001";
  first.load_balancing = LoadBalancing::source_destination_exchange;
  first.principal_switch = fabric.switches[0].wwn;
  first.domains = {make_domain(fabric.switches[0], 97, 1), make_domain(fabric.switches[1], 98, 128),
                   make_domain(fabric.switches[2], 99, 128)};
  first.zoning.change() = make_zoning();

  Vsan second;
  second.number = 2;
  second.name = "VSAN0002";
  second.load_balancing = LoadBalancing::source_destination;
  second.principal_switch = fabric.switches[1].wwn;
  second.domains = {make_domain(fabric.switches[0], 21, 128),
                    make_domain(fabric.switches[1], 22, 2),
                    make_domain(fabric.switches[2], 23, 254)};
  second.domains[2].configured_type = DomainType::static_id;

  fabric.vsans = {first, second};
  add_default_ports(fabric);
  sort(fabric);
  return fabric;
}

}  // namespace switch_sim
