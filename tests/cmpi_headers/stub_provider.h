// What the stub providers tell about the calls that reach them.
#ifndef STUB_PROVIDER_H
#define STUB_PROVIDER_H

#include <cmpidt.h>

#ifdef __cplusplus
extern "C" {
#endif

// Name of the provider function that was called last.
extern const char* stub_called;

// The file variables into which the factories of the C and of the C++ stub put the broker.
const CMPIBroker* c_stub_broker(void);
const CMPIBroker* cpp_stub_broker(void);
const CMPIBroker* level_100_stub_broker(void);

// How many slots that brokers may leave out are null, seen from C.
int c_count_null_slots(const CMPIBroker* broker, const CMPIInstance* inst,
                       const CMPIObjectPath* path, const CMPIContext* ctx, const CMPIResult* rslt);

CMPIInstanceMI* CStub_Create_InstanceMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIAssociationMI* CStub_Create_AssociationMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIMethodMI* CStub_Create_MethodMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIPropertyMI* CStub_Create_PropertyMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIIndicationMI* CStub_Create_IndicationMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);

CMPIInstanceMI* CppStub_Create_InstanceMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIAssociationMI* CppStub_Create_AssociationMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIMethodMI* CppStub_Create_MethodMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIPropertyMI* CppStub_Create_PropertyMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
CMPIIndicationMI* CppStub_Create_IndicationMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);

CMPIMethodMI* Level100Stub_Create_MethodMI(const CMPIBroker*, const CMPIContext*, CMPIStatus*);

#ifdef __cplusplus
}
#endif

#endif
