#ifndef PEGASUS_COMMON_CIMPARAMETER_H
#define PEGASUS_COMMON_CIMPARAMETER_H

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMType.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A parameter of a method declaration. Copies share, as with CIMProperty.
class PEGASUS_COMMON_LINKAGE CIMParameter : public RepHandle<CIMParameterRep> {
 public:
  CIMParameter();
  CIMParameter(const CIMName& name, CIMType type, Boolean isArray = false, Uint32 arraySize = 0,
               const CIMName& referenceClassName = CIMName());

  const CIMName& getName() const;
  void setName(const CIMName& name);
  CIMType getType() const;
  Boolean isArray() const;
  Uint32 getArraySize() const;
  const CIMName& getReferenceClassName() const;
  CIMParameter& addQualifier(const CIMQualifier& x);
  Uint32 findQualifier(const CIMName& name) const;
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;
  Boolean identical(const CIMConstParameter& x) const;
  CIMParameter clone() const;
  Boolean isUninitialized() const;

 private:
  friend struct RepAccess;
  explicit CIMParameter(CIMParameterRep* owned) noexcept : RepHandle<CIMParameterRep>(owned) {}
};

// A handle on a parameter through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstParameter : public RepHandle<CIMParameterRep> {
 public:
  CIMConstParameter();
  CIMConstParameter(const CIMParameter& x);
  CIMConstParameter& operator=(const CIMParameter& x);

  const CIMName& getName() const;
  CIMType getType() const;
  Boolean isArray() const;
  Uint32 getArraySize() const;
  const CIMName& getReferenceClassName() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Boolean identical(const CIMConstParameter& x) const;
  CIMParameter clone() const;
  Boolean isUninitialized() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
