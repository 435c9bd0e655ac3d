#ifndef PEGASUS_COMMON_CIMPROPERTYLIST_H
#define PEGASUS_COMMON_CIMPROPERTYLIST_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// The properties that a request asks for. Null (the default) means all of them, which an empty
// list does not. A null name throws UninitializedObjectException. Copies are values.
class PEGASUS_COMMON_LINKAGE CIMPropertyList : public RepHandle<CIMPropertyListRep> {
 public:
  CIMPropertyList();
  CIMPropertyList(const Array<CIMName>& propertyNames);

  void set(const Array<CIMName>& propertyNames);
  void clear();  // null again
  Boolean isNull() const;
  Uint32 size() const;
  const CIMName& operator[](Uint32 index) const;
  Array<CIMName> getPropertyNameArray() const;
  // A number computed from the name at index without regard to case.
  Uint32 getCIMNameTag(Uint32 index) const;
  // Adds the names; the list is no longer null. A text that is no name throws
  // InvalidNameException and leaves the list as it was.
  void append(Array<String>& propertyListArray);
  // Adds a tag after those of the names.
  void appendCIMNameTag(Uint32 nameTag);
  Boolean contains(const CIMName& name) const;
  // True for every name if the list is null.
  Boolean useThisProperty(const CIMName& name) const;
  // "NULL", "EMPTY", or the names separated by commas.
  String toString() const;

 private:
  explicit CIMPropertyList(CIMPropertyListRep* owned) noexcept
      : RepHandle<CIMPropertyListRep>(owned) {}
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
