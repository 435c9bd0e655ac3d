#include <Pegasus/Common/CIMPropertyList.h>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {
namespace {

Uint32 tagOf(const CIMName& name) {
  String folded(name.getString());
  folded.toLower();
  Uint32 tag = 2166136261U;
  for (Uint32 i = 0; i < folded.size(); ++i) {
    tag = (tag ^ folded.getChar16Data()[i]) * 16777619U;
  }
  return tag;
}

Array<Uint32> tagsOf(const Array<CIMName>& names) {
  Array<Uint32> tags;
  tags.reserveCapacity(names.size());
  for (Uint32 i = 0; i < names.size(); ++i)
    tags.append(tagOf(names[i]));
  return tags;
}

}  // namespace

CIMPropertyList::CIMPropertyList() = default;
CIMPropertyList::CIMPropertyList(const Array<CIMName>& propertyNames) {
  set(propertyNames);
}

void CIMPropertyList::set(const Array<CIMName>& propertyNames) {
  for (Uint32 i = 0; i < propertyNames.size(); ++i)
    required(propertyNames[i]);
  CIMPropertyList fresh(new CIMPropertyListRep);
  fresh._rep->names = propertyNames;
  fresh._rep->tags = tagsOf(propertyNames);
  *this = fresh;
}

void CIMPropertyList::clear() {
  *this = CIMPropertyList();
}
Boolean CIMPropertyList::isNull() const {
  return _rep == nullptr;
}
Uint32 CIMPropertyList::size() const {
  return _rep == nullptr ? 0 : _rep->names.size();
}

const CIMName& CIMPropertyList::operator[](Uint32 index) const {
  if (index >= size()) throw IndexOutOfBoundsException();
  return static_cast<const Array<CIMName>&>(_rep->names)[index];
}

Array<CIMName> CIMPropertyList::getPropertyNameArray() const {
  return _rep == nullptr ? Array<CIMName>() : _rep->names;
}

Uint32 CIMPropertyList::getCIMNameTag(Uint32 index) const {
  if (_rep == nullptr) throw IndexOutOfBoundsException();
  return static_cast<const Array<Uint32>&>(_rep->tags)[index];
}

void CIMPropertyList::append(Array<String>& propertyListArray) {
  Array<CIMName> names = getPropertyNameArray();
  for (Uint32 i = 0; i < propertyListArray.size(); ++i)
    names.append(propertyListArray[i]);
  set(names);
}

void CIMPropertyList::appendCIMNameTag(Uint32 nameTag) {
  CIMPropertyList copy(getPropertyNameArray());
  if (_rep != nullptr) copy._rep->tags = _rep->tags;
  copy._rep->tags.append(nameTag);
  *this = copy;
}

Boolean CIMPropertyList::contains(const CIMName& name) const {
  for (Uint32 i = 0; i < size(); ++i) {
    if ((*this)[i].equal(name)) return true;
  }
  return false;
}

Boolean CIMPropertyList::useThisProperty(const CIMName& name) const {
  return isNull() || contains(name);
}

String CIMPropertyList::toString() const {
  if (isNull()) return String("NULL");
  if (size() == 0) return String("EMPTY");
  String text;
  for (Uint32 i = 0; i < size(); ++i) {
    if (i != 0) text.append(String(","));
    text.append((*this)[i].getString());
  }
  return text;
}

}  // namespace vexor_compat
}  // namespace Pegasus
