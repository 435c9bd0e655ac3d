// A provider in C++ that uses every factory macro and notes which of its functions is called.
#include <cmpift.h>
#include <cmpimacs.h>

#include "stub_provider.h"

namespace {

const CMPIBroker* broker = nullptr;

// The hook of the instance factory: refuses to start without a context.
void CheckContext(const CMPIContext* ctx, CMPIStatus* rc) {
  if (ctx == nullptr) CMSetStatus(rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

CMPIStatus StubCleanup(CMPIInstanceMI*, const CMPIContext*, CMPIBoolean) {
  stub_called = "C++ Cleanup";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubEnumInstanceNames(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                 const CMPIObjectPath*) {
  stub_called = "C++ EnumInstanceNames";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubEnumInstances(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                             const CMPIObjectPath*, const char**) {
  stub_called = "C++ EnumInstances";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubGetInstance(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                           const CMPIObjectPath*, const char**) {
  stub_called = "C++ GetInstance";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubCreateInstance(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                              const CMPIObjectPath*, const CMPIInstance*) {
  stub_called = "C++ CreateInstance";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubModifyInstance(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                              const CMPIObjectPath*, const CMPIInstance*, const char**) {
  stub_called = "C++ ModifyInstance";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubDeleteInstance(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                              const CMPIObjectPath*) {
  stub_called = "C++ DeleteInstance";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubExecQuery(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                         const CMPIObjectPath*, const char*, const char*) {
  stub_called = "C++ ExecQuery";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubAssociationCleanup(CMPIAssociationMI*, const CMPIContext*, CMPIBoolean) {
  stub_called = "C++ AssociationCleanup";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubAssociators(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                           const CMPIObjectPath*, const char*, const char*, const char*,
                           const char*, const char**) {
  stub_called = "C++ Associators";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubAssociatorNames(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                               const CMPIObjectPath*, const char*, const char*, const char*,
                               const char*) {
  stub_called = "C++ AssociatorNames";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubReferences(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                          const CMPIObjectPath*, const char*, const char*, const char**) {
  stub_called = "C++ References";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubReferenceNames(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                              const CMPIObjectPath*, const char*, const char*) {
  stub_called = "C++ ReferenceNames";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubMethodCleanup(CMPIMethodMI*, const CMPIContext*, CMPIBoolean) {
  stub_called = "C++ MethodCleanup";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubInvokeMethod(CMPIMethodMI*, const CMPIContext*, const CMPIResult*,
                            const CMPIObjectPath*, const char*, const CMPIArgs*, CMPIArgs*) {
  stub_called = "C++ InvokeMethod";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubPropertyCleanup(CMPIPropertyMI*, const CMPIContext*, CMPIBoolean) {
  stub_called = "C++ PropertyCleanup";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubSetProperty(CMPIPropertyMI*, const CMPIContext*, const CMPIResult*,
                           const CMPIObjectPath*, const char*, CMPIData) {
  stub_called = "C++ SetProperty";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubGetProperty(CMPIPropertyMI*, const CMPIContext*, const CMPIResult*,
                           const CMPIObjectPath*, const char*) {
  stub_called = "C++ GetProperty";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubIndicationCleanup(CMPIIndicationMI*, const CMPIContext*, CMPIBoolean) {
  stub_called = "C++ IndicationCleanup";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubAuthorizeFilter(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                               const char*, const CMPIObjectPath*, const char*) {
  stub_called = "C++ AuthorizeFilter";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubMustPoll(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*, const char*,
                        const CMPIObjectPath*) {
  stub_called = "C++ MustPoll";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubActivateFilter(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                              const char*, const CMPIObjectPath*, CMPIBoolean) {
  stub_called = "C++ ActivateFilter";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubDeActivateFilter(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                const char*, const CMPIObjectPath*, CMPIBoolean) {
  stub_called = "C++ DeActivateFilter";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubEnableIndications(CMPIIndicationMI*, const CMPIContext*) {
  stub_called = "C++ EnableIndications";
  CMReturn(CMPI_RC_OK);
}

CMPIStatus StubDisableIndications(CMPIIndicationMI*, const CMPIContext*) {
  stub_called = "C++ DisableIndications";
  CMReturn(CMPI_RC_OK);
}

}  // namespace

const CMPIBroker* cpp_stub_broker() {
  return broker;
}

// clang-format off
CMInstanceMIStub(Stub, CppStub, broker, CheckContext(ctx, rc))
CMAssociationMIStub(Stub, CppStub, broker, CMNoHook)
CMMethodMIStub(Stub, CppStub, broker, CMNoHook)
CMPropertyMIStub(Stub, CppStub, broker, CMNoHook)
CMIndicationMIStub(Stub, CppStub, broker, CMNoHook)
