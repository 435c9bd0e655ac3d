// Requests of clients with something failing on the way: what is prepared, how each has to end,
// and the sweep over every allocation. Whatever a test stands on (a script, a responder, the
// simulated switch), it sweeps with these.
#ifndef TESTS_PROVIDERS_OPERATION_SWEEP_H
#define TESTS_PROVIDERS_OPERATION_SWEEP_H

#include <algorithm>
#include <functional>
#include <string>

#include "tests/providers/provider_objects_fixture.h"
#include "tests/support/heap_ledger.h"

namespace provider_tests {

// One request, prepared outside of any ledger.
struct Operation {
  std::string name;
  std::function<CMPIStatus(const CMPIResult*)> run;
};

class OperationSweep {
 public:
  using Path = const CMPIObjectPath*;

  OperationSweep(TestBroker& broker, CMPIInstanceMI* instances, CMPIAssociationMI* associations,
                 CMPIMethodMI* methods)
      : broker_(broker), instances_(instances), associations_(associations), methods_(methods) {}

  // ---- requests ----
  Operation names_of(Path cls) {
    return {"names of " + broker_.text(cls), [mi = instances_, cls](const CMPIResult* to) {
              return mi->ft->enumerateInstanceNames(mi, nullptr, to, cls);
            }};
  }
  Operation instances_of(Path cls, const char** properties = nullptr) {
    return {"instances of " + broker_.text(cls),
            [mi = instances_, cls, properties](const CMPIResult* to) {
              return mi->ft->enumerateInstances(mi, nullptr, to, cls, properties);
            }};
  }
  Operation getting(Path object) {
    return {"get " + broker_.text(object), [mi = instances_, object](const CMPIResult* to) {
              return mi->ft->getInstance(mi, nullptr, to, object, nullptr);
            }};
  }
  Operation associators_of(Path object, const char* association, const char* role = nullptr) {
    return {"associators" + walk(object, association),
            [mi = associations_, object, association, role](const CMPIResult* to) {
              return mi->ft->associators(mi, nullptr, to, object, association, nullptr, role,
                                         nullptr, nullptr);
            }};
  }
  Operation associator_names_of(Path object, const char* association, const char* role = nullptr) {
    return {"associator names" + walk(object, association),
            [mi = associations_, object, association, role](const CMPIResult* to) {
              return mi->ft->associatorNames(mi, nullptr, to, object, association, nullptr, role,
                                             nullptr);
            }};
  }
  Operation references_of(Path object, const char* association, const char* role = nullptr) {
    return {"references" + walk(object, association),
            [mi = associations_, object, association, role](const CMPIResult* to) {
              return mi->ft->references(mi, nullptr, to, object, association, role, nullptr);
            }};
  }
  Operation reference_names_of(Path object, const char* association, const char* role = nullptr) {
    return {"reference names" + walk(object, association),
            [mi = associations_, object, association, role](const CMPIResult* to) {
              return mi->ft->referenceNames(mi, nullptr, to, object, association, role);
            }};
  }
  Operation creating(Path cls, const CMPIInstance* values) {
    return {"create " + broker_.text(cls), [mi = instances_, cls, values](const CMPIResult* to) {
              return mi->ft->createInstance(mi, nullptr, to, cls, values);
            }};
  }
  Operation modifying(Path object, const CMPIInstance* values) {
    return {"modify " + broker_.text(object),
            [mi = instances_, object, values](const CMPIResult* to) {
              return mi->ft->modifyInstance(mi, nullptr, to, object, values, nullptr);
            }};
  }
  Operation deleting(Path object) {
    return {"delete " + broker_.text(object), [mi = instances_, object](const CMPIResult* to) {
              return mi->ft->deleteInstance(mi, nullptr, to, object);
            }};
  }
  Operation invoking(Path object, const char* method, const CMPIArgs* in) {
    return {std::string("invoke ") + method,
            [mi = methods_, object, method, in, this](const CMPIResult* to) {
              return mi->ft->invokeMethod(mi, nullptr, to, object, method, in, broker_.arguments());
            }};
  }

  // ---- ends ----

  // What a request ended with. A failed one says why; one that succeeded ended its result; the
  // library's lock is free.
  Outcome clear_end(const std::string& operation, const CMPIStatus& status, Returned returned) {
    EXPECT_TRUE(lock_is_free()) << operation;
    EXPECT_EQ(returned.done, status.rc == CMPI_RC_OK ? 1 : 0) << operation;
    EXPECT_EQ(broker_.text(status.msg).empty(), status.rc == CMPI_RC_OK) << operation;
    return {status.rc, broker_.text(status.msg), std::move(returned)};
  }

  // Every object of `part` is one of `whole`. What an instance tells beside its keys may differ.
  static void expect_objects_of(const std::string& what, const Returned& whole,
                                const Returned& part) {
    const auto expect_among = [&](const Texts& all, const Texts& given) {
      for (const std::string& each : given)
        EXPECT_NE(std::find(all.begin(), all.end(), each), all.end()) << what << "\n" << each;
      EXPECT_LE(given.size(), all.size()) << what;
    };
    expect_among(whole.paths, part.paths);
    expect_among(whole.identities, part.identities);
  }
  static void expect_same(const std::string& what, const Outcome& expected, const Outcome& actual) {
    EXPECT_EQ(actual.code, expected.code) << what << ": " << actual.message;
    EXPECT_EQ(actual.returned.paths, expected.returned.paths) << what;
    EXPECT_EQ(actual.returned.instances, expected.returned.instances) << what;
    EXPECT_EQ(actual.returned.data, expected.returned.data) << what;
  }

  // ---- runs ----

  // With nothing left on the heap. What the broker made for it is ended, the paths in
  // Outcome::returned too.
  Outcome run(const Operation& operation) {
    const auto made = broker_.made();
    Returned returned;
    const CMPIResult* result = broker_.result(returned);
    const test_support::HeapLedger ledger;
    const CMPIStatus status = operation.run(result);
    const test_support::HeapLedger::Pause pause;
    Outcome outcome = clear_end(operation.name, status, std::move(returned));
    broker_.end_objects_since(made);
    outcome.returned.objects.clear();
    return outcome;
  }

  // With the first, the second, ... allocation failing, until none does. Calls
  // judge(const Outcome&, const std::string& what) after each that failed, with what it was, and
  // expects `whole` of the last. Result: the allocations that failed.
  template <class Judge>
  size_t sweep_allocations(const Operation& operation, const Outcome& whole, Judge judge) {
    using namespace test_support;
    return for_every_failing_allocation([&](FailingAllocation& round) {
             const auto made = broker_.made();
             Returned returned;
             const CMPIResult* result = broker_.result(returned);
             const CMPIStatus status = round.attempt([&] { return operation.run(result); });
             const HeapLedger::Pause pause;
             const std::string what = operation.name + ", allocation " + std::to_string(round.n());
             const Outcome outcome = clear_end(what, status, std::move(returned));
             if (round.was_hit())
               judge(outcome, what);
             else
               expect_same(what, whole, outcome);
             broker_.end_objects_since(made);
           }) -
           1;
  }

 private:
  std::string walk(Path object, const char* association) const {
    return " of " + broker_.text(object) + " by " +
           (association != nullptr ? association : "any association");
  }

  TestBroker& broker_;
  CMPIInstanceMI* instances_;
  CMPIAssociationMI* associations_;
  CMPIMethodMI* methods_;
};

}  // namespace provider_tests

#endif
