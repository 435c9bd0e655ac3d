#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>

namespace Pegasus {
inline namespace vexor_compat {
namespace {

bool startsName(Uint16 c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || (c >= 0x80 && c < 0xFFF0);
}

bool continuesName(Uint16 c) {
  return startsName(c) || (c >= '0' && c <= '9');
}

bool legalName(const Char16* text, Uint32 n) {
  if (n == 0 || !startsName(text[0])) return false;
  for (Uint32 i = 1; i < n; ++i) {
    if (!continuesName(text[i])) return false;
  }
  return true;
}

const String& checkedName(const String& name) {
  if (!CIMName::legal(name)) throw InvalidNameException(name);
  return name;
}

// The name without its leading slash.
String checkedNamespace(const String& name) {
  if (!CIMNamespaceName::legal(name)) throw InvalidNamespaceNameException(name);
  return name[0] == '/' ? name.subString(1) : name;
}

}  // namespace

CIMName::CIMName() = default;
CIMName::CIMName(const String& name) : _name(checkedName(name)) {}
CIMName::CIMName(const char* name) : _name(name) {
  checkedName(_name);
}

CIMName& CIMName::operator=(const String& name) {
  _name = checkedName(name);
  return *this;
}

CIMName& CIMName::operator=(const char* name) {
  return *this = String(name);
}

const String& CIMName::getString() const {
  return _name;
}
Boolean CIMName::isNull() const {
  return _name.size() == 0;
}
void CIMName::clear() {
  _name.clear();
}
Boolean CIMName::equal(const CIMName& name) const {
  return String::equalNoCase(_name, name._name);
}
Boolean CIMName::equal(const char* name) const {
  return String::equalNoCase(_name, name);
}
Boolean CIMName::legal(const String& name) {
  return legalName(name.getChar16Data(), name.size());
}

CIMNamespaceName::CIMNamespaceName() = default;
CIMNamespaceName::CIMNamespaceName(const String& name) : _name(checkedNamespace(name)) {}
CIMNamespaceName::CIMNamespaceName(const char* name) : _name(checkedNamespace(String(name))) {}

CIMNamespaceName& CIMNamespaceName::operator=(const String& name) {
  _name = checkedNamespace(name);
  return *this;
}

CIMNamespaceName& CIMNamespaceName::operator=(const char* name) {
  return *this = String(name);
}

const String& CIMNamespaceName::getString() const {
  return _name;
}
Boolean CIMNamespaceName::isNull() const {
  return _name.size() == 0;
}
void CIMNamespaceName::clear() {
  _name.clear();
}

Boolean CIMNamespaceName::equal(const CIMNamespaceName& name) const {
  return String::equalNoCase(_name, name._name);
}

Boolean CIMNamespaceName::equal(const char* name) const {
  return String::equalNoCase(_name, name);
}

Boolean CIMNamespaceName::legal(const String& name) {
  const Char16* text = name.getChar16Data();
  Uint32 begin = text[0] == '/' ? 1 : 0;
  for (;;) {
    const Uint32 slash = name.find(begin, '/');
    const Uint32 end = slash == PEG_NOT_FOUND ? name.size() : slash;
    if (!legalName(text + begin, end - begin)) return false;
    if (slash == PEG_NOT_FOUND) return true;
    begin = slash + 1;
  }
}

Boolean operator==(const CIMName& name1, const CIMName& name2) {
  return name1.equal(name2);
}
Boolean operator!=(const CIMName& name1, const CIMName& name2) {
  return !name1.equal(name2);
}

Boolean operator==(const CIMNamespaceName& name1, const CIMNamespaceName& name2) {
  return name1.equal(name2);
}

Boolean operator!=(const CIMNamespaceName& name1, const CIMNamespaceName& name2) {
  return !name1.equal(name2);
}

}  // namespace vexor_compat
}  // namespace Pegasus
