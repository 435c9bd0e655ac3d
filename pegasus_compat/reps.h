#ifndef PEGASUS_COMPAT_REPS_H
#define PEGASUS_COMPAT_REPS_H

// What the handles of the public headers point to.

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMMethod.h>
#include <Pegasus/Common/CIMObject.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMParamValue.h>
#include <Pegasus/Common/CIMParameter.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMQualifierDecl.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/Exception.h>

#include <atomic>
#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

namespace Pegasus {
inline namespace vexor_compat {

// Counts the handles on a representation; a new one belongs to its maker alone.
struct RefCounted {
  RefCounted() = default;
  RefCounted(const RefCounted&) noexcept {}
  RefCounted& operator=(const RefCounted&) = delete;

  void retain() noexcept { refs.fetch_add(1, std::memory_order_relaxed); }
  // True for the last handle, which then deletes the representation.
  bool release() noexcept { return refs.fetch_sub(1, std::memory_order_acq_rel) == 1; }
  bool shared() const noexcept { return refs.load(std::memory_order_acquire) != 1; }

  std::atomic<Uint32> refs{1};
};

// The library's way into the handles.
struct RepAccess {
  template <class Rep>
  static Rep* get(const RepHandle<Rep>& handle) {
    return handle._rep;
  }
  template <class Rep>
  static Rep& checked(const RepHandle<Rep>& handle) {
    if (handle._rep == nullptr) throw UninitializedObjectException();
    return *handle._rep;
  }
  // A handle on a new representation.
  template <class Handle, class Rep>
  static Handle own(Rep* owned) {
    return Handle(owned);
  }
};

// Throws UninitializedObjectException for a null name; returns the name.
const CIMName& required(const CIMName& name);

// The elements of one kind that a class, instance, property or method has, in order.
template <class T>
class NamedList {
 public:
  Uint32 size() const { return static_cast<Uint32>(_items.size()); }

  Uint32 find(const CIMName& name) const {
    for (Uint32 i = 0; i < size(); ++i) {
      if (RepAccess::get(_items[i])->name.equal(name)) return i;
    }
    return PEG_NOT_FOUND;
  }

  const T& at(Uint32 index) const {
    if (index >= size()) throw IndexOutOfBoundsException();
    return _items[index];
  }

  // kind: how messages call such an element.
  void add(const T& item, const char* kind) {
    const CIMName& name = RepAccess::checked(item).name;
    if (find(name) != PEG_NOT_FOUND) {
      throw AlreadyExistsException(String(kind) + " \"" + name.getString() + "\"");
    }
    _items.push_back(item);
  }

  // For an element of a name that the list does not have.
  void append(const T& item) { _items.push_back(item); }

  void remove(Uint32 index) {
    if (index >= size()) throw IndexOutOfBoundsException();
    _items.erase(_items.begin() + static_cast<std::ptrdiff_t>(index));
  }

  template <class Unwanted>
  void removeIf(Unwanted unwanted) {
    std::erase_if(_items, unwanted);
  }

  void clear() { _items.clear(); }

  NamedList clone() const {
    NamedList copy;
    copy._items.reserve(_items.size());
    for (const T& item : _items)
      copy._items.push_back(item.clone());
    return copy;
  }

  bool identical(const NamedList& other) const {
    if (size() != other.size()) return false;
    for (Uint32 i = 0; i < size(); ++i) {
      if (!_items[i].identical(other._items[i])) return false;
    }
    return true;
  }

  auto begin() const { return _items.begin(); }
  auto end() const { return _items.end(); }

 private:
  std::vector<T> _items;
};

using QualifierList = NamedList<CIMQualifier>;

// The value of a qualifier that is on or off; false where it is missing.
bool isTrue(const QualifierList& qualifiers, const CIMName& name);

class CIMQualifierRep : public RefCounted {
 public:
  CIMQualifierRep(const CIMName& name_, const CIMValue& value_, const CIMFlavor& flavor_,
                  Boolean propagated_)
      : name(required(name_)), value(value_), flavor(flavor_), propagated(propagated_) {}
  bool identical(const CIMQualifierRep& x) const;

  CIMName name;
  CIMValue value;
  CIMFlavor flavor;
  Boolean propagated;
};

class CIMQualifierDeclRep : public RefCounted {
 public:
  CIMName name;
  CIMValue value;
  CIMScope scope;
  CIMFlavor flavor;
  Uint32 arraySize = 0;
};

class CIMPropertyRep : public RefCounted {
 public:
  CIMPropertyRep(const CIMName& name_, const CIMValue& value_, Uint32 arraySize_,
                 const CIMName& referenceClassName_, const CIMName& classOrigin_,
                 Boolean propagated_);
  CIMPropertyRep(const CIMPropertyRep&) = delete;
  CIMPropertyRep* clone(bool withQualifiers, bool withClassOrigin) const;
  bool identical(const CIMPropertyRep& x) const;

  CIMName name;
  CIMValue value;
  Uint32 arraySize;
  CIMName referenceClassName;
  CIMName classOrigin;
  Boolean propagated;
  QualifierList qualifiers;
};

class CIMParameterRep : public RefCounted {
 public:
  CIMParameterRep* clone(bool withQualifiers) const;
  bool identical(const CIMParameterRep& x) const;

  CIMName name;
  CIMType type = CIMTYPE_BOOLEAN;
  Boolean isArray = false;
  Uint32 arraySize = 0;
  CIMName referenceClassName;
  QualifierList qualifiers;
};

class CIMParamValueRep : public RefCounted {
 public:
  String name;
  CIMValue value;
  Boolean isTyped = true;
};

class CIMMethodRep : public RefCounted {
 public:
  CIMMethodRep* clone(bool withQualifiers, bool withClassOrigin) const;
  bool identical(const CIMMethodRep& x) const;

  CIMName name;
  CIMType type = CIMTYPE_BOOLEAN;
  CIMName classOrigin;
  Boolean propagated = false;
  QualifierList qualifiers;
  NamedList<CIMParameter> parameters;
};

// An instance or a class; only classes have a superclass and methods.
class CIMObjectRep : public RefCounted {
 public:
  enum class Kind { instance, classDeclaration };

  CIMObjectRep(Kind kind_, const CIMName& className_, const CIMName& superClassName_ = CIMName());
  CIMObjectRep(const CIMObjectRep&) = delete;

  bool isClass() const { return kind == Kind::classDeclaration; }
  CIMObjectRep* clone() const;
  bool identical(const CIMObjectRep& x) const;
  void filter(bool includeQualifiers, bool includeClassOrigin, const CIMPropertyList& list);
  void appendKeyNames(Array<CIMName>& keyNames) const;
  bool hasKeys() const;
  CIMObjectPath buildPath(const CIMObjectRep& cimClass) const;
  String toMof() const;

  Kind kind;
  CIMName className;
  CIMName superClassName;
  CIMObjectPath path;
  QualifierList qualifiers;
  NamedList<CIMProperty> properties;
  NamedList<CIMMethod> methods;
};

class CIMObjectPathRep : public RefCounted {
 public:
  String host;
  CIMNamespaceName nameSpace;
  CIMName className;
  Array<CIMKeyBinding> keyBindings;
};

class CIMPropertyListRep : public RefCounted {
 public:
  Array<CIMName> names;
  Array<Uint32> tags;
};

class CIMValueRep : public RefCounted {
 public:
  // A value is kept in the alternative of its type; null in the first.
  using Storage =
      std::variant<std::monostate, Boolean, Uint8, Sint8, Uint16, Sint16, Uint32, Sint32, Uint64,
                   Sint64, Real32, Real64, Char16, String, CIMDateTime, CIMObjectPath, CIMObject,
                   CIMInstance, Array<Boolean>, Array<Uint8>, Array<Sint8>, Array<Uint16>,
                   Array<Sint16>, Array<Uint32>, Array<Sint32>, Array<Uint64>, Array<Sint64>,
                   Array<Real32>, Array<Real64>, Array<Char16>, Array<String>, Array<CIMDateTime>,
                   Array<CIMObjectPath>, Array<CIMObject>, Array<CIMInstance>>;

  bool isNull() const { return storage.index() == 0; }

  CIMType type = CIMTYPE_BOOLEAN;
  Boolean isArray = false;
  Uint32 nullArraySize = 0;
  Storage storage;
};

// A value as MOF writes it: texts quoted, arrays in braces, null as NULL.
String toMof(const CIMValue& value);

// The text between quotation marks, both escaped with a backslash where they occur in it.
String quoted(const String& text);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
