#ifndef PEGASUS_COMMON_ARRAY_H
#define PEGASUS_COMMON_ARRAY_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// A growing array. Copies share their elements until one of them changes.
//
// The members are defined inside the library, for these element types and no others: Boolean,
// char, the integers and reals of Config.h, Char16, String, CIMDateTime, CIMName,
// CIMNamespaceName, CIMObjectPath, CIMKeyBinding, CIMValue, CIMProperty, CIMQualifier,
// CIMQualifierDecl, CIMParameter, CIMParamValue, CIMMethod, CIMClass, CIMInstance, CIMObject.
// An Array of anything else does not link.
//
// An index (or a range) outside the array throws IndexOutOfBoundsException and changes nothing.
template <class T>
class PEGASUS_TEMPLATE_LINKAGE Array {
 public:
  Array();
  Array(const Array<T>& x) noexcept;
  Array(Array<T>&& x) noexcept;
  explicit Array(Uint32 size);  // default elements; numbers are 0
  Array(Uint32 size, const T& x);
  Array(const T* items, Uint32 size);
  ~Array();

  Array<T>& operator=(const Array<T>& x) noexcept;
  Array<T>& operator=(Array<T>&& x) noexcept;

  void clear();
  void reserveCapacity(Uint32 capacity);
  // Adds size copies of x at the end.
  void grow(Uint32 size, const T& x);
  void swap(Array<T>& x);

  Uint32 size() const;
  Uint32 getCapacity() const;
  // Valid until the array changes; may be null while it is empty.
  const T* getData() const;
  T& operator[](Uint32 index);
  const T& operator[](Uint32 index) const;

  void append(const T& x);
  void append(const T* x, Uint32 size);
  void appendArray(const Array<T>& x);
  void prepend(const T& x);
  void prepend(const T* x, Uint32 size);
  // In front of the element at index; index may be the size of the array.
  void insert(Uint32 index, const T& x);
  void insert(Uint32 index, const T* x, Uint32 size);
  void remove(Uint32 index);
  void remove(Uint32 index, Uint32 size);

 private:
  struct Rep;
  Rep* _rep;  // null while nothing was ever reserved
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
