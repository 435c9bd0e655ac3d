// The providers on a small fabric of the simulated switch, with the n-th allocation or the n-th
// exchange failing.
#ifndef TESTS_PROVIDER_SWEEPS_SWEEP_FIXTURE_H
#define TESTS_PROVIDER_SWEEPS_SWEEP_FIXTURE_H

#include <cerrno>
#include <optional>

#include "simulator/control/control.h"
#include "tests/providers/operation_sweep.h"

namespace provider_sweeps {

namespace control = switch_sim::control;
using namespace provider_tests;
using switch_sim::Fault;

// The default fabric without what is there more than once: VSAN 1, two switches and the link
// between them, a device and an Ethernet port of the own one, two modules, and a zone set, a zone
// and an alias that are active.
switch_sim::Fabric small_fabric();

// Tells the ledger's allocations of providers and library from those of the switch.
class SwitchWorksApart : public switch_sim::CallWatcher {
 public:
  SwitchWorksApart() { control::watch_calls(this); }
  ~SwitchWorksApart() override { control::watch_calls(nullptr); }
  SwitchWorksApart(const SwitchWorksApart&) = delete;
  SwitchWorksApart& operator=(const SwitchWorksApart&) = delete;
  void enter() override { works_.emplace(); }
  void leave() override { works_.reset(); }

 private:
  std::optional<test_support::HeapLedger::GivingOut> works_;
};

// How an exchange fails: in every way, or in one of them, another for the next exchange.
enum class Ways { every, one };

class ProviderSweep : public ProviderObjects {
 protected:
  ProviderSweep() {
    broker_.know_superclasses();
    start_anew();
  }
  ~ProviderSweep() override { control::reset(); }

  static void start_anew() {
    control::reset();
    EXPECT_EQ(control::install(small_fabric()), std::nullopt);
    control::freeze_counters(true);
  }

  // An operation with its n-th exchange failing, for each of its exchanges. Calls
  // judge(const Outcome&, const std::string& what) after each. Undisturbed again, it gives `whole`.
  // Result: how many failures there were.
  template <class Judge>
  size_t sweep_exchanges(const Operation& operation, Ways ways, const Outcome& whole, Judge judge) {
    constexpr size_t kTriedAgain = 5;  // after so many failures
    const std::vector<Fault> faults = failing_exchanges(operation, ways);
    for (size_t i = 0; i < faults.size(); ++i) {
      const std::string what = operation.name + ", " + name_of(faults[i]);
      judge(run_with(faults[i], operation), what);
      if (i % kTriedAgain == 0 || i + 1 == faults.size())
        OperationSweep::expect_same("after " + what, whole, sweep_.run(operation));
    }
    return faults.size();
  }

  // How each exchange of an operation can fail. It is run to find them.
  std::vector<Fault> failing_exchanges(const Operation& operation, Ways ways);
  static std::string name_of(const Fault& fault);

  Outcome run_with(const Fault& fault, const Operation& operation);

  SwitchWorksApart switch_works_apart_;
  OperationSweep sweep_{broker_, instances_, associations_, methods_};
};

}  // namespace provider_sweeps

#endif
