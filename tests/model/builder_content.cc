#include "tests/model/builder_content.h"

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/String.h>
#include <Pegasus/Common/System.h>

#include <algorithm>

namespace builders {
namespace {

using test_support::RecordingBroker;

void sort_keys(Path& path) {
  std::sort(path.keys.begin(), path.keys.end(),
            [](const Property& a, const Property& b) { return a.name < b.name; });
}

std::string one_line(const Path& path) {
  std::string text = "//" + path.host + "/" + path.name_space + ":" + path.cls;
  for (const Property& key : path.keys)
    text += "," + key.name + "=" + key.value;
  return text;
}

// ---- CMPI

std::string mof_type(const std::string& type) {
  if (type == "chars") return "string";
  if (type == "chars[]") return "string[]";
  if (type == "ref") return "reference";
  return type;
}

// From a slot's text, its text alone where it is one, and its reference where it is one.
Property property_of(const RecordingBroker& broker, const std::string& name,
                     const std::string& written, const std::string& text,
                     const CMPIObjectPath* reference) {
  const auto space = written.find(' ');
  Property property{name, mof_type(written.substr(0, space)), written.substr(space + 1)};
  if (property.type == "string") property.value = text;
  if (reference != nullptr) property.value = one_line(content_of(broker, reference));
  return property;
}

// ---- Pegasus

std::string text_of(const Pegasus::String& text) {
  return std::string(text.getCString());
}

std::string type_of(const Pegasus::CIMValue& value) {
  std::string type = "another type";
  switch (value.getType()) {
    case Pegasus::CIMTYPE_BOOLEAN:
      type = "boolean";
      break;
    case Pegasus::CIMTYPE_UINT8:
      type = "uint8";
      break;
    case Pegasus::CIMTYPE_UINT16:
      type = "uint16";
      break;
    case Pegasus::CIMTYPE_UINT32:
      type = "uint32";
      break;
    case Pegasus::CIMTYPE_UINT64:
      type = "uint64";
      break;
    case Pegasus::CIMTYPE_SINT32:
      type = "sint32";
      break;
    case Pegasus::CIMTYPE_STRING:
      type = "string";
      break;
    case Pegasus::CIMTYPE_REFERENCE:
      type = "reference";
      break;
    default:
      break;
  }
  return value.isArray() ? type + "[]" : type;
}

template <class Element, class Print>
std::string elements_of(const Pegasus::CIMValue& value, Print print) {
  Pegasus::Array<Element> elements;
  value.get(elements);
  std::string text = "{";
  for (Pegasus::Uint32 i = 0; i < elements.size(); ++i)
    text += (i == 0 ? "" : ", ") + print(elements[i]);
  return text + "}";
}

std::string array_of(const Pegasus::CIMValue& value) {
  if (value.getType() == Pegasus::CIMTYPE_STRING)
    return elements_of<Pegasus::String>(
        value, [](const Pegasus::String& text) { return "\"" + text_of(text) + "\""; });
  if (value.getType() == Pegasus::CIMTYPE_UINT16)
    return elements_of<Pegasus::Uint16>(
        value, [](Pegasus::Uint16 number) { return std::to_string(number); });
  return "an array of another type";
}

Property property_of(const std::string& name, const Pegasus::CIMValue& value) {
  Property property{name, type_of(value), ""};
  if (value.isArray()) {
    property.value = array_of(value);
  } else if (value.getType() == Pegasus::CIMTYPE_REFERENCE) {
    Pegasus::CIMObjectPath path;
    value.get(path);
    property.value = one_line(content_of(path));
  } else if (value.getType() == Pegasus::CIMTYPE_BOOLEAN) {
    Pegasus::Boolean truth = false;
    value.get(truth);
    property.value = truth ? "true" : "false";
  } else {
    property.value = text_of(value.toString());
  }
  return property;
}

Property key_of(const Pegasus::CIMKeyBinding& key) {
  const std::string name = text_of(key.getName().getString());
  switch (key.getType()) {
    case Pegasus::CIMKeyBinding::REFERENCE:
      return {name, "reference", one_line(content_of(Pegasus::CIMObjectPath(key.getValue())))};
    case Pegasus::CIMKeyBinding::STRING:
      return {name, "string", text_of(key.getValue())};
    default:
      return {name, "another type", text_of(key.getValue())};
  }
}

}  // namespace

Path content_of(const RecordingBroker& broker, const CMPIObjectPath* path) {
  const std::string host = broker.host(path);
  Path content{
      broker.class_name(path), broker.name_space(path), host == kCmpiHost ? kOwnHost : host, {}};
  for (const std::string& name : broker.key_names(path)) {
    const char* key = name.c_str();
    content.keys.push_back(property_of(broker, name, broker.key(path, key),
                                       broker.key_text(path, key),
                                       broker.key_reference(path, key)));
  }
  sort_keys(content);
  return content;
}

Instance content_of(const RecordingBroker& broker, const CMPIInstance* instance) {
  Instance content{broker.class_name(instance), {}};
  for (const std::string& name : broker.property_names(instance)) {
    const char* property = name.c_str();
    content.properties.push_back(property_of(broker, name, broker.property(instance, property),
                                             broker.property_text(instance, property),
                                             broker.property_reference(instance, property)));
  }
  return content;
}

Path content_of(const Pegasus::CIMObjectPath& path) {
  const bool own = Pegasus::String::equal(path.getHost(), Pegasus::System::getHostName());
  Path content{text_of(path.getClassName().getString()),
               text_of(path.getNameSpace().getString()),
               own ? kOwnHost : text_of(path.getHost()),
               {}};
  const Pegasus::Array<Pegasus::CIMKeyBinding>& keys = path.getKeyBindings();
  for (Pegasus::Uint32 i = 0; i < keys.size(); ++i)
    content.keys.push_back(key_of(keys[i]));
  sort_keys(content);
  return content;
}

Instance content_of(const Pegasus::CIMInstance& instance) {
  Pegasus::CIMInstance shared = instance;  // only such a one gives its properties
  Instance content{text_of(shared.getClassName().getString()), {}};
  for (Pegasus::Uint32 i = 0; i < shared.getPropertyCount(); ++i)
    content.properties.push_back(content_of(shared.getProperty(i)));
  return content;
}

Property content_of(const Pegasus::CIMProperty& property) {
  return property_of(text_of(property.getName().getString()), property.getValue());
}

std::string to_text(const Property& property) {
  return property.name + " " + property.type + " " + property.value + "\n";
}

std::string to_text(const Path& path) {
  std::string text = "path " + path.host + " " + path.name_space + " " + path.cls + "\n";
  for (const Property& key : path.keys)
    text += "key " + to_text(key);
  return text;
}

std::string to_text(const Instance& instance) {
  std::string text = "instance " + instance.cls + "\n";
  for (const Property& property : instance.properties)
    text += to_text(property);
  return text;
}

}  // namespace builders
