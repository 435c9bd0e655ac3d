// What helpers answer where a broker leaves a slot, or the table of memory functions, out.
#include <cmpimacs.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace {

// Tables in which every slot is null.
class CmpiMissingSlots : public testing::Test {
 protected:
  void ExpectNotSupported() {
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(rc.msg, nullptr);
  }

  // A status from before, which a helper must not leave standing.
  CMPIString text{};
  CMPIStatus rc{CMPI_RC_ERR_FAILED, &text};

  const CMPIBrokerEncFT eft{};
  const CMPIBrokerExtFT xft{};
  const CMPIBrokerMemFT mft{};
  const CMPIBroker broker{nullptr, nullptr, &eft, &xft, &mft};
  const CMPIBroker broker_without_memory{nullptr, nullptr, &eft, &xft, nullptr};
  const CMPIInstanceFT instance_table{};
  CMPIInstance instance{nullptr, &instance_table};
  const CMPIObjectPathFT path_table{};
  CMPIObjectPath path{nullptr, &path_table};
  const CMPIContextFT context_table{};
  CMPIContext context{nullptr, &context_table};
  const CMPIResultFT result_table{};
  CMPIResult result{nullptr, &result_table};
};

void ExpectNullData(const CMPIData& data) {
  EXPECT_EQ(data.type, CMPI_null);
  EXPECT_EQ(data.state, CMPI_nullValue);
  EXPECT_EQ(data.value.dataPtr.ptr, nullptr);
  EXPECT_EQ(data.value.dataPtr.length, 0U);
}

}  // namespace

TEST_F(CmpiMissingSlots, NewCMPIErrorYieldsNoError) {
  EXPECT_EQ(
      CMNewCMPIError(&broker, "owner", "id", "text", ErrorSevLow, Timeout, CMPI_RC_ERR_FAILED, &rc),
      nullptr);
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, OpenMessageFileIsNotSupported) {
  CMPIMsgFileHandle handle = &rc;
  EXPECT_EQ(CMOpenMessageFile(&broker, "messages", &handle).rc, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(handle, &rc);
}

TEST_F(CmpiMissingSlots, CloseMessageFileIsNotSupported) {
  EXPECT_EQ(CMCloseMessageFile(&broker, nullptr).rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(CmpiMissingSlots, GetMessage2YieldsNoString) {
  CMPIString* message = CMGetMessage2(&broker, "MSG1", nullptr, "port $0", &rc, 1, CMFmtUint(4));
  EXPECT_EQ(message, nullptr);
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, ThreadFunctionsAnswerWithAnErrorNumber) {
  EXPECT_EQ(CMJoinThread(&broker, nullptr, nullptr), ENOSYS);
  EXPECT_EQ(CMExitThread(&broker, nullptr), ENOSYS);
  EXPECT_EQ(CMCancelThread(&broker, nullptr), ENOSYS);
  EXPECT_EQ(CMThreadSleep(&broker, 1000000), ENOSYS);
  EXPECT_EQ(CMSignalCondition(&broker, nullptr), ENOSYS);
}

TEST_F(CmpiMissingSlots, SetPropertyWithOriginIsNotSupported) {
  CMPIValue value{};
  EXPECT_EQ(CMSetPropertyWithOrigin(&instance, "Name", &value, CMPI_uint8, "CIM_Thing").rc,
            CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(CmpiMissingSlots, ClassQualifierIsNullData) {
  ExpectNullData(CMGetClassQualifier(&path, "Version", &rc));
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, PropertyQualifierIsNullData) {
  ExpectNullData(CMGetPropertyQualifier(&path, "Name", "Key", &rc));
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, MethodQualifierIsNullData) {
  ExpectNullData(CMGetMethodQualifier(&path, "Reset", "Description", &rc));
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, ParameterQualifierIsNullData) {
  ExpectNullData(CMGetParameterQualifier(&path, "Reset", "Mode", "In", &rc));
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, StatusNeedNotBeAskedFor) {
  ExpectNullData(CMGetClassQualifier(&path, "Version", nullptr));
  EXPECT_EQ(CMClone(&context, nullptr), nullptr);
  EXPECT_EQ(CBMark(&broker, nullptr), nullptr);
}

TEST_F(CmpiMissingSlots, ContextIsNotCloned) {
  EXPECT_EQ(CMClone(&context, &rc), nullptr);
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, ResultIsNotCloned) {
  EXPECT_EQ(CMClone(&result, &rc), nullptr);
  ExpectNotSupported();
}

TEST_F(CmpiMissingSlots, ResultIsNotReleased) {
  EXPECT_EQ(CMRelease(&result).rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(CmpiMissingSlots, ReturnErrorIsNotSupported) {
  EXPECT_EQ(CMReturnError(&result, nullptr).rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(CmpiMissingSlots, NothingIsMarked) {
  for (const CMPIBroker* mb : {&broker, &broker_without_memory}) {
    rc = {CMPI_RC_ERR_FAILED, &text};
    EXPECT_EQ(CBMark(mb, &rc), nullptr);
    ExpectNotSupported();
    EXPECT_EQ(CBRelease(mb, nullptr).rc, CMPI_RC_ERR_NOT_SUPPORTED);
  }
}

TEST_F(CmpiMissingSlots, NoMemoryIsHandedOut) {
  for (const CMPIBroker* mb : {&broker, &broker_without_memory}) {
    EXPECT_EQ(CMMalloc(mb, 8), nullptr);
    EXPECT_EQ(CMCalloc(mb, 2, 8), nullptr);
    EXPECT_EQ(CMRealloc(mb, nullptr, 8), nullptr);
    EXPECT_EQ(CMStrDup(mb, "text"), nullptr);
  }
}

TEST_F(CmpiMissingSlots, GivingUpObjectsDoesNothing) {
  for (const CMPIBroker* mb : {&broker, &broker_without_memory}) {
    CMFree(mb, &rc);
    CMFreeInstance(mb, &instance);
    CMFreeObjectPath(mb, &path);
    CMFreeArgs(mb, nullptr);
    CMFreeString(mb, &text);
    CMFreeArray(mb, nullptr);
    CMFreeDateTime(mb, nullptr);
    CMFreeSelectExp(mb, nullptr);
  }
  EXPECT_EQ(rc.rc, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(instance.ft, &instance_table);
  EXPECT_EQ(path.ft, &path_table);
}
