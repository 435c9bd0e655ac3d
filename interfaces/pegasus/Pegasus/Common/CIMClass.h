#ifndef PEGASUS_COMMON_CIMCLASS_H
#define PEGASUS_COMMON_CIMCLASS_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMMethod.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMObject.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A class declaration. Copies are handles on one shared class; clone() makes an independent one.
// The errors are those of CIMInstance; conversion from an object that is an instance throws
// DynamicCastFailedException.
class PEGASUS_COMMON_LINKAGE CIMClass : public RepHandle<CIMObjectRep> {
 public:
  CIMClass();
  explicit CIMClass(const CIMObject& x);
  CIMClass(const CIMName& className, const CIMName& superClassName = CIMName());

  Boolean isAssociation() const;  // has the qualifier Association with the value true
  Boolean isAbstract() const;     // likewise Abstract
  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;
  void setPath(const CIMObjectPath& path);
  const CIMName& getSuperClassName() const;
  void setSuperClassName(const CIMName& superClassName);
  CIMClass& addQualifier(const CIMQualifier& qualifier);
  Uint32 findQualifier(const CIMName& name) const;
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;
  CIMClass& addProperty(const CIMProperty& x);
  Uint32 findProperty(const CIMName& name) const;
  CIMProperty getProperty(Uint32 index);
  CIMConstProperty getProperty(Uint32 index) const;
  void removeProperty(Uint32 index);
  Uint32 getPropertyCount() const;
  CIMClass& addMethod(const CIMMethod& x);
  Uint32 findMethod(const CIMName& name) const;
  CIMMethod getMethod(Uint32 index);
  CIMConstMethod getMethod(Uint32 index) const;
  void removeMethod(Uint32 index);
  Uint32 getMethodCount() const;
  // Appends the names of the properties whose qualifier Key is true.
  void getKeyNames(Array<CIMName>& keyNames) const;
  Boolean hasKeys() const;
  CIMClass clone() const;
  Boolean identical(const CIMConstClass& x) const;
  Boolean isUninitialized() const;
  // An instance with the properties of the class that are asked for and their default values.
  CIMInstance buildInstance(Boolean includeQualifiers, Boolean includeClassOrigin,
                            const CIMPropertyList& propertyList) const;

 private:
  friend struct RepAccess;
  explicit CIMClass(CIMObjectRep* owned) noexcept : RepHandle<CIMObjectRep>(owned) {}
};

// A handle on a class through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstClass : public RepHandle<CIMObjectRep> {
 public:
  CIMConstClass();
  CIMConstClass(const CIMClass& x);
  explicit CIMConstClass(const CIMObject& x);
  explicit CIMConstClass(const CIMConstObject& x);
  CIMConstClass(const CIMName& className, const CIMName& superClassName = CIMName());
  CIMConstClass& operator=(const CIMClass& x);

  Boolean isAssociation() const;
  Boolean isAbstract() const;
  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;
  const CIMName& getSuperClassName() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Uint32 findProperty(const CIMName& name) const;
  CIMConstProperty getProperty(Uint32 index) const;
  Uint32 getPropertyCount() const;
  Uint32 findMethod(const CIMName& name) const;
  CIMConstMethod getMethod(Uint32 index) const;
  Uint32 getMethodCount() const;
  void getKeyNames(Array<CIMName>& keyNames) const;
  Boolean hasKeys() const;
  CIMClass clone() const;
  Boolean identical(const CIMConstClass& x) const;
  Boolean isUninitialized() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
