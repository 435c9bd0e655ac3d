#ifndef PEGASUS_PROVIDER_VEXOR_CLASS_SOURCE_H
#define PEGASUS_PROVIDER_VEXOR_CLASS_SOURCE_H

// An extension of this library: where CIMOMHandle::getClass gets class definitions from, since
// there is no object manager behind these classes. A hosting program installs one source for the
// whole process.

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Provider/Linkage.h>

#include <memory>

namespace Pegasus {
inline namespace vexor_compat {

class PEGASUS_PROVIDER_LINKAGE ClassSource {
 public:
  virtual ~ClassSource();
  // The whole class: inherited elements marked as propagated, every qualifier, every class origin.
  // An uninitialized CIMClass means that there is no such class; another error is thrown as
  // CIMException. The caller does not change what it gets, so the source may keep it. Called from
  // any thread, several at a time.
  virtual CIMClass getClass(const CIMNamespaceName& nameSpace, const CIMName& className) = 0;
};

// Puts a source in the place of the one before, if any; null takes it away. A call of getClass
// that is under way keeps the source it began with alive.
PEGASUS_PROVIDER_LINKAGE void installClassSource(std::shared_ptr<ClassSource> source);
PEGASUS_PROVIDER_LINKAGE void uninstallClassSource();

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
