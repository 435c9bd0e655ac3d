#ifndef PEGASUS_COMMON_LINKAGE_H
#define PEGASUS_COMMON_LINKAGE_H

#include <Pegasus/Common/Config.h>

// Every class of the interface, declared with its visibility. Sources compiled with hidden
// visibility must see it before they name a class, since Array<T> takes the visibility of T.

namespace Pegasus {
inline namespace vexor_compat {

class PEGASUS_COMMON_LINKAGE CString;
class PEGASUS_COMMON_LINKAGE Char16;
class PEGASUS_COMMON_LINKAGE CIMClass;
class PEGASUS_COMMON_LINKAGE CIMConstClass;
class PEGASUS_COMMON_LINKAGE CIMConstInstance;
class PEGASUS_COMMON_LINKAGE CIMConstMethod;
class PEGASUS_COMMON_LINKAGE CIMConstObject;
class PEGASUS_COMMON_LINKAGE CIMConstParameter;
class PEGASUS_COMMON_LINKAGE CIMConstProperty;
class PEGASUS_COMMON_LINKAGE CIMConstQualifier;
class PEGASUS_COMMON_LINKAGE CIMConstQualifierDecl;
class PEGASUS_COMMON_LINKAGE CIMDateTime;
class PEGASUS_COMMON_LINKAGE CIMFlavor;
class PEGASUS_COMMON_LINKAGE CIMInstance;
class PEGASUS_COMMON_LINKAGE CIMKeyBinding;
class PEGASUS_COMMON_LINKAGE CIMMethod;
class PEGASUS_COMMON_LINKAGE CIMName;
class PEGASUS_COMMON_LINKAGE CIMNamespaceName;
class PEGASUS_COMMON_LINKAGE CIMObject;
class PEGASUS_COMMON_LINKAGE CIMObjectPath;
class PEGASUS_COMMON_LINKAGE CIMParameter;
class PEGASUS_COMMON_LINKAGE CIMParamValue;
class PEGASUS_COMMON_LINKAGE CIMProperty;
class PEGASUS_COMMON_LINKAGE CIMPropertyList;
class PEGASUS_COMMON_LINKAGE CIMQualifier;
class PEGASUS_COMMON_LINKAGE CIMQualifierDecl;
class PEGASUS_COMMON_LINKAGE CIMScope;
class PEGASUS_COMMON_LINKAGE CIMValue;
class PEGASUS_COMMON_LINKAGE OperationContext;
class PEGASUS_COMMON_LINKAGE String;

// What the handles point to; defined inside the library only.
class PEGASUS_COMMON_LINKAGE CIMMethodRep;
class PEGASUS_COMMON_LINKAGE CIMObjectPathRep;
class PEGASUS_COMMON_LINKAGE CIMObjectRep;
class PEGASUS_COMMON_LINKAGE CIMParameterRep;
class PEGASUS_COMMON_LINKAGE CIMParamValueRep;
class PEGASUS_COMMON_LINKAGE CIMPropertyListRep;
class PEGASUS_COMMON_LINKAGE CIMPropertyRep;
class PEGASUS_COMMON_LINKAGE CIMQualifierDeclRep;
class PEGASUS_COMMON_LINKAGE CIMQualifierRep;
class PEGASUS_COMMON_LINKAGE CIMValueRep;
class PEGASUS_COMMON_LINKAGE OperationContextRep;
struct RepAccess;

// A counted pointer to a shared representation: one pointer wide, safe to copy from several
// threads. Null is the uninitialized object. Its members are defined inside the library.
template <class Rep>
class PEGASUS_TEMPLATE_LINKAGE RepHandle {
 protected:
  friend struct RepAccess;

  RepHandle() noexcept : _rep(nullptr) {}
  explicit RepHandle(Rep* owned) noexcept : _rep(owned) {}  // takes over the caller's reference
  RepHandle(const RepHandle& x) noexcept;
  RepHandle(RepHandle&& x) noexcept : _rep(x._rep) { x._rep = nullptr; }
  ~RepHandle();
  RepHandle& operator=(const RepHandle& x) noexcept;
  RepHandle& operator=(RepHandle&& x) noexcept;

  Rep* _rep;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
