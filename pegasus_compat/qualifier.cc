#include <Pegasus/Common/CIMQualifier.h>

#include <Pegasus/Common/CIMQualifierDecl.h>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {

const CIMName& required(const CIMName& name) {
  if (name.isNull()) throw UninitializedObjectException();
  return name;
}

bool isTrue(const QualifierList& qualifiers, const CIMName& name) {
  const Uint32 index = qualifiers.find(name);
  if (index == PEG_NOT_FOUND) return false;
  const CIMValue& value = qualifiers.at(index).getValue();
  Boolean on = false;
  if (value.getType() == CIMTYPE_BOOLEAN && !value.isArray()) value.get(on);
  return on;
}

bool CIMQualifierRep::identical(const CIMQualifierRep& x) const {
  return this == &x || (name.equal(x.name) && value.equal(x.value) && flavor.equal(x.flavor) &&
                        propagated == x.propagated);
}

CIMQualifier::CIMQualifier() = default;
CIMQualifier::CIMQualifier(const CIMName& name, const CIMValue& value, const CIMFlavor& flavor,
                           Boolean propagated)
    : RepHandle<CIMQualifierRep>(new CIMQualifierRep(name, value, flavor, propagated)) {}

const CIMName& CIMQualifier::getName() const {
  return RepAccess::checked(*this).name;
}
void CIMQualifier::setName(const CIMName& name) {
  RepAccess::checked(*this).name = required(name);
}
CIMType CIMQualifier::getType() const {
  return getValue().getType();
}
Boolean CIMQualifier::isArray() const {
  return getValue().isArray();
}
const CIMValue& CIMQualifier::getValue() const {
  return RepAccess::checked(*this).value;
}
void CIMQualifier::setValue(const CIMValue& value) {
  RepAccess::checked(*this).value = value;
}

void CIMQualifier::setFlavor(const CIMFlavor& flavor) {
  RepAccess::checked(*this).flavor.addFlavor(flavor);
}

void CIMQualifier::unsetFlavor(const CIMFlavor& flavor) {
  RepAccess::checked(*this).flavor.removeFlavor(flavor);
}

const CIMFlavor& CIMQualifier::getFlavor() const {
  return RepAccess::checked(*this).flavor;
}
Uint32 CIMQualifier::getPropagated() const {
  return RepAccess::checked(*this).propagated ? 1 : 0;
}

void CIMQualifier::setPropagated(Boolean propagated) {
  RepAccess::checked(*this).propagated = propagated;
}

Boolean CIMQualifier::isUninitialized() const {
  return _rep == nullptr;
}

Boolean CIMQualifier::identical(const CIMConstQualifier& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMQualifier CIMQualifier::clone() const {
  return CIMQualifier(new CIMQualifierRep(RepAccess::checked(*this)));
}

CIMConstQualifier::CIMConstQualifier() = default;
CIMConstQualifier::CIMConstQualifier(const CIMQualifier& x) : RepHandle<CIMQualifierRep>(x) {}
CIMConstQualifier::CIMConstQualifier(const CIMName& name, const CIMValue& value,
                                     const CIMFlavor& flavor, Boolean propagated)
    : CIMConstQualifier(CIMQualifier(name, value, flavor, propagated)) {}

CIMConstQualifier& CIMConstQualifier::operator=(const CIMQualifier& x) {
  return *this = CIMConstQualifier(x);
}

const CIMName& CIMConstQualifier::getName() const {
  return RepAccess::checked(*this).name;
}
CIMType CIMConstQualifier::getType() const {
  return getValue().getType();
}
Boolean CIMConstQualifier::isArray() const {
  return getValue().isArray();
}
const CIMValue& CIMConstQualifier::getValue() const {
  return RepAccess::checked(*this).value;
}
const CIMFlavor& CIMConstQualifier::getFlavor() const {
  return RepAccess::checked(*this).flavor;
}

Uint32 CIMConstQualifier::getPropagated() const {
  return RepAccess::checked(*this).propagated ? 1 : 0;
}

Boolean CIMConstQualifier::isUninitialized() const {
  return _rep == nullptr;
}

Boolean CIMConstQualifier::identical(const CIMConstQualifier& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMQualifier CIMConstQualifier::clone() const {
  return RepAccess::own<CIMQualifier>(new CIMQualifierRep(RepAccess::checked(*this)));
}

CIMQualifierDecl::CIMQualifierDecl() = default;
CIMQualifierDecl::CIMQualifierDecl(const CIMName& name, const CIMValue& value,
                                   const CIMScope& scope, const CIMFlavor& flavor, Uint32 arraySize)
    : CIMQualifierDecl(new CIMQualifierDeclRep) {
  _rep->name = required(name);
  _rep->value = value;
  _rep->scope = scope;
  _rep->flavor = flavor;
  _rep->arraySize = arraySize;
}

const CIMName& CIMQualifierDecl::getName() const {
  return RepAccess::checked(*this).name;
}

void CIMQualifierDecl::setName(const CIMName& name) {
  RepAccess::checked(*this).name = required(name);
}

CIMType CIMQualifierDecl::getType() const {
  return getValue().getType();
}
Boolean CIMQualifierDecl::isArray() const {
  return getValue().isArray();
}
const CIMValue& CIMQualifierDecl::getValue() const {
  return RepAccess::checked(*this).value;
}
void CIMQualifierDecl::setValue(const CIMValue& value) {
  RepAccess::checked(*this).value = value;
}
const CIMScope& CIMQualifierDecl::getScope() const {
  return RepAccess::checked(*this).scope;
}
const CIMFlavor& CIMQualifierDecl::getFlavor() const {
  return RepAccess::checked(*this).flavor;
}
Uint32 CIMQualifierDecl::getArraySize() const {
  return RepAccess::checked(*this).arraySize;
}
Boolean CIMQualifierDecl::isUninitialized() const {
  return _rep == nullptr;
}

Boolean CIMQualifierDecl::identical(const CIMQualifierDecl& x) const {
  const CIMQualifierDeclRep& mine = RepAccess::checked(*this);
  const CIMQualifierDeclRep& other = RepAccess::checked(x);
  return mine.name.equal(other.name) && mine.value.equal(other.value) &&
         mine.scope.equal(other.scope) && mine.flavor.equal(other.flavor) &&
         mine.arraySize == other.arraySize;
}

CIMQualifierDecl CIMQualifierDecl::clone() const {
  return CIMQualifierDecl(new CIMQualifierDeclRep(RepAccess::checked(*this)));
}

}  // namespace vexor_compat
}  // namespace Pegasus
