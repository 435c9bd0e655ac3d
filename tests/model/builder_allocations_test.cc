// Every exported builder of both faces with its n-th allocation failing, n = 1, 2, ... until it is
// unharmed: nothing crashes, nothing is left behind. A C function returns whatever happens; of the
// Pegasus face the exception that tells of the memory is the caller's, and no other.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <new>
#include <optional>
#include <set>

#include "tests/model/builder_platform.h"
#include "tests/support/exchange_failure.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;
using namespace builders;

namespace {

// ---- the rows are the exported names

std::set<std::string> exported(bool cpp) {
  std::set<std::string> names;
  std::ifstream in(std::string(CIM_SOURCE_DIR) + "/tests/exports/public_names.txt");
  for (std::string line; std::getline(in, line);) {
    line = line.substr(0, line.find('\t'));
    if (line.starts_with("#") || line.starts_with("data ")) continue;
    if ((line.find('(') != std::string::npos) == cpp) names.insert(line);
  }
  return names;
}

template <class Row>
std::set<std::string> names_of(const std::vector<Row>& rows) {
  std::set<std::string> names;
  std::set<std::string> ids;
  for (const Row& row : rows) {
    EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    names.insert(name_of(row.id));
  }
  return names;
}

TEST(BuilderRows, AreAllBuildersOfTheCmpiFace) {
  std::set<std::string> names;
  for (const std::string& name : exported(false)) {
    const bool builds = name.find("_build_instance") != std::string::npos ||
                        name.find("_fill_reference") != std::string::npos || name == "makePath";
    if (builds) names.insert(name);
  }
  EXPECT_EQ(names.size(), 139u);
  EXPECT_EQ(names_of(cmpi_rows()), names);
}

TEST(BuilderRows, AreAllFunctionsOfThePegasusFace) {
  const std::set<std::string> names = exported(true);
  EXPECT_EQ(names_of(pegasus_rows()), names);
}

// ---- the sweeps

// What is told in place of what a service said, where there is no memory for an adaptor to read its
// reply: that of a service that does not answer.
struct Instead {
  const char* cmpi_row;
  const char* whole;
  const char* without;
};
constexpr const char* kEndAdvertised = "SystemName=200A000DEC0A1B3D";
constexpr const char* kEndFar = "SystemName=200A000DEC0A1B4D";
constexpr Instead kInstead[] = {
    // The walk over FSPF's links, and the domain manager's switch at their other end.
    {"fcport_build_instance_pm", "PeerPortWWN string 2083000DEC0A1B4C\n", ""},
    // The domain manager's switch.
    {"pe_fill_reference_fspf", "SystemName string 200A000DEC0A1B3D", "SystemName string "},
    {"pe_build_instance_fspf", "SystemName string 200A000DEC0A1B3D", "SystemName string "},
    {"active_connection_fill_reference_fspf", kEndAdvertised, "SystemName="},
    {"active_connection_fill_reference_fspf", kEndFar, "SystemName="},
    {"active_connection_build_instance_fspf", kEndAdvertised, "SystemName="},
    {"active_connection_build_instance_fspf", kEndFar, "SystemName="},
};

// Whether one text stands for the other in exactly one place, or in the two of an instance and its
// path.
bool stands_instead(const std::string& made, const std::string& whole, const Instead& instead) {
  const std::string from = instead.whole;
  std::string all = whole;
  for (size_t at = 0; (at = whole.find(from, at)) != std::string::npos; at += from.size()) {
    std::string one = whole;
    if (one.replace(at, from.size(), instead.without) == made) return true;
  }
  for (size_t at; (at = all.find(from)) != std::string::npos;)
    all.replace(at, from.size(), instead.without);
  return all == made;
}

using Seen = std::set<const Instead*>;

void expect_whole(const std::string& made, const std::string& whole, const std::string& cmpi_row,
                  const FailingAllocation& round, Seen& seen) {
  const auto fits = [&](const Instead& instead) {
    return cmpi_row == instead.cmpi_row && stands_instead(made, whole, instead);
  };
  const auto* const found = std::find_if(std::begin(kInstead), std::end(kInstead), fits);
  if (round.was_hit() && found != std::end(kInstead)) {
    const HeapLedger::Pause pause;
    seen.insert(found);
    return;
  }
  EXPECT_EQ(made, whole) << "allocation " << round.n();
}

// What is told for the rows is needed.
void expect_needed(const std::set<std::string>& cmpi_rows, const Seen& seen) {
  for (const Instead& instead : kInstead) {
    if (cmpi_rows.contains(instead.cmpi_row)) {
      EXPECT_TRUE(seen.contains(&instead)) << instead.cmpi_row << ": " << instead.whole;
    }
  }
}

class CmpiBuilderAllocations : public testing::TestWithParam<Area> {
 protected:
  BuilderPlatform platform_{kQueue, kUnbound};
};

TEST_P(CmpiBuilderAllocations, EveryFailingOneMakesAWholeObjectOrNone) {
  size_t swept = 0;
  size_t rounds = 0;
  std::set<std::string> ids;
  Seen seen;
  for (const CmpiRow& row : cmpi_rows()) {
    if (row.area != GetParam()) continue;
    SCOPED_TRACE(row.id);
    ++swept;
    ids.insert(row.id);
    const std::string expected = whole(row);
    ASSERT_NE(expected, "nothing");
    rounds += for_every_failing_allocation([&](FailingAllocation& round) {
      RecordingBroker broker;
      broker.write_down(false);
      Script script;
      lines_may_be_left(script);
      row.lines(script, mts_q);
      std::optional<CmpiObject> object;
      round.attempt([&] {
        try {
          object = row.make(broker);
        } catch (...) {  // would end the process of a provider written in C
          ADD_FAILURE() << "allocation " << round.n() << ": an exception";
        }
      });
      const bool made = object.has_value() && object->made();
      EXPECT_TRUE(made || round.was_hit()) << "allocation " << round.n();
      if (made) expect_whole(text_of(broker, *object), expected, row.id, round, seen);
    });
  }
  EXPECT_GT(swept, 5u);
  if (GetParam() != Area::others) {
    EXPECT_GT(rounds, swept);  // the last round of each is unharmed
  }
  expect_needed(ids, seen);
}

class PegasusBuilderAllocations : public testing::TestWithParam<Area> {
 protected:
  BuilderPlatform platform_{kOtherFacesQueue, kQueue};
};

TEST_P(PegasusBuilderAllocations, EveryFailingOneMakesAWholeObjectOrIsTheCallersException) {
  size_t swept = 0;
  std::set<std::string> counterparts;
  Seen seen;
  for (const PegasusRow& row : pegasus_rows()) {
    if (row.area != GetParam()) continue;
    SCOPED_TRACE(row.id);
    ++swept;
    counterparts.insert(row.counterpart);
    const std::string expected = whole(row);
    const size_t rounds = for_every_failing_allocation([&](FailingAllocation& round) {
      Script script;
      lines_may_be_left(script);
      row.lines(script, mts_q);
      std::optional<PegasusObject> object;
      round.attempt([&] {
        try {
          object = row.make();
        } catch (const std::bad_alloc&) {
        } catch (...) {
          ADD_FAILURE() << "allocation " << round.n() << ": another exception";
        }
      });
      EXPECT_TRUE(object.has_value() || round.was_hit()) << "allocation " << round.n();
      if (object.has_value())
        expect_whole(text_of(*object), expected, row.counterpart, round, seen);
    });
    if (GetParam() != Area::others) {
      EXPECT_GT(rounds, 5u);
    }
  }
  EXPECT_GT(swept, 15u);
  expect_needed(counterparts, seen);
}

std::string name_of_parameter(const testing::TestParamInfo<Area>& area) {
  return name_of_area(area.param);
}

INSTANTIATE_TEST_SUITE_P(Each, CmpiBuilderAllocations, testing::ValuesIn(kAreas),
                         name_of_parameter);
INSTANTIATE_TEST_SUITE_P(Each, PegasusBuilderAllocations, testing::ValuesIn(kAreas),
                         name_of_parameter);

}  // namespace
