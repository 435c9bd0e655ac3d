// The domain manager of the local switch.
//
// Configuration (opcode 264), 1152 bytes: VSAN at 0, request kind (1) at 4, domain ID in use at 21,
// VSAN WWN at 22 while it runs, configured domain ID, type and priority at 332, 333 and 337, flag
// "enabled" at 334, alternate WWN at 340 while it does not run. A set names what it changes in a
// mask at 348, which travels in host order: 32 priority, 512 domain ID and type.
//
// Database (opcode 267), 19 bytes: VSAN at 0, request kind (1) at 4, domain ID at 5, VSAN WWN of
// the owner at 6.
#include <algorithm>

#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kConfigurationSize = 1152;
constexpr size_t kDatabaseSize = 19;
constexpr uint32_t kPriorityMask = 32;
constexpr uint32_t kDomainMask = 512;

const DomainManager* find_local(const Fabric& fabric, const Vsan& vsan) {
  return find_domain(vsan, fabric.local_switch);
}

// The first VSAN above `after` in which the local switch has a domain manager.
const Vsan* next_local_vsan(const Fabric& fabric, uint32_t after) {
  for (const Vsan* vsan = next_vsan(fabric, after); vsan != nullptr;
       vsan = next_vsan(fabric, vsan->number)) {
    if (find_local(fabric, *vsan) != nullptr) return vsan;
  }
  return nullptr;
}

Bytes write_configuration(const Vsan& vsan, const DomainManager& domain) {
  const Wwn wwn = vsan_wwn(domain.switch_wwn, vsan.number);
  ReplyWriter reply(kConfigurationSize);
  reply.be32(0, vsan.number)
      .be32(4, 1)
      .u8(332, domain.configured_domain_id)
      .u8(333, static_cast<uint8_t>(domain.configured_type))
      .u8(337, domain.configured_priority);
  if (is_running(vsan, domain)) {
    reply.u8(21, domain.domain_id).wwn(22, wwn).u8(334, 1);
  } else {
    reply.wwn(340, wwn);
  }
  return std::move(reply).take();
}

Outcome set_configuration(const RequestReader& request, Fabric& fabric) {
  const Vsan* vsan = find_vsan(fabric, request.be32(0));
  const DomainManager* known = vsan != nullptr ? find_local(fabric, *vsan) : nullptr;
  if (known == nullptr) return refuse(status::kNotFound);

  const uint32_t mask = request.native32(348);
  if (mask == 0 || (mask & ~(kPriorityMask | kDomainMask)) != 0) {
    return refuse(status::kBadValue);
  }
  DomainManager changed = *known;
  if ((mask & kPriorityMask) != 0) changed.configured_priority = request.u8(337);
  if ((mask & kDomainMask) != 0) {
    changed.configured_domain_id = request.u8(332);
    changed.configured_type = static_cast<DomainType>(request.u8(333));
  }
  const bool known_type = changed.configured_type == DomainType::static_id ||
                          changed.configured_type == DomainType::preferred;
  const bool missing_id =
      changed.configured_type == DomainType::static_id && changed.configured_domain_id == 0;
  if (changed.configured_priority < 1 || changed.configured_priority > 254 ||
      changed.configured_domain_id > kLargestDomainId || !known_type || missing_id) {
    return refuse(status::kBadValue);
  }
  // The configuration counts from the next election on: the domain ID in use stays.
  auto& vsans = fabric.vsans;
  auto& domains = vsans[static_cast<size_t>(vsan - vsans.data())].domains;
  domains[static_cast<size_t>(known - domains.data())] = changed;
  return {};
}

struct DatabaseRow {
  const Vsan* vsan = nullptr;
  const DomainManager* domain = nullptr;
};

// The running domain with the lowest ID of at least `from`, or null.
const DomainManager* lowest_domain(const Vsan& vsan, uint32_t from) {
  const DomainManager* lowest = nullptr;
  for (const DomainManager& domain : vsan.domains) {
    if (!is_running(vsan, domain) || domain.domain_id < from) continue;
    if (lowest == nullptr || domain.domain_id < lowest->domain_id) lowest = &domain;
  }
  return lowest;
}

// The row after (VSAN, domain ID); the table goes on in the next VSAN.
DatabaseRow next_row(const Fabric& fabric, uint32_t number, uint32_t domain_id) {
  if (const Vsan* vsan = find_vsan(fabric, number)) {
    if (const DomainManager* domain = lowest_domain(*vsan, domain_id + 1)) return {vsan, domain};
  }
  for (const Vsan* vsan = next_vsan(fabric, number); vsan != nullptr;
       vsan = next_vsan(fabric, vsan->number)) {
    if (const DomainManager* domain = lowest_domain(*vsan, 1)) return {vsan, domain};
  }
  return {};
}

Outcome exact_row(const Fabric& fabric, uint32_t number, uint32_t domain_id, DatabaseRow* row) {
  row->vsan = find_vsan(fabric, number);
  if (row->vsan == nullptr) return refuse(status::kNotFound);
  const DomainManager* local = find_local(fabric, *row->vsan);
  if (local == nullptr || !is_running(*row->vsan, *local)) return refuse(status::kNotRunning);
  row->domain = lowest_domain(*row->vsan, domain_id);
  const bool found = row->domain != nullptr && row->domain->domain_id == domain_id;
  return found ? Outcome{} : refuse(status::kNotFound);
}

}  // namespace

Outcome domain_configuration(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kConfigurationSize) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  if (reader.be32(4) != 1) return refuse(status::kBadValue);
  if (request.operation == kSet) return set_configuration(reader, fabric);
  if (request.operation != kGet && request.operation != kGetNext) {
    return refuse(status::kBadOperation);
  }
  const bool exact = request.operation == kGet;
  const Vsan* vsan =
      exact ? find_vsan(fabric, reader.be32(0)) : next_local_vsan(fabric, reader.be32(0));
  const DomainManager* domain = vsan != nullptr ? find_local(fabric, *vsan) : nullptr;
  if (domain == nullptr) return refuse(exact ? status::kNotFound : status::kEndOfTable);
  return reply(write_configuration(*vsan, *domain));
}

Outcome domain_database(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kDatabaseSize) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  if (reader.u8(4) != 1) return refuse(status::kBadValue);
  DatabaseRow row;
  if (request.operation == kGet) {
    Outcome refused = exact_row(fabric, reader.be32(0), reader.u8(5), &row);
    if (refused.status != status::kOk) return refused;
  } else if (request.operation == kGetNext) {
    row = next_row(fabric, reader.be32(0), reader.u8(5));
    if (row.domain == nullptr) return refuse(status::kEndOfTable);
  } else {
    return refuse(status::kBadOperation);
  }
  ReplyWriter writer(kDatabaseSize);
  writer.be32(0, row.vsan->number)
      .u8(4, 1)
      .u8(5, row.domain->domain_id)
      .wwn(6, vsan_wwn(row.domain->switch_wwn, row.vsan->number));
  return reply(std::move(writer).take());
}

// The reply of the client function: the number of entries at 0, then 8 bytes per VSAN in which the
// domain manager runs: VSAN at 0, domain ID at 4.
Outcome local_domain_ids(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  std::vector<std::pair<uint32_t, uint8_t>> entries;
  for (const Vsan& vsan : fabric.vsans) {
    const DomainManager* domain = find_local(fabric, vsan);
    if (domain != nullptr && is_running(vsan, *domain)) {
      entries.emplace_back(vsan.number, domain->domain_id);
    }
  }
  ReplyWriter writer(4 + entries.size() * 8);
  writer.be32(0, static_cast<uint32_t>(entries.size()));
  for (size_t i = 0; i < entries.size(); ++i) {
    writer.be32(4 + i * 8, entries[i].first).u8(8 + i * 8, entries[i].second);
  }
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
