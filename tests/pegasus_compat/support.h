#ifndef TESTS_PEGASUS_COMPAT_SUPPORT_H
#define TESTS_PEGASUS_COMPAT_SUPPORT_H

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>

#include <string>

namespace pegasus_test {

// The message of the Error that the action throws; "nothing thrown" if it returns. Any other
// exception passes on and fails the test.
template <class Error, class Action>
std::string messageOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return static_cast<const char*>(error.getMessage().getCString());
  }
  return "nothing thrown";
}

inline Pegasus::CIMProperty textProperty(const char* name, const char* value) {
  return Pegasus::CIMProperty(Pegasus::CIMName(name), Pegasus::CIMValue(Pegasus::String(value)));
}

inline Pegasus::CIMQualifier flag(const char* name, bool on = true) {
  return Pegasus::CIMQualifier(Pegasus::CIMName(name), Pegasus::CIMValue(on));
}

inline Pegasus::CIMProperty keyProperty(const char* name) {
  Pegasus::CIMProperty property(Pegasus::CIMName(name),
                                Pegasus::CIMValue(Pegasus::CIMTYPE_STRING, false), 0,
                                Pegasus::CIMName(), Pegasus::CIMName("CIM_Base"), true);
  property.addQualifier(flag("Key"));
  return property;
}

inline std::string textOf(const Pegasus::CIMValue& value) {
  return static_cast<const char*>(value.toString().getCString());
}

}  // namespace pegasus_test

#endif
