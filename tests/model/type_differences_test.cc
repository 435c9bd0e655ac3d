// The types that the getters of class ComputerSystem write against those that the classes declare.
// (Those of the builders are compared with the classes by the test of the descriptions.)
#include <gtest/gtest.h>

#include <set>

#include "schema/repository.h"
#include "tests/model/builder_platform.h"
#include "tests/model/type_differences.h"

using namespace builders;

namespace {

struct Written {
  std::string name;
  std::string type;
};

std::vector<Written> written_by_getters() {
  std::vector<Written> all;
  for (const PegasusRow& row : pegasus_rows()) {
    if (!row.id.starts_with("ComputerSystem::get")) continue;
    const BuilderPlatform platform(kOtherFacesQueue, test_support::kQueue);
    test_support::Script script;
    row.lines(script, mts_q);
    const Property property = content_of(std::get<Pegasus::CIMProperty>(row.make()));
    // What getters with nothing to tell leave, and the texts of functions that are no getters.
    if (property.name != "Before" && property.name != "Text")
      all.push_back({property.name, property.type});
  }
  return all;
}

std::string declared_type(const cim::schema::Property& property) {
  return std::string(cim::schema::type_name(property.type)) + (property.is_array ? "[]" : "");
}

class TypeDifferences : public testing::Test {
 protected:
  TypeDifferences() {
    for (const auto& error : classes_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
      ADD_FAILURE() << error.text();
  }
  cim::schema::Repository classes_;
};

TEST_F(TypeDifferences, OfTheGettersAreExactlyThoseListed) {
  const auto* cls = classes_.find("VEXOR_Switch");  // what the getters call the switch's class
  ASSERT_NE(cls, nullptr);
  std::set<std::string> differing;
  for (const Written& written : written_by_getters()) {
    const auto* property = classes_.property(*cls, written.name);
    ASSERT_NE(property, nullptr) << written.name;
    if (declared_type(*property) != written.type)
      differing.insert(written.name + " " + written.type);
  }
  std::set<std::string> listed;
  for (const types::Difference& difference : types::kDifferences) {
    if (difference.writer == types::Writer::getters)
      listed.insert(std::string(difference.property) + " " + difference.written);
  }
  EXPECT_EQ(differing, listed);
}

TEST_F(TypeDifferences, AreFromWhatTheClassesDeclare) {
  for (const types::Difference& difference : types::kDifferences) {
    const auto* cls = classes_.find(difference.cls);
    ASSERT_NE(cls, nullptr) << difference.cls;
    const auto* property = classes_.property(*cls, difference.property);
    ASSERT_NE(property, nullptr) << difference.cls << "." << difference.property;
    EXPECT_EQ(declared_type(*property), difference.declared)
        << difference.cls << "." << difference.property;
  }
}

}  // namespace
