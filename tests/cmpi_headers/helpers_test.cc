// Every helper calls the slot of its meaning with its arguments in their order, and hands back what
// the slot answers.
#include <cmpimacs.h>
#include <gtest/gtest.h>

#include <ctime>

#include "recording_broker.h"

namespace {

using recording::Answer;
using recording::Called;
using recording::kDataType;
using recording::kNumber;
using recording::kStatus;
using recording::Slot;

const char* const kTexts[] = {"first", "second", "third", "fourth", "fifth"};

void* ThreadBody(void*) {
  return nullptr;
}
void Once() {}
void KeyCleanup(void*) {}
CMPIData Accessor(const char*, void*) {
  return {};
}

CMPIBrokerEncFT MakeBrokerEncFT() {
  CMPIBrokerEncFT table{};
  table.newInstance = Slot<"newInstance">{};
  table.newObjectPath = Slot<"newObjectPath">{};
  table.newArgs = Slot<"newArgs">{};
  table.newString = Slot<"newString">{};
  table.newArray = Slot<"newArray">{};
  table.newDateTime = Slot<"newDateTime">{};
  table.newDateTimeFromBinary = Slot<"newDateTimeFromBinary">{};
  table.newDateTimeFromChars = Slot<"newDateTimeFromChars">{};
  table.newSelectExp = Slot<"newSelectExp">{};
  table.classPathIsA = Slot<"classPathIsA">{};
  table.toString = Slot<"toString">{};
  table.isOfType = Slot<"isOfType">{};
  table.getType = Slot<"getType">{};
  table.logMessage = Slot<"logMessage">{};
  table.trace = Slot<"trace">{};
  table.newCMPIError = Slot<"newCMPIError">{};
  table.openMessageFile = Slot<"openMessageFile">{};
  table.closeMessageFile = Slot<"closeMessageFile">{};
  return table;
}

CMPIBrokerFT MakeBrokerFT() {
  CMPIBrokerFT table{};
  table.prepareAttachThread = Slot<"prepareAttachThread">{};
  table.attachThread = Slot<"attachThread">{};
  table.detachThread = Slot<"detachThread">{};
  table.deliverIndication = Slot<"deliverIndication">{};
  table.enumerateInstanceNames = Slot<"enumerateInstanceNames">{};
  table.getInstance = Slot<"getInstance">{};
  table.createInstance = Slot<"createInstance">{};
  table.modifyInstance = Slot<"modifyInstance">{};
  table.deleteInstance = Slot<"deleteInstance">{};
  table.execQuery = Slot<"execQuery">{};
  table.enumerateInstances = Slot<"enumerateInstances">{};
  table.associators = Slot<"associators">{};
  table.associatorNames = Slot<"associatorNames">{};
  table.references = Slot<"references">{};
  table.referenceNames = Slot<"referenceNames">{};
  table.invokeMethod = Slot<"invokeMethod">{};
  table.setProperty = Slot<"setProperty">{};
  table.getProperty = Slot<"getProperty">{};
  return table;
}

CMPIBrokerExtFT MakeBrokerExtFT() {
  CMPIBrokerExtFT table{};
  table.resolveFileName = Slot<"resolveFileName">{};
  table.newThread = Slot<"newThread">{};
  table.joinThread = Slot<"joinThread">{};
  table.exitThread = Slot<"exitThread">{};
  table.cancelThread = Slot<"cancelThread">{};
  table.threadSleep = Slot<"threadSleep">{};
  table.threadOnce = Slot<"threadOnce">{};
  table.createThreadKey = Slot<"createThreadKey">{};
  table.destroyThreadKey = Slot<"destroyThreadKey">{};
  table.getThreadSpecific = Slot<"getThreadSpecific">{};
  table.setThreadSpecific = Slot<"setThreadSpecific">{};
  table.newMutex = Slot<"newMutex">{};
  table.destroyMutex = Slot<"destroyMutex">{};
  table.lockMutex = Slot<"lockMutex">{};
  table.unlockMutex = Slot<"unlockMutex">{};
  table.newCondition = Slot<"newCondition">{};
  table.destroyCondition = Slot<"destroyCondition">{};
  table.condWait = Slot<"condWait">{};
  table.timedCondWait = Slot<"timedCondWait">{};
  table.signalCondition = Slot<"signalCondition">{};
  return table;
}

CMPIBrokerMemFT MakeBrokerMemFT() {
  CMPIBrokerMemFT table{};
  table.mark = Slot<"mark">{};
  table.release = Slot<"release">{};
  table.cmpiMalloc = Slot<"cmpiMalloc">{};
  table.cmpiCalloc = Slot<"cmpiCalloc">{};
  table.cmpiRealloc = Slot<"cmpiRealloc">{};
  table.cmpiStrDup = Slot<"cmpiStrDup">{};
  table.cmpiFree = Slot<"cmpiFree">{};
  table.freeInstance = Slot<"freeInstance">{};
  table.freeObjectPath = Slot<"freeObjectPath">{};
  table.freeArgs = Slot<"freeArgs">{};
  table.freeString = Slot<"freeString">{};
  table.freeArray = Slot<"freeArray">{};
  table.freeDateTime = Slot<"freeDateTime">{};
  table.freeSelectExp = Slot<"freeSelectExp">{};
  return table;
}

CMPIInstanceFT MakeInstanceFT() {
  CMPIInstanceFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getProperty = Slot<"getProperty">{};
  table.getPropertyAt = Slot<"getPropertyAt">{};
  table.getPropertyCount = Slot<"getPropertyCount">{};
  table.setProperty = Slot<"setProperty">{};
  table.getObjectPath = Slot<"getObjectPath">{};
  table.setPropertyFilter = Slot<"setPropertyFilter">{};
  table.setObjectPath = Slot<"setObjectPath">{};
  table.setPropertyWithOrigin = Slot<"setPropertyWithOrigin">{};
  return table;
}

CMPIObjectPathFT MakeObjectPathFT() {
  CMPIObjectPathFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.setNameSpace = Slot<"setNameSpace">{};
  table.getNameSpace = Slot<"getNameSpace">{};
  table.setHostname = Slot<"setHostname">{};
  table.getHostname = Slot<"getHostname">{};
  table.setClassName = Slot<"setClassName">{};
  table.getClassName = Slot<"getClassName">{};
  table.addKey = Slot<"addKey">{};
  table.getKey = Slot<"getKey">{};
  table.getKeyAt = Slot<"getKeyAt">{};
  table.getKeyCount = Slot<"getKeyCount">{};
  table.setNameSpaceFromObjectPath = Slot<"setNameSpaceFromObjectPath">{};
  table.setHostAndNameSpaceFromObjectPath = Slot<"setHostAndNameSpaceFromObjectPath">{};
  table.getClassQualifier = Slot<"getClassQualifier">{};
  table.getPropertyQualifier = Slot<"getPropertyQualifier">{};
  table.getMethodQualifier = Slot<"getMethodQualifier">{};
  table.getParameterQualifier = Slot<"getParameterQualifier">{};
  table.toString = Slot<"toString">{};
  return table;
}

CMPIArrayFT MakeArrayFT() {
  CMPIArrayFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getSize = Slot<"getSize">{};
  table.getSimpleType = Slot<"getSimpleType">{};
  table.getElementAt = Slot<"getElementAt">{};
  table.setElementAt = Slot<"setElementAt">{};
  return table;
}

CMPIStringFT MakeStringFT() {
  CMPIStringFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getCharPtr = Slot<"getCharPtr">{};
  return table;
}

CMPIArgsFT MakeArgsFT() {
  CMPIArgsFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.addArg = Slot<"addArg">{};
  table.getArg = Slot<"getArg">{};
  table.getArgAt = Slot<"getArgAt">{};
  table.getArgCount = Slot<"getArgCount">{};
  return table;
}

CMPIContextFT MakeContextFT() {
  CMPIContextFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getEntry = Slot<"getEntry">{};
  table.getEntryAt = Slot<"getEntryAt">{};
  table.getEntryCount = Slot<"getEntryCount">{};
  table.addEntry = Slot<"addEntry">{};
  return table;
}

CMPIResultFT MakeResultFT() {
  CMPIResultFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.returnData = Slot<"returnData">{};
  table.returnInstance = Slot<"returnInstance">{};
  table.returnObjectPath = Slot<"returnObjectPath">{};
  table.returnDone = Slot<"returnDone">{};
  table.returnError = Slot<"returnError">{};
  return table;
}

CMPIDateTimeFT MakeDateTimeFT() {
  CMPIDateTimeFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getBinaryFormat = Slot<"getBinaryFormat">{};
  table.getStringFormat = Slot<"getStringFormat">{};
  table.isInterval = Slot<"isInterval">{};
  return table;
}

CMPIEnumerationFT MakeEnumerationFT() {
  CMPIEnumerationFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getNext = Slot<"getNext">{};
  table.hasNext = Slot<"hasNext">{};
  table.toArray = Slot<"toArray">{};
  return table;
}

CMPISelectExpFT MakeSelectExpFT() {
  CMPISelectExpFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.evaluate = Slot<"evaluate">{};
  table.getString = Slot<"getString">{};
  table.getDOC = Slot<"getDOC">{};
  table.getCOD = Slot<"getCOD">{};
  table.evaluateUsingAccessor = Slot<"evaluateUsingAccessor">{};
  return table;
}

CMPISelectCondFT MakeSelectCondFT() {
  CMPISelectCondFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getCountAndType = Slot<"getCountAndType">{};
  table.getSubCondAt = Slot<"getSubCondAt">{};
  return table;
}

CMPISubCondFT MakeSubCondFT() {
  CMPISubCondFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getCount = Slot<"getCount">{};
  table.getPredicateAt = Slot<"getPredicateAt">{};
  table.getPredicate = Slot<"getPredicate">{};
  return table;
}

CMPIPredicateFT MakePredicateFT() {
  CMPIPredicateFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getData = Slot<"getData">{};
  table.evaluateUsingAccessor = Slot<"evaluateUsingAccessor">{};
  return table;
}

CMPIErrorFT MakeErrorFT() {
  CMPIErrorFT table{};
  table.release = Slot<"release">{};
  table.clone = Slot<"clone">{};
  table.getErrorType = Slot<"getErrorType">{};
  table.getOtherErrorType = Slot<"getOtherErrorType">{};
  table.getOwningEntity = Slot<"getOwningEntity">{};
  table.getMessageID = Slot<"getMessageID">{};
  table.getMessage = Slot<"getMessage">{};
  table.getPerceivedSeverity = Slot<"getPerceivedSeverity">{};
  table.getProbableCause = Slot<"getProbableCause">{};
  table.getProbableCauseDescription = Slot<"getProbableCauseDescription">{};
  table.getRecommendedActions = Slot<"getRecommendedActions">{};
  table.getErrorSource = Slot<"getErrorSource">{};
  table.getErrorSourceFormat = Slot<"getErrorSourceFormat">{};
  table.getOtherErrorSourceFormat = Slot<"getOtherErrorSourceFormat">{};
  table.getCIMStatusCode = Slot<"getCIMStatusCode">{};
  table.getCIMStatusCodeDescription = Slot<"getCIMStatusCodeDescription">{};
  table.getMessageArguments = Slot<"getMessageArguments">{};
  table.setErrorType = Slot<"setErrorType">{};
  table.setOtherErrorType = Slot<"setOtherErrorType">{};
  table.setProbableCauseDescription = Slot<"setProbableCauseDescription">{};
  table.setRecommendedActions = Slot<"setRecommendedActions">{};
  table.setErrorSource = Slot<"setErrorSource">{};
  table.setErrorSourceFormat = Slot<"setErrorSourceFormat">{};
  table.setOtherErrorSourceFormat = Slot<"setOtherErrorSourceFormat">{};
  table.setCIMStatusCodeDescription = Slot<"setCIMStatusCodeDescription">{};
  table.setMessageArguments = Slot<"setMessageArguments">{};
  return table;
}

// A broker and one object of each type, with all slots set, and something of each other type.
class CmpiHelpers : public testing::Test {
 protected:
  void TearDown() override { EXPECT_TRUE(recording::calls.empty()); }

  CMPIBrokerEncFT brokerenc_table = MakeBrokerEncFT();
  CMPIBrokerFT broker_table = MakeBrokerFT();
  CMPIBrokerExtFT brokerext_table = MakeBrokerExtFT();
  CMPIBrokerMemFT brokermem_table = MakeBrokerMemFT();
  CMPIInstanceFT instance_table = MakeInstanceFT();
  CMPIObjectPathFT objectpath_table = MakeObjectPathFT();
  CMPIArrayFT array_table = MakeArrayFT();
  CMPIStringFT string_table = MakeStringFT();
  CMPIArgsFT args_table = MakeArgsFT();
  CMPIContextFT context_table = MakeContextFT();
  CMPIResultFT result_table = MakeResultFT();
  CMPIDateTimeFT datetime_table = MakeDateTimeFT();
  CMPIEnumerationFT enumeration_table = MakeEnumerationFT();
  CMPISelectExpFT selectexp_table = MakeSelectExpFT();
  CMPISelectCondFT selectcond_table = MakeSelectCondFT();
  CMPISubCondFT subcond_table = MakeSubCondFT();
  CMPIPredicateFT predicate_table = MakePredicateFT();
  CMPIErrorFT error_table = MakeErrorFT();
  CMPIBroker broker{nullptr, &broker_table, &brokerenc_table, &brokerext_table, &brokermem_table};
  CMPIInstance instance{nullptr, &instance_table};
  CMPIObjectPath path{nullptr, &objectpath_table};
  CMPIArgs args{nullptr, &args_table};
  CMPIString string{nullptr, &string_table};
  CMPIArray array{nullptr, &array_table};
  CMPIDateTime date_time{nullptr, &datetime_table};
  CMPIEnumeration enumeration{nullptr, &enumeration_table};
  CMPISelectExp select_exp{nullptr, &selectexp_table};
  CMPISelectCond select_cond{nullptr, &selectcond_table};
  CMPISubCond sub_cond{nullptr, &subcond_table};
  CMPIPredicate predicate{nullptr, &predicate_table};
  CMPIContext context{nullptr, &context_table};
  CMPIResult result{nullptr, &result_table};
  CMPIError error{nullptr, &error_table};
  CMPIObjectPath other_path{nullptr, &objectpath_table};
  CMPIArgs other_args{nullptr, &args_table};
  CMPIStatus rc{CMPI_RC_OK, nullptr};
  CMPIValue value{};
  CMPIString* name = nullptr;
  CMPIString* other_name = nullptr;
  CMPIArray* projection = nullptr;
  CMPIMsgFileHandle file = &value;
  CMPIGcStat* gc = Answer<CMPIGcStat*>();
  CMPIType type = CMPI_null;
  CMPIPredOp op = CMPI_PredOp_Equals;
  int number = 0;
  unsigned int key = 0;
  std::timespec time{};
  void* pointer = &number;
  void* other_pointer = &key;
  void* thread_result = nullptr;
  const char* properties[2] = {"Name", nullptr};
  const char* keys[2] = {"Key", nullptr};
};

TEST_F(CmpiHelpers, ReachBrokerEncSlots) {
  EXPECT_EQ(CMNewInstance(&broker, &path, &rc), Answer<CMPIInstance*>());
  EXPECT_TRUE(Called("newInstance", &broker, &path, &rc));
  EXPECT_EQ(CMNewObjectPath(&broker, kTexts[0], kTexts[1], &rc), Answer<CMPIObjectPath*>());
  EXPECT_TRUE(Called("newObjectPath", &broker, kTexts[0], kTexts[1], &rc));
  EXPECT_EQ(CMNewArgs(&broker, &rc), Answer<CMPIArgs*>());
  EXPECT_TRUE(Called("newArgs", &broker, &rc));
  EXPECT_EQ(CMNewString(&broker, kTexts[0], &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("newString", &broker, kTexts[0], &rc));
  EXPECT_EQ(CMNewArray(&broker, 11U, CMPI_uint16, &rc), Answer<CMPIArray*>());
  EXPECT_TRUE(Called("newArray", &broker, 11U, CMPI_uint16, &rc));
  EXPECT_EQ(CMNewDateTime(&broker, &rc), Answer<CMPIDateTime*>());
  EXPECT_TRUE(Called("newDateTime", &broker, &rc));
  EXPECT_EQ(CMNewDateTimeFromBinary(&broker, 11U, 1, &rc), Answer<CMPIDateTime*>());
  EXPECT_TRUE(Called("newDateTimeFromBinary", &broker, 11U, 1, &rc));
  EXPECT_EQ(CMNewDateTimeFromChars(&broker, kTexts[0], &rc), Answer<CMPIDateTime*>());
  EXPECT_TRUE(Called("newDateTimeFromChars", &broker, kTexts[0], &rc));
  EXPECT_EQ(CMNewSelectExp(&broker, kTexts[0], kTexts[1], &projection, &rc),
            Answer<CMPISelectExp*>());
  EXPECT_TRUE(Called("newSelectExp", &broker, kTexts[0], kTexts[1], &projection, &rc));
  EXPECT_EQ(CMClassPathIsA(&broker, &path, kTexts[0], &rc), kNumber);
  EXPECT_TRUE(Called("classPathIsA", &broker, &path, kTexts[0], &rc));
  EXPECT_EQ(CDToString(&broker, pointer, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("toString", &broker, pointer, &rc));
  EXPECT_EQ(CDIsOfType(&broker, pointer, kTexts[0], &rc), kNumber);
  EXPECT_TRUE(Called("isOfType", &broker, pointer, kTexts[0], &rc));
  EXPECT_EQ(CDGetType(&broker, pointer, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getType", &broker, pointer, &rc));
  EXPECT_EQ(CMLogMessage(&broker, CMPI_SEV_WARNING, kTexts[0], kTexts[1], &string).rc, kStatus);
  EXPECT_TRUE(Called("logMessage", &broker, CMPI_SEV_WARNING, kTexts[0], kTexts[1], &string));
  EXPECT_EQ(CMTraceMessage(&broker, CMPI_LEV_VERBOSE, kTexts[0], kTexts[1], &string).rc, kStatus);
  EXPECT_TRUE(Called("trace", &broker, CMPI_LEV_VERBOSE, kTexts[0], kTexts[1], &string));
  EXPECT_EQ(CMNewCMPIError(&broker, kTexts[0], kTexts[1], kTexts[2], ErrorSevHigh, Fan_Failure,
                           CMPI_RC_ERR_NOT_FOUND, &rc),
            Answer<CMPIError*>());
  EXPECT_TRUE(Called("newCMPIError", &broker, kTexts[0], kTexts[1], kTexts[2], ErrorSevHigh,
                     Fan_Failure, CMPI_RC_ERR_NOT_FOUND, &rc));
  EXPECT_EQ(CMOpenMessageFile(&broker, kTexts[0], &file).rc, kStatus);
  EXPECT_TRUE(Called("openMessageFile", &broker, kTexts[0], &file));
  EXPECT_EQ(CMCloseMessageFile(&broker, file).rc, kStatus);
  EXPECT_TRUE(Called("closeMessageFile", &broker, file));
}

TEST_F(CmpiHelpers, ReachBrokerSlots) {
  EXPECT_EQ(CBPrepareAttachThread(&broker, &context), Answer<CMPIContext*>());
  EXPECT_TRUE(Called("prepareAttachThread", &broker, &context));
  EXPECT_EQ(CBAttachThread(&broker, &context).rc, kStatus);
  EXPECT_TRUE(Called("attachThread", &broker, &context));
  EXPECT_EQ(CBDetachThread(&broker, &context).rc, kStatus);
  EXPECT_TRUE(Called("detachThread", &broker, &context));
  EXPECT_EQ(CBDeliverIndication(&broker, &context, kTexts[0], &instance).rc, kStatus);
  EXPECT_TRUE(Called("deliverIndication", &broker, &context, kTexts[0], &instance));
  EXPECT_EQ(CBEnumInstanceNames(&broker, &context, &path, &rc), Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("enumerateInstanceNames", &broker, &context, &path, &rc));
  EXPECT_EQ(CBGetInstance(&broker, &context, &path, properties, &rc), Answer<CMPIInstance*>());
  EXPECT_TRUE(Called("getInstance", &broker, &context, &path, properties, &rc));
  EXPECT_EQ(CBCreateInstance(&broker, &context, &path, &instance, &rc), Answer<CMPIObjectPath*>());
  EXPECT_TRUE(Called("createInstance", &broker, &context, &path, &instance, &rc));
  EXPECT_EQ(CBModifyInstance(&broker, &context, &path, &instance, properties).rc, kStatus);
  EXPECT_TRUE(Called("modifyInstance", &broker, &context, &path, &instance, properties));
  EXPECT_EQ(CBDeleteInstance(&broker, &context, &path).rc, kStatus);
  EXPECT_TRUE(Called("deleteInstance", &broker, &context, &path));
  EXPECT_EQ(CBExecQuery(&broker, &context, &path, kTexts[0], kTexts[1], &rc),
            Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("execQuery", &broker, &context, &path, kTexts[0], kTexts[1], &rc));
  EXPECT_EQ(CBEnumInstances(&broker, &context, &path, properties, &rc), Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("enumerateInstances", &broker, &context, &path, properties, &rc));
  EXPECT_EQ(CBAssociators(&broker, &context, &path, kTexts[0], kTexts[1], kTexts[2], kTexts[3],
                          properties, &rc),
            Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("associators", &broker, &context, &path, kTexts[0], kTexts[1], kTexts[2],
                     kTexts[3], properties, &rc));
  EXPECT_EQ(
      CBAssociatorNames(&broker, &context, &path, kTexts[0], kTexts[1], kTexts[2], kTexts[3], &rc),
      Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("associatorNames", &broker, &context, &path, kTexts[0], kTexts[1], kTexts[2],
                     kTexts[3], &rc));
  EXPECT_EQ(CBReferences(&broker, &context, &path, kTexts[0], kTexts[1], properties, &rc),
            Answer<CMPIEnumeration*>());
  EXPECT_TRUE(
      Called("references", &broker, &context, &path, kTexts[0], kTexts[1], properties, &rc));
  EXPECT_EQ(CBReferenceNames(&broker, &context, &path, kTexts[0], kTexts[1], &rc),
            Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("referenceNames", &broker, &context, &path, kTexts[0], kTexts[1], &rc));
  EXPECT_EQ(CBInvokeMethod(&broker, &context, &path, kTexts[0], &args, &other_args, &rc).type,
            kDataType);
  EXPECT_TRUE(Called("invokeMethod", &broker, &context, &path, kTexts[0], &args, &other_args, &rc));
  EXPECT_EQ(CBSetProperty(&broker, &context, &path, kTexts[0], &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("setProperty", &broker, &context, &path, kTexts[0], &value, CMPI_uint16));
  EXPECT_EQ(CBGetProperty(&broker, &context, &path, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getProperty", &broker, &context, &path, kTexts[0], &rc));
}

TEST_F(CmpiHelpers, ReachBrokerExtSlots) {
  EXPECT_EQ(CMResolveFileName(&broker, kTexts[0]), Answer<char*>());
  EXPECT_TRUE(Called("resolveFileName", kTexts[0]));
  EXPECT_EQ(CMNewThread(&broker, &ThreadBody, pointer, 11), Answer<void*>());
  EXPECT_TRUE(Called("newThread", &ThreadBody, pointer, 11));
  EXPECT_EQ(CMJoinThread(&broker, pointer, &thread_result), kNumber);
  EXPECT_TRUE(Called("joinThread", pointer, &thread_result));
  EXPECT_EQ(CMExitThread(&broker, pointer), kNumber);
  EXPECT_TRUE(Called("exitThread", pointer));
  EXPECT_EQ(CMCancelThread(&broker, pointer), kNumber);
  EXPECT_TRUE(Called("cancelThread", pointer));
  EXPECT_EQ(CMThreadSleep(&broker, 11U), kNumber);
  EXPECT_TRUE(Called("threadSleep", 11U));
  EXPECT_EQ(CMThreadOnce(&broker, &number, &Once), kNumber);
  EXPECT_TRUE(Called("threadOnce", &number, &Once));
  EXPECT_EQ(CMCreateThreadKey(&broker, &key, &KeyCleanup), kNumber);
  EXPECT_TRUE(Called("createThreadKey", &key, &KeyCleanup));
  EXPECT_EQ(CMDestroyThreadKey(&broker, 11U), kNumber);
  EXPECT_TRUE(Called("destroyThreadKey", 11U));
  EXPECT_EQ(CMGetThreadSpecific(&broker, 11U), Answer<void*>());
  EXPECT_TRUE(Called("getThreadSpecific", 11U));
  EXPECT_EQ(CMSetThreadSpecific(&broker, 11U, pointer), kNumber);
  EXPECT_TRUE(Called("setThreadSpecific", 11U, pointer));
  EXPECT_EQ(CMNewMutex(&broker, 11), Answer<void*>());
  EXPECT_TRUE(Called("newMutex", 11));
  CMDestroyMutex(&broker, pointer);
  EXPECT_TRUE(Called("destroyMutex", pointer));
  CMLockMutex(&broker, pointer);
  EXPECT_TRUE(Called("lockMutex", pointer));
  CMUnlockMutex(&broker, pointer);
  EXPECT_TRUE(Called("unlockMutex", pointer));
  EXPECT_EQ(CMNewCondition(&broker, 11), Answer<void*>());
  EXPECT_TRUE(Called("newCondition", 11));
  CMDestroyCondition(&broker, pointer);
  EXPECT_TRUE(Called("destroyCondition", pointer));
  EXPECT_EQ(CMCondWait(&broker, pointer, other_pointer), kNumber);
  EXPECT_TRUE(Called("condWait", pointer, other_pointer));
  EXPECT_EQ(CMTimedCondWait(&broker, pointer, other_pointer, &time), kNumber);
  EXPECT_TRUE(Called("timedCondWait", pointer, other_pointer, &time));
  EXPECT_EQ(CMSignalCondition(&broker, pointer), kNumber);
  EXPECT_TRUE(Called("signalCondition", pointer));
}

TEST_F(CmpiHelpers, ReachBrokerMemSlots) {
  EXPECT_EQ(CBMark(&broker, &rc), Answer<CMPIGcStat*>());
  EXPECT_TRUE(Called("mark", &broker, &rc));
  EXPECT_EQ(CBRelease(&broker, gc).rc, kStatus);
  EXPECT_TRUE(Called("release", &broker, gc));
  EXPECT_EQ(CMMalloc(&broker, 11U), Answer<void*>());
  EXPECT_TRUE(Called("cmpiMalloc", &broker, 11U));
  EXPECT_EQ(CMCalloc(&broker, 11U, 12U), Answer<void*>());
  EXPECT_TRUE(Called("cmpiCalloc", &broker, 11U, 12U));
  EXPECT_EQ(CMRealloc(&broker, pointer, 11U), Answer<void*>());
  EXPECT_TRUE(Called("cmpiRealloc", &broker, pointer, 11U));
  EXPECT_EQ(CMStrDup(&broker, kTexts[0]), Answer<char*>());
  EXPECT_TRUE(Called("cmpiStrDup", &broker, kTexts[0]));
  CMFree(&broker, pointer);
  EXPECT_TRUE(Called("cmpiFree", &broker, pointer));
  CMFreeInstance(&broker, &instance);
  EXPECT_TRUE(Called("freeInstance", &broker, &instance));
  CMFreeObjectPath(&broker, &path);
  EXPECT_TRUE(Called("freeObjectPath", &broker, &path));
  CMFreeArgs(&broker, &args);
  EXPECT_TRUE(Called("freeArgs", &broker, &args));
  CMFreeString(&broker, &string);
  EXPECT_TRUE(Called("freeString", &broker, &string));
  CMFreeArray(&broker, &array);
  EXPECT_TRUE(Called("freeArray", &broker, &array));
  CMFreeDateTime(&broker, &date_time);
  EXPECT_TRUE(Called("freeDateTime", &broker, &date_time));
  CMFreeSelectExp(&broker, &select_exp);
  EXPECT_TRUE(Called("freeSelectExp", &broker, &select_exp));
}

TEST_F(CmpiHelpers, ReachInstanceSlots) {
  EXPECT_EQ(CMRelease(&instance).rc, kStatus);
  EXPECT_TRUE(Called("release", &instance));
  EXPECT_EQ(CMClone(&instance, &rc), Answer<CMPIInstance*>());
  EXPECT_TRUE(Called("clone", &instance, &rc));
  EXPECT_EQ(CMGetProperty(&instance, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getProperty", &instance, kTexts[0], &rc));
  EXPECT_EQ(CMGetPropertyAt(&instance, 11U, &name, &rc).type, kDataType);
  EXPECT_TRUE(Called("getPropertyAt", &instance, 11U, &name, &rc));
  EXPECT_EQ(CMGetPropertyCount(&instance, &rc), kNumber);
  EXPECT_TRUE(Called("getPropertyCount", &instance, &rc));
  EXPECT_EQ(CMSetProperty(&instance, kTexts[0], &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("setProperty", &instance, kTexts[0], &value, CMPI_uint16));
  EXPECT_EQ(CMGetObjectPath(&instance, &rc), Answer<CMPIObjectPath*>());
  EXPECT_TRUE(Called("getObjectPath", &instance, &rc));
  EXPECT_EQ(CMSetPropertyFilter(&instance, properties, keys).rc, kStatus);
  EXPECT_TRUE(Called("setPropertyFilter", &instance, properties, keys));
  EXPECT_EQ(CMSetObjectPath(&instance, &path).rc, kStatus);
  EXPECT_TRUE(Called("setObjectPath", &instance, &path));
  EXPECT_EQ(CMSetPropertyWithOrigin(&instance, kTexts[0], &value, CMPI_uint16, kTexts[1]).rc,
            kStatus);
  EXPECT_TRUE(
      Called("setPropertyWithOrigin", &instance, kTexts[0], &value, CMPI_uint16, kTexts[1]));
}

TEST_F(CmpiHelpers, ReachObjectPathSlots) {
  EXPECT_EQ(CMRelease(&path).rc, kStatus);
  EXPECT_TRUE(Called("release", &path));
  EXPECT_EQ(CMClone(&path, &rc), Answer<CMPIObjectPath*>());
  EXPECT_TRUE(Called("clone", &path, &rc));
  EXPECT_EQ(CMSetNameSpace(&path, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setNameSpace", &path, kTexts[0]));
  EXPECT_EQ(CMGetNameSpace(&path, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getNameSpace", &path, &rc));
  EXPECT_EQ(CMSetHostname(&path, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setHostname", &path, kTexts[0]));
  EXPECT_EQ(CMGetHostname(&path, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getHostname", &path, &rc));
  EXPECT_EQ(CMSetClassName(&path, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setClassName", &path, kTexts[0]));
  EXPECT_EQ(CMGetClassName(&path, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getClassName", &path, &rc));
  EXPECT_EQ(CMAddKey(&path, kTexts[0], &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("addKey", &path, kTexts[0], &value, CMPI_uint16));
  EXPECT_EQ(CMGetKey(&path, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getKey", &path, kTexts[0], &rc));
  EXPECT_EQ(CMGetKeyAt(&path, 11U, &name, &rc).type, kDataType);
  EXPECT_TRUE(Called("getKeyAt", &path, 11U, &name, &rc));
  EXPECT_EQ(CMGetKeyCount(&path, &rc), kNumber);
  EXPECT_TRUE(Called("getKeyCount", &path, &rc));
  EXPECT_EQ(CMSetNameSpaceFromObjectPath(&path, &other_path).rc, kStatus);
  EXPECT_TRUE(Called("setNameSpaceFromObjectPath", &path, &other_path));
  EXPECT_EQ(CMSetHostAndNameSpaceFromObjectPath(&path, &other_path).rc, kStatus);
  EXPECT_TRUE(Called("setHostAndNameSpaceFromObjectPath", &path, &other_path));
  EXPECT_EQ(CMGetClassQualifier(&path, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getClassQualifier", &path, kTexts[0], &rc));
  EXPECT_EQ(CMGetPropertyQualifier(&path, kTexts[0], kTexts[1], &rc).type, kDataType);
  EXPECT_TRUE(Called("getPropertyQualifier", &path, kTexts[0], kTexts[1], &rc));
  EXPECT_EQ(CMGetMethodQualifier(&path, kTexts[0], kTexts[1], &rc).type, kDataType);
  EXPECT_TRUE(Called("getMethodQualifier", &path, kTexts[0], kTexts[1], &rc));
  EXPECT_EQ(CMGetParameterQualifier(&path, kTexts[0], kTexts[1], kTexts[2], &rc).type, kDataType);
  EXPECT_TRUE(Called("getParameterQualifier", &path, kTexts[0], kTexts[1], kTexts[2], &rc));
  EXPECT_EQ(CMObjectPathToString(&path, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("toString", &path, &rc));
}

TEST_F(CmpiHelpers, ReachArraySlots) {
  EXPECT_EQ(CMRelease(&array).rc, kStatus);
  EXPECT_TRUE(Called("release", &array));
  EXPECT_EQ(CMClone(&array, &rc), Answer<CMPIArray*>());
  EXPECT_TRUE(Called("clone", &array, &rc));
  EXPECT_EQ(CMGetArrayCount(&array, &rc), kNumber);
  EXPECT_TRUE(Called("getSize", &array, &rc));
  EXPECT_EQ(CMGetArrayType(&array, &rc), kNumber);
  EXPECT_TRUE(Called("getSimpleType", &array, &rc));
  EXPECT_EQ(CMGetArrayElementAt(&array, 11U, &rc).type, kDataType);
  EXPECT_TRUE(Called("getElementAt", &array, 11U, &rc));
  EXPECT_EQ(CMSetArrayElementAt(&array, 11U, &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("setElementAt", &array, 11U, &value, CMPI_uint16));
}

TEST_F(CmpiHelpers, ReachStringSlots) {
  EXPECT_EQ(CMRelease(&string).rc, kStatus);
  EXPECT_TRUE(Called("release", &string));
  EXPECT_EQ(CMClone(&string, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("clone", &string, &rc));
  EXPECT_EQ(CMGetCharsPtr(&string, &rc), Answer<const char*>());
  EXPECT_TRUE(Called("getCharPtr", &string, &rc));
}

TEST_F(CmpiHelpers, ReachArgsSlots) {
  EXPECT_EQ(CMRelease(&args).rc, kStatus);
  EXPECT_TRUE(Called("release", &args));
  EXPECT_EQ(CMClone(&args, &rc), Answer<CMPIArgs*>());
  EXPECT_TRUE(Called("clone", &args, &rc));
  EXPECT_EQ(CMAddArg(&args, kTexts[0], &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("addArg", &args, kTexts[0], &value, CMPI_uint16));
  EXPECT_EQ(CMGetArg(&args, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getArg", &args, kTexts[0], &rc));
  EXPECT_EQ(CMGetArgAt(&args, 11U, &name, &rc).type, kDataType);
  EXPECT_TRUE(Called("getArgAt", &args, 11U, &name, &rc));
  EXPECT_EQ(CMGetArgCount(&args, &rc), kNumber);
  EXPECT_TRUE(Called("getArgCount", &args, &rc));
}

TEST_F(CmpiHelpers, ReachContextSlots) {
  EXPECT_EQ(CMRelease(&context).rc, kStatus);
  EXPECT_TRUE(Called("release", &context));
  EXPECT_EQ(CMClone(&context, &rc), Answer<CMPIContext*>());
  EXPECT_TRUE(Called("clone", &context, &rc));
  EXPECT_EQ(CMGetContextEntry(&context, kTexts[0], &rc).type, kDataType);
  EXPECT_TRUE(Called("getEntry", &context, kTexts[0], &rc));
  EXPECT_EQ(CMGetContextEntryAt(&context, 11U, &name, &rc).type, kDataType);
  EXPECT_TRUE(Called("getEntryAt", &context, 11U, &name, &rc));
  EXPECT_EQ(CMGetContextEntryCount(&context, &rc), kNumber);
  EXPECT_TRUE(Called("getEntryCount", &context, &rc));
  EXPECT_EQ(CMAddContextEntry(&context, kTexts[0], &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("addEntry", &context, kTexts[0], &value, CMPI_uint16));
}

TEST_F(CmpiHelpers, ReachResultSlots) {
  EXPECT_EQ(CMRelease(&result).rc, kStatus);
  EXPECT_TRUE(Called("release", &result));
  EXPECT_EQ(CMClone(&result, &rc), Answer<CMPIResult*>());
  EXPECT_TRUE(Called("clone", &result, &rc));
  EXPECT_EQ(CMReturnData(&result, &value, CMPI_uint16).rc, kStatus);
  EXPECT_TRUE(Called("returnData", &result, &value, CMPI_uint16));
  EXPECT_EQ(CMReturnInstance(&result, &instance).rc, kStatus);
  EXPECT_TRUE(Called("returnInstance", &result, &instance));
  EXPECT_EQ(CMReturnObjectPath(&result, &path).rc, kStatus);
  EXPECT_TRUE(Called("returnObjectPath", &result, &path));
  EXPECT_EQ(CMReturnDone(&result).rc, kStatus);
  EXPECT_TRUE(Called("returnDone", &result));
  EXPECT_EQ(CMReturnError(&result, &error).rc, kStatus);
  EXPECT_TRUE(Called("returnError", &result, &error));
}

TEST_F(CmpiHelpers, ReachDateTimeSlots) {
  EXPECT_EQ(CMRelease(&date_time).rc, kStatus);
  EXPECT_TRUE(Called("release", &date_time));
  EXPECT_EQ(CMClone(&date_time, &rc), Answer<CMPIDateTime*>());
  EXPECT_TRUE(Called("clone", &date_time, &rc));
  EXPECT_EQ(CMGetBinaryFormat(&date_time, &rc), kNumber);
  EXPECT_TRUE(Called("getBinaryFormat", &date_time, &rc));
  EXPECT_EQ(CMGetStringFormat(&date_time, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getStringFormat", &date_time, &rc));
  EXPECT_EQ(CMIsInterval(&date_time, &rc), kNumber);
  EXPECT_TRUE(Called("isInterval", &date_time, &rc));
}

TEST_F(CmpiHelpers, ReachEnumerationSlots) {
  EXPECT_EQ(CMRelease(&enumeration).rc, kStatus);
  EXPECT_TRUE(Called("release", &enumeration));
  EXPECT_EQ(CMClone(&enumeration, &rc), Answer<CMPIEnumeration*>());
  EXPECT_TRUE(Called("clone", &enumeration, &rc));
  EXPECT_EQ(CMGetNext(&enumeration, &rc).type, kDataType);
  EXPECT_TRUE(Called("getNext", &enumeration, &rc));
  EXPECT_EQ(CMHasNext(&enumeration, &rc), kNumber);
  EXPECT_TRUE(Called("hasNext", &enumeration, &rc));
  EXPECT_EQ(CMToArray(&enumeration, &rc), Answer<CMPIArray*>());
  EXPECT_TRUE(Called("toArray", &enumeration, &rc));
}

TEST_F(CmpiHelpers, ReachSelectExpSlots) {
  EXPECT_EQ(CMRelease(&select_exp).rc, kStatus);
  EXPECT_TRUE(Called("release", &select_exp));
  EXPECT_EQ(CMClone(&select_exp, &rc), Answer<CMPISelectExp*>());
  EXPECT_TRUE(Called("clone", &select_exp, &rc));
  EXPECT_EQ(CMEvaluateSelExp(&select_exp, &instance, &rc), kNumber);
  EXPECT_TRUE(Called("evaluate", &select_exp, &instance, &rc));
  EXPECT_EQ(CMGetSelExpString(&select_exp, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getString", &select_exp, &rc));
  EXPECT_EQ(CMGetDoc(&select_exp, &rc), Answer<CMPISelectCond*>());
  EXPECT_TRUE(Called("getDOC", &select_exp, &rc));
  EXPECT_EQ(CMGetCod(&select_exp, &rc), Answer<CMPISelectCond*>());
  EXPECT_TRUE(Called("getCOD", &select_exp, &rc));
  EXPECT_EQ(CMEvaluateSelExpUsingAccessor(&select_exp, &Accessor, pointer, &rc), kNumber);
  EXPECT_TRUE(Called("evaluateUsingAccessor", &select_exp, &Accessor, pointer, &rc));
}

TEST_F(CmpiHelpers, ReachSelectCondSlots) {
  EXPECT_EQ(CMRelease(&select_cond).rc, kStatus);
  EXPECT_TRUE(Called("release", &select_cond));
  EXPECT_EQ(CMClone(&select_cond, &rc), Answer<CMPISelectCond*>());
  EXPECT_TRUE(Called("clone", &select_cond, &rc));
  EXPECT_EQ(CMGetSubCondCountAndType(&select_cond, &number, &rc), kNumber);
  EXPECT_TRUE(Called("getCountAndType", &select_cond, &number, &rc));
  EXPECT_EQ(CMGetSubCondAt(&select_cond, 11U, &rc), Answer<CMPISubCond*>());
  EXPECT_TRUE(Called("getSubCondAt", &select_cond, 11U, &rc));
}

TEST_F(CmpiHelpers, ReachSubCondSlots) {
  EXPECT_EQ(CMRelease(&sub_cond).rc, kStatus);
  EXPECT_TRUE(Called("release", &sub_cond));
  EXPECT_EQ(CMClone(&sub_cond, &rc), Answer<CMPISubCond*>());
  EXPECT_TRUE(Called("clone", &sub_cond, &rc));
  EXPECT_EQ(CMGetPredicateCount(&sub_cond, &rc), kNumber);
  EXPECT_TRUE(Called("getCount", &sub_cond, &rc));
  EXPECT_EQ(CMGetPredicateAt(&sub_cond, 11U, &rc), Answer<CMPIPredicate*>());
  EXPECT_TRUE(Called("getPredicateAt", &sub_cond, 11U, &rc));
  EXPECT_EQ(CMGetPredicate(&sub_cond, kTexts[0], &rc), Answer<CMPIPredicate*>());
  EXPECT_TRUE(Called("getPredicate", &sub_cond, kTexts[0], &rc));
}

TEST_F(CmpiHelpers, ReachPredicateSlots) {
  EXPECT_EQ(CMRelease(&predicate).rc, kStatus);
  EXPECT_TRUE(Called("release", &predicate));
  EXPECT_EQ(CMClone(&predicate, &rc), Answer<CMPIPredicate*>());
  EXPECT_TRUE(Called("clone", &predicate, &rc));
  EXPECT_EQ(CMGetPredicateData(&predicate, &type, &op, &name, &other_name).rc, kStatus);
  EXPECT_TRUE(Called("getData", &predicate, &type, &op, &name, &other_name));
  EXPECT_EQ(CMEvaluatePredicateUsingAccessor(&predicate, &Accessor, pointer, &rc), kNumber);
  EXPECT_TRUE(Called("evaluateUsingAccessor", &predicate, &Accessor, pointer, &rc));
}

TEST_F(CmpiHelpers, ReachErrorSlots) {
  EXPECT_EQ(CMRelease(&error).rc, kStatus);
  EXPECT_TRUE(Called("release", &error));
  EXPECT_EQ(CMClone(&error, &rc), Answer<CMPIError*>());
  EXPECT_TRUE(Called("clone", &error, &rc));
  EXPECT_EQ(CMGetErrorType(&error, &rc), kNumber);
  EXPECT_TRUE(Called("getErrorType", &error, &rc));
  EXPECT_EQ(CMGetOtherErrorType(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getOtherErrorType", &error, &rc));
  EXPECT_EQ(CMGetOwningEntity(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getOwningEntity", &error, &rc));
  EXPECT_EQ(CMGetMessageID(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getMessageID", &error, &rc));
  EXPECT_EQ(CMGetErrorMessage(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getMessage", &error, &rc));
  EXPECT_EQ(CMGetPerceivedSeverity(&error, &rc), kNumber);
  EXPECT_TRUE(Called("getPerceivedSeverity", &error, &rc));
  EXPECT_EQ(CMGetProbableCause(&error, &rc), kNumber);
  EXPECT_TRUE(Called("getProbableCause", &error, &rc));
  EXPECT_EQ(CMGetProbableCauseDescription(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getProbableCauseDescription", &error, &rc));
  EXPECT_EQ(CMGetRecommendedActions(&error, &rc), Answer<CMPIArray*>());
  EXPECT_TRUE(Called("getRecommendedActions", &error, &rc));
  EXPECT_EQ(CMGetErrorSource(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getErrorSource", &error, &rc));
  EXPECT_EQ(CMGetErrorSourceFormat(&error, &rc), kNumber);
  EXPECT_TRUE(Called("getErrorSourceFormat", &error, &rc));
  EXPECT_EQ(CMGetOtherErrorSourceFormat(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getOtherErrorSourceFormat", &error, &rc));
  EXPECT_EQ(CMGetCIMStatusCode(&error, &rc), kNumber);
  EXPECT_TRUE(Called("getCIMStatusCode", &error, &rc));
  EXPECT_EQ(CMGetCIMStatusCodeDescription(&error, &rc), Answer<CMPIString*>());
  EXPECT_TRUE(Called("getCIMStatusCodeDescription", &error, &rc));
  EXPECT_EQ(CMGetMessageArguments(&error, &rc), Answer<CMPIArray*>());
  EXPECT_TRUE(Called("getMessageArguments", &error, &rc));
  EXPECT_EQ(CMSetErrorType(&error, HardwareError).rc, kStatus);
  EXPECT_TRUE(Called("setErrorType", &error, HardwareError));
  EXPECT_EQ(CMSetOtherErrorType(&error, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setOtherErrorType", &error, kTexts[0]));
  EXPECT_EQ(CMSetProbableCauseDescription(&error, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setProbableCauseDescription", &error, kTexts[0]));
  EXPECT_EQ(CMSetRecommendedActions(&error, &array).rc, kStatus);
  EXPECT_TRUE(Called("setRecommendedActions", &error, &array));
  EXPECT_EQ(CMSetErrorSource(&error, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setErrorSource", &error, kTexts[0]));
  EXPECT_EQ(CMSetErrorSourceFormat(&error, CIMObjectHandle).rc, kStatus);
  EXPECT_TRUE(Called("setErrorSourceFormat", &error, CIMObjectHandle));
  EXPECT_EQ(CMSetOtherErrorSourceFormat(&error, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setOtherErrorSourceFormat", &error, kTexts[0]));
  EXPECT_EQ(CMSetCIMStatusCodeDescription(&error, kTexts[0]).rc, kStatus);
  EXPECT_TRUE(Called("setCIMStatusCodeDescription", &error, kTexts[0]));
  EXPECT_EQ(CMSetMessageArguments(&error, &array).rc, kStatus);
  EXPECT_TRUE(Called("setMessageArguments", &error, &array));
}

}  // namespace
