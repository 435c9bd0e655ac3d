#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObject.h>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {
namespace {

void appendMof(String& text, const QualifierList& qualifiers, const char* indent) {
  if (qualifiers.size() == 0) return;
  text.append(String(indent)).append(Char16('['));
  for (Uint32 i = 0; i < qualifiers.size(); ++i) {
    const CIMQualifier& qualifier = qualifiers.at(i);
    if (i != 0) text.append(String(", "));
    text.append(qualifier.getName().getString());
    const String value = toMof(qualifier.getValue());
    text.append(qualifier.isArray() ? String(" ") + value : String(" (") + value + String(")"));
  }
  text.append(String("]\n"));
}

// The declaration of an element: its type and name.
String declared(CIMType type, const CIMName& referenceClassName, const CIMName& name) {
  const String& reference = referenceClassName.getString();
  const String typeName = type == CIMTYPE_REFERENCE && reference.size() != 0
                              ? reference + String(" REF")
                              : String(cimTypeToString(type));
  return typeName + String(" ") + name.getString();
}

void appendMof(String& text, const CIMMethodRep& method) {
  appendMof(text, method.qualifiers, "  ");
  text.append(String("  ")).append(declared(method.type, CIMName(), method.name));
  text.append(Char16('('));
  for (Uint32 i = 0; i < method.parameters.size(); ++i) {
    const CIMParameter& parameter = method.parameters.at(i);
    if (i != 0) text.append(String(", "));
    text.append(
        declared(parameter.getType(), parameter.getReferenceClassName(), parameter.getName()));
    if (parameter.isArray()) text.append(String("[]"));
  }
  text.append(String(");\n"));
}

// An instance or class that the handle is on, which must be of this kind.
void requireKind(const RepHandle<CIMObjectRep>& handle, CIMObjectRep::Kind kind) {
  const CIMObjectRep* rep = RepAccess::get(handle);
  if (rep == nullptr || rep->kind != kind) throw DynamicCastFailedException();
}

}  // namespace

CIMObjectRep::CIMObjectRep(Kind kind_, const CIMName& className_, const CIMName& superClassName_)
    : kind(kind_),
      className(required(className_)),
      superClassName(superClassName_),
      path(String::EMPTY, CIMNamespaceName(), className_) {}

CIMObjectRep* CIMObjectRep::clone() const {
  CIMObject copy = RepAccess::own<CIMObject>(new CIMObjectRep(kind, className, superClassName));
  CIMObjectRep* rep = RepAccess::get(copy);
  rep->path = path;
  rep->qualifiers = qualifiers.clone();
  rep->properties = properties.clone();
  rep->methods = methods.clone();
  rep->retain();  // for the caller: the handle here is about to go
  return rep;
}

bool CIMObjectRep::identical(const CIMObjectRep& x) const {
  return this == &x || (kind == x.kind && className.equal(x.className) &&
                        superClassName.equal(x.superClassName) && path.identical(x.path) &&
                        qualifiers.identical(x.qualifiers) && properties.identical(x.properties) &&
                        methods.identical(x.methods));
}

void CIMObjectRep::filter(bool includeQualifiers, bool includeClassOrigin,
                          const CIMPropertyList& list) {
  properties.removeIf([&](const CIMProperty& p) { return !list.useThisProperty(p.getName()); });
  if (!includeQualifiers) qualifiers.clear();
  for (const CIMProperty& property : properties) {
    CIMPropertyRep& rep = RepAccess::checked(property);
    if (!includeQualifiers) rep.qualifiers.clear();
    if (!includeClassOrigin) rep.classOrigin.clear();
  }
}

void CIMObjectRep::appendKeyNames(Array<CIMName>& keyNames) const {
  static const CIMName kKey("Key");
  for (const CIMProperty& property : properties) {
    const CIMPropertyRep& rep = RepAccess::checked(property);
    if (isTrue(rep.qualifiers, kKey)) keyNames.append(rep.name);
  }
}

bool CIMObjectRep::hasKeys() const {
  Array<CIMName> names;
  appendKeyNames(names);
  return names.size() != 0;
}

CIMObjectPath CIMObjectRep::buildPath(const CIMObjectRep& cimClass) const {
  Array<CIMName> names;
  cimClass.appendKeyNames(names);
  Array<CIMKeyBinding> bindings;
  for (Uint32 i = 0; i < names.size(); ++i) {
    const Uint32 index = properties.find(names[i]);
    if (index == PEG_NOT_FOUND) {
      throw Exception(String("no such property: \"") + names[i].getString() + String("\""));
    }
    bindings.append(CIMKeyBinding(names[i], properties.at(index).getValue()));
  }
  return CIMObjectPath(String::EMPTY, CIMNamespaceName(), className, bindings);
}

String CIMObjectRep::toMof() const {
  String text;
  appendMof(text, qualifiers, "");
  text.append(String(isClass() ? "class " : "instance of ")).append(className.getString());
  if (!superClassName.isNull()) text.append(String(" : ")).append(superClassName.getString());
  text.append(String(" {\n"));
  for (const CIMProperty& property : properties) {
    const CIMPropertyRep& rep = RepAccess::checked(property);
    appendMof(text, rep.qualifiers, "  ");
    text.append(String("  "));
    if (isClass()) {
      text.append(declared(rep.value.getType(), rep.referenceClassName, rep.name));
      if (rep.value.isArray()) text.append(String("[]"));
    } else {
      text.append(rep.name.getString());
    }
    if (!isClass() || !rep.value.isNull()) {
      text.append(String(" = ")).append(vexor_compat::toMof(rep.value));
    }
    text.append(String(";\n"));
  }
  for (const CIMMethod& method : methods)
    appendMof(text, RepAccess::checked(method));
  return text.append(String("};\n"));
}

CIMInstance::CIMInstance() = default;
CIMInstance::CIMInstance(const CIMName& className)
    : CIMInstance(new CIMObjectRep(CIMObjectRep::Kind::instance, className)) {}

CIMInstance::CIMInstance(const CIMObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::instance);
}

const CIMName& CIMInstance::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMInstance::getPath() const {
  return RepAccess::checked(*this).path;
}
void CIMInstance::setPath(const CIMObjectPath& path) {
  RepAccess::checked(*this).path = path;
}

CIMInstance& CIMInstance::addQualifier(const CIMQualifier& qualifier) {
  RepAccess::checked(*this).qualifiers.add(qualifier, "qualifier");
  return *this;
}

Uint32 CIMInstance::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMInstance::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMInstance::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMInstance::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMInstance::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

CIMInstance& CIMInstance::addProperty(const CIMProperty& x) {
  RepAccess::checked(*this).properties.add(x, "property");
  return *this;
}

Uint32 CIMInstance::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMProperty CIMInstance::getProperty(Uint32 index) {
  return RepAccess::checked(*this).properties.at(index);
}

CIMConstProperty CIMInstance::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

void CIMInstance::removeProperty(Uint32 index) {
  RepAccess::checked(*this).properties.remove(index);
}

Uint32 CIMInstance::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMInstance CIMInstance::clone() const {
  return CIMInstance(RepAccess::checked(*this).clone());
}

Boolean CIMInstance::identical(const CIMConstInstance& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMInstance::isUninitialized() const {
  return _rep == nullptr;
}

CIMObjectPath CIMInstance::buildPath(const CIMConstClass& cimClass) const {
  return RepAccess::checked(*this).buildPath(RepAccess::checked(cimClass));
}

void CIMInstance::filter(Boolean includeQualifiers, Boolean includeClassOrigin,
                         const CIMPropertyList& propertyList) {
  instanceFilter(includeQualifiers, includeClassOrigin, propertyList);
}

void CIMInstance::instanceFilter(Boolean includeQualifiers, Boolean includeClassOrigin,
                                 const CIMPropertyList& propertyList) {
  RepAccess::checked(*this).filter(includeQualifiers, includeClassOrigin, propertyList);
}

CIMConstInstance::CIMConstInstance() = default;
CIMConstInstance::CIMConstInstance(const CIMInstance& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstInstance::CIMConstInstance(const CIMName& className)
    : CIMConstInstance(CIMInstance(className)) {}

CIMConstInstance& CIMConstInstance::operator=(const CIMInstance& x) {
  return *this = CIMConstInstance(x);
}

CIMConstInstance::CIMConstInstance(const CIMObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::instance);
}

CIMConstInstance::CIMConstInstance(const CIMConstObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::instance);
}

const CIMName& CIMConstInstance::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMConstInstance::getPath() const {
  return RepAccess::checked(*this).path;
}

Uint32 CIMConstInstance::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstInstance::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstInstance::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Uint32 CIMConstInstance::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMConstProperty CIMConstInstance::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

Uint32 CIMConstInstance::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMInstance CIMConstInstance::clone() const {
  return RepAccess::own<CIMInstance>(RepAccess::checked(*this).clone());
}

Boolean CIMConstInstance::identical(const CIMConstInstance& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMConstInstance::isUninitialized() const {
  return _rep == nullptr;
}

CIMObjectPath CIMConstInstance::buildPath(const CIMConstClass& cimClass) const {
  return RepAccess::checked(*this).buildPath(RepAccess::checked(cimClass));
}

CIMClass::CIMClass() = default;
CIMClass::CIMClass(const CIMName& className, const CIMName& superClassName)
    : CIMClass(new CIMObjectRep(CIMObjectRep::Kind::classDeclaration, className, superClassName)) {}

CIMClass::CIMClass(const CIMObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::classDeclaration);
}

const CIMName& CIMClass::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMClass::getPath() const {
  return RepAccess::checked(*this).path;
}
void CIMClass::setPath(const CIMObjectPath& path) {
  RepAccess::checked(*this).path = path;
}

CIMClass& CIMClass::addQualifier(const CIMQualifier& qualifier) {
  RepAccess::checked(*this).qualifiers.add(qualifier, "qualifier");
  return *this;
}

Uint32 CIMClass::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMClass::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMClass::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMClass::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMClass::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

CIMClass& CIMClass::addProperty(const CIMProperty& x) {
  RepAccess::checked(*this).properties.add(x, "property");
  return *this;
}

Uint32 CIMClass::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMProperty CIMClass::getProperty(Uint32 index) {
  return RepAccess::checked(*this).properties.at(index);
}

CIMConstProperty CIMClass::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

void CIMClass::removeProperty(Uint32 index) {
  RepAccess::checked(*this).properties.remove(index);
}

Uint32 CIMClass::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMClass CIMClass::clone() const {
  return CIMClass(RepAccess::checked(*this).clone());
}

Boolean CIMClass::identical(const CIMConstClass& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMClass::isUninitialized() const {
  return _rep == nullptr;
}

Boolean CIMClass::isAssociation() const {
  static const CIMName kAssociation("Association");
  return isTrue(RepAccess::checked(*this).qualifiers, kAssociation);
}

Boolean CIMClass::isAbstract() const {
  static const CIMName kAbstract("Abstract");
  return isTrue(RepAccess::checked(*this).qualifiers, kAbstract);
}

const CIMName& CIMClass::getSuperClassName() const {
  return RepAccess::checked(*this).superClassName;
}

void CIMClass::setSuperClassName(const CIMName& superClassName) {
  RepAccess::checked(*this).superClassName = superClassName;
}

CIMClass& CIMClass::addMethod(const CIMMethod& x) {
  RepAccess::checked(*this).methods.add(x, "method");
  return *this;
}

Uint32 CIMClass::findMethod(const CIMName& name) const {
  return RepAccess::checked(*this).methods.find(name);
}

CIMMethod CIMClass::getMethod(Uint32 index) {
  return RepAccess::checked(*this).methods.at(index);
}

CIMConstMethod CIMClass::getMethod(Uint32 index) const {
  return RepAccess::checked(*this).methods.at(index);
}

void CIMClass::removeMethod(Uint32 index) {
  RepAccess::checked(*this).methods.remove(index);
}

Uint32 CIMClass::getMethodCount() const {
  return RepAccess::checked(*this).methods.size();
}

void CIMClass::getKeyNames(Array<CIMName>& keyNames) const {
  RepAccess::checked(*this).appendKeyNames(keyNames);
}

Boolean CIMClass::hasKeys() const {
  return RepAccess::checked(*this).hasKeys();
}

CIMInstance CIMClass::buildInstance(Boolean includeQualifiers, Boolean includeClassOrigin,
                                    const CIMPropertyList& propertyList) const {
  const CIMObjectRep& rep = RepAccess::checked(*this);
  CIMInstance instance(rep.className);
  if (includeQualifiers) RepAccess::checked(instance).qualifiers = rep.qualifiers.clone();
  for (const CIMProperty& property : rep.properties) {
    if (!propertyList.useThisProperty(property.getName())) continue;
    instance.addProperty(RepAccess::own<CIMProperty>(
        RepAccess::checked(property).clone(includeQualifiers, includeClassOrigin)));
  }
  instance.setPath(CIMObjectPath(rep.path.getHost(), rep.path.getNameSpace(), rep.className));
  return instance;
}

CIMConstClass::CIMConstClass() = default;
CIMConstClass::CIMConstClass(const CIMClass& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstClass::CIMConstClass(const CIMName& className, const CIMName& superClassName)
    : CIMConstClass(CIMClass(className, superClassName)) {}

CIMConstClass& CIMConstClass::operator=(const CIMClass& x) {
  return *this = CIMConstClass(x);
}

CIMConstClass::CIMConstClass(const CIMObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::classDeclaration);
}

CIMConstClass::CIMConstClass(const CIMConstObject& x) : RepHandle<CIMObjectRep>(x) {
  requireKind(x, CIMObjectRep::Kind::classDeclaration);
}

const CIMName& CIMConstClass::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMConstClass::getPath() const {
  return RepAccess::checked(*this).path;
}

Uint32 CIMConstClass::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstClass::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstClass::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Uint32 CIMConstClass::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMConstProperty CIMConstClass::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

Uint32 CIMConstClass::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMClass CIMConstClass::clone() const {
  return RepAccess::own<CIMClass>(RepAccess::checked(*this).clone());
}

Boolean CIMConstClass::identical(const CIMConstClass& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMConstClass::isUninitialized() const {
  return _rep == nullptr;
}

Boolean CIMConstClass::isAssociation() const {
  static const CIMName kAssociation("Association");
  return isTrue(RepAccess::checked(*this).qualifiers, kAssociation);
}

Boolean CIMConstClass::isAbstract() const {
  static const CIMName kAbstract("Abstract");
  return isTrue(RepAccess::checked(*this).qualifiers, kAbstract);
}

const CIMName& CIMConstClass::getSuperClassName() const {
  return RepAccess::checked(*this).superClassName;
}

Uint32 CIMConstClass::findMethod(const CIMName& name) const {
  return RepAccess::checked(*this).methods.find(name);
}

CIMConstMethod CIMConstClass::getMethod(Uint32 index) const {
  return RepAccess::checked(*this).methods.at(index);
}

Uint32 CIMConstClass::getMethodCount() const {
  return RepAccess::checked(*this).methods.size();
}

void CIMConstClass::getKeyNames(Array<CIMName>& keyNames) const {
  RepAccess::checked(*this).appendKeyNames(keyNames);
}

Boolean CIMConstClass::hasKeys() const {
  return RepAccess::checked(*this).hasKeys();
}

CIMObject::CIMObject() = default;
CIMObject::CIMObject(const CIMClass& x) : RepHandle<CIMObjectRep>(x) {}
CIMObject::CIMObject(const CIMInstance& x) : RepHandle<CIMObjectRep>(x) {}

const CIMName& CIMObject::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMObject::getPath() const {
  return RepAccess::checked(*this).path;
}
void CIMObject::setPath(const CIMObjectPath& path) {
  RepAccess::checked(*this).path = path;
}

CIMObject& CIMObject::addQualifier(const CIMQualifier& qualifier) {
  RepAccess::checked(*this).qualifiers.add(qualifier, "qualifier");
  return *this;
}

Uint32 CIMObject::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMQualifier CIMObject::getQualifier(Uint32 index) {
  return RepAccess::checked(*this).qualifiers.at(index);
}

CIMConstQualifier CIMObject::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

void CIMObject::removeQualifier(Uint32 index) {
  RepAccess::checked(*this).qualifiers.remove(index);
}

Uint32 CIMObject::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

CIMObject& CIMObject::addProperty(const CIMProperty& x) {
  RepAccess::checked(*this).properties.add(x, "property");
  return *this;
}

Uint32 CIMObject::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMProperty CIMObject::getProperty(Uint32 index) {
  return RepAccess::checked(*this).properties.at(index);
}

CIMConstProperty CIMObject::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

void CIMObject::removeProperty(Uint32 index) {
  RepAccess::checked(*this).properties.remove(index);
}

Uint32 CIMObject::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMObject CIMObject::clone() const {
  return CIMObject(RepAccess::checked(*this).clone());
}

Boolean CIMObject::identical(const CIMConstObject& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMObject::isUninitialized() const {
  return _rep == nullptr;
}

String CIMObject::toString() const {
  return RepAccess::checked(*this).toMof();
}
Boolean CIMObject::isClass() const {
  return RepAccess::checked(*this).isClass();
}
Boolean CIMObject::isInstance() const {
  return !RepAccess::checked(*this).isClass();
}

void CIMObject::instanceFilter(Boolean includeQualifiers, Boolean includeClassOrigin,
                               const CIMPropertyList& propertyList) {
  CIMInstance(*this).instanceFilter(includeQualifiers, includeClassOrigin, propertyList);
}

CIMConstObject::CIMConstObject() = default;
CIMConstObject::CIMConstObject(const CIMObject& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstObject::CIMConstObject(const CIMClass& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstObject::CIMConstObject(const CIMInstance& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstObject::CIMConstObject(const CIMConstClass& x) : RepHandle<CIMObjectRep>(x) {}
CIMConstObject::CIMConstObject(const CIMConstInstance& x) : RepHandle<CIMObjectRep>(x) {}

CIMConstObject& CIMConstObject::operator=(const CIMObject& x) {
  return *this = CIMConstObject(x);
}

const CIMName& CIMConstObject::getClassName() const {
  return RepAccess::checked(*this).className;
}
const CIMObjectPath& CIMConstObject::getPath() const {
  return RepAccess::checked(*this).path;
}

Uint32 CIMConstObject::findQualifier(const CIMName& name) const {
  return RepAccess::checked(*this).qualifiers.find(name);
}

CIMConstQualifier CIMConstObject::getQualifier(Uint32 index) const {
  return RepAccess::checked(*this).qualifiers.at(index);
}

Uint32 CIMConstObject::getQualifierCount() const {
  return RepAccess::checked(*this).qualifiers.size();
}

Uint32 CIMConstObject::findProperty(const CIMName& name) const {
  return RepAccess::checked(*this).properties.find(name);
}

CIMConstProperty CIMConstObject::getProperty(Uint32 index) const {
  return RepAccess::checked(*this).properties.at(index);
}

Uint32 CIMConstObject::getPropertyCount() const {
  return RepAccess::checked(*this).properties.size();
}

CIMObject CIMConstObject::clone() const {
  return RepAccess::own<CIMObject>(RepAccess::checked(*this).clone());
}

Boolean CIMConstObject::identical(const CIMConstObject& x) const {
  return RepAccess::checked(*this).identical(RepAccess::checked(x));
}

Boolean CIMConstObject::isUninitialized() const {
  return _rep == nullptr;
}

String CIMConstObject::toString() const {
  return RepAccess::checked(*this).toMof();
}
Boolean CIMConstObject::isClass() const {
  return RepAccess::checked(*this).isClass();
}
Boolean CIMConstObject::isInstance() const {
  return !RepAccess::checked(*this).isClass();
}

}  // namespace vexor_compat
}  // namespace Pegasus
