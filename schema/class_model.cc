#include "schema/class_model.h"

#include <algorithm>

namespace cim::schema {
namespace {

template <typename Item>
const Item* find_named(std::span<const Item> items, std::string_view name) {
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const Item& item) { return equal_names(item.name, name); });
  return found == items.end() ? nullptr : &*found;
}

template <typename Item>
bool same_all(const std::vector<Item>& a, const std::vector<Item>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Item& x, const Item& y) { return same_declaration(x, y); });
}

/// What properties and parameters have in common.
template <typename Item>
bool same_typed(const Item& a, const Item& b) {
  return equal_names(a.name, b.name) && a.type == b.type && a.is_array == b.is_array &&
         a.array_size == b.array_size && equal_names(a.reference_class, b.reference_class) &&
         same_all(a.qualifiers, b.qualifiers);
}

}  // namespace

std::string Position::text() const {
  std::string out = file ? *file : "<text>";
  if (line > 0) out += ":" + std::to_string(line) + ":" + std::to_string(column);
  return out;
}

std::string Diagnostic::text() const {
  return position.text() + ": " + message;
}

const Qualifier* find_qualifier(std::span<const Qualifier> qualifiers, std::string_view name) {
  return find_named(qualifiers, name);
}

bool has_true_qualifier(std::span<const Qualifier> qualifiers, std::string_view name) {
  const Qualifier* const found = find_qualifier(qualifiers, name);
  return found != nullptr &&
         (found->value.is_true() || (found->value.is_null() && !found->value_given));
}

bool Parameter::is_in() const {
  const Qualifier* const in = find_qualifier(qualifiers, "In");
  return in == nullptr || has_true_qualifier(qualifiers, "In");
}

const Parameter* Method::find_parameter(std::string_view parameter) const {
  return find_named(std::span<const Parameter>(parameters), parameter);
}

const Property* Class::find_property(std::string_view property) const {
  return find_named(std::span<const Property>(properties), property);
}

const Method* Class::find_method(std::string_view method) const {
  return find_named(std::span<const Method>(methods), method);
}

bool same_declaration(const Qualifier& a, const Qualifier& b) {
  return equal_names(a.name, b.name) && a.value == b.value && a.flavors == b.flavors;
}

bool same_declaration(const QualifierDeclaration& a, const QualifierDeclaration& b) {
  return equal_names(a.name, b.name) && a.type == b.type && a.is_array == b.is_array &&
         a.array_size == b.array_size && a.default_value == b.default_value && a.scope == b.scope &&
         a.flavors == b.flavors;
}

bool same_declaration(const Property& a, const Property& b) {
  return same_typed(a, b) && a.default_value == b.default_value;
}

bool same_declaration(const Parameter& a, const Parameter& b) {
  return same_typed(a, b);
}

bool same_declaration(const Method& a, const Method& b) {
  return equal_names(a.name, b.name) && a.return_type == b.return_type &&
         same_all(a.parameters, b.parameters) && same_all(a.qualifiers, b.qualifiers);
}

bool same_declaration(const Class& a, const Class& b) {
  return equal_names(a.name, b.name) && equal_names(a.superclass, b.superclass) &&
         same_all(a.qualifiers, b.qualifiers) && same_all(a.properties, b.properties) &&
         same_all(a.methods, b.methods);
}

}  // namespace cim::schema
