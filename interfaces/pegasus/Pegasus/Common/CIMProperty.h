#ifndef PEGASUS_COMMON_CIMPROPERTY_H
#define PEGASUS_COMMON_CIMPROPERTY_H

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A property with its value and qualifiers. Copies are handles on one shared property; clone()
// makes an independent one. Members of a default-constructed handle throw
// UninitializedObjectException, and so does a null name.
//
// arraySize, if not 0, must be the size of the array value, and referenceClassName belongs to
// references only; otherwise the constructor throws TypeMismatchException.
class PEGASUS_COMMON_LINKAGE CIMProperty : public RepHandle<CIMPropertyRep> {
 public:
  CIMProperty();
  CIMProperty(const CIMName& name, const CIMValue& value, Uint32 arraySize = 0,
              const CIMName& referenceClassName = CIMName(), const CIMName& classOrigin = CIMName(),
              Boolean propagated = false);

  const CIMName& getName() const;
  void setName(const CIMName& name);
  const CIMValue& getValue() const;
  CIMType getType() const;
  Boolean isArray() const;
  // Throws TypeMismatchException for a value of another type.
  void setValue(const CIMValue& value);
  Uint32 getArraySize() const;
  const CIMName& getReferenceClassName() const;
  const CIMName& getClassOrigin() const;
  void setClassOrigin(const CIMName& classOrigin);
  Boolean getPropagated() const;
  void setPropagated(Boolean propagated);

  // The property shares the qualifier that is added. A second one of the same name throws
  // AlreadyExistsException.
  CIMProperty& addQualifier(const CIMQualifier& x);
  Uint32 findQualifier(const CIMName& name) const;  // PEG_NOT_FOUND if there is none
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;

  Boolean identical(const CIMConstProperty& x) const;
  CIMProperty clone() const;
  Boolean isUninitialized() const;

 private:
  friend struct RepAccess;
  explicit CIMProperty(CIMPropertyRep* owned) noexcept : RepHandle<CIMPropertyRep>(owned) {}
};

// A handle on a property through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstProperty : public RepHandle<CIMPropertyRep> {
 public:
  CIMConstProperty();
  CIMConstProperty(const CIMProperty& x);
  CIMConstProperty(const CIMName& name, const CIMValue& value, Uint32 arraySize = 0,
                   const CIMName& referenceClassName = CIMName(),
                   const CIMName& classOrigin = CIMName(), Boolean propagated = false);
  CIMConstProperty& operator=(const CIMProperty& x);

  const CIMName& getName() const;
  const CIMValue& getValue() const;
  CIMType getType() const;
  Boolean isArray() const;
  Uint32 getArraySize() const;
  const CIMName& getReferenceClassName() const;
  const CIMName& getClassOrigin() const;
  Boolean getPropagated() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Boolean identical(const CIMConstProperty& x) const;
  CIMProperty clone() const;
  Boolean isUninitialized() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
