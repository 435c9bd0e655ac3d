#include "providers/class_table.h"

#include <vector>

// To add a class: write its functions in a source of its own, describe it with a RecordClass in the
// table of its area (AREA_class_table.cc), and name it in kClasses there. What a description may
// hold stands in class.h.
namespace vexor::providers {
namespace {

std::vector<const Class*> joined(std::initializer_list<ClassTable> tables) {
  std::vector<const Class*> all;
  for (const ClassTable table : tables)
    all.insert(all.end(), table.begin(), table.end());
  return all;
}

}  // namespace

ClassTable class_table() {
  static const std::vector<const Class*> all =
      joined({switch_classes(), port_classes(), zoning_classes(), hardware_classes()});
  return all;
}

}  // namespace vexor::providers
