#include <Pegasus/Common/CIMProperty.h>

#include <memory>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {

CIMPropertyRep::CIMPropertyRep(const CIMName& name_, const CIMValue& value_, Uint32 arraySize_,
                               const CIMName& referenceClassName_, const CIMName& classOrigin_,
                               Boolean propagated_)
    : name(required(name_)),
      value(value_),
      arraySize(arraySize_),
      referenceClassName(referenceClassName_),
      classOrigin(classOrigin_),
      propagated(propagated_) {
  const bool wrongSize = arraySize != 0 && (!value.isArray() || value.getArraySize() != arraySize);
  const bool noReference = !referenceClassName.isNull() && value.getType() != CIMTYPE_REFERENCE;
  if (wrongSize || noReference) throw TypeMismatchException();
}

CIMPropertyRep* CIMPropertyRep::clone(bool withQualifiers, bool withClassOrigin) const {
  auto copy = std::make_unique<CIMPropertyRep>(
      name, value, 0, referenceClassName, withClassOrigin ? classOrigin : CIMName(), propagated);
  copy->arraySize = arraySize;
  if (withQualifiers) copy->qualifiers = qualifiers.clone();
  return copy.release();
}

bool CIMPropertyRep::identical(const CIMPropertyRep& x) const {
  return this == &x ||
         (name.equal(x.name) && value.equal(x.value) && arraySize == x.arraySize &&
          referenceClassName.equal(x.referenceClassName) && classOrigin.equal(x.classOrigin) &&
          propagated == x.propagated && qualifiers.identical(x.qualifiers));
}

CIMProperty::CIMProperty() = default;
CIMProperty::CIMProperty(const CIMName& name, const CIMValue& value, Uint32 arraySize,
                         const CIMName& referenceClassName, const CIMName& classOrigin,
                         Boolean propagated)
    : RepHandle<CIMPropertyRep>(new CIMPropertyRep(name, value, arraySize, referenceClassName,
                                                   classOrigin, propagated)) {}

const CIMName& CIMProperty::getName() const {
  return RepAccess::checked(*this).name;
}
void CIMProperty::setName(const CIMName& name) {
  RepAccess::checked(*this).name = required(name);
}
const CIMValue& CIMProperty::getValue() const {
  return RepAccess::checked(*this).value;
}
CIMType CIMProperty::getType() const {
  return getValue().getType();
}
Boolean CIMProperty::isArray() const {
  return getValue().isArray();
}

void CIMProperty::setValue(const CIMValue& value) {
  CIMPropertyRep& rep = RepAccess::checked(*this);
  if (!rep.value.typeCompatible(value)) throw TypeMismatchException();
  rep.value = value;
}

Uint32 CIMProperty::getArraySize() const {
  return RepAccess::checked(*this).arraySize;
}

const CIMName& CIMProperty::getReferenceClassName() const {
  return RepAccess::checked(*this).referenceClassName;
}

const CIMName& CIMProperty::getClassOrigin() const {
  return RepAccess::checked(*this).classOrigin;
}

void CIMProperty::setClassOrigin(const CIMName& classOrigin) {
  RepAccess::checked(*this).classOrigin = classOrigin;
}

Boolean CIMProperty::getPropagated() const {
  return RepAccess::checked(*this).propagated;
}

void CIMProperty::setPropagated(Boolean propagated) {
  RepAccess::checked(*this).propagated = propagated;
}

CIMProperty& CIMProperty::addQualifier(const CIMQualifier& x) {
  RepAccess::checked(*this).qualifiers.add(x, "qualifier");
  return *this;
}

Uint32 CIMProperty::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMProperty::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMProperty::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMProperty::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMProperty::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Boolean CIMProperty::identical(const CIMConstProperty& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMProperty CIMProperty::clone() const {
  return CIMProperty(RepAccess::checked(*this).clone(true, true));
}

Boolean CIMProperty::isUninitialized() const {
  return _rep == nullptr;
}

CIMConstProperty::CIMConstProperty() = default;
CIMConstProperty::CIMConstProperty(const CIMProperty& x) : RepHandle<CIMPropertyRep>(x) {}
CIMConstProperty::CIMConstProperty(const CIMName& name, const CIMValue& value, Uint32 arraySize,
                                   const CIMName& referenceClassName, const CIMName& classOrigin,
                                   Boolean propagated)
    : CIMConstProperty(
          CIMProperty(name, value, arraySize, referenceClassName, classOrigin, propagated)) {}

CIMConstProperty& CIMConstProperty::operator=(const CIMProperty& x) {
  return *this = CIMConstProperty(x);
}

const CIMName& CIMConstProperty::getName() const {
  return RepAccess::checked(*this).name;
}
const CIMValue& CIMConstProperty::getValue() const {
  return RepAccess::checked(*this).value;
}
CIMType CIMConstProperty::getType() const {
  return getValue().getType();
}
Boolean CIMConstProperty::isArray() const {
  return getValue().isArray();
}
Uint32 CIMConstProperty::getArraySize() const {
  return RepAccess::checked(*this).arraySize;
}

const CIMName& CIMConstProperty::getReferenceClassName() const {
  return RepAccess::checked(*this).referenceClassName;
}

const CIMName& CIMConstProperty::getClassOrigin() const {
  return RepAccess::checked(*this).classOrigin;
}

Boolean CIMConstProperty::getPropagated() const {
  return RepAccess::checked(*this).propagated;
}

Uint32 CIMConstProperty::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstProperty::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstProperty::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Boolean CIMConstProperty::identical(const CIMConstProperty& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMProperty CIMConstProperty::clone() const {
  return RepAccess::own<CIMProperty>(RepAccess::checked(*this).clone(true, true));
}

Boolean CIMConstProperty::isUninitialized() const {
  return _rep == nullptr;
}

}  // namespace vexor_compat
}  // namespace Pegasus
