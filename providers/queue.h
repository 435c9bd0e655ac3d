// The response queue that all providers of this library share.
//
// It is bound when a request needs it, and released when the last provider object (MI) that the
// object manager made is cleaned up for good. The library below keeps one handle for the process,
// which others use, too (providers on its other interface), and goes on handing it out after a
// release. So whoever releases the queue takes the handle out of mts_q, and everybody takes it from
// there anew each time that he holds the lock: the next one who needs it binds it again.
#pragma once

#include <cstdint>

namespace vexor::providers::queue {

// Counts one provider object. Takes the lock.
void join();

// Takes one provider object off the count; the last one releases the queue if one of them used it.
// Takes the lock.
// Result: 0, or the transport's status of a release that failed.
int32_t leave();

// The queue's handle, bound if it is not. The caller holds the lock.
// Throws Failure: the queue cannot be bound.
int32_t handle();

}  // namespace vexor::providers::queue
