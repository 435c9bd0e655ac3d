#include <array>
#include <utility>

#include "schema/repository.h"

namespace cim::schema {
namespace {

constexpr std::size_t kLineWidth = 100;

/// The flavors that differ from the declared ones, as " : Restricted"; empty when none do.
std::string flavor_text(const Qualifier& qualifier, const Repository& repository) {
  const QualifierDeclaration* declaration = repository.find_qualifier_declaration(qualifier.name);
  const Flavors declared = declaration == nullptr ? Flavors{} : declaration->flavors;
  const Flavors& own = qualifier.flavors;
  std::string text;
  if (own.overridable != declared.overridable) {
    text += own.overridable ? " EnableOverride" : " DisableOverride";
  }
  if (own.to_subclass != declared.to_subclass) {
    text += own.to_subclass ? " ToSubclass" : " Restricted";
  }
  // A declared Translatable cannot be taken back: MOF has no word for it.
  if (own.translatable && !declared.translatable) text += " Translatable";
  return text.empty() ? text : " :" + text;
}

std::string qualifier_text(const Qualifier& qualifier, const Repository& repository) {
  const Value& value = qualifier.value;
  std::string text = qualifier.name;
  if (value.is_array() && !value.is_null()) {
    text += " " + to_mof(value);
  } else if (!value.is_true()) {
    text += "(" + to_mof(value) + ")";
  }
  return text + flavor_text(qualifier, repository);
}

/// `[A, B]` on one line, or one qualifier a line where that is too long; empty without qualifiers.
std::string qualifier_list(std::span<const Qualifier> qualifiers, const Repository& repository,
                           const std::string& indent) {
  if (qualifiers.empty()) return {};
  const std::string line_break = ",\n " + indent;
  std::string one_line;
  std::string many_lines;
  for (const Qualifier& qualifier : qualifiers) {
    if (!one_line.empty()) {
      one_line += ", ";
      many_lines += line_break;
    }
    const std::string text = qualifier_text(qualifier, repository);
    one_line += text;
    many_lines += text;
  }
  const bool fits = indent.size() + one_line.size() + 2 <= kLineWidth;
  return indent + "[" + (fits ? one_line : many_lines) + "]";
}

template <typename Item>
std::string typed_name(const Item& item) {
  std::string text = item.type == Type::reference ? item.reference_class + " REF "
                                                  : std::string(type_name(item.type)) + " ";
  text += item.name;
  if (item.is_array) {
    text += "[" + (item.array_size ? std::to_string(*item.array_size) : std::string()) + "]";
  }
  return text;
}

std::string with_line_end(std::string text) {
  return text.empty() ? text : std::move(text) + "\n";
}

std::string property_text(const Property& property, const Repository& repository) {
  std::string text = with_line_end(qualifier_list(property.qualifiers, repository, "  "));
  text += "  " + typed_name(property);
  if (!property.default_value.is_null()) text += " = " + to_mof(property.default_value);
  return text + ";\n";
}

std::string method_text(const Method& method, const Repository& repository) {
  std::string text = with_line_end(qualifier_list(method.qualifiers, repository, "  "));
  text += "  " + std::string(type_name(method.return_type)) + " " + method.name + "(";
  bool first = true;
  for (const Parameter& parameter : method.parameters) {
    text += first ? "\n" : ",\n";
    first = false;
    text += with_line_end(qualifier_list(parameter.qualifiers, repository, "    "));
    text += "    " + typed_name(parameter);
  }
  return text + ");\n";
}

/// Adds a member of a class, a blank line in front of it unless it is the first one.
void append_member(std::string& text, bool& first, const std::string& declaring_class,
                   const Class& cls, const std::string& member) {
  if (!first) text += "\n";
  first = false;
  if (!equal_names(declaring_class, cls.name)) text += "  // from " + declaring_class + "\n";
  text += member;
}

}  // namespace

std::string to_mof(const Class& cls, const Repository& repository, Form form) {
  const bool complete = form == Form::complete;
  std::string text = with_line_end(qualifier_list(
      complete ? repository.qualifiers(cls) : std::span<const Qualifier>(cls.qualifiers),
      repository, ""));
  text += "class " + cls.name;
  if (!cls.superclass.empty()) text += " : " + cls.superclass;
  text += " {\n";
  bool first = true;
  const auto add = [&](const auto& member, const std::string& member_text) {
    append_member(text, first, member.declaring_class, cls, member_text);
  };
  if (complete) {
    for (const Property* property : repository.properties(cls)) {
      add(*property, property_text(*property, repository));
    }
    for (const Method* method : repository.methods(cls)) {
      add(*method, method_text(*method, repository));
    }
  } else {
    for (const Property& property : cls.properties) {
      add(property, property_text(property, repository));
    }
    for (const Method& method : cls.methods)
      add(method, method_text(method, repository));
  }
  return text + "};\n";
}

std::string to_mof(const QualifierDeclaration& declaration) {
  constexpr std::array<std::pair<Scope, std::string_view>, 8> kScopes = {
      {{Scope::class_, "class"},
       {Scope::association, "association"},
       {Scope::indication, "indication"},
       {Scope::property, "property"},
       {Scope::reference, "reference"},
       {Scope::method, "method"},
       {Scope::parameter, "parameter"},
       {Scope::schema, "schema"}}};
  std::string text = "Qualifier " + declaration.name + " : ";
  text += type_name(declaration.type);
  if (declaration.is_array) {
    text += "[" + (declaration.array_size ? std::to_string(*declaration.array_size) : "") + "]";
  }
  if (!declaration.default_value.is_null()) text += " = " + to_mof(declaration.default_value);
  std::string scope;
  for (const auto& [element, name] : kScopes) {
    if (declaration.allows(element)) scope += (scope.empty() ? "" : ", ") + std::string(name);
  }
  const bool any = declaration.scope == static_cast<std::uint16_t>(Scope::any);
  text += ", Scope(" + (any ? "any" : scope) + ")";
  std::string flavors;
  const auto add_flavor = [&](const char* flavor) {
    flavors += (flavors.empty() ? "" : ", ") + std::string(flavor);
  };
  if (!declaration.flavors.overridable) add_flavor("DisableOverride");
  if (!declaration.flavors.to_subclass) add_flavor("Restricted");
  if (declaration.flavors.translatable) add_flavor("Translatable");
  if (!flavors.empty()) text += ", Flavor(" + flavors + ")";
  return text + ";\n";
}

}  // namespace cim::schema
