#include "tests/model/pegasus_text.h"

#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMType.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/System.h>

namespace pegasus_text {

using namespace Pegasus;

namespace {

std::string text(const String& value) {
  return std::string(value.getCString());
}

std::string type_of(const CIMValue& value) {
  std::string type;
  switch (value.getType()) {
    case CIMTYPE_BOOLEAN:
      type = "boolean";
      break;
    case CIMTYPE_UINT8:
      type = "uint8";
      break;
    case CIMTYPE_UINT16:
      type = "uint16";
      break;
    case CIMTYPE_UINT32:
      type = "uint32";
      break;
    case CIMTYPE_UINT64:
      type = "uint64";
      break;
    case CIMTYPE_SINT32:
      type = "sint32";
      break;
    case CIMTYPE_STRING:
      type = "string";
      break;
    case CIMTYPE_REFERENCE:
      type = "reference";
      break;
    default:
      type = "another type";
  }
  return value.isArray() ? type + "[]" : type;
}

std::string value_text(const CIMValue& value) {
  std::string result = text(value.toString());
  const std::string host = "//" + text(System::getHostName()) + "/";
  for (size_t at; (at = result.find(host)) != std::string::npos;)
    result.replace(at, host.size(), "//HOST/");
  return result;
}

}  // namespace

std::string of(const CIMObjectPath& path) {
  const bool of_system = String::equal(path.getHost(), System::getHostName());
  std::string result = "path " + (of_system ? "HOST" : text(path.getHost())) + " " +
                       text(path.getNameSpace().getString()) + " " +
                       text(path.getClassName().getString()) + "\n";
  const Array<CIMKeyBinding>& keys = path.getKeyBindings();
  for (Uint32 i = 0; i < keys.size(); ++i) {
    CIMValue value(keys[i].getValue());
    result += "key " + text(keys[i].getName().getString()) + " = " + value_text(value) + "\n";
  }
  return result;
}

std::string of(const CIMInstance& instance) {
  CIMInstance i = instance;
  std::string result = "instance " + text(i.getClassName().getString()) + "\n";
  for (Uint32 q = 0; q < i.getQualifierCount(); ++q)
    result += "  [" + text(i.getQualifier(q).getName().getString()) + "]\n";
  for (Uint32 p = 0; p < i.getPropertyCount(); ++p) {
    CIMProperty property = i.getProperty(p);
    result += "property " + text(property.getName().getString()) + " " +
              type_of(property.getValue()) + " " + value_text(property.getValue()) + "\n";
    for (Uint32 q = 0; q < property.getQualifierCount(); ++q)
      result += "  [" + text(property.getQualifier(q).getName().getString()) + "]\n";
  }
  return result + of(i.getPath());
}

}  // namespace pegasus_text
