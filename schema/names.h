// CIM names: class, property, qualifier, method and parameter names are ASCII and differ only by
// more than letter case. Everything that looks a name up uses these helpers.
#ifndef SCHEMA_NAMES_H_
#define SCHEMA_NAMES_H_

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace cim::schema {

/// True when the two names are the same name: equal without regard to ASCII letter case.
bool equal_names(std::string_view a, std::string_view b);

/// Orders names without regard to ASCII letter case, for std::map and std::set.
struct NameLess {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const;
};

/// Hash and equality without regard to ASCII letter case, for the unordered containers.
struct NameHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view name) const;
};
struct NameEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return equal_names(a, b); }
};

/// The candidate that a person most likely meant by `name`: at most a third of its letters differ.
/// Empty when none is near. The view points into `candidates`.
std::string_view nearest_name(std::string_view name, std::span<const std::string_view> candidates);

/// "; did you mean 'X'?" for the nearest candidate, or an empty text when none is near.
std::string suggestion(std::string_view name, std::span<const std::string_view> candidates);

}  // namespace cim::schema

#endif  // SCHEMA_NAMES_H_
