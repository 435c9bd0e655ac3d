#include "providers/queue.h"

#include <cim_utils/session.h>

#include "providers/lock.h"

namespace vexor::providers::queue {
namespace {

enum class State { unbound, bound, released };

// Guarded by Lock.
State state = State::unbound;
int members = 0;
int32_t bound_handle = -1;

}  // namespace

void join() {
  const Lock lock;
  ++members;
}

int32_t leave() {
  const Lock lock;
  if (--members > 0 || state != State::bound) return 0;
  state = State::released;
  return deinit_mts(&bound_handle);
}

int32_t handle() {
  switch (state) {
    case State::unbound:
      gdb_check();  // lets a person attach a debugger before the provider's first request
      if (init_mts(&bound_handle) != 0 || bound_handle < 0)
        throw Failure(CMPI_RC_ERR_FAILED, "the switch's response queue cannot be bound");
      state = State::bound;
      break;
    case State::bound:
      break;
    case State::released:
      throw Failure(CMPI_RC_ERR_FAILED,
                    "the switch's response queue was released; it is bound again only when the "
                    "process is started anew");
  }
  return bound_handle;
}

}  // namespace vexor::providers::queue
