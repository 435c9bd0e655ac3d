// Object paths as text: `//host/namespace:Class.Key="text",Other=5`.
//
// Host and namespace may be missing. A text key stands in double quotes with the escapes of MOF
// strings, a reference as the quoted text of its path, numbers and TRUE and FALSE as they are.
#ifndef HOST_OBJECT_PATH_H_
#define HOST_OBJECT_PATH_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "host/data.h"

namespace cim::host {

std::string to_text(const ObjectPath& path);

/// `Class.Key=value,...` for a column of a table: without quotes around texts, and without a key
/// CreationClassName that only repeats the class.
std::string to_short_text(const ObjectPath& path);

struct ParsedPath {
  ObjectPath path;
  std::string error;       ///< empty: good
  std::size_t column = 0;  ///< of the error: 1 is the first character

  explicit operator bool() const { return error.empty(); }
};

/// Reads a path. What types its keys have is not known here: a quoted value is a string, a number
/// an uint64, sint64 or real64, `'c'` a char16; ObjectManager gives them their declared types.
ParsedPath parse_object_path(std::string_view text);

}  // namespace cim::host

#endif  // HOST_OBJECT_PATH_H_
