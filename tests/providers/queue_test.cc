// The response queue: bound at the first request, released by the last provider object.
// Each of these tests needs a process of its own.
#include "tests/providers/provider_fixture.h"
#include "tests/support/platform_double.h"

namespace {

using namespace provider_tests;
using namespace test_support;

class ProviderQueue : public testing::Test {
 protected:
  Outcome names(CMPIInstanceMI* mi) {
    Outcome answer;
    const CMPIStatus status = mi->ft->enumerateInstanceNames(
        mi, nullptr, broker_.result(answer.returned), broker_.path("VEXOR_Vsan"));
    answer.code = status.rc;
    answer.message = broker_.text(status.msg);
    EXPECT_TRUE(lock_is_free());
    return answer;
  }
  CMPIInstanceMI* make() {
    return _Generic_Create_InstanceMI(broker_.face(), nullptr, "VexorProvider", nullptr);
  }

  OsDouble system_;
  StdioCapture out_;
  TestBroker broker_;
  SwitchDouble switch_{2};
  Script script_;
};

TEST_F(ProviderQueue, IsBoundByTheFirstRequestAndReleasedByTheLastCleanup) {
  CMPIInstanceMI* instances = make();
  CMPIAssociationMI* associations =
      _Generic_Create_AssociationMI(broker_.face(), nullptr, "VexorProvider", nullptr);
  CMPIMethodMI* methods =
      _Generic_Create_MethodMI(broker_.face(), nullptr, "VexorProvider", nullptr);
  CMPIInstanceMI* other = make();
  EXPECT_EQ(script_.calls(), 0u);

  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(instances).code, CMPI_RC_OK);
  EXPECT_EQ(names(other).code, CMPI_RC_OK);
  EXPECT_EQ(names(instances).code, CMPI_RC_OK);
  script_.verify();

  EXPECT_EQ(instances->ft->cleanup(instances, nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(methods->ft->cleanup(methods, nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(other->ft->cleanup(other, nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(script_.calls(), 1u);
  script_.expect(unbind(kQueue)).returns(0);
  EXPECT_EQ(associations->ft->cleanup(associations, nullptr, 1).rc, CMPI_RC_OK);
}

TEST_F(ProviderQueue, IsNotTouchedByProviderObjectsThatServedNothing) {
  CMPIInstanceMI* mi = make();
  EXPECT_EQ(mi->ft->cleanup(mi, nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(script_.calls(), 0u);
}

TEST_F(ProviderQueue, ThatWasNeverBoundIsBoundForALaterProviderObject) {
  CMPIInstanceMI* unused = make();
  unused->ft->cleanup(unused, nullptr, 1);
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(mi).code, CMPI_RC_OK);
  script_.expect(unbind(kQueue)).returns(0);
  mi->ft->cleanup(mi, nullptr, 1);
}

TEST_F(ProviderQueue, ThatCannotBeBoundFailsTheRequestAndIsTriedAgain) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).fails(-1).with_errno(24);
  const Outcome answer = names(mi);
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the switch's response queue cannot be bound");
  EXPECT_EQ(switch_.calls(), 0u);
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(mi).code, CMPI_RC_OK);
  script_.expect(unbind(kQueue)).returns(0);
  mi->ft->cleanup(mi, nullptr, 1);
}

TEST_F(ProviderQueue, WithANegativeHandleIsNotBound) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(-2);
  EXPECT_EQ(names(mi).message, "the switch's response queue cannot be bound");
  EXPECT_EQ(switch_.calls(), 0u);
  mi->ft->cleanup(mi, nullptr, 1);
}

TEST_F(ProviderQueue, StaysBoundWhenAProviderObjectIsOnlyToMakeRoom) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(mi).code, CMPI_RC_OK);
  EXPECT_EQ(mi->ft->cleanup(mi, nullptr, 0).rc, CMPI_RC_DO_NOT_UNLOAD);
  EXPECT_EQ(names(mi).code, CMPI_RC_OK);
  script_.expect(unbind(kQueue)).returns(0);
  EXPECT_EQ(mi->ft->cleanup(mi, nullptr, 1).rc, CMPI_RC_OK);
}

TEST_F(ProviderQueue, ThatWasReleasedIsBoundAnewForALaterProviderObject) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  names(mi);
  script_.expect(unbind(kQueue)).returns(0);
  mi->ft->cleanup(mi, nullptr, 1);
  EXPECT_EQ(mts_q, -1);

  CMPIInstanceMI* late = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(late).code, CMPI_RC_OK);
  script_.expect(unbind(kQueue)).returns(0);
  EXPECT_EQ(late->ft->cleanup(late, nullptr, 1).rc, CMPI_RC_OK);
}

// As a provider on the other interface does in the same process.
TEST_F(ProviderQueue, ThatSomebodyElseReleasedIsBoundAnew) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  names(mi);
  mts_q = -1;
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  EXPECT_EQ(names(mi).code, CMPI_RC_OK);
  mts_q = -1;
  EXPECT_EQ(mi->ft->cleanup(mi, nullptr, 1).rc, CMPI_RC_OK);
}

TEST_F(ProviderQueue, ThatTheTransportDoesNotReleaseIsReported) {
  CMPIInstanceMI* mi = make();
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  names(mi);
  script_.expect(unbind(kQueue)).returns(5);
  const CMPIStatus status = mi->ft->cleanup(mi, nullptr, 1);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(broker_.text(status.msg), "the switch's response queue was not released (status 5)");
}

TEST_F(ProviderQueue, AMarkerFileStopsTheProcessForADebuggerBeforeTheQueueIsBound) {
  system_.marker_file_exists(kProviderMarkerFile);
  CMPIInstanceMI* mi = make();
  EXPECT_TRUE(system_.signals().empty());
  script_.expect(bind("CIM Response SAP")).returns(kQueue);
  names(mi);
  names(mi);
  ASSERT_EQ(system_.signals().size(), 1u);
  EXPECT_EQ(system_.signals()[0].number, 19);
  script_.expect(unbind(kQueue)).returns(0);
  mi->ft->cleanup(mi, nullptr, 1);
}

}  // namespace
