// Sizes and offsets of the CMPI types and tables on x86-64, checked as C++.
#include <cmpidt.h>
#include <cmpift.h>
#include <gtest/gtest.h>

#include <cstddef>

TEST(CmpiLayout, ScalarsHaveTheirSizes) {
  EXPECT_EQ(sizeof(CMPIBoolean), 1U);
  EXPECT_EQ(sizeof(CMPIChar16), 2U);
  EXPECT_EQ(sizeof(CMPIUint8), 1U);
  EXPECT_EQ(sizeof(CMPIUint16), 2U);
  EXPECT_EQ(sizeof(CMPIUint32), 4U);
  EXPECT_EQ(sizeof(CMPIUint64), 8U);
  EXPECT_EQ(sizeof(CMPISint8), 1U);
  EXPECT_EQ(sizeof(CMPISint16), 2U);
  EXPECT_EQ(sizeof(CMPISint32), 4U);
  EXPECT_EQ(sizeof(CMPISint64), 8U);
  EXPECT_EQ(sizeof(CMPIReal32), 4U);
  EXPECT_EQ(sizeof(CMPIReal64), 8U);
  EXPECT_EQ(sizeof(CMPICount), 4U);
  EXPECT_EQ(sizeof(CMPIType), 2U);
  EXPECT_EQ(sizeof(CMPIValueState), 2U);
  EXPECT_EQ(sizeof(CMPIFlags), 4U);
  EXPECT_EQ(sizeof(CMPIVersion), 4U);
  EXPECT_EQ(sizeof(CMPIrc), 4U);
}

TEST(CmpiLayout, CMPIValuePtr) {
  EXPECT_EQ(sizeof(CMPIValuePtr), 16U);
  EXPECT_EQ(offsetof(CMPIValuePtr, ptr), 0U);
  EXPECT_EQ(offsetof(CMPIValuePtr, length), 8U);
}

TEST(CmpiLayout, CMPIData) {
  EXPECT_EQ(sizeof(CMPIData), 24U);
  EXPECT_EQ(offsetof(CMPIData, type), 0U);
  EXPECT_EQ(offsetof(CMPIData, state), 2U);
  EXPECT_EQ(offsetof(CMPIData, value), 8U);
}

TEST(CmpiLayout, CMPIStatus) {
  EXPECT_EQ(sizeof(CMPIStatus), 16U);
  EXPECT_EQ(offsetof(CMPIStatus, rc), 0U);
  EXPECT_EQ(offsetof(CMPIStatus, msg), 8U);
}

TEST(CmpiLayout, CMPIBroker) {
  EXPECT_EQ(sizeof(CMPIBroker), 40U);
  EXPECT_EQ(offsetof(CMPIBroker, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIBroker, bft), 8U);
  EXPECT_EQ(offsetof(CMPIBroker, eft), 16U);
  EXPECT_EQ(offsetof(CMPIBroker, xft), 24U);
  EXPECT_EQ(offsetof(CMPIBroker, mft), 32U);
}

TEST(CmpiLayout, EveryMemberOfAValueStartsAtItsFirstByte) {
  EXPECT_EQ(sizeof(CMPIValue), 16U);
  EXPECT_EQ(offsetof(CMPIValue, boolean), 0U);
  EXPECT_EQ(offsetof(CMPIValue, char16), 0U);
  EXPECT_EQ(offsetof(CMPIValue, uint8), 0U);
  EXPECT_EQ(offsetof(CMPIValue, uint16), 0U);
  EXPECT_EQ(offsetof(CMPIValue, uint32), 0U);
  EXPECT_EQ(offsetof(CMPIValue, uint64), 0U);
  EXPECT_EQ(offsetof(CMPIValue, sint8), 0U);
  EXPECT_EQ(offsetof(CMPIValue, sint16), 0U);
  EXPECT_EQ(offsetof(CMPIValue, sint32), 0U);
  EXPECT_EQ(offsetof(CMPIValue, sint64), 0U);
  EXPECT_EQ(offsetof(CMPIValue, real32), 0U);
  EXPECT_EQ(offsetof(CMPIValue, real64), 0U);
  EXPECT_EQ(offsetof(CMPIValue, inst), 0U);
  EXPECT_EQ(offsetof(CMPIValue, ref), 0U);
  EXPECT_EQ(offsetof(CMPIValue, args), 0U);
  EXPECT_EQ(offsetof(CMPIValue, filter), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Enum), 0U);
  EXPECT_EQ(offsetof(CMPIValue, array), 0U);
  EXPECT_EQ(offsetof(CMPIValue, string), 0U);
  EXPECT_EQ(offsetof(CMPIValue, chars), 0U);
  EXPECT_EQ(offsetof(CMPIValue, dateTime), 0U);
  EXPECT_EQ(offsetof(CMPIValue, dataPtr), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Byte), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Short), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Int), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Long), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Float), 0U);
  EXPECT_EQ(offsetof(CMPIValue, Double), 0U);
}

TEST(CmpiLayout, MembersOfAValueHaveTheirSizes) {
  EXPECT_EQ(sizeof(CMPIValue::boolean), 1U);
  EXPECT_EQ(sizeof(CMPIValue::char16), 2U);
  EXPECT_EQ(sizeof(CMPIValue::uint8), 1U);
  EXPECT_EQ(sizeof(CMPIValue::uint16), 2U);
  EXPECT_EQ(sizeof(CMPIValue::uint32), 4U);
  EXPECT_EQ(sizeof(CMPIValue::uint64), 8U);
  EXPECT_EQ(sizeof(CMPIValue::sint8), 1U);
  EXPECT_EQ(sizeof(CMPIValue::sint16), 2U);
  EXPECT_EQ(sizeof(CMPIValue::sint32), 4U);
  EXPECT_EQ(sizeof(CMPIValue::sint64), 8U);
  EXPECT_EQ(sizeof(CMPIValue::real32), 4U);
  EXPECT_EQ(sizeof(CMPIValue::real64), 8U);
  EXPECT_EQ(sizeof(CMPIValue::inst), 8U);
  EXPECT_EQ(sizeof(CMPIValue::ref), 8U);
  EXPECT_EQ(sizeof(CMPIValue::args), 8U);
  EXPECT_EQ(sizeof(CMPIValue::filter), 8U);
  EXPECT_EQ(sizeof(CMPIValue::Enum), 8U);
  EXPECT_EQ(sizeof(CMPIValue::array), 8U);
  EXPECT_EQ(sizeof(CMPIValue::string), 8U);
  EXPECT_EQ(sizeof(CMPIValue::chars), 8U);
  EXPECT_EQ(sizeof(CMPIValue::dateTime), 8U);
  EXPECT_EQ(sizeof(CMPIValue::dataPtr), 16U);
  EXPECT_EQ(sizeof(CMPIValue::Byte), 1U);
  EXPECT_EQ(sizeof(CMPIValue::Short), 2U);
  EXPECT_EQ(sizeof(CMPIValue::Int), 4U);
  EXPECT_EQ(sizeof(CMPIValue::Long), 8U);
  EXPECT_EQ(sizeof(CMPIValue::Float), 4U);
  EXPECT_EQ(sizeof(CMPIValue::Double), 8U);
}

TEST(CmpiLayout, ObjectsAreAHandleAndATable) {
  EXPECT_EQ(sizeof(CMPIInstance), 16U);
  EXPECT_EQ(offsetof(CMPIInstance, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIInstance, ft), 8U);
  EXPECT_EQ(sizeof(CMPIObjectPath), 16U);
  EXPECT_EQ(offsetof(CMPIObjectPath, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIObjectPath, ft), 8U);
  EXPECT_EQ(sizeof(CMPIString), 16U);
  EXPECT_EQ(offsetof(CMPIString, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIString, ft), 8U);
  EXPECT_EQ(sizeof(CMPIArray), 16U);
  EXPECT_EQ(offsetof(CMPIArray, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIArray, ft), 8U);
  EXPECT_EQ(sizeof(CMPIArgs), 16U);
  EXPECT_EQ(offsetof(CMPIArgs, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIArgs, ft), 8U);
  EXPECT_EQ(sizeof(CMPIContext), 16U);
  EXPECT_EQ(offsetof(CMPIContext, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIContext, ft), 8U);
  EXPECT_EQ(sizeof(CMPIResult), 16U);
  EXPECT_EQ(offsetof(CMPIResult, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIResult, ft), 8U);
  EXPECT_EQ(sizeof(CMPIDateTime), 16U);
  EXPECT_EQ(offsetof(CMPIDateTime, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIDateTime, ft), 8U);
  EXPECT_EQ(sizeof(CMPIEnumeration), 16U);
  EXPECT_EQ(offsetof(CMPIEnumeration, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIEnumeration, ft), 8U);
  EXPECT_EQ(sizeof(CMPISelectExp), 16U);
  EXPECT_EQ(offsetof(CMPISelectExp, hdl), 0U);
  EXPECT_EQ(offsetof(CMPISelectExp, ft), 8U);
  EXPECT_EQ(sizeof(CMPISelectCond), 16U);
  EXPECT_EQ(offsetof(CMPISelectCond, hdl), 0U);
  EXPECT_EQ(offsetof(CMPISelectCond, ft), 8U);
  EXPECT_EQ(sizeof(CMPISubCond), 16U);
  EXPECT_EQ(offsetof(CMPISubCond, hdl), 0U);
  EXPECT_EQ(offsetof(CMPISubCond, ft), 8U);
  EXPECT_EQ(sizeof(CMPIPredicate), 16U);
  EXPECT_EQ(offsetof(CMPIPredicate, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIPredicate, ft), 8U);
  EXPECT_EQ(sizeof(CMPIError), 16U);
  EXPECT_EQ(offsetof(CMPIError, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIError, ft), 8U);
  EXPECT_EQ(sizeof(CMPIInstanceMI), 16U);
  EXPECT_EQ(offsetof(CMPIInstanceMI, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIInstanceMI, ft), 8U);
  EXPECT_EQ(sizeof(CMPIAssociationMI), 16U);
  EXPECT_EQ(offsetof(CMPIAssociationMI, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIAssociationMI, ft), 8U);
  EXPECT_EQ(sizeof(CMPIMethodMI), 16U);
  EXPECT_EQ(offsetof(CMPIMethodMI, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIMethodMI, ft), 8U);
  EXPECT_EQ(sizeof(CMPIPropertyMI), 16U);
  EXPECT_EQ(offsetof(CMPIPropertyMI, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIPropertyMI, ft), 8U);
  EXPECT_EQ(sizeof(CMPIIndicationMI), 16U);
  EXPECT_EQ(offsetof(CMPIIndicationMI, hdl), 0U);
  EXPECT_EQ(offsetof(CMPIIndicationMI, ft), 8U);
}

TEST(CmpiTableLayout, CMPIBrokerFT) {
  EXPECT_EQ(sizeof(CMPIBrokerFT), 160U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, brokerCapabilities), 0U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, brokerVersion), 4U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, brokerName), 8U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, prepareAttachThread), 16U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, attachThread), 24U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, detachThread), 32U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, deliverIndication), 40U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, enumerateInstanceNames), 48U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, getInstance), 56U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, createInstance), 64U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, modifyInstance), 72U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, deleteInstance), 80U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, execQuery), 88U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, enumerateInstances), 96U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, associators), 104U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, associatorNames), 112U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, references), 120U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, referenceNames), 128U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, invokeMethod), 136U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, setProperty), 144U);
  EXPECT_EQ(offsetof(CMPIBrokerFT, getProperty), 152U);
}

TEST(CmpiTableLayout, CMPIBrokerEncFT) {
  EXPECT_EQ(sizeof(CMPIBrokerEncFT), 168U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newInstance), 8U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newObjectPath), 16U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newArgs), 24U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newString), 32U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newArray), 40U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newDateTime), 48U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newDateTimeFromBinary), 56U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newDateTimeFromChars), 64U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newSelectExp), 72U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, classPathIsA), 80U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, toString), 88U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, isOfType), 96U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, getType), 104U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, getMessage), 112U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, logMessage), 120U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, trace), 128U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, newCMPIError), 136U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, openMessageFile), 144U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, closeMessageFile), 152U);
  EXPECT_EQ(offsetof(CMPIBrokerEncFT, getMessage2), 160U);
}

TEST(CmpiTableLayout, CMPIBrokerExtFT) {
  EXPECT_EQ(sizeof(CMPIBrokerExtFT), 168U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, resolveFileName), 8U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, newThread), 16U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, joinThread), 24U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, exitThread), 32U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, cancelThread), 40U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, threadSleep), 48U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, threadOnce), 56U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, createThreadKey), 64U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, destroyThreadKey), 72U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, getThreadSpecific), 80U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, setThreadSpecific), 88U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, newMutex), 96U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, destroyMutex), 104U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, lockMutex), 112U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, unlockMutex), 120U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, newCondition), 128U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, destroyCondition), 136U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, condWait), 144U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, timedCondWait), 152U);
  EXPECT_EQ(offsetof(CMPIBrokerExtFT, signalCondition), 160U);
}

TEST(CmpiTableLayout, CMPIBrokerMemFT) {
  EXPECT_EQ(sizeof(CMPIBrokerMemFT), 120U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, mark), 8U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, release), 16U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, cmpiMalloc), 24U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, cmpiCalloc), 32U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, cmpiRealloc), 40U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, cmpiStrDup), 48U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, cmpiFree), 56U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeInstance), 64U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeObjectPath), 72U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeArgs), 80U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeString), 88U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeArray), 96U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeDateTime), 104U);
  EXPECT_EQ(offsetof(CMPIBrokerMemFT, freeSelectExp), 112U);
}

TEST(CmpiTableLayout, CMPIInstanceFT) {
  EXPECT_EQ(sizeof(CMPIInstanceFT), 88U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, getProperty), 24U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, getPropertyAt), 32U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, getPropertyCount), 40U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, setProperty), 48U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, getObjectPath), 56U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, setPropertyFilter), 64U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, setObjectPath), 72U);
  EXPECT_EQ(offsetof(CMPIInstanceFT, setPropertyWithOrigin), 80U);
}

TEST(CmpiTableLayout, CMPIObjectPathFT) {
  EXPECT_EQ(sizeof(CMPIObjectPathFT), 160U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, setNameSpace), 24U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getNameSpace), 32U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, setHostname), 40U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getHostname), 48U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, setClassName), 56U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getClassName), 64U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, addKey), 72U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getKey), 80U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getKeyAt), 88U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getKeyCount), 96U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, setNameSpaceFromObjectPath), 104U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, setHostAndNameSpaceFromObjectPath), 112U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getClassQualifier), 120U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getPropertyQualifier), 128U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getMethodQualifier), 136U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, getParameterQualifier), 144U);
  EXPECT_EQ(offsetof(CMPIObjectPathFT, toString), 152U);
}

TEST(CmpiTableLayout, CMPIArrayFT) {
  EXPECT_EQ(sizeof(CMPIArrayFT), 56U);
  EXPECT_EQ(offsetof(CMPIArrayFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIArrayFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIArrayFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIArrayFT, getSize), 24U);
  EXPECT_EQ(offsetof(CMPIArrayFT, getSimpleType), 32U);
  EXPECT_EQ(offsetof(CMPIArrayFT, getElementAt), 40U);
  EXPECT_EQ(offsetof(CMPIArrayFT, setElementAt), 48U);
}

TEST(CmpiTableLayout, CMPIStringFT) {
  EXPECT_EQ(sizeof(CMPIStringFT), 32U);
  EXPECT_EQ(offsetof(CMPIStringFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIStringFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIStringFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIStringFT, getCharPtr), 24U);
}

TEST(CmpiTableLayout, CMPIArgsFT) {
  EXPECT_EQ(sizeof(CMPIArgsFT), 56U);
  EXPECT_EQ(offsetof(CMPIArgsFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIArgsFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIArgsFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIArgsFT, addArg), 24U);
  EXPECT_EQ(offsetof(CMPIArgsFT, getArg), 32U);
  EXPECT_EQ(offsetof(CMPIArgsFT, getArgAt), 40U);
  EXPECT_EQ(offsetof(CMPIArgsFT, getArgCount), 48U);
}

TEST(CmpiTableLayout, CMPIContextFT) {
  EXPECT_EQ(sizeof(CMPIContextFT), 56U);
  EXPECT_EQ(offsetof(CMPIContextFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIContextFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIContextFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIContextFT, getEntry), 24U);
  EXPECT_EQ(offsetof(CMPIContextFT, getEntryAt), 32U);
  EXPECT_EQ(offsetof(CMPIContextFT, getEntryCount), 40U);
  EXPECT_EQ(offsetof(CMPIContextFT, addEntry), 48U);
}

TEST(CmpiTableLayout, CMPIResultFT) {
  EXPECT_EQ(sizeof(CMPIResultFT), 64U);
  EXPECT_EQ(offsetof(CMPIResultFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIResultFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIResultFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIResultFT, returnData), 24U);
  EXPECT_EQ(offsetof(CMPIResultFT, returnInstance), 32U);
  EXPECT_EQ(offsetof(CMPIResultFT, returnObjectPath), 40U);
  EXPECT_EQ(offsetof(CMPIResultFT, returnDone), 48U);
  EXPECT_EQ(offsetof(CMPIResultFT, returnError), 56U);
}

TEST(CmpiTableLayout, CMPIDateTimeFT) {
  EXPECT_EQ(sizeof(CMPIDateTimeFT), 48U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, getBinaryFormat), 24U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, getStringFormat), 32U);
  EXPECT_EQ(offsetof(CMPIDateTimeFT, isInterval), 40U);
}

TEST(CmpiTableLayout, CMPIEnumerationFT) {
  EXPECT_EQ(sizeof(CMPIEnumerationFT), 48U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, getNext), 24U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, hasNext), 32U);
  EXPECT_EQ(offsetof(CMPIEnumerationFT, toArray), 40U);
}

TEST(CmpiTableLayout, CMPISelectExpFT) {
  EXPECT_EQ(sizeof(CMPISelectExpFT), 64U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, release), 8U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, evaluate), 24U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, getString), 32U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, getDOC), 40U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, getCOD), 48U);
  EXPECT_EQ(offsetof(CMPISelectExpFT, evaluateUsingAccessor), 56U);
}

TEST(CmpiTableLayout, CMPISelectCondFT) {
  EXPECT_EQ(sizeof(CMPISelectCondFT), 40U);
  EXPECT_EQ(offsetof(CMPISelectCondFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPISelectCondFT, release), 8U);
  EXPECT_EQ(offsetof(CMPISelectCondFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPISelectCondFT, getCountAndType), 24U);
  EXPECT_EQ(offsetof(CMPISelectCondFT, getSubCondAt), 32U);
}

TEST(CmpiTableLayout, CMPISubCondFT) {
  EXPECT_EQ(sizeof(CMPISubCondFT), 48U);
  EXPECT_EQ(offsetof(CMPISubCondFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPISubCondFT, release), 8U);
  EXPECT_EQ(offsetof(CMPISubCondFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPISubCondFT, getCount), 24U);
  EXPECT_EQ(offsetof(CMPISubCondFT, getPredicateAt), 32U);
  EXPECT_EQ(offsetof(CMPISubCondFT, getPredicate), 40U);
}

TEST(CmpiTableLayout, CMPIPredicateFT) {
  EXPECT_EQ(sizeof(CMPIPredicateFT), 40U);
  EXPECT_EQ(offsetof(CMPIPredicateFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIPredicateFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIPredicateFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIPredicateFT, getData), 24U);
  EXPECT_EQ(offsetof(CMPIPredicateFT, evaluateUsingAccessor), 32U);
}

TEST(CmpiTableLayout, CMPIErrorFT) {
  EXPECT_EQ(sizeof(CMPIErrorFT), 216U);
  EXPECT_EQ(offsetof(CMPIErrorFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIErrorFT, release), 8U);
  EXPECT_EQ(offsetof(CMPIErrorFT, clone), 16U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getErrorType), 24U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getOtherErrorType), 32U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getOwningEntity), 40U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getMessageID), 48U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getMessage), 56U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getPerceivedSeverity), 64U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getProbableCause), 72U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getProbableCauseDescription), 80U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getRecommendedActions), 88U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getErrorSource), 96U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getErrorSourceFormat), 104U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getOtherErrorSourceFormat), 112U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getCIMStatusCode), 120U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getCIMStatusCodeDescription), 128U);
  EXPECT_EQ(offsetof(CMPIErrorFT, getMessageArguments), 136U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setErrorType), 144U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setOtherErrorType), 152U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setProbableCauseDescription), 160U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setRecommendedActions), 168U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setErrorSource), 176U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setErrorSourceFormat), 184U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setOtherErrorSourceFormat), 192U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setCIMStatusCodeDescription), 200U);
  EXPECT_EQ(offsetof(CMPIErrorFT, setMessageArguments), 208U);
}

TEST(CmpiTableLayout, CMPIInstanceMIFT) {
  EXPECT_EQ(sizeof(CMPIInstanceMIFT), 80U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, miVersion), 4U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, miName), 8U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, cleanup), 16U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, enumerateInstanceNames), 24U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, enumerateInstances), 32U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, getInstance), 40U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, createInstance), 48U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, modifyInstance), 56U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, deleteInstance), 64U);
  EXPECT_EQ(offsetof(CMPIInstanceMIFT, execQuery), 72U);
}

TEST(CmpiTableLayout, CMPIAssociationMIFT) {
  EXPECT_EQ(sizeof(CMPIAssociationMIFT), 56U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, miVersion), 4U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, miName), 8U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, cleanup), 16U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, associators), 24U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, associatorNames), 32U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, references), 40U);
  EXPECT_EQ(offsetof(CMPIAssociationMIFT, referenceNames), 48U);
}

TEST(CmpiTableLayout, CMPIMethodMIFT) {
  EXPECT_EQ(sizeof(CMPIMethodMIFT), 32U);
  EXPECT_EQ(offsetof(CMPIMethodMIFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIMethodMIFT, miVersion), 4U);
  EXPECT_EQ(offsetof(CMPIMethodMIFT, miName), 8U);
  EXPECT_EQ(offsetof(CMPIMethodMIFT, cleanup), 16U);
  EXPECT_EQ(offsetof(CMPIMethodMIFT, invokeMethod), 24U);
}

TEST(CmpiTableLayout, CMPIPropertyMIFT) {
  EXPECT_EQ(sizeof(CMPIPropertyMIFT), 48U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, miVersion), 4U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, miName), 8U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, cleanup), 16U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, setProperty), 24U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, getProperty), 32U);
  EXPECT_EQ(offsetof(CMPIPropertyMIFT, setPropertyWithOrigin), 40U);
}

TEST(CmpiTableLayout, CMPIIndicationMIFT) {
  EXPECT_EQ(sizeof(CMPIIndicationMIFT), 72U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, ftVersion), 0U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, miVersion), 4U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, miName), 8U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, cleanup), 16U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, authorizeFilter), 24U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, mustPoll), 32U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, activateFilter), 40U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, deActivateFilter), 48U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, enableIndications), 56U);
  EXPECT_EQ(offsetof(CMPIIndicationMIFT, disableIndications), 64U);
}
