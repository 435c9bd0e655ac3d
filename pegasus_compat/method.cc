#include <Pegasus/Common/CIMMethod.h>

#include <memory>
#include <utility>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {

CIMParameterRep* CIMParameterRep::clone(bool withQualifiers) const {
  auto copy = std::make_unique<CIMParameterRep>();
  copy->name = name;
  copy->type = type;
  copy->isArray = isArray;
  copy->arraySize = arraySize;
  copy->referenceClassName = referenceClassName;
  if (withQualifiers) copy->qualifiers = qualifiers.clone();
  return copy.release();
}

bool CIMParameterRep::identical(const CIMParameterRep& x) const {
  return this == &x ||
         (name.equal(x.name) && type == x.type && isArray == x.isArray &&
          arraySize == x.arraySize && referenceClassName.equal(x.referenceClassName) &&
          qualifiers.identical(x.qualifiers));
}

CIMMethodRep* CIMMethodRep::clone(bool withQualifiers, bool withClassOrigin) const {
  auto copy = std::make_unique<CIMMethodRep>();
  copy->name = name;
  copy->type = type;
  if (withClassOrigin) copy->classOrigin = classOrigin;
  copy->propagated = propagated;
  if (withQualifiers) copy->qualifiers = qualifiers.clone();
  for (const CIMParameter& parameter : parameters) {
    copy->parameters.append(
        RepAccess::own<CIMParameter>(RepAccess::checked(parameter).clone(withQualifiers)));
  }
  return copy.release();
}

bool CIMMethodRep::identical(const CIMMethodRep& x) const {
  return this == &x || (name.equal(x.name) && type == x.type && classOrigin.equal(x.classOrigin) &&
                        propagated == x.propagated && qualifiers.identical(x.qualifiers) &&
                        parameters.identical(x.parameters));
}

CIMParameter::CIMParameter() = default;
CIMParameter::CIMParameter(const CIMName& name, CIMType type, Boolean isArray, Uint32 arraySize,
                           const CIMName& referenceClassName)
    : CIMParameter(new CIMParameterRep) {
  const bool sizeOfNoArray = arraySize != 0 && !isArray;
  const bool noReference = !referenceClassName.isNull() && type != CIMTYPE_REFERENCE;
  if (sizeOfNoArray || noReference) throw TypeMismatchException();
  _rep->name = required(name);
  _rep->type = type;
  _rep->isArray = isArray;
  _rep->arraySize = arraySize;
  _rep->referenceClassName = referenceClassName;
}

CIMMethod::CIMMethod() = default;
CIMMethod::CIMMethod(const CIMName& name, CIMType type, const CIMName& classOrigin,
                     Boolean propagated)
    : CIMMethod(new CIMMethodRep) {
  _rep->name = required(name);
  _rep->type = type;
  _rep->classOrigin = classOrigin;
  _rep->propagated = propagated;
}

const CIMName& CIMParameter::getName() const {
  return RepAccess::checked(*this).name;
}
void CIMParameter::setName(const CIMName& name) {
  RepAccess::checked(*this).name = required(name);
}
CIMType CIMParameter::getType() const {
  return RepAccess::checked(*this).type;
}
Boolean CIMParameter::isArray() const {
  return RepAccess::checked(*this).isArray;
}
Uint32 CIMParameter::getArraySize() const {
  return RepAccess::checked(*this).arraySize;
}

const CIMName& CIMParameter::getReferenceClassName() const {
  return RepAccess::checked(*this).referenceClassName;
}

CIMParameter& CIMParameter::addQualifier(const CIMQualifier& x) {
  RepAccess::checked(*this).qualifiers.add(x, "qualifier");
  return *this;
}

Uint32 CIMParameter::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMParameter::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMParameter::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMParameter::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMParameter::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Boolean CIMParameter::identical(const CIMConstParameter& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMParameter CIMParameter::clone() const {
  return CIMParameter(RepAccess::checked(*this).clone(true));
}
Boolean CIMParameter::isUninitialized() const {
  return _rep == nullptr;
}

CIMConstParameter::CIMConstParameter() = default;
CIMConstParameter::CIMConstParameter(const CIMParameter& x) : RepHandle<CIMParameterRep>(x) {}
CIMConstParameter& CIMConstParameter::operator=(const CIMParameter& x) {
  return *this = CIMConstParameter(x);
}

const CIMName& CIMConstParameter::getName() const {
  return RepAccess::checked(*this).name;
}
CIMType CIMConstParameter::getType() const {
  return RepAccess::checked(*this).type;
}
Boolean CIMConstParameter::isArray() const {
  return RepAccess::checked(*this).isArray;
}
Uint32 CIMConstParameter::getArraySize() const {
  return RepAccess::checked(*this).arraySize;
}

const CIMName& CIMConstParameter::getReferenceClassName() const {
  return RepAccess::checked(*this).referenceClassName;
}

Uint32 CIMConstParameter::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstParameter::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstParameter::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Boolean CIMConstParameter::identical(const CIMConstParameter& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMParameter CIMConstParameter::clone() const {
  return RepAccess::own<CIMParameter>(RepAccess::checked(*this).clone(true));
}
Boolean CIMConstParameter::isUninitialized() const {
  return _rep == nullptr;
}

const CIMName& CIMMethod::getName() const {
  return RepAccess::checked(*this).name;
}
void CIMMethod::setName(const CIMName& name) {
  RepAccess::checked(*this).name = required(name);
}
CIMType CIMMethod::getType() const {
  return RepAccess::checked(*this).type;
}
void CIMMethod::setType(CIMType type) {
  RepAccess::checked(*this).type = type;
}
const CIMName& CIMMethod::getClassOrigin() const {
  return RepAccess::checked(*this).classOrigin;
}

void CIMMethod::setClassOrigin(const CIMName& classOrigin) {
  RepAccess::checked(*this).classOrigin = classOrigin;
}

Boolean CIMMethod::getPropagated() const {
  return RepAccess::checked(*this).propagated;
}

void CIMMethod::setPropagated(Boolean propagated) {
  RepAccess::checked(*this).propagated = propagated;
}

CIMMethod& CIMMethod::addQualifier(const CIMQualifier& x) {
  RepAccess::checked(*this).qualifiers.add(x, "qualifier");
  return *this;
}

Uint32 CIMMethod::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMMethod::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMMethod::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMMethod::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMMethod::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

CIMMethod& CIMMethod::addParameter(const CIMParameter& x) {
  RepAccess::checked(*this).parameters.add(x, "parameter");
  return *this;
}

Uint32 CIMMethod::findParameter(const CIMName& name) const {
  return RepAccess::checked(*this).parameters.find(name);
}

CIMParameter CIMMethod::getParameter(Uint32 index) {
  return RepAccess::checked(*this).parameters.at(index);
}

CIMConstParameter CIMMethod::getParameter(Uint32 index) const {
  return RepAccess::checked(*this).parameters.at(index);
}

void CIMMethod::removeParameter(Uint32 index) {
  RepAccess::checked(*this).parameters.remove(index);
}

Uint32 CIMMethod::getParameterCount() const {
  return RepAccess::checked(*this).parameters.size();
}

Boolean CIMMethod::identical(const CIMConstMethod& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMMethod CIMMethod::clone() const {
  return CIMMethod(RepAccess::checked(*this).clone(true, true));
}
Boolean CIMMethod::isUninitialized() const {
  return _rep == nullptr;
}

CIMConstMethod::CIMConstMethod() = default;
CIMConstMethod::CIMConstMethod(const CIMMethod& x) : RepHandle<CIMMethodRep>(x) {}
CIMConstMethod& CIMConstMethod::operator=(const CIMMethod& x) {
  return *this = CIMConstMethod(x);
}

const CIMName& CIMConstMethod::getName() const {
  return RepAccess::checked(*this).name;
}
CIMType CIMConstMethod::getType() const {
  return RepAccess::checked(*this).type;
}
const CIMName& CIMConstMethod::getClassOrigin() const {
  return RepAccess::checked(*this).classOrigin;
}
Boolean CIMConstMethod::getPropagated() const {
  return RepAccess::checked(*this).propagated;
}
Uint32 CIMConstMethod::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstMethod::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstMethod::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Uint32 CIMConstMethod::findParameter(const CIMName& name) const {
  return RepAccess::checked(*this).parameters.find(name);
}

CIMConstParameter CIMConstMethod::getParameter(Uint32 index) const {
  return RepAccess::checked(*this).parameters.at(index);
}

Uint32 CIMConstMethod::getParameterCount() const {
  return RepAccess::checked(*this).parameters.size();
}

Boolean CIMConstMethod::identical(const CIMConstMethod& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

CIMMethod CIMConstMethod::clone() const {
  return RepAccess::own<CIMMethod>(RepAccess::checked(*this).clone(true, true));
}
Boolean CIMConstMethod::isUninitialized() const {
  return _rep == nullptr;
}

CIMParamValue::CIMParamValue() = default;
CIMParamValue::CIMParamValue(String parameterName, CIMValue value, Boolean isTyped)
    : CIMParamValue(new CIMParamValueRep) {
  _rep->name = std::move(parameterName);
  _rep->value = std::move(value);
  _rep->isTyped = isTyped;
}

String CIMParamValue::getParameterName() const {
  return RepAccess::checked(*this).name;
}

void CIMParamValue::setParameterName(String& parameterName) {
  RepAccess::checked(*this).name = parameterName;
}

CIMValue CIMParamValue::getValue() const {
  return RepAccess::checked(*this).value;
}
void CIMParamValue::setValue(CIMValue& value) {
  RepAccess::checked(*this).value = value;
}
Boolean CIMParamValue::isTyped() const {
  return RepAccess::checked(*this).isTyped;
}
void CIMParamValue::setIsTyped(Boolean isTyped) {
  RepAccess::checked(*this).isTyped = isTyped;
}

CIMParamValue CIMParamValue::clone() const {
  return CIMParamValue(new CIMParamValueRep(RepAccess::checked(*this)));
}

Boolean CIMParamValue::isUninitialized() const {
  return _rep == nullptr;
}

}  // namespace vexor_compat
}  // namespace Pegasus
