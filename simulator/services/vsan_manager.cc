// The VSAN manager: the VSANs that the local switch knows.
//
// A message, request or reply, takes 2632 bytes: a header of 520 whose first word is 0, the entry
// of 2108, and 4 more. In the entry: VSAN number at 0, administrative state at 8 (1 active, 2
// suspended), load balancing at 24, operational state at 32 (1 up, 2 down), name at 36 (128 bytes).
#include <algorithm>

#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kMessageSize = 2632;
constexpr size_t kEntry = 520;

Bytes write_entry(const Vsan& vsan) {
  ReplyWriter reply(kMessageSize);
  reply.be32(kEntry, vsan.number)
      .be32(kEntry + 8, static_cast<uint32_t>(vsan.state))
      .be32(kEntry + 24, static_cast<uint32_t>(vsan.load_balancing))
      .be32(kEntry + 32, static_cast<uint32_t>(vsan.state))
      .text(kEntry + 36, 128, vsan.name);
  return std::move(reply).take();
}

bool is_one_or_two(uint32_t value) {
  return value == 1 || value == 2;
}

// A set takes over the administrative state, the name and the load balancing. The operational state
// is never set: it follows the administrative one.
Outcome set_entry(const RequestReader& request, Fabric& fabric) {
  const uint32_t number = request.be32(kEntry);
  const uint32_t state = request.be32(kEntry + 8);
  const uint32_t load_balancing = request.be32(kEntry + 24);
  const auto name = request.text(kEntry + 36, 128);
  const auto vsan = std::find_if(fabric.vsans.begin(), fabric.vsans.end(),
                                 [&](const Vsan& known) { return known.number == number; });
  if (vsan == fabric.vsans.end()) return refuse(status::kNotFound);
  if (!is_one_or_two(state) || !is_one_or_two(load_balancing) || !name || !is_name(*name)) {
    return refuse(status::kBadValue);
  }
  vsan->state = static_cast<VsanState>(state);
  vsan->load_balancing = static_cast<LoadBalancing>(load_balancing);
  vsan->name = *name;
  return {};
}

Outcome count(const Request& request, size_t number) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  ReplyWriter writer(4);
  writer.be32(0, static_cast<uint32_t>(number));
  return reply(std::move(writer).take());
}

}  // namespace

Outcome vsan_entry(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.body.size() != kMessageSize) return refuse(status::kBadLength);
  const RequestReader reader(request.body);
  const uint32_t number = reader.be32(kEntry);
  switch (request.operation) {
    case kGet: {
      const Vsan* vsan = find_vsan(fabric, number);
      return vsan != nullptr ? reply(write_entry(*vsan)) : refuse(status::kNotFound);
    }
    case kGetNext: {
      const Vsan* vsan = next_vsan(fabric, number);
      return vsan != nullptr ? reply(write_entry(*vsan)) : refuse(status::kEndOfTable);
    }
    case kSet:
      return set_entry(reader, fabric);
    default:
      return refuse(status::kBadOperation);
  }
}

Outcome count_vsans(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  return count(request, fabric.vsans.size());
}

Outcome count_active_vsans(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  return count(request, static_cast<size_t>(std::count_if(
                            fabric.vsans.begin(), fabric.vsans.end(),
                            [](const Vsan& vsan) { return vsan.state == VsanState::up; })));
}

}  // namespace switch_sim::services
