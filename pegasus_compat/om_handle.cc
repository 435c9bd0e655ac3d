#include <Pegasus/Common/Exception.h>
#include <Pegasus/Provider/CIMOMHandle.h>
#include <Pegasus/Provider/vexor_class_source.h>

#include <mutex>
#include <utility>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {
namespace {

std::mutex sourceMutex;
std::shared_ptr<ClassSource> installedSource;

std::shared_ptr<ClassSource> currentSource() {
  const std::lock_guard lock(sourceMutex);
  return installedSource;
}

CIMException notFound(const CIMName& className) {
  return CIMException(CIM_ERR_NOT_FOUND, String("CIM_ERR_NOT_FOUND: ") + className.getString());
}

CIMNotSupportedException notSupported(const char* operation) {
  return CIMNotSupportedException(String("CIM_ERR_NOT_SUPPORTED: ") + String(operation));
}

struct Wanted {
  bool inherited;
  bool qualifiers;
  bool classOrigin;
  const CIMPropertyList& properties;
};

// A class of the caller's own with what it wants of another.
CIMClass selected(const CIMObjectRep& whole, const Wanted& wanted) {
  CIMClass result(whole.className, whole.superClassName);
  CIMObjectRep& part = RepAccess::checked(result);
  part.path = whole.path;
  if (wanted.qualifiers) {
    for (const CIMQualifier& qualifier : whole.qualifiers) {
      if (wanted.inherited || qualifier.getPropagated() == 0) {
        part.qualifiers.append(qualifier.clone());
      }
    }
  }
  for (const CIMProperty& property : whole.properties) {
    const CIMPropertyRep& rep = RepAccess::checked(property);
    const bool local = wanted.inherited || !rep.propagated;
    if (!local || !wanted.properties.useThisProperty(rep.name)) continue;
    part.properties.append(
        RepAccess::own<CIMProperty>(rep.clone(wanted.qualifiers, wanted.classOrigin)));
  }
  for (const CIMMethod& method : whole.methods) {
    const CIMMethodRep& rep = RepAccess::checked(method);
    if (!wanted.inherited && rep.propagated) continue;
    part.methods.append(
        RepAccess::own<CIMMethod>(rep.clone(wanted.qualifiers, wanted.classOrigin)));
  }
  return result;
}

}  // namespace

ClassSource::~ClassSource() = default;

void installClassSource(std::shared_ptr<ClassSource> source) {
  {
    const std::lock_guard lock(sourceMutex);
    installedSource.swap(source);
  }
  source.reset();  // the one before may take the lock again as it goes
}

void uninstallClassSource() {
  installClassSource(nullptr);
}

CIMOMHandle::CIMOMHandle() = default;

CIMClass CIMOMHandle::getClass(const OperationContext&, const CIMNamespaceName& nameSpace,
                               const CIMName& className, Boolean localOnly,
                               Boolean includeQualifiers, Boolean includeClassOrigin,
                               const CIMPropertyList& propertyList) {
  const std::shared_ptr<ClassSource> source = currentSource();
  if (source == nullptr) throw notFound(className);
  const CIMClass whole = source->getClass(nameSpace, className);
  if (whole.isUninitialized()) throw notFound(className);
  return selected(RepAccess::checked(whole),
                  Wanted{!localOnly, includeQualifiers, includeClassOrigin, propertyList});
}

Array<CIMClass> CIMOMHandle::enumerateClasses(const OperationContext&, const CIMNamespaceName&,
                                              const CIMName&, Boolean, Boolean, Boolean, Boolean) {
  throw notSupported("enumerateClasses");
}

Array<CIMName> CIMOMHandle::enumerateClassNames(const OperationContext&, const CIMNamespaceName&,
                                                const CIMName&, Boolean) {
  throw notSupported("enumerateClassNames");
}

CIMInstance CIMOMHandle::getInstance(const OperationContext&, const CIMNamespaceName&,
                                     const CIMObjectPath&, Boolean, Boolean, Boolean,
                                     const CIMPropertyList&) {
  throw notSupported("getInstance");
}

Array<CIMInstance> CIMOMHandle::enumerateInstances(const OperationContext&, const CIMNamespaceName&,
                                                   const CIMName&, Boolean, Boolean, Boolean,
                                                   Boolean, const CIMPropertyList&) {
  throw notSupported("enumerateInstances");
}

Array<CIMObjectPath> CIMOMHandle::enumerateInstanceNames(const OperationContext&,
                                                         const CIMNamespaceName&, const CIMName&) {
  throw notSupported("enumerateInstanceNames");
}

void CIMOMHandle::disallowProviderUnload() {}
void CIMOMHandle::allowProviderUnload() {}
OperationContext CIMOMHandle::getResponseContext() {
  return OperationContext();
}

}  // namespace vexor_compat
}  // namespace Pegasus
