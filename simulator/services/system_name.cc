// Change of the system name (opcode 878): 260 bytes, the name at 0 (256 bytes), zeros at 256.
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
Outcome set_system_name(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kSet) return refuse(status::kBadOperation);
  if (request.body.size() != 260) return refuse(status::kBadLength);
  const auto name = RequestReader(request.body).text(0, 256);
  if (!name || !is_name(*name)) return refuse(status::kBadValue);
  local_switch(fabric).name = *name;
  return {};
}

}  // namespace switch_sim::services
