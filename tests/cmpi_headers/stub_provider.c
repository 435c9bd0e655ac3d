/* A provider in C that uses every factory macro and notes which of its functions is called. */
#include "stub_provider.h"

#include <cmpift.h>
#include <cmpimacs.h>

const char* stub_called = NULL;

static const CMPIBroker* broker = NULL;

const CMPIBroker* c_stub_broker(void) {
  return broker;
}

int c_count_null_slots(const CMPIBroker* mb, const CMPIInstance* inst, const CMPIObjectPath* path,
                       const CMPIContext* ctx, const CMPIResult* rslt) {
  int count = 0;
  if (!mb->mft) count++;
  if (mb->eft->newCMPIError == NULL) count++;
  if (mb->eft->openMessageFile == NULL) count++;
  if (mb->eft->closeMessageFile == NULL) count++;
  if (mb->eft->getMessage2 == NULL) count++;
  if (mb->xft->joinThread == NULL) count++;
  if (mb->xft->exitThread == NULL) count++;
  if (mb->xft->cancelThread == NULL) count++;
  if (mb->xft->threadSleep == NULL) count++;
  if (mb->xft->signalCondition == NULL) count++;
  if (inst->ft->setPropertyWithOrigin == NULL) count++;
  if (path->ft->getClassQualifier == NULL) count++;
  if (path->ft->getPropertyQualifier == NULL) count++;
  if (path->ft->getMethodQualifier == NULL) count++;
  if (path->ft->getParameterQualifier == NULL) count++;
  if (ctx->ft->clone == NULL) count++;
  if (rslt->ft->release == NULL) count++;
  if (rslt->ft->clone == NULL) count++;
  if (rslt->ft->returnError == NULL) count++;
  return count;
}

/* The hook of the instance factory: refuses to start without a context. */
static void check_context(const CMPIContext* ctx, CMPIStatus* rc) {
  if (ctx == NULL) CMSetStatus(rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

static CMPIStatus StubCleanup(CMPIInstanceMI* mi, const CMPIContext* ctx, CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "C Cleanup";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubEnumInstanceNames(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                        const CMPIResult* rslt, const CMPIObjectPath* op) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  stub_called = "C EnumInstanceNames";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubEnumInstances(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                    const CMPIResult* rslt, const CMPIObjectPath* op,
                                    const char** properties) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)properties;
  stub_called = "C EnumInstances";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubGetInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* op,
                                  const char** properties) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)properties;
  stub_called = "C GetInstance";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubCreateInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                     const CMPIResult* rslt, const CMPIObjectPath* op,
                                     const CMPIInstance* inst) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)inst;
  stub_called = "C CreateInstance";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubModifyInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                     const CMPIResult* rslt, const CMPIObjectPath* op,
                                     const CMPIInstance* inst, const char** properties) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)inst;
  (void)properties;
  stub_called = "C ModifyInstance";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubDeleteInstance(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                     const CMPIResult* rslt, const CMPIObjectPath* op) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  stub_called = "C DeleteInstance";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubExecQuery(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                                const CMPIObjectPath* op, const char* query, const char* lang) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)query;
  (void)lang;
  stub_called = "C ExecQuery";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubAssociationCleanup(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                         CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "C AssociationCleanup";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubAssociators(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* op,
                                  const char* assocClass, const char* resultClass, const char* role,
                                  const char* resultRole, const char** properties) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)assocClass;
  (void)resultClass;
  (void)role;
  (void)resultRole;
  (void)properties;
  stub_called = "C Associators";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubAssociatorNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                      const CMPIResult* rslt, const CMPIObjectPath* op,
                                      const char* assocClass, const char* resultClass,
                                      const char* role, const char* resultRole) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)assocClass;
  (void)resultClass;
  (void)role;
  (void)resultRole;
  stub_called = "C AssociatorNames";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubReferences(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                 const CMPIResult* rslt, const CMPIObjectPath* op,
                                 const char* resultClass, const char* role,
                                 const char** properties) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)resultClass;
  (void)role;
  (void)properties;
  stub_called = "C References";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubReferenceNames(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                     const CMPIResult* rslt, const CMPIObjectPath* op,
                                     const char* resultClass, const char* role) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)resultClass;
  (void)role;
  stub_called = "C ReferenceNames";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubMethodCleanup(CMPIMethodMI* mi, const CMPIContext* ctx,
                                    CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "C MethodCleanup";
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
  stub_called = "C InvokeMethod";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubPropertyCleanup(CMPIPropertyMI* mi, const CMPIContext* ctx,
                                      CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "C PropertyCleanup";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubSetProperty(CMPIPropertyMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* op,
                                  const char* name, CMPIData data) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)name;
  (void)data;
  stub_called = "C SetProperty";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubGetProperty(CMPIPropertyMI* mi, const CMPIContext* ctx,
                                  const CMPIResult* rslt, const CMPIObjectPath* op,
                                  const char* name) {
  (void)mi;
  (void)ctx;
  (void)rslt;
  (void)op;
  (void)name;
  stub_called = "C GetProperty";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubIndicationCleanup(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                        CMPIBoolean terminating) {
  (void)mi;
  (void)ctx;
  (void)terminating;
  stub_called = "C IndicationCleanup";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubAuthorizeFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                      const CMPISelectExp* se, const char* className,
                                      const CMPIObjectPath* op, const char* owner) {
  (void)mi;
  (void)ctx;
  (void)se;
  (void)className;
  (void)op;
  (void)owner;
  stub_called = "C AuthorizeFilter";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubMustPoll(CMPIIndicationMI* mi, const CMPIContext* ctx,
                               const CMPISelectExp* se, const char* className,
                               const CMPIObjectPath* op) {
  (void)mi;
  (void)ctx;
  (void)se;
  (void)className;
  (void)op;
  stub_called = "C MustPoll";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                     const CMPISelectExp* se, const char* className,
                                     const CMPIObjectPath* op, CMPIBoolean first) {
  (void)mi;
  (void)ctx;
  (void)se;
  (void)className;
  (void)op;
  (void)first;
  stub_called = "C ActivateFilter";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubDeActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                       const CMPISelectExp* se, const char* className,
                                       const CMPIObjectPath* op, CMPIBoolean last) {
  (void)mi;
  (void)ctx;
  (void)se;
  (void)className;
  (void)op;
  (void)last;
  stub_called = "C DeActivateFilter";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubEnableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx) {
  (void)mi;
  (void)ctx;
  stub_called = "C EnableIndications";
  CMReturn(CMPI_RC_OK);
}

static CMPIStatus StubDisableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx) {
  (void)mi;
  (void)ctx;
  stub_called = "C DisableIndications";
  CMReturn(CMPI_RC_OK);
}

/* clang-format off */
CMInstanceMIStub(Stub, CStub, broker, check_context(ctx, rc))
CMAssociationMIStub(Stub, CStub, broker, CMNoHook)
CMMethodMIStub(Stub, CStub, broker, CMNoHook)
CMPropertyMIStub(Stub, CStub, broker, CMNoHook)
CMIndicationMIStub(Stub, CStub, broker, CMNoHook)
