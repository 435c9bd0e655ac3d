// Whatever fails on the way, the client gets a status with a sentence, the lock is free, and
// nothing is left on the heap.
#include <functional>

#include "tests/providers/provider_fixture.h"
#include "tests/support/heap_ledger.h"

namespace {

using namespace provider_tests;
using test_support::FailingAllocation;
using test_support::HeapLedger;

class ProviderFailures : public ProviderFixture {
 protected:
  // One request of each kind, prepared outside the ledger.
  struct Operation {
    const char* name;
    std::function<CMPIStatus(const CMPIResult*)> run;
  };

  std::vector<Operation> operations() {
    const auto* vsans = broker_.path("VEXOR_Vsan");
    const auto* contained = broker_.path("VEXOR_ContainedDomain");
    const auto* vsan = vsan_path("2002000DEC0A1B2D");
    const auto* fabric = fabric_path();
    const auto* collections = broker_.path("VEXOR_ConnectivityCollection");
    const auto* collection = broker_.path("VEXOR_ConnectivityCollection", {{"InstanceID", "2"}});
    auto* link = broker_.path("VEXOR_ContainedDomain");
    broker_.add_reference(link, "GroupComponent", fabric_path());
    broker_.add_reference(link, "PartComponent", vsan_path("2002000DEC0A1B2D"));
    static const char* list[] = {"Status", nullptr};
    CMPIInstanceMI* mi = instances_;
    CMPIAssociationMI* am = associations_;
    return {
        {"names", [=](auto* to) { return mi->ft->enumerateInstanceNames(mi, nullptr, to, vsans); }},
        {"instances",
         [=](auto* to) { return mi->ft->enumerateInstances(mi, nullptr, to, vsans, list); }},
        {"links",
         [=](auto* to) { return mi->ft->enumerateInstances(mi, nullptr, to, contained, nullptr); }},
        {"get", [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, vsan, nullptr); }},
        {"get fabric",
         [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, fabric, nullptr); }},
        {"collections",
         [=](auto* to) {
           return mi->ft->enumerateInstances(mi, nullptr, to, collections, nullptr);
         }},
        {"get collection",
         [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, collection, nullptr); }},
        {"get link", [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, link, nullptr); }},
        {"associators",
         [=](auto* to) {
           return am->ft->associators(am, nullptr, to, fabric, nullptr, nullptr, nullptr, nullptr,
                                      nullptr);
         }},
        {"associators of a VSAN",
         [=](auto* to) {
           return am->ft->associators(am, nullptr, to, vsan, "VEXOR_ContainedDomain", nullptr,
                                      nullptr, nullptr, nullptr);
         }},
        {"references",
         [=](auto* to) {
           return am->ft->references(am, nullptr, to, vsan, "VEXOR_ContainedDomain", nullptr,
                                     nullptr);
         }},
        {"reference names",
         [=](auto* to) {
           return am->ft->referenceNames(am, nullptr, to, fabric, nullptr, nullptr);
         }},
    };
  }

  // A failed request says why; one that succeeded ended its result.
  void expect_clear_end(const char* operation, const CMPIStatus& status, const Returned& returned) {
    const HeapLedger::Pause pause;
    EXPECT_TRUE(lock_is_free()) << operation;
    EXPECT_EQ(returned.done, status.rc == CMPI_RC_OK ? 1 : 0) << operation;
    EXPECT_EQ(broker_.text(status.msg).empty(), status.rc == CMPI_RC_OK) << operation;
  }

  Outcome run(const Operation& operation) {
    return ask([&](const CMPIResult* result) { return operation.run(result); });
  }
};

TEST_F(ProviderFailures, EveryFailingAllocationIsReportedAndLeavesNothing) {
  for (const Operation& operation : operations()) {
    const Outcome whole = run(operation);
    ASSERT_EQ(whole.code, CMPI_RC_OK) << operation.name;
    const size_t rounds = test_support::for_every_failing_allocation([&](FailingAllocation& round) {
      Returned returned;
      const CMPIResult* result = broker_.result(returned);
      const CMPIStatus status = round.attempt([&] { return operation.run(result); });
      expect_clear_end(operation.name, status, returned);
      EXPECT_EQ(status.rc, round.was_hit() ? CMPI_RC_ERR_FAILED : CMPI_RC_OK)
          << operation.name << ", allocation " << round.n();
      // What was returned until then is a beginning of the whole.
      EXPECT_LE(returned.paths.size(), whole.returned.paths.size());
      EXPECT_LE(returned.instances.size(), whole.returned.instances.size());
      for (size_t i = 0; i < returned.instances.size(); ++i)
        EXPECT_EQ(returned.instances[i], whole.returned.instances[i]) << operation.name;
      const HeapLedger::Pause pause;
      returned = {};
    });
    EXPECT_GT(rounds, 3u) << operation.name;
  }
}

TEST_F(ProviderFailures, EveryFailingExchangeEndsInAClearStatusAndLeavesNothing) {
  for (const Operation& operation : operations()) {
    const size_t before = switch_.calls();
    ASSERT_EQ(run(operation).code, CMPI_RC_OK) << operation.name;
    const size_t exchanges = switch_.calls() - before;
    EXPECT_GT(exchanges, 0u) << operation.name;
    for (size_t n = 1; n <= exchanges; ++n) {
      switch_.responder().fail_nth_exchange(n);
      Returned returned;
      const CMPIResult* result = broker_.result(returned);
      const HeapLedger ledger;
      const CMPIStatus status = operation.run(result);
      expect_clear_end(operation.name, status, returned);
      const HeapLedger::Pause pause;
      returned = {};
    }
  }
}

TEST_F(ProviderFailures, VsansThatCannotBeCountedFailTheRequest) {
  switch_.responder().fail_nth_exchange(1);
  const Outcome answer = enumerate("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the VSAN manager does not give its VSANs");
  EXPECT_TRUE(answer.returned.instances.empty());
}

TEST_F(ProviderFailures, AReadThatFailsOnTheWayEndsTheList) {
  switch_.responder().fail_nth_exchange(3);
  const Outcome answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK);
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1}));
}

TEST_F(ProviderFailures, AVsanManagerThatDoesNotAnswerIsNotAMissingVsan) {
  switch_.responder().fail_nth_exchange(1, -1, 62);
  const Outcome answer = get(vsan_path("2001000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the VSAN manager does not answer (status -1)");
}

TEST_F(ProviderFailures, AnActiveVsanWithoutItsDomainManagerCannotBeCompared) {
  switch_.responder().fail_nth_exchange(2);
  const Outcome answer = get(vsan_path("2001000DEC0A1B2D"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the domain manager does not tell the WWN of VSAN 1");
}

TEST_F(ProviderFailures, APathThatTheBrokerCannotMakeFailsTheRequest) {
  broker_.fail_path(2);
  const Outcome answer = names("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "an object path of VEXOR_Vsan cannot be made");
  EXPECT_EQ(answer.returned.paths, (Texts{kVsan1}));
}

TEST_F(ProviderFailures, AnInstanceThatTheBrokerCannotMakeFailsTheRequest) {
  broker_.fail_instance(1);
  const Outcome answer = enumerate("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "an instance of VEXOR_Vsan cannot be made");
}

TEST_F(ProviderFailures, AResultThatTakesNoMoreEndsTheRequestWithItsStatus) {
  broker_.fail_return(2, CMPI_RC_ERR_ACCESS_DENIED);
  const Outcome instances = enumerate("VEXOR_Vsan");
  EXPECT_EQ(instances.code, CMPI_RC_ERR_ACCESS_DENIED);
  EXPECT_EQ(instances.message, "the instance was not taken");
  EXPECT_EQ(instances.returned.instances, (Texts{kVsan1Instance}));
  broker_.fail_return(1, CMPI_RC_ERROR_SYSTEM);
  const Outcome paths = names("VEXOR_Vsan");
  EXPECT_EQ(paths.code, CMPI_RC_ERROR_SYSTEM);
  EXPECT_EQ(paths.message, "the object path was not taken");
  broker_.fail_return(3, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(names("VEXOR_Vsan").message, "the end of the result was not taken");
}

TEST_F(ProviderFailures, APropertyThatTheBrokerRefusesIsMissingAndNothingElse) {
  broker_.fail_property(4);
  EXPECT_EQ(get(vsan_path("2001000DEC0A1B2D")).returned.instances,
            (Texts{"VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", NameFormat=\"WWN\", "
                   "ElementName=\"VSAN0001\", Status=\"Up\", CreationClassName=\"VEXOR_Vsan\", "
                   "LoadBalancingType=\"src-id/dst-id/ox-id\"}"}));
}

TEST_F(ProviderFailures, ALockThatCannotBeTakenFailsTheRequestBeforeTheSwitchIsAsked) {
  const pthread_mutex_t checking = PTHREAD_ERRORCHECK_MUTEX_INITIALIZER_NP;
  const pthread_mutex_t plain = PTHREAD_MUTEX_INITIALIZER;
  global_mutex = checking;
  ASSERT_EQ(mutex_lock(), 0);  // a second lock on this thread is an error now
  Returned returned;
  const CMPIStatus status = instances_->ft->enumerateInstanceNames(
      instances_, nullptr, broker_.result(returned), broker_.path("VEXOR_Vsan"));
  ASSERT_EQ(mutex_unlock(), 0);
  global_mutex = plain;
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(broker_.text(status.msg), "the lock cannot be taken (error 35)");
  EXPECT_EQ(switch_.calls(), 0u);
}

TEST_F(ProviderFailures, AProviderObjectThatCannotBeAllocatedIsNullWithAReason) {
  const auto expect_reason = [this](auto factory) {
    CMPIStatus status{CMPI_RC_OK, nullptr};
    HeapLedger ledger;
    ledger.fail_nth(1);
    EXPECT_EQ(factory(broker_.face(), nullptr, "VexorProvider", &status), nullptr);
    EXPECT_TRUE(ledger.failure_was_hit());
    const HeapLedger::Pause pause;
    EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(broker_.text(status.msg), "there is not enough memory");
  };
  expect_reason(_Generic_Create_InstanceMI);
  expect_reason(_Generic_Create_AssociationMI);
  expect_reason(_Generic_Create_MethodMI);
}

}  // namespace
