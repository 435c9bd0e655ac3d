#ifndef PEGASUS_COMMON_CIMQUALIFIER_H
#define PEGASUS_COMMON_CIMQUALIFIER_H

#include <Pegasus/Common/CIMFlavor.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A qualifier with its value. Copies are handles on one shared qualifier; clone() makes an
// independent one. Members of a default-constructed handle throw UninitializedObjectException,
// and so does a null name.
class PEGASUS_COMMON_LINKAGE CIMQualifier : public RepHandle<CIMQualifierRep> {
 public:
  CIMQualifier();
  CIMQualifier(const CIMName& name, const CIMValue& value,
               const CIMFlavor& flavor = CIMFlavor(CIMFlavor::NONE), Boolean propagated = false);

  const CIMName& getName() const;
  void setName(const CIMName& name);
  CIMType getType() const;
  Boolean isArray() const;
  const CIMValue& getValue() const;
  void setValue(const CIMValue& value);
  // Adds to (takes from) the flavors that the qualifier has.
  void setFlavor(const CIMFlavor& flavor);
  void unsetFlavor(const CIMFlavor& flavor);
  const CIMFlavor& getFlavor() const;
  Uint32 getPropagated() const;
  void setPropagated(Boolean propagated);
  Boolean isUninitialized() const;
  Boolean identical(const CIMConstQualifier& x) const;
  CIMQualifier clone() const;

 private:
  friend struct RepAccess;
  explicit CIMQualifier(CIMQualifierRep* owned) noexcept : RepHandle<CIMQualifierRep>(owned) {}
};

// A handle on a qualifier through which it cannot be changed.
class PEGASUS_COMMON_LINKAGE CIMConstQualifier : public RepHandle<CIMQualifierRep> {
 public:
  CIMConstQualifier();
  CIMConstQualifier(const CIMQualifier& x);
  CIMConstQualifier(const CIMName& name, const CIMValue& value,
                    const CIMFlavor& flavor = CIMFlavor(CIMFlavor::NONE),
                    Boolean propagated = false);
  CIMConstQualifier& operator=(const CIMQualifier& x);

  const CIMName& getName() const;
  CIMType getType() const;
  Boolean isArray() const;
  const CIMValue& getValue() const;
  const CIMFlavor& getFlavor() const;
  Uint32 getPropagated() const;
  Boolean isUninitialized() const;
  Boolean identical(const CIMConstQualifier& x) const;
  CIMQualifier clone() const;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
