// The classes and qualifier declarations of one namespace, checked and with inheritance resolved.
//
// A load is added whole or, when it has an error, not at all. Pointers and spans handed out stay
// valid, and their targets unchanged, as long as the Repository lives. Reading from several threads
// at once is safe while nothing is added.
#ifndef SCHEMA_REPOSITORY_H_
#define SCHEMA_REPOSITORY_H_

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "schema/class_model.h"
#include "schema/mof_reader.h"

namespace cim::schema {

class Repository {
 public:
  Repository();
  ~Repository();
  Repository(Repository&&) noexcept;
  Repository& operator=(Repository&&) noexcept;
  Repository(const Repository&) = delete;
  Repository& operator=(const Repository&) = delete;

  /// Adds everything that `document` declares. Within one document the order does not matter; what
  /// it refers to elsewhere must have been added before.
  /// \return the errors, those of the document first; empty: everything was added
  std::vector<Diagnostic> add(const Document& document);

  /// read_mof_file() and add() in one.
  std::vector<Diagnostic> add_file(const std::string& path, const ReadOptions& options = {});

  /// The class of that name, or null. Names are looked up in any letter case.
  const Class* find(std::string_view name) const;
  const QualifierDeclaration* find_qualifier_declaration(std::string_view name) const;

  /// All classes, superclasses before their subclasses, otherwise in the order they were added.
  std::span<const Class* const> all() const;
  /// All of them, in the order they were added. Instance values have their declared types.
  std::span<const QualifierDeclaration* const> qualifier_declarations() const;
  std::span<const InstanceDeclaration* const> instances() const;

  /// True when `name` is `ancestor` or derives from it. False for unknown names.
  bool is_a(std::string_view name, std::string_view ancestor) const;

  /// The superclass, or null.
  const Class* superclass(const Class& cls) const;

  /// The classes that derive from `name`: directly, or with `deep` through any number of steps.
  /// In the order of all().
  std::vector<const Class*> subclasses(std::string_view name, bool deep) const;

  /// "; did you mean 'X'?" for the class whose name is nearest to `name`; empty when none is near.
  std::string suggest_class(std::string_view name) const;

  // Everything a class has, inherited or its own. Superclasses come first; what a subclass
  // overrides keeps its place. `cls` must come from this Repository.

  std::span<const Property* const> properties(const Class& cls) const;
  std::span<const Method* const> methods(const Class& cls) const;
  std::span<const Property* const> keys(const Class& cls) const;
  /// The qualifiers in force: the class's own, and the inherited ones of flavor ToSubclass.
  std::span<const Qualifier> qualifiers(const Class& cls) const;

  /// One property or method, inherited or not, by its name; null when the class has none.
  const Property* property(const Class& cls, std::string_view name) const;
  const Method* method(const Class& cls, std::string_view name) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

/// What to_mof() prints of a class.
enum class Form {
  declared,  ///< its own declaration: reads back equal
  complete,  ///< with everything it inherits
};

/// The class in canonical MOF: qualifiers in the order of declaration with flavors only where they
/// differ from the declared ones, one property or method a paragraph, two spaces of indentation.
std::string to_mof(const Class& cls, const Repository& repository, Form form = Form::declared);
std::string to_mof(const QualifierDeclaration& declaration);

}  // namespace cim::schema

#endif  // SCHEMA_REPOSITORY_H_
