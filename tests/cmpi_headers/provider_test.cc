// Providers that the factory macros made, reached through their tables as a broker reaches them.
#include <cmpift.h>
#include <gtest/gtest.h>

#include <string>

#include "stub_provider.h"

namespace {

// Any two different addresses will do: factories and stub functions only keep or pass them.
const CMPIBroker kBroker{};
const CMPIContext kContext{};

std::string Called() {
  return stub_called;
}

void ExpectInstanceCallsReach(CMPIInstanceMI* mi, const std::string& language) {
  const CMPIInstanceMIFT* ft = mi->ft;
  EXPECT_EQ(ft->cleanup(mi, &kContext, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " Cleanup");
  EXPECT_EQ(ft->enumerateInstanceNames(mi, &kContext, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " EnumInstanceNames");
  EXPECT_EQ(ft->enumerateInstances(mi, &kContext, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " EnumInstances");
  EXPECT_EQ(ft->getInstance(mi, &kContext, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " GetInstance");
  EXPECT_EQ(ft->createInstance(mi, &kContext, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " CreateInstance");
  EXPECT_EQ(ft->modifyInstance(mi, &kContext, nullptr, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " ModifyInstance");
  EXPECT_EQ(ft->deleteInstance(mi, &kContext, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " DeleteInstance");
  EXPECT_EQ(ft->execQuery(mi, &kContext, nullptr, nullptr, "SELECT", "WQL").rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " ExecQuery");
}

void ExpectAssociationCallsReach(CMPIAssociationMI* mi, const std::string& language) {
  const CMPIAssociationMIFT* ft = mi->ft;
  EXPECT_EQ(ft->cleanup(mi, &kContext, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " AssociationCleanup");
  EXPECT_EQ(
      ft->associators(mi, &kContext, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)
          .rc,
      CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " Associators");
  EXPECT_EQ(
      ft->associatorNames(mi, &kContext, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr).rc,
      CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " AssociatorNames");
  EXPECT_EQ(ft->references(mi, &kContext, nullptr, nullptr, nullptr, nullptr, nullptr).rc,
            CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " References");
  EXPECT_EQ(ft->referenceNames(mi, &kContext, nullptr, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " ReferenceNames");
}

void ExpectMethodCallsReach(CMPIMethodMI* mi, const std::string& language) {
  EXPECT_EQ(mi->ft->cleanup(mi, &kContext, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " MethodCleanup");
  EXPECT_EQ(mi->ft->invokeMethod(mi, &kContext, nullptr, nullptr, "Reset", nullptr, nullptr).rc,
            CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " InvokeMethod");
}

void ExpectPropertyCallsReach(CMPIPropertyMI* mi, const std::string& language) {
  EXPECT_EQ(mi->ft->cleanup(mi, &kContext, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " PropertyCleanup");
  EXPECT_EQ(mi->ft->setProperty(mi, &kContext, nullptr, nullptr, "Name", CMPIData{}).rc,
            CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " SetProperty");
  EXPECT_EQ(mi->ft->getProperty(mi, &kContext, nullptr, nullptr, "Name").rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " GetProperty");
}

void ExpectIndicationCallsReach(CMPIIndicationMI* mi, const std::string& language) {
  const CMPIIndicationMIFT* ft = mi->ft;
  EXPECT_EQ(ft->cleanup(mi, &kContext, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " IndicationCleanup");
  EXPECT_EQ(ft->authorizeFilter(mi, &kContext, nullptr, "Alert", nullptr, "root").rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " AuthorizeFilter");
  EXPECT_EQ(ft->mustPoll(mi, &kContext, nullptr, "Alert", nullptr).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " MustPoll");
  EXPECT_EQ(ft->activateFilter(mi, &kContext, nullptr, "Alert", nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " ActivateFilter");
  EXPECT_EQ(ft->deActivateFilter(mi, &kContext, nullptr, "Alert", nullptr, 1).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " DeActivateFilter");
  EXPECT_EQ(ft->enableIndications(mi, &kContext).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " EnableIndications");
  EXPECT_EQ(ft->disableIndications(mi, &kContext).rc, CMPI_RC_OK);
  EXPECT_EQ(Called(), language + " DisableIndications");
}

}  // namespace

TEST(CmpiFactoryStub, InstanceCallsReachTheFunctionsOfAProviderInC) {
  ExpectInstanceCallsReach(CStub_Create_InstanceMI(&kBroker, &kContext, nullptr), "C");
}

TEST(CmpiFactoryStub, InstanceCallsReachTheFunctionsOfAProviderInCpp) {
  ExpectInstanceCallsReach(CppStub_Create_InstanceMI(&kBroker, &kContext, nullptr), "C++");
}

TEST(CmpiFactoryStub, AssociationCallsReachTheFunctionsOfAProviderInC) {
  ExpectAssociationCallsReach(CStub_Create_AssociationMI(&kBroker, &kContext, nullptr), "C");
}

TEST(CmpiFactoryStub, AssociationCallsReachTheFunctionsOfAProviderInCpp) {
  ExpectAssociationCallsReach(CppStub_Create_AssociationMI(&kBroker, &kContext, nullptr), "C++");
}

TEST(CmpiFactoryStub, MethodCallsReachTheFunctionsOfAProviderInC) {
  ExpectMethodCallsReach(CStub_Create_MethodMI(&kBroker, &kContext, nullptr), "C");
}

TEST(CmpiFactoryStub, MethodCallsReachTheFunctionsOfAProviderInCpp) {
  ExpectMethodCallsReach(CppStub_Create_MethodMI(&kBroker, &kContext, nullptr), "C++");
}

TEST(CmpiFactoryStub, PropertyCallsReachTheFunctionsOfAProviderInC) {
  ExpectPropertyCallsReach(CStub_Create_PropertyMI(&kBroker, &kContext, nullptr), "C");
}

TEST(CmpiFactoryStub, PropertyCallsReachTheFunctionsOfAProviderInCpp) {
  ExpectPropertyCallsReach(CppStub_Create_PropertyMI(&kBroker, &kContext, nullptr), "C++");
}

TEST(CmpiFactoryStub, IndicationCallsReachTheFunctionsOfAProviderInC) {
  ExpectIndicationCallsReach(CStub_Create_IndicationMI(&kBroker, &kContext, nullptr), "C");
}

TEST(CmpiFactoryStub, IndicationCallsReachTheFunctionsOfAProviderInCpp) {
  ExpectIndicationCallsReach(CppStub_Create_IndicationMI(&kBroker, &kContext, nullptr), "C++");
}

TEST(CmpiFactoryStub, TablesSayVersionAndName) {
  const auto* instance = CStub_Create_InstanceMI(&kBroker, &kContext, nullptr)->ft;
  EXPECT_EQ(instance->ftVersion, 200);
  EXPECT_EQ(instance->miVersion, 200);
  EXPECT_STREQ(instance->miName, "instanceCStub");
  const auto* association = CStub_Create_AssociationMI(&kBroker, &kContext, nullptr)->ft;
  EXPECT_EQ(association->ftVersion, 200);
  EXPECT_EQ(association->miVersion, 200);
  EXPECT_STREQ(association->miName, "associationCStub");
  const auto* method = CStub_Create_MethodMI(&kBroker, &kContext, nullptr)->ft;
  EXPECT_EQ(method->ftVersion, 200);
  EXPECT_EQ(method->miVersion, 200);
  EXPECT_STREQ(method->miName, "methodCStub");
  const auto* property = CStub_Create_PropertyMI(&kBroker, &kContext, nullptr)->ft;
  EXPECT_EQ(property->ftVersion, 200);
  EXPECT_EQ(property->miVersion, 200);
  EXPECT_STREQ(property->miName, "propertyCStub");
  const auto* indication = CStub_Create_IndicationMI(&kBroker, &kContext, nullptr)->ft;
  EXPECT_EQ(indication->ftVersion, 200);
  EXPECT_EQ(indication->miVersion, 200);
  EXPECT_STREQ(indication->miName, "indicationCStub");
}

TEST(CmpiFactoryStub, LevelOneProviderSaysSoInTheSameTable) {
  CMPIMethodMI* mi = Level100Stub_Create_MethodMI(&kBroker, &kContext, nullptr);
  EXPECT_EQ(mi->ft->ftVersion, 100);
  EXPECT_EQ(mi->ft->miVersion, 100);
  EXPECT_EQ(level_100_stub_broker(), &kBroker);
  ExpectMethodCallsReach(mi, "level 100");
}

TEST(CmpiFactoryStub, KeepsTheBrokerInTheProvidersVariable) {
  CStub_Create_MethodMI(nullptr, &kContext, nullptr);
  EXPECT_EQ(c_stub_broker(), nullptr);
  CStub_Create_MethodMI(&kBroker, &kContext, nullptr);
  EXPECT_EQ(c_stub_broker(), &kBroker);
  CppStub_Create_MethodMI(&kBroker, &kContext, nullptr);
  EXPECT_EQ(cpp_stub_broker(), &kBroker);
}

TEST(CmpiFactoryStub, GivesTheSameObjectEachTime) {
  EXPECT_EQ(CStub_Create_InstanceMI(&kBroker, &kContext, nullptr),
            CStub_Create_InstanceMI(&kBroker, &kContext, nullptr));
}

TEST(CmpiFactoryStub, HandleStartsNull) {
  EXPECT_EQ(CStub_Create_InstanceMI(&kBroker, &kContext, nullptr)->hdl, nullptr);
}

TEST(CmpiFactoryStub, ReportsSuccess) {
  CMPIString text{};
  CMPIStatus status{CMPI_RC_ERR_FAILED, &text};
  CStub_Create_AssociationMI(&kBroker, &kContext, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(status.msg, nullptr);
}

TEST(CmpiFactoryStub, HookSeesTheArgumentsAndReportsThroughTheStatus) {
  CMPIStatus status{CMPI_RC_OK, nullptr};
  CStub_Create_InstanceMI(&kBroker, nullptr, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
  CStub_Create_InstanceMI(&kBroker, &kContext, &status);
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  CppStub_Create_InstanceMI(&kBroker, nullptr, &status);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST(CmpiFactoryStub, PropertyStubLeavesSetPropertyWithOriginNull) {
  EXPECT_EQ(CStub_Create_PropertyMI(&kBroker, &kContext, nullptr)->ft->setPropertyWithOrigin,
            nullptr);
}

TEST(CmpiNullSlots, AllAreSeenFromC) {
  const CMPIBrokerEncFT eft{};
  const CMPIBrokerExtFT xft{};
  const CMPIBroker broker{nullptr, nullptr, &eft, &xft, nullptr};
  const CMPIInstanceFT instance_table{};
  const CMPIInstance instance{nullptr, &instance_table};
  const CMPIObjectPathFT path_table{};
  const CMPIObjectPath path{nullptr, &path_table};
  const CMPIContextFT context_table{};
  const CMPIContext context{nullptr, &context_table};
  const CMPIResultFT result_table{};
  const CMPIResult result{nullptr, &result_table};
  EXPECT_EQ(c_count_null_slots(&broker, &instance, &path, &context, &result), 19);
}
