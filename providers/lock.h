// The library's process-wide lock, held while one exists.
//
// The library keeps static result buffers and a shared scratch area, so whoever calls it holds the
// lock. Object managers call a provider on many threads, and an operation that a provider asks of
// them may come back to us: the lock is therefore never held while an object is returned, nor while
// the object manager is asked for an operation. A request locks to read the records it needs, and
// again for each object that it builds of them. Nothing else calls mutex_lock and mutex_unlock.
#pragma once

#include <cim_utils/session.h>

#include <cerrno>
#include <new>

#include "providers/failure.h"

namespace vexor::providers {

class Lock {
 public:
  Lock() {
    const int error = mutex_lock();
    if (error != 0) throw Failure(CMPI_RC_ERR_FAILED, "the lock cannot be taken (error %d)", error);
    errno = 0;
  }
  ~Lock() { mutex_unlock(); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
};

// Where memory ends, the library may go on without what it wanted it for, and what it gives then is
// not what the switch has: only errno tells. Throws bad_alloc when that happened since the lock was
// taken, unless another error came after it: to be asked soon after calls that read lists.
inline void check_memory() {
  if (errno == ENOMEM) throw std::bad_alloc();
}

}  // namespace vexor::providers
