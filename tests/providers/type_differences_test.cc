// The properties that providers convert are those that the library's builders write in another type
// than the class declares, all of them and no others.
#include "providers/type_differences.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "schema/repository.h"
#include "tests/model/type_differences.h"

namespace {

std::string type_name(CMPIType type) {
  return type == CMPI_uint16 ? "uint16" : "another type";
}

TEST(TypeDifferences, OfProvidersAreThoseOfTheBuilders) {
  std::set<std::string> of_builders;
  for (const types::Difference& difference : types::kDifferences) {
    if (difference.writer == types::Writer::builders)
      of_builders.insert(std::string(difference.cls) + "." + difference.property + " " +
                         difference.declared);
  }
  cim::schema::Repository classes;
  for (const auto& error : classes.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
    ADD_FAILURE() << error.text();
  std::set<std::string> of_providers;
  for (const cim::schema::Class* cls : classes.all()) {
    for (const auto& difference : vexor::providers::type_differences_of(cls->name.c_str()))
      of_providers.insert(std::string(difference.class_name) + "." + difference.property + " " +
                          type_name(difference.declared));
  }
  EXPECT_EQ(of_builders.size(), 5u);
  EXPECT_EQ(of_providers, of_builders);
}

}  // namespace
