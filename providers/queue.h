// The response queue that all providers of this library share.
//
// It is bound when the first request needs it, and released when the last provider object (MI) that
// the object manager made is cleaned up for good. A released queue is never bound again in the same
// process: the library below goes on handing out its old handle. Requests to provider objects made
// after that are refused in plain words, and the process has to be started anew.
#pragma once

#include <cstdint>

namespace vexor::providers::queue {

// Counts one provider object. Takes the lock.
void join();

// Takes one provider object off the count; the last one releases the queue. Takes the lock.
// Result: 0, or the transport's status of a release that failed.
int32_t leave();

// The queue's handle, bound if it is not yet. The caller holds the lock.
// Throws Failure: the queue cannot be bound, or was released.
int32_t handle();

}  // namespace vexor::providers::queue
