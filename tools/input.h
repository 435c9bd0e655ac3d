// What a person typed, as the paths and values that the object manager takes.
#ifndef TOOLS_INPUT_H_
#define TOOLS_INPUT_H_

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/data.h"
#include "schema/repository.h"

namespace vexor::tools {

/// Input that a person can mend: exit status 2.
class BadInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// " (did you mean X?)" for the candidate that is near to `name`, or nothing.
std::string did_you_mean(std::string_view name, const std::vector<std::string_view>& candidates);

/// A path with what can only be one thing filled in: the namespace, and a key CreationClassName.
/// A path without keys stays without, since it stands for the class.
/// \throws BadInput with the column, for a text that is no path
cim::host::ObjectPath read_path(const cim::schema::Repository& repository, const std::string& text,
                                const std::string& name_space);

/// Where values belong: references in them lie in `name_space` unless they say otherwise.
struct ValueScope {
  const cim::schema::Repository& repository;
  std::string name_space;
};

/// Words `NAME=VALUE` as properties of the class, with their declared names and types. A value
/// stands as it is; an array is `{a,b}`, its elements in double quotes where they hold commas.
/// \throws BadInput for a word that is none, an unknown or repeated name, or a value of another
/// type
std::vector<cim::host::NamedData> read_properties(const ValueScope& scope,
                                                  const cim::schema::Class& cls,
                                                  const std::vector<std::string>& words);

/// The same for the input parameters of a method.
/// \throws BadInput, also when a required parameter is missing
std::vector<cim::host::NamedData> read_arguments(const ValueScope& scope,
                                                 const cim::schema::Class& cls,
                                                 const cim::schema::Method& method,
                                                 const std::vector<std::string>& words);

}  // namespace vexor::tools

#endif  // TOOLS_INPUT_H_
