#ifndef PEGASUS_COMMON_CIMPARAMVALUE_H
#define PEGASUS_COMMON_CIMPARAMVALUE_H

#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// An argument of a method call. Copies share; clone() makes an independent one.
class PEGASUS_COMMON_LINKAGE CIMParamValue : public RepHandle<CIMParamValueRep> {
 public:
  CIMParamValue();
  CIMParamValue(String parameterName, CIMValue value, Boolean isTyped = true);

  String getParameterName() const;
  void setParameterName(String& parameterName);
  CIMValue getValue() const;
  void setValue(CIMValue& value);
  Boolean isTyped() const;
  void setIsTyped(Boolean isTyped = true);
  CIMParamValue clone() const;
  Boolean isUninitialized() const;

 private:
  explicit CIMParamValue(CIMParamValueRep* owned) noexcept : RepHandle<CIMParamValueRep>(owned) {}
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
