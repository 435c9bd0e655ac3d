// Whatever fails on the way, the client gets a status with a sentence, the lock is free, and
// nothing is left on the heap.
#include "tests/providers/operation_sweep.h"
#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using test_support::HeapLedger;

class ProviderFailures : public ProviderFixture {
 protected:
  // One request of each kind.
  std::vector<Operation> operations() {
    const auto* vsan = vsan_path("2002000DEC0A1B2D");
    const auto* collections = broker_.path("VEXOR_ConnectivityCollection");
    const auto* collection = broker_.path("VEXOR_ConnectivityCollection", {{"InstanceID", "2"}});
    auto* link = broker_.path("VEXOR_ContainedDomain");
    broker_.add_reference(link, "GroupComponent", fabric_path());
    broker_.add_reference(link, "PartComponent", vsan_path("2002000DEC0A1B2D"));
    static const char* list[] = {"Status", nullptr};
    return {sweep_.names_of(broker_.path("VEXOR_Vsan")),
            sweep_.instances_of(broker_.path("VEXOR_Vsan"), list),
            sweep_.instances_of(broker_.path("VEXOR_ContainedDomain")),
            sweep_.instances_of(collections),
            sweep_.getting(collection),
            sweep_.getting(vsan),
            sweep_.getting(fabric_path()),
            sweep_.getting(link),
            sweep_.associators_of(fabric_path(), nullptr),
            sweep_.associators_of(vsan, "VEXOR_ContainedDomain"),
            sweep_.references_of(vsan, "VEXOR_ContainedDomain"),
            sweep_.reference_names_of(fabric_path(), nullptr)};
  }

  OperationSweep sweep_{broker_, instances_, associations_, methods_};
};

TEST_F(ProviderFailures, EveryFailingAllocationIsReportedAndLeavesNothing) {
  for (const Operation& operation : operations()) {
    const Outcome whole = sweep_.run(operation);
    ASSERT_EQ(whole.code, CMPI_RC_OK) << operation.name;
    const size_t failed = sweep_.sweep_allocations(
        operation, whole, [&](const Outcome& outcome, const std::string& what) {
          EXPECT_EQ(outcome.code, CMPI_RC_ERR_FAILED) << what;
          // What was returned until then is a beginning of the whole.
          EXPECT_LE(outcome.returned.paths.size(), whole.returned.paths.size());
          EXPECT_LE(outcome.returned.instances.size(), whole.returned.instances.size());
          for (size_t i = 0; i < outcome.returned.instances.size(); ++i)
            EXPECT_EQ(outcome.returned.instances[i], whole.returned.instances[i]) << what;
        });
    EXPECT_GT(failed, 2u) << operation.name;
  }
}

TEST_F(ProviderFailures, EveryFailingExchangeEndsInAClearStatusAndLeavesNothing) {
  for (const Operation& operation : operations()) {
    const size_t before = switch_.calls();
    ASSERT_EQ(sweep_.run(operation).code, CMPI_RC_OK) << operation.name;
    const size_t exchanges = switch_.calls() - before;
    EXPECT_GT(exchanges, 0u) << operation.name;
    for (size_t n = 1; n <= exchanges; ++n) {
      switch_.responder().fail_nth_exchange(n);
      sweep_.run(operation);
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
