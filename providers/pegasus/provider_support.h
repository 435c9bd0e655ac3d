// What providers on the OpenPegasus provider interface have in common: failures, the library's
// lock, the queues, and reading paths. It includes no CMPI, and the library's public headers only.
#pragma once

#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/CIMStatusCode.h>
#include <Pegasus/Provider/CIMOMHandle.h>

#include <cstdint>
#include <optional>
#include <string>

namespace vexor::providers::pegasus {

// Throws Pegasus::CIMException.
[[noreturn]] void fail(Pegasus::CIMStatusCode code, const std::string& text);

// The library's process-wide lock: its texts lie in buffers that all threads share. It is held
// while records are read, and again for each object that is built of them, but not while one is
// delivered.
class Lock {
 public:
  Lock();
  ~Lock();
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
};

// The library asks on two queues: what this face builds on ProviderUtil's, the names of other
// switches on the session's, which is the result. Binds what is not bound yet. The caller holds the
// lock.
int32_t bound_queue();

// The WWN of the switch that runs this agent, as text. The caller holds the lock.
std::string own_wwn(int32_t q);

// A provider begins and ends. The last one that ends releases this face's queue, and the session's
// if it was bound here; others in the process bind that anew.
void join(const Pegasus::CIMOMHandle& cimom);
void leave();

// Throws unless the path is of the class.
void check_class(const Pegasus::CIMObjectPath& path, const char* cls);

// The key "Name" of a path of the class; none when its other key, "CreationClassName", names
// another class. Throws for a path of another class, without the key, or with others.
std::optional<std::string> name_of(const Pegasus::CIMObjectPath& path, const char* cls);

// What the client wants to see of an instance.
struct Selection {
  Pegasus::Boolean qualifiers;
  Pegasus::Boolean class_origin;
  const Pegasus::CIMPropertyList& properties;

  Pegasus::CIMInstance of(Pegasus::CIMInstance instance) const;
};

}  // namespace vexor::providers::pegasus
