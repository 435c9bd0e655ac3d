// The type of every slot of every CMPI table. The file is a test by compiling.
#include <cmpidt.h>
#include <cmpift.h>

#include <cstddef>
#include <ctime>
#include <type_traits>

using std::is_same_v;

// CMPIBrokerFT
static_assert(is_same_v<decltype(CMPIBrokerFT::brokerCapabilities), unsigned int>);
static_assert(is_same_v<decltype(CMPIBrokerFT::brokerVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIBrokerFT::brokerName), const char*>);
static_assert(is_same_v<decltype(CMPIBrokerFT::prepareAttachThread),
                        CMPIContext* (*)(const CMPIBroker*, const CMPIContext*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::attachThread),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIContext*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::detachThread),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIContext*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::deliverIndication),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIContext*, const char*,
                                       const CMPIInstance*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::enumerateInstanceNames),
                        CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*,
                                             const CMPIObjectPath*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::getInstance),
                        CMPIInstance* (*)(const CMPIBroker*, const CMPIContext*,
                                          const CMPIObjectPath*, const char**, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerFT::createInstance),
              CMPIObjectPath* (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                  const CMPIInstance*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::modifyInstance),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                       const CMPIInstance*, const char**)>);
static_assert(
    is_same_v<decltype(CMPIBrokerFT::deleteInstance),
              CMPIStatus (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerFT::execQuery),
              CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                   const char*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::enumerateInstances),
                        CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*,
                                             const CMPIObjectPath*, const char**, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::associators),
                        CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*,
                                             const CMPIObjectPath*, const char*, const char*,
                                             const char*, const char*, const char**, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::associatorNames),
                        CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*,
                                             const CMPIObjectPath*, const char*, const char*,
                                             const char*, const char*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerFT::references),
              CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                   const char*, const char*, const char**, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerFT::referenceNames),
              CMPIEnumeration* (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                   const char*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::invokeMethod),
                        CMPIData (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                     const char*, const CMPIArgs*, CMPIArgs*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::setProperty),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                       const char*, const CMPIValue*, CMPIType)>);
static_assert(is_same_v<decltype(CMPIBrokerFT::getProperty),
                        CMPIData (*)(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                                     const char*, CMPIStatus*)>);

// CMPIBrokerEncFT
static_assert(is_same_v<decltype(CMPIBrokerEncFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newInstance),
                        CMPIInstance* (*)(const CMPIBroker*, const CMPIObjectPath*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerEncFT::newObjectPath),
              CMPIObjectPath* (*)(const CMPIBroker*, const char*, const char*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerEncFT::newArgs), CMPIArgs* (*)(const CMPIBroker*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newString),
                        CMPIString* (*)(const CMPIBroker*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newArray),
                        CMPIArray* (*)(const CMPIBroker*, CMPICount, CMPIType, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newDateTime),
                        CMPIDateTime* (*)(const CMPIBroker*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerEncFT::newDateTimeFromBinary),
              CMPIDateTime* (*)(const CMPIBroker*, CMPIUint64, CMPIBoolean, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newDateTimeFromChars),
                        CMPIDateTime* (*)(const CMPIBroker*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::newSelectExp),
                        CMPISelectExp* (*)(const CMPIBroker*, const char*, const char*, CMPIArray**,
                                           CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerEncFT::classPathIsA),
              CMPIBoolean (*)(const CMPIBroker*, const CMPIObjectPath*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::toString),
                        CMPIString* (*)(const CMPIBroker*, const void*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::isOfType),
                        CMPIBoolean (*)(const CMPIBroker*, const void*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::getType),
                        CMPIString* (*)(const CMPIBroker*, const void*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::getMessage),
                        CMPIString* (*)(const CMPIBroker*, const char*, const char*, CMPIStatus*,
                                        CMPICount, ...)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::logMessage),
                        CMPIStatus (*)(const CMPIBroker*, CMPISeverity, const char*, const char*,
                                       const CMPIString*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::trace),
                        CMPIStatus (*)(const CMPIBroker*, CMPILevel, const char*, const char*,
                                       const CMPIString*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerEncFT::newCMPIError),
              CMPIError* (*)(const CMPIBroker*, const char*, const char*, const char*,
                             CMPIErrorSeverity, CMPIErrorProbableCause, CMPIrc, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::openMessageFile),
                        CMPIStatus (*)(const CMPIBroker*, const char*, CMPIMsgFileHandle*)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::closeMessageFile),
                        CMPIStatus (*)(const CMPIBroker*, CMPIMsgFileHandle)>);
static_assert(is_same_v<decltype(CMPIBrokerEncFT::getMessage2),
                        CMPIString* (*)(const CMPIBroker*, const char*, CMPIMsgFileHandle,
                                        const char*, CMPIStatus*, CMPICount, ...)>);

// CMPIBrokerExtFT
static_assert(is_same_v<decltype(CMPIBrokerExtFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::resolveFileName), char* (*)(const char*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerExtFT::newThread), void* (*)(CMPIThreadFunc, void*, int)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::joinThread), int (*)(void*, void**)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::exitThread), int (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::cancelThread), int (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::threadSleep), int (*)(CMPIUint32)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::threadOnce), int (*)(int*, CMPIThreadOnceFunc)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::createThreadKey),
                        int (*)(unsigned int*, CMPIThreadKeyCleanupFunc)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::destroyThreadKey), int (*)(unsigned int)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::getThreadSpecific), void* (*)(unsigned int)>);
static_assert(
    is_same_v<decltype(CMPIBrokerExtFT::setThreadSpecific), int (*)(unsigned int, void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::newMutex), void* (*)(int)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::destroyMutex), void (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::lockMutex), void (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::unlockMutex), void (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::newCondition), void* (*)(int)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::destroyCondition), void (*)(void*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::condWait), int (*)(void*, void*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerExtFT::timedCondWait), int (*)(void*, void*, timespec*)>);
static_assert(is_same_v<decltype(CMPIBrokerExtFT::signalCondition), int (*)(void*)>);

// CMPIBrokerMemFT
static_assert(is_same_v<decltype(CMPIBrokerMemFT::ftVersion), CMPIVersion>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::mark), CMPIGcStat* (*)(const CMPIBroker*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIBrokerMemFT::release),
                        CMPIStatus (*)(const CMPIBroker*, const CMPIGcStat*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::cmpiMalloc), void* (*)(const CMPIBroker*, size_t)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::cmpiCalloc), void* (*)(const CMPIBroker*, size_t, size_t)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::cmpiRealloc), void* (*)(const CMPIBroker*, void*, size_t)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::cmpiStrDup), char* (*)(const CMPIBroker*, const char*)>);
static_assert(is_same_v<decltype(CMPIBrokerMemFT::cmpiFree), void (*)(const CMPIBroker*, void*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::freeInstance), void (*)(const CMPIBroker*, CMPIInstance*)>);
static_assert(is_same_v<decltype(CMPIBrokerMemFT::freeObjectPath),
                        void (*)(const CMPIBroker*, CMPIObjectPath*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::freeArgs), void (*)(const CMPIBroker*, CMPIArgs*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::freeString), void (*)(const CMPIBroker*, CMPIString*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::freeArray), void (*)(const CMPIBroker*, CMPIArray*)>);
static_assert(
    is_same_v<decltype(CMPIBrokerMemFT::freeDateTime), void (*)(const CMPIBroker*, CMPIDateTime*)>);
static_assert(is_same_v<decltype(CMPIBrokerMemFT::freeSelectExp),
                        void (*)(const CMPIBroker*, CMPISelectExp*)>);

// CMPIInstanceFT
static_assert(is_same_v<decltype(CMPIInstanceFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIInstanceFT::release), CMPIStatus (*)(CMPIInstance*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::clone),
                        CMPIInstance* (*)(const CMPIInstance*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::getProperty),
                        CMPIData (*)(const CMPIInstance*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::getPropertyAt),
                        CMPIData (*)(const CMPIInstance*, CMPICount, CMPIString**, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::getPropertyCount),
                        CMPICount (*)(const CMPIInstance*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIInstanceFT::setProperty),
              CMPIStatus (*)(const CMPIInstance*, const char*, const CMPIValue*, CMPIType)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::getObjectPath),
                        CMPIObjectPath* (*)(const CMPIInstance*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::setPropertyFilter),
                        CMPIStatus (*)(const CMPIInstance*, const char**, const char**)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::setObjectPath),
                        CMPIStatus (*)(const CMPIInstance*, const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIInstanceFT::setPropertyWithOrigin),
                        CMPIStatus (*)(const CMPIInstance*, const char*, const CMPIValue*, CMPIType,
                                       const char*)>);

// CMPIObjectPathFT
static_assert(is_same_v<decltype(CMPIObjectPathFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::release), CMPIStatus (*)(CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::clone),
                        CMPIObjectPath* (*)(const CMPIObjectPath*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::setNameSpace),
                        CMPIStatus (*)(const CMPIObjectPath*, const char*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getNameSpace),
                        CMPIString* (*)(const CMPIObjectPath*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::setHostname),
                        CMPIStatus (*)(const CMPIObjectPath*, const char*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getHostname),
                        CMPIString* (*)(const CMPIObjectPath*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::setClassName),
                        CMPIStatus (*)(const CMPIObjectPath*, const char*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getClassName),
                        CMPIString* (*)(const CMPIObjectPath*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIObjectPathFT::addKey),
              CMPIStatus (*)(const CMPIObjectPath*, const char*, const CMPIValue*, CMPIType)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getKey),
                        CMPIData (*)(const CMPIObjectPath*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getKeyAt),
                        CMPIData (*)(const CMPIObjectPath*, CMPICount, CMPIString**, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getKeyCount),
                        CMPICount (*)(const CMPIObjectPath*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::setNameSpaceFromObjectPath),
                        CMPIStatus (*)(const CMPIObjectPath*, const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::setHostAndNameSpaceFromObjectPath),
                        CMPIStatus (*)(const CMPIObjectPath*, const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getClassQualifier),
                        CMPIData (*)(const CMPIObjectPath*, const char*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIObjectPathFT::getPropertyQualifier),
              CMPIData (*)(const CMPIObjectPath*, const char*, const char*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIObjectPathFT::getMethodQualifier),
              CMPIData (*)(const CMPIObjectPath*, const char*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::getParameterQualifier),
                        CMPIData (*)(const CMPIObjectPath*, const char*, const char*, const char*,
                                     CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIObjectPathFT::toString),
                        CMPIString* (*)(const CMPIObjectPath*, CMPIStatus*)>);

// CMPIArrayFT
static_assert(is_same_v<decltype(CMPIArrayFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIArrayFT::release), CMPIStatus (*)(CMPIArray*)>);
static_assert(
    is_same_v<decltype(CMPIArrayFT::clone), CMPIArray* (*)(const CMPIArray*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIArrayFT::getSize), CMPICount (*)(const CMPIArray*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIArrayFT::getSimpleType), CMPIType (*)(const CMPIArray*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIArrayFT::getElementAt),
                        CMPIData (*)(const CMPIArray*, CMPICount, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIArrayFT::setElementAt),
                        CMPIStatus (*)(const CMPIArray*, CMPICount, const CMPIValue*, CMPIType)>);

// CMPIStringFT
static_assert(is_same_v<decltype(CMPIStringFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIStringFT::release), CMPIStatus (*)(CMPIString*)>);
static_assert(
    is_same_v<decltype(CMPIStringFT::clone), CMPIString* (*)(const CMPIString*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIStringFT::getCharPtr), const char* (*)(const CMPIString*, CMPIStatus*)>);

// CMPIArgsFT
static_assert(is_same_v<decltype(CMPIArgsFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIArgsFT::release), CMPIStatus (*)(CMPIArgs*)>);
static_assert(is_same_v<decltype(CMPIArgsFT::clone), CMPIArgs* (*)(const CMPIArgs*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIArgsFT::addArg),
                        CMPIStatus (*)(const CMPIArgs*, const char*, const CMPIValue*, CMPIType)>);
static_assert(is_same_v<decltype(CMPIArgsFT::getArg),
                        CMPIData (*)(const CMPIArgs*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIArgsFT::getArgAt),
                        CMPIData (*)(const CMPIArgs*, CMPICount, CMPIString**, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIArgsFT::getArgCount), CMPICount (*)(const CMPIArgs*, CMPIStatus*)>);

// CMPIContextFT
static_assert(is_same_v<decltype(CMPIContextFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIContextFT::release), CMPIStatus (*)(CMPIContext*)>);
static_assert(
    is_same_v<decltype(CMPIContextFT::clone), CMPIContext* (*)(const CMPIContext*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIContextFT::getEntry),
                        CMPIData (*)(const CMPIContext*, const char*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIContextFT::getEntryAt),
                        CMPIData (*)(const CMPIContext*, CMPICount, CMPIString**, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIContextFT::getEntryCount),
                        CMPICount (*)(const CMPIContext*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIContextFT::addEntry),
              CMPIStatus (*)(const CMPIContext*, const char*, const CMPIValue*, CMPIType)>);

// CMPIResultFT
static_assert(is_same_v<decltype(CMPIResultFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIResultFT::release), CMPIStatus (*)(CMPIResult*)>);
static_assert(
    is_same_v<decltype(CMPIResultFT::clone), CMPIResult* (*)(const CMPIResult*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIResultFT::returnData),
                        CMPIStatus (*)(const CMPIResult*, const CMPIValue*, CMPIType)>);
static_assert(is_same_v<decltype(CMPIResultFT::returnInstance),
                        CMPIStatus (*)(const CMPIResult*, const CMPIInstance*)>);
static_assert(is_same_v<decltype(CMPIResultFT::returnObjectPath),
                        CMPIStatus (*)(const CMPIResult*, const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIResultFT::returnDone), CMPIStatus (*)(const CMPIResult*)>);
static_assert(is_same_v<decltype(CMPIResultFT::returnError),
                        CMPIStatus (*)(const CMPIResult*, const CMPIError*)>);

// CMPIDateTimeFT
static_assert(is_same_v<decltype(CMPIDateTimeFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIDateTimeFT::release), CMPIStatus (*)(CMPIDateTime*)>);
static_assert(is_same_v<decltype(CMPIDateTimeFT::clone),
                        CMPIDateTime* (*)(const CMPIDateTime*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIDateTimeFT::getBinaryFormat),
                        CMPIUint64 (*)(const CMPIDateTime*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIDateTimeFT::getStringFormat),
                        CMPIString* (*)(const CMPIDateTime*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIDateTimeFT::isInterval),
                        CMPIBoolean (*)(const CMPIDateTime*, CMPIStatus*)>);

// CMPIEnumerationFT
static_assert(is_same_v<decltype(CMPIEnumerationFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIEnumerationFT::release), CMPIStatus (*)(CMPIEnumeration*)>);
static_assert(is_same_v<decltype(CMPIEnumerationFT::clone),
                        CMPIEnumeration* (*)(const CMPIEnumeration*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIEnumerationFT::getNext),
                        CMPIData (*)(const CMPIEnumeration*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIEnumerationFT::hasNext),
                        CMPIBoolean (*)(const CMPIEnumeration*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIEnumerationFT::toArray),
                        CMPIArray* (*)(const CMPIEnumeration*, CMPIStatus*)>);

// CMPISelectExpFT
static_assert(is_same_v<decltype(CMPISelectExpFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPISelectExpFT::release), CMPIStatus (*)(CMPISelectExp*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::clone),
                        CMPISelectExp* (*)(const CMPISelectExp*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::evaluate),
                        CMPIBoolean (*)(const CMPISelectExp*, const CMPIInstance*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::getString),
                        CMPIString* (*)(const CMPISelectExp*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::getDOC),
                        CMPISelectCond* (*)(const CMPISelectExp*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::getCOD),
                        CMPISelectCond* (*)(const CMPISelectExp*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectExpFT::evaluateUsingAccessor),
                        CMPIBoolean (*)(const CMPISelectExp*, CMPIAccessor*, void*, CMPIStatus*)>);

// CMPISelectCondFT
static_assert(is_same_v<decltype(CMPISelectCondFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPISelectCondFT::release), CMPIStatus (*)(CMPISelectCond*)>);
static_assert(is_same_v<decltype(CMPISelectCondFT::clone),
                        CMPISelectCond* (*)(const CMPISelectCond*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectCondFT::getCountAndType),
                        CMPICount (*)(const CMPISelectCond*, int*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISelectCondFT::getSubCondAt),
                        CMPISubCond* (*)(const CMPISelectCond*, CMPICount, CMPIStatus*)>);

// CMPISubCondFT
static_assert(is_same_v<decltype(CMPISubCondFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPISubCondFT::release), CMPIStatus (*)(CMPISubCond*)>);
static_assert(
    is_same_v<decltype(CMPISubCondFT::clone), CMPISubCond* (*)(const CMPISubCond*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPISubCondFT::getCount), CMPICount (*)(const CMPISubCond*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISubCondFT::getPredicateAt),
                        CMPIPredicate* (*)(const CMPISubCond*, CMPICount, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPISubCondFT::getPredicate),
                        CMPIPredicate* (*)(const CMPISubCond*, const char*, CMPIStatus*)>);

// CMPIPredicateFT
static_assert(is_same_v<decltype(CMPIPredicateFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIPredicateFT::release), CMPIStatus (*)(CMPIPredicate*)>);
static_assert(is_same_v<decltype(CMPIPredicateFT::clone),
                        CMPIPredicate* (*)(const CMPIPredicate*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIPredicateFT::getData),
                        CMPIStatus (*)(const CMPIPredicate*, CMPIType*, CMPIPredOp*, CMPIString**,
                                       CMPIString**)>);
static_assert(is_same_v<decltype(CMPIPredicateFT::evaluateUsingAccessor),
                        CMPIBoolean (*)(const CMPIPredicate*, CMPIAccessor*, void*, CMPIStatus*)>);

// CMPIErrorFT
static_assert(is_same_v<decltype(CMPIErrorFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIErrorFT::release), CMPIStatus (*)(CMPIError*)>);
static_assert(
    is_same_v<decltype(CMPIErrorFT::clone), CMPIError* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getErrorType),
                        CMPIErrorType (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getOtherErrorType),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getOwningEntity),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIErrorFT::getMessageID), CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIErrorFT::getMessage), CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getPerceivedSeverity),
                        CMPIErrorSeverity (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getProbableCause),
                        CMPIErrorProbableCause (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getProbableCauseDescription),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getRecommendedActions),
                        CMPIArray* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getErrorSource),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getErrorSourceFormat),
                        CMPIErrorSrcFormat (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getOtherErrorSourceFormat),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(
    is_same_v<decltype(CMPIErrorFT::getCIMStatusCode), CMPIrc (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getCIMStatusCodeDescription),
                        CMPIString* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::getMessageArguments),
                        CMPIArray* (*)(const CMPIError*, CMPIStatus*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setErrorType),
                        CMPIStatus (*)(const CMPIError*, CMPIErrorType)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setOtherErrorType),
                        CMPIStatus (*)(const CMPIError*, const char*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setProbableCauseDescription),
                        CMPIStatus (*)(const CMPIError*, const char*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setRecommendedActions),
                        CMPIStatus (*)(const CMPIError*, const CMPIArray*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setErrorSource),
                        CMPIStatus (*)(const CMPIError*, const char*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setErrorSourceFormat),
                        CMPIStatus (*)(const CMPIError*, CMPIErrorSrcFormat)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setOtherErrorSourceFormat),
                        CMPIStatus (*)(const CMPIError*, const char*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setCIMStatusCodeDescription),
                        CMPIStatus (*)(const CMPIError*, const char*)>);
static_assert(is_same_v<decltype(CMPIErrorFT::setMessageArguments),
                        CMPIStatus (*)(const CMPIError*, const CMPIArray*)>);

// CMPIInstanceMIFT
static_assert(is_same_v<decltype(CMPIInstanceMIFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::miVersion), int>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::miName), const char*>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::cleanup),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::enumerateInstanceNames),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::enumerateInstances),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char**)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::getInstance),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char**)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::createInstance),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const CMPIInstance*)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::modifyInstance),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const CMPIInstance*, const char**)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::deleteInstance),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIInstanceMIFT::execQuery),
                        CMPIStatus (*)(CMPIInstanceMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*, const char*)>);

// CMPIAssociationMIFT
static_assert(is_same_v<decltype(CMPIAssociationMIFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::miVersion), int>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::miName), const char*>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::cleanup),
                        CMPIStatus (*)(CMPIAssociationMI*, const CMPIContext*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::associators),
                        CMPIStatus (*)(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*, const char*, const char*,
                                       const char*, const char**)>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::associatorNames),
                        CMPIStatus (*)(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*, const char*, const char*,
                                       const char*)>);
static_assert(
    is_same_v<decltype(CMPIAssociationMIFT::references),
              CMPIStatus (*)(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                             const CMPIObjectPath*, const char*, const char*, const char**)>);
static_assert(is_same_v<decltype(CMPIAssociationMIFT::referenceNames),
                        CMPIStatus (*)(CMPIAssociationMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*, const char*)>);

// CMPIMethodMIFT
static_assert(is_same_v<decltype(CMPIMethodMIFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIMethodMIFT::miVersion), int>);
static_assert(is_same_v<decltype(CMPIMethodMIFT::miName), const char*>);
static_assert(is_same_v<decltype(CMPIMethodMIFT::cleanup),
                        CMPIStatus (*)(CMPIMethodMI*, const CMPIContext*, CMPIBoolean)>);
static_assert(
    is_same_v<decltype(CMPIMethodMIFT::invokeMethod),
              CMPIStatus (*)(CMPIMethodMI*, const CMPIContext*, const CMPIResult*,
                             const CMPIObjectPath*, const char*, const CMPIArgs*, CMPIArgs*)>);

// CMPIPropertyMIFT
static_assert(is_same_v<decltype(CMPIPropertyMIFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::miVersion), int>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::miName), const char*>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::cleanup),
                        CMPIStatus (*)(CMPIPropertyMI*, const CMPIContext*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::setProperty),
                        CMPIStatus (*)(CMPIPropertyMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*, CMPIData)>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::getProperty),
                        CMPIStatus (*)(CMPIPropertyMI*, const CMPIContext*, const CMPIResult*,
                                       const CMPIObjectPath*, const char*)>);
static_assert(is_same_v<decltype(CMPIPropertyMIFT::setPropertyWithOrigin),
                        CMPIStatus (*)(CMPIPropertyMI*, const CMPIContext*, const CMPIResult*,
                                       CMPIObjectPath*, const char*, CMPIData, const char*)>);

// CMPIIndicationMIFT
static_assert(is_same_v<decltype(CMPIIndicationMIFT::ftVersion), CMPIVersion>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::miVersion), int>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::miName), const char*>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::cleanup),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::authorizeFilter),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                       const char*, const CMPIObjectPath*, const char*)>);
// Without a CMPIResult, as brokers of level 2.0 call it.
static_assert(is_same_v<decltype(CMPIIndicationMIFT::mustPoll),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                       const char*, const CMPIObjectPath*)>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::activateFilter),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                       const char*, const CMPIObjectPath*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::deActivateFilter),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                       const char*, const CMPIObjectPath*, CMPIBoolean)>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::enableIndications),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*)>);
static_assert(is_same_v<decltype(CMPIIndicationMIFT::disableIndications),
                        CMPIStatus (*)(CMPIIndicationMI*, const CMPIContext*)>);

// Function types.
static_assert(is_same_v<CMPIThreadFunc, void* (*)(void*)>);
static_assert(is_same_v<CMPIThreadOnceFunc, void (*)()>);
static_assert(is_same_v<CMPIThreadKeyCleanupFunc, void (*)(void*)>);
static_assert(is_same_v<CMPIAccessor, CMPIData(const char*, void*)>);

// Scalars and members of a value.
static_assert(is_same_v<CMPIBoolean, unsigned char>);
static_assert(is_same_v<CMPIChar16, unsigned short>);
static_assert(is_same_v<CMPIUint64, unsigned long long>);
static_assert(is_same_v<CMPISint64, long long>);
static_assert(is_same_v<CMPIReal32, float>);
static_assert(is_same_v<CMPIReal64, double>);
static_assert(is_same_v<CMPICount, unsigned int>);
static_assert(is_same_v<CMPIType, unsigned short>);
static_assert(is_same_v<CMPIValueState, unsigned short>);
static_assert(is_same_v<CMPIFlags, unsigned int>);
static_assert(is_same_v<CMPIVersion, int>);
static_assert(is_same_v<decltype(CMPIValue::boolean), CMPIBoolean>);
static_assert(is_same_v<decltype(CMPIValue::char16), CMPIChar16>);
static_assert(is_same_v<decltype(CMPIValue::uint8), CMPIUint8>);
static_assert(is_same_v<decltype(CMPIValue::uint16), CMPIUint16>);
static_assert(is_same_v<decltype(CMPIValue::uint32), CMPIUint32>);
static_assert(is_same_v<decltype(CMPIValue::uint64), CMPIUint64>);
static_assert(is_same_v<decltype(CMPIValue::sint8), CMPISint8>);
static_assert(is_same_v<decltype(CMPIValue::sint16), CMPISint16>);
static_assert(is_same_v<decltype(CMPIValue::sint32), CMPISint32>);
static_assert(is_same_v<decltype(CMPIValue::sint64), CMPISint64>);
static_assert(is_same_v<decltype(CMPIValue::real32), CMPIReal32>);
static_assert(is_same_v<decltype(CMPIValue::real64), CMPIReal64>);
static_assert(is_same_v<decltype(CMPIValue::inst), CMPIInstance*>);
static_assert(is_same_v<decltype(CMPIValue::ref), CMPIObjectPath*>);
static_assert(is_same_v<decltype(CMPIValue::args), CMPIArgs*>);
static_assert(is_same_v<decltype(CMPIValue::filter), CMPISelectExp*>);
static_assert(is_same_v<decltype(CMPIValue::Enum), CMPIEnumeration*>);
static_assert(is_same_v<decltype(CMPIValue::array), CMPIArray*>);
static_assert(is_same_v<decltype(CMPIValue::string), CMPIString*>);
static_assert(is_same_v<decltype(CMPIValue::chars), char*>);
static_assert(is_same_v<decltype(CMPIValue::dateTime), CMPIDateTime*>);
static_assert(is_same_v<decltype(CMPIValue::dataPtr), CMPIValuePtr>);
static_assert(is_same_v<decltype(CMPIValue::Byte), CMPISint8>);
static_assert(is_same_v<decltype(CMPIValue::Short), CMPISint16>);
static_assert(is_same_v<decltype(CMPIValue::Int), CMPISint32>);
static_assert(is_same_v<decltype(CMPIValue::Long), CMPISint64>);
static_assert(is_same_v<decltype(CMPIValue::Float), CMPIReal32>);
static_assert(is_same_v<decltype(CMPIValue::Double), CMPIReal64>);
