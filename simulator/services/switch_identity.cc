// The switch's own WWN (opcode 1282): 8 bytes, switch-wide.
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {

Outcome switch_identity(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (!request.body.empty()) return refuse(status::kBadLength);
  ReplyWriter writer(8);
  writer.wwn(0, fabric.local_switch);
  return reply(std::move(writer).take());
}

}  // namespace switch_sim::services
