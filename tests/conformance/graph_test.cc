#include "tests/conformance/graph.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <map>
#include <set>

#include "host/cim_error.h"
#include "host/object_path.h"
#include "simulator/control/control.h"

namespace conformance {

using cim::host::CimError;
using cim::host::Data;
using cim::host::Instance;
using cim::host::NamedData;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using cim::host::PathPtr;

const cim::schema::Repository& repository() {
  static const cim::schema::Repository* const loaded = [] {
    auto* made = new cim::schema::Repository;
    const auto errors = made->add_file(CIM_SOURCE_DIR "/mof/vexor.mof");
    EXPECT_TRUE(errors.empty()) << errors.front().text();
    return made;
  }();
  return *loaded;
}

ObjectManager& manager() {
  static ObjectManager* const made = [] {
    cim::host::Settings settings;
    settings.providers.push_back({"VexorProvider", PROVIDERS_LIBRARY, "VEXOR_"});
    return new ObjectManager(repository(), settings);
  }();
  return *made;
}

std::vector<const cim::schema::Class*> classes() {
  std::vector<const cim::schema::Class*> found;
  for (const cim::schema::Class* cls : repository().all())
    if (cls->name.starts_with("VEXOR_") && cls->name != "VEXOR_Switch" && !cls->is_abstract)
      found.push_back(cls);
  return found;
}

namespace {

std::string key_text(const Data& data) {
  if (const auto* path = std::get_if<PathPtr>(&data.element)) return "[" + name_of(**path) + "]";
  if (const auto* text = std::get_if<std::string>(&data.element)) return *text;
  if (const auto* number = std::get_if<std::uint64_t>(&data.element))
    return std::to_string(*number);
  return "?";
}

}  // namespace

std::string name_of(const ObjectPath& path) {
  std::map<std::string, std::string> keys;
  for (const NamedData& key : path.keys)
    keys.emplace(key.name, key_text(key.data));
  std::string text = path.class_name;
  for (const auto& [name, value] : keys)
    text += "," + name + "=" + value;
  return text;
}

std::string problem_with_get(const ObjectPath& path) {
  try {
    manager().get_instance(path);
    return "";
  } catch (const CimError& error) {
    return name_of(path) + ": " + error.what();
  }
}

Quiet::Stream::Stream(FILE* of) : stream(of), saved(dup(fileno(of))) {
  fflush(stream);
  const int sink = open("/dev/null", O_WRONLY);
  dup2(sink, fileno(stream));
  close(sink);
}

Quiet::Stream::~Stream() {
  fflush(stream);
  dup2(saved, fileno(stream));
  close(saved);
}

bool OnFabrics::is_medium() {
  return std::string_view(GetParam().name) == "Medium";
}

std::size_t OnFabrics::most_gets_per_class() {
  return is_medium() ? 200 : SIZE_MAX;
}

void OnFabrics::SetUp() {
  namespace control = switch_sim::control;
  control::reset();
  const std::string description = GetParam().description;
  if (description.starts_with('/')) {
    ASSERT_EQ(std::nullopt, control::install_file(CIM_SOURCE_DIR "/tests" + description));
  } else if (!description.empty()) {
    ASSERT_EQ(std::nullopt, control::install_generated(description));
  }
  control::set_faults(GetParam().faults);
}

namespace {

// The first problems are enough to see what is wrong.
std::string first_of(const Texts& problems) {
  std::string text = std::to_string(problems.size()) + " problems\n";
  for (std::size_t i = 0; i < std::min<std::size_t>(problems.size(), 20); ++i)
    text += problems[i] + "\n";
  return text;
}

std::vector<Instance> instances_of(const cim::schema::Class& cls, Texts& problems) {
  try {
    return manager().enumerate_instances("root/cimv2", cls.name);
  } catch (const CimError& error) {
    problems.push_back(cls.name + ": " + error.what());
    return {};
  }
}

void check_instance(const cim::schema::Class& cls, const Instance& instance, Texts& problems) {
  for (const NamedData& given : instance.properties) {
    const cim::schema::Property* declared = repository().property(cls, given.name);
    if (declared == nullptr) {
      problems.push_back(cls.name + " has no property " + given.name);
    } else if (given.data.type != cim::host::cmpi_type(*declared)) {
      problems.push_back(cls.name + "." + given.name + " is a " +
                         cim::host::type_text(given.data.type));
    }
  }
  for (const cim::schema::Property* key : repository().keys(cls)) {
    const Data* value = instance.find(key->name);
    if (value == nullptr || value->null) problems.push_back(cls.name + " lacks key " + key->name);
  }
}

// Paths that were asked for already, and how that ended.
class Asked {
 public:
  explicit Asked(std::size_t most_per_class) : most_per_class_(most_per_class) {}

  void get(const ObjectPath& path, const std::string& whence) {
    if (counts_[path.class_name] == most_per_class_) return;
    if (!names_.insert(name_of(path)).second) return;
    ++counts_[path.class_name];
    const std::string problem = problem_with_get(path);
    if (!problem.empty()) problems.push_back(problem + "\n  from " + whence);
  }
  Texts problems;

 private:
  std::size_t most_per_class_;
  std::map<std::string, std::size_t> counts_;
  std::set<std::string> names_;
};

ObjectPath own_switch() {
  for (const ObjectPath& path :
       manager().enumerate_instance_names("root/cimv2", "VEXOR_FCSwitchSettings")) {
    for (const ObjectPath& owner :
         manager().associator_names(path, {"VEXOR_ElementSettingData", "", "", ""}))
      return owner;
  }
  return {};
}

// Everything that associators lead to from an object, that object included.
std::set<std::string> walk(const ObjectPath& start, Asked& asked) {
  std::set<std::string> reached = {name_of(start)};
  std::deque<ObjectPath> waiting = {start};
  while (!waiting.empty()) {
    const ObjectPath object = waiting.front();
    waiting.pop_front();
    const std::string name = name_of(object);
    try {
      for (const ObjectPath& reference : manager().reference_names(object))
        asked.get(reference, "references of " + name);
      for (const ObjectPath& other : manager().associator_names(object)) {
        asked.get(other, "associators of " + name);
        if (reached.insert(name_of(other)).second) waiting.push_back(other);
      }
    } catch (const CimError& error) {
      asked.problems.push_back("associators of " + name + ": " + error.what());
    }
  }
  return reached;
}

TEST_P(OnFabrics, EveryInstanceIsAsItsClassDeclares) {
  Texts problems;
  std::size_t count = 0;
  {
    const Quiet quiet;
    for (const cim::schema::Class* cls : classes())
      for (const Instance& instance : instances_of(*cls, problems)) {
        check_instance(*cls, instance, problems);
        ++count;
      }
  }
  EXPECT_TRUE(problems.empty()) << first_of(problems);
  EXPECT_GT(count, 100u);
}

TEST_P(OnFabrics, EveryEnumeratedPathAnswersGetOnce) {
  Texts problems;
  {
    const Quiet quiet;
    for (const cim::schema::Class* cls : classes()) {
      std::set<std::string> names;
      try {
        for (const ObjectPath& path : manager().enumerate_instance_names("root/cimv2", cls->name)) {
          if (path.class_name != cls->name) continue;  // told of its own class
          if (!names.insert(name_of(path)).second) problems.push_back("twice: " + name_of(path));
          if (names.size() > most_gets_per_class()) continue;
          const std::string problem = problem_with_get(path);
          if (!problem.empty()) problems.push_back(problem);
        }
      } catch (const CimError& error) {
        problems.push_back(cls->name + ": " + error.what());
      }
    }
  }
  EXPECT_TRUE(problems.empty()) << first_of(problems);
}

TEST_P(OnFabrics, EveryReferenceOfAnAssociationAnswersGet) {
  Asked asked(most_gets_per_class());
  {
    const Quiet quiet;
    for (const cim::schema::Class* cls : classes()) {
      if (!cls->is_association) continue;
      for (const Instance& instance : instances_of(*cls, asked.problems))
        for (const NamedData& property : instance.properties)
          if (const auto* path = std::get_if<PathPtr>(&property.data.element))
            asked.get(**path, cls->name);
    }
  }
  EXPECT_TRUE(asked.problems.empty()) << first_of(asked.problems);
}

TEST_P(OnFabrics, AWalkFromTheSwitchReachesEveryObject) {
  Asked asked(most_gets_per_class());
  Texts unreached;
  std::set<std::string> reached;
  {
    const Quiet quiet;
    reached = walk(own_switch(), asked);
    for (const cim::schema::Class* cls : classes()) {
      if (cls->is_association) continue;
      try {
        for (const ObjectPath& path : manager().enumerate_instance_names("root/cimv2", cls->name))
          if (!reached.contains(name_of(path))) unreached.push_back(name_of(path));
      } catch (const CimError& error) {
        unreached.push_back(cls->name + ": " + error.what());
      }
    }
  }
  EXPECT_GT(reached.size(), 50u);
  EXPECT_TRUE(asked.problems.empty()) << first_of(asked.problems);
  EXPECT_TRUE(unreached.empty()) << first_of(unreached);
}

std::string fabric_name(const testing::TestParamInfo<TestedFabric>& fabric) {
  return fabric.param.name;
}

constexpr const char* kOtherMakers = "/simulator/data/other_makers.json";

// The links that the switch of a domain tells are not known: of those to it, the others tell.
switch_sim::Fault links_not_told(uint32_t domain) {
  switch_sim::Fault fault;
  fault.opcode = 53;
  fault.word = {4, domain};
  fault.value = 0x40300002;
  return fault;
}

// The configuration server does not tell of switches whose WWNs begin so.
switch_sim::Fault no_element(uint32_t beginning) {
  switch_sim::Fault fault = links_not_told(0);
  fault.opcode = 1402;
  fault.word = {8, beginning};
  return fault;
}

// The record of a switch ends before its last link.
switch_sim::Fault links_cut(uint32_t domain, int32_t bytes) {
  switch_sim::Fault fault = links_not_told(domain);
  fault.kind = switch_sim::Fault::Kind::short_reply;
  fault.value = bytes;
  return fault;
}

INSTANTIATE_TEST_SUITE_P(
    Fabrics, OnFabrics,
    testing::Values(
        TestedFabric{"Default", ""},
        TestedFabric{"Mixed",
                     "switches=3,ports=12,vsans=3,devices=9,zones=2,members=4,aliases=1,seed=5"},
        TestedFabric{"Small", "switches=2,ports=48,vsans=2,devices=20,zones=50,members=125,seed=9"},
        TestedFabric{"OtherMakers", kOtherMakers},
        TestedFabric{
            "OtherMakersThatTellNoLinks", kOtherMakers, {links_not_told(5), links_not_told(6)}},
        TestedFabric{"OtherMakersThatAreNoElements", kOtherMakers, {no_element(0x10000060)}},
        TestedFabric{"LinksThatOneSideTells",
                     "",
                     {links_not_told(98), links_cut(99, 72), links_not_told(21)}},
        TestedFabric {
          "LinksThatTheOwnSwitchDoesNotTell", "", {
            links_not_told(97)
          }
        }
#ifdef NDEBUG
        // Where the tests run at full speed.
        ,
        TestedFabric{
            "Medium",
            "switches=8,ports=384,vsans=8,devices=300,zones=125,members=375,aliases=62,seed=3"}
#endif
        ),
    fabric_name);

}  // namespace
}  // namespace conformance
