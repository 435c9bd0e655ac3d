// References while services refuse. The library then makes a key of a fixed text that names no
// object: it, and no other, may lead nowhere.
#include <optional>
#include <set>
#include <string>

#include "host/cim_error.h"
#include "host/object_path.h"
#include "simulator/control/control.h"
#include "simulator/transport/hardware_messages.h"
#include "tests/conformance/graph.h"

namespace conformance {
namespace {

namespace control = switch_sim::control;
using cim::host::CimError;
using cim::host::Instance;
using cim::host::NamedData;
using cim::host::ObjectPath;
using cim::host::PathPtr;
using switch_sim::Fault;

// What stands in a key for what a service refused, and names nothing. The other fixed texts
// ("none", "unknown system", an empty one) stand beside keys that name the object by themselves.
const std::set<std::string> kExempt = {"error during get vsan id"};

struct Refusal {
  const char* name;
  std::vector<Fault> faults;
};

Fault refused(uint32_t opcode, std::optional<Fault::Word> word = std::nullopt) {
  Fault fault;
  fault.opcode = opcode;
  fault.word = word;
  fault.value = 0x40300002;
  return fault;
}

const std::vector<Refusal>& refusals() {
  static const std::vector<Refusal> all = {
      {"nothing", {}},
      {"the domain manager's configuration of VSAN 2", {refused(264, Fault::Word{0, 2})}},
      {"the domain manager's configuration", {refused(264)}},
      {"the domain database", {refused(267)}},
      {"the elements of VSAN 2", {refused(1401, Fault::Word{0, 2})}},
      {"each element of VSAN 1", {refused(1402, Fault::Word{4, 1})}},
      {"the links", {refused(53)}},
      {"the address list and the peers",
       {refused(switch_sim::kSwitchAddresses), refused(switch_sim::kDiscoverPeers)}},
      {"the serial PROM and the slots",
       {refused(switch_sim::kSerialProm), refused(switch_sim::kSlotOfEntity)}},
  };
  return all;
}

// The exempt texts among the keys of a path, those of its ends included.
void add_exempt(const ObjectPath& path, std::set<std::string>& found) {
  for (const NamedData& key : path.keys) {
    if (const auto* end = std::get_if<PathPtr>(&key.data.element)) {
      add_exempt(**end, found);
    } else if (const auto* text = std::get_if<std::string>(&key.data.element)) {
      if (kExempt.contains(*text)) found.insert(*text);
    }
  }
}

class RefusedServices : public testing::Test {
 protected:
  RefusedServices() {
    control::reset();
    EXPECT_EQ(std::nullopt,
              control::install_generated("switches=2,ports=6,vsans=2,devices=4,zones=1,members=2"));
  }
  ~RefusedServices() override { control::reset(); }

  // Asks for an object that a reference names, once.
  void follow(const ObjectPath& path, const std::string& whence) {
    if (!asked_.insert(name_of(path)).second) return;
    try {
      manager().get_instance(path);
      return;
    } catch (const CimError& error) {
      // Another code says that a service refused.
      if (error.code() != CMPI_RC_ERR_NOT_FOUND) return;
    }
    std::set<std::string> exempt;
    add_exempt(path, exempt);
    if (exempt.empty()) problems_.push_back(name_of(path) + "\n  from " + whence);
    needed_.insert(exempt.begin(), exempt.end());
  }

  void follow_all(const Refusal& refusal) {
    asked_.clear();
    for (const cim::schema::Class* cls : classes()) {
      if (!cls->is_association) continue;
      try {
        for (const Instance& instance : manager().enumerate_instances("root/cimv2", cls->name))
          for (const NamedData& property : instance.properties)
            if (const auto* path = std::get_if<PathPtr>(&property.data.element))
              follow(**path, cls->name + ", refused: " + refusal.name);
      } catch (const CimError& error) {
        // Only a refusal is a reason to tell nothing.
        if (refusal.faults.empty() || error.code() == CMPI_RC_ERR_NOT_FOUND ||
            error.what()[0] == '\0')
          problems_.push_back(cls->name + ": " + error.what());
      }
    }
    if (refusal.faults.empty() && asked_.empty()) problems_.push_back("no reference is told");
  }

  Texts problems_;
  std::set<std::string> needed_;

 private:
  std::set<std::string> asked_;
};

TEST_F(RefusedServices, ReferencesLeadSomewhereButForTheirFixedTexts) {
  {
    const Quiet quiet;
    for (const Refusal& refusal : refusals()) {
      control::set_faults(refusal.faults);
      follow_all(refusal);
    }
  }
  std::string told;
  for (const std::string& problem : problems_)
    told += problem + "\n";
  EXPECT_EQ("", told);
  EXPECT_EQ(kExempt, needed_) << "an exemption that is not needed";
}

}  // namespace
}  // namespace conformance
