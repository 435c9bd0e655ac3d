// The zone server: changes of the full database, activation and distribution. The full database can
// be changed in any VSAN; activation and distribution need one in which the local switch runs.
#include <switch_platform/zone_server_results.h>

#include "simulator/local/platform_status.h"
#include "simulator/services/services.h"
#include "simulator/services/zone_server_requests.h"

namespace switch_sim::services {
namespace {

Vsan* vsan_to_change(Fabric& fabric, uint32_t number) {
  const Vsan* found = find_vsan(fabric, number);
  return found != nullptr ? &fabric.vsans[static_cast<size_t>(found - fabric.vsans.data())]
                          : nullptr;
}

ZoneDatabase& full_database(Vsan& vsan) {
  return vsan.zoning.change().full.change();
}

bool runs_locally(const Fabric& fabric, const Vsan& vsan) {
  const DomainManager* local = find_domain(vsan, fabric.local_switch);
  return local != nullptr && is_running(vsan, *local);
}

Outcome outcome_of(int32_t result) {
  return result == 0 ? Outcome() : refuse(result);
}

// A change of what a parent holds, both named by name.
using ChangeOfParent = int32_t (ZoneDatabase::*)(uint32_t, uint32_t);

Outcome change_child(const Request& request, Fabric& fabric, ZoningKind parent_kind,
                     ZoningKind child_kind, ChangeOfParent add, ChangeOfParent remove) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t number = body.word(), what = body.word();
  const std::string parent_name = body.text(), child_name = body.text();
  if (!body.is_whole()) return refuse(status::kBadLength);
  Vsan* vsan = vsan_to_change(fabric, number);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  const uint32_t parent = vsan->zoning->full->id_of(parent_kind, parent_name);
  const uint32_t child = vsan->zoning->full->id_of(child_kind, child_name);
  if (parent == 0 || child == 0) return refuse(ZS_NO_SUCH_OBJECT);
  return outcome_of((full_database(*vsan).*(what != 0 ? add : remove))(parent, child));
}

// The zoning that is active once the zone set is activated or deactivated.
int32_t activate(Zoning& zoning, const std::string& name, bool on) {
  const uint32_t zone_set = zoning.full->id_of(ZoningKind::zone_set, name);
  if (!on) {
    if (zoning.active->id_of(ZoningKind::zone_set, name) == 0) {
      return zone_set != 0 ? ZS_NOT_ACTIVE : ZS_NO_SUCH_OBJECT;
    }
    zoning.active = {};
    return 0;
  }
  if (zone_set == 0) return ZS_NO_SUCH_OBJECT;
  if (zoning.full->zone_sets().find(zone_set)->zones.empty()) return ZS_ZONE_SET_EMPTY;
  Shared<ZoneDatabase> taken;
  taken.change() = zoning.full->excerpt(zone_set);
  if (taken == zoning.active) return ZS_ALREADY_ACTIVE;
  zoning.active = std::move(taken);
  return 0;
}

bool holds(const Zoning& zoning, const Wwn& switch_wwn) {
  return std::any_of(zoning.distributed.begin(), zoning.distributed.end(),
                     [&](const DistributedZoning& held) {
                       return held.switch_wwn == switch_wwn && held.database == zoning.full;
                     });
}

void give(Zoning& zoning, const Wwn& switch_wwn) {
  auto& all = zoning.distributed;
  const auto place = std::lower_bound(
      all.begin(), all.end(), switch_wwn,
      [](const DistributedZoning& held, const Wwn& wanted) { return held.switch_wwn < wanted; });
  if (place != all.end() && place->switch_wwn == switch_wwn) {
    place->database = zoning.full;
  } else {
    all.insert(place, {switch_wwn, zoning.full});
  }
}

}  // namespace

Outcome change_zoning_object(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t number = body.word(), what = body.word();
  const auto kind = zoning_kind(body.word());
  const std::string name = body.text();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind) return refuse(ZS_BAD_KIND);
  Vsan* vsan = vsan_to_change(fabric, number);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  if (what != 0) return outcome_of(full_database(*vsan).create(*kind, name));
  const uint32_t id = vsan->zoning->full->id_of(*kind, name);
  if (id == 0) return refuse(ZS_NO_SUCH_OBJECT);
  full_database(*vsan).remove(*kind, id);
  return {};
}

Outcome change_zone_of_zone_set(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  return change_child(request, fabric, ZoningKind::zone_set, ZoningKind::zone,
                      &ZoneDatabase::add_zone, &ZoneDatabase::remove_zone);
}

Outcome change_alias_of_zone(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  return change_child(request, fabric, ZoningKind::zone, ZoningKind::alias,
                      &ZoneDatabase::add_alias, &ZoneDatabase::remove_alias);
}

Outcome change_zone_member(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t number = body.word(), what = body.word();
  const auto kind = zoning_kind(body.word());
  const std::string parent_name = body.text();
  const uint32_t type = body.word();
  const std::string value = body.text();
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (!kind || *kind == ZoningKind::zone_set) return refuse(ZS_BAD_KIND);
  if (type > UINT8_MAX) return refuse(ZS_BAD_MEMBER);
  Vsan* vsan = vsan_to_change(fabric, number);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  const uint32_t parent = vsan->zoning->full->id_of(*kind, parent_name);
  if (parent == 0) return refuse(ZS_NO_SUCH_OBJECT);
  const ZoneMember member{0, static_cast<uint8_t>(type), value};
  ZoneDatabase& full = full_database(*vsan);
  return outcome_of(what != 0 ? full.add_member(*kind, parent, member)
                              : full.remove_member(*kind, parent, member));
}

Outcome activate_zone_set(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  const uint32_t number = body.word(), what = body.word();
  const std::string name = body.text();
  if (!body.is_whole()) return refuse(status::kBadLength);
  Vsan* vsan = vsan_to_change(fabric, number);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  if (!runs_locally(fabric, *vsan)) return refuse(status::kNotRunning);
  return outcome_of(activate(vsan->zoning.change(), name, what != 0));
}

// Every other switch whose domain manager runs gets the database; one that does not run keeps what
// it had.
Outcome distribute_zoning(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  ZoningRequest body(request.body);
  Vsan* vsan = vsan_to_change(fabric, body.word());
  if (!body.is_whole()) return refuse(status::kBadLength);
  if (vsan == nullptr) return refuse(ZS_NO_SUCH_VSAN);
  if (!runs_locally(fabric, *vsan)) return refuse(status::kNotRunning);
  if (vsan->zoning->full->zone_sets().size() == 0) return refuse(ZS_NOTHING_TO_DISTRIBUTE);
  bool changed = false;
  for (const DomainManager& domain : vsan->domains) {
    if (domain.switch_wwn == fabric.local_switch || !is_running(*vsan, domain) ||
        holds(*vsan->zoning, domain.switch_wwn)) {
      continue;
    }
    give(vsan->zoning.change(), domain.switch_wwn);
    changed = true;
  }
  return outcome_of(changed ? 0 : ZS_ALREADY_DISTRIBUTED);
}

}  // namespace switch_sim::services
