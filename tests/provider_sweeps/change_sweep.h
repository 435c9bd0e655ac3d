// Changes with an allocation or an exchange failing on the way: the fabric is then as it was, or as
// it is after the whole change.
#ifndef TESTS_PROVIDER_SWEEPS_CHANGE_SWEEP_H
#define TESTS_PROVIDER_SWEEPS_CHANGE_SWEEP_H

#include "tests/provider_sweeps/sweep_fixture.h"

namespace provider_sweeps {

class ChangeSweep : public ProviderSweep {
 protected:
  // The fabric that every round begins with.
  switch_sim::Fabric begin_ = control::fabric();

  // The change succeeds, returns `returned` ("uint32 0"; empty: it is no method) and changes
  // something; with any allocation or exchange failing, it does all or nothing, and what it tells
  // is true.
  void expect_all_or_nothing(const Operation& change, const std::string& returned = "") {
    begin_text_ = control::fabric_text();
    const Outcome undisturbed = sweep_.run(change);
    EXPECT_EQ(undisturbed.code, CMPI_RC_OK) << change.name << ": " << undisturbed.message;
    if (!returned.empty()) {
      EXPECT_EQ(undisturbed.returned.data, Texts{returned}) << change.name;
    }
    end_ = control::fabric_text();
    EXPECT_NE(begin_text_, end_) << change.name;
    begin_again();
    const size_t failed = sweep_.sweep_allocations(
        change, undisturbed, [&](const Outcome& outcome, const std::string& what) {
          EXPECT_NE(outcome.code, CMPI_RC_OK) << what;
          expect_all_or_nothing(what);
          begin_again();
        });
    EXPECT_GT(failed, 0u) << change.name;
    begin_again();
    sweep_exchanges(change, undisturbed);
  }

 private:
  void sweep_exchanges(const Operation& change, const Outcome& undisturbed) {
    const auto faults = failing_exchanges(change, Ways::every);
    EXPECT_FALSE(faults.empty()) << change.name;
    begin_again();
    for (const Fault& fault : faults) {
      const std::string what = change.name + ", " + name_of(fault);
      const Outcome outcome = run_with(fault, change);
      expect_all_or_nothing(what);
      const bool is_done = control::fabric_text() == end_;
      // A change that was made may be told as failed, when its answer was lost; never the reverse.
      if (outcome.code == CMPI_RC_OK && outcome.returned.data == undisturbed.returned.data) {
        EXPECT_TRUE(is_done) << what;
      }
      if (!is_done) {
        OperationSweep::expect_same("after " + what, undisturbed, sweep_.run(change));
        EXPECT_EQ(control::fabric_text(), end_) << "after " << what;
      }
      begin_again();
    }
  }

  void expect_all_or_nothing(const std::string& what) const {
    const std::string now = control::fabric_text();
    EXPECT_TRUE(now == begin_text_ || now == end_) << what << ": the change was made in part";
  }
  void begin_again() { EXPECT_EQ(control::install(begin_), std::nullopt); }

  // As files tell them: without the numbers that the zone server gives to members.
  std::string begin_text_;
  std::string end_;
};

}  // namespace provider_sweeps

#endif
