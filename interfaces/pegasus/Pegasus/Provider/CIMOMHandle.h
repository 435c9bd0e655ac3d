#ifndef PEGASUS_PROVIDER_CIMOMHANDLE_H
#define PEGASUS_PROVIDER_CIMOMHANDLE_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/OperationContext.h>
#include <Pegasus/Provider/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A provider's way back into the object manager. Handles may be copied and kept.
//
// Only getClass is carried out: it asks the class source of the process (see
// <Pegasus/Provider/vexor_class_source.h>). The other operations throw CIMNotSupportedException.
class PEGASUS_PROVIDER_LINKAGE CIMOMHandle {
 public:
  CIMOMHandle();

  // The class, which the caller may change: it is not shared with the class source.
  //   localOnly            leaves out what the class inherits unchanged
  //   includeQualifiers    otherwise there are none, on no element
  //   includeClassOrigin   otherwise class origins are null
  //   propertyList         if not null, only these properties
  // Throws CIMException, code CIM_ERR_NOT_FOUND, if there is no such class or no class source.
  CIMClass getClass(const OperationContext& context, const CIMNamespaceName& nameSpace,
                    const CIMName& className, Boolean localOnly, Boolean includeQualifiers,
                    Boolean includeClassOrigin, const CIMPropertyList& propertyList);

  Array<CIMClass> enumerateClasses(const OperationContext& context,
                                   const CIMNamespaceName& nameSpace, const CIMName& className,
                                   Boolean deepInheritance, Boolean localOnly,
                                   Boolean includeQualifiers, Boolean includeClassOrigin);
  Array<CIMName> enumerateClassNames(const OperationContext& context,
                                     const CIMNamespaceName& nameSpace, const CIMName& className,
                                     Boolean deepInheritance);
  CIMInstance getInstance(const OperationContext& context, const CIMNamespaceName& nameSpace,
                          const CIMObjectPath& instanceName, Boolean localOnly,
                          Boolean includeQualifiers, Boolean includeClassOrigin,
                          const CIMPropertyList& propertyList);
  Array<CIMInstance> enumerateInstances(const OperationContext& context,
                                        const CIMNamespaceName& nameSpace, const CIMName& className,
                                        Boolean deepInheritance, Boolean localOnly,
                                        Boolean includeQualifiers, Boolean includeClassOrigin,
                                        const CIMPropertyList& propertyList);
  Array<CIMObjectPath> enumerateInstanceNames(const OperationContext& context,
                                              const CIMNamespaceName& nameSpace,
                                              const CIMName& className);

  // Accepted without effect: nothing here unloads a provider by itself.
  void disallowProviderUnload();
  void allowProviderUnload();

#ifdef PEGASUS_USE_EXPERIMENTAL_INTERFACES
  // Always empty: no operation leaves a context behind.
  OperationContext getResponseContext();
#endif
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
