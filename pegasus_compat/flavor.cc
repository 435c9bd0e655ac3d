#include <Pegasus/Common/CIMFlavor.h>
#include <Pegasus/Common/CIMScope.h>

namespace Pegasus {
inline namespace vexor_compat {
namespace {

struct BitName {
  Uint32 bit;
  const char* name;
};

constexpr BitName flavorNames[] = {
    {1, "OVERRIDABLE"},  {2, "TOSUBCLASS"},       {4, "TOINSTANCE"},
    {8, "TRANSLATABLE"}, {16, "DISABLEOVERRIDE"}, {32, "RESTRICTED"},
};

constexpr BitName scopeNames[] = {
    {1, "CLASS"},      {2, "ASSOCIATION"}, {4, "INDICATION"}, {8, "PROPERTY"},
    {16, "REFERENCE"}, {32, "METHOD"},     {64, "PARAMETER"},
};

template <size_t n>
String namesOf(Uint32 bits, const BitName (&names)[n]) {
  String text;
  for (const BitName& entry : names) {
    if ((bits & entry.bit) == 0) continue;
    if (text.size() != 0) text.append(String(" "));
    text.append(String(entry.name));
  }
  return text;
}

}  // namespace

const CIMFlavor CIMFlavor::NONE(0);
const CIMFlavor CIMFlavor::OVERRIDABLE(1);
const CIMFlavor CIMFlavor::ENABLEOVERRIDE(1);
const CIMFlavor CIMFlavor::TOSUBCLASS(2);
const CIMFlavor CIMFlavor::TOSUBELEMENTS(2);
const CIMFlavor CIMFlavor::TOINSTANCE(4);
const CIMFlavor CIMFlavor::TRANSLATABLE(8);
const CIMFlavor CIMFlavor::DISABLEOVERRIDE(16);
const CIMFlavor CIMFlavor::RESTRICTED(32);
const CIMFlavor CIMFlavor::DEFAULTS(1 | 2);

void CIMFlavor::addFlavor(const CIMFlavor& flavor) {
  _bits |= flavor._bits;
}
void CIMFlavor::removeFlavor(const CIMFlavor& flavor) {
  _bits &= ~flavor._bits;
}

Boolean CIMFlavor::hasFlavor(const CIMFlavor& flavor) const {
  return (_bits & flavor._bits) == flavor._bits;
}

Boolean CIMFlavor::equal(const CIMFlavor& flavor) const {
  return _bits == flavor._bits;
}

CIMFlavor CIMFlavor::operator+(const CIMFlavor& flavor) const {
  return CIMFlavor(_bits | flavor._bits);
}

String CIMFlavor::toString() const {
  return namesOf(_bits, flavorNames);
}

Boolean operator==(const CIMFlavor& x, const CIMFlavor& y) {
  return x.equal(y);
}
Boolean operator!=(const CIMFlavor& x, const CIMFlavor& y) {
  return !x.equal(y);
}

const CIMScope CIMScope::NONE(0);
const CIMScope CIMScope::CLASS(1);
const CIMScope CIMScope::ASSOCIATION(2);
const CIMScope CIMScope::INDICATION(4);
const CIMScope CIMScope::PROPERTY(8);
const CIMScope CIMScope::REFERENCE(16);
const CIMScope CIMScope::METHOD(32);
const CIMScope CIMScope::PARAMETER(64);
const CIMScope CIMScope::ANY(127);

void CIMScope::addScope(const CIMScope& scope) {
  _bits |= scope._bits;
}
Boolean CIMScope::hasScope(const CIMScope& scope) const {
  return (_bits & scope._bits) == scope._bits;
}
Boolean CIMScope::equal(const CIMScope& scope) const {
  return _bits == scope._bits;
}
CIMScope CIMScope::operator+(const CIMScope& scope) const {
  return CIMScope(_bits | scope._bits);
}
String CIMScope::toString() const {
  return namesOf(_bits, scopeNames);
}

}  // namespace vexor_compat
}  // namespace Pegasus
