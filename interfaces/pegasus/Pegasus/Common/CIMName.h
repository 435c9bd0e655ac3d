#ifndef PEGASUS_COMMON_CIMNAME_H
#define PEGASUS_COMMON_CIMNAME_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// The name of a class, property, qualifier, method or parameter: a letter or underscore, then
// letters, digits and underscores; characters from U+0080 on count as letters. Another text throws
// InvalidNameException. A default-constructed name is null. Names compare without case.
class PEGASUS_COMMON_LINKAGE CIMName {
 public:
  CIMName();
  CIMName(const String& name);
  CIMName(const char* name);
  CIMName& operator=(const String& name);

  const String& getString() const;
  Boolean isNull() const;
  void clear();
  Boolean equal(const CIMName& name) const;
  static Boolean legal(const String& name);

#ifdef PEGASUS_USE_EXPERIMENTAL_INTERFACES
  Boolean equal(const char* name) const;
  CIMName& operator=(const char* name);
#endif

 private:
  String _name;
};

// A namespace: names separated by slashes. One leading slash is accepted and not kept. Another
// text throws InvalidNamespaceNameException. Compares without case.
class PEGASUS_COMMON_LINKAGE CIMNamespaceName {
 public:
  CIMNamespaceName();
  CIMNamespaceName(const String& name);
  CIMNamespaceName(const char* name);
  CIMNamespaceName& operator=(const String& name);

  const String& getString() const;
  Boolean isNull() const;
  void clear();
  Boolean equal(const CIMNamespaceName& name) const;
  static Boolean legal(const String& name);

#ifdef PEGASUS_USE_EXPERIMENTAL_INTERFACES
  Boolean equal(const char* name) const;
  CIMNamespaceName& operator=(const char* name);
#endif

 private:
  String _name;
};

PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMName& name1, const CIMName& name2);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMName& name1, const CIMName& name2);
PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMNamespaceName& name1,
                                          const CIMNamespaceName& name2);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMNamespaceName& name1,
                                          const CIMNamespaceName& name2);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
