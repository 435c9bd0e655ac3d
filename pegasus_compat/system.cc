#include <Pegasus/Common/System.h>

#include <sys/time.h>
#include <unistd.h>

#include <ctime>

namespace Pegasus {
inline namespace vexor_compat {

String System::getHostName() {
  const String name = getFullyQualifiedHostName();
  const Uint32 dot = name.find('.');
  return dot == PEG_NOT_FOUND ? name : name.subString(0, dot);
}

String System::getFullyQualifiedHostName() {
  char name[256] = {};  // one byte more than the system is told of: it need not end a long name
  if (gethostname(name, sizeof(name) - 1) != 0) return String();
  return String(name);
}

String System::getCurrentASCIITime() {
  const time_t now = time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  char text[64];
  const size_t n = strftime(text, sizeof(text), "%m/%d/%Y-%H:%M:%S", &local);
  return String(text, static_cast<Uint32>(n));
}

Uint64 System::getCurrentTimeUsec() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return static_cast<Uint64>(now.tv_sec) * 1000000 + static_cast<Uint64>(now.tv_usec);
}

Uint32 System::getPID() {
  return static_cast<Uint32>(getpid());
}

}  // namespace vexor_compat
}  // namespace Pegasus
