/* The function tables of the CMPI provider interface, slot for slot at level 2.0.
 *
 * The conventions stand in cmpidt.h. In short: objects belong to the broker's context of the
 * request; rc may be null; texts are NUL-terminated UTF-8; names of classes, properties and keys
 * are compared without regard to case. A property list (properties) is an array of names that ends
 * with a null pointer, and a null list means all properties.
 *
 * A slot marked "May be null" is one that brokers leave out: test it before the call, or use the
 * helper of cmpimacs.h, which answers CMPI_RC_ERR_NOT_SUPPORTED for it. A provider may leave slots
 * of its own tables null only where marked. ftVersion, brokerVersion and miVersion are numbers for
 * a person to read: nothing is decided by them. */
#ifndef CMPIFT_H
#define CMPIFT_H

#include <stddef.h>

#include "cmpidt.h"
#include "cmpios.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------------------------
 * Operations of the broker: what a provider asks of other providers and of the repository. */

struct CMPIBrokerFT {
  unsigned int brokerCapabilities; /* CMPI_MB_... */
  CMPIVersion brokerVersion;
  const char* brokerName;

  /* Threads of a provider's own call the broker only between attachThread and detachThread, with a
   * context that prepareAttachThread made from the request's on the thread that had the request. */
  CMPIContext* (*prepareAttachThread)(const CMPIBroker* mb, const CMPIContext* ctx);
  CMPIStatus (*attachThread)(const CMPIBroker* mb, const CMPIContext* ctx);
  CMPIStatus (*detachThread)(const CMPIBroker* mb, const CMPIContext* ctx);

  /* Hands an indication to the subscribers in nameSpace; ind is copied. */
  CMPIStatus (*deliverIndication)(const CMPIBroker* mb, const CMPIContext* ctx,
                                  const char* nameSpace, const CMPIInstance* ind);

  /* CIM operations. op names the namespace and class, with keys where an instance is meant. */
  CMPIEnumeration* (*enumerateInstanceNames)(const CMPIBroker* mb, const CMPIContext* ctx,
                                             const CMPIObjectPath* op, CMPIStatus* rc);
  CMPIInstance* (*getInstance)(const CMPIBroker* mb, const CMPIContext* ctx,
                               const CMPIObjectPath* op, const char** properties, CMPIStatus* rc);
  /* Result: the path of the new instance. */
  CMPIObjectPath* (*createInstance)(const CMPIBroker* mb, const CMPIContext* ctx,
                                    const CMPIObjectPath* op, const CMPIInstance* inst,
                                    CMPIStatus* rc);
  CMPIStatus (*modifyInstance)(const CMPIBroker* mb, const CMPIContext* ctx,
                               const CMPIObjectPath* op, const CMPIInstance* inst,
                               const char** properties);
  CMPIStatus (*deleteInstance)(const CMPIBroker* mb, const CMPIContext* ctx,
                               const CMPIObjectPath* op);
  CMPIEnumeration* (*execQuery)(const CMPIBroker* mb, const CMPIContext* ctx,
                                const CMPIObjectPath* op, const char* query, const char* lang,
                                CMPIStatus* rc);
  CMPIEnumeration* (*enumerateInstances)(const CMPIBroker* mb, const CMPIContext* ctx,
                                         const CMPIObjectPath* op, const char** properties,
                                         CMPIStatus* rc);

  /* Associations of the instance op. A null filter (assocClass, resultClass, role, resultRole) lets
   * everything through. */
  CMPIEnumeration* (*associators)(const CMPIBroker* mb, const CMPIContext* ctx,
                                  const CMPIObjectPath* op, const char* assocClass,
                                  const char* resultClass, const char* role, const char* resultRole,
                                  const char** properties, CMPIStatus* rc);
  CMPIEnumeration* (*associatorNames)(const CMPIBroker* mb, const CMPIContext* ctx,
                                      const CMPIObjectPath* op, const char* assocClass,
                                      const char* resultClass, const char* role,
                                      const char* resultRole, CMPIStatus* rc);
  CMPIEnumeration* (*references)(const CMPIBroker* mb, const CMPIContext* ctx,
                                 const CMPIObjectPath* op, const char* resultClass,
                                 const char* role, const char** properties, CMPIStatus* rc);
  CMPIEnumeration* (*referenceNames)(const CMPIBroker* mb, const CMPIContext* ctx,
                                     const CMPIObjectPath* op, const char* resultClass,
                                     const char* role, CMPIStatus* rc);

  /* Result: the method's return value; out gets the outgoing parameters. */
  CMPIData (*invokeMethod)(const CMPIBroker* mb, const CMPIContext* ctx, const CMPIObjectPath* op,
                           const char* method, const CMPIArgs* in, CMPIArgs* out, CMPIStatus* rc);

  CMPIStatus (*setProperty)(const CMPIBroker* mb, const CMPIContext* ctx, const CMPIObjectPath* op,
                            const char* name, const CMPIValue* value, CMPIType type);
  CMPIData (*getProperty)(const CMPIBroker* mb, const CMPIContext* ctx, const CMPIObjectPath* op,
                          const char* name, CMPIStatus* rc);
};

/* ------------------------------------------------------------------------------------------------
 * Factories of objects, and other services. */

struct CMPIBrokerEncFT {
  CMPIVersion ftVersion;

  /* Result: an instance of op's class in op's namespace. Whether it takes over op's keys, and
   * what it does for a class that the broker does not know, differs between brokers. */
  CMPIInstance* (*newInstance)(const CMPIBroker* mb, const CMPIObjectPath* op, CMPIStatus* rc);
  CMPIObjectPath* (*newObjectPath)(const CMPIBroker* mb, const char* nameSpace,
                                   const char* className, CMPIStatus* rc);
  CMPIArgs* (*newArgs)(const CMPIBroker* mb, CMPIStatus* rc);
  CMPIString* (*newString)(const CMPIBroker* mb, const char* chars, CMPIStatus* rc);
  /* Result: size null elements of the (not array) type. */
  CMPIArray* (*newArray)(const CMPIBroker* mb, CMPICount size, CMPIType type, CMPIStatus* rc);

  /* Result: now; a moment (microseconds since 1970-01-01 00:00 UTC) or an interval (microseconds);
   * what the 25 characters of a CIM datetime say. */
  CMPIDateTime* (*newDateTime)(const CMPIBroker* mb, CMPIStatus* rc);
  CMPIDateTime* (*newDateTimeFromBinary)(const CMPIBroker* mb, CMPIUint64 binTime,
                                         CMPIBoolean interval, CMPIStatus* rc);
  CMPIDateTime* (*newDateTimeFromChars)(const CMPIBroker* mb, const char* utcTime, CMPIStatus* rc);

  /* projection: null, or gets the names of the properties that the query selects. */
  CMPISelectExp* (*newSelectExp)(const CMPIBroker* mb, const char* query, const char* lang,
                                 CMPIArray** projection, CMPIStatus* rc);

  /* Whether op's class is className or derived from it. */
  CMPIBoolean (*classPathIsA)(const CMPIBroker* mb, const CMPIObjectPath* op, const char* className,
                              CMPIStatus* rc);

  /* For any object: a text of its content, whether it is of the named CMPI type, that name. */
  CMPIString* (*toString)(const CMPIBroker* mb, const void* object, CMPIStatus* rc);
  CMPIBoolean (*isOfType)(const CMPIBroker* mb, const void* object, const char* type,
                          CMPIStatus* rc);
  CMPIString* (*getType)(const CMPIBroker* mb, const void* object, CMPIStatus* rc);

  /* Result: the message msgId in the client's language, or defMsg, with its marks replaced by count
   * pairs of type and value, which follow (see CMFmt... in cmpimacs.h). */
  CMPIString* (*getMessage)(const CMPIBroker* mb, const char* msgId, const char* defMsg,
                            CMPIStatus* rc, CMPICount count, ...);

  /* Puts text, or else string, into the broker's log or trace; id is the name of who says so. */
  CMPIStatus (*logMessage)(const CMPIBroker* mb, CMPISeverity severity, const char* id,
                           const char* text, const CMPIString* string);
  CMPIStatus (*trace)(const CMPIBroker* mb, CMPILevel level, const char* component,
                      const char* text, const CMPIString* string);

  /* May be null. */
  CMPIError* (*newCMPIError)(const CMPIBroker* mb, const char* owner, const char* msgID,
                             const char* msg, CMPIErrorSeverity severity,
                             CMPIErrorProbableCause cause, CMPIrc cimStatusCode, CMPIStatus* rc);

  /* May be null. Message files in the client's language; the handle lives until it is closed. */
  CMPIStatus (*openMessageFile)(const CMPIBroker* mb, const char* msgFile,
                                CMPIMsgFileHandle* handle);
  /* May be null. */
  CMPIStatus (*closeMessageFile)(const CMPIBroker* mb, CMPIMsgFileHandle handle);
  /* May be null. As getMessage, from an open file. */
  CMPIString* (*getMessage2)(const CMPIBroker* mb, const char* msgId, CMPIMsgFileHandle handle,
                             const char* defMsg, CMPIStatus* rc, CMPICount count, ...);
};

/* ------------------------------------------------------------------------------------------------
 * The operating system. An int is 0 or an error number, unless said. Handles are void*. */

struct CMPIBrokerExtFT {
  CMPIVersion ftVersion;

  /* Result: the file name of a library called name on this system; the broker's. */
  char* (*resolveFileName)(const char* name);

  CMPI_THREAD_TYPE (*newThread)(CMPIThreadFunc start, void* parm, int detached);
  /* May be null. *result gets what the thread returned. */
  int (*joinThread)(CMPI_THREAD_TYPE thread, CMPI_THREAD_RETURN* result);
  /* May be null. Ends the calling thread. */
  int (*exitThread)(CMPI_THREAD_RETURN result);
  /* May be null. */
  int (*cancelThread)(CMPI_THREAD_TYPE thread);
  /* May be null. */
  int (*threadSleep)(CMPIUint32 milliseconds);
  /* Runs init unless it ran for this control word, which starts as 0. */
  int (*threadOnce)(int* once, CMPIThreadOnceFunc init);

  int (*createThreadKey)(CMPI_THREAD_KEY_TYPE* key, CMPIThreadKeyCleanupFunc cleanup);
  int (*destroyThreadKey)(CMPI_THREAD_KEY_TYPE key);
  void* (*getThreadSpecific)(CMPI_THREAD_KEY_TYPE key);
  int (*setThreadSpecific)(CMPI_THREAD_KEY_TYPE key, void* value);

  CMPI_MUTEX_TYPE (*newMutex)(int options); /* options: 0 */
  void (*destroyMutex)(CMPI_MUTEX_TYPE mutex);
  void (*lockMutex)(CMPI_MUTEX_TYPE mutex);
  void (*unlockMutex)(CMPI_MUTEX_TYPE mutex);

  CMPI_COND_TYPE (*newCondition)(int options); /* options: 0 */
  void (*destroyCondition)(CMPI_COND_TYPE cond);
  /* The mutex is held by the caller, and is again when the call returns. wait: absolute time. */
  int (*condWait)(CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex);
  int (*timedCondWait)(CMPI_COND_TYPE cond, CMPI_MUTEX_TYPE mutex, struct timespec* wait);
  /* May be null. */
  int (*signalCondition)(CMPI_COND_TYPE cond);
};

/* ------------------------------------------------------------------------------------------------
 * Memory of the request. The whole table may be missing: CMPIBroker.mft may be null, and in a
 * table that is there, each slot after release may be null. */

struct CMPIBrokerMemFT {
  CMPIVersion ftVersion;

  /* All objects made between mark and release are gone after release. */
  CMPIGcStat* (*mark)(const CMPIBroker* mb, CMPIStatus* rc);
  CMPIStatus (*release)(const CMPIBroker* mb, const CMPIGcStat* gc);

  /* May be null, all five. Bytes that go away with the request unless freed before; sizes in bytes.
   */
  void* (*cmpiMalloc)(const CMPIBroker* mb, size_t size);
  void* (*cmpiCalloc)(const CMPIBroker* mb, size_t count, size_t size);
  void* (*cmpiRealloc)(const CMPIBroker* mb, void* ptr, size_t size);
  char* (*cmpiStrDup)(const CMPIBroker* mb, const char* str);
  void (*cmpiFree)(const CMPIBroker* mb, void* ptr);

  /* May be null, all seven. Give up an object before the request ends. */
  void (*freeInstance)(const CMPIBroker* mb, CMPIInstance* inst);
  void (*freeObjectPath)(const CMPIBroker* mb, CMPIObjectPath* obj);
  void (*freeArgs)(const CMPIBroker* mb, CMPIArgs* args);
  void (*freeString)(const CMPIBroker* mb, CMPIString* str);
  void (*freeArray)(const CMPIBroker* mb, CMPIArray* array);
  void (*freeDateTime)(const CMPIBroker* mb, CMPIDateTime* date);
  void (*freeSelectExp)(const CMPIBroker* mb, CMPISelectExp* exp);
};

/* ------------------------------------------------------------------------------------------------
 * Objects. In each table: release gives up an object that clone made; clone makes one that lives
 * until then. Indexes count from 0. A name argument of ...At may be null, else it gets the name. */

struct CMPIInstanceFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIInstance* inst);
  CMPIInstance* (*clone)(const CMPIInstance* inst, CMPIStatus* rc);

  CMPIData (*getProperty)(const CMPIInstance* inst, const char* name, CMPIStatus* rc);
  CMPIData (*getPropertyAt)(const CMPIInstance* inst, CMPICount index, CMPIString** name,
                            CMPIStatus* rc);
  CMPICount (*getPropertyCount)(const CMPIInstance* inst, CMPIStatus* rc);
  /* A null value, or type CMPI_null, asks for the property to be null. */
  CMPIStatus (*setProperty)(const CMPIInstance* inst, const char* name, const CMPIValue* value,
                            CMPIType type);

  /* Result: a new path, with the keys as far as they are set. */
  CMPIObjectPath* (*getObjectPath)(const CMPIInstance* inst, CMPIStatus* rc);

  /* From here on only the properties in the list count, and the keys; keys is a list of names too.
   */
  CMPIStatus (*setPropertyFilter)(const CMPIInstance* inst, const char** properties,
                                  const char** keys);
  CMPIStatus (*setObjectPath)(const CMPIInstance* inst, const CMPIObjectPath* op);
  /* May be null. As setProperty; origin is the class that defines the property. */
  CMPIStatus (*setPropertyWithOrigin)(const CMPIInstance* inst, const char* name,
                                      const CMPIValue* value, CMPIType type, const char* origin);
};

struct CMPIObjectPathFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIObjectPath* op);
  CMPIObjectPath* (*clone)(const CMPIObjectPath* op, CMPIStatus* rc);

  CMPIStatus (*setNameSpace)(const CMPIObjectPath* op, const char* nameSpace);
  CMPIString* (*getNameSpace)(const CMPIObjectPath* op, CMPIStatus* rc);
  CMPIStatus (*setHostname)(const CMPIObjectPath* op, const char* hostname);
  /* The text of the result may be a null pointer: no host. */
  CMPIString* (*getHostname)(const CMPIObjectPath* op, CMPIStatus* rc);
  CMPIStatus (*setClassName)(const CMPIObjectPath* op, const char* className);
  CMPIString* (*getClassName)(const CMPIObjectPath* op, CMPIStatus* rc);

  /* A key of that name is replaced. */
  CMPIStatus (*addKey)(const CMPIObjectPath* op, const char* name, const CMPIValue* value,
                       CMPIType type);
  CMPIData (*getKey)(const CMPIObjectPath* op, const char* name, CMPIStatus* rc);
  /* The order of the keys is the broker's. */
  CMPIData (*getKeyAt)(const CMPIObjectPath* op, CMPICount index, CMPIString** name,
                       CMPIStatus* rc);
  CMPICount (*getKeyCount)(const CMPIObjectPath* op, CMPIStatus* rc);

  CMPIStatus (*setNameSpaceFromObjectPath)(const CMPIObjectPath* op, const CMPIObjectPath* src);
  CMPIStatus (*setHostAndNameSpaceFromObjectPath)(const CMPIObjectPath* op,
                                                  const CMPIObjectPath* src);

  /* May be null, all four. */
  CMPIData (*getClassQualifier)(const CMPIObjectPath* op, const char* qName, CMPIStatus* rc);
  CMPIData (*getPropertyQualifier)(const CMPIObjectPath* op, const char* pName, const char* qName,
                                   CMPIStatus* rc);
  CMPIData (*getMethodQualifier)(const CMPIObjectPath* op, const char* methodName,
                                 const char* qName, CMPIStatus* rc);
  CMPIData (*getParameterQualifier)(const CMPIObjectPath* op, const char* mName, const char* pName,
                                    const char* qName, CMPIStatus* rc);

  /* Result: namespace:Class.Key=value,... with //host/ before it if there is a host. */
  CMPIString* (*toString)(const CMPIObjectPath* op, CMPIStatus* rc);
};

struct CMPIArrayFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIArray* array);
  CMPIArray* (*clone)(const CMPIArray* array, CMPIStatus* rc);

  CMPICount (*getSize)(const CMPIArray* array, CMPIStatus* rc);
  /* Result: the type of the elements, without CMPI_ARRAY. */
  CMPIType (*getSimpleType)(const CMPIArray* array, CMPIStatus* rc);
  CMPIData (*getElementAt)(const CMPIArray* array, CMPICount index, CMPIStatus* rc);
  /* type: the one that the array was made with. */
  CMPIStatus (*setElementAt)(const CMPIArray* array, CMPICount index, const CMPIValue* value,
                             CMPIType type);
};

struct CMPIStringFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIString* str);
  CMPIString* (*clone)(const CMPIString* str, CMPIStatus* rc);

  /* Result: the string's own text; some brokers have strings whose text is a null pointer. */
  const char* (*getCharPtr)(const CMPIString* str, CMPIStatus* rc);
};

struct CMPIArgsFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIArgs* args);
  CMPIArgs* (*clone)(const CMPIArgs* args, CMPIStatus* rc);

  /* An argument of that name is replaced. */
  CMPIStatus (*addArg)(const CMPIArgs* args, const char* name, const CMPIValue* value,
                       CMPIType type);
  CMPIData (*getArg)(const CMPIArgs* args, const char* name, CMPIStatus* rc);
  CMPIData (*getArgAt)(const CMPIArgs* args, CMPICount index, CMPIString** name, CMPIStatus* rc);
  CMPICount (*getArgCount)(const CMPIArgs* args, CMPIStatus* rc);
};

struct CMPIContextFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIContext* ctx);
  /* May be null. */
  CMPIContext* (*clone)(const CMPIContext* ctx, CMPIStatus* rc);

  /* Which entries there are differs between brokers and requests. */
  CMPIData (*getEntry)(const CMPIContext* ctx, const char* name, CMPIStatus* rc);
  CMPIData (*getEntryAt)(const CMPIContext* ctx, CMPICount index, CMPIString** name,
                         CMPIStatus* rc);
  CMPICount (*getEntryCount)(const CMPIContext* ctx, CMPIStatus* rc);
  CMPIStatus (*addEntry)(const CMPIContext* ctx, const char* name, const CMPIValue* value,
                         CMPIType type);
};

/* Each object is returned by a call of its own, copied, and returnDone is the last call. */
struct CMPIResultFT {
  CMPIVersion ftVersion;
  /* May be null. */
  CMPIStatus (*release)(CMPIResult* rslt);
  /* May be null. */
  CMPIResult* (*clone)(const CMPIResult* rslt, CMPIStatus* rc);

  CMPIStatus (*returnData)(const CMPIResult* rslt, const CMPIValue* value, CMPIType type);
  CMPIStatus (*returnInstance)(const CMPIResult* rslt, const CMPIInstance* inst);
  CMPIStatus (*returnObjectPath)(const CMPIResult* rslt, const CMPIObjectPath* ref);
  CMPIStatus (*returnDone)(const CMPIResult* rslt);
  /* May be null. */
  CMPIStatus (*returnError)(const CMPIResult* rslt, const CMPIError* err);
};

struct CMPIDateTimeFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIDateTime* dt);
  CMPIDateTime* (*clone)(const CMPIDateTime* dt, CMPIStatus* rc);

  /* Result: microseconds, since 1970-01-01 00:00 UTC unless it is an interval. */
  CMPIUint64 (*getBinaryFormat)(const CMPIDateTime* dt, CMPIStatus* rc);
  /* Result: 25 characters. */
  CMPIString* (*getStringFormat)(const CMPIDateTime* dt, CMPIStatus* rc);
  CMPIBoolean (*isInterval)(const CMPIDateTime* dt, CMPIStatus* rc);
};

struct CMPIEnumerationFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIEnumeration* en);
  CMPIEnumeration* (*clone)(const CMPIEnumeration* en, CMPIStatus* rc);

  /* Past the end brokers differ: ask hasNext first. */
  CMPIData (*getNext)(const CMPIEnumeration* en, CMPIStatus* rc);
  CMPIBoolean (*hasNext)(const CMPIEnumeration* en, CMPIStatus* rc);
  CMPIArray* (*toArray)(const CMPIEnumeration* en, CMPIStatus* rc);
};

/* ------------------------------------------------------------------------------------------------
 * Queries. */

struct CMPISelectExpFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPISelectExp* se);
  CMPISelectExp* (*clone)(const CMPISelectExp* se, CMPIStatus* rc);

  CMPIBoolean (*evaluate)(const CMPISelectExp* se, const CMPIInstance* inst, CMPIStatus* rc);
  CMPIString* (*getString)(const CMPISelectExp* se, CMPIStatus* rc);
  /* The condition as disjunction of conjunctions, and as conjunction of disjunctions. */
  CMPISelectCond* (*getDOC)(const CMPISelectExp* se, CMPIStatus* rc);
  CMPISelectCond* (*getCOD)(const CMPISelectExp* se, CMPIStatus* rc);
  /* accessor gives the values of properties and gets parm with each call. */
  CMPIBoolean (*evaluateUsingAccessor)(const CMPISelectExp* se, CMPIAccessor* accessor, void* parm,
                                       CMPIStatus* rc);
};

struct CMPISelectCondFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPISelectCond* sc);
  CMPISelectCond* (*clone)(const CMPISelectCond* sc, CMPIStatus* rc);

  /* *type, unless type is null, gets CMPI_COND_DOC or CMPI_COND_COD. */
  CMPICount (*getCountAndType)(const CMPISelectCond* sc, int* type, CMPIStatus* rc);
  CMPISubCond* (*getSubCondAt)(const CMPISelectCond* sc, CMPICount index, CMPIStatus* rc);
};

struct CMPISubCondFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPISubCond* sc);
  CMPISubCond* (*clone)(const CMPISubCond* sc, CMPIStatus* rc);

  CMPICount (*getCount)(const CMPISubCond* sc, CMPIStatus* rc);
  CMPIPredicate* (*getPredicateAt)(const CMPISubCond* sc, CMPICount index, CMPIStatus* rc);
  /* name: the property on the left-hand side. */
  CMPIPredicate* (*getPredicate)(const CMPISubCond* sc, const char* name, CMPIStatus* rc);
};

struct CMPIPredicateFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIPredicate* pr);
  CMPIPredicate* (*clone)(const CMPIPredicate* pr, CMPIStatus* rc);

  /* Type of the right-hand side, operator, and both sides as texts. */
  CMPIStatus (*getData)(const CMPIPredicate* pr, CMPIType* type, CMPIPredOp* op, CMPIString** lhs,
                        CMPIString** rhs);
  CMPIBoolean (*evaluateUsingAccessor)(const CMPIPredicate* pr, CMPIAccessor* accessor, void* parm,
                                       CMPIStatus* rc);
};

/* ------------------------------------------------------------------------------------------------
 * Errors: the properties of CIM_Error by name. */

struct CMPIErrorFT {
  CMPIVersion ftVersion;
  CMPIStatus (*release)(CMPIError* er);
  CMPIError* (*clone)(const CMPIError* er, CMPIStatus* rc);

  CMPIErrorType (*getErrorType)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getOtherErrorType)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getOwningEntity)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getMessageID)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getMessage)(const CMPIError* er, CMPIStatus* rc);
  CMPIErrorSeverity (*getPerceivedSeverity)(const CMPIError* er, CMPIStatus* rc);
  CMPIErrorProbableCause (*getProbableCause)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getProbableCauseDescription)(const CMPIError* er, CMPIStatus* rc);
  CMPIArray* (*getRecommendedActions)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getErrorSource)(const CMPIError* er, CMPIStatus* rc);
  CMPIErrorSrcFormat (*getErrorSourceFormat)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getOtherErrorSourceFormat)(const CMPIError* er, CMPIStatus* rc);
  CMPIrc (*getCIMStatusCode)(const CMPIError* er, CMPIStatus* rc);
  CMPIString* (*getCIMStatusCodeDescription)(const CMPIError* er, CMPIStatus* rc);
  CMPIArray* (*getMessageArguments)(const CMPIError* er, CMPIStatus* rc);

  CMPIStatus (*setErrorType)(const CMPIError* er, CMPIErrorType type);
  CMPIStatus (*setOtherErrorType)(const CMPIError* er, const char* type);
  CMPIStatus (*setProbableCauseDescription)(const CMPIError* er, const char* text);
  /* Arrays of strings. */
  CMPIStatus (*setRecommendedActions)(const CMPIError* er, const CMPIArray* actions);
  CMPIStatus (*setErrorSource)(const CMPIError* er, const char* source);
  CMPIStatus (*setErrorSourceFormat)(const CMPIError* er, CMPIErrorSrcFormat format);
  CMPIStatus (*setOtherErrorSourceFormat)(const CMPIError* er, const char* format);
  CMPIStatus (*setCIMStatusCodeDescription)(const CMPIError* er, const char* text);
  CMPIStatus (*setMessageArguments)(const CMPIError* er, const CMPIArray* arguments);
};

/* ------------------------------------------------------------------------------------------------
 * Tables of a provider. miName is a name for logs. cleanup is the last call: terminating is not 0
 * when the broker itself ends, and an answer of CMPI_RC_DO_NOT_UNLOAD or CMPI_RC_NEVER_UNLOAD keeps
 * the library loaded otherwise. */

struct CMPIInstanceMIFT {
  CMPIVersion ftVersion;
  int miVersion;
  const char* miName;

  CMPIStatus (*cleanup)(CMPIInstanceMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);
  CMPIStatus (*enumerateInstanceNames)(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                       const CMPIResult* rslt, const CMPIObjectPath* op);
  CMPIStatus (*enumerateInstances)(CMPIInstanceMI* mi, const CMPIContext* ctx,
                                   const CMPIResult* rslt, const CMPIObjectPath* op,
                                   const char** properties);
  CMPIStatus (*getInstance)(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                            const CMPIObjectPath* op, const char** properties);
  /* Returns the path of the new instance through rslt. */
  CMPIStatus (*createInstance)(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                               const CMPIObjectPath* op, const CMPIInstance* inst);
  CMPIStatus (*modifyInstance)(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                               const CMPIObjectPath* op, const CMPIInstance* inst,
                               const char** properties);
  CMPIStatus (*deleteInstance)(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                               const CMPIObjectPath* op);
  CMPIStatus (*execQuery)(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                          const CMPIObjectPath* op, const char* query, const char* lang);
};

struct CMPIAssociationMIFT {
  CMPIVersion ftVersion;
  int miVersion;
  const char* miName;

  CMPIStatus (*cleanup)(CMPIAssociationMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);
  /* Filters as in CMPIBrokerFT. */
  CMPIStatus (*associators)(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                            const CMPIObjectPath* op, const char* assocClass,
                            const char* resultClass, const char* role, const char* resultRole,
                            const char** properties);
  CMPIStatus (*associatorNames)(CMPIAssociationMI* mi, const CMPIContext* ctx,
                                const CMPIResult* rslt, const CMPIObjectPath* op,
                                const char* assocClass, const char* resultClass, const char* role,
                                const char* resultRole);
  CMPIStatus (*references)(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                           const CMPIObjectPath* op, const char* resultClass, const char* role,
                           const char** properties);
  CMPIStatus (*referenceNames)(CMPIAssociationMI* mi, const CMPIContext* ctx,
                               const CMPIResult* rslt, const CMPIObjectPath* op,
                               const char* resultClass, const char* role);
};

struct CMPIMethodMIFT {
  CMPIVersion ftVersion;
  int miVersion;
  const char* miName;

  CMPIStatus (*cleanup)(CMPIMethodMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);
  /* The return value goes to rslt by returnData, outgoing parameters into out. */
  CMPIStatus (*invokeMethod)(CMPIMethodMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                             const CMPIObjectPath* op, const char* method, const CMPIArgs* in,
                             CMPIArgs* out);
};

struct CMPIPropertyMIFT {
  CMPIVersion ftVersion;
  int miVersion;
  const char* miName;

  CMPIStatus (*cleanup)(CMPIPropertyMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);
  CMPIStatus (*setProperty)(CMPIPropertyMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                            const CMPIObjectPath* op, const char* name, CMPIData data);
  CMPIStatus (*getProperty)(CMPIPropertyMI* mi, const CMPIContext* ctx, const CMPIResult* rslt,
                            const CMPIObjectPath* op, const char* name);
  /* May be null. Some brokers have no such slot and never look at it. */
  CMPIStatus (*setPropertyWithOrigin)(CMPIPropertyMI* mi, const CMPIContext* ctx,
                                      const CMPIResult* rslt, CMPIObjectPath* op, const char* name,
                                      CMPIData data, const char* origin);
};

struct CMPIIndicationMIFT {
  CMPIVersion ftVersion; /* At least 100, or brokers use an older form of the calls. */
  int miVersion;
  const char* miName;

  CMPIStatus (*cleanup)(CMPIIndicationMI* mi, const CMPIContext* ctx, CMPIBoolean terminating);

  /* se is the filter's query, className the indication class, op what the filter is about. */
  CMPIStatus (*authorizeFilter)(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                const CMPISelectExp* se, const char* className,
                                const CMPIObjectPath* op, const char* owner);
  /* Answers CMPI_RC_OK if the broker is to poll for these indications. Deliberately without the
   * CMPIResult that level 2.1 puts before se: brokers of level 2.0 pass none. */
  CMPIStatus (*mustPoll)(CMPIIndicationMI* mi, const CMPIContext* ctx, const CMPISelectExp* se,
                         const char* className, const CMPIObjectPath* op);
  /* first and last: whether it is the first filter for the class, or was the last one. */
  CMPIStatus (*activateFilter)(CMPIIndicationMI* mi, const CMPIContext* ctx,
                               const CMPISelectExp* se, const char* className,
                               const CMPIObjectPath* op, CMPIBoolean first);
  CMPIStatus (*deActivateFilter)(CMPIIndicationMI* mi, const CMPIContext* ctx,
                                 const CMPISelectExp* se, const char* className,
                                 const CMPIObjectPath* op, CMPIBoolean last);
  CMPIStatus (*enableIndications)(CMPIIndicationMI* mi, const CMPIContext* ctx);
  CMPIStatus (*disableIndications)(CMPIIndicationMI* mi, const CMPIContext* ctx);
};

/* ------------------------------------------------------------------------------------------------
 * Entry points of a provider library. A broker looks for the generic factories
 *
 *   CMPIInstanceMI* _Generic_Create_InstanceMI(const CMPIBroker*, const CMPIContext*,
 *                                              const char* name, CMPIStatus*);
 *
 * (also AssociationMI, MethodMI, PropertyMI, IndicationMI), then for those that carry the
 * provider's name in front and lack the name argument: Name_Create_InstanceMI. A library has one
 * form or the other for a provider. The functions have C linkage and are visible; a null result is
 * a failure that the status explains. The stubs of cmpimacs.h write the second form. */

#ifdef __cplusplus
}
#endif

#endif
