#include "providers/queue.h"

#include <cim_utils/session.h>

#include "providers/lock.h"

namespace vexor::providers::queue {
namespace {

// Guarded by Lock.
int members = 0;
bool was_used = false;

}  // namespace

void join() {
  const Lock lock;
  ++members;
}

int32_t leave() {
  const Lock lock;
  if (--members > 0 || !was_used) return 0;
  was_used = false;
  const int32_t status = deinit_mts(&mts_q);
  mts_q = -1;
  return status;
}

int32_t handle() {
  if (!was_used) gdb_check();  // lets a person attach a debugger before the first request
  int32_t bound = -1;
  if (init_mts(&bound) != 0 || bound < 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the switch's response queue cannot be bound");
  was_used = true;
  return bound;
}

}  // namespace vexor::providers::queue
