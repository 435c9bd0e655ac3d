#ifndef PEGASUS_COMMON_CIMQUALIFIERDECL_H
#define PEGASUS_COMMON_CIMQUALIFIERDECL_H

#include <Pegasus/Common/CIMFlavor.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMScope.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// The declaration of a qualifier: its default value, scope and flavors. Copies share.
class PEGASUS_COMMON_LINKAGE CIMQualifierDecl : public RepHandle<CIMQualifierDeclRep> {
 public:
  CIMQualifierDecl();
  CIMQualifierDecl(const CIMName& name, const CIMValue& value, const CIMScope& scope,
                   const CIMFlavor& flavor = CIMFlavor(CIMFlavor::DEFAULTS), Uint32 arraySize = 0);

  const CIMName& getName() const;
  void setName(const CIMName& name);
  CIMType getType() const;
  Boolean isArray() const;
  const CIMValue& getValue() const;
  void setValue(const CIMValue& value);
  const CIMScope& getScope() const;
  const CIMFlavor& getFlavor() const;
  Uint32 getArraySize() const;
  Boolean isUninitialized() const;
  Boolean identical(const CIMQualifierDecl& x) const;
  CIMQualifierDecl clone() const;

 private:
  explicit CIMQualifierDecl(CIMQualifierDeclRep* owned) noexcept
      : RepHandle<CIMQualifierDeclRep>(owned) {}
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
