// Where the class definitions and the provider library are.
//
// In this order: what the command line says, what the environment says, the folders beside an
// installed program. A program inside its build tree uses that tree instead of those folders.
#ifndef TOOLS_LOCATIONS_H_
#define TOOLS_LOCATIONS_H_

#include <string>

namespace vexor::tools {

struct Location {
  std::string path;
  std::string error;  ///< empty: `path` is there
};

/// The MOF file to read. `given` (--mof) is a file, or a folder that holds vexor.mof.
Location find_mof(const std::string& given);

/// The provider library. `given` is --providers.
Location find_providers(const std::string& given);

}  // namespace vexor::tools

#endif  // TOOLS_LOCATIONS_H_
