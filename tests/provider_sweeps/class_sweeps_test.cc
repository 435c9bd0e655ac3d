// Every class, listed, got and walked from both ends, with every allocation and every exchange
// failing once: nothing crashes, nothing is left behind, a failure says so, and no object is given
// that is not there.
#include <algorithm>
#include <set>
#include <string_view>

#include "providers/class_table.h"
#include "tests/provider_sweeps/sweep_fixture.h"

namespace provider_sweeps {
namespace {

using vexor::providers::Class;
using vexor::providers::ClassTable;

class ClassSweep : public ProviderSweep, public testing::WithParamInterface<const Class*> {
 protected:
  struct Asked {
    Operation operation;
    Ways ways;
  };

  // Every way to ask for the class: listed, one object of each form got, and an association walked
  // from one object of each form at either end. Each operation is once swept in every way.
  std::vector<Asked> operations() {
    const Class& cls = *GetParam();
    std::vector<Asked> all = {{sweep_.names_of(broker_.path(cls.name())), Ways::every},
                              {sweep_.instances_of(broker_.path(cls.name())), Ways::every}};
    const Outcome listed = names(cls.name());
    EXPECT_EQ(listed.code, CMPI_RC_OK) << listed.message;
    EXPECT_FALSE(listed.returned.objects.empty());
    std::set<std::string> forms;
    for (const CMPIObjectPath* object : listed.returned.objects)
      if (forms.insert(form_of(object)).second)
        all.push_back({sweep_.getting(object), forms.size() == 1 ? Ways::every : Ways::one});
    if (!cls.is_association()) return all;
    for (const int end : {0, 1}) {
      forms.clear();
      for (const CMPIObjectPath* object : listed.returned.objects) {
        const CMPIObjectPath* from =
            object->ft->getKey(object, cls.end(end).role, nullptr).value.ref;
        if (forms.insert(form_of(from)).second)
          add_walks(from, cls.end(end).role, forms.size() == 1 ? Ways::every : Ways::one, all);
      }
    }
    return all;
  }

  void add_walks(const CMPIObjectPath* from, const char* role, Ways ways, std::vector<Asked>& all) {
    const char* const association = GetParam()->name();
    all.push_back({sweep_.associators_of(from, association, role), ways});
    // From the other forms the ends are what differs.
    if (ways != Ways::every) return;
    all.push_back({sweep_.references_of(from, association, role), ways});
    all.push_back({sweep_.associator_names_of(from, association, role), ways});
    all.push_back({sweep_.reference_names_of(from, association, role), ways});
  }

  // The path without its numbers: objects whose paths differ in them only are found alike.
  std::string form_of(const CMPIObjectPath* object) {
    std::string form;
    for (const char character : broker_.text(object))
      if (std::string_view("0123456789ABCDEF").find(character) == std::string_view::npos)
        form += character;
    return form;
  }

  // Every object given is one of those that there are. The library's builders put a text of their
  // own where the switch does not tell what a key is made of.
  static void expect_objects_of(const std::string& what, const Texts& all, const Texts& given) {
    for (const std::string& each : given)
      EXPECT_TRUE(std::find(all.begin(), all.end(), each) != all.end() ||
                  std::any_of(all.begin(), all.end(),
                              [&](const std::string& object) { return is_same(object, each); }))
          << what << "\n"
          << each;
  }
  static bool is_same(const std::string& object, const std::string& given) {
    const Texts expected = keys_of(object);
    const Texts keys = keys_of(given);
    return std::equal(expected.begin(), expected.end(), keys.begin(), keys.end(),
                      [](const std::string& key, const std::string& told) {
                        return key == told || stands_for(told, key);
                      });
  }
  // The path or the identity in pieces, each with one key.
  static Texts keys_of(const std::string& object) {
    Texts pieces(1);
    for (const char character : object) {
      if (std::string_view(",{}[]").find(character) != std::string_view::npos) {
        pieces.emplace_back();
      } else {
        pieces.back() += character;
      }
    }
    return pieces;
  }
  static bool stands_for(const std::string& told, const std::string& key) {
    const auto value = [](const std::string& text) { return text.substr(text.find('=') + 1); };
    if (told.substr(0, told.find('=')) != key.substr(0, key.find('='))) return false;
    static const std::set<std::string> kStandIns = {
        "\"PHYSICAL_FABRIC\"",
        "\"error during get vsan id\"",
        "\"N/A\"",
        "\"\"",
        "null",
        "\"1\""  // the VSAN of a zone service, for its WWN
    };
    return kStandIns.contains(value(told));
  }

  // Undisturbed, it succeeds and gives something.
  Outcome whole(const Operation& operation) {
    Outcome outcome = sweep_.run(operation);
    EXPECT_EQ(outcome.code, CMPI_RC_OK) << operation.name << ": " << outcome.message;
    EXPECT_FALSE(outcome.returned.paths.empty() && outcome.returned.instances.empty())
        << operation.name;
    return outcome;
  }
};

TEST_P(ClassSweep, EveryFailingAllocation) {
  for (const Asked& asked : operations()) {
    const Operation& operation = asked.operation;
    const Outcome undisturbed = whole(operation);
    const size_t failed = sweep_.sweep_allocations(
        operation, undisturbed, [&](const Outcome& outcome, const std::string& what) {
          EXPECT_EQ(outcome.code, CMPI_RC_ERR_FAILED) << what;
          OperationSweep::expect_objects_of(what, undisturbed.returned, outcome.returned);
        });
    EXPECT_GT(failed, 0u) << operation.name;
  }
}

TEST_P(ClassSweep, EveryFailingExchange) {
  size_t failed = 0;
  for (const Asked& asked : operations()) {
    const Operation& operation = asked.operation;
    const Outcome undisturbed = whole(operation);
    failed += sweep_exchanges(
        operation, asked.ways, undisturbed, [&](const Outcome& outcome, const std::string& what) {
          EXPECT_TRUE(outcome.code == CMPI_RC_OK || outcome.code == CMPI_RC_ERR_FAILED ||
                      outcome.code == CMPI_RC_ERR_NOT_FOUND)
              << what << ": " << outcome.message;
          expect_objects_of(what, undisturbed.returned.paths, outcome.returned.paths);
          expect_objects_of(what, undisturbed.returned.identities, outcome.returned.identities);
        });
  }
  EXPECT_GT(failed, 0u);
}

std::string name_of(const testing::TestParamInfo<const Class*>& info) {
  return info.param->name();
}

auto each_of(ClassTable classes) {
  return testing::ValuesIn(classes.begin(), classes.end());
}

INSTANTIATE_TEST_SUITE_P(Switch, ClassSweep, each_of(vexor::providers::switch_classes()), name_of);
INSTANTIATE_TEST_SUITE_P(Port, ClassSweep, each_of(vexor::providers::port_classes()), name_of);
INSTANTIATE_TEST_SUITE_P(Zoning, ClassSweep, each_of(vexor::providers::zoning_classes()), name_of);
INSTANTIATE_TEST_SUITE_P(Hardware, ClassSweep, each_of(vexor::providers::hardware_classes()),
                         name_of);

}  // namespace
}  // namespace provider_sweeps
