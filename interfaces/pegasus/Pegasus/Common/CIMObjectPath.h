#ifndef PEGASUS_COMMON_CIMOBJECTPATH_H
#define PEGASUS_COMMON_CIMOBJECTPATH_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// One key of an object path: a name and the text of its value. Copies are values.
class PEGASUS_COMMON_LINKAGE CIMKeyBinding {
 public:
  enum Type { BOOLEAN = 0, STRING = 1, NUMERIC = 2, REFERENCE = 3 };

  CIMKeyBinding();  // null name, empty text, BOOLEAN
  CIMKeyBinding(const CIMName& name, const String& value, Type type);
  // The type follows from that of the value: numbers NUMERIC, Boolean BOOLEAN, a path REFERENCE,
  // texts, characters and datetimes STRING. Arrays and embedded objects throw
  // TypeMismatchException.
  CIMKeyBinding(const CIMName& name, const CIMValue& value);

  const CIMName& getName() const;
  void setName(const CIMName& name);
  const String& getValue() const;
  void setValue(const String& value);
  Type getType() const;
  void setType(Type type);
  // Whether the key has this value; numbers compare as numbers, references as paths.
  Boolean equal(CIMValue value);

 private:
  CIMName _name;
  String _value;
  Type _type;
};

// Names and types equal, and values as in equal() above.
PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMKeyBinding& x, const CIMKeyBinding& y);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMKeyBinding& x, const CIMKeyBinding& y);

// The path of a class or an instance: host, namespace, class name and key bindings, which are kept
// sorted by name. Copies are values.
//
// As text: //host/namespace:Class.A="q\"x",B=TRUE,Z=7
// Host and namespace may be missing. In a quoted value a quotation mark and a backslash are
// escaped with a backslash. When a text is read, a quoted value that is itself a path with keys is
// a REFERENCE. A text that is no path, and a host that is no host name or address (with or without
// a port), throw MalformedObjectNameException and leave the path as it was.
class PEGASUS_COMMON_LINKAGE CIMObjectPath : public RepHandle<CIMObjectPathRep> {
 public:
  CIMObjectPath();
  CIMObjectPath(const String& objectName);
  CIMObjectPath(const String& host, const CIMNamespaceName& nameSpace, const CIMName& className,
                const Array<CIMKeyBinding>& keyBindings = Array<CIMKeyBinding>());
  CIMObjectPath& operator=(const String& objectName);

  void clear();
  void set(const String& host, const CIMNamespaceName& nameSpace, const CIMName& className,
           const Array<CIMKeyBinding>& keyBindings = Array<CIMKeyBinding>());
  void set(const String& objectName);

  const String& getHost() const;
  void setHost(const String& host);
  const CIMNamespaceName& getNameSpace() const;
  void setNameSpace(const CIMNamespaceName& nameSpace);
  const CIMName& getClassName() const;
  void setClassName(const CIMName& className);
  const Array<CIMKeyBinding>& getKeyBindings() const;
  void setKeyBindings(const Array<CIMKeyBinding>& keyBindings);

  String toString() const;
  // Host, namespace, class and key names compare without case, key values by their type.
  Boolean identical(const CIMObjectPath& x) const;
  // The same for identical paths.
  Uint32 makeHashCode() const;

 private:
  explicit CIMObjectPath(CIMObjectPathRep* owned) noexcept : RepHandle<CIMObjectPathRep>(owned) {}
  CIMObjectPathRep& changeable();
};

PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMObjectPath& x, const CIMObjectPath& y);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMObjectPath& x, const CIMObjectPath& y);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
