#ifndef PEGASUS_COMMON_CIMINSTANCE_H
#define PEGASUS_COMMON_CIMINSTANCE_H

#include <Pegasus/Common/Array.h>
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

// An instance: class name, path, qualifiers and properties. Copies are handles on one shared
// instance; clone() makes an independent one. Members of a default-constructed handle throw
// UninitializedObjectException, and so does a null class name. An index out of range throws
// IndexOutOfBoundsException. Conversion from an object that is a class throws
// DynamicCastFailedException.
class PEGASUS_COMMON_LINKAGE CIMInstance : public RepHandle<CIMObjectRep> {
 public:
  CIMInstance();
  explicit CIMInstance(const CIMObject& x);
  CIMInstance(const CIMName& className);

  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;  // only the class name until setPath
  void setPath(const CIMObjectPath& path);

  // The instance shares the qualifier or property that is added. A second one of the same name,
  // case ignored, throws AlreadyExistsException.
  CIMInstance& addQualifier(const CIMQualifier& qualifier);
  Uint32 findQualifier(const CIMName& name) const;  // PEG_NOT_FOUND if there is none
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;
  CIMInstance& addProperty(const CIMProperty& x);
  Uint32 findProperty(const CIMName& name) const;
  CIMProperty getProperty(Uint32 index);
  CIMConstProperty getProperty(Uint32 index) const;
  void removeProperty(Uint32 index);
  Uint32 getPropertyCount() const;

  // The path with a key binding for each key property of the class, without host and namespace.
  // Exception for a key that the instance does not have.
  CIMObjectPath buildPath(const CIMConstClass& cimClass) const;
  CIMInstance clone() const;
  Boolean identical(const CIMConstInstance& x) const;
  Boolean isUninitialized() const;

#ifdef PEGASUS_USE_DEPRECATED_INTERFACES
  void filter(Boolean includeQualifiers, Boolean includeClassOrigin,
              const CIMPropertyList& propertyList);
#endif
  // Takes away what was not asked for: the qualifiers of the instance and its properties, their
  // class origins, the properties that are not listed.
  void instanceFilter(Boolean includeQualifiers, Boolean includeClassOrigin,
                      const CIMPropertyList& propertyList);

 private:
  friend struct RepAccess;
  explicit CIMInstance(CIMObjectRep* owned) noexcept : RepHandle<CIMObjectRep>(owned) {}
};

// A handle on an instance through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstInstance : public RepHandle<CIMObjectRep> {
 public:
  CIMConstInstance();
  CIMConstInstance(const CIMInstance& x);
  explicit CIMConstInstance(const CIMObject& x);
  explicit CIMConstInstance(const CIMConstObject& x);
  CIMConstInstance(const CIMName& className);
  CIMConstInstance& operator=(const CIMInstance& x);

  const CIMName& getClassName() const;
  const CIMObjectPath& getPath() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Uint32 findProperty(const CIMName& name) const;
  CIMConstProperty getProperty(Uint32 index) const;
  Uint32 getPropertyCount() const;
  CIMObjectPath buildPath(const CIMConstClass& cimClass) const;
  CIMInstance clone() const;
  Boolean identical(const CIMConstInstance& x) const;
  Boolean isUninitialized() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
