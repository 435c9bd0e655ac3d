#include "tools/input.h"

#include <memory>
#include <utility>

#include "host/object_path.h"
#include "schema/names.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Element;
using cim::host::NamedData;
using cim::host::ObjectPath;
using cim::schema::Class;
using cim::schema::Method;
using cim::schema::Parameter;
using cim::schema::Property;
using cim::schema::Type;

/// What a value is declared as, and what error messages call it.
struct Declared {
  std::string name;
  Type type;
  bool is_array;
};

struct Assignment {
  std::string_view name;
  std::string_view value;
};

Assignment split(const std::string& word) {
  const std::size_t equals = word.find('=');
  if (equals == std::string::npos || equals == 0) throw BadInput(word + ": expected NAME=VALUE");
  const std::string_view text = word;
  return {text.substr(0, equals), text.substr(equals + 1)};
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The texts between the commas of `{a, "b,c"}`, quotes still around them.
std::vector<std::string_view> array_elements(std::string_view text) {
  if (!text.ends_with('}')) throw BadInput("the array has no closing }");
  const std::string_view inside = trimmed(text.substr(1, text.size() - 2));
  std::vector<std::string_view> elements;
  if (inside.empty()) return elements;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t at = 0; at < inside.size(); ++at) {
    if (quoted && inside[at] == '\\') {
      ++at;
    } else if (inside[at] == '"') {
      quoted = !quoted;
    } else if (inside[at] == ',' && !quoted) {
      elements.push_back(trimmed(inside.substr(start, at - start)));
      start = at + 1;
    }
  }
  elements.push_back(trimmed(inside.substr(start)));
  for (const std::string_view element : elements)
    if (element.empty()) throw BadInput("an element of the array is missing");
  return elements;
}

Element read_element(const ValueScope& scope, std::string_view text, Type type, bool in_array) {
  const bool literal = in_array && (text.starts_with('"') || text.starts_with('\''));
  const cim::schema::ValueResult result = literal ? cim::schema::value_from_mof(text, type, false)
                                                  : cim::schema::value_from_text(text, type, false);
  if (!result) throw BadInput(result.error);
  if (type == Type::reference && result.value->text() != nullptr) {
    return std::make_shared<const ObjectPath>(
        read_path(scope.repository, *result.value->text(), scope.name_space));
  }
  return cim::host::to_data(*result.value).element;
}

Data read_data(const ValueScope& scope, std::string_view text, const Declared& declared) {
  const CMPIType base = cim::host::cmpi_type(declared.type, false);
  if (!declared.is_array) return Data::of(base, read_element(scope, text, declared.type, false));
  std::vector<Element> elements;
  const std::string_view word = trimmed(text);
  if (word.starts_with('{')) {
    for (const std::string_view element : array_elements(word))
      elements.push_back(read_element(scope, element, declared.type, true));
  } else {
    elements.push_back(read_element(scope, text, declared.type, false));
  }
  return Data::array_of(base, std::move(elements));
}

void add_value(const ValueScope& scope, const std::string& owner, const Declared& declared,
               std::string_view text, std::vector<NamedData>& values) {
  const std::string name = owner + "." + declared.name;
  if (cim::host::find_named(values, declared.name) != nullptr)
    throw BadInput(name + " is given twice");
  try {
    values.push_back({declared.name, read_data(scope, text, declared)});
  } catch (const BadInput& error) {
    throw BadInput(name + ": " + error.what());
  }
}

const Parameter& find_input(const std::string& owner, const Method& method, std::string_view name) {
  const Parameter* const parameter = method.find_parameter(name);
  if (parameter != nullptr && parameter->is_in()) return *parameter;
  if (parameter != nullptr)
    throw BadInput(owner + " returns " + parameter->name + ": it cannot be given");
  std::vector<std::string_view> known;
  for (const Parameter& candidate : method.parameters)
    if (candidate.is_in()) known.push_back(candidate.name);
  throw BadInput(owner + ": no parameter " + std::string(name) + did_you_mean(name, known));
}

}  // namespace

std::string did_you_mean(std::string_view name, const std::vector<std::string_view>& candidates) {
  const std::string_view nearest = cim::schema::nearest_name(name, candidates);
  return nearest.empty() ? std::string() : " (did you mean " + std::string(nearest) + "?)";
}

ObjectPath read_path(const cim::schema::Repository& repository, const std::string& text,
                     const std::string& name_space) {
  cim::host::ParsedPath parsed = cim::host::parse_object_path(text);
  if (!parsed)
    throw BadInput(text + ": column " + std::to_string(parsed.column) + ": " + parsed.error);
  ObjectPath path = std::move(parsed.path);
  if (path.name_space.empty()) path.name_space = name_space;
  const Class* const cls = repository.find(path.class_name);
  if (cls == nullptr || path.keys.empty()) return path;
  for (const Property* key : repository.keys(*cls)) {
    if (cim::schema::equal_names(key->name, "CreationClassName") &&
        cim::host::find_named(path.keys, key->name) == nullptr) {
      path.keys.push_back({key->name, Data::string(cls->name)});
    }
  }
  return path;
}

std::vector<NamedData> read_properties(const ValueScope& scope, const Class& cls,
                                       const std::vector<std::string>& words) {
  std::vector<NamedData> values;
  for (const std::string& word : words) {
    const Assignment given = split(word);
    const Property* const property = scope.repository.property(cls, given.name);
    if (property == nullptr) {
      std::vector<std::string_view> known;
      for (const Property* candidate : scope.repository.properties(cls))
        known.push_back(candidate->name);
      throw BadInput(cls.name + ": no property " + std::string(given.name) +
                     did_you_mean(given.name, known));
    }
    add_value(scope, cls.name, {property->name, property->type, property->is_array}, given.value,
              values);
  }
  return values;
}

std::vector<NamedData> read_arguments(const ValueScope& scope, const Class& cls,
                                      const Method& method, const std::vector<std::string>& words) {
  const std::string owner = cls.name + "." + method.name;
  std::vector<NamedData> values;
  for (const std::string& word : words) {
    const Assignment given = split(word);
    const Parameter& parameter = find_input(owner, method, given.name);
    add_value(scope, owner, {parameter.name, parameter.type, parameter.is_array}, given.value,
              values);
  }
  for (const Parameter& parameter : method.parameters) {
    if (parameter.is_in() && cim::schema::has_true_qualifier(parameter.qualifiers, "Required") &&
        cim::host::find_named(values, parameter.name) == nullptr) {
      throw BadInput(owner + ": parameter " + parameter.name + " is missing");
    }
  }
  return values;
}

}  // namespace vexor::tools
