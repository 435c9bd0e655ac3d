// A row for every exported builder of both faces: a call of it with one record of each kind, and
// what it asks. The sweeps and the comparison of the faces run over these rows; a test holds that
// they are exactly the exported names.
#pragma once

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObject.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>
#include <cmpidt.h>
#include <cmpift.h>

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "tests/model/builder_inputs.h"

namespace builders {

enum class Area { switches, ports, zoning, hardware, connectivity, others };

// The exported name of a row that is called "name (which of its calls)".
inline std::string name_of(const std::string& id) {
  return id.substr(0, id.find(" ("));
}

struct CmpiObject {
  CmpiObject(const CMPIObjectPath* made) : path(made) {}    // NOLINT: what a builder returns
  CmpiObject(const CMPIInstance* made) : instance(made) {}  // NOLINT
  bool made() const { return path != nullptr || instance != nullptr; }
  const CMPIObjectPath* path = nullptr;
  const CMPIInstance* instance = nullptr;
};

struct CmpiRow {
  std::string id;
  Area area;
  Lines lines;
  std::function<CmpiObject(const CMPIBroker*)> make;
};

// Nothing, for functions that return none.
using PegasusObject =
    std::variant<std::monostate, Pegasus::CIMObjectPath, Pegasus::CIMInstance, Pegasus::CIMObject,
                 Pegasus::CIMProperty, Pegasus::Array<Pegasus::Uint16>>;

struct PegasusRow {
  std::string id;
  Area area;
  Lines lines;
  // The row of the other face that makes the same; empty when there is none.
  std::string counterpart;
  std::function<PegasusObject()> make;
};

const std::vector<CmpiRow>& cmpi_rows();
// Those of class ProviderUtil, of class ComputerSystem, and the two free functions.
const std::vector<PegasusRow>& pegasus_rows();

}  // namespace builders
