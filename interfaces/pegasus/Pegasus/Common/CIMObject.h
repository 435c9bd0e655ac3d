#ifndef PEGASUS_COMMON_CIMOBJECT_H
#define PEGASUS_COMMON_CIMOBJECT_H

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A handle on an instance or a class, shared with the CIMInstance or CIMClass it was made from.
// The errors are those of CIMInstance.
class PEGASUS_COMMON_LINKAGE CIMObject : public RepHandle<CIMObjectRep> {
 public:
  CIMObject();
  CIMObject(const CIMClass& x);
  CIMObject(const CIMInstance& x);

  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;
  void setPath(const CIMObjectPath& path);
  CIMObject& addQualifier(const CIMQualifier& qualifier);
  Uint32 findQualifier(const CIMName& name) const;
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;
  CIMObject& addProperty(const CIMProperty& x);
  Uint32 findProperty(const CIMName& name) const;
  CIMProperty getProperty(Uint32 index);
  CIMConstProperty getProperty(Uint32 index) const;
  void removeProperty(Uint32 index);
  Uint32 getPropertyCount() const;
  CIMObject clone() const;
  Boolean identical(const CIMConstObject& x) const;
  Boolean isUninitialized() const;
  // The declaration in MOF.
  String toString() const;
  Boolean isClass() const;
  Boolean isInstance() const;
  // As CIMInstance::instanceFilter; DynamicCastFailedException for a class.
  void instanceFilter(Boolean includeQualifiers, Boolean includeClassOrigin,
                      const CIMPropertyList& propertyList);

 private:
  friend struct RepAccess;
  explicit CIMObject(CIMObjectRep* owned) noexcept : RepHandle<CIMObjectRep>(owned) {}
};

// A handle on an object through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstObject : public RepHandle<CIMObjectRep> {
 public:
  CIMConstObject();
  CIMConstObject(const CIMObject& x);
  CIMConstObject(const CIMClass& x);
  CIMConstObject(const CIMInstance& x);
  CIMConstObject(const CIMConstClass& x);
  CIMConstObject(const CIMConstInstance& x);
  CIMConstObject& operator=(const CIMObject& x);

  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Uint32 findProperty(const CIMName& name) const;
  CIMConstProperty getProperty(Uint32 index) const;
  Uint32 getPropertyCount() const;
  CIMObject clone() const;
  Boolean identical(const CIMConstObject& x) const;
  Boolean isUninitialized() const;
  String toString() const;
  Boolean isClass() const;
  Boolean isInstance() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
