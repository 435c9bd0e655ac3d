/* Sizes and offsets of the CMPI types and tables on x86-64, checked as C. */
#include <cmpidt.h>
#include <cmpift.h>
#include <stddef.h>

/* Scalars. */
_Static_assert(sizeof(CMPIBoolean) == 1, "CMPIBoolean");
_Static_assert(sizeof(CMPIChar16) == 2, "CMPIChar16");
_Static_assert(sizeof(CMPIUint8) == 1, "CMPIUint8");
_Static_assert(sizeof(CMPIUint16) == 2, "CMPIUint16");
_Static_assert(sizeof(CMPIUint32) == 4, "CMPIUint32");
_Static_assert(sizeof(CMPIUint64) == 8, "CMPIUint64");
_Static_assert(sizeof(CMPISint8) == 1, "CMPISint8");
_Static_assert(sizeof(CMPISint16) == 2, "CMPISint16");
_Static_assert(sizeof(CMPISint32) == 4, "CMPISint32");
_Static_assert(sizeof(CMPISint64) == 8, "CMPISint64");
_Static_assert(sizeof(CMPIReal32) == 4, "CMPIReal32");
_Static_assert(sizeof(CMPIReal64) == 8, "CMPIReal64");
_Static_assert(sizeof(CMPICount) == 4, "CMPICount");
_Static_assert(sizeof(CMPIType) == 2, "CMPIType");
_Static_assert(sizeof(CMPIValueState) == 2, "CMPIValueState");
_Static_assert(sizeof(CMPIFlags) == 4, "CMPIFlags");
_Static_assert(sizeof(CMPIVersion) == 4, "CMPIVersion");
_Static_assert(sizeof(CMPIrc) == 4, "CMPIrc");

_Static_assert(sizeof(CMPIValuePtr) == 16, "CMPIValuePtr");
_Static_assert(offsetof(CMPIValuePtr, ptr) == 0, "CMPIValuePtr.ptr");
_Static_assert(offsetof(CMPIValuePtr, length) == 8, "CMPIValuePtr.length");

_Static_assert(sizeof(CMPIData) == 24, "CMPIData");
_Static_assert(offsetof(CMPIData, type) == 0, "CMPIData.type");
_Static_assert(offsetof(CMPIData, state) == 2, "CMPIData.state");
_Static_assert(offsetof(CMPIData, value) == 8, "CMPIData.value");

_Static_assert(sizeof(CMPIStatus) == 16, "CMPIStatus");
_Static_assert(offsetof(CMPIStatus, rc) == 0, "CMPIStatus.rc");
_Static_assert(offsetof(CMPIStatus, msg) == 8, "CMPIStatus.msg");

_Static_assert(sizeof(CMPIBroker) == 40, "CMPIBroker");
_Static_assert(offsetof(CMPIBroker, hdl) == 0, "CMPIBroker.hdl");
_Static_assert(offsetof(CMPIBroker, bft) == 8, "CMPIBroker.bft");
_Static_assert(offsetof(CMPIBroker, eft) == 16, "CMPIBroker.eft");
_Static_assert(offsetof(CMPIBroker, xft) == 24, "CMPIBroker.xft");
_Static_assert(offsetof(CMPIBroker, mft) == 32, "CMPIBroker.mft");

/* Every member of a value starts at its first byte. */
_Static_assert(sizeof(CMPIValue) == 16, "CMPIValue");
_Static_assert(offsetof(CMPIValue, boolean) == 0, "CMPIValue.boolean");
_Static_assert(sizeof(((CMPIValue*)NULL)->boolean) == 1, "size of CMPIValue.boolean");
_Static_assert(offsetof(CMPIValue, char16) == 0, "CMPIValue.char16");
_Static_assert(sizeof(((CMPIValue*)NULL)->char16) == 2, "size of CMPIValue.char16");
_Static_assert(offsetof(CMPIValue, uint8) == 0, "CMPIValue.uint8");
_Static_assert(sizeof(((CMPIValue*)NULL)->uint8) == 1, "size of CMPIValue.uint8");
_Static_assert(offsetof(CMPIValue, uint16) == 0, "CMPIValue.uint16");
_Static_assert(sizeof(((CMPIValue*)NULL)->uint16) == 2, "size of CMPIValue.uint16");
_Static_assert(offsetof(CMPIValue, uint32) == 0, "CMPIValue.uint32");
_Static_assert(sizeof(((CMPIValue*)NULL)->uint32) == 4, "size of CMPIValue.uint32");
_Static_assert(offsetof(CMPIValue, uint64) == 0, "CMPIValue.uint64");
_Static_assert(sizeof(((CMPIValue*)NULL)->uint64) == 8, "size of CMPIValue.uint64");
_Static_assert(offsetof(CMPIValue, sint8) == 0, "CMPIValue.sint8");
_Static_assert(sizeof(((CMPIValue*)NULL)->sint8) == 1, "size of CMPIValue.sint8");
_Static_assert(offsetof(CMPIValue, sint16) == 0, "CMPIValue.sint16");
_Static_assert(sizeof(((CMPIValue*)NULL)->sint16) == 2, "size of CMPIValue.sint16");
_Static_assert(offsetof(CMPIValue, sint32) == 0, "CMPIValue.sint32");
_Static_assert(sizeof(((CMPIValue*)NULL)->sint32) == 4, "size of CMPIValue.sint32");
_Static_assert(offsetof(CMPIValue, sint64) == 0, "CMPIValue.sint64");
_Static_assert(sizeof(((CMPIValue*)NULL)->sint64) == 8, "size of CMPIValue.sint64");
_Static_assert(offsetof(CMPIValue, real32) == 0, "CMPIValue.real32");
_Static_assert(sizeof(((CMPIValue*)NULL)->real32) == 4, "size of CMPIValue.real32");
_Static_assert(offsetof(CMPIValue, real64) == 0, "CMPIValue.real64");
_Static_assert(sizeof(((CMPIValue*)NULL)->real64) == 8, "size of CMPIValue.real64");
_Static_assert(offsetof(CMPIValue, inst) == 0, "CMPIValue.inst");
_Static_assert(sizeof(((CMPIValue*)NULL)->inst) == 8, "size of CMPIValue.inst");
_Static_assert(offsetof(CMPIValue, ref) == 0, "CMPIValue.ref");
_Static_assert(sizeof(((CMPIValue*)NULL)->ref) == 8, "size of CMPIValue.ref");
_Static_assert(offsetof(CMPIValue, args) == 0, "CMPIValue.args");
_Static_assert(sizeof(((CMPIValue*)NULL)->args) == 8, "size of CMPIValue.args");
_Static_assert(offsetof(CMPIValue, filter) == 0, "CMPIValue.filter");
_Static_assert(sizeof(((CMPIValue*)NULL)->filter) == 8, "size of CMPIValue.filter");
_Static_assert(offsetof(CMPIValue, Enum) == 0, "CMPIValue.Enum");
_Static_assert(sizeof(((CMPIValue*)NULL)->Enum) == 8, "size of CMPIValue.Enum");
_Static_assert(offsetof(CMPIValue, array) == 0, "CMPIValue.array");
_Static_assert(sizeof(((CMPIValue*)NULL)->array) == 8, "size of CMPIValue.array");
_Static_assert(offsetof(CMPIValue, string) == 0, "CMPIValue.string");
_Static_assert(sizeof(((CMPIValue*)NULL)->string) == 8, "size of CMPIValue.string");
_Static_assert(offsetof(CMPIValue, chars) == 0, "CMPIValue.chars");
_Static_assert(sizeof(((CMPIValue*)NULL)->chars) == 8, "size of CMPIValue.chars");
_Static_assert(offsetof(CMPIValue, dateTime) == 0, "CMPIValue.dateTime");
_Static_assert(sizeof(((CMPIValue*)NULL)->dateTime) == 8, "size of CMPIValue.dateTime");
_Static_assert(offsetof(CMPIValue, dataPtr) == 0, "CMPIValue.dataPtr");
_Static_assert(sizeof(((CMPIValue*)NULL)->dataPtr) == 16, "size of CMPIValue.dataPtr");
_Static_assert(offsetof(CMPIValue, Byte) == 0, "CMPIValue.Byte");
_Static_assert(sizeof(((CMPIValue*)NULL)->Byte) == 1, "size of CMPIValue.Byte");
_Static_assert(offsetof(CMPIValue, Short) == 0, "CMPIValue.Short");
_Static_assert(sizeof(((CMPIValue*)NULL)->Short) == 2, "size of CMPIValue.Short");
_Static_assert(offsetof(CMPIValue, Int) == 0, "CMPIValue.Int");
_Static_assert(sizeof(((CMPIValue*)NULL)->Int) == 4, "size of CMPIValue.Int");
_Static_assert(offsetof(CMPIValue, Long) == 0, "CMPIValue.Long");
_Static_assert(sizeof(((CMPIValue*)NULL)->Long) == 8, "size of CMPIValue.Long");
_Static_assert(offsetof(CMPIValue, Float) == 0, "CMPIValue.Float");
_Static_assert(sizeof(((CMPIValue*)NULL)->Float) == 4, "size of CMPIValue.Float");
_Static_assert(offsetof(CMPIValue, Double) == 0, "CMPIValue.Double");
_Static_assert(sizeof(((CMPIValue*)NULL)->Double) == 8, "size of CMPIValue.Double");

/* Objects: a handle and a table. */
_Static_assert(sizeof(CMPIInstance) == 16, "CMPIInstance");
_Static_assert(offsetof(CMPIInstance, hdl) == 0, "CMPIInstance.hdl");
_Static_assert(offsetof(CMPIInstance, ft) == 8, "CMPIInstance.ft");
_Static_assert(sizeof(CMPIObjectPath) == 16, "CMPIObjectPath");
_Static_assert(offsetof(CMPIObjectPath, hdl) == 0, "CMPIObjectPath.hdl");
_Static_assert(offsetof(CMPIObjectPath, ft) == 8, "CMPIObjectPath.ft");
_Static_assert(sizeof(CMPIString) == 16, "CMPIString");
_Static_assert(offsetof(CMPIString, hdl) == 0, "CMPIString.hdl");
_Static_assert(offsetof(CMPIString, ft) == 8, "CMPIString.ft");
_Static_assert(sizeof(CMPIArray) == 16, "CMPIArray");
_Static_assert(offsetof(CMPIArray, hdl) == 0, "CMPIArray.hdl");
_Static_assert(offsetof(CMPIArray, ft) == 8, "CMPIArray.ft");
_Static_assert(sizeof(CMPIArgs) == 16, "CMPIArgs");
_Static_assert(offsetof(CMPIArgs, hdl) == 0, "CMPIArgs.hdl");
_Static_assert(offsetof(CMPIArgs, ft) == 8, "CMPIArgs.ft");
_Static_assert(sizeof(CMPIContext) == 16, "CMPIContext");
_Static_assert(offsetof(CMPIContext, hdl) == 0, "CMPIContext.hdl");
_Static_assert(offsetof(CMPIContext, ft) == 8, "CMPIContext.ft");
_Static_assert(sizeof(CMPIResult) == 16, "CMPIResult");
_Static_assert(offsetof(CMPIResult, hdl) == 0, "CMPIResult.hdl");
_Static_assert(offsetof(CMPIResult, ft) == 8, "CMPIResult.ft");
_Static_assert(sizeof(CMPIDateTime) == 16, "CMPIDateTime");
_Static_assert(offsetof(CMPIDateTime, hdl) == 0, "CMPIDateTime.hdl");
_Static_assert(offsetof(CMPIDateTime, ft) == 8, "CMPIDateTime.ft");
_Static_assert(sizeof(CMPIEnumeration) == 16, "CMPIEnumeration");
_Static_assert(offsetof(CMPIEnumeration, hdl) == 0, "CMPIEnumeration.hdl");
_Static_assert(offsetof(CMPIEnumeration, ft) == 8, "CMPIEnumeration.ft");
_Static_assert(sizeof(CMPISelectExp) == 16, "CMPISelectExp");
_Static_assert(offsetof(CMPISelectExp, hdl) == 0, "CMPISelectExp.hdl");
_Static_assert(offsetof(CMPISelectExp, ft) == 8, "CMPISelectExp.ft");
_Static_assert(sizeof(CMPISelectCond) == 16, "CMPISelectCond");
_Static_assert(offsetof(CMPISelectCond, hdl) == 0, "CMPISelectCond.hdl");
_Static_assert(offsetof(CMPISelectCond, ft) == 8, "CMPISelectCond.ft");
_Static_assert(sizeof(CMPISubCond) == 16, "CMPISubCond");
_Static_assert(offsetof(CMPISubCond, hdl) == 0, "CMPISubCond.hdl");
_Static_assert(offsetof(CMPISubCond, ft) == 8, "CMPISubCond.ft");
_Static_assert(sizeof(CMPIPredicate) == 16, "CMPIPredicate");
_Static_assert(offsetof(CMPIPredicate, hdl) == 0, "CMPIPredicate.hdl");
_Static_assert(offsetof(CMPIPredicate, ft) == 8, "CMPIPredicate.ft");
_Static_assert(sizeof(CMPIError) == 16, "CMPIError");
_Static_assert(offsetof(CMPIError, hdl) == 0, "CMPIError.hdl");
_Static_assert(offsetof(CMPIError, ft) == 8, "CMPIError.ft");
_Static_assert(sizeof(CMPIInstanceMI) == 16, "CMPIInstanceMI");
_Static_assert(offsetof(CMPIInstanceMI, hdl) == 0, "CMPIInstanceMI.hdl");
_Static_assert(offsetof(CMPIInstanceMI, ft) == 8, "CMPIInstanceMI.ft");
_Static_assert(sizeof(CMPIAssociationMI) == 16, "CMPIAssociationMI");
_Static_assert(offsetof(CMPIAssociationMI, hdl) == 0, "CMPIAssociationMI.hdl");
_Static_assert(offsetof(CMPIAssociationMI, ft) == 8, "CMPIAssociationMI.ft");
_Static_assert(sizeof(CMPIMethodMI) == 16, "CMPIMethodMI");
_Static_assert(offsetof(CMPIMethodMI, hdl) == 0, "CMPIMethodMI.hdl");
_Static_assert(offsetof(CMPIMethodMI, ft) == 8, "CMPIMethodMI.ft");
_Static_assert(sizeof(CMPIPropertyMI) == 16, "CMPIPropertyMI");
_Static_assert(offsetof(CMPIPropertyMI, hdl) == 0, "CMPIPropertyMI.hdl");
_Static_assert(offsetof(CMPIPropertyMI, ft) == 8, "CMPIPropertyMI.ft");
_Static_assert(sizeof(CMPIIndicationMI) == 16, "CMPIIndicationMI");
_Static_assert(offsetof(CMPIIndicationMI, hdl) == 0, "CMPIIndicationMI.hdl");
_Static_assert(offsetof(CMPIIndicationMI, ft) == 8, "CMPIIndicationMI.ft");

_Static_assert(sizeof(CMPIBrokerFT) == 160, "CMPIBrokerFT");
_Static_assert(offsetof(CMPIBrokerFT, brokerCapabilities) == 0, "CMPIBrokerFT.brokerCapabilities");
_Static_assert(offsetof(CMPIBrokerFT, brokerVersion) == 4, "CMPIBrokerFT.brokerVersion");
_Static_assert(offsetof(CMPIBrokerFT, brokerName) == 8, "CMPIBrokerFT.brokerName");
_Static_assert(offsetof(CMPIBrokerFT, prepareAttachThread) == 16,
               "CMPIBrokerFT.prepareAttachThread");
_Static_assert(offsetof(CMPIBrokerFT, attachThread) == 24, "CMPIBrokerFT.attachThread");
_Static_assert(offsetof(CMPIBrokerFT, detachThread) == 32, "CMPIBrokerFT.detachThread");
_Static_assert(offsetof(CMPIBrokerFT, deliverIndication) == 40, "CMPIBrokerFT.deliverIndication");
_Static_assert(offsetof(CMPIBrokerFT, enumerateInstanceNames) == 48,
               "CMPIBrokerFT.enumerateInstanceNames");
_Static_assert(offsetof(CMPIBrokerFT, getInstance) == 56, "CMPIBrokerFT.getInstance");
_Static_assert(offsetof(CMPIBrokerFT, createInstance) == 64, "CMPIBrokerFT.createInstance");
_Static_assert(offsetof(CMPIBrokerFT, modifyInstance) == 72, "CMPIBrokerFT.modifyInstance");
_Static_assert(offsetof(CMPIBrokerFT, deleteInstance) == 80, "CMPIBrokerFT.deleteInstance");
_Static_assert(offsetof(CMPIBrokerFT, execQuery) == 88, "CMPIBrokerFT.execQuery");
_Static_assert(offsetof(CMPIBrokerFT, enumerateInstances) == 96, "CMPIBrokerFT.enumerateInstances");
_Static_assert(offsetof(CMPIBrokerFT, associators) == 104, "CMPIBrokerFT.associators");
_Static_assert(offsetof(CMPIBrokerFT, associatorNames) == 112, "CMPIBrokerFT.associatorNames");
_Static_assert(offsetof(CMPIBrokerFT, references) == 120, "CMPIBrokerFT.references");
_Static_assert(offsetof(CMPIBrokerFT, referenceNames) == 128, "CMPIBrokerFT.referenceNames");
_Static_assert(offsetof(CMPIBrokerFT, invokeMethod) == 136, "CMPIBrokerFT.invokeMethod");
_Static_assert(offsetof(CMPIBrokerFT, setProperty) == 144, "CMPIBrokerFT.setProperty");
_Static_assert(offsetof(CMPIBrokerFT, getProperty) == 152, "CMPIBrokerFT.getProperty");

_Static_assert(sizeof(CMPIBrokerEncFT) == 168, "CMPIBrokerEncFT");
_Static_assert(offsetof(CMPIBrokerEncFT, ftVersion) == 0, "CMPIBrokerEncFT.ftVersion");
_Static_assert(offsetof(CMPIBrokerEncFT, newInstance) == 8, "CMPIBrokerEncFT.newInstance");
_Static_assert(offsetof(CMPIBrokerEncFT, newObjectPath) == 16, "CMPIBrokerEncFT.newObjectPath");
_Static_assert(offsetof(CMPIBrokerEncFT, newArgs) == 24, "CMPIBrokerEncFT.newArgs");
_Static_assert(offsetof(CMPIBrokerEncFT, newString) == 32, "CMPIBrokerEncFT.newString");
_Static_assert(offsetof(CMPIBrokerEncFT, newArray) == 40, "CMPIBrokerEncFT.newArray");
_Static_assert(offsetof(CMPIBrokerEncFT, newDateTime) == 48, "CMPIBrokerEncFT.newDateTime");
_Static_assert(offsetof(CMPIBrokerEncFT, newDateTimeFromBinary) == 56,
               "CMPIBrokerEncFT.newDateTimeFromBinary");
_Static_assert(offsetof(CMPIBrokerEncFT, newDateTimeFromChars) == 64,
               "CMPIBrokerEncFT.newDateTimeFromChars");
_Static_assert(offsetof(CMPIBrokerEncFT, newSelectExp) == 72, "CMPIBrokerEncFT.newSelectExp");
_Static_assert(offsetof(CMPIBrokerEncFT, classPathIsA) == 80, "CMPIBrokerEncFT.classPathIsA");
_Static_assert(offsetof(CMPIBrokerEncFT, toString) == 88, "CMPIBrokerEncFT.toString");
_Static_assert(offsetof(CMPIBrokerEncFT, isOfType) == 96, "CMPIBrokerEncFT.isOfType");
_Static_assert(offsetof(CMPIBrokerEncFT, getType) == 104, "CMPIBrokerEncFT.getType");
_Static_assert(offsetof(CMPIBrokerEncFT, getMessage) == 112, "CMPIBrokerEncFT.getMessage");
_Static_assert(offsetof(CMPIBrokerEncFT, logMessage) == 120, "CMPIBrokerEncFT.logMessage");
_Static_assert(offsetof(CMPIBrokerEncFT, trace) == 128, "CMPIBrokerEncFT.trace");
_Static_assert(offsetof(CMPIBrokerEncFT, newCMPIError) == 136, "CMPIBrokerEncFT.newCMPIError");
_Static_assert(offsetof(CMPIBrokerEncFT, openMessageFile) == 144,
               "CMPIBrokerEncFT.openMessageFile");
_Static_assert(offsetof(CMPIBrokerEncFT, closeMessageFile) == 152,
               "CMPIBrokerEncFT.closeMessageFile");
_Static_assert(offsetof(CMPIBrokerEncFT, getMessage2) == 160, "CMPIBrokerEncFT.getMessage2");

_Static_assert(sizeof(CMPIBrokerExtFT) == 168, "CMPIBrokerExtFT");
_Static_assert(offsetof(CMPIBrokerExtFT, ftVersion) == 0, "CMPIBrokerExtFT.ftVersion");
_Static_assert(offsetof(CMPIBrokerExtFT, resolveFileName) == 8, "CMPIBrokerExtFT.resolveFileName");
_Static_assert(offsetof(CMPIBrokerExtFT, newThread) == 16, "CMPIBrokerExtFT.newThread");
_Static_assert(offsetof(CMPIBrokerExtFT, joinThread) == 24, "CMPIBrokerExtFT.joinThread");
_Static_assert(offsetof(CMPIBrokerExtFT, exitThread) == 32, "CMPIBrokerExtFT.exitThread");
_Static_assert(offsetof(CMPIBrokerExtFT, cancelThread) == 40, "CMPIBrokerExtFT.cancelThread");
_Static_assert(offsetof(CMPIBrokerExtFT, threadSleep) == 48, "CMPIBrokerExtFT.threadSleep");
_Static_assert(offsetof(CMPIBrokerExtFT, threadOnce) == 56, "CMPIBrokerExtFT.threadOnce");
_Static_assert(offsetof(CMPIBrokerExtFT, createThreadKey) == 64, "CMPIBrokerExtFT.createThreadKey");
_Static_assert(offsetof(CMPIBrokerExtFT, destroyThreadKey) == 72,
               "CMPIBrokerExtFT.destroyThreadKey");
_Static_assert(offsetof(CMPIBrokerExtFT, getThreadSpecific) == 80,
               "CMPIBrokerExtFT.getThreadSpecific");
_Static_assert(offsetof(CMPIBrokerExtFT, setThreadSpecific) == 88,
               "CMPIBrokerExtFT.setThreadSpecific");
_Static_assert(offsetof(CMPIBrokerExtFT, newMutex) == 96, "CMPIBrokerExtFT.newMutex");
_Static_assert(offsetof(CMPIBrokerExtFT, destroyMutex) == 104, "CMPIBrokerExtFT.destroyMutex");
_Static_assert(offsetof(CMPIBrokerExtFT, lockMutex) == 112, "CMPIBrokerExtFT.lockMutex");
_Static_assert(offsetof(CMPIBrokerExtFT, unlockMutex) == 120, "CMPIBrokerExtFT.unlockMutex");
_Static_assert(offsetof(CMPIBrokerExtFT, newCondition) == 128, "CMPIBrokerExtFT.newCondition");
_Static_assert(offsetof(CMPIBrokerExtFT, destroyCondition) == 136,
               "CMPIBrokerExtFT.destroyCondition");
_Static_assert(offsetof(CMPIBrokerExtFT, condWait) == 144, "CMPIBrokerExtFT.condWait");
_Static_assert(offsetof(CMPIBrokerExtFT, timedCondWait) == 152, "CMPIBrokerExtFT.timedCondWait");
_Static_assert(offsetof(CMPIBrokerExtFT, signalCondition) == 160,
               "CMPIBrokerExtFT.signalCondition");

_Static_assert(sizeof(CMPIBrokerMemFT) == 120, "CMPIBrokerMemFT");
_Static_assert(offsetof(CMPIBrokerMemFT, ftVersion) == 0, "CMPIBrokerMemFT.ftVersion");
_Static_assert(offsetof(CMPIBrokerMemFT, mark) == 8, "CMPIBrokerMemFT.mark");
_Static_assert(offsetof(CMPIBrokerMemFT, release) == 16, "CMPIBrokerMemFT.release");
_Static_assert(offsetof(CMPIBrokerMemFT, cmpiMalloc) == 24, "CMPIBrokerMemFT.cmpiMalloc");
_Static_assert(offsetof(CMPIBrokerMemFT, cmpiCalloc) == 32, "CMPIBrokerMemFT.cmpiCalloc");
_Static_assert(offsetof(CMPIBrokerMemFT, cmpiRealloc) == 40, "CMPIBrokerMemFT.cmpiRealloc");
_Static_assert(offsetof(CMPIBrokerMemFT, cmpiStrDup) == 48, "CMPIBrokerMemFT.cmpiStrDup");
_Static_assert(offsetof(CMPIBrokerMemFT, cmpiFree) == 56, "CMPIBrokerMemFT.cmpiFree");
_Static_assert(offsetof(CMPIBrokerMemFT, freeInstance) == 64, "CMPIBrokerMemFT.freeInstance");
_Static_assert(offsetof(CMPIBrokerMemFT, freeObjectPath) == 72, "CMPIBrokerMemFT.freeObjectPath");
_Static_assert(offsetof(CMPIBrokerMemFT, freeArgs) == 80, "CMPIBrokerMemFT.freeArgs");
_Static_assert(offsetof(CMPIBrokerMemFT, freeString) == 88, "CMPIBrokerMemFT.freeString");
_Static_assert(offsetof(CMPIBrokerMemFT, freeArray) == 96, "CMPIBrokerMemFT.freeArray");
_Static_assert(offsetof(CMPIBrokerMemFT, freeDateTime) == 104, "CMPIBrokerMemFT.freeDateTime");
_Static_assert(offsetof(CMPIBrokerMemFT, freeSelectExp) == 112, "CMPIBrokerMemFT.freeSelectExp");

_Static_assert(sizeof(CMPIInstanceFT) == 88, "CMPIInstanceFT");
_Static_assert(offsetof(CMPIInstanceFT, ftVersion) == 0, "CMPIInstanceFT.ftVersion");
_Static_assert(offsetof(CMPIInstanceFT, release) == 8, "CMPIInstanceFT.release");
_Static_assert(offsetof(CMPIInstanceFT, clone) == 16, "CMPIInstanceFT.clone");
_Static_assert(offsetof(CMPIInstanceFT, getProperty) == 24, "CMPIInstanceFT.getProperty");
_Static_assert(offsetof(CMPIInstanceFT, getPropertyAt) == 32, "CMPIInstanceFT.getPropertyAt");
_Static_assert(offsetof(CMPIInstanceFT, getPropertyCount) == 40, "CMPIInstanceFT.getPropertyCount");
_Static_assert(offsetof(CMPIInstanceFT, setProperty) == 48, "CMPIInstanceFT.setProperty");
_Static_assert(offsetof(CMPIInstanceFT, getObjectPath) == 56, "CMPIInstanceFT.getObjectPath");
_Static_assert(offsetof(CMPIInstanceFT, setPropertyFilter) == 64,
               "CMPIInstanceFT.setPropertyFilter");
_Static_assert(offsetof(CMPIInstanceFT, setObjectPath) == 72, "CMPIInstanceFT.setObjectPath");
_Static_assert(offsetof(CMPIInstanceFT, setPropertyWithOrigin) == 80,
               "CMPIInstanceFT.setPropertyWithOrigin");

_Static_assert(sizeof(CMPIObjectPathFT) == 160, "CMPIObjectPathFT");
_Static_assert(offsetof(CMPIObjectPathFT, ftVersion) == 0, "CMPIObjectPathFT.ftVersion");
_Static_assert(offsetof(CMPIObjectPathFT, release) == 8, "CMPIObjectPathFT.release");
_Static_assert(offsetof(CMPIObjectPathFT, clone) == 16, "CMPIObjectPathFT.clone");
_Static_assert(offsetof(CMPIObjectPathFT, setNameSpace) == 24, "CMPIObjectPathFT.setNameSpace");
_Static_assert(offsetof(CMPIObjectPathFT, getNameSpace) == 32, "CMPIObjectPathFT.getNameSpace");
_Static_assert(offsetof(CMPIObjectPathFT, setHostname) == 40, "CMPIObjectPathFT.setHostname");
_Static_assert(offsetof(CMPIObjectPathFT, getHostname) == 48, "CMPIObjectPathFT.getHostname");
_Static_assert(offsetof(CMPIObjectPathFT, setClassName) == 56, "CMPIObjectPathFT.setClassName");
_Static_assert(offsetof(CMPIObjectPathFT, getClassName) == 64, "CMPIObjectPathFT.getClassName");
_Static_assert(offsetof(CMPIObjectPathFT, addKey) == 72, "CMPIObjectPathFT.addKey");
_Static_assert(offsetof(CMPIObjectPathFT, getKey) == 80, "CMPIObjectPathFT.getKey");
_Static_assert(offsetof(CMPIObjectPathFT, getKeyAt) == 88, "CMPIObjectPathFT.getKeyAt");
_Static_assert(offsetof(CMPIObjectPathFT, getKeyCount) == 96, "CMPIObjectPathFT.getKeyCount");
_Static_assert(offsetof(CMPIObjectPathFT, setNameSpaceFromObjectPath) == 104,
               "CMPIObjectPathFT.setNameSpaceFromObjectPath");
_Static_assert(offsetof(CMPIObjectPathFT, setHostAndNameSpaceFromObjectPath) == 112,
               "CMPIObjectPathFT.setHostAndNameSpaceFromObjectPath");
_Static_assert(offsetof(CMPIObjectPathFT, getClassQualifier) == 120,
               "CMPIObjectPathFT.getClassQualifier");
_Static_assert(offsetof(CMPIObjectPathFT, getPropertyQualifier) == 128,
               "CMPIObjectPathFT.getPropertyQualifier");
_Static_assert(offsetof(CMPIObjectPathFT, getMethodQualifier) == 136,
               "CMPIObjectPathFT.getMethodQualifier");
_Static_assert(offsetof(CMPIObjectPathFT, getParameterQualifier) == 144,
               "CMPIObjectPathFT.getParameterQualifier");
_Static_assert(offsetof(CMPIObjectPathFT, toString) == 152, "CMPIObjectPathFT.toString");

_Static_assert(sizeof(CMPIArrayFT) == 56, "CMPIArrayFT");
_Static_assert(offsetof(CMPIArrayFT, ftVersion) == 0, "CMPIArrayFT.ftVersion");
_Static_assert(offsetof(CMPIArrayFT, release) == 8, "CMPIArrayFT.release");
_Static_assert(offsetof(CMPIArrayFT, clone) == 16, "CMPIArrayFT.clone");
_Static_assert(offsetof(CMPIArrayFT, getSize) == 24, "CMPIArrayFT.getSize");
_Static_assert(offsetof(CMPIArrayFT, getSimpleType) == 32, "CMPIArrayFT.getSimpleType");
_Static_assert(offsetof(CMPIArrayFT, getElementAt) == 40, "CMPIArrayFT.getElementAt");
_Static_assert(offsetof(CMPIArrayFT, setElementAt) == 48, "CMPIArrayFT.setElementAt");

_Static_assert(sizeof(CMPIStringFT) == 32, "CMPIStringFT");
_Static_assert(offsetof(CMPIStringFT, ftVersion) == 0, "CMPIStringFT.ftVersion");
_Static_assert(offsetof(CMPIStringFT, release) == 8, "CMPIStringFT.release");
_Static_assert(offsetof(CMPIStringFT, clone) == 16, "CMPIStringFT.clone");
_Static_assert(offsetof(CMPIStringFT, getCharPtr) == 24, "CMPIStringFT.getCharPtr");

_Static_assert(sizeof(CMPIArgsFT) == 56, "CMPIArgsFT");
_Static_assert(offsetof(CMPIArgsFT, ftVersion) == 0, "CMPIArgsFT.ftVersion");
_Static_assert(offsetof(CMPIArgsFT, release) == 8, "CMPIArgsFT.release");
_Static_assert(offsetof(CMPIArgsFT, clone) == 16, "CMPIArgsFT.clone");
_Static_assert(offsetof(CMPIArgsFT, addArg) == 24, "CMPIArgsFT.addArg");
_Static_assert(offsetof(CMPIArgsFT, getArg) == 32, "CMPIArgsFT.getArg");
_Static_assert(offsetof(CMPIArgsFT, getArgAt) == 40, "CMPIArgsFT.getArgAt");
_Static_assert(offsetof(CMPIArgsFT, getArgCount) == 48, "CMPIArgsFT.getArgCount");

_Static_assert(sizeof(CMPIContextFT) == 56, "CMPIContextFT");
_Static_assert(offsetof(CMPIContextFT, ftVersion) == 0, "CMPIContextFT.ftVersion");
_Static_assert(offsetof(CMPIContextFT, release) == 8, "CMPIContextFT.release");
_Static_assert(offsetof(CMPIContextFT, clone) == 16, "CMPIContextFT.clone");
_Static_assert(offsetof(CMPIContextFT, getEntry) == 24, "CMPIContextFT.getEntry");
_Static_assert(offsetof(CMPIContextFT, getEntryAt) == 32, "CMPIContextFT.getEntryAt");
_Static_assert(offsetof(CMPIContextFT, getEntryCount) == 40, "CMPIContextFT.getEntryCount");
_Static_assert(offsetof(CMPIContextFT, addEntry) == 48, "CMPIContextFT.addEntry");

_Static_assert(sizeof(CMPIResultFT) == 64, "CMPIResultFT");
_Static_assert(offsetof(CMPIResultFT, ftVersion) == 0, "CMPIResultFT.ftVersion");
_Static_assert(offsetof(CMPIResultFT, release) == 8, "CMPIResultFT.release");
_Static_assert(offsetof(CMPIResultFT, clone) == 16, "CMPIResultFT.clone");
_Static_assert(offsetof(CMPIResultFT, returnData) == 24, "CMPIResultFT.returnData");
_Static_assert(offsetof(CMPIResultFT, returnInstance) == 32, "CMPIResultFT.returnInstance");
_Static_assert(offsetof(CMPIResultFT, returnObjectPath) == 40, "CMPIResultFT.returnObjectPath");
_Static_assert(offsetof(CMPIResultFT, returnDone) == 48, "CMPIResultFT.returnDone");
_Static_assert(offsetof(CMPIResultFT, returnError) == 56, "CMPIResultFT.returnError");

_Static_assert(sizeof(CMPIDateTimeFT) == 48, "CMPIDateTimeFT");
_Static_assert(offsetof(CMPIDateTimeFT, ftVersion) == 0, "CMPIDateTimeFT.ftVersion");
_Static_assert(offsetof(CMPIDateTimeFT, release) == 8, "CMPIDateTimeFT.release");
_Static_assert(offsetof(CMPIDateTimeFT, clone) == 16, "CMPIDateTimeFT.clone");
_Static_assert(offsetof(CMPIDateTimeFT, getBinaryFormat) == 24, "CMPIDateTimeFT.getBinaryFormat");
_Static_assert(offsetof(CMPIDateTimeFT, getStringFormat) == 32, "CMPIDateTimeFT.getStringFormat");
_Static_assert(offsetof(CMPIDateTimeFT, isInterval) == 40, "CMPIDateTimeFT.isInterval");

_Static_assert(sizeof(CMPIEnumerationFT) == 48, "CMPIEnumerationFT");
_Static_assert(offsetof(CMPIEnumerationFT, ftVersion) == 0, "CMPIEnumerationFT.ftVersion");
_Static_assert(offsetof(CMPIEnumerationFT, release) == 8, "CMPIEnumerationFT.release");
_Static_assert(offsetof(CMPIEnumerationFT, clone) == 16, "CMPIEnumerationFT.clone");
_Static_assert(offsetof(CMPIEnumerationFT, getNext) == 24, "CMPIEnumerationFT.getNext");
_Static_assert(offsetof(CMPIEnumerationFT, hasNext) == 32, "CMPIEnumerationFT.hasNext");
_Static_assert(offsetof(CMPIEnumerationFT, toArray) == 40, "CMPIEnumerationFT.toArray");

_Static_assert(sizeof(CMPISelectExpFT) == 64, "CMPISelectExpFT");
_Static_assert(offsetof(CMPISelectExpFT, ftVersion) == 0, "CMPISelectExpFT.ftVersion");
_Static_assert(offsetof(CMPISelectExpFT, release) == 8, "CMPISelectExpFT.release");
_Static_assert(offsetof(CMPISelectExpFT, clone) == 16, "CMPISelectExpFT.clone");
_Static_assert(offsetof(CMPISelectExpFT, evaluate) == 24, "CMPISelectExpFT.evaluate");
_Static_assert(offsetof(CMPISelectExpFT, getString) == 32, "CMPISelectExpFT.getString");
_Static_assert(offsetof(CMPISelectExpFT, getDOC) == 40, "CMPISelectExpFT.getDOC");
_Static_assert(offsetof(CMPISelectExpFT, getCOD) == 48, "CMPISelectExpFT.getCOD");
_Static_assert(offsetof(CMPISelectExpFT, evaluateUsingAccessor) == 56,
               "CMPISelectExpFT.evaluateUsingAccessor");

_Static_assert(sizeof(CMPISelectCondFT) == 40, "CMPISelectCondFT");
_Static_assert(offsetof(CMPISelectCondFT, ftVersion) == 0, "CMPISelectCondFT.ftVersion");
_Static_assert(offsetof(CMPISelectCondFT, release) == 8, "CMPISelectCondFT.release");
_Static_assert(offsetof(CMPISelectCondFT, clone) == 16, "CMPISelectCondFT.clone");
_Static_assert(offsetof(CMPISelectCondFT, getCountAndType) == 24,
               "CMPISelectCondFT.getCountAndType");
_Static_assert(offsetof(CMPISelectCondFT, getSubCondAt) == 32, "CMPISelectCondFT.getSubCondAt");

_Static_assert(sizeof(CMPISubCondFT) == 48, "CMPISubCondFT");
_Static_assert(offsetof(CMPISubCondFT, ftVersion) == 0, "CMPISubCondFT.ftVersion");
_Static_assert(offsetof(CMPISubCondFT, release) == 8, "CMPISubCondFT.release");
_Static_assert(offsetof(CMPISubCondFT, clone) == 16, "CMPISubCondFT.clone");
_Static_assert(offsetof(CMPISubCondFT, getCount) == 24, "CMPISubCondFT.getCount");
_Static_assert(offsetof(CMPISubCondFT, getPredicateAt) == 32, "CMPISubCondFT.getPredicateAt");
_Static_assert(offsetof(CMPISubCondFT, getPredicate) == 40, "CMPISubCondFT.getPredicate");

_Static_assert(sizeof(CMPIPredicateFT) == 40, "CMPIPredicateFT");
_Static_assert(offsetof(CMPIPredicateFT, ftVersion) == 0, "CMPIPredicateFT.ftVersion");
_Static_assert(offsetof(CMPIPredicateFT, release) == 8, "CMPIPredicateFT.release");
_Static_assert(offsetof(CMPIPredicateFT, clone) == 16, "CMPIPredicateFT.clone");
_Static_assert(offsetof(CMPIPredicateFT, getData) == 24, "CMPIPredicateFT.getData");
_Static_assert(offsetof(CMPIPredicateFT, evaluateUsingAccessor) == 32,
               "CMPIPredicateFT.evaluateUsingAccessor");

_Static_assert(sizeof(CMPIErrorFT) == 216, "CMPIErrorFT");
_Static_assert(offsetof(CMPIErrorFT, ftVersion) == 0, "CMPIErrorFT.ftVersion");
_Static_assert(offsetof(CMPIErrorFT, release) == 8, "CMPIErrorFT.release");
_Static_assert(offsetof(CMPIErrorFT, clone) == 16, "CMPIErrorFT.clone");
_Static_assert(offsetof(CMPIErrorFT, getErrorType) == 24, "CMPIErrorFT.getErrorType");
_Static_assert(offsetof(CMPIErrorFT, getOtherErrorType) == 32, "CMPIErrorFT.getOtherErrorType");
_Static_assert(offsetof(CMPIErrorFT, getOwningEntity) == 40, "CMPIErrorFT.getOwningEntity");
_Static_assert(offsetof(CMPIErrorFT, getMessageID) == 48, "CMPIErrorFT.getMessageID");
_Static_assert(offsetof(CMPIErrorFT, getMessage) == 56, "CMPIErrorFT.getMessage");
_Static_assert(offsetof(CMPIErrorFT, getPerceivedSeverity) == 64,
               "CMPIErrorFT.getPerceivedSeverity");
_Static_assert(offsetof(CMPIErrorFT, getProbableCause) == 72, "CMPIErrorFT.getProbableCause");
_Static_assert(offsetof(CMPIErrorFT, getProbableCauseDescription) == 80,
               "CMPIErrorFT.getProbableCauseDescription");
_Static_assert(offsetof(CMPIErrorFT, getRecommendedActions) == 88,
               "CMPIErrorFT.getRecommendedActions");
_Static_assert(offsetof(CMPIErrorFT, getErrorSource) == 96, "CMPIErrorFT.getErrorSource");
_Static_assert(offsetof(CMPIErrorFT, getErrorSourceFormat) == 104,
               "CMPIErrorFT.getErrorSourceFormat");
_Static_assert(offsetof(CMPIErrorFT, getOtherErrorSourceFormat) == 112,
               "CMPIErrorFT.getOtherErrorSourceFormat");
_Static_assert(offsetof(CMPIErrorFT, getCIMStatusCode) == 120, "CMPIErrorFT.getCIMStatusCode");
_Static_assert(offsetof(CMPIErrorFT, getCIMStatusCodeDescription) == 128,
               "CMPIErrorFT.getCIMStatusCodeDescription");
_Static_assert(offsetof(CMPIErrorFT, getMessageArguments) == 136,
               "CMPIErrorFT.getMessageArguments");
_Static_assert(offsetof(CMPIErrorFT, setErrorType) == 144, "CMPIErrorFT.setErrorType");
_Static_assert(offsetof(CMPIErrorFT, setOtherErrorType) == 152, "CMPIErrorFT.setOtherErrorType");
_Static_assert(offsetof(CMPIErrorFT, setProbableCauseDescription) == 160,
               "CMPIErrorFT.setProbableCauseDescription");
_Static_assert(offsetof(CMPIErrorFT, setRecommendedActions) == 168,
               "CMPIErrorFT.setRecommendedActions");
_Static_assert(offsetof(CMPIErrorFT, setErrorSource) == 176, "CMPIErrorFT.setErrorSource");
_Static_assert(offsetof(CMPIErrorFT, setErrorSourceFormat) == 184,
               "CMPIErrorFT.setErrorSourceFormat");
_Static_assert(offsetof(CMPIErrorFT, setOtherErrorSourceFormat) == 192,
               "CMPIErrorFT.setOtherErrorSourceFormat");
_Static_assert(offsetof(CMPIErrorFT, setCIMStatusCodeDescription) == 200,
               "CMPIErrorFT.setCIMStatusCodeDescription");
_Static_assert(offsetof(CMPIErrorFT, setMessageArguments) == 208,
               "CMPIErrorFT.setMessageArguments");

_Static_assert(sizeof(CMPIInstanceMIFT) == 80, "CMPIInstanceMIFT");
_Static_assert(offsetof(CMPIInstanceMIFT, ftVersion) == 0, "CMPIInstanceMIFT.ftVersion");
_Static_assert(offsetof(CMPIInstanceMIFT, miVersion) == 4, "CMPIInstanceMIFT.miVersion");
_Static_assert(offsetof(CMPIInstanceMIFT, miName) == 8, "CMPIInstanceMIFT.miName");
_Static_assert(offsetof(CMPIInstanceMIFT, cleanup) == 16, "CMPIInstanceMIFT.cleanup");
_Static_assert(offsetof(CMPIInstanceMIFT, enumerateInstanceNames) == 24,
               "CMPIInstanceMIFT.enumerateInstanceNames");
_Static_assert(offsetof(CMPIInstanceMIFT, enumerateInstances) == 32,
               "CMPIInstanceMIFT.enumerateInstances");
_Static_assert(offsetof(CMPIInstanceMIFT, getInstance) == 40, "CMPIInstanceMIFT.getInstance");
_Static_assert(offsetof(CMPIInstanceMIFT, createInstance) == 48, "CMPIInstanceMIFT.createInstance");
_Static_assert(offsetof(CMPIInstanceMIFT, modifyInstance) == 56, "CMPIInstanceMIFT.modifyInstance");
_Static_assert(offsetof(CMPIInstanceMIFT, deleteInstance) == 64, "CMPIInstanceMIFT.deleteInstance");
_Static_assert(offsetof(CMPIInstanceMIFT, execQuery) == 72, "CMPIInstanceMIFT.execQuery");

_Static_assert(sizeof(CMPIAssociationMIFT) == 56, "CMPIAssociationMIFT");
_Static_assert(offsetof(CMPIAssociationMIFT, ftVersion) == 0, "CMPIAssociationMIFT.ftVersion");
_Static_assert(offsetof(CMPIAssociationMIFT, miVersion) == 4, "CMPIAssociationMIFT.miVersion");
_Static_assert(offsetof(CMPIAssociationMIFT, miName) == 8, "CMPIAssociationMIFT.miName");
_Static_assert(offsetof(CMPIAssociationMIFT, cleanup) == 16, "CMPIAssociationMIFT.cleanup");
_Static_assert(offsetof(CMPIAssociationMIFT, associators) == 24, "CMPIAssociationMIFT.associators");
_Static_assert(offsetof(CMPIAssociationMIFT, associatorNames) == 32,
               "CMPIAssociationMIFT.associatorNames");
_Static_assert(offsetof(CMPIAssociationMIFT, references) == 40, "CMPIAssociationMIFT.references");
_Static_assert(offsetof(CMPIAssociationMIFT, referenceNames) == 48,
               "CMPIAssociationMIFT.referenceNames");

_Static_assert(sizeof(CMPIMethodMIFT) == 32, "CMPIMethodMIFT");
_Static_assert(offsetof(CMPIMethodMIFT, ftVersion) == 0, "CMPIMethodMIFT.ftVersion");
_Static_assert(offsetof(CMPIMethodMIFT, miVersion) == 4, "CMPIMethodMIFT.miVersion");
_Static_assert(offsetof(CMPIMethodMIFT, miName) == 8, "CMPIMethodMIFT.miName");
_Static_assert(offsetof(CMPIMethodMIFT, cleanup) == 16, "CMPIMethodMIFT.cleanup");
_Static_assert(offsetof(CMPIMethodMIFT, invokeMethod) == 24, "CMPIMethodMIFT.invokeMethod");

_Static_assert(sizeof(CMPIPropertyMIFT) == 48, "CMPIPropertyMIFT");
_Static_assert(offsetof(CMPIPropertyMIFT, ftVersion) == 0, "CMPIPropertyMIFT.ftVersion");
_Static_assert(offsetof(CMPIPropertyMIFT, miVersion) == 4, "CMPIPropertyMIFT.miVersion");
_Static_assert(offsetof(CMPIPropertyMIFT, miName) == 8, "CMPIPropertyMIFT.miName");
_Static_assert(offsetof(CMPIPropertyMIFT, cleanup) == 16, "CMPIPropertyMIFT.cleanup");
_Static_assert(offsetof(CMPIPropertyMIFT, setProperty) == 24, "CMPIPropertyMIFT.setProperty");
_Static_assert(offsetof(CMPIPropertyMIFT, getProperty) == 32, "CMPIPropertyMIFT.getProperty");
_Static_assert(offsetof(CMPIPropertyMIFT, setPropertyWithOrigin) == 40,
               "CMPIPropertyMIFT.setPropertyWithOrigin");

_Static_assert(sizeof(CMPIIndicationMIFT) == 72, "CMPIIndicationMIFT");
_Static_assert(offsetof(CMPIIndicationMIFT, ftVersion) == 0, "CMPIIndicationMIFT.ftVersion");
_Static_assert(offsetof(CMPIIndicationMIFT, miVersion) == 4, "CMPIIndicationMIFT.miVersion");
_Static_assert(offsetof(CMPIIndicationMIFT, miName) == 8, "CMPIIndicationMIFT.miName");
_Static_assert(offsetof(CMPIIndicationMIFT, cleanup) == 16, "CMPIIndicationMIFT.cleanup");
_Static_assert(offsetof(CMPIIndicationMIFT, authorizeFilter) == 24,
               "CMPIIndicationMIFT.authorizeFilter");
_Static_assert(offsetof(CMPIIndicationMIFT, mustPoll) == 32, "CMPIIndicationMIFT.mustPoll");
_Static_assert(offsetof(CMPIIndicationMIFT, activateFilter) == 40,
               "CMPIIndicationMIFT.activateFilter");
_Static_assert(offsetof(CMPIIndicationMIFT, deActivateFilter) == 48,
               "CMPIIndicationMIFT.deActivateFilter");
_Static_assert(offsetof(CMPIIndicationMIFT, enableIndications) == 56,
               "CMPIIndicationMIFT.enableIndications");
_Static_assert(offsetof(CMPIIndicationMIFT, disableIndications) == 64,
               "CMPIIndicationMIFT.disableIndications");
