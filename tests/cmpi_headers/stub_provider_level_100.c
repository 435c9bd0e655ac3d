/* A provider that says that it is of level 1.0: the tables are the same. */
#define CMPI_VERSION 100
#include <cmpift.h>
#include <cmpimacs.h>

#include "stub_provider.h"

#ifndef CMPI_VER_100
#error "level 1.0 must be announced"
#endif
#ifdef CMPI_VER_200
#error "level 2.0 must not be announced to a provider of level 1.0"
#endif

_Static_assert(sizeof(CMPIBrokerEncFT) == 168, "tables do not depend on CMPI_VERSION");
_Static_assert(sizeof(CMPIInstanceFT) == 88, "tables do not depend on CMPI_VERSION");
_Static_assert(sizeof(CMPIBroker) == 40, "the broker does not depend on CMPI_VERSION");

static const CMPIBroker* broker = NULL;

const CMPIBroker* level_100_stub_broker(void) {
  return broker;
}

static CMPIStatus StubMethodCleanup(CMPIMethodMI* mi, const CMPIContext* ctx,
                                    CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "level 100 MethodCleanup";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubInvokeMethod(CMPIMethodMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                                   const CMPIObjectPath* op, const char* method, const CMPIArgs* in,
                                   CMPIArgs* out) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)method;
  (void)in;
  (void)out;
  stub_called = "level 100 InvokeMethod";
  CMReturn(CMPI_RC_OK);
}

CMMethodMIStub(Stub, Level100Stub, broker, CMNoHook)
