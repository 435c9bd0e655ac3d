// Classes as MOF declares them. A Class holds what its own declaration says; what it inherits is
// asked of the Repository.
#ifndef SCHEMA_CLASS_MODEL_H_
#define SCHEMA_CLASS_MODEL_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "schema/names.h"
#include "schema/value.h"

namespace cim::schema {

/// A place in a MOF text. Lines and columns count from 1; a column is one character (not one byte),
/// a tab is one column. Line 0: no place is known.
struct Position {
  std::shared_ptr<const std::string> file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;

  std::string text() const;  ///< "mof/x.mof:12:7"
};

/// An error, with its place.
struct Diagnostic {
  Position position;
  std::string message;

  std::string text() const;  ///< "mof/x.mof:12:7: expected ';' after property VsanId, found '}'"
};

struct Flavors {
  bool overridable = true;  ///< EnableOverride; false: DisableOverride
  bool to_subclass = true;  ///< ToSubclass; false: Restricted
  bool translatable = false;

  friend bool operator==(const Flavors&, const Flavors&) = default;
};

/// The flavors that a text writes out; what is not written follows the qualifier's declaration.
struct WrittenFlavors {
  std::optional<bool> overridable;
  std::optional<bool> to_subclass;
  std::optional<bool> translatable;
};

/// A qualifier on a class, property, method or parameter. As the reader leaves it, the value has
/// the type of its literal and `flavors` are the defaults; in a Repository the value has the
/// declared type and the flavors are those in force.
struct Qualifier {
  std::string name;
  Value value;
  bool value_given = false;  ///< `[Key]` gives none: true for a boolean, else the declared default
  Flavors flavors;
  WrittenFlavors written;
  Position position;
};

/// The elements that a qualifier may stand on, as bits of QualifierDeclaration::scope.
enum class Scope : std::uint16_t {
  class_ = 1,
  association = 2,
  indication = 4,
  property = 8,
  reference = 16,
  method = 32,
  parameter = 64,
  schema = 128,
  any = 255,
};

struct QualifierDeclaration {
  std::string name;
  Type type = Type::boolean;
  bool is_array = false;
  std::optional<std::uint32_t> array_size;
  Value default_value;
  std::uint16_t scope = 0;
  Flavors flavors;
  Position position;

  bool allows(Scope element) const { return (scope & static_cast<std::uint16_t>(element)) != 0; }
};

/// The qualifier of that name, or null.
const Qualifier* find_qualifier(std::span<const Qualifier> qualifiers, std::string_view name);
/// True when the list has the boolean qualifier `name` with the value true.
bool has_true_qualifier(std::span<const Qualifier> qualifiers, std::string_view name);

struct Property {
  std::string name;
  Type type = Type::string;
  bool is_array = false;
  std::optional<std::uint32_t> array_size;  ///< of `[n]`; none for `[]`
  std::string reference_class;              ///< for Type::reference: the class referred to
  std::vector<Qualifier> qualifiers;
  Value default_value;          ///< null when the declaration gives none
  std::string origin;           ///< the class that introduced the property
  std::string declaring_class;  ///< the class whose declaration is in force: differs from origin
                                ///< where a subclass overrides the property
  Position position;

  bool is_key() const { return has_true_qualifier(qualifiers, "Key"); }
  bool is_reference() const { return type == Type::reference; }
};

struct Parameter {
  std::string name;
  Type type = Type::string;
  bool is_array = false;
  std::optional<std::uint32_t> array_size;
  std::string reference_class;
  std::vector<Qualifier> qualifiers;
  Position position;

  /// A parameter is input unless [In(false)] says otherwise, and output where [Out] says so.
  bool is_in() const;
  bool is_out() const { return has_true_qualifier(qualifiers, "Out"); }
};

struct Method {
  std::string name;
  Type return_type = Type::uint32;
  std::vector<Parameter> parameters;
  std::vector<Qualifier> qualifiers;
  std::string origin;
  std::string declaring_class;
  Position position;

  const Parameter* find_parameter(std::string_view parameter) const;
};

struct Class {
  std::string name;
  std::string superclass;  ///< empty for a class without one
  std::vector<Qualifier> qualifiers;
  std::vector<Property> properties;  ///< of this declaration only
  std::vector<Method> methods;       ///< of this declaration only
  bool is_association = false;       ///< inherited; known once the class is in a Repository
  bool is_indication = false;        ///< likewise
  bool is_abstract = false;          ///< likewise, but not inherited
  Position position;                 ///< of the class name
  Position superclass_position;

  const Property* find_property(std::string_view property) const;
  const Method* find_method(std::string_view method) const;
};

/// The same declaration: everything but positions and the letter case of names.
bool same_declaration(const Qualifier& a, const Qualifier& b);
bool same_declaration(const QualifierDeclaration& a, const QualifierDeclaration& b);
bool same_declaration(const Property& a, const Property& b);
bool same_declaration(const Parameter& a, const Parameter& b);
bool same_declaration(const Method& a, const Method& b);
bool same_declaration(const Class& a, const Class& b);

/// One `Name = value;` of an instance. The value has the type of its literal; an alias (`$Name`) is
/// a reference whose text starts with '$'.
struct InstanceProperty {
  std::string name;
  Value value;
  Position position;
  Position value_position;
};

/// `instance of CLASS as $alias { ... };`
struct InstanceDeclaration {
  std::string class_name;
  std::string alias;  ///< with its '$'; empty when there is none
  std::vector<Qualifier> qualifiers;
  std::vector<InstanceProperty> properties;
  Position position;  ///< of the class name
};

}  // namespace cim::schema

#endif  // SCHEMA_CLASS_MODEL_H_
