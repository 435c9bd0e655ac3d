/* Helpers for CMPI providers: one function per table slot, status helpers and the stubs that write
 * a provider's factories.
 *
 * The conventions stand in cmpidt.h; what a slot does stands in cmpift.h. A helper calls the slot
 * of the same meaning with the same arguments in the same order. Its object must not be a null
 * object (CMIsNullObject), except where a helper says so. Slots that may be null are tested: the
 * helper then reports CMPI_RC_ERR_NOT_SUPPORTED and yields a null pointer or data in the state
 * CMPI_nullValue.
 *
 * Helpers are functions, so arguments are checked and evaluated once; the few macros are those that
 * return from the caller, take objects of any type or any number of arguments, or define functions.
 * A value is a const CMPIValue*: a text for CMPI_chars is cast, (const CMPIValue*)text.
 *
 * CM... works on objects, CB... asks the broker for CIM operations, CD... takes objects of any
 * type. */
#ifndef CMPIMACS_H
#define CMPIMACS_H

#include <errno.h>
#include <stddef.h>
#include <string.h>

#include "cmpidt.h"
#include "cmpift.h"

/* The null pointer, in the spelling of the language that includes this. */
#ifdef __cplusplus
#define CMPI_NULL nullptr
#else
#define CMPI_NULL NULL
#endif

/* A function that brokers find by name, also when the library hides the rest. */
#ifdef __cplusplus
#define CMPI_EXTERN_C extern "C" __attribute__((visibility("default")))
#else
#define CMPI_EXTERN_C extern __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------------------------
 * Status. */

static inline CMPIStatus cmpi_status(CMPIrc code, CMPIString* msg) {
  CMPIStatus status;
  status.rc = code;
  status.msg = msg;
  return status;
}

/* Sets *st, if st is not null; no text. */
static inline void CMSetStatus(CMPIStatus* st, CMPIrc code) {
  if (st) *st = cmpi_status(code, CMPI_NULL);
}

/* The same with a text, which may be null. */
static inline void CMSetStatusWithString(CMPIStatus* st, CMPIrc code, CMPIString* string) {
  if (st) *st = cmpi_status(code, string);
}

static inline void CMSetStatusWithChars(const CMPIBroker* mb, CMPIStatus* st, CMPIrc code,
                                        const char* chars) {
  if (st) *st = cmpi_status(code, mb->eft->newString(mb, chars, CMPI_NULL));
}

/* Return from a function that yields CMPIStatus. */
#define CMReturn(code) return cmpi_status((code), CMPI_NULL)
#define CMReturnWithString(code, string) return cmpi_status((code), (string))
#define CMReturnWithChars(mb, code, chars) \
  return cmpi_status((code), (mb)->eft->newString((mb), (chars), CMPI_NULL))

/* Reports a slot that the broker left out, and says that there is none. */
static inline int cmpi_not_supported(CMPIStatus* rc) {
  CMSetStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
  return 1;
}

static inline CMPIData cmpi_no_data(CMPIStatus* rc) {
  CMPIData data;
  data.type = CMPI_null;
  data.state = CMPI_nullValue;
  data.value.dataPtr.ptr = CMPI_NULL;
  data.value.dataPtr.length = 0;
  CMSetStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
  return data;
}

/* ------------------------------------------------------------------------------------------------
 * Objects and data of any type. */

/* Whether there is no object: a null pointer or a null handle. object: any CMPI object. */
static inline CMPIBoolean CMIsNullObject(const void* object) {
  void* handle = CMPI_NULL;
  /* Every object starts with its handle. */
  if (object) memcpy(&handle, object, sizeof(handle));
  return !handle;
}

static inline CMPIBoolean CMIsNullValue(CMPIData data) {
  return (data.state & CMPI_nullValue) != 0;
}

static inline CMPIBoolean CMIsKeyValue(CMPIData data) {
  return (data.state & CMPI_keyValue) != 0;
}

static inline CMPIBoolean CMIsArray(CMPIData data) {
  return (data.type & CMPI_ARRAY) != 0;
}

/* Result of CMClone: as the object's clone slot; of CMRelease: CMPIStatus. */
#define CMClone(object, rc)                                     \
  ((!(object)->ft->clone && cmpi_not_supported(rc)) ? CMPI_NULL \
                                                    : (object)->ft->clone((object), (rc)))
#define CMRelease(object)                                                     \
  (!(object)->ft->release ? cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL) \
                          : (object)->ft->release((object)))

static inline CMPIString* CDToString(const CMPIBroker* mb, const void* object, CMPIStatus* rc) {
  return mb->eft->toString(mb, object, rc);
}

static inline CMPIBoolean CDIsOfType(const CMPIBroker* mb, const void* object, const char* type,
                                     CMPIStatus* rc) {
  return mb->eft->isOfType(mb, object, type, rc);
}

static inline CMPIString* CDGetType(const CMPIBroker* mb, const void* object, CMPIStatus* rc) {
  return mb->eft->getType(mb, object, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIBrokerEncFT: factories and services. */

static inline CMPIInstance* CMNewInstance(const CMPIBroker* mb, const CMPIObjectPath* op,
                                          CMPIStatus* rc) {
  return mb->eft->newInstance(mb, op, rc);
}

static inline CMPIObjectPath* CMNewObjectPath(const CMPIBroker* mb, const char* nameSpace,
                                              const char* className, CMPIStatus* rc) {
  return mb->eft->newObjectPath(mb, nameSpace, className, rc);
}

static inline CMPIArgs* CMNewArgs(const CMPIBroker* mb, CMPIStatus* rc) {
  return mb->eft->newArgs(mb, rc);
}

static inline CMPIString* CMNewString(const CMPIBroker* mb, const char* chars, CMPIStatus* rc) {
  return mb->eft->newString(mb, chars, rc);
}

static inline CMPIArray* CMNewArray(const CMPIBroker* mb, CMPICount size, CMPIType type,
                                    CMPIStatus* rc) {
  return mb->eft->newArray(mb, size, type, rc);
}

static inline CMPIDateTime* CMNewDateTime(const CMPIBroker* mb, CMPIStatus* rc) {
  return mb->eft->newDateTime(mb, rc);
}

static inline CMPIDateTime* CMNewDateTimeFromBinary(const CMPIBroker* mb, CMPIUint64 binTime,
                                                    CMPIBoolean interval, CMPIStatus* rc) {
  return mb->eft->newDateTimeFromBinary(mb, binTime, interval, rc);
}

static inline CMPIDateTime* CMNewDateTimeFromChars(const CMPIBroker* mb, const char* utcTime,
                                                   CMPIStatus* rc) {
  return mb->eft->newDateTimeFromChars(mb, utcTime, rc);
}

static inline CMPISelectExp* CMNewSelectExp(const CMPIBroker* mb, const char* query,
                                            const char* lang, CMPIArray** projection,
                                            CMPIStatus* rc) {
  return mb->eft->newSelectExp(mb, query, lang, projection, rc);
}

static inline CMPIBoolean CMClassPathIsA(const CMPIBroker* mb, const CMPIObjectPath* op,
                                         const char* className, CMPIStatus* rc) {
  return mb->eft->classPathIsA(mb, op, className, rc);
}

static inline CMPIStatus CMLogMessage(const CMPIBroker* mb, CMPISeverity severity, const char* id,
                                      const char* text, const CMPIString* string) {
  return mb->eft->logMessage(mb, severity, id, text, string);
}

static inline CMPIStatus CMTraceMessage(const CMPIBroker* mb, CMPILevel level,
                                        const char* component, const char* text,
                                        const CMPIString* string) {
  return mb->eft->trace(mb, level, component, text, string);
}

static inline CMPIError* CMNewCMPIError(const CMPIBroker* mb, const char* owner, const char* msgID,
                                        const char* msg, CMPIErrorSeverity severity,
                                        CMPIErrorProbableCause cause, CMPIrc cimStatusCode,
                                        CMPIStatus* rc) {
  if (!mb->eft->newCMPIError && cmpi_not_supported(rc)) return CMPI_NULL;
  return mb->eft->newCMPIError(mb, owner, msgID, msg, severity, cause, cimStatusCode, rc);
}

static inline CMPIStatus CMOpenMessageFile(const CMPIBroker* mb, const char* msgFile,
                                           CMPIMsgFileHandle* handle) {
  if (!mb->eft->openMessageFile) return cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL);
  return mb->eft->openMessageFile(mb, msgFile, handle);
}

static inline CMPIStatus CMCloseMessageFile(const CMPIBroker* mb, CMPIMsgFileHandle handle) {
  if (!mb->eft->closeMessageFile) return cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL);
  return mb->eft->closeMessageFile(mb, handle);
}

/* CMPIString* CMGetMessage(mb, msgId, defMsg, rc, count, ...): what follows count is that many of
 * the pairs below, for example CMGetMessage(mb, "MSG1", "port $0", rc, 1, CMFmtUint(port)). */
#define CMGetMessage(mb, msgId, defMsg, rc, ...) \
  ((mb)->eft->getMessage((mb), (msgId), (defMsg), (rc), __VA_ARGS__))
/* The same from an open file; it comes before the default text. */
#define CMGetMessage2(mb, msgId, handle, defMsg, rc, ...) \
  ((!(mb)->eft->getMessage2 && cmpi_not_supported(rc))    \
       ? CMPI_NULL                                        \
       : (mb)->eft->getMessage2((mb), (msgId), (handle), (defMsg), (rc), __VA_ARGS__))

/* Type and value of one argument of a message. Whole numbers travel in 64 bits, whatever their
 * type. */
#define CMFmtSint(value) CMPI_sint32, ((long)(value))
#define CMFmtUint(value) CMPI_uint32, ((unsigned long)(value))
#define CMFmtSint64(value) CMPI_sint64, ((long long)(value))
#define CMFmtUint64(value) CMPI_uint64, ((unsigned long long)(value))
#define CMFmtReal(value) CMPI_real64, ((double)(value))
#define CMFmtBoolean(value) CMPI_boolean, ((int)(value))
#define CMFmtChars(value) CMPI_chars, ((const char*)(value))
#define CMFmtString(value) CMPI_string, ((const CMPIString*)(value))

/* ------------------------------------------------------------------------------------------------
 * CMPIInstanceFT. */

static inline CMPIData CMGetProperty(const CMPIInstance* inst, const char* name, CMPIStatus* rc) {
  return inst->ft->getProperty(inst, name, rc);
}

static inline CMPIData CMGetPropertyAt(const CMPIInstance* inst, CMPICount index, CMPIString** name,
                                       CMPIStatus* rc) {
  return inst->ft->getPropertyAt(inst, index, name, rc);
}

static inline CMPICount CMGetPropertyCount(const CMPIInstance* inst, CMPIStatus* rc) {
  return inst->ft->getPropertyCount(inst, rc);
}

static inline CMPIStatus CMSetProperty(const CMPIInstance* inst, const char* name,
                                       const CMPIValue* value, CMPIType type) {
  return inst->ft->setProperty(inst, name, value, type);
}

static inline CMPIStatus CMSetPropertyWithOrigin(const CMPIInstance* inst, const char* name,
                                                 const CMPIValue* value, CMPIType type,
                                                 const char* origin) {
  if (!inst->ft->setPropertyWithOrigin) return cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL);
  return inst->ft->setPropertyWithOrigin(inst, name, value, type, origin);
}

static inline CMPIStatus CMSetPropertyFilter(const CMPIInstance* inst, const char** properties,
                                             const char** keys) {
  return inst->ft->setPropertyFilter(inst, properties, keys);
}

static inline CMPIObjectPath* CMGetObjectPath(const CMPIInstance* inst, CMPIStatus* rc) {
  return inst->ft->getObjectPath(inst, rc);
}

static inline CMPIStatus CMSetObjectPath(const CMPIInstance* inst, const CMPIObjectPath* op) {
  return inst->ft->setObjectPath(inst, op);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIObjectPathFT. */

static inline CMPIStatus CMSetNameSpace(const CMPIObjectPath* op, const char* nameSpace) {
  return op->ft->setNameSpace(op, nameSpace);
}

static inline CMPIString* CMGetNameSpace(const CMPIObjectPath* op, CMPIStatus* rc) {
  return op->ft->getNameSpace(op, rc);
}

static inline CMPIStatus CMSetHostname(const CMPIObjectPath* op, const char* hostname) {
  return op->ft->setHostname(op, hostname);
}

static inline CMPIString* CMGetHostname(const CMPIObjectPath* op, CMPIStatus* rc) {
  return op->ft->getHostname(op, rc);
}

static inline CMPIStatus CMSetClassName(const CMPIObjectPath* op, const char* className) {
  return op->ft->setClassName(op, className);
}

static inline CMPIString* CMGetClassName(const CMPIObjectPath* op, CMPIStatus* rc) {
  return op->ft->getClassName(op, rc);
}

static inline CMPIStatus CMAddKey(const CMPIObjectPath* op, const char* name,
                                  const CMPIValue* value, CMPIType type) {
  return op->ft->addKey(op, name, value, type);
}

static inline CMPIData CMGetKey(const CMPIObjectPath* op, const char* name, CMPIStatus* rc) {
  return op->ft->getKey(op, name, rc);
}

static inline CMPIData CMGetKeyAt(const CMPIObjectPath* op, CMPICount index, CMPIString** name,
                                  CMPIStatus* rc) {
  return op->ft->getKeyAt(op, index, name, rc);
}

static inline CMPICount CMGetKeyCount(const CMPIObjectPath* op, CMPIStatus* rc) {
  return op->ft->getKeyCount(op, rc);
}

static inline CMPIStatus CMSetNameSpaceFromObjectPath(const CMPIObjectPath* op,
                                                      const CMPIObjectPath* src) {
  return op->ft->setNameSpaceFromObjectPath(op, src);
}

static inline CMPIStatus CMSetHostAndNameSpaceFromObjectPath(const CMPIObjectPath* op,
                                                             const CMPIObjectPath* src) {
  return op->ft->setHostAndNameSpaceFromObjectPath(op, src);
}

static inline CMPIData CMGetClassQualifier(const CMPIObjectPath* op, const char* qName,
                                           CMPIStatus* rc) {
  if (!op->ft->getClassQualifier) return cmpi_no_data(rc);
  return op->ft->getClassQualifier(op, qName, rc);
}

static inline CMPIData CMGetPropertyQualifier(const CMPIObjectPath* op, const char* pName,
                                              const char* qName, CMPIStatus* rc) {
  if (!op->ft->getPropertyQualifier) return cmpi_no_data(rc);
  return op->ft->getPropertyQualifier(op, pName, qName, rc);
}

static inline CMPIData CMGetMethodQualifier(const CMPIObjectPath* op, const char* methodName,
                                            const char* qName, CMPIStatus* rc) {
  if (!op->ft->getMethodQualifier) return cmpi_no_data(rc);
  return op->ft->getMethodQualifier(op, methodName, qName, rc);
}

static inline CMPIData CMGetParameterQualifier(const CMPIObjectPath* op, const char* mName,
                                               const char* pName, const char* qName,
                                               CMPIStatus* rc) {
  if (!op->ft->getParameterQualifier) return cmpi_no_data(rc);
  return op->ft->getParameterQualifier(op, mName, pName, qName, rc);
}

static inline CMPIString* CMObjectPathToString(const CMPIObjectPath* op, CMPIStatus* rc) {
  return op->ft->toString(op, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIArrayFT. */

static inline CMPICount CMGetArrayCount(const CMPIArray* array, CMPIStatus* rc) {
  return array->ft->getSize(array, rc);
}

static inline CMPIType CMGetArrayType(const CMPIArray* array, CMPIStatus* rc) {
  return array->ft->getSimpleType(array, rc);
}

static inline CMPIData CMGetArrayElementAt(const CMPIArray* array, CMPICount index,
                                           CMPIStatus* rc) {
  return array->ft->getElementAt(array, index, rc);
}

static inline CMPIStatus CMSetArrayElementAt(const CMPIArray* array, CMPICount index,
                                             const CMPIValue* value, CMPIType type) {
  return array->ft->setElementAt(array, index, value, type);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIStringFT. A null string has a null text: CMGetCharsPtr(CMGetHostname(op, rc), rc). */

static inline const char* CMGetCharsPtr(const CMPIString* str, CMPIStatus* rc) {
  if (!str) {
    CMSetStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
    return CMPI_NULL;
  }
  return str->ft->getCharPtr(str, rc);
}

static inline const char* CMGetCharPtr(const CMPIString* str) {
  return CMGetCharsPtr(str, CMPI_NULL);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIArgsFT. */

static inline CMPIStatus CMAddArg(const CMPIArgs* args, const char* name, const CMPIValue* value,
                                  CMPIType type) {
  return args->ft->addArg(args, name, value, type);
}

static inline CMPIData CMGetArg(const CMPIArgs* args, const char* name, CMPIStatus* rc) {
  return args->ft->getArg(args, name, rc);
}

static inline CMPIData CMGetArgAt(const CMPIArgs* args, CMPICount index, CMPIString** name,
                                  CMPIStatus* rc) {
  return args->ft->getArgAt(args, index, name, rc);
}

static inline CMPICount CMGetArgCount(const CMPIArgs* args, CMPIStatus* rc) {
  return args->ft->getArgCount(args, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIContextFT. */

static inline CMPIData CMGetContextEntry(const CMPIContext* ctx, const char* name, CMPIStatus* rc) {
  return ctx->ft->getEntry(ctx, name, rc);
}

static inline CMPIData CMGetContextEntryAt(const CMPIContext* ctx, CMPICount index,
                                           CMPIString** name, CMPIStatus* rc) {
  return ctx->ft->getEntryAt(ctx, index, name, rc);
}

static inline CMPICount CMGetContextEntryCount(const CMPIContext* ctx, CMPIStatus* rc) {
  return ctx->ft->getEntryCount(ctx, rc);
}

static inline CMPIStatus CMAddContextEntry(const CMPIContext* ctx, const char* name,
                                           const CMPIValue* value, CMPIType type) {
  return ctx->ft->addEntry(ctx, name, value, type);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIResultFT. */

static inline CMPIStatus CMReturnData(const CMPIResult* rslt, const CMPIValue* value,
                                      CMPIType type) {
  return rslt->ft->returnData(rslt, value, type);
}

static inline CMPIStatus CMReturnInstance(const CMPIResult* rslt, const CMPIInstance* inst) {
  return rslt->ft->returnInstance(rslt, inst);
}

static inline CMPIStatus CMReturnObjectPath(const CMPIResult* rslt, const CMPIObjectPath* op) {
  return rslt->ft->returnObjectPath(rslt, op);
}

static inline CMPIStatus CMReturnDone(const CMPIResult* rslt) {
  return rslt->ft->returnDone(rslt);
}

static inline CMPIStatus CMReturnError(const CMPIResult* rslt, const CMPIError* err) {
  if (!rslt->ft->returnError) return cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL);
  return rslt->ft->returnError(rslt, err);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIDateTimeFT. */

static inline CMPIUint64 CMGetBinaryFormat(const CMPIDateTime* dt, CMPIStatus* rc) {
  return dt->ft->getBinaryFormat(dt, rc);
}

static inline CMPIString* CMGetStringFormat(const CMPIDateTime* dt, CMPIStatus* rc) {
  return dt->ft->getStringFormat(dt, rc);
}

static inline CMPIBoolean CMIsInterval(const CMPIDateTime* dt, CMPIStatus* rc) {
  return dt->ft->isInterval(dt, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIEnumerationFT. */

static inline CMPIData CMGetNext(const CMPIEnumeration* en, CMPIStatus* rc) {
  return en->ft->getNext(en, rc);
}

static inline CMPIBoolean CMHasNext(const CMPIEnumeration* en, CMPIStatus* rc) {
  return en->ft->hasNext(en, rc);
}

static inline CMPIArray* CMToArray(const CMPIEnumeration* en, CMPIStatus* rc) {
  return en->ft->toArray(en, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPISelectExpFT, CMPISelectCondFT, CMPISubCondFT, CMPIPredicateFT. */

static inline CMPIBoolean CMEvaluateSelExp(const CMPISelectExp* se, const CMPIInstance* inst,
                                           CMPIStatus* rc) {
  return se->ft->evaluate(se, inst, rc);
}

static inline CMPIBoolean CMEvaluateSelExpUsingAccessor(const CMPISelectExp* se,
                                                        CMPIAccessor* accessor, void* parm,
                                                        CMPIStatus* rc) {
  return se->ft->evaluateUsingAccessor(se, accessor, parm, rc);
}

static inline CMPIString* CMGetSelExpString(const CMPISelectExp* se, CMPIStatus* rc) {
  return se->ft->getString(se, rc);
}

static inline CMPISelectCond* CMGetDoc(const CMPISelectExp* se, CMPIStatus* rc) {
  return se->ft->getDOC(se, rc);
}

static inline CMPISelectCond* CMGetCod(const CMPISelectExp* se, CMPIStatus* rc) {
  return se->ft->getCOD(se, rc);
}

static inline CMPICount CMGetSubCondCountAndType(const CMPISelectCond* sc, int* type,
                                                 CMPIStatus* rc) {
  return sc->ft->getCountAndType(sc, type, rc);
}

static inline CMPISubCond* CMGetSubCondAt(const CMPISelectCond* sc, CMPICount index,
                                          CMPIStatus* rc) {
  return sc->ft->getSubCondAt(sc, index, rc);
}

static inline CMPICount CMGetPredicateCount(const CMPISubCond* sc, CMPIStatus* rc) {
  return sc->ft->getCount(sc, rc);
}

static inline CMPIPredicate* CMGetPredicateAt(const CMPISubCond* sc, CMPICount index,
                                              CMPIStatus* rc) {
  return sc->ft->getPredicateAt(sc, index, rc);
}

static inline CMPIPredicate* CMGetPredicate(const CMPISubCond* sc, const char* name,
                                            CMPIStatus* rc) {
  return sc->ft->getPredicate(sc, name, rc);
}

static inline CMPIStatus CMGetPredicateData(const CMPIPredicate* pr, CMPIType* type, CMPIPredOp* op,
                                            CMPIString** lhs, CMPIString** rhs) {
  return pr->ft->getData(pr, type, op, lhs, rhs);
}

static inline CMPIBoolean CMEvaluatePredicateUsingAccessor(const CMPIPredicate* pr,
                                                           CMPIAccessor* accessor, void* parm,
                                                           CMPIStatus* rc) {
  return pr->ft->evaluateUsingAccessor(pr, accessor, parm, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIErrorFT. */

static inline CMPIErrorType CMGetErrorType(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getErrorType(er, rc);
}

static inline CMPIString* CMGetOtherErrorType(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getOtherErrorType(er, rc);
}

static inline CMPIString* CMGetOwningEntity(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getOwningEntity(er, rc);
}

static inline CMPIString* CMGetMessageID(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getMessageID(er, rc);
}

static inline CMPIString* CMGetErrorMessage(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getMessage(er, rc);
}

static inline CMPIErrorSeverity CMGetPerceivedSeverity(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getPerceivedSeverity(er, rc);
}

static inline CMPIErrorProbableCause CMGetProbableCause(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getProbableCause(er, rc);
}

static inline CMPIString* CMGetProbableCauseDescription(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getProbableCauseDescription(er, rc);
}

static inline CMPIArray* CMGetRecommendedActions(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getRecommendedActions(er, rc);
}

static inline CMPIString* CMGetErrorSource(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getErrorSource(er, rc);
}

static inline CMPIErrorSrcFormat CMGetErrorSourceFormat(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getErrorSourceFormat(er, rc);
}

static inline CMPIString* CMGetOtherErrorSourceFormat(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getOtherErrorSourceFormat(er, rc);
}

static inline CMPIrc CMGetCIMStatusCode(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getCIMStatusCode(er, rc);
}

static inline CMPIString* CMGetCIMStatusCodeDescription(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getCIMStatusCodeDescription(er, rc);
}

static inline CMPIArray* CMGetMessageArguments(const CMPIError* er, CMPIStatus* rc) {
  return er->ft->getMessageArguments(er, rc);
}

static inline CMPIStatus CMSetErrorType(const CMPIError* er, CMPIErrorType type) {
  return er->ft->setErrorType(er, type);
}

static inline CMPIStatus CMSetOtherErrorType(const CMPIError* er, const char* type) {
  return er->ft->setOtherErrorType(er, type);
}

static inline CMPIStatus CMSetProbableCauseDescription(const CMPIError* er, const char* text) {
  return er->ft->setProbableCauseDescription(er, text);
}

static inline CMPIStatus CMSetRecommendedActions(const CMPIError* er, const CMPIArray* actions) {
  return er->ft->setRecommendedActions(er, actions);
}

static inline CMPIStatus CMSetErrorSource(const CMPIError* er, const char* source) {
  return er->ft->setErrorSource(er, source);
}

static inline CMPIStatus CMSetErrorSourceFormat(const CMPIError* er, CMPIErrorSrcFormat format) {
  return er->ft->setErrorSourceFormat(er, format);
}

static inline CMPIStatus CMSetOtherErrorSourceFormat(const CMPIError* er, const char* format) {
  return er->ft->setOtherErrorSourceFormat(er, format);
}

static inline CMPIStatus CMSetCIMStatusCodeDescription(const CMPIError* er, const char* text) {
  return er->ft->setCIMStatusCodeDescription(er, text);
}

static inline CMPIStatus CMSetMessageArguments(const CMPIError* er, const CMPIArray* arguments) {
  return er->ft->setMessageArguments(er, arguments);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIBrokerFT: operations that the broker carries out. */

static inline unsigned int CBGetCapabilities(const CMPIBroker* mb) {
  return mb->bft->brokerCapabilities;
}

static inline CMPIVersion CBBrokerVersion(const CMPIBroker* mb) {
  return mb->bft->brokerVersion;
}

static inline const char* CBBrokerName(const CMPIBroker* mb) {
  return mb->bft->brokerName;
}

static inline CMPIContext* CBPrepareAttachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
  return mb->bft->prepareAttachThread(mb, ctx);
}

static inline CMPIStatus CBAttachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
  return mb->bft->attachThread(mb, ctx);
}

static inline CMPIStatus CBDetachThread(const CMPIBroker* mb, const CMPIContext* ctx) {
  return mb->bft->detachThread(mb, ctx);
}

static inline CMPIStatus CBDeliverIndication(const CMPIBroker* mb, const CMPIContext* ctx,
                                             const char* nameSpace, const CMPIInstance* ind) {
  return mb->bft->deliverIndication(mb, ctx, nameSpace, ind);
}

static inline CMPIEnumeration* CBEnumInstanceNames(const CMPIBroker* mb, const CMPIContext* ctx,
                                                   const CMPIObjectPath* op, CMPIStatus* rc) {
  return mb->bft->enumerateInstanceNames(mb, ctx, op, rc);
}

static inline CMPIEnumeration* CBEnumInstances(const CMPIBroker* mb, const CMPIContext* ctx,
                                               const CMPIObjectPath* op, const char** properties,
                                               CMPIStatus* rc) {
  return mb->bft->enumerateInstances(mb, ctx, op, properties, rc);
}

static inline CMPIInstance* CBGetInstance(const CMPIBroker* mb, const CMPIContext* ctx,
                                          const CMPIObjectPath* op, const char** properties,
                                          CMPIStatus* rc) {
  return mb->bft->getInstance(mb, ctx, op, properties, rc);
}

static inline CMPIObjectPath* CBCreateInstance(const CMPIBroker* mb, const CMPIContext* ctx,
                                               const CMPIObjectPath* op, const CMPIInstance* inst,
                                               CMPIStatus* rc) {
  return mb->bft->createInstance(mb, ctx, op, inst, rc);
}

static inline CMPIStatus CBModifyInstance(const CMPIBroker* mb, const CMPIContext* ctx,
                                          const CMPIObjectPath* op, const CMPIInstance* inst,
                                          const char** properties) {
  return mb->bft->modifyInstance(mb, ctx, op, inst, properties);
}

static inline CMPIStatus CBDeleteInstance(const CMPIBroker* mb, const CMPIContext* ctx,
                                          const CMPIObjectPath* op) {
  return mb->bft->deleteInstance(mb, ctx, op);
}

static inline CMPIEnumeration* CBExecQuery(const CMPIBroker* mb, const CMPIContext* ctx,
                                           const CMPIObjectPath* op, const char* query,
                                           const char* lang, CMPIStatus* rc) {
  return mb->bft->execQuery(mb, ctx, op, query, lang, rc);
}

static inline CMPIEnumeration* CBAssociators(const CMPIBroker* mb, const CMPIContext* ctx,
                                             const CMPIObjectPath* op, const char* assocClass,
                                             const char* resultClass, const char* role,
                                             const char* resultRole, const char** properties,
                                             CMPIStatus* rc) {
  return mb->bft->associators(mb, ctx, op, assocClass, resultClass, role, resultRole, properties,
                              rc);
}

static inline CMPIEnumeration* CBAssociatorNames(const CMPIBroker* mb, const CMPIContext* ctx,
                                                 const CMPIObjectPath* op, const char* assocClass,
                                                 const char* resultClass, const char* role,
                                                 const char* resultRole, CMPIStatus* rc) {
  return mb->bft->associatorNames(mb, ctx, op, assocClass, resultClass, role, resultRole, rc);
}

static inline CMPIEnumeration* CBReferences(const CMPIBroker* mb, const CMPIContext* ctx,
                                            const CMPIObjectPath* op, const char* resultClass,
                                            const char* role, const char** properties,
                                            CMPIStatus* rc) {
  return mb->bft->references(mb, ctx, op, resultClass, role, properties, rc);
}

static inline CMPIEnumeration* CBReferenceNames(const CMPIBroker* mb, const CMPIContext* ctx,
                                                const CMPIObjectPath* op, const char* resultClass,
                                                const char* role, CMPIStatus* rc) {
  return mb->bft->referenceNames(mb, ctx, op, resultClass, role, rc);
}

static inline CMPIData CBInvokeMethod(const CMPIBroker* mb, const CMPIContext* ctx,
                                      const CMPIObjectPath* op, const char* method,
                                      const CMPIArgs* in, CMPIArgs* out, CMPIStatus* rc) {
  return mb->bft->invokeMethod(mb, ctx, op, method, in, out, rc);
}

static inline CMPIStatus CBSetProperty(const CMPIBroker* mb, const CMPIContext* ctx,
                                       const CMPIObjectPath* op, const char* name,
                                       const CMPIValue* value, CMPIType type) {
  return mb->bft->setProperty(mb, ctx, op, name, value, type);
}

static inline CMPIData CBGetProperty(const CMPIBroker* mb, const CMPIContext* ctx,
                                     const CMPIObjectPath* op, const char* name, CMPIStatus* rc) {
  return mb->bft->getProperty(mb, ctx, op, name, rc);
}

/* ------------------------------------------------------------------------------------------------
 * CMPIBrokerExtFT. For a slot that may be null and is, the result is ENOSYS. */

static inline char* CMResolveFileName(const CMPIBroker* mb, const char* name) {
  return mb->xft->resolveFileName(name);
}

static inline CMPI_THREAD_TYPE CMNewThread(const CMPIBroker* mb, CMPIThreadFunc start, void* parm,
                                           int detached) {
  return mb->xft->newThread(start, parm, detached);
}

static inline int CMJoinThread(const CMPIBroker* mb, CMPI_THREAD_TYPE thread,
                               CMPI_THREAD_RETURN* result) {
  return mb->xft->joinThread ? mb->xft->joinThread(thread, result) : ENOSYS;
}

static inline int CMExitThread(const CMPIBroker* mb, CMPI_THREAD_RETURN result) {
  return mb->xft->exitThread ? mb->xft->exitThread(result) : ENOSYS;
}

static inline int CMCancelThread(const CMPIBroker* mb, CMPI_THREAD_TYPE thread) {
  return mb->xft->cancelThread ? mb->xft->cancelThread(thread) : ENOSYS;
}

static inline int CMThreadSleep(const CMPIBroker* mb, CMPIUint32 milliseconds) {
  return mb->xft->threadSleep ? mb->xft->threadSleep(milliseconds) : ENOSYS;
}

static inline int CMThreadOnce(const CMPIBroker* mb, int* once, CMPIThreadOnceFunc init) {
  return mb->xft->threadOnce(once, init);
}

static inline int CMCreateThreadKey(const CMPIBroker* mb, CMPI_THREAD_KEY_TYPE* key,
                                    CMPIThreadKeyCleanupFunc cleanup) {
  return mb->xft->createThreadKey(key, cleanup);
}

static inline int CMDestroyThreadKey(const CMPIBroker* mb, CMPI_THREAD_KEY_TYPE key) {
  return mb->xft->destroyThreadKey(key);
}

static inline void* CMGetThreadSpecific(const CMPIBroker* mb, CMPI_THREAD_KEY_TYPE key) {
  return mb->xft->getThreadSpecific(key);
}

static inline int CMSetThreadSpecific(const CMPIBroker* mb, CMPI_THREAD_KEY_TYPE key, void* value) {
  return mb->xft->setThreadSpecific(key, value);
}

static inline CMPI_MUTEX_TYPE CMNewMutex(const CMPIBroker* mb, int options) {
  return mb->xft->newMutex(options);
}

static inline void CMDestroyMutex(const CMPIBroker* mb, CMPI_MUTEX_TYPE mutex) {
  mb->xft->destroyMutex(mutex);
}

static inline void CMLockMutex(const CMPIBroker* mb, CMPI_MUTEX_TYPE mutex) {
  mb->xft->lockMutex(mutex);
}

static inline void CMUnlockMutex(const CMPIBroker* mb, CMPI_MUTEX_TYPE mutex) {
  mb->xft->unlockMutex(mutex);
}

static inline CMPI_COND_TYPE CMNewCondition(const CMPIBroker* mb, int options) {
  return mb->xft->newCondition(options);
}

static inline void CMDestroyCondition(const CMPIBroker* mb, CMPI_COND_TYPE cond) {
  mb->xft->destroyCondition(cond);
}

static inline int CMCondWait(const CMPIBroker* mb, CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex) {
  return mb->xft->condWait(cond, mutex);
}

static inline int CMTimedCondWait(const CMPIBroker* mb, CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex,
                                  struct timespec* wait) {
  return mb->xft->timedCondWait(cond, mutex, wait);
}

static inline int CMSignalCondition(const CMPIBroker* mb, CMPI_COND_TYPE cond) {
  return mb->xft->signalCondition ? mb->xft->signalCondition(cond) : ENOSYS;
}

/* ------------------------------------------------------------------------------------------------
 * CMPIBrokerMemFT. A broker without the table or the slot yields null pointers, and there is then
 * nothing that could be given up: the CMFree... helpers do nothing, objects go with the request. */

static inline CMPIGcStat* CBMark(const CMPIBroker* mb, CMPIStatus* rc) {
  if ((!mb->mft || !mb->mft->mark) && cmpi_not_supported(rc)) return CMPI_NULL;
  return mb->mft->mark(mb, rc);
}

static inline CMPIStatus CBRelease(const CMPIBroker* mb, const CMPIGcStat* gc) {
  if (!mb->mft || !mb->mft->release) return cmpi_status(CMPI_RC_ERR_NOT_SUPPORTED, CMPI_NULL);
  return mb->mft->release(mb, gc);
}

static inline void* CMMalloc(const CMPIBroker* mb, size_t size) {
  return mb->mft && mb->mft->cmpiMalloc ? mb->mft->cmpiMalloc(mb, size) : CMPI_NULL;
}

static inline void* CMCalloc(const CMPIBroker* mb, size_t count, size_t size) {
  return mb->mft && mb->mft->cmpiCalloc ? mb->mft->cmpiCalloc(mb, count, size) : CMPI_NULL;
}

/* On a null result ptr is still the caller's. */
static inline void* CMRealloc(const CMPIBroker* mb, void* ptr, size_t size) {
  return mb->mft && mb->mft->cmpiRealloc ? mb->mft->cmpiRealloc(mb, ptr, size) : CMPI_NULL;
}

static inline char* CMStrDup(const CMPIBroker* mb, const char* str) {
  return mb->mft && mb->mft->cmpiStrDup ? mb->mft->cmpiStrDup(mb, str) : CMPI_NULL;
}

static inline void CMFree(const CMPIBroker* mb, void* ptr) {
  if (mb->mft && mb->mft->cmpiFree) mb->mft->cmpiFree(mb, ptr);
}

static inline void CMFreeInstance(const CMPIBroker* mb, CMPIInstance* inst) {
  if (mb->mft && mb->mft->freeInstance) mb->mft->freeInstance(mb, inst);
}

static inline void CMFreeObjectPath(const CMPIBroker* mb, CMPIObjectPath* op) {
  if (mb->mft && mb->mft->freeObjectPath) mb->mft->freeObjectPath(mb, op);
}

static inline void CMFreeArgs(const CMPIBroker* mb, CMPIArgs* args) {
  if (mb->mft && mb->mft->freeArgs) mb->mft->freeArgs(mb, args);
}

static inline void CMFreeString(const CMPIBroker* mb, CMPIString* str) {
  if (mb->mft && mb->mft->freeString) mb->mft->freeString(mb, str);
}

static inline void CMFreeArray(const CMPIBroker* mb, CMPIArray* array) {
  if (mb->mft && mb->mft->freeArray) mb->mft->freeArray(mb, array);
}

static inline void CMFreeDateTime(const CMPIBroker* mb, CMPIDateTime* dt) {
  if (mb->mft && mb->mft->freeDateTime) mb->mft->freeDateTime(mb, dt);
}

static inline void CMFreeSelectExp(const CMPIBroker* mb, CMPISelectExp* se) {
  if (mb->mft && mb->mft->freeSelectExp) mb->mft->freeSelectExp(mb, se);
}

#ifdef __cplusplus
}
#endif

/* ------------------------------------------------------------------------------------------------
 * Factories. CM...MIStub(pfx, pn, broker, hook) defines the function pn_Create_...MI, with C
 * linkage in C++ too, so that the same stub serves both languages:
 *
 *   pfx     start of the names of the provider's functions, which the file declares before
 *   pn      the provider's name as registered
 *   broker  a variable of the file, const CMPIBroker*: gets the broker
 *   hook    a statement that runs before the factory returns, or CMNoHook. It sees the arguments of
 *           the factory, brkr, ctx and rc; rc may be null, and says CMPI_RC_OK before the hook
 *
 * The names of the functions follow from the table slots:
 *
 *   Instance     pfx + Cleanup, EnumInstanceNames, EnumInstances, GetInstance, CreateInstance,
 *                ModifyInstance, DeleteInstance, ExecQuery
 *   Association  pfx + AssociationCleanup, Associators, AssociatorNames, References, ReferenceNames
 *   Method       pfx + MethodCleanup, InvokeMethod
 *   Property     pfx + PropertyCleanup, SetProperty, GetProperty; the slot setPropertyWithOrigin
 *                stays null
 *   Indication   pfx + IndicationCleanup, AuthorizeFilter, MustPoll, ActivateFilter,
 *                DeActivateFilter, EnableIndications, DisableIndications */

#define CMNoHook

#define CMInstanceMIStub(pfx, pn, broker, hook)                                                 \
  CMPI_EXTERN_C CMPIInstanceMI* pn##_Create_InstanceMI(const CMPIBroker* brkr,                  \
                                                       const CMPIContext* ctx, CMPIStatus* rc); \
  CMPIInstanceMI* pn##_Create_InstanceMI(const CMPIBroker* brkr, const CMPIContext* ctx,        \
                                         CMPIStatus* rc) {                                      \
    static const CMPIInstanceMIFT table = {                                                     \
        CMPI_VERSION,           CMPI_VERSION,        "instance" #pn,   pfx##Cleanup,            \
        pfx##EnumInstanceNames, pfx##EnumInstances,  pfx##GetInstance, pfx##CreateInstance,     \
        pfx##ModifyInstance,    pfx##DeleteInstance, pfx##ExecQuery,                            \
    };                                                                                          \
    static CMPIInstanceMI mi = {CMPI_NULL, &table};                                             \
    (void)ctx;                                                                                  \
    (broker) = brkr;                                                                            \
    CMSetStatus(rc, CMPI_RC_OK);                                                                \
    hook;                                                                                       \
    return &mi;                                                                                 \
  }

#define CMAssociationMIStub(pfx, pn, broker, hook)                                             \
  CMPI_EXTERN_C CMPIAssociationMI* pn##_Create_AssociationMI(                                  \
      const CMPIBroker* brkr, const CMPIContext* ctx, CMPIStatus* rc);                         \
  CMPIAssociationMI* pn##_Create_AssociationMI(const CMPIBroker* brkr, const CMPIContext* ctx, \
                                               CMPIStatus* rc) {                               \
    static const CMPIAssociationMIFT table = {                                                 \
        CMPI_VERSION,     CMPI_VERSION,         "association" #pn, pfx##AssociationCleanup,    \
        pfx##Associators, pfx##AssociatorNames, pfx##References,   pfx##ReferenceNames,        \
    };                                                                                         \
    static CMPIAssociationMI mi = {CMPI_NULL, &table};                                         \
    (void)ctx;                                                                                 \
    (broker) = brkr;                                                                           \
    CMSetStatus(rc, CMPI_RC_OK);                                                               \
    hook;                                                                                      \
    return &mi;                                                                                \
  }

#define CMMethodMIStub(pfx, pn, broker, hook)                                                      \
  CMPI_EXTERN_C CMPIMethodMI* pn##_Create_MethodMI(const CMPIBroker* brkr, const CMPIContext* ctx, \
                                                   CMPIStatus* rc);                                \
  CMPIMethodMI* pn##_Create_MethodMI(const CMPIBroker* brkr, const CMPIContext* ctx,               \
                                     CMPIStatus* rc) {                                             \
    static const CMPIMethodMIFT table = {                                                          \
        CMPI_VERSION, CMPI_VERSION, "method" #pn, pfx##MethodCleanup, pfx##InvokeMethod,           \
    };                                                                                             \
    static CMPIMethodMI mi = {CMPI_NULL, &table};                                                  \
    (void)ctx;                                                                                     \
    (broker) = brkr;                                                                               \
    CMSetStatus(rc, CMPI_RC_OK);                                                                   \
    hook;                                                                                          \
    return &mi;                                                                                    \
  }

#define CMPropertyMIStub(pfx, pn, broker, hook)                                                 \
  CMPI_EXTERN_C CMPIPropertyMI* pn##_Create_PropertyMI(const CMPIBroker* brkr,                  \
                                                       const CMPIContext* ctx, CMPIStatus* rc); \
  CMPIPropertyMI* pn##_Create_PropertyMI(const CMPIBroker* brkr, const CMPIContext* ctx,        \
                                         CMPIStatus* rc) {                                      \
    static const CMPIPropertyMIFT table = {                                                     \
        CMPI_VERSION,     CMPI_VERSION,     "property" #pn, pfx##PropertyCleanup,               \
        pfx##SetProperty, pfx##GetProperty, CMPI_NULL,                                          \
    };                                                                                          \
    static CMPIPropertyMI mi = {CMPI_NULL, &table};                                             \
    (void)ctx;                                                                                  \
    (broker) = brkr;                                                                            \
    CMSetStatus(rc, CMPI_RC_OK);                                                                \
    hook;                                                                                       \
    return &mi;                                                                                 \
  }

#define CMIndicationMIStub(pfx, pn, broker, hook)                                            \
  CMPI_EXTERN_C CMPIIndicationMI* pn##_Create_IndicationMI(                                  \
      const CMPIBroker* brkr, const CMPIContext* ctx, CMPIStatus* rc);                       \
  CMPIIndicationMI* pn##_Create_IndicationMI(const CMPIBroker* brkr, const CMPIContext* ctx, \
                                             CMPIStatus* rc) {                               \
    static const CMPIIndicationMIFT table = {                                                \
        CMPI_VERSION,           CMPI_VERSION,                                                \
        "indication" #pn,       pfx##IndicationCleanup,                                      \
        pfx##AuthorizeFilter,   pfx##MustPoll,                                               \
        pfx##ActivateFilter,    pfx##DeActivateFilter,                                       \
        pfx##EnableIndications, pfx##DisableIndications,                                     \
    };                                                                                       \
    static CMPIIndicationMI mi = {CMPI_NULL, &table};                                        \
    (void)ctx;                                                                               \
    (broker) = brkr;                                                                         \
    CMSetStatus(rc, CMPI_RC_OK);                                                             \
    hook;                                                                                    \
    return &mi;                                                                              \
  }

#endif
