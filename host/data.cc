#include "host/data.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "host/cim_error.h"
#include "host/object_path.h"
#include "schema/names.h"

namespace cim::host {
namespace {

using schema::equal_names;

template <class... Visitors>
struct Overloaded : Visitors... {
  using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

bool equal_paths(const ObjectPath& a, const ObjectPath& b) {
  return a.host == b.host && same_instance(a, b);
}

bool equal_instances(const Instance& a, const Instance& b) {
  return equal_paths(a.path, b.path) &&
         std::equal(a.properties.begin(), a.properties.end(), b.properties.begin(),
                    b.properties.end(), [](const NamedData& x, const NamedData& y) {
                      return equal_names(x.name, y.name) && x.data == y.data;
                    });
}

bool equal_elements(const Element& a, const Element& b) {
  if (const auto* path = std::get_if<PathPtr>(&a)) {
    const auto* other = std::get_if<PathPtr>(&b);
    return other != nullptr && equal_paths(**path, **other);
  }
  if (const auto* instance = std::get_if<InstancePtr>(&a)) {
    const auto* other = std::get_if<InstancePtr>(&b);
    return other != nullptr && equal_instances(**instance, **other);
  }
  return a == b;
}

/// The declared type of a CMPI type; nothing for those that no declaration has.
std::optional<schema::Type> schema_type(CMPIType base) {
  switch (base) {
    case CMPI_boolean:
      return schema::Type::boolean;
    case CMPI_char16:
      return schema::Type::char16;
    case CMPI_uint8:
      return schema::Type::uint8;
    case CMPI_uint16:
      return schema::Type::uint16;
    case CMPI_uint32:
      return schema::Type::uint32;
    case CMPI_uint64:
      return schema::Type::uint64;
    case CMPI_sint8:
      return schema::Type::sint8;
    case CMPI_sint16:
      return schema::Type::sint16;
    case CMPI_sint32:
      return schema::Type::sint32;
    case CMPI_sint64:
      return schema::Type::sint64;
    case CMPI_real32:
      return schema::Type::real32;
    case CMPI_real64:
      return schema::Type::real64;
    case CMPI_string:
    case CMPI_chars:
      return schema::Type::string;
    case CMPI_dateTime:
      return schema::Type::datetime;
    case CMPI_ref:
      return schema::Type::reference;
    default:
      return std::nullopt;
  }
}

schema::Scalar to_scalar(const Element& element) {
  return std::visit(
      Overloaded{[](const PathPtr& path) { return schema::Scalar(to_text(*path)); },
                 [](const InstancePtr& instance) { return schema::Scalar(to_mof(*instance)); },
                 [](const auto& plain) { return schema::Scalar(plain); }},
      element);
}

Element to_element(schema::Type type, const schema::Scalar& scalar) {
  if (type == schema::Type::reference) {
    if (const auto* text = std::get_if<std::string>(&scalar)) {
      if (ParsedPath parsed = parse_object_path(*text))
        return std::make_shared<const ObjectPath>(std::move(parsed.path));
    }
  }
  return std::visit([](const auto& plain) { return Element(plain); }, scalar);
}

Element reference_from_text(const Element& element) {
  const auto* text = std::get_if<std::string>(&element);
  if (text == nullptr) return element;
  ParsedPath parsed = parse_object_path(*text);
  if (!parsed) {
    throw CimError(
        CMPI_RC_ERR_TYPE_MISMATCH,
        "not an object path: column " + std::to_string(parsed.column) + ": " + parsed.error);
  }
  return std::make_shared<const ObjectPath>(std::move(parsed.path));
}

Data convert_to_reference(const Data& data, CMPIType type) {
  if (data.base_type() != CMPI_ref && data.base_type() != CMPI_string) {
    throw CimError(CMPI_RC_ERR_TYPE_MISMATCH,
                   "a reference is needed, not a value of type " + type_text(data.type));
  }
  Data result = Data::of(type, reference_from_text(data.element));
  for (const Element& element : data.elements)
    result.elements.push_back(reference_from_text(element));
  result.null = false;
  return result;
}

}  // namespace

Data Data::null_of(CMPIType type) {
  Data data;
  data.type = type;
  return data;
}

Data Data::of(CMPIType type, Element element) {
  Data data;
  data.type = type;
  data.null = std::holds_alternative<std::monostate>(element);
  data.element = std::move(element);
  return data;
}

Data Data::array_of(CMPIType base, std::vector<Element> elements) {
  Data data;
  data.type = static_cast<CMPIType>(base | CMPI_ARRAY);
  data.null = false;
  data.elements = std::move(elements);
  return data;
}

Data Data::reference(ObjectPath path) {
  return of(CMPI_ref, std::make_shared<const ObjectPath>(std::move(path)));
}

bool operator==(const Data& a, const Data& b) {
  return a.type == b.type && a.null == b.null && equal_elements(a.element, b.element) &&
         std::equal(a.elements.begin(), a.elements.end(), b.elements.begin(), b.elements.end(),
                    equal_elements);
}

NamedData* find_named(std::vector<NamedData>& items, std::string_view name) {
  const auto found = std::find_if(items.begin(), items.end(), [&](const NamedData& item) {
    return equal_names(item.name, name);
  });
  return found == items.end() ? nullptr : &*found;
}

const NamedData* find_named(const std::vector<NamedData>& items, std::string_view name) {
  const auto found = std::find_if(items.begin(), items.end(), [&](const NamedData& item) {
    return equal_names(item.name, name);
  });
  return found == items.end() ? nullptr : &*found;
}

namespace {

bool same_key(const Data& a, const Data& b) {
  if (a == b) return true;
  if (a.null || b.null) return false;
  const auto number = [](const Data& data) -> std::optional<std::pair<bool, std::uint64_t>> {
    if (const auto* plain = std::get_if<std::uint64_t>(&data.element))
      return std::pair(false, *plain);
    if (const auto* plain = std::get_if<std::int64_t>(&data.element))
      return std::pair(*plain < 0, static_cast<std::uint64_t>(*plain));
    return std::nullopt;
  };
  if (number(a) && number(b)) return number(a) == number(b);
  const auto* path = std::get_if<PathPtr>(&a.element);
  const auto* other = std::get_if<PathPtr>(&b.element);
  return path != nullptr && other != nullptr && same_instance(**path, **other);
}

}  // namespace

bool same_instance(const ObjectPath& a, const ObjectPath& b) {
  if (!equal_names(a.class_name, b.class_name) || !equal_names(a.name_space, b.name_space) ||
      a.keys.size() != b.keys.size()) {
    return false;
  }
  return std::all_of(a.keys.begin(), a.keys.end(), [&](const NamedData& key) {
    const NamedData* other = find_named(b.keys, key.name);
    return other != nullptr && same_key(key.data, other->data);
  });
}

const Data* Instance::find(std::string_view name) const {
  const NamedData* property = find_named(properties, name);
  return property == nullptr ? nullptr : &property->data;
}

std::string type_text(CMPIType type) {
  const auto base = static_cast<CMPIType>(type & ~CMPI_ARRAY);
  std::string text;
  if (base == CMPI_chars) {
    text = "chars";
  } else if (const auto declared = schema_type(base)) {
    text = schema::type_name(*declared);
  } else if (base == CMPI_null) {
    text = "null";
  } else if (base == CMPI_instance) {
    text = "instance";
  } else {
    text = "CMPI type " + std::to_string(base);
  }
  return (type & CMPI_ARRAY) != 0 ? text + "[]" : text;
}

bool is_data_type(CMPIType type) {
  const auto base = static_cast<CMPIType>(type & ~CMPI_ARRAY);
  return base == CMPI_instance || schema_type(base).has_value();
}

CMPIType cmpi_type(schema::Type type, bool is_array) {
  static constexpr CMPIType kTypes[] = {CMPI_boolean, CMPI_char16,   CMPI_uint8,  CMPI_sint8,
                                        CMPI_uint16,  CMPI_sint16,   CMPI_uint32, CMPI_sint32,
                                        CMPI_uint64,  CMPI_sint64,   CMPI_real32, CMPI_real64,
                                        CMPI_string,  CMPI_dateTime, CMPI_ref};
  const CMPIType base = kTypes[static_cast<std::size_t>(type)];
  return is_array ? static_cast<CMPIType>(base | CMPI_ARRAY) : base;
}

CMPIType cmpi_type(const schema::Property& property) {
  return cmpi_type(property.type, property.is_array);
}

Data to_data(const schema::Value& value) {
  const CMPIType type = cmpi_type(value.type(), value.is_array());
  if (value.is_null()) return Data::null_of(type);
  if (!value.is_array()) {
    Element element = to_element(value.type(), value.scalar());
    const bool text_left =
        value.type() == schema::Type::reference && std::holds_alternative<std::string>(element);
    return Data::of(text_left ? CMPIType{CMPI_string} : type, std::move(element));
  }
  std::vector<Element> elements;
  for (const schema::Scalar& scalar : value.elements())
    elements.push_back(to_element(value.type(), scalar));
  return Data::array_of(cmpi_type(value.type(), false), std::move(elements));
}

schema::Value to_value(const Data& data) {
  // An embedded instance is a string in every declaration.
  const schema::Type type = schema_type(data.base_type()).value_or(schema::Type::string);
  if (data.null) return schema::Value::null(type, data.is_array());
  if (!data.is_array()) return schema::Value::of(type, to_scalar(data.element));
  std::vector<schema::Scalar> elements;
  elements.reserve(data.elements.size());
  for (const Element& element : data.elements)
    elements.push_back(to_scalar(element));
  return schema::Value::array_of(type, std::move(elements));
}

Data convert(const Data& data, CMPIType type) {
  if (data.null) return Data::null_of(type);
  if (data.type == type) return data;
  const bool to_array = (type & CMPI_ARRAY) != 0;
  const auto base = static_cast<CMPIType>(type & ~CMPI_ARRAY);
  const auto declared = schema_type(base);
  if (!declared || data.base_type() == CMPI_instance || data.is_array() != to_array) {
    throw CimError(CMPI_RC_ERR_TYPE_MISMATCH,
                   "a value of type " + type_text(data.type) + " is no " + type_text(type));
  }
  if (base == CMPI_ref) return convert_to_reference(data, type);
  const schema::ValueResult result = schema::convert(to_value(data), *declared, to_array);
  if (!result) throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, result.error);
  return to_data(*result.value);
}

std::string to_mof(const Instance& instance) {
  std::string text = "instance of " + instance.path.class_name + " {\n";
  for (const NamedData& property : instance.properties) {
    if (property.data.null) continue;
    text += "  " + property.name + " = " + schema::to_mof(to_value(property.data)) + ";\n";
  }
  return text + "};\n";
}

}  // namespace cim::host
