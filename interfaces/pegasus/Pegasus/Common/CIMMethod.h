#ifndef PEGASUS_COMMON_CIMMETHOD_H
#define PEGASUS_COMMON_CIMMETHOD_H

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMParameter.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMType.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// The declaration of a method. Copies share, as with CIMProperty.
class PEGASUS_COMMON_LINKAGE CIMMethod : public RepHandle<CIMMethodRep> {
 public:
  CIMMethod();
  CIMMethod(const CIMName& name, CIMType type, const CIMName& classOrigin = CIMName(),
            Boolean propagated = false);

  const CIMName& getName() const;
  void setName(const CIMName& name);
  CIMType getType() const;
  void setType(CIMType type);
  const CIMName& getClassOrigin() const;
  void setClassOrigin(const CIMName& classOrigin);
  Boolean getPropagated() const;
  void setPropagated(Boolean propagated);
  CIMMethod& addQualifier(const CIMQualifier& x);
  Uint32 findQualifier(const CIMName& name) const;
  CIMQualifier getQualifier(Uint32 index);
  CIMConstQualifier getQualifier(Uint32 index) const;
  void removeQualifier(Uint32 index);
  Uint32 getQualifierCount() const;
  CIMMethod& addParameter(const CIMParameter& x);
  Uint32 findParameter(const CIMName& name) const;
  CIMParameter getParameter(Uint32 index);
  CIMConstParameter getParameter(Uint32 index) const;
  void removeParameter(Uint32 index);
  Uint32 getParameterCount() const;
  Boolean identical(const CIMConstMethod& x) const;
  CIMMethod clone() const;
  Boolean isUninitialized() const;

 private:
  friend struct RepAccess;
  explicit CIMMethod(CIMMethodRep* owned) noexcept : RepHandle<CIMMethodRep>(owned) {}
};

// A handle on a method through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstMethod : public RepHandle<CIMMethodRep> {
 public:
  CIMConstMethod();
  CIMConstMethod(const CIMMethod& x);
  CIMConstMethod& operator=(const CIMMethod& x);

  const CIMName& getName() const;
  CIMType getType() const;
  const CIMName& getClassOrigin() const;
  Boolean getPropagated() const;
  Uint32 findQualifier(const CIMName& name) const;
  CIMConstQualifier getQualifier(Uint32 index) const;
  Uint32 getQualifierCount() const;
  Uint32 findParameter(const CIMName& name) const;
  CIMConstParameter getParameter(Uint32 index) const;
  Uint32 getParameterCount() const;
  Boolean identical(const CIMConstMethod& x) const;
  CIMMethod clone() const;
  Boolean isUninitialized() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
