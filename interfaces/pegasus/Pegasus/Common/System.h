#ifndef PEGASUS_COMMON_SYSTEM_H
#define PEGASUS_COMMON_SYSTEM_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// Facts about this machine and process, asked of the operating system at every call.
class PEGASUS_COMMON_LINKAGE System {
 public:
  // The host name up to its first dot; empty if the system does not tell it.
  static String getHostName();
  // The host name as the system has it; no name service is asked.
  static String getFullyQualifiedHostName();
  // Local time as "mm/dd/yyyy-hh:mm:ss".
  static String getCurrentASCIITime();
  // Microseconds since 1 January 1970.
  static Uint64 getCurrentTimeUsec();
  static Uint32 getPID();
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
