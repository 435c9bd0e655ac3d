#include "schema/repository.h"

#include <algorithm>
#include <deque>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace cim::schema {
namespace {

// Bounds on what a load may ask for; real schemas stay far below them.
constexpr std::size_t kMaxDepth = 64;
constexpr std::size_t kMaxFeatures = 1'000'000;  // properties and methods, counted in every class
constexpr std::size_t kMaxErrors = 100;

using NameSet = std::unordered_set<std::string_view, NameHash, NameEqual>;
using NameIndex = std::unordered_map<std::string_view, std::size_t, NameHash, NameEqual>;
template <typename Item>
using NameMap = std::unordered_map<std::string_view, Item, NameHash, NameEqual>;

using Declarations = NameMap<std::unique_ptr<QualifierDeclaration>>;

/// The properties or the methods of a class, inherited ones first.
template <typename Feature>
struct Features {
  std::vector<const Feature*> all;  // in `merged`, in the class itself or in a superclass
  NameIndex index;
  std::deque<Feature> merged;  // overriding declarations with what they inherit

  const Feature* find(std::string_view name) const {
    const auto found = index.find(name);
    return found == index.end() ? nullptr : all[found->second];
  }
  void put(const Feature* feature) {
    const auto [place, added] = index.try_emplace(feature->name, all.size());
    if (added) {
      all.push_back(feature);
    } else {
      all[place->second] = feature;
    }
  }
};

struct Node {
  Class cls;
  Node* super = nullptr;
  std::vector<Node*> subclasses;
  std::size_t order = 0;
  std::size_t depth = 1;
  std::vector<Qualifier> qualifiers;
  Features<Property> properties;
  Features<Method> methods;
  std::vector<const Property*> keys;
};

std::string quoted(std::string_view name) {
  return "'" + std::string(name) + "'";
}

std::string scope_names(std::uint16_t scope) {
  constexpr std::pair<Scope, std::string_view> kNames[] = {
      {Scope::class_, "class"},          {Scope::association, "association"},
      {Scope::indication, "indication"}, {Scope::property, "property"},
      {Scope::reference, "reference"},   {Scope::method, "method"},
      {Scope::parameter, "parameter"},   {Scope::schema, "schema"}};
  std::string names;
  for (const auto& [element, name] : kNames) {
    if ((scope & static_cast<std::uint16_t>(element)) == 0) continue;
    names += (names.empty() ? "" : ", ") + std::string(name);
  }
  return names;
}

std::string type_text(Type type, bool is_array) {
  return std::string(type_name(type)) + (is_array ? "[]" : "");
}

/// The inherited qualifiers that reach a subclass, the local ones in their place or behind them.
std::vector<Qualifier> merge(std::span<const Qualifier> inherited,
                             std::span<const Qualifier> local) {
  std::vector<Qualifier> merged;
  NameIndex places;
  for (const Qualifier& qualifier : inherited) {
    if (!qualifier.flavors.to_subclass) continue;
    places.emplace(qualifier.name, merged.size());
    merged.push_back(qualifier);
  }
  for (const Qualifier& qualifier : local) {
    const auto place = places.find(qualifier.name);
    if (place == places.end()) {
      merged.push_back(qualifier);
    } else {
      merged[place->second] = qualifier;
    }
  }
  return merged;
}

template <typename Feature>
bool has_restricted(const Feature& feature) {
  return std::any_of(feature.qualifiers.begin(), feature.qualifiers.end(),
                     [](const Qualifier& qualifier) { return !qualifier.flavors.to_subclass; });
}

/// Starts the features of a subclass with those of its superclass.
template <typename Feature>
void inherit(Features<Feature>& features, const Features<Feature>& inherited) {
  features.index = inherited.index;
  features.all = inherited.all;
  for (const Feature*& feature : features.all) {
    if (!has_restricted(*feature)) continue;
    Feature& copy = features.merged.emplace_back(*feature);
    copy.qualifiers = merge(feature->qualifiers, {});
    feature = &copy;
  }
}

/// What a Repository holds.
struct Store {
  NameMap<std::unique_ptr<Node>> nodes;
  Declarations declarations;
  std::vector<const Class*> classes;
  std::vector<const QualifierDeclaration*> declaration_order;
  std::deque<InstanceDeclaration> instances;
  std::vector<const InstanceDeclaration*> instance_order;
  std::size_t features = 0;

  Node* find(std::string_view name) const {
    const auto found = nodes.find(name);
    return found == nodes.end() ? nullptr : found->second.get();
  }
};

/// Checks one document against a repository and prepares what it adds; the repository itself is
/// touched only by commit().
class Loader {
 public:
  explicit Loader(Store& repository) : repository_(repository), features_(repository.features) {}

  std::vector<Diagnostic> load(const Document& document) {
    for (const QualifierDeclaration& declaration : document.qualifiers)
      declare(declaration);
    for (const Class& cls : document.classes)
      stage(cls);
    for (const Class& cls : document.classes)
      order(cls);
    if (resolve_all()) {
      for (const Node* node : ordered_)
        check_references(*node);
      for (const InstanceDeclaration& instance : document.instances)
        stage_instance(instance);
    }
    if (errors_.empty()) commit();
    sort_errors(document);
    return std::move(errors_);
  }

 private:
  bool full() const { return errors_.size() >= kMaxErrors; }

  void error(const Position& position, std::string message) {
    if (!full()) errors_.push_back({position, std::move(message)});
  }

  /// By file, in reading order, then by line and column.
  void sort_errors(const Document& document) {
    std::unordered_map<std::string, std::size_t> files;
    for (const std::string& file : document.files)
      files.emplace(file, files.size());
    const auto place = [&](const Diagnostic& error) {
      const auto file = error.position.file ? files.find(*error.position.file) : files.end();
      return std::tuple(file == files.end() ? files.size() : file->second, error.position.line,
                        error.position.column);
    };
    std::stable_sort(errors_.begin(), errors_.end(),
                     [&](const Diagnostic& a, const Diagnostic& b) { return place(a) < place(b); });
  }

  Node* find(std::string_view name) const {
    const auto found = staged_.find(name);
    return found != staged_.end() ? found->second.get() : repository_.find(name);
  }

  const QualifierDeclaration* find_declaration(std::string_view name) const {
    for (const Declarations* map : {&declared_, &std::as_const(repository_.declarations)}) {
      const auto found = map->find(name);
      if (found != map->end()) return found->second.get();
    }
    return nullptr;
  }

  std::string suggest_class(std::string_view name) const {
    if (full()) return {};
    std::vector<std::string_view> names;
    for (const Class* cls : repository_.classes)
      names.emplace_back(cls->name);
    for (const auto& [staged, node] : staged_)
      names.emplace_back(node->cls.name);
    std::sort(names.begin(), names.end(), NameLess());
    return suggestion(name, names);
  }

  std::string suggest_qualifier(std::string_view name) const {
    if (full()) return {};
    std::vector<std::string_view> names;
    for (const Declarations* map : {&declared_, &std::as_const(repository_.declarations)}) {
      for (const auto& [declared, declaration] : *map)
        names.emplace_back(declaration->name);
    }
    std::sort(names.begin(), names.end(), NameLess());
    return suggestion(name, names);
  }

  void declare(const QualifierDeclaration& declaration) {
    if (const QualifierDeclaration* first = find_declaration(declaration.name)) {
      if (same_declaration(*first, declaration)) return;
      return error(declaration.position, "qualifier " + declaration.name +
                                             " is already declared differently at " +
                                             first->position.text());
    }
    auto copy = std::make_unique<QualifierDeclaration>(declaration);
    declared_order_.push_back(copy.get());
    const std::string_view name = copy->name;
    declared_.emplace(name, std::move(copy));
  }

  void stage(const Class& cls) {
    if (const Node* first = find(cls.name)) {
      return error(cls.position,
                   "class " + cls.name + " is already declared at " + first->cls.position.text());
    }
    auto node = std::make_unique<Node>();
    node->cls = cls;
    const std::string_view name = node->cls.name;
    staged_.emplace(name, std::move(node));
  }

  /// Puts a class into ordered_, its superclasses first. What cannot be ordered is reported, or
  /// derives from a class that is.
  void order(const Class& cls) {
    Node* node = find(cls.name);
    std::vector<Node*> chain;  // from the class upwards, as far as it is not ordered yet
    NameSet in_chain;
    while (is_waiting(node)) {
      if (!in_chain.insert(node->cls.name).second) {
        report_cycle(chain, *node);
        return give_up(chain);
      }
      chain.push_back(node);
      if (node->cls.superclass.empty()) break;
      Node* super = find(node->cls.superclass);
      if (super == nullptr) {
        error(node->cls.superclass_position,
              "class " + node->cls.name + " has an unknown superclass " +
                  quoted(node->cls.superclass) + suggest_class(node->cls.superclass));
        return give_up(chain);
      }
      if (given_up_.contains(super->cls.name)) return give_up(chain);
      node->super = super;
      node = super;
    }
    for (auto from = chain.rbegin(); from != chain.rend(); ++from) {
      if (!place(**from)) return give_up({chain.begin(), from.base()});
    }
  }

  bool is_waiting(const Node* node) const {
    return staged_.contains(node->cls.name) && !placed_.contains(node->cls.name) &&
           !given_up_.contains(node->cls.name);
  }

  bool place(Node& node) {
    node.depth = node.super == nullptr ? 1 : node.super->depth + 1;
    if (node.depth > kMaxDepth) {
      error(node.cls.position, "class " + node.cls.name + " has more than " +
                                   std::to_string(kMaxDepth - 1) + " superclasses above it");
      return false;
    }
    placed_.insert(node.cls.name);
    ordered_.push_back(&node);
    return true;
  }

  void give_up(const std::vector<Node*>& chain) {
    for (const Node* node : chain)
      given_up_.insert(node->cls.name);
  }

  void report_cycle(const std::vector<Node*>& chain, const Node& repeated) {
    constexpr std::size_t kShown = 8;
    std::string path;
    std::size_t shown = 0;
    const auto first = std::find(chain.begin(), chain.end(), &repeated);
    for (auto node = first; node != chain.end(); ++node) {
      if (++shown > kShown) {
        path += "... : ";
        break;
      }
      path += (*node)->cls.name + " : ";
    }
    error(
        repeated.cls.superclass_position,
        "class " + repeated.cls.name + " is its own superclass (" + path + repeated.cls.name + ")");
  }

  /// False when the classes together have too many features.
  bool resolve_all() {
    for (Node* node : ordered_) {
      resolve(*node);
      if (features_ <= kMaxFeatures) continue;
      error(node->cls.position, "the classes have more than " + std::to_string(kMaxFeatures) +
                                    " properties and methods, inherited ones counted");
      return false;
    }
    return true;
  }

  // One class, its superclass being resolved.

  void resolve(Node& node) {
    Class& cls = node.cls;
    const Class* super = node.super == nullptr ? nullptr : &node.super->cls;
    cls.is_association = has_true_qualifier(cls.qualifiers, "Association") ||
                         (super != nullptr && super->is_association);
    cls.is_indication = has_true_qualifier(cls.qualifiers, "Indication") ||
                        (super != nullptr && super->is_indication);
    const Scope scope = cls.is_association  ? Scope::association
                        : cls.is_indication ? Scope::indication
                                            : Scope::class_;
    resolve_qualifiers(cls.qualifiers, scope, "class " + cls.name);
    node.qualifiers = inherit_qualifiers(
        super == nullptr ? std::vector<Qualifier>{} : node.super->qualifiers, cls.qualifiers);
    cls.is_abstract = has_true_qualifier(node.qualifiers, "Abstract");
    if (cls.is_association && super != nullptr && !super->is_association) {
      error(cls.position, "association " + cls.name + " derives from class " + super->name +
                              ", which is not an association");
    }
    resolve_properties(node);
    resolve_methods(node);
    features_ += node.properties.all.size() + node.methods.all.size();
    check_keys(node);
  }

  void resolve_qualifiers(std::vector<Qualifier>& qualifiers, Scope scope,
                          const std::string& owner) {
    NameSet seen;
    for (Qualifier& qualifier : qualifiers) {
      if (!seen.insert(qualifier.name).second) {
        error(qualifier.position, twice(qualifier, owner));
      }
      resolve_qualifier(qualifier, scope, owner);
    }
  }

  static std::string twice(const Qualifier& qualifier, const std::string& owner) {
    return "qualifier " + qualifier.name + " stands twice on " + owner;
  }

  /// Gives a qualifier its declared type and its flavors.
  void resolve_qualifier(Qualifier& qualifier, Scope scope, const std::string& owner) {
    const QualifierDeclaration* declaration = find_declaration(qualifier.name);
    if (declaration == nullptr) {
      return error(qualifier.position, "unknown qualifier " + quoted(qualifier.name) + " on " +
                                           owner + suggest_qualifier(qualifier.name));
    }
    if (!declaration->allows(scope)) {
      error(qualifier.position, "qualifier " + qualifier.name + " cannot stand on " + owner +
                                    ": its scope is " + scope_names(declaration->scope));
    }
    give_value(qualifier, *declaration, owner);
    const WrittenFlavors& written = qualifier.written;
    const Flavors& declared = declaration->flavors;
    qualifier.flavors = {written.overridable.value_or(declared.overridable),
                         written.to_subclass.value_or(declared.to_subclass),
                         written.translatable.value_or(declared.translatable)};
  }

  void give_value(Qualifier& qualifier, const QualifierDeclaration& declaration,
                  const std::string& owner) {
    const std::string what = "qualifier " + qualifier.name + " on " + owner;
    if (!qualifier.value_given) {
      const bool flag = declaration.type == Type::boolean && !declaration.is_array;
      qualifier.value = flag ? Value::boolean(true) : declaration.default_value;
      qualifier.value_given = true;
      if (qualifier.value.is_null()) error(qualifier.position, what + " needs a value");
      return;
    }
    ValueResult converted = convert(qualifier.value, declaration.type, declaration.is_array);
    if (converted) {
      qualifier.value = std::move(*converted.value);
    } else {
      error(qualifier.position, what + ": " + converted.error);
    }
  }

  /// merge(), with an error for each inherited qualifier that is changed but must not be; it keeps
  /// its inherited value.
  std::vector<Qualifier> inherit_qualifiers(std::span<const Qualifier> inherited,
                                            std::span<const Qualifier> local) {
    std::vector<Qualifier> merged = merge(inherited, local);
    for (std::size_t i = 0; i < std::min(inherited.size(), merged.size()); ++i) {
      const Qualifier* above = schema::find_qualifier(inherited, merged[i].name);
      if (above == nullptr || !above->flavors.to_subclass || above->flavors.overridable) continue;
      if (above->value == merged[i].value) continue;
      error(merged[i].position, "qualifier " + merged[i].name + " cannot change from " +
                                    to_mof(above->value) + " to " + to_mof(merged[i].value) +
                                    ": it is inherited with DisableOverride");
      merged[i].value = above->value;
    }
    return merged;
  }

  /// The feature of the superclass that a local one overrides, or null.
  template <typename Feature>
  const Feature* overridden(const Node& node, const Features<Feature>& inherited,
                            const Feature& local, const std::string& what) {
    const Feature* above = inherited.find(local.name);
    const Qualifier* mark = schema::find_qualifier(local.qualifiers, "Override");
    if (mark == nullptr || mark->value.text() == nullptr) return above;
    const std::string& named = *mark->value.text();
    if (inherited.find(named) == nullptr) {
      error(mark->position, what + " overrides " + quoted(named) + ", which no superclass of " +
                                node.cls.name + " has");
    } else if (!equal_names(named, local.name)) {
      error(mark->position, what + " overrides " + quoted(named) +
                                ": an override has the name of what it overrides");
    }
    return above;
  }

  void resolve_properties(Node& node) {
    Class& cls = node.cls;
    static const Features<Property> kNone;
    const Features<Property>& inherited = node.super == nullptr ? kNone : node.super->properties;
    inherit(node.properties, inherited);
    NameSet seen;
    for (Property& property : cls.properties) {
      const std::string what = "property " + property.name;
      if (!seen.insert(property.name).second) {
        error(property.position, what + " is declared twice in class " + cls.name);
        continue;
      }
      if (property.is_reference() && !cls.is_association) {
        error(property.position,
              "reference " + property.name + " in class " + cls.name + ", which is no association");
      }
      resolve_qualifiers(property.qualifiers,
                         property.is_reference() ? Scope::reference : Scope::property, what);
      const Property* above = overridden(node, inherited, property, what);
      if (above == nullptr) {
        node.properties.put(&property);
        continue;
      }
      check_type(property, *above, cls);
      property.origin = above->origin;
      Property& merged = node.properties.merged.emplace_back(property);
      merged.qualifiers = inherit_qualifiers(above->qualifiers, property.qualifiers);
      if (merged.default_value.is_null()) merged.default_value = above->default_value;
      node.properties.put(&merged);
    }
  }

  void check_type(const Property& property, const Property& above, const Class& cls) {
    if (property.type == above.type && property.is_array == above.is_array) return;
    error(property.position, "property " + property.name + " of class " + cls.name + " is " +
                                 type_text(property.type, property.is_array) + ", but class " +
                                 above.declaring_class + " declares it as " +
                                 type_text(above.type, above.is_array));
  }

  void resolve_methods(Node& node) {
    Class& cls = node.cls;
    static const Features<Method> kNone;
    const Features<Method>& inherited = node.super == nullptr ? kNone : node.super->methods;
    inherit(node.methods, inherited);
    NameSet seen;
    for (Method& method : cls.methods) {
      const std::string what = "method " + method.name;
      if (!seen.insert(method.name).second) {
        error(method.position, what + " is declared twice in class " + cls.name);
        continue;
      }
      resolve_qualifiers(method.qualifiers, Scope::method, what);
      resolve_parameters(method);
      const Method* above = overridden(node, inherited, method, what);
      if (above == nullptr) {
        node.methods.put(&method);
        continue;
      }
      check_signature(method, *above, cls);
      method.origin = above->origin;
      Method& merged = node.methods.merged.emplace_back(method);
      merged.qualifiers = inherit_qualifiers(above->qualifiers, method.qualifiers);
      for (Parameter& parameter : merged.parameters) {
        const Parameter* same = above->find_parameter(parameter.name);
        if (same == nullptr) continue;
        parameter.qualifiers = inherit_qualifiers(same->qualifiers, parameter.qualifiers);
      }
      node.methods.put(&merged);
    }
  }

  void resolve_parameters(Method& method) {
    NameSet seen;
    for (Parameter& parameter : method.parameters) {
      if (!seen.insert(parameter.name).second) {
        error(parameter.position,
              "parameter " + parameter.name + " is declared twice in method " + method.name);
      }
      resolve_qualifiers(parameter.qualifiers, Scope::parameter, "parameter " + parameter.name);
    }
  }

  void check_signature(const Method& method, const Method& above, const Class& cls) {
    const auto same = [](const Parameter& a, const Parameter& b) {
      return equal_names(a.name, b.name) && a.type == b.type && a.is_array == b.is_array;
    };
    if (method.return_type == above.return_type &&
        std::equal(method.parameters.begin(), method.parameters.end(), above.parameters.begin(),
                   above.parameters.end(), same)) {
      return;
    }
    error(method.position, "method " + method.name + " of class " + cls.name +
                               " differs in return type or parameters from that of class " +
                               above.declaring_class);
  }

  void check_keys(Node& node) {
    const Class& cls = node.cls;
    std::size_t references = 0;
    for (const Property* property : node.properties.all) {
      if (property->is_reference()) ++references;
      if (property->is_key()) node.keys.push_back(property);
    }
    for (const Property& property : cls.properties)
      check_key(node, property);
    if (cls.is_association && references < 2) {
      error(cls.position, "association " + cls.name + " has fewer than two references");
    }
    if (!cls.is_association && !cls.is_indication && !cls.is_abstract && node.keys.empty()) {
      error(cls.position,
            "class " + cls.name + " is not abstract, but neither it nor a superclass has a key");
    }
  }

  void check_key(const Node& node, const Property& property) {
    if (!property.is_key()) return;
    if (property.is_array) {
      error(property.position, "key property " + property.name + " cannot be an array");
    }
    if (node.super == nullptr || node.super->keys.empty()) return;
    const Property* above = node.super->properties.find(property.name);
    if (above != nullptr && above->is_key()) return;
    error(property.position, "property " + property.name + " cannot be a key: class " +
                                 node.super->cls.name + " has keys already (" +
                                 node.super->keys.front()->name + ")");
  }

  // Once all classes are known.

  void check_references(const Node& node) {
    for (const Property& property : node.cls.properties) {
      if (!property.is_reference()) continue;
      const std::string what = "reference " + property.name;
      const Node* target = check_class(property.reference_class, property.position, what);
      if (target == nullptr || node.super == nullptr) continue;
      const Property* above = node.super->properties.find(property.name);
      if (above == nullptr || !above->is_reference()) continue;
      const Node* wider = find(above->reference_class);
      if (wider == nullptr || derives(target, wider)) continue;
      error(property.position, what + " of class " + node.cls.name + " refers to " +
                                   property.reference_class + ", which does not derive from " +
                                   above->reference_class + " as class " + above->declaring_class +
                                   " demands");
    }
    for (const Method& method : node.cls.methods) {
      for (const Parameter& parameter : method.parameters) {
        if (parameter.type != Type::reference) continue;
        check_class(parameter.reference_class, parameter.position,
                    "parameter " + parameter.name + " of method " + method.name);
      }
    }
  }

  const Node* check_class(std::string_view name, const Position& position,
                          const std::string& what) {
    const Node* node = find(name);
    if (node == nullptr) {
      error(position, what + " refers to an unknown class " + quoted(name) + suggest_class(name));
    }
    return node;
  }

  static bool derives(const Node* node, const Node* ancestor) {
    while (node != nullptr && node != ancestor)
      node = node->super;
    return node != nullptr;
  }

  void stage_instance(const InstanceDeclaration& declaration) {
    const Node* node =
        check_class(declaration.class_name, declaration.position, "the instance declaration");
    if (node == nullptr) return;
    if (node->cls.is_abstract) {
      error(declaration.position, "abstract class " + node->cls.name + " has no instances");
    }
    InstanceDeclaration& instance = instances_.emplace_back(declaration);
    const std::string owner = "the instance of " + instance.class_name;
    resolve_qualifiers(instance.qualifiers, Scope::any, owner);
    NameSet seen;
    for (InstanceProperty& value : instance.properties) {
      if (!seen.insert(value.name).second) {
        error(value.position, "property " + value.name + " stands twice in " + owner);
      }
      give_type(value, *node);
    }
  }

  void give_type(InstanceProperty& value, const Node& node) {
    const Property* property = node.properties.find(value.name);
    if (property == nullptr) {
      std::vector<std::string_view> names;
      for (const Property* known : node.properties.all)
        names.emplace_back(known->name);
      return error(value.position, "class " + node.cls.name + " has no property " +
                                       quoted(value.name) +
                                       (full() ? std::string() : suggestion(value.name, names)));
    }
    const bool is_alias = value.value.type() == Type::reference;
    if (is_alias && !property->is_reference()) {
      return error(value.value_position,
                   "property " + property->name + " is no reference: an alias cannot stand here");
    }
    ValueResult converted = convert(value.value, property->type, property->is_array);
    if (!converted) {
      return error(value.value_position, "property " + property->name + ": " + converted.error);
    }
    value.value = std::move(*converted.value);
  }

  void commit() {
    repository_.features = features_;
    for (const QualifierDeclaration* declaration : declared_order_) {
      repository_.declaration_order.push_back(declaration);
    }
    repository_.declarations.merge(declared_);
    for (Node* node : ordered_) {
      node->order = repository_.classes.size();
      repository_.classes.push_back(&node->cls);
      if (node->super != nullptr) node->super->subclasses.push_back(node);
    }
    repository_.nodes.merge(staged_);
    for (InstanceDeclaration& instance : instances_) {
      repository_.instance_order.push_back(
          &repository_.instances.emplace_back(std::move(instance)));
    }
  }

  Store& repository_;
  std::vector<Diagnostic> errors_;
  Declarations declared_;
  std::vector<const QualifierDeclaration*> declared_order_;
  NameMap<std::unique_ptr<Node>> staged_;
  NameSet placed_;    // classes in ordered_
  NameSet given_up_;  // classes without a usable superclass
  std::vector<Node*> ordered_;
  std::deque<InstanceDeclaration> instances_;
  std::size_t features_;
};

}  // namespace

struct Repository::Impl : Store {};

Repository::Repository() : impl_(std::make_unique<Impl>()) {}
Repository::~Repository() = default;
Repository::Repository(Repository&&) noexcept = default;
Repository& Repository::operator=(Repository&&) noexcept = default;

std::vector<Diagnostic> Repository::add(const Document& document) {
  if (!document.ok()) return document.errors;
  return Loader(*impl_).load(document);
}

std::vector<Diagnostic> Repository::add_file(const std::string& path, const ReadOptions& options) {
  return add(read_mof_file(path, options));
}

const Class* Repository::find(std::string_view name) const {
  const Node* node = impl_->find(name);
  return node == nullptr ? nullptr : &node->cls;
}

const QualifierDeclaration* Repository::find_qualifier_declaration(std::string_view name) const {
  const auto found = impl_->declarations.find(name);
  return found == impl_->declarations.end() ? nullptr : found->second.get();
}

std::span<const Class* const> Repository::all() const {
  return impl_->classes;
}

std::span<const QualifierDeclaration* const> Repository::qualifier_declarations() const {
  return impl_->declaration_order;
}

std::span<const InstanceDeclaration* const> Repository::instances() const {
  return impl_->instance_order;
}

bool Repository::is_a(std::string_view name, std::string_view ancestor) const {
  const Node* const wanted = impl_->find(ancestor);
  const Node* node = wanted == nullptr ? nullptr : impl_->find(name);
  while (node != nullptr && node != wanted)
    node = node->super;
  return node != nullptr;
}

const Class* Repository::superclass(const Class& cls) const {
  const Node* node = impl_->find(cls.name);
  return node == nullptr || node->super == nullptr ? nullptr : &node->super->cls;
}

std::vector<const Class*> Repository::subclasses(std::string_view name, bool deep) const {
  const Node* node = impl_->find(name);
  if (node == nullptr) return {};
  std::vector<const Node*> found(node->subclasses.begin(), node->subclasses.end());
  for (std::size_t i = 0; deep && i < found.size(); ++i) {
    const std::vector<Node*>& next = found[i]->subclasses;
    found.insert(found.end(), next.begin(), next.end());
  }
  std::sort(found.begin(), found.end(),
            [](const Node* a, const Node* b) { return a->order < b->order; });
  std::vector<const Class*> classes;
  classes.reserve(found.size());
  for (const Node* subclass : found)
    classes.push_back(&subclass->cls);
  return classes;
}

std::string Repository::suggest_class(std::string_view name) const {
  std::vector<std::string_view> names;
  names.reserve(impl_->classes.size());
  for (const Class* cls : impl_->classes)
    names.emplace_back(cls->name);
  return suggestion(name, names);
}

std::span<const Property* const> Repository::properties(const Class& cls) const {
  const Node* node = impl_->find(cls.name);
  if (node == nullptr) return {};
  return node->properties.all;
}

std::span<const Method* const> Repository::methods(const Class& cls) const {
  const Node* node = impl_->find(cls.name);
  if (node == nullptr) return {};
  return node->methods.all;
}

std::span<const Property* const> Repository::keys(const Class& cls) const {
  const Node* node = impl_->find(cls.name);
  if (node == nullptr) return {};
  return node->keys;
}

std::span<const Qualifier> Repository::qualifiers(const Class& cls) const {
  const Node* node = impl_->find(cls.name);
  if (node == nullptr) return {};
  return node->qualifiers;
}

const Property* Repository::property(const Class& cls, std::string_view name) const {
  const Node* node = impl_->find(cls.name);
  return node == nullptr ? nullptr : node->properties.find(name);
}

const Method* Repository::method(const Class& cls, std::string_view name) const {
  const Node* node = impl_->find(cls.name);
  return node == nullptr ? nullptr : node->methods.find(name);
}

}  // namespace cim::schema
